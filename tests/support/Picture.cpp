#include "Picture.h"

#include <objidl.h>

// gdiplus.h uses min and max unqualified.
#include <algorithm>
using std::max;
using std::min;
#include <gdiplus.h>

namespace owtest
{
namespace
{
constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
} // namespace

Surface::Surface(int width, int height, COLORREF fill) : m_width(width), m_height(height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // first row on top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;

    void* bits = nullptr;
    m_dc.CreateCompatibleDC(nullptr);
    m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    m_bits = static_cast<DWORD*>(bits);
    m_old = ::SelectObject(m_dc.m_hDC, m_bitmap.m_hObject);
    m_dc.FillSolidRect(0, 0, width, height, fill);
}

Surface::~Surface()
{
    ::SelectObject(m_dc.m_hDC, m_old);
}

COLORREF Surface::at(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    ::GdiFlush();
    const DWORD pixel = m_bits[y * m_width + x];
    return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

int Surface::count(const CRect& area, COLORREF color) const
{
    int found = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            found += at(x, y) == color;
    return found;
}

CRect Surface::extent(COLORREF color) const
{
    CRect found;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            if (at(x, y) == color)
                found |= CRect(x, y, x + 1, y + 1);
    return found;
}

bool Surface::operator==(const Surface& other) const
{
    ::GdiFlush();
    const auto same = [](DWORD left, DWORD right) { return ((left ^ right) & 0xFFFFFF) == 0; };
    return std::equal(m_bits, m_bits + m_width * m_height, other.m_bits, same);
}

void Capture(HWND window, Surface& into)
{
    CWindowDC own(CWnd::FromHandle(window));
    into.dc().BitBlt(0, 0, into.width(), into.height(), &own, 0, 0, SRCCOPY);
}

bool SavePng(HBITMAP bitmap, const std::wstring& path)
{
    ULONG_PTR session = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&session, &input, nullptr);
    const bool saved =
        Gdiplus::Bitmap(bitmap, nullptr).Save(path.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
    Gdiplus::GdiplusShutdown(session);
    return saved;
}

bool SaveWindowPng(HWND window, const std::wstring& path)
{
    CRect rect;
    if (!::GetWindowRect(window, &rect))
        return false;
    Surface picture(rect.Width(), rect.Height());
    ::GdiFlush(); // inside a menu's loop nobody has done it yet
    CWindowDC screen(nullptr);
    picture.dc().BitBlt(0, 0, rect.Width(), rect.Height(), &screen, rect.left, rect.top, SRCCOPY);
    return SavePng(static_cast<HBITMAP>(::GetCurrentObject(picture.dc().m_hDC, OBJ_BITMAP)), path);
}
} // namespace owtest
