#pragma once
// CGridCtrl: a table of cells that scrolls under fixed rows and columns, to be looked at, selected, sorted
// and edited.
//
// ```cpp
//     class CPartsDialog : public CDialog
//     {
//         CGridCtrl m_grid;
//
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();                 // DDX_Control binds a control of the template
//             m_grid.SetRowCount(21);                  // a heading and twenty parts
//             m_grid.SetColumnCount(3);
//             m_grid.SetFixedRowCount(1);
//             m_grid.SetItemText(0, 1, L"Length [mm]");
//             m_grid.SetItemText(1, 1, L"6000");
//             m_grid.AutoSizeColumns();
//             return TRUE;
//         }
//         afx_msg void OnEndEdit(NMHDR* pHeader, LRESULT* pResult);
//         // ON_NOTIFY(LVN_ENDLABELEDITW, IDC_GRID, &CPartsDialog::OnEndEdit)
//     };
// ```
//
// Where there is no template, m_grid.Create(...) makes the window.
//
// PLACES
//
//                 0 ............ FixedColumnWidth ...................... client right
//        0        +-------------+--------------------------------------+
//                 | corner      | fixed rows                           |    scrolls sideways only
//      FixedRow-  +-------------+--------------------------------------+
//      Height     | fixed       | body: from the top-left cell on      |    scrolls both ways
//                 | columns     |                                      |
//                 +-------------+--------------------------------------+ client bottom
//
// Rows and columns count from 0, the fixed ones included. All positions and sizes are in pixels, in client
// coordinates of the grid's window. GetCellRect answers rectangles that hold their last pixel: right = left +
// width - 1. A row of height 0, or a column of width 0, is hidden and stays in the counts.
//
// CELLS
//
// Each place holds a cell object (cells/GridCellBase.h), made from the class given to SetDefaultCellType or,
// one by one, SetCellType. The grid owns its cells. What a cell does not have of its own it inherits from one
// of four default cells, one for the body, fixed columns, fixed rows and the corner: GetDefaultCell.
//
// A grid may be filled before its window exists; only drawing, scrolling and notifications wait for it. Row
// heights and column widths set before Create are lost.
//
// VIRTUAL MODE
//
// SetVirtualMode(TRUE) makes a grid without cell objects, for very large tables. GetCell then makes one up
// for each call, from the answer of the callback (SetCallbackFunc) or, without one, of the parent
// (LVN_GETDISPINFOW). Its result is overwritten by the next call: no two can be held at a time, and a
// callback must not call GetCell. Editing, sorting by header and clicks on headers are switched off, and
// setting an item answers 0.
//
// FOCUS AND SELECTION
//
// One body cell may have the focus; any number may be selected. Inserting and deleting, changing the fixed
// counts, sorting and switching selection modes drop both. GetSelectedCount and GetSelectedCellRange ask,
// GetNextItem walks.
//
// NOTIFICATIONS
//
// By WM_NOTIFY to the owner window, or to the parent if no owner was set; with a GridNotify record unless
// told otherwise. Row and column are those of the cell.
//
//     LVN_ITEMCHANGING     before a selection changes by a press or by select all; the cell of the last press
//     LVN_ITEMCHANGED      the focus moved to another cell; and after select all
//     NM_CLICK             the left button was released, unless it sized something or starts an edit
//     NM_DBLCLK            double click on a cell
//     NM_RCLICK            the right button was released; row and column -1 outside the cells
//     LVN_BEGINLABELEDITW  an edit is about to start; a negative answer forbids it
//     LVN_ENDLABELEDITW    an edit has changed the text, which the cell holds already; a negative answer
//                          puts the old one back
//     LVN_GETDISPINFOW     virtual mode without a callback: a GV_DISPINFO record to be filled in
//     LVN_ODCACHEHINT      virtual mode: a GridCacheHint record with the cells that will be asked for, and
//                          with the empty range when that is done
//
// After a click on a cell WM_COMMAND is posted, too, with the grid's id.
//
// A receiver may change the grid, end the edit, delete rows or destroy the window. It may delete the object
// as well, except while it answers LVN_GETDISPINFOW or LVN_ODCACHEHINT.
//
// A change of the rows, columns or counts, a sort and Load end an edit first, as a click elsewhere does: its
// text is stored, or refused, in its own cell, with the notifications above. The change is then made on what
// the receivers have left of the grid.
//
// FAILURES
//
// An index out of range answers 0, -1 or null and says nothing. Out of memory while growing is reported by
// the exception's ReportError, and the grid stays consistent.
//
// SOURCES
//
// The grid answers messages, and hands the work to parts that know no grid:
//
//     GridCtrl.cpp       construction, message map, settings
//     GridStorage.cpp    rows, columns, cells                     GridCells
//     GridItems.cpp      text, state, colours of single cells
//     GridVirtual.cpp    virtual mode, notifications
//     GridGeometry.cpp   cells to pixels and back, sizing to fit  GridView on two GridAxis
//     GridScroll.cpp     scroll bars and the wheel                GridScrollBars
//     GridDraw.cpp       painting                                 GridPainter
//     GridSelection.cpp  focus and selection                      GridSelectionMap, GridStateWalk
//     GridMouse.cpp      mouse state machine                      GridDivider by GridSizing
//     GridKeyboard.cpp   keys                                     GridKeyWalk
//     GridEdit.cpp       the start and the end of an edit
//     GridSort.cpp       sorting                                  RowSorter
//     GridFile.cpp       text files, saved widths                 TextFields, SavedWidths
//     GridUnits.cpp      units of columns
//
// Everything runs on the thread of the window.

