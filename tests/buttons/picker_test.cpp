// Picker buttons: what a user does with the menu, what stands in it, and what the button shows.

#include "ButtonsDialog.h"
#include "Images.h"

#include "DialogTemplate.h"
#include "Handles.h"
#include "Input.h"
#include "MenuVisit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <memory>

using owtest::MenuVisit;
using owtest::OpenMenu;
using owtest::Surface;

namespace
{
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr int kFirst = 1001, kSecond = 1002;

/// A picker whose inner state a test may look at.
template <class Picker>
class Open : public Picker
{
public:
    using Picker::m_bIsCheckBox;
    using Picker::m_bitmapSizes;
    using Picker::m_menuBitmaps;
    using Picker::m_popupMenu;
    using Picker::Picker;
};

using Choices = std::vector<std::pair<int, int>>; ///< control id, index

/// Two pickers side by side, and everything that they tell.
template <class First, class Second>
class PickerDialog : public CDialog, public ABitmapBtnSTNotificationHandler
{
public:
    PickerDialog()
    {
        const owtest::DialogTemplate form = owtest::DialogTemplate(L"Pickers", 120, 60)
                                                .Button(L"", kFirst, 4, 4, 46, 21)
                                                .Button(L"", kSecond, 54, 4, 46, 21);
        EXPECT_TRUE(CreateIndirect(form.get()));
        first.SubclassDlgItem(kFirst, this);
        second.SubclassDlgItem(kSecond, this);
        first.SetEnumSource(&values[0]);
        second.SetEnumSource(&values[1]);
        ShowWindow(SW_SHOW);
        EXPECT_TRUE(owtest::Activate(m_hWnd));
    }
    ~PickerDialog() override { DestroyWindow(); }

    Open<First> first{this};
    Open<Second> second{this};
    int values[2] = {1, 1};
    Choices choices;
    int commands = 0; ///< clicks that reached the dialog
    bool closes = false;

    Choices Take() { return std::exchange(choices, {}); }

protected:
    void OnBitmapChosen(int nId, int nIndex) override
    {
        EXPECT_EQ(values[nId - kFirst], nIndex) << "the value is stored first";
        choices.emplace_back(nId, nIndex);
        if (closes)
            DestroyWindow();
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        commands += nCode == BN_CLICKED && !pHandlerInfo;
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};
using LinesDialog = PickerDialog<CBitmapBtnSTKotnaLinija, CBitmapBtnSTTekstKote>;

/// Opens a picker's menu with the mouse, and presses keys in it.
void PickByKeys(CBitmapBtnST& picker, std::initializer_list<WORD> keys)
{
    MenuVisit visit([&](OpenMenu&) { owtest::SendKeys(keys); });
    owtest::Click(picker);
    EXPECT_EQ(visit.Count(), 1);
}

bool ShowsFocus(CButton& button)
{
    return ::GetFocus() == button.m_hWnd && (button.GetState() & BST_FOCUS);
}

/// Pictures of every kind: 0 names the place of each pixel by its colour, 1 is missing, 2 has one bit, black
/// in a white frame.
class OwnPicker : public CBitmapBtnST
{
public:
    static constexpr int kWidth = 31, kHeight = 12;

    OwnPicker()
    {
        std::vector<DWORD> places;
        for (int i = 0; i < kWidth * kHeight; ++i)
            places.push_back(testimages::Opaque(PlaceColor(i % kWidth, i / kWidth)));
        m_places.CreateBitmap(kWidth, kHeight, 1, 32, places.data());
        const WORD bits[] = {0xFFFF, 0x0180, 0x0180, 0xFFFF}; // bytes from left to right: FF FF, 80 01
        m_mono.CreateBitmap(16, 4, 1, 1, bits);
        SetThemeHelper(nullptr);
        SetFlat(FALSE);
        SetColor(colorBackOut, kFace);
    }
    HBITMAP GetBitmap(int index) const override
    {
        return index == 0 ? HBITMAP(m_places) : index == 2 ? HBITMAP(m_mono) : nullptr;
    }
    int BitmapCount() const override { return 3; }

