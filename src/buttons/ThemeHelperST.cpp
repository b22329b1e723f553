#include "buttons/ThemeHelperST.h"

namespace
{
/// The library's entry point under the type of its declaration; null if it has none of that name.
template <class Function>
Function* EntryPoint(HMODULE hModule, const char* pszName)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(hModule, pszName)));
}
} // namespace

#define OW_ENTRY_POINT(name) EntryPoint<decltype(::name)>(m_hThemeModule, #name)

CThemeHelperST::CThemeHelperST() : m_hThemeModule(::LoadLibraryW(L"UxTheme.dll"))
{
}

CThemeHelperST::~CThemeHelperST()
{
    if (m_hThemeModule)
        ::FreeLibrary(m_hThemeModule);
}

// The first four have been in the library since its first version, and are called without a test.

BOOL CThemeHelperST::IsAppThemed() const
{
    return m_hThemeModule ? OW_ENTRY_POINT(IsAppThemed)() : FALSE;
}

HTHEME CThemeHelperST::OpenThemeData(HWND hWnd, LPCWSTR pszClassList) const
{
    return m_hThemeModule ? OW_ENTRY_POINT(OpenThemeData)(hWnd, pszClassList) : nullptr;
}

HRESULT CThemeHelperST::CloseThemeData(HTHEME hTheme) const
{
    return m_hThemeModule ? OW_ENTRY_POINT(CloseThemeData)(hTheme) : E_FAIL;
}

HRESULT CThemeHelperST::DrawThemeBackground(HTHEME hTheme, HDC hDC, int nPart, int nState, const RECT* pRect,
                                            const RECT* pClipRect) const
{
    if (!m_hThemeModule)
        return E_FAIL;
    return OW_ENTRY_POINT(DrawThemeBackground)(hTheme, hDC, nPart, nState, pRect, pClipRect);
}

void CThemeHelperST::DrawThemeParentBackground(HWND hWnd, HDC hDC, const RECT* pRect) const
{
    const auto draw = m_hThemeModule ? OW_ENTRY_POINT(DrawThemeParentBackground) : nullptr;
    if (draw && hWnd)
        draw(hWnd, hDC, const_cast<RECT*>(pRect)); // older headers declare the rectangle without const
}
