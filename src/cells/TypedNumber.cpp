#include <afxwin.h>

#include "cells/TypedNumber.h"

#include "edits/LocalNumber.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cstdint>
#include <cwchar>
#include <cwctype>
#include <optional>

namespace
{
constexpr bool IsAsciiDigit(wchar_t ch)
{
    return ch >= L'0' && ch <= L'9';
}

/// A number with so few digits that they and the power of ten by which they are divided are exact: one division
/// then rounds as the run-time library does, at a fraction of its cost. Nothing for all others.
std::optional<double> ReadShort(LPCWSTR pszText)
{
    constexpr std::uint64_t kMost = 900719925474099; // 2^53 / 10
    const bool bNegative = *pszText == L'-';
    if (*pszText == L'-' || *pszText == L'+')
        ++pszText;
    std::uint64_t nDigits = 0;
    double dDivisor = 0.0; // behind the point
    bool bAny = false;
    for (;; ++pszText)
    {
        if (*pszText == L'.' && dDivisor == 0.0)
        {
            dDivisor = 1.0;
            continue;
        }
        if (!IsAsciiDigit(*pszText))
            break;
        bAny = true;
        nDigits = nDigits * 10 + (*pszText - L'0');
        dDivisor *= 10.0;
        if (nDigits > kMost || dDivisor > 1e22)
            return std::nullopt;
    }
    if (*pszText == L'E' || *pszText == L'e')
        return std::nullopt;
    const double dNumber =
        dDivisor > 1.0 ? static_cast<double>(nDigits) / dDivisor : static_cast<double>(nDigits);
    return bNegative && bAny ? -dNumber : dNumber; // a lone sign reads as 0 without one
}
} // namespace

LPCWSTR gfnSkipNumber(LPCWSTR pszText, LPCWSTR pszOthers)
{
    if (!pszText)
        return L"";
    while (*pszText &&
           (IsAsciiDigit(*pszText) || std::wcschr(pszOthers, *pszText) || std::iswdigit(*pszText)))
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
    if (const std::optional<double> number = ReadShort(pszText))
        return *number;
    // An overflow reads as infinity.
    return std::clamp(std::wcstod(CLocalNumber(pszText), nullptr), -DBL_MAX, DBL_MAX);
}

int gfnReadInt(LPCWSTR pszText)
{
    return static_cast<int>(std::clamp<long long>(std::wcstoll(pszText, nullptr, 10), INT_MIN, INT_MAX));
}
