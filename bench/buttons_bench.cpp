// A self-painting button against the bare calls that paint the same, and many of them in a window.

#include <DialogControlsOW.h>

#include "Bench.h"

#include <uxtheme.h>

#include <vsstyle.h>

#include <deque>

namespace
{
constexpr int kPaintings = 50;
constexpr int kButtons = 200;
constexpr LPCTSTR kTitle = _T("Apply");
const CSize kSize(90, 26);

/// A context of the screen's kind with a bitmap to paint on.
class Canvas
{
public:
    Canvas()
    {
        CWindowDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, kSize.cx, kSize.cy);
        m_old = ::SelectObject(m_dc, m_bitmap);
    }
    ~Canvas() { ::SelectObject(m_dc, m_old); }
    operator HDC() const { return m_dc.m_hDC; }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_old;
};

void DrawBareIconAndTitle(HDC hDC)
{
    const CRect icon(CPoint(3, (kSize.cy - 16) / 2), CSize(16, 16));
    ::DrawIconEx(hDC, icon.left, icon.top, CButtonST::hIconOk, 0, 0, 0, nullptr, DI_NORMAL);
    CRect caption(19, 0, kSize.cx, kSize.cy);
    ::SetBkMode(hDC, TRANSPARENT);
    ::SetTextColor(hDC, ::GetSysColor(COLOR_BTNTEXT));
    ::DrawText(hDC, kTitle, -1, caption, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void DrawBareThemed(HDC hDC, HTHEME hTheme)
{
    const CRect rect(CPoint(0, 0), kSize);
    ::DrawThemeBackground(hTheme, hDC, BP_PUSHBUTTON, PBS_NORMAL, rect, nullptr);
    DrawBareIconAndTitle(hDC);
}

void DrawBareCorner(HDC hDC, int nSysColor, const POINT (&points)[3])
{
    const HPEN hPen = ::CreatePen(PS_SOLID, 0, ::GetSysColor(nSysColor));
    const HGDIOBJ hOld = ::SelectObject(hDC, hPen);
    ::Polyline(hDC, points, 3);
    ::SelectObject(hDC, hOld);
    ::DeleteObject(hPen);
}

void DrawBareRaised(HDC hDC)
{
    const CRect rect(CPoint(0, 0), kSize);
    const int right = kSize.cx, bottom = kSize.cy;
    ::FillRect(hDC, rect, ::GetSysColorBrush(COLOR_BTNFACE));
    DrawBareCorner(hDC, COLOR_BTNHIGHLIGHT, {{0, bottom - 1}, {0, 0}, {right, 0}});
    DrawBareCorner(hDC, COLOR_3DLIGHT, {{1, bottom - 1}, {1, 1}, {right, 1}});
    DrawBareCorner(hDC, COLOR_3DDKSHADOW, {{0, bottom - 1}, {right - 1, bottom - 1}, {right - 1, -1}});
    DrawBareCorner(hDC, COLOR_BTNSHADOW, {{1, bottom - 2}, {right - 2, bottom - 2}, {right - 2, 0}});
    DrawBareIconAndTitle(hDC);
}

/// The parent of both sides' buttons. Paints those that are plain.
LRESULT CALLBACK ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_DRAWITEM)
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    const auto* pItem = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    static const HTHEME hTheme = ::OpenThemeData(nullptr, L"BUTTON");
    DrawBareThemed(pItem->hDC, hTheme);
    return TRUE;
}

HWND MakeParent()
{
    static const ATOM atom = []
    {
        WNDCLASS windowClass{};
        windowClass.lpfnWndProc = ParentProc;
        windowClass.hInstance = ::GetModuleHandle(nullptr);
        windowClass.lpszClassName = _T("BenchButtonParent");
        windowClass.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
        return ::RegisterClass(&windowClass);
    }();
    return ::CreateWindow(MAKEINTATOM(atom), _T(""), WS_POPUP, 0, 0, 1000, 620, nullptr, nullptr,
                          ::GetModuleHandle(nullptr), nullptr);
}

HWND MakeControl(HWND hParent, int i, DWORD dwType)
{
    return ::CreateWindow(_T("BUTTON"), kTitle, WS_CHILD | WS_VISIBLE | dwType, i % 10 * 95, i / 10 * 30,
                          kSize.cx, kSize.cy, hParent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(100 + i)),
                          nullptr, nullptr);
}

void Show(HWND hParent)
{
    ::ShowWindow(hParent, SW_SHOWNA);
    ::RedrawWindow(hParent, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_ERASE);
}

/// A window of ours and one painting of its buttons, against a window of the same buttons painted by its
/// parent.
void OpenOurs()
{
    CWnd parent;
    parent.SubclassWindow(MakeParent());
    std::deque<CButtonST> buttons(kButtons);
    for (int i = 0; i < kButtons; ++i)
    {
        buttons[i].SubclassWindow(MakeControl(parent, i, BS_PUSHBUTTON));
        buttons[i].SetIcon(CButtonST::hIconOk, nullptr);
    }
    Show(parent);
    parent.DestroyWindow();
}

