#pragma once
// The add-on's message box: texts in the user's language, up to four buttons with captions of one's own.
//
// ```cpp
//     if (COstrelMessageBox::MessageBox(L"Brisanje tekuce konfiguracije?", L"Konfiguracije",
//                                       MB_YESNO | MB_ICONQUESTION) == IDYES) ...
//
//     switch (COstrelMessageBox::MessageBox(strText, strCaption, MB_ICONWARNING,
//                                           L"Zameni", L"Preskoci", L"Cancel", L""))
//     {
//     case 1: ...
//     }
//
//     COstrelMessageBox box(this);                       // prepared piece by piece
//     box.Set(strText, strCaption);
//     box.SetButtonText(1, L"Napred");
//     box.SetButtonText(2, L"Nazad");
//     if (box.DoModal() == 1) ...
// ```
//
// Language. Text, caption and captions of buttons are handed over in the source language and shown through
// gOtLang. The icons of OK and Cancel go by the captions "OK" and "Cancel" as handed over. Lines of a text
// end in "\r\n".
//
// Keys. Enter presses the button that has the focus, the first one in the beginning. Escape and the close box
// press none: they end the box with the answer that is told for each form.
//
// Size. The text is set in as few lines as it takes in 500 pixels, and the box grows with it. A text that is
// too long for the screen gets a scroll bar; wheel, Page Up and Page Down move it.
//
// Owner. The static forms stand over the window that has the focus. A box without an owner, or with one whose
// window is gone by the time the box opens, stands over the application's main window. The parent is not
// owned, and must live as long as the box.
//
// To be used on the main thread. Another thread leaves a code with COstrelMessenger.

#include <afxwin.h>

#include "module/Export.h"

#include <memory>

class COstrelMessageBoxA;

class OW_DIALOGCONTROLS_API COstrelMessageBox
{
public:
    explicit COstrelMessageBox(CWnd* pParent);
    ~COstrelMessageBox();
    COstrelMessageBox(const COstrelMessageBox&) = delete;
    COstrelMessageBox& operator=(const COstrelMessageBox&) = delete;

    /// The text and the caption that DoModal shows.
    void Set(const CString& strText, const CString& strCaption);

    /// The caption of a button, `nButton` from 1 to 4; any other number is an internal error and ends the
    /// process. There are as many buttons as the greatest number given, and one at least. The first one
    /// without a caption reads "OK", any other is blank.
    void SetButtonText(int nButton, const CString& strText);

    /// Shows what was prepared. The number of the pressed button; 0 for Escape, and 0 at once if Set was not
    /// called.
    int DoModal();

    /// A box as the system's, with MB_OK, MB_OKCANCEL, MB_YESNO or MB_YESNOCANCEL (any other number of
    /// buttons is taken for MB_OK), and one of the MB_ICON types or none; any other icon is an internal error
    /// and ends the process. Other bits do nothing. Answers IDOK, IDCANCEL, IDYES or IDNO, for Escape that of
    /// the last button.
    static int MessageBoxW(const CString& strText, const CString& strCaption, unsigned int uType);

    /// A box with captions of one's own. `uType` is an MB_ICON type or 0, and any other value, also with
    /// MB_OKCANCEL and the like in it, is an internal error that ends the process. There are as many buttons
    /// as the last text that is not empty; an empty one before it leaves its button blank, an empty first one
    /// reads "OK". Answers the number of the pressed button from 1 to 4, for Escape that of the last one;
    /// with four empty texts 1, or 0 for Escape.
    static int MessageBoxW(const CString& strText, const CString& strCaption, unsigned int uType,
                           const CString& b1, const CString& b2, const CString& b3, const CString& b4);

    /// Shows the system's text for an error code of GetLastError, in the system's own box; blank for a code
    /// that the system does not know. Always 0.
    static int ErrorBox(unsigned long nError);

    /// Tell that the copy-protection check found the protection (P) or the licence (L) wanting, with the
    /// check's code. Always 0.
    static int ErrorBoxP(int nCode);
    /// The licence.
    static int ErrorBoxL(int nCode);

private:
    std::unique_ptr<COstrelMessageBoxA> m_pBox;
};
