// Plate and welds.

#include <afxwin.h>

#include "ConnectionPage.h"
#include "Parts.h"

namespace
{
class CPlatePageDialog : public CConnectionPageDialog
{
public:
    explicit CPlatePageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_PLATE, host) {}

    void ShowValues(const FittedConnection& fitted) override
    {
        for (const Box& box : m_boxes)
            ShowLength(*box.pEdit, fitted.values.*box.pValue, fitted.*box.pLimits);
        CString strMass;
        strMass.Format(_T("%.2f kg"), PartsOf(fitted.values)[ePartPlate].mass_kg);
        SetDlgItemText(IDC_PLATE_MASS, strMass);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        for (const Box& box : m_boxes)
            DDX_Control(pDX, box.nId, *box.pEdit);
    }

    void OnEditNChange(int nId) override
    {
        for (const Box& box : m_boxes)
            if (box.nId == nId)
                Wanted().*box.pValue = box.pEdit->GetValue();
        MyAttributeChanged();
    }

private:
    /// A box, its value and its limits.
    struct Box
    {
        int nId;
        CEditDoubleWithRange* pEdit;
        double Connection::*pValue;
        Limits FittedConnection::*pLimits;
    };
    static constexpr unsigned int kOwn = CEditDoubleWithRange::kCreateControl;

    CEditDoubleWithRange m_editThickness{this, kOwn, kOwn}, m_editHeight{this, kOwn, kOwn},
        m_editWidth{this, kOwn, kOwn}, m_editFlangeWeld{this, kOwn, kOwn},
        m_editWebWeld{this, kOwn, kOwn};
    const Box m_boxes[5] = {
        {IDC_THICKNESS, &m_editThickness, &Connection::plateThickness_m, &FittedConnection::thickness},
        {IDC_HEIGHT, &m_editHeight, &Connection::plateHeight_m, &FittedConnection::height},
        {IDC_WIDTH, &m_editWidth, &Connection::plateWidth_m, &FittedConnection::width},
        {IDC_FLANGE_WELD, &m_editFlangeWeld, &Connection::flangeWeld_m, &FittedConnection::flangeWeld},
        {IDC_WEB_WELD, &m_editWebWeld, &Connection::webWeld_m, &FittedConnection::webWeld},
    };
};
} // namespace

CConnectionPageDialog* NewPlatePage(CConnectionDialog& host)
{
    return new CPlatePageDialog(host);
}
