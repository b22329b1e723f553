// The demonstration host: the gallery as a program.

#include <afxwin.h>

#include "GalleryDialog.h"

#include <acadhost.h>

class CGalleryApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        CGalleryDialog dialog;
        m_pMainWnd = &dialog;
        dialog.DoModal();
        OwGetDllInterface()->Cleanup(nullptr);
        return FALSE; // the dialog was all there is
    }

    // Else it would be a parameter of the last message.
    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        return 0;
    }
};

static CGalleryApp theApp;
