// The two colour buttons: look, number, palette, broken assumptions, and the pop-up in a user's hands.

#include "ButtonsDialog.h"

#include "DialogTemplate.h"
#include "FatalReport.h"
#include "Handles.h"
#include "Input.h"
#include "ModalVisit.h"
#include "module/GdiScope.h"

#include <gtest/gtest.h>

#include <acdocman.h>
#include <afxdlgs.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace
{
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255), kFace = RGB(180, 200, 180);
constexpr COLORREF kNewColor = RGB(1, 2, 3);
const CSize kSize(60, 26);
constexpr UINT kFirstCell = 10153;
constexpr int kRed = 13, kOther = 20; ///< parts of the pop-up

using Calls = std::vector<std::string>;
using Script = std::function<void(CWnd&)>;

class OpenAcadButton : public CAcadColorBtnST
{
public:
    using CAcadColorBtnST::CAcadColorBtnST;
    using CAcadColorBtnST::m_bIsCheckBox;
    using CAcadColorBtnST::m_bMouseOnButton;
    using CAcadColorBtnST::m_nNumberLabelId;
    using CAcadColorBtnST::m_numberLabel;
};

/// A dialog with a colour button of each kind, everything that they tell written down.
class ColorsDialog : public CDialog,
                     public AColorBtnSTNotificationHandler,
                     public AAcadColorBtnSTNotificationHandler
{
public:
    static constexpr int nRgb = 1001, nAcad = 1002;

    ~ColorsDialog() override { DestroyWindow(); }

    bool Open(DWORD dwAcadStyle = BS_PUSHBUTTON)
    {
        owtest::DialogTemplate form(L"Colours", 120, 60);
        form.Item(L"BUTTON", L"", nRgb, BS_OWNERDRAW | WS_TABSTOP, 4, 4, 40, 14)
            .Item(L"BUTTON", L"", nAcad, dwAcadStyle | WS_TABSTOP, 4, 24, 40, 14);
        if (!CreateIndirect(form.get(), nullptr))
            return false;
        ModifyStyle(0, WS_CLIPCHILDREN);
        SetWindowPos(nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
        return owtest::Activate(m_hWnd);
    }

    struct Rgb : CColorBtnST
    {
        using CColorBtnST::CColorBtnST;
        void OnClickedHook() override { static_cast<ColorsDialog*>(GetParent())->calls.push_back("hook"); }
    } rgb{this};
    OpenAcadButton acad{this};
    DWORD color = RGB(255, 0, 0);
    int index = 30;
    std::function<void()> then = [] {}; ///< at the end of the handlers
    std::vector<std::string> calls;
    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    void OnColorChosen(int nId, int nColor) override
    {
        calls.push_back(std::to_string(nId) + ' ' + std::to_string(nColor));
        then();
    }
    void OnAcadColorChosen(int nId, int nColor) override
    {
        OnColorChosen(nId, nColor);
        EXPECT_TRUE(acad.GetUpdateRect(nullptr)) << "also in a dialog that paints without its controls";
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        rgb.SetColorSource(&color); // before there is a window
        acad.SetColorSource(&index);
        DDX_Control(pDX, nRgb, rgb);
        DDX_Control(pDX, nAcad, acad);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == BN_CLICKED && !pHandlerInfo)
            calls.push_back("dialog " + std::to_string(nID));
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};

/// A button without a theme, painted in a state.
template <class Button, class Value>
std::unique_ptr<owtest::Surface> Paint(Value value, UINT nItemState)
{
    Lone<Button> lone(kSize);
    lone.button.SetThemeHelper(nullptr);
    lone.button.SetFlat(FALSE);
    for (const BYTE back : {CButtonST::colorBackIn, CButtonST::colorBackOut, CButtonST::colorBackFocus})
        lone.button.SetColor(back, kFace);
    lone.button.SetColorSource(&value);
    auto pPicture = std::make_unique<owtest::Surface>(kSize.cx, kSize.cy);
    PaintButton(lone.button, *pPicture, nItemState);
    return pPicture;
}

/// Expects a closed outline, and that all inside it has one colour.
void ExpectBox(const owtest::Surface& picture, CRect rect, COLORREF line, COLORREF fill)
{
    const int nAll = picture.count(rect, line), nArea = rect.Width() * rect.Height();
    rect.DeflateRect(1, 1);
    EXPECT_EQ(nAll - picture.count(rect, line), nArea - rect.Width() * rect.Height());
    EXPECT_EQ(picture.count(rect, fill), rect.Width() * rect.Height());
}

HWND Part(CWnd& popup, int nIndex)
{
    return popup.GetDlgItem(kFirstCell + nIndex)->m_hWnd;
}

/// Whether the pop-up gets so far: open, with the mouse; or over.
bool Becomes(bool bOpen, CWnd& popup)
{
    return owtest::PumpUntil(
        [&] { return !popup.ContinueModal() == !bOpen && (CWnd::GetCapture() == &popup) == bOpen; });
}

void VisitOther(CWnd& popup, const Script& script)
{
    const owtest::ModalVisit visit(script);
    owtest::Click(Part(popup, kOther));
    EXPECT_EQ(visit.Count(), 1);
}

class ColorButtons : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Open()); }
    void TearDown() override
    {
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
        CColorBtnST::Reset();
    }

    /// Opens the pop-up by a click, and closes it by what the script does, or else by Escape.
    void Visit(const Script& script)
    {
        const owtest::ModalVisit visit(
            [&](CWnd& popup)
            {
                EXPECT_TRUE(Becomes(true, popup));
                script(popup);
            });
        owtest::Click(m_dialog.rgb);
        EXPECT_EQ(visit.Count(), 1);
        EXPECT_EQ(::GetCapture(), nullptr);
    }

    /// From red; what stands in the variable afterwards, and which entry was used last.
    void ExpectChoice(const Script& script, COLORREF cr, int nFirst)
    {
        m_dialog.color = RGB(255, 0, 0);
        Visit(script);
        EXPECT_EQ(m_dialog.color, cr);
        const Calls told{"hook", "1001 " + std::to_string(cr), "dialog 1001"};
        EXPECT_EQ(m_dialog.Take(), cr != RGB(255, 0, 0) ? told : Calls{"dialog 1001"});
        auto ranks = CColorBtnST::s_colorRecency;
        EXPECT_EQ(ranks[nFirst], 1);
        std::ranges::sort(ranks);
        EXPECT_EQ(std::ranges::adjacent_find(ranks), ranks.end());
        EXPECT_EQ(ranks.back(), 20);
    }
    void ExpectCancel(const Script& script)
    {
        const auto ranks = CColorBtnST::s_colorRecency;
        ExpectChoice(script, RGB(255, 0, 0), 0);
        EXPECT_EQ(CColorBtnST::s_colorRecency, ranks);
    }

    ColorsDialog m_dialog;
    CWnd& m_label = m_dialog.acad.m_numberLabel;
};
using ColorPopup = ColorButtons;
} // namespace

