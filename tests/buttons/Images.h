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

/// An icon of 32 bits; where a pixel is 0 it is transparent. The caller's.
inline HICON MakeIcon(int width, int height, const std::function<DWORD(int x, int y)>& pixel)
{
    Pixels pixels;
    const int maskRow = (width + 15) / 16 * 2;
    std::vector<BYTE> mask(static_cast<size_t>(maskRow) * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            pixels.push_back(pixel(x, y));
            if (pixels.back() == 0)
                mask[y * maskRow + x / 8] |= 0x80 >> (x % 8);
        }
    CBitmap color, transparent;
    color.CreateBitmap(width, height, 1, 32, pixels.data());
    transparent.CreateBitmap(width, height, 1, 1, mask.data());
    ICONINFO info{TRUE, 0, 0, transparent, color};
    return ::CreateIconIndirect(&info);
}

/// An icon of one colour with a transparent frame two pixels wide.
inline HICON MakeFramedIcon(int size, COLORREF cr)
{
    return MakeIcon(size, size,
                    [=](int x, int y)
                    {
                        const bool frame = x < 2 || y < 2 || x >= size - 2 || y >= size - 2;
                        return frame ? 0 : Opaque(cr);
                    });
}

/// A bitmap compatible with the screen: one colour inside, another in a frame two pixels wide. The caller's.
inline HBITMAP MakeFramedBitmap(int width, int height, COLORREF cr, COLORREF crFrame)
{
    CWindowDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, width, height);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    dc.FillSolidRect(0, 0, width, height, crFrame);
    dc.FillSolidRect(2, 2, width - 4, height - 4, cr);
    ::SelectObject(dc, old);
    return static_cast<HBITMAP>(bitmap.Detach());
}

inline Pixels PixelsOf(HBITMAP hBitmap)
{
    BITMAP info{};
    ::GetObject(hBitmap, sizeof(info), &info);
    Pixels pixels(static_cast<size_t>(info.bmWidth) * info.bmHeight);
    BITMAPINFO header{};
    header.bmiHeader = {sizeof(BITMAPINFOHEADER), info.bmWidth, -info.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    CWindowDC screen(nullptr);
    ::GetDIBits(screen, hBitmap, 0, info.bmHeight, pixels.data(), &header, DIB_RGB_COLORS);
    return pixels;
}

inline Pixels PixelsOf(HICON hIcon)
{
    ICONINFO info{};
    ::GetIconInfo(hIcon, &info);
    const Pixels pixels = PixelsOf(info.hbmColor);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return pixels;
}

inline bool IsIcon(HICON hIcon)
{
    ICONINFO info{};
    if (!::GetIconInfo(hIcon, &info))
        return false;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return true;
}

inline bool IsBitmap(HBITMAP hBitmap)
{
    return ::GetObjectType(hBitmap) == OBJ_BITMAP;
}
} // namespace testimages
