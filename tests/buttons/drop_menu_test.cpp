// Buttons that drop a menu: what the user does with it, and what stands in it.

#include "Handles.h"
#include "Images.h"
#include "Room.h"

using owtest::OpenMenu;
using testimages::Pixels;
using testimages::PixelsOf;
using Keys = std::vector<WORD>;

namespace
{
OCArray<CString> Texts(std::initializer_list<LPCWSTR> texts)
{
    OCArray<CString> array;
    for (LPCWSTR pszText : texts)
        array.Add(pszText);
    return array;
}

template <class Picker>
struct OpenPicker : Picker
{
    using Picker::m_pMenu;
};

/// A picker or a text button of six entries, beside a plain button.
template <class Button>
class DropMenus : public InRoom
{
protected:
    static constexpr bool kIsText = std::is_same_v<Button, CTextBtnST>;
    static constexpr int kFirstCommand = kIsText ? 36914 : 36874, kCount = 6;
    /// A click is told to the dialog by text buttons only.
    const Calls m_click{kIsText ? Calls{"dialog 1001"} : Calls{}};

    void SetUp() override
    {
        m_pButton = std::make_unique<Open<Button>>(&m_room);
        m_room.controls = {{m_pButton.get(), BS_AUTOCHECKBOX}, {&m_other}};
        InRoom::SetUp();
        m_pButton->SetEnumSource(&m_nValue);
        if constexpr (kIsText)
            m_pButton->SetTexts(Texts({L"1", L"2", L"3", L"4", L"5", L"6"}));
        m_pButton->SetFocus();
    }
    /// What is told of a choice.
    Calls Choice(int nIndex) const
    {
        Calls calls = m_click;
        calls.push_back("told 1001 " + std::to_string(nIndex));
        return calls;
    }

    int m_nValue = 1;
    std::unique_ptr<Open<Button>> m_pButton;
    CButtonST m_other;
};
using Kinds = ::testing::Types<CBitmapBtnSTTekstKote, CTextBtnST>;
TYPED_TEST_SUITE(DropMenus, Kinds);
} // namespace

TYPED_TEST(DropMenus, OpenBesideTheButtonForMouseAndKeysWhichChooseOrLeaveEverything)
{
    auto& button = *this->m_pButton;
    CRect rect;
    button.GetWindowRect(rect);
    const std::tuple<WORD, Keys, int> rows[] = {{VK_SPACE, {VK_DOWN, VK_DOWN, VK_DOWN, VK_UP, VK_RETURN}, 1},
                                                {VK_SPACE, {VK_UP, VK_RETURN}, 5},
                                                {VK_RETURN, {VK_UP, VK_RETURN}, 5}, // the same once more
                                                {VK_RETURN, {VK_DOWN, VK_ESCAPE}, -1},
                                                {0, {VK_DOWN, VK_ESCAPE}, -1},
                                                {0, {}, 2}};
    for (const auto& [nOpener, keys, nIndex] : rows)
    {
        const auto choose = [&, &keys = keys, nIndex = nIndex](const OpenMenu& menu)
        {
            CRect menuRect;
            ::GetWindowRect(menu.Window(), menuRect);
            EXPECT_EQ(menuRect.TopLeft(), CPoint(rect.right + 1, rect.top));
            EXPECT_FALSE(this->ShowsFocus(button)) << "while the menu has the keys";
            if (keys.size() == 0)
                menu.Click(nIndex);
            for (const WORD nKey : keys)
                menu.Press({nKey});
        };
        this->m_nValue = -1;
        EXPECT_EQ(this->Visit(button, {choose}, nOpener), nIndex < 0 ? this->m_click : this->Choice(nIndex));
        EXPECT_EQ(this->m_nValue, nIndex);
        EXPECT_TRUE(this->ShowsFocus(button));
    }
    this->m_room.then = [&] { this->m_other.SetFocus(); };
    this->Visit(button, {[](const OpenMenu& menu) { menu.Press({VK_DOWN, VK_RETURN}); }});
    EXPECT_FALSE(button.GetState() & BST_FOCUS) << "the mark follows a handler that moves the focus";
}

