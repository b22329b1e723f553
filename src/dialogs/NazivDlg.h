#pragma once
// Asks the user for a name.
//
// ```cpp
//     CString strMark = L"B1";
//     if (gfnStartNazivDlg(strMark, L"Oznaka grede") == IDOK && !strMark.IsEmpty())
//         SetMark(strMark);
// ```
//
// The name stands selected in the box, so that typing replaces it. Enter accepts, Escape and the close box
// cancel. A name may be of any length, and may be empty: no check is made, so a caller that wants one tests
// it afterwards.
//
// Language. The caption is shown as given; with an empty one it is "Naziv". That and the buttons are shown
// through gOtLang.

#include <afxwin.h>

#include "dialogs/NazivDlgBase.h"

/// To be opened by gfnStartNazivDlg, which makes the library's resources current.
class OW_DIALOGCONTROLS_API CNazivDlg : public CNazivDlgBase
{
    DECLARE_DYNAMIC(CNazivDlg)

public:
    explicit CNazivDlg(CWnd* pParent = nullptr);
    ~CNazivDlg() override;

protected:
    BOOL OnInitDialog() override;

private:
    CEdit m_editNaziv;
};

/// `strNaziv` is the start value, and on IDOK the result; else it stays. The dialog stands over the
/// application's window in front. Answers IDOK, IDCANCEL, or -1 if the dialog could not be made.
OW_DIALOGCONTROLS_API int gfnStartNazivDlg(CString& strNaziv, CString strCaption);
