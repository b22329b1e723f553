// Radio groups: which controls belong to one, the option, clicks, copies, and the life of the buttons.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

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

const Member kButton{120, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP};
const Row kTwoGroups = {{101, kFirst}, {102}, {103}, {111, kFirst}, {112}, kButton};

class Handler : public AButtonSTNotificationHandler
{
public:
    Ids clicks;
    Ids Take() { return std::exchange(clicks, {}); }
    void OnButtonClicked(int nId) override { clicks.push_back(nId); }
};

class RowDialog : public CDialog
{
public:
    bool Open(const Row& row)
    {
        owtest::DialogTemplate form(L"Groups", 240, 30);
        form.Style(WS_POPUP | WS_CAPTION | WS_VISIBLE);
        short x = 4;
        for (const Member& member : row)
        {
            form.Item(member.windowClass, L"", member.id, member.style, x, 8, 12, 12);
            x += 16;
        }
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }
    CWnd& operator[](int nId) { return *GetDlgItem(nId); }
    void Click(int nId) { owtest::Click((*this)[nId]); }

protected:
    BOOL OnInitDialog() override { return FALSE; }
};

/// A dialog that hears the clicks itself.
class HearingDialog : public RowDialog, public Handler
{
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
    void TearDown() override { dialog.DestroyWindow(); }

    /// The ids of a group in a dialog with this row, after some were hidden and disabled.
    Ids Find(const Row& row, int nFirstId, const Ids& hidden = {}, const Ids& disabled = {})
    {
        dialog.DestroyWindow();
        EXPECT_TRUE(dialog.Open(row));
        for (int nId : hidden)
            dialog[nId].ShowWindow(SW_HIDE);
        for (int nId : disabled)
            dialog[nId].EnableWindow(FALSE);
        return IdsOf(CRadioGroup(&dialog, nFirstId));
    }
    Ids ClickOn(int nId)
    {
        dialog.Click(nId);
        return dialog.Take();
    }

    HearingDialog dialog;
};
} // namespace

TEST_F(RadioGroup, EndsBeforeATabStopALabelOrAControlWithoutAnIdOrAllTheWayRound)
{
    const Member tabStop{119, kRadio | WS_TABSTOP};
    EXPECT_EQ(Find(kTwoGroups, 101), (Ids{101, 102, 103}));
    EXPECT_EQ(Find(kTwoGroups, 111), (Ids{111, 112})) << "side by side with the other";
    EXPECT_EQ(Find(kTwoGroups, 102), (Ids{102, 103, 101})) << "round to the beginning of the group";
    EXPECT_EQ(Find({tabStop, {101, kRadio | WS_TABSTOP}, {102}}, 101), (Ids{101, 102})) << "round the dialog";
    EXPECT_EQ(Find({{101}, tabStop, {111, kFirst}}, 101), Ids{101});
    EXPECT_EQ(Find({{101, kFirst}, {102, SS_LEFT, L"STATIC"}, {103}, kButton}, 101), Ids{101});
    EXPECT_EQ(Find({{101, kFirst}, {102, 0, L"EDIT"}, {103}, kButton}, 101), (Ids{101, 102, 103}));
    EXPECT_EQ(Find({{101, kFirst}, {kNoId, BS_GROUPBOX}, {103}, kButton}, 101), Ids{101});
    EXPECT_EQ(Find({{101, kFirst}, {102}, {102}, {103}, kButton}, 101), (Ids{101, 102}))
        << "an id given twice";
    EXPECT_EQ(Find({{101, kFirst}, kButton}, 101), Ids{101}) << "one button";
    EXPECT_EQ(Find({{101, kFirst}, {102}}, 101), Ids{}) << "the only tab stop";
}

