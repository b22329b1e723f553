// CStringT: both character types are compiled from here.

#include <afxwin.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>

#include "stringchars.h"

namespace
{
template <typename CH>
void CopyText(CH* pDest, const CH* pSrc, int nLength)
{
    if (nLength > 0)
        memmove(pDest, pSrc, size_t(nLength) * sizeof(CH));
}

// ---------------------------------------------------------------------------------------------------------
// Buffers

/// What empty strings point to. It is never written to, counted or freed.
template <typename CH>
struct NilData
{
    CStringData header;
    CH chTerminator;
};

template <typename CH>
constinit NilData<CH> nilData = {{0, 0, 2}, 0};

template <typename CH>
CStringData* GetNilData()
{
    return &nilData<CH>.header;
}

bool IsNilData(const CStringData* pData)
{
    return pData == GetNilData<char>() || pData == GetNilData<wchar_t>();
}

/// A buffer with one owner for nCapacity characters, whose text is still to be set.
template <typename CH>
CStringData* AllocData(int nCapacity)
{
    if (nCapacity < 0)
        AfxThrowInvalidArgException();
    const size_t nBytes = sizeof(CStringData) + (size_t(nCapacity) + 1) * sizeof(CH);
    CStringData* const pData = static_cast<CStringData*>(malloc(nBytes));
    if (pData == nullptr)
        AfxThrowMemoryException();
    *pData = {0, nCapacity, 1};
    return pData;
}

template <typename CH>
CH* TextOf(CStringData* pData)
{
    return static_cast<CH*>(pData->data());
}

template <typename CH>
void SetTextLength(CStringData* pData, int nLength)
{
    pData->nDataLength = nLength;
    TextOf<CH>(pData)[nLength] = 0;
}

void AddRef(CStringData* pData)
{
    if (!IsNilData(pData))
        ::InterlockedIncrement(&pData->nRefs);
}

void Release(CStringData* pData)
{
    // A locked buffer has a count below zero and goes with its only owner.
    if (!IsNilData(pData) && ::InterlockedDecrement(&pData->nRefs) <= 0)
        free(pData);
}

/// Room to allocate for text that grows step by step: double what there was, but not past what counts allow.
int GrownCapacity(int nOldCapacity, int nNeeded)
{
    return nOldCapacity > INT_MAX / 2 ? nNeeded : std::max(nNeeded, nOldCapacity * 2);
}

int AddLengths(int nLength1, int nLength2)
{
    if (nLength1 > INT_MAX - nLength2)
        AfxThrowMemoryException();
    return nLength1 + nLength2;
}

// ---------------------------------------------------------------------------------------------------------
// String resources

HRSRC FindStringBlock(HINSTANCE hInstance, UINT nID, const WORD* pLanguageID)
{
    const LPCWSTR lpBlock = MAKEINTRESOURCEW(nID / 16 + 1);
    return pLanguageID != nullptr
               ? ::FindResourceExW(hInstance, MAKEINTRESOURCEW(6), lpBlock, *pLanguageID) // RT_STRING
               : ::FindResourceW(hInstance, lpBlock, MAKEINTRESOURCEW(6));
}

/// A string of a module: blocks of sixteen, each string led by its length. Null if it is missing or empty.
LPCWSTR FindStringResource(HINSTANCE hInstance, UINT nID, const WORD* pLanguageID, int& nLength)
{
    const HRSRC hBlock = FindStringBlock(hInstance, nID, pLanguageID);
    const HGLOBAL hGlobal = hBlock != nullptr ? ::LoadResource(hInstance, hBlock) : nullptr;
    const WCHAR* pString = hGlobal != nullptr ? static_cast<const WCHAR*>(::LockResource(hGlobal)) : nullptr;
    if (pString == nullptr)
        return nullptr;
    const WCHAR* const pEnd = pString + ::SizeofResource(hInstance, hBlock) / sizeof(WCHAR);
    for (UINT nSkip = nID % 16; nSkip > 0 && pString < pEnd; --nSkip)
        pString += *pString + 1;
    if (pString >= pEnd || *pString == 0 || *pString >= pEnd - pString)
        return nullptr;
    nLength = *pString;
    return pString + 1;
}

template <typename CH>
BOOL LoadInto(CStringT<CH>& str, HINSTANCE hInstance, UINT nID, const WORD* pLanguageID)
{
    int nLength = 0;
    const LPCWSTR pch = FindStringResource(hInstance, nID, pLanguageID, nLength);
    if (pch == nullptr)
        return FALSE;
    str = CStringT<CH>(pch, nLength);
    return TRUE;
}

template <typename CH>
void CheckText(const CH* psz)
{
    if (psz == nullptr)
        AfxThrowInvalidArgException();
}
} // namespace

