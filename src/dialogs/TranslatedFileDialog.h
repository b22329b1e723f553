#pragma once
// The system's dialog to open or save a file, with its texts in the user's language.
//
// ```cpp
//     CString strPath;
//     if (gfnStartTranslatedFileDialog(strPath, TRUE, L"txt", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
//                                      L"Text (*.txt)|*.txt|All files (*.*)|*.*||", m_hWnd, nullptr) == IDOK)
//         Read(strPath);
// ```
//
// Translated through gOtLang: the caption, the two buttons, and the labels of folder, file name and file
// type. Without a title the caption is "Ucitaj" (load) or "Snimi kao..." (save as); a title is shown as it
// stands, an empty one too. File lists, tooltips and the questions that the system asks are in the system's
// language.
//
// Arguments, which go to CFileDialog:
//
//     bOpen         nonzero to open a file, 0 to save one
//     pszDefExt     added to a name typed without an extension; null adds none
//     pszFileName   start value, with or without a folder; null or empty for none. It is cut after the 259
//                   characters that the system's dialog takes
//     dwFlags       OFN_ flags
//     pszFilter     pairs of a text and a pattern, each ended by '|', the whole by "||". A missing end is
//                   added, and the pattern *.* to a last text that has none. Null or empty: no choice
//     parent        null, or a window that is gone: the application's main window
//
// All pointers may be null.

#include <afxwin.h>
#include <afxdlgs.h>

#include "module/Export.h"

/// To be opened by gfnStartTranslatedFileDialog, which makes the library's resources current.
class OW_DIALOGCONTROLS_API CTranslatedFileDialog : public CFileDialog
{
public:
    /// `pszTitle` is not owned, and must live until the dialog has opened; the other texts are copied.
    CTranslatedFileDialog(int bOpen, const wchar_t* pszDefExt, const wchar_t* pszFileName,
                          unsigned long dwFlags, const wchar_t* pszFilter, CWnd* pParent,
                          const wchar_t* pszTitle);

protected:
    BOOL OnInitDialog() override;

private:
    CString Caption() const;

    int m_bOpen;
    const wchar_t* m_pszTitle;
};

/// Answers IDOK, or IDCANCEL for a Cancel and for a dialog that the system could not show;
/// CommDlgExtendedError tells them apart. `strPath` receives the whole path; after a Cancel what the dialog
/// holds then, which may be empty or the start value, so look at the answer first. Of several files
/// (OFN_ALLOWMULTISELECT) it is their folder.
OW_DIALOGCONTROLS_API int gfnStartTranslatedFileDialog(CString& strPath, int bOpen, const wchar_t* pszDefExt,
                                                       const wchar_t* pszFileName, unsigned long dwFlags,
                                                       const wchar_t* pszFilter, HWND hParent,
                                                       const wchar_t* pszTitle);
