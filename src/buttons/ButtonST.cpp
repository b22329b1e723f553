// The button as a control: attaching, messages, settings. Images stand in ButtonSTImageSetters.cpp, painting
// in ButtonSTPaint.cpp.

#include <afxwin.h>

#include "buttons/ButtonST.h"

#include "buttons/ThemeHelperST.h"
#include "module/HasWindow.h"

#include <shellapi.h>

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <string>

namespace
{
/// The part of a button's style that says what kind of button it is.
constexpr DWORD kTypeBits = 0x1F;
constexpr DWORD kCheckBoxBit = 0x2;

constexpr int kMaxTipWidth = 400; // pixels
constexpr UINT_PTR kTipTool = 1;
constexpr DWORD kBalloonStyle = 0x40;

/// Takes the release of the left button out of the queue, if it waits there for this window.
bool TakeRelease(HWND hWnd)
{
    MSG msg;
    return ::PeekMessage(&msg, hWnd, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE) != FALSE;
}

bool IsLeftButtonDown()
{
    return ::GetAsyncKeyState(::GetSystemMetrics(SM_SWAPBUTTON) ? VK_RBUTTON : VK_LBUTTON) < 0;
}

/// Whether a user could press the control now.
bool IsUsable(HWND hWnd)
{
    return ::IsWindowVisible(hWnd) && ::IsWindowEnabled(hWnd);
}

CRect RectInParent(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(rect);
    window.GetParent()->ScreenToClient(rect);
    return rect;
}

/// Makes the surface anew, with what the parent's context shows in the place of the window.
void CopyBehind(const CWnd& window, CDC& dcParent, ow::CMemorySurface& surface)
{
    CRect rectClient;
    window.GetClientRect(rectClient);
    const CPoint at = RectInParent(window).TopLeft();
    if (surface.Create(dcParent, rectClient.Size()))
        surface.DC().BitBlt(0, 0, rectClient.Width(), rectClient.Height(), &dcParent, at.x, at.y, SRCCOPY);
}
} // namespace

CThemeHelperST* CButtonST::pLocalTheme = nullptr;

#define OW_DEFINE_ICON(member) HICON CButtonST::member = nullptr;
OW_BUTTONST_LOADED_ICONS(OW_DEFINE_ICON)
OW_BUTTONST_SIBLING_ICONS(OW_DEFINE_ICON)
#undef OW_DEFINE_ICON

CButtonST::CButtonST() : CButtonST(nullptr)
{
}

CButtonST::CButtonST(AButtonSTNotificationHandler* pHandler) : m_pHandler(pHandler)
{
    m_bIsFlat = IsThemed();
    m_bDrawBorder = !IsThemed();
    ResetColors();
}

CButtonST::~CButtonST()
{
    DropBackground();
    FreeImages();
    ::DestroyCursor(m_hCursor);
}

BEGIN_MESSAGE_MAP(CButtonST, CButton)
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEMOVE()
    ON_WM_SYSCOLORCHANGE()
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CButtonST::OnClicked)
    ON_WM_ACTIVATE()
    ON_WM_ENABLE()
    ON_WM_CANCELMODE()
    ON_WM_GETDLGCODE()
    ON_WM_LBUTTONDOWN()
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_KEYDOWN()
    ON_MESSAGE(BM_SETSTYLE, &CButtonST::OnSetStyle)
    ON_MESSAGE(WM_MOUSELEAVE, &CButtonST::OnMouseLeave)
    ON_MESSAGE(BM_SETCHECK, &CButtonST::OnSetCheck)
    ON_MESSAGE(BM_GETCHECK, &CButtonST::OnGetCheck)
END_MESSAGE_MAP()

// The hover flag stays: the mouse has not left because a button was let go.
void CButtonST::OnCaptureChanged(CWnd* pWnd)
{
    if (m_bMouseOnButton == 1)
    {
        ::ReleaseCapture();
        Repaint();
    }
    CButton::OnCaptureChanged(pWnd);
}

BOOL CButtonST::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    if (!m_hCursor)
        return CButton::OnSetCursor(pWnd, nHitTest, message);
    ::SetCursor(m_hCursor);
    return TRUE;
}

