#pragma once
// Pixels read back from memory and from windows, and PNG files of them.

#include <afxwin.h>

#include <string>

namespace owtest
{
/// A 32-bit memory surface to paint on and read from.
class Surface
{
public:
    Surface(int width, int height, COLORREF fill = RGB(255, 0, 255));
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    CDC& dc() { return m_dc; }
    COLORREF at(int x, int y) const;
    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Number of pixels inside the rectangle that have the colour.
    int count(const CRect& area, COLORREF color) const;

    /// The smallest rectangle that holds all pixels of the colour; empty if there is none.
    CRect extent(COLORREF color) const;

    /// Whether each pixel is that of the other one, which has the same size.
    bool operator==(const Surface& other) const;

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_old = nullptr;
    DWORD* m_bits = nullptr;
    int m_width, m_height;
};

/// Copies a window, frame included, as it is painted, whether or not it shows on the screen by now.
void Capture(HWND window, Surface& into);

/// Writes a bitmap as PNG; false if the file could not be written.
bool SavePng(HBITMAP bitmap, const std::wstring& path);

/// Writes what the screen shows at the place of a window, frame included, as PNG.
bool SaveWindowPng(HWND window, const std::wstring& path);
} // namespace owtest
