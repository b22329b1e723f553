// CArray, CList and CMap, and the collections made from them: random sequences against the standard
// containers, then what those cannot show (failures, lives of elements, keys and pointers of other types).

#include "Answers.h"

#include <afxcoll.h>

#include <deque>

namespace
{
using Texts = std::deque<std::wstring>;

Texts Contents(const CStringArray& array)
{
    return Texts(array.GetData(), array.GetData() + array.GetSize());
}

/// From the head on, and as well from the tail.
Texts Contents(const CStringList& list)
{
    Texts texts, backward;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
        texts.emplace_back(list.GetNext(pos));
    for (POSITION pos = list.GetTailPosition(); pos != nullptr;)
        backward.emplace_front(list.GetPrev(pos));
    EXPECT_EQ(texts, backward);
    return texts;
}

/// Counts its like. Constructions and copies count towards a throw; there are no moves, so that growing copies.
class Counted
{
public:
    Counted() : Counted(0) {}
    explicit Counted(int value) : m_value(value)
    {
        Step();
        ++s_alive;
    }
    Counted(const Counted& other) : Counted(other.m_value) {}
    Counted& operator=(const Counted& other)
    {
        Step();
        m_value = other.m_value;
        return *this;
    }
    ~Counted() { --s_alive; }

    int m_value;
    static inline int s_alive = 0;

    /// Whether the function throws, if the nth construction or copy from now on does.
    template <class Function>
    static bool Throws(int nth, Function function)
    {
        s_stepsToThrow = nth;
        const std::string thrown = ThrownBy(function);
        s_stepsToThrow = 0;
        return thrown == "CMemoryException";
    }

private:
    static void Step()
    {
        if (s_stepsToThrow > 0 && --s_stepsToThrow == 0)
            AfxThrowMemoryException();
    }
    static inline int s_stepsToThrow = 0;
};

struct CellKey
{
    int row, column;

    bool operator==(const CellKey& other) const = default;
};
} // namespace

template <>
UINT AFXAPI HashKey<const CellKey&>(const CellKey& key)
{
    return UINT(key.row * 31 + key.column);
}

TEST(Array, IsAVector)
{
    Dice dice;
    CStringArray array;
    Texts model;
    for (int round = 0; round < 3000; ++round)
    {
        const int size = static_cast<int>(model.size());
        const int at = dice(size + 1);
        const int count = dice(size - at + 1);
        const int own = at < size ? at : -1; // an element of the array itself, given by reference
        const CString letter = dice.Text(1);
        const CString& element = own >= 0 && dice(2) ? array[own] : letter;
        const std::wstring text(element);
        CStringArray letters;
        letters.Add(letter);
        letters.Add(L"!");
        CStringArray& source = size < 30 && dice(2) ? array : letters;
        const Texts given = Contents(source);
        const auto place = [&](int index) { return model.begin() + index; };
        switch (const int operation = dice(10))
        {
        case 0:
            ASSERT_EQ(array.Add(element), size);
            model.push_back(text);
            break;
        case 1:
        case 2: // behind the end empty elements fill the gap
        {
            const int gap = operation == 2 && own < 0 ? dice(4) : 0;
            array.InsertAt(at + gap, element, 2);
            model.insert(place(at), gap + 2, L"");
            std::fill_n(place(at + gap), 2, text);
            break;
        }
        case 3:
            array.InsertAt(at, &source);
            model.insert(place(at), given.begin(), given.end());
            break;
        case 4:
            ASSERT_EQ(array.Append(source), size);
            model.insert(model.end(), given.begin(), given.end());
            break;
        case 5:
            array.Copy(source);
            model = given;
            break;
        case 6:
            array.RemoveAt(at, count);
            model.erase(place(at), place(at + count));
            break;
        case 7:
            array.SetSize(size + 5 - dice(std::min(size, 10) + 1));
            model.resize(static_cast<size_t>(array.GetSize()));
            break;
        case 8:
            array.SetAtGrow(at + 2, element);
            model.resize(std::max<size_t>(model.size(), at + 3));
            model[at + 2] = text;
            break;
        default:
            array.FreeExtra();
        }
        ASSERT_EQ(Contents(array), model) << round;
        if (model.size() > 60)
        {
            array.SetSize(0);
            model.clear();
            ASSERT_EQ(array.GetData(), nullptr);
        }
    }
}

