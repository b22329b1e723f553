#include <afxwin.h>

#include "GalleryHostDialog.h"

#include "GalleryPage.h"
#include "resource.h"

#include "module/GdiScope.h"

#include <CmndGraphicContext.h>

CGalleryHostDialog::CGalleryHostDialog(UINT nTemplateId, CWnd* pParent) : CDialog(nTemplateId, pParent)
{
}

BEGIN_MESSAGE_MAP(CGalleryHostDialog, CDialog)
    ON_WM_CLOSE()
    ON_BN_CLICKED(IDC_CLOSE, &CGalleryHostDialog::OnClose)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

// By the button or the close box, which nobody presses by a slip.
void CGalleryHostDialog::OnClose()
{
    CDialog::OnCancel();
}

void CGalleryHostDialog::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (nIDCtl == IDC_PREVIEW)
        PaintInMemory(*lpDrawItemStruct, [this](CDC& dc, const CRect& area) { PaintPreview(dc, area); });
    else
        CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}

void CGalleryHostDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LOG, m_log);
}

BOOL CGalleryHostDialog::OnInitDialog()
{
    gOtLang.TranslateDialog(this);
    CDialog::OnInitDialog();
    SetIcon(AfxGetApp()->LoadIcon(IDI_GALLERY), TRUE);
    m_log.MakeColumns();
    m_manager.RegisterAttributeChangedNotification(this, true);
    return TRUE;
}

BOOL CGalleryHostDialog::PreTranslateMessage(MSG* pMsg)
{
    return GoByKey(*pMsg) || CDialog::PreTranslateMessage(pMsg);
}

// By Escape.
void CGalleryHostDialog::OnCancel()
{
    CString strCaption;
    GetWindowText(strCaption);
    if (m_log.GetItemCount() == 0 ||
        COstrelMessageBox::MessageBox(_T("Close the window? Its log will be lost."), strCaption,
                                      MB_YESNO | MB_ICONQUESTION) == IDYES)
        CDialog::OnCancel();
}

CRect CGalleryHostDialog::GetPageFrame()
{
    CRect frame;
    GetDlgItem(IDC_PAGE_FRAME)->GetWindowRect(frame);
    ScreenToClient(frame);
    return frame;
}

void CGalleryHostDialog::PageSelected(CPage* pNew, CPage* pOld)
{
    const auto name = [](CPage* pPage) { return pPage ? pPage->GetTreeItemName() : gOtLang.Do(_T("none")); };
    Write(gOtLang.Do(_T("Page selector")),
          _T("PageSelected(") + name(pNew) + _T(", ") + name(pOld) + _T(")"));

    m_pShown = pNew;
    CWnd& preview = *GetDlgItem(IDC_PREVIEW);
    preview.ShowWindow(pNew && pNew->GetPreviewID() ? SW_SHOWNA : SW_HIDE);
    preview.Invalidate(FALSE);
}

void CGalleryHostDialog::AttributeChangedUsingGUI()
{
    Write(gOtLang.Do(_T("Page manager")), _T("AttributeChangedUsingGUI()"));
    GetDlgItem(IDC_PREVIEW)->Invalidate(FALSE);
}

void CGalleryHostDialog::Write(LPCTSTR pszControl, LPCTSTR pszCall)
{
    if (m_log.m_hWnd) // boxes still report while the dialog goes down
        m_log.Write(pszControl, pszCall);
}

bool CGalleryHostDialog::GoByKey(const MSG& msg)
{
    if (msg.message != WM_KEYDOWN || msg.wParam != VK_F6)
        return false;
    if (::GetKeyState(VK_SHIFT) < 0)
        GotoDlgCtrl(GetNextDlgTabItem(nullptr)); // the selector comes first
    else if (::GetFocus() == m_log)
        GoBackFromLog();
    else
        GoToLog();
    return true;
}

// Of a control with windows of its own, as a grid while a cell is edited, the control itself: those may go.
void CGalleryHostDialog::GoToLog()
{
    m_hLeft = ::GetFocus();
    while (m_hLeft && ::GetParent(m_hLeft) != m_hWnd && ::GetParent(::GetParent(m_hLeft)) != m_hWnd)
        m_hLeft = ::GetParent(m_hLeft);
    GotoDlgCtrl(&m_log);
}

void CGalleryHostDialog::GoBackFromLog()
{
    const bool bThere =
        ::IsChild(m_hWnd, m_hLeft) && ::IsWindowVisible(m_hLeft) && ::IsWindowEnabled(m_hLeft);
    GotoDlgCtrl(bThere ? CWnd::FromHandle(m_hLeft) : GetNextDlgTabItem(nullptr));
}

void CGalleryHostDialog::PaintPreview(CDC& dc, const CRect& area) const
{
    dc.FillSolidRect(area, ::GetSysColor(COLOR_WINDOW));
    dc.Draw3dRect(area, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
    const CGdiSelection font(dc, GetFont()->m_hObject);
    CCmndGraphicContext context(dc, area);
    if (m_pShown)
        m_pShown->DrawPreview(&context);
}
