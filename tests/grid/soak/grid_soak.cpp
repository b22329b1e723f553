// Random sequences on the grid for as many minutes as one is told.
//
//     grid_soak MINUTES [SEED]
//
// Each sequence has a new seed, counted up from SEED or the present time. The first one that fails is printed
// with its steps, and ends the program with 1. To run one again: grid_soak 0 SEED.

#include <afxwin.h>

#include "../GridModel.h"

#include <cstdio>
#include <cstdlib>

namespace
{
CWinApp theApp;
constexpr int kSteps = 3000;
} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || !AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
    {
        std::fputs("usage: grid_soak MINUTES [SEED]\n", stderr);
        return 2;
    }
    unsigned seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : static_cast<unsigned>(::GetTickCount64());
    const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(std::atof(argv[1]) * 60000);
    long long steps = 0;
    do
    {
        for (const SequenceOptions& options :
             {SequenceOptions{}, SequenceOptions{.withInput = true}, SequenceOptions{.mixedCells = true},
              SequenceOptions{.withInput = true, .mixedCells = true}})
        {
            const SequenceResult result = RunGridSequence(seed, kSteps, options);
            steps += result.stepsDone;
            if (!result.failure.empty())
            {
                std::printf("%s\n", result.failure.c_str());
                return 1;
            }
        }
        ++seed;
    } while (::GetTickCount64() < end);
    std::printf("grid_soak: %lld steps, all well\n", steps);
    return 0;
}
