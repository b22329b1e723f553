// What a user does to buttons, with real mouse and keyboard.

#include "ButtonsDialog.h"

#include "Input.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>
#include <tuple>

using Calls = std::vector<std::string>;

namespace
{
class ButtonInput : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_BUTTONS));
        ASSERT_TRUE(owtest::Activate(m_dialog));
        Leave();
        m_dialog.Take();
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    /// Moves the mouse to a place of the dialog where there is no button, and waits until all buttons know.
    void Leave()
    {
        owtest::MoveTo(m_dialog, CPoint(2, 2));
        EXPECT_TRUE(
            Becomes([&] { return !m_dialog.push.m_bMouseOnButton && !m_dialog.other.m_bMouseOnButton; }));
    }

    bool Becomes(const std::function<bool()>& condition) { return owtest::PumpUntil(condition); }
    bool HasFocus(CWnd& wnd)
    {
        return Becomes([&] { return ::GetFocus() == wnd.m_hWnd; });
    }
    /// Moves the mouse over a button; whether the button knows it.
    bool Hover(OpenButton& button)
    {
        owtest::MoveTo(button, CPoint(10, 10));
        return Becomes([&] { return button.m_bMouseOnButton; });
    }

    ButtonsDialog m_dialog;
    OpenButton& m_push = m_dialog.push;
    OpenButton& m_other = m_dialog.other;
    const Calls m_pushClick{"handler 1001", "dialog 1001"};
};
} // namespace

// ---- Clicks -----------------------------------------------------------------------------------------------

TEST_F(ButtonInput, AClickTellsTheHandlerAndThenTheDialog)
{
    owtest::Click(m_push);
    EXPECT_EQ(m_dialog.Take(), m_pushClick);
    EXPECT_TRUE(HasFocus(m_push));
    m_push.SetURL((L"x:\\" + std::wstring(300, L'?')).c_str());
    owtest::Click(m_push);
    EXPECT_EQ(m_dialog.Take(), m_pushClick) << "an address that cannot be opened changes nothing";

    owtest::Click(m_dialog.ext);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1005", "dialog 1005"}));
    EXPECT_EQ(m_dialog.ext.GetCheck(), 1) << "the system's own check box";
    m_dialog.ext.SetNotificationHandler(nullptr);
    owtest::Click(m_dialog.ext);
    EXPECT_EQ(m_dialog.Take(), Calls{"dialog 1005"});
}

TEST_F(ButtonInput, TheHandlerMayCloseTheDialogWhichThenHearsNoMore)
{
    m_dialog.then = [&] { m_dialog.DestroyWindow(); };
    for (const int nId : {IDC_PUSH, IDC_EXT})
    {
        owtest::Click(*m_dialog.GetDlgItem(nId));
        EXPECT_EQ(m_dialog.Take(), Calls{"handler " + std::to_string(nId)});
        ASSERT_TRUE(m_dialog.Create(IDD_BUTTONS) && owtest::Activate(m_dialog));
    }
}

TEST_F(ButtonInput, FastClicksAreAllClicks)
{
    for (int i = 0; i < 2; ++i)
        owtest::DoubleClick(m_push, CPoint(10, 10));
    EXPECT_EQ(m_dialog.Take().size(), 8u);

    // The same for a double click that does not come by way of the message loop.
    m_push.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    m_push.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(m_dialog.Take(), m_pushClick);
}

TEST_F(ButtonInput, ACheckBoxTogglesBeforeItTells)
{
    struct Looking : AButtonSTNotificationHandler
    {
        OpenButton box{this};
        std::vector<int> seen;
        void OnButtonClicked(int) override { seen.push_back(box.GetCheck()); }
    } handler;
    m_dialog.check.UnsubclassWindow();
    ASSERT_TRUE(handler.box.SubclassDlgItem(IDC_CHECK, &m_dialog)); // owner-drawn by now: a check box still
    for (int i = 0; i < 3; ++i)
        owtest::Click(handler.box);
    EXPECT_EQ(handler.seen, (std::vector<int>{1, 0, 1}));
}

TEST_F(ButtonInput, SpaceAndEnterClickAtOnce)
{
    m_push.SetFocus();
    for (WORD key : {VK_SPACE, VK_RETURN})
    {
        owtest::Press(key);
        EXPECT_EQ(m_dialog.Take(), m_pushClick) << "and not the dialog's default button";
    }
    m_push.SetKbdSensitive(FALSE);
    m_push.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON);
    owtest::Press(VK_RETURN);
    const Calls calls = m_dialog.Take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "handler 1001"), 0) << "the dialog takes it";
    EXPECT_EQ(calls.empty() ? "" : calls.back(), "dialog 1");
}

