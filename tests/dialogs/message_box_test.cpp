// The message box as a user meets it: keys, clicks, sizes, languages; and what ends the process.

#include "BoxParts.h"
#include "OwnerWindow.h"

#include "EnglishTexts.h"
#include "FatalReport.h"
#include "Handles.h"

#include <acdocman.h>

#include <gtest/gtest.h>

namespace
{
const wchar_t* const kOneLine = L"Short message";
const wchar_t* const kPangram = L"Dva stuba i tri grede u osi C nisu povezana sa temeljnom gredom. ";

CString Repeat(const wchar_t* text, int count)
{
    CString repeated;
    while (count-- > 0)
        repeated += text;
    return repeated;
}

using Visitor = std::function<void(CWnd&)>;

void PressEscape(CWnd&)
{
    owtest::Press(VK_ESCAPE);
}

void PressEnter(CWnd&)
{
    owtest::Press(VK_RETURN);
}

Visitor ClickOn(int id)
{
    return [id](CWnd& box) { owtest::Click(*box.GetDlgItem(id)); };
}

int Show(unsigned int type, const Visitor& visitor, const wchar_t* text = kOneLine)
{
    owtest::ModalVisit visit(visitor);
    const int result = COstrelMessageBox::MessageBox(text, L"Caption", type);
    EXPECT_EQ(visit.Count(), 1);
    return result;
}

int ShowFree(std::initializer_list<const wchar_t*> texts, const Visitor& visitor)
{
    owtest::ModalVisit visit(visitor);
    const wchar_t* const* text = texts.begin();
    const int result = COstrelMessageBox::MessageBox(kOneLine, L"Caption", MB_ICONQUESTION, text[0], text[1],
                                                     text[2], text[3]);
    EXPECT_EQ(visit.Count(), 1);
    return result;
}

CEdit& MessageOf(CWnd& box)
{
    return *static_cast<CEdit*>(box.GetDlgItem(kMessage));
}

/// The captions of the buttons that are shown, each after a bar.
std::wstring Buttons(CWnd& box)
{
    std::wstring captions;
    for (int id : {kFirst, kSecond, kThird, kFourth})
    {
        if (box.GetDlgItem(id)->IsWindowVisible())
            captions += L'|' + TextOf(*box.GetDlgItem(id));
    }
    return captions;
}

CSize ClientSize(CWnd& box)
{
    CRect client;
    box.GetClientRect(client);
    return client.Size();
}

int LinesAt(CEdit& message, int width)
{
    message.SetWindowPos(nullptr, 0, 0, width, 39, SWP_NOMOVE | SWP_NOZORDER);
    return message.GetLineCount();
}
} // namespace

TEST(OstrelMessageBox, AnswersWithTheButtonPressedAsTheSystemsDoes)
{
    const Visitor close = [](CWnd& box) { box.SendMessage(WM_SYSCOMMAND, SC_CLOSE); };
    const Visitor tabAndEnter = [](CWnd&)
    {
        owtest::Press(VK_TAB);
        owtest::Press(VK_RETURN);
    };
    const struct
    {
        unsigned int type;
        Visitor visitor;
        int answer;
    } cases[] = {
        {MB_OK, PressEnter, IDOK},
        {MB_OK, PressEscape, IDOK}, // there is no other answer
        {MB_OKCANCEL, PressEnter, IDOK},
        {MB_OKCANCEL, PressEscape, IDCANCEL},
        {MB_OKCANCEL, ClickOn(kSecond), IDCANCEL},
        {MB_YESNO, PressEnter, IDYES},
        {MB_YESNO, PressEscape, IDNO},
        {MB_YESNO, close, IDNO},
        {MB_YESNO, ClickOn(kSecond), IDNO},
        {MB_YESNOCANCEL, ClickOn(kFirst), IDYES},
        {MB_YESNOCANCEL, tabAndEnter, IDNO}, // Enter presses what has the focus
        {MB_YESNOCANCEL, ClickOn(kThird), IDCANCEL},
        {MB_YESNOCANCEL, PressEscape, IDCANCEL},
        {MB_ABORTRETRYIGNORE, PressEscape, IDOK}, // buttons that it does not have: OK alone
    };
    for (const auto& row : cases)
        EXPECT_EQ(Show(row.type, row.visitor), row.answer) << "row " << &row - cases;
}

