#pragma once
// A check box, or a button that looks like a radio button, whose label has several fonts on one line.
//
// ```cpp
//     class CLoadDialog : public CDialog, public AButtonSTNotificationHandler
//     {
//         CMixedFontButton m_checkWind{this};               // "<i>q</i><sub>w</sub> [kN/m<sup>2</sup>]"
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_WIND, m_checkWind); }
//         void OnButtonClicked(int) override { m_checkWind.SetCheck(!m_checkWind.GetCheck()); }
//     };
// ```
//
// Clicks. A click by mouse, Space or BM_CLICK calls the handler and then goes to the parent as BN_CLICKED, as
// with CExtButton; two fast clicks are two. The check state is the caller's: nothing toggles by itself, and a
// radio look takes no check away from its neighbours. Whoever answers the click sets the checks, as above.
//
// Check state. It is 0 or 1 and belongs to this object, not to the system's button; what the template's
// control had is not taken over. SetCheck, GetCheck, CheckDlgButton and DDX_Check work, by BM_SETCHECK and
// BM_GETCHECK. A disabled button keeps its state, whatever is set, and so does one that is given another
// number than 0 or 1.
//
// Attaching. The control becomes owner-drawn. Templates use BS_AUTOCHECKBOX, BS_CHECKBOX, BS_AUTORADIOBUTTON
// or a push button. BS_RADIOBUTTON, BS_3STATE, BS_AUTO3STATE and BS_GROUPBOX do not serve: a bit of theirs
// stays in the type, which then is another than the owner-drawn one. Focus is not told by BN_SETFOCUS and
// BN_KILLFOCUS.
//
// Text. The window's text, with the mark-up of MixedFont.h: <f Face>, <b>, <i>, <sub>, <sup>. It is drawn in
// fonts that go out from that of the parent; an & shows as it stands, and still gives the button its
// mnemonic. A text that does not fit is cut.
//
// Place, by the button's styles, in pixels. The box is 13 by 13:
//
//     BS_LEFT, none    box at the left edge, text 20 from it
//     BS_RIGHT         box at the left edge, text 1 from the right edge
//     BS_CENTER        box at the left edge, text in the middle of what is right of it
//     BS_LEFTTEXT      box at the right edge, text 1 from the left edge; with BS_RIGHT 7 before the box; with
//                      BS_CENTER left of the middle, the more so the longer it is
//     BS_TOP           text 1 from the top, the box's foot at the text's: without a text it is out of sight
//     BS_BOTTOM        text and box 2 from the bottom
//     BS_VCENTER, none both in the middle
//
// The face behind box and text is that of a dialog (COLOR_BTNFACE); a text that changes wipes the one before.
// With WS_EX_TRANSPARENT the text has no ground and wipes nothing: the parent erases before a new text is
// set.

#include <afxwin.h>

#include "buttons/ExtButton.h"

class OW_DIALOGCONTROLS_API CMixedFontButton : public CExtButton
{
public:
    CMixedFontButton();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CMixedFontButton(AButtonSTNotificationHandler* pHandler);
    ~CMixedFontButton() override;

    /// Draws a round box from now on. The argument does not count: there is no way back.
    void RadioButtonLook(int nRadio);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    /// Draws box, text and focus mark into a rectangle.
    void _DrawCheckBox(CDC* pDC, const CRect& rect);

private:
    LRESULT SetFocusState(BOOL bFocus);
    LRESULT SetCheckState(WPARAM nCheck);
    LRESULT Changed();
    void CancelPress();

    struct Places; ///< of box and text
    Places Place(const CRect& rect, CSize text) const;
    Places DrawLabel(CDC& dc, const CRect& rect);
    void DrawLine(CDC& dc, const CString& strText, CPoint at);
    void DrawBox(CDC& dc, const CRect& rect);
    void DrawFocus(CDC& dc, const CRect& rectText);

    BOOL m_bTextDirty = FALSE;        ///< the next paint wipes m_rectLastText
    CRect m_rectLastText{0, 0, 0, 0}; ///< where the text stood last
    int m_nCheckState = 0;            ///< 0 or 1
    BOOL m_bHasFocus = FALSE;
    BOOL m_bRadioLook = FALSE;
};
