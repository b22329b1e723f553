#include <afxwin.h>

#include "DlgPage/PageManager.h"

#include "DlgPage/PageDialog.h"
#include "module/AssertReport.h"

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
    pDlg->MoveWindow(frame.left, frame.top, frame.Width(), frame.Height(), TRUE);
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

// A dialog may select another page while it is told of this one: what that one shows stays.
void CPageManager::PageSelected(CPage* pNew, CPage* pOld)
{
    selectedPage = pNew;
    if (ShareDialog(pNew, pOld))
    {
        pOld->SendFocusedControlKillFocusMessage();
        if (pNew == selectedPage)
            pNew->ChangeVisibility(true);
        return;
    }
    if (pNew)
        pNew->ChangeVisibility(true);
    if (pOld && pOld != selectedPage && !ShareDialog(selectedPage, pOld))
        pOld->ChangeVisibility(false);
}

void CPageManager::AttributeChangedUsingGUI()
{
    for (INT_PTR i = 0; i < attributeClients.GetSize(); ++i)
        attributeClients[i]->AttributeChangedUsingGUI();
}
