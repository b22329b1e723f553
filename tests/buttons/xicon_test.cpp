// The icon label: what it measures, where it paints, and whose its fonts are.

#include "Room.h"

namespace
{
constexpr COLORREF kBack = RGB(200, 220, 240), kText = kRed;
const CSize kSize{120, 40};

/// A label in a font whose strokes are of one colour.
struct Label : Lone<CXIcon>
{
    explicit Label(DWORD style = BS_LEFT) : Lone(kSize, L"", BS_OWNERDRAW | style)
    {
        LOGFONTW font{};
        icon.GetFont(&font);
        font.lfQuality = NONANTIALIASED_QUALITY;
        icon.SetAutoResize(FALSE).SetFont(&font).SetTextColor(kText);
    }
    CRect Rect() const
    {
        CRect rect;
        icon.GetWindowRect(rect);
        parent.ScreenToClient(rect);
        return rect;
    }
    CSize TextSize(const CString& text)
    {
        CClientDC dc(&icon);
        const CGdiSelection font(dc, icon.GetFont()->m_hObject);
        return dc.GetTextExtent(text);
    }

    CXIcon& icon = button;
    const Icon blue = MakeIcon(16, kBlue, 0);
};
} // namespace

TEST(XIcon, IsAsWideAsWhatItShowsAfterEachSetterAndShrinksOnlyToSaveMoreThanFivePixels)
{
    Label label;
    CXIcon& icon = label.icon;
    label.parent.ShowWindow(SW_SHOWNA);
    const std::tuple<std::function<void(int)>, LPCWSTR, int> rows[] = {
        // and the width: a text's and more
        {[&](int repaint) { icon.SetWindowText(L"Text", repaint); }, L"", kSize.cx}, // not yet
        {[&](int repaint) { icon.SetAutoResize(TRUE, repaint); }, L"Text", 2 + 2 + 2},
        {[&](int repaint) { icon.SetMargins(50, 0, repaint); }, L"Text", 50 + 2 + 50},
        {[&](int repaint) { icon.SetFont(L"", 30, repaint); }, L"Text", 102},
        {[&](int repaint) { icon.SetIcon(label.blue.get(), 40, repaint); }, L"Text", 102 + 5 + 40 + 2},
        {[&](int repaint) { icon.SetIconSpacing(9, repaint); }, L"Text", 153},
        {[&](int repaint) { icon.SetWindowText(nullptr, repaint); }, L"", 142},
        {[&](int repaint) { icon.SetTextColor(kText, repaint); }, L"", 142},
        {[&](int repaint) { icon.SetIcon(0u, 16, repaint); }, L"", 100}};
    for (const auto& [set, pszText, more] : rows)
    {
        set(0);
        EXPECT_EQ(label.Rect().Width(), label.TextSize(pszText).cx + more) << &set - &std::get<0>(rows[0]);
        for (const int repaint : {0, 1})
        {
            icon.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW);
            icon.Invalidate();
            set(repaint);
            EXPECT_EQ(icon.GetUpdateRect(nullptr), !repaint) << "painted at once";
        }
    }
    for (const auto& [before, after] : {std::pair(100, 100), {99, 100}, {105, 105}, {106, 100}})
    {
        icon.SetWindowPos(nullptr, 0, 0, before, kSize.cy, SWP_NOMOVE | SWP_NOZORDER);
        icon.Resize();
        EXPECT_EQ(label.Rect(), CRect(CPoint(10, 10), CSize(after, kSize.cy))) << before;
    }
}

TEST(XIcon, PaintsWhatIsFirstAtTheMarginAndTheOtherBehindItOnItsOwnGround)
{
    // Alignment, of which only plain left has the icon first; margin, spacing, size of the icon or 0, and text.
    using Row = std::tuple<DWORD, DWORD, CPoint, int, int, LPCWSTR>;
    for (const auto& [align, vertical, margin, spacing, size, pszText] :
         {Row{BS_LEFT, 0, {2, 0}, 5, 16, L"HH"}, Row{BS_RIGHT, BS_VCENTER, {2, 0}, 5, 16, L"HH"},
          Row{BS_CENTER, BS_TOP, {4, 6}, 0, 20, L"HH\nH"}, Row{0, BS_BOTTOM, {9, 7}, 8, 16, L"H"},
          Row{BS_LEFT, BS_BOTTOM, {40, 3}, 9, 0, L"H"}, Row{BS_RIGHT, BS_TOP, {40, 3}, 9, 16, L""},
          Row{BS_LEFT, BS_TOP, {2, 0}, 5, 45, L""}})
    {
        Label label(align | vertical);
        label.icon.SetMargins(margin.x, margin.y).SetIconSpacing(spacing).SetWindowText(pszText);
        label.icon.SetIcon(size ? label.blue.get() : nullptr, size);
        Surface ours(kSize.cx, kSize.cy), expected(kSize.cx, kSize.cy, kBack);
        ours.dc().SetBkColor(kBack);
        PaintButton(label.icon, ours);

        CDC& dc = expected.dc();
        dc.SetTextColor(kText);
        dc.SetBkMode(TRANSPARENT);
        const CGdiSelection font(dc, label.icon.GetFont()->m_hObject);
        const CSize text = label.TextSize(pszText);
        const auto topOf = [top = margin.y](int height) { return top + ((kSize.cy - height - top) >> 1); };
        const int textTop = vertical == BS_TOP      ? margin.y
                            : vertical == BS_BOTTOM ? kSize.cy - text.cy
                                                    : topOf(text.cy);
        // Where nothing is the other begins at the spacing alone.
        const int iconEnd = size ? margin.x + size : 0, textEnd = *pszText ? margin.x + text.cx + 2 : 0;
        const int iconX = align == BS_LEFT ? margin.x : textEnd + spacing;
        const int textX = align == BS_LEFT ? iconEnd + spacing : margin.x;
        dc.FillSolidRect(iconX, topOf(size), size, size, kBlue);
        dc.DrawText(pszText, -1, CRect(CPoint(textX, textTop), text), DT_SINGLELINE); // always one line
        EXPECT_TRUE(ours == expected) << align << ' ' << vertical << ' ' << size;
    }
    EXPECT_EQ(Label().icon.SendMessage(WM_ERASEBKGND), 1) << "it covers all of its area";
}

