#pragma once
// What the tests of buttons share: a dialog that writes down what they tell, and buttons by themselves.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"
#include "MenuVisit.h"
#include "Picture.h"

#include "resource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using Calls = std::vector<std::string>;
using owtest::Surface;

constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255);
constexpr COLORREF kKey = RGB(255, 0, 255); ///< transparent colour of bitmaps, and what a new surface has

/// A button whose inner state a test may look at and set.
template <class Button = CButtonST>
struct Open : Button
{
    using Button::Button, Button::m_bDrawBorder, Button::m_bIsCheckBox, Button::m_bIsDefault,
        Button::m_bitmaps, Button::m_bMouseOnButton, Button::m_bShowDisabledBitmap, Button::m_icons,
        Button::m_nTypeStyle, Button::m_ptImageOrigin, Button::m_toolTip;
};

inline COLORREF ColorOf(const CButtonST& button, BYTE nIndex = CButtonST::colorBackOut)
{
    COLORREF cr = CLR_INVALID;
    EXPECT_EQ(button.GetColor(nIndex, &cr), CButtonST::resultOk);
    return cr;
}

/// Paints an owner-drawn button onto the surface as the system would ask for it, with ODS_ flags.
inline void PaintButton(CButton& button, Surface& surface, UINT nItemState = 0, const CRect* pItem = nullptr)
{
    CRect rect;
    button.GetClientRect(rect);
    DRAWITEMSTRUCT item{ODT_BUTTON,   UINT(button.GetDlgCtrlID()), 0, ODA_DRAWENTIRE, nItemState, button,
                        surface.dc(), pItem ? *pItem : rect,       0};
    button.DrawItem(&item);
}

/// A click as a program sends it.
inline void ClickByProgram(const CWnd& button)
{
    button.GetParent()->SendMessage(WM_COMMAND, button.GetDlgCtrlID(),
                                    reinterpret_cast<LPARAM>(button.m_hWnd));
}

/// Whether a window is to be painted after something was done.
template <class Action>
bool Repaints(CWnd& window, const Action& action)
{
    window.GetTopLevelParent()->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    action();
    return window.GetUpdateRect(nullptr) != FALSE;
}

/// A control by itself, on a parent that is not shown.
template <class Button>
class Lone
{
public:
    explicit Lone(CSize size, LPCTSTR pszTitle = _T(""), DWORD dwType = BS_PUSHBUTTON)
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, CRect(0, 0, 600, 200), nullptr, 0);
        button.SubclassWindow(::CreateWindow(_T("BUTTON"), pszTitle, WS_CHILD | WS_VISIBLE | dwType, 10, 10,
                                             size.cx, size.cy, m_parent, nullptr, nullptr, nullptr));
    }
    ~Lone() { m_parent.DestroyWindow(); }

    Button button;

private:
    CWnd m_parent;
};

/// A dialog for controls of any kind. Writes down what they tell, "told 1001" or with a value "told 1001 5",
/// and the clicks that it receives itself, "dialog 1001".
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
        LPCWSTR title = L"";
        LPCWSTR windowClass = L"BUTTON";
        DWORD exStyle = 0;
    };
    std::vector<Control> controls; ///< what Open makes; ids count from 1001

    ~Room() override { DestroyWindow(); }

    void Open()
    {
        owtest::DialogTemplate form(L"Buttons", 200, 130);
        for (short i = 0; i < std::ssize(controls); ++i)
        {
            const auto& [pControl, style, title, windowClass, exStyle] = controls[i];
            form.Item(windowClass, title, 1001 + i, style | WS_TABSTOP, 10 + i % 2 * 90, 10 + i / 2 * 20, 80,
                      14, exStyle);
        }
        EXPECT_TRUE(CreateIndirect(form.get(), nullptr));
        for (int i = 0; i < std::ssize(controls); ++i)
            EXPECT_TRUE(controls[i].pControl->SubclassDlgItem(1001 + i, this));
        SetWindowPos(nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
        EXPECT_TRUE(owtest::Activate(m_hWnd));
        owtest::MoveTo(*this, CPoint(1, 1)); // no button is under the mouse
    }
    Calls Take() { return std::exchange(calls, {}); }

    Calls calls;
    HBRUSH hBrush = nullptr;            ///< what it answers reflected buttons that ask for one
    int erases = 0;                     ///< of its own background
    int behind = 0;                     ///< of what lies behind a control
    std::function<void()> then = [] {}; ///< at the end of each handler

    void OnButtonClicked(int nId) override { Told(std::to_string(nId)); }
    void OnBitmapChosen(int nId, int n) override { Told(std::to_string(nId) + ' ' + std::to_string(n)); }
    void OnTextChosen(int nId, int nIndex) override { OnBitmapChosen(nId, nIndex); }
    void OnColorChosen(int nId, int nColor) override { OnBitmapChosen(nId, nColor); }
    void OnAcadColorChosen(int nId, int nColor) override { OnBitmapChosen(nId, nColor); }
    void ButtonReflectedOnClicked(int nId) override { calls.push_back("clicked " + std::to_string(nId)); }
    void ButtonReflectedOnDoubleclicked(int nId) override { calls.push_back("twice " + std::to_string(nId)); }
    HBRUSH ButtonReflectedOnCtlColor(int nId, CDC* pDC, unsigned int nCtlColor) override
    {
        return pDC && nCtlColor == CTLCOLOR_BTN && nId <= 1005 ? hBrush : nullptr;
    }
    void ButtonReflectedOnParentNotify(int nId, unsigned int message, __int64 lParam) override
    {
        EXPECT_EQ(HIWORD(message), ::GetDlgCtrlID(reinterpret_cast<HWND>(lParam)));
        calls.push_back((LOWORD(message) == WM_CREATE ? "created " : "destroyed ") + std::to_string(nId));
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ERASEBKGND)
            ++(::WindowFromDC(reinterpret_cast<HDC>(wParam)) == m_hWnd ? erases : behind);
        return CDialog::WindowProc(message, wParam, lParam);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if ((nCode == BN_CLICKED || nCode == BN_DOUBLECLICKED) && !pHandlerInfo)
            calls.push_back("dialog " + std::to_string(nID));
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
    void OnOK() override {}
    void OnCancel() override {}

private:
    void Told(const std::string& what)
    {
        calls.push_back("told " + what);
        const auto last = then; // which may be the end of this dialog
        last();
    }
};

/// Tests of what a user does. A fixture says in its constructor which controls there are.
class InRoom : public ::testing::Test
{
protected:
    void SetUp() override { m_room.Open(); }
    void TearDown() override { m_room.DestroyWindow(); }

    /// Opens a button's menu by a key or, without one, by a click, works on it, and answers what was told.
    Calls Visit(CWnd& button, std::vector<owtest::MenuVisit::Visitor> visitors, WORD nOpener = 0)
    {
        const int nVisitors = static_cast<int>(visitors.size());
        owtest::MenuVisit visit(std::move(visitors));
        if (nOpener)
        {
            owtest::QueueKey(nOpener); // down and up
            owtest::Pump();
        }
        else
            owtest::Click(button);
        EXPECT_EQ(visit.Count(), nVisitors);
        return m_room.Take();
    }
    static bool ShowsFocus(CButton& button)
    {
        return ::GetFocus() == button.m_hWnd && (button.GetState() & BST_FOCUS);
    }

    Room m_room;
};
