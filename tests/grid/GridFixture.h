#pragma once
// A window with a grid in it, ready for real input, and a parent that writes down what the grid tells it.

#include <DialogControlsOW.h>

#include "Testing.h"

/// A grid whose inner operations a test may call.
class OpenGrid : public CGridCtrl
{
public:
    using CGridCtrl::CGridCtrl;

    using CGridCtrl::ClearCells, CGridCtrl::EndEditing, CGridCtrl::GetMouseMode, CGridCtrl::GetScrollPos32,
        CGridCtrl::GetTopleftNonFixedCell, CGridCtrl::GetUnobstructedNonFixedCellRange,
        CGridCtrl::GetVisibleNonFixedCellRange, CGridCtrl::InvalidateCellRect, CGridCtrl::IsVisibleHScroll,
        CGridCtrl::IsVisibleVScroll, CGridCtrl::m_nHScrollMax, CGridCtrl::m_nTimerId,
        CGridCtrl::m_nVScrollMax, CGridCtrl::m_nWheelLines, CGridCtrl::m_selectionStart, CGridCtrl::OnDraw,
        CGridCtrl::OnEditCell, CGridCtrl::ResetScrollBars, CGridCtrl::SetScrollPos32;

    std::vector<std::string> scrolls; ///< the scroll messages, as "v1" for one line down
    CCellID tracked;                  ///< the first of the body where a thumb's move has it repainted

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_VSCROLL || message == WM_HSCROLL)
            scrolls.push_back((message == WM_VSCROLL ? 'v' : 'h') + std::to_string(LOWORD(wParam)));
        const LRESULT result = CGridCtrl::WindowProc(message, wParam, lParam);
        if ((message == WM_VSCROLL || message == WM_HSCROLL) && LOWORD(wParam) == SB_THUMBTRACK &&
            GetUpdateRect(nullptr))
        {
            tracked = GetTopleftNonFixedCell();
            UpdateWindow();
        }
        return result;
    }
};

constexpr UINT kGridId = 77;

/// Writes down each notification as "click 1,2", and answers it as told.
class GridParent : public CWnd
{
public:
    using Calls = std::vector<std::string>;
    Calls calls;
    int commands = 0;                      ///< WM_COMMAND of the grid
    std::function<LRESULT(NMHDR&)> answer; ///< what to answer; without one 0

    bool Open(int nWidth = 420, int nHeight = 300, bool bVisible = true)
    {
        const DWORD dwStyle = WS_POPUP | WS_BORDER | WS_CLIPCHILDREN | (bVisible ? WS_VISIBLE : 0);
        return CreateEx(0, AfxRegisterWndClass(0), L"grid", dwStyle,
                        CRect(CPoint(200, 150), CSize(nWidth, nHeight)), nullptr, 0) != FALSE;
    }
    Calls Take() { return std::exchange(calls, {}); }

    /// Does something whenever the grid tells of this, and answers so.
    void On(UINT code, const std::function<void()>& work, LRESULT result = 0)
    {
        answer = [=](NMHDR& header) -> LRESULT
        {
            if (header.code != code)
                return 0;
            if (work)
                work();
            return result;
        };
    }

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) override
    {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        if (const char* name = NameOf(header.code))
        {
            const auto& record = reinterpret_cast<GridNotify&>(header);
            calls.push_back(std::string(name) + ' ' + std::to_string(record.iRow) + ',' +
                            std::to_string(record.iColumn));
        }
        *pResult = answer ? answer(header) : 0;
        return TRUE;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM) override
    {
        commands += wParam == kGridId;
        return TRUE;
    }

private:
    static const char* NameOf(UINT code)
    {
        static const std::map<UINT, const char*> names = {
            {NM_CLICK, "click"},          {NM_DBLCLK, "dblclk"},
            {NM_RCLICK, "rclick"},        {LVN_ITEMCHANGING, "changing"},
            {LVN_ITEMCHANGED, "changed"}, {LVN_BEGINLABELEDITW, "begin"},
            {LVN_ENDLABELEDITW, "end"},   {UINT(GVN_CHECKCLICKED), "check"}};
        const auto found = names.find(code);
        return found == names.end() ? nullptr : found->second;
    }
};

