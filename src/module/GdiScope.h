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

/// Sets the background colour of a context for the length of a scope.
class CBkColorScope
{
public:
    CBkColorScope(CDC& dc, COLORREF cr) : m_dc(dc), m_crOld(dc.SetBkColor(cr)) {}
    ~CBkColorScope() { m_dc.SetBkColor(m_crOld); }
    CBkColorScope(const CBkColorScope&) = delete;
    CBkColorScope& operator=(const CBkColorScope&) = delete;

private:
    CDC& m_dc;
    COLORREF m_crOld;
};

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

/// Sets the text colour of a context for the length of a scope.
class CTextColorScope
{
public:
    CTextColorScope(CDC& dc, COLORREF cr) : m_dc(dc), m_crOld(dc.SetTextColor(cr)) {}
    ~CTextColorScope() { m_dc.SetTextColor(m_crOld); }
    CTextColorScope(const CTextColorScope&) = delete;
    CTextColorScope& operator=(const CTextColorScope&) = delete;

private:
    CDC& m_dc;
    COLORREF m_crOld;
};

/// Sets the background mode of a context, OPAQUE or TRANSPARENT, for the length of a scope.
class CBkModeScope
{
public:
    CBkModeScope(CDC& dc, int nMode) : m_dc(dc), m_nOld(dc.SetBkMode(nMode)) {}
    ~CBkModeScope() { m_dc.SetBkMode(m_nOld); }
    CBkModeScope(const CBkModeScope&) = delete;
    CBkModeScope& operator=(const CBkModeScope&) = delete;

private:
    CDC& m_dc;
    int m_nOld;
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
