#pragma once
// The pop-up of a colour button: the twenty colours of the palette, and "Other..." for any colour.
//
// ```cpp
//     CColorSelectDialog dialog(&m_btnFill);   // opens below the button
//     dialog.SetInitialColor(m_crFill);
//     if (dialog.DoModal() == IDOK)
//         m_crFill = CColorBtnST::s_colorTable[dialog.GetSelectedIndex()];
// ```
//
// A CColorBtnST has one of its own; few clients use the pop-up by itself. Its template is a resource of the
// library: have the library's resources pushed around DoModal if MFC does not know the library as an
// extension module.
//
// Place. Left and top at the owner's left bottom corner; above the owner if it does not fit below it on the
// screen, and moved left if it does not fit at the right. The screen is the primary one.
//
// Mouse. The pop-up has the capture while it is open: a press outside cancels, a press on a cell chooses
// when it is let go. It cancels as well when another window takes the capture or another application comes
// to the front.
//
// Keys. The cell of the initial colour has the focus in the beginning, or the first one if the palette does
// not have that colour. Arrows move between the cells, and down to "Other..."; Tab goes from the cells to
// "Other..." and back. Space and Enter choose, Escape cancels. A key that is still held from opening the
// pop-up does nothing.
//
// Palette. What is chosen becomes the most recently used colour. A colour of "Other..." that the palette
// does not have replaces the least recently used one.

#include <afxwin.h>

#include "buttons/ColorBtnST.h"

class OW_DIALOGCONTROLS_API CColorSelectDialog : public CDialog
{
public:
    /// Neither pointer is owned; both are looked at when the pop-up opens, and may be null. Without an
    /// owner the rectangle, in screen coordinates, takes its place, and without that the mouse pointer.
    explicit CColorSelectDialog(CWnd* pOwnerButton, const RECT* pAnchorRect = nullptr);
    ~CColorSelectDialog() override;

    /// Marks the cell of the colour, and is what "Other..." starts from. Black if it is not called.
    void SetInitialColor(COLORREF cr);
    /// The chosen entry of the palette, after DoModal answered IDOK.
    int GetSelectedIndex() const;
    /// Closes the pop-up if it is open, "Other..." included; DoModal does not answer IDOK then.
    void Cancel();

protected:
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCell(UINT nId);
    afx_msg void OnOther();
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg LRESULT OnTakeCapture(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CWnd* m_pOwnerButton;      ///< not owned, may be null
    const RECT* m_pAnchorRect; ///< not owned, may be null
    int m_nSelectedIndex = 0;  ///< of the palette
    COLORREF m_initialColor = 0;

private:
    /// A cell, or "Other...". While it is pressed it has the capture.
    class CPart : public CWnd
    {
    protected:
        afx_msg void OnCaptureChanged(CWnd* pWnd);
        DECLARE_MESSAGE_MAP()
    };

    static constexpr int kCells = CColorBtnST::kPaletteSize;
    static constexpr int kParts = kCells + 1;

    CRect Anchor() const;
    void Place();
    void AttachParts();
    void MoveTabStop(int nCell);
    bool MoveFocus(UINT nKey);
    int FocusedPart() const;
    void PressPart(CWnd* pPart);
    void CaptureMoved(CWnd* pNewOwner);
    bool HasCapture() const;
    void Choose(int nIndex);
    void Close(int nResult);

    CPart m_parts[kParts]; ///< in reading order
    int m_nTabStop = 0;    ///< the cell that Tab goes to
    /// The pop-up is open, and no other dialog stands over it: mouse and keys are its own.
    bool m_bInUse = false;
};
