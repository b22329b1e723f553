// The common dialogs.

#include <afxdlgs.h>

#include <algorithm>
#include <array>
#include <utility>

// ---------------------------------------------------------------------------------------------------------
// CCommonDialog

namespace
{
/// The object whose dialog is about to be made on this thread; the hook below gives it its window.
thread_local CCommonDialog* dialogInCreation = nullptr;

/// Hook of all common dialogs: attaches the object as soon as there is a window. From then on the messages
/// reach the object first, so that the hook has nothing more to do.
UINT_PTR CALLBACK CommonDialogHook(HWND window, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG || dialogInCreation == nullptr)
        return 0;
    CCommonDialog* dialog = std::exchange(dialogInCreation, nullptr);
    dialog->SubclassWindow(window);
    return dialog->OnInitDialog();
}

/// Runs the system's function for a dialog and answers IDOK or IDCANCEL.
template <class ShowDialog>
INT_PTR RunCommonDialog(CCommonDialog* dialog, ShowDialog show)
{
    // After the dialog the focus goes back to where it was, which the system forgets for a child window.
    const HWND focus = ::GetFocus();
    dialogInCreation = dialog;
    const BOOL accepted = show();
    dialogInCreation = nullptr;
    if (::IsWindow(focus))
        ::SetFocus(focus);
    return accepted ? IDOK : IDCANCEL;
}
} // namespace

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : CDialog(static_cast<UINT>(0), pParentWnd)
{
}

void CCommonDialog::OnOK()
{
    if (UpdateData(TRUE))
        Default(); // the system's dialog closes itself
}

// ---------------------------------------------------------------------------------------------------------
// CFileDialog

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize)
    : CCommonDialog(pParentWnd), m_ofn(), m_bOpenFileDialog(bOpenFileDialog), m_strFilter(lpszFilter),
      m_strDefExt(lpszDefExt), m_szFileName(), m_szFileTitle()
{
    if (lpszFileName != nullptr)
        ::lstrcpyn(m_szFileName, lpszFileName, _countof(m_szFileName));

    m_ofn.lStructSize = dwSize != 0 ? dwSize : sizeof(m_ofn);
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = _countof(m_szFileName);
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = _countof(m_szFileTitle);
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.hInstance = AfxGetResourceHandle();
    m_ofn.lpfnHook = &CommonDialogHook;
    if (lpszDefExt != nullptr)
        m_ofn.lpstrDefExt = m_strDefExt;
    if (lpszFilter != nullptr)
    {
        const int length = m_strFilter.GetLength();
        LPTSTR filter = m_strFilter.GetBuffer();
        std::replace(filter, filter + length, L'|', L'\0');
        m_strFilter.ReleaseBufferSetLength(length);
        m_ofn.lpstrFilter = m_strFilter;
    }
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal()
{
    // What an earlier run left behind the name would be taken for further names.
    const size_t used = ::lstrlen(m_ofn.lpstrFile) + 1;
    std::fill(m_ofn.lpstrFile + used, m_ofn.lpstrFile + m_ofn.nMaxFile, L'\0');

    m_ofn.hwndOwner = PreModal();
    const INT_PTR answer = RunCommonDialog(
        this, [this] { return m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn); });
    PostModal();
    return answer;
}

CString CFileDialog::AskDialog(UINT message) const
{
    CString answer;
    const LRESULT length =
        GetParent()->SendMessage(message, MAX_PATH, reinterpret_cast<LPARAM>(answer.GetBuffer(MAX_PATH)));
    answer.ReleaseBuffer(length < 0 ? 0 : -1);
    return answer;
}

