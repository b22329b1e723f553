// The entry point of every test program: an MFC application in a console program.

#include "ChildScenario.h"
#include "Ending.h"
#include "Input.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#ifdef OW_CHECK
#include "check/FaultReport.h"
#endif

namespace
{
CWinApp theApp;

class RestBeforeEachTest : public ::testing::EmptyTestEventListener
{
    void OnTestStart(const ::testing::TestInfo&) override { owtest::Rest(); }
};

std::string PresentTest()
{
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    return test ? std::string("in ") + test->test_suite_name() + '.' + test->name() : "outside of its tests";
}
} // namespace

int main(int argc, char** argv)
{
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOW))
    {
        std::fputs("AfxWinInit failed\n", stderr);
        return 1;
    }
    if (argc == 3 && std::string_view(argv[1]) == owtest::kChildArgument)
        return owtest::RunScenario(argv[2]);

    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new RestBeforeEachTest); // the list owns it
    const owtest::EndingGuard guard(&PresentTest);
#ifdef OW_CHECK
    owtest::ReportFaults();
#endif
    return RUN_ALL_TESTS();
}
