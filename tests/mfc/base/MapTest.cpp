// CMap and the maps made from it.

#include "Counted.h"
#include "Thrown.h"

#include <afxcoll.h>

#include <gtest/gtest.h>

#include <set>

namespace
{
struct CellKey
{
    int row;
    int column;

    bool operator==(const CellKey& other) const = default;
};
} // namespace

template <>
UINT AFXAPI HashKey<const CellKey&>(const CellKey& key)
{
    return UINT(key.row * 31 + key.column);
}

TEST(Map, KeepsManyKeysApart)
{
    CMap<int, int, int, int> map;
    for (int i = -5000; i < 5000; ++i)
        map.SetAt(i, i * 2);
    EXPECT_EQ(map.GetCount(), 10000);
    for (int i = -5000; i < 5000; ++i)
    {
        int value = 0;
        ASSERT_TRUE(map.Lookup(i, value));
        ASSERT_EQ(value, i * 2);
    }
    for (int i = -5000; i < 5000; i += 2)
        ASSERT_TRUE(map.RemoveKey(i));
    EXPECT_FALSE(map.RemoveKey(0));
    EXPECT_EQ(map.GetCount(), 5000);
    int value = -7;
    EXPECT_FALSE(map.Lookup(0, value));
    EXPECT_EQ(value, -7) << "an unsuccessful look-up leaves the value alone";
}

TEST(Map, SubscriptEntersNewKeys)
{
    CMapStringToString map;
    map[L"a"] = L"1";
    map[L"a"] += L"2";
    EXPECT_EQ(map[L"a"], L"12");
    EXPECT_TRUE(map[L"new"].IsEmpty());
    EXPECT_EQ(map.GetCount(), 2);

    CMap<DWORD, DWORD, void*, void*> pointers;
    EXPECT_EQ(pointers[5], nullptr) << "new values are zero";
}

TEST(Map, IteratesOverEachEntryOnce)
{
    CMapPtrToWord map;
    int keys[300];
    for (int i = 0; i < 300; ++i)
        map.SetAt(&keys[i], WORD(i));
    std::set<void*> seen;
    void* key;
    WORD value;
    for (POSITION pos = map.GetStartPosition(); pos != NULL;)
    {
        map.GetNextAssoc(pos, key, value);
        EXPECT_EQ(key, &keys[value]);
        EXPECT_TRUE(seen.insert(key).second);
        if (value % 2 == 0)
            map.RemoveKey(key); // the entry just answered may go
    }
    EXPECT_EQ(seen.size(), 300u);

    int pairs = 0;
    for (CMapPtrToWord::CPair* pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair))
        ++pairs;
    EXPECT_EQ(pairs, 150);
    POSITION end = NULL;
    EXPECT_EQ(ThrownBy([&] { map.GetNextAssoc(end, key, value); }), kInvalidArg);
}

TEST(Map, HashTableSizeIsSetWhileEmpty)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17u);
    map[1] = 1;
    EXPECT_EQ(ThrownBy([&] { map.InitHashTable(5); }), kInvalidArg);
    map.RemoveAll();
    map.InitHashTable(1, FALSE);
    map[1] = 1;
    map[2] = 2;
    EXPECT_EQ(map[1] + map[2], 3) << "two keys in one place";
    EXPECT_EQ(map.GetHashTableSize(), 1u);
}

TEST(Map, TakesKeysOfAClassWithItsOwnHash)
{
    CMap<CellKey, const CellKey&, CString, LPCTSTR> map;
    map.SetAt({1, 2}, L"first");
    map.SetAt({2, 1}, L"second");
    map.SetAt({1, 2}, L"again");
    EXPECT_EQ(map.GetCount(), 2);
    ASSERT_NE(map.PLookup({1, 2}), nullptr);
    EXPECT_EQ(map.PLookup({1, 2})->value, L"again");
    EXPECT_EQ(map.PLookup({3, 3}), nullptr);
}

TEST(Map, EveryValueIsDestroyedOnce)
{
    {
        CMap<int, int, Counted, const Counted&> map(3);
        for (int i = 0; i < 100; ++i)
        {
            map.SetAt(i, Counted(i));
            map.SetAt(i, Counted(i + 1));
        }
        EXPECT_EQ(Counted::Alive(), 100);
        map.RemoveKey(50);
        EXPECT_EQ(Counted::Alive(), 99);
        Counted::ThrowAt(1);
        EXPECT_EQ(ThrownBy([&] { map[50]; }), "CMemoryException");
        EXPECT_EQ(map.GetCount(), 99);
        EXPECT_EQ(map.PLookup(50), nullptr);
    }
    EXPECT_EQ(Counted::Alive(), 0);
}

TEST(Map, StringsAreKeysByTheirText)
{
    int target = 0;
    CMapStringToPtr byText;
    byText.SetAt(L"target", &target);
    LPCTSTR ownKey = nullptr;
    EXPECT_TRUE(byText.LookupKey(CString(L"target"), ownKey));
    EXPECT_STREQ(ownKey, L"target");
    EXPECT_FALSE(byText.LookupKey(L"other", ownKey));
}