    static COLORREF PlaceColor(int x, int y) { return RGB(x, y, 200); }
    static constexpr COLORREF kFace = RGB(180, 200, 180);

private:
    CBitmap m_places, m_mono;
};

/// A picker by itself and a surface of its size.
class PaintedPicker : public ::testing::Test
{
protected:
    void Make(CSize size)
    {
        m_lone = std::make_unique<Lone<OwnPicker>>(size);
        m_lone->button.SetEnumSource(&m_nIndex);
        m_size = size;
    }
    const Surface& Paint(UINT nItemState = 0, const CRect* pOnly = nullptr)
    {
        m_surface = std::make_unique<Surface>(m_size.cx, m_size.cy);
        if (pOnly)
            m_surface->dc().IntersectClipRect(pOnly);
        PaintButton(m_lone->button, *m_surface, nItemState);
        return *m_surface;
    }
    /// What is black or a picture's, the edge left out.
    CRect Drawn(int right) const
    {
        CRect drawn;
        for (int y = 2; y < m_size.cy - 2; ++y)
            for (int x = 2; x < right; ++x)
                if (m_surface->at(x, y) != OwnPicker::kFace)
                    drawn |= CRect(x, y, x + 1, y + 1);
        return drawn;
    }

    std::unique_ptr<Lone<OwnPicker>> m_lone;
    std::unique_ptr<Surface> m_surface;
    CSize m_size;
    int m_nIndex = 0;
};
} // namespace

// ---- The user ---------------------------------------------------------------------------------------------

TEST(PickerInput, TheKeyboardOpensTheMenuAndChooses)
{
    LinesDialog dialog;
    for (const WORD opener : {VK_SPACE, VK_RETURN})
    {
        dialog.first.SetFocus();
        bool bFocusInMenu = true;
        CPoint corner;
        MenuVisit visit(
            [&](OpenMenu& menu)
            {
                CRect rect;
                ::GetWindowRect(menu.window, rect);
                corner = rect.TopLeft();
                bFocusInMenu = ShowsFocus(dialog.first);
                owtest::SendKeys({VK_DOWN, VK_DOWN, VK_DOWN, VK_UP, VK_DOWN, VK_RETURN});
            });
        owtest::Press(opener);
        EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 2}})) << opener;
        CRect button;
        dialog.first.GetWindowRect(button);
        EXPECT_EQ(corner, CPoint(button.right + 1, button.top));
        EXPECT_FALSE(bFocusInMenu);
        EXPECT_TRUE(ShowsFocus(dialog.first));
    }
    EXPECT_EQ(dialog.commands, 0) << "the dialog is not told";
}

TEST(PickerInput, TheMouseChoosesAndAChosenPictureMayBeChosenAgain)
{
    LinesDialog dialog;
    for (int i = 0; i < 2; ++i)
    {
        MenuVisit visit([](OpenMenu& menu) { owtest::SendClick(menu.ItemRect(20).CenterPoint()); });
        owtest::Click(dialog.first);
        EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 20}}));
    }
}

TEST(PickerInput, EscapeLeavesEverythingAndTheFocusMark)
{
    LinesDialog dialog;
    PickByKeys(dialog.first, {VK_DOWN, VK_DOWN, VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(dialog.values[0], 1);
    EXPECT_EQ(dialog.Take(), Choices{});
    EXPECT_TRUE(ShowsFocus(dialog.first));
}

TEST(PickerInput, PickersStandSideBySideWithTheSameMenuIdsOrOthers)
{
    const auto expectOwn = [](auto&& dialog)
    {
        PickByKeys(dialog.first, {VK_DOWN, VK_RETURN});
        PickByKeys(dialog.second, {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
        EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 0}, {kSecond, 2}}));
        EXPECT_EQ(dialog.values[0], 0);
        EXPECT_EQ(dialog.values[1], 2);
    };
    expectOwn(PickerDialog<CBitmapBtnSTSrafura, CBitmapBtnSTSimbolPresekaZavrsetak>());
    expectOwn(PickerDialog<CBitmapBtnSTSrafura, CBitmapBtnSTTekstKote>());
}

TEST(PickerInput, AChoiceMayCloseTheDialog)
{
    LinesDialog dialog;
    dialog.closes = true;
    PickByKeys(dialog.first, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 0}}));
}

TEST(PickerInput, ColoursMayChangeWhileTheMenuIsOpen)
{
    LinesDialog dialog;
    MenuVisit visit(
        [&](OpenMenu&)
        {
            dialog.first.SendMessage(WM_SYSCOLORCHANGE);
            owtest::SendKeys({VK_ESCAPE});
        });
    owtest::Click(dialog.first);
    EXPECT_EQ(visit.Count(), 1);
    PickByKeys(dialog.first, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 0}}));
}

