// Buttons and labels in several fonts: where everything stands, what is wiped, who keeps the check state.

#include "ButtonsDialog.h"

#include "Input.h"

#include <gtest/gtest.h>

#include <MixedFont.h>

#include <algorithm>
#include <memory>
#include <tuple>

using owtest::Surface;
using Calls = std::vector<std::string>;

namespace
{
constexpr wchar_t kText[] = L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]";
constexpr COLORREF kGround = RGB(255, 0, 255);
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);
const CRect kItem(10, 6, 211, 47); ///< odd sizes, and not from the corner

struct MixedFontSurface : Surface
{
    explicit MixedFontSurface(COLORREF crFill = kGround) : Surface(230, 60, crFill) {}
};

/// A button by itself, painted onto a surface, and what it ought to look like.
class PaintedMixedFont : public ::testing::Test
{
protected:
    /// A class that derives may answer the third state, which the button itself does not have.
    struct Button : CMixedFontButton
    {
        bool bThirdState = false;
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            const bool bAnswers = message == BM_GETCHECK && bThirdState;
            return bAnswers ? BST_INDETERMINATE : CMixedFontButton::DefWindowProc(message, wParam, lParam);
        }
    };
    Button& Open(DWORD dwStyle, DWORD dwExStyle = 0)
    {
        m_lone = std::make_unique<Lone<Button>>(kItem.Size(), kText, dwStyle);
        m_lone->button.ModifyStyleEx(0, dwExStyle);
        return m_lone->button;
    }
    void Paint(Surface& surface)
    {
        DRAWITEMSTRUCT item{};
        item.hDC = surface.dc();
        item.rcItem = kItem;
        m_lone->button.DrawItem(&item);
        EXPECT_EQ(surface.dc().GetTextColor(), RGB(0, 0, 0)) << "the context is as it was";
        EXPECT_EQ(::GetCurrentObject(item.hDC, OBJ_PEN), ::GetStockObject(BLACK_PEN));
    }
    void ExpectLook(CPoint boxAt, CPoint textAt, const std::string& what, UINT frame = DFCS_BUTTONCHECK,
                    bool bFocus = false, bool bEnabled = true)
    {
        MixedFontSurface ours, expected;
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
        dc.SetTextColor(RGB(0, 0, 0));
        dc.SetBkColor(RGB(255, 255, 255));
        if (bFocus)
            dc.DrawFocusRect(mark);
        EXPECT_TRUE(ours == expected) << what;
    }

    std::unique_ptr<Lone<Button>> m_lone;
    const CSize m_text = CMixedFont::GetTextExtent(&MixedFontSurface().dc(), kText);
};
} // namespace

// ---- A button by itself -----------------------------------------------------------------------------------

TEST_F(PaintedMixedFont, BoxAndTextStandByTheStyles)
{
    using Row = std::tuple<DWORD, int, int>; // style, box, text
    const auto& [l, t, r, b] = static_cast<const RECT&>(kItem);
    const int w = m_text.cx, h = m_text.cy, nHeight = b - t;
    for (const auto& [across, boxX, textX] :
         {Row{0, l, l + 20}, Row{BS_LEFT, l, l + 20}, Row{BS_RIGHT, l, r - w - 1},
          Row{BS_CENTER, l, (r - l - 20) / 2 - w / 2 + l + 20}, Row{BS_LEFTTEXT, r - 13, l + 1},
          Row{BS_LEFTTEXT | BS_RIGHT, r - 13, r - 13 - w - 7},
          Row{BS_LEFTTEXT | BS_CENTER, r - 13, (r - w - 7 - l) / 2 - w / 2 + l}})
        for (const auto& [down, boxY, textY] :
             {Row{0, t + (nHeight - 12) / 2, t + (nHeight - h + 1) / 2},
              Row{BS_VCENTER, t + (nHeight - 12) / 2, t + (nHeight - h + 1) / 2},
              Row{BS_TOP, t + h - 12, t + 1}, Row{BS_BOTTOM, b - 15, b - h - 2}})
        {
            Open(across | down);
            ExpectLook({boxX, boxY}, {textX, textY}, std::to_string(across | down));
        }
}

