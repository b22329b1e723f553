// A dialog application as a wizard makes it, with two values, a button, and an About box in the system menu; beside
// it another dialog, which deletes itself when it is closed.

#include "stdafx.h"
#include "resource.h"

class CWizardApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
};

CWizardApp theApp;

class CAboutDlg : public CDialog
{
public:
    enum
    {
        IDD = IDD_ABOUTBOX
    };
    CAboutDlg() : CDialog(CAboutDlg::IDD) {}
};

class CWizardDlg : public CDialog
{
public:
    enum
    {
        IDD = IDD_WIZARD_DIALOG
    };
    CWizardDlg(CWnd* pParent = NULL)
        : CDialog(CWizardDlg::IDD, pParent), m_strName(_T("beam")), m_nCount(3),
          m_hIcon(AfxGetApp()->LoadIcon(IDR_MAINFRAME)), m_pNotes(NULL)
    {
    }

    void NotesClosed(LPCTSTR pszText);

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnBnClickedGreet();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);
    afx_msg void OnOpen();
    afx_msg void OnUpdateOpen(CCmdUI* pCmdUI) { pCmdUI->Enable(m_pNotes == NULL); }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        UpdateDialogControls(this, FALSE);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CString m_strName;
    int m_nCount;
    HICON m_hIcon;
    class CNotesDlg* m_pNotes; // deletes itself
};

class CNotesDlg : public CDialog
{
public:
    explicit CNotesDlg(CWizardDlg* pMain) : m_pMain(pMain) {}
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
    CWizardDlg* m_pMain;
    CString m_strKept;
};

void CWizardDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, 20);
    DDX_Text(pDX, IDC_COUNT, m_nCount);
    DDV_MinMaxInt(pDX, m_nCount, 1, 99);
}

BEGIN_MESSAGE_MAP(CWizardDlg, CDialog)
    ON_WM_SYSCOMMAND()
    ON_WM_HELPINFO()
    ON_BN_CLICKED(IDC_GREET, &CWizardDlg::OnBnClickedGreet)
    ON_BN_CLICKED(IDC_OPEN, &CWizardDlg::OnOpen)
    ON_UPDATE_COMMAND_UI(IDC_OPEN, &CWizardDlg::OnUpdateOpen)
    ON_MESSAGE(0x036A, &CWizardDlg::OnKickIdle) // WM_KICKIDLE
END_MESSAGE_MAP()

BOOL CWizardDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

    ASSERT((IDM_ABOUTBOX & 0xFFF0) == IDM_ABOUTBOX);
    ASSERT(IDM_ABOUTBOX < 0xF000);
    CMenu* pSysMenu = GetSystemMenu(FALSE);
    if (pSysMenu != NULL)
    {
        CString strAboutMenu;
        strAboutMenu.LoadString(IDS_ABOUTBOX);
        if (!strAboutMenu.IsEmpty())
        {
            pSysMenu->AppendMenu(MF_SEPARATOR);
            pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAboutMenu);
        }
    }
    SetIcon(m_hIcon, TRUE);
    SetIcon(m_hIcon, FALSE);
    return TRUE;
}

void CWizardDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
    if ((nID & 0xFFF0) == IDM_ABOUTBOX)
    {
        CAboutDlg dlgAbout;
        dlgAbout.DoModal();
    }
    else
    {
        CDialog::OnSysCommand(nID, lParam);
    }
}

BOOL CWizardDlg::OnHelpInfo(HELPINFO* pHelpInfo)
{
    CString strHelp;
    strHelp.Format(_T("help for %d"), pHelpInfo->iCtrlId);
    SetDlgItemText(IDC_STATE, strHelp);
    return TRUE;
}

void CWizardDlg::OnBnClickedGreet()
{
    if (!UpdateData(TRUE))
        return;
    CString strText;
    strText.Format(_T("%d x %s"), m_nCount, m_strName.GetString());
    SetDlgItemText(IDC_STATE, strText);
}

void CWizardDlg::OnOpen()
{
    m_pNotes = new CNotesDlg(this);
    if (!m_pNotes->Create(IDD_NOTES, this))
        return;
    CRect rect;
    GetWindowRect(&rect);
    m_pNotes->SetWindowPos(NULL, rect.left, rect.bottom, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
}

void CWizardDlg::NotesClosed(LPCTSTR pszText)
{
    m_pNotes = NULL;
    if (m_hWnd != NULL)
        SetDlgItemText(IDC_STATE, *pszText != 0 ? pszText : _T("dropped"));
}

BOOL CWizardApp::InitInstance()
{
    INITCOMMONCONTROLSEX InitCtrls;
    InitCtrls.dwSize = sizeof(InitCtrls);
    InitCtrls.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&InitCtrls);
    CWinApp::InitInstance();
    AfxEnableControlContainer();
    SetRegistryKey(_T("DialogControlsOW Tests"));

    CWizardDlg dlg;
    m_pMainWnd = &dlg;
    const INT_PTR nResponse = dlg.DoModal();
    WriteProfileInt(_T("Wizard"), _T("Response"), static_cast<int>(nResponse));
    return FALSE;
}
