#pragma once
// A cell for a number that the user types, kept in the unit of its column and within bounds.
//
// ```cpp
//     m_grid.SetColComplexUnit(2, CComplexUnit(CMeasurementUnit(2, 0)));      // millimetres
//     m_grid.SetCellType(1, 2, RUNTIME_CLASS(CLimitedDoubleCell));
//     auto& length = static_cast<CLimitedDoubleCell&>(*m_grid.GetCell(1, 2));
//     length.SetBrojDecimala(0);
//     length.SetLocalMin(0.0, FALSE);                                         // more than nothing
//     length.Set(2, 6.0);                                                     // metres; shows 6000
//     ...
//     Order(length.Get(2));                                                   // metres again
// ```
//
// UNITS. Set and Get speak in the global unit, the metre for lengths. The value in the cell and its bounds
// are in the unit of the column that they are told, and the cell does not follow a change of that unit: Get
// every value, change the unit, Set them again. In a column without a unit, or before the cell is in a grid,
// both units are the same.
//
// WHAT THE USER TYPES. Digits, points and signs; anything else, and an empty text, is refused, and the grid
// puts the old text back without a word. The text is read from its beginning as far as it is a number: 1-2 as
// 1, a lone sign or point as 0, and a number too large for a double as the largest one. A number within the
// bounds becomes the value, and is written back with the cell's decimals: 3 becomes 3.00.
//
// The bounds bind the user only: Set takes any number. Neither bound can be taken away again.
//
// The value and the text are two things. A text given by SetItemText is shown and leaves the value alone, and
// if the grid's parent vetoes an edit that the cell has accepted, the old text comes back and the new value
// stays.
//
// A font given to the cell is dropped: all cells of a column of numbers look alike.

#include <afxwin.h>

#include "cells/GridCell.h"

class CComplexUnit;

class OW_DIALOGCONTROLS_API CLimitedDoubleCell : public CGridCell
{
    DECLARE_DYNCREATE(CLimitedDoubleCell)

public:
    using CGridCell::operator=;
    /// Takes over the value, the bounds and the decimals, too.
    void operator=(const CLimitedDoubleCell& cell);

    /// Decimals from the next Set or edit on, however many: the cell shows them all. Fewer than none count as
    /// none.
    void SetBrojDecimala(int nBrojDecimala);
    /// The smallest number that the user may type, in the column's unit. With `bInclusive` 0 it is just too
    /// small.
    void SetLocalMin(double dMin, int bInclusive);
    /// The greatest, likewise.
    void SetLocalMax(double dMax, int bInclusive);

    /// Shows a number given in the global unit. `nCol`: the cell's column, whose unit counts.
    virtual void Set(int nCol, double dValue);
    /// The number in the global unit.
    virtual double Get(int nCol) const;

    BOOL ValidateEdit(LPCWSTR pszText) override;
    void SetFont(const LOGFONTW* plf) override;

protected:
    /// Makes a typed number the value if the bounds allow it.
    bool Accept(double dLocal);
    /// A number in the column's unit.
    double ToLocal(int nCol, double dGlobal) const;
    /// Writes the text from the value.
    void ShowDecimal();

    double m_dValue = 0.0; ///< these three in the column's unit
    double m_dLocalMin = 0.0;
    double m_dLocalMax = 0.0;
    BOOL m_bHasMin = FALSE;
    BOOL m_bHasMax = FALSE;
    BOOL m_bMinInclusive = FALSE;
    BOOL m_bMaxInclusive = FALSE;
    int m_nBrojDecimala = 2;

private:
    const CComplexUnit* UnitOf(int nCol) const;
};
