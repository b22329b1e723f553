#include "GridModel.h"

#include "GridWindow.h"
#include "Input.h"

#include <algorithm>
#include <optional>

namespace
{
struct CellKind
{
    CRuntimeClass* pClass;
    const wchar_t* behindNumber; ///< written behind a number that is typed; null: any text is accepted
};

const std::vector<CellKind>& Kinds()
{
    static const std::vector<CellKind> kinds = {
        {RUNTIME_CLASS(CGridCell), nullptr},           {RUNTIME_CLASS(CLimitedTextCell), nullptr},
        {RUNTIME_CLASS(CLimitedIntCell), L""},         {RUNTIME_CLASS(CLimitedDoubleCell), L".00"},
        {RUNTIME_CLASS(CGridCellCheck), nullptr},      {RUNTIME_CLASS(CGridCellCombo), nullptr},
        {RUNTIME_CLASS(CGridCellColorCombo), nullptr},
    };
    return kinds;
}

/// What becomes of a text that is typed; nothing if the cell refuses it.
std::optional<std::wstring> Accepted(int kind, const std::wstring& text)
{
    const wchar_t* const behind = Kinds()[kind].behindNumber;
    if (!behind)
        return text;
    if (text.empty() || text.find_first_not_of(L"0123456789") != std::wstring::npos)
        return std::nullopt;
    return text + behind;
}

bool IsA(int kind, CRuntimeClass* pClass)
{
    return Kinds()[kind].pClass == pClass;
}

int KindOf(const CGridCellBase& cell)
{
    int kind = 0;
    while (!IsA(kind, cell.GetRuntimeClass()))
        ++kind;
    return kind;
}

struct ModelCell
{
    int kind = 0; ///< index into Kinds
    std::wstring text = {};
    LPARAM data = 0;
    bool modified = false;
    bool readOnly = false;
    bool selected = false;

    friend bool operator==(const ModelCell&, const ModelCell&) = default;
    friend auto operator<=>(const ModelCell&, const ModelCell&) = default;
};

struct ModelRow
{
    int height = 0;
    std::vector<ModelCell> cells;

    friend bool operator==(const ModelRow&, const ModelRow&) = default;
    friend auto operator<=>(const ModelRow&, const ModelRow&) = default;
};

/// What the grid must hold, written down without any of the grid's means. What is the same for rows and for
/// columns asks which of them is meant.
struct Model
{
    std::vector<ModelRow> rows;
    std::vector<int> widths;
    int fixedRows = 0;
    int fixedCols = 0;
    CCellID focus;
    int sortColumn = -1;
    int newKind; ///< of cells made from now on

    explicit Model(int kind = 0) : newKind(kind) {}

    int RowCount() const { return static_cast<int>(rows.size()); }
    int ColCount() const { return static_cast<int>(widths.size()); }
    int Count(bool ofRows) const { return ofRows ? RowCount() : ColCount(); }
    int& Fixed(bool ofRows) { return ofRows ? fixedRows : fixedCols; }
    int& Size(bool ofRows, int i) { return ofRows ? rows[i].height : widths[i]; }
    bool Has(int r, int c) const { return r >= 0 && r < RowCount() && c >= 0 && c < ColCount(); }
    bool HasBody() const { return RowCount() > fixedRows && ColCount() > fixedCols; }
    ModelCell& At(int r, int c) { return rows[r].cells[c]; }

