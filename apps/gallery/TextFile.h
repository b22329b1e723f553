#pragma once
// Texts in files, as UTF-8.

#include <afxwin.h>

/// A file, or its first `nMost` bytes. Throws CFileException.
CString ReadText(const CString& strPath, UINT nMost = INT_MAX);

/// Makes or replaces a file. Throws CFileException.
void WriteText(const CString& strPath, const CString& strText);

/// Does something with a file, and tells the user if that fails.
template <class Use>
void TryWithFile(Use use)
{
    try
    {
        use();
    }
    catch (CFileException* pException)
    {
        pException->ReportError(MB_ICONWARNING);
        pException->Delete();
    }
}
