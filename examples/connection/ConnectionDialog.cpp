#include <afxwin.h>

#include "ConnectionDialog.h"

#include "ConnectionPage.h"

namespace
{
constexpr LPCTSTR kTitle = _T("Veza grede sa stubom");

LPCTSTR TextOf(ERule rule)
{
    switch (rule)
    {
    case ERule::PlateHeight:
        return _T("Visina ploce nema dopustenu vrednost.");
    case ERule::EndDistance:
        return _T("Prvi red vijaka je predaleko od ivice ploce (e1 > 4t + 40 mm).");
    case ERule::BottomDistance:
        return _T("Poslednji red vijaka je predaleko od donje ivice ploce (4t + 40 mm).");
    case ERule::Pitch:
        return _T("Ploca ili nozica stuba je pretanka za razmak redova (14t).");
    case ERule::Gauge:
        return _T("Vijci ne staju izmedju rebra i ivice: izaberite manji vijak ili siri stub.");
    case ERule::PlateWidth:
        return _T("Ploca je sira od nozice stuba.");
    case ERule::RowsDoNotFit:
        return _T("Dva reda ovih vijaka ne staju izmedju nozica grede.");
    }
    return _T("");
}

CString TextOf(const std::vector<ERule>& rules)
{
    if (rules.empty())
        return Tr(_T("Razmaci su po EN 1993-1-8."));
    CString strText;
    for (ERule rule : rules)
        strText += (strText.IsEmpty() ? _T("") : _T("  ")) + Tr(TextOf(rule));
    return strText;
}
} // namespace

CConnectionDialog::CConnectionDialog(const CString& strFolder, CWnd* pParent)
    : CDialog(IDD_CONNECTION, pParent), m_stored(m_wanted, strFolder)
{
}

BEGIN_MESSAGE_MAP(CConnectionDialog, CDialog)
    ON_BN_CLICKED(IDC_CONFIG_SAVE, OnSaved) // the group has heard of it first, and has saved
END_MESSAGE_MAP()

CRect CConnectionDialog::GetPageFrame()
{
    CRect frame;
    GetDlgItem(IDC_PAGE_FRAME)->GetWindowRect(frame);
    ScreenToClient(frame);
    return frame;
}

void CConnectionDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    m_configs.DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PAGES, m_tree);
    DDX_Control(pDX, IDC_PAGE_TITLE, m_caption);
    DDX_Control(pDX, IDC_VIEW, m_view);
}

BOOL CConnectionDialog::OnInitDialog()
{
    gOtLang.TranslateDialog(this);
    CDialog::OnInitDialog();
    m_stored.LoadConfigs();
    m_wanted = m_kept = m_stored.LoadAccepted();
    m_stored.FindCurrent();
    m_configs.OnInitDialog();

    m_fitted = Fit(m_wanted);
    m_manager.RegisterAddPageNotification(&m_tree, true);
    m_manager.RegisterAttributeChangedNotification(this, true);
    m_tree.RegisterSelectPageNotification(&m_manager, true);
    m_tree.RegisterSelectPageNotification(&m_caption, true);
    AddPages();
    ShowAll();
    return FALSE; // the tree has the focus
}

BOOL CConnectionDialog::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_F6 && ::GetFocus() == m_tree)
    {
        GotoDlgCtrl(GetNextDlgTabItem(&m_tree));
        return TRUE;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void CConnectionDialog::OnOK()
{
    const std::vector<ERule> broken = BrokenRules(m_fitted);
    if (!broken.empty() && !Ask(TextOf(broken) + _T("\r\n") + Tr(_T("Prihvatiti vezu ipak?"))))
        return;
    if (m_stored.StoreAccepted(m_wanted))
        CDialog::OnOK();
}

void CConnectionDialog::OnCancel()
{
    if (m_wanted == m_kept || Ask(Tr(_T("Veza je izmenjena. Odbaciti izmene?"))))
        CDialog::OnCancel();
}

void CConnectionDialog::AddPages()
{
    CPage* pTop = nullptr;
    int nId = 0;
    const auto add = [&](LPCTSTR pszTitle, CConnectionPageDialog* pDialog, CPage* pParent)
    {
        m_manager.AddDialog(pDialog);
        CPage* pPage = new CConnectionPage(++nId, pszTitle, pDialog);
        m_manager.AddPage(pPage, pParent);
        return pPage;
    };
    pTop = add(_T("Geometrija"), NewGeometryPage(*this), nullptr);
    add(_T("Vijci"), NewBoltsPage(*this), pTop);
    add(_T("Ploca i savovi"), NewPlatePage(*this), pTop);
    add(_T("Opterecenje i provera"), NewCheckPage(*this), nullptr);
    add(_T("Specifikacija"), NewPartsPage(*this), nullptr);
    CPage* pDrawing = add(_T("Crtez i stilovi"), NewDrawingPage(*this), nullptr);
    add(_T("Jedinice i fontovi"), NewUnitsPage(*this), pDrawing);
    for (HTREEITEM hItem = m_tree.GetRootItem(); hItem; hItem = m_tree.GetNextSiblingItem(hItem))
        m_tree.Expand(hItem, TVE_EXPAND);
    m_tree.SetCurrentPage(pTop);
}

void CConnectionDialog::ShowAll()
{
    m_fitted = Fit(m_wanted);
    if (const auto* pPage = static_cast<CConnectionPage*>(m_tree.GetCurrentPage()))
        pPage->ShowValues(m_fitted);
    m_view.Show(m_fitted.values);
    SetDlgItemText(IDC_RULES, TextOf(BrokenRules(m_fitted)));
    m_configs.Refresh();
    ShowState();
}

void CConnectionDialog::ShowState()
{
    const bool bChanged = m_stored.IsConfigChanged();
    SetDlgItemText(IDC_STATE, bChanged ? Tr(_T("Izmenjeno, nije snimljeno")) : CString());
}

bool CConnectionDialog::Ask(const CString& strQuestion)
{
    return COstrelMessageBox::MessageBox(strQuestion, kTitle, MB_YESNO | MB_ICONQUESTION) == IDYES;
}
