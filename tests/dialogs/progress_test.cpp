// The progress box: Cancel, the messages that it takes and leaves, the pixels of its bar, work without a box.

#include "BoxParts.h"

#include <dialogs/ProgressCtrlEx.h>

namespace
{
const wchar_t* const kTitle = L"Calculation";

struct PlainProgress : ::testing::Test
{
    static CWnd* Box() { return CWnd::FromHandlePermanent(::FindWindow(L"#32770", kTitle)); }
    static CWnd& Cancel() { return *Box()->GetDlgItem(IDCANCEL); }
    static CProgressCtrlEx& Bar() { return *static_cast<CProgressCtrlEx*>(Box()->GetDlgItem(10152)); }
    static bool IsWaiting(HWND window)
    {
        MSG msg;
        return ::PeekMessage(&msg, window, WM_APP, WM_APP, PM_NOREMOVE) != FALSE;
    }
};

/// A box that may be cancelled, in front, for the work of a window.
struct Progress : PlainProgress
{
    void SetUp() override
    {
        ASSERT_TRUE(owtest::Activate(m_work));
        m_progress.emplace(kTitle, m_work, true);
        ASSERT_TRUE(WorkUntil([] { return ::GetActiveWindow() == Box()->m_hWnd; }));
    }
    /// Works, with nothing but Update to take messages, until the condition holds; false if it never does.
    bool WorkUntil(const std::function<bool()>& condition)
    {
        const ULONGLONG deadline = ::GetTickCount64() + 20000;
        while (!condition() && ::GetTickCount64() < deadline)
            m_answer = m_progress->Update(m_done++ / 1000);
        return condition();
    }
    /// Asks for the end by a key or the mouse, works until the question stands, and looks at it. False if none comes.
    bool Ask(WORD key, const std::function<void(CWnd&)>& look)
    {
        owtest::ModalVisit visit(
            [&](CWnd& question)
            {
                EXPECT_EQ(TextsOf(question, {kMessage}), L"Calculation$$|Prekidanje procesa?");
                look(question);
            });
        key ? owtest::QueueKey(key) : owtest::QueueClick(Cancel());
        return WorkUntil([&] { return visit.Count() == 1; });
    }

    OwnerWindow m_work;
    std::optional<CSingleThreadProgress> m_progress;
    int m_done = 0;
    bool m_answer = true; ///< of the last Update
};
constexpr WORD kClick = 0;
} // namespace

TEST_F(Progress, MouseAndKeysAskAndARefusalLetsTheWorkGoOn)
{
    m_work.EnableWindow(FALSE);
    for (const WORD key : {kClick, WORD{VK_ESCAPE}, WORD{VK_RETURN}})
    {
        EXPECT_TRUE(Ask(key, PressEscape) && m_answer) << key;
        EXPECT_FALSE(m_work.IsWindowEnabled()) << "as it was";
    }
}

TEST_F(Progress, TheFirstAgreementCountsForGood)
{
    const auto agree = [&](CWnd&)
    {
        EXPECT_FALSE(m_work.IsWindowEnabled()) << "a click that has waited must not begin the work again";
        owtest::ModalVisit another([](CWnd&) {});
        Box()->SendMessage(WM_CLOSE);
        EXPECT_EQ(another.Count(), 0) << "one question at a time";
        owtest::Press(VK_RETURN);
    };
    EXPECT_TRUE(Ask(kClick, agree));
    EXPECT_TRUE(m_work.IsWindowEnabled());
    EXPECT_FALSE(m_answer) << "the very call in which the user agreed";
    EXPECT_TRUE(Box()->IsWindowVisible());

    owtest::ModalVisit second([](CWnd&) {});
    owtest::QueueClick(Cancel());
    EXPECT_FALSE(m_progress->Update(1) || m_progress->DispatchPendingWindowMessages());
    EXPECT_EQ(second.Count(), 0);
    Box()->DestroyWindow();
    EXPECT_FALSE(m_progress->Update(100)) << "also when the box is gone";
}

TEST_F(Progress, TheBoxMayGoWhileTheQuestionStands)
{
    EXPECT_TRUE(Ask(VK_ESCAPE, [](CWnd&) { Box()->DestroyWindow(); }));
    EXPECT_TRUE(m_answer && m_work.IsWindowEnabled() && m_progress->Update(50));
    EXPECT_EQ(Box(), nullptr);
}

