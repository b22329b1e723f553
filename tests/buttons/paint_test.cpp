// What a button looks like, read back pixel by pixel.

#include "ButtonsDialog.h"
#include "Images.h"

#include <gtest/gtest.h>

#include <memory>

#include <uxtheme.h>

#include <vsstyle.h>

using owtest::Surface;

namespace
{
constexpr COLORREF kFaceIn = RGB(200, 220, 255);
constexpr COLORREF kFaceOut = RGB(180, 200, 180);
constexpr COLORREF kFaceFocus = RGB(255, 230, 200);
constexpr COLORREF kTextIn = RGB(0, 0, 200);
constexpr COLORREF kTextOut = RGB(0, 100, 0);
constexpr COLORREF kTextFocus = RGB(120, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kKey = RGB(255, 0, 255); ///< transparent colour of the bitmaps
const CSize kSize(100, 40);

/// A button without a theme, with colours of its own, and a surface of its size.
class PaintedButton : public ::testing::Test
{
protected:
    explicit PaintedButton(LPCTSTR pszTitle = _T(""), DWORD dwType = BS_PUSHBUTTON)
        : m_lone(kSize, pszTitle, dwType), m_button(m_lone.button)
    {
        m_button.SetThemeHelper(nullptr);
        m_button.SetFlat(FALSE);
        const COLORREF colors[] = {kFaceIn, kTextIn, kFaceOut, kTextOut, kFaceFocus, kTextFocus};
        for (BYTE i = 0; i < CButtonST::colorCount; ++i)
            m_button.SetColor(i, colors[i]);
    }

    const Surface& Paint(UINT nItemState = 0)
    {
        m_surface = std::make_unique<Surface>(kSize.cx, kSize.cy);
        m_button.PaintOn(*m_surface, nItemState);
        return *m_surface;
    }
    COLORREF Face(UINT nItemState = 0) { return Paint(nItemState).at(kSize.cx / 2, kSize.cy / 2); }

    LoneButton m_lone;
    OpenButton& m_button;
    std::unique_ptr<Surface> m_surface;
};

class TitledButton : public PaintedButton
{
protected:
    TitledButton() : PaintedButton(_T("HHHH")) {}
};

class PaintedCheckBox : public PaintedButton
{
protected:
    PaintedCheckBox() : PaintedButton(_T("HHHH"), BS_AUTOCHECKBOX) {}
};
} // namespace

// ---- Face and border --------------------------------------------------------------------------------------

TEST_F(PaintedButton, RaisedHasAnEdgeOfFourLines)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), soft = ::GetSysColor(COLOR_3DLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const int right = kSize.cx - 1, bottom = kSize.cy - 1;
    const struct
    {
        const char* name;
        CRect area;
        COLORREF color;
    } parts[] = {
        {"left", {0, 0, 1, bottom}, light},
        {"top", {0, 0, right - 1, 1}, light},
        {"left, inside", {1, 1, 2, bottom - 1}, soft},
        {"top, inside", {1, 1, right - 1, 2}, soft},
        {"bottom", {0, bottom, right + 1, bottom + 1}, dark},
        {"right, over the light corner", {right, 0, right + 1, bottom}, dark},
        {"bottom, inside", {1, bottom - 1, right, bottom}, shadow},
        {"right, inside", {right - 1, 1, right, bottom}, shadow},
        {"face", {2, 2, right - 1, bottom - 1}, kFaceOut},
    };
    const Surface& picture = Paint();
    for (const auto& part : parts)
        EXPECT_EQ(picture.count(part.area, part.color), part.area.Width() * part.area.Height()) << part.name;

    Paint(ODS_SELECTED);
    EXPECT_EQ(m_surface->extent(shadow), CRect(CPoint(0, 0), kSize)) << "one dark frame while it is pressed";
    EXPECT_EQ(m_surface->extent(kFaceIn), CRect(1, 1, right, bottom));
}

TEST_F(PaintedButton, RaisedShrinksIntoABlackFrameWhenFocusedOrDefault)
{
    const auto expectFrame = [](const Surface& picture)
    {
        EXPECT_EQ(picture.count(CRect(0, 0, kSize.cx, 1), RGB(0, 0, 0)), kSize.cx);
        EXPECT_EQ(picture.at(kSize.cx - 1, kSize.cy - 1), RGB(0, 0, 0));
        EXPECT_EQ(picture.at(1, 1), ::GetSysColor(COLOR_BTNHIGHLIGHT))
            << "the edge goes by the smaller rectangle";
        EXPECT_EQ(picture.at(kSize.cx - 2, kSize.cy - 2), ::GetSysColor(COLOR_3DDKSHADOW));
    };
    expectFrame(Paint(ODS_FOCUS));
    m_button.m_bIsDefault = TRUE;
    expectFrame(Paint());

    m_button.SetFlat(TRUE);
    EXPECT_EQ(Paint().at(0, 0), kFaceOut) << "a flat one has no frame";
}

