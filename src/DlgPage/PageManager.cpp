#include <afxwin.h>

#include "DlgPage/PageManager.h"

#include "DlgPage/PageDialog.h"
#include "module/AssertReport.h"

#include <utility>

using namespace ow;

namespace
{
constexpr char kSource[] = ".\\DlgPage\\PageManager";

template <class Object>
void DeleteAll(const CArray<Object*, Object*>& objects)
{
    for (INT_PTR i = 0; i < objects.GetSize(); ++i)
        delete objects[i];
}

bool ShareDialog(const CPage* pOne, const CPage* pOther)
{
    return pOne && pOther && pOne->GetDialogTemplateID() == pOther->GetDialogTemplateID();
}
} // namespace

CPageManager::CPageManager(CDialog* pHostDialog) : hostDialog(pHostDialog)
{
}

CPageManager::~CPageManager()
{
    DeleteAll(pages);
    DeleteAll(dialogs);
}

void CPageManager::AddPage(CPage* pPage, CPage* pParent)
{
    ASSERT_AT(pPage, kSource, 63);
    const bool bNasao = !pParent || IndexOf(pages, pParent) >= 0;
    ASSERT_AT(bNasao, kSource, 71);

    pages.Add(pPage);
    parents.Add(pParent);
    for (INT_PTR i = 0; i < addPageClients.GetSize(); ++i)
        addPageClients[i]->PageAdded(pPage, pParent);
}

void CPageManager::AddDialog(CPageDialog* pDlg)
{
    ASSERT_AT(pDlg, kSource, 82);
    pDlg->AttachAttributeChangeNotificationClient(this);
    dialogs.Add(pDlg);
    if (!pDlg->Create(pDlg->GetDialogTemplateID(), hostDialog))
        AfxThrowResourceException();
    pDlg->OnInitPageDialog();

    const CRect frame = dynamic_cast<APageFrameProvider&>(*hostDialog).GetPageFrame();
    pDlg->MoveWindow(frame);
    pDlg->EnableWindow(FALSE);
    pDlg->ShowWindow(SW_HIDE);
}

CPage* CPageManager::GetPage(CPage::EPageID id) const
{
    for (INT_PTR i = 0; i < pages.GetSize(); ++i)
        if (pages[i]->GetPageID() == id)
            return pages[i];
    return nullptr;
}

void CPageManager::RegisterAddPageNotification(AAddPageNotificationClient* pClient, bool bRegister)
{
    RegisterClient(addPageClients, pClient, bRegister);
}

// Wanted: these clients stay registered. Only a client that never was is noticed.
void CPageManager::RegisterAttributeChangedNotification(AAttributeChangeNotificationClient* pClient,
                                                        bool bRegister)
{
    if (bRegister)
        attributeClients.Add(pClient);
    else if (IndexOf(attributeClients, pClient) < 0)
        AfxThrowInvalidArgException();
}

// What is on screen goes, too, where a selector has lost sight of it and names another old page or none. A dialog
// may select another page while it is told of this one: what that one shows stays.
void CPageManager::PageSelected(CPage* pNew, CPage* pOld)
{
    CPage* const pLast = std::exchange(selectedPage, pNew);
    CPage* const pShown = IndexOf(pages, pLast) < 0 ? nullptr : pLast; // another's may be gone
    if (CPage* const pSharing = ShareDialog(pNew, pOld) ? pOld : ShareDialog(pNew, pShown) ? pShown : nullptr)
        pSharing->SendFocusedControlKillFocusMessage();
    if (pNew && pNew == selectedPage)
        pNew->ChangeVisibility(true);
    const auto leave = [&](CPage* pPage)
    {
        if (pPage && !ShareDialog(pPage, pNew) && !ShareDialog(pPage, selectedPage))
            pPage->ChangeVisibility(false);
    };
    leave(pOld);
    if (!ShareDialog(pShown, pOld))
        leave(pShown);
}

void CPageManager::AttributeChangedUsingGUI()
{
    for (INT_PTR i = 0; i < attributeClients.GetSize(); ++i)
        attributeClients[i]->AttributeChangedUsingGUI();
}
