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
    idOption, ///< three radio buttons
    idEnd = idOption + 3
};

/// Boxes and options for every rule.
class RulesDialog : public CDialog
{
public:
    CButton first, second;
    CRadioGroup options{nullptr, 0};

    bool Open()
    {
        const auto form =
            owtest::DialogTemplate(L"Rules", 160, 30)
                .Item(L"BUTTON", L"First", idFirst, BS_AUTOCHECKBOX | WS_TABSTOP, 4, 4, 40, 10)
                .Item(L"BUTTON", L"Second", idSecond, BS_AUTO3STATE | WS_TABSTOP, 48, 4, 40, 10)
                .Item(L"BUTTON", L"1", idOption, BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 4, 16, 20, 10)
                .Item(L"BUTTON", L"2", idOption + 1, BS_AUTORADIOBUTTON, 28, 16, 20, 10)
                .Item(L"BUTTON", L"3", idOption + 2, BS_AUTORADIOBUTTON, 52, 16, 20, 10)
                .Item(L"BUTTON", L"End", idEnd, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP, 100, 14, 30, 12);
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, idFirst, first);
        DDX_Control(pDX, idSecond, second);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        options.Set(this, idOption);
        ShowWindow(SW_SHOW);
        return FALSE;
    }
};

class CheckBoxRules : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Open()); }
    void TearDown() override { dialog.DestroyWindow(); }

    /// A box as a user sees it: its state, and "off" behind it while it is disabled.
    static std::string Seen(const CButton& box)
    {
        return std::to_string(box.GetCheck()) + (box.IsWindowEnabled() ? "" : " off");
    }
    std::string SeenOptions() const
    {
        bool bEnabled = true;
        for (int nId = idOption; nId < idEnd; ++nId)
            bEnabled = bEnabled && dialog.GetDlgItem(nId)->IsWindowEnabled();
        return std::to_string(options.GetOption()) + (bEnabled ? "" : " off");
    }

    RulesDialog dialog;
    CButton& first = dialog.first;
    CButton& second = dialog.second;
    CRadioGroup& options = dialog.options;
};
} // namespace

TEST_F(CheckBoxRules, OneBoxIsAFlag)
{
    for (const auto& [nSet, nRead] : {std::pair(1, 1), {0, 0}, {2, 1}, {-7, 1}})
    {
        int nValue = nSet;
        gfnObradiCheckBox(&first, true, &nValue);
        EXPECT_EQ(first.GetCheck(), nRead) << nSet;
        EXPECT_EQ(nValue, nSet) << "the value is only read";
        gfnObradiCheckBox(&first, false, &nValue);
        EXPECT_EQ(nValue, nRead);
    }
    int nValue = 0;
    owtest::Click(first);
    gfnObradiCheckBox(&first, false, &nValue);
    EXPECT_EQ(nValue, 0) << "the last value set was not 0, so the click took the check away";
    second.SetCheck(BST_INDETERMINATE);
    nValue = 1;
    gfnObradiCheckBox(&second, false, &nValue);
    EXPECT_EQ(nValue, 0) << "indeterminate is not checked";
}

TEST_F(CheckBoxRules, TwoBoxesAreThreeLevels)
{
    struct
    {
        int nValue;
        const char *first, *second;
    } const levels[] = {{1, "1", "0"}, {0, "0", "0 off"}, {2, "1", "1"}, {3, "1", "0"}, {-1, "1", "0"}};
    for (const auto& level : levels)
    {
        int nValue = level.nValue;
        gfnObradiDvaCheckBoxa(&first, &second, true, &nValue);
        EXPECT_EQ(Seen(first), level.first) << nValue;
        EXPECT_EQ(Seen(second), level.second) << nValue;
        EXPECT_EQ(nValue, level.nValue);
    }

    const auto read = [&]
    {
        int nValue = -1;
        gfnObradiDvaCheckBoxa(&first, &second, false, &nValue);
        return std::to_string(nValue) + ": " + Seen(first) + ", " + Seen(second);
    };
    first.SetCheck(0);
    second.EnableWindow(FALSE);
    owtest::Click(first);
    EXPECT_EQ(read(), "1: 1, 0");
    owtest::Click(second);
    EXPECT_EQ(read(), "2: 1, 1");
    owtest::Click(second);
    EXPECT_EQ(read(), "3: 1, 2") << "the third state reads 3";
    owtest::Click(first);
    EXPECT_EQ(read(), "0: 0, 0 off");
}