TEST(PickerInput, TheDialogMayGoWhileTheMenuIsOpen)
{
    auto pDialog = std::make_unique<LinesDialog>();
    MenuVisit visit([&](OpenMenu&) { pDialog.reset(); });
    owtest::Click(pDialog->first);
    EXPECT_EQ(visit.Count(), 1);
    LinesDialog other;
    PickByKeys(other.first, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(other.Take(), (Choices{{kFirst, 0}}));
}

TEST(PickerInput, GivesBackWhatItTook)
{
    const auto open = []
    {
        LinesDialog dialog;
        PickByKeys(dialog.second, {VK_DOWN, VK_RETURN});
        dialog.first.SendMessage(WM_SYSCOLORCHANGE);
    };
    open();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 50; ++i)
        open();
    EXPECT_EQ(owtest::CountHandles(), before);
}

// ---- The menu ---------------------------------------------------------------------------------------------

namespace
{
/// A colour as pixels hold it, without transparency.
DWORD Swapped(COLORREF cr)
{
    return testimages::Opaque(cr) & 0xFFFFFF;
}

testimages::Pixels Colors(HBITMAP hBitmap)
{
    testimages::Pixels pixels = testimages::PixelsOf(hBitmap);
    for (DWORD& pixel : pixels)
        pixel &= 0xFFFFFF;
    return pixels;
}

/// Expects a menu of all pictures, black on the colour of menus.
template <class Picker>
void ExpectMenu(UINT nFirstId, CSize size)
{
    const Lone<Open<Picker>> lone(CSize(70, 30));
    const auto& picker = lone.button;
    const int nCount = picker.BitmapCount();
    ASSERT_EQ(::GetMenuItemCount(picker.m_popupMenu), nCount);
    ASSERT_EQ(static_cast<int>(picker.m_bitmapSizes.size()), nCount);
    for (int i = 0; i < nCount; ++i)
    {
        MENUITEMINFO item{};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_ID | MIIM_BITMAP;
        ::GetMenuItemInfo(picker.m_popupMenu, i, TRUE, &item);
        EXPECT_EQ(item.wID, nFirstId + i);
        EXPECT_EQ(item.hbmpItem, static_cast<HBITMAP>(picker.m_menuBitmaps[i]));
        EXPECT_EQ(picker.m_bitmapSizes[i], size);

        testimages::Pixels wanted = Colors(picker.GetBitmap(i));
        for (DWORD& pixel : wanted)
            pixel = pixel == kBlack ? kBlack : Swapped(::GetSysColor(COLOR_MENU));
        EXPECT_EQ(Colors(picker.m_menuBitmaps[i]), wanted) << "picture " << i;
        EXPECT_GT(std::count(wanted.begin(), wanted.end(), kBlack), 10) << "picture " << i;
    }
}
} // namespace

TEST(PickerMenu, ShowsAllPicturesOnTheMenusColour)
{
    ExpectMenu<CBitmapBtnSTKotnaLinija>(36864, CSize(48, 16));
    ExpectMenu<CBitmapBtnSTTekstKote>(36874, CSize(48, 16));
    ExpectMenu<CBitmapBtnSTSrafura>(36864, CSize(32, 24));
    ExpectMenu<CBitmapBtnSTVisinskaKota>(36864, CSize(32, 24));
    ExpectMenu<CBitmapBtnSTLinija>(36864, CSize(48, 16));
    ExpectMenu<CBitmapBtnSTSimbolPresekaLinija>(36864, CSize(48, 16));
    ExpectMenu<CBitmapBtnSTSimbolPresekaZavrsetak>(36864, CSize(32, 24));
}

TEST(PickerMenu, IsMadeAnewWhenColoursChange)
{
    Lone<Open<CBitmapBtnSTSrafura>> lone(CSize(70, 30));
    auto& picker = lone.button;
    picker.SetColor(CButtonST::colorBackOut, RGB(1, 2, 3));
    const testimages::Pixels before = Colors(picker.GetBitmap(0));
    const auto nBlack = std::count(before.begin(), before.end(), kBlack);
    const int menuColor = COLOR_MENU;
    const COLORREF crOld = ::GetSysColor(COLOR_MENU), crNew = RGB(250, 240, 200);
    ::SetSysColors(1, &menuColor, &crNew);
    picker.SendMessage(WM_SYSCOLORCHANGE);
    const testimages::Pixels shown = Colors(picker.m_menuBitmaps[0]);
    ::SetSysColors(1, &menuColor, &crOld);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), kBlack), nBlack);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), Swapped(crNew)), 32 * 24 - nBlack);
    EXPECT_EQ(::GetMenuItemCount(picker.m_popupMenu), 10);
    COLORREF cr = 0;
    picker.GetColor(CButtonST::colorBackOut, &cr);
    EXPECT_EQ(cr, ::GetSysColor(COLOR_BTNFACE)) << "as every button";
}

