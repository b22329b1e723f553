// The progress box: Cancel as a user meets it, the messages that it takes and leaves, the pixels of its bar, and what
// happens when it is not there.

#include "BoxParts.h"

#include "Handles.h"
#include "Picture.h"

#include <dialogs/ProgressCtrlEx.h>

#include <acdocman.h>

#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <stdexcept>

namespace
{
constexpr int kBar = 10152;
constexpr COLORREF kDark = 0x404040;
const wchar_t* const kTitle = L"Calculation";

/// The window that the work belongs to; counts what is posted to it.
class WorkWindow : public CWnd
{
public:
    static constexpr UINT kPosted = WM_APP + 1;
    int arrived = 0;

    WorkWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Work", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 301, 200, 402, 301,
                 nullptr, nullptr);
    }
    ~WorkWindow() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        arrived += message == kPosted;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// The open progress box; null if there is none.
CWnd* FindBox()
{
    const HWND box = ::FindWindow(L"#32770", kTitle);
    return box ? CWnd::FromHandlePermanent(box) : nullptr;
}

CProgressCtrlEx& BarOf(CWnd& box)
{
    return *static_cast<CProgressCtrlEx*>(box.GetDlgItem(kBar));
}

CRect WindowRect(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, rect);
    return rect;
}

/// Whether WM_APP waits in the queue for the window.
bool HasPosted(HWND window)
{
    MSG msg;
    return ::PeekMessage(&msg, window, WM_APP, WM_APP, PM_NOREMOVE) != FALSE;
}

/// Counts the paints of a window.
class PaintCounter
{
public:
    explicit PaintCounter(HWND window) : m_window(window)
    {
        s_count = 0;
        s_before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    }
    ~PaintCounter() { ::SetWindowLongPtr(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_before)); }
    int Take() { return std::exchange(s_count, 0); }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        s_count += message == WM_PAINT;
        return ::CallWindowProc(s_before, window, message, wParam, lParam);
    }
    inline static int s_count = 0;
    inline static WNDPROC s_before = nullptr;
    HWND m_window;
};

/// A box that may be cancelled, in front and ready for input.
class Progress : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(owtest::Activate(m_work));
        m_progress.emplace(kTitle, m_work, true);
        m_box = FindBox();
        ASSERT_NE(m_box, nullptr);
        ASSERT_TRUE(WorkUntil([&] { return ::GetActiveWindow() == m_box->m_hWnd; }));
    }
    CWnd& Cancel() { return *m_box->GetDlgItem(IDCANCEL); }

    /// Works, with nothing but Update to take messages, until the condition holds; false if it never does.
    bool WorkUntil(const std::function<bool()>& condition)
    {
        const ULONGLONG deadline = ::GetTickCount64() + 5000;
        while (!condition())
        {
            if (::GetTickCount64() >= deadline)
                return false;
            m_answer = m_progress->Update(m_work_done++ / 1000);
        }
        return true;
    }
    /// Does something that asks whether to stop, works until it is asked, and answers by a key. False if nothing asks.
    bool AskAndAnswer(const std::function<void()>& ask, WORD answer,
                      const std::function<void(CWnd&)>& look = {})
    {
        owtest::ModalVisit visit(
            [&](CWnd& question)
            {
                const int before = m_work_done;
                EXPECT_EQ(TextOf(*question.GetDlgItem(kMessage)), L"Prekidanje procesa?");
                if (look)
                    look(question);
                owtest::Press(answer);
                EXPECT_EQ(m_work_done, before) << "the work stands still";
            });
        ask();
        return WorkUntil([&] { return visit.Count() == 1; });
    }

    WorkWindow m_work;
    std::optional<CSingleThreadProgress> m_progress;
    CWnd* m_box = nullptr;
    int m_work_done = 0;
    bool m_answer = true; ///< of the last Update
};

void ExpectParts(const owtest::Surface& picture, const CRect& done, const CRect& rest)
{
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    EXPECT_EQ(picture.count(done, kDark) + picture.count(done, face), done.Width() * done.Height());
    EXPECT_EQ(picture.count(rest, kDark) + picture.count(rest, face), rest.Width() * rest.Height());
    EXPECT_GT(picture.count(done, kDark), 4 * picture.count(done, face));
    EXPECT_GT(picture.count(rest, face), 4 * picture.count(rest, kDark));
}
} // namespace

// ---- Cancel -------------------------------------------------------------------------------------------------

