// CString: sharing, conversion, formatting, searching, and what bad arguments do.

#include "Answers.h"
#include "resource.h"

TEST(String, CopiesShareTheBufferUntilOneIsReallyChanged)
{
    CString first(L"shared");
    CString second = first;
    second.Trim();
    second.Remove(L'q');
    second.Replace(L"q", L"x");
    second.Truncate(10);
    second.Delete(9);
    EXPECT_EQ(first.GetString(), second.GetString()) << "nothing of that changed it";
    EXPECT_EQ(first.Mid(0).GetString(), first.GetString());

    second.SetAt(0, L'S');
    EXPECT_EQ(Told(first, second), "shared,Shared");
    second = first;
    LPCTSTR const before = first;
    EXPECT_EQ(second.GetString(), before);
    second.Empty();
    first.SetAt(0, L'!');
    EXPECT_EQ(first.GetString(), before) << "the last owner writes in place";
    second = first;
    second = L"new";
    EXPECT_STREQ(first, L"!hared");
    second = L"";
    EXPECT_TRUE(second.IsEmpty());

    CString locked(L"locked");
    LPTSTR const buffer = locked.LockBuffer();
    EXPECT_NE(CString(locked).GetString(), buffer);
    locked = first;
    EXPECT_STREQ(locked, L"!hared");
    EXPECT_NE(locked.GetString(), before) << "a locked string does not take over another's buffer";
    locked += L" and a good deal longer than before";
    EXPECT_NE(CString(locked).GetString(), locked.GetString());
    locked.UnlockBuffer();
    EXPECT_EQ(CString(locked).GetString(), locked.GetString());
}

TEST(String, BuffersMayBeSharedByThreads)
{
    const CString shared(L"counted by all");
    const auto copyOften = [shared]
    {
        for (int n = 0; n < 20000; ++n)
            CString(shared).SetAt(0, L'!');
    };
    for (std::jthread threads[4]; auto& thread : threads)
        thread = std::jthread(copyOften);
    EXPECT_STREQ(shared, L"counted by all");
}

TEST(String, ConstructsFromEverySource)
{
    EXPECT_EQ(CString().GetAllocLength(), 0) << "costs no memory";
    EXPECT_EQ(Told(CString(static_cast<LPCWSTR>(nullptr)), CString(L'x', 3), CString(L'x', 0)), ",xxx,");
    EXPECT_EQ(Told(CString(L"abcdef", 3), CString("narrow"), CString("narrow", 3), CString("x", 0),
                   CString('y', 2)),
              "abc,narrow,nar,,yy");
    EXPECT_STREQ(CStringA(L"wide"), "wide");
    EXPECT_EQ(CString(CString(L"a\0b", 3)).GetLength(), 3);

    const WCHAR umlaut[] = {0x00E4, 0};
    char expected[8] = {};
    ASSERT_GT(WideCharToMultiByte(CP_ACP, 0, umlaut, -1, expected, sizeof(expected), nullptr, nullptr), 1);
    const CStringA narrow(umlaut);
    EXPECT_STREQ(narrow, expected);
    CString wide;
    wide = narrow;
    wide += narrow;
    EXPECT_STREQ(wide, CString(umlaut[0], 2));
    BSTR system = CString(L"before").AllocSysString();
    EXPECT_EQ(wide.SetSysString(&system), system);
    EXPECT_STREQ(system, wide);
    ::SysFreeString(system);
}

TEST(String, LoadsStringsFromResourcesAndTheEnvironment)
{
    CString str(L"kept");
    EXPECT_FALSE(str.LoadString(IDS_NO_SUCH_STRING));
    EXPECT_STREQ(str, L"kept");
    EXPECT_TRUE(str.LoadString(IDS_GREETING));
    EXPECT_EQ(Told(str, CString(MAKEINTRESOURCE(IDS_GREETING)), CString(MAKEINTRESOURCE(IDS_NO_SUCH_STRING))),
              "Good day,Good day,");
    const WORD german = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);
    EXPECT_FALSE(str.LoadString(GetModuleHandle(nullptr), IDS_COUNT_FORMAT, german));
    EXPECT_TRUE(str.LoadString(GetModuleHandle(nullptr), IDS_GREETING, german));
    EXPECT_STREQ(str, L"Guten Tag");

    ::SetEnvironmentVariable(L"OW_STRING_TEST", L"of the environment");
    EXPECT_TRUE(str.GetEnvironmentVariable(L"OW_STRING_TEST"));
    EXPECT_STREQ(str, L"of the environment");
    EXPECT_FALSE(str.GetEnvironmentVariable(L"OW_NO_SUCH_VARIABLE"));
    EXPECT_TRUE(str.IsEmpty());
}

