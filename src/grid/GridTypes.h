#pragma once
// The values that a grid, its cells and its parent exchange: addresses, ranges, item descriptions and the
// records of its notifications.

#include <afxwin.h>

#include <commctrl.h>

/// The address of a cell. -1 in either field means no cell.
class CCellID
{
public:
    int row; ///< from 0
    int col; ///< from 0

    CCellID() : row(-1), col(-1) {}
    CCellID(int nRow, int nCol) : row(nRow), col(nCol) {}

    /// Whether both fields can be an index; how large the grid is, only the grid knows.
    bool IsValid() const { return row >= 0 && col >= 0; }
    friend bool operator==(const CCellID&, const CCellID&) = default;
};

/// A rectangle of cells, both ends inclusive; all fields -1 is the empty range.
class CCellRange
{
public:
    int minRow; ///< top
    int minCol; ///< left
    int maxRow; ///< bottom, the last row of the range
    int maxCol; ///< right, the last column of the range

    CCellRange() : minRow(-1), minCol(-1), maxRow(-1), maxCol(-1) {}
    CCellRange(int nMinRow, int nMinCol, int nMaxRow, int nMaxCol)
        : minRow(nMinRow), minCol(nMinCol), maxRow(nMaxRow), maxCol(nMaxCol)
    {
    }

    /// Whether the cell lies inside.
    bool InRange(int nRow, int nCol) const
    {
        return nRow >= minRow && nRow <= maxRow && nCol >= minCol && nCol <= maxCol;
    }
    /// Calls the work with each row and column, row by row.
    template <class Work>
    void ForEach(Work work) const
    {
        for (int nRow = minRow; nRow <= maxRow; ++nRow)
            for (int nCol = minCol; nCol <= maxCol; ++nCol)
                work(nRow, nCol);
    }
    friend bool operator==(const CCellRange&, const CCellRange&) = default;
};

// ---- State of a cell: bits of GetItemState ----------------------------------------------------------------

constexpr DWORD CELL_FOCUSED = 0x01;     ///< has the focus of the grid
constexpr DWORD CELL_SELECTED = 0x02;    ///< is selected
constexpr DWORD CELL_DROPHILITED = 0x04; ///< is shown as the target of a drop
constexpr DWORD CELL_READONLY = 0x08;    ///< cannot be edited by the user
constexpr DWORD CELL_FIXED = 0x10;       ///< in a fixed row or a fixed column
constexpr DWORD CELL_FIXEDROW = 0x20;    ///< in a fixed row
constexpr DWORD CELL_FIXEDCOL = 0x40;    ///< in a fixed column
constexpr DWORD CELL_MODIFIED = 0x80;    ///< was changed by the user

/// The colour that stands for the default cell's; no colour that could be shown.
constexpr COLORREF CLR_INHERIT = 0xFF000000;

/// The format and the margin that stand for the default cell's.
constexpr UINT GV_INHERIT = 0xFFFFFFFF;

// ---- One cell, described ----------------------------------------------------------------------------------

constexpr UINT GV_MASK_TEXT = 0x001;     ///< strText
constexpr UINT GV_MASK_IMAGE = 0x002;    ///< iImage
constexpr UINT GV_MASK_PARAM = 0x004;    ///< lParam
constexpr UINT GV_MASK_STATE = 0x008;    ///< nState
constexpr UINT GV_MASK_BKCLR = 0x010;    ///< crBkClr
constexpr UINT GV_MASK_FGCLR = 0x020;    ///< crFgClr
constexpr UINT GV_MASK_FORMAT = 0x040;   ///< nFormat
constexpr UINT GV_MASK_FONT = 0x080;     ///< lfFont
constexpr UINT GV_MASK_MARGIN = 0x100;   ///< nMargin
constexpr UINT GV_MASK_ALL = 0xFFFFFFFF; ///< all of them

/// A cell, or what a caller sets or asks of one.
struct _GV_ITEM
{
    int row = 0;                    ///< of the cell, from 0
    int col = 0;                    ///< of the cell, from 0
    UINT mask = 0;                  ///< GV_MASK_ bits: which of the fields below count
    UINT nState = 0;                ///< CELL_ bits
    UINT nFormat = 0;               ///< DT_ flags of DrawText
    int iImage = -1;                ///< index in the grid's image list, -1 for none
    COLORREF crBkClr = CLR_INHERIT; ///< of the background
    COLORREF crFgClr = CLR_INHERIT; ///< of the text
    LPARAM lParam = 0;              ///< the caller's own value
    LOGFONTW lfFont{};              ///< of the text
    UINT nMargin = 0;               ///< pixels between the cell's edge and its text
    CString strText;                ///< what the cell shows
};
/// The record's name in callers.
using GV_ITEM = _GV_ITEM;

// ---- Records of WM_NOTIFY ---------------------------------------------------------------------------------

/// LVN_GETDISPINFOW of a virtual grid, and LVN_ENDLABELEDITW from an in-place editor to its grid.
struct tagGV_DISPINFO
{
    NMHDR hdr{};  ///< the sender, its id, the notification
    GV_ITEM item; ///< the cell, and what is asked of it or known
};
/// The record's name in callers.
using GV_DISPINFO = tagGV_DISPINFO;

/// All other notifications of a grid.
struct GridNotify
{
    NMHDR hdr;   ///< the sender, its id, the notification
    int iRow;    ///< of the cell, -1 for none
    int iColumn; ///< of the cell, -1 for none
};

/// LVN_ODCACHEHINT: the cells that the grid is about to ask for; the empty range when it is done.
struct GridCacheHint
{
    NMHDR hdr;        ///< the sender, its id, the notification
    CCellRange range; ///< of cells
};

/// Fills in the cell of a virtual grid; see CGridCtrl::SetCallbackFunc.
using GRIDCALLBACK = int (*)(GV_DISPINFO* pDispInfo, LPARAM lParam);

/// Compares two cells, given as CGridCellBase*: negative, 0 or positive. The third is the caller's value.
using PFNGRIDCOMPARE = int (*)(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

/// The control id of every in-place editor.
constexpr UINT InPlaceControlId = 8;
