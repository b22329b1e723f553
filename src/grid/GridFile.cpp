// Grids as text files, and column widths kept in the application's profile.
//
// A file has one line for each row; fields are separated by one character and not quoted, so that a field
// with the separator or a line feed in it comes back as two. The first line holds the headings. How the fields
// of a line are told apart stands in TextFields.h.
//
// The reader puts the first field of each data line one row below the others of that line. So a file that was
// saved with more than one column does not come back as it was: of
//
//     A,B          Load makes    A D
//     C,D                        C -
//
// That is how the files in use are read, and it stays.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/SavedWidths.h"
#include "grid/TextFields.h"

namespace
{
void WriteRows(const CGridCtrl& grid, CStdioFile& file, wchar_t chSeparator)
{
    const wchar_t szSeparator[] = {chSeparator, 0};
    const int nCols = grid.GetColumnCount();
    for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow)
        for (int nCol = 0; nCol < nCols; ++nCol)
        {
            file.WriteString(grid.GetItemText(nRow, nCol));
            file.WriteString(nCol < nCols - 1 ? szSeparator : L"\n");
        }
}

void ReadRows(CGridCtrl& grid, CStdioFile& file, wchar_t chSeparator)
{
    wchar_t szLine[CTextFields::kLineSize] = {};
    if (!file.ReadString(szLine, CTextFields::kLineSize))
        return;
    CTextFields headings(szLine, chSeparator);
    while (const LPCWSTR pszHeading = headings.Next())
        grid.InsertColumn(pszHeading, GV_HEADING_FORMAT, -1);

    // Row 0 holds the headings, so the appended rows begin at 1 while this counts from 0.
    for (int nRow = 0; file.ReadString(szLine, CTextFields::kLineSize); ++nRow)
    {
        CTextFields fields(szLine, chSeparator);
        int nCol = 0;
        while (const LPCWSTR pszField = fields.Next())
        {
            if (nCol == 0)
                grid.InsertRow(pszField, -1);
            else
                grid.SetItemText(nRow, nCol, pszField);
            ++nCol;
        }
    }
}
} // namespace

BOOL CGridCtrl::Save(LPCWSTR szFileName, wchar_t chSeparator)
{
    CStdioFile file;
    CFileException error;
    if (!file.Open(szFileName, CFile::modeCreate | CFile::modeWrite | CFile::typeText, &error))
    {
        error.ReportError();
        return FALSE;
    }
    try
    {
        WriteRows(*this, file, chSeparator);
        file.Close();
        return TRUE;
    }
    catch (CFileException* e)
    {
        e->Delete();
        AfxMessageBox(L"Unable to save grid list");
        return FALSE;
    }
}

// From the moment that the file is open the old contents are lost, whatever the file holds.
BOOL CGridCtrl::Load(LPCWSTR szFileName, wchar_t chSeparator)
{
    if (m_bVirtualMode)
        return FALSE;
    CStdioFile file;
    CFileException error;
    if (!file.Open(szFileName, CFile::modeRead | CFile::typeText, &error))
    {
        error.ReportError();
        return FALSE;
    }
    if (!DeleteAllItems() || m_bVirtualMode)
        return FALSE; // the end of an edit may have changed that
    try
    {
        ReadRows(*this, file, chSeparator);
        AutoSizeColumns(m_nAutoSizeStyle);
        file.Close();
        return TRUE;
    }
    catch (CFileException* e)
    {
        e->Delete();
        AfxMessageBox(L"Unable to load grid data");
        return FALSE;
    }
}

// ---- Saved widths -----------------------------------------------------------------------------------------

void CGridCtrl::SetPersistentGridColumnsWidth(const CString& key, int n)
{
    m_strPersistKey = CSavedWidths::KeyOf(key, n);
}
