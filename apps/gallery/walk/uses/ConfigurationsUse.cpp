#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "ModalVisit.h"
#include "Picture.h"

namespace
{
constexpr wchar_t kName[] = L"Walk: end plate";

using Visitors = std::vector<owtest::ModalVisit::Visitor>;

CComboBox& Configs(CWnd& page)
{
    return static_cast<CComboBox&>(*page.GetDlgItem(IDC_CONFIGS));
}

void Click(CWnd& page, int id, const Visitors& visitors)
{
    owtest::ModalVisit visit(visitors);
    owtest::Click(*page.GetDlgItem(id));
    Require(visit.Count() == static_cast<int>(visitors.size()), L"not all dialogs came");
}

void Retype(CWnd& page, int id, const wchar_t* text)
{
    Focus(page, id);
    owtest::Press(VK_HOME);
    owtest::Press(VK_END, true);
    owtest::Type(text);
}

void TypeName(CWnd& dialog)
{
    owtest::Press(VK_HOME);
    owtest::Press(VK_END, true);
    owtest::Type(kName);
    dialog.UpdateWindow();
    owtest::Pump();
    owtest::SaveWindowPng(dialog, PicturePath(L"configuration_name.png"));
    owtest::Press(VK_RETURN);
}

void SayYes(CWnd&)
{
    owtest::Press(VK_RETURN);
}

void Choose(CWnd& page, int nRow)
{
    Configs(page).SetFocus();
    owtest::Press(VK_HOME);
    while (Configs(page).GetCurSel() < nRow)
        owtest::Press(VK_DOWN);
}

/// Also what an earlier walk left behind that did not reach its end.
void DeleteSaved(CWnd& page)
{
    const int nRow = Configs(page).FindStringExact(-1, kName);
    if (nRow < 0)
        return;
    Choose(page, nRow);
    Click(page, IDC_CONFIG_DELETE, {&SayYes});
    Require(Configs(page).FindStringExact(-1, kName) < 0, L"the configuration is still there");
}

/// Saves a pattern under a name, changes and overwrites it, and finds the values again.
void UseConfigurations(CWnd& page)
{
    DeleteSaved(page);
    Choose(page, 0);
    const auto length = [&](const wchar_t* text) { return TextOf(page, IDC_PATTERN_LENGTH) == text; };
    Require(length(L"220 mm"), L"these are not the default values");

    Retype(page, IDC_PATTERN_ROWS, L"5");
    Require(Configs(page).GetCurSel() == -1, L"a change does not show");
    Click(page, IDC_CONFIG_SAVE, {&TypeName});
    const int nRow = Configs(page).GetCurSel();
    Require(nRow > 0 && TextOf(page, IDC_PATTERN_STATE) == L"As stored", L"not saved");

    Retype(page, IDC_PATTERN_PITCH, L"80");
    Click(page, IDC_CONFIG_SAVE, {&TypeName, &SayYes});
    Require(Configs(page).GetCurSel() == nRow, L"not overwritten");
    Choose(page, 0);
    Require(length(L"220 mm"), L"Default does not bring its values");
    Choose(page, nRow);
    Require(length(L"400 mm"), L"the saved values are lost");
    const std::wstring picture = PicturePath(L"configuration_saved.png");
    Require(owtest::SaveWindowPng(*page.GetParent(), picture), L"no picture of the page");

    DeleteSaved(page);
    Retype(page, IDC_PATTERN_ROWS, L"4");
}

const PageUse s_use(ePageConfigurations, &UseConfigurations);
} // namespace
