#pragma once
// Texts in files, as UTF-8.

#include <afxwin.h>

/// The beginning of a file, up to 64 KiB. Throws CFileException.
CString ReadText(const CString& strPath);

/// Makes or replaces a file. Throws CFileException.
void WriteText(const CString& strPath, const CString& strText);
