// The configuration group as a user works with it: choosing, saving and deleting by mouse and keyboard.

#include "GroupDialog.h"

using Visitor = owtest::ModalVisit::Visitor;

namespace
{
constexpr WORD idCombo = 1001, idSave = 1002, idDelete = 1003, idAfter = 1004;
constexpr int kNameBox = 10001, kMessage = 104, kYes = IDOK, kNo = 101;
constexpr wchar_t kUnsuitable[] = L"Neodgovarajuci naziv", kDelete[] = L"Brisanje tekuce konfiguracije?",
                  kOverwrite[] = L"Da li zelite da prethodna konfiguracija bude prepisana?",
                  kProtected[] = L"Ne mozete da obrisete Default konfiguraciju";

/// Keeps names only, and writes down what it is told, as a handler too.
struct NameSet : AConfigSet, AConfigCtrlGroupNotificationHandler
{
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
        if (std::count(names.begin(), names.end(), name))
            return false;
        names.push_back(name);
        OverwriteConfig(name);
        return true;
    }
    void OverwriteConfig(const CString& name) override
    {
        calls += L"store " + name + L';';
        current = static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin());
        changed = false;
    }
    void DeleteConfig(int index) override
    {
        calls += L"delete " + std::to_wstring(index) + L';';
        names.erase(names.begin() + index);
        current = index - 1;
    }
    void SetCurrentConfig(int n) override { calls += L"current " + std::to_wstring(current = n) + L';'; }
    bool IsConfigChanged() override { return changed; }
    int GetCurrentConfig() override { return current; }
    CString GetConfigName(int index) override { return index < 0 ? CString() : names[index]; }
    void OnConfigGroupChanged(CConfigCtrlGroup*) override
    {
        calls += L"told;";
        whenTold();
    }
    std::function<void()> whenTold = [] {};
};

/// Types a name in place of what the name dialog begins with, and accepts; expects that beginning.
Visitor TypeOver(std::wstring begins, std::wstring name)
{
    return [=](CWnd& box)
    {
        EXPECT_EQ(owtest::TextOf(box), L"Snimi");
        EXPECT_EQ(owtest::TextOf(*box.GetDlgItem(kNameBox)), begins);
        owtest::Press(VK_DELETE);
        owtest::Type(name);
        owtest::Press(VK_RETURN);
    };
}

const Visitor kEscape = [](CWnd&) { owtest::Press(VK_ESCAPE); };

/// Answers a message box by a button, and expects its text.
Visitor Answer(const wchar_t* text, int button)
{
    return [=](CWnd& box)
    {
        EXPECT_EQ(owtest::TextOf(box), L"");
        EXPECT_EQ(owtest::TextOf(*box.GetDlgItem(kMessage)), text);
        owtest::Click(*box.GetDlgItem(button));
    };
}

class ConfigGroup : public testing::Test, public GroupDialog
{
protected:
    void Open(AConfigSet* pSet, AConfigCtrlGroupNotificationHandler* pHandler)
    {
        DestroyWindow();
        group.emplace(idCombo, idSave, idDelete, pSet, pHandler);
        group->Refresh(); // does nothing yet
        EXPECT_TRUE(GroupDialog::Open(
            owtest::DialogTemplate(L"Configurations", 160, 60)
                .Item(L"COMBOBOX", L"", idCombo, CBS_DROPDOWNLIST | CBS_SORT | WS_TABSTOP, 4, 4, 80, 80)
                .Button(L"", idSave, 90, 4, 16, 14)
                .Button(L"", idDelete, 110, 4, 16, 14)
                .Edit(idAfter, 4, 30, 80, 12)));
        EXPECT_EQ(group->OnInitDialog(), 1);
    }
    void DoDataExchange(CDataExchange* pDX) override { group->DoDataExchange(pDX); }

    /// Clicks a button and visits the dialogs: what was told, and the rows' initials, the selected one's in brackets.
    std::wstring Seen(int nId = 0, const std::vector<Visitor>& visitors = {})
    {
        owtest::ModalVisit visit(visitors);
        if (nId)
            Click(nId);
        EXPECT_EQ(visit.Count(), static_cast<int>(visitors.size()));
        const auto& combo = static_cast<CComboBox&>((*this)[idCombo]);
        std::wstring state = std::exchange(set.calls, {}) + L' ';
        for (int i = 0; i < combo.GetCount(); ++i)
        {
            CString text;
            combo.GetLBText(i, text);
            state += combo.GetCurSel() == i ? L'[' + text.Left(1) + L']' : text.Left(1);
        }
        return state;
    }
    NameSet set;
    std::optional<CConfigCtrlGroup> group;
};
} // namespace

