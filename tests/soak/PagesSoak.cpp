// Pages behind each kind of selector: added at any time, selected by code and by input, with dialogs that do such
// things themselves while they are bound or told, and windows that go.

#include "../DlgPage/PagesHost.h"
#include "Sequence.h"

#include <span>

namespace
{
template <class Selector>
class PagesSequence : public owtest::Sequence
{
    using Host = PagesHost<Selector>;

public:
    PagesSequence()
    {
        listener = [this](const std::string& call)
        {
            for (const char* start : {"bind ", "unbind ", "left ", "selects: changed"})
                if (call.starts_with(start))
                    React();
        };
        NewHost();
    }
    ~PagesSequence() override { listener = nullptr; }

private:
    void Step() override
    {
        m_bReacted = false;
        calls.clear();
        (this->*OneOf(Operations()))();
        owtest::Pump();
    }

    using Self = PagesSequence;
    using Operation = void (Self::*)();
    /// Each as often as it stands here. The first ones are not for calls of the library's.
    static constexpr int kFirstOfHandlers = 4;
    static std::span<const Operation> Operations()
    {
        static constexpr Operation kOperations[] = {
            &Self::Reopen,       &Self::DestroyDialog, &Self::AddDialog,    &Self::AddDialog,
            &Self::AddPage,      &Self::AddPage,       &Self::Select,       &Self::Select,
            &Self::Select,       &Self::MoveFocus,     &Self::TakeOver,     &Self::Switch,
            &Self::Switch,       &Self::TypeInPage,    &Self::TypeInPage,   &Self::SelectByUser,
            &Self::SelectByUser, &Self::SelectByUser,  &Self::SelectByUser, &Self::SelectByUser,
            &Self::SelectByUser, &Self::SelectByUser};
        return kOperations;
    }

    /// What a dialog or client does in a call of the library's: one thing, in one call of a step.
    void React()
    {
        if (!m_pHost || m_bReacted || Pick(3))
            return;
        m_bReacted = true;
        (this->*OneOf(Operations().subspan(kFirstOfHandlers)))();
    }

    /// Null if there are none.
    template <class Object>
    Object* Some(const std::vector<Object*>& objects)
    {
        return objects.empty() ? nullptr : OneOf(objects);
    }
    RecordingPage* SomePage() { return Some(m_pHost->pages); }
    RecordingDialog* SomeDialog() { return Some(m_pHost->dialogs); }

