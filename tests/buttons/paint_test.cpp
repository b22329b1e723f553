// What buttons look like, read back pixel by pixel: all states of one against a model, and what those with a drop-down
// arrow add.

#include "Room.h"

#include <uxtheme.h>

#include <vsstyle.h>

namespace
{
constexpr COLORREF kFaceIn = RGB(200, 220, 255), kFaceOut = RGB(180, 200, 180),
                   kFaceFocus = RGB(255, 230, 200);
constexpr COLORREF kTextIn = RGB(0, 0, 200), kTextOut = RGB(0, 100, 0), kTextFocus = RGB(120, 0, 0);
constexpr COLORREF kSecond = RGB(60, 0, 0); ///< colour of the second image; the first one's is red
constexpr UINT kTitle = DT_WORDBREAK | DT_CENTER;
const CSize kSize(100, 41);
const CSize kDropSizes[] = {{80, 30}, {80, 31}, {59, 27}, {41, 17}, {20, 30}, {19, 30}, {80, 10}, {12, 6}};
const LPCTSTR kTitles[] = {L"", L"HHHH", L"HHHHHH HHHHHH HHHHHH"};

constexpr int kBitmap = 3; ///< images; an icon, and a large one of which the middle shows, stand before it
const CSize kImageSizes[] = {{0, 0}, {16, 16}, {120, 120}, {20, 11}};

struct Look;
/// What a class adds in the area beside the arrow.
using Draw = std::function<void(CDC&, const Look&, const CRect& area, COLORREF crFace)>;

const COLORREF kShadow = ::GetSysColor(COLOR_BTNSHADOW), kLight = ::GetSysColor(COLOR_BTNHIGHLIGHT);

int s_themes = 0; ///< that are open
FARPROC CountThemes(HMODULE hModule, LPCSTR pszName)
{
    s_themes += !strcmp(pszName, "OpenThemeData") - !strcmp(pszName, "CloseThemeData");
    return ::GetProcAddress(hModule, pszName);
}

COLORREF Greyed(COLORREF cr)
{
    const int grey = 192 + ((GetRValue(cr) + GetGValue(cr) + GetBValue(cr)) / 3 - 192) * 35 / 100;
    return RGB(grey, grey, grey);
}

// Half-way down is half of the bottom: of an even height the arrow of a pressed button moves only sideways.
void DrawArrow(CDC& dc, const CRect& face, bool bDisabled)
{
    const int right = face.right, middle = face.bottom / 2;
    const COLORREF cr = bDisabled ? kShadow : kBlack;
    dc.FillSolidRect(right - 10, middle - 1, 5, 1, cr);
    dc.FillSolidRect(right - 9, middle, 3, 1, cr);
    for (const int step : bDisabled ? std::vector{0, 1, 2} : std::vector{2})
        dc.SetPixel(right - 6 - step, middle - 1 + step, bDisabled ? kWhite : kBlack);
}

/// Everything that a look depends on, and how it looks then.
struct Look
{
    std::mt19937& random;
    const bool bDrops; ///< a button with an arrow: without image and title, of any size
    bool bCheckBox = Flip() && !bDrops, bChecked = Flip(), bFlat = Flip(), bBorder = Flip(),
         bFlatFocus = Flip(), bDefault = Flip(), bHover = Flip(), bPressed = Flip(), bFocused = Flip(),
         bDisabled = Flip(), bEngraves = Flip(), bSecondImage = Flip(), bPressedDown = Flip(),
         bToolbar = Flip(), bThemed = Flip() && Flip();
    int image = bDrops ? 0 : random() % 4;
    BYTE nAlign = BYTE(random() % 4);
    LPCTSTR pszTitle = kTitles[bDrops ? 0 : random() % 3];
    CSize size = bDrops ? kDropSizes[random() % std::size(kDropSizes)] : kSize;
    bool bLooksPressed = bPressed || (bCheckBox && bChecked);
    CPoint offset = bPressed && !bCheckBox ? CPoint(!bPressedDown, 1 + bPressedDown) : CPoint(0, 0);
    UINT nState = (bPressed ? ODS_SELECTED : 0) | (bFocused ? ODS_FOCUS : 0) | (bDisabled ? ODS_DISABLED : 0);

    bool Flip() { return random() % 2 != 0; }
    COLORREF ByState(COLORREF in, COLORREF focus, COLORREF out) const
    {
        return bHover || bLooksPressed ? in : bFocused ? focus : out;
    }

