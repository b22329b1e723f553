#include <afxwin.h>

#include "Language.h"

namespace
{
constexpr LPCTSTR kSection = _T("Connection"), kEntry = _T("Language");

CString CataloguePath()
{
    CString strPath;
    ::GetModuleFileName(nullptr, strPath.GetBuffer(MAX_PATH), MAX_PATH);
    strPath.ReleaseBuffer();
    return strPath.Left(strPath.ReverseFind(_T('\\'))) + _T("\\locale\\connection_en.po");
}

bool IsLanguage(const CString& strName)
{
    return strName == _T("en") || strName == _T("sr");
}
} // namespace

void ChooseLanguage(const CString& strWanted)
{
    gOtLang.Unload();
    if ((IsLanguage(strWanted) ? strWanted : StoredLanguage()) == _T("sr"))
        return;
    ClCatalogueError error;
    if (!gOtLang.Load(CataloguePath(), &error))
        AfxMessageBox(error.Format(), MB_ICONWARNING);
}

void StoreLanguage(LPCTSTR pszLanguage)
{
    AfxGetApp()->WriteProfileString(kSection, kEntry, pszLanguage);
}

CString StoredLanguage()
{
    const CString strStored = AfxGetApp()->GetProfileString(kSection, kEntry);
    if (IsLanguage(strStored))
        return strStored;
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_SERBIAN ? _T("sr") : _T("en");
}
