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
        m_tree.SetCurrentPage(Page(idAlpha));
    }
    CWnd& Field(int nId) { return *m_host.fields->GetDlgItem(nId); }

    /// Types a new text into a box, without leaving it.
    CWnd& TypeInto(int nId, const wchar_t* pszText)
    {
        Field(nId).SetFocus();
        Field(nId).SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(pszText);
        return Field(nId);
    }
};
} // namespace

TEST_F(PageInput, EscapeDoesNothingInAPage)
{
    for (const int nId : {IDC_COUNT, IDC_PLAIN, IDC_NOTES})
    {
        const CWnd& box = TypeInto(nId, L"12");
        owtest::Press(VK_ESCAPE);
        EXPECT_TRUE(HasFocus(box) && TextOf(box) == L"12");
    }
    EXPECT_TRUE(m_host.fields->IsWindowVisible());
    EXPECT_EQ(m_host.cancels, 0);
    owtest::Click(*m_host.GetDlgItem(IDC_NAME));
    owtest::Press(VK_ESCAPE);
    EXPECT_EQ(m_host.cancels, 1) << "beside the page it is the host's";
}

TEST_F(PageInput, EnterBreaksTheLineOfAMultiLineBoxAndIsTheHostsElsewhere)
{
    const std::tuple<int, const wchar_t*, int, int> boxes[] = {
        {IDC_NOTES, L"1\r\n2", 0, IDC_NOTES},
        {IDC_PLAIN, L"12", 1, IDC_PLAIN}, // the default button
        {IDC_COUNT, L"1", 1, IDC_PLAIN}}; // moves on
    for (const auto& [nId, text, nOks, nTarget] : boxes)
    {
        const CWnd& box = TypeInto(nId, L"1");
        owtest::Press(VK_RETURN);
        EXPECT_TRUE(HasFocus(Field(nTarget)));
        if (nTarget == nId)
            owtest::Type(L"2");
        EXPECT_EQ(TextOf(box), text);
        EXPECT_EQ(m_host.oks, nOks);
    }
}

TEST_F(PageInput, TabGoesThroughThePageAndOnToTheHost)
{
    Field(IDC_COUNT).SetFocus();
    owtest::Press(VK_TAB);
    EXPECT_TRUE(HasFocus(Field(IDC_PLAIN)));
    MSG tab{Field(IDC_PLAIN), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(m_host.fields->PreTranslateMessage(&tab)) << "translated by the page";
    EXPECT_TRUE(HasFocus(Field(IDC_NOTES)));
    owtest::Press(VK_TAB);
    EXPECT_TRUE(HasFocus(Field(IDC_COUNT))) << "round the page, from a box that moves the focus itself";

    m_tree.SetCurrentPage(Page(idGamma));
    m_host.plain->GetDlgItem(IDC_PLAIN)->SetFocus();
    owtest::Press(VK_TAB);
    EXPECT_TRUE(HasFocus(m_tree)) << "from the page's last box, past the page that is hidden";
    owtest::Press(VK_TAB, true);
    EXPECT_TRUE(HasFocus(*m_host.plain->GetDlgItem(IDC_PLAIN)));
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
        {L"Edit", m_host, ES_WANTRETURN, 0, FALSE}};    // outside of the page
    for (const auto& [pszClass, parent, dwStyle, nCommits, bTaken] : edits)
    {
        WNDCLASS windowClass{};
        ::GetClassInfo(nullptr, _T("EDIT"), &windowClass);
        windowClass.lpszClassName = pszClass;
        windowClass.hInstance = ::GetModuleHandle(nullptr);
        ::RegisterClass(&windowClass);
        Watch watch;
        watch.SubclassWindow(::CreateWindow(pszClass, _T(""), WS_CHILD | WS_VISIBLE | ES_MULTILINE | dwStyle,
                                            150, 10, 100, 40, parent, nullptr, windowClass.hInstance,
                                            nullptr));
        watch.SetFocus();
        m_host.fields->SendFocusedControlKillFocusMessage();
        MSG enter{watch, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
        EXPECT_EQ(m_host.fields->PreTranslateMessage(&enter), bTaken) << CStringA(pszClass);
        EXPECT_EQ(watch.commits, nCommits) << CStringA(pszClass);
    }
    ::SetFocus(nullptr);
    m_host.fields->SendFocusedControlKillFocusMessage();
    MSG enter{m_host, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_FALSE(m_host.fields->PreTranslateMessage(&enter));
}

TEST_F(PageInput, ATypedValueIsKeptWhenThePageChangesWithoutLeavingTheBox)
{
    TypeInto(IDC_COUNT, L"0042");
    EXPECT_EQ(Page(idAlpha)->nCount, 0) << "taken over when the user leaves";
    Page(idAlpha)->SendFocusedControlKillFocusMessage();
    EXPECT_TRUE(Page(idAlpha)->nCount == 42 && TextOf(Field(IDC_COUNT)) == L"42");
    EXPECT_TRUE(HasFocus(Field(IDC_COUNT)));

    TypeInto(IDC_COUNT, L"17");
    m_host.PostMessage(WM_COMMAND, ID_NEXT_PAGE);
    owtest::Pump();
    EXPECT_TRUE(Page(idAlpha)->nCount == 17 && Page(idBeta)->nCount == 200);
    EXPECT_EQ(TextOf(Field(IDC_COUNT)), L"200") << "two pages on one dialog";
    TypeInto(IDC_COUNT, L"18");
    m_manager.PageSelected(Page(idGamma), Page(idBeta)); // by code, and with another dialog
    EXPECT_TRUE(Page(idAlpha)->nCount == 17 && Page(idBeta)->nCount == 18);
}

TEST_F(PageInput, AChangeTravelsFromTheBoxToTheHost)
{
    RecordingClient preview("preview");
    m_manager.RegisterAttributeChangedNotification(&preview, true);
    Field(IDC_COUNT).SetFocus();
    TakeCalls();
    owtest::Type(L"17");
    EXPECT_EQ(TakeCalls(), (Calls{"preview: changed", "preview: changed"})) << "one for each key";
    m_host.fields->AttachAttributeChangeNotificationClient(nullptr);
    owtest::Type(L"8");
    EXPECT_EQ(TakeCalls(), Calls{});
}
