// The two dialogs that ask for a name, through the functions that open them.

#include "BoxParts.h"

#include "EnglishTexts.h"

namespace
{
constexpr int kEdit = 10000, kCombo = 10001;

using Outcome = std::pair<int, std::wstring>; ///< answer and name

int StartEdit(CString& name, const CString& caption)
{
    return gfnStartNazivDlg(name, caption);
}

int StartCombo(CString& name, const CString& caption)
{
    CStringArray names;
    for (const wchar_t* layer : {L"Walls", L"Axes", L"Columns"})
        names.Add(layer);
    return gfnStartNazivComboDlg(name, names, caption, nullptr);
}

/// One of the two dialogs; what both do is tested with both.
struct Kind
{
    int box;
    int (*start)(CString& name, const CString& caption);
    std::wstring caption, english;
};

class NameDialog : public testing::TestWithParam<Kind>
{
protected:
    static Outcome Ask(const std::wstring& start, const Visitor& visitor, const CString& caption = L"")
    {
        owtest::ModalVisit visit(visitor);
        CString name(start.c_str());
        const int result = GetParam().start(name, caption);
        EXPECT_EQ(visit.Count(), 1);
        return {result, name.GetString()};
    }
    static CWnd& Box(CWnd& dialog) { return *dialog.GetDlgItem(GetParam().box); }
};
INSTANTIATE_TEST_SUITE_P(Both, NameDialog,
                         testing::Values(Kind{kEdit, &StartEdit, L"Naziv", L"Name"},
                                         Kind{kCombo, &StartCombo, L"Snimi", L"Save"}));
} // namespace

TEST_P(NameDialog, TakesOverANameOnOkAndLeavesItOtherwise)
{
    const auto typing = [](const std::wstring& text, const Visitor& then)
    {
        return [=](CWnd& dialog)
        {
            EXPECT_TRUE(::GetFocus() == Box(dialog) || Box(dialog).IsChild(CWnd::GetFocus()));
            owtest::Type(text);
            then(dialog);
        };
    };
    const Visitor close = [](CWnd& dialog) { dialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE); };
    EXPECT_EQ(Ask(L"Roof", PressEnter), Outcome(IDOK, L"Roof"));
    EXPECT_EQ(Ask(L"", typing(L"Floor 2", PressEnter)), Outcome(IDOK, L"Floor 2")) << "not in the list";
    EXPECT_EQ(Ask(L"Roof", typing(L"Floor", ClickOn(IDOK))), Outcome(IDOK, L"Floor")) << "typed over";
    for (const Visitor& leave : {PressEscape, close, ClickOn(IDCANCEL)})
        EXPECT_EQ(Ask(L"Roof", typing(L"Floor", leave)), Outcome(IDCANCEL, L"Roof"));
    EXPECT_EQ(Ask(L"Roof", typing(L" \b", PressEnter)), Outcome(IDOK, L"")) << "an empty name is a name";

    const std::wstring wide(60, L'W'), longer(40000, L'l'); // than the box, and than its limit
    EXPECT_EQ(Ask(L"", typing(wide, PressEnter)), Outcome(IDOK, wide));
    EXPECT_EQ(Ask(longer, PressEnter), Outcome(IDOK, longer));
    const Visitor paste = [&](CWnd& dialog)
    {
        ::SendMessage(::GetFocus(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(longer.c_str()));
        PressEnter(dialog);
    };
    EXPECT_EQ(Ask(L"Roof", paste), Outcome(IDOK, longer));
}

TEST_P(NameDialog, IsInTheLanguageOfTheCatalogueButForWhatTheCallerGave)
{
    std::wstring seen;
    const Visitor look = [&](CWnd& dialog) { seen = TextOf(dialog) + L'|' + TextOf(Box(dialog)); };
    Ask(L"Naziv", look);
    EXPECT_EQ(seen, GetParam().caption + L"|Naziv");
    {
        const owtest::EnglishTexts english;
        Ask(L"Naziv", look);
        EXPECT_EQ(seen, GetParam().english + L"|Naziv");
        Ask(L"", look, L"Ucitaj");
        EXPECT_EQ(seen, L"Ucitaj|");
    }
    const owtest::OtherText other("Cancel", "Odustani");
    const auto buttons = [](CWnd& dialog)
    {
        EXPECT_EQ(TextOf(*dialog.GetDlgItem(IDCANCEL)), L"Odustani");
        EXPECT_GT(CountColoured(dialog, IDOK), 10);
        EXPECT_GT(CountColoured(dialog, IDCANCEL), 10);
    };
    Ask(L"", buttons);
}

TEST(NameComboDialog, ListsTheNamesAsGiven)
{
    const auto look = [&](CWnd& dialog)
    {
        auto& combo = static_cast<CComboBox&>(*dialog.GetDlgItem(kCombo));
        EXPECT_TRUE(PlaceOf(dialog, kCombo).left > 0 && PlaceOf(dialog, kCombo).Width() > 100);
        EXPECT_EQ(combo.GetCount(), 3);
        EXPECT_EQ(combo.FindStringExact(-1, L"Walls"), 0);
        EXPECT_EQ(combo.GetCurSel(), CB_ERR) << "the name was set before the list was filled";
        for (const WORD key : {VK_DOWN, VK_DOWN, VK_RETURN})
            owtest::Press(key);
    };
    owtest::ModalVisit visit(look);
    CString name = L"Walls";
    EXPECT_EQ(StartCombo(name, L""), IDOK);
    EXPECT_EQ(name, L"Axes");
}
