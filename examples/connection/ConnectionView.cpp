#include <afxwin.h>

#include "ConnectionView.h"

#include "DimensionPainter.h"
#include "Language.h"
#include "Parts.h"

#include "module/GdiScope.h"

#include <FormatJedinice.h>
#include <aced.h>

#include <algorithm>
#include <cmath>

namespace
{
constexpr COLORREF kPaper = RGB(255, 255, 255), kInk = RGB(40, 40, 40);
constexpr int kMargin = 10; // pixels

// What is drawn of the members around the plate, metres.
constexpr double kColumnBeyond_m = 0.045, kBeamStub_m = 0.11, kColumnStub_m = 0.07;

/// Areas of the pictures of hatches that fit to themselves on all sides.
constexpr RECT kHatchTiles[] = {
    {1, 1, 31, 19}, {1, 1, 31, 19}, {1, 2, 31, 22}, {2, 1, 30, 21}, {1, 1, 26, 21},
    {1, 1, 25, 17}, {1, 1, 31, 21}, {3, 2, 27, 20}, {1, 1, 31, 23}, {1, 6, 25, 18},
};

/// A colour of the host as a pale fill.
COLORREF Pale(int nColor)
{
    const COLORREF cr = acedGetRGB(nColor);
    const auto channel = [](int n) { return (n + 3 * 255) / 4; };
    return RGB(channel(GetRValue(cr)), channel(GetGValue(cr)), channel(GetBValue(cr)));
}

/// Draws one connection into one room; origins and sizes in metres, from the middle of the joint.
class CConnectionPainter
{
public:
    CConnectionPainter(CDC& dc, const CRect& room, const Connection& c)
        : m_dc(dc), m_room(room), m_c(c), m_dimensions(dc, c.drawing), m_pen(PS_SOLID, 1, kInk),
          m_axis(PS_DASHDOT, 1, RGB(150, 60, 60))
    {
        m_format.nUnitIndex = c.lengths.unit;
        m_format.nCheckFlag = c.lengths.symbol;
        m_format.nEditValue = c.lengths.decimals;
    }

    void Paint()
    {
        const CGdiSelection pen(m_dc, m_pen);
        const CBkModeScope transparent(m_dc, TRANSPARENT);
        Lay();
        PaintTitles();
        PaintFront();
        PaintSection();
        PaintFrontDimensions();
        PaintSectionDimensions();
    }

private:
    /// The scale at which both views have room beside each other, and the middle of each.
    void Lay()
    {
        const int nStep = m_dimensions.Step(), nLineHeight = m_dc.GetTextExtent(_T("0"), 1).cy;
        const double front = FrontWidth_m(), section = SectionWidth_m();
        const double height = m_c.plateHeight_m + 2 * kColumnBeyond_m;
        const int nGap = 3 * kMargin;
        const int nTop = m_room.top + kMargin + nLineHeight;
        const int nBottom = m_room.bottom - kMargin - 4 * nLineHeight - 2 * nStep - 8;
        const int nWidth = m_room.Width() - 2 * kMargin - 2 * nStep - nGap;
        m_scale = std::max(0.0, std::min(nWidth / (front + section), (nBottom - nTop - 8) / height));
        m_middle = (nTop + nBottom) / 2;
        const int nUsed = Pixels(front) + Pixels(section) + nGap + 2 * nStep;
        m_left = m_room.left + std::max(kMargin, static_cast<int>(m_room.Width() - nUsed) / 2) + 2 * nStep;
        m_front = m_left + Pixels(front / 2);
        m_section = m_left + Pixels(front) + nGap + Pixels(kColumnStub_m);
        m_below = m_middle + Pixels(height / 2) + nStep;
    }
    double FrontWidth_m() const { return std::max(m_c.Column().width_m, m_c.plateWidth_m); }
    double SectionWidth_m() const
    {
        return kColumnStub_m + m_c.Column().flange_m + m_c.plateThickness_m + kBeamStub_m;
    }
    int Pixels(double length_m) const { return static_cast<int>(std::lround(length_m * m_scale)); }

