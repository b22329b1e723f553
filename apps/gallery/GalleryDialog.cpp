#include <afxwin.h>

#include "GalleryDialog.h"

#include "ComboGalleryDialog.h"
#include "PageIds.h"
#include "resource.h"

CGalleryDialog::CGalleryDialog(CWnd* pParent) : CGalleryHostDialog(IDD_GALLERY, pParent)
{
}

BEGIN_MESSAGE_MAP(CGalleryDialog, CGalleryHostDialog)
    ON_BN_CLICKED(IDC_BY_COMBOS, &CGalleryDialog::OnByCombos)
END_MESSAGE_MAP()

void CGalleryDialog::OnByCombos()
{
    const CPage* pShown = m_tree.GetCurrentPage();
    CComboGalleryDialog(this, pShown ? pShown->GetPageID() : ePageTextBoxes).DoModal();
}

void CGalleryDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryHostDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PAGES, m_tree);
    DDX_Control(pDX, IDC_PAGE_TITLE, m_caption);
}

BOOL CGalleryDialog::OnInitDialog()
{
    CGalleryHostDialog::OnInitDialog();
    m_manager.RegisterAddPageNotification(&m_tree, true);
    // The log first: what a page reports follows its selection.
    m_tree.RegisterSelectPageNotification(this, true);
    m_tree.RegisterSelectPageNotification(&m_manager, true);
    m_tree.RegisterSelectPageNotification(&m_caption, true);
    AddAllPages(m_manager, *this);
    PreSetPages();
    ExpandAll();
    m_tree.SetCurrentPage(m_manager.GetPage(ePageTextBoxes));
    return FALSE; // the tree has the focus
}

// What a page starts from may be decided by whoever shows it: the lengths of columns stand in metres.
void CGalleryDialog::PreSetPages()
{
    CFormatJedinice metres;
    metres.nUnitIndex = CMeasurementUnit::eMetre;
    metres.nEditValue = 3;
    metres.nCheckFlag = 1;
    m_manager.GetPage(ePageColumn)->SetDuzina(metres);
}

void CGalleryDialog::ExpandAll()
{
    for (HTREEITEM hItem = m_tree.GetRootItem(); hItem; hItem = m_tree.GetNextSiblingItem(hItem))
        m_tree.Expand(hItem, TVE_EXPAND);
}
