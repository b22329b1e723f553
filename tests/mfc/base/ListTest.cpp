// CList and the lists made from it.

#include "Counted.h"
#include "Thrown.h"

#include <afxcoll.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
std::wstring Forward(const CStringList& list)
{
    std::wstring joined;
    for (POSITION pos = list.GetHeadPosition(); pos != NULL;)
        joined += list.GetNext(pos);
    return joined;
}

std::wstring Backward(const CStringList& list)
{
    std::wstring joined;
    for (POSITION pos = list.GetTailPosition(); pos != NULL;)
        joined += list.GetPrev(pos);
    return joined;
}

/// A list that tells whether it holds memory.
class WatchedList : public CList<Counted>
{
public:
    using CList<Counted>::CList;

    bool HasBlocks() const { return m_pBlocks != nullptr; }
};
} // namespace

TEST(List, LinksBothWays)
{
    CStringList list;
    list.AddTail(L"b");
    list.AddTail(L"d");
    list.AddHead(L"a");
    const POSITION d = list.Find(L"d");
    const POSITION c = list.InsertBefore(d, L"c");
    list.InsertAfter(d, L"e");
    EXPECT_EQ(Forward(list), L"abcde");
    EXPECT_EQ(Backward(list), L"edcba");

    list.RemoveAt(c);
    EXPECT_EQ(list.RemoveHead(), L"a");
    EXPECT_EQ(list.RemoveTail(), L"e");
    EXPECT_EQ(Forward(list), L"bd");
    EXPECT_EQ(Backward(list), L"db");
    list.InsertBefore(NULL, L"<");
    list.InsertAfter(NULL, L">");
    EXPECT_EQ(Forward(list), L"<bd>");
}

TEST(List, FindsFromAPositionOn)
{
    CStringList list;
    for (LPCTSTR text : {L"x", L"y", L"x"})
        list.AddTail(text);
    const POSITION first = list.Find(L"x");
    const POSITION second = list.Find(L"x", first);
    EXPECT_EQ(first, list.FindIndex(0));
    EXPECT_EQ(second, list.FindIndex(2));
    EXPECT_EQ(list.Find(L"x", second), nullptr);
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(List, TakesOtherListsInOrderAndItself)
{
    CStringList list;
    CStringList other;
    list.AddTail(L"m");
    other.AddTail(L"1");
    other.AddTail(L"2");
    list.AddHead(&other);
    list.AddTail(&other);
    EXPECT_EQ(Forward(list), L"12m12");
    list.AddTail(&list);
    EXPECT_EQ(Forward(list), L"12m1212m12");
    EXPECT_EQ(Backward(list), L"21m2121m21");
}

TEST(List, GivesItsMemoryBackWithTheLastElement)
{
    WatchedList list(4);
    for (int i = 0; i < 100; ++i)
        list.AddTail(Counted(i));
    EXPECT_EQ(Counted::Alive(), 100);
    while (list.GetCount() > 1)
        list.RemoveAt(list.FindIndex(list.GetCount() / 2));
    EXPECT_TRUE(list.HasBlocks());
    list.RemoveHead();
    EXPECT_FALSE(list.HasBlocks());
    EXPECT_EQ(Counted::Alive(), 0);
    list.AddHead(Counted(1));
    EXPECT_EQ(list.GetHead().m_value, 1);
}

TEST(List, ThrowingElementsLeaveTheList)
{
    WatchedList list;
    const Counted element(3);
    for (int nth = 1; nth <= 2; ++nth)
    {
        Counted::ThrowAt(nth);
        EXPECT_EQ(ThrownBy([&] { list.AddTail(element); }), "CMemoryException");
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_FALSE(list.HasBlocks());
    }
    EXPECT_EQ(Counted::Alive(), 1);
}

TEST(List, EmptyListAndNullPositionThrow)
{
    CObList list;
    POSITION pos = NULL;
    EXPECT_EQ(ThrownBy([&] { list.GetHead(); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { list.RemoveTail(); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { list.GetAt(NULL); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { list.RemoveAt(NULL); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { list.GetNext(pos); }), kInvalidArg);
}
