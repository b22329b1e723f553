// The two colour buttons: look, source, number, palette. The pop-up has a file of its own.

#include "ColorsDialog.h"

#include "FatalReport.h"
#include "Handles.h"
#include "ModalVisit.h"

#include <gtest/gtest.h>

#include <aced.h>

#include <numeric>

using Calls = std::vector<std::string>;
using owtest::Surface;

namespace
{
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255), kFace = RGB(180, 200, 180);
constexpr COLORREF kOrange = RGB(255, 127, 0); ///< index 30
const CSize kSize(60, 26);

/// A button without a theme, painted in a state.
template <class Button, class Value>
class Painted
{
public:
    explicit Painted(Value value, CSize size = kSize)
        : surface(size.cx, size.cy), m_lone(size), m_value(value)
    {
        m_lone.button.SetThemeHelper(nullptr);
        m_lone.button.SetFlat(FALSE);
        for (const BYTE back : {CButtonST::colorBackIn, CButtonST::colorBackOut, CButtonST::colorBackFocus})
            m_lone.button.SetColor(back, kFace);
        m_lone.button.SetColorSource(&m_value);
    }
    const Surface& Paint(UINT nItemState)
    {
        PaintButton(m_lone.button, surface, nItemState);
        return surface;
    }

    Surface surface;

private:
    Lone<Button> m_lone;
    Value m_value;
};

CRect Outline(const Surface& picture, const CRect& rect, COLORREF cr)
{
    CRect inside = rect;
    inside.DeflateRect(1, 1);
    const int nRing = rect.Width() * rect.Height() - inside.Width() * inside.Height();
    EXPECT_EQ(picture.count(rect, cr) - picture.count(inside, cr), nRing) << "a closed outline";
    return inside;
}

/// What an enabled button shows in all states: `cr` in a black frame, and a black arrow.
template <class Painter>
void ExpectSwatch(Painter& painter, COLORREF cr)
{
    struct
    {
        UINT nState;
        CRect swatch;
        CPoint tip;
    } cases[] = {{0, {5, 5, 46, 21}, {52, 14}},
                 {ODS_SELECTED, {6, 6, 47, 22}, {53, 14}},
                 {ODS_FOCUS, {6, 6, 45, 20}, {51, 13}}}; // inside the frame of the focused button
    for (const auto& [nState, swatch, tip] : cases)
    {
        const Surface& picture = painter.Paint(nState);
        const CRect inside = Outline(picture, swatch, kBlack);
        EXPECT_EQ(picture.count(inside, cr), inside.Width() * inside.Height()) << nState;
        EXPECT_EQ(picture.at(tip.x, tip.y), kBlack) << nState;
        EXPECT_EQ(picture.at(tip.x, tip.y + 1), kFace) << nState;
    }
}

void ExpectEngravedArrow(const Surface& picture)
{
    EXPECT_EQ(picture.at(52, 14), kWhite);
    EXPECT_EQ(picture.at(50, 12), ::GetSysColor(COLOR_BTNSHADOW));
}
} // namespace

// ---- Look -------------------------------------------------------------------------------------------------

TEST(ColorButtonPaint, ShowsASwatchAndTheArrow)
{
    Painted<CColorBtnST, DWORD> rgb(RGB(10, 20, 200));
    ExpectSwatch(rgb, RGB(10, 20, 200));
    Painted<CAcadColorBtnST, int> acad(30);
    ExpectSwatch(acad, kOrange);
    Painted<CAcadColorBtnST, int> none(999);
    ExpectSwatch(none, kFace); // no colour: an empty swatch
}

