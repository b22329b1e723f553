// Mixed-font text: mark-up, measuring and drawing.

#include <MixedFont.h>

#include <Handles.h>
#include <Picture.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
constexpr COLORREF kPaper = RGB(255, 255, 255);

struct MixedFont : testing::Test
{
    void SetUp() override
    {
        m_font.CreateFont(-16, 0, 0, 0, 0, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, L"Liberation Sans");
        m_old = m_surface.dc().SelectObject(&m_font);
        m_surface.dc().SetBkMode(TRANSPARENT);
    }
    void TearDown() override { m_surface.dc().SelectObject(m_old); }
    CSize Extent(LPCWSTR text) { return CMixedFont::GetTextExtent(&m_surface.dc(), text); }
    CSize PlainExtent(LPCWSTR text) { return m_surface.dc().GetTextExtent(text, lstrlenW(text)); }
    void Draw(LPCWSTR text, CPoint point = {0, 0}) { CMixedFont::TextOut(&m_surface.dc(), point, text); }
    /// Number of pixels that are not paper.
    int Ink(const CRect& area) { return area.Width() * area.Height() - m_surface.count(area, kPaper); }

    owtest::Surface m_surface{300, 100, kPaper};
    CFont m_font;
    CFont* m_old = nullptr;
};
} // namespace

TEST_F(MixedFont, TextWithoutMarksMeasuresAsPlainText)
{
    for (LPCWSTR text : {L"Greda", L"a < b", L"a <bold> b", L"</b>", L"100 % & <", L"a\\b", L""})
        EXPECT_EQ(Extent(text), PlainExtent(text)) << CStringA(text);
    EXPECT_EQ(Extent(nullptr), CSize(0, 0));
    EXPECT_EQ(Extent(L"\\<b>x"), PlainExtent(L"<b>x")) << "an escaped bracket is a character";
}

TEST_F(MixedFont, PartsAddUp)
{
    const int bold = Extent(L"<b>Nosac</b>").cx;
    EXPECT_GT(bold, PlainExtent(L"Nosac").cx);
    EXPECT_EQ(Extent(L"IPE <b>Nosac</b> 200").cx, PlainExtent(L"IPE ").cx + bold + PlainExtent(L" 200").cx);
    EXPECT_EQ(Extent(L"<b>Nosac").cx, bold) << "an open mark reaches to the end";
    EXPECT_EQ(Extent(L"<b><i>ab</b>cd").cx, Extent(L"<b><i>ab").cx + PlainExtent(L"cd").cx)
        << "a closing mark ends the marks inside it";
    EXPECT_EQ(Extent(L"<b>ab<b>cd</b>ef").cx, Extent(L"<b>abcdef").cx) << "and is that of the nearest one";

    const CSize plain = PlainExtent(L"A2"), raised = Extent(L"A<sup>2</sup>"),
                lowered = Extent(L"A<sub>2</sub>");
    EXPECT_TRUE(raised.cx < plain.cx && raised.cx == lowered.cx) << "scripts are smaller";
    EXPECT_TRUE(raised.cy > plain.cy && lowered.cy > plain.cy) << "and reach out of the line";
    EXPECT_LT(Extent(L"<sup><sup>8</sup></sup>").cx, Extent(L"<sup>8</sup>").cx);
}

TEST_F(MixedFont, DrawsInsideItsExtent)
{
    const LPCWSTR text = L"A<sub>min</sub><sup>2</sup> <b>Wj</b> <f Liberation Serif>q</f>";
    const CPoint corner(20, 15);
    Draw(text, corner);
    const CRect box(corner, Extent(text));
    const int ink = Ink(box);
    EXPECT_GT(ink, 100);
    EXPECT_EQ(Ink(CRect(0, 0, 300, 100)), ink) << "nothing outside";
    EXPECT_GT(Ink(CRect(box.right - 5, box.top, box.right, box.bottom)), 0) << "the last part stands last";

    Draw(L"<sup>o</sup>", CPoint(200, 50));
    Draw(L"<sub>o</sub>", CPoint(250, 50));
    const auto firstInkedRow = [this](int left)
    {
        int y = 0;
        while (y < 100 && Ink(CRect(left, y, left + 50, y + 1)) == 0)
            ++y;
        return y;
    };
    EXPECT_LT(firstInkedRow(200), firstInkedRow(250));
}

