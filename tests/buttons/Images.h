#pragma once
// Images made for tests, and the pixels of images read back.

#include <afxwin.h>

#include <functional>
#include <vector>

namespace testimages
{
using Pixels = std::vector<DWORD>; ///< 0xAARRGGBB, row by row from the top

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

/// An icon of 32 bits; where a pixel is 0 it is transparent.
class Icon
{
public:
    Icon(int width, int height, const std::function<DWORD(int x, int y)>& pixel)
    {
        Pixels pixels;
        const int maskRow = (width + 15) / 16 * 2;
        std::vector<BYTE> mask(static_cast<size_t>(maskRow) * height);
        for (int i = 0; i < width * height; ++i)
        {
            pixels.push_back(pixel(i % width, i / width));
            if (pixels.back() == 0)
                mask[i / width * maskRow + i % width / 8] |= 0x80 >> (i % width % 8);
        }
        CBitmap color, transparent;
        color.CreateBitmap(width, height, 1, 32, pixels.data());
        transparent.CreateBitmap(width, height, 1, 1, mask.data());
        ICONINFO info{TRUE, 0, 0, transparent, color};
        m_hIcon = ::CreateIconIndirect(&info);
    }
    /// Of one colour, with a transparent frame.
    Icon(int size, COLORREF cr, int frame = 2)
        : Icon(size, size,
               [=](int x, int y)
               {
                   const CRect inside(frame, frame, size - frame, size - frame);
                   return inside.PtInRect(CPoint(x, y)) ? Opaque(cr) : 0;
               })
    {
    }
    ~Icon() { ::DestroyIcon(m_hIcon); }
    Icon(const Icon&) = delete;
    Icon& operator=(const Icon&) = delete;

    operator HICON() const { return m_hIcon; }

private:
    HICON m_hIcon;
};

/// A bitmap compatible with the screen: one colour inside, another in a frame two pixels wide. The caller's.
inline HBITMAP MakeBitmap(CSize size, COLORREF cr, COLORREF crFrame)
{
    CWindowDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, size.cx, size.cy);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    dc.FillSolidRect(0, 0, size.cx, size.cy, crFrame);
    dc.FillSolidRect(2, 2, size.cx - 4, size.cy - 4, cr);
    ::SelectObject(dc, old);
    return static_cast<HBITMAP>(bitmap.Detach());
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
