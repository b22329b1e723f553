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

/// Selects a font into a context for the length of a scope. Choosing a font costs: one that the context has already
/// is not chosen again. Null leaves the context as it is.
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

/// A bitmap in a memory context of its own, to paint on and to copy from.
class CMemorySurface
{
public:
    CMemorySurface() = default;
    ~CMemorySurface() { Free(); }
    CMemorySurface(const CMemorySurface&) = delete;
    CMemorySurface& operator=(const CMemorySurface&) = delete;

    /// Makes a surface of the size, in pixels, compatible with a context; false if the system refuses. What
    /// was there before is freed.
    bool Create(CDC& dcLike, CSize size)
    {
        Free();
        if (!m_dc.CreateCompatibleDC(&dcLike) || !m_bitmap.CreateCompatibleBitmap(&dcLike, size.cx, size.cy))
        {
            Free();
            return false;
        }
        m_hOld = ::SelectObject(m_dc.m_hDC, m_bitmap);
        return true;
    }

    void Free()
    {
        if (m_hOld)
            ::SelectObject(m_dc.m_hDC, m_hOld);
        m_hOld = nullptr;
        m_bitmap.DeleteObject();
        m_dc.DeleteDC();
    }

    explicit operator bool() const { return m_hOld != nullptr; }
    CDC& DC() { return m_dc; }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_hOld = nullptr; ///< what the context held before; null while there is no surface
};
