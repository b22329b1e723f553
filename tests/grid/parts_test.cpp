// What needs no window: grids whose memory ends, the memory of cells, the sort.

#include "GridFixture.h"

#include "grid/RowSorter.h"

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
    }
    bool Broken() const { return leftToCompare <= 0; }
};
} // namespace

TEST(GridFailures, OutOfMemoryLeavesWhatWasBuilt)
{
    const CountedHeap heap;
    s_allocations = INT_MAX;
    owtest::ModalVisit boxes(std::vector<owtest::ModalVisit::Visitor>(7, [](CWnd&) {}));
    auto pGrid = std::make_unique<ScarceGrid>();
    ScarceGrid& grid = *pGrid;
    grid.SetColumnCount(3);
    grid.supply = 7;
    EXPECT_FALSE(grid.SetRowCount(5));
    grid.supply = 1;
    EXPECT_FALSE(grid.SetColumnCount(5));
    EXPECT_EQ(grid.GetCell(1, 4), nullptr) << "an empty place, and no cell";
    EXPECT_TRUE(grid.SetItemText(0, 3, L"stays"));
    grid.supply = 1;
    EXPECT_EQ(grid.InsertColumn(L"x", DT_LEFT, 1), 0);
    EXPECT_EQ(grid.GetItemText(0, 3), L"stays") << "the cell that was put in is out again";
    EXPECT_EQ(grid.InsertRow(L"x", 1), 0);
    EXPECT_FALSE(grid.SetRowCount(INT_MAX));
    grid.SetSelectedRange(0, 0, 1, 1);
    EXPECT_FALSE(grid.SetFixedColumnCount(INT_MAX));
    EXPECT_EQ(grid.GetSelectedCount(), 4) << "stays, with columns only";
    EXPECT_FALSE(grid.SetFixedRowCount(INT_MAX));
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    EXPECT_EQ(grid.GetCellRange(), CCellRange(0, 0, 1, 4)) << "two whole rows, five columns";
    EXPECT_EQ(boxes.Count(), 7);
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
    while (cells.size() < 3 * inBlock)
        cells.push_back(CGridCellBase::operator new(size));
    for (const int i : {inBlock, 0}) // of full blocks, which have room then
        CGridCellBase::operator delete(cells[i], size);
    for (const int i : {0, inBlock})
        cells[i] = CGridCellBase::operator new(size);
    EXPECT_THROW(CGridCellBase::operator new(size), CMemoryException*) << "the fourth block";
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
    std::thread threads[] = {std::thread(walk, 1), std::thread(walk, 2), std::thread(walk, 3)};
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
