// Choices: radio groups, and the rules that keep check boxes and values in step.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

namespace
{
constexpr int kSetButtons = 5; ///< ids for each rule

/// In the order of the template.
enum Rule
{
    ruleCambered,
    ruleDimensions,
    ruleMasked,
    ruleStiffeners,
    ruleCount
};

class CChoicesPageDialog : public CGalleryPageDialog, public AButtonSTNotificationHandler
{
public:
    explicit CChoicesPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_CHOICES, host) {}

    // The groups need the dialog's window, and so are set here and not in the constructor.
    int OnInitPageDialog() override
    {
        m_profile.Set(this, IDC_PROFILE_FIRST);
        m_coating.Set(this, IDC_COATING_FIRST);
        m_stiffeners.Set(this, IDC_STIFFENERS_FIRST);
        m_profile.SetOption(0);
        m_coating.SetOption(1);
        CheckDlgButton(IDC_COATING_ENABLE, BST_CHECKED);
        CheckDlgButton(IDC_COATING_SHOW, BST_CHECKED);
        ShowOptions();
        ExchangeAll(true);
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_CAMBERED, m_checkCambered);
        DDX_Control(pDX, IDC_DIMENSIONS, m_checkDimensions);
        DDX_Control(pDX, IDC_TOLERANCES, m_checkTolerances);
        DDX_Control(pDX, IDC_MASKED, m_checkMasked);
        DDX_Control(pDX, IDC_STIFFENED, m_checkStiffened);
    }

    /// A click on any button of the three groups.
    void OnButtonClicked(int nId) override
    {
        Log(NameOf(nId), _T("OnButtonClicked(%d)"), nId);
        if (m_stiffeners.Find(nId) >= 0)
            return Exchange(ruleStiffeners, false);
        OnCoatingChanged();
    }

    afx_msg void OnClearCoating()
    {
        m_coating.SetOption(-1);
        OnCoatingChanged();
    }
    afx_msg void OnEnableCoating() { m_coating.Enable(IsDlgButtonChecked(IDC_COATING_ENABLE) != 0); }
    afx_msg void OnShowCoating() { m_coating.Show(IsDlgButtonChecked(IDC_COATING_SHOW) != 0); }
    afx_msg void OnBox() { ExchangeAll(false); }
    afx_msg void OnSetValue(UINT nId)
    {
        const int nButton = static_cast<int>(nId) - IDC_RULE_SET_FIRST;
        const Rule rule = static_cast<Rule>(nButton / kSetButtons);
        m_values[rule] = nButton % kSetButtons;
        Exchange(rule, true);
    }
    DECLARE_MESSAGE_MAP()

private:
    LPCTSTR NameOf(int nId) const
    {
        return m_profile.Find(nId) >= 0   ? _T("Profile")
               : m_coating.Find(nId) >= 0 ? _T("Coating")
                                          : _T("Stiffeners");
    }

    /// The coating is the condition of one of the rules.
    void OnCoatingChanged()
    {
        ShowOptions();
        Exchange(ruleMasked, false);
    }

    void ShowOptions()
    {
        ShowOption(IDC_PROFILE_OPTION, m_profile);
        ShowOption(IDC_COATING_OPTION, m_coating);
    }
    void ShowOption(int nLabelId, const CRadioGroup& group)
    {
        CString strText;
        strText.Format(gOtLang.Do(_T("Option %d of %d")), group.GetOption(), group.Count());
        SetDlgItemText(nLabelId, strText);
    }

    void ExchangeAll(bool bSet)
    {
        for (int nRule = 0; nRule < ruleCount; ++nRule)
            Exchange(static_cast<Rule>(nRule), bSet);
    }
    /// Carries a rule's value to its boxes, or back, and shows it.
    void Exchange(Rule rule, bool bSet)
    {
        int& nValue = m_values[rule];
        int nIsCoated = m_coating.GetOption() > 0;
        switch (rule)
        {
        case ruleCambered:
            gfnObradiCheckBox(&m_checkCambered, bSet, &nValue);
            break;
        case ruleDimensions:
            gfnObradiDvaCheckBoxa(&m_checkDimensions, &m_checkTolerances, bSet, &nValue);
            break;
        case ruleMasked:
            gfnObradiUslovniCheckBox(&m_checkMasked, bSet, &nIsCoated, &nValue);
            break;
        default:
            gfnObradiChkBoxSaGrupomRadioDugmica(&m_checkStiffened, m_stiffeners, bSet, &nValue);
        }
        SetDlgItemInt(IDC_RULE_VALUE_FIRST + rule, nValue);
    }

    CRadioGroup m_profile{nullptr, 0};
    CRadioGroup m_coating{nullptr, 0};
    CRadioGroup m_stiffeners{nullptr, 0};
    CButton m_checkCambered;
    CButton m_checkDimensions;
    CButton m_checkTolerances;
    CButton m_checkMasked;
    CButton m_checkStiffened;
    int m_values[ruleCount] = {1, 1, 0, 2};
};

BEGIN_MESSAGE_MAP(CChoicesPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_COATING_CLEAR, &CChoicesPageDialog::OnClearCoating)
    ON_BN_CLICKED(IDC_COATING_ENABLE, &CChoicesPageDialog::OnEnableCoating)
    ON_BN_CLICKED(IDC_COATING_SHOW, &CChoicesPageDialog::OnShowCoating)
    ON_BN_CLICKED(IDC_CAMBERED, &CChoicesPageDialog::OnBox)
    ON_BN_CLICKED(IDC_DIMENSIONS, &CChoicesPageDialog::OnBox)
    ON_BN_CLICKED(IDC_TOLERANCES, &CChoicesPageDialog::OnBox)
    ON_BN_CLICKED(IDC_MASKED, &CChoicesPageDialog::OnBox)
    ON_BN_CLICKED(IDC_STIFFENED, &CChoicesPageDialog::OnBox)
    ON_COMMAND_RANGE(IDC_RULE_SET_FIRST, IDC_RULE_SET_FIRST + ruleCount * kSetButtons - 1,
                     &CChoicesPageDialog::OnSetValue)
END_MESSAGE_MAP()
} // namespace

void AddChoicesPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CChoicesPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageChoices, _T("Choices"), pDialog), nullptr);
}
