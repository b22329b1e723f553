// Walks through the gallery with real mouse and keyboard and leaves a PNG of every page, and of all drawings.
//
//     gallery_walk DIRECTORY
//
// Ends with 1 and a line that says why if a page cannot be reached or a picture cannot be written.

#include <afxwin.h>

#include "ComboGalleryDialog.h"
#include "ContactSheet.h"
#include "GalleryDialog.h"
#include "resource.h"

#include "Input.h"
#include "ModalVisit.h"
#include "Picture.h"

#include <cstdio>
#include <map>
#include <string>

namespace
{
CWinApp theApp;
std::wstring s_directory; ///< of the pictures, with a backslash at its end

class Failure
{
public:
    explicit Failure(std::wstring what) : what(std::move(what)) {}
    std::wstring what;
};

void Require(bool condition, const std::wstring& what)
{
    if (!condition)
        throw Failure(what);
}

void Focus(CWnd& page, int id)
{
    CWnd* control = page.GetDlgItem(id);
    Require(control != nullptr, L"no control " + std::to_wstring(id));
    owtest::Click(*control);
    Require(owtest::PumpUntil([&] { return ::GetFocus() == control->m_hWnd; }), L"no focus");
}

CString TextOf(CWnd& page, int id)
{
    CString strText;
    page.GetDlgItemText(id, strText);
    return strText;
}

void UseTextBoxes(CWnd& page)
{
    Focus(page, IDC_MARK);
    owtest::Press('A', false, true); // all of it
    owtest::Type(L"hea160");
    owtest::Press(VK_TAB);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_MARK) == _T("HEA 160"); }),
            L"the mark was not normalised");
    owtest::Type(L"shop primer");
}

void UseNumbers(CWnd& page)
{
    Focus(page, IDC_THICKNESS);
    owtest::Press('A', false, true);
    owtest::Type(L"55");
    owtest::Press(VK_TAB);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_THICKNESS) == _T("40.0"); }),
            L"the range was not kept");

    CRect spin;
    page.GetDlgItem(IDC_GAP_SPIN)->GetClientRect(spin);
    owtest::Click(*page.GetDlgItem(IDC_GAP_SPIN), CPoint(spin.Width() / 2, spin.Height() / 4));
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_GAP) == _T("3.0"); }), L"the spin does not step");

    owtest::Click(*page.GetDlgItem(IDC_UNIT_CM));
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_OVERALL) == _T("625.30"); }),
            L"the unit did not change");
    Focus(page, IDC_LOAD);
    owtest::Press(VK_UP);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_LOAD) == _T("15"); }),
            L"the arrow key does not step");
}

void UseButtons(CWnd& page)
{
    const int nUnchecked = IDC_BTN_FIRST + 3 * 6;
    owtest::Click(*page.GetDlgItem(IDC_BTN_FIRST));
    owtest::Click(*page.GetDlgItem(nUnchecked));
    Require(owtest::PumpUntil([&] { return page.IsDlgButtonChecked(nUnchecked) == BST_CHECKED; }),
            L"no check");
    owtest::Press(VK_SPACE);
    Require(owtest::PumpUntil([&] { return page.IsDlgButtonChecked(nUnchecked) == BST_UNCHECKED; }),
            L"check stays");
    for (int id : {IDC_BTN_TRANSPARENT, IDC_BTN_THEME, IDC_BTN_FLAT}) // there and back
    {
        owtest::Click(*page.GetDlgItem(id));
        owtest::Click(*page.GetDlgItem(id));
    }
    Focus(page, IDC_BTN_FIRST + 5); // a raised one without a theme shows what focus looks like
}

/// Opens a box by a click, closes it by a key, and looks at the answer beside the button.
void UseBox(CWnd& page, int nBox, WORD key, const wchar_t* pszAnswer, const std::wstring& picture = {})
{
    bool saved = false;
    owtest::ModalVisit visit(
        [&](CWnd& box)
        {
            box.UpdateWindow();
            owtest::Pump();
            saved = picture.empty() || owtest::SaveWindowPng(box, picture);
            owtest::Press(key);
        });
    owtest::Click(*page.GetDlgItem(IDC_BOX_FIRST + nBox));
    const auto answered = [&] { return TextOf(page, IDC_RESULT_FIRST + nBox) == pszAnswer; };
    Require(owtest::PumpUntil(answered), std::wstring(L"a box did not answer ") + pszAnswer);
    Require(saved, L"the picture of a box was not written");
}

