// Construction, window class, message map and settings of the grid. What the other sources hold is told in
// the header.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "buttons/ButtonST.h"
#include "grid/GridLifeWatch.h"
#include "grid/SavedWidths.h"
#include "grid/WheelLines.h"

#include <span>

CImageList CGridCtrl::GridImageList;
int CGridCtrl::nFirstGridIconIdx = 0;

namespace
{
constexpr wchar_t kWindowClass[] = L"MFCGridCtrl";
constexpr COLORREF kLineColor = RGB(0xC0, 0xC0, 0xC0);

// The order is what cells refer to by index.
// clang-format off
HICON* const kMarkIcons[] = {
    &CButtonST::hIconOk, &CButtonST::hIconCancel, &CButtonST::hIconOkCancel, &CButtonST::hIconTransparentOk,
    &CButtonST::hIconNo, &CButtonST::hIconVioletDown, &CButtonST::hIconVioletRight, &CButtonST::hIconBlackRight,
    &CButtonST::hIconWarning, &CButtonST::hIconTriangle, &CButtonST::hIconChkUnchk,
};
HICON* const kProfileIcons[] = {
    &CButtonST::hIconPrfGrI1, &CButtonST::hIconPrfGrC1, &CButtonST::hIconPrfGrC2, &CButtonST::hIconPrfGrL1,
    &CButtonST::hIconPrfGrL2, &CButtonST::hIconPrfGrL3, &CButtonST::hIconPrfGrL4, &CButtonST::hIconPrfGrL5,
    &CButtonST::hIconPrfGrL6, &CButtonST::hIconPrfGrL7, &CButtonST::hIconPrfGrL8, &CButtonST::hIconPrfGrL9,
    &CButtonST::hIconPrfGrI0, &CButtonST::hIconPrfGrC0, &CButtonST::hIconPrfGrL0, &CButtonST::hIconPrfGrHOP0,
    &CButtonST::hIconPrfGrCC0, &CButtonST::hIconPrfGrZ0, &CButtonST::hIconPrfGrSig0, &CButtonST::hIconPrfGrOmega0,
    &CButtonST::hIconPrfGrCev0, &CButtonST::hIconPresekCEV, &CButtonST::hIconPresekI, &CButtonST::hIconPresekKRUZNI,
    &CButtonST::hIconPresekOTV, &CButtonST::hIconPresekPRAV, &CButtonST::hIconPresekSANDUC, &CButtonST::hIconPresekT,
    &CButtonST::hIconPresekTRAPEZ, &CButtonST::hIconPresekTROUG, &CButtonST::hIconLim, &CButtonST::hIconSavijeniLim,
};
// clang-format on

void AddIcons(CImageList& list, std::span<HICON* const> icons)
{
    for (const HICON* const pIcon : icons)
        list.Add(*pIcon);
}

void FillGridImageList()
{
    CImageList& list = CGridCtrl::GridImageList;
    if (!list.GetSafeHandle())
        list.Create(16, 16, ILC_COLOR32, 16, 4);
    if (list.GetImageCount() > 0)
        return;
    AddIcons(list, kMarkIcons);
    CGridCtrl::nFirstGridIconIdx = list.GetImageCount();
    AddIcons(list, kProfileIcons);
}
} // namespace

IMPLEMENT_DYNCREATE(CGridCtrl, CWnd)

CGridCtrl::CGridCtrl(int nRows, int nCols, int nFixedRows, int nFixedCols)
    : m_pCellClass(RUNTIME_CLASS(CGridCell))
{
    RegisterWindowClass();
    ReadSystemColors();
    m_crGridLine = kLineColor;
    m_nWheelLines = gfnMouseWheelLines();
    SetupDefaultCells();
    m_crGridBk = m_crShadow;

    SetRowCount(nRows);
    SetColumnCount(nCols);
    SetFixedRowCount(nFixedRows);
    SetFixedColumnCount(nFixedCols);

    m_mapSelected.RemoveAll();
    m_mapPrevSelected.RemoveAll();
    FillGridImageList();
}

