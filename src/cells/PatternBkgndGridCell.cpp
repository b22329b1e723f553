#include <afxwin.h>

#include "cells/PatternBkgndGridCell.h"

#include "cells/GridCellPainter.h"
#include "cells/SubtractiveMix.h"
#include "module/GdiScope.h"

IMPLEMENT_DYNCREATE(CPatternBkgndGridCell, CAnsiGridCell)

namespace
{
constexpr DWORD kNone = 0xFFFFFFFF;
} // namespace

/// Fills with the pattern where a plain cell fills with its colour.
class CPatternBkgndGridCell::CPainter : public CGridCellPainter
{
public:
    CPainter(CPatternBkgndGridCell& cell, int nRow, int nCol)
        : CGridCellPainter(cell, nRow, nCol), m_patternCell(cell)
    {
    }

protected:
    void FillBackground(const CRect& rect, COLORREF clr) override
    {
        if (!m_patternCell.IsPatternBkgnd() || !m_patternCell.FillPatternBkgnd(&DC(), rect))
            CGridCellPainter::FillBackground(rect, clr);
    }

private:
    CPatternBkgndGridCell& m_patternCell;
};

void CPatternBkgndGridCell::operator=(const CPatternBkgndGridCell& cell)
{
    CGridCellBase::operator=(cell);
    m_crPattern = cell.m_crPattern;
    m_nPatternStyle = cell.m_nPatternStyle;
}

COLORREF CPatternBkgndGridCell::GetPatternColor() const
{
    return m_crPattern;
}

void CPatternBkgndGridCell::SetPatternColor(COLORREF clr)
{
    m_crPattern = clr;
}

int CPatternBkgndGridCell::GetPatternStyle() const
{
    return m_nPatternStyle;
}

void CPatternBkgndGridCell::SetPatternStyle(int nStyle)
{
    m_nPatternStyle = nStyle;
}

bool CPatternBkgndGridCell::IsPatternBkgnd() const
{
    return m_crPattern < kNone && static_cast<DWORD>(m_nPatternStyle) < kNone;
}

BOOL CPatternBkgndGridCell::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    return CPainter(*this, nRow, nCol).Paint(pDC, rect, bEraseBkgnd);
}

// Cells are painted with a transparent background, in which a hatch would leave its gaps as they are.
BOOL CPatternBkgndGridCell::FillPatternBkgnd(CDC* pDC, const CRect& rect)
{
    const COLORREF crBack = GetBackClr();
    CBrush brush;
    if (!brush.CreateHatchBrush(m_nPatternStyle, gfnSubtractiveMix(m_crPattern, crBack)))
        return FALSE;
    const CBkColorScope backColor(*pDC, crBack);
    const CBkModeScope opaque(*pDC, OPAQUE);
    pDC->FillRect(&rect, &brush);
    return TRUE;
}
