// List views: sorting by index.

#include <afxcmn.h>

#include "threadstate.h"

#include <algorithm>
#include <numeric>

namespace
{
int CALLBACK CompareRanks(LPARAM first, LPARAM second, LPARAM)
{
    return static_cast<int>(first - second);
}
} // namespace

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    if ((GetStyle() & LVS_OWNERDATA) != 0)
        return FALSE; // the items are not in the control
    // The order is found while every index still means its item: not every system's own message, LVM_SORTITEMSEX, leaves
    // the items in place until it has compared them all.
    std::vector<int> order(static_cast<size_t>(GetItemCount()));
    std::iota(order.begin(), order.end(), 0);
    const auto isBefore = [=](int first, int second)
    { return pfnCompare(first, second, static_cast<LPARAM>(dwData)) < 0; };
    std::stable_sort(order.begin(), order.end(), isBefore);

    // Each item carries its rank in place of its data meanwhile; nobody is told.
    const CRestoreValue<HWND> lockout(GetThreadState().lockoutNotifyWindow, ::GetParent(m_hWnd));
    std::vector<DWORD_PTR> data;
    for (const int index : order)
    {
        const size_t rank = data.size();
        data.push_back(GetItemData(index));
        SetItemData(index, rank);
    }
    const BOOL sorted = SortItems(&CompareRanks, 0);
    for (size_t rank = 0; rank < data.size(); ++rank)
        SetItemData(static_cast<int>(rank), data[rank]);
    return sorted;
}
