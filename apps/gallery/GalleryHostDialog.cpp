#include <afxwin.h>

#include "GalleryHostDialog.h"

#include "resource.h"

CGalleryHostDialog::CGalleryHostDialog(UINT nTemplateId, CWnd* pParent) : CDialog(nTemplateId, pParent)
{
}

void CGalleryHostDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LOG, m_log);
}

BOOL CGalleryHostDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(AfxGetApp()->LoadIcon(IDI_GALLERY), TRUE);
    m_log.MakeColumns();
    m_manager.RegisterAttributeChangedNotification(this, true);
    return TRUE;
}

CRect CGalleryHostDialog::GetPageFrame()
{
    CRect frame;
    GetDlgItem(IDC_PAGE_FRAME)->GetWindowRect(frame);
    ScreenToClient(frame);
    return frame;
}

void CGalleryHostDialog::AddDialog(CGalleryPage* pDialog)
{
    m_manager.AddDialog(pDialog);
    pDialog->SetWindowPos(GetDlgItem(IDC_PAGE_FRAME), 0, 0, 0, 0,
                          SWP_NOMOVE | SWP_NOSIZE); // in the tab order
}

CPage* CGalleryHostDialog::AddPage(CPage* pPage, CPage* pParent)
{
    m_manager.AddPage(pPage, pParent);
    return pPage;
}

void CGalleryHostDialog::Write(LPCTSTR pszControl, LPCTSTR pszCall)
{
    if (m_log.m_hWnd) // boxes still report while the dialog goes down
        m_log.Write(pszControl, pszCall);
}

void CGalleryHostDialog::PageSelected(CPage* pNew, CPage* pOld)
{
    const auto name = [](CPage* pPage) { return pPage ? pPage->GetTreeItemName() : CString(_T("none")); };
    Write(_T("Page selector"), _T("PageSelected(") + name(pNew) + _T(", ") + name(pOld) + _T(")"));
}

void CGalleryHostDialog::AttributeChangedUsingGUI()
{
    Write(_T("Page manager"), _T("AttributeChangedUsingGUI()"));
}
