// The button that offers texts in a menu: what the menu shows, the choice by mouse and by keys, the face.

#include "ButtonsDialog.h"

#include "Handles.h"
#include "Input.h"
#include "MenuVisit.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>

using Calls = std::vector<std::string>;

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

/// Two text buttons; writes down "chosen 1001: 2 (2)", the bound variable in brackets, and the clicks that come through.
class TextButtonsDialog : public CDialog, public ATextBtnSTNotificationHandler
{
public:
    TextButtonsDialog() : CDialog(IDD_BUTTONS) {}

    OpenTextButton button{this};
    OpenTextButton ownerDrawn;
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
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_PUSH, button);
        DDX_Control(pDX, IDC_OWNER_DRAWN, ownerDrawn);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        const BOOL bTaken = CDialog::OnCommand(wParam, lParam);
        if (!bTaken)
            calls.push_back("dialog " + std::to_string(LOWORD(wParam)));
        return bTaken;
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
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    /// Opens the menu by a click and presses the keys; what was told meanwhile.
    Calls ClickAndPress(const std::vector<WORD>& keys)
    {
        owtest::MenuVisit visit([&](const owtest::OpenMenu& menu) { PressAll(menu, keys); });
        owtest::Click(m_button);
        EXPECT_EQ(visit.Count(), 1);
        return m_dialog.Take();
    }
    static void PressAll(const owtest::OpenMenu& menu, const std::vector<WORD>& keys)
    {
        for (const WORD key : keys)
            menu.Press(key);
    }
    std::vector<std::wstring> Labels()
    {
        std::vector<std::wstring> labels;
        owtest::MenuVisit visit(
            [&](const owtest::OpenMenu& menu)
            {
                for (int i = 0; i < menu.Count(); ++i)
                {
                    labels.push_back(menu.Text(i));
                    EXPECT_EQ(menu.Id(i), kFirstCommand + i);
                }
                menu.Press(VK_ESCAPE);
            });
        owtest::Click(m_button);
        return labels;
    }
    bool ShowsFocus() { return (m_button.GetState() & BST_FOCUS) != 0; }

    using Lines = std::vector<std::wstring>;
    TextButtonsDialog m_dialog;
    OpenTextButton& m_button = m_dialog.button;
};
} // namespace

TEST_F(TextButton, TheMenuShowsTextsAndDescriptionsAsTheyAreGiven)
{
    m_button.SetTexts(Texts({L"%l", L"R&D", L"%h", L"%i"}), Texts({L"plate length", L"A & B", L""}));
    const Lines described{L"%l - plate length", L"R&&D - A && B", L"%h", L"%i"};
    EXPECT_EQ(Labels(), described);
    m_button.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(Labels(), described);
    EXPECT_EQ(m_button.TextCount(), 4);
    EXPECT_EQ(m_button.GetText(1), L"R&D");

    m_button.SetTexts(Texts({L"%l"}), Texts({L"length", L"of nothing"}));
    EXPECT_EQ(Labels(), Lines{L"%l - length"});
    m_button.SetTexts(Texts({L"%w", L"%h"}));
    EXPECT_EQ(Labels(), (Lines{L"%w", L"%h"})) << "no descriptions left";
    EXPECT_EQ(m_dialog.Take(), Calls{}) << "Escape chooses nothing, and the dialog hears of no click";
}

TEST_F(TextButton, AChoiceIsStoredAndThenTold)
{
    {
        CRect corner;
        owtest::MenuVisit visit(
            [&](const owtest::OpenMenu& menu)
            {
                ::GetWindowRect(menu.Window(), &corner);
                EXPECT_FALSE(ShowsFocus()) << "while the menu has the keys";
                menu.Click(1);
            });
        owtest::Click(m_button);
        CRect button;
        m_button.GetWindowRect(button);
        EXPECT_EQ(corner.TopLeft(), CPoint(button.right + 1, button.top));
    }
    EXPECT_EQ(m_dialog.Take(), Calls{"chosen 1001: 1 (1)"});
    EXPECT_TRUE(ShowsFocus());
    EXPECT_EQ(ClickAndPress({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}), Calls{"chosen 1001: 2 (2)"});
    EXPECT_EQ(ClickAndPress({VK_UP, VK_RETURN}), Calls{"chosen 1001: 2 (2)"}) << "the same entry again";

    m_button.SetEnumSource(nullptr);
    EXPECT_EQ(ClickAndPress({VK_DOWN, VK_RETURN}), Calls{"chosen 1001: 0 (2)"});
}

TEST_F(TextButton, SpaceAndEnterOpenTheMenu)
{
    m_button.SetFocus();
    for (const auto& [opener, keys, calls] :
         {std::tuple<WORD, std::vector<WORD>, Calls>(VK_SPACE, {VK_DOWN, VK_RETURN}, {"chosen 1001: 0 (0)"}),
          {VK_RETURN, {VK_DOWN, VK_DOWN, VK_RETURN}, {"chosen 1001: 1 (1)"}},
          {VK_SPACE, {VK_DOWN, VK_ESCAPE}, {}}})
    {
        owtest::MenuVisit visit([&](const owtest::OpenMenu& menu) { PressAll(menu, keys); });
        owtest::Press(opener);
        EXPECT_EQ(visit.Count(), 1);
        EXPECT_EQ(m_dialog.Take(), calls);
        EXPECT_TRUE(ShowsFocus());
        EXPECT_EQ(::GetFocus(), m_button.m_hWnd);
    }
    EXPECT_EQ(m_dialog.nSource, 1) << "Escape leaves it as it was";
}

