// The progress box: long work on the main thread, with and without Cancel.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <cmath>

namespace
{
constexpr int kSteps[] = {1, 2, 10}; // in the order of their buttons
constexpr int kWhole = 100;
constexpr ULONGLONG kMillisecondsEach = 20; // for one of a hundred parts

class CProgressPageDialog : public CGalleryPageDialog
{
public:
    explicit CProgressPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_PROGRESS, host) {}

protected:
    int OnInitPageDialog() override
    {
        CheckDlgButton(IDC_PROGRESS_CANCELLABLE, BST_CHECKED);
        CheckRadioButton(IDC_PROGRESS_STEP_1, IDC_PROGRESS_STEP_10, IDC_PROGRESS_STEP_2);
        return TRUE;
    }

    afx_msg void OnRun();
    DECLARE_MESSAGE_MAP()

private:
    bool WorkOn(int nPart, CSingleThreadProgress& progress);
    void ShowResult(int nReached, bool bAnswer);

    int m_nCalls = 0; ///< of Update
    double m_dMoment = 0;
};

BEGIN_MESSAGE_MAP(CProgressPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_PROGRESS_RUN, &CProgressPageDialog::OnRun)
END_MESSAGE_MAP()

void CProgressPageDialog::OnRun()
{
    m_nCalls = 0;
    bool bGoOn = true;
    int nReached = 0;
    {
        CSingleThreadProgress progress(gOtLang.Do(_T("Calculation")), m_hWnd,
                                       IsDlgButtonChecked(IDC_PROGRESS_CANCELLABLE) == BST_CHECKED);
        progress.SetStep(
            kSteps[GetCheckedRadioButton(IDC_PROGRESS_STEP_1, IDC_PROGRESS_STEP_10) - IDC_PROGRESS_STEP_1]);
        while (bGoOn && nReached < kWhole)
        {
            bGoOn = WorkOn(nReached, progress);
            nReached += bGoOn;
        }
    } // the box closes
    ShowResult(nReached, bGoOn);
}

/// A hundredth of the work; false if it is to stop.
bool CProgressPageDialog::WorkOn(int nPart, CSingleThreadProgress& progress)
{
    const ULONGLONG nEnd = ::GetTickCount64() + kMillisecondsEach;
    while (::GetTickCount64() < nEnd)
    {
        for (int i = 0; i < 1000; ++i)
            m_dMoment += std::sin(0.001 * i) * nPart;
        ++m_nCalls;
        if (!progress.Update(nPart + 1))
            return false;
    }
    return true;
}

void CProgressPageDialog::ShowResult(int nReached, bool bAnswer)
{
    const LPCTSTR pszAnswer = bAnswer ? _T("true") : _T("false");
    CString strReached;
    strReached.Format(_T("%d %%"), nReached);
    SetDlgItemText(IDC_PROGRESS_REACHED, strReached);
    SetDlgItemInt(IDC_PROGRESS_CALLS, m_nCalls);
    SetDlgItemText(IDC_PROGRESS_ANSWER, pszAnswer);
    Log(_T("Progress"), _T("Update answered %s at %s"), pszAnswer, strReached.GetString());
}
} // namespace

void AddProgressPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CProgressPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageProgress, _T("Progress"), pDialog), nullptr);
}
