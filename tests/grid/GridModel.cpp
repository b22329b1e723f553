#include "GridModel.h"

#include "GridFixture.h"

#include <unordered_map>

namespace
{
class CCountedCell : public CGridCell
{
    DECLARE_DYNCREATE(CCountedCell)
public:
    CCountedCell() { ++s_alive; }
    ~CCountedCell() override { --s_alive; }
    static inline int s_alive = 0;
};
IMPLEMENT_DYNCREATE(CCountedCell, CGridCell)

CRuntimeClass* const kKinds[] = {RUNTIME_CLASS(CGridCell), RUNTIME_CLASS(CLimitedTextCell),
                                 RUNTIME_CLASS(CLimitedIntCell), RUNTIME_CLASS(CGridCellCombo),
                                 RUNTIME_CLASS(CCountedCell)};

bool IsA(int kind, CRuntimeClass* pClass)
{
    return kKinds[kind] == pClass;
}

struct ModelCell
{
    int kind; ///< index into kKinds
    std::wstring text = {};
    LPARAM data = 0;
    DWORD state = 0; ///< as far as its place does not tell it
};

/// A row or a column. It goes by its id, wherever it comes to stand.
struct Line
{
    int id;
    int size;
};

/// What the grid must hold. What is the same for rows and for columns asks which of them is meant.
class Model
{
public:
    std::vector<Line> lines[2]; ///< columns, rows
    int fixed[2] = {};
    CCellID focus;
    int sortColumn = -1;
    bool modified = false;
    int newKind; ///< of cells made from now on

    explicit Model(int kind = 0) : newKind(kind) {}

    int Count(bool ofRows) const { return static_cast<int>(lines[ofRows].size()); }
    int RowCount() const { return Count(true); }
    int ColCount() const { return Count(false); }
    bool Has(int r, int c) const { return r >= 0 && r < RowCount() && c >= 0 && c < ColCount(); }
    bool HasBody() const { return RowCount() > fixed[true] && ColCount() > fixed[false]; }
    /// Cells come with the younger of their two lines.
    ModelCell& At(int r, int c)
    {
        const int row = lines[true][r].id, col = lines[false][c].id;
        return m_cells.try_emplace(LONGLONG(row) << 32 | col, ModelCell{m_kinds[std::max(row, col)]})
            .first->second;
    }
    DWORD StateOf(int r, int c)
    {
        return At(r, c).state | (r < fixed[true] ? CELL_FIXED | CELL_FIXEDROW : 0) |
               (c < fixed[false] ? CELL_FIXED | CELL_FIXEDCOL : 0) |
               (focus == CCellID(r, c) ? CELL_FOCUSED : 0);
    }
    CCellID RaisedToBody(int r, int c) const
    {
        return CCellID(std::max(r, fixed[true]), std::max(c, fixed[false]));
    }

    void Select(const CCellRange& range, bool select = true)
    {
        range.ForEach([&](int r, int c)
                      { At(r, c).state = (At(r, c).state & ~CELL_SELECTED) | (select ? CELL_SELECTED : 0); });
    }
    /// And nothing without a range.
    void SelectOnly(const CCellRange& range = CCellRange(0, 0, -1, -1))
    {
        Select(CCellRange(0, 0, RowCount() - 1, ColCount() - 1), false);
        Select(range);
    }
    /// Changed from now on, or unchanged. Both end the order.
    void SetModified(bool isModified)
    {
        modified = isModified;
        sortColumn = -1;
        if (isModified)
            return;
        for (auto& cell : m_cells)
            cell.second.state &= ~CELL_MODIFIED;
    }
    void Reset()
    {
        SelectOnly();
        focus = CCellID();
    }
    void Resize(bool ofRows, int n, int size)
    {
        SetModified(true);
        while (Count(ofRows) < n)
            lines[ofRows].push_back(NewLine(size));
        lines[ofRows].resize(n);
        fixed[ofRows] = std::min(fixed[ofRows], n);
        if (!Has(focus.row, focus.col))
            focus = CCellID();
    }
    void Insert(bool row, int at, int size)
    {
        Reset();
        SetModified(true);
        lines[row].insert(lines[row].begin() + at, NewLine(size));
    }
    void Remove(bool row, int at)
    {
        Reset();
        SetModified(true);
        fixed[row] -= at < fixed[row];
        lines[row].erase(lines[row].begin() + at);
    }

private:
    Line NewLine(int size)
    {
        m_kinds.push_back(newKind);
        return {static_cast<int>(m_kinds.size()) - 1, size};
    }

