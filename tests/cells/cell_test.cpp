// What a cell holds, inherits and measures.

#include <DialogControlsOW.h>

#include "Testing.h"

namespace
{
class GridCell : public ::testing::Test
{
protected:
    GridCell() : grid(3, 3, 1, 1), cell(*grid.GetCell(1, 1)) {}
    CGridCtrl grid;
    CGridCellBase& cell;
};
} // namespace

TEST(GridCellBase, IsAnEmptyContract)
{
    CGridCellBase cell;
    EXPECT_EQ(cell.GetText(), nullptr);
    EXPECT_EQ(cell.GetTipText(), nullptr);
    EXPECT_EQ(cell.GetImage(), -1);
    EXPECT_FALSE(cell.Edit(0, 0, CRect(), CPoint(), 8, 'x') || cell.PrintCell(nullptr, 0, 0, CRect()));
    CRect rect(1, 2, 3, 4);
    EXPECT_TRUE(cell.GetTextRect(&rect) && cell.GetTipTextRect(&rect));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_TRUE(cell.ValidateEdit(L"anything") && cell.OnSetCursor());
    EXPECT_EQ(cell.SendMessageToParent(0, 0, NM_CLICK) + cell.GetData(), 0);
    cell.SetState(CELL_FIXEDCOL | CELL_MODIFIED);
    EXPECT_EQ(cell.IsFixedCol(), 64) << "the bit, and not 1";
    EXPECT_EQ(cell.IsModified(), 128);
    cell.Reset();
    EXPECT_EQ(cell.GetState(), 0u);
}

TEST_F(GridCell, InheritsUntilItIsGivenAValue)
{
    CGridDefaultCell& body = *grid.GetDefaultCell(FALSE, FALSE);
    cell.SetFormat(GV_INHERIT);
    EXPECT_EQ(cell.GetFormat(), static_cast<DWORD>(0x8824));
    EXPECT_EQ(cell.GetMargin(), body.GetMargin());
    EXPECT_EQ(cell.GetFont(), body.GetFont());
    EXPECT_EQ(cell.GetFontObject(), body.GetFontObject());
    EXPECT_EQ(cell.GetTextClr(), CLR_INHERIT) << "colours are resolved by drawing only";
    cell.SetMargin(9);
    cell.SetFormat(DT_RIGHT);
    EXPECT_EQ(cell.GetMargin(), 9u);
    EXPECT_EQ(cell.GetFormat(), static_cast<DWORD>(DT_RIGHT));
    EXPECT_EQ(grid.GetCell(0, 0)->GetDefaultCell(), grid.GetDefaultCell(TRUE, TRUE));
    EXPECT_EQ(grid.GetCell(0, 1)->GetDefaultCell(), grid.GetDefaultCell(TRUE, FALSE));

    body.SetFormat(GV_INHERIT); // its own default cell: it does not ask itself for ever
    EXPECT_EQ(body.GetFormat(), 0u);

    CGridCell alone;
    EXPECT_EQ(alone.GetFormat(), 0u);
    EXPECT_EQ(alone.GetFont(), nullptr);
    EXPECT_STREQ(alone.GetText(), L"");
    EXPECT_EQ(alone.GetTextExtent(L"text"), CSize(0, 0)) << "nothing to measure on";
    EXPECT_EQ(alone.GetMargin(), 0u);
}

TEST_F(GridCell, CopiesWhatTheOtherShows)
{
    CGridCell copy;
    cell.SetText(L"text");
    cell.SetData(5);
    cell.SetImage(3);
    cell.SetFormat(GV_INHERIT);
    copy = cell;
    EXPECT_STREQ(copy.GetText(), L"text");
    EXPECT_EQ(copy.GetGrid(), &grid);
    EXPECT_TRUE(copy.IsDefaultFont());
    grid.GetDefaultCell(FALSE, FALSE)->SetFormat(DT_LEFT);
    EXPECT_EQ(copy.GetFormat(), static_cast<DWORD>(0x8824)) << "an inherited format arrives as a value";

    LOGFONT lf = *cell.GetFont();
    lf.lfHeight = -33;
    cell.SetFont(&lf);
    copy = cell;
    EXPECT_FALSE(copy.IsDefaultFont());
    EXPECT_EQ(copy.GetFont()->lfHeight, -33);
    EXPECT_EQ(copy.GetFontObject(), cell.GetFontObject())
        << "one object for all cells with fonts of their own";
    copy.SetTextClr(RGB(1, 2, 3));
    copy.SetBackClr(RGB(1, 2, 3));
    copy.Reset();
    EXPECT_EQ(copy.GetData(), 5) << "the one thing that Reset leaves";
    EXPECT_EQ(copy.GetGrid(), nullptr);
    EXPECT_EQ(copy.GetImage(), -1);
    EXPECT_TRUE(copy.GetTextClr() == CLR_INHERIT && copy.GetBackClr() == CLR_INHERIT);
    EXPECT_EQ(copy.GetFont(), nullptr);
}

