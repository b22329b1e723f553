// The message box as a user meets it: keys, clicks, sizes, languages; and what ends the process.

#include "BoxParts.h"

#include <dialogs/MessageBoxLayout.h>

namespace
{
const std::wstring kPangram = L"Dva stuba i tri grede u osi C nisu povezana sa temeljnom gredom. ";

struct MessageBoxes : ::testing::Test
{
    static CEdit& MessageOf(CWnd& box) { return *static_cast<CEdit*>(box.GetDlgItem(kMessage)); }

    /// Texts of the box that `open` opens, and what it answers.
    static std::wstring Visit(const std::function<int()>& open, const Visitor& visitor)
    {
        std::wstring texts;
        const auto look = [&](CWnd& box)
        {
            texts = TextsOf(box, {kMessage, kFirst, kSecond, kThird, kFourth});
            visitor(box);
        };
        const int answer = Visited(open, look);
        return texts + L": " + std::to_wstring(answer);
    }
    static std::wstring Show(unsigned int type, const Visitor& visitor, const std::wstring& text = L"Text")
    {
        return Visit([&] { return COstrelMessageBox::MessageBox(text.c_str(), L"Caption", type); }, visitor);
    }
    using Texts = std::array<const wchar_t*, 4>;
    static std::wstring ShowFree(Texts b, const Visitor& visitor)
    {
        return Visit(
            [=] { return COstrelMessageBox::MessageBox(L"Greska", L"Snimi", 0, b[0], b[1], b[2], b[3]); },
            visitor);
    }
};
} // namespace

TEST_F(MessageBoxes, AnswerWithTheButtonPressedAsTheSystemsDo)
{
    // 1 is OK, 2 Cancel, 6 Yes and 7 No.
    const std::tuple<unsigned int, Visitor, std::wstring> standard[] = {
        {MB_OK, PressEnter, L"OK: 1"},
        {MB_OK, PressEscape, L"OK: 1"}, // there is no other answer
        {MB_OKCANCEL, PressEscape, L"OK|Cancel: 2"},
        {MB_YESNO, ClickOn(kSecond), L"Yes|No: 7"},
        {MB_YESNOCANCEL, PressEnter, L"Yes|No|Cancel: 6"},
        {MB_ABORTRETRYIGNORE, PressEscape, L"OK: 1"}, // buttons that it does not have: OK alone
    };
    for (const auto& [type, visitor, outcome] : standard)
        EXPECT_EQ(Show(type, visitor), L"Caption|Text|" + outcome) << type;

    const std::tuple<Texts, Visitor, std::wstring> own[] = {
        {{L"Zameni", L"Sve", L"Ne", L"Cancel"}, ClickOn(kFourth), L"Zameni|Sve|Ne|Cancel: 4"},
        {{L"A", L"B", L"", L""}, PressEscape, L"A|B: 2"}, // the last one
        {{L"", L"", L"", L""}, PressEnter, L"OK: 1"},
        {{L"", L"", L"", L""}, PressEscape, L"OK: 0"}, // no button has a text
        {{L"", L"", L"C", L""}, PressEscape, L"OK||C: 3"}};
    for (const auto& [texts, visitor, outcome] : own)
        EXPECT_EQ(ShowFree(texts, visitor), L"Snimi|Greska|" + outcome);
    const owtest::EnglishTexts english;
    EXPECT_EQ(ShowFree({L"Ucitaj", L"Cancel", L"", L""}, PressEnter), L"Save|Error|Load|Cancel: 1");
}

TEST_F(MessageBoxes, HaveIconsOnOkAndCancelOnlyAndTheFocusOnTheFirstButton)
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

TEST_F(MessageBoxes, HaveTheLeastWidthWithTheFewestLinesAndAllElseAroundTheText)
{
    const std::wstring two = kPangram + kPangram,
                       texts[] = {L"Short message", kPangram, two + two + two + two, L"One\r\nTwo"};
    const std::tuple<unsigned int, int, HICON> kinds[] = {
        {MB_OK, 1, nullptr},
        {MB_YESNO, 2, nullptr},
        {MB_YESNOCANCEL, 3, nullptr},
        {MB_OK | MB_ICONERROR, 1, CButtonST::hIconError},
        {MB_YESNO | MB_ICONQUESTION, 2, CButtonST::hIconQuestion},
        {MB_OK | MB_ICONWARNING, 1, CButtonST::hIconWarning},
        {MB_OK | MB_ICONINFORMATION, 1, CButtonST::hIconInformation}};
    const auto expectArranged = [](CWnd& box, int buttons, HICON icon)
    {
        owtest::Surface expected(32, 32, ::GetSysColor(COLOR_BTNFACE)), seen(32, 32);
        expected.dc().DrawIcon(0, 0, icon);
        CClientDC dc(&box);
        EXPECT_TRUE(
            !icon ||
            owtest::PumpUntil(
                [&] { return seen.dc().BitBlt(0, 0, 32, 32, &dc, 12, 12, SRCCOPY) && seen == expected; }));
        const CRect place = PlaceOf(box, kMessage);
        const auto linesAt = [&](int width)
        {
            MessageOf(box).SetWindowPos(nullptr, 0, 0, width, 39, SWP_NOMOVE | SWP_NOZORDER);
            return MessageOf(box).GetLineCount();
        };
        const int fewest = linesAt(500);
        int least = fewest == 1 ? 200 : 205;
        while (linesAt(least) != fewest)
            least += 5;
        CMessageBoxLayout layout(PlaceOf(box, kFirst).Size(), buttons, 1.0, CSize(), icon != nullptr);
        layout.SetText(least, std::max(39, 13 * fewest));
        CRect client;
        box.GetClientRect(client);
        EXPECT_TRUE(place == layout.Text() && client.Size() == layout.Window());
        for (int i = 0; i < buttons; ++i)
            EXPECT_EQ(PlaceOf(box, i ? kSecond + i - 1 : kFirst).TopLeft(), layout.Button(i));
    };
    for (const std::wstring& text : texts)
        for (const auto& [type, buttons, icon] : kinds)
            Show(type, std::bind(expectArranged, std::placeholders::_1, buttons, icon), text);
}