TEST_F(CheckBoxRules, AConditionDecidesWhetherABoxIsRead)
{
    for (int nCondition : {0, 1, -2})
    {
        const std::string off = nCondition ? "" : " off";
        for (int nSet : {0, 5})
        {
            int nValue = nSet;
            gfnObradiUslovniCheckBox(&first, true, &nCondition, &nValue);
            EXPECT_EQ(Seen(first), (nSet ? "1" : "0") + off);
            EXPECT_EQ(nValue, nSet);

            first.EnableWindow(nCondition == 0); // reading puts that right
            gfnObradiUslovniCheckBox(&first, false, &nCondition, &nValue);
            EXPECT_EQ(nValue, nCondition && nSet ? 1 : nSet) << "without the condition it stays as it was";
            EXPECT_EQ(Seen(first), (nSet ? "1" : "0") + off);
        }
    }
}

TEST_F(CheckBoxRules, ABoxSwitchesARadioGroup)
{
    struct
    {
        int nValue;
        const char *box, *options;
    } const values[] = {{2, "1", "1"},  {0, "0", "-1 off"}, {1, "1", "0"},       {3, "1", "2"},
                        {4, "1", "-1"}, {-1, "1", "-1"},    {INT_MIN, "1", "-1"}};
    for (const auto& value : values)
    {
        int nValue = value.nValue;
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, true, &nValue);
        EXPECT_EQ(Seen(first), value.box) << nValue;
        EXPECT_EQ(SeenOptions(), value.options) << nValue;
        EXPECT_EQ(nValue, value.nValue);
    }

    const auto read = [&]
    {
        int nValue = -1;
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, false, &nValue);
        return std::to_string(nValue) + ": " + Seen(first) + ", " + SeenOptions();
    };
    EXPECT_EQ(read(), "1: 1, 0") << "on always gives an option";
    owtest::Click(*dialog.GetDlgItem(idOption + 2));
    EXPECT_EQ(read(), "3: 1, 2");
    owtest::Click(first);
    EXPECT_EQ(read(), "0: 0, -1 off");
    owtest::Click(first);
    EXPECT_EQ(read(), "1: 1, 0");
}

TEST_F(CheckBoxRules, ASwitchOfAnEmptyGroupIsOneOrZero)
{
    CRadioGroup none(nullptr, 0);
    int nValue = 2;
    gfnObradiChkBoxSaGrupomRadioDugmica(&first, none, true, &nValue);
    EXPECT_EQ(first.GetCheck(), 1);
    gfnObradiChkBoxSaGrupomRadioDugmica(&first, none, false, &nValue);
    EXPECT_EQ(nValue, 1);
}

TEST_F(CheckBoxRules, DoNothingWithoutABoxOrAValue)
{
    int nValue = 7, nCondition = 1;
    CButton noWindow;
    first.SetCheck(1);
    second.EnableWindow(FALSE);
    for (bool bSet : {true, false})
    {
        for (CButton* pNone : {static_cast<CButton*>(nullptr), &noWindow})
        {
            gfnObradiCheckBox(pNone, bSet, &nValue);
            gfnObradiDvaCheckBoxa(pNone, &second, bSet, &nValue);
            gfnObradiDvaCheckBoxa(&first, pNone, bSet, &nValue);
            gfnObradiUslovniCheckBox(pNone, bSet, &nCondition, &nValue);
            gfnObradiChkBoxSaGrupomRadioDugmica(pNone, options, bSet, &nValue);
        }
        gfnObradiCheckBox(&first, bSet, nullptr);
        gfnObradiDvaCheckBoxa(&first, &second, bSet, nullptr);
        gfnObradiUslovniCheckBox(&first, bSet, nullptr, &nValue);
        gfnObradiUslovniCheckBox(&first, bSet, &nCondition, nullptr);
        gfnObradiChkBoxSaGrupomRadioDugmica(&first, options, bSet, nullptr);
    }
    EXPECT_EQ(nValue, 7);
    EXPECT_EQ(Seen(first), "1");
    EXPECT_EQ(Seen(second), "0 off");
    EXPECT_EQ(SeenOptions(), "-1");
}
