// The colour dialog, as a user works it.

#include <acdocman.h>
#include <aced.h>

#include "../../platform/acad/src/ColorGridLayout.h"
#include "../../platform/acad/src/resource.h"

#include <Handles.h>
#include <Input.h>

#include <gtest/gtest.h>

#include <functional>

namespace
{
using Script = std::function<void(HWND)>;

Script s_script;

void CALLBACK RunScript(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND dialog = ::FindWindowW(nullptr, L"Select Color");
    if (!dialog || !::IsWindowVisible(dialog))
        return; // not there yet: the timer comes again
    ::KillTimer(nullptr, timer);
    EXPECT_TRUE(owtest::Activate(dialog));
    owtest::MoveTo(dialog, CPoint(1, 1)); // off the swatches
    s_script(dialog);
    if (::IsWindow(dialog) && ::IsWindowVisible(dialog))
    {
        ADD_FAILURE() << "the dialog stayed open";
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    }
}

/// Opens the dialog on `color` and lets the script work it.
bool Choose(int& color, Script script, bool metaColors = false, int layerColor = 0)
{
    s_script = std::move(script);
    ::SetTimer(nullptr, 0, 10, &RunScript);
    const bool accepted = acedSetColorDialog(color, metaColors, layerColor) == Adesk::kTrue;
    s_script = nullptr;
    return accepted;
}

HWND Item(HWND dialog, int id)
{
    return ::GetDlgItem(dialog, id);
}

CString ItemText(HWND dialog, int id)
{
    CString text;
    CWnd::FromHandle(Item(dialog, id))->GetWindowText(text);
    return text;
}

/// The middle of a colour's swatch, in the grid's client area.
CPoint SwatchCenter(HWND dialog, int color)
{
    CRect client;
    ::GetClientRect(Item(dialog, IDC_COLOR_GRID), &client);
    return ColorGridLayout(client.Size()).CellRect(color).CenterPoint();
}

COLORREF PixelAt(HWND window, CPoint point)
{
    const HDC dc = ::GetDC(window);
    const COLORREF color = ::GetPixel(dc, point.x, point.y);
    ::ReleaseDC(window, dc);
    return color;
}

/// The middle of the old (left) or new (right) half of the preview.
COLORREF PreviewColor(HWND dialog, bool newHalf)
{
    ::UpdateWindow(Item(dialog, IDC_COLOR_PREVIEW));
    CRect client;
    ::GetClientRect(Item(dialog, IDC_COLOR_PREVIEW), &client);
    return PixelAt(Item(dialog, IDC_COLOR_PREVIEW),
                   CPoint(client.Width() * (newHalf ? 3 : 1) / 4, client.Height() / 2));
}
} // namespace

TEST(ColorDialog, EnterTakesTheSwatchThatWasClicked)
{
    int color = 5;
    EXPECT_TRUE(Choose(color,
                       [](HWND dialog)
                       {
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"5") << "it opens on the start value";
                           owtest::Click(Item(dialog, IDC_COLOR_GRID), SwatchCenter(dialog, 30));
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"30");
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_INDEX), L"Index color: 30");
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_RGB), L"Red, green, blue: 255, 127, 0");
                           EXPECT_EQ(PreviewColor(dialog, false), RGB(0, 0, 255));
                           EXPECT_EQ(PreviewColor(dialog, true), RGB(255, 127, 0));
                           owtest::Press(VK_RETURN);
                       }));
    EXPECT_EQ(color, 30);
}

TEST(ColorDialog, EscapeAndCancelLeaveTheColor)
{
    int color = 5;
    EXPECT_FALSE(Choose(color,
                        [](HWND dialog)
                        {
                            owtest::Click(Item(dialog, IDC_COLOR_GRID), SwatchCenter(dialog, 30));
                            owtest::Press(VK_ESCAPE);
                        }));
    EXPECT_EQ(color, 5);
    EXPECT_FALSE(Choose(color,
                        [](HWND dialog)
                        {
                            owtest::Click(Item(dialog, IDC_COLOR_GRID), SwatchCenter(dialog, 30));
                            owtest::Click(Item(dialog, IDCANCEL));
                        }));
    EXPECT_EQ(color, 5);
}

TEST(ColorDialog, ArrowsMoveTheChoice)
{
    int color = 10;
    EXPECT_TRUE(Choose(color,
                       [](HWND dialog)
                       {
                           EXPECT_EQ(::GetFocus(), Item(dialog, IDC_COLOR_GRID));
                           owtest::Press(VK_RIGHT);
                           owtest::Press(VK_RIGHT);
                           owtest::Press(VK_DOWN);
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"31");
                           owtest::Click(Item(dialog, IDOK));
                       }));
    EXPECT_EQ(color, 31);
}

TEST(ColorDialog, DoubleClickAccepts)
{
    int color = 1;
    EXPECT_TRUE(Choose(color,
                       [](HWND dialog)
                       {
                           const CPoint center = SwatchCenter(dialog, 252);
                           owtest::ButtonDown(Item(dialog, IDC_COLOR_GRID), center);
                           owtest::ButtonUp();
                           owtest::ButtonDown(Item(dialog, IDC_COLOR_GRID), center);
                           owtest::ButtonUp();
                           owtest::PumpUntil([dialog] { return !::IsWindowVisible(dialog); });
                       }));
    EXPECT_EQ(color, 252);
}

