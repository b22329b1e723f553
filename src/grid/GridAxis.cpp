#include <afxwin.h>

#include "grid/GridAxis.h"

#include <algorithm>

void CGridAxis::SetSize(int nItem, int nSize)
{
    m_nExtent += nSize - Size(nItem);
    m_sizes[nItem] = static_cast<UINT>(nSize);
    SizesChangeFrom(nItem);
}

void CGridAxis::SetCount(int nCount, int nSizeOfNew)
{
    if (nCount > m_nCount)
        Reserve(nCount);
    else
    {
        m_sizes.SetSize(nCount);
        m_sums.SetSize(INT_PTR(nCount) + 1);
    }
    for (int nItem = m_nCount; nItem < nCount; ++nItem)
        m_sizes[nItem] = static_cast<UINT>(nSizeOfNew);

    if (nCount > m_nCount)
        m_nExtent += static_cast<LONGLONG>(nCount - m_nCount) * nSizeOfNew;
    else
        m_nExtent = SumTo(nCount);
    m_nSummed = std::min(m_nSummed, nCount);
    m_nFixed = std::min(m_nFixed, nCount);
    m_nCount = nCount;
}

// The room is there as entries that nobody looks at: an array without entries gives its memory back.
void CGridAxis::Reserve(LONGLONG nCount)
{
    if (nCount > kMostItems)
        AfxThrowMemoryException();
    if (nCount <= m_sizes.GetSize())
        return;
    m_sums.SetSize(static_cast<INT_PTR>(nCount) + 1);
    m_sizes.SetSize(static_cast<INT_PTR>(nCount)); // the sums may stay too long if this fails: no harm
}

void CGridAxis::SetAllSizes(int nSize)
{
    for (int nItem = 0; nItem < m_nCount; ++nItem)
        m_sizes[nItem] = static_cast<UINT>(nSize);
    m_nExtent = static_cast<LONGLONG>(m_nCount) * nSize;
    SizesChangeFrom(0);
}

void CGridAxis::Insert(int nItem, int nSize)
{
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
    m_nExtent -= Size(nItem);
    m_sizes.RemoveAt(nItem);
    if (nItem < m_nFixed)
        --m_nFixed;
    --m_nCount;
    SizesChangeFrom(nItem);
    m_nSummed = std::min(m_nSummed, m_nCount);
}

void CGridAxis::Swap(int nItem, int nOther)
{
    if (m_sizes[nItem] == m_sizes[nOther])
        return;
    std::swap(m_sizes[nItem], m_sizes[nOther]);
    SizesChangeFrom(std::min(nItem, nOther));
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
    if (m_sums.GetSize() == 0)
        return 0; // no item yet
    LONGLONG* const pSums = m_sums.GetData();
    for (; m_nSummed < nItem; ++m_nSummed)
        pSums[m_nSummed + 1] = pSums[m_nSummed] + m_sizes[m_nSummed];
    return pSums[nItem];
}

/// The first index from `nFrom` on whose sum is at least that; one more than the count if there is none.
int CGridAxis::FirstWithSum(int nFrom, LONGLONG nSum) const
{
    SumTo(std::min(nFrom, m_nCount));
    while (m_nSummed < m_nCount && m_sums[m_nSummed] < nSum)
        SumTo(m_nSummed + 1);
    if (m_sums.GetSize() == 0)
        return 1;
    const LONGLONG* const pSums = m_sums.GetData();
    const LONGLONG* const pEnd = pSums + m_nSummed + 1;
    return static_cast<int>(std::lower_bound(pSums + std::min(nFrom, m_nCount), pEnd, nSum) - pSums);
}

void CGridAxis::SizesChangeFrom(int nItem)
{
    m_nSummed = std::min(m_nSummed, nItem);
}
