#pragma once
// For the cells' own sources: another text in a cell for the length of a scope.

#include "cells/GridCellBase.h"

class CCellTextScope
{
public:
    CCellTextScope(CGridCellBase& cell, LPCWSTR pszText) : m_cell(cell), m_strKept(cell.GetText())
    {
        m_cell.SetText(pszText);
    }
    ~CCellTextScope() { m_cell.SetText(m_strKept); }
    CCellTextScope(const CCellTextScope&) = delete;
    CCellTextScope& operator=(const CCellTextScope&) = delete;

private:
    CGridCellBase& m_cell;
    CString m_strKept;
};