TEST(OstrelMessageBox, HasTheButtonsOfItsType)
{
    for (const auto& [type, captions] : {std::pair(MB_OK, L"|OK"),
                                         {MB_OKCANCEL, L"|OK|Cancel"},
                                         {MB_YESNO, L"|Yes|No"},
                                         {MB_YESNOCANCEL, L"|Yes|No|Cancel"}})
        Show(type, [=](CWnd& box) { EXPECT_EQ(Buttons(box), captions); });
}

TEST(OstrelMessageBox, WithFreeButtonsAnswersTheirNumbers)
{
    EXPECT_EQ(ShowFree({L"Zameni", L"Preskoci", L"Sve", L"Cancel"}, ClickOn(kThird)), 3);
    EXPECT_EQ(ShowFree({L"Zameni", L"Preskoci", L"Sve", L"Cancel"}, ClickOn(kFourth)), 4);
    EXPECT_EQ(ShowFree({L"Zameni", L"Preskoci", L"", L""}, PressEscape), 2) << "the last one";
    EXPECT_EQ(ShowFree({L"", L"", L"", L""}, PressEnter), 1);
    EXPECT_EQ(ShowFree({L"", L"", L"", L""}, PressEscape), 0) << "no button has a text";

    const Visitor lookAndEscape = [](CWnd& box)
    {
        EXPECT_EQ(Buttons(box), L"|OK||Dalje") << "an empty text between others leaves a blank button";
        owtest::Press(VK_ESCAPE);
    };
    EXPECT_EQ(ShowFree({L"", L"", L"Dalje", L""}, lookAndEscape), 3);
}

TEST(OstrelMessageBox, OnlyOkAndCancelHaveIcons)
{
    ShowFree({L"OK", L"Ok", L"Cancel", L"Cancel all"},
             [](CWnd& box)
             {
                 EXPECT_GT(CountColoured(box, kFirst), 10);
                 EXPECT_EQ(CountColoured(box, kSecond), 0);
                 EXPECT_GT(CountColoured(box, kThird), 10);
                 EXPECT_EQ(CountColoured(box, kFourth), 0);
             });
}

TEST(OstrelMessageBox, AClickOnTheTextGivesTheFocusBackToTheFirstButton)
{
    Show(MB_YESNO,
         [](CWnd& box)
         {
             EXPECT_EQ(::GetFocus(), box.GetDlgItem(kFirst)->m_hWnd) << "at the beginning";
             owtest::Press(VK_TAB);
             ASSERT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == box.GetDlgItem(kSecond)->m_hWnd; }));
             owtest::Click(MessageOf(box));
             EXPECT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == box.GetDlgItem(kFirst)->m_hWnd; }));
         });
}

// ---- Size -----------------------------------------------------------------------------------------------

TEST(MessageBoxSize, OfAOneLineTextIsTheLeastWhateverTheButtons)
{
    Show(MB_OK,
         [](CWnd& box)
         {
             const CRect button = PlaceOf(box, kFirst);
             EXPECT_EQ(PlaceOf(box, kMessage), CRect(12, 12, 212, 51));
             EXPECT_EQ(ClientSize(box), CSize(224, 39 + button.Height() + 36));
             EXPECT_EQ(button.TopLeft(), CPoint(112 - button.Width() / 2, 63));
         });
    Show(MB_YESNOCANCEL,
         [](CWnd& box)
         {
             const int row = 3 * (PlaceOf(box, kFirst).Width() + 8) - 8;
             EXPECT_EQ(PlaceOf(box, kMessage), CRect(CPoint(12, 12), CSize(row, 39)))
                 << "as wide as the buttons";
             EXPECT_EQ(ClientSize(box).cx, row + 24);
             EXPECT_EQ(PlaceOf(box, kThird).right, 12 + row);
         });
}

