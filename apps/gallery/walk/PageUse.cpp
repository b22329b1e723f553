#include <afxwin.h>

#include "Walk.h"

#include <map>
#include <utility>

namespace
{
std::wstring s_directory; ///< of the pictures, with a backslash at its end
std::vector<std::wstring> s_names;

/// Files register before main, in any order.
std::map<CPage::EPageID, PageUse::Function>& Uses()
{
    static std::map<CPage::EPageID, PageUse::Function> s_uses;
    return s_uses;
}
} // namespace

void Require(bool condition, const std::wstring& what)
{
    if (!condition)
        throw WalkFailure{what};
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

CPoint CellIn(CGridCtrl& grid, int nRow, int nCol)
{
    CRect rect;
    Require(grid.GetCellRect(nRow, nCol, rect), L"the cell does not show");
    return rect.CenterPoint();
}

void SetPictureDirectory(const std::wstring& directory)
{
    s_directory = directory + L"\\";
}

std::wstring PicturePath(const std::wstring& name)
{
    s_names.push_back(name);
    return s_directory + name;
}

std::vector<std::wstring> TakePictureNames()
{
    return std::exchange(s_names, {});
}

PageUse::PageUse(CPage::EPageID id, Function use)
{
    Uses()[id] = use;
}

void PageUse::Run(CPage::EPageID id, CWnd& page)
{
    if (const auto use = Uses().find(id); use != Uses().end())
        use->second(page);
}
