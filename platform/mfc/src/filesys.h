#pragma once
// Helpers that the file classes share.

#include <afx.h>

/// The absolute form of a path; the path itself where the system gives none.
CString AfxFullPath(LPCTSTR lpszPath);

/// Fills in an exception that a caller gave, if any. Answers FALSE, for the caller to hand on.
BOOL AfxFailOpen(CFileException* pError, int cause, LONG lOsError, LPCTSTR lpszFileName);
