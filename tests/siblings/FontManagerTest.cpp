// The font manager: installed faces, SHX files, and names that both have.

#include <FontManager.h>
#include <epgFont.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace
{
struct FontManager : testing::Test
{
    FontManager()
    {
        std::filesystem::create_directories(m_directory);
        m_dc.CreateCompatibleDC(nullptr);
    }
    ~FontManager() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }

    const std::filesystem::path m_directory =
        std::filesystem::temp_directory_path() / (L"shx" + std::to_wstring(::GetCurrentProcessId()));
    CDC m_dc;
    CFontManager m_manager;
};
} // namespace

TEST_F(FontManager, FindsTheInstalledFacesWhenItIsInitialised)
{
    EXPECT_FALSE(m_manager.Initialize(nullptr) || m_manager.m_bInitialized);
    EXPECT_EQ(m_manager.Count(), 0);
    ASSERT_TRUE(m_manager.Initialize(m_dc) && m_manager.m_bInitialized && m_manager.Count() > 0);
    for (int i = 0; i < m_manager.Count(); ++i)
    {
        EXPECT_TRUE(m_manager.Find(m_manager.Name(i).MakeUpper()) == i && m_manager.Name(i)[0] != L'@');
        EXPECT_EQ(m_manager.Class(i), eFontTrueType);
    }
    EXPECT_TRUE(m_manager.Find(L"Liberation Sans") >= 0 && m_manager.Find(L"Marlett") >= 0); // of symbols
    EXPECT_EQ(m_manager.Find(L"No such face"), -1);
    for (int outside : {-1, m_manager.Count()})
        EXPECT_STREQ(m_manager.Name(outside), L"");
}

TEST_F(FontManager, ListsTheSHXFilesOfItsDirectories)
{
    m_manager.Initialize(m_dc);
    const CString face = m_manager.Name(0), other = m_manager.Name(1);
    std::filesystem::create_directories(m_directory / L"first");
    for (const CString& file :
         {CString(L"first\\romans.shx"), CString(L"TXT.SHX"), CString(L"readme.txt"), face + L".shx"})
        std::ofstream(m_directory / file.GetString()) << "shapes";
    CStringArray directories;
    for (const wchar_t* directory : {L"first", L"absent", L"."})
        directories.Add((m_directory / directory).c_str());
    m_manager.SetSHXDirectories(directories);
    EXPECT_FALSE(m_manager.m_bInitialized) << "is to be read anew";
    m_manager.Initialize(m_dc);
    for (const CString& name : {CString(L"romans"), CString(L"txt"), face}) // a file counts more than a face
        EXPECT_EQ(m_manager.Class(m_manager.Find(name)), eFontSHX) << CStringA(name);
    EXPECT_EQ(m_manager.Find(L"readme"), -1);
    EXPECT_EQ(m_manager.Class(m_manager.Find(other)), eFontTrueType);
    int listed = 0;
    for (int i = 0; i < m_manager.Count(); ++i)
        listed += m_manager.Name(i).CompareNoCase(face) == 0;
    EXPECT_EQ(listed, 1);
    m_manager.SetSHXDirectories(CStringArray());
    m_manager.Initialize(m_dc);
    EXPECT_EQ(m_manager.Find(L"romans"), -1) << "of a directory that is none any more";
}
