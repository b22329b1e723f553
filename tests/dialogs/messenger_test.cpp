// The messenger: what is posted, from whatever thread, is shown by the timer of the host's window.

#include "BoxParts.h"

#include <acadhost.h>
#include <rxmfcapi.h>

namespace
{
constexpr UINT_PTR kTimer = 3025;

int s_ticks = 0;   ///< that come through to the host's window
UINT s_period = 0; ///< of the messenger's timer

/// The host's window; deletes itself.
struct HostFrame : CFrameWnd
{
    HostFrame() { EXPECT_TRUE(Create(nullptr, L"Host")); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        s_ticks += message == WM_TIMER && wParam == kTimer;
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

void Post(int code)
{
    std::thread([code] { COstrelMessenger::Instance().PostMsg(code); }).join();
}

/// The code in the box that a tick opens; 0 if it opens none. `inside` is done while the box is open.
int ShownByTick(
    const std::function<void()>& inside = [] {}, UINT_PTR timer = kTimer)
{
    int code = 0;
    owtest::ModalVisit visit(
        [&](CWnd& box)
        {
            swscanf(TextOf(*box.GetDlgItem(kMessage)).c_str(), L"Provera zastite programa nije uspela (%d).",
                    &code);
            inside();
            owtest::Press(VK_ESCAPE);
        });
    acedGetAcadFrame()->SendMessage(WM_TIMER, timer);
    return code;
}
} // namespace

// There is no timer: its message is sent. One window for the whole program, as the messenger stays at its first.
TEST(Messenger, ShowsACodeOfAnotherThreadOnceAtTheNextTick)
{
    const auto standIn = [](HWND, UINT_PTR timer, UINT period, TIMERPROC) -> UINT_PTR
    {
        s_period = timer == kTimer ? period : 0;
        return timer;
    };
    static auto* const frame = new HostFrame;
    acadhostUseFrame(frame);
    {
        const owtest::ImportStandIn noTimer(L"mfcow.dll", "SetTimer", +standIn);
        COstrelMessenger::Instance().PostMsg(17);
    }
    EXPECT_EQ(s_period, 5000u);
    s_ticks = 0;
    EXPECT_EQ(ShownByTick([] {}, kTimer + 1), 0) << "another timer";
    EXPECT_EQ(ShownByTick(), 17);
    EXPECT_EQ(ShownByTick(), 0);
    EXPECT_EQ(s_ticks, 2) << "the host hears its messages, that which opened a box, too";
    for (const auto& [code, shown] : {std::pair(5, 5), {0, 6}, {-1, 0}}) // the last two mean nothing
    {
        Post(code);
        Post(6); // is dropped, and so is what comes while a box is open
        EXPECT_EQ(ShownByTick([] { Post(7); }), shown);
        EXPECT_EQ(ShownByTick(), 0);
    }
    const auto secondBox = []
    {
        acedGetAcadFrame()->SendMessage(WM_TIMER, kTimer);
        Post(2);
        EXPECT_EQ(ShownByTick(), 2) << "over the first box, that has stood for a tick";
    };
    Post(1);
    EXPECT_EQ(ShownByTick(secondBox), 1);
    acadhostUseFrame(nullptr);
}
