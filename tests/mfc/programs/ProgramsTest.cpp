// Programs as clients write them, at work.

#include "Client.h"

using owtest::Press;
using owtest::Type;

TEST(WizardDialog, ExchangesItsValuesRefusesBadOnesAndShowsItsAboutBox)
{
    Client program(L"wizard_dialog");
    const HWND dialog = program.Window(L"Wizard's dialog");
    program.Click(IDC_GREET);
    program.Shows(IDC_STATE, L"3 x beam");
    for (int i = 0; i < 3; ++i) // from the button to OK, Cancel, and round to the name
        Press(VK_TAB);
    Type(L"plate\t120");
    program.Click(IDC_GREET);              // 120 is out of range
    program.Confirm(L"mfc_wizard_dialog"); // the box is named after the program
    program.Window(L"Wizard's dialog");
    program.IsToBeRetyped(IDC_COUNT);
    Type(L"12");
    Press(VK_F1);
    program.Shows(IDC_STATE, L"help for 1002");
    program.Click(IDC_GREET);
    program.Shows(IDC_STATE, L"12 x plate");
    ::PostMessageW(dialog, WM_SYSCOMMAND, IDM_ABOUTBOX, 0);
    program.Confirm(L"About");
    program.Window(L"Wizard's dialog");
    Press(VK_ESCAPE);
}

/// Ctrl+Page Down, again if need be: on a busy display Wine now and then takes the focus away and gives it back, and the
/// key is lost.
static void TurnPage(const std::function<bool()>& isTurned)
{
    int tries = 6;
    do
        Press(VK_NEXT, false, true);
    while (!owtest::PumpUntil(isTurned, 5000) && --tries > 0);
    EXPECT_TRUE(isTurned());
}

TEST(PropertySheet, TakesItsValuesPageByPageAndAppliesThem)
{
    Client program(L"property_sheet", L"part.dat");
    program.Window(L"Beam");
    EXPECT_FALSE(program.IsEnabled(ID_APPLY_NOW));
    Type(L"hea\t700");
    EXPECT_TRUE(program.WaitsFor(ID_APPLY_NOW));
    TurnPage([] { return ::FindWindowW(nullptr, L"mfc_property_sheet") != nullptr; }); // 700 is refused
    program.Confirm(L"mfc_property_sheet");
    program.Window(L"Beam");
    program.IsToBeRetyped(IDC_HEIGHT);
    Type(L"300");
    TurnPage([&] { return program.IsEnabled(IDC_WELDABLE); });
    program.Click(IDC_WELDABLE); // by mouse: Wine may give a focus back to the page that is hidden now
    TurnPage([&] { return program.IsEnabled(IDC_STATE); });
    program.Shows(IDC_STATE, L"hea, 300 high, grade 0, weldable");
    program.Click(ID_APPLY_NOW);
    EXPECT_TRUE(Waits([&] { return !program.IsEnabled(ID_APPLY_NOW); }));
    program.Click(IDOK);
    program.Confirm(L"mfc_property_sheet", L"part.dat by 1: hea 300, grade 0, weldable 1, applied 2");
}

TEST(PropertySheet, IsAWizardWhosePagesSayWhichIsNext)
{
    Client program(L"property_sheet", L"/wizard");
    program.Window(); // the title is the sheet's or the page's, as the system has it
    const auto retype = [&](int id, const wchar_t* text)
    {
        program.Click(id);
        Press(VK_END);
        for (int i = 0; i < 8; ++i)
            Press(VK_BACK);
        Type(text);
    };
    program.Click(ID_WIZNEXT);
    EXPECT_TRUE(program.WaitsFor(IDC_GRADE));
    program.Click(ID_WIZBACK);
    retype(IDC_NAME, L"");
    EXPECT_FALSE(program.IsEnabled(ID_WIZBACK));
    retype(IDC_HEIGHT, L"600");
    program.Click(ID_WIZNEXT);
    EXPECT_TRUE(program.WaitsFor(IDC_STATE)); // nameless: past the material
    program.Click(ID_WIZFINISH);              // refused: too high
    program.Click(ID_WIZBACK);
    EXPECT_TRUE(program.WaitsFor(IDC_GRADE));
    program.Click(ID_WIZBACK);
    retype(IDC_HEIGHT, L"90");
    program.Click(ID_WIZNEXT);
    EXPECT_TRUE(program.WaitsFor(IDC_STATE));
    program.Click(ID_WIZFINISH);
    program.Confirm(L"mfc_property_sheet", L" by 12325:  90, grade 0, weldable 0, applied 0");
}
