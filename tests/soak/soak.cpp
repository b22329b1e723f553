// Random sequences of operations on the library's controls, for as many minutes as one is told.
//
//     soak MINUTES [SEED]
//     soak replay SUBJECT STEP...
//
// Each round runs a sequence of every subject, from a seed of its own that counts up from SEED or the present time,
// in a process of its own: a crash, a failed assertion and a hang are failures like any other. The first sequence
// that fails is made shorter for as long as it fails, printed, and ends the program with 1. `soak 0 SEED` runs its
// round again, `soak replay` the shortened sequence, in this process.

#include "Sequence.h"
#include "Testing.h"

using owtest::SoakSubject;
using owtest::Steps;

namespace
{
CWinApp theApp;

constexpr wchar_t kStepsVariable[] = L"OW_SOAK_STEPS";
constexpr DWORD kHangMs = 300000;   // of a sequence that waits for ever
constexpr ULONGLONG kStepMs = 3000; // of the processor: far more than any step takes
constexpr ULONGLONG kShorteningMs = 600000;

std::map<std::string, const SoakSubject*>& Subjects()
{
    static std::map<std::string, const SoakSubject*> subjects;
    return subjects;
}

std::string TextOf(const Steps& steps)
{
    std::ostringstream text;
    for (const unsigned step : steps)
        text << std::hex << step << ' '; // shorter: an environment holds 32767 characters
    return text.str();
}

Steps StepsIn(const std::string& text)
{
    std::istringstream words(text);
    words >> std::hex;
    return Steps(std::istream_iterator<unsigned>(words), {});
}

ULONGLONG ProcessorMs()
{
    ULARGE_INTEGER kernel, user;
    FILETIME unused;
    ::GetProcessTimes(::GetCurrentProcess(), &unused, &unused, reinterpret_cast<FILETIME*>(&kernel),
                      reinterpret_cast<FILETIME*>(&user));
    return (kernel.QuadPart + user.QuadPart) / 10000;
}

/// Ends the process when a step runs for ever: so a hang is told in seconds, and can be made shorter.
void WatchSteps()
{
    int step = -1;
    for (ULONGLONG began = 0;; ::Sleep(200))
    {
        const ULONGLONG now = ProcessorMs();
        if (const int present = owtest::Sequence::stepsBegun; present != step)
        {
            step = present;
            began = now;
        }
        else if (now - began > kStepMs)
        {
            std::puts("the step does not end");
            ::TerminateProcess(::GetCurrentProcess(), 3);
        }
    }
}

/// Runs a sequence in this process, tells each step as it begins, and answers the exit code.
int RunHere(const SoakSubject& subject, const Steps& steps)
{
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    owtest::Sequence::trace = stdout;
    std::thread(WatchSteps).detach();
    const std::string failure = subject.run(steps).failure;
    std::puts(failure.substr(0, failure.find('\n')).c_str());
    return failure.empty() ? 0 : 1;
}

/// What went wrong with a sequence in a process of its own; empty if nothing did.
std::string Failure(const SoakSubject& subject, const Steps& steps)
{
    const std::string text = TextOf(steps);
    const owtest::ChildResult result = owtest::RunChild(
        subject.name.c_str(),
        {.environment = {{kStepsVariable, std::wstring(text.begin(), text.end())}}, .timeoutMs = kHangMs});
    if (!result.started)
        std::exit(2);
    if (result.exitCode == 0 && result.boxText.empty())
        return "";
    const CStringA box(result.boxText.c_str());
    return result.output + (result.timedOut ? "the sequence hangs\n" : "") + box.GetString() +
           "\nended with code " + std::to_string(result.exitCode) + '\n';
}

/// Leaves out ever smaller parts of the sequence for as long as the rest still fails.
Steps Shortest(const SoakSubject& subject, Steps steps)
{
    const ULONGLONG deadline = ::GetTickCount64() + kShorteningMs;
    for (size_t part = std::max<size_t>(steps.size() / 2, 1); part > 0; part /= 2)
        for (size_t end = steps.size(); end > 0 && ::GetTickCount64() < deadline; end -= std::min(part, end))
        {
            const size_t begin = end - std::min(part, end);
            Steps fewer(steps.begin(), steps.begin() + begin);
            fewer.insert(fewer.end(), steps.begin() + std::min(end, steps.size()), steps.end());
            if (!Failure(subject, fewer).empty())
                steps = fewer;
        }
    return steps;
}

/// False after a failure, which has been printed.
bool RunOne(const SoakSubject& subject, unsigned seed)
{
    const Steps steps = owtest::StepsOf(seed, subject.steps);
    const std::string failure = Failure(subject, steps);
    if (failure.empty())
        return true;
    std::printf("%s fails with seed %u:\n%s\nMaking it shorter...\n", subject.name.c_str(), seed,
                failure.substr(failure.size() - std::min<size_t>(failure.size(), 2000)).c_str());
    const Steps shortest = Shortest(subject, steps);
    std::printf("The shortest sequence:\n%s\nsoak replay %s %s\n", Failure(subject, shortest).c_str(),
                subject.name.c_str(), TextOf(shortest).c_str());
    return false;
}

int RunFor(double minutes, unsigned seed)
{
    const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(minutes * 60000);
    int sequences = 0;
    do
    {
        for (const auto& [name, subject] : Subjects())
        {
            if (!RunOne(*subject, seed))
                return 1;
            ++sequences;
        }
        ++seed;
    } while (::GetTickCount64() < end);
    std::printf("soak: %d sequences, all well\n", sequences);
    return 0;
}
} // namespace

SoakSubject::SoakSubject(std::string theName, int theSteps,
                         std::function<owtest::SequenceResult(const Steps&)> theRun)
    : name(std::move(theName)), steps(theSteps), run(std::move(theRun))
{
    Subjects()[name] = this;
}

int main(int argc, char** argv)
{
    if (argc < 2 || !AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
    {
        std::fputs("usage: soak MINUTES [SEED] | soak replay SUBJECT STEP...\n", stderr);
        return 2;
    }
    const std::string what = argv[1];
    if (argc > 2 && (what == owtest::kChildArgument || what == "replay") && Subjects().contains(argv[2]))
    {
        const wchar_t* const given = _wgetenv(kStepsVariable);
        std::string steps = CStringA(given).GetString();
        for (int i = 3; i < argc; ++i)
            steps += argv[i] + std::string(" ");
        return RunHere(*Subjects()[argv[2]], StepsIn(steps));
    }
    const auto now = static_cast<unsigned>(::GetTickCount64());
    return RunFor(std::atof(argv[1]), argc > 2 ? std::strtoul(argv[2], nullptr, 10) : now);
}