TEST_F(TextButton, TheFocusMarkFollowsAHandlerThatMovesTheFocus)
{
    m_dialog.then = [&] { m_dialog.GetDlgItem(IDC_OTHER)->SetFocus(); };
    EXPECT_EQ(ClickAndPress({VK_DOWN, VK_RETURN}).size(), 1u);
    EXPECT_EQ(::GetFocus(), m_dialog.GetDlgItem(IDC_OTHER)->m_hWnd);
    EXPECT_FALSE(ShowsFocus());
}

TEST_F(TextButton, EveryCommandCountsAsAChoice)
{
    m_dialog.nSource = 2;
    m_button.SendMessage(WM_COMMAND, kFirstCommand + 3);
    EXPECT_EQ(m_dialog.Take(), Calls{"chosen 1001: 2 (2)"}) << "behind the last: the current one";
    m_button.SendMessage(WM_COMMAND, kFirstCommand - 1);
    EXPECT_EQ(m_dialog.Take(), Calls{"chosen 1001: -1 (-1)"}) << "wanted: there is no lower bound";
    m_button.SendMessage(WM_COMMAND, kFirstCommand + (1ull << 32));
    EXPECT_EQ(m_dialog.Take(), Calls{"chosen 1001: 0 (0)"}) << "the low 32 bits count";
    m_dialog.nSource = 2;
    m_button.SetEnumSource(nullptr);
    m_button.SendMessage(WM_COMMAND, kFirstCommand + 3);
    EXPECT_EQ(m_dialog.Take(), Calls{"chosen 1001: 0 (2)"});
}

TEST_F(TextButton, WithNothingToOfferAClickOnlyTakesTheFocus)
{
    owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { menu.Press(VK_ESCAPE); });
    owtest::Click(m_dialog.ownerDrawn); // no list was ever set
    EXPECT_EQ(::GetFocus(), m_dialog.ownerDrawn.m_hWnd);
    m_dialog.ownerDrawn.SendMessage(WM_SYSCOLORCHANGE);
    owtest::Click(m_dialog.ownerDrawn);
    m_button.SetTexts({});
    owtest::Click(m_button);
    EXPECT_EQ(visit.Count(), 0);
    EXPECT_EQ(m_dialog.Take(), Calls{});
    EXPECT_TRUE(ShowsFocus());
}

TEST_F(TextButton, GivesBackItsMenus)
{
    const int nBefore = owtest::CountHandles().user;
    for (int i = 0; i < 20; ++i)
    {
        CTextBtnST button;
        button.SetTexts(Texts({L"%l"}));
        button.SetTexts(Texts({L"%w"}));
    }
    EXPECT_LE(owtest::CountHandles().user, nBefore + 1);
}

// ---- Look -------------------------------------------------------------------------------------------------

TEST_F(TextButton, IsAPushButtonWhateverTheTemplateSays)
{
    EXPECT_FALSE(m_dialog.ownerDrawn.m_bIsCheckBox);
    Lone<CTextBtnST> wasDefault(CSize(60, 24), _T(""), BS_DEFPUSHBUTTON);
    EXPECT_FALSE(wasDefault.button.GetDefault());
}

TEST(TextButtonFace, ShowsAnArrowBesideTheTitle)
{
    Lone<OpenTextButton> lone(CSize(60, 24), _T("Insert"));
    lone.button.SetThemeHelper(nullptr);
    lone.button.SetFlat(FALSE);
    const COLORREF crShadow = ::GetSysColor(COLOR_BTNSHADOW);
    for (const auto& [nState, tip, cr] : {std::tuple<UINT, CPoint, COLORREF>(0, {52, 13}, RGB(0, 0, 0)),
                                          {ODS_SELECTED, {53, 13}, RGB(0, 0, 0)},
                                          {ODS_DISABLED, {50, 11}, crShadow}})
    {
        owtest::Surface surface(60, 24);
        PaintButton(lone.button, surface, nState);
        EXPECT_EQ(surface.at(tip.x, tip.y), cr) << nState;
        EXPECT_NE(surface.at(tip.x, tip.y + 1), cr) << nState;
        EXPECT_GT(surface.count(CRect(8, 4, 44, 20), nState == ODS_DISABLED ? crShadow : RGB(0, 0, 0)), 10)
            << "the title";
    }

    CRect base(5, 5, 5, 5), moved(5, 5, 5, 5);
    owtest::Surface surface(1, 1);
    surface.dc().DrawText(_T("Insert"), -1, base, DT_CALCRECT | DT_WORDBREAK | DT_CENTER);
    lone.button.DrawItemHook_CalcRect(&surface.dc(), _T("Insert"), moved);
    EXPECT_EQ(moved, base - CPoint(4, 0));
}
