// Label templates: text boxes with a button that inserts escape sequences, and what a drawing would make of them.

#include <afxwin.h>

#include "LanguagePage.h"
#include "resource.h"

#include <span>

namespace
{
/// What a sequence stands for, in one sample element.
struct SSample
{
    LPCTSTR pszCode;
    LPCTSTR pszText;
};

// The same code means different things in different labels.
constexpr SSample kAnyText[] = {{_T("%%c"), _T("\u00D8")}};
constexpr SSample kMember[] = {{_T("%i"), _T("HEA")},
                                {_T("%f"), _T("160")},
                                {_T("%m"), _T("2")},
                                {_T("%o"), _T("rolled")},
                                {_T("%d"), _T("6250")}};
constexpr SSample kPlate[] = {
    {_T("%i"), _T("PL")}, {_T("%l"), _T("400")}, {_T("%w"), _T("250")}, {_T("%h"), _T("12")}};
constexpr SSample kProduction[] = {
    {_T("%i"), _T("HEA")},   {_T("%f"), _T("160")},  {_T("%m"), _T("1")},   {_T("%o"), _T("rolled")},
    {_T("%d"), _T("12000")}, {_T("%a"), _T("S235")}, {_T("%n"), _T("3")},   {_T("%k"), _T("4")},
    {_T("%l"), _T("11750")}, {_T("%p"), _T("97.9")}, {_T("%s"), _T("250")}, {_T("%h"), _T("2.1")}};

/// The sequence that a text begins with; null if it begins with none.
const SSample* FindSequence(const CString& strText, std::span<const SSample> samples)
{
    for (const SSample& sample : samples)
    {
        if (strText.Left(lstrlen(sample.pszCode)) == sample.pszCode)
            return &sample;
    }
    return nullptr;
}

/// The label that a template makes. What is no sequence stands as it is.
CString Expand(const CString& strTemplate, std::span<const SSample> samples)
{
    CString strLabel;
    for (int i = 0; i < strTemplate.GetLength();)
    {
        if (const SSample* pSample = FindSequence(strTemplate.Mid(i), samples))
        {
            strLabel += pSample->pszText;
            i += lstrlen(pSample->pszCode);
        }
        else
            strLabel += strTemplate[i++];
    }
    return strLabel;
}

struct SKind
{
    LPCTSTR pszName;
    LPCTSTR pszTemplate;
    std::span<const SSample> samples;
};

// From the top of the page.
constexpr SKind kKinds[] = {
    {_T("Any text"), _T("rebar %%c16 / 150"), kAnyText},
    {_T("Member"), _T("%m x %i %f, L = %d"), kMember},
    {_T("Plate"), _T("%i %h x %w x %l"), kPlate},
    {_T("Plate, no dimensions"), _T("%i, t = %h"), kPlate},
    {_T("Production list"), _T("%k x %i %f %a: %p% used"), kProduction},
};
constexpr int kKindCount = static_cast<int>(std::size(kKinds));

class CLabelTemplatesPageDialog : public CLanguagePageDialog, public CEditNNotificationHandler
{
public:
    explicit CLabelTemplatesPageDialog(CGalleryHostDialog& host)
        : CLanguagePageDialog(IDD_PAGE_LABEL_TEMPLATES, host)
    {
        m_editBarePlate.m_bNoDimensions = true; // before the box takes over its window
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CLanguagePageDialog::DoDataExchange(pDX);
        for (int i = 0; i < kKindCount; ++i)
            DDX_Control(pDX, IDC_LABEL_FIRST + i, *m_edits[i]); // and with the box its button
    }
    int OnInitPageDialog() override
    {
        for (int i = 0; i < kKindCount; ++i)
        {
            m_edits[i]->SetValue(gOtLang.Do(kKinds[i].pszTemplate));
            ShowPreview(i);
        }
        return TRUE;
    }
    // The menus were filled when the boxes came to be, in the language of that time.
    void OnLanguage() override
    {
        for (CEditEscSeqText* pEdit : m_edits)
            pEdit->UpdateEscSeqList();
    }

    // Comes twice for an insertion, and once for a key.
    void OnEditNChange(int nId) override
    {
        const int nKind = nId - IDC_LABEL_FIRST;
        Log(kKinds[nKind].pszName, _T("OnEditNChange(%d)   stored: %s"), nId,
            m_edits[nKind]->GetValue().GetString());
        ShowPreview(nKind);
    }

    afx_msg void OnLock()
    {
        for (CEditEscSeqText* pEdit : m_edits)
            pEdit->EnableWindow(IsDlgButtonChecked(IDC_LABELS_LOCKED) == BST_UNCHECKED);
    }
    DECLARE_MESSAGE_MAP()

private:
    void ShowPreview(int nKind)
    {
        SetDlgItemText(IDC_PREVIEW_FIRST + nKind, Expand(m_edits[nKind]->GetValue(), kKinds[nKind].samples));
    }

    // No handler is given: the boxes find this page, their parent, which implements the interface.
    CEditAcadEscSeqText m_editAnyText{nullptr, IDC_INSERT_FIRST};
    CEditAcadEscSeqSpecStapa m_editMember{nullptr, IDC_INSERT_FIRST + 1};
    CEditAcadEscSeqSpecLima m_editPlate{nullptr, IDC_INSERT_FIRST + 2};
    CEditAcadEscSeqSpecLima m_editBarePlate{nullptr, IDC_INSERT_FIRST + 3};
    CEditAcadEscSeqSpecProizvStapa m_editProduction{nullptr, IDC_INSERT_FIRST + 4};
    CEditEscSeqText* const m_edits[kKindCount] = {&m_editAnyText, &m_editMember, &m_editPlate, &m_editBarePlate,
                                                &m_editProduction};
};

BEGIN_MESSAGE_MAP(CLabelTemplatesPageDialog, CLanguagePageDialog)
    ON_BN_CLICKED(IDC_LABELS_LOCKED, &CLabelTemplatesPageDialog::OnLock)
END_MESSAGE_MAP()
} // namespace

void AddLabelTemplatesPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CLabelTemplatesPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageLabelTemplates, _T("Label templates"), pDialog), nullptr);
}
