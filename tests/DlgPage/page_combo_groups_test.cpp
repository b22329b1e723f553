// The two page selectors made of a combo box and a toggle, with real pages behind them.

#include "PagesHost.h"

namespace
{
template <class Group>
struct OpenGroup : Group
{
    using Group::FindPage, Group::FindParent, Group::Group;
};
using ButtonGroup = OpenGroup<CPageComboButtonSTCtrlGroup>;
using CheckGroup = OpenGroup<CPageComboCheckCtrlGroup>;

template <class Group>
class PageComboGroups : public PagesWith<Group>
{
protected:
    Group& group = this->selector;
    CWnd& toggle() { return *this->GetDlgItem(IDC_TOGGLE); }
    CComboBox& combo() { return static_cast<CComboBox&>(*this->GetDlgItem(IDC_SELECTOR)); }

    /// The page that shows, the row, + for the toggle; the group's page, and what was told since the last time.
    std::string State()
    {
        EXPECT_EQ(toggle().IsWindowVisible(), toggle().IsWindowEnabled());
        return this->Shown() + ' ' + std::to_string(combo().GetCurSel()) +
               (toggle().IsWindowVisible() ? "+ " : " ") + NameOf(group.GetCurrentPage()) + ": " +
               TakeCalls(kSelections);
    }

    /// Selects by a key in the combo box, by the toggle, or a page of this name by code.
    void Do(const std::string& move)
    {
        const std::map<std::string, WORD> keys{{"up", VK_UP}, {"down", VK_DOWN}, {"end", VK_END}};
        if (const auto key = keys.find(move); key != keys.end())
            group.SetFocus(), owtest::Press(key->second);
        else if (move == "space")
            toggle().SetFocus(), owtest::Press(VK_SPACE);
        else if (move == "click")
            owtest::Click(toggle());
        else
            group.SetCurrentPage(this->Page(move));
    }
};
using PageComboButtonGroup = PageComboGroups<ButtonGroup>;
using PageComboCheckGroup = PageComboGroups<CheckGroup>;

using Groups = ::testing::Types<ButtonGroup, CheckGroup>;
TYPED_TEST_SUITE(PageComboGroups, Groups);
} // namespace

// A click counts for the next row with a child, too. Of two children only the later can be reached.
TYPED_TEST(PageComboGroups, ShowThePageThatTheUserOrTheProgramChooses)
{
    const std::pair<const char*, std::string> steps[] = {
        {"down", "Alpha 0+"},  {"click", "Gamma 0+"}, {"space", "Alpha 0+"},   {"down", "Beta 1"},
        {"down", "Delta 2+"},  {"Alpha", "Alpha 0+"}, {"click", "Gamma 0+"},   {"Beta", "Beta 1"},
        {"Gamma", "Gamma 0+"}, {"end", "Later 2+"},   {"up", "Beta 1"},        {"up", "Gamma 0+"},
        {"Delta", "Delta 2+"}, {"Beta", "Beta 1"},    {"Earlier", "Later 2+"}, {"click", "Delta 2+"},
        {"Alpha", "Alpha 0+"}};
    EXPECT_EQ(this->combo().GetCount(), 3) << "children have no row";
    EXPECT_EQ(this->group.GetCurrentPage(), nullptr);
    std::string before = "-";
    for (const auto& [move, shown] : steps)
    {
        const std::string page = shown.substr(0, shown.find(' '));
        this->Do(move);
        EXPECT_EQ(this->State(), shown + ' ' + page + ": " + page + " after " + before) << move;
        before = page;
    }
    this->group.OnExtComboBoxSelChanged(IDC_TOGGLE, 1);
    this->group.OnButtonClicked(IDC_SELECTOR);
    EXPECT_EQ(this->State(), "Alpha 0+ Alpha: ") << "other controls";
    for (const int nNoRow : {-1, 3})
        this->group.OnExtComboBoxSelChanged(IDC_SELECTOR, nNoRow);
    this->group.OnButtonClicked(IDC_TOGGLE);
    EXPECT_EQ(TakeCalls(kSelections), "- after Alpha, - after -, - after -");
    EXPECT_EQ(this->Shown(), "");
}

