// A dialog that has a worker thread sum up squares, locks what they share, and asks a thread with a window of its own
// for the total.

#include "stdafx.h"
#include "resource.h"

#define WM_WORK_DONE (WM_APP + 1)

static const UINT WM_ADD_UP = ::RegisterWindowMessage(_T("Add up"));

struct CWork
{
    CCriticalSection m_guard; // of the results
    CUIntArray m_results;
    CEvent m_eventHalt; // tells the worker to end
    HWND m_hWndReport;
};

UINT Square(LPVOID pParam)
{
    CWork* pWork = (CWork*)pParam;
    for (UINT nNumber = 1; nNumber <= 5; nNumber++)
    {
        CSingleLock lock(&pWork->m_guard, TRUE);
        pWork->m_results.Add(nNumber * nNumber);
    }
    ::PostMessage(pWork->m_hWndReport, WM_WORK_DONE, 5, 0);
    ::WaitForSingleObject(pWork->m_eventHalt, INFINITE);
    AfxGetMainWnd()->PostMessage(WM_WORK_DONE, 0, 0);
    return 7;
}

class CTotalThread : public CWinThread
{
    DECLARE_DYNCREATE(CTotalThread)

public:
    virtual BOOL InitInstance();

protected:
    afx_msg void OnAddUp(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CTotalThread, CWinThread)

BEGIN_MESSAGE_MAP(CTotalThread, CWinThread)
    ON_REGISTERED_THREAD_MESSAGE(WM_ADD_UP, &CTotalThread::OnAddUp)
END_MESSAGE_MAP()

BOOL CTotalThread::InitInstance()
{
    if (!AfxOleInit()) // each thread for itself
        return FALSE;
    CFrameWnd* pFrame = new CFrameWnd;
    m_pMainWnd = pFrame;
    return pFrame->Create(NULL, _T("Total"), WS_OVERLAPPEDWINDOW, CRect(0, 300, 300, 400));
}

void CTotalThread::OnAddUp(WPARAM, LPARAM lParam)
{
    CWork* pWork = (CWork*)lParam;
    UINT nTotal = 0;
    {
        CSingleLock lock(&pWork->m_guard, TRUE);
        for (INT_PTR nItem = 0; nItem < pWork->m_results.GetCount(); nItem++)
            nTotal += pWork->m_results[nItem];
    }
    CString strTotal;
    strTotal.Format(_T("Total: %u"), nTotal);
    m_pMainWnd->SetWindowText(strTotal);
    m_pMainWnd->ShowWindow(SW_SHOW);
}

class CWorkDlg : public CDialog
{
public:
    enum
    {
        IDD = IDD_WORK
    };
    CWorkDlg() : CDialog(CWorkDlg::IDD), m_pWorker(NULL), m_pTotal(NULL) {}

protected:
    virtual void DoDataExchange(CDataExchange* pDX)
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_PROGRESS, m_ctrlProgress);
    }
    virtual BOOL OnInitDialog()
    {
        CDialog::OnInitDialog();
        m_work.m_hWndReport = GetSafeHwnd();
        m_ctrlProgress.SetRange(0, 5);
        m_pTotal = AfxBeginThread(RUNTIME_CLASS(CTotalThread));
        return TRUE;
    }
    virtual void OnCancel()
    {
        HANDLE hThread = m_pTotal->m_hThread;
        m_pTotal->PostThreadMessage(WM_QUIT, 3, 0);
        ::WaitForSingleObject(hThread, INFINITE);
        CDialog::OnCancel();
    }

    afx_msg void OnBnClickedBegin();
    afx_msg void OnBnClickedTotal();
    afx_msg void OnBnClickedHalt();
    afx_msg LRESULT OnWorkDone(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CWork m_work;
    CWinThread* m_pWorker;
    CWinThread* m_pTotal;
    CProgressCtrl m_ctrlProgress;
};

BEGIN_MESSAGE_MAP(CWorkDlg, CDialog)
    ON_BN_CLICKED(IDC_BEGIN, &CWorkDlg::OnBnClickedBegin)
    ON_BN_CLICKED(IDC_TOTAL, &CWorkDlg::OnBnClickedTotal)
    ON_BN_CLICKED(IDC_HALT, &CWorkDlg::OnBnClickedHalt)
    ON_MESSAGE(WM_WORK_DONE, &CWorkDlg::OnWorkDone)
END_MESSAGE_MAP()

void CWorkDlg::OnBnClickedBegin()
{
    m_pWorker = AfxBeginThread(Square, &m_work, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    m_pWorker->m_bAutoDelete = FALSE;
    m_pWorker->ResumeThread();
}

LRESULT CWorkDlg::OnWorkDone(WPARAM wParam, LPARAM)
{
    if (wParam != 0)
    {
        m_ctrlProgress.SetPos((int)wParam);
        SetDlgItemText(IDC_DONE, _T("squared"));
        return 0;
    }
    ::WaitForSingleObject(m_pWorker->m_hThread, INFINITE);
    DWORD nExitCode = 0;
    ::GetExitCodeThread(m_pWorker->m_hThread, &nExitCode);
    delete m_pWorker;
    SetDlgItemInt(IDC_DONE, nExitCode);
    return 0;
}

void CWorkDlg::OnBnClickedTotal()
{
    m_pTotal->PostThreadMessage(WM_ADD_UP, 0, (LPARAM)&m_work);
}

void CWorkDlg::OnBnClickedHalt()
{
    m_work.m_eventHalt.SetEvent();
}

class CWorkApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        if (!AfxOleInit())
            return FALSE;
        CWorkDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CWorkApp theApp;
