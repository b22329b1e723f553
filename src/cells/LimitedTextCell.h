#pragma once
// A cell for a text with a length that its owner may ask for.
//
// ```cpp
//     m_grid.SetCellType(1, 1, RUNTIME_CLASS(CLimitedTextCell));
//     static_cast<CLimitedTextCell&>(*m_grid.GetCell(1, 1)).SetMax(31);
// ```
//
// The cell only keeps the length: it takes whatever the user types, an empty text, too, and whoever needs the
// limit checks it, in LVN_ENDLABELEDITW for instance. A font given to the cell is dropped.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CLimitedTextCell : public CGridCell
{
    DECLARE_DYNCREATE(CLimitedTextCell)

public:
    using CGridCell::operator=;
    /// Takes over the length, too.
    void operator=(const CLimitedTextCell& cell);

    /// Characters that the user may type.
    void SetMax(unsigned nMax);
    /// Characters. 100 for a cell without a limit; but a new cell has one, which is 0 until SetMax.
    unsigned GetMax() const;

    BOOL ValidateEdit(LPCWSTR pszText) override;
    void SetFont(const LOGFONTW* plf) override;

protected:
    BOOL m_bHasMax = TRUE; ///< from the start, before there is a length: this is wanted
    unsigned m_nMax = 0;
};
