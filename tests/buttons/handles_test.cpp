// A dialog with a hundred buttons, opened and closed a hundred times, gives back what it took.

#include "ButtonsDialog.h"
#include "Images.h"

#include "Handles.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace
{
constexpr int kButtons = 100;
constexpr int kOpenings = 100;
constexpr int kIconCopies = 2; ///< buttons of the dialog that show a copy of an icon, which is never released
constexpr COLORREF kKey = RGB(255, 0, 255);

/// Buttons with images of every kind, tooltips, cursors and transparency.
class ManyButtonsDialog : public CDialog
{
public:
    void Open()
    {
        ASSERT_TRUE(Create(IDD_EMPTY));
        for (int i = 0; i < kButtons; ++i)
        {
            const CRect rect(CPoint(i % 10 * 60, i / 10 * 40), CSize(56, 36));
            const DWORD dwType = i % 3 == 0 ? BS_AUTOCHECKBOX : BS_PUSHBUTTON;
            m_buttons[i].Create(_T("Title"), WS_CHILD | WS_VISIBLE | dwType, rect, this, 2000 + i);
            Dress(m_buttons[i], i);
        }
        UpdateWindow();
        for (OpenButton& button : m_buttons)
        {
            MSG msg{button, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5), 0, {}};
            button.PreTranslateMessage(&msg);
        }
        owtest::Pump();
    }
    ~ManyButtonsDialog() override { DestroyWindow(); }

private:
    static void Dress(OpenButton& button, int i)
    {
        const auto bitmap = [] { return testimages::MakeFramedBitmap(20, 20, RGB(0, 0, 255), kKey); };
        switch (i % 5)
        {
        case 0:
            button.SetIcon(CButtonST::hIconOk, CButtonST::hIconCancel);
            break;
        case 1:
            button.SetBitmaps(bitmap(), kKey);
            break;
        case 2:
            button.SetBitmaps(bitmap(), kKey, reinterpret_cast<HBITMAP>(CButtonST::copyGray));
            button.EnableWindow(FALSE);
            break;
        case 3:
            button.SetBitmaps(10101, kKey, CButtonST::copyDarker);
            button.SetIcon(CButtonST::hIconError);
            button.EnableWindow(FALSE);
            break;
        case 4:
            button.DrawTransparent();
            button.SetBtnCursor(IDC_CROSSHAIR);
            break;
        }
        if (i < kIconCopies)
            button.SetIcon(CButtonST::hIconOk, reinterpret_cast<HICON>(CButtonST::copyGray));
        if (i % 2)
            button.SetThemeHelper(nullptr);
        button.SetTooltipText(_T("tip"));
    }

    std::array<OpenButton, kButtons> m_buttons;
};

void OpenAndClose(int times)
{
    for (int i = 0; i < times; ++i)
    {
        ManyButtonsDialog dialog;
        dialog.Open();
    }
}

/// What the process holds. User handles are counted from a start of their own: the batch of menus fills all
/// places that are free, so that it reaches higher by exactly one for each handle that is held.
owtest::HandleCount Count()
{
    constexpr int kProbes = 2000; // more than a closed dialog frees
    std::vector<HMENU> probes;
    int nHighest = 0;
    for (int i = 0; i < kProbes; ++i)
    {
        probes.push_back(::CreateMenu());
        nHighest = std::max<int>(nHighest, LOWORD(reinterpret_cast<ULONG_PTR>(probes.back())));
    }
    for (HMENU hMenu : probes)
        ::DestroyMenu(hMenu);
    owtest::HandleCount count = owtest::CountHandles();
    count.user = nHighest / 2;
    return count;
}

owtest::HandleCount operator-(const owtest::HandleCount& left, const owtest::HandleCount& right)
{
    return {left.gdi - right.gdi, left.windows - right.windows, left.user - right.user};
}
} // namespace

// Wanted: an icon that a button made itself is let go of with DeleteObject, which does nothing to an icon. So
// each copy stays, and that is all that stays.
TEST(ButtonHandles, OnlyTheCopiesOfIconsStay)
{
    OpenAndClose(2);

    auto before = Count();
    CButtonST().SetIcon(CButtonST::hIconOk, reinterpret_cast<HICON>(CButtonST::copyGray));
    const auto ofOneCopy = Count() - before;
    EXPECT_EQ(ofOneCopy.user, 1);

    before = Count();
    OpenAndClose(kOpenings);
    const auto left = Count() - before;
    constexpr int kCopies = kOpenings * kIconCopies;
    EXPECT_EQ(left.gdi, kCopies * ofOneCopy.gdi);
    EXPECT_EQ(left.user, kCopies);
    EXPECT_EQ(left.windows, 0);
}
