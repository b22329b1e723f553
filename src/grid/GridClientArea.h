#pragma once
// For the grid's own sources: a context of the grid's window for the length of a scope. A grid that has no
// window yet measures on the screen.

#include <afxwin.h>

class CClientArea
{
public:
    explicit CClientArea(const CWnd& window) : m_hWnd(window.m_hWnd)
    {
        if (!m_hWnd || ::IsWindow(m_hWnd))
            m_hDC = ::GetDC(m_hWnd);
    }
    ~CClientArea()
    {
        if (m_hDC)
            ::ReleaseDC(m_hWnd, m_hDC);
    }
    CClientArea(const CClientArea&) = delete;
    CClientArea& operator=(const CClientArea&) = delete;

    /// Null if there is no context to be had.
    CDC* DC() const { return m_hDC ? CDC::FromHandle(m_hDC) : nullptr; }

private:
    HWND m_hWnd;
    HDC m_hDC = nullptr;
};
