// Message hooks: the order of the line, leaving it, the end of the window, and messages inside messages.

#include <MsgHook.h>

#include "Testing.h"

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
    LONG_PTR Procedure() const { return ::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC); }
};

/// A hook: logs its letter for a probe, does what the test wants, passes the probe on, and may end then.
struct CProbeHook : CMsgHook
{
    explicit CProbeHook(char letter) : m_letter(letter) {}
    using CMsgHook::Default;
    std::function<void()> m_action = [] {};
    bool m_goes = false;
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
    CProbeHook m_hooks[3] = {CProbeHook('a'), CProbeHook('b'), CProbeHook('c')};
    CProbeHook &a = m_hooks[0], &b = m_hooks[1];
};
} // namespace

TEST_F(MsgHook, HooksJoinAndLeaveInAnyOrderAlsoWhileAMessageIsOnItsWay)
{
    const LONG_PTR original = m_window.Procedure();
    std::mt19937 random(1);
    std::string line; // who is hooked, the latest first
    for (int step = 0; step < 400; ++step)
    {
        CProbeHook &actor = m_hooks[random() % 3], &target = m_hooks[random() % 3];
        const auto toggle = [&, isHooked = target.IsHooked()]
        { isHooked ? target.Unhook() : void(target.HookWindow(&m_window)); };
        std::string expected = line + 'w', after = line;
        if (target.IsHooked())
            std::erase(after, target.m_letter);
        else
            after.insert(0, 1, target.m_letter);
        if (actor.IsHooked()) // in the middle of the message, which one that joins does not see any more
        {
            actor.m_action = toggle;
            const size_t leaves = expected.find(target.m_letter);
            if (leaves != std::string::npos && leaves > expected.find(actor.m_letter))
                expected.erase(leaves, 1);
        }
        else
        {
            toggle();
            expected = after + 'w';
        }
        ASSERT_EQ(Probe(), expected) << actor.m_letter << target.m_letter << " of " << line;
        EXPECT_EQ(m_answer, kWindowsAnswer);
        actor.m_action = [] {};
        line = after;
        ASSERT_EQ(Probe(), line + 'w');
        ASSERT_EQ(m_window.Procedure() == original, line.empty());
    }
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
    EXPECT_EQ(a.Default(), 0) << "there is no current message";

    m_window.DestroyWindow();
    a.Unhook(); // has nothing left to do
    ASSERT_TRUE(m_window.Open());
    HookBoth();
    auto* const going = new CProbeHook('g');
    going->m_goes = true;
    going->HookWindow(&m_window);
    EXPECT_EQ(Probe(), "gbaw");
    EXPECT_EQ(m_answer, kWindowsAnswer);
    EXPECT_EQ(Probe(), "baw");
    b.m_action = [&] { m_window.DestroyWindow(); };
    EXPECT_EQ(Probe(), "b") << "the window may die inside a hook";
    EXPECT_EQ(m_answer, 0);
    EXPECT_FALSE(a.IsHooked() || b.IsHooked());
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
        LRESULT WindowProc(UINT message, WPARAM, LPARAM) override
        {
            if (message != WM_SETTEXT || IsWorkingOn(WM_SETTEXT))
                return Default();
            m_pWnd->SetWindowText(L"GREDA");
            return TRUE;
        }
    } shout;
    ASSERT_TRUE(shout.HookWindow(&m_window));
    m_window.SetWindowText(L"greda");
    EXPECT_EQ(owtest::TextOf(m_window), L"GREDA");
}

TEST_F(MsgHook, ForeignSubclassingOnTopIsKept)
{
    static LONG_PTR s_below;
    const LONG_PTR original = m_window.Procedure();
    a.HookWindow(&m_window);
    s_below = m_window.Procedure();
    const WNDPROC foreign = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == kProbe)
            s_log += 'f';
        return ::CallWindowProcW(reinterpret_cast<WNDPROC>(s_below), window, message, wParam, lParam);
    };
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(foreign));
    a.Unhook();
    EXPECT_EQ(Probe(), "fw");
    EXPECT_TRUE(b.HookWindow(&m_window));
    EXPECT_EQ(Probe(), "fbw");
    b.Unhook();
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, s_below);
    EXPECT_EQ(Probe(), "w");
    EXPECT_EQ(m_window.Procedure(), original) << "the hooks' procedure leaves when it is on top again";
}
