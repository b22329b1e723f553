// Command targets: the search of message maps for commands, and the state of user interface items.

#include <afxwin.h>
#include "msgmap.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

// The root of all maps; written out because the macros need a base class.
const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP messageMap = {nullptr, &entries[0]};
    return &messageMap;
}

const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code, UINT id)
{
    for (const AFX_MSGMAP_ENTRY* entry = entries; entry->nSig != AfxSig_end; ++entry)
        if (entry->nMessage == message && entry->nCode == code && id >= entry->nID && id <= entry->nLastID)
            return entry;
    return nullptr;
}

namespace
{
template <class R, class... A>
R CallHandler(CCmdTarget* target, AFX_PMSG handler, A... arguments)
{
    return (target->*RestoreHandlerType<R (CCmdTarget::*)(A...)>(handler))(arguments...);
}

/// Runs the handler of a command, notification or update request. FALSE when it lets the routing go on.
BOOL DispatchCmdMsg(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra)
{
    const auto notify = [extra] { return static_cast<AFX_NOTIFY*>(extra); };
    switch (entry.nSig)
    {
    case AfxSigCmd_v:
        CallHandler<void>(target, entry.pfn);
        return TRUE;
    case AfxSigCmd_b:
        return CallHandler<BOOL>(target, entry.pfn);
    case AfxSigCmd_RANGE:
        CallHandler<void, UINT>(target, entry.pfn, id);
        return TRUE;
    case AfxSigCmd_EX:
        return CallHandler<BOOL, UINT>(target, entry.pfn, id);
    case AfxSigNotify_v:
        CallHandler<void, NMHDR*, LRESULT*>(target, entry.pfn, notify()->pNMHDR, notify()->pResult);
        return TRUE;
    case AfxSigNotify_b:
        return CallHandler<BOOL, NMHDR*, LRESULT*>(target, entry.pfn, notify()->pNMHDR, notify()->pResult);
    case AfxSigNotify_RANGE:
        CallHandler<void, UINT, NMHDR*, LRESULT*>(target, entry.pfn, id, notify()->pNMHDR, notify()->pResult);
        return TRUE;
    case AfxSigNotify_EX_RANGE:
        return CallHandler<BOOL, UINT, NMHDR*, LRESULT*>(target, entry.pfn, id, notify()->pNMHDR,
                                                         notify()->pResult);
    case AfxSigCmdUI:
    {
        auto* const item = static_cast<CCmdUI*>(extra);
        item->m_bContinueRouting = FALSE;
        CallHandler<void, CCmdUI*>(target, entry.pfn, item);
        return !item->m_bContinueRouting;
    }
    default:
        ASSERT(FALSE); // the entry of a window message stands under a command's number
        return FALSE;
    }
}
} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    // The message of a notification travels in the high word of the code; a plain command has none there.
    UINT message = WM_COMMAND;
    UINT code = static_cast<UINT>(nCode);
    if (code != CN_UPDATE_COMMAND_UI)
    {
        message = HIWORD(nCode) != 0 ? HIWORD(nCode) : WM_COMMAND;
        code = LOWORD(nCode);
    }

    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr; map = BaseMap(*map))
    {
        const AFX_MSGMAP_ENTRY* const entry = FindMessageEntry(map->lpEntries, message, code, nID);
        if (entry == nullptr)
            continue;
        if (pHandlerInfo != nullptr)
        {
            pHandlerInfo->pTarget = this;
            pHandlerInfo->pmf = entry->pfn;
            return TRUE;
        }
        return DispatchCmdMsg(this, *entry, nID, pExtra);
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(0);
}

// ---------------------------------------------------------------------------------------------------------
// CCmdUI

CCmdUI::CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn)
{
    m_bEnableChanged = TRUE;
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return; // the state of a pop-up is that of its items
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_GRAYED));
        return;
    }
    if (m_pOther == nullptr)
        return;
    // A disabled control that keeps the focus would take the keyboard away from the user.
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
        if (CWnd* const parent = m_pOther->GetParent())
            parent->SendMessage(WM_NEXTDLGCTL, 0, FALSE);
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu == nullptr)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
        return;
    }
    if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0)
        m_pOther->SendMessage(BM_SETCHECK, nCheck);
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr)
        return;
    MENUITEMINFO info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfo(*m_pMenu, m_nIndex, TRUE, &info))
        return;
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfo(*m_pMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        MENUITEMINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(*m_pMenu, m_nIndex, TRUE, &info);
        return;
    }
    if (m_pOther == nullptr)
        return;
    CString current;
    m_pOther->GetWindowText(current);
    if (current != lpszText) // no flicker for a text that is there already
        m_pOther->SetWindowText(lpszText);
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE; // separators and static controls have no state

    m_bEnableChanged = FALSE;
    const BOOL handled = pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info{};
        const BOOL hasHandler = pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info);
        Enable(hasHandler);
    }
    return handled;
}
