// The configuration group as a user works with it: choosing, saving and deleting by mouse and keyboard.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "EnglishTexts.h"
#include "Handles.h"
#include "ModalVisit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using owtest::TextOf;

namespace
{
enum Id : WORD
{
    idCombo = 1001,
    idSave,
    idDelete,
    idAfter
};

constexpr int kNameBox = 10001, kMessage = 104;

/// Keeps names only, and writes down what it is told.
class NameSet : public AConfigSet
{
public:
    std::vector<CString> names;
    int current = -1;
    bool changed = false;
    std::wstring calls;

    int GetConfigNames(CStringArray& result) override
    {
        for (const CString& name : names)
            result.Add(name);
        return static_cast<int>(names.size());
    }
    bool AddConfig(const CString& name) override
    {
        const bool added = std::find(names.begin(), names.end(), name) == names.end();
        Record(added ? L"add " : L"exists ", name);
        if (added)
        {
            names.push_back(name);
            current = static_cast<int>(names.size()) - 1;
            changed = false;
        }
        return added;
    }
    void OverwriteConfig(const CString& name) override
    {
        Record(L"overwrite ", name);
        current = static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin());
        changed = false;
    }
    void DeleteConfig(int index) override
    {
        Record(L"delete ", std::to_wstring(index).c_str());
        names.erase(names.begin() + index);
        current = index - 1;
    }
    void SetCurrentConfig(int index) override
    {
        Record(L"current ", std::to_wstring(index).c_str());
        current = index;
        changed = false;
    }
    bool IsConfigChanged() override { return changed; }
    int GetCurrentConfig() override { return current; }
    CString GetConfigName(int index) override { return index < 0 ? CString() : names[index]; }

private:
    void Record(const wchar_t* what, const CString& argument) { calls += what + argument + L';'; }
};

class ConfigDialog : public CDialog, public AConfigCtrlGroupNotificationHandler
{
public:
    ConfigDialog(AConfigSet* set, bool withHandler = true)
        : group(idCombo, idSave, idDelete, set, withHandler ? this : nullptr)
    {
    }
    ~ConfigDialog() override { DestroyWindow(); }

    CConfigCtrlGroup group;
    int changes = 0; ///< calls of the handler

    bool Open()
    {
        const auto form = owtest::DialogTemplate(L"Configurations", 160, 60)
                              .Item(L"COMBOBOX", L"", idCombo, CBS_DROPDOWNLIST | WS_TABSTOP, 4, 4, 80, 80)
                              .Button(L"", idSave, 90, 4, 16, 14)
                              .Button(L"", idDelete, 110, 4, 16, 14)
                              .Edit(idAfter, 4, 30, 80, 12);
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }

    /// The rows of the combo box, the selected one in brackets.
    std::wstring Rows() const
    {
        const auto& combo = static_cast<const CComboBox&>(*GetDlgItem(idCombo));
        std::wstring rows;
        for (int i = 0; i < combo.GetCount(); ++i)
        {
            CString text;
            combo.GetLBText(i, text);
            rows += combo.GetCurSel() == i ? L'[' + text + L']' : L' ' + text + L' ';
        }
        return rows;
    }

    /// Clicks a button, and goes through the dialogs that this opens.
    int ClickThrough(int id, std::vector<owtest::ModalVisit::Visitor> visitors)
    {
        owtest::ModalVisit visit(std::move(visitors));
        owtest::Click(*GetDlgItem(id));
        return visit.Count();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        ShowWindow(SW_SHOW);
        return group.OnInitDialog();
    }
    void OnConfigGroupChanged(CConfigCtrlGroup* pGroup) override { changes += pGroup == &group; }
};

class ConfigGroup : public testing::Test
{
protected:
    NameSet set;
    std::optional<ConfigDialog> dialog;

