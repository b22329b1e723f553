// Message hooks: the order of the line, leaving it, the end of the window, and messages inside messages.

#include <MsgHook.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <string>

namespace
{
constexpr UINT c_probe = WM_APP + 1;
constexpr LRESULT c_windowsAnswer = 77;

std::string s_log;

/// The window: logs a 'w' for a probe.
class CProbedWnd : public CWnd
{
public:
    ~CProbedWnd() override { DestroyWindow(); }

    BOOL Open() { return CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != c_probe)
            return CWnd::WindowProc(message, wParam, lParam);
        s_log += 'w';
        return c_windowsAnswer;
    }
};

/// A hook: logs its letter for a probe, does what the test wants, and passes the probe on.
class CProbeHook : public CMsgHook
{
public:
    explicit CProbeHook(char letter) : m_letter(letter) {}
    using CMsgHook::Default;

    std::function<void()> m_action;

protected:
    LRESULT WindowProc(UINT message, WPARAM, LPARAM) override
    {
        if (message == c_probe)
        {
            s_log += m_letter;
            if (m_action)
                m_action();
        }
        return Default();
    }

private:
    char m_letter;
};

WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
}

struct MsgHook : testing::Test
{
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }

    void HookBoth()
    {
        ASSERT_TRUE(a.HookWindow(&m_window));
        ASSERT_TRUE(b.HookWindow(&m_window));
    }

    /// Sends a probe and answers who saw it, in order.
    std::string Probe()
    {
        s_log.clear();
        m_answer = m_window.SendMessage(c_probe);
        return s_log;
    }

    CProbedWnd m_window;
    LRESULT m_answer = 0;
    CProbeHook a{'a'};
    CProbeHook b{'b'};
};
} // namespace

TEST_F(MsgHook, LastHookIsAskedFirst)
{
    EXPECT_FALSE(a.IsHooked());
    HookBoth();
    EXPECT_TRUE(a.IsHooked());
    EXPECT_EQ(a.GetHookedWindow(), &m_window);
    EXPECT_EQ(Probe(), "baw");
    EXPECT_EQ(m_answer, c_windowsAnswer);
}

TEST_F(MsgHook, LeavesInAnyOrder)
{
    const WNDPROC original = ProcedureOf(m_window);
    std::string order = "abc";
    do
    {
        std::array<std::unique_ptr<CProbeHook>, 3> hooks;
        std::string expected = "w";
        for (size_t i = 0; i < hooks.size(); ++i)
        {
            hooks[i] = std::make_unique<CProbeHook>("abc"[i]);
            ASSERT_TRUE(hooks[i]->HookWindow(&m_window));
            expected.insert(0, 1, "abc"[i]);
        }
        for (char leaving : order)
        {
            EXPECT_EQ(Probe(), expected);
            hooks[leaving - 'a'].reset();
            std::erase(expected, leaving);
        }
        EXPECT_EQ(Probe(), "w");
        EXPECT_EQ(ProcedureOf(m_window), original) << "order " << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(MsgHook, RefusesWhatItCannotHook)
{
    CWnd noWindow;
    EXPECT_FALSE(a.HookWindow(nullptr));
    EXPECT_FALSE(a.HookWindow(&noWindow));
    EXPECT_FALSE(a.IsHooked());
    a.Unhook();

    ASSERT_TRUE(a.HookWindow(&m_window));
    EXPECT_FALSE(a.HookWindow(&m_window)) << "it has a window already";
    EXPECT_EQ(Probe(), "aw");
    EXPECT_EQ(a.Default(), 0) << "there is no current message";
}

TEST_F(MsgHook, WindowMayDieBeforeItsHooks)
{
    HookBoth();
    m_window.DestroyWindow();
    EXPECT_FALSE(a.IsHooked());
    EXPECT_FALSE(b.IsHooked());

    ASSERT_TRUE(m_window.Open()) << "the hook can take another window";
    EXPECT_TRUE(a.HookWindow(&m_window));
    EXPECT_EQ(Probe(), "aw");
}

TEST_F(MsgHook, HooksMayLeaveWhileAMessageIsOnItsWay)
{
    CProbeHook c('c');
    HookBoth();
    c.HookWindow(&m_window);

    c.m_action = [&] { b.Unhook(); };
    EXPECT_EQ(Probe(), "caw") << "one that has not seen the message yet";

    c.m_action = nullptr;
    a.m_action = [&] { c.Unhook(); };
    EXPECT_EQ(Probe(), "caw") << "one that has";
    EXPECT_EQ(Probe(), "aw");

    a.m_action = [&] { a.Unhook(); };
    EXPECT_EQ(Probe(), "aw") << "the hook itself: Default still passes on";
    EXPECT_EQ(m_answer, c_windowsAnswer);
    EXPECT_EQ(Probe(), "w");
}

TEST_F(MsgHook, HookMayDestroyItselfInItsWindowProc)
{
    class CSuicide : public CMsgHook
    {
        LRESULT WindowProc(UINT message, WPARAM, LPARAM) override
        {
            const LRESULT answer = Default();
            if (message == c_probe)
                delete this;
            return answer;
        }
    };
    a.HookWindow(&m_window);
    (new CSuicide)->HookWindow(&m_window);
    EXPECT_EQ(Probe(), "aw");
    EXPECT_EQ(m_answer, c_windowsAnswer);
    EXPECT_EQ(Probe(), "aw");
}

TEST_F(MsgHook, HookThatJoinsSeesTheNextMessage)
{
    a.m_action = [&] { b.HookWindow(&m_window); };
    a.HookWindow(&m_window);
    EXPECT_EQ(Probe(), "aw");
    EXPECT_EQ(Probe(), "baw");
}

TEST_F(MsgHook, WindowMayDieInsideAHook)
{
    HookBoth();
    b.m_action = [&] { m_window.DestroyWindow(); };
    EXPECT_EQ(Probe(), "b");
    EXPECT_EQ(m_answer, 0);
    EXPECT_FALSE(a.IsHooked());
    EXPECT_FALSE(b.IsHooked());
}

TEST_F(MsgHook, MessageInsideAMessageGoesThroughTheWholeLine)
{
    int depth = 0;
    a.m_action = [&]
    {
        if (++depth == 1)
            m_window.SendMessage(c_probe);
    };
    HookBoth();
    EXPECT_EQ(Probe(), "babaww") << "and Default then means the outer one again";
}

TEST_F(MsgHook, HookCanLetItsOwnMessagesGoToTheWindow)
{
    class CShout : public CMsgHook
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
        if (message == c_probe)
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
