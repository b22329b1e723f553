// The unit format group: reports of each source, several objects, no record, windows that are not there.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

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

/// "unit, flag, number"
std::string Text(const CFormatJedinice& format)
{
    return std::to_string(format.nUnitIndex) + ", " + std::to_string(format.nCheckFlag) + ", " +
           std::to_string(format.nEditValue);
}

CFormatJedinice Format(int nUnit, int nFlag, int nNumber)
{
    CFormatJedinice format;
    format.nUnitIndex = nUnit;
    format.nCheckFlag = nFlag;
    format.nEditValue = nNumber;
    return format;
}

class FormatDialog : public CDialog, public AFormatJediniceCtrlGroupNotificationHandler
{
public:
    CFormatJediniceCtrlGroup group{idCombo, idButton, idEdit, this};
    CFormatJedinice record = Format(3, 1, 4);
    Calls calls; ///< as "source: record"
    Calls Take() { return std::exchange(calls, {}); }

    bool Open(DWORD buttonStyle = BS_AUTOCHECKBOX)
    {
        const auto form = owtest::DialogTemplate(L"Format", 160, 30)
                              .Item(L"COMBOBOX", L"", idCombo, CBS_DROPDOWNLIST | WS_TABSTOP, 4, 8, 40, 90)
                              .Item(L"BUTTON", L"Unit", idButton, buttonStyle | WS_TABSTOP, 48, 8, 40, 12)
                              .Edit(idEdit, 90, 8, 24, 12)
                              .Edit(idElsewhere, 120, 8, 24, 12);
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }
    CComboBox& Combo() { return static_cast<CComboBox&>(*GetDlgItem(idCombo)); }

    /// What the user sees: "unit symbol, state, number".
    std::wstring Seen()
    {
        return owtest::TextOf(Combo()) + L", " + std::to_wstring(IsDlgButtonChecked(idButton)) + L", " +
               owtest::TextOf(*GetDlgItem(idEdit));
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        group.SetFormatSource(&record);
        group.Update(true, true);
        ShowWindow(SW_SHOW);
        GetDlgItem(idElsewhere)->SetFocus();
        return FALSE;
    }
    void OnFormatGroupChanged(CFormatJediniceCtrlGroup* pGroup, CFormatJedinice* pFormat,
                              int nSource) override
    {
        EXPECT_EQ(pGroup, &group);
        EXPECT_EQ(pFormat, &record);
        calls.push_back(std::to_string(nSource) + ": " + Text(*pFormat));
    }
};

class UnitFormatGroup : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Open()); }
    void TearDown() override { dialog.DestroyWindow(); }
    void Reopen(DWORD buttonStyle)
    {
        dialog.DestroyWindow();
        ASSERT_TRUE(dialog.Open(buttonStyle));
        dialog.Take();
    }
    void Leave() { owtest::Click(*dialog.GetDlgItem(idElsewhere)); }
    /// A change of each of the three controls, by keyboard and mouse.
    void ChangeAll()
    {
        dialog.Combo().SetFocus();
        owtest::Press(VK_DOWN);
        owtest::Click(*dialog.GetDlgItem(idButton));
        owtest::Click(*dialog.GetDlgItem(idEdit));
        dialog.GetDlgItem(idEdit)->SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(L"7");
        Leave();
    }

    FormatDialog dialog;
    CFormatJediniceCtrlGroup& group = dialog.group;
    CFormatJedinice& record = dialog.record;
};
} // namespace

TEST_F(UnitFormatGroup, ListsTheUnitsAndShowsTheRecord)
{
    EXPECT_EQ(dialog.Seen(), L"dm, 1, 4");
    std::wstring units;
    for (int i = 0; i < dialog.Combo().GetCount(); ++i)
    {
        CString strUnit;
        dialog.Combo().GetLBText(i, strUnit);
        units += strUnit + L" ";
    }
    EXPECT_EQ(units, L"m cm mm dm in ft ");

    record = Format(0, 2, 99);
    group.Update(true, true);
    EXPECT_EQ(dialog.Seen(), L"m, 0, 15") << "only the flag 1 checks, and the number is brought into 0 to 15";
    group.SetCtrlState(Format(6, 1, -3));
    EXPECT_EQ(dialog.Seen(), L", 1, 0");
    EXPECT_EQ(Text(record), "0, 2, 99") << "showing a format leaves the record alone";
    EXPECT_EQ(Text(group.GetCtrlState()), "-1, 1, 0") << "no fallback for no unit";
    EXPECT_EQ(dialog.Take(), Calls{}) << "what the program does is not reported";
}

TEST_F(UnitFormatGroup, TellsEachSourceAfterStoringButTypingBefore)
{
    ChangeAll();
    EXPECT_EQ(dialog.Take(), (Calls{"0: 4, 1, 4", "1: 4, 0, 4", "2: 4, 0, 4", "3: 4, 0, 7"}));
    owtest::Click(*dialog.GetDlgItem(idButton));
    EXPECT_EQ(dialog.Take(), Calls{"1: 4, 1, 7"});
    owtest::Click(*dialog.GetDlgItem(idEdit));
    Leave();
    EXPECT_EQ(dialog.Take(), Calls{"3: 4, 1, 7"}) << "also if nothing was typed";
}

