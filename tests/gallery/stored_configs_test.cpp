// The bolt patterns of the gallery: they outlive the program, with any name, and another window's stay.

#include "StoredConfigs.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace
{
class StoredConfigs : public testing::Test
{
protected:
    ~StoredConfigs() override { std::filesystem::remove(m_path); }

    /// A program that has just started.
    struct Program
    {
        explicit Program(const std::filesystem::path& path) : set(pattern, path.c_str())
        {
            set.LoadConfigs();
        }

        std::wstring Names()
        {
            CStringArray names;
            set.GetConfigNames(names);
            std::wstring all;
            for (INT_PTR i = 0; i < names.GetSize(); ++i)
                all += names[i] + L'|';
            return all;
        }

        BoltPattern pattern;
        CStoredConfigs set;
    };

    std::filesystem::path m_path = std::filesystem::temp_directory_path() / L"ow stored configs.txt";
};
} // namespace

TEST_F(StoredConfigs, AreThereAtTheNextStartWithTheirValues)
{
    const CString longName(L'n', 10000), oddName = L" \x010D = [1]; \"x\" ";
    {
        Program program(m_path);
        EXPECT_FALSE(program.set.IsConfigChanged());
        program.pattern = {5, 0.1 / 3.0, 0.05, 2};
        EXPECT_TRUE(program.set.IsConfigChanged());
        EXPECT_TRUE(program.set.AddConfig(oddName));
        program.pattern.nRows = 6;
        EXPECT_TRUE(program.set.AddConfig(longName));
        EXPECT_TRUE(program.set.AddConfig(L""));
        EXPECT_FALSE(program.set.AddConfig(longName));
        EXPECT_EQ(program.set.GetCurrentConfig(), 2);
    }
    Program again(m_path);
    EXPECT_EQ(again.Names(), (oddName + L"|" + longName + L"||").GetString());
    again.set.SetCurrentConfig(0);
    EXPECT_EQ(again.pattern, (BoltPattern{5, 0.1 / 3.0, 0.05, 2}));
    again.set.DeleteConfig(1);
    EXPECT_EQ(again.set.GetCurrentConfig(), 1);
    again.set.DeleteConfig(1);
    again.set.DeleteConfig(0);
    EXPECT_EQ(again.set.GetCurrentConfig(), -1);
    EXPECT_EQ(again.pattern, BoltPattern());
    EXPECT_EQ(Program(m_path).Names(), L"");
}

TEST_F(StoredConfigs, OfTwoWindowsDoNotDisplaceEachOther)
{
    Program first(m_path), second(m_path);
    first.set.AddConfig(L"A");
    second.set.AddConfig(L"B");
    second.pattern.nRows = 9;
    second.set.OverwriteConfig(L"A");
    first.set.AddConfig(L"C");
    first.set.DeleteConfig(1);
    Program again(m_path);
    EXPECT_EQ(again.Names(), L"A|B|");
    again.set.SetCurrentConfig(0);
    EXPECT_EQ(again.pattern.nRows, 9);
    EXPECT_EQ(first.Names(), L"A|") << "in step with its own list";
}

TEST_F(StoredConfigs, LeaveOutWhatIsNoPattern)
{
    std::ofstream(m_path) << "nonsense\nX\n4 0.07 0.04 1\nY";
    EXPECT_EQ(Program(m_path).Names(), L"Y|");
}
