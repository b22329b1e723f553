// A property sheet, and what came of it in a box; with /wizard its pages are the steps of a wizard.

#include "stdafx.h"
#include "resource.h"

struct BeamData
{
    CString name;
    int height;
    int grade;
    BOOL weldable;
    int applied; // how often
};

class CBeamPage : public CPropertyPage
{
public:
    CBeamPage(UINT nIDTemplate, BeamData& beam, UINT nIDCaption = 0)
        : CPropertyPage(nIDTemplate, nIDCaption), m_beam(beam)
    {
    }

protected:
    BeamData& m_beam;

    void ShowWizardButtons(DWORD dwFlags)
    {
        CPropertySheet* pSheet = static_cast<CPropertySheet*>(GetParent());
        if (pSheet->IsWizard())
            pSheet->SetWizardButtons(dwFlags);
    }
    afx_msg void OnValueChanged() { SetModified(TRUE); }
};

class CSectionPage : public CBeamPage
{
public:
    CSectionPage(BeamData& beam) : CBeamPage(IDD_SECTION, beam, IDS_SECTION_TAB) {}

    virtual BOOL OnSetActive()
    {
        ShowWizardButtons(PSWIZB_NEXT);
        return CBeamPage::OnSetActive();
    }
    // A beam without a name has no material either.
    virtual LRESULT OnWizardNext()
    {
        if (!UpdateData(TRUE)) // asked before OnKillActive
            return -1;
        return m_beam.name.IsEmpty() ? IDD_SUMMARY : CBeamPage::OnWizardNext();
    }

protected:
    virtual void DoDataExchange(CDataExchange* pDX)
    {
        CBeamPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, m_beam.name);
        DDX_Text(pDX, IDC_HEIGHT, m_beam.height);
        DDV_MinMaxInt(pDX, m_beam.height, 80, 600);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSectionPage, CBeamPage)
    ON_EN_CHANGE(IDC_NAME, &CSectionPage::OnValueChanged)
    ON_EN_CHANGE(IDC_HEIGHT, &CSectionPage::OnValueChanged)
END_MESSAGE_MAP()

class CMaterialPage : public CBeamPage
{
public:
    CMaterialPage(BeamData& beam) : CBeamPage(IDD_MATERIAL, beam) {}

    virtual BOOL OnSetActive()
    {
        ShowWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
        return CBeamPage::OnSetActive();
    }

protected:
    virtual void DoDataExchange(CDataExchange* pDX)
    {
        CBeamPage::DoDataExchange(pDX);
        DDX_CBIndex(pDX, IDC_GRADE, m_beam.grade);
        DDX_Check(pDX, IDC_WELDABLE, m_beam.weldable);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMaterialPage, CBeamPage)
    ON_CBN_SELCHANGE(IDC_GRADE, &CMaterialPage::OnValueChanged)
    ON_BN_CLICKED(IDC_WELDABLE, &CMaterialPage::OnValueChanged)
END_MESSAGE_MAP()

class CSummaryPage : public CBeamPage
{
public:
    CSummaryPage(BeamData& beam) : CBeamPage(IDD_SUMMARY, beam) {}

    virtual BOOL OnSetActive()
    {
        ShowWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
        CString strText;
        strText.Format(_T("%s, %d high, grade %d%s"), m_beam.name.GetString(), m_beam.height, m_beam.grade,
                       m_beam.weldable ? _T(", weldable") : _T(""));
        SetDlgItemText(IDC_STATE, strText);
        return CBeamPage::OnSetActive();
    }
    virtual BOOL OnApply()
    {
        ++m_beam.applied;
        return CBeamPage::OnApply();
    }
    virtual BOOL OnWizardFinish() { return m_beam.height != 600; } // too high for a wizard
};

class CBeamCommandLine : public CCommandLineInfo
{
public:
    BOOL m_bWizard = FALSE;

    virtual void ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast)
    {
        if (bFlag && _tcscmp(pszParam, _T("wizard")) == 0)
            m_bWizard = TRUE;
        else
            CCommandLineInfo::ParseParam(pszParam, bFlag, bLast);
    }
};

class CBeamApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
};

CBeamApp theApp;

BOOL CBeamApp::InitInstance()
{
    CWinApp::InitInstance();
    CBeamCommandLine cmdInfo;
    ParseCommandLine(cmdInfo);

    BeamData beam = {_T("IPE"), 200, 0, FALSE, 0};
    CPropertySheet sheet(IDS_SHEET);
    CSectionPage section(beam);
    CMaterialPage material(beam);
    CSummaryPage summary(beam);
    sheet.AddPage(&section);
    sheet.AddPage(&material);
    sheet.AddPage(&summary);
    if (cmdInfo.m_bWizard)
        sheet.SetWizardMode();
    const INT_PTR nResponse = sheet.DoModal();

    CString strText;
    strText.Format(_T("%s by %d: %s %d, grade %d, weldable %d, applied %d"),
                   cmdInfo.m_strFileName.GetString(), static_cast<int>(nResponse), beam.name.GetString(),
                   beam.height, beam.grade, beam.weldable, beam.applied);
    AfxMessageBox(strText);
    return FALSE;
}
