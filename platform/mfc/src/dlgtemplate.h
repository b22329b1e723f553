#pragma once
// Dialog templates in memory.

#include <afxwin.h>

/// The head of the extended form, as far as it is looked at.
struct CExtendedHead
{
    static constexpr WORD mark = 0xFFFF;

    WORD version;
    WORD signature; ///< `mark` in this form
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD items;
    short x, y, cx, cy;
};

/// The style of a template of either form.
DWORD StyleOf(LPCDLGTEMPLATE dialogTemplate);

/// The font that a template asks for.
struct CTemplateFont
{
    CString face;
    WORD points = 0; ///< 0: the template names none
};

CTemplateFont FontOf(LPCDLGTEMPLATE dialogTemplate);

/// A copy of a template with another font.
std::vector<DWORD> WithFont(LPCDLGTEMPLATE dialogTemplate, const CTemplateFont& font);
