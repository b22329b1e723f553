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
    static constexpr int c_nHueRows = c_nShades;
    static constexpr int c_nLastRow = c_nHueRows;
    static constexpr int c_nColumns = c_nHues;

    /// For a window whose client area has this size, in pixels.
    explicit ColorGridLayout(CSize client) : m_nWidth(client.cx), m_nCellHeight(client.cy / (c_nHueRows + 2))
    {
    }

    /// The cell of a colour, empty if the index has no colour of its own.
    CRect CellRect(int nColor) const
    {
        if (!IsPlainColor(nColor))
            return CRect();
        const SPlace place = PlaceOf(nColor);
        const bool bLast = place.nRow == c_nLastRow;
        const int nTop = place.nRow * m_nCellHeight + (bLast ? m_nCellHeight / 2 : 0);
        const int nHeight = bLast ? m_nCellHeight * 3 / 2 : m_nCellHeight;
        return CRect(ColumnLeft(place.nColumn), nTop, ColumnLeft(place.nColumn + 1), nTop + nHeight);
    }

    /// The colour at a point of the client area, or c_nNoColor.
    int HitTest(CPoint point) const
    {
        for (int nColor = c_nFirstColor; nColor <= c_nLastColor; ++nColor)
        {
            if (CellRect(nColor).PtInRect(point))
                return nColor;
        }
        return c_nNoColor;
    }

    /// The colour beside another, one step to the right (+1) or left (-1); at the border the colour itself.
    static int Sideways(int nColor, int nStep)
    {
        SPlace place = PlaceOf(nColor);
        do
            place.nColumn += nStep;
        while (IsInside(place) && ColorAt(place) == c_nNoColor); // over the gap of the last row
        return IsInside(place) ? ColorAt(place) : nColor;
    }

    /// The colour one step below (+1) or above (-1); at the border the colour itself.
    static int Vertically(int nColor, int nStep)
    {
        SPlace place = PlaceOf(nColor);
        place.nRow += nStep;
        if (!IsInside(place))
            return nColor;
        if (place.nRow == c_nLastRow)
            place.nColumn = NearestInLastRow(place.nColumn);
        return ColorAt(place);
    }

private:
    struct SPlace
    {
        int nRow;
        int nColumn;
    };

    static constexpr int c_shadeOfRow[c_nHueRows] = {8, 6, 4, 2, 0, 1, 3, 5, 7, 9};
    static constexpr int c_nStandardColumns = c_nFirstHue - c_nFirstColor;
    static constexpr int c_nGreyColumns = c_nLastColor - c_nFirstGrey + 1;
    static constexpr int c_nFirstGreyColumn = c_nColumns - c_nGreyColumns;

    /// The columns fill the whole width; they may differ by a pixel.
    int ColumnLeft(int nColumn) const { return nColumn * m_nWidth / c_nColumns; }

    static SPlace PlaceOf(int nColor)
    {
        if (nColor < c_nFirstHue)
            return {c_nLastRow, nColor - c_nFirstColor};
        if (nColor >= c_nFirstGrey)
            return {c_nLastRow, c_nFirstGreyColumn + nColor - c_nFirstGrey};
        const int nShade = (nColor - c_nFirstHue) % c_nShades;
        const auto* pRow = std::find(std::begin(c_shadeOfRow), std::end(c_shadeOfRow), nShade);
        return {static_cast<int>(pRow - c_shadeOfRow), (nColor - c_nFirstHue) / c_nShades};
    }

    static int ColorAt(SPlace place)
    {
        if (place.nRow < c_nHueRows)
            return c_nFirstHue + place.nColumn * c_nShades + c_shadeOfRow[place.nRow];
        if (place.nColumn < c_nStandardColumns)
            return c_nFirstColor + place.nColumn;
        if (place.nColumn >= c_nFirstGreyColumn)
            return c_nFirstGrey + place.nColumn - c_nFirstGreyColumn;
        return c_nNoColor;
    }

    static bool IsInside(SPlace place)
    {
        return place.nRow >= 0 && place.nRow <= c_nLastRow && place.nColumn >= 0 &&
               place.nColumn < c_nColumns;
    }

    static int NearestInLastRow(int nColumn)
    {
        const int nLastStandard = c_nStandardColumns - 1;
        const bool bNearStandard = nColumn - nLastStandard < c_nFirstGreyColumn - nColumn;
        return bNearStandard ? std::min(nColumn, nLastStandard) : std::max(nColumn, c_nFirstGreyColumn);
    }

    int m_nWidth;
    int m_nCellHeight;
};
