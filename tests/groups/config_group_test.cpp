// The configuration group as a user works with it: choosing, saving and deleting by mouse and keyboard.

#include "GroupDialog.h"

#include "EnglishTexts.h"
#include "ModalVisit.h"

#include <algorithm>
#include <optional>

using owtest::TextOf;
using Visitor = owtest::ModalVisit::Visitor;

namespace
{
enum Id : WORD
{
    idCombo = 1001,
    idSave,
    idDelete,
    idAfter
};

constexpr int kNameBox = 10001, kMessage = 104, kYes = IDOK, kNo = 101;
constexpr wchar_t kUnsuitable[] = L"Neodgovarajuci naziv";
constexpr wchar_t kOverwrite[] = L"Da li zelite da prethodna konfiguracija bude prepisana?";
constexpr wchar_t kProtected[] = L"Ne mozete da obrisete Default konfiguraciju";
constexpr wchar_t kDelete[] = L"Brisanje tekuce konfiguracije?";

/// Keeps names only, and writes down what it is told, as a handler too.
class NameSet : public AConfigSet, public AConfigCtrlGroupNotificationHandler
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
        if (std::find(names.begin(), names.end(), name) != names.end())
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
    void SetCurrentConfig(int index) override
    {
        calls += L"current " + std::to_wstring(index) + L';';
        current = index;
    }
    bool IsConfigChanged() override { return changed; }
    int GetCurrentConfig() override { return current; }
    CString GetConfigName(int index) override { return index < 0 ? CString() : names[index]; }
    void OnConfigGroupChanged(CConfigCtrlGroup*) override { calls += L"told;"; }
};

struct ConfigDialog : GroupDialog
{
    ConfigDialog(AConfigSet* set, AConfigCtrlGroupNotificationHandler* handler)
        : group(idCombo, idSave, idDelete, set, handler)
    {
        const auto form =
            owtest::DialogTemplate(L"Configurations", 160, 60)
                .Item(L"COMBOBOX", L"", idCombo, CBS_DROPDOWNLIST | CBS_SORT | WS_TABSTOP, 4, 4, 80, 80)
                .Button(L"", idSave, 90, 4, 16, 14)
                .Button(L"", idDelete, 110, 4, 16, 14)
                .Edit(idAfter, 4, 30, 80, 12);
        group.Refresh(); // does nothing yet
        EXPECT_TRUE(Open(form));
    }
    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    BOOL OnInitDialog() override
    {
        EXPECT_TRUE(CDialog::OnInitDialog() && group.OnInitDialog() == 1);
        return TRUE;
    }

    /// The rows of the combo box by their initials, the selected one in brackets.
    std::wstring Rows() const
    {
        const auto& combo = static_cast<const CComboBox&>((*this)[idCombo]);
        std::wstring rows;
        for (int i = 0; i < combo.GetCount(); ++i)
        {
            CString text;
            combo.GetLBText(i, text);
            rows += combo.GetCurSel() == i ? L'[' + text.Left(1) + L']' : text.Left(1);
        }
        return rows;
    }

    CConfigCtrlGroup group;
};

/// Types a name in place of what the name dialog begins with, and accepts; expects that beginning.
Visitor TypeOver(std::wstring begins, std::wstring name)
{
    return [=](CWnd& box)
    {
        ASSERT_NE(box.GetDlgItem(kNameBox), nullptr);
        EXPECT_EQ(TextOf(box), gOtLang.Do(L"Snimi").GetString());
        EXPECT_EQ(TextOf(*box.GetDlgItem(kNameBox)), begins);
        owtest::Press(VK_DELETE);
        owtest::Type(name);
        owtest::Press(VK_RETURN);
    };
}

const Visitor kEscape = [](CWnd&) { owtest::Press(VK_ESCAPE); };

/// Answers a message box by a button, and expects its text.
Visitor Answer(std::wstring text, int button)
{
    return [=](CWnd& box)
    {
        ASSERT_NE(box.GetDlgItem(kMessage), nullptr);
        EXPECT_EQ(TextOf(box) + L'|' + TextOf(*box.GetDlgItem(kMessage)), L'|' + text);
        owtest::Click(*box.GetDlgItem(button));
    };
}

class ConfigGroup : public testing::Test
{
protected:
    NameSet set;
    std::optional<ConfigDialog> dialog;

    void Open(const std::vector<CString>& names, int current, bool withHandler = true)
    {
        set.names = names;
        set.current = current;
        dialog.emplace(&set, withHandler ? &set : nullptr);
    }
    /// Clicks a button and goes through all the dialogs that this opens; what set and handler were told.
    std::wstring Click(int id, const std::vector<Visitor>& visitors)
    {
        owtest::ModalVisit visit(visitors);
        dialog->Click(id);
        EXPECT_EQ(visit.Count(), static_cast<int>(visitors.size()));
        return std::exchange(set.calls, {});
    }
};
} // namespace

