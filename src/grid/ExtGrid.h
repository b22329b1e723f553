#pragma once
// What the extended grids share: a handler that is called in place of three of a grid's notifications, and the
// hook on the parent that takes those. See CExtGridCtrl and CExtGridCtrl2, which are what a client uses.

#include <afxwin.h>

#include <memory>

#include "grid/ExtGridHook.h"
#include "grid/GridCtrl.h"

template <class Handler>
class CExtGrid : public CGridCtrl
{
public:
    /// Hooks the parent, for a grid that took over the window of a dialog template. Does nothing without a
    /// parent, or if it is hooked already; Create does it by itself.
    void InstallMessageHook() { m_pHook->HookParent(); }

protected:
    CExtGrid(Handler* pHandler, std::unique_ptr<CParentHook> pHook)
        : m_pHandler(pHandler), m_pHook(std::move(pHook))
    {
    }

    afx_msg int OnCreate(LPCREATESTRUCTW lpCreateStruct)
    {
        if (CGridCtrl::OnCreate(lpCreateStruct) == -1)
            return -1;
        InstallMessageHook();
        return 0;
    }
    DECLARE_MESSAGE_MAP()

    Handler& GetHandler() const
    {
        ASSERT(m_pHandler);
        return *m_pHandler;
    }

    Handler* m_pHandler; ///< not owned
    std::unique_ptr<CParentHook> m_pHook;
};

BEGIN_TEMPLATE_MESSAGE_MAP(CExtGrid, Handler, CGridCtrl)
    ON_WM_CREATE()
END_MESSAGE_MAP()
