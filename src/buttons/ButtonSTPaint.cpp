// How a button is painted. DrawItem is the whole pipeline; what it calls follows in its order.

#include <afxwin.h>

#include "buttons/ButtonST.h"

#include "buttons/ButtonSTImages.h"
#include "buttons/ThemeHelperST.h"
#include "module/GdiScope.h"

#include <vsstyle.h>

namespace
{
constexpr int kFocusInset = 3; // pixels
constexpr UINT kTitleFormat = DT_WORDBREAK | DT_CENTER;

/// Draws a line over three points, its last point left out, in a system colour.
void DrawCorner(CDC& dc, int nSysColor, CPoint from, CPoint over, CPoint to)
{
    CPen pen(PS_SOLID, 0, ::GetSysColor(nSysColor));
    const CGdiSelection selection(dc, pen);
    dc.MoveTo(from);
    dc.LineTo(over);
    dc.LineTo(to);
}

void FrameRect(CDC& dc, const CRect& rect, COLORREF cr)
{
    CBrush brush(cr);
    dc.FrameRect(rect, &brush);
}

/// Draws what has a mask: AND with the mask clears its place, OR with the image fills it.
void DrawMasked(CDC& dc, CPoint at, CSize size, CDC& dcImage, CDC& dcMask)
{
    dc.BitBlt(at.x, at.y, size.cx, size.cy, &dcMask, 0, 0, SRCAND);
    dc.BitBlt(at.x, at.y, size.cx, size.cy, &dcImage, 0, 0, SRCPAINT);
}

void DrawTitle(CDC& dc, const CString& strTitle, CRect rect, COLORREF cr)
{
    dc.SetTextColor(cr);
    dc.DrawText(strTitle, -1, rect, kTitleFormat);
}
} // namespace

void CButtonST::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect rectItem(lpDrawItemStruct->rcItem);
    CRect rectFace = rectItem;
    TakeStates(lpDrawItemStruct->itemState);
    pDC->SetBkMode(TRANSPARENT);

    if (m_bDrawTransparent)
        PaintBk(pDC);
    else
        OnDrawBackground(pDC, rectFace);
    OnDrawBorder(pDC, rectFace);

    CString strTitle;
    GetWindowText(strTitle);
    const BOOL bHasTitle = !strTitle.IsEmpty();
    CRect rectCaption = rectItem;
    if (m_icons[0].hIcon)
        DrawTheIcon(pDC, bHasTitle, rectItem, rectCaption, m_bIsPressed, m_bIsDisabled);
    if (m_bitmaps[0].hBitmap)
    {
        pDC->SetBkColor(RGB(255, 255, 255)); // what the white of a mask becomes
        DrawTheBitmap(pDC, bHasTitle, rectItem, rectCaption, m_bIsPressed, m_bIsDisabled);
    }
    if (bHasTitle)
        DrawTheText(pDC, strTitle, rectItem, rectCaption, m_bIsPressed, m_bIsDisabled);
    DrawFocus(pDC, rectFace);
}

// A checked box looks pressed.
void CButtonST::TakeStates(UINT nItemState)
{
    m_bIsPressed = (nItemState & ODS_SELECTED) != 0 || (m_bIsCheckBox && m_nChecked != 0);
    m_bIsFocused = (nItemState & ODS_FOCUS) != 0;
    m_bIsDisabled = (nItemState & ODS_DISABLED) != 0;
}

// ---- Background -------------------------------------------------------------------------------------------

DWORD CButtonST::OnDrawBackground(CDC* pDC, CRect& rect)
{
    if (IsThemed())
    {
        DrawThemedBackground(pDC, rect);
        return resultOk;
    }
    if (!m_bIsFlat && (m_bIsFocused || m_bIsDefault))
    {
        FrameRect(*pDC, rect, RGB(0, 0, 0));
        rect.DeflateRect(1, 1);
    }
    CBrush brush(m_crColors[StateColor(colorBackIn, colorBackFocus, colorBackOut)]);
    pDC->FillRect(rect, &brush);
    return resultOk;
}

void CButtonST::DrawThemedBackground(CDC* pDC, const CRect& rect)
{
    const HTHEME hTheme = m_pTheme->OpenThemeData(m_hWnd, m_bDrawAsToolbar ? L"TOOLBAR" : L"BUTTON");
    if (!hTheme)
        return;
    m_pTheme->DrawThemeParentBackground(m_hWnd, pDC->m_hDC, rect);
    m_pTheme->DrawThemeBackground(hTheme, pDC->m_hDC, BP_PUSHBUTTON, ThemeState(), rect, nullptr);
    m_pTheme->CloseThemeData(hTheme);
}