TEST(ColorButtonPaint, DisabledShowsNoColor)
{
    Painted<CColorBtnST, DWORD> rgb(RGB(10, 20, 200));
    const CRect area(5, 5, 46, 21);
    ExpectEngravedArrow(rgb.Paint(ODS_DISABLED));
    EXPECT_EQ(rgb.surface.count(area, kFace), area.Width() * area.Height());

    Painted<CAcadColorBtnST, int> acad(30);
    ExpectEngravedArrow(acad.Paint(ODS_DISABLED));
    const CRect inside = Outline(acad.surface, area, ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(acad.surface.extent(kOrange), CRect());
    EXPECT_EQ(acad.surface.count(inside, kWhite), inside.Width() + inside.Height() - 1) << "left and top";
    EXPECT_EQ(acad.surface.count({46, 6, 47, 22}, kWhite), 16) << "right";
    EXPECT_EQ(acad.surface.at(inside.left + 1, inside.top + 1), kFace) << "empty";
}

TEST(ColorButtonPaint, AButtonWithoutRoomShowsNoSwatch)
{
    for (const CSize size : {CSize(19, 26), CSize(60, 10)})
    {
        Painted<CColorBtnST, DWORD> rgb(RGB(10, 20, 200), size);
        EXPECT_EQ(rgb.Paint(0).extent(RGB(10, 20, 200)), CRect());
        EXPECT_EQ(rgb.surface.at(5, 5), kFace);
    }
}

// ---- Attaching and source ---------------------------------------------------------------------------------

TEST(ColorButton, IsAPushButtonWhateverTheTemplateSays)
{
    ColorsDialog dialog;
    for (const DWORD dwType : {BS_OWNERDRAW, BS_AUTOCHECKBOX, BS_DEFPUSHBUTTON})
    {
        ASSERT_TRUE(dialog.Open(dwType));
        EXPECT_FALSE(dialog.rgb.m_bIsCheckBox || dialog.acad.m_bIsCheckBox);
        EXPECT_FALSE(dialog.acad.GetDefault());
        EXPECT_EQ(dialog.acad.GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
        dialog.DestroyWindow();
    }
}

TEST(ColorButton, ANewSourceRepaints)
{
    ColorsDialog dialog;
    dialog.rgb.SetColorSource(&dialog.color); // without a window
    dialog.acad.SetColorSource(&dialog.index);
    ASSERT_TRUE(dialog.Open());
    for (CButton* pButton : {static_cast<CButton*>(&dialog.rgb), static_cast<CButton*>(&dialog.acad)})
    {
        dialog.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        dialog.rgb.SetColorSource(nullptr);
        dialog.acad.SetColorSource(nullptr);
        EXPECT_FALSE(pButton->GetUpdateRect(nullptr));
        dialog.rgb.SetColorSource(&dialog.color);
        dialog.acad.SetColorSource(&dialog.index);
        EXPECT_TRUE(pButton->GetUpdateRect(nullptr));
    }
}

// ---- The number -------------------------------------------------------------------------------------------

TEST(AcadColorNumber, StandsBesideTheButtonInTheParentsFont)
{
    ColorsDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CWnd& label = dialog.acad.m_numberLabel;
    EXPECT_EQ(label.m_hWnd, dialog.GetDlgItem(dialog.acad.m_nNumberLabelId)->m_hWnd);
    EXPECT_EQ(owtest::TextOf(label), L"30");
    EXPECT_EQ(label.GetStyle() & (WS_VISIBLE | SS_CENTERIMAGE),
              static_cast<DWORD>(WS_VISIBLE | SS_CENTERIMAGE));
    EXPECT_EQ(label.GetFont()->m_hObject, dialog.GetFont()->m_hObject);

    CClientDC dc(&dialog);
    const CGdiSelection font(dc, dialog.GetFont()->m_hObject);
    CRect button, rect;
    dialog.acad.GetWindowRect(button);
    label.GetWindowRect(rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(button.right + dc.GetTextExtent(L" ").cx, button.top));
    EXPECT_EQ(rect.Size(), CSize(dc.GetTextExtent(L"888").cx, button.Height()));

    dialog.acad.EnableWindow(FALSE);
    EXPECT_FALSE(label.IsWindowEnabled());
    dialog.acad.EnableWindow(TRUE);
    EXPECT_TRUE(label.IsWindowEnabled());
    dialog.index = 7;
    dialog.acad.SetColorSource(&dialog.index);
    EXPECT_EQ(owtest::TextOf(label), L"7");
    dialog.acad.DestroyWindow();
    EXPECT_EQ(label.m_hWnd, nullptr) << "it goes with the button";
}

TEST(AcadColorNumber, IsMadeAnewForEachWindowOfTheObject)
{
    ColorsDialog dialog;
    const int nId = dialog.acad.m_nNumberLabelId;
    for (const long dwStyle : {0L, WS_DISABLED, 0L})
    {
        ASSERT_TRUE(dialog.Open(dwStyle));
        ASSERT_NE(dialog.GetDlgItem(nId), nullptr);
        EXPECT_EQ(owtest::TextOf(*dialog.GetDlgItem(nId)), L"30");
        EXPECT_EQ(dialog.GetDlgItem(nId)->IsWindowEnabled(), dwStyle == 0);
        dialog.DestroyWindow();
    }
    ASSERT_TRUE(dialog.Open());
    const HWND hButton = dialog.acad.UnsubclassWindow();
    ::ShowWindow(hButton, SW_HIDE);
    dialog.acad.SetColorSource(nullptr);
    dialog.acad.SubclassWindow(hButton); // the same window once more
    EXPECT_EQ(owtest::TextOf(dialog.acad.m_numberLabel), L"") << "no source, no number";
    EXPECT_FALSE(dialog.acad.m_numberLabel.IsWindowVisible());
    dialog.acad.m_numberLabel.DestroyWindow();
    EXPECT_EQ(dialog.GetDlgItem(nId), nullptr) << "there was one only";
}

// Wanted: an id is never given back. See the pool's own tests for what it is.
OW_CHILD_SCENARIO(too_many_color_buttons)
{
    for (int i = 1; i <= 201; ++i)
    {
        CAcadColorBtnST button;
        std::printf("%d ", i);
        std::fflush(stdout);
    }
}

TEST(AcadColorNumber, TwoHundredButtonsUseUpThePool)
{
    const owtest::ChildResult result = owtest::RunChild("too_many_color_buttons");
    EXPECT_TRUE(result.output.ends_with("200 ")) << result.output;
    owtest::ExpectFailedAssert(result, L"ASSERT(!m_listId.IsEmpty())\n[.\\ResourceIdPool : 37]\n");
}

// ---- The host's dialog ------------------------------------------------------------------------------------

namespace
{
class AcadColorClick : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Open()); }

    void Visit(const std::function<void()>& script)
    {
        const owtest::ModalVisit visit([&](CWnd&) { script(); });
        owtest::Click(m_dialog.acad);
        EXPECT_EQ(visit.Count(), 1);
    }
    static void Choose(const wchar_t* pszColor)
    {
        owtest::Type(pszColor);
        owtest::Press(VK_RETURN);
    }
    std::wstring Number() { return owtest::TextOf(m_dialog.acad.m_numberLabel); }

    ColorsDialog m_dialog;
};
} // namespace

