// The two page selectors made of a combo box and a toggle, with real pages behind them.

#include "PagesHost.h"

#include "DialogTemplate.h"
#include "Handles.h"

namespace
{
enum Id : WORD
{
    idCombo = 1001,
    idToggle
};

/// Identities of the pages. The rows are Geometry, Loads and Steel.
enum Identity
{
    geometry = 1,
    geometryMore,
    loads,
    steel,
    steelEarlier, ///< Steel's first child, which the next one replaces
    steelMore,
    stranger
};

/// A group with its inner questions opened.
template <class Group>
class OpenGroup : public Group
{
public:
    using Group::FindPage;
    using Group::FindParent;
    using Group::Group;
};

using ButtonGroup = OpenGroup<CPageComboButtonSTCtrlGroup>;
using CheckGroup = OpenGroup<CPageComboCheckCtrlGroup>;

template <class Group>
constexpr DWORD kToggleStyle = std::is_same_v<Group, CheckGroup> ? BS_AUTOCHECKBOX : BS_PUSHBUTTON;

template <class Group>
class GroupHost : public PagesHost
{
public:
    GroupHost() : PagesHost(0) {}

    Group group{idCombo, idToggle};
    RecordingSelectClient selects{log};
    FieldsDialog* fields = nullptr;   ///< of the rows
    RecordingDialog* plain = nullptr; ///< of their children

    bool Open()
    {
        using owtest::DialogTemplate;
        const DialogTemplate form =
            DialogTemplate(L"Pages", 160, 90)
                .Item(L"COMBOBOX", L"", idCombo, CBS_DROPDOWNLIST | WS_TABSTOP, 4, 4, 80, 80)
                .Item(L"BUTTON", L"More", idToggle, kToggleStyle<Group> | WS_TABSTOP, 90, 4, 60, 14);
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }
    CComboBox& Combo() { return static_cast<CComboBox&>(*GetDlgItem(idCombo)); }
    CWnd& Toggle() { return *GetDlgItem(idToggle); }
    CPage* Page(Identity id) const { return manager.GetPage(static_cast<CPage::EPageID>(id)); }

    /// What the user sees in the page frame.
    std::string Shown() const
    {
        std::string names;
        for (const RecordingDialog* pDialog : {static_cast<RecordingDialog*>(fields), plain})
            if (pDialog->IsWindowVisible())
                names += Narrow(pDialog->bound->GetTreeItemName());
        return names;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        PagesHost::DoDataExchange(pDX);
        group.DoDataExchange(pDX);
    }
    BOOL OnInitDialog() override
    {
        PagesHost::OnInitDialog();
        manager.RegisterAddPageNotification(&group, true);
        group.RegisterSelectPageNotification(&manager, true);
        group.RegisterSelectPageNotification(&selects, true);
        fields = AddFieldsDialog();
        plain = AddPlainDialog();
        RecordingPage* pGeometry = AddPage(L"Geometry", fields);
        AddPage(L"Geometry more", plain, pGeometry);
        AddPage(L"Loads", fields);
        RecordingPage* pSteel = AddPage(L"Steel", fields);
        AddPage(L"Steel earlier", plain, pSteel);
        AddPage(L"Steel more", plain, pSteel);
        ShowWindow(SW_SHOW);
        return TRUE;
    }
};

template <class Group>
class PageComboGroups : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(host.Open()); }
    void TearDown() override { host.DestroyWindow(); }

    bool ToggleOffered() { return host.Toggle().IsWindowVisible() && host.Toggle().IsWindowEnabled(); }
    bool ToggleGone() { return !host.Toggle().IsWindowVisible() && !host.Toggle().IsWindowEnabled(); }

    /// One selection was told since the last question, and the user sees its page.
    void ExpectMoved(const std::string& from, const std::string& to)
    {
        EXPECT_EQ(host.TakeSelections(), Calls{"select " + to + " after " + from});
        EXPECT_EQ(host.Shown(), to);
        EXPECT_EQ(Narrow(group.GetCurrentPage()->GetTreeItemName()), to);
    }

    /// Chooses the next or the former row, as a user does.
    void PressInCombo(WORD key)
    {
        host.group.SetFocus();
        owtest::Press(key);
    }
    void ClickToggle() { owtest::Click(host.Toggle()); }

    GroupHost<Group> host;
    Group& group = host.group;
};

using PageComboButtonGroup = PageComboGroups<ButtonGroup>;
using PageComboCheckGroup = PageComboGroups<CheckGroup>;

class Names
{
public:
    template <class Group>
    static std::string GetName(int)
    {
        return std::is_same_v<Group, CheckGroup> ? "Check" : "Button";
    }
};
using Groups = ::testing::Types<ButtonGroup, CheckGroup>;
TYPED_TEST_SUITE(PageComboGroups, Groups, Names);
} // namespace

TYPED_TEST(PageComboGroups, ShowThePageOfTheRowThatTheUserChooses)
{
    EXPECT_EQ(this->host.Combo().GetCount(), 3) << "children have no row";
    EXPECT_EQ(this->group.GetCurrentPage(), nullptr);
    this->PressInCombo(VK_DOWN);
    this->ExpectMoved("-", "Geometry");
    EXPECT_TRUE(this->ToggleOffered());
    this->PressInCombo(VK_DOWN);
    this->ExpectMoved("Geometry", "Loads");
    EXPECT_TRUE(this->ToggleGone());
    this->PressInCombo(VK_END);
    this->ExpectMoved("Loads", "Steel");
    EXPECT_TRUE(this->ToggleOffered());
}

