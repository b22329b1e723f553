// CPageGradientCaptionStatic and the gradient: the text that it keeps, and the pixels that it paints.

#include "PagesHost.h"

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
    EXPECT_EQ(m_caption.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"%d st")), 1);
    wchar_t szCut[] = L"####";
    EXPECT_EQ(m_caption.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(szCut)), 3);
    EXPECT_TRUE(std::wstring(szCut) == L"%d " && owtest::TextOf(m_caption) == L"%d st");
    EXPECT_TRUE(m_caption.SendMessage(WM_SETTEXT) == 1 && owtest::TextOf(m_caption).empty());
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

TEST(Gradient, GoesFromTheColourToThatOfADialogsFaceInAsManyBandsAsStepsWhereTheSystemDoesNot)
{
    const COLORREF crFace = ::GetSysColor(COLOR_BTNFACE);
    // Width, colour at the left, width of a band, and their number.
    const std::tuple<int, COLORREF, int, int> fills[] = {
        {192, RGB(16, 64, 128), 1, 192}, // by the system: a pixel each
        {100, crFace, 100, 1},           // no step
        {100, crFace - RGB(3, 3, 3), 50, 2},
        {100, RGB(255, 255, 255), 100, 1},    // downwards counts as no step
        {100, crFace - RGB(23, 3, 3), 8, 13}, // the channel with the most steps
        {100, crFace - RGB(3, 23, 3), 8, 13},
        {100, crFace - RGB(3, 3, 23), 8, 13},
        {10, crFace - RGB(100, 100, 100), 4, 3}, // at least 4 wide
        {12, crFace - RGB(100, 100, 100), 4, 3}};
    for (const auto& [nWidth, crLeft, nBand, nBands] : fills)
    {
        owtest::Surface surface(205, 15);
        const auto fill = nBand == 1 ? &gfnFillGradient : &gfnFillGradientBands;
        fill(surface.dc(), CRect(CPoint(3, 2), CSize(nWidth, 10)), crLeft);
        for (int x = 0; x < nWidth; ++x)
            for (const int nShift : {0, 8, 16})
            {
                const auto channel = [=](COLORREF color) { return static_cast<int>(color >> nShift & 0xFF); };
                const int nWay = x / nBand * (channel(crFace) - channel(crLeft)) / nBands;
                ASSERT_NEAR(channel(surface.at(3 + x, 2)), channel(crLeft) + nWay, nBand == 1 ? 2 : 0) << x;
                ASSERT_EQ(surface.at(3 + x, 11), surface.at(3 + x, 2));
            }
        EXPECT_EQ(surface.count(CRect(0, 0, 205, 15), RGB(255, 0, 255)), 205 * 15 - nWidth * 10) << nWidth;
    }
}
