#pragma once
// One direction of a grid, its rows or its columns: how many there are, how many of them are fixed, and how
// many pixels each takes. Rows and columns mirror each other here completely, so this is written once.
//
// Positions are in pixels from the edge of the client area. Fixed items stand at its edge and never scroll;
// behind them the others begin with the item `nFirst`, the first that is scrolled into view. An item of size
// 0 is hidden and stays in the count.
//
//      0        FixedExtent()                                  client end
//      | 0 | 1 |  nFirst  | nFirst + 1 |  ...       | last, partly shown
//
// Sizes and sums go as far as an int does. What lies further is answered as the furthest that an int can
// name: a grid of such sizes still has its scroll bars, and shows what they reach.
//
// Sums of sizes are kept and renewed only as far as they are asked for: asking is logarithmic, and changing
// the sizes one after the other, or adding items at the front, does not sum up all the others each time. Of
// items that are all alike, the million rows of a virtual grid for instance, one size is kept and no sums.

#include <afxcoll.h>
#include <afxtempl.h>

#include <climits>

#include "module/Export.h"

/// The nearest whole number that an int can hold.
constexpr int gfnSaturated(LONGLONG n)
{
    return n > INT_MAX ? INT_MAX : n < INT_MIN ? INT_MIN : static_cast<int>(n);
}

class OW_DIALOGCONTROLS_API CGridAxis
{
public:
    /// More items are answered with a memory exception, without trying: of items a dozen pixels high, more
    /// could not be scrolled to.
    static constexpr int kMostItems = 0x07FFFFFF;

    /// How many items there are, the fixed ones included.
    int Count() const { return m_nCount; }
    /// How many are fixed: the first ones.
    int Fixed() const { return m_nFixed; }
    /// Whether there is such an item.
    bool Has(int nItem) const { return nItem >= 0 && nItem < m_nCount; }
    /// Whether the item is one of the fixed.
    bool IsFixed(int nItem) const { return nItem < m_nFixed; }
    /// Whether there is such an item, and it is not hidden.
    bool IsShown(int nItem) const { return Has(nItem) && Size(nItem) > 0; }
    /// Pixels of an item that there is; 0 is hidden.
    int Size(int nItem) const { return m_bAlike ? m_nSizeOfAll : static_cast<int>(m_sizes[nItem]); }

    /// Fixed items beyond the count cannot be: the caller sees to that.
    void SetFixed(int nFixed) { m_nFixed = nFixed; }
    /// Pixels; 0 hides the item. The first that differs takes memory for all: an exception changes nothing.
    void SetSize(int nItem, int nSize);
    /// Adds items of a size at the end, or takes items off it. Lowers the fixed count to the new count if
    /// need be. Memory exceptions leave everything as it was.
    void SetCount(int nCount, int nSizeOfNew);
    /// Makes room, so that SetCount and Insert up to that number cannot fail. Items that are taken away take
    /// the room with them.
    void Reserve(LONGLONG nCount);
    /// Gives all items one size.
    void SetAllSizes(int nSize);
    /// Makes an item in front of this one.
    void Insert(int nItem, int nSize);
    /// Takes an item away; one less is fixed if it was.
    void Remove(int nItem);
    /// Two items change places, and take their sizes with them.
    void Swap(int nItem, int nOther);

    /// Gives the items that show, from this one on, so many pixels more or fewer. Each gets an equal share;
    /// what the division leaves goes to the first ones, a pixel each. A hidden one among those takes up a
    /// place without taking the pixel, so that the total can stay some pixels short. None shrinks to nothing.
    /// False if none shows.
    bool Share(int nFirst, int nPixels);

    /// Pixels of all items before this one; `nItem` may be the count.
    int Offset(int nItem) const;
    /// Pixels of all items.
    int Extent() const { return gfnSaturated(m_nExtent); }
    /// Pixels of the fixed items.
    int FixedExtent() const { return Offset(m_nFixed); }

    /// The first item that shows behind the fixed ones at a scroll position. A position inside an item gives
    /// the next one. Never past the last item, unless all are fixed.
    int FirstAt(int nScrollPos) const;

    /// Where an item starts that is fixed or not before `nFirst`.
    int Origin(int nItem, int nFirst) const;

    /// The item at a position, or -1. A fixed one only if `bFixedToo`.
    int ItemAt(int nPos, int nFirst, bool bFixedToo) const;

    /// What shows of the items from `nFirst` on in a client area.
    struct SVisible
    {
        int nLast; ///< the last item that shows at least in part; at most the last of all
        int nEnd;  ///< where the items end: the end of the last one, which may lie beyond the client area
        bool bReachesEnd; ///< the items fill the client area
    };
    /// What shows between the fixed items and the end of the client area, from the item `nFirst` on.
    SVisible Visible(int nFirst, int nClientEnd) const;

private:
    bool StaysAlike(int nSize) const { return m_bAlike && (m_nCount == 0 || nSize == m_nSizeOfAll); }
    void MakeAlike(int nCount, int nSize);
    LONGLONG SumTo(int nItem) const;
    int FirstWithSum(int nFrom, LONGLONG nSum) const;
    void SizesChangeFrom(int nItem);

    int m_nCount = 0;
    int m_nFixed = 0;
    LONGLONG m_nExtent = 0;
    bool m_bAlike = true; ///< all items have one size, and there is no room for others
    int m_nSizeOfAll = 0;
    CUIntArray m_sizes;                        ///< behind those of the items there may be room for more
    mutable CArray<LONGLONG, LONGLONG> m_sums; ///< one more than sizes: m_sums[i] is what all before i take
    mutable int m_nSummed = 0;                 ///< m_sums is right up to this index
};
