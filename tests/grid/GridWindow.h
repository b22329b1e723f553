#pragma once
// A window with a grid in it for tests, and a parent that writes down what the grid tells it.

#include <DialogControlsOW.h>

#include "Testing.h"

/// A grid whose inner operations a test may call.
class OpenGrid : public CGridCtrl
{
public:
    using CGridCtrl::CGridCtrl;

    using CGridCtrl::ClearCells, CGridCtrl::EndEditing, CGridCtrl::GetCellRangeRect, CGridCtrl::GetMouseMode,
        CGridCtrl::GetPointClicked, CGridCtrl::GetScrollPos32, CGridCtrl::GetTopleftNonFixedCell,
        CGridCtrl::GetUnobstructedNonFixedCellRange, CGridCtrl::GetVisibleNonFixedCellRange,
        CGridCtrl::Initialise, CGridCtrl::InvalidateCellRect, CGridCtrl::IsVisibleHScroll,
        CGridCtrl::IsVisibleVScroll, CGridCtrl::m_nHScrollMax, CGridCtrl::m_nTimerId,
        CGridCtrl::m_nVScrollMax, CGridCtrl::m_nWheelLines, CGridCtrl::m_selectionStart, CGridCtrl::OnDraw,
        CGridCtrl::OnEditCell, CGridCtrl::SetScrollPos32;

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
    std::vector<CCellRange> hints;         ///< ranges of the cache hints

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
        if (header.code == LVN_ODCACHEHINT)
            hints.push_back(reinterpret_cast<GridCacheHint&>(header).range);
        else if (const char* name = NameOf(header.code))
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

/// The middle of a cell in the grid's client area.
inline CPoint MiddleOf(CGridCtrl& grid, int nRow, int nCol)
{
    CRect rect;
    return grid.GetCellRect(nRow, nCol, &rect) ? rect.CenterPoint() : CPoint(-1, -1);
}

/// One window for all tests of the program, with nothing in it: a new one for each would take seconds to go
/// again.
inline GridParent& SharedParent()
{
    static GridParent* const pParent = new GridParent; // closed with the program
    if (!pParent->m_hWnd)
        pParent->Open();
    pParent->calls.clear();
    pParent->hints.clear();
    pParent->answer = nullptr;
    pParent->commands = 0;
    return *pParent;
}
