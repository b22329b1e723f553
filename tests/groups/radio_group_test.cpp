// Radio groups: which controls belong to one, the option, clicks, copies, and the life of the buttons.

#include "GroupDialog.h"

using Ids = std::vector<int>;

namespace
{
constexpr DWORD kRadio = BS_AUTORADIOBUTTON;
constexpr DWORD kFirst = kRadio | WS_GROUP | WS_TABSTOP;
constexpr WORD kNoId = 0xFFFF;

/// A control in a row from left to right.
struct Member
{
    WORD id;
    DWORD style = kRadio;
    const wchar_t* windowClass = L"BUTTON";
};
using Row = std::vector<Member>;

const Member kButton{120, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP}, kTabStop{119, kRadio | WS_TABSTOP};
const Row kTwoGroups = {{101, kFirst}, {102}, {103}, {111, kFirst}, {112}, kButton};
const Ids kAll{101, 102, 103};

struct Handler : AButtonSTNotificationHandler
{
    Ids clicks;
    Ids Take() { return std::exchange(clicks, {}); }
    void OnButtonClicked(int nId) override { clicks.push_back(nId); }
};

/// A dialog that hears the clicks itself.
struct RowDialog : GroupDialog, Handler
{
    bool Open(const Row& row)
    {
        owtest::DialogTemplate form(L"Groups", 240, 30);
        for (short i = 0; const Member& member : row)
            form.Item(member.windowClass, L"", member.id, member.style, 4 + 16 * i++, 8, 12, 12);
        return GroupDialog::Open(form);
    }
    BOOL OnInitDialog() override { return FALSE; }
};

Ids IdsOf(const CRadioGroup& group)
{
    Ids ids(group.Count());
    for (int nId = 0; nId <= kNoId; ++nId)
        if (const int nIndex = group.Find(nId); nIndex >= 0)
            ids[nIndex] = nId;
    return ids;
}

class RadioGroup : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Open(kTwoGroups)); }
    Ids ClickOn(int nId)
    {
        dialog.Click(nId);
        return dialog.Take();
    }
    RowDialog dialog;
};
} // namespace

// The system's walk round a group never comes back to a first control that it passes over.
TEST_F(RadioGroup, EndsBeforeATabStopALabelOrAControlWithoutAnIdOrAllTheWayRound)
{
    struct Case
    {
        Row row;
        int nFirstId;
        Ids found;
        Ids hidden, disabled;
    };
    const Case cases[] = {
        {kTwoGroups, 101, kAll, {}, {}},
        {kTwoGroups, 111, {111, 112}, {}, {}},      // side by side with the other
        {kTwoGroups, 102, {102, 103, 101}, {}, {}}, // round to the beginning of the group
        {{kTabStop, {101, kRadio | WS_TABSTOP}, {102}}, 101, {101, 102}, {}, {}}, // round the dialog
        {{{101}, kTabStop, {111, kFirst}}, 101, {101}, {}, {}},
        {{{101, kFirst}, {102, SS_LEFT, L"STATIC"}, {103}, kButton}, 101, {101}, {}, {}},
        {{{101, kFirst}, {102, 0, L"EDIT"}, {103}, kButton}, 101, kAll, {}, {}},
        {{{101, kFirst}, {kNoId, BS_GROUPBOX}, {103}, kButton}, 101, {101}, {}, {}},
        {{{101, kFirst}, {102}, {102}, {103}, kButton}, 101, {101, 102}, {}, {}}, // an id given twice
        {{{101, kFirst}, kButton}, 101, {101}, {}, {}},                           // one button
        {{{101, kFirst}, {102}}, 101, {}, {}, {}},                                // the only tab stop
        {kTwoGroups, 101, {101, 103}, {102}, {}},
        {kTwoGroups, 101, {101, 102}, {}, {103}},
        {kTwoGroups, 101, kAll, {101}, {}}, // the first one belongs to it all the same
        {kTwoGroups, 101, {101}, {101, 102}, {103}},
    };
    for (const Case& place : cases)
    {
        ASSERT_TRUE(dialog.Open(place.row));
        for (const int nId : place.hidden)
            dialog[nId].ShowWindow(SW_HIDE);
        for (const int nId : place.disabled)
            dialog[nId].EnableWindow(FALSE);
        EXPECT_EQ(IdsOf(CRadioGroup(&dialog, place.nFirstId)), place.found) << &place - cases;
    }
}

TEST_F(RadioGroup, IsEmptyWithoutADialogAWindowOrTheControl)
{
    RowDialog noWindow;
    const std::pair<CDialog*, int> places[] = {
        {nullptr, 101}, {&dialog, 0}, {&dialog, 199}, {&noWindow, 101}};
    for (const auto& [pDialog, nId] : places)
    {
        CRadioGroup group(&dialog, 101);
        group.Set(pDialog, nId);
        EXPECT_TRUE(group.Count() == 0 && group.GetUniqueId() == 0 && group.GetOption() == -1) << nId;
        group.SetOption(0);
        group.Enable(false);
        EXPECT_TRUE(dialog[101].IsWindowEnabled() && !dialog.IsDlgButtonChecked(101));
    }
}

