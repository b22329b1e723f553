// Buttons with pictures.

#include <afxext.h>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton() = default;
CBitmapButton::~CBitmapButton() = default;

CBitmapButton::CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                             LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled)
{
    LoadBitmaps(lpszBitmapResource, lpszBitmapResourceSel, lpszBitmapResourceFocus,
                lpszBitmapResourceDisabled);
}

CBitmapButton::CBitmapButton(UINT nIDBitmapResource, UINT nIDBitmapResourceSel, UINT nIDBitmapResourceFocus,
                             UINT nIDBitmapResourceDisabled)
{
    LoadBitmaps(nIDBitmapResource, nIDBitmapResourceSel, nIDBitmapResourceFocus, nIDBitmapResourceDisabled);
}

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled)
{
    for (CBitmap* const bitmap : {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled})
        bitmap->DeleteObject();
    if (!m_bitmap.LoadBitmap(lpszBitmapResource))
        return FALSE;
    const auto load = [](CBitmap& bitmap, LPCTSTR name)
    { return name == nullptr || bitmap.LoadBitmap(name); };
    const bool pressed = load(m_bitmapSel, lpszBitmapResourceSel);
    const bool focused = load(m_bitmapFocus, lpszBitmapResourceFocus);
    const bool disabled = load(m_bitmapDisabled, lpszBitmapResourceDisabled);
    return pressed && focused && disabled;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled)
{
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus), MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent)
{
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    CString name;
    GetWindowText(name);
    LoadBitmaps(name + L"U", name + L"D", name + L"F", name + L"X");
    if (m_bitmap.GetSafeHandle() == nullptr)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent()
{
    ASSERT(m_bitmap.GetSafeHandle() != nullptr); // LoadBitmaps first
    BITMAP bitmap;
    VERIFY(m_bitmap.GetBitmap(&bitmap));
    SetWindowPos(nullptr, 0, 0, bitmap.bmWidth, bitmap.bmHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    ASSERT(m_bitmap.GetSafeHandle() != nullptr); // LoadBitmaps first
    const auto shows = [&](UINT state, const CBitmap& bitmap)
    { return (lpDrawItemStruct->itemState & state) != 0 && bitmap.GetSafeHandle() != nullptr; };
    CBitmap* shown = &m_bitmap;
    if (shows(ODS_SELECTED, m_bitmapSel))
        shown = &m_bitmapSel;
    else if (shows(ODS_FOCUS, m_bitmapFocus))
        shown = &m_bitmapFocus;
    else if (shows(ODS_DISABLED, m_bitmapDisabled))
        shown = &m_bitmapDisabled;

    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect rect(lpDrawItemStruct->rcItem);
    CDC source;
    source.CreateCompatibleDC(dc);
    CBitmap* const before = source.SelectObject(shown);
    dc->BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &source, 0, 0, SRCCOPY);
    source.SelectObject(before);
}