TEST_F(PaintedMixedFont, LooksAsItsState)
{
    const CPoint box(kItem.left, kItem.bottom - 15), text(kItem.left + 20, kItem.bottom - m_text.cy - 2);
    Button& button = Open(BS_BOTTOM);
    button.SetCheck(1);
    ExpectLook(box, text, "checked", DFCS_BUTTONCHECK | DFCS_CHECKED);
    button.SendMessage(WM_SETFOCUS);
    ExpectLook(box, text, "focused", DFCS_BUTTONCHECK | DFCS_CHECKED, true);
    button.SendMessage(WM_KILLFOCUS);
    button.SetState(TRUE);
    ExpectLook(box, text, "pressed", DFCS_BUTTONCHECK | DFCS_CHECKED | DFCS_INACTIVE, true);
    button.SetState(FALSE);
    button.bThirdState = true;
    ExpectLook(box, text, "third state", DFCS_BUTTONCHECK | DFCS_INACTIVE);
    button.bThirdState = false;
    button.RadioButtonLook(0);
    ExpectLook(box, text, "radio, whatever the argument", DFCS_BUTTONRADIO | DFCS_CHECKED);
    button.EnableWindow(FALSE);
    ExpectLook(box, text, "disabled", DFCS_BUTTONRADIO | DFCS_CHECKED | DFCS_INACTIVE, false, false);

    Open(BS_BOTTOM, WS_EX_TRANSPARENT);
    MixedFontSurface surface;
    Paint(surface);
    EXPECT_GT(surface.count(CRect(text, m_text), kGround), 0) << "a transparent one has no ground";
}

TEST_F(PaintedMixedFont, AShorterTextWipesWhatStoodThereUnlessItIsTransparent)
{
    for (DWORD dwExStyle : {0L, WS_EX_TRANSPARENT})
        for (BOOL bEnabled : {TRUE, FALSE})
        {
            Button& button = Open(0, dwExStyle);
            button.SendMessage(WM_SETFOCUS);
            button.EnableWindow(bEnabled);
            MixedFontSurface surface(kFace);
            Paint(surface);
            button.SetWindowText(L"i");
            Paint(surface);
            const CRect gone(kItem.left + 40, 0, surface.width(), surface.height());
            const bool bWiped = surface.count(gone, kFace) == gone.Width() * gone.Height();
            EXPECT_EQ(bWiped, dwExStyle == 0) << "shadow and mark, too";
        }
}

TEST_F(PaintedMixedFont, KeepsItsOwnCheckState)
{
    Button& button = Open(0);
    for (const auto& [set, now] : {std::pair(1, 1), {2, 1}, {0, 0}, {-1, 0}, {1, 1}})
    {
        EXPECT_EQ(button.SendMessage(BM_SETCHECK, set), 0);
        EXPECT_EQ(button.GetCheck(), now) << set;
    }
    button.EnableWindow(FALSE);
    button.SetCheck(0);
    EXPECT_EQ(button.GetCheck(), 1) << "a disabled one keeps it";
}

TEST_F(PaintedMixedFont, BecomesOwnerDrawnFromATemplateAndByCreate)
{
    for (const auto& [style, type] : {std::pair(BS_PUSHBUTTON, BS_OWNERDRAW),
                                      {BS_AUTORADIOBUTTON | BS_LEFTTEXT, BS_OWNERDRAW | BS_LEFTTEXT},
                                      {BS_RADIOBUTTON, 0xFL /* kept: a bit of this type stays */}})
    {
        CMixedFontButton created;
        created.Create(L"", WS_CHILD | style, CRect(0, 0, 9, 9), Open(style).GetParent(), 5);
        EXPECT_EQ(m_lone->button.GetButtonStyle(), static_cast<UINT>(type));
        EXPECT_EQ(created.GetButtonStyle(), static_cast<UINT>(type));
    }
}

// ---- In a dialog ------------------------------------------------------------------------------------------

namespace
{
class MixedFontInDialog : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Create(IDD_BUTTONS) && owtest::Activate(m_dialog)); }
    void TearDown() override { m_dialog.DestroyWindow(); }

    /// What the control shows, row by row.
    static std::vector<COLORREF> Shown(CWnd& control)
    {
        control.UpdateWindow();
        CRect rect;
        control.GetClientRect(rect);
        CClientDC dc(&control);
        std::vector<COLORREF> pixels;
        for (int y = 0; y < rect.bottom; ++y)
            for (int x = 0; x < rect.right; ++x)
                pixels.push_back(dc.GetPixel(x, y));
        return pixels;
    }

    ButtonsDialog m_dialog;
    CMixedFontButton& m_button = m_dialog.mixed;
    CMixedFontButton& m_other = m_dialog.mixedOther;
    CMixedFontStatic& m_label = m_dialog.label;
};
} // namespace

TEST_F(MixedFontInDialog, ClicksByMouseAndKeyGoToTheHandlerAndThenToTheDialog)
{
    owtest::Click(m_button);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1006", "dialog 1006"}));
    owtest::Click(m_button);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1006", "dialog 1006"})) << "fast clicks are all clicks";
    EXPECT_EQ(m_button.GetCheck(), 0) << "nobody toggles it";
    owtest::Press(VK_TAB);
    EXPECT_EQ(::GetFocus(), m_other.m_hWnd);
    owtest::Press(VK_SPACE);
    EXPECT_EQ(m_dialog.Take(), (Calls{"handler 1007", "dialog 1007"}));
    owtest::Press(VK_RETURN);
    EXPECT_EQ(m_dialog.Take().back(), "dialog 1") << "Enter is the default button's";
}

