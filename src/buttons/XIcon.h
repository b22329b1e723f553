#pragma once
// A label with an icon and a line of text in a font of its own, which can make its window as wide as what it
// shows.
//
// ```cpp
//     CXIcon m_icon;
//     DDX_Control(pDX, IDC_STATE, m_icon);        // in the template: a button with BS_OWNERDRAW
//     m_icon.SetIcon(CButtonST::hIconOk, 16).SetBold(TRUE).SetWindowText(L"Saved");
// ```
//
// It is an owner-drawn button that only displays: it reacts to no click of its own. Lengths are pixels.
//
// Arrangement. With BS_LEFT and without BS_RIGHT the icon stands in front of the text, with any other
// alignment behind it. BS_TOP and BS_BOTTOM place the text vertically; otherwise it is centred, as the icon
// always is. The left margin holds for what comes first only if that is there: without an icon in front, the
// text begins at the icon spacing, and so does the icon without a text in front.
//
// Width. While automatic resizing is on, as it is at first, each setter fits the width of the window to its
// content: it grows at once, and shrinks only if more than 5 pixels are saved. Position and height stay.
//
// Setters answer the object, so that calls can be chained. Their last argument says whether the control is
// painted anew at once. They may be called before there is a window, too; but the text goes to the window and
// needs it, and a window that is taken over brings its own font.
//
// Ownership. The control copies every font that it is given. An icon given by handle stays the caller's, and
// must live as long as it is shown; one loaded by id belongs to the control.
//
// Failures are not reported: an icon, text or font that cannot be loaded or made is simply not there. A
// button without BS_OWNERDRAW stays the ordinary button that it is.

#include <afxwin.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CXIcon : public CButton
{
public:
    CXIcon();
    ~CXIcon() override;

    /// Left margin, which Resize keeps at both ends, and top margin. 2 and 0 at first.
    CXIcon& SetMargins(int nX, int nY, int bRepaint = TRUE);
    void GetMargins(int& nX, int& nY) const;

    /// Gap between icon and text. 5 at first.
    CXIcon& SetIconSpacing(int nSpacing, int bRepaint = TRUE);
    int GetIconSpacing() const;

    /// A COLORREF. The system's colour of button texts at first.
    CXIcon& SetTextColor(DWORD crText, int bRepaint = TRUE);
    DWORD GetTextColor() const;

    /// Whether Resize runs by itself after each change. On at first.
    CXIcon& SetAutoResize(int bAutoResize, int bRepaint = TRUE);
    int GetAutoResize() const;

    /// Shows an icon of the caller's, drawn at `nSize` by `nSize`; null for none.
    CXIcon& SetIcon(HICON hIcon, UINT nSize, int bRepaint = TRUE);
    /// Loads an icon of the program's own resources at `nSize` by `nSize`; 0 for none.
    CXIcon& SetIcon(UINT nId, UINT nSize, int bRepaint = TRUE);

    /// A text, the id of a string of the program's resources as MAKEINTRESOURCE gives it, or null for no
    /// text.
    CXIcon& SetWindowTextW(const wchar_t* pszText, int bRepaint = TRUE);

    /// The weight of the font.
    CXIcon& SetBold(int bBold, int bRepaint = TRUE);
    int GetBold();

    /// A font of a face and a size in points, with all else at its default, the weight included (so GetBold
    /// answers false). A null or empty face keeps the present font and changes its size alone.
    CXIcon& SetFont(const wchar_t* pszFace, int nPoints, int bRepaint = TRUE);
    /// A copy of a font; null takes the font that the control would show without one of its own.
    CXIcon& SetFont(CFont* pFont, int bRepaint = TRUE);
    /// The described font; null does nothing.
    CXIcon& SetFont(LOGFONTW* pLogFont, int bRepaint = TRUE);

    /// The font in use; not owned by the caller.
    CFont* GetFont();
    /// Describes the font; 0 for a null pointer, else 1.
    int GetFont(LOGFONTW* pLogFont);
    /// Its face.
    CString GetFontFaceName();
    /// Its size.
    int GetFontPointSize();

    /// Fits the width of the window to what it shows.
    void Resize();

protected:
    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

    /// Draws the icon at the left of the rectangle, vertically in its middle. The right end of the icon; 0
    /// without.
    int DrawIcon(CDC* pDC, CRect& rect);
    /// Draws the window text at the left of the rectangle. The right end of the text; 0 without.
    int DrawTextW(CDC* pDC, CRect& rect);

    int GetFontHeight(int nPoints);    ///< points to LOGFONT::lfHeight, on the screen
    int GetFontPointSize(int nHeight); ///< LOGFONT::lfHeight to points, on the screen
    /// The window's font, else its parent's, else one of the system's. Only for use at once.
    CFont* GetSafeFont();

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

private:
    CXIcon& Changed(int bRepaint);
    void ReplaceIcon(HICON hIcon, bool bOwned);
    LOGFONTW DescribeFont();
    void ReplaceFont(const LOGFONTW& logFont);
    CString Title() const;
    int WantedWidth();
    void DrawContent(CDC& dc, CRect rect);

    CFont m_font;
    COLORREF m_crText = ::GetSysColor(COLOR_BTNTEXT);
    int m_nMarginX = 2;
    int m_nMarginY = 0;
    int m_nIconSpacing = 5;
    HICON m_hIcon = nullptr;
    int m_nIconSize = 16;
    int m_bAutoResize = 1;
    int m_bOwnsIcon = 0;
};