CGridCtrl::~CGridCtrl()
{
    CLifeWatch::TellAll(m_pFirstWatch);
    CSavedWidths(m_strPersistKey).Write(m_cols);
    DeleteAllItems();
    DestroyWindow();
}

BEGIN_MESSAGE_MAP(CGridCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_MESSAGE(WM_SETFONT, &CGridCtrl::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CGridCtrl::OnGetFont)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_TIMER()
    ON_WM_CAPTURECHANGED()
    ON_WM_KILLFOCUS()
    ON_WM_SETCURSOR()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_SYSKEYDOWN()
    ON_WM_CHAR()
    ON_MESSAGE(WM_IME_CHAR, &CGridCtrl::OnImeChar)
    ON_NOTIFY(LVN_ENDLABELEDITW, InPlaceControlId, &CGridCtrl::OnEndInPlaceEdit)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &CGridCtrl::OnEditSelectAll)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CGridCtrl::OnUpdateEditSelectAll)
END_MESSAGE_MAP()

BOOL CGridCtrl::RegisterWindowClass()
{
    WNDCLASSW windowClass{};
    const HINSTANCE hInstance = AfxGetInstanceHandle();
    if (::GetClassInfoW(hInstance, kWindowClass, &windowClass))
        return TRUE;

    windowClass = {};
    windowClass.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = ::DefWindowProcW;
    windowClass.hInstance = hInstance;
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(INT_PTR(COLOR_3DFACE + 1));
    windowClass.lpszClassName = kWindowClass;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return TRUE;
}

BOOL CGridCtrl::Create(const RECT& rect, CWnd* pParent, UINT nID, DWORD dwStyle)
{
    if (!CWnd::Create(kWindowClass, nullptr, dwStyle, rect, pParent, nID))
        return FALSE;
    Initialise(); // the edge that PreSubclassWindow adds before there is a window is not kept everywhere
    m_rows.SetAllSizes(m_cellDefault.GetHeight());
    m_cols.SetAllSizes(m_cellDefault.GetWidth());
    ResetScrollBars();
    return TRUE;
}

void CGridCtrl::PreSubclassWindow()
{
    CWnd::PreSubclassWindow();
    Initialise();
    ForgetLastWindow();
    ResetScrollBars();
}

/// One object may have several windows, one after the other: a dialog that is opened again, for instance.
/// Each scrolls for itself, and begins without a gesture.
void CGridCtrl::ForgetLastWindow()
{
    m_topLeftCell = CCellID();
    m_nBarState = 0;
    for (const EGridWay way : kGridWays)
        m_nBarState |= m_bars.IsInWindow(way) ? BarBit(way) : 0;
    m_bars.Forget();
    m_nVScrollMax = 0;
    m_nHScrollMax = 0;
    m_nMouseMode = MODE_NOTHING;
    m_bLButtonDown = FALSE;
    m_bRButtonDown = FALSE;
    m_nTimerId = 0;
}

// A sunken edge, and no painting over an open editor, whatever paints: RedrawCell and the marker of a divider
// do so at any time. A window that is taken over has its frame already, and must work it out anew; one that is
// being created has no size yet, and will.
BOOL CGridCtrl::Initialise()
{
    static bool s_bInitialising = false;
    if (s_bInitialising)
        return FALSE;
    s_bInitialising = true;
    if (::IsWindow(m_hWnd))
    {
        CRect rect;
        GetWindowRect(&rect);
        ModifyStyle(0, WS_CLIPCHILDREN);
        ModifyStyleEx(0, WS_EX_CLIENTEDGE, rect.IsRectEmpty() ? 0 : SWP_FRAMECHANGED);
    }
    s_bInitialising = false;
    return TRUE;
}

std::array<CGridDefaultCell*, 4> CGridCtrl::DefaultCells()
{
    return {&m_cellDefault, &m_cellFixedCol, &m_cellFixedRow, &m_cellFixedRowCol};
}

