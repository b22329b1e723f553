// Picker buttons: what a user does with the menu, what stands in it, and what the button shows.

#include "ButtonsDialog.h"
#include "Images.h"

#include "DialogTemplate.h"
#include "Handles.h"
#include "Input.h"
#include "MenuVisit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <functional>
#include <memory>

using owtest::MenuVisit;
using owtest::OpenMenu;
using owtest::Surface;
using testimages::Pixels;
using testimages::PixelsOf;

namespace
{
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kFace = RGB(180, 200, 180);
const CRect kArrow(70, 14, 75, 17);                       // in a button of 80 by 30
constexpr int kFirst = 1001, kHatch = 1002, kText = 1003; // controls

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

/// Pickers side by side, and everything that they tell. The first and the second share menu ids, the second
/// and the third do not.
class PickersDialog : public CDialog, public ABitmapBtnSTNotificationHandler
{
public:
    PickersDialog()
    {
        owtest::DialogTemplate form(L"Pickers", 160, 60);
        for (short i = 0; i < 3; ++i)
            form.Button(L"", kFirst + i, 4 + 50 * i, 4, 46, 21);
        EXPECT_TRUE(CreateIndirect(form.get()));
        CBitmapBtnST* const pickers[] = {&ends, &hatch, &text};
        for (int i = 0; i < 3; ++i)
        {
            pickers[i]->SubclassDlgItem(kFirst + i, this);
            pickers[i]->SetEnumSource(&values[i]);
        }
        ShowWindow(SW_SHOW);
        EXPECT_TRUE(owtest::Activate(m_hWnd));
    }
    ~PickersDialog() override { DestroyWindow(); }

    CBitmapBtnSTKotnaLinija ends{this};
    Open<CBitmapBtnSTSrafura> hatch{this};
    CBitmapBtnSTTekstKote text{this};
    int values[3] = {1, 1, 1};
    std::function<void()> then = [] {}; ///< at the end of the handler
    int clicks = 0;                     ///< that reached the dialog

    Choices Take() { return std::exchange(m_choices, {}); }

protected:
    void OnBitmapChosen(int nId, int nIndex) override
    {
        EXPECT_EQ(values[nId - kFirst], nIndex) << "the value is stored first";
        m_choices.emplace_back(nId, nIndex);
        const auto last = then; // which may be the end of this dialog
        last();
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        clicks += nCode == BN_CLICKED && !pHandlerInfo;
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

private:
    Choices m_choices;
};

/// Opens the menu with the mouse, and works on it with keys.
void Pick(CBitmapBtnST& picker, std::initializer_list<WORD> keys)
{
    MenuVisit visit([&](const OpenMenu& menu) { menu.Press(keys); });
    owtest::Click(picker);
    EXPECT_EQ(visit.Count(), 1);
}

bool ShowsFocus(CButton& button)
{
    return ::GetFocus() == button.m_hWnd && (button.GetState() & BST_FOCUS);
}
} // namespace

// ---- The user ---------------------------------------------------------------------------------------------

TEST(PickerInput, TheKeyboardOpensTheMenuAndChoosesAndEscapeLeavesEverything)
{
    PickersDialog dialog;
    owtest::MoveTo(dialog, CPoint(1, 1)); // a menu that opens under the mouse begins at the item below it
    dialog.ends.SetFocus();
    CRect button;
    dialog.ends.GetWindowRect(button);
    for (const auto& [opener, last, value] :
         {std::tuple<WORD, WORD, int>(VK_SPACE, VK_ESCAPE, 1), {VK_RETURN, VK_RETURN, 2}})
    {
        CRect menuRect;
        MenuVisit visit(
            [&, key = last](const OpenMenu& menu)
            {
                ::GetWindowRect(menu.Window(), menuRect);
                EXPECT_FALSE(ShowsFocus(dialog.ends));
                menu.Press({VK_DOWN, VK_DOWN, VK_DOWN, VK_UP, VK_DOWN, key});
            });
        owtest::Press(opener);
        EXPECT_EQ(menuRect.TopLeft(), CPoint(button.right + 1, button.top));
        EXPECT_EQ(dialog.values[0], value);
        EXPECT_EQ(dialog.Take().size(), last == VK_RETURN ? 1u : 0u);
        EXPECT_TRUE(ShowsFocus(dialog.ends));
    }
    EXPECT_EQ(dialog.clicks, 0);
}

TEST(PickerInput, TheMouseChoosesAndAChosenPictureMayBeChosenAgain)
{
    PickersDialog dialog;
    for (int i = 0; i < 2; ++i)
    {
        MenuVisit visit([](const OpenMenu& menu) { menu.Click(20); });
        owtest::Click(dialog.ends);
        EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 20}}));
    }
    dialog.then = [&] { dialog.text.SetFocus(); };
    Pick(dialog.ends, {VK_DOWN, VK_RETURN});
    EXPECT_FALSE(dialog.ends.GetState() & BST_FOCUS) << "the mark follows a handler that moves the focus";
}

