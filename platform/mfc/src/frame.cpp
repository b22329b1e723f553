// Frame windows.

#include "threadstate.h"
#include "wndclass.h"

#include <afxpriv.h>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd() = default;

// clang-format off
BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CLOSE()
    ON_WM_ENABLE()
    ON_WM_INITMENUPOPUP()
    ON_WM_QUERYENDSESSION()
END_MESSAGE_MAP()
// clang-format on

// ---------------------------------------------------------------------------------------------------------
// Creation

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = RegisterFrameClass();
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext)
{
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr)
    {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr)
        {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    // CW_USEDEFAULT is kept as the width and height where the rectangle asks for it, as differences would
    // lose it.
    const bool defaultSize = rect.left == CW_USEDEFAULT && rect.right == 0;
    const int width = defaultSize ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = defaultSize ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                 pParentWnd->GetSafeHwnd(), menu, pContext))
        return TRUE;
    if (menu != nullptr)
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName)
{
    ASSERT(m_hAccelTable == nullptr);
    m_hAccelTable =
        ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

void CFrameWnd::PostNcDestroy()
{
    delete this; // frame windows are made with new
}

// ---------------------------------------------------------------------------------------------------------
// Commands

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    CWnd::PreTranslateMessage(pMsg); // tool tips look on
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return isKey && m_hAccelTable != nullptr && ::TranslateAccelerator(m_hWnd, m_hAccelTable, pMsg) != 0;
}

// ---------------------------------------------------------------------------------------------------------
// Messages

void CFrameWnd::OnClose()
{
    CWinApp* const app = AfxGetApp();
    if (app != nullptr && app->m_pMainWnd == this)
        app->HideApplication(); // at once, even if the end takes its time
    DestroyWindow();
}

void CFrameWnd::OnEnable(BOOL bEnable)
{
    if (bEnable && (m_nFlags & WF_STAYDISABLED) != 0)
    {
        EnableWindow(FALSE); // another modal state is still on
        ::SetFocus(nullptr);
        return;
    }
    // A modal dialog that disables the frame means all of the application's windows.
    if (!bEnable && !InModalState())
    {
        m_bModalDisable = TRUE;
        BeginModalState();
    }
    else if (bEnable && m_bModalDisable)
    {
        m_bModalDisable = FALSE;
        EndModalState();
    }
    Default();
}

namespace
{
/// Writes the states of a pop-up menu's items.
void UpdateMenu(CFrameWnd& frame, CMenu& popup, bool disableWithoutHandler)
{
    CCmdUI item;
    item.m_pMenu = &popup;
    item.m_nIndexMax = popup.GetMenuItemCount();
    for (item.m_nIndex = 0; item.m_nIndex < item.m_nIndexMax; ++item.m_nIndex)
    {
        // 0 for a separator, -1 for a pop-up, which is brought up to date when it opens: both have no state.
        item.m_nID = popup.GetMenuItemID(static_cast<int>(item.m_nIndex));
        item.DoUpdate(&frame, disableWithoutHandler && item.m_nID < 0xF000);
        item.m_nIndexMax = popup.GetMenuItemCount(); // a handler may change the menu
    }
}
} // namespace

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu)
{
    if (!bSysMenu && pPopupMenu != nullptr)
        UpdateMenu(*this, *pPopupMenu, m_bAutoMenuEnable != FALSE);
}

// ---------------------------------------------------------------------------------------------------------
// Operations

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    if (nCmdShow == -1)
    {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    BringWindowToTop();
    if (nCmdShow != -1)
    {
        ShowWindow(nCmdShow);
        BringWindowToTop();
    }
}

namespace
{
bool IsOwnedBy(HWND window, HWND owner)
{
    for (HWND above = ::GetWindow(window, GW_OWNER); above != nullptr; above = ::GetWindow(above, GW_OWNER))
        if (above == owner)
            return true;
    return false;
}

struct COwnedWindows
{
    HWND owner;
    std::vector<HWND> enabled;
};

BOOL CALLBACK CollectEnabledOwned(HWND window, LPARAM parameter)
{
    auto& owned = *reinterpret_cast<COwnedWindows*>(parameter);
    if (IsOwnedBy(window, owned.owner) && ::IsWindowEnabled(window) &&
        ::SendMessage(window, WM_DISABLEMODAL, 0, 0) == 0)
        owned.enabled.push_back(window);
    return TRUE;
}
} // namespace

void CFrameWnd::BeginModalState()
{
    if (++m_cModalStack > 1)
        return;
    COwnedWindows owned{m_hWnd, {}};
    ::EnumThreadWindows(::GetCurrentThreadId(), &CollectEnabledOwned, reinterpret_cast<LPARAM>(&owned));
    m_disabledByModal = owned.enabled;
    for (const HWND window : m_disabledByModal)
    {
        // A frame among them keeps the wish to stay disabled, whoever enables it meanwhile.
        if (CWnd* const object = FromHandlePermanent(window))
            object->m_nFlags |= WF_STAYDISABLED;
        ::EnableWindow(window, FALSE);
    }
}

void CFrameWnd::EndModalState()
{
    if (m_cModalStack == 0 || --m_cModalStack > 0)
        return;
    const auto disabled = std::exchange(m_disabledByModal, {});
    for (const HWND window : disabled)
    {
        if (!::IsWindow(window))
            continue;
        if (CWnd* const object = FromHandlePermanent(window))
            object->m_nFlags &= ~WF_STAYDISABLED;
        ::EnableWindow(window, TRUE);
    }
}
