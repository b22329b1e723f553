#include <afxwin.h>

#include "dialogs/NazivDlg.h"

#include "module/HostResourceScope.h"
#include "resources/resource.h"

IMPLEMENT_DYNAMIC(CNazivDlg, CDialog)

CNazivDlg::CNazivDlg(CWnd* pParent) : CNazivDlgBase(IDD_OW_NAZIV, IDC_OW_NAZIV, m_editNaziv, pParent)
{
}

CNazivDlg::~CNazivDlg() = default;

BOOL CNazivDlg::OnInitDialog()
{
    CNazivDlgBase::OnInitDialog();
    m_editNaziv.SetLimitText(0);
    if (!GetNaziv().IsEmpty())
    {
        m_editNaziv.SetWindowText(GetNaziv());
        m_editNaziv.SetSel(0, -1); // scrolls the caret into view as well
    }
    m_editNaziv.SetFocus();
    return FALSE; // the focus is set
}

int gfnStartNazivDlg(CString& strNaziv, CString strCaption)
{
    const CHostResourceScope resources;
    return CNazivDlg().Ask(strNaziv, strCaption);
}
