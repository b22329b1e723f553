// Numbers: boxes with units, ranges, formats and spins, and boxes for whole numbers.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <numbers>

namespace
{
/// A unit that the user can choose for the lengths, with the step and the decimals that suit it.
struct SLengthUnit
{
    UINT nButtonId;
    CMeasurementUnit::EUnit eUnit;
    double dSpinStep;
    int nDecimals;
};

constexpr SLengthUnit kLengthUnits[] = {
    {IDC_UNIT_MM, CMeasurementUnit::eMillimetre, 1.0, 1},
    {IDC_UNIT_CM, CMeasurementUnit::eCentimetre, 0.1, 2},
    {IDC_UNIT_M, CMeasurementUnit::eMetre, 0.001, 4},
    {IDC_UNIT_IN, CMeasurementUnit::eInch, 0.05, 3},
};

CComplexUnit Force(CMeasurementUnit::EForceUnit eUnit)
{
    return CComplexUnit(CMeasurementUnit(eUnit, CMeasurementUnit::eForce));
}

class CNumbersPageDialog : public CGalleryPageDialog, public CEditDWRNotificationHandler
{
public:
    explicit CNumbersPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_NUMBERS, host) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    int OnInitPageDialog() override;

    void OnEditNChange(int nId) override
    {
        LogCall(_T("OnEditNChange"), nId);
        ShowOverall();
    }
    void OnEditNSetFocus(int nId) override { LogCall(_T("OnEditNSetFocus"), nId); }
    void OnEditNKillFocus(int nId) override { LogCall(_T("OnEditNKillFocus"), nId); }
    void OnEditDWRSpinDeltaPos(int nId) override { LogCall(_T("OnEditDWRSpinDeltaPos"), nId); }

    afx_msg void OnLengthUnit(UINT nId);
    DECLARE_MESSAGE_MAP()

private:
    void ShowLengthsIn(const SLengthUnit& unit);
    void ShowOverall() { m_editOverall.SetValue(m_editLength.GetValue() + m_editGap.GetValue()); }
    void LogCall(LPCTSTR pszOperation, int nId);
    CString StoredValue(int nId) const;

    static constexpr unsigned int kOwn = CEditDoubleWithRange::kCreateControl;

    // No handler is given: the boxes find this page, their parent, which implements the interface.
    CEditDoubleWithRange m_editThickness{nullptr, kOwn, kOwn};
    CEditDoubleWithRange m_editGap{nullptr, IDC_GAP_UNIT, IDC_GAP_SPIN};
    CEditDoubleWithRange m_editLength{nullptr, kOwn};
    CEditDoubleWithRange m_editCamber{nullptr, kOwn, kOwn};
    CEditDoubleWithRange m_editOverall{nullptr, kOwn};
    CEditDoubleWithRange m_editLoad{nullptr, kOwn, kOwn};
    CEditDoubleWithRange m_editModulus{nullptr, kOwn};
    CEditDoubleWithRange m_editSlope{nullptr, kOwn, kOwn};
    CEditIntegerWithRange m_editBolts{nullptr};
    CEditIntegerWithRange m_editStorey{nullptr};
};

BEGIN_MESSAGE_MAP(CNumbersPageDialog, CGalleryPageDialog)
    ON_COMMAND_RANGE(IDC_UNIT_MM, IDC_UNIT_IN, &CNumbersPageDialog::OnLengthUnit)
END_MESSAGE_MAP()

void CNumbersPageDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPageDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_THICKNESS, m_editThickness);
    DDX_Control(pDX, IDC_GAP, m_editGap);
    DDX_Control(pDX, IDC_LENGTH, m_editLength);
    DDX_Control(pDX, IDC_CAMBER, m_editCamber);
    DDX_Control(pDX, IDC_OVERALL, m_editOverall);
    DDX_Control(pDX, IDC_LOAD, m_editLoad);
    DDX_Control(pDX, IDC_MODULUS, m_editModulus);
    DDX_Control(pDX, IDC_SLOPE, m_editSlope);
    DDX_Control(pDX, IDC_BOLTS, m_editBolts);
    DDX_Control(pDX, IDC_STOREY, m_editStorey);
}

