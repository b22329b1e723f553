// Walks through the gallery with real mouse and keyboard and leaves a PNG of every page, and of all drawings.
//
//     gallery_walk DIRECTORY
//
// Ends with 1 and a line that says why if a page cannot be reached or a picture cannot be written.

#include <afxwin.h>

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

void UseTextBoxes(CWnd& page)
{
    Focus(page, IDC_MARK);
    owtest::Press('A', false, true); // all of it
    owtest::Type(L"hea160");
    owtest::Press(VK_TAB);
    const auto text = [&] {
        CString strText;
        page.GetDlgItemText(IDC_MARK, strText);
        return strText;
    };
    Require(owtest::PumpUntil([&] { return text() == _T("HEA 160"); }), L"the mark was not normalised");
    owtest::Type(L"shop primer");
}

CString TextOf(CWnd& page, int id)
{
    CString strText;
    page.GetDlgItemText(id, strText);
    return strText;
}

void UseNumbers(CWnd& page)
{
    Focus(page, IDC_THICKNESS);
    owtest::Press('A', false, true);
    owtest::Type(L"55");
    owtest::Press(VK_TAB);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_THICKNESS) == _T("40.0"); }), L"the range was not kept");

    CRect spin;
    page.GetDlgItem(IDC_GAP_SPIN)->GetClientRect(spin);
    owtest::Click(*page.GetDlgItem(IDC_GAP_SPIN), CPoint(spin.Width() / 2, spin.Height() / 4));
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_GAP) == _T("3.0"); }), L"the spin does not step");

    owtest::Click(*page.GetDlgItem(IDC_UNIT_CM));
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_OVERALL) == _T("625.30"); }), L"the unit did not change");
    Focus(page, IDC_LOAD);
    owtest::Press(VK_UP);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_LOAD) == _T("15"); }), L"the arrow key does not step");
}

void UseButtons(CWnd& page)
{
    const int nUnchecked = IDC_BTN_FIRST + 3 * 6;
    owtest::Click(*page.GetDlgItem(IDC_BTN_FIRST));
    owtest::Click(*page.GetDlgItem(nUnchecked));
    Require(owtest::PumpUntil([&] { return page.IsDlgButtonChecked(nUnchecked) == BST_CHECKED; }), L"no check");
    owtest::Press(VK_SPACE);
    Require(owtest::PumpUntil([&] { return page.IsDlgButtonChecked(nUnchecked) == BST_UNCHECKED; }), L"check stays");
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
    owtest::ModalVisit visit([&](CWnd& box) {
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
    Require(owtest::PumpUntil([&] { return grid.GetFocusCell().row > 500005; }), L"the page key does not move");
}

/// What is done on a page before its picture is taken, by title.
const std::map<std::wstring, void (*)(CWnd&)> kUses = {
    {L"Buttons", UseButtons},
    {L"Grid", UseGrid},
    {L"Message boxes", UseMessageBoxes},
    {L"Text boxes", UseTextBoxes},
    {L"Numbers", UseNumbers},
    {L"Virtual grid", UseVirtualGrid},
};

std::wstring FileName(const std::wstring& title)
{
    std::wstring name;
    for (wchar_t ch : title)
        name += ch == L' ' ? L'_' : static_cast<wchar_t>(std::towlower(ch));
    return name + L".png";
}

void WalkPages(const std::wstring& directory)
{
    CGalleryDialog gallery;
    Require(gallery.Create(IDD_GALLERY), L"the gallery does not open");
    gallery.ShowWindow(SW_SHOW);
    Require(owtest::Activate(gallery), L"the gallery does not become active");
    gallery.SendMessage(WM_NCACTIVATE, TRUE); // Wine leaves the caption of a program's first window grey

    auto* list = static_cast<CListBox*>(gallery.GetDlgItem(IDC_PAGES));
    for (int i = 0; i < gallery.PageCount(); ++i)
    {
        CGalleryPage& page = gallery.Page(i);
        CRect item;
        list->GetItemRect(i, item);
        owtest::Click(*list, item.CenterPoint());
        Require(owtest::PumpUntil([&] { return page.IsWindowVisible() != FALSE; }), L"the page does not show");
        if (auto use = kUses.find(page.Title()); use != kUses.end())
            use->second(page);
        owtest::MoveTo(gallery, CPoint(0, 0));
        gallery.UpdateWindow();
        owtest::Pump();
        Require(owtest::SaveWindowPng(gallery, directory + FileName(page.Title())), L"the picture was not written");
    }
    gallery.DestroyWindow();
}

/// A sheet of drawings on its own, larger than any window: as they are, and enlarged with names.
void SaveSheet(const std::wstring& path, const std::vector<Drawing>& drawings, COLORREF background, bool icons)
{
    constexpr int kWidth = 1240, kMargin = 10, kGap = 12;
    const CSize small = icons ? CSize(40, 40) : CSize(60, 36);
    const CSize large = icons ? CSize(122, 114) : CSize(155, 112);

    const auto paint = [&](owtest::Surface& surface) {
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
        WalkPages(s_directory);
        SaveSheets(s_directory);
    }
    catch (const Failure& failure)
    {
        std::fwprintf(stderr, L"gallery_walk: %ls\n", failure.what.c_str());
        return 1;
    }
    return 0;
}
