// What buttons with a drop-down arrow paint: the arrow, and a picture, a swatch or a title beside it.

#include "Images.h"
#include "Room.h"

#include <algorithm>
#include <array>
#include <climits>

namespace
{
constexpr COLORREF kNewColor = RGB(1, 2, 3);

/// Pictures of every kind: 0 names the place of each pixel by its colour, 1 is missing, 2 has one bit: a
/// white frame around black.
class Picker : public CBitmapBtnST
{
public:
    inline static const CSize sizes[] = {{31, 12}, {0, 0}, {16, 4}};

    Picker()
    {
        testimages::Pixels places;
        for (int i = 0; i < 31 * 12; ++i)
            places.push_back(testimages::Opaque(ColorAt(0, i % 31, i / 31)));
        m_pictures[0].CreateBitmap(31, 12, 1, 32, places.data());
        const BYTE bits[] = {0xFF, 0xFF, 0x80, 0x01, 0x80, 0x01, 0xFF, 0xFF};
        m_pictures[2].CreateBitmap(16, 4, 1, 1, bits);
    }
    HBITMAP GetBitmap(int index) const override { return m_pictures.at(index); }
    int BitmapCount() const override { return 3; }
    /// The white of one bit takes on the face.
    static COLORREF ColorAt(int nPicture, int x, int y)
    {
        const bool bFrame = x == 0 || y == 0 || x == 15 || y == 3;
        return nPicture == 0 ? RGB(x, y, 200) : bFrame ? kGreen : kBlack;
    }

private:
    std::array<CBitmap, 3> m_pictures;
};

void Frame(CDC& dc, const CRect& rect, COLORREF cr)
{
    CBrush brush(cr);
    dc.FrameRect(rect, &brush);
}

// Half-way down is half of the bottom: of an even height the arrow of a pressed button moves only sideways.
void DrawArrow(CDC& dc, const CRect& face, bool bDisabled)
{
    const int right = face.right, middle = face.bottom / 2;
    const COLORREF cr = bDisabled ? ::GetSysColor(COLOR_BTNSHADOW) : kBlack;
    dc.FillSolidRect(right - 10, middle - 1, 5, 1, cr);
    dc.FillSolidRect(right - 9, middle, 3, 1, cr);
    for (const int step : bDisabled ? std::vector{0, 1, 2} : std::vector{2})
        dc.SetPixel(right - 6 - step, middle - 1 + step, bDisabled ? kWhite : kBlack);
}

void DrawPicture(CDC& dc, const CRect& area, int nPicture)
{
    const CSize size = Picker::sizes[nPicture];
    const int left = (area.Width() - size.cx) / 2,
              top = (area.Height() - size.cy) / 2; // negative: its middle shows
    for (int x = std::max(0, -left); x < size.cx && x + left < area.Width(); ++x)
        for (int y = std::max(0, -top); y < size.cy && y + top < area.Height(); ++y)
            dc.SetPixel(area.left + left + x, area.top + top + y, Picker::ColorAt(nPicture, x, y));
}

void DrawSwatch(CDC& dc, const CRect& area, COLORREF cr)
{
    dc.FillSolidRect(area, cr);
    Frame(dc, area, kBlack);
}

void MakePlain(CButtonST& button, bool bRaised)
{
    button.SetThemeHelper(nullptr);
    button.SetFlat(!bRaised);
    button.DrawBorder(FALSE);
    for (const BYTE back : {CButtonST::colorBackIn, CButtonST::colorBackOut, CButtonST::colorBackFocus})
        button.SetColor(back, kGreen);
}

/// Expects what the base paints, the arrow, and over both what `draw` adds in the area for it.
template <class Button>
void ExpectFaces(const std::function<void(Button&)>& prepare,
                 const std::function<void(CDC&, const CRect& area, bool bDisabled)>& draw)
{
    struct Row
    {
        CSize size;
        UINT nState;
        bool bRaised;
    };
    std::vector<Row> rows{{{80, 30}, ODS_FOCUS, true}, {{80, 30}, ODS_SELECTED, true}};
    for (const CSize size : {CSize(80, 30), CSize(80, 31), CSize(50, 22), CSize(59, 27), CSize(41, 17),
                             CSize(48, 24), CSize(20, 30), CSize(19, 30), CSize(80, 10), CSize(12, 6)})
        for (const UINT nState : {0, ODS_SELECTED, ODS_DISABLED})
            rows.push_back({size, nState, false});
    Lone<CButtonST> base(CSize(9, 9));
    Lone<Button> lone(CSize(9, 9));
    prepare(lone.button);
    for (const auto& [size, nState, bRaised] : rows)
    {
        for (CButtonST* const pButton : {&base.button, static_cast<CButtonST*>(&lone.button)})
        {
            MakePlain(*pButton, bRaised);
            pButton->SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        }
        Surface ours(size.cx, size.cy), expected(size.cx, size.cy);
        PaintButton(lone.button, ours, nState);
        PaintButton(base.button, expected, nState);
        CRect face(CPoint(0, 0), size);
        if (nState & ODS_FOCUS)
            face.DeflateRect(1, 1); // into the frame
        if (nState & ODS_SELECTED)
            face.OffsetRect(1, 1);
        DrawArrow(expected.dc(), face, nState & ODS_DISABLED);
        const CRect area(face.left + 5, face.top + 5, face.right - 14, face.bottom - 5);
        if (!area.IsRectEmpty())
            draw(expected.dc(), area, nState & ODS_DISABLED);
        EXPECT_TRUE(ours == expected) << size.cx << ' ' << size.cy << ' ' << nState;
    }
}
} // namespace

