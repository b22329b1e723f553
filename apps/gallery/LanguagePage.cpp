#include <afxwin.h>

#include "LanguagePage.h"
#include "resource.h"

#include <Translator.h>

namespace
{
/// The catalogue that stands beside the program.
CString CataloguePath()
{
    TCHAR szProgram[MAX_PATH] = _T("");
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    const CString strProgram(szProgram);
    return strProgram.Left(strProgram.ReverseFind(_T('\\')) + 1) + _T("locale\\en.po");
}
} // namespace

BEGIN_MESSAGE_MAP(CLanguagePage, CGalleryPage)
    ON_BN_CLICKED(IDC_LANG_SERBIAN, OnSerbian)
    ON_BN_CLICKED(IDC_LANG_ENGLISH, OnEnglish)
END_MESSAGE_MAP()

void CLanguagePage::OnSerbian()
{
    gOtLang.Unload();
    ShowLanguage();
}

void CLanguagePage::OnEnglish()
{
    ClCatalogueError error;
    if (!gOtLang.Load(CataloguePath(), &error))
        Log(_T("Catalogue"), _T("%s"), error.Format().GetString());
    ShowLanguage();
}

void CLanguagePage::BindControlsToSources(bool bBind, CPage* pPage)
{
    CGalleryPage::BindControlsToSources(bBind, pPage);
    if (bBind)
        ShowLanguage();
}

void CLanguagePage::ShowLanguage()
{
    CheckRadioButton(IDC_LANG_SERBIAN, IDC_LANG_ENGLISH,
                     gOtLang.IsLoaded() ? IDC_LANG_ENGLISH : IDC_LANG_SERBIAN);
    OnLanguage();
}
