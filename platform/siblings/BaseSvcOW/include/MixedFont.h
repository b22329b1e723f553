#pragma once
// CMixedFont: a line of text in several fonts, with lowered and raised parts.
//
//     const LPCWSTR text = L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]";
//     const CSize size = CMixedFont::GetTextExtent(&dc, text);
//     CMixedFont::TextOutW(&dc, CPoint(rect.right - size.cx, rect.top), text);
//
// Mark-up           Meaning, up to the closing mark or the end of the text
// <f Name> </f>     face Name in the size, weight and slant of the font around it
// <b> </b>          bold
// <i> </i>          italic
// <sub> </sub>      lowered, two thirds of the size
// <sup> </sup>      raised, two thirds of the size
// \<                the character <
//
// Marks nest. A closing mark ends the nearest open mark of its name and those opened inside it; without an
// open one, and like anything else that is not a mark of this list, it is plain text.
//
// Text outside all marks is in the font that is selected in the device context. All parts stand on one base
// line. Text without marks measures and draws as CDC::GetTextExtent and CDC::TextOut do it.
//
// Fonts and layouts are kept for the next time, within bounds: call from the thread of the dialogs only.

#include "BaseSvcDef.h"

class BASESVC_API CMixedFont
{
public:
    /// Width and height of the text in logical units; (0, 0) for an empty or null text.
    static CSize GetTextExtent(CDC* pDC, LPCWSTR pszText);

    /// Draws the text with its upper left corner at `point`, whatever the context's text alignment, in its
    /// text colour. With background mode OPAQUE the whole rectangle of GetTextExtent is filled with the
    /// background colour. The context is left as it was.
    static void TextOutW(CDC* pDC, CPoint point, LPCWSTR pszText);
};
