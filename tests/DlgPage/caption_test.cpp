// CPageGradientCaptionStatic and the gradient: the text that it keeps, and the pixels that it paints.

#include "PagesHost.h"

#include "Handles.h"
#include "Picture.h"

#include <DlgPage/GradientFill.h>

namespace
{
constexpr COLORREF kDark = 0x404040;

/// A caption by itself on a window in front, with the pixels that the user sees.
class Caption : public ::testing::Test, protected ACurrentPageProvider
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_parent.CreateEx(WS_EX_TOPMOST, _T("STATIC"), _T(""), WS_POPUP | WS_VISIBLE,
                                      CRect(CPoint(30, 30), CSize(300, 60)), nullptr, 0));
        ASSERT_TRUE(m_caption.Create(_T("not kept here"), WS_CHILD | WS_VISIBLE, m_rect, &m_parent));
    }
    void TearDown() override { m_parent.DestroyWindow(); }
    CPage* GetCurrentPage() const override { return nullptr; }

    /// What the window shows once it has painted everything.
    void Look(owtest::Surface& picture)
    {
        m_caption.UpdateWindow();
        CClientDC dc(&m_caption);
        picture.dc().BitBlt(0, 0, m_rect.right, m_rect.bottom, &dc, 0, 0, SRCCOPY);
    }
    CRect m_rect{0, 0, 240, 30};
    owtest::Surface m_first{240, 30}, m_second{240, 30};
    CStatic m_parent;
    CPageGradientCaptionStatic m_caption{*this};
};
} // namespace

TEST_F(Caption, KeepsTheTextOfTheWindowItself)
{
    const auto set = [&](const wchar_t* pszText)
    { return m_caption.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(pszText)); };
    EXPECT_TRUE(set(L"%d st") == 1 && m_caption.SendMessage(WM_GETTEXTLENGTH) == 5);
    wchar_t szCut[] = L"####";
    EXPECT_EQ(m_caption.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(szCut)), 3);
    EXPECT_STREQ(szCut, L"%d ");
    EXPECT_TRUE(set(nullptr) == 1 && owtest::TextOf(m_caption).empty());
}

TEST_F(Caption, ShowsTheNameOfThePageInTheParentsFontBoldAndAFifthLarger)
{
    const auto makeFont = [](CFont& font, int nHeight, int nWeight)
    { font.CreateFont(nHeight, 0, 0, 0, nWeight, 0, 0, 0, 0, 0, 0, 0, 0, _T("Liberation Serif")); };
    const std::tuple<int, int, CString> titles[] = {
        {-13, -16, L"Beams && pillars"}, {14, 17, L"W"}, {14, 17, L""}};
    std::vector<int> handles;
    for (const auto& [nParent, nCaption, strTitle] : titles)
    {
        RecordingPage page(strTitle, nullptr, 1);
        CFont parent, bold;
        makeFont(parent, nParent, FW_NORMAL);
        makeFont(bold, nCaption, FW_BOLD);
        m_parent.SetFont(&parent, FALSE);
        m_caption.PageSelected(strTitle.IsEmpty() ? nullptr : &page, &page);
        Look(m_first);
        CDC& dc = m_second.dc();
        gfnFillGradient(dc, m_rect, kDark);
        const HGDIOBJ hOld = dc.SelectObject(&bold)->m_hObject;
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(COLOR_BTNFACE));
        if (!strTitle.IsEmpty())
            dc.DrawText(L" " + strTitle, m_rect, DT_SINGLELINE | DT_VCENTER);
        ::SelectObject(dc, hOld);
        EXPECT_TRUE(m_first == m_second) << nParent << CStringA(strTitle);
        handles.push_back(owtest::CountHandles().gdi);
    }
    EXPECT_EQ(handles[0], handles[2]);
}

