#pragma once
// A program that ends in the middle of its work says why on standard error, and ends with a code other than 0:
// a failed start, an exception that nobody handles, abort, a call of exit or ExitProcess.
//
//     const owtest::EndingGuard guard([] { return std::string("in Grid.Sorts"); });
//     return RUN_ALL_TESTS();
//
// Two ends are beyond it: TerminateProcess, and a full stack under Wine, which ends the program with code 1 and
// tells only its own log (WINEDEBUG=err+virtual).

#include <string>

namespace owtest
{
class EndingGuard
{
public:
    /// `where` is asked where the program ended. There is one guard in a program.
    explicit EndingGuard(std::string (*where)());
    /// From here on the program may end.
    ~EndingGuard();
    EndingGuard(const EndingGuard&) = delete;
    EndingGuard& operator=(const EndingGuard&) = delete;
};
} // namespace owtest