    // Metres from the middle of the front view, and from the face of the column's web side in the section.
    CRect InFront(double left, double top, double right, double bottom) const
    {
        return CRect(m_front + Pixels(left), m_middle + Pixels(top), m_front + Pixels(right) + 1,
                     m_middle + Pixels(bottom) + 1);
    }
    CRect InSection(double left, double top, double right, double bottom) const
    {
        return CRect(m_section + Pixels(left), m_middle + Pixels(top), m_section + Pixels(right) + 1,
                     m_middle + Pixels(bottom) + 1);
    }
    /// A row of bolts, from the middle downwards.
    double RowAt_m(int nRow) const { return -m_c.plateHeight_m / 2 + m_c.endDistance_m + nRow * m_c.pitch_m; }

    void PaintBox(const CRect& rect, EPart part)
    {
        const CBrush brush(Pale(m_c.parts[part].color));
        const CGdiSelection scope(m_dc, brush.m_hObject);
        m_dc.Rectangle(rect);
    }
    void PaintCut(const CRect& rect, EPart part);
    void PaintBeamSection();
    void PaintFront();
    void PaintSection();
    void PaintBolt(double y);
    void PaintFrontDimensions();
    void PaintSectionDimensions();
    void PaintTitles();

    CString TextOf(double length_m) const { return m_format.Format(length_m); }

