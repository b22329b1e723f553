// What a user does to buttons, with real mouse and keyboard, and what they pass on to a handler.

#include "Room.h"

#include <shellapi.h>

namespace
{
const std::string kPushClick = "told 1001; dialog 1001; ";

class ButtonInput : public InRoom
{
protected:
    ButtonInput()
    {
        constexpr DWORD kDefault = BS_DEFPUSHBUTTON, kCheck = BS_CHECKBOX, kAuto = BS_AUTOCHECKBOX;
        m_room.controls = {{&m_push}, {&m_other}, {&m_ok, kDefault}, {&m_check, kCheck}, {&m_ext, kAuto}};
    }
    static bool HoverBecomes(const Open<>& button, bool bHover)
    {
        return owtest::PumpUntil([&] { return button.m_bMouseOnButton == bHover; });
    }
    /// Holds the button until so many commands have been seen; how many there were in the end.
    int CommandsOfAHold(int nHeldFor, const std::function<void()>& onClick = {})
    {
        int nCommands = 0;
        m_room.then = [&]
        {
            if (onClick)
                onClick();
            if (++nCommands == nHeldFor)
                ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        };
        owtest::ButtonDown(m_push, CPoint(10, 10));
        if (nCommands < nHeldFor)
            owtest::ButtonUp();
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_FALSE(m_push.m_hWnd && (m_push.GetState() & BST_PUSHED));
        return nCommands;
    }

    Open<> m_push{&m_room}, m_other{&m_room}, m_ok{&m_room}, m_check{&m_room};
    CExtButton m_ext{&m_room};
};

/// Buttons of both kinds, with a handler and with none but the dialog itself.
class ReflectedButtons : public InRoom
{
protected:
    ReflectedButtons()
    {
        m_room.controls = {
            {&m_given}, {&m_own}, {&m_notified, BS_NOTIFY}, {&m_givenST}, {&m_ownST, BS_AUTOCHECKBOX}};
    }
    Room m_handler;
    CButtonReflected m_given{&m_handler}, m_own{nullptr}, m_notified{nullptr};
    CButtonSTReflected m_givenST{&m_handler}, m_ownST{nullptr};
};
} // namespace

