#pragma once
// Where the swatches of the colour dialog stand.
//
//     hues 0 to 23, one column each
//     +--------------------------------------+
//     | shades 8 6 4 2 0 from dark to full   |
//     | shades 1 3 5 7 9 from pale to dark   |
//     +--------------------------------------+
//     | 1 ... 9 |                | 250 - 255 |     the last row, half as high again
//     +---------+                +-----------+

#include "ColorIndex.h"

#include <afxwin.h>

#include <algorithm>

class ColorGridLayout
{
public:
    static constexpr int kHueRows = kShades;
    static constexpr int kLastRow = kHueRows;
    static constexpr int kColumns = kHues;

    /// For a window whose client area has this size, in pixels.
    explicit ColorGridLayout(CSize client) : m_nWidth(client.cx), m_nCellHeight(client.cy / (kHueRows + 2))
    {
    }

    /// The cell of a colour, empty if the index has no colour of its own.
    CRect CellRect(int nColor) const
    {
        if (!IsPlainColor(nColor))
            return CRect();
        const SPlace place = PlaceOf(nColor);
        const bool bLast = place.nRow == kLastRow;
        const int nTop = place.nRow * m_nCellHeight + (bLast ? m_nCellHeight / 2 : 0);
        const int nHeight = bLast ? m_nCellHeight * 3 / 2 : m_nCellHeight;
        return CRect(ColumnLeft(place.nColumn), nTop, ColumnLeft(place.nColumn + 1), nTop + nHeight);
    }

    /// The colour at a point of the client area, or kNoColor.
    int HitTest(CPoint point) const
    {
        for (int nColor = kFirstColor; nColor <= kLastColor; ++nColor)
        {
            if (CellRect(nColor).PtInRect(point))
                return nColor;
        }
        return kNoColor;
    }

    /// The colour beside another, one step to the right (+1) or left (-1); at the border the colour itself.
    static int Sideways(int nColor, int nStep)
    {
        SPlace place = PlaceOf(nColor);
        do
            place.nColumn += nStep;
        while (IsInside(place) && ColorAt(place) == kNoColor); // over the gap of the last row
        return IsInside(place) ? ColorAt(place) : nColor;
    }

    /// The colour one step below (+1) or above (-1); at the border the colour itself.
    static int Vertically(int nColor, int nStep)
    {
        SPlace place = PlaceOf(nColor);
        place.nRow += nStep;
        if (!IsInside(place))
            return nColor;
        if (place.nRow == kLastRow)
            place.nColumn = NearestInLastRow(place.nColumn);
        return ColorAt(place);
    }

private:
    struct SPlace
    {
        int nRow;
        int nColumn;
    };

    static constexpr int kShadeOfRow[kHueRows] = {8, 6, 4, 2, 0, 1, 3, 5, 7, 9};
    static constexpr int kStandardColumns = kFirstHue - kFirstColor;
    static constexpr int kGreyColumns = kLastColor - kFirstGrey + 1;
    static constexpr int kFirstGreyColumn = kColumns - kGreyColumns;

    /// The columns fill the whole width; they may differ by a pixel.
    int ColumnLeft(int nColumn) const { return nColumn * m_nWidth / kColumns; }

    static SPlace PlaceOf(int nColor)
    {
        if (nColor < kFirstHue)
            return {kLastRow, nColor - kFirstColor};
        if (nColor >= kFirstGrey)
            return {kLastRow, kFirstGreyColumn + nColor - kFirstGrey};
        const int nShade = (nColor - kFirstHue) % kShades;
        const auto* pRow = std::find(std::begin(kShadeOfRow), std::end(kShadeOfRow), nShade);
        return {static_cast<int>(pRow - kShadeOfRow), (nColor - kFirstHue) / kShades};
    }

    static int ColorAt(SPlace place)
    {
        if (place.nRow < kHueRows)
            return kFirstHue + place.nColumn * kShades + kShadeOfRow[place.nRow];
        if (place.nColumn < kStandardColumns)
            return kFirstColor + place.nColumn;
        if (place.nColumn >= kFirstGreyColumn)
            return kFirstGrey + place.nColumn - kFirstGreyColumn;
        return kNoColor;
    }

    static bool IsInside(SPlace place)
    {
        return place.nRow >= 0 && place.nRow <= kLastRow && place.nColumn >= 0 &&
               place.nColumn < kColumns;
    }

    static int NearestInLastRow(int nColumn)
    {
        const int nLastStandard = kStandardColumns - 1;
        const bool bNearStandard = nColumn - nLastStandard < kFirstGreyColumn - nColumn;
        return bNearStandard ? std::min(nColumn, nLastStandard) : std::max(nColumn, kFirstGreyColumn);
    }

    int m_nWidth;
    int m_nCellHeight;
};
