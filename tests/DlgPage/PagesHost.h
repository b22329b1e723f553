#pragma once
// A host dialog for pages, page dialogs and pages that write down what happens to them.

#include <DialogControlsOW.h>

#include "Input.h"
#include "resource.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

/// What happened, in order: "bind Alpha", "show plain". One list for pages, dialogs and clients.
struct CallLog
{
    std::vector<std::string> calls;

    void Add(std::string text) { calls.push_back(std::move(text)); }
    std::vector<std::string> Take() { return std::exchange(calls, {}); }
};
using Calls = std::vector<std::string>;

inline std::string Narrow(const CString& text)
{
    return std::string(CStringA(text));
}

class RecordingPage : public CPage
{
public:
    RecordingPage(CString strName, CPageDialog* pDialog, int nId, CallLog& log)
        : CPage(strName, pDialog), m_nId(nId), m_log(&log)
    {
    }
    ~RecordingPage() override { m_log->Add("delete " + Narrow(name)); }

    EPageID GetPageID() const override { return static_cast<EPageID>(m_nId); }

    int nCount = 0; ///< what FieldsDialog shows

    using CPage::debljina, CPage::debljinaSet;
    using CPage::duzina, CPage::duzinaSet;
    using CPage::formatDole, CPage::formatDoleSet;
    using CPage::formatGore, CPage::formatGoreSet;
    using CPage::formatIzvor, CPage::formatIzvorSet;
    using CPage::idConf, CPage::name;
    using CPage::polozaj, CPage::polozajSet;
    using CPage::separator, CPage::separatorSet;
    using CPage::sirina, CPage::sirinaSet;

private:
    int m_nId;
    CallLog* m_log;
};

/// Writes down what the manager and the pages do to it.
class RecordingDialog : public CPageDialog
{
public:
    RecordingDialog(UINT nTemplateId, std::string strName, CWnd* pHost, CallLog& log)
        : CPageDialog(nTemplateId, pHost), m_strName(std::move(strName)), m_log(log)
    {
    }
    ~RecordingDialog() override { m_log.Add("delete " + m_strName); }

    int OnInitPageDialog() override
    {
        m_log.Add("init " + m_strName);
        return FALSE; // as good as any other answer
    }
    void BindControlsToSources(bool bBind, CPage* pPage) override
    {
        m_log.Add((bBind ? "bind " : "unbind ") + Narrow(pPage->GetTreeItemName()));
        bound = bBind ? pPage : nullptr;
    }

    CPage* bound = nullptr; ///< whose values it shows

    using CPageDialog::MyAttributeChanged;
    using CPageDialog::PreTranslateMessage;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message)
        {
        case WM_ENABLE:
            m_log.Add((wParam ? "enable " : "disable ") + m_strName);
            break;
        case WM_SHOWWINDOW:
            m_log.Add((wParam ? "show " : "hide ") + m_strName);
            break;
        case WM_SETFOCUS:
            m_log.Add("focus " + m_strName);
            break;
        }
        return CPageDialog::WindowProc(message, wParam, lParam);
    }

    std::string m_strName;
    CallLog& m_log;
};

/// A dialog for the count of several pages. The page takes the count over when the user leaves the box.
class FieldsDialog : public RecordingDialog, public CEditNNotificationHandler
{
public:
    FieldsDialog(CWnd* pHost, CallLog& log) : RecordingDialog(IDD_FIELDS, "fields", pHost, log) {}

    CEditIntegerWithRange count{this};
    CEdit plain;
    CEdit notes;

    int OnInitPageDialog() override
    {
        count.SubclassDlgItem(IDC_COUNT, this);
        plain.SubclassDlgItem(IDC_PLAIN, this);
        notes.SubclassDlgItem(IDC_NOTES, this);
        return RecordingDialog::OnInitPageDialog();
    }
    void BindControlsToSources(bool bBind, CPage* pPage) override
    {
        RecordingDialog::BindControlsToSources(bBind, pPage);
        if (bound)
            count.SetValue(BoundCount());
    }
    void OnEditNChange(int) override { MyAttributeChanged(); }
    void OnEditNKillFocus(int) override
    {
        if (bound)
            BoundCount() = count.GetValue();
    }

private:
    int& BoundCount() const { return static_cast<RecordingPage*>(bound)->nCount; }
};

