// The two colour buttons: look, number, palette, broken assumptions. The pop-up has a file of its own.

#include "ColorsDialog.h"

#include "FatalReport.h"
#include "ModalVisit.h"

#include <gtest/gtest.h>

#include <functional>

using Calls = std::vector<std::string>;

namespace
{
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255), kFace = RGB(180, 200, 180);
const CSize kSize(60, 26);

/// A button without a theme, painted in a state.
template <class Button, class Value>
void Paint(owtest::Surface& surface, Value value, UINT nItemState)
{
    Lone<Button> lone({surface.width(), surface.height()});
    lone.button.SetThemeHelper(nullptr);
    lone.button.SetFlat(FALSE);
    for (const BYTE back : {CButtonST::colorBackIn, CButtonST::colorBackOut, CButtonST::colorBackFocus})
        lone.button.SetColor(back, kFace);
    lone.button.SetColorSource(&value);
    PaintButton(lone.button, surface, nItemState);
}

/// Expects a closed outline, and that all inside it has one colour.
void ExpectBox(const owtest::Surface& picture, CRect rect, COLORREF line, COLORREF fill)
{
    const int nAll = picture.count(rect, line), nArea = rect.Width() * rect.Height();
    rect.DeflateRect(1, 1);
    EXPECT_EQ(nAll - picture.count(rect, line), nArea - rect.Width() * rect.Height());
    EXPECT_EQ(picture.count(rect, fill), rect.Width() * rect.Height());
}
} // namespace

TEST(ColorButtonPaint, ShowsASwatchAndAnArrow)
{
    const struct
    {
        UINT nState;
        CRect swatch;
        CPoint tip;
    } states[] = {{0, {5, 5, 46, 21}, {52, 14}},
                  {ODS_SELECTED, {6, 6, 47, 22}, {53, 14}},
                  {ODS_FOCUS, {6, 6, 45, 20}, {51, 13}}}; // inside the frame of the focused button
    for (const auto& [nState, swatch, tip] : states)
    {
        owtest::Surface rgb(kSize.cx, kSize.cy), acad(kSize.cx, kSize.cy), none(kSize.cx, kSize.cy);
        Paint<CColorBtnST>(rgb, DWORD{RGB(10, 20, 200)}, nState);
        ExpectBox(rgb, swatch, kBlack, RGB(10, 20, 200));
        Paint<CAcadColorBtnST>(acad, 30, nState);
        ExpectBox(acad, swatch, kBlack, RGB(255, 127, 0));
        Paint<CAcadColorBtnST>(none, 999, nState); // no colour
        ExpectBox(none, swatch, kBlack, kFace);
        for (const owtest::Surface* pPicture : {&rgb, &acad})
        {
            EXPECT_EQ(pPicture->at(tip.x, tip.y), kBlack);
            EXPECT_EQ(pPicture->at(tip.x, tip.y + 1), kFace);
        }
    }
    owtest::Surface narrow(19, 26);
    Paint<CColorBtnST>(narrow, DWORD{RGB(10, 20, 200)}, 0);
    EXPECT_EQ(narrow.at(5, 5), kFace) << "no room for a swatch";
}

TEST(ColorButtonPaint, DisabledShowsNoColor)
{
    const CRect area(5, 5, 46, 21);
    owtest::Surface rgb(kSize.cx, kSize.cy), acad(kSize.cx, kSize.cy);
    Paint<CColorBtnST>(rgb, DWORD{RGB(10, 20, 200)}, ODS_DISABLED);
    ExpectBox(rgb, area, kFace, kFace);
    EXPECT_EQ(rgb.at(52, 14), kWhite) << "the arrow is engraved";

    Paint<CAcadColorBtnST>(acad, 30, ODS_DISABLED);
    EXPECT_EQ(acad.at(52, 14), kWhite);
    ExpectBox(acad, {7, 7, 45, 20}, kFace, kFace);
    EXPECT_EQ(acad.count(area, ::GetSysColor(COLOR_BTNSHADOW)), 2 * (41 + 16) - 4) << "a dark frame";
    EXPECT_EQ(acad.count(area + CPoint(1, 1), kWhite), 2 * (41 + 16) - 6) << "over a light one";
}

