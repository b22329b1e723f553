#pragma once
// A small drawing in a chosen style: a hatched wall with a dimension above it, levels, an elevation mark and
// a section symbol. It is put together from the pictures of the picker buttons.

#include <DialogControlsOW.h>

/// What the drawing is made of: indices into the tables of the picker classes.
struct DrawingStyle
{
    int dimensionEnds = 0;
    int dimensionText = 0;
    int hatch = 0;
    int elevationMark = 0;
    int levelLine = 0;
    int groundLine = 0;
    int sectionLine = 0;
    int leftEnd = 0; ///< of the section
    int rightEnd = 0;
    COLORREF color = RGB(24, 52, 104);
};

/// A static control that shows the drawing.
class CDrawingPreview : public CStatic
{
public:
    /// Shows the drawing in this style from now on.
    void Show(const DrawingStyle& style);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    DrawingStyle m_style;
};