void CGridCtrl::SetupDefaultCells()
{
    for (CGridDefaultCell* const pCell : DefaultCells())
        pCell->SetGrid(this);
    m_cellDefault.SetTextClr(m_crWindowText);
    m_cellDefault.SetBackClr(m_crWindow);
    SetFixedTextColor(m_crWindowText);
    SetFixedBkColor(m_cr3DFace);
}

// ---- Colours and fonts of the system ----------------------------------------------------------------------

void CGridCtrl::ReadSystemColors()
{
    m_crWindowText = ::GetSysColor(COLOR_WINDOWTEXT);
    m_crWindow = ::GetSysColor(COLOR_WINDOW);
    m_cr3DFace = ::GetSysColor(COLOR_3DFACE);
    m_crShadow = ::GetSysColor(COLOR_3DSHADOW);
}

// A colour is followed only where it still is the system's old one. The backgrounds of fixed cells are
// compared with the window colour like that of the body, so a new face colour does not reach them: they keep
// the old one.
void CGridCtrl::FollowSystemColors()
{
    for (CGridDefaultCell* const pCell : DefaultCells())
    {
        if (pCell->GetTextClr() == m_crWindowText)
            pCell->SetTextClr(::GetSysColor(COLOR_WINDOWTEXT));
        if (pCell->GetBackClr() == m_crWindow)
            pCell->SetBackClr(::GetSysColor(COLOR_WINDOW));
    }
    if (m_crGridBk == m_crShadow)
        m_crGridBk = ::GetSysColor(COLOR_3DSHADOW);
    ReadSystemColors();
}

void CGridCtrl::OnSysColorChange()
{
    CWnd::OnSysColorChange();
    FollowSystemColors();
}

void CGridCtrl::OnSettingChange(UINT uFlags, LPCWSTR lpszSection)
{
    CWnd::OnSettingChange(uFlags, lpszSection);
    FollowSystemColors();
    m_nWheelLines = gfnMouseWheelLines();
}

LRESULT CGridCtrl::OnSetFont(WPARAM wParam, LPARAM /*lParam*/)
{
    const LRESULT nResult = Default();
    LOGFONTW lf;
    if (::GetObjectW(reinterpret_cast<HFONT>(wParam), sizeof lf, &lf))
    {
        for (CGridDefaultCell* const pCell : DefaultCells())
            pCell->SetFont(&lf);
        if (::IsWindow(m_hWnd))
            Invalidate();
    }
    return nResult;
}

LRESULT CGridCtrl::OnGetFont(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    const CFont* const pFont = m_cellDefault.GetFontObject();
    return pFont ? reinterpret_cast<LRESULT>(pFont->GetSafeHandle()) : 0;
}

// ---- Settings ---------------------------------------------------------------------------------------------

void CGridCtrl::SetFixedTextColor(COLORREF clr)
{
    m_cellFixedRow.SetTextClr(clr);
    m_cellFixedCol.SetTextClr(clr);
    m_cellFixedRowCol.SetTextClr(clr);
}

void CGridCtrl::SetFixedBkColor(COLORREF clr)
{
    m_cellFixedRow.SetBackClr(clr);
    m_cellFixedCol.SetBackClr(clr);
    m_cellFixedRowCol.SetBackClr(clr);
}

void CGridCtrl::SetDefCellMargin(int nMargin)
{
    for (CGridDefaultCell* const pCell : DefaultCells())
        pCell->SetMargin(static_cast<UINT>(nMargin));
}

void CGridCtrl::SetDefCellHeight(int nHeight)
{
    for (CGridDefaultCell* const pCell : DefaultCells())
        pCell->SetHeight(nHeight);
}

void CGridCtrl::SetDefCellWidth(int nWidth)
{
    for (CGridDefaultCell* const pCell : DefaultCells())
        pCell->SetWidth(nWidth);
}

void CGridCtrl::SetGridLines(int nWhichLines)
{
    m_nGridLines = nWhichLines;
    InvalidateGrid();
}

int CGridCtrl::SetMouseMode(int nMode)
{
    const int nOldMode = m_nMouseMode;
    m_nMouseMode = nMode;
    return nOldMode;
}
