// Buttons and labels in several fonts: where everything stands, what is wiped, who keeps the check state.

#include "Room.h"
#include "module/GdiScope.h"

#include <MixedFont.h>

namespace
{
constexpr wchar_t kText[] = L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]",
                  kLabel[] = L"kN/cm<sup>2</sup>";
const COLORREF kFace = ::GetSysColor(COLOR_BTNFACE);
const CRect kItem(10, 6, 211, 48); ///< sizes that halving tells apart, and not from the corner

struct MixedFontSurface : Surface
{
    explicit MixedFontSurface(COLORREF crFill = kKey) : Surface(230, 60, crFill) {}
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
        surface.dc().SetTextColor(kBlue);
        PaintButton(m_lone->button, surface, 0, &kItem);
        EXPECT_EQ(surface.dc().GetTextColor(), kBlue) << "the context is as it was";
        EXPECT_EQ(::GetCurrentObject(surface.dc(), OBJ_PEN), ::GetStockObject(BLACK_PEN));
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
        dc.SetTextColor(kBlue);
        dc.SetBkColor(kWhite);
        if (bFocus)
            dc.DrawFocusRect(mark);
        EXPECT_TRUE(ours == expected) << what;
    }

    std::unique_ptr<Lone<Button>> m_lone;
    const CSize m_text = CMixedFont::GetTextExtent(&MixedFontSurface().dc(), kText);
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
} // namespace

TEST_F(PaintedMixedFont, BoxAndTextStandByTheStylesAndLookAsTheState)
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

    const CPoint box(kItem.left, kItem.bottom - 15), text(kItem.left + 20, kItem.bottom - m_text.cy - 2);
    constexpr UINT kChecked = DFCS_BUTTONCHECK | DFCS_CHECKED, kRadio = DFCS_BUTTONRADIO | DFCS_CHECKED;
    Button& button = Open(BS_BOTTOM);
    const std::tuple<std::function<void()>, UINT, bool> rows[] = {
        {[&] { button.SetCheck(1); }, kChecked, false},
        {[&] { button.SendMessage(WM_SETFOCUS); }, kChecked, true},
        {[&] { button.SendMessage(WM_KILLFOCUS); }, kChecked, false},
        {[&] { button.SetState(TRUE); }, kChecked | DFCS_INACTIVE, true},
        {[&] { button.SetState(FALSE); }, kChecked, false},
        {[&] { button.bThirdState = true; }, DFCS_BUTTONCHECK | DFCS_INACTIVE, false},
        {[&] { button.bThirdState = false; }, kChecked, false},
        {[&] { button.RadioButtonLook(0); }, kRadio, false}, // whatever the argument
        {[&] { button.SendMessage(WM_SETFOCUS); }, kRadio, true},
        {[&] { button.EnableWindow(FALSE); }, kRadio | DFCS_INACTIVE, false}, // when the focus goes, too
        {[&] { button.SendMessage(WM_SETFOCUS), button.SetWindowText(kText); }, kRadio | DFCS_INACTIVE,
         false},
        {[&] { button.EnableWindow(TRUE); }, kRadio, false}};
    for (const auto& row : rows)
    {
        const auto& [change, frame, bFocus] = row;
        change();
        ExpectLook(box, text, std::to_string(&row - rows), frame, bFocus, button.IsWindowEnabled());
    }

    Open(BS_BOTTOM, WS_EX_TRANSPARENT);
    MixedFontSurface surface;
    Paint(surface);
    EXPECT_GT(surface.count(CRect(text, m_text), kKey), 0) << "a transparent one has no ground";
}

