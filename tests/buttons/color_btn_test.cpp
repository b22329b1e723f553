// The two colour buttons: number, palette, broken assumptions, and the pop-up in a user's hands.

#include "Texts.h"
#include "Room.h"

#include <acdocman.h>
#include <afxdlgs.h>

namespace
{
constexpr COLORREF kNewColor = RGB(1, 2, 3);
constexpr UINT kFirstCell = 10153;
constexpr int kRedCell = 13, kOther = 20; ///< parts of the pop-up

using Script = std::function<void(CWnd& popup)>;

struct OpenAcadButton : Open<CAcadColorBtnST>
{
    using CAcadColorBtnST::m_nNumberLabelId, CAcadColorBtnST::m_numberLabel, Open::Open;
};

struct RgbButton : Open<CColorBtnST>
{
    using Open::Open;
    void OnClickedHook() override { static_cast<Room*>(GetParent())->calls += "hook; "; }
};

HWND Part(CWnd& popup, int nIndex)
{
    return popup.GetDlgItem(kFirstCell + nIndex)->m_hWnd;
}

class ColorButtons : public InRoom
{
protected:
    void SetUp() override { Reopen(BS_PUSHBUTTON); }
    void TearDown() override
    {
        InRoom::TearDown();
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
        CColorBtnST::Reset();
    }
    void Reopen(DWORD dwStyle)
    {
        m_room.DestroyWindow();
        m_rgb.SetColorSource(&m_color); // before there is a window
        m_acad.SetColorSource(&m_index);
        m_room.controls = {{&m_rgb, dwStyle}, {&m_acad, dwStyle}};
        InRoom::SetUp();
    }
    /// Whether the pop-up gets so far: open, with the mouse; or over.
    static bool Becomes(bool bOpen, CWnd& popup)
    {
        return owtest::PumpUntil(
            [&] { return !popup.ContinueModal() != bOpen && (CWnd::GetCapture() == &popup) == bOpen; });
    }
    /// What chooses the nth part by the mouse, and by "Other...".
    static Script ClickOn(int nPart)
    {
        return [=](CWnd& popup) { owtest::Click(Part(popup, nPart)); };
    }
    static void VisitOther(CWnd& popup, const Script& script)
    {
        const owtest::ModalVisit visit(script);
        ClickOn(kOther)(popup);
        EXPECT_EQ(visit.Count(), 1);
    }
    /// Opens the pop-up by a click, and closes it by what the script does, or else by Escape; what is told.
    std::string Visit(const Script& script)
    {
        const auto work = [&](CWnd& popup)
        {
            EXPECT_TRUE(Becomes(true, popup));
            script(popup);
        };
        const owtest::ModalVisit visit(work);
        owtest::Click(m_rgb);
        EXPECT_TRUE(visit.Count() == 1 && !::GetCapture());
        return m_room.Take();
    }
    /// From red, what stands in the variable afterwards, and which entry was used last: the first one's at
    /// the beginning, so that kRed and 0 mean that nothing changes.
    void ExpectChoice(const Script& script, COLORREF cr, int nUsed)
    {
        auto ranks = CColorBtnST::s_colorRecency;
        for (const BYTE nRank = ranks[nUsed]; BYTE & nOther : ranks)
            nOther = nOther == nRank ? 1 : nOther + (nOther < nRank);
        m_color = kRed;
        EXPECT_EQ(Visit(script),
                  (cr == kRed ? "" : "hook; told 1001 " + std::to_string(cr) + "; ") + "dialog 1001; ");
        EXPECT_EQ(m_color, cr);
        EXPECT_EQ(CColorBtnST::s_colorRecency, ranks);
    }

    DWORD m_color = kRed;
    int m_index = 30;
    RgbButton m_rgb{&m_room};
    OpenAcadButton m_acad{&m_room};
    CWnd& m_label = m_acad.m_numberLabel;
};
using ColorPopup = ColorButtons;
} // namespace

