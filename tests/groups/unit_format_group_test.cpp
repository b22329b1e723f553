// The unit format group: reports of each source, several objects, no record, windows that are not there.

#include "GroupDialog.h"

using Calls = std::vector<std::string>;

namespace
{
enum Id : WORD
{
    idCombo = 101,
    idButton,
    idEdit,
    idElsewhere
};

/// "unit flag number"
std::string Text(const CFormatJedinice& format)
{
    CStringA strText;
    strText.Format("%d %d %d", format.nUnitIndex, format.nCheckFlag, format.nEditValue);
    return strText.GetString();
}

owtest::DialogTemplate Form(DWORD buttonStyle)
{
    return owtest::DialogTemplate(L"Format", 160, 30)
        .Item(L"COMBOBOX", L"", idCombo, CBS_DROPDOWNLIST | CBS_SORT | WS_TABSTOP, 4, 8, 40, 90)
        .Item(L"BUTTON", L"Unit", idButton, buttonStyle | WS_TABSTOP, 48, 8, 40, 12)
        .Edit(idEdit, 90, 8, 24, 12)
        .Edit(idElsewhere, 120, 8, 24, 12);
}

struct FormatDialog : GroupDialog, AFormatJediniceCtrlGroupNotificationHandler
{
    CFormatJediniceCtrlGroup group{idCombo, idButton, idEdit, this};
    CFormatJedinice record{3, 1, 4};
    Calls calls; ///< as "source: record"
    Calls Take() { return std::exchange(calls, {}); }

    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        group.SetFormatSource(&record);
        group.Update(true, true);
        (*this)[idElsewhere].SetFocus();
        return FALSE;
    }
    void OnFormatGroupChanged(CFormatJediniceCtrlGroup* pGroup, CFormatJedinice* pFormat,
                              int nSource) override
    {
        EXPECT_TRUE(pGroup == &group && pFormat == &record);
        calls.push_back(std::to_string(nSource) + ": " + Text(record));
    }
};

class UnitFormatGroup : public ::testing::Test
{
protected:
    void SetUp() override { Open(BS_AUTOCHECKBOX); }
    void Open(DWORD buttonStyle)
    {
        ASSERT_TRUE(dialog.Open(Form(buttonStyle)));
        dialog.Take();
    }
    /// A change of each control by the user: the next unit, the button, and 7 decimals.
    void ChangeAll()
    {
        dialog.Press(idCombo, VK_DOWN);
        dialog.Click(idButton);
        dialog.TypeInto(idEdit, L"7");
        dialog.Click(idElsewhere);
    }

    /// What the user sees, the record, and what was told since the last time.
    void Expect(const char* seen, const char* record, const Calls& told = {})
    {
        EXPECT_EQ(dialog.Seen({idCombo, idButton, idEdit}), seen);
        EXPECT_EQ(Text(dialog.record), record);
        EXPECT_EQ(dialog.Take(), told);
    }

    FormatDialog dialog;
    CFormatJediniceCtrlGroup& group = dialog.group;
    CFormatJedinice& record = dialog.record;
};
} // namespace

TEST_F(UnitFormatGroup, ShowsFormatsWithinWhatTheControlsTake)
{
    const std::pair<CFormatJedinice, const char*> formats[] = {
        {{3, 1, 4}, "dm 1 4"},   {{0, 1, 0}, "m 1 0"},  {{1, 2, 99}, "cm 0 15"}, {{2, 0, -3}, "mm 0 0"},
        {{4, 1, 15}, "in 1 15"}, {{5, 1, 4}, "ft 1 4"}, {{6, 1, 4}, " 1 4"},     {{-1, 1, 4}, " 1 4"}};
    dialog[idEdit].SetWindowText(L"x"); // which the first format writes over
    dialog.Take();
    for (const auto& [format, seen] : formats)
    {
        group.SetCtrlState(format);
        Expect(seen, "3 1 4");
    }
    EXPECT_EQ(Text(group.GetCtrlState()), "-1 1 4") << "no fallback for no unit";
}

