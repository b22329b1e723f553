#pragma once
// State that a device context keeps twice.

#include <afxwin_gdi.h>

/// Sets something in the output context and in the attribute context, where the two differ, and answers what
/// the attribute context said, or `failure` if there is no context at all.
template <class Result, class Setter>
Result InBoth(const CDC& dc, Setter set, Result failure = Result())
{
    Result result = failure;
    if (dc.m_hDC != dc.m_hAttribDC)
        result = set(dc.m_hDC);
    if (dc.m_hAttribDC != nullptr)
        result = set(dc.m_hAttribDC);
    return result;
}
