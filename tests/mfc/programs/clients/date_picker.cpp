// A dialog with a date picker, a month calendar and the days between them.

#include "stdafx.h"
#include "resource.h"

class CDatesDlg : public CDialog
{
public:
    enum
    {
        IDD = IDD_DATES
    };
    CDatesDlg() : CDialog(CDatesDlg::IDD), m_timeDue(2024, 2, 27, 0, 0, 0), m_timeStart(2024, 2, 15, 0, 0, 0)
    {
    }

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnDtnDatetimechangeDue(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnMcnSelectStart(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnBnClickedCheck();
    DECLARE_MESSAGE_MAP()

private:
    void ShowSpan();

    CTime m_timeDue, m_timeStart;
    CDateTimeCtrl m_ctrlDue;
    CMonthCalCtrl m_ctrlStart;
};

void CDatesDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DUE, m_ctrlDue);
    DDX_Control(pDX, IDC_START, m_ctrlStart);
    DDX_DateTimeCtrl(pDX, IDC_DUE, m_timeDue);
    DDX_MonthCalCtrl(pDX, IDC_START, m_timeStart);
    if (pDX->m_bSaveAndValidate) // the end is checked against the beginning that was chosen
        DDV_MinMaxMonth(pDX, m_timeStart, NULL, &m_timeDue);
}

BEGIN_MESSAGE_MAP(CDatesDlg, CDialog)
    ON_NOTIFY(DTN_DATETIMECHANGE, IDC_DUE, &CDatesDlg::OnDtnDatetimechangeDue)
    ON_NOTIFY(MCN_SELECT, IDC_START, &CDatesDlg::OnMcnSelectStart)
    ON_BN_CLICKED(IDC_CHECK, &CDatesDlg::OnBnClickedCheck)
END_MESSAGE_MAP()

BOOL CDatesDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_ctrlDue.SetFormat(_T("dd.MM.yyyy"));
    m_ctrlStart.SizeMinReq();
    ShowSpan();
    return TRUE;
}

void CDatesDlg::ShowSpan()
{
    CTime timeDue, timeStart;
    m_ctrlDue.GetTime(timeDue);
    m_ctrlStart.GetCurSel(timeStart);
    const CTimeSpan span = timeDue - timeStart;
    SetDlgItemText(IDC_SPAN, span.Format(_T("%D days to ")) + timeDue.Format(_T("%Y-%m-%d")));
}

void CDatesDlg::OnDtnDatetimechangeDue(NMHDR*, LRESULT* pResult)
{
    ShowSpan();
    *pResult = 0;
}

void CDatesDlg::OnMcnSelectStart(NMHDR*, LRESULT* pResult)
{
    ShowSpan();
    *pResult = 0;
}

void CDatesDlg::OnBnClickedCheck()
{
    if (UpdateData(TRUE))
        SetDlgItemText(IDC_SPAN, _T("checked"));
}

class CDatesApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        AfxEnableControlContainer();
        CDatesDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CDatesApp theApp;
