// Walks through the gallery with real mouse and keyboard and leaves a PNG of every page, and of all drawings, with an
// index.html that shows them.
//
//     gallery_walk DIRECTORY
//
// Prints "[done/all] title" for each picture. Ends with 1 and a line that says why if a page cannot be reached or a
// picture cannot be written.

#include <afxwin.h>

#include "Walk.h"

#include "ComboGalleryDialog.h"
#include "ContactSheet.h"
#include "GalleryDialog.h"
#include "PictureIndex.h"
#include "resource.h"

#include "Picture.h"

#include <algorithm>
#include <cstdio>

namespace
{
CWinApp theApp;
PictureIndex s_index(
    L"The gallery of DialogControlsOW",
    L"Each page as a user left it who worked on it with mouse and keyboard, with what opened "
    L"meanwhile, and the calls of handlers on the way.");
int s_done = 0, s_all = 0; ///< pictures

std::wstring FileName(const std::wstring& title)
{
    std::wstring name;
    for (wchar_t ch : title)
        name += ch == L' ' ? L'_' : static_cast<wchar_t>(std::towlower(ch));
    return name + L".png";
}

/// The pictures that have been saved since the last entry, the last one first: it shows the page as it was left.
void Enter(const std::wstring& title, std::vector<HandlerCall> calls = {})
{
    std::vector<std::wstring> files = TakePictureNames();
    std::rotate(files.begin(), files.end() - 1, files.end());
    s_index.Add(title, files, std::move(calls));
    std::printf("[%d/%d] %ls\n", ++s_done, s_all, title.c_str());
    std::fflush(stdout);
}

void SavePicture(CWnd& dialog, const std::wstring& title, std::vector<HandlerCall> calls = {})
{
    owtest::MoveTo(dialog, CPoint(0, 0));
    dialog.UpdateWindow();
    owtest::Pump();
    Require(owtest::SaveWindowPng(dialog, PicturePath(FileName(title))), L"the picture was not written");
    Enter(title, std::move(calls));
}

CNotificationLog& LogOf(CWnd& gallery)
{
    return static_cast<CNotificationLog&>(*gallery.GetDlgItem(IDC_LOG));
}

std::vector<HandlerCall> CallsFrom(CNotificationLog& log, int first)
{
    std::vector<HandlerCall> calls;
    for (int line = first; line < log.GetItemCount(); ++line)
        calls.push_back({log.GetItemText(line, 0).GetString(), log.GetItemText(line, 1).GetString()});
    return calls;
}

constexpr int kOtherPictures = 4; ///< than those of the tree's pages: the combo boxes, three sheets

/// The page dialog that the user sees.
CWnd& ShownPage(CWnd& dialog)
{
    for (CWnd* child = dialog.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
    {
        if (child->IsWindowVisible() && child->IsKindOf(RUNTIME_CLASS(CPageDialog)))
            return *child;
    }
    throw WalkFailure{L"no page shows"};
}

void Open(CDialog& dialog, UINT nTemplateId)
{
    Require(dialog.Create(nTemplateId), L"the dialog does not open");
    dialog.ShowWindow(SW_SHOW);
    Require(owtest::Activate(dialog), L"the dialog does not become active");
    dialog.SendMessage(WM_NCACTIVATE, TRUE); // Wine leaves the caption of a program's first window grey
}

void VisitPage(CWnd& gallery, CPageTreeCtrl& tree, HTREEITEM item)
{
    CNotificationLog& log = LogOf(gallery);
    const int callsBefore = log.GetItemCount();
    CRect rect;
    tree.EnsureVisible(item);
    Require(tree.GetItemRect(item, rect, TRUE), L"the page is not in the tree");
    owtest::Click(tree, rect.CenterPoint());
    const CString strTitle = tree.GetItemText(item);
    Require(owtest::PumpUntil([&] { return TextOf(gallery, IDC_PAGE_TITLE) == strTitle; }),
            L"the page does not show");
    PageUse::Run(tree.GetCurrentPage()->GetPageID(), ShownPage(gallery));
    SavePicture(gallery, strTitle.GetString(), CallsFrom(log, callsBefore));
}

void WalkPages()
{
    CGalleryDialog gallery;
    Open(gallery, IDD_GALLERY);
    auto& tree = static_cast<CPageTreeCtrl&>(*gallery.GetDlgItem(IDC_PAGES));
    s_all = static_cast<int>(tree.GetCount()) + kOtherPictures;
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
    for (int row = 1; row < combo.GetCount(); ++row)
    {
        combo.SetFocus();
        owtest::Press(VK_DOWN);
        Require(owtest::PumpUntil([&] { return other.GetCurSel() == row; }),
                L"the combo boxes do not follow");
        if (!button.IsWindowVisible())
            continue;
        for (UINT checked : {BST_CHECKED, BST_UNCHECKED})
        {
            const CString strBefore = TextOf(gallery, IDC_PAGE_TITLE);
            if (checked == BST_CHECKED)
                owtest::Click(button);
            else
                owtest::Press(VK_SPACE); // which the button has the focus for
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
void SaveSheet(const std::wstring& title, const std::vector<Drawing>& drawings, COLORREF background,
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
    const auto bitmap = static_cast<HBITMAP>(::GetCurrentObject(sheet.dc(), OBJ_BITMAP));
    Require(owtest::SavePng(bitmap, PicturePath(FileName(title))), L"the sheet was not written");
    Enter(title);
}

void SaveSheets()
{
    SaveSheet(L"Sheet icons", AllIcons(), RGB(240, 240, 240), true);
    SaveSheet(L"Sheet icons on white", AllIcons(), RGB(255, 255, 255), true);
    SaveSheet(L"Sheet pictures", AllPictures(), RGB(240, 240, 240), false);
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
        SetPictureDirectory(argv[1]);
        WalkPages();
        WalkPagesByCombos();
        SaveSheets();
        Require(s_index.Save(PicturePath(L"index.html")), L"the index was not written");
    }
    catch (const WalkFailure& failure)
    {
        std::fwprintf(stderr, L"gallery_walk: %ls\n", failure.what.c_str());
        return 1;
    }
    return 0;
}