CString CFileDialog::GetPathName() const
{
    return IsExplorerDialogOpen() ? AskDialog(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const
{
    return IsExplorerDialogOpen() ? AskDialog(CDM_GETSPEC) : CString(m_ofn.lpstrFile + m_ofn.nFileOffset);
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const
{
    ASSERT(IsExplorerDialogOpen());
    return AskDialog(CDM_GETFOLDERPATH);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const
{
    // One file: its whole path. Several: the folder, then the names, each ended by a null, one more at the
    // end.
    const LPCTSTR folder = m_ofn.lpstrFile;
    LPCTSTR name = reinterpret_cast<LPCTSTR>(pos);
    if (name == folder)
    {
        name += ::lstrlen(name) + 1;
        if ((m_ofn.Flags & OFN_ALLOWMULTISELECT) == 0 || *name == 0)
        {
            pos = nullptr;
            return folder;
        }
    }

    const LPCTSTR next = name + ::lstrlen(name) + 1;
    pos = *next == 0 ? nullptr : reinterpret_cast<POSITION>(const_cast<LPTSTR>(next));

    CString path(folder);
    if (path.IsEmpty() || path[path.GetLength() - 1] != L'\\')
        path += L'\\';
    return path + name;
}

void CFileDialog::SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID)
{
    m_ofn.lpTemplateName = (m_ofn.Flags & OFN_EXPLORER) != 0 ? lpWin4ID : lpWin3ID;
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

void CFileDialog::SetTemplate(UINT nWin3ID, UINT nWin4ID)
{
    SetTemplate(MAKEINTRESOURCE(nWin3ID), MAKEINTRESOURCE(nWin4ID));
}

void CFileDialog::SetControlText(int nID, const wchar_t* lpsz)
{
    ASSERT(IsExplorerDialogOpen());
    GetParent()->SendMessage(CDM_SETCONTROLTEXT, nID, reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID)
{
    ASSERT(IsExplorerDialogOpen());
    GetParent()->SendMessage(CDM_HIDECONTROL, nID);
}

void CFileDialog::SetDefExt(LPCSTR lpsz)
{
    ASSERT(IsExplorerDialogOpen());
    m_strDefExt = lpsz;
    GetParent()->SendMessage(CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(m_strDefExt.GetString()));
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const auto& notify = *reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notify.hdr.code)
    {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_SHAREVIOLATION:
        *pResult = OnShareViolation(notify.pszFile);
        break;
    case CDN_HELP:
        OnHelp();
        break;
    case CDN_FILEOK:
        *pResult = OnFileNameOK();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
    // The dialog reads the answer here, and not only from the message.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

LRESULT CFileDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const UINT selectionChanges = ::RegisterWindowMessage(LBSELCHSTRING);
    if (message == selectionChanges)
        OnLBSelChangedNotify(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    return CCommonDialog::WindowProc(message, wParam, lParam);
}

// ---------------------------------------------------------------------------------------------------------
// CColorDialog

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc()
{
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.lpfnHook = &CommonDialogHook;
    m_cc.Flags = dwFlags | CC_ENABLEHOOK;
    m_cc.rgbResult = clrInit;
    if (clrInit != 0)
        m_cc.Flags |= CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal()
{
    m_cc.hwndOwner = PreModal();
    const INT_PTR answer = RunCommonDialog(this, [this] { return ::ChooseColor(&m_cc); });
    PostModal();
    return answer;
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors()
{
    static std::array<COLORREF, 16> colors = []
    {
        std::array<COLORREF, 16> white;
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return colors.data();
}

void CColorDialog::SetCurrentColor(COLORREF clr)
{
    static const UINT setColor = ::RegisterWindowMessage(SETRGBSTRING);
    ASSERT(m_hWnd != nullptr);
    SendMessage(setColor, 0, clr);
}

LRESULT CColorDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const UINT colorOk = ::RegisterWindowMessage(COLOROKSTRING);
    if (message != colorOk)
        return CCommonDialog::WindowProc(message, wParam, lParam);
    m_cc.rgbResult = reinterpret_cast<const CHOOSECOLOR*>(lParam)->rgbResult;
    return OnColorOK();
}

// ---------------------------------------------------------------------------------------------------------
// CFontDialog

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf(), m_lf(), m_szStyleName()
{
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    m_cf.lpfnHook = &CommonDialogHook;
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_szStyleName;
    if (lplfInitial != nullptr)
    {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr)
    {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal()
{
    m_cf.hwndOwner = PreModal();
    const INT_PTR answer = RunCommonDialog(this, [this] { return ::ChooseFont(&m_cf); });
    PostModal();
    return answer;
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf)
{
    if (m_hWnd != nullptr)
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    else
        *lplf = m_lf;
}
