// A dialog application as a wizard makes it, with two values, and an About box in the system menu.

#define VC_EXTRALEAN
#define _ATL_CSTRING_EXPLICIT_CONSTRUCTORS
#define _AFX_ALL_WARNINGS

#include <afxwin.h>
#include <afxext.h>
#include <afxdisp.h>
#include <afxdtctl.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxmt.h>
#include <afxole.h>

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
          m_hIcon(AfxGetApp()->LoadIcon(IDR_MAINFRAME))
    {
    }

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg HCURSOR OnQueryDragIcon() { return static_cast<HCURSOR>(m_hIcon); }
    DECLARE_MESSAGE_MAP()

private:
    CString m_strName;
    int m_nCount;
    HICON m_hIcon;
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
    ON_WM_QUERYDRAGICON()
END_MESSAGE_MAP()

BOOL CWizardDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
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

BOOL CWizardApp::InitInstance()
{
    INITCOMMONCONTROLSEX InitCtrls;
    InitCtrls.dwSize = sizeof(InitCtrls);
    InitCtrls.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&InitCtrls);
    CWinApp::InitInstance();
    SetRegistryKey(_T("DialogControlsOW Tests"));

    CWizardDlg dlg;
    m_pMainWnd = &dlg;
    dlg.DoModal();
    return FALSE;
}
