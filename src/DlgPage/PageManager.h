#pragma once
// The part of a host dialog that owns pages and their dialogs, and shows the page that is selected.
//
// ```cpp
//     class CSettingsDialog : public CDialog, public APageFrameProvider
//     {
//         CPageManager m_manager{this};
//         CPageTreeCtrl m_tree;
//         CRect m_rectPages;                                      // in pixels of the client area
//
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_manager.RegisterAddPageNotification(&m_tree, true);   // selectors first: nothing is replayed
//             m_tree.RegisterSelectPageNotification(&m_manager, true);
//             auto* pDialog = new CBeamDialog(this);
//             m_manager.AddDialog(pDialog);
//             m_manager.AddPage(new CBeamPage(pDialog), nullptr);
//             m_tree.SetCurrentPage(m_manager.GetPage(ePageBeams));
//             return FALSE;                                           // the tree has the focus
//         }
//         CRect GetPageFrame() override { return m_rectPages; }
//     };
// ```
//
// The host dialog must implement APageFrameProvider, and must still have its window, or never get one again,
// when the manager goes. Two pages that name one template must be given one dialog object.
//
// Misuse (a null page or dialog, a parent that was not added) is a failed assertion that ends the process.

#include <afxwin.h>
#include <afxtempl.h>

#include "DlgPage/ClientList.h"
#include "DlgPage/Page.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class CPageDialog;

class OW_DIALOGCONTROLS_API CPageManager : public ASelectPageNotificationClient,
                                           public AAttributeChangeNotificationClient
{
public:
    /// The host is not owned.
    explicit CPageManager(CDialog* pHostDialog);
    /// Deletes the pages first and then their dialogs, each in the order of adding. Tells no client.
    ~CPageManager() override;
    CPageManager(const CPageManager&) = delete;
    CPageManager& operator=(const CPageManager&) = delete;

    /// Takes over a page made by `new`, and tells the selectors. A parent must have been added before; null
    /// makes a top-level page.
    void AddPage(CPage* pPage, CPage* pParent);

    /// Takes over a page dialog made by `new`: creates its window as a child of the host, lets it set itself
    /// up, places it in the host's page frame, and leaves it disabled and hidden. Raises MFC's resource
    /// exception if the window cannot be made from its template; the dialog is owned also then.
    void AddDialog(CPageDialog* pDlg);

    /// The first page added that has this identity; null if there is none.
    CPage* GetPage(CPage::EPageID id) const;

    /// Whom to tell of added pages; not owned, to be registered before pages are added. The first one
    /// registered cannot be removed again.
    void RegisterAddPageNotification(AAddPageNotificationClient* pClient, bool bRegister);

    /// Whom to tell that the user changed a value; not owned. None can be removed again: removing one that is
    /// registered changes nothing, and one that is not raises MFC's invalid-argument exception.
    void RegisterAttributeChangedNotification(AAttributeChangeNotificationClient* pClient, bool bRegister);

    /// Shows the new page, and hides the old one afterwards, so that the frame is never empty; also the page
    /// of the manager's own that was selected last, if that is another one. Pages that share a dialog leave
    /// it on screen: the focused edit takes over what was typed, and the dialog is bound anew.
    void PageSelected(CPage* pNew, CPage* pOld) override;
    /// Tells every client registered for it.
    void AttributeChangedUsingGUI() override;

private:
    CArray<CPageDialog*, CPageDialog*> dialogs; ///< owned
    CArray<CPage*, CPage*> pages;               ///< owned
    CArray<CPage*, CPage*> parents;             ///< for each page its parent, or null
    ow::CClientList<AAddPageNotificationClient> addPageClients;
    ow::CClientList<AAttributeChangeNotificationClient> attributeClients;
    CPage* selectedPage = nullptr; ///< the last one; also while an earlier selection is still at work
    CDialog* hostDialog;           ///< not owned
};
