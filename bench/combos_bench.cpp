// A combo box that widens its list to the longest entry.

#include <DialogControlsOW.h>

#include "Bench.h"

#include <algorithm>

namespace
{
constexpr int kEntries = 5000;
constexpr DWORD kComboStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST;
const CRect kComboRect(10, 10, 160, 300);

void Fill(HWND hCombo)
{
    for (int i = 0; i < kEntries; ++i)
    {
        CString strEntry;
        strEntry.Format(L"HEA %d, L = %d mm, S355", 100 + i % 900, 1000 + i);
        ::SendMessage(hCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(strEntry.GetString()));
    }
}

void OpenAndClose(HWND hCombo)
{
    ::SendMessage(hCombo, CB_SHOWDROPDOWN, TRUE, 0);
    ::SendMessage(hCombo, CB_SHOWDROPDOWN, FALSE, 0);
}

/// Measures each entry once, with nothing around it.
LONG MeasureBare(HWND hCombo)
{
    const HDC hDC = ::GetDC(hCombo);
    LONG nWidest = 0;
    for (int i = 0; i < kEntries; ++i)
    {
        wchar_t text[64];
        const LRESULT nLength = ::SendMessage(hCombo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        SIZE size{};
        ::GetTextExtentPoint32(hDC, text, static_cast<int>(nLength), &size);
        nWidest = std::max(nWidest, size.cx);
    }
    ::ReleaseDC(hCombo, hDC);
    return nWidest;
}
} // namespace

// The bare side measures, and opens a combo box of the system.
static void MeasureOpen5000(Comparison& compare, const Benchmark::Measure& measure)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"combos", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                    CRect(0, 0, 400, 120), nullptr, 0);
    CExtComboBox ours;
    ours.Create(kComboStyle, kComboRect, &parent, 1);
    CComboBox bare;
    bare.Create(kComboStyle, kComboRect + CPoint(180, 0), &parent, 2);
    Fill(ours);
    Fill(bare);

    compare.Ours([&] { OpenAndClose(ours); });
    compare.Bare(
        [&]
        {
            MeasureBare(bare);
            OpenAndClose(bare);
        });
    measure();
    parent.DestroyWindow();
}
static const Benchmark open5000("combos/open_5000", 1.5, MeasureOpen5000);
