#include <afxwin.h>

#include "dialogs/NazivComboDlg.h"

#include "module/HostResourceScope.h"
#include "module/RecreateControl.h"
#include "resources/resource.h"

IMPLEMENT_DYNAMIC(CNazivComboDlg, CDialog)

CNazivComboDlg::CNazivComboDlg(CWnd* pParent)
    : CNazivDlgBase(IDD_OW_NAZIV_COMBO, IDC_OW_NAZIV_COMBO, m_comboNaziv, pParent)
{
}

CNazivComboDlg::~CNazivComboDlg() = default;

void CNazivComboDlg::SetNames(const CStringArray& names)
{
    m_names.Copy(names);
}

BOOL CNazivComboDlg::OnInitDialog()
{
    CNazivDlgBase::OnInitDialog();
    LetTextScroll();
    m_comboNaziv.SetFocus();
    if (!GetNaziv().IsEmpty())
    {
        m_comboNaziv.SetWindowText(GetNaziv());
        m_comboNaziv.SetEditSel(0, -1);
    }
    for (INT_PTR i = 0; i < m_names.GetSize(); ++i)
        m_comboNaziv.AddString(m_names[i]);
    return FALSE; // the focus is set
}

/// As the template makes it, the combo box refuses what is typed beyond its right edge.
void CNazivComboDlg::LetTextScroll()
{
    CRect rect;
    m_comboNaziv.GetDroppedControlRect(rect);
    ScreenToClient(rect);
    gfnRecreateControl(m_comboNaziv, m_comboNaziv.GetStyle() | CBS_AUTOHSCROLL, rect);
    m_comboNaziv.LimitText(0);
}

int gfnStartNazivComboDlg(CString& strNaziv, const CStringArray& names, CString strCaption, CWnd* pParent)
{
    const CHostResourceScope resources;
    CNazivComboDlg dialog(pParent);
    dialog.SetNames(names);
    return dialog.Ask(strNaziv, strCaption);
}
