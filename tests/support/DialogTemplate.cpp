#include "DialogTemplate.h"

#include <cstring>

namespace owtest
{
namespace
{
/// Appends the parts of a template in the order of the format.
class Writer
{
public:
    template <class Value>
    void Put(const Value& value)
    {
        PutBytes(&value, sizeof value);
    }

    void Put(const std::wstring& text) { PutBytes(text.c_str(), (text.size() + 1) * sizeof(wchar_t)); }

    void AlignToDoubleWord() { m_bytes.resize((m_bytes.size() + 3) & ~size_t{3}); }

    std::vector<DWORD> Finish()
    {
        AlignToDoubleWord();
        std::vector<DWORD> words(m_bytes.size() / sizeof(DWORD));
        std::memcpy(words.data(), m_bytes.data(), m_bytes.size());
        return words;
    }

private:
    void PutBytes(const void* data, size_t size)
    {
        const auto* const bytes = static_cast<const BYTE*>(data);
        m_bytes.insert(m_bytes.end(), bytes, bytes + size);
    }

    std::vector<BYTE> m_bytes;
};
} // namespace

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

DialogTemplate& DialogTemplate::Label(std::wstring text, short x, short y, short cx, short cy)
{
    return Item(L"Static", std::move(text), 0xFFFF, SS_LEFT, x, y, cx, cy);
}

DialogTemplate& DialogTemplate::Edit(WORD id, short x, short y, short cx, short cy, DWORD style)
{
    return Item(L"Edit", L"", id, style | WS_BORDER | WS_TABSTOP, x, y, cx, cy);
}

DialogTemplate& DialogTemplate::Button(std::wstring text, WORD id, short x, short y, short cx, short cy)
{
    return Item(L"Button", std::move(text), id, BS_PUSHBUTTON | WS_TABSTOP, x, y, cx, cy);
}

DialogTemplate& DialogTemplate::DefaultButton(std::wstring text, WORD id, short x, short y, short cx,
                                              short cy)
{
    return Item(L"Button", std::move(text), id, BS_DEFPUSHBUTTON | WS_TABSTOP, x, y, cx, cy);
}

LPCDLGTEMPLATE DialogTemplate::get() const
{
    constexpr WORD none = 0; // no menu, the dialog class, no creation data

    DLGTEMPLATE head = m_head;
    head.cdit = static_cast<WORD>(m_controls.size());
    Writer writer;
    writer.Put(head);
    writer.Put(none);
    writer.Put(none);
    writer.Put(m_title);
    writer.Put(m_points);
    writer.Put(m_face);
    for (const Control& control : m_controls)
    {
        writer.AlignToDoubleWord();
        writer.Put(control.head);
        writer.Put(control.windowClass);
        writer.Put(control.text);
        writer.Put(none);
    }
    m_memory = writer.Finish();
    return reinterpret_cast<LPCDLGTEMPLATE>(m_memory.data());
}
} // namespace owtest
