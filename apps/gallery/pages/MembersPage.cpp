// Members: how pages work. Two pages, a beam and a column, share one dialog; each has values of its own, and the
// dialog's controls are bound to those of the page that is selected. Every change is told to the host.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CMemberPage : public CTitledPage
{
public:
    CMemberPage(LPCTSTR pszTitle, CPageDialog* pDialog, double dLength, int nPieces, LPCTSTR pszRemark)
        : CTitledPage(pszTitle, pDialog), dLength(dLength), nPieces(nPieces), strRemark(pszRemark)
    {
    }

    double dLength; ///< metres
    int nPieces;
    CString strRemark;
};

class CMemberDialog : public CGalleryPage, public CEditDWRNotificationHandler
{
public:
    explicit CMemberDialog(AGalleryHost& host) : CGalleryPage(IDD_PAGE_MEMBERS, host) {}

    int OnInitPageDialog() override
    {
        m_editLength.SetComplexUnit(
            CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMillimetre, CMeasurementUnit::eLength)));
        m_editLength.SetFormat(eDoubleFormatFixed, 0);
        m_editLength.SetMinRange(0.1);
        m_editPieces.SetRange(1, 999);
        return TRUE;
    }

    // When the page changes, a box that still has the focus has taken over what was typed before this is called.
    void BindControlsToSources(bool bBind, CPage* pPage) override
    {
        m_pPage = nullptr; // what the controls report while they are filled is no change
        if (!bBind)
            return;
        auto* pMember = static_cast<CMemberPage*>(pPage);
        m_editLength.SetValue(pMember->dLength);
        m_editPieces.SetValue(pMember->nPieces);
        SetDlgItemText(IDC_MEMBER_REMARK, pMember->strRemark);
        m_pPage = pMember;
        ShowTotal();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPage::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_MEMBER_LENGTH, m_editLength);
        DDX_Control(pDX, IDC_MEMBER_PIECES, m_editPieces);
    }

    void OnEditNChange(int nId) override
    {
        Log(nId == IDC_MEMBER_LENGTH ? _T("Length") : _T("Pieces"), _T("OnEditNChange(%d)"), nId);
        StoreAndTell();
    }
    afx_msg void OnRemarkChange()
    {
        if (m_pPage)
            Log(_T("Remark"), _T("EN_CHANGE"));
        StoreAndTell();
    }
    DECLARE_MESSAGE_MAP()

private:
    void StoreAndTell()
    {
        if (!m_pPage)
            return;
        m_pPage->dLength = m_editLength.GetValue();
        m_pPage->nPieces = m_editPieces.GetValue();
        GetDlgItemText(IDC_MEMBER_REMARK, m_pPage->strRemark);
        ShowTotal();
        MyAttributeChanged();
    }

    void ShowTotal()
    {
        CString strText;
        strText.Format(_T("%.3f m"), m_pPage->dLength * m_pPage->nPieces);
        SetDlgItemText(IDC_MEMBER_TOTAL, strText);
    }

    // No handler is given: the boxes find this dialog, their parent, which implements the interface.
    CEditDoubleWithRange m_editLength{nullptr, CEditDoubleWithRange::c_nCreateControl};
    CEditIntegerWithRange m_editPieces{nullptr};
    CMemberPage* m_pPage = nullptr; ///< the page whose values are shown
};

BEGIN_MESSAGE_MAP(CMemberDialog, CGalleryPage)
    ON_EN_CHANGE(IDC_MEMBER_REMARK, OnRemarkChange)
END_MESSAGE_MAP()
} // namespace

CPage* AddMembersPage(AGalleryHost& host, CPage* pParent)
{
    auto* pDialog = new CMemberDialog(host);
    host.AddDialog(pDialog);
    CPage* pBeam =
        host.AddPage(new CMemberPage(_T("Beam"), pDialog, 6.25, 4, _T("Primed, one coat")), pParent);
    host.AddPage(new CMemberPage(_T("Column"), pDialog, 3.4, 12, _T("Base plates welded in the shop")),
                 pBeam);
    return pBeam;
}
