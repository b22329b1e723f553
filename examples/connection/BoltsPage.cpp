// Bolts: their size, their class, and where they are.

#include <afxwin.h>

#include "Check.h"
#include "ConnectionPage.h"

namespace
{
class CBoltsPageDialog : public CConnectionPageDialog, public AExtComboBoxNotificationHandler
{
public:
    explicit CBoltsPageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_BOLTS, host) {}

    int OnInitPageDialog() override
    {
        FillCombo(m_comboSize, BoltSizes());
        FillCombo(m_comboClass, BoltClasses());
        return TRUE;
    }

    void ShowValues(const FittedConnection& fitted) override
    {
        const Connection& c = fitted.values;
        m_comboSize.SetCurSel(c.boltSize);
        m_comboClass.SetCurSel(c.boltClass);
        m_editRows.SetRange(2, fitted.maxRows);
        m_editRows.SetValue(c.boltRows);
        CString strText;
        strText.Format(_T("2 - %d"), fitted.maxRows);
        SetDlgItemText(IDC_ROWS + IDC_LIMITS_OF, strText);
        ShowLength(m_editEnd, c.endDistance_m, fitted.endDistance);
        ShowLength(m_editPitch, c.pitch_m, fitted.pitch);
        ShowLength(m_editGauge, c.gauge_m, fitted.gauge);
        SetDlgItemText(IDC_BOTTOM_DISTANCE, LengthText(c.BottomDistance_m()));
        SetDlgItemText(IDC_EDGE_DISTANCE, LengthText(c.EdgeDistance_m()));
        strText.Format(_T("Ft,Rd = %.1f kN\r\nFv,Rd = %.1f kN"),
                       TensionResistance_N(c.Bolt(), c.Class()) / 1e3,
                       ShearResistance_N(c.Bolt(), c.Class()) / 1e3);
        SetDlgItemText(IDC_BOLT_RESISTANCE, strText);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_BOLT_SIZE, m_comboSize);
        DDX_Control(pDX, IDC_BOLT_CLASS, m_comboClass);
        DDX_Control(pDX, IDC_ROWS, m_editRows);
        DDX_Control(pDX, IDC_END_DISTANCE, m_editEnd);
        DDX_Control(pDX, IDC_PITCH, m_editPitch);
        DDX_Control(pDX, IDC_GAUGE, m_editGauge);
    }

    void OnExtComboBoxSelChanged(int nId, int nSel) override
    {
        if (nSel < 0)
            return;
        (nId == IDC_BOLT_SIZE ? Wanted().boltSize : Wanted().boltClass) = nSel;
        MyAttributeChanged();
    }

    // Only what was changed goes to the wanted values: the others may show less than is wanted.
    void OnEditNChange(int nId) override
    {
        switch (nId)
        {
        case IDC_ROWS:
            Wanted().boltRows = m_editRows.GetValue();
            break;
        case IDC_END_DISTANCE:
            Wanted().endDistance_m = m_editEnd.GetValue();
            break;
        case IDC_PITCH:
            Wanted().pitch_m = m_editPitch.GetValue();
            break;
        case IDC_GAUGE:
            Wanted().gauge_m = m_editGauge.GetValue();
            break;
        }
        MyAttributeChanged();
    }

private:
    static constexpr unsigned int kOwn = CEditDoubleWithRange::kCreateControl;

    CExtComboBox m_comboSize{this}, m_comboClass{this};
    CEditIntegerWithRange m_editRows{this};
    CEditDoubleWithRange m_editEnd{this, kOwn, kOwn}, m_editPitch{this, kOwn, kOwn},
        m_editGauge{this, kOwn, kOwn};
};
} // namespace

CConnectionPageDialog* NewBoltsPage(CConnectionDialog& host)
{
    return new CBoltsPageDialog(host);
}
