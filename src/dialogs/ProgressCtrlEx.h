#pragma once
// A progress bar that paints itself: plain, without flicker, and with a text in its middle that stays
// readable where the bar passes under it.
//
//     +------------------------------------+
//     |##################                  |     done:  in the bar's colour, the text in that of the face
//     |################ 45 %               |     rest:  the other way round
//     |##################                  |
//     +------------------------------------+
//
// A vertical bar grows from the bottom. Two pixels all around stay free. The range is 0 to 100.

#include <afxcmn.h>

class CProgressCtrlEx : public CProgressCtrl
{
public:
    CProgressCtrlEx();

    /// The font of the text; not owned, null for the system's.
    void SetTextFont(HFONT hFont) { m_hFont = hFont; }
    void SetColor(COLORREF crBar) { m_crBar = crBar; }
    void SetVertical(bool bVertical) { m_bVertical = bVertical; }

    /// Moves the bar and paints it at once. The control holds a position beyond its range at the range's end;
    /// the text is shown as it is.
    void Show(int nPos, const CString& strText);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

private:
    /// The two parts of the bar, inside its margin.
    struct SParts
    {
        CRect done;
        CRect rest;
    };

    SParts Split(CSize client) const;
    void Draw(CDC& dc, CSize client) const;
    void DrawText(CDC& dc, CSize client, const SParts& parts) const;

    CString m_strText;
    HFONT m_hFont = nullptr;
    COLORREF m_crBar;
    BOOL m_bVertical = FALSE;
};
