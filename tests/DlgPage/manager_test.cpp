// CPageManager: what it does to pages and dialogs, in which order, whom it tells, and what it takes for misuse.

#include "PagesHost.h"

TEST_F(Pages, TheManagerSetsADialogUpPlacesItAndLeavesItDisabledAndHidden)
{
    RecordingClient client("early");
    manager.RegisterAttributeChangedNotification(&client, true);
    auto* pDialog = new RecordingDialog(IDD_PLAIN, "new", this);
    pDialog->MyAttributeChanged();
    EXPECT_EQ(TakeCalls(), "") << "nobody to tell yet";
    manager.AddDialog(pDialog); // reports a change while its window is being made
    EXPECT_EQ(TakeCalls(), "early: changed, show new, init new, frame, disable new, hide new");
    CRect rect;
    pDialog->GetWindowRect(rect);
    ScreenToClient(rect);
    EXPECT_TRUE(rect == frame && pDialog->GetParent() == this);
}

TEST_F(Pages, TheManagerDeletesPagesBeforeDialogsInTheOrderOfAdding)
{
    {
        PagesHost<OpenPageTree> host;
        ASSERT_TRUE(host.Open());
        EXPECT_THROW(host.AddDialog(199, "no template"), CResourceException*);
        EXPECT_EQ(host.manager.GetPage(CPage::EPageID{99}), nullptr);
        host.AddPage(L"Twin", nullptr, 1);
        EXPECT_EQ(host.manager.GetPage(CPage::EPageID{1}), host.Page("Alpha")) << "the first of an identity";
    }
    EXPECT_EQ(TakeCalls("delete"),
              "delete Alpha, delete Gamma, delete Beta, delete Delta, delete Earlier, "
              "delete Later, delete Twin, delete fields, delete plain, delete no template");
}

// The new page shows before the old one is hidden; pages that share a dialog are rebound, and stay on screen.
TEST_F(Pages, TheManagerShowsWhatIsSelected)
{
    RecordingPage foreign(L"Foreign", plain, 99);
    const auto page = [&](const std::string& name) -> CPage*
    { return name == "Foreign" ? &foreign : Page(name); };
    const std::string rebind = "bind Beta, focus fields",
                      showFields = "enable fields, show fields, bind Alpha, focus fields",
                      showPlain = "enable plain, show plain, bind ",
                      leaveFields = ", focus plain, disable fields, hide fields, unbind ",
                      leavePlain = "disable plain, hide plain, unbind ";
    const std::tuple<const char*, const char*, std::string> selections[] = {
        {"Alpha", "", showFields},
        {"Gamma", "Alpha", showPlain + "Gamma" + leaveFields + "Alpha"},
        {"", "Gamma", leavePlain + "Gamma"},
        {"Alpha", "", showFields},
        {"Beta", "Alpha", rebind},
        {"Beta", "Beta", rebind},
        // From here on selectors have lost sight of what shows.
        {"Gamma", "", showPlain + "Gamma" + leaveFields + "Beta"},
        {"Alpha", "Beta", showFields + ", " + leavePlain + "Gamma"},
        {"Gamma", "Later", showPlain + "Gamma" + leaveFields + "Alpha"},
        {"Alpha", "Later", showFields + ", " + leavePlain + "Later"},
        {"Foreign", "Alpha", showPlain + "Foreign" + leaveFields + "Alpha"},
        {"", "", ""}, // a page of another's may be gone by now
        {"", "Foreign", leavePlain + "Foreign"},
    };
    for (const auto& [newName, oldName, calls] : selections)
    {
        manager.PageSelected(page(newName), page(oldName));
        EXPECT_EQ(TakeCalls(), calls) << newName << " after " << oldName;
    }
    manager.PageSelected(Page("Beta"), nullptr);
    owtest::Click(fields->count);
    owtest::Type(L"5");
    DestroyWindow(); // while a page is shown
    TakeCalls();
    manager.PageSelected(Page("Gamma"), Page("Alpha"));
    manager.PageSelected(Page("Alpha"), Page("Beta"));
    selector.SetCurrentPage(nullptr);
    EXPECT_EQ(TakeCalls(), "");
}