TEST(MessageBoxSize, IsTheLeastWidthWithTheFewestLines)
{
    const auto expectLeastWidth = [](const CString& text)
    {
        const Visitor look = [](CWnd& box)
        {
            CEdit& message = MessageOf(box);
            const CRect place = PlaceOf(box, kMessage);
            const int fewest = LinesAt(message, 500);
            EXPECT_GT(place.Width(), 200);
            EXPECT_LE(place.Width(), 500);
            EXPECT_EQ(place.Width() % 5, 0);
            EXPECT_EQ(place.Height(), std::max(39, 13 * fewest));
            EXPECT_EQ(LinesAt(message, place.Width()), fewest);
            EXPECT_NE(LinesAt(message, place.Width() - 5), fewest);
            EXPECT_EQ(PlaceOf(box, kFirst).top, 12 + place.Height() + 12)
                << "the box has grown with the text";
        };
        Show(MB_OK, look, text);
    };
    expectLeastWidth(kPangram);
    expectLeastWidth(Repeat(kPangram, 8));
    Show(
        MB_OK,
        [](CWnd& box)
        { EXPECT_EQ(PlaceOf(box, kMessage).Size(), CSize(205, 39)) << "no width makes one line of two"; },
        L"One\r\nTwo");
}

TEST(MessageBoxSize, MakesRoomForAnIconAndDrawsIt)
{
    for (const auto& [type, icon] : {std::pair(MB_ICONERROR, CButtonST::hIconError),
                                     {MB_ICONQUESTION, CButtonST::hIconQuestion},
                                     {MB_ICONWARNING, CButtonST::hIconWarning},
                                     {MB_ICONINFORMATION, CButtonST::hIconInformation}})
    {
        owtest::Surface expected(32, 32, ::GetSysColor(COLOR_BTNFACE)), seen(32, 32);
        expected.dc().DrawIcon(0, 0, icon);
        const Visitor look = [&](CWnd& box)
        {
            EXPECT_EQ(PlaceOf(box, kMessage), CRect(56, 12, 256, 51));
            EXPECT_EQ(ClientSize(box).cx, 268);
            CClientDC dc(&box);
            const auto drawn = [&]
            { return seen.dc().BitBlt(0, 0, 32, 32, &dc, 12, 12, SRCCOPY) && seen == expected; };
            EXPECT_TRUE(owtest::PumpUntil(drawn));
        };
        Show(MB_OK | type, look);
    }
}

TEST(MessageBoxSize, StaysOnTheScreenWithATextThatIsTooLongForIt)
{
    const CString text = Repeat(kPangram, 10000 / 65 + 1) + L"END";
    ASSERT_GT(text.GetLength(), 10000);
    Show(
        MB_YESNO | MB_ICONWARNING,
        [&](CWnd& box)
        {
            CRect window, work;
            box.GetWindowRect(window);
            ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
            EXPECT_EQ(window & work, window) << "nothing of it is outside";
            EXPECT_EQ(PlaceOf(box, kSecond).bottom, ClientSize(box).cy - 12);

            CEdit& message = MessageOf(box);
            EXPECT_EQ(TextOf(message), text.GetString());
            EXPECT_NE(message.GetStyle() & WS_VSCROLL, 0u);
            EXPECT_EQ(PlaceOf(box, kMessage).Height() % 13, 0) << "no half lines";
            EXPECT_EQ(message.GetFirstVisibleLine(), 0);
            owtest::Press(VK_NEXT);
            EXPECT_TRUE(owtest::PumpUntil([&] { return message.GetFirstVisibleLine() > 10; }));
            owtest::Press(VK_PRIOR);
            EXPECT_TRUE(owtest::PumpUntil([&] { return message.GetFirstVisibleLine() == 0; }));
            box.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
            EXPECT_EQ(message.GetFirstVisibleLine(), 3);
        },
        text);
}

// ---- Language -------------------------------------------------------------------------------------------

TEST(MessageBoxLanguage, IsThatOfTheCatalogue)
{
    const wchar_t* const text = L"Brisanje tekuce konfiguracije?";
    const auto look = [&]
    {
        std::wstring seen;
        owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                seen = TextOf(box) + L'|' + TextOf(MessageOf(box)) + L'|' + TextOf(*box.GetDlgItem(kFirst)) +
                       L'|' + TextOf(*box.GetDlgItem(kSecond));
            });
        COstrelMessageBox::MessageBox(text, L"Greska", 0, L"Snimi", L"Cancel", L"", L"");
        return seen;
    };
    EXPECT_EQ(look(), L"Greska|Brisanje tekuce konfiguracije?|Snimi|Cancel");
    const owtest::EnglishTexts english;
    EXPECT_EQ(look(), L"Error|Delete the current configuration?|Save|Cancel");
}

