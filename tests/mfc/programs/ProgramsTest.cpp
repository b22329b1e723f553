// Programs as clients write them, at work.

#include "Client.h"

using owtest::Click;
using owtest::Press;
using owtest::Type;

namespace
{
/// The page of a sheet that is shown, if it has a control of this id.
HWND ActivePage(HWND sheet, int id)
{
    for (HWND page = ::GetTopWindow(sheet); page != nullptr; page = ::GetWindow(page, GW_HWNDNEXT))
        if (::IsWindowVisible(page) && ::GetDlgItem(page, id) != nullptr)
            return page;
    return nullptr;
}
} // namespace

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
    EXPECT_TRUE(program.IsToBeRetyped(::GetDlgItem(dialog, IDC_COUNT)));
    Type(L"12");
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

TEST(PropertySheet, TakesItsValuesPageByPageAndAppliesThem)
{
    Client program(L"property_sheet", L"part.dat");
    const HWND sheet = program.Window(L"Beam");
    const HWND apply = ::GetDlgItem(sheet, ID_APPLY_NOW);
    EXPECT_FALSE(::IsWindowEnabled(apply));
    Type(L"HEA\t700");
    EXPECT_TRUE(Waits([&] { return ::IsWindowEnabled(apply) != FALSE; }));
    Press(VK_TAB, false, true); // Ctrl+Tab: 700 is refused
    program.Window(L"mfc_property_sheet");
    Press(VK_RETURN);
    program.Window(L"Beam");
    EXPECT_TRUE(program.IsToBeRetyped(::GetDlgItem(ActivePage(sheet, IDC_HEIGHT), IDC_HEIGHT)));
    Type(L"300");
    Press(VK_TAB, false, true);
    HWND material = nullptr;
    EXPECT_TRUE(Waits([&] { return (material = ActivePage(sheet, IDC_GRADE)) != nullptr; }));
    Click(::GetDlgItem(material, IDC_WELDABLE));
    Press(VK_TAB, true); // back to the list
    Press(VK_DOWN);
    Press(VK_NEXT, false, true); // Ctrl+Page Down
    HWND summary = nullptr;
    EXPECT_TRUE(Waits([&] { return (summary = ActivePage(sheet, IDC_STATE)) != nullptr; }));
    EXPECT_TRUE(Shows(summary, IDC_STATE, L"HEA, 300 high, grade 1, weldable"));
    Click(apply);
    EXPECT_TRUE(Waits([&] { return !::IsWindowEnabled(apply); }));
    Click(::GetDlgItem(sheet, IDOK));
    const HWND box = program.Window(L"mfc_property_sheet");
    EXPECT_TRUE(Shows(box, kBoxText, L"part.dat by 1: HEA 300, grade 1, weldable 1, applied 2"));
    Press(VK_RETURN);
    EXPECT_TRUE(program.Ends());
}

TEST(PropertySheet, IsAWizardWhosePagesSayWhichIsNext)
{
    Client program(L"property_sheet", L"/wizard");
    const HWND wizard = program.Window(); // the title is the sheet's or the page's, as the system has it
    const auto press = [&](int button)
    {
        EXPECT_TRUE(Waits([&] { return ::IsWindowEnabled(::GetDlgItem(wizard, button)) != FALSE; }));
        Click(::GetDlgItem(wizard, button));
    };
    const auto shown = [&](int id)
    {
        HWND page = nullptr;
        EXPECT_TRUE(Waits([&] { return (page = ActivePage(wizard, id)) != nullptr; })) << id;
        return page;
    };
    const auto retype = [&](int id, const wchar_t* text)
    {
        Click(::GetDlgItem(shown(id), id));
        Press(VK_HOME);
        Press(VK_END, true);
        Press(VK_DELETE);
        Type(text);
    };
    press(ID_WIZNEXT);
    shown(IDC_GRADE);
    press(ID_WIZBACK);
    retype(IDC_NAME, L"");
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(wizard, ID_WIZBACK)));
    retype(IDC_HEIGHT, L"600");
    press(ID_WIZNEXT);
    shown(IDC_STATE);    // nameless: past the material
    press(ID_WIZFINISH); // refused: too high
    press(ID_WIZBACK);
    shown(IDC_GRADE);
    press(ID_WIZBACK);
    retype(IDC_HEIGHT, L"90");
    press(ID_WIZNEXT);
    shown(IDC_STATE);
    press(ID_WIZFINISH);
    const HWND box = program.Window(L"mfc_property_sheet");
    EXPECT_TRUE(Shows(box, kBoxText, L" by 12325:  90, grade 0, weldable 0, applied 0"));
    Press(VK_RETURN);
    EXPECT_TRUE(program.Ends());
}

