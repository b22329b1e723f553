// Sorting, text files, saved widths, units of columns.

#include "GridFixture.h"

#include <Translator.h>

namespace
{
/// All cells from a place on, "|" between cells and an end behind each row.
std::wstring TextsOf(const CGridCtrl& grid, int nFirstRow, int nFirstCol, const wchar_t* end)
{
    std::wstring all;
    for (int nRow = nFirstRow; nRow < grid.GetRowCount(); ++nRow, all += end)
        for (int nCol = nFirstCol; nCol < grid.GetColumnCount(); ++nCol)
            all += (nCol > nFirstCol ? L"|" : L"") + std::wstring(grid.GetItemText(nRow, nCol));
    return all;
}

class CPlacedCell : public CGridCell
{
    DECLARE_DYNCREATE(CPlacedCell)
public:
    void SetCoords(int nRow, int nCol) override { place = CCellID(nRow, nCol); }
    CCellID place;
};
IMPLEMENT_DYNCREATE(CPlacedCell, CGridCell)

class GridFile : public ::testing::Test
{
protected:
    GridFile()
    {
        wchar_t directory[MAX_PATH];
        ::GetTempPath(MAX_PATH, directory);
        path = std::filesystem::path(directory) / L"ow_grid_test.txt";
    }
    ~GridFile() override { ::DeleteFile(path.c_str()); }
    void Write(const std::string& contents) { std::ofstream(path, std::ios::binary) << contents; }
    std::string Read()
    {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    std::filesystem::path path;
    OpenGrid grid;
};
} // namespace

TEST(GridOrder, NumbersAndAFunctionOfTheCallers)
{
    OpenGrid grid(6, 2, 1, 1);
    const wchar_t* const texts[] = {L"10", L"9 mm", L"no digits", L"-3", L"100"};
    for (int nRow = 1; nRow < 6; ++nRow)
    {
        grid.SetCellType(nRow, 1, RUNTIME_CLASS(CPlacedCell));
        grid.SetItemText(nRow, 1, texts[nRow - 1]);
        grid.SetItemData(nRow, 1, nRow);
    }
    EXPECT_TRUE(grid.SortItems(CGridCtrl::pfnCellNumericCompare, 1, TRUE));
    EXPECT_EQ(TextsOf(grid, 1, 1, L" "), L"-3 no digits 9 mm 10 100 ");
    for (int nRow = 1; nRow < 6; ++nRow)
        EXPECT_EQ(static_cast<CPlacedCell&>(*grid.GetCell(nRow, 1)).place, CCellID(nRow, 1));
    static const auto dataOf = [](LPARAM cell) { return reinterpret_cast<CGridCellBase*>(cell)->GetData(); };
    grid.SetCompareFunction([](LPARAM first, LPARAM second, LPARAM sign)
                            { return static_cast<int>(sign * (dataOf(first) - dataOf(second))); });
    EXPECT_TRUE(grid.SortItems(1, TRUE, -1));
    EXPECT_EQ(TextsOf(grid, 1, 1, L" "), L"100 -3 no digits 9 mm 10 ");
    grid.SortItems(
        [](LPARAM, LPARAM, LPARAM data)
        {
            auto& sorted = *reinterpret_cast<OpenGrid*>(data);
            sorted.DeleteRow(sorted.GetRowCount() - 1);
            return 1;
        },
        1, TRUE, reinterpret_cast<LPARAM>(&grid));
    EXPECT_EQ(grid.GetRowCount(), 5) << "a comparison that deletes rows ends the sort";
    grid.SetSelectedRange(1, 1, 2, 1);
    EXPECT_FALSE(grid.SortTextItems(2, TRUE));
    EXPECT_EQ(grid.GetSelectedCount(), 0) << "dropped all the same";
    const std::wstring before = TextsOf(grid, 1, 1, L" ");
    for (const auto compare : {CGridCtrl::pfnCellTextCompare, CGridCtrl::pfnCellNumericCompare})
    {
        EXPECT_TRUE(grid.SortItems(compare, -1, TRUE)) << "a negative column finds no cells";
        EXPECT_EQ(compare(reinterpret_cast<LPARAM>(grid.GetCell(1, 1)), 0, 0), 0);
    }
    EXPECT_EQ(TextsOf(grid, 1, 1, L" "), before) << "and moves nothing";
}

TEST_F(GridFile, IsReadInPiecesWithTheFirstFieldOneRowBelow)
{
    grid.SetColumnCount(2);
    grid.SetRowCount(2);
    FillWithPlaces(grid);
    EXPECT_TRUE(grid.Save(path.c_str(), L','));
    EXPECT_EQ(Read(), "0/0,0/1\r\n1/0,1/1\r\n");
    std::string lines = "head\n";
    const std::pair<std::string, std::wstring> files[] = {
        {Read(), L"0/0|1/1;1/0|;"},
        {"h1,h2,heading 3\nx,,y\n\nz\n", L"h1||y;x||;||;z||;"},
        {"a,b,c\nold,er\nxy,z", L"a|er|c;old|z|r;xy||;"}, // goes on behind an unended line
        {lines.append(2046, 'x').append("\n"),
         L"head;" + std::wstring(1023, L'x') + L";" + std::wstring(1023, L'x') + L";;"},
        {"", L""}};
    for (const auto& [contents, texts] : files)
    {
        Write(contents);
        ASSERT_TRUE(grid.Load(path.c_str(), L','));
        EXPECT_EQ(TextsOf(grid, 0, 0, L";"), texts);
        int nWidest = -1;
        for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
            nWidest = std::max<int>(nWidest, grid.GetCellTextExtent(nRow, 0).cx);
        EXPECT_EQ(grid.GetColumnWidth(0), nWidest);
        EXPECT_EQ(grid.GetItemFormat(0, 0), texts.empty() ? 0 : GV_HEADING_FORMAT);
    }
}

TEST_F(GridFile, AMissingOrBrokenOneIsReported)
{
    constexpr int kTextOfBox = 0xFFFF;
    std::vector<std::wstring> told;
    const auto read = [&](CWnd& box) { told.push_back(owtest::TextOf(*box.GetDlgItem(kTextOfBox))); };
    owtest::ModalVisit boxes(std::vector<owtest::ModalVisit::Visitor>(3, read));
    grid.SetColumnCount(1);
    grid.SetRowCount(1);
    grid.SetItemText(0, 0, L"stays");
    EXPECT_FALSE(grid.Load(L"Z:\\no\\such\\file.txt", L','));
    EXPECT_FALSE(grid.Save(L"Z:\\no\\such\\file.txt", L','));
    EXPECT_EQ(grid.GetItemText(0, 0), L"stays");
    grid.SetVirtualMode(TRUE);
    grid.SetColumnCount(1);
    grid.SetRowCount(1);
    grid.SetCallbackFunc(
        [](GV_DISPINFO*, LPARAM)
        {
            AfxThrowFileException(CFileException::diskFull); // as the file itself would
            return 0;
        },
        0);
    EXPECT_FALSE(grid.Save(path.c_str(), L','));
    EXPECT_EQ(told.at(2), L"Unable to save grid list");
    EXPECT_FALSE(grid.Load(path.c_str(), L','));
}

TEST(GridWidths, AreKeptUnderTheirKeyAndWinOverTheFirstOneThatIsSet)
{
    const auto saved = [](const wchar_t* key) { return AfxGetApp()->GetProfileInt(L"OstrelWorks", key, -1); };
    const CString key(L"GridWidthsTest");
    AfxGetApp()->WriteProfileString(L"OstrelWorks", key + L"_5_col_3", nullptr); // of an earlier run
    {
        OpenGrid first(1, 3), unnamed(1, 3);
        first.SetPersistentGridColumnsWidth(key, 5);
        first.SetColumnWidth(1, 123, TRUE);
    }
    EXPECT_EQ(saved(L"GridWidthsTest_5_col_1"), 123u);
    EXPECT_EQ(saved(L"_col_1"), UINT(-1)) << "without a key nothing is written";
    AfxGetApp()->WriteProfileInt(L"OstrelWorks", key + L"_5_col_2", -9);
    OpenGrid second(1, 4);
    second.SetPersistentGridColumnsWidth(key, 5);
    for (const auto& [nCol, nWidth] : {std::pair(1, 123), std::pair(2, 0), std::pair(3, 50)})
    {
        second.SetColumnWidth(nCol, 50);
        EXPECT_EQ(second.GetColumnWidth(nCol), nWidth) << "nobody has a negative width";
    }
}

TEST(GridUnits, HeadColumnsAndStayAtTheirIndex)
{
    OpenGrid grid(2, 2, 1, 0);
    CComplexUnit mm(CMeasurementUnit(2, 0)), back;
    grid.SetColDescription(1, &mm, L"Opis");
    EXPECT_EQ(grid.GetItemText(0, 1), gOtLang.Do(L"Opis") + L" [mm]");
    grid.DeleteAllItems();
    EXPECT_TRUE(grid.GetColComplexUnit(1, back) && back == mm) << "survives the items";
    grid.SetColDescription(1, nullptr, L"Opis");
    EXPECT_FALSE(grid.GetColComplexUnit(1, back));
    grid.SetColComplexUnit(3, mm);
    grid.ResetAllComplexUnits();
    EXPECT_FALSE(grid.GetColComplexUnit(3, back));
}