TEST(PickerInput, PickersStandSideBySideWithTheSameMenuIdsOrOthers)
{
    PickersDialog dialog;
    Pick(dialog.ends, {VK_DOWN, VK_RETURN});
    Pick(dialog.text, {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
    Pick(dialog.hatch, {VK_UP, VK_RETURN});
    EXPECT_EQ(dialog.Take(), (Choices{{kFirst, 0}, {kText, 2}, {kHatch, 9}}));
    EXPECT_EQ(std::vector<int>(dialog.values, dialog.values + 3), (std::vector<int>{0, 9, 2}));
}

TEST(PickerInput, TheDialogMayGoInTheHandlerAndWhileTheMenuIsOpen)
{
    auto pDialog = std::make_unique<PickersDialog>();
    {
        MenuVisit visit([&](const OpenMenu&) { pDialog->DestroyWindow(); });
        owtest::Click(pDialog->hatch);
        EXPECT_EQ(visit.Count(), 1);
    }
    PickersDialog other;
    ASSERT_TRUE(pDialog->hatch.Create(_T(""), WS_CHILD, CRect(0, 0, 60, 40), &other, 9));
    const HMENU hMenu = pDialog->hatch.m_popupMenu;
    pDialog->hatch.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_NE(pDialog->hatch.m_popupMenu, hMenu) << "taken over anew, its menu is not open";

    pDialog = std::make_unique<PickersDialog>();
    MenuVisit visit([&](const OpenMenu&) { pDialog.reset(); });
    owtest::Click(pDialog->ends);
    EXPECT_EQ(visit.Count(), 1);
    owtest::Activate(other);
    other.then = [&] { other.DestroyWindow(); };
    Pick(other.ends, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(other.Take(), (Choices{{kFirst, 0}}));
    pDialog = std::make_unique<PickersDialog>();
    pDialog->then = [&] { pDialog.reset(); };
    Pick(pDialog->hatch, {VK_DOWN, VK_RETURN});
    EXPECT_FALSE(pDialog);
}

TEST(PickerInput, GivesBackWhatItTook)
{
    const auto open = []
    {
        PickersDialog dialog;
        Pick(dialog.text, {VK_DOWN, VK_RETURN});
        dialog.ends.SendMessage(WM_SYSCOLORCHANGE);
    };
    open();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 50; ++i)
        open();
    EXPECT_EQ(owtest::CountHandles(), before);
}

// ---- The menu ---------------------------------------------------------------------------------------------

template <class Picker>
static void ExpectMenu(UINT nFirstId, CSize size)
{
    const Lone<Open<Picker>> lone(CSize(70, 30));
    const auto& picker = lone.button;
    ASSERT_EQ(::GetMenuItemCount(picker.m_popupMenu), picker.BitmapCount());
    for (int i = 0; i < picker.BitmapCount(); ++i)
    {
        MENUITEMINFO item{};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_ID | MIIM_BITMAP;
        ::GetMenuItemInfo(picker.m_popupMenu, i, TRUE, &item);
        EXPECT_EQ(item.wID, nFirstId + i);
        EXPECT_EQ(picker.m_bitmapSizes.at(i), size);

        Pixels wanted = PixelsOf(picker.GetBitmap(i));
        for (DWORD& pixel : wanted)
            pixel = pixel == kBlack ? kBlack : ::GetSysColor(COLOR_MENU);
        EXPECT_EQ(PixelsOf(item.hbmpItem), wanted) << "picture " << i;
        EXPECT_GT(std::count(wanted.begin(), wanted.end(), kBlack), 10) << "picture " << i;
    }
}

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

TEST(PickerMenu, IsMadeAnewWhenColoursChangeOrOnceItIsClosed)
{
    PickersDialog dialog;
    const auto ground = [&] { return PixelsOf(dialog.hatch.m_menuBitmaps.at(0)).at(33); };
    const auto change = [&](COLORREF cr)
    {
        const int nMenu = COLOR_MENU;
        ::SetSysColors(1, &nMenu, &cr);
        dialog.hatch.SendMessage(WM_SYSCOLORCHANGE);
    };
    const COLORREF crOld = ::GetSysColor(COLOR_MENU), crNew = RGB(200, 240, 200);
    dialog.hatch.SetColor(CButtonST::colorBackOut, RGB(1, 2, 3));
    change(crNew);
    EXPECT_EQ(ground(), crNew);
    COLORREF crFace = 0;
    dialog.hatch.GetColor(CButtonST::colorBackOut, &crFace);
    EXPECT_EQ(crFace, ::GetSysColor(COLOR_BTNFACE)) << "as every button";

    MenuVisit visit(
        [&](const OpenMenu& menu)
        {
            change(crOld);
            EXPECT_EQ(ground(), crNew);
            menu.Press({VK_ESCAPE});
        });
    owtest::Click(dialog.hatch);
    EXPECT_EQ(visit.Count(), 1);
    EXPECT_EQ(ground(), crOld);
    change(crNew);
    EXPECT_EQ(ground(), crNew);
    change(crOld);
}

// Wanted: no lower bound, and the handler hears of every command.
TEST(PickerCommand, IsStoredBelowTheEndOfTheMenuAndAlwaysTold)
{
    PickersDialog dialog;
    const std::pair<WPARAM, int> cases[] = {{36874, 0},  {36879, 5},           {36880, 1},
                                            {36873, -1}, {IDOK, IDOK - 36874}, {MAKEWPARAM(36875, 1), 1}};
    for (const auto& [command, stored] : cases)
    {
        dialog.values[2] = 1;
        EXPECT_EQ(dialog.text.SendMessage(WM_COMMAND, command), 0) << "the base has no use for it";
        EXPECT_EQ(dialog.Take(), (Choices{{kText, stored}})) << command;
    }
    dialog.UpdateWindow();
    dialog.text.SendMessage(WM_COMMAND, 36874);
    EXPECT_TRUE(::GetUpdateRect(dialog, nullptr, FALSE)) << "the parent is painted anew";

    dialog.values[2] = 0; // what the handler is told without a source
    dialog.text.SetEnumSource(nullptr);
    dialog.Take();
    dialog.text.SendMessage(WM_COMMAND, 36876);
    EXPECT_EQ(dialog.Take(), (Choices{{kText, 0}}));
    EXPECT_EQ(dialog.values[2], 0);
    dialog.text.UpdateWindow();
    dialog.text.SetEnumSource(&dialog.values[1]);
    EXPECT_TRUE(::GetUpdateRect(dialog.text, nullptr, FALSE)) << "and so is a button with a new source";
}

TEST(PickerButton, IsAPushButtonWhateverItTakesOver)
{
    for (const DWORD dwType : {BS_OWNERDRAW, BS_AUTOCHECKBOX, BS_DEFPUSHBUTTON})
    {
        Lone<Open<CBitmapBtnSTLinija>> lone(CSize(70, 30), _T(""), dwType);
        EXPECT_FALSE(lone.button.m_bIsCheckBox || lone.button.GetDefault()) << dwType;
        int nIndex = 3;
        lone.button.SetEnumSource(&nIndex);
        lone.button.SendMessage(WM_COMMAND, 36866); // there is no handler
        EXPECT_EQ(lone.button.GetEnumSource(), 2);
    }
}

// ---- Painting ---------------------------------------------------------------------------------------------

namespace
{
/// Pictures of every kind: 0 names the place of each pixel by its colour, 1 is missing, 2 has one bit: a
/// white frame around black.
class OwnPicker : public CBitmapBtnST
{
public:
    static constexpr int kWidth = 31, kHeight = 12;

    OwnPicker()
    {
        Pixels places;
        for (int i = 0; i < kWidth * kHeight; ++i)
            places.push_back(testimages::Opaque(PlaceColor(i % kWidth, i / kWidth)));
        m_pictures[0].CreateBitmap(kWidth, kHeight, 1, 32, places.data());
        const BYTE bits[] = {0xFF, 0xFF, 0x80, 0x01, 0x80, 0x01, 0xFF, 0xFF};
        m_pictures[2].CreateBitmap(16, 4, 1, 1, bits);
        SetThemeHelper(nullptr);
        SetFlat(FALSE);
        SetColor(colorBackOut, kFace);
        SetColor(colorBackIn, kFace);
    }
    HBITMAP GetBitmap(int index) const override { return m_pictures.at(index); }
    int BitmapCount() const override { return 3; }
    static COLORREF PlaceColor(int x, int y) { return RGB(x, y, 200); }
    using CBitmapBtnST::m_popupMenu;

private:
    std::array<CBitmap, 3> m_pictures;
};

class PaintedPicker : public ::testing::Test
{
protected:
    void Make(CSize size)
    {
        m_lone = std::make_unique<Lone<OwnPicker>>(size);
        m_lone->button.SetEnumSource(&m_nIndex);
        m_rect = CRect(CPoint(0, 0), size);
    }
    /// Paints the picker, or a part of it; what is then drawn on the face left of the arrow.
    CRect Paint(UINT nItemState = 0, const CRect& part = CRect(0, 0, 200, 200))
    {
        m_surface = std::make_unique<Surface>(m_rect.right, m_rect.bottom);
        m_surface->dc().IntersectClipRect(part);
        PaintButton(m_lone->button, *m_surface, nItemState);
        CRect drawn;
        for (int y = 2; y < m_rect.bottom - 2; ++y)
            for (int x = 2; x < m_rect.right - 12; ++x)
                if (m_surface->at(x, y) != kFace)
                    drawn |= CRect(x, y, x + 1, y + 1);
        return drawn;
    }

    std::unique_ptr<Lone<OwnPicker>> m_lone;
    std::unique_ptr<Surface> m_surface;
    CRect m_rect;
    int m_nIndex = 0;
};
} // namespace

// The picture area is 19 pixels narrower and 10 lower than the button.
TEST_F(PaintedPicker, LaysThePictureInTheMiddle)
{
    const int w = OwnPicker::kWidth, h = OwnPicker::kHeight;
    const std::tuple<CSize, CRect, CPoint> cases[] = {
        {{w + 19, h + 10}, {5, 5, 5 + w, 5 + h}, {0, 0}},
        {{w + 19 + 9, h + 10 + 5}, {9, 7, 9 + w, 7 + h}, {0, 0}},
        {{w + 19 - 9, h + 10 - 5}, {5, 5, 5 + w - 9, 5 + h - 5}, {4, 2}},
        {{w + 19 - 2, h + 10 + 2}, {5, 6, 5 + w - 2, 6 + h}, {1, 0}},
    };
    for (const auto& [button, drawn, source] : cases)
    {
        Make(button);
        EXPECT_EQ(Paint(), drawn);
        for (const CPoint at : {CPoint(0, 0), CPoint(drawn.Width() - 1, drawn.Height() - 1)})
            EXPECT_EQ(m_surface->at(drawn.left + at.x, drawn.top + at.y),
                      OwnPicker::PlaceColor(source.x + at.x, source.y + at.y));
    }
}

// Half-way down is half of the button's bottom: of an even height the arrow moves only sideways.
TEST_F(PaintedPicker, MovesByOneWhilePressedAndIsEngravedWhileDisabled)
{
    for (const auto& [nHeight, moved] : {std::pair(31, CPoint(1, 1)), {30, CPoint(1, 0)}})
    {
        Make(CSize(80, nHeight));
        const CRect picture = Paint();
        EXPECT_EQ(m_surface->extent(kBlack), kArrow);
        EXPECT_EQ(Paint(ODS_SELECTED), picture + CPoint(1, 1));
        EXPECT_EQ(m_surface->extent(kBlack), kArrow + moved);

        EXPECT_TRUE(Paint(ODS_DISABLED).IsRectEmpty());
        EXPECT_TRUE(m_surface->extent(kBlack).IsRectEmpty());
        EXPECT_EQ(m_surface->at(72, 16), RGB(255, 255, 255));
        EXPECT_EQ(m_surface->at(70, 14), ::GetSysColor(COLOR_BTNSHADOW));
    }
}

TEST_F(PaintedPicker, APictureOfOneBitTakesOnTheFace)
{
    Make(CSize(80, 30));
    m_nIndex = 2;
    const CRect frame(CPoint(27, 13), CSize(16, 4));
    for (const COLORREF crFace : {RGB(10, 220, 30), kFace})
    {
        m_lone->button.SetColor(CButtonST::colorBackOut, crFace);
        Paint();
        EXPECT_EQ(m_surface->count(frame, kBlack), 14 * 2);
        EXPECT_EQ(m_surface->count(frame, crFace), 64 - 14 * 2);
    }
    Paint(0, CRect(28, 0, 35, 30)); // the middle is not in it
    EXPECT_EQ(m_surface->at(30, 13), kFace);
    EXPECT_EQ(m_surface->at(30, 14), kBlack);
}

TEST_F(PaintedPicker, IsEmptyWhereThereIsNoPictureToShow)
{
    Make(CSize(80, 30));
    for (const int index : {1, -1, 3, INT_MAX, INT_MIN})
    {
        m_nIndex = index;
        EXPECT_TRUE(Paint().IsRectEmpty()) << index;
        EXPECT_EQ(m_surface->extent(kBlack), kArrow) << index;
    }
    m_nIndex = 0;
    EXPECT_FALSE(Paint().IsRectEmpty());
    m_lone->button.SetEnumSource(nullptr);
    EXPECT_TRUE(Paint().IsRectEmpty());
    for (const int item : {0, 1, 2}) // a missing picture keeps its place
        EXPECT_EQ(::GetMenuItemID(m_lone->button.m_popupMenu, item), 36864u + item);

    for (const CSize size : {CSize(19, 30), CSize(80, 10), CSize(12, 6)}) // no room
    {
        Make(size);
        EXPECT_TRUE(Paint().IsRectEmpty());
    }
}
