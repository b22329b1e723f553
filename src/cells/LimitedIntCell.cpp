#include <afxwin.h>

#include "cells/LimitedIntCell.h"

#include "cells/NumberLimits.h"
#include "cells/TypedNumber.h"
#include "edits/Digits.h"

#include <cstdlib>

IMPLEMENT_DYNCREATE(CLimitedIntCell, CGridCell)

void CLimitedIntCell::operator=(const CLimitedIntCell& cell)
{
    CGridCellBase::operator=(cell);
    m_nValue = cell.m_nValue;
    m_nMin = cell.m_nMin;
    m_nMax = cell.m_nMax;
    m_bHasMin = cell.m_bHasMin;
    m_bHasMax = cell.m_bHasMax;
    m_bMinInclusive = cell.m_bMinInclusive;
    m_bMaxInclusive = cell.m_bMaxInclusive;
}

void CLimitedIntCell::SetMin(int nMin, int bInclusive)
{
    m_nMin = nMin;
    m_bHasMin = TRUE;
    m_bMinInclusive = bInclusive;
}

void CLimitedIntCell::SetMax(int nMax, int bInclusive)
{
    m_nMax = nMax;
    m_bHasMax = TRUE;
    m_bMaxInclusive = bInclusive;
}

void CLimitedIntCell::Set(int nValue)
{
    m_nValue = nValue;
    constexpr int kSize = 12; // with sign and terminator
    wchar_t szText[kSize];
    wchar_t* const pszEnd = szText + kSize - 1;
    *pszEnd = L'\0';
    wchar_t* pszText = ow::gfnWriteDigits(pszEnd, static_cast<std::uint64_t>(std::llabs(nValue)));
    if (nValue < 0)
        *--pszText = L'-';
    SetText(pszText);
}

int CLimitedIntCell::Get() const
{
    return m_nValue;
}

BOOL CLimitedIntCell::ValidateEdit(LPCWSTR pszText)
{
    if (!gfnIsNumberText(pszText, L"-+"))
        return FALSE;
    const int nTyped = gfnReadInt(pszText);
    if (!gfnKeepsMin(nTyped, m_bHasMin, m_nMin, m_bMinInclusive) ||
        !gfnKeepsMax(nTyped, m_bHasMax, m_nMax, m_bMaxInclusive))
        return FALSE;
    Set(nTyped);
    return TRUE;
}

void CLimitedIntCell::SetFont(const LOGFONTW* /*plf*/)
{
}
