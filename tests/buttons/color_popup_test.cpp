// The pop-up of a colour button in a user's hands, with real mouse and keyboard.

#include "ColorsDialog.h"

#include "Handles.h"
#include "ModalVisit.h"

#include <gtest/gtest.h>

#include <acdocman.h>
#include <afxdlgs.h>

#include <algorithm>
#include <memory>

namespace
{
constexpr UINT kFirstCell = 10153;
constexpr int kRed = 13, kOther = 20; ///< parts of the pop-up
constexpr COLORREF kNewColor = RGB(1, 2, 3);

using Calls = std::vector<std::string>;
using Script = std::function<void(CWnd&)>;

HWND Part(CWnd& popup, int nIndex)
{
    return popup.GetDlgItem(kFirstCell + nIndex)->m_hWnd;
}

bool IsOver(CWnd& popup)
{
    return owtest::PumpUntil([&] { return !popup.ContinueModal(); });
}

/// Whether the pop-up is open and has the mouse.
bool IsInUse(CWnd& popup)
{
    return owtest::PumpUntil([&] { return popup.ContinueModal() && CWnd::GetCapture() == &popup; });
}

void VisitOther(CWnd& popup, const Script& script)
{
    const owtest::ModalVisit visit(script);
    owtest::Click(Part(popup, kOther));
    EXPECT_EQ(visit.Count(), 1);
}

/// Types a colour into the system's dialog, and accepts it.
void Accept(CWnd& window, COLORREF cr)
{
    constexpr int kRedBox = 706; ///< the boxes for green and blue have the next ids
    for (int i = 0; i < 3; ++i)
    {
        CWnd& box = *window.GetDlgItem(kRedBox + i);
        owtest::Click(box);
        box.SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(std::to_wstring(cr >> 8 * i & 0xFF));
    }
    owtest::Click(*window.GetDlgItem(IDOK));
}

class ColorPopup : public ::testing::Test
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
                EXPECT_TRUE(IsInUse(popup));
                script(popup);
            });
        owtest::Click(m_dialog.rgb);
        EXPECT_EQ(visit.Count(), 1);
        EXPECT_EQ(::GetCapture(), nullptr);
    }

    /// From red; what stands in the variable afterwards, and which entry was used last.
    void ExpectChoice(const char* pszName, const Script& script, COLORREF cr, int nFirst)
    {
        SCOPED_TRACE(pszName);
        m_dialog.color = RGB(255, 0, 0);
        Visit(script);
        EXPECT_EQ(m_dialog.color, cr);
        const Calls told{"hook", "rgb 1001 " + std::to_string(cr), "dialog 1001"};
        EXPECT_EQ(m_dialog.Take(), cr != RGB(255, 0, 0) ? told : Calls{"dialog 1001"});
        auto ranks = CColorBtnST::s_colorRecency;
        EXPECT_EQ(ranks[nFirst], 1);
        std::ranges::sort(ranks);
        for (size_t i = 0; i < ranks.size(); ++i)
            EXPECT_EQ(ranks[i], i + 1);
    }
    void ExpectCancel(const char* pszName, const Script& script)
    {
        const auto ranks = CColorBtnST::s_colorRecency;
        ExpectChoice(pszName, script, RGB(255, 0, 0), 0);
        EXPECT_EQ(CColorBtnST::s_colorRecency, ranks) << pszName;
    }
    void ClickOutside() { owtest::Click(m_dialog, CPoint(100, 60)); }

    ColorsDialog m_dialog;
};
} // namespace

