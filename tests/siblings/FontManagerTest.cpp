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
    void SetUp() override
    {
        m_directory =
            std::filesystem::temp_directory_path() / (L"shx" + std::to_wstring(::GetCurrentProcessId()));
        std::filesystem::create_directories(m_directory);
        m_dc.CreateCompatibleDC(nullptr);
    }

    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }

    void AddFile(const CString& name) { std::ofstream(m_directory / name.GetString()) << "shapes"; }

    void UseDirectories(std::initializer_list<std::filesystem::path> directories)
    {
        CStringArray paths;
        for (const auto& directory : directories)
            paths.Add(directory.c_str());
        m_manager.SetSHXDirectories(paths);
    }

    /// A TrueType face that this machine has: every machine has the first that is enumerated.
    CString SomeFace()
    {
        CFontManager plain;
        plain.Initialize(m_dc);
        return plain.Name(0);
    }

    std::filesystem::path m_directory;
    CDC m_dc;
    CFontManager m_manager;
};
} // namespace

TEST_F(FontManager, KnowsNothingUntilItIsInitialised)
{
    EXPECT_FALSE(m_manager.m_bInitialized);
    EXPECT_EQ(m_manager.Count(), 0);
    EXPECT_FALSE(m_manager.Initialize(nullptr));
    EXPECT_FALSE(m_manager.m_bInitialized);
}

TEST_F(FontManager, FindsTheInstalledFaces)
{
    ASSERT_TRUE(m_manager.Initialize(m_dc));
    EXPECT_TRUE(m_manager.m_bInitialized);
    ASSERT_GT(m_manager.Count(), 0);
    for (int i = 0; i < m_manager.Count(); ++i)
    {
        EXPECT_EQ(m_manager.Find(m_manager.Name(i)), i);
        EXPECT_EQ(m_manager.Class(i), eFontTrueType);
        EXPECT_NE(m_manager.Name(i)[0], L'@');
    }
    EXPECT_EQ(m_manager.Find(m_manager.Name(0).MakeUpper()), 0);
    EXPECT_EQ(m_manager.Find(L"No such face"), -1);
    for (int outside : {-1, m_manager.Count()})
        EXPECT_STREQ(m_manager.Name(outside), L"");
}

TEST_F(FontManager, ListsTheSHXFilesOfItsDirectories)
{
    AddFile(L"romans.shx");
    AddFile(L"TXT.SHX");
    AddFile(L"readme.txt");
    UseDirectories({m_directory / L"absent", m_directory});
    m_manager.Initialize(m_dc);

    EXPECT_EQ(m_manager.Class(m_manager.Find(L"romans")), eFontSHX);
    EXPECT_EQ(m_manager.Class(m_manager.Find(L"txt")), eFontSHX);
    EXPECT_EQ(m_manager.Find(L"readme"), -1);
    EXPECT_EQ(m_manager.Class(m_manager.Find(SomeFace())), eFontTrueType);
}

TEST_F(FontManager, NameOfAFaceAndAFileStandsForTheFile)
{
    const CString face = SomeFace();
    AddFile(face + L".shx");
    UseDirectories({m_directory});
    m_manager.Initialize(m_dc);
    EXPECT_EQ(m_manager.Class(m_manager.Find(face)), eFontSHX);

    int listed = 0;
    for (int i = 0; i < m_manager.Count(); ++i)
        listed += m_manager.Name(i).CompareNoCase(face) == 0;
    EXPECT_EQ(listed, 1);
}

TEST_F(FontManager, IsReadAnewWhenTheDirectoriesChange)
{
    m_manager.Initialize(m_dc);
    AddFile(L"romans.shx");
    UseDirectories({m_directory});
    EXPECT_FALSE(m_manager.m_bInitialized);
    m_manager.Initialize(m_dc);
    EXPECT_NE(m_manager.Find(L"romans"), -1);
}