TEST_F(ButtonInput, AClickTellsTheHandlerAndThenTheDialog)
{
    for (int i = 0; i < 4; ++i) // fast ones
        EXPECT_EQ(Click(m_push), kPushClick);
    for (const UINT message : {WM_LBUTTONDBLCLK, WM_LBUTTONUP}) // not by way of the message loop
        m_push.SendMessage(message, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(m_room.Take(), kPushClick);
    EXPECT_EQ(Click(m_ext), "told 1005; dialog 1005; ");
    EXPECT_EQ(m_ext.GetCheck(), 1) << "the system's own check box";
    m_room.then = [&] { m_room.DestroyWindow(); }; // which then hears no more
    for (const int nId : {1001, 1005})
    {
        EXPECT_EQ(Click(*m_room.GetDlgItem(nId)), "told " + std::to_string(nId) + "; ");
        m_room.Open();
    }
    m_ext.SetNotificationHandler(nullptr);
    EXPECT_EQ(Click(m_ext), "dialog 1005; ");
    m_room.then = [&] { m_room.calls += m_check.GetCheck() ? "on " : "off "; };
    m_check.SetFocus();
    for (const std::string state : {"on ", "off ", "on "}) // toggles before it tells
    {
        EXPECT_TRUE(Repaints(m_check, [&] { ClickByProgram(m_check); }));
        EXPECT_EQ(m_room.Take(), "told 1004; " + state + "dialog 1004; ");
    }
}

TEST_F(ButtonInput, APressOfAnAutomaticRadioButtonThatGoesAwayIsLetGoWithoutAClick)
{
    for (const auto& [type, changed, bClicks] : {std::tuple(BS_AUTORADIOBUTTON, 0L, true),
                                                 {BS_AUTORADIOBUTTON, WS_DISABLED, false},
                                                 {BS_AUTORADIOBUTTON, WS_VISIBLE, false},
                                                 {BS_AUTOCHECKBOX, WS_VISIBLE, true}})
        for (const UINT nKey : {0, VK_SPACE}) // by the mouse, by the key
        {
            m_ext.SetButtonStyle(type);
            m_ext.SendMessage(nKey ? WM_KEYDOWN : WM_LBUTTONDOWN, nKey, MAKELPARAM(5, 5));
            ::SetWindowLongPtr(m_ext, GWL_STYLE, m_ext.GetStyle() ^ changed);
            m_ext.SendMessage(WM_KEYUP, VK_TAB);
            EXPECT_EQ(::GetCapture(), m_ext.m_hWnd) << "another key ends nothing";
            m_ext.SendMessage(nKey ? WM_KEYUP : WM_LBUTTONUP, nKey, MAKELPARAM(5, 5));
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_EQ(m_room.Take(), bClicks ? "told 1005; dialog 1005; " : "") << type << ' ' << changed;
            ::SetWindowLongPtr(m_ext, GWL_STYLE, m_ext.GetStyle() ^ changed);
        }
}

TEST_F(ButtonInput, AClickOpensTheAddressOfAPushButtonAndNeverThatOfACheckBox)
{
    static std::wstring s_opened;
    s_opened.clear();
    const auto noteAddress = [](SHELLEXECUTEINFOW* pInfo) -> BOOL
    {
        EXPECT_TRUE(pInfo->nShow == SW_SHOWMAXIMIZED && pInfo->fMask == SEE_MASK_FLAG_NO_UI);
        s_opened += std::wstring(pInfo->lpVerb) + L' ' + pInfo->lpFile + L'\n';
        return FALSE;
    };
    const owtest::ImportStandIn noShell(L"DialogControlsOW.dll", "ShellExecuteExW", +noteAddress);
    const std::wstring tooLong(300, L'?');
    for (const LPCWSTR pszUrl : {L"http://x", tooLong.c_str(), LPCWSTR(nullptr)})
    {
        m_push.SetURL(pszUrl);
        m_check.SetURL(pszUrl);
        EXPECT_EQ(Click(m_push) + Click(m_check), kPushClick + "told 1004; dialog 1004; ");
    }
    EXPECT_EQ(s_opened, L"open http://x\nopen " + tooLong.substr(0, 260) + L'\n')
        << "kept: a text that fills the field has no terminator there";
}

TEST_F(ButtonInput, SpaceAndEnterClickAtOnceAndTheDefaultButtonMovesWithTheFocus)
{
    EXPECT_TRUE(m_ok.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    EXPECT_TRUE(m_push.SendMessage(WM_GETDLGCODE) & DLGC_UNDEFPUSHBUTTON);
    m_push.SetFocus();
    for (const WORD nKey : {VK_SPACE, VK_RETURN})
        EXPECT_EQ(Press(nKey), kPushClick);
    m_push.SetKbdSensitive(FALSE);
    m_push.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON);
    EXPECT_EQ(Press(VK_RETURN), "told 1003; dialog 1003; ") << "the dialog takes it";
    m_push.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(m_room.Take(), kPushClick) << "of Enter alone";

    owtest::Press(VK_TAB);
    EXPECT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == m_other.m_hWnd; }));
    EXPECT_TRUE(m_other.GetDefault() && !m_push.GetDefault() && !m_ok.GetDefault());
}

