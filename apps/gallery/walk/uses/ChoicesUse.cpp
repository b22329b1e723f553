#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void RequireText(CWnd& page, int nId, LPCTSTR pszText)
{
    Require(owtest::PumpUntil([&] { return TextOf(page, nId) == pszText; }),
            L"control " + std::to_wstring(nId) + L" shows " + TextOf(page, nId).GetString());
}

void ClickOn(CWnd& page, int nId)
{
    owtest::Click(*page.GetDlgItem(nId));
}

void UseChoices(CWnd& page)
{
    const int nMasked = IDC_RULE_VALUE_FIRST + 2, nStiffeners = IDC_RULE_VALUE_FIRST + 3;
    ClickOn(page, IDC_MASKED);
    RequireText(page, nMasked, _T("1"));
    ClickOn(page, IDC_COATING_FIRST);
    RequireText(page, IDC_COATING_OPTION, _T("Option 0 of 3"));
    Require(!page.GetDlgItem(IDC_MASKED)->IsWindowEnabled(), L"the condition is not seen");
    RequireText(page, nMasked, _T("1"));
    ClickOn(page, IDC_COATING_CLEAR);
    RequireText(page, IDC_COATING_OPTION, _T("Option -1 of 3"));
    ClickOn(page, IDC_COATING_FIRST + 2);
    for (int nSwitch : {IDC_COATING_ENABLE, IDC_COATING_SHOW}) // there and back
    {
        ClickOn(page, nSwitch);
        ClickOn(page, nSwitch);
    }

    ClickOn(page, IDC_STIFFENED);
    RequireText(page, nStiffeners, _T("0"));
    Require(!page.GetDlgItem(IDC_STIFFENERS_FIRST)->IsWindowEnabled(), L"the options stay enabled");
    ClickOn(page, IDC_STIFFENED);
    RequireText(page, nStiffeners, _T("1"));
    ClickOn(page, IDC_STIFFENERS_FIRST + 2);
    RequireText(page, nStiffeners, _T("3"));
    ClickOn(page, IDC_RULE_SET_FIRST + 5 + 2);
    Require(page.IsDlgButtonChecked(IDC_TOLERANCES) == BST_CHECKED, L"the value does not go to the boxes");

    Focus(page, IDC_PROFILE_FIRST + 1);
    owtest::Press(VK_DOWN);
    RequireText(page, IDC_PROFILE_OPTION, _T("Option 2 of 4"));
}

const PageUse s_use(ePageChoices, &UseChoices);
} // namespace
