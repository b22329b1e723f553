#pragma once
// Asks the user for a name, to be typed or picked from a list.
//
// ```cpp
//     CStringArray names;
//     m_layers.GetNames(names);
//     CString strLayer = L"Axes";
//     if (gfnStartNazivComboDlg(strLayer, names, L"Sloj", this) == IDOK)
//         SaveTo(strLayer);                         // one of the list or another one
// ```
//
// The name stands selected in the box, so that typing replaces it; the list shows the names in the order
// given. A name may be of any length, and may be empty: no check is made, so a caller that wants one tests it
// afterwards.
//
// Language. The caption is shown as given; with an empty one it is "Snimi". That and the buttons are shown
// through gOtLang; the names are not translated.

#include <afxwin.h>
#include <afxcoll.h>

#include "dialogs/NazivDlgBase.h"

/// To be opened by gfnStartNazivComboDlg, which makes the library's resources current.
class OW_DIALOGCONTROLS_API CNazivComboDlg : public CNazivDlgBase
{
    DECLARE_DYNAMIC(CNazivComboDlg)

public:
    explicit CNazivComboDlg(CWnd* pParent = nullptr);
    ~CNazivComboDlg() override;

    /// What the list shows from the next opening on.
    void SetNames(const CStringArray& names);

protected:
    BOOL OnInitDialog() override;

private:
    void LetTextScroll();

    CComboBox m_comboNaziv;
    CStringArray m_names;
};

/// `strNaziv` is the start value, and on IDOK the result; else it stays. The parent may be null or without a
/// window: the dialog then stands over the application's window in front. Answers IDOK, IDCANCEL, or -1 if
/// the dialog could not be made.
OW_DIALOGCONTROLS_API int gfnStartNazivComboDlg(CString& strNaziv, const CStringArray& names,
                                                CString strCaption, CWnd* pParent);
