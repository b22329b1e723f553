// The hook for texts in another character set: its font, its text messages, and who goes first.

#include "NumbersDialog.h"

#include "Handles.h"
#include "SubLanguage.h"

#include <memory>

namespace
{
constexpr int kFonts = 0x0A;                                    ///< type of a GDI object
constexpr wchar_t kGreek[] = L"\u0394\u03bf\u03ba\u03cc\u03c2"; // five letters

class OpenHook : public CEditCtrlAnsiMsgHook
{
public:
    using CEditCtrlAnsiMsgHook::_CreateCustomFont;
    using CEditCtrlAnsiMsgHook::_DeleteCustomFont;
};

/// A window without a font, and a box with one.
class AnsiHook : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 300, 100), nullptr, 0));
        font.CreatePointFont(90, L"Liberation Sans");
        MakeBox(box);
    }
    void TearDown() override { parent.DestroyWindow(); }
    void MakeBox(CEdit& made, DWORD style = ES_AUTOHSCROLL)
    {
        ASSERT_TRUE(made.Create(WS_CHILD | style, CRect(0, 0, 200, 60), &parent, 1));
        made.SetFont(&font);
    }
    static BYTE CharSetOf(const CWnd& window) { return owtest::FontOf(window).lfCharSet; }
    static bool HasNoFont(const CWnd& window) { return ::SendMessageW(window.m_hWnd, WM_GETFONT, 0, 0) == 0; }

    owtest::SubLanguage greek{LANG_GREEK};
    CWnd parent;
    CFont font;
    CEdit box;
};
} // namespace

TEST_F(AnsiHook, GivesABoxItsFontInTheOtherCharacterSetAndAfterwardsTheParents)
{
    const int fonts = owtest::CountGdiObjects(kFonts);
    OpenHook hook;
    for (int i = 0; i < 2; ++i) // the same box again gets a font again
    {
        ASSERT_EQ(hook.HookWindow(&box), 1);
        EXPECT_EQ(CharSetOf(box), GREEK_CHARSET);
        EXPECT_STREQ(owtest::FontOf(box).lfFaceName,
                     i ? owtest::FontOf(parent).lfFaceName : L"Liberation Sans");
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts + 1);
        hook._CreateCustomFont(RUSSIAN_CHARSET);
        EXPECT_EQ(CharSetOf(box), GREEK_CHARSET) << "there is one already";
        EXPECT_EQ(hook.HookWindow(&parent), 0) << "one box at a time";
        hook._DeleteCustomFont();
        EXPECT_TRUE(HasNoFont(box)) << "as the parent";
        hook._CreateCustomFont(RUSSIAN_CHARSET);
        EXPECT_TRUE(HasNoFont(box)) << "no other one for this box";
        hook.Unhook();
        EXPECT_FALSE(hook.IsHooked());
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
    }
}

TEST_F(AnsiHook, GoesBeforeOrAfterItsBoxWithoutAFontLeft)
{
    const int fonts = owtest::CountGdiObjects(kFonts);
    auto hook = std::make_unique<OpenHook>();
    for (int i = 0; i < 2; ++i)
    {
        CEdit next;
        MakeBox(next);
        ASSERT_EQ(hook->HookWindow(&next), 1);
        EXPECT_EQ(CharSetOf(next), GREEK_CHARSET) << i;
        next.DestroyWindow();
        EXPECT_FALSE(hook->IsHooked());
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts) << "at once, and not with the hook";
    }
    for (int i = 0; i < 2; ++i)
    {
        hook->HookWindow(&box);
        EXPECT_EQ(CharSetOf(box), GREEK_CHARSET);
        i ? hook->Unhook() : static_cast<CMsgHook&>(*hook).Unhook();
    }
    EXPECT_TRUE(HasNoFont(box));
    EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
    hook->HookWindow(&box);
    static_cast<CMsgHook&>(*hook).Unhook();
    hook.reset();
    EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);

    CEdit alone; // no parent to take a font from
    ASSERT_TRUE(alone.CreateEx(0, L"EDIT", L"", WS_POPUP, CRect(0, 0, 50, 20), nullptr, 0));
    alone.SetFont(&font);
    OpenHook().HookWindow(&alone);
    EXPECT_TRUE(HasNoFont(alone));
    alone.DestroyWindow();
}

