// CPageManager: what it does to pages and dialogs, in which order, whom it tells, and what it takes for misuse.

#include "PagesHost.h"

#include "FatalReport.h"

TEST_F(Pages, TheManagerSetsADialogUpPlacesItAndLeavesItDisabledAndHidden)
{
    RecordingClient client("early");
    m_manager.RegisterAttributeChangedNotification(&client, true);
    auto* pDialog = new RecordingDialog(IDD_PLAIN, "new", &m_host);
    pDialog->MyAttributeChanged();
    EXPECT_EQ(TakeCalls(), "") << "nobody to tell yet";
    m_manager.AddDialog(pDialog); // reports a change while its window is being made
    EXPECT_EQ(TakeCalls(), "early: changed, show new, init new, frame, disable new, hide new");
    CRect rect;
    pDialog->GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(rect, m_host.frame);
    EXPECT_EQ(pDialog->GetParent(), &m_host);
}

TEST_F(Pages, TheManagerDeletesPagesBeforeDialogsInTheOrderOfAdding)
{
    {
        PagesHost<OpenPageTree> host(false);
        ASSERT_TRUE(host.Open());
        CPageManager manager(&host);
        for (const char* name : {"one", "two"})
            manager.AddDialog(new RecordingDialog(IDD_PLAIN, name, &host));
        EXPECT_THROW(manager.AddDialog(new RecordingDialog(IDD_MISSING, "no template", &host)),
                     CResourceException*);
        EXPECT_EQ(manager.GetPage(CPage::EPageID{1}), nullptr);
        for (const wchar_t* name : {L"A", L"B"})
            manager.AddPage(new RecordingPage(name, nullptr, 1), nullptr);
        EXPECT_EQ(NameOf(manager.GetPage(CPage::EPageID{1})), "A") << "the first of an identity";
        host.DestroyWindow();
        TakeCalls();
    }
    EXPECT_EQ(TakeCalls(), "delete A, delete B, delete one, delete two, delete no template");
}

// The new page shows before the old one is hidden; pages that share a dialog are rebound, and stay on screen.
TEST_F(Pages, TheManagerShowsWhatIsSelected)
{
    RecordingPage *pAlpha = Page(idAlpha), *pBeta = Page(idBeta), *pGamma = Page(idGamma);
    RecordingPage foreign(L"Foreign", m_host.plain, idStranger);
    const std::string rebindBeta = "bind Beta, focus fields";
    const auto show = [](const std::string& dialog, const std::string& page)
    { return "enable " + dialog + ", show " + dialog + ", bind " + page + ", focus " + dialog; };
    const auto leave = [](const std::string& dialog, const std::string& page)
    { return "disable " + dialog + ", hide " + dialog + ", unbind " + page; };
    const std::tuple<CPage*, CPage*, std::string> selections[] = {
        {pAlpha, nullptr, show("fields", "Alpha")},
        {pGamma, pAlpha, show("plain", "Gamma") + ", " + leave("fields", "Alpha")},
        {nullptr, pGamma, leave("plain", "Gamma")},
        {nullptr, nullptr, ""},
        {pAlpha, nullptr, show("fields", "Alpha")},
        {pBeta, pAlpha, rebindBeta},
        {pBeta, pBeta, rebindBeta},
        // From here on selectors have lost sight of what shows.
        {pGamma, nullptr, show("plain", "Gamma") + ", " + leave("fields", "Beta")},
        {pAlpha, pBeta, show("fields", "Alpha") + ", " + leave("plain", "Gamma")},
        {pGamma, Page(idLater), show("plain", "Gamma") + ", " + leave("fields", "Alpha")},
        {pAlpha, Page(idLater), show("fields", "Alpha") + ", " + leave("plain", "Later")},
        {&foreign, pAlpha, show("plain", "Foreign") + ", " + leave("fields", "Alpha")},
        {nullptr, nullptr, ""}, // a page of another's may be gone by now
        {nullptr, &foreign, leave("plain", "Foreign")},
    };
    for (const auto& [pNew, pOld, calls] : selections)
    {
        m_manager.PageSelected(pNew, pOld);
        EXPECT_EQ(TakeCalls(), calls) << NameOf(pNew) << " after " << NameOf(pOld);
    }
    m_manager.PageSelected(pBeta, nullptr);
    owtest::Click(m_host.fields->count);
    owtest::Type(L"5");
    m_host.DestroyWindow(); // while a page is shown
    TakeCalls();
    m_manager.PageSelected(pGamma, pAlpha);
    m_manager.PageSelected(pAlpha, pBeta);
    m_selector.SetCurrentPage(nullptr);
    EXPECT_EQ(TakeCalls(), "");
}

TEST_F(Pages, WhatADialogSelectsWhileItIsToldStaysShown)
{
    const std::tuple<const char*, Identity, Identity, Identity> redirections[] = {
        {"bind Gamma", idAlpha, idGamma, idBeta},   // back to the dialog that is about to go
        {"bind Beta", idAlpha, idBeta, idGamma},    // from a shared dialog to another one
        {"left fields", idAlpha, idBeta, idGamma},  // before the new page shows
        {"left fields", idAlpha, idBeta, idDelta},  // on the same dialog
        {"unbind Alpha", idAlpha, idGamma, idBeta}, // when all is done
    };
    for (const auto& [trigger, from, over, to] : redirections)
    {
        m_manager.PageSelected(Page(from), nullptr);
        m_host.fields->count.SetFocus();
        Once(trigger, [this, to = to, over = over] { m_manager.PageSelected(Page(to), Page(over)); });
        m_manager.PageSelected(Page(over), Page(from));
        EXPECT_EQ(m_host.Shown(), NameOf(Page(to))) << trigger;
    }
}

// The first client of a list stays; of those who hear of changed values all stay, and an unknown one is an error.
TEST_F(Pages, ClientsOfTheManagerLeaveByUnequalRules)
{
    CPageManager manager(&m_host);
    RecordingClient first("first"), second("second"), unknown("unknown");
    for (RecordingClient* pClient : {&first, &second, &second})
        manager.RegisterAddPageNotification(pClient, true);
    Once("first: A below -", [&] { EXPECT_TRUE(manager.GetPage(CPage::EPageID{1})) << "already"; });
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

OW_CHILD_SCENARIO(null_page)
{
    CPageManager(nullptr).AddPage(nullptr, nullptr);
}

OW_CHILD_SCENARIO(parent_that_was_not_added)
{
    CPageManager manager(nullptr);
    manager.AddPage(new RecordingPage(L"twin", nullptr, 1), nullptr);
    RecordingPage parent(L"parent", nullptr, 1), child(L"child", nullptr, 2);
    manager.AddPage(&child, &parent);
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
    const std::pair<const char*, const wchar_t*> asserts[] = {
        {"null_page", L"ASSERT(pPage)\n[.\\DlgPage\\PageManager : 63]\n"},
        {"parent_that_was_not_added", L"ASSERT(bNasao)\n[.\\DlgPage\\PageManager : 71]\n"},
        {"null_dialog", L"ASSERT(pDlg)\n[.\\DlgPage\\PageManager : 82]\n"}};
    for (const auto& [scenario, report] : asserts)
        owtest::ExpectFailedAssert(owtest::RunChild(scenario), report);
    owtest::ExpectInternalError(owtest::RunChild("page_dialog_by_class_name"),
                                L"[.\\DlgPage\\PageDialog : 30]\nCPageDialog def c-tor !");
}
