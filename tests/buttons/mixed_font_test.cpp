// Buttons and labels in several fonts: where everything stands, what is wiped, who keeps the check state.

#include "ButtonsDialog.h"

#include "Handles.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <MixedFont.h>

#include <functional>
#include <memory>
#include <tuple>

using owtest::Surface;
using Calls = std::vector<std::string>;

namespace
{
constexpr wchar_t kText[] = L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]";
constexpr COLORREF kGround = RGB(255, 0, 255);
const CSize kSurface(230, 60);
const CRect kItem(10, 6, 211, 47); ///< odd sizes, and not from the corner
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);

CSize TextSize(CDC& dc, LPCWSTR pszText = kText)
{
    return CMixedFont::GetTextExtent(&dc, pszText);
}

int PixelsOtherThanFace(const Surface& surface, const CRect& area)
{
    return area.Width() * area.Height() - surface.count(area, kFace);
}

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
            if (message == BM_GETCHECK && bThirdState)
                return BST_INDETERMINATE;
            return CMixedFontButton::DefWindowProc(message, wParam, lParam);
        }
    };
    struct Look
    {
        CPoint box;
        CPoint text;
        UINT frame = DFCS_BUTTONCHECK;
        bool disabled = false;
        bool focus = false;
    };

    Button& Open(DWORD dwStyle)
    {
        m_lone = std::make_unique<Lone<Button>>(kItem.Size(), kText, BS_AUTOCHECKBOX | dwStyle);
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
    static void Draw(CDC& dc, const Look& look)
    {
        CRect mark(look.text, TextSize(dc));
        mark.InflateRect(1, 1);
        dc.FillSolidRect(mark, kFace);
        dc.SetBkMode(TRANSPARENT);
        if (look.disabled)
        {
            dc.SetTextColor(::GetSysColor(COLOR_BTNHIGHLIGHT));
            CMixedFont::TextOutW(&dc, look.text + CPoint(1, 1), kText);
        }
        dc.SetTextColor(::GetSysColor(look.disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
        CMixedFont::TextOutW(&dc, look.text, kText);
        dc.DrawFrameControl(CRect(look.box, CSize(13, 13)), DFC_BUTTON, look.frame);
        ::FrameRect(dc, mark, ::GetSysColorBrush(COLOR_BTNFACE));
        dc.SetTextColor(RGB(0, 0, 0));
        dc.SetBkColor(RGB(255, 255, 255));
        if (look.focus)
            dc.DrawFocusRect(mark);
    }
    void ExpectLook(const Look& look, const std::string& what)
    {
        Surface ours(kSurface.cx, kSurface.cy, kGround), expected(kSurface.cx, kSurface.cy, kGround);
        Paint(ours);
        Draw(expected.dc(), look);
        EXPECT_TRUE(ours == expected) << what;
    }

    std::unique_ptr<Lone<Button>> m_lone;
    const CSize m_text = TextSize(Surface(1, 1).dc());
};
} // namespace

// ---- Places and looks of a button -------------------------------------------------------------------------

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
            ExpectLook({{boxX, boxY}, {textX, textY}}, std::to_string(across | down));
        }
}

TEST_F(PaintedMixedFont, LooksAsItsState)
{
    Look look{{kItem.left, kItem.bottom - 15}, {kItem.left + 20, kItem.bottom - m_text.cy - 2}};
    Button& button = Open(BS_BOTTOM);
    button.SetCheck(1);
    look.frame = DFCS_BUTTONCHECK | DFCS_CHECKED;
    ExpectLook(look, "checked");
    button.SendMessage(WM_SETFOCUS);
    look.focus = true;
    ExpectLook(look, "focused");
    button.SendMessage(WM_KILLFOCUS);
    button.SetState(TRUE);
    look.frame |= DFCS_INACTIVE;
    ExpectLook(look, "pressed: it shows the focus mark, too");
    button.SetState(FALSE);
    button.bThirdState = true;
    look.focus = false;
    look.frame = DFCS_BUTTONCHECK | DFCS_INACTIVE;
    ExpectLook(look, "the third state");
    button.bThirdState = false;
    button.RadioButtonLook(0);
    look.frame = DFCS_BUTTONRADIO | DFCS_CHECKED;
    ExpectLook(look, "a radio button, whatever the argument");
    button.EnableWindow(FALSE);
    look.frame |= DFCS_INACTIVE;
    look.disabled = true;
    ExpectLook(look, "disabled");
}

