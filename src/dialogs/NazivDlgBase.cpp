#include <afxwin.h>

#include "dialogs/NazivDlgBase.h"

#include <Translator.h>

CNazivDlgBase::CNazivDlgBase(UINT nTemplateId, UINT nBoxId, CWnd& box, CWnd* pParent)
    : CDialog(nTemplateId, pParent), m_nBoxId(nBoxId), m_box(box)
{
}

int CNazivDlgBase::Ask(CString& strNaziv, const CString& strCaption)
{
    m_strNaziv = strNaziv;
    m_strCaption = strCaption;
    const int nResult = static_cast<int>(DoModal());
    if (nResult == IDOK)
        strNaziv = m_strNaziv;
    return nResult;
}

void CNazivDlgBase::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, m_nBoxId, m_box);
    DDX_Control(pDX, IDOK, m_btnOk);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
}

BOOL CNazivDlgBase::OnInitDialog()
{
    const BOOL bResult = CDialog::OnInitDialog();
    gOtLang.TranslateDialog(this, 1);
    m_btnOk.SetIcon(CButtonST::hIconOk);
    m_btnCancel.SetIcon(CButtonST::hIconCancel);
    if (!m_strCaption.IsEmpty())
        SetWindowText(m_strCaption);
    return bResult;
}

// Wanted: an empty name is a name. The caller knows what it allows.
void CNazivDlgBase::OnOK()
{
    m_box.GetWindowText(m_strNaziv);
    CDialog::OnOK();
}