// ---- Look and number ---------------------------------------------------------------------------------------

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
        const auto expect = [&](const owtest::Surface& picture, COLORREF cr)
        {
            ExpectBox(picture, swatch, kBlack, cr);
            EXPECT_TRUE(picture.at(tip.x, tip.y) == kBlack && picture.at(tip.x, tip.y + 1) == kFace);
        };
        expect(*Paint<CColorBtnST>(DWORD{kNewColor}, nState), kNewColor);
        expect(*Paint<CAcadColorBtnST>(30, nState), RGB(255, 127, 0));
        expect(*Paint<CAcadColorBtnST>(999, nState), kFace); // no colour
    }
}

TEST(ColorButtonPaint, DisabledShowsNoColor)
{
    const CRect area(5, 5, 46, 21);
    const auto pRgb = Paint<CColorBtnST>(DWORD{kNewColor}, ODS_DISABLED);
    const auto pAcad = Paint<CAcadColorBtnST>(30, ODS_DISABLED);
    EXPECT_TRUE(pRgb->at(52, 14) == kWhite && pAcad->at(52, 14) == kWhite) << "the arrow is engraved";
    ExpectBox(*pRgb, area, kFace, kFace);
    ExpectBox(*pAcad, {7, 7, 45, 20}, kFace, kFace);
    EXPECT_EQ(pAcad->count(area, ::GetSysColor(COLOR_BTNSHADOW)), 2 * (41 + 16) - 4) << "a dark frame";
    EXPECT_EQ(pAcad->count(area + CPoint(1, 1), kWhite), 2 * (41 + 16) - 6) << "over a light one";
}

