#pragma once
// Takes mixed-font text apart into runs of one look.

#include <string>
#include <string_view>
#include <vector>

/// How a run looks, as a change of the font that is selected in the device context.
struct SMixedFontLook
{
    std::wstring face;  ///< empty: the selected font's
    bool bBold = false; ///< at least bold
    bool bItalic = false;
    double dScale = 1.0; ///< size, in sizes of the selected font
    double dShift = 0.0; ///< downwards from the base line, in heights of the selected font

    bool operator==(const SMixedFontLook&) const = default;
};

struct SMixedFontRun
{
    std::wstring text; ///< never empty
    SMixedFontLook look;
};

/// The runs of a text in their order; neighbours differ in look.
std::vector<SMixedFontRun> SplitMixedFontText(std::wstring_view text);