TEST_F(ColorPopup, OpensBelowItsAnchorOrWhereTheScreenHasRoom)
{
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    owtest::MoveTo(m_dialog, CPoint(5, 5));
    CPoint mouse;
    ::GetCursorPos(&mouse);
    for (const CPoint at : {CPoint(100, 100), CPoint(screen.cx - 50, 100), CPoint(100, screen.cy - 60)})
    {
        m_dialog.SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        CRect button;
        m_dialog.rgb.GetWindowRect(button);
        const RECT rectangle = button;
        const std::tuple<CWnd*, const RECT*, CRect> anchors[] = {{&m_dialog.rgb, nullptr, button},
                                                                 {nullptr, &rectangle, button},
                                                                 {nullptr, nullptr, {mouse, mouse}}};
        for (const auto& [pOwner, pRectangle, anchor] : anchors)
        {
            CColorSelectDialog dialog(pOwner, pRectangle);
            CRect rect;
            const owtest::ModalVisit visit([&](CWnd& popup) { popup.GetWindowRect(rect); });
            EXPECT_EQ(dialog.DoModal(), IDCANCEL);
            EXPECT_EQ(rect.left, (std::min)(anchor.left, screen.cx - rect.Width()));
            if (anchor.bottom + rect.Height() <= screen.cy)
                EXPECT_EQ(rect.top, anchor.bottom);
            else
                EXPECT_EQ(rect.bottom, anchor.top);
        }
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

TEST_F(ColorPopup, TheMouseChooses)
{
    ExpectChoice(
        "a cell", [](CWnd& popup) { owtest::Click(Part(popup, 4)); }, 0x800000, 4);
    EXPECT_EQ(CColorBtnST::s_colorRecency[0], 2) << "those before it move on";
    EXPECT_EQ(CColorBtnST::s_colorRecency[5], 11) << "those behind it stay";
    ExpectChoice(
        "the same colour", [](CWnd& popup) { owtest::Click(Part(popup, kRed)); }, 0xFF, kRed);
    // A part hears of a press when the mouse is released over it, and is chosen by the next click.
    ExpectChoice(
        "a press beside the cells and a release on one",
        [](CWnd& popup)
        {
            owtest::ButtonDown(popup, CPoint(1, 1));
            owtest::MoveTo(Part(popup, 6), CPoint(5, 5));
            owtest::ButtonUp();
            EXPECT_EQ(::GetCapture(), Part(popup, 6));
            owtest::Click(Part(popup, 6));
        },
        0x808000, 6);
}

TEST_F(ColorPopup, CancelsWhenTheUserGoesElsewhere)
{
    ExpectCancel("outside",
                 [&](CWnd& popup)
                 {
                     owtest::Click(popup, CPoint(1, 1)); // beside the cells
                     EXPECT_TRUE(IsInUse(popup));
                     ClickOutside();
                     EXPECT_TRUE(IsOver(popup));
                 });
    ExpectCancel("a cell that is left while pressed gives the mouse back",
                 [&](CWnd& popup)
                 {
                     owtest::ButtonDown(Part(popup, 2), CPoint(5, 5));
                     EXPECT_EQ(::GetCapture(), Part(popup, 2));
                     owtest::MoveTo(Part(popup, 9), CPoint(5, 5));
                     owtest::ButtonUp();
                     EXPECT_TRUE(IsInUse(popup));
                     ClickOutside();
                     EXPECT_TRUE(IsOver(popup));
                 });
    ExpectCancel("another window takes the mouse",
                 [&](CWnd& popup)
                 {
                     CWnd* pThief = m_dialog.GetDlgItem(ColorsDialog::eOther);
                     pThief->SetCapture();
                     EXPECT_TRUE(IsOver(popup));
                     EXPECT_EQ(CWnd::GetCapture(), pThief);
                     ::ReleaseCapture();
                 });
    ExpectCancel("another application comes to the front",
                 [](CWnd& popup)
                 {
                     ::SetForegroundWindow(::GetDesktopWindow());
                     EXPECT_TRUE(IsOver(popup));
                 });
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
        "Enter",
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
        "Space",
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
        ExpectCancel("held",
                     [=](CWnd& popup)
                     {
                         ::PostMessage(Part(popup, kRed), WM_KEYDOWN, nKey, 1 | KF_REPEAT << 16);
                         ::PostMessage(Part(popup, kRed), WM_KEYUP, nKey, 1 | (KF_REPEAT | KF_UP) << 16);
                         owtest::Pump();
                         EXPECT_TRUE(IsInUse(popup));
                     });
    }
}

TEST_F(ColorPopup, OtherReplacesTheColorThatWasNotUsedForLongestUnlessItIsThere)
{
    const auto acceptNew = [&](CWnd& popup)
    { VisitOther(popup, [](CWnd& window) { Accept(window, kNewColor); }); };
    ExpectChoice("new", acceptNew, kNewColor, 10);
    EXPECT_EQ(CColorBtnST::s_colorTable[10], kNewColor);
    EXPECT_EQ(CColorBtnST::s_colorRecency[9], 20);

    CColorBtnST::s_colorTable.fill(RGB(9, 9, 9));
    CColorBtnST::s_colorTable[7] = CColorBtnST::s_colorTable[8] = kNewColor;
    const auto before = CColorBtnST::s_colorTable;
    ExpectChoice("there already, twice", acceptNew, kNewColor, 7);
    EXPECT_EQ(CColorBtnST::s_colorTable, before);
}

TEST_F(ColorPopup, OtherCancelledLeavesItOpenWithTheMouse)
{
    ExpectCancel("Other... and then outside",
                 [&](CWnd& popup)
                 {
                     VisitOther(popup,
                                [](CWnd& window)
                                {
                                    const auto& dialog = static_cast<CColorDialog&>(window);
                                    EXPECT_EQ(dialog.m_cc.rgbResult, RGB(255, 0, 0)) << "where it begins";
                                    EXPECT_TRUE(dialog.m_cc.Flags & CC_FULLOPEN);
                                    owtest::Press(VK_ESCAPE);
                                });
                     EXPECT_TRUE(IsInUse(popup));
                     ClickOutside();
                     EXPECT_TRUE(IsOver(popup));
                 });
}

// Nothing is written, and nobody told.
TEST_F(ColorPopup, EndsWithTheButtonOrItsDialog)
{
    const Script endings[] = {[&](CWnd&) { m_dialog.rgb.DestroyWindow(); },
                              [&](CWnd&) { m_dialog.DestroyWindow(); }};
    for (const Script& end : endings)
    {
        for (const bool bOther : {false, true})
        {
            Visit(bOther ? Script([&](CWnd& popup) { VisitOther(popup, end); }) : end);
            EXPECT_EQ(m_dialog.color, RGB(255, 0, 0));
            EXPECT_EQ(m_dialog.Take(), Calls{});
            m_dialog.DestroyWindow();
            ASSERT_TRUE(m_dialog.Open());
        }
    }
    m_dialog.rgb.UnsubclassWindow();
    auto pButton = std::make_unique<CColorBtnST>(&m_dialog);
    ASSERT_TRUE(pButton->SubclassDlgItem(ColorsDialog::eRgb, &m_dialog));
    pButton->SetColorSource(&m_dialog.color);
    const owtest::ModalVisit visit([&](CWnd&) { pButton.reset(); });
    owtest::Click(*pButton);
    EXPECT_EQ(visit.Count(), 1);
    EXPECT_EQ(m_dialog.Take(), Calls{}) << "the same when the object goes";
}

TEST_F(ColorPopup, IsThereOnceAndGivesBackWhatItTook)
{
    const auto use = [&](CWnd& popup)
    {
        m_dialog.SendMessage(WM_COMMAND, ColorsDialog::eRgb, reinterpret_cast<LPARAM>(m_dialog.rgb.m_hWnd));
        VisitOther(popup, [](CWnd&) { owtest::Press(VK_ESCAPE); });
        owtest::Click(Part(popup, 4));
        AfxGetApp()->OnIdle(1);
    };
    Visit(use);
    Visit(use);
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 5; ++i)
        Visit(use);
    const owtest::HandleCount after = owtest::CountHandles();
    EXPECT_EQ(after.gdi, before.gdi);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.user - before.user, 1);
}
