#pragma once
// Random sequences of operations: a class derived from Sequence picks one in each step, says it, does it, and checks.
// A step is a number, from which it draws all its choices. So a sequence is a list of numbers, and what a step
// does hardly changes when others are left out: a sequence that fails can be made shorter (soak.cpp).

#include <atomic>
#include <cstdio>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace owtest
{
using Steps = std::vector<unsigned>;

inline Steps StepsOf(unsigned seed, int count)
{
    std::mt19937 random(seed);
    Steps steps(count);
    for (unsigned& step : steps)
        step = random();
    return steps;
}

struct SequenceResult
{
    int stepsDone = 0;
    std::string failure; ///< empty if all went well; otherwise what differed, and the steps up to there
};

class Sequence
{
public:
    virtual ~Sequence() = default;
    Sequence() = default;
    Sequence(const Sequence&) = delete;
    Sequence& operator=(const Sequence&) = delete;

    SequenceResult Run(const Steps& steps)
    {
        SequenceResult result;
        for (const unsigned step : steps)
        {
            m_random.seed(step);
            ++stepsBegun;
            Step();
            Check();
            if (!m_problem.str().empty())
            {
                result.failure = "step " + std::to_string(result.stepsDone) + ": " + m_problem.str() +
                                 "\nsteps:\n" + m_log.str();
                break;
            }
            ++result.stepsDone;
        }
        return result;
    }

    /// Where steps are written as they begin, so that they are known also when one of them ends the program.
    static inline std::FILE* trace = nullptr;
    /// By all sequences of the process. A step that never ends is known by it.
    static inline std::atomic<int> stepsBegun = 0;

protected:
    /// Does one thing, which it has said before.
    virtual void Step() = 0;
    /// What must hold after each step.
    virtual void Check() = 0;

    int Pick(int below) { return below > 0 ? static_cast<int>(m_random() % below) : 0; }
    /// One of several.
    template <class Items>
    const auto& OneOf(const Items& items)
    {
        return items[Pick(static_cast<int>(std::size(items)))];
    }
    template <class... Parts>
    void Say(const Parts&... parts)
    {
        std::ostringstream line;
        ((line << ' ' << parts), ...);
        line << '\n';
        m_log << line.str();
        if (trace)
            std::fputs(line.str().c_str(), trace);
    }
    template <class... Parts>
    void Problem(const Parts&... parts)
    {
        ((m_problem << parts), ...) << "; ";
    }
    void Expect(bool condition, const char* what)
    {
        if (!condition)
            Problem(what);
    }

private:
    std::minstd_rand m_random;
    std::ostringstream m_log, m_problem;
};

/// Registers itself with the soak program by a name, and runs one sequence from a fresh start.
struct SoakSubject
{
    SoakSubject(std::string name, int steps, std::function<SequenceResult(const Steps&)> run);

    std::string name;
    int steps; ///< of one sequence
    std::function<SequenceResult(const Steps&)> run;
};
} // namespace owtest