TEST_F(Progress, TakesItsOwnMessagesAndLeavesAllOthersInTheQueue)
{
    for (HWND window : {m_work.m_hWnd, Box()->m_hWnd, Cancel().m_hWnd})
        ::PostMessage(window, WM_APP, 0, 0);
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP, 0, 0);
    Box()->PostMessage(DM_SETDEFID, 77);
    EXPECT_TRUE(m_progress->DispatchPendingWindowMessages());
    EXPECT_EQ(LOWORD(Box()->SendMessage(DM_GETDEFID)), 77) << "and lets them be worked on";
    EXPECT_FALSE(IsWaiting(*Box()) || IsWaiting(Cancel())) << "a control is part of the box";
    EXPECT_TRUE(IsWaiting(m_work) && IsWaiting(reinterpret_cast<HWND>(-1))) << "the thread's, too";
    owtest::Pump();

    ::PostQuitMessage(7); // comes with every filter, and is not to be lost
    EXPECT_TRUE(m_progress->Update(50) && m_progress->Update(60));
    MSG msg{};
    EXPECT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 7u);
}

TEST_F(Progress, SpeaksTheUsersLanguageAndStandsOverItsParent)
{
    const owtest::OtherText other("Cancel", "Stop");
    m_work.SetWindowPos(nullptr, -300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CRect area, parent, box;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    m_work.GetWindowRect(parent);
    for (HWND given : {m_work.m_hWnd, HWND(nullptr), reinterpret_cast<HWND>(0x12340)})
    {
        m_progress.emplace(kTitle, given, true);
        Box()->GetWindowRect(box);
        const CPoint off = box.CenterPoint() - (given == m_work.m_hWnd ? parent : area).CenterPoint();
        EXPECT_LE(std::max(std::abs(off.x), std::abs(off.y)), given == m_work.m_hWnd ? 0 : 1);
        EXPECT_EQ(Box()->GetWindow(GW_OWNER), nullptr) << "not the parent's, which may go";
        EXPECT_EQ(TextOf(Cancel()), L"Stop");
        EXPECT_TRUE(given == m_work.m_hWnd || CountColoured(*Box(), IDCANCEL) > 20);
    }
}

TEST_F(PlainProgress, TakesNoMessagesAndCannotBeCancelled)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    EXPECT_FALSE(Box()->GetUpdateRect(nullptr)) << "painted, as it has no other chance";
    EXPECT_EQ(Box()->GetDlgItem(IDCANCEL), nullptr);
    Box()->PostMessage(WM_APP);
    EXPECT_TRUE(progress.Update(10));
    EXPECT_TRUE(IsWaiting(*Box()));

    owtest::ModalVisit visit([](CWnd&) {});
    ASSERT_TRUE(owtest::Activate(*Box())); // a loop of the work's own
    owtest::Press(VK_ESCAPE);
    owtest::Press(VK_RETURN);
    EXPECT_TRUE(Box()->IsWindowVisible()) << "no key closes the box under the work";
    EXPECT_TRUE(progress.DispatchPendingWindowMessages());
    EXPECT_EQ(visit.Count(), 0);
}

TEST_F(PlainProgress, IsPaintedForEachStepAndAtOnce)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    const int cases[][4] = {
        {10, 10, 19, 20}, {-10, 10, 19, 20}, {0, 10, 10, 11}, {INT_MIN, 0, 9, INT_MAX}, {-1, 0, 0, INT_MIN}};
    const auto paints = [&](int pos) // else a dot that was put on the bar is still there
    {
        CClientDC dc(&Bar());
        dc.SetPixel(0, 0, RGB(255, 0, 0));
        progress.Update(pos);
        return dc.GetPixel(0, 0) != RGB(255, 0, 0);
    };
    EXPECT_TRUE(!paints(1) && paints(2)) << "2 at first";
    for (auto [step, first, within, beyond] : cases)
    {
        progress.SetStep(step);
        progress.Update(first);
        EXPECT_TRUE(!paints(within) && paints(beyond)) << step;
    }
}

