// What a button looks like, read back pixel by pixel.

#include "Images.h"
#include "Room.h"

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
const CSize kSize(100, 41), kIconSize(16, 16), kBitmapSize(20, 11);
constexpr UINT kTitle = DT_WORDBREAK | DT_CENTER;

enum EImage
{
    noImage,
    icon,
    bitmap
};

/// Everything that a look depends on.
struct Look
{
    bool bCheckBox, bChecked, bFlat, bBorder, bFlatFocus, bDefault, bHover, bPressed, bFocused, bDisabled,
        bEngraves;
    bool bSecondImage, bPressedDown, bToolbar, bThemed;
    EImage image;
    BYTE nAlign;
    LPCTSTR pszTitle;

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

CRect Inside(const CRect& rect, int leftTop, int rightBottom)
{
    return CRect(rect.left + leftTop, rect.top + leftTop, rect.right - rightBottom,
                 rect.bottom - rightBottom);
}

/// Face and edges: rectangles that lie one over the other. What is left for the focus mark.
CRect PaintFace(CDC& dc, const Look& look, HWND hButton)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF face = look.ByState(kFaceIn, kFaceFocus, kFaceOut);
    const bool bPressed = look.LooksPressed();
    CRect rect(CPoint(0, 0), kSize);
    if (look.bThemed)
    {
        const bool bDefault = look.bDefault && (!look.bToolbar || look.bBorder);
        const int nEnabled = bPressed      ? PBS_PRESSED
                             : look.bHover ? PBS_HOT
                             : bDefault    ? PBS_DEFAULTED
                                           : PBS_NORMAL;
        const HTHEME hTheme = ::OpenThemeData(hButton, look.bToolbar ? L"TOOLBAR" : L"BUTTON");
        ::DrawThemeParentBackground(hButton, dc, rect);
        ::DrawThemeBackground(hTheme, dc, BP_PUSHBUTTON, look.bDisabled ? PBS_DISABLED : nEnabled, rect,
                              nullptr);
        ::CloseThemeData(hTheme);
        return rect;
    }
    if (!look.bFlat && (look.bFocused || look.bDefault))
    {
        dc.FillSolidRect(rect, kBlack);
        rect.DeflateRect(1, 1);
    }
    dc.FillSolidRect(rect, face);
    if (!look.bFlat && bPressed)
    {
        dc.FillSolidRect(rect, shadow);
        dc.FillSolidRect(Inside(rect, 1, 1), face);
    }
    else if (!look.bFlat)
    {
        dc.FillSolidRect(rect, ::GetSysColor(COLOR_3DDKSHADOW));
        dc.FillSolidRect(Inside(rect, 0, 1), light);
        dc.FillSolidRect(Inside(rect, 1, 1), shadow);
        dc.FillSolidRect(Inside(rect, 1, 2), ::GetSysColor(COLOR_3DLIGHT));
        dc.FillSolidRect(Inside(rect, 2, 2), face);
    }
    else if (look.bBorder && (bPressed || look.bHover))
    {
        dc.FillSolidRect(rect, bPressed ? light : shadow);
        dc.FillSolidRect(Inside(rect, 0, 1), bPressed ? shadow : light);
        dc.FillSolidRect(Inside(rect, 1, 1), face);
    }
    return rect;
}