// A checked button takes the tab stop of its group over from the first one.
TEST_F(RadioGroup, TurnsTheCheckedButtonIntoAnIndexAndBackInSilenceAndIsFoundAgain)
{
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    other.SetOption(1);
    for (const int nOption : {2, -1, 0, 3, 1})
    {
        const bool bMember = nOption >= 0 && nOption < 3;
        group.SetOption(nOption);
        EXPECT_EQ(group.GetOption(), bMember ? nOption : -1);
        EXPECT_EQ(dialog.GetCheckedRadioButton(101, 103), bMember ? 101 + nOption : 0);
        EXPECT_EQ(dialog.Take(), Ids{});
        group.SetNotificationHandler(nullptr);
        group.Set(&dialog, 101);
        EXPECT_EQ(IdsOf(group), kAll) << nOption;
        EXPECT_EQ(ClickOn(103), Ids{103}) << "told once, to the dialog again";
        EXPECT_EQ(other.GetOption(), 1) << "the other group keeps its own";
    }
    group.SetOption(-1);
    group.Set(&dialog, 101);
    EXPECT_EQ(IdsOf(group), kAll) << "the tab stop is the other group's";
    other.Empty();
    group.Set(&dialog, 111);
    EXPECT_EQ(ClickOn(101), Ids{}) << "what was left is silent";
}

TEST_F(RadioGroup, TellsItsHandlerOfClicksAndKeys)
{
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    EXPECT_EQ(ClickOn(102), Ids{102});
    owtest::Press(VK_RIGHT);
    EXPECT_EQ(dialog.Take(), Ids{103});
    EXPECT_EQ(group.GetOption(), 2);
    EXPECT_EQ(ClickOn(112), Ids{112});

    Handler own;
    group.SetNotificationHandler(&own);
    EXPECT_EQ(ClickOn(101), Ids{});
    EXPECT_EQ(own.Take(), Ids{101});
    group.SetNotificationHandler(nullptr);
    EXPECT_EQ(ClickOn(102), Ids{});
    EXPECT_EQ(group.GetOption(), 1);
}

// The system's click would go round the group for ever, and that on another button would pass them over.
TEST_F(RadioGroup, AButtonThatIsHiddenOrDisabledTakesNoClickAndIsClearedByThoseOnOthers)
{
    CRadioGroup group(&dialog, 101);
    group.SetOption(1);
    dialog[102].ShowWindow(SW_HIDE);
    dialog[103].EnableWindow(FALSE);
    for (const int nId : {102, 103})
    {
        dialog[nId].SendMessage(BM_CLICK);
        for (const UINT message : {WM_KEYDOWN, WM_KEYUP})
            dialog[nId].SendMessage(message, VK_SPACE);
        EXPECT_EQ(dialog.Take(), Ids{});
        EXPECT_EQ(dialog[nId].SendMessage(BM_GETSTATE) & BST_PUSHED, 0) << "let go";
        EXPECT_EQ(group.GetOption(), 1);
    }
    EXPECT_EQ(ClickOn(101), Ids{101});
    EXPECT_TRUE(group.GetOption() == 0 && !dialog.IsDlgButtonChecked(102));
    dialog[101].ShowWindow(SW_HIDE);
    dialog[101].SendMessage(BM_CLICK);
    EXPECT_EQ(dialog.Take(), Ids{}) << "the first one neither";
}

TEST_F(RadioGroup, LeavesTheButtonsToTheDialog)
{
    CRadioGroup group(&dialog, 101);
    CRadioGroup(&dialog, 111);
    group.Empty();
    for (const int nId : {102, 112})
    {
        EXPECT_EQ(ClickOn(nId), Ids{});
        EXPECT_EQ(dialog.IsDlgButtonChecked(nId), 1u) << "a radio button as any other";
    }
    Handler first;
    CExtButton own(&first);
    ASSERT_TRUE(own.SubclassDlgItem(102, &dialog));
    group.Set(&dialog, 101);
    CRadioGroup second(&dialog, 101);
    EXPECT_EQ(ClickOn(102), Ids{});
    EXPECT_EQ(first.Take(), Ids{102}) << "a control keeps the object that it has";
    second.Empty();
    EXPECT_EQ(ClickOn(103), Ids{103}) << "so the group that came first hears it";
}

TEST_F(RadioGroup, ShowsAndEnablesItsControlsWhileTheyAreThere)
{
    CRadioGroup group(&dialog, 101);
    dialog[102].DestroyWindow();
    for (const bool bOn : {false, true})
    {
        group.Show(bOn);
        group.Enable(!bOn);
        EXPECT_EQ(dialog[101].IsWindowVisible() != FALSE, bOn);
        EXPECT_EQ(dialog[103].IsWindowEnabled() != FALSE, !bOn) << "a control that is gone is passed over";
        EXPECT_TRUE(dialog[111].IsWindowVisible() && dialog[111].IsWindowEnabled());
    }
    group.SetOption(2);
    dialog.DestroyWindow();
    EXPECT_EQ(group.GetOption(), -1);
    group.SetOption(0);
    group.Show(true);
    EXPECT_EQ(IdsOf(group), kAll);
}

TEST_F(RadioGroup, ACopySharesTheButtonsAndHearsNoClicks)
{
    CRadioGroup group(&dialog, 101), other(&dialog, 111), copy(group);
    EXPECT_TRUE(copy == group && copy != other);
    copy.SetOption(2);
    EXPECT_EQ(group.GetOption(), 2);
    EXPECT_EQ(ClickOn(102), Ids{102}) << "from the group alone";
    EXPECT_EQ(copy.GetOption(), 1);
    const CRadioGroup& self = group;
    group = self;
    EXPECT_EQ(ClickOn(103), Ids{103}) << "a copy onto itself is none";
    group = other;
    EXPECT_EQ(IdsOf(group), (Ids{111, 112}));
    EXPECT_EQ(ClickOn(101), Ids{}) << "the former buttons are let go";
    EXPECT_EQ(ClickOn(112), Ids{112});
    EXPECT_EQ(group.GetOption(), 1);
}
