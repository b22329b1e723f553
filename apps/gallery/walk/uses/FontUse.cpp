#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "Picture.h"

namespace
{
/// Opens the list, takes a picture of it, and chooses one of its rows with the mouse.
void ChooseByMouse(CWnd& page, CComboBox& font, const wchar_t* pszName)
{
    owtest::Click(font);
    Require(owtest::PumpUntil([&] { return font.GetDroppedState() != FALSE; }), L"no list of fonts opens");
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    font.GetComboBoxInfo(&info);
    const int nRow = font.FindStringExact(-1, pszName);
    CRect rect;
    ::SendMessage(info.hwndList, LB_GETITEMRECT, nRow, reinterpret_cast<LPARAM>(&rect));
    owtest::MoveTo(info.hwndList, rect.CenterPoint());
    ::UpdateWindow(info.hwndList);
    Require(owtest::SaveWindowPng(*page.GetParent(), PicturePath(L"font_open.png")),
            L"the picture of the fonts was not written");
    owtest::Click(info.hwndList, rect.CenterPoint());
    Require(owtest::PumpUntil([&] { return font.GetCurSel() == nRow; }), L"the mouse does not choose a font");
    Require(TextOf(page, IDC_FONT_CLASS) == _T("SHX"), L"the class is not shown");
}

void UseFont(CWnd& page)
{
    auto& font = static_cast<CComboBox&>(*page.GetDlgItem(IDC_FONT_NAME));
    ChooseByMouse(page, font, L"romans");

    Focus(page, IDC_FONT_WANTED);
    owtest::Type(L"no such font");
    owtest::Click(*page.GetDlgItem(IDC_FONT_SELECT));
    Require(TextOf(page, IDC_FONT_FOUND) == _T("There is no such font."),
            L"a font that is not there is found");
    Focus(page, IDC_FONT_WANTED);
    owtest::Press('A', false, true);
    owtest::Type(L"liberation sans");
    owtest::Click(*page.GetDlgItem(IDC_FONT_SELECT));
    Require(TextOf(page, IDC_FONT_CLASS) == _T("TrueType"), L"a font is not found by its name");

    const int nRow = font.GetCurSel();
    font.SetFocus();
    owtest::Press(VK_DOWN);
    owtest::Press(VK_DOWN);
    Require(owtest::PumpUntil([&] { return font.GetCurSel() == nRow + 2; }), L"the arrow keys do not choose");
    owtest::Press(VK_RETURN);
    const auto onward = [&] { return CWnd::GetFocus() == page.GetDlgItem(IDC_FONT_WANTED); };
    Require(owtest::PumpUntil(onward), L"Enter does not go on");
}

const PageUse s_use(L"Font", &UseFont);
} // namespace
