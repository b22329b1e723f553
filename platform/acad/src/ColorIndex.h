#pragma once
// Numbers of the colour index.

constexpr int c_nByBlock = 0;
constexpr int c_nFirstColor = 1; ///< red, the first with a colour of its own
constexpr int c_nFirstHue = 10;
constexpr int c_nFirstGrey = 250;
constexpr int c_nLastColor = 255; ///< white, the last with a colour of its own
constexpr int c_nByLayer = 256;
constexpr int c_nForeground = 7;
constexpr int c_nNoColor = -1; ///< no choice yet

constexpr int c_nHues = 24;
constexpr int c_nShades = 10; ///< of each hue

/// Whether the index has a colour of its own.
constexpr bool IsPlainColor(int nColor)
{
    return nColor >= c_nFirstColor && nColor <= c_nLastColor;
}

/// Whether the index takes its colour from the block or the layer.
constexpr bool IsMetaColor(int nColor)
{
    return nColor == c_nByBlock || nColor == c_nByLayer;
}