TEST_F(ColorButtons, ArePushButtonsWhateverTheTemplateSaysAndMakeTheNumberAnewEachTime)
{
    for (const long dwStyle : {long(BS_OWNERDRAW), long(BS_AUTOCHECKBOX), BS_DEFPUSHBUTTON | WS_DISABLED})
    {
        m_dialog.DestroyWindow();
        ASSERT_TRUE(m_dialog.Open(dwStyle));
        EXPECT_FALSE(m_dialog.acad.m_bIsCheckBox || m_dialog.acad.GetDefault());
        EXPECT_EQ(m_dialog.rgb.GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
        EXPECT_EQ(m_label.m_hWnd, m_dialog.GetDlgItem(m_dialog.acad.m_nNumberLabelId)->m_hWnd);
        EXPECT_EQ(owtest::TextOf(m_label), L"30");
        EXPECT_EQ(m_label.IsWindowEnabled(), dwStyle != (BS_DEFPUSHBUTTON | WS_DISABLED));
    }
    const HWND hButton = m_dialog.acad.UnsubclassWindow();
    ::ShowWindow(hButton, SW_HIDE);
    m_dialog.acad.SetColorSource(nullptr);
    m_dialog.acad.SubclassWindow(hButton); // the same window once more
    EXPECT_EQ(owtest::TextOf(m_label), L"") << "no source, no number";
    EXPECT_FALSE(m_label.GetStyle() & WS_VISIBLE);
    m_dialog.acad.DestroyWindow();
    EXPECT_EQ(m_dialog.GetDlgItem(m_dialog.acad.m_nNumberLabelId), nullptr) << "nor an older one";
}

TEST_F(ColorButtons, TheNumberStandsBesideTheButtonInTheParentsFontAndFollowsIt)
{
    EXPECT_EQ(m_label.GetStyle() & (WS_VISIBLE | 0xFFFF), static_cast<DWORD>(WS_VISIBLE | SS_CENTERIMAGE));
    EXPECT_EQ(m_label.GetFont()->m_hObject, m_dialog.GetFont()->m_hObject);
    CClientDC dc(&m_dialog);
    const CGdiSelection font(dc, m_dialog.GetFont()->m_hObject);
    CRect button, rect;
    m_dialog.acad.GetWindowRect(button);
    m_label.GetWindowRect(rect);
    EXPECT_EQ(rect, CRect(CPoint(button.right + dc.GetTextExtent(L" ").cx, button.top),
                          CSize(dc.GetTextExtent(L"888").cx, button.Height())));

    m_dialog.acad.SetFlat(TRUE);
    m_dialog.acad.m_bMouseOnButton = TRUE;
    m_dialog.acad.EnableWindow(FALSE);
    EXPECT_FALSE(m_label.IsWindowEnabled() || m_dialog.acad.m_bMouseOnButton);
    m_dialog.acad.EnableWindow(TRUE);
    EXPECT_TRUE(m_label.IsWindowEnabled());

    m_dialog.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    m_dialog.acad.SetColorSource(&(m_dialog.index = 7));
    m_dialog.rgb.SetColorSource(&m_dialog.color);
    EXPECT_EQ(owtest::TextOf(m_label), L"7");
    EXPECT_TRUE(m_dialog.acad.GetUpdateRect(nullptr) && m_dialog.rgb.GetUpdateRect(nullptr));
}

TEST_F(ColorButtons, AColorThatTheHostGivesIsStoredAndTold)
{
    OpenAcadButton& acad = m_dialog.acad;
    const auto visit = [&](const wchar_t* pszTyped, WORD nKey, const std::function<void()>& meanwhile)
    {
        const owtest::ModalVisit visit(
            [&](CWnd&)
            {
                owtest::Type(pszTyped);
                meanwhile();
                owtest::Press(nKey);
            });
        m_label.SetWindowText(L"before");
        owtest::Click(acad);
        EXPECT_EQ(visit.Count(), 1);
        return acad.m_hWnd ? owtest::TextOf(m_label) : L"gone";
    };
    EXPECT_EQ(visit(L"142", VK_RETURN, [] {}), L"142");
    EXPECT_EQ(m_dialog.index, 142);
    EXPECT_EQ(m_dialog.Take(), Calls{"1002 142"}) << "and the dialog does not receive the click";

    EXPECT_EQ(visit(L"7", VK_ESCAPE, [] {}), L"before");
    EXPECT_EQ(visit(L"142", VK_RETURN, [] {}), L"142") << "the same colour";
    const auto takeSourceAway = [&]
    {
        acad.ShowWindow(SW_HIDE); // it must not be painted now
        acad.SetColorSource(nullptr);
    };
    EXPECT_EQ(visit(L"7", VK_RETURN, takeSourceAway), L"before");
    acad.SetColorSource(&m_dialog.index);
    acad.ShowWindow(SW_SHOW);
    EXPECT_EQ(visit(L"7", VK_RETURN, [&] { acad.DestroyWindow(); }), L"gone");
    EXPECT_EQ(m_dialog.index, 142);
    EXPECT_EQ(m_dialog.Take(), Calls{});
}

// ---- The pop-up --------------------------------------------------------------------------------------------

TEST_F(ColorPopup, OpensBelowItsAnchorOrWhereTheScreenHasRoom)
{
    CRect button, rect;
    const Script look = [&](CWnd& popup) { popup.GetWindowRect(rect); };
    m_dialog.rgb.GetWindowRect(button);
    Visit(look);
    EXPECT_EQ(rect.TopLeft(), CPoint(button.left, button.bottom));

    const int right = ::GetSystemMetrics(SM_CXSCREEN), bottom = ::GetSystemMetrics(SM_CYSCREEN);
    const CSize size = rect.Size();
    CPoint mouse;
    ::GetCursorPos(&mouse);
    const std::pair<CRect, CPoint> anchors[] = {
        {{200, 300, 240, bottom - size.cy}, {200, bottom - size.cy}}, // it just fits
        {{200, bottom - 200, 240, bottom - size.cy + 1}, {200, bottom - 200 - size.cy}},
        {{right - 10, 300, right, 320}, {right - size.cx, 320}},
        {{0, 0, 0, 0}, mouse}};
    for (const auto& [anchor, corner] : anchors)
    {
        CColorSelectDialog dialog(nullptr, anchor.IsRectNull() ? nullptr : &anchor);
        const owtest::ModalVisit visit(look);
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(rect.TopLeft(), corner);
    }
}

TEST_F(ColorPopup, ShowsThePaletteAndMarksTheColorOfTheButton)
{
    Visit(
        [&](CWnd& popup)
        {
            EXPECT_EQ(owtest::TextOf(*popup.GetDlgItem(kFirstCell + kRed)), L"255, 0, 0") << "read aloud";
            for (int i = 0; i < CColorBtnST::paletteSize; ++i)
            {
                CRect rect;
                ::GetClientRect(Part(popup, i), rect);
                owtest::Surface picture(rect.Width(), rect.Height());
                owtest::Capture(Part(popup, i), picture);
                EXPECT_EQ(picture.at(0, 0) == 0 && picture.at(1, 1) == RGB(255, 255, 255), i == kRed) << i;
                if (i == kRed)
                    rect.DeflateRect(2, 2);
                EXPECT_EQ(picture.extent(CColorBtnST::s_colorTable[i]), rect) << i;
            }
        });
}

TEST_F(ColorPopup, AClickOnACellChoosesIt)
{
    ExpectChoice([](CWnd& popup) { owtest::Click(Part(popup, 4)); }, 0x800000, 4);
    EXPECT_EQ(CColorBtnST::s_colorRecency[0], 2) << "those before it move on";
    EXPECT_EQ(CColorBtnST::s_colorRecency[5], 11) << "those behind it stay";
    ExpectChoice([](CWnd& popup) { owtest::Click(Part(popup, kRed)); }, 0xFF, kRed); // tells nobody
}

TEST_F(ColorPopup, AClickOutsideCancelsWhateverCameBefore)
{
    ExpectCancel(
        [&](CWnd& popup)
        {
            owtest::Click(popup, CPoint(1, 1)); // beside the cells
            EXPECT_TRUE(Becomes(true, popup));
            owtest::ButtonDown(popup, CPoint(1, 1));
            owtest::MoveTo(Part(popup, 6), CPoint(5, 5));
            owtest::ButtonUp();
            EXPECT_EQ(::GetCapture(), Part(popup, 6)) << "to the cell it was a press";
            owtest::Click(Part(popup, 9));
            EXPECT_TRUE(Becomes(true, popup)) << "it was left, and gives the mouse back";
            VisitOther(popup,
                       [](CWnd& window)
                       {
                           const auto& dialog = static_cast<CColorDialog&>(window);
                           EXPECT_EQ(dialog.m_cc.rgbResult, RGB(255, 0, 0)) << "where it begins";
                           EXPECT_TRUE(dialog.m_cc.Flags & CC_FULLOPEN);
                           owtest::Press(VK_ESCAPE);
                       });
            EXPECT_TRUE(Becomes(true, popup)) << "the pop-up stays";
            owtest::Click(m_dialog, CPoint(100, 60));
            EXPECT_TRUE(Becomes(false, popup));
        });
}

TEST_F(ColorPopup, IsOverWhenAnotherWindowTakesTheMouseOrTheForeground)
{
    for (const auto& steal : {std::function<void()>([&] { m_dialog.rgb.SetCapture(); }),
                              {[] { ::SetForegroundWindow(::GetDesktopWindow()); }}})
    {
        ExpectCancel(
            [&](CWnd& popup)
            {
                steal();
                EXPECT_TRUE(Becomes(false, popup));
                ::ReleaseCapture();
            });
    }
}

TEST_F(ColorPopup, ArrowsAndTabMoveAndEnterAndSpaceChoose)
{
    const auto press = [&](CWnd& popup, std::initializer_list<std::pair<WORD, int>> keys)
    {
        for (const auto& [nKey, nPart] : keys)
        {
            owtest::Press(nKey);
            EXPECT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == Part(popup, nPart); })) << nPart;
        }
    };
    ExpectChoice(
        [&](CWnd& popup)
        {
            press(popup, {{VK_LEFT, 12}, {VK_LEFT, 11}, {VK_RIGHT, 12}, {VK_UP, 8}, {VK_UP, 4}, {VK_UP, 0}});
            press(popup, {{VK_UP, 0}, {VK_LEFT, 0}, {VK_RIGHT, 1}, {VK_TAB, kOther}, {VK_TAB, 1}});
            press(popup, {{VK_DOWN, 5}, {VK_DOWN, 9}, {VK_DOWN, 13}, {VK_DOWN, 17}, {VK_DOWN, kOther}});
            press(popup, {{VK_DOWN, kOther}, {VK_LEFT, 19}, {VK_RIGHT, kOther}, {VK_UP, 16}});
            owtest::Press(VK_RETURN);
        },
        0xFF0000, 16);
    CColorBtnST::s_colorTable[kRed] = kNewColor; // without the button's colour the first cell has the focus
    ExpectChoice(
        [&](CWnd& popup)
        {
            press(popup, {{VK_RIGHT, 1}});
            owtest::Press(VK_SPACE);
        },
        0x000080, 1);
}