#include <afxwin.h>
#include <afxcmn.h>
#include <afxcoll.h>
#include <afxtempl.h>

#include <array>

#include "cells/GridDefaultCell.h"
#include "grid/ColumnUnits.h"
#include "grid/GridAxis.h"
#include "grid/GridCells.h"
#include "grid/GridScrollBars.h"
#include "grid/GridSelectionMap.h"
#include "grid/GridTypes.h"
#include "grid/GridView.h"
#include "module/Export.h"

// ---- Values of settings -----------------------------------------------------------------------------------

// Grid lines: SetGridLines
constexpr int GVL_NONE = 0;
constexpr int GVL_HORZ = 1;
constexpr int GVL_VERT = 2;
constexpr int GVL_BOTH = 3;

// Rows that count when columns size themselves: SetAutoSizeStyle, AutoSize, AutoSizeColumn
constexpr UINT GVS_DEFAULT = 0; ///< as an argument: what SetAutoSizeStyle holds
constexpr UINT GVS_HEADER = 1;  ///< the fixed rows
constexpr UINT GVS_DATA = 2;    ///< all other rows
constexpr UINT GVS_BOTH = 3;

// What GetNextItem looks for, and where
constexpr int GVNI_FOCUSED = 0x001;
constexpr int GVNI_SELECTED = 0x002;
constexpr int GVNI_DROPHILITED = 0x004;
constexpr int GVNI_READONLY = 0x008;
constexpr int GVNI_FIXED = 0x010;
constexpr int GVNI_MODIFIED = 0x020;
constexpr int GVNI_ABOVE = 0x100;
constexpr int GVNI_BELOW = 0x200;
constexpr int GVNI_TOLEFT = 0x400;
constexpr int GVNI_TORIGHT = 0x800;
constexpr int GVNI_ALL = GVNI_BELOW | GVNI_TOLEFT | GVNI_TORIGHT; ///< row by row to the end
constexpr int GVNI_AREA = GVNI_BELOW | GVNI_TORIGHT;              ///< row by row, right of the start column

/// The format of headings: centred, on one line.
constexpr UINT GV_HEADING_FORMAT = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

class CGridPainter;
struct SGridColors;

class OW_DIALOGCONTROLS_API CGridCtrl : public CWnd
{
    DECLARE_DYNCREATE(CGridCtrl)
    using CWnd::Create;

public:
    explicit CGridCtrl(int nRows = 0, int nCols = 0, int nFixedRows = 0, int nFixedCols = 0);
    ~CGridCtrl() override;
    CGridCtrl(const CGridCtrl&) = delete;
    CGridCtrl& operator=(const CGridCtrl&) = delete;

    /// Non-zero on success. Counts stay; heights and widths go back to those of the default cell.
    BOOL Create(const RECT& rect, CWnd* pParent, UINT nID,
                DWORD dwStyle = WS_CHILD | WS_BORDER | WS_TABSTOP | WS_VISIBLE);

    /// Icons that every grid may show, by index: marks first, then from `nFirstGridIconIdx` on the profiles.
    /// Made with the first grid of the process. SetImageList(&CGridCtrl::GridImageList) puts it into a grid.
    static CImageList GridImageList;
    static int nFirstGridIconIdx;

    // ---- Counts -------------------------------------------------------------------------------------------

    int GetRowCount() const { return m_rows.Count(); }
    int GetColumnCount() const { return m_cols.Count(); }
    int GetFixedRowCount() const { return m_rows.Fixed(); }
    int GetFixedColumnCount() const { return m_cols.Fixed(); }
    BOOL SetRowCount(int nRows);
    BOOL SetColumnCount(int nCols);
    /// More fixed rows than rows makes more rows.
    BOOL SetFixedRowCount(int nFixedRows);
    BOOL SetFixedColumnCount(int nFixedCols);

    /// The index of the new row, or -1. -1 as `nRow` appends; the count itself is refused, not so for
    /// columns.
    int InsertRow(LPCWSTR strHeading, int nRow = -1);
    /// The index of the new column, or -1. -1 as `nColumn`, or the count itself, appends.
    int InsertColumn(LPCWSTR strHeading, UINT nFormat = GV_HEADING_FORMAT, int nColumn = -1);
    BOOL DeleteRow(int nRow);
    BOOL DeleteColumn(int nColumn);
    BOOL DeleteNonFixedRows();
    /// Takes all rows and columns away, the fixed ones, too. Settings stay.
    BOOL DeleteAllItems();
    /// As many rows and columns as fill the window, the first of each fixed.
    void AutoFill();

    // ---- Cells --------------------------------------------------------------------------------------------

    CGridCellBase* GetCell(int nRow, int nCol) const;
    CGridDefaultCell* GetDefaultCell(BOOL bFixedRow, BOOL bFixedCol) const;
    /// Puts a cell of another class into a place; it takes over what the old one held.
    BOOL SetCellType(int nRow, int nCol, CRuntimeClass* pClass);
    /// The class of cells made from now on.
    BOOL SetDefaultCellType(CRuntimeClass* pClass);

