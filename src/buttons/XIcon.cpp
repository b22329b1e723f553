#include <afxwin.h>

#include "buttons/XIcon.h"

#include "module/GdiScope.h"
#include "module/MemorySurface.h"

#include <cstdlib>

namespace
{
constexpr int kPointsPerInch = 72;
constexpr int kEndGap = 2;      // pixels behind icon and text
constexpr int kShrinkSlack = 5; // a window that is wider than needed by no more than this is left alone
constexpr DWORD kButtonTypeBits = 0x0F;

int ScreenDpi()
{
    CDC dc;
    dc.CreateDC(_T("DISPLAY"), nullptr, nullptr, nullptr);
    return dc.GetDeviceCaps(LOGPIXELSY);
}

/// With DrawText's prefix character counted as any other.
int TextWidth(CDC& dc, const CString& strText)
{
    CSize size;
    ::GetTextExtentPoint32W(dc.m_hAttribDC, strText, strText.GetLength(), &size);
    return size.cx;
}

UINT VerticalFormat(DWORD dwStyle)
{
    switch (dwStyle & BS_VCENTER)
    {
    case BS_TOP:
        return DT_SINGLELINE;
    case BS_BOTTOM:
        return DT_SINGLELINE | DT_BOTTOM;
    default:
        return DT_SINGLELINE | DT_VCENTER;
    }
}
} // namespace

CXIcon::CXIcon() = default;

CXIcon::~CXIcon()
{
    ReplaceIcon(nullptr, false);
}

BEGIN_MESSAGE_MAP(CXIcon, CButton)
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

// DrawItem covers the whole area; erasing it first would flicker.
BOOL CXIcon::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CXIcon::PreSubclassWindow()
{
    if ((GetStyle() & kButtonTypeBits) != BS_OWNERDRAW)
        return; // stays an ordinary button, with the font that its dialog gave it
    LOGFONTW logFont{};
    if (CFont* pFont = GetSafeFont())
        pFont->GetLogFont(&logFont);
    logFont.lfCharSet = DEFAULT_CHARSET;
    ReplaceFont(logFont);
    CButton::PreSubclassWindow();
}

CXIcon& CXIcon::SetMargins(int nX, int nY, int bRepaint)
{
    m_nMarginX = nX;
    m_nMarginY = nY;
    return Changed(bRepaint);
}

void CXIcon::GetMargins(int& nX, int& nY) const
{
    nX = m_nMarginX;
    nY = m_nMarginY;
}

CXIcon& CXIcon::SetIconSpacing(int nSpacing, int bRepaint)
{
    m_nIconSpacing = nSpacing;
    return Changed(bRepaint);
}

int CXIcon::GetIconSpacing() const
{
    return m_nIconSpacing;
}

CXIcon& CXIcon::SetTextColor(DWORD crText, int bRepaint)
{
    m_crText = crText;
    return Changed(bRepaint);
}

DWORD CXIcon::GetTextColor() const
{
    return m_crText;
}

CXIcon& CXIcon::SetAutoResize(int bAutoResize, int bRepaint)
{
    m_bAutoResize = bAutoResize;
    return Changed(bRepaint);
}

int CXIcon::GetAutoResize() const
{
    return m_bAutoResize;
}

CXIcon& CXIcon::SetIcon(HICON hIcon, UINT nSize, int bRepaint)
{
    m_nIconSize = static_cast<int>(nSize);
    ReplaceIcon(hIcon, false);
    return Changed(bRepaint);
}

CXIcon& CXIcon::SetIcon(UINT nId, UINT nSize, int bRepaint)
{
    AFX_MANAGE_STATE(AfxGetAppModuleState());
    m_nIconSize = static_cast<int>(nSize);
    HANDLE hIcon = nullptr;
    if (nId != 0)
        hIcon = ::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(nId), IMAGE_ICON, m_nIconSize,
                             m_nIconSize, 0);
    ReplaceIcon(static_cast<HICON>(hIcon), true);
    return Changed(bRepaint);
}

CXIcon& CXIcon::SetWindowTextW(const wchar_t* pszText, int bRepaint)
{
    AFX_MANAGE_STATE(AfxGetAppModuleState());
    CString strText;
    if (pszText && IS_INTRESOURCE(pszText))
        strText.LoadString(LOWORD(pszText));
    else
        strText = pszText;
    if (m_hWnd)
        CButton::SetWindowTextW(strText);
    return Changed(bRepaint);
}

CXIcon& CXIcon::SetBold(int bBold, int bRepaint)
{
    LOGFONTW logFont = DescribeFont();
    logFont.lfWeight = bBold ? FW_BOLD : FW_NORMAL;
    ReplaceFont(logFont);
    return Changed(bRepaint);
}

int CXIcon::GetBold()
{
    return DescribeFont().lfWeight == FW_BOLD;
}

CXIcon& CXIcon::SetFont(const wchar_t* pszFace, int nPoints, int bRepaint)
{
    LOGFONTW logFont{};
    if (pszFace && *pszFace)
        wcsncpy_s(logFont.lfFaceName, pszFace, _TRUNCATE);
    else
        logFont = DescribeFont();
    logFont.lfHeight = GetFontHeight(nPoints);
    return SetFont(&logFont, bRepaint);
}

CXIcon& CXIcon::SetFont(CFont* pFont, int bRepaint)
{
    if (!pFont)
        pFont = GetSafeFont();
    LOGFONTW logFont{};
    if (!pFont || !pFont->GetLogFont(&logFont))
        return *this;
    return SetFont(&logFont, bRepaint);
}

CXIcon& CXIcon::SetFont(LOGFONTW* pLogFont, int bRepaint)
{
    if (!pLogFont)
        return *this;
    ReplaceFont(*pLogFont);
    return Changed(bRepaint);
}

