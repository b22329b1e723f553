// CFileException: causes of failed file operations from the codes of the system and the run-time library.

#include <afx.h>

#include "messages.h"

namespace
{
struct CauseOfError
{
    int nError;
    int cause;
};

constexpr CauseOfError causesOfSystemErrors[] = {
    {ERROR_SUCCESS, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_BAD_NETPATH, CFileException::badPath},
    {ERROR_BAD_NET_NAME, CFileException::badPath},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_SHARING_BUFFER_EXCEEDED, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_INVALID_ACCESS, CFileException::accessDenied},
    {ERROR_NETWORK_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_CANNOT_MAKE, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SEEK_ON_DEVICE, CFileException::badSeek},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_BAD_UNIT, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_SECTOR_NOT_FOUND, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_GEN_FAILURE, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_LOCK_FAILED, CFileException::lockViolation},
    {ERROR_NOT_LOCKED, CFileException::lockViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
};

constexpr CauseOfError causesOfErrno[] = {
    {0, CFileException::none},
    {ENOENT, CFileException::fileNotFound},
    {EACCES, CFileException::accessDenied},
    {EPERM, CFileException::accessDenied},
    {EROFS, CFileException::accessDenied},
    {EBADF, CFileException::invalidFile},
    {EDEADLOCK, CFileException::sharingViolation},
    {EMFILE, CFileException::tooManyOpenFiles},
    {ENFILE, CFileException::tooManyOpenFiles},
    {ENOSPC, CFileException::diskFull},
    {EINVAL, CFileException::badSeek},
    {EIO, CFileException::hardIO},
};

template <size_t COUNT>
int FindCause(const CauseOfError (&causes)[COUNT], int nError)
{
    for (const CauseOfError& entry : causes)
        if (entry.nError == nError)
            return entry.cause;
    return CFileException::genericException;
}
} // namespace

IMPLEMENT_DYNAMIC(CFileException, CException)

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName)
{
}

CFileException::~CFileException() = default;

int PASCAL CFileException::OsErrorToException(LONG lOsError)
{
    return FindCause(causesOfSystemErrors, int(lOsError));
}

int PASCAL CFileException::ErrnoToException(int nErrno)
{
    return FindCause(causesOfErrno, nErrno);
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName)
{
    if (lOsError != 0)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName)
{
    if (nErrno != 0)
        AfxThrowFileException(ErrnoToException(nErrno), LONG(_doserrno), lpszFileName);
}

void CFileException::Dump(CDumpContext& dc) const
{
    CException::Dump(dc);
    dc << "m_cause = " << m_cause << ", m_lOsError = " << m_lOsError << "\n";
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    const bool bKnown = m_cause >= none && m_cause <= endOfFile;
    LPCTSTR const lpszFormat = AfxFindMessage(AFX_IDP_FILE_NONE + UINT(bKnown ? m_cause : genericException));
    LPCTSTR const lpszFile =
        m_strFileName.IsEmpty() ? AfxFindMessage(AFX_IDS_UNNAMED_FILE) : m_strFileName.GetString();
    CString strMessage;
    AfxFormatStrings(strMessage, lpszFormat, &lpszFile, 1);
    lstrcpyn(lpszError, strMessage, int(nMaxError));
    return TRUE;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}
