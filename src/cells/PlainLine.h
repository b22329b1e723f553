#pragma once
// For the cells' own sources: a line of text, put where DrawText would put it for less than half of its cost.
//
//     if (!gfnDrawPlainLine(dc, pszText, rect, nFormat))
//         dc.DrawText(pszText, -1, &rect, nFormat);
//
// It is not searched for letters that change their order or shape, and it is measured once: where its
// characters end tells whether it fits, and where it is cut off if it does not.

#include <afxwin.h>

/// False, and nothing drawn, for what only DrawText can draw: a text of several lines, or with characters that
/// do not each stand by themselves, another format than those of an ordinary cell, a context that does not
/// write to the right of a place.
bool gfnDrawPlainLine(CDC& dc, LPCWSTR pszText, const CRect& rect, UINT nFormat);
