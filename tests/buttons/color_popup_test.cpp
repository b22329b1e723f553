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
constexpr UINT kFirstCell = 10153, kOther = 10173;
constexpr int kRed = 13; ///< entry of the palette
constexpr COLORREF kNewColor = RGB(1, 2, 3);

using Calls = std::vector<std::string>;
using Script = std::function<void(CWnd&)>;

HWND Cell(CWnd& popup, int nIndex)
{
    return popup.GetDlgItem(kFirstCell + nIndex)->m_hWnd;
}

bool IsOpen(CWnd& popup)
{
    return popup.IsWindowVisible() && popup.IsWindowEnabled();
}

int RankOf(int nIndex)
{
    return CColorBtnST::s_colorRecency[nIndex];
}

bool AreRanks()
{
    auto ranks = CColorBtnST::s_colorRecency;
    std::ranges::sort(ranks);
    return ranks.front() == 1 && ranks.back() == 20 && std::ranges::adjacent_find(ranks) == ranks.end();
}

class ColorPopup : public ::testing::Test
{
protected:
    void SetUp() override
    {
        CColorBtnST::Reset();
        ASSERT_TRUE(m_dialog.Open());
    }
    void TearDown() override { EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0); }

    /// Opens the pop-up by a click, and closes it by what the script does, or else by Escape.
    void Visit(const Script& script, int nExpectedVisits = 1)
    {
        const owtest::ModalVisit visit(
            [&](CWnd& popup)
            {
                EXPECT_EQ(CWnd::GetCapture(), &popup);
                script(popup);
            });
        owtest::Click(m_dialog.rgb);
        EXPECT_EQ(visit.Count(), nExpectedVisits);
        EXPECT_EQ(::GetCapture(), nullptr);
    }

    /// "Other..." by a click, and the system's dialog in the hands of a script.
    void VisitOther(CWnd& popup, const Script& script)
    {
        const owtest::ModalVisit visit(script);
        owtest::Click(*popup.GetDlgItem(kOther));
        EXPECT_EQ(visit.Count(), 1);
    }

    void ClickOutside() { owtest::Click(m_dialog, CPoint(150, 10)); }

    void ExpectUntouched()
    {
        EXPECT_EQ(m_dialog.color, RGB(255, 0, 0));
        EXPECT_EQ(m_dialog.Take(), Calls{"dialog 1001"}) << "the click itself";
    }

    ColorsDialog m_dialog;
};

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
} // namespace

// ---- Place and look ---------------------------------------------------------------------------------------

TEST_F(ColorPopup, OpensBelowTheButtonOrWhereTheScreenHasRoom)
{
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    for (const CPoint at : {CPoint(100, 100), CPoint(screen.cx - 50, 100), CPoint(100, screen.cy - 60)})
    {
        m_dialog.SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        Visit(
            [&](CWnd& popup)
            {
                CRect button, rect;
                m_dialog.rgb.GetWindowRect(button);
                popup.GetWindowRect(rect);
                EXPECT_EQ(rect.left, (std::min)(button.left, screen.cx - rect.Width()));
                const bool bFits = button.bottom + rect.Height() <= screen.cy;
                EXPECT_EQ(bFits, at.y == 100);
                EXPECT_EQ(bFits ? rect.top : rect.bottom, bFits ? button.bottom : button.top);
            });
    }
}

TEST_F(ColorPopup, WithoutAnOwnerItOpensAtTheRectangleOrTheMouse)
{
    const CRect anchor(200, 200, 240, 220);
    owtest::MoveTo(m_dialog, CPoint(5, 5));
    CPoint mouse;
    ::GetCursorPos(&mouse);
    const std::pair<const RECT*, CPoint> cases[] = {{&anchor, {anchor.left, anchor.bottom}},
                                                    {nullptr, mouse}};
    for (const auto& [pAnchor, corner] : cases)
    {
        CColorSelectDialog dialog(nullptr, pAnchor);
        CRect rect;
        const owtest::ModalVisit visit([&](CWnd& popup) { popup.GetWindowRect(rect); });
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(rect.TopLeft(), corner);
    }
}

