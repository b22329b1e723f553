#pragma once
// A host dialog for pages, with page dialogs, pages and clients that write down what happens to them.

#include <DialogControlsOW.h>

#include "Input.h"
#include "resource.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// What happened to pages, dialogs and clients, in order: "bind Alpha", "show plain", "Beta after Alpha".
using Calls = std::vector<std::string>;
inline Calls calls;
/// What one of them does about the next such call, once.
inline std::pair<std::string, std::function<void()>> reaction;

inline void React(const std::string& call)
{
    if (reaction.second && reaction.first == call)
        std::exchange(reaction.second, nullptr)();
}
inline void Note(const std::string& call)
{
    calls.push_back(call);
    React(call);
}

inline Calls TakeCalls()
{
    return std::exchange(calls, {});
}

/// What the select clients were told since the last question.
inline Calls TakeSelections()
{
    std::erase_if(calls, [](const std::string& call) { return call.find(" after ") == std::string::npos; });
    return TakeCalls();
}

inline std::string NameOf(const CPage* pPage)
{
    return pPage ? std::string(CStringA(pPage->GetTreeItemName())) : "-";
}

class RecordingPage : public CPage
{
public:
    RecordingPage(CString strName, CPageDialog* pDialog, int nId) : CPage(strName, pDialog), m_nId(nId) {}
    ~RecordingPage() override { Note("delete " + NameOf(this)); }
    EPageID GetPageID() const override { return static_cast<EPageID>(m_nId); }

    int nCount = 0; ///< what its dialog shows

private:
    int m_nId;
};

/// A dialog for the count of one page or of several. The page takes the count over when the user leaves the box.
class RecordingDialog : public CPageDialog, public CEditNNotificationHandler
{
public:
    RecordingDialog(UINT nTemplateId, std::string strName, CWnd* pHost)
        : CPageDialog(nTemplateId, pHost), m_strName(std::move(strName))
    {
    }
    ~RecordingDialog() override { Note("delete " + m_strName); }

    CEditIntegerWithRange count{this};
    RecordingPage* bound = nullptr; ///< whose count it shows

    BOOL OnInitDialog() override
    {
        MyAttributeChanged(); // while the window is being made
        return CPageDialog::OnInitDialog();
    }
    int OnInitPageDialog() override
    {
        count.SubclassDlgItem(IDC_COUNT, this);
        Note("init " + m_strName);
        return FALSE; // as good as any other answer
    }
    void BindControlsToSources(bool bBind, CPage* pPage) override
    {
        bound = bBind ? static_cast<RecordingPage*>(pPage) : nullptr;
        if (bound)
            count.SetValue(bound->nCount);
        Note((bBind ? "bind " : "unbind ") + NameOf(pPage));
    }
    void OnEditNChange(int) override { MyAttributeChanged(); }
    void OnEditNKillFocus(int) override
    {
        if (bound)
            bound->nCount = count.GetValue();
        React("left " + m_strName);
    }
    using CPageDialog::MyAttributeChanged;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENABLE)
            Note((wParam ? "enable " : "disable ") + m_strName);
        else if (message == WM_SHOWWINDOW)
            Note((wParam ? "show " : "hide ") + m_strName);
        else if (message == WM_SETFOCUS)
            Note("focus " + m_strName);
        return CPageDialog::WindowProc(message, wParam, lParam);
    }

private:
    std::string m_strName;
};

/// Writes down what managers and selectors tell: "first: Gamma below Alpha", "first: changed", "Alpha after -".
struct RecordingClient : AAddPageNotificationClient,
                         ASelectPageNotificationClient,
                         AAttributeChangeNotificationClient
{
    explicit RecordingClient(std::string strName) : name(std::move(strName)) {}
    void PageAdded(CPage* pPage, CPage* pParent) override
    {
        Note(name + ": " + NameOf(pPage) + " below " + NameOf(pParent));
    }
    void PageSelected(CPage* pNew, CPage* pOld) override { Note(NameOf(pNew) + " after " + NameOf(pOld)); }
    void AttributeChangedUsingGUI() override { Note(name + ": changed"); }

    std::string name;
};

