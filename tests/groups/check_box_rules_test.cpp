// The four rules by which a number goes to check boxes and comes back.

#include "GroupDialog.h"

namespace
{
using Rule = std::function<void(bool bSet, int* pnValue)>;

/// Moves name them a to d.
constexpr WORD idFirst = 101, idSecond = 102, idOption = 103, idOther = 104;

class CheckBoxRules : public ::testing::Test, public GroupDialog
{
protected:
    void SetUp() override
    {
        const auto form = owtest::DialogTemplate(L"Rules", 160, 20)
                              .Button(L"", idFirst, 4, 4, 12, 12, BS_AUTOCHECKBOX)
                              .Button(L"", idSecond, 24, 4, 12, 12, BS_AUTO3STATE)
                              .Button(L"", idOption, 44, 4, 12, 12, BS_AUTORADIOBUTTON | WS_GROUP)
                              .Item(L"BUTTON", L"", idOther, BS_AUTORADIOBUTTON, 64, 4, 12, 12)
                              .Button(L"", idOther + 1, 84, 4, 12, 12);
        ASSERT_TRUE(Open(form));
        first.SubclassDlgItem(idFirst, this);
        second.SubclassDlgItem(idSecond, this);
        options.Set(this, idOption);
    }

    /// "=1" shows the value 1, "b" clicks a control and reads, "?" reads only: what the value is and what is seen then.
    std::string Run(const Rule& rule, const std::vector<int>& controls, const std::string& moves)
    {
        std::istringstream in(moves);
        std::string log;
        for (std::string move; in >> move;)
        {
            const bool bSet = move[0] == '=';
            int nValue = bSet ? std::stoi(move.substr(1)) : -1;
            if (!bSet && move != "?")
                Click(idFirst + move[0] - 'a');
            rule(bSet, &nValue);
            log += (log.empty() ? "" : ", ") + std::to_string(nValue) + ": " + Seen(controls);
        }
        return log;
    }
    CButton first, second;
    CRadioGroup options{nullptr, 0};
};
} // namespace

TEST_F(CheckBoxRules, ShowValuesAndReadThemAgain)
{
    const Rule flag = [&](bool bSet, int* pn) { gfnObradiCheckBox(&second, bSet, pn); };
    EXPECT_EQ(Run(flag, {idSecond}, "=1 =0 =2 b =-7 =0 b"), "1: 1, 0: 0, 2: 1, 0: 2, -7: 1, 0: 0, 1: 1")
        << "indeterminate is not checked";
    const Rule levels = [&](bool bSet, int* pn) { gfnObradiDvaCheckBoxa(&first, &second, bSet, pn); };
    EXPECT_EQ(Run(levels, {idFirst, idSecond}, "=1 =0 =3 =2 b a a b"),
              "1: 1 0, 0: 0 0-, 3: 1 0, 2: 1 1, 3: 1 2, 0: 0 0-, 1: 1 0, 2: 1 1");

    int nCondition = 0;
    const Rule onlyIf = [&](bool bSet, int* pn) { gfnObradiUslovniCheckBox(&first, bSet, &nCondition, pn); };
    EXPECT_EQ(Run(onlyIf, {idFirst}, "? =0 ? =5"), "-1: 1-, 0: 0-, -1: 0-, 5: 1-");
    nCondition = -2;
    EXPECT_EQ(Run(onlyIf, {idFirst}, "? =0 a a =5"), "1: 1, 0: 0, 1: 1, 0: 0, 5: 1") << "reading enables";

    const Rule options = [&](bool bSet, int* pn)
    { gfnObradiChkBoxSaGrupomRadioDugmica(&first, this->options, bSet, pn); };
    EXPECT_EQ(Run(options, {idFirst, idOption, idOther}, "=2 =0 =1 =3 =1 =-1 =-2147483648 d a a"),
              "2: 1 0 1, 0: 0 0- 0-, 1: 1 1 0, 3: 1 0 0, 1: 1 1 0, -1: 1 0 0, -2147483648: 1 0 0, "
              "2: 1 0 1, 0: 0 0- 0-, 1: 1 1 0")
        << "on always gives an option";
    this->options.Empty();
    EXPECT_EQ(Run(options, {idFirst}, "? a"), "1: 1, 0: 0");
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
    EXPECT_EQ(Seen({idFirst, idSecond, idOption, idOther}), "1 0- 0 0");
}