TEST_F(Caption, ARepaintCopiesThePictureThatIsThere)
{
    m_caption.SetWindowText(L"Beams");
    Look(m_first);
    CClientDC(&m_caption).PatBlt(0, 0, m_rect.right, m_rect.bottom, WHITENESS);
    const int nFace = COLOR_BTNFACE;
    const COLORREF crFace = ::GetSysColor(nFace), crOther = RGB(0, 0, 160);
    ::SetSysColors(1, &nFace, &crOther);
    m_caption.Invalidate();
    Look(m_second);
    EXPECT_TRUE(m_first == m_second) << "whatever has changed but the text";
    m_caption.SetWindowText(L"Beams");
    Look(m_second);
    ::SetSysColors(1, &nFace, &crFace);
    EXPECT_FALSE(m_first == m_second) << "a text set anew is drawn in the new colour";
    EXPECT_EQ(m_second.at(239, 0), m_first.at(239, 0)) << "on the gradient made at first";
}

namespace
{
/// The columns of a rectangle that is filled, each of one colour; nothing beyond it is painted.
std::vector<COLORREF> Columns(decltype(gfnFillGradient) fill, const CRect& rect, COLORREF crLeft)
{
    owtest::Surface surface(rect.right + 10, rect.bottom + 2);
    fill(surface.dc(), rect, crLeft);
    std::vector<COLORREF> columns;
    for (int x = rect.left; x < rect.right; ++x)
    {
        columns.push_back(surface.at(x, rect.top));
        EXPECT_EQ(surface.at(x, rect.bottom - 1), columns.back());
    }
    const CRect all(0, 0, surface.width(), surface.height());
    EXPECT_EQ(surface.count(all, RGB(255, 0, 255)), all.right * all.bottom - rect.Width() * rect.Height());
    return columns;
}

/// The colours of the bands that fill a rectangle, and their widths.
using Bands = std::vector<std::pair<COLORREF, int>>;
Bands BandsOf(const CRect& rect, COLORREF crLeft)
{
    Bands bands;
    for (const COLORREF cr : Columns(gfnFillGradientBands, rect, crLeft))
    {
        if (bands.empty() || bands.back().first != cr)
            bands.push_back({cr, 0});
        ++bands.back().second;
    }
    return bands;
}
} // namespace

TEST(Gradient, GoesFromTheColourToThatOfADialogsFace)
{
    const COLORREF crLeft = RGB(16, 64, 128), crFace = ::GetSysColor(COLOR_BTNFACE);
    for (const auto& [fill, nStep] : {std::pair{&gfnFillGradient, 2}, {&gfnFillGradientBands, 6}})
    {
        const auto columns = Columns(*fill, CRect(3, 2, 195, 10), crLeft);
        for (int x = 0; x < 192; ++x)
            for (const int nShift : {0, 8, 16})
            {
                const auto channel = [&](COLORREF color) { return static_cast<int>(color >> nShift & 0xFF); };
                const int nWay = channel(crFace) - channel(crLeft);
                ASSERT_NEAR(channel(columns[x]), channel(crLeft) + nWay * x / 192, nStep) << x;
            }
    }
}

TEST(Gradient, InBandsHasAsManyAsTheStepsBetweenTheColours)
{
    const auto faceMinus = [](int n) { return ::GetSysColor(COLOR_BTNFACE) - RGB(n, n, n); };
    const CRect rect(3, 2, 103, 12);
    EXPECT_EQ(BandsOf(rect, faceMinus(0)), (Bands{{faceMinus(0), 100}})) << "no step: one band";
    EXPECT_EQ(BandsOf(rect, faceMinus(3)), (Bands{{faceMinus(3), 50}, {faceMinus(2), 50}}));
    EXPECT_EQ(BandsOf(rect, RGB(255, 255, 255)).size(), 1u) << "downwards counts as no step";
    for (const COLORREF crFar : {RGB(1, 0, 0), RGB(0, 1, 0), RGB(0, 0, 1)}) // the channel with the most steps
        EXPECT_EQ(BandsOf(rect, faceMinus(3) - 20 * crFar).size(), 13u);
    for (const int nWidth : {10, 12}) // bands are at least 4 wide
        EXPECT_EQ(BandsOf(CRect(0, 0, nWidth, 4), faceMinus(100)),
                  (Bands{{faceMinus(100), 4}, {faceMinus(67), 4}, {faceMinus(34), nWidth - 8}}));
    EXPECT_EQ(BandsOf(CRect(2, 0, 2, 4), faceMinus(100)).size(), 0u);
}
