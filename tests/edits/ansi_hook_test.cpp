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

/// A window that answers with the font it is given.
class OpenParent : public CWnd
{
public:
    HFONT font = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == WM_GETFONT ? reinterpret_cast<LRESULT>(font)
                                     : CWnd::WindowProc(message, wParam, lParam);
    }
};

/// A window with a font of its own, if the test gives it one, and a box.
class AnsiHook : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 300, 100), nullptr, 0));
        MakeBox(box);
        parentFont.CreatePointFont(120, L"Liberation Serif");
        boxFont.CreatePointFont(90, L"Liberation Sans");
        box.SetFont(&boxFont);
    }
    void TearDown() override { parent.DestroyWindow(); }
    void MakeBox(CEdit& made, DWORD style = ES_AUTOHSCROLL)
    {
        ASSERT_TRUE(made.Create(WS_CHILD | style, CRect(0, 0, 200, 60), &parent, 1));
    }
    static HFONT HandleOf(const CWnd& window)
    {
        return reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    }
    static BYTE CharSetOf(const CWnd& window) { return owtest::FontOf(window).lfCharSet; }

    owtest::SubLanguage greek{LANG_GREEK};
    OpenParent parent;
    CFont parentFont, boxFont;
    CEdit box;
};
} // namespace

TEST_F(AnsiHook, GivesTheBoxItsFontInTheOtherCharacterSetAndAfterwardsTheParents)
{
    parent.font = parentFont;
    const int fonts = owtest::CountGdiObjects(kFonts);
    {
        OpenHook hook;
        ASSERT_EQ(hook.HookWindow(&box), 1);
        EXPECT_EQ(hook.GetHookedWindow(), &box);
        const LOGFONTW made = owtest::FontOf(box);
        EXPECT_EQ(made.lfCharSet, GREEK_CHARSET);
        EXPECT_STREQ(made.lfFaceName, L"Liberation Sans");
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts + 1);

        const HFONT first = HandleOf(box);
        hook._CreateCustomFont(RUSSIAN_CHARSET);
        EXPECT_EQ(HandleOf(box), first) << "there is one already";
        EXPECT_EQ(hook.HookWindow(&parent), 0) << "one box at a time";
        EXPECT_EQ(hook.GetHookedWindow(), &box);

        hook._DeleteCustomFont();
        EXPECT_EQ(HandleOf(box), static_cast<HFONT>(parentFont));
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
        hook._CreateCustomFont(RUSSIAN_CHARSET);
        EXPECT_EQ(HandleOf(box), static_cast<HFONT>(parentFont)) << "no other one for this box";
        hook.Unhook();
        EXPECT_EQ(hook.HookWindow(&box), 1);
        EXPECT_STREQ(owtest::FontOf(box).lfFaceName, L"Liberation Serif");
        EXPECT_EQ(CharSetOf(box), GREEK_CHARSET);
    }
    EXPECT_EQ(HandleOf(box), static_cast<HFONT>(parentFont)) << "the hook is gone";
    EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
}

TEST_F(AnsiHook, WorksOnTheSystemsFontWhereThereIsNoOther)
{
    box.SendMessage(WM_SETFONT, 0);
    OpenHook hook;
    hook.HookWindow(&box);
    EXPECT_EQ(CharSetOf(box), GREEK_CHARSET);
    EXPECT_STREQ(owtest::FontOf(box).lfFaceName, owtest::FontOf(parent).lfFaceName);
    hook.Unhook();
    EXPECT_EQ(HandleOf(box), nullptr) << "the parent has none";

    CEdit alone;
    ASSERT_TRUE(alone.CreateEx(0, L"EDIT", L"", WS_POPUP, CRect(0, 0, 50, 20), nullptr, 0));
    alone.SetFont(&boxFont);
    hook.HookWindow(&alone);
    EXPECT_EQ(CharSetOf(alone), GREEK_CHARSET);
    hook.Unhook();
    EXPECT_EQ(HandleOf(alone), nullptr) << "no parent to take one from";
    alone.DestroyWindow();
}

TEST_F(AnsiHook, StaysAwayWhereTheCharacterSetIsTheDisplaysOrThereIsNoWindow)
{
    OpenHook hook;
    EXPECT_EQ(hook.HookWindow(nullptr), 0);
    CEdit windowless;
    EXPECT_EQ(hook.HookWindow(&windowless), 0);
    hook._CreateCustomFont(GREEK_CHARSET);
    hook._DeleteCustomFont();
    hook.Unhook();
    EXPECT_FALSE(hook.IsHooked());

    owtest::SubLanguage::SetDisplays();
    EXPECT_EQ(hook.HookWindow(&box), 1);
    EXPECT_FALSE(hook.IsHooked());
    EXPECT_EQ(HandleOf(box), static_cast<HFONT>(boxFont));
}

