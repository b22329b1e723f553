// Fatal reports: log, box, break and exit, each scenario in a process of its own.

#include <DialogControlsOW.h>
#include <module/AssertReport.h>

#include "FatalReport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

namespace fs = std::filesystem;

namespace
{
/// Two directories and the drive's root, which is where logs may come to stand; clean before and after.
class FatalReport : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_base = fs::temp_directory_path() / L"owserror_test";
        fs::remove_all(m_base);
        fs::create_directories(m_base / L"tmp");
        fs::create_directories(m_base / L"current");
        fs::remove_all(RootLog());
    }
    void TearDown() override
    {
        fs::remove_all(RootLog());
        fs::remove_all(m_base);
    }

    fs::path RootLog() const { return m_base.root_path() / L"owserror.log"; }
    fs::path TmpLog() const { return m_base / L"tmp" / L"owserror.log"; }
    fs::path CurrentLog() const { return m_base / L"current" / L"owserror.log"; }

    /// In the current directory of the test, and with its other one for TMP if the options say nothing of that.
    owtest::ChildResult Run(const char* scenario, owtest::ChildOptions options = {}) const
    {
        options.directory = (m_base / L"current").wstring();
        if (options.unset.empty())
            options.environment.emplace(L"TMP", (m_base / L"tmp").wstring());
        return owtest::RunChild(scenario, options);
    }
    static std::string Read(const fs::path& path)
    {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    fs::path m_base;
};

constexpr wchar_t kAssertText[] = L"ASSERT(1 + 1 == 3)\n[.\\Sums : 12]\n";
constexpr char kAssertReportStart[] =
    R"(##### BEGINING OF STACK DUMP\n\nDate \[\d\d\.\d\d\.\d{4}\]\nLocal System Time \[\d\d:\d\d\]\n\n)"
    R"(ASSERT\(1 \+ 1 == 3\)\nFILE: \.\\Sums\nLINE: 12\n\n)";
constexpr char kReportEnd[] = "\n##### END OF STACK DUMP\n\n\n\n\n\n\n\n";

void ExpectAssertReport(const std::string& log)
{
    std::smatch start;
    EXPECT_TRUE(
        std::regex_search(log, start, std::regex(kAssertReportStart), std::regex_constants::match_continuous))
        << log;
    EXPECT_TRUE(log.ends_with(kReportEnd)) << log;
}
} // namespace

OW_CHILD_SCENARIO(failed_assert)
{
    ASSERT_AT(1 + 1 == 2, ".\\Sums", 11);
    ASSERT_AT(1 + 1 == 3, ".\\Sums", 12);
    std::puts("went on");
}

OW_CHILD_SCENARIO(internal_error)
{
    INTERNAL_ERROR_AT(L"Nedozvoljena vrednost.", ".\\Choice", 40);
}

OW_CHILD_SCENARIO(assert_of_long_expression)
{
    gfnReportFailedAssert(std::string(5000, 'x').c_str(), ".\\Long", 1);
}

TEST_F(FatalReport, AFailedAssertWritesItsReportShowsItBreaksAndEndsTheProcess)
{
    const owtest::ChildResult result = Run("failed_assert");
    owtest::ExpectFailedAssert(result, kAssertText);
    EXPECT_EQ(result.output, "") << "nothing runs after the report";
    const std::string log = Read(RootLog());
    ExpectAssertReport(log);
    EXPECT_NE(log.find("DialogControlsOW"), log.npos) << "the stack stands between failure and end:\n" << log;
    EXPECT_FALSE(fs::exists(TmpLog()));

    owtest::ExpectInternalError(Run("internal_error"), L"[.\\Choice : 40]\nNedozvoljena vrednost.");
    const std::string longer = Read(RootLog());
    EXPECT_TRUE(longer.starts_with(log)) << "reports are appended";
    EXPECT_NE(longer.find("ASSERT(L\"Nedozvoljena vrednost.\")\nFILE: .\\Choice\nLINE: 40\n\n"), longer.npos);
}

// The stack text holds the paths of modules, and goes through a format.
TEST_F(FatalReport, PercentSignsInTheNameOfAModuleAreWrittenAsTheyStand)
{
    const fs::path program = fs::path(owtest::ProgramPath()).parent_path() / L"100%s%n.exe";
    fs::remove(program); // of a run that was broken off
    fs::copy_file(owtest::ProgramPath(), program);
    const owtest::ChildResult result = Run("failed_assert", {.program = program.wstring()});
    fs::remove(program);
    owtest::ExpectFailedAssert(result, kAssertText);
    const std::string log = Read(RootLog());
    ExpectAssertReport(log);
    EXPECT_NE(log.find("100%s%n.exe"), log.npos) << log;
}

TEST_F(FatalReport, TheLogGoesToTheTmpOrTheCurrentDirectoryWhereTheRootCannotBeWritten)
{
    fs::create_directory(RootLog()); // a directory of that name is in the way
    Run("failed_assert");
    ExpectAssertReport(Read(TmpLog()));
    EXPECT_FALSE(fs::exists(CurrentLog()));

    for (const bool bRead : {true, false}) // as many characters as are read, and one more
    {
        fs::remove(TmpLog());
        std::wstring tmp = (m_base / L"tmp").wstring();
        tmp.resize(bRead ? 249 : 250, L'\\');
        Run("failed_assert", {.environment = {{L"TMP", tmp}}});
        EXPECT_TRUE(fs::exists(TmpLog()) == bRead && fs::exists(CurrentLog()) != bRead);
    }
    fs::remove(CurrentLog());
    Run("failed_assert", {.unset = {L"TMP"}});
    ExpectAssertReport(Read(CurrentLog()));
    EXPECT_FALSE(fs::exists(TmpLog()));

    fs::remove(CurrentLog());
    fs::create_directory(CurrentLog());
    // The box is shown all the same.
    owtest::ExpectFailedAssert(Run("failed_assert", {.unset = {L"TMP"}}), kAssertText);
}

TEST_F(FatalReport, ALongExpressionIsCutInTheBoxAndWholeInTheLog)
{
    EXPECT_EQ(Run("assert_of_long_expression").boxText.size(), 1023u);
    EXPECT_NE(Read(RootLog()).find(std::string(5000, 'x')), std::string::npos);
}