CFont* CXIcon::GetFont()
{
    return &m_font;
}

int CXIcon::GetFont(LOGFONTW* pLogFont)
{
    if (!pLogFont)
        return 0;
    *pLogFont = DescribeFont();
    return 1;
}

CString CXIcon::GetFontFaceName()
{
    LOGFONTW logFont{};
    return m_font.m_hObject && m_font.GetLogFont(&logFont) ? logFont.lfFaceName : L"MS Sans Serif";
}

int CXIcon::GetFontPointSize()
{
    return GetFontPointSize(DescribeFont().lfHeight);
}

int CXIcon::GetFontHeight(int nPoints)
{
    return -::MulDiv(nPoints, ScreenDpi(), kPointsPerInch);
}

int CXIcon::GetFontPointSize(int nHeight)
{
    return std::abs(::MulDiv(nHeight, kPointsPerInch, ScreenDpi()));
}

CFont* CXIcon::GetSafeFont()
{
    if (CFont* pFont = m_hWnd ? CButton::GetFont() : nullptr)
        return pFont;
    const CWnd* pParent = m_hWnd ? GetParent() : nullptr;
    if (CFont* pFont = pParent && ::IsWindow(pParent->m_hWnd) ? pParent->GetFont() : nullptr)
        return pFont;
    for (int nStockFont : {DEFAULT_GUI_FONT, SYSTEM_FONT, ANSI_VAR_FONT})
    {
        if (const HGDIOBJ hFont = ::GetStockObject(nStockFont))
            return CFont::FromHandle(static_cast<HFONT>(hFont));
    }
    return nullptr;
}

/// How every setter ends.
CXIcon& CXIcon::Changed(int bRepaint)
{
    if (!m_hWnd) // a null window means the desktop to RedrawWindow
        return *this;
    if (m_bAutoResize)
        Resize();
    if (bRepaint)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return *this;
}

void CXIcon::ReplaceIcon(HICON hIcon, bool bOwned)
{
    if (m_bOwnsIcon && m_hIcon)
        ::DestroyIcon(m_hIcon);
    m_hIcon = hIcon;
    m_bOwnsIcon = bOwned;
}

/// All zero without a font.
LOGFONTW CXIcon::DescribeFont()
{
    LOGFONTW logFont{};
    if (m_font.m_hObject)
        m_font.GetLogFont(&logFont);
    return logFont;
}

void CXIcon::ReplaceFont(const LOGFONTW& logFont)
{
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&logFont);
}

CString CXIcon::Title() const
{
    CString strTitle;
    GetWindowText(strTitle);
    return strTitle;
}

void CXIcon::Resize()
{
    if (!m_hWnd)
        return;
    CRect rect;
    GetWindowRect(rect);
    if (CWnd* pParent = GetParent())
        pParent->ScreenToClient(rect);
    const int nWidth = WantedWidth();
    if (nWidth > rect.Width() || nWidth < rect.Width() - kShrinkSlack)
        MoveWindow(rect.left, rect.top, nWidth, rect.Height(), TRUE);
}

int CXIcon::WantedWidth()
{
    int nWidth = m_nMarginX;
    if (const CString strTitle = Title(); !strTitle.IsEmpty())
    {
        CClientDC dc(this);
        const CGdiSelection font(dc, m_font.m_hObject);
        nWidth += TextWidth(dc, strTitle) + kEndGap;
        if (m_hIcon)
            nWidth += m_nIconSpacing;
    }
    if (m_hIcon)
        nWidth += m_nIconSize + kEndGap;
    return nWidth + m_nMarginX;
}

void CXIcon::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect rect(lpDrawItemStruct->rcItem);

    ow::CMemorySurface surface;
    if (!surface.Create(*pDC, rect.Size()))
        return;
    surface.DC().FillSolidRect(rect, ::GetBkColor(pDC->m_hAttribDC));
    DrawContent(surface.DC(), rect);
    pDC->BitBlt(0, 0, rect.Width(), rect.Height(), &surface.DC(), 0, 0, SRCCOPY);
}

// The part that is drawn second begins at the spacing alone where the first is missing: what is not there
// ends at 0, whatever the margin.
void CXIcon::DrawContent(CDC& dc, CRect rect)
{
    rect.left += m_nMarginX;
    rect.top += m_nMarginY;
    if ((GetStyle() & (BS_LEFT | BS_RIGHT)) == BS_LEFT)
    {
        rect.left = DrawIcon(&dc, rect) + m_nIconSpacing;
        DrawTextW(&dc, rect);
    }
    else
    {
        rect.left = DrawTextW(&dc, rect) + m_nIconSpacing;
        DrawIcon(&dc, rect);
    }
}

int CXIcon::DrawIcon(CDC* pDC, CRect& rect)
{
    if (!m_hIcon)
        return 0;
    const int nTop = ((rect.bottom - m_nIconSize - rect.top) >> 1) + rect.top;
    ::DrawIconEx(*pDC, rect.left, nTop, m_hIcon, m_nIconSize, m_nIconSize, 0, nullptr, DI_NORMAL);
    return m_nIconSize + rect.left;
}

int CXIcon::DrawTextW(CDC* pDC, CRect& rect)
{
    const CString strTitle = Title();
    if (strTitle.IsEmpty())
        return 0;
    pDC->SetTextColor(m_crText);
    pDC->SetBkMode(TRANSPARENT);
    const CGdiSelection font(*pDC, m_font.m_hObject);
    CRect rectText(rect);
    rectText.right = rect.left + TextWidth(*pDC, strTitle) + kEndGap;
    pDC->DrawText(strTitle, rectText, VerticalFormat(GetStyle()));
    return rectText.right;
}
