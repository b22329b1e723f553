// Pages behind each kind of selector: added at any time, selected by code and by input, with dialogs that do such
// things themselves while they are bound or told, and windows that go.

#include "Soak.h"

#include "../DlgPage/resource.h"
#include "DialogTemplate.h"
#include "Input.h"

#include <DialogControlsOW.h>

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>

namespace
{
enum Id : WORD
{
    idSelector = 1001,
    idToggle,
    idElsewhere
};

class SoakPage : public CPage
{
public:
    SoakPage(int nId, CPageDialog* pDialog)
        : CPage((L"Page " + std::to_wstring(nId)).c_str(), pDialog), m_nId(nId)
    {
    }
    EPageID GetPageID() const override { return static_cast<EPageID>(m_nId); }
    CPageDialog* Dialog() const { return dialog; }

private:
    int m_nId;
};

class SoakPageDialog : public CPageDialog, public CEditNNotificationHandler
{
public:
    SoakPageDialog(UINT nTemplateId, CWnd* pHost, std::function<void()> react)
        : CPageDialog(nTemplateId, pHost), m_react(std::move(react))
    {
    }

    int OnInitPageDialog() override { return m_count.SubclassDlgItem(IDC_COUNT, this); }
    void BindControlsToSources(bool, CPage*) override { m_react(); }
    void OnEditNChange(int) override { MyAttributeChanged(); }
    void OnEditNKillFocus(int) override { m_react(); }

private:
    CEditIntegerWithRange m_count{this};
    std::function<void()> m_react;
};

/// A host with one selector. Tells what the manager is to show.
template <class Selector>
class SoakHost : public CDialog,
                 public APageFrameProvider,
                 public ASelectPageNotificationClient,
                 public AAttributeChangeNotificationClient
{
public:
    explicit SoakHost(std::function<void()> react) : m_react(std::move(react))
    {
        const bool bTree = !std::is_constructible_v<Selector, int, int>;
        CreateIndirect(owtest::DialogTemplate(L"Pages", 300, 140)
                           .Item(bTree ? L"SysTreeView32" : L"COMBOBOX", L"", idSelector,
                                 WS_TABSTOP | (bTree ? 0 : CBS_DROPDOWNLIST), 4, 4, 80, 80)
                           .Item(L"BUTTON", L"More", idToggle, WS_TABSTOP | BS_AUTOCHECKBOX, 4, 90, 80, 14)
                           .Edit(idElsewhere, 4, 110, 80, 14)
                           .get());
    }
    ~SoakHost() override { DestroyWindow(); }

    Selector selector = MakeSelector();
    CPageManager manager{this};
    std::vector<SoakPageDialog*> dialogs; ///< the manager's
    std::vector<SoakPage*> pages;         ///< the manager's
    CPage* pTold = nullptr;

    CRect GetPageFrame() override { return CRect(CPoint(200, 10), CSize(200, 150)); }
    void PageSelected(CPage* pNew, CPage*) override { pTold = pNew; }
    void AttributeChangedUsingGUI() override { m_react(); }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        manager.RegisterAddPageNotification(&selector, true);
        manager.RegisterAttributeChangedNotification(this, true);
        selector.RegisterSelectPageNotification(this, true);
        selector.RegisterSelectPageNotification(&manager, true);
        return TRUE;
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        if constexpr (std::is_base_of_v<CWnd, Selector>)
            DDX_Control(pDX, idSelector, selector);
        else
            selector.DoDataExchange(pDX);
    }

private:
    static Selector MakeSelector()
    {
        if constexpr (std::is_base_of_v<CWnd, Selector>)
            return Selector();
        else
            return Selector(idSelector, idToggle);
    }
    std::function<void()> m_react;
};

template <class Selector>
class PagesSequence : public owtest::Sequence
{
    using Host = SoakHost<Selector>;

    void Step() override
    {
        m_bReacted = false;
        (this->*OneOf(kOperations))();
        owtest::Pump();
    }

    using Operation = void (PagesSequence::*)();
    /// Each as often as it stands here. The first ones are not for calls of the library's.
    static constexpr int kFirstOfHandlers = 4;
    static constexpr Operation kOperations[] = {
        &PagesSequence::Reopen,       &PagesSequence::DestroyDialog, &PagesSequence::AddDialog,
        &PagesSequence::AddDialog,    &PagesSequence::AddPage,       &PagesSequence::AddPage,
        &PagesSequence::Select,       &PagesSequence::Select,        &PagesSequence::Select,
        &PagesSequence::MoveFocus,    &PagesSequence::TakeOver,      &PagesSequence::Switch,
        &PagesSequence::Switch,       &PagesSequence::TypeInPage,    &PagesSequence::TypeInPage,
        &PagesSequence::SelectByUser, &PagesSequence::SelectByUser,  &PagesSequence::SelectByUser,
        &PagesSequence::SelectByUser, &PagesSequence::SelectByUser,  &PagesSequence::SelectByUser,
        &PagesSequence::SelectByUser};
    /// What a dialog or client does in a call of the library's: one thing, in one call of a step.
    void React()
    {
        if (m_bReacted || Pick(3))
            return;
        m_bReacted = true;
        (this->*OneOf(std::span(kOperations).subspan(kFirstOfHandlers)))();
    }

    /// Null if there are none.
    template <class Object>
    Object* Some(const std::vector<Object*>& objects)
    {
        return objects.empty() ? nullptr : OneOf(objects);
    }
    SoakPage* SomePage() { return Some(m_pHost->pages); }
    SoakPageDialog* SomeDialog() { return Some(m_pHost->dialogs); }

