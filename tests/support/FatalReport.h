#pragma once
// What all fatal reports have in common: a box with the place, a break into the debugger, and the end.

#include "ChildProcess.h"

#include <gtest/gtest.h>

namespace owtest
{
inline void ExpectReport(const ChildResult& result, const std::wstring& caption, const std::wstring& text)
{
    EXPECT_EQ(result.boxCaption, caption) << result.output;
    EXPECT_EQ(result.boxText, text) << result.output;
    EXPECT_TRUE(result.brokeIntoDebugger) << result.output;
    EXPECT_EQ(result.exitCode, 0u) << result.output;
}

inline void ExpectFailedAssert(const ChildResult& result, const std::wstring& text)
{
    ExpectReport(result, L"ASSERT FAILED - Error log \"owserror.log\" created.", text);
}

inline void ExpectInternalError(const ChildResult& result, const std::wstring& text)
{
    ExpectReport(result, L"INTERNAL ERROR - PROGRAM TERMINATES", text);
}
} // namespace owtest
