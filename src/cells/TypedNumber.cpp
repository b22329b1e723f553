#include <afxwin.h>

#include "cells/TypedNumber.h"

#include "edits/LocalNumber.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cwchar>
#include <cwctype>

LPCWSTR gfnSkipNumber(LPCWSTR pszText, LPCWSTR pszOthers)
{
    if (!pszText)
        return L"";
    while (*pszText && (std::iswdigit(*pszText) || std::wcschr(pszOthers, *pszText)))
        ++pszText;
    return pszText;
}

bool gfnIsNumberText(LPCWSTR pszText, LPCWSTR pszOthers)
{
    const LPCWSTR pszEnd = gfnSkipNumber(pszText, pszOthers);
    return pszText && pszEnd != pszText && !*pszEnd;
}

double gfnReadDouble(LPCWSTR pszText)
{
    return std::clamp(std::wcstod(CLocalNumber(pszText), nullptr), -DBL_MAX, DBL_MAX); // an overflow reads as infinity
}

int gfnReadInt(LPCWSTR pszText)
{
    return static_cast<int>(std::clamp<long long>(std::wcstoll(pszText, nullptr, 10), INT_MIN, INT_MAX));
}
