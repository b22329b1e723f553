// The four rules by which a number goes to check boxes and comes back.

#include "GroupDialog.h"

#include <climits>

namespace
{
enum Id : WORD
{
    idFirst = 101,
    idSecond, ///< with a third state
    idOption, ///< two radio buttons
    idEnd = idOption + 2
};

class CheckBoxRules : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const auto form = owtest::DialogTemplate(L"Rules", 160, 20)
                              .Item(L"BUTTON", L"", idFirst, BS_AUTOCHECKBOX | WS_TABSTOP, 4, 4, 12, 12)
                              .Item(L"BUTTON", L"", idSecond, BS_AUTO3STATE | WS_TABSTOP, 24, 4, 12, 12)
                              .Item(L"BUTTON", L"", idOption, BS_AUTORADIOBUTTON | WS_GROUP, 44, 4, 12, 12)
                              .Item(L"BUTTON", L"", idOption + 1, BS_AUTORADIOBUTTON, 64, 4, 12, 12)
                              .Button(L"", idEnd, 84, 4, 12, 12);
        ASSERT_TRUE(dialog.Open(form));
        first.SubclassDlgItem(idFirst, &dialog);
        second.SubclassDlgItem(idSecond, &dialog);
        options.Set(&dialog, idOption);
        ASSERT_EQ(options.Count(), 2);
    }

    /// A box or group as a user sees it: its state, and "off" behind it while it is disabled.
    static std::string Seen(int nState, const CWnd& control)
    {
        return std::to_string(nState) + (control.IsWindowEnabled() ? "" : " off");
    }
    std::string First() const { return Seen(first.GetCheck(), first); }
    std::string Boxes() const { return First() + ", " + Seen(second.GetCheck(), second); }
    std::string BoxAndOption() const
    {
        return First() + ", " + Seen(options.GetOption(), dialog[idOption + 1]);
    }

    GroupDialog dialog;
    CButton first, second;
    CRadioGroup options{nullptr, 0};
};
using Levels = std::vector<std::pair<int, std::string>>; ///< values, and what shows
} // namespace

TEST_F(CheckBoxRules, OneBoxIsAFlag)
{
    for (int nValue : {1, 0, 2, -7})
    {
        const int nRead = nValue != 0;
        gfnObradiCheckBox(&first, true, &nValue);
        EXPECT_EQ(first.GetCheck(), nRead);
        gfnObradiCheckBox(&first, false, &nValue);
        EXPECT_EQ(nValue, nRead);
    }
    second.SetCheck(BST_INDETERMINATE);
    int nValue = 1;
    gfnObradiCheckBox(&second, false, &nValue);
    EXPECT_EQ(nValue, 0) << "indeterminate is not checked";
}

TEST_F(CheckBoxRules, TwoBoxesAreThreeLevels)
{
    for (auto [nValue, seen] : Levels{{1, "1, 0"}, {0, "0, 0 off"}, {3, "1, 0"}, {2, "1, 1"}})
    {
        gfnObradiDvaCheckBoxa(&first, &second, true, &nValue);
        EXPECT_EQ(Boxes(), seen) << nValue;
    }
    const std::tuple<Id, int, const char*> clicks[] = {
        {idSecond, 3, "1, 2"}, {idFirst, 0, "0, 0 off"}, {idFirst, 1, "1, 0"}, {idSecond, 2, "1, 1"}};
    for (const auto& [nId, nRead, seen] : clicks)
    {
        int nValue = -1;
        dialog.Click(nId);
        gfnObradiDvaCheckBoxa(&first, &second, false, &nValue);
        EXPECT_EQ(nValue, nRead); // 3 in the third state
        EXPECT_EQ(Boxes(), seen);
    }
}

TEST_F(CheckBoxRules, AConditionDecidesWhetherABoxIsRead)
{
    for (int nCondition : {0, 1, -2})
        for (const int nSet : {0, 5})
        {
            int nValue = nSet;
            const std::string seen = std::to_string(nSet != 0) + (nCondition ? "" : " off");
            gfnObradiUslovniCheckBox(&first, true, &nCondition, &nValue);
            EXPECT_EQ(First(), seen);
            first.EnableWindow(nCondition == 0); // reading puts that right
            gfnObradiUslovniCheckBox(&first, false, &nCondition, &nValue);
            EXPECT_EQ(nValue, nCondition && nSet ? 1 : nSet) << "without the condition it stays as it was";
            EXPECT_EQ(First(), seen);
        }
}

TEST_F(CheckBoxRules, ABoxSwitchesARadioGroup)
{
    const Levels levels{{2, "1, 1"},  {0, "0, -1 off"}, {1, "1, 0"},
                        {3, "1, -1"}, {-1, "1, -1"},    {INT_MIN, "1, -1"}};
    for (auto [nValue, seen] : levels)
    {
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, true, &nValue);
        EXPECT_EQ(BoxAndOption(), seen) << nValue;
    }
    const std::tuple<int, int, const char*> clicks[] = {
        {idOption + 1, 2, "1, 1"},
        {idFirst, 0, "0, -1 off"},
        {idFirst, 1, "1, 0"}, // on always gives an option
        {idEnd, 1, "1, -1"}}; // and an empty group has no other
    for (const auto& [nId, nRead, seen] : clicks)
    {
        int nValue = -1;
        dialog.Click(nId);
        if (nId == idEnd)
            options.Empty();
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, false, &nValue);
        EXPECT_EQ(nValue, nRead);
        EXPECT_EQ(BoxAndOption(), seen);
    }
}

TEST_F(CheckBoxRules, DoNothingWithoutABoxOrAValue)
{
    int nValue = 7, nCondition = 1;
    CButton noWindow;
    const std::pair<CButton*, int*> lacking[] = {{nullptr, &nValue}, {&noWindow, &nValue}, {&first, nullptr}};
    first.SetCheck(1);
    second.EnableWindow(FALSE);
    for (const bool bSet : {true, false})
        for (const auto& [pCheck, pnValue] : lacking)
        {
            gfnObradiCheckBox(pCheck, bSet, pnValue);
            gfnObradiDvaCheckBoxa(pCheck, &second, bSet, pnValue);
            gfnObradiDvaCheckBoxa(&second, pCheck, bSet, pnValue);
            gfnObradiUslovniCheckBox(pCheck, bSet, &nCondition, pnValue);
            gfnObradiUslovniCheckBox(&first, bSet, nullptr, &nValue);
            gfnObradiChkBoxSaGrupomRadioDugmica(pCheck, options, bSet, pnValue);
        }
    EXPECT_EQ(nValue, 7);
    EXPECT_EQ(Boxes(), "1, 0 off");
    EXPECT_EQ(options.GetOption(), -1);
}
