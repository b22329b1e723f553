#pragma once
// A page with a pair of radio buttons, IDC_LANG_SERBIAN and IDC_LANG_ENGLISH, for the language of the
// whole program.

#include "GalleryPage.h"

class CLanguagePageDialog : public CGalleryPageDialog
{
public:
    CLanguagePageDialog(UINT nTemplateId, CGalleryHostDialog& host) : CGalleryPageDialog(nTemplateId, host) {}

protected:
    /// The language may be another one, by this page or by one that was shown before. Texts that the program
    /// translates when it shows them need nothing.
    virtual void OnLanguage() {}

    void BindControlsToSources(bool bBind, CPage* pPage) override;

    afx_msg void OnSerbian();
    afx_msg void OnEnglish();
    DECLARE_MESSAGE_MAP()

private:
    void ShowLanguage();
};