TEST_F(AnsiHook, FillsHalfOfABufferAndNothingBehindIt)
{
    box.SetWindowText(kGreek);
    OpenHook hook, second;
    for (OpenHook* pHook : {&hook, &second}) // two in a line are one as to this
    {
        ASSERT_EQ(pHook->HookWindow(&box), 1);
        for (size_t room = 0; room < 16; ++room)
        {
            std::wstring buffer(20, L'~');
            EXPECT_EQ(box.SendMessage(WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer.data())), 5);
            const size_t copied = std::min<size_t>(room / 2, 5);
            EXPECT_EQ(buffer.substr(0, copied), std::wstring(kGreek).substr(0, copied)) << room;
            EXPECT_EQ(buffer[copied], room == 0 ? L'~' : L'\0') << room;
            EXPECT_EQ(buffer.find_first_not_of(L'~', copied + 1), std::wstring::npos) << room;
        }
        EXPECT_EQ(box.SendMessage(WM_GETTEXT, 10, 0), 5) << "no buffer";
        EXPECT_EQ(box.GetWindowTextLength(), 5);
        EXPECT_EQ(owtest::TextOf(box), std::wstring(kGreek, 3)) << "half of a text and of its end";
        EXPECT_EQ(gfnWholeText(box), kGreek);
        EXPECT_EQ(CEditCtrlAnsiInterface(box).GetText(), kGreek);
    }
    box.SetWindowText(L"");
    EXPECT_EQ(gfnWholeText(box), L"");
}

TEST_F(AnsiHook, SetsTextsAndLeavesOtherWindowsAlone)
{
    OpenHook hook, other;
    hook.HookWindow(&box);
    EXPECT_EQ(box.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(kGreek)), 1);
    EXPECT_EQ(gfnWholeText(box), kGreek);
    box.SetWindowText(nullptr);
    EXPECT_EQ(gfnWholeText(box), L"");

    CStatic label;
    ASSERT_TRUE(label.Create(L"", WS_CHILD, CRect(0, 0, 50, 20), &parent));
    ASSERT_EQ(other.HookWindow(&label), 1);
    label.SetWindowText(L"all of it");
    EXPECT_EQ(owtest::TextOf(label), L"all of it");
    EXPECT_EQ(CharSetOf(label), GREEK_CHARSET) << "it gets the font all the same";
}

TEST_F(AnsiHook, ReadsAllOfATextOfManyLines)
{
    CEdit lines;
    MakeBox(lines, ES_MULTILINE | ES_AUTOVSCROLL);
    CString text;
    for (int i = 0; i < 200; ++i)
        text.AppendFormat(L"%d %s\r\n", i, kGreek);
    lines.SetWindowText(text);
    EXPECT_EQ(gfnWholeText(lines), text);
    OpenHook hook;
    hook.HookWindow(&lines);
    EXPECT_EQ(gfnWholeText(lines), text);
    CEdit none;
    EXPECT_EQ(gfnWholeText(none), L"");
}

TEST_F(AnsiHook, GivesItsFontBackWhenTheBoxGoesAndServesTheNext)
{
    const int fonts = owtest::CountGdiObjects(kFonts);
    auto hook = std::make_unique<OpenHook>();
    for (int i = 0; i < 3; ++i)
    {
        CEdit next;
        MakeBox(next);
        ASSERT_EQ(hook->HookWindow(&next), 1);
        EXPECT_EQ(CharSetOf(next), GREEK_CHARSET) << i;
        next.DestroyWindow();
        EXPECT_FALSE(hook->IsHooked());
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts) << i;
    }
    CEdit last;
    MakeBox(last);
    hook->HookWindow(&last);
    hook.reset();
    EXPECT_EQ(HandleOf(last), nullptr);
    EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
    last.SetWindowText(kGreek);
    EXPECT_EQ(owtest::TextOf(last), kGreek) << "nobody in between";
}

// ---- Typed into boxes that stand under a hook -------------------------------------------------------------

class HookedNumbers : public Numbers, public ::testing::WithParamInterface<bool>
{
};

TEST_P(HookedNumbers, LoseNothingThatIsTyped)
{
    const owtest::SubLanguage cyrillic(LANG_RUSSIAN);
    CEditCtrlAnsiMsgHook hooks[2];
    dialog.own.SetFormat(eDoubleFormatFixed, 4);
    ASSERT_EQ(hooks[0].HookWindow(&dialog.own), 1);
    ASSERT_EQ(hooks[1].HookWindow(&dialog.count), 1);
    dialog.own.SetAnsiInterface(GetParam());
    dialog.count.SetAnsiInterface(GetParam());

    TypeInto(dialog.own, L"123456.7891");
    EXPECT_EQ(dialog.own.GetValue(), 123456.7891);
    EXPECT_EQ(handler.Take().size(), 11u) << "one call for each key";
    Leave(dialog.own);
    EXPECT_EQ(gfnWholeText(dialog.own), L"123456.7891");

    TypeInto(dialog.count, L"-1234567");
    EXPECT_EQ(dialog.count.GetValue(), -1234567);
    Leave(dialog.count);
    EXPECT_EQ(gfnWholeText(dialog.count), L"-1234567");

    dialog.own.SetSpinStep(1);
    NM_UPDOWN press{};
    press.iDelta = 1;
    LRESULT lResult = 0;
    dialog.own.OnSpinDeltapos(&press, &lResult);
    EXPECT_EQ(dialog.own.GetValue(), 123458.0) << "stepped from the text, up to the next whole number and on";
}

INSTANTIATE_TEST_SUITE_P(, HookedNumbers, ::testing::Bool());
