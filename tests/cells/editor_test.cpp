// The in-place editors: first key, growth, end, self-deletion.

#include <DialogControlsOW.h>

#include "Input.h"

#include <gtest/gtest.h>

#include <optional>

namespace
{
/// Stands for the grid: takes the focus back and keeps what the editor tells.
class EditorHost : public CWnd
{
public:
    struct Told
    {
        int row, col;
        UINT mask;
        LPARAM key;
        CString text;
    };
    std::optional<Told> told;
    int count = 0;

    bool Open()
    {
        return CreateEx(0, AfxRegisterWndClass(0), L"host", WS_POPUP | WS_VISIBLE | WS_BORDER,
                        CRect(200, 150, 500, 350), nullptr, 0) &&
               owtest::Activate(m_hWnd);
    }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        const auto& info = *reinterpret_cast<GV_DISPINFO*>(lParam);
        if (info.hdr.code == LVN_ENDLABELEDITW && wParam == InPlaceControlId)
        {
            told = {info.item.row, info.item.col, info.item.mask, info.item.lParam, info.item.strText};
            ++count;
        }
        *pResult = 0;
        return TRUE;
    }
};

class Editors : public ::testing::Test
{
protected:
    static EditorHost& Host()
    {
        static EditorHost* const pHost = new EditorHost;
        if (!pHost->m_hWnd)
            pHost->Open();
        return *pHost;
    }
    void SetUp() override
    {
        host.told.reset();
        host.count = 0;
    }
    CInPlaceEdit* Edit(UINT firstChar, const wchar_t* text = L"text", CRect rect = CRect(10, 10, 70, 30))
    {
        return new CInPlaceEdit(&host, rect, ES_LEFT, InPlaceControlId, 3, 4, text, firstChar);
    }
    CInPlaceList* List(DWORD style, UINT firstChar, const wchar_t* text)
    {
        CStringArray items;
        for (const wchar_t* item : {L"alpha", L"beta", L"gamma"})
            items.Add(item);
        CRect rect(10, 10, 110, 30);
        return new CInPlaceList(&host, rect, style, InPlaceControlId, 3, 4, 0, 0, items, text, firstChar);
    }
    CString TextOf(CWnd* window)
    {
        owtest::Pump(); // the first character is posted
        CString text;
        window->GetWindowText(text);
        return text;
    }
    bool Ended()
    {
        return owtest::PumpUntil([&] { return host.told && !host.GetDlgItem(InPlaceControlId); });
    }
    EditorHost& host = Host();
};
} // namespace

TEST_F(Editors, TheFirstKeyDecidesWhatHappensToTheText)
{
    struct Case
    {
        UINT key;
        const wchar_t* text;
        int from, to; ///< selection
    };
    for (const Case& c : {Case{VK_LBUTTON, L"text", 4, 4},
                          {VK_RETURN, L"text", 4, 4},
                          {VK_BACK, L"tex", 3, 3},
                          {VK_TAB, L"text", 0, 4},
                          {VK_SPACE, L"text", 0, 4},
                          {VK_DOWN, L"text", 0, 4},
                          {L'q', L"q", 1, 1}})
    {
        CInPlaceEdit* const edit = Edit(c.key);
        EXPECT_EQ(TextOf(edit), c.text) << c.key;
        int from = -1, to = -1;
        edit->GetSel(from, to);
        EXPECT_EQ(from, c.from) << c.key;
        EXPECT_EQ(to, c.to) << c.key;
        host.SetFocus();
        EXPECT_TRUE(Ended());
        EXPECT_EQ(host.told->key, 0) << "the focus has left by itself";
        host.told.reset();
    }
}

TEST_F(Editors, KeysEndAnEditAndAreTold)
{
    for (const WORD key : {VK_RETURN, VK_TAB, VK_DOWN, VK_PRIOR})
    {
        host.told.reset();
        host.count = 0;
        Edit('z');
        owtest::Pump();
        owtest::Press(key);
        ASSERT_TRUE(Ended()) << key;
        EXPECT_EQ(host.told->key, key);
        EXPECT_EQ(host.told->text, L"z");
        EXPECT_EQ(host.told->row, 3);
        EXPECT_EQ(host.told->col, 4);
        EXPECT_EQ(host.told->mask, GV_MASK_TEXT | GV_MASK_PARAM);
        EXPECT_EQ(host.count, 1);
    }
    host.told.reset();
    Edit('z');
    owtest::Press(VK_ESCAPE);
    ASSERT_TRUE(Ended());
    EXPECT_EQ(host.told->text, L"text") << "what it began with";
    EXPECT_EQ(host.told->key, VK_ESCAPE);
}

TEST_F(Editors, AnEditByMouseKeepsTheArrowsUnlessControlIsHeld)
{
    Edit(VK_LBUTTON);
    owtest::Press(VK_LEFT);
    owtest::Press(VK_HOME);
    owtest::Pump();
    EXPECT_FALSE(host.told);
    owtest::Press(VK_LEFT, false, true);
    ASSERT_TRUE(Ended());
    EXPECT_EQ(host.told->key, VK_LEFT);
}

TEST_F(Editors, AnEditGrowsToTheParentsEdgeAndNeverShrinks)
{
    CInPlaceEdit* const edit = Edit(VK_LBUTTON, L"");
    const auto rect = [&]
    {
        CRect r;
        edit->GetWindowRect(&r);
        host.ScreenToClient(&r);
        return r;
    };
    owtest::Type(L"abcdefghijklmnop");
    owtest::Pump();
    const int wide = rect().right;
    EXPECT_GT(wide, 70);
    owtest::Press(VK_BACK);
    EXPECT_EQ(rect().right, wide);
    owtest::Type(L"abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz");
    owtest::Pump();
    CRect client;
    host.GetClientRect(&client);
    EXPECT_EQ(rect(), CRect(10, 10, client.right, 30));
    host.SetFocus();
    ASSERT_TRUE(Ended());
}

TEST_F(Editors, AltWithACharacterIsSwallowed)
{
    CInPlaceEdit* const edit = Edit(VK_LBUTTON);
    MSG msg{edit->m_hWnd, WM_SYSCHAR, 'x', 0, 0, {}};
    EXPECT_TRUE(static_cast<CWnd*>(edit)->PreTranslateMessage(&msg));
    EXPECT_EQ(edit->SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
    host.SetFocus();
    ASSERT_TRUE(Ended());
}

TEST_F(Editors, AListIsAsWideAsItsLongestEntryWithinLimits)
{
    CInPlaceList* const list = List(CBS_DROPDOWN, VK_LBUTTON, L"beta");
    const int width = list->GetCorrectDropWidth();
    EXPECT_GT(width, ::GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_LT(width, 200);
    list->AddString(CString(L'W', 60));
    EXPECT_EQ(list->GetCorrectDropWidth(), 200);
    host.SetFocus();
    ASSERT_TRUE(Ended());
}