TEST_F(PaintedButton, FlatHasABorderOnlyWhileHoveredOrPressed)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const auto corners = [](const Surface& picture)
    { return std::pair(picture.at(0, 5), picture.at(kSize.cx - 1, 5)); };
    m_button.SetFlat(TRUE);
    EXPECT_EQ(corners(Paint()), std::pair(kFaceOut, kFaceOut));
    EXPECT_EQ(corners(Paint(ODS_SELECTED)), std::pair(shadow, light));
    m_button.m_bMouseOnButton = TRUE;
    EXPECT_EQ(corners(Paint()), std::pair(light, shadow));
    EXPECT_EQ(Face(ODS_FOCUS), kFaceIn) << "hover comes before focus";

    m_button.DrawBorder(FALSE);
    EXPECT_EQ(corners(Paint()), std::pair(kFaceIn, kFaceIn));
    EXPECT_EQ(corners(Paint(ODS_SELECTED)), std::pair(kFaceIn, kFaceIn));
}

TEST_F(PaintedButton, FocusIsShownThreePixelsInside)
{
    const auto dots = [&](int inset)
    {
        const Surface& picture = *m_surface;
        const CRect top(inset, inset, kSize.cx - inset, inset + 1);
        return top.Width() - picture.count(top, kFaceFocus);
    };
    Paint(ODS_FOCUS);
    EXPECT_GT(dots(4), 10) << "three pixels inside of the black frame";
    EXPECT_EQ(dots(5), 0);

    m_button.SetFlat(TRUE);
    Paint(ODS_FOCUS);
    EXPECT_EQ(dots(3), 0) << "a flat one does not show it";
    m_button.DrawFlatFocus(TRUE);
    Paint(ODS_FOCUS);
    EXPECT_GT(dots(3), 10);
}

// ---- Theme ------------------------------------------------------------------------------------------------

TEST(ThemedButton, IsDrawnByTheThemeInTheStateThatComesFirst)
{
    LoneButton lone(kSize);
    OpenButton& button = lone.button;
    const auto looks = [&](UINT nItemState, LPCWSTR pszClass, int nState)
    {
        Surface ours(kSize.cx, kSize.cy), expected(kSize.cx, kSize.cy);
        button.PaintOn(ours, nItemState);
        const HTHEME hTheme = ::OpenThemeData(button, pszClass);
        RECT rect{0, 0, kSize.cx, kSize.cy};
        ::DrawThemeParentBackground(button, expected.dc(), &rect);
        ::DrawThemeBackground(hTheme, expected.dc(), BP_PUSHBUTTON, nState, &rect, nullptr);
        ::CloseThemeData(hTheme);
        return ours == expected;
    };
    EXPECT_TRUE(looks(0, L"BUTTON", PBS_NORMAL));
    button.m_bIsDefault = TRUE;
    EXPECT_TRUE(looks(0, L"BUTTON", PBS_DEFAULTED));
    button.m_bMouseOnButton = TRUE;
    EXPECT_TRUE(looks(0, L"BUTTON", PBS_HOT));
    EXPECT_TRUE(looks(ODS_SELECTED, L"BUTTON", PBS_PRESSED));
    EXPECT_TRUE(looks(ODS_SELECTED | ODS_DISABLED, L"BUTTON", PBS_DISABLED));

    button.m_bMouseOnButton = FALSE;
    button.DrawAsToolbar(TRUE);
    EXPECT_TRUE(looks(0, L"TOOLBAR", TS_NORMAL)) << "the default button of a toolbar needs a border";
    button.DrawBorder(TRUE);
    EXPECT_TRUE(looks(0, L"TOOLBAR", TS_CHECKED));
}

// ---- Images -----------------------------------------------------------------------------------------------