TEST_F(ConfigGroup, ShowsTheCurrentEntryAndMakesTheChosenOneCurrent)
{
    set.names = {L"Roof", L"Floor"};
    set.current = 1;
    Open(&set, &set);
    EXPECT_EQ(Seen(), L" DR[F]");
    EXPECT_TRUE(ShowsPicture(idSave) && ShowsPicture(idDelete)) << "their icons";
    Press(idCombo, VK_HOME);
    owtest::Press(VK_DOWN);
    EXPECT_EQ(Seen(), L"current -1;told;current 0;told; D[R]F");
    set.changed = true;
    group->Refresh();
    (*this)[idAfter].SetFocus();
    group->OnExtComboBoxSelChanged(idCombo, -1);
    EXPECT_EQ(Seen(), L"told; DRF") << "no row is no entry";
    EXPECT_EQ(::GetFocus(), (*this)[idCombo].m_hWnd);
    (*this)[idAfter].SetFocus();
    set.whenTold = [this] { (*this)[idCombo].DestroyWindow(); };
    group->OnExtComboBoxSelChanged(idCombo, -1);
    EXPECT_EQ(::GetFocus(), (*this)[idAfter].m_hWnd) << "not for a combo box that went meanwhile";
}

TEST_F(ConfigGroup, SavesUnderANameThatSuitsAndDeletesTheCurrentEntryWhenTheUserAgrees)
{
    const Visitor wall = TypeOver(L"default", L"Wall"), agree = Answer(kDelete, kYes);
    const Visitor refused = TypeOver(L"default", L"Default"), unsuitable = Answer(kUnsuitable, kYes);
    // The group judges no name but "Default". Where values have changed nothing shows as current, and yet an entry is.
    const std::tuple<bool, int, std::vector<Visitor>, const wchar_t*> steps[] = {
        {true, idSave, {kEscape}, L" DRFW"},
        {false, idSave, {TypeOver(L"Floor", L"Gate")}, L"store Gate; DRFW[G]"},
        {true, idSave, {TypeOver(L"Gate", L"default")}, L"store default; DRFWG[d]"},
        {true, idSave, {wall, Answer(kOverwrite, kNo), kEscape}, L" DRFWGd"},
        {true, idSave, {refused, unsuitable, wall, Answer(kOverwrite, kYes)}, L"store Wall; DRF[W]Gd"},
        {false, idDelete, {Answer(kDelete, kNo)}, L" DRF[W]Gd"},
        {true, idDelete, {agree}, L"delete 2;told; DR[F]Gd"},
        {false, idDelete, {agree}, L"delete 1;told; D[R]Gd"},
        {false, idDelete, {agree}, L"delete 0;told; [D]Gd"},
        {false, idDelete, {Answer(kProtected, kYes)}, L" [D]Gd"},
    };
    set.names = {L"Roof", L"Floor", L"Wall"};
    set.current = 1;
    Open(&set, &set);
    for (const auto& [changed, nId, visitors, state] : steps)
    {
        set.changed = changed;
        group->Refresh();
        EXPECT_EQ(Seen(nId, visitors), state);
    }
}

TEST_F(ConfigGroup, BearsASetThatChangesWithoutItAndNoHandlerAndNoSet)
{
    set.names = {L"Roof"};
    Open(&set, nullptr);
    set.names = {L"Roof", L"Floor", L"Wall"};
    set.current = 2;
    group->Refresh();
    EXPECT_EQ(Seen(), L" DR") << "there is no row for the current entry";
    EXPECT_EQ(Seen(idDelete, {Answer(kDelete, kYes)}), L"delete 2; DR");
    EXPECT_EQ(Seen(idSave, {TypeOver(L"Floor", L"Gate")}), L"store Gate; DRG") << "entry 2 has no row yet";

    Open(nullptr, &set);
    EXPECT_EQ(Seen(idSave), L" [D]");
    EXPECT_EQ(Seen(idDelete), L" [D]");
    group->OnExtComboBoxSelChanged(idCombo, 0);
    EXPECT_EQ(Seen(), L"told; [D]");
}