TEST_F(ColorButtons, ArePushButtonsWhateverTheTemplateSaysWithANumberMadeAnewEachTime)
{
    const auto isPush = [](const auto& button)
    { return !button.m_bIsCheckBox && !button.GetDefault() && button.GetButtonStyle() == BS_OWNERDRAW; };
    for (const long dwStyle : {BS_DEFPUSHBUTTON | WS_DISABLED, long(BS_AUTOCHECKBOX)})
    {
        Reopen(dwStyle);
        EXPECT_TRUE(isPush(m_acad) && isPush(m_rgb));
        EXPECT_EQ(owtest::TextOf(*m_room.GetDlgItem(m_acad.m_nNumberLabelId)), L"30");
        EXPECT_EQ(m_label.IsWindowEnabled(), !(dwStyle & WS_DISABLED));
    }
    EXPECT_EQ(m_label.GetStyle() & (WS_VISIBLE | 0xFFFF), static_cast<DWORD>(WS_VISIBLE | SS_CENTERIMAGE));
    EXPECT_EQ(m_label.GetFont()->m_hObject, m_room.GetFont()->m_hObject);
    CRect button, rect;
    CClientDC dc(&m_room);
    const CGdiSelection font(dc, m_room.GetFont()->m_hObject);
    m_acad.GetWindowRect(button);
    m_label.GetWindowRect(rect);
    EXPECT_EQ(rect, CRect(CPoint(button.right + dc.GetTextExtent(L" ").cx, button.top),
                          CSize(dc.GetTextExtent(L"888").cx, button.Height())));
    m_acad.EnableWindow(FALSE);
    EXPECT_FALSE(m_label.IsWindowEnabled());
    EXPECT_TRUE(Repaints(m_acad, [&] { m_acad.SetColorSource(&(m_index = 7)); }));
    EXPECT_EQ(owtest::TextOf(m_label), L"7");
    EXPECT_TRUE(Repaints(m_rgb, [&] { m_rgb.SetColorSource(&m_color); }));
    EXPECT_FALSE(Repaints(m_acad, [&] { m_acad.SetColorSource(nullptr); })) << "painting would be fatal";
    m_acad.ShowWindow(SW_HIDE);
    m_acad.SubclassWindow(m_acad.UnsubclassWindow()); // the same window once more
    EXPECT_EQ(owtest::TextOf(m_label), L"") << "no source, no number";
    EXPECT_FALSE(m_label.GetStyle() & WS_VISIBLE);
    m_acad.DestroyWindow();
    EXPECT_EQ(m_room.GetDlgItem(m_acad.m_nNumberLabelId), nullptr) << "nor an older one";
}

TEST_F(ColorButtons, AColorThatTheHostGivesIsStoredAndTold)
{
    std::function<void()> meanwhile = [] {};
    const auto choose = [&](const std::wstring& typed, WORD nKey)
    {
        const owtest::ModalVisit visit([&](CWnd&) { owtest::Type(typed), meanwhile(), owtest::Press(nKey); });
        m_label.SetWindowText(L"before");
        owtest::Click(m_acad);
        EXPECT_EQ(visit.Count(), 1);
        return m_acad.m_hWnd ? owtest::TextOf(m_label) : L"gone";
    };
    m_room.ModifyStyle(0, WS_CLIPCHILDREN); // paints without its controls
    m_room.then = [&] { EXPECT_TRUE(m_acad.GetUpdateRect(nullptr)); };
    EXPECT_EQ(choose(L"142", VK_RETURN), L"142");
    EXPECT_EQ(m_room.Take(), "told 1002 142; ") << "and the dialog does not receive the click";
    EXPECT_EQ(choose(L"7", VK_ESCAPE), L"before");
    EXPECT_EQ(choose(L"142", VK_RETURN), L"142") << "the same colour";
    meanwhile = [&] { m_acad.DestroyWindow(); };
    EXPECT_EQ(choose(L"7", VK_RETURN), L"gone");
    EXPECT_TRUE(m_index == 142 && m_room.Take().empty());
}

