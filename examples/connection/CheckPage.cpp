// Loads and check: the forces of each action, and the load case that governs.

#include <afxwin.h>

#include "Check.h"
#include "ConnectionDialog.h"
#include "ConnectionPage.h"

namespace
{
enum EColumn
{
    eName,
    eMoment,
    eShear,
    eAxial,
    eColumnCount
};
enum EResultColumn
{
    eCheck,
    eEffect,
    eResistance,
    eUtilisation,
    eResultColumnCount
};

constexpr LPCTSTR kActions[eActionCount] = {_T("Stalno"), _T("Korisno"), _T("Vetar"), _T("Sneg")};

constexpr LPCTSTR kChecks[kCheckCount] = {
    _T("Vijak na zatezanje"), _T("Vijak na smicanje"),      _T("Zatezanje i smicanje"),
    _T("Proboj glave vijka"), _T("Pritisak na plocu"),      _T("Pritisak na stub"),
    _T("Savijanje ploce"),    _T("Savijanje nozice stuba"), _T("Sav nozice"),
    _T("Sav rebra"),
};

/// A force in kN, a stress in N/mm², or the bare number of the interaction.
CString ValueText(ECheck check, double value)
{
    CString strText;
    if (check == ECheck::BoltInteraction)
        strText.Format(_T("%.2f"), value);
    else if (check == ECheck::FlangeWeld || check == ECheck::WebWeld)
        strText.Format(_T("%.0f N/mm\u00B2"), value / 1e6);
    else
        strText.Format(_T("%.1f kN"), value / 1e3);
    return strText;
}

class CCheckPageDialog : public CConnectionPageDialog, public AExtGridCtrlNotificationHandler
{
public:
    explicit CCheckPageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_CHECK, host) {}

    int OnInitPageDialog() override
    {
        MakeLoads();
        MakeResults();
        ShowResults({});
        return TRUE;
    }

    void ShowValues(const FittedConnection& fitted) override
    {
        for (int i = 0; i < eActionCount; ++i)
        {
            const Forces& forces = fitted.values.actions[static_cast<size_t>(i)];
            Load(i, eMoment).Set(eMoment, forces.moment_Nm);
            Load(i, eShear).Set(eShear, forces.shear_N);
            Load(i, eAxial).Set(eAxial, forces.axial_N);
        }
        m_gridLoads.Invalidate(FALSE);
        if (!(m_checked == fitted.values))
            ShowResults({});
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_LOADS, m_gridLoads);
        DDX_Control(pDX, IDC_RESULTS, m_gridResults);
    }

    void OnExtGridRowChanged(int, int, int) override {}
    void OnExtGridRClick(int, int) override {}
    // The cell has taken the number.
    bool OnExtGridEndEdit(int, int nRow, int, const CString*) override
    {
        const int i = nRow - 1;
        Wanted().actions[static_cast<size_t>(i)] = {Load(i, eMoment).Get(eMoment),
                                                    Load(i, eShear).Get(eShear), Load(i, eAxial).Get(eAxial)};
        MyAttributeChanged();
        return true;
    }

    afx_msg void OnCheck();
    DECLARE_MESSAGE_MAP()

private:
    CLimitedDoubleCell& Load(int nAction, int nCol) const
    {
        return static_cast<CLimitedDoubleCell&>(*m_gridLoads.GetCell(nAction + 1, nCol));
    }
    void MakeLoads();
    void MakeResults();
    void ShowResults(const Survey& survey);
    static CString TextOf(const Survey& survey);

    CExtGridCtrl m_gridLoads{this};
    CGridCtrl m_gridResults;
    Connection m_checked; ///< what the results are of
};

BEGIN_MESSAGE_MAP(CCheckPageDialog, CConnectionPageDialog)
    ON_BN_CLICKED(IDC_CHECK, OnCheck)
END_MESSAGE_MAP()

void CCheckPageDialog::OnCheck()
{
    m_checked = Fitted().values;
    Survey survey;
    {
        CSingleThreadProgress progress(_T("Provera slucajeva opterecenja"), m_host.m_hWnd, true);
        survey = CheckAllCases(m_checked, [&](int nChecked)
                               { return progress.Update(100 * nChecked / kLoadCaseCount); });
    } // the box closes
    ShowResults(survey);
    if (survey.casesChecked < kLoadCaseCount)
        return; // by the user, who knows
    const bool bHolds = Governing(survey.results).Utilisation() <= 1.0;
    COstrelMessageBox::MessageBox(Tr(bHolds ? _T("Veza zadovoljava.") : _T("Veza ne zadovoljava.")) +
                                      _T("\r\n") + TextOf(survey),
                                  _T("Provera"), MB_OK | (bHolds ? MB_ICONINFORMATION : MB_ICONWARNING));
}

