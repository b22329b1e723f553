#pragma once
// Runs this test program again as a child, for behaviour that ends the process. A scenario is registered by name in
// the program and run alone in the child:
//
//     OW_CHILD_SCENARIO(pool_exhausted) { for (int i = 0; i < 201; ++i) pool.AcquireId(); }
//     EXPECT_EQ(owtest::RunChild("pool_exhausted").boxText, L"...");

#include <map>
#include <string>
#include <vector>

#include <windows.h>

namespace owtest
{
struct ChildOptions
{
    std::map<std::wstring, std::wstring> environment = {}; ///< set in the child
    std::vector<std::wstring> unset = {};                  ///< taken out of the child's environment
    std::wstring directory = {}; ///< current directory of the child; empty keeps ours
    std::wstring program = {};   ///< a copy of this program to run in its place
    DWORD timeoutMs = 240000;    ///< far more than a busy machine takes
};

/// What the parent saw. A message box of the child is read and then closed by its OK button.
struct ChildResult
{
    bool started = false;
    bool timedOut = false;
    bool brokeIntoDebugger = false; ///< a breakpoint exception was raised, and continued by us
    DWORD exitCode = 0;
    std::wstring boxCaption, boxText;
    std::string output; ///< standard output of the scenario
};

/// Path of this program.
std::wstring ProgramPath();

/// Runs a scenario under the debug interface, so that DebugBreak is seen and stepped over.
ChildResult RunChild(const char* scenario, const ChildOptions& options = {});

/// First argument of a program that is run again as a child; the scenario's name follows.
inline constexpr char kChildArgument[] = "--child-scenario";
/// The child's side: runs a registered scenario and answers the exit code. 97 for an unknown name.
int RunScenario(const char* name);

using ScenarioFunction = void (*)();
struct ScenarioRegistration
{
    ScenarioRegistration(const char* name, ScenarioFunction function);
};
} // namespace owtest

#define OW_CHILD_SCENARIO(name)                                                                              \
    static void owScenario_##name();                                                                         \
    static const owtest::ScenarioRegistration owScenarioRegistration_##name(#name, &owScenario_##name);      \
    static void owScenario_##name()
