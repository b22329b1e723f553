#pragma once
#define __AFXSTR_H__ // asked for by the headers that wizards make
// CString: a value string over a shared, reference-counted buffer.
//
//     CString strName(_T("grid"));
//     CString strCopy = strName;                       // shares the characters, copies nothing
//     strCopy.Format(_T("%s_%d"), strName, 3);         // a CString may be passed to a format directly
//     ::SetWindowText(hWnd, strCopy);                  // converts to LPCTSTR
//
// - Lengths and indices count characters of the string's own type (UTF-16 code units for CStringW).
// - Copies share one buffer until one of them is written to; reference counts are atomic, so strings that
//   share a buffer may live in different threads. One CString object must not be used by two threads at once.
// - Text of the other character type is converted through the ANSI code page (CP_ACP).
// - Format strings follow the Microsoft run-time library: in a wide format %s is wide and %S is narrow.
// - A bad argument (index out of range, negative length, null format) throws CInvalidArgException, an
//   allocation that fails throws CMemoryException; the string then keeps its former value.

#include "afxver_.h"

#include <windows.h>
#include <oleauto.h>
#include <tchar.h>

#include <cstdarg>

/// Header in front of the characters of a string buffer. The characters follow it directly.
struct CStringData
{
    int nDataLength;  ///< characters in use, without the terminator
    int nAllocLength; ///< characters that fit, without the terminator
    long nRefs;       ///< owners of the buffer; below zero: locked, owned by one string and never shared

    void* data() noexcept { return this + 1; }
    const void* data() const noexcept { return this + 1; }
    bool IsLocked() const noexcept { return nRefs < 0; }
    bool IsShared() const noexcept { return nRefs > 1; }
};

template <typename BaseType>
class ChTraitsBase;

/// The types of a string: X is the string's own character type, Y the other one.
template <>
class ChTraitsBase<char>
{
public:
    typedef char XCHAR;
    typedef LPSTR PXSTR;
    typedef LPCSTR PCXSTR;
    typedef wchar_t YCHAR;
    typedef LPWSTR PYSTR;
    typedef LPCWSTR PCYSTR;
};

template <>
class ChTraitsBase<wchar_t>
{
public:
    typedef wchar_t XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;
    typedef char YCHAR;
    typedef LPSTR PYSTR;
    typedef LPCSTR PCYSTR;
};

template <typename BaseType>
class CStringT;

/// What is handed to a C variable argument list in place of a value: a string goes as a pointer to its
/// characters, anything else as itself.
template <typename TYPE>
inline const TYPE& AfxVarArg(const TYPE& value)
{
    return value;
}
template <typename BaseType>
inline const BaseType* AfxVarArg(const CStringT<BaseType>& str)
{
    return str.GetString();
}

template <typename BaseType>
class AFX_CORE_CLASS CStringT
{
public:
    typedef typename ChTraitsBase<BaseType>::XCHAR XCHAR;
    typedef typename ChTraitsBase<BaseType>::PXSTR PXSTR;
    typedef typename ChTraitsBase<BaseType>::PCXSTR PCXSTR;
    typedef typename ChTraitsBase<BaseType>::YCHAR YCHAR;
    typedef typename ChTraitsBase<BaseType>::PYSTR PYSTR;
    typedef typename ChTraitsBase<BaseType>::PCYSTR PCYSTR;

    /// Construction. A pointer made by MAKEINTRESOURCE loads the string resource of that id; a null pointer
    /// gives an empty string.
    CStringT() noexcept;
    CStringT(const CStringT& strSrc);
    CStringT(CStringT&& strSrc) noexcept;
    CStringT(PCXSTR pszSrc);
    CStringT(PCYSTR pszSrc);
    CStringT(const unsigned char* pszSrc);
    explicit CStringT(char ch, int nLength = 1);
    explicit CStringT(wchar_t ch, int nLength = 1);
    CStringT(PCXSTR pch, int nLength);
    CStringT(PCYSTR pch, int nLength);
    ~CStringT() noexcept;

    CStringT& operator=(const CStringT& strSrc);
    CStringT& operator=(CStringT&& strSrc);
    CStringT& operator=(PCXSTR pszSrc);
    CStringT& operator=(PCYSTR pszSrc);
    CStringT& operator=(const unsigned char* pszSrc);
    CStringT& operator=(char ch);
    CStringT& operator=(wchar_t ch);

