// Sorting, text files, saved widths, units of columns.

#include "BoxCloser.h"
#include "GridWindow.h"

#include <Translator.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace
{
class GridOrder : public ::testing::Test
{
protected:
    GridOrder() : grid(6, 2, 1, 1) {}
    void Fill(std::initializer_list<const wchar_t*> texts)
    {
        int nRow = 1;
        for (const wchar_t* text : texts)
        {
            grid.SetItemText(nRow, 1, text);
            grid.SetItemText(nRow, 0, text);
            grid.SetItemData(nRow, 1, nRow);
            grid.SetRowHeight(nRow, 10 + nRow);
            ++nRow;
        }
    }
    std::wstring Column()
    {
        std::wstring all;
        for (int nRow = 1; nRow < grid.GetRowCount(); ++nRow)
            all += std::wstring(grid.GetItemText(nRow, 1)) + L' ';
        return all;
    }
    OpenGrid grid;
};

class GridFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        wchar_t directory[MAX_PATH];
        ::GetTempPath(MAX_PATH, directory);
        path = std::wstring(directory) + L"ow_grid_test.txt";
    }
    void TearDown() override { ::DeleteFile(path.c_str()); }
    void Write(const std::string& contents)
    {
        FILE* file = _wfopen(path.c_str(), L"wb");
        ASSERT_NE(file, nullptr);
        fwrite(contents.data(), 1, contents.size(), file);
        fclose(file);
    }
    std::string Read()
    {
        FILE* file = _wfopen(path.c_str(), L"rb");
        std::string contents(10000, 0);
        contents.resize(file ? fread(contents.data(), 1, contents.size(), file) : 0);
        if (file)
            fclose(file);
        return contents;
    }
    std::wstring Text(int nRow, int nCol) { return grid.GetItemText(nRow, nCol).GetString(); }
    /// All rows, "|" between cells and "/" between rows.
    std::wstring All()
    {
        std::wstring all;
        for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
        {
            for (int nCol = 0; nCol < grid.GetColumnCount(); ++nCol)
                all += (nCol ? L"|" : L"") + Text(nRow, nCol);
            all += L'/';
        }
        return all;
    }
    std::wstring path;
    OpenGrid grid;
};
} // namespace

TEST_F(GridOrder, TextsByCodeUnitsAndWholeRows)
{
    Fill({L"b", L"B", L"a", L"10", L"9"});
    EXPECT_TRUE(grid.SortTextItems(1, TRUE));
    EXPECT_EQ(Column(), L"10 9 B a b ");
    EXPECT_EQ(grid.GetItemText(1, 0), L"10") << "the fixed column goes along";
    EXPECT_EQ(grid.GetItemData(1, 1), 4);
    EXPECT_EQ(grid.GetRowHeight(1), 14) << "and so does the height";
    EXPECT_TRUE(grid.SortTextItems(1, FALSE));
    EXPECT_EQ(Column(), L"b a B 9 10 ");
    EXPECT_EQ(grid.GetSortColumn(), 1);
    grid.SetItemText(2, 1, L"z");
    EXPECT_EQ(grid.GetSortColumn(), -1) << "may not be sorted any more";
}

TEST_F(GridOrder, TheHeadersOfTheOldAndTheNewColumnAreRepainted)
{
    ASSERT_TRUE(PlaceGrid(grid, SharedParent()));
    SetSizes(grid);
    const auto repainted = [&](int nCol)
    {
        grid.UpdateWindow();
        grid.SetSortColumn(nCol);
        CRect update;
        grid.GetUpdateRect(&update);
        return update;
    };
    EXPECT_EQ(repainted(1), CRect(kColWidth, 0, 2 * kColWidth, kRowHeight));
    EXPECT_EQ(repainted(0), CRect(0, 0, 2 * kColWidth, kRowHeight));
    EXPECT_EQ(repainted(-1), CRect(0, 0, kColWidth, kRowHeight));
}