TEST_F(ColorPopup, OpensBelowItsAnchorOrWhereTheScreenHasRoomAndMarksTheColorOfTheButton)
{
    CRect button, rect;
    const Script look = [&](CWnd& popup) { popup.GetWindowRect(rect); };
    m_rgb.GetWindowRect(button);
    Visit(look);
    EXPECT_EQ(rect.TopLeft(), CPoint(button.left, button.bottom));
    const int right = ::GetSystemMetrics(SM_CXSCREEN), bottom = ::GetSystemMetrics(SM_CYSCREEN);
    const CSize size = rect.Size();
    owtest::MoveTo(m_room, CPoint(30, 5));
    CPoint cursor(30, 5);
    m_room.ClientToScreen(&cursor);
    const std::pair<CRect, CPoint> anchors[] = {
        {{200, 300, 240, bottom - size.cy}, {200, bottom - size.cy}}, // it just fits
        {{200, bottom - 200, 240, bottom - size.cy + 1}, {200, bottom - 200 - size.cy}},
        {{right - 10, 300, right, 320}, {right - size.cx, 320}},
        {{}, cursor}}; // without an anchor
    for (const auto& [anchor, corner] : anchors)
    {
        CColorSelectDialog dialog(nullptr, anchor.IsRectNull() ? nullptr : &anchor);
        const owtest::ModalVisit visit(look);
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(rect, CRect(corner, size));
    }
    const owtest::OtherText other("Other...", "Ostalo");
    const auto compare = [](CWnd& popup)
    {
        for (int i = 0; i < CColorBtnST::kPaletteSize; ++i)
        {
            CRect rect;
            ::GetClientRect(Part(popup, i), rect);
            Surface picture(rect.Width(), rect.Height());
            owtest::Capture(Part(popup, i), picture);
            EXPECT_EQ(picture.at(0, 0) == kBlack && picture.at(1, 1) == kWhite, i == kRedCell) << i;
            if (i == kRedCell)
                rect.DeflateRect(2, 2);
            EXPECT_EQ(picture.extent(CColorBtnST::s_colorTable[i]), rect) << i;
        }
        EXPECT_EQ(owtest::TextOf(*CWnd::FromHandle(Part(popup, 9))), L"166, 202, 240") << "read aloud";
        EXPECT_EQ(owtest::TextOf(*CWnd::FromHandle(Part(popup, kOther))), L"Ostalo");
    };
    Visit(compare);
}

TEST_F(ColorPopup, AClickOnACellChoosesItAndWhateverTakesTheMouseOrTheForegroundCancels)
{
    ExpectChoice(ClickOn(4), 0x800000, 4);
    ExpectChoice(ClickOn(kRedCell), kRed, kRedCell); // tells nobody
    CColorBtnST::Reset();
    const auto cancelOther = [](CWnd& window)
    {
        const CHOOSECOLOR& choice = static_cast<CColorDialog&>(window).m_cc;
        EXPECT_TRUE(choice.rgbResult == kRed && choice.Flags & CC_FULLOPEN) << "where it begins";
        owtest::Press(VK_ESCAPE);
    };
    const auto cancel = [&](CWnd& popup)
    {
        owtest::Click(popup, CPoint(1, 1)); // beside the cells
        EXPECT_TRUE(Becomes(true, popup));
        owtest::ButtonDown(popup, CPoint(1, 1));
        owtest::MoveTo(Part(popup, 6), CPoint(5, 5));
        owtest::ButtonUp();
        EXPECT_EQ(::GetCapture(), Part(popup, 6)) << "to the cell it was a press";
        owtest::Click(Part(popup, 9));
        EXPECT_TRUE(Becomes(true, popup)) << "it was left, and gives the mouse back";
        VisitOther(popup, cancelOther);
        EXPECT_TRUE(Becomes(true, popup)) << "the pop-up stays";
        owtest::Click(m_room, CPoint(100, 100));
        EXPECT_TRUE(Becomes(false, popup));
    };
    ExpectChoice(cancel, kRed, 0);
    const auto holdKeys = [](CWnd& popup)
    {
        for (const WPARAM nKey : {VK_RETURN, VK_SPACE})
            ::PostMessage(::GetFocus(), WM_KEYDOWN, nKey, 1 | KF_REPEAT << 16);
        owtest::Pump();
        EXPECT_TRUE(Becomes(true, popup));
        ::SetForegroundWindow(::GetDesktopWindow());
        EXPECT_TRUE(Becomes(false, popup));
    };
    ExpectChoice(holdKeys, kRed, 0);
    const auto takeMouse = [&](CWnd& popup)
    {
        m_rgb.SetCapture();
        EXPECT_FALSE(popup.ContinueModal());
        ::ReleaseCapture();
    };
    ExpectChoice(takeMouse, kRed, 0);
}