TEST_F(MixedFontInDialog, CheckAndFocusAreShownAtOnce)
{
    m_other.SetFocus();
    const auto before = Shown(m_button);
    m_button.SetCheck(1);
    EXPECT_NE(Shown(m_button), before);
    m_button.SetCheck(0);
    m_button.SetFocus();
    EXPECT_NE(Shown(m_button), before);
    m_other.SetFocus();
    EXPECT_EQ(Shown(m_button), before);

    m_button.SetFocus();
    m_button.EnableWindow(FALSE);
    m_button.SendMessage(WM_SETFOCUS);
    m_button.SendMessage(WM_KILLFOCUS);
    m_button.EnableWindow(TRUE);
    EXPECT_EQ(Shown(m_button), before) << "the focus went while it was disabled";
}

TEST_F(MixedFontInDialog, APressEndsWithTheFocusAndIsNoClick)
{
    m_button.SetFocus();
    m_button.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(::GetCapture(), m_button.m_hWnd);
    m_other.SetFocus();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(m_button.GetState() & BST_PUSHED);
    EXPECT_EQ(m_dialog.Take(), Calls{});
}

TEST_F(MixedFontInDialog, ALabelShowsTheTextItWasMadeWithAtTheTopByItsStyle)
{
    constexpr wchar_t kLabel[] = L"kN/cm<sup>2</sup>";
    CMixedFontStatic created;
    ASSERT_TRUE(created.Create(kLabel, WS_CHILD, CRect(0, 0, 200, 30), &m_dialog));
    m_label.MoveWindow(0, 0, 200, 30);
    for (CMixedFontStatic* pLabel : {&m_label, &created})
        for (DWORD dwStyle : {SS_LEFT, SS_CENTER, SS_RIGHT})
        {
            EXPECT_EQ(owtest::TextOf(*pLabel), kLabel);
            pLabel->ModifyStyle(SS_TYPEMASK, dwStyle);
            MixedFontSurface ours, expected;
            for (CDC* pDC : {&ours.dc(), &expected.dc()})
                pDC->SetTextColor(RGB(0, 0, 160)); // the context's own
            pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(ours.dc().m_hDC), PRF_CLIENT);

            const HGDIOBJ hOld = ::SelectObject(expected.dc(), *m_dialog.GetFont());
            const int nRoom = 200 - CMixedFont::GetTextExtent(&expected.dc(), kLabel).cx;
            const int x = dwStyle == SS_LEFT ? 0 : dwStyle == SS_CENTER ? nRoom / 2 : nRoom;
            expected.dc().SetBkColor(kFace);
            CMixedFont::TextOutW(&expected.dc(), CPoint(x, 0), kLabel);
            ::SelectObject(expected.dc(), hOld);
            EXPECT_TRUE(ours == expected) << dwStyle;
        }
    const std::unique_ptr<CObject> pByClass(RUNTIME_CLASS(CMixedFontStatic)->CreateObject());
    EXPECT_TRUE(pByClass && pByClass->IsKindOf(RUNTIME_CLASS(CStatic)));
}

TEST_F(MixedFontInDialog, ALabelsTextIsReadInFullOrCut)
{
    EXPECT_EQ(m_label.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"100% %s <b>")), 1);
    EXPECT_EQ(owtest::TextOf(m_label), L"100% %s <b>");
    wchar_t buffer[] = L"#####";
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(buffer)), 3);
    EXPECT_EQ(std::wstring(buffer, 5), std::wstring(L"100\0#", 5));
    for (LPARAM nowhere : {reinterpret_cast<LPARAM>(buffer), LPARAM(0)})
        EXPECT_EQ(m_label.SendMessage(WM_GETTEXT, nowhere ? 0 : 9, nowhere), 0);
    m_label.SendMessage(WM_SETTEXT);
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXTLENGTH), 0);
}

TEST_F(MixedFontInDialog, ALabelWipesItsTextAndItsGroundUnlessItIsTransparent)
{
    for (CMixedFontStatic* pLabel : {&m_label, &m_dialog.clearLabel})
    {
        const auto before = Shown(*pLabel);
        pLabel->EnableWindow(FALSE);
        EXPECT_EQ(Shown(*pLabel), before) << "no caption of the system's over it";
        pLabel->SetWindowText(L"");
        MixedFontSurface other;
        pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(other.dc().m_hDC), PRF_CLIENT);
        auto after = Shown(*pLabel);
        EXPECT_EQ(std::count(after.begin(), after.end(), kFace) == std::ssize(after), pLabel == &m_label);

        CClientDC(pLabel).FillSolidRect(0, 0, 1000, 100, kGround); // as a window that stood over it leaves it
        pLabel->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
        after = Shown(*pLabel);
        EXPECT_EQ(std::count(after.begin(), after.end(), kGround) == 0, pLabel == &m_label);
    }
}
