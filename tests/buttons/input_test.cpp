// What a user does to buttons, with real mouse and keyboard.

#include "ButtonsDialog.h"

#include "Input.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

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

    bool Becomes(const std::function<bool()>& condition) { return owtest::PumpUntil(condition, 3000); }
    bool HasFocus(CWnd& wnd)
    {
        return Becomes([&] { return ::GetFocus() == wnd.m_hWnd; });
    }

    ButtonsDialog m_dialog;
};

void SendRelease()
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    ::SendInput(1, &input, sizeof(input));
}
} // namespace

// ---- Clicks -----------------------------------------------------------------------------------------------

TEST_F(ButtonInput, AClickTellsTheHandlerAndThenTheDialog)
{
    owtest::Click(m_dialog.push);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1001", "dialog 1001"}));
    EXPECT_TRUE(HasFocus(m_dialog.push));

    owtest::Click(m_dialog.ext);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1005", "dialog 1005"}));
    EXPECT_EQ(m_dialog.ext.GetCheck(), 1) << "the system's own check box";
    m_dialog.ext.SetNotificationHandler(nullptr);
    owtest::Click(m_dialog.ext);
    EXPECT_EQ(m_dialog.Take(), Calls{"dialog 1005"});
}

TEST_F(ButtonInput, FastClicksAreAllClicks)
{
    for (int i = 0; i < 4; ++i)
        owtest::Click(m_dialog.push);
    EXPECT_EQ(m_dialog.Take().size(), 8u);
    for (int i = 0; i < 3; ++i)
        owtest::Click(m_dialog.check);
    EXPECT_EQ(m_dialog.check.GetCheck(), 1);

    // The same for a double click that does not come by way of the message loop.
    m_dialog.Take();
    m_dialog.push.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    m_dialog.push.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1001", "dialog 1001"}));
}

TEST_F(ButtonInput, ACheckBoxTogglesBeforeItTells)
{
    class Looking : public AButtonSTNotificationHandler
    {
    public:
        explicit Looking(const OpenButton*& pButton) : m_pButton(pButton) {}
        std::vector<int> seen;
        void OnButtonClicked(int) override { seen.push_back(m_pButton->GetCheck()); }

    private:
        const OpenButton*& m_pButton;
    };
    const OpenButton* pButton = nullptr;
    Looking handler(pButton);
    OpenButton box(&handler);
    pButton = &box;
    m_dialog.check.UnsubclassWindow();
    ASSERT_TRUE(box.SubclassDlgItem(IDC_CHECK, &m_dialog)); // owner-drawn by now: a check box still
    box.SetURL(L"x:\\nothing\\that\\exists");
    owtest::Click(box);
    owtest::Click(box);
    EXPECT_EQ(handler.seen, (std::vector<int>{1, 0}));
}

TEST_F(ButtonInput, AnAddressThatCannotBeOpenedChangesNothing)
{
    m_dialog.push.SetURL((L"x:\\" + std::wstring(300, L'?')).c_str());
    owtest::Click(m_dialog.push);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1001", "dialog 1001"}));
}

TEST_F(ButtonInput, SpaceAndEnterClickAtOnce)
{
    owtest::Click(m_dialog.push);
    ASSERT_TRUE(HasFocus(m_dialog.push));
    m_dialog.Take();
    owtest::Press(VK_SPACE);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1001", "dialog 1001"}));
    owtest::Press(VK_RETURN);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1001", "dialog 1001"}))
        << "and not the dialog's default button";

    m_dialog.push.SetKbdSensitive(FALSE);
    m_dialog.push.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON);
    owtest::Press(VK_RETURN);
    const Calls calls = m_dialog.Take();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "handler 1001"), 0) << "the dialog takes it";
    EXPECT_EQ(calls.empty() ? "" : calls.back(), "dialog 1");
}

// ---- Default button ---------------------------------------------------------------------------------------

