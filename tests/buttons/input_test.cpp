// What a user does to buttons, with real mouse and keyboard.

#include "Handles.h"
#include "ImportStandIn.h"
#include "Room.h"

#include <shellapi.h>

namespace
{
class ButtonInput : public InRoom
{
protected:
    ButtonInput()
    {
        constexpr DWORD kDefault = BS_DEFPUSHBUTTON, kCheck = BS_CHECKBOX, kAuto = BS_AUTOCHECKBOX;
        m_room.controls = {{&m_push}, {&m_other}, {&m_ok, kDefault}, {&m_check, kCheck}, {&m_ext, kAuto}};
    }
    bool HoverBecomes(const Open<>& button, bool bHover)
    {
        return owtest::PumpUntil([&] { return button.m_bMouseOnButton == bHover; });
    }
    /// Moves the mouse over a button; whether the button knows it.
    bool Hover(Open<>& button) { return owtest::MoveTo(button, CPoint(10, 10)), HoverBecomes(button, true); }
    Calls CallsOf(const std::function<void()>& action) { return action(), m_room.Take(); }

    Open<> m_push{&m_room}, m_other{&m_room}, m_ok{&m_room}, m_check{&m_room};
    CExtButton m_ext{&m_room};
    const Calls m_pushClick{"told 1001", "dialog 1001"};
};
} // namespace