TEST_F(ButtonInput, HoverIsForFlatButtonsUnderAFreeMouseAndEndsWithWhatTakesItAway)
{
    const std::tuple<UINT, WPARAM, bool> messages[] = {
        // and whether they end it
        {WM_KILLFOCUS, 0, true},  {WM_CANCELMODE, 0, true},     {WM_ACTIVATE, WA_INACTIVE, true},
        {WM_ENABLE, FALSE, true}, {WM_MOUSELEAVE, 0, true},     {WM_ACTIVATE, WA_ACTIVE, false},
        {WM_ENABLE, TRUE, false}, {WM_MOUSEMOVE, 0, false},     {WM_MOUSEMOVE, MK_LBUTTON, false},
        {WM_MOUSEMOVE, 0, false}, {WM_CAPTURECHANGED, 0, false}};
    std::mt19937 random(1);
    bool bHovers = false;
    for (int i = 0; i < 400 && !HasFailure(); ++i)
    {
        const auto& [message, wParam, bEnds] = messages[random() % std::size(messages)];
        const bool bFlat = random() % 4 != 0, bOver = random() % 4 != 0, bBefore = bHovers;
        if (message == WM_MOUSEMOVE && bFlat && (bHovers || wParam == 0))
            bHovers = bOver;
        bHovers &= !bFlat || !bEnds;
        m_other.SetFlat(bFlat);
        m_other.SetCapture();
        const bool bRepaints = Repaints(m_other, [&, m = message, w = wParam]
                                        { m_other.SendMessage(m, w, MAKELPARAM(bOver ? 10 : -30, 10)); });
        const bool bLetsGo = message == WM_CAPTURECHANGED && bHovers;
        EXPECT_EQ(m_other.m_bMouseOnButton, bHovers) << i << ' ' << message << ' ' << wParam;
        const bool bSystems = message == WM_KILLFOCUS || message == WM_CANCELMODE; // which always paints then
        EXPECT_EQ(bRepaints || bSystems, bHovers != bBefore || bLetsGo || bSystems) << i << ' ' << message;
        EXPECT_EQ(::GetCapture() == nullptr, bLetsGo || message == WM_CANCELMODE) << i << ' ' << message;
        ::ReleaseCapture();
    }
    owtest::MoveTo(m_push, CPoint(10, 10));
    EXPECT_TRUE(HoverBecomes(m_push, true));
    ::SetForegroundWindow(::GetDesktopWindow());
    ASSERT_TRUE(owtest::PumpUntil([] { return ::GetActiveWindow() == nullptr; }));
    m_push.SetAlwaysTrack(FALSE);
    owtest::MoveTo(m_ok, CPoint(10, 10));
    EXPECT_TRUE(HoverBecomes(m_ok, true));
    owtest::MoveTo(m_push, CPoint(12, 10));
    EXPECT_TRUE(HoverBecomes(m_ok, false) && !m_push.m_bMouseOnButton) << "the mouse has left";
}

TEST_F(ButtonInput, AHoldSendsAnEvenNumberOfCommandsUntilTheMouseIsLetGoOrTheButtonCannotBeUsed)
{
    static DWORD s_slept;
    s_slept = 0;
    const auto sleep = [](DWORD nPeriod) { ::Sleep(nPeriod), s_slept += nPeriod; };
    const owtest::ImportStandIn sleeping(L"DialogControlsOW.dll", "Sleep", +sleep);
    m_push.SetAutoRepeat(2, 20);
    EXPECT_EQ(Click(m_push), kPushClick) << "an ordinary click";
    m_push.SetAutoRepeat(1, 20);
    EXPECT_EQ(Click(m_push), "") << "the release waits already";
    m_push.SetFlat(FALSE);
    EXPECT_EQ(CommandsOfAHold(5), 6);
    EXPECT_EQ(s_slept, 5 * 20u) << "the last command is there for the even number";
    EXPECT_EQ(CommandsOfAHold(3, [] { ::ReleaseCapture(); }), 4);
    m_push.SetFlat(TRUE);
    EXPECT_EQ(CommandsOfAHold(3, [] { ::SetCursorPos(0, 0); }), 4);

    owtest::MoveTo(m_push, CPoint(10, 10));
    m_room.then = [&]
    {
        m_push.SendMessage(WM_MOUSELEAVE);
        m_push.PostMessage(WM_LBUTTONUP);
    };
    m_push.SendMessage(WM_LBUTTONDOWN);
    EXPECT_TRUE(m_push.m_bMouseOnButton) << "a hold ends with a look at where the mouse is";

    EXPECT_EQ(CommandsOfAHold(100, [&] { m_push.EnableWindow(FALSE); }), 2);
    m_push.EnableWindow();
    EXPECT_EQ(CommandsOfAHold(100, [&] { m_push.ShowWindow(SW_HIDE); }), 2);
    m_push.ShowWindow(SW_SHOW);
    EXPECT_EQ(CommandsOfAHold(100, [&] { m_push.DestroyWindow(); }), 1);
}

