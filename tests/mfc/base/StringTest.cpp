// CString: sharing, conversion, formatting, searching, and what bad arguments do.

#include "Thrown.h"
#include "resource.h"

#include <afx.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

TEST(String, CopiesShareTheBufferUntilOneIsWritten)
{
    CString first(L"shared");
    CString second = first;
    EXPECT_EQ(first.GetString(), second.GetString());

    second.SetAt(0, L'S');
    EXPECT_NE(first.GetString(), second.GetString());
    EXPECT_STREQ(first, L"shared");
    EXPECT_STREQ(second, L"Shared");

    second = first;
    EXPECT_EQ(first.GetString(), second.GetString());
    LPCTSTR const before = first;
    second.Empty();
    first.SetAt(0, L'!');
    EXPECT_EQ(first.GetString(), before) << "the last owner writes in place";
}

TEST(String, ChangesThatChangeNothingKeepSharing)
{
    CString first(L"text");
    CString second = first;
    second.Trim();
    second.Remove(L'q');
    second.Replace(L"q", L"x");
    second.Truncate(10);
    second.Delete(9);
    EXPECT_EQ(first.GetString(), second.GetString());
    EXPECT_EQ(first.Mid(0).GetString(), first.GetString());
}

TEST(String, LockedBufferIsNotSharedAndStaysLocked)
{
    CString locked(L"locked");
    LPTSTR const buffer = locked.LockBuffer();
    const CString copy = locked;
    EXPECT_NE(copy.GetString(), buffer);
    const CString other(L"other");
    locked = other;
    EXPECT_NE(locked.GetString(), other.GetString()) << "a locked string does not take over another's buffer";
    EXPECT_STREQ(locked, L"other");
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
        {
            CString copy = shared;
            CString another = copy;
            if (n % 64 == 0)
                another += L"!";
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(copyOften);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_STREQ(shared, L"counted by all");
}

TEST(String, ConstructsFromEverySource)
{
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr)).IsEmpty());
    EXPECT_STREQ(CString(L'x', 3), L"xxx");
    EXPECT_TRUE(CString(L'x', 0).IsEmpty());
    EXPECT_STREQ(CString(L"abcdef", 3), L"abc");
    EXPECT_STREQ(CString("narrow"), L"narrow");
    EXPECT_STREQ(CString("narrow", 3), L"nar");
    EXPECT_STREQ(CStringA(L"wide"), "wide");
    EXPECT_EQ(CString(CString(L"a\0b", 3)).GetLength(), 3);
}

TEST(String, ConvertsThroughTheAnsiCodePage)
{
    const WCHAR umlaut[] = {0x00E4, 0};
    char expected[8] = {};
    ASSERT_GT(WideCharToMultiByte(CP_ACP, 0, umlaut, -1, expected, sizeof(expected), nullptr, nullptr), 1);

    const CStringA narrow(umlaut);
    EXPECT_STREQ(narrow, expected);
    CString wide;
    wide = narrow;
    EXPECT_STREQ(wide, umlaut);
    wide += narrow;
    EXPECT_EQ(wide.GetLength(), 2);
}

TEST(String, LoadsStringResources)
{
    CString str(L"kept");
    EXPECT_FALSE(str.LoadString(IDS_NO_SUCH_STRING));
    EXPECT_STREQ(str, L"kept");
    EXPECT_TRUE(str.LoadString(IDS_GREETING));
    EXPECT_STREQ(str, L"Good day");
    EXPECT_STREQ(CString(MAKEINTRESOURCE(IDS_GREETING)), L"Good day");
    EXPECT_TRUE(CString(MAKEINTRESOURCE(IDS_NO_SUCH_STRING)).IsEmpty());

    const WORD german = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);
    EXPECT_TRUE(str.LoadString(GetModuleHandle(nullptr), IDS_GREETING, german));
    EXPECT_STREQ(str, L"Guten Tag");
    EXPECT_FALSE(str.LoadString(GetModuleHandle(nullptr), IDS_COUNT_FORMAT, german));
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
}

TEST(String, StringsArePassedToFormatsAsTheyAre)
{
    const CString name(L"name");
    CString str;
    str.Format(L"%s_%d_%s", name, 3, CString(L"temporary"));
    EXPECT_STREQ(str, L"name_3_temporary");
    str.Format(L"<%s|%s>", str, str);
    EXPECT_STREQ(str, L"<name_3_temporary|name_3_temporary>");
    str.Format(IDS_COUNT_FORMAT, name, 5);
    str.AppendFormat(L", %s", str);
    EXPECT_STREQ(str, L"name has 5, name has 5");
    str.FormatMessage(L"%2 and %1!d!", 5, name);
    EXPECT_STREQ(str, L"name and 5");
    str.Format(L"%s", CString(L'x', 5000));
    EXPECT_EQ(str.GetLength(), 5000);
}