TEST(Collections, BadPlacesThrow)
{
    CUIntArray array;
    CObList list;
    POSITION none = nullptr;
    array.SetSize(3);
    EXPECT_EQ(array[2], 0u) << "new numbers are zero";
    const std::function<void()> faults[] = {
        [&] { array.GetAt(3); },
        [&] { array[-1] = 1; },
        [&] { array.SetAt(3, 0); },
        [&] { array.RemoveAt(2, 2); },
        [&] { array.RemoveAt(4, 0); },
        [&] { array.InsertAt(-1, 1u); },
        [&] { array.InsertAt(0, static_cast<CUIntArray*>(nullptr)); },
        [&] { array.SetAtGrow(-1, 1); },
        [&] { array.SetSize(-1); },
        [&] { list.GetHead(); },
        [&] { list.RemoveTail(); },
        [&] { list.GetAt(none); },
        [&] { list.RemoveAt(none); },
        [&] { list.GetNext(none); },
    };
    for (const auto& fault : faults)
        EXPECT_EQ(ThrownBy(fault), kInvalidArg) << &fault - faults;
    EXPECT_EQ(array.GetSize(), 3);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(Array, MemoryFailureLeavesTheArray)
{
    CStringArray array;
    array.Add(L"abc");
    const CString* const data = array.GetData();
    for (const INT_PTR size : {INTPTR_MAX, INTPTR_MAX / INT_PTR(sizeof(CString)), INT_PTR(1) << 50})
    {
        EXPECT_EQ(ThrownBy([&] { array.SetSize(size); }), "CMemoryException");
        EXPECT_EQ(ThrownBy([&] { array.SetAtGrow(size - 1, L"x"); }), "CMemoryException");
        EXPECT_EQ(ThrownBy([&] { array.InsertAt(1, L"x", size); }), "CMemoryException");
    }
    EXPECT_EQ(array.GetData(), data);
    EXPECT_EQ(Contents(array), Texts{L"abc"});
}

TEST(Array, ThrowingElementsLeaveTheArrayAndNoneIsForgotten)
{
    CArray<Counted> array;
    const Counted extra(9);
    for (int nth = 1; nth <= 12; ++nth)
    {
        array.RemoveAll();
        for (int i = 0; i < 4; ++i)
            array.Add(Counted(i));
        array.FreeExtra();
        const bool stays = Counted::Throws(nth, [&] { array.SetSize(10); });
        ASSERT_EQ(array.GetSize(), stays ? 4 : 10) << nth;

        array.SetSize(4);
        array.FreeExtra();
        const bool thrown = Counted::Throws(nth, [&] { array.Add(extra); });
        ASSERT_EQ(array.GetSize(), thrown ? 4 : 5) << nth;
        for (int i = 0; i < 4; ++i)
            ASSERT_EQ(array[i].m_value, i);
        array.InsertAt(2, extra, 5);
        array.RemoveAt(0, 3);
        ASSERT_EQ(Counted::s_alive, array.GetSize() + 1);
    }
    array.RemoveAll();
    EXPECT_EQ(Counted::s_alive, 1);
}

TEST(Collections, TypedOnesGiveAndTakeTheirPointers)
{
    struct Cell : CObject
    {
        int m_value = 7;
    };
    CArray<Cell> cells; // that can not be copied
    cells.SetSize(4);
    CTypedPtrArray<CObArray, Cell*> row;
    row.Add(&cells[0]);
    row[0] = &cells[1];
    row.ElementAt(0)->m_value = 5;
    EXPECT_TRUE(cells[1].m_value == 5 && row.IsKindOf(RUNTIME_CLASS(CObArray)));

    CTypedPtrList<CObList, Cell*> list;
    list.AddTail(&cells[1]);
    list.AddHead(&list);
    list.GetHead() = &cells[2];
    EXPECT_TRUE(list.RemoveHead() == &cells[2] && list.RemoveTail() == &cells[1] && list.IsEmpty());

    CTypedPtrMap<CMapStringToOb, CString, Cell*> map;
    map.SetAt(L"a", &cells[0]);
    map[L"b"] = &cells[1];
    Cell* found = nullptr;
    EXPECT_TRUE(map.Lookup(L"b", found) && !map.Lookup(L"c", found));
    EXPECT_EQ(found, &cells[1]) << "left alone";
    EXPECT_TRUE(map.RemoveKey(L"b"));
    POSITION pos = map.GetStartPosition();
    CString key;
    map.GetNextAssoc(pos, key, found);
    EXPECT_TRUE(key == L"a" && found == &cells[0] && pos == nullptr);
    cells.SetSize(100);
    cells.RemoveAt(0);
    EXPECT_EQ(cells[0].m_value * 10 + cells[98].m_value, 57);
}

TEST(List, IsADequeLinkedBothWays)
{
    Dice dice;
    CStringList list(4), pair;
    pair.AddTail(L"a");
    pair.AddTail(L"!");
    Texts model;
    for (int round = 0; round < 3000; ++round)
    {
        const int size = static_cast<int>(model.size());
        const int at = dice(size + 1); // at the size there is no position
        const POSITION position = list.FindIndex(at);
        const CString letter = dice.Text(1);
        const Texts given = model;
        switch (dice(size < 40 ? 9 : 5))
        {
        case 0:
            list.AddHead(letter);
            model.emplace_front(letter);
            break;
        case 1: // no position is the end that the call names
            list.InsertBefore(position, letter);
            model.emplace(model.begin() + (at < size ? at : 0), letter);
            break;
        case 2:
        case 3:
        case 4:
            if (position == nullptr)
                break;
            if (at == 0)
                ASSERT_EQ(list.RemoveHead(), model.front().c_str());
            else if (at + 1 == size)
                ASSERT_EQ(list.RemoveTail(), model.back().c_str());
            else
                list.RemoveAt(position);
            model.erase(model.begin() + at);
            break;
        case 5:
            list.InsertAfter(position, letter);
            model.emplace(model.begin() + std::min(at + 1, size), letter);
            break;
        case 6: // another list, here the list itself
            list.AddTail(&list);
            model.insert(model.end(), given.begin(), given.end());
            break;
        case 7:
            list.AddHead(&pair);
            model.insert(model.begin(), {L"a", L"!"});
            break;
        default:
            list.AddTail(letter);
            model.emplace_back(letter);
        }
        ASSERT_EQ(Contents(list), model) << round;
        std::vector<POSITION> found, meant; // one after the other, from each on
        for (POSITION pos = list.Find(letter); pos != nullptr; pos = list.Find(letter, pos))
            found.push_back(pos);
        for (size_t i = 0; i < model.size(); ++i)
            if (model[i] == letter.GetString())
                meant.push_back(list.FindIndex(INT_PTR(i)));
        ASSERT_EQ(found, meant) << round;
    }
}

TEST(List, GivesItsMemoryBackWithTheLastElementAndAfterAFailure)
{
    struct WatchedList : CList<Counted>
    {
        bool HasBlocks() const { return m_pBlocks != nullptr; }
    } list;
    for (int i = 0; i < 100; ++i)
        list.AddTail(Counted(i));
    EXPECT_EQ(Counted::s_alive, 100);
    const size_t filled = owtest::CountHeapBytes();
    while (list.GetCount() > 1)
        list.RemoveAt(list.FindIndex(list.GetCount() / 2));
    EXPECT_TRUE(list.HasBlocks());
    list.RemoveHead();
    EXPECT_FALSE(list.HasBlocks());
    EXPECT_LT(owtest::CountHeapBytes() + 100 * sizeof(Counted), filled);
    EXPECT_EQ(Counted::s_alive, 0);

    const Counted element(3);
    for (int nth = 1; nth <= 2; ++nth)
    {
        EXPECT_TRUE(Counted::Throws(nth, [&] { list.AddTail(element); }));
        EXPECT_TRUE(list.IsEmpty() && !list.HasBlocks());
    }
    EXPECT_EQ(Counted::s_alive, 1);
}

TEST(Map, IsAMapWhateverItsHashTable)
{
    for (const UINT places : {1u, 17u, 1000u})
    {
        Dice dice;
        CMap<int, int, int, int> map;
        EXPECT_EQ(map.GetHashTableSize(), 17u);
        map.InitHashTable(places, FALSE);
        std::map<int, int> model;
        for (int round = 0; round < 5000; ++round)
        {
            const int key = dice(400) - 200;
            int value = -7;
            ASSERT_EQ(map.Lookup(key, value) != FALSE, model.contains(key));
            ASSERT_EQ(value, model.contains(key) ? model[key] : -7) << "left alone";
            switch (dice(3))
            {
            case 0:
                map.SetAt(key, round);
                model[key] = round;
                break;
            case 1:
                ASSERT_EQ(map.RemoveKey(key) != FALSE, model.erase(key) == 1);
                break;
            default:
                ASSERT_EQ(map[key] += 1, model[key] += 1) << "a new value is zero";
            }
            ASSERT_EQ(map.GetCount(), INT_PTR(model.size()));
        }
        EXPECT_EQ(map.GetHashTableSize(), places);
        EXPECT_EQ(ThrownBy([&] { map.InitHashTable(5); }), kInvalidArg) << "only while it is empty";

        for (POSITION pos = map.GetStartPosition(); pos != nullptr;)
        {
            int key = 0, value = 0;
            map.GetNextAssoc(pos, key, value);
            ASSERT_TRUE(model.contains(key) && model[key] == value);
            model.erase(key);
            if (value % 2 == 0)
                map.RemoveKey(key); // the entry just answered may go
        }
        EXPECT_TRUE(model.empty());
        INT_PTR pairs = 0;
        for (auto* pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair))
            ++pairs;
        EXPECT_EQ(pairs, map.GetCount());
    }
    CMapPtrToWord empty;
    POSITION end = empty.GetStartPosition();
    void* key = nullptr;
    WORD value = 0;
    EXPECT_EQ(ThrownBy([&] { empty.GetNextAssoc(end, key, value); }), kInvalidArg);
}

