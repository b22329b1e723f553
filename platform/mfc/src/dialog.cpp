// Dialogs, modal and modeless.

#include <afxpriv.h>

#include "dialog.h"
#include "dlgtemplate.h"
#include "threadstate.h"
#include "wndclass.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelp)
    ON_MESSAGE(WM_HELPHITTEST, &CDialog::OnHelpHitTest)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()
// clang-format on

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd)
{
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpszTemplateName));
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDHelp(nIDTemplate), m_lpszTemplateName(MAKEINTRESOURCE(nIDTemplate)), m_pParentWnd(pParentWnd)
{
}

CDialog::~CDialog()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

// ---------------------------------------------------------------------------------------------------------
// Templates

LPCDLGTEMPLATE LoadTemplate(LPCTSTR name, HINSTANCE& module)
{
    module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    return static_cast<LPCDLGTEMPLATE>(loaded != nullptr ? ::LockResource(loaded) : nullptr);
}

namespace
{
/// A template in global memory, locked for the length of the scope.
class CLockedTemplate
{
public:
    explicit CLockedTemplate(HGLOBAL memory)
        : m_memory(memory), m_template(memory != nullptr ? ::GlobalLock(memory) : nullptr)
    {
    }
    ~CLockedTemplate()
    {
        if (m_template != nullptr)
            ::GlobalUnlock(m_memory);
    }
    CLockedTemplate(const CLockedTemplate&) = delete;
    CLockedTemplate& operator=(const CLockedTemplate&) = delete;
    LPCDLGTEMPLATE get() const { return static_cast<LPCDLGTEMPLATE>(m_template); }

private:
    HGLOBAL m_memory;
    void* m_template;
};
} // namespace

INT_PTR CALLBACK AfxDlgProc(HWND window, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE; // the message map has been asked already
    auto* const dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(window));
    return dialog != nullptr ? dialog->OnInitDialog() : TRUE;
}

// ---------------------------------------------------------------------------------------------------------
// Modeless

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0)
        m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    HINSTANCE module = nullptr;
    const LPCDLGTEMPLATE found = LoadTemplate(lpszTemplateName, module);
    return found != nullptr && CreateDlgIndirect(found, pParentWnd, module);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    if (lpDialogInit != nullptr)
        m_lpDialogInit = lpDialogInit;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, AfxGetInstanceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    const CLockedTemplate locked(hDialogTemplate);
    return CreateIndirect(locked.get(), pParentWnd);
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    if (lpDialogTemplate == nullptr)
        return FALSE;
    if (pParentWnd == nullptr)
        pParentWnd = AfxGetMainWnd();
    InitializeCommonControls();

    // EndDialog during OnInitDialog takes the flag away again, and with it the wish for a dialog.
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;

    AfxHookWindowCreate(this);
    const HWND created =
        ::CreateDialogIndirect(hInst, lpDialogTemplate, pParentWnd->GetSafeHwnd(), &AfxDlgProc);
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy(); // no window was made, so that no message will end the object's life
        return FALSE;
    }
    if (created == nullptr || !::IsWindow(created))
        return FALSE; // destroyed while it was initialised; the object may be gone
    if ((m_nFlags & WF_CONTINUEMODAL) == 0)
    {
        ::DestroyWindow(created);
        return FALSE;
    }
    return TRUE;
}

// ---------------------------------------------------------------------------------------------------------
// Modal

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    ASSERT(m_lpDialogTemplate == nullptr && m_lpszTemplateName == nullptr);
    m_lpDialogTemplate = lpDialogTemplate;
    m_pParentWnd = pParentWnd;
    m_lpDialogInit = lpDialogInit;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    ASSERT(m_lpDialogTemplate == nullptr && m_lpszTemplateName == nullptr);
    m_hDialogTemplate = hDialogTemplate;
    m_pParentWnd = pParentWnd;
    return TRUE;
}

HWND CDialog::PreModal()
{
    ASSERT(m_hWnd == nullptr);
    return GetSafeOwner(m_pParentWnd, &m_hWndTop)->GetSafeHwnd();
}

void CDialog::PostModal()
{
    AfxUnhookWindowCreate();
    Detach();
    if (::IsWindow(m_hWndTop))
        ::EnableWindow(m_hWndTop, TRUE);
    m_hWndTop = nullptr;
}

COwnerLock::COwnerLock(HWND owner) : m_owner(owner)
{
    if (owner == nullptr || owner == ::GetDesktopWindow() || !::IsWindowEnabled(owner))
        return;
    ::EnableWindow(owner, FALSE);
    m_disabled = true;
}

void COwnerLock::Restore()
{
    if (std::exchange(m_disabled, false))
        ::EnableWindow(m_owner, TRUE);
}

