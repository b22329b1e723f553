// A client in one file: a window with a text box of the library, which tells what is typed into it.
//
// Started with the argument "--check" it types by itself, prints what it was told, and ends.

#include <afxwin.h>

#include <DialogControlsOW.h>

#include <cstdio>
#include <cstring>

class CClientWindow : public CWnd, public CEditNNotificationHandler
{
public:
    bool Create()
    {
        const CString strClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW),
                                                     reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
        return CreateEx(0, strClass, _T("Client"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 420, 200), nullptr, 0) &&
               m_edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP, CRect(20, 20, 280, 42), this, 1);
    }
    CEditN& Edit() { return m_edit; }

    // The box was given no handler, so it tells its parent.
    void OnEditNChange(int nId) override
    {
        CString strText;
        m_edit.GetWindowText(strText);
        std::printf("box %d: %ls\n", nId, strText.GetString());
        std::fflush(stdout);
    }

protected:
    void PostNcDestroy() override { ::PostQuitMessage(0); }

private:
    CEditN m_edit{nullptr};
};

static CWinApp theApp;

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 1;
    CClientWindow window;
    if (!window.Create())
        return 1;
    theApp.m_pMainWnd = &window;
    if (argc > 1 && std::strcmp(argv[1], "--check") == 0)
    {
        for (wchar_t ch : {L'I', L'P', L'E'})
            window.Edit().SendMessage(WM_CHAR, ch);
        window.DestroyWindow();
        return 0;
    }
    window.ShowWindow(SW_SHOW);
    return theApp.Run();
}
