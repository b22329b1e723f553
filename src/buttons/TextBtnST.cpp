#include <afxwin.h>

#include "buttons/TextBtnST.h"

#include "buttons/DropButton.h"
#include "buttons/DropMenu.h"

namespace
{
constexpr UINT kFirstCommand = 36914;
constexpr int kArrowRoom = 4; // pixels

/// Ampersands are doubled: the user sees each as it was given.
CString MenuLabel(const CString& strText, const CString& strDescription)
{
    CString strLabel = strDescription.IsEmpty() ? strText : strText + L" - " + strDescription;
    strLabel.Replace(L"&", L"&&");
    return strLabel;
}
} // namespace

CTextBtnST::CTextBtnST() : CTextBtnST(nullptr)
{
}

CTextBtnST::CTextBtnST(ATextBtnSTNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CTextBtnST, CButtonST)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CTextBtnST::OnClicked)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

// False: the parent receives the command, too, unless it may have gone with the button.
BOOL CTextBtnST::OnClicked()
{
    CButtonST::OnClicked();
    const std::shared_ptr<CMenu> pOpen = m_pMenu;
    if (!pOpen || pOpen->GetMenuItemCount() == 0)
        return FALSE;
    return !gfnTrackDropMenu(*this, *pOpen);
}

void CTextBtnST::OnSysColorChange()
{
    CButtonST::OnSysColorChange();
    CreateTextMenu();
}

// ---- Messages outside the map -----------------------------------------------------------------------------

void CTextBtnST::PreSubclassWindow()
{
    gfnBecomePushButton(*this);
    CButtonST::PreSubclassWindow();
}

BOOL CTextBtnST::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND hWnd = m_hWnd;
    const int nIndex = ChosenIndex(static_cast<UINT>(wParam));
    if (m_pnSource)
        *m_pnSource = nIndex;
    if (m_pHandler)
        m_pHandler->OnTextChosen(GetDlgCtrlID(), nIndex);
    return gfnEndDropChoice(*this, hWnd) ? CButtonST::OnCommand(wParam, lParam) : TRUE;
}

// Wanted: commands below the first are not looked for, and give a negative index.
int CTextBtnST::ChosenIndex(UINT nCommand) const
{
    if (nCommand < kFirstCommand + TextCount())
        return static_cast<int>(nCommand - kFirstCommand);
    return m_pnSource ? *m_pnSource : 0;
}

// ---- Texts ------------------------------------------------------------------------------------------------

void CTextBtnST::SetEnumSource(int* pnSource)
{
    m_pnSource = pnSource;
    if (pnSource && m_hWnd)
        Invalidate(FALSE);
}

void CTextBtnST::SetTexts(const OCArray<CString>& texts)
{
    SetTexts(texts, OCArray<CString>());
}

void CTextBtnST::SetTexts(const OCArray<CString>& texts, const OCArray<CString>& descriptions)
{
    m_texts = texts;
    m_descriptions = descriptions;
    CreateTextMenu();
}

int CTextBtnST::TextCount() const
{
    return static_cast<int>(m_texts.GetSize());
}

const CString& CTextBtnST::GetText(int nIndex) const
{
    return m_texts[nIndex];
}

// A menu that is open stays till it closes.
void CTextBtnST::CreateTextMenu()
{
    m_pMenu = std::make_shared<CMenu>();
    m_pMenu->CreatePopupMenu();
    for (int i = 0; i < TextCount(); ++i)
    {
        const CString strDescription = i < m_descriptions.GetSize() ? m_descriptions[i] : CString();
        m_pMenu->AppendMenu(MF_STRING, kFirstCommand + i, MenuLabel(m_texts[i], strDescription));
    }
}

// ---- Drawing ----------------------------------------------------------------------------------------------

DWORD CTextBtnST::OnDrawBackground(CDC* pDC, CRect& rect)
{
    const DWORD nResult = CButtonST::OnDrawBackground(pDC, rect);
    gfnDrawDropArrow(*pDC, gfnDropFace(rect, m_bIsPressed), m_bIsDisabled);
    return nResult;
}

void CTextBtnST::DrawItemHook_CalcRect(CDC* pDC, const CString& strText, CRect& rect)
{
    CButtonST::DrawItemHook_CalcRect(pDC, strText, rect);
    rect.OffsetRect(-kArrowRoom, 0);
}
