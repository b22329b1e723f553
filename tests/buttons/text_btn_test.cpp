// The button that offers texts in a menu: what the menu shows, the choice by mouse and by keys, the face.

#include "ButtonsDialog.h"

#include "Handles.h"
#include "Input.h"
#include "MenuVisit.h"

#include <gtest/gtest.h>

#include <functional>

using Calls = std::vector<std::string>;
using Labels = std::vector<std::wstring>;

namespace
{
constexpr UINT kFirstCommand = 36914;

class OpenTextButton : public CTextBtnST
{
public:
    using CTextBtnST::CTextBtnST;
    using CTextBtnST::DrawItemHook_CalcRect;
    using CTextBtnST::m_bIsCheckBox;
};

OCArray<CString> Texts(std::initializer_list<LPCWSTR> texts)
{
    OCArray<CString> array;
    for (LPCWSTR pszText : texts)
        array.Add(pszText);
    return array;
}

/// Writes down "chosen 1001: 2 (2)", the bound variable in brackets, and the clicks that go to it.
class TextButtonDialog : public CDialog, public ATextBtnSTNotificationHandler
{
public:
    OpenTextButton button{this};
    OpenTextButton empty{this}; ///< no list is ever set
    int nSource = -1;
    std::function<void()> then = [] {};
    Calls calls;
    Calls Take() { return std::exchange(calls, {}); }

    void OnTextChosen(int nId, int nIndex) override
    {
        calls.push_back("chosen " + std::to_string(nId) + ": " + std::to_string(nIndex) + " (" +
                        std::to_string(nSource) + ")");
        then();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, IDC_PUSH, button);
        DDX_Control(pDX, IDC_OWNER_DRAWN, empty);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == BN_CLICKED && !pHandlerInfo)
            calls.push_back("dialog " + std::to_string(nID));
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};

class TextButton : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_BUTTONS));
        ASSERT_TRUE(owtest::Activate(m_dialog));
        m_button.SetEnumSource(&m_dialog.nSource);
        m_button.SetTexts(Texts({L"%l", L"%w", L"%h"}));
        m_button.SetFocus();
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    /// Opens the menu by a key, or by a click, works on it, and answers what was told after the click.
    Calls Visit(const std::function<void(const owtest::OpenMenu&)>& visitor, WORD opener = 0)
    {
        owtest::MenuVisit visit(visitor);
        if (opener)
            owtest::Press(opener);
        else
            owtest::Click(m_button);
        EXPECT_EQ(visit.Count(), 1);
        Calls calls = m_dialog.Take();
        EXPECT_EQ(calls.at(0), "dialog 1001");
        calls.erase(calls.begin());
        return calls;
    }
    Calls VisitAndPress(std::initializer_list<WORD> keys, WORD opener = 0)
    {
        return Visit([=](const owtest::OpenMenu& menu) { menu.Press(keys); }, opener);
    }
    Labels ShownLabels()
    {
        Labels labels;
        Visit(
            [&](const owtest::OpenMenu& menu)
            {
                labels = menu.Labels();
                menu.Press({VK_ESCAPE});
            });
        return labels;
    }
    Calls Command(WPARAM wParam)
    {
        m_button.SendMessage(WM_COMMAND, wParam);
        return m_dialog.Take();
    }
    bool ShowsFocus() { return (m_button.GetState() & BST_FOCUS) != 0; }

    TextButtonDialog m_dialog;
    OpenTextButton& m_button = m_dialog.button;
};
} // namespace

TEST_F(TextButton, TheMenuShowsTextsAndDescriptionsAsTheyAreGiven)
{
    m_button.SetTexts(Texts({L"%l", L"R&D", L"%h", L"%i"}), Texts({L"plate length", L"A & B", L""}));
    const Labels described{L"%l - plate length", L"R&&D - A && B", L"%h", L"%i"};
    EXPECT_EQ(ShownLabels(), described);
    m_button.SetColor(CButtonST::colorBackOut, RGB(1, 2, 3));
    m_button.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(ShownLabels(), described);
    COLORREF cr = 0;
    m_button.GetColor(CButtonST::colorBackOut, &cr);
    EXPECT_EQ(cr, ::GetSysColor(COLOR_BTNFACE)) << "as for every button";

    m_button.SetTexts(Texts({L"%l"}), Texts({L"length", L"of nothing"}));
    EXPECT_EQ(ShownLabels(), Labels{L"%l - length"});
    m_button.SetTexts(Texts({L"%w", L"%h"}));
    EXPECT_EQ(ShownLabels(), (Labels{L"%w", L"%h"})) << "no descriptions left";
}