// ---------------------------------------------------------------------------------------------------------
// Buffer

template <typename BaseType>
CStringData* CStringT<BaseType>::GetData() const noexcept
{
    return reinterpret_cast<CStringData*>(m_pszData) - 1;
}

template <typename BaseType>
void CStringT<BaseType>::Attach(CStringData* pData) noexcept
{
    m_pszData = TextOf<XCHAR>(pData);
}

/// Changes over to a new buffer, which stays locked if the old one was.
template <typename BaseType>
void CStringT<BaseType>::ReplaceData(CStringData* pNewData) noexcept
{
    CStringData* const pOldData = GetData();
    if (pOldData->IsLocked())
        pNewData->nRefs = -1;
    Attach(pNewData);
    Release(pOldData);
}

/// Makes the buffer this string's own, with room for at least nCapacity characters and the present text.
template <typename BaseType>
typename CStringT<BaseType>::PXSTR CStringT<BaseType>::PrepareWrite(int nCapacity)
{
    if (nCapacity < 0)
        AfxThrowInvalidArgException();
    const CStringData* const pOldData = GetData();
    const bool bFits = nCapacity <= pOldData->nAllocLength;
    if (pOldData->IsShared() || !bFits)
    {
        const int nLength = pOldData->nDataLength;
        const int nRoom = bFits || pOldData->nAllocLength == 0
                              ? std::max(nCapacity, nLength)
                              : GrownCapacity(pOldData->nAllocLength, nCapacity);
        CStringData* const pNewData = AllocData<XCHAR>(nRoom);
        CopyText(TextOf<XCHAR>(pNewData), m_pszData, nLength);
        SetTextLength<XCHAR>(pNewData, nLength);
        ReplaceData(pNewData);
    }
    return m_pszData;
}

template <typename BaseType>
void CStringT<BaseType>::SetLength(int nLength)
{
    CStringData* const pData = GetData();
    if (nLength < 0 || nLength > pData->nAllocLength)
        AfxThrowInvalidArgException();
    if (!IsNilData(pData))
        SetTextLength<XCHAR>(pData, nLength);
}

// ---------------------------------------------------------------------------------------------------------
// Construction and assignment

template <typename BaseType>
CStringT<BaseType>::CStringT() noexcept
{
    Attach(GetNilData<XCHAR>());
}

template <typename BaseType>
CStringT<BaseType>::CStringT(const CStringT& strSrc) : CStringT()
{
    if (strSrc.GetData()->IsLocked())
    {
        SetString(strSrc, strSrc.GetLength());
    }
    else
    {
        AddRef(strSrc.GetData());
        m_pszData = strSrc.m_pszData;
    }
}