    BOOL IsValid(int nRow, int nCol) const;
    BOOL IsValid(const CCellID& cell) const;
    BOOL IsValid(const CCellRange& range) const;
    BOOL IsCellFixed(int nRow, int nCol);
    CCellRange GetCellRange();
    BOOL IsItemEditing(int nRow, int nCol);

    // ---- Items: 0 for a cell that is not there, and for every change in virtual mode ----------------------

    BOOL SetItem(const GV_ITEM* pItem);
    BOOL GetItem(GV_ITEM* pItem);
    BOOL SetItemText(int nRow, int nCol, LPCWSTR str);
    BOOL SetItemTextFmt(int nRow, int nCol, LPCWSTR szFmt, ...);
    BOOL SetItemTextFmtID(int nRow, int nCol, UINT nID, ...);
    CString GetItemText(int nRow, int nCol) const;
    BOOL SetItemData(int nRow, int nCol, LPARAM lParam);
    LPARAM GetItemData(int nRow, int nCol) const;
    BOOL SetItemImage(int nRow, int nCol, int iImage);
    int GetItemImage(int nRow, int nCol) const;
    /// Keeps the selection in step. In virtual mode it answers 0 and yet selects.
    BOOL SetItemState(int nRow, int nCol, UINT nState);
    UINT GetItemState(int nRow, int nCol) const;
    BOOL SetItemFormat(int nRow, int nCol, UINT nFormat);
    UINT GetItemFormat(int nRow, int nCol) const;
    BOOL SetItemBkColour(int nRow, int nCol, COLORREF cr = CLR_INHERIT);
    COLORREF GetItemBkColour(int nRow, int nCol) const;
    BOOL SetItemFgColour(int nRow, int nCol, COLORREF cr = CLR_INHERIT);
    COLORREF GetItemFgColour(int nRow, int nCol) const;
    BOOL SetItemFont(int nRow, int nCol, const LOGFONTW* plf);
    /// Never fails: for a cell that is not there, the font of the default cell for its place.
    const LOGFONTW* GetItemFont(int nRow, int nCol) const;
    CSize GetCellTextExtent(int nRow, int nCol);
    CSize GetTextExtent(int nRow, int nCol, LPCWSTR str);

    /// Without indices the grid as a whole; FALSE then clears the mark of every cell.
    void SetModified(BOOL bModified = TRUE, int nRow = -1, int nCol = -1);
    BOOL GetModified(int nRow = -1, int nCol = -1);

    void SetEditable(BOOL bEditable = TRUE) { m_bEditable = bEditable; }
    BOOL IsEditable() const { return m_bEditable; }
    BOOL IsCellEditable(CCellID& cell) const;
    BOOL IsCellEditable(int nRow, int nCol) const;

    // ---- Virtual mode -------------------------------------------------------------------------------------

    /// Deletes all items first.
    void SetVirtualMode(BOOL bVirtual);
    BOOL GetVirtualMode() { return m_bVirtualMode; }
    void SetCallbackFunc(GRIDCALLBACK pCallback, LPARAM lParam);
    GRIDCALLBACK GetCallbackFunc() { return m_pfnCallback; }

    // ---- Sizes and places ---------------------------------------------------------------------------------

    int GetRowHeight(int nRow) const;
    int GetColumnWidth(int nCol) const;
    BOOL SetRowHeight(int nRow, int nHeight);
    /// A width saved under the key of SetPersistentGridColumnsWidth wins over `nWidth`, unless
    /// `bIgnoreSaved`.
    BOOL SetColumnWidth(int nCol, int nWidth, int bIgnoreSaved = FALSE);
    int GetFixedRowHeight() const { return m_rows.FixedExtent(); }
    int GetFixedColumnWidth() const { return m_cols.FixedExtent(); }
    int GetVirtualHeight() const { return m_rows.Extent(); }
    int GetVirtualWidth() const { return m_cols.Extent(); }

    /// FALSE for a cell that is scrolled away above or to the left. Beyond the right and bottom edges it
    /// succeeds.
    BOOL GetCellOrigin(int nRow, int nCol, POINT* p);
    BOOL GetCellOrigin(const CCellID& cell, POINT* p);
    BOOL GetCellRect(int nRow, int nCol, RECT* pRect);
    BOOL GetCellRect(const CCellID& cell, RECT* pRect);
    BOOL GetTextRect(int nRow, int nCol, RECT* pRect);
    BOOL GetTextRect(const CCellID& cell, RECT* pRect);
    /// -1 in each direction in which there is no cell, or only a fixed one and those are not asked for.
    CCellID GetCellFromPt(CPoint point, BOOL bAllowFixedCellCheck = TRUE);
    BOOL IsCellVisible(int nRow, int nCol);
    BOOL IsCellVisible(CCellID cell);
    /// Scrolls by line until the cell shows, whole if it fits. Ends a running edit if it scrolls.
    void EnsureVisible(int nRow, int nCol);
    void EnsureVisible(CCellID& cell);

