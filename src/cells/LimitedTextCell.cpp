#include <afxwin.h>

#include "cells/LimitedTextCell.h"

IMPLEMENT_DYNCREATE(CLimitedTextCell, CGridCell)

void CLimitedTextCell::operator=(const CLimitedTextCell& cell)
{
    CGridCellBase::operator=(cell);
    m_bHasMax = cell.m_bHasMax;
    m_nMax = cell.m_nMax;
}

void CLimitedTextCell::SetMax(unsigned nMax)
{
    m_nMax = nMax;
    m_bHasMax = TRUE;
}

unsigned CLimitedTextCell::GetMax() const
{
    constexpr unsigned kWithoutLimit = 100;
    return m_bHasMax ? m_nMax : kWithoutLimit;
}

// Any text: the length is a number kept for others.
BOOL CLimitedTextCell::ValidateEdit(LPCWSTR /*pszText*/)
{
    return TRUE;
}

void CLimitedTextCell::SetFont(const LOGFONTW* /*plf*/)
{
}
