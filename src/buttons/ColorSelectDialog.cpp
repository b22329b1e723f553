#include <afxwin.h>
#include <afxdlgs.h>

#include "buttons/ColorSelectDialog.h"

#include "buttons/DropButton.h"
#include "module/GdiScope.h"
#include "resources/resource.h"

#include <Translator.h>

#include <algorithm>

namespace
{
constexpr int kCellsInRow = 4;
constexpr UINT kTakeCapture = WM_APP; ///< posted: nobody has the capture any more

CRect WindowRectOf(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(rect);
    return rect;
}

CRect CursorRect()
{
    CPoint point;
    ::GetCursorPos(&point);
    return CRect(point, point);
}

/// The entry of the palette, or -1. Of equal colours the first.
int IndexOf(COLORREF cr)
{
    const auto& colors = CColorBtnST::s_colorTable;
    const auto found = std::ranges::find(colors, cr);
    return found == colors.end() ? -1 : static_cast<int>(found - colors.begin());
}

/// Puts a colour in the place of the one that was not used for the longest time, that of the last rank.
int ReplaceOldest(COLORREF cr)
{
    const auto& ranks = CColorBtnST::s_colorRecency;
    const auto oldest = std::ranges::max_element(ranks) - ranks.begin();
    CColorBtnST::s_colorTable[oldest] = cr;
    return static_cast<int>(oldest);
}

/// Gives an entry the first rank; those that were before it move on by one.
void MarkUsed(int nIndex)
{
    auto& ranks = CColorBtnST::s_colorRecency;
    const BYTE nRank = ranks[nIndex];
    for (BYTE& nOther : ranks)
    {
        if (nRank > nOther)
            ++nOther;
    }
    ranks[nIndex] = 1;
}

/// What the keys move by, in parts; 0 for another key.
int StepOf(UINT nKey)
{
    switch (nKey)
    {
    case VK_LEFT:
        return -1;
    case VK_RIGHT:
        return 1;
    case VK_UP:
        return -kCellsInRow;
    case VK_DOWN:
        return kCellsInRow;
    default:
        return 0;
    }
}

/// A black frame with a white one inside, of which one shows on any colour.
void DrawFocusMark(CDC& dc, CRect rect)
{
    for (const int nStockBrush : {BLACK_BRUSH, WHITE_BRUSH})
    {
        ::FrameRect(dc, rect, static_cast<HBRUSH>(::GetStockObject(nStockBrush)));
        rect.DeflateRect(1, 1);
    }
}
} // namespace

CColorSelectDialog::CColorSelectDialog(CWnd* pOwnerButton, const RECT* pAnchorRect)
    : CDialog(IDD_OW_COLOR_SELECT, pOwnerButton), m_pOwnerButton(pOwnerButton), m_pAnchorRect(pAnchorRect)
{
}

CColorSelectDialog::~CColorSelectDialog()
{
}

BEGIN_MESSAGE_MAP(CColorSelectDialog::CPart, CWnd)
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CColorSelectDialog, CDialog)
    ON_WM_LBUTTONDOWN()
    ON_WM_DRAWITEM()
    ON_WM_LBUTTONUP()
    ON_COMMAND_RANGE(IDC_OW_FIRST_COLOR, IDC_OW_LAST_COLOR, &CColorSelectDialog::OnCell)
    ON_COMMAND(IDC_OW_OTHER_COLOR, &CColorSelectDialog::OnOther)
    ON_WM_ACTIVATE()
    ON_WM_CAPTURECHANGED()
    ON_MESSAGE(kTakeCapture, &CColorSelectDialog::OnTakeCapture)
END_MESSAGE_MAP()

void CColorSelectDialog::CPart::OnCaptureChanged(CWnd* pWnd)
{
    static_cast<CColorSelectDialog*>(GetParent())->CaptureMoved(pWnd);
    CWnd::OnCaptureChanged(pWnd);
}

void CColorSelectDialog::OnLButtonDown(UINT nFlags, CPoint point)
{
    CPoint screen = point;
    ClientToScreen(&screen);
    if (WindowRectOf(*this).PtInRect(screen))
        PressPart(ChildWindowFromPoint(point));
    else
        Close(IDCANCEL);
    CDialog::OnLButtonDown(nFlags, point);
}

