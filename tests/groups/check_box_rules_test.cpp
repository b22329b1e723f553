// The four rules by which a number goes to check boxes and comes back.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

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
                              .Style(WS_POPUP | WS_CAPTION | WS_VISIBLE)
                              .Item(L"BUTTON", L"", idFirst, BS_AUTOCHECKBOX | WS_TABSTOP, 4, 4, 12, 12)
                              .Item(L"BUTTON", L"", idSecond, BS_AUTO3STATE | WS_TABSTOP, 24, 4, 12, 12)
                              .Item(L"BUTTON", L"", idOption, BS_AUTORADIOBUTTON | WS_GROUP, 44, 4, 12, 12)
                              .Item(L"BUTTON", L"", idOption + 1, BS_AUTORADIOBUTTON, 64, 4, 12, 12)
                              .Button(L"", idEnd, 84, 4, 12, 12);
        ASSERT_TRUE(dialog.CreateIndirect(form.get()) && owtest::Activate(dialog));
        first.SubclassDlgItem(idFirst, &dialog);
        second.SubclassDlgItem(idSecond, &dialog);
        options.Set(&dialog, idOption);
        ASSERT_EQ(options.Count(), 2);
    }
    void TearDown() override { dialog.DestroyWindow(); }

    /// A box or group as a user sees it: its state, and "off" behind it while it is disabled.
    static std::string Seen(int nState, const CWnd& control)
    {
        return std::to_string(nState) + (control.IsWindowEnabled() ? "" : " off");
    }
    std::string First() const { return Seen(first.GetCheck(), first); }
    std::string Boxes() const { return First() + ", " + Seen(second.GetCheck(), second); }
    std::string BoxAndOption() const
    {
        return First() + ", " + Seen(options.GetOption(), *dialog.GetDlgItem(idOption + 1));
    }

    CDialog dialog;
    CButton first, second;
    CRadioGroup options{nullptr, 0};
};
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
    const std::pair<int, const char*> levels[] = {{1, "1, 0"}, {0, "0, 0 off"}, {2, "1, 1"}, {3, "1, 0"}};
    for (auto [nValue, seen] : levels)
    {
        gfnObradiDvaCheckBoxa(&first, &second, true, &nValue);
        EXPECT_EQ(Boxes(), seen) << nValue;
    }
    const auto click = [&](CButton& box)
    {
        int nValue = -1;
        owtest::Click(box);
        gfnObradiDvaCheckBoxa(&first, &second, false, &nValue);
        return std::to_string(nValue) + ": " + Boxes();
    };
    EXPECT_EQ(click(second), "2: 1, 1");
    EXPECT_EQ(click(second), "3: 1, 2") << "the third state reads 3";
    EXPECT_EQ(click(first), "0: 0, 0 off");
    EXPECT_EQ(click(first), "1: 1, 0");
}

TEST_F(CheckBoxRules, AConditionDecidesWhetherABoxIsRead)
{
    for (int nCondition : {0, 1, -2})
    {
        for (int nSet : {0, 5})
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
}

TEST_F(CheckBoxRules, ABoxSwitchesARadioGroup)
{
    const std::pair<int, const char*> values[] = {{2, "1, 1"},  {0, "0, -1 off"}, {1, "1, 0"},
                                                  {3, "1, -1"}, {-1, "1, -1"},    {INT_MIN, "1, -1"}};
    for (auto [nValue, seen] : values)
    {
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, true, &nValue);
        EXPECT_EQ(BoxAndOption(), seen) << nValue;
    }
    int nValue = -1;
    const auto click = [&](int nId)
    {
        owtest::Click(*dialog.GetDlgItem(nId));
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, false, &nValue);
        return std::to_string(nValue) + ": " + BoxAndOption();
    };
    EXPECT_EQ(click(idOption + 1), "2: 1, 1");
    EXPECT_EQ(click(idFirst), "0: 0, -1 off");
    EXPECT_EQ(click(idFirst), "1: 1, 0") << "on always gives an option";
    options.Empty();
    EXPECT_EQ(click(idEnd), "1: 1, -1") << "an empty group has no other";
}

TEST_F(CheckBoxRules, DoNothingWithoutABoxOrAValue)
{
    int nValue = 7, nCondition = 1;
    CButton noWindow;
    CButton* const pNone = &noWindow;
    first.SetCheck(1);
    second.EnableWindow(FALSE);
    for (bool bSet : {true, false})
    {
        gfnObradiCheckBox(nullptr, bSet, &nValue);
        gfnObradiCheckBox(pNone, bSet, &nValue);
        gfnObradiCheckBox(&first, bSet, nullptr);
        gfnObradiDvaCheckBoxa(pNone, &second, bSet, &nValue);
        gfnObradiDvaCheckBoxa(&first, pNone, bSet, &nValue);
        gfnObradiDvaCheckBoxa(&first, &second, bSet, nullptr);
        gfnObradiUslovniCheckBox(pNone, bSet, &nCondition, &nValue);
        gfnObradiUslovniCheckBox(&first, bSet, nullptr, &nValue);
        gfnObradiUslovniCheckBox(&first, bSet, &nCondition, nullptr);
        gfnObradiChkBoxSaGrupomRadioDugmica(pNone, options, bSet, &nValue);
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, bSet, nullptr);
    }
    EXPECT_EQ(nValue, 7);
    EXPECT_EQ(Boxes(), "1, 0 off");
    EXPECT_EQ(options.GetOption(), -1);
}
