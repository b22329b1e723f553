#include <afxwin.h>

#include "cells/LimitedDoubleCell.h"

#include "cells/NumberLimits.h"
#include "cells/TypedNumber.h"
#include "edits/DoubleText.h"
#include "grid/GridCtrl.h"

#include <cmath>

IMPLEMENT_DYNCREATE(CLimitedDoubleCell, CGridCell)

void CLimitedDoubleCell::operator=(const CLimitedDoubleCell& cell)
{
    CGridCellBase::operator=(cell);
    m_dValue = cell.m_dValue;
    m_dLocalMin = cell.m_dLocalMin;
    m_dLocalMax = cell.m_dLocalMax;
    m_bHasMin = cell.m_bHasMin;
    m_bHasMax = cell.m_bHasMax;
    m_bMinInclusive = cell.m_bMinInclusive;
    m_bMaxInclusive = cell.m_bMaxInclusive;
    m_nBrojDecimala = cell.m_nBrojDecimala;
}

void CLimitedDoubleCell::SetBrojDecimala(int nBrojDecimala)
{
    m_nBrojDecimala = nBrojDecimala;
}

void CLimitedDoubleCell::SetLocalMin(double dMin, int bInclusive)
{
    m_dLocalMin = dMin;
    m_bHasMin = TRUE;
    m_bMinInclusive = bInclusive;
}

void CLimitedDoubleCell::SetLocalMax(double dMax, int bInclusive)
{
    m_dLocalMax = dMax;
    m_bHasMax = TRUE;
    m_bMaxInclusive = bInclusive;
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
    if (!gfnKeepsMin(dLocal, m_bHasMin, m_dLocalMin, m_bMinInclusive) ||
        !gfnKeepsMax(dLocal, m_bHasMax, m_dLocalMax, m_bMaxInclusive))
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

// All digits, also of numbers that a bounded text would write with an exponent: that the user could not have
// typed.
void CLimitedDoubleCell::ShowDecimal()
{
    constexpr int kFewDecimals = 40;
    constexpr double kFewDigits = 1e50; // with those decimals it fits any bounded text
    if (std::fabs(m_dValue) < kFewDigits && m_nBrojDecimala <= kFewDecimals)
    {
        wchar_t szText[kDoubleTextSize];
        SetText(gfnFormatFixed(szText, m_nBrojDecimala, m_dValue));
        return;
    }
    SetText(gfnFormatAllDigits(m_nBrojDecimala, m_dValue));
}
