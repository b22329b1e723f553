// The grid beside the system's list view, in one process: the same data, ten columns, texts of six
// characters.

#include <DialogControlsOW.h>

#include "Bench.h"

#include <algorithm>
#include <string>
#include <vector>

namespace
{
constexpr int kCols = 10;
constexpr int kMany = 50000;
const CSize kClient(1200, 900);

/// Texts made beforehand, so that only storing them is measured. In no order.
const std::vector<std::wstring>& Texts()
{
    static const std::vector<std::wstring> texts = []
    {
        std::vector<std::wstring> all;
        for (unsigned i = 0; i < kMany * kCols; ++i)
        {
            wchar_t text[16];
            swprintf(text, 16, L"%06u", (i * 7919u) % 1000003u % 1000000u);
            all.push_back(text);
        }
        return all;
    }();
    return texts;
}

const wchar_t* TextAt(int nRow, int nCol)
{
    return Texts()[(nRow % kMany) * kCols + nCol].c_str();
}

/// A top-level window with a client area for one control.
class CStage : public CWnd
{
public:
    CStage()
    {
        CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"stage", WS_POPUP | WS_VISIBLE,
                 CRect(CPoint(0, 0), kClient + CSize(40, 40)), nullptr, 0);
    }
    ~CStage() override { DestroyWindow(); }
};

class CBenchGrid : public CGridCtrl
{
public:
    explicit CBenchGrid(CStage& stage)
    {
        Create(CRect(CPoint(0, 0), kClient + CSize(4, 4)), &stage, 1);
        SetDoubleBuffering(FALSE);
    }
    void Fill(int nRows)
    {
        SetColumnCount(kCols);
        SetRowCount(nRows);
        for (int nRow = 0; nRow < nRows; ++nRow)
            for (int nCol = 0; nCol < kCols; ++nCol)
                SetItemText(nRow, nCol, TextAt(nRow, nCol));
    }
    void MakeVirtual(int nRows)
    {
        SetVirtualMode(TRUE);
        SetCallbackFunc(
            [](GV_DISPINFO* pInfo, LPARAM)
            {
                pInfo->item.strText = TextAt(pInfo->item.row, pInfo->item.col);
                return 0;
            },
            0);
        SetColumnCount(kCols);
        SetRowCount(nRows);
    }
    void Repaint() { RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }
    void Scroll(UINT nCode)
    {
        SendMessage(WM_VSCROLL, nCode);
        UpdateWindow();
    }
};

class CBenchList : public CListCtrl
{
public:
    explicit CBenchList(CStage& stage, DWORD dwStyle = 0)
    {
        Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | dwStyle, CRect(CPoint(0, 0), kClient), &stage, 1);
        for (int nCol = 0; nCol < kCols; ++nCol)
            InsertColumn(nCol, L"column", LVCFMT_LEFT, 90);
    }
    void Fill(int nRows)
    {
        SetItemCount(nRows);
        for (int nRow = 0; nRow < nRows; ++nRow)
        {
            LVITEM item{};
            item.mask = LVIF_TEXT | LVIF_PARAM;
            item.iItem = nRow;
            item.lParam = nRow;
            item.pszText = const_cast<wchar_t*>(TextAt(nRow, 0));
            InsertItem(&item);
            for (int nCol = 1; nCol < kCols; ++nCol)
                SetItemText(nRow, nCol, TextAt(nRow, nCol));
        }
    }
    void Repaint() { RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }
    void SortByText()
    {
        const auto byText = [](LPARAM first, LPARAM second, LPARAM list) -> int
        {
            auto& sorted = *reinterpret_cast<CBenchList*>(list);
            wchar_t one[16], two[16];
            sorted.GetItemText(static_cast<int>(first), 0, one, 16);
            sorted.GetItemText(static_cast<int>(second), 0, two, 16);
            return wcscmp(one, two);
        };
        SendMessage(LVM_SORTITEMSEX, reinterpret_cast<WPARAM>(this),
                    reinterpret_cast<LPARAM>(static_cast<PFNLVCOMPARE>(byText)));
    }
};

/// What is in use on all heaps of the process, with what the heaps need for it themselves.
size_t HeapBytes()
{
    HANDLE heaps[64];
    const DWORD nHeaps = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    size_t nBytes = 0;
    for (DWORD i = 0; i < nHeaps; ++i)
    {
        ::HeapLock(heaps[i]);
        for (PROCESS_HEAP_ENTRY entry{}; ::HeapWalk(heaps[i], &entry);)
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                nBytes += entry.cbData + entry.cbOverhead;
        ::HeapUnlock(heaps[i]);
    }
    return nBytes;
}

