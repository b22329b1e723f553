// Programs as clients write them, at work.

#include "Client.h"

using owtest::Click;
using owtest::Press;
using owtest::Type;

TEST(WizardDialog, ExchangesItsValuesRefusesBadOnesAndShowsItsAboutBox)
{
    Client program(L"wizard_dialog");
    const HWND dialog = program.Window(L"Wizard's dialog");
    Click(::GetDlgItem(dialog, IDC_GREET));
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"3 x beam"));

    Press(VK_TAB); // from the button to OK, Cancel, and round to the name
    Press(VK_TAB);
    Press(VK_TAB);
    Type(L"plate\t120");
    Click(::GetDlgItem(dialog, IDC_GREET)); // 120 is out of range
    program.Window(L"mfc_wizard_dialog");   // the box is named after the program
    Press(VK_RETURN);
    program.Window(L"Wizard's dialog");
    Type(L"12"); // the refused text is selected
    Press(VK_F1);
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"help for 1002"));
    Click(::GetDlgItem(dialog, IDC_GREET));
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"12 x plate"));

    ::PostMessageW(dialog, WM_SYSCOMMAND, IDM_ABOUTBOX, 0);
    program.Window(L"About");
    Press(VK_RETURN);
    program.Window(L"Wizard's dialog");
    Press(VK_ESCAPE);
    EXPECT_TRUE(program.Ends());
}