TEST(MessageBoxLanguage, TheErrorBoxesAreTranslatedWithTheCodeInThem)
{
    const auto look = [](auto open)
    {
        std::wstring seen;
        owtest::ModalVisit visit([&](CWnd& box) { seen = TextOf(box) + L'|' + TextOf(MessageOf(box)); });
        EXPECT_EQ(open(12), 0);
        EXPECT_EQ(visit.Count(), 1);
        return seen;
    };
    EXPECT_EQ(look(&COstrelMessageBox::ErrorBoxP), L"Greska|Provera zastite programa nije uspela (12).");
    EXPECT_EQ(look(&COstrelMessageBox::ErrorBoxL), L"Greska|Provera licence programa nije uspela (12).");
    const owtest::EnglishTexts english;
    EXPECT_EQ(look(&COstrelMessageBox::ErrorBoxL), L"Error|The licence check failed (12).");
}

TEST(MessageBoxLanguage, TheSystemsErrorsAreShownInTheSystemsBox)
{
    const auto look = [](unsigned long error)
    {
        std::wstring seen;
        owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                seen = TextOf(box) + L'|';
                for (CWnd* child = box.GetWindow(GW_CHILD); child; child = child->GetNextWindow())
                {
                    if (child->GetDlgCtrlID() == 0xFFFF)
                        seen += TextOf(*child);
                }
                owtest::Press(VK_RETURN);
            });
        EXPECT_EQ(COstrelMessageBox::ErrorBox(error), 0);
        EXPECT_EQ(visit.Count(), 1);
        return seen;
    };
    EXPECT_EQ(look(ERROR_FILE_NOT_FOUND).substr(0, 7), L"Greska|");
    EXPECT_NE(look(ERROR_FILE_NOT_FOUND), look(ERROR_ACCESS_DENIED));
    EXPECT_EQ(look(0x2FFFFFFF), L"Greska|") << "a code that nobody knows";
}

// ---- A box that is prepared piece by piece --------------------------------------------------------------

TEST(PreparedMessageBox, ShowsWhatItWasGivenAsOftenAsItIsAsked)
{
    COstrelMessageBox box(nullptr);
    box.Set(kOneLine, L"Caption");
    box.SetButtonText(3, L"Treci");
    box.SetButtonText(2, L"Drugi");
    for (int round = 0; round < 2; ++round)
    {
        owtest::ModalVisit click(
            [](CWnd& shown)
            {
                EXPECT_EQ(TextOf(shown), L"Caption");
                EXPECT_EQ(TextOf(MessageOf(shown)), kOneLine);
                EXPECT_EQ(TextOf(*shown.GetDlgItem(kFirst)), L"OK");
                EXPECT_EQ(TextOf(*shown.GetDlgItem(kSecond)), L"Drugi");
                owtest::Click(*shown.GetDlgItem(kThird));
            });
        EXPECT_EQ(box.DoModal(), 3);
        owtest::ModalVisit escape(&PressEscape);
        EXPECT_EQ(box.DoModal(), 0) << "whatever was pressed the last time";
    }
}

TEST(PreparedMessageBox, OpensNothingWithoutAText)
{
    owtest::ModalVisit visit(&PressEscape);
    COstrelMessageBox box(nullptr);
    box.SetButtonText(1, L"Prvi");
    EXPECT_EQ(box.DoModal(), 0);
    EXPECT_EQ(visit.Count(), 0);
}

TEST(PreparedMessageBox, OpensWhenItsParentIsGone)
{
    OwnerWindow owner;
    COstrelMessageBox box(&owner);
    box.Set(kOneLine, L"");
    owner.DestroyWindow();
    owtest::ModalVisit visit(&PressEnter);
    EXPECT_EQ(box.DoModal(), 1);
}

// ---- Surroundings ---------------------------------------------------------------------------------------