TEST_F(GridCell, MeasuresTextWithItsMargins)
{
    CClientDC dc(nullptr);
    dc.SelectObject(cell.GetFontObject());
    const int margin = static_cast<int>(cell.GetMargin());
    CSize bare = dc.GetTextExtent(L"IPE 200", 7);
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    bare.cx += metrics.tmOverhang;
    EXPECT_EQ(cell.GetTextExtent(L"IPE 200"), bare + CSize(4 * margin, 2 * margin));
    const CGridDefaultCell& body = *grid.GetDefaultCell(FALSE, FALSE);
    EXPECT_EQ(cell.GetTextExtent(nullptr, &dc), CSize(body.GetWidth(), body.GetHeight()));

    cell.SetFormat(DT_WORDBREAK);
    EXPECT_EQ(cell.GetTextExtent(L"IPE\nIPE").cy, 2 * bare.cy + 2 * margin);

    LOGFONT lf = *cell.GetFont();
    lf.lfEscapement = lf.lfOrientation = 900;
    cell.SetFormat(DT_SINGLELINE);
    const CSize flat = cell.GetTextExtent(L"IPE 200");
    cell.SetFont(&lf);
    const CSize upright = cell.GetTextExtent(L"IPE 200");
    EXPECT_GT(upright.cy, upright.cx);
    EXPECT_EQ(upright, CSize(flat.cy, flat.cx + 4 * margin));
    dc.SelectStockObject(SYSTEM_FONT);
}

TEST_F(GridCell, TheImageStandsBesideTheText)
{
    CImageList images;
    images.Create(16, 40, ILC_COLOR32, 1, 1);
    CBitmap bitmap;
    bitmap.CreateBitmap(16, 40, 1, 32, nullptr);
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    grid.SetImageList(&images);
    cell.SetText(L"text");
    const CSize text = cell.GetTextExtent(L"text");
    cell.SetImage(0);
    EXPECT_EQ(cell.GetCellExtent(nullptr), CSize(text.cx + 17, 41));
    grid.SetImageList(nullptr);
    EXPECT_EQ(cell.GetCellExtent(nullptr), text);
}

TEST(GridDefaultCell, DerivesSizeAndMarginFromItsFont)
{
    CGridDefaultCell cell;
    EXPECT_TRUE(cell.IsReadOnly());
    const int height = cell.GetHeight();
    LOGFONT lf = *cell.GetFont();
    lf.lfHeight *= 3;
    cell.SetFont(&lf);
    EXPECT_GT(cell.GetHeight(), 2 * height);
    constexpr int kFonts = 0x0A; // type of a GDI object
    const int fonts = owtest::CountGdiObjects(kFonts);
    cell.SetFont(&lf);
    EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
    CClientDC dc(nullptr);
    dc.SelectObject(cell.GetFontObject());
    EXPECT_EQ(cell.GetMargin(), static_cast<UINT>(dc.GetTextExtent(L" ", 1).cx));
    EXPECT_EQ(cell.GetHeight(), dc.GetTextExtent(L"X", 1).cy * 3 / 2);
    dc.SelectStockObject(SYSTEM_FONT);
    cell.SetData(7);
    cell.SetState(CELL_SELECTED);
    EXPECT_EQ(cell.GetData(), 0);
    EXPECT_EQ(cell.GetState(), CELL_READONLY);
    cell.SetFont(nullptr);
    EXPECT_EQ(cell.GetFont()->lfHeight, lf.lfHeight);
}