TEST_F(ColorPopup, ShowsThePaletteAndMarksTheColorOfTheButton)
{
    Visit(
        [&](CWnd& popup)
        {
            EXPECT_EQ(::GetFocus(), Cell(popup, kRed));
            EXPECT_EQ(owtest::TextOf(*popup.GetDlgItem(kFirstCell + kRed)), L"255, 0, 0") << "for readers";
            for (int i = 0; i < CColorBtnST::paletteSize; ++i)
            {
                CRect rect;
                ::GetClientRect(Cell(popup, i), rect);
                owtest::Surface picture(rect.Width(), rect.Height());
                owtest::Capture(Cell(popup, i), picture);
                if (i == kRed)
                    rect.DeflateRect(2, 2);
                EXPECT_EQ(picture.extent(CColorBtnST::s_colorTable[i]), rect) << i;
                EXPECT_EQ(picture.count(rect, CColorBtnST::s_colorTable[i]), rect.Width() * rect.Height());
                EXPECT_EQ(picture.at(0, 0) == 0 && picture.at(1, 1) == RGB(255, 255, 255), i == kRed) << i;
            }
        });
}

// ---- Mouse ------------------------------------------------------------------------------------------------

TEST_F(ColorPopup, AClickOnACellChoosesIt)
{
    Visit([](CWnd& popup) { owtest::Click(Cell(popup, 4)); });
    EXPECT_EQ(m_dialog.color, 0x800000u);
    EXPECT_EQ(m_dialog.rgb.hooks, 1);
    EXPECT_EQ(m_dialog.Take(), (Calls{"rgb 1001 8388608", "dialog 1001"}));
    EXPECT_EQ(RankOf(4), 1);
    EXPECT_EQ(RankOf(0), 2) << "those before it move on";
    EXPECT_EQ(RankOf(3), 8);
    EXPECT_EQ(RankOf(5), 11) << "those behind it stay";
    EXPECT_TRUE(AreRanks());

    m_dialog.rgb.SetColorSource(&(m_dialog.color = RGB(255, 0, 0)));
    Visit([](CWnd& popup) { owtest::Click(Cell(popup, kRed)); });
    EXPECT_EQ(m_dialog.rgb.hooks, 1);
    ExpectUntouched();
    EXPECT_EQ(RankOf(kRed), 1) << "the same colour tells nobody, but is used";
    EXPECT_TRUE(AreRanks());
}

TEST_F(ColorPopup, AClickOutsideCancels)
{
    Visit(
        [&](CWnd& popup)
        {
            owtest::Click(popup, CPoint(1, 1)); // beside the cells: nothing happens
            EXPECT_TRUE(IsOpen(popup));
            ClickOutside();
            EXPECT_FALSE(static_cast<CColorSelectDialog&>(popup).ContinueModal());
        });
    ExpectUntouched();
    EXPECT_EQ(RankOf(kRed), 14);
}

// A part that hears of a press at the release, because the press was not on it, is chosen by the next click.
TEST_F(ColorPopup, APressBesideTheCellsAndAReleaseOnOnePressesIt)
{
    Visit(
        [&](CWnd& popup)
        {
            owtest::ButtonDown(popup, CPoint(1, 1));
            owtest::MoveTo(Cell(popup, 6), CPoint(5, 5));
            owtest::ButtonUp();
            EXPECT_EQ(::GetCapture(), Cell(popup, 6));
            owtest::Click(Cell(popup, 6));
        });
    EXPECT_EQ(m_dialog.color, 0x808000u);
}

TEST_F(ColorPopup, ACellThatIsLeftWhilePressedGivesTheMouseBack)
{
    Visit(
        [&](CWnd& popup)
        {
            owtest::ButtonDown(Cell(popup, 2), CPoint(5, 5));
            EXPECT_EQ(::GetCapture(), Cell(popup, 2));
            owtest::MoveTo(Cell(popup, 9), CPoint(5, 5));
            owtest::ButtonUp();
            EXPECT_TRUE(owtest::PumpUntil([&] { return CWnd::GetCapture() == &popup; }));
            ClickOutside(); // and so this still cancels
            EXPECT_FALSE(static_cast<CColorSelectDialog&>(popup).ContinueModal());
        });
    ExpectUntouched();
}

