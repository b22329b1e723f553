#pragma once
// Numbers with a point for the run-time library's readers, which go by the locale of the process.

#include <afxwin.h>

/// A text as those readers want it: the locale's decimal sign stands for the point, and where it stood itself
/// the text ends.
class CLocalNumber
{
public:
    explicit CLocalNumber(const wchar_t* pszText);
    operator const wchar_t*() const { return m_pszText; }

private:
    CString m_strLocal; ///< only if the locale has another decimal sign
    const wchar_t* m_pszText;
};