    void Select(const CCellRange& range, bool select = true)
    {
        range.ForEach([&](int r, int c) { At(r, c).selected = select; });
    }
    /// And nothing without a range.
    void SelectOnly(const CCellRange& range = CCellRange(0, 0, -1, -1))
    {
        Select(CCellRange(0, 0, RowCount() - 1, ColCount() - 1), false);
        Select(range);
    }
    void Reset()
    {
        SelectOnly();
        focus = CCellID();
    }
    ModelCell NewCell() const { return ModelCell{newKind}; }
    ModelRow NewRow(int height) const { return {height, std::vector<ModelCell>(widths.size(), NewCell())}; }
    void Resize(int nRows, int nCols, int height, int width)
    {
        widths.resize(nCols, width);
        for (ModelRow& row : rows)
            row.cells.resize(nCols, NewCell());
        rows.resize(nRows, NewRow(height));
        fixedRows = std::min(fixedRows, nRows);
        fixedCols = std::min(fixedCols, nCols);
        if (focus.row >= nRows || focus.col >= nCols)
            focus = CCellID();
        sortColumn = -1;
    }
    void Insert(bool row, int at, int size)
    {
        Reset();
        if (row)
            rows.insert(rows.begin() + at, NewRow(size));
        else
        {
            widths.insert(widths.begin() + at, size);
            for (ModelRow& each : rows)
                each.cells.insert(each.cells.begin() + at, NewCell());
        }
        sortColumn = -1;
    }
    void Remove(bool row, int at)
    {
        Reset();
        Fixed(row) -= at < Fixed(row);
        if (row)
            rows.erase(rows.begin() + at);
        else
        {
            widths.erase(widths.begin() + at);
            for (ModelRow& each : rows)
                each.cells.erase(each.cells.begin() + at);
        }
        sortColumn = -1;
    }
};

class GridSequence : public owtest::Sequence
{
public:
    explicit GridSequence(const SequenceOptions& options)
        : m_withInput(options.withInput), m_mixedCells(options.mixedCells), m_inside(options.makeGrid()),
          m_grid(m_inside->Grid())
    {
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
    std::wstring Text()
    {
        static constexpr const wchar_t* kTexts[] = {L"",   L"a", L"b",    L"IPE 200",
                                                    L"12", L"7", L"Zeta", L"0,5 m"};
        return kTexts[Pick(std::size(kTexts))];
    }
    void Step() override
    {
        if (m_model.ColCount() > 12 || m_model.RowCount() > 40)
            return SetCounts();
        if (m_mixedCells && Pick(10) == 0)
            return SetKind();
        using Operation = void (GridSequence::*)();
        static constexpr std::pair<int, Operation> kUpTo[] = {
            {0, &GridSequence::SetCounts}, {1, &GridSequence::SetFixed},     {3, &GridSequence::Insert},
            {4, &GridSequence::Delete},    {7, &GridSequence::ChangeItem},   {9, &GridSequence::SetSize},
            {11, &GridSequence::SetFocus}, {14, &GridSequence::SelectRange}, {15, &GridSequence::Sort},
            {18, &GridSequence::Key},      {19, &GridSequence::Scroll},      {25, &GridSequence::Click}};
        const int picked = Pick(m_withInput ? 26 : 20);
        const auto found = std::find_if(std::begin(kUpTo), std::end(kUpTo),
                                        [&](const auto& entry) { return picked <= entry.first; });
        (this->*found->second)();
    }

    // ---- Counts

    void SetCounts()
    {
        const bool rows = Pick(2) != 0;
        const int n = Pick(rows ? 18 : 9);
        Say(rows ? "SetRowCount" : "SetColumnCount", n);
        Expect(rows ? m_grid.SetRowCount(n) : m_grid.SetColumnCount(n), "setting the count answers 0");
        if (n != m_model.Count(rows))
            Resize(rows, n);
    }

    void Resize(bool rows, int n)
    {
        m_model.Resize(rows ? n : m_model.RowCount(), rows ? m_model.ColCount() : n, m_height, m_width);
    }

    void SetFixed()
    {
        const int n = Pick(3);
        const bool rows = Pick(2) != 0;
        Say(rows ? "SetFixedRowCount" : "SetFixedColumnCount", n);
        Expect(rows ? m_grid.SetFixedRowCount(n) : m_grid.SetFixedColumnCount(n),
               "setting the fixed count answers 0");
        if (n == m_model.Fixed(rows))
            return;
        if (n > m_model.Count(rows))
            Resize(rows, n);
        m_model.Reset();
        m_model.Fixed(rows) = n;
    }

    void Insert()
    {
        const bool row = Pick(2) != 0;
        const int count = m_model.Count(row), at = Pick(3) ? Index(count) : -1;
        const std::wstring heading = Text();
        Say(row ? "InsertRow" : "InsertColumn", at);
        // The count itself is a place for columns only.
        const bool wrong = at >= 0 && (at < m_model.Fixed(row) || at > count - row);
        const int expected = wrong ? -1 : at < 0 ? count : at;
        Expect((row ? m_grid.InsertRow(heading.c_str(), at)
                    : m_grid.InsertColumn(heading.c_str(), GV_HEADING_FORMAT, at)) == expected,
               "inserting answers another index");
        if (wrong)
            return;
        if (m_model.Count(!row) == 0)
            Resize(!row, 1);
        m_model.Insert(row, expected, row ? m_grid.GetRowHeight(expected) : m_grid.GetColumnWidth(expected));
        Expect(!row || m_model.rows[expected].height > 0, "an inserted row has no height");
        ModelCell& head = row ? m_model.At(expected, 0) : m_model.At(0, expected);
        head.text = heading;
        head.modified = true;
    }

    void Delete()
    {
        const int what = Pick(16);
        if (what == 0)
        {
            Say("DeleteAllItems");
            Expect(m_grid.DeleteAllItems(), "DeleteAllItems answers 0");
            m_model = Model(m_model.newKind);
        }
        else if (what == 1)
        {
            Say("DeleteNonFixedRows");
            Expect(m_grid.DeleteNonFixedRows(), "DeleteNonFixedRows answers 0");
            m_model.Reset();
            if (m_model.RowCount() > m_model.fixedRows)
                m_model.Resize(m_model.fixedRows, m_model.ColCount(), 0, 0);
        }
        else
            DeleteOne(what < 9);
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

    // ---- Kinds

    /// Of one cell, or of all that are made from now on.
    void SetKind()
    {
        const int kind = Pick(static_cast<int>(Kinds().size()));
        CRuntimeClass* const pClass = Kinds()[kind].pClass;
        if (Pick(2))
        {
            Say("SetDefaultCellType", kind);
            Expect(m_grid.SetDefaultCellType(pClass), "SetDefaultCellType answers 0");
            m_model.newKind = kind;
            return;
        }
        const int r = Index(m_model.RowCount()), c = Index(m_model.ColCount());
        Say("SetCellType", r, c, kind);
        const bool exists = m_model.Has(r, c);
        Expect((m_grid.SetCellType(r, c, pClass) != FALSE) == exists, "SetCellType answers wrong");
        if (exists)
            m_model.At(r, c).kind = kind;
    }

    // ---- Items and sizes

    void ChangeItem()
    {
        const int r = Index(m_model.RowCount()), c = Index(m_model.ColCount()), what = Pick(5);
        const BOOL exists = m_model.Has(r, c);
        ModelCell missing;
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
        else if (exists)
        {
            m_grid.SetItemState(r, c,
                                m_grid.GetItemState(r, c) ^ (what == 3 ? CELL_READONLY : CELL_SELECTED));
            bool& state = what == 3 ? cell.readOnly : cell.selected;
            state = !state;
        }
    }

    void Changed(int r, int c)
    {
        if (!m_model.Has(r, c))
            return;
        m_model.At(r, c).modified = true;
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
            m_model.Size(row, at) = size;
    }

    // ---- Focus, selection, order

    void SetFocus()
    {
        if (!m_model.HasBody() || Pick(8) == 0)
        {
            Say("SetFocusCell -1 -1");
            m_grid.SetFocusCell(-1, -1);
            m_model.focus = CCellID();
            return;
        }
        const int r = Pick(m_model.RowCount());
        const int c = Pick(m_model.ColCount());
        Say("SetFocusCell", r, c);
        Expect(m_grid.SetFocusCell(r, c) == m_model.focus, "SetFocusCell answers another old focus");
        m_model.focus = RaisedToBody(r, c);
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
        const CCellID from = RaisedToBody(r1, c1), to = RaisedToBody(r2, c2);
        if (r1 >= 0 && c1 >= 0 && m_model.Has(to.row, to.col))
            m_model.Select(CCellRange(from.row, from.col, to.row, to.col), select);
    }

    /// The order of equal rows is not told: the grid's is taken over if it is an order of the same rows.
    void Sort()
    {
        if (m_model.ColCount() == 0)
            return;
        const int c = Pick(m_model.ColCount());
        const bool ascending = Pick(2) != 0;
        Say("SortTextItems", c, ascending);
        const bool enough = m_model.RowCount() - m_model.fixedRows > 1;
        Expect((m_grid.SortTextItems(c, ascending) != FALSE) == enough, "SortTextItems answers wrong");
        m_inside->TopLeft(TRUE); // a sort leaves the view at its row, whatever that is now high
        m_model.Reset();
        m_model.sortColumn = c;

        std::vector<ModelRow> before(m_model.rows.begin() + m_model.fixedRows, m_model.rows.end());
        for (int r = m_model.fixedRows; r < m_model.RowCount(); ++r)
            m_model.rows[r] = RowOfGrid(r);
        std::vector<ModelRow> after(m_model.rows.begin() + m_model.fixedRows, m_model.rows.end());
        for (size_t i = 1; i < after.size(); ++i)
        {
            const auto &first = after[i - 1].cells[c].text, &second = after[i].cells[c].text;
            Expect(ascending ? first <= second : first >= second, "the rows are not in order");
        }
        std::sort(before.begin(), before.end());
        std::sort(after.begin(), after.end());
        Expect(before == after, "sorting changed the rows themselves");
    }

    ModelRow RowOfGrid(int r)
    {
        ModelRow row{m_grid.GetRowHeight(r), {}};
        for (int c = 0; c < m_model.ColCount(); ++c)
        {
            CGridCellBase& cell = *m_grid.GetCell(r, c);
            row.cells.push_back({KindOf(cell), cell.GetText(), cell.GetData(), cell.IsModified() != 0,
                                 cell.IsReadOnly() != 0, cell.IsSelected() != 0});
        }
        return row;
    }

    // ---- Input

    bool Shows(bool row, int i)
    {
        return i >= m_model.Fixed(row) && i < m_model.Count(row) && m_model.Size(row, i) > 0;
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
            i = m_model.fixedCols;
        }
        while (i >= m_model.Fixed(rows) && i < m_model.Count(rows) && !Shows(rows, i))
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
        // Now and then on the focus cell, where an edit starts.
        const CCellID& focus = m_model.focus;
        const bool again = Pick(3) == 0 && m_model.Has(focus.row, focus.col);
        const int r = again ? focus.row : Pick(m_model.RowCount());
        const int c = again ? focus.col : Pick(m_model.ColCount());
        if (!m_grid.IsCellVisible(r, c) || m_model.rows[r].height < 12 || m_model.widths[c] < 12)
            return;
        const CPoint point = MiddleOf(m_grid, r, c);
        CRect client;
        m_grid.GetClientRect(client);
        if (!client.PtInRect(point) || m_grid.GetCellFromPt(point) != CCellID(r, c))
            return;
        if (OpensDialog(m_model.focus) || OpensDialog(RaisedToBody(r, c)))
            return;
        Say("click", r, c);
        const bool edits =
            m_model.focus == CCellID(r, c) && !m_model.At(r, c).readOnly && IsInText(r, c, point);
        m_grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        m_grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        if (edits)
            EndEdit(r, c);
        else
            Clicked(r, c);
        owtest::Pump();
    }

    /// A colour cell would show a modal dialog.
    bool OpensDialog(CCellID cell)
    {
        return m_model.Has(cell.row, cell.col) &&
               IsA(m_model.At(cell.row, cell.col).kind, RUNTIME_CLASS(CGridCellColorCombo));
    }

    /// The text of a check cell stands clear of the box, and may have no room left.
    bool IsInText(int r, int c, CPoint point)
    {
        if (!IsA(m_model.At(r, c).kind, RUNTIME_CLASS(CGridCellCheck)))
            return true;
        CRect rect;
        m_grid.GetCellRect(r, c, &rect);
        rect.left += ::GetSystemMetrics(SM_CXHSCROLL) + 2 * m_grid.GetDefCellMargin();
        return rect.PtInRect(point);
    }

    CCellID RaisedToBody(int r, int c) const
    {
        return CCellID(std::max(r, m_model.fixedRows), std::max(c, m_model.fixedCols));
    }

    void Clicked(int r, int c)
    {
        if (!m_model.At(r, c).selected)
            m_model.focus = m_model.HasBody() ? RaisedToBody(r, c) : CCellID();
        const CCellID first = RaisedToBody(r, c);
        m_model.SelectOnly(CCellRange(first.row, first.col,
                                      r < m_model.fixedRows ? m_model.RowCount() - 1 : r,
                                      c < m_model.fixedCols ? m_model.ColCount() - 1 : c));
    }

    void EndEdit(int r, int c)
    {
        CWnd* const editor = m_grid.GetDlgItem(InPlaceControlId);
        if (!editor || !m_grid.IsItemEditing(r, c))
            return Problem("no editor on the focus cell");
        if (const HWND focus = ::GetFocus(); focus != editor->m_hWnd && !::IsChild(editor->m_hWnd, focus))
            return Problem("the editor has not got the focus: ", focus, ", active: ", ::GetActiveWindow());
        ModelCell& cell = m_model.At(r, c);
        const std::wstring text = Text();
        const int way = Pick(4);
        Say("edit ends by way", way);
        m_parent.answer = [&](NMHDR& header)
        { return header.code == LVN_ENDLABELEDITW && way == 1 ? -1 : 0; };
        editor->SetWindowText(text.c_str());
        const UINT message = IsA(cell.kind, RUNTIME_CLASS(CGridCellCombo)) ? WM_KEYUP : WM_CHAR;
        if (way == 0)
            editor->SendMessage(message, VK_ESCAPE);
        else if (way == 3)
            m_parent.SetFocus();
        else
            editor->SendMessage(message, VK_RETURN);
        m_parent.answer = nullptr;
        if (way == 0 || text == cell.text)
            return;
        // Cell and parent may refuse it: the old text comes back, and the cell stays marked.
        const std::optional<std::wstring> accepted = Accepted(cell.kind, text);
        if (way != 1 && accepted)
            cell.text = *accepted;
        Changed(r, c);
    }

    // ---- What must hold after every step

    void Check() override
    {
        Expect(m_grid.GetRowCount() == m_model.RowCount(), "row count");
        Expect(m_grid.GetColumnCount() == m_model.ColCount(), "column count");
        Expect(m_grid.GetFixedRowCount() == m_model.fixedRows, "fixed row count");
        Expect(m_grid.GetFixedColumnCount() == m_model.fixedCols, "fixed column count");
        Expect(m_grid.GetFocusCell() == m_model.focus, "focus");
        Expect(m_grid.GetSortColumn() == m_model.sortColumn, "sort column");
        Expect(m_inside->MouseMode() == 0, "mouse mode");
        if (CWnd* const editor = m_grid.GetDlgItem(InPlaceControlId))
            Problem("an editor is left; focus: ", ::GetFocus(), ", editor: ", editor->m_hWnd,
                    ", parent: ", m_parent.m_hWnd, ", active: ", ::GetActiveWindow());
        if (m_grid.GetRowCount() != m_model.RowCount() || m_grid.GetColumnCount() != m_model.ColCount())
            return;
        CheckCells();
        CheckSizes();
        CheckPlaces();
    }

    void CheckCells()
    {
        int selected = 0;
        m_grid.GetCellRange().ForEach(
            [&](int r, int c)
            {
                CGridCellBase* const cell = m_grid.GetCell(r, c);
                const ModelCell& expected = m_model.At(r, c);
                if (!cell || expected.text != cell->GetText() || expected.data != cell->GetData() ||
                    cell->GetState() != StateOf(r, c) || !IsA(expected.kind, cell->GetRuntimeClass()))
                    Problem("cell ", r, ",", c, " is of another kind, or holds another text, data or state");
                if ((m_grid.IsCellSelected(r, c) != FALSE) != expected.selected)
                    Problem("selection of ", r, ",", c);
                selected += expected.selected;
            });
        Expect(m_grid.GetSelectedCount() == selected, "the selection's books are out of step with the cells");
    }

    DWORD StateOf(int r, int c)
    {
        const ModelCell& cell = m_model.At(r, c);
        const auto bits = [](bool has, DWORD value) { return has ? value : 0; };
        return bits(r < m_model.fixedRows, CELL_FIXED | CELL_FIXEDROW) |
               bits(c < m_model.fixedCols, CELL_FIXED | CELL_FIXEDCOL) | bits(cell.modified, CELL_MODIFIED) |
               bits(cell.readOnly, CELL_READONLY) | bits(cell.selected, CELL_SELECTED) |
               bits(m_model.focus == CCellID(r, c), CELL_FOCUSED);
    }

    void CheckSizes()
    {
        for (const bool rows : {true, false})
        {
            int sum = 0, ofFixed = 0;
            for (int i = 0; i < m_model.Count(rows); ++i)
            {
                const int size = m_model.Size(rows, i);
                Expect((rows ? m_grid.GetRowHeight(i) : m_grid.GetColumnWidth(i)) == size,
                       "row height or column width");
                sum += size;
                ofFixed += i < m_model.Fixed(rows) ? size : 0;
            }
            Expect((rows ? m_grid.GetVirtualHeight() : m_grid.GetVirtualWidth()) == sum, "sum of sizes");
            Expect((rows ? m_grid.GetFixedRowHeight() : m_grid.GetFixedColumnWidth()) == ofFixed,
                   "sum of fixed sizes");
        }
    }

    /// The top-left cell against a walk over the sizes, and one cell's origin against its neighbours' sizes.
    void CheckPlaces()
    {
        const auto firstOf = [&](bool rows)
        {
            int i = m_model.Fixed(rows), sum = 0;
            for (const int pos = m_grid.GetScrollPos(rows ? SB_VERT : SB_HORZ);
                 sum < pos && i < m_model.Count(rows) - 1; ++i)
                sum += m_model.Size(rows, i);
            return i;
        };
        const CCellID topLeft(firstOf(true), firstOf(false));
        Expect(m_inside->TopLeft(FALSE) == topLeft, "top-left cell");
        CPoint origin;
        if (!m_model.Has(topLeft.row, topLeft.col) || !m_grid.GetCellOrigin(topLeft, &origin))
            return;
        Expect(origin == CPoint(m_grid.GetFixedColumnWidth(), m_grid.GetFixedRowHeight()),
               "origin of the body");
        if (Shows(true, topLeft.row) && Shows(false, topLeft.col))
            Expect(m_grid.GetCellFromPt(origin, FALSE) == topLeft, "cell at the body's origin");
    }

    bool m_withInput;
    bool m_mixedCells;
    GridParent m_parent;
    std::unique_ptr<ModelGrid> m_inside;
    CGridCtrl& m_grid; ///< of m_inside
    Model m_model;
    int m_height = 0;
    int m_width = 0;
};

/// What the parent would have answered if there were no handler: the model decides there about an edit.
bool ParentAccepts(CWnd& grid)
{
    const auto& parent = static_cast<GridParent&>(*grid.GetParent());
    NMHDR header{grid.m_hWnd, kGridId, static_cast<UINT>(LVN_ENDLABELEDITW)};
    return !parent.answer || parent.answer(header) >= 0;
}

class CModelExtGrid : public CExtGridCtrl, public AExtGridCtrlNotificationHandler
{
public:
    CModelExtGrid() : CExtGridCtrl(this) {}
    void OnExtGridRowChanged(int, int, int) override {}
    bool OnExtGridEndEdit(int, int, int, const CString*) override { return ParentAccepts(*this); }
    void OnExtGridRClick(int, int) override {}
};

class CModelExtGrid2 : public CExtGridCtrl2, public AExtGridCtrl2NotificationHandler
{
public:
    CModelExtGrid2() : CExtGridCtrl2(this, nullptr) {}
    void OnExtGrid2CellChanged(int, CCellID, CCellID) override {}
    bool OnExtGrid2EndEdit(int, CCellID, const CString*) override { return ParentAccepts(*this); }
    void OnExtGrid2RClick(int, CCellID) override {}
};
} // namespace

owtest::SequenceResult RunGridSequence(const owtest::Steps& steps, const SequenceOptions& options)
{
    return GridSequence(options).Run(steps);
}

std::unique_ptr<ModelGrid> MakeModelExtGrid()
{
    return MakeModelGrid<CModelExtGrid>();
}

std::unique_ptr<ModelGrid> MakeModelExtGrid2()
{
    return MakeModelGrid<CModelExtGrid2>();
}
