// The message box as a user meets it: keys, clicks, sizes, languages; and what ends the process.

#include "BoxParts.h"

#include "EnglishTexts.h"
#include "FatalReport.h"
#include "ImportStandIn.h"

#include <dialogs/MessageBoxLayout.h>

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

CEdit& MessageOf(CWnd& box)
{
    return *static_cast<CEdit*>(box.GetDlgItem(kMessage));
}

/// Caption, text and the captions of the buttons that are shown, with bars between.
std::wstring TextsOf(CWnd& box)
{
    std::wstring texts = TextOf(box) + L'|' + TextOf(MessageOf(box));
    for (int id : {kFirst, kSecond, kThird, kFourth})
        if (box.GetDlgItem(id)->IsWindowVisible())
            texts += L'|' + TextOf(*box.GetDlgItem(id));
    return texts;
}

CSize ClientSize(CWnd& box)
{
    CRect client;
    box.GetClientRect(client);
    return client.Size();
}

/// Answer and texts of a box that `open` opens.
using Outcome = std::pair<int, std::wstring>;

Outcome Visit(const std::function<int()>& open, const Visitor& visitor)
{
    std::wstring texts;
    owtest::ModalVisit visit(
        [&](CWnd& box)
        {
            texts = TextsOf(box);
            visitor(box);
            if (box.IsWindowVisible())
                texts += L" - still open";
        });
    const int answer = open();
    EXPECT_EQ(visit.Count(), 1);
    return {answer, texts};
}

Outcome Show(unsigned int type, const Visitor& visitor, const wchar_t* text = L"Text")
{
    return Visit([=] { return COstrelMessageBox::MessageBox(text, L"Caption", type); }, visitor);
}

Outcome ShowFree(std::initializer_list<CString> texts, const Visitor& visitor)
{
    const CString* b = texts.begin();
    const auto open = [=]
    { return COstrelMessageBox::MessageBox(L"Greska", L"Snimi", 0, b[0], b[1], b[2], b[3]); };
    return Visit(open, visitor);
}
} // namespace

TEST(OstrelMessageBox, AnswersWithTheButtonPressedAsTheSystemsDoes)
{
    const Visitor close = [](CWnd& box)
    {
        box.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
        owtest::Pump();
    };
    const Visitor tabAndEnter = [](CWnd&)
    {
        owtest::Press(VK_TAB);
        owtest::Press(VK_RETURN); // presses what has the focus
    };
    const std::wstring ok = L"|OK", okCancel = L"|OK|Cancel", yesNo = L"|Yes|No",
                       yesNoCancel = L"|Yes|No|Cancel";
    const std::tuple<unsigned int, std::wstring, Visitor, int> cases[] = {
        {MB_OK, ok, PressEnter, IDOK},
        {MB_OK, ok, PressEscape, IDOK}, // there is no other answer
        {MB_OKCANCEL, okCancel, PressEnter, IDOK},
        {MB_OKCANCEL, okCancel, PressEscape, IDCANCEL},
        {MB_OKCANCEL, okCancel, ClickOn(kSecond), IDCANCEL},
        {MB_YESNO, yesNo, PressEnter, IDYES},
        {MB_YESNO, yesNo, close, IDNO},
        {MB_YESNO, yesNo, ClickOn(kSecond), IDNO},
        {MB_YESNOCANCEL, yesNoCancel, ClickOn(kFirst), IDYES},
        {MB_YESNOCANCEL, yesNoCancel, tabAndEnter, IDNO},
        {MB_YESNOCANCEL, yesNoCancel, ClickOn(kThird), IDCANCEL},
        {MB_YESNOCANCEL, yesNoCancel, PressEscape, IDCANCEL},
        {MB_ABORTRETRYIGNORE, ok, PressEscape, IDOK}, // buttons that it does not have: OK alone
    };
    for (const auto& [type, buttons, visitor, answer] : cases)
        EXPECT_EQ(Show(type, visitor), Outcome(answer, L"Caption|Text" + buttons)) << type;

    EXPECT_EQ(ShowFree({L"Zameni", L"Sve", L"Ne", L"Cancel"}, ClickOn(kThird)),
              Outcome(3, L"Snimi|Greska|Zameni|Sve|Ne|Cancel"));
    EXPECT_EQ(ShowFree({L"Zameni", L"Sve", L"Ne", L"Cancel"}, ClickOn(kFourth)).first, 4);
    EXPECT_EQ(ShowFree({L"A", L"B", L"", L""}, PressEscape).first, 2) << "the last one";
    EXPECT_EQ(ShowFree({L"", L"", L"", L""}, PressEnter), Outcome(1, L"Snimi|Greska|OK"));
    EXPECT_EQ(ShowFree({L"", L"", L"", L""}, PressEscape).first, 0) << "no button has a text";
    EXPECT_EQ(ShowFree({L"", L"", L"C", L""}, PressEscape), Outcome(3, L"Snimi|Greska|OK||C"))
        << "a blank one";

    const owtest::EnglishTexts english;
    EXPECT_EQ(ShowFree({L"Ucitaj", L"Cancel", L"", L""}, PressEnter), Outcome(1, L"Save|Error|Load|Cancel"));
}

