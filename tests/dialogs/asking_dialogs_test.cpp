// The dialogs that ask for a name or a file, and what all dialogs that wait for an answer have in common.

#include "BoxParts.h"

namespace
{
// Controls of the name dialogs, and of the system's file dialog
constexpr int kEdit = 10000, kCombo = 10001;
constexpr int kFileName = 1148, kFileTypeLabel = 1089, kFileNameLabel = 1090, kFolderLabel = 1091;

/// The functions that open them; the name dialogs know three names.
struct Start
{
    static int Edit(CString& name, const CString& caption, CWnd*) { return gfnStartNazivDlg(name, caption); }
    static int Combo(CString& name, const CString& caption, CWnd* parent)
    {
        CStringArray names;
        for (const wchar_t* layer : {L"Walls", L"Axes", L"Columns"})
            names.Add(layer);
        return gfnStartNazivComboDlg(name, names, caption, parent);
    }
    static int Box(CString&, const CString&, CWnd*)
    {
        return COstrelMessageBox::MessageBox(L"", L"", MB_YESNOCANCEL | MB_ICONERROR);
    }
    static int File(CString& path, const CString&, CWnd* parent)
    {
        const HWND window = parent ? parent->m_hWnd : reinterpret_cast<HWND>(0x12340);
        return gfnStartTranslatedFileDialog(path, TRUE, L"", nullptr, 0, nullptr, window, nullptr);
    }
};

/// One of the two name dialogs; what both do is tested with both.
struct Kind
{
    int box;
    decltype(&Start::Edit) start;

    /// The name in the end, and the answer.
    std::wstring Ask(const std::wstring& begins, const Visitor& visitor,
                     const CString& strCaption = L"") const
    {
        CString name(begins.c_str());
        const int answer = Visited([&] { return start(name, strCaption, nullptr); }, visitor);
        return name.GetString() + (L": " + std::to_wstring(answer));
    }
    Visitor Typing(const std::wstring& text, const Visitor& then) const
    {
        return [=, this](CWnd& dialog)
        {
            CWnd& control = *dialog.GetDlgItem(box);
            EXPECT_TRUE(::GetFocus() == control || control.IsChild(CWnd::GetFocus()));
            owtest::Type(text);
            then(dialog);
        };
    }
};
const Kind kKinds[] = {{kEdit, &Start::Edit}, {kCombo, &Start::Combo}};

/// The path in the end, and the answer.
std::wstring AskFile(int open, const wchar_t* name, const wchar_t* title, const Visitor& visitor,
                     unsigned long flags = 0)
{
    CString path = L"before";
    const auto start = [&]
    { return gfnStartTranslatedFileDialog(path, open, L"txt", name, flags, L"T|*.txt||", nullptr, title); };
    const int answer = Visited(start, visitor);
    return path.GetString() + (L": " + std::to_wstring(answer));
}

/// Accepts a name; so it does with a box by which the system refuses it.
Visitor Accept(const wchar_t* name)
{
    return [=](CWnd& dialog)
    {
        owtest::ModalVisit box([](CWnd& message) { message.PostMessage(WM_COMMAND, IDOK); });
        dialog.SetDlgItemText(kFileName, name);
        owtest::Click(*dialog.GetDlgItem(IDOK));
    };
}
} // namespace

