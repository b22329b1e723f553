#include <afxwin.h>

#include "buttons/ButtonSTImages.h"

#include "module/GdiScope.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace
{
constexpr DWORD kAlphaBits = 0xFF000000;
constexpr double kDarkerBy = 0.25;

/// What GetIconInfo answers, with the two bitmaps that it makes.
class CIconInfo
{
public:
    explicit CIconInfo(HICON hIcon) : m_valid(::GetIconInfo(hIcon, &m_info) != FALSE)
    {
        m_color.Attach(m_info.hbmColor);
        m_mask.Attach(m_info.hbmMask);
    }

    explicit operator bool() const { return m_valid; }
    CSize Size() const { return CSize(m_info.xHotspot * 2, m_info.yHotspot * 2); }
    CBitmap& Color() { return m_color; }

    /// The icon of another colour bitmap under the same mask; the caller's. Null if it cannot be made.
    HICON CreateIcon(HBITMAP hColor) const
    {
        ICONINFO info = m_info;
        info.fIcon = TRUE;
        info.hbmColor = hColor;
        return ::CreateIconIndirect(&info);
    }

private:
    ICONINFO m_info{};
    bool m_valid;
    CBitmap m_color;
    CBitmap m_mask;
};

/// Pixels as 0xAARRGGBB, row by row from the top. Reading and writing whole images takes a hundredth of the
/// time that GetPixel and SetPixel take, and keeps the alpha channel, which SetPixel clears.
class CPixels
{
public:
    explicit CPixels(CSize size) : m_size(size), m_pixels(static_cast<size_t>(size.cx) * size.cy) {}

    bool ReadFrom(HBITMAP hBitmap)
    {
        CWindowDC screen(nullptr);
        BITMAPINFO info = Info();
        return ::GetDIBits(screen, hBitmap, 0, m_size.cy, m_pixels.data(), &info, DIB_RGB_COLORS) != 0;
    }
    bool WriteTo(HBITMAP hBitmap) const
    {
        CWindowDC screen(nullptr);
        const BITMAPINFO info = Info();
        return ::SetDIBits(screen, hBitmap, 0, m_size.cy, m_pixels.data(), &info, DIB_RGB_COLORS) != 0;
    }

    /// Applies a function to each colour, and leaves the alpha channel as it is.
    template <class Function>
    void ForEachColor(Function function)
    {
        for (DWORD& pixel : m_pixels)
            pixel = (pixel & kAlphaBits) | Exchange(function(Exchange(pixel & ~kAlphaBits)));
    }

    /// The part at the top left that has the given size; what lies outside of these pixels is black.
    CPixels Part(CSize size) const
    {
        CPixels part(size);
        for (int y = 0; y < std::min(size.cy, m_size.cy); ++y)
            std::copy_n(m_pixels.begin() + static_cast<ptrdiff_t>(y) * m_size.cx,
                        std::min(size.cx, m_size.cx),
                        part.m_pixels.begin() + static_cast<ptrdiff_t>(y) * size.cx);
        return part;
    }

private:
    /// A COLORREF has red in its lowest byte, a pixel has blue there.
    static DWORD Exchange(DWORD color) { return RGB(GetBValue(color), GetGValue(color), GetRValue(color)); }

    BITMAPINFO Info() const
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = m_size.cx;
        info.bmiHeader.biHeight = -m_size.cy; // from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        return info;
    }

    CSize m_size;
    std::vector<DWORD> m_pixels;
};

BITMAP InfoOf(HBITMAP hBitmap)
{
    BITMAP info{};
    ::GetObject(hBitmap, sizeof(info), &info);
    return info;
}
} // namespace

std::optional<CSize> ButtonImages::SizeOf(HICON hIcon)
{
    const CIconInfo info(hIcon);
    return info ? std::optional(info.Size()) : std::nullopt;
}

std::optional<CSize> ButtonImages::SizeOf(HBITMAP hBitmap)
{
    BITMAP info;
    if (::GetObject(hBitmap, sizeof(info), &info) == 0)
        return std::nullopt;
    return CSize(info.bmWidth, info.bmHeight);
}