    /// Rows and columns as large as their cells want; hidden ones stay hidden. `nAutoSizeStyle`: GVS_ values.
    void AutoSize(UINT nAutoSizeStyle = GVS_DEFAULT);
    BOOL AutoSizeColumn(int nCol, UINT nAutoSizeStyle = GVS_DEFAULT, BOOL bResetScroll = TRUE);
    BOOL AutoSizeRow(int nRow, BOOL bResetScroll = TRUE);
    void AutoSizeColumns(UINT nAutoSizeStyle = GVS_DEFAULT);
    void AutoSizeRows();
    /// Spread what is free or missing in the window over the columns, or rows, that show.
    void ExpandColumnsToFit(BOOL bExpandFixed = TRUE);
    void ExpandRowsToFit(BOOL bExpandFixed = TRUE);
    void ExpandLastColumn();
    void ExpandToFit(BOOL bExpandFixed = TRUE);

    // ---- Drawing ------------------------------------------------------------------------------------------

    /// Redraw at once. Without a context one is taken from the window.
    BOOL RedrawCell(int nRow, int nCol, CDC* pDC = nullptr);
    BOOL RedrawCell(const CCellID& cell, CDC* pDC = nullptr);
    BOOL RedrawRow(int nRow);
    BOOL RedrawColumn(int nCol);
    void Refresh();
    void SetRedraw(BOOL bAllowDraw, BOOL bResetScrollBars = FALSE);
    void EraseBkgnd(CDC* pDC);

    // No colour setter repaints. The fixed colours are those of all three kinds of fixed cell; the getters
    // answer those of the fixed rows. SetBkColor is SetGridBkColor, and SetGridColor is SetGridLineColor.
    void SetBkColor(COLORREF clr) { m_crGridBk = clr; }
    COLORREF GetBkColor() const { return m_crGridBk; }
    void SetGridBkColor(COLORREF clr) { m_crGridBk = clr; }
    COLORREF GetGridBkColor() const { return m_crGridBk; }
    void SetGridColor(COLORREF clr) { m_crGridLine = clr; }
    COLORREF GetGridColor() const { return m_crGridLine; }
    void SetGridLineColor(COLORREF clr) { m_crGridLine = clr; }
    COLORREF GetGridLineColor() const { return m_crGridLine; }
    void SetTextColor(COLORREF clr) { m_cellDefault.SetTextClr(clr); }
    COLORREF GetTextColor() { return m_cellDefault.GetTextClr(); }
    void SetTextBkColor(COLORREF clr) { m_cellDefault.SetBackClr(clr); }
    COLORREF GetTextBkColor() { return m_cellDefault.GetBackClr(); }
    void SetFixedTextColor(COLORREF clr);
    COLORREF GetFixedTextColor() { return m_cellFixedRow.GetTextClr(); }
    void SetFixedBkColor(COLORREF clr);
    COLORREF GetFixedBkColor() { return m_cellFixedRow.GetBackClr(); }
    void SetTitleTipBackClr(COLORREF clr) { m_crTitleTipBack = clr; }
    COLORREF GetTitleTipBackClr() const { return m_crTitleTipBack; }
    void SetTitleTipTextClr(COLORREF clr) { m_crTitleTipText = clr; }
    COLORREF GetTitleTipTextClr() const { return m_crTitleTipText; }
    void SetGridLines(int nWhichLines = GVL_BOTH);
    int GetGridLines() const { return m_nGridLines; }

    /// Of all four default cells; the getters answer those of the body.
    void SetDefCellMargin(int nMargin);
    int GetDefCellMargin() { return static_cast<int>(m_cellDefault.GetMargin()); }
    void SetDefCellHeight(int nHeight);
    int GetDefCellHeight() const { return m_cellDefault.GetHeight(); }
    void SetDefCellWidth(int nWidth);
    int GetDefCellWidth() const { return m_cellDefault.GetWidth(); }

    // ---- Focus and selection ------------------------------------------------------------------------------

    CCellID GetFocusCell() const { return m_focusCell; }
    /// Answers the old focus. A fixed cell gives its place to the first that is not; -1 takes the focus away.
    CCellID SetFocusCell(int nRow, int nCol);
    CCellID SetFocusCell(CCellID cell, BOOL bNotify = TRUE);
    /// Selects the range in place of what was selected; negative bounds select nothing. With `bSelectCells`
    /// FALSE unselects the range and leaves everything else. `bForceRepaint` repaints at once.
    void SetSelectedRange(int nMinRow, int nMinCol, int nMaxRow, int nMaxCol, BOOL bForceRepaint = FALSE,
                          BOOL bSelectCells = TRUE);
    void SetSelectedRange(const CCellRange& range, BOOL bForceRepaint = FALSE, BOOL bSelectCells = TRUE);
    /// The smallest range around all selected cells. With nothing selected the maxima are -1 and the minima
    /// the counts, which is not the empty range.
    CCellRange GetSelectedCellRange();
    int GetSelectedCount() const { return m_mapSelected.Count(); }
    BOOL IsCellSelected(CCellID& cell) const;
    BOOL IsCellSelected(int nRow, int nCol) const;
    /// The next cell with any of the states asked for, or (-1, -1). `nFlags`: GVNI_ values.
    CCellID GetNextItem(CCellID& cell, int nFlags) const;