/// Writes down what a selector tells: "select Alpha after -".
class RecordingSelectClient : public ASelectPageNotificationClient
{
public:
    explicit RecordingSelectClient(CallLog& log) : m_log(log) {}
    void PageSelected(CPage* pNew, CPage* pOld) override
    {
        m_log.Add("select " + Name(pNew) + " after " + Name(pOld));
    }

private:
    static std::string Name(CPage* pPage) { return pPage ? Narrow(pPage->GetTreeItemName()) : "-"; }
    CallLog& m_log;
};

/// A tree whose inner operations a test may call.
class OpenPageTree : public CPageTreeCtrl
{
public:
    using CPageTreeCtrl::ItemToPage;
    using CPageTreeCtrl::PageToItem;
};

/// A host with a manager. What selects pages is added by those who derive from it.
class PagesHost : public CDialog, public APageFrameProvider
{
public:
    explicit PagesHost(UINT nTemplateId) : CDialog(nTemplateId), m_nTemplateId(nTemplateId) {}
    ~PagesHost() override { DestroyWindow(); }

    CallLog log;
    CPageManager manager{this};
    CRect frame{CPoint(200, 40), CSize(300, 180)};
    int oks = 0;
    int cancels = 0;

    /// What the select clients were told since the last question.
    Calls TakeSelections()
    {
        Calls calls = log.Take();
        std::erase_if(calls, [](const std::string& call) { return !call.starts_with("select "); });
        return calls;
    }

    bool Open() { return Create(m_nTemplateId) && owtest::Activate(m_hWnd); }

    CRect GetPageFrame() override
    {
        log.Add("frame");
        return frame;
    }

    /// Adds a page whose identity is its place among the pages added by this.
    RecordingPage* AddPage(CString strName, CPageDialog* pDialog, CPage* pParent = nullptr)
    {
        auto* pPage = new RecordingPage(strName, pDialog, ++m_nPages, log);
        manager.AddPage(pPage, pParent);
        return pPage;
    }
    RecordingDialog* AddPlainDialog(std::string strName = "plain")
    {
        auto* pDialog = new RecordingDialog(IDD_PLAIN, std::move(strName), this, log);
        manager.AddDialog(pDialog);
        return pDialog;
    }
    FieldsDialog* AddFieldsDialog()
    {
        auto* pDialog = new FieldsDialog(this, log);
        manager.AddDialog(pDialog);
        return pDialog;
    }

protected:
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }

private:
    UINT m_nTemplateId;
    int m_nPages = 0;
};

/// The usual host: tree, caption, and pages that share a dialog and do not.
class TreeHost : public PagesHost
{
public:
    TreeHost() : PagesHost(IDD_HOST) {}

    OpenPageTree tree;
    CPageGradientCaptionStatic caption{tree};
    RecordingSelectClient selects{log};

    FieldsDialog* fields = nullptr;   ///< of alpha and beta
    RecordingDialog* plain = nullptr; ///< of gamma
    RecordingPage* alpha = nullptr;
    RecordingPage* beta = nullptr;
    RecordingPage* gamma = nullptr; ///< below alpha

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        manager.RegisterAddPageNotification(&tree, true);
        tree.RegisterSelectPageNotification(&selects, true);
        tree.RegisterSelectPageNotification(&manager, true);
        tree.RegisterSelectPageNotification(&caption, true);
        fields = AddFieldsDialog();
        plain = AddPlainDialog();
        alpha = AddPage(L"Alpha", fields);
        beta = AddPage(L"Beta", fields);
        gamma = AddPage(L"Gamma", plain, alpha);
        GetDlgItem(IDC_NAME)->SetFocus(); // a tree that gets the focus selects its first item
        return FALSE;
    }

    /// Clicks the text of a page's item.
    void ClickPage(CPage* pPage)
    {
        CRect rect;
        tree.EnsureVisible(tree.PageToItem(pPage));
        tree.GetItemRect(tree.PageToItem(pPage), rect, TRUE);
        owtest::Click(tree, rect.CenterPoint());
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_TREE, tree);
        DDX_Control(pDX, IDC_CAPTION, caption);
    }
    /// Selects the next page of the top level when the command of an accelerator arrives.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (LOWORD(wParam) != ID_NEXT_PAGE)
            return PagesHost::OnCommand(wParam, lParam);
        tree.SelectItem(tree.GetNextSiblingItem(tree.GetSelectedItem()));
        return TRUE;
    }
};
