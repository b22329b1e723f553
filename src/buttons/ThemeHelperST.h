#pragma once
// Run-time binding to the visual-style library. A system without it is no failure.
//
// ```cpp
//     CThemeHelperST* pTheme = CButtonST::pLocalTheme;
//     if (pTheme->IsAppThemed())
//     {
//         HTHEME hTheme = pTheme->OpenThemeData(hWnd, L"BUTTON");
//         pTheme->DrawThemeBackground(hTheme, hDC, BP_PUSHBUTTON, PBS_HOT, &rect, nullptr);
//         pTheme->CloseThemeData(hTheme);
//     }
// ```
//
// Each operation is the library's entry point of the same name, looked up anew at every call. On a system
// without the library the application is simply not themed: the operations do nothing and answer as told
// below.
//
// One object serves the process: CButtonST::pLocalTheme.

#include <afxwin.h>

#include <uxtheme.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CThemeHelperST
{
public:
    /// Loads "UxTheme.dll". Nothing is resolved here.
    CThemeHelperST();
    /// Lets go of the library.
    virtual ~CThemeHelperST();
    CThemeHelperST(const CThemeHelperST&) = delete;
    CThemeHelperST& operator=(const CThemeHelperST&) = delete;

    /// Whether the application draws with a visual style; FALSE without the library.
    BOOL IsAppThemed() const;
    /// The data of a class such as "BUTTON", to be given back with CloseThemeData; null without the library.
    HTHEME OpenThemeData(HWND hWnd, LPCWSTR pszClassList) const;
    /// E_FAIL without the library.
    HRESULT CloseThemeData(HTHEME hTheme) const;
    /// E_FAIL without the library. `pClipRect` may be null.
    HRESULT DrawThemeBackground(HTHEME hTheme, HDC hDC, int nPart, int nState, const RECT* pRect,
                                const RECT* pClipRect) const;
    /// Lets the parent paint what shows through the window's corners. Does nothing without the library,
    /// without the entry point or without a window.
    void DrawThemeParentBackground(HWND hWnd, HDC hDC, const RECT* pRect) const;

protected:
    HMODULE m_hThemeModule; ///< null where the system has no visual styles
};
