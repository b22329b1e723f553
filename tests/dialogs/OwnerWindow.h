#pragma once
// A window of the program, over which dialogs stand.

#include <afxwin.h>

class OwnerWindow : public CWnd
{
public:
    OwnerWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 200, 200, 400, 300,
                 nullptr, nullptr);
    }
    ~OwnerWindow() override { DestroyWindow(); }
};