void CButtonST::OnKillFocus(CWnd* pNewWnd)
{
    CButton::OnKillFocus(pNewWnd);
    CancelHover();
}

void CButtonST::OnMouseMove(UINT nFlags, CPoint point)
{
    CButton::OnMouseMove(nFlags, point);
    const bool bPressedElsewhere = (nFlags & MK_LBUTTON) && !m_bMouseOnButton;
    if (bPressedElsewhere || !m_bIsFlat)
        return;
    if (IsUnderMouse(point))
        BeginHover();
    else
        CancelHover();
}

void CButtonST::OnSysColorChange()
{
    CButton::OnSysColorChange();
    DropBackground();
    ResetColors();
    Repaint();
}

// False: the parent receives the command, too, unless the handler has closed it.
BOOL CButtonST::OnClicked()
{
    const HWND hWnd = m_hWnd;
    SetFocus();
    if (m_bIsCheckBox)
    {
        m_nChecked = !m_nChecked;
        Repaint();
    }
    else if (m_szUrl[0])
        OpenUrl();
    if (m_pHandler)
        m_pHandler->OnButtonClicked(GetDlgCtrlID());
    return !gfnHasWindow(this, hWnd);
}

void CButtonST::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CButton::OnActivate(nState, pWndOther, bMinimized);
    CancelHoverUnless(nState != WA_INACTIVE);
}

void CButtonST::OnEnable(BOOL bEnable)
{
    CButton::OnEnable(bEnable);
    CancelHoverUnless(bEnable);
}

void CButtonST::OnCancelMode()
{
    CButton::OnCancelMode();
    CancelHover();
}

// The system does not count an owner-drawn button among the push buttons: the dialog would not move its
// default button to it.
UINT CButtonST::OnGetDlgCode()
{
    return CButton::OnGetDlgCode() | (m_bIsDefault ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
}

void CButtonST::OnLButtonDown(UINT nFlags, CPoint point)
{
    CButton::OnLButtonDown(nFlags, point);
    if (m_bAutoRepeat == 1)
        RepeatWhileHeld();
}

HBRUSH CButtonST::CtlColor(CDC*, UINT)
{
    return static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH));
}

// A key clicks when it goes down, and again while it is held.
void CButtonST::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_RETURN || nChar == VK_SPACE)
        GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED),
                                 reinterpret_cast<LPARAM>(m_hWnd));
    else
        CButton::OnKeyDown(nChar, nRepCnt, nFlags);
}

// A dialog moves its default button by exchanging styles. The button notes what it is to be and stays
// owner-drawn.
LRESULT CButtonST::OnSetStyle(WPARAM wParam, LPARAM lParam)
{
    const WPARAM type = wParam & kTypeBits;
    if (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON)
        m_bIsDefault = static_cast<BOOL>(type);
    return DefWindowProc(BM_SETSTYLE, (wParam & ~static_cast<WPARAM>(kTypeBits)) | BS_OWNERDRAW, lParam);
}

LRESULT CButtonST::OnMouseLeave(WPARAM, LPARAM)
{
    CancelHover();
    return 0;
}

// The third state of a check box counts as checked.
LRESULT CButtonST::OnSetCheck(WPARAM wParam, LPARAM)
{
    if (m_bIsCheckBox)
    {
        m_nChecked = wParam == BST_CHECKED || wParam == BST_INDETERMINATE;
        Repaint();
    }
    return 0;
}

LRESULT CButtonST::OnGetCheck(WPARAM, LPARAM)
{
    return m_nChecked;
}

// ---- Messages outside the map -----------------------------------------------------------------------------

void CButtonST::PreSubclassWindow()
{
    const DWORD style = GetStyle();
    m_nTypeStyle = style & kTypeBits;
    // The bit, not the type: a template's BS_OWNERDRAW becomes a check box as well. Existing dialogs count on
    // it.
    if (style & kCheckBoxBit)
        m_bIsCheckBox = TRUE;
    // An object may come from a window that is gone: what that one was at its end is over.
    m_bIsDefault = m_nTypeStyle == BS_DEFPUSHBUTTON;
    m_bMouseOnButton = FALSE;
    if (m_bIsDefault)
        m_nTypeStyle = BS_PUSHBUTTON;
    ModifyStyle(kTypeBits, BS_OWNERDRAW, SWP_FRAMECHANGED);
    CButton::PreSubclassWindow();
}