TEST(MessageBoxOwner, IsTheWindowWithTheFocusAndWaits)
{
    OwnerWindow owner;
    ASSERT_TRUE(owtest::Activate(owner));
    owner.SetFocus();
    Show(MB_OK,
         [&](CWnd& box)
         {
             EXPECT_EQ(box.GetWindow(GW_OWNER), &owner);
             EXPECT_FALSE(owner.IsWindowEnabled());
             CRect over, window;
             owner.GetWindowRect(over);
             box.GetWindowRect(window);
             EXPECT_LE(std::abs(over.CenterPoint().x - window.CenterPoint().x), 1) << "centred";
         });
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(MessageBoxResources, AreTheHostsOwnAgainAfterwards)
{
    const HINSTANCE before = AfxGetResourceHandle();
    Show(MB_YESNO | MB_ICONQUESTION,
         [&](CWnd&)
         {
             EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 1);
             EXPECT_NE(AfxGetResourceHandle(), before);
         });
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(MessageBoxResources, AreGivenBackByManyBoxes)
{
    const CString longText = Repeat(kPangram, 160);
    const auto round = [&](bool bLong)
    {
        owtest::ModalVisit visit([](CWnd& box) { box.SendMessage(WM_COMMAND, IDCANCEL); });
        COstrelMessageBox::MessageBox(bLong ? longText : CString(kOneLine), L"Caption",
                                      MB_YESNOCANCEL | MB_ICONERROR);
    };
    round(true); // what is made once for the process
    round(false);
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 30; ++i)
        round(i == 0);
    EXPECT_EQ(owtest::CountHandles(), before);

    CButtonST button;
    EXPECT_EQ(button.SetIcon(CButtonST::hIconOk), CButtonST::resultOk) << "the shared icons live on";
}

// ---- Misuse ends the process ----------------------------------------------------------------------------

OW_CHILD_SCENARIO(button_number_0)
{
    COstrelMessageBox(nullptr).SetButtonText(0, L"");
}

OW_CHILD_SCENARIO(button_number_5)
{
    COstrelMessageBox(nullptr).SetButtonText(5, L"");
}

OW_CHILD_SCENARIO(icon_of_standard_box)
{
    COstrelMessageBox::MessageBox(kOneLine, L"", MB_OK | 0x50);
}

OW_CHILD_SCENARIO(icon_of_free_box)
{
    COstrelMessageBox::MessageBox(kOneLine, L"", MB_YESNO | MB_ICONERROR, L"", L"", L"", L"");
}

/// A box of the type in which a button is pressed that it does not show.
static void PressHidden(unsigned int type, int button)
{
    owtest::ModalVisit visit([=](CWnd& box) { box.SendMessage(WM_COMMAND, MAKEWPARAM(button, BN_CLICKED)); });
    COstrelMessageBox::MessageBox(kOneLine, L"", type);
}

OW_CHILD_SCENARIO(hidden_button_of_ok_cancel)
{
    PressHidden(MB_OKCANCEL, kThird);
}

OW_CHILD_SCENARIO(hidden_button_of_yes_no)
{
    PressHidden(MB_YESNO, kThird);
}

OW_CHILD_SCENARIO(hidden_button_of_yes_no_cancel)
{
    PressHidden(MB_YESNOCANCEL, kFourth);
}

TEST(MessageBoxMisuse, EndsTheProcessWithAReportOfItsPlace)
{
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"button_number_0", L"[.\\OstrelMessageBox : 273]\nVrednost za <n> mora biti od 1 do 4!"},
        {"button_number_5", L"[.\\OstrelMessageBox : 273]\nVrednost za <n> mora biti od 1 do 4!"},
        {"icon_of_standard_box", L"[.\\OstrelMessageBox : 194]\nNedozvoljena vrednost."},
        {"icon_of_free_box", L"[.\\OstrelMessageBox : 194]\nNedozvoljena vrednost."},
        {"hidden_button_of_ok_cancel", L"[.\\OstrelMessageBox : 324]\nNedozvoljena vrednost."},
        {"hidden_button_of_yes_no", L"[.\\OstrelMessageBox : 330]\nNedozvoljena vrednost."},
        {"hidden_button_of_yes_no_cancel", L"[.\\OstrelMessageBox : 337]\nNedozvoljena vrednost."},
    };
    for (const auto& [scenario, report] : cases)
    {
        SCOPED_TRACE(scenario);
        owtest::ExpectInternalError(owtest::RunChild(scenario), report);
    }
}
