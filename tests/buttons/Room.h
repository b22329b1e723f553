#pragma once
// What the tests of buttons share: images, buttons by themselves, a dialog that writes down what they tell.

#include <DialogControlsOW.h>

#include "module/GdiScope.h"
#include "Testing.h"

using owtest::Surface;

constexpr int IDC_CROSSHAIR = 200, IDS_TEXT = 300, IDI_STATE = 400; // as in buttons.rc
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255);
constexpr COLORREF kKey = RGB(255, 0, 255); ///< transparent colour of bitmaps, and what a new surface has

using Pixels = std::vector<DWORD>; ///< 0xAARRGGBB, row by row from the top

constexpr DWORD PixelOf(COLORREF cr)
{
    return RGB(GetBValue(cr), GetGValue(cr), GetRValue(cr));
}

/// One colour inside, another in a frame.
inline Pixels Framed(CSize size, DWORD inside, DWORD outside, int frame = 2)
{
    Pixels pixels;
    const CRect rect(frame, frame, size.cx - frame, size.cy - frame);
    for (int i = 0; i < size.cx * size.cy; ++i)
        pixels.push_back(rect.PtInRect(CPoint(i % size.cx, i / size.cx)) ? inside : outside);
    return pixels;
}

using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, decltype(&::DestroyIcon)>;

/// Of 32 bits; where a pixel is 0 it is transparent.
inline Icon MakeIcon(CSize size, const Pixels& pixels)
{
    CBitmap color, transparent; // the alpha channel says it all
    color.CreateBitmap(size.cx, size.cy, 1, 32, pixels.data());
    transparent.CreateBitmap(size.cx, size.cy, 1, 1, Pixels(pixels.size()).data());
    ICONINFO info{TRUE, 0, 0, transparent, color};
    return Icon(::CreateIconIndirect(&info), &::DestroyIcon);
}

/// Of one colour, with a transparent frame.
inline Icon MakeIcon(int size, COLORREF cr, int frame = 2)
{
    return MakeIcon(CSize(size, size), Framed(CSize(size, size), 0xFF000000 | PixelOf(cr), 0, frame));
}

/// One colour inside, another in a frame. The caller's.
inline HBITMAP MakeBitmap(CSize size, COLORREF cr, COLORREF crFrame)
{
    return ::CreateBitmap(size.cx, size.cy, 1, 32, Framed(size, PixelOf(cr), PixelOf(crFrame)).data());
}

inline Pixels PixelsOf(HBITMAP hBitmap)
{
    BITMAP info{};
    ::GetObject(hBitmap, sizeof(info), &info);
    Pixels pixels(static_cast<size_t>(info.bmWidth) * info.bmHeight);
    BITMAPINFO header{{sizeof(BITMAPINFOHEADER), info.bmWidth, -info.bmHeight, 1, 32, 0, 0, 0, 0, 0, 0}, {}};
    ::GetDIBits(CWindowDC(nullptr), hBitmap, 0, info.bmHeight, pixels.data(), &header, DIB_RGB_COLORS);
    return pixels;
}

/// A button whose inner state a test may look at and set.
template <class Button = CButtonST>
struct Open : Button
{
    using Button::Button, Button::DrawItemHook_CalcRect, Button::DrawItemHook_DrawText, Button::m_bDrawBorder,
        Button::m_bIsCheckBox, Button::m_bIsDefault, Button::m_bitmaps, Button::m_bMouseOnButton,
        Button::m_bShowDisabledBitmap, Button::m_icons, Button::m_nTypeStyle, Button::m_ptImageOrigin,
        Button::m_toolTip;
};

/// Paints an owner-drawn button onto the surface as the system would ask for it, with ODS_ flags.
inline void PaintButton(CButton& button, Surface& surface, UINT nItemState = 0, const CRect* pItem = nullptr)
{
    CRect rect;
    button.GetClientRect(rect);
    DRAWITEMSTRUCT item{ODT_BUTTON,   UINT(button.GetDlgCtrlID()), 0, ODA_DRAWENTIRE, nItemState, button,
                        surface.dc(), pItem ? *pItem : rect,       0};
    button.DrawItem(&item);
}

inline void ClickByProgram(const CWnd& button)
{
    button.GetParent()->SendMessage(WM_COMMAND, button.GetDlgCtrlID(),
                                    reinterpret_cast<LPARAM>(button.m_hWnd));
}

template <class Action>
bool Repaints(CWnd& window, const Action& action)
{
    window.GetTopLevelParent()->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    action();
    return window.GetUpdateRect(nullptr) != FALSE;
}

/// A control by itself, on a parent that is not shown and has a black ground.
template <class Button>
struct Lone
{
    explicit Lone(CSize size, LPCTSTR pszTitle = L"", DWORD dwType = BS_PUSHBUTTON)
    {
        parent.CreateEx(0, AfxRegisterWndClass(0, nullptr, HBRUSH(::GetStockObject(BLACK_BRUSH))), L"",
                        WS_POPUP, CRect(0, 0, 600, 200), nullptr, 0);
        button.SubclassWindow(::CreateWindow(L"BUTTON", pszTitle, WS_CHILD | WS_VISIBLE | dwType, 10, 10,
                                             size.cx, size.cy, parent, nullptr, nullptr, nullptr));
    }
    ~Lone() { parent.DestroyWindow(); }

