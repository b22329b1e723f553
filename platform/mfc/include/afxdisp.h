#pragma once
#define __AFXDISP_H__ // asked for by the headers that wizards make
// OLE as a dialog program starts it: for drag and drop, the clipboard's data objects, file dialogs of the shell.
//
//     BOOL CMyApp::InitInstance()
//     {
//         if (!AfxOleInit())
//             return FALSE;
//         AfxEnableControlContainer();
//         ...
//
// Automation, documents and ActiveX controls are no part of this MFC: a dialog template that holds an ActiveX
// control cannot be made.

#include <afxwin.h>

#include <ole2.h>

class COccManager;

/// Initialises OLE for the calling thread, which needs a CWinThread object, and has it ended with that thread. FALSE
/// when the system refuses, for instance because the thread is in a multi-threaded apartment.
AFX_CORE_API BOOL AFXAPI AfxOleInit();
/// Ends OLE on the thread earlier than at its end. With `bJustRevoke` it only goes on.
AFX_CORE_API void AFXAPI AfxOleTerm(BOOL bJustRevoke = FALSE);

/// Wizards call it. There is nothing to enable, see above.
AFX_CORE_API void AFX_CDECL AfxEnableControlContainer(COccManager* pOccManager = nullptr);