void CColorSelectDialog::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (nIDCtl >= IDC_OW_FIRST_COLOR && nIDCtl <= IDC_OW_LAST_COLOR)
    {
        CDC& dc = *CDC::FromHandle(lpDrawItemStruct->hDC);
        const CRect rect(lpDrawItemStruct->rcItem);
        CBrush brush(CColorBtnST::s_colorTable[nIDCtl - IDC_OW_FIRST_COLOR]);
        const CGdiSelection noPen(dc, ::GetStockObject(NULL_PEN));
        const CGdiSelection fill(dc, brush);
        dc.Rectangle(rect.left, rect.top, rect.right + 1, rect.bottom + 1); // without a pen it is one less
        if (lpDrawItemStruct->itemState & ODS_FOCUS)
            DrawFocusMark(dc, rect);
    }
    CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}

// A press, and not a release: with the capture here a part has not heard of any press yet.
void CColorSelectDialog::OnLButtonUp(UINT nFlags, CPoint point)
{
    PressPart(ChildWindowFromPoint(point, CWP_ALL));
    CDialog::OnLButtonUp(nFlags, point);
}

void CColorSelectDialog::OnCell(UINT nId)
{
    Choose(static_cast<int>(nId) - IDC_OW_FIRST_COLOR);
}

void CColorSelectDialog::OnOther()
{
    m_bInUse = false;
    ::ReleaseCapture();
    CColorDialog dialog(m_initialColor, CC_FULLOPEN, this);
    const bool bChosen = dialog.DoModal() == IDOK;
    if (!m_hWnd || !ContinueModal())
        return; // the pop-up was closed or destroyed meanwhile
    m_bInUse = true;
    if (!bChosen)
    {
        SetCapture();
        return;
    }
    const COLORREF cr = dialog.GetColor();
    const int nIndex = IndexOf(cr);
    Choose(nIndex >= 0 ? nIndex : ReplaceOldest(cr));
}

void CColorSelectDialog::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CDialog::OnActivate(nState, pWndOther, bMinimized);
    if (nState == WA_INACTIVE && m_bInUse)
        Close(IDCANCEL);
}

void CColorSelectDialog::OnCaptureChanged(CWnd* pWnd)
{
    CaptureMoved(pWnd);
}

LRESULT CColorSelectDialog::OnTakeCapture(WPARAM, LPARAM)
{
    if (m_bInUse && !GetCapture() && GetActiveWindow() == this)
        SetCapture();
    return 0;
}

// ---- Opening ----------------------------------------------------------------------------------------------

// True: the system sets the focus to the only cell that Tab can reach.
BOOL CColorSelectDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    gOtLang.TranslateDialog(this, 1);
    AttachParts();
    Place();
    m_bInUse = true;
    SetCapture();
    return TRUE;
}

// The texts of the cells are for those who have them read aloud.
void CColorSelectDialog::AttachParts()
{
    for (int i = 0; i < kParts; ++i)
        m_parts[i].SubclassDlgItem(IDC_OW_FIRST_COLOR + i, this);
    for (int i = 0; i < kCells; ++i)
    {
        const COLORREF cr = CColorBtnST::s_colorTable[i];
        CString strText;
        strText.Format(L"%d, %d, %d", GetRValue(cr), GetGValue(cr), GetBValue(cr));
        m_parts[i].SetWindowText(strText);
    }
    MoveTabStop((std::max)(IndexOf(m_initialColor), 0));
}

