// A list of parts with pictures, sorted by its columns; options with check boxes; a button with bitmaps.

#include "stdafx.h"
#include "resource.h"

class CPartsDlg : public CDialog
{
public:
    CPartsDlg() : CDialog(IDD_PICTURE_LIST), m_nSign(1) {}

protected:
    virtual BOOL OnInitDialog();
    virtual void DoDataExchange(CDataExchange* pDX);

    afx_msg void OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnOptionChecked();
    afx_msg void OnTurn() { SetDlgItemText(IDC_STATE, _T("turned")); }
    DECLARE_MESSAGE_MAP()

private:
    struct Order
    {
        CListCtrl* pList;
        int nColumn;
        int nSign;
    };
    static int CALLBACK CompareParts(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

    CListCtrl m_parts;
    CImageList m_images;
    CCheckListBox m_options;
    CBitmapButton m_turn;
    int m_nSign;
};

BEGIN_MESSAGE_MAP(CPartsDlg, CDialog)
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_PARTS, &CPartsDlg::OnColumnClick)
    ON_CLBN_CHKCHANGE(IDC_OPTIONS, &CPartsDlg::OnOptionChecked)
    ON_BN_CLICKED(IDC_TURN, &CPartsDlg::OnTurn)
END_MESSAGE_MAP()

void CPartsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PARTS, m_parts);
    DDX_Control(pDX, IDC_OPTIONS, m_options);
}

BOOL CPartsDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    VERIFY(m_turn.AutoLoad(IDC_TURN, this));

    m_images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 1);
    m_images.Add(AfxGetApp()->LoadIcon(IDI_PART));
    m_parts.SetImageList(&m_images, LVSIL_SMALL);
    m_parts.InsertColumn(0, _T("Part"), LVCFMT_LEFT, 100);
    m_parts.InsertColumn(1, _T("Mass"), LVCFMT_RIGHT, 60);
    static const LPCTSTR rows[][2] = {
        {_T("beam"), _T("120")}, {_T("plate"), _T("15")}, {_T("anchor"), _T("40")}};
    for (int nRow = 0; nRow < 3; ++nRow)
    {
        m_parts.InsertItem(nRow, rows[nRow][0], 0);
        m_parts.SetItemText(nRow, 1, rows[nRow][1]);
    }
    m_options.AddString(_T("holes"));
    m_options.AddString(_T("welds"));
    m_options.AddString(_T("paint"));
    m_options.Enable(1, FALSE);
    return TRUE;
}

int CALLBACK CPartsDlg::CompareParts(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    const Order& order = *reinterpret_cast<const Order*>(lParamSort);
    const CString strFirst = order.pList->GetItemText(static_cast<int>(lParam1), order.nColumn);
    const CString strSecond = order.pList->GetItemText(static_cast<int>(lParam2), order.nColumn);
    return order.nSign *
           (order.nColumn == 0 ? strFirst.Compare(strSecond) : _ttoi(strFirst) - _ttoi(strSecond));
}

void CPartsDlg::OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult)
{
    Order order = {&m_parts, reinterpret_cast<NMLISTVIEW*>(pNMHDR)->iSubItem, m_nSign};
    m_parts.SortItemsEx(&CompareParts, reinterpret_cast<DWORD_PTR>(&order));
    m_nSign = -m_nSign;
    CString strState;
    for (int nItem = 0; nItem < m_parts.GetItemCount(); ++nItem)
        strState += m_parts.GetItemText(nItem, 0) + _T(" ");
    SetDlgItemText(IDC_STATE, strState);
    *pResult = 0;
}

void CPartsDlg::OnOptionChecked()
{
    CString strState;
    strState.Format(_T("%d%d%d"), m_options.GetCheck(0), m_options.GetCheck(1), m_options.GetCheck(2));
    SetDlgItemText(IDC_STATE, strState);
}

class CPartsApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        CPartsDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CPartsApp theApp;