TEST_F(ButtonInput, TheTooltipShowsOnceItHasATextAndTheCursorIsTheOneThatItWasGiven)
{
    auto& tip = m_push.m_toolTip;
    m_push.SetTooltipText(_T("first"), FALSE);
    m_push.EnableBalloonTooltip(); // kept: has no effect
    m_push.SetTooltipText(IDS_TEXT);
    m_push.SetTooltipText(31999); // no such string
    m_push.SetTooltipText(nullptr);
    CString strText;
    tip.GetText(strText, &m_push, 1);
    EXPECT_TRUE(strText == L"From the resources" && tip.GetToolCount() == 1);
    EXPECT_TRUE(tip.SendMessage(TTM_GETMAXTIPWIDTH) == 400 && !(tip.GetStyle() & TTS_BALLOON));
    owtest::MoveTo(m_push, CPoint(20, 10));
    owtest::MoveTo(m_push, CPoint(22, 10));
    EXPECT_TRUE(owtest::PumpUntil([&] { return tip.IsWindowVisible() != FALSE; }));
    m_push.ActivateTooltip(FALSE);
    EXPECT_FALSE(tip.IsWindowVisible());

    const auto showsArrow = [&]
    {
        m_push.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_push.m_hWnd), MAKELPARAM(HTCLIENT, 0));
        return ::GetCursor() == ::LoadCursor(nullptr, IDC_ARROW);
    };
    const owtest::HandleCount before = owtest::CountHandles();
    for (const auto& [nId, result] : {std::pair(31999, 1u), {0, 0u}})
    {
        EXPECT_TRUE(m_push.SetBtnCursor(IDC_CROSSHAIR) == 0 && !showsArrow());
        EXPECT_TRUE(m_push.SetBtnCursor(nId) == result && showsArrow()) << "the former cursor is gone";
    }
    EXPECT_EQ(owtest::CountHandles(), before);
}

TEST_F(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    for (const Room::Control& control : m_room.controls)
    {
        owtest::DoubleClick(*control.pControl, CPoint(5, 5));
        owtest::Press(VK_SPACE);
    }
    EXPECT_EQ(m_handler.Take(),
              "clicked 1001; clicked 1001; clicked 1001; clicked 1004; clicked 1004; clicked 1004; ");
    EXPECT_EQ(m_room.Take(), "clicked 1002; clicked 1002; clicked 1002; "
                             "clicked 1003; twice 1003; clicked 1003; " // not one that paints itself
                             "clicked 1005; clicked 1005; clicked 1005; ");
    m_own.SetFocus();
    ClickByProgram(m_ownST);
    EXPECT_EQ(m_room.Take(), "clicked 1005; ");
    EXPECT_TRUE(m_ownST.GetCheck() == 0 && ::GetFocus() == m_own.m_hWnd) << "it does nothing of its own";
    ClickByProgram(Lone<CButtonReflected>(CSize(9, 9)).button);
}

TEST_F(ReflectedButtons, AskForABrushOrElseTakeTheParentsAndTellThatTheirWindowComesAndGoes)
{
    CBrush brush(kGreen);
    m_handler.hBrush = brush;
    CClientDC dc(&m_room);
    const auto brushOf = [&](const CWnd& button)
    { return HBRUSH(m_room.SendMessage(WM_CTLCOLORBTN, WPARAM(dc.m_hDC), LPARAM(button.m_hWnd))); };
    EXPECT_EQ(brushOf(m_givenST), brush);
    EXPECT_EQ(brushOf(m_ownST), ::GetSysColorBrush(COLOR_BTNFACE));
    m_given.UnsubclassWindow();
    ASSERT_TRUE(m_given.Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &m_room, 1005));
    m_given.DestroyWindow();
    EXPECT_EQ(m_handler.Take(), "created 1005; destroyed 1005; ");
}