    std::unique_ptr<Host> NewHost()
    {
        return std::make_unique<Host>([this] { React(); });
    }
    void Reopen()
    {
        if (Pick(4))
            return;
        Say("reopen");
        m_pHost.reset();
        m_pHost = NewHost();
        owtest::Activate(*m_pHost);
    }
    void DestroyDialog()
    {
        SoakPageDialog* const pDialog = SomeDialog();
        if (!pDialog || Pick(3))
            return;
        Say("destroy the window of a page dialog");
        pDialog->DestroyWindow();
    }
    void AddDialog()
    {
        static constexpr UINT kTemplates[] = {IDD_FIELDS, IDD_PLAIN}; // each for one: pages know theirs by it
        const size_t nDialog = m_pHost->dialogs.size();
        if (nDialog == std::size(kTemplates))
            return;
        Say("add a dialog");
        auto* const pDialog = new SoakPageDialog(kTemplates[nDialog], m_pHost.get(), [this] { React(); });
        m_pHost->dialogs.push_back(pDialog);
        m_pHost->manager.AddDialog(pDialog);
    }
    void AddPage()
    {
        if (m_pHost->pages.size() > 25)
            return;
        SoakPage* const pParent = Pick(2) ? SomePage() : nullptr;
        SoakPageDialog* const pDialog = Pick(6) ? SomeDialog() : nullptr;
        const auto nDialog =
            std::find(m_pHost->dialogs.begin(), m_pHost->dialogs.end(), pDialog) - m_pHost->dialogs.begin();
        Say("add page", m_nPages, "below", pParent ? pParent->GetPageID() : -1, "with dialog", nDialog);
        auto* const pPage = new SoakPage(m_nPages++, pDialog);
        m_pHost->manager.AddPage(pPage, pParent);
        m_pHost->pages.push_back(pPage);
    }
    void Select()
    {
        SoakPage* const pPage = Pick(8) ? SomePage() : nullptr;
        Say("select", pPage ? pPage->GetPageID() : -1);
        m_pHost->selector.SetCurrentPage(pPage);
    }
    void SelectByUser()
    {
        static constexpr WORD kKeys[] = {VK_DOWN, VK_UP,     VK_HOME, VK_END, VK_RIGHT,
                                         VK_LEFT, VK_RETURN, 0,       0}; // 0: a click on the toggle
        const WORD nKey = OneOf(kKeys);
        Say("key", nKey, "in the selector");
        CWnd* const pToggle = m_pHost->GetDlgItem(idToggle);
        if (nKey)
            m_pHost->GetDlgItem(idSelector)->SendMessage(WM_KEYDOWN, nKey, 1);
        else if (pToggle->IsWindowVisible() && pToggle->IsWindowEnabled())
            pToggle->SendMessage(BM_CLICK);
    }
    void MoveFocus()
    {
        const WORD nId = Pick(2) ? idSelector : idElsewhere;
        Say("focus", nId);
        m_pHost->GetDlgItem(nId)->SetFocus();
    }
    void TakeOver()
    {
        if (SoakPage* const pPage = SomePage())
        {
            Say("take over");
            pPage->SendFocusedControlKillFocusMessage();
        }
    }
    void Switch()
    {
        CWnd* const pWnd = m_pHost->GetDlgItem(idSelector + Pick(3));
        Say("enable or show", pWnd->GetDlgCtrlID());
        if (pWnd->GetDlgCtrlID() != idToggle && Pick(2))
            pWnd->ShowWindow(Pick(2) ? SW_SHOW : SW_HIDE);
        else
            pWnd->EnableWindow(Pick(2));
    }
    void TypeInPage()
    {
        SoakPageDialog* const pDialog = SomeDialog();
        CWnd* const pCount = pDialog && pDialog->m_hWnd ? pDialog->GetDlgItem(IDC_COUNT) : nullptr;
        if (!pCount || !pCount->IsWindowVisible())
            return;
        Say("type in a page");
        pCount->SetFocus();
        pCount->SendMessage(WM_CHAR, OneOf(std::wstring_view(L"0123456789-x")));
    }

    void Check() override
    {
        const auto* const pTold = static_cast<const SoakPage*>(m_pHost->pTold);
        for (SoakPageDialog* pDialog : m_pHost->dialogs)
        {
            if (!pDialog->m_hWnd)
                continue;
            const DWORD dwState = pDialog->GetStyle() & (WS_VISIBLE | WS_DISABLED);
            if (pTold && pTold->Dialog() == pDialog)
                Expect(dwState == WS_VISIBLE, "the page's dialog is hidden or disabled");
            else
                Expect(dwState == WS_DISABLED, "another page's dialog shows or is enabled");
        }
        for (const SoakPage* pPage : m_pHost->pages)
            Expect(m_pHost->manager.GetPage(pPage->GetPageID()) == pPage, "a page is not found");
        if constexpr (std::is_base_of_v<CTreeCtrl, Selector>)
            Expect(m_pHost->selector.GetCount() == m_pHost->pages.size(), "items of the tree");
    }

    bool m_bReacted = false;
    int m_nPages = 0;
    std::unique_ptr<Host> m_pHost = NewHost();
};

template <class Selector>
owtest::SequenceResult Run(const owtest::Steps& steps)
{
    return PagesSequence<Selector>().Run(steps);
}

const owtest::SoakSubject s_subjects[] = {
    {"pages-tree", 500, &Run<CPageTreeCtrl>},
    {"pages-combo-button", 500, &Run<CPageComboButtonSTCtrlGroup>},
    {"pages-combo-check", 500, &Run<CPageComboCheckCtrlGroup>},
};
} // namespace