    Button button;
    CWnd parent;
};

/// Writes down what controls tell, "told 1001; " or with a value "told 1001 5; ", and the clicks that it
/// receives itself, "dialog 1001; ".
class Room : public CDialog,
             public AButtonSTNotificationHandler,
             public ABitmapBtnSTNotificationHandler,
             public ATextBtnSTNotificationHandler,
             public AColorBtnSTNotificationHandler,
             public AAcadColorBtnSTNotificationHandler,
             public CButtonReflectedNotificationHandler
{
public:
    struct Control
    {
        CWnd* pControl;
        DWORD style = BS_PUSHBUTTON;
        LPCWSTR title = L"", windowClass = L"BUTTON";
        DWORD exStyle = 0;
    };
    std::vector<Control> controls; ///< what Open makes; ids count from 1001
    std::string calls;
    HBRUSH hBrush = nullptr;            ///< what it answers reflected buttons that ask for one
    std::function<void()> then = [] {}; ///< at the end of each handler

    ~Room() override { DestroyWindow(); }

    void Open()
    {
        owtest::DialogTemplate form(L"Buttons", 200, 130);
        for (short i = 0; const auto& [pControl, style, title, windowClass, exStyle] : controls)
        {
            form.Item(windowClass, title, 1001 + i, style | WS_TABSTOP, 10 + i % 2 * 90, 10 + i / 2 * 20, 80,
                      14, exStyle);
            ++i;
        }
        EXPECT_TRUE(CreateIndirect(form.get(), nullptr));
        for (int nId = 1001; const Control& control : controls)
            EXPECT_TRUE(control.pControl->SubclassDlgItem(nId++, this));
        SetWindowPos(nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
        EXPECT_TRUE(owtest::Activate(m_hWnd));
        owtest::MoveTo(*this, CPoint(1, 1)); // no button is under the mouse
    }
    std::string Take() { return std::exchange(calls, {}); }

    void OnButtonClicked(int nId) override { Told(nId); }
    void OnBitmapChosen(int nId, int n) override { Told(nId, ' ' + std::to_string(n)); }
    void OnTextChosen(int nId, int nIndex) override { OnBitmapChosen(nId, nIndex); }
    void OnColorChosen(int nId, int nColor) override { OnBitmapChosen(nId, nColor); }
    void OnAcadColorChosen(int nId, int nColor) override { OnBitmapChosen(nId, nColor); }
    void ButtonReflectedOnClicked(int nId) override { Note("clicked ", nId); }
    void ButtonReflectedOnDoubleclicked(int nId) override { Note("twice ", nId); }
    HBRUSH ButtonReflectedOnCtlColor(int nId, CDC* pDC, unsigned int nCtlColor) override
    {
        return pDC && nCtlColor == CTLCOLOR_BTN && nId <= 1005 ? hBrush : nullptr;
    }
    void ButtonReflectedOnParentNotify(int nId, unsigned int message, __int64) override
    {
        Note(LOWORD(message) == WM_CREATE ? "created " : "destroyed ", nId);
    }

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if ((nCode == BN_CLICKED || nCode == BN_DOUBLECLICKED) && !pHandlerInfo)
            Note("dialog ", nID);
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
    void OnOK() override {}
    void OnCancel() override {}

private:
    void Note(const std::string& what, int nId) { calls += what + std::to_string(nId) + "; "; }
    void Told(int nId, const std::string& value = "")
    {
        calls += "told " + std::to_string(nId) + value + "; ";
        const auto last = then; // which may be the end of this dialog
        last();
    }
};

/// Tests of what a user does. A fixture says in its constructor which controls there are.
class InRoom : public ::testing::Test
{
protected:
    using Visitors = std::vector<owtest::MenuVisit::Visitor>;

    void SetUp() override { m_room.Open(); }
    void TearDown() override { m_room.DestroyWindow(); }

    std::string Click(CWnd& button) { return owtest::Click(button), m_room.Take(); }
    std::string Press(WORD nKey) { return owtest::Press(nKey), m_room.Take(); }

    /// Opens a button's menu by a key or, without one, by a click, works on it, and answers what was told.
    std::string Visit(CWnd& button, const Visitors& visitors, WORD nOpener = 0)
    {
        owtest::MenuVisit visit(visitors);
        nOpener ? owtest::QueueKey(nOpener) : owtest::Click(button);
        owtest::Pump();
        EXPECT_EQ(visit.Count(), std::ssize(visitors));
        return m_room.Take();
    }
    static bool ShowsFocus(CButton& button)
    {
        return ::GetFocus() == button && (button.GetState() & BST_FOCUS);
    }

    Room m_room;
};