    template <class Button>
    void Dress(Open<Button>& button) const
    {
        const auto make = [](COLORREF cr) { return MakeBitmap(kImageSizes[kBitmap], cr, kKey); };
        static const Icon first[] = {MakeIcon(16, kRed), MakeIcon(120, kRed)};
        static const Icon second[] = {MakeIcon(16, kSecond), MakeIcon(120, kSecond)};
        if (image == kBitmap)
            button.SetBitmaps(make(kRed), kKey, bSecondImage ? make(kSecond) : nullptr, kKey);
        else if (image)
            button.SetIcon(first[image - 1].get(), bSecondImage ? second[image - 1].get() : nullptr);
        button.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        button.SetWindowText(pszTitle);
        button.SetThemeHelper(bThemed ? CButtonST::pLocalTheme : nullptr);
        button.DrawAsToolbar(bToolbar);
        button.SetFlat(bFlat);
        button.DrawBorder(bBorder);
        button.DrawFlatFocus(bFlatFocus);
        button.SetAlign(nAlign);
        button.SetPressedStyle(bPressedDown ? CButtonST::pressedDown : CButtonST::pressedAside);
        button.SetCheck(bChecked);
        button.m_bIsDefault = bDefault;
        button.m_bMouseOnButton = bHover;
        button.m_bShowDisabledBitmap = bEngraves;
        for (BYTE i = 0; const COLORREF cr : {kFaceIn, kTextIn, kFaceOut, kTextOut, kFaceFocus, kTextFocus})
            button.SetColor(i++, cr);
    }

