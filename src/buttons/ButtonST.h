#pragma once
// The base of the library's self-painting buttons: a push button or check box that shows an icon or a bitmap
// beside its title, in a flat or a raised style, and tells a handler of its clicks. It is also the home of
// the icons that all buttons share.
//
// ```cpp
//     class CBeamDialog : public CDialog, public AButtonSTNotificationHandler
//     {
//         CButtonST m_btnPick{this};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_PICK, m_btnPick); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_btnPick.SetIcon(CButtonST::hIconPogled, nullptr);
//             m_btnPick.SetTooltipText(L"Picks a beam in the drawing");
//             return TRUE;
//         }
//         void OnButtonClicked(int nId) override { if (nId == IDC_PICK) PickBeam(); }
//     };
// ```
//
// Attaching. The button takes over a control of a dialog template. The type of the control decides what it
// becomes: BS_DEFPUSHBUTTON the default button; any type with the bit 0x2 (BS_CHECKBOX, BS_AUTOCHECKBOX,
// BS_AUTO3STATE, but also BS_GROUPBOX and BS_OWNERDRAW) a check box; the rest, BS_3STATE and the radio
// buttons among it, a push button. From then on the control is owner-drawn and stays so, whatever button
// style a dialog sends it.
//
// Clicks. A click takes the focus, toggles a check box, opens the address of a push button that has one,
// calls the handler and then goes to the parent as BN_CLICKED. Space clicks when it goes down; so does Enter,
// unless SetKbdSensitive(FALSE) leaves it to the dialog. Fast clicks all count: there are no double clicks.
//
// Look. With a theme helper in an application with a visual style the theme draws face and border. Without
// one:
//
//     raised   edge of four lines; a black frame if focused or default; one dark frame while pressed
//     flat     no edge; with DrawBorder, a thin one while the mouse is over the button or presses it
//
// Only flat buttons know that the mouse is over them (hover). A button is built flat and without border in a
// themed application, raised and with border elsewhere. The six colours count without a theme; their text
// colours always.
//
// Images. There are two: the first shows while the button is pressed or hovered, or the check box is checked;
// the second otherwise. Without a second the first shows always. The second may be asked for as a grey or a
// darker copy of the first:
//
// ```cpp
//     m_btn.SetIcon(hIcon, reinterpret_cast<HICON>(CButtonST::copyGray));
//     m_btn.SetIcon(IDI_BEAM, CButtonST::copyDarker);
// ```
//
// Ownership of images.
// - Icons: the button lets go of them with DeleteObject, which does nothing to an icon. So an icon that is
//   given to SetIcon stays the caller's, may show on any number of buttons, and outlives them all; this is
//   what makes the shared icons below work. By the same rule the icons that the button makes or loads itself
//   (the copies, and those given by resource id) are never released: set them once per button, not at each
//   change of state.
// - Bitmaps: the button owns the first from the call on, whatever the call answers, and deletes it with the
//   next image setter and in its destructor; and so the second, unless the call failed over the first
//   (resultNoImage for a first that cannot be read, resultNoMask for its mask): then the second was not taken
//   and stays the caller's. The pixels of the transparent colour are made black in the bitmap itself. A
//   bitmap must not be given to two buttons.
// - The cursor of SetBtnCursor is loaded and destroyed by the button.
//
// Place of the image beside a title, by SetAlign. The origin is 3 pixels; SizeToContent makes it 0.
//
//     0 alignLeft    from the left by the origin; the title has what is right of it
//     1 alignTop     from the top by the origin; the title has what is below the image's height
//     2 alignRight   from the right by the origin; the title has what is left of it
//     3 alignNone    in the corner of the button, under the title
//
// Without a title it stands in the middle, except that alignRight keeps it at the top and alignNone in the
// corner. While a push button is pressed, image and title move by (1, 1) or, with SetPressedStyle(1), by (0,
// 2).
//
// Disabled. An icon turns grey; a bitmap is drawn engraved; the title is engraved.
//
// Failures. Setters that answer a DWORD answer an EResult. After an image setter failed the button has no
// images. Setters may be called before there is a window, except those that need one and then do nothing:
// tooltip, SizeToContent, SetBk.

#include <afxwin.h>
#include <afxcmn.h>

#include "buttons/ButtonSTIcons.h"
#include "module/Export.h"
#include "module/MemorySurface.h"
#include "module/NotificationInterfaces.h"

class CThemeHelperST;