void UseMessageBoxes(CWnd& page)
{
    owtest::Click(*page.GetDlgItem(IDC_LANG_ENGLISH));
    UseBox(page, 0, VK_RETURN, L"IDOK");
    UseBox(page, 1, VK_ESCAPE, L"IDCANCEL");
    UseBox(page, 2, VK_ESCAPE, L"IDNO");
    UseBox(page, 3, VK_RETURN, L"IDYES");
    UseBox(page, 4, VK_ESCAPE, L"button 4", s_directory + L"message_box.png");
    UseBox(page, 5, VK_RETURN, L"button 1");
    UseBox(page, 7, VK_RETURN, L"closed");
    UseBox(page, 6, VK_RETURN, L"IDOK", s_directory + L"message_box_long.png");
}

/// A cell's middle, in the client area of the grid.
CPoint CellIn(CGridCtrl& grid, int nRow, int nCol)
{
    CRect rect;
    Require(grid.GetCellRect(nRow, nCol, rect), L"the cell does not show");
    return rect.CenterPoint();
}

void UseGrid(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_GRID));
    constexpr int kLength = 2, kPieces = 3, kWeight = 4;
    owtest::Click(grid, CellIn(grid, 3, kLength));
    owtest::Type(L"5000");
    owtest::Press(VK_TAB);
    owtest::Type(L"9");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(3, kWeight) == _T("1368.0"); }), L"no weight");
    owtest::Click(grid, CellIn(grid, 0, kPieces));
    Require(owtest::PumpUntil([&] { return grid.GetSortColumn() == kPieces; }), L"the heading does not sort");
    owtest::ButtonDown(grid, CellIn(grid, 2, 1));
    owtest::MoveTo(grid, CellIn(grid, 4, kPieces));
    owtest::ButtonUp();
    Require(owtest::PumpUntil([&] { return grid.GetSelectedCount() == 9; }), L"the drag does not select");
}

void UseVirtualGrid(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_VIRTUAL_GRID));
    owtest::Click(*page.GetDlgItem(IDC_VIRTUAL_GO));
    Require(owtest::PumpUntil([&] { return grid.GetFocusCell().row == 500000; }), L"the row does not show");
    owtest::Press(VK_NEXT);
    owtest::Press(VK_DOWN);
    Require(owtest::PumpUntil([&] { return grid.GetFocusCell().row > 500005; }),
            L"the page key does not move");
}

void UseSteelSchedule(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_SCHEDULE));
    constexpr int kProfile = 1, kLength = 2, kGalvanised = 5;
    owtest::Click(grid, CellIn(grid, 3, kLength));
    owtest::Type(L"19000");
    owtest::Press(VK_RETURN);
    owtest::Type(L"7250");
    owtest::Press(VK_RETURN);
    owtest::Click(*page.GetDlgItem(IDC_SCHEDULE_M));
    Require(owtest::PumpUntil([&] { return grid.GetItemText(3, kLength) == _T("7.250"); }),
            L"no length in metres");

    owtest::Click(grid, CellIn(grid, 4, kProfile));
    owtest::Type(L"IPE 220");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(4, kProfile) == _T("IPE 220"); }),
            L"no other profile");

    CRect cell;
    grid.GetCellRect(5, kGalvanised, &cell);
    owtest::Click(grid, cell.TopLeft() + CSize(10, 10));
    const CString strStored = _T("Stored: UPN 140, 3.1 m, 487 N, 10 pieces, not galvanised, colour 92");
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_SCHEDULE_STORED) == strStored; }),
            L"the box does not flip");
}

void UseCrossGrid(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_CROSS_GRID));
    owtest::Click(grid, CellIn(grid, 6, 3));
    owtest::Type(L"none");
    owtest::Press(VK_RETURN);
    owtest::Type(L"150");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(1, 3) == _T("150.0"); }),
            L"the band is not worked out");
    owtest::Press(VK_UP);
    Require(owtest::PumpUntil([&] { return grid.GetItemBkColour(5, 3) == grid.GetItemBkColour(5, 4); }),
            L"no cross");
}

/// Opens the list of long entries, takes a picture of it, and chooses the last one with the mouse.
void ChooseConnection(CWnd& page)
{
    auto& connection = static_cast<CComboBox&>(*page.GetDlgItem(IDC_CONNECTION));
    owtest::Click(connection);
    Require(owtest::PumpUntil([&] { return connection.GetDroppedState() != FALSE; }), L"no list opens");
    const std::wstring picture = s_directory + L"combo_boxes_open.png";
    Require(owtest::SaveWindowPng(*page.GetParent(), picture), L"the picture of the list was not written");

    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    connection.GetComboBoxInfo(&info);
    CRect list;
    ::GetClientRect(info.hwndList, list);
    Require(list.Width() > 300, L"the list does not widen");
    owtest::Click(info.hwndList, CPoint(list.right - 10, list.bottom - 5));
    Require(owtest::PumpUntil([&] { return connection.GetCurSel() == 3; }), L"the mouse does not choose");
}