TEST_F(ButtonInput, TheDefaultButtonMovesWithTheFocus)
{
    EXPECT_TRUE(m_dialog.ok.GetDefault());
    EXPECT_TRUE(m_dialog.ok.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    EXPECT_TRUE(m_push.SendMessage(WM_GETDLGCODE) & DLGC_UNDEFPUSHBUTTON);

    m_push.SetFocus();
    for (const auto& [bShift, pNow, pBefore] :
         {std::tuple(false, &m_other, &m_push), {true, &m_push, &m_other}})
    {
        owtest::Press(VK_TAB, bShift);
        ASSERT_TRUE(HasFocus(*pNow));
        EXPECT_TRUE(pNow->GetDefault());
        EXPECT_FALSE(pBefore->GetDefault());
        EXPECT_FALSE(m_dialog.ok.GetDefault());
        EXPECT_EQ(pNow->GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
    }
}

// ---- Hover ------------------------------------------------------------------------------------------------

TEST_F(ButtonInput, AFlatButtonKnowsThatTheMouseIsOverIt)
{
    EXPECT_TRUE(Hover(m_push));
    Leave();
    // clang-format off
    for (const auto& [message, wParam] : {std::pair<UINT, WPARAM>(WM_KILLFOCUS, 0), {WM_CANCELMODE, 0},
                                          {WM_ACTIVATE, WA_INACTIVE}, {WM_ENABLE, FALSE}, {WM_MOUSELEAVE, 0}})
    // clang-format on
    {
        ASSERT_TRUE(Hover(m_push));
        m_push.SendMessage(message, wParam);
        EXPECT_FALSE(m_push.m_bMouseOnButton) << message;
        Leave();
    }
    ASSERT_TRUE(Hover(m_push));
    m_push.SendMessage(WM_ACTIVATE, WA_ACTIVE);
    m_push.SendMessage(WM_ENABLE, TRUE);
    m_push.SendMessage(WM_CAPTURECHANGED);
    EXPECT_TRUE(m_push.m_bMouseOnButton) << "these leave it as it is";
}

TEST_F(ButtonInput, HoverIsForFlatButtonsUnderAFreeMouse)
{
    m_push.SetFlat(FALSE);
    owtest::MoveTo(m_push, CPoint(10, 10));
    m_push.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(10, 10));
    EXPECT_FALSE(m_push.m_bMouseOnButton);

    ASSERT_TRUE(Hover(m_other));
    m_other.SendMessage(WM_MOUSELEAVE);
    const auto hovers = [&](WPARAM buttons, int x)
    {
        m_other.SendMessage(WM_MOUSEMOVE, buttons, MAKELPARAM(x, 10));
        return m_other.m_bMouseOnButton;
    };
    EXPECT_FALSE(hovers(MK_LBUTTON, 10)) << "the mouse came with its button pressed";
    EXPECT_TRUE(hovers(0, 11));
    EXPECT_FALSE(hovers(0, -30));
}

TEST_F(ButtonInput, HoverNeedsAnActiveWindowUnlessItIsAlwaysTracked)
{
    ::SetForegroundWindow(::GetDesktopWindow());
    ASSERT_TRUE(Becomes([] { return ::GetActiveWindow() == nullptr; }));
    m_push.SetAlwaysTrack(FALSE);
    EXPECT_TRUE(Hover(m_other));
    owtest::MoveTo(m_push, CPoint(12, 10));
    EXPECT_TRUE(Becomes([&] { return !m_other.m_bMouseOnButton; }));
    EXPECT_FALSE(m_push.m_bMouseOnButton);
    owtest::Activate(m_dialog);
    EXPECT_TRUE(Hover(m_push));
}

// ---- Auto-repeat ------------------------------------------------------------------------------------------

namespace
{
/// Counts commands, and lets the mouse button go, from another thread, when it has seen so many of them.
class Repeating : public ButtonInput, protected AButtonSTNotificationHandler
{
protected:
    int CommandsOfAHold(int nReleaseAfter, BOOL bFlat = FALSE)
    {
        m_push.UnsubclassWindow();
        OpenButton button(this);
        EXPECT_TRUE(button.SubclassDlgItem(IDC_PUSH, &m_dialog));
        button.SetFlat(bFlat);
        button.SetAutoRepeat(1, 20);
        EXPECT_TRUE(!bFlat || Hover(button));
        std::thread finger(
            [&]
            {
                const ULONGLONG deadline = ::GetTickCount64() + 20000;
                while (m_nCommands < nReleaseAfter && !m_bOver && ::GetTickCount64() < deadline)
                    ::Sleep(1);
                INPUT release{};
                release.type = INPUT_MOUSE;
                release.mi.dwFlags = MOUSEEVENTF_LEFTUP;
                ::SendInput(1, &release, sizeof(release));
            });
        owtest::ButtonDown(button, CPoint(10, 10));
        m_bOver = true;
        finger.join();
        m_bOver = false;
        owtest::PumpUntil([] { return ::GetAsyncKeyState(VK_LBUTTON) >= 0; });
        EXPECT_EQ(::GetCapture(), nullptr);
        if (button.m_hWnd)
            button.UnsubclassWindow();
        return m_nCommands.exchange(0);
    }
    void OnButtonClicked(int) override
    {
        ++m_nCommands;
        m_onClick();
    }

    std::atomic<int> m_nCommands = 0;
    std::atomic<bool> m_bOver = false; ///< the hold has ended, released or not
    std::function<void()> m_onClick = [] {};
};
} // namespace

TEST_F(Repeating, SendsCommandsWhileHeldAndAnEvenNumberOfThem)
{
    EXPECT_EQ(CommandsOfAHold(1), 2) << "one cycle";
    const int nCommands = CommandsOfAHold(5);
    EXPECT_GE(nCommands, 6);
    EXPECT_EQ(nCommands % 2, 0);
}

TEST_F(Repeating, IsForExactlyOneAndAReleaseThatWaitsAlreadySendsNothing)
{
    m_push.SetAutoRepeat(1, 20);
    owtest::Click(m_push);
    EXPECT_EQ(m_dialog.Take(), Calls{});
    m_push.SetAutoRepeat(2, 20);
    owtest::Click(m_push);
    EXPECT_EQ(m_dialog.Take(), m_pushClick) << "an ordinary click";
}

// The thread would hang if it waited for a release that goes to another window.
TEST_F(Repeating, EndsWithAReleaseElsewhere)
{
    m_onClick = []
    {
        INPUT aside{};
        aside.type = INPUT_MOUSE;
        aside.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
        aside.mi.dx = aside.mi.dy = 0xFFF0; // the far corner of the screen
        ::SendInput(1, &aside, sizeof(aside));
    };
    EXPECT_EQ(CommandsOfAHold(3, TRUE) % 2, 0);
    m_onClick = [] { ::ReleaseCapture(); };
    EXPECT_EQ(CommandsOfAHold(3) % 2, 0);
}

TEST_F(Repeating, EndsWhenTheButtonCannotBeUsedAnyMore)
{
    constexpr int kNever = 1000;
    const auto push = [&] { return m_dialog.GetDlgItem(IDC_PUSH); };
    m_onClick = [&] { push()->EnableWindow(FALSE); };
    EXPECT_EQ(CommandsOfAHold(kNever), 2) << "an even number all the same";
    push()->EnableWindow();
    m_onClick = [&] { push()->ShowWindow(SW_HIDE); };
    EXPECT_EQ(CommandsOfAHold(kNever), 2);
}

TEST_F(Repeating, EndsWhenTheWindowGoes)
{
    m_onClick = [&] { m_dialog.GetDlgItem(IDC_PUSH)->DestroyWindow(); };
    EXPECT_EQ(CommandsOfAHold(1), 1);
    EXPECT_EQ(m_dialog.GetDlgItem(IDC_PUSH), nullptr);
}

// ---- Tooltip and cursor -----------------------------------------------------------------------------------

TEST_F(ButtonInput, TheTooltipShowsOnceItHasAText)
{
    m_push.SetTooltipText(_T("first"), FALSE);
    m_push.SetTooltipText(IDS_TIP);
    m_push.SetTooltipText(31999); // no such string
    m_push.SetTooltipText(nullptr);
    EXPECT_EQ(m_push.m_toolTip.GetToolCount(), 1);
    CString strText;
    m_push.m_toolTip.GetText(strText, &m_push, 1);
    EXPECT_STREQ(strText, _T("Tip from the resources"));
    m_push.EnableBalloonTooltip();
    EXPECT_FALSE(m_push.m_toolTip.GetStyle() & TTS_BALLOON) << "kept: balloons have no effect";

    owtest::MoveTo(m_push, CPoint(20, 10));
    owtest::MoveTo(m_push, CPoint(22, 10));
    EXPECT_TRUE(Becomes([&] { return m_push.m_toolTip.IsWindowVisible() != FALSE; }));
    m_push.ActivateTooltip(FALSE);
    EXPECT_FALSE(m_push.m_toolTip.IsWindowVisible());
}

TEST_F(ButtonInput, ShowsTheCursorThatItWasGiven)
{
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    const auto showsArrow = [&]
    {
        ::SetCursor(nullptr);
        m_push.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_push.m_hWnd),
                           MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        EXPECT_NE(::GetCursor(), nullptr);
        return ::GetCursor() == hArrow;
    };
    for (const auto& [nId, result] : {std::pair(31999, 1u), {0, 0u}})
    {
        EXPECT_TRUE(showsArrow());
        EXPECT_EQ(m_push.SetBtnCursor(IDC_CROSSHAIR), 0u);
        EXPECT_FALSE(showsArrow());
        EXPECT_EQ(m_push.SetBtnCursor(nId), result) << "and the former cursor is gone";
        EXPECT_TRUE(showsArrow());
    }
}