TEST_F(PaintedMixedFont, WipesAFormerTextUnlessItIsTransparentAndKeepsItsOwnCheckState)
{
    for (const DWORD dwExStyle : {0L, WS_EX_TRANSPARENT})
        for (const BOOL bEnabled : {TRUE, FALSE})
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

    for (const auto& [style, type] : {std::pair(BS_PUSHBUTTON, BS_OWNERDRAW),
                                      {BS_AUTORADIOBUTTON | BS_LEFTTEXT, BS_OWNERDRAW | BS_LEFTTEXT},
                                      {BS_RADIOBUTTON, 0xFL /* kept: a bit of this type stays */}})
    {
        CMixedFontButton created;
        created.Create(L"", WS_CHILD | style, CRect(0, 0, 9, 9), Open(style).GetParent(), 5);
        EXPECT_EQ(m_lone->button.GetButtonStyle(), static_cast<UINT>(type));
        EXPECT_EQ(created.GetButtonStyle(), static_cast<UINT>(type));
    }
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

TEST_F(MixedFontInRoom, ClicksGoToTheHandlerAndThenToTheDialogAndWhatChangesItsLookPaintsItAnew)
{
    for (int i = 0; i < 2; ++i)
    {
        owtest::Click(m_button);
        EXPECT_EQ(m_room.Take(), (Calls{"told 1001", "dialog 1001"})) << "fast clicks are all clicks";
    }
    EXPECT_EQ(m_button.GetCheck(), 0) << "nobody toggles it";
    owtest::Press(VK_TAB);
    EXPECT_EQ(::GetFocus(), m_other.m_hWnd);
    owtest::Press(VK_SPACE);
    EXPECT_EQ(m_room.Take(), (Calls{"told 1002", "dialog 1002"}));
    owtest::Press(VK_RETURN);
    EXPECT_EQ(m_room.Take().back(), "dialog 1") << "Enter is the default button's";

    const std::function<void()> changes[] = {[&] { m_button.SetFocus(); }, [&] { m_other.SetFocus(); },
                                             [&] { m_button.SetCheck(1); },
                                             [&] { m_button.RadioButtonLook(TRUE); }};
    for (const auto& change : changes)
        EXPECT_TRUE(Repaints(m_button, change)) << &change - changes;
    m_button.SetFocus();
    m_button.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(::GetCapture(), m_button.m_hWnd);
    m_other.SetFocus();
    EXPECT_EQ(::GetCapture(), nullptr) << "a press ends with the focus, and is no click";
    EXPECT_FALSE(m_button.GetState() & BST_PUSHED);
    EXPECT_EQ(m_room.Take(), Calls{});
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
            MixedFontSurface ours, expected;
            for (CDC* pDC : {&ours.dc(), &expected.dc()})
                pDC->SetTextColor(kBlue); // the context's own
            const WPARAM dc = reinterpret_cast<WPARAM>(ours.dc().m_hDC);
            EXPECT_EQ(pLabel->SendMessage(WM_ERASEBKGND, dc), 1) << "it erases by itself";
            ours.dc().FillSolidRect(0, 0, ours.width(), ours.height(), kKey);
            EXPECT_EQ(pLabel->SendMessage(WM_PRINTCLIENT, dc, PRF_CLIENT), 0);

            const CGdiSelection font(expected.dc(), m_room.GetFont()->m_hObject);
            const int nRoom = 200 - CMixedFont::GetTextExtent(&expected.dc(), kLabel).cx;
            const int nLeft = dwStyle == SS_LEFT ? 0 : dwStyle == SS_CENTER ? nRoom / 2 : nRoom;
            expected.dc().SetBkColor(kFace);
            CMixedFont::TextOutW(&expected.dc(), CPoint(nLeft, 0), kLabel);
            EXPECT_TRUE(ours == expected) << dwStyle;
        }
    const std::unique_ptr<CObject> pByClass(RUNTIME_CLASS(CMixedFontStatic)->CreateObject());
    EXPECT_TRUE(pByClass && pByClass->IsKindOf(RUNTIME_CLASS(CStatic)));
}

TEST_F(MixedFontInRoom, ALabelsTextIsReadInFullOrCutAndGoesWithItsGroundUnlessItIsTransparent)
{
    EXPECT_EQ(m_label.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"100% %s <b>")), 1);
    EXPECT_EQ(owtest::TextOf(m_label), L"100% %s <b>");
    wchar_t buffer[] = L"#####";
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(buffer)), 3);
    EXPECT_EQ(std::wstring(buffer, 5), std::wstring(L"100\0#", 5));
    m_label.SendMessage(WM_SETTEXT);
    EXPECT_EQ(m_label.SendMessage(WM_GETTEXTLENGTH), 0);

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
        pLabel->SetWindowText(kLabel);
        show(before);
        pLabel->EnableWindow(FALSE);
        show(after);
        EXPECT_TRUE(after == before) << "no caption of the system's over it";
        pLabel->SetWindowText(L"");
        MixedFontSurface other;
        pLabel->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(other.dc().m_hDC), PRF_CLIENT);
        show(after);
        EXPECT_EQ(after.count(rect, kFace) == rect.right * rect.bottom, pLabel == &m_label);

        CClientDC(pLabel).FillSolidRect(0, 0, 1000, 100, kKey); // as a window that stood over it leaves it
        pLabel->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
        show(after);
        EXPECT_EQ(after.count(rect, kKey) == 0, pLabel == &m_label);
    }
}
