// The pages of property sheets.

#include <afxdlgs.h>
#include <afxpriv.h>

#include "dialog.h"
#include "dlgtemplate.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

// ---------------------------------------------------------------------------------------------------------
// Construction

namespace
{
/// Gives the object of a page its window when the system makes it.
UINT CALLBACK PageCallback(HWND, UINT message, LPPROPSHEETPAGE page)
{
    if (message == PSPCB_CREATE)
        AfxHookWindowCreate(reinterpret_cast<CPropertyPage*>(page->lParam));
    else if (message == PSPCB_RELEASE)
        AfxUnhookWindowCreate();
    return TRUE; // go on with the creation
}

/// Whether somebody would answer a Help button.
bool IsHelpHandled()
{
    AFX_CMDHANDLERINFO info{};
    for (CCmdTarget* const target :
         {static_cast<CCmdTarget*>(AfxGetMainWnd()), static_cast<CCmdTarget*>(AfxGetApp())})
        if (target != nullptr && target->OnCmdMsg(ID_HELP, CN_COMMAND, nullptr, &info))
            return true;
    return false;
}
} // namespace

CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::CommonConstruct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                                    UINT nIDHeaderSubTitle, DWORD dwSize)
{
    ASSERT(dwSize <= sizeof m_psp); // smaller for an older system
    m_psp = {};
    m_psp.dwSize = dwSize;
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.pszTemplate = m_lpszTemplateName = lpszTemplateName;
    if (lpszTemplateName != nullptr)
        m_psp.hInstance = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = LOWORD(lpszTemplateName);
    m_psp.pfnDlgProc = &AfxDlgProc;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    m_psp.pfnCallback = &PageCallback;
    if (nIDCaption != 0)
    {
        VERIFY(m_strCaption.LoadString(nIDCaption));
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
    if (nIDHeaderTitle != 0)
        VERIFY(m_strHeaderTitle.LoadString(nIDHeaderTitle));
    if (nIDHeaderSubTitle != 0)
        VERIFY(m_strHeaderSubTitle.LoadString(nIDHeaderSubTitle));
    if (IsHelpHandled())
        m_psp.dwFlags |= PSP_HASHELP;
    m_bFirstSetActive = TRUE;
}

namespace
{
/// The font of the system's own sheets, which stands in their templates.
CTemplateFont SheetFont(bool wizard)
{
    LPCTSTR const name = MAKEINTRESOURCE(wizard ? 1020 : 1006);
    const HMODULE module = ::GetModuleHandle(L"comctl32.dll");
    const HRSRC found = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    const auto* const sheet =
        static_cast<LPCDLGTEMPLATE>(loaded != nullptr ? ::LockResource(loaded) : nullptr);
    return sheet != nullptr ? FontOf(sheet) : CTemplateFont();
}
} // namespace

void CPropertyPage::PreProcessPageTemplate(PROPSHEETPAGE& psp, BOOL bWizard)
{
    LPCDLGTEMPLATE dialogTemplate = psp.pResource;
    if ((psp.dwFlags & PSP_DLGINDIRECT) == 0)
    {
        HINSTANCE module = nullptr;
        dialogTemplate = LoadTemplate(psp.pszTemplate, module);
    }
    if (dialogTemplate == nullptr)
        return;
    const CTemplateFont wanted = SheetFont(bWizard != FALSE);
    const CTemplateFont own = FontOf(dialogTemplate);
    if (wanted.points != 0 && (own.face != wanted.face || own.points != wanted.points))
    {
        m_ownTemplate = WithFont(dialogTemplate, wanted);
        dialogTemplate = reinterpret_cast<LPCDLGTEMPLATE>(m_ownTemplate.data());
    }
    m_usedTemplate = psp.pResource = dialogTemplate;
    psp.dwFlags |= PSP_DLGINDIRECT;
}

// ---------------------------------------------------------------------------------------------------------
// Operations

CPropertySheet* CPropertyPage::GetParentSheet() const
{
    return DYNAMIC_DOWNCAST(CPropertySheet, GetParent());
}

void CPropertyPage::SetModified(BOOL bChanged)
{
    if (m_hWnd != nullptr) // a page that was not shown yet has nothing to apply
        GetParent()->SendMessage(bChanged ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

void CPropertyPage::EndDialog(int nEndID)
{
    if (CPropertySheet* const sheet = GetParentSheet())
        sheet->EndDialog(nEndID);
}

// ---------------------------------------------------------------------------------------------------------
// Notifications

BOOL CPropertyPage::OnSetActive()
{
    if (!std::exchange(m_bFirstSetActive, FALSE)) // the first time OnInitDialog has just done it
        UpdateData(FALSE);
    return TRUE;
}

/// A page is named by its template's id; the system's sheet knows it by the template itself.
LRESULT CPropertyPage::MapWizardResult(LRESULT lToMap)
{
    const CPropertySheet* const sheet = GetParentSheet();
    for (int index = 0; sheet != nullptr && index < sheet->GetPageCount(); ++index)
    {
        const CPropertyPage& page = *sheet->GetPage(index);
        if (reinterpret_cast<LRESULT>(page.m_psp.pszTemplate) == lToMap)
            return reinterpret_cast<LRESULT>(page.m_usedTemplate);
    }
    return lToMap;
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.hwndFrom != m_hWnd && header.hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    switch (header.code)
    {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        break;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        break;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        break;
    case PSN_RESET:
        OnReset();
        break;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        break;
    case PSN_WIZBACK:
        *pResult = MapWizardResult(OnWizardBack());
        break;
    case PSN_WIZNEXT:
        *pResult = MapWizardResult(OnWizardNext());
        break;
    case PSN_WIZFINISH:
        *pResult = !OnWizardFinish();
        break;
    case PSN_HELP:
        SendMessage(WM_COMMAND, ID_HELP);
        break;
    default:
        return FALSE;
    }
    return TRUE;
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg); // keys are the sheet's, which knows the tabs and its own buttons
}
