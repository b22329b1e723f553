#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void UseTextBoxes(CWnd& page)
{
    Focus(page, IDC_MARK);
    owtest::Press('A', false, true); // all of it
    owtest::Type(L"hea160");
    owtest::Press(VK_TAB);
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_MARK) == _T("HEA 160"); }),
            L"the mark was not normalised");
    owtest::Type(L"shop primer");
}

const PageUse s_use(ePageTextBoxes, &UseTextBoxes);
} // namespace
