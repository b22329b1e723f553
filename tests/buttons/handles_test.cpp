// Buttons of every kind give back what they took, however often they are made, used and closed.

#include "Handles.h"
#include "Images.h"
#include "ModalVisit.h"
#include "Room.h"

namespace
{
constexpr int kRounds = 6;
const CSize kSize(60, 30);
const HICON kGrayCopy = reinterpret_cast<HICON>(CButtonST::copyGray);

HBITMAP Make()
{
    return testimages::MakeBitmap(CSize(20, 20), kBlue, kKey);
}

/// Makes a button by itself, does something with it and paints it in all states.
template <class Button>
void Use(const std::function<void(Button&)>& action, DWORD dwType = BS_PUSHBUTTON)
{
    Lone<Button> lone(kSize, _T("a<sub>b</sub>"), dwType);
    action(lone.button);
    for (const UINT nState : {0, ODS_FOCUS, ODS_SELECTED, ODS_DISABLED})
    {
        Surface surface(kSize.cx, kSize.cy);
        PaintButton(lone.button, surface, nState);
    }
}

void ChooseColor(CColorBtnST& button)
{
    static DWORD cr = kRed;
    button.SetColorSource(&cr);
    const owtest::ModalVisit visit([](CWnd& popup) { popup.SendMessage(WM_COMMAND, 10157); });
    button.GetParent()->SendMessage(WM_COMMAND, 0, reinterpret_cast<LPARAM>(button.m_hWnd));
    AfxGetApp()->OnIdle(1);
}

void OfferTexts(CTextBtnST& button)
{
    OCArray<CString> texts;
    texts.SetSize(3);
    button.SetTexts(texts, texts);
    button.SendMessage(WM_SYSCOLORCHANGE);
    button.SetTexts(texts);
}

void ChangeFontAndIcon(CXIcon& label)
{
    static const testimages::Icon given(16, kBlue);
    label.SetIcon(IDI_STATE, 16).SetIcon(given, 16).SetIcon(IDI_STATE, 32).SetIcon(IDI_STATE, 16);
    label.SetBold(TRUE).SetFont(L"Arial", 12);
    EXPECT_TRUE(testimages::IsIcon(given));
}

void ChangeCursorAndBackground(CButtonST& button)
{
    button.DrawTransparent();
    button.SetTooltipText(_T("tip"));
    button.SetBtnCursor(IDC_CROSSHAIR);
    button.SetBtnCursor(IDC_CROSSHAIR);
}

void SetImages(CButtonST& button)
{
    const HBITMAP hGray = reinterpret_cast<HBITMAP>(CButtonST::copyGray);
    button.SetBitmaps(Make(), kKey, hGray);
    button.SetBitmaps(Make(), kKey, Make(), kKey);
    button.SetBitmaps(10101, kKey, CButtonST::copyDarker);
    button.SetBitmaps(10101, kKey, 31999);
    button.SetBitmaps(10101, kKey, 10122, kKey);
}

void UseAll()
{
    Use<CButtonST>(&SetImages);
    Use<CButtonST>([](CButtonST& button) { button.SetIcon(CButtonST::hIconOk, CButtonST::hIconCancel); });
    Use<CButtonST>([](CButtonST& button) { button.SetThemeHelper(nullptr); });
    Use<CButtonST>(&ChangeCursorAndBackground);
    Use<CBitmapBtnSTLinija>([](CButtonST& button) { button.SendMessage(WM_SYSCOLORCHANGE); });
    Use<CTextBtnST>(&OfferTexts);
    Use<CColorBtnST>(&ChooseColor);
    Use<CXIcon>(&ChangeFontAndIcon, BS_OWNERDRAW);
    Use<CMixedFontButton>([](CMixedFontButton& button) { button.SetCheck(1); });
    const CThemeHelperST helper;
}
} // namespace

TEST(ButtonHandles, AreGivenBack)
{
    UseAll();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < kRounds; ++i)
        UseAll();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(testimages::IsIcon(CButtonST::hIconOk) && testimages::IsIcon(CButtonST::hIconCancel))
        << "shared";
}

// Wanted: an icon that a button made itself is let go of with DeleteObject, which does nothing to an icon.
TEST(ButtonHandles, OfCopiedIconsStay)
{
    const auto copy = [](CButtonST& button) { button.SetIcon(CButtonST::hIconOk, kGrayCopy); };
    Use<CButtonST>(copy);
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < kRounds; ++i)
        Use<CButtonST>(copy);
    EXPECT_EQ(owtest::CountHandles().user - before.user, kRounds)
        << "one for each, however often it is painted";
    EXPECT_EQ(owtest::CountHandles().windows, before.windows);
}
