// What a user does to buttons, with real mouse and keyboard.

#include "Room.h"

#include <shellapi.h>

namespace
{
constexpr char kPushClick[] = "told 1001; dialog 1001; ";

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
    int CommandsOfAHold(
        int nHeldFor, const std::function<void()>& onClick = [] {})
    {
        int nCommands = 0;
        m_room.then = [&]
        {
            onClick();
            if (++nCommands == nHeldFor)
                SendMouse(MOUSEEVENTF_LEFTUP);
        };
        owtest::ButtonDown(m_push, CPoint(10, 10));
        if (nCommands < nHeldFor)
            owtest::ButtonUp();
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_FALSE(m_push.m_hWnd && (m_push.GetState() & BST_PUSHED));
        return nCommands;
    }
    static void SendMouse(DWORD dwFlags)
    {
        constexpr LONG kCorner = 0xFFF0; // the far one of the screen
        INPUT input{INPUT_MOUSE, {{kCorner, kCorner, 0, dwFlags, 0, 0}}};
        ::SendInput(1, &input, sizeof(input));
    }

    Open<> m_push{&m_room}, m_other{&m_room}, m_ok{&m_room}, m_check{&m_room};
    CExtButton m_ext{&m_room};
};
} // namespace

TEST_F(ButtonInput, AClickTellsTheHandlerAndThenTheDialog)
{
    for (int i = 0; i < 4; ++i) // fast ones
        EXPECT_EQ(Click(m_push), kPushClick);
    EXPECT_EQ(::GetFocus(), m_push.m_hWnd);
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
    using Row =
        std::tuple<UINT, DWORD, bool>; // its type, what changes while it is pressed, whether it clicks
    for (const auto& [type, changed, bClicks] :
         {Row{BS_AUTORADIOBUTTON, 0, true}, Row{BS_AUTORADIOBUTTON, WS_DISABLED, false},
          Row{BS_AUTORADIOBUTTON, WS_VISIBLE, false}, Row{BS_AUTOCHECKBOX, WS_VISIBLE, true}})
        for (const auto& [down, up, nKey] :
             {std::tuple(WM_LBUTTONDOWN, WM_LBUTTONUP, 0), {WM_KEYDOWN, WM_KEYUP, VK_SPACE}})
        {
            m_ext.SetButtonStyle(type);
            m_ext.SendMessage(down, nKey, MAKELPARAM(5, 5));
            ::SetWindowLongPtr(m_ext, GWL_STYLE, m_ext.GetStyle() ^ changed);
            m_ext.SendMessage(WM_KEYUP, VK_TAB);
            EXPECT_EQ(::GetCapture(), m_ext.m_hWnd) << "another key ends nothing";
            m_ext.SendMessage(up, nKey, MAKELPARAM(5, 5));
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_EQ(m_room.Take(), bClicks ? "told 1005; dialog 1005; " : "") << type << ' ' << changed;
            ::SetWindowLongPtr(m_ext, GWL_STYLE, m_ext.GetStyle() ^ changed);
        }
}

TEST_F(ButtonInput, AClickOpensTheAddressOfAPushButtonAndNeverThatOfACheckBox)
{
    static std::wstring s_opened;
    const auto noteAddress = [](SHELLEXECUTEINFOW* pInfo) -> BOOL
    {
        EXPECT_TRUE(pInfo->cbSize == sizeof(*pInfo) && pInfo->nShow == SW_SHOWMAXIMIZED);
        EXPECT_EQ(pInfo->fMask, ULONG{SEE_MASK_FLAG_NO_UI}) << "no box where it cannot be opened";
        s_opened += std::wstring(pInfo->lpVerb) + L' ' + pInfo->lpFile + L'\n';
        return FALSE;
    };
    const owtest::ImportStandIn noShell(L"DialogControlsOW.dll", "ShellExecuteExW", +noteAddress);
    const std::wstring tooLong(300, L'?');
    for (const LPCWSTR pszUrl : {L"http://x", tooLong.c_str(), LPCWSTR(nullptr)})
        for (Open<>* pButton : {&m_push, &m_check})
        {
            pButton->SetURL(pszUrl);
            EXPECT_NE(Click(*pButton).find("dialog"), std::string::npos) << "whatever comes of it";
        }
    EXPECT_EQ(s_opened, L"open http://x\nopen " + tooLong.substr(0, 260) + L'\n')
        << "kept: a text that fills the field has no terminator there";
}