TYPED_TEST(DropMenus, StayOpenWhateverKeyIsHeldAndEndWithDialogOrButton)
{
    auto& button = *this->m_pButton;
    const auto hold = [&](const OpenMenu&)
    {
        for (const WPARAM nKey : {VK_RETURN, VK_SPACE})
            ::PostMessage(button, WM_KEYDOWN, nKey, KF_REPEAT << 16 | 1);
        button.SetColor(CButtonST::colorBackOut, kRed);
        button.SendMessage(WM_SYSCOLORCHANGE);
        if constexpr (TestFixture::kIsText)
            button.SetTexts(Texts({L"other"}));
    };
    const auto walk = [](const OpenMenu& menu) { menu.Press({VK_DOWN, VK_DOWN}); };
    const auto choose = [](const OpenMenu& menu) { menu.Press({VK_UP, VK_RETURN}); };
    EXPECT_EQ(this->Visit(button, {walk, hold, choose}), this->Choice(0));
    EXPECT_EQ(ColorOf(button), ::GetSysColor(COLOR_BTNFACE)) << "as every button";

    for (const auto& [bDelete, bInHandler] : {std::pair(0, 0), {0, 1}, {1, 0}, {1, 1}})
    {
        this->m_room.then = [&, bDelete = bDelete]
        {
            this->m_room.DestroyWindow();
            if (bDelete)
                this->m_pButton.reset();
        };
        const auto work = [&, bInHandler = bInHandler](const OpenMenu& menu) {
            bInHandler ? menu.Press({VK_DOWN, VK_RETURN}) : this->m_room.then();
        };
        EXPECT_EQ(this->Visit(*this->m_pButton, {work}), bInHandler ? this->Choice(0) : Calls{});
        this->m_room.then = [] {};
        this->SetUp();
    }
}

TYPED_TEST(DropMenus, TakeEveryCommandForAChoice)
{
    auto& button = *this->m_pButton;
    const WPARAM nFirst = this->kFirstCommand, nEnd = nFirst + this->kCount;
    const bool bIsText = this->kIsText;
    const std::pair<WPARAM, int> rows[] = {
        {nFirst, 0},
        {nEnd - 1, 5},
        {nEnd, 3},        // behind the last: what stands there
        {nFirst - 1, -1}, // wanted: there is no lower bound
        {IDOK, IDOK - static_cast<int>(nFirst)},
        {MAKEWPARAM(nFirst, 1), 3},
        {nFirst + (1ull << 32), bIsText ? 0 : 3}}; // text buttons: the low 32 bits
    for (const auto& [command, stored] : rows)
    {
        this->m_nValue = 3;
        this->m_other.SetFocus();
        button.SetFocus();
        button.SendMessage(WM_KILLFOCUS);
        this->m_room.erases = 0;
        EXPECT_TRUE(Repaints(this->m_room, [&, command = command]
                             { EXPECT_EQ(button.SendMessage(WM_COMMAND, command), 0); }));
        this->m_room.UpdateWindow();
        EXPECT_EQ(this->m_room.erases, 0) << "the parent is painted anew without being erased";
        EXPECT_TRUE(this->ShowsFocus(button));
        EXPECT_EQ(this->m_room.Take(), Calls{"told 1001 " + std::to_string(stored)}) << command;
        EXPECT_EQ(this->m_nValue, stored);
    }
    EXPECT_FALSE(Repaints(button, [&] { button.SetEnumSource(nullptr); }));
    for (const WPARAM command : {nFirst + 2, nEnd})
        button.SendMessage(WM_COMMAND, command);
    EXPECT_EQ(this->m_room.Take(), (Calls{bIsText ? "told 1001 2" : "told 1001 0", "told 1001 0"}))
        << "no source";
    EXPECT_TRUE(Repaints(button, [&] { button.SetEnumSource(&this->m_nValue); })) << "and a new source shows";
    EXPECT_FALSE(button.m_bIsCheckBox) << "a push button, whatever it takes over";
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_OWNERDRAW));
    Lone<TypeParam> lone(CSize(70, 30), L"", BS_DEFPUSHBUTTON);
    EXPECT_FALSE(lone.button.GetDefault());
    lone.button.SetEnumSource(&this->m_nValue);
    lone.button.SendMessage(WM_COMMAND, nFirst); // there is no handler
    EXPECT_EQ(this->m_nValue, 0);
}

