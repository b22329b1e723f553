#include <afxwin.h>

#include "edits/EditCtrlAnsiMsgHook.h"

#include "edits/EditCtrlAnsiInterface.h"

#include <Translator.h>

#include <algorithm>

namespace
{
/// Null for a window that draws with the system's font, and for no window.
HFONT FontOf(const CWnd* pWnd)
{
    return pWnd ? reinterpret_cast<HFONT>(::SendMessage(pWnd->m_hWnd, WM_GETFONT, 0, 0)) : nullptr;
}

void GiveFont(const CWnd& wnd, HFONT hFont)
{
    ::SendMessage(wnd.m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(hFont), TRUE);
}
} // namespace

CEditCtrlAnsiMsgHook::CEditCtrlAnsiMsgHook()
{
}

CEditCtrlAnsiMsgHook::~CEditCtrlAnsiMsgHook()
{
    _DeleteCustomFont();
}

int CEditCtrlAnsiMsgHook::HookWindow(CWnd* pWnd)
{
    const unsigned char nCharSet = gOtSubLang.GetCurrentCharacterSet();
    if (nCharSet == ClTranslator::GetDisplayCharacterSet())
        return 1;
    // Of the last box, which still shows it if it was left through the base class, and may be this one.
    CFont left;
    if (!IsHooked())
        GiveUpFont(left);
    const int nHooked = CMsgHook::HookWindow(pWnd);
    _CreateCustomFont(nCharSet);
    return nHooked;
}

void CEditCtrlAnsiMsgHook::Unhook()
{
    _DeleteCustomFont();
    CMsgHook::Unhook();
}

void CEditCtrlAnsiMsgHook::_CreateCustomFont(unsigned char nCharSet)
{
    if (m_bCustomFont || !m_pWnd)
        return;
    const HFONT hFont = FontOf(m_pWnd);
    LOGFONTW lf;
    if (!::GetObjectW(hFont ? hFont : ::GetStockObject(SYSTEM_FONT), sizeof lf, &lf))
        return;
    lf.lfCharSet = nCharSet;
    if (!m_font.CreateFontIndirect(&lf))
        return;
    GiveFont(*m_pWnd, m_font);
    m_bCustomFont = true;
}

void CEditCtrlAnsiMsgHook::_DeleteCustomFont()
{
    if (!m_bCustomFont)
        return;
    if (m_pWnd && ::IsWindow(m_pWnd->m_hWnd))
        GiveFont(*m_pWnd, FontOf(m_pWnd->GetParent()));
    m_font.DeleteObject();
}

// What the interface sends to the box comes back here, and goes on to the box.
LRESULT CEditCtrlAnsiMsgHook::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCDESTROY)
        return OnBoxGone();
    if ((message != WM_SETTEXT && message != WM_GETTEXT) || IsWorkingOn(message))
        return Default();
    auto* const pEdit = dynamic_cast<CEdit*>(m_pWnd);
    if (!pEdit)
        return Default();
    if (message == WM_SETTEXT)
        return SetBoxText(*pEdit, reinterpret_cast<const wchar_t*>(lParam));
    return GetBoxText(*pEdit, reinterpret_cast<wchar_t*>(lParam), wParam);
}

LRESULT CEditCtrlAnsiMsgHook::SetBoxText(CEdit& edit, const wchar_t* pszText)
{
    CEditCtrlAnsiInterface(edit).SetText(pszText);
    return 1;
}

// So many bytes of a text of two bytes a character: there is always a place left for the null behind them.
LRESULT CEditCtrlAnsiMsgHook::GetBoxText(CEdit& edit, wchar_t* pszBuffer, WPARAM nBytes)
{
    const CString strText = CEditCtrlAnsiInterface(edit).GetText();
    if (pszBuffer && nBytes > 0)
    {
        const auto nCopied = std::min<size_t>(strText.GetLength(), nBytes / sizeof(wchar_t));
        std::copy_n(strText.GetString(), nCopied, pszBuffer);
        pszBuffer[nCopied] = L'\0';
    }
    return strText.GetLength();
}

// The font must not wait for the next box or for the end of the hook: a hook in every cell of a large grid would
// keep thousands. It goes when the box has gone, and the hook may have gone with it by then.
LRESULT CEditCtrlAnsiMsgHook::OnBoxGone()
{
    CFont font;
    GiveUpFont(font);
    return Default();
}

void CEditCtrlAnsiMsgHook::GiveUpFont(CFont& taker)
{
    taker.Attach(m_font.Detach());
    m_bCustomFont = false;
}
