// CArray and the arrays made from it: growth, moves of elements, aliases, failures.

#include "Counted.h"
#include "Thrown.h"

#include <afxcoll.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
std::wstring Joined(const CStringArray& array)
{
    std::wstring joined;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        joined += array[i];
    return joined;
}

/// One element for each letter, and nothing else.
CStringArray& Fill(CStringArray& array, LPCTSTR letters)
{
    array.RemoveAll();
    for (; *letters != 0; ++letters)
        array.Add(CString(*letters));
    return array;
}
} // namespace

TEST(Array, GrowsAndKeepsItsElements)
{
    CUIntArray array;
    EXPECT_EQ(array.GetUpperBound(), -1);
    for (UINT i = 0; i < 10000; ++i)
        ASSERT_EQ(array.Add(i), INT_PTR(i));
    EXPECT_EQ(array[9999], 9999u);

    array.SetSize(10005);
    EXPECT_EQ(array[10004], 0u) << "new numbers are zero";
    array.SetSize(3);
    array.FreeExtra();
    array.SetAtGrow(6, 66);
    EXPECT_EQ(array.GetCount(), 7);
    EXPECT_EQ(array[2], 2u);
    EXPECT_EQ(array[3], 0u);
    EXPECT_EQ(array[6], 66u);
    array.SetSize(0);
    EXPECT_EQ(array.GetData(), nullptr);
}

TEST(Array, InsertsAndRemovesInTheMiddle)
{
    CStringArray array;
    Fill(array, L"abcd").InsertAt(2, L"X", 2);
    EXPECT_EQ(Joined(array), L"abXXcd");
    array.RemoveAt(2, 2);
    array.InsertAt(0, L"<");
    array.InsertAt(5, L">");
    EXPECT_EQ(Joined(array), L"<abcd>");
    array.InsertAt(7, L"!");
    EXPECT_EQ(Joined(array), L"<abcd>!") << "behind the end empty elements fill the gap";
    EXPECT_EQ(array.GetSize(), 8);

    CStringArray other;
    Fill(other, L"123");
    Fill(array, L"abcd").InsertAt(1, &other);
    EXPECT_EQ(Joined(array), L"a123bcd");
    EXPECT_EQ(array.Append(other), 7);
    EXPECT_EQ(Joined(array), L"a123bcd123");
    array.Copy(other);
    EXPECT_EQ(Joined(array), L"123");
}

TEST(Array, ElementsMayBeGivenFromTheArrayItself)
{
    CStringArray array;
    Fill(array, L"abc");
    for (int i = 0; i < 40; ++i)
        array.Add(array[1]);
    EXPECT_EQ(array[42], L"b");
    Fill(array, L"abc").FreeExtra();
    array.InsertAt(0, array[2], 2);
    EXPECT_EQ(Joined(array), L"ccabc");
    array.Append(array);
    EXPECT_EQ(Joined(array), L"ccabcccabc");
    array.Copy(array);
    EXPECT_EQ(array.GetSize(), 10);
    Fill(array, L"abc").InsertAt(1, &array);
    EXPECT_EQ(Joined(array), L"aabcbc");
}

TEST(Array, BadIndexThrows)
{
    CUIntArray array;
    array.SetSize(3);
    EXPECT_EQ(ThrownBy([&] { array.GetAt(3); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array[-1] = 1; }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.SetAt(3, 0); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.RemoveAt(2, 2); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.RemoveAt(4, 0); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.InsertAt(-1, 1u); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.InsertAt(0, static_cast<CUIntArray*>(nullptr)); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.SetAtGrow(-1, 1); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([&] { array.SetSize(-1); }), kInvalidArg);
    EXPECT_EQ(array.GetSize(), 3);
}

TEST(Array, MemoryFailureLeavesTheArray)
{
    CStringArray array;
    Fill(array, L"abc");
    const CString* const data = array.GetData();
    for (const INT_PTR size : {INTPTR_MAX, INTPTR_MAX / INT_PTR(sizeof(CString)), INT_PTR(1) << 50})
    {
        EXPECT_EQ(ThrownBy([&] { array.SetSize(size); }), "CMemoryException");
        EXPECT_EQ(ThrownBy([&] { array.SetAtGrow(size - 1, L"x"); }), "CMemoryException");
        EXPECT_EQ(ThrownBy([&] { array.InsertAt(1, L"x", size); }), "CMemoryException");
    }
    EXPECT_EQ(array.GetData(), data);
    EXPECT_EQ(Joined(array), L"abc");
}

TEST(Array, ThrowingElementsLeaveTheArray)
{
    CArray<Counted> array;
    const Counted extra(9);
    for (int nth = 1; nth <= 12; ++nth)
    {
        array.RemoveAll();
        for (int i = 0; i < 4; ++i)
            array.Add(Counted(i));
        array.FreeExtra();
        Counted::ThrowAt(nth);
        ThrownBy([&] { array.SetSize(10); });
        Counted::ThrowAt(0);
        ASSERT_TRUE(array.GetSize() == 4 || array.GetSize() == 10) << nth;

        array.SetSize(4);
        array.FreeExtra();
        Counted::ThrowAt(nth);
        const bool thrown = !ThrownBy([&] { array.Add(extra); }).empty();
        Counted::ThrowAt(0);
        ASSERT_EQ(array.GetSize(), thrown ? 4 : 5) << nth;
        for (int i = 0; i < 4; ++i)
            ASSERT_EQ(array[i].m_value, i);
    }
    array.RemoveAll();
    EXPECT_EQ(Counted::Alive(), 1);
}

TEST(Array, EveryElementIsDestroyedOnce)
{
    {
        CArray<Counted> array;
        for (int i = 0; i < 50; ++i)
            array.Add(Counted(i));
        EXPECT_EQ(Counted::Alive(), 50);
        array.InsertAt(10, Counted(-1), 5);
        array.RemoveAt(0, 20);
        EXPECT_EQ(Counted::Alive(), 35);
        EXPECT_EQ(array[0].m_value, 15);
        array.SetSize(5);
        EXPECT_EQ(Counted::Alive(), 5);
    }
    EXPECT_EQ(Counted::Alive(), 0);
}

TEST(Array, HoldsObjectsThatCanNotBeMoved)
{
    struct Unmovable : CObject
    {
        int m_value = 7;
    };
    CArray<Unmovable> array;
    array.SetSize(2);
    array[1].m_value = 8;
    array.SetSize(100);
    EXPECT_EQ(array[99].m_value, 7);
    array.RemoveAt(0);
    EXPECT_EQ(array[0].m_value, 8);
}

TEST(Array, TypedPointersKeepTheirType)
{
    struct Cell : CObject
    {
        int m_value = 0;
    };
    typedef CTypedPtrArray<CObArray, Cell*> Row;
    Cell cells[3];
    Row row;
    row.Add(&cells[0]);
    row.SetAtGrow(2, &cells[2]);
    row[1] = &cells[1];
    row.ElementAt(1)->m_value = 5;
    EXPECT_EQ(cells[1].m_value, 5);
    row.InsertAt(0, nullptr, 2);
    EXPECT_EQ(row.GetAt(3), &cells[1]);
    EXPECT_TRUE(row.IsKindOf(RUNTIME_CLASS(CObArray)));
}
