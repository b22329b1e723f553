// CStdioFile: buffered text files over run-time library streams.

#include "filesys.h"

#include <fcntl.h>
#include <io.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace
{
int StreamFlagsOf(UINT nOpenFlags)
{
    const int nAccess[] = {_O_RDONLY, _O_WRONLY, _O_RDWR, _O_RDONLY};
    return nAccess[nOpenFlags & 3] | ((nOpenFlags & CFile::typeBinary) != 0 ? _O_BINARY : _O_TEXT);
}

/// The mode does not create or truncate: the file is open already.
CString StreamModeOf(UINT nOpenFlags)
{
    LPCTSTR const lpszAccess[] = {L"r", L"w", L"r+", L"r"};
    return CString(lpszAccess[nOpenFlags & 3]) + ((nOpenFlags & CFile::typeBinary) != 0 ? L"b" : L"t");
}

HANDLE SystemHandleOf(FILE* pStream)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(pStream)));
}
} // namespace

// ---------------------------------------------------------------------------------------------------------
// Opening and closing

CStdioFile::CStdioFile() : m_pStream(nullptr), m_bBinary(FALSE), m_chPending(0)
{
}

CStdioFile::CStdioFile(FILE* pOpenStream)
    : CFile(hFileNull), m_pStream(pOpenStream), m_bBinary(FALSE), m_chPending(0)
{
    m_hFile = SystemHandleOf(pOpenStream);
}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CStdioFile()
{
    CFileException e;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &e))
        AfxThrowFileException(e.m_cause, e.m_lOsError, e.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    if (m_bCloseOnDelete)
        CStdioFile::Abort(); // a destructor has nobody to tell of a failure
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    m_pStream = nullptr;
    m_bBinary = (nOpenFlags & typeBinary) != 0;
    m_chPending = 0;
    if (!CFile::Open(lpszFileName, nOpenFlags & ~UINT(typeText), pError))
        return FALSE;

    const int nDescriptor = _open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), StreamFlagsOf(nOpenFlags));
    if (nDescriptor != -1)
        m_pStream = _wfdopen(nDescriptor, StreamModeOf(nOpenFlags));
    if (m_pStream == nullptr)
    {
        const int nError = errno;
        if (nDescriptor != -1)
        {
            _close(nDescriptor); // and with it the handle
            m_hFile = hFileNull;
        }
        CFile::Abort();
        return AfxFailOpen(pError, CFileException::ErrnoToException(nError), LONG(_doserrno), lpszFileName);
    }
    return TRUE;
}

void CStdioFile::Abort()
{
    if (m_pStream != nullptr && m_bCloseOnDelete)
        fclose(m_pStream);
    m_pStream = nullptr;
    m_hFile = hFileNull; // went with the stream
    CFile::Abort();
}

void CStdioFile::Flush()
{
    if (m_pStream != nullptr && fflush(m_pStream) != 0)
        AfxThrowFileException(CFileException::diskFull, LONG(_doserrno), m_strFileName);
}

void CStdioFile::Close()
{
    const bool bClosed = m_pStream == nullptr || fclose(m_pStream) == 0;
    const LONG lOsError = LONG(_doserrno);
    const CString strFileName = m_strFileName;
    m_pStream = nullptr;
    m_hFile = hFileNull; // went with the stream
    CFile::Close();
    if (!bClosed)
        AfxThrowFileException(CFileException::diskFull, lOsError, strFileName);
}

// ---------------------------------------------------------------------------------------------------------
// Text

void CStdioFile::WriteString(LPCTSTR lpsz)
{
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    if (m_bBinary)
    {
        WriteBytes(lpsz, UINT(_tcslen(lpsz) * sizeof(TCHAR)), CFileException::diskFull);
    }
    else
    {
        const CStringA strText(lpsz);
        WriteBytes(strText, UINT(strText.GetLength()), CFileException::diskFull);
    }
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax)
{
    if (lpsz == nullptr || nMax == 0)
        AfxThrowInvalidArgException();
    UINT nLength = 0;
    while (nLength < nMax - 1 && ReadCharacter(lpsz[nLength]))
        if (lpsz[nLength++] == '\n')
            break;
    lpsz[nLength] = 0;
    return nLength > 0 || nMax == 1 ? lpsz : nullptr;
}

