#include "ColorIndex.h"

#include "aced.h"

namespace
{
constexpr COLORREF c_standard[] = {
    RGB(255, 0, 0),   RGB(255, 255, 0),   RGB(0, 255, 0),     RGB(0, 255, 255),   RGB(0, 0, 255),
    RGB(255, 0, 255), RGB(255, 255, 255), RGB(128, 128, 128), RGB(192, 192, 192),
};

constexpr int c_greys[] = {51, 91, 132, 173, 214, 255};

/// Brightness of the shades: the two of a pair, full and pale, share one.
constexpr int c_brightness[c_nShades / 2] = {255, 165, 127, 76, 38};

/// Share of a primary colour in a hue, in quarters: hues are 15 degrees apart, a quarter of the sixth of the
/// circle over which a primary rises or falls. `nDistance` is the distance from the primary, in hues.
constexpr int PrimaryShare(int nDistance)
{
    if (nDistance <= 4)
        return 4;
    return nDistance >= 8 ? 0 : 8 - nDistance;
}

/// Distance of two hues on the circle.
constexpr int HueDistance(int nHue, int nOther)
{
    const int nApart = (nHue - nOther + c_nHues) % c_nHues;
    return nApart <= c_nHues / 2 ? nApart : c_nHues - nApart;
}

/// One channel of a shade: brightness times share; a pale shade is half-way from there to its brightness.
constexpr int Channel(int nHue, int nPrimaryHue, int nBrightness, bool bPale)
{
    const int nFull = nBrightness * PrimaryShare(HueDistance(nHue, nPrimaryHue)) / 4;
    return bPale ? (nFull + nBrightness) / 2 : nFull;
}

constexpr COLORREF ShadeColor(int nHue, int nShade)
{
    constexpr int c_nRed = 0;
    constexpr int c_nGreen = c_nHues / 3;
    constexpr int c_nBlue = 2 * c_nHues / 3;
    const int nBrightness = c_brightness[nShade / 2];
    const bool bPale = nShade % 2 != 0;
    return RGB(Channel(nHue, c_nRed, nBrightness, bPale), Channel(nHue, c_nGreen, nBrightness, bPale),
               Channel(nHue, c_nBlue, nBrightness, bPale));
}

constexpr COLORREF PlainColor(int nColor)
{
    if (nColor < c_nFirstHue)
        return c_standard[nColor - c_nFirstColor];
    if (nColor < c_nFirstGrey)
        return ShadeColor((nColor - c_nFirstHue) / c_nShades, (nColor - c_nFirstHue) % c_nShades);
    const int nGrey = c_greys[nColor - c_nFirstGrey];
    return RGB(nGrey, nGrey, nGrey);
}
} // namespace

COLORREF acedGetRGB(int nColor)
{
    if (IsMetaColor(nColor))
        return PlainColor(c_nForeground);
    return IsPlainColor(nColor) ? PlainColor(nColor) : CLR_INVALID;
}
