// The system's file dialog in the user's language: its texts, and files really opened and saved.

#include <DialogControlsOW.h>

#include "OwnerWindow.h"

#include "EnglishTexts.h"
#include "ModalVisit.h"

#include <acdocman.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using owtest::TextOf;

namespace
{
// Controls of the system's dialog
constexpr int kFileName = 1148, kFileTypeLabel = 1089, kFileNameLabel = 1090, kFolderLabel = 1091;

using Visitor = std::function<void(CWnd&)>;

struct Arguments
{
    int open = TRUE;
    const wchar_t* extension = nullptr;
    const wchar_t* name = nullptr;
    unsigned long flags = 0;
    const wchar_t* filter = nullptr;
    HWND parent = nullptr;
    const wchar_t* title = nullptr;
};

struct Outcome
{
    int result;
    std::wstring path;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
    {
        return out << outcome.result << " \"" << CStringA(outcome.path.c_str()).GetString() << '"';
    }
};

Outcome Start(const Arguments& arguments, const Visitor& visitor)
{
    owtest::ModalVisit visit(visitor);
    CString path = L"before";
    const int result =
        gfnStartTranslatedFileDialog(path, arguments.open, arguments.extension, arguments.name,
                                     arguments.flags, arguments.filter, arguments.parent, arguments.title);
    EXPECT_EQ(visit.Count(), 1);
    return {result, path.GetString()};
}

void Cancel(CWnd& dialog)
{
    owtest::Click(*dialog.GetDlgItem(IDCANCEL));
}

/// Types a name over what stands there, and accepts; counts the boxes by which the system refuses it.
Visitor TypeName(const wchar_t* name, int* refusals = nullptr)
{
    return [=](CWnd& dialog)
    {
        owtest::ModalVisit box([](CWnd& message) { message.PostMessage(WM_COMMAND, IDOK); });
        owtest::Click(*dialog.GetDlgItem(kFileName));
        owtest::Press(VK_HOME);
        owtest::Press(VK_END, true);
        owtest::Type(name);
        owtest::Click(*dialog.GetDlgItem(IDOK));
        if (refusals)
            *refusals = box.Count();
    };
}

/// A folder of its own with the file "present.txt" in it.
class Folder
{
public:
    Folder() : m_path(std::filesystem::temp_directory_path() / L"ow_file_dialog")
    {
        std::filesystem::create_directories(m_path);
        std::ofstream(m_path / L"present.txt") << "first line";
    }
    ~Folder()
    {
        std::filesystem::current_path(m_before); // the dialog has made this folder the current one
        std::filesystem::remove_all(m_path);
    }

    std::wstring operator/(const wchar_t* name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
    std::filesystem::path m_before = std::filesystem::current_path();
};

/// The filter as the system gets it, ended by one zero more than the text has.
std::wstring FilterOf(const wchar_t* filter, size_t length)
{
    const CTranslatedFileDialog dialog(TRUE, nullptr, nullptr, 0, filter, nullptr, nullptr);
    return dialog.m_ofn.lpstrFilter ? std::wstring(dialog.m_ofn.lpstrFilter, length) : L"none";
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
    const owtest::EnglishTexts english;
    EXPECT_EQ(texts(TRUE, nullptr), L"Load|Load|Cancel|Look in|File name|File type");
    EXPECT_EQ(texts(FALSE, nullptr), L"Save As...|Save|Cancel|Look in|File name|File type");
    EXPECT_EQ(texts(FALSE, L"Snimi"), L"Snimi|Save|Cancel|Look in|File name|File type") << "as it stands";
    EXPECT_EQ(texts(TRUE, L""), L"|Load|Cancel|Look in|File name|File type");
}

TEST(TranslatedFileDialog, OpensAndSavesFiles)
{
    const Folder folder;
    const std::wstring start = folder / L"start.txt", present = folder / L"present.txt";
    const wchar_t* const filter = L"Text (*.txt)|*.txt||";

    const Outcome opened =
        Start({TRUE, L"txt", start.c_str(), OFN_FILEMUSTEXIST, filter}, TypeName(L"present.txt"));
    EXPECT_EQ(opened, (Outcome{IDOK, present}));
    std::string line;
    std::getline(std::ifstream(std::filesystem::path(opened.path)), line);
    EXPECT_EQ(line, "first line");

    const Outcome saved = Start({FALSE, L"txt", start.c_str(), 0, filter}, TypeName(L"plan 2"));
    EXPECT_EQ(saved, (Outcome{IDOK, folder / L"plan 2.txt"}));
    std::ofstream(std::filesystem::path(saved.path)) << "saved";
    EXPECT_TRUE(std::filesystem::exists(folder / L"plan 2.txt"));

    EXPECT_EQ(Start({TRUE, nullptr, present.c_str()}, TypeName(L"absent")),
              (Outcome{IDOK, folder / L"absent"}));
}

TEST(TranslatedFileDialog, GivesThePathWhateverTheAnswer)
{
    EXPECT_EQ(Start({}, &Cancel), (Outcome{IDCANCEL, L""}));
    EXPECT_EQ(Start({.open = FALSE, .name = L"plan.txt"}, &Cancel), (Outcome{IDCANCEL, L"plan.txt"}));
    const std::wstring longName(10000, L'a');
    EXPECT_EQ(Start({.name = longName.c_str()}, &Cancel),
              (Outcome{IDCANCEL, longName.substr(0, MAX_PATH - 1)}));
}

TEST(TranslatedFileDialog, RefusesAFileThatIsNotThereIfAskedTo)
{
    const Folder folder;
    const std::wstring start = folder / L"start.txt";
    int refusals = 0;
    const Outcome refused =
        Start({.name = start.c_str(), .flags = OFN_FILEMUSTEXIST}, TypeName(L"absent.txt", &refusals));
    EXPECT_EQ(refused.result, IDCANCEL) << "the dialog stayed open, until the test closed it";
    EXPECT_EQ(refusals, 1);
}

TEST(TranslatedFileDialog, CompletesItsFilter)
{
    const std::wstring whole(L"Text\0*.txt\0\0", 12);
    for (const wchar_t* filter : {L"Text|*.txt||", L"Text|*.txt|", L"Text|*.txt"})
        EXPECT_EQ(FilterOf(filter, whole.size()), whole) << CStringA(filter).GetString();
    const std::wstring two(L"Text\0*.txt\0All\0*.*\0\0", 20);
    for (const wchar_t* filter : {L"Text|*.txt|All|*.*||", L"Text|*.txt|All||", L"Text|*.txt|All"})
        EXPECT_EQ(FilterOf(filter, two.size()), two) << CStringA(filter).GetString();
    for (const wchar_t* filter : {static_cast<const wchar_t*>(nullptr), L"", L"||"})
        EXPECT_EQ(FilterOf(filter, 0), L"none");
}

TEST(TranslatedFileDialog, StandsOverItsParentOrTheMainWindow)
{
    OwnerWindow owner;
    CWnd* seen = nullptr;
    const Visitor look = [&](CWnd& dialog)
    {
        seen = dialog.GetWindow(GW_OWNER);
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 1);
    };
    Start({.parent = owner}, look);
    EXPECT_EQ(seen, &owner);
    const HWND gone = owner.m_hWnd;
    owner.DestroyWindow();
    OwnerWindow main;
    AfxGetApp()->m_pMainWnd = &main;
    for (HWND parent : {gone, HWND()})
    {
        Start({.parent = parent}, look);
        EXPECT_EQ(seen, &main);
    }
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
}
