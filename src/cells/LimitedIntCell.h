#pragma once
// A cell for a whole number of 32 bits that the user types, kept within bounds.
//
// ```cpp
//     m_grid.SetCellType(1, 5, RUNTIME_CLASS(CLimitedIntCell));
//     auto& count = static_cast<CLimitedIntCell&>(*m_grid.GetCell(1, 5));
//     count.SetMin(1, TRUE);
//     count.Set(24);
// ```
//
// The user may type digits and signs; anything else, a point among it, and an empty text is refused, and the
// grid puts the old text back without a word. The text is read from its beginning as far as it is a number:
// 1-2 as 1, a lone sign as 0, and a number that 32 bits do not hold as the outermost that they do. A number
// within the bounds becomes the value, and is written back: +007 becomes 7.
//
// The bounds bind the user only: Set takes any number. Neither can be taken away again. A text given by
// SetItemText is shown and leaves the value alone. A font given to the cell is dropped.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CLimitedIntCell : public CGridCell
{
    DECLARE_DYNCREATE(CLimitedIntCell)

public:
    using CGridCell::operator=;
    /// Takes over the value and the bounds, too.
    void operator=(const CLimitedIntCell& cell);

    /// The smallest number that the user may type. With `bInclusive` 0 it is just too small.
    void SetMin(int nMin, int bInclusive);
    /// The greatest, likewise.
    void SetMax(int nMax, int bInclusive);

    /// Shows a number.
    void Set(int nValue);
    /// The number.
    int Get() const;

    BOOL ValidateEdit(LPCWSTR pszText) override;
    void SetFont(const LOGFONTW* plf) override;

protected:
    int m_nValue = 0;
    int m_nMin = 0;
    int m_nMax = 0;
    BOOL m_bHasMin = FALSE;
    BOOL m_bHasMax = FALSE;
    BOOL m_bMinInclusive = FALSE;
    BOOL m_bMaxInclusive = FALSE;
};