TEST_F(AcadColorClick, AnotherColorIsStoredAndTold)
{
    Visit([] { Choose(L"142"); });
    EXPECT_EQ(m_dialog.index, 142);
    EXPECT_EQ(m_dialog.Take(), Calls{"acad 1002 142"}) << "and the dialog does not receive the click";
    EXPECT_EQ(m_dialog.acad.hooks, 1);
    EXPECT_EQ(Number(), L"142");
}

TEST_F(AcadColorClick, TheSameColorAndCancelTellNobody)
{
    m_dialog.acad.m_numberLabel.SetWindowText(L"x");
    Visit(
        []
        {
            owtest::Type(L"142");
            owtest::Press(VK_ESCAPE);
        });
    EXPECT_EQ(Number(), L"x") << "it stays as it was";
    Visit([] { Choose(L"30"); });
    EXPECT_EQ(Number(), L"30");
    EXPECT_EQ(m_dialog.index, 30);
    EXPECT_EQ(m_dialog.Take(), Calls{});
    EXPECT_EQ(m_dialog.acad.hooks, 0);
}

TEST_F(AcadColorClick, AButtonOrSourceThatGoesMeanwhileTakesNothing)
{
    const std::function<void()> endings[] = {[&] { m_dialog.acad.SetColorSource(nullptr); },
                                             [&] { m_dialog.acad.DestroyWindow(); },
                                             [&] { m_dialog.DestroyWindow(); }};
    for (const auto& end : endings)
    {
        Visit(
            [&]
            {
                owtest::Type(L"142");
                end();
                m_dialog.acad.SetColorSource(m_dialog.acad.m_hWnd ? nullptr : &m_dialog.index);
                owtest::Press(VK_RETURN);
            });
        EXPECT_EQ(m_dialog.index, 30);
        EXPECT_EQ(m_dialog.Take(), Calls{});
        m_dialog.DestroyWindow();
        ASSERT_TRUE(m_dialog.Open());
    }
}

// ---- The palette in the profile ---------------------------------------------------------------------------

namespace
{
class ColorProfile : public ::testing::Test
{
protected:
    void TearDown() override
    {
        AfxGetApp()->WriteProfileString(L"ColorData", nullptr, nullptr);
        CColorBtnST::Reset();
    }
    static void Write(LPCTSTR pszEntry, std::vector<BYTE> bytes)
    {
        AfxGetApp()->WriteProfileBinary(L"ColorData", pszEntry, bytes.data(),
                                        static_cast<UINT>(bytes.size()));
    }
};
} // namespace

