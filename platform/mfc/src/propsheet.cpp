// Property sheets, on the system's own.

#include <afxdlgs.h>
#include <afxpriv.h>

#include "dialog.h"
#include "dlgtemplate.h"
#include "threadstate.h"
#include "wndclass.h"

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_WM_NCCREATE()
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(WM_COMMANDHELP, &CPropertySheet::OnCommandHelp)
    ON_WM_CLOSE()
    ON_WM_SYSCOMMAND()
    ON_MESSAGE(WM_KICKIDLE, &CPropertySheet::OnKickIdle)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::OnPressButton)
END_MESSAGE_MAP()
// clang-format on

// ---------------------------------------------------------------------------------------------------------
// Construction

CPropertySheet::~CPropertySheet() = default;

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    VERIFY(m_strCaption.LoadString(nIDCaption));
    CommonConstruct(pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    m_strCaption = pszCaption;
    CommonConstruct(pParentWnd, iSelectPage);
}

void CPropertySheet::CommonConstruct(CWnd* parent, UINT selectedPage)
{
    m_psh = {};
    m_psh.dwSize = sizeof m_psh;
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.pszCaption = m_strCaption;
    m_psh.nStartPage = selectedPage;
    m_pParentWnd = parent;
    m_bStacked = TRUE;
    m_bModeless = FALSE;
}

void CPropertySheet::SetPictures(HBITMAP watermark, HPALETTE palette, HBITMAP header)
{
    if (watermark != nullptr)
    {
        m_psh.hbmWatermark = watermark;
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    }
    if (palette != nullptr)
    {
        m_psh.hplWatermark = palette;
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    }
    if (header != nullptr)
    {
        m_psh.hbmHeader = header;
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    }
}

// ---------------------------------------------------------------------------------------------------------
// Creation

PROPSHEETPAGE CPropertySheet::PageToShow(CPropertyPage& page)
{
    PROPSHEETPAGE shown = page.m_psp;
    if (!page.m_strHeaderTitle.IsEmpty())
    {
        shown.pszHeaderTitle = page.m_strHeaderTitle;
        shown.dwFlags |= PSP_USEHEADERTITLE;
    }
    if (!page.m_strHeaderSubTitle.IsEmpty())
    {
        shown.pszHeaderSubTitle = page.m_strHeaderSubTitle;
        shown.dwFlags |= PSP_USEHEADERSUBTITLE;
    }
    page.m_bFirstSetActive = TRUE;
    page.PreProcessPageTemplate(shown, IsWizard());
    return shown;
}

void CPropertySheet::BuildPropPageArray()
{
    // One behind the other, each as long as it says.
    m_pageArray.clear();
    for (int index = 0; index < GetPageCount(); ++index)
    {
        const PROPSHEETPAGE page = PageToShow(*GetPage(index));
        const auto* const bytes = reinterpret_cast<const BYTE*>(&page);
        m_pageArray.insert(m_pageArray.end(), bytes, bytes + page.dwSize);
        m_psh.dwFlags |= page.dwFlags & PSP_HASHELP ? PSH_HASHELP : 0;
    }
    m_psh.ppsp = reinterpret_cast<LPCPROPSHEETPAGE>(m_pageArray.data());
    m_psh.nPages = static_cast<UINT>(GetPageCount());
}

namespace
{
/// The styles for the sheet that is being made on this thread.
struct CSheetStyles
{
    DWORD style;
    DWORD exStyle;
};
thread_local CSheetStyles stylesInCreation;

int CALLBACK SheetCallback(HWND, UINT message, LPARAM lParam)
{
    if (message != PSCB_PRECREATE)
        return 0;
    // The system's template, of either form, and possibly still in its read-only resource.
    DWORD access = 0;
    ::VirtualProtect(reinterpret_cast<void*>(lParam), sizeof(CExtendedHead), PAGE_READWRITE, &access);
    auto* const extended = reinterpret_cast<CExtendedHead*>(lParam);
    auto* const plain = reinterpret_cast<DLGTEMPLATE*>(lParam);
    const bool isExtended = extended->signature == CExtendedHead::mark;
    (isExtended ? extended->style : plain->style) = stylesInCreation.style;
    (isExtended ? extended->exStyle : plain->dwExtendedStyle) = stylesInCreation.exStyle;
    return TRUE;
}
} // namespace

