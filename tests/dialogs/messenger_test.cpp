// The messenger: what is posted, from whatever thread, is shown by the timer of the host's window.

#include "BoxParts.h"

#include "ChildProcess.h"

#include <acadhost.h>
#include <rxmfcapi.h>

#include <gtest/gtest.h>

#include <thread>

namespace
{
constexpr UINT_PTR kTimer = 3025;

/// The host's window: counts the ticks that come through to it.
class HostFrame : public CFrameWnd
{
public:
    static inline int ticks = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ticks += message == WM_TIMER && wParam == kTimer;
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

class Messenger : public ::testing::Test
{
protected:
    // One host's window for the whole program, as the messenger stays at its first. The tests send the timer's
    // message themselves, whenever they want one.
    static void SetUpTestSuite() { acadhostUseFrame(TheFrame()); }
    static void TearDownTestSuite() { acadhostUseFrame(nullptr); }
    static HostFrame* TheFrame()
    {
        static HostFrame* const frame = []
        {
            auto* host = new HostFrame; // deletes itself with its window
            EXPECT_TRUE(host->Create(nullptr, L"Host"));
            acadhostUseFrame(host);
            COstrelMessenger::Instance();
            EXPECT_TRUE(::KillTimer(*host, kTimer)) << "the messenger had started its timer";
            return host;
        }();
        return frame;
    }

    static void Post(int code)
    {
        std::thread([code] { COstrelMessenger::Instance().PostMsg(code); }).join();
    }

    static void Tick(UINT_PTR timer = kTimer) { acedGetAcadFrame()->SendMessage(WM_TIMER, timer); }

    /// The text of the box that a tick opens; empty if it opens none. `inside` is done while the box is open.
    static std::wstring ShownByTick(
        const std::function<void()>& inside = [] {}, UINT_PTR timer = kTimer)
    {
        std::wstring text;
        owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                text = TextOf(*box.GetDlgItem(kMessage));
                inside();
                owtest::Press(VK_ESCAPE);
            });
        Tick(timer);
        return text;
    }

    static std::wstring Text(int code)
    {
        return L"Provera zastite programa nije uspela (" + std::to_wstring(code) + L").";
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

TEST_F(Messenger, StandsBeforeTheHostsWindowAndPassesItsMessagesOn)
{
    COstrelMessenger& messenger = COstrelMessenger::Instance();
    EXPECT_EQ(&messenger, &COstrelMessenger::Instance());
    EXPECT_EQ(messenger.GetHookedWindow(), acedGetAcadFrame());

    HostFrame::ticks = 0;
    Tick();
    EXPECT_EQ(HostFrame::ticks, 1);
    Post(4);
    ShownByTick();
    EXPECT_EQ(HostFrame::ticks, 2) << "the message that opened a box, too";
}

TEST_F(Messenger, ShowsACodeOfAnotherThreadOnceAtTheNextTick)
{
    EXPECT_EQ(ShownByTick(), L"");
    Post(17);
    EXPECT_EQ(ShownByTick([] {}, kTimer + 1), L"") << "another timer";
    EXPECT_EQ(ShownByTick(), Text(17));
    EXPECT_EQ(ShownByTick(), L"");
}

TEST_F(Messenger, DropsWhatComesWhileACodeWaitsOrItsBoxIsOpen)
{
    Post(5);
    Post(6);
    EXPECT_EQ(ShownByTick([] { Post(7); }), Text(5));
    EXPECT_EQ(ShownByTick(), L"");
    Post(8);
    EXPECT_EQ(ShownByTick(), Text(8)) << "it takes codes again";
}

TEST_F(Messenger, TakesCodesAgainAfterATickWhileTheBoxIsStillOpen)
{
    const auto secondBox = []
    {
        Tick();
        Post(2);
        EXPECT_EQ(ShownByTick(), Text(2)) << "over the first box";
    };
    Post(1);
    EXPECT_EQ(ShownByTick(secondBox), Text(1));
    EXPECT_EQ(ShownByTick(), L"");
}

TEST_F(Messenger, NeverShowsTheTwoCodesThatMeanNothing)
{
    for (int code : {0, -1})
    {
        Post(code);
        EXPECT_EQ(ShownByTick(), L"");
    }
    Post(3);
    EXPECT_EQ(ShownByTick(), Text(3)) << "and neither blocks it";
}
