#pragma once
// What the two dialogs that ask for a name have in common: see CNazivDlg and CNazivComboDlg.

#include <afxwin.h>

#include "buttons/ButtonST.h"
#include "module/Export.h"

class OW_DIALOGCONTROLS_API CNazivDlgBase : public CDialog
{
public:
    /// Shows the dialog with a start value and a caption; an empty caption leaves that of the template,
    /// translated. On IDOK `strNaziv` takes over what stands in the box, else it stays. The answer is
    /// DoModal's: IDOK, IDCANCEL, or -1 if there was no dialog.
    int Ask(CString& strNaziv, const CString& strCaption);

protected:
    /// `box` is the control for the name, a member of the derived class.
    CNazivDlgBase(UINT nTemplateId, UINT nBoxId, CWnd& box, CWnd* pParent);

    void DoDataExchange(CDataExchange* pDX) override;
    /// Language, icons and caption. The derived class fills the box and gives it the focus.
    BOOL OnInitDialog() override;
    void OnOK() override;

    const CString& GetNaziv() const { return m_strNaziv; }

private:
    UINT m_nBoxId;
    CWnd& m_box;
    CButtonST m_btnOk;
    CButtonST m_btnCancel;
    CString m_strNaziv;
    CString m_strCaption;
};