    /// The whole string.
    int GetLength() const noexcept;
    bool IsEmpty() const noexcept;
    void Empty() noexcept;
    PCXSTR GetString() const noexcept;
    operator PCXSTR() const noexcept;
    void SetString(PCXSTR pszSrc);
    void SetString(PCXSTR pszSrc, int nLength);

    /// Single characters. GetAt and operator[] also accept the index of the terminator.
    XCHAR GetAt(int iChar) const;
    XCHAR operator[](int iChar) const;
    void SetAt(int iChar, XCHAR ch);

    /// Appending.
    void Append(PCXSTR pszSrc);
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CStringT& strSrc);
    void AppendChar(XCHAR ch);
    CStringT& operator+=(const CStringT& str);
    CStringT& operator+=(PCXSTR pszSrc);
    CStringT& operator+=(PCYSTR pszSrc);
    CStringT& operator+=(char ch);
    CStringT& operator+=(wchar_t ch);

    /// Comparison: negative, zero or positive. Compare goes by code units, Collate by the run-time library's
    /// locale, which also says what upper and lower case are.
    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const;
    int Collate(PCXSTR psz) const;
    int CollateNoCase(PCXSTR psz) const;

    /// Parts. Counts that reach past the end are cut, negative ones count as zero.
    CStringT Mid(int iFirst) const;
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Left(int nCount) const;
    CStringT Right(int nCount) const;
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    CStringT SpanExcluding(PCXSTR pszCharSet) const;

    /// The next token from iStart on, which is moved behind it. When no token is left the answer is empty and
    /// iStart becomes -1. Separators in a row count as one. Without separators the rest is one token.
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    /// Changes in place.
    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);
    CStringT& Trim();
    CStringT& Trim(XCHAR chTarget);
    CStringT& Trim(PCXSTR pszTargets);
    void Truncate(int nNewLength);

    /// Replace and Remove answer the number of changes, Insert and Delete the new length.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    int Remove(XCHAR chRemove);
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    int Delete(int iIndex, int nCount = 1);

    /// Searching: the index of the first hit, or -1.
    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int FindOneOf(PCXSTR pszCharSet) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;

    /// Formatting. The string may be an argument of its own format.
    template <typename... ARGS>
    void AFX_CDECL Format(PCXSTR pszFormat, ARGS... args)
    {
        FormatVarArgs(pszFormat, AfxVarArg(args)...);
    }
    template <typename... ARGS>
    void AFX_CDECL Format(UINT nFormatID, ARGS... args)
    {
        FormatVarArgs(LoadFormat(nFormatID), AfxVarArg(args)...);
    }
    template <typename... ARGS>
    void AFX_CDECL AppendFormat(PCXSTR pszFormat, ARGS... args)
    {
        AppendFormatVarArgs(pszFormat, AfxVarArg(args)...);
    }
    template <typename... ARGS>
    void AFX_CDECL AppendFormat(UINT nFormatID, ARGS... args)
    {
        AppendFormatVarArgs(LoadFormat(nFormatID), AfxVarArg(args)...);
    }
    void FormatV(PCXSTR pszFormat, va_list args);
    void AppendFormatV(PCXSTR pszFormat, va_list args);

    /// Formatting with the system's numbered inserts (%1, %2!d!, ...).
    template <typename... ARGS>
    void AFX_CDECL FormatMessage(PCXSTR pszFormat, ARGS... args)
    {
        FormatMessageVarArgs(pszFormat, AfxVarArg(args)...);
    }
    template <typename... ARGS>
    void AFX_CDECL FormatMessage(UINT nFormatID, ARGS... args)
    {
        FormatMessageVarArgs(LoadFormat(nFormatID), AfxVarArg(args)...);
    }
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);

    /// Sources outside the program. On failure the answer is FALSE; LoadString then leaves the string alone
    /// and GetEnvironmentVariable empties it.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    /// A copy as a BSTR. The caller owns it.
    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* pbstr) const;

    /// Direct access to the buffer. The pointer is good until the next change of the string; a change of
    /// length has to be told with ReleaseBuffer. A locked buffer is not shared with copies made meanwhile.
    PXSTR GetBuffer();
    PXSTR GetBuffer(int nMinBufferLength);
    PXSTR GetBufferSetLength(int nLength);
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    PXSTR LockBuffer();
    void UnlockBuffer() noexcept;
    void FreeExtra();
    void Preallocate(int nLength);
    int GetAllocLength() const noexcept;

    /// Zero for null.
    static int StringLength(PCXSTR psz) noexcept;
    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;

    friend CStringT operator+(const CStringT& str1, const CStringT& str2)
    {
        return Concatenate(str1, str1.GetLength(), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, PCXSTR psz2)
    {
        return Concatenate(str1, str1.GetLength(), psz2, StringLength(psz2));
    }
    friend CStringT operator+(PCXSTR psz1, const CStringT& str2)
    {
        return Concatenate(psz1, StringLength(psz1), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, PCYSTR psz2) { return str1 + CStringT(psz2); }
    friend CStringT operator+(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) + str2; }
    friend CStringT operator+(const CStringT& str1, char ch2) { return str1 + CStringT(ch2); }
    friend CStringT operator+(const CStringT& str1, wchar_t ch2) { return str1 + CStringT(ch2); }
    friend CStringT operator+(char ch1, const CStringT& str2) { return CStringT(ch1) + str2; }
    friend CStringT operator+(wchar_t ch1, const CStringT& str2) { return CStringT(ch1) + str2; }

// clang-format off
#define AFX_STRING_COMPARISON(op)                                                       \
    friend bool operator op(const CStringT& str1, const CStringT& str2)                 \
    {                                                                                   \
        return str1.Compare(str2) op 0;                                                 \
    }                                                                                   \
    friend bool operator op(const CStringT& str1, PCXSTR psz2)                          \
    {                                                                                   \
        return str1.Compare(psz2) op 0;                                                 \
    }                                                                                   \
    friend bool operator op(PCXSTR psz1, const CStringT& str2)                          \
    {                                                                                   \
        return 0 op str2.Compare(psz1);                                                 \
    }                                                                                   \
    friend bool operator op(const CStringT& str1, PCYSTR psz2)                          \
    {                                                                                   \
        return str1.Compare(CStringT(psz2)) op 0;                                       \
    }                                                                                   \
    friend bool operator op(PCYSTR psz1, const CStringT& str2)                          \
    {                                                                                   \
        return 0 op str2.Compare(CStringT(psz1));                                       \
    }
    AFX_STRING_COMPARISON(==)
    AFX_STRING_COMPARISON(!=)
    AFX_STRING_COMPARISON(<)
    AFX_STRING_COMPARISON(>)
    AFX_STRING_COMPARISON(<=)
    AFX_STRING_COMPARISON(>=)
#undef AFX_STRING_COMPARISON
    // clang-format on

    friend bool operator==(XCHAR ch1, const CStringT& str2)
    {
        return str2.EqualsChar(ch1);
    }
    friend bool operator==(const CStringT& str1, XCHAR ch2)
    {
        return str1.EqualsChar(ch2);
    }
    friend bool operator!=(XCHAR ch1, const CStringT& str2)
    {
        return !str2.EqualsChar(ch1);
    }
    friend bool operator!=(const CStringT& str1, XCHAR ch2)
    {
        return !str1.EqualsChar(ch2);
    }

private:
    /// The characters, with a CStringData in front. It is the only member, so that a string has the size
    /// of a pointer.
    PXSTR m_pszData;

    CStringData* GetData() const noexcept;
    void Attach(CStringData* pData) noexcept;
    void ReplaceData(CStringData* pNewData) noexcept;
    PXSTR PrepareWrite(int nCapacity);
    void SetLength(int nLength);
    bool LoadIfResource(const void* pszSrc);
    void SetConverted(PCYSTR pch, int nLength);
    bool EqualsChar(XCHAR ch) const noexcept;
    template <typename PREDICATE>
    void TrimLeftIf(PREDICATE isTarget);
    template <typename PREDICATE>
    void TrimRightIf(PREDICATE isTarget);

    static CStringT Concatenate(PCXSTR pch1, int nLength1, PCXSTR pch2, int nLength2);
    static CStringT LoadFormat(UINT nFormatID);
    void AFX_CDECL FormatVarArgs(PCXSTR pszFormat, ...);
    void AFX_CDECL AppendFormatVarArgs(PCXSTR pszFormat, ...);
    void AFX_CDECL FormatMessageVarArgs(PCXSTR pszFormat, ...);
};

typedef CStringT<wchar_t> CStringW;
typedef CStringT<char> CStringA;
typedef CStringT<TCHAR> CString;

// The members are compiled once, in the library. None is inline: an instantiation does not export those.
extern template class CStringT<wchar_t>;
extern template class CStringT<char>;

static_assert(sizeof(CString) == sizeof(LPCTSTR), "a CString stands for its characters in argument lists");
