// The host's main window.

#include <acadhost.h>
#include <rxmfcapi.h>

#include <Input.h>

#include <gtest/gtest.h>

TEST(HostFrame, IsMadeHiddenWhenFirstAskedForUnlessTheProgramHasMadeIt)
{
    ASSERT_FALSE(acadhostHasFrame());
    EXPECT_FALSE(acedGetAcadFrame()->IsWindowVisible());
    acadhostDestroyFrame();
    CFrameWnd* frame = acadhostCreateFrame(L"Drawing", SW_SHOW);
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(acedGetAcadFrame(), frame);
    EXPECT_EQ(acadhostCreateFrame(L"Other drawing", SW_HIDE), frame);
    EXPECT_EQ(owtest::TextOf(*frame), L"Other drawing");
    EXPECT_FALSE(frame->IsWindowVisible());

    frame->DestroyWindow(); // as the user does by closing it
    EXPECT_FALSE(acadhostHasFrame());
    EXPECT_TRUE(::IsWindow(acedGetAcadFrame()->m_hWnd)) << "made anew";
    for (int i = 0; i < 2; ++i) // without a frame it does nothing
        acadhostDestroyFrame();
    EXPECT_FALSE(acadhostHasFrame());
}

TEST(HostFrame, LentByTheProgramStaysTheProgramsOwn)
{
    acedGetAcadFrame();
    auto* own = new CFrameWnd; // deletes itself with its window
    ASSERT_TRUE(own->Create(nullptr, L"Own"));

    acadhostUseFrame(own);
    EXPECT_EQ(acedGetAcadFrame(), own);
    acadhostDestroyFrame();
    EXPECT_TRUE(::IsWindow(own->m_hWnd));

    acadhostUseFrame(nullptr);
    EXPECT_FALSE(acadhostHasFrame());
    own->DestroyWindow();
}
