// Fatal reports: log, box, break and exit, each scenario in a process of its own.

#include <DialogControlsOW.h>
#include <module/AssertReport.h>

#include "ChildProcess.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

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
        RemoveRootLog();
    }
    void TearDown() override
    {
        RemoveRootLog();
        fs::remove_all(m_base);
    }

    fs::path RootLog() const { return m_base.root_path() / L"owserror.log"; }
    fs::path TmpLog() const { return m_base / L"tmp" / L"owserror.log"; }
    fs::path CurrentLog() const { return m_base / L"current" / L"owserror.log"; }

    /// A directory of the log's name is in the way of a file of that name.
    void BlockRoot() { fs::create_directory(RootLog()); }

    owtest::ChildResult Run(const char* scenario, bool withTmp) const
    {
        owtest::ChildOptions options;
        options.directory = (m_base / L"current").wstring();
        if (withTmp)
            options.environment[L"TMP"] = (m_base / L"tmp").wstring();
        else
            options.unset.push_back(L"TMP");
        return owtest::RunChild(scenario, options);
    }

    static std::string Read(const fs::path& path)
    {
        std::ifstream file(path);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    fs::path m_base;

private:
    void RemoveRootLog() { fs::remove_all(RootLog()); }
};

constexpr char kAssertReportStart[] =
    R"(##### BEGINING OF STACK DUMP\n\nDate \[\d\d\.\d\d\.\d{4}\]\nLocal System Time \[\d\d:\d\d\]\n\n)"
    R"(ASSERT\(1 \+ 1 == 3\)\nFILE: \.\\Sums\nLINE: 12\n\n)";
constexpr char kReportEnd[] = "\n##### END OF STACK DUMP\n\n\n\n\n\n\n\n";

void ExpectAssertReport(const std::string& log)
{
    std::smatch start;
    EXPECT_TRUE(std::regex_search(log, start, std::regex(kAssertReportStart), std::regex_constants::match_continuous))
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
    const owtest::ChildResult result = Run("failed_assert", true);
    EXPECT_EQ(result.boxCaption, L"ASSERT FAILED - Error log \"owserror.log\" created.");
    EXPECT_EQ(result.boxText, L"ASSERT(1 + 1 == 3)\n[.\\Sums : 12]\n");
    EXPECT_TRUE(result.brokeIntoDebugger);
    EXPECT_EQ(result.exitCode, 0u);
    EXPECT_EQ(result.output, "") << "nothing runs after the report";

    ASSERT_TRUE(fs::exists(RootLog()));
    const std::string log = Read(RootLog());
    ExpectAssertReport(log);
    EXPECT_NE(log.find("DialogControlsOW"), log.npos) << "the stack stands between failure and end:\n" << log;
    EXPECT_FALSE(fs::exists(TmpLog()));
}

TEST_F(FatalReport, AnInternalErrorShowsThePlainMessageAndLogsItsSourceText)
{
    const owtest::ChildResult result = Run("internal_error", true);
    EXPECT_EQ(result.boxCaption, L"INTERNAL ERROR - PROGRAM TERMINATES");
    EXPECT_EQ(result.boxText, L"[.\\Choice : 40]\nNedozvoljena vrednost.");
    EXPECT_TRUE(result.brokeIntoDebugger);
    EXPECT_EQ(result.exitCode, 0u);
    EXPECT_NE(Read(RootLog()).find("ASSERT(L\"Nedozvoljena vrednost.\")\nFILE: .\\Choice\nLINE: 40\n\n"),
              std::string::npos);
}

TEST_F(FatalReport, TheLogGoesToTheTmpDirectoryWhereTheRootCannotBeWritten)
{
    BlockRoot();
    Run("failed_assert", true);
    ExpectAssertReport(Read(TmpLog()));
    EXPECT_FALSE(fs::exists(CurrentLog()));
}

TEST_F(FatalReport, WithoutTmpTheCurrentDirectoryStaysTheCurrentOne)
{
    BlockRoot();
    Run("failed_assert", false);
    ExpectAssertReport(Read(CurrentLog()));
    EXPECT_FALSE(fs::exists(TmpLog()));
}

TEST_F(FatalReport, WithoutAnyLogTheBoxIsShownAllTheSame)
{
    BlockRoot();
    fs::create_directory(CurrentLog());
    const owtest::ChildResult result = Run("failed_assert", false);
    EXPECT_EQ(result.boxCaption, L"ASSERT FAILED - Error log \"owserror.log\" created.") << "whatever it says";
    EXPECT_TRUE(result.brokeIntoDebugger);
}

TEST_F(FatalReport, ReportsAreAppended)
{
    Run("failed_assert", true);
    Run("internal_error", true);
    const std::string log = Read(RootLog());
    EXPECT_LT(log.find("Sums"), log.find("Choice"));
}

TEST_F(FatalReport, ALongExpressionIsCutInTheBoxAndWholeInTheLog)
{
    const owtest::ChildResult result = Run("assert_of_long_expression", true);
    EXPECT_EQ(result.boxText.size(), 1023u);
    EXPECT_NE(Read(RootLog()).find(std::string(5000, 'x')), std::string::npos);
}
