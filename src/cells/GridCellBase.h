#pragma once
// The contract between a grid and a cell.
//
// Every square of a CGridCtrl holds one cell object. This class declares all that the grid asks of it, and
// implements measuring and the state queries in terms of those operations, and drawing through
// CGridCellPainter; CGridCell adds storage and a text editor, and CGridDefaultCell supplies what cells
// inherit. A kind of cell of one's own derives from CGridCell, is made with DECLARE_DYNCREATE, and is given
// to the grid by its class:
//
// ```cpp
//     class CStarCell : public CGridCell
//     {
//         DECLARE_DYNCREATE(CStarCell)
//         BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;
//     };
// ```
// ```cpp
//     m_grid.SetCellType(2, 3, RUNTIME_CLASS(CStarCell));
// ```
//
// Inheritance. The format and the margin GV_INHERIT, the colour CLR_INHERIT and a null font mean that the
// grid's default cell for this kind of place decides: one each for the body, fixed columns, fixed rows and
// the corner. GetFormat, GetMargin and GetFont answer the inherited value; GetTextClr and GetBackClr answer
// what is stored, and only Draw resolves it.
//
//        left                                              right
//     top +--------------------------------------------------+
//         | frame / raised edge, 1 pixel, if there is one    |
//         |  <margin> image <margin> text      arrow <margin>|
//         |                                                  |
//         +--------------------------------------------------+ bottom: the last pixel, inclusive
//
// The grid creates and destroys cells. Everything runs on the thread of the grid's window.

#include <afxwin.h>

#include <cstddef>
#include <new>

#include "grid/GridTypes.h"
#include "module/Export.h"

class CGridCtrl;

class OW_DIALOGCONTROLS_API CGridCellBase : public CObject
{
    DECLARE_DYNCREATE(CGridCellBase)

public:
    CGridCellBase();
    ~CGridCellBase() override;

    /// Cells are made in blocks: cells/CellMemory.h. Raises MFC's memory exception if there is no room.
    static void* operator new(std::size_t nSize);
    /// No room is kept for cells that are aligned more strictly than any basic type.
    static void* operator new(std::size_t nSize, std::align_val_t alignment) = delete;
    static void* operator new(std::size_t, void* pPlace) noexcept { return pPlace; }
    static void operator delete(void* p, std::size_t nSize) noexcept;
    static void operator delete(void*, void*) noexcept {}
#if defined(_DEBUG)
    // For clients that redefine new as DEBUG_NEW.
    static void* operator new(std::size_t nSize, LPCSTR pszFile, int nLine);
#endif

    void Serialize(CArchive& ar) override;
#ifdef _DEBUG
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;
#endif

    // What a cell holds. This class holds but a state; kinds of cells override what they have.
    virtual void SetText(LPCWSTR pszText);
    virtual void SetImage(int nImage);
    virtual void SetData(LPARAM lParam);
    virtual void SetState(DWORD nState);
    virtual void SetFormat(DWORD nFormat);
    virtual void SetTextClr(COLORREF clr);
    virtual void SetBackClr(COLORREF clr);
    /// Null goes back to the inherited font.
    virtual void SetFont(const LOGFONTW* plf);
    virtual void SetMargin(UINT nMargin);
    virtual void SetGrid(CGridCtrl* pGrid);
    /// Tells the cell where it stands now.
    virtual void SetCoords(int nRow, int nCol);

    // The same, read: nothing, or zero, for what the kind of cell does not hold.
    virtual LPCWSTR GetText();
    virtual LPCWSTR GetTipText();
    virtual int GetImage();
    virtual LPARAM GetData();
    virtual DWORD GetState();
    virtual DWORD GetFormat();
    virtual COLORREF GetTextClr();
    virtual COLORREF GetBackClr();
    virtual LOGFONTW* GetFont();
    /// The font to draw with. Belongs to the cell class, and is good until the next call for any cell.
    virtual CFont* GetFontObject();
    virtual CGridCtrl* GetGrid();
    /// The editor while an edit runs.
    virtual CWnd* GetEditWnd();
    virtual UINT GetMargin();
    /// The grid's default cell for a place like this one; null without a grid.
    virtual CGridCellBase* GetDefaultCell();

    // Not bits of the state.
    virtual BOOL IsDefaultFont();
    virtual BOOL IsEditing();

    // Each answers the state bit itself, not 0 or 1.
    virtual BOOL IsFocused();
    virtual BOOL IsFixed();
    virtual BOOL IsFixedCol();
    virtual BOOL IsFixedRow();
    virtual BOOL IsSelected();
    virtual BOOL IsReadOnly();
    virtual BOOL IsModified();
    virtual BOOL IsDropHighlighted();

    /// Takes over what the other shows. An inherited format or margin arrives as a value; an inherited font
    /// stays so.
    virtual void operator=(const CGridCellBase& cell);
    /// Clears the state; kinds of cells clear what they hold as well.
    virtual void Reset();

    /// `rect` holds the cell's last pixel. FALSE if there is nothing to draw or no grid to ask.
    virtual BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd);
    /// Leaves of the cell's rectangle what the text may take.
    virtual BOOL GetTextRect(LPRECT pRect);
    /// The part that a text tip covers.
    virtual BOOL GetTipTextRect(LPRECT pRect);
    /// Room for a text in this cell's font and format, margins included. Without `pDC` the grid's window is
    /// asked.
    virtual CSize GetTextExtent(LPCWSTR pszText, CDC* pDC = nullptr);
    /// Room for the cell's own text and its image.
    virtual CSize GetCellExtent(CDC* pDC);

    /// Starts an editor over `rect`. `nChar` is the key that started it; VK_LBUTTON stands for the mouse.
    virtual BOOL Edit(int nRow, int nCol, CRect rect, CPoint point, UINT nID, UINT nChar);
    /// Whether a text that the user entered, already stored, may stay.
    virtual BOOL ValidateEdit(LPCWSTR pszText);
    /// Asks the running editor to finish.
    virtual void EndEdit();
    /// Cells do not print.
    virtual BOOL PrintCell(CDC* pDC, int nRow, int nCol, CRect rect);
    /// The grid has dealt with the end of an edit.
    virtual void OnEndEdit();

    // Points are relative to the cell's top left.
    virtual void OnMouseEnter();
    virtual void OnMouseOver();
    virtual void OnMouseLeave();
    virtual void OnClick(CPoint point);
    virtual void OnClickDown(CPoint point);
    virtual void OnRClick(CPoint point);
    virtual void OnDblClick(CPoint point);
    virtual BOOL OnSetCursor();

    /// Sends a GridNotify record to the grid's owner, or its parent. 0 without a grid, a window or a
    /// receiver.
    LRESULT SendMessageToParent(int nRow, int nCol, int nMessage);

    /// Size of the image in the grid's image list, as right minus left and bottom minus top of its rectangle
    /// there; false if the cell shows none.
    bool GetImageSize(CSize& size);

protected:
    DWORD m_nState = 0;

private:
    CSize MeasureText(CDC& dc, LPCWSTR pszText);
};
