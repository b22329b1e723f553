#pragma once
// A cell for a number that the user types, shown with an exponent: 2.1000E+008.
//
// ```cpp
//     m_grid.SetCellType(1, 4, RUNTIME_CLASS(CLimitedExponentDoubleCell));
//     auto& modulus = static_cast<CLimitedExponentDoubleCell&>(*m_grid.GetCell(1, 4));
//     modulus.SetLocalMin(0.0, FALSE);
//     modulus.Set(4, 2.1e8);
// ```
//
// Like CLimitedDoubleCell, whose units, bounds and failures it has, but for two things: the user may type an
// exponent, with E or e, and there are always four decimals, whatever SetBrojDecimala says.

#include <afxwin.h>

#include "cells/LimitedDoubleCell.h"

class OW_DIALOGCONTROLS_API CLimitedExponentDoubleCell : public CLimitedDoubleCell
{
    DECLARE_DYNCREATE(CLimitedExponentDoubleCell)

public:
    using CLimitedDoubleCell::operator=;

    void Set(int nCol, double dValue) override;
    BOOL ValidateEdit(LPCWSTR pszText) override;

private:
    void ShowWithExponent();
};
