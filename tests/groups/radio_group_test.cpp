// Radio groups: which controls belong to one, the option, clicks, copies, and the life of the buttons.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Handles.h"
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

/// A control of a row of a dialog, from left to right.
struct Member
{
    WORD id;
    DWORD style = kRadio;
    const wchar_t* windowClass = L"BUTTON";
};

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
    bool Open(const std::vector<Member>& row)
    {
        owtest::DialogTemplate form(L"Groups", 240, 30);
        short x = 4;
        for (const Member& member : row)
        {
            form.Item(member.windowClass, std::to_wstring(member.id % 100), member.id, member.style, x, 8, 22,
                      12);
            x += 24;
        }
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }
    void Click(int nId) { owtest::Click(*GetDlgItem(nId)); }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        ShowWindow(SW_SHOW);
        return FALSE;
    }
};

/// A dialog that hears the clicks itself.
class HearingDialog : public RowDialog, public Handler
{
};

Ids IdsOf(const CRadioGroup& group)
{
    Ids ids(group.Count());
    for (int nId = 0; nId <= 0xFFFF; ++nId)
    {
        if (const int nIndex = group.Find(nId); nIndex >= 0)
            ids[nIndex] = nId;
    }
    return ids;
}

using Row = std::vector<Member>;

const Row kTwoGroups = {{101, kFirst}, {102}, {103},
                        {111, kFirst}, {112}, {120, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP}};

class RadioGroup : public ::testing::Test
{
protected:
    void TearDown() override { dialog.DestroyWindow(); }

    /// The ids of a group in a dialog of its own.
    Ids Find(const Row& row, int nFirstId, const Ids& hidden = {}, const Ids& disabled = {})
    {
        dialog.DestroyWindow();
        EXPECT_TRUE(dialog.Open(row));
        for (int nId : hidden)
            dialog.GetDlgItem(nId)->ShowWindow(SW_HIDE);
        for (int nId : disabled)
            dialog.GetDlgItem(nId)->EnableWindow(FALSE);
        const CRadioGroup group(&dialog, nFirstId);
        EXPECT_EQ(group.GetUniqueId(), group.Count() ? nFirstId : 0);
        return IdsOf(group);
    }

    HearingDialog dialog;
};
} // namespace

TEST_F(RadioGroup, EndsBeforeTheNextTabStopALabelOrAControlWithoutAnId)
{
    EXPECT_EQ(Find(kTwoGroups, 101), (Ids{101, 102, 103}));
    EXPECT_EQ(Find(kTwoGroups, 111), (Ids{111, 112})) << "side by side with the other";
    EXPECT_EQ(Find(kTwoGroups, 102), (Ids{102, 103, 101}))
        << "from inside, round to the beginning of its group";

    const Member button{120, BS_PUSHBUTTON | WS_TABSTOP};
    EXPECT_EQ(Find({{101, kFirst}, {102}, button, {103}}, 101), (Ids{101, 102}))
        << "a tab stop without WS_GROUP";
    EXPECT_EQ(Find({{101, kFirst}, {102}, {105, SS_LEFT, L"STATIC"}, {103}, button}, 101), (Ids{101, 102}));
    EXPECT_EQ(Find({{101, kFirst}, {102}, {105, 0, L"EDIT"}, {103}, button}, 101), (Ids{101, 102, 105, 103}))
        << "only a label ends it";
    EXPECT_EQ(Find({{101, kFirst}, {102}, {kNoId, BS_GROUPBOX}, {103}, button}, 101), (Ids{101, 102}));
    EXPECT_EQ(Find({{105, SS_LEFT | WS_TABSTOP, L"STATIC"}, button}, 105), Ids{});
    EXPECT_EQ(Find({{kNoId}, button}, kNoId), Ids{});
    EXPECT_EQ(Find({button, {101, kRadio | WS_TABSTOP}, {102}, {103}}, 101), (Ids{101, 102, 103}))
        << "round the end of the dialog to the tab stop at its beginning";
}

TEST_F(RadioGroup, IsEmptyWhereTheOnlyTabStopIsItsOwn)
{
    EXPECT_EQ(Find({{101, kFirst}}, 101), Ids{});
    EXPECT_EQ(Find({{101, kFirst}, {102}}, 101), Ids{});
    EXPECT_EQ(Find({{101, kFirst}, {120, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP}}, 101), Ids{101})
        << "a lone button beside another tab stop is a group of one";
}

TEST_F(RadioGroup, IsEmptyWithoutADialogAWindowOrTheControl)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    RowDialog noWindow;
    for (const auto& [pDialog, nId] : {std::pair<CDialog*, int>(nullptr, 101),
                                       {&dialog, 0},
                                       {&dialog, 199},
                                       {&dialog, -1},
                                       {&noWindow, 101}})
    {
        CRadioGroup group(&dialog, 101);
        group.Set(pDialog, nId);
        EXPECT_EQ(group.Count(), 0) << nId;
        EXPECT_EQ(group.GetUniqueId(), 0);
        EXPECT_EQ(group.GetOption(), -1);
        group.SetOption(0);
        group.Enable(false);
        group.Show(false);
    }
    EXPECT_EQ(dialog.IsDlgButtonChecked(101), 0u);
    EXPECT_TRUE(dialog.GetDlgItem(101)->IsWindowEnabled() && dialog.GetDlgItem(101)->IsWindowVisible());
}