    void EnableSelection(BOOL bEnable = TRUE);
    BOOL IsSelectable() const { return m_bEnableSelection; }
    /// A click selects the whole row. Switches selection by clicks on fixed rows off, whatever the argument.
    void SetListMode(BOOL bEnableListMode = TRUE);
    BOOL GetListMode() const { return m_bListMode; }
    /// Counts in list mode only.
    void SetSingleRowSelection(BOOL bSing = TRUE) { m_bSingleRowSelection = bSing; }
    BOOL GetSingleRowSelection() const { return m_bSingleRowSelection & m_bListMode; }
    void SetSingleColSelection(BOOL bSing = TRUE) { m_bSingleColSelection = bSing; }
    BOOL GetSingleColSelection() const { return m_bSingleColSelection; }
    void SetFixedRowSelection(BOOL bSelect) { m_bFixedRowSelection = bSelect; }
    BOOL GetFixedRowSelection() const { return m_bFixedRowSelection; }
    void SetFixedColumnSelection(BOOL bSelect) { m_bFixedColumnSelection = bSelect; }
    BOOL GetFixedColumnSelection() const { return m_bFixedColumnSelection; }

    // ---- Editing ------------------------------------------------------------------------------------------

    void StartEditCell();
    /// Empties the cells that show and may be edited, asking the parent as for an edit.
    void ClearCells(CCellRange range);

    // ---- Sorting, files, units ----------------------------------------------------------------------------

    // A sort drops the selection and the focus. FALSE if there are fewer than two rows to sort, or no such
    // column.
    BOOL SortItems(int nCol, BOOL bAscending, LPARAM data = 0);
    BOOL SortTextItems(int nCol, BOOL bAscending, LPARAM data = 0);
    BOOL SortItems(PFNGRIDCOMPARE pfnCompare, int nCol, BOOL bAscending, LPARAM data = 0);
    /// How SortItems compares; null compares texts. Not owned.
    void SetCompareFunction(PFNGRIDCOMPARE pfnCompare) { m_pfnCompare = pfnCompare; }
    static int pfnCellTextCompare(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);
    static int pfnCellNumericCompare(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);
    /// Only what the header shows: nothing keeps the rows sorted. -1 for none.
    void SetSortColumn(int nCol);
    int GetSortColumn() const { return m_nSortColumn; }
    void SetSortAscending(BOOL bAscending) { m_bSortAscending = bAscending; }
    BOOL GetSortAscending() const { return m_bSortAscending; }
    /// A click on a fixed row sorts by its column.
    void SetHeaderSort(BOOL bSortOnClick = TRUE) { m_bHeaderSort = bSortOnClick; }
    BOOL GetHeaderSort() const { return m_bHeaderSort; }

    /// A text file, one line for each row. Load puts the first field of each data line one row below the
    /// others: a file of more than one column does not come back as it was saved.
    BOOL Load(LPCWSTR szFileName, wchar_t chSeparator = L',');
    BOOL Save(LPCWSTR szFileName, wchar_t chSeparator = L',');
    /// Keeps the column widths in the application's profile from one run to the next; `n` tells the grids of
    /// one dialog apart. SetColumnWidth reads them, and nothing else does; the destructor writes them.
    void SetPersistentGridColumnsWidth(const CString& key, int n);

    /// The unit of a column, by index; indices do not follow columns that are inserted or deleted.
    void SetColComplexUnit(int nCol, const CComplexUnit& unit);
    void SetColComplexUnit(int nCol); ///< the column has no unit any more
    BOOL GetColComplexUnit(int nCol, CComplexUnit& unit);
    /// Null for a column without a unit; good until the units change.
    const CComplexUnit* FindColComplexUnit(int nCol) const { return m_mapColUnit.Find(nCol); }
    void ResetAllComplexUnits();
    /// Heads a column with a translated description and its unit, if there is one.
    void SetColDescription(int nCol, CComplexUnit* pUnit, CString desc);

    // ---- Plain settings -----------------------------------------------------------------------------------

