#include <afxwin.h>

#include "grid/GridAxis.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace
{
void CheckCount(LONGLONG nCount)
{
    if (nCount > CGridAxis::kMostItems)
        AfxThrowMemoryException();
}
} // namespace

void CGridAxis::SetSize(int nItem, int nSize)
{
    if (nSize == Size(nItem))
        return;
    Reserve(m_nCount);
    m_nExtent += nSize - Size(nItem);
    m_sizes[nItem] = static_cast<UINT>(nSize);
    SizesChangeFrom(nItem);
}

void CGridAxis::SetCount(int nCount, int nSizeOfNew)
{
    const bool bMore = nCount > m_nCount;
    m_nFixed = std::min(m_nFixed, nCount);
    if (nCount == 0)
        MakeAlike(0, 0);
    else if (bMore && StaysAlike(nSizeOfNew))
        MakeAlike(nCount, nSizeOfNew);
    else if (!bMore && m_bAlike)
        MakeAlike(nCount, m_nSizeOfAll);
    else if (bMore)
    {
        Reserve(nCount);
        for (int nItem = m_nCount; nItem < nCount; ++nItem)
            m_sizes[nItem] = static_cast<UINT>(nSizeOfNew);
        m_nExtent += static_cast<LONGLONG>(nCount - m_nCount) * nSizeOfNew;
        m_nCount = nCount;
    }
    else
    {
        m_nExtent = SumTo(nCount);
        m_nSummed = std::min(m_nSummed, nCount);
        m_sizes.SetSize(nCount);
        m_sums.SetSize(INT_PTR(nCount) + 1);
        m_nCount = nCount;
    }
}

/// Gives back what was kept for items that differ.
void CGridAxis::MakeAlike(int nCount, int nSize)
{
    CheckCount(nCount);
    m_bAlike = true;
    m_nSizeOfAll = nSize;
    m_nCount = nCount;
    m_nExtent = static_cast<LONGLONG>(nCount) * nSize;
    m_sizes.RemoveAll();
    m_sums.RemoveAll();
    m_nSummed = 0;
}

// The room is there as entries that nobody looks at: an array without entries gives its memory back.
void CGridAxis::Reserve(LONGLONG nCount)
{
    CheckCount(nCount);
    if (!m_bAlike && nCount <= m_sizes.GetSize())
        return;
    m_sums.SetSize(static_cast<INT_PTR>(nCount) + 1);
    m_sizes.SetSize(static_cast<INT_PTR>(nCount)); // the sums may stay too long if this fails: no harm
    if (std::exchange(m_bAlike, false))
        std::fill_n(m_sizes.GetData(), m_nCount, static_cast<UINT>(m_nSizeOfAll));
}

void CGridAxis::SetAllSizes(int nSize)
{
    MakeAlike(m_nCount, nSize);
}

void CGridAxis::Insert(int nItem, int nSize)
{
    if (StaysAlike(nSize))
        return MakeAlike(m_nCount + 1, nSize);
    Reserve(LONGLONG(m_nCount) + 1);
    UINT* const pSizes = m_sizes.GetData();
    std::copy_backward(pSizes + nItem, pSizes + m_nCount, pSizes + m_nCount + 1);
    pSizes[nItem] = static_cast<UINT>(nSize);
    m_nExtent += nSize;
    ++m_nCount;
    SizesChangeFrom(nItem);
}

void CGridAxis::Remove(int nItem)
{
    if (nItem < m_nFixed)
        --m_nFixed;
    if (m_bAlike)
        return MakeAlike(m_nCount - 1, m_nSizeOfAll);
    m_nExtent -= Size(nItem);
    m_sizes.RemoveAt(nItem);
    --m_nCount;
    SizesChangeFrom(nItem);
    m_nSummed = std::min(m_nSummed, m_nCount);
}

void CGridAxis::Swap(int nItem, int nOther)
{
    if (Size(nItem) == Size(nOther))
        return;
    std::swap(m_sizes[nItem], m_sizes[nOther]);
    SizesChangeFrom(std::min(nItem, nOther));
}

