// Menus.

#include <afxwin.h>

#include "handlemap.h"
#include "safehandle.h"

template <>
struct CHandleTraits<CMenu>
{
    using Handle = HMENU;
    static void Assign(CMenu& menu, HMENU handle) { menu.m_hMenu = handle; }
};

namespace
{
using CMenuMap = CHandleMap<CMenu>;

/// A bitmap in the place of an item's text.
LPCTSTR AsItem(const CBitmap* bitmap)
{
    return reinterpret_cast<LPCTSTR>(SafeBitmap(bitmap));
}
} // namespace

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::CMenu() = default;

HMENU CMenu::GetSafeHmenu() const
{
    return SafeMenu(this);
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return CMenuMap::OfThread().FromHandle(hMenu);
}

void PASCAL CMenu::DeleteTempMap()
{
    DeleteTempOfThread<CMenu>();
}

BOOL CMenu::Attach(HMENU hMenu)
{
    return AttachHandle(*this, m_hMenu, hMenu);
}

HMENU CMenu::Detach()
{
    return DetachHandle(*this, m_hMenu);
}

// ---------------------------------------------------------------------------------------------------------
// Creation

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu()
{
    if (m_hMenu == nullptr)
        return FALSE;
    return ::DestroyMenu(Detach());
}

// ---------------------------------------------------------------------------------------------------------
// Tracking

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, SafeHwnd(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, SafeHwnd(pWnd), lptpm);
}

// ---------------------------------------------------------------------------------------------------------
// Items

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length > 0)
    {
        ::GetMenuString(m_hMenu, nIDItem, rString.GetBufferSetLength(length), length + 1, nFlags);
        rString.ReleaseBuffer();
    }
    else
    {
        rString.Empty();
    }
    return rString.GetLength();
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

// ---------------------------------------------------------------------------------------------------------
// State of items

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, SafeBitmap(pBmpUnchecked),
                                SafeBitmap(pBmpChecked));
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, fByPos, gmdiFlags);
}

// ---------------------------------------------------------------------------------------------------------
// The menu as a whole

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT)
{
}
