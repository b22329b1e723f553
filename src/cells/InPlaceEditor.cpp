#include <afxwin.h>

#include "cells/InPlaceEditor.h"

#include "cells/GridCell.h"
#include "grid/NotifyOwner.h"

#include <utility>

CInPlaceEditor::~CInPlaceEditor()
{
    if (!m_pCell)
        return;
    m_pCell->m_bEditing = FALSE;
    m_pCell->m_pEditWnd = nullptr;
}

void CInPlaceEditor::NotifyEnd(CWnd& editor, int nRow, int nColumn, UINT nLastChar, const CString& strText)
{
    if (std::exchange(m_bTold, true))
        return;
    const HWND hWnd = editor.m_hWnd;
    GV_DISPINFO info;
    info.item.row = nRow;
    info.item.col = nColumn;
    info.item.mask = GV_MASK_TEXT | GV_MASK_PARAM;
    info.item.lParam = static_cast<LPARAM>(nLastChar);
    info.item.strText = strText;
    gfnNotifyOwner(&editor, info.hdr, LVN_ENDLABELEDITW);

    if (::IsWindow(hWnd))
        ::PostMessage(hWnd, WM_CLOSE, 0, 0);
}

bool gfnIsCellMoveKey(UINT nChar)
{
    switch (nChar)
    {
    case VK_PRIOR:
    case VK_NEXT:
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        return true;
    default:
        return false;
    }
}
