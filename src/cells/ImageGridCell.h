#pragma once
// A cell that places its image by its format.
//
// ```cpp
//     m_grid.SetImageList(&m_images);
//     m_grid.SetCellType(1, 3, RUNTIME_CLASS(CImageGridCell));
//     m_grid.SetItemImage(1, 3, 0);
//     m_grid.SetItemFormat(1, 3, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
// ```
//
//     +-----------------------------------------+
//     |<margin>          [image]        <margin>|   DT_CENTER, DT_RIGHT or else left;
//     +-----------------------------------------+   DT_VCENTER, DT_BOTTOM or else top, with no margin kept
//
// An image that does not fit, the margins counted as room, is not drawn. A text is drawn, too, in the place
// that a plain cell gives it: right of where an image at the left edge would end. So use a text with images
// on the left.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CImageGridCell : public CGridCell
{
    DECLARE_DYNCREATE(CImageGridCell)

public:
    using CGridCell::operator=;
    void operator=(const CImageGridCell& cell);

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;
};