// The system's walk round a group never comes back to a first control that it passes over.
TEST_F(RadioGroup, PassesOverHiddenAndDisabledControlsAndComesToAnEnd)
{
    EXPECT_EQ(Find(kTwoGroups, 101, {102}), (Ids{101, 103}));
    EXPECT_EQ(Find(kTwoGroups, 101, {}, {103}), (Ids{101, 102}));
    EXPECT_EQ(Find(kTwoGroups, 101, {101}), (Ids{101, 102, 103}))
        << "the first one belongs to it all the same";
    EXPECT_EQ(Find(kTwoGroups, 101, {}, {101, 103}), (Ids{101, 102}));
    EXPECT_EQ(Find(kTwoGroups, 101, {101, 102, 103}), Ids{101});
    EXPECT_EQ(Find({{101, kFirst}, {102}, {102}, {103}, {120, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP}}, 101),
              (Ids{101, 102}))
        << "an id that was given twice ends it";
}

TEST_F(RadioGroup, TurnsTheCheckedButtonIntoAnIndexAndBack)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    EXPECT_EQ(group.GetOption(), -1);
    other.SetOption(1);
    for (int nOption : {2, 0, 1})
    {
        group.SetOption(nOption);
        EXPECT_EQ(group.GetOption(), nOption);
        EXPECT_EQ(dialog.GetCheckedRadioButton(101, 103), 101 + nOption);
    }
    for (int nNone : {-1, 3})
    {
        group.SetOption(1);
        group.SetOption(nNone);
        EXPECT_EQ(group.GetOption(), -1) << nNone;
    }
    EXPECT_EQ(other.GetOption(), 1) << "the other group keeps its own";
    EXPECT_EQ(dialog.Take(), Ids{}) << "what the program does is not reported";
    EXPECT_EQ(group.Find(103), 2);
    EXPECT_EQ(group.Find(111), -1);
}

TEST_F(RadioGroup, TellsTheDialogOfClicksAndKeysAfterTheOptionHasChanged)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    dialog.Click(102);
    EXPECT_EQ(group.GetOption(), 1);
    EXPECT_EQ(dialog.Take(), Ids{102});
    owtest::Press(VK_RIGHT);
    EXPECT_EQ(group.GetOption(), 2);
    EXPECT_EQ(dialog.Take(), Ids{103});
    dialog.Click(112);
    EXPECT_EQ(dialog.Take(), Ids{112});
    EXPECT_EQ(group.GetOption(), 2);

    Handler own;
    group.SetNotificationHandler(&own);
    dialog.Click(101);
    EXPECT_EQ(own.Take(), Ids{101});
    EXPECT_EQ(dialog.Take(), Ids{});
    group.SetNotificationHandler(nullptr);
    dialog.Click(102);
    EXPECT_EQ(group.GetOption(), 1) << "silent, and at work";
}

TEST_F(RadioGroup, IsSilentOnADialogThatIsNoHandlerUntilItIsGivenOne)
{
    RowDialog deaf;
    ASSERT_TRUE(deaf.Open(kTwoGroups));
    CRadioGroup group(&deaf, 101);
    deaf.Click(102);
    EXPECT_EQ(group.GetOption(), 1);
    Handler handler;
    group.SetNotificationHandler(&handler);
    deaf.Click(103);
    EXPECT_EQ(handler.Take(), Ids{103});
    deaf.DestroyWindow();
}

TEST_F(RadioGroup, ShowsAndEnablesEachOfItsControls)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    CRadioGroup group(&dialog, 101);
    for (bool bOn : {false, true})
    {
        group.Show(bOn);
        group.Enable(bOn);
        for (int nId : {101, 102, 103})
        {
            EXPECT_EQ(dialog.GetDlgItem(nId)->IsWindowVisible() != FALSE, bOn) << nId;
            EXPECT_EQ(dialog.GetDlgItem(nId)->IsWindowEnabled() != FALSE, bOn) << nId;
        }
        EXPECT_TRUE(dialog.GetDlgItem(111)->IsWindowVisible() && dialog.GetDlgItem(111)->IsWindowEnabled());
    }
}

