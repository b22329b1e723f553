// A dialog with buttons of every kind, opened and closed many times, gives back what it took.

#include "ButtonsDialog.h"
#include "Images.h"

#include "Handles.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <array>

namespace
{
constexpr int kOpenings = 20;
constexpr COLORREF kKey = RGB(255, 0, 255);
const HICON kGrayCopy = reinterpret_cast<HICON>(CButtonST::copyGray);

/// Buttons with images of every kind, tooltips, cursors and transparency; one of them copies an icon.
class ManyButtonsDialog : public CDialog
{
public:
    void Open()
    {
        ASSERT_TRUE(Create(IDD_EMPTY));
        for (int i = 0; i < static_cast<int>(m_buttons.size()); ++i)
        {
            const CRect rect(CPoint(i * 40, 0), CSize(36, 36));
            const DWORD dwType = i % 2 ? BS_AUTOCHECKBOX : BS_PUSHBUTTON;
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
        switch (i)
        {
        case 0:
            button.SetIcon(CButtonST::hIconOk, CButtonST::hIconCancel);
            button.SetIcon(CButtonST::hIconOk, kGrayCopy);
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
            button.SetThemeHelper(nullptr);
            break;
        }
        button.SetTooltipText(_T("tip"));
    }

    std::array<OpenButton, 5> m_buttons;
};

void OpenAndClose(int nTimes)
{
    for (int i = 0; i < nTimes; ++i)
    {
        ManyButtonsDialog dialog;
        dialog.Open();
    }
}
} // namespace

// Wanted: an icon that a button made itself is let go of with DeleteObject, which does nothing to an icon. So
// each copy stays, and that is all that stays.
TEST(ButtonHandles, OnlyTheCopiesOfIconsStay)
{
    OpenAndClose(2);

    auto before = owtest::CountHandles();
    CButtonST().SetIcon(CButtonST::hIconOk, kGrayCopy);
    const int nGdiOfOneCopy = owtest::CountHandles().gdi - before.gdi;

    before = owtest::CountHandles();
    OpenAndClose(kOpenings);
    const auto after = owtest::CountHandles();
    EXPECT_EQ(after.gdi - before.gdi, kOpenings * nGdiOfOneCopy);
    EXPECT_EQ(after.user - before.user, kOpenings);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_TRUE(testimages::IsIcon(CButtonST::hIconOk) && testimages::IsIcon(CButtonST::hIconCancel))
        << "shared";
}
