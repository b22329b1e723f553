// Grids as text files, and column widths kept in the application's profile.
//
// A file has one line for each row; fields are separated by one character and not quoted, so that a field
// with the separator or a line feed in it comes back as two. The first line holds the headings.
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

namespace
{
constexpr wchar_t kSection[] = L"OstrelWorks";
constexpr wchar_t kWidthEntry[] = L"%s_col_%d";
constexpr int kLineLength =
    1024; ///< characters of a line, with its terminator; a longer one is read in pieces

/// Takes the fields of a line apart, in the line's own buffer.
///
/// Behind the last field of a line without a line feed the search goes on, in what an earlier and longer line
/// has left in the buffer: a file's last line should end in a line feed, as every line that Save writes does.
class CTokens
{
public:
    CTokens(wchar_t* pszLine, wchar_t chSeparator)
        : m_pszNext(pszLine), m_pszEnd(pszLine + kLineLength), m_chSeparator(chSeparator)
    {
    }

    /// The next field, which may be empty; null when there is none any more.
    LPCWSTR Next()
    {
        if (m_pszNext >= m_pszEnd)
            return nullptr;
        wchar_t* const pszToken = m_pszNext;
        wchar_t* psz = pszToken;
        while (*psz && *psz != m_chSeparator && *psz != L'\n')
            ++psz; // the buffer's last character is 0
        if (!*psz && psz == pszToken)
            return nullptr;
        *psz = 0;
        m_pszNext = psz + 1;
        return pszToken;
    }

private:
    wchar_t* m_pszNext;
    wchar_t* m_pszEnd;
    wchar_t m_chSeparator;
};
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
        WriteRows(file, chSeparator);
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

void CGridCtrl::WriteRows(CStdioFile& file, wchar_t chSeparator)
{
    const wchar_t szSeparator[] = {chSeparator, 0};
    const int nCols = GetColumnCount();
    for (int nRow = 0; nRow < GetRowCount(); ++nRow)
        for (int nCol = 0; nCol < nCols; ++nCol)
        {
            file.WriteString(GetItemText(nRow, nCol));
            file.WriteString(nCol < nCols - 1 ? szSeparator : L"\n");
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
        ReadRows(file, chSeparator);
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

void CGridCtrl::ReadRows(CStdioFile& file, wchar_t chSeparator)
{
    wchar_t szLine[kLineLength] = {};
    if (!file.ReadString(szLine, kLineLength))
        return;
    CTokens headings(szLine, chSeparator);
    while (const LPCWSTR pszToken = headings.Next())
        InsertColumn(pszToken, GV_HEADING_FORMAT, -1);

    // Row 0 holds the headings, so the appended rows begin at 1 while this counts from 0.
    for (int nRow = 0; file.ReadString(szLine, kLineLength); ++nRow)
    {
        CTokens fields(szLine, chSeparator);
        int nCol = 0;
        while (const LPCWSTR pszToken = fields.Next())
        {
            if (nCol == 0)
                InsertRow(pszToken, -1);
            else
                SetItemText(nRow, nCol, pszToken);
            ++nCol;
        }
    }
}

// ---- Saved widths -----------------------------------------------------------------------------------------

void CGridCtrl::SetPersistentGridColumnsWidth(const CString& key, int n)
{
    m_strPersistKey.Format(L"%s_%d", key.GetString(), n);
}

CString CGridCtrl::WidthEntry(int nCol) const
{
    CString strEntry;
    strEntry.Format(kWidthEntry, m_strPersistKey.GetString(), nCol);
    return strEntry;
}

/// The width of an earlier run, or the given one.
int CGridCtrl::SavedWidth(int nCol, int nDefault) const
{
    CWinApp* const pApp = AfxGetApp();
    if (m_strPersistKey.IsEmpty() || !pApp)
        return nDefault;
    return std::max(0, static_cast<int>(pApp->GetProfileInt(kSection, WidthEntry(nCol), nDefault)));
}

void CGridCtrl::WriteSavedWidths()
{
    CWinApp* const pApp = AfxGetApp();
    for (int nCol = 0; pApp && nCol < GetColumnCount(); ++nCol)
        pApp->WriteProfileInt(kSection, WidthEntry(nCol), m_cols.Size(nCol));
}
