#include <afxwin.h>

#include "buttons/BitmapBtnST.h"

#include "buttons/DropButton.h"
#include "buttons/DropMenu.h"
#include "module/GdiScope.h"
#include "module/HostResourceScope.h"

#include <span>

namespace
{
void LoadPictures(HINSTANCE hInstance, std::span<const WORD> ids, std::span<HBITMAP> handles, bool& loaded)
{
    const CHostResourceScope resources;
    for (size_t i = 0; i < ids.size(); ++i)
        handles[i] = ::LoadBitmap(hInstance, MAKEINTRESOURCE(ids[i]));
    loaded = true;
}

void UnloadPictures(std::span<HBITMAP> handles, bool& loaded)
{
    if (!loaded)
        return;
    for (HBITMAP& handle : handles)
    {
        ::DeleteObject(handle);
        handle = nullptr;
    }
    loaded = false;
}

/// How a picture lies in its area, in one direction.
struct Placing
{
    int source; ///< where the copy begins in the picture
    int target; ///< and in the area
    int extent;
};

/// In the middle; of a picture that is larger than the area the middle shows.
Placing PlaceInMiddle(int picture, int area)
{
    if (picture > area)
        return {(picture - area) / 2, 0, area};
    return {0, (area - picture) / 2, picture};
}

/// The colour that a picture of one bit lies on: the middle of the face, whatever painted it. Where only a
/// part of the button is painted, and the middle is not in it, another point of the picture's area has to do.
COLORREF FaceColor(CDC& dc, const CRect& face, const CRect& area)
{
    if (dc.PtVisible(face.CenterPoint()))
        return dc.GetPixel(face.CenterPoint());
    CRect painted;
    dc.GetClipBox(painted);
    painted.IntersectRect(painted, area);
    return dc.GetPixel(painted.CenterPoint());
}

// The ids in table order.
// clang-format off
constexpr WORD kKotnaLinija[] = {
    10101, 10102, 10103, 10104, 10105, 10106, 10107, 10108, 10109, 10110, 10111, 10112, 10113, 10114,
    10115, 10116, 10117, 10118, 10119, 10120, 10121
};
constexpr WORD kTekstKote[] = {10122, 10123, 10124, 10125, 10126, 10127};
constexpr WORD kSrafura[] = {
    10139, 10140, 10141, 10142, 10143, 10144, 10145, 10146, 10147, 10148
};
constexpr WORD kVisinskaKota[] = {10179, 10180, 10181};
constexpr WORD kLinija[] = {
    10076, 10077, 10078, 10079, 10080, 10183, 10184, 10182, 10185, 10187, 10189, 10190, 10191
};
constexpr WORD kSimbolPresekaZavrsetak[] = {
    10128, 10129, 10130, 10131, 10132, 10133, 10134, 10135, 10136, 10137, 10138
};
// clang-format on
} // namespace

CBitmapBtnST::CBitmapBtnST() = default;

CBitmapBtnST::CBitmapBtnST(ABitmapBtnSTNotificationHandler* pHandler) : m_pChoiceHandler(pHandler)
{
}

CBitmapBtnST::~CBitmapBtnST() = default;

BEGIN_MESSAGE_MAP(CBitmapBtnST, CButtonST)
    ON_CONTROL_REFLECT(BN_CLICKED, &CBitmapBtnST::OnClicked)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

void CBitmapBtnST::OnClicked()
{
    CButtonST::OnClicked();
    const std::shared_ptr<PictureMenu> pOpen = m_pMenu;
    gfnTrackDropMenu(*this, pOpen->popup);
}

// The menu's pictures lie on the former colour of menus.
void CBitmapBtnST::OnSysColorChange()
{
    CButtonST::OnSysColorChange();
    CreateMenusAndBitmaps();
}

// ---- Messages outside the map -----------------------------------------------------------------------------

void CBitmapBtnST::PreSubclassWindow()
{
    CreateMenusAndBitmaps();
    gfnBecomePushButton(*this);
    CButtonST::PreSubclassWindow();
}

// A choice. Kept: there is no lower bound, so an id below the menu's own is stored as a negative index, and
// every command is told to the handler, whether it was stored or not.
BOOL CBitmapBtnST::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND hWnd = m_hWnd;
    const int nStart = static_cast<int>(GetStartWindowMsg());
    if (m_pnEnumSource && wParam < static_cast<WPARAM>(nStart + BitmapCount()))
        *m_pnEnumSource = LOWORD(wParam) - nStart;
    if (m_pChoiceHandler)
        m_pChoiceHandler->OnBitmapChosen(GetDlgCtrlID(), GetEnumSource());
    return gfnEndDropChoice(*this, hWnd) ? CButtonST::OnCommand(wParam, lParam) : TRUE;
}

// ---- Source -----------------------------------------------------------------------------------------------

void CBitmapBtnST::SetEnumSource(int* pnSource)
{
    m_pnEnumSource = pnSource;
    if (m_pnEnumSource && m_hWnd)
        Invalidate(FALSE);
}

int CBitmapBtnST::GetEnumSource() const
{
    return m_pnEnumSource ? *m_pnEnumSource : 0;
}

// ---- Menu -------------------------------------------------------------------------------------------------

UINT CBitmapBtnST::GetStartWindowMsg() const
{
    return 0x9000;
}

