#pragma once
// The widths of a grid's columns, kept in the application's profile from one run to the next.
//
//     const CSavedWidths saved(CSavedWidths::KeyOf(L"Parts", 1));
//     nWidth = saved.Read(2, 60);                  // 60 if nothing was saved
//     saved.Write(columns);
//
// They stand in the section OstrelWorks under KEY_col_INDEX, in pixels. An empty key, or a process without an
// application object, saves nothing.

#include <afxwin.h>

#include "module/Export.h"

class CGridAxis;

class OW_DIALOGCONTROLS_API CSavedWidths
{
public:
    /// The key of one of several grids with the same name.
    static CString KeyOf(const CString& strName, int n);

    explicit CSavedWidths(const CString& strKey);

    /// Never negative.
    int Read(int nCol, int nDefault) const;
    void Write(const CGridAxis& columns) const;

private:
    CString EntryOf(int nCol) const;

    CString m_strKey;
    CWinApp* m_pApp; ///< null to save nothing
};
