#include <afxwin.h>

#include "grid/ExtGridHook.h"

#include <commctrl.h>

CParentHook::CParentHook(CWnd& grid) : m_grid(grid)
{
}

CParentHook::~CParentHook()
{
    Unhook();
    m_parent.m_hWnd = nullptr; // it is not ours to destroy
}

void CParentHook::HookParent()
{
    const HWND hParent = m_grid.GetSafeHwnd() ? ::GetParent(m_grid.m_hWnd) : nullptr;
    if (IsHooked() || !hParent)
        return;
    CWnd* const pParent = CWnd::FromHandlePermanent(hParent);
    m_parent.m_hWnd = pParent ? nullptr : hParent;
    HookWindow(pParent ? pParent : &m_parent);
}

// Called past the parent, which would have reported the exception of a handler.
LRESULT CParentHook::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_NOTIFY || !IsGridId(wParam))
        return Default();
    const MSG msg{m_pWnd->GetSafeHwnd(), message, wParam, lParam, 0, {}};
    try
    {
        return OnGridNotify(*reinterpret_cast<NMHDR*>(lParam));
    }
    catch (CException* e)
    {
        const LRESULT lResult = AfxProcessWndProcException(e, &msg);
        e->Delete();
        return lResult;
    }
}

LRESULT CParentHook::OnGridNotify(NMHDR& header)
{
    LRESULT lResult = 1;
    switch (header.code)
    {
    case LVN_ENDLABELEDITW:
        OnGridEndEdit(&header, &lResult);
        return lResult;
    case LVN_ITEMCHANGED:
        OnGridSelChanged(&header, &lResult);
        return lResult;
    case NM_RCLICK:
        OnGridRClick(&header, &lResult);
        return lResult;
    default:
        return Default();
    }
}

/// A grid whose window has gone before the parent's has no id.
bool CParentHook::IsGridId(WPARAM wParam) const
{
    return m_grid.GetSafeHwnd() && m_grid.GetDlgCtrlID() == static_cast<int>(wParam);
}