// A checked button takes the tab stop of its group over from the first one.
TEST_F(RadioGroup, IsFoundAgainAfterAChoice)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    CRadioGroup group(&dialog, 101);
    for (int nOption : {2, 1, -1, 0})
    {
        group.SetOption(nOption);
        group.SetNotificationHandler(nullptr);
        group.Set(&dialog, 101);
        EXPECT_EQ(IdsOf(group), (Ids{101, 102, 103})) << nOption;
        EXPECT_EQ(group.GetOption(), nOption);
        dialog.Click(103);
        EXPECT_EQ(dialog.Take(), Ids{103}) << "told once, to the dialog again";
    }
    group.Set(&dialog, 111);
    EXPECT_EQ(IdsOf(group), (Ids{111, 112}));
    dialog.Click(101);
    EXPECT_EQ(dialog.Take(), Ids{}) << "what was left is silent";
}

TEST_F(RadioGroup, EndsBeforeATabStopThatIsNotItsOwnWhateverIsChecked)
{
    ASSERT_TRUE(dialog.Open({{101}, {102, kRadio | WS_TABSTOP}, {111, kFirst}, {112}}));
    EXPECT_EQ(IdsOf(CRadioGroup(&dialog, 101)), Ids{101}) << "it is not checked";
    dialog.CheckDlgButton(111, BST_CHECKED);
    dialog.GetDlgItem(102)->ModifyStyle(WS_TABSTOP, 0);
    EXPECT_EQ(IdsOf(CRadioGroup(&dialog, 101)), (Ids{101, 102})) << "it is of another group";
}

TEST_F(RadioGroup, LeavesTheButtonsToTheDialogWhenItGoes)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    const owtest::HandleCount before = owtest::CountHandles();
    CRadioGroup group(&dialog, 101);
    group.Empty();
    EXPECT_EQ(group.Count(), 0);
    EXPECT_EQ(group.GetOption(), -1);
    {
        CRadioGroup goes(&dialog, 101);
    }
    dialog.Click(102);
    EXPECT_EQ(dialog.IsDlgButtonChecked(102), 1u) << "a radio button as any other";
    EXPECT_EQ(dialog.Take(), Ids{});
    EXPECT_EQ(owtest::CountHandles(), before);
}

TEST_F(RadioGroup, OutlivesTheWindowOfItsDialog)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    CRadioGroup group(&dialog, 101);
    group.SetOption(1);
    dialog.DestroyWindow();
    EXPECT_EQ(group.GetOption(), -1);
    group.SetOption(0);
    group.Show(true);
    group.Enable(true);
    EXPECT_EQ(IdsOf(group), (Ids{101, 102, 103}));

    ASSERT_TRUE(dialog.Open(kTwoGroups));
    dialog.GetDlgItem(102)->DestroyWindow();
    group.Enable(false);
    EXPECT_FALSE(dialog.GetDlgItem(103)->IsWindowEnabled()) << "a control that is gone is passed over";
    group.Enable(true);
    group.Set(&dialog, 101);
    EXPECT_EQ(IdsOf(group), (Ids{101, 103}));
}

TEST_F(RadioGroup, LeavesAControlToTheObjectThatItHas)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    Handler first;
    CExtButton own(&first);
    ASSERT_TRUE(own.SubclassDlgItem(102, &dialog));
    CRadioGroup group(&dialog, 101), second(&dialog, 101);
    EXPECT_EQ(second.Count(), 3);
    dialog.Click(102);
    EXPECT_EQ(first.Take(), Ids{102});
    dialog.Click(103);
    EXPECT_EQ(dialog.Take(), Ids{103}) << "by the first group alone";
    EXPECT_EQ(group.GetOption(), 2);
    second.Empty();
    dialog.Click(101);
    EXPECT_EQ(dialog.Take(), Ids{101});
}

TEST_F(RadioGroup, ACopySharesTheButtonsAndHearsNoClicks)
{
    ASSERT_TRUE(dialog.Open(kTwoGroups));
    CRadioGroup group(&dialog, 101), other(&dialog, 111);
    CRadioGroup copy(group);
    EXPECT_EQ(IdsOf(copy), (Ids{101, 102, 103}));
    EXPECT_TRUE(copy == group && copy != other);
    copy.SetOption(2);
    EXPECT_EQ(group.GetOption(), 2);
    dialog.Click(102);
    EXPECT_EQ(copy.GetOption(), 1);
    EXPECT_EQ(dialog.Take(), Ids{102}) << "from the group alone";

    const CRadioGroup& self = group;
    group = self;
    dialog.Click(103);
    EXPECT_EQ(dialog.Take(), Ids{103}) << "a copy onto itself is none";

    group = other;
    EXPECT_EQ(IdsOf(group), (Ids{111, 112}));
    EXPECT_TRUE(group == other);
    dialog.Click(101);
    EXPECT_EQ(dialog.Take(), Ids{}) << "the former buttons are let go";
    dialog.Click(112);
    EXPECT_EQ(dialog.Take(), Ids{112});
    EXPECT_EQ(group.GetOption(), 1);
    group.Empty();
    EXPECT_TRUE(group == CRadioGroup(nullptr, 0));
    EXPECT_EQ(other.GetOption(), 1);
}
