#pragma once
// The pages of a CPageManager as a tree. A change of the selection, by mouse, by key or by code, is told to
// its clients, and the manager among them shows the page.
//
// The tree needs no code of its host but the wiring, which must come in this order, as nothing is replayed:
//
// ```cpp
//     m_manager.RegisterAddPageNotification(&m_tree, true);
//     m_tree.RegisterSelectPageNotification(&m_manager, true);
//     m_manager.AddDialog(pDialog); m_manager.AddPage(pFirst, nullptr); // the tree fills itself
//     m_tree.SetCurrentPage(pFirst);                            // nothing is selected until then
// ```
//
// Pages stand in the order of adding below their parents, and stay as long as the control. Enter moves the
// focus to the next control. After a change of selection the tree has the focus, not the page. A tree that
// gets the focus with nothing selected selects its first item, as any tree view.
//
// Limit. An item carries its page in a word of 32 bits, so every page added must lie below 4 GiB. Pages made
// by `new` do; see Page.h. What GetCurrentPage and the clients are given for any other page is not that page.

#include <afxwin.h>
#include <afxcmn.h>
#include <afxtempl.h>

#include "DlgPage/ClientList.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CPageTreeCtrl : public CTreeCtrl,
                                            public AAddPageNotificationClient,
                                            public ACurrentPageProvider
{
    DECLARE_DYNCREATE(CPageTreeCtrl)

public:
    CPageTreeCtrl();
    ~CPageTreeCtrl() override;

    /// Adds an item for the page below its parent's; at the root with a null parent, or with one that the
    /// tree does not know. Neither is owned.
    void PageAdded(CPage* pPage, CPage* pParent) override;

    /// The page of the selected item, or null.
    CPage* GetCurrentPage() const override;

    /// Selects the page's item; the clients are told as if the user had done it. Null, an unknown page and
    /// the page that is selected already change nothing.
    void SetCurrentPage(CPage* pPage);

    /// Whom to tell of the selection; not owned, told in the order of registering. The first one registered
    /// cannot be removed again.
    void RegisterSelectPageNotification(ASelectPageNotificationClient* pClient, bool bRegister);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    CPage* ItemToPage(HTREEITEM hItem) const;
    /// Null for a page that was not added.
    HTREEITEM PageToItem(CPage* pPage) const;

    void PreSubclassWindow() override;

    afx_msg void OnTvnSelchanged(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    CMap<CPage*, CPage*, HTREEITEM, HTREEITEM> pageToItem; ///< the complete record, with the whole pointers
    ow::CClientList<ASelectPageNotificationClient> selectClients;
    int selections = 0; ///< a client that selects another page has told all clients of that one
};
