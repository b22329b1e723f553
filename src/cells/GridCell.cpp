#include <afxwin.h>

#include "cells/GridCell.h"

#include "cells/InPlaceEdit.h"
#include "grid/GridCtrl.h"

#include <cstring>
#include <memory>
#include <new>

IMPLEMENT_DYNCREATE(CGridCell, CGridCellBase)

namespace
{
/// To the byte: what lies behind the end of a face name may tell two fonts apart that are the same, which
/// only costs time.
bool IsSameFont(const LOGFONTW* plf1, const LOGFONTW* plf2)
{
    return plf1 && plf2 && memcmp(plf1, plf2, sizeof *plf1) == 0;
}

/// The one font object behind every cell with a font of its own: made anew when another description is asked
/// for. Process-wide and unguarded; only the thread of the dialogs asks.
CFont* SharedFont(const LOGFONTW& lf)
{
    static CFont font;
    static LOGFONTW made;
    if (font.GetSafeHandle() && IsSameFont(&made, &lf))
        return &font;
    font.DeleteObject();
    font.CreateFontIndirect(&lf);
    made = lf;
    return &font;
}

UINT EditStyleOf(UINT nFormat)
{
    if (nFormat & DT_RIGHT)
        return ES_RIGHT;
    return nFormat & DT_CENTER ? ES_CENTER : ES_LEFT;
}
} // namespace

CGridCell::CGridCell()
{
}

CGridCell::~CGridCell()
{
    if (m_pEditWnd && !m_pEditWnd->m_hWnd)
    {
        // An editor whose window could not be made: nobody else knows of it.
        CWnd* const pEditWnd = m_pEditWnd;
        SetEditWnd(nullptr);
        delete pEditWnd;
    }
    SetEditWnd(nullptr);
    delete m_plfFont;
}

void CGridCell::operator=(const CGridCell& cell)
{
    CGridCellBase::operator=(cell);
}

// ---- Contents ---------------------------------------------------------------------------------------------

void CGridCell::SetText(LPCWSTR pszText)
{
    m_strText = pszText;
}

void CGridCell::SetImage(int nImage)
{
    m_nImage = nImage;
}

void CGridCell::SetData(LPARAM lParam)
{
    m_lParam = lParam;
}

void CGridCell::SetFormat(DWORD nFormat)
{
    m_nFormat = nFormat;
}

void CGridCell::SetTextClr(COLORREF clr)
{
    m_crFgClr = clr;
}

void CGridCell::SetBackClr(COLORREF clr)
{
    m_crBkClr = clr;
}

void CGridCell::SetFont(const LOGFONTW* plf)
{
    if (!plf)
    {
        delete m_plfFont;
        m_plfFont = nullptr;
        return;
    }
    if (!m_plfFont)
        m_plfFont = new LOGFONTW;
    *m_plfFont = *plf;
}

void CGridCell::SetMargin(UINT nMargin)
{
    m_nMargin = nMargin;
}

void CGridCell::SetGrid(CGridCtrl* pGrid)
{
    m_pGrid = pGrid;
}

LPCWSTR CGridCell::GetText()
{
    return m_strText.GetString();
}

int CGridCell::GetImage()
{
    return m_nImage;
}

LPARAM CGridCell::GetData()
{
    return m_lParam;
}

// A default cell is its own default cell, and must not ask itself for ever.

DWORD CGridCell::GetFormat()
{
    if (m_nFormat < GV_INHERIT)
        return m_nFormat;
    CGridCellBase* const pDefault = GetDefaultCell();
    return pDefault && pDefault != this ? pDefault->GetFormat() : 0;
}

COLORREF CGridCell::GetTextClr()
{
    return m_crFgClr;
}

COLORREF CGridCell::GetBackClr()
{
    return m_crBkClr;
}

LOGFONTW* CGridCell::GetFont()
{
    if (m_plfFont)
        return m_plfFont;
    CGridCellBase* const pDefault = GetDefaultCell();
    return pDefault ? pDefault->GetFont() : nullptr;
}

// The cell of virtual mode always has a font of its own, which mostly is that of its default cell.
CFont* CGridCell::GetFontObject()
{
    CGridCellBase* const pDefault = GetDefaultCell();
    if (m_plfFont && !(pDefault && IsSameFont(m_plfFont, pDefault->GetFont())))
        return SharedFont(*m_plfFont);
    return pDefault ? pDefault->GetFontObject() : nullptr;
}

CGridCtrl* CGridCell::GetGrid()
{
    return m_pGrid;
}

CWnd* CGridCell::GetEditWnd()
{
    return m_pEditWnd;
}

UINT CGridCell::GetMargin()
{
    if (m_nMargin < GV_INHERIT)
        return m_nMargin;
    CGridCellBase* const pDefault = GetDefaultCell();
    return pDefault && pDefault != this ? pDefault->GetMargin() : 0;
}

BOOL CGridCell::IsDefaultFont()
{
    return m_plfFont == nullptr;
}

BOOL CGridCell::IsEditing()
{
    return m_bEditing;
}

void CGridCell::Reset()
{
    CGridCellBase::Reset();
    m_strText.Empty();
    m_nImage = -1;
    m_pGrid = nullptr;
    m_bEditing = FALSE;
    SetEditWnd(nullptr);
    m_nFormat = GV_INHERIT;
    m_nMargin = GV_INHERIT;
    m_crBkClr = CLR_INHERIT;
    m_crFgClr = CLR_INHERIT;
    CGridCell::SetFont(nullptr);
}

// ---- Editing ----------------------------------------------------------------------------------------------

BOOL CGridCell::Edit(int nRow, int nCol, CRect rect, CPoint /*point*/, UINT nID, UINT nChar)
{
    if (m_bEditing)
    {
        if (m_pEditWnd)
            m_pEditWnd->SendMessage(WM_CHAR, nChar);
        return TRUE;
    }
    if (!GetGrid())
        return FALSE; // a class that keeps none
    m_bEditing = TRUE;
    SetEditWnd(
        new CInPlaceEdit(GetGrid(), rect, EditStyleOf(GetFormat()), nID, nRow, nCol, GetText(), nChar));
    return TRUE;
}

void CGridCell::EndEdit()
{
    if (auto* const pEditor = dynamic_cast<CInPlaceEditor*>(m_pEditWnd))
        pEditor->EndEdit();
}

void CGridCell::OnEndEdit()
{
    m_bEditing = FALSE;
    SetEditWnd(nullptr);
}

void CGridCell::SetEditWnd(CWnd* pEditWnd)
{
    if (auto* const pOld = dynamic_cast<CInPlaceEditor*>(m_pEditWnd))
        pOld->m_pCell = nullptr;
    m_pEditWnd = pEditWnd;
    if (auto* const pNew = dynamic_cast<CInPlaceEditor*>(pEditWnd))
        pNew->m_pCell = this;
}
