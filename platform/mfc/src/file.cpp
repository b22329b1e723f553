// CFile: files over system handles.

#include "filesys.h"

#include <shlwapi.h>

#include <memory>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

CString AfxFullPath(LPCTSTR lpszPath)
{
    const DWORD nSize = ::GetFullPathName(lpszPath, 0, nullptr, nullptr); // with the terminator
    if (nSize == 0)
        return lpszPath;
    CString strFullPath;
    const DWORD nLength = ::GetFullPathName(lpszPath, nSize, strFullPath.GetBuffer(int(nSize)), nullptr);
    strFullPath.ReleaseBufferSetLength(nLength < nSize ? int(nLength) : 0);
    return strFullPath;
}

BOOL AfxFailOpen(CFileException* pError, int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    if (pError != nullptr)
    {
        pError->m_cause = cause;
        pError->m_lOsError = lOsError;
        pError->m_strFileName = lpszFileName;
    }
    return FALSE;
}

namespace
{
DWORD AccessOf(UINT nOpenFlags)
{
    switch (nOpenFlags & 3)
    {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

/// Sharing that is not mentioned is exclusive.
DWORD ShareModeOf(UINT nOpenFlags)
{
    switch (nOpenFlags & 0x70)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD CreationOf(UINT nOpenFlags)
{
    if ((nOpenFlags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (nOpenFlags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT nOpenFlags)
{
    DWORD dwAttributes = FILE_ATTRIBUTE_NORMAL;
    if ((nOpenFlags & CFile::osNoBuffer) != 0)
        dwAttributes |= FILE_FLAG_NO_BUFFERING;
    if ((nOpenFlags & CFile::osWriteThrough) != 0)
        dwAttributes |= FILE_FLAG_WRITE_THROUGH;
    if ((nOpenFlags & CFile::osRandomAccess) != 0)
        dwAttributes |= FILE_FLAG_RANDOM_ACCESS;
    if ((nOpenFlags & CFile::osSequentialScan) != 0)
        dwAttributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return dwAttributes;
}

void ThrowIfFailed(BOOL bSucceeded, LPCTSTR lpszFileName)
{
    if (!bSucceeded)
        CFileException::ThrowOsError(LONG(::GetLastError()), lpszFileName);
}
} // namespace

// ---------------------------------------------------------------------------------------------------------
// Opening and closing

CFile::CFile() : CFile(hFileNull)
{
}

CFile::CFile(HANDLE hFile) : m_hFile(hFile), m_bCloseOnDelete(FALSE)
{
}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CFile()
{
    CFileException e;
    if (!CFile::Open(lpszFileName, nOpenFlags, &e))
        AfxThrowFileException(e.m_cause, e.m_lOsError, e.m_strFileName);
}

CFile::~CFile()
{
    if (m_bCloseOnDelete)
        CFile::Abort(); // a destructor has nobody to tell of a failure
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    m_bCloseOnDelete = FALSE;
    m_hFile = hFileNull;
    m_strFileName = AfxFullPath(lpszFileName);

    SECURITY_ATTRIBUTES security = {sizeof(security), nullptr, (nOpenFlags & modeNoInherit) == 0};
    const HANDLE hFile = ::CreateFile(lpszFileName, AccessOf(nOpenFlags), ShareModeOf(nOpenFlags), &security,
                                      CreationOf(nOpenFlags), AttributesOf(nOpenFlags), nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        const LONG lOsError = LONG(::GetLastError());
        return AfxFailOpen(pError, CFileException::OsErrorToException(lOsError), lOsError, lpszFileName);
    }
    m_hFile = hFile;
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

CFile* CFile::Duplicate() const
{
    const HANDLE hProcess = ::GetCurrentProcess();
    HANDLE hFile = nullptr;
    ThrowIfFailed(::DuplicateHandle(hProcess, m_hFile, hProcess, &hFile, 0, FALSE, DUPLICATE_SAME_ACCESS),
                  m_strFileName);
    std::unique_ptr<CFile> pFile(new CFile(hFile));
    pFile->m_bCloseOnDelete = TRUE;
    pFile->m_strFileName = m_strFileName;
    return pFile.release();
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
    {
        ::CloseHandle(m_hFile);
        m_hFile = hFileNull;
    }
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

void CFile::Flush()
{
    if (m_hFile != hFileNull)
        ThrowIfFailed(::FlushFileBuffers(m_hFile), m_strFileName);
}

void CFile::Close()
{
    const BOOL bClosed = m_hFile == hFileNull || ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    ThrowIfFailed(bClosed, nullptr);
}

// ---------------------------------------------------------------------------------------------------------
// Contents

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    DWORD dwRead = 0;
    if (nCount > 0)
        ThrowIfFailed(::ReadFile(m_hFile, lpBuf, nCount, &dwRead, nullptr), m_strFileName);
    return dwRead;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    DWORD dwWritten = 0;
    ThrowIfFailed(::WriteFile(m_hFile, lpBuf, nCount, &dwWritten, nullptr), m_strFileName);
    if (dwWritten != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    LARGE_INTEGER offset;
    LARGE_INTEGER position;
    offset.QuadPart = lOff;
    ThrowIfFailed(::SetFilePointerEx(m_hFile, offset, &position, nFrom), m_strFileName);
    return ULONGLONG(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER position;
    ThrowIfFailed(::SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT), m_strFileName);
    return ULONGLONG(position.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    Seek(LONGLONG(dwNewLen), begin);
    ThrowIfFailed(::SetEndOfFile(m_hFile), m_strFileName);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER length;
    ThrowIfFailed(::GetFileSizeEx(m_hFile, &length), m_strFileName);
    return ULONGLONG(length.QuadPart);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    ThrowIfFailed(::LockFile(m_hFile, DWORD(dwPos), DWORD(dwPos >> 32), DWORD(dwCount), DWORD(dwCount >> 32)),
                  m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    ThrowIfFailed(
        ::UnlockFile(m_hFile, DWORD(dwPos), DWORD(dwPos >> 32), DWORD(dwCount), DWORD(dwCount >> 32)),
        m_strFileName);
}

// ---------------------------------------------------------------------------------------------------------
// Names and status

CString CFile::GetFileName() const
{
    return ::PathFindFileName(m_strFileName);
}

CString CFile::GetFileTitle() const
{
    const CString strName = GetFileName();
    return strName.Left(int(::PathFindExtension(strName) - strName.GetString()));
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const
{
    rStatus = CFileStatus{};
    lstrcpyn(rStatus.m_szFullName, m_strFileName, int(_countof(rStatus.m_szFullName)));
    if (m_hFile != hFileNull)
    {
        rStatus.m_size = GetLength();
        const DWORD dwAttributes = ::GetFileAttributes(m_strFileName);
        rStatus.m_attribute = dwAttributes != INVALID_FILE_ATTRIBUTES ? BYTE(dwAttributes) : BYTE(0);
    }
    return TRUE;
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus)
{
    rStatus = CFileStatus{};
    lstrcpyn(rStatus.m_szFullName, AfxFullPath(lpszFileName), int(_countof(rStatus.m_szFullName)));
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesEx(lpszFileName, GetFileExInfoStandard, &data))
        return FALSE;
    rStatus.m_size = ULONGLONG(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    rStatus.m_attribute = BYTE(data.dwFileAttributes);
    return TRUE;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName)
{
    ThrowIfFailed(::MoveFile(lpszOldName, lpszNewName), lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName)
{
    ThrowIfFailed(::DeleteFile(lpszFileName), lpszFileName);
}

// ---------------------------------------------------------------------------------------------------------
// Diagnostics

void CFile::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_hFile != nullptr);
}

void CFile::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with handle " << m_hFile << " and name \"" << m_strFileName.GetString() << "\"\n";
}
