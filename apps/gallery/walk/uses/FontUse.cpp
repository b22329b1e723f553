#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "ModalVisit.h"
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

bool HasFocus(CWnd& page, int id)
{
    return owtest::PumpUntil([&] { return CWnd::GetFocus() == page.GetDlgItem(id); });
}

/// Goes on to the next control with the Tab key.
void TabTo(CWnd& page, int id)
{
    owtest::Press(VK_TAB);
    Require(HasFocus(page, id), L"Tab does not lead to the control " + std::to_wstring(id));
}

/// Whether the record of the style reads so behind the name of its font.
bool RecordIs(CWnd& page, LPCTSTR pszRest)
{
    return owtest::PumpUntil(
        [&]
        {
            CString strName;
            page.GetDlgItemText(IDC_STYLE_FONT, strName);
            return TextOf(page, IDC_STYLE_RECORD) == strName + pszRest;
        });
}

/// Each press of its first letter goes on to the next font of that letter.
void ChooseByKey(CComboBox& font, LPCTSTR pszName)
{
    const int nRow = font.FindStringExact(-1, pszName);
    for (int press = 0; press < font.GetCount() && font.GetCurSel() != nRow; ++press)
        owtest::Type(CString(pszName[0]).GetString());
}

/// Edits the first style, from the radio buttons on: a SHX font, and then another, with the keyboard alone.
void EditByKeyboard(CWnd& page)
{
    auto& font = static_cast<CComboBox&>(*page.GetDlgItem(IDC_STYLE_FONT));
    TabTo(page, IDC_STYLE_FONT);
    ChooseByKey(font, L"romans");
    Require(owtest::PumpUntil([&] { return !page.GetDlgItem(IDC_STYLE_BOLD)->IsWindowEnabled(); }),
            L"an SHX font leaves the check boxes enabled");
    ChooseByKey(font, L"Liberation Sans");
    Require(page.GetDlgItem(IDC_STYLE_BOLD)->IsWindowEnabled(),
            L"a TrueType font leaves the check boxes disabled");
    TabTo(page, IDC_STYLE_HEIGHT);
    owtest::Press(VK_UP);
    TabTo(page, IDC_STYLE_COLOR);
    const owtest::ModalVisit visit(
        [](CWnd&)
        {
            owtest::Type(L"30");
            owtest::Press(VK_RETURN);
        });
    owtest::Press(VK_SPACE);
    Require(visit.Count() == 1 && HasFocus(page, IDC_STYLE_COLOR), L"no colours to choose from");
    TabTo(page, IDC_STYLE_BOLD);
    TabTo(page, IDC_STYLE_ITALIC);
    owtest::Press(VK_SPACE);
    Require(RecordIs(page, _T(", 7.5 mm, colour 30, bold, italic")), L"the keyboard does not edit the style");
}

void EditByMouse(CWnd& page)
{
    const HWND hSpin = ::FindWindowEx(page, nullptr, UPDOWN_CLASS, nullptr);
    CRect spin;
    ::GetClientRect(hSpin, spin);
    for (int i = 0; i < 3; ++i)
        owtest::Click(hSpin, CPoint(spin.Width() / 2, spin.Height() / 4));
    owtest::Click(*page.GetDlgItem(IDC_STYLE_BOLD)); // which the SHX font had cleared
    Require(page.IsDlgButtonChecked(IDC_STYLE_BOLD) != 0, L"no bold");
    Require(RecordIs(page, _T(", 9.0 mm, colour 30, bold, italic")), L"the mouse does not edit the style");
}

void ApplyByKeyboard(CWnd& page)
{
    Require(HasFocus(page, IDC_STYLE_BOLD), L"a click leaves the focus where it was");
    TabTo(page, IDC_STYLE_ITALIC);
    TabTo(page, IDC_STYLE_APPLY);
    const CString strRecord = TextOf(page, IDC_STYLE_RECORD);
    Require(owtest::SaveWindowPng(*page.GetParent(), PicturePath(L"font_styles.png")),
            L"the picture of the styles was not written");
    owtest::Press(VK_SPACE);
    for (int id = IDC_STYLE_FIRST + 1; id <= IDC_STYLE_LAST; ++id)
    {
        owtest::Click(*page.GetDlgItem(id));
        Require(TextOf(page, IDC_STYLE_RECORD) == strRecord, L"a style is not like the first one");
    }
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
    Require(HasFocus(page, IDC_FONT_WANTED), L"Enter does not go on");

    TabTo(page, IDC_FONT_SELECT);
    TabTo(page, IDC_STYLE_FIRST);
    EditByKeyboard(page);
    EditByMouse(page);
    ApplyByKeyboard(page);
}

const PageUse s_use(ePageFont, &UseFont);
} // namespace