// The system's walk round a group never comes back to a first control that it passes over.
TEST_F(RadioGroup, PassesOverHiddenAndDisabledControlsAndComesToAnEnd)
{
    EXPECT_EQ(Find(kTwoGroups, 101, {102}), (Ids{101, 103}));
    EXPECT_EQ(Find(kTwoGroups, 101, {}, {103}), (Ids{101, 102}));
    EXPECT_EQ(Find(kTwoGroups, 101, {101}), (Ids{101, 102, 103}))
        << "the first one belongs to it all the same";
    EXPECT_EQ(Find(kTwoGroups, 101, {101, 102}, {103}), Ids{101});
}

TEST_F(RadioGroup, IsEmptyWithoutADialogAWindowOrTheControl)
{
    RowDialog noWindow;
    using Place = std::pair<CDialog*, int>;
    for (const auto& [pDialog, nId] : {Place(nullptr, 101), {&dialog, 0}, {&dialog, 199}, {&noWindow, 101}})
    {
        CRadioGroup group(&dialog, 101);
        group.Set(pDialog, nId);
        EXPECT_EQ(group.Count(), 0) << nId;
        EXPECT_EQ(group.GetUniqueId(), 0);
        EXPECT_EQ(group.GetOption(), -1);
        group.SetOption(0);
        group.Enable(false);
        EXPECT_TRUE(dialog[101].IsWindowEnabled() && !dialog.IsDlgButtonChecked(101));
    }
}

TEST_F(RadioGroup, TurnsTheCheckedButtonIntoAnIndexAndBackInSilence)
{
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    other.SetOption(1);
    for (int nOption : {2, -1, 0, 3, 1})
    {
        group.SetOption(nOption);
        const bool bMember = nOption >= 0 && nOption < 3;
        EXPECT_EQ(group.GetOption(), bMember ? nOption : -1);
        EXPECT_EQ(dialog.GetCheckedRadioButton(101, 103), bMember ? 101 + nOption : 0);
    }
    EXPECT_EQ(other.GetOption(), 1) << "the other group keeps its own";
    EXPECT_EQ(dialog.Take(), Ids{});
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

    RowDialog deaf;
    ASSERT_TRUE(deaf.Open(kTwoGroups));
    group.Set(&deaf, 101);
    deaf.Click(102);
    EXPECT_EQ(group.GetOption(), 1) << "no handler is no fault";
    group.SetNotificationHandler(&own);
    deaf.Click(103);
    EXPECT_EQ(own.Take(), Ids{103});
    deaf.DestroyWindow();
}

// A checked button takes the tab stop of its group over from the first one.
TEST_F(RadioGroup, IsFoundAgainAfterAChoice)
{
    CRadioGroup group(&dialog, 101);
    for (int nOption : {2, 1, -1, 0})
    {
        group.SetOption(nOption);
        group.SetNotificationHandler(nullptr);
        group.Set(&dialog, 101);
        EXPECT_EQ(IdsOf(group), (Ids{101, 102, 103})) << nOption;
        EXPECT_EQ(group.GetOption(), nOption);
        EXPECT_EQ(ClickOn(103), Ids{103}) << "told once, to the dialog again";
    }
    dialog.CheckDlgButton(111, BST_CHECKED);
    group.SetOption(-1);
    group.Set(&dialog, 101);
    EXPECT_EQ(IdsOf(group), (Ids{101, 102, 103})) << "the tab stop is the other group's";
    group.Set(&dialog, 111);
    EXPECT_EQ(ClickOn(101), Ids{}) << "what was left is silent";
}

TEST_F(RadioGroup, LeavesTheButtonsToTheDialog)
{
    CRadioGroup group(&dialog, 101);
    CRadioGroup(&dialog, 111);
    group.Empty();
    for (int nId : {102, 112})
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
    for (bool bOn : {false, true})
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
    EXPECT_EQ(IdsOf(group), (Ids{101, 102, 103}));
}

TEST_F(RadioGroup, ACopySharesTheButtonsAndHearsNoClicks)
{
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    CRadioGroup copy(group);
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
