// The progress box: what a call of Update costs while nothing changes, and how often the bar is painted.

#include <DialogControlsOW.h>

#include "Bench.h"

#include <memory>

namespace
{
constexpr int kBar = 10152;
const wchar_t* const kTitle = L"progress";

HWND Box()
{
    return ::FindWindow(L"#32770", kTitle);
}
} // namespace

static void MeasureCancellable(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kCalls = 10000;
    CSingleThreadProgress progress(kTitle, nullptr, true);
    const HWND hBox = Box();
    compare.Ours(
        [&]
        {
            for (int i = 0; i < kCalls; ++i)
                progress.Update(0);
        });
    compare.Bare(
        [&]
        {
            for (int i = 0; i < kCalls; ++i)
            {
                MSG msg;
                while (::PeekMessage(&msg, hBox, 0, 0, PM_REMOVE))
                {
                    ::TranslateMessage(&msg);
                    ::DispatchMessage(&msg);
                }
            }
        });
    measure();
}
static const Benchmark cancellable("progress/update_cancellable", 1.1, MeasureCancellable);

namespace
{
class AWork
{
public:
    virtual ~AWork() {}
    virtual bool GoOn(int nPos) = 0;
};

class PlainWork : public AWork
{
public:
    bool GoOn(int nPos) override { return nPos >= m_nLeast; }

private:
    int m_nLeast = 0;
};
} // namespace

// The bare side is a virtual call that the compiler cannot see through.
static void MeasurePlain(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kCalls = 1000000;
    CSingleThreadProgress progress(kTitle, nullptr, false);
    const std::unique_ptr<AWork> pWork = std::make_unique<PlainWork>();
    AWork* volatile pBare = pWork.get();
    int nGone = 0;
    compare.Ours(
        [&]
        {
            for (int i = 0; i < kCalls; ++i)
                nGone += progress.Update(0);
        });
    compare.Bare(
        [&]
        {
            for (int i = 0; i < kCalls; ++i)
                nGone += pBare->GoOn(i);
        });
    measure();
}
static const Benchmark plain("progress/update_plain", 10, MeasurePlain);

namespace
{
int s_nPaints = 0;
WNDPROC s_pBarProcedure = nullptr;

LRESULT CALLBACK CountPaints(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    s_nPaints += message == WM_PAINT;
    return ::CallWindowProc(s_pBarProcedure, hWnd, message, wParam, lParam);
}
} // namespace

// Paints of the bar in a run of ten thousand calls.
static void CountRepaints(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kCalls = 10000;
    CSingleThreadProgress progress(kTitle, nullptr, true);
    s_pBarProcedure = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(::GetDlgItem(Box(), kBar), GWLP_WNDPROC,
                                                                   reinterpret_cast<LONG_PTR>(&CountPaints)));
    for (int i = 1; i <= kCalls; ++i)
        progress.Update(i * 100 / kCalls);
    compare.Number(s_nPaints);
    measure();
}
static const Benchmark repaints("progress/repaints", 51, CountRepaints);
