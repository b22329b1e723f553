#pragma once
// What a control answers that keeps its text itself and not in its window.

#include <afxwin.h>

#include <cwchar>

/// Answers WM_GETTEXT: copies the text into a buffer with `nChars` places, cut if it does not fit, always
/// with a terminator. The answer is the length of what stands there; 0 without a buffer or without a place in
/// it.
inline LRESULT gfnCopyKeptText(const CString& strText, wchar_t* pszBuffer, size_t nChars)
{
    if (!pszBuffer || nChars == 0)
        return 0;
    std::wcsncpy(pszBuffer, strText, nChars);
    pszBuffer[nChars - 1] = L'\0';
    return static_cast<LRESULT>(std::wcslen(pszBuffer));
}