TEST_F(ColorPopup, ArrowsAndTabMoveAndEnterAndSpaceChoose)
{
    constexpr WORD L = VK_LEFT, R = VK_RIGHT, U = VK_UP, D = VK_DOWN, T = VK_TAB;
    using Tour = std::vector<std::pair<WORD, int>>; // keys, and the part that each leads to
    const auto press = [](CWnd& popup, const Tour& tour, WORD nChooser)
    {
        for (const auto& [nKey, nPart] : tour)
        {
            owtest::Press(nKey);
            const auto arrives = [&, n = nPart] { return ::GetFocus() == Part(popup, n); };
            EXPECT_TRUE(owtest::PumpUntil(arrives)) << nPart;
        }
        owtest::Press(nChooser);
    };
    const Tour tour{{L, 12}, {L, 11}, {R, 12}, {U, 8},  {U, 4},  {U, 0},  {U, 0},  {L, 0},
                    {R, 1},  {T, 20}, {T, 1},  {D, 5},  {D, 9},  {D, 13}, {D, 17}, {D, 20},
                    {T, 17}, {D, 20}, {D, 20}, {L, 19}, {R, 20}, {U, 16}};
    ExpectChoice([&](CWnd& popup) { press(popup, tour, VK_RETURN); }, 0xFF0000, 16);
    CColorBtnST::s_colorTable[kRedCell] = kNewColor; // without the button's colour it begins at the first
    ExpectChoice([&](CWnd& popup) { press(popup, {{R, 1}}, VK_SPACE); }, 0x000080, 1);
}

TEST_F(ColorPopup, OtherReplacesTheColorThatWasNotUsedForLongestUnlessItIsThere)
{
    const Script accept = [](CWnd& window)
    {
        for (int i = 0; i < 3; ++i)
        {
            constexpr int kRedBox = 706; // the boxes for green and blue have the next ids
            owtest::Click(*window.GetDlgItem(kRedBox + i));
            window.SendDlgItemMessage(kRedBox + i, EM_SETSEL, 0, -1);
            owtest::Type(std::to_wstring(kNewColor >> 8 * i & 0xFF));
        }
        owtest::Press(VK_RETURN);
    };
    auto& colors = CColorBtnST::s_colorTable;
    for (const int nUsed : {10, 7, 0})
    {
        if (nUsed != 10)
        {
            colors.fill(RGB(9, 9, 9));
            colors[nUsed] = colors[8] = kNewColor;
        }
        auto expected = colors;
        expected[nUsed] = kNewColor;
        ExpectChoice([&](CWnd& popup) { VisitOther(popup, accept); }, kNewColor, nUsed);
        EXPECT_EQ(colors, expected);
    }
}

TEST_F(ColorPopup, AClickByAProgramOpensNoSecondOneAndEachEndsWithWindowOrObject)
{
    for (const bool bDelete : {false, true})
    {
        m_rgb.UnsubclassWindow();
        auto pButton = std::make_unique<CColorBtnST>(&m_room);
        ASSERT_TRUE(pButton->SubclassDlgItem(1001, &m_room));
        pButton->SetColorSource(&m_color);
        const auto endAll = [&](CWnd& popup)
        {
            VisitOther(popup, [&](CWnd&) { bDelete ? pButton.reset() : void(pButton->DestroyWindow()); });
            EXPECT_TRUE(Becomes(false, popup));
        };
        const owtest::ModalVisit visit(endAll);
        owtest::Click(*pButton);
        EXPECT_TRUE(m_color == kRed && m_room.Take().empty());
        Reopen(BS_PUSHBUTTON);
    }
    for (CWnd* const pWindow : {static_cast<CWnd*>(&m_acad), static_cast<CWnd*>(&m_rgb)})
    {
        const owtest::ModalVisit visit([](CWnd&) { owtest::Press(VK_ESCAPE); });
        ClickByProgram(*pWindow);
        EXPECT_TRUE(visit.Count() == 1 && ::GetFocus() == pWindow->m_hWnd);
    }
    m_room.Take();
    m_room.then = [&] { m_room.DestroyWindow(); }; // which then hears no more
    const auto choose = [&](CWnd& popup)
    {
        ClickByProgram(m_rgb);
        EXPECT_EQ(m_room.Take(), "dialog 1001; ");
        EXPECT_TRUE(Becomes(true, popup));
        ClickOn(4)(popup);
    };
    EXPECT_EQ(Visit(choose), "hook; told 1001 " + std::to_string(0x800000) + "; ");
}

