// The bolt patterns of the gallery: they outlive the program, with any name, and another window's stay.

#include "StoredConfigs.h"
#include "Testing.h"

namespace
{
/// A program that has just started.
struct Program
{
    Program() : set(pattern, Path().c_str()) { set.LoadConfigs(); }

    std::wstring Names()
    {
        CStringArray names;
        CString all;
        for (int i = 0, count = set.GetConfigNames(names); i < count; ++i)
            all += names[i] + L'|';
        return all.GetString();
    }
    static std::filesystem::path Path()
    {
        return std::filesystem::temp_directory_path() / L"ow stored configs.txt";
    }

    BoltPattern pattern;
    CStoredConfigs set;
};
} // namespace

TEST(StoredConfigs, AreThereAtTheNextStartWithTheirValues)
{
    const CString longName(L'n', 10000), oddName = L" \x010D = [1]; \"x\" ";
    std::ofstream(Program::Path()) << "nonsense\nX\n4 0.07 0.04 1\nY";
    Program program;
    EXPECT_EQ(program.Names(), L"Y|");
    program.set.DeleteConfig(0);
    EXPECT_EQ(program.set.GetCurrentConfig(), -1);
    program.pattern = {5, 0.1 / 3.0, 0.05, 2};
    EXPECT_TRUE(program.set.IsConfigChanged());
    EXPECT_TRUE(program.set.AddConfig(oddName) && program.set.AddConfig(longName) &&
                program.set.AddConfig(L""));
    EXPECT_FALSE(program.set.AddConfig(longName));

    Program again;
    EXPECT_EQ(again.Names(), (oddName + L"|" + longName + L"||").GetString());
    again.set.SetCurrentConfig(1);
    EXPECT_EQ(again.pattern, program.pattern);
    again.set.DeleteConfig(1);
    EXPECT_EQ(again.set.GetConfigName(again.set.GetCurrentConfig()), L"") << "the one that followed";
    again.set.DeleteConfig(1);
    EXPECT_EQ(again.set.GetCurrentConfig(), 0) << "or else the last one";
    std::filesystem::remove(Program::Path());
}

TEST(StoredConfigs, OfTwoWindowsDoNotDisplaceEachOther)
{
    Program first, second;
    first.set.AddConfig(L"A");
    second.set.AddConfig(L"B");
    second.pattern.nRows = 9;
    second.set.OverwriteConfig(L"A");
    Program again;
    EXPECT_EQ(again.Names(), L"A|B|");
    again.set.SetCurrentConfig(0);
    EXPECT_EQ(again.pattern.nRows, 9);
    EXPECT_EQ(first.Names(), L"A|") << "in step with its own list";
    std::filesystem::remove(Program::Path());
}
