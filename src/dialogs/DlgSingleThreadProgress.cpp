#include <afxwin.h>

#include "dialogs/DlgSingleThreadProgress.h"

#include "dialogs/OstrelMessageBox.h"
#include "dialogs/SingleThreadProgress.h"
#include "resources/resource.h"

#include <Translator.h>

namespace
{
int TemplateFor(bool bCancellable)
{
    return bCancellable ? IDD_OW_PROGRESS_CANCEL : IDD_OW_PROGRESS;
}

/// Keeps a window's frame from input for the length of a scope. Null, and a window that is gone, are ignored.
class CInputLock
{
public:
    explicit CInputLock(HWND hWnd) : m_hTop(::GetAncestor(hWnd, GA_ROOT))
    {
        if (!::IsWindowEnabled(m_hTop))
            m_hTop = nullptr; // somebody else's lock
        ::EnableWindow(m_hTop, FALSE);
    }
    ~CInputLock() { ::EnableWindow(m_hTop, TRUE); }
    CInputLock(const CInputLock&) = delete;
    CInputLock& operator=(const CInputLock&) = delete;

private:
    HWND m_hTop;
};
} // namespace

CDlgSingleThreadProgress::CDlgSingleThreadProgress(CSingleThreadProgress& owner, HWND hParent,
                                                   const CString& strTitle, bool bCancellable)
    : CDialog(TemplateFor(bCancellable)), m_strTitle(strTitle), m_bCancellable(bCancellable),
      m_hParent(hParent), m_owner(owner)
{
}

bool CDlgSingleThreadProgress::MakeWindow()
{
    return CDialog::Create(TemplateFor(m_bCancellable), nullptr) != FALSE;
}

void CDlgSingleThreadProgress::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_OW_PROGRESS, m_bar);
    if (m_bCancellable)
        DDX_Control(pDX, IDCANCEL, m_btnCancel);
}

// While the question stands, OnCancel is still to come back to this object.
void CDlgSingleThreadProgress::PostNcDestroy()
{
    m_owner.DialogGone();
    if (!m_bAsking)
        delete this;
}

BOOL CDlgSingleThreadProgress::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetWindowText(m_strTitle);
    m_bar.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED); // which the system takes away from its own bars
    m_bar.SetTextFont(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    if (m_bCancellable)
    {
        m_btnCancel.SetWindowText(gOtLang.Do(L"Cancel"));
        m_btnCancel.SetIcon(CButtonST::hIconCancel);
    }
    return TRUE;
}

// Enter must not close the box under the work.
void CDlgSingleThreadProgress::OnOK()
{
}

// The box stays in any case: it goes with the progress object. Only the first question that is answered by OK counts.
void CDlgSingleThreadProgress::OnCancel()
{
    if (!m_bCancellable || m_bCancelled || m_bAsking)
        return;
    m_bAsking = true;
    m_bCancelled = AskWhetherToStop();
    m_bAsking = false;
    if (!m_hWnd)
        delete this; // the box went while the question stood
}

// Nothing but the question takes input: else a second click on the button that began the work, which has waited in the
// queue all the time, would now begin it once more.
bool CDlgSingleThreadProgress::AskWhetherToStop()
{
    const CInputLock lock(m_hParent);
    CString strCaption;
    GetWindowText(strCaption);
    strCaption += L"$$"; // wanted: the caption of the question shows the sign
    return COstrelMessageBox::MessageBoxW(L"Prekidanje procesa?", strCaption,
                                          MB_OKCANCEL | MB_ICONQUESTION) == IDOK;
}
