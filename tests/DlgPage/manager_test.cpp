// CPageManager: what it does to pages and dialogs, in which order, whom it tells, and what it takes for misuse.

#include "PagesHost.h"

#include "FatalReport.h"

namespace
{
/// Writes down each page: "added Gamma below Alpha".
class RecordingAddClient : public AAddPageNotificationClient
{
public:
    RecordingAddClient(CallLog& log, std::string strName) : m_log(log), m_strName(std::move(strName)) {}
    void PageAdded(CPage* pPage, CPage* pParent) override
    {
        m_log.Add(m_strName + " " + Narrow(pPage->GetTreeItemName()) + " below " +
                  (pParent ? Narrow(pParent->GetTreeItemName()) : "-"));
    }

private:
    CallLog& m_log;
    std::string m_strName;
};

class RecordingChangeClient : public AAttributeChangeNotificationClient
{
public:
    RecordingChangeClient(CallLog& log, std::string strName) : m_log(log), m_strName(std::move(strName)) {}
    void AttributeChangedUsingGUI() override { m_log.Add("changed " + m_strName); }

private:
    CallLog& m_log;
    std::string m_strName;
};

class Manager : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_host.Open());
        m_host.log.Take();
    }

    TreeHost m_host;
    CPageManager& m_manager = m_host.manager;
    CallLog& m_log = m_host.log;
};
} // namespace

// ---- Adding -----------------------------------------------------------------------------------------------

TEST_F(Manager, SetsADialogUpPlacesItAndLeavesItDisabledAndHidden)
{
    // Reports a change while its window is being made: the manager hears of it already.
    struct EarlyDialog : RecordingDialog
    {
        using RecordingDialog::RecordingDialog;
        BOOL OnInitDialog() override
        {
            MyAttributeChanged();
            return RecordingDialog::OnInitDialog();
        }
    };
    RecordingChangeClient client(m_log, "early");
    m_manager.RegisterAttributeChangedNotification(&client, true);
    auto* pDialog = new EarlyDialog(IDD_PLAIN, "plain", &m_host, m_log);
    pDialog->MyAttributeChanged();
    EXPECT_EQ(m_log.Take(), Calls{}) << "nobody to tell yet";

    m_manager.AddDialog(pDialog);
    EXPECT_EQ(m_log.Take(),
              (Calls{"changed early", "show plain", "init plain", "frame", "disable plain", "hide plain"}));
    CRect rect;
    pDialog->GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(rect, m_host.frame);
    EXPECT_EQ(pDialog->GetParent(), &m_host);
}

TEST_F(Manager, ADialogWithoutATemplateRaisesAndIsOwnedAllTheSame)
{
    const auto addMissing = [&]
    {
        CPageManager manager(&m_host);
        manager.AddDialog(new RecordingDialog(IDD_MISSING, "missing", &m_host, m_log));
    };
    EXPECT_THROW(addMissing(), CResourceException*);
    EXPECT_EQ(m_log.Take(), Calls{"delete missing"});
}

TEST_F(Manager, DeletesPagesBeforeDialogsInTheOrderOfAdding)
{
    {
        PagesHost host(IDD_HOST);
        ASSERT_TRUE(host.Open());
        CPageManager manager(&host);
        for (const char* name : {"one", "two"})
            manager.AddDialog(new RecordingDialog(IDD_PLAIN, name, &host, m_log));
        for (const wchar_t* name : {L"A", L"B"})
            manager.AddPage(new RecordingPage(name, nullptr, 1, m_log), nullptr);
        host.DestroyWindow();
        m_log.Take();
    }
    EXPECT_EQ(m_log.Take(), (Calls{"delete A", "delete B", "delete one", "delete two"}));
}

// ---- Selection --------------------------------------------------------------------------------------------

TEST_F(Manager, ShowsTheNewPageBeforeItHidesTheOldOne)
{
    m_manager.PageSelected(m_host.alpha, nullptr);
    EXPECT_EQ(m_log.Take(), (Calls{"enable fields", "show fields", "bind Alpha", "focus fields"}));
    m_manager.PageSelected(m_host.gamma, m_host.alpha);
    EXPECT_EQ(m_log.Take(), (Calls{"enable plain", "show plain", "bind Gamma", "focus plain",
                                   "disable fields", "hide fields", "unbind Alpha"}));
    m_manager.PageSelected(nullptr, m_host.gamma);
    EXPECT_EQ(m_log.Take(), (Calls{"disable plain", "hide plain", "unbind Gamma"}));
    m_manager.PageSelected(nullptr, nullptr);
    EXPECT_EQ(m_log.Take(), Calls{});
}

