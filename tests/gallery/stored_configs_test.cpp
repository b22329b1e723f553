// The bolt patterns of the gallery: they outlive the program, with any name, and another window's stay.

#include "StoredConfigs.h"
#include "Testing.h"

namespace
{
const auto kPath = std::filesystem::temp_directory_path() / L"ow stored configs.txt";
} // namespace

TEST(StoredConfigs, AreThereAtTheNextStartWithTheirValuesAndAnyName)
{
    const CString names[] = {L" \x010D = [1]; \"x\" ", CString(L'n', 10000), L""};
    std::ofstream(kPath) << "nonsense\nX\n4 0.07 0.04 1\nY";
    BoltPattern pattern, patternAgain;
    CStoredConfigs set(pattern, kPath.c_str()), again(patternAgain, kPath.c_str());
    set.LoadConfigs();
    EXPECT_EQ(set.GetConfigName(0), L"Y");
    set.DeleteConfig(0);
    EXPECT_EQ(set.GetCurrentConfig(), -1);
    pattern = {5, 0.1 / 3.0, 0.05, 2};
    EXPECT_TRUE(set.IsConfigChanged());
    for (const CString& name : names)
        EXPECT_TRUE(set.AddConfig(name) && !set.AddConfig(name));

    again.LoadConfigs();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(again.GetConfigName(i), names[i]);
    again.SetCurrentConfig(1);
    EXPECT_EQ(patternAgain, pattern);
    again.DeleteConfig(1);
    EXPECT_EQ(again.GetConfigName(again.GetCurrentConfig()), L"") << "the one that followed";
    again.DeleteConfig(1);
    EXPECT_EQ(again.GetCurrentConfig(), 0) << "or else the last one";
    std::filesystem::remove(kPath);
}

TEST(StoredConfigs, OfTwoWindowsDoNotDisplaceEachOther)
{
    BoltPattern patterns[3];
    CStoredConfigs first(patterns[0], kPath.c_str()), second(patterns[1], kPath.c_str()),
        again(patterns[2], kPath.c_str());
    first.AddConfig(L"A");
    second.AddConfig(L"B");
    patterns[1].nRows = 9;
    second.OverwriteConfig(L"A");
    again.LoadConfigs();
    EXPECT_EQ(again.GetConfigName(1), L"B");
    again.SetCurrentConfig(0);
    EXPECT_EQ(patterns[2].nRows, 9);
    std::filesystem::remove(kPath);
}