TEST_F(MixedFont, DrawsAPartAsTheContextDoesWithThatFont)
{
    const std::pair<LPCWSTR, void (*)(LOGFONT&)> looks[] = {
        {L"Stap 12", [](LOGFONT&) {}},
        {L"<b>Stap 12", [](LOGFONT& font) { font.lfWeight = FW_BOLD; }},
        {L"<i>Stap 12", [](LOGFONT& font) { font.lfItalic = TRUE; }},
        {L"<f Marlett>Stap 12",
         [](LOGFONT& font) { font.lfCharSet = SYMBOL_CHARSET, lstrcpyW(font.lfFaceName, L"Marlett"); }}};
    TEXTMETRIC base, metrics;
    m_surface.dc().GetTextMetrics(&base);
    for (const auto& [text, change] : looks)
    {
        LOGFONT font;
        m_font.GetLogFont(&font);
        change(font);
        CFont changed;
        changed.CreateFontIndirect(&font);
        owtest::Surface expected(300, 100, kPaper);
        CFont* const old = expected.dc().SelectObject(&changed);
        expected.dc().SetBkMode(TRANSPARENT);
        expected.dc().SetTextAlign(TA_BASELINE);
        expected.dc().GetTextMetrics(&metrics);
        expected.dc().TextOut(7, 9 + std::max(base.tmAscent, metrics.tmAscent), L"Stap 12", 7);
        EXPECT_EQ(Extent(text).cx, expected.dc().GetTextExtent(L"Stap 12", 7).cx) << CStringA(text);
        expected.dc().SelectObject(old);
        m_surface.dc().FillSolidRect(0, 0, 300, 100, kPaper);
        Draw(text, CPoint(7, 9));
        EXPECT_TRUE(m_surface == expected) << CStringA(text);
    }
}

TEST_F(MixedFont, OpaqueModeFillsTheExtent)
{
    const CRect box(CPoint(10, 10), Extent(L"m<sup>2</sup>")), all(0, 0, 300, 100);
    m_surface.dc().SetBkMode(OPAQUE);
    m_surface.dc().SetBkColor(RGB(255, 255, 0));
    Draw(L"m<sup>2</sup>", box.TopLeft());
    EXPECT_EQ(m_surface.count(box, kPaper), 0);
    EXPECT_EQ(m_surface.count(all, kPaper), 300 * 100 - box.Width() * box.Height());
    EXPECT_EQ(m_surface.at(box.left, box.top), RGB(255, 255, 0));
    EXPECT_EQ(m_surface.dc().GetBkMode(), OPAQUE);
}

TEST_F(MixedFont, GoesByTheFontAndTheContextOfThisTime)
{
    const LPCWSTR text = L"A<sub>2</sub> <b>b</b>", bold = L"<b>Nosac</b>";
    const CSize first = Extent(text);
    Extent(bold);
    CDC& dc = m_surface.dc();
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(2, 2);
    EXPECT_NE(Extent(text), first);
    dc.SetMapMode(MM_TEXT);
    dc.SetTextCharacterExtra(3);
    EXPECT_EQ(Extent(text).cx, first.cx + 3 * 4);
    dc.SetTextCharacterExtra(0);
    CFont large, turned; // the latter has the same measures
    large.CreatePointFont(240, L"Liberation Sans");
    LOGFONT font;
    m_font.GetLogFont(&font);
    font.lfEscapement = font.lfOrientation = 900;
    turned.CreateFontIndirect(&font);
    dc.SelectObject(&large);
    EXPECT_GT(Extent(text).cx, first.cx * 3 / 2);
    dc.SelectObject(&m_font);
    EXPECT_EQ(Extent(text), first);
    dc.SelectObject(&turned);
    Draw(bold, CPoint(50, 80));
    EXPECT_GT(Ink(CRect(0, 0, 300, 80)), 0) << "upwards";
    dc.SelectObject(&m_font);
}

TEST_F(MixedFont, LeavesTheContextAsItWasAndKeepsNoMoreThanItNeeds)
{
    CDC& dc = m_surface.dc();
    const UINT nAlign = dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    dc.SetBkColor(RGB(1, 2, 3));
    Draw(L"x<b>y</b>", CPoint(5, 5));
    EXPECT_EQ(dc.SetTextAlign(nAlign), static_cast<UINT>(TA_RIGHT | TA_BOTTOM));
    EXPECT_EQ(dc.GetBkColor(), RGB(1, 2, 3));
    EXPECT_EQ(dc.GetCurrentFont()->m_hObject, m_font.m_hObject);
    EXPECT_GT(Ink(CRect(5, 5, 60, 60)), 0) << "the corner is the upper left one whatever the alignment";

    CString many; // more looks than fonts are kept
    for (int i = 0; i < 12; ++i)
        many += i % 2 ? L"<sup>x<i>y</i>" : L"<sup>x<b>y</b>";
    Draw(many);
    const CSize size = Extent(many);
    const int handles = owtest::CountHandles().gdi;
    for (int i = 0; i < 2500; ++i)
    {
        CString text;
        text.Format(L"<b>%d</b>", i);
        Extent(text);
    }
    EXPECT_EQ(Extent(many), size);
    EXPECT_LE(owtest::CountHandles().gdi, handles + 8);
}
