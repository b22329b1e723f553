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
    return strProgram.Left(strProgram.ReverseFind(_T('\\')) + 1) + _T("locale\\gallery_en.po");
}
} // namespace

BEGIN_MESSAGE_MAP(CLanguagePageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_LANG_SERBIAN, &CLanguagePageDialog::OnSerbian)
    ON_BN_CLICKED(IDC_LANG_ENGLISH, &CLanguagePageDialog::OnEnglish)
END_MESSAGE_MAP()

void CLanguagePageDialog::OnSerbian()
{
    gOtLang.Unload();
    ShowLanguage();
}

void CLanguagePageDialog::OnEnglish()
{
    ClCatalogueError error;
    if (!gOtLang.Load(CataloguePath(), &error))
        Log(_T("Catalogue"), _T("%s"), error.Format().GetString());
    ShowLanguage();
}

void CLanguagePageDialog::BindControlsToSources(bool bBind, CPage* pPage)
{
    CGalleryPageDialog::BindControlsToSources(bBind, pPage);
    if (bBind)
        ShowLanguage();
}

void CLanguagePageDialog::ShowLanguage()
{
    CheckRadioButton(IDC_LANG_SERBIAN, IDC_LANG_ENGLISH,
                     gOtLang.IsLoaded() ? IDC_LANG_ENGLISH : IDC_LANG_SERBIAN);
    OnLanguage();
}
