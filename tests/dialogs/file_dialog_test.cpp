// The system's file dialog in the user's language: its texts, and files really opened and saved.

#include "BoxParts.h"

#include "EnglishTexts.h"

#include <filesystem>
#include <fstream>

namespace
{
// Controls of the system's dialog
constexpr int kFileName = 1148, kFileTypeLabel = 1089, kFileNameLabel = 1090, kFolderLabel = 1091;

struct Arguments
{
    int open = TRUE;
    const wchar_t* name = nullptr;
    unsigned long flags = 0;
    const wchar_t* filter = nullptr;
    const wchar_t* title = nullptr;
};

using Outcome = std::pair<int, std::wstring>; ///< answer and path

Outcome Start(const Arguments& arguments, const Visitor& visitor)
{
    owtest::ModalVisit visit(visitor);
    CString path = L"before";
    const int result =
        gfnStartTranslatedFileDialog(path, arguments.open, L"txt", arguments.name, arguments.flags,
                                     arguments.filter, nullptr, arguments.title);
    EXPECT_EQ(visit.Count(), 1);
    return {result, path.GetString()};
}

/// Types a name over what stands there, and accepts; so it does with a box by which the system refuses it.
Visitor TypeName(const wchar_t* name)
{
    return [=](CWnd& dialog)
    {
        owtest::ModalVisit box([](CWnd& message) { message.PostMessage(WM_COMMAND, IDOK); });
        owtest::Click(*dialog.GetDlgItem(kFileName));
        owtest::Press(VK_HOME);
        owtest::Press(VK_END, true);
        owtest::Type(name);
        owtest::Click(*dialog.GetDlgItem(IDOK));
    };
}
} // namespace

TEST(TranslatedFileDialog, HasItsTextsInTheLanguageOfTheCatalogue)
{
    std::wstring seen;
    const Visitor look = [&](CWnd& dialog)
    {
        seen = TextOf(dialog);
        for (int id : {IDOK, IDCANCEL, kFolderLabel, kFileNameLabel, kFileTypeLabel})
            seen += L'|' + TextOf(*dialog.GetDlgItem(id));
    };
    const auto texts = [&](int open, const wchar_t* title)
    {
        Start({.open = open, .title = title}, look);
        return seen;
    };
    EXPECT_EQ(texts(TRUE, nullptr), L"Ucitaj|Ucitaj|Cancel|Lokacija|Ime fajla|Tip fajla");
    EXPECT_EQ(texts(FALSE, nullptr), L"Snimi kao...|Snimi|Cancel|Lokacija|Ime fajla|Tip fajla");
    {
        const owtest::OtherText other("Cancel", "Odustani");
        EXPECT_EQ(texts(TRUE, nullptr), L"Ucitaj|Ucitaj|Odustani|Lokacija|Ime fajla|Tip fajla");
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
    const auto ask = [&](int open, unsigned long flags, const wchar_t* name) {
        return Start({open, start.c_str(), flags | OFN_NOCHANGEDIR, L"Text (*.txt)|*.txt||"}, TypeName(name));
    };
    EXPECT_EQ(ask(TRUE, OFN_FILEMUSTEXIST, L"ow present.txt"), Outcome(IDOK, present));
    EXPECT_EQ(ask(TRUE, OFN_FILEMUSTEXIST, L"ow absent.txt").first, IDCANCEL) << "it stayed open";
    EXPECT_EQ(ask(FALSE, 0, L"ow plan 2"), Outcome(IDOK, folder / L"ow plan 2.txt"));
    std::filesystem::remove(present);

    const std::wstring longName(10000, L'a');
    EXPECT_EQ(Start({}, PressEscape), Outcome(IDCANCEL, L""));
    EXPECT_EQ(Start({.open = FALSE, .name = L"plan.txt"}, PressEscape), Outcome(IDCANCEL, L"plan.txt"));
    EXPECT_EQ(Start({.name = longName.c_str()}, PressEscape),
              Outcome(IDCANCEL, longName.substr(0, MAX_PATH - 1)));
}

TEST(TranslatedFileDialog, CompletesItsFilter)
{
    const std::wstring text(L"Text\0*.txt\0\0", 12), all(L"Text\0*.txt\0All\0*.*\0\0", 20);
    // clang-format off
    const std::pair<const wchar_t*, std::wstring> cases[] = {
        {L"Text|*.txt||", text}, {L"Text|*.txt|", text}, {L"Text|*.txt", text}, {L"Text|*.txt|All||", all},
        {L"Text|*.txt|All", all}, {L"", L""}, {L"||", L""}, {nullptr, L""}};
    // clang-format on
    for (const auto& [filter, expected] : cases)
    {
        const CTranslatedFileDialog dialog(TRUE, nullptr, nullptr, 0, filter, nullptr, nullptr);
        const wchar_t* completed = dialog.m_ofn.lpstrFilter;
        EXPECT_EQ(completed != nullptr, !expected.empty());
        EXPECT_EQ(std::wstring(completed ? completed : L"", expected.size()), expected);
    }
}