void OpenBare()
{
    const HWND hParent = MakeParent();
    for (int i = 0; i < kButtons; ++i)
        MakeControl(hParent, i, BS_OWNERDRAW);
    Show(hParent);
    ::DestroyWindow(hParent);
}

/// Compares the painting of one button with a bare routine.
void ComparePainting(Comparison& compare, const std::function<void()>& measure, bool bThemed,
                     const std::function<void(HDC)>& drawBare)
{
    const HWND hParent = MakeParent();
    CButtonST button;
    button.SubclassWindow(MakeControl(hParent, 0, BS_PUSHBUTTON));
    button.SetIcon(CButtonST::hIconOk, nullptr);
    if (!bThemed)
    {
        button.SetThemeHelper(nullptr);
        button.SetFlat(FALSE);
    }
    const Canvas canvas;
    DRAWITEMSTRUCT item{};
    item.hDC = canvas;
    item.rcItem = CRect(CPoint(0, 0), kSize);
    compare.Ours(
        [&]
        {
            for (int i = 0; i < kPaintings; ++i)
                button.DrawItem(&item);
        });
    compare.Bare(
        [&]
        {
            for (int i = 0; i < kPaintings; ++i)
                drawBare(canvas);
        });
    measure();
    ::DestroyWindow(hParent);
}
} // namespace

static void MeasureThemed(Comparison& compare, const Benchmark::Measure& measure)
{
    const HTHEME hTheme = ::OpenThemeData(nullptr, L"BUTTON");
    ComparePainting(compare, measure, true, [=](HDC hDC) { DrawBareThemed(hDC, hTheme); });
    ::CloseThemeData(hTheme);
}
static const Benchmark themed("buttons/paint_themed", 2.5, MeasureThemed);

static void MeasurePlain(Comparison& compare, const Benchmark::Measure& measure)
{
    ComparePainting(compare, measure, false, DrawBareRaised);
}
static const Benchmark plain("buttons/paint_unthemed", 2.5, MeasurePlain);

/// A picker against a plain button of the same size that shows the same picture as its bitmap.
static void MeasurePicker(Comparison& compare, const Benchmark::Measure& measure)
{
    const HWND hParent = MakeParent();
    int nIndex = 0;
    CBitmapBtnSTKotnaLinija picker;
    picker.SubclassWindow(MakeControl(hParent, 0, BS_PUSHBUTTON));
    picker.SetEnumSource(&nIndex);
    CButtonST button;
    button.SubclassWindow(MakeControl(hParent, 1, BS_PUSHBUTTON));
    button.SetBitmaps(static_cast<HBITMAP>(::CopyImage(picker.GetBitmap(0), IMAGE_BITMAP, 0, 0, 0)),
                      RGB(255, 255, 255));
    picker.SetWindowText(_T(""));
    button.SetWindowText(_T(""));
    const Canvas canvas;
    const auto paint = [&canvas](CButtonST& painted)
    {
        DRAWITEMSTRUCT item{};
        item.hDC = canvas;
        item.rcItem = CRect(CPoint(0, 0), kSize);
        for (int i = 0; i < kPaintings; ++i)
            painted.DrawItem(&item);
    };
    compare.Ours([&] { paint(picker); });
    compare.Bare([&] { paint(button); });
    measure();
    ::DestroyWindow(hParent);
}
static const Benchmark pickerPaint("buttons/paint_picker", 1.15, MeasurePicker);

static void MeasureWindow(Comparison& compare, const Benchmark::Measure& measure)
{
    compare.Ours(OpenOurs);
    compare.Bare(OpenBare);
    measure();
}
static const Benchmark window("buttons/window_of_200", 2.0, MeasureWindow);

/// The painting of a colour button against that of a button with an icon.
template <class Button, class Value>
static void MeasureColor(Comparison& compare, const Benchmark::Measure& measure, Value value)
{
    CWnd parent;
    parent.SubclassWindow(MakeParent());
    Button color;
    color.SubclassWindow(MakeControl(parent, 0, BS_PUSHBUTTON));
    color.SetColorSource(&value);
    CButtonST plain;
    plain.SubclassWindow(MakeControl(parent, 1, BS_PUSHBUTTON));
    plain.SetIcon(CButtonST::hIconOk, nullptr);

    const Canvas canvas;
    DRAWITEMSTRUCT item{};
    item.hDC = canvas;
    item.rcItem = CRect(CPoint(0, 0), kSize);
    const auto paint = [&item](CButtonST& button)
    {
        button.SetWindowText(_T(""));
        return [&]
        {
            for (int i = 0; i < kPaintings; ++i)
                button.DrawItem(&item);
        };
    };
    compare.Ours(paint(color));
    compare.Bare(paint(plain));
    measure();
    parent.DestroyWindow();
}
static const Benchmark paintColor("buttons/paint_color", 1.15,
                                  [](Comparison& compare, const Benchmark::Measure& measure)
                                  { MeasureColor<CColorBtnST>(compare, measure, DWORD{RGB(255, 127, 0)}); });
static const Benchmark paintAcadColor("buttons/paint_acad_color", 1.15,
                                      [](Comparison& compare, const Benchmark::Measure& measure)
                                      { MeasureColor<CAcadColorBtnST>(compare, measure, 30); });