TEST(DatePicker, ShowsTheSpanOfWhatIsChosenAndRefusesAStartAfterTheEnd)
{
    Client program(L"date_picker");
    const HWND dialog = program.Window(L"Dates");
    EXPECT_TRUE(Shows(dialog, IDC_SPAN, L"12 days to 2024-02-27"));
    Click(::GetDlgItem(dialog, IDC_DUE), CPoint(10, 8)); // the day
    Press(VK_UP);
    Press(VK_UP);
    EXPECT_TRUE(Shows(dialog, IDC_SPAN, L"14 days to 2024-02-29"));
    Press(VK_RIGHT);
    Press(VK_DOWN); // January
    EXPECT_TRUE(Shows(dialog, IDC_SPAN, L"-17 days to 2024-01-29"));

    Click(::GetDlgItem(dialog, IDC_CHECK));
    program.Window(L"mfc_date_picker");
    Press(VK_RETURN);
    program.Window(L"Dates");
    EXPECT_TRUE(Shows(dialog, IDC_SPAN, L"-17 days to 2024-01-29"));

    RECT calendar;
    ::GetClientRect(::GetDlgItem(dialog, IDC_START), &calendar);
    Click(::GetDlgItem(dialog, IDC_START),
          CPoint(calendar.right / 14, calendar.bottom * 3 / 10)); // of January
    Click(::GetDlgItem(dialog, IDC_CHECK));
    EXPECT_TRUE(Shows(dialog, IDC_SPAN, L"checked"));
    Press(VK_ESCAPE);
    EXPECT_TRUE(program.Ends());
}

TEST(Worker, ReportsToTheDialogAndToAThreadWithAWindowOfItsOwn)
{
    Client program(L"worker");
    const HWND dialog = program.Window(L"Work");
    Click(::GetDlgItem(dialog, IDC_BEGIN));
    EXPECT_TRUE(Shows(dialog, IDC_DONE, L"squared"));
    EXPECT_EQ(::SendMessageW(::GetDlgItem(dialog, IDC_PROGRESS), PBM_GETPOS, 0, 0), 5);
    Click(::GetDlgItem(dialog, IDC_TOTAL));
    program.Window(L"Total: 55");
    program.Window(L"Work");
    Click(::GetDlgItem(dialog, IDC_HALT));
    EXPECT_TRUE(Shows(dialog, IDC_DONE, L"7"));
    Press(VK_ESCAPE);
    EXPECT_TRUE(program.Ends());
}

TEST(ModelessDialog, WorksBesideItsOwnerAndDeletesItself)
{
    Client program(L"modeless_dialog");
    const HWND main = program.Window(L"Main");
    const HWND open = ::GetDlgItem(main, IDC_OPEN);
    const auto isOpen = [&] { return !::IsWindowEnabled(open); };
    Click(open);
    program.Window(L"Notes");
    EXPECT_TRUE(Waits(isOpen));
    Type(L"bolt\r"); // Return is Keep
    EXPECT_TRUE(program.Closes(L"Notes"));
    EXPECT_TRUE(Shows(main, IDC_STATE, L"bolt"));
    EXPECT_TRUE(Waits([&] { return !isOpen(); }));

    Click(open);
    program.Window(L"Notes");
    Press(VK_ESCAPE);
    EXPECT_TRUE(Shows(main, IDC_STATE, L"dropped"));
    EXPECT_TRUE(Waits([&] { return !isOpen(); }));
    Click(open);
    program.Window(L"Notes");
    Click(::GetDlgItem(main, IDCANCEL)); // takes the notes along
    EXPECT_TRUE(program.Ends());
}

TEST(PictureList, SortsChecksTurnsAndTells)
{
    Client program(L"picture_list");
    const HWND dialog = program.Window(L"Parts");
    const HWND parts = ::GetDlgItem(dialog, IDC_PARTS);
    const HWND header = ::GetTopWindow(parts);
    Click(header, CPoint(120, 8)); // the masses
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"plate anchor beam "));
    Click(header, CPoint(30, 8)); // the names, backwards
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"plate beam anchor "));

    const HWND options = ::GetDlgItem(dialog, IDC_OPTIONS);
    const int height = static_cast<int>(::SendMessageW(options, LB_GETITEMHEIGHT, 0, 0));
    const auto line = [height](int item) { return height * item + height / 2; };
    Click(options, CPoint(6, line(2)));
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"001"));
    Click(options, CPoint(6, line(1))); // disabled
    Click(options, CPoint(40, line(0)));
    Press(VK_SPACE);
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"101"));

    const HWND turn = ::GetDlgItem(dialog, IDC_TURN);
    owtest::MoveTo(turn, CPoint(5, 5));
    EXPECT_TRUE(Waits([&] { return program.ShownTip() == L"turns the part"; })) << program.ShownTip();
    Click(turn);
    EXPECT_TRUE(Shows(dialog, IDC_STATE, L"turned"));
    EXPECT_TRUE(Waits([&] { return program.ShownTip().empty(); })); // the click took it away
    Press(VK_ESCAPE);
    EXPECT_TRUE(program.Ends());
}
