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
void Use(const Action& action, DWORD dwType = BS_PUSHBUTTON)
{
    Lone<Button> lone(CSize(60, 30), _T("title"), dwType);
    action(lone.button);
    for (const UINT nState : {0, ODS_FOCUS, ODS_SELECTED, ODS_DISABLED})
    {
        Surface surface(60, 30);
        PaintButton(lone.button, surface, nState);
    }
}

void SetImages(CButtonST& button)
{
    const auto make = [] { return testimages::MakeBitmap(CSize(20, 20), kBlue, kKey); };
    button.SetBitmaps(make(), kKey, reinterpret_cast<HBITMAP>(kGrayCopy));
    button.SetBitmaps(make(), kKey, make(), kKey);
    button.SetBitmaps(10101, kKey, CButtonST::copyDarker);
    button.SetBitmaps(10101, kKey, 31999);
    button.SetBitmaps(10101, kKey, 10122, kKey);
}

void ChangeIconThemeAndCursor(CButtonST& button)
{
    button.SetIcon(CButtonST::hIconOk, CButtonST::hIconCancel);
    button.SetThemeHelper(nullptr);
    button.DrawTransparent();
    button.SetTooltipText(_T("tip"));
    for (int i = 0; i < 2; ++i)
        button.SetBtnCursor(IDC_CROSSHAIR);
}

void ChangeFontAndIcon(CXIcon& label)
{
    const testimages::Icon given(16, kBlue);
    label.SetIcon(IDI_STATE, 16).SetIcon(given, 16).SetIcon(IDI_STATE, 32).SetIcon(IDI_STATE, 16);
    label.SetBold(TRUE).SetFont(L"Arial", 12);
    EXPECT_TRUE(testimages::IsIcon(given));
}

void UseAll()
{
    Use<CButtonST>(&SetImages);
    Use<CButtonST>(&ChangeIconThemeAndCursor);
    Use<CBitmapBtnSTLinija>([](CButtonST& button) { button.SendMessage(WM_SYSCOLORCHANGE); });
    Use<CXIcon>(&ChangeFontAndIcon, BS_OWNERDRAW);
    const CThemeHelperST helper;
}
} // namespace

TEST(ButtonHandles, AreGivenBackExceptForIconsThatAreCopies)
{
    UseAll();
    owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < kRounds; ++i)
        UseAll();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(testimages::IsIcon(CButtonST::hIconOk) && testimages::IsIcon(CButtonST::hIconCancel))
        << "shared";

    // Wanted: an icon that a button made itself is let go of with DeleteObject, which does nothing to an icon.
    for (int i = 0; i <= kRounds; ++i)
    {
        Use<CButtonST>([](CButtonST& button) { button.SetIcon(CButtonST::hIconOk, kGrayCopy); });
        if (i == 0)
            before = owtest::CountHandles();
    }
    EXPECT_EQ(owtest::CountHandles().user - before.user, kRounds)
        << "one for each, however often it is painted";
    EXPECT_EQ(owtest::CountHandles().windows, before.windows);
}