/// Makes the window; null if that failed.
HWND CPropertySheet::CreateSheet(CWnd* parent)
{
    InitializeCommonControls();
    BuildPropPageArray();
    m_psh.hwndParent = parent->GetSafeHwnd();
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS; // the loop of a modal sheet is ours
    AfxHookWindowCreate(this);
    const INT_PTR answer = ::PropertySheet(&header);
    AfxUnhookWindowCreate();
    return answer == -1 ? nullptr : reinterpret_cast<HWND>(answer);
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle)
{
    constexpr DWORD usual =
        DS_MODALFRAME | DS_3DLOOK | DS_CONTEXTHELP | DS_SETFONT | WS_POPUP | WS_VISIBLE | WS_CAPTION;
    stylesInCreation = {dwStyle == static_cast<DWORD>(-1) ? usual : dwStyle, dwExStyle};
    m_bModeless = TRUE;
    m_psh.dwFlags |= PSH_MODELESS | PSH_USECALLBACK;
    m_psh.pfnCallback = &SheetCallback;
    if (CreateSheet(pParentWnd) != nullptr)
        return TRUE;
    if (m_hWnd == nullptr)
        PostNcDestroy(); // no window was made, so that no message will end the object's life
    return FALSE;
}

INT_PTR CPropertySheet::DoModal()
{
    ASSERT(m_hWnd == nullptr);
    HWND disabledTop = nullptr;
    CWnd* const parent = GetSafeOwner(m_pParentWnd, &disabledTop);
    const HWND owner = parent->GetSafeHwnd();
    COwnerLock ownerLock(owner);
    if (const HWND capturing = ::GetCapture())
        ::SendMessage(capturing, WM_CANCELMODE, 0, 0);

    // EndDialog while the pages are made takes the flag away again.
    m_nModalResult = 0;
    m_nFlags |= WF_CONTINUEMODAL;
    INT_PTR result = -1;
    if (CreateSheet(parent) != nullptr)
    {
        result = m_nModalResult;
        if (ContinueModal())
            result = RunModalLoop(MLF_SHOWONIDLE | ((GetStyle() & DS_NOIDLEMSG) != 0 ? MLF_NOIDLEMSG : 0));
        // Hidden before the owner is enabled, or another application's window would come to the front.
        if (m_hWnd != nullptr)
            SetWindowPos(nullptr, 0, 0, 0, 0,
                         SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    m_nFlags &= ~WF_CONTINUEMODAL;
    ownerLock.Restore();
    if (owner != nullptr && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    if (disabledTop != nullptr)
        ::EnableWindow(disabledTop, TRUE);
    return result;
}

BOOL CPropertySheet::ContinueModal()
{
    // Without a page the system's sheet has been closed by one of its buttons.
    return CWnd::ContinueModal() && m_hWnd != nullptr && SendMessage(PSM_GETCURRENTPAGEHWND) != 0;
}

void CPropertySheet::EndDialog(int nEndID)
{
    EndModalLoop(nEndID);
    if (m_bModeless)
        DestroyWindow();
    else
        PostMessage(PSM_PRESSBUTTON, PSBTN_CANCEL); // which tells the pages
}

// ---------------------------------------------------------------------------------------------------------
// Messages

BOOL CPropertySheet::OnNcCreate(LPCREATESTRUCT)
{
    ModifyStyleEx(WS_EX_CONTEXTHELP, 0); // help comes by F1 and the Help button
    return static_cast<BOOL>(Default());
}

BOOL CPropertySheet::OnInitDialog()
{
    if (!m_bStacked)
        if (const HWND tabs = ::GetDlgItem(m_hWnd, AFX_IDC_TAB_CONTROL))
            ModifyStyle(tabs, TCS_MULTILINE, TCS_SINGLELINE, 0);
    const BOOL focus = static_cast<BOOL>(Default());
    if (m_bModeless && !IsWizard())
        LeaveOutButtons();
    if ((GetStyle() & WS_CHILD) == 0)
        CenterWindow();
    return focus;
}

/// A modeless sheet ends below its pages.
void CPropertySheet::LeaveOutButtons()
{
    CRect button;
    ::GetWindowRect(::GetDlgItem(m_hWnd, IDOK), &button);
    CRect sheet;
    GetWindowRect(&sheet);
    SetWindowPos(nullptr, 0, 0, sheet.Width(), button.top - sheet.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
        if (const HWND item = ::GetDlgItem(m_hWnd, id))
        {
            ::ShowWindow(item, SW_HIDE);
            ::EnableWindow(item, FALSE);
        }
}

LRESULT CPropertySheet::OnCommandHelp(WPARAM wParam, LPARAM lParam)
{
    CPropertyPage* const page = GetActivePage();
    return page != nullptr ? AfxCallWndProc(page, page->m_hWnd, WM_COMMANDHELP, wParam, lParam) : 0;
}

void CPropertySheet::OnClose()
{
    m_nModalResult = IDCANCEL;
    if (m_bModeless)
        DestroyWindow();
    else
        Default();
}

void CPropertySheet::OnSysCommand(UINT nID, LPARAM)
{
    const bool isClose = (nID & 0xFFF0) == SC_CLOSE;
    if (isClose)
        m_nModalResult = IDCANCEL;
    if (isClose && m_bModeless)
        SendMessage(WM_CLOSE);
    else
        Default();
}

LRESULT CPropertySheet::OnKickIdle(WPARAM wParam, LPARAM lParam)
{
    CPropertyPage* const page = GetActivePage();
    return page != nullptr ? page->SendMessage(WM_KICKIDLE, wParam, lParam) : 0;
}

LRESULT CPropertySheet::OnPressButton(WPARAM wParam, LPARAM)
{
    // No click comes of it that would say how the sheet was ended.
    const bool runs = (m_nFlags & WF_CONTINUEMODAL) != 0;
    if (runs && wParam == PSBTN_OK)
        m_nModalResult = IDOK;
    else if (runs && wParam == PSBTN_CANCEL)
        m_nModalResult = IDCANCEL;
    else if (runs && wParam == PSBTN_FINISH)
        m_nModalResult = ID_WIZFINISH;
    return Default();
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    // The button that was clicked last is the one that ended the sheet.
    const auto button = reinterpret_cast<HWND>(lParam);
    if (button != nullptr && HIWORD(wParam) == BN_CLICKED &&
        (::SendMessage(button, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0)
        m_nModalResult = LOWORD(wParam);
    return FALSE;
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           RouteBeyondDialog(*this, nID, nCode, pExtra, pHandlerInfo);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg)
{
    CWnd::PreTranslateMessage(pMsg); // tool tips look on
    // Ctrl with Tab or a page key changes the page.
    const bool changesPage = pMsg->message == WM_KEYDOWN && ::GetKeyState(VK_CONTROL) < 0 &&
                             (pMsg->wParam == VK_TAB || pMsg->wParam == VK_PRIOR || pMsg->wParam == VK_NEXT);
    if (changesPage && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg)) != 0)
        return TRUE;
    return PreTranslateInput(pMsg);
}

// ---------------------------------------------------------------------------------------------------------
// Pages

void CPropertySheet::AddPage(CPropertyPage* pPage)
{
    ASSERT(pPage->IsKindOf(RUNTIME_CLASS(CPropertyPage)));
    m_pages.Add(pPage);
    if (m_hWnd == nullptr)
        return;
    const PROPSHEETPAGE page = PageToShow(*pPage);
    const HPROPSHEETPAGE added = ::CreatePropertySheetPage(&page);
    if (added == nullptr || SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(added)) == 0)
    {
        if (added != nullptr)
            ::DestroyPropertySheetPage(added);
        AfxThrowMemoryException();
    }
}

void CPropertySheet::RemovePage(CPropertyPage* pPage)
{
    const int index = GetPageIndex(pPage);
    ASSERT(index >= 0);
    RemovePage(index);
}

void CPropertySheet::RemovePage(int nPage)
{
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, nPage);
    m_pages.RemoveAt(nPage);
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const
{
    for (int index = 0; index < GetPageCount(); ++index)
        if (GetPage(index) == pPage)
            return index;
    return -1;
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == nullptr)
        return static_cast<int>(m_psh.nStartPage);
    return static_cast<int>(::SendMessage(GetTabControl()->GetSafeHwnd(), TCM_GETCURSEL, 0, 0));
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    if (m_hWnd == nullptr)
        return GetPage(GetActiveIndex());
    return DYNAMIC_DOWNCAST(CPropertyPage, FromHandlePermanent(AfxSend<HWND>(PSM_GETCURRENTPAGEHWND)));
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (m_hWnd != nullptr)
        return AfxSend<BOOL>(PSM_SETCURSEL, nPage);
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage)
{
    const int index = GetPageIndex(pPage);
    ASSERT(index >= 0);
    return SetActivePage(index);
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle)
{
    ASSERT((nStyle & ~UINT{PSH_PROPTITLE}) == 0);
    if (m_hWnd != nullptr)
    {
        AfxSend(PSM_SETTITLE, nStyle, lpszText);
        return;
    }
    m_strCaption = lpszText;
    m_psh.pszCaption = m_strCaption;
    m_psh.dwFlags = (m_psh.dwFlags & ~PSH_PROPTITLE) | nStyle;
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return static_cast<CTabCtrl*>(FromHandle(AfxSend<HWND>(PSM_GETTABCONTROL)));
}