TYPED_TEST(PageComboGroups, KnowPagesByTheirIdentityAndSelectNothingForOthers)
{
    RecordingPage twin(_T("Another object"), nullptr, this->Page("Gamma")->GetPageID());
    RecordingPage unknown(_T("Stranger"), nullptr, 99);
    for (CPage* pUnknown : {static_cast<CPage*>(nullptr), static_cast<CPage*>(&unknown)})
    {
        this->group.SetCurrentPage(&twin);
        this->group.SetCurrentPage(pUnknown);
        EXPECT_EQ(this->State(), "Gamma -1 -: Gamma after -") << "the one that was added";
        EXPECT_EQ(this->group.FindPage(pUnknown), -1);
    }
    this->Do("Beta");
    EXPECT_EQ(this->State(), "Beta 1 Beta: Beta after -") << "what was left goes with the next selection";
    EXPECT_EQ(this->group.FindPage(&twin), 1);
    EXPECT_EQ(this->group.FindParent(this->Page("Delta")), 4) << "its first child";
    EXPECT_EQ(this->group.FindParent(this->Page("Beta")), -1);
    EXPECT_THROW(this->group.PageAdded(&twin, &unknown), CInvalidArgException*);
    EXPECT_EQ(TypeParam(1, 2).GetCurrentPage(), nullptr) << "without controls";
}

// That one shows, and whoever has not been told yet hears of it alone.
TYPED_TEST(PageComboGroups, LetClientsSelectAnotherPageWhileTheyAreTold)
{
    RecordingClient last("last");
    for (RecordingClient* pClient : {static_cast<RecordingClient*>(nullptr), &last})
        this->group.RegisterSelectPageNotification(pClient, true);
    // What is done, the pages before and after it, and what the controls show meanwhile.
    const std::string moves[][4] = {{"down", "Alpha", "Beta", "Beta"},
                                    {"click", "Alpha", "Gamma", "Gamma"},
                                    {"Beta", "Alpha", "Beta", "Alpha"},
                                    {"Beta", "Gamma", "Beta", "Gamma"}};
    for (const auto& [move, from, to, meanwhile] : moves)
        for (const bool bByDialog : {false, true}) // the manager is the second client
        {
            const std::string heard = to + " after " + from, changed = "Later after " + to;
            this->Do(from);
            TakeCalls(kSelections);
            const auto redirect = [&, meanwhile = meanwhile]
            {
                EXPECT_EQ(NameOf(this->group.GetCurrentPage()), meanwhile);
                this->Do("Later");
            };
            once[bByDialog ? "bind " + to : heard] = redirect;
            this->Do(move);
            EXPECT_EQ(this->State(), "Later 2+ Later: " + heard + ", " + changed + ", " + changed)
                << bByDialog;
        }
    for (RecordingClient* pClient : {&this->selects, &last})
        this->group.RegisterSelectPageNotification(pClient, false);
    this->Do("Beta");
    EXPECT_EQ(TakeCalls(kSelections), "Beta after Later") << "the first one stays";
}

TEST_F(PageComboCheckGroup, NamesTheTopLevelPageAfterABoxThatStayedChecked)
{
    for (const char* move : {"Gamma", "Beta", "down"}) // the second hides the box, and leaves it checked
        Do(move);
    EXPECT_EQ(State(), "Later 2+ Later: Gamma after -, Beta after Gamma, Later after Beta");
    ShowWindow(SW_HIDE);
    EXPECT_EQ(group.GetCurrentPage(), Page("Delta")) << "a box that is not seen does not count";
    ShowWindow(SW_SHOW);
    Do("Beta");
    EXPECT_EQ(TakeCalls(kSelections), "Beta after Delta");
    toggle().ShowWindow(SW_SHOW);
    EXPECT_EQ(group.GetCurrentPage(), nullptr);
}

TEST_F(PageComboButtonGroup, ShowsTheStateInTextAndIconAndLeavesTheSharedIconsUsable)
{
    EXPECT_EQ(owtest::TextOf(toggle()), L"More") << "the template's";
    const auto expectText = [&](const char* move, const wchar_t* text)
    { EXPECT_EQ((Do(move), owtest::TextOf(toggle())), text); };
    expectText("Gamma", L"Nazad");
    expectText("Alpha", L"Napred");
    group.SetStateTexts(_T("Close"), _T("Details"));
    EXPECT_EQ(owtest::TextOf(toggle()), L"Napred") << "until the next change";
    expectText("Alpha", L"Details");
    expectText("Gamma", L"Close");
    ShowWindow(SW_HIDE);
    EXPECT_EQ(group.GetCurrentPage(), Page("Gamma")) << "whether the button is seen or not";
    ShowWindow(SW_SHOW);
    toggle().ShowWindow(SW_SHOW);
    combo().SetCurSel(1);
    EXPECT_EQ(group.GetCurrentPage(), nullptr) << "no child, with the button on";

    group.SetStateTexts(_T(""), _T(""));
    group.SetStateIcons(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt);
    owtest::Surface on(90, 20), off(90, 20);
    for (const auto& [page, pShown] : {std::pair{"Gamma", &on}, {"Alpha", &off}})
    {
        Do(page);
        toggle().UpdateWindow();
        owtest::Capture(toggle(), *pShown);
    }
    EXPECT_FALSE(on == off) << "its icon";
    EXPECT_EQ(CButtonST().SetIcon(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt), CButtonST::resultOk);
}