class OW_DIALOGCONTROLS_API CButtonST : public CButton
{
public:
    /// What a setter answers.
    enum EResult : DWORD
    {
        resultOk = 0,
        resultNoImage = 1, ///< the handle cannot be read, or the resource did not load
        resultNoMask = 2,  ///< the mask of a bitmap cannot be made
        resultBadColorIndex = 3,
        resultBadAlign = 4,
        resultBadArgument = 5,
        resultBadPressedStyle = 6,
    };

    /// The colours, by state: "in" while hovered or pressed, "focus" while focused, "out" otherwise.
    enum EColor : BYTE
    {
        colorBackIn,
        colorTextIn,
        colorBackOut,
        colorTextOut,
        colorBackFocus,
        colorTextFocus,
        colorCount
    };

    /// Where the image stands.
    enum EAlign : BYTE
    {
        alignLeft,
        alignTop,
        alignRight,
        alignNone
    };

    /// What moves while the button is pressed.
    enum EPressedStyle : BYTE
    {
        pressedAside, ///< image and title move by (1, 1)
        pressedDown   ///< by (0, 2)
    };

    /// In place of a second image: make it from the first.
    enum ECopy : LONG_PTR
    {
        copyGray = -2,
        copyDarker = -3
    };

    CButtonST();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CButtonST(AButtonSTNotificationHandler* pHandler);
    ~CButtonST() override;

    // ---- Images. Each setter first lets go of all images, of both kinds. ----------------------------------

    /// A null first icon removes the images. Sizes are twice the icons' hot spots.
    DWORD SetIcon(HICON hIn, HICON hOut = nullptr);
    /// By resource ids, in the icons' own size, from the module of MFC's resource chain that has them.
    DWORD SetIcon(int nIn, int nOut = 0);
    /// The same in given sizes, in pixels.
    DWORD SetIcon(int nIn, int cxIn, int cyIn, int nOut, int cxOut, int cyOut);

    /// Bitmaps, each with the colour that is transparent in it. A null first bitmap removes the images.
    DWORD SetBitmaps(HBITMAP hIn, COLORREF crTransparentIn, HBITMAP hOut = nullptr,
                     COLORREF crTransparentOut = 0);
    DWORD SetBitmaps(int nIn, COLORREF crTransparentIn, int nOut = 0, COLORREF crTransparentOut = 0);

    /// Makes the window as large as its first image, and the margin of the image 0.
    void SizeToContent();

    // ---- Style. `bRepaint` repaints at once. --------------------------------------------------------------

    DWORD SetFlat(BOOL bFlat, BOOL bRepaint = TRUE);
    BOOL GetFlat() const;
    /// Whether a flat button shows a border while hovered or pressed.
    DWORD DrawBorder(BOOL bBorder, BOOL bRepaint = TRUE);
    /// Whether a flat button shows that it has the focus.
    DWORD DrawFlatFocus(BOOL bFocus, BOOL bRepaint = TRUE);
    /// The same setting. Repaints only if `bRepaint` is exactly 1.
    void SetFlatFocus(BOOL bFocus, BOOL bRepaint = TRUE);
    /// Takes the theme's toolbar buttons for a model instead of its push buttons.
    DWORD DrawAsToolbar(BOOL bToolbar, BOOL bRepaint = TRUE);
    /// An EAlign.
    DWORD SetAlign(BYTE nAlign, BOOL bRepaint = TRUE);
    BYTE GetAlign() const;
    /// An EPressedStyle.
    DWORD SetPressedStyle(BYTE nStyle, BOOL bRepaint = TRUE);
    /// Another theme helper, which is not owned; null takes the visual style away. Without a visual style a
    /// flat button has its border again; whether it is flat stays as it is.
    void SetThemeHelper(CThemeHelperST* pTheme);

    // ---- Colours. `nIndex` is an EColor. ------------------------------------------------------------------

    /// Repaints only if `bRepaint` is exactly 1.
    DWORD SetColor(BYTE nIndex, COLORREF cr, BOOL bRepaint = TRUE);
    DWORD GetColor(BYTE nIndex, COLORREF* pcr) const;
    /// Lightens (up to 255) or darkens (down to -255) a colour by the same amount in each channel, and stops
    /// when the first channel comes to its end.
    DWORD OffsetColor(BYTE nIndex, short nShade, BOOL bRepaint = TRUE);
    /// The system's button colours in all six places. Repaints only if `bRepaint` is exactly 1.
    DWORD SetDefaultColors(BOOL bRepaint = TRUE);

