#pragma once
// ClTranslator: texts of the program in the user's language.
//
//     ClCatalogueError error;
//     if (!gOtLang.Load(L"locale\\en.po", &error))
//         AfxMessageBox(error.Format());
//     gOtLang.Do(L"Snimi");                     // "Save"
//     gOtLang.TranslateDialog(this);            // in OnInitDialog
//
// The program's texts are written in Serbian, and the text itself is the key of its translation. With no
// catalogue, or for a text that the catalogue lacks, the text stands as it is.
//
// A catalogue is a gettext .po file in UTF-8. Read are msgctxt, msgid and msgstr, texts on several lines, and
// the escapes \n \t \r \a \b \f \v \" \\ \ooo \xhh. Of a plural entry the first form counts. Skipped are
// comments, obsolete entries, entries marked fuzzy and those with an empty translation.
//
// Two translators serve the program: gOtLang its user interface, gOtSubLang the texts that it writes into
// drawings, which may be in another language and so in another character set than the display.
// A translator is used on one thread.

#include "BaseSvcDef.h"

#include <memory>

class ClCatalogue;

/// Why a catalogue was refused.
struct BASESVC_API ClCatalogueError
{
    CString strPath;
    int nLine = 0; ///< counted from 1; 0 if the file as a whole cannot be read
    CString strWhat;

    /// "en.po(12): ..." for a message to the user.
    CString Format() const;
};

class BASESVC_API ClTranslator
{
public:
    ClTranslator();
    ~ClTranslator();
    ClTranslator(const ClTranslator&) = delete;
    ClTranslator& operator=(const ClTranslator&) = delete;

    /// Takes a catalogue in place of the present one. False if the file cannot be read or is not a sound
    /// catalogue; `pError`, if given, then says why, and the present catalogue stays.
    bool Load(LPCWSTR pszPath, ClCatalogueError* pError = nullptr);

    /// Back to the source texts.
    void Unload();

    bool IsLoaded() const;

    /// Number of translated texts.
    int Count() const;

    /// The translation of a text, or the text itself. Null counts as the empty text, which stays empty.
    CString Do(LPCWSTR pszText) const;

    /// The same for a text that the catalogue lists under a context (msgctxt). No entry without that context
    /// is looked for.
    CString Do(LPCWSTR pszContext, LPCWSTR pszText) const;

    /// Whether the catalogue has a translation for the text.
    bool Has(LPCWSTR pszText) const;

    /// Translates the caption of a dialog and, with `bChildren`, the texts of all controls in it, those of
    /// nested dialogs included. What the user enters or picks is left alone: edits, combo boxes, lists and
    /// trees, and date, key and address fields. So are pictures. A null pointer or a window that is not there
    /// is ignored.
    void TranslateDialog(CWnd* pWnd, int bChildren = 1) const;

    /// Names the language that the texts are in, which settles code page and character set. Without this call
    /// they are those of the display. False, and no change, if the system does not know the language.
    bool SetCurrentLanguage(LANGID nLanguage);

    /// Windows code page of the current language, for example 1250.
    UINT GetCurrentCodePage() const;

    /// Character set of the current language for LOGFONT::lfCharSet, for example EASTEUROPE_CHARSET.
    BYTE GetCurrentCharacterSet() const;

    /// Character set of the display: that of the system's ANSI code page.
    static BYTE GetDisplayCharacterSet();

private:
    std::unique_ptr<ClCatalogue> m_pCatalogue; ///< null while none is loaded
    UINT m_nCodePage;
    BYTE m_nCharacterSet;
};

extern BASESVC_API ClTranslator gOtLang;    ///< the user interface
extern BASESVC_API ClTranslator gOtSubLang; ///< texts written into drawings
