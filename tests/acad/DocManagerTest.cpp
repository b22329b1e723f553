// The document manager's resource-handle stack.

#include <acdocman.h>

#include <gtest/gtest.h>

TEST(DocManager, NestedPushesAreUndoneInReverse)
{
    AcApDocManager* manager = acDocManagerPtr();
    ASSERT_EQ(manager, acDocManager);
    const HINSTANCE start = AfxGetResourceHandle();
    const HINSTANCE user = ::GetModuleHandleW(L"user32.dll"), gdi = ::GetModuleHandleW(L"gdi32.dll");
    manager->pushResourceHandle(user);
    manager->pushResourceHandle(gdi);
    EXPECT_EQ(AfxGetResourceHandle(), gdi);
    EXPECT_EQ(manager->resourceHandleDepth(), 2);
    EXPECT_EQ(manager->popResourceHandle(), Acad::eOk);
    EXPECT_EQ(AfxGetResourceHandle(), user);
    EXPECT_EQ(manager->popResourceHandle(), Acad::eOk);
    EXPECT_EQ(AfxGetResourceHandle(), start);
    EXPECT_EQ(manager->popResourceHandle(), Acad::eNotApplicable) << "nothing is pushed";
    EXPECT_EQ(AfxGetResourceHandle(), start);
    EXPECT_EQ(manager->resourceHandleDepth(), 0);
}
