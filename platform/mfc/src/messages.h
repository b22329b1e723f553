#pragma once
// Texts that the library brings along itself, in place of string resources: what exceptions say.

#include <afx.h>

/// Numbers of the texts, in the range that string resources of programs do not use.
enum AfxMessageId : UINT
{
    AFX_IDP_FILE_NONE = 0xF1A0, ///< the first of a row in the order of CFileException's causes
    AFX_IDS_MEMORY_EXCEPTION = 0xF1C0,
    AFX_IDS_NOT_SUPPORTED_EXCEPTION,
    AFX_IDS_RESOURCE_EXCEPTION,
    AFX_IDS_USER_EXCEPTION,
    AFX_IDS_INVALID_ARG_EXCEPTION,
    AFX_IDP_NO_ERROR_AVAILABLE,
    AFX_IDS_UNNAMED_FILE
};

/// The text of that number, or null.
LPCTSTR AfxFindMessage(UINT nID);