int CNumbersPageDialog::OnInitPageDialog()
{
    CheckRadioButton(IDC_UNIT_MM, IDC_UNIT_IN, IDC_UNIT_MM);
    ShowLengthsIn(kLengthUnits[0]);
    m_editThickness.SetRange(0.004, 0.04);
    m_editThickness.SetValue(0.0125);
    m_editGap.SetMinRange(0.0);
    m_editGap.SetValue(0.002);
    m_editLength.SetMinRange(0.0);
    m_editLength.SetValue(6.25);
    m_editCamber.SetEmpty();
    ShowOverall();

    m_editLoad.SetFormat(eDoubleFormatGeneral, 0);
    m_editLoad.SetComplexUnit(Force(CMeasurementUnit::eKilonewton));
    m_editLoad.SetSpinStep(2.5);
    m_editLoad.SetValue(12500.0);

    const CComplexUnit millimetre(CMeasurementUnit(CMeasurementUnit::eMillimetre, CMeasurementUnit::eLength));
    m_editModulus.SetFormat(eDoubleFormatExponent, 3);
    m_editModulus.SetComplexUnit(Force(CMeasurementUnit::eNewton) / (millimetre * millimetre));
    m_editModulus.SetValue(2.1e11);

    m_editSlope.SetFormat(eDoubleFormatFixed, 1);
    m_editSlope.SetComplexUnit(
        CComplexUnit(CMeasurementUnit(CMeasurementUnit::eDegree, CMeasurementUnit::eAngle)));
    m_editSlope.SetSpinStep(15.0);
    m_editSlope.SetRange(-std::numbers::pi / 2, std::numbers::pi / 2);

    m_editBolts.SetRange(2, 24);
    m_editBolts.SetValue(8);
    m_editStorey.SetEmpty();
    return TRUE;
}

void CNumbersPageDialog::OnLengthUnit(UINT nId)
{
    for (const SLengthUnit& unit : kLengthUnits)
    {
        if (unit.nButtonId == nId)
            ShowLengthsIn(unit);
    }
}

void CNumbersPageDialog::ShowLengthsIn(const SLengthUnit& unit)
{
    const CComplexUnit local(CMeasurementUnit(unit.eUnit, CMeasurementUnit::eLength));
    for (auto* pEdit : {&m_editThickness, &m_editGap, &m_editLength, &m_editCamber, &m_editOverall})
    {
        pEdit->SetComplexUnit(local);
        pEdit->SetFormat(eDoubleFormatFixed, unit.nDecimals);
        pEdit->SetSpinStep(unit.dSpinStep);
    }
}

void CNumbersPageDialog::LogCall(LPCTSTR pszOperation, int nId)
{
    CString strLabel;
    GetDlgItem(nId)->GetWindow(GW_HWNDPREV)->GetWindowText(strLabel); // the label in front of the box
    strLabel.Remove(_T('&'));
    Log(strLabel.TrimRight(_T(':')), _T("%s(%d)   stored: %s"), pszOperation, nId,
        StoredValue(nId).GetString());
}

CString CNumbersPageDialog::StoredValue(int nId) const
{
    CString strValue = gOtLang.Do(_T("nothing"));
    if (auto* pInteger = dynamic_cast<CEditIntegerWithRange*>(GetDlgItem(nId)))
    {
        if (!pInteger->IsEmpty())
            strValue.Format(_T("%d"), pInteger->GetValue());
    }
    else if (auto* pDouble = dynamic_cast<CEditDoubleWithRange*>(GetDlgItem(nId)))
    {
        if (!pDouble->IsEmpty())
            strValue = gfnFormatDouble(_T("%G"), pDouble->GetValue());
    }
    return strValue;
}
} // namespace

void AddNumbersPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CNumbersPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageNumbers, _T("Numbers"), pDialog), manager.GetPage(ePageTextBoxes));
}
