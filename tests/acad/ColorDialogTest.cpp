// The colour dialog, as a user works it.

#include <acdocman.h>
#include <aced.h>

#include "../../platform/acad/src/ColorGridLayout.h"
#include "../../platform/acad/src/resource.h"

#include <Handles.h>
#include <Input.h>
#include <ModalVisit.h>

#include <gtest/gtest.h>

namespace
{
/// The open dialog in a user's hands.
class OpenDialog
{
public:
    explicit OpenDialog(HWND dialog) : m_dialog(dialog) {}

    HWND Item(int id) const { return ::GetDlgItem(m_dialog, id); }
    bool IsShown(int id) const { return ::IsWindowVisible(Item(id)) != FALSE; }
    bool IsOpen() const { return ::IsWindowVisible(m_dialog) != FALSE; }

    CString Text(int id = IDC_COLOR_TEXT) const
    {
        CString text;
        CWnd::FromHandle(Item(id))->GetWindowText(text);
        return text;
    }

    /// A colour's swatch and its middle, in the grid's client area.
    CRect Cell(int color) const
    {
        CRect client;
        ::GetClientRect(Item(IDC_COLOR_GRID), &client);
        return ColorGridLayout(client.Size()).CellRect(color);
    }
    CPoint Swatch(int color) const { return Cell(color).CenterPoint(); }

    void ClickSwatch(int color) const { owtest::Click(Item(IDC_COLOR_GRID), Swatch(color)); }
    void Hover(CPoint point) const { owtest::MoveTo(Item(IDC_COLOR_GRID), point); }
    void MoveOff() const { owtest::MoveTo(m_dialog, CPoint(1, 1)); }

    /// The middle of the old (left) or new (right) half of the preview.
    COLORREF OldColor() const { return PreviewColor(1); }
    COLORREF NewColor() const { return PreviewColor(3); }
    COLORREF Pixel(int id, CPoint point) const
    {
        CWnd* const control = CWnd::FromHandle(Item(id));
        control->UpdateWindow();
        return CClientDC(control).GetPixel(point);
    }

private:
    COLORREF PreviewColor(int quarter) const
    {
        CRect client;
        ::GetClientRect(Item(IDC_COLOR_PREVIEW), &client);
        return Pixel(IDC_COLOR_PREVIEW, CPoint(client.Width() * quarter / 4, client.Height() / 2));
    }

    HWND m_dialog;
};

using Script = std::function<void(const OpenDialog&)>;

/// Whether the dialog was accepted, and the colour afterwards.
using Outcome = std::pair<bool, int>;

/// Opens the dialog on a colour and lets the script work it until it is closed.
Outcome Choose(int color, const Script& script, bool metaColors = false, int layerColor = 0)
{
    const owtest::ModalVisit visit(
        [&](CWnd& window)
        {
            const OpenDialog dialog(window);
            dialog.MoveOff();
            script(dialog);
            EXPECT_FALSE(dialog.IsOpen()) << "the script has not closed it";
        });
    const bool accepted = acedSetColorDialog(color, metaColors, layerColor) == Adesk::kTrue;
    EXPECT_EQ(visit.Count(), 1);
    return {accepted, color};
}

} // namespace

TEST(ColorDialog, TakesTheSwatchThatWasClicked)
{
    const auto enter = [](const OpenDialog& dialog)
    {
        EXPECT_EQ(dialog.Text(), L"5") << "it opens on the start value";
        dialog.ClickSwatch(30);
        EXPECT_EQ(dialog.Text(), L"30");
        EXPECT_EQ(dialog.Text(IDC_COLOR_INDEX), L"Index color: 30");
        EXPECT_EQ(dialog.Text(IDC_COLOR_RGB), L"Red, green, blue: 255, 127, 0");
        EXPECT_EQ(dialog.OldColor(), RGB(0, 0, 255));
        EXPECT_EQ(dialog.NewColor(), RGB(255, 127, 0));

        const CRect cell = dialog.Cell(30);
        EXPECT_EQ(dialog.Pixel(IDC_COLOR_GRID, cell.TopLeft()), RGB(0, 0, 0)) << "framed";
        EXPECT_EQ(dialog.Pixel(IDC_COLOR_GRID, cell.TopLeft() + CSize(1, 1)), RGB(255, 255, 255));
        const auto dots = [&]
        {
            int found = 0;
            for (int x = cell.left + 3; x < cell.right - 3; ++x)
                found += dialog.Pixel(IDC_COLOR_GRID, CPoint(x, cell.top + 2)) != RGB(255, 127, 0);
            return found;
        };
        EXPECT_GT(dots(), 0) << "the focus";
        ::SetFocus(dialog.Item(IDC_COLOR_TEXT));
        EXPECT_EQ(dots(), 0);
        owtest::Press(VK_RETURN);
    };
    EXPECT_EQ(Choose(5, enter), Outcome(true, 30));
    for (const bool click : {false, true})
    {
        const auto cancel = [=](const OpenDialog& dialog)
        {
            dialog.ClickSwatch(30);
            click ? owtest::Click(dialog.Item(IDCANCEL)) : owtest::Press(VK_ESCAPE);
        };
        EXPECT_EQ(Choose(5, cancel), Outcome(false, 5));
    }
    const auto doubleClick = [](const OpenDialog& dialog)
    {
        owtest::DoubleClick(dialog.Item(IDC_COLOR_GRID), dialog.Swatch(252));
        owtest::PumpUntil([&] { return !dialog.IsOpen(); });
    };
    EXPECT_EQ(Choose(1, doubleClick), Outcome(true, 252));
}

