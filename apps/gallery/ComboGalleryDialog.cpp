#include <afxwin.h>

#include "ComboGalleryDialog.h"

#include "resource.h"

CComboGalleryDialog::CComboGalleryDialog(CWnd* pParent)
    : CGalleryHostDialog(IDD_GALLERY_COMBOS, pParent), m_byButton(IDC_PAGE_COMBO_BUTTON, IDC_PAGE_BUTTON),
      m_byCheck(IDC_PAGE_COMBO_CHECK, IDC_PAGE_CHECK)
{
    m_byButton.SetStateTexts(_T("First page"), _T("Second page"));
    m_byButton.SetStateIcons(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt);
}

void CComboGalleryDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryHostDialog::DoDataExchange(pDX);
    m_byButton.DoDataExchange(pDX);
    m_byCheck.DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PAGE_TITLE, m_caption);
}

BOOL CComboGalleryDialog::OnInitDialog()
{
    CGalleryHostDialog::OnInitDialog();
    m_manager.RegisterAddPageNotification(&m_byButton, true);
    m_manager.RegisterAddPageNotification(&m_byCheck, true);
    m_byButton.RegisterSelectPageNotification(this, true);
    m_byButton.RegisterSelectPageNotification(&m_manager, true);
    m_byButton.RegisterSelectPageNotification(&m_caption, true);
    m_byButton.RegisterSelectPageNotification(&m_linkButton, true);
    // Through the link only, and so the manager hears each selection once.
    m_byCheck.RegisterSelectPageNotification(&m_linkCheck, true);
    m_byButton.SetCurrentPage(AddAllPages(*this));
    return FALSE; // the combo box has the focus
}
