// The document manager's resource-handle stack.

#include <acdocman.h>

#include <gtest/gtest.h>

namespace
{
HINSTANCE Module(const wchar_t* name)
{
    return ::GetModuleHandleW(name);
}
} // namespace

TEST(DocManager, NestedPushesAreUndoneInReverse)
{
    AcApDocManager* manager = acDocManagerPtr();
    ASSERT_EQ(manager, acDocManager);
    const HINSTANCE start = AfxGetResourceHandle();

    manager->pushResourceHandle(Module(L"user32.dll"));
    EXPECT_EQ(AfxGetResourceHandle(), Module(L"user32.dll"));
    manager->pushResourceHandle(Module(L"gdi32.dll"));
    EXPECT_EQ(AfxGetResourceHandle(), Module(L"gdi32.dll"));
    EXPECT_EQ(manager->resourceHandleDepth(), 2);

    EXPECT_EQ(manager->popResourceHandle(), Acad::eOk);
    EXPECT_EQ(AfxGetResourceHandle(), Module(L"user32.dll"));
    EXPECT_EQ(manager->popResourceHandle(), Acad::eOk);
    EXPECT_EQ(AfxGetResourceHandle(), start);
    EXPECT_EQ(manager->popResourceHandle(), Acad::eNotApplicable) << "nothing is pushed";
    EXPECT_EQ(AfxGetResourceHandle(), start);
    EXPECT_EQ(manager->resourceHandleDepth(), 0);
}
