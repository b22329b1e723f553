// The two page selectors made of a combo box and a toggle, with real pages behind them.

#include "PagesHost.h"

#include "Handles.h"
#include "Picture.h"

#include <map>

namespace
{
/// A group with its inner questions opened.
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
    PagesHost<Group>& host = this->m_host;
    Group& group = this->m_selector;
    CWnd& toggle() { return *host.GetDlgItem(IDC_TOGGLE); }
    CComboBox& combo() { return static_cast<CComboBox&>(*host.GetDlgItem(IDC_SELECTOR)); }

    /// What the user sees: the page in the frame, the row, and the toggle if there is one.
    std::string Shown()
    {
        EXPECT_EQ(toggle().IsWindowVisible(), toggle().IsWindowEnabled());
        return host.Shown() + ' ' + std::to_string(combo().GetCurSel()) +
               (toggle().IsWindowVisible() ? "+" : "");
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
        for (RecordingPage* pPage : host.pages)
            if (NameOf(pPage) == move)
                group.SetCurrentPage(pPage);
    }
};
using PageComboButtonGroup = PageComboGroups<ButtonGroup>;
using PageComboCheckGroup = PageComboGroups<CheckGroup>;

using Groups = ::testing::Types<ButtonGroup, CheckGroup>;
TYPED_TEST_SUITE(PageComboGroups, Groups);
} // namespace

// A click counts for the next row with a child, too, but not while the toggle is hidden. Of two children only the later
// can be reached.
TYPED_TEST(PageComboGroups, ShowThePageThatTheUserOrTheProgramChooses)
{
    const std::pair<std::string, std::string> steps[] = {
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
        EXPECT_EQ(TakeSelections(), page + " after " + std::exchange(before, page)) << move;
        EXPECT_EQ(this->Shown(), shown) << move;
        EXPECT_EQ(NameOf(this->group.GetCurrentPage()), page) << move;
    }
    this->group.OnExtComboBoxSelChanged(IDC_TOGGLE, 1);
    this->group.OnButtonClicked(IDC_SELECTOR);
    EXPECT_EQ(TakeSelections(), "") << "other controls";
    this->group.OnExtComboBoxSelChanged(IDC_SELECTOR, -1);
    EXPECT_EQ(TakeSelections(), "- after Alpha");
    EXPECT_EQ(this->Shown(), " 0");
    this->group.OnButtonClicked(IDC_TOGGLE);
    EXPECT_EQ(TakeSelections(), "- after -") << "no row";
}

TYPED_TEST(PageComboGroups, KnowPagesByTheirIdentityAndSelectNothingForOthers)
{
    RecordingPage twin(_T("Another object"), nullptr, idGamma);
    RecordingPage unknown(_T("Stranger"), nullptr, idStranger);
    for (CPage* pUnknown : {static_cast<CPage*>(nullptr), static_cast<CPage*>(&unknown)})
    {
        this->group.SetCurrentPage(&twin);
        EXPECT_EQ(TakeSelections(), "Gamma after -") << "the one that was added";
        this->group.SetCurrentPage(pUnknown);
        EXPECT_EQ(TakeSelections(), "");
        EXPECT_EQ(this->Shown(), "Gamma -1");
        EXPECT_EQ(this->group.GetCurrentPage(), nullptr);
        EXPECT_EQ(this->group.FindPage(pUnknown), -1);
    }
    this->Do("Beta");
    EXPECT_EQ(TakeSelections(), "Beta after -");
    EXPECT_EQ(this->Shown(), "Beta 1") << "what was left on the screen goes with the next selection";
    EXPECT_EQ(this->group.FindPage(&twin), 1);
    EXPECT_EQ(this->group.FindParent(this->Page(idDelta)), 4) << "its first child";
    EXPECT_EQ(this->group.FindParent(this->Page(idBeta)), -1);
    EXPECT_THROW(this->group.PageAdded(&twin, &unknown), CInvalidArgException*);
    EXPECT_EQ(TypeParam(1, 2).GetCurrentPage(), nullptr) << "without controls";
}