TEST(String, ComparesInAllMixtures)
{
    const CString abc(L"abc");
    const CString abd(L"abd");
    EXPECT_TRUE(abc == L"abc" && L"abc" == abc && abc == "abc" && "abc" == abc);
    EXPECT_TRUE(abc != abd && abc != L"abd" && L"abd" != abc);
    EXPECT_TRUE(abc < abd && abc < L"abd" && L"abc" < abd && abd > abc && abd > L"abc" && L"abd" > abc);
    EXPECT_TRUE(abc <= abd && abc <= L"abc" && L"abd" >= abd && abd >= L"abc");
    EXPECT_TRUE(CString(L"x") == L'x' && CString(L"xx") != L'x' && abc != L'a');
    EXPECT_EQ(abc.CompareNoCase(L"ABC"), 0);
    EXPECT_LT(abc.Collate(abd), 0);
}

TEST(String, ConcatenatesInAllMixtures)
{
    const CString ab(L"ab");
    EXPECT_STREQ(ab + ab + L"c" + "d" + L'e' + 'f', L"ababcdef");
    EXPECT_STREQ(L'1' + (L"0" + ab), L"10ab");
    EXPECT_STREQ('1' + ("0" + ab), L"10ab");

    CString str(ab);
    str += "d";
    str += L'e';
    str += 'f';
    str.Append(L"ghi", 2);
    EXPECT_STREQ(str, L"abdefgh");
}

TEST(String, MayBeChangedFromItsOwnText)
{
    CString str(L"0123456789");
    for (int i = 0; i < 4; ++i)
        str += str;
    EXPECT_EQ(str.GetLength(), 160);
    EXPECT_STREQ(str.Right(10), L"0123456789");
    str = str.GetString() + 155;
    EXPECT_STREQ(str, L"56789");
    str.Append(str.GetString() + 3);
    EXPECT_STREQ(str, L"5678989");
    str.Insert(1, str);
    EXPECT_STREQ(str, L"55678989678989");
    str.Replace(str.Left(2), str);
    EXPECT_STREQ(str, L"55678989678989678989678989");
}

TEST(String, CutsPartsToTheText)
{
    const CString str(L"abcdef");
    EXPECT_STREQ(str.Mid(2, 2), L"cd");
    EXPECT_STREQ(str.Mid(4, 100), L"ef");
    EXPECT_STREQ(str.Mid(2, INT_MAX), L"cdef");
    EXPECT_STREQ(str.Mid(-3, 2), L"ab");
    EXPECT_STREQ(str.Mid(7, 1), L"");
    EXPECT_STREQ(str.Left(-1), L"");
    EXPECT_STREQ(str.Right(2), L"ef");
    EXPECT_STREQ(str.Right(100), L"abcdef");
    EXPECT_STREQ(str.SpanIncluding(L"cab"), L"abc");
    EXPECT_STREQ(str.SpanExcluding(L"dc"), L"ab");
}

TEST(String, ChangesInPlace)
{
    CString str(L"Abc");
    EXPECT_STREQ(str.MakeUpper(), L"ABC");
    EXPECT_STREQ(str.MakeReverse(), L"CBA");
    EXPECT_EQ(str.Insert(1, L'-'), 4);
    EXPECT_EQ(str.Insert(100, L"!!"), 6);
    EXPECT_EQ(str.Insert(-5, L">"), 7);
    EXPECT_STREQ(str, L">C-BA!!");
    EXPECT_EQ(str.Delete(5, 100), 5);
    EXPECT_EQ(str.Delete(0), 4);
    EXPECT_STREQ(str, L"C-BA");
}

TEST(String, ReplacesAndRemoves)
{
    CString str(L"aaaaa");
    EXPECT_EQ(str.Replace(L"aa", L"bcd"), 2) << "from the left, without overlap";
    EXPECT_STREQ(str, L"bcdbcda");
    EXPECT_EQ(str.Replace(L"bcd", nullptr), 2);
    EXPECT_STREQ(str, L"a");
    EXPECT_EQ(str.Replace(L"", L"x"), 0);
    EXPECT_EQ(str.Replace(L'a', L'b'), 1);
    EXPECT_EQ(str.Remove(L'b'), 1);
    EXPECT_TRUE(str.IsEmpty());
}

TEST(String, Trims)
{
    EXPECT_STREQ(CString(L" \t\nx y\r\n ").Trim(), L"x y");
    EXPECT_STREQ(CString(L"   ").Trim(), L"");
    EXPECT_STREQ(CString(L"00100").TrimLeft(L'0'), L"100");
    EXPECT_STREQ(CString(L"00100").TrimRight(L'0'), L"001");
    EXPECT_STREQ(CString(L"{[x]}").Trim(L"[]{}"), L"x");
    EXPECT_STREQ(CString(L"{[x]}").TrimRight(L"[]{}"), L"{[x");
    EXPECT_STREQ(CString(L"{[x]}").TrimLeft(L""), L"{[x]}");
}