TEST(ColorDialog, IsWorkedByKeys)
{
    const auto arrows = [](const OpenDialog& dialog)
    {
        EXPECT_EQ(::GetFocus(), dialog.Item(IDC_COLOR_GRID));
        for (WORD key : {VK_RIGHT, VK_RIGHT, VK_LEFT, VK_DOWN, VK_UP, VK_UP})
            owtest::Press(key);
        EXPECT_EQ(dialog.Text(), L"22");
        owtest::Click(dialog.Item(IDOK));
    };
    EXPECT_EQ(Choose(10, arrows), Outcome(true, 22));
    const auto number = [](const OpenDialog& dialog)
    {
        owtest::Type(L"142");
        EXPECT_EQ(::GetFocus(), dialog.Item(IDC_COLOR_TEXT))
            << "a number typed over the swatches goes to the box";
        EXPECT_EQ(dialog.Text(), L"142");
        EXPECT_EQ(dialog.Text(IDC_COLOR_INDEX), L"Index color: 142");
        owtest::Press(VK_RETURN);
    };
    for (const bool metaColors : {false, true})
        EXPECT_EQ(Choose(7, number, metaColors), Outcome(true, 142));
    const auto wrongNumbers = [](const OpenDialog& dialog)
    {
        for (const wchar_t* text : {L"256", L"0", L"byblock"})
        {
            ::SetFocus(dialog.Item(IDC_COLOR_TEXT));
            ::SendMessage(dialog.Item(IDC_COLOR_TEXT), EM_SETSEL, 0, -1);
            owtest::Type(text);
            EXPECT_EQ(dialog.Text(IDC_COLOR_INDEX), L"");
            owtest::Press(VK_RETURN);
            EXPECT_TRUE(dialog.IsOpen());
        }
        owtest::Type(L"9"); // the wrong text was selected, so this replaces it
        owtest::Press(VK_RETURN);
    };
    EXPECT_EQ(Choose(7, wrongNumbers), Outcome(true, 9));
    const auto noChoice = [](const OpenDialog& dialog)
    {
        EXPECT_EQ(dialog.Text(), L"");
        EXPECT_NE(dialog.NewColor(), ::GetSysColor(COLOR_BTNFACE)) << "struck out";
        owtest::Press(VK_RETURN);
        EXPECT_TRUE(dialog.IsOpen()) << "there is nothing to accept";
        owtest::Press(VK_ESCAPE);
    };
    EXPECT_EQ(Choose(999, noChoice), Outcome(false, 999));
}

TEST(ColorDialog, LayerAndBlockAreOfferedOnlyWhereAllowed)
{
    const auto lookForThem = [](const OpenDialog& dialog)
    {
        EXPECT_FALSE(dialog.IsShown(IDC_COLOR_BYLAYER) || dialog.IsShown(IDC_COLOR_BYBLOCK));
        owtest::Press(VK_ESCAPE);
    };
    EXPECT_EQ(Choose(7, lookForThem), Outcome(false, 7));
    const auto chooseLayer = [](const OpenDialog& dialog)
    {
        owtest::Click(dialog.Item(IDC_COLOR_BYLAYER));
        EXPECT_EQ(dialog.Text(), L"ByLayer");
        EXPECT_EQ(dialog.NewColor(), RGB(0, 255, 0)) << "in the layer's colour";
        owtest::Click(dialog.Item(IDOK));
    };
    EXPECT_EQ(Choose(7, chooseLayer, true, 3), Outcome(true, 256));
    const auto chooseBlock = [](const OpenDialog& dialog)
    {
        EXPECT_EQ(dialog.Text(), L"ByLayer");
        owtest::Click(dialog.Item(IDC_COLOR_BYBLOCK));
        owtest::Click(dialog.Item(IDOK));
    };
    EXPECT_EQ(Choose(256, chooseBlock, true), Outcome(true, 0));
}

TEST(ColorDialog, ReadoutFollowsTheMouse)
{
    const auto script = [](const OpenDialog& dialog)
    {
        const auto readout = [&] { return dialog.Text(IDC_COLOR_INDEX); };
        dialog.Hover(dialog.Swatch(50));
        EXPECT_EQ(readout(), L"Index color: 50");
        EXPECT_EQ(dialog.Text(), L"1") << "the choice stays";
        owtest::Press(VK_RIGHT);
        EXPECT_EQ(readout(), L"Index color: 2") << "a new choice counts more";
        dialog.Hover(dialog.Swatch(50) + CSize(40, 0));
        dialog.MoveOff();
        EXPECT_TRUE(owtest::PumpUntil([&] { return readout() == L"Index color: 2"; })) << "it has left";
        owtest::Press(VK_ESCAPE);
    };
    Choose(1, script);
}

TEST(ColorDialog, GivesBackWhatItTook)
{
    const HINSTANCE resources = AfxGetResourceHandle();
    int gdiObjects[2];
    for (int& count : gdiObjects) // what the first use sets up stays
    {
        Choose(1, [](const OpenDialog&) { owtest::Press(VK_ESCAPE); });
        count = owtest::CountHandles().gdi;
    }
    EXPECT_EQ(gdiObjects[1], gdiObjects[0]);
    EXPECT_EQ(AfxGetResourceHandle(), resources);
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
}
