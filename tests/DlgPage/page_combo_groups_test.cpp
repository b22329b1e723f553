// The two page selectors made of a combo box and a toggle, with real pages behind them.

#include "PagesHost.h"

#include "Handles.h"
#include "Picture.h"

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

    using Move = std::function<void()>;
    Move key(WORD nKey)
    {
        return [this, nKey] { group.SetFocus(), owtest::Press(nKey); };
    }
    Move code(Identity id)
    {
        return [this, id] { group.SetCurrentPage(this->Page(id)); };
    }
    const Move click = [this] { owtest::Click(toggle()); };
};
using PageComboButtonGroup = PageComboGroups<ButtonGroup>;
using PageComboCheckGroup = PageComboGroups<CheckGroup>;

using Groups = ::testing::Types<ButtonGroup, CheckGroup>;
TYPED_TEST_SUITE(PageComboGroups, Groups);
} // namespace

TYPED_TEST(PageComboGroups, ShowThePageThatTheUserOrTheProgramChooses)
{
    const auto code = [this](Identity id) { return this->code(id); };
    const auto key = [this](WORD nKey) { return this->key(nKey); };
    const auto& click = this->click;
    const auto space = [this] { this->toggle().SetFocus(), owtest::Press(VK_SPACE); };
    /// The page that shows after each move, and its row, with a plus if there is a toggle.
    const std::tuple<std::function<void()>, std::string, std::string> steps[] = {
        {key(VK_DOWN), "Alpha", "0+"},    {click, "Gamma", "0+"},         {space, "Alpha", "0+"},
        {key(VK_DOWN), "Beta", "1"},      {key(VK_DOWN), "Delta", "2+"},  {code(idAlpha), "Alpha", "0+"},
        {click, "Gamma", "0+"},           {code(idBeta), "Beta", "1"},  // the click was noted
        {code(idGamma), "Gamma", "0+"},   {key(VK_END), "Later", "2+"}, // the toggle stays as it is
        {key(VK_UP), "Beta", "1"}, // and does not count while it is hidden
        {key(VK_UP), "Gamma", "0+"},      {code(idDelta), "Delta", "2+"}, {code(idBeta), "Beta", "1"},
        {code(idEarlier), "Later", "2+"}, // only the later child can be reached
        {click, "Delta", "2+"},           // the toggle was on
        {code(idAlpha), "Alpha", "0+"},
    };
    EXPECT_EQ(this->combo().GetCount(), 3) << "children have no row";
    EXPECT_EQ(this->group.GetCurrentPage(), nullptr);
    std::string before = "-";
    for (const auto& [move, page, row] : steps)
    {
        const std::string told = page + " after " + std::exchange(before, page);
        move();
        EXPECT_EQ(TakeSelections(), told);
        EXPECT_EQ(this->Shown(), page + ' ' + row) << told;
        EXPECT_EQ(NameOf(this->group.GetCurrentPage()), page) << told;
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
    this->group.SetCurrentPage(this->Page(idBeta));
    EXPECT_EQ(TakeSelections(), "Beta after -");
    EXPECT_EQ(this->Shown(), "Beta 1") << "what was left on the screen goes with the next selection";
    EXPECT_EQ(this->group.FindPage(&twin), 1);
    EXPECT_EQ(this->group.FindParent(this->Page(idDelta)), 4) << "its first child";
    EXPECT_EQ(this->group.FindParent(this->Page(idBeta)), -1);
    EXPECT_THROW(this->group.PageAdded(&twin, &unknown), CInvalidArgException*);
    EXPECT_EQ(TypeParam(1, 2).GetCurrentPage(), nullptr) << "without controls";
}

TYPED_TEST(PageComboGroups, LeaveNoPageThatAnotherChildHasReplaced)
{
    this->group.SetCurrentPage(this->Page(idGamma));
    this->host.AddPage(L"Newer", this->host.fields, idStranger, this->Page(idAlpha));
    EXPECT_EQ(NameOf(this->group.GetCurrentPage()), "Newer") << "only the latest can be reached";
    this->host.plain->count.SetFocus();
    owtest::Type(L"7");
    TakeCalls();
    this->group.SetCurrentPage(this->Page(idLater));
    EXPECT_EQ(TakeSelections(), "Later after Newer");
    EXPECT_EQ(this->host.Page(idGamma)->nCount, 7) << "what was typed there is taken over";
    this->host.AddPage(L"Newest", this->host.fields, idStranger + 1, this->Page(idDelta));
    this->click();
    EXPECT_EQ(TakeSelections(), "Delta after Newest");
    EXPECT_EQ(this->Shown(), "Delta 2+");
}

// Who is told of one page selects another: that one shows, and whoever has not been told yet hears of it alone.
// By code, the clients are told before the controls change.
TYPED_TEST(PageComboGroups, LetClientsSelectAnotherPageWhileTheyAreTold)
{
    RecordingClient last("last");
    for (RecordingClient* pClient : {static_cast<RecordingClient*>(nullptr), &last})
        this->group.RegisterSelectPageNotification(pClient, true);
    const std::tuple<std::function<void()>, Identity, Identity, Identity> moves[] = {
        {this->key(VK_DOWN), idAlpha, idBeta, idBeta}, // from, to, and what the controls show meanwhile
        {this->click, idAlpha, idGamma, idGamma},
        {this->code(idBeta), idAlpha, idBeta, idAlpha},
        {this->code(idBeta), idGamma, idBeta, idGamma}};
    for (const auto& [move, from, over, meanwhile] : moves)
        for (const bool bByDialog : {false, true}) // the manager is the second client
        {
            const std::string told = NameOf(this->Page(over));
            const std::string heard = told + " after " + NameOf(this->Page(from)),
                              changed = "Later after " + told;
            SCOPED_TRACE(heard + ", " + changed + (bByDialog ? ", by the dialog" : ""));
            this->group.SetCurrentPage(this->Page(from));
            TakeSelections();
            Once(bByDialog ? "bind " + told : heard,
                 [this, shown = meanwhile]
                 {
                     EXPECT_EQ(this->group.GetCurrentPage(), this->Page(shown));
                     this->group.SetCurrentPage(this->Page(idLater));
                 });
            move();
            EXPECT_EQ(TakeSelections(), heard + ", " + changed + ", " + changed);
            EXPECT_EQ(this->Shown(), "Later 2+");
            EXPECT_EQ(this->group.GetCurrentPage(), this->Page(idLater));
        }
    for (RecordingClient* pClient : {&this->host.selects, &last})
        this->group.RegisterSelectPageNotification(pClient, false);
    this->group.SetCurrentPage(this->Page(idBeta));
    EXPECT_EQ(TakeSelections(), "Beta after Later") << "the first one stays";
}

TEST_F(PageComboCheckGroup, NamesTheTopLevelPageAfterABoxThatStayedChecked)
{
    group.SetCurrentPage(Page(idGamma));
    group.SetCurrentPage(Page(idBeta)); // hides the box, and leaves it checked
    group.SetFocus();
    owtest::Press(VK_DOWN);
    EXPECT_EQ(Shown(), "Later 2+");
    TakeSelections();
    host.ShowWindow(SW_HIDE);
    EXPECT_EQ(group.GetCurrentPage(), Page(idDelta)) << "a box that is not seen does not count";
    host.ShowWindow(SW_SHOW);
    group.SetCurrentPage(Page(idBeta));
    EXPECT_EQ(TakeSelections(), "Beta after Delta");
    toggle().ShowWindow(SW_SHOW);
    EXPECT_EQ(group.GetCurrentPage(), nullptr);
}

TEST_F(PageComboButtonGroup, ShowsTheStateInTextAndIconAndLeavesTheSharedIconsUsable)
{
    const auto expectText = [&](LPCTSTR pszText) { EXPECT_EQ(owtest::TextOf(toggle()), pszText); };
    expectText(_T("More")); // the template's, until something is selected by code or clicked
    group.SetCurrentPage(Page(idAlpha));
    expectText(_T("Napred"));
    click();
    group.SetStateTexts(_T("Close"), _T("Details"));
    expectText(_T("Nazad")); // until the next change
    group.SetCurrentPage(Page(idAlpha));
    expectText(_T("Details"));
    group.SetCurrentPage(Page(idGamma));
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
        group.SetCurrentPage(Page(i % 2 ? idAlpha : idGamma));
        toggle().UpdateWindow();
        CClientDC dc(&toggle());
        shown[i % 2].dc().BitBlt(0, 0, 60, 20, &dc, 0, 0, SRCCOPY);
        EXPECT_TRUE(i == 0 || !(shown[0] == shown[1])) << "its icon";
        nHandles = i == 1 ? owtest::CountHandles().gdi : nHandles;
    }
    EXPECT_EQ(owtest::CountHandles().gdi, nHandles);
    EXPECT_EQ(CButtonST().SetIcon(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt), CButtonST::resultOk);
}
