#pragma once
// A cell for a positive number that the user types, or for none: a question mark stands for every value of 0
// or less.
//
// ```cpp
//     m_grid.SetCellType(1, 3, RUNTIME_CLASS(CLimitedQuestionMarkDoubleCell));
//     auto& mass = static_cast<CLimitedQuestionMarkDoubleCell&>(*m_grid.GetCell(1, 3));
//     mass.Set(3, -1.0);                                                      // shows ?
//     ...
//     if (mass.Get(3) > 0.0)
//         Add(mass.Get(3));
// ```
//
// Like CLimitedDoubleCell, whose units and decimals it has. What differs: a text with a question mark in it
// means -1, whatever stands behind the mark, and in front of it if that could stand in a number. A typed -5
// shows as a question mark and stays -5. The bounds of this cell are never looked at.

#include <afxwin.h>

#include "cells/LimitedDoubleCell.h"

class OW_DIALOGCONTROLS_API CLimitedQuestionMarkDoubleCell : public CLimitedDoubleCell
{
    DECLARE_DYNCREATE(CLimitedQuestionMarkDoubleCell)

public:
    using CLimitedDoubleCell::operator=;

    void Set(int nCol, double dValue) override;
    BOOL ValidateEdit(LPCWSTR pszText) override;

private:
    void ShowNumberOrMark();
};
