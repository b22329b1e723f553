#include "ColorGrid.h"

#include "aced.h"

#include "HostModule.h"

namespace
{
void DrawFrame(CDC& dc, CRect rect, COLORREF color)
{
    CBrush brush(color);
    dc.FrameRect(rect, &brush);
}
} // namespace

BEGIN_MESSAGE_MAP(CColorGrid, CWnd)
    ON_WM_GETDLGCODE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, &CColorGrid::OnMouseLeave)
END_MESSAGE_MAP()

bool CColorGrid::RegisterWindowClass()
{
    WNDCLASS windowClass = {};
    const HINSTANCE hModule = HostResourceHandle();
    if (::GetClassInfo(hModule, kClassName, &windowClass))
        return true;
    windowClass.style = CS_DBLCLKS | CS_GLOBALCLASS; // found from a template whatever module makes the dialog
    windowClass.lpfnWndProc = &::DefWindowProc;
    windowClass.hInstance = hModule;
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kClassName;
    return ::RegisterClass(&windowClass) != 0;
}

void CColorGrid::SetSelection(int nColor)
{
    InvalidateSwatch(FocusColor());
    m_nSelected = IsPlainColor(nColor) ? nColor : kNoColor;
    InvalidateSwatch(FocusColor());
}

UINT CColorGrid::OnGetDlgCode()
{
    return DLGC_WANTARROWS;
}

void CColorGrid::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);

    CDC memory;
    memory.CreateCompatibleDC(&paint);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&paint, client.Width(), client.Height());
    CBitmap* pOld = memory.SelectObject(&bitmap);
    memory.FillSolidRect(client, ::GetSysColor(COLOR_BTNFACE));
    Draw(memory);
    paint.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(pOld);
}

BOOL CColorGrid::OnEraseBkgnd(CDC*)
{
    return TRUE; // OnPaint covers everything
}

void CColorGrid::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    InvalidateSwatch(FocusColor());
}

void CColorGrid::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    InvalidateSwatch(FocusColor());
}

void CColorGrid::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const int nColor = FocusColor();
    switch (nChar)
    {
    case VK_LEFT:
        Select(ColorGridLayout::Sideways(nColor, -1));
        break;
    case VK_RIGHT:
        Select(ColorGridLayout::Sideways(nColor, +1));
        break;
    case VK_UP:
        Select(ColorGridLayout::Vertically(nColor, -1));
        break;
    case VK_DOWN:
        Select(ColorGridLayout::Vertically(nColor, +1));
        break;
    case VK_SPACE:
        Select(nColor);
        break;
    default:
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

void CColorGrid::OnLButtonDown(UINT, CPoint point)
{
    SetFocus();
    const int nColor = Layout().HitTest(point);
    if (nColor != kNoColor)
        Select(nColor);
}

void CColorGrid::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    OnLButtonDown(nFlags, point);
    if (Layout().HitTest(point) != kNoColor)
        Notify(eAccepted);
}

void CColorGrid::OnMouseMove(UINT, CPoint point)
{
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
    SetHot(Layout().HitTest(point));
}

LRESULT CColorGrid::OnMouseLeave(WPARAM, LPARAM)
{
    SetHot(kNoColor);
    return 0;
}

ColorGridLayout CColorGrid::Layout() const
{
    CRect client;
    GetClientRect(&client);
    return ColorGridLayout(client.Size());
}

void CColorGrid::Select(int nColor)
{
    if (nColor == m_nSelected)
        return;
    SetSelection(nColor);
    Notify(eSelectionChanged);
}

void CColorGrid::SetHot(int nColor)
{
    if (nColor == m_nHot)
        return;
    InvalidateSwatch(m_nHot);
    m_nHot = nColor;
    InvalidateSwatch(m_nHot);
    Notify(eHotChanged);
}

void CColorGrid::Notify(ENotification eCode)
{
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), eCode), reinterpret_cast<LPARAM>(m_hWnd));
}

/// Where the focus mark stands and the arrow keys start: at the choice, or at the first swatch.
int CColorGrid::FocusColor() const
{
    return m_nSelected != kNoColor ? m_nSelected : kFirstColor;
}

void CColorGrid::InvalidateSwatch(int nColor)
{
    if (m_hWnd && nColor != kNoColor)
        InvalidateRect(Layout().CellRect(nColor), FALSE);
}

void CColorGrid::Draw(CDC& dc) const
{
    const ColorGridLayout layout = Layout();
    for (int nColor = kFirstColor; nColor <= kLastColor; ++nColor)
        DrawSwatch(dc, layout, nColor);
    DrawMarks(dc, layout);
}

void CColorGrid::DrawSwatch(CDC& dc, const ColorGridLayout& layout, int nColor) const
{
    CRect rect = layout.CellRect(nColor);
    rect.DeflateRect(1, 1);
    dc.FillSolidRect(rect, acedGetRGB(nColor));
}

/// Hover: a frame in the system's highlight colour. Choice: a frame that stands out from every colour. Focus:
/// the system's dotted mark, inside the frame of the choice.
void CColorGrid::DrawMarks(CDC& dc, const ColorGridLayout& layout) const
{
    if (m_nHot != kNoColor)
        DrawFrame(dc, layout.CellRect(m_nHot), ::GetSysColor(COLOR_HIGHLIGHT));
    CRect rect = layout.CellRect(FocusColor());
    if (m_nSelected != kNoColor)
    {
        DrawFrame(dc, rect, RGB(0, 0, 0));
        rect.DeflateRect(1, 1);
        DrawFrame(dc, rect, RGB(255, 255, 255));
        rect.DeflateRect(1, 1);
    }
    if (::GetFocus() == m_hWnd)
        dc.DrawFocusRect(rect);
}