TEST(Map, TakesTextsAndClassesWithTheirOwnHashAsKeys)
{
    CMap<CellKey, const CellKey&, CString, LPCTSTR> cells;
    cells.SetAt({1, 2}, L"first");
    cells.SetAt({2, 1}, L"second");
    cells.SetAt({1, 2}, L"again");
    EXPECT_EQ(cells.GetCount(), 2);
    EXPECT_TRUE(cells.PLookup({1, 2})->value == L"again" && cells.PLookup({3, 3}) == nullptr);

    CMapStringToString texts;
    texts[L"a"] = L"1";
    texts[CString(L"a")] += L"2";
    LPCTSTR ownKey = nullptr;
    EXPECT_TRUE(texts.LookupKey(CString(L"a"), ownKey) && !texts.LookupKey(L"other", ownKey));
    EXPECT_EQ(texts[ownKey], L"12");
    EXPECT_NE(HashKey<LPCTSTR>(&L"\0abc"[1]), HashKey<LPCTSTR>(&L"\0acb"[1]))
        << "each letter counts, and its place";
}

TEST(Map, EveryValueIsDestroyedOnce)
{
    {
        CMap<int, int, Counted, const Counted&> map(3);
        for (int i = 0; i < 200; ++i)
            map.SetAt(i / 2, Counted(i));
        EXPECT_EQ(Counted::s_alive, 100);
        map.RemoveKey(50);
        EXPECT_EQ(Counted::s_alive, 99);
        EXPECT_TRUE(Counted::Throws(1, [&] { map[50]; }));
        EXPECT_EQ(map.GetCount(), 99);
        EXPECT_EQ(map.PLookup(50), nullptr);
    }
    EXPECT_EQ(Counted::s_alive, 0);
}
