#include <afxwin.h>

#include "DrawingPreview.h"

#include "module/GdiScope.h"
#include "module/MemorySurface.h"

#include <algorithm>

namespace
{
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr LPCTSTR kLength = _T("2400");

/// Draws with the brush where a picture is black, and leaves the rest as it is.
constexpr DWORD kInkWhereBlack = 0x00B8074A;

/// Columns of a picture that can be drawn at any length: a head, a middle that is repeated, and a tail.
struct LongPicture
{
    int head;
    int middle;
    int period; ///< width of what is repeated
    int tail;
    int end;
};

constexpr LongPicture kDimensionLine{0, 22, 4, 26, 48};

// By the index of the picture.
// clang-format off
constexpr LongPicture kLines[] = {
    {2, 2, 44, 46, 46}, {2, 2, 12, 46, 46}, {2, 2, 8, 46, 46}, {2, 2, 24, 46, 46}, {2, 2, 6, 46, 46},
    {2, 2, 18, 46, 46}, {2, 2, 19, 46, 46}, {3, 3, 25, 45, 45}, {2, 2, 28, 46, 46}, {2, 2, 33, 46, 46},
    {2, 2, 44, 46, 46}, {2, 2, 14, 46, 46}, {2, 16, 6, 32, 46},
};
constexpr RECT kHatchTiles[] = {
    {1, 1, 31, 19}, {1, 1, 31, 19}, {1, 2, 31, 22}, {2, 1, 30, 21}, {1, 1, 26, 21},
    {1, 1, 25, 17}, {1, 1, 31, 21}, {3, 2, 27, 20}, {1, 1, 31, 23}, {1, 6, 25, 18},
};
constexpr int kSectionRows[] = {19, 19, 19, 19, 19, 19, 19, 12, 14, 12, 19}; ///< of the line in an end's picture
// clang-format on
constexpr int kLineRow = 8;       ///< of lines and dimension lines in their pictures
constexpr int kElevationRow = 21; ///< of the level in an elevation mark
constexpr int kExtension = 5;     ///< column of an extension line
constexpr int kOutsideEnds = 19;  ///< these have their arrows outside,
constexpr int kOutsideExtension = 13;
const CSize kEnd(32, 24); ///< of a section

template <class Picker>
HBITMAP PictureOf(int nIndex)
{
    return Picker().GetBitmap(nIndex);
}

COLORREF Lighter(COLORREF cr)
{
    const auto channel = [](int c) { return (c + 255) / 2; };
    return RGB(channel(GetRValue(cr)), channel(GetGValue(cr)), channel(GetBValue(cr)));
}

/// Draws pictures of one bit in a colour.
class CPencil
{
public:
    CPencil(CDC& dc, COLORREF cr) : m_dc(dc), m_brush(cr), m_selection(dc, m_brush), m_white(dc, kPaper)
    {
        m_picture.CreateCompatibleDC(&dc);
        dc.SetTextColor(RGB(0, 0, 0));
    }

    void Draw(HBITMAP hPicture, const CRect& source, CPoint at)
    {
        Stretch(hPicture, source, CRect(at, source.Size()));
    }

    /// From right to left.
    void DrawMirrored(HBITMAP hPicture, CSize size, CPoint at)
    {
        Stretch(hPicture, CRect(CPoint(0, 0), size),
                CRect(at.x + size.cx - 1, at.y, at.x - 1, at.y + size.cy));
    }

    /// Fills the area with a part of a picture, beginning at the top left.
    void Repeat(HBITMAP hPicture, const CRect& part, const CRect& area)
    {
        for (int y = area.top; y < area.bottom; y += part.Height())
            for (int x = area.left; x < area.right; x += part.Width())
            {
                const CSize size(std::min<int>(part.Width(), area.right - x),
                                 std::min<int>(part.Height(), area.bottom - y));
                Draw(hPicture, CRect(part.TopLeft(), size), CPoint(x, y));
            }
    }

    /// A picture of a line, its row at `y`.
    void DrawLong(HBITMAP hPicture, const LongPicture& picture, int left, int right, int y)
    {
        const int top = y - kLineRow, bottom = top + 16;
        const int middle = left + picture.middle - picture.head, tail = right - (picture.end - picture.tail);
        Draw(hPicture, CRect(picture.head, 0, picture.middle, 16), CPoint(left, top));
        Repeat(hPicture, CRect(picture.middle, 0, picture.middle + picture.period, 16),
               CRect(middle, top, tail, bottom));
        Draw(hPicture, CRect(picture.tail, 0, picture.end, 16), CPoint(tail, top));
    }

    void Fill(const CRect& rect) { m_dc.PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), PATCOPY); }

private:
    void Stretch(HBITMAP hPicture, const CRect& source, const CRect& target)
    {
        const CGdiSelection selection(m_picture, hPicture);
        m_dc.StretchBlt(target.left, target.top, target.Width(), target.Height(), &m_picture, source.left,
                        source.top, source.Width(), source.Height(), kInkWhereBlack);
    }

    CDC& m_dc;
    CDC m_picture;
    CBrush m_brush;
    CGdiSelection m_selection;
    CBkColorScope m_white;
};

