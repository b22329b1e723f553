#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "ModalVisit.h"
#include "Picture.h"

#include <filesystem>

namespace
{
constexpr int kComboOfNames = 10001, kFileName = 1148; // in the dialogs

using Visitor = std::function<void(CWnd&)>;

/// Opens a dialog by a click, and looks at the answer beside the button.
void Use(CWnd& page, int button, int answer, const std::wstring& expected, const Visitor& visitor)
{
    owtest::ModalVisit visit(visitor);
    owtest::Click(*page.GetDlgItem(button));
    Require(TextOf(page, answer) == expected.c_str(), L"a dialog did not answer " + expected);
}

/// Takes a picture of the dialog after a first part of the work, and accepts.
void UseAndAccept(CWnd& page, int button, int answer, const std::wstring& expected, const wchar_t* picture,
                  const Visitor& visitor)
{
    const std::wstring path =
        std::filesystem::absolute(PicturePath(picture)); // a file dialog goes to other folders
    bool saved = false;
    const Visitor accept = [&](CWnd& dialog)
    {
        visitor(dialog);
        dialog.UpdateWindow();
        owtest::Pump();
        saved = owtest::SaveWindowPng(dialog, path);
        owtest::Click(*dialog.GetDlgItem(IDOK));
        if (dialog.IsWindowVisible()) // the first click has closed an open list
            owtest::Click(*dialog.GetDlgItem(IDOK));
    };
    Use(page, button, answer, expected, accept);
    Require(saved, L"the picture of a dialog was not written");
}

/// Types a path in place of what stands in the file dialog.
Visitor TypePath(const std::wstring& path)
{
    return [=](CWnd& dialog)
    {
        owtest::Click(*dialog.GetDlgItem(kFileName));
        owtest::Press(VK_HOME);
        owtest::Press(VK_END, true);
        owtest::Type(path);
    };
}

void UseNamesAndFiles(CWnd& page)
{
    const Visitor typeMark = [](CWnd&) { owtest::Type(L"B12"); };
    UseAndAccept(page, IDC_ASK_MARK, IDC_MARK_ANSWER, L"IDOK: \"B12\"", L"name_dialog.png", typeMark);
    const Visitor cancel = [](CWnd&)
    {
        owtest::Type(L"C1");
        owtest::Press(VK_ESCAPE);
    };
    Use(page, IDC_ASK_MARK, IDC_MARK_ANSWER, L"IDCANCEL: \"B12\"", cancel);

    Focus(page, IDC_NAME_CAPTION);
    owtest::Type(L"Layer of the beam");
    const Visitor pickLayer = [](CWnd& dialog)
    {
        CRect rect;
        dialog.GetDlgItem(kComboOfNames)->GetClientRect(rect);
        owtest::Click(*dialog.GetDlgItem(kComboOfNames), CPoint(rect.right - 6, rect.CenterPoint().y));
        owtest::Press(VK_DOWN);
    };
    UseAndAccept(page, IDC_ASK_LAYER, IDC_LAYER_ANSWER, L"IDOK: \"Columns\"", L"name_list_dialog.png",
                 pickLayer);

    const std::wstring note = std::filesystem::temp_directory_path() / L"walk note.txt";
    std::filesystem::remove(note);
    const std::wstring answer = L"IDOK: \"" + note + L'"';
    UseAndAccept(page, IDC_SAVE_FILE, IDC_SAVE_ANSWER, answer, L"file_dialog_save.png", TypePath(note));
    UseAndAccept(page, IDC_OPEN_FILE, IDC_OPEN_ANSWER, answer, L"file_dialog_open.png", [](CWnd&) {});
    Require(TextOf(page, IDC_FIRST_LINE) == L"Beam B1: shop primer", L"the file was not read");
    std::filesystem::remove(note);
}

const PageUse s_use(ePageNamesAndFiles, &UseNamesAndFiles);
} // namespace