TEST_F(MessageBoxes, StayOnTheScreenWithATextThatIsTooLongForIt)
{
    std::wstring text;
    while (text.size() < 10000)
        text += kPangram;
    const auto look = [&](CWnd& box)
    {
        CRect window, work, client;
        box.GetWindowRect(window);
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        EXPECT_EQ(window & work, window) << "nothing of it is outside";
        box.GetClientRect(client);
        EXPECT_EQ(PlaceOf(box, kSecond).bottom, client.bottom - 12);

        CEdit& message = MessageOf(box);
        EXPECT_TRUE(TextOf(message) == text && message.GetStyle() & WS_VSCROLL);
        EXPECT_EQ(PlaceOf(box, kMessage).Height() % 13, 0) << "no half lines";
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
TEST_F(MessageBoxes, FollowTheScreensResolution)
{
    CMessageBoxLayout box(CSize(81, 26), 3, 1.25, CSize(6, 25), true); // 120 dots per inch
    box.SetText(200, 39);
    EXPECT_EQ(box.Text(), CRect(56, 12, 56 + 323, 51)) << "as wide as the scaled row of 259";
    EXPECT_EQ(box.Window(), CSize(496, 157)) << "397 by 126 scaled";
    // 391 / 2 - 323 / 2 is 34, a step is 89 scaled to 111; both are scaled again to where the button goes.
    EXPECT_EQ(box.Button(0), CPoint(42, 78));
    EXPECT_EQ(CPoint(box.Button(1).x, box.Button(2).x), CPoint(181, 320));
    EXPECT_EQ(box.MaxLines(775), 41) << "of 13, and 87 around them, make 620, which is scaled";
    EXPECT_EQ(box.MaxLines(774), 40);
    EXPECT_EQ(box.MaxLines(50), 3) << "the least text stays, whatever the screen";
}

TEST_F(MessageBoxes, OfErrorsAreTranslatedWithTheCodeInThem)
{
    {
        const owtest::EnglishTexts english;
        const auto licence = [] { return COstrelMessageBox::ErrorBoxL(12); };
        EXPECT_EQ(Visit(licence, PressEscape), L"Error|The licence check failed (12).|OK: 0");
    }
    const auto systems = [](unsigned long error)
    {
        std::wstring texts;
        const auto look = [&](CWnd& box) { texts = TextsOf(box, {0xFFFF}); };
        EXPECT_EQ(Visited([=] { return COstrelMessageBox::ErrorBox(error); }, look), 0);
        return texts;
    };
    EXPECT_EQ(systems(ERROR_FILE_NOT_FOUND).substr(0, 7), L"Greska|");
    EXPECT_NE(systems(ERROR_FILE_NOT_FOUND), systems(ERROR_ACCESS_DENIED));
    EXPECT_EQ(systems(0x2FFFFFFF), L"Greska|") << "a code that nobody knows";
}

TEST_F(MessageBoxes, ThatArePreparedShowWhatTheyWereGivenAsOftenAsTheyAreAsked)
{
    OwnerWindow owner;
    COstrelMessageBox box(&owner);
    box.SetButtonText(3, L"Treci");
    EXPECT_EQ(box.DoModal(), 0) << "opens nothing without a text";
    box.Set(L"Text", L"Caption");
    box.SetButtonText(2, L"Drugi");
    const auto show = [&] { return box.DoModal(); };
    EXPECT_EQ(Visit(show, ClickOn(kThird)), L"Caption|Text|OK|Drugi|Treci: 3");
    owner.DestroyWindow();
    EXPECT_EQ(Visit(show, PressEscape), L"Caption|Text|OK|Drugi|Treci: 0");
}

template <unsigned int nType, int nButton>
static void PressBeyond()
{
    MessageBoxes::Show(nType, [](CWnd& box) { box.SendMessage(WM_COMMAND, nButton); });
}

// By the line of the report.
static const owtest::ScenarioRegistration s_misuses[] = {
    {"273", [] { COstrelMessageBox(nullptr).SetButtonText(0, L""); }},
    {"273-beyond", [] { COstrelMessageBox(nullptr).SetButtonText(5, L""); }},
    {"194", [] { MessageBoxes::Show(MB_OK | 0x50, PressEnter); }},
    {"194-buttons",
     [] { COstrelMessageBox::MessageBox(L"", L"", MB_YESNO | MB_ICONERROR, L"", L"", L"", L""); }},
    {"324", &PressBeyond<MB_OKCANCEL, kThird>},
    {"330", &PressBeyond<MB_YESNO, kThird>},
    {"337", &PressBeyond<MB_YESNOCANCEL, kFourth>}};

TEST_F(MessageBoxes, ThatAreMisusedEndTheProcessWithAReportOfThePlace)
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
