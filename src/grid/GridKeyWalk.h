#pragma once
// For the grid's own sources: to which cell a key leads.
//
//     CGridKeyWalk walk(rows, columns);
//     CCellID next = walk.Vertically(focus, 1);        // Down
//     next = walk.Sideways(focus, -1);                 // Left
//     next = walk.Tab(focus, 1);                       // Tab; behind the last column comes the next row
//
// Hidden rows and columns are passed over, and a walk with nowhere to go stays where it is. With a test of
// cells, those that fail it are passed over sideways, too, and the walk then goes around in its row before it
// gives up.

#include <afxwin.h>

#include <functional>

#include "grid/GridAxis.h"
#include "grid/GridTypes.h"
#include "module/Export.h"

class OW_DIALOGCONTROLS_API CGridKeyWalk
{
public:
    using CTest = std::function<bool(const CCellID& cell)>;
    CGridKeyWalk(const CGridAxis& rows, const CGridAxis& cols, CTest mayStop = nullptr)
        : m_rows(rows), m_cols(cols), m_mayStop(std::move(mayStop))
    {
    }

    // `nStep`: 1 on, -1 back.
    CCellID Vertically(const CCellID& from, int nStep) const;
    CCellID Sideways(const CCellID& from, int nStep) const;
    /// Whether a Tab leaves the row.
    bool TabWraps(const CCellID& from, int nStep) const;
    CCellID Tab(const CCellID& from, int nStep) const;
    /// As many rows as the view has moved; where it did not move, to the last or the first.
    CCellID ByPage(const CCellID& from, int nStep, int nMoved) const;
    // With `bOfGrid` to the first or last row, too.
    CCellID ToStart(CCellID from, bool bOfGrid) const;
    /// The walk back past hidden ones stops behind the second body column and row.
    CCellID ToEnd(CCellID from, bool bOfGrid) const;

private:
    bool MayStop(const CCellID& cell) const;
    /// From a column on, which counts; back to `nOld` if there is no stop.
    CCellID FirstStop(CCellID cell, int nStep, int nOld) const;

    const CGridAxis& m_rows;
    const CGridAxis& m_cols;
    CTest m_mayStop;
};
