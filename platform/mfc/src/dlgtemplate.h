#pragma once
// Dialog templates in memory.

#include <afxwin.h>

/// The font that a template asks for.
struct CTemplateFont
{
    CString face;
    WORD points = 0; ///< 0: the template names none
};

CTemplateFont FontOf(LPCDLGTEMPLATE dialogTemplate);

/// A copy of a template with another font.
std::vector<DWORD> WithFont(LPCDLGTEMPLATE dialogTemplate, const CTemplateFont& font);