TEST_F(PaintedMixedFont, AShorterTextWipesWhatStoodThereUnlessItIsTransparent)
{
    for (DWORD dwExStyle : {0L, WS_EX_TRANSPARENT})
        for (BOOL bEnabled : {TRUE, FALSE})
        {
            Button& button = Open(0);
            button.ModifyStyleEx(0, dwExStyle);
            button.SendMessage(WM_SETFOCUS);
            button.EnableWindow(bEnabled);
            Surface surface(kSurface.cx, kSurface.cy, kFace);
            Paint(surface);
            button.SetWindowText(L"i");
            Paint(surface);
            const CRect gone(kItem.left + 40, 0, kSurface.cx, kSurface.cy);
            EXPECT_EQ(PixelsOtherThanFace(surface, gone) == 0, dwExStyle == 0) << "shadow and mark, too";
        }
}

TEST_F(PaintedMixedFont, GivesBackWhatItPaintsWith)
{
    const auto open = [&]
    {
        Open(0).EnableWindow(FALSE);
        Surface surface(kSurface.cx, kSurface.cy);
        Paint(surface);
        m_lone.reset();
        AfxGetApp()->OnIdle(1); // frees temporary objects
    };
    open(); // what is made once in a process is made now
    const auto before = owtest::CountHandles();
    for (int i = 0; i < 10; ++i)
        open();
    EXPECT_EQ(owtest::CountHandles(), before);
}

// ---- Check state and type ---------------------------------------------------------------------------------

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
    const auto typeOf = [](const CWnd& button) { return button.GetStyle() & 0xFF; };
    for (DWORD style : {BS_PUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON})
    {
        Lone<CMixedFontButton> lone(CSize(50, 20), L"", style | BS_LEFTTEXT);
        EXPECT_EQ(typeOf(lone.button), DWORD(BS_OWNERDRAW | BS_LEFTTEXT)) << style;
        CMixedFontButton created;
        created.Create(L"", WS_CHILD | style, CRect(0, 0, 9, 9), lone.button.GetParent(), 5);
        EXPECT_EQ(typeOf(created), DWORD(BS_OWNERDRAW)) << style;
    }
    Lone<CMixedFontButton> radio(CSize(50, 20), L"", BS_RADIOBUTTON);
    EXPECT_EQ(typeOf(radio.button), 0xFu) << "kept: a bit of this type stays";
}

// ---- In a dialog ------------------------------------------------------------------------------------------