TEST(PickerMenu, KeepsAPlaceForAPictureThatIsMissing)
{
    const HMODULE hLibrary = ::GetModuleHandle(L"DialogControlsOW.dll");
    Lone<Open<CBitmapBtnSTVisinskaKota>> lone(CSize(60, 40));
    int nIndex = 1;
    lone.button.SetEnumSource(&nIndex);
    Surface with(60, 40), without(60, 40), again(60, 40);
    PaintButton(lone.button, with);
    CBitmapBtnSTVisinskaKota::UnloadBitmaps();
    PaintButton(lone.button, without);
    lone.button.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(::GetMenuItemCount(lone.button.m_popupMenu), 3);
    EXPECT_EQ(::GetMenuItemID(lone.button.m_popupMenu, 2), 36866u);
    CBitmapBtnSTVisinskaKota::LoadBitmaps(hLibrary);
    lone.button.SendMessage(WM_SYSCOLORCHANGE);
    PaintButton(lone.button, again);
    EXPECT_FALSE(with == without);
    EXPECT_TRUE(with == again);
}

// Wanted: no lower bound, and the handler hears of every command.
TEST(PickerCommand, IsStoredBelowTheEndOfTheMenuAndAlwaysTold)
{
    LinesDialog dialog;
    const struct
    {
        WPARAM command;
        int stored;
    } cases[] = {{36874, 0},  {36879, 5},           {36880, 1},
                 {36873, -1}, {IDOK, IDOK - 36874}, {MAKEWPARAM(36875, 1), 1}};
    for (const auto& [command, stored] : cases)
    {
        dialog.values[1] = 1;
        dialog.second.SendMessage(WM_COMMAND, command);
        EXPECT_EQ(dialog.values[1], stored) << command;
        EXPECT_EQ(dialog.Take(), (Choices{{kSecond, stored}}));
    }
}

TEST(PickerCommand, NeedsNeitherSourceNorHandler)
{
    struct Listener : ABitmapBtnSTNotificationHandler
    {
        int told = -1;
        void OnBitmapChosen(int, int nIndex) override { told = nIndex; }
    } listener;
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, CRect(0, 0, 90, 90), nullptr, 0);
    CBitmapBtnSTSrafura bound(&listener), silent;
    int nIndex = 4;
    bound.SetEnumSource(&nIndex);
    EXPECT_EQ(bound.GetEnumSource(), 4);
    bound.SetEnumSource(nullptr);
    silent.SetEnumSource(&nIndex);
    for (CBitmapBtnST* pPicker : {&bound, &silent})
    {
        pPicker->Create(_T(""), WS_CHILD, CRect(0, 0, 60, 40), &parent, 7);
        pPicker->SendMessage(WM_COMMAND, 36864 + 6);
    }
    EXPECT_EQ(listener.told, 0);
    EXPECT_EQ(bound.GetEnumSource(), 0);
    EXPECT_EQ(nIndex, 6);
}