// Part and states of a toolbar button have the numbers of a push button's. A toolbar button has no look of a
// default button, and its fifth state is "checked"; it takes that if it shows borders.
int CButtonST::ThemeState() const
{
    if (m_bIsDisabled)
        return PBS_DISABLED;
    if (m_bIsPressed)
        return PBS_PRESSED;
    if (m_bMouseOnButton)
        return PBS_HOT;
    return m_bIsDefault && (!m_bDrawAsToolbar || m_bDrawBorder) ? PBS_DEFAULTED : PBS_NORMAL;
}

CButtonST::EColor CButtonST::StateColor(EColor in, EColor focus, EColor out) const
{
    if (m_bMouseOnButton || m_bIsPressed)
        return in;
    return m_bIsFocused ? focus : out;
}

// ---- Border -----------------------------------------------------------------------------------------------

DWORD CButtonST::OnDrawBorder(CDC* pDC, CRect& rect)
{
    if (IsThemed())
        return resultOk;
    const COLORREF crLight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF crShadow = ::GetSysColor(COLOR_BTNSHADOW);
    if (!m_bIsFlat)
    {
        if (m_bIsPressed)
            FrameRect(*pDC, rect, crShadow);
        else
            DrawRaisedBorder(pDC, rect);
    }
    else if (m_bDrawBorder)
    {
        if (m_bIsPressed)
            pDC->Draw3dRect(rect, crShadow, crLight);
        else if (m_bMouseOnButton)
            pDC->Draw3dRect(rect, crLight, crShadow);
    }
    return resultOk;
}

void CButtonST::DrawRaisedBorder(CDC* pDC, const CRect& rect)
{
    const auto [left, top, right, bottom] = static_cast<const RECT&>(rect);
    DrawCorner(*pDC, COLOR_BTNHIGHLIGHT, {left, bottom - 1}, {left, top}, {right, top});
    DrawCorner(*pDC, COLOR_3DLIGHT, {left + 1, bottom - 1}, {left + 1, top + 1}, {right, top + 1});
    DrawCorner(*pDC, COLOR_3DDKSHADOW, {left, bottom - 1}, {right - 1, bottom - 1}, {right - 1, top - 1});
    DrawCorner(*pDC, COLOR_BTNSHADOW, {left + 1, bottom - 2}, {right - 2, bottom - 2}, {right - 2, top});
}

// ---- Images -----------------------------------------------------------------------------------------------

// A check box shows its first image while checked only, a push button under the mouse, too.
int CButtonST::ShownImage(bool bHasSecond, BOOL bPressed) const
{
    const bool bFirst = bPressed || (!m_bIsCheckBox && m_bMouseOnButton);
    return bFirst || !bHasSecond ? 0 : 1;
}

// The two lower rows are as callers know them: an image at the right without a title keeps to the top, and
// with one gives the title a width that still counts from the caption's old left; alignNone moves nothing at
// all.
CRect CButtonST::PrepareImageRect(BOOL bHasTitle, const CRect& rectItem, CRect& rectCaption, BOOL bPressed,
                                  CSize image) const
{
    CRect rect = rectItem;
    const int nMiddleX = (rect.Width() - image.cx) / 2;
    const int nMiddleY = (rect.Height() - image.cy) / 2;
    switch (m_nAlign)
    {
    case alignLeft:
        rect.top += nMiddleY;
        rect.left += bHasTitle ? m_ptImageOrigin.x : nMiddleX;
        if (bHasTitle)
            rectCaption.left += m_ptImageOrigin.x + image.cx;
        break;
    case alignTop:
        rect.left += nMiddleX;
        rect.top = bHasTitle ? m_ptImageOrigin.y : rect.top + nMiddleY;
        if (bHasTitle)
            rectCaption.top += image.cy;
        break;
    case alignRight:
        if (bHasTitle)
        {
            CRect rectClient;
            GetClientRect(rectClient);
            rectCaption.right -= rectCaption.left + m_ptImageOrigin.x + image.cx;
            rectCaption.left = m_ptImageOrigin.x;
            rect.left = rectClient.right - m_ptImageOrigin.x - image.cx;
            rect.top += nMiddleY;
        }
        else
            rect.left += nMiddleX;
        break;
    case alignNone:
        break;
    }
    if (bPressed && !m_bIsCheckBox)
        rect.OffsetRect(m_ptPressedOffset);
    return rect;
}