void UseCombos(CWnd& page)
{
    CWnd& layer = *page.GetDlgItem(IDC_LAYER);
    const auto inLayer = [&] { return layer.IsChild(CWnd::GetFocus()) != FALSE; }; // in its edit part
    owtest::Click(layer);
    Require(owtest::PumpUntil(inLayer), L"no focus");
    owtest::Press('A', false, true);
    owtest::Type(L"Roof");
    Require(TextOf(page, IDC_LAYER) == _T("Roof"), L"the layer cannot be typed");

    page.GetDlgItem(IDC_GRADE)->SetFocus();
    owtest::Press(VK_DOWN);
    owtest::Press(VK_DOWN);
    const auto chosen = [&] { return TextOf(page, IDC_CHOSEN) == _T("S355; Cleat, 2 bolts"); };
    Require(owtest::PumpUntil(chosen), L"the arrow keys do not choose");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil(inLayer), L"Enter does not go on");
    ChooseConnection(page);
}

/// Two pages with one dialog: what is typed on one is still there after a visit to the other.
void UseMembers(CWnd& page)
{
    Focus(page, IDC_MEMBER_LENGTH);
    owtest::Press('A', false, true);
    owtest::Type(L"7200");
    owtest::Press(VK_TAB);
    owtest::Press('A', false, true);
    owtest::Type(L"3");
    Focus(page, IDC_MEMBER_REMARK);
    owtest::Press(VK_END, false, true);
    owtest::Press(VK_RETURN);
    owtest::Type(L"drilled");
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_MEMBER_TOTAL) == _T("21.600 m"); }),
            L"no total length");
    CWnd& tree = *page.GetParent()->GetDlgItem(IDC_PAGES);
    owtest::Press(VK_F6, true);
    Require(owtest::PumpUntil([&] { return ::GetFocus() == tree.m_hWnd; }), L"F6 does not leave the page");
    owtest::Press(VK_DOWN);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_MEMBER_TOTAL) == _T("40.800 m"); }),
            L"no other values");
    owtest::Press(VK_UP);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_MEMBER_TOTAL) == _T("21.600 m"); }),
            L"the values are lost");
}

/// What is done on a page before its picture is taken, by its name in the tree.
const std::map<std::wstring, void (*)(CWnd&)> kUses = {
    {L"Beam", UseMembers},
    {L"Buttons", UseButtons},
    {L"Combo boxes", UseCombos},
    {L"Cross grid", UseCrossGrid},
    {L"Grid", UseGrid},
    {L"Message boxes", UseMessageBoxes},
    {L"Numbers", UseNumbers},
    {L"Steel schedule", UseSteelSchedule},
    {L"Text boxes", UseTextBoxes},
    {L"Virtual grid", UseVirtualGrid},
};

std::wstring FileName(const std::wstring& title)
{
    std::wstring name;
    for (wchar_t ch : title)
        name += ch == L' ' ? L'_' : static_cast<wchar_t>(std::towlower(ch));
    return name + L".png";
}

void SavePicture(CWnd& dialog, const std::wstring& title)
{
    owtest::MoveTo(dialog, CPoint(0, 0));
    dialog.UpdateWindow();
    owtest::Pump();
    Require(owtest::SaveWindowPng(dialog, s_directory + FileName(title)), L"the picture was not written");
}