    // ---- State --------------------------------------------------------------------------------------------

    /// On a push button does nothing, and answers resultOk all the same.
    DWORD SetCheck(int nCheck, BOOL bRepaint = TRUE);
    /// 0 or 1.
    int GetCheck() const;
    /// Whether the button is the dialog's default button at this moment.
    BOOL GetDefault() const;

    // ---- Behaviour ----------------------------------------------------------------------------------------

    /// Whether hover is shown while the application is not active, too. On at first.
    void SetAlwaysTrack(BOOL bTrack);
    /// Whether Enter clicks a focused button. On at first.
    void SetKbdSensitive(BOOL bSensitive);
    /// With exactly 1 the button sends WM_COMMAND over and over while the mouse holds it, pausing `nPeriod`
    /// milliseconds, and always an even number of times. A hold replaces the click; it ends with the release
    /// of the mouse, wherever that is, and when a handler disables, hides or destroys the button. It keeps
    /// the thread's message pump waiting, so a handler must not open a window that has a message loop.
    DWORD SetAutoRepeat(BOOL bRepeat, DWORD nPeriod = 100);
    /// An address or file that a click opens; null for none. Holds 260 characters; more are cut off. A check
    /// box never opens it.
    void SetURL(LPCWSTR pszUrl);
    /// A cursor from the resources; 0 brings the ordinary one back.
    DWORD SetBtnCursor(int nId, BOOL bRepaint = TRUE);

    /// A null text does nothing. The tooltip shows over the client area as it is at the first call.
    void SetTooltipText(LPCTSTR pszText, BOOL bActivate = TRUE);
    /// By string resource; a missing or empty one does nothing.
    void SetTooltipText(int nId, BOOL bActivate = TRUE);
    /// Does nothing before there is a text.
    void ActivateTooltip(BOOL bActivate);
    /// Kept for callers: notes the wish, which nothing reads. Tooltips are rectangular.
    DWORD EnableBalloonTooltip();

    // ---- Transparency -------------------------------------------------------------------------------------

    /// From the next paint on the background is what the parent shows in the button's place. It is copied
    /// once: call this again, or SetBk, when the parent looks different. Repaints only if `bRepaint` is
    /// exactly 1.
    void DrawTransparent(BOOL bRepaint = TRUE);
    /// Takes the background from a context in the parent's client coordinates; needs DrawTransparent.
    DWORD SetBk(CDC* pDC);

    static int GetVersionI() { return 12; } ///< version in tenths
    static LPCTSTR GetVersionC();

    /// The theme binding of the process, created at start-up. Not owned by any button.
    static CThemeHelperST* pLocalTheme;

    // The shared icons belong to the library and live as long as the process; nobody destroys them.
#define OW_DECLARE_ICON(member) static HICON member;
    OW_BUTTONST_LOADED_ICONS(OW_DECLARE_ICON)
    OW_BUTTONST_SIBLING_ICONS(OW_DECLARE_ICON)
#undef OW_DECLARE_ICON

    /// Paints the button: background, border, image, title and focus, by the operations below in this order.
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // ---- Painting, for subclasses. All coordinates are those of the item rectangle. -----------------------

    /// Fills the face. May shrink the rectangle to what border and focus shall go by. The answer is not used.
    virtual DWORD OnDrawBackground(CDC* pDC, CRect& rect);
    /// Draws the edge of a button without a theme. The answer is not used.
    virtual DWORD OnDrawBorder(CDC* pDC, CRect& rect);
    /// Measures a text as the title is measured. For subclasses; the button itself does not call it.
    virtual void DrawItemHook_CalcRect(CDC* pDC, const CString& strText, CRect& rect);
    /// Draws a text as the title is drawn. For subclasses; the button itself does not call it.
    virtual void DrawItemHook_DrawText(CDC* pDC, const CString& strText, CRect& rect);
    /// Draws the image that the state asks for, and takes its place out of the caption rectangle.
    virtual void DrawTheBitmap(CDC* pDC, BOOL bHasTitle, const CRect& rectItem, CRect& rectCaption,
                               BOOL bPressed, BOOL bDisabled);
    virtual void DrawTheIcon(CDC* pDC, BOOL bHasTitle, const CRect& rectItem, CRect& rectCaption,
                             BOOL bPressed, BOOL bDisabled);
    /// Draws the title in the middle of the caption rectangle.
    virtual void DrawTheText(CDC* pDC, const CString& strTitle, const CRect& rectItem, CRect& rectCaption,
                             BOOL bPressed, BOOL bDisabled);

