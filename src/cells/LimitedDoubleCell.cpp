#include <afxwin.h>

#include "cells/LimitedDoubleCell.h"

#include "cells/TypedNumber.h"
#include "edits/DoubleText.h"
#include "grid/GridCtrl.h"

IMPLEMENT_DYNCREATE(CLimitedDoubleCell, CGridCell)

void CLimitedDoubleCell::operator=(const CLimitedDoubleCell& cell)
{
    CGridCellBase::operator=(cell);
    m_dValue = cell.m_dValue;
    m_limits = cell.m_limits;
    m_nBrojDecimala = cell.m_nBrojDecimala;
}

void CLimitedDoubleCell::SetBrojDecimala(int nBrojDecimala)
{
    m_nBrojDecimala = nBrojDecimala;
}

void CLimitedDoubleCell::SetLocalMin(double dMin, int bInclusive)
{
    m_limits.SetMin(dMin, bInclusive != 0);
}

void CLimitedDoubleCell::SetLocalMax(double dMax, int bInclusive)
{
    m_limits.SetMax(dMax, bInclusive != 0);
}

void CLimitedDoubleCell::Set(int nCol, double dValue)
{
    m_dValue = ToLocal(nCol, dValue);
    ShowDecimal();
}

double CLimitedDoubleCell::Get(int nCol) const
{
    const CComplexUnit* const pUnit = UnitOf(nCol);
    return pUnit ? pUnit->ToGlobal(m_dValue) : m_dValue;
}

BOOL CLimitedDoubleCell::ValidateEdit(LPCWSTR pszText)
{
    if (!gfnIsNumberText(pszText, L".-+") || !Accept(gfnReadDouble(pszText)))
        return FALSE;
    ShowDecimal();
    return TRUE;
}

void CLimitedDoubleCell::SetFont(const LOGFONTW* /*plf*/)
{
}

bool CLimitedDoubleCell::Accept(double dLocal)
{
    if (!m_limits.Allow(dLocal))
        return false;
    m_dValue = dLocal;
    return true;
}

/// Null without a unit, or without a grid that could have one.
const CComplexUnit* CLimitedDoubleCell::UnitOf(int nCol) const
{
    return m_pGrid ? m_pGrid->FindColComplexUnit(nCol) : nullptr;
}

double CLimitedDoubleCell::ToLocal(int nCol, double dGlobal) const
{
    const CComplexUnit* const pUnit = UnitOf(nCol);
    return pUnit ? pUnit->ToLocal(dGlobal) : dGlobal;
}

void CLimitedDoubleCell::ShowDecimal()
{
    wchar_t szText[c_nDoubleTextSize];
    SetText(gfnFormatFixed(szText, m_nBrojDecimala, m_dValue));
}
