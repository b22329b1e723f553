// Mixed-font text: mark-up, measuring and drawing.

#include <MixedFont.h>

#include "Testing.h"

namespace
{
constexpr COLORREF kPaper = RGB(255, 255, 255);

/// A picture with a font, in which texts are measured and drawn.
struct Paper : owtest::Surface
{
    Paper() : Surface(300, 100, kPaper)
    {
        Select();
        dc().SetBkMode(TRANSPARENT);
    }
    ~Paper() { dc().SelectObject(m_old); }
    /// Makes the font that `look` says the current one.
    void Select()
    {
        if (m_old)
            dc().SelectObject(m_old);
        font.DeleteObject();
        font.CreateFontIndirect(&look);
        m_old = dc().SelectObject(&font);
    }
    /// Number of pixels that are not paper.
    int Ink(const CRect& area) const { return area.Width() * area.Height() - count(area, kPaper); }

    LOGFONT look{-16, 0, 0, 0, 0, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, L"Liberation Sans"};
    CFont font;

private:
    CFont* m_old = nullptr;
};

struct MixedFont : testing::Test
{
    CSize Extent(LPCWSTR text) { return CMixedFont::GetTextExtent(&dc, text); }
    CSize PlainExtent(LPCWSTR text) { return dc.GetTextExtent(text, lstrlenW(text)); }
    void Draw(LPCWSTR text, CPoint point = {0, 0}) { CMixedFont::TextOut(&dc, point, text); }

    Paper paper;
    CDC& dc = paper.dc();
    const CRect all{0, 0, 300, 100};
};
} // namespace

TEST_F(MixedFont, MeasuresPlainTextAsTheContextAndPartsByTheirSum)
{
    for (LPCWSTR text : {L"Greda", L"a < b", L"a <bold> b", L"</b>", L"100 % & <", L"a\\b", L""})
        EXPECT_EQ(Extent(text), PlainExtent(text)) << CStringA(text);
    EXPECT_EQ(Extent(nullptr), CSize(0, 0));
    EXPECT_EQ(Extent(L"\\<b>x"), PlainExtent(L"<b>x")) << "an escaped bracket is a character";

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

TEST_F(MixedFont, DrawsInsideItsExtentAndFillsItInOpaqueMode)
{
    const LPCWSTR text = L"A<sub>min</sub><sup>2</sup> <b>Wj</b> <f Liberation Serif>q</f>";
    const CRect box(CPoint(20, 15), Extent(text));
    const UINT align = dc.SetTextAlign(TA_RIGHT | TA_BOTTOM); // the corner is the upper left one all the same
    dc.SetBkColor(RGB(255, 255, 0));
    Draw(text, box.TopLeft());
    const int ink = paper.Ink(box);
    EXPECT_GT(ink, 100);
    EXPECT_EQ(paper.Ink(all), ink) << "nothing outside";
    EXPECT_GT(paper.Ink(CRect(box.right - 5, box.top, box.right, box.bottom)), 0)
        << "the last part stands last";
    dc.SetBkMode(OPAQUE);
    Draw(text, box.TopLeft());
    EXPECT_EQ(paper.Ink(box), box.Width() * box.Height());
    EXPECT_EQ(paper.extent(RGB(255, 255, 0)), box);
    EXPECT_EQ(dc.GetBkMode(), OPAQUE) << "the context is as it was";
    EXPECT_EQ(dc.SetTextAlign(align), static_cast<UINT>(TA_RIGHT | TA_BOTTOM));
    EXPECT_EQ(dc.GetCurrentFont()->m_hObject, paper.font.m_hObject);

    Paper raised, lowered;
    CMixedFont::TextOut(&raised.dc(), CPoint(0, 0), L"<sup>o</sup>");
    CMixedFont::TextOut(&lowered.dc(), CPoint(0, 0), L"<sub>o</sub>");
    EXPECT_LT(raised.extent(0).top, lowered.extent(0).top);
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
    dc.GetTextMetrics(&base);
    for (const auto& [text, change] : looks)
    {
        Paper expected;
        change(expected.look);
        expected.Select();
        expected.dc().SetTextAlign(TA_BASELINE);
        expected.dc().GetTextMetrics(&metrics);
        expected.dc().TextOut(7, 9 + std::max(base.tmAscent, metrics.tmAscent), L"Stap 12", 7);
        EXPECT_EQ(Extent(text).cx, expected.dc().GetTextExtent(L"Stap 12", 7).cx) << CStringA(text);
        dc.FillSolidRect(all, kPaper);
        Draw(text, CPoint(7, 9));
        EXPECT_TRUE(paper == expected) << CStringA(text);
    }
}

TEST_F(MixedFont, GoesByTheFontAndTheContextOfThisTimeAndKeepsNoMoreThanItNeeds)
{
    const LPCWSTR text = L"A<sub>2</sub> <b>Nosac</b>";
    const CSize first = Extent(text);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(2, 2);
    EXPECT_NE(Extent(text), first);
    dc.SetMapMode(MM_TEXT);
    dc.SetTextCharacterExtra(3);
    EXPECT_EQ(Extent(text).cx, first.cx + 3 * 8);
    dc.SetTextCharacterExtra(0);
    paper.look.lfHeight *= 2;
    paper.Select();
    EXPECT_GT(Extent(text).cx, first.cx * 3 / 2);
    paper.look.lfHeight /= 2;
    paper.Select();
    EXPECT_EQ(Extent(text), first);
    paper.look.lfEscapement = paper.look.lfOrientation = 900; // of the same measures
    paper.Select();
    Draw(text, CPoint(50, 80));
    EXPECT_GT(paper.Ink(CRect(0, 0, 300, 60)), 0) << "upwards";

    CString many; // more looks than fonts are kept
    for (int i = 0; i < 12; ++i)
        many += i % 2 ? L"<sup>x<i>y</i>" : L"<sup>x<b>y</b>";
    Draw(many);
    const CSize size = Extent(many);
    const int handles = owtest::CountHandles().gdi;
    for (int i = 0; i < 2500; ++i)
        Extent(L"<b>" + CString(std::to_wstring(i).c_str()));
    EXPECT_EQ(Extent(many), size);
    EXPECT_LE(owtest::CountHandles().gdi, handles + 8);
}
