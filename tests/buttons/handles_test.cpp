// Buttons give back what they took, however often they are made, used and closed.

#include "Handles.h"
#include "Images.h"
#include "Room.h"

namespace
{
constexpr int kRounds = 6;
const HICON kGrayCopy = reinterpret_cast<HICON>(CButtonST::copyGray);

/// Makes a button by itself, does something with it and paints it in all states.
template <class Button, class Action>
void Use(const Action& action)
{
    Lone<Button> lone(CSize(60, 30), _T("title"), BS_OWNERDRAW);
    action(lone.button);
    for (const UINT nState : {0, ODS_FOCUS, ODS_SELECTED, ODS_DISABLED})
    {
        Surface surface(60, 30);
        PaintButton(lone.button, surface, nState);
    }
}

void UseAll(HICON hSecond)
{
    const auto make = [] { return testimages::MakeBitmap(CSize(20, 20), kBlue, kKey); };
    const auto setBitmaps = [&](CButtonST& button)
    {
        button.SetBitmaps(make(), kKey, reinterpret_cast<HBITMAP>(kGrayCopy));
        button.SetBitmaps(make(), kKey, make(), kKey);
        for (const int nOut : {int(CButtonST::copyDarker), 31999, 10122})
            button.SetBitmaps(10101, kKey, nOut, kKey);
    };
    const auto setAllElse = [=](CButtonST& button)
    {
        button.SetIcon(CButtonST::hIconOk, hSecond);
        button.SetThemeHelper(nullptr);
        button.DrawTransparent();
        button.SetTooltipText(_T("tip"));
        for (int i = 0; i < 2; ++i)
            button.SetBtnCursor(IDC_CROSSHAIR);
    };
    const auto changeLabel = [](CXIcon& label)
    {
        const testimages::Icon given(16, kBlue);
        label.SetIcon(IDI_STATE, 16).SetIcon(given, 16).SetIcon(IDI_STATE, 32).SetIcon(IDI_STATE, 16);
        label.SetBold(TRUE).SetFont(L"Arial", 12);
        EXPECT_TRUE(testimages::IsIcon(given));
    };
    Use<CButtonST>(setBitmaps);
    Use<CButtonST>(setAllElse);
    Use<CBitmapBtnSTLinija>([](CButtonST& button) { button.SendMessage(WM_SYSCOLORCHANGE); });
    Use<CXIcon>(changeLabel);
}
} // namespace

TEST(ButtonHandles, AreGivenBackExceptForIconsThatAreCopies)
{
    // Wanted: an icon that a button made itself is let go of with DeleteObject, which does nothing to an icon.
    for (const auto& [hSecond, nLost] : {std::pair(CButtonST::hIconCancel, 0), {kGrayCopy, kRounds}})
    {
        owtest::HandleCount before;
        for (int i = 0; i <= kRounds; ++i)
        {
            UseAll(hSecond);
            before = i == 0 ? owtest::CountHandles() : before;
        }
        before.user += nLost; // one for each, however often it is painted
        const owtest::HandleCount after = owtest::CountHandles();
        EXPECT_TRUE(after.user == before.user && after.windows == before.windows);
        EXPECT_TRUE(after == before || nLost) << after << " after " << before;
    }
    EXPECT_TRUE(testimages::IsIcon(CButtonST::hIconOk) && testimages::IsIcon(CButtonST::hIconCancel))
        << "shared";
}