/// The image is one colour in a transparent frame. What is left for the title.
CRect PaintImage(CDC& dc, const Look& look)
{
    CRect caption(CPoint(0, 0), kSize);
    if (look.image == noImage)
        return caption;
    const CSize size = look.image == icon ? kIconSize : kBitmapSize;
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
    const CRect inside = Inside(image, 2, 2);
    const bool bEngraved = look.bDisabled && look.bEngraves && look.image == bitmap;
    if (bEngraved)
        dc.FillSolidRect(inside + CPoint(1, 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    dc.FillSolidRect(inside, bEngraved ? ::GetSysColor(COLOR_BTNSHADOW) : bFirst ? kRed : kSecond);
    const COLORREF corner = dc.GetPixel(image.TopLeft()); // kept: it counts as background, and stays
    for (int i = 0; look.bDisabled && look.image == icon && i < size.cx * size.cy; ++i)
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

void PaintModel(CDC& dc, const Look& look, HWND hButton)
{
    const CRect face = PaintFace(dc, look, hButton);
    const CRect caption = PaintImage(dc, look);
    if (*look.pszTitle)
        PaintTitle(dc, look, caption);
    dc.SetTextColor(kBlack);
    dc.SetBkColor(kWhite);
    if (look.bFocused && (!look.bFlat || look.bFlatFocus))
        dc.DrawFocusRect(Inside(face, 3, 3));
}

/// A button without a theme, with colours of its own.
struct Plain : Lone<Open<>>
{
    explicit Plain(DWORD dwType = BS_PUSHBUTTON) : Lone(kSize, _T(""), dwType)
    {
        button.SetThemeHelper(nullptr);
        button.SetFlat(TRUE);
        const COLORREF colors[] = {kFaceIn, kTextIn, kFaceOut, kTextOut, kFaceFocus, kTextFocus};
        for (BYTE i = 0; i < CButtonST::colorCount; ++i)
            button.SetColor(i, colors[i]);
    }
    std::unique_ptr<Surface> Paint(UINT nItemState = 0)
    {
        auto pSurface = std::make_unique<Surface>(kSize.cx, kSize.cy);
        PaintButton(button, *pSurface, nItemState);
        pSurface->dc().SetTextColor(kBlack);
        return pSurface;
    }
    CSize Size() const
    {
        CRect rect;
        button.GetWindowRect(rect);
        return rect.Size();
    }
};

void Dress(Open<>& button, const Look& look, HICON hFirst, HICON hSecond)
{
    const auto make = [](COLORREF cr) { return testimages::MakeBitmap(kBitmapSize, cr, kKey); };
    if (look.image == bitmap)
        button.SetBitmaps(make(kRed), kKey, look.bSecondImage ? make(kSecond) : nullptr, kKey);
    else
        button.SetIcon(look.image == icon ? hFirst : nullptr, look.bSecondImage ? hSecond : nullptr);
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
}
} // namespace

TEST(ButtonPaint, IsThatOfTheModelInEveryState)
{
    const Icon first(kIconSize.cx, kRed), second(kIconSize.cx, kSecond);
    const LPCTSTR titles[] = {_T(""), _T("HHHH"), _T("HHHHHH HHHHHH HHHHHH")};
    Plain push, box(BS_AUTOCHECKBOX);
    std::mt19937 random(1);
    const auto draw = [&](auto&... flags) { ((flags = random() % 2 != 0), ...); };
    for (int i = 0; i < 300; ++i)
    {
        Look look{};
        draw(look.bCheckBox, look.bChecked, look.bFlat, look.bBorder, look.bFlatFocus, look.bDefault,
             look.bHover, look.bPressed, look.bFocused, look.bDisabled, look.bEngraves, look.bSecondImage,
             look.bPressedDown, look.bToolbar);
        look.bThemed = random() % 4 == 0;
        look.image = EImage(random() % 3);
        look.nAlign = BYTE(random() % 4);
        look.pszTitle = titles[random() % 3];
        Plain& plain = look.bCheckBox ? box : push;
        Dress(plain.button, look, first, second);
        const auto ours = plain.Paint((look.bPressed ? ODS_SELECTED : 0) | (look.bFocused ? ODS_FOCUS : 0) |
                                      (look.bDisabled ? ODS_DISABLED : 0));
        Surface expected(kSize.cx, kSize.cy);
        PaintModel(expected.dc(), look, plain.button);
        ASSERT_TRUE(*ours == expected) << "case " << i;
    }
}

TEST(ButtonPaint, ADisabledIconThatIsTooLargeTurnsTheFaceGreyToo)
{
    const Icon large(kSize.cx + 20, kRed);
    Plain plain;
    plain.button.SetIcon(large, nullptr);
    const auto surface = plain.Paint(ODS_DISABLED);
    EXPECT_EQ(surface->at(kSize.cx / 2, kSize.cy / 2), RGB(155, 155, 155));
    EXPECT_NE(surface->at(kSize.cx / 2, 1), kFaceOut) << "a corner outside has no colour that could stay";
}

TEST(ButtonPaint, MeasuresAndDrawsForSubclassesAsItDrawsTitles)
{
    struct Hooks : CButtonST
    {
        using CButtonST::DrawItemHook_CalcRect;
        using CButtonST::DrawItemHook_DrawText;
    } hooks;
    struct TextHooks : CTextBtnST
    {
        using CTextBtnST::DrawItemHook_CalcRect;
    } textHooks;
    const CString strText(_T("HHHHHH HHHHHH"));
    Surface ours(60, 40), expected(60, 40);
    CRect rect(2, 2, 58, 9), expectedRect(rect), besideArrow(rect);
    hooks.DrawItemHook_CalcRect(&ours.dc(), strText, rect);
    hooks.DrawItemHook_DrawText(&ours.dc(), strText, rect);
    textHooks.DrawItemHook_CalcRect(&ours.dc(), strText, besideArrow);
    expected.dc().DrawText(strText, expectedRect, kTitle | DT_CALCRECT);
    expected.dc().DrawText(strText, expectedRect, kTitle);
    EXPECT_EQ(rect, expectedRect);
    EXPECT_EQ(besideArrow, expectedRect - CPoint(4, 0));
    EXPECT_TRUE(ours == expected);
}

TEST(ButtonPaint, SizesItselfToItsImage)
{
    Plain plain;
    plain.button.SizeToContent();
    EXPECT_EQ(plain.Size(), kSize) << "without an image nothing happens";
    plain.button.SetBitmaps(testimages::MakeBitmap(CSize(30, 18), kRed, kKey), kKey);
    plain.button.SizeToContent();
    EXPECT_EQ(plain.Size(), CSize(30, 18));
    EXPECT_EQ(plain.button.m_ptImageOrigin, CPoint(0, 0));
    plain.button.SetIcon(10000, 24, 24, 0, 0, 0);
    plain.button.SizeToContent();
    EXPECT_EQ(plain.Size(), CSize(24, 24));
    EXPECT_EQ(plain.button.GetParent()->GetTopWindow()->m_hWnd, plain.button.m_hWnd);
}

// ---- Transparency -----------------------------------------------------------------------------------------

TEST(ButtonTransparency, ShowsWhatTheParentHasAtTheFirstPaintOrWhatTheCallerGives)
{
    CWnd parent;
    parent.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), _T(""), WS_POPUP | WS_VISIBLE,
                    CRect(40, 40, 240, 140), nullptr, 0);
    Open button;
    button.Create(_T(""), WS_CHILD, CRect(CPoint(10, 10), kSize), &parent,
                  1); // hidden: only what is behind shows
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
    for (BYTE i = 0; i < CButtonST::colorCount; ++i)
        EXPECT_EQ(ColorOf(button, i), ::GetSysColor(i % 2 ? COLOR_BTNTEXT : COLOR_BTNFACE))
            << "new system colours";
    parent.DestroyWindow();
}
