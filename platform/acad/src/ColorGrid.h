#pragma once
// The swatches of the colour dialog: one focus stop, in which mouse and arrow keys choose a colour.

#include "ColorGridLayout.h"

class CColorGrid : public CWnd
{
public:
    /// Codes of the WM_COMMAND notifications to the parent.
    enum ENotification
    {
        eSelectionChanged = 1, ///< by the user
        eHotChanged = 2,       ///< the mouse moved on to another swatch, or away
        eAccepted = 3,         ///< double click on a swatch
    };

    /// Name of the window class to use in a dialog template; see RegisterWindowClass.
    static constexpr WCHAR kClassName[] = L"AcadHostColorGrid";

    /// Makes the window class known; to be called before a template with it is used. False if that fails.
    static bool RegisterWindowClass();

    /// The chosen colour; kNoColor if none of the swatches is.
    int GetSelection() const { return m_nSelected; }

    /// Shows a choice without notifying. Any index without a swatch shows none.
    void SetSelection(int nColor);

    /// The colour under the mouse, or kNoColor.
    int GetHot() const { return m_nHot; }

protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    ColorGridLayout Layout() const;
    void Select(int nColor);
    void SetHot(int nColor);
    void Notify(ENotification eCode);
    int FocusColor() const;
    void InvalidateSwatch(int nColor);

    void Draw(CDC& dc) const;
    void DrawSwatch(CDC& dc, const ColorGridLayout& layout, int nColor) const;
    void DrawMarks(CDC& dc, const ColorGridLayout& layout) const;

    int m_nSelected = kNoColor;
    int m_nHot = kNoColor;
};
