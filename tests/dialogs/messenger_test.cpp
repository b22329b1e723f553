// The messenger: what is posted, from whatever thread, is shown by the timer of the host's window.

#include "BoxParts.h"

#include "ChildProcess.h"
#include "ImportStandIn.h"

#include <acadhost.h>
#include <rxmfcapi.h>

#include <thread>

namespace
{
constexpr UINT_PTR kTimer = 3025;

/// The host's window: counts the ticks that come through to it.
struct HostFrame : CFrameWnd
{
    static inline int s_ticks = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        s_ticks += message == WM_TIMER && wParam == kTimer;
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

UINT s_period = 0; ///< of the messenger's timer

class Messenger : public ::testing::Test
{
protected:
    // One host's window for the whole program, as the messenger stays at its first. There is no timer: the tests
    // send its message whenever they want one.
    static void SetUpTestSuite() { acadhostUseFrame(TheFrame()); }
    static void TearDownTestSuite() { acadhostUseFrame(nullptr); }
    static HostFrame* TheFrame()
    {
        static HostFrame* const frame = []
        {
            auto* host = new HostFrame; // deletes itself with its window
            EXPECT_TRUE(host->Create(nullptr, L"Host"));
            acadhostUseFrame(host);
            const auto standIn = [](HWND, UINT_PTR timer, UINT period, TIMERPROC) -> UINT_PTR
            {
                s_period = timer == kTimer ? period : 0;
                return timer;
            };
            const owtest::ImportStandIn noTimer(L"mfcow.dll", "SetTimer", +standIn);
            COstrelMessenger::Instance();
            return host;
        }();
        return frame;
    }

    static void Post(int code)
    {
        std::thread([code] { COstrelMessenger::Instance().PostMsg(code); }).join();
    }
    static void Tick(UINT_PTR timer = kTimer) { acedGetAcadFrame()->SendMessage(WM_TIMER, timer); }

    /// The code in the box that a tick opens; 0 if it opens none. `inside` is done while the box is open.
    static int ShownByTick(
        const std::function<void()>& inside = [] {}, UINT_PTR timer = kTimer)
    {
        int code = 0;
        owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                swscanf(TextOf(*box.GetDlgItem(kMessage)).c_str(),
                        L"Provera zastite programa nije uspela (%d).", &code);
                inside();
                owtest::Press(VK_ESCAPE);
            });
        Tick(timer);
        return code;
    }
};
} // namespace

OW_CHILD_SCENARIO(messenger_outlives_the_frame)
{
    auto* frame = new HostFrame;
    frame->Create(nullptr, L"Host");
    acadhostUseFrame(frame);
    const bool hooked = COstrelMessenger::Instance().IsHooked();
    acadhostUseFrame(nullptr);
    frame->DestroyWindow();
    COstrelMessenger::Instance().PostMsg(1); // is dropped, as nobody will look for it
    std::printf("hooked %d, then %d", hooked, COstrelMessenger::Instance().IsHooked());
}

TEST(MessengerOfAClosedHost, LetsGoOfItsWindow)
{
    EXPECT_EQ(owtest::RunChild("messenger_outlives_the_frame").output, "hooked 1, then 0");
}

TEST_F(Messenger, LooksEveryFiveSecondsAndPassesTheHostsMessagesOn)
{
    EXPECT_EQ(s_period, 5000u);
    COstrelMessenger& messenger = COstrelMessenger::Instance();
    EXPECT_EQ(&messenger, &COstrelMessenger::Instance());
    EXPECT_EQ(messenger.GetHookedWindow(), acedGetAcadFrame());
    HostFrame::s_ticks = 0;
    Tick();
    Post(4);
    ShownByTick();
    EXPECT_EQ(HostFrame::s_ticks, 2) << "the message that opened a box, too";
}

TEST_F(Messenger, ShowsACodeOfAnotherThreadOnceAtTheNextTick)
{
    EXPECT_EQ(ShownByTick(), 0);
    Post(17);
    EXPECT_EQ(ShownByTick([] {}, kTimer + 1), 0) << "another timer";
    EXPECT_EQ(ShownByTick(), 17);
    EXPECT_EQ(ShownByTick(), 0);
    for (const int code : {0, -1}) // mean nothing, and block nothing
    {
        Post(code);
        EXPECT_EQ(ShownByTick(), 0);
    }

    Post(5);
    Post(6); // is dropped, and so is what comes while a box is open
    EXPECT_EQ(ShownByTick([] { Post(7); }), 5);
    EXPECT_EQ(ShownByTick(), 0);

    const auto secondBox = []
    {
        Tick();
        Post(2);
        EXPECT_EQ(ShownByTick(), 2) << "over the first box, that has stood for a tick";
    };
    Post(1);
    EXPECT_EQ(ShownByTick(secondBox), 1);
    EXPECT_EQ(ShownByTick(), 0);
}
