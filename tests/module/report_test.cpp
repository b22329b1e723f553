// Fatal reports: log, box, break and exit, each scenario in a process of its own.

#include <module/AssertReport.h>

#include "Texts.h"
#include "Testing.h"

#include <regex>

namespace fs = std::filesystem;

namespace
{
constexpr wchar_t kAssertText[] = L"ASSERT(1 + 1 == 3)\n[.\\Sums : 12]\n";

/// Two directories and the drive's root, which is where logs may come to stand; clean before and after.
struct FatalReport : ::testing::Test
{
    FatalReport()
    {
        Clean();
        fs::create_directories(m_tmp);
        fs::create_directories(m_current);
    }
    ~FatalReport() override { Clean(); }
    void Clean() const
    {
        fs::remove_all(m_rootLog);
        fs::remove_all(m_base);
    }
    /// In the current directory of the test, and with a value for TMP, or without one.
    owtest::ChildResult Run(const char* scenario, const std::wstring& tmp, const fs::path& program = {}) const
    {
        owtest::ChildOptions options{.unset = {L"TMP"}, .directory = m_current, .program = program};
        if (!tmp.empty())
            options.environment[L"TMP"] = tmp;
        return owtest::RunChild(scenario, options);
    }
    static void ExpectReport(const std::string& log)
    {
        static const std::regex s_start(
            R"(##### BEGINING OF STACK DUMP\n\nDate \[\d\d\.\d\d\.\d{4}\]\nLocal System Time \[\d\d:\d\d\]\n\n)"
            R"(ASSERT\(1 \+ 1 == 3\)\nFILE: \.\\Sums\nLINE: 12\n\n)");
        EXPECT_TRUE(std::regex_search(log, s_start, std::regex_constants::match_continuous)) << log;
        EXPECT_TRUE(log.ends_with("\n##### END OF STACK DUMP\n\n\n\n\n\n\n\n")) << log;
    }

    const fs::path m_base = fs::temp_directory_path() / L"owserror_test", m_tmp = m_base / L"tmp",
                   m_current = m_base / L"current", m_rootLog = m_base.root_path() / L"owserror.log",
                   m_tmpLog = m_tmp / L"owserror.log", m_currentLog = m_current / L"owserror.log";
};
} // namespace

OW_CHILD_SCENARIO(failed_assert)
{
    ASSERT_AT(1 + 1 == 2, ".\\Sums", 11);
    ASSERT_AT(1 + 1 == 3, ".\\Sums", 12);
    std::puts("went on");
}

static const owtest::ScenarioRegistration s_others[] = {
    {"internal_error", [] { INTERNAL_ERROR_AT(L"Nedozvoljena vrednost.", ".\\Choice", 40); }},
    {"long_expression", [] { gfnReportFailedAssert(std::string(5000, 'x').c_str(), ".\\Long", 1); }}};

// The stack text holds the paths of modules, and goes through a format.
TEST_F(FatalReport, AFailedAssertWritesItsReportShowsItBreaksAndEndsTheProcess)
{
    const fs::path program = fs::path(owtest::ProgramPath()).parent_path() / L"100%s%n.exe";
    fs::copy_file(owtest::ProgramPath(), program, fs::copy_options::overwrite_existing);
    const owtest::ChildResult result = Run("failed_assert", m_tmp, program);
    fs::remove(program);
    owtest::ExpectFailedAssert(result, kAssertText);
    EXPECT_EQ(result.output, "") << "nothing runs after the report";
    const std::string log = owtest::ContentsOf(m_rootLog);
    ExpectReport(log);
    for (const char* module : {"DialogControlsOW", "100%s%n.exe"})
        EXPECT_NE(log.find(module), log.npos) << "the stack stands between failure and end:\n" << log;

    owtest::ExpectInternalError(Run("internal_error", m_tmp), L"[.\\Choice : 40]\nNedozvoljena vrednost.");
    const std::string longer = owtest::ContentsOf(m_rootLog);
    EXPECT_TRUE(longer.starts_with(log)) << "reports are appended";
    EXPECT_NE(longer.find("ASSERT(L\"Nedozvoljena vrednost.\")\nFILE: .\\Choice\nLINE: 40\n\n"), longer.npos);

    EXPECT_EQ(Run("long_expression", m_tmp).boxText.size(), 1023u) << "cut in the box, and whole in the log";
    EXPECT_NE(owtest::ContentsOf(m_rootLog).find(std::string(5000, 'x')), std::string::npos);
}

TEST_F(FatalReport, TheLogGoesToTheTmpOrTheCurrentDirectoryWhereTheRootCannotBeWritten)
{
    fs::create_directory(m_rootLog); // a directory of that name is in the way
    const std::wstring tmp = m_tmp.wstring(), filler(250 - tmp.size(), L'\\'); // one more than is read
    const std::pair<std::wstring, const fs::path&> places[] = {{tmp, m_tmpLog},
                                                               {tmp + filler.substr(1), m_tmpLog},
                                                               {tmp + filler, m_currentLog},
                                                               {L"", m_currentLog}};
    for (const auto& [variable, log] : places)
    {
        Run("failed_assert", variable);
        ExpectReport(owtest::ContentsOf(log));
        fs::remove(log);
        EXPECT_FALSE(fs::exists(m_tmpLog) || fs::exists(m_currentLog));
    }
    fs::create_directory(m_currentLog);
    owtest::ExpectFailedAssert(Run("failed_assert", L""), kAssertText); // shows all the same
}