TEST(NameDialogs, TakeOverANameOnOkAndLeaveItOtherwise)
{
    const std::wstring longer(40000, L'l'); // than the box's limit
    const Visitor paste = [&](CWnd& dialog)
    {
        ::SendMessage(::GetFocus(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(longer.c_str()));
        PressEnter(dialog);
    };
    for (const Kind& kind : kKinds)
    {
        const std::tuple<std::wstring, Visitor, std::wstring> cases[] = {
            {L"Roof", PressEnter, L"Roof: 1"},
            {L"", kind.Typing(L"Floor 2", PressEnter), L"Floor 2: 1"}, // not in the list
            {L"Roof", kind.Typing(L"Floor", ClickOn(IDOK)), L"Floor: 1"},
            {L"Roof", kind.Typing(L"Floor", PressEscape), L"Roof: 2"},
            {L"Roof", kind.Typing(L" \b", PressEnter), L": 1"}, // an empty name is a name
            {longer, PressEnter, longer + L": 1"},
            {L"Roof", paste, longer + L": 1"}};
        for (const auto& [begins, visitor, outcome] : cases)
            EXPECT_TRUE(kind.Ask(begins, visitor) == outcome) << kind.box << ' ' << outcome.size();
    }
}

TEST(NameDialogs, AreInTheLanguageOfTheCatalogueButForWhatTheCallerGave)
{
    const owtest::OtherText other("msgid \"Cancel\"\nmsgstr \"Odustani\"\n\n"
                                  "msgid \"Naziv\"\nmsgstr \"Ime\"\n\nmsgid \"Snimi\"\nmsgstr \"Upis\"\n");
    for (const Kind& kind : kKinds)
    {
        const auto texts = [&](const std::wstring& name, const CString& caption)
        {
            std::wstring seen;
            const auto look = [&](CWnd& dialog)
            {
                seen = TextsOf(dialog, {kind.box, IDCANCEL});
                EXPECT_TRUE(CountColoured(dialog, IDOK) > 10 && CountColoured(dialog, IDCANCEL) > 10);
            };
            kind.Ask(name, look, caption);
            return seen;
        };
        EXPECT_EQ(texts(L"Naziv", L""), (kind.box == kEdit ? L"Ime|Naziv|Odustani" : L"Upis|Naziv|Odustani"));
        EXPECT_EQ(texts(L"", L"Snimi"), L"Snimi||Odustani");
    }
}

TEST(NameDialogs, ListTheNamesAsGiven)
{
    const auto look = [&](CWnd& dialog)
    {
        auto& combo = static_cast<CComboBox&>(*dialog.GetDlgItem(kCombo));
        EXPECT_GT(PlaceOf(dialog, kCombo).left, 0);
        EXPECT_TRUE(combo.GetCount() == 3 && combo.FindStringExact(-1, L"Walls") == 0);
        EXPECT_EQ(combo.GetCurSel(), CB_ERR) << "the name was set before the list was filled";
        for (const WORD key : {VK_DOWN, VK_DOWN, VK_RETURN})
            owtest::Press(key);
    };
    CString name = L"Walls";
    EXPECT_EQ(Visited([&] { return Start::Combo(name, L"", nullptr); }, look), IDOK);
    EXPECT_EQ(name, L"Axes");
}

TEST(TranslatedFileDialog, HasItsTextsInTheLanguageOfTheCatalogue)
{
    const auto texts = [&](int open, const wchar_t* title)
    {
        std::wstring seen;
        const auto look = [&](CWnd& dialog) {
            seen = TextsOf(dialog, {IDOK, IDCANCEL, kFolderLabel, kFileNameLabel, kFileTypeLabel});
        };
        AskFile(open, nullptr, title, look);
        return seen;
    };
    {
        const owtest::OtherText other("Cancel", "Odustani");
        EXPECT_EQ(texts(FALSE, nullptr), L"Snimi kao...|Snimi|Odustani|Lokacija|Ime fajla|Tip fajla");
    }
    const owtest::EnglishTexts english;
    EXPECT_EQ(texts(TRUE, nullptr), L"Load|Load|Cancel|Look in|File name|File type");
    EXPECT_EQ(texts(FALSE, L"Snimi"), L"Snimi|Save|Cancel|Look in|File name|File type") << "as it stands";
    EXPECT_EQ(texts(TRUE, L""), L"|Load|Cancel|Look in|File name|File type");
}

TEST(TranslatedFileDialog, GivesThePathWhateverTheAnswer)
{
    const auto folder = std::filesystem::temp_directory_path();
    const std::wstring start = folder / L"ow start.txt", present = folder / L"ow present.txt";
    std::ofstream{std::filesystem::path(present)};
    const auto ask = [&](int open, unsigned long flags, const wchar_t* name)
    { return AskFile(open, start.c_str(), nullptr, Accept(name), flags | OFN_NOCHANGEDIR); };
    EXPECT_EQ(ask(TRUE, OFN_FILEMUSTEXIST, L"ow present.txt"), present + L": 1");
    EXPECT_TRUE(ask(TRUE, OFN_FILEMUSTEXIST, L"ow absent.txt").ends_with(L": 2")) << "it stayed open";
    EXPECT_EQ(ask(FALSE, 0, L"ow plan 2"), (folder / L"ow plan 2.txt: 1").wstring());
    std::filesystem::remove(present);
    EXPECT_EQ(AskFile(TRUE, nullptr, nullptr, PressEscape), L": 2");
    EXPECT_EQ(AskFile(FALSE, L"plan.txt", nullptr, PressEscape), L"plan.txt: 2");
}

TEST(TranslatedFileDialog, CompletesItsFilter)
{
    const std::wstring text(L"Text\0*.txt\0\0", 12), all(L"Text\0*.txt\0All\0*.*\0\0", 20);
    const std::pair<const wchar_t*, std::wstring> cases[] = {
        {L"Text|*.txt||", text}, {L"Text|*.txt|All", all}, {L"||", L""}, {nullptr, L""}};
    for (const auto& [filter, expected] : cases)
    {
        const CTranslatedFileDialog dialog(TRUE, nullptr, nullptr, 0, filter, nullptr, nullptr);
        const wchar_t* completed = dialog.m_ofn.lpstrFilter;
        EXPECT_EQ(completed != nullptr, !expected.empty());
        EXPECT_EQ(std::wstring(completed ? completed : L"", expected.size()), expected);
    }
}

TEST(DialogSurroundings, AreTheParentOrTheWindowInFrontAndInTheEndAsBefore)
{
    CString text;
    for (const auto start : {&Start::Box, &Start::Edit, &Start::Combo, &Start::File})
    {
        const bool takesParent = start == &Start::Combo || start == &Start::File;
        OwnerWindow parent, main;
        AfxGetApp()->m_pMainWnd = &main;
        const auto expectOver = [&](CWnd* given, const CWnd& expected)
        {
            ASSERT_TRUE(owtest::Activate(main));
            main.SetFocus();
            const auto look = [&](CWnd& dialog)
            {
                EXPECT_EQ(dialog.GetWindow(GW_OWNER), &expected);
                EXPECT_FALSE(expected.IsWindowEnabled());
                EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 1);
            };
            EXPECT_EQ(Visited([&] { return start(text, L"", given); }, look), IDCANCEL);
            EXPECT_TRUE(expected.IsWindowEnabled());
            EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
        };
        expectOver(nullptr, main);
        expectOver(&parent, takesParent ? parent : main);
        parent.DestroyWindow();
        expectOver(&parent, main); // a parent without a window is none
        const owtest::HandleCount before = owtest::CountHandles();
        for (int i = 0; i < 12 && start != &Start::File; ++i) // the system's keeps some of its own
            expectOver(nullptr, main);
        EXPECT_EQ(owtest::CountHandles(), before);
        AfxGetApp()->m_pMainWnd = nullptr;
    }
    EXPECT_EQ(CButtonST().SetIcon(CButtonST::hIconOk), CButtonST::resultOk) << "the shared icons live on";
}