TEST_F(ColorPopup, IsOverWhenAnotherWindowTakesMouseOrForeground)
{
    const Script thieves[] = {[&](CWnd&) { m_dialog.GetDlgItem(ColorsDialog::eOther)->SetCapture(); },
                              [](CWnd&) { ::SetForegroundWindow(::GetDesktopWindow()); }};
    for (const Script& steal : thieves)
    {
        Visit(
            [&](CWnd& popup)
            {
                steal(popup);
                auto& dialog = static_cast<CColorSelectDialog&>(popup);
                EXPECT_TRUE(owtest::PumpUntil([&] { return !dialog.ContinueModal(); }));
                EXPECT_NE(CWnd::GetCapture(), &popup);
                ::ReleaseCapture();
            });
        ExpectUntouched();
        EXPECT_TRUE(owtest::Activate(m_dialog));
    }
}

// ---- Keys -------------------------------------------------------------------------------------------------

TEST_F(ColorPopup, ArrowsAndTabMoveAndEnterAndSpaceChoose)
{
    const auto at = [](CWnd& popup, int nIndex)
    { EXPECT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == Cell(popup, nIndex); }, 1000)) << nIndex; };
    const auto press = [&](CWnd& popup, std::initializer_list<std::pair<int, int>> keys)
    {
        for (const auto& [nKey, nIndex] : keys)
        {
            owtest::Press(static_cast<WORD>(nKey));
            at(popup, nIndex);
        }
    };
    constexpr int kOtherPart = 20; ///< its id follows the cells'
    Visit(
        [&](CWnd& popup)
        {
            press(popup, {{VK_LEFT, 12}, {VK_LEFT, 11}, {VK_RIGHT, 12}, {VK_UP, 8}, {VK_UP, 4}, {VK_UP, 0}});
            press(popup, {{VK_UP, 0}, {VK_LEFT, 0}, {VK_RIGHT, 1}, {VK_TAB, kOtherPart}, {VK_TAB, 1}});
            press(popup, {{VK_DOWN, 5}, {VK_DOWN, 9}, {VK_DOWN, 13}, {VK_DOWN, 17}, {VK_DOWN, kOtherPart}});
            press(popup, {{VK_DOWN, kOtherPart}, {VK_LEFT, 19}, {VK_RIGHT, kOtherPart}, {VK_UP, 16}});
            owtest::Press(VK_RETURN);
        });
    EXPECT_EQ(m_dialog.color, 0xFF0000u);
    EXPECT_EQ(m_dialog.Take(), (Calls{"rgb 1001 16711680", "dialog 1001"}));

    m_dialog.color = kNewColor; // not of the palette
    Visit(
        [&](CWnd& popup)
        {
            at(popup, 0);
            owtest::Press(VK_RIGHT);
            owtest::Press(VK_SPACE);
        });
    EXPECT_EQ(m_dialog.color, 0x000080u);
    m_dialog.Take();

    Visit([](CWnd&) { owtest::Press(VK_ESCAPE); });
    EXPECT_EQ(m_dialog.Take(), Calls{"dialog 1001"});
}

// Enter that is held repeats, and must not choose in the pop-up that it has opened.
TEST_F(ColorPopup, AKeyThatIsHeldFromOpeningItDoesNothing)
{
    for (const WORD nKey : {VK_RETURN, VK_SPACE})
    {
        m_dialog.rgb.SetFocus();
        const auto send = [nKey](DWORD dwFlags)
        {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = nKey;
            input.ki.dwFlags = dwFlags;
            ::SendInput(1, &input, sizeof(input));
            owtest::Pump();
        };
        const owtest::ModalVisit visit(
            [&](CWnd& popup)
            {
                send(0);
                send(0);
                send(KEYEVENTF_KEYUP);
                EXPECT_TRUE(IsOpen(popup));
                EXPECT_EQ(CWnd::GetCapture(), &popup);
            });
        send(0);
        EXPECT_EQ(visit.Count(), 1);
        ExpectUntouched();
        EXPECT_EQ(RankOf(kRed), 14);
    }
}

// ---- Other... ---------------------------------------------------------------------------------------------

TEST_F(ColorPopup, OtherReplacesTheColorThatWasNotUsedForLongest)
{
    Visit([&](CWnd& popup) { VisitOther(popup, [](CWnd& window) { Accept(window, kNewColor); }); });
    EXPECT_EQ(m_dialog.color, kNewColor);
    EXPECT_EQ(m_dialog.Take(), (Calls{"rgb 1001 197121", "dialog 1001"}));
    EXPECT_EQ(CColorBtnST::s_colorTable[10], kNewColor) << "the entry that had rank 20";
    EXPECT_EQ(RankOf(10), 1);
    EXPECT_EQ(RankOf(9), 20);
    EXPECT_TRUE(AreRanks());
}

