// What the keyboard does in a page, and how what was typed gets into the page's values.

#include "PagesHost.h"

using owtest::TextOf;

namespace
{
class PageInput : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_host.Open());
        m_host.beta->nCount = 200;
        m_host.tree.SetCurrentPage(m_host.alpha);
    }

    static bool HasFocus(const CWnd& wnd) { return ::GetFocus() == wnd.m_hWnd; }

    /// Types a new text into a box, without leaving it.
    void TypeInto(CWnd& edit, const wchar_t* pszText)
    {
        edit.SetFocus();
        edit.SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(pszText);
    }

    TreeHost m_host;
};
} // namespace

// ---- Keys -------------------------------------------------------------------------------------------------

TEST_F(PageInput, EscapeDoesNothingInAPage)
{
    for (CWnd* pBox : {static_cast<CWnd*>(&m_host.fields->count), static_cast<CWnd*>(&m_host.fields->plain),
                       static_cast<CWnd*>(&m_host.fields->notes)})
    {
        TypeInto(*pBox, L"12");
        owtest::Press(VK_ESCAPE);
        EXPECT_TRUE(HasFocus(*pBox));
        EXPECT_EQ(TextOf(*pBox), L"12");
    }
    EXPECT_TRUE(m_host.fields->IsWindowVisible());
    EXPECT_EQ(m_host.cancels, 0);

    owtest::Click(*m_host.GetDlgItem(IDC_NAME));
    owtest::Press(VK_ESCAPE);
    EXPECT_EQ(m_host.cancels, 1) << "beside the page it is the host's";
}

TEST_F(PageInput, EnterBreaksTheLineOfAMultiLineBoxAndIsTheHostsElsewhere)
{
    TypeInto(m_host.fields->notes, L"a");
    owtest::Press(VK_RETURN);
    owtest::Type(L"b");
    EXPECT_EQ(TextOf(m_host.fields->notes), L"a\r\nb");
    EXPECT_EQ(m_host.oks, 0);

    TypeInto(m_host.fields->plain, L"1");
    owtest::Press(VK_RETURN);
    EXPECT_EQ(TextOf(m_host.fields->plain), L"1");
    EXPECT_EQ(m_host.oks, 1) << "the host's default button";

    TypeInto(m_host.fields->count, L"3");
    owtest::Press(VK_RETURN);
    EXPECT_TRUE(HasFocus(m_host.fields->plain)) << "a typed box moves on";
    EXPECT_EQ(m_host.oks, 1);
}

TEST_F(PageInput, TabGoesThroughThePageAndOnToTheHost)
{
    m_host.fields->count.SetFocus();
    owtest::Press(VK_TAB);
    EXPECT_TRUE(HasFocus(m_host.fields->plain));
    m_host.tree.SetCurrentPage(m_host.gamma);
    m_host.plain->GetDlgItem(IDC_TEXT)->SetFocus();
    owtest::Press(VK_TAB);
    EXPECT_TRUE(HasFocus(m_host.tree)) << "from the page's last box, past the page that is hidden";
    owtest::Press(VK_TAB, true);
    EXPECT_TRUE(HasFocus(*m_host.plain->GetDlgItem(IDC_TEXT)));
}

/// An edit, multi-line, under a class of another name.
static HWND MakeEditOfClass(LPCTSTR pszClass, CWnd& parent, DWORD dwStyle = ES_WANTRETURN)
{
    WNDCLASS windowClass{};
    ::GetClassInfo(nullptr, _T("EDIT"), &windowClass);
    windowClass.lpszClassName = pszClass;
    windowClass.hInstance = ::GetModuleHandle(nullptr);
    ::RegisterClass(&windowClass);
    return ::CreateWindow(pszClass, _T(""), WS_CHILD | WS_VISIBLE | ES_MULTILINE | dwStyle, 150, 10, 100, 40,
                          parent, nullptr, windowClass.hInstance, nullptr);
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
    using Taken = std::pair<int, BOOL>;
    const auto taken = [&](HWND hEdit)
    {
        Watch watch;
        EXPECT_TRUE(watch.SubclassWindow(hEdit));
        watch.SetFocus();
        m_host.fields->SendFocusedControlKillFocusMessage();
        MSG enter{hEdit, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
        const BOOL bTaken = m_host.fields->PreTranslateMessage(&enter);
        watch.UnsubclassWindow();
        return Taken(watch.commits, bTaken);
    };
    CWnd& page = *m_host.fields;
    EXPECT_EQ(taken(MakeEditOfClass(L"Edit", page)), Taken(1, TRUE));
    EXPECT_EQ(taken(MakeEditOfClass(L"Edit", page, 0)), Taken(1, FALSE)) << "wants no Enter";
    EXPECT_EQ(taken(MakeEditOfClass(L"EDITNOTES1", page)), Taken(0, FALSE)) << "a longer name";
    EXPECT_EQ(taken(MakeEditOfClass(L"Notes", page)), Taken(0, FALSE)) << "another name";
    EXPECT_EQ(taken(MakeEditOfClass(L"Edit", m_host)), Taken(0, FALSE)) << "outside of the page";

    ::SetFocus(nullptr);
    MSG enter{m_host, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_FALSE(m_host.fields->PreTranslateMessage(&enter));
    m_host.fields->SendFocusedControlKillFocusMessage();
}

// ---- Values -----------------------------------------------------------------------------------------------

TEST_F(PageInput, ATypedValueIsKeptWhenThePageChangesWithoutLeavingTheBox)
{
    TypeInto(m_host.fields->count, L"17");
    EXPECT_EQ(m_host.alpha->nCount, 0) << "taken over when the user leaves";
    m_host.PostMessage(WM_COMMAND, ID_NEXT_PAGE);
    owtest::Pump();
    EXPECT_EQ(m_host.tree.GetCurrentPage(), m_host.beta);
    EXPECT_EQ(m_host.alpha->nCount, 17);
    EXPECT_EQ(m_host.beta->nCount, 200);
    EXPECT_EQ(TextOf(m_host.fields->count), L"200") << "two pages on one dialog";

    // By code, and to a page with another dialog.
    TypeInto(m_host.fields->count, L"18");
    m_host.manager.PageSelected(m_host.gamma, m_host.beta);
    EXPECT_EQ(m_host.beta->nCount, 18);
    EXPECT_EQ(m_host.alpha->nCount, 17);
}

TEST_F(PageInput, TheCommitLeavesTheFocusWhereItIs)
{
    TypeInto(m_host.fields->count, L"0042");
    m_host.alpha->SendFocusedControlKillFocusMessage();
    EXPECT_EQ(m_host.alpha->nCount, 42);
    EXPECT_EQ(TextOf(m_host.fields->count), L"42");
    EXPECT_TRUE(HasFocus(m_host.fields->count));
}

TEST_F(PageInput, AChangeTravelsFromTheBoxToTheHost)
{
    struct Preview : AAttributeChangeNotificationClient
    {
        int changes = 0;
        void AttributeChangedUsingGUI() override { ++changes; }
    } preview;
    m_host.manager.RegisterAttributeChangedNotification(&preview, true);
    TypeInto(m_host.fields->count, L"17");
    EXPECT_EQ(preview.changes, 2) << "one for each key";
    m_host.fields->AttachAttributeChangeNotificationClient(nullptr);
    owtest::Type(L"8");
    EXPECT_EQ(preview.changes, 2);
}
