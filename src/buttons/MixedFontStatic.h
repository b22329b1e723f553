#pragma once
// A label in several fonts on one line.
//
// ```cpp
//     CMixedFontStatic m_labelStress;
//     DDX_Control(pDX, IDC_STRESS_LABEL, m_labelStress);    // a static control of the template
//     m_labelStress.SetWindowText(L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]");
// ```
//
// The mark-up is told in MixedFont.h: <f Face>, <b>, <i>, <sub>, <sup>. What is no mark shows as it stands, a
// mark without its end reaches to the end of the text, and there are no mnemonics: an & is an &. The fonts go
// out from that of the parent window.
//
// Place. The text stands at the top of the control: at the left, with SS_CENTER in the middle, with SS_RIGHT
// at the right. What does not fit is cut; lines are not broken.
//
// Text. It is kept in this object and not in the window. The label takes over the text that its window was
// made with; SetWindowText, GetWindowText and the messages behind them go to the kept one, in full, mark-up
// included.
//
// Look. The text is in the context's own colour, also while the label is disabled; the ground behind it is
// that of a dialog (COLOR_BTNFACE), and a text that changes wipes the one before. With WS_EX_TRANSPARENT
// there is no ground and nothing is wiped: the parent erases before a new text is set.

#include <afxwin.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CMixedFontStatic : public CStatic
{
    DECLARE_DYNCREATE(CMixedFontStatic)

public:
    CMixedFontStatic();

protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void TakeOverTitle();
    LRESULT SetTitle(const wchar_t* pszText);
    LRESULT Erase(CDC& dc) const;
    void Paint(CDC& dc);
    /// By the room that the text leaves, which is negative if it does not fit.
    int TextLeft(int nRoom) const;

    CString m_strTitle;
    BOOL m_bTextDirty = FALSE;        ///< the next paint wipes m_rectLastText
    CRect m_rectLastText{0, 0, 0, 0}; ///< where the text stood last
};
