#pragma once
// What the tests of this folder share: a window for controls to stand in.

#include <afxcmn.h>

#include "../base/Answers.h"

#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // they are zero, which is what is meant

/// A visible top-level window of 400 by 300 pixels. Its data exchange is whatever the test puts into
/// `exchange`.
class HostWindow : public CWnd
{
public:
    HostWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"host", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 20, 20, 400,
                 300, nullptr, nullptr);
    }
    ~HostWindow() override { DestroyWindow(); }

    /// A control made without an object, as a dialog template makes it.
    HWND AddControl(LPCTSTR className, int id, DWORD style = 0)
    {
        const int row = m_rows++;
        return ::CreateWindow(className, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 10, 10 + 25 * row,
                              120, 22, m_hWnd, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
                              nullptr);
    }

    std::function<void(CDataExchange*)> exchange;

    /// Takes the values of the controls, and answers the text of the message box if they are refused.
    CString Refusal()
    {
        CString told;
        const owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                constexpr int messageId = 0xFFFF;
                box.GetDlgItemText(messageId, told);
                box.SendMessage(WM_COMMAND, IDOK);
            });
        const BOOL taken = UpdateData(TRUE);
        EXPECT_EQ(taken, visit.Count() == 0);
        return told;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        if (exchange)
            exchange(pDX);
    }

private:
    int m_rows = 0;
};

constexpr DWORD CHILD = WS_CHILD | WS_VISIBLE;