void CompareFill(Comparison& compare, const std::function<void()>& measure, int nRows)
{
    Texts();
    CStage stage, other;
    CBenchGrid grid(stage);
    CBenchList list(other);
    compare.Rounds(3);
    compare.Prepare(
        [&]
        {
            grid.DeleteAllItems();
            list.DeleteAllItems();
        });
    compare.Ours([&] { grid.Fill(nRows); });
    compare.Bare(
        [&]
        {
            list.SetRedraw(FALSE);
            list.Fill(nRows);
            list.SetRedraw(TRUE);
        });
    measure();
}

/// Answers a paint with a filled rectangle and a text for each cell that shows in a grid, and nothing else.
class CBareWindow : public CStage
{
public:
    explicit CBareWindow(CGridCtrl& grid) : m_grid(grid) {}
    void Repaint() { RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ERASEBKGND)
            return TRUE;
        if (message != WM_PAINT)
            return CStage::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        Paint(dc);
        return 0;
    }

private:
    void Paint(CDC& dc)
    {
        CFont* const pOldFont = dc.SelectObject(m_grid.GetFont());
        dc.SetBkMode(TRANSPARENT);
        CBrush brush(RGB(255, 255, 255));
        const int nHeight = m_grid.GetRowHeight(1), nWidth = m_grid.GetColumnWidth(1);
        for (int y = 0, nRow = 0; y < kClient.cy; y += nHeight, ++nRow)
            for (int x = 0, nCol = 0; x < kClient.cx && nCol < kCols; x += nWidth, ++nCol)
            {
                const CRect rect(x, y, x + nWidth, y + nHeight);
                dc.FillRect(&rect, &brush);
                dc.ExtTextOut(x + 3, y + 3, ETO_CLIPPED, &rect, TextAt(nRow, nCol), 6, nullptr);
            }
        dc.SelectObject(pOldFont);
    }

    CGridCtrl& m_grid;
};

/// Both filled, painted and warm.
struct Pair
{
    explicit Pair(int nRows = 1000) : grid(gridStage), list(listStage)
    {
        grid.Fill(nRows);
        for (int nCol = 0; nCol < kCols; ++nCol)
            grid.SetColumnWidth(nCol, kClient.cx / kCols, TRUE);
        list.SetRedraw(FALSE);
        list.Fill(nRows);
        list.SetRedraw(TRUE);
        for (int nCol = 0; nCol < kCols; ++nCol)
            list.SetColumnWidth(nCol, kClient.cx / kCols);
    }
    CStage gridStage, listStage;
    CBenchGrid grid;
    CBenchList list;
};

/// A step on and a step back, by some of what the step is made of, beside the list view's whole steps.
void CompareSteps(Comparison& compare, const std::function<void()>& measure, UINT nOn, UINT nBack,
                  void (*step)(Pair&, UINT), int nRows = 1000)
{
    Pair pair(nRows);
    compare.Ours(
        [&]
        {
            step(pair, nOn);
            step(pair, nBack);
        });
    compare.Bare(
        [&]
        {
            for (const UINT nCode : {nOn, nBack})
            {
                pair.list.SendMessage(WM_VSCROLL, nCode);
                pair.list.UpdateWindow();
            }
        });
    measure();
}

void CompareScroll(Comparison& compare, const std::function<void()>& measure, UINT nOn, UINT nBack, int nRows)
{
    CompareSteps(
        compare, measure, nOn, nBack, [](Pair& pair, UINT nCode) { pair.grid.Scroll(nCode); }, nRows);
}

void CompareLineStep(Comparison& compare, const std::function<void()>& measure, void (*step)(Pair&, UINT))
{
    CompareSteps(compare, measure, SB_LINEDOWN, SB_LINEUP, step);
}

/// The same work on fifty and on ten thousand rows: how it grows. Five times is in proportion.
void CompareGrowth(Comparison& compare, const std::function<void()>& measure, void (*work)(CBenchGrid&))
{
    CStage stage, other;
    CBenchGrid large(stage), small(other);
    large.Fill(50000);
    small.Fill(10000);
    large.SetRedraw(FALSE); // as one does before many changes: painting the scroll bars would hide the rest
    small.SetRedraw(FALSE);
    compare.Rounds(3);
    compare.Ours([&] { work(large); });
    compare.Bare([&] { work(small); });
    measure();
}
} // namespace

