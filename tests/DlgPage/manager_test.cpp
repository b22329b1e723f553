// CPageManager: what it does to pages and dialogs, in which order, whom it tells, and what it takes for misuse.

#include "PagesHost.h"

#include "FatalReport.h"

// ---- Adding -----------------------------------------------------------------------------------------------

TEST_F(Pages, TheManagerSetsADialogUpPlacesItAndLeavesItDisabledAndHidden)
{
    RecordingClient client("early");
    m_manager.RegisterAttributeChangedNotification(&client, true);
    auto* pDialog = new RecordingDialog(IDD_PLAIN, "new", &m_host);
    pDialog->MyAttributeChanged();
    EXPECT_EQ(TakeCalls(), Calls{}) << "nobody to tell yet";
    m_manager.AddDialog(pDialog); // reports a change while its window is being made
    EXPECT_EQ(TakeCalls(),
              (Calls{"early: changed", "show new", "init new", "frame", "disable new", "hide new"}));
    CRect rect;
    pDialog->GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(rect, m_host.frame);
    EXPECT_EQ(pDialog->GetParent(), &m_host);
}

TEST_F(Pages, TheManagerDeletesPagesBeforeDialogsInTheOrderOfAdding)
{
    {
        PagesHost host;
        ASSERT_TRUE(host.Open());
        CPageManager manager(&host);
        for (const char* name : {"one", "two"})
            manager.AddDialog(new RecordingDialog(IDD_PLAIN, name, &host));
        EXPECT_THROW(manager.AddDialog(new RecordingDialog(IDD_MISSING, "no template", &host)),
                     CResourceException*);
        for (const wchar_t* name : {L"A", L"B"})
            manager.AddPage(new RecordingPage(name, nullptr, 1), nullptr);
        host.DestroyWindow();
        TakeCalls();
    }
    EXPECT_EQ(TakeCalls(), (Calls{"delete A", "delete B", "delete one", "delete two", "delete no template"}));
}

// ---- Selection --------------------------------------------------------------------------------------------

// The new page shows before the old one is hidden; pages that share a dialog are rebound, and stay on screen.
TEST_F(Pages, TheManagerShowsWhatIsSelected)
{
    RecordingPage *pAlpha = Page(idAlpha), *pBeta = Page(idBeta), *pGamma = Page(idGamma);
    const Calls showAlpha{"enable fields", "show fields", "bind Alpha", "focus fields"};
    const Calls showGamma{"enable plain",   "show plain",  "bind Gamma",  "focus plain",
                          "disable fields", "hide fields", "unbind Alpha"};
    const std::tuple<CPage*, CPage*, Calls> selections[] = {
        {pAlpha, nullptr, showAlpha},
        {pGamma, pAlpha, showGamma},
        {nullptr, pGamma, {"disable plain", "hide plain", "unbind Gamma"}},
        {nullptr, nullptr, {}},
        {pAlpha, nullptr, showAlpha},
        {pBeta, pAlpha, {"bind Beta", "focus fields"}},
        {pBeta, pBeta, {"bind Beta", "focus fields"}},
    };
    for (const auto& [pNew, pOld, calls] : selections)
    {
        m_manager.PageSelected(pNew, pOld);
        EXPECT_EQ(TakeCalls(), calls) << NameOf(pNew) << " after " << NameOf(pOld);
    }
    owtest::Click(m_host.fields->count);
    owtest::Type(L"5");
    m_host.DestroyWindow(); // while a page is shown
    TakeCalls();
    m_manager.PageSelected(pGamma, pAlpha);
    m_manager.PageSelected(pAlpha, pBeta);
    m_tree.SetCurrentPage(nullptr);
    EXPECT_EQ(TakeCalls(), Calls{});
}

TEST(ManagerOfARedirectingDialog, WhatTheDialogSelectsWhileItIsBoundStaysShown)
{
    struct RedirectingDialog : RecordingDialog
    {
        using RecordingDialog::RecordingDialog;
        std::function<void()> redirect;
        void BindControlsToSources(bool bBind, CPage*) override
        {
            if (bBind)
                redirect();
        }
    };
    PagesHost host(IDD_HOST);
    ASSERT_TRUE(host.Open());
    auto* pRedirecting = new RedirectingDialog(IDD_PLAIN, "redirecting", &host);
    host.manager.AddDialog(pRedirecting);
    CPageDialog* const pFields = host.AddDialog(IDD_FIELDS, "fields");
    CPage* const pFirst = host.AddPage(L"First", pFields, 1);
    CPage* const pSecond = host.AddPage(L"Second", pFields, 2);
    CPage* const pThird = host.AddPage(L"Third", pRedirecting, 3);
    pRedirecting->redirect = [&] { host.manager.PageSelected(pSecond, pThird); };

    host.manager.PageSelected(pFirst, nullptr);
    host.manager.PageSelected(pThird, pFirst);
    EXPECT_TRUE(pFields->IsWindowVisible() && pFields->IsWindowEnabled());
    EXPECT_FALSE(pRedirecting->IsWindowVisible() || pRedirecting->IsWindowEnabled());
}

TEST_F(Pages, TheManagerFindsTheFirstPageOfAnIdentity)
{
    CPageManager manager(&m_host);
    const auto id = static_cast<CPage::EPageID>(3);
    EXPECT_EQ(manager.GetPage(id), nullptr);
    auto* pFirst = new RecordingPage(L"first", nullptr, id);
    for (RecordingPage* pPage :
         {new RecordingPage(L"other", nullptr, 2), pFirst, new RecordingPage(L"second", nullptr, id)})
        manager.AddPage(pPage, nullptr);
    EXPECT_EQ(manager.GetPage(id), pFirst);
    EXPECT_EQ(manager.GetPage(CPage::EPageID{}), nullptr);
}

// ---- Clients ----------------------------------------------------------------------------------------------

// The first client of a list stays; of those who hear of changed values all stay, and an unknown one is an error.
TEST_F(Pages, ClientsOfTheManagerLeaveByUnequalRules)
{
    CPageManager manager(&m_host);
    RecordingClient first("first", &manager), second("second"), unknown("unknown");
    for (RecordingClient* pClient : {&first, &second, &second})
        manager.RegisterAddPageNotification(pClient, true);
    auto* pParent = new RecordingPage(L"A", nullptr, 1);
    manager.AddPage(pParent, nullptr);
    EXPECT_EQ(TakeCalls(), (Calls{"first: A below -", "second: A below -", "second: A below -"}));
    for (RecordingClient* pClient : {&first, &second, &unknown})
        manager.RegisterAddPageNotification(pClient, false);
    manager.AddPage(new RecordingPage(L"B", nullptr, 2), pParent);
    EXPECT_EQ(TakeCalls(), (Calls{"first: B below A", "second: B below A"}))
        << "twice registered, removed once";

    for (const bool bRegister : {true, false})
        for (RecordingClient* pClient : {&first, &second})
            manager.RegisterAttributeChangedNotification(pClient, bRegister);
    manager.AttributeChangedUsingGUI();
    EXPECT_EQ(TakeCalls(), (Calls{"first: changed", "second: changed"}));
    EXPECT_THROW(manager.RegisterAttributeChangedNotification(&unknown, false), CInvalidArgException*);
}

// ---- Misuse ends the process ------------------------------------------------------------------------------

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
