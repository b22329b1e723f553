// A dialog that opens a second one beside itself, which deletes itself when it is closed.

#include "stdafx.h"
#include "resource.h"

class CMainDlg : public CDialog
{
public:
    CMainDlg() : CDialog(IDD_MODELESS_MAIN), m_pNotes(NULL) {}

    void NotesClosed(LPCTSTR pszText);

protected:
    afx_msg void OnOpen();
    afx_msg void OnUpdateOpen(CCmdUI* pCmdUI) { pCmdUI->Enable(m_pNotes == NULL); }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        UpdateDialogControls(this, FALSE);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    class CNotesDlg* m_pNotes; // deletes itself
};

class CNotesDlg : public CDialog
{
public:
    explicit CNotesDlg(CMainDlg* pMain) : m_pMain(pMain) {}
    ~CNotesDlg() { m_pMain->NotesClosed(m_strKept); }

protected:
    virtual void OnOK()
    {
        GetDlgItemText(IDC_NAME, m_strKept);
        DestroyWindow();
    }
    virtual void OnCancel() { DestroyWindow(); }
    virtual void PostNcDestroy()
    {
        CDialog::PostNcDestroy();
        delete this;
    }

private:
    CMainDlg* m_pMain;
    CString m_strKept;
};

BEGIN_MESSAGE_MAP(CMainDlg, CDialog)
    ON_BN_CLICKED(IDC_OPEN, &CMainDlg::OnOpen)
    ON_UPDATE_COMMAND_UI(IDC_OPEN, &CMainDlg::OnUpdateOpen)
    ON_MESSAGE(0x036A, &CMainDlg::OnKickIdle) // WM_KICKIDLE
END_MESSAGE_MAP()

void CMainDlg::OnOpen()
{
    m_pNotes = new CNotesDlg(this);
    if (!m_pNotes->Create(IDD_NOTES, this))
        return;
    CRect rect;
    GetWindowRect(&rect);
    m_pNotes->SetWindowPos(NULL, rect.left, rect.bottom, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
}

void CMainDlg::NotesClosed(LPCTSTR pszText)
{
    m_pNotes = NULL;
    if (m_hWnd != NULL)
        SetDlgItemText(IDC_STATE, *pszText != 0 ? pszText : _T("dropped"));
}

class CModelessApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        CMainDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CModelessApp theApp;
