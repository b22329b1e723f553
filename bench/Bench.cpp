#include "Bench.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{
CWinApp theApp;

struct Registered
{
    std::string name;
    double wanted;
    Benchmark::Run run;
};

std::vector<Registered>& All()
{
    static std::vector<Registered> all;
    return all;
}

double TimeOf(const std::function<void()>& work)
{
    LARGE_INTEGER before, after;
    ::QueryPerformanceCounter(&before);
    work();
    ::QueryPerformanceCounter(&after);
    return static_cast<double>(after.QuadPart - before.QuadPart);
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}
} // namespace

double Comparison::Measure() const
{
    if (m_number)
        return *m_number;
    std::vector<double> ours, bare;
    if (m_rounds > 1) // both sides once unmeasured, to fill the caches
    {
        m_prepare();
        m_bare();
        m_prepare();
        m_ours();
    }
    for (int round = 0; round < m_rounds; ++round)
    {
        m_prepare();
        bare.push_back(TimeOf(m_bare));
        m_prepare();
        ours.push_back(TimeOf(m_ours));
    }
    return Median(ours) / Median(bare);
}

Benchmark::Benchmark(const char* name, double wanted, Run run)
{
    All().push_back({name, wanted, std::move(run)});
}

int Benchmark::RunAll(std::string_view prefix)
{
    std::sort(All().begin(), All().end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    int count = 0;
    for (const Registered& benchmark : All())
    {
        if (!std::string_view(benchmark.name).starts_with(prefix))
            continue;
        ++count;
        Comparison comparison;
        benchmark.run(comparison,
                      [&]
                      {
                          const double ratio = comparison.Measure();
                          std::printf("%-32s %6.2f   wanted at most %.2f%s\n", benchmark.name.c_str(), ratio,
                                      benchmark.wanted, ratio > benchmark.wanted ? "   OVER" : "");
                          std::fflush(stdout);
                      });
    }
    return count;
}

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 1;
    const char* prefix = argc > 1 ? argv[1] : "";
    if (Benchmark::RunAll(prefix) == 0)
    {
        std::fprintf(stderr, "bench: no benchmark begins with \"%s\"\n", prefix);
        return 1;
    }
    return 0;
}
