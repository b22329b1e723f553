#pragma once
// A subject of the soak program: registers itself by a name, and runs one sequence from a fresh start.
//
//     static const owtest::SoakSubject pages("pages", 300, [](const owtest::Steps& steps)
//                                            { return PagesSequence().Run(steps); });

#include "Sequence.h"

#include <functional>

namespace owtest
{
struct SoakSubject
{
    SoakSubject(std::string name, int steps, std::function<SequenceResult(const Steps&)> run);

    std::string name;
    int steps; ///< of one sequence
    std::function<SequenceResult(const Steps&)> run;
};
} // namespace owtest