bool CGridAxis::Share(int nFirst, int nPixels)
{
    int nShown = 0;
    for (int nItem = nFirst; nItem < m_nCount; ++nItem)
        nShown += IsShown(nItem);
    if (nShown == 0)
        return false;
    const int nShare = nPixels / nShown;
    const int nRest = std::abs(nPixels) % nShown;
    const int nStep = nPixels > 0 ? 1 : -1;
    for (int nItem = nFirst; nItem < m_nCount; ++nItem)
        if (IsShown(nItem))
            SetSize(nItem, std::max(1, Size(nItem) + nShare + (nItem - nFirst < nRest ? nStep : 0)));
    return true;
}

int CGridAxis::Offset(int nItem) const
{
    return gfnSaturated(SumTo(nItem));
}

int CGridAxis::FirstAt(int nScrollPos) const
{
    if (nScrollPos <= 0)
        return m_nFixed;
    const int nFirst = FirstWithSum(m_nFixed, SumTo(m_nFixed) + nScrollPos);
    return std::max(m_nFixed, std::min(nFirst, m_nCount - 1));
}

int CGridAxis::Origin(int nItem, int nFirst) const
{
    if (IsFixed(nItem))
        return Offset(nItem);
    return gfnSaturated(SumTo(m_nFixed) + SumTo(nItem) - SumTo(nFirst));
}

int CGridAxis::ItemAt(int nPos, int nFirst, bool bFixedToo) const
{
    if (nPos < 0)
        return -1;
    const int nFixedExtent = FixedExtent();
    if (nPos < nFixedExtent)
        return bFixedToo ? FirstWithSum(0, LONGLONG(nPos) + 1) - 1 : -1;

    // The end of an item is exclusive: the position must lie before it.
    const LONGLONG nBeyond = SumTo(nFirst) + (nPos - nFixedExtent) + 1;
    const int nItem = FirstWithSum(nFirst, nBeyond) - 1;
    return Has(nItem) ? nItem : -1;
}

CGridAxis::SVisible CGridAxis::Visible(int nFirst, int nClientEnd) const
{
    const LONGLONG nBase = SumTo(m_nFixed) - SumTo(std::min(nFirst, m_nCount));
    const int nNext = nFirst < m_nCount ? FirstWithSum(nFirst + 1, nClientEnd - nBase) : m_nCount + 1;
    if (nNext <= m_nCount)
        return {nNext - 1, gfnSaturated(nBase + SumTo(nNext)), true};
    return {m_nCount - 1, gfnSaturated(nBase + m_nExtent), false};
}

/// Sum of the sizes before an item, renewing what is out of date up to there.
LONGLONG CGridAxis::SumTo(int nItem) const
{
    if (m_bAlike)
        return static_cast<LONGLONG>(nItem) * m_nSizeOfAll;
    LONGLONG* const pSums = m_sums.GetData();
    for (; m_nSummed < nItem; ++m_nSummed)
        pSums[m_nSummed + 1] = pSums[m_nSummed] + m_sizes[m_nSummed];
    return pSums[nItem];
}

/// The first index from `nFrom` on whose sum is at least that; one more than the count if there is none.
int CGridAxis::FirstWithSum(int nFrom, LONGLONG nSum) const
{
    nFrom = std::min(nFrom, m_nCount);
    if (nSum > m_nExtent)
        return m_nCount + 1;
    if (m_bAlike) // the sum is no more than that of all: they have a size, or it is none
        return std::max<int>(nFrom, nSum > 0 ? static_cast<int>((nSum - 1) / m_nSizeOfAll) + 1 : 0);
    SumTo(nFrom);
    while (m_nSummed < m_nCount && m_sums[m_nSummed] < nSum)
        SumTo(m_nSummed + 1);
    const LONGLONG* const pSums = m_sums.GetData();
    return static_cast<int>(std::lower_bound(pSums + nFrom, pSums + m_nSummed + 1, nSum) - pSums);
}

void CGridAxis::SizesChangeFrom(int nItem)
{
    m_nSummed = std::min(m_nSummed, nItem);
}