TEST(OstrelMessageBox, HasIconsOnOkAndCancelOnlyAndTheFocusOnItsFirstButton)
{
    const auto look = [](CWnd& box)
    {
        for (const int id : {kFirst, kThird})
            EXPECT_GT(CountColoured(box, id), 10) << id;
        for (const int id : {kSecond, kFourth})
            EXPECT_EQ(CountColoured(box, id), 0) << id;
        EXPECT_EQ(::SendMessage(box, WM_GETICON, ICON_SMALL, 0),
                  reinterpret_cast<LRESULT>(CButtonST::hIconBlueOn));
        const auto hasFocus = [&](int id)
        { return owtest::PumpUntil([&, id] { return ::GetFocus() == box.GetDlgItem(id)->m_hWnd; }); };
        EXPECT_TRUE(hasFocus(kFirst));
        owtest::Press(VK_TAB);
        EXPECT_TRUE(hasFocus(kSecond));
        owtest::Click(MessageOf(box));
        EXPECT_TRUE(hasFocus(kFirst)) << "a click on the text gives it back";
    };
    ShowFree({L"OK", L"Ok", L"Cancel", L"Cancel all"}, look);
}

/// Whether the text has the least width with the fewest lines, and all else stands around it.
static void ExpectArranged(CWnd& box, int left)
{
    constexpr int kMargin = 12, kGap = 8;
    const CRect place = PlaceOf(box, kMessage), button = PlaceOf(box, kFirst);
    const auto linesAt = [&](int width)
    {
        MessageOf(box).SetWindowPos(nullptr, 0, 0, width, 39, SWP_NOMOVE | SWP_NOZORDER);
        return MessageOf(box).GetLineCount();
    };
    const int fewest = linesAt(500);
    int least = fewest == 1 ? 200 : 205;
    while (linesAt(least) != fewest)
        least += 5;
    const auto shown = [&](int id) { return box.GetDlgItem(id)->IsWindowVisible(); };
    const int row = (shown(kSecond) ? shown(kThird) ? 3 : 2 : 1) * (button.Width() + kGap) - kGap;
    EXPECT_EQ(place, CRect(CPoint(left, kMargin), CSize(std::max(least, row), std::max(39, 13 * fewest))));
    EXPECT_EQ(ClientSize(box),
              CSize(place.right, place.bottom + kMargin + button.Height()) + CSize(kMargin, kMargin));
    CPoint at(ClientSize(box).cx / 2 - row / 2, place.bottom + kMargin);
    for (const int id : {kFirst, kSecond, kThird})
    {
        EXPECT_TRUE(!shown(id) || PlaceOf(box, id).TopLeft() == at) << id;
        at.x += button.Width() + kGap;
    }
}