template <typename BaseType>
CStringT<BaseType>::CStringT(CStringT&& strSrc) noexcept : CStringT()
{
    strSrc.UnlockBuffer();
    std::swap(m_pszData, strSrc.m_pszData);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(PCXSTR pszSrc) : CStringT()
{
    if (!LoadIfResource(pszSrc))
        SetString(pszSrc);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(PCYSTR pszSrc) : CStringT()
{
    if (!LoadIfResource(pszSrc))
        *this = pszSrc;
}

template <typename BaseType>
CStringT<BaseType>::CStringT(const unsigned char* pszSrc) : CStringT(reinterpret_cast<const char*>(pszSrc))
{
}

template <typename BaseType>
CStringT<BaseType>::CStringT(char ch, int nLength) : CStringT()
{
    CStringT strOne;
    strOne = ch;
    if (nLength > 0 && !strOne.IsEmpty())
        std::fill_n(GetBufferSetLength(nLength), nLength, strOne[0]);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(wchar_t ch, int nLength) : CStringT()
{
    CStringT strOne;
    strOne = ch;
    for (int i = 0; i < nLength; ++i)
        *this += strOne; // one wide character may take several narrow ones
}

template <typename BaseType>
CStringT<BaseType>::CStringT(PCXSTR pch, int nLength) : CStringT()
{
    SetString(pch, nLength);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(PCYSTR pch, int nLength) : CStringT()
{
    if (nLength < 0 || (pch == nullptr && nLength > 0))
        AfxThrowInvalidArgException();
    SetConverted(pch, nLength);
}

template <typename BaseType>
CStringT<BaseType>::~CStringT() noexcept
{
    Release(GetData());
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(const CStringT& strSrc)
{
    CStringData* const pSrcData = strSrc.GetData();
    if (pSrcData == GetData())
        return *this;
    if (GetData()->IsLocked() || pSrcData->IsLocked())
    {
        SetString(strSrc, strSrc.GetLength());
    }
    else
    {
        AddRef(pSrcData);
        Release(GetData());
        Attach(pSrcData);
    }
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(CStringT&& strSrc)
{
    if (GetData()->IsLocked() || strSrc.GetData()->IsLocked())
        return *this = static_cast<const CStringT&>(strSrc); // a lock stays with its string and its buffer
    std::swap(m_pszData, strSrc.m_pszData);
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(PCXSTR pszSrc)
{
    SetString(pszSrc);
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(PCYSTR pszSrc)
{
    SetConverted(pszSrc, pszSrc != nullptr ? int(AfxText::Length(pszSrc)) : 0);
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(const unsigned char* pszSrc)
{
    return *this = reinterpret_cast<const char*>(pszSrc);
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(char ch)
{
    const char szText[] = {ch, 0};
    return *this = szText;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator=(wchar_t ch)
{
    const wchar_t szText[] = {ch, 0};
    return *this = szText;
}

template <typename BaseType>
bool CStringT<BaseType>::LoadIfResource(const void* pszSrc)
{
    if (pszSrc == nullptr || !IS_INTRESOURCE(pszSrc))
        return false;
    const UINT nID = LOWORD(reinterpret_cast<DWORD_PTR>(pszSrc));
    if (!LoadString(nID))
        TRACE(L"Warning: there is no string resource %u.\n", nID);
    return true;
}

template <typename BaseType>
void CStringT<BaseType>::SetConverted(PCYSTR pch, int nLength)
{
    const int nNewLength = nLength > 0 ? AfxText::ConvertText(pch, nLength, PXSTR(nullptr), 0) : 0;
    if (nNewLength == 0)
    {
        Empty();
        return;
    }
    PXSTR const pBuffer = GetBuffer(nNewLength);
    AfxText::ConvertText(pch, nLength, pBuffer, nNewLength);
    SetLength(nNewLength);
}

// ---------------------------------------------------------------------------------------------------------
// The whole string

template <typename BaseType>
int CStringT<BaseType>::GetLength() const noexcept
{
    return GetData()->nDataLength;
}

template <typename BaseType>
bool CStringT<BaseType>::IsEmpty() const noexcept
{
    return GetLength() == 0;
}

template <typename BaseType>
void CStringT<BaseType>::Empty() noexcept
{
    CStringData* const pData = GetData();
    if (pData->IsLocked())
    {
        SetTextLength<XCHAR>(pData, 0);
    }
    else
    {
        Release(pData);
        Attach(GetNilData<XCHAR>());
    }
}

template <typename BaseType>
typename CStringT<BaseType>::PCXSTR CStringT<BaseType>::GetString() const noexcept
{
    return m_pszData;
}

template <typename BaseType>
CStringT<BaseType>::operator PCXSTR() const noexcept
{
    return m_pszData;
}

template <typename BaseType>
void CStringT<BaseType>::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

/// Here and in Append the source may be a part of this string: the old buffer goes only after it was copied.
template <typename BaseType>
void CStringT<BaseType>::SetString(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == nullptr && nLength > 0))
        AfxThrowInvalidArgException();
    if (nLength == 0)
    {
        Empty();
        return;
    }
    CStringData* pData = GetData();
    const bool bInPlace = !pData->IsShared() && nLength <= pData->nAllocLength;
    CStringData* const pTarget = bInPlace ? pData : AllocData<XCHAR>(nLength);
    CopyText<XCHAR>(TextOf<XCHAR>(pTarget), pszSrc, nLength);
    SetTextLength<XCHAR>(pTarget, nLength);
    if (!bInPlace)
        ReplaceData(pTarget);
}

template <typename BaseType>
typename CStringT<BaseType>::XCHAR CStringT<BaseType>::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
        AfxThrowInvalidArgException();
    return m_pszData[iChar];
}

template <typename BaseType>
typename CStringT<BaseType>::XCHAR CStringT<BaseType>::operator[](int iChar) const
{
    return GetAt(iChar);
}

template <typename BaseType>
void CStringT<BaseType>::SetAt(int iChar, XCHAR ch)
{
    if (iChar < 0 || iChar >= GetLength())
        AfxThrowInvalidArgException();
    GetBuffer()[iChar] = ch;
}

// ---------------------------------------------------------------------------------------------------------
// Appending

template <typename BaseType>
void CStringT<BaseType>::Append(PCXSTR pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

template <typename BaseType>
void CStringT<BaseType>::Append(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == nullptr && nLength > 0))
        AfxThrowInvalidArgException();
    if (nLength == 0)
        return;
    CStringData* const pData = GetData();
    const int nOldLength = pData->nDataLength;
    const int nNewLength = AddLengths(nOldLength, nLength);
    const bool bInPlace = !pData->IsShared() && nNewLength <= pData->nAllocLength;
    CStringData* const pTarget = bInPlace ? pData : AllocData<XCHAR>(GrownCapacity(nOldLength, nNewLength));
    CopyText<XCHAR>(TextOf<XCHAR>(pTarget), m_pszData, nOldLength);
    CopyText<XCHAR>(TextOf<XCHAR>(pTarget) + nOldLength, pszSrc, nLength);
    SetTextLength<XCHAR>(pTarget, nNewLength);
    if (!bInPlace)
        ReplaceData(pTarget);
}

template <typename BaseType>
void CStringT<BaseType>::Append(const CStringT& strSrc)
{
    Append(strSrc, strSrc.GetLength());
}

template <typename BaseType>
void CStringT<BaseType>::AppendChar(XCHAR ch)
{
    Append(&ch, 1);
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator+=(const CStringT& str)
{
    Append(str);
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator+=(PCYSTR pszSrc)
{
    return *this += CStringT(pszSrc);
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator+=(char ch)
{
    return *this += CStringT(ch);
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::operator+=(wchar_t ch)
{
    CStringT str;
    str = ch;
    return *this += str;
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Concatenate(PCXSTR pch1, int nLength1, PCXSTR pch2, int nLength2)
{
    CStringT str;
    str.Preallocate(AddLengths(nLength1, nLength2));
    str.Append(pch1, nLength1);
    str.Append(pch2, nLength2);
    return str;
}

// ---------------------------------------------------------------------------------------------------------
// Comparison

template <typename BaseType>
int CStringT<BaseType>::Compare(PCXSTR psz) const
{
    CheckText(psz);
    return AfxText::CompareText(m_pszData, psz);
}

template <typename BaseType>
int CStringT<BaseType>::CompareNoCase(PCXSTR psz) const
{
    CheckText(psz);
    return AfxText::CompareTextNoCase(m_pszData, psz);
}

template <typename BaseType>
int CStringT<BaseType>::Collate(PCXSTR psz) const
{
    CheckText(psz);
    return AfxText::CollateText(m_pszData, psz);
}

template <typename BaseType>
int CStringT<BaseType>::CollateNoCase(PCXSTR psz) const
{
    CheckText(psz);
    return AfxText::CollateTextNoCase(m_pszData, psz);
}

template <typename BaseType>
bool CStringT<BaseType>::EqualsChar(XCHAR ch) const noexcept
{
    return GetLength() == 1 && m_pszData[0] == ch;
}

// ---------------------------------------------------------------------------------------------------------
// Parts

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Mid(int iFirst, int nCount) const
{
    const int nFirst = std::clamp(iFirst, 0, GetLength());
    const int nLength = std::clamp(nCount, 0, GetLength() - nFirst);
    return nLength == GetLength() ? *this : CStringT(m_pszData + nFirst, nLength);
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Left(int nCount) const
{
    return Mid(0, nCount);
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Right(int nCount) const
{
    return Mid(GetLength() - std::clamp(nCount, 0, GetLength()));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::SpanIncluding(PCXSTR pszCharSet) const
{
    CheckText(pszCharSet);
    return Left(int(AfxText::SpanOf(m_pszData, pszCharSet)));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::SpanExcluding(PCXSTR pszCharSet) const
{
    CheckText(pszCharSet);
    return Left(int(AfxText::SpanNotOf(m_pszData, pszCharSet)));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    if (iStart < 0)
        AfxThrowInvalidArgException();
    static const XCHAR szNone[] = {0};
    PCXSTR const pszSeparators = pszTokens != nullptr ? pszTokens : szNone;
    const int nFrom = std::min(iStart, GetLength());
    const int nFirst = nFrom + int(AfxText::SpanOf(m_pszData + nFrom, pszSeparators));
    if (nFirst >= GetLength())
    {
        iStart = -1;
        return CStringT();
    }
    const int nLength = int(AfxText::SpanNotOf(m_pszData + nFirst, pszSeparators));
    iStart = nFirst + nLength + 1;
    return Mid(nFirst, nLength);
}

// ---------------------------------------------------------------------------------------------------------
// Changes in place

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::MakeUpper()
{
    AfxText::UpperCase(GetBuffer());
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::MakeLower()
{
    AfxText::LowerCase(GetBuffer());
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::MakeReverse()
{
    PXSTR const pBuffer = GetBuffer();
    std::reverse(pBuffer, pBuffer + GetLength());
    return *this;
}

template <typename BaseType>
template <typename PREDICATE>
void CStringT<BaseType>::TrimLeftIf(PREDICATE isTarget)
{
    int nTargets = 0;
    while (nTargets < GetLength() && isTarget(m_pszData[nTargets]))
        ++nTargets;
    Delete(0, nTargets);
}

template <typename BaseType>
template <typename PREDICATE>
void CStringT<BaseType>::TrimRightIf(PREDICATE isTarget)
{
    int nLength = GetLength();
    while (nLength > 0 && isTarget(m_pszData[nLength - 1]))
        --nLength;
    Truncate(nLength);
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimLeft()
{
    TrimLeftIf([](XCHAR ch) { return AfxText::IsSpace(ch); });
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimLeft(XCHAR chTarget)
{
    TrimLeftIf([chTarget](XCHAR ch) { return ch == chTarget; });
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimLeft(PCXSTR pszTargets)
{
    if (pszTargets != nullptr)
    {
        TrimLeftIf([pszTargets](XCHAR ch)
                   { return ch != 0 && AfxText::FindChar(pszTargets, ch) != nullptr; });
    }
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimRight()
{
    TrimRightIf([](XCHAR ch) { return AfxText::IsSpace(ch); });
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimRight(XCHAR chTarget)
{
    TrimRightIf([chTarget](XCHAR ch) { return ch == chTarget; });
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimRight(PCXSTR pszTargets)
{
    if (pszTargets != nullptr)
    {
        TrimRightIf([pszTargets](XCHAR ch)
                    { return ch != 0 && AfxText::FindChar(pszTargets, ch) != nullptr; });
    }
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::Trim()
{
    return TrimRight().TrimLeft();
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::Trim(XCHAR chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::Trim(PCXSTR pszTargets)
{
    return TrimRight(pszTargets).TrimLeft(pszTargets);
}

template <typename BaseType>
void CStringT<BaseType>::Truncate(int nNewLength)
{
    if (nNewLength < GetLength())
    {
        PrepareWrite(nNewLength);
        SetLength(nNewLength);
    }
}

template <typename BaseType>
int CStringT<BaseType>::Replace(XCHAR chOld, XCHAR chNew)
{
    int nReplaced = 0;
    if (chOld != chNew)
    {
        for (int i = 0; i < GetLength(); ++i)
        {
            if (m_pszData[i] == chOld)
            {
                SetAt(i, chNew);
                ++nReplaced;
            }
        }
    }
    return nReplaced;
}

template <typename BaseType>
int CStringT<BaseType>::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const int nOldLength = StringLength(pszOld);
    if (nOldLength == 0)
        return 0;
    const int nNewLength = StringLength(pszNew);
    CStringT strResult;
    int nReplaced = 0;
    int nDone = 0;
    for (int nHit = Find(pszOld); nHit >= 0; nHit = Find(pszOld, nDone))
    {
        strResult.Append(m_pszData + nDone, nHit - nDone);
        strResult.Append(pszNew, nNewLength);
        nDone = nHit + nOldLength;
        ++nReplaced;
    }
    if (nReplaced > 0)
    {
        strResult.Append(m_pszData + nDone, GetLength() - nDone);
        *this = static_cast<CStringT&&>(strResult);
    }
    return nReplaced;
}

template <typename BaseType>
int CStringT<BaseType>::Remove(XCHAR chRemove)
{
    const int nOldLength = GetLength();
    if (Find(chRemove) < 0)
        return 0;
    PXSTR const pBuffer = GetBuffer();
    SetLength(int(std::remove(pBuffer, pBuffer + nOldLength, chRemove) - pBuffer));
    return nOldLength - GetLength();
}

template <typename BaseType>
int CStringT<BaseType>::Insert(int iIndex, XCHAR ch)
{
    const XCHAR szText[] = {ch, 0};
    return Insert(iIndex, szText);
}

template <typename BaseType>
int CStringT<BaseType>::Insert(int iIndex, PCXSTR psz)
{
    const int nIndex = std::clamp(iIndex, 0, GetLength());
    if (StringLength(psz) > 0)
    {
        CStringT strResult = Concatenate(m_pszData, nIndex, psz, StringLength(psz));
        strResult.Append(m_pszData + nIndex, GetLength() - nIndex);
        *this = static_cast<CStringT&&>(strResult);
    }
    return GetLength();
}

template <typename BaseType>
int CStringT<BaseType>::Delete(int iIndex, int nCount)
{
    const int nIndex = std::clamp(iIndex, 0, GetLength());
    const int nDeleted = std::clamp(nCount, 0, GetLength() - nIndex);
    if (nDeleted > 0)
    {
        PXSTR const pBuffer = GetBuffer();
        const int nTail = nIndex + nDeleted;
        CopyText<XCHAR>(pBuffer + nIndex, pBuffer + nTail, GetLength() - nTail);
        SetLength(GetLength() - nDeleted);
    }
    return GetLength();
}

// ---------------------------------------------------------------------------------------------------------
// Searching

template <typename BaseType>
int CStringT<BaseType>::Find(XCHAR ch, int iStart) const noexcept
{
    if (iStart < 0 || iStart >= GetLength())
        return -1;
    PCXSTR const pszHit = AfxText::FindChar(m_pszData + iStart, ch);
    return pszHit != nullptr ? int(pszHit - m_pszData) : -1;
}

template <typename BaseType>
int CStringT<BaseType>::Find(PCXSTR pszSub, int iStart) const noexcept
{
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength())
        return -1;
    PCXSTR const pszHit = AfxText::FindText(m_pszData + iStart, pszSub);
    return pszHit != nullptr ? int(pszHit - m_pszData) : -1;
}

template <typename BaseType>
int CStringT<BaseType>::FindOneOf(PCXSTR pszCharSet) const noexcept
{
    const int nHit = pszCharSet != nullptr ? int(AfxText::SpanNotOf(m_pszData, pszCharSet)) : GetLength();
    return nHit < GetLength() ? nHit : -1;
}

template <typename BaseType>
int CStringT<BaseType>::ReverseFind(XCHAR ch) const noexcept
{
    PCXSTR const pszHit = ch != 0 ? AfxText::FindLastChar(m_pszData, ch) : nullptr;
    return pszHit != nullptr ? int(pszHit - m_pszData) : -1;
}

// ---------------------------------------------------------------------------------------------------------
// Formatting

template <typename BaseType>
void CStringT<BaseType>::FormatV(PCXSTR pszFormat, va_list args)
{
    CheckText(pszFormat);
    va_list argsToMeasure;
    va_copy(argsToMeasure, args);
    const int nLength = AfxText::FormattedLength(pszFormat, argsToMeasure);
    va_end(argsToMeasure);
    if (nLength < 0)
        AfxThrowInvalidArgException();
    CStringT strResult; // this string may be one of the arguments
    AfxText::FormatText(strResult.GetBuffer(nLength), nLength + 1, pszFormat, args);
    strResult.SetLength(nLength);
    *this = static_cast<CStringT&&>(strResult);
}

template <typename BaseType>
void CStringT<BaseType>::AppendFormatV(PCXSTR pszFormat, va_list args)
{
    CStringT strAdded;
    strAdded.FormatV(pszFormat, args);
    Append(strAdded);
}

template <typename BaseType>
void CStringT<BaseType>::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    CheckText(pszFormat);
    PXSTR pszText = nullptr;
    const DWORD nLength = AfxText::FormatSystemText(pszFormat, &pszText, pArgList);
    if (nLength == 0 && ::GetLastError() == ERROR_NOT_ENOUGH_MEMORY)
        AfxThrowMemoryException();
    const std::unique_ptr<void, HLOCAL(WINAPI*)(HLOCAL)> memory(pszText, &::LocalFree);
    SetString(pszText, int(nLength));
}

template <typename BaseType>
void AFX_CDECL CStringT<BaseType>::FormatVarArgs(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

template <typename BaseType>
void AFX_CDECL CStringT<BaseType>::AppendFormatVarArgs(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

template <typename BaseType>
void AFX_CDECL CStringT<BaseType>::FormatMessageVarArgs(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::LoadFormat(UINT nFormatID)
{
    CStringT strFormat;
    VERIFY(strFormat.LoadString(nFormatID));
    return strFormat;
}

// ---------------------------------------------------------------------------------------------------------
// Sources outside the program

template <typename BaseType>
BOOL CStringT<BaseType>::LoadString(UINT nID)
{
    const HINSTANCE hInstance = AfxFindStringResourceHandle(nID);
    return hInstance != nullptr && LoadString(hInstance, nID);
}

template <typename BaseType>
BOOL CStringT<BaseType>::LoadString(HINSTANCE hInstance, UINT nID)
{
    return LoadInto(*this, hInstance, nID, nullptr);
}

template <typename BaseType>
BOOL CStringT<BaseType>::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    return LoadInto(*this, hInstance, nID, &wLanguageID);
}

template <typename BaseType>
BOOL CStringT<BaseType>::GetEnvironmentVariable(PCXSTR pszVar)
{
    CheckText(pszVar);
    Empty();
    const DWORD nSize = AfxText::ReadEnvironment(pszVar, nullptr, 0); // with the terminator
    if (nSize == 0)
        return FALSE;
    ReleaseBufferSetLength(int(AfxText::ReadEnvironment(pszVar, GetBuffer(int(nSize)), nSize)));
    return TRUE;
}

template <typename BaseType>
BSTR CStringT<BaseType>::AllocSysString() const
{
    const CStringW strWide(m_pszData, GetLength());
    const BSTR bstr = ::SysAllocStringLen(strWide, UINT(strWide.GetLength()));
    if (bstr == nullptr)
        AfxThrowMemoryException();
    return bstr;
}

template <typename BaseType>
BSTR CStringT<BaseType>::SetSysString(BSTR* pbstr) const
{
    const CStringW strWide(m_pszData, GetLength());
    if (!::SysReAllocStringLen(pbstr, strWide, UINT(strWide.GetLength())))
        AfxThrowMemoryException();
    return *pbstr;
}

// ---------------------------------------------------------------------------------------------------------
// Direct access

template <typename BaseType>
typename CStringT<BaseType>::PXSTR CStringT<BaseType>::GetBuffer()
{
    return PrepareWrite(GetLength());
}

template <typename BaseType>
typename CStringT<BaseType>::PXSTR CStringT<BaseType>::GetBuffer(int nMinBufferLength)
{
    return PrepareWrite(nMinBufferLength);
}

template <typename BaseType>
typename CStringT<BaseType>::PXSTR CStringT<BaseType>::GetBufferSetLength(int nLength)
{
    PrepareWrite(nLength);
    SetLength(nLength);
    return m_pszData;
}

template <typename BaseType>
void CStringT<BaseType>::ReleaseBuffer(int nNewLength)
{
    SetLength(nNewLength == -1 ? StringLength(m_pszData) : nNewLength);
}

template <typename BaseType>
void CStringT<BaseType>::ReleaseBufferSetLength(int nNewLength)
{
    SetLength(nNewLength);
}

template <typename BaseType>
typename CStringT<BaseType>::PXSTR CStringT<BaseType>::LockBuffer()
{
    PXSTR const pBuffer = GetBuffer();
    GetData()->nRefs = -1;
    return pBuffer;
}

template <typename BaseType>
void CStringT<BaseType>::UnlockBuffer() noexcept
{
    if (GetData()->IsLocked())
        GetData()->nRefs = 1;
}

template <typename BaseType>
void CStringT<BaseType>::FreeExtra()
{
    const int nLength = GetLength();
    if (nLength == GetAllocLength())
        return;
    if (nLength == 0)
    {
        Empty();
        return;
    }
    CStringData* const pNewData = AllocData<XCHAR>(nLength);
    CopyText<XCHAR>(TextOf<XCHAR>(pNewData), m_pszData, nLength);
    SetTextLength<XCHAR>(pNewData, nLength);
    ReplaceData(pNewData);
}

template <typename BaseType>
void CStringT<BaseType>::Preallocate(int nLength)
{
    PrepareWrite(nLength);
}

template <typename BaseType>
int CStringT<BaseType>::GetAllocLength() const noexcept
{
    return GetData()->nAllocLength;
}

template <typename BaseType>
int CStringT<BaseType>::StringLength(PCXSTR psz) noexcept
{
    return psz != nullptr ? int(AfxText::Length(psz)) : 0;
}

template <typename BaseType>
void CStringT<BaseType>::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept
{
    CopyText<XCHAR>(pchDest, pchSrc, nChars);
}

template <typename BaseType>
void CStringT<BaseType>::CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept
{
    CopyText<XCHAR>(pchDest, pchSrc, nChars);
}

template class CStringT<wchar_t>;
template class CStringT<char>;