TEST_F(ButtonInput, SpaceAndEnterClickAtOnceAndTheDefaultButtonMovesWithTheFocus)
{
    EXPECT_TRUE(m_ok.GetDefault());
    EXPECT_TRUE(m_ok.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    EXPECT_TRUE(m_push.SendMessage(WM_GETDLGCODE) & DLGC_UNDEFPUSHBUTTON);
    m_push.SetFocus();
    for (const WORD nKey : {VK_SPACE, VK_RETURN})
        EXPECT_EQ(Press(nKey), kPushClick);
    m_push.SendMessage(WM_KEYDOWN, VK_F1);
    m_push.SetKbdSensitive(FALSE);
    m_push.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON);
    EXPECT_EQ(Press(VK_RETURN), "told 1003; dialog 1003; ") << "the dialog takes it";
    m_push.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(m_room.Take(), kPushClick) << "of Enter alone";

    for (const auto& [bShift, pNow, pBefore] :
         {std::tuple(false, &m_other, &m_push), {true, &m_push, &m_other}})
    {
        owtest::Press(VK_TAB, bShift);
        EXPECT_TRUE(owtest::PumpUntil([&, pButton = pNow] { return ::GetFocus() == pButton->m_hWnd; }));
        EXPECT_TRUE(pNow->GetDefault() && !pBefore->GetDefault() && !m_ok.GetDefault());
        EXPECT_EQ(pNow->GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
    }
}

TEST_F(ButtonInput, HoverIsForFlatButtonsUnderAFreeMouseAndEndsWithWhatTakesItAway)
{
    const std::tuple<UINT, WPARAM, bool> messages[] = {
        // and whether they end it
        {WM_KILLFOCUS, 0, true},  {WM_CANCELMODE, 0, true},      {WM_ACTIVATE, WA_INACTIVE, true},
        {WM_ENABLE, FALSE, true}, {WM_MOUSELEAVE, 0, true},      {WM_ACTIVATE, WA_ACTIVE, false},
        {WM_ENABLE, TRUE, false}, {WM_MOUSEMOVE, 0, false},      {WM_ACTIVATE, WA_CLICKACTIVE, false},
        {WM_MOUSEMOVE, 0, false}, {WM_CAPTURECHANGED, 0, false}, {WM_MOUSEMOVE, MK_LBUTTON, false}};
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
    m_push.SubclassWindow(m_push.UnsubclassWindow());
    EXPECT_FALSE(m_push.m_bMouseOnButton) << "what a former window was at its end is over";
    ::SetForegroundWindow(::GetDesktopWindow());
    ASSERT_TRUE(owtest::PumpUntil([] { return ::GetActiveWindow() == nullptr; }));
    m_push.SetAlwaysTrack(FALSE);
    owtest::MoveTo(m_ok, CPoint(10, 10));
    EXPECT_TRUE(HoverBecomes(m_ok, true));
    owtest::MoveTo(m_push, CPoint(12, 10));
    EXPECT_TRUE(HoverBecomes(m_ok, false) && !m_push.m_bMouseOnButton) << "the mouse has left";
    owtest::Activate(m_room);
    owtest::MoveTo(m_push, CPoint(10, 10));
    EXPECT_TRUE(HoverBecomes(m_push, true));
}

TEST_F(ButtonInput, AHoldSendsAnEvenNumberOfCommandsUntilTheMouseIsLetGoOrTheButtonCannotBeUsed)
{
    m_push.SetAutoRepeat(2, 20);
    EXPECT_EQ(Click(m_push), kPushClick) << "an ordinary click";
    m_push.SetAutoRepeat(1, 20);
    EXPECT_EQ(Click(m_push), "") << "the release waits already";
    m_push.SetFlat(FALSE);
    EXPECT_EQ(CommandsOfAHold(1), 2) << "one cycle";
    EXPECT_EQ(CommandsOfAHold(5), 6);
    EXPECT_EQ(CommandsOfAHold(6), 6);
    EXPECT_EQ(CommandsOfAHold(3, [] { ::ReleaseCapture(); }), 4);
    m_push.SetFlat(TRUE);
    EXPECT_EQ(CommandsOfAHold(3, [] { SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE); }), 4);

    owtest::MoveTo(m_push, CPoint(10, 10));
    m_room.then = [&] { m_push.SendMessage(WM_MOUSELEAVE), m_push.PostMessage(WM_LBUTTONUP); };
    m_push.SendMessage(WM_LBUTTONDOWN);
    EXPECT_TRUE(m_push.m_bMouseOnButton) << "a hold ends with a look at where the mouse is";

    constexpr int kNever = 100;
    EXPECT_EQ(CommandsOfAHold(kNever, [&] { m_push.EnableWindow(FALSE); }), 2)
        << "an even number all the same";
    m_push.EnableWindow();
    EXPECT_EQ(CommandsOfAHold(kNever, [&] { m_push.ShowWindow(SW_HIDE); }), 2);
    m_push.ShowWindow(SW_SHOW);
    EXPECT_EQ(CommandsOfAHold(kNever, [&] { m_push.DestroyWindow(); }), 1);
}

TEST_F(ButtonInput, TheTooltipShowsOnceItHasATextAndTheCursorIsTheOneThatItWasGiven)
{
    auto& tip = m_push.m_toolTip;
    MSG msg{m_push, WM_NULL, 0, 0, 0, {}};
    m_push.PreTranslateMessage(&msg);
    m_push.ActivateTooltip(TRUE); // there is no text
    m_push.SetTooltipText(_T("first"), FALSE);
    m_push.SetTooltipText(IDS_TEXT);
    m_push.SetTooltipText(31999); // no such string
    m_push.SetTooltipText(nullptr);
    CString strText;
    tip.GetText(strText, &m_push, 1);
    EXPECT_TRUE(strText == L"From the resources" && tip.GetToolCount() == 1);
    EXPECT_EQ(tip.SendMessage(TTM_GETMAXTIPWIDTH), 400);
    EXPECT_EQ(m_push.EnableBalloonTooltip(), 0u);
    EXPECT_FALSE(tip.GetStyle() & TTS_BALLOON) << "kept: balloons have no effect";
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
        EXPECT_TRUE(showsArrow());
        m_push.SetBtnCursor(IDC_CROSSHAIR);
        EXPECT_EQ(m_push.SetBtnCursor(IDC_CROSSHAIR), 0u);
        EXPECT_FALSE(showsArrow());
        EXPECT_EQ(m_push.SetBtnCursor(nId), result) << "and the former cursor is gone";
    }
    EXPECT_TRUE(showsArrow());
    EXPECT_EQ(owtest::CountHandles(), before);
}