TYPED_TEST(PageComboGroups, GoToTheChildAndBackByMouseAndBySpace)
{
    this->PressInCombo(VK_DOWN);
    this->ExpectMoved("-", "Geometry");
    this->ClickToggle();
    this->ExpectMoved("Geometry", "Geometry more");
    this->host.Toggle().SetFocus();
    owtest::Press(VK_SPACE);
    this->ExpectMoved("Geometry more", "Geometry");
}

TYPED_TEST(PageComboGroups, KeepTheToggleFromRowToRow)
{
    this->group.SetCurrentPage(this->host.Page(geometryMore));
    this->ExpectMoved("-", "Geometry more");
    this->PressInCombo(VK_END);
    this->ExpectMoved("Geometry more", "Steel more"); // the later child
    this->PressInCombo(VK_UP);
    this->ExpectMoved("Steel more", "Loads"); // a hidden toggle does not count
    this->PressInCombo(VK_UP);
    this->ExpectMoved("Loads", "Geometry more");
}

TYPED_TEST(PageComboGroups, SelectAPageByCode)
{
    this->group.SetCurrentPage(this->host.Page(steel));
    this->ExpectMoved("-", "Steel");
    EXPECT_EQ(this->host.Combo().GetCurSel(), 2);
    EXPECT_TRUE(this->ToggleOffered());
    this->group.SetCurrentPage(this->host.Page(loads));
    this->ExpectMoved("Steel", "Loads");
    EXPECT_TRUE(this->ToggleGone());
    this->group.SetCurrentPage(this->host.Page(steelEarlier));
    this->ExpectMoved("Loads", "Steel more"); // only the latest child can be reached
    this->ClickToggle();
    this->ExpectMoved("Steel more", "Steel"); // the toggle was on
}

TYPED_TEST(PageComboGroups, KnowPagesByTheirIdentityAndSelectNothingForOthers)
{
    RecordingPage twin(_T("Another object"), nullptr, geometryMore, this->host.log);
    RecordingPage unknown(_T("Stranger"), nullptr, stranger, this->host.log);
    for (CPage* pUnknown : {static_cast<CPage*>(nullptr), static_cast<CPage*>(&unknown)})
    {
        this->group.SetCurrentPage(&twin);
        EXPECT_EQ(this->host.TakeSelections(), Calls{"select Geometry more after -"})
            << "the one that was added";
        this->group.SetCurrentPage(pUnknown);
        EXPECT_EQ(this->host.TakeSelections(), Calls{});
        EXPECT_EQ(this->host.Combo().GetCurSel(), -1);
        EXPECT_TRUE(this->ToggleGone());
        EXPECT_EQ(this->group.GetCurrentPage(), nullptr);
        EXPECT_EQ(this->group.FindPage(pUnknown), -1);
    }
    EXPECT_EQ(this->group.FindPage(&twin), 1);
    EXPECT_EQ(this->group.FindParent(this->host.Page(steel)), 4) << "its first child";
    EXPECT_EQ(this->group.FindParent(this->host.Page(loads)), -1);
    EXPECT_THROW(this->group.PageAdded(&twin, &unknown), CInvalidArgException*);
}

TEST_F(PageComboCheckGroup, NamesTheTopLevelPageAfterABoxThatStayedChecked)
{
    group.SetCurrentPage(host.Page(geometryMore));
    group.SetCurrentPage(host.Page(loads)); // hides the box, and leaves it checked
    PressInCombo(VK_DOWN);
    EXPECT_EQ(host.Shown(), "Steel more");
    host.TakeSelections();
    group.SetCurrentPage(host.Page(loads));
    EXPECT_EQ(host.TakeSelections(), Calls{"select Loads after Steel"});
}

TEST_F(PageComboButtonGroup, ShowsTheStateInTextAndIcon)
{
    const auto text = [&] { return owtest::TextOf(host.Toggle()); };
    EXPECT_EQ(text(), _T("More")) << "the template's, until something is selected by code or clicked";
    group.SetCurrentPage(host.Page(geometry));
    EXPECT_EQ(text(), _T("Napred"));
    ClickToggle();
    EXPECT_EQ(text(), _T("Nazad"));

    group.SetStateTexts(_T("Close"), _T("Details"));
    EXPECT_EQ(text(), _T("Nazad")) << "from the next change on";
    ClickToggle();
    EXPECT_EQ(text(), _T("Details"));
    group.SetCurrentPage(host.Page(geometryMore));
    EXPECT_EQ(text(), _T("Close"));
    group.SetCurrentPage(nullptr);
    EXPECT_EQ(text(), _T("Details"));
}

TEST_F(PageComboButtonGroup, LeavesTheSharedIconsUsable)
{
    group.SetStateIcons(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt);
    group.SetCurrentPage(host.Page(geometry));
    ClickToggle();
    ClickToggle();
    const int nBefore = owtest::CountHandles().gdi;
    for (int i = 0; i < 20; ++i)
    {
        ClickToggle();
        host.UpdateWindow();
    }
    EXPECT_EQ(owtest::CountHandles().gdi, nBefore);
    CButtonST other;
    EXPECT_EQ(other.SetIcon(CButtonST::hIconUpAlt, CButtonST::hIconDownAlt), CButtonST::resultOk);
}
