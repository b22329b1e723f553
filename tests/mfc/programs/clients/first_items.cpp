// A dialog whose combo and list boxes have their first items from the dialog editor.

#include "stdafx.h"
#include "resource.h"

class CItemsDlg : public CDialog
{
public:
    enum
    {
        IDD = IDD_ITEMS
    };
    CItemsDlg() : CDialog(CItemsDlg::IDD), m_nShape(1) {}

protected:
    virtual void DoDataExchange(CDataExchange* pDX)
    {
        CDialog::DoDataExchange(pDX);
        DDX_CBIndex(pDX, IDC_SHAPES, m_nShape);
        DDX_LBString(pDX, IDC_GRADES, m_strGrade);
        DDX_Control(pDX, IDC_PICTURES, m_ctrlPictures);
    }
    afx_msg void OnChange()
    {
        UpdateData(TRUE);
        CString strShape, strChoice;
        GetDlgItemText(IDC_SHAPES, strShape);
        TCHAR szPicture[32] = _T("");
        COMBOBOXEXITEM item;
        item.mask = CBEIF_TEXT;
        item.iItem = m_ctrlPictures.SendMessage(CB_GETCURSEL);
        item.pszText = szPicture;
        item.cchTextMax = 32;
        m_ctrlPictures.SendMessage(CBEM_GETITEM, 0, (LPARAM)&item);
        strChoice.Format(IDS_CHOICE, strShape.GetString(), m_strGrade.GetString(), szPicture);
        SetDlgItemText(IDC_CHOICE, strChoice);
    }
    DECLARE_MESSAGE_MAP()

private:
    int m_nShape;
    CString m_strGrade;
    CWnd m_ctrlPictures;
};

BEGIN_MESSAGE_MAP(CItemsDlg, CDialog)
    ON_CBN_SELCHANGE(IDC_SHAPES, &CItemsDlg::OnChange)
    ON_LBN_SELCHANGE(IDC_GRADES, &CItemsDlg::OnChange)
    ON_CBN_SELCHANGE(IDC_PICTURES, &CItemsDlg::OnChange)
END_MESSAGE_MAP()

class CItemsApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        CItemsDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CItemsApp theApp;
