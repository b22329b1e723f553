// Message hooks: the order of the line, leaving it, the end of the window, and messages inside messages.

#include <MsgHook.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

namespace
{
constexpr UINT kProbe = WM_APP + 1;
constexpr LRESULT kWindowsAnswer = 77;

std::string s_log;

/// The window: logs a 'w' for a probe.
struct CProbedWnd : CWnd
{
    ~CProbedWnd() override { DestroyWindow(); }
    BOOL Open() { return CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != kProbe)
            return CWnd::WindowProc(message, wParam, lParam);
        s_log += 'w';
        return kWindowsAnswer;
    }
};

/// A hook: logs its letter for a probe, does what the test wants, and passes the probe on.
struct CProbeHook : CMsgHook
{
    explicit CProbeHook(char letter) : m_letter(letter) {}
    using CMsgHook::Default;
    std::function<void()> m_action = [] {};
    bool m_goes = false; ///< ends when the probe has passed
    char m_letter;

    LRESULT WindowProc(UINT message, WPARAM, LPARAM) override
    {
        if (message != kProbe)
            return Default();
        s_log += m_letter;
        m_action();
        const LRESULT answer = Default();
        if (m_goes)
            delete this;
        return answer;
    }
};

WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
}

struct MsgHook : testing::Test
{
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }
    void HookBoth() { ASSERT_TRUE(a.HookWindow(&m_window) && b.HookWindow(&m_window)); }
    /// Sends a probe and answers who saw it, in order.
    std::string Probe()
    {
        s_log.clear();
        m_answer = m_window.SendMessage(kProbe);
        return s_log;
    }

    CProbedWnd m_window;
    LRESULT m_answer = 0;
    CProbeHook a{'a'}, b{'b'};
};
} // namespace

TEST_F(MsgHook, LeavesInAnyOrder)
{
    const WNDPROC original = ProcedureOf(m_window);
    std::string order = "abc";
    do
    {
        CProbeHook hooks[] = {CProbeHook('a'), CProbeHook('b'), CProbeHook('c')};
        for (CProbeHook& hook : hooks)
            ASSERT_TRUE(hook.HookWindow(&m_window));
        std::string expected = "cbaw";
        for (char leaving : order)
        {
            EXPECT_EQ(Probe(), expected);
            hooks[leaving - 'a'].Unhook();
            std::erase(expected, leaving);
        }
        EXPECT_EQ(ProcedureOf(m_window), original) << "order " << order;
        EXPECT_EQ(Probe(), "w");
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(MsgHook, HasOneWindowAtATimeAndOneThatIsThere)
{
    CWnd noWindow;
    EXPECT_FALSE(a.HookWindow(nullptr) || a.HookWindow(&noWindow) || a.IsHooked());
    EXPECT_FALSE(a.HookWindow(CWnd::GetDesktopWindow())) << "of another thread";
    a.Unhook();
    ASSERT_TRUE(a.HookWindow(&m_window));
    EXPECT_EQ(a.GetHookedWindow(), &m_window);
    EXPECT_FALSE(a.HookWindow(&m_window)) << "it has a window already";
    EXPECT_EQ(Probe(), "aw");
    EXPECT_EQ(m_answer, kWindowsAnswer);
    EXPECT_EQ(a.Default(), 0) << "there is no current message";

    m_window.DestroyWindow();
    EXPECT_FALSE(a.IsHooked());
    a.Unhook(); // has nothing left to do
    ASSERT_TRUE(m_window.Open());
    HookBoth();
    EXPECT_EQ(Probe(), "baw") << "it can take another window";
    b.m_action = [&] { m_window.DestroyWindow(); };
    EXPECT_EQ(Probe(), "b") << "the window may die inside a hook";
    EXPECT_EQ(m_answer, 0);
    EXPECT_FALSE(a.IsHooked() || b.IsHooked());
}

TEST_F(MsgHook, HooksMayJoinAndLeaveWhileAMessageIsOnItsWay)
{
    CProbeHook c('c');
    HookBoth();
    b.m_action = [&] { c.HookWindow(&m_window); };
    EXPECT_EQ(Probe(), "baw");
    EXPECT_EQ(Probe(), "cbaw") << "one that joins sees the next message";
    c.m_action = [&] { b.Unhook(); };
    EXPECT_EQ(Probe(), "caw") << "one that has not seen the message yet";
    c.m_action = [] {};
    a.m_action = [&] { c.Unhook(); };
    EXPECT_EQ(Probe(), "caw") << "one that has";
    EXPECT_EQ(Probe(), "aw");
    a.m_action = [&] { a.Unhook(); };
    EXPECT_EQ(Probe(), "aw") << "the hook itself: Default still passes on";
    EXPECT_EQ(m_answer, kWindowsAnswer);
    EXPECT_EQ(Probe(), "w");

    auto* const pGoing = new CProbeHook('g');
    pGoing->m_goes = true;
    pGoing->HookWindow(&m_window);
    EXPECT_EQ(Probe(), "gw");
    EXPECT_EQ(m_answer, kWindowsAnswer);
    EXPECT_EQ(Probe(), "w");
}

TEST_F(MsgHook, AMessageInsideAMessageGoesThroughTheWholeLine)
{
    a.m_action = [&, depth = 0]() mutable
    {
        if (++depth == 1)
            m_window.SendMessage(kProbe);
    };
    HookBoth();
    EXPECT_EQ(Probe(), "babaww") << "and Default then means the outer one again";

    struct CShout : CMsgHook // lets its own message go to the window
    {
        LRESULT WindowProc(UINT message, WPARAM, LPARAM lParam) override
        {
            if (message != WM_SETTEXT || IsWorkingOn(WM_SETTEXT))
                return Default();
            CString text(reinterpret_cast<LPCWSTR>(lParam));
            m_pWnd->SetWindowText(text.MakeUpper());
            return TRUE;
        }
    } shout;
    ASSERT_TRUE(shout.HookWindow(&m_window));
    m_window.SetWindowText(L"greda");
    CString text;
    m_window.GetWindowText(text);
    EXPECT_STREQ(text, L"GREDA");
}

TEST_F(MsgHook, ForeignSubclassingOnTopIsKept)
{
    static WNDPROC s_below;
    const WNDPROC original = ProcedureOf(m_window);
    a.HookWindow(&m_window);

    s_below = ProcedureOf(m_window);
    const WNDPROC foreign = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT
    {
        if (message == kProbe)
            s_log += 'f';
        return ::CallWindowProcW(s_below, window, message, wParam, lParam);
    };
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(foreign));
    a.Unhook();
    EXPECT_EQ(Probe(), "fw");

    EXPECT_TRUE(b.HookWindow(&m_window));
    EXPECT_EQ(Probe(), "fbw");
    b.Unhook();

    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_below));
    EXPECT_EQ(Probe(), "w");
    EXPECT_EQ(ProcedureOf(m_window), original) << "the hooks' procedure leaves when it is on top again";
}