static void MeasureFill1(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareFill(compare, measure, 1000);
}
static const Benchmark fill1("grid/fill/1000", 0.5, MeasureFill1);

static void MeasureFill2(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareFill(compare, measure, 10000);
}
static const Benchmark fill2("grid/fill/10000", 0.2, MeasureFill2);

static void MeasureFill3(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareFill(compare, measure, kMany);
}
static const Benchmark fill3("grid/fill/50000", 0.1, MeasureFill3);

static void MeasureBytes(Comparison& compare, const Benchmark::Measure& measure)
{
    Texts();
    CStage stage;
    CBenchGrid grid(stage);
    const size_t before = HeapBytes();
    grid.Fill(kMany);
    compare.Number(double(HeapBytes() - before) / (kMany * kCols));
    measure();
}
static const Benchmark bytes("grid/bytes_per_cell", 200, MeasureBytes);

static void MeasureRepaintBare(Comparison& compare, const Benchmark::Measure& measure)
{
    CStage stage;
    CBenchGrid grid(stage);
    grid.Fill(1000);
    for (int nCol = 0; nCol < kCols; ++nCol)
        grid.SetColumnWidth(nCol, kClient.cx / kCols, TRUE);
    CBareWindow bare(grid);
    compare.Ours([&] { grid.Repaint(); });
    compare.Bare([&] { bare.Repaint(); });
    measure();
}
static const Benchmark repaintBare("grid/repaint/bare_loop", 1.05, MeasureRepaintBare);

static void MeasureRepaintList(Comparison& compare, const Benchmark::Measure& measure)
{
    Pair pair;
    compare.Ours([&] { pair.grid.Repaint(); });
    compare.Bare([&] { pair.list.Repaint(); });
    measure();
}
// A bare loop over the same cells, above, takes as much: more than half of it is the system's writing of texts.
static const Benchmark repaintList("grid/repaint/list_view", 0.22, MeasureRepaintList);

/// The same long texts in columns that are too narrow for them, and in columns that are not.
static void MeasureRepaintLong(Comparison& compare, const Benchmark::Measure& measure)
{
    CStage stage, other;
    CBenchGrid narrow(stage), wide(other);
    for (CBenchGrid* const pGrid : {&narrow, &wide})
    {
        pGrid->Fill(100);
        for (int nRow = 0; nRow < 100; ++nRow)
            for (int nCol = 0; nCol < kCols; ++nCol)
            {
                pGrid->SetItemTextFmt(nRow, nCol, L"section %s", TextAt(nRow, nCol));
                pGrid->SetColumnWidth(nCol, pGrid == &wide ? 110 : 60, TRUE);
            }
    }
    compare.Ours([&] { narrow.Repaint(); });
    compare.Bare([&] { wide.Repaint(); });
    measure();
}
static const Benchmark repaintLong("grid/repaint/text_that_does_not_fit", 1, MeasureRepaintLong);

static void MeasureScrollLine(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareScroll(compare, measure, SB_LINEDOWN, SB_LINEUP, 1000);
}
// The bar's painting, which both have, is half of the step, and our repaint of the body nearly all the rest;
// the list view copies the screen instead.
static const Benchmark scrollLine("grid/scroll/line/1000", 1.45, MeasureScrollLine);

// A line of so many rows moves the thumb by less than a pixel: the bar need not be painted.
static void MeasureScrollLineOfMany(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareScroll(compare, measure, SB_LINEDOWN, SB_LINEUP, kMany);
}
static const Benchmark scrollLineOfMany("grid/scroll/line/50000", 0.8, MeasureScrollLineOfMany);

static void MeasureScrollPage(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareScroll(compare, measure, SB_PAGEDOWN, SB_PAGEUP, kMany);
}
// A page moves the thumb by a pixel: the bar is painted, and that is half of the step.
static const Benchmark scrollPage("grid/scroll/page/50000", 0.65, MeasureScrollPage);

