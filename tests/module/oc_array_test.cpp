// The array of objects held by value.

#include <DialogControlsOW.h>

#include <gtest/gtest.h>

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