TEST_F(TitledButton, ImageAndTitleStandByTheAlignment)
{
    constexpr int kIcon = 16;
    const HICON hIcon = testimages::MakeIcon(kIcon, kIcon, [](int, int) { return testimages::Opaque(kRed); });
    m_button.SetFlat(TRUE);
    m_button.SetIcon(hIcon, nullptr);
    struct Row
    {
        BYTE align;
        CPoint withTitle;
        CRect caption;
        CPoint alone;
    };
    const int right = kSize.cx, bottom = kSize.cy;
    const int middleX = (right - kIcon) / 2, middleY = (bottom - kIcon) / 2;
    // clang-format off
    for (const Row& row : {
             Row{CButtonST::alignLeft, {3, middleY}, {3 + kIcon, 0, right, bottom}, {middleX, middleY}},
             Row{CButtonST::alignTop, {middleX, 3}, {0, kIcon, right, bottom}, {middleX, middleY}},
             Row{CButtonST::alignRight, {right - 3 - kIcon, middleY}, {3, 0, right - 3 - kIcon, bottom}, {middleX, 0}},
             Row{CButtonST::alignNone, {0, 0}, {0, 0, right, bottom}, {0, 0}}})
    // clang-format on
    {
        m_button.SetAlign(row.align);
        m_button.SetWindowText(_T("HHHH"));
        EXPECT_EQ(Paint().extent(kRed), CRect(row.withTitle, CSize(kIcon, kIcon))) << int(row.align);
        EXPECT_EQ(m_button.captionRect, row.caption) << int(row.align);
        const CPoint text = m_surface->extent(kTextOut).CenterPoint();
        EXPECT_NEAR(text.x, row.caption.CenterPoint().x, 2) << int(row.align);
        EXPECT_NEAR(text.y, row.caption.CenterPoint().y, 3) << int(row.align);

        m_button.SetWindowText(_T(""));
        EXPECT_EQ(Paint().extent(kRed).TopLeft(), row.alone) << int(row.align);
        EXPECT_TRUE(m_button.captionRect.IsRectEmpty()) << "without a title none is drawn";
    }
    ::DestroyIcon(hIcon);
}

TEST_F(TitledButton, ImageAndTitleMoveWhilePressed)
{
    const HICON hIcon = testimages::MakeFramedIcon(16, kRed);
    m_button.SetFlat(TRUE);
    m_button.SetIcon(hIcon, nullptr);
    const CRect image = Paint().extent(kRed), text = m_surface->extent(kTextOut);
    EXPECT_EQ(Paint(ODS_SELECTED).extent(kRed), image + CPoint(1, 1));
    EXPECT_EQ(m_surface->extent(kTextIn), text + CPoint(1, 1));
    m_button.SetPressedStyle(CButtonST::pressedDown);
    EXPECT_EQ(Paint(ODS_SELECTED).extent(kRed), image + CPoint(0, 2));
    EXPECT_EQ(m_surface->extent(kTextIn), text + CPoint(0, 2));
    ::DestroyIcon(hIcon);
}

TEST_F(PaintedCheckBox, LooksPressedWhileCheckedAndMovesNothing)
{
    const HICON hIn = testimages::MakeFramedIcon(16, kRed), hOut = testimages::MakeFramedIcon(16, kGreen);
    m_button.SetIcon(hIn, hOut);
    const CRect image = Paint().extent(kGreen), text = m_surface->extent(kTextOut);
    EXPECT_TRUE(m_surface->extent(kRed).IsRectEmpty());
    m_button.m_bMouseOnButton = TRUE;
    EXPECT_EQ(Paint().extent(kGreen), image) << "the mouse alone does not change the image of a check box";
    m_button.m_bMouseOnButton = FALSE;

    m_button.SetCheck(1);
    EXPECT_EQ(Paint().extent(kRed), image);
    EXPECT_EQ(m_surface->extent(kTextIn), text);
    EXPECT_EQ(m_surface->at(0, 0), ::GetSysColor(COLOR_BTNSHADOW)) << "the frame of a pressed button";
    ::DestroyIcon(hIn);
    ::DestroyIcon(hOut);
}

TEST_F(PaintedButton, FirstImageShowsUnderTheMouseAndEverywhereIfItIsAlone)
{
    const auto shown = [&]
    {
        std::vector<COLORREF> colors;
        for (const auto& [nItemState, bHover] : {std::pair(0, FALSE), {0, TRUE}, {ODS_SELECTED, FALSE}})
        {
            m_button.m_bMouseOnButton = bHover;
            colors.push_back(Face(nItemState));
        }
        return colors;
    };
    const auto bitmap = [](COLORREF cr) { return testimages::MakeFramedBitmap(12, 12, cr, kKey); };
    const HICON hIn = testimages::MakeFramedIcon(16, kRed), hOut = testimages::MakeFramedIcon(16, kGreen);
    using Colors = std::vector<COLORREF>;
    m_button.SetIcon(hIn, hOut);
    EXPECT_EQ(shown(), (Colors{kGreen, kRed, kRed}));
    m_button.SetIcon(hIn, nullptr);
    EXPECT_EQ(shown(), Colors(3, kRed));
    m_button.SetBitmaps(bitmap(kRed), kKey, bitmap(kGreen), kKey);
    EXPECT_EQ(shown(), (Colors{kGreen, kRed, kRed}));
    m_button.SetBitmaps(bitmap(kRed), kKey);
    EXPECT_EQ(shown(), Colors(3, kRed));
    ::DestroyIcon(hIn);
    ::DestroyIcon(hOut);
}