void PaintWall(CDC& dc, const CRect& wall, const DrawingStyle& style)
{
    CPencil(dc, Lighter(style.color))
        .Repeat(PictureOf<CBitmapBtnSTSrafura>(style.hatch), kHatchTiles[style.hatch], wall);
    CPencil pencil(dc, style.color);
    pencil.Fill(CRect(wall.left, wall.top, wall.left + 1, wall.bottom));
    pencil.Fill(CRect(wall.right - 1, wall.top, wall.right, wall.bottom));
}

void PaintLevels(CDC& dc, const CRect& room, const CRect& wall, const DrawingStyle& style)
{
    CPencil pencil(dc, style.color);
    const int left = room.left + 8, right = room.right - 8;
    pencil.DrawLong(PictureOf<CBitmapBtnSTLinija>(style.levelLine), kLines[style.levelLine], left, right,
                    wall.top);
    pencil.DrawLong(PictureOf<CBitmapBtnSTLinija>(style.groundLine), kLines[style.groundLine], left, right,
                    wall.bottom);
    pencil.Draw(PictureOf<CBitmapBtnSTVisinskaKota>(style.elevationMark), CRect(0, 0, 32, kElevationRow),
                CPoint(wall.right + 14, wall.top - kElevationRow));
}

/// Where the dimension's text goes, by the picture of its place.
CPoint TextCorner(int nPlace, const CRect& wall, int y, CSize text)
{
    const int middle = wall.CenterPoint().x - text.cx / 2, above = y - text.cy - 2;
    switch (nPlace)
    {
    case 1:
        return CPoint(middle, y - text.cy / 2);
    case 2:
        return CPoint(middle, y + 3);
    case 3:
        return CPoint(wall.left + 3, above);
    case 4:
        return CPoint(wall.right - text.cx - 3, above);
    case 5:
        return CPoint(wall.right + 12, above);
    default:
        return CPoint(middle, above);
    }
}

void PaintDimension(CDC& dc, const CRect& wall, const DrawingStyle& style)
{
    constexpr int kInLine = 1, kOutside = 5;
    const int y = wall.top - 34;
    const int over = style.dimensionEnds == kOutsideEnds ? kOutsideExtension : kExtension;
    const CSize text = dc.GetTextExtent(kLength);
    const CRect place(TextCorner(style.dimensionText, wall, y, text), text);
    {
        CPencil pencil(dc, style.color);
        pencil.DrawLong(PictureOf<CBitmapBtnSTKotnaLinija>(style.dimensionEnds), kDimensionLine,
                        wall.left - over, wall.right + over, y);
        if (style.dimensionText == kOutside)
            pencil.Fill(CRect(wall.right, y, place.right, y + 1));
    }
    if (style.dimensionText == kInLine)
        dc.FillSolidRect(place.left - 3, place.top, place.Width() + 6, place.Height(), kPaper);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(style.color);
    dc.TextOut(place.left, place.top, kLength);
}

void PaintSection(CDC& dc, const CRect& room, const CRect& wall, const DrawingStyle& style)
{
    const int y = wall.CenterPoint().y, left = room.left + 4, right = room.right - 4 - kEnd.cx;
    const HBITMAP hLine = PictureOf<CBitmapBtnSTSimbolPresekaLinija>(style.sectionLine);
    const LongPicture& line = kLines[style.sectionLine];
    CPencil eraser(dc, kPaper);
    for (const CPoint shift :
         {CPoint(-2, 0), CPoint(2, 0), CPoint(0, -2), CPoint(0, 2)}) // clear of the hatch
        eraser.DrawLong(hLine, line, wall.left + shift.x + 3, wall.right + shift.x - 3, y + shift.y);
    CPencil pencil(dc, style.color);
    pencil.DrawLong(hLine, line, left + kEnd.cx, right, y);
    pencil.DrawMirrored(PictureOf<CBitmapBtnSTSimbolPresekaZavrsetak>(style.leftEnd), kEnd,
                        CPoint(left, y - kSectionRows[style.leftEnd]));
    pencil.Draw(PictureOf<CBitmapBtnSTSimbolPresekaZavrsetak>(style.rightEnd), CRect(CPoint(0, 0), kEnd),
                CPoint(right, y - kSectionRows[style.rightEnd]));
}

void PaintDrawing(CDC& dc, const CRect& room, const DrawingStyle& style)
{
    const CRect wall(room.left + 50, room.top + 64, room.right - 62, room.bottom - 24);
    dc.FillSolidRect(room, kPaper);
    PaintWall(dc, wall, style);
    PaintLevels(dc, room, wall, style);
    PaintDimension(dc, wall, style);
    PaintSection(dc, room, wall, style);
}
} // namespace

BEGIN_MESSAGE_MAP(CDrawingPreview, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CDrawingPreview::OnPaint()
{
    CPaintDC dc(this);
    CRect room;
    GetClientRect(room);
    ow::CMemorySurface surface;
    if (!surface.Create(dc, room.Size()))
        return;
    const CGdiSelection font(surface.DC(), GetFont()->m_hObject);
    PaintDrawing(surface.DC(), room, m_style);
    dc.BitBlt(0, 0, room.Width(), room.Height(), &surface.DC(), 0, 0, SRCCOPY);
}

void CDrawingPreview::Show(const DrawingStyle& style)
{
    m_style = style;
    Invalidate(FALSE);
}