TEST_F(UnitFormatGroup, AThreeStateButtonStoresTheStateBeforeTheClickAndIsNeverIndeterminateAgain)
{
    Reopen(BS_3STATE);
    group.Update(true, false);
    const std::pair<UINT, int> clicks[] = {{1, 0}, {0, 1}, {1, 0}}; // what shows, and what is stored
    for (const auto& [nShown, nStored] : clicks)
    {
        owtest::Click(*dialog.GetDlgItem(idButton));
        EXPECT_EQ(dialog.IsDlgButtonChecked(idButton), nShown);
        EXPECT_EQ(record.nCheckFlag, nStored);
        EXPECT_EQ(group.GetCtrlState().nCheckFlag, static_cast<int>(nShown)) << "what the user sees";
    }
    EXPECT_EQ(dialog.Take().size(), 3u);

    group.OnButtonClicked(idElsewhere);
    EXPECT_EQ(dialog.IsDlgButtonChecked(idButton), 0u) << "toggled for any id";
    EXPECT_EQ(record.nCheckFlag, 0);
    EXPECT_EQ(dialog.Take(), Calls{});

    Reopen(BS_AUTO3STATE);
    group.Update(true, false);
    owtest::Click(*dialog.GetDlgItem(idButton));
    EXPECT_EQ(dialog.IsDlgButtonChecked(idButton), 0u) << "the one that toggles itself is left alone";
}

TEST_F(UnitFormatGroup, ShowsThatObjectsHaveNothingInCommon)
{
    Reopen(BS_3STATE);
    group.Update(true, false);
    EXPECT_EQ(dialog.Seen(), L", 2, ");
    EXPECT_EQ(Text(record), "3, 1, 4");
    EXPECT_EQ(Text(group.GetCtrlState()), "-1, 1, 4");
    record.nCheckFlag = 0;
    group.Update(false, false);
    EXPECT_EQ(Text(record), "2, 1, 4") << "entry 2, on, and the last number";
    EXPECT_EQ(dialog.Seen(), L"mm, 2, ");
    group.Update(true, true);
    EXPECT_EQ(dialog.Seen(), L"mm, 1, 4") << "the same number ends the empty state";
    group.SetCtrlState(Format(5, 0, 12));
    group.Update(false, true);
    EXPECT_EQ(Text(record), "5, 0, 12");
}

TEST_F(UnitFormatGroup, IsSilentWithoutARecord)
{
    group.SetFormatSource(nullptr);
    EXPECT_EQ(dialog.Combo().GetCount(), 0);
    ChangeAll();
    group.Update(true, true);
    group.Update(false, true);
    EXPECT_EQ(Text(record), "3, 1, 4");
    EXPECT_EQ(Text(group.GetCtrlState()), "-1, 0, 7") << "the controls work";
    EXPECT_EQ(dialog.Take(), Calls{});

    group.SetFormatSource(&record);
    EXPECT_EQ(dialog.Seen(), L"dm, 0, 7") << "the unit at once, the others by Update";
}

TEST_F(UnitFormatGroup, HearsItsOwnControlsOnlyAndNeedsNoHandler)
{
    group.SetCtrlState(Format(1, 0, 9));
    group.OnExtComboBoxSelChanged(idElsewhere, 0);
    group.OnButtonClicked(idElsewhere);
    group.OnEditNChange(idElsewhere);
    group.OnEditNKillFocus(idElsewhere);
    EXPECT_EQ(Text(record), "3, 1, 4");
    EXPECT_EQ(dialog.Take(), Calls{});

    CFormatJediniceCtrlGroup quiet(idCombo, idButton, idEdit, nullptr);
    quiet.SetFormatSource(&record);
    quiet.OnEditNKillFocus(idEdit);
    EXPECT_EQ(Text(record), "3, 1, 0");
}

TEST_F(UnitFormatGroup, EnablesAndShowsAllThree)
{
    const auto seen = [&]
    {
        std::string text;
        for (int nId : {idCombo, idButton, idEdit})
            text += std::string(dialog.GetDlgItem(nId)->IsWindowVisible() ? "v" : "-") +
                    (dialog.GetDlgItem(nId)->IsWindowEnabled() ? "e " : "- ");
        return text;
    };
    group.Enable(FALSE);
    EXPECT_EQ(seen(), "v- v- v- ");
    group.Display(TRUE);
    EXPECT_EQ(seen(), "ve ve ve ") << "a group that is shown is enabled, too";
    group.Display(FALSE);
    EXPECT_EQ(seen(), "-- -- -- ");
    group.Enable(TRUE);
    EXPECT_EQ(seen(), "-e -e -e ");
}

TEST_F(UnitFormatGroup, LeavesTheRecordAloneWithoutWindowsAndComesBackWithThem)
{
    dialog.DestroyWindow();
    dialog.Take();
    group.Update(false, true);
    group.Update(true, false);
    group.SetCtrlState(Format(0, 0, 0));
    group.OnExtComboBoxSelChanged(idCombo, 0);
    group.OnButtonClicked(idButton);
    group.Enable(TRUE);
    group.Display(TRUE);
    EXPECT_EQ(Text(record), "3, 1, 4");
    EXPECT_EQ(Text(group.GetCtrlState()), Text(CFormatJedinice()));
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(dialog.Seen(), L"dm, 1, 4");

    CFormatJediniceCtrlGroup lost(999, idButton, idEdit, nullptr);
    CDataExchange exchange(&dialog, FALSE);
    EXPECT_THROW(lost.DoDataExchange(&exchange), CNotSupportedException*) << "the dialog has no such control";
}
