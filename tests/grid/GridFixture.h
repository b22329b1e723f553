#pragma once
// A visible grid as GridWindow.h tells, ready for real input.

#include "GridWindow.h"

/// A cell that writes down what the grid tells it, as "click 5,3" with the point in the cell.
class NotedCell : public CGridCell
{
    DECLARE_DYNCREATE(NotedCell)
public:
    static inline std::vector<std::string> notes;
    static std::vector<std::string> Take() { return std::exchange(notes, {}); }
    static inline bool notesDraws = false;

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override
    {
        if (notesDraws)
            Note("draw", CPoint(nRow, nCol));
        return CGridCell::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
    }
    void OnMouseOver() override { notes.push_back("over"); }
    void OnClick(CPoint point) override { Note("click", point); }
    void OnClickDown(CPoint point) override { Note("down", point); }
    void OnRClick(CPoint point) override { Note("rclick", point); }
    void OnDblClick(CPoint point) override { Note("dblclick", point); }
    BOOL OnSetCursor() override
    {
        notes.push_back("cursor");
        ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
        return TRUE;
    }

private:
    static void Note(const char* name, CPoint point)
    {
        notes.push_back(std::string(name) + ' ' + std::to_string(point.x) + ',' + std::to_string(point.y));
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
    /// Presses on one point of the grid, moves to another and lets go.
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
    /// What a change leaves to be repainted.
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
