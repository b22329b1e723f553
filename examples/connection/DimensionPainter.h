#pragma once
// Dimensions in the style of the user: the ends by the pictures of the library's pickers, upright ones read
// from the right.
//
//     CDimensionPainter painter(dc, style);
//     painter.Horizontal(rect.left, rect.right, rect.bottom + painter.Step(), _T("180"));

#include "Model.h"

#include <DialogControlsOW.h>

class CDimensionPainter
{
public:
    /// Context and style must outlive the object.
    CDimensionPainter(CDC& dc, const DrawingStyle& style);

    /// Between two pixels on the line at y.
    void Horizontal(int nLeft, int nRight, int y, const CString& strText);
    /// Between two pixels on the line at x.
    void Vertical(int nTop, int nBottom, int x, const CString& strText);

    /// From one line to the next that is parallel to it, in pixels.
    int Step() const { return m_nTextHeight + 14; }

private:
    /// A dimension along its line: pixels from its beginning, and across from its line, down or to the right.
    struct Line
    {
        CPoint origin;
        bool bUpright;
        int nLength;
        CRect At(int nAlong, int nAcross, CSize size) const;
    };

    void Paint(const Line& line, const CString& strText);
    void PaintPart(const Line& line, int nFirst, int nLast, int nAlong);
    void PaintText(const Line& line, const CString& strText);

    CDC& m_dc;
    const DrawingStyle& m_style;
    int m_nTextHeight; ///< pixels
    HBITMAP m_hPicture;
    CBitmap m_turned; ///< the picture for upright dimensions
    CFont m_font, m_fontTurned;
};