/// Identities of the host's pages, in the order of adding.
enum Identity
{
    idAlpha = 1, ///< on the dialog of the fields, as beta and delta
    idGamma,     ///< below alpha, on the plain dialog, as the other children
    idBeta,
    idDelta,
    idEarlier, ///< below delta, as the next
    idLater,
    idStranger ///< never added
};

/// A host with a manager. What selects pages is added by those who derive from it.
class PagesHost : public CDialog, public APageFrameProvider
{
public:
    explicit PagesHost(UINT nTemplateId = IDD_HOST) : CDialog(nTemplateId), m_nTemplateId(nTemplateId) {}
    ~PagesHost() override { DestroyWindow(); }

    CPageManager manager{this};
    RecordingClient selects{"selects"};
    CRect frame{CPoint(200, 40), CSize(300, 180)};
    int oks = 0, cancels = 0;
    RecordingDialog* fields = nullptr;
    RecordingDialog* plain = nullptr;

    bool Open() { return Create(m_nTemplateId) && owtest::Activate(m_hWnd); }
    /// The pages that the user sees: one at most.
    std::string Shown() const
    {
        std::string names;
        for (const RecordingDialog* pDialog : {fields, plain})
        {
            EXPECT_EQ(pDialog->IsWindowVisible(), pDialog->IsWindowEnabled());
            names += pDialog->IsWindowVisible() ? NameOf(pDialog->bound) : "";
        }
        return names;
    }
    RecordingPage* Page(Identity id) const
    {
        return static_cast<RecordingPage*>(manager.GetPage(static_cast<CPage::EPageID>(id)));
    }
    RecordingPage* AddPage(const wchar_t* pszName, CPageDialog* pDialog, int nId, CPage* pParent = nullptr)
    {
        auto* pPage = new RecordingPage(pszName, pDialog, nId);
        manager.AddPage(pPage, pParent);
        return pPage;
    }
    RecordingDialog* AddDialog(UINT nTemplateId, const char* name)
    {
        auto* pDialog = new RecordingDialog(nTemplateId, name, this);
        manager.AddDialog(pDialog);
        return pDialog;
    }
    CRect GetPageFrame() override
    {
        Note("frame");
        return frame;
    }

protected:
    template <class Selector>
    void Fill(Selector& selector)
    {
        manager.RegisterAddPageNotification(&selector, true);
        selector.RegisterSelectPageNotification(&selects, true);
        selector.RegisterSelectPageNotification(&manager, true);
        fields = AddDialog(IDD_FIELDS, "fields");
        plain = AddDialog(IDD_PLAIN, "plain");
        AddPage(L"Gamma", plain, idGamma, AddPage(L"Alpha", fields, idAlpha));
        AddPage(L"Beta", fields, idBeta);
        CPage* pDelta = AddPage(L"Delta", fields, idDelta);
        AddPage(L"Earlier", plain, idEarlier, pDelta);
        AddPage(L"Later", plain, idLater, pDelta);
        ShowWindow(SW_SHOW);
    }
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }

private:
    UINT m_nTemplateId;
};

/// A tree whose inner operations a test may call.
class OpenPageTree : public CPageTreeCtrl
{
public:
    using CPageTreeCtrl::OnTvnSelchanged, CPageTreeCtrl::PageToItem;
};

/// The usual host: with a tree and a caption.
class TreeHost : public PagesHost
{
public:
    OpenPageTree tree;
    CPageGradientCaptionStatic caption{tree};

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        Fill(tree);
        tree.RegisterSelectPageNotification(&caption, true);
        GetDlgItem(IDC_NAME)->SetFocus(); // a tree that gets the focus selects its first item
        return FALSE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, IDC_TREE, tree);
        DDX_Control(pDX, IDC_CAPTION, caption);
    }
};

/// An open host.
class Pages : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_host.Open());
        TakeCalls();
    }
    static bool HasFocus(const CWnd& wnd) { return ::GetFocus() == wnd.m_hWnd; }

    TreeHost m_host;
    CPageManager& m_manager = m_host.manager;
    OpenPageTree& m_tree = m_host.tree;
    RecordingPage* Page(Identity id) { return m_host.Page(id); }
};