void CCheckPageDialog::MakeLoads()
{
    const CComplexUnit kilonewton(CMeasurementUnit(CMeasurementUnit::eKilonewton, CMeasurementUnit::eForce));
    CComplexUnit units[] = {kilonewton * CComplexUnit(), kilonewton, kilonewton};
    constexpr LPCTSTR kHeadings[] = {_T("Moment"), _T("Smicanje"), _T("Zatezanje")};

    SetUpGrid(m_gridLoads, 1 + eActionCount, eColumnCount);
    m_gridLoads.InstallMessageHook(); // the window is the template's
    m_gridLoads.SetFixedColumnCount(1);
    m_gridLoads.SetItemText(0, eName, Tr(_T("Dejstvo")));
    for (int nCol = eMoment; nCol < eColumnCount; ++nCol)
    {
        m_gridLoads.SetColDescription(nCol, &units[nCol - eMoment], kHeadings[nCol - eMoment]);
        m_gridLoads.SetColumnWidth(nCol, 96);
    }
    m_gridLoads.SetColumnWidth(eName, 110);
    for (int i = 0; i < eActionCount; ++i)
    {
        m_gridLoads.SetItemText(i + 1, eName, Tr(kActions[i]));
        for (int nCol = eMoment; nCol < eColumnCount; ++nCol)
        {
            m_gridLoads.SetCellType(i + 1, nCol, RUNTIME_CLASS(CLimitedDoubleCell));
            m_gridLoads.SetItemFormat(i + 1, nCol, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
            Load(i, nCol).SetBrojDecimala(1);
        }
    }
    m_gridLoads.ExpandLastColumn();
    m_gridLoads.SetFocusCell(1, eMoment);
}

void CCheckPageDialog::MakeResults()
{
    constexpr LPCTSTR kHeadings[] = {_T("Provera"), _T("Uticaj"), _T("Nosivost"), _T("Iskoriscenost")};
    constexpr int kWidths[] = {150, 88, 88, 80};

    SetUpGrid(m_gridResults, 1 + kCheckCount, eResultColumnCount);
    m_gridResults.SetEditable(FALSE);
    for (int nCol = 0; nCol < eResultColumnCount; ++nCol)
    {
        m_gridResults.SetItemText(0, nCol, Tr(kHeadings[nCol]));
        m_gridResults.SetColumnWidth(nCol, kWidths[nCol]);
    }
    for (int i = 0; i < kCheckCount; ++i)
    {
        m_gridResults.SetItemText(i + 1, eCheck, Tr(kChecks[i]));
        for (int nCol = eEffect; nCol < eResultColumnCount; ++nCol)
            m_gridResults.SetItemFormat(i + 1, nCol, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    }
    m_gridResults.ExpandLastColumn();
}

/// Of the load case that governs; nothing if none has been checked.
void CCheckPageDialog::ShowResults(const Survey& survey)
{
    constexpr COLORREF kBad = RGB(176, 0, 0);
    const bool bChecked = survey.casesChecked > 0;
    for (int i = 0; i < kCheckCount; ++i)
    {
        const CheckResult& result = survey.results[static_cast<size_t>(i)];
        CString strUtilisation;
        strUtilisation.Format(_T("%.2f"), bChecked ? result.Utilisation() : 0.0);
        const CString texts[] = {ValueText(result.check, result.effect),
                                 ValueText(result.check, result.resistance), strUtilisation};
        const bool bBad = bChecked && result.Utilisation() > 1.0;
        for (int nCol = eEffect; nCol < eResultColumnCount; ++nCol)
        {
            m_gridResults.SetItemText(i + 1, nCol, bChecked ? texts[nCol - eEffect] : CString());
            m_gridResults.SetItemFgColour(i + 1, nCol, bBad ? kBad : CLR_INHERIT);
        }
    }
    m_gridResults.Invalidate(FALSE);
    SetDlgItemText(IDC_GOVERNING, TextOf(survey));
}

CString CCheckPageDialog::TextOf(const Survey& survey)
{
    if (survey.casesChecked == 0)
        return Tr(_T("Nije provereno."));
    const CheckResult& governing = Governing(survey.results);
    const Forces& forces = survey.loadCase.forces;
    CString strText;
    if (survey.casesChecked < kLoadCaseCount)
        strText.Format(Tr(_T("Prekinuto posle %d slucajeva.")) + _T(" "), survey.casesChecked);
    strText.AppendFormat(Tr(_T("Merodavan je slucaj %d: %s, %.2f.")), survey.governingCase + 1,
                         Tr(kChecks[static_cast<int>(governing.check)]).GetString(), governing.Utilisation());
    strText.AppendFormat(_T("\r\nM = %.1f kNm, V = %.1f kN, N = %.1f kN"), forces.moment_Nm / 1e3,
                         forces.shear_N / 1e3, forces.axial_N / 1e3);
    return strText;
}
} // namespace

CConnectionPageDialog* NewCheckPage(CConnectionDialog& host)
{
    return new CCheckPageDialog(host);
}