    void Open(std::vector<CString> names, int current, bool withHandler = true)
    {
        set.names = std::move(names);
        set.current = current;
        dialog.emplace(&set, withHandler);
        ASSERT_TRUE(dialog->Open());
    }
    std::wstring TakeCalls() { return std::exchange(set.calls, {}); }

    /// Types a name in place of what the name dialog begins with, and accepts; expects that beginning.
    static owtest::ModalVisit::Visitor TypeOver(std::wstring begins, std::wstring name)
    {
        return [=](CWnd& box)
        {
            ASSERT_NE(box.GetDlgItem(kNameBox), nullptr);
            EXPECT_EQ(TextOf(*box.GetDlgItem(kNameBox)), begins);
            owtest::Press(VK_DELETE);
            owtest::Type(name);
            owtest::Press(VK_RETURN);
        };
    }
    static owtest::ModalVisit::Visitor Escape()
    {
        return [](CWnd&) { owtest::Press(VK_ESCAPE); };
    }
    /// Answers a message box by a button, and expects its text.
    static owtest::ModalVisit::Visitor Answer(std::wstring text, int button)
    {
        return [=](CWnd& box)
        {
            ASSERT_NE(box.GetDlgItem(kMessage), nullptr);
            EXPECT_EQ(TextOf(box) + L'|' + TextOf(*box.GetDlgItem(kMessage)), L'|' + text);
            owtest::Click(*box.GetDlgItem(button));
        };
    }

    static constexpr int c_nYes = 1, c_nNo = 101;
    static constexpr const wchar_t* c_szUnsuitable = L"Neodgovarajuci naziv";
    static constexpr const wchar_t* c_szOverwrite =
        L"Da li zelite da prethodna konfiguracija bude prepisana?";
    static constexpr const wchar_t* c_szProtected = L"Ne mozete da obrisete Default konfiguraciju";
    static constexpr const wchar_t* c_szDelete = L"Brisanje tekuce konfiguracije?";
};
} // namespace

TEST_F(ConfigGroup, ShowsDefaultAndTheEntriesInTheirOrder)
{
    Open({}, -1);
    EXPECT_EQ(dialog->Rows(), L"[Default]");
    Open({L"Roof", L"Floor"}, 1);
    EXPECT_EQ(dialog->Rows(), L" Default  Roof [Floor]");
    set.changed = true;
    dialog->group.Refresh();
    EXPECT_EQ(dialog->Rows(), L" Default  Roof  Floor ");
    set.changed = false;
    set.current = -1;
    dialog->group.Refresh();
    EXPECT_EQ(dialog->Rows(), L"[Default] Roof  Floor ");
}

TEST_F(ConfigGroup, MakesTheChosenEntryCurrentAndKeepsTheFocus)
{
    Open({L"Roof", L"Floor"}, -1);
    const HWND combo = dialog->GetDlgItem(idCombo)->m_hWnd;
    ::SetFocus(combo);
    owtest::Press(VK_END);
    EXPECT_EQ(TakeCalls(), L"current 1;");
    owtest::Press(VK_HOME);
    EXPECT_EQ(TakeCalls(), L"current -1;");
    EXPECT_EQ(dialog->changes, 2);
    dialog->GetDlgItem(idAfter)->SetFocus();
    owtest::Click(combo); // opens the list
    owtest::Press(VK_DOWN);
    owtest::Press(VK_RETURN);
    EXPECT_EQ(dialog->Rows(), L" Default [Roof] Floor ");
    EXPECT_EQ(set.current, 0);

    dialog->GetDlgItem(idAfter)->SetFocus();
    dialog->group.OnExtComboBoxSelChanged(0, 0);
    EXPECT_EQ(::GetFocus(), combo);
    static_cast<CComboBox*>(dialog->GetDlgItem(idCombo))->SetCurSel(-1);
    TakeCalls();
    dialog->group.OnExtComboBoxSelChanged(0, -1);
    EXPECT_EQ(TakeCalls(), L"") << "no row is no entry";
}

