#pragma once
// A host of pages with a selector of any kind; page dialogs, pages and clients write down what happens to them.

#include <DialogControlsOW.h>

#include "resource.h"
#include "Testing.h"

/// What happened to pages, dialogs and clients, in order: "bind Alpha", "show plain", "Beta after Alpha".
inline std::vector<std::string> calls;
/// What is done in the first such call from now on, and at "left fields", when the box of a dialog is left.
inline std::map<std::string, std::function<void()>> once;

/// Hears of each call.
inline std::function<void(const std::string& call)> listener;

inline void Hear(const std::string& call)
{
    if (listener)
        listener(call);
    if (const auto found = once.extract(call))
        found.mapped()();
}
inline void Note(const std::string& call)
{
    calls.push_back(call);
    Hear(call);
}

/// All calls since the last question that have a word in them, with commas between.
inline std::string TakeCalls(const char* word = "")
{
    std::string text;
    for (const std::string& call : std::exchange(calls, {}))
        if (call.find(word) != call.npos)
            text += (text.empty() ? "" : ", ") + call;
    return text;
}
constexpr char kSelections[] = " after ";

inline std::string NameOf(const CPage* pPage)
{
    return pPage ? std::string(CStringA(pPage->GetTreeItemName())) : "-";
}

struct RecordingPage : CPage
{
    RecordingPage(CString strName, CPageDialog* pDialog, int nId) : CPage(strName, pDialog), m_nId(nId) {}
    ~RecordingPage() override { Note("delete " + NameOf(this)); }
    EPageID GetPageID() const override { return static_cast<EPageID>(m_nId); }
    const CPageDialog* Dialog() const { return dialog; }

    int nCount = 0; ///< what its dialog shows
    int m_nId;
};

/// A dialog for the count of one page or of several. The page takes the count over when the user leaves the box.
struct RecordingDialog : CPageDialog, CEditNNotificationHandler
{
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
        Hear("left " + m_strName);
    }
    using CPageDialog::MyAttributeChanged;
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
    void PageSelected(CPage* pNew, CPage* pOld) override
    {
        pTold = pNew;
        Note(NameOf(pNew) + kSelections + NameOf(pOld));
    }
    void AttributeChangedUsingGUI() override { Note(name + ": changed"); }

    std::string name;
    CPage* pTold = nullptr; ///< the last selection
};

/// A host with a manager of six pages or none, a caption and a selector: a tree, or a combo group with its toggle.
template <class Selector>
class PagesHost : public CDialog, public APageFrameProvider
{
    static constexpr bool kTree = std::is_base_of_v<CWnd, Selector>;
    static constexpr bool kPush = std::is_base_of_v<CPageComboButtonSTCtrlGroup, Selector>;

public:
    explicit PagesHost(bool bFilled = true) : m_bFilled(bFilled) {}
    ~PagesHost() override { DestroyWindow(); }

    Selector selector{IDC_SELECTOR, IDC_TOGGLE};
    CPageGradientCaptionStatic caption{selector};
    CPageManager manager{this};
    RecordingClient selects{"selects"}; ///< the first one that the selector tells; the manager is the second
    CRect frame{CPoint(200, 40), CSize(300, 180)};
    int oks = 0, cancels = 0;
    std::vector<RecordingDialog*> dialogs;
    std::vector<RecordingPage*> pages;
    RecordingDialog *fields = nullptr, *plain = nullptr;