    void SetImageList(CImageList* pList) { m_pImageList = pList; } ///< not owned
    CImageList* GetImageList() const { return m_pImageList; }
    /// Enter moves on like Tab, past cells that cannot be edited.
    void SetEnterIsTab(BOOL bEnterIsTab) { m_bEnterIsTab = bEnterIsTab; }
    /// The right button only ends an edit.
    void SetNeReagujNaDesniKlik(BOOL bNeReaguj) { m_bNeReagujNaDesniKlik = bNeReaguj; }
    void EnableDragAndDrop(BOOL bAllow = TRUE) { m_bDragAndDrop = bAllow; }
    BOOL GetDragAndDrop() const { return m_bDragAndDrop; }
    void SetRowResize(BOOL bResize = TRUE) { m_bAllowRowResize = bResize; }
    BOOL GetRowResize() const { return m_bAllowRowResize; }
    void SetColumnResize(BOOL bResize = TRUE) { m_bAllowColumnResize = bResize; }
    BOOL GetColumnResize() const { return m_bAllowColumnResize; }
    void SetHandleTabKey(BOOL bHandleTab = TRUE) { m_bHandleTabKey = bHandleTab; }
    BOOL GetHandleTabKey() const { return m_bHandleTabKey; }
    void SetDoubleBuffering(BOOL bBuffer = TRUE) { m_bDoubleBuffering = bBuffer; }
    BOOL GetDoubleBuffering() const { return m_bDoubleBuffering; }
    void EnableTitleTips(BOOL bEnable = TRUE) { m_bTitleTips = bEnable; }
    BOOL GetTitleTips() const { return m_bTitleTips; }
    /// The headers of the focus cell look pressed in.
    void SetTrackFocusCell(BOOL bTrack) { m_bTrackFocusCell = bTrack; }
    BOOL GetTrackFocusCell() const { return m_bTrackFocusCell; }
    void SetFrameFocusCell(BOOL bFrame) { m_bFrameFocusCell = bFrame; }
    BOOL GetFrameFocusCell() const { return m_bFrameFocusCell; }
    void SetAutoSizeStyle(int nStyle = GVS_BOTH) { m_nAutoSizeStyle = nStyle; }
    int GetAutoSizeStyle() const { return m_nAutoSizeStyle; }
    /// A divider may open a hidden column or row again.
    void EnableHiddenColUnhide(BOOL bEnable = TRUE) { m_bHiddenColUnhide = bEnable; }
    BOOL GetHiddenColUnhide() const { return m_bHiddenColUnhide; }
    void EnableHiddenRowUnhide(BOOL bEnable = TRUE) { m_bHiddenRowUnhide = bEnable; }
    BOOL GetHiddenRowUnhide() const { return m_bHiddenRowUnhide; }
    /// A drag may shrink a column or row to nothing.
    void EnableColumnHide(BOOL bEnable = TRUE) { m_bColumnHide = bEnable; }
    BOOL GetColumnHide() const { return m_bColumnHide; }
    void EnableRowHide(BOOL bEnable = TRUE) { m_bRowHide = bEnable; }
    BOOL GetRowHide() const { return m_bRowHide; }

    /// Answers the former mode.
    int SetMouseMode(int nMode);

    // ---- To be overridden ---------------------------------------------------------------------------------

    /// Answers the standard select-all command.
    afx_msg virtual void OnEditSelectAll();
    /// The press was on a fixed column, outside the fixed rows.
    virtual void OnFixedColumnClick(CCellID& cell);
    virtual void OnFixedRowClick(CCellID& cell);
    /// Starts an edit, if the cell may be edited and the parent does not forbid it. `nChar` as for the cell's
    /// Edit.
    virtual void OnEditCell(int nRow, int nCol, CPoint point, UINT nChar);
    /// The editor has ended: stores the text, or puts the old one back if cell or parent refuse it.
    virtual void OnEndEditCell(int nRow, int nCol, CString str);
    virtual BOOL ValidateEdit(int nRow, int nCol, LPCWSTR str);
    /// Ends the edit of the focus cell; its text is stored when this returns.
    virtual void EndEditing();

protected:
    virtual void OnDraw(CDC* pDC);
    virtual CGridCellBase* CreateCell(int nRow, int nCol);
    virtual void DestroyCell(int nRow, int nCol);

    void PreSubclassWindow() override;

    // ---- For derived grids --------------------------------------------------------------------------------

    /// What the mouse is doing.
    enum eMouseModes
    {
        MODE_NOTHING = 0,
        MODE_SELECT_ALL = 1,
        MODE_SELECT_COL = 2,
        MODE_SELECT_ROW = 3,
        MODE_SELECT_CELLS = 4,
        MODE_OVER_ROW_DIVIDE = 6,
        MODE_SIZING_ROW = 7,
        MODE_OVER_COL_DIVIDE = 8,
        MODE_SIZING_COL = 9,
        MODE_PREPARE_EDIT = 10, ///< the press was on the focus cell's text: an edit starts on release
    };
    int GetMouseMode() const { return m_nMouseMode; }

    static constexpr UINT_PTR AutoScrollTimerId = 0x201;

    BOOL RegisterWindowClass();
    BOOL Initialise();

    BOOL SetCell(int nRow, int nCol, CGridCellBase* pCell);

    LRESULT SendDisplayRequestToParent(GV_DISPINFO* pDispInfo) const;
    LRESULT SendCacheHintToParent(const CCellRange& range) const;
    LRESULT SendMessageToParent(int nRow, int nCol, int nCode) const;

    BOOL GetCellRangeRect(const CCellRange& range, RECT* pRect);
    CPoint GetPointClicked(int nRow, int nCol, const CPoint& point);
    /// With row and column raised to the first that is not fixed.
    CCellID RaisedToBody(CCellID cell) const;
    CCellID GetTopleftNonFixedCell(BOOL bForceRecalculation = FALSE);
    /// `pRect`, if given, receives what the visible cells and the fixed ones cover.
    CCellRange GetVisibleNonFixedCellRange(RECT* pRect = nullptr, BOOL bForceRecalculation = FALSE);
    /// Only those that show whole.
    CCellRange GetUnobstructedNonFixedCellRange(BOOL bForceRecalculation = FALSE);
    BOOL MouseOverRowResizeArea(CPoint& point);
    BOOL MouseOverColumnResizeArea(CPoint& point);

    int GetScrollPos32(int nBar, BOOL bGetTrackPos = FALSE);
    BOOL SetScrollPos32(int nBar, int nPos, BOOL bRedraw = TRUE);
    void EnableScrollBars(int nBar, BOOL bEnable = TRUE);
    void ResetScrollBars();
    BOOL IsVisibleVScroll() const { return (m_nBarState & BarBit(EGridWay::eRows)) != 0; }
    BOOL IsVisibleHScroll() const { return (m_nBarState & BarBit(EGridWay::eColumns)) != 0; }

