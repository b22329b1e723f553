// The four rules by which a number goes to check boxes and comes back.

#include "GroupDialog.h"

#include <climits>
#include <functional>

namespace
{
using Rule = std::function<void(bool bSet, int* pnValue)>;

enum Id : WORD
{
    idFirst = 101,
    idSecond, ///< with a third state
    idOption, ///< two radio buttons
    idEnd = idOption + 2
};

/// A value that is shown, or is read after a click, and what is seen then.
struct Step
{
    int nClicked; ///< 0: the value is shown
    int nValue;
    const char* seen;
};
using Steps = std::vector<Step>;

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
    }

    void Expect(const Rule& rule, const std::vector<int>& controls, const Steps& steps)
    {
        for (const auto& [nClicked, nExpected, seen] : steps)
        {
            int nValue = nClicked ? -1 : nExpected;
            if (nClicked)
                dialog.Click(nClicked);
            rule(nClicked == 0, &nValue);
            EXPECT_EQ(nValue, nExpected) << seen;
            EXPECT_EQ(dialog.Seen(controls), seen);
        }
    }

    GroupDialog dialog;
    CButton first, second;
    CRadioGroup options{nullptr, 0};
};
} // namespace

TEST_F(CheckBoxRules, OneBoxIsAFlag)
{
    // Indeterminate is not checked.
    const Steps steps{{0, 1, "1"},  {0, 0, "0"}, {0, 2, "1"},       {idSecond, 0, "2"},
                      {0, -7, "1"}, {0, 0, "0"}, {idSecond, 1, "1"}};
    Expect([&](bool bSet, int* pnValue) { gfnObradiCheckBox(&second, bSet, pnValue); }, {idSecond}, steps);
}

TEST_F(CheckBoxRules, TwoBoxesAreThreeLevels)
{
    const Steps steps{{0, 1, "1 0"},        {0, 0, "0 0-"},       {0, 3, "1 0"},       {0, 2, "1 1"},
                      {idSecond, 3, "1 2"}, {idFirst, 0, "0 0-"}, {idFirst, 1, "1 0"}, {idSecond, 2, "1 1"}};
    const auto rule = [&](bool bSet, int* pnValue) { gfnObradiDvaCheckBoxa(&first, &second, bSet, pnValue); };
    Expect(rule, {idFirst, idSecond}, steps);
}

TEST_F(CheckBoxRules, AConditionDecidesWhetherABoxIsRead)
{
    int nCondition = 0;
    const auto rule = [&](bool bSet, int* pnValue)
    { gfnObradiUslovniCheckBox(&first, bSet, &nCondition, pnValue); };
    Expect(rule, {idFirst}, {{idEnd, -1, "0-"}, {0, 5, "1-"}});
    nCondition = 1;
    Expect(rule, {idFirst}, {{idEnd, 1, "1"}, {0, 0, "0"}, {0, 5, "1"}}); // reading enables it, too
    nCondition = -2;
    Expect(rule, {idFirst}, {{idFirst, 0, "0"}, {0, 5, "1"}});
}

TEST_F(CheckBoxRules, ABoxSwitchesARadioGroup)
{
    // On always gives an option.
    const Steps steps{
        {0, 2, "1 0 1"},         {0, 0, "0 0- 0-"},    {0, 1, "1 1 0"},       {0, 3, "1 0 0"},
        {0, 1, "1 1 0"},         {0, -1, "1 0 0"},     {0, INT_MIN, "1 0 0"}, {idOption + 1, 2, "1 0 1"},
        {idFirst, 0, "0 0- 0-"}, {idFirst, 1, "1 1 0"}};
    const auto rule = [&](bool bSet, int* pnValue)
    { gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, bSet, pnValue); };
    Expect(rule, {idFirst, idOption, idOption + 1}, steps);
    options.Empty();
    Expect(rule, {idFirst}, {{idEnd, 1, "1"}, {idFirst, 0, "0"}});
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
    EXPECT_EQ(dialog.Seen({idFirst, idSecond, idOption, idOption + 1}), "1 0- 0 0");
}
