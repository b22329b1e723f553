#pragma once
// For the grid's own sources: the fields of one line of a text file, as they are read in place.
//
//     wchar_t szLine[CTextFields::kLineSize] = {};
//     while (file.ReadString(szLine, CTextFields::kLineSize))
//     {
//         CTextFields fields(szLine, L',');
//         while (const LPCWSTR pszField = fields.Next())
//             ...
//     }
//
// Fields are not quoted: each ends before the next separator or line feed, and may be empty.
//
// Behind the last field of a line without a line feed the search goes on, in what an earlier and longer line
// has left in the buffer: a file's last line should end in a line feed. That is how the files in use are read,
// and it stays.

#include <afxwin.h>

class CTextFields
{
public:
    /// Characters of a line, with its terminator. A longer one is read in pieces, each a line.
    static constexpr int kLineSize = 1024;

    /// The line is changed, and keeps its separators no longer.
    CTextFields(wchar_t (&szLine)[kLineSize], wchar_t chSeparator)
        : m_pszNext(szLine), m_pszEnd(szLine + kLineSize), m_chSeparator(chSeparator)
    {
    }

    /// The next field; null when there is none any more.
    LPCWSTR Next()
    {
        if (m_pszNext >= m_pszEnd)
            return nullptr;
        wchar_t* const pszField = m_pszNext;
        wchar_t* psz = pszField;
        while (*psz && *psz != m_chSeparator && *psz != L'\n')
            ++psz; // the buffer's last character is 0
        if (!*psz && psz == pszField)
            return nullptr;
        *psz = 0;
        m_pszNext = psz + 1;
        return pszField;
    }

private:
    wchar_t* m_pszNext;
    wchar_t* m_pszEnd;
    wchar_t m_chSeparator;
};