// As the system sends it while the key that opened the pop-up is still down.
TEST_F(ColorPopup, AKeyThatIsHeldFromOpeningItDoesNothing)
{
    for (const WPARAM nKey : {VK_RETURN, VK_SPACE})
    {
        ExpectCancel(
            [=](CWnd& popup)
            {
                ::PostMessage(Part(popup, kRed), WM_KEYDOWN, nKey, 1 | KF_REPEAT << 16);
                ::PostMessage(Part(popup, kRed), WM_KEYUP, nKey, 1 | (KF_REPEAT | KF_UP) << 16);
                owtest::Pump();
                EXPECT_TRUE(Becomes(true, popup));
            });
    }
}

TEST_F(ColorPopup, OtherReplacesTheColorThatWasNotUsedForLongestUnlessItIsThere)
{
    constexpr int kRedBox = 706; ///< the boxes for green and blue have the next ids
    const Script accept = [](CWnd& window)
    {
        for (int i = 0; i < 3; ++i)
        {
            owtest::Click(*window.GetDlgItem(kRedBox + i));
            window.SendDlgItemMessage(kRedBox + i, EM_SETSEL, 0, -1);
            owtest::Type(std::to_wstring(kNewColor >> 8 * i & 0xFF));
        }
        owtest::Press(VK_RETURN);
    };
    const Script acceptNew = [&](CWnd& popup) { VisitOther(popup, accept); };
    ExpectChoice(acceptNew, kNewColor, 10);
    EXPECT_EQ(CColorBtnST::s_colorTable[10], kNewColor);
    EXPECT_EQ(CColorBtnST::s_colorRecency[9], 20);

    CColorBtnST::s_colorTable.fill(RGB(9, 9, 9));
    CColorBtnST::s_colorTable[7] = CColorBtnST::s_colorTable[8] = kNewColor;
    const auto before = CColorBtnST::s_colorTable;
    ExpectChoice(acceptNew, kNewColor, 7);
    EXPECT_EQ(CColorBtnST::s_colorTable, before);
}

