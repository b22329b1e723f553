// A combo box that widens its list to the longest entry, and one that fills itself with the fonts.

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

namespace
{
/// Adds the name of a TrueType font, once.
int CALLBACK AddName(const LOGFONT* pLogFont, const TEXTMETRIC*, DWORD nType, LPARAM lCombo)
{
    static CString s_strLast;
    if (nType == TRUETYPE_FONTTYPE && s_strLast != pLogFont->lfFaceName)
    {
        s_strLast = pLogFont->lfFaceName;
        ::SendMessage(reinterpret_cast<HWND>(lCombo), CB_ADDSTRING, 0,
                      reinterpret_cast<LPARAM>(pLogFont->lfFaceName));
    }
    return TRUE;
}

void FillBare(HWND hCombo)
{
    ::SendMessage(hCombo, CB_RESETCONTENT, 0, 0);
    const HDC hDC = ::GetDC(hCombo);
    ::EnumFonts(hDC, nullptr, &AddName, reinterpret_cast<LPARAM>(hCombo));
    ::ReleaseDC(hCombo, hDC);
}
} // namespace

// The bare side is a combo box of the system to which the same names are added.
static void MeasureFontFill(Comparison& compare, const Benchmark::Measure& measure)
{
    constexpr int kFills = 5;
    constexpr DWORD kFontStyle = kComboStyle | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"fonts", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                    CRect(0, 0, 400, 120), nullptr, 0);
    CFontSelectionComboBox ours;
    ours.Create(kFontStyle, kComboRect, &parent, 1);
    CComboBox bare;
    bare.Create(kComboStyle, kComboRect + CPoint(180, 0), &parent, 2);

    compare.Ours(
        [&]
        {
            for (int i = 0; i < kFills; ++i)
                ours.InitFonts();
        });
    compare.Bare(
        [&]
        {
            for (int i = 0; i < kFills; ++i)
                FillBare(bare);
        });
    measure();
    parent.DestroyWindow();
}
static const Benchmark fontFill("combos/font_fill", 1.3, MeasureFontFill);