/// The page dialog that the user sees.
CWnd& ShownPage(CWnd& dialog)
{
    for (CWnd* child = dialog.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
    {
        if (child->IsWindowVisible() && child->IsKindOf(RUNTIME_CLASS(CPageDialog)))
            return *child;
    }
    throw Failure(L"no page shows");
}

void Open(CDialog& dialog, UINT nTemplateId)
{
    Require(dialog.Create(nTemplateId), L"the dialog does not open");
    dialog.ShowWindow(SW_SHOW);
    Require(owtest::Activate(dialog), L"the dialog does not become active");
    dialog.SendMessage(WM_NCACTIVATE, TRUE); // Wine leaves the caption of a program's first window grey
}

void VisitPage(CWnd& gallery, CTreeCtrl& tree, HTREEITEM item)
{
    CRect rect;
    tree.EnsureVisible(item);
    Require(tree.GetItemRect(item, rect, TRUE), L"the page is not in the tree");
    owtest::Click(tree, rect.CenterPoint());
    const CString strTitle = tree.GetItemText(item);
    Require(owtest::PumpUntil([&] { return TextOf(gallery, IDC_PAGE_TITLE) == strTitle; }),
            L"the page does not show");
    if (auto use = kUses.find(strTitle.GetString()); use != kUses.end())
        use->second(ShownPage(gallery));
    SavePicture(gallery, strTitle.GetString());
}

void WalkPages()
{
    CGalleryDialog gallery;
    Open(gallery, IDD_GALLERY);
    auto& tree = static_cast<CTreeCtrl&>(*gallery.GetDlgItem(IDC_PAGES));
    for (HTREEITEM item = tree.GetRootItem(); item; item = tree.GetNextVisibleItem(item))
        VisitPage(gallery, tree, item);
    gallery.DestroyWindow();
}

/// Selects by keys, as with a tree there is no room for: down the combo box, with the toggle at each row.
void WalkPagesByCombos()
{
    CComboGalleryDialog gallery(nullptr);
    Open(gallery, IDD_GALLERY_COMBOS);
    auto& combo = static_cast<CComboBox&>(*gallery.GetDlgItem(IDC_PAGE_COMBO_BUTTON));
    auto& other = static_cast<CComboBox&>(*gallery.GetDlgItem(IDC_PAGE_COMBO_CHECK));
    CWnd& button = *gallery.GetDlgItem(IDC_PAGE_BUTTON);
    combo.SetFocus();
    for (int row = 1; row < combo.GetCount(); ++row)
    {
        owtest::Press(VK_DOWN);
        Require(owtest::PumpUntil([&] { return other.GetCurSel() == row; }),
                L"the combo boxes do not follow");
        if (!button.IsWindowVisible())
            continue;
        for (UINT checked : {BST_CHECKED, BST_UNCHECKED})
        {
            const CString strBefore = TextOf(gallery, IDC_PAGE_TITLE);
            owtest::Click(button);
            Require(owtest::PumpUntil([&] { return gallery.IsDlgButtonChecked(IDC_PAGE_CHECK) == checked; }),
                    L"the toggles do not follow");
            Require(TextOf(gallery, IDC_PAGE_TITLE) != strBefore, L"the other page does not show");
        }
    }
    owtest::Click(*gallery.GetDlgItem(IDC_PAGE_CHECK));
    SavePicture(gallery, L"Pages by combo boxes");
    gallery.DestroyWindow();
}

/// A sheet of drawings on its own, larger than any window: as they are, and enlarged with names.
void SaveSheet(const std::wstring& path, const std::vector<Drawing>& drawings, COLORREF background,
               bool icons)
{
    constexpr int kWidth = 1240, kMargin = 10, kGap = 12;
    const CSize small = icons ? CSize(40, 40) : CSize(60, 36);
    const CSize large = icons ? CSize(122, 114) : CSize(155, 112);

    const auto paint = [&](owtest::Surface& surface)
    {
        CDC& dc = surface.dc();
        const HGDIOBJ old = ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
        CRect area(kMargin, kMargin, kWidth - kMargin, surface.height());
        area.top += PaintSheet(dc, area, drawings, {small}) + kGap;
        area.top += PaintSheet(dc, area, drawings, {large, 3, true});
        ::SelectObject(dc, old);
        return area.top + kMargin;
    };
    owtest::Surface measure(kWidth, 1);
    owtest::Surface sheet(kWidth, paint(measure), background);
    paint(sheet);
    Require(owtest::SavePng(static_cast<HBITMAP>(::GetCurrentObject(sheet.dc(), OBJ_BITMAP)), path),
            L"the sheet was not written");
}

void SaveSheets(const std::wstring& directory)
{
    SaveSheet(directory + L"sheet_icons.png", AllIcons(), RGB(240, 240, 240), true);
    SaveSheet(directory + L"sheet_icons_on_white.png", AllIcons(), RGB(255, 255, 255), true);
    SaveSheet(directory + L"sheet_pictures.png", AllPictures(), RGB(240, 240, 240), false);
}
} // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 2)
    {
        std::fputs("usage: gallery_walk DIRECTORY\n", stderr);
        return 1;
    }
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 1;
    try
    {
        s_directory = std::wstring(argv[1]) + L"\\";
        WalkPages();
        WalkPagesByCombos();
        SaveSheets(s_directory);
    }
    catch (const Failure& failure)
    {
        std::fwprintf(stderr, L"gallery_walk: %ls\n", failure.what.c_str());
        return 1;
    }
    return 0;
}
