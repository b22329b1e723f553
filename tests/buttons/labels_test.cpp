// Labels with an icon, and buttons and labels in several fonts: where everything stands, and what is wiped.

#include "Room.h"

#include <MixedFont.h>

namespace
{
constexpr wchar_t kText[] = L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]",
                  kLabel[] = L"kN/cm<sup>2</sup>";
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);
const CRect kItem(10, 6, 211, 48); ///< sizes that halving tells apart, and not from the corner

struct Picture : Surface
{
    explicit Picture(COLORREF crFill = kKey) : Surface(230, 60, crFill) {}
};

/// A button by itself, painted onto a surface, and what it ought to look like.
class PaintedMixedFont : public ::testing::Test
{
protected:
    CMixedFontButton& Open(DWORD dwStyle, DWORD dwExStyle = 0)
    {
        m_lone = std::make_unique<Lone<CMixedFontButton>>(kItem.Size(), kText, dwStyle);
        m_lone->button.ModifyStyleEx(0, dwExStyle);
        return m_lone->button;
    }
    void Paint(Surface& surface)
    {
        surface.dc().SetTextColor(kBlue);
        PaintButton(m_lone->button, surface, 0, &kItem);
        EXPECT_EQ(surface.dc().GetTextColor(), kBlue) << "the context is as it was";
        EXPECT_EQ(::GetCurrentObject(surface.dc(), OBJ_PEN), ::GetStockObject(BLACK_PEN));
    }
    void ExpectLook(CPoint boxAt, CPoint textAt, size_t nCase, UINT frame = DFCS_BUTTONCHECK,
                    bool bFocus = false)
    {
        const bool bEnabled = m_lone->button.IsWindowEnabled();
        Picture ours, expected;
        Paint(ours);
        CDC& dc = expected.dc();
        CRect mark(textAt, m_text);
        mark.InflateRect(1, 1);
        dc.FillSolidRect(mark, kFace);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(COLOR_BTNHIGHLIGHT));
        if (!bEnabled)
            CMixedFont::TextOutW(&dc, textAt + CPoint(1, 1), kText);
        dc.SetTextColor(::GetSysColor(bEnabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
        CMixedFont::TextOutW(&dc, textAt, kText);
        dc.DrawFrameControl(CRect(boxAt, CSize(13, 13)), DFC_BUTTON, frame);
        ::FrameRect(dc, mark, ::GetSysColorBrush(COLOR_BTNFACE));
        dc.SetTextColor(kBlue);
        dc.SetBkColor(kWhite);
        if (bFocus)
            dc.DrawFocusRect(mark);
        EXPECT_TRUE(ours == expected) << nCase;
    }

    std::unique_ptr<Lone<CMixedFontButton>> m_lone;
    const CSize m_text = CMixedFont::GetTextExtent(&Picture().dc(), kText);
};

class MixedFontInRoom : public InRoom
{
protected:
    MixedFontInRoom()
    {
        m_room.controls = {{&m_button, BS_AUTOCHECKBOX, L"a<sub>max</sub>"},
                           {&m_other, BS_AUTOCHECKBOX, L"b"},
                           {&m_label, SS_RIGHT, kLabel, L"STATIC"},
                           {&m_clearLabel, SS_RIGHT, kLabel, L"STATIC", WS_EX_TRANSPARENT}};
    }
    CMixedFontButton m_button{&m_room}, m_other{&m_room};
    CMixedFontStatic m_label, m_clearLabel;
};

constexpr COLORREF kBack = RGB(200, 220, 240);
const CSize kSize{120, 40};

/// A label in a font whose strokes are of one colour.
struct Label : Lone<CXIcon>
{
    explicit Label(DWORD style = BS_LEFT) : Lone(kSize, L"", BS_OWNERDRAW | style)
    {
        LOGFONTW font{};
        icon.GetFont(&font);
        font.lfQuality = NONANTIALIASED_QUALITY;
        icon.SetAutoResize(FALSE).SetFont(&font).SetTextColor(kRed);
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

TEST_F(PaintedMixedFont, BoxAndTextStandByTheStylesAndLookAsTheState)
{
    using Row = std::tuple<DWORD, int, int>; // style, box, text
    const auto& [l, t, r, b] = static_cast<const RECT&>(kItem);
    const int w = m_text.cx, h = m_text.cy, middle = t + (b - t - 12) / 2,
              textMiddle = t + (b - t - h + 1) / 2;
    for (const auto& [across, boxX, textX] :
         {Row{0, l, l + 20}, Row{BS_LEFT, l, l + 20}, Row{BS_RIGHT, l, r - w - 1},
          Row{BS_CENTER, l, (r - l - 20) / 2 - w / 2 + l + 20}, Row{BS_LEFTTEXT, r - 13, l + 1},
          Row{BS_LEFTTEXT | BS_RIGHT, r - 13, r - 13 - w - 7},
          Row{BS_LEFTTEXT | BS_CENTER, r - 13, (r - w - 7 - l) / 2 - w / 2 + l}})
        for (const auto& [down, boxY, textY] :
             {Row{0, middle, textMiddle}, Row{BS_VCENTER, middle, textMiddle}, Row{BS_TOP, t + h - 12, t + 1},
              Row{BS_BOTTOM, b - 15, b - h - 2}})
        {
            Open(across | down);
            ExpectLook({boxX, boxY}, {textX, textY}, across | down);
        }

    constexpr UINT kChecked = DFCS_BUTTONCHECK | DFCS_CHECKED, kRadio = DFCS_BUTTONRADIO | DFCS_CHECKED;
    auto& button = Open(BS_BOTTOM);
    const std::tuple<std::function<void()>, UINT, bool> rows[] = {
        {[&] { button.SetCheck(1); }, kChecked, false},
        {[&] { button.SetCheck(2); }, kChecked, false}, // has no third state
        {[&] { button.SetCheck(0); }, DFCS_BUTTONCHECK, false},
        {[&] { button.SetCheck(1), button.SendMessage(WM_SETFOCUS); }, kChecked, true},
        {[&] { button.SendMessage(WM_KILLFOCUS); }, kChecked, false},
        {[&] { button.SetState(TRUE); }, kChecked | DFCS_INACTIVE, true},
        {[&] { button.SetState(FALSE), button.RadioButtonLook(0); }, kRadio, false}, // whatever the argument
        {[&] { button.SendMessage(WM_SETFOCUS); }, kRadio, true},
        {[&] { button.EnableWindow(FALSE); }, kRadio | DFCS_INACTIVE, false}, // when the focus goes, too
        {[&] { button.SendMessage(WM_SETFOCUS), button.SetCheck(0), button.SetWindowText(kText); },
         kRadio | DFCS_INACTIVE, false},
        {[&] { button.EnableWindow(TRUE); }, kRadio, false}};
    for (const auto& [change, frame, bFocus] : rows)
    {
        change();
        ExpectLook({l, b - 15}, {l + 20, b - h - 2}, &change - &std::get<0>(rows[0]), frame, bFocus);
    }
    Open(BS_BOTTOM, WS_EX_TRANSPARENT);
    Picture picture;
    Paint(picture);
    EXPECT_GT(picture.count(CRect(CPoint(l + 20, b - h - 2), m_text), kKey), 0)
        << "a transparent one has no ground";
}

TEST_F(PaintedMixedFont, WipesAFormerTextUnlessItIsTransparentAndKeepsSomeOfItsType)
{
    for (const DWORD dwExStyle : {0L, WS_EX_TRANSPARENT})
        for (const BOOL bEnabled : {TRUE, FALSE})
        {
            auto& button = Open(0, dwExStyle);
            button.SendMessage(WM_SETFOCUS);
            button.EnableWindow(bEnabled);
            Picture picture(kFace);
            Paint(picture);
            button.SetWindowText(L"i");
            Paint(picture);
            const CRect gone(kItem.left + 40, 0, picture.width(), picture.height());
            const bool bWiped = picture.count(gone, kFace) == gone.Width() * gone.Height();
            EXPECT_EQ(bWiped, dwExStyle == 0) << "shadow and mark, too";
        }
    EXPECT_EQ(Open(BS_AUTORADIOBUTTON | BS_LEFTTEXT).GetButtonStyle(), UINT{BS_OWNERDRAW | BS_LEFTTEXT});
    EXPECT_EQ(Open(BS_RADIOBUTTON).GetButtonStyle(), 0xFu) << "kept: a bit of this type stays";
}

TEST_F(MixedFontInRoom, ClicksGoToTheHandlerAndThenToTheDialogAndWhatChangesItsLookPaintsItAnew)
{
    for (int i = 0; i < 2; ++i) // fast ones
        EXPECT_EQ(Click(m_button), "told 1001; dialog 1001; ");
    EXPECT_EQ(m_button.GetCheck(), 0) << "nobody toggles it";
    EXPECT_EQ(Press(VK_SPACE), "told 1001; dialog 1001; ");
    EXPECT_EQ(Press(VK_RETURN), "dialog 1; ") << "Enter is the default button's";
    m_other.SetFocus();

    EXPECT_TRUE(Repaints(m_button, [&] { m_button.SetFocus(); }));
    EXPECT_TRUE(Repaints(m_button, [&] { m_button.SetCheck(1); }));
    EXPECT_TRUE(Repaints(m_button, [&] { m_button.RadioButtonLook(TRUE); }));
    m_button.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(::GetCapture(), m_button.m_hWnd);
    m_other.SetFocus();
    EXPECT_TRUE(!::GetCapture() && !(m_button.GetState() & BST_PUSHED)) << "a press ends with the focus";
    EXPECT_EQ(m_room.Take(), "") << "and is no click";
}

TEST_F(MixedFontInRoom, ALabelShowsTheTextItWasMadeWithAtTheTopByItsStyle)
{
    CMixedFontStatic created;
    ASSERT_TRUE(created.Create(kLabel, WS_CHILD, CRect(0, 0, 200, 30), &m_room));
    m_label.MoveWindow(0, 0, 200, 30);
    for (CMixedFontStatic* pLabel : {&m_label, &created})
        for (const DWORD dwStyle : {SS_LEFT, SS_CENTER, SS_RIGHT})
        {
            EXPECT_EQ(owtest::TextOf(*pLabel), kLabel);
            pLabel->ModifyStyle(SS_TYPEMASK, dwStyle);
            Picture ours, expected;
            for (CDC* pDC : {&ours.dc(), &expected.dc()})
                pDC->SetTextColor(kBlue); // the context's own
            EXPECT_EQ(pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(ours.dc().m_hDC)), 0);
            const CGdiSelection font(expected.dc(), m_room.GetFont()->m_hObject);
            const int nRoom = 200 - CMixedFont::GetTextExtent(&expected.dc(), kLabel).cx;
            const int nLeft = dwStyle == SS_LEFT ? 0 : dwStyle == SS_CENTER ? nRoom / 2 : nRoom;
            expected.dc().SetBkColor(kFace);
            CMixedFont::TextOutW(&expected.dc(), CPoint(nLeft, 0), kLabel);
            EXPECT_TRUE(ours == expected) << dwStyle;
        }
}

TEST_F(MixedFontInRoom, ALabelsTextIsReadInFullOrCutAndGoesWithItsGroundUnlessItIsTransparent)
{
    EXPECT_EQ(m_label.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"100% %s <b>")), 1);
    wchar_t buffer[] = L"#####";
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(buffer)), 3);
    EXPECT_EQ(std::wstring(buffer, 5), std::wstring(L"100\0#", 5));
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXTLENGTH), 11);
    m_label.SendMessage(WM_SETTEXT); // of nothing

    CRect rect;
    m_label.GetClientRect(rect);
    Surface before(rect.right, rect.bottom), after(rect.right, rect.bottom);
    for (CMixedFontStatic* pLabel : {&m_label, &m_clearLabel})
    {
        const auto show = [&](Surface& shown)
        {
            pLabel->UpdateWindow();
            CClientDC dc(pLabel);
            shown.dc().BitBlt(0, 0, rect.right, rect.bottom, &dc, 0, 0, SRCCOPY);
        };
        const auto isAll = [&](COLORREF cr) { return after.count(rect, cr) == rect.right * rect.bottom; };
        pLabel->SetWindowText(kLabel);
        show(before);
        pLabel->EnableWindow(FALSE);
        show(after);
        EXPECT_TRUE(after == before) << "no caption of the system's over it";
        pLabel->SetWindowText(L"");
        pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(Picture().dc().m_hDC));
        show(after);
        EXPECT_EQ(isAll(kFace), pLabel == &m_label);

        CClientDC(pLabel).FillSolidRect(0, 0, 1000, 100, kKey); // as a window that stood over it leaves it
        pLabel->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
        show(after);
        EXPECT_TRUE(pLabel == &m_label ? isAll(kFace) : after.count(rect, kKey) > 0);
    }
}

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
        {[&](int repaint) { icon.SetTextColor(kRed, repaint); }, L"", 142},
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
    int x = 0, y = 7;
    icon.GetMargins(x, y);
    EXPECT_TRUE(x == 50 && y == 0 && icon.GetIconSpacing() == 9 && icon.GetTextColor() == kRed &&
                icon.GetAutoResize());
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
        dc.SetTextColor(kRed);
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
    EXPECT_TRUE(bare.GetFontFaceName() == L"MS Sans Serif" && bare.GetFont(nullptr) == 0);
    EXPECT_EQ(bare.SetBold(TRUE).SetFont(L"Arial", 10).GetFontFaceName(), L"Arial");

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
    icon.SetFont(std::wstring(40, L'x').c_str(), 9);
    EXPECT_TRUE(icon.GetFontFaceName() == CString(L'x', 31) && !icon.GetBold()) << "a new face has no weight";
    Lone<CXIcon> ordinary(kSize, L"", BS_PUSHBUTTON);
    EXPECT_FALSE(ordinary.button.GetFont()->m_hObject) << "it stays what it is";

    const owtest::HandleCount before = owtest::CountHandles();
    for (const int nText : {IDS_TEXT, 4711})
    {
        CXIcon().SetIcon(IDI_STATE, 16).SetBold(TRUE).SetFont(L"Arial", 12);
        icon.SetIcon(IDI_STATE, 32).SetIcon(label.blue.get(), 16).SetBold(TRUE);
        icon.SetWindowText(MAKEINTRESOURCE(nText)).SetIcon(UINT(nText == IDS_TEXT ? 0 : IDI_STATE), 16);
        EXPECT_EQ(owtest::TextOf(icon), nText == IDS_TEXT ? L"From the resources" : L"");
        Surface surface(kSize.cx, kSize.cy);
        PaintButton(icon, surface);
        EXPECT_LT(surface.count(CRect(CPoint(0, 0), kSize), surface.at(0, 0)), kSize.cx * kSize.cy);
    }
    icon.SetIcon(0u, 16);
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(::DestroyIcon(::CopyIcon(label.blue.get()))) << "the caller's";
}
