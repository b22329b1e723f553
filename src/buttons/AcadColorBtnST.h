#pragma once
// A button with a swatch of one of the CAD host's colours, and the colour's number beside it. A click opens
// the host's colour dialog; the index that the user chooses is written into a variable of the owner, and a
// handler hears of it.
//
// ```cpp
//     class CLayerDialog : public CDialog, public AAcadColorBtnSTNotificationHandler
//     {
//         CAcadColorBtnST m_btnInk{this};
//         int m_nInk = 30;
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_INK, m_btnInk); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_btnInk.SetColorSource(&m_nInk);
//             return TRUE;
//         }
//         void OnAcadColorChosen(int nId, int nColor) override { PaintPreview(m_nInk); }
//     };
// ```
//
// At most 200 of these objects can be made in the life of a process. Each takes a control id for its number
// from ResourceIdPool when it is constructed, and keeps it for good: destroying the object does not give it
// back. The next object after the last id ends the process, and number boxes draw on the same pool. So do
// not make the button anew each time a dialog opens: keep the dialog object, or the button alone, and
// attach it again. The number is then made anew beside the new window, and shows the source that the button
// still has.
//
// Look. The swatch is that of CColorBtnST; an index that is no colour shows as an empty one. A disabled
// button shows an engraved arrow and an empty engraved frame.
//
// Number. A label of its own, a child of the button's parent in the parent's font, made when the button is
// attached and gone with the button's window. It stands right of the button by the width of a blank, is as
// wide as "888" and as high as the button: leave that room in the template. It is visible if the button is
// visible at that moment, and is enabled and disabled with it; it does not move when the button is moved.
//
// Source. The variable is the caller's and must outlive its use here. A button that is painted or clicked
// without one is a broken assumption and ends the process (AssertReport.h): call SetColorSource before the
// dialog shows. After changing the variable yourself call SetColorSource again.
//
// Clicks. Mouse, Space and Enter open the dialog, without ByLayer and ByBlock. If another colour was
// chosen, it is in the variable, the parent has been invalidated, and then come OnClickedHook and the
// handler; the number follows. If the dialog is cancelled, the same colour chosen, or the button's window
// gone when it closes, nobody is told and nothing is written. The parent does not receive the click, as it
// does from CButtonST.

#include <afxwin.h>

#include "buttons/ButtonST.h"

class OW_DIALOGCONTROLS_API CAcadColorBtnST : public CButtonST
{
public:
    CAcadColorBtnST();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CAcadColorBtnST(AAcadColorBtnSTNotificationHandler* pHandler);
    ~CAcadColorBtnST() override;

    /// The variable that is shown and written, an index of acedGetRGB; not owned. Shows it unless it is null.
    void SetColorSource(int* pColor);

protected:
    /// Another colour was chosen and is in the variable; the handler is told next. Does nothing here.
    virtual void OnClickedHook();

    /// Shows the number of the source; none without a source.
    void UpdateNum();
    /// Where the number belongs, in the parent's client coordinates.
    CRect CalcNumRect();

    void PreSubclassWindow() override;
    DWORD OnDrawBackground(CDC* pDC, CRect& rect) override;

    afx_msg void OnClicked();
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    int* m_pCurrentColor = nullptr;                      ///< not owned
    AAcadColorBtnSTNotificationHandler* m_pColorHandler; ///< not owned, may be null
    CStatic m_numberLabel;
    const int m_nNumberLabelId; ///< never given back: that is wanted

private:
    void CreateNumberLabel();
};