TEST(ColorButton, IsAPushButtonWhateverTheTemplateSaysAndTheNumberIsMadeAnewEachTime)
{
    ColorsDialog dialog;
    CWnd& label = dialog.acad.m_numberLabel;
    for (const long dwStyle : {long(BS_OWNERDRAW), long(BS_AUTOCHECKBOX), BS_DEFPUSHBUTTON | WS_DISABLED})
    {
        ASSERT_TRUE(dialog.Open(dwStyle));
        EXPECT_FALSE(dialog.acad.m_bIsCheckBox || dialog.acad.GetDefault());
        EXPECT_EQ(label.m_hWnd, dialog.GetDlgItem(dialog.acad.m_nNumberLabelId)->m_hWnd);
        EXPECT_EQ(owtest::TextOf(label), L"30");
        EXPECT_EQ(label.IsWindowEnabled(), dwStyle != (BS_DEFPUSHBUTTON | WS_DISABLED));
        dialog.DestroyWindow();
    }
    ASSERT_TRUE(dialog.Open());
    const HWND hButton = dialog.acad.UnsubclassWindow();
    ::ShowWindow(hButton, SW_HIDE);
    dialog.acad.SetColorSource(nullptr);
    dialog.acad.SubclassWindow(hButton); // the same window once more
    EXPECT_EQ(owtest::TextOf(label), L"") << "no source, no number";
    EXPECT_FALSE(label.GetStyle() & WS_VISIBLE);
    dialog.acad.DestroyWindow();
    EXPECT_EQ(dialog.GetDlgItem(dialog.acad.m_nNumberLabelId), nullptr)
        << "neither that nor an older one stays";
}

TEST(AcadColorNumber, StandsBesideTheButtonInTheParentsFontAndFollowsIt)
{
    ColorsDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CWnd& label = dialog.acad.m_numberLabel;
    EXPECT_EQ(label.GetStyle() & (WS_VISIBLE | 0xFFFF), static_cast<DWORD>(WS_VISIBLE | SS_CENTERIMAGE));
    EXPECT_EQ(label.GetFont()->m_hObject, dialog.GetFont()->m_hObject);
    CClientDC dc(&dialog);
    const CGdiSelection font(dc, dialog.GetFont()->m_hObject);
    CRect button, rect;
    dialog.acad.GetWindowRect(button);
    label.GetWindowRect(rect);
    EXPECT_EQ(rect, CRect(CPoint(button.right + dc.GetTextExtent(L" ").cx, button.top),
                          CSize(dc.GetTextExtent(L"888").cx, button.Height())));

    for (const BOOL bEnable : {FALSE, TRUE})
    {
        dialog.acad.EnableWindow(bEnable);
        EXPECT_EQ(label.IsWindowEnabled(), bEnable);
    }
    dialog.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    dialog.index = 7;
    dialog.acad.SetColorSource(&dialog.index);
    dialog.rgb.SetColorSource(&dialog.color);
    EXPECT_EQ(owtest::TextOf(label), L"7");
    EXPECT_TRUE(dialog.acad.GetUpdateRect(nullptr) && dialog.rgb.GetUpdateRect(nullptr));
}

TEST(AcadColorClick, AColorThatTheHostGivesIsStoredAndTold)
{
    ColorsDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const auto visit = [&](const wchar_t* pszTyped, WORD nKey, const std::function<void()>& meanwhile)
    {
        const owtest::ModalVisit visit(
            [&](CWnd&)
            {
                owtest::Type(pszTyped);
                meanwhile();
                owtest::Press(nKey);
            });
        dialog.acad.m_numberLabel.SetWindowText(L"before");
        owtest::Click(dialog.acad);
        EXPECT_EQ(visit.Count(), 1);
        return dialog.acad.m_hWnd ? owtest::TextOf(dialog.acad.m_numberLabel) : L"gone";
    };
    EXPECT_EQ(visit(L"142", VK_RETURN, [] {}), L"142");
    EXPECT_EQ(dialog.index, 142);
    EXPECT_EQ(dialog.Take(), Calls{"acad 1002 142"}) << "and the dialog does not receive the click";

    EXPECT_EQ(visit(L"7", VK_ESCAPE, [] {}), L"before");
    EXPECT_EQ(visit(L"142", VK_RETURN, [] {}), L"142") << "the same colour";
    const auto takeSourceAway = [&]
    {
        dialog.acad.ShowWindow(SW_HIDE); // it must not be painted now
        dialog.acad.SetColorSource(nullptr);
    };
    EXPECT_EQ(visit(L"7", VK_RETURN, takeSourceAway), L"before");
    dialog.acad.SetColorSource(&dialog.index);
    dialog.acad.ShowWindow(SW_SHOW);
    EXPECT_EQ(visit(L"7", VK_RETURN, [&] { dialog.acad.DestroyWindow(); }), L"gone");
    EXPECT_EQ(dialog.index, 142);
    EXPECT_EQ(dialog.Take(), Calls{});
}

// ---- The palette in the profile ---------------------------------------------------------------------------

