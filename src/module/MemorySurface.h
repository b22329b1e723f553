#pragma once
// A bitmap in a memory context of its own, to paint on and to copy from.

#include <afxwin.h>

namespace ow
{
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
} // namespace ow