TEST(XIcon, HasAFontOfItsOwnThatChangesOneThingAtATimeAndLoadsTextsAndIconsById)
{
    CXIcon bare; // takes nothing amiss before it has a window
    bare.SetWindowText(L"lost").SetIcon(HICON(nullptr), 16).SetIcon(0u, 16).Resize();
    EXPECT_EQ(bare.GetFontFaceName(), L"MS Sans Serif");
    bare.SetBold(TRUE).SetFont(static_cast<LOGFONTW*>(nullptr)).SetFont(L"Arial", 10);
    EXPECT_TRUE(bare.GetFontFaceName() == L"Arial" && bare.GetFont(nullptr) == 0);

    Label label;
    CXIcon& icon = label.icon;
    LOGFONTW font{}, window{};
    EXPECT_EQ(icon.GetFont(&font), 1);
    ::GetObject(::GetStockObject(DEFAULT_GUI_FONT), sizeof(window), &window);
    EXPECT_TRUE(font.lfHeight == window.lfHeight && !wcscmp(font.lfFaceName, window.lfFaceName));
    EXPECT_EQ(font.lfCharSet, DEFAULT_CHARSET);
    CFont given;
    given.CreatePointFont(140, L"Arial");
    icon.SetFont(&given);
    given.DeleteObject();
    EXPECT_TRUE(icon.GetFontFaceName() == L"Arial" && icon.GetFontPointSize() == 14);
    icon.SetFont(static_cast<CFont*>(nullptr));
    EXPECT_EQ(icon.GetFontFaceName(), window.lfFaceName) << "the window's again";
    icon.SetBold(TRUE).SetFont(static_cast<LPCTSTR>(nullptr), 20);
    EXPECT_TRUE(icon.GetBold() && icon.GetFontPointSize() == 20) << "without a face all else stays";
    icon.SetBold(TRUE).SetFont(std::wstring(40, L'x').c_str(), 9);
    EXPECT_TRUE(icon.GetFontFaceName() == CString(L'x', 31) && icon.GetFontPointSize() == 9);
    EXPECT_FALSE(icon.GetBold()) << "a new face has no weight";
    Lone<CXIcon> ordinary(kSize, L"", BS_PUSHBUTTON); // has none, and stays what it is
    EXPECT_TRUE(!ordinary.button.GetFont()->m_hObject && ordinary.button.GetButtonStyle() == BS_PUSHBUTTON);

    const owtest::HandleCount before = owtest::CountHandles();
    for (const auto& [nText, nIcon] : {std::pair(IDS_TEXT, 0), {4711, IDI_STATE}, {4711, 0}})
    {
        CXIcon().SetIcon(IDI_STATE, 16).SetBold(TRUE).SetFont(L"Arial", 12);
        icon.SetIcon(IDI_STATE, 32).SetIcon(label.blue.get(), 16).SetBold(TRUE);
        icon.SetWindowText(MAKEINTRESOURCE(nText)).SetIcon(UINT(nIcon), 16);
        EXPECT_EQ(owtest::TextOf(icon), nText == IDS_TEXT ? L"From the resources" : L"");
        Surface surface(kSize.cx, kSize.cy);
        PaintButton(icon, surface);
        const int nGround = surface.count(CRect(CPoint(0, 0), kSize), surface.at(0, 0));
        EXPECT_EQ(nGround == kSize.cx * kSize.cy, nText != IDS_TEXT && nIcon == 0);
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(::DestroyIcon(::CopyIcon(label.blue.get()))) << "the caller's";
}