HBITMAP ButtonImages::CreateMask(HBITMAP hBitmap, CSize size, COLORREF crTransparent)
{
    CBitmap mask;
    CDC dcImage, dcMask;
    if (!mask.CreateBitmap(size.cx, size.cy, 1, 1, nullptr) || !dcImage.CreateCompatibleDC(nullptr) ||
        !dcMask.CreateCompatibleDC(nullptr))
        return nullptr;
    const CGdiSelection image(dcImage, hBitmap);
    const CGdiSelection target(dcMask, mask);
    if (!image || !target)
        return nullptr;

    // To monochrome: the source's background colour becomes white, every other black.
    dcImage.SetBkColor(crTransparent);
    dcMask.BitBlt(0, 0, size.cx, size.cy, &dcImage, 0, 0, SRCCOPY);

    // From monochrome: white becomes the target's background colour, black its text colour.
    dcImage.SetBkColor(RGB(0, 0, 0));
    dcImage.SetTextColor(RGB(255, 255, 255));
    dcImage.BitBlt(0, 0, size.cx, size.cy, &dcMask, 0, 0, SRCAND);
    return static_cast<HBITMAP>(mask.Detach());
}

HBITMAP ButtonImages::CreateBitmapCopy(HBITMAP hBitmap, CSize size, COLORREF crTransparent, Formula formula)
{
    CPixels pixels(size);
    if (!pixels.ReadFrom(hBitmap))
        return nullptr;
    pixels.ForEachColor([=](COLORREF cr) { return cr == crTransparent ? cr : formula(cr); });

    CWindowDC screen(nullptr);
    CBitmap copy;
    if (!copy.CreateCompatibleBitmap(&screen, size.cx, size.cy) || !pixels.WriteTo(copy))
        return nullptr;
    return static_cast<HBITMAP>(copy.Detach());
}

HICON ButtonImages::CreateIconCopy(HICON hIcon, Formula formula)
{
    CIconInfo icon(hIcon);
    if (!icon)
        return nullptr;
    const BITMAP color = InfoOf(icon.Color());
    CPixels source(CSize(color.bmWidth, color.bmHeight));
    if (!source.ReadFrom(icon.Color()))
        return nullptr;

    // Twice the hot spot is one less than the bitmap where the size is odd. Black needs no exception: the
    // formulas leave it black.
    CPixels pixels = source.Part(icon.Size());
    pixels.ForEachColor(formula);
    CBitmap copy;
    if (!copy.CreateBitmap(icon.Size().cx, icon.Size().cy, color.bmPlanes, color.bmBitsPixel, nullptr) ||
        !pixels.WriteTo(copy))
        return nullptr;
    return icon.CreateIcon(copy);
}

COLORREF ButtonImages::Grayscale(COLORREF cr)
{
    const int grey = static_cast<int>(0.299 * GetRValue(cr) + 0.587 * GetGValue(cr) + 0.114 * GetBValue(cr));
    return RGB(grey, grey, grey);
}

COLORREF ButtonImages::Darker(COLORREF cr)
{
    return DarkenColor(cr, kDarkerBy);
}

COLORREF ButtonImages::DarkenColor(COLORREF cr, double factor)
{
    if (!(factor > 0 && factor <= 1))
        return cr;
    const auto darken = [=](BYTE channel) { return static_cast<BYTE>(channel - channel * factor); };
    return RGB(darken(GetRValue(cr)), darken(GetGValue(cr)), darken(GetBValue(cr)));
}

COLORREF ButtonImages::Disabled(COLORREF cr)
{
    const int average = (GetRValue(cr) + GetGValue(cr) + GetBValue(cr)) / 3;
    const int grey = 192 - static_cast<int>((average - 192) * -0.35);
    return RGB(grey, grey, grey);
}

void ButtonImages::DisableArea(CDC& dc, const CRect& area)
{
    CBitmap bitmap;
    CDC memory;
    if (!memory.CreateCompatibleDC(&dc) || !bitmap.CreateCompatibleBitmap(&dc, area.Width(), area.Height()))
        return;
    {
        const CGdiSelection selection(memory, bitmap);
        memory.BitBlt(0, 0, area.Width(), area.Height(), &dc, area.left, area.top, SRCCOPY);
    }
    CPixels pixels(area.Size());
    if (!pixels.ReadFrom(bitmap))
        return;
    const COLORREF crBackground = dc.GetPixel(area.TopLeft()); // no colour at all where it lies outside
    pixels.ForEachColor([=](COLORREF cr) { return cr == crBackground ? cr : Disabled(cr); });
    pixels.WriteTo(bitmap);
    const CGdiSelection selection(memory, bitmap);
    dc.BitBlt(area.left, area.top, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
}