void CBitmapBtnST::CreateMenusAndBitmaps()
{
    DeleteMenusAndBitmaps();
    CopyPictures(*m_pMenu);
    AppendItems(*m_pMenu);
}

void CBitmapBtnST::DeleteMenusAndBitmaps()
{
    m_pMenu = std::make_shared<PictureMenu>();
}

// A picture of one bit takes on the colours of the context that it is copied to: black, as every new context
// has it, on the colour of menus. A picture that is missing leaves an empty bitmap and size.
void CBitmapBtnST::CopyPictures(PictureMenu& menu)
{
    const int nCount = BitmapCount();
    menu.bitmaps = std::vector<CBitmap>(nCount);
    menu.sizes.assign(nCount, CSize(0, 0));

    CClientDC dcButton(this);
    CDC dcSource, dcTarget;
    dcSource.CreateCompatibleDC(&dcButton);
    dcTarget.CreateCompatibleDC(&dcButton);
    dcTarget.SetBkColor(::GetSysColor(COLOR_MENU));
    for (int i = 0; i < nCount; ++i)
    {
        BITMAP info{};
        if (!::GetObject(GetBitmap(i), sizeof(info), &info))
            continue;
        menu.sizes[i].SetSize(info.bmWidth, info.bmHeight);
        menu.bitmaps[i].CreateCompatibleBitmap(&dcButton, info.bmWidth, info.bmHeight);
        const CGdiSelection source(dcSource, GetBitmap(i));
        const CGdiSelection target(dcTarget, menu.bitmaps[i]);
        dcTarget.BitBlt(0, 0, info.bmWidth, info.bmHeight, &dcSource, 0, 0, SRCCOPY);
    }
}

// An item without a picture keeps its place, so that the ids of the others stay what they are.
void CBitmapBtnST::AppendItems(PictureMenu& menu)
{
    menu.popup.CreatePopupMenu();
    UINT nId = GetStartWindowMsg();
    for (const CBitmap& bitmap : menu.bitmaps)
    {
        if (bitmap.GetSafeHandle())
            menu.popup.AppendMenu(MF_BITMAP, nId, &bitmap);
        else
            menu.popup.AppendMenu(MF_STRING, nId, _T(""));
        ++nId;
    }
}

// ---- Painting ---------------------------------------------------------------------------------------------

DWORD CBitmapBtnST::OnDrawBackground(CDC* pDC, CRect& rect)
{
    CButtonST::OnDrawBackground(pDC, rect);
    const CRect face = gfnDropFace(rect, m_bIsPressed);
    gfnDrawDropArrow(*pDC, face, m_bIsDisabled);
    if (!m_bIsDisabled)
        DrawPicture(*pDC, face);
    return resultOk;
}

// Nothing is drawn of a picture that is not there, nor of an index that names none.
void CBitmapBtnST::DrawPicture(CDC& dc, const CRect& face) const
{
    const CRect area = gfnDropPictureArea(face);
    const int nIndex = m_pnEnumSource ? *m_pnEnumSource : -1;
    const auto& sizes = m_pMenu->sizes;
    if (nIndex < 0 || nIndex >= static_cast<int>(sizes.size()) || area.IsRectEmpty())
        return;
    CDC dcPicture;
    dcPicture.CreateCompatibleDC(&dc);
    const CGdiSelection picture(dcPicture, GetBitmap(nIndex));
    if (!picture)
        return;
    const Placing across = PlaceInMiddle(sizes[nIndex].cx, area.Width());
    const Placing down = PlaceInMiddle(sizes[nIndex].cy, area.Height());
    const CTextColorScope text(dc, RGB(0, 0, 0));
    const CBkColorScope background(dc, FaceColor(dc, face, area));
    dc.BitBlt(area.left + across.target, area.top + down.target, across.extent, down.extent, &dcPicture,
              across.source, down.source, SRCCOPY);
}

// ---- The classes of the family ----------------------------------------------------------------------------

#define OW_IMPLEMENT_PICTURES(Class, ids)                                                                    \
    decltype(Class::s_pictures) Class::s_pictures;                                                           \
    void Class::LoadBitmaps(HINSTANCE hInstance)                                                             \
    {                                                                                                        \
        LoadPictures(hInstance, ids, s_pictures.handles, s_pictures.loaded);                                 \
    }                                                                                                        \
    void Class::UnloadBitmaps()                                                                              \
    {                                                                                                        \
        UnloadPictures(s_pictures.handles, s_pictures.loaded);                                               \
    }                                                                                                        \
    HBITMAP Class::GetBitmap(int index) const                                                                \
    {                                                                                                        \
        return s_pictures.handles[index];                                                                    \
    }                                                                                                        \
    int Class::BitmapCount() const                                                                           \
    {                                                                                                        \
        static_assert(std::size(ids) == std::size(decltype(s_pictures.handles){}));                          \
        return static_cast<int>(std::size(ids));                                                             \
    }

OW_IMPLEMENT_PICTURES(CBitmapBtnSTKotnaLinija, kKotnaLinija)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTTekstKote, kTekstKote)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTSrafura, kSrafura)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTVisinskaKota, kVisinskaKota)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTLinija, kLinija)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTSimbolPresekaLinija, kLinija)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTSimbolPresekaZavrsetak, kSimbolPresekaZavrsetak)

UINT CBitmapBtnSTTekstKote::GetStartWindowMsg() const
{
    return 0x900A;
}