TEST(MessageBoxSize, IsTheLeastWidthWithTheFewestLines)
{
    for (const CString& text :
         {CString(kOneLine), CString(kPangram), Repeat(kPangram, 8), CString(L"One\r\nTwo")})
        for (const unsigned int type : {MB_OK, MB_YESNO, MB_YESNOCANCEL})
            Show(
                type, [](CWnd& box) { ExpectArranged(box, 12); }, text);

    const std::pair<unsigned int, HICON> icons[] = {{MB_ICONERROR, CButtonST::hIconError},
                                                    {MB_ICONQUESTION, CButtonST::hIconQuestion},
                                                    {MB_ICONWARNING, CButtonST::hIconWarning},
                                                    {MB_ICONINFORMATION, CButtonST::hIconInformation}};
    for (const auto& [type, icon] : icons)
    {
        owtest::Surface expected(32, 32, ::GetSysColor(COLOR_BTNFACE)), seen(32, 32);
        expected.dc().DrawIcon(0, 0, icon);
        const auto withIcon = [&](CWnd& box)
        {
            CClientDC dc(&box);
            const auto drawn = [&]
            { return seen.dc().BitBlt(0, 0, 32, 32, &dc, 12, 12, SRCCOPY) && seen == expected; };
            EXPECT_TRUE(owtest::PumpUntil(drawn));
            ExpectArranged(box, 56);
        };
        Show(MB_OK | type, withIcon, kOneLine);
    }
}

TEST(MessageBoxSize, StaysOnTheScreenWithATextThatIsTooLongForIt)
{
    const CString text = Repeat(kPangram, 10000 / 65 + 1) + L"END";
    const auto look = [&](CWnd& box)
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
    };
    Show(MB_YESNO | MB_ICONWARNING, look, text);
}

// The arrangement as numbers, on screens that are not at hand.
TEST(MessageBoxSize, FollowsTheScreensResolution)
{
    const auto layout = [](int nButtons, double dScale, int nTextWidth, int nTextHeight)
    {
        CMessageBoxLayout made(CSize(81, 26), nButtons, dScale, CSize(6, 25), false);
        made.SetText(nTextWidth, nTextHeight);
        return made;
    };
    const auto box = layout(3, 1.25, 200, 39); // 120 dots per inch
    EXPECT_EQ(box.Text(), CRect(12, 12, 12 + 323, 51)) << "as wide as the scaled row of 259";
    EXPECT_EQ(box.Window(), CSize(441, 157)) << "353 by 126 scaled";
    // 347 / 2 - 323 / 2 is 12, a step is 89 scaled to 111; both are scaled again to where the button goes.
    EXPECT_EQ(box.Button(0), CPoint(15, 78));
    EXPECT_EQ(CPoint(box.Button(1).x, box.Button(2).x), CPoint(153, 292));
    for (const int nHeight : {600, 768, 1024})
        for (const double dScale : {1.0, 1.25, 2.0})
        {
            const int nLines = layout(1, dScale, 500, 39).MaxLines(nHeight);
            EXPECT_LE(layout(1, dScale, 500, nLines * 13).Window().cy, nHeight);
            EXPECT_GT(layout(1, dScale, 500, (nLines + 1) * 13).Window().cy, nHeight);
        }
    EXPECT_EQ(layout(1, 1.0, 200, 39).MaxLines(50), 3) << "the least text stays, whatever the screen";
}

static std::wstring s_box; ///< by the stand-in for the system's

static int WINAPI NoteBox(HWND, LPCWSTR pszText, LPCWSTR pszCaption, UINT nType)
{
    EXPECT_EQ(nType, UINT{MB_ICONERROR | MB_TASKMODAL});
    s_box = std::wstring(pszCaption) + L'|' + (pszText ? pszText : L"");
    return IDOK;
}

