// The arrangement of the message box as numbers, on screens at 96 dots per inch and above.

#include <dialogs/MessageBoxLayout.h>

#include <gtest/gtest.h>

namespace
{
const CSize c_button{81, 26};
const CSize c_frame{6, 25};

CMessageBoxLayout Layout(int nButtons, double dScale, bool bIcon, int nTextWidth, int nTextHeight)
{
    CMessageBoxLayout layout(c_button, nButtons, dScale, c_frame, bIcon);
    layout.SetText(nTextWidth, nTextHeight);
    return layout;
}
} // namespace

TEST(MessageBoxLayout, PutsTheRowOfButtonsCentredBelowTheText)
{
    const auto one = Layout(1, 1.0, false, 200, 39);
    EXPECT_EQ(one.Text(), CRect(12, 12, 212, 51));
    EXPECT_EQ(one.Window(), CSize(224 + 6, 101 + 25));
    EXPECT_EQ(one.Button(0), CPoint(112 - 40, 101 - 26 - 12));

    const auto two = Layout(2, 1.0, false, 300, 52);
    EXPECT_EQ(two.Window(), CSize(324 + 6, 114 + 25));
    EXPECT_EQ(two.Button(0), CPoint(162 - 85, 76));
    EXPECT_EQ(two.Button(1), CPoint(162 - 85 + 89, 76));
}

TEST(MessageBoxLayout, IsAtLeastAsWideAsItsButtons)
{
    const auto four = Layout(4, 1.0, false, 200, 39);
    EXPECT_EQ(four.Text(), CRect(12, 12, 12 + 348, 51));
    EXPECT_EQ(four.Window().cx, 348 + 24 + 6);
    EXPECT_EQ(four.Button(0).x, 12);
    EXPECT_EQ(four.Button(3).x, 12 + 3 * 89);
}

TEST(MessageBoxLayout, MovesTheTextAsideForAnIcon)
{
    const auto box = Layout(1, 1.0, true, 200, 39);
    EXPECT_EQ(box.Text(), CRect(56, 12, 256, 51)) << "moved, and as wide as without";
    EXPECT_EQ(box.Window().cx, 224 + 44 + 6);
    EXPECT_EQ(box.Button(0).x, 134 - 40) << "in the middle of the whole";
}

TEST(MessageBoxLayout, GrowsWithTheLinesFromTheFourthOn)
{
    EXPECT_EQ(CMessageBoxLayout::TextHeight(1), 39);
    EXPECT_EQ(CMessageBoxLayout::TextHeight(3), 39);
    EXPECT_EQ(CMessageBoxLayout::TextHeight(4), 52);
    EXPECT_EQ(CMessageBoxLayout::TextHeight(40), 520);
}

TEST(MessageBoxLayout, ScalesTheStepBetweenButtonsTwiceAndTheTextNotAtAll)
{
    const auto box = Layout(3, 1.25, false, 200, 39); // 120 dots per inch
    EXPECT_EQ(box.Text(), CRect(12, 12, 12 + 323, 51)) << "as wide as the scaled row of 259";
    EXPECT_EQ(box.Window(), CSize(441, 157)) << "353 by 126 scaled";
    // 347 / 2 - 323 / 2 is 12, a step is 89 scaled to 111; both are scaled to where the button goes
    EXPECT_EQ(box.Button(0), CPoint(15, 78));
    EXPECT_EQ(box.Button(1).x, 153);
    EXPECT_EQ(box.Button(2).x, 292);
}

TEST(MessageBoxLayout, SaysHowManyLinesFitTheScreen)
{
    const auto lines = [](int nHeight, double dScale)
    { return CMessageBoxLayout(c_button, 1, dScale, c_frame, false).MaxLines(nHeight); };
    for (int nHeight : {600, 768, 1024})
    {
        for (double dScale : {1.0, 1.25, 2.0})
        {
            const int nLines = lines(nHeight, dScale);
            const auto height = [&](int n) { return Layout(1, dScale, false, 500, n * 13).Window().cy; };
            EXPECT_LE(height(nLines), nHeight);
            EXPECT_GT(height(nLines + 1), nHeight);
        }
    }
    EXPECT_EQ(lines(50, 1.0), 3) << "the least text stays, whatever the screen";
}