TEST_F(Progress, MouseEscapeAndEnterAskAndARefusalLetsTheWorkGoOn)
{
    const std::function<void()> ways[] = {
        [&] { owtest::QueueClick(Cancel()); }, [] { owtest::QueueKey(VK_ESCAPE); },
        [] { owtest::QueueKey(VK_RETURN); }, [] { owtest::QueueKey(VK_SPACE); },
        [&] { m_box->PostMessage(WM_CLOSE); },
    };
    for (const auto& way : ways)
    {
        EXPECT_TRUE(AskAndAnswer(way, VK_ESCAPE)) << &way - ways;
        EXPECT_TRUE(m_answer);
        EXPECT_TRUE(m_box->IsWindowVisible());
    }
    owtest::QueueKey(VK_TAB); // there is nowhere else to go
    EXPECT_TRUE(m_progress->DispatchPendingWindowMessages());
    EXPECT_EQ(::GetFocus(), Cancel().m_hWnd);
}

TEST_F(Progress, TheFirstAgreementCountsForGoodAndIsNotAskedForAgain)
{
    const auto look = [&](CWnd& question)
    {
        EXPECT_EQ(TextOf(question), L"Calculation$$");
        EXPECT_EQ(question.GetWindow(GW_OWNER), m_box);
        EXPECT_FALSE(m_work.IsWindowEnabled()) << "a click that has waited must not begin the work again";
        owtest::ModalVisit second([](CWnd&) {});
        m_box->SendMessage(WM_CLOSE);
        owtest::Pump();
        EXPECT_EQ(second.Count(), 0) << "one question at a time";
    };
    EXPECT_TRUE(AskAndAnswer([&] { owtest::QueueClick(Cancel()); }, VK_RETURN, look));
    EXPECT_TRUE(m_work.IsWindowEnabled());
    EXPECT_FALSE(m_answer) << "the very call in which the user agreed";
    EXPECT_TRUE(m_box->IsWindowVisible());

    owtest::ModalVisit visit([](CWnd&) {});
    owtest::QueueKey(VK_ESCAPE);
    owtest::QueueClick(Cancel());
    for (int i = 0; i < 100; ++i)
    {
        EXPECT_FALSE(m_progress->Update(i));
        EXPECT_FALSE(m_progress->DispatchPendingWindowMessages());
    }
    EXPECT_EQ(visit.Count(), 0);
    m_box->DestroyWindow();
    EXPECT_FALSE(m_progress->Update(100)) << "also when the box is gone";
}

TEST_F(Progress, AWorkWindowThatIsDisabledStaysSo)
{
    m_work.EnableWindow(FALSE);
    EXPECT_TRUE(AskAndAnswer([] { owtest::QueueKey(VK_ESCAPE); }, VK_ESCAPE));
    EXPECT_FALSE(m_work.IsWindowEnabled());
}

TEST_F(Progress, TheBoxMayGoWhileTheQuestionStands)
{
    owtest::ModalVisit visit([&](CWnd&) { m_box->DestroyWindow(); });
    owtest::QueueKey(VK_ESCAPE);
    EXPECT_TRUE(WorkUntil([&] { return visit.Count() == 1; }));
    EXPECT_TRUE(m_answer);
    EXPECT_EQ(FindBox(), nullptr);
    EXPECT_TRUE(m_work.IsWindowEnabled());
    EXPECT_TRUE(m_progress->Update(50));
}

// ---- Messages -----------------------------------------------------------------------------------------------

TEST_F(Progress, TakesItsOwnMessagesAndLeavesAllOthersInTheQueue)
{
    m_work.PostMessage(WorkWindow::kPosted);
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP, 0, 0);
    Cancel().PostMessage(WM_APP);
    m_box->Invalidate();
    EXPECT_TRUE(m_progress->DispatchPendingWindowMessages());
    EXPECT_FALSE(HasPosted(Cancel())) << "a control is part of the box";
    EXPECT_FALSE(m_box->GetUpdateRect(nullptr));
    EXPECT_EQ(m_work.arrived, 0);
    EXPECT_TRUE(HasPosted(reinterpret_cast<HWND>(-1))) << "the thread's own";
    owtest::Pump();
    EXPECT_EQ(m_work.arrived, 1);
}

TEST_F(Progress, TheEndOfTheApplicationIsNotLost)
{
    ::PostQuitMessage(7);
    EXPECT_TRUE(m_progress->Update(50));
    EXPECT_TRUE(m_progress->Update(60));
    MSG msg{};
    EXPECT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 7u);
}

TEST(PlainProgress, TakesNoMessagesAndCannotBeCancelled)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    CWnd& box = *FindBox();
    EXPECT_EQ(box.GetDlgItem(IDCANCEL), nullptr);
    box.PostMessage(WM_APP);
    EXPECT_TRUE(progress.Update(10));
    EXPECT_TRUE(HasPosted(box));

    owtest::ModalVisit visit([](CWnd& question) { question.SendMessage(WM_COMMAND, IDOK); });
    ASSERT_TRUE(owtest::Activate(box)); // a loop of the work's own
    owtest::Press(VK_ESCAPE);
    owtest::Press(VK_RETURN);
    EXPECT_TRUE(box.IsWindowVisible()) << "no key closes the box under the work";
    EXPECT_TRUE(progress.DispatchPendingWindowMessages());
    EXPECT_EQ(visit.Count(), 0);
}

