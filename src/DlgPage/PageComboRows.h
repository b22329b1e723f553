#pragma once
// Which pages the rows of a page combo box stand for: in each row a top-level page (the primary), and behind
// it at most one child (the secondary), which the toggle beside the combo box shows.

#include <afxtempl.h>

class CPage;

namespace ow
{
class CPageComboRows
{
public:
    /// A top-level page, with the row that the combo box gave it. Rows count in the order of adding.
    void AddPrimary(CPage* pPage, int nRow);
    /// A child of a page that was added before; an unknown parent raises MFC's invalid-argument exception,
    /// and nothing is added. Wanted: the latest child of a row replaces the one before, which stays known.
    void AddSecondary(CPage* pPage, CPage* pParent);

    /// The first page of the same identity, as an index for the two questions below; -1 if there is none.
    int FindPage(const CPage* pPage) const;
    /// The first page whose parent has the identity; -1 if there is none.
    int FindParent(const CPage* pParent) const;

    int RowOf(int nPage) const { return rowOfPage[nPage]; }
    bool IsPrimary(int nPage) const { return isPrimary[nPage] != 0; }

    /// The pages of a row; null where there is none, and for a row that there is not.
    CPage* Primary(int nRow) const { return PageAt(primaryOfRow, nRow); }
    CPage* Secondary(int nRow) const { return PageAt(secondaryOfRow, nRow); }

private:
    using PageArray = CArray<CPage*, CPage*>;
    using IntArray = CArray<int, int>;

    int Add(CPage* pPage, CPage* pParent, int nRow, int nPrimary);
    CPage* PageAt(const IntArray& pageOfRow, int nRow) const;
    static int FindById(const PageArray& pages, const CPage* pPage);

    PageArray pages;         ///< not owned, in the order of adding; the next three run beside it
    PageArray parents;       ///< null for a top-level page
    IntArray rowOfPage;      ///< where the page is reached
    IntArray isPrimary;      ///< 1 for a top-level page, 0 for a child
    IntArray primaryOfRow;   ///< index of a page
    IntArray secondaryOfRow; ///< index of a page; -1 for none
};
} // namespace ow
