// The hook for texts in another character set: its font, its text messages, and who goes first.

#include "Boxes.h"

namespace
{
constexpr wchar_t kGreek[] = L"\u0394\u03bf\u03ba\u03cc\u03c2"; // five letters

/// A window without a font, and a box with one.
struct AnsiHook : ::testing::Test
{
    void SetUp() override
    {
        ASSERT_TRUE(
            parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 300, 100), nullptr, 0));
        font.CreatePointFont(90, L"Liberation Sans");
        MakeBox();
        fonts = owtest::CountGdiObjects(0x0A);
    }
    void TearDown() override { parent.DestroyWindow(); }
    void MakeBox()
    {
        ASSERT_TRUE(box.Create(WS_CHILD | ES_AUTOHSCROLL, CRect(0, 0, 200, 60), &parent, 0));
        box.SetFont(&font);
    }
    /// The fonts that are new, and the character set of the box: 0 if it has no font.
    std::pair<int, int> Fonts() const
    {
        const bool bFont = ::SendMessageW(box, WM_GETFONT, 0, 0) != 0;
        return {owtest::CountGdiObjects(0x0A) - fonts, bFont ? owtest::FontOf(box).lfCharSet : 0};
    }
    static constexpr std::pair kGivenFont{1, GREEK_CHARSET}, kNone{0, 0};

    owtest::SubLanguage greek{LANG_GREEK};
    CWnd parent;
    CFont font;
    CEditAcadEscSeqText box;
    int fonts = 0; ///< with all that is set up
};
} // namespace

TEST_F(AnsiHook, GivesABoxItsFontInTheOtherCharacterSetAndAfterwardsTheParents)
{
    CEditCtrlAnsiMsgHook hook;
    EXPECT_EQ(hook.HookWindow(nullptr), 0);
    const std::wstring parents = owtest::FontOf(parent).lfFaceName;
    for (const std::wstring& face : {std::wstring(L"Liberation Sans"), parents}) // then as it was left
    {
        ASSERT_EQ(hook.HookWindow(&box), 1);
        EXPECT_EQ(owtest::FontOf(box).lfFaceName, face);
        EXPECT_EQ(hook.HookWindow(&parent), 0) << "one box at a time";
        EXPECT_EQ(Fonts(), kGivenFont);
        hook.Unhook();
        EXPECT_TRUE(!hook.IsHooked() && Fonts() == kNone) << "as the parent";
    }
    owtest::SubLanguage::SetDisplays();
    EXPECT_EQ(hook.HookWindow(&box), 1);
    EXPECT_TRUE(!hook.IsHooked() && Fonts() == kNone) << "no need where it is the display's";
}

TEST_F(AnsiHook, GoesBeforeOrAfterItsBoxWithoutAFontLeft)
{
    std::optional<CEditCtrlAnsiMsgHook> hook(std::in_place);
    ASSERT_EQ(hook->HookWindow(&box), 1);
    box.DestroyWindow();
    EXPECT_EQ(owtest::CountGdiObjects(0x0A), fonts) << "at once, and not with the hook";
    MakeBox();
    for (int i = 0; i < 3; ++i) // left through the base class, through the hook, and with the hook
    {
        ASSERT_EQ(hook->HookWindow(&box), 1);
        EXPECT_EQ(Fonts(), kGivenFont);
        i == 0 ? static_cast<CMsgHook&>(*hook).Unhook() : i == 1 ? hook->Unhook() : hook.reset();
        EXPECT_EQ(Fonts(), i == 0 ? kGivenFont : kNone);
    }
}

TEST_F(AnsiHook, FillsHalfOfABufferAndTheWholeTextIsReadAllTheSame)
{
    CEditCtrlAnsiMsgHook hooks[3];
    for (CEditCtrlAnsiMsgHook* pHook : {&hooks[0], &hooks[1]}) // two in a line are one as to this
    {
        ASSERT_EQ(pHook->HookWindow(&box), 1);
        EXPECT_EQ(box.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(kGreek)), 1);
        for (size_t room = 0; room < 16; ++room)
        {
            std::wstring buffer(20, L'~'), expected = std::wstring(kGreek).substr(0, room / 2);
            EXPECT_EQ(box.SendMessage(WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer.data())), 5);
            expected.append(room > 0, L'\0').resize(20, L'~');
            EXPECT_EQ(buffer, expected) << room;
        }
        EXPECT_EQ(box.SendMessage(WM_GETTEXT, 10, 0), 5) << "no buffer";
        EXPECT_EQ(TextOf(box), std::wstring(kGreek, 3)) << "half of a text and its end";
        const CEditCtrlAnsiInterface whole(box);
        EXPECT_TRUE(whole.GetText() == kGreek && whole.GetCodePage() == 1253);
        EXPECT_TRUE(box.ValidateAndStoreDataFromGUI() && box.GetValue() == kGreek);
    }
    box.SetWindowText(nullptr);
    EXPECT_TRUE(gfnWholeText(box) == L"" && gfnWholeText(CEdit()) == L"") << "no window";

    CStatic label;
    ASSERT_TRUE(label.Create(L"", WS_CHILD, CRect(), &parent) && hooks[2].HookWindow(&label));
    label.SetWindowText(L"all of it");
    EXPECT_EQ(TextOf(label), L"all of it") << "no edit control";
}