    BOOL InvalidateCellRect(int nRow, int nCol);
    BOOL InvalidateCellRect(const CCellID& cell);
    BOOL InvalidateCellRect(const CCellRange& range);

    void ResetSelectedRange();
    void SelectAllCells();
    // From the anchor, m_selectionStart, to the cell.
    void SelectColumns(CCellID cell, BOOL bForceRepaint = FALSE, BOOL bSelectCells = TRUE);
    void SelectRows(CCellID cell, BOOL bForceRepaint = FALSE, BOOL bSelectCells = TRUE);
    void SelectCells(CCellID cell, BOOL bForceRepaint = FALSE, BOOL bSelectCells = TRUE);
    void OnSelecting(const CCellID& cell);

    void ValidateAndModifyCellContents(int nRow, int nCol, LPCWSTR str);

    /// Sorts the rows from `low` to `high`; `high` -1 means the last.
    BOOL SortItems(PFNGRIDCOMPARE pfnCompare, int nCol, BOOL bAscending, LPARAM data, int low, int high);

    // ---- Messages -----------------------------------------------------------------------------------------

    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCWSTR lpszSection);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnImeChar(WPARAM wParam, LPARAM lParam);
    afx_msg void OnEndInPlaceEdit(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnUpdateEditSelectAll(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

    // ---- State: colours -----------------------------------------------------------------------------------

    COLORREF m_crGridBk; ///< behind the cells
    COLORREF m_crGridLine;
    // These four are the system's as last read: a colour that differs is the user's.
    COLORREF m_crWindowText;
    COLORREF m_crWindow;
    COLORREF m_cr3DFace;
    COLORREF m_crShadow;
    COLORREF m_crTitleTipBack = CLR_INHERIT;
    COLORREF m_crTitleTipText = CLR_INHERIT;

    // ---- Virtual mode and units
    BOOL m_bVirtualMode = FALSE;
    LPARAM m_lCallbackParam = 0;
    GRIDCALLBACK m_pfnCallback = nullptr;
    CColumnUnits m_mapColUnit;

    // ---- Settings
    BOOL m_bEnterIsTab = FALSE;
    int m_nGridLines = GVL_BOTH;
    BOOL m_bEditable = TRUE;
    BOOL m_bModified = FALSE;
    BOOL m_bDragAndDrop = FALSE; ///< stored for its accessors only
    BOOL m_bListMode = FALSE;
    BOOL m_bSingleRowSelection = FALSE;
    BOOL m_bSingleColSelection = FALSE;
    BOOL m_bAllowDraw = TRUE; ///< while 0 nothing paints and the scroll bars stay as they are
    BOOL m_bEnableSelection = TRUE;
    BOOL m_bFixedRowSelection = TRUE;
    BOOL m_bFixedColumnSelection = TRUE;
    BOOL m_bHeaderSort = FALSE;
    BOOL m_bHandleTabKey = TRUE;
    BOOL m_bDoubleBuffering = FALSE;
    BOOL m_bTitleTips = TRUE;
    BOOL m_bHiddenColUnhide = TRUE;
    BOOL m_bHiddenRowUnhide = TRUE;
    BOOL m_bColumnHide = TRUE;
    BOOL m_bRowHide = TRUE;
    BOOL m_bTrackFocusCell = TRUE;
    BOOL m_bFrameFocusCell = TRUE;
    int m_nAutoSizeStyle = GVS_BOTH;

    // ---- Rows, columns, cells
    int m_nBarState = 0; ///< which scroll bars show: 1 for the horizontal one, 2 for the vertical
    CGridAxis m_rows;
    CGridAxis m_cols;
    int m_nVScrollMax = 0; ///< greatest value of each scroll bar's range in pixels, 0 without a bar
    int m_nHScrollMax = 0;
    CRuntimeClass* m_pCellClass;            ///< of new cells
    mutable CGridDefaultCell m_cellDefault; ///< handed out by a const operation for callers to change
    mutable CGridDefaultCell m_cellFixedCol;
    mutable CGridDefaultCell m_cellFixedRow;
    mutable CGridDefaultCell m_cellFixedRowCol;
    CImageList* m_pImageList = nullptr; ///< not owned
    CGridCells m_rowData;               ///< without rows in virtual mode

    // ---- Mouse
    int m_nMouseMode = MODE_NOTHING;
    BOOL m_bLButtonDown = FALSE;
    BOOL m_bRButtonDown = FALSE;
    CPoint m_ptClickClient; ///< where the left button was last pressed
    CPoint m_ptLastMouse;
    CCellID m_clickDownCell;  ///< the cell of the last press
    CCellID m_selectionStart; ///< the anchor of a range
    CCellID m_focusCell;
    CCellID m_topLeftCell; ///< the first body cell in view; negative in either field: to be computed afresh
    UINT_PTR m_nTimerId = 0;
    int m_nTimerInterval = 25;     ///< milliseconds between two steps of a drag beyond the edge
    int m_nResizeCaptureRange = 3; ///< pixels on either side of a divider
    BOOL m_bAllowRowResize = TRUE;
    BOOL m_bAllowColumnResize = TRUE;
    int m_nWheelLines; ///< lines for one notch of the wheel; -1: a page
    BOOL m_bNeReagujNaDesniKlik = FALSE;

    // ---- Selection
    CGridSelectionMap m_mapSelected;
    CGridSelectionMap m_mapPrevSelected; ///< what was selected when a Ctrl gesture began

    // ---- Sorting and files
    BOOL m_bSortAscending = TRUE;
    int m_nSortColumn = -1;
    PFNGRIDCOMPARE m_pfnCompare = nullptr;
    CString m_strPersistKey; ///< empty: widths are neither read nor written

private:
    friend class CGridCellColorCombo; ///< asks after the grid when its dialog closes
    class CLifeWatch;
    class CCellWatch;
    class CSortedRows;
    class CSelectPass;
    class CScrollRun;
    class CSizing;
    class CPress;
    class CKeyStroke;

    // Construction and settings
    std::array<CGridDefaultCell*, 4> DefaultCells();
    void SetupDefaultCells();
    void ReadSystemColors();
    void FollowSystemColors();
    void InvalidateGrid();
    void ForgetLastWindow();

    // Storage
    bool CountsChanged();
    BOOL SetCount(EGridWay way, int nCount);
    void DropLines(EGridWay way, int nCount);
    bool AppendRows(int nRows);
    bool AppendColumns(int nCols);
    BOOL SetFixedCount(EGridWay way, int nFixed);
    void MarkFixedCells(EGridWay way, int nFixed);
    template <class Prepare>
    int InsertLine(EGridWay way, int nAt, LPCWSTR strHeading, Prepare prepare);
    void PlaceLine(EGridWay way, int nIndex);
    BOOL DeleteLine(EGridWay way, int nLine);
    void RemoveLine(EGridWay way, int nLine);
    CCellRange CellsOf(EGridWay way, int nFirst, int nEnd) const;
    void RemoveCells(const CCellRange& range);
    CGridCells::MakeCell CellMaker();
    CGridCellBase* MakeVirtualCell(int nRow, int nCol) const;

    // Items
    CGridCellBase* GetCellToChange(int nRow, int nCol) const;
    void ItemChanged(CGridCellBase& cell, int nCol);
    void MarkItem(const CCellID& cell, UINT nBits, bool bOn);
    template <class Value>
    BOOL ChangeContents(int nRow, int nCol, void (CGridCellBase::*set)(Value), Value value);

    // Geometry
    CGridAxis& Axis(EGridWay way) { return way == EGridWay::eColumns ? m_cols : m_rows; }
    CSize GetClientSize() const;
    CGridView GetView(BOOL bForceRecalculation = FALSE);
    CCellRange AutoSizeSpan(UINT nStyle) const;
    BOOL SizeToCells(EGridWay way, const CCellRange& cells, const CCellRange& hint, BOOL bResetScroll);
    void FitColumnAndRows(int nCol, const CCellRange& span, CDC* pDC);
    void Expand(EGridWay way, BOOL bExpandFixed);

    // Scrolling
    static constexpr int BarBit(EGridWay way) { return 1 << gfnBarOf(way); }
    bool ShowBar(EGridWay way, bool bShow, const CLifeWatch& life);
    void OnScroll(EGridWay way, UINT nSBCode);
    void RepaintScrolled(const CRect& rect);
    bool SendScroll(EGridWay way, UINT nSBCode);

    // Drawing
    bool IsPainted(const CCellID& cell, CRect& rect);
    void InvalidatePixels(CRect rect);
    SGridColors RegionColors() const;
    void DrawCells(CDC& dc, const CGridPainter& painter);
    BOOL RedrawCellOn(CDC& dc, int nRow, int nCol, const CRect& rect);

    // Focus and selection
    void ShowFocus(const CCellID& cell, bool bFocused, const CCellID& other);
    void SelectBy(int nMode, const CCellID& cell);
    int BodyMode() const { return m_bListMode ? MODE_SELECT_ROW : MODE_SELECT_CELLS; }
    void SelectLines(EGridWay way, BOOL bOne, const CCellID& cell, BOOL bForceRepaint, BOOL bSelectCells);

    // Mouse
    bool FindDivider(CPoint point);
    void Hover(CPoint point);
    bool Drag(CPoint point);
    bool DragSelection(const CCellID& cell);
    void TellClick(CPoint pointInCell);
    void TellDoubleClick(const CCellID& cell, CPoint point);
    void StepSelection(UINT nKey, CPoint pointAtEdge);

    // Keyboard
    bool StartsEdit(UINT nChar) const;

    // Editing
    bool EndEditFirst();
    bool OfferText(int nRow, int nCol, const CString& str);

    // Sorting
    bool PrepareSort(int nCol, BOOL bAscending);

    CGridScrollBars m_bars{*this};
    CScrollRun* m_pScrollRun = nullptr;  ///< the operation that scrolls many steps now
    CLifeWatch* m_pFirstWatch = nullptr; ///< the watches that stand on the stack now
    CCellWatch* m_pFirstCellWatch = nullptr;
    unsigned m_nStructure = 0; ///< raised whenever rows, columns or cells come or go
    bool m_bPressLost = false; ///< the press that is being answered: nothing more may come of it
};