TEST(PickerButton, IsAPushButtonWhateverItTakesOver)
{
    for (const DWORD dwType : {BS_OWNERDRAW, BS_AUTOCHECKBOX, BS_DEFPUSHBUTTON})
    {
        const Lone<Open<CBitmapBtnSTLinija>> lone(CSize(70, 30), _T(""), dwType);
        EXPECT_FALSE(lone.button.m_bIsCheckBox) << dwType;
        EXPECT_FALSE(lone.button.GetDefault());
        EXPECT_EQ(lone.button.GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
    }
}

// ---- Painting ---------------------------------------------------------------------------------------------

// The picture area is 19 pixels narrower and 10 lower than the button.
TEST_F(PaintedPicker, LaysThePictureInTheMiddle)
{
    const int w = OwnPicker::kWidth, h = OwnPicker::kHeight;
    const struct
    {
        const char* name;
        CSize button;
        CRect drawn;
        CPoint source; ///< of the first pixel
    } cases[] = {
        {"equal", {w + 19, h + 10}, {5, 5, 5 + w, 5 + h}, {0, 0}},
        {"smaller", {w + 19 + 9, h + 10 + 5}, {5 + 4, 5 + 2, 5 + 4 + w, 5 + 2 + h}, {0, 0}},
        {"larger", {w + 19 - 9, h + 10 - 5}, {5, 5, 5 + w - 9, 5 + h - 5}, {4, 2}},
        {"larger across, smaller down", {w + 19 - 2, h + 10 + 2}, {5, 6, 5 + w - 2, 6 + h}, {1, 0}},
    };
    for (const auto& [name, button, drawn, source] : cases)
    {
        Make(button);
        Paint();
        EXPECT_EQ(Drawn(button.cx - 12), drawn) << name;
        EXPECT_EQ(m_surface->at(drawn.left, drawn.top), OwnPicker::PlaceColor(source.x, source.y)) << name;
        EXPECT_EQ(m_surface->at(drawn.right - 1, drawn.bottom - 1),
                  OwnPicker::PlaceColor(source.x + drawn.Width() - 1, source.y + drawn.Height() - 1))
            << name;
    }
}

// Half-way down is half of the button's bottom: of an even height the arrow moves only sideways.
TEST_F(PaintedPicker, MovesByOneWhilePressedAndIsEngravedWhileDisabled)
{
    for (const auto& [nHeight, moved] : {std::pair(31, CPoint(1, 1)), {30, CPoint(1, 0)}})
    {
        Make(CSize(80, nHeight));
        m_lone->button.SetColor(CButtonST::colorBackIn, OwnPicker::kFace);
        const CRect arrow(70, 14, 75, 17);
        EXPECT_EQ(Paint().extent(kBlack), arrow);
        const CRect picture = Drawn(68);
        EXPECT_EQ(Paint(ODS_SELECTED).extent(kBlack), arrow + moved);
        EXPECT_EQ(Drawn(68), picture + CPoint(1, 1));

        const Surface& disabled = Paint(ODS_DISABLED);
        EXPECT_TRUE(Drawn(68).IsRectEmpty()) << "no picture";
        EXPECT_TRUE(disabled.extent(kBlack).IsRectEmpty());
        for (int step = 0; step < 3; ++step)
            EXPECT_EQ(disabled.at(74 - step, 14 + step), kWhite);
        EXPECT_EQ(disabled.at(70, 14), ::GetSysColor(COLOR_BTNSHADOW));
    }
}

TEST_F(PaintedPicker, APictureOfOneBitTakesOnTheFace)
{
    Make(CSize(80, 30));
    m_nIndex = 2;
    m_lone->button.SetColor(CButtonST::colorBackIn, RGB(10, 220, 30));
    for (const auto& [state, face] : {std::pair(0u, OwnPicker::kFace), {ODS_SELECTED, RGB(10, 220, 30)}})
    {
        const CPoint at = CPoint(27, 13) + (state ? CPoint(1, 1) : CPoint(0, 0));
        const Surface& picture = Paint(state);
        EXPECT_EQ(picture.at(at.x, at.y), face);
        EXPECT_EQ(picture.at(at.x + 1, at.y + 1), kBlack);
        EXPECT_EQ(picture.count(CRect(at, CSize(16, 4)), kBlack), 14 * 2);
        EXPECT_EQ(picture.count(CRect(at, CSize(16, 4)), face), 64 - 14 * 2);
    }
    // Only a part is painted, and the middle is not in it.
    const CRect part(28, 0, 35, 30);
    const Surface& partly = Paint(0, &part);
    EXPECT_EQ(partly.at(30, 13), OwnPicker::kFace);
    EXPECT_EQ(partly.at(30, 14), kBlack);
}

TEST_F(PaintedPicker, IsEmptyWhereThereIsNoPictureToShow)
{
    Make(CSize(80, 30));
    for (const int index : {1, -1, 3, INT_MAX, INT_MIN})
    {
        m_nIndex = index;
        EXPECT_EQ(Paint().extent(kBlack), CRect(70, 14, 75, 17)) << "the arrow shows; index " << index;
        EXPECT_TRUE(Drawn(68).IsRectEmpty()) << index;
    }
    m_nIndex = 0;
    EXPECT_FALSE((Paint(), Drawn(68)).IsRectEmpty());
    m_lone->button.SetEnumSource(nullptr);
    EXPECT_TRUE((Paint(), Drawn(68)).IsRectEmpty());

    for (const CSize size : {CSize(19, 30), CSize(80, 10), CSize(12, 6)})
    {
        Make(size);
        Paint();
        const CRect left(2, 2, size.cx - 12, size.cy - 2);
        EXPECT_EQ(m_surface->count(left, OwnPicker::kFace), std::max(0, left.Width()) * left.Height());
    }
}