    void NewHost()
    {
        m_pHost = std::make_unique<Host>(false);
        m_pHost->Open();
        m_pHost->manager.RegisterAttributeChangedNotification(&m_pHost->selects, true);
    }
    void Reopen()
    {
        if (Pick(4))
            return;
        Say("reopen");
        m_pHost.reset();
        NewHost();
    }
    void DestroyDialog()
    {
        RecordingDialog* const pDialog = SomeDialog();
        if (!pDialog || Pick(3))
            return;
        Say("destroy the window of a page dialog");
        pDialog->DestroyWindow();
    }
    void AddDialog()
    {
        if (m_pHost->dialogs.size() == 2)
            return; // each template for one: pages know theirs by it
        Say("add a dialog");
        m_pHost->AddDialog(m_pHost->dialogs.empty() ? IDD_FIELDS : IDD_PLAIN, "dialog");
    }
    void AddPage()
    {
        if (m_pHost->pages.size() > 25)
            return;
        RecordingPage* const pParent = Pick(2) ? SomePage() : nullptr;
        RecordingDialog* const pDialog = Pick(6) ? SomeDialog() : nullptr;
        const auto nDialog =
            std::find(m_pHost->dialogs.begin(), m_pHost->dialogs.end(), pDialog) - m_pHost->dialogs.begin();
        Say("add page", m_nPages, "below", pParent ? pParent->GetPageID() : -1, "with dialog", nDialog);
        m_pHost->AddPage((L"Page " + std::to_wstring(m_nPages)).c_str(), pDialog, m_nPages, pParent);
        ++m_nPages;
    }
    void Select()
    {
        RecordingPage* const pPage = Pick(8) ? SomePage() : nullptr;
        Say("select", pPage ? pPage->GetPageID() : -1);
        m_pHost->selector.SetCurrentPage(pPage);
    }
    void SelectByUser()
    {
        static constexpr WORD kKeys[] = {VK_DOWN, VK_UP,     VK_HOME, VK_END, VK_RIGHT,
                                         VK_LEFT, VK_RETURN, 0,       0}; // 0: a click on the toggle
        const WORD nKey = OneOf(kKeys);
        Say("key", nKey, "in the selector");
        CWnd* const pToggle = m_pHost->GetDlgItem(IDC_TOGGLE);
        if (nKey)
            m_pHost->GetDlgItem(IDC_SELECTOR)->SendMessage(WM_KEYDOWN, nKey, 1);
        else if (pToggle->IsWindowVisible() && pToggle->IsWindowEnabled())
            pToggle->SendMessage(BM_CLICK);
    }
    void MoveFocus()
    {
        const WORD nId = Pick(2) ? IDC_SELECTOR : IDC_NAME;
        Say("focus", nId);
        m_pHost->GetDlgItem(nId)->SetFocus();
    }
    void TakeOver()
    {
        Say("take over");
        if (RecordingPage* const pPage = SomePage())
            pPage->SendFocusedControlKillFocusMessage();
    }
    void Switch()
    {
        CWnd* const pWnd = m_pHost->GetDlgItem(IDC_SELECTOR + Pick(3));
        Say("enable or show", pWnd->GetDlgCtrlID());
        if (pWnd->GetDlgCtrlID() != IDC_TOGGLE && Pick(2))
            pWnd->ShowWindow(Pick(2) ? SW_SHOW : SW_HIDE);
        else
            pWnd->EnableWindow(Pick(2));
    }
    void TypeInPage()
    {
        RecordingDialog* const pDialog = SomeDialog();
        CWnd* const pCount = pDialog && pDialog->m_hWnd ? pDialog->GetDlgItem(IDC_COUNT) : nullptr;
        if (!pCount || !pCount->IsWindowVisible())
            return;
        Say("type in a page");
        pCount->SetFocus();
        pCount->SendMessage(WM_CHAR, OneOf(std::wstring_view(L"0123456789-x")));
    }

    void Check() override
    {
        const auto* const pTold = static_cast<const RecordingPage*>(m_pHost->selects.pTold);
        for (RecordingDialog* pDialog : m_pHost->dialogs)
        {
            if (!pDialog->m_hWnd)
                continue;
            const DWORD dwState = pDialog->GetStyle() & (WS_VISIBLE | WS_DISABLED);
            if (pTold && pTold->Dialog() == pDialog)
                Expect(dwState == WS_VISIBLE, "the page's dialog is hidden or disabled");
            else
                Expect(dwState == WS_DISABLED, "another page's dialog shows or is enabled");
        }
        for (const RecordingPage* pPage : m_pHost->pages)
            Expect(m_pHost->manager.GetPage(pPage->GetPageID()) == pPage, "a page is not found");
        if constexpr (std::is_base_of_v<CTreeCtrl, Selector>)
            Expect(m_pHost->selector.GetCount() == m_pHost->pages.size(), "items of the tree");
    }

    bool m_bReacted = false;
    int m_nPages = 0;
    std::unique_ptr<Host> m_pHost;
};

template <class Selector>
owtest::SequenceResult Run(const owtest::Steps& steps)
{
    return PagesSequence<Selector>().Run(steps);
}

const owtest::SoakSubject s_subjects[] = {
    {"pages-tree", 500, &Run<OpenPageTree>},
    {"pages-combo-button", 500, &Run<CPageComboButtonSTCtrlGroup>},
    {"pages-combo-check", 500, &Run<CPageComboCheckCtrlGroup>},
};
} // namespace
