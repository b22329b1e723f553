// The translator: catalogues good and bad, dialogs.

#include <Translator.h>

#include "Testing.h"

namespace
{
struct Translator : testing::Test
{
    using Texts = std::vector<std::pair<LPCWSTR, LPCWSTR>>;

    ~Translator() override
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    bool Load(const std::string& catalogue)
    {
        std::ofstream(m_path, std::ios::binary) << catalogue;
        m_error = {};
        return m_translator.Load(m_path.c_str(), &m_error);
    }
    void Expect(const Texts& texts) const
    {
        for (const auto& [text, translation] : texts)
            EXPECT_STREQ(m_translator.Do(text), translation);
    }

    const std::filesystem::path m_path =
        std::filesystem::temp_directory_path() / (std::to_wstring(::GetCurrentProcessId()) + L"catalogue.po");
    ClTranslator m_translator;
    ClCatalogueError m_error;
};

const std::string kGood = "msgid \"Snimi\"\nmsgstr \"Save\"\n";
} // namespace

TEST_F(Translator, WithoutACatalogueTheSourceTextsStand)
{
    const Texts source{{L"Snimi", L"Snimi"}, {L"", L""}, {nullptr, L""}};
    EXPECT_FALSE(m_translator.IsLoaded() || m_translator.Has(L"Snimi"));
    Expect(source);
    ASSERT_TRUE(Load(kGood) && m_translator.IsLoaded() && m_translator.Has(L"Snimi"));
    Expect({{L"Snimi", L"Save"}, {L"snimi", L"snimi"}}); // the case counts
    m_translator.Unload();
    Expect(source);
}

TEST_F(Translator, ReadsWhatACatalogueMayHold)
{
    ASSERT_TRUE(Load("\xEF\xBB\xBF"
                     R"(# a remark
msgid ""
msgstr "Content-Type: text/plain; charset=UTF-8\n"

#: source.cpp:12
msgid ""
"Prva\n"
"druga"
msgstr "First\nsecond"
msgctxt "dugme"
msgid "Otvori"
msgstr "Open"
#, fuzzy, c-format
#| msgid "Staro"
msgid "Nesigurno"
msgstr "Doubtful"
msgid "Prazno"
msgstr ""
#~ msgid "Nekad"
#~ msgstr "Once"
msgid "%d list"
msgid_plural "%d listova"
msgstr[0] "%d sheet"
msgstr[1] "%d sheets"
)"
                     "msgid \"\xC5\xA0irina\"\r\n" // a line that ends in two characters
                     "msgstr \"Width \\\"\xC2\xB2\\\" \\\\ \\t \\x4a\\x4B\\102\""))
        << CStringA(m_error.Format());
    Expect({{L"Prva\ndruga", L"First\nsecond"},
            {L"Otvori", L"Otvori"}, // stands under its context only
            {L"Nesigurno", L"Nesigurno"},
            {L"Prazno", L"Prazno"},
            {L"Nekad", L"Nekad"},
            {L"%d list", L"%d sheet"},
            {L"Širina", L"Width \"²\" \\ \t JKB"}});
    EXPECT_STREQ(m_translator.Do(L"dugme", L"Otvori"), L"Open");
    EXPECT_STREQ(m_translator.Do(L"meni", L"Otvori"), L"Otvori");
    EXPECT_EQ(m_translator.Count(), 4);
}

TEST_F(Translator, BadCatalogueIsRefusedWithItsLine)
{
    const std::tuple<const char*, std::string, int> cases[] = {
        {"no closing quotation mark", "msgid \"a\"\nmsgstr \"b\n", 2},
        {"text behind the text", "msgid \"a\" b\n", 1},
        {"unknown keyword", "msgid \"a\"\nmsgid_plural \"b\"\nmsgstr[0] \"c\"\nmsgtext] \"d\"\n", 4},
        {"unknown escape sequence", "msgid \"a\"\nmsgstr \"\\q\"\n", 2},
        {"text without a keyword", "\n\"a\"\n", 2},
        {"translation without a text", "# x\nmsgstr \"b\"\n", 2},
        {"text without a translation", "msgid \"a\"\n\nmsgctxt \"c\"\n", 1},
        {"translation twice", "msgid \"a\"\nmsgstr \"b\"\nmsgstr \"c\"\n", 3},
        {"text twice", kGood + "\n" + kGood, 4},
        {"not UTF-8", "msgid \"a\"\nmsgstr \"\xE8\"\n", 2},
        {"another character set", "msgid \"\"\nmsgstr \"charset=windows-1250\\n\"\n", 2}};
    ASSERT_TRUE(Load(kGood));
    for (const auto& [what, catalogue, line] : cases)
    {
        EXPECT_TRUE(!Load(catalogue) && m_error.nLine == line && !m_error.strWhat.IsEmpty()) << what;
        EXPECT_STREQ(m_translator.Do(L"Snimi"), L"Save") << "the former catalogue stays";
    }
    EXPECT_NE(m_error.Format().Find(L".po(2): "), -1) << CStringA(m_error.Format());
    EXPECT_FALSE(m_translator.Load(L"no such directory\\en.po", &m_error));
    EXPECT_STREQ(m_error.Format(), L"no such directory\\en.po: the file cannot be read");
    EXPECT_FALSE(m_translator.Load(nullptr));
}

TEST_F(Translator, DialogIsTranslatedExceptForWhatTheUserEnters)
{
    ASSERT_TRUE(Load(kGood));
    CWnd dialog;
    ASSERT_TRUE(
        dialog.CreateEx(0, AfxRegisterWndClass(0), L"Snimi", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr));
    const auto add = [](HWND parent, LPCWSTR className)
    {
        const HWND window = ::CreateWindowExW(0, className, L"", WS_CHILD | CBS_DROPDOWN, 0, 0, 50, 20,
                                              parent, nullptr, nullptr, nullptr);
        ::SetWindowTextW(window, L"Snimi");
        return window;
    };
    ASSERT_NE(::LoadLibraryW(L"riched20.dll"), nullptr);
    const HWND page = add(dialog, L"Static");
    const HWND windows[] = {dialog,
                            add(dialog, L"Button"),
                            page,
                            add(page, L"Button"),
                            add(dialog, L"Edit"),
                            add(dialog, L"ComboBox"),
                            add(dialog, L"RichEdit20W")};
    for (const int children : {0, 1})
    {
        m_translator.TranslateDialog(&dialog, children);
        for (int i = 0; i < std::ssize(windows); ++i)
            EXPECT_EQ(owtest::TextOf(*CWnd::FromHandle(windows[i])), i <= 3 * children ? L"Save" : L"Snimi");
    }
    dialog.DestroyWindow();
    m_translator.TranslateDialog(&dialog); // a window that is gone is ignored
}

TEST(EnglishCatalogue, TranslatesEachOfItsTextsOnce)
{
    // The gallery's begins with the library's.
    const auto path = std::filesystem::path(owtest::ProgramPath()).parent_path() / L"locale/gallery_en.po";
    ClTranslator translator;
    ClCatalogueError error;
    ASSERT_TRUE(translator.Load(path.c_str(), &error)) << CStringA(error.Format());

    std::ifstream file(path);
    int entries = -1; // the header is none
    for (std::string line; std::getline(file, line);)
        entries += line.starts_with("msgid ");
    EXPECT_EQ(translator.Count(), entries) << "a text is without a translation, or fuzzy";
}