TEST_F(ButtonInput, TheDefaultButtonMovesWithTheFocus)
{
    EXPECT_TRUE(m_dialog.ok.GetDefault());
    EXPECT_TRUE(m_dialog.ok.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    EXPECT_TRUE(m_dialog.push.SendMessage(WM_GETDLGCODE) & DLGC_UNDEFPUSHBUTTON);

    owtest::Click(m_dialog.push);
    ASSERT_TRUE(HasFocus(m_dialog.push));
    owtest::Press(VK_TAB);
    ASSERT_TRUE(HasFocus(m_dialog.other));
    EXPECT_TRUE(m_dialog.other.GetDefault());
    EXPECT_FALSE(m_dialog.push.GetDefault());
    EXPECT_FALSE(m_dialog.ok.GetDefault());
    owtest::Press(VK_TAB, true);
    ASSERT_TRUE(HasFocus(m_dialog.push));
    EXPECT_TRUE(m_dialog.push.GetDefault());
    EXPECT_FALSE(m_dialog.other.GetDefault());
    for (CWnd* pButton : {static_cast<CWnd*>(&m_dialog.push), static_cast<CWnd*>(&m_dialog.other)})
        EXPECT_EQ(pButton->GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
}

// ---- Hover ------------------------------------------------------------------------------------------------

TEST_F(ButtonInput, AFlatButtonKnowsThatTheMouseIsOverIt)
{
    OpenButton& flat = m_dialog.push;
    owtest::MoveTo(flat, CPoint(10, 10));
    EXPECT_TRUE(Becomes([&] { return flat.m_bMouseOnButton; }));
    Leave();
    EXPECT_TRUE(Becomes([&] { return !flat.m_bMouseOnButton; }));

    const auto hover = [&]
    {
        owtest::MoveTo(flat, CPoint(10, 10));
        return Becomes([&] { return flat.m_bMouseOnButton; });
    };
    const auto expectEndsHover = [&](UINT message, WPARAM wParam)
    {
        ASSERT_TRUE(hover());
        flat.SendMessage(message, wParam);
        EXPECT_FALSE(flat.m_bMouseOnButton) << message;
        Leave();
    };
    expectEndsHover(WM_KILLFOCUS, 0);
    expectEndsHover(WM_CANCELMODE, 0);
    expectEndsHover(WM_ACTIVATE, WA_INACTIVE);
    expectEndsHover(WM_ENABLE, FALSE);
    expectEndsHover(WM_MOUSELEAVE, 0);

    ASSERT_TRUE(hover());
    flat.SendMessage(WM_ACTIVATE, WA_ACTIVE);
    flat.SendMessage(WM_ENABLE, TRUE);
    flat.SendMessage(WM_CAPTURECHANGED);
    EXPECT_TRUE(flat.m_bMouseOnButton) << "these leave it as it is";
}

TEST_F(ButtonInput, HoverIsForFlatButtonsUnderAFreeMouse)
{
    m_dialog.push.SetFlat(FALSE);
    owtest::MoveTo(m_dialog.push, CPoint(10, 10));
    m_dialog.push.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(10, 10));
    EXPECT_FALSE(m_dialog.push.m_bMouseOnButton);

    owtest::MoveTo(m_dialog.other, CPoint(10, 10));
    ASSERT_TRUE(Becomes([&] { return m_dialog.other.m_bMouseOnButton; }));
    m_dialog.other.SendMessage(WM_MOUSELEAVE);
    m_dialog.other.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_FALSE(m_dialog.other.m_bMouseOnButton) << "the mouse came with its button pressed";
    m_dialog.other.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(11, 10));
    EXPECT_TRUE(m_dialog.other.m_bMouseOnButton);
    m_dialog.other.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-30, 10));
    EXPECT_FALSE(m_dialog.other.m_bMouseOnButton);
}

TEST_F(ButtonInput, HoverNeedsAnActiveWindowUnlessItIsAlwaysTracked)
{
    ::SetForegroundWindow(::GetDesktopWindow());
    ASSERT_TRUE(Becomes([] { return ::GetActiveWindow() == nullptr; }));
    m_dialog.push.SetAlwaysTrack(FALSE);
    owtest::MoveTo(m_dialog.push, CPoint(10, 10));
    owtest::MoveTo(m_dialog.other, CPoint(10, 10));
    EXPECT_TRUE(Becomes([&] { return m_dialog.other.m_bMouseOnButton; }));
    owtest::MoveTo(m_dialog.push, CPoint(12, 10));
    EXPECT_TRUE(Becomes([&] { return !m_dialog.other.m_bMouseOnButton; }));
    EXPECT_FALSE(m_dialog.push.m_bMouseOnButton);
    owtest::Activate(m_dialog);
    owtest::MoveTo(m_dialog.push, CPoint(14, 10));
    EXPECT_TRUE(Becomes([&] { return m_dialog.push.m_bMouseOnButton; }));
}

// ---- Auto-repeat
// ---------------------------------------------------------------------------------------------

namespace
{
/// Counts commands, and lets the mouse button go, from another thread, when it has seen so many of them.
class Repeating : public ButtonInput
{
protected:
    class CountingHandler : public AButtonSTNotificationHandler
    {
    public:
        std::atomic<int> count = 0;
        std::function<void()> onClick;
        void OnButtonClicked(int) override
        {
            ++count;
            if (onClick)
                onClick();
        }
    };

