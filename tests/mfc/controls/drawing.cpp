// What reaches the pixels, and what a context tells about its fonts.

#include <afxcmn.h>

#include "../base/Answers.h"

namespace
{
constexpr COLORREF BACK = RGB(255, 255, 255);
constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);
constexpr COLORREF PINK = RGB(255, 0, 255);
const CRect whole(0, 0, 40, 40);

/// A surface with a blue pen, a red brush and a font of this height.
struct Canvas : owtest::Surface
{
    explicit Canvas(int height) : Surface(40, 40, BACK)
    {
        font.CreateFont(height, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Liberation Sans");
        dc().SelectObject(&pen);
        dc().SelectObject(&brush);
        dc().SelectObject(&font);
    }
    ~Canvas() { dc().RestoreDC(before); }

    int before = dc().SaveDC();
    CPen pen{PS_SOLID, 1, BLUE};
    CBrush brush{RED};
    CFont font;
};

BOOL CALLBACK DrawLine(HDC dc, LPARAM x, WPARAM, int, int)
{
    return ::MoveToEx(dc, int(x), 0, nullptr) && ::LineTo(dc, 9, 9);
}

/// A context that draws into one canvas and takes its attributes from another, and the system's own beside it.
class DrawingTest : public testing::Test
{
protected:
    DrawingTest()
    {
        dc.SetOutputDC(drawn.dc());
        dc.SetAttribDC(attributes.dc());
    }
    ~DrawingTest() override
    {
        dc.ReleaseOutputDC();
        dc.ReleaseAttribDC();
    }
    /// That the two calls draw the same, and answer the same.
    template <class Call, class Meant>
    void Same(Call call, Meant meantCall, const char* name)
    {
        for (Canvas* const canvas : {&drawn, &meant})
            canvas->dc().FillSolidRect(whole, BACK);
        EXPECT_EQ(call(), meantCall()) << name;
        EXPECT_TRUE(drawn == meant) << name;
        EXPECT_LT(meant.count(whole, BACK), 40 * 40) << name << ": there is nothing to see";
    }

    Canvas drawn{12}, meant{12}, attributes{24};
    const HDC h = meant.dc();      ///< for what is drawn,
    const HDC a = attributes.dc(); ///< and what is asked
    CDC dc;
    CBrush brush{RGB(0, 128, 0)};
};
#define SAME(member, system) Same([&] { return dc.member; }, [&] { return system; }, #member)
} // namespace

TEST_F(DrawingTest, StatesAreOfTheKindOfTheCallWhateverTheFlagsSay)
{
    const CPoint at(5, 6);
    const CSize size(8, 9);
    CBitmap picture;
    picture.CreateCompatibleBitmap(&drawn.dc(), 8, 8);
    const HICON icon = ::LoadIcon(nullptr, IDI_WARNING);
    const auto state = [&](UINT flags, auto data, WPARAM extra = 0, DRAWSTATEPROC procedure = nullptr)
    { return ::DrawState(h, brush, procedure, LPARAM(data), extra, 5, 6, 8, 9, flags); };
    SAME(DrawState(at, size, &picture, DSS_MONO | DST_TEXT, &brush),
         state(DSS_MONO | DST_BITMAP, picture.m_hObject));
    SAME(DrawState(at, size, icon, DST_TEXT, &brush), state(DST_ICON, icon));
    SAME(DrawState(at, size, L"a&bc", DSS_MONO, TRUE, 3, &brush),
         state(DSS_MONO | DST_PREFIXTEXT, L"a&bc", 3));
    SAME(DrawState(at, size, L"a&bc", DSS_MONO, FALSE, 3, &brush), state(DSS_MONO | DST_TEXT, L"a&bc", 3));
    SAME(DrawState(at, size, DrawLine, 3, DSS_MONO, &brush), state(DSS_MONO, 3, 0, DrawLine));
}

