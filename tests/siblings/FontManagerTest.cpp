// The font manager: installed faces, SHX files, and names that both have.

#include <FontManager.h>
#include <epgFont.h>

#include "Testing.h"

TEST(FontManager, FindsTheInstalledFacesAndTheSHXFilesOfItsDirectories)
{
    CFontManager manager;
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const auto find = [&](const CString& name) { return manager.Find(name); };
    EXPECT_FALSE(manager.Initialize(nullptr) || manager.m_bInitialized);
    ASSERT_TRUE(manager.Initialize(dc) && manager.m_bInitialized && manager.Count() > 0);
    for (int i = 0; i < manager.Count(); ++i)
    {
        EXPECT_TRUE(find(manager.Name(i).MakeUpper()) == i && manager.Name(i)[0] != L'@');
        EXPECT_EQ(manager.Class(i), eFontTrueType);
    }
    EXPECT_GE(find(L"Marlett"), 0) << "of symbols";
    EXPECT_EQ(manager.Name(-1) + manager.Name(manager.Count()), L"");

    namespace fs = std::filesystem;
    const fs::path root = fs::temp_directory_path() / (L"shx" + std::to_wstring(::GetCurrentProcessId()));
    fs::create_directories(root / L"first");
    const CString face = manager.Name(0), other = manager.Name(1);
    for (const CString& file :
         {CString(L"first\\romans.shx"), CString(L"TXT.SHX"), CString(L"readme.txt"), face + L".shx"})
        std::ofstream(root / file.GetString()) << "shapes";
    CStringArray directories;
    for (const wchar_t* directory : {L"first", L"absent", L"."})
        directories.Add((root / directory).c_str());
    manager.SetSHXDirectories(directories);
    EXPECT_FALSE(manager.m_bInitialized) << "is to be read anew";
    manager.Initialize(dc);
    std::error_code ignored;
    fs::remove_all(root, ignored);
    for (const CString& name : {CString(L"romans"), CString(L"txt"), face}) // a file counts more than a face
        EXPECT_EQ(manager.Class(find(name)), eFontSHX) << CStringA(name);
    EXPECT_EQ(find(L"readme"), -1);
    EXPECT_EQ(manager.Class(find(other)), eFontTrueType);
    EXPECT_NE(manager.Name(find(face) + 1), face) << "once";
    manager.SetSHXDirectories(CStringArray());
    manager.Initialize(dc);
    EXPECT_EQ(find(L"romans"), -1) << "of a directory that is none any more";
}
