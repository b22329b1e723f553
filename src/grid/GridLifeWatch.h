#pragma once
// For the grid's own sources and its cells: whether the grid, or a cell, has outlived a notification.

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

/// The same for one cell, which may be destroyed, or move to another place, while the receiver answers.
class CGridCtrl::CCellWatch
{
public:
    CCellWatch(CGridCtrl& grid, CGridCellBase* pCell)
        : m_grid(grid), m_life(grid), m_pCell(pCell), m_pNext(grid.m_pFirstCellWatch)
    {
        grid.m_pFirstCellWatch = this;
    }
    ~CCellWatch()
    {
        if (m_life.ObjectLives())
            m_grid.m_pFirstCellWatch = m_pNext;
    }
    CCellWatch(const CCellWatch&) = delete;
    CCellWatch& operator=(const CCellWatch&) = delete;

    /// Null once the cell or the grid is gone.
    CGridCellBase* Cell() const { return m_life.ObjectLives() ? m_pCell : nullptr; }

    /// A cell is about to be destroyed. `pSuccessor`: who takes its place.
    static void TellAll(CCellWatch* pFirst, const CGridCellBase* pCell, CGridCellBase* pSuccessor = nullptr)
    {
        for (; pFirst; pFirst = pFirst->m_pNext)
            if (pFirst->m_pCell == pCell)
                pFirst->m_pCell = pSuccessor;
    }

private:
    CGridCtrl& m_grid;
    const CLifeWatch m_life;
    CGridCellBase* m_pCell;
    CCellWatch* m_pNext;
};