TEST(String, FormatsWithTheWideMeaningOfTheRunTimeLibrary)
{
    CString str;
    str.Format(L"%s|%S|%hs|%ls|%c", L"wide", "narrow", "narrow", L"wide", L'c');
    EXPECT_STREQ(str, L"wide|narrow|narrow|wide|c");
    str.Format(L"%I64d|%5.2f|%-4d|%04X|%u", 1234567890123LL, 2.345, 7, 0xBEEF, 4000000000u);
    EXPECT_STREQ(str, L"1234567890123| 2.35|7   |BEEF|4000000000");
    str.Format(L"%lf %e", 0.5, 1e10);
    EXPECT_STREQ(str, L"0.500000 1.000000e+010") << "three digits of exponent are Microsoft's";
    CStringA narrow;
    narrow.Format("%s|%S", "narrow", L"wide");
    EXPECT_STREQ(narrow, "narrow|wide");

    const CString name(L"name"); // passed as it is, also to itself
    str.Format(L"%s_%d_%s", name, 3, CString(L"temporary"));
    str.Format(L"<%s|%s>", str, str);
    EXPECT_STREQ(str, L"<name_3_temporary|name_3_temporary>");
    str.Format(IDS_COUNT_FORMAT, name, 5);
    str.AppendFormat(L", %s", str);
    EXPECT_STREQ(str, L"name has 5, name has 5");
    str.FormatMessage(L"%2 and %1!d!", 5, name);
    EXPECT_STREQ(str, L"name and 5");
    str.Format(L"%s", CString(L'x', 5000));
    EXPECT_EQ(str.GetLength(), 5000);
    AfxFormatString2(str, IDS_NUMBERED_INSERTS, L"one", L"two");
    EXPECT_STREQ(str, L"two before one, not ?");
    LPCTSTR letters[12] = {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"j", L"k", L"l"};
    AfxFormatStrings(str, L"%9%A%C%Z%a%%0", letters, 12);
    EXPECT_STREQ(str, L"ijl?%a%%0");
}

TEST(String, ComparesAndConcatenatesInAllMixtures)
{
    const CString abc(L"abc"), abd(L"abd");
    EXPECT_TRUE(abc == L"abc" && L"abc" == abc && abc == "abc" && abc != abd && CString(L"xx") != L'x');
    EXPECT_TRUE(abc < abd && abc < L"abd" && L"abc" < abd && abc <= abd && abd > abc && L"abd" >= abd);
    EXPECT_TRUE(abc.CompareNoCase(L"ABC") == 0 && abc.Collate(abd) < 0);

    CString str(abc);
    str += "d";
    str += L'e';
    str += 'f';
    str.Append(L"ghi", 2);
    EXPECT_EQ(Told(abc + abd + L"c" + "d" + L'e' + 'f', L'1' + (L"0" + abc), '1' + ("0" + abc), str),
              "abcabdcdef,10abc,10abc,abcdefgh");
}

TEST(String, MayBeChangedFromItsOwnText)
{
    CString str(L"0123456789");
    for (int i = 0; i < 4; ++i)
        str += str;
    EXPECT_EQ(Told(str.GetLength(), str.Right(10)), "160,0123456789");
    str = str.GetString() + 155;
    EXPECT_STREQ(str, L"56789");
    str.Append(str.GetString() + 3);
    EXPECT_STREQ(str, L"5678989");
    str.Insert(1, str);
    EXPECT_STREQ(str, L"55678989678989");
    str.Replace(str.Left(2), str);
    EXPECT_STREQ(str, L"55678989678989678989678989");
}

TEST(String, SearchesAndChangesAsTheStandardStringDoes)
{
    const auto index = [](size_t found)
    { return found == std::wstring::npos ? -1 : static_cast<int>(found); };
    Dice dice;
    for (int round = 0; round < 2000; ++round)
    {
        const CString text = dice.Text(12), part = dice.Text(2);
        const std::wstring model(text), modelPart(part);
        const int size = text.GetLength();
        const int at = dice(size + 1);
        const int count = dice(15);
        SCOPED_TRACE(Told(text, part, at, count));
        ASSERT_EQ(text.Find(part, at), index(model.find(modelPart, at)));
        ASSERT_EQ(text.Find(L'b', at), index(model.find(L'b', at)));
        ASSERT_EQ(text.ReverseFind(L'b'), index(model.rfind(L'b')));
        ASSERT_EQ(text.FindOneOf(part), index(model.find_first_of(modelPart)));
        ASSERT_EQ(text.Mid(at, count), model.substr(at, count).c_str());
        ASSERT_EQ(text.Left(count), model.substr(0, count).c_str());
        ASSERT_EQ(text.Right(count), model.substr(std::max(0, size - count)).c_str());
        ASSERT_EQ(text.SpanExcluding(part), model.substr(0, model.find_first_of(modelPart)).c_str());
        ASSERT_EQ(text.SpanIncluding(part), model.substr(0, model.find_first_not_of(modelPart)).c_str());

        CString inserted(text), cut(text), removed(text), replaced(text);
        ASSERT_EQ(inserted.Insert(at, part), size + part.GetLength());
        ASSERT_EQ(inserted, std::wstring(model).insert(at, modelPart).c_str());
        ASSERT_EQ(cut.Delete(at, count), size - std::min(count, size - at));
        ASSERT_EQ(cut, std::wstring(model).erase(at, count).c_str());
        std::wstring without(model);
        ASSERT_EQ(removed.Remove(L'b'), std::erase(without, L'b'));
        ASSERT_EQ(removed, without.c_str());
        std::wstring changed(model); // from the left, without overlap
        int replacements = 0;
        for (size_t pos = 0; !part.IsEmpty() && (pos = changed.find(modelPart, pos)) != std::wstring::npos;
             pos += 3)
        {
            changed.replace(pos, modelPart.size(), L"abc");
            ++replacements;
        }
        ASSERT_EQ(replaced.Replace(part, L"abc"), replacements);
        ASSERT_EQ(replaced, changed.c_str());
        const size_t first = part.IsEmpty() ? 0 : std::min(model.find_first_not_of(modelPart), model.size());
        const size_t last = part.IsEmpty() ? model.size() : model.find_last_not_of(modelPart) + 1;
        ASSERT_EQ(CString(text).TrimLeft(part), model.substr(first).c_str());
        ASSERT_EQ(CString(text).TrimRight(part), model.substr(0, last).c_str());
    }
}