    std::vector<int> m_kinds; ///< of the cells that a line has brought, by its id
    std::unordered_map<LONGLONG, ModelCell> m_cells;
};

bool s_bParentRefuses = false; ///< the text of an edit

class GridSequence : public owtest::Sequence
{
public:
    explicit GridSequence(const SequenceOptions& options)
        : m_withInput(options.withInput), m_mixedCells(options.mixedCells), m_pGrid(options.makeGrid())
    {
        m_parent.answer = [](NMHDR& header)
        { return header.code == LVN_ENDLABELEDITW && s_bParentRefuses ? -1 : 0; };
        m_parent.Open(360, 280, m_withInput);
        PlaceGrid(m_grid, m_parent, CSize(300, 220));
        m_height = m_grid.GetDefCellHeight();
        m_width = m_grid.GetDefCellWidth();
        if (m_withInput)
            Expect(owtest::Activate(m_parent), "the window does not become active");
    }
    ~GridSequence() override { m_parent.DestroyWindow(); }

private:
    /// An index, now and then one out of range on either side.
    int Index(int count) { return Pick(12) == 0 ? Pick(count + 4) - 2 : Pick(count); }
    std::wstring Text() { return OneOf(std::array{L"", L"a", L"b", L"IPE 200", L"12", L"7", L"Zeta"}); }
    void Step() override
    {
        if (m_model.ColCount() > 12 || m_model.RowCount() > 40)
            return SetCounts();
        if (m_mixedCells && Pick(10) == 0)
            return SetKind();
        if (m_withInput && Pick(4) == 0)
            return Click();
        using Self = GridSequence;
        static constexpr void (Self::*kOperations[])() = {
            &Self::SetCounts,   &Self::SetFixed,    &Self::Insert,  &Self::Insert,
            &Self::Delete,      &Self::ChangeItem,  &Self::SetSize, &Self::ChangeItem,
            &Self::SetFocus,    &Self::SetFocus,    &Self::Sort,    &Self::Scroll,
            &Self::SelectRange, &Self::SelectRange, &Self::Key,     &Self::Key};
        (this->*OneOf(kOperations))();
    }

    void SetCounts()
    {
        const bool rows = Pick(2) != 0;
        const int n = Pick(rows ? 18 : 9);
        Say(rows ? "SetRowCount" : "SetColumnCount", n);
        Expect(rows ? m_grid.SetRowCount(n) : m_grid.SetColumnCount(n), "setting the count answers 0");
        if (n != m_model.Count(rows))
            Resize(rows, n);
    }

    void Resize(bool rows, int n) { m_model.Resize(rows, n, rows ? m_height : m_width); }

    void SetFixed()
    {
        const int n = Pick(3);
        const bool rows = Pick(2) != 0;
        Say(rows ? "SetFixedRowCount" : "SetFixedColumnCount", n);
        Expect(rows ? m_grid.SetFixedRowCount(n) : m_grid.SetFixedColumnCount(n),
               "setting the fixed count answers 0");
        if (n == m_model.fixed[rows])
            return;
        if (n > m_model.Count(rows))
            Resize(rows, n);
        m_model.Reset();
        m_model.fixed[rows] = n;
    }

