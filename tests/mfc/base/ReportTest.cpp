// What reaches the user: failed assertions, and exceptions that report themselves.

#include "resource.h"

#include <ChildProcess.h>
#include <ModalVisit.h>

#include <gtest/gtest.h>

#include <cstdio>

OW_CHILD_SCENARIO(failed_assertion)
{
    int evaluated = 0;
    VERIFY(++evaluated == 2); // which is evaluated in every build
    ASSERT(++evaluated == 1);
    std::printf("went on after %d\n", evaluated);
}

TEST(Report, FailedAssertionBreaksInDebugBuildsOnly)
{
    const owtest::ChildResult result = owtest::RunChild("failed_assertion");
    ASSERT_TRUE(result.started);
#ifdef _DEBUG
    EXPECT_TRUE(result.brokeIntoDebugger);
    EXPECT_NE(result.output.find("went on after 2"), std::string::npos);
#else
    EXPECT_FALSE(result.brokeIntoDebugger);
    EXPECT_NE(result.output.find("went on after 1"), std::string::npos);
#endif
}

TEST(Report, ExceptionShowsItsMessageOrTheGivenOne)
{
    const auto textShown = [](CException& e, UINT defaultText)
    {
        CString text;
        owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                constexpr int messageId = 0xFFFF;
                box.GetDlgItemText(messageId, text);
                box.SendMessage(WM_COMMAND, IDOK);
            });
        EXPECT_EQ(e.ReportError(MB_OK, defaultText), IDOK);
        return text;
    };
    CFileException named(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"missing.txt");
    EXPECT_GE(textShown(named, IDS_GREETING).Find(L"missing.txt"), 0);
    CException silent(FALSE);
    EXPECT_EQ(textShown(silent, IDS_GREETING), L"Good day");
}