TEST(ColorProfile, KeepsThePaletteWhateverTheLengthOfItsEntries)
{
    CWinApp& app = *AfxGetApp();
    auto& colors = CColorBtnST::s_colorTable;
    auto& ranks = CColorBtnST::s_colorRecency;
    const auto loads = [&](LPCTSTR pszEntry, std::vector<BYTE> bytes)
    {
        CColorBtnST::Reset();
        colors[3] = kNewColor;
        std::swap(ranks[0], ranks[19]);
        EXPECT_EQ(CColorBtnST::Store(), 1);
        app.WriteProfileString(L"ColorData", pszEntry, nullptr);
        if (!bytes.empty())
            app.WriteProfileBinary(L"ColorData", pszEntry, bytes.data(), static_cast<UINT>(bytes.size()));
        colors.fill(0);
        ranks.fill(0);
        return CColorBtnST::Load();
    };
    EXPECT_TRUE(loads(L"ColorTable", {1, 2, 3, 0, 9}) && ranks[19] == 1);
    EXPECT_TRUE(colors[0] == kNewColor && colors[1] == 9 && colors[2] == 0);
    EXPECT_TRUE(loads(L"MRU", std::vector<BYTE>(30000, 7)) && ranks[19] == 7 && colors[3] == kNewColor);
    for (const LPCTSTR pszEntry : {L"ColorTable", L"MRU"})
        EXPECT_TRUE(!loads(pszEntry, {}) && colors[13] == kRed && ranks[19] == 2) << "an entry is missing";
    app.WriteProfileString(L"ColorData", nullptr, nullptr);
}

template <class Button, bool bPaint>
static void UseWithoutSource()
{
    Lone<Button> lone(CSize(60, 26));
    Surface surface(60, 26);
    bPaint ? PaintButton(lone.button, surface) : ClickByProgram(lone.button);
}

static void LoseSourceAndChoose()
{
    DWORD color = 0;
    Lone<CColorBtnST> lone(CSize(60, 26));
    lone.button.SetColorSource(&color);
    const auto lose = [&](CWnd&)
    {
        lone.button.SetColorSource(nullptr);
        owtest::Press(VK_RETURN);
    };
    const owtest::ModalVisit visit(lose);
    ClickByProgram(lone.button);
}

static const std::tuple<const char*, std::wstring, owtest::ScenarioRegistration> s_fatal[] = {
    {"198", L"ColorBtnST : 198", {"198", &UseWithoutSource<CColorBtnST, true>}},
    {"273", L"ColorBtnST : 273", {"273", &UseWithoutSource<CColorBtnST, false>}},
    {"276", L"ColorBtnST : 276", {"276", &LoseSourceAndChoose}},
    {"147", L"AcadColorBtnST : 147", {"147", &UseWithoutSource<CAcadColorBtnST, true>}},
    {"249", L"AcadColorBtnST : 249", {"249", &UseWithoutSource<CAcadColorBtnST, false>}}};

TEST(ColorButton, WithoutASourceItIsFatal)
{
    for (const auto& [name, place, registered] : s_fatal)
        owtest::ExpectFailedAssert(owtest::RunChild(name), L"ASSERT(m_pCurrentColor)\n[.\\" + place + L"]\n");
}
