// Dialog templates in memory: a head, three names, the font, and the controls from the next double word on.

#include "dlgtemplate.h"

namespace
{
constexpr size_t extendedHeadSize = 26; // bytes; the structure is padded at its end
constexpr size_t plainHeadSize = sizeof(DLGTEMPLATE);

/// Where the parts of a template stand.
class CTemplateParts
{
public:
    explicit CTemplateParts(LPCDLGTEMPLATE dialogTemplate)
        : m_bytes(reinterpret_cast<const BYTE*>(dialogTemplate))
    {
        const auto& extended = *reinterpret_cast<const CExtendedHead*>(m_bytes);
        m_isExtended = extended.signature == CExtendedHead::mark;
        style = StyleOf(dialogTemplate);
        items = m_isExtended ? extended.items : dialogTemplate->cdit;
        font = m_isExtended ? extendedHeadSize : plainHeadSize;
        for (int name = 0; name < 3; ++name) // menu, class, caption
            font += NameSize(font);
        controls = font;
        if ((style & DS_SETFONT) != 0)
            controls += FontNumbersSize() + NameSize(font + FontNumbersSize());
    }

    bool IsExtended() const { return m_isExtended; }
    size_t FontNumbersSize() const
    {
        return (m_isExtended ? 3 : 1) * sizeof(WORD);
    } ///< what precedes the face
    const BYTE* At(size_t offset) const { return m_bytes + offset; }
    static size_t Aligned(size_t offset) { return (offset + 3) & ~size_t{3}; }

    /// The end of the template, behind its last control.
    size_t End() const
    {
        size_t end = controls;
        for (int item = 0; item < items; ++item)
        {
            end = Aligned(end) + (m_isExtended ? 24 : sizeof(DLGITEMTEMPLATE));
            end += NameSize(end); // class
            end += NameSize(end); // text
            WORD data;            // bytes of creation data; the plain form counts the word of the size too
            memcpy(&data, At(end), sizeof data);
            end += m_isExtended ? sizeof data + data : (data > sizeof data ? data : sizeof data);
        }
        return end;
    }

    DWORD style;
    int items;
    size_t font;     ///< where the font stands, or would stand
    size_t controls; ///< where the controls stand, but for alignment

private:
    /// The bytes of a name: a text, or 0xFFFF and a number.
    size_t NameSize(size_t offset) const
    {
        const auto* const name = reinterpret_cast<const wchar_t*>(At(offset));
        return name[0] == 0xFFFF ? 2 * sizeof(WORD) : (wcslen(name) + 1) * sizeof(wchar_t);
    }

    const BYTE* m_bytes;
    bool m_isExtended;
};
} // namespace

DWORD StyleOf(LPCDLGTEMPLATE dialogTemplate)
{
    const auto& extended = *reinterpret_cast<const CExtendedHead*>(dialogTemplate);
    return extended.signature == CExtendedHead::mark ? extended.style : dialogTemplate->style;
}

CTemplateFont FontOf(LPCDLGTEMPLATE dialogTemplate)
{
    CTemplateFont found;
    const CTemplateParts parts(dialogTemplate);
    if ((parts.style & DS_SETFONT) == 0)
        return found;
    memcpy(&found.points, parts.At(parts.font), sizeof found.points);
    found.face = reinterpret_cast<LPCWSTR>(parts.At(parts.font + parts.FontNumbersSize()));
    return found;
}

std::vector<DWORD> WithFont(LPCDLGTEMPLATE dialogTemplate, const CTemplateFont& font)
{
    const CTemplateParts parts(dialogTemplate);
    const size_t faceSize = (static_cast<size_t>(font.face.GetLength()) + 1) * sizeof(wchar_t);
    const size_t controls = CTemplateParts::Aligned(parts.font + parts.FontNumbersSize() + faceSize);
    const size_t oldControls = CTemplateParts::Aligned(parts.controls);
    const size_t end = parts.items > 0 ? parts.End() : oldControls;

    std::vector<DWORD> made((controls + end - oldControls) / sizeof(DWORD) + 1);
    BYTE* const bytes = reinterpret_cast<BYTE*>(made.data());
    memcpy(bytes, dialogTemplate, parts.font);
    memcpy(bytes + controls, parts.At(oldControls), end - oldControls);
    const DWORD style = parts.style | DS_SETFONT;
    memcpy(bytes + (parts.IsExtended() ? offsetof(CExtendedHead, style) : 0), &style, sizeof style);
    const WORD numbers[] = {font.points, FW_NORMAL, MAKEWORD(FALSE, DEFAULT_CHARSET)}; // upright
    memcpy(bytes + parts.font, numbers, parts.FontNumbersSize());
    memcpy(bytes + parts.font + parts.FontNumbersSize(), font.face.GetString(), faceSize);
    return made;
}
