#pragma once
// For the grid's own sources: whether the grid has outlived a notification.

#include "grid/GridCtrl.h"

/// Stands on the stack of an operation that notifies. The receiver may destroy the grid's window or the grid
/// itself; whoever goes on afterwards asks here first.
class CGridCtrl::CLifeWatch
{
public:
    explicit CLifeWatch(CGridCtrl& grid) : m_pGrid(&grid), m_pNext(grid.m_pFirstWatch)
    {
        grid.m_pFirstWatch = this;
    }
    ~CLifeWatch()
    {
        if (m_pGrid)
            m_pGrid->m_pFirstWatch = m_pNext;
    }
    CLifeWatch(const CLifeWatch&) = delete;
    CLifeWatch& operator=(const CLifeWatch&) = delete;

    bool ObjectLives() const { return m_pGrid != nullptr; }
    bool WindowLives() const { return m_pGrid && ::IsWindow(m_pGrid->m_hWnd); }

    /// The grid is being destroyed: every watch on it hears of it.
    static void TellAll(CLifeWatch* pFirst)
    {
        for (; pFirst; pFirst = pFirst->m_pNext)
            pFirst->m_pGrid = nullptr;
    }

private:
    CGridCtrl* m_pGrid;
    CLifeWatch* m_pNext;
};