BOOL CButtonST::PreTranslateMessage(MSG* pMsg)
{
    InitToolTip();
    if (m_toolTip.m_hWnd)
        m_toolTip.RelayEvent(pMsg);
    // Before the dialog sees it: the dialog would press its default button.
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN && m_bKbdSensitive)
        pMsg->wParam = VK_SPACE;
    if (pMsg->message == WM_LBUTTONDBLCLK)
        pMsg->message = WM_LBUTTONDOWN;
    return CButton::PreTranslateMessage(pMsg);
}

// Fast clicks are all clicks.
LRESULT CButtonST::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CButton::DefWindowProc(message == WM_LBUTTONDBLCLK ? WM_LBUTTONDOWN : message, wParam, lParam);
}

// ---- Hover ------------------------------------------------------------------------------------------------

bool CButtonST::IsUnderMouse(CPoint point) const
{
    ClientToScreen(&point);
    return ::WindowFromPoint(point) == m_hWnd && (m_bAlwaysTrack || ::GetActiveWindow());
}

void CButtonST::BeginHover()
{
    if (m_bMouseOnButton)
        return;
    m_bMouseOnButton = TRUE;
    Repaint();
    TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 0};
    ::_TrackMouseEvent(&track);
}

void CButtonST::CancelHover()
{
    if (!m_bIsFlat || !m_bMouseOnButton)
        return;
    m_bMouseOnButton = FALSE;
    Repaint();
}

void CButtonST::CancelHoverUnless(BOOL bActive)
{
    if (!bActive)
        CancelHover();
}

// ---- Clicks -----------------------------------------------------------------------------------------------

// The capture handler of a hovered button lets go of a capture that is only handed from the button to itself.
void CButtonST::CaptureForHold()
{
    SetCapture();
    if (::GetCapture() != m_hWnd)
        SetCapture();
}

// The pump of the thread waits for as long as the button is held: the release is looked for here and nowhere
// else. It may never come (a command disables or hides the button, or something else takes the mouse), so a
// hold ends as well when the mouse button, seen down before, is up. A command may destroy the button, so
// nothing of it is touched after one before its window has been found alive.
void CButtonST::RepeatWhileHeld()
{
    const HWND hWnd = m_hWnd;
    const HWND hParent = ::GetParent(hWnd);
    const WPARAM command = MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED);
    const auto sendCommand = [=]
    {
        ::SendMessage(hParent, WM_COMMAND, command, reinterpret_cast<LPARAM>(hWnd));
        return ::IsWindow(hWnd) != FALSE;
    };
    const bool bSeenDown = IsLeftButtonDown(); // not so for a press that a program made up
    const auto isOver = [=] { return TakeRelease(hWnd) || (bSeenDown && !IsLeftButtonDown()); };

    CaptureForHold();
    bool bEven = true;
    for (bool bOver = isOver(); !bOver; bOver = !IsUsable(hWnd) || isOver())
    {
        if (!sendCommand())
            return;
        ::Sleep(m_nAutoRepeatPeriod);
        bEven = !bEven;
    }
    if (!bEven && !sendCommand())
        return;

    ::ReleaseCapture();
    SendMessage(WM_LBUTTONUP);
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
}

// The system gets a copy, which has a terminator even if the field has none. What comes of it is the system's
// affair.
void CButtonST::OpenUrl() const
{
    const std::wstring url(m_szUrl, wcsnlen(m_szUrl, std::size(m_szUrl)));
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = SEE_MASK_FLAG_NO_UI;
    info.lpVerb = L"open";
    info.lpFile = url.c_str();
    info.nShow = SW_SHOWMAXIMIZED;
    ::ShellExecuteExW(&info);
}

// ---- Style ------------------------------------------------------------------------------------------------

void CButtonST::Repaint()
{
    if (m_hWnd)
        Invalidate();
}

template <class Option>
DWORD CButtonST::SetOption(Option& option, Option value, BOOL bRepaint)
{
    option = value;
    if (bRepaint)
        Repaint();
    return resultOk;
}