TEST(String, PlacesOutsideTheTextAreMovedIntoIt)
{
    CString str(L"Abcdef");
    EXPECT_EQ(Told(str.Mid(2, INT_MAX), str.Mid(-3, 2), str.Mid(7, 1), str.Left(-1)), "cdef,Ab,,");
    EXPECT_EQ(Told(str.Find(L'f', 6), str.Find(L"f", -1), str.Find(L"", 6), str.Find(L"", 7)), "-1,-1,6,-1");
    EXPECT_EQ(str.Insert(100, L"!!"), 8);
    EXPECT_EQ(str.Insert(-5, L'>'), 9);
    EXPECT_EQ(str.Delete(3, 100), 3);
    EXPECT_STREQ(str.MakeUpper(), L">AB");
    EXPECT_STREQ(str.MakeReverse(), L"BA>");
    EXPECT_EQ(str.Replace(L"BA", nullptr), 1);
    EXPECT_EQ(str.Replace(L'>', L'<'), 1);
    EXPECT_STREQ(str, L"<");
    EXPECT_EQ(Told(CString(L" \t\nx y\r\n ").Trim(), CString(L"   ").Trim(), CString(L"{[x]}").Trim(L"[]{}"),
                   CString(L"00100").TrimLeft(L'0').TrimRight(L'0')),
              "x y,,x,1");
}

TEST(String, Tokenizes)
{
    const CString str(L"%First Second#Third");
    CString tokens;
    int start = 0;
    for (CString token = str.Tokenize(L"% #", start); start != -1; token = str.Tokenize(L"% #", start))
        tokens += token + L'|';
    EXPECT_EQ(tokens, L"First|Second|Third|");
    start = 0;
    EXPECT_TRUE(CString(L",,,").Tokenize(L",", start).IsEmpty());
    EXPECT_EQ(start, -1);
    EXPECT_EQ(ThrownBy([&] { str.Tokenize(L",", start); }), kInvalidArg);
    start = 7;
    EXPECT_STREQ(str.Tokenize(L"", start), L"Second#Third");

    CString part;
    for (int i = 0; LPCTSTR expected : {L"a", L"b", L"", L"d"})
    {
        EXPECT_TRUE(AfxExtractSubString(part, L"a,b,,d", i++, L','));
        EXPECT_STREQ(part, expected);
    }
    EXPECT_FALSE(AfxExtractSubString(part, L"a,b,,d", 4, L','));
    EXPECT_TRUE(part.IsEmpty());
}

TEST(String, BufferAccessFollowsTheAnnouncedLength)
{
    CString str;
    lstrcpy(str.GetBuffer(20), L"written");
    str.ReleaseBuffer();
    EXPECT_EQ(str.GetLength(), 7);
    str.GetBuffer();
    str.ReleaseBuffer(4);
    EXPECT_STREQ(str, L"writ");
    LPTSTR const buffer = str.GetBufferSetLength(6);
    buffer[4] = L'e';
    buffer[5] = L'r';
    str.GetBuffer(3);
    EXPECT_STREQ(str, L"writer") << "a smaller buffer than the text does not cut it";
    EXPECT_GE(str.GetAllocLength(), 20);
    str.FreeExtra();
    EXPECT_EQ(Told(str.GetAllocLength(), str), "6,writer");
}

TEST(String, BadArgumentsThrowAndLeaveTheText)
{
    CString str(L"kept");
    EXPECT_EQ(str.GetAt(4), 0) << "the terminator may be read";
    const std::function<void()> faults[] = {
        [&] { str.GetAt(5); },
        [&] { str.GetAt(-1); },
        [&] { str.SetAt(4, L'x'); },
        [&] { str.GetBuffer(-1); },
        [&] { str.ReleaseBuffer(1000); },
        [&] { str.SetString(nullptr, 2); },
        [&] { str.SetString(L"x", -1); },
        [&] { str.Format(static_cast<LPCTSTR>(nullptr)); },
        [&] { str.SpanIncluding(nullptr); },
        [&] { str.Compare(nullptr); },
        [&] { CString("abc", -1); },
    };
    for (const auto& fault : faults)
        EXPECT_EQ(Told(ThrownBy(fault), str), "CInvalidArgException,kept") << &fault - faults;
}