namespace
{
class MixedFontInDialog : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_BUTTONS));
        ASSERT_TRUE(owtest::Activate(m_dialog));
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    static CRect ClientOf(const CWnd& control)
    {
        CRect rect;
        control.GetClientRect(rect);
        return rect;
    }
    /// What the control shows.
    static Surface& Shown(Surface& surface, CWnd& control)
    {
        control.UpdateWindow();
        CClientDC dc(&control);
        surface.dc().BitBlt(0, 0, surface.width(), surface.height(), &dc, 0, 0, SRCCOPY);
        return surface;
    }
    static bool SameAfter(CWnd& control, const std::function<void()>& change)
    {
        const CRect rect = ClientOf(control);
        Surface before(rect.right, rect.bottom), after(rect.right, rect.bottom);
        Shown(before, control);
        change();
        return before == Shown(after, control);
    }
    /// Puts dirt where the control is, as a window that stood over it would leave it.
    static void Soil(CWnd& control)
    {
        CClientDC(&control).FillSolidRect(0, 0, 1000, 100, kGround);
        control.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
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
    EXPECT_EQ(::GetFocus(), m_button.m_hWnd);
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

TEST_F(MixedFontInDialog, CheckAndFocusAreShownAtOnceAndLossOfFocusEndsAPress)
{
    m_other.SetFocus();
    EXPECT_FALSE(SameAfter(m_button, [&] { m_button.SetCheck(1); }));
    EXPECT_FALSE(SameAfter(m_button, [&] { m_button.SetFocus(); }));
    EXPECT_FALSE(SameAfter(m_button, [&] { m_other.SetFocus(); }));
    const auto loseItWhileDisabled = [&]
    {
        m_button.SetFocus();
        m_button.EnableWindow(FALSE);
        m_button.SendMessage(WM_SETFOCUS);
        m_button.SendMessage(WM_KILLFOCUS);
        m_button.EnableWindow(TRUE);
    };
    EXPECT_TRUE(SameAfter(m_button, loseItWhileDisabled));

    m_button.SetFocus();
    m_button.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(::GetCapture(), m_button.m_hWnd);
    m_other.SetFocus();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(m_button.GetState() & BST_PUSHED);
    EXPECT_EQ(m_dialog.Take(), Calls{}) << "that is no click";
}

TEST_F(MixedFontInDialog, ALabelShowsTheTextItWasMadeWithAtTheTopByItsStyle)
{
    constexpr wchar_t kLabel[] = L"kN/cm<sup>2</sup>";
    const CRect rect = ClientOf(m_label);
    CMixedFontStatic created;
    ASSERT_TRUE(created.Create(kLabel, WS_CHILD, rect, &m_dialog));
    for (CMixedFontStatic* pLabel : {&m_label, &created})
        for (DWORD dwStyle : {SS_LEFT, SS_CENTER, SS_RIGHT})
        {
            EXPECT_EQ(owtest::TextOf(*pLabel), kLabel);
            pLabel->ModifyStyle(SS_TYPEMASK, dwStyle);
            Surface ours(rect.right, rect.bottom, kGround), expected(rect.right, rect.bottom, kGround);
            for (CDC* pDC : {&ours.dc(), &expected.dc()})
                pDC->SetTextColor(RGB(0, 0, 160)); // the context's own
            pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(ours.dc().m_hDC), PRF_CLIENT);

            const HGDIOBJ hOld = ::SelectObject(expected.dc(), *m_dialog.GetFont());
            const int nRoom = rect.right - TextSize(expected.dc(), kLabel).cx;
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
    for (const auto& [places, length, text] : {std::tuple(0, 0, L"#####"), {1, 0, L""}, {4, 3, L"100"}})
    {
        wchar_t buffer[] = L"#####";
        EXPECT_EQ(m_label.SendMessage(WM_GETTEXT, places, reinterpret_cast<LPARAM>(buffer)), length);
        EXPECT_STREQ(buffer, text);
        EXPECT_EQ(buffer[4], L'#') << "nothing behind the places given";
    }
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXT, 100, 0), 0);
    m_label.SendMessage(WM_SETTEXT);
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXTLENGTH), 0);
}

TEST_F(MixedFontInDialog, ALabelWipesItsTextAndItsGroundUnlessItIsTransparent)
{
    for (CMixedFontStatic* pLabel : {&m_label, &m_dialog.clearLabel})
    {
        const bool bOpaque = pLabel == &m_label;
        EXPECT_TRUE(SameAfter(*pLabel, [&] { pLabel->EnableWindow(FALSE); })) << "nor a caption over it";
        EXPECT_EQ(SameAfter(*pLabel, [&] { Soil(*pLabel); }), bOpaque);
        CRect rect = ClientOf(*pLabel);
        Surface surface(rect.right, rect.bottom);
        pLabel->SetWindowText(L"i");
        pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface.dc().m_hDC), PRF_CLIENT);
        rect.right -= 20;
        EXPECT_EQ(PixelsOtherThanFace(Shown(surface, *pLabel), rect) == 0, bOpaque);
    }
}
