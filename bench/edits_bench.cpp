// A keystroke into a text box and on to who wants to know of it; a value that is set again.

#include <DialogControlsOW.h>

#include "Bench.h"

namespace
{
int g_changes = 0;

LRESULT CALLBACK BareParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE)
    {
        ++g_changes;
        return 0;
    }
    return ::DefWindowProc(window, message, wParam, lParam);
}

class CountingParent : public CWnd, public CEditNNotificationHandler
{
public:
    void OnEditNChange(int) override { ++g_changes; }
};

constexpr DWORD kFrameStyle = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
constexpr DWORD kEditStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL;
const CRect kEditRect(10, 10, 160, 32);

/// Types digits and takes them back, message by message as the loop would dispatch them.
void Type(HWND edit)
{
    for (int i = 0; i < 40; ++i)
    {
        const WPARAM key = i % 2 ? VK_BACK : '0' + i % 10;
        MSG down{edit, WM_KEYDOWN, key, 1, 0, {}};
        ::DispatchMessage(&down);
        MSG character{edit, WM_CHAR, key, 1, 0, {}};
        ::DispatchMessage(&character);
    }
}
} // namespace

static void MeasureKeystroke(Comparison& compare, const Benchmark::Measure& measure)
{
    WNDCLASS bareClass{};
    bareClass.lpfnWndProc = BareParentProc;
    bareClass.hInstance = ::GetModuleHandle(nullptr);
    bareClass.lpszClassName = L"BenchBareParent";
    ::RegisterClass(&bareClass);
    HWND bareParent = ::CreateWindow(bareClass.lpszClassName, L"bare", kFrameStyle, 0, 0, 300, 120, nullptr,
                                     nullptr, bareClass.hInstance, nullptr);
    HWND bareEdit = ::CreateWindow(L"EDIT", L"", kEditStyle, kEditRect.left, kEditRect.top, kEditRect.Width(),
                                   kEditRect.Height(), bareParent, nullptr, bareClass.hInstance, nullptr);

    CountingParent parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"ours", kFrameStyle, CRect(320, 0, 620, 120), nullptr, 0);
    CEditN edit(&parent);
    edit.Create(kEditStyle, kEditRect, &parent, 1);

    compare.Rounds(61);
    compare.Ours([&] { Type(edit); });
    compare.Bare([&] { Type(bareEdit); });
    measure();
    ::DestroyWindow(bareParent);
    parent.DestroyWindow();
}
static const Benchmark keystroke("edits/keystroke", 1.15, MeasureKeystroke);

// The bare side writes a new number each time; ours repeats the one that stands there.
static void MeasureUnchanged(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kCalls = 200;
    CountingParent parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"ours", kFrameStyle, CRect(320, 0, 620, 120), nullptr, 0);
    CEditDoubleWithRange edit(&parent);
    edit.Create(kEditStyle, kEditRect, &parent, 1);

    compare.Ours(
        [&]
        {
            for (int i = 0; i < kCalls; ++i)
                edit.SetValue(0.0);
        });
    compare.Bare(
        [&]
        {
            for (int i = 1; i <= kCalls; ++i)
                edit.SetValue(i % 2);
        });
    measure();
    parent.DestroyWindow();
}
static const Benchmark unchanged("edits/set_value_unchanged", 0.05, MeasureUnchanged);
