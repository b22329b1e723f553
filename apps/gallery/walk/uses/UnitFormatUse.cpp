#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void TypeDecimals(CWnd& page, int nEditId, const wchar_t* pszDigits)
{
    Focus(page, nEditId);
    owtest::Press('A', false, true);
    owtest::Type(pszDigits);
}

/// One format: the preview follows the typing, the record when the edit is left.
void UseOneFormat(CWnd& page)
{
    const auto shows = [&](LPCTSTR pszPreview, LPCTSTR pszRecord)
    {
        return owtest::PumpUntil(
            [&] {
                return TextOf(page, IDC_FORMAT_PREVIEW) == pszPreview &&
                       TextOf(page, IDC_FORMAT_RECORD) == pszRecord;
            });
    };
    page.GetDlgItem(IDC_FORMAT_UNIT)->SetFocus();
    owtest::Press(VK_UP);
    Require(shows(_T("625 cm"), _T("unit 1, symbol 1, decimals 0")), L"the unit does not change");
    TypeDecimals(page, IDC_FORMAT_DECIMALS, L"3");
    Require(shows(_T("625.000 cm"), _T("unit 1, symbol 1, decimals 0")), L"typing is not previewed");
    owtest::Press(VK_TAB);
    Require(shows(_T("625.000 cm"), _T("unit 1, symbol 1, decimals 3")), L"what was typed is not stored");

    owtest::Click(*page.GetDlgItem(IDC_FORMAT_NO_RECORD));
    Require(TextOf(page, IDC_FORMAT_UNIT).IsEmpty(), L"units without a record");
    owtest::Click(*page.GetDlgItem(IDC_FORMAT_NO_RECORD));
    Require(shows(_T("625.000 cm"), _T("unit 1, symbol 1, decimals 3")), L"the record does not come back");
}

/// Three axes: each change goes to all of them, and leaves the rest.
void UseAxes(CWnd& page)
{
    const auto show = [&](LPCTSTR pszFirst, LPCTSTR pszSecond, LPCTSTR pszThird)
    {
        return owtest::PumpUntil(
            [&]
            {
                return TextOf(page, IDC_AXES_TEXT_FIRST) == pszFirst &&
                       TextOf(page, IDC_AXES_TEXT_FIRST + 1) == pszSecond &&
                       TextOf(page, IDC_AXES_TEXT_FIRST + 2) == pszThird;
            });
    };
    Require(show(_T("6.25 m"), _T("3400"), _T("6.0 ft")), L"the axes do not differ");
    owtest::Click(*page.GetDlgItem(IDC_AXES_SYMBOL));
    Require(show(_T("6.25 m"), _T("3400 mm"), _T("6.0 ft")), L"the symbol is not written everywhere");
    TypeDecimals(page, IDC_AXES_DECIMALS, L"3");
    Require(show(_T("6.250 m"), _T("3400.000 mm"), _T("6.000 ft")), L"the decimals do not go to all axes");
    owtest::Click(*page.GetDlgItem(IDC_AXES_DIFFER));
    Require(show(_T("6.25 m"), _T("3400"), _T("6.0 ft")), L"the axes do not differ again");
    Require(page.IsDlgButtonChecked(IDC_AXES_SYMBOL) == BST_INDETERMINATE, L"a common value shows");
}

void UseUnitFormat(CWnd& page)
{
    UseOneFormat(page);
    UseAxes(page);
}

const PageUse s_use(ePageUnitFormat, &UseUnitFormat);
} // namespace
