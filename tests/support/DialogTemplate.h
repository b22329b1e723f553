#pragma once
// Dialog templates made in memory, so that a test shows its dialog where it uses it.
//
//     const auto form = owtest::DialogTemplate(L"Title", 120, 60).Edit(IDC_WIDTH, 48, 4, 60, 12);
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
    DialogTemplate(std::wstring title, short cx, short cy) : m_title(std::move(title))
    {
        m_head.cx = cx;
        m_head.cy = cy;
        Style(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME);
    }

    /// Replaces the style; DS_SETFONT is always added.
    DialogTemplate& Style(DWORD style, DWORD exStyle = 0)
    {
        m_head.style = style | DS_SETFONT;
        m_head.dwExtendedStyle = exStyle;
        return *this;
    }
    DialogTemplate& Font(WORD points, std::wstring face)
    {
        m_points = points;
        m_face = std::move(face);
        return *this;
    }

    /// Any control. WS_CHILD and WS_VISIBLE are added to the style.
    DialogTemplate& Item(std::wstring windowClass, std::wstring text, WORD id, DWORD style, short x, short y,
                         short cx, short cy, DWORD exStyle = 0)
    {
        m_controls.push_back({std::move(windowClass), std::move(text),
                              DLGITEMTEMPLATE{style | WS_CHILD | WS_VISIBLE, exStyle, x, y, cx, cy, id}});
        ++m_head.cdit;
        return *this;
    }
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
    LPCDLGTEMPLATE get() const
    {
        m_memory.clear();
        const auto put = [this](const auto& part)
        {
            const auto* const words = reinterpret_cast<const WORD*>(&part);
            m_memory.insert(m_memory.end(), words, words + sizeof part / sizeof(WORD));
        };
        const auto putText = [this](const std::wstring& text)
        { m_memory.insert(m_memory.end(), text.c_str(), text.c_str() + text.size() + 1); };
        constexpr WORD none = 0; // no menu, the dialog class, no creation data

        put(m_head);
        put(none);
        put(none);
        putText(m_title);
        put(m_points);
        putText(m_face);
        for (const Control& control : m_controls)
        {
            if (m_memory.size() % 2)
                put(none); // each begins at a double word
            put(control.head);
            putText(control.windowClass);
            putText(control.text);
            put(none);
        }
        return reinterpret_cast<LPCDLGTEMPLATE>(m_memory.data());
    }

private:
    struct Control
    {
        std::wstring windowClass, text;
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
