#include <afxwin.h>

#include "grid/GridCells.h"

#include "cells/GridCellBase.h"

#include <memory>
#include <utility>

CGridCells::~CGridCells()
{
    CutRows(0);
}

void CGridCells::InsertRow(int nRow, int nCols, const MakeCell& make)
{
    auto pRow = std::make_unique<CRow>();
    pRow->SetSize(nCols);
    m_rows.InsertAt(nRow, pRow.get());
    CRow& row = *pRow.release();
    try
    {
        for (int nCol = 0; nCol < nCols; ++nCol)
            row[nCol] = make(nRow, nCol);
    }
    catch (...)
    {
        RemoveRow(nRow);
        throw;
    }
}

void CGridCells::InsertColumn(int nCol, const MakeCell& make)
{
    int nRow = 0;
    try
    {
        for (; nRow < RowCount(); ++nRow)
        {
            std::unique_ptr<CGridCellBase> pCell(make(nRow, nCol));
            m_rows[nRow]->InsertAt(nCol, pCell.get());
            pCell.release();
        }
    }
    catch (...)
    {
        while (--nRow >= 0)
        {
            delete At(nRow, nCol);
            m_rows[nRow]->RemoveAt(nCol);
        }
        throw;
    }
}

void CGridCells::RemoveRow(int nRow)
{
    Delete(m_rows[nRow]);
    m_rows.RemoveAt(nRow);
}

void CGridCells::RemoveColumn(int nCol)
{
    for (int nRow = 0; nRow < RowCount(); ++nRow)
    {
        delete At(nRow, nCol);
        m_rows[nRow]->RemoveAt(nCol);
    }
}

void CGridCells::CutRows(int nRows)
{
    for (int nRow = nRows; nRow < RowCount(); ++nRow)
        Delete(m_rows[nRow]);
    m_rows.SetSize(nRows);
}

void CGridCells::SetColumns(int nCols)
{
    for (int nRow = 0; nRow < RowCount(); ++nRow)
    {
        CRow& row = *m_rows[nRow];
        for (INT_PTR nCol = nCols; nCol < row.GetSize(); ++nCol)
            delete row[nCol];
        row.SetSize(nCols);
    }
}

void CGridCells::FillFrom(int nCol, const MakeCell& make)
{
    for (int nRow = 0; nRow < RowCount(); ++nRow)
        for (int nEach = nCol; nEach < m_rows[nRow]->GetSize(); ++nEach)
            Put(nRow, nEach, make(nRow, nEach));
}

void CGridCells::SwapRows(int nRow, int nOther)
{
    std::swap(m_rows[nRow], m_rows[nOther]);
}

void CGridCells::Delete(CRow* pRow)
{
    for (INT_PTR nCol = 0; nCol < pRow->GetSize(); ++nCol)
        delete pRow->GetAt(nCol);
    delete pRow;
}