// Drawn as when enabled, and turned grey where it stands.
void CButtonST::DrawTheIcon(CDC* pDC, BOOL bHasTitle, const CRect& rectItem, CRect& rectCaption,
                            BOOL bPressed, BOOL bDisabled)
{
    const ButtonIcon& icon = m_icons[ShownImage(m_icons[1].hIcon != nullptr, bPressed)];
    const CRect rect = PrepareImageRect(bHasTitle, rectItem, rectCaption, bPressed, icon.size);
    pDC->DrawState(rect.TopLeft(), rect.Size(), icon.hIcon, DSS_NORMAL, static_cast<CBrush*>(nullptr));
    if (bDisabled)
        ButtonImages::DisableArea(*pDC, CRect(rect.TopLeft(), icon.size));
}

void CButtonST::DrawTheBitmap(CDC* pDC, BOOL bHasTitle, const CRect& rectItem, CRect& rectCaption,
                              BOOL bPressed, BOOL bDisabled)
{
    const ButtonBitmap& bitmap = m_bitmaps[ShownImage(m_bitmaps[1].hBitmap != nullptr, bPressed)];
    const CRect rect = PrepareImageRect(bHasTitle, rectItem, rectCaption, bPressed, bitmap.size);
    CDC dcImage, dcMask;
    dcImage.CreateCompatibleDC(pDC);
    dcMask.CreateCompatibleDC(pDC);
    const CGdiSelection image(dcImage, bitmap.hBitmap);
    const CGdiSelection mask(dcMask, bitmap.hMask);
    if (bDisabled && m_bShowDisabledBitmap)
        DrawDisabledBitmap(pDC, rect, bitmap.size, dcImage, dcMask);
    else
        DrawMasked(*pDC, rect.TopLeft(), bitmap.size, dcImage, dcMask);
}

// Kept: the fill names a brush that nobody ever made. A system that takes white for it leaves the transparent
// part out of the engraving; one that refuses leaves the ground black and engraves it, too.
void CButtonST::DrawDisabledBitmap(CDC* pDC, const CRect& rectImage, CSize size, CDC& dcImage, CDC& dcMask)
{
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(pDC, size.cx, size.cy);
    {
        CDC dc;
        dc.CreateCompatibleDC(pDC);
        const CGdiSelection selection(dc, bitmap);
        const CRect rectFill(0, 0, rectImage.right + 1, rectImage.bottom + 1);
        ::FillRect(dc, rectFill, reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(0xFFFFFF)));
        const CBkColorScope white(dc, RGB(255, 255, 255));
        DrawMasked(dc, CPoint(0, 0), size, dcImage, dcMask);
    }
    pDC->DrawState(rectImage.TopLeft(), size, static_cast<HBITMAP>(bitmap), DSS_DISABLED);
}

// ---- Title and focus --------------------------------------------------------------------------------------

void CButtonST::DrawTheText(CDC* pDC, const CString& strTitle, const CRect&, CRect& rectCaption,
                            BOOL bPressed, BOOL bDisabled)
{
    if (bPressed && !m_bIsCheckBox)
        rectCaption.OffsetRect(m_ptPressedOffset);
    const CRect rectRoom = rectCaption;
    pDC->DrawText(strTitle, -1, rectCaption, kTitleFormat | DT_CALCRECT);
    rectCaption.OffsetRect((rectCaption.left - rectCaption.right - rectRoom.left + rectRoom.right) / 2,
                           (rectCaption.top - rectCaption.bottom - rectRoom.top + rectRoom.bottom) / 2);

    pDC->SetBkMode(TRANSPARENT);
    if (bDisabled)
    {
        DrawTitle(*pDC, strTitle, rectCaption + CPoint(1, 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
        DrawTitle(*pDC, strTitle, rectCaption, ::GetSysColor(COLOR_BTNSHADOW));
        return;
    }
    pDC->SetBkColor(m_crColors[StateColor(colorBackIn, colorBackFocus, colorBackOut)]);
    DrawTitle(*pDC, strTitle, rectCaption, m_crColors[StateColor(colorTextIn, colorTextFocus, colorTextOut)]);
}

void CButtonST::DrawItemHook_CalcRect(CDC* pDC, const CString& strText, CRect& rect)
{
    pDC->DrawText(strText, -1, rect, kTitleFormat | DT_CALCRECT);
}

void CButtonST::DrawItemHook_DrawText(CDC* pDC, const CString& strText, CRect& rect)
{
    pDC->DrawText(strText, -1, rect, kTitleFormat);
}

void CButtonST::DrawFocus(CDC* pDC, const CRect& rect)
{
    if (!m_bIsFocused || (m_bIsFlat && !m_bDrawFlatFocus))
        return;
    CRect rectFocus = rect;
    rectFocus.DeflateRect(kFocusInset, kFocusInset);
    pDC->DrawFocusRect(rectFocus);
}