    int CommandsOfAHold(int nReleaseAfter)
    {
        m_dialog.push.UnsubclassWindow();
        OpenButton button(&m_handler);
        EXPECT_TRUE(button.SubclassDlgItem(IDC_PUSH, &m_dialog));
        button.SetAutoRepeat(1, 20);
        std::thread finger(
            [&]
            {
                const ULONGLONG deadline = ::GetTickCount64() + 5000;
                while (m_handler.count < nReleaseAfter && ::GetTickCount64() < deadline)
                    ::Sleep(1);
                SendRelease();
            });
        owtest::ButtonDown(button, CPoint(10, 10));
        finger.join();
        owtest::PumpUntil([] { return ::GetAsyncKeyState(VK_LBUTTON) >= 0; });
        EXPECT_EQ(::GetCapture(), nullptr);
        if (button.m_hWnd)
            button.UnsubclassWindow();
        return m_handler.count;
    }

    CountingHandler m_handler;
};
} // namespace

TEST_F(Repeating, SendsCommandsWhileHeldAndAnEvenNumberOfThem)
{
    const int nCommands = CommandsOfAHold(5);
    EXPECT_GE(nCommands, 6);
    EXPECT_EQ(nCommands % 2, 0);
}

TEST_F(Repeating, OneCycleMakesTwoCommands)
{
    EXPECT_EQ(CommandsOfAHold(1), 2);
}

TEST_F(Repeating, AReleaseThatWaitsAlreadySendsNothing)
{
    m_dialog.push.SetAutoRepeat(1, 20);
    owtest::Click(m_dialog.push);
    EXPECT_EQ(m_dialog.Take(), Calls{});
}

TEST_F(Repeating, IsForExactlyOne)
{
    m_dialog.push.SetAutoRepeat(2, 20);
    owtest::Click(m_dialog.push);
    EXPECT_EQ(m_dialog.Take().size(), 2u) << "an ordinary click";
}

TEST_F(Repeating, EndsWhenTheWindowGoes)
{
    m_handler.onClick = [&]
    {
        if (CWnd* pButton = m_dialog.GetDlgItem(IDC_PUSH))
            pButton->DestroyWindow();
    };
    EXPECT_EQ(CommandsOfAHold(1), 1);
    EXPECT_EQ(m_dialog.GetDlgItem(IDC_PUSH), nullptr);
}

// ---- Tooltip and cursor -----------------------------------------------------------------------------------

TEST_F(ButtonInput, TheTooltipShowsOnceItHasAText)
{
    OpenButton& button = m_dialog.push;
    button.SetTooltipText(_T("first"), FALSE);
    button.SetTooltipText(IDS_TIP);
    button.SetTooltipText(31999); // no such string
    button.SetTooltipText(nullptr);
    EXPECT_EQ(button.m_toolTip.GetToolCount(), 1);
    CString strText;
    button.m_toolTip.GetText(strText, &button, 1);
    EXPECT_STREQ(strText, _T("Tip from the resources"));
    EXPECT_EQ(button.m_toolTip.GetMaxTipWidth(), 400);
    button.EnableBalloonTooltip();
    EXPECT_FALSE(button.m_toolTip.GetStyle() & TTS_BALLOON) << "kept: balloons have no effect";

    owtest::MoveTo(button, CPoint(20, 10));
    owtest::MoveTo(button, CPoint(22, 10));
    EXPECT_TRUE(Becomes([&] { return button.m_toolTip.IsWindowVisible() != FALSE; }));
    button.ActivateTooltip(FALSE);
    EXPECT_FALSE(button.m_toolTip.IsWindowVisible());
}

TEST_F(ButtonInput, TheTooltipIsThereFromTheFirstMessageOn)
{
    MSG msg{m_dialog.push, WM_MOUSEMOVE, 0, 0, 0, {}};
    m_dialog.push.PreTranslateMessage(&msg);
    EXPECT_NE(m_dialog.push.m_toolTip.m_hWnd, nullptr);
    EXPECT_EQ(m_dialog.push.m_toolTip.GetToolCount(), 0);
}

TEST_F(ButtonInput, ShowsTheCursorThatItWasGiven)
{
    const auto cursorOver = [&]
    {
        ::SetCursor(nullptr);
        m_dialog.push.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_dialog.push.m_hWnd),
                                  MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    };
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    EXPECT_EQ(cursorOver(), hArrow);
    EXPECT_EQ(m_dialog.push.SetBtnCursor(IDC_CROSSHAIR), 0u);
    const HCURSOR hCross = cursorOver();
    EXPECT_NE(hCross, hArrow);
    EXPECT_NE(hCross, nullptr);
    EXPECT_EQ(m_dialog.push.SetBtnCursor(31999), 1u) << "and the former cursor is gone";
    EXPECT_EQ(cursorOver(), hArrow);
    EXPECT_EQ(m_dialog.push.SetBtnCursor(IDC_CROSSHAIR), 0u);
    EXPECT_EQ(m_dialog.push.SetBtnCursor(0), 0u);
    EXPECT_EQ(cursorOver(), hArrow);
}
