// CMemFile: files in memory.

#include <afx.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes)
    : m_nGrowBytes(nGrowBytes), m_nPosition(0), m_nBufferSize(0), m_nFileSize(0), m_lpBuffer(nullptr),
      m_bAutoDelete(TRUE)
{
}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : CMemFile(nGrowBytes)
{
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

/// A block that may grow is only a place to write to: the file starts empty.
void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    CMemFile::Close();
    m_nGrowBytes = nGrowBytes;
    m_nBufferSize = nBufferSize;
    m_nFileSize = nGrowBytes == 0 ? nBufferSize : 0;
    m_lpBuffer = lpBuffer;
    m_bAutoDelete = FALSE;
}

BYTE* CMemFile::Detach()
{
    BYTE* const lpBuffer = m_lpBuffer;
    m_lpBuffer = nullptr;
    m_nPosition = m_nBufferSize = m_nFileSize = 0;
    return lpBuffer;
}

// ---------------------------------------------------------------------------------------------------------
// Memory

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes)
{
    return static_cast<BYTE*>(memcpy(lpMemTarget, lpMemSource, nBytes));
}

/// Makes room for dwNewLen bytes. Memory of the file's own is resized; an attached block is the caller's and
/// is left behind as it is.
void CMemFile::GrowFile(SIZE_T dwNewLen)
{
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0)
        AfxThrowFileException(CFileException::diskFull);
    const SIZE_T nSteps = (dwNewLen - m_nBufferSize + m_nGrowBytes - 1) / m_nGrowBytes;
    const SIZE_T nNewSize = m_nBufferSize + nSteps * m_nGrowBytes;
    const bool bOwn = m_lpBuffer != nullptr && m_bAutoDelete;
    BYTE* const lpNew = bOwn ? Realloc(m_lpBuffer, nNewSize) : Alloc(nNewSize);
    if (lpNew == nullptr)
        AfxThrowMemoryException();
    if (!bOwn && m_nFileSize > 0)
        Memcpy(lpNew, m_lpBuffer, m_nFileSize);
    m_lpBuffer = lpNew;
    m_nBufferSize = nNewSize;
    m_bAutoDelete = TRUE;
}

// ---------------------------------------------------------------------------------------------------------
// File operations

UINT CMemFile::Read(void* lpBuf, UINT nCount)
{
    const SIZE_T nLeft = m_nPosition < m_nFileSize ? m_nFileSize - m_nPosition : 0;
    const UINT nRead = UINT(std::min<SIZE_T>(nCount, nLeft));
    if (nRead > 0)
    {
        Memcpy(static_cast<BYTE*>(lpBuf), m_lpBuffer + m_nPosition, nRead);
        m_nPosition += nRead;
    }
    return nRead;
}

void CMemFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    const SIZE_T nEnd = m_nPosition + nCount;
    if (nEnd > m_nFileSize)
        SetLength(nEnd);
    Memcpy(m_lpBuffer + m_nPosition, static_cast<const BYTE*>(lpBuf), nCount);
    m_nPosition = nEnd;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    LONGLONG nPosition = lOff;
    if (nFrom == current)
        nPosition += LONGLONG(m_nPosition);
    else if (nFrom == end)
        nPosition += LONGLONG(m_nFileSize);
    if (nPosition < 0 || nFrom > end)
        AfxThrowFileException(CFileException::badSeek);
    m_nPosition = SIZE_T(nPosition);
    return m_nPosition;
}

/// Bytes that the file gains are zero.
void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    const SIZE_T nNewSize = SIZE_T(dwNewLen);
    GrowFile(nNewSize);
    if (nNewSize > m_nFileSize)
        memset(m_lpBuffer + m_nFileSize, 0, nNewSize - m_nFileSize);
    m_nFileSize = nNewSize;
    m_nPosition = std::min(m_nPosition, m_nFileSize);
}

BOOL CMemFile::GetStatus(CFileStatus& rStatus) const
{
    rStatus = CFileStatus{};
    rStatus.m_size = m_nFileSize;
    return TRUE;
}

void CMemFile::Flush()
{
}

void CMemFile::Close()
{
    BYTE* const lpBuffer = Detach();
    m_nGrowBytes = 0;
    if (lpBuffer != nullptr && m_bAutoDelete)
        Free(lpBuffer);
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_nFileSize <= m_nBufferSize);
    ASSERT(m_lpBuffer != nullptr || m_nBufferSize == 0);
}

void CMemFile::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with " << ULONGLONG(m_nFileSize) << " of " << ULONGLONG(m_nBufferSize) << " bytes in use\n";
}