TEST_F(UnitFormatGroup, TellsEachSourceAfterStoringButTypingBefore)
{
    ChangeAll();
    dialog.Click(idEdit);
    dialog.Click(idElsewhere); // is told also if nothing was typed
    Expect("in 0 7", "4 0 7", {"0: 4 1 4", "1: 4 0 4", "2: 4 0 4", "3: 4 0 7", "3: 4 0 7"});
    group.OnExtComboBoxSelChanged(idElsewhere, 0);
    group.OnEditNChange(idElsewhere);
    group.OnEditNKillFocus(idElsewhere);
    dialog.CheckDlgButton(idButton, 1);
    group.OnButtonClicked(idElsewhere);
    Expect("in 1 7", "4 0 7");
}

TEST_F(UnitFormatGroup, ShowsThatObjectsHaveNothingInCommonUntilAClick)
{
    Open(BS_3STATE);
    record.nCheckFlag = 0;
    group.Update(true, false);
    Expect(" 2 ", "3 0 4");
    group.Update(false, false);
    Expect("mm 2 ", "2 1 4"); // entry 2, on, and the last number
    record.nUnitIndex = 5;
    group.Update(true, true);
    Expect("ft 1 4", "5 1 4"); // the same number ends the empty state
    record.nUnitIndex = 0;
    group.Update(false, true);
    Expect("ft 1 4", "5 1 4");

    group.Update(true, false);
    dialog.Click(idButton);
    Expect(" 1 ", "5 0 4", {"1: 5 0 4"}); // the state before the click
    dialog.Click(idButton);
    Expect(" 0 ", "5 1 4", {"1: 5 1 4"});
    group.OnButtonClicked(idElsewhere);
    Expect(" 1 ", "5 1 4"); // toggled for any id
    Open(BS_AUTO3STATE);
    group.Update(true, false);
    dialog.Click(idButton);
    EXPECT_EQ(dialog.Seen({idButton}), "0") << "the one that toggles by itself is left alone";
}

TEST_F(UnitFormatGroup, IsSilentWithoutARecord)
{
    group.SetFormatSource(nullptr);
    EXPECT_EQ(dialog[idCombo].SendMessage(CB_GETCOUNT), 0);
    ChangeAll();
    group.Update(true, true);
    group.Update(false, true);
    Expect(" 0 7", "3 1 4");
    EXPECT_EQ(Text(group.GetCtrlState()), "-1 0 7") << "the controls work";
    group.SetFormatSource(&record);
    Expect("dm 0 7", "3 1 4"); // the unit at once, the others by Update
}

TEST_F(UnitFormatGroup, EnablesAndShowsAllThree)
{
    group.Enable(FALSE);
    Expect("dm- 1- 4-", "3 1 4");
    group.Display(TRUE);
    Expect("dm 1 4", "3 1 4"); // a group that is shown is enabled, too
    group.Display(FALSE);
    Expect("- - -", "3 1 4");
}

TEST_F(UnitFormatGroup, LeavesTheRecordAloneWithoutWindowsAndTheListWithoutARecord)
{
    dialog.DestroyWindow();
    group.Update(false, true);
    group.SetCtrlState({0, 0, 0});
    group.OnExtComboBoxSelChanged(idCombo, 0);
    group.OnButtonClicked(idButton);
    group.Display(FALSE);
    EXPECT_EQ(Text(record), "3 1 4");
    EXPECT_EQ(group.GetCtrlState(), CFormatJedinice());

    GroupDialog plain;
    ASSERT_TRUE(plain.Open(Form(BS_AUTOCHECKBOX)));
    plain.SendDlgItemMessage(idCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"any unit"));
    CFormatJediniceCtrlGroup unbound(idCombo, idButton, idEdit, nullptr),
        lost(idElsewhere, 999, idEdit, nullptr);
    CDataExchange exchange(&plain, FALSE);
    EXPECT_THROW(lost.DoDataExchange(&exchange), CNotSupportedException*) << "the dialog has no such control";
    unbound.DoDataExchange(&exchange);
    unbound.SetCtrlState({0, 1, 4});
    EXPECT_EQ(plain.TextOf(idCombo), L"any unit");
    unbound.SetFormatSource(&record);
    EXPECT_EQ(plain.SendDlgItemMessage(idCombo, CB_GETCOUNT), 6);
    unbound.OnExtComboBoxSelChanged(idCombo, 3); // no handler is no fault
    lost.SetFormatSource(&record);
    lost.OnEditNKillFocus(idEdit);
    EXPECT_EQ(Text(record), "3 1 0") << "nor is no window";
    plain.DestroyWindow();
}