// Who is told of one page selects another: that one shows, and whoever has not been told yet hears of it alone.
// By code, the clients are told before the controls change.
TYPED_TEST(PageComboGroups, LetClientsSelectAnotherPageWhileTheyAreTold)
{
    RecordingClient last("last");
    for (RecordingClient* pClient : {static_cast<RecordingClient*>(nullptr), &last})
        this->group.RegisterSelectPageNotification(pClient, true);
    // What is done, the pages before and after it, and what the controls show meanwhile.
    const std::vector<std::string> moves[] = {{"down", "Alpha", "Beta", "Beta"},
                                              {"click", "Alpha", "Gamma", "Gamma"},
                                              {"Beta", "Alpha", "Beta", "Alpha"},
                                              {"Beta", "Gamma", "Beta", "Gamma"}};
    for (const auto& move : moves)
        for (const bool bByDialog : {false, true}) // the manager is the second client
        {
            const std::string heard = move[2] + " after " + move[1], changed = "Later after " + move[2];
            SCOPED_TRACE(heard + ", " + changed + (bByDialog ? ", by the dialog" : ""));
            this->Do(move[1]);
            TakeSelections();
            const auto redirect = [&]
            {
                EXPECT_EQ(NameOf(this->group.GetCurrentPage()), move[3]);
                this->Do("Later");
            };
            Once(bByDialog ? "bind " + move[2] : heard, redirect);
            this->Do(move[0]);
            EXPECT_EQ(TakeSelections(), heard + ", " + changed + ", " + changed);
            EXPECT_EQ(this->Shown(), "Later 2+");
            EXPECT_EQ(NameOf(this->group.GetCurrentPage()), "Later");
        }
    for (RecordingClient* pClient : {&this->host.selects, &last})
        this->group.RegisterSelectPageNotification(pClient, false);
    this->Do("Beta");
    EXPECT_EQ(TakeSelections(), "Beta after Later") << "the first one stays";
}

TEST_F(PageComboCheckGroup, NamesTheTopLevelPageAfterABoxThatStayedChecked)
{
    Do("Gamma");
    Do("Beta"); // hides the box, and leaves it checked
    Do("down");
    EXPECT_EQ(Shown(), "Later 2+");
    TakeSelections();
    host.ShowWindow(SW_HIDE);
    EXPECT_EQ(group.GetCurrentPage(), Page(idDelta)) << "a box that is not seen does not count";
    host.ShowWindow(SW_SHOW);
    Do("Beta");
    EXPECT_EQ(TakeSelections(), "Beta after Delta");
    toggle().ShowWindow(SW_SHOW);
    EXPECT_EQ(group.GetCurrentPage(), nullptr);
}

TEST_F(PageComboButtonGroup, ShowsTheStateInTextAndIconAndLeavesTheSharedIconsUsable)
{
    const auto expectText = [&](LPCTSTR pszText) { EXPECT_EQ(owtest::TextOf(toggle()), pszText); };
    expectText(_T("More")); // the template's, until something is selected by code or clicked
    Do("Alpha");
    expectText(_T("Napred"));
    Do("click");
    group.SetStateTexts(_T("Close"), _T("Details"));
    expectText(_T("Nazad")); // until the next change
    Do("Alpha");
    expectText(_T("Details"));
    Do("Gamma");
    expectText(_T("Close"));
    host.ShowWindow(SW_HIDE);
    EXPECT_EQ(group.GetCurrentPage(), Page(idGamma)) << "whether the button is seen or not";
    host.ShowWindow(SW_SHOW);
    toggle().ShowWindow(SW_SHOW);
    combo().SetCurSel(1);
    EXPECT_EQ(group.GetCurrentPage(), nullptr) << "no child, with the button on";

    group.SetStateTexts(_T(""), _T(""));
    group.SetStateIcons(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt);
    owtest::Surface shown[] = {{60, 20}, {60, 20}};
    int nHandles = 0;
    for (int i = 0; i < 20; ++i)
    {
        Do(i % 2 ? "Alpha" : "Gamma");
        toggle().UpdateWindow();
        CClientDC dc(&toggle());
        shown[i % 2].dc().BitBlt(0, 0, 60, 20, &dc, 0, 0, SRCCOPY);
        EXPECT_TRUE(i == 0 || !(shown[0] == shown[1])) << "its icon";
        nHandles = i == 1 ? owtest::CountHandles().gdi : nHandles;
    }
    EXPECT_EQ(owtest::CountHandles().gdi, nHandles);
    EXPECT_EQ(CButtonST().SetIcon(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt), CButtonST::resultOk);
}