TEST_F(ColorProfile, KeepsThePalette)
{
    CColorBtnST::s_colorTable[3] = RGB(7, 8, 9);
    std::swap(CColorBtnST::s_colorRecency[0], CColorBtnST::s_colorRecency[19]);
    const auto colors = CColorBtnST::s_colorTable;
    const auto ranks = CColorBtnST::s_colorRecency;
    EXPECT_EQ(CColorBtnST::Store(), 1);
    CColorBtnST::Reset();
    EXPECT_NE(CColorBtnST::s_colorTable, colors);
    EXPECT_EQ(CColorBtnST::Load(), 1);
    EXPECT_EQ(CColorBtnST::s_colorTable, colors);
    EXPECT_EQ(CColorBtnST::s_colorRecency, ranks);
}

TEST_F(ColorProfile, AMissingOrDamagedEntryBringsTheDefaults)
{
    const auto colors = CColorBtnST::s_colorTable;
    const auto ranks = CColorBtnST::s_colorRecency;
    EXPECT_EQ(std::accumulate(ranks.begin(), ranks.end(), 0), 210);
    const std::pair<LPCTSTR, std::vector<BYTE>> damages[] = {
        {L"ColorTable", {}},
        {L"ColorTable", std::vector<BYTE>(79)},
        {L"ColorTable", std::vector<BYTE>(1000)},
        {L"MRU", {}},
        {L"MRU", {1, 2, 3}},
        {L"MRU", std::vector<BYTE>(21, 1)},
        {L"MRU", std::vector<BYTE>(20, 20)}, // not one rank each
    };
    for (const auto& [pszEntry, bytes] : damages)
    {
        CColorBtnST::s_colorTable[3] = RGB(7, 8, 9);
        EXPECT_EQ(CColorBtnST::Store(), 1);
        Write(pszEntry, bytes);
        EXPECT_EQ(CColorBtnST::Load(), 0);
        EXPECT_EQ(CColorBtnST::s_colorTable, colors);
        EXPECT_EQ(CColorBtnST::s_colorRecency, ranks);
    }
}

TEST_F(ColorProfile, AProfileThatCannotBeWrittenIsAnswered)
{
    CWinApp& app = *AfxGetApp();
    const LPCTSTR pszName = std::exchange(app.m_pszProfileName, L"Z:\\no\\such\\folder\\x.ini");
    EXPECT_EQ(CColorBtnST::Store(), 0);
    EXPECT_EQ(CColorBtnST::Load(), 0);
    app.m_pszProfileName = pszName;
}

// ---- Broken assumptions -----------------------------------------------------------------------------------

namespace
{
template <class Button>
void ClickWithoutSource()
{
    Lone<Button> lone{kSize};
    lone.button.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(0, BN_CLICKED),
                                         reinterpret_cast<LPARAM>(lone.button.m_hWnd));
}

template <class Button>
void PaintWithoutSource()
{
    Lone<Button> lone{kSize};
    Surface surface(kSize.cx, kSize.cy);
    PaintButton(lone.button, surface);
}
} // namespace

OW_CHILD_SCENARIO(rgb_paint)
{
    PaintWithoutSource<CColorBtnST>();
}
OW_CHILD_SCENARIO(rgb_click)
{
    ClickWithoutSource<CColorBtnST>();
}
OW_CHILD_SCENARIO(rgb_choose)
{
    ColorsDialog dialog;
    dialog.Open();
    const owtest::ModalVisit visit(
        [&](CWnd&)
        {
            dialog.rgb.SetColorSource(nullptr);
            owtest::Press(VK_RIGHT);
            owtest::Press(VK_RETURN);
        });
    dialog.SendMessage(WM_COMMAND, ColorsDialog::eRgb, reinterpret_cast<LPARAM>(dialog.rgb.m_hWnd));
}
OW_CHILD_SCENARIO(acad_paint)
{
    PaintWithoutSource<CAcadColorBtnST>();
}
OW_CHILD_SCENARIO(acad_click)
{
    ClickWithoutSource<CAcadColorBtnST>();
}

TEST(ColorButton, WithoutASourcePaintingAndClickingAreFatal)
{
    const std::pair<const char*, const wchar_t*> cases[] = {{"rgb_paint", L".\\ColorBtnST : 198"},
                                                            {"rgb_click", L".\\ColorBtnST : 273"},
                                                            {"rgb_choose", L".\\ColorBtnST : 276"},
                                                            {"acad_paint", L".\\AcadColorBtnST : 147"},
                                                            {"acad_click", L".\\AcadColorBtnST : 249"}};
    for (const auto& [pszScenario, pszPlace] : cases)
        owtest::ExpectFailedAssert(owtest::RunChild(pszScenario),
                                   L"ASSERT(m_pCurrentColor)\n[" + std::wstring(pszPlace) + L"]\n");
}
