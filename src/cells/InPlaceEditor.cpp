#include <afxwin.h>

#include "cells/InPlaceEditor.h"

#include "cells/GridCell.h"
#include "grid/NotifyOwner.h"

#include <utility>

CInPlaceEditor::CInPlaceEditor(CWnd& window, int nRow, int nColumn, const CString& strInitText,
                               BOOL bExitOnArrows)
    : m_nRow(nRow), m_nColumn(nColumn), m_sInitText(strInitText), m_bExitOnArrows(bExitOnArrows),
      m_window(window)
{
}

CInPlaceEditor::~CInPlaceEditor()
{
    if (!m_pCell)
        return;
    m_pCell->m_bEditing = FALSE;
    m_pCell->m_pEditWnd = nullptr;
}

void CInPlaceEditor::DeleteWithWindow()
{
    if (m_bConstructed)
        delete this;
}

void CInPlaceEditor::SelectForFirstChar(CWnd& edit, UINT nChar)
{
    edit.SendMessage(EM_SETSEL, gfnKeepsText(nChar) ? edit.GetWindowTextLength() : 0, -1);
    edit.SendMessage(EM_SCROLLCARET);
}

bool CInPlaceEditor::LeaveByMoveKey(UINT nChar)
{
    if (!gfnIsCellMoveKey(nChar) || !(m_bExitOnArrows || ::GetKeyState(VK_CONTROL) < 0))
        return false;
    Leave(nChar);
    return true;
}

void CInPlaceEditor::Leave(UINT nLastChar)
{
    m_nLastChar = nLastChar;
    Leave();
}

void CInPlaceEditor::Leave()
{
    if (CWnd* const pParent = m_window.GetParent())
        pParent->SetFocus();
}

void CInPlaceEditor::NotifyEnd(const CString& strText)
{
    if (std::exchange(m_bTold, true))
        return;
    const HWND hWnd = m_window.m_hWnd;
    GV_DISPINFO info;
    info.item.row = m_nRow;
    info.item.col = m_nColumn;
    info.item.mask = GV_MASK_TEXT | GV_MASK_PARAM;
    info.item.lParam = static_cast<LPARAM>(m_nLastChar);
    info.item.strText = strText;
    gfnNotifyOwner(&m_window, info.hdr, LVN_ENDLABELEDITW);

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
