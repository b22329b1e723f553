// The pool of control ids, and the array of objects held by value.

#include <DialogControlsOW.h>

#include "FatalReport.h"

#include <gtest/gtest.h>

static ResourceIdPool& s_pool = ResourceIdPool::Object();

TEST(ResourceIdPool, IsAStackOfTwoHundredThatSurvivesBeingEmptied)
{
    for (int round = 0; round < 2; ++round)
    {
        for (unsigned int id = 11199; id >= 11000; --id)
            EXPECT_EQ(s_pool.AcquireId(), id) << "the highest first";
        for (unsigned int id = 11000; id <= 11199; ++id)
            s_pool.ReleaseId(id);
    }
    const unsigned int a = s_pool.AcquireId(), b = s_pool.AcquireId();
    s_pool.ReleaseId(a);
    EXPECT_EQ(s_pool.AcquireId(), a) << "the last one in comes out first";
    s_pool.ReleaseId(b);
    s_pool.ReleaseId(a);
}

OW_CHILD_SCENARIO(pool_exhausted)
{
    for (int i = 0; i < 201; ++i)
    {
        s_pool.AcquireId();
        std::printf("%d ", i);
        std::fflush(stdout);
    }
}

TEST(ResourceIdPool, RunningDryIsFatal)
{
    const owtest::ChildResult result = owtest::RunChild("pool_exhausted");
    EXPECT_TRUE(result.output.ends_with("199 ")) << result.output;
    owtest::ExpectFailedAssert(result, L"ASSERT(!m_listId.IsEmpty())\n[.\\ResourceIdPool : 37]\n");
}

static_assert(!std::is_copy_constructible_v<OCArray<CExtButton>> &&
              !std::is_copy_assignable_v<OCArray<CExtButton>>);

TEST(ObjectArray, CopiesObjectsThatCanBeCopied)
{
    OCArray<CString> marks;
    marks.Add(L"HEA 160");
    OCArray<CString> copy = marks;
    copy[0] = L"IPE 200";
    copy.Add(L"L 50x5");
    EXPECT_STREQ(marks[0], L"HEA 160");
    marks = copy;
    const OCArray<CString>& itself = marks;
    marks = itself;
    EXPECT_TRUE(marks.GetSize() == 2 && marks[0] == L"IPE 200" && marks[1] == L"L 50x5");
}

TEST(ObjectArray, HoldsObjectsThatCannotBeCopied)
{
    static int s_nCount = 0;
    struct Counted
    {
        Counted() { ++s_nCount; }
        ~Counted() { --s_nCount; }
        Counted(const Counted&) = delete;
    };
    {
        OCArray<Counted> array;
        array.SetSize(3);
        EXPECT_EQ(s_nCount, 3);
        array.SetSize(1);
        EXPECT_EQ(s_nCount, 1);
    }
    EXPECT_EQ(s_nCount, 0);
}