    bool Open()
    {
        constexpr DWORD kSelectorStyle = kTree ? TVS_NOSCROLL | WS_BORDER : CBS_DROPDOWNLIST;
        const auto form =
            owtest::DialogTemplate(L"Pages", 300, 140)
                .Item(kTree ? L"SysTreeView32" : L"COMBOBOX", L"", IDC_SELECTOR, WS_TABSTOP | kSelectorStyle,
                      5, 5, 90, 80)
                .Button(L"More", IDC_TOGGLE, 5, 86, 60, 12, kPush ? BS_PUSHBUTTON : BS_AUTOCHECKBOX)
                .Edit(IDC_NAME, 5, 100, 90, 14)
                .Item(L"STATIC", L"Template", IDC_CAPTION, SS_LEFT, 100, 5, 190, 16)
                .DefaultButton(L"OK", IDOK, 5, 120, 44, 14)
                .Button(L"Cancel", IDCANCEL, 51, 120, 44, 14);
        return CreateIndirect(form.get()) && (ShowWindow(SW_SHOW), owtest::Activate(m_hWnd));
    }
    /// The pages that the user sees: one at most.
    std::string Shown() const
    {
        std::string names;
        for (const RecordingDialog* pDialog : dialogs)
        {
            EXPECT_EQ(pDialog->IsWindowVisible(), pDialog->IsWindowEnabled());
            names += pDialog->IsWindowVisible() ? NameOf(pDialog->bound) : "";
        }
        return names;
    }
    RecordingPage* Page(const std::string& name) const
    {
        for (RecordingPage* pPage : pages)
            if (NameOf(pPage) == name)
                return pPage;
        return nullptr;
    }
    RecordingPage* AddPage(const CString& strName, CPageDialog* pDialog, int nId, CPage* pParent = nullptr)
    {
        pages.push_back(new RecordingPage(strName, pDialog, nId));
        manager.AddPage(pages.back(), pParent);
        return pages.back();
    }
    RecordingDialog* AddDialog(UINT nTemplateId, const char* name)
    {
        dialogs.push_back(new RecordingDialog(nTemplateId, name, this));
        manager.AddDialog(dialogs.back());
        return dialogs.back();
    }
    CRect GetPageFrame() override { return Note("frame"), frame; }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        CDataExchange exchange(this, FALSE);
        DDX_Control(&exchange, IDC_CAPTION, caption);
        if constexpr (kTree)
            DDX_Control(&exchange, IDC_SELECTOR, selector);
        else
            selector.DoDataExchange(&exchange);
        manager.RegisterAddPageNotification(&selector, true);
        for (ASelectPageNotificationClient* pClient :
             std::initializer_list<ASelectPageNotificationClient*>{&selects, &manager, &caption})
            selector.RegisterSelectPageNotification(pClient, true);
        if (m_bFilled)
            Fill();
        GetDlgItem(IDC_TOGGLE)->ShowWindow(kTree ? SW_HIDE : SW_SHOW);
        GetDlgItem(IDC_NAME)->SetFocus(); // a tree that gets the focus selects its first item
        return FALSE;
    }
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }
    void Fill()
    {
        fields = AddDialog(IDD_FIELDS, "fields");
        plain = AddDialog(IDD_PLAIN, "plain");
        int nId = 0;
        for (const auto& [name, parent] : {std::pair{L"Alpha", ""},
                                           {L"Gamma", "Alpha"},
                                           {L"Beta", ""},
                                           {L"Delta", ""},
                                           {L"Earlier", "Delta"},
                                           {L"Later", "Delta"}})
            AddPage(name, *parent ? plain : fields, ++nId, Page(parent));
    }
    bool m_bFilled;
};

/// A tree whose inner operations a test may call, made as the other selectors are.
struct OpenPageTree : CPageTreeCtrl
{
    OpenPageTree(int, int) {}
    using CPageTreeCtrl::OnTvnSelchanged, CPageTreeCtrl::PageToItem;
    INT_PTR OnToolHitTest(CPoint, TOOLINFO*) const override { return Note("tip?"), -1; }
};

template <class Selector>
class PagesWith : public ::testing::Test, public PagesHost<Selector>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(this->Open());
        TakeCalls();
    }
    void TearDown() override { once.clear(); }
    static bool HasFocus(const CWnd& wnd) { return ::GetFocus() == wnd.m_hWnd; }
};
using Pages = PagesWith<OpenPageTree>;
