#include "ColorIndex.h"

#include "aced.h"

#include <algorithm>

namespace
{
constexpr COLORREF kStandard[] = {
    RGB(255, 0, 0),   RGB(255, 255, 0),   RGB(0, 255, 0),     RGB(0, 255, 255),   RGB(0, 0, 255),
    RGB(255, 0, 255), RGB(255, 255, 255), RGB(128, 128, 128), RGB(192, 192, 192),
};

constexpr int kGreys[] = {51, 91, 132, 173, 214, 255};

/// Brightness of the shades: the two of a pair, full and pale, share one.
constexpr int kBrightness[kShades / 2] = {255, 165, 127, 76, 38};

/// Share of a primary colour in a hue, in quarters: hues are 15 degrees apart, a quarter of the sixth of the
/// circle over which a primary rises or falls. `nDistance` is the distance from the primary, in hues.
constexpr int PrimaryShare(int nDistance)
{
    return std::clamp(8 - nDistance, 0, 4);
}

/// Distance of two hues on the circle.
constexpr int HueDistance(int nHue, int nOther)
{
    const int nApart = (nHue - nOther + kHues) % kHues;
    return nApart <= kHues / 2 ? nApart : kHues - nApart;
}

/// One channel of a shade: brightness times share; a pale shade is half-way from there to its brightness.
constexpr int Channel(int nHue, int nPrimaryHue, int nBrightness, bool bPale)
{
    const int nFull = nBrightness * PrimaryShare(HueDistance(nHue, nPrimaryHue)) / 4;
    return bPale ? (nFull + nBrightness) / 2 : nFull;
}

constexpr COLORREF ShadeColor(int nHue, int nShade)
{
    constexpr int kRed = 0;
    constexpr int kGreen = kHues / 3;
    constexpr int kBlue = 2 * kHues / 3;
    const int nBrightness = kBrightness[nShade / 2];
    const bool bPale = nShade % 2 != 0;
    return RGB(Channel(nHue, kRed, nBrightness, bPale), Channel(nHue, kGreen, nBrightness, bPale),
               Channel(nHue, kBlue, nBrightness, bPale));
}

constexpr COLORREF PlainColor(int nColor)
{
    if (nColor < kFirstHue)
        return kStandard[nColor - kFirstColor];
    if (nColor < kFirstGrey)
        return ShadeColor((nColor - kFirstHue) / kShades, (nColor - kFirstHue) % kShades);
    const int nGrey = kGreys[nColor - kFirstGrey];
    return RGB(nGrey, nGrey, nGrey);
}
} // namespace

COLORREF acedGetRGB(int nColor)
{
    if (IsMetaColor(nColor))
        return PlainColor(kForeground);
    return IsPlainColor(nColor) ? PlainColor(nColor) : CLR_INVALID;
}
