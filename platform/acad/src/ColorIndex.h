#pragma once
// Numbers of the colour index.

constexpr int kByBlock = 0;
constexpr int kFirstColor = 1; ///< red, the first with a colour of its own
constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;
constexpr int kLastColor = 255; ///< white, the last with a colour of its own
constexpr int kByLayer = 256;
constexpr int kForeground = 7;
constexpr int kNoColor = -1; ///< no choice yet

constexpr int kHues = 24;
constexpr int kShades = 10; ///< of each hue

/// Whether the index has a colour of its own.
constexpr bool IsPlainColor(int nColor)
{
    return nColor >= kFirstColor && nColor <= kLastColor;
}

/// Whether the index takes its colour from the block or the layer.
constexpr bool IsMetaColor(int nColor)
{
    return nColor == kByBlock || nColor == kByLayer;
}