TEST_F(ConfigGroup, ShowsTheCurrentEntryAndMakesTheChosenOneCurrent)
{
    Open({L"Roof", L"Floor"}, 1);
    EXPECT_EQ(dialog->Rows(), L"DR[F]");
    EXPECT_TRUE(dialog->ShowsPicture(idSave) && dialog->ShowsPicture(idDelete)) << "their icons";
    dialog->Press(idCombo, VK_HOME);
    owtest::Press(VK_DOWN);
    EXPECT_EQ(std::exchange(set.calls, {}), L"current -1;told;current 0;told;");
    set.changed = true;
    dialog->group.Refresh();
    EXPECT_EQ(dialog->Rows(), L"DRF");
    (*dialog)[idAfter].SetFocus();
    dialog->group.OnExtComboBoxSelChanged(idCombo, -1);
    EXPECT_EQ(set.calls, L"told;") << "no row is no entry";
    EXPECT_EQ(::GetFocus(), (*dialog)[idCombo].m_hWnd);
    dialog->group.OnButtonClicked(idAfter); // no button of the group
}

TEST_F(ConfigGroup, SavesUnderANameThatSuitsAndDeletesTheCurrentEntryWhenTheUserAgrees)
{
    struct Step
    {
        bool changed; ///< nothing shows as current before the step, and yet there is a current entry
        int button;
        std::vector<Visitor> visitors;
        const wchar_t *calls, *rows;
    };
    const Visitor wall = TypeOver(L"default", L"Wall"), agree = Answer(kDelete, kYes);
    const Visitor refused = TypeOver(L"default", L"Default"), unsuitable = Answer(kUnsuitable, kYes);
    // The group judges no name but "Default".
    const Step steps[] = {
        {true, idSave, {kEscape}, L"", L"DRFW"},
        {false, idSave, {TypeOver(L"Floor", L"Gate")}, L"store Gate;", L"DRFW[G]"},
        {true, idSave, {TypeOver(L"Gate", L"default")}, L"store default;", L"DRFWG[d]"},
        {true, idSave, {wall, Answer(kOverwrite, kNo), kEscape}, L"", L"DRFWGd"},
        {true, idSave, {refused, unsuitable, wall, Answer(kOverwrite, kYes)}, L"store Wall;", L"DRF[W]Gd"},
        {false, idDelete, {Answer(kDelete, kNo)}, L"", L"DRF[W]Gd"},
        {true, idDelete, {agree}, L"delete 2;told;", L"DR[F]Gd"},
        {false, idDelete, {agree}, L"delete 1;told;", L"D[R]Gd"},
        {false, idDelete, {agree}, L"delete 0;told;", L"[D]Gd"},
        {false, idDelete, {Answer(kProtected, kYes)}, L"", L"[D]Gd"},
    };
    Open({L"Roof", L"Floor", L"Wall"}, 1);
    for (const Step& step : steps)
    {
        set.changed = step.changed;
        dialog->group.Refresh();
        EXPECT_EQ(Click(step.button, step.visitors), step.calls);
        EXPECT_EQ(dialog->Rows(), step.rows);
    }
    const owtest::EnglishTexts english;
    for (const wchar_t* text : {L"Default", L"Snimi", kUnsuitable, kOverwrite, kProtected, kDelete})
        EXPECT_TRUE(gOtLang.Has(text)) << CStringA(text).GetString();
}

TEST_F(ConfigGroup, BearsASetThatChangesWithoutItAndNoHandlerAndNoSet)
{
    Open({L"Roof"}, 0, false);
    set.names = {L"Roof", L"Floor", L"Wall"};
    set.current = 2;
    dialog->group.Refresh();
    EXPECT_EQ(dialog->Rows(), L"DR") << "there is no row for the current entry";
    EXPECT_EQ(Click(idDelete, {Answer(kDelete, kYes)}), L"delete 2;");
    EXPECT_EQ(dialog->Rows(), L"DR");
    EXPECT_EQ(Click(idSave, {TypeOver(L"Floor", L"Gate")}), L"store Gate;");
    EXPECT_EQ(dialog->Rows(), L"DRG") << "entry 2 has no row yet";

    dialog.emplace(nullptr, &set);
    EXPECT_EQ(Click(idSave, {}) + Click(idDelete, {}), L"");
    dialog->group.OnExtComboBoxSelChanged(idCombo, 0);
    EXPECT_EQ(dialog->Rows(), L"[D]");
}
