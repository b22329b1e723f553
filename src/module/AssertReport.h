#pragma once
// Fatal reports: what happens when an assumption of the code is broken.
//
// A failure appends a report with a stack dump to "owserror.log", shows one message box, stops at a debug
// break for a developer and ends the process. Nothing is recoverable, and no check can be switched off.
//
//     ASSERT_AT(!m_listId.IsEmpty(), ".\\ResourceIdPool", 37);                     // tests an expression
//     INTERNAL_ERROR_AT(L"Nedozvoljena vrednost.", ".\\OstrelMessageBox", 210);    // must not be reached
//
// The position in a report is how support finds the place, so it is given in words and stays the same from
// release to release. MFC's own ASSERT is another thing, for debug builds, and stays as it is.
//
// The log is "\owserror.log" in the root of the current drive, or, where that cannot be opened,
// "owserror.log" in the current directory. If the environment variable TMP is set, it is made the current
// directory first. Without a log the box is shown all the same.

#include "module/Export.h"

/// Reports a failed assertion and ends the process with exit code 0. Never returns.
/// `expression` is the source text of the test; `source` the source path as ".\Name".
extern "C++" OW_DIALOGCONTROLS_API void gfnReportFailedAssert [[noreturn]] (const char* expression,
                                                                          const char* source, int line);

/// Reports an internal error and ends the process with exit code 0. Never returns.
/// `messageSource` is the message as it stands in the source, prefix and quotes included, for the log.
extern "C++" OW_DIALOGCONTROLS_API void gfnReportInternalError
    [[noreturn]] (const wchar_t* message, const char* messageSource, const char* source, int line);

#define ASSERT_AT(expression, source, line)                                                                  \
    do                                                                                                       \
    {                                                                                                        \
        if (!(expression))                                                                                   \
            gfnReportFailedAssert(#expression, source, line);                                                \
    } while (false)

#define INTERNAL_ERROR_AT(message, source, line) gfnReportInternalError(message, #message, source, line)
