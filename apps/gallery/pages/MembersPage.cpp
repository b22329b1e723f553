// Members: how pages work. Two pages, a beam and a column, share one dialog; each has values of its own, and the
// dialog's controls are bound to those of the page that is selected. Every change is told to the host, which shows
// the preview that the page draws. Lengths are written as the host pre-sets it, or else in millimetres.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <CmndGraphicContext.h>

#include <algorithm>

namespace
{
class CMemberPage : public CGalleryPage
{
public:
    CMemberPage(EPageID id, LPCTSTR pszTitle, CPageDialog* pDialog, double dLength, int nPieces,
                LPCTSTR pszRemark)
        : CGalleryPage(id, pszTitle, pDialog), dLength(dLength), nPieces(nPieces),
          strRemark(gOtLang.Do(pszRemark))
    {
    }

    EPagePreviewID GetPreviewID() const override { return ePreviewMember; }
    /// The members side by side, a metre as long in each preview, and how long they are.
    void DrawPreview(CCmndGraphicContext* pContext) const override;

    /// How lengths are written: as was pre-set, or else in whole millimetres.
    CFormatJedinice LengthFormat() const
    {
        CFormatJedinice millimetres;
        millimetres.nCheckFlag = 1;
        return duzinaSet ? duzina : millimetres;
    }

    double dLength; ///< metres
    int nPieces;
    CString strRemark;
};

void CMemberPage::DrawPreview(CCmndGraphicContext* pContext) const
{
    constexpr int kMetre = 8, kFlange = 5, kPitch = 8; // pixels
    constexpr int kMost = 3;
    CDC& dc = pContext->DC();
    CRect area = pContext->Area();
    area.DeflateRect(6, 4);
    dc.SetBkMode(TRANSPARENT);
    CString strText;
    strText.Format(_T("%d x %s"), nPieces, LengthFormat().Format(dLength).GetString());
    area.top += dc.DrawText(strText, area, DT_SINGLELINE | DT_NOPREFIX) + 3;
    const int nLength = std::min(static_cast<int>(dLength * kMetre), area.Width());
    for (int i = 0; i < std::min(nPieces, kMost); ++i)
        dc.FillSolidRect(area.left, area.top + i * kPitch, nLength, kFlange, RGB(24, 52, 104));
}

class CMemberDialog : public CGalleryPageDialog, public CEditDWRNotificationHandler
{
public:
    explicit CMemberDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_MEMBERS, host) {}

    int OnInitPageDialog() override
    {
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
        const CFormatJedinice format = pMember->LengthFormat();
        m_editLength.SetComplexUnit(format.Unit());
        m_editLength.SetFormat(eDoubleFormatFixed, format.nEditValue);
        m_editLength.SetValue(pMember->dLength);
        m_editPieces.SetValue(pMember->nPieces);
        SetDlgItemText(IDC_MEMBER_REMARK, pMember->strRemark);
        m_pPage = pMember;
        ShowTotal();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
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
    CEditDoubleWithRange m_editLength{nullptr, CEditDoubleWithRange::kCreateControl};
    CEditIntegerWithRange m_editPieces{nullptr};
    CMemberPage* m_pPage = nullptr; ///< the page whose values are shown
};

BEGIN_MESSAGE_MAP(CMemberDialog, CGalleryPageDialog)
    ON_EN_CHANGE(IDC_MEMBER_REMARK, &CMemberDialog::OnRemarkChange)
END_MESSAGE_MAP()
} // namespace

// One dialog serves both pages.
void AddMembersPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CMemberDialog(host);
    manager.AddDialog(pDialog);
    CPage* pBeam = new CMemberPage(ePageBeam, _T("Beam"), pDialog, 6.25, 4, _T("Primed, one coat"));
    manager.AddPage(pBeam, nullptr);
    manager.AddPage(
        new CMemberPage(ePageColumn, _T("Column"), pDialog, 3.4, 12, _T("Base plates welded in the shop")),
        pBeam);
}