TEST_F(PaintedButton, ABitmapLetsTheFaceThroughWhereItIsTransparent)
{
    m_button.SetBitmaps(testimages::MakeFramedBitmap(20, 12, kRed, kKey), kKey);
    const Surface& picture = Paint();
    const CRect inside(CPoint((kSize.cx - 20) / 2 + 2, (kSize.cy - 12) / 2 + 2), CSize(16, 8));
    EXPECT_EQ(picture.extent(kRed), inside);
    EXPECT_EQ(picture.count(inside, kRed), 16 * 8);
    EXPECT_EQ(picture.at(inside.left - 1, inside.top - 1), kFaceOut);
    EXPECT_TRUE(picture.extent(kKey).IsRectEmpty());
}

// ---- Disabled ---------------------------------------------------------------------------------------------

TEST_F(PaintedButton, ADisabledIconTurnsGreyWhereItStands)
{
    for (const auto& [cr, nGrey] : {std::pair(RGB(0, 0, 0), 125), {kRed, 155}, {RGB(255, 255, 255), 214}})
    {
        const HICON hIcon = testimages::MakeFramedIcon(16, cr);
        m_button.SetIcon(hIcon, nullptr);
        EXPECT_EQ(Face(ODS_DISABLED), RGB(nGrey, nGrey, nGrey));
        EXPECT_EQ(m_surface->at((kSize.cx - 16) / 2 + 1, kSize.cy / 2), kFaceOut)
            << "the face around it stays";
        ::DestroyIcon(hIcon);
    }
}

// Kept: the colour of the corner counts as background, so an icon that fills its corner keeps that colour.
TEST_F(PaintedButton, ADisabledIconKeepsTheColorOfItsCorner)
{
    const HICON hIcon = testimages::MakeIcon(
        16, 16, [](int x, int) { return testimages::Opaque(x < 8 ? kRed : RGB(0, 0, 0)); });
    m_button.SetIcon(hIcon, nullptr);
    const Surface& picture = Paint(ODS_DISABLED);
    EXPECT_EQ(picture.at(kSize.cx / 2 - 4, kSize.cy / 2), kRed);
    EXPECT_EQ(picture.at(kSize.cx / 2 + 4, kSize.cy / 2), RGB(125, 125, 125));
    ::DestroyIcon(hIcon);
}

// A corner outside the button has no colour, so nothing counts as background: the face turns grey, too.
TEST_F(PaintedButton, ADisabledIconThatIsLargerThanItsButtonTurnsEverythingGrey)
{
    const HICON hIcon = testimages::MakeFramedIcon(static_cast<int>(kSize.cx) + 20, kRed);
    m_button.SetIcon(hIcon, nullptr);
    const Surface& picture = Paint(ODS_DISABLED);
    EXPECT_EQ(picture.at(kSize.cx / 2, kSize.cy / 2), RGB(155, 155, 155));
    EXPECT_NE(picture.at(kSize.cx / 2, 1), kFaceOut);
    ::DestroyIcon(hIcon);
}

TEST_F(PaintedButton, ADisabledBitmapIsEngravedUnlessToldOtherwise)
{
    m_button.SetFlat(TRUE);
    m_button.SetBitmaps(testimages::MakeFramedBitmap(20, 12, kRed, kKey), kKey);
    const Surface& engraved = Paint(ODS_DISABLED);
    EXPECT_TRUE(engraved.extent(kRed).IsRectEmpty());
    // Kept: the ground of the engraving is filled with a brush that does not exist. The system takes white
    // for it, and so the transparent frame stays out. Were the ground not filled at all, the frame would be
    // engraved, too.
    const CRect inside(CPoint((kSize.cx - 20) / 2 + 2, (kSize.cy - 12) / 2 + 2), CSize(16, 8));
    EXPECT_EQ(engraved.extent(::GetSysColor(COLOR_BTNSHADOW)), inside);
    EXPECT_EQ(engraved.at(inside.right, inside.bottom), ::GetSysColor(COLOR_BTNHIGHLIGHT));

    m_button.m_bShowDisabledBitmap = FALSE;
    EXPECT_EQ(Face(ODS_DISABLED), kRed);
}