TEST_F(ColorPopup, EndsWithWindowDialogOrObjectAndTellsNobody)
{
    std::unique_ptr<CColorBtnST> pButton;
    const Script endings[] = {[&](CWnd&) { pButton->DestroyWindow(); },
                              [&](CWnd&) { m_dialog.DestroyWindow(); }, [&](CWnd&) { pButton.reset(); }};
    for (const Script& end : endings)
    {
        m_dialog.rgb.UnsubclassWindow();
        pButton = std::make_unique<CColorBtnST>(&m_dialog);
        ASSERT_TRUE(pButton->SubclassDlgItem(ColorsDialog::nRgb, &m_dialog));
        pButton->SetColorSource(&m_dialog.color);
        const owtest::ModalVisit visit(
            [&](CWnd& popup)
            {
                VisitOther(popup, end);
                EXPECT_TRUE(Becomes(false, popup));
            });
        owtest::Click(*pButton);
        EXPECT_EQ(m_dialog.color, RGB(255, 0, 0));
        EXPECT_EQ(m_dialog.Take(), Calls{});
        m_dialog.DestroyWindow();
        ASSERT_TRUE(m_dialog.Open());
    }
}

TEST_F(ColorPopup, TheHandlerMayCloseTheDialogWhichThenHearsNoMore)
{
    m_dialog.then = [&] { m_dialog.DestroyWindow(); };
    Visit([](CWnd& popup) { owtest::Click(Part(popup, 4)); });
    EXPECT_EQ(m_dialog.Take(), (Calls{"hook", "1001 " + std::to_string(0x800000)}));
}