// Line by line, with a message for each, beside twenty lines that are each brought to the screen.
static void MeasureEnsureVisible(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kRows = 10100, kFar = 10000, kLines = 20;
    CStage stage;
    CBenchGrid grid(stage);
    grid.Fill(kRows);
    compare.Ours(
        [&]
        {
            grid.EnsureVisible(kFar, 0);
            grid.EnsureVisible(0, 0);
            grid.UpdateWindow();
        });
    compare.Bare(
        [&]
        {
            for (const UINT nCode : {SB_LINEDOWN, SB_LINEUP})
                for (int nLine = 0; nLine < kLines; ++nLine)
                    grid.Scroll(nCode);
        });
    measure();
}
static const Benchmark ensureVisible("grid/scroll/to_10000_rows_away", 1, MeasureEnsureVisible);

// What a line's step is made of, each part beside the list view's whole step. The system's painting of the
// scroll bar is the same for both; beside it the grid repaints its body, where the list view copies the
// screen and repaints one row.
static void MeasureScrollBar(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareLineStep(compare, measure,
                    [](Pair& pair, UINT nCode)
                    {
                        const int nPos = nCode == SB_LINEDOWN ? 20 : 0;
                        pair.grid.SetScrollPos(SB_VERT, nPos, TRUE);
                    });
}
static const Benchmark scrollBar("grid/scroll/line/of_it_the_bar", 1, MeasureScrollBar);

static void MeasureScrollBody(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareLineStep(compare, measure,
                    [](Pair& pair, UINT)
                    {
                        pair.grid.Invalidate();
                        pair.grid.UpdateWindow();
                    });
}
static const Benchmark scrollBody("grid/scroll/line/of_it_repaint", 1, MeasureScrollBody);

static void MeasureScrollCopy(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareLineStep(compare, measure,
                    [](Pair& pair, UINT nCode)
                    {
                        const int nBy = nCode == SB_LINEDOWN ? -20 : 20;
                        ::ScrollWindowEx(pair.list, 0, nBy, nullptr, nullptr, nullptr, nullptr, 0);
                    });
}
static const Benchmark scrollCopy("grid/scroll/line/list_view_copy", 1, MeasureScrollCopy);

// At 10,000 rows, and in one round: for each comparison the list view looks both items up from the start of its
// list. Its time grows with the square, and 50,000 rows take it more than five minutes.
static void MeasureSortList(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kRows = 10000;
    CStage stage, other;
    CBenchGrid grid(stage);
    CBenchList list(other);
    grid.Fill(kRows);
    list.Fill(kRows);
    compare.Rounds(1);
    compare.Ours([&] { grid.SortTextItems(0, TRUE); });
    compare.Bare([&] { list.SortByText(); });
    measure();
}
static const Benchmark sortList("grid/sort/list_view/10000", 0.025, MeasureSortList);

static void MeasureSortBare(Comparison& compare, const Benchmark::Measure& measure)
{
    CStage stage;
    CBenchGrid grid(stage);
    std::vector<const std::wstring*> pointers;
    compare.Rounds(3);
    compare.Prepare(
        [&]
        {
            grid.DeleteAllItems();
            grid.Fill(kMany);
            pointers.clear();
            for (int nRow = 0; nRow < kMany; ++nRow)
                pointers.push_back(&Texts()[nRow * kCols]);
        });
    compare.Ours([&] { grid.SortTextItems(0, TRUE); });
    compare.Bare(
        [&]
        {
            std::sort(pointers.begin(), pointers.end(),
                      [](const auto* one, const auto* two) { return *one < *two; });
        });
    measure();
}
static const Benchmark sortBare("grid/sort/std_sort_of_pointers", 15, MeasureSortBare);

static void MeasureVirtualMillion(Comparison& compare, const Benchmark::Measure& measure)
{
    Texts();
    CStage stage;
    CBenchGrid grid(stage);
    const auto use = [&](int nRows)
    {
        grid.MakeVirtual(nRows);
        for (int nCol = 0; nCol < kCols; ++nCol)
            grid.SetColumnWidth(nCol, kClient.cx / kCols, TRUE);
        grid.Repaint();
        grid.Scroll(SB_BOTTOM);
        grid.Repaint();
    };
    compare.Ours([&] { use(1000000); });
    compare.Bare([&] { use(1000); });
    measure();
}
static const Benchmark virtualMillion("grid/virtual/million_rows", 1.2, MeasureVirtualMillion);