TEST_F(ConfigGroup, SavesUnderATypedNameWithoutTellingTheHandler)
{
    Open({L"Roof"}, 0);
    set.changed = true;
    const auto lookAndType = [](CWnd& box)
    {
        auto& names = static_cast<CComboBox&>(*box.GetDlgItem(kNameBox));
        EXPECT_EQ(TextOf(box), L"Snimi");
        EXPECT_EQ(names.GetCount(), 1) << "Default is not offered";
        TypeOver(L"Roof", L"Floor")(box);
    };
    EXPECT_EQ(dialog->ClickThrough(idSave, {lookAndType}), 1);
    EXPECT_EQ(TakeCalls(), L"add Floor;");
    EXPECT_EQ(dialog->Rows(), L" Default  Roof [Floor]");

    // The group does not judge names.
    EXPECT_EQ(dialog->ClickThrough(idSave, {TypeOver(L"Floor", L"")}), 1);
    EXPECT_EQ(dialog->ClickThrough(idSave, {TypeOver(L"", L"default")}), 1);
    EXPECT_EQ(TakeCalls(), L"add ;add default;");
    EXPECT_EQ(dialog->Rows(), L" Default  Roof  Floor   [default]");
    EXPECT_EQ(dialog->changes, 0);
}

TEST_F(ConfigGroup, AsksAgainFromTheCurrentNameUntilANameSuits)
{
    Open({L"Roof", L"Floor"}, 0);
    set.changed = true;
    const auto visits = dialog->ClickThrough(
        idSave, {TypeOver(L"Roof", L"Default"), Answer(c_szUnsuitable, c_nYes), TypeOver(L"Roof", L"Floor"),
                 Answer(c_szOverwrite, c_nNo), TypeOver(L"Roof", L"Floor"), Answer(c_szOverwrite, c_nYes)});
    EXPECT_EQ(visits, 6);
    EXPECT_EQ(TakeCalls(), L"exists Floor;exists Floor;overwrite Floor;");
    EXPECT_EQ(dialog->Rows(), L" Default  Roof [Floor]");
    EXPECT_EQ(dialog->changes, 0);
}

TEST_F(ConfigGroup, LeavesAllAsItWasWhenSavingIsCancelled)
{
    Open({L"Roof"}, 0);
    set.changed = true;
    dialog->group.Refresh();
    EXPECT_EQ(dialog->ClickThrough(idSave, {Escape()}), 1);
    EXPECT_EQ(
        dialog->ClickThrough(idSave, {TypeOver(L"Roof", L"Roof"), Answer(c_szOverwrite, c_nNo), Escape()}),
        3);
    EXPECT_EQ(TakeCalls(), L"exists Roof;");
    EXPECT_EQ(dialog->Rows(), L" Default  Roof ");
}

TEST_F(ConfigGroup, DeletesTheCurrentEntryWhenTheUserAgrees)
{
    Open({L"Roof", L"Floor", L"Wall"}, 1);
    EXPECT_EQ(dialog->ClickThrough(idDelete, {Answer(c_szDelete, c_nNo)}), 1);
    EXPECT_EQ(dialog->ClickThrough(idDelete, {Escape()}), 1);
    EXPECT_EQ(TakeCalls(), L"");
    EXPECT_EQ(dialog->changes, 0);

    set.changed = true; // nothing shows as current, and yet there is a current entry
    dialog->group.Refresh();
    EXPECT_EQ(dialog->ClickThrough(idDelete, {Answer(c_szDelete, c_nYes)}), 1);
    EXPECT_EQ(TakeCalls(), L"delete 1;");
    EXPECT_EQ(dialog->Rows(), L" Default [Roof] Wall ");
    EXPECT_EQ(dialog->changes, 1);

    dialog->ClickThrough(idDelete, {Answer(c_szDelete, c_nYes)});
    EXPECT_EQ(dialog->Rows(), L"[Default] Wall ");
    TakeCalls();
    EXPECT_EQ(dialog->ClickThrough(idDelete, {Answer(c_szProtected, c_nYes)}), 1);
    EXPECT_EQ(TakeCalls(), L"");
    EXPECT_EQ(dialog->Rows(), L"[Default] Wall ");
    EXPECT_EQ(dialog->changes, 2);
}

