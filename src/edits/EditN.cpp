#include <afxwin.h>

#include "edits/EditN.h"

#include "edits/EditCtrlAnsiInterface.h"
#include "edits/WholeText.h"
#include "module/DialogKeys.h"
#include "module/NotificationHandler.h"

#include <utility>

namespace
{
/// Sets a flag for the length of a scope, and leaves it as the scope found it.
class CFlagScope
{
public:
    explicit CFlagScope(bool& bFlag) : m_bFlag(bFlag), m_bBefore(std::exchange(bFlag, true)) {}
    ~CFlagScope() { m_bFlag = m_bBefore; }
    CFlagScope(const CFlagScope&) = delete;
    CFlagScope& operator=(const CFlagScope&) = delete;

private:
    bool& m_bFlag;
    bool m_bBefore;
};
} // namespace

CEditN::CEditN(CEditNNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CEditN, CEdit)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CEditN::OnChange)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SETCURSOR()
    ON_WM_CHAR()
END_MESSAGE_MAP()

// Without DLGC_WANTALLKEYS the dialog would take Tab, Enter and Escape before the box sees them.
UINT CEditN::OnGetDlgCode()
{
    return CEdit::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

void CEditN::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!gfnHandleDialogKey(*this, nChar))
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
}

// True: the parent does not see the notification.
BOOL CEditN::OnChange()
{
    if (!m_bSettingText)
        HandlerOnChange();
    return TRUE;
}

void CEditN::OnSetFocus(CWnd* pOldWnd)
{
    CEdit::OnSetFocus(pOldWnd);
    HandlerOnSetFocus();
}

void CEditN::OnKillFocus(CWnd* pNewWnd)
{
    CEdit::OnKillFocus(pNewWnd);
    HandlerOnKillFocus();
}

int CEditN::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CEdit::OnCreate(lpCreateStruct) == -1)
        return -1;
    HandlerOnCreate();
    return 0;
}

void CEditN::OnDestroy()
{
    CEdit::OnDestroy();
}

// The I-beam is wanted over the whole of a box that can be typed into, its border included. A read-only one keeps it
// off its text.
BOOL CEditN::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    if (IsReadOnly() && nHitTest != HTCLIENT)
        return CEdit::OnSetCursor(pWnd, nHitTest, message);
    ::SetCursor(::LoadCursor(nullptr, IsReadOnly() ? IDC_ARROW : IDC_IBEAM));
    return TRUE;
}

void CEditN::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!gfnIsDialogKeyChar(nChar))
        CEdit::OnChar(nChar, nRepCnt, nFlags);
}

// A window made by Create passes PreSubclassWindow too, before it receives WM_CREATE: the flag keeps
// HandlerOnCreate from running twice for it.

BOOL CEditN::PreCreateWindow(CREATESTRUCT& cs)
{
    m_bBeingCreated = true;
    return CEdit::PreCreateWindow(cs);
}

void CEditN::PreSubclassWindow()
{
    if (!std::exchange(m_bBeingCreated, false))
        HandlerOnCreate();
    CEdit::PreSubclassWindow();
}

void CEditN::PostNcDestroy()
{
    m_bBeingCreated = false; // Create may have failed before there was a window
    CEdit::PostNcDestroy();
}

void CEditN::HandlerOnCreate()
{
}

void CEditN::HandlerOnChange()
{
    SetChangedSinceLastSetFocus();
    if (auto* pHandler = GetNotificationHandler())
        pHandler->OnEditNChange(GetDlgCtrlID());
}

void CEditN::HandlerOnSetFocus()
{
    m_bChanged = false;
    if (auto* pHandler = GetNotificationHandler())
        pHandler->OnEditNSetFocus(GetDlgCtrlID());
}

void CEditN::HandlerOnKillFocus()
{
    if (auto* pHandler = GetNotificationHandler())
        pHandler->OnEditNKillFocus(GetDlgCtrlID());
}

void CEditN::SafeSetWindowText(const wchar_t* pszText)
{
    const CFlagScope setting(m_bSettingText);
    if (m_bAnsiInterface)
        CEditCtrlAnsiInterface(*this).SetText(pszText);
    else
        SetWindowText(pszText);
}

CString CEditN::ReadText() const
{
    if (m_bAnsiInterface)
        return CEditCtrlAnsiInterface(const_cast<CEditN&>(*this)).GetText();
    return gfnWholeText(*this);
}

bool CEditN::IsReadOnly() const
{
    return (GetStyle() & ES_READONLY) != 0;
}

bool CEditN::HasChangedSinceLastSetFocus() const
{
    return m_bChanged;
}

void CEditN::SetChangedSinceLastSetFocus()
{
    m_bChanged = true;
}

bool CEditN::GetAnsiInterface() const
{
    return m_bAnsiInterface;
}

void CEditN::SetAnsiInterface(bool bAnsi)
{
    m_bAnsiInterface = bAnsi;
}

bool CEditN::DoesNotificationHandlerExist() const
{
    return GetNotificationHandler() != nullptr;
}

CEditNNotificationHandler* CEditN::GetNotificationHandler() const
{
    return ow::FindNotificationHandler(*this, m_pHandler);
}

CEditNNotificationHandler* CEditN::GetSafeNotificationHandler() const
{
    return GetNotificationHandler();
}
