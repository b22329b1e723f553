// Radio groups: which controls belong to one, the option, clicks, copies, and the life of the buttons.

#include "GroupDialog.h"

namespace
{
const char* const kTwoGroups = "101R* 102R 103R 111R* 112R 120B*";

/// Controls from left to right by id: R radio buttons, B push buttons, F frames, L labels, E edits; * begins a group
/// with a tab stop, + is a tab stop, ! disabled.
owtest::DialogTemplate Form(const std::string& row)
{
    const std::map<char, std::pair<const wchar_t*, DWORD>> kinds{{'R', {L"BUTTON", BS_AUTORADIOBUTTON}},
                                                                 {'B', {L"BUTTON", 0}},
                                                                 {'F', {L"BUTTON", BS_GROUPBOX}},
                                                                 {'L', {L"STATIC", 0}},
                                                                 {'E', {L"EDIT", 0}}};
    const std::map<char, DWORD> marks{
        {'\0', 0}, {'*', WS_GROUP | WS_TABSTOP}, {'+', WS_TABSTOP}, {'!', WS_DISABLED}};
    owtest::DialogTemplate form(L"Groups", 240, 30);
    std::istringstream in(row);
    short x = 4;
    for (std::string item; in >> item; x += 16)
    {
        size_t nKind = 0;
        const auto id = static_cast<WORD>(std::stoi(item, &nKind));
        const auto& [windowClass, style] = kinds.at(item[nKind]);
        form.Item(windowClass, L"", id, style | marks.at(item.c_str()[nKind + 1]), x, 8, 12, 12);
    }
    return form;
}

struct Handler : AButtonSTNotificationHandler
{
    std::string clicks;
    void OnButtonClicked(int nId) override { clicks += ' ' + std::to_string(nId); }
};

std::string IdsOf(const CRadioGroup& group)
{
    std::string ids;
    for (int i = 0; i < group.Count(); ++i)
        for (int nId = 100; nId <= 120; ++nId)
            if (group.Find(nId) == i)
                (ids += i ? " " : "") += std::to_string(nId);
    return ids;
}

class RadioGroup : public ::testing::Test, public GroupDialog, public Handler
{
protected:
    void SetUp() override { ASSERT_TRUE(Open(Form(kTwoGroups))); }
    /// The buttons of both groups, and what was clicked since the last time.
    std::string State() override { return Seen({101, 102, 103, 111, 112}) + ':' + std::exchange(clicks, {}); }
    static void Tell(AButtonSTNotificationHandler& group, int nId) { group.OnButtonClicked(nId); }
};
} // namespace

// The system's walk round a group never comes back to a first control that it passes over.
TEST_F(RadioGroup, EndsBeforeATabStopALabelOrAControlWithoutAnIdOrAllTheWayRound)
{
    const std::tuple<const char*, int, const char*, std::vector<int>> rows[] = {
        {kTwoGroups, 101, "101 102 103", {}},
        {kTwoGroups, 102, "102 103 101", {}},     // round to the beginning of the group
        {"119R+ 101R+ 102R", 101, "101 102", {}}, // round the dialog
        {"101R 119R+ 111R*", 101, "101", {}},
        {"101R* 102L 103R 120B*", 101, "101", {}},
        {"101R* 102E 103R 120B*", 101, "101 102 103", {}},
        {"101R* 65535F 103R 120B*", 101, "101", {}},
        {"101R* 102R 102R 103R 120B*", 101, "101 102", {}}, // an id given twice
        {"101R* 102R", 101, "", {}},                        // the only tab stop
        {kTwoGroups, 101, "101 102 103", {101}},            // the first one belongs to it all the same
        {"101R* 102R 103R! 111R*", 101, "101", {101, 102}},
    };
    for (const auto& [controls, nFirstId, found, hidden] : rows)
    {
        ASSERT_TRUE(Open(Form(controls)));
        for (const int nId : hidden)
            (*this)[nId].ShowWindow(SW_HIDE);
        EXPECT_EQ(IdsOf(CRadioGroup(this, nFirstId)), found) << controls;
    }
}

TEST_F(RadioGroup, IsEmptyWithoutADialogAWindowOrTheControl)
{
    GroupDialog noWindow;
    const std::pair<CDialog*, int> places[] = {{nullptr, 101}, {this, 0}, {this, 199}, {&noWindow, 101}};
    for (const auto& [pDialog, nId] : places)
    {
        CRadioGroup group(this, 101);
        group.Set(pDialog, nId);
        group.SetOption(0);
        group.Enable(false);
        Tell(group, 101);
        EXPECT_TRUE(group.Count() == 0 && group.GetUniqueId() == 0 && group.GetOption() == -1) << nId;
        EXPECT_EQ(State(), "0 0 0 0 0:");
    }
}

