// Text boxes: a box with a typed value of its own kind, a plain one, and one that is locked.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

namespace
{
/// A box for the mark of a rolled profile: letters and a height, shown as "IPE 200".
class CProfileMarkEdit : public CEditWithValidation
{
public:
    explicit CProfileMarkEdit(CEditNNotificationHandler* pHandler) : CEditWithValidation(pHandler) {}

    const CString& GetValue() const { return m_strMark; }

    bool IsDataCurrentlyInGUIValid() const override { return !Parse().IsEmpty(); }
    bool ValidateAndStoreDataFromGUI() override
    {
        const CString strMark = Parse();
        if (strMark.IsEmpty())
            return false;
        m_strMark = strMark;
        return true;
    }
    void UpdateGUIWithStoredData() override
    {
        if (m_hWnd)
            SafeSetWindowText(m_strMark);
    }

private:
    /// The mark in the text, normalised; empty if the text is none.
    CString Parse() const
    {
        if (!m_hWnd)
            return CString();
        CString strText;
        GetWindowText(strText);
        strText.Trim();
        strText.MakeUpper();
        const CString strName = strText.SpanExcluding(_T(" -0123456789"));
        const CString strHeight = strText.Mid(strName.GetLength()).TrimLeft(_T(" -"));
        if (strName.IsEmpty() || strHeight.IsEmpty() ||
            strHeight.SpanIncluding(_T("0123456789")) != strHeight)
            return CString();
        return strName + _T(" ") + strHeight;
    }

    CString m_strMark = _T("IPE 200");
};

class CTextBoxesPageDialog : public CGalleryPageDialog, public CEditNNotificationHandler
{
public:
    explicit CTextBoxesPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_TEXT_BOXES, host) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_MARK, m_editMark);
        DDX_Control(pDX, IDC_REMARK, m_editRemark);
        DDX_Control(pDX, IDC_LOCKED, m_editLocked);
    }
    int OnInitPageDialog() override
    {
        m_editRemark.SafeSetWindowText(_T("galvanised"));
        m_editLocked.SafeSetWindowText(_T("Frame axis 3"));
        ShowStored();
        return TRUE;
    }

    void OnEditNChange(int nId) override
    {
        Log(NameOf(nId), _T("OnEditNChange(%d)"), nId);
        ShowStored();
    }
    void OnEditNSetFocus(int nId) override { Log(NameOf(nId), _T("OnEditNSetFocus(%d)"), nId); }
    void OnEditNKillFocus(int nId) override { Log(NameOf(nId), _T("OnEditNKillFocus(%d)"), nId); }

private:
    void ShowStored() { SetDlgItemText(IDC_STORED, m_editMark.GetValue()); }
    static LPCTSTR NameOf(int nId)
    {
        return nId == IDC_MARK ? _T("Profile mark") : nId == IDC_REMARK ? _T("Remark") : _T("Drawing");
    }

    // No handler is given: the boxes find this page, their parent, which implements the interface.
    CProfileMarkEdit m_editMark{nullptr};
    CEditN m_editRemark{nullptr};
    CEditN m_editLocked{nullptr};
};
} // namespace

void AddTextBoxesPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CTextBoxesPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageTextBoxes, _T("Text boxes"), pDialog), nullptr);
}