TEST_F(Manager, PagesOfOneTemplateAreReboundAndStayOnScreen)
{
    m_manager.PageSelected(m_host.alpha, nullptr);
    m_log.Take();
    m_manager.PageSelected(m_host.beta, m_host.alpha);
    EXPECT_EQ(m_log.Take(), (Calls{"bind Beta", "focus fields"}));
    m_manager.PageSelected(m_host.beta, m_host.beta);
    EXPECT_EQ(m_log.Take(), (Calls{"bind Beta", "focus fields"}));
    EXPECT_TRUE(m_host.fields->IsWindowVisible());
}

TEST_F(Manager, AHostThatClosesWhileAPageIsShownMayStillSelect)
{
    m_host.tree.SetCurrentPage(m_host.alpha);
    owtest::Click(m_host.fields->count);
    owtest::Type(L"5");
    m_host.DestroyWindow();
    EXPECT_EQ(m_host.fields->m_hWnd, nullptr);
    m_log.Take();
    m_manager.PageSelected(m_host.gamma, m_host.alpha);
    m_manager.PageSelected(m_host.alpha, m_host.beta);
    m_host.tree.SetCurrentPage(nullptr);
    EXPECT_EQ(m_log.Take(), Calls{});
}

// ---- Clients ----------------------------------------------------------------------------------------------

// The first client of a list stays; of those who hear of changed values all stay, and an unknown one is an error.
TEST_F(Manager, ClientsLeaveByUnequalRules)
{
    CPageManager manager(&m_host);
    RecordingAddClient first(m_log, "first"), second(m_log, "second"), unknown(m_log, "unknown");
    for (auto* pClient : {&first, &second, &second})
        manager.RegisterAddPageNotification(pClient, true);
    auto* pParent = new RecordingPage(L"A", nullptr, 1, m_log);
    manager.AddPage(pParent, nullptr);
    EXPECT_EQ(m_log.Take(), (Calls{"first A below -", "second A below -", "second A below -"}));
    for (auto* pClient : {&first, &second, &unknown})
        manager.RegisterAddPageNotification(pClient, false);
    manager.AddPage(new RecordingPage(L"B", nullptr, 2, m_log), pParent);
    EXPECT_EQ(m_log.Take(), (Calls{"first B below A", "second B below A"}))
        << "registered twice, removed once";

    RecordingChangeClient one(m_log, "one"), two(m_log, "two"), stranger(m_log, "stranger");
    for (auto* pClient : {&one, &two, &one})
        manager.RegisterAttributeChangedNotification(pClient, true);
    for (auto* pClient : {&one, &two})
        manager.RegisterAttributeChangedNotification(pClient, false);
    manager.AttributeChangedUsingGUI();
    EXPECT_EQ(m_log.Take(), (Calls{"changed one", "changed two", "changed one"}));
    EXPECT_THROW(manager.RegisterAttributeChangedNotification(&stranger, false), CInvalidArgException*);
}

// ---- Misuse ends the process ------------------------------------------------------------------------------

OW_CHILD_SCENARIO(null_page)
{
    CPageManager(nullptr).AddPage(nullptr, nullptr);
}

OW_CHILD_SCENARIO(parent_that_was_not_added)
{
    CallLog log;
    RecordingPage parent(L"parent", nullptr, 1, log), child(L"child", nullptr, 2, log);
    CPageManager(nullptr).AddPage(&child, &parent);
}

OW_CHILD_SCENARIO(null_dialog)
{
    CPageManager(nullptr).AddDialog(nullptr);
}

OW_CHILD_SCENARIO(page_dialog_by_class_name)
{
    RUNTIME_CLASS(CPageDialog)->CreateObject();
}

TEST(PageMisuse, EndsTheProcessWithAReportOfItsPlace)
{
    using owtest::RunChild;
    owtest::ExpectFailedAssert(RunChild("null_page"), L"ASSERT(pPage)\n[.\\DlgPage\\PageManager : 63]\n");
    owtest::ExpectFailedAssert(RunChild("parent_that_was_not_added"),
                               L"ASSERT(bNasao)\n[.\\DlgPage\\PageManager : 71]\n");
    owtest::ExpectFailedAssert(RunChild("null_dialog"), L"ASSERT(pDlg)\n[.\\DlgPage\\PageManager : 82]\n");
    owtest::ExpectInternalError(RunChild("page_dialog_by_class_name"),
                                L"[.\\DlgPage\\PageDialog : 30]\nCPageDialog def c-tor !");
}
