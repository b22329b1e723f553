#pragma once
// Measurements as ratios: the library's way against the bare way, in turns, in one run.
//
//     static const Benchmark keystroke("edits/keystroke", 1.15, [](Comparison& compare, auto& measure) {
//         compare.Ours([&] { Type(box); });
//         compare.Bare([&] { Type(plain); });
//         measure();
//     });
//
// A benchmark registers itself. Seconds are never printed: they tell of the machine.

#include <functional>
#include <optional>
#include <string_view>

/// The two sides of a measurement, and how often each is run.
class Comparison
{
public:
    /// Work of one run; several are made in turns with the other side's, and the median of each side counts.
    void Ours(std::function<void()> work) { m_ours = std::move(work); }
    void Bare(std::function<void()> work) { m_bare = std::move(work); }
    /// A single round is not preceded by one that is not measured.
    void Rounds(int count) { m_rounds = count; }
    /// Runs before each run of either side, and is not measured.
    void Prepare(std::function<void()> work) { m_prepare = std::move(work); }
    /// A plain number in place of a ratio: bytes for a cell, for instance. `measure` then prints it.
    void Number(double value) { m_number = value; }

    /// Time of our side by time of the bare side; or the number.
    double Measure() const;

private:
    std::function<void()> m_prepare = [] {};
    std::optional<double> m_number;
    std::function<void()> m_ours;
    std::function<void()> m_bare;
    int m_rounds = 31;
};

class Benchmark
{
public:
    /// `wanted` is the largest ratio that is wanted. `run` sets up, fills in both sides and calls `measure`,
    /// which runs them while all that was set up stands.
    using Measure = std::function<void()>;
    using Run = std::function<void(Comparison&, const Measure& measure)>;
    Benchmark(const char* name, double wanted, Run run);

    /// Runs those whose name begins with the prefix and prints a line each; how many were run.
    static int RunAll(std::string_view prefix);
};
