// Window classes of the framework.

#include "threadstate.h"
#include "wndclass.h"

namespace
{
struct CStandardClass
{
    LPCTSTR name;
    UINT style;
    int background; ///< COLOR_ index, or -1 for windows that paint everything
};

constexpr CStandardClass childClass{L"AfxWnd80u", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, -1};
constexpr CStandardClass frameClass{L"AfxFrameOrView80u", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, COLOR_WINDOW};

LPCTSTR Register(const CStandardClass& standard)
{
    WNDCLASS definition{};
    definition.style = standard.style;
    definition.lpfnWndProc = ::DefWindowProc;
    definition.hInstance = AfxGetInstanceHandle();
    definition.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    definition.lpszClassName = standard.name;
    if (standard.background >= 0)
        definition.hbrBackground = ::GetSysColorBrush(standard.background);
    return AfxRegisterClass(&definition) ? standard.name : nullptr;
}
} // namespace

LPCTSTR RegisterChildClass()
{
    return Register(childClass);
}

LPCTSTR RegisterFrameClass()
{
    return Register(frameClass);
}

void InitializeCommonControls()
{
    static const bool initialized = []
    {
        const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_DATE_CLASSES |
                                                               ICC_USEREX_CLASSES | ICC_COOL_CLASSES |
                                                               ICC_INTERNET_CLASSES};
        return ::InitCommonControlsEx(&classes) != FALSE;
    }();
    (void)initialized;
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass)
{
    WNDCLASS registered;
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &registered))
        return TRUE;
    return ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    // The name is made of the attributes, so that equal requests meet in one class.
    auto& name = GetThreadState().className;
    const HINSTANCE instance = AfxGetInstanceHandle();
    if (hCursor == nullptr && hbrBackground == nullptr && hIcon == nullptr)
        swprintf_s(name, L"Afx:%p:%x", static_cast<void*>(instance), nClassStyle);
    else
        swprintf_s(name, L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(instance), nClassStyle,
                   static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));

    WNDCLASS definition{};
    definition.style = nClassStyle;
    definition.lpfnWndProc = ::DefWindowProc;
    definition.hInstance = instance;
    definition.hIcon = hIcon;
    definition.hCursor = hCursor;
    definition.hbrBackground = hbrBackground;
    definition.lpszClassName = name;
    if (!AfxRegisterClass(&definition))
        AfxThrowResourceException();
    return name;
}
