#pragma once
// The images of a button: their sizes, the masks of bitmaps, and the copies made from a first image.
//
// Everything that is created here is the caller's to release.

#include <afxwin.h>

#include <optional>

namespace ButtonImages
{
/// Size of an icon, taken as twice its hot spot; none if the handle cannot be read.
std::optional<CSize> SizeOf(HICON hIcon);
/// Size of a bitmap; none if the handle cannot be read.
std::optional<CSize> SizeOf(HBITMAP hBitmap);

/// A monochrome bitmap, white where the given one has the transparent colour; null if it cannot be made.
/// Those pixels of the given bitmap become black: drawing by AND with the mask and OR with the bitmap counts
/// on it.
HBITMAP CreateMask(HBITMAP hBitmap, CSize size, COLORREF crTransparent);

/// A copy with `formula` applied to each pixel that has not the transparent colour, compatible with the
/// screen. Null if it cannot be made.
using Formula = COLORREF (*)(COLORREF);
HBITMAP CreateBitmapCopy(HBITMAP hBitmap, CSize size, COLORREF crTransparent, Formula formula);
/// A copy with `formula` applied to each pixel, under the same mask and, where there is one, the same alpha
/// channel. Null if it cannot be made, and for a monochrome icon.
HICON CreateIconCopy(HICON hIcon, Formula formula);

/// The brightness of a colour as the eye sees it.
COLORREF Grayscale(COLORREF cr);
/// A quarter darker.
COLORREF Darker(COLORREF cr);
/// Darker by a part above 0 and up to 1; with any other factor the colour itself.
COLORREF DarkenColor(COLORREF cr, double factor);
/// The even grey of a disabled icon.
COLORREF Disabled(COLORREF cr);

/// Turns an area of a context grey, as a disabled icon is. Pixels of the colour of its top left corner are
/// left.
void DisableArea(CDC& dc, const CRect& area);
} // namespace ButtonImages
