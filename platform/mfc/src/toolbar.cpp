// Tool bar controls.

#include "commctl.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

CToolBarCtrl::CToolBarCtrl() = default;

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!RegisterCommonControls(ICC_BAR_CLASSES) ||
        !CWnd::CreateEx(dwExStyle, TOOLBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON)); // by which the control tells its callers' versions
    return TRUE;
}

BOOL CToolBarCtrl::GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const
{
    ptbbi->cbSize = sizeof *ptbbi;
    return AfxSend<int>(TB_GETBUTTONINFO, nID, ptbbi) != -1;
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID)
{
    TBADDBITMAP added{AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return AfxSend<int>(TB_ADDBITMAP, nNumButtons, &added);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap)
{
    TBADDBITMAP added{nullptr, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return AfxSend<int>(TB_ADDBITMAP, nNumButtons, &added);
}

CImageList* CToolBarCtrl::SetList(UINT message, CImageList* list)
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(message, 0, SafeImages(list)));
}

CImageList* CToolBarCtrl::GetDisabledImageList() const
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(TB_GETDISABLEDIMAGELIST));
}

int CToolBarCtrl::AddString(UINT nStringID)
{
    CString text;
    VERIFY(text.LoadString(nStringID));
    text.AppendChar(L'\0'); // the end of the row, behind the text's own
    return AddStrings(text);
}

CString CToolBarCtrl::GetString(int nString) const
{
    return WholeText([this, nString](LPTSTR buffer, int size)
                     { return AfxSend<int>(TB_GETSTRING, MAKEWPARAM(size, nString), buffer); });
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(FromHandle(AfxSend<HWND>(TB_GETTOOLTIPS)));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip)
{
    AfxSend(TB_SETTOOLTIPS, SafeHwnd(pTip));
}

void CToolBarCtrl::SetOwner(CWnd* pWnd)
{
    AfxSend(TB_SETPARENT, SafeHwnd(pWnd));
    CWnd::SetOwner(pWnd);
}

void CToolBarCtrl::SaveOrRestore(bool save, HKEY root, LPCTSTR key, LPCTSTR value)
{
    TBSAVEPARAMS place{root, key, value};
    AfxSend(TB_SAVERESTORE, save, &place);
}

HRESULT CToolBarCtrl::GetDropTarget(IDropTarget** ppDropTarget) const
{
    return AfxSend<HRESULT>(TB_GETOBJECT, &IID_IDropTarget, ppDropTarget);
}
