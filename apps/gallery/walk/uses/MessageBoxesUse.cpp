#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "ModalVisit.h"
#include "Picture.h"

namespace
{
/// Opens a box by a click, closes it by a key, and looks at the answer beside the button.
void UseBox(CWnd& page, int nBox, WORD key, const wchar_t* pszAnswer, const std::wstring& picture = {})
{
    bool saved = false;
    owtest::ModalVisit visit(
        [&](CWnd& box)
        {
            box.UpdateWindow();
            owtest::Pump();
            saved = picture.empty() || owtest::SaveWindowPng(box, picture);
            owtest::Press(key);
        });
    owtest::Click(*page.GetDlgItem(IDC_BOX_FIRST + nBox));
    const auto answered = [&] { return TextOf(page, IDC_RESULT_FIRST + nBox) == pszAnswer; };
    Require(owtest::PumpUntil(answered), std::wstring(L"a box did not answer ") + pszAnswer);
    Require(saved, L"the picture of a box was not written");
}

void UseMessageBoxes(CWnd& page)
{
    owtest::Click(*page.GetDlgItem(IDC_LANG_ENGLISH));
    UseBox(page, 0, VK_RETURN, L"IDOK");
    UseBox(page, 1, VK_ESCAPE, L"IDCANCEL");
    UseBox(page, 2, VK_ESCAPE, L"IDNO");
    UseBox(page, 3, VK_RETURN, L"IDYES");
    UseBox(page, 4, VK_ESCAPE, L"button 4", PicturePath(L"message_box.png"));
    UseBox(page, 5, VK_RETURN, L"button 1");
    UseBox(page, 7, VK_RETURN, L"closed");
    UseBox(page, 6, VK_RETURN, L"IDOK", PicturePath(L"message_box_long.png"));
}

const PageUse s_use(ePageMessageBoxes, &UseMessageBoxes);
} // namespace
