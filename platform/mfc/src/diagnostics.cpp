// Assertions, traces, checks of addresses, and dumps.

#include <afx.h>

#include <cstdarg>
#include <cstdint>
#include <cstring>

// ---------------------------------------------------------------------------------------------------------
// Assertions

namespace
{
bool HasStandardError()
{
    const HANDLE hError = ::GetStdHandle(STD_ERROR_HANDLE);
    return hError != nullptr && hError != INVALID_HANDLE_VALUE;
}

void WriteStandardError(const CStringA& strText)
{
    DWORD dwWritten = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), strText, DWORD(strText.GetLength()), &dwWritten, nullptr);
}
} // namespace

/// Whether to break. Ignore in the message box means not to.
BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    CStringA strText;
    strText.Format("Assertion failed: file %s, line %d\n", lpszFileName, nLine);
    ::OutputDebugStringA(strText);
    if (HasStandardError())
    {
        WriteStandardError(strText);
        return TRUE;
    }
    const UINT nType = MB_ABORTRETRYIGNORE | MB_ICONHAND | MB_TASKMODAL | MB_SETFOREGROUND;
    const int nAnswer = ::MessageBoxA(nullptr, strText, "Assertion failed", nType);
    if (nAnswer == IDABORT)
        AfxAbort();
    return nAnswer != IDIGNORE;
}

void AFXAPI AfxDebugBreak()
{
    ::DebugBreak();
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine)
{
    const bool bReadable = pOb != nullptr && AfxIsValidAddress(pOb, sizeof(CObject), FALSE) &&
                           AfxIsValidAddress(*reinterpret_cast<void* const*>(pOb), sizeof(void*), FALSE);
    if (bReadable)
        pOb->AssertValid();
    else if (AfxAssertFailedLine(lpszFileName, nLine))
        AfxDebugBreak();
}

void AFXAPI AfxAbort()
{
    abort();
}

// ---------------------------------------------------------------------------------------------------------
// Traces

void AFX_CDECL AfxTraceVarArgs(LPCWSTR lpszFormat, ...)
{
    CStringW strText;
    va_list args;
    va_start(args, lpszFormat);
    strText.FormatV(lpszFormat, args);
    va_end(args);
    ::OutputDebugStringW(strText);
}

void AFX_CDECL AfxTraceVarArgs(LPCSTR lpszFormat, ...)
{
    CStringA strText;
    va_list args;
    va_start(args, lpszFormat);
    strText.FormatV(lpszFormat, args);
    va_end(args);
    ::OutputDebugStringA(strText);
}

// ---------------------------------------------------------------------------------------------------------
// Checks of addresses

namespace
{
constexpr DWORD dwWritable =
    PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
constexpr DWORD dwReadable = dwWritable | PAGE_READONLY | PAGE_EXECUTE_READ;

/// The end of the run of pages of one kind that p lies in, or null if they do not give the access asked for.
const BYTE* FindRegionEnd(const void* p, DWORD dwAccess)
{
    MEMORY_BASIC_INFORMATION info;
    if (::VirtualQuery(p, &info, sizeof(info)) == 0 || info.State != MEM_COMMIT ||
        (info.Protect & PAGE_GUARD) != 0 || (info.Protect & dwAccess) == 0)
        return nullptr;
    return static_cast<const BYTE*>(info.BaseAddress) + info.RegionSize;
}

template <typename CH>
BOOL IsReadableText(const CH* lpsz, int nLength)
{
    if (lpsz == nullptr)
        return FALSE;
    if (nLength >= 0)
        return AfxIsValidAddress(lpsz, UINT_PTR(nLength) * sizeof(CH), FALSE);
    const BYTE* pEnd = nullptr;
    for (;; ++lpsz)
    {
        // The last byte decides: a character may lie across two runs of pages.
        const BYTE* const pLast = reinterpret_cast<const BYTE*>(lpsz + 1) - 1;
        if (pLast >= pEnd)
        {
            if (FindRegionEnd(lpsz, dwReadable) == nullptr ||
                (pEnd = FindRegionEnd(pLast, dwReadable)) == nullptr)
                return FALSE;
        }
        CH character;
        std::memcpy(&character, lpsz, sizeof character); // the address may be odd
        if (character == 0)
            return TRUE;
    }
}
} // namespace

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite)
{
    if (lp == nullptr || nBytes > UINTPTR_MAX - reinterpret_cast<UINT_PTR>(lp))
        return FALSE;
    const BYTE* const pEnd = static_cast<const BYTE*>(lp) + nBytes;
    for (const BYTE* p = static_cast<const BYTE*>(lp); p < pEnd;)
    {
        p = FindRegionEnd(p, bReadWrite ? dwWritable : dwReadable);
        if (p == nullptr)
            return FALSE;
    }
    return TRUE;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength)
{
    return IsReadableText(lpsz, nLength);
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength)
{
    return IsReadableText(lpsz, nLength);
}

// ---------------------------------------------------------------------------------------------------------
// CDumpContext

CDumpContext afxDump;

void AFXAPI AfxDump(const CObject* pOb)
{
    afxDump << pOb;
}

CDumpContext::CDumpContext(CFile* pFile) : m_pFile(pFile), m_nDepth(0)
{
}

void CDumpContext::OutputString(LPCWSTR lpsz)
{
    if (m_pFile != nullptr)
        m_pFile->Write(lpsz, UINT(wcslen(lpsz) * sizeof(WCHAR)));
    else
        ::OutputDebugStringW(lpsz);
}

template <typename... ARGS>
static CString Formatted(LPCTSTR lpszFormat, ARGS... args)
{
    CString str;
    str.Format(lpszFormat, args...);
    return str;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz)
{
    return *this << static_cast<LPCWSTR>(lpsz != nullptr ? CStringW(lpsz) : CStringW(L"(nullptr)"));
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz)
{
    OutputString(lpsz != nullptr ? lpsz : L"(nullptr)");
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* lp)
{
    return *this << static_cast<LPCWSTR>(Formatted(L"$%p", lp));
}

CDumpContext& CDumpContext::operator<<(const CObject& ob)
{
    ob.Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(LONGLONG n)
{
    return *this << static_cast<LPCWSTR>(Formatted(L"%I64d", n));
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n)
{
    return *this << static_cast<LPCWSTR>(Formatted(L"%I64u", n));
}

CDumpContext& CDumpContext::DumpAsHex(ULONGLONG n)
{
    return *this << static_cast<LPCWSTR>(Formatted(L"0x%I64X", n));
}

CDumpContext& CDumpContext::operator<<(double d)
{
    return *this << static_cast<LPCWSTR>(Formatted(L"%g", d));
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth)
{
    for (int i = 0; i < nBytes; ++i)
    {
        if (i % nWidth == 0)
            *this << (i > 0 ? L"\n" : L"") << lpszLine;
        *this << static_cast<LPCWSTR>(Formatted(L" %02X", pby[i]));
    }
    *this << L"\n";
}

void CDumpContext::Flush()
{
    if (m_pFile != nullptr)
        m_pFile->Flush();
}