BOOL CStdioFile::ReadString(CString& rString)
{
    rString.Empty();
    TCHAR szPart[256];
    BOOL bRead = FALSE;
    while (ReadString(szPart, UINT(_countof(szPart))) != nullptr)
    {
        bRead = TRUE;
        rString += szPart;
        if (rString[rString.GetLength() - 1] == '\n')
        {
            rString.Truncate(rString.GetLength() - 1);
            break;
        }
    }
    return bRead;
}

/// One UTF-16 code unit. False at the end of the file.
bool CStdioFile::ReadCharacter(TCHAR& ch)
{
    if (m_chPending != 0)
    {
        ch = m_chPending;
        m_chPending = 0;
        return true;
    }
    if (m_bBinary)
        return Read(&ch, sizeof(ch)) == sizeof(ch);
    return ReadAnsiCharacter(ch);
}

/// Reads bytes until they make a character of the ANSI code page. One that takes two units leaves the second
/// one pending; bytes that never make a character come out as the system's substitute for them.
bool CStdioFile::ReadAnsiCharacter(TCHAR& ch)
{
    constexpr int nMaxBytes = 4;
    char bytes[nMaxBytes];
    TCHAR units[nMaxBytes] = {};
    int nBytes = 0;
    int nUnits = 0;
    while (nUnits == 0 && nBytes < nMaxBytes && Read(&bytes[nBytes], 1) == 1)
    {
        ++nBytes;
        nUnits = ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes, nBytes, units, nMaxBytes);
    }
    if (nBytes == 0)
        return false;
    if (nUnits == 0)
        ::MultiByteToWideChar(CP_ACP, 0, bytes, nBytes, units, nMaxBytes);
    ch = units[0];
    m_chPending = units[1];
    return true;
}

// ---------------------------------------------------------------------------------------------------------
// Bytes

UINT CStdioFile::Read(void* lpBuf, UINT nCount)
{
    const size_t nRead = nCount > 0 ? fread(lpBuf, 1, nCount, m_pStream) : 0;
    if (nRead == 0 && nCount > 0 && !feof(m_pStream))
    {
        const LONG lOsError = LONG(_doserrno);
        clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, lOsError, m_strFileName);
    }
    return UINT(nRead);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount)
{
    WriteBytes(lpBuf, nCount, CFileException::genericException);
}

void CStdioFile::WriteBytes(const void* lpBuf, UINT nCount, int causeOfFailure)
{
    if (fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
        AfxThrowFileException(causeOfFailure, LONG(_doserrno), m_strFileName);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    m_chPending = 0;
    if (_fseeki64(m_pStream, lOff, int(nFrom)) != 0)
        AfxThrowFileException(CFileException::badSeek, LONG(_doserrno), m_strFileName);
    return CStdioFile::GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const
{
    const LONGLONG nPosition = _ftelli64(m_pStream);
    if (nPosition < 0)
        AfxThrowFileException(CFileException::invalidFile, LONG(_doserrno), m_strFileName);
    return ULONGLONG(nPosition);
}

void CStdioFile::SetLength(ULONGLONG dwNewLen)
{
    Flush();
    Seek(LONGLONG(dwNewLen), begin);
    Flush();
    if (_chsize_s(_fileno(m_pStream), LONGLONG(dwNewLen)) != 0)
        AfxThrowFileException(CFileException::diskFull, LONG(_doserrno), m_strFileName);
}

ULONGLONG CStdioFile::GetLength() const
{
    if (fflush(m_pStream) != 0) // what is still in the stream's buffer counts as well
        AfxThrowFileException(CFileException::diskFull, LONG(_doserrno), m_strFileName);
    const LONGLONG nLength = _filelengthi64(_fileno(m_pStream));
    if (nLength < 0)
        AfxThrowFileException(CFileException::badSeek, LONG(_doserrno), m_strFileName);
    return ULONGLONG(nLength);
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::Dump(CDumpContext& dc) const
{
    CFile::Dump(dc);
    dc << "m_pStream = " << static_cast<const void*>(m_pStream) << "\n";
}