TEST(String, Finds)
{
    const CString str(L"banana");
    EXPECT_EQ(str.Find(L'a', 2), 3);
    EXPECT_EQ(str.Find(L'x'), -1);
    EXPECT_EQ(str.Find(L'a', 6), -1);
    EXPECT_EQ(str.Find(L"ana"), 1);
    EXPECT_EQ(str.Find(L"ana", 2), 3);
    EXPECT_EQ(str.Find(L"ana", -1), -1);
    EXPECT_EQ(str.Find(L"", 6), 6);
    EXPECT_EQ(str.Find(L"", 7), -1);
    EXPECT_EQ(str.ReverseFind(L'n'), 4);
    EXPECT_EQ(str.ReverseFind(L'x'), -1);
    EXPECT_EQ(str.FindOneOf(L"xn"), 2);
    EXPECT_EQ(str.FindOneOf(L"xyz"), -1);
}

TEST(String, Tokenizes)
{
    const CString str(L"%First Second#Third");
    std::vector<std::wstring> tokens;
    int start = 0;
    for (CString token = str.Tokenize(L"% #", start); start != -1; token = str.Tokenize(L"% #", start))
        tokens.emplace_back(token.GetString());
    EXPECT_EQ(tokens, (std::vector<std::wstring>{L"First", L"Second", L"Third"}));

    start = 0;
    EXPECT_TRUE(CString(L",,,").Tokenize(L",", start).IsEmpty());
    EXPECT_EQ(start, -1);
    EXPECT_EQ(ThrownBy([&] { str.Tokenize(L",", start); }), kInvalidArg);
    start = 7;
    EXPECT_STREQ(str.Tokenize(L"", start), L"Second#Third");
}

TEST(String, BufferAccessFollowsTheAnnouncedLength)
{
    CString str;
    LPTSTR buffer = str.GetBuffer(20);
    lstrcpy(buffer, L"written");
    str.ReleaseBuffer();
    EXPECT_EQ(str.GetLength(), 7);
    str.GetBuffer();
    str.ReleaseBuffer(4);
    EXPECT_STREQ(str, L"writ");
    buffer = str.GetBufferSetLength(6);
    buffer[4] = L'e';
    buffer[5] = L'r';
    EXPECT_STREQ(str, L"writer");
    str.GetBuffer(3);
    EXPECT_STREQ(str, L"writer") << "a smaller buffer than the text does not cut it";

    EXPECT_GE(str.GetAllocLength(), 20);
    str.FreeExtra();
    EXPECT_EQ(str.GetAllocLength(), 6);
    EXPECT_STREQ(str, L"writer");
}

TEST(String, BadArgumentsThrowAndLeaveTheText)
{
    CString str(L"kept");
    const auto expectInvalid = [&](auto function)
    {
        EXPECT_EQ(ThrownBy(function), kInvalidArg);
        EXPECT_STREQ(str, L"kept");
    };
    EXPECT_EQ(str.GetAt(4), 0) << "the terminator may be read";
    expectInvalid([&] { str.GetAt(5); });
    expectInvalid([&] { str.GetAt(-1); });
    expectInvalid([&] { str.SetAt(4, L'x'); });
    expectInvalid([&] { str.GetBuffer(-1); });
    expectInvalid([&] { str.ReleaseBuffer(1000); });
    expectInvalid([&] { str.SetString(nullptr, 2); });
    expectInvalid([&] { str.SetString(L"x", -1); });
    expectInvalid([&] { str.Format(static_cast<LPCTSTR>(nullptr)); });
    expectInvalid([&] { str.SpanIncluding(nullptr); });
    expectInvalid([&] { str.Compare(nullptr); });
    expectInvalid([&] { CString("abc", -1); });
}

TEST(Text, NumberedInsertsTakeTheirPlaces)
{
    CString str;
    AfxFormatString2(str, IDS_NUMBERED_INSERTS, L"one", L"two");
    EXPECT_STREQ(str, L"two before one, not ?");
}

TEST(Text, PartsMayBeEmptyAndEnd)
{
    const LPCTSTR parts[] = {L"a", L"b", L"", L"d"};
    CString str;
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_TRUE(AfxExtractSubString(str, L"a,b,,d", i, L','));
        EXPECT_STREQ(str, parts[i]);
    }
    EXPECT_FALSE(AfxExtractSubString(str, L"a,b,,d", 4, L','));
    EXPECT_TRUE(str.IsEmpty());
}