void CColorSelectDialog::Place()
{
    const CRect anchor = Anchor();
    CRect rect = WindowRectOf(*this);
    rect.MoveToXY(anchor.left, anchor.bottom);
    if (rect.bottom > ::GetSystemMetrics(SM_CYSCREEN))
        rect.OffsetRect(0, anchor.top - rect.bottom);
    rect.OffsetRect((std::min)(::GetSystemMetrics(SM_CXSCREEN) - rect.right, 0L), 0);
    SetWindowPos(nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

CRect CColorSelectDialog::Anchor() const
{
    if (m_pOwnerButton && m_pOwnerButton->m_hWnd)
        return WindowRectOf(*m_pOwnerButton);
    return m_pAnchorRect ? CRect(*m_pAnchorRect) : CursorRect();
}

// ---- Keys -------------------------------------------------------------------------------------------------

BOOL CColorSelectDialog::PreTranslateMessage(MSG* pMsg)
{
    if (gfnIsHeldChoice(*pMsg)) // Space, as a rule, that has just opened the pop-up
        return TRUE;
    if (pMsg->message == WM_KEYDOWN && MoveFocus(static_cast<UINT>(pMsg->wParam)))
        return TRUE;
    return CDialog::PreTranslateMessage(pMsg);
}

/// Whether the key is an arrow. Left and right go on over the ends of the rows.
bool CColorSelectDialog::MoveFocus(UINT nKey)
{
    const int nStep = StepOf(nKey);
    if (nStep == 0)
        return false;
    const int nPart = (std::min)(FocusedPart() + nStep, kParts - 1);
    if (nPart < 0)
        return true;
    if (nPart < kCells)
        MoveTabStop(nPart);
    GotoDlgCtrl(&m_parts[nPart]);
    return true;
}

/// The first one if the focus is elsewhere.
int CColorSelectDialog::FocusedPart() const
{
    const HWND hFocus = ::GetFocus();
    const auto found = std::ranges::find(m_parts, hFocus, &CPart::m_hWnd);
    return found == std::end(m_parts) ? 0 : static_cast<int>(found - std::begin(m_parts));
}

void CColorSelectDialog::MoveTabStop(int nCell)
{
    m_parts[m_nTabStop].ModifyStyle(WS_TABSTOP, 0);
    m_parts[nCell].ModifyStyle(0, WS_TABSTOP);
    m_nTabStop = nCell;
}

// Enter, unless "Other..." takes it: a cell is no push button to the system.
void CColorSelectDialog::OnOK()
{
    m_parts[FocusedPart()].SendMessage(BM_CLICK);
}

void CColorSelectDialog::OnCancel()
{
    Close(IDCANCEL);
}

// ---- Mouse ------------------------------------------------------------------------------------------------

/// A part that is told so takes the capture, and sends its command when the mouse lets it go.
void CColorSelectDialog::PressPart(CWnd* pPart)
{
    if (pPart && pPart != this)
        pPart->SendMessage(WM_LBUTTONDOWN);
}

/// Parts take the capture while they are pressed. When nobody has it, the pop-up takes it back, later, as it must
/// not do so while it changes hands; when a stranger has it, the pop-up is over.
void CColorSelectDialog::CaptureMoved(CWnd* pNewOwner)
{
    if (!m_bInUse)
        return;
    if (!pNewOwner)
        PostMessage(kTakeCapture);
    else if (!HasCapture())
        Close(IDCANCEL);
}

bool CColorSelectDialog::HasCapture() const
{
    const CWnd* pOwner = GetCapture();
    return pOwner == this || (pOwner && IsChild(pOwner));
}

// ---- Closing ----------------------------------------------------------------------------------------------

void CColorSelectDialog::Choose(int nIndex)
{
    m_nSelectedIndex = nIndex;
    MarkUsed(nIndex);
    Close(IDOK);
}

// The first one to close it has decided.
void CColorSelectDialog::Close(int nResult)
{
    if (!ContinueModal())
        return;
    m_bInUse = false;
    if (HasCapture())
        ::ReleaseCapture();
    EndDialog(nResult);
}

void CColorSelectDialog::Cancel()
{
    if (!m_hWnd)
        return;
    Close(IDCANCEL);
    const HWND hAbove = ::GetLastActivePopup(m_hWnd);
    if (hAbove != m_hWnd)
        ::SendMessage(hAbove, WM_COMMAND, IDCANCEL, 0);
}

void CColorSelectDialog::SetInitialColor(COLORREF cr)
{
    m_initialColor = cr;
}

int CColorSelectDialog::GetSelectedIndex() const
{
    return m_nSelectedIndex;
}
