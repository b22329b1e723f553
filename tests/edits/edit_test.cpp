// What all boxes share: reports, keys, flags, cursor, creation, and the contract of those with a value.

#include "Boxes.h"

namespace
{
/// Counts its creations, and may refuse to be created, or write a text inside of writing another one.
struct OddBox : CEditN
{
    using CEditN::CEditN, CEditN::DoesNotificationHandlerExist, CEditN::GetSafeNotificationHandler;
    int made = 0;
    bool refuse = false, nest = false;

    void HandlerOnCreate() override { ++made; }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SETTEXT && std::exchange(nest, false))
            SafeSetWindowText(L"inner");
        return message == WM_CREATE && refuse ? -1 : CEditN::DefWindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(Boxes, TellWhatHappensWithTheirOwnStateAndValueSetBefore)
{
    CEditN& box = dialog.plain;
    handler.look = [&] { return box.HasChangedSinceLastSetFocus() ? " changed" : ""; };
    for (const std::string before : {"", " changed"})
    {
        owtest::Click(box);
        owtest::Type(L"ab");
        owtest::Press(VK_LEFT);
        owtest::Click(dialog.whole);
        EXPECT_EQ(handler.Take(), "leave 1001" + before +
                                      "; enter 1003; change 1003 changed; change 1003 changed; "
                                      "leave 1003 changed; enter 1001 changed; ");
    }
    EXPECT_EQ(dialog.changesSeen, 0) << "the handler is told, and not the parent";

    CEditIntegerWithRange& whole = dialog.whole;
    whole.SetRange(0, 99);
    handler.look = [&]
    {
        return ": " + std::to_string(whole.GetValue()) + " '" + CStringA(TextOf(whole).c_str()).GetString() +
               "'";
    };
    const std::tuple<const wchar_t*, const char*, std::string> texts[] = {
        {L"2x", "change 1001: 2 '2'; change 1001: 2 '2x'; ", "2 '2'"},
        {L"123", "change 1001: 1 '1'; change 1001: 12 '12'; change 1001: 99 '123'; ", "99 '99'"},
        {L"-\b", "change 1001: 99 '-'; change 1001: 99 ''; ", "99 '99'"}, // which does not empty the box
        {L"", "", "99 'as it was'"}};
    for (const auto& [text, told, shown] : texts)
    {
        if (!*text)
            whole.SafeSetWindowText(L"as it was");
        EXPECT_EQ(TypeInto(whole, text), told);
        owtest::Press(VK_TAB);
        EXPECT_TRUE(HasFocus(dialog.lines) && !whole.IsEmpty());
        EXPECT_EQ(handler.Take(), "leave 1001: " + shown + "; enter 1002: " + shown + "; ");
    }
}

TEST_F(Boxes, HandOnTabEnterAndEscapeWhenTheirOwnMessageIsDoneAndShowTheIBeamUnlessReadOnly)
{
    CEditN& box = dialog.lines;
    const std::tuple<WORD, bool, CWnd*, int> pressed[] = {
        {VK_TAB, false, &dialog.plain, 0},
        {VK_TAB, true, &dialog.whole, 0},
        {VK_RETURN, true, &dialog.plain, 0}, // Shift is nothing to this one
        {VK_ESCAPE, false, &box, 1}};
    for (const auto& [key, shift, pTo, cancels] : pressed)
    {
        SCOPED_TRACE(key + shift);
        box.SetFocus();
        dialog.cancels = 0;
        owtest::Press(key, shift);
        EXPECT_TRUE(HasFocus(*pTo));
        EXPECT_TRUE(owtest::PumpUntil([&, n = cancels] { return dialog.cancels == n; }));
        box.SetFocus();
        box.SendMessage(WM_KEYDOWN, key);
        EXPECT_TRUE(::GetFocus() == box.m_hWnd && dialog.cancels == cancels) << "posted, not sent";
        owtest::Pump();
        EXPECT_EQ(dialog.cancels, 2 * cancels);
    }
    EXPECT_EQ(TextOf(box), L"") << "none of the keys leaves a character";
    EXPECT_EQ(dialog.oks, 0) << "Enter does not press the default button";
    const LRESULT keys = dialog.plain.SendMessage(WM_GETDLGCODE);
    EXPECT_TRUE(keys & DLGC_WANTALLKEYS && keys & DLGC_HASSETSEL) << "what an edit answers stays";

    const std::tuple<CEditN*, int, LPCTSTR> cases[] = {{&dialog.plain, HTLEFT, IDC_IBEAM},
                                                       {&dialog.readOnly, HTCLIENT, IDC_ARROW},
                                                       {&dialog.readOnly, HTLEFT, IDC_SIZEWE}};
    for (const auto& [pBox, nHitTest, pszCursor] : cases)
    {
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        const auto nWindow = reinterpret_cast<WPARAM>(pBox->m_hWnd);
        pBox->SendMessage(WM_SETCURSOR, nWindow, MAKELPARAM(nHitTest, WM_MOUSEMOVE));
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, pszCursor)) << nHitTest;
    }
}

TEST_F(Boxes, AreSilentOnlyOfTextsThatAreSetTheSafeWay)
{
    dialog.plain.UnsubclassWindow();
    OddBox box(&handler);
    ASSERT_TRUE(box.SubclassDlgItem(kPlain, &dialog));
    EXPECT_TRUE(box.DoesNotificationHandlerExist() && box.GetSafeNotificationHandler() == &handler);
    for (const bool again : {false, true}) // the second time on a box that has changed, through the interface
    {
        box.SetAnsiInterface(again);
        box.nest = true;
        box.SafeSetWindowText(L"\u0160rafura \u010d");
        EXPECT_EQ(handler.Take(), "") << "nor behind a write inside of a write";
        EXPECT_EQ(TextOf(box), L"\u0160rafura \u010d") << "the texts stay wide";
        EXPECT_TRUE(box.HasChangedSinceLastSetFocus() == again && box.GetAnsiInterface() == again);
        box.SetWindowText(L"loud");
        EXPECT_EQ(handler.Take(), "change 1003; ");
        EXPECT_TRUE(box.HasChangedSinceLastSetFocus());
    }
}

TEST_F(Boxes, RunTheirCreationHandlerOnceOnEachRoad)
{
    OddBox box(nullptr);
    const auto make = [&](CWnd* pParent) { return box.Create(WS_CHILD, CRect(), pParent, kFree) != FALSE; };
    box.refuse = true;
    EXPECT_FALSE(make(&dialog) || make(CWnd::FromHandle(reinterpret_cast<HWND>(0x1235))));
    EXPECT_EQ(box.made, 0);
    box.refuse = false;
    dialog.plain.UnsubclassWindow();
    EXPECT_TRUE(box.SubclassDlgItem(kPlain, &dialog));
    EXPECT_EQ(box.made, 1) << "what failed before leaves no trace";
    box.DestroyWindow();
    ASSERT_TRUE(make(&dialog));
    EXPECT_EQ(box.made, 2);
    dialog.Take();
    box.SetWindowText(L"x");
    EXPECT_EQ(dialog.Take(), "change 1010; ") << "the parent is told where no handler was given";
    EXPECT_EQ(box.GetSafeNotificationHandler(), &dialog);
    box.DestroyWindow();
    EXPECT_FALSE(box.DoesNotificationHandlerExist());
}