TEST_F(PlainProgress, ShowsTheDonePartAndTheTextInTwoColoursInBothDirections)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    progress.SetStep(1);
    Box()->SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    const COLORREF face = ::GetSysColor(COLOR_3DFACE), dark = 0x404040;
    // Width and height, whether vertical, position: beyond the range, too. Some have no room for a
    // text or a bar, the last two nearly enough.
    const int cases[][4] = {{201, 24, 0, 0},  {201, 24, 0, 50}, {200, 24, 0, -5}, {200, 24, 0, 150},
                            {81, 100, 1, 50}, {20, 41, 1, 51},  {5, 40, 1, 53},   {40, 5, 0, 54},
                            {0, 0, 0, 55},    {26, 14, 0, 56},  {30, 17, 0, 57}};
    for (auto [cx, cy, vertical, pos] : cases)
    {
        Bar().SetVertical(vertical);
        Bar().SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER);
        pos == 0 ? Bar().UpdateWindow() : void(progress.Update(pos)); // it begins with 0
        EXPECT_FALSE(Bar().GetUpdateRect(nullptr));
        CRect client;
        Bar().GetClientRect(client);
        const int w = client.right, h = client.bottom, part = std::clamp(pos, 0, 100);
        owtest::Surface seen(w + 1, h + 1, face), wanted(w + 1, h + 1, face);
        seen.dc().BitBlt(0, 0, w, h, std::make_unique<CClientDC>(&Bar()).get(), 0, 0, SRCCOPY);
        CRect done(2, 2, w - 2, h - 2), rest = done;
        if (vertical)
            done.top = rest.bottom = h - 2 - (h - 4) * part / 100;
        else
            done.right = rest.left = (w - 4) * part / 100 + 2;
        if (w <= 4 || h <= 4)
            done = rest = CRect();
        CDC& dc = wanted.dc();
        dc.SelectObject(Box()->GetFont());
        const CString text = (std::to_wstring(pos) + L" %").c_str();
        const CSize size = dc.GetTextExtent(text);
        const int x = size.cx < w - 4 ? (w - 2 - size.cx - 2) / 2 + 2 : 2;
        const int y = size.cy < h - 4 ? (h - 2 - size.cy - 2) / 2 + 2 : 2;
        dc.FillSolidRect(done, dark);
        dc.SetBkMode(TRANSPARENT);
        for (const auto& [area, color] : {std::pair{done, face}, {rest, dark}})
        {
            dc.SetTextColor(color);
            dc.ExtTextOut(x, y, ETO_CLIPPED, area, text, nullptr);
        }
        EXPECT_TRUE(seen == wanted) << pos;
    }
}

TEST_F(PlainProgress, LeavesNothingBehindHoweverTheWorkEnds)
{
    const auto work = [](int round) // cancellable, with its box destroyed, failing
    {
        CSingleThreadProgress progress(kTitle, nullptr, round & 1);
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0) << "only while something is opened or closed";
        if (round & 2)
            Box()->DestroyWindow();
        if (round & 4)
            throw 1;
        EXPECT_TRUE(progress.Update(60) && progress.DispatchPendingWindowMessages());
        return Box() != nullptr;
    };
    const auto refuse = [](int code, WPARAM, LPARAM) -> LRESULT { return code == HCBT_CREATEWND; };
    const HHOOK hook = ::SetWindowsHookEx(WH_CBT, +refuse, nullptr, ::GetCurrentThreadId());
    EXPECT_FALSE(work(1)) << "a box that cannot be made does not keep the work from going on";
    ::UnhookWindowsHookEx(hook);

    owtest::HandleCount before;
    size_t heap = 0;
    for (int round = 0; round < 88; ++round)
    {
        if (round & 4)
            EXPECT_THROW(work(round), int);
        else
            EXPECT_EQ(work(round), !(round & 2));
        EXPECT_TRUE(!Box() && acDocManagerPtr()->resourceHandleDepth() == 0);
        AfxGetApp()->OnIdle(1);
        if (round == 7) // what is made once for the process is there now
            before = owtest::CountHandles(), heap = owtest::CountHeapBytes();
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LT(owtest::CountHeapBytes(), heap + 80 * 100) << "less than the dialog of each";
}
