// An end-plate connection of a beam to a column: the program around the dialog.
//
//     connection         in the language that was chosen last, or else in that of the system
//     connection en      in English
//     connection sr      in Serbian

#include <afxwin.h>

#include "ConnectionDialog.h"
#include "Language.h"

class CConnectionApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        SetRegistryKey(_T("DialogControlsOW examples")); // of column widths, colours and the language
        ChooseLanguage(m_lpCmdLine);
        CColorBtnST::Load();
        CConnectionDialog dialog(UserFolder());
        m_pMainWnd = &dialog;
        dialog.DoModal();
        CColorBtnST::Store();
        OwGetDllInterface()->Cleanup(nullptr);
        return FALSE; // the dialog was all there is
    }

    // Else it would be a parameter of the last message.
    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        return 0;
    }

private:
    static CString UserFolder()
    {
        CString strFolder;
        strFolder.GetEnvironmentVariable(_T("LOCALAPPDATA"));
        return strFolder + _T("\\DialogControlsOW connection");
    }
};

static CConnectionApp theApp;