DWORD CButtonST::SetFlat(BOOL bFlat, BOOL bRepaint)
{
    return SetOption(m_bIsFlat, bFlat, bRepaint);
}

BOOL CButtonST::GetFlat() const
{
    return m_bIsFlat;
}

DWORD CButtonST::DrawBorder(BOOL bBorder, BOOL bRepaint)
{
    return SetOption(m_bDrawBorder, bBorder, bRepaint);
}

DWORD CButtonST::DrawFlatFocus(BOOL bFocus, BOOL bRepaint)
{
    return SetOption(m_bDrawFlatFocus, bFocus, bRepaint);
}

void CButtonST::SetFlatFocus(BOOL bFocus, BOOL bRepaint)
{
    SetOption(m_bDrawFlatFocus, bFocus, bRepaint == 1);
}

DWORD CButtonST::DrawAsToolbar(BOOL bToolbar, BOOL bRepaint)
{
    return SetOption(m_bDrawAsToolbar, bToolbar, bRepaint);
}

DWORD CButtonST::SetAlign(BYTE nAlign, BOOL bRepaint)
{
    if (nAlign > alignNone)
        return resultBadAlign;
    return SetOption(m_nAlign, nAlign, bRepaint);
}

BYTE CButtonST::GetAlign() const
{
    return m_nAlign;
}

DWORD CButtonST::SetPressedStyle(BYTE nStyle, BOOL bRepaint)
{
    if (nStyle > pressedDown)
        return resultBadPressedStyle;
    return SetOption(m_ptPressedOffset, nStyle == pressedDown ? CPoint(0, 2) : CPoint(1, 1), bRepaint);
}

void CButtonST::SetThemeHelper(CThemeHelperST* pTheme)
{
    m_pTheme = pTheme;
    if (!IsThemed())
        m_bDrawBorder = TRUE;
}

bool CButtonST::IsThemed() const
{
    return m_pTheme && m_pTheme->IsAppThemed();
}

// ---- Colours ----------------------------------------------------------------------------------------------

void CButtonST::ResetColors()
{
    const COLORREF crBack = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF crText = ::GetSysColor(COLOR_BTNTEXT);
    for (const EColor back : {colorBackIn, colorBackOut, colorBackFocus})
        m_crColors[back] = crBack;
    for (const EColor text : {colorTextIn, colorTextOut, colorTextFocus})
        m_crColors[text] = crText;
}

DWORD CButtonST::SetColor(BYTE nIndex, COLORREF cr, BOOL bRepaint)
{
    if (nIndex >= colorCount)
        return resultBadColorIndex;
    return SetOption(m_crColors[nIndex], cr, bRepaint == 1);
}

DWORD CButtonST::GetColor(BYTE nIndex, COLORREF* pcr) const
{
    if (nIndex >= colorCount)
        return resultBadColorIndex;
    if (!pcr)
        return resultBadArgument;
    *pcr = m_crColors[nIndex];
    return resultOk;
}

// The channels move together, by what the one nearest to its end can still move.
DWORD CButtonST::OffsetColor(BYTE nIndex, short nShade, BOOL bRepaint)
{
    if (nIndex >= colorCount)
        return resultBadColorIndex;
    if (nShade < -255 || nShade > 255)
        return resultBadArgument;
    const COLORREF cr = m_crColors[nIndex];
    const auto [low, high] = std::minmax({GetRValue(cr), GetGValue(cr), GetBValue(cr)});
    const int shade = std::clamp<int>(nShade, -low, 255 - high);
    const COLORREF crShaded = RGB(GetRValue(cr) + shade, GetGValue(cr) + shade, GetBValue(cr) + shade);
    return SetOption(m_crColors[nIndex], crShaded, bRepaint);
}

DWORD CButtonST::SetDefaultColors(BOOL bRepaint)
{
    ResetColors();
    if (bRepaint == 1)
        Repaint();
    return resultOk;
}

// ---- State and behaviour ----------------------------------------------------------------------------------

DWORD CButtonST::SetCheck(int nCheck, BOOL bRepaint)
{
    if (!m_bIsCheckBox)
        return resultOk;
    return SetOption(m_nChecked, nCheck != 0 ? 1 : 0, bRepaint);
}

