// The message box as a user meets it: keys, clicks, sizes, languages; and what ends the process.

#include "BoxParts.h"

#include "FatalReport.h"
#include "ImportStandIn.h"

#include <dialogs/MessageBoxLayout.h>

namespace
{
const wchar_t* const kOneLine = L"Short message";
const CString kPangram = L"Dva stuba i tri grede u osi C nisu povezana sa temeljnom gredom. ";

CString Repeat(const CString& text, int count)
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
            texts = TextsOf(box, {kMessage, kFirst, kSecond, kThird, kFourth});
            visitor(box);
            if (box.IsWindowVisible())
                texts += L" - still open";
        });
    const int answer = open();
    EXPECT_EQ(visit.Count(), 1);
    return {answer, texts};
}

Outcome Show(unsigned int type, const Visitor& visitor, const CString& text = L"Text")
{
    return Visit([=] { return COstrelMessageBox::MessageBox(text, L"Caption", type); }, visitor);
}

Outcome ShowFree(std::array<CString, 4> b, const Visitor& visitor)
{
    return Visit([=]
                 { return COstrelMessageBox::MessageBox(L"Greska", L"Snimi", 0, b[0], b[1], b[2], b[3]); },
                 visitor);
}
} // namespace

TEST(OstrelMessageBox, AnswersWithTheButtonPressedAsTheSystemsDoes)
{
    const std::tuple<unsigned int, Visitor, Outcome> cases[] = {
        {MB_OK, PressEnter, {IDOK, L"OK"}},
        {MB_OK, PressEscape, {IDOK, L"OK"}}, // there is no other answer
        {MB_OKCANCEL, PressEnter, {IDOK, L"OK|Cancel"}},
        {MB_OKCANCEL, PressEscape, {IDCANCEL, L"OK|Cancel"}},
        {MB_YESNO, PressEnter, {IDYES, L"Yes|No"}},
        {MB_YESNO, ClickOn(kSecond), {IDNO, L"Yes|No"}},
        {MB_YESNO, PressEscape, {IDNO, L"Yes|No"}},
        {MB_YESNOCANCEL, ClickOn(kFirst), {IDYES, L"Yes|No|Cancel"}},
        {MB_YESNOCANCEL, ClickOn(kSecond), {IDNO, L"Yes|No|Cancel"}},
        {MB_YESNOCANCEL, ClickOn(kThird), {IDCANCEL, L"Yes|No|Cancel"}},
        {MB_YESNOCANCEL, PressEscape, {IDCANCEL, L"Yes|No|Cancel"}},
        {MB_ABORTRETRYIGNORE, PressEscape, {IDOK, L"OK"}}, // buttons that it does not have: OK alone
    };
    for (const auto& [type, visitor, outcome] : cases)
        EXPECT_EQ(Show(type, visitor), Outcome(outcome.first, L"Caption|Text|" + outcome.second)) << type;

    const std::tuple<std::array<CString, 4>, Visitor, Outcome> own[] = {
        {{L"Zameni", L"Sve", L"Ne", L"Cancel"}, ClickOn(kThird), {3, L"Zameni|Sve|Ne|Cancel"}},
        {{L"Zameni", L"Sve", L"Ne", L"Cancel"}, ClickOn(kFourth), {4, L"Zameni|Sve|Ne|Cancel"}},
        {{L"A", L"B", L"", L""}, PressEscape, {2, L"A|B"}}, // the last one
        {{L"", L"", L"", L""}, PressEnter, {1, L"OK"}},
        {{L"", L"", L"", L""}, PressEscape, {0, L"OK"}}, // no button has a text
        {{L"", L"", L"C", L""}, PressEscape, {3, L"OK||C"}}};
    for (const auto& [texts, visitor, outcome] : own)
        EXPECT_EQ(ShowFree(texts, visitor), Outcome(outcome.first, L"Snimi|Greska|" + outcome.second));
    const owtest::EnglishTexts english;
    EXPECT_EQ(ShowFree({L"Ucitaj", L"Cancel", L"", L""}, PressEnter), Outcome(1, L"Save|Error|Load|Cancel"));
}

TEST(OstrelMessageBox, HasIconsOnOkAndCancelOnlyAndTheFocusOnItsFirstButton)
{
    const auto look = [](CWnd& box)
    {
        for (const int id : {kFirst, kSecond, kThird, kFourth})
            EXPECT_EQ(CountColoured(box, id) > 10, id == kFirst || id == kThird) << id;
        EXPECT_EQ(::SendMessage(box, WM_GETICON, ICON_SMALL, 0),
                  reinterpret_cast<LRESULT>(CButtonST::hIconBlueOn));
        const auto expectFocus = [&](int id)
        { EXPECT_TRUE(owtest::PumpUntil([&, id] { return ::GetFocus() == box.GetDlgItem(id)->m_hWnd; })); };
        expectFocus(kFirst);
        owtest::Press(VK_TAB);
        expectFocus(kSecond);
        owtest::Click(MessageOf(box)); // gives it back
        expectFocus(kFirst);
    };
    ShowFree({L"OK", L"Ok", L"Cancel", L"Cancel all"}, look);
}