    void Insert()
    {
        const bool row = Pick(2) != 0;
        const int count = m_model.Count(row), at = Pick(3) ? Index(count) : -1;
        const std::wstring heading = Text();
        Say(row ? "InsertRow" : "InsertColumn", at);
        // The count itself is a place for columns only.
        const bool wrong = at >= 0 && (at < m_model.fixed[row] || at > count - row);
        const int expected = wrong ? -1 : at < 0 ? count : at;
        Expect((row ? m_grid.InsertRow(heading.c_str(), at)
                    : m_grid.InsertColumn(heading.c_str(), GV_HEADING_FORMAT, at)) == expected,
               "inserting answers another index");
        if (wrong)
            return;
        if (m_model.Count(!row) == 0)
            Resize(!row, 1);
        m_model.Insert(row, expected, row ? m_grid.GetRowHeight(expected) : m_grid.GetColumnWidth(expected));
        ModelCell& head = row ? m_model.At(expected, 0) : m_model.At(0, expected);
        head.text = heading;
        head.state = CELL_MODIFIED;
    }

    void Delete()
    {
        const int what = Pick(16);
        if (what > 1)
            return DeleteOne(what < 9);
        Say(what ? "DeleteNonFixedRows" : "DeleteAllItems");
        Expect(what ? m_grid.DeleteNonFixedRows() : m_grid.DeleteAllItems(), "deleting all answers 0");
        m_model.Reset();
        const int rows = what ? m_model.fixed[true] : 0;
        if (!what)
            m_model = Model(m_model.newKind);
        if (!what || m_model.RowCount() > rows)
            Resize(true, rows);
    }

    void DeleteOne(bool row)
    {
        const int at = Index(m_model.Count(row));
        Say(row ? "DeleteRow" : "DeleteColumn", at);
        const bool exists = at >= 0 && at < m_model.Count(row);
        Expect((row ? m_grid.DeleteRow(at) : m_grid.DeleteColumn(at)) == BOOL(exists),
               "deleting answers wrong");
        if (exists)
            m_model.Remove(row, at);
    }

    /// Of one cell, or of all that are made from now on.
    void SetKind()
    {
        const int kind = Pick(std::size(kKinds)), r = Index(m_model.RowCount()),
                  c = Index(m_model.ColCount());
        const bool exists = m_model.Has(r, c), ofNew = Pick(2) != 0;
        Say(ofNew ? "SetDefaultCellType" : "SetCellType", r, c, kind);
        if (ofNew)
        {
            m_model.newKind = kind;
            return Expect(m_grid.SetDefaultCellType(kKinds[kind]), "SetDefaultCellType answers 0");
        }
        Expect(m_grid.SetCellType(r, c, kKinds[kind]) == BOOL(exists), "SetCellType answers wrong");
        if (exists)
            m_model.At(r, c).kind = kind;
    }

    void ChangeItem()
    {
        const int r = Index(m_model.RowCount()), c = Index(m_model.ColCount()), what = Pick(6);
        const BOOL exists = m_model.Has(r, c);
        ModelCell missing{0};
        ModelCell& cell = exists ? m_model.At(r, c) : missing;
        Say("change item", r, c, what);
        if (what < 3)
        {
            cell.text = what < 2 ? Text() : cell.text;
            cell.data = what < 2 ? cell.data : Pick(100);
            Expect((what < 2 ? m_grid.SetItemText(r, c, cell.text.c_str())
                             : m_grid.SetItemData(r, c, cell.data)) == exists,
                   "changing an item answers wrong");
            Changed(r, c);
        }
        else if (what == 5)
        {
            m_grid.SetModified(FALSE);
            m_model.SetModified(false);
        }
        else if (exists)
        {
            const DWORD bit = what == 3 ? CELL_READONLY : CELL_SELECTED;
            m_grid.SetItemState(r, c, m_grid.GetItemState(r, c) ^ bit);
            cell.state ^= bit;
        }
    }

    void Changed(int r, int c)
    {
        if (!m_model.Has(r, c))
            return;
        m_model.At(r, c).state |= CELL_MODIFIED;
        m_model.modified = true;
        if (c == m_model.sortColumn)
            m_model.sortColumn = -1;
    }

