#pragma once
// The language of the program: Serbian, in which its texts are written, or English, by a catalogue.

#include <afxwin.h>

#include <Translator.h>

/// A text of the program in the user's language.
inline CString Tr(LPCTSTR pszText)
{
    return gOtLang.Do(pszText);
}

/// Loads the catalogue that is wanted, "en" or "sr"; of anything else what was stored, or else what the system
/// speaks. Tells the user of a catalogue that cannot be read; the texts are Serbian then.
void ChooseLanguage(const CString& strWanted);

/// "en" or "sr": for the next start.
void StoreLanguage(LPCTSTR pszLanguage);
CString StoredLanguage();
