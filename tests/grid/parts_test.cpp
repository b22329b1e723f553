// What needs no window: grids whose memory ends, the memory of cells, the sort, the fields of a line.

#include "GridFixture.h"

#include "grid/RowSorter.h"
#include "grid/TextFields.h"

#include <atomic>

namespace
{
std::atomic<int> s_allocations = 0; ///< how many there is memory for
std::atomic<int> s_blocks = 0;      ///< that the cells' memory has of the heap

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

/// A cell that cannot be made any more once the supply runs out.
class ScarceGrid : public OpenGrid
{
public:
    int supply = 1000;

protected:
    CGridCellBase* CreateCell(int nRow, int nCol) override
    {
        if (--supply < 0)
            AfxThrowMemoryException();
        return OpenGrid::CreateCell(nRow, nCol);
    }
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

TEST(GridFailures, OutOfMemoryLeavesWhatWasBuilt)
{
    const CountedHeap heap;
    s_allocations = INT_MAX;
    owtest::ModalVisit boxes(std::vector<owtest::ModalVisit::Visitor>(6, [](CWnd&) {}));
    auto pGrid = std::make_unique<ScarceGrid>();
    ScarceGrid& grid = *pGrid;
    grid.SetColumnCount(3);
    grid.supply = 7;
    EXPECT_FALSE(grid.SetRowCount(5));
    grid.supply = 1;
    EXPECT_FALSE(grid.SetColumnCount(5));
    EXPECT_EQ(grid.GetCell(1, 4), nullptr) << "an empty place, and no cell";
    EXPECT_FALSE(grid.SetItemText(1, 4, L"x"));
    EXPECT_TRUE(grid.SetItemText(0, 3, L"stays"));

    grid.supply = 1;
    EXPECT_EQ(grid.InsertColumn(L"x", DT_LEFT, 1), 0);
    EXPECT_EQ(grid.GetItemText(0, 3), L"stays") << "the cell that was put in is out again";
    EXPECT_EQ(grid.InsertRow(L"x", 1), 0);
    EXPECT_FALSE(grid.SetRowCount(INT_MAX));
    EXPECT_FALSE(grid.SetFixedColumnCount(INT_MAX));
    EXPECT_EQ(grid.GetCellRange(), CCellRange(0, 0, 1, 4)) << "two whole rows, five columns";
    EXPECT_EQ(boxes.Count(), 6);
    grid.supply = 100;
    EXPECT_EQ(grid.InsertColumn(L"x"), 5);
    EXPECT_EQ(grid.GetItemText(0, 5), L"x");
    pGrid = nullptr;
    EXPECT_EQ(s_blocks, 0) << "no cell is left";
}

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
    EXPECT_THROW(takeTo(cells.size() + 1), CMemoryException*) << "the fourth block";
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

TEST(RowSorter, StopsWhereItIsBrokenAndTakesAnyOrder)
{
    for (int compared = 1; compared < 30; ++compared)
    {
        Numbers rows{{50, 40, 30, 20, 10}, compared};
        CRowSorter(rows, true).Sort(0, 4);
        EXPECT_GE(rows.leftToCompare, 0) << "nothing is compared any more";
        EXPECT_LT(rows.swaps, compared);
    }
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
