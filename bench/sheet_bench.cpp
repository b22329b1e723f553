// A property sheet of five pages against the system's own, and a notification given back to its control against a window
// procedure that handles it itself.

#include <afxdlgs.h>

#include "Bench.h"

namespace
{
constexpr int kPages = 5;
constexpr int kMessages = 2000;

/// An empty page of 180 by 80 dialog units.
struct PageTemplate
{
    DLGTEMPLATE head{WS_CHILD | WS_CAPTION | WS_DISABLED | DS_SETFONT, 0, 0, 0, 0, 180, 80};
    WORD menu = 0;
    WORD windowClass = 0;
    wchar_t title[5] = L"Page";
    WORD points = 8;
    wchar_t face[13] = L"MS Shell Dlg";
};
const PageTemplate kPage;

class BenchPage : public CPropertyPage
{
public:
    BenchPage()
    {
        m_psp.dwFlags |= PSP_DLGINDIRECT;
        m_psp.pResource = &kPage.head;
    }
};

void OpenOurs()
{
    BenchPage pages[kPages];
    CPropertySheet sheet(L"Sheet");
    for (BenchPage& page : pages)
        sheet.AddPage(&page);
    sheet.Create();
    sheet.DestroyWindow();
}

INT_PTR CALLBACK BarePageProc(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

void OpenBare()
{
    PROPSHEETPAGE pages[kPages]{};
    for (PROPSHEETPAGE& page : pages)
    {
        page.dwSize = sizeof page;
        page.dwFlags = PSP_DLGINDIRECT;
        page.pResource = &kPage.head;
        page.pfnDlgProc = BarePageProc;
    }
    PROPSHEETHEADER header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS;
    header.pszCaption = L"Sheet";
    header.nPages = kPages;
    header.ppsp = pages;
    ::DestroyWindow(reinterpret_cast<HWND>(::PropertySheet(&header)));
}

int s_clicks = 0;

class ReflectedButton : public CButton
{
protected:
    afx_msg void OnClicked() { ++s_clicks; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectedButton, CButton)
    ON_CONTROL_REFLECT(BN_CLICKED, &ReflectedButton::OnClicked)
END_MESSAGE_MAP()

LRESULT CALLBACK BareProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED)
            ++s_clicks;
        return 0;
    default:
        return ::DefWindowProc(window, message, wParam, lParam);
    }
}

void Click(HWND parent, HWND button)
{
    for (int i = 0; i < kMessages; ++i)
        ::SendMessage(parent, WM_COMMAND, MAKEWPARAM(1, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}
} // namespace

static void MeasureSheet(Comparison& compare, const Benchmark::Measure& measure)
{
    compare.Ours(OpenOurs);
    compare.Bare(OpenBare);
    measure();
}
static const Benchmark sheet("mfc/property_sheet", 1.5, MeasureSheet);

static void MeasureReflection(Comparison& compare, const Benchmark::Measure& measure)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0);
    ReflectedButton button;
    button.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 1);

    const HWND bareParent =
        ::CreateWindow(L"Static", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowLongPtr(bareParent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(BareProc));
    const HWND bareButton =
        ::CreateWindow(L"Button", L"", WS_CHILD, 0, 0, 10, 10, bareParent, nullptr, nullptr, nullptr);

    compare.Ours([&] { Click(parent.m_hWnd, button.m_hWnd); });
    compare.Bare([&] { Click(bareParent, bareButton); });
    measure();
    ::DestroyWindow(bareParent);
    parent.DestroyWindow();
}
static const Benchmark reflection("mfc/reflected_message", 1.3, MeasureReflection);
