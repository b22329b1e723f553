#pragma once
// Images made for tests, and the pixels of images read back.

#include <afxwin.h>

#include <vector>

namespace testimages
{
using Pixels = std::vector<DWORD>; ///< 0xAARRGGBB, row by row from the top

constexpr DWORD kRgb = 0xFFFFFF; ///< what is no alpha

constexpr DWORD Opaque(COLORREF cr)
{
    return 0xFF000000 | ((cr & 0xFF) << 16) | (cr & 0xFF00) | ((cr >> 16) & 0xFF);
}

inline bool IsIcon(HICON hIcon)
{
    ICONINFO info{};
    const bool bIcon = ::GetIconInfo(hIcon, &info) != FALSE;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return bIcon;
}

/// One colour inside, another in a frame.
inline Pixels Framed(CSize size, DWORD inside, DWORD outside, int frame = 2)
{
    Pixels pixels;
    const CRect rect(frame, frame, size.cx - frame, size.cy - frame);
    for (int i = 0; i < size.cx * size.cy; ++i)
        pixels.push_back(rect.PtInRect(CPoint(i % size.cx, i / size.cx)) ? inside : outside);
    return pixels;
}

/// An icon of 32 bits; where a pixel is 0 it is transparent.
class Icon
{
public:
    Icon(CSize size, const Pixels& pixels)
    {
        const Pixels mask(pixels.size()); // the alpha channel says it all
        CBitmap color, transparent;
        color.CreateBitmap(size.cx, size.cy, 1, 32, pixels.data());
        transparent.CreateBitmap(size.cx, size.cy, 1, 1, mask.data());
        ICONINFO info{TRUE, 0, 0, transparent, color};
        m_hIcon = ::CreateIconIndirect(&info);
    }
    /// Of one colour, with a transparent frame.
    Icon(int size, COLORREF cr, int frame = 2)
        : Icon(CSize(size, size), Framed(CSize(size, size), Opaque(cr), 0, frame))
    {
    }
    ~Icon() { ::DestroyIcon(m_hIcon); }
    Icon(const Icon&) = delete;
    Icon& operator=(const Icon&) = delete;

    operator HICON() const { return m_hIcon; }

private:
    HICON m_hIcon;
};

/// One colour inside, another in a frame. The caller's.
inline HBITMAP MakeBitmap(CSize size, COLORREF cr, COLORREF crFrame)
{
    const Pixels pixels = Framed(size, Opaque(cr) & kRgb, Opaque(crFrame) & kRgb);
    return ::CreateBitmap(size.cx, size.cy, 1, 32, pixels.data());
}

inline bool IsBitmap(HBITMAP hBitmap)
{
    return ::GetObjectType(hBitmap) == OBJ_BITMAP;
}

inline Pixels PixelsOf(HBITMAP hBitmap)
{
    BITMAP info{};
    ::GetObject(hBitmap, sizeof(info), &info);
    Pixels pixels(static_cast<size_t>(info.bmWidth) * info.bmHeight);
    BITMAPINFO header{{sizeof(BITMAPINFOHEADER), info.bmWidth, -info.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                      {}};
    ::GetDIBits(CWindowDC(nullptr), hBitmap, 0, info.bmHeight, pixels.data(), &header, DIB_RGB_COLORS);
    return pixels;
}
} // namespace testimages
