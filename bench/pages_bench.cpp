// The change of a page against the bare calls that it consists of, and the repaint of the caption against a
// bare transfer of the same bitmap.

#include <DialogControlsOW.h>

#include "Bench.h"
#include "resource.h"

namespace
{
constexpr int kControls = 40;
constexpr int kSwitches = 10;
constexpr int kPaints = 200;
const CSize kCaptionSize(400, 26);

class Host : public CDialog, public APageFrameProvider
{
public:
    Host() : CDialog(IDD_PAGE_HOST) { Create(IDD_PAGE_HOST); }
    ~Host() override { DestroyWindow(); }
    CRect GetPageFrame() override { return CRect(CPoint(5, 5), CSize(600, 400)); }
};

/// A dialog of forty controls that take the focus, edits and buttons.
class PageOfForty : public CPageDialog
{
public:
    using CPageDialog::CPageDialog;
    int OnInitPageDialog() override
    {
        for (int i = 0; i < kControls; ++i)
            ::CreateWindow(i % 2 ? _T("BUTTON") : _T("EDIT"), _T("Text"), WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                           i % 4 * 140, i / 4 * 30, 130, 24, m_hWnd, nullptr, nullptr, nullptr);
        return TRUE;
    }
};

class PlainPage : public CPage
{
public:
    PlainPage(CPageDialog* pDialog, int nId) : CPage(_T("Page"), pDialog), m_nId(nId) {}
    EPageID GetPageID() const override { return static_cast<EPageID>(m_nId); }

private:
    int m_nId;
};

void PaintAll(HWND hWnd)
{
    ::RedrawWindow(hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void Show(HWND hWnd, BOOL bShow)
{
    ::EnableWindow(hWnd, bShow);
    ::ShowWindow(hWnd, bShow ? SW_SHOW : SW_HIDE);
}

class NoPages : public ACurrentPageProvider
{
public:
    CPage* GetCurrentPage() const override { return nullptr; }
};

/// A window that answers each paint with a transfer of one bitmap.
class Strip
{
public:
    explicit Strip(HWND hParent)
    {
        static const ATOM atom = []
        {
            WNDCLASS windowClass{};
            windowClass.lpfnWndProc = WindowProc;
            windowClass.hInstance = ::GetModuleHandle(nullptr);
            windowClass.lpszClassName = _T("BenchStrip");
            return ::RegisterClass(&windowClass);
        }();
        m_hWnd = ::CreateWindow(MAKEINTATOM(atom), _T(""), WS_CHILD | WS_VISIBLE, 5, 50, kCaptionSize.cx,
                                kCaptionSize.cy, hParent, nullptr, ::GetModuleHandle(nullptr), nullptr);
        CWindowDC screen(nullptr);
        s_hBitmap = ::CreateCompatibleBitmap(screen, kCaptionSize.cx, kCaptionSize.cy);
    }
    ~Strip() { ::DeleteObject(s_hBitmap); }
    HWND Window() const { return m_hWnd; }

private:
    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message != WM_PAINT)
            return ::DefWindowProc(hWnd, message, wParam, lParam);
        PAINTSTRUCT paint;
        const HDC hDC = ::BeginPaint(hWnd, &paint);
        const HDC hMemory = ::CreateCompatibleDC(hDC);
        const HGDIOBJ hOld = ::SelectObject(hMemory, s_hBitmap);
        ::BitBlt(hDC, 0, 0, kCaptionSize.cx, kCaptionSize.cy, hMemory, 0, 0, SRCCOPY);
        ::SelectObject(hMemory, hOld);
        ::DeleteDC(hMemory);
        ::EndPaint(hWnd, &paint);
        return 0;
    }

    inline static HBITMAP s_hBitmap = nullptr;
    HWND m_hWnd;
};

void Repaint(HWND hWnd)
{
    for (int i = 0; i < kPaints; ++i)
        ::RedrawWindow(hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}
} // namespace

// Both sides end where they began, and paint what they show.
static void MeasureSwitching(Comparison& compare, const Benchmark::Measure& measure)
{
    Host host;
    CPageManager manager(&host);
    CPage* pages[2];
    HWND windows[2];
    for (int i = 0; i < 2; ++i)
    {
        auto* pDialog = new PageOfForty(IDD_PAGE_FIRST + i, &host);
        manager.AddDialog(pDialog);
        pages[i] = new PlainPage(pDialog, i);
        manager.AddPage(pages[i], nullptr);
        windows[i] = pDialog->m_hWnd;
    }
    manager.PageSelected(pages[0], nullptr);
    PaintAll(host);
    compare.Ours(
        [&]
        {
            for (int i = 1; i <= kSwitches; ++i)
            {
                manager.PageSelected(pages[i % 2], pages[(i + 1) % 2]);
                PaintAll(host);
            }
        });
    compare.Bare(
        [&]
        {
            for (int i = 1; i <= kSwitches; ++i)
            {
                Show(windows[i % 2], TRUE);
                Show(windows[(i + 1) % 2], FALSE);
                PaintAll(host);
            }
        });
    measure();
}
static const Benchmark switching("pages/switch", 1.5, MeasureSwitching);

static void MeasureCaption(Comparison& compare, const Benchmark::Measure& measure)
{
    Host host;
    NoPages provider;
    CPageGradientCaptionStatic strip(provider);
    strip.Create(_T(""), WS_CHILD | WS_VISIBLE, CRect(CPoint(5, 5), kCaptionSize), &host);
    strip.SetWindowText(_T("Beams"));
    const Strip bare(host);
    compare.Ours([&] { Repaint(strip); });
    compare.Bare([&] { Repaint(bare.Window()); });
    measure();
}
static const Benchmark caption("pages/caption_repaint", 1.3, MeasureCaption);
