// Geometry: the profiles and their steel.

#include <afxwin.h>

#include "ConnectionPage.h"

namespace
{
class CGeometryPageDialog : public CConnectionPageDialog, public AExtComboBoxNotificationHandler
{
public:
    explicit CGeometryPageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_GEOMETRY, host) {}

    int OnInitPageDialog() override
    {
        FillCombo(m_comboBeam, Profiles());
        FillCombo(m_comboColumn, Profiles());
        FillCombo(m_comboSteel, SteelGrades());
        return TRUE;
    }

    void ShowValues(const FittedConnection& fitted) override
    {
        const Connection& c = fitted.values;
        m_comboBeam.SetCurSel(c.beam);
        m_comboColumn.SetCurSel(c.column);
        m_comboSteel.SetCurSel(c.steel);
        SetDlgItemText(IDC_BEAM_SIZES, TextOf(c.Beam()));
        SetDlgItemText(IDC_COLUMN_SIZES, TextOf(c.Column()));
        CString strSteel;
        strSteel.Format(_T("fy = %.0f, fu = %.0f N/mm\u00B2"), c.Steel().yield_Pa / 1e6,
                        c.Steel().ultimate_Pa / 1e6);
        SetDlgItemText(IDC_STEEL_STRENGTH, strSteel);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_BEAM, m_comboBeam);
        DDX_Control(pDX, IDC_COLUMN, m_comboColumn);
        DDX_Control(pDX, IDC_STEEL, m_comboSteel);
    }

    void OnExtComboBoxSelChanged(int nId, int nSel) override
    {
        if (nSel < 0)
            return;
        (nId == IDC_BEAM ? Wanted().beam : nId == IDC_COLUMN ? Wanted().column : Wanted().steel) = nSel;
        MyAttributeChanged();
    }

private:
    CString TextOf(const Profile& profile) const
    {
        const auto text = [this](double length_m) { return LengthText(length_m); };
        CString strMass;
        strMass.Format(_T("%.4g kg/m"), profile.mass_kgPerM);
        return _T("h = ") + text(profile.height_m) + _T(",  b = ") + text(profile.width_m) + _T(",  tw = ") +
               text(profile.web_m) + _T("\r\ntf = ") + text(profile.flange_m) + _T(",  r = ") +
               text(profile.radius_m) + _T(",  ") + strMass;
    }

    CExtComboBox m_comboBeam{this}, m_comboColumn{this}, m_comboSteel{this};
};
} // namespace

CConnectionPageDialog* NewGeometryPage(CConnectionDialog& host)
{
    return new CGeometryPageDialog(host);
}
