// The unit format group: reports of each source, several objects, no record, windows that are not there.

#include "GroupDialog.h"

namespace
{
constexpr WORD idCombo = 101, idButton = 102, idEdit = 103, idElsewhere = 104;

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
        .Button(L"Unit", idButton, 48, 8, 40, 12, buttonStyle)
        .Edit(idEdit, 90, 8, 24, 12)
        .Edit(idElsewhere, 120, 8, 24, 12);
}

class UnitFormatGroup : public ::testing::Test,
                        public GroupDialog,
                        public AFormatJediniceCtrlGroupNotificationHandler
{
protected:
    void SetUp() override
    {
        group.SetFormatSource(&record);
        Reopen(BS_AUTOCHECKBOX);
        group.Update(true, true);
        State();
    }
    void Reopen(DWORD buttonStyle)
    {
        ASSERT_TRUE(Open(Form(buttonStyle)));
        (*this)[idElsewhere].SetFocus();
    }
    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    void OnFormatGroupChanged(CFormatJediniceCtrlGroup* pGroup, CFormatJedinice* pFormat,
                              int nSource) override
    {
        EXPECT_TRUE(pGroup == &group && pFormat == &record);
        calls += ", " + std::to_string(nSource) + ": " + Text(record);
    }
    /// What the user sees, the record, and the sources and records of what was told since the last time.
    std::string State() override
    {
        return Seen({idCombo, idButton, idEdit}) + " | " + Text(record) + std::exchange(calls, {});
    }

    CFormatJediniceCtrlGroup group{idCombo, idButton, idEdit, this};
    CFormatJedinice record{3, 1, 4};
    std::string calls;
};
} // namespace

TEST_F(UnitFormatGroup, ShowsFormatsWithinWhatTheControlsTake)
{
    const std::pair<CFormatJedinice, std::string> formats[] = {
        {{3, 1, 4}, "dm 1 4"},   {{0, 1, 0}, "m 1 0"}, {{1, 2, 99}, "cm 0 15"}, {{2, 0, -3}, "mm 0 0"},
        {{5, 1, 15}, "ft 1 15"}, {{6, 1, 4}, " 1 4"},  {{-1, 1, 4}, " 1 4"}};
    (*this)[idEdit].SetWindowText(L"x"); // which the first format writes over
    State();
    for (const auto& [format, seen] : formats)
    {
        group.SetCtrlState(format);
        EXPECT_EQ(State(), seen + " | 3 1 4");
    }
    EXPECT_EQ(Text(group.GetCtrlState()), "-1 1 4") << "no fallback for no unit";
}

TEST_F(UnitFormatGroup, TellsEachSourceAfterStoringButTypingBefore)
{
    Play({{[&] { Press(idCombo, VK_DOWN); }, "in 1 4 | 4 1 4, 0: 4 1 4"},
          {[&] { Click(idButton); }, "in 0 4 | 4 0 4, 1: 4 0 4"},
          {[&] { TypeInto(idEdit, L"7"); }, "in 0 7 | 4 0 4, 2: 4 0 4"},
          {[&] { Click(idElsewhere); }, "in 0 7 | 4 0 7, 3: 4 0 7"},
          {[&] { Click(idEdit); }, "in 0 7 | 4 0 7"},
          {[&] { Click(idElsewhere); }, "in 0 7 | 4 0 7, 3: 4 0 7"}}); // also if nothing was typed
}

TEST_F(UnitFormatGroup, ShowsThatObjectsHaveNothingInCommonUntilAClick)
{
    Play({{[&] { Reopen(BS_3STATE); }, "dm 0 4 | 3 1 4"}, // the units are listed again
          {[&] { record.nCheckFlag = 0; }, "dm 0 4 | 3 0 4"},
          {[&] { group.Update(true, false); }, " 2  | 3 0 4"},
          {[&] { group.Update(false, false); }, "mm 2  | 2 1 4"}, // entry 2, on, and the last number
          {[&] { record.nUnitIndex = 5; }, "mm 2  | 5 1 4"},
          {[&] { group.Update(true, true); }, "ft 1 4 | 5 1 4"}, // the same number ends the empty state
          {[&] { record.nUnitIndex = 0; }, "ft 1 4 | 0 1 4"},
          {[&] { group.Update(false, true); }, "ft 1 4 | 5 1 4"},
          {[&] { group.Update(true, false); }, " 2  | 5 1 4"},
          {[&] { Click(idButton); }, " 1  | 5 0 4, 1: 5 0 4"}, // the state before the click
          {[&] { Click(idButton); }, " 0  | 5 1 4, 1: 5 1 4"},
          {[&] { group.OnButtonClicked(idElsewhere); }, " 1  | 5 1 4"}, // toggled for any id
          {[&] { Reopen(BS_AUTO3STATE); }, "ft 0  | 5 1 4"},
          {[&] { group.Update(true, false); }, " 2  | 5 1 4"},
          {[&] { Click(idButton); }, " 0  | 5 0 4, 1: 5 0 4"}}); // toggles by itself
}

TEST_F(UnitFormatGroup, IsSilentWithoutARecordAndShowsAndEnablesAllThree)
{
    Play({{[&] { group.SetFormatSource(nullptr); }, " 1 4 | 3 1 4"},
          {[&] { Press(idCombo, VK_DOWN); }, " 1 4 | 3 1 4"},
          {[&] { Click(idButton); }, " 0 4 | 3 1 4"},
          {[&] { TypeInto(idEdit, L"7"); }, " 0 7 | 3 1 4"},
          {[&] { Click(idElsewhere); }, " 0 7 | 3 1 4"},
          {[&] { group.Update(true, true); }, " 0 7 | 3 1 4"},
          {[&] { group.Update(false, true); }, " 0 7 | 3 1 4"}});
    EXPECT_EQ((*this)[idCombo].SendMessage(CB_GETCOUNT), 0);
    EXPECT_EQ(Text(group.GetCtrlState()), "-1 0 7") << "the controls work";
    Play({{[&] { group.SetFormatSource(&record); }, "dm 0 7 | 3 1 4"}, // the others by Update
          {[&] { group.Enable(FALSE); }, "dm- 0- 7- | 3 1 4"},
          {[&] { group.Display(TRUE); }, "dm 0 7 | 3 1 4"}, // a group that is shown is enabled, too
          {[&] { group.Display(FALSE); }, "- - - | 3 1 4"}});
}

TEST_F(UnitFormatGroup, LeavesTheRecordAloneWithoutWindowsAndNeedsNoHandler)
{
    DestroyWindow();
    group.Update(false, true);
    group.SetCtrlState({0, 0, 0});
    group.OnExtComboBoxSelChanged(idCombo, 0);
    group.OnButtonClicked(idButton);
    group.Display(FALSE);
    EXPECT_EQ(Text(record), "3 1 4");
    EXPECT_EQ(group.GetCtrlState(), CFormatJedinice());

    CFormatJediniceCtrlGroup deaf(idCombo, idButton, idEdit, nullptr);
    deaf.SetFormatSource(&record);
    deaf.OnEditNChange(idEdit);
}
