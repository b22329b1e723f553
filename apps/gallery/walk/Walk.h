#pragma once
// What a user does on a page of the gallery, for the walk that takes a picture of each page afterwards. One
// file for each page, in uses/:
//
//     void UseNumbers(CWnd& page)
//     {
//         Focus(page, IDC_LENGTH);
//         owtest::Type(L"5");
//         Require(..., L"no length");
//     }
//     const PageUse s_use(ePageNumbers, &UseNumbers);

#include "PageIds.h"

#include "Input.h"

#include <string>
#include <vector>

/// Why the walk ends before its end.
struct WalkFailure
{
    std::wstring what;
};

/// Ends the walk, with the reason, unless the condition holds.
void Require(bool condition, const std::wstring& what);

/// Clicks a control of the page and waits until it has the focus.
void Focus(CWnd& page, int id);

/// Text of a control of the page.
CString TextOf(CWnd& page, int id);

/// A cell's middle, in the client area of the grid.
CPoint CellIn(CGridCtrl& grid, int nRow, int nCol);

void SetPictureDirectory(const std::wstring& directory);

/// Where a picture of this name is to be saved. The index shows it with the page that is being used.
std::wstring PicturePath(const std::wstring& name);

/// The names that were asked for since the last call.
std::vector<std::wstring> TakePictureNames();

/// Registers what is done on a page before its picture is taken.
class PageUse
{
public:
    using Function = void (*)(CWnd& page);
    PageUse(CPage::EPageID id, Function use);

    /// Does what is registered for the page; nothing if there is none.
    static void Run(CPage::EPageID id, CWnd& page);
};
