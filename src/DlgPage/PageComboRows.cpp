#include <afxwin.h>

#include "DlgPage/PageComboRows.h"

#include "DlgPage/Page.h"

using namespace ow;

void CPageComboRows::AddPrimary(CPage* pPage, int nRow)
{
    primaryOfRow.Add(Add(pPage, nullptr, nRow, 1));
    secondaryOfRow.Add(-1);
}

void CPageComboRows::AddSecondary(CPage* pPage, CPage* pParent)
{
    const int nParent = FindPage(pParent);
    if (nParent < 0)
        AfxThrowInvalidArgException();
    const int nRow = rowOfPage[nParent];
    int& nSecondary = secondaryOfRow[nRow];
    nSecondary = Add(pPage, pParent, nRow, 0);
}

int CPageComboRows::FindPage(const CPage* pPage) const
{
    return FindById(pages, pPage);
}

int CPageComboRows::FindParent(const CPage* pParent) const
{
    return FindById(parents, pParent);
}

/// Answers the page's index.
int CPageComboRows::Add(CPage* pPage, CPage* pParent, int nRow, int nPrimary)
{
    parents.Add(pParent);
    rowOfPage.Add(nRow);
    isPrimary.Add(nPrimary);
    return static_cast<int>(pages.Add(pPage));
}

CPage* CPageComboRows::PageAt(const IntArray& pageOfRow, int nRow) const
{
    if (nRow < 0 || nRow >= pageOfRow.GetSize() || pageOfRow[nRow] < 0)
        return nullptr;
    return pages[pageOfRow[nRow]];
}

int CPageComboRows::FindById(const PageArray& pages, const CPage* pPage)
{
    if (!pPage)
        return -1;
    for (int i = 0; i < pages.GetSize(); ++i)
        if (pages[i] && pages[i]->GetPageID() == pPage->GetPageID())
            return i;
    return -1;
}
