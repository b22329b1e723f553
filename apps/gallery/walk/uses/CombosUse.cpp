#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "Picture.h"

namespace
{
/// Opens the list of long entries, takes a picture of it, and chooses the last one with the mouse.
void ChooseConnection(CWnd& page)
{
    auto& connection = static_cast<CComboBox&>(*page.GetDlgItem(IDC_CONNECTION));
    owtest::Click(connection);
    Require(owtest::PumpUntil([&] { return connection.GetDroppedState() != FALSE; }), L"no list opens");
    const std::wstring picture = PicturePath(L"combo_boxes_open.png");
    Require(owtest::SaveWindowPng(*page.GetParent(), picture), L"the picture of the list was not written");

    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    connection.GetComboBoxInfo(&info);
    CRect list;
    ::GetClientRect(info.hwndList, list);
    Require(list.Width() > 300, L"the list does not widen");
    owtest::Click(info.hwndList, CPoint(list.right - 10, list.bottom - 5));
    Require(owtest::PumpUntil([&] { return connection.GetCurSel() == 3; }), L"the mouse does not choose");
}

void UseCombos(CWnd& page)
{
    CWnd& layer = *page.GetDlgItem(IDC_LAYER);
    const auto inLayer = [&] { return layer.IsChild(CWnd::GetFocus()) != FALSE; }; // in its edit part
    owtest::Click(layer);
    Require(owtest::PumpUntil(inLayer), L"no focus");
    owtest::Press('A', false, true);
    owtest::Type(L"Roof");
    Require(TextOf(page, IDC_LAYER) == _T("Roof"), L"the layer cannot be typed");

    page.GetDlgItem(IDC_GRADE)->SetFocus();
    owtest::Press(VK_DOWN);
    owtest::Press(VK_DOWN);
    const auto chosen = [&] { return TextOf(page, IDC_CHOSEN) == _T("S355; Cleat, 2 bolts"); };
    Require(owtest::PumpUntil(chosen), L"the arrow keys do not choose");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil(inLayer), L"Enter does not go on");
    ChooseConnection(page);
}

const PageUse s_use(ePageCombos, &UseCombos);
} // namespace