TEST_F(ConfigGroup, IsInTheLanguageOfTheCatalogue)
{
    const owtest::EnglishTexts english;
    Open({L"Roof"}, 0);
    const auto look = [](CWnd& box) { EXPECT_EQ(TextOf(box), L"Save"); };
    dialog->ClickThrough(idSave, {look});
    dialog->ClickThrough(idSave,
                         {TypeOver(L"Roof", L"Default"), Answer(L"Unsuitable name", c_nYes), Escape()});
    dialog->ClickThrough(idSave, {TypeOver(L"Roof", L"Roof"),
                                  Answer(L"Do you want to overwrite the existing configuration?", c_nYes)});
    dialog->ClickThrough(idDelete, {Answer(L"Delete the current configuration?", c_nYes)});
    const int visits =
        dialog->ClickThrough(idDelete, {Answer(L"You cannot delete the Default configuration", c_nYes)});
    EXPECT_EQ(visits, 1);
}

// ---- Out of the ordinary --------------------------------------------------------------------------------

TEST_F(ConfigGroup, BearsASetThatChangesWithoutIt)
{
    Open({L"Roof"}, 0);
    set.names = {L"Roof", L"Floor", L"Wall"};
    set.current = 2;
    dialog->group.Refresh();
    EXPECT_EQ(dialog->Rows(), L" Default  Roof ") << "there is no row for the current entry";
    dialog->ClickThrough(idDelete, {Answer(c_szDelete, c_nYes)});
    EXPECT_EQ(TakeCalls(), L"delete 2;");
    EXPECT_EQ(dialog->Rows(), L" Default  Roof ");
    dialog->ClickThrough(idSave, {TypeOver(L"Floor", L"Gate")});
    EXPECT_EQ(dialog->Rows(), L" Default  Roof  Gate ") << "entry 2 has no row yet";

    Open(set.names, set.current);
    EXPECT_EQ(dialog->Rows(), L" Default  Roof  Floor [Gate]");
}

TEST_F(ConfigGroup, WorksWithoutAHandler)
{
    Open({L"Roof"}, -1, false);
    dialog->GetDlgItem(idCombo)->SetFocus();
    owtest::Press(VK_DOWN);
    dialog->ClickThrough(idDelete, {Answer(c_szDelete, c_nYes)});
    EXPECT_EQ(TakeCalls(), L"current 0;delete 0;");
    EXPECT_EQ(dialog->Rows(), L"[Default]");
}

TEST_F(ConfigGroup, ShowsDefaultAloneWithoutASet)
{
    ConfigDialog lonely(nullptr);
    lonely.group.Refresh(); // without a window
    ASSERT_TRUE(lonely.Open());
    owtest::Click(*lonely.GetDlgItem(idSave));
    owtest::Click(*lonely.GetDlgItem(idDelete));
    lonely.group.Refresh();
    lonely.group.OnExtComboBoxSelChanged(idCombo, 0);
    EXPECT_EQ(lonely.Rows(), L"[Default]");
}

TEST_F(ConfigGroup, IgnoresOtherButtonsAndKeepsNothing)
{
    Open({L"Roof"}, 0);
    dialog->group.OnButtonClicked(idAfter);
    EXPECT_EQ(TakeCalls(), L"");
    const auto round = [&]
    {
        Open({L"Roof"}, 0);
        dialog->ClickThrough(idSave, {Escape()});
        dialog->ClickThrough(idDelete, {Escape()});
    };
    round();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 10; ++i)
        round();
    EXPECT_EQ(owtest::CountHandles(), before);
}