int CButtonST::GetCheck() const
{
    return m_nChecked;
}

BOOL CButtonST::GetDefault() const
{
    return m_bIsDefault;
}

void CButtonST::SetAlwaysTrack(BOOL bTrack)
{
    m_bAlwaysTrack = bTrack;
}

void CButtonST::SetKbdSensitive(BOOL bSensitive)
{
    m_bKbdSensitive = bSensitive;
}

DWORD CButtonST::SetAutoRepeat(BOOL bRepeat, DWORD nPeriod)
{
    m_bAutoRepeat = bRepeat;
    m_nAutoRepeatPeriod = nPeriod;
    return resultOk;
}

// A text that fills the field leaves no room for a terminator, and gets none.
void CButtonST::SetURL(LPCWSTR pszUrl)
{
    std::fill(std::begin(m_szUrl), std::end(m_szUrl), L'\0');
    if (pszUrl)
        std::wcsncpy(m_szUrl, pszUrl, std::size(m_szUrl));
}

DWORD CButtonST::SetBtnCursor(int nId, BOOL bRepaint)
{
    ::DestroyCursor(m_hCursor);
    m_hCursor = nullptr;
    if (nId == 0)
        return resultOk;
    const HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCE(nId), RT_GROUP_CURSOR);
    m_hCursor = static_cast<HCURSOR>(::LoadImage(hModule, MAKEINTRESOURCE(nId), IMAGE_CURSOR, 0, 0, 0));
    if (bRepaint)
        Repaint();
    return m_hCursor ? resultOk : resultNoImage;
}

LPCTSTR CButtonST::GetVersionC()
{
    return L"CButtonST 1.2";
}

// ---- Tooltip ----------------------------------------------------------------------------------------------

// Inactive until there is a text for it. The style is always 0.
void CButtonST::InitToolTip()
{
    if (m_toolTip.m_hWnd || !m_hWnd)
        return;
    if (!m_toolTip.Create(this, 0))
        return;
    m_toolTip.Activate(FALSE);
    m_toolTip.SetMaxTipWidth(kMaxTipWidth);
}

void CButtonST::SetTooltipText(LPCTSTR pszText, BOOL bActivate)
{
    if (!pszText)
        return;
    InitToolTip();
    if (!m_toolTip.m_hWnd)
        return;
    if (m_toolTip.GetToolCount() == 0)
    {
        CRect rect;
        GetClientRect(rect);
        m_toolTip.AddTool(this, pszText, rect, kTipTool);
    }
    m_toolTip.UpdateTipText(pszText, this, kTipTool);
    m_toolTip.Activate(bActivate);
}

void CButtonST::SetTooltipText(int nId, BOOL bActivate)
{
    CString strText;
    if (strText.LoadString(nId) && !strText.IsEmpty())
        SetTooltipText(strText, bActivate);
}

void CButtonST::ActivateTooltip(BOOL bActivate)
{
    if (m_toolTip.m_hWnd && m_toolTip.GetToolCount() != 0)
        m_toolTip.Activate(bActivate);
}

DWORD CButtonST::EnableBalloonTooltip()
{
    m_nToolTipStyle |= kBalloonStyle;
    return resultOk;
}

// ---- Transparency -----------------------------------------------------------------------------------------

void CButtonST::DrawTransparent(BOOL bRepaint)
{
    m_bDrawTransparent = TRUE;
    DropBackground();
    if (bRepaint == 1)
        Repaint();
}

DWORD CButtonST::SetBk(CDC* pDC)
{
    if (!m_bDrawTransparent || !pDC || !m_hWnd)
        return resultBadArgument;
    CopyBehind(*this, *pDC, m_background);
    return resultOk;
}

void CButtonST::PaintBk(CDC* pDC)
{
    if (!m_background)
    {
        CClientDC dcParent(GetParent());
        CopyBehind(*this, dcParent, m_background);
    }
    CRect rect;
    GetClientRect(rect);
    if (m_background)
        pDC->BitBlt(0, 0, rect.Width(), rect.Height(), &m_background.DC(), 0, 0, SRCCOPY);
}

void CButtonST::DropBackground()
{
    m_background.Free();
}
