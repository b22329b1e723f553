// The parts of a grid that need no window: rows of cells whose memory ends, that memory, the sort, the fields
// of a line.

#include <DialogControlsOW.h>

#include "grid/RowSorter.h"
#include "grid/TextFields.h"
#include "Testing.h"

#include <atomic>

// ---- Cells ------------------------------------------------------------------------------------------------

namespace
{
/// Knows how many there are.
class CCountedCell : public CGridCell
{
public:
    CCountedCell() { ++s_alive; }
    ~CCountedCell() override { --s_alive; }
    static inline int s_alive = 0;
};

/// Cells with their places as texts, until the supply runs out.
struct Maker
{
    int supply = 1000;
    CGridCellBase* operator()(int nRow, int nCol)
    {
        if (--supply < 0)
            AfxThrowMemoryException();
        if (nRow == 1 && nCol == 1)
            return nullptr; // has none for this place
        auto* const pCell = new CCountedCell;
        CString text;
        text.Format(L"%d%d", nRow, nCol);
        pCell->SetText(text);
        return pCell;
    }
};

std::wstring TextsOf(const CGridCells& cells, int nCols)
{
    std::wstring all;
    for (int nRow = 0; nRow < cells.RowCount(); ++nRow, all += L'/')
        for (int nCol = 0; nCol < nCols; ++nCol)
            all += (nCol ? L" " : L"") +
                   std::wstring(cells.At(nRow, nCol) ? cells.At(nRow, nCol)->GetText() : L"-");
    return all;
}

template <class Work>
bool RunsOut(Work work)
{
    try
    {
        work();
        return false;
    }
    catch (CMemoryException* e)
    {
        e->Delete();
        return true;
    }
}

std::atomic<int> s_allocations = 0; ///< how many large ones there is memory for
void* ScarceMemory(size_t count, size_t size)
{
    if (count >= 1000 && --s_allocations < 0)
        AfxThrowMemoryException();
    return AfxAllocElements(count, size);
}

std::atomic<int> s_blocks = 0; ///< that the cells' memory has of the heap

struct CountedHeap
{
    const owtest::ImportStandIn take{L"DialogControlsOW.dll", "_ZN7CObjectnwEy",
                                     +[](size_t size)
                                     {
                                         if (--s_allocations < 0)
                                             AfxThrowMemoryException();
                                         ++s_blocks;
                                         return CObject::operator new(size);
                                     }};
    const owtest::ImportStandIn give{L"DialogControlsOW.dll", "_ZN7CObjectdlEPv",
                                     +[](void* p)
                                     {
                                         --s_blocks;
                                         CObject::operator delete(p);
                                     }};
};

/// Numbers as rows, sorted by their tens.
struct Numbers
{
    std::vector<int> all;
    int leftToCompare = INT_MAX;
    int swaps = 0;
    bool equalMoved = false;

    int CellAt(int nRow) const { return all[nRow]; }
    int Compare(int first, int second)
    {
        --leftToCompare;
        return first / 10 - second / 10;
    }
    void Swap(int nRow, int nOther)
    {
        equalMoved = equalMoved || all[nRow] / 10 == all[nOther] / 10;
        std::swap(all[nRow], all[nOther]);
        ++swaps;
    }
    bool Broken() const { return leftToCompare <= 0; }
};
} // namespace

TEST(GridCells, StayAsTheyWereWhenMemoryEnds)
{
    CGridCells cells;
    cells.InsertRow(0, 3, Maker());
    cells.InsertRow(1, 3, Maker());
    const std::wstring before = TextsOf(cells, 3);
    EXPECT_TRUE(RunsOut([&] { cells.InsertRow(1, 3, Maker{2}); }));
    EXPECT_TRUE(RunsOut([&] { cells.InsertColumn(1, Maker{1}); }));
    {
        const owtest::ImportStandIn scarce(L"DialogControlsOW.dll", "_Z16AfxAllocElementsyy", &ScarceMemory);
        s_allocations = 1;
        EXPECT_TRUE(RunsOut([&] { cells.SetColumns(1000); })) << "in the second row";
    }
    cells.FillFrom(3, Maker());
    EXPECT_EQ(TextsOf(cells, 3), before);
    EXPECT_EQ(CCountedCell::s_alive, 5);
    cells.SetColumns(4);
    EXPECT_TRUE(RunsOut([&] { cells.FillFrom(3, Maker{1}); }));
    EXPECT_EQ(TextsOf(cells, 4), L"00 01 02 03/10 - 12 -/") << "the rest stays empty";
}

// ---- Memory of cells --------------------------------------------------------------------------------------