TEST(DropFaces, OfPickersHaveThePictureThatIsChosenInTheMiddle)
{
    for (int index : {0, 1, 2, 3, -1, INT_MAX, INT_MIN}) // the last four are none
        ExpectFaces<Picker>([&](Picker& picker) { picker.SetEnumSource(&index); },
                            [&](CDC& dc, const CRect& area, bool bDisabled)
                            {
                                if (!bDisabled && index >= 0 && index < 3)
                                    DrawPicture(dc, area, index);
                            });
    ExpectFaces<Picker>([](Picker&) {}, [](CDC&, const CRect&, bool) {});

    Lone<Picker> lone(CSize(80, 30));
    int nOneBit = 2;
    MakePlain(lone.button, false);
    lone.button.SetEnumSource(&nOneBit);
    Surface surface(80, 30);
    surface.dc().IntersectClipRect(28, 0, 35, 30);
    PaintButton(lone.button, surface);
    EXPECT_TRUE(surface.at(30, 13) == kGreen && surface.at(30, 14) == kBlack)
        << "also where the middle is not painted";
}

TEST(DropFaces, OfColorButtonsHaveASwatchOrAnEmptyFrame)
{
    DWORD color = RGB(1, 2, 3);
    const auto drawRgb = [&](CDC& dc, const CRect& area, bool bDisabled)
    {
        if (!bDisabled)
            DrawSwatch(dc, area, color);
    };
    ExpectFaces<CColorBtnST>([&](CColorBtnST& button) { button.SetColorSource(&color); }, drawRgb);
    for (auto [index, cr] : {std::pair(30, RGB(255, 127, 0)), {999, kGreen}}) // the second is no colour
        ExpectFaces<CAcadColorBtnST>([&, pIndex = &index](CAcadColorBtnST& button)
                                     { button.SetColorSource(pIndex); },
                                     [cr = cr](CDC& dc, const CRect& area, bool bDisabled)
                                     {
                                         if (!bDisabled)
                                             return DrawSwatch(dc, area, cr);
                                         Frame(dc, area + CPoint(1, 1), kWhite);
                                         Frame(dc, area, ::GetSysColor(COLOR_BTNSHADOW));
                                     });
}

TEST(DropFaces, OfTextButtonsHaveTheArrowAlone)
{
    struct Button : CTextBtnST
    {
        using CTextBtnST::DrawItemHook_CalcRect;
    } button;
    ExpectFaces<CTextBtnST>([](CTextBtnST&) {}, [](CDC&, const CRect&, bool) {});
    CRect plain, moved;
    Surface surface(60, 24);
    surface.dc().DrawText(_T("Insert"), -1, plain, DT_CALCRECT | DT_WORDBREAK | DT_CENTER);
    button.DrawItemHook_CalcRect(&surface.dc(), _T("Insert"), moved);
    EXPECT_EQ(moved, plain - CPoint(4, 0));
}