TEST_F(AnsiHook, StaysAwayWhereTheCharacterSetIsTheDisplays)
{
    OpenHook hook;
    EXPECT_EQ(hook.HookWindow(nullptr), 0);
    hook._CreateCustomFont(GREEK_CHARSET);
    hook._DeleteCustomFont();
    owtest::SubLanguage::SetDisplays();
    EXPECT_EQ(hook.HookWindow(&box), 1);
    EXPECT_FALSE(hook.IsHooked());
    EXPECT_NE(CharSetOf(box), GREEK_CHARSET);
}

TEST_F(AnsiHook, FillsHalfOfABufferAndTheWholeTextIsReadAllTheSame)
{
    OpenHook hooks[2];
    for (OpenHook& hook : hooks) // two in a line are one as to this
    {
        ASSERT_EQ(hook.HookWindow(&box), 1);
        EXPECT_EQ(box.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(kGreek)), 1);
        for (size_t room = 0; room < 16; ++room)
        {
            std::wstring buffer(20, L'~');
            EXPECT_EQ(box.SendMessage(WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer.data())), 5);
            std::wstring expected = std::wstring(kGreek).substr(0, room / 2);
            if (room > 0)
                expected += L'\0';
            EXPECT_EQ(buffer, expected + std::wstring(20 - expected.size(), L'~')) << room;
        }
        EXPECT_EQ(box.SendMessage(WM_GETTEXT, 10, 0), 5) << "no buffer";
        EXPECT_EQ(owtest::TextOf(box), std::wstring(kGreek, 3)) << "half of a text and its end";
        EXPECT_EQ(gfnWholeText(box), kGreek);
        EXPECT_EQ(CEditCtrlAnsiInterface(box).GetText(), kGreek);
    }
    box.SetWindowText(nullptr);
    EXPECT_EQ(gfnWholeText(box), L"");
    EXPECT_EQ(gfnWholeText(CEdit()), L"") << "no window";

    CEdit lines;
    MakeBox(lines, ES_MULTILINE | ES_AUTOVSCROLL);
    OpenHook hook, other;
    hook.HookWindow(&lines);
    CString text;
    for (int i = 0; i < 200; ++i)
        text.AppendFormat(L"%d %s\r\n", i, kGreek);
    lines.SetWindowText(text);
    EXPECT_EQ(gfnWholeText(lines), text);

    CStatic label;
    ASSERT_TRUE(label.Create(L"", WS_CHILD, CRect(0, 0, 50, 20), &parent));
    ASSERT_EQ(other.HookWindow(&label), 1);
    label.SetWindowText(L"all of it");
    EXPECT_EQ(owtest::TextOf(label), L"all of it") << "no edit control";
    EXPECT_EQ(CharSetOf(label), GREEK_CHARSET);
}

TEST_F(Numbers, LoseNothingThatIsTypedUnderAHook)
{
    const owtest::SubLanguage russian(LANG_RUSSIAN);
    CEditCtrlAnsiMsgHook hooks[2];
    dialog.own.SetFormat(eDoubleFormatFixed, 4);
    ASSERT_EQ(hooks[0].HookWindow(&dialog.own), 1);
    ASSERT_EQ(hooks[1].HookWindow(&dialog.count), 1);
    for (const bool ansi : {false, true})
    {
        dialog.own.SetAnsiInterface(ansi);
        dialog.count.SetAnsiInterface(ansi);
        TypeInto(dialog.own, L"123456.7891");
        EXPECT_EQ(dialog.own.GetValue(), 123456.7891);
        EXPECT_EQ(handler.Take().size(), 11u) << "one call for each key";
        Leave(dialog.own);
        EXPECT_EQ(gfnWholeText(dialog.own), L"123456.7891");
        TypeInto(dialog.count, L"-1234567");
        EXPECT_EQ(dialog.count.GetValue(), -1234567);

        dialog.own.SetSpinStep(1);
        NM_UPDOWN press{};
        press.iDelta = 1;
        LRESULT lResult = 0;
        dialog.own.OnSpinDeltapos(&press, &lResult);
        EXPECT_EQ(dialog.own.GetValue(), 123458.0) << "from all of the text to the next whole number and on";
    }
}
