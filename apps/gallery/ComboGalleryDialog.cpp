#include <afxwin.h>

#include "ComboGalleryDialog.h"

#include "resource.h"

#include <Translator.h>

CComboGalleryDialog::CComboGalleryDialog(CWnd* pParent, CPage::EPageID idFirst)
    : CGalleryHostDialog(IDD_GALLERY_COMBOS, pParent), m_byButton(IDC_PAGE_COMBO_BUTTON, IDC_PAGE_BUTTON),
      m_byCheck(IDC_PAGE_COMBO_CHECK, IDC_PAGE_CHECK), m_idFirst(idFirst)
{
    m_byButton.SetStateTexts(gOtLang.Do(_T("First page")), gOtLang.Do(_T("Second page")));
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
    // Two selectors: this dialog hears of both, and passes each selection on once.
    m_byButton.RegisterSelectPageNotification(this, true);
    m_byCheck.RegisterSelectPageNotification(this, true);
    AddAllPages(m_manager, *this);
    m_byButton.SetFocus();
    m_byButton.SetCurrentPage(m_manager.GetPage(m_idFirst));
    return FALSE; // the combo box has the focus
}

void CComboGalleryDialog::PageSelected(CPage* pNew, CPage* pOld)
{
    if (m_bFollowing)
        return;
    m_bFollowing = true;
    const HWND hFocus = ::GetFocus(); // showing a page moves it there
    CGalleryHostDialog::PageSelected(pNew, pOld);
    m_manager.PageSelected(pNew, pOld);
    m_caption.PageSelected(pNew, pOld);
    m_byButton.SetCurrentPage(pNew);
    m_byCheck.SetCurrentPage(pNew);
    ::SetFocus(hFocus);
    m_bFollowing = false;
}