/// What tests of a plain grid start from: 21 rows of 20 pixels, 7 columns of 60, the first of each fixed,
/// each cell with its place as text, in a client area of 300 by 200 pixels.
constexpr int kRows = 21, kCols = 7, kRowHeight = 20, kColWidth = 60;

inline void FillWithPlaces(CGridCtrl& grid)
{
    for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
        for (int nCol = 0; nCol < grid.GetColumnCount(); ++nCol)
            grid.SetItemTextFmt(nRow, nCol, L"%d/%d", nRow, nCol);
    grid.SetModified(FALSE);
}

inline void SetSizes(CGridCtrl& grid)
{
    for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
        grid.SetRowHeight(nRow, kRowHeight);
    for (int nCol = 0; nCol < grid.GetColumnCount(); ++nCol)
        grid.SetColumnWidth(nCol, kColWidth, TRUE);
}

inline bool PlaceGrid(CGridCtrl& grid, GridParent& parent, CSize client = CSize(300, 200))
{
    CRect rect(CPoint(10, 10), client);
    ::AdjustWindowRectEx(&rect, WS_CHILD, FALSE, WS_EX_CLIENTEDGE);
    rect.OffsetRect(10 - rect.left, 10 - rect.top);
    return grid.Create(rect, &parent, kGridId, WS_CHILD | WS_VISIBLE | WS_TABSTOP) != FALSE;
}

inline CPoint MiddleOf(CGridCtrl& grid, int nRow, int nCol)
{
    CRect rect;
    return grid.GetCellRect(nRow, nCol, &rect) ? rect.CenterPoint() : CPoint(-1, -1);
}

/// One window for all tests of the program: a new one for each would take seconds to go again.
inline GridParent& SharedParent()
{
    static GridParent* const pParent = new GridParent; // closed with the program
    if (!pParent->m_hWnd)
        pParent->Open();
    pParent->calls.clear();
    pParent->answer = nullptr;
    pParent->commands = 0;
    return *pParent;
}

/// A cell that writes down what it is told among what the parent hears: "click 5,3", the point in the cell.
class NotedCell : public CGridCell
{
    DECLARE_DYNCREATE(NotedCell)
public:
    static inline bool notesDraws = false;

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override
    {
        if (notesDraws)
            Note("draw", CPoint(nRow, nCol));
        return CGridCell::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
    }
    void OnMouseOver() override { Note("over", CPoint()); }
    void OnClick(CPoint point) override { Note("click", point); }
    void OnClickDown(CPoint point) override { Note("down", point); }
    void OnRClick(CPoint point) override { Note("rclick", point); }
    void OnDblClick(CPoint point) override { Note("dblclick", point); }
    BOOL OnSetCursor() override { return ::SetCursor(::LoadCursor(nullptr, IDC_CROSS)), TRUE; }

private:
    void Note(const char* name, CPoint point)
    {
        static_cast<GridParent&>(*GetGrid()->GetParent())
            .calls.push_back(std::string(name) + ' ' + std::to_string(point.x) + ',' +
                             std::to_string(point.y));
    }
};

template <class Grid>
class GridTestOf : public ::testing::Test
{
protected:
    using Calls = GridParent::Calls;

    void SetUp() override
    {
        grid.SetRowCount(kRows);
        grid.SetColumnCount(kCols);
        grid.SetFixedRowCount(1);
        grid.SetFixedColumnCount(1);
        ASSERT_TRUE(PlaceGrid(grid, parent));
        SetSizes(grid);
        FillWithPlaces(grid);
        ASSERT_TRUE(owtest::Activate(parent));
        owtest::MoveTo(parent, CPoint(2, 2)); // off the grid
        grid.UpdateWindow();
        owtest::Pump();
        parent.Take();
        parent.commands = 0;
    }
    void TearDown() override { grid.DestroyWindow(); }