TEST_F(TextButton, AChoiceIsStoredAndThenTold)
{
    CRect menuRect, rect;
    m_button.GetWindowRect(rect);
    const auto clickSecond = [&](const owtest::OpenMenu& menu)
    {
        ::GetWindowRect(menu.Window(), &menuRect);
        EXPECT_FALSE(ShowsFocus()) << "while the menu has the keys";
        menu.Click(1);
    };
    EXPECT_EQ(Visit(clickSecond), Calls{"chosen 1001: 1 (1)"});
    EXPECT_EQ(menuRect.TopLeft(), CPoint(rect.right + 1, rect.top));
    EXPECT_TRUE(ShowsFocus());
    owtest::MoveTo(m_dialog, CPoint(1, 1)); // or a menu opens under it
    EXPECT_EQ(VisitAndPress({VK_DOWN, VK_RETURN}, VK_SPACE), Calls{"chosen 1001: 0 (0)"});
    EXPECT_EQ(VisitAndPress({VK_UP, VK_RETURN}, VK_RETURN), Calls{"chosen 1001: 2 (2)"});
    EXPECT_EQ(VisitAndPress({VK_UP, VK_RETURN}), Calls{"chosen 1001: 2 (2)"}) << "the same once more";
    EXPECT_EQ(VisitAndPress({VK_DOWN, VK_ESCAPE}, VK_SPACE), Calls{});
    EXPECT_EQ(m_dialog.nSource, 2);
    EXPECT_TRUE(ShowsFocus());

    m_button.SetEnumSource(nullptr);
    m_dialog.then = [&] { m_dialog.GetDlgItem(IDC_OTHER)->SetFocus(); };
    EXPECT_EQ(VisitAndPress({VK_DOWN, VK_RETURN}), Calls{"chosen 1001: 0 (2)"});
    EXPECT_FALSE(ShowsFocus()) << "the mark follows a handler that moves the focus";
}

TEST_F(TextButton, AnOpenMenuStaysWhenColoursOrTextsChange)
{
    const auto change = [&](const owtest::OpenMenu& menu)
    {
        m_button.SendMessage(WM_SYSCOLORCHANGE);
        m_button.SetTexts(Texts({L"%i"}));
        EXPECT_EQ(menu.Labels().size(), 3u);
        menu.Press({VK_DOWN, VK_RETURN});
    };
    EXPECT_EQ(Visit(change), Calls{"chosen 1001: 0 (0)"});
    EXPECT_EQ(ShownLabels(), Labels{L"%i"}) << "from the next time on";
}

TEST_F(TextButton, EveryCommandCountsAsAChoice)
{
    m_dialog.nSource = 2;
    m_dialog.ValidateRect(nullptr);
    EXPECT_EQ(Command(kFirstCommand + 3), Calls{"chosen 1001: 2 (2)"}) << "behind the last: the current one";
    EXPECT_TRUE(m_dialog.GetUpdateRect(nullptr)) << "the parent may show the choice";
    EXPECT_EQ(Command(kFirstCommand - 1), Calls{"chosen 1001: -1 (-1)"}) << "wanted: there is no lower bound";
    EXPECT_EQ(Command(kFirstCommand + (1ull << 32)), Calls{"chosen 1001: 0 (0)"}) << "the low 32 bits count";

    m_button.ValidateRect(nullptr);
    m_button.SetEnumSource(nullptr);
    EXPECT_FALSE(m_button.GetUpdateRect(nullptr));
    m_button.SetEnumSource(&m_dialog.nSource);
    EXPECT_TRUE(m_button.GetUpdateRect(nullptr)) << "painted anew with its variable";
    m_button.SetEnumSource(nullptr);
    EXPECT_EQ(Command(kFirstCommand + 3), Calls{"chosen 1001: 0 (0)"});
}

TEST_F(TextButton, WithNothingToOfferAClickOnlyTakesTheFocus)
{
    owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { menu.Press({VK_ESCAPE}); });
    owtest::Click(m_dialog.empty);
    EXPECT_EQ(::GetFocus(), m_dialog.empty.m_hWnd);
    m_dialog.empty.SendMessage(WM_SYSCOLORCHANGE);
    owtest::Click(m_dialog.empty);
    m_button.SetTexts({});
    owtest::Click(m_button);
    EXPECT_EQ(visit.Count(), 0);
    EXPECT_TRUE(ShowsFocus());
    const std::string empty = "dialog " + std::to_string(IDC_OWNER_DRAWN);
    EXPECT_EQ(m_dialog.Take(), (Calls{empty, empty, "dialog 1001"})) << "the dialog hears of clicks";
}

TEST_F(TextButton, GivesBackItsMenus)
{
    const int nBefore = owtest::CountHandles().user;
    for (int i = 0; i < 20; ++i)
    {
        m_button.SetTexts(Texts({L"%l"}));
        CTextBtnST().SetTexts(Texts({L"%l"}));
    }
    EXPECT_EQ(owtest::CountHandles().user, nBefore);
}

TEST_F(TextButton, IsAPushButtonWithAnArrowWhateverTheTemplateSays)
{
    EXPECT_FALSE(m_dialog.empty.m_bIsCheckBox);
    Lone<OpenTextButton> lone(CSize(60, 24), _T("Insert"), BS_DEFPUSHBUTTON);
    EXPECT_FALSE(lone.button.GetDefault());
    for (const auto& [nState, tip] :
         {std::pair<UINT, CPoint>(0, {52, 13}), {ODS_SELECTED, {53, 13}}, {ODS_DISABLED, {50, 11}}})
    {
        const COLORREF cr = nState == ODS_DISABLED ? ::GetSysColor(COLOR_BTNSHADOW) : RGB(0, 0, 0);
        owtest::Surface surface(60, 24);
        PaintButton(lone.button, surface, nState);
        EXPECT_EQ(surface.at(tip.x, tip.y), cr) << nState;
        EXPECT_NE(surface.at(tip.x, tip.y + 1), cr) << nState;
        EXPECT_GT(surface.count(CRect(8, 4, 44, 20), cr), 10) << "the title";
    }

    CRect plain, moved;
    CClientDC dc(&lone.button);
    dc.DrawText(_T("Insert"), -1, plain, DT_CALCRECT | DT_WORDBREAK | DT_CENTER);
    lone.button.DrawItemHook_CalcRect(&dc, _T("Insert"), moved);
    EXPECT_EQ(moved, plain - CPoint(4, 0));
}
