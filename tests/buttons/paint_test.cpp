// What buttons look like, read back pixel by pixel: all states of one against a model, and what those with a drop-down
// arrow add.

#include "Handles.h"
#include "Images.h"
#include "Room.h"
#include "module/GdiScope.h"

#include <climits>

#include <random>

#include <uxtheme.h>

#include <vsstyle.h>

using testimages::Icon;

namespace
{
constexpr COLORREF kFaceIn = RGB(200, 220, 255), kFaceOut = RGB(180, 200, 180),
                   kFaceFocus = RGB(255, 230, 200);
constexpr COLORREF kTextIn = RGB(0, 0, 200), kTextOut = RGB(0, 100, 0), kTextFocus = RGB(120, 0, 0);
constexpr COLORREF kSecond = RGB(60, 0, 0); ///< colour of the second image; the first one's is red
const CSize kSize(100, 41);
using Random = std::mt19937;
constexpr UINT kTitle = DT_WORDBREAK | DT_CENTER;

enum EImage
{
    noImage,
    icon,
    largeIcon, ///< of which the button shows the middle
    bitmap
};
const CSize kImageSizes[] = {{0, 0}, {16, 16}, {120, 120}, {20, 11}};

/// Everything that a look depends on.
struct Look
{
    Random& random;
    bool bCheckBox = Flip(), bChecked = Flip(), bFlat = Flip(), bBorder = Flip(), bFlatFocus = Flip(),
         bDefault = Flip(), bHover = Flip(), bPressed = Flip(), bFocused = Flip(), bDisabled = Flip(),
         bEngraves = Flip(), bSecondImage = Flip(), bPressedDown = Flip(), bToolbar = Flip(),
         bThemed = Flip() && Flip();
    EImage image = EImage(random() % 4);
    BYTE nAlign = BYTE(random() % 4);
    LPCTSTR pszTitle = std::array{_T(""), _T("HHHH"), _T("HHHHHH HHHHHH HHHHHH")}[random() % 3];
    CSize size = kSize;

    bool Flip() { return random() % 2 != 0; }
    /// Without image and title, of any size.
    void BecomeDropFace()
    {
        const CSize sizes[] = {{80, 30}, {80, 31}, {50, 22}, {59, 27}, {41, 17},
                               {48, 24}, {20, 30}, {19, 30}, {80, 10}, {12, 6}};
        size = sizes[random() % std::size(sizes)];
        bCheckBox = false;
        image = noImage;
        pszTitle = _T("");
        const bool bRoomForEdge = size.cx > 40 && size.cy > 16;
        bFlat |= !bRoomForEdge;
        bBorder &= bRoomForEdge;
        bFocused &= bRoomForEdge;
    }
    UINT ItemState() const
    {
        return (bPressed ? ODS_SELECTED : 0) | (bFocused ? ODS_FOCUS : 0) | (bDisabled ? ODS_DISABLED : 0);
    }
    bool LooksPressed() const { return bPressed || (bCheckBox && bChecked); }
    CPoint Offset() const
    {
        return bPressed && !bCheckBox ? (bPressedDown ? CPoint(0, 2) : CPoint(1, 1)) : CPoint(0, 0);
    }
    template <class Value>
    Value ByState(Value in, Value focus, Value out) const
    {
        return bHover || LooksPressed() ? in : bFocused ? focus : out;
    }
};

/// What a colour of a disabled icon becomes.
COLORREF Greyed(COLORREF cr)
{
    const int grey = 192 + ((GetRValue(cr) + GetGValue(cr) + GetBValue(cr)) / 3 - 192) * 35 / 100;
    return RGB(grey, grey, grey);
}

/// What is left for the focus mark.
CRect PaintFace(CDC& dc, const Look& look, HWND hButton)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const bool bPressed = look.LooksPressed();
    CRect rect(CPoint(0, 0), look.size);
    if (look.bThemed)
    {
        const bool bDefault = look.bDefault && (!look.bToolbar || look.bBorder);
        const int nState = look.bDisabled ? PBS_DISABLED
                           : bPressed     ? PBS_PRESSED
                           : look.bHover  ? PBS_HOT
                           : bDefault     ? PBS_DEFAULTED
                                          : PBS_NORMAL;
        const HTHEME hTheme = ::OpenThemeData(hButton, look.bToolbar ? L"TOOLBAR" : L"BUTTON");
        ::DrawThemeParentBackground(hButton, dc, rect);
        ::DrawThemeBackground(hTheme, dc, BP_PUSHBUTTON, nState, rect, nullptr);
        ::CloseThemeData(hTheme);
        return rect;
    }
    if (!look.bFlat && (look.bFocused || look.bDefault))
    {
        dc.FillSolidRect(rect, kBlack);
        rect.DeflateRect(1, 1);
    }
    dc.FillSolidRect(rect, look.ByState(kFaceIn, kFaceFocus, kFaceOut));
    if (!look.bFlat && !bPressed)
        dc.DrawEdge(rect, EDGE_RAISED, BF_RECT | BF_SOFT);
    else if (!look.bFlat)
        dc.Draw3dRect(rect, shadow, shadow);
    else if (look.bBorder && (bPressed || look.bHover))
        dc.Draw3dRect(rect, bPressed ? shadow : light, bPressed ? light : shadow);
    return rect;
}