    /// Whether the theme draws this button.
    bool IsThemed() const;
    /// Gives back the copy of what lies behind a transparent button; the next paint takes a new one.
    void DropBackground();
    /// The hover state ends, on a flat button.
    void CancelHover();

    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnSysColorChange();
    afx_msg BOOL OnClicked();
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnCancelMode();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnSetStyle(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetCheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetCheck(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    struct ButtonIcon
    {
        HICON hIcon = nullptr;
        CSize size;
    };
    struct ButtonBitmap
    {
        HBITMAP hBitmap = nullptr;
        CSize size;
        HBITMAP hMask = nullptr; ///< monochrome, white where the picture is transparent
        COLORREF crTransparent = 0;
    };

    // Look
    BOOL m_bShowDisabledBitmap = TRUE; ///< a disabled bitmap is engraved; else it is drawn as when enabled
    CPoint m_ptImageOrigin{3, 3};      ///< margin of an image beside a title
    CPoint m_ptPressedOffset{1, 1};
    BOOL m_bDrawFlatFocus = FALSE;
    BOOL m_bDrawBorder;
    BOOL m_bIsDefault = FALSE;
    BOOL m_bIsCheckBox = FALSE;
    BYTE m_nAlign = alignLeft;
    BOOL m_bIsFlat;
    BOOL m_bDrawTransparent = FALSE;
    BOOL m_bDrawAsToolbar = FALSE;
    COLORREF m_crColors[colorCount];
    CThemeHelperST* m_pTheme = pLocalTheme; ///< not owned, may be null

    // State. Pressed, focused and disabled are what the system reported at the last paint.
    BOOL m_bMouseOnButton = FALSE;
    BOOL m_bIsPressed = FALSE;
    BOOL m_bIsFocused = FALSE;
    BOOL m_bIsDisabled = FALSE;
    int m_nChecked = 0;
    UINT m_nTypeStyle = 31; ///< type bits of the control's first style; 0 for a default button

    // Behaviour
    BOOL m_bAutoRepeat = FALSE;
    DWORD m_nAutoRepeatPeriod = 100; ///< milliseconds
    BOOL m_bKbdSensitive = TRUE;
    BOOL m_bAlwaysTrack = TRUE;
    AButtonSTNotificationHandler* m_pHandler;
    HCURSOR m_hCursor = nullptr;
    CToolTipCtrl m_toolTip;    ///< made at first need
    DWORD m_nToolTipStyle = 0; ///< nothing reads it
    WCHAR m_szUrl[260] = {};   ///< not terminated when full

    // Images: [0] "in", [1] "out"
    ButtonIcon m_icons[2];
    ButtonBitmap m_bitmaps[2];
    ow::CMemorySurface m_background; ///< what lies behind a transparent button

private:
    void Repaint();
    template <class Option>
    DWORD SetOption(Option& option, Option value, BOOL bRepaint);
    void ResetColors();
    void CancelHoverUnless(BOOL bActive);
    bool IsUnderMouse(CPoint point) const;
    void BeginHover();
    void CaptureForHold();
    void RepeatWhileHeld();
    void OpenUrl() const;
    void InitToolTip();

    void FreeImages();
    DWORD FailImages(EResult result);
    bool StoreIcon(ButtonIcon& icon, HICON hIcon);
    bool StoreBitmap(ButtonBitmap& picture, HBITMAP hBitmap, COLORREF crTransparent);
    bool MakeMask(ButtonBitmap& picture);

    void TakeStates(UINT nItemState);
    void PaintBk(CDC* pDC);
    void DrawThemedBackground(CDC* pDC, const CRect& rect);
    int ThemeState() const;
    void DrawRaisedBorder(CDC* pDC, const CRect& rect);
    void DrawFocus(CDC* pDC, const CRect& rect);
    EColor StateColor(EColor in, EColor focus, EColor out) const;
    int ShownImage(bool bHasSecond, BOOL bPressed) const;
    CRect PrepareImageRect(BOOL bHasTitle, const CRect& rectItem, CRect& rectCaption, BOOL bPressed,
                           CSize image) const;
    void DrawDisabledBitmap(CDC* pDC, const CRect& rectImage, CSize size, CDC& dcImage, CDC& dcMask);
};