/// Whether the text has the least width with the fewest lines, and all else stands around it.
static void ExpectArranged(CWnd& box, int left, int buttons)
{
    constexpr int kMargin = 12, kGap = 8;
    const CRect place = PlaceOf(box, kMessage), button = PlaceOf(box, kFirst);
    const auto linesAt = [&](int width)
    {
        MessageOf(box).SetWindowPos(nullptr, 0, 0, width, 39, SWP_NOMOVE | SWP_NOZORDER);
        return MessageOf(box).GetLineCount();
    };
    const int fewest = linesAt(500), row = buttons * (button.Width() + kGap) - kGap;
    int least = fewest == 1 ? 200 : 205;
    while (linesAt(least) != fewest)
        least += 5;
    EXPECT_EQ(place, CRect(CPoint(left, kMargin), CSize(std::max(least, row), std::max(39, 13 * fewest))));
    EXPECT_EQ(ClientSize(box),
              CSize(place.right, place.bottom + kMargin + button.Height()) + CSize(kMargin, kMargin));
    const CPoint first(ClientSize(box).cx / 2 - row / 2, place.bottom + kMargin);
    for (int i = 0; i < buttons; ++i)
        EXPECT_EQ(PlaceOf(box, i ? kSecond + i - 1 : kFirst).TopLeft(),
                  first + CSize(i * (button.Width() + kGap), 0));
}

TEST(MessageBoxSize, IsTheLeastWidthWithTheFewestLines)
{
    for (const CString& text : {CString(kOneLine), kPangram, Repeat(kPangram, 8), CString(L"One\r\nTwo")})
        for (const auto& [type, buttons] : {std::pair{MB_OK, 1}, {MB_YESNO, 2}, {MB_YESNOCANCEL, 3}})
            Show(
                type, [buttons = buttons](CWnd& box) { ExpectArranged(box, 12, buttons); }, text);

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
            EXPECT_TRUE(owtest::PumpUntil(
                [&] { return seen.dc().BitBlt(0, 0, 32, 32, &dc, 12, 12, SRCCOPY) && seen == expected; }));
            ExpectArranged(box, 56, 1);
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
        EXPECT_TRUE(TextOf(message) == text.GetString() && message.GetStyle() & WS_VSCROLL);
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

TEST(ErrorBoxes, AreTranslatedWithTheCodeInThem)
{
    const auto boxL = [] { return COstrelMessageBox::ErrorBoxL(12); };
    EXPECT_EQ(Visit([] { return COstrelMessageBox::ErrorBoxP(12); }, PressEscape),
              Outcome(0, L"Greska|Provera zastite programa nije uspela (12).|OK"));
    EXPECT_EQ(Visit(boxL, PressEscape), Outcome(0, L"Greska|Provera licence programa nije uspela (12).|OK"));
    {
        const owtest::EnglishTexts english;
        EXPECT_EQ(Visit(boxL, PressEscape), Outcome(0, L"Error|The licence check failed (12).|OK"));
    }
    static std::wstring s_box;
    const auto noteBox = [](HWND, LPCWSTR pszText, LPCWSTR pszCaption, UINT nType) -> int
    {
        EXPECT_EQ(nType, UINT{MB_ICONERROR | MB_TASKMODAL});
        s_box = std::wstring(pszCaption) + L'|' + (pszText ? pszText : L"");
        return IDOK;
    };
    const owtest::ImportStandIn noBox(L"DialogControlsOW.dll", "MessageBoxW", +noteBox);
    const auto systems = [](unsigned long error) { return COstrelMessageBox::ErrorBox(error) ? L"" : s_box; };
    EXPECT_EQ(systems(ERROR_FILE_NOT_FOUND).substr(0, 7), L"Greska|");
    EXPECT_NE(systems(ERROR_FILE_NOT_FOUND), systems(ERROR_ACCESS_DENIED));
    EXPECT_EQ(systems(0x2FFFFFFF), L"Greska|") << "a code that nobody knows";
}

TEST(PreparedMessageBox, ShowsWhatItWasGivenAsOftenAsItIsAsked)
{
    OwnerWindow owner;
    COstrelMessageBox box(&owner);
    box.SetButtonText(3, L"Treci");
    EXPECT_EQ(box.DoModal(), 0) << "opens nothing without a text";
    box.Set(kOneLine, L"Caption");
    box.SetButtonText(2, L"Drugi");
    const auto show = [&] { return box.DoModal(); };
    EXPECT_EQ(Visit(show, ClickOn(kThird)), Outcome(3, L"Caption|Short message|OK|Drugi|Treci"));
    owner.DestroyWindow();
    EXPECT_EQ(Visit(show, PressEscape).first, 0) << "whatever was pressed the last time";
}

/// A box of the type in which a button is pressed that it does not show.
static void PressHidden(unsigned int type, int button)
{
    Show(type, [=](CWnd& box) { box.SendMessage(WM_COMMAND, MAKEWPARAM(button, BN_CLICKED)); });
}

// By the line of the report.
static const owtest::ScenarioRegistration s_misuses[] = {
    {"273", [] { COstrelMessageBox(nullptr).SetButtonText(0, L""); }},
    {"273-beyond", [] { COstrelMessageBox(nullptr).SetButtonText(5, L""); }},
    {"194", [] { Show(MB_OK | 0x50, PressEnter); }},
    {"194-buttons",
     [] { COstrelMessageBox::MessageBox(L"", L"", MB_YESNO | MB_ICONERROR, L"", L"", L"", L""); }},
    {"324", [] { PressHidden(MB_OKCANCEL, kThird); }},
    {"330", [] { PressHidden(MB_YESNO, kThird); }},
    {"337", [] { PressHidden(MB_YESNOCANCEL, kFourth); }}};

TEST(MessageBoxMisuse, EndsTheProcessWithAReportOfItsPlace)
{
    for (const char* scenario : {"273", "273-beyond", "194", "194-buttons", "324", "330", "337"})
    {
        const std::wstring line(scenario, scenario + 3);
        const wchar_t* text =
            line == L"273" ? L"Vrednost za <n> mora biti od 1 do 4!" : L"Nedozvoljena vrednost.";
        owtest::ExpectInternalError(owtest::RunChild(scenario),
                                    L"[.\\OstrelMessageBox : " + line + L"]\n" + text);
    }
}
