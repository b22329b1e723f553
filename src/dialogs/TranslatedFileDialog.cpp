#include <afxwin.h>

#include "dialogs/TranslatedFileDialog.h"

#include "module/HostResourceScope.h"

#include <Translator.h>

#include <algorithm>

namespace
{
constexpr DWORD kCurrentSize = 0;

// Labels of the system's dialog
constexpr int kFileTypeLabel = 1089;
constexpr int kFileNameLabel = 1090;
constexpr int kFolderLabel = 1091;

/// The filter with its end: without it the system would read on behind the text.
CString CompleteFilter(CString strFilter)
{
    strFilter.TrimRight(_T('|'));
    if (strFilter.IsEmpty())
        return strFilter;
    const LPCTSTR pszEnd = strFilter.GetString() + strFilter.GetLength();
    const bool bLacksPattern = std::count(strFilter.GetString(), pszEnd, _T('|')) % 2 == 0;
    return strFilter + (bLacksPattern ? _T("|*.*||") : _T("||"));
}

LPCTSTR NullIfEmpty(const CString& strText)
{
    return strText.IsEmpty() ? nullptr : strText.GetString();
}
} // namespace

CTranslatedFileDialog::CTranslatedFileDialog(int bOpen, const wchar_t* pszDefExt, const wchar_t* pszFileName,
                                             unsigned long dwFlags, const wchar_t* pszFilter, CWnd* pParent,
                                             const wchar_t* pszTitle)
    : CFileDialog(bOpen, pszDefExt, pszFileName, dwFlags, NullIfEmpty(CompleteFilter(pszFilter)), pParent,
                  kCurrentSize
#if _MFC_VER >= 0x0900
                  ,
                  FALSE // else the system's later dialog, which has none of these labels
#endif
                  ),
      m_bOpen(bOpen), m_pszTitle(pszTitle)
{
}

// The system's dialog is the parent of this one.
BOOL CTranslatedFileDialog::OnInitDialog()
{
    const BOOL bResult = CFileDialog::OnInitDialog();
    CWnd& dialog = *GetParent();
    dialog.SetWindowText(Caption());
    dialog.SetDlgItemText(IDOK, gOtLang.Do(m_bOpen ? L"Ucitaj" : L"Snimi"));
    dialog.SetDlgItemText(IDCANCEL, gOtLang.Do(L"Cancel"));
    dialog.SetDlgItemText(kFolderLabel, gOtLang.Do(L"Lokacija"));
    dialog.SetDlgItemText(kFileNameLabel, gOtLang.Do(L"Ime fajla"));
    dialog.SetDlgItemText(kFileTypeLabel, gOtLang.Do(L"Tip fajla"));
    return bResult;
}

CString CTranslatedFileDialog::Caption() const
{
    if (m_pszTitle)
        return m_pszTitle;
    return gOtLang.Do(m_bOpen ? L"Ucitaj" : L"Snimi kao...");
}

// Wanted: the path is taken over after a Cancel, too.
int gfnStartTranslatedFileDialog(CString& strPath, int bOpen, const wchar_t* pszDefExt,
                                 const wchar_t* pszFileName, unsigned long dwFlags, const wchar_t* pszFilter,
                                 HWND hParent, const wchar_t* pszTitle)
{
    const CHostResourceScope resources;
    CWnd* pParent = ::IsWindow(hParent) ? CWnd::FromHandle(hParent) : nullptr;
    CTranslatedFileDialog dialog(bOpen, pszDefExt, pszFileName, dwFlags, pszFilter, pParent, pszTitle);
    const int nResult = static_cast<int>(dialog.DoModal());
    strPath = dialog.GetPathName();
    return nResult;
}
