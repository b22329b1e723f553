#pragma once
// The ordinary cell: keeps text, image, data, colours, font and format, and edits its text with a
// CInPlaceEdit.
//
// A cell that inherits everything holds nothing but its text; a font description is allocated only for a cell
// that was given one.

#include <afxwin.h>

#include "cells/GridCellBase.h"

class CInPlaceEditor;

class OW_DIALOGCONTROLS_API CGridCell : public CGridCellBase
{
    DECLARE_DYNCREATE(CGridCell)
    friend class CInPlaceEditor; ///< lets go of the cell when it is destroyed

public:
    CGridCell();
    ~CGridCell() override;
    CGridCell(const CGridCell&) = delete;
    using CGridCellBase::operator=;
    void operator=(const CGridCell& cell);

    void SetText(LPCWSTR pszText) override;
    void SetImage(int nImage) override;
    void SetData(LPARAM lParam) override;
    void SetFormat(DWORD nFormat) override;
    void SetTextClr(COLORREF clr) override;
    void SetBackClr(COLORREF clr) override;
    void SetFont(const LOGFONTW* plf) override;
    void SetMargin(UINT nMargin) override;
    void SetGrid(CGridCtrl* pGrid) override;

    LPCWSTR GetText() override;
    int GetImage() override;
    LPARAM GetData() override;
    DWORD GetFormat() override;
    COLORREF GetTextClr() override;
    COLORREF GetBackClr() override;
    LOGFONTW* GetFont() override;
    CFont* GetFontObject() override;
    CGridCtrl* GetGrid() override;
    CWnd* GetEditWnd() override;
    UINT GetMargin() override;

    BOOL IsDefaultFont() override;
    BOOL IsEditing() override;

    void Reset() override;

    BOOL Edit(int nRow, int nCol, CRect rect, CPoint point, UINT nID, UINT nChar) override;
    void EndEdit() override;
    void OnEndEdit() override;

protected:
    /// Remembers the editor of this edit, or forgets it. An editor of this library that goes away by itself,
    /// with the grid's window for instance, is forgotten by itself, and the cell then counts as not being
    /// edited.
    void SetEditWnd(CWnd* pEditWnd);

    // In this order the small fields fill up the words between the large ones.
    CString m_strText;
    LPARAM m_lParam = 0; ///< Reset leaves it as it is
    int m_nImage = -1;
    DWORD m_nFormat = GV_INHERIT;
    COLORREF m_crFgClr = CLR_INHERIT;
    COLORREF m_crBkClr = CLR_INHERIT;
    LOGFONTW* m_plfFont = nullptr; ///< owned
    UINT m_nMargin = GV_INHERIT;
    BOOL m_bEditing = FALSE;
    CGridCtrl* m_pGrid = nullptr; ///< not owned
    CWnd* m_pEditWnd = nullptr;   ///< not owned: it deletes itself
};
