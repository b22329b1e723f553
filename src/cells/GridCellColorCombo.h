#pragma once
// A cell with a swatch of one of the CAD host's colours, which a click lets the user choose.
//
// ```cpp
//     m_grid.SetCellType(1, 7, RUNTIME_CLASS(CGridCellColorCombo));
//     auto& ink = static_cast<CGridCellColorCombo&>(*m_grid.GetCell(1, 7));
//     ink.PostaviMastAci(30);
//     ...
//     Plot(ink.DajMastAci());
// ```
//
//      |<- 7 ->+--------- 41 ---------+<- 10 ->v        3 pixels below the top, 12 high
//
// The swatch shows in cells that are at least 55 pixels wide and 18 high. A click anywhere in the cell opens
// the host's colour dialog, in a grid that is not editable, too; the choice shows at once and is not
// notified: whoever needs the colour asks for it.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CGridCellColorCombo : public CGridCell
{
    DECLARE_DYNCREATE(CGridCellColorCombo)

public:
    CGridCellColorCombo();
    ~CGridCellColorCombo() override;
    using CGridCell::operator=;
    /// Takes over the colour, too.
    void operator=(const CGridCellColorCombo& cell);

    /// The host's colour index; see acedGetRGB.
    int DajMastAci() const;
    /// Does not redraw. An index that is no colour shows as an empty swatch.
    void PostaviMastAci(int nMastAci);

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;
    void OnClick(CPoint point) override;

protected:
    int m_nMastAci = 252; ///< a grey

private:
    bool* m_pGone = nullptr; ///< set by the destructor while the dialog is open
};
