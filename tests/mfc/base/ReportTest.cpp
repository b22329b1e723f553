// What reaches the user: failed assertions, and exceptions that report themselves.

#include "resource.h"

#include <ChildProcess.h>

#include <afx.h>

#include <gtest/gtest.h>

#include <cstdio>

OW_CHILD_SCENARIO(failed_assertion)
{
    ASSERT(1 + 1 == 3);
    std::puts("went on");
}

OW_CHILD_SCENARIO(kept_assertion)
{
    int evaluated = 0;
    VERIFY(++evaluated == 1);
    CMemFile file;
    ASSERT_VALID(&file);
    ASSERT_KINDOF(CFile, &file);
    std::printf("evaluated %d\n", evaluated);
}

OW_CHILD_SCENARIO(reported_file_exception)
{
    CFileException e(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"missing.txt");
    std::printf("answer %d\n", e.ReportError());
}

OW_CHILD_SCENARIO(reported_silent_exception)
{
    CException e(FALSE);
    e.ReportError(MB_OK, IDS_GREETING);
}

TEST(Report, FailedAssertionBreaksInDebugBuildsOnly)
{
    const owtest::ChildResult result = owtest::RunChild("failed_assertion");
    ASSERT_TRUE(result.started);
#ifdef _DEBUG
    EXPECT_TRUE(result.brokeIntoDebugger);
#else
    EXPECT_FALSE(result.brokeIntoDebugger);
#endif
    EXPECT_NE(result.output.find("went on"), std::string::npos);
}

TEST(Report, AssertionThatHoldsIsSilentAndVerifyIsAlwaysEvaluated)
{
    const owtest::ChildResult result = owtest::RunChild("kept_assertion");
    ASSERT_TRUE(result.started);
    EXPECT_FALSE(result.brokeIntoDebugger);
    EXPECT_NE(result.output.find("evaluated 1"), std::string::npos);
}

TEST(Report, ExceptionShowsItsMessageOrTheGivenOne)
{
    const owtest::ChildResult file = owtest::RunChild("reported_file_exception");
    EXPECT_NE(file.boxText.find(L"missing.txt"), std::wstring::npos);
    EXPECT_NE(file.output.find("answer 1"), std::string::npos) << "IDOK";
    EXPECT_EQ(owtest::RunChild("reported_silent_exception").boxText, L"Good day");
}
