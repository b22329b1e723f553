// What buttons with a drop-down arrow paint: the arrow, and a picture, a swatch or a title beside it.

#include "Images.h"
#include "Room.h"
#include "module/GdiScope.h"

#include <climits>

namespace
{
using Picker = CBitmapBtnSTSrafura;

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

/// In the middle, cut off at the area; the white of one bit takes on the face.
void DrawPicture(CDC& dc, const CRect& area, HBITMAP hPicture)
{
    BITMAP info{};
    ::GetObject(hPicture, sizeof(info), &info);
    CDC dcPicture;
    dcPicture.CreateCompatibleDC(&dc);
    const CGdiSelection picture(dcPicture, hPicture);
    const CSavedDC saved(dc);
    dc.SetBkColor(kGreen);
    dc.IntersectClipRect(area);
    dc.BitBlt(area.left + (area.Width() - info.bmWidth) / 2, area.top + (area.Height() - info.bmHeight) / 2,
              info.bmWidth, info.bmHeight, &dcPicture, 0, 0, SRCCOPY);
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
template <class Button, class Draw>
void ExpectFaces(const std::function<void(Button&)>& prepare, const Draw& draw)
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
    for (const auto& [size, nState, bRaised] : rows)
    {
        Lone<CButtonST> base(size);
        Lone<Button> lone(size);
        prepare(lone.button);
        Surface ours(size.cx, size.cy), expected(size.cx, size.cy);
        for (CButtonST* const pButton : {&base.button, static_cast<CButtonST*>(&lone.button)})
        {
            MakePlain(*pButton, bRaised);
            PaintButton(*pButton, pButton == &base.button ? expected : ours, nState);
        }
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
    auto& handles = Picker::s_pictures.handles;
    const std::vector<HBITMAP> before(std::begin(handles), std::end(handles));
    CBitmap places; // names the place of each pixel by its colour
    testimages::Pixels pixels;
    for (int i = 0; i < 31 * 12; ++i)
        pixels.push_back(testimages::Opaque(RGB(i % 31, i / 31, 200)));
    places.CreateBitmap(31, 12, 1, 32, pixels.data());
    handles[0] = places;
    handles[1] = nullptr;                                 // is missing
    for (int index : {0, 1, 2, 10, -1, INT_MAX, INT_MIN}) // the last four are none
        ExpectFaces<Picker>([&](Picker& picker) { picker.SetEnumSource(&index); },
                            [&](CDC& dc, const CRect& area, bool bDisabled)
                            {
                                if (!bDisabled && (index == 0 || index == 2))
                                    DrawPicture(dc, area, handles[index]);
                            });
    ExpectFaces<Picker>([](Picker&) {}, [](CDC&, const CRect&, bool) {});
    std::ranges::copy(before, handles);

    Lone<Picker> lone(CSize(80, 30));
    int nOneBit = 2;
    MakePlain(lone.button, false);
    lone.button.SetEnumSource(&nOneBit);
    Surface whole(80, 30), part(80, 30);
    PaintButton(lone.button, whole);
    part.dc().IntersectClipRect(22, 0, 27, 30); // without the middle
    PaintButton(lone.button, part);
    part.dc().SelectClipRgn(nullptr);
    for (const CRect rest : {CRect(0, 0, 22, 30), CRect(27, 0, 80, 30)})
        part.dc().BitBlt(rest.left, 0, rest.Width(), 30, &whole.dc(), rest.left, 0, SRCCOPY);
    EXPECT_TRUE(part == whole);
}

TEST(DropFaces, OfColorButtonsHaveASwatchOrAnEmptyFrame)
{
    DWORD color = RGB(1, 2, 3);
    ExpectFaces<CColorBtnST>([&](CColorBtnST& button) { button.SetColorSource(&color); },
                             [&](CDC& dc, const CRect& area, bool bDisabled)
                             {
                                 if (!bDisabled)
                                     DrawSwatch(dc, area, color);
                             });
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
    ExpectFaces<CTextBtnST>([](CTextBtnST&) {}, [](CDC&, const CRect&, bool) {});
}
