#pragma once
// The language of the texts for drawings, for the length of a scope. Afterwards it is the display's again.

#include <afxwin.h>

#include <Translator.h>

namespace owtest
{
struct SubLanguage
{
    /// LANG_GREEK, for instance.
    explicit SubLanguage(WORD language) { Set(language); }
    ~SubLanguage() { SetDisplays(); }
    static void Set(WORD language) { gOtSubLang.SetCurrentLanguage(MAKELANGID(language, SUBLANG_DEFAULT)); }
    static void SetDisplays() { gOtSubLang.SetCurrentLanguage(::GetSystemDefaultLangID()); }
};

/// The description of a window's font; the system's font for a window without one.
inline LOGFONTW FontOf(const CWnd& window)
{
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window.m_hWnd, WM_GETFONT, 0, 0));
    LOGFONTW described{};
    ::GetObjectW(font ? font : ::GetStockObject(SYSTEM_FONT), sizeof described, &described);
    return described;
}
} // namespace owtest
