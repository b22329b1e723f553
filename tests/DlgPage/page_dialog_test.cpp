// What the keyboard does in a page, and how what was typed gets into the page's values.

#include "PagesHost.h"

using owtest::TextOf;

namespace
{
/// Alpha is shown, and beta has a value.
class PageInput : public Pages
{
protected:
    void SetUp() override
    {
        Pages::SetUp();
        Page("Beta")->nCount = 200;
        selector.SetCurrentPage(Page("Alpha"));
    }
    static void TypeInto(CWnd& box, const wchar_t* pszText)
    {
        box.SetFocus();
        box.SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(pszText);
    }
};
} // namespace

// Escape does nothing; Enter breaks the line of a multi-line box, and goes on to the host elsewhere.
TEST_F(PageInput, EscapeAndEnterLeaveTheTextsAndThePageAsTheyAreAndTabGoesThroughIt)
{
    // Box, key, text, box with the focus then, OKs and Cancels of the host.
    const std::tuple<int, WORD, const wchar_t*, int, int, int> keys[] = {
        {IDC_COUNT, VK_ESCAPE, L"1", IDC_COUNT, 0, 0},
        {IDC_NOTES, VK_ESCAPE, L"1", IDC_NOTES, 0, 0},
        {IDC_COUNT, VK_RETURN, L"1", IDC_PLAIN, 0, 0}, // moves on
        {IDC_PLAIN, VK_RETURN, L"1", IDC_PLAIN, 1, 0}, // the default button
        {IDC_NOTES, VK_RETURN, L"1\r\n", IDC_NOTES, 0, 0},
        {IDC_NAME, VK_ESCAPE, L"1", IDC_NAME, 0, 1}, // beside the page they are the host's
        {IDC_NAME, VK_RETURN, L"1", IDC_NAME, 1, 0}};
    const auto box = [&](int nId) { return nId == IDC_NAME ? GetDlgItem(nId) : fields->GetDlgItem(nId); };
    for (const auto& [nBox, key, text, nTarget, nOks, nCancels] : keys)
    {
        oks = cancels = 0;
        TypeInto(*box(nBox), L"1");
        owtest::Press(key);
        EXPECT_TRUE(HasFocus(*box(nTarget)) && TextOf(*box(nBox)) == text) << key << ' ' << nBox;
        EXPECT_TRUE(oks == nOks && cancels == nCancels) << key << ' ' << nBox;
    }
    EXPECT_EQ(Shown(), "Alpha");
    box(IDC_PLAIN)->SetFocus();
    MSG tab{*box(IDC_PLAIN), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(fields->PreTranslateMessage(&tab) && HasFocus(*box(IDC_NOTES))) << "translated by the page";
}

TEST_F(PageInput, OnlyFocusedEditsOfThePageTakeCommitsAndLineBreaks)
{
    /// Counts the commits, which are told from a real loss of focus by naming no window that gets it.
    struct Watch : CWnd
    {
        int commits = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            commits += message == WM_KILLFOCUS && wParam == 0 && lParam == 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    const std::tuple<const wchar_t*, CWnd*, bool> controls[] = {{L"Edit", fields, true},
                                                                {L"ListBox", fields, false},
                                                                {L"Edit", this, false},
                                                                {nullptr, fields, false}};
    for (const auto& [pszClass, pParent, bTakes] : controls)
    {
        Watch watch;
        if (pszClass)
            watch.Create(pszClass, _T(""), WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_WANTRETURN,
                         CRect(150, 10, 240, 50), pParent, 1);
        ::SetFocus(watch);
        fields->SendFocusedControlKillFocusMessage();
        MSG enter{*fields, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
        EXPECT_EQ(fields->PreTranslateMessage(&enter) != FALSE, bTakes);
        EXPECT_EQ(watch.commits, bTakes) << CStringA(pszClass);
    }
}

TEST_F(PageInput, ATypedValueIsKeptWhenThePageChangesWithoutLeavingTheBox)
{
    CWnd& count = fields->count;
    TypeInto(count, L"0042");
    EXPECT_EQ(Page("Alpha")->nCount, 0) << "taken over when the user leaves";
    Page("Alpha")->SendFocusedControlKillFocusMessage();
    EXPECT_TRUE(Page("Alpha")->nCount == 42 && TextOf(count) == L"42" && HasFocus(count));
    TypeInto(count, L"17");
    selector.SetCurrentPage(Page("Beta"));
    EXPECT_EQ(TextOf(count), L"200") << "two pages on one dialog";
    TypeInto(count, L"18");
    manager.PageSelected(Page("Gamma"), Page("Beta")); // with another dialog
    manager.PageSelected(Page("Beta"), Page("Gamma"));
    TypeInto(count, L"19");
    manager.PageSelected(Page("Delta"), nullptr); // by a selector that has lost sight of what shows
    EXPECT_EQ((std::vector{Page("Alpha")->nCount, Page("Beta")->nCount}), (std::vector{17, 19}));
}