TEST(ColorProfile, KeepsThePaletteAndADamagedOneIsAsDelivered)
{
    CWinApp& app = *AfxGetApp();
    const auto colors = CColorBtnST::s_colorTable;
    const auto ranks = CColorBtnST::s_colorRecency;
    const auto change = []
    {
        CColorBtnST::s_colorTable[3] = RGB(7, 8, 9);
        std::swap(CColorBtnST::s_colorRecency[0], CColorBtnST::s_colorRecency[19]);
    };
    change();
    const auto changedColors = CColorBtnST::s_colorTable;
    const auto changedRanks = CColorBtnST::s_colorRecency;
    EXPECT_EQ(CColorBtnST::Store(), 1);
    CColorBtnST::Reset();
    EXPECT_TRUE(CColorBtnST::s_colorTable == colors && CColorBtnST::s_colorRecency == ranks);
    EXPECT_EQ(CColorBtnST::Load(), 1);
    EXPECT_TRUE(CColorBtnST::s_colorTable == changedColors && CColorBtnST::s_colorRecency == changedRanks);

    const std::pair<LPCTSTR, std::vector<BYTE>> damages[] = {
        {L"ColorTable", {}}, {L"ColorTable", std::vector<BYTE>(79)}, {L"ColorTable", std::vector<BYTE>(1000)},
        {L"MRU", {}},        {L"MRU", std::vector<BYTE>(21, 1)},     {L"MRU", std::vector<BYTE>(20, 20)}};
    for (auto [pszEntry, bytes] : damages)
    {
        change();
        EXPECT_EQ(CColorBtnST::Store(), 1);
        app.WriteProfileBinary(L"ColorData", pszEntry, bytes.data(), static_cast<UINT>(bytes.size()));
        EXPECT_EQ(CColorBtnST::Load(), 0);
        EXPECT_TRUE(CColorBtnST::s_colorTable == colors && CColorBtnST::s_colorRecency == ranks);
    }
    app.WriteProfileString(L"ColorData", nullptr, nullptr);
    const LPCTSTR pszName = std::exchange(app.m_pszProfileName, L"Z:\\no\\such\\folder\\x.ini");
    EXPECT_EQ(CColorBtnST::Store(), 0);
    app.m_pszProfileName = pszName;
}

// ---- Broken assumptions -----------------------------------------------------------------------------------

namespace
{
template <class Button>
void PaintWithoutSource()
{
    Lone<Button> lone(kSize);
    owtest::Surface surface(kSize.cx, kSize.cy);
    PaintButton(lone.button, surface);
}

void Click(const CButton& button)
{
    button.GetParent()->SendMessage(WM_COMMAND, 0, reinterpret_cast<LPARAM>(button.m_hWnd));
}
} // namespace

// clang-format off
OW_CHILD_SCENARIO(rgb_paint) { PaintWithoutSource<CColorBtnST>(); }
OW_CHILD_SCENARIO(rgb_click) { Click(Lone<CColorBtnST>(kSize).button); }
OW_CHILD_SCENARIO(acad_paint) { PaintWithoutSource<CAcadColorBtnST>(); }
OW_CHILD_SCENARIO(acad_click) { Click(Lone<CAcadColorBtnST>(kSize).button); }
// clang-format on

OW_CHILD_SCENARIO(rgb_choose)
{
    Lone<CColorBtnST> lone(kSize);
    DWORD color = 0;
    lone.button.SetColorSource(&color);
    const owtest::ModalVisit visit(
        [&](CWnd&)
        {
            lone.button.SetColorSource(nullptr);
            owtest::Press(VK_RETURN);
        });
    Click(lone.button);
}

// Wanted: an id is never given back.
OW_CHILD_SCENARIO(too_many_buttons)
{
    for (int i = 1; i <= 201; ++i)
    {
        CAcadColorBtnST button;
        std::printf("%d ", i);
        std::fflush(stdout);
    }
}

TEST(ColorButton, WithoutASourceOrAnIdItIsFatal)
{
    const std::pair<const char*, std::wstring> cases[] = {{"rgb_paint", L".\\ColorBtnST : 198"},
                                                          {"rgb_click", L".\\ColorBtnST : 273"},
                                                          {"rgb_choose", L".\\ColorBtnST : 276"},
                                                          {"acad_paint", L".\\AcadColorBtnST : 147"},
                                                          {"acad_click", L".\\AcadColorBtnST : 249"}};
    for (const auto& [pszScenario, place] : cases)
        owtest::ExpectFailedAssert(owtest::RunChild(pszScenario),
                                   L"ASSERT(m_pCurrentColor)\n[" + place + L"]\n");

    const owtest::ChildResult result = owtest::RunChild("too_many_buttons");
    EXPECT_TRUE(result.output.ends_with("200 ")) << result.output;
    owtest::ExpectFailedAssert(result, L"ASSERT(!m_listId.IsEmpty())\n[.\\ResourceIdPool : 37]\n");
}