TEST_F(ColorPopup, OtherFindsAColorThatThePaletteHas)
{
    CColorBtnST::s_colorTable.fill(RGB(9, 9, 9));
    CColorBtnST::s_colorTable[7] = CColorBtnST::s_colorTable[8] = RGB(0, 128, 0);
    const auto before = CColorBtnST::s_colorTable;
    Visit([&](CWnd& popup) { VisitOther(popup, [](CWnd& window) { Accept(window, RGB(0, 128, 0)); }); });
    EXPECT_EQ(m_dialog.color, RGB(0, 128, 0));
    EXPECT_EQ(CColorBtnST::s_colorTable, before);
    EXPECT_EQ(RankOf(7), 1) << "the first of the two";
    EXPECT_TRUE(AreRanks());
}

TEST_F(ColorPopup, OtherCancelledLeavesThePopupOpenWithTheMouse)
{
    Visit(
        [&](CWnd& popup)
        {
            VisitOther(popup,
                       [](CWnd& window)
                       {
                           const auto& dialog = static_cast<CColorDialog&>(window);
                           EXPECT_EQ(dialog.m_cc.rgbResult, RGB(255, 0, 0)) << "it begins with the button's";
                           EXPECT_TRUE(dialog.m_cc.Flags & CC_FULLOPEN);
                           owtest::Press(VK_ESCAPE);
                       });
            EXPECT_TRUE(IsOpen(popup));
            EXPECT_EQ(CWnd::GetCapture(), &popup);
            ClickOutside();
            EXPECT_FALSE(static_cast<CColorSelectDialog&>(popup).ContinueModal());
        });
    ExpectUntouched();
    EXPECT_EQ(RankOf(kRed), 14);
}

// ---- Windows that vanish ----------------------------------------------------------------------------------

TEST_F(ColorPopup, EndsWithTheButtonAndTheDialogAndTellsNobody)
{
    const Script endings[] = {[&](CWnd&) { m_dialog.rgb.DestroyWindow(); },
                              [&](CWnd&) { m_dialog.DestroyWindow(); }};
    for (const Script& end : endings)
    {
        for (const bool bOther : {false, true})
        {
            const Script script = bOther ? Script([&](CWnd& popup) { VisitOther(popup, end); }) : end;
            Visit(script);
            EXPECT_EQ(m_dialog.color, RGB(255, 0, 0));
            EXPECT_EQ(m_dialog.Take(), Calls{});
            m_dialog.DestroyWindow();
            ASSERT_TRUE(m_dialog.Open());
        }
    }
}

TEST_F(ColorPopup, EndsWithTheButtonAsAnObject)
{
    m_dialog.rgb.UnsubclassWindow();
    auto pButton = std::make_unique<CColorBtnST>(&m_dialog);
    ASSERT_TRUE(pButton->SubclassDlgItem(ColorsDialog::eRgb, &m_dialog));
    pButton->SetColorSource(&m_dialog.color);
    const owtest::ModalVisit visit([&](CWnd&) { pButton.reset(); });
    owtest::Click(*pButton);
    EXPECT_EQ(visit.Count(), 1);
    EXPECT_EQ(m_dialog.Take(), Calls{});
}

TEST_F(ColorPopup, ASecondClickByAProgramOpensNoSecondOne)
{
    Visit(
        [&](CWnd& popup)
        {
            m_dialog.SendMessage(WM_COMMAND, ColorsDialog::eRgb,
                                 reinterpret_cast<LPARAM>(m_dialog.rgb.m_hWnd));
            EXPECT_TRUE(IsOpen(popup));
        });
}

TEST_F(ColorPopup, GivesBackWhatItTook)
{
    const auto use = [&]
    {
        Visit([](CWnd& popup) { owtest::Click(Cell(popup, 4)); });
        Visit(
            [&](CWnd& popup)
            {
                VisitOther(popup, [](CWnd&) { owtest::Press(VK_ESCAPE); });
                owtest::Press(VK_RIGHT);
            });
        AfxGetApp()->OnIdle(1);
    };
    use();
    use();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 5; ++i)
        use();
    const owtest::HandleCount after = owtest::CountHandles();
    EXPECT_EQ(after.gdi, before.gdi);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.user - before.user, 1);
}
