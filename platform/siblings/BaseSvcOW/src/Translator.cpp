#include "Translator.h"

#include "Catalogue.h"

ClTranslator gOtLang;
ClTranslator gOtSubLang;

namespace
{
BYTE CharacterSetOf(UINT nCodePage)
{
    CHARSETINFO info = {};
    // with TCI_SRCCODEPAGE the first argument is a number in a pointer's clothes
    auto* pSource = reinterpret_cast<DWORD*>(static_cast<ULONG_PTR>(nCodePage));
    if (!::TranslateCharsetInfo(pSource, &info, TCI_SRCCODEPAGE))
        return DEFAULT_CHARSET;
    return static_cast<BYTE>(info.ciCharset);
}

CString ClassNameOf(HWND hWnd)
{
    WCHAR szName[256] = L"";
    ::RealGetWindowClassW(hWnd, szName, ARRAYSIZE(szName)); // also of a class made from a standard one
    return szName;
}

/// Whether the text or the parts of a control are data and not wording.
bool HoldsData(HWND hWnd)
{
    static constexpr LPCWSTR kClasses[] = {
        L"Edit",          L"ComboBox",       L"ComboBoxEx32",    L"ListBox",           L"SysListView32",
        L"SysTreeView32", L"SysIPAddress32", L"msctls_hotkey32", L"SysDateTimePick32",
    };
    const CString strClass = ClassNameOf(hWnd);
    for (LPCWSTR pszClass : kClasses)
    {
        if (strClass.CompareNoCase(pszClass) == 0)
            return true;
    }
    return strClass.Left(8).CompareNoCase(L"RichEdit") == 0;
}

/// Whether a static control shows a picture, whose window text is no text.
bool IsPicture(HWND hWnd)
{
    if (ClassNameOf(hWnd).CompareNoCase(L"Static") != 0)
        return false;
    const LONG_PTR nType = ::GetWindowLongPtrW(hWnd, GWL_STYLE) & SS_TYPEMASK;
    return nType == SS_ICON || nType == SS_BITMAP || nType == SS_ENHMETAFILE;
}

CString TextOf(HWND hWnd)
{
    CString strText;
    const int nLength = ::GetWindowTextLengthW(hWnd);
    ::GetWindowTextW(hWnd, strText.GetBuffer(nLength), nLength + 1);
    strText.ReleaseBuffer();
    return strText;
}

void TranslateText(const ClTranslator& translator, HWND hWnd)
{
    const CString strText = TextOf(hWnd);
    if (translator.Has(strText))
        ::SetWindowTextW(hWnd, translator.Do(strText));
}

void TranslateChildren(const ClTranslator& translator, HWND hParent)
{
    for (HWND hChild = ::GetWindow(hParent, GW_CHILD); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
    {
        if (HoldsData(hChild))
            continue;
        if (!IsPicture(hChild))
            TranslateText(translator, hChild);
        TranslateChildren(translator, hChild);
    }
}
} // namespace

CString ClCatalogueError::Format() const
{
    CString strMessage = strPath;
    if (nLine > 0)
        strMessage.AppendFormat(L"(%d)", nLine);
    return strMessage + L": " + strWhat;
}

ClTranslator::ClTranslator() : m_nCodePage(::GetACP()), m_nCharacterSet(GetDisplayCharacterSet())
{
}

ClTranslator::~ClTranslator() = default;

bool ClTranslator::Load(LPCWSTR pszPath, ClCatalogueError* pError)
{
    ClCatalogueError error;
    std::unique_ptr<ClCatalogue> pCatalogue = ClCatalogue::Read(pszPath, error);
    if (!pCatalogue)
    {
        if (pError)
            *pError = error;
        return false;
    }
    m_pCatalogue = std::move(pCatalogue);
    return true;
}

void ClTranslator::Unload()
{
    m_pCatalogue.reset();
}

bool ClTranslator::IsLoaded() const
{
    return m_pCatalogue != nullptr;
}

int ClTranslator::Count() const
{
    return m_pCatalogue ? m_pCatalogue->Count() : 0;
}

CString ClTranslator::Do(LPCWSTR pszText) const
{
    const std::wstring* pTranslation = m_pCatalogue && pszText ? m_pCatalogue->Find(pszText) : nullptr;
    return pTranslation ? pTranslation->c_str() : pszText;
}

CString ClTranslator::Do(LPCWSTR pszContext, LPCWSTR pszText) const
{
    if (!m_pCatalogue || !pszContext || !pszText)
        return pszText;
    const std::wstring* pTranslation = m_pCatalogue->Find(ClCatalogue::ContextKey(pszContext, pszText));
    return pTranslation ? pTranslation->c_str() : pszText;
}

bool ClTranslator::Has(LPCWSTR pszText) const
{
    return m_pCatalogue && pszText && m_pCatalogue->Find(pszText);
}

void ClTranslator::TranslateDialog(CWnd* pWnd, int bChildren) const
{
    if (!m_pCatalogue || !pWnd || !::IsWindow(pWnd->m_hWnd))
        return;
    TranslateText(*this, pWnd->m_hWnd);
    if (bChildren)
        TranslateChildren(*this, pWnd->m_hWnd);
}

bool ClTranslator::SetCurrentLanguage(LANGID nLanguage)
{
    UINT nCodePage = 0;
    const LCID nLocale = MAKELCID(nLanguage, SORT_DEFAULT);
    if (!::GetLocaleInfoW(nLocale, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                          reinterpret_cast<LPWSTR>(&nCodePage), sizeof(nCodePage) / sizeof(WCHAR)))
        return false;
    m_nCodePage = nCodePage ? nCodePage : CP_UTF8; // 0: a language that has no code page of its own
    m_nCharacterSet = CharacterSetOf(m_nCodePage);
    return true;
}

UINT ClTranslator::GetCurrentCodePage() const
{
    return m_nCodePage;
}

BYTE ClTranslator::GetCurrentCharacterSet() const
{
    return m_nCharacterSet;
}

BYTE ClTranslator::GetDisplayCharacterSet()
{
    return CharacterSetOf(::GetACP());
}