/// The image is one colour in a transparent frame. What is left for the title.
CRect PaintImage(CDC& dc, const Look& look)
{
    CRect caption(CPoint(0, 0), look.size);
    if (look.image == noImage)
        return caption;
    const CSize size = kImageSizes[look.image];
    const int middleX = (kSize.cx - size.cx) / 2, middleY = (kSize.cy - size.cy) / 2;
    const int right = kSize.cx, bottom = kSize.cy;
    const struct
    {
        CPoint besideTitle;
        CRect title;
        CPoint alone;
    } places[] = {{{3, middleY}, {3 + size.cx, 0, right, bottom}, {middleX, middleY}},
                  {{middleX, 3}, {0, size.cy, right, bottom}, {middleX, middleY}},
                  {{right - 3 - size.cx, middleY}, {3, 0, right - 3 - size.cx, bottom}, {middleX, 0}},
                  {{0, 0}, caption, {0, 0}}};
    const auto& place = places[look.nAlign];
    const bool bFirst = !look.bSecondImage || look.LooksPressed() || (look.bHover && !look.bCheckBox);
    const CRect image((*look.pszTitle ? place.besideTitle : place.alone) + look.Offset(), size);
    CRect inside = image;
    inside.DeflateRect(2, 2);
    const bool bEngraved = look.bDisabled && look.bEngraves && look.image == bitmap;
    if (bEngraved)
        dc.FillSolidRect(inside + CPoint(1, 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    dc.FillSolidRect(inside, bEngraved ? ::GetSysColor(COLOR_BTNSHADOW) : bFirst ? kRed : kSecond);
    const COLORREF corner = dc.GetPixel(image.TopLeft()); // kept: it counts as background, and stays
    for (int i = 0; look.bDisabled && look.image != bitmap && i < size.cx * size.cy; ++i)
    {
        const CPoint at = image.TopLeft() + CPoint(i % size.cx, i / size.cx);
        if (const COLORREF cr = dc.GetPixel(at); cr != corner && cr != CLR_INVALID)
            dc.SetPixel(at, Greyed(cr));
    }
    return place.title;
}

void PaintTitle(CDC& dc, const Look& look, const CRect& room)
{
    CRect rect = room + look.Offset();
    dc.DrawText(look.pszTitle, -1, rect, kTitle | DT_CALCRECT);
    rect.OffsetRect((room.Width() - rect.Width()) / 2, (room.Height() - rect.Height()) / 2);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(look.bDisabled ? ::GetSysColor(COLOR_BTNHIGHLIGHT)
                                   : look.ByState(kTextIn, kTextFocus, kTextOut));
    dc.DrawText(look.pszTitle, -1, rect + CPoint(look.bDisabled, look.bDisabled), kTitle);
    dc.SetTextColor(::GetSysColor(COLOR_BTNSHADOW));
    if (look.bDisabled)
        dc.DrawText(look.pszTitle, -1, rect, kTitle);
}

/// What a class adds in the area beside the arrow.
using Draw = std::function<void(CDC&, const Look&, const CRect& area, COLORREF crFace)>;

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

void PaintDropFace(CDC& dc, const Look& look, CRect face, const Draw& draw)
{
    if (look.bPressed)
        face.OffsetRect(1, 1);
    const COLORREF crFace = dc.GetPixel(face.CenterPoint());
    DrawArrow(dc, face, look.bDisabled);
    const CRect area(face.left + 5, face.top + 5, face.right - 14, face.bottom - 5);
    if (!area.IsRectEmpty())
        draw(dc, look, area, crFace);
}

void PaintModel(CDC& dc, const Look& look, HWND hButton, const Draw* pDraw)
{
    const CRect face = PaintFace(dc, look, hButton);
    if (pDraw)
        PaintDropFace(dc, look, face, *pDraw);
    const CRect caption = PaintImage(dc, look);
    if (*look.pszTitle)
        PaintTitle(dc, look, caption);
    dc.SetTextColor(kBlack);
    dc.SetBkColor(kWhite);
    if (look.bFocused && (!look.bFlat || look.bFlatFocus))
        dc.DrawFocusRect(CRect(face.left + 3, face.top + 3, face.right - 3, face.bottom - 3));
}

template <class Button>
void Dress(Open<Button>& button, const Look& look)
{
    const auto make = [](COLORREF cr) { return testimages::MakeBitmap(kImageSizes[bitmap], cr, kKey); };
    static const Icon first(16, kRed), second(16, kSecond), large(120, kRed), largeSecond(120, kSecond);
    const HICON icons[][2] = {{}, {first, second}, {large, largeSecond}};
    if (look.image == bitmap)
        button.SetBitmaps(make(kRed), kKey, look.bSecondImage ? make(kSecond) : nullptr, kKey);
    else
        button.SetIcon(icons[look.image][0], look.bSecondImage ? icons[look.image][1] : nullptr);
    button.SetWindowPos(nullptr, 0, 0, look.size.cx, look.size.cy, SWP_NOMOVE | SWP_NOZORDER);
    button.SetWindowText(look.pszTitle);
    button.SetThemeHelper(look.bThemed ? CButtonST::pLocalTheme : nullptr);
    button.DrawAsToolbar(look.bToolbar);
    button.SetFlat(look.bFlat);
    button.DrawBorder(look.bBorder);
    button.DrawFlatFocus(look.bFlatFocus);
    button.SetAlign(look.nAlign);
    button.SetPressedStyle(look.bPressedDown ? CButtonST::pressedDown : CButtonST::pressedAside);
    button.SetCheck(look.bChecked);
    button.m_bIsDefault = look.bDefault;
    button.m_bMouseOnButton = look.bHover;
    button.m_bShowDisabledBitmap = look.bEngraves;
    const COLORREF colors[] = {kFaceIn, kTextIn, kFaceOut, kTextOut, kFaceFocus, kTextFocus};
    for (BYTE i = 0; i < CButtonST::colorCount; ++i)
        button.SetColor(i, colors[i]);
}

/// Expects that a button is as the model in many looks.
template <class Button>
void ExpectLooks(
    const std::function<void(Button&)>& prepare = [](Button&) {},
    const Draw& draw = [](CDC&, const Look&, const CRect&, COLORREF) {})
{
    constexpr bool bDrops = !std::is_same_v<Button, CButtonST>;
    const int nLooks = bDrops ? 60 : 300;
    Random random(1);
    Lone<Open<Button>> push(kSize), box(kSize, _T(""), BS_AUTOCHECKBOX);
    owtest::HandleCount before;
    for (int i = 0; i < nLooks; ++i)
    {
        before = i == nLooks / 2 ? owtest::CountHandles() : before;
        Look look{random};
        if (bDrops)
            look.BecomeDropFace();
        Open<Button>& button = look.bCheckBox ? box.button : push.button;
        Dress(button, look);
        prepare(button);
        Surface ours(look.size.cx, look.size.cy), expected(look.size.cx, look.size.cy);
        PaintButton(button, ours, look.ItemState());
        PaintModel(expected.dc(), look, button, bDrops ? &draw : nullptr);
        ASSERT_TRUE(ours == expected) << "case " << i;
        button.SetIcon(static_cast<HICON>(nullptr)); // gives its image back
    }
    EXPECT_EQ(owtest::CountHandles(), before);
}
} // namespace

TEST(ButtonPaint, IsThatOfTheModelInEveryState)
{
    ExpectLooks<CButtonST>();
}

TEST(ButtonTransparency, ShowsWhatTheParentHasAtTheFirstPaintOrWhatTheCallerGives)
{
    CWnd parent;
    parent.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), _T(""), WS_POPUP | WS_VISIBLE,
                    CRect(40, 40, 240, 140), nullptr, 0);
    Open button;
    button.Create(_T(""), WS_CHILD, CRect(CPoint(10, 10), kSize), &parent, 1); // hidden: what is behind shows
    Surface given(300, 200);
    CClientDC dcParent(&parent);
    EXPECT_EQ(button.SetBk(&given.dc()), 5u) << "needs DrawTransparent";
    const auto drawBehind = [&](CDC& dc, COLORREF cr)
    {
        dc.FillSolidRect(0, 0, 300, 200, cr);
        dc.FillSolidRect(10, 10, 1, 1, kRed); // the button's place
    };
    const auto expectBehind = [&](COLORREF cr)
    {
        Surface surface(kSize.cx, kSize.cy);
        PaintButton(button, surface);
        EXPECT_EQ(surface.at(0, 0), kRed);
        EXPECT_EQ(surface.count(CRect(CPoint(0, 0), kSize), cr), kSize.cx * kSize.cy - 1);
    };
    for (const COLORREF cr : {kGreen, kBlue})
        for (CDC* const pDC : {static_cast<CDC*>(&dcParent), &given.dc()})
        {
            drawBehind(*pDC, cr);
            button.DrawTransparent();
            EXPECT_EQ(button.SetBk(nullptr), 5u);
            EXPECT_EQ(pDC == &dcParent ? 0u : button.SetBk(pDC), 0u);
            expectBehind(cr);
            drawBehind(*pDC, kWhite);
            expectBehind(cr); // a copy, made once
        }
    button.SendMessage(WM_SYSCOLORCHANGE);
    expectBehind(kWhite);
    parent.DestroyWindow();
}

