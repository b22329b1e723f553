#include "DialogTemplate.h"

namespace owtest
{
DialogTemplate::DialogTemplate(std::wstring title, short cx, short cy) : m_title(std::move(title))
{
    m_head.cx = cx;
    m_head.cy = cy;
    Style(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME);
}

DialogTemplate& DialogTemplate::Style(DWORD style, DWORD exStyle)
{
    m_head.style = style | DS_SETFONT;
    m_head.dwExtendedStyle = exStyle;
    return *this;
}

DialogTemplate& DialogTemplate::Position(short x, short y)
{
    m_head.x = x;
    m_head.y = y;
    return *this;
}

DialogTemplate& DialogTemplate::Font(WORD points, std::wstring face)
{
    m_points = points;
    m_face = std::move(face);
    return *this;
}

DialogTemplate& DialogTemplate::Item(std::wstring windowClass, std::wstring text, WORD id, DWORD style,
                                     short x, short y, short cx, short cy, DWORD exStyle)
{
    m_controls.push_back({std::move(windowClass), std::move(text),
                          DLGITEMTEMPLATE{style | WS_CHILD | WS_VISIBLE, exStyle, x, y, cx, cy, id}});
    return *this;
}

LPCDLGTEMPLATE DialogTemplate::get() const
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

    DLGTEMPLATE head = m_head;
    head.cdit = static_cast<WORD>(m_controls.size());
    put(head);
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
} // namespace owtest
