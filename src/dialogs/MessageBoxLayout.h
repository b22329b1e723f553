#pragma once
// Where things stand in a message box. Lengths are pixels.
//
//      12   icon    text: 200 to 500, or the row of buttons   12
//     +---------------------------------------------------------+
//     |                                                         | 12
//     |   [icon]    13 for each line, at least 39               |
//     |                                                         | 12
//     |            [ first ]  8  [ second ]  8  [ third ]       | height of a button
//     |                                                         | 12
//     +---------------------------------------------------------+
//
// With an icon the text begins 44 further to the right.
//
// Screens that are not at 96 dots per inch. The window and the row of buttons are scaled, the text is not;
// and the step from button to button is scaled twice, once when it is added and once when the button is
// placed, so that the gaps grow with the resolution. Dialogs have been laid out around this, and it stays.

#include <afxwin.h>

#include <algorithm>

class CMessageBoxLayout
{
public:
    static constexpr int kMinTextWidth = 200;
    static constexpr int kMaxTextWidth = 500;
    static constexpr int kLineHeight = 13;
    static constexpr int kMinTextHeight = 39; ///< three lines
    static constexpr int kIconLeft = 12;
    static constexpr int kIconTop = 12;

    /// `button`: the size of one, as the template gives it. `dScale`: dots per inch by 96. `frame`: what the
    /// window is larger than its client area.
    CMessageBoxLayout(CSize button, int nButtons, double dScale, CSize frame, bool bIcon)
        : m_button(button), m_nButtons(nButtons), m_dScale(dScale), m_frame(frame), m_bIcon(bIcon)
    {
    }

    static int TextHeight(int nLines)
    {
        return nLines < kFewLines ? kMinTextHeight : kLineHeight * nLines;
    }

    /// The number of lines with which the window is not higher than `nHeight`; at least those of the least
    /// text.
    int MaxLines(int nHeight) const
    {
        const int nText = static_cast<int>(nHeight / m_dScale) - m_frame.cy - HeightAround();
        return (std::max)(nText / kLineHeight, kMinTextHeight / kLineHeight);
    }

    /// Says how large the text is; the questions below may be asked after it only.
    void SetText(int nWidth, int nHeight)
    {
        m_text = CSize((std::max)(ScaledRow(), nWidth), nHeight);
        m_client = CSize(m_text.cx + 2 * kMargin + IconColumn(), m_text.cy + HeightAround());
    }

    CSize Window() const { return CSize(Scaled(m_client.cx + m_frame.cx), Scaled(m_client.cy + m_frame.cy)); }

    CRect Text() const { return CRect(CPoint(kMargin + IconColumn(), kMargin), m_text); }

    /// Upper left corner of a button, counted from 0.
    CPoint Button(int nIndex) const
    {
        const int nFirst = m_client.cx / 2 - ScaledRow() / 2;
        return CPoint(Scaled(nFirst + nIndex * Scaled(Step())),
                      Scaled(m_client.cy - m_button.cy - kMargin));
    }

private:
    static constexpr int kMargin = 12;
    static constexpr int kButtonGap = 8;
    static constexpr int kIconColumn = 44;
    static constexpr int kFewLines = 4;

    int Scaled(int nPixels) const { return static_cast<int>(nPixels * m_dScale); }
    int Step() const { return m_button.cx + kButtonGap; }
    int ScaledRow() const { return Scaled(Step() * m_nButtons - kButtonGap); }
    int HeightAround() const { return m_button.cy + 3 * kMargin; }
    int IconColumn() const { return m_bIcon ? kIconColumn : 0; }

    CSize m_button;
    int m_nButtons;
    double m_dScale;
    CSize m_frame;
    bool m_bIcon;
    CSize m_text;   ///< of the control that shows it
    CSize m_client; ///< before scaling
};
