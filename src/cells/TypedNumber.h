#pragma once
// For the number cells' own sources: the text that a user typed, read as a number.
//
// A text is first checked for its characters only, and then read as far as it makes sense: 1-2 reads as 1,
// and a lone sign or point as 0.

#include <afxwin.h>

/// Behind the digits at the beginning of a text, and behind whichever of the other characters stand between
/// them. Null counts as an empty text.
LPCWSTR gfnSkipNumber(LPCWSTR pszText, LPCWSTR pszOthers);

/// Whether a text has digits and the other characters only, and at least one of them.
bool gfnIsNumberText(LPCWSTR pszText, LPCWSTR pszOthers);

/// The number at the beginning of a text, or 0. One beyond what the type holds counts as the outermost that
/// it does.
double gfnReadDouble(LPCWSTR pszText);
int gfnReadInt(LPCWSTR pszText);
