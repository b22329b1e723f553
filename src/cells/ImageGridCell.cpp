#include <afxwin.h>

#include "cells/ImageGridCell.h"

#include "cells/GridCellPainter.h"

IMPLEMENT_DYNCREATE(CImageGridCell, CGridCell)

namespace
{
/// From the top left of a room to where a thing of the size stands in it; negative where it is larger.
CSize OffsetInRoom(CSize room, CSize size, DWORD nFormat)
{
    const CSize free = room - size;
    CSize offset(0, 0);
    if (nFormat & DT_CENTER)
        offset.cx = free.cx / 2;
    else if (nFormat & DT_RIGHT)
        offset.cx = free.cx;
    if (nFormat & DT_VCENTER)
        offset.cy = free.cy / 2;
    else if (nFormat & DT_BOTTOM)
        offset.cy = free.cy;
    return offset;
}

class CImagePainter : public CGridCellPainter
{
public:
    using CGridCellPainter::CGridCellPainter;

protected:
    void TakeMargin(CRect& rect) override { rect.DeflateRect(static_cast<int>(Cell().GetMargin()), 0); }

    void DrawImage(const CRect& rect) override
    {
        CSize size;
        if (!Cell().GetImageSize(size))
            return;
        size += CSize(1, 1);
        DrawImageAt(rect.TopLeft() + OffsetInRoom(rect.Size(), size, Cell().GetFormat()), size, rect);
    }
};
} // namespace

void CImageGridCell::operator=(const CImageGridCell& cell)
{
    CGridCellBase::operator=(cell);
}

BOOL CImageGridCell::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    return CImagePainter(*this, nRow, nCol).Paint(pDC, rect, bEraseBkgnd);
}