    void SetSize()
    {
        const int size = Pick(5) == 0 ? 0 : 10 + Pick(50);
        const bool row = Pick(2) != 0;
        const int at = Index(m_model.Count(row));
        const bool exists = at >= 0 && at < m_model.Count(row);
        Say(row ? "SetRowHeight" : "SetColumnWidth", at, size);
        Expect((row ? m_grid.SetRowHeight(at, size) : m_grid.SetColumnWidth(at, size)) == BOOL(exists),
               "setting the size answers wrong");
        if (exists)
            m_model.lines[row][at].size = size;
    }

    void SetFocus()
    {
        const bool none = !m_model.HasBody() || Pick(8) == 0;
        const int r = none ? -1 : Pick(m_model.RowCount()), c = none ? -1 : Pick(m_model.ColCount());
        Say("SetFocusCell", r, c);
        Expect(m_grid.SetFocusCell(r, c) == m_model.focus, "SetFocusCell answers another old focus");
        m_model.focus = none ? CCellID() : m_model.RaisedToBody(r, c);
    }

    void SelectRange()
    {
        const int r1 = Pick(m_model.RowCount() + 1) - 1, r2 = Pick(m_model.RowCount() + 1);
        const int c1 = Pick(m_model.ColCount() + 1) - 1, c2 = Pick(m_model.ColCount() + 1);
        const bool select = Pick(4) != 0;
        const bool atOnce = Pick(4) == 0;
        Say("SetSelectedRange", r1, c1, r2, c2, select, atOnce);
        m_grid.SetSelectedRange(r1, c1, r2, c2, atOnce, select);
        if (select)
            m_model.SelectOnly();
        const CCellID from = m_model.RaisedToBody(r1, c1), to = m_model.RaisedToBody(r2, c2);
        if (r1 >= 0 && c1 >= 0 && m_model.Has(to.row, to.col))
            m_model.Select(CCellRange(from.row, from.col, to.row, to.col), select);
    }

    void Sort()
    {
        if (m_model.ColCount() == 0)
            return;
        const int c = Pick(m_model.ColCount());
        const bool ascending = Pick(2) != 0;
        Say("SortTextItems", c, ascending);
        const bool enough = m_model.RowCount() - m_model.fixed[true] > 1;
        std::map<CGridCellBase*, Line> rows; // go by their first cell
        for (int r = m_model.fixed[true]; r < m_model.RowCount(); ++r)
            rows[m_grid.GetCell(r, 0)] = m_model.lines[true][r];
        Expect((m_grid.SortTextItems(c, ascending) != FALSE) == enough, "SortTextItems answers wrong");
        TopLeft(TRUE); // a sort leaves the view at its row, whatever that is now high
        m_model.Reset();
        m_model.sortColumn = c;

        for (int r = m_model.fixed[true]; r < m_model.RowCount(); ++r)
        {
            m_model.lines[true][r] = rows[m_grid.GetCell(r, 0)];
            const auto &text = m_model.At(r, c).text,
                       &above = m_model.At(std::max(r - 1, m_model.fixed[true]), c).text;
            Expect(ascending ? above <= text : above >= text, "the rows are not in order");
        }
    }

    bool Shows(bool row, int i)
    {
        return i >= m_model.fixed[row] && i < m_model.Count(row) && m_model.lines[row][i].size > 0;
    }

    void Key()
    {
        static constexpr UINT kKeys[] = {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_TAB};
        const UINT key = kKeys[Pick(std::size(kKeys))];
        Say("key", key);
        m_grid.SendMessage(WM_KEYDOWN, key, 1);
        if (!m_model.Has(m_model.focus.row, m_model.focus.col))
            return;
        const bool rows = key == VK_UP || key == VK_DOWN;
        const int step = key == VK_UP || key == VK_LEFT ? -1 : 1;
        CCellID next = m_model.focus;
        int& moved = rows ? next.row : next.col;
        int i = moved + step;
        if (key == VK_TAB && i == m_model.ColCount() && next.row < m_model.RowCount() - 1)
        {
            ++next.row;
            i = m_model.fixed[false];
        }
        while (i >= m_model.fixed[rows] && i < m_model.Count(rows) && !Shows(rows, i))
            i += step;
        if (Shows(rows, i))
            moved = i;
        if (next == m_model.focus)
            return;
        m_model.focus = next;
        m_model.SelectOnly(CCellRange(next.row, next.col, next.row, next.col));
    }