/// In the middle, cut off at the area; the white of one bit takes on the face.
static void DrawPicture(CDC& dc, const CRect& area, HBITMAP hPicture, COLORREF crFace)
{
    BITMAP info{};
    ::GetObject(hPicture, sizeof(info), &info);
    CDC dcPicture;
    dcPicture.CreateCompatibleDC(&dc);
    const CGdiSelection picture(dcPicture, hPicture);
    const CSavedDC saved(dc);
    dc.SetBkColor(crFace);
    dc.IntersectClipRect(area);
    dc.BitBlt(area.left + (area.Width() - info.bmWidth) / 2, area.top + (area.Height() - info.bmHeight) / 2,
              info.bmWidth, info.bmHeight, &dcPicture, 0, 0, SRCCOPY);
}

TEST(DropFaces, OfPickersHaveThePictureThatIsChosenInTheMiddle)
{
    using Picker = CBitmapBtnSTSrafura; // pictures of one bit
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
    {
        const auto draw = [&](CDC& dc, const Look& look, const CRect& area, COLORREF crFace)
        {
            if (!look.bDisabled && (index == 0 || index == 2))
                DrawPicture(dc, area, handles[index], crFace);
        };
        ExpectLooks<Picker>([&](Picker& picker) { picker.SetEnumSource(&index); }, draw);
    }
    ExpectLooks<Picker>();
    std::ranges::copy(before, handles);

    Lone<Picker> lone(CSize(80, 30));
    int nOneBit = 2;
    lone.button.SetThemeHelper(nullptr);
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
    const auto drawRgb = [&](CDC& dc, const Look& look, const CRect& area, COLORREF)
    {
        if (look.bDisabled)
            return;
        dc.FillSolidRect(area, color);
        dc.Draw3dRect(area, kBlack, kBlack);
    };
    ExpectLooks<CColorBtnST>([&](CColorBtnST& button) { button.SetColorSource(&color); }, drawRgb);
    for (int index : {30, 999}) // the second is no colour
    {
        const auto drawAcad = [&](CDC& dc, const Look& look, const CRect& area, COLORREF)
        {
            const COLORREF frame = look.bDisabled ? ::GetSysColor(COLOR_BTNSHADOW) : kBlack;
            if (look.bDisabled)
                dc.Draw3dRect(area + CPoint(1, 1), kWhite, kWhite);
            else if (index == 30)
                dc.FillSolidRect(area, RGB(255, 127, 0));
            dc.Draw3dRect(area, frame, frame);
        };
        ExpectLooks<CAcadColorBtnST>([&](CAcadColorBtnST& button) { button.SetColorSource(&index); },
                                     drawAcad);
    }
}

TEST(DropFaces, OfTextButtonsHaveTheArrowAloneAndMeasureTextsBesideIt)
{
    ExpectLooks<CTextBtnST>();
    struct Hooks : CTextBtnST
    {
        using CTextBtnST::DrawItemHook_CalcRect, CTextBtnST::DrawItemHook_DrawText;
    } hooks;
    const CString strText(_T("HHHHHH HHHHHH"));
    Surface ours(60, 40), expected(60, 40);
    CRect rect(6, 2, 58, 9), expectedRect(rect);
    hooks.DrawItemHook_CalcRect(&ours.dc(), strText, rect);
    hooks.DrawItemHook_DrawText(&ours.dc(), strText, rect);
    expected.dc().DrawText(strText, expectedRect, kTitle | DT_CALCRECT);
    expectedRect.OffsetRect(-4, 0);
    expected.dc().DrawText(strText, expectedRect, kTitle);
    EXPECT_TRUE(rect == expectedRect && ours == expected);
}
