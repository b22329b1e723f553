#pragma once
// All drawings of the library side by side.

#include <DialogControlsOW.h>

#include <vector>

/// An icon or a bitmap, with the name under which it is known. The handle belongs to the library.
struct Drawing
{
    CString strName;
    HICON hIcon = nullptr;
    HBITMAP hBitmap = nullptr;
    CSize size; ///< pixels
};

/// The icons: the 102 of CButtonST, then the seven that other code loads by id, named by their id.
std::vector<Drawing> AllIcons();

/// The pictures of the picker buttons, table by table.
std::vector<Drawing> AllPictures();

/// How a sheet is laid out, in pixels.
struct SheetLayout
{
    CSize cell;
    int scale = 1;      ///< each drawing is shown this many times its size
    bool names = false; ///< names below the drawings
};

/// Paints the drawings row by row into the area; answers the height that they took.
int PaintSheet(CDC& dc, const CRect& area, const std::vector<Drawing>& drawings, const SheetLayout& layout);