    void Scroll()
    {
        const int code = Pick(8);
        const bool vertical = Pick(2) != 0;
        Say(vertical ? "scroll vertically" : "scroll sideways", code);
        m_grid.SendMessage(vertical ? WM_VSCROLL : WM_HSCROLL, code);
    }

    /// A press and release in the middle of a cell, which may start an edit.
    void Click()
    {
        const CCellID& focus = m_model.focus;
        const bool again = Pick(3) == 0 && m_model.Has(focus.row, focus.col);
        const int r = again ? focus.row : Pick(m_model.RowCount());
        const int c = again ? focus.col : Pick(m_model.ColCount());
        const CPoint point = MiddleOf(m_grid, r, c);
        CRect client;
        m_grid.GetClientRect(client);
        if (!client.PtInRect(point) || m_model.lines[true][r].size < 12 || m_model.lines[false][c].size < 12)
            return;
        Expect(m_grid.GetCellFromPt(point) == CCellID(r, c), "the cell at a point");
        Say("click", r, c);
        const bool edits = m_model.focus == CCellID(r, c) && !(m_model.At(r, c).state & CELL_READONLY);
        m_grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        m_grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        if (edits)
            EndEdit(r, c);
        else
            Clicked(r, c);
        owtest::Pump();
    }

    void Clicked(int r, int c)
    {
        if (!(m_model.At(r, c).state & CELL_SELECTED))
            m_model.focus = m_model.HasBody() ? m_model.RaisedToBody(r, c) : CCellID();
        const CCellID first = m_model.RaisedToBody(r, c);
        m_model.SelectOnly(CCellRange(first.row, first.col,
                                      r < m_model.fixed[true] ? m_model.RowCount() - 1 : r,
                                      c < m_model.fixed[false] ? m_model.ColCount() - 1 : c));
    }

    void EndEdit(int r, int c)
    {
        CWnd* const editor = m_grid.GetDlgItem(InPlaceControlId);
        if (!editor || !m_grid.IsItemEditing(r, c))
            return Problem("no editor on the focus cell");
        if (const HWND focus = ::GetFocus(); focus != editor->m_hWnd && !::IsChild(editor->m_hWnd, focus))
            return Problem("the editor has not got the focus");
        ModelCell& cell = m_model.At(r, c);
        const std::wstring text = Text();
        const int way = Pick(4);
        Say("edit ends by way", way);
        s_bParentRefuses = way == 1;
        editor->SetWindowText(text.c_str());
        const UINT message = IsA(cell.kind, RUNTIME_CLASS(CGridCellCombo)) ? WM_KEYUP : WM_CHAR;
        if (way == 0)
            editor->SendMessage(message, VK_ESCAPE);
        else if (way == 3)
            m_parent.SetFocus();
        else
            editor->SendMessage(message, VK_RETURN);
        if (way == 0 || text == cell.text)
            return;
        // Cell and parent may refuse it: the old text comes back, and the cell stays marked.
        const bool isNumber = !text.empty() && text.find_first_not_of(L"0123456789") == std::wstring::npos;
        if (way != 1 && (isNumber || !IsA(cell.kind, RUNTIME_CLASS(CLimitedIntCell))))
            cell.text = text;
        Changed(r, c);
    }

    void Check() override
    {
        const CCellID counts(m_model.RowCount(), m_model.ColCount()),
            fixed(m_model.fixed[true], m_model.fixed[false]);
        if (CCellID(m_grid.GetRowCount(), m_grid.GetColumnCount()) != counts)
            return Problem("counts of rows and columns");
        Expect(CCellID(m_grid.GetFixedRowCount(), m_grid.GetFixedColumnCount()) == fixed, "fixed counts");
        Expect(m_grid.GetFocusCell() == m_model.focus, "focus");
        Expect(m_grid.GetSortColumn() == m_model.sortColumn, "sort column");
        Expect((m_grid.GetModified() != 0) == m_model.modified, "whether it is modified");
        Expect((m_grid.*&OpenGrid::GetMouseMode)() == 0, "mouse mode");
        Expect(!m_grid.GetDlgItem(InPlaceControlId), "an editor is left");
        CheckCells();
        CheckSizes();
        CheckTopLeft();
    }

