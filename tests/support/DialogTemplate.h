#pragma once
// Dialog templates made in memory, so that a test shows its dialog where it uses it.
//
//     const owtest::DialogTemplate form = owtest::DialogTemplate(L"Title", 120, 60)
//                                             .Label(L"Width:", 4, 4, 40, 10)
//                                             .Edit(IDC_WIDTH, 48, 4, 60, 12)
//                                             .DefaultButton(L"OK", IDOK, 4, 40, 40, 14)
//                                             .Button(L"Cancel", IDCANCEL, 48, 40, 40, 14);
//     dialog.InitModalIndirect(form.get());
//
// All coordinates are dialog units. The template must outlive the dialog's creation.

#include <afxwin.h>

#include <string>
#include <vector>

namespace owtest
{
class DialogTemplate
{
public:
    /// A pop-up with a caption and a system menu at the corner of the owner, in the 8 point dialog font.
    DialogTemplate(std::wstring title, short cx, short cy);

    /// Replaces the style; DS_SETFONT is always added.
    DialogTemplate& Style(DWORD style, DWORD exStyle = 0);
    DialogTemplate& Position(short x, short y);
    DialogTemplate& Font(WORD points, std::wstring face);

    /// Any control. WS_CHILD and WS_VISIBLE are added to the style.
    DialogTemplate& Item(std::wstring windowClass, std::wstring text, WORD id, DWORD style, short x, short y,
                         short cx, short cy, DWORD exStyle = 0);

    DialogTemplate& Label(std::wstring text, short x, short y, short cx, short cy)
    {
        return Item(L"Static", std::move(text), 0xFFFF, SS_LEFT, x, y, cx, cy);
    }
    DialogTemplate& Edit(WORD id, short x, short y, short cx, short cy, DWORD style = ES_AUTOHSCROLL)
    {
        return Item(L"Edit", L"", id, style | WS_BORDER | WS_TABSTOP, x, y, cx, cy);
    }
    DialogTemplate& Button(std::wstring text, WORD id, short x, short y, short cx, short cy,
                           DWORD style = BS_PUSHBUTTON)
    {
        return Item(L"Button", std::move(text), id, style | WS_TABSTOP, x, y, cx, cy);
    }
    DialogTemplate& DefaultButton(std::wstring text, WORD id, short x, short y, short cx, short cy)
    {
        return Button(std::move(text), id, x, y, cx, cy, BS_DEFPUSHBUTTON);
    }

    /// The template, valid until the object changes or goes.
    LPCDLGTEMPLATE get() const;

private:
    struct Control
    {
        std::wstring windowClass;
        std::wstring text;
        DLGITEMTEMPLATE head;
    };

    DLGTEMPLATE m_head{};
    std::wstring m_title;
    WORD m_points = 8;
    std::wstring m_face = L"MS Shell Dlg";
    std::vector<Control> m_controls;
    mutable std::vector<WORD> m_memory; ///< at a double word, as all memory is that is allocated
};
} // namespace owtest