TEST_F(DrawingTest, TextsAreTheSystemsAndMeasuredByTheAttributesUnlessSaid)
{
    const CString text(L"A\tjet");
    INT stops[] = {30};
    CRect box(3, 4, 30, 28);
    const auto letters = const_cast<LPTSTR>(text.GetString());
    SAME(TextOut(3, 4, text, 1), ::TextOut(h, 3, 4, text, 1));
    SAME(ExtTextOut(3, 4, ETO_CLIPPED, box, text, nullptr),
         ::ExtTextOut(h, 3, 4, ETO_CLIPPED, box, text, 5, nullptr));
    SAME(TabbedTextOut(3, 4, text, 1, stops, 9),
         CSize(DWORD(::TabbedTextOut(h, 3, 4, text, 5, 1, stops, 9))));
    SAME(DrawText(text, box, DT_CENTER), ::DrawText(h, text, 5, box, DT_CENTER));
    SAME(DrawTextEx(text, box, DT_RIGHT, nullptr), ::DrawTextEx(h, letters, 5, box, DT_RIGHT, nullptr));

    const auto extent = [&](HDC from, int count)
    {
        CSize size;
        return ::GetTextExtentPoint32(from, text, count, &size), size;
    };
    EXPECT_EQ(Told(dc.GetTextExtent(text), dc.GetTextExtent(text, 1)), Told(extent(a, 5), extent(a, 1)));
    EXPECT_EQ(Told(dc.GetOutputTextExtent(text), dc.GetOutputTextExtent(text, 1)),
              Told(extent(h, 5), extent(h, 1)));
    EXPECT_EQ(dc.GetTabbedTextExtent(text, 1, stops), CSize(::GetTabbedTextExtent(a, text, 5, 1, stops)));
    EXPECT_EQ(dc.GetOutputTabbedTextExtent(text, 1, stops),
              CSize(::GetTabbedTextExtent(h, text, 5, 1, stops)));
    INT width = 0, outputWidth = 0;
    EXPECT_TRUE(dc.GetCharWidth('A', 'A', &width) && dc.GetOutputCharWidth('A', 'A', &outputWidth));
    EXPECT_EQ(Told(width, outputWidth), Told(extent(a, 1).cx, extent(h, 1).cx));
    CString face;
    EXPECT_EQ(dc.GetTextFace(face), 16);
    EXPECT_EQ(Told(face, face.GetLength()), "Liberation Sans,15");
}

TEST(Drawing, Draw3dRectGivesTheSharedCornersToRightAndBottom)
{
    owtest::Surface surface(20, 20, BACK);
    surface.dc().Draw3dRect(CRect(2, 2, 12, 10), RED, BLUE);
    EXPECT_EQ(Told(surface.extent(RED), surface.extent(BLUE)), "2 2 11 9,2 2 12 10");
    EXPECT_EQ(surface.count(CRect(3, 3, 11, 9), BACK), 8 * 6) << "the inside is left alone";
    EXPECT_EQ(Told(surface.count(CRect(0, 0, 20, 20), RED), surface.count(CRect(0, 0, 20, 20), BLUE)),
              "15,17");
}

TEST(Drawing, ADragFrameVanishesWhenItIsDrawnOverItself)
{
    owtest::Surface surface(40, 40, BACK);
    CBrush brush(BACK), other(BACK);
    CDC& dc = surface.dc();
    const CRect first(5, 5, 25, 25), second(10, 10, 30, 30);
    const auto black = [&] { return surface.count(whole, RGB(0, 0, 0)); };
    const int handles = owtest::CountHandles().gdi;
    dc.DrawDragRect(first, CSize(2, 2), nullptr, CSize(0, 0), &brush);
    EXPECT_EQ(black(), 20 * 20 - 16 * 16);
    for (CBrush* last : {&brush, &other})
    {
        dc.DrawDragRect(second, CSize(2, 2), first, CSize(2, 2), &brush, last);
        EXPECT_EQ(surface.extent(RGB(0, 0, 0)), second);
        EXPECT_EQ(black(), 20 * 20 - 16 * 16);
        dc.DrawDragRect(first, CSize(2, 2), second, CSize(2, 2), &brush);
    }
    dc.DrawDragRect(first, CSize(20, 20), first, CSize(2, 2), &brush);
    EXPECT_EQ(black(), 20 * 20) << "a frame is no thicker than its rectangle";
    dc.FillSolidRect(whole, BACK);
    dc.DrawDragRect(first, CSize(20, 20), nullptr, CSize(0, 0));
    for (int i = 0; i < 20 * 19; ++i)
        EXPECT_NE(surface.at(5 + i % 19, 5 + i / 19), surface.at(6 + i % 19, 5 + i / 19))
            << i << ": half of them";
    EXPECT_LE(owtest::CountHandles().gdi, handles + 1) << "only the brush for frames without one stays";
    CRect clip;
    dc.GetClipBox(clip);
    EXPECT_EQ(clip, whole);
}

