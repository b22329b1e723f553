// Buttons that drop a menu: what the user does with it, and what stands in it.

#include "Room.h"

using owtest::OpenMenu;

namespace
{
OCArray<CString> Texts(std::initializer_list<LPCWSTR> texts)
{
    OCArray<CString> array;
    for (LPCWSTR pszText : texts)
        array.Add(pszText);
    return array;
}

std::string Told(int nIndex)
{
    return "told 1001 " + std::to_string(nIndex) + "; ";
}

/// A picker or a text button of six entries, beside a plain button.
class DropMenus : public InRoom, public ::testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        if (m_bText)
            m_pButton = std::make_unique<Open<CTextBtnST>>(&m_room);
        else
            m_pButton = std::make_unique<Open<CBitmapBtnSTTekstKote>>(&m_room);
        m_room.controls = {{m_pButton.get(), BS_AUTOCHECKBOX}, {&m_other}};
        InRoom::SetUp();
        SetSource(&m_nValue);
        if (m_bText)
            Text().SetTexts(Texts({L"1", L"2", L"3", L"4", L"5", L"6"}));
        m_pButton->SetFocus();
    }
    CTextBtnST& Text() { return static_cast<CTextBtnST&>(*m_pButton); }
    void SetSource(int* pnSource)
    {
        m_bText ? Text().SetEnumSource(pnSource)
                : static_cast<CBitmapBtnST&>(*m_pButton).SetEnumSource(pnSource);
    }

    const bool m_bText = GetParam();
    const std::string m_click = m_bText ? "dialog 1001; " : ""; ///< the others do not tell the dialog
    int m_nValue = 1;
    std::unique_ptr<CButtonST> m_pButton;
    CButtonST m_other;
};
INSTANTIATE_TEST_SUITE_P(Kinds, DropMenus, ::testing::Bool());
} // namespace

TEST_P(DropMenus, OpenBesideTheButtonForMouseAndKeysWhichChooseOrLeaveEverything)
{
    CRect rect;
    m_pButton->GetWindowRect(rect);
    const std::tuple<WORD, std::vector<WORD>, int> rows[] = {{VK_SPACE, {VK_DOWN, VK_DOWN, VK_RETURN}, 1},
                                                             {VK_RETURN, {VK_UP, VK_RETURN}, 5},
                                                             {0, {VK_DOWN, VK_ESCAPE}, -1},
                                                             {0, {}, 2}};
    for (const auto& [nOpener, keys, nIndex] : rows)
    {
        const auto choose = [&, &keys = keys, nIndex = nIndex](const OpenMenu& menu)
        {
            CRect menuRect;
            ::GetWindowRect(menu.Window(), menuRect);
            EXPECT_EQ(menuRect.TopLeft(), CPoint(rect.right + 1, rect.top));
            EXPECT_FALSE(ShowsFocus(*m_pButton)) << "while the menu has the keys";
            if (keys.empty())
                menu.Click(nIndex);
            for (const WORD nKey : keys)
                menu.Press({nKey});
        };
        m_nValue = -1;
        EXPECT_EQ(Visit(*m_pButton, {choose}, nOpener), m_click + (nIndex < 0 ? "" : Told(nIndex)));
        EXPECT_EQ(m_nValue, nIndex);
        EXPECT_TRUE(ShowsFocus(*m_pButton));
    }
    m_room.then = [&] { m_other.SetFocus(); };
    Visit(*m_pButton, {[](const OpenMenu& menu) { menu.Click(0); }});
    EXPECT_FALSE(m_pButton->GetState() & BST_FOCUS) << "the mark follows a handler that moves the focus";
}

TEST_P(DropMenus, StayOpenWhateverKeyIsHeldAndEndWithDialogOrButton)
{
    const auto hold = [&](const OpenMenu&)
    {
        for (const WPARAM nKey : {VK_RETURN, VK_SPACE})
            ::PostMessage(*m_pButton, WM_KEYDOWN, nKey, KF_REPEAT << 16 | 1);
        m_pButton->SendMessage(WM_SYSCOLORCHANGE);
        if (m_bText)
            Text().SetTexts(Texts({L"other"}));
    };
    const auto walk = [](const OpenMenu& menu) { menu.Press({VK_DOWN, VK_DOWN}); };
    const auto choose = [](const OpenMenu& menu) { menu.Press({VK_UP, VK_RETURN}); };
    EXPECT_EQ(Visit(*m_pButton, {walk, hold, choose}), m_click + Told(0));
    for (const bool bDelete : {false, true})
        for (const bool bInHandler : {false, true})
        {
            m_room.then = [&]
            {
                m_room.DestroyWindow();
                if (bDelete)
                    m_pButton.reset();
            };
            const auto work = [&](const OpenMenu& menu) {
                bInHandler ? menu.Press({VK_DOWN, VK_RETURN}) : m_room.then();
            };
            EXPECT_EQ(Visit(*m_pButton, {work}), bInHandler ? m_click + Told(0) : "");
            m_room.then = [] {};
            SetUp();
        }
}