INT_PTR CDialog::DoModal()
{
    const CLockedTemplate locked(m_hDialogTemplate);
    HINSTANCE module = AfxGetResourceHandle();
    LPCDLGTEMPLATE dialogTemplate = locked.get() != nullptr ? locked.get() : m_lpDialogTemplate;
    if (m_lpszTemplateName != nullptr)
        dialogTemplate = LoadTemplate(m_lpszTemplateName, module);
    if (dialogTemplate == nullptr)
        return -1;

    const HWND owner = PreModal();
    COwnerLock ownerLock(owner);
    try
    {
        if (CreateDlgIndirect(dialogTemplate, FromHandle(owner), module))
        {
            DWORD loopFlags = MLF_SHOWONIDLE;
            if ((GetStyle() & DS_NOIDLEMSG) != 0)
                loopFlags |= MLF_NOIDLEMSG;
            RunModalLoop(loopFlags);
        }
        // Hidden before the owner is enabled, or another application's window would come to the front.
        if (m_hWnd != nullptr)
            SetWindowPos(nullptr, 0, 0, 0, 0,
                         SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    catch (CException* e)
    {
        e->Delete();
        m_nModalResult = -1;
    }

    ownerLock.Restore();
    if (owner != nullptr && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    PostModal();
    return m_nModalResult;
}

void CDialog::EndDialog(int nResult)
{
    ASSERT(::IsWindow(m_hWnd));
    // Enabling the owner again is DoModal's business, which knows how it was before; some systems do it here.
    const bool ownLoop = (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) != 0;
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const bool keepDisabled = ownLoop && owner != nullptr && !::IsWindowEnabled(owner);
    EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
    if (keepDisabled)
        ::EnableWindow(owner, FALSE);
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

// ---------------------------------------------------------------------------------------------------------
// Messages

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    return Default(); // on to AfxDlgProc
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return 0;
}

void CDialog::PreInitDialog()
{
}

void CDialog::OnSetFont(CFont*)
{
    Default();
}

BOOL CDialog::OnInitDialog()
{
    const BOOL filled =
        m_lpDialogInit != nullptr ? ExecuteDlgInit(m_lpDialogInit) : ExecuteDlgInit(m_lpszTemplateName);
    if (!filled || !UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE; // the system sets the focus to the first control
}

BOOL CDialog::CheckAutoCenter()
{
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    const CLockedTemplate locked(m_hDialogTemplate);
    if (locked.get() != nullptr)
        dialogTemplate = locked.get();
    HINSTANCE module = nullptr;
    if (m_lpszTemplateName != nullptr)
        dialogTemplate = LoadTemplate(m_lpszTemplateName, module);
    return dialogTemplate == nullptr ||
           (StyleOf(dialogTemplate) & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) == 0;
}

namespace
{
/// A multi-line edit control keeps Escape to itself and offers the dialog a WM_CLOSE instead, which does
/// nothing where the dialog has no enabled Cancel button of its own.
bool IsEscapeInMultilineEdit(const MSG& message)
{
    if (message.message != WM_KEYDOWN || (message.wParam != VK_ESCAPE && message.wParam != VK_CANCEL))
        return false;
    if ((::GetWindowLong(message.hwnd, GWL_STYLE) & ES_MULTILINE) == 0)
        return false;
    wchar_t name[8];
    return ::GetClassName(message.hwnd, name, ARRAYSIZE(name)) > 0 && _wcsicmp(name, L"Edit") == 0;
}
} // namespace

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    CWnd::PreTranslateMessage(pMsg); // tool tips look on
    if (IsEscapeInMultilineEdit(*pMsg))
    {
        const HWND cancel = ::GetDlgItem(m_hWnd, IDCANCEL);
        if (cancel == nullptr || ::IsWindowEnabled(cancel))
        {
            SendMessage(WM_COMMAND, IDCANCEL);
            return TRUE;
        }
    }
    return PreTranslateInput(pMsg);
}

BOOL RouteBeyondDialog(CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    const bool isCommand = code == CN_COMMAND || static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI;
    if (!isCommand || (id & 0x8000) == 0 || id >= 0xF000)
        return FALSE;
    CWnd* const owner = dialog.GetParent();
    if (owner != nullptr && owner->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           RouteBeyondDialog(*this, nID, nCode, pExtra, pHandlerInfo);
}

// ---------------------------------------------------------------------------------------------------------
// Operations

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

void CDialog::Dump(CDumpContext& dc) const
{
    CWnd::Dump(dc);
    dc << "m_pParentWnd = " << static_cast<const void*>(m_pParentWnd) << "\n";
}
