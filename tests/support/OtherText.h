#pragma once
// A catalogue with a word of the test's own for one text, for the length of a scope: for texts that no catalogue
// of the tree changes. Or a whole catalogue.
//
//     const owtest::OtherText other("Cancel", "Odustani");

#include <afxwin.h>

#include <Translator.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace owtest
{
inline std::string ContentsOf(const std::filesystem::path& path)
{
    std::ostringstream contents;
    contents << std::ifstream(path).rdbuf();
    return contents.str();
}

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
} // namespace owtest