TEST_F(ButtonInput, AClickTellsTheHandlerAndThenTheDialog)
{
    for (int i = 0; i < 4; ++i) // fast ones
    {
        owtest::Click(m_push);
        EXPECT_EQ(m_room.Take(), m_pushClick);
    }
    EXPECT_EQ(::GetFocus(), m_push.m_hWnd);
    m_room.behind = 0;
    m_push.RedrawWindow();
    EXPECT_EQ(m_room.behind, 1) << "the parent paints behind a themed button";
    for (const UINT message : {WM_LBUTTONDBLCLK, WM_LBUTTONUP}) // not by way of the message loop
        m_push.SendMessage(message, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(m_room.Take(), m_pushClick);

    owtest::Click(m_ext);
    EXPECT_EQ(m_ext.GetCheck(), 1) << "the system's own check box";
    EXPECT_EQ(m_room.Take(), (Calls{"told 1005", "dialog 1005"}));
    m_room.then = [&] { m_room.DestroyWindow(); }; // which then hears no more
    for (const int nId : {1001, 1005})
    {
        owtest::Click(*m_room.GetDlgItem(nId));
        EXPECT_EQ(m_room.Take(), Calls{"told " + std::to_string(nId)});
        m_room.Open();
    }
    m_ext.SetNotificationHandler(nullptr);
    owtest::Click(m_ext);
    EXPECT_EQ(m_room.Take(), Calls{"dialog 1005"});
    std::vector<int> seen;
    m_room.then = [&] { seen.push_back(m_check.GetCheck()); };
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(Repaints(m_check, [&] { m_check.SendMessage(BM_CLICK); }));
    EXPECT_EQ(seen, (std::vector<int>{1, 0, 1})) << "a check box toggles before it tells";
}

static std::vector<std::wstring> s_opened; ///< by the stand-in for the shell

static BOOL WINAPI NoteAddress(SHELLEXECUTEINFOW* pInfo)
{
    EXPECT_TRUE(pInfo->cbSize == sizeof(*pInfo) && pInfo->nShow == SW_SHOWMAXIMIZED);
    EXPECT_EQ(pInfo->fMask, ULONG{SEE_MASK_FLAG_NO_UI}) << "no box where it cannot be opened";
    s_opened.push_back(std::wstring(pInfo->lpVerb) + L' ' + pInfo->lpFile);
    return FALSE;
}

TEST_F(ButtonInput, AClickOpensTheAddressOfAPushButtonAndNeverThatOfACheckBox)
{
    const owtest::ImportStandIn noShell(L"DialogControlsOW.dll", "ShellExecuteExW", &NoteAddress);
    const std::wstring tooLong(300, L'?');
    for (const LPCWSTR pszUrl : {L"http://x", tooLong.c_str(), LPCWSTR(nullptr)})
        for (Open<>* pButton : {&m_push, &m_check})
        {
            pButton->SetURL(pszUrl);
            owtest::Click(*pButton);
            EXPECT_EQ(m_room.Take().size(), 2u) << "whatever comes of it";
        }
    EXPECT_EQ(s_opened, (std::vector<std::wstring>{L"open http://x", L"open " + tooLong.substr(0, 260)}))
        << "kept: a text that fills the field has no terminator there";
}

TEST_F(ButtonInput, SpaceAndEnterClickAtOnceAndTheDefaultButtonMovesWithTheFocus)
{
    EXPECT_TRUE(m_ok.GetDefault());
    EXPECT_TRUE(m_ok.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    EXPECT_TRUE(m_push.SendMessage(WM_GETDLGCODE) & DLGC_UNDEFPUSHBUTTON);
    m_push.SetFocus();
    for (const WORD nKey : {VK_SPACE, VK_RETURN})
        EXPECT_EQ(CallsOf([&] { owtest::Press(nKey); }), m_pushClick);
    EXPECT_EQ(CallsOf([&] { m_push.SendMessage(WM_KEYDOWN, VK_F1); }), Calls{});
    m_push.SetKbdSensitive(FALSE);
    m_push.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON);
    EXPECT_EQ(CallsOf([&] { owtest::Press(VK_RETURN); }), (Calls{"told 1003", "dialog 1003"}))
        << "the dialog takes it";
    EXPECT_EQ(CallsOf([&] { m_push.SendMessage(WM_KEYDOWN, VK_RETURN); }), m_pushClick);

    for (const auto& [bShift, pNow, pBefore] :
         {std::tuple(false, &m_other, &m_push), {true, &m_push, &m_other}})
    {
        owtest::Press(VK_TAB, bShift);
        EXPECT_TRUE(owtest::PumpUntil([&, pButton = pNow] { return ::GetFocus() == pButton->m_hWnd; }));
        EXPECT_TRUE(pNow->GetDefault());
        EXPECT_FALSE(pBefore->GetDefault() || m_ok.GetDefault());
        EXPECT_EQ(pNow->GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
    }
}

TEST_F(ButtonInput, HoverIsForFlatButtonsUnderAFreeMouseAndEndsWithWhatTakesItAway)
{
    using Row = std::tuple<UINT, WPARAM, bool>; // message, its parameter, and whether the hover stays
    // clang-format off
    for (const auto& [message, wParam, bStays] : {
             Row{WM_KILLFOCUS, 0, false}, Row{WM_CANCELMODE, 0, false}, Row{WM_ACTIVATE, WA_INACTIVE, false},
             Row{WM_ENABLE, FALSE, false}, Row{WM_MOUSELEAVE, 0, false}, Row{WM_ACTIVATE, WA_ACTIVE, true},
             Row{WM_ACTIVATE, WA_CLICKACTIVE, true}, Row{WM_ENABLE, TRUE, true}, Row{WM_CAPTURECHANGED, 0, true}})
    // clang-format on
    {
        ASSERT_TRUE(Hover(m_push));
        m_push.SetCapture();
        const bool bRepaints = Repaints(m_push, [&, m = message, w = wParam] { m_push.SendMessage(m, w); });
        EXPECT_EQ(m_push.m_bMouseOnButton, bStays) << message;
        EXPECT_EQ(bRepaints, !bStays || message == WM_CAPTURECHANGED) << message;
        EXPECT_EQ(::GetCapture() == nullptr, message == WM_CAPTURECHANGED || message == WM_CANCELMODE);
        ::ReleaseCapture();
        owtest::MoveTo(m_room, CPoint(1, 1));
        EXPECT_TRUE(HoverBecomes(m_push, false)) << "the mouse has left";
    }
    ASSERT_TRUE(Hover(m_push));
    const HWND hButton = m_push.UnsubclassWindow();
    m_push.SubclassWindow(hButton);
    EXPECT_FALSE(m_push.m_bMouseOnButton) << "what a former window was at its end is over";

    const auto move = [&](WPARAM buttons, int x)
    { return Repaints(m_other, [&] { m_other.SendMessage(WM_MOUSEMOVE, buttons, MAKELPARAM(x, 10)); }); };
    // Flat, mouse buttons, place, and whether it hovers then.
    using Move = std::tuple<bool, WPARAM, int, bool>;
    for (const auto& [bFlat, buttons, x, bHovers] :
         {Move{true, MK_LBUTTON, 10, false}, Move{false, 0, 10, false}, Move{true, 0, 10, true},
          Move{true, 0, -30, false}})
    {
        m_other.SetFlat(bFlat);
        const BOOL bBefore = m_other.m_bMouseOnButton;
        EXPECT_EQ(move(buttons, x), bBefore != bHovers);
        EXPECT_EQ(m_other.m_bMouseOnButton, bHovers);
        EXPECT_FALSE(move(buttons, x)) << "once";
    }
    ::SetForegroundWindow(::GetDesktopWindow());
    ASSERT_TRUE(owtest::PumpUntil([] { return ::GetActiveWindow() == nullptr; }));
    m_push.SetAlwaysTrack(FALSE);
    EXPECT_TRUE(Hover(m_other));
    owtest::MoveTo(m_push, CPoint(12, 10));
    EXPECT_TRUE(HoverBecomes(m_other, false));
    EXPECT_FALSE(m_push.m_bMouseOnButton);
    owtest::Activate(m_room);
    EXPECT_TRUE(Hover(m_push));
}

static void SendMouse(DWORD dwFlags)
{
    constexpr LONG kCorner = 0xFFF0; // the far one of the screen
    INPUT input{INPUT_MOUSE, {{kCorner, kCorner, 0, dwFlags, 0, 0}}};
    ::SendInput(1, &input, sizeof(input));
}

class Repeating : public ButtonInput
{
protected:
    /// Holds the button until so many commands have been seen; how many there were in the end.
    int CommandsOfAHold(
        int nHeldFor, const std::function<void()>& onClick = [] {})
    {
        m_push.SetAutoRepeat(1, 20);
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
};

TEST_F(Repeating, SendsAnEvenNumberOfCommandsUntilTheMouseIsLetGoOrTheButtonCannotBeUsed)
{
    m_push.SetAutoRepeat(2, 20);
    EXPECT_EQ(CallsOf([&] { owtest::Click(m_push); }), m_pushClick) << "an ordinary click";
    m_push.SetAutoRepeat(1, 20);
    EXPECT_EQ(CallsOf([&] { owtest::Click(m_push); }), Calls{}) << "the release waits already";
    m_push.SetFlat(FALSE);
    EXPECT_EQ(CommandsOfAHold(1), 2) << "one cycle";
    EXPECT_EQ(CommandsOfAHold(5), 6);
    EXPECT_EQ(CommandsOfAHold(6), 6);
    EXPECT_EQ(CommandsOfAHold(3, [] { ::ReleaseCapture(); }), 4);
    m_push.SetFlat(TRUE);
    EXPECT_EQ(CommandsOfAHold(3, [] { SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE); }), 4);

    owtest::MoveTo(m_push, CPoint(10, 10));
    m_room.then = [&]
    {
        m_push.SendMessage(WM_MOUSELEAVE);
        m_push.PostMessage(WM_LBUTTONUP);
    };
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
    MSG msg{m_push, WM_NULL, 0, 0, 0, {}};
    m_push.PreTranslateMessage(&msg);
    m_push.ActivateTooltip(TRUE); // there is no text
    m_push.SetTooltipText(_T("first"), FALSE);
    m_push.SetTooltipText(IDS_TEXT);
    m_push.SetTooltipText(31999); // no such string
    m_push.SetTooltipText(nullptr);
    EXPECT_EQ(m_push.m_toolTip.GetToolCount(), 1);
    EXPECT_EQ(m_push.m_toolTip.SendMessage(TTM_GETMAXTIPWIDTH), 400);
    CString strText;
    m_push.m_toolTip.GetText(strText, &m_push, 1);
    EXPECT_EQ(strText, _T("From the resources"));
    EXPECT_EQ(m_push.EnableBalloonTooltip(), 0u);
    EXPECT_FALSE(m_push.m_toolTip.GetStyle() & TTS_BALLOON) << "kept: balloons have no effect";

    owtest::MoveTo(m_push, CPoint(20, 10));
    owtest::MoveTo(m_push, CPoint(22, 10));
    EXPECT_TRUE(owtest::PumpUntil([&] { return m_push.m_toolTip.IsWindowVisible() != FALSE; }));
    m_push.ActivateTooltip(FALSE);
    EXPECT_FALSE(m_push.m_toolTip.IsWindowVisible());

    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    const auto showsArrow = [&]
    {
        ::SetCursor(nullptr);
        m_push.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_push.m_hWnd),
                           MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        EXPECT_NE(::GetCursor(), nullptr);
        return ::GetCursor() == hArrow;
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
