#pragma once
// Texts in another language, and the font that shows them.
//
//     const owtest::OtherText other("Cancel", "Odustani");

#include "Testing.h"

#include <Translator.h>

namespace owtest
{
inline std::string ContentsOf(const std::filesystem::path& path)
{
    std::ostringstream contents;
    contents << std::ifstream(path).rdbuf();
    return contents.str();
}

/// A catalogue with a word of the test's own for one text, for the length of a scope: for texts that no catalogue
/// of the tree changes. Or a whole catalogue.
class OtherText
{
public:
    OtherText(const std::string& text, const std::string& word)
        : OtherText("msgid \"" + text + "\"\nmsgstr \"" + word + "\"\n")
    {
    }
    explicit OtherText(const std::string& catalogue)
    {
        std::ofstream(m_path) << catalogue;
        EXPECT_TRUE(gOtLang.Load(m_path.c_str()));
    }
    ~OtherText()
    {
        gOtLang.Unload();
        std::filesystem::remove(m_path);
    }
    OtherText(const OtherText&) = delete;
    OtherText& operator=(const OtherText&) = delete;

private:
    std::filesystem::path m_path = std::filesystem::temp_directory_path() / L"ow other text.po";
};

/// The English catalogue that stands beside the programs, for the length of a scope.
struct EnglishTexts : OtherText
{
    EnglishTexts()
        : OtherText(ContentsOf(std::filesystem::path(ProgramPath()).replace_filename(L"locale/en.po")))
    {
    }
};

/// The language of the texts for drawings, for the length of a scope. Afterwards it is the display's again.
struct SubLanguage
{
    /// LANG_GREEK, for instance.
    explicit SubLanguage(WORD language) { Set(language); }
    ~SubLanguage() { SetDisplays(); }
    static void Set(WORD language) { gOtSubLang.SetCurrentLanguage(MAKELANGID(language, SUBLANG_DEFAULT)); }
    static void SetDisplays() { gOtSubLang.SetCurrentLanguage(::GetSystemDefaultLangID()); }
};

/// The description of a window's font; the system's font for a window without one.
inline LOGFONTW FontOf(const CWnd& window)
{
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window.m_hWnd, WM_GETFONT, 0, 0));
    LOGFONTW described{};
    ::GetObjectW(font ? font : ::GetStockObject(SYSTEM_FONT), sizeof described, &described);
    return described;
}
} // namespace owtest
