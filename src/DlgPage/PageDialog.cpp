#include <afxwin.h>

#include "DlgPage/PageDialog.h"

#include "module/AssertReport.h"

namespace
{
constexpr char kSource[] = ".\\DlgPage\\PageDialog";

/// Whether the window is an edit by the name of its class. Names too long for the buffer arrive cut, and
/// differ.
bool IsEdit(HWND hWnd)
{
    wchar_t szClass[10];
    return ::GetClassNameW(hWnd, szClass, static_cast<int>(std::size(szClass))) &&
           ::lstrcmpiW(szClass, L"EDIT") == 0;
}

/// The edit of a dialog that has the focus, or null.
HWND FocusedEditOf(HWND hDialog)
{
    const HWND hFocus = ::GetFocus();
    return hFocus && ::IsChild(hDialog, hFocus) && IsEdit(hFocus) ? hFocus : nullptr;
}
} // namespace

IMPLEMENT_DYNCREATE(CPageDialog, CDialog)

CPageDialog::CPageDialog(UINT nTemplateId, CWnd* pParent)
    : CDialog(nTemplateId, pParent), dialogTemplateId(nTemplateId)
{
}

CPageDialog::CPageDialog() : dialogTemplateId(0)
{
    INTERNAL_ERROR_AT(L"CPageDialog def c-tor !", kSource, 30);
}

CPageDialog::~CPageDialog() = default;

BEGIN_MESSAGE_MAP(CPageDialog, CDialog)
END_MESSAGE_MAP()

int CPageDialog::OnInitPageDialog()
{
    return TRUE;
}

void CPageDialog::BindControlsToSources(bool, CPage*)
{
}

UINT CPageDialog::GetDialogTemplateID() const
{
    return dialogTemplateId;
}

void CPageDialog::AttachAttributeChangeNotificationClient(AAttributeChangeNotificationClient* pClient)
{
    attributeChangeClient = pClient;
}

void CPageDialog::MyAttributeChanged()
{
    if (attributeChangeClient)
        attributeChangeClient->AttributeChangedUsingGUI();
}

void CPageDialog::SendFocusedControlKillFocusMessage()
{
    if (const HWND hEdit = FocusedEditOf(m_hWnd))
        ::SendMessage(hEdit, WM_KILLFOCUS, 0, 0);
}

BOOL CPageDialog::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE)
        return TRUE;
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN)
        return BreakLineInFocusedEdit(*pMsg); // the dialog's own translation would press its default button
    return CDialog::PreTranslateMessage(pMsg);
}

bool CPageDialog::BreakLineInFocusedEdit(const MSG& msg)
{
    const HWND hEdit = FocusedEditOf(m_hWnd);
    if (!hEdit || !(::GetWindowLong(hEdit, GWL_STYLE) & ES_WANTRETURN))
        return false;
    ::SendMessage(hEdit, WM_CHAR, msg.wParam, msg.lParam);
    return true;
}