// ---- The bar ------------------------------------------------------------------------------------------------

TEST(ProgressBar, IsPaintedOnceForEachStepAndAtOnce)
{
    for (bool cancellable : {false, true})
    {
        CSingleThreadProgress progress(kTitle, nullptr, cancellable);
        CProgressCtrlEx& bar = BarOf(*FindBox());
        PaintCounter paints(bar);
        for (int i = 0; i <= 10000; ++i)
            progress.Update(i / 100);
        EXPECT_EQ(paints.Take(), 50);
        EXPECT_EQ(bar.GetPos(), 100);
        EXPECT_FALSE(bar.GetUpdateRect(nullptr));
    }
}

TEST(ProgressBar, GoesByTheStepThatIsSet)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    CProgressCtrlEx& bar = BarOf(*FindBox());
    const auto after = [&](int from, int to)
    {
        progress.Update(from);
        PaintCounter paints(bar);
        progress.Update(to);
        return paints.Take();
    };
    EXPECT_EQ(after(10, 11), 0);
    EXPECT_EQ(after(11, 12), 1);
    progress.SetStep(10);
    EXPECT_EQ(after(10, 19), 0);
    EXPECT_EQ(after(19, 20), 1);
    for (int step : {0, 1, -1})
    {
        progress.SetStep(step);
        EXPECT_EQ(after(20, 20), 0) << step;
        EXPECT_EQ(after(20, 21), 1) << step;
    }
    progress.SetStep(-10);
    EXPECT_EQ(after(10, 19), 0);
    EXPECT_EQ(after(19, 20), 1);
    for (int step : {INT_MIN, -1, INT_MAX})
    {
        progress.SetStep(step);
        EXPECT_EQ(after(INT_MIN, INT_MAX), 1) << step;
    }
}

TEST(ProgressBar, ShowsTheDonePartAndTheTextInTwoColoursInBothDirections)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    CWnd& box = *FindBox();
    ASSERT_TRUE(owtest::Activate(box));
    CProgressCtrlEx& bar = BarOf(box);
    const auto look = [&](int pos)
    {
        CRect client;
        bar.GetClientRect(client);
        auto picture = std::make_unique<owtest::Surface>(client.right, client.bottom);
        progress.Update(pos);
        CClientDC dc(&bar);
        picture->dc().BitBlt(0, 0, client.right, client.bottom, &dc, 0, 0, SRCCOPY);
        return picture;
    };
    const auto fresh = look(1);
    const int w = fresh->width(), h = fresh->height();
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    const CRect inner(2, 2, w - 2, h - 2);

    for (int pos : {48, 52})
    {
        const auto picture = look(pos);
        const int x = (w - 4) * pos / 100 + 2;
        ExpectParts(*picture, CRect(2, 2, x, h - 2), CRect(x, 2, w - 2, h - 2));
        EXPECT_EQ(picture->count(CRect(0, 0, w, h), kDark), picture->count(inner, kDark)) << "the margin";
        EXPECT_EQ(picture->at(x - 1, 2), kDark);
        EXPECT_EQ(picture->at(x, 2), face);
        EXPECT_GT(picture->count(CRect(2, 2, x, h - 2), face), 10) << "text on the bar";
        EXPECT_GT(picture->count(CRect(x, 2, w - 2, h - 2), kDark), 10) << "text beside it";
    }
    EXPECT_EQ(look(50)->at(3, h / 2), kDark);

    // In the middle, in the dialog's font: the text alone, as GDI draws it.
    const auto none = look(-5);
    owtest::Surface expected(w, h, face);
    expected.dc().SelectObject(box.GetFont());
    expected.dc().SetBkMode(TRANSPARENT);
    expected.dc().SetTextColor(kDark);
    const CSize text = expected.dc().GetTextExtent(L"-5 %");
    const int ty = text.cy < h - 4 ? (h - 4 - text.cy) / 2 + 2 : 2;
    expected.dc().ExtTextOut((w - 4 - text.cx) / 2 + 2, ty, ETO_CLIPPED, inner, L"-5 %", nullptr);
    EXPECT_TRUE(*none == expected);
    EXPECT_EQ(look(150)->count(inner, kDark) + look(150)->count(inner, face), inner.Width() * inner.Height());
    EXPECT_EQ(bar.GetPos(), 100);
    EXPECT_FALSE(*look(150) == *look(100)) << "the number as given";

    bar.SetVertical(true);
    box.SetWindowPos(nullptr, 0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER);
    bar.SetWindowPos(nullptr, 0, 0, 60, 100, SWP_NOMOVE | SWP_NOZORDER);
    progress.SetStep(1);
    const auto upright = look(30);
    const int uw = upright->width(), uh = upright->height();
    const int y = uh - 2 - (uh - 4) * 30 / 100;
    ExpectParts(*upright, CRect(2, y, uw - 2, uh - 2), CRect(2, 2, uw - 2, y));
    EXPECT_EQ(upright->at(2, y), kDark);
    EXPECT_EQ(upright->at(2, y - 1), face);
}