    void Paint(CDC& dc, HWND hButton, const Draw& draw) const
    {
        CRect face(CPoint(0, 0), size);
        bThemed ? PaintTheme(dc, face, hButton) : PaintFace(dc, face);
        if (bDrops)
        {
            const CRect place = face + (bPressed ? CPoint(1, 1) : CPoint(0, 0));
            const CRect area(place.left + 5, place.top + 5, place.right - 14, place.bottom - 5);
            const COLORREF crFace = dc.GetPixel(place.CenterPoint());
            DrawArrow(dc, place, bDisabled);
            if (!area.IsRectEmpty())
                draw(dc, *this, area, crFace);
        }
        if (!bThemed)
            PaintBorder(dc, face);
        const CRect caption = PaintImage(dc);
        if (*pszTitle)
            PaintTitle(dc, caption);
        dc.SetTextColor(kBlack);
        dc.SetBkColor(kWhite);
        if (bFocused && (!bFlat || bFlatFocus))
            dc.DrawFocusRect(CRect(face.left + 3, face.top + 3, face.right - 3, face.bottom - 3));
    }
    void PaintTheme(CDC& dc, CRect face, HWND hButton) const
    {
        const bool bMarked = bDefault && (!bToolbar || bBorder);
        const int nPart = bDisabled       ? PBS_DISABLED
                          : bLooksPressed ? PBS_PRESSED
                          : bHover        ? PBS_HOT
                          : bMarked       ? PBS_DEFAULTED
                                          : PBS_NORMAL;
        const HTHEME hTheme = ::OpenThemeData(hButton, bToolbar ? L"TOOLBAR" : L"BUTTON");
        ::DrawThemeParentBackground(hButton, dc, face);
        ::DrawThemeBackground(hTheme, dc, BP_PUSHBUTTON, nPart, face, nullptr);
        ::CloseThemeData(hTheme);
    }
    void PaintFace(CDC& dc, CRect& face) const
    {
        if (!bFlat && (bFocused || bDefault))
        {
            dc.FillSolidRect(face, kBlack);
            face.DeflateRect(1, 1);
        }
        dc.FillSolidRect(face, ByState(kFaceIn, kFaceFocus, kFaceOut));
    }
    void PaintBorder(CDC& dc, CRect face) const
    {
        if (!bFlat && !bLooksPressed)
            dc.DrawEdge(face, EDGE_RAISED, BF_RECT | BF_SOFT);
        else if (!bFlat)
            dc.Draw3dRect(face, kShadow, kShadow);
        else if (bBorder && (bLooksPressed || bHover))
            dc.Draw3dRect(face, bLooksPressed ? kShadow : kLight, bLooksPressed ? kLight : kShadow);
    }
    /// The image is one colour in a transparent frame. What is left for the title.
    CRect PaintImage(CDC& dc) const
    {
        const CRect all(CPoint(0, 0), size);
        if (image == 0)
            return all;
        const CSize extent = kImageSizes[image];
        const int right = size.cx, bottom = size.cy;
        const CPoint middle((right - extent.cx) / 2, (bottom - extent.cy) / 2);
        const std::tuple<CPoint, CPoint, CRect> places[] = {
            // with a title, alone, and what is left for the title
            {{3, middle.y}, middle, {3 + extent.cx, 0, right, bottom}},
            {{middle.x, 3}, middle, {0, extent.cy, right, bottom}},
            {{right - 3 - extent.cx, middle.y}, {middle.x, 0}, {3, 0, right - 3 - extent.cx, bottom}},
            {{0, 0}, {0, 0}, all}};
        const auto& [besideTitle, alone, caption] = places[nAlign];
        const bool bFirst = !bSecondImage || bLooksPressed || (bHover && !bCheckBox);
        const CRect rect((*pszTitle ? besideTitle : alone) + offset, extent);
        CRect inside = rect;
        inside.DeflateRect(2, 2);
        const bool bEngraved = bDisabled && bEngraves && image == kBitmap;
        if (bEngraved)
            dc.FillSolidRect(inside + CPoint(1, 1), kLight);
        dc.FillSolidRect(inside, bEngraved ? kShadow : bFirst ? kRed : kSecond);
        const COLORREF corner = dc.GetPixel(rect.TopLeft()); // kept: it counts as background, and stays
        for (int i = 0; bDisabled && image != kBitmap && i < extent.cx * extent.cy; ++i)
        {
            const CPoint at = rect.TopLeft() + CPoint(i % extent.cx, i / extent.cx);
            if (const COLORREF cr = dc.GetPixel(at); cr != corner && cr != CLR_INVALID)
                dc.SetPixel(at, Greyed(cr));
        }
        return caption;
    }
    void PaintTitle(CDC& dc, const CRect& room) const
    {
        CRect rect = room + offset;
        dc.DrawText(pszTitle, -1, rect, kTitle | DT_CALCRECT);
        rect.OffsetRect((room.Width() - rect.Width()) / 2, (room.Height() - rect.Height()) / 2);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(bDisabled ? kLight : ByState(kTextIn, kTextFocus, kTextOut));
        dc.DrawText(pszTitle, -1, rect + CPoint(bDisabled, bDisabled), kTitle);
        dc.SetTextColor(kShadow);
        if (bDisabled)
            dc.DrawText(pszTitle, -1, rect, kTitle);
    }
};

/// Expects that a button is as the model in many looks.
template <class Button>
void ExpectLooks(
    const std::function<void(Button&)>& prepare = [](Button&) {},
    const Draw& draw = [](CDC&, const Look&, const CRect&, COLORREF) {})
{
    constexpr bool bDrops = !std::is_same_v<Button, CButtonST>;
    const int nLooks = bDrops ? 60 : 300;
    std::mt19937 random(1);
    Lone<Open<Button>> push(kSize), box(kSize, L"", BS_AUTOCHECKBOX);
    const owtest::ImportStandIn themes(L"DialogControlsOW.dll", "GetProcAddress", &CountThemes);
    owtest::HandleCount before;
    for (int i = 0; i < nLooks; ++i)
    {
        before = i == nLooks / 2 ? owtest::CountHandles() : before;
        const Look look{random, bDrops};
        Open<Button>& button = look.bCheckBox ? box.button : push.button;
        look.Dress(button);
        prepare(button);
        Surface ours(look.size.cx, look.size.cy), expected(look.size.cx, look.size.cy);
        PaintButton(button, ours, look.nState);
        look.Paint(expected.dc(), button, draw);
        ASSERT_TRUE(ours == expected) << "case " << i;
        button.SetIcon(static_cast<HICON>(nullptr)); // gives its image back
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_EQ(s_themes, 0);
}
} // namespace

TEST(ButtonPaint, IsThatOfTheModelInEveryState)
{
    ExpectLooks<CButtonST>();
    ExpectLooks<CTextBtnST>(); // has the arrow alone
}

TEST(ButtonTitle, HasHooksForSubclassesOfWhichThatOfTheArrowLeavesRoomForIt)
{
    Surface ours(kSize.cx, kSize.cy), expected(kSize.cx, kSize.cy);
    const CRect room(CPoint(5, 6), kSize);
    CRect title(room), measured(room), besideArrow(room);
    expected.dc().DrawText(kTitles[2], -1, title, kTitle | DT_CALCRECT);
    expected.dc().DrawText(kTitles[2], -1, title, kTitle);
    Open<> plain;
    plain.DrawItemHook_CalcRect(&ours.dc(), kTitles[2], measured);
    plain.DrawItemHook_DrawText(&ours.dc(), kTitles[2], measured);
    Open<CTextBtnST>().DrawItemHook_CalcRect(&ours.dc(), kTitles[2], besideArrow);
    EXPECT_TRUE(measured == title && besideArrow == title - CPoint(4, 0) && ours == expected);
}

TEST(ButtonTransparency, ShowsWhatTheParentHasAtTheFirstPaintOrWhatTheCallerGives)
{
    Lone<Open<>> lone(kSize);
    Open<>& button = lone.button;
    lone.parent.SetWindowPos(&CWnd::wndTopMost, 40, 40, 600, 200, SWP_SHOWWINDOW);
    button.ShowWindow(SW_HIDE); // what is behind shows
    Surface given(300, 200);
    CClientDC dcParent(&lone.parent);
    EXPECT_EQ(button.SetBk(&given.dc()), 5u) << "needs DrawTransparent";
    const auto drawBehind = [&](CDC& dc, COLORREF cr)
    {
        dc.FillSolidRect(0, 0, 300, 200, kRed);
        dc.FillSolidRect(CRect(CPoint(10, 10), kSize), cr);
    };
    const auto shows = [&](COLORREF cr)
    {
        Surface surface(kSize.cx, kSize.cy);
        PaintButton(button, surface);
        return surface.count(CRect(CPoint(0, 0), kSize), cr) == kSize.cx * kSize.cy;
    };
    for (CDC* const pDC : {static_cast<CDC*>(&dcParent), &given.dc(), static_cast<CDC*>(&dcParent)})
    {
        drawBehind(*pDC, kGreen);
        button.DrawTransparent();
        EXPECT_EQ(pDC == &dcParent ? 0u : button.SetBk(pDC), 0u);
        EXPECT_TRUE(shows(kGreen));
        drawBehind(*pDC, kWhite);
        EXPECT_TRUE(shows(kGreen)) << "a copy, made once";
    }
    button.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_TRUE(shows(kWhite));
}

TEST(DropFaces, OfPickersHaveThePictureThatIsChosenInTheMiddle)
{
    using Picker = CBitmapBtnSTTekstKote; // pictures of one bit
    auto& handles = Picker::s_pictures.handles;
    const HBITMAP hMissing = std::exchange(handles[1], nullptr);
    for (int index : {0, 1, 6, -1}) // the last two are none
    {
        // In the middle, cut off at the area; the white of one bit takes on the face.
        const Draw draw = [&](CDC& dc, const Look& look, const CRect& area, COLORREF crFace)
        {
            if (look.bDisabled || index != 0)
                return;
            CDC dcPicture;
            dcPicture.CreateCompatibleDC(&dc);
            const CGdiSelection picture(dcPicture, handles[index]);
            const CSavedDC saved(dc);
            dc.SetBkColor(crFace);
            dc.IntersectClipRect(area);
            const CSize room = area.Size() - CSize(48, 16);
            dc.BitBlt(area.left + room.cx / 2, area.top + room.cy / 2, 48, 16, &dcPicture, 0, 0, SRCCOPY);
        };
        ExpectLooks<Picker>([&](Picker& picker) { picker.SetEnumSource(&index); }, draw);
    }
    ExpectLooks<Picker>();
    handles[1] = hMissing;

    int index = 0;
    Lone<Picker> lone(CSize(80, 30));
    lone.button.SetEnumSource(&index);
    Surface whole(80, 30), part(80, 30);
    PaintButton(lone.button, whole);
    whole.dc().FillSolidRect(CRect(36, 0, 80, 30), kKey);
    part.dc().IntersectClipRect(CRect(0, 0, 36, 30)); // without the middle, from which the face is taken
    PaintButton(lone.button, part);
    EXPECT_TRUE(part == whole);
}

TEST(DropFaces, OfColorButtonsHaveASwatchOrAnEmptyFrame)
{
    const auto swatch = [](COLORREF cr, bool bEngraves) -> Draw
    {
        return [=](CDC& dc, const Look& look, const CRect& area, COLORREF)
        {
            if (look.bDisabled && !bEngraves)
                return;
            if (look.bDisabled)
                dc.Draw3dRect(area + CPoint(1, 1), kWhite, kWhite);
            else if (cr != CLR_NONE)
                dc.FillSolidRect(area, cr);
            dc.Draw3dRect(area, look.bDisabled ? kShadow : kBlack, look.bDisabled ? kShadow : kBlack);
        };
    };
    DWORD color = RGB(1, 2, 3);
    ExpectLooks<CColorBtnST>([&](CColorBtnST& button) { button.SetColorSource(&color); },
                             swatch(color, false));
    for (int index : {30, 999}) // the second is no colour
        ExpectLooks<CAcadColorBtnST>([&](CAcadColorBtnST& button) { button.SetColorSource(&index); },
                                     swatch(index == 30 ? RGB(255, 127, 0) : CLR_NONE, true));
}
