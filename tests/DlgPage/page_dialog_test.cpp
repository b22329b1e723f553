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
        Page(idBeta)->nCount = 200;
        m_selector.SetCurrentPage(Page(idAlpha));
    }
    CWnd& Field(int nId) { return *m_host.fields->GetDlgItem(nId); }

    /// Types a new text into a box, without leaving it.
    static void TypeInto(CWnd& box, const wchar_t* pszText)
    {
        box.SetFocus();
        box.SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(pszText);
    }
};
} // namespace

// Escape does nothing; Enter breaks the line of a multi-line box, and goes on to the host elsewhere.
TEST_F(PageInput, EscapeAndEnterLeaveTheTextsAndThePageAsTheyAre)
{
    CEdit& name = static_cast<CEdit&>(*m_host.GetDlgItem(IDC_NAME));
    const std::tuple<CWnd&, WORD, const wchar_t*, CWnd&, int, int> keys[] = {
        {Field(IDC_COUNT), VK_ESCAPE, L"1", Field(IDC_COUNT), 0, 0},
        {Field(IDC_PLAIN), VK_ESCAPE, L"1", Field(IDC_PLAIN), 0, 0},
        {Field(IDC_NOTES), VK_ESCAPE, L"1", Field(IDC_NOTES), 0, 0},
        {Field(IDC_COUNT), VK_RETURN, L"1", Field(IDC_PLAIN), 0, 0}, // moves on
        {Field(IDC_PLAIN), VK_RETURN, L"1", Field(IDC_PLAIN), 1, 0}, // the default button
        {Field(IDC_NOTES), VK_RETURN, L"1\r\n", Field(IDC_NOTES), 0, 0},
        {name, VK_ESCAPE, L"1", name, 0, 1}, // beside the page they are the host's
        {name, VK_RETURN, L"1", name, 1, 0}};
    for (const auto& [box, key, text, target, nOks, nCancels] : keys)
    {
        m_host.oks = m_host.cancels = 0;
        TypeInto(box, L"1");
        owtest::Press(key);
        EXPECT_TRUE(HasFocus(target) && TextOf(box) == text) << key << ' ' << box.GetDlgCtrlID();
        EXPECT_TRUE(m_host.oks == nOks && m_host.cancels == nCancels) << key << ' ' << box.GetDlgCtrlID();
    }
    EXPECT_EQ(m_host.Shown(), "Alpha");
}

TEST_F(PageInput, TabGoesThroughThePage)
{
    Field(IDC_PLAIN).SetFocus();
    MSG tab{Field(IDC_PLAIN), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(m_host.fields->PreTranslateMessage(&tab)) << "translated by the page";
    EXPECT_TRUE(HasFocus(Field(IDC_NOTES)));
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
    CWnd& page = *m_host.fields;
    const std::tuple<const wchar_t*, CWnd&, DWORD, int, BOOL> edits[] = {
        {L"Edit", page, ES_WANTRETURN, 1, TRUE},
        {L"Edit", page, 0, 1, FALSE},                   // wants no Enter
        {L"EDITNOTES1", page, ES_WANTRETURN, 0, FALSE}, // a longer name
        {L"Notes", page, ES_WANTRETURN, 0, FALSE},      // another name
        {L"Edit", m_host, ES_WANTRETURN, 0, FALSE},     // outside of the page
        {nullptr, page, 0, 0, FALSE}};                  // none at all
    for (const auto& [pszClass, parent, dwStyle, nCommits, bTaken] : edits)
    {
        WNDCLASS windowClass{};
        ::GetClassInfo(nullptr, _T("EDIT"), &windowClass);
        windowClass.lpszClassName = pszClass;
        ::RegisterClass(&windowClass);
        Watch watch;
        if (pszClass)
            watch.SubclassWindow(::CreateWindow(pszClass, _T(""),
                                                WS_CHILD | WS_VISIBLE | ES_MULTILINE | dwStyle, 150, 10, 90,
                                                40, parent, nullptr, nullptr, nullptr));
        ::SetFocus(watch);
        m_host.fields->SendFocusedControlKillFocusMessage();
        MSG enter{page, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
        EXPECT_EQ(m_host.fields->PreTranslateMessage(&enter), bTaken);
        EXPECT_EQ(watch.commits, nCommits) << CStringA(pszClass);
    }
}

TEST_F(PageInput, ATypedValueIsKeptWhenThePageChangesWithoutLeavingTheBox)
{
    CWnd& count = Field(IDC_COUNT);
    TypeInto(count, L"0042");
    EXPECT_EQ(Page(idAlpha)->nCount, 0) << "taken over when the user leaves";
    Page(idAlpha)->SendFocusedControlKillFocusMessage();
    EXPECT_TRUE(Page(idAlpha)->nCount == 42 && TextOf(count) == L"42" && HasFocus(count));
    TypeInto(count, L"17");
    m_selector.SetCurrentPage(Page(idBeta));
    EXPECT_EQ(TextOf(count), L"200") << "two pages on one dialog";
    TypeInto(count, L"18");
    m_manager.PageSelected(Page(idGamma), Page(idBeta)); // with another dialog
    m_manager.PageSelected(Page(idBeta), Page(idGamma));
    TypeInto(count, L"19");
    m_manager.PageSelected(Page(idDelta), nullptr); // by a selector that has lost sight of what shows
    EXPECT_EQ((std::vector{Page(idAlpha)->nCount, Page(idBeta)->nCount}), (std::vector{17, 19}));
}