TEST_F(Pages, WhatADialogSelectsWhileItIsToldStaysShown)
{
    const char* const redirections[][4] = {
        {"bind Gamma", "Alpha", "Gamma", "Beta"},   // back to the dialog that is about to go
        {"bind Beta", "Alpha", "Beta", "Gamma"},    // from a shared dialog to another one
        {"left fields", "Alpha", "Beta", "Gamma"},  // before the new page shows
        {"left fields", "Alpha", "Beta", "Delta"},  // on the same dialog
        {"unbind Alpha", "Alpha", "Gamma", "Beta"}, // when all is done
    };
    for (const auto& [trigger, from, over, to] : redirections)
    {
        manager.PageSelected(Page(from), nullptr);
        fields->count.SetFocus();
        once[trigger] = [this, to = to, over = over] { manager.PageSelected(Page(to), Page(over)); };
        manager.PageSelected(Page(over), Page(from));
        EXPECT_EQ(Shown(), to) << trigger;
    }
}

// The first client of a list stays; of those who hear of changed values all stay, and an unknown one is an error.
TEST_F(Pages, ClientsOfTheManagerLeaveByUnequalRules)
{
    CPageManager manager(this);
    RecordingClient first("first"), second("second"), unknown("unknown");
    for (RecordingClient* pClient : {&first, &second, &second})
        manager.RegisterAddPageNotification(pClient, true);
    once["first: A below -"] = [&] { EXPECT_TRUE(manager.GetPage(CPage::EPageID{1})) << "already"; };
    auto* pParent = new RecordingPage(L"A", nullptr, 1);
    manager.AddPage(pParent, nullptr);
    EXPECT_EQ(TakeCalls(), "first: A below -, second: A below -, second: A below -");
    for (RecordingClient* pClient : {&first, &second, &unknown})
        manager.RegisterAddPageNotification(pClient, false);
    manager.AddPage(new RecordingPage(L"B", nullptr, 2), pParent);
    EXPECT_EQ(TakeCalls(), "first: B below A, second: B below A") << "twice registered, removed once";

    for (const bool bRegister : {true, false})
        for (RecordingClient* pClient : {&first, &second})
            manager.RegisterAttributeChangedNotification(pClient, bRegister);
    manager.AttributeChangedUsingGUI();
    EXPECT_EQ(TakeCalls(), "first: changed, second: changed");
    EXPECT_THROW(manager.RegisterAttributeChangedNotification(&unknown, false), CInvalidArgException*);
}

static const owtest::ScenarioRegistration s_misuses[] = {
    {"null_page", [] { CPageManager(nullptr).AddPage(nullptr, nullptr); }},
    {"null_dialog", [] { CPageManager(nullptr).AddDialog(nullptr); }},
    {"page_dialog_by_class_name", [] { RUNTIME_CLASS(CPageDialog)->CreateObject(); }},
    {"parent_that_was_not_added", []
     {
         CPageManager manager(nullptr);
         manager.AddPage(new RecordingPage(L"twin", nullptr, 1), nullptr);
         RecordingPage parent(L"parent", nullptr, 1), child(L"child", nullptr, 2);
         manager.AddPage(&child, &parent);
     }}};

TEST(PageMisuse, EndsTheProcessWithAReportOfItsPlace)
{
    const std::pair<const char*, const wchar_t*> asserts[] = {
        {"null_page", L"ASSERT(pPage)\n[.\\DlgPage\\PageManager : 63]\n"},
        {"parent_that_was_not_added", L"ASSERT(bNasao)\n[.\\DlgPage\\PageManager : 71]\n"},
        {"null_dialog", L"ASSERT(pDlg)\n[.\\DlgPage\\PageManager : 82]\n"}};
    for (const auto& [scenario, report] : asserts)
        owtest::ExpectFailedAssert(owtest::RunChild(scenario), report);
    owtest::ExpectInternalError(owtest::RunChild("page_dialog_by_class_name"),
                                L"[.\\DlgPage\\PageDialog : 30]\nCPageDialog def c-tor !");
}
