#include <afxwin.h>

#include "DlgPage/PageTreeCtrl.h"

#include "DlgPage/Page.h"

#include <cstdint>

using namespace ow;

IMPLEMENT_DYNCREATE(CPageTreeCtrl, CTreeCtrl)

CPageTreeCtrl::CPageTreeCtrl() = default;
CPageTreeCtrl::~CPageTreeCtrl() = default;

BEGIN_MESSAGE_MAP(CPageTreeCtrl, CTreeCtrl)
    ON_NOTIFY_REFLECT(TVN_SELCHANGED, &CPageTreeCtrl::OnTvnSelchanged)
END_MESSAGE_MAP()

void CPageTreeCtrl::OnTvnSelchanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    const auto& change = *reinterpret_cast<NMTREEVIEW*>(pNMHDR);
    CPage* pNew = ItemToPage(change.itemNew.hItem);
    CPage* pOld = ItemToPage(change.itemOld.hItem);
    const int selection = ++selections;
    for (INT_PTR i = 0; i < selectClients.GetSize() && selection == selections; ++i)
        if (auto* pClient = selectClients[i])
            pClient->PageSelected(pNew, pOld);
    SetFocus(); // the page that was shown has taken it
    *pResult = 0;
}

// Whatever the dialog template says, the tree has these styles.
void CPageTreeCtrl::PreSubclassWindow()
{
    CTreeCtrl::PreSubclassWindow();
    ModifyStyle(TVS_NOSCROLL,
                TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_DISABLEDRAGDROP | TVS_SHOWSELALWAYS,
                SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER);
}

BOOL CPageTreeCtrl::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN)
        pMsg->wParam = VK_TAB;
    return CTreeCtrl::PreTranslateMessage(pMsg);
}

void CPageTreeCtrl::PageAdded(CPage* pPage, CPage* pParent)
{
    const HTREEITEM hParent = pParent ? PageToItem(pParent) : TVI_ROOT; // null goes to the root as well
    const HTREEITEM hItem = InsertItem(pPage->GetTreeItemName(), hParent, TVI_LAST);
    pageToItem.SetAt(pPage, hItem);
    // Wanted: the low 32 bits only.
    SetItemData(hItem, static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(pPage)));
}

CPage* CPageTreeCtrl::GetCurrentPage() const
{
    return ItemToPage(GetSelectedItem());
}

void CPageTreeCtrl::SetCurrentPage(CPage* pPage)
{
    if (const HTREEITEM hItem = PageToItem(pPage))
        SelectItem(hItem);
}

void CPageTreeCtrl::RegisterSelectPageNotification(ASelectPageNotificationClient* pClient, bool bRegister)
{
    RegisterClient(selectClients, pClient, bRegister);
}

CPage* CPageTreeCtrl::ItemToPage(HTREEITEM hItem) const
{
    return hItem ? reinterpret_cast<CPage*>(GetItemData(hItem)) : nullptr;
}

HTREEITEM CPageTreeCtrl::PageToItem(CPage* pPage) const
{
    HTREEITEM hItem = nullptr;
    pageToItem.Lookup(pPage, hItem);
    return hItem;
}
