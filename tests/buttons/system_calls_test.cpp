// What buttons and labels ask of the system: an address to be opened, and to be painted at once.

#include <DialogControlsOW.h>

#include "ImportStandIn.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{
/// A window that is shown, for controls.
struct Parent : CWnd
{
    Parent()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr);
    }
    ~Parent() override { DestroyWindow(); }
};

std::wstring s_opened; ///< by the stand-in for the shell

BOOL WINAPI NoteAddress(SHELLEXECUTEINFOW* info)
{
    s_opened = std::wstring(info->lpVerb) + L' ' + info->lpFile;
    EXPECT_EQ(info->cbSize, sizeof *info);
    EXPECT_EQ(info->fMask, static_cast<ULONG>(SEE_MASK_FLAG_NO_UI)) << "no box where it cannot be opened";
    EXPECT_EQ(info->nShow, SW_SHOWMAXIMIZED);
    return TRUE;
}
} // namespace

TEST(ButtonAddress, IsOpenedByAClick)
{
    const owtest::ImportStandIn noShell(L"DialogControlsOW.dll", "ShellExecuteExW", &NoteAddress);
    Parent parent;
    CButtonST button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &parent, 1));
    for (const std::wstring address : {L"", L"x:\\plan.pdf"})
    {
        button.SetURL(address.c_str());
        button.SendMessage(BM_CLICK);
        EXPECT_EQ(s_opened, address.empty() ? L"" : L"open " + address);
    }
}

TEST(XIconSetters, PaintAtOnceIfAsked)
{
    struct CountingIcon : CXIcon
    {
        int paints = 0;
        void DrawItem(LPDRAWITEMSTRUCT) override { ++paints; }
    } icon;
    Parent parent;
    ASSERT_TRUE(icon.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 99, 40), &parent, 1));
    LOGFONTW font{};
    icon.SetAutoResize(FALSE).GetFont(&font);
    const std::function<void(int)> setters[] = {[&](int repaint) { icon.SetMargins(1, 1, repaint); },
                                                [&](int repaint) { icon.SetIconSpacing(3, repaint); },
                                                [&](int repaint) { icon.SetTextColor(0, repaint); },
                                                [&](int repaint) { icon.SetAutoResize(FALSE, repaint); },
                                                [&](int repaint)
                                                { icon.SetIcon(HICON(nullptr), 16, repaint); },
                                                [&](int repaint) { icon.SetIcon(0u, 16, repaint); },
                                                [&](int repaint) { icon.SetBold(TRUE, repaint); },
                                                [&](int repaint) { icon.SetFont(L"Arial", 9, repaint); },
                                                [&](int repaint) { icon.SetFont(&font, repaint); }};
    for (const auto& set : setters)
        for (const int repaint : {FALSE, TRUE})
        {
            icon.paints = 0;
            set(repaint);
            EXPECT_EQ(icon.paints, repaint) << &set - setters;
        }
}