    CDC& m_dc;
    const CRect m_room;
    const Connection& m_c;
    CDimensionPainter m_dimensions;
    CPen m_pen, m_axis;
    CFormatJedinice m_format;
    double m_scale = 1; ///< pixels for each metre
    int m_left = 0, m_middle = 0, m_front = 0, m_section = 0, m_below = 0;
};

/// What is cut is hatched, in the colour of its part.
void CConnectionPainter::PaintCut(const CRect& rect, EPart part)
{
    const CRect tile(kHatchTiles[m_c.drawing.hatch]);
    CBitmap bitmap;
    bitmap.CreateBitmap(tile.Width(), tile.Height(), 1, 1, nullptr);
    {
        CDC from, to;
        from.CreateCompatibleDC(&m_dc);
        to.CreateCompatibleDC(&m_dc);
        const CGdiSelection fromScope(from, CBitmapBtnSTSrafura().GetBitmap(m_c.drawing.hatch)),
            toScope(to, bitmap);
        to.BitBlt(0, 0, tile.Width(), tile.Height(), &from, tile.left, tile.top, SRCCOPY);
    }
    CBrush brush;
    brush.CreatePatternBrush(&bitmap);
    const CGdiSelection scope(m_dc, brush);
    const CBkColorScope ground(m_dc, Pale(m_c.parts[part].color));
    const CTextColorScope ink(m_dc, kInk);
    m_dc.Rectangle(rect);
}

/// The beam as it is cut in front of the plate.
void CConnectionPainter::PaintBeamSection()
{
    const Profile& beam = m_c.Beam();
    const double h = beam.height_m / 2, b = beam.width_m / 2, t = beam.flange_m, w = beam.web_m / 2;
    const double xs[] = {-b, b, b, w, w, b, b, -b, -b, -w, -w, -b};
    const double ys[] = {-h, -h, t - h, t - h, h - t, h - t, h, h, h - t, h - t, t - h, t - h};
    CPoint outline[std::size(xs)];
    for (size_t i = 0; i < std::size(xs); ++i)
        outline[i] = CPoint(m_front + Pixels(xs[i]), m_middle + Pixels(ys[i]));
    const CBrush brush(Pale(m_c.parts[ePartBeam].color));
    const CGdiSelection scope(m_dc, brush.m_hObject);
    m_dc.Polygon(outline, static_cast<int>(std::size(outline)));
}

void CConnectionPainter::PaintFront()
{
    const double column = m_c.Column().width_m / 2, plate = m_c.plateWidth_m / 2,
                 half = m_c.plateHeight_m / 2;
    PaintBox(InFront(-column, -half - kColumnBeyond_m, column, half + kColumnBeyond_m), ePartColumn);
    PaintBox(InFront(-plate, -half, plate, half), ePartPlate);
    PaintBeamSection();

    const CBrush brush(Pale(m_c.parts[ePartBolts].color));
    const double head = m_c.Bolt().headWidth_m / 2;
    for (int nRow = 0; nRow < m_c.boltRows; ++nRow)
        for (const double x : {-m_c.gauge_m / 2, m_c.gauge_m / 2})
        {
            const CRect circle = InFront(x - head, RowAt_m(nRow) - head, x + head, RowAt_m(nRow) + head);
            const CPoint middle(m_front + Pixels(x), m_middle + Pixels(RowAt_m(nRow)));
            const int nCross = circle.Width() / 2 + 3;
            {
                const CGdiSelection scope(m_dc, brush.m_hObject);
                m_dc.Ellipse(circle);
            }
            const CGdiSelection axis(m_dc, m_axis);
            m_dc.MoveTo(middle.x - nCross, middle.y);
            m_dc.LineTo(middle.x + nCross + 1, middle.y);
            m_dc.MoveTo(middle.x, middle.y - nCross);
            m_dc.LineTo(middle.x, middle.y + nCross + 1);
        }
}

void CConnectionPainter::PaintSection()
{
    const Profile& beam = m_c.Beam();
    const double half = m_c.plateHeight_m / 2, end = half + kColumnBeyond_m, h = beam.height_m / 2;
    const double flange = m_c.Column().flange_m, face = flange + m_c.plateThickness_m,
                 stub = face + kBeamStub_m;
    PaintBox(InSection(-kColumnStub_m, -end, 0, end), ePartColumn);
    PaintCut(InSection(0, -end, flange, end), ePartColumn);
    PaintCut(InSection(flange, -half, face, half), ePartPlate);
    PaintBox(InSection(face, -h, stub, h), ePartBeam);
    PaintBox(InSection(face, -h, stub, beam.flange_m - h), ePartBeam);
    PaintBox(InSection(face, h - beam.flange_m, stub, h), ePartBeam);
    for (int nRow = 0; nRow < m_c.boltRows; ++nRow)
        PaintBolt(RowAt_m(nRow));
}

/// Head, nut and axis in the section.
void CConnectionPainter::PaintBolt(double y)
{
    const BoltSize& bolt = m_c.Bolt();
    const double face = m_c.Column().flange_m + m_c.plateThickness_m, half = bolt.HeadRadius_m();
    PaintBox(InSection(face, y - half, face + bolt.headHeight_m, y + half), ePartBolts);
    PaintBox(InSection(-bolt.nutHeight_m, y - half, 0, y + half), ePartBolts);
    const CGdiSelection axis(m_dc, m_axis);
    const CRect line = InSection(-bolt.nutHeight_m - 0.008, y, face + bolt.headHeight_m + 0.008, y);
    m_dc.MoveTo(line.left, line.top);
    m_dc.LineTo(line.right, line.top);
}

void CConnectionPainter::PaintFrontDimensions()
{
    const double plate = m_c.plateWidth_m / 2, half = m_c.plateHeight_m / 2, gauge = m_c.gauge_m / 2;
    const int nStep = m_dimensions.Step(), nChain = m_left - nStep + 6, nWhole = nChain - nStep;
    const int nTop = m_middle - Pixels(half), nBottom = m_middle + Pixels(half);
    const int nFirst = m_middle + Pixels(RowAt_m(0)), nLast = m_middle + Pixels(RowAt_m(m_c.boltRows - 1));
    CString strPitches = TextOf(m_c.pitch_m);
    if (m_c.boltRows > 2)
        strPitches.Format(_T("%d x %s"), m_c.boltRows - 1, TextOf(m_c.pitch_m).GetString());
    m_dimensions.Vertical(nTop, nFirst, nChain, TextOf(m_c.endDistance_m));
    m_dimensions.Vertical(nFirst, nLast, nChain, strPitches);
    m_dimensions.Vertical(nLast, nBottom, nChain, TextOf(m_c.BottomDistance_m()));
    m_dimensions.Vertical(nTop, nBottom, nWhole, TextOf(m_c.plateHeight_m));

    const int xs[] = {m_front - Pixels(plate), m_front - Pixels(gauge), m_front + Pixels(gauge),
                      m_front + Pixels(plate)};
    m_dimensions.Horizontal(xs[0], xs[1], m_below, TextOf(m_c.EdgeDistance_m()));
    m_dimensions.Horizontal(xs[1], xs[2], m_below, TextOf(m_c.gauge_m));
    m_dimensions.Horizontal(xs[2], xs[3], m_below, TextOf(m_c.EdgeDistance_m()));
    m_dimensions.Horizontal(xs[0], xs[3], m_below + nStep, TextOf(m_c.plateWidth_m));
}

void CConnectionPainter::PaintSectionDimensions()
{
    const double flange = m_c.Column().flange_m;
    const int xs[] = {m_section, m_section + Pixels(flange),
                      m_section + Pixels(flange + m_c.plateThickness_m)};
    m_dimensions.Horizontal(xs[0], xs[1], m_below, TextOf(flange));
    m_dimensions.Horizontal(xs[1], xs[2], m_below + m_dimensions.Step(), TextOf(m_c.plateThickness_m));
    const int nBeam = m_section + Pixels(flange + m_c.plateThickness_m + kBeamStub_m * 0.7);
    m_dimensions.Vertical(m_middle - Pixels(m_c.Beam().height_m / 2),
                          m_middle + Pixels(m_c.Beam().height_m / 2), nBeam, TextOf(m_c.Beam().height_m));
}

/// What the parts are, below the drawing.
void CConnectionPainter::PaintTitles()
{
    const auto parts = PartsOf(m_c);
    CString strBolts, strWelds;
    strBolts.Format(_T("%d %s"), 2 * m_c.boltRows, parts[ePartBolts].description.c_str());
    strWelds = Tr(_T("Savovi")) + _T(": a = ") + TextOf(m_c.flangeWeld_m) + _T(" / ") + TextOf(m_c.webWeld_m);
    const CString strText = CString(parts[ePartBeam].description.c_str()) + _T(" - ") +
                            parts[ePartColumn].description.c_str() + _T(",  ") + m_c.Steel().name + _T("\n") +
                            parts[ePartPlate].description.c_str() + _T(",  ") + strBolts + _T("\n") +
                            strWelds;
    CRect place(m_room);
    place.DeflateRect(kMargin, kMargin);
    place.top = place.bottom - 3 * m_dc.GetTextExtent(_T("0"), 1).cy;
    const CTextColorScope ink(m_dc, kInk);
    m_dc.DrawText(strText, place, DT_NOPREFIX | DT_LEFT);
}
} // namespace

BEGIN_MESSAGE_MAP(CConnectionView, CStatic)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CConnectionView::OnPaint()
{
    CPaintDC dc(this);
    CMemDC buffer(&dc); // shows everything at once when it goes
    CRect room;
    GetClientRect(room);
    buffer.FillSolidRect(room, kPaper);
    {
        const CGdiSelection font(buffer, GetFont()->m_hObject);
        CConnectionPainter(buffer, room, m_connection).Paint();
    }
    buffer.Draw3dRect(room, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
}

void CConnectionView::Show(const Connection& connection)
{
    m_connection = connection;
    Invalidate(FALSE);
}