    void ClickCell(int nRow, int nCol)
    {
        owtest::Click(grid, MiddleOf(grid, nRow, nCol));
        owtest::Pump();
    }
    void Drag(CPoint from, CPoint to)
    {
        owtest::ButtonDown(grid, from);
        owtest::MoveTo(grid, to);
        owtest::ButtonUp();
        owtest::Pump();
    }
    /// Past where the cursor is held during a drag.
    void DragByMessages(CPoint from, CPoint to)
    {
        Send(WM_MOUSEMOVE, from);
        Send(WM_LBUTTONDOWN, from, MK_LBUTTON);
        Send(WM_MOUSEMOVE, to, MK_LBUTTON);
        Send(WM_LBUTTONUP, to);
    }
    void Send(UINT message, CPoint point, WPARAM keys = 0)
    {
        grid.SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }
    /// With the modifiers that a mouse message carries; holding keys is no matter of the grid.
    void SendClick(CPoint point, WPARAM modifiers = 0)
    {
        Send(WM_LBUTTONDOWN, point, MK_LBUTTON | modifiers);
        Send(WM_LBUTTONUP, point, modifiers);
    }
    void EndByKey(WORD key)
    {
        owtest::Press(key);
        EXPECT_TRUE(EditorCloses());
    }
    void EndByFocus()
    {
        grid.SetFocus();
        EXPECT_TRUE(EditorCloses());
    }
    /// Focus and selection, what goes on, and what the parent and the bars were told since the last time:
    /// "3,2 [3,2-4,2]=2 mode 4 timer capture changed 3,2 v1", and "#" for a command.
    std::string Seen()
    {
        owtest::Pump();
        std::ostringstream seen;
        seen << grid.GetFocusCell().row << ',' << grid.GetFocusCell().col;
        if (const CCellRange all = Selected(); grid.GetSelectedCount() > 0)
            seen << " [" << all.minRow << ',' << all.minCol << '-' << all.maxRow << ',' << all.maxCol
                 << "]=" << grid.GetSelectedCount();
        if (grid.GetMouseMode() != 0)
            seen << " mode " << grid.GetMouseMode();
        seen << (grid.m_nTimerId ? " timer" : "") << (::GetCapture() ? " capture" : "");
        for (const auto* told : {&parent.calls, &grid.scrolls})
            for (const std::string& call : *told)
                seen << ' ' << call;
        for (; parent.commands > 0; --parent.commands)
            seen << " #";
        parent.calls.clear();
        grid.scrolls.clear();
        return seen.str();
    }
    void MakeReadOnly(int nRow, int nCol)
    {
        grid.SetItemState(nRow, nCol, grid.GetItemState(nRow, nCol) | CELL_READONLY);
    }
    bool EditorOpens(int nRow, int nCol)
    {
        return owtest::PumpUntil([&]
                                 { return grid.IsItemEditing(nRow, nCol) && ::GetFocus() != grid.m_hWnd; });
    }
    bool EditorCloses()
    {
        return owtest::PumpUntil([&] { return grid.GetDlgItem(InPlaceControlId) == nullptr; });
    }
    CRect CellRect(int nRow, int nCol)
    {
        CRect rect;
        EXPECT_TRUE(grid.GetCellRect(nRow, nCol, &rect));
        return rect;
    }
    CRect Client()
    {
        CRect rect;
        grid.GetClientRect(&rect);
        return rect;
    }
    CRect Repainted(const std::function<void()>& change)
    {
        CRect rect;
        grid.UpdateWindow();
        change();
        grid.GetUpdateRect(&rect);
        return rect;
    }
    std::wstring Text(int nRow, int nCol) { return grid.GetItemText(nRow, nCol).GetString(); }
    CCellRange Selected() { return grid.GetSelectedCellRange(); }

    GridParent& parent = SharedParent();
    Grid grid;
};
using GridTest = GridTestOf<OpenGrid>;