TEST_F(GridOrder, NumbersAndAFunctionOfTheCallers)
{
    Fill({L"10", L"9 mm", L"no digits", L"-3", L"100"});
    EXPECT_TRUE(grid.SortItems(CGridCtrl::pfnCellNumericCompare, 1, TRUE));
    EXPECT_EQ(Column(), L"-3 no digits 9 mm 10 100 ");
    grid.SetCompareFunction(
        [](LPARAM first, LPARAM second, LPARAM sign)
        {
            return static_cast<int>(sign * (reinterpret_cast<CGridCellBase*>(first)->GetData() -
                                            reinterpret_cast<CGridCellBase*>(second)->GetData()));
        });
    EXPECT_TRUE(grid.SortItems(1, TRUE, -1));
    EXPECT_EQ(Column(), L"100 -3 no digits 9 mm 10 ");
}

TEST_F(GridOrder, WhatCannotBeSortedStillDropsTheSelection)
{
    grid.SetSelectedRange(1, 1, 2, 1);
    grid.SetFocusCell(1, 1);
    EXPECT_FALSE(grid.SortTextItems(7, TRUE));
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
    EXPECT_TRUE(grid.SortTextItems(-1, TRUE)) << "a negative column finds no cells, and moves nothing";
    grid.SetFixedRowCount(6);
    EXPECT_FALSE(grid.SortTextItems(1, TRUE));
}

TEST_F(GridOrder, AComparisonThatDeletesRowsEndsTheSort)
{
    Fill({L"5", L"4", L"3", L"2", L"1"});
    grid.SortItems(
        [](LPARAM, LPARAM, LPARAM data)
        {
            auto& sorted = *reinterpret_cast<OpenGrid*>(data);
            sorted.DeleteRow(sorted.GetRowCount() - 1);
            return 1;
        },
        1, TRUE, reinterpret_cast<LPARAM>(&grid));
    EXPECT_EQ(grid.GetRowCount(), 5);
}

TEST_F(GridFile, WritesALineForEachRow)
{
    grid.SetColumnCount(2);
    grid.SetRowCount(2);
    grid.SetItemText(0, 0, L"A");
    grid.SetItemText(0, 1, L"B");
    grid.SetItemText(1, 0, L"C");
    grid.SetItemText(1, 1, L"D");
    EXPECT_TRUE(grid.Save(path.c_str(), L','));
    EXPECT_EQ(Read(), "A,B\r\nC,D\r\n");

    ASSERT_TRUE(grid.Load(path.c_str(), L','));
    EXPECT_EQ(All(), L"A|D/C|/") << "the first field of a line lands one row below the others";
    EXPECT_EQ(grid.GetFixedRowCount(), 0);
}

TEST_F(GridFile, ReadsLinesOfAnyLengthAndSizesTheColumns)
{
    Write("h1;h2;heading 3\nx;;y\n\nz\n");
    ASSERT_TRUE(grid.Load(path.c_str(), L';'));
    EXPECT_EQ(All(), L"h1||y/x||/||/z||/");
    EXPECT_EQ(grid.GetColumnWidth(0), grid.GetTextExtent(0, 0, L"h1").cx);
    EXPECT_EQ(grid.GetColumnWidth(2), grid.GetTextExtent(0, 2, L"y").cx) << "by what has come into it";
    EXPECT_EQ(grid.GetItemFormat(0, 0), GV_HEADING_FORMAT);
    for (const int length : {1022, 1023, 1024, 2046, 5000})
    {
        Write("head\n" + std::string(length, 'x') + "\n");
        ASSERT_TRUE(grid.Load(path.c_str(), L','));
        size_t total = 0;
        for (int nRow = 1; nRow < grid.GetRowCount(); ++nRow)
            total += Text(nRow, 0).size();
        EXPECT_EQ(total, static_cast<size_t>(length)) << "in pieces, each a line";
    }
}

