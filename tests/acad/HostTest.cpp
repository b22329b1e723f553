// The host's main window, and the document manager's stack of resource handles.

#include <acadhost.h>
#include <acdocman.h>
#include <rxmfcapi.h>

#include "Testing.h"

TEST(HostFrame, IsMadeHiddenWhenFirstAskedForUnlessTheProgramHasMadeIt)
{
    ASSERT_FALSE(acadhostHasFrame());
    EXPECT_FALSE(acedGetAcadFrame()->IsWindowVisible());
    acadhostDestroyFrame();
    CFrameWnd* frame = acadhostCreateFrame(L"Drawing", SW_SHOW);
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(acedGetAcadFrame(), frame);
    EXPECT_EQ(acadhostCreateFrame(L"Other drawing", SW_HIDE), frame);
    EXPECT_TRUE(owtest::TextOf(*frame) == L"Other drawing" && !frame->IsWindowVisible());
    frame->DestroyWindow(); // as the user does by closing it
    EXPECT_FALSE(acadhostHasFrame());
    acadhostDestroyFrame(); // without a frame it does nothing

    auto* const own = new CFrameWnd; // the program's, which deletes itself with its window
    ASSERT_TRUE(own->Create(nullptr, L"Own"));
    acadhostUseFrame(own);
    EXPECT_EQ(acedGetAcadFrame(), own);
    acadhostDestroyFrame();
    EXPECT_TRUE(::IsWindow(own->m_hWnd));
    acadhostUseFrame(nullptr);
    own->DestroyWindow();
}

TEST(DocManager, NestedPushesAreUndoneInReverse)
{
    AcApDocManager* const manager = acDocManagerPtr();
    ASSERT_EQ(manager, acDocManager);
    const HINSTANCE handles[] = {AfxGetResourceHandle(), ::GetModuleHandleW(L"user32.dll"),
                                 ::GetModuleHandleW(L"gdi32.dll")};
    for (int depth = 1; depth <= 2; ++depth)
    {
        manager->pushResourceHandle(handles[depth]);
        EXPECT_EQ(AfxGetResourceHandle(), handles[depth]);
        EXPECT_EQ(manager->resourceHandleDepth(), depth);
    }
    for (const auto& [answer, handle] : {std::pair(Acad::eOk, handles[1]),
                                         {Acad::eOk, handles[0]},
                                         {Acad::eNotApplicable, handles[0]}}) // the last has nothing to undo
    {
        EXPECT_EQ(manager->popResourceHandle(), answer);
        EXPECT_EQ(AfxGetResourceHandle(), handle);
    }
}