TEST(Drawing, TextIsShortenedInPlaceWhereThatIsWanted)
{
    owtest::Surface surface(200, 30, BACK);
    CDC& dc = surface.dc();
    for (const bool extended : {false, true})
    {
        CString text(L"a rather long text that does not fit");
        const CString before = text;
        CRect box(0, 0, 60, 30);
        const auto draw = [&](UINT format)
        { return extended ? dc.DrawTextEx(text, box, format, nullptr) : dc.DrawText(text, box, format); };
        const int height = draw(DT_SINGLELINE | DT_END_ELLIPSIS);
        EXPECT_EQ(text, before);
        EXPECT_EQ(draw(DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING), height);
        EXPECT_EQ(text.Right(3), L"...");
        EXPECT_LE(dc.GetTextExtent(text).cx, 60);
    }
}

TEST(ImageList, PicturesAreCopiedMaskedAndDrawn)
{
    owtest::Surface screen(64, 16, BACK);
    CDC& dc = screen.dc();
    CBitmap strip;
    ASSERT_TRUE(strip.CreateCompatibleBitmap(&dc, 16, 8));
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* before = memory.SelectObject(&strip);
    memory.FillSolidRect(0, 0, 8, 8, RED);
    memory.FillSolidRect(8, 0, 8, 8, BLUE);
    memory.FillSolidRect(8, 0, 4, 8, PINK);
    memory.SelectObject(before);

    CImageList images;
    ASSERT_TRUE(images.Create(8, 8, ILC_COLOR24 | ILC_MASK, 0, 4));
    EXPECT_EQ(images.Add(&strip, PINK), 0);
    EXPECT_EQ(images.GetImageCount(), 2) << "a strip is cut into pictures";
    EXPECT_EQ(images.Add(&strip, static_cast<CBitmap*>(nullptr)), 2);
    strip.DeleteObject();

    EXPECT_TRUE(images.Draw(&dc, 0, CPoint(1, 2), ILD_NORMAL));
    EXPECT_EQ(screen.extent(RED), CRect(1, 2, 9, 10));
    EXPECT_TRUE(images.Draw(&dc, 1, CPoint(10, 0), ILD_TRANSPARENT));
    EXPECT_EQ(screen.count(CRect(10, 0, 14, 8), BACK), 32);
    EXPECT_EQ(screen.extent(BLUE), CRect(14, 0, 18, 8));
    dc.FillSolidRect(0, 0, 64, 16, BACK);
    EXPECT_TRUE(images.DrawIndirect(&dc, 3, CPoint(40, 2), CSize(6, 4), CPoint(1, 0), ILD_NORMAL));
    EXPECT_EQ(screen.extent(BLUE), CRect(43, 2, 46, 6)) << "one column of the picture is left out";

    EXPECT_EQ(CImageList::FromHandle(images), &images);
    EXPECT_TRUE(::ImageList_Destroy(images.Detach()));
    EXPECT_FALSE(images.DeleteImageList());
    EXPECT_TRUE(images.Create(L"TURNU", 8, 1, PINK));
    EXPECT_GT(images.GetImageCount(), 1);
}
