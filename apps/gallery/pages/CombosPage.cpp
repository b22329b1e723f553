// Combo boxes: two that report their selection and widen their list, and two that report everything.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CCombosPageDialog : public CGalleryPageDialog,
                          public AExtComboBoxNotificationHandler,
                          public CComboBoxReflectedNotificationHandler
{
public:
    explicit CCombosPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_COMBOS, host) {}

    int OnInitPageDialog() override
    {
        Fill(m_comboGrade, {_T("S235"), _T("S275"), _T("S355"), _T("S460")});
        Fill(m_comboConnection,
             {_T("Cleat, 2 bolts"), _T("Fin plate, 3 bolts"), _T("End plate, flush, 6 bolts M20"),
              _T("End plate, extended above and below the beam, 8 bolts M24 10.9, preloaded")});
        Fill(m_comboLayer, {_T("0"), _T("Axes"), _T("Columns"), _T("Walls")});
        Fill(m_comboHatch, {_T("None"), _T("Concrete"), _T("Masonry"), _T("Steel"), _T("Timber")});
        ShowChosen();
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_GRADE, m_comboGrade);
        DDX_Control(pDX, IDC_LAYER, m_comboLayer);
        DDX_Control(pDX, IDC_HATCH, m_comboHatch);
        DDX_Control(pDX, IDC_CONNECTION, m_comboConnection);
    }

    void OnExtComboBoxSelChanged(int nId, int nSel) override
    {
        Log(nId == IDC_GRADE ? _T("Steel grade") : _T("Connection"), _T("OnExtComboBoxSelChanged(%d, %d)"),
            nId, nSel);
        ShowChosen();
    }

    void ComboBoxReflectedOnEditchange(int nId) override { LogReflected(nId, _T("Editchange")); }
    void ComboBoxReflectedOnCloseup(int nId) override { LogReflected(nId, _T("Closeup")); }
    void ComboBoxReflectedOnDblclk(int nId) override { LogReflected(nId, _T("Dblclk")); }
    void ComboBoxReflectedOnDropdown(int nId) override { LogReflected(nId, _T("Dropdown")); }
    void ComboBoxReflectedOnEditupdate(int nId) override { LogReflected(nId, _T("Editupdate")); }
    void ComboBoxReflectedOnErrspace(int nId) override { LogReflected(nId, _T("Errspace")); }
    void ComboBoxReflectedOnKillfocus(int nId) override { LogReflected(nId, _T("Killfocus")); }
    void ComboBoxReflectedOnSelchange(int nId) override { LogReflected(nId, _T("Selchange")); }
    void ComboBoxReflectedOnSelendcancel(int nId) override { LogReflected(nId, _T("Selendcancel")); }
    void ComboBoxReflectedOnSelendok(int nId) override { LogReflected(nId, _T("Selendok")); }
    void ComboBoxReflectedOnSetfocus(int nId) override { LogReflected(nId, _T("Setfocus")); }

private:
    static void Fill(CComboBox& combo, std::initializer_list<LPCTSTR> entries)
    {
        for (LPCTSTR pszEntry : entries)
            combo.AddString(gOtLang.Do(pszEntry));
        combo.SetCurSel(0);
    }

    void LogReflected(int nId, LPCTSTR pszEvent)
    {
        Log(nId == IDC_LAYER ? _T("Layer") : _T("Hatch"), _T("ComboBoxReflectedOn%s(%d)"), pszEvent, nId);
    }

    void ShowChosen()
    {
        SetDlgItemText(IDC_CHOSEN, ChosenIn(m_comboGrade) + _T("; ") + ChosenIn(m_comboConnection));
    }

    /// The chosen entry; a combo box may have none, and then its selection is -1.
    static CString ChosenIn(const CComboBox& combo)
    {
        CString strEntry = gOtLang.Do(_T("none"));
        if (const int nSel = combo.GetCurSel(); nSel >= 0)
            combo.GetLBText(nSel, strEntry);
        return strEntry;
    }

    CExtComboBox m_comboGrade{this};
    CExtComboBox m_comboConnection{this};
    // No handler is given: these find this page, their parent, which implements the interface.
    CComboBoxReflected m_comboLayer{nullptr};
    CComboBoxReflected m_comboHatch{nullptr};
};
} // namespace

void AddCombosPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CCombosPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageCombos, _T("Combo boxes"), pDialog), nullptr);
}