TEST(CellMemory, ComesInBlocksThatGoBackWithTheirLastCell)
{
    constexpr size_t size = 72; // fills a block to its end
    constexpr int inBlock = 409;
    const CountedHeap heap;
    s_allocations = 3;
    std::vector<void*> cells;
    const auto takeTo = [&](size_t count)
    {
        while (cells.size() < count)
            cells.push_back(CGridCellBase::operator new(size));
    };
    takeTo(2 * inBlock + 1);
    for (void*& p : {std::ref(cells[inBlock]), std::ref(cells[0])}) // of full blocks, which have room then
        CGridCellBase::operator delete(std::exchange(p, nullptr), size);
    for (void*& p : {std::ref(cells[0]), std::ref(cells[inBlock])})
        p = CGridCellBase::operator new(size);
    takeTo(3 * inBlock);
    EXPECT_TRUE(RunsOut([&] { takeTo(cells.size() + 1); })) << "the fourth block";
    for (int left = static_cast<int>(cells.size()); left > 0;)
    {
        EXPECT_EQ(s_blocks, (left + inBlock - 1) / inBlock);
        CGridCellBase::operator delete(cells[--left], size);
    }
    CGridCellBase::operator delete(nullptr, size);
    EXPECT_EQ(s_blocks, 0);
}

TEST(CellMemory, IsEachCellsOwnInAnySizeAndThread)
{
    const CountedHeap heap;
    s_allocations = INT_MAX;
    const auto walk = [](unsigned seed)
    {
        std::mt19937 random(seed);
        std::pair<BYTE*, size_t> cells[200] = {};
        for (int step = 0; step < 20000; ++step)
        {
            const size_t place = random() % std::size(cells);
            auto& [p, size] = cells[place];
            const auto mark = static_cast<BYTE>(place + seed); // nobody else writes into it
            EXPECT_EQ(std::count(p, p + size, mark), static_cast<ptrdiff_t>(size));
            CGridCellBase::operator delete(p, size);
            size = random() % 3 ? 1 + random() % 40 : 490 + random() % 40;
            p = static_cast<BYTE*>(CGridCellBase::operator new(size));
            EXPECT_EQ(reinterpret_cast<size_t>(p) % 16, 0u);
            std::fill_n(p, size, mark);
        }
        for (const auto& [p, size] : cells)
            CGridCellBase::operator delete(p, size);
    };
    std::vector<std::thread> threads;
    for (const unsigned seed : {1, 2, 3})
        threads.emplace_back(walk, seed);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(s_blocks, 0);
}

// ---- Sorting ----------------------------------------------------------------------------------------------

TEST(RowSorter, StopsWhereItIsBrokenAndTakesAnyOrder)
{
    for (int compared = 1; compared < 30; ++compared)
    {
        Numbers rows{{50, 40, 30, 20, 10}, compared};
        CRowSorter(rows, true).Sort(0, 4);
        EXPECT_GE(rows.leftToCompare, 0) << "nothing is compared any more";
    }
    Numbers first{{50, 10}, 1};
    CRowSorter(first, true).Sort(0, 1);
    EXPECT_EQ(first.swaps, 0);
    const auto byTens = [](int a, int b) { return a / 10 < b / 10; };
    std::mt19937 random(5);
    for (const bool inOrder : {true, false})
    {
        Numbers many;
        for (int i = 0; i < 100000; ++i)
            many.all.push_back(inOrder ? i / 70 : static_cast<int>(random() % 700));
        CRowSorter(many, false).Sort(0, 99999);
        EXPECT_TRUE(std::is_sorted(many.all.rbegin(), many.all.rend(), byTens));
        EXPECT_FALSE(many.equalMoved) << "equal ones stay";
    }
}

// ---- Files ------------------------------------------------------------------------------------------------

TEST(TextFields, EndAtSeparatorsAndGoOnBehindAnUnendedLine)
{
    using Fields = std::vector<std::wstring>;
    // A line, what the line left of the one before it, if any, follows a 0; and its fields.
    using Row = std::pair<std::wstring, Fields>;
    for (const auto& [text, expected] :
         {Row{L"a;b\n", {L"a", L"b"}}, Row{L"x;;y\n", {L"x", L"", L"y"}}, Row{L"\n", {L""}}, Row{L"", {}},
          Row{L"a,b", {L"a,b"}}, Row{L"end;\n", {L"end", L""}},
          Row{std::wstring(L"xy;z\0old;er\n", 12), {L"xy", L"z", L"old", L"er"}},
          Row{std::wstring(1023, L'x'), {std::wstring(1023, L'x')}},
          Row{std::wstring(1023, L';'), Fields(1023)}})
    {
        wchar_t line[CTextFields::kLineSize] = {};
        std::copy(text.begin(), text.end(), line);
        CTextFields fields(line, L';');
        Fields found;
        while (const wchar_t* const field = fields.Next())
            found.push_back(field);
        EXPECT_EQ(found, expected) << text.c_str();
    }
}