template <class Picker>
static void ExpectMenu(UINT nFirstId, CSize size)
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
        EXPECT_TRUE(item.wID == nFirstId + i && menu.sizes.at(i) == size);
        Pixels wanted = PixelsOf(lone.button.GetBitmap(i));
        for (DWORD& pixel : wanted)
            pixel = pixel == kBlack ? kBlack : ::GetSysColor(COLOR_MENU);
        EXPECT_EQ(PixelsOf(item.hbmpItem), wanted) << "picture " << i;
        EXPECT_GT(std::ranges::count(wanted, kBlack), 10) << "picture " << i;
    }
}

TEST(PickerMenu, ShowsAllPicturesOnTheMenusColourAndKeepsThePlacesOfMissingOnes)
{
    const CSize low(48, 16), high(32, 24);
    ExpectMenu<CBitmapBtnSTKotnaLinija>(36864, low);
    ExpectMenu<CBitmapBtnSTTekstKote>(36874, low);
    ExpectMenu<CBitmapBtnSTSrafura>(36864, high);
    ExpectMenu<CBitmapBtnSTVisinskaKota>(36864, high);
    ExpectMenu<CBitmapBtnSTLinija>(36864, low);
    ExpectMenu<CBitmapBtnSTSimbolPresekaLinija>(36864, low);
    ExpectMenu<CBitmapBtnSTSimbolPresekaZavrsetak>(36864, high);

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
        EXPECT_EQ(PixelsOf(pMenu->bitmaps.at(0)).at(33) & 0xFFFFFF, testimages::Opaque(cr) & 0xFFFFFF);
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    auto& pictures = Hatches::s_pictures;
    const HBITMAP hLast = pictures.handles[9];
    Hatches::UnloadBitmaps();
    EXPECT_FALSE(pictures.loaded || testimages::IsBitmap(hLast));
    pictures.handles[0] = testimages::MakeBitmap(CSize(9, 9), kBlue, kKey);
    Hatches::UnloadBitmaps(); // they are gone already
    EXPECT_TRUE(::DeleteObject(std::exchange(pictures.handles[0], nullptr)));
    lone.button.SendMessage(WM_SYSCOLORCHANGE);
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(pMenu->popup.GetMenuItemID(i) == 36864u + i && pMenu->sizes[i] == CSize(0, 0)) << i;
    Hatches::LoadBitmaps(::GetModuleHandle(_T("DialogControlsOW.dll")));
    EXPECT_TRUE(pictures.loaded && testimages::IsBitmap(pictures.handles[9]));
}

using TextMenu = DropMenus<CTextBtnST>;

TEST_F(TextMenu, ShowsTextsAndDescriptionsAsTheyAreGivenAndNothingWhereThereAreNone)
{
    using Labels = std::vector<std::wstring>;
    const auto expectShown = [&](const Labels& labels)
    {
        const auto look = [&](const OpenMenu& menu)
        {
            EXPECT_EQ(menu.Labels(), labels);
            menu.Press({VK_ESCAPE});
        };
        Visit(*m_pButton, {look});
    };
    m_pButton->SetTexts(Texts({L"%l", L"R&D", L"%h", L"%i"}), Texts({L"plate length", L"A & B", L""}));
    for (int i = 0; i < 2; ++i)
    {
        expectShown({L"%l - plate length", L"R&&D - A && B", L"%h", L"%i"});
        m_pButton->SendMessage(WM_SYSCOLORCHANGE);
    }
    EXPECT_TRUE(m_pButton->TextCount() == 4 && m_pButton->GetText(1) == L"R&D");
    m_pButton->SetTexts(Texts({L"%l"}), Texts({L"length", L"of nothing"}));
    expectShown({L"%l - length"});
    m_pButton->SetTexts(Texts({L"%w", L"%h"}));
    expectShown({L"%w", L"%h"}); // no descriptions left

    m_pButton->UnsubclassWindow();
    CTextBtnST button; // has no menu yet
    button.SubclassDlgItem(1001, &m_room);
    for (int i = 0; i < 3; ++i)
    {
        m_other.SetFocus();
        owtest::Click(button);
        EXPECT_TRUE(ShowsFocus(button));
        EXPECT_EQ(m_room.Take(), m_click) << "the dialog hears of clicks";
        i ? button.SetTexts({}) : void(button.SendMessage(WM_SYSCOLORCHANGE));
    }
    button.UnsubclassWindow();
}
