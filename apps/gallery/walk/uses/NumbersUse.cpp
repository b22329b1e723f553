#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
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

const PageUse s_use(ePageNumbers, &UseNumbers);
} // namespace