TEST_F(ColorPopup, IsThereOnceAndGivesBackWhatItTook)
{
    const auto use = [&](CWnd& popup)
    {
        m_dialog.SendMessage(WM_COMMAND, ColorsDialog::nRgb, reinterpret_cast<LPARAM>(m_dialog.rgb.m_hWnd));
        EXPECT_EQ(m_dialog.Take().back(), "dialog 1001");
        VisitOther(popup, [](CWnd&) { owtest::Press(VK_ESCAPE); });
        owtest::Click(Part(popup, 4));
        AfxGetApp()->OnIdle(1);
    };
    Visit(use);
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 5; ++i)
        Visit(use);
    EXPECT_EQ(owtest::CountHandles(), before);
}

// ---- The palette in the profile ---------------------------------------------------------------------------

TEST(ColorProfile, KeepsThePaletteWhateverTheLengthOfItsEntries)
{
    CWinApp& app = *AfxGetApp();
    auto& colors = CColorBtnST::s_colorTable;
    auto& ranks = CColorBtnST::s_colorRecency;
    const auto delivered = std::pair(colors, ranks);
    const auto loads = [&](LPCTSTR pszEntry = nullptr, std::vector<BYTE> bytes = {})
    {
        CColorBtnST::Reset();
        EXPECT_TRUE(std::pair(colors, ranks) == delivered);
        colors[3] = kNewColor;
        std::swap(ranks[0], ranks[19]);
        EXPECT_EQ(CColorBtnST::Store(), 1);
        if (pszEntry && bytes.empty())
            app.WriteProfileString(L"ColorData", pszEntry, nullptr);
        else if (pszEntry)
            app.WriteProfileBinary(L"ColorData", pszEntry, bytes.data(), static_cast<UINT>(bytes.size()));
        colors.fill(0);
        ranks.fill(0);
        return CColorBtnST::Load();
    };
    EXPECT_EQ(loads(), 1);
    EXPECT_TRUE(colors[3] == kNewColor && ranks[19] == 1);
    for (const LPCTSTR pszEntry : {L"ColorTable", L"MRU"})
    {
        EXPECT_EQ(loads(pszEntry), 0);
        EXPECT_TRUE(std::pair(colors, ranks) == delivered) << "an entry is missing";
    }
    EXPECT_EQ(loads(L"ColorTable", {1, 2, 3, 0, 9}), 1);
    EXPECT_TRUE(colors[0] == kNewColor && colors[1] == 9 && colors[2] == 0 && ranks[19] == 1);
    EXPECT_EQ(loads(L"MRU", std::vector<BYTE>(30000, 7)), 1);
    EXPECT_EQ(std::ranges::count(ranks, 7), std::ssize(ranks));
    EXPECT_EQ(colors[3], kNewColor);
    CColorBtnST::Reset();

    app.WriteProfileString(L"ColorData", nullptr, nullptr);
    const LPCTSTR pszName = std::exchange(app.m_pszProfileName, L"Z:\\no\\folder\\x.ini");
    EXPECT_EQ(CColorBtnST::Store(), 0);
    app.m_pszProfileName = pszName;
}

// ---- Broken assumptions -----------------------------------------------------------------------------------

namespace
{
void Click(const CButton& button)
{
    button.GetParent()->SendMessage(WM_COMMAND, 0, reinterpret_cast<LPARAM>(button.m_hWnd));
}

template <class Button>
void UseWithoutSource(bool bClick)
{
    Lone<Button> lone(kSize);
    owtest::Surface surface(kSize.cx, kSize.cy);
    bClick ? Click(lone.button) : PaintButton(lone.button, surface);
}
} // namespace

// clang-format off
OW_CHILD_SCENARIO(rgb_paint) { UseWithoutSource<CColorBtnST>(false); }
OW_CHILD_SCENARIO(rgb_click) { UseWithoutSource<CColorBtnST>(true); }
OW_CHILD_SCENARIO(acad_paint) { UseWithoutSource<CAcadColorBtnST>(false); }
OW_CHILD_SCENARIO(acad_click) { UseWithoutSource<CAcadColorBtnST>(true); }
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