    void CheckCells()
    {
        int selected = 0, counted = 0;
        m_grid.GetCellRange().ForEach(
            [&](int r, int c)
            {
                CGridCellBase* const cell = m_grid.GetCell(r, c);
                const ModelCell& told = m_model.At(r, c);
                if (!cell || told.text != cell->GetText() || told.data != cell->GetData() ||
                    cell->GetState() != m_model.StateOf(r, c) || !IsA(told.kind, cell->GetRuntimeClass()))
                    Problem("cell ", r, ",", c, " is of another kind, or holds another text, data or state");
                selected += (told.state & CELL_SELECTED) != 0;
                counted += IsA(told.kind, RUNTIME_CLASS(CCountedCell));
            });
        Expect(CCountedCell::s_alive == counted, "cells outlive their place");
        Expect(m_grid.GetSelectedCount() == selected, "the selection's books are out of step with the cells");
    }

    void CheckSizes()
    {
        for (const bool rows : {true, false})
        {
            int sum = 0;
            for (int i = 0; i < m_model.Count(rows); ++i)
            {
                const int size = m_model.lines[rows][i].size;
                Expect((rows ? m_grid.GetRowHeight(i) : m_grid.GetColumnWidth(i)) == size,
                       "row height or column width");
                sum += size;
            }
            Expect((rows ? m_grid.GetVirtualHeight() : m_grid.GetVirtualWidth()) == sum, "sum of sizes");
        }
    }

    void CheckTopLeft()
    {
        const auto firstOf = [&](bool rows)
        {
            int i = m_model.fixed[rows], sum = 0;
            for (const int pos = m_grid.GetScrollPos(rows ? SB_VERT : SB_HORZ);
                 sum < pos && i < m_model.Count(rows) - 1; ++i)
                sum += m_model.lines[rows][i].size;
            return i;
        };
        const CCellID topLeft(firstOf(true), firstOf(false));
        Expect(TopLeft(FALSE) == topLeft, "top-left cell");
    }
    CCellID TopLeft(BOOL bForceRecalculation)
    {
        return (m_grid.*&OpenGrid::GetTopleftNonFixedCell)(bForceRecalculation);
    }

    bool m_withInput;
    bool m_mixedCells;
    GridParent m_parent;
    std::unique_ptr<CGridCtrl> m_pGrid;
    CGridCtrl& m_grid = *m_pGrid;
    Model m_model;
    int m_height = 0;
    int m_width = 0;
};

/// As if there were no handler: the parent's answer decides about an edit.
struct NoHandler : AExtGridCtrlNotificationHandler, AExtGridCtrl2NotificationHandler
{
    void OnExtGridRowChanged(int, int, int) override {}
    bool OnExtGridEndEdit(int, int, int, const CString*) override { return !s_bParentRefuses; }
    void OnExtGridRClick(int, int) override {}
    void OnExtGrid2CellChanged(int, CCellID, CCellID) override {}
    bool OnExtGrid2EndEdit(int, CCellID, const CString*) override { return !s_bParentRefuses; }
    void OnExtGrid2RClick(int, CCellID) override {}
} s_noHandler;
} // namespace

owtest::SequenceResult RunGridSequence(const owtest::Steps& steps, const SequenceOptions& options)
{
    return GridSequence(options).Run(steps);
}

std::unique_ptr<CGridCtrl> MakeModelExtGrid()
{
    return std::make_unique<CExtGridCtrl>(&s_noHandler);
}

std::unique_ptr<CGridCtrl> MakeModelExtGrid2()
{
    return std::make_unique<CExtGridCtrl2>(&s_noHandler, nullptr);
}