TEST(ProgressBar, MayHaveNoRoomAtAll)
{
    CSingleThreadProgress progress(kTitle, nullptr, false);
    CProgressCtrlEx& bar = BarOf(*FindBox());
    const int gdi = owtest::CountHandles().gdi;
    for (CSize size : {CSize(0, 0), CSize(40, 0), CSize(3, 3), CSize(5, 5), CSize(6, 6), CSize(8, 200)})
    {
        bar.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_TRUE(progress.Update(size.cx * 2 + 4));
        EXPECT_FALSE(bar.GetUpdateRect(nullptr));
    }
    EXPECT_EQ(owtest::CountHandles().gdi, gdi);
}

// ---- Life ---------------------------------------------------------------------------------------------------

TEST(ProgressBox, StandsOverTheMiddleOfItsParentAlsoOffTheScreen)
{
    WorkWindow work;
    work.SetWindowPos(nullptr, -300, 200, 401, 301, SWP_NOZORDER);
    for (HWND parent : {work.m_hWnd, HWND(nullptr), reinterpret_cast<HWND>(0x12340)})
    {
        CSingleThreadProgress progress(kTitle, parent, false);
        const CWnd& box = *FindBox();
        const CRect rect = WindowRect(box);
        CRect work_area;
        ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work_area, 0);
        const CPoint middle =
            parent == work.m_hWnd ? WindowRect(work).CenterPoint() : work_area.CenterPoint();
        EXPECT_LE(std::abs(rect.CenterPoint().x - middle.x), 1);
        EXPECT_LE(std::abs(rect.CenterPoint().y - middle.y), 1);
        EXPECT_TRUE(box.IsWindowVisible());
        EXPECT_EQ(box.GetWindow(GW_OWNER), nullptr) << "not the parent's, which may go";
    }
}

TEST(ProgressBox, LeavesNothingBehindHoweverTheWorkEnds)
{
    const HINSTANCE resources = AfxGetResourceHandle();
    const auto work = [](int end)
    {
        CSingleThreadProgress progress(kTitle, nullptr, end % 2 == 0);
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0) << "only while something is opened or closed";
        progress.Update(30);
        if (end < 2)
            throw std::runtime_error("the work fails");
        if (end < 4)
            FindBox()->DestroyWindow();
        EXPECT_TRUE(progress.Update(60));
        EXPECT_TRUE(progress.DispatchPendingWindowMessages());
    };
    const auto all = [&]
    {
        for (int end = 0; end < 6; ++end)
        {
            try
            {
                work(end);
            }
            catch (const std::runtime_error&)
            {
            }
            EXPECT_EQ(FindBox(), nullptr);
        }
        owtest::Pump();
        AfxGetApp()->OnIdle(1);
    };
    all(); // what is made once for the process
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t heap = owtest::CountHeapBytes();
    constexpr int kRounds = 10;
    for (int i = 0; i < kRounds; ++i)
        all();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LT(owtest::CountHeapBytes(), heap + kRounds * 6 * 100);
    EXPECT_EQ(AfxGetResourceHandle(), resources);
}

namespace
{
/// While it stands, no dialog is made on this thread.
class NoDialogs
{
public:
    NoDialogs() : m_hook(::SetWindowsHookEx(WH_CBT, &Refuse, nullptr, ::GetCurrentThreadId())) {}
    ~NoDialogs() { ::UnhookWindowsHookEx(m_hook); }

private:
    static LRESULT CALLBACK Refuse(int code, WPARAM, LPARAM) { return code == HCBT_CREATEWND; }
    HHOOK m_hook;
};
} // namespace

TEST(ProgressBox, ThatCannotBeMadeDoesNotKeepTheWorkFromGoingOn)
{
    for (bool cancellable : {false, true})
    {
        const NoDialogs none;
        CSingleThreadProgress progress(kTitle, nullptr, cancellable);
        EXPECT_EQ(::FindWindow(L"#32770", kTitle), nullptr);
        EXPECT_TRUE(progress.Update(10));
        EXPECT_TRUE(progress.DispatchPendingWindowMessages());
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
    }
}