TEST_P(DropMenus, TakeEveryCommandForAChoice)
{
    const WPARAM nFirst = m_bText ? 36914 : 36874;
    const std::pair<WPARAM, int> rows[] = {
        {nFirst + 6, 3},  // behind the last: what stands there
        {nFirst - 1, -1}, // wanted: there is no lower bound
        {MAKEWPARAM(nFirst, 1), 3},
        {nFirst + (1ull << 32), m_bText ? 0 : 3}}; // text buttons: the low 32 bits
    for (const auto& [command, stored] : rows)
    {
        m_nValue = 3;
        m_pButton->SendMessage(WM_KILLFOCUS);
        EXPECT_TRUE(
            Repaints(m_room, [&, n = command] { EXPECT_EQ(m_pButton->SendMessage(WM_COMMAND, n), 0); }));
        EXPECT_TRUE(ShowsFocus(*m_pButton));
        EXPECT_EQ(m_room.Take(), Told(stored)) << command;
        EXPECT_EQ(m_nValue, stored);
    }
    EXPECT_FALSE(Repaints(*m_pButton, [&] { SetSource(nullptr); }));
    for (const WPARAM command : {nFirst + 2, nFirst + 6})
        m_pButton->SendMessage(WM_COMMAND, command);
    EXPECT_EQ(m_room.Take(), Told(m_bText ? 2 : 0) + Told(0)) << "no source";
    EXPECT_TRUE(Repaints(*m_pButton, [&] { SetSource(&m_nValue); })) << "and a new source shows";
    m_pButton->SetCheck(1);
    EXPECT_FALSE(m_pButton->GetCheck()) << "a push button, whatever it takes over";
    Lone<CTextBtnST>(CSize(70, 30)).button.SendMessage(WM_COMMAND, nFirst); // without a handler
    Lone<CBitmapBtnSTTekstKote>(CSize(70, 30)).button.SendMessage(WM_COMMAND, nFirst);
}

template <class Picker>
struct OpenPicker : Picker
{
    using Picker::m_pMenu;
};

template <class Picker>
static void ExpectMenu(UINT nFirstId)
{
    const Lone<OpenPicker<Picker>> lone(CSize(70, 30));
    const auto& menu = *lone.button.m_pMenu;
    ASSERT_EQ(menu.popup.GetMenuItemCount(), static_cast<UINT>(lone.button.BitmapCount()));
    for (int i = 0; i < lone.button.BitmapCount(); ++i)
    {
        MENUITEMINFO item{};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_ID | MIIM_BITMAP;
        ::GetMenuItemInfo(menu.popup, i, TRUE, &item);
        EXPECT_EQ(item.wID, nFirstId + i);
        Pixels wanted = PixelsOf(lone.button.GetBitmap(i));
        EXPECT_GT(std::ranges::count(wanted, kBlack), 10) << "picture " << i;
        std::ranges::replace_if(
            wanted, [](DWORD pixel) { return pixel != kBlack; }, ::GetSysColor(COLOR_MENU));
        EXPECT_EQ(PixelsOf(item.hbmpItem), wanted) << "picture " << i;
    }
}

TEST(PickerMenu, ShowsAllPicturesOnTheMenusColourAndKeepsThePlacesOfMissingOnes)
{
    ExpectMenu<CBitmapBtnSTKotnaLinija>(36864);
    ExpectMenu<CBitmapBtnSTTekstKote>(36874);
    ExpectMenu<CBitmapBtnSTSrafura>(36864);
    ExpectMenu<CBitmapBtnSTVisinskaKota>(36864);
    ExpectMenu<CBitmapBtnSTLinija>(36864);
    ExpectMenu<CBitmapBtnSTSimbolPresekaLinija>(36864);
    ExpectMenu<CBitmapBtnSTSimbolPresekaZavrsetak>(36864);

    using Hatches = CBitmapBtnSTSrafura;
    Lone<OpenPicker<Hatches>> lone(CSize(80, 30));
    const auto& pMenu = lone.button.m_pMenu;
    owtest::HandleCount before;
    for (const COLORREF cr : {RGB(200, 240, 200), ::GetSysColor(COLOR_MENU)})
    {
        const int nMenu = COLOR_MENU;
        ::SetSysColors(1, &nMenu, &cr);
        before = owtest::CountHandles();
        lone.button.SendMessage(WM_SYSCOLORCHANGE);
        EXPECT_EQ(PixelsOf(pMenu->bitmaps.at(0)).at(33) & kWhite, PixelOf(cr));
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    const HBITMAP hFirst = std::exchange(Hatches::s_pictures.handles[0], nullptr);
    lone.button.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_TRUE(pMenu->popup.GetMenuItemID(0) == 36864 && pMenu->popup.GetMenuItemID(9) == 36873);
    Hatches::s_pictures.handles[0] = hFirst;
}

TEST_F(InRoom, ATextMenuShowsTextsAndDescriptionsAsTheyAreGivenAndNothingWhereThereAreNone)
{
    CTextBtnST button(&m_room);
    m_room.controls = {{&button}};
    m_room.DestroyWindow();
    m_room.Open();
    for (int i = 0; i < 2; ++i) // no menu at all, and an empty one
    {
        ClickByProgram(button);
        EXPECT_EQ(m_room.Take(), "dialog 1001; ") << "the dialog hears of clicks";
        button.SendMessage(WM_SYSCOLORCHANGE);
    }
    const auto expectShown = [&](const std::vector<std::wstring>& labels)
    {
        const auto look = [&](const OpenMenu& menu)
        {
            EXPECT_EQ(menu.Labels(), labels);
            menu.Press({VK_ESCAPE});
        };
        Visit(button, {look});
    };
    button.SetTexts(Texts({L"%l", L"R&D", L"%h", L"%i"}), Texts({L"plate length", L"A & B", L""}));
    expectShown({L"%l - plate length", L"R&&D - A && B", L"%h", L"%i"});
    EXPECT_EQ(button.GetText(1), L"R&D");
    button.SetTexts(Texts({L"%w", L"%h"}));
    expectShown({L"%w", L"%h"}); // no descriptions left
    m_room.DestroyWindow();
}
