#include <afxwin.h>

#include "buttons/AcadColorBtnST.h"

#include "buttons/ColorSwatch.h"
#include "buttons/DropButton.h"
#include "module/AssertReport.h"
#include "module/GdiScope.h"
#include "module/HasWindow.h"
#include "module/ResourceIdPool.h"

#include <aced.h>

#include <utility>

namespace
{
/// Two frames, the light one a pixel behind the dark one.
void DrawEngravedFrame(CDC& dc, const CRect& area)
{
    CPen shadow(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
    const HGDIOBJ hNoBrush = ::GetStockObject(NULL_BRUSH);
    gfnDrawSwatchBox(dc, area + CPoint(1, 1), ::GetStockObject(WHITE_PEN), hNoBrush);
    gfnDrawSwatchBox(dc, area, shadow, hNoBrush);
}

struct NumberMetrics
{
    int nWidth; ///< of the widest number
    int nGap;   ///< of a blank
};

/// In a window's own font, in pixels.
NumberMetrics MeasureNumber(CWnd& wnd)
{
    CClientDC dc(&wnd);
    const CFont* pFont = wnd.GetFont(); // null: the context has the font that the window shows
    const CGdiSelection font(dc, pFont ? pFont->m_hObject : ::GetCurrentObject(dc, OBJ_FONT));
    return {dc.GetTextExtent(L"888").cx, dc.GetTextExtent(L" ").cx};
}
} // namespace

CAcadColorBtnST::CAcadColorBtnST() : CAcadColorBtnST(nullptr)
{
}

CAcadColorBtnST::CAcadColorBtnST(AAcadColorBtnSTNotificationHandler* pHandler)
    : m_pColorHandler(pHandler), m_nNumberLabelId(static_cast<int>(ResourceIdPool::Object().AcquireId()))
{
}

CAcadColorBtnST::~CAcadColorBtnST()
{
}

BEGIN_MESSAGE_MAP(CAcadColorBtnST, CButtonST)
    ON_CONTROL_REFLECT(BN_CLICKED, &CAcadColorBtnST::OnClicked)
    ON_WM_ENABLE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

// The dialog writes a variable of ours: button and source may go while it is open.
void CAcadColorBtnST::OnClicked()
{
    CButtonST::OnClicked();
    ASSERT_AT(m_pCurrentColor, ".\\AcadColorBtnST", 249);
    const HWND hWnd = m_hWnd;
    int nColor = *m_pCurrentColor;
    if (!acedSetColorDialog(nColor, Adesk::kFalse, 0) || !gfnHasWindow(this, hWnd) || !m_pCurrentColor)
        return;
    int& nCurrent = *m_pCurrentColor;
    if (std::exchange(nCurrent, nColor) != nColor)
    {
        Invalidate();
        gfnTellColorChosen(
            *this, [this] { OnClickedHook(); }, m_pColorHandler,
            &AAcadColorBtnSTNotificationHandler::OnAcadColorChosen, nCurrent);
    }
    if (gfnHasWindow(this, hWnd)) // the handler may have taken it away
        UpdateNum();
}

void CAcadColorBtnST::OnEnable(BOOL bEnable)
{
    CButtonST::OnEnable(bEnable);
    if (m_numberLabel.m_hWnd)
        m_numberLabel.EnableWindow(bEnable);
}

// The label is the parent's child and would outlive the button.
void CAcadColorBtnST::OnDestroy()
{
    m_numberLabel.DestroyWindow();
    CButtonST::OnDestroy();
}

void CAcadColorBtnST::PreSubclassWindow()
{
    gfnBecomePushButton(*this);
    CButtonST::PreSubclassWindow();
    CreateNumberLabel();
}

// The label of a window that the button was detached from is still there.
void CAcadColorBtnST::CreateNumberLabel()
{
    m_numberLabel.DestroyWindow();
    CWnd* const pParent = GetParent();
    m_numberLabel.Create(L"", SS_CENTERIMAGE | (GetStyle() & WS_VISIBLE), CalcNumRect(), pParent,
                         m_nNumberLabelId);
    m_numberLabel.SetFont(pParent->GetFont());
    m_numberLabel.EnableWindow(IsWindowEnabled());
    UpdateNum();
}

void CAcadColorBtnST::SetColorSource(int* pColor)
{
    m_pCurrentColor = pColor;
    if (!pColor)
        return;
    UpdateNum();
    if (m_hWnd)
        Invalidate(FALSE);
}

void CAcadColorBtnST::OnClickedHook()
{
}

void CAcadColorBtnST::UpdateNum()
{
    CString strNumber;
    if (m_pCurrentColor)
        strNumber.Format(L"%d", *m_pCurrentColor);
    if (m_numberLabel.m_hWnd)
        m_numberLabel.SetWindowText(strNumber);
}

CRect CAcadColorBtnST::CalcNumRect()
{
    CRect rect;
    GetClientRect(rect);
    const NumberMetrics metrics = MeasureNumber(*GetParent());
    CPoint corner(0, 0);
    ClientToScreen(&corner);
    GetParent()->ScreenToClient(&corner);
    return CRect(corner + CSize(rect.Width() + metrics.nGap, 0), CSize(metrics.nWidth, rect.Height()));
}

DWORD CAcadColorBtnST::OnDrawBackground(CDC* pDC, CRect& rect)
{
    CButtonST::OnDrawBackground(pDC, rect);
    ASSERT_AT(m_pCurrentColor, ".\\AcadColorBtnST", 147);
    const CRect face = gfnDropFace(rect, m_bIsPressed);
    gfnDrawColorFace(*pDC, face, acedGetRGB(*m_pCurrentColor), m_bIsDisabled);
    if (m_bIsDisabled)
        DrawEngravedFrame(*pDC, gfnDropPictureArea(face));
    return resultOk;
}