TEST(ErrorBoxes, AreTranslatedWithTheCodeInThem)
{
    const auto boxP = [] { return COstrelMessageBox::ErrorBoxP(12); };
    const auto boxL = [] { return COstrelMessageBox::ErrorBoxL(12); };
    EXPECT_EQ(Visit(boxP, PressEscape), Outcome(0, L"Greska|Provera zastite programa nije uspela (12).|OK"));
    EXPECT_EQ(Visit(boxL, PressEscape), Outcome(0, L"Greska|Provera licence programa nije uspela (12).|OK"));
    {
        const owtest::EnglishTexts english;
        EXPECT_EQ(Visit(boxL, PressEscape), Outcome(0, L"Error|The licence check failed (12).|OK"));
    }
    const owtest::ImportStandIn noBox(L"DialogControlsOW.dll", "MessageBoxW", &NoteBox);
    const auto systems = [](unsigned long error)
    {
        EXPECT_EQ(COstrelMessageBox::ErrorBox(error), 0);
        return s_box;
    };
    EXPECT_EQ(systems(ERROR_FILE_NOT_FOUND).substr(0, 7), L"Greska|");
    EXPECT_NE(systems(ERROR_FILE_NOT_FOUND), systems(ERROR_ACCESS_DENIED));
    EXPECT_EQ(systems(0x2FFFFFFF), L"Greska|") << "a code that nobody knows";
}

TEST(PreparedMessageBox, ShowsWhatItWasGivenAsOftenAsItIsAsked)
{
    auto owner = std::make_unique<OwnerWindow>();
    COstrelMessageBox box(owner.get());
    box.SetButtonText(3, L"Treci");
    EXPECT_EQ(box.DoModal(), 0) << "opens nothing without a text";
    box.Set(kOneLine, L"Caption");
    box.SetButtonText(2, L"Drugi");
    const auto show = [&] { return box.DoModal(); };
    EXPECT_EQ(Visit(show, ClickOn(kThird)), Outcome(3, L"Caption|Short message|OK|Drugi|Treci"));
    owner->DestroyWindow();
    EXPECT_EQ(Visit(show, PressEscape).first, 0) << "whatever was pressed the last time";
}

/// A box of the type in which a button is pressed that it does not show.
static void PressHidden(unsigned int type, int button)
{
    Show(type, [=](CWnd& box) { box.SendMessage(WM_COMMAND, MAKEWPARAM(button, BN_CLICKED)); });
}

static const std::pair<std::function<void()>, const wchar_t*> kMisuses[] = {
    {[] { COstrelMessageBox(nullptr).SetButtonText(0, L""); }, L"273]\nVrednost za <n> mora biti od 1 do 4!"},
    {[] { COstrelMessageBox(nullptr).SetButtonText(5, L""); }, L"273]\nVrednost za <n> mora biti od 1 do 4!"},
    {[] { COstrelMessageBox::MessageBox(kOneLine, L"", MB_OK | 0x50); }, L"194]\nNedozvoljena vrednost."},
    {[] { COstrelMessageBox::MessageBox(kOneLine, L"", MB_YESNO | MB_ICONERROR, L"", L"", L"", L""); },
     L"194]\nNedozvoljena vrednost."},
    {[] { PressHidden(MB_OKCANCEL, kThird); }, L"324]\nNedozvoljena vrednost."},
    {[] { PressHidden(MB_YESNO, kThird); }, L"330]\nNedozvoljena vrednost."},
    {[] { PressHidden(MB_YESNOCANCEL, kFourth); }, L"337]\nNedozvoljena vrednost."},
};

OW_CHILD_SCENARIO(misuse)
{
    wchar_t number[4] = L"";
    ::GetEnvironmentVariableW(L"OW_MISUSE", number, ARRAYSIZE(number));
    kMisuses[_wtoi(number)].first();
}

TEST(MessageBoxMisuse, EndsTheProcessWithAReportOfItsPlace)
{
    for (size_t i = 0; i < std::size(kMisuses); ++i)
    {
        SCOPED_TRACE(i);
        const auto result = owtest::RunChild("misuse", {.environment = {{L"OW_MISUSE", std::to_wstring(i)}}});
        owtest::ExpectInternalError(result, std::wstring(L"[.\\OstrelMessageBox : ") + kMisuses[i].second);
    }
}