static void MeasureVirtualList(Comparison& compare, const Benchmark::Measure& measure)
{
    Texts();
    class COwner : public CStage
    {
        BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT*) override
        {
            auto& info = *reinterpret_cast<NMLVDISPINFOW*>(lParam);
            if (info.hdr.code == LVN_GETDISPINFOW && (info.item.mask & LVIF_TEXT))
                info.item.pszText = const_cast<wchar_t*>(TextAt(info.item.iItem, info.item.iSubItem));
            return TRUE;
        }
    } other;
    CStage stage;
    CBenchGrid grid(stage);
    grid.MakeVirtual(1000000);
    CBenchList list(other, LVS_OWNERDATA);
    list.SendMessage(LVM_SETITEMCOUNT, 1000000, LVSICF_NOINVALIDATEALL);
    for (int nCol = 0; nCol < kCols; ++nCol)
    {
        grid.SetColumnWidth(nCol, kClient.cx / kCols, TRUE);
        list.SetColumnWidth(nCol, kClient.cx / kCols);
    }
    compare.Ours([&] { grid.Repaint(); });
    compare.Bare([&] { list.Repaint(); });
    measure();
}
static const Benchmark virtualList("grid/virtual/repaint_list_view", 0.5, MeasureVirtualList);

static void MeasureDrawnLoad(Comparison& compare, const Benchmark::Measure& measure)
{
    wchar_t directory[MAX_PATH], path[MAX_PATH];
    ::GetTempPath(MAX_PATH, directory);
    ::GetTempFileName(directory, L"ow", 0, path);
    CStage stage, other;
    CBenchGrid drawn(stage), silent(other);
    drawn.Fill(10000);
    drawn.Save(path);
    silent.SetRedraw(FALSE);
    compare.Rounds(5);
    compare.Prepare([&] { drawn.Repaint(); });
    compare.Ours([&] { drawn.Load(path); });
    compare.Bare([&] { silent.Load(path); });
    measure();
    ::DeleteFile(path);
}
static const Benchmark drawnLoad("grid/drawing/load", 1.5, MeasureDrawnLoad);

static void MeasureGrowSelect(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareGrowth(compare, measure,
                  [](CBenchGrid& grid)
                  {
                      grid.SetSelectedRange(grid.GetCellRange());
                      grid.SetSelectedRange(-1, -1, -1, -1);
                  });
}
static const Benchmark growSelect("grid/growth/select_all_and_none", 5.5, MeasureGrowSelect);

static void MeasureGrowHeights(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareGrowth(compare, measure,
                  [](CBenchGrid& grid)
                  {
                      for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
                          grid.SetRowHeight(nRow, grid.GetRowHeight(nRow) ^ 1);
                  });
}
static const Benchmark growHeights("grid/growth/every_row_height", 5.5, MeasureGrowHeights);

static void MeasureGrowRows(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareGrowth(compare, measure,
                  [](CBenchGrid& grid)
                  {
                      for (int i = 0; i < 10000; ++i)
                          grid.InsertRow(L"new", 0);
                      for (int i = 0; i < 10000; ++i)
                          grid.DeleteRow(0);
                  });
}
static const Benchmark growRows("grid/growth/rows_at_the_front", 5.5, MeasureGrowRows);

/// Work on ten thousand rows with drawing on, beside the same with drawing off. No message is pumped meanwhile.
static void CompareDrawing(Comparison& compare, const Benchmark::Measure& measure, int nRows,
                           void (*work)(CBenchGrid&))
{
    CStage stage, other;
    CBenchGrid drawn(stage), silent(other);
    compare.Rounds(3);
    compare.Prepare(
        [&]
        {
            for (CBenchGrid* const pGrid : {&drawn, &silent})
            {
                pGrid->SetRedraw(TRUE);
                pGrid->DeleteAllItems();
                pGrid->Fill(nRows);
                pGrid->Repaint();
            }
            silent.SetRedraw(FALSE);
        });
    compare.Ours([&] { work(drawn); });
    compare.Bare([&] { work(silent); });
    measure();
}

static void MeasureDrawnInsert(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareDrawing(compare, measure, 1,
                   [](CBenchGrid& grid)
                   {
                       for (int i = 0; i < 10000; ++i)
                           grid.InsertRow(L"new");
                   });
}
static const Benchmark drawnInsert("grid/drawing/insert_rows", 3, MeasureDrawnInsert);

static void MeasureDrawnDelete(Comparison& compare, const Benchmark::Measure& measure)
{
    CompareDrawing(compare, measure, 10000, [](CBenchGrid& grid) { grid.DeleteNonFixedRows(); });
}
static const Benchmark drawnDelete("grid/drawing/delete_rows", 3, MeasureDrawnDelete);
