// Configurations: a bolt pattern whose values can be saved under a name, chosen again and deleted. The set of
// configurations, which keeps them in a file, is in StoredConfigs.h.

#include <afxwin.h>

#include "GalleryPage.h"
#include "StoredConfigs.h"
#include "resource.h"

namespace
{
constexpr LPCTSTR kGrades[] = {_T("4.6"), _T("8.8"), _T("10.9")};

/// A file of the user's own, one for each program that shows this page.
CString StoragePath()
{
    CString strFolder;
    strFolder.GetEnvironmentVariable(_T("LOCALAPPDATA"));
    return strFolder + _T('\\') + AfxGetApp()->m_pszExeName + _T(" bolt patterns.txt");
}

class CConfigurationsPageDialog : public CGalleryPageDialog,
                                  public AConfigCtrlGroupNotificationHandler,
                                  public CEditDWRNotificationHandler,
                                  public AExtComboBoxNotificationHandler
{
public:
    explicit CConfigurationsPageDialog(CGalleryHostDialog& host)
        : CGalleryPageDialog(IDD_PAGE_CONFIGURATIONS, host)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    int OnInitPageDialog() override;
    void OnConfigGroupChanged(CConfigCtrlGroup* pGroup) override;
    void OnEditNChange(int nId) override;
    void OnExtComboBoxSelChanged(int nId, int nSel) override;

    afx_msg void OnSaved();
    DECLARE_MESSAGE_MAP()

private:
    void InitLength(CEditDoubleWithRange& edit, double dMin, double dMax);
    void ShowValues();
    void TakeValues();
    void ShowState();

    BoltPattern m_pattern; ///< what this page edits
    CStoredConfigs m_stored{m_pattern, StoragePath()};
    CConfigCtrlGroup m_configs{IDC_CONFIGS, IDC_CONFIG_SAVE, IDC_CONFIG_DELETE, &m_stored, this};
    // No handler is given: the boxes find this page, their parent, which implements the interface.
    CEditIntegerWithRange m_editRows{nullptr};
    CEditDoubleWithRange m_editPitch{nullptr, CEditDoubleWithRange::kCreateControl};
    CEditDoubleWithRange m_editEdge{nullptr, CEditDoubleWithRange::kCreateControl};
    CExtComboBox m_comboGrade{this};
};

BEGIN_MESSAGE_MAP(CConfigurationsPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_CONFIG_SAVE, &CConfigurationsPageDialog::OnSaved)
END_MESSAGE_MAP()

// The group has heard of the click first: the dialogs are closed.
void CConfigurationsPageDialog::OnSaved()
{
    ShowState();
}

void CConfigurationsPageDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPageDialog::DoDataExchange(pDX);
    m_configs.DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PATTERN_ROWS, m_editRows);
    DDX_Control(pDX, IDC_PATTERN_PITCH, m_editPitch);
    DDX_Control(pDX, IDC_PATTERN_EDGE, m_editEdge);
    DDX_Control(pDX, IDC_PATTERN_GRADE, m_comboGrade);
}

int CConfigurationsPageDialog::OnInitPageDialog()
{
    m_editRows.SetRange(1, 20);
    InitLength(m_editPitch, 0.02, 0.5);
    InitLength(m_editEdge, 0.01, 0.2);
    for (LPCTSTR pszGrade : kGrades)
        m_comboGrade.AddString(pszGrade);
    SetDlgItemText(IDC_PATTERN_FILE, StoragePath());

    m_stored.LoadConfigs();
    m_configs.OnInitDialog();
    ShowValues();
    return TRUE;
}

void CConfigurationsPageDialog::InitLength(CEditDoubleWithRange& edit, double dMin, double dMax)
{
    edit.SetComplexUnit(
        CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMillimetre, CMeasurementUnit::eLength)));
    edit.SetFormat(eDoubleFormatFixed, 0);
    edit.SetRange(dMin, dMax);
}

// The set has put the values of the chosen entry into the pattern.
void CConfigurationsPageDialog::OnConfigGroupChanged(CConfigCtrlGroup*)
{
    Log(_T("Configurations"), _T("OnConfigGroupChanged(), current entry %d"), m_stored.GetCurrentConfig());
    ShowValues();
}

void CConfigurationsPageDialog::OnEditNChange(int nId)
{
    Log(_T("Bolt pattern"), _T("OnEditNChange(%d)"), nId);
    TakeValues();
}

void CConfigurationsPageDialog::OnExtComboBoxSelChanged(int nId, int nSel)
{
    Log(_T("Grade"), _T("OnExtComboBoxSelChanged(%d, %d)"), nId, nSel);
    TakeValues();
}

void CConfigurationsPageDialog::ShowValues()
{
    m_editRows.SetValue(m_pattern.nRows);
    m_editPitch.SetValue(m_pattern.dPitch);
    m_editEdge.SetValue(m_pattern.dEdge);
    m_comboGrade.SetCurSel(m_pattern.nGrade);
    ShowState();
}

void CConfigurationsPageDialog::TakeValues()
{
    const int nGrade =
        m_comboGrade.GetCurSel(); // none, if the file that the pattern came from had an unknown one
    m_pattern = {m_editRows.GetValue(), m_editPitch.GetValue(), m_editEdge.GetValue(),
                 nGrade < 0 ? m_pattern.nGrade : nGrade};
    m_configs.Refresh(); // shows no entry while the values are those of none
    ShowState();
}

void CConfigurationsPageDialog::ShowState()
{
    CString strLength;
    strLength.Format(_T("%.0f mm"),
                     1000.0 * ((m_pattern.nRows - 1) * m_pattern.dPitch + 2.0 * m_pattern.dEdge));
    SetDlgItemText(IDC_PATTERN_LENGTH, strLength);
    SetDlgItemText(IDC_PATTERN_STATE,
                   gOtLang.Do(m_stored.IsConfigChanged() ? _T("Changed, not saved") : _T("As stored")));
}
} // namespace

void AddConfigurationsPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CConfigurationsPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageConfigurations, _T("Configurations"), pDialog), nullptr);
}
