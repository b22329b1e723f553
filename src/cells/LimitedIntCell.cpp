#include <afxwin.h>

#include "cells/LimitedIntCell.h"

#include "cells/TypedNumber.h"

IMPLEMENT_DYNCREATE(CLimitedIntCell, CGridCell)

void CLimitedIntCell::operator=(const CLimitedIntCell& cell)
{
    CGridCellBase::operator=(cell);
    m_nValue = cell.m_nValue;
    m_limits = cell.m_limits;
}

void CLimitedIntCell::SetMin(int nMin, int bInclusive)
{
    m_limits.SetMin(nMin, bInclusive != 0);
}

void CLimitedIntCell::SetMax(int nMax, int bInclusive)
{
    m_limits.SetMax(nMax, bInclusive != 0);
}

void CLimitedIntCell::Set(int nValue)
{
    m_nValue = nValue;
    CString strText;
    strText.Format(L"%d", nValue);
    SetText(strText);
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
    if (!m_limits.Allow(nTyped))
        return FALSE;
    Set(nTyped);
    return TRUE;
}

void CLimitedIntCell::SetFont(const LOGFONTW* /*plf*/)
{
}
