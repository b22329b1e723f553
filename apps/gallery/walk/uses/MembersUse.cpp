#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
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
    Require(page.GetParent()->GetDlgItem(IDC_PREVIEW)->IsWindowVisible(), L"no preview");
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

const PageUse s_use(ePageBeam, &UseMembers);
} // namespace
