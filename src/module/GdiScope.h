#pragma once
// Small owners for what painting code borrows from a device context.

#include <afxwin.h>

/// Selects an object into a context for the length of a scope.
class CGdiSelection
{
public:
    CGdiSelection(CDC& dc, HGDIOBJ hObject) : m_hDC(dc.m_hDC), m_hOld(::SelectObject(m_hDC, hObject)) {}
    ~CGdiSelection() { ::SelectObject(m_hDC, m_hOld); }
    CGdiSelection(const CGdiSelection&) = delete;
    CGdiSelection& operator=(const CGdiSelection&) = delete;

    /// Whether the context took it. A bitmap that is selected into another one is refused.
    explicit operator bool() const { return m_hOld != nullptr; }

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

/// Selects a font into a context for the length of a scope. Choosing a font costs: one that the context has
/// already is not chosen again. Null leaves the context as it is.
class CFontSelection
{
public:
    CFontSelection(CDC& dc, HGDIOBJ hFont) : m_hDC(dc.m_hDC)
    {
        if (hFont && ::GetCurrentObject(m_hDC, OBJ_FONT) != hFont)
            m_hOld = ::SelectObject(m_hDC, hFont);
    }
    ~CFontSelection()
    {
        if (m_hOld)
            ::SelectObject(m_hDC, m_hOld);
    }
    CFontSelection(const CFontSelection&) = delete;
    CFontSelection& operator=(const CFontSelection&) = delete;

private:
    HDC m_hDC;
    HGDIOBJ m_hOld = nullptr; ///< null if nothing was chosen
};

/// Changes a setting of a context for the length of a scope.
template <class Value, auto Set>
class CContextScope
{
public:
    CContextScope(CDC& dc, Value value) : m_dc(dc), m_old((dc.*Set)(value)) {}
    ~CContextScope() { (m_dc.*Set)(m_old); }
    CContextScope(const CContextScope&) = delete;
    CContextScope& operator=(const CContextScope&) = delete;

private:
    CDC& m_dc;
    Value m_old;
};

using CBkColorScope = CContextScope<COLORREF, &CDC::SetBkColor>;
using CTextColorScope = CContextScope<COLORREF, &CDC::SetTextColor>;
using CBkModeScope = CContextScope<int, &CDC::SetBkMode>; ///< OPAQUE or TRANSPARENT

/// Gives a context back as it was found: selections, colours and modes.
class CSavedDC
{
public:
    explicit CSavedDC(CDC& dc) : m_hDC(dc.m_hDC), m_nSaved(::SaveDC(m_hDC)) {}
    ~CSavedDC() { ::RestoreDC(m_hDC, m_nSaved); }
    CSavedDC(const CSavedDC&) = delete;
    CSavedDC& operator=(const CSavedDC&) = delete;

private:
    HDC m_hDC;
    int m_nSaved;
};
