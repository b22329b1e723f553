#pragma once
// The child's side of ChildProcess.h.

namespace owtest
{
/// First argument of a program that is run again as a child; the scenario's name follows.
inline constexpr char kChildArgument[] = "--child-scenario";

/// Runs a registered scenario; the exit code of a child that comes back from it. 97 for an unknown name.
int RunScenario(const char* name);
} // namespace owtest
