#include <afxwin.h>

#include "cells/AnsiGridCell.h"

#include "grid/GridCtrl.h"

#include <Translator.h>

IMPLEMENT_DYNCREATE(CAnsiGridCell, CGridCell)

namespace
{
BYTE CharacterSetOf(const ClTranslator* pTranslator)
{
    return (pTranslator ? *pTranslator : gOtSubLang).GetCurrentCharacterSet();
}

bool IsForeign(BYTE nCharSet)
{
    return nCharSet != ClTranslator::GetDisplayCharacterSet();
}

void SetCharacterSet(CGridDefaultCell& cell, BYTE nCharSet)
{
    LOGFONTW lf = *cell.GetFont();
    lf.lfCharSet = nCharSet;
    cell.SetFont(&lf);
}
} // namespace

CAnsiGridCell::CAnsiGridCell(const ClTranslator* pTranslator)
    : m_bAnsiNeeded(IsForeign(CharacterSetOf(pTranslator)))
{
}

void CAnsiGridCell::operator=(const CAnsiGridCell& cell)
{
    CGridCellBase::operator=(cell);
}

void CAnsiGridCell::InitializeAnsiGrid(CGridCtrl& grid, const ClTranslator* pTranslator)
{
    const BYTE nCharSet = CharacterSetOf(pTranslator);
    if (!IsForeign(nCharSet))
        return;
    for (const BOOL bFixedRow : {FALSE, TRUE})
        for (const BOOL bFixedCol : {FALSE, TRUE})
            SetCharacterSet(*grid.GetDefaultCell(bFixedRow, bFixedCol), nCharSet);
    grid.SetDefaultCellType(RUNTIME_CLASS(CAnsiGridCell));
}

BOOL CAnsiGridCell::Edit(int nRow, int nCol, CRect rect, CPoint point, UINT nID, UINT nChar)
{
    const bool bWasOpen = m_pEditWnd != nullptr;
    const CString strText = GetText();
    CGridCell::Edit(nRow, nCol, rect, point, nID, nChar);
    auto* const pEditor = dynamic_cast<CEdit*>(m_pEditWnd);
    if (m_bAnsiNeeded && !bWasOpen && pEditor && ::IsWindow(pEditor->m_hWnd))
        PrepareEditor(*pEditor, strText);
    return TRUE;
}

/// The text went in before the font did, and is set again. The selection stays: a key that began the edit is
/// still on its way, and is to replace what it would replace in any cell.
void CAnsiGridCell::PrepareEditor(CEdit& editor, const CString& strText)
{
    m_hook.Unhook(); // the editor of the last edit may be about to close, and not closed yet
    m_hook.HookWindow(&editor);

    int nStart = 0, nEnd = 0;
    editor.GetSel(nStart, nEnd);
    editor.SetWindowText(strText);
    editor.SetSel(nStart, nEnd);
    editor.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}
