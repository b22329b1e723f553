// The arrangement of the message box as numbers, on screens that the tests of the box itself do not have.

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
