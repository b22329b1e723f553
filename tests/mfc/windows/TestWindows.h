#pragma once
// What the tests of this folder share: small windows, the message that ends a program, and another application.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>

/// A hidden top-level window without a frame.
inline BOOL CreatePopup(CWnd& window, CWnd* owner = nullptr, DWORD style = 0)
{
    return window.CreateEx(0, nullptr, L"", WS_POPUP | style, CRect(0, 0, 50, 50), owner, 0);
}

inline BOOL CreateChild(CWnd& child, CWnd& parent, UINT id)
{
    return child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, id);
}

/// Whether the end of the program was asked for; takes the message out of the queue.
inline bool TakeQuitMessage()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}

/// A test with an application of its own beside the test program's, which is put back afterwards.
template <class App>
class WithApplication : public ::testing::Test
{
protected:
    WithApplication()
    {
        AfxGetModuleState()->m_pCurrentWinApp = nullptr;
        app = std::make_unique<App>();
    }
    ~WithApplication() override
    {
        app.reset();
        AfxGetModuleState()->m_pCurrentWinApp = m_programs;
        AfxGetModuleState()->m_lpszCurrentAppName = m_programs->m_pszAppName;
        AfxGetModuleThreadState()->m_pCurrentWinThread = m_programs;
    }

    std::unique_ptr<App> app;

private:
    CWinApp* m_programs = AfxGetApp();
};