TEST(ColorDialog, NumberTypedOverTheSwatchesGoesToTheBox)
{
    int color = 7;
    EXPECT_TRUE(Choose(color,
                       [](HWND dialog)
                       {
                           owtest::Type(L"142");
                           EXPECT_EQ(::GetFocus(), Item(dialog, IDC_COLOR_TEXT));
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"142");
                           EXPECT_EQ(ItemText(dialog, IDC_COLOR_INDEX), L"Index color: 142");
                           owtest::Press(VK_RETURN);
                       }));
    EXPECT_EQ(color, 142);
}

TEST(ColorDialog, NumberThatIsNoColorIsNotAccepted)
{
    int color = 7;
    EXPECT_TRUE(Choose(color,
                       [](HWND dialog)
                       {
                           for (const wchar_t* text : {L"256", L"0"})
                           {
                               ::SetFocus(Item(dialog, IDC_COLOR_TEXT));
                               ::SendMessage(Item(dialog, IDC_COLOR_TEXT), EM_SETSEL, 0, -1);
                               owtest::Type(text);
                               EXPECT_EQ(ItemText(dialog, IDC_COLOR_INDEX), L"");
                               owtest::Press(VK_RETURN);
                               EXPECT_TRUE(::IsWindowVisible(dialog)) << "it stays open";
                           }
                           owtest::Type(L"9"); // the wrong text was selected, so this replaces it
                           owtest::Press(VK_RETURN);
                       }));
    EXPECT_EQ(color, 9);
}

TEST(ColorDialog, LayerAndBlockAreOfferedOnlyWhereAllowed)
{
    int color = 7;
    EXPECT_FALSE(Choose(color,
                        [](HWND dialog)
                        {
                            EXPECT_FALSE(::IsWindowVisible(Item(dialog, IDC_COLOR_BYLAYER)));
                            EXPECT_FALSE(::IsWindowVisible(Item(dialog, IDC_COLOR_BYBLOCK)));
                            owtest::Press(VK_ESCAPE);
                        }));

    const bool accepted = Choose(
        color,
        [](HWND dialog)
        {
            owtest::Click(Item(dialog, IDC_COLOR_BYLAYER));
            EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"ByLayer");
            EXPECT_EQ(PreviewColor(dialog, true), RGB(0, 255, 0)) << "in the layer's colour";
            owtest::Click(Item(dialog, IDOK));
        },
        true, 3);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(color, 256);

    const auto block = [](HWND dialog)
    {
        EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"ByLayer");
        owtest::Click(Item(dialog, IDC_COLOR_BYBLOCK));
        owtest::Click(Item(dialog, IDOK));
    };
    EXPECT_TRUE(Choose(color, block, true));
    EXPECT_EQ(color, 0);
}

TEST(ColorDialog, ReadoutFollowsTheMouse)
{
    int color = 1;
    EXPECT_FALSE(Choose(
        color,
        [](HWND dialog)
        {
            owtest::MoveTo(Item(dialog, IDC_COLOR_GRID), SwatchCenter(dialog, 50));
            EXPECT_EQ(ItemText(dialog, IDC_COLOR_INDEX), L"Index color: 50");
            EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"1") << "the choice stays";
            owtest::Press(VK_RIGHT);
            EXPECT_EQ(ItemText(dialog, IDC_COLOR_INDEX), L"Index color: 2") << "a new choice counts more";
            owtest::MoveTo(Item(dialog, IDC_COLOR_GRID), SwatchCenter(dialog, 50) + CSize(40, 0));
            owtest::MoveTo(dialog, CPoint(1, 1));
            EXPECT_TRUE(owtest::PumpUntil([dialog]
                                          { return ItemText(dialog, IDC_COLOR_INDEX) == L"Index color: 2"; }))
                << "the mouse has left";
            owtest::Press(VK_ESCAPE);
        }));
}

TEST(ColorDialog, StartValueWithoutASwatchOpensWithoutAChoice)
{
    int color = 999;
    EXPECT_FALSE(Choose(color,
                        [](HWND dialog)
                        {
                            EXPECT_EQ(ItemText(dialog, IDC_COLOR_TEXT), L"");
                            owtest::Press(VK_RETURN);
                            EXPECT_TRUE(::IsWindowVisible(dialog)) << "there is nothing to accept";
                            owtest::Press(VK_ESCAPE);
                        }));
    EXPECT_EQ(color, 999);
}

TEST(ColorDialog, GivesBackWhatItTook)
{
    const auto cancel = [](HWND) { owtest::Press(VK_ESCAPE); };
    int color = 1;
    Choose(color, cancel); // what the first use sets up stays
    const HINSTANCE resources = AfxGetResourceHandle();
    const int gdiObjects = owtest::CountHandles().gdi;
    for (int i = 0; i < 2; ++i)
        Choose(color, cancel);
    EXPECT_EQ(owtest::CountHandles().gdi, gdiObjects);
    EXPECT_EQ(AfxGetResourceHandle(), resources);
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
}
