// Which physical unit a column holds.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include <Translator.h>

void CGridCtrl::SetColComplexUnit(int nCol, const CComplexUnit& unit)
{
    m_mapColUnit.Set(nCol, unit);
}

void CGridCtrl::SetColComplexUnit(int nCol)
{
    m_mapColUnit.Remove(nCol);
}

BOOL CGridCtrl::GetColComplexUnit(int nCol, CComplexUnit& unit)
{
    const CComplexUnit* const pUnit = FindColComplexUnit(nCol);
    if (pUnit)
        unit = *pUnit;
    return pUnit != nullptr;
}

void CGridCtrl::ResetAllComplexUnits()
{
    m_mapColUnit.RemoveAll();
}

void CGridCtrl::SetColDescription(int nCol, CComplexUnit* pUnit, CString desc)
{
    CString strHeading = gOtLang.Do(desc);
    if (pUnit)
    {
        SetColComplexUnit(nCol, *pUnit);
        const CString strDescription = strHeading;
        strHeading.Format(L"%s [%s]", strDescription.GetString(), pUnit->Symbol().GetString());
    }
    else
        SetColComplexUnit(nCol);
    SetItemText(0, nCol, strHeading);
}
