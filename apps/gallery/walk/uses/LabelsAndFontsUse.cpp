#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void RequireChecked(CWnd& page, int id, UINT checked)
{
    Require(owtest::PumpUntil([&] { return page.IsDlgButtonChecked(id) == checked; }),
            L"button " + std::to_wstring(id) + L" has the wrong check");
}

void UseLabelsAndFonts(CWnd& page)
{
    Focus(page, IDC_LABEL_MARKUP);
    page.SetDlgItemText(IDC_LABEL_MARKUP,
                        _T("<b>Bolts</b> M20, <i>A</i><sub>s</sub> = 2.45 cm<sup>2</sup>,"));
    owtest::Press(VK_END);
    owtest::Type(L" 8.8");
    Require(TextOf(page, IDC_LABEL_SHOWN).Right(11) == _T("</sup>, 8.8"), L"the label does not follow");

    for (int i = 0; i < 18; i += 5)
    {
        const UINT before = page.IsDlgButtonChecked(IDC_MIXED_FIRST + i);
        owtest::Click(*page.GetDlgItem(IDC_MIXED_FIRST + i));
        RequireChecked(page, IDC_MIXED_FIRST + i, !before);
    }

    owtest::Click(*page.GetDlgItem(IDC_LOAD_FIXED));
    RequireChecked(page, IDC_LOAD_FIXED, BST_CHECKED);
    owtest::Click(*page.GetDlgItem(IDC_LOAD_FIRST + 2));
    RequireChecked(page, IDC_LOAD_FIRST + 2, BST_CHECKED);
    RequireChecked(page, IDC_LOAD_FIRST, BST_UNCHECKED);

    owtest::Click(*page.GetDlgItem(IDC_REFLECTED));
    RequireChecked(page, IDC_REFLECTED, BST_CHECKED);
    owtest::Click(*page.GetDlgItem(IDC_REFLECTED_ST));
    Require(TextOf(page, IDC_REFLECTED_COUNT) == _T("Picks: 1"), L"nothing is picked");

    page.GetDlgItem(IDC_LOAD_FIRST + 2)->SetFocus();
    owtest::Press(VK_TAB, true);
    owtest::Press(VK_SPACE); // the middle one; the picture shows what focus looks like
    RequireChecked(page, IDC_LOAD_FIRST + 1, BST_CHECKED);
    RequireChecked(page, IDC_LOAD_FIRST + 2, BST_UNCHECKED);
}

const PageUse s_use(ePageLabelsAndFonts, &UseLabelsAndFonts);
} // namespace
