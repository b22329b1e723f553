#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "MenuVisit.h"
#include "Picture.h"

#include <functional>

namespace
{
constexpr int kPlateNumber = 2, kProductionNumber = 4; // boxes, from the top

/// Clicks the button of a box and works on its menu, until the box has the focus again.
void Insert(CWnd& page, int nBox, const std::function<void(const owtest::OpenMenu&)>& choose)
{
    owtest::MenuVisit visit(choose);
    owtest::Click(*page.GetDlgItem(IDC_INSERT_FIRST + nBox));
    const HWND hBox = *page.GetDlgItem(IDC_LABEL_FIRST + nBox);
    Require(owtest::PumpUntil([&] { return ::GetFocus() == hBox; }), L"nothing was inserted");
}

void UseLabelTemplates(CWnd& page)
{
    owtest::Click(*page.GetDlgItem(IDC_LANG_ENGLISH));
    Focus(page, IDC_LABEL_FIRST + kPlateNumber);
    owtest::Press('A', false, true);
    owtest::Type(L"t = , b = ");
    for (int i = 0; i < 6; ++i)
        owtest::Press(VK_LEFT);
    std::wstring last;
    bool saved = false;
    Insert(page, kPlateNumber,
           [&](const owtest::OpenMenu& menu)
           {
               last = menu.Labels().back();
               saved =
                   owtest::SaveWindowPng(*page.GetTopLevelParent(), PicturePath(L"label_templates_menu.png"));
               menu.Click(3);
           });
    Require(last == L"%h - plate thickness", L"the menu is not translated");
    Require(saved, L"the picture of a menu was not written");
    owtest::Press(VK_END);
    Insert(page, kPlateNumber,
           [](const owtest::OpenMenu& menu) {
               menu.Press({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
           });
    owtest::Type(L" mm");
    Require(TextOf(page, IDC_LABEL_FIRST + kPlateNumber) == _T("t = %h, b = %w mm"), L"the codes are misplaced");
    Require(TextOf(page, IDC_PREVIEW_FIRST + kPlateNumber) == _T("t = 12, b = 250 mm"), L"no preview");

    owtest::Click(*page.GetDlgItem(IDC_LABELS_LOCKED));
    Require(!page.GetDlgItem(IDC_INSERT_FIRST + kPlateNumber)->IsWindowEnabled(),
            L"a button does not follow its box");
    owtest::Click(*page.GetDlgItem(IDC_LABELS_LOCKED));
    Focus(page, IDC_LABEL_FIRST + kProductionNumber);
    owtest::Press(VK_END);
}

const PageUse s_use(ePageLabelTemplates, &UseLabelTemplates);
} // namespace
