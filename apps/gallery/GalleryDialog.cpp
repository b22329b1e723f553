#include <afxwin.h>

#include "GalleryDialog.h"

#include "resource.h"

CGalleryDialog::CGalleryDialog(CWnd* pParent) : CDialog(IDD_GALLERY, pParent), m_pages(MakeAllPages(*this))
{
}

void CGalleryDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PAGES, m_listPages);
    DDX_Control(pDX, IDC_LOG, m_listLog);
}

BEGIN_MESSAGE_MAP(CGalleryDialog, CDialog)
    ON_LBN_SELCHANGE(IDC_PAGES, OnPageSelected)
END_MESSAGE_MAP()

BOOL CGalleryDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(AfxGetApp()->LoadIcon(IDI_GALLERY), TRUE);

    LOGFONT font{};
    GetFont()->GetLogFont(&font);
    font.lfWeight = FW_BOLD;
    m_fontTitle.CreateFontIndirect(&font);
    GetDlgItem(IDC_PAGE_TITLE)->SetFont(&m_fontTitle);

    CRect frame;
    GetDlgItem(IDC_PAGE_FRAME)->GetWindowRect(frame);
    ScreenToClient(frame);
    for (const auto& pPage : m_pages)
    {
        pPage->CreateIn(*this, frame);
        pPage->SetWindowPos(GetDlgItem(IDC_PAGE_FRAME), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); // its place in the tab order
        m_listPages.AddString(pPage->Title());
    }
    m_listPages.SetCurSel(0);
    ShowPage(0);
    return TRUE;
}

void CGalleryDialog::OnPageSelected()
{
    ShowPage(m_listPages.GetCurSel());
}

void CGalleryDialog::ShowPage(int index)
{
    if (index == m_nShown || index < 0)
        return;
    SetDlgItemText(IDC_PAGE_TITLE, m_pages[index]->Title());
    m_pages[index]->ShowWindow(SW_SHOW);
    if (m_nShown >= 0)
        m_pages[m_nShown]->ShowWindow(SW_HIDE);
    m_nShown = index;
}

void CGalleryDialog::Write(const CString& strLine)
{
    if (m_listLog.m_hWnd)
        m_listLog.SetTopIndex(m_listLog.AddString(strLine));
}
