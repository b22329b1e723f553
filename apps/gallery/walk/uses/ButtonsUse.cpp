#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
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

const PageUse s_use(ePageButtons, &UseButtons);
} // namespace