TEST_F(TitledButton, ADisabledTitleIsEngraved)
{
    const CRect text = Paint().extent(kTextOut);
    m_button.SetFlat(TRUE);
    const Surface& picture = Paint(ODS_DISABLED);
    EXPECT_EQ(picture.extent(::GetSysColor(COLOR_BTNSHADOW)), text);
    EXPECT_EQ(picture.extent(::GetSysColor(COLOR_BTNHIGHLIGHT)).BottomRight(),
              text.BottomRight() + CPoint(1, 1));
}

TEST_F(TitledButton, TheTitleFollowsTheStateAndBreaksIntoLines)
{
    EXPECT_FALSE(Paint(ODS_FOCUS).extent(kTextFocus).IsRectEmpty());
    EXPECT_FALSE(Paint(ODS_SELECTED).extent(kTextIn).IsRectEmpty());

    const int oneLine = Paint().extent(kTextOut).Height();
    m_button.SetWindowText(_T("HHHHHH HHHHHH HHHHHH"));
    const CRect lines = Paint().extent(kTextOut);
    EXPECT_GT(lines.Height(), oneLine * 2 - 2);
    EXPECT_NEAR(lines.CenterPoint().y, kSize.cy / 2, 3) << "both lines together are centred";
}

// ---- Size and transparency --------------------------------------------------------------------------------

TEST_F(PaintedButton, SizesItselfToItsImage)
{
    const auto size = [&]
    {
        CRect rect;
        m_button.GetWindowRect(rect);
        return rect.Size();
    };
    m_button.SizeToContent();
    EXPECT_EQ(size(), kSize) << "without an image nothing happens";
    m_button.SetBitmaps(testimages::MakeFramedBitmap(30, 18, kRed, kKey), kKey);
    m_button.SizeToContent();
    EXPECT_EQ(size(), CSize(30, 18));
    EXPECT_EQ(m_button.m_ptImageOrigin, CPoint(0, 0));
}

TEST_F(PaintedButton, TransparentShowsWhatTheCallerOrTheParentHasBehindIt)
{
    EXPECT_EQ(m_button.SetBk(&Surface(10, 10).dc()), 5u) << "needs DrawTransparent";
    m_button.SetFlat(TRUE);
    m_button.DrawTransparent();
    EXPECT_EQ(m_button.SetBk(nullptr), 5u);

    Surface behind(300, 200, kGreen);
    behind.dc().FillSolidRect(10, 10, 1, 1, kRed); // the button's place in its parent
    EXPECT_EQ(m_button.SetBk(&behind.dc()), 0u);
    EXPECT_EQ(Paint().at(0, 0), kRed);
    EXPECT_EQ(m_surface->at(1, 1), kGreen);

    behind.dc().FillSolidRect(0, 0, 300, 200, kRed);
    EXPECT_EQ(Paint().at(1, 1), kGreen) << "it is a copy";
    EXPECT_EQ(m_button.SetBk(&behind.dc()), 0u);
    EXPECT_EQ(Paint().at(1, 1), kRed);

    m_button.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_FALSE(m_button.m_background) << "the next paint takes it from the parent";
    COLORREF cr = 0;
    m_button.GetColor(CButtonST::colorBackOut, &cr);
    EXPECT_EQ(cr, ::GetSysColor(COLOR_BTNFACE)) << "new system colours take the place of all six";
}

TEST(TransparentButton, ShowsItsParentsPixelsAsTheyWereAtTheFirstPaint)
{
    CWnd parent;
    CBrush green(kGreen);
    parent.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, nullptr, green), _T(""), WS_POPUP | WS_VISIBLE,
                    CRect(40, 40, 240, 140), nullptr, 0);
    OpenButton button;
    button.Create(_T(""), WS_CHILD, CRect(CPoint(10, 10), kSize), &parent,
                  1); // hidden: only what is behind shows
    button.DrawTransparent();
    parent.UpdateWindow();

    Surface surface(kSize.cx, kSize.cy);
    button.PaintOn(surface);
    EXPECT_EQ(surface.count(CRect(CPoint(0, 0), kSize), kGreen), kSize.cx * kSize.cy);
    CClientDC(&parent).FillSolidRect(0, 0, 200, 100, kRed);
    button.PaintOn(surface);
    EXPECT_EQ(surface.at(5, 5), kGreen) << "the copy is made once";
    button.DrawTransparent();
    button.PaintOn(surface);
    EXPECT_EQ(surface.at(5, 5), kRed);
    parent.DestroyWindow();
}