TEST_F(GridFile, ABrokenOneIsReported)
{
    // A pipe that its reader closes as soon as the first cell is asked for.
    constexpr wchar_t kPipe[] = L"\\\\.\\pipe\\ow_grid_test";
    static HANDLE s_hReader = INVALID_HANDLE_VALUE;
    s_hReader = ::CreateNamedPipe(kPipe, PIPE_ACCESS_INBOUND, PIPE_TYPE_BYTE, 1, 0, 64, 0, nullptr);
    ASSERT_NE(s_hReader, INVALID_HANDLE_VALUE);
    grid.SetVirtualMode(TRUE);
    grid.SetCallbackFunc(
        [](GV_DISPINFO* pInfo, LPARAM)
        {
            ::CloseHandle(std::exchange(s_hReader, INVALID_HANDLE_VALUE));
            pInfo->item.strText = L"more than a buffer of the stream holds";
            return 0;
        },
        0);
    grid.SetColumnCount(1);
    grid.SetRowCount(10000);
    const BoxCloser closer;
    EXPECT_FALSE(grid.Save(kPipe, L','));
    EXPECT_TRUE(closer.Seen());
    EXPECT_EQ(s_hReader, INVALID_HANDLE_VALUE) << "it was opened, and broke while it was written";
}

TEST_F(GridFile, EmptyBinaryAndMissingFilesLeaveASoundGrid)
{
    grid.SetColumnCount(2);
    grid.SetRowCount(2);
    Write("");
    EXPECT_TRUE(grid.Load(path.c_str(), L','));
    EXPECT_EQ(grid.GetRowCount(), 0);
    std::string binary;
    for (int i = 0; i < 4000; ++i)
        binary += static_cast<char>((i * 167 + i / 13) % 256);
    Write(binary);
    EXPECT_TRUE(grid.Load(path.c_str(), L','));
    for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
        for (int nCol = 0; nCol < grid.GetColumnCount(); ++nCol)
            ASSERT_NE(grid.GetCell(nRow, nCol), nullptr);

    grid.DeleteAllItems();
    grid.SetColumnCount(1);
    grid.SetRowCount(1);
    grid.SetItemText(0, 0, L"stays");
    {
        const BoxCloser closer;
        EXPECT_FALSE(grid.Load(L"Z:\\no\\such\\file.txt", L','));
        EXPECT_TRUE(closer.Seen());
        EXPECT_FALSE(grid.Save(L"Z:\\no\\such\\file.txt", L','));
    }
    EXPECT_EQ(Text(0, 0), L"stays");
    grid.SetVirtualMode(TRUE);
    EXPECT_FALSE(grid.Load(path.c_str(), L','));
}

TEST(GridWidths, WinOverTheFirstOneThatIsSet)
{
    const CString key(L"GridWidthsTest");
    {
        OpenGrid first(1, 3);
        first.SetPersistentGridColumnsWidth(key, 5);
        first.SetColumnWidth(1, 123, TRUE);
    }
    OpenGrid second(1, 3);
    second.SetColumnWidth(1, 50);
    EXPECT_EQ(second.GetColumnWidth(1), 50) << "without a key nothing is read";
    second.SetPersistentGridColumnsWidth(key, 5);
    second.SetColumnWidth(1, 50);
    EXPECT_EQ(second.GetColumnWidth(1), 123);
    second.SetColumnWidth(1, 50, TRUE);
    EXPECT_EQ(second.GetColumnWidth(1), 50);
}

TEST(GridUnits, HeadColumnsAndStayAtTheirIndex)
{
    OpenGrid grid(2, 2, 1, 0);
    CComplexUnit mm(CMeasurementUnit(2, 0)), back;
    grid.SetColDescription(1, &mm, L"Opis");
    CString expected;
    expected.Format(L"%s [mm]", gOtLang.Do(L"Opis").GetString());
    EXPECT_EQ(grid.GetItemText(0, 1), expected);
    EXPECT_TRUE(grid.GetColComplexUnit(1, back));
    EXPECT_TRUE(back == mm);
    grid.DeleteAllItems();
    EXPECT_TRUE(grid.GetColComplexUnit(1, back)) << "survives the items";
    grid.SetColDescription(1, nullptr, L"Opis");
    EXPECT_FALSE(grid.GetColComplexUnit(1, back));
    grid.SetColComplexUnit(3, mm);
    grid.ResetAllComplexUnits();
    EXPECT_FALSE(grid.GetColComplexUnit(3, back));
}