// A checked button takes the tab stop of its group over from the first one.
TEST_F(RadioGroup, TurnsTheCheckedButtonIntoAnIndexAndBackInSilenceAndIsFoundAgain)
{
    CRadioGroup group(this, 101), other(this, 111);
    other.SetOption(1);
    const std::pair<int, const char*> options[] = {
        {2, "0 0 1 0 1:"}, {-1, "0 0 0 0 1:"}, {0, "1 0 0 0 1:"}, {3, "0 0 0 0 1:"}, {1, "0 1 0 0 1:"}};
    for (const auto& [nOption, seen] : options)
    {
        group.SetOption(nOption);
        EXPECT_EQ(group.GetOption(), nOption < 3 ? nOption : -1);
        EXPECT_EQ(State(), seen) << "the other group keeps its own";
        group.SetNotificationHandler(nullptr);
        group.Set(this, 101);
        EXPECT_EQ(IdsOf(group), "101 102 103") << nOption;
        Play({{[&] { Click(103); }, "0 0 1 0 1: 103"}}); // told once, to the dialog again
    }
    group.SetOption(-1);
    group.Set(this, 101);
    EXPECT_EQ(IdsOf(group), "101 102 103") << "the tab stop is the other group's";
    other.Empty();
    group.Set(this, 111);
    Play({{[&] { Click(101); }, "1 0 0 0 1:"}}); // what was left is silent, and a radio button as any other
}

TEST_F(RadioGroup, TellsItsHandlerOfClicksAndKeys)
{
    CRadioGroup group(this, 101), other(this, 111);
    Handler own;
    Play({{[&] { Click(102); }, "0 1 0 0 0: 102"},
          {[&] { owtest::Press(VK_RIGHT); }, "0 0 1 0 0: 103"},
          {[&] { Click(112); }, "0 0 1 0 1: 112"},
          {[&] { group.SetNotificationHandler(&own); }, "0 0 1 0 1:"},
          {[&] { Click(101); }, "1 0 0 0 1:"},
          {[&] { group.SetNotificationHandler(nullptr); }, "1 0 0 0 1:"},
          {[&] { Click(102); }, "0 1 0 0 1:"}});
    EXPECT_EQ(own.clicks, " 101");
}

// The system's click would go round the group for ever, and that on another button would pass them over.
TEST_F(RadioGroup, AButtonThatIsHiddenOrDisabledTakesNoClickAndIsClearedByThoseOnOthers)
{
    CRadioGroup group(this, 101);
    group.SetOption(1);
    (*this)[102].ShowWindow(SW_HIDE);
    (*this)[103].EnableWindow(FALSE);
    for (const int nId : {102, 103})
    {
        (*this)[nId].SendMessage(BM_CLICK);
        for (const UINT message : {WM_KEYDOWN, WM_KEYUP})
            (*this)[nId].SendMessage(message, VK_SPACE);
        EXPECT_EQ((*this)[nId].SendMessage(BM_GETSTATE) & BST_PUSHED, 0) << "let go";
        EXPECT_EQ(clicks + std::to_string(group.GetOption()), "1");
    }
    Play({{[&] { Click(101); }, "1  0- 0 0: 101"},
          {[&] { (*this)[102].ShowWindow(SW_SHOW); }, "1 0 0- 0 0:"},
          {[&] { (*this)[101].ShowWindow(SW_HIDE); }, " 0 0- 0 0:"},
          {[&] { (*this)[101].SendMessage(BM_CLICK); }, " 0 0- 0 0:"}}); // the first one neither
}

TEST_F(RadioGroup, LeavesAControlToTheObjectThatItHas)
{
    Handler first;
    CExtButton own(&first);
    ASSERT_TRUE(own.SubclassDlgItem(102, this));
    CRadioGroup group(this, 101), second(this, 101);
    Play({{[&] { Click(102); }, "0 1 0 0 0:"},
          {[&] { second.Empty(); }, "0 1 0 0 0:"},
          {[&] { Click(103); }, "0 0 1 0 0: 103"}}); // the group that came first hears it
    EXPECT_EQ(first.clicks, " 102");
}

TEST_F(RadioGroup, ShowsAndEnablesItsControlsWhileTheyAreThere)
{
    CRadioGroup group(this, 101);
    (*this)[102].DestroyWindow(); // is passed over
    for (const bool bOn : {false, true})
    {
        group.Show(bOn);
        group.Enable(!bOn);
        EXPECT_EQ(Seen({101, 103, 111}), bOn ? "0- 0- 0" : "  0");
    }
    DestroyWindow();
    group.SetOption(0);
    group.Show(true);
    EXPECT_EQ(group.GetOption(), -1);
}

TEST_F(RadioGroup, ACopySharesTheButtonsAndHearsNoClicks)
{
    CRadioGroup group(this, 101), other(this, 111), copy(group);
    const CRadioGroup& self = group;
    EXPECT_TRUE(copy == group && copy != other);
    other.SetOption(0);
    Play({{[&] { copy.SetOption(2); }, "0 0 1 1 0:"},
          {[&] { Click(102); }, "0 1 0 1 0: 102"}, // from the group alone
          {[&] { Tell(copy, 111); },
           "0 1 0 1 0: 111"}, // but it has the handler; another's button clears nothing
          {[&] { group = self; }, "0 1 0 1 0:"},
          {[&] { Click(103); }, "0 0 1 1 0: 103"}, // a copy onto itself is none
          {[&] { group = other; }, "0 0 1 1 0:"},
          {[&] { Click(101); }, "1 0 0 1 0:"}, // the former buttons are let go
          {[&] { Click(112); }, "1 0 0 0 1: 112"}});
    EXPECT_TRUE(copy.GetOption() == 0 && group.GetOption() == 1);
    EXPECT_EQ(IdsOf(group), "111 112");
}
