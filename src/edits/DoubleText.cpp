#include <afxwin.h>

#include "edits/DoubleText.h"

#include "edits/LocalNumber.h"

#include <algorithm>
#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cwchar>
#include <iterator>
#include <optional>

namespace
{
/// As many digits as tell any double from its neighbours.
constexpr wchar_t c_szExactFormat[] = L"%.17G";

/// The locale in which numbers are written: that with a point.
_locale_t PointLocale()
{
    static const _locale_t s_locale = _create_locale(LC_NUMERIC, "C"); // for the life of the process
    return s_locale;
}

/// False if the text does not fit.
bool FormatInto(wchar_t (&szText)[c_nDoubleTextSize], const wchar_t* pszFormat, double dValue)
{
    // The run-time library's own function, which is also behind CString::Format: the two write the same
    // exponents.
    return _snwprintf_s_l(szText, c_nDoubleTextSize, _TRUNCATE, pszFormat, PointLocale(), dValue) >= 0;
}

CString NameOfNonNumber(double dValue)
{
    if (std::isnan(dValue))
        return L"nan";
    return dValue < 0.0 ? L"-inf" : L"inf";
}

constexpr double c_powersOfTen[] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};

/// How many units of its last decimal a number has, without its sign; nothing where that does not say beyond
/// doubt how the number is rounded.
std::optional<std::uint64_t> CountLastDecimals(double dAbsolute, int nDecimals)
{
    constexpr double dExact = 4503599627370496.0; // 2^52: below it a double has room for a half
    if (nDecimals < 0 || nDecimals >= static_cast<int>(std::size(c_powersOfTen)))
        return std::nullopt;
    const double dScaled = dAbsolute * c_powersOfTen[nDecimals];
    if (!(dScaled < dExact))
        return std::nullopt;
    const auto nWhole = static_cast<std::int64_t>(dScaled); // signed: that is one instruction
    const double dBeyondHalf = dScaled - static_cast<double>(nWhole) - 0.5;
    if (std::fabs(dBeyondHalf) <= dScaled / dExact) // twice what the product may be off
        return std::nullopt;
    return dBeyondHalf > 0.0 ? nWhole + 1 : nWhole;
}

/// Writes a count of last decimals backwards; where the text begins.
wchar_t* WriteBackwards(wchar_t* pszEnd, std::uint64_t nCount, int nDecimals)
{
    for (int nDigits = 0; nCount > 0 || nDigits <= nDecimals; ++nDigits)
    {
        if (nDigits == nDecimals && nDecimals > 0)
            *--pszEnd = L'.';
        *--pszEnd = static_cast<wchar_t>(L'0' + nCount % 10);
        nCount /= 10;
    }
    return pszEnd;
}
} // namespace

CString gfnDoublePrintfFormat(EDoubleFormat eFormat, int nDecimals)
{
    // More decimals than the text has room for make no difference, and the run-time library need not try
    // them.
    const int nShown = std::clamp(nDecimals, 0, c_nDoubleTextSize);
    CString strFormat;
    switch (eFormat)
    {
    case eDoubleFormatGeneral:
        strFormat = L"%G";
        break;
    case eDoubleFormatFixed:
        strFormat.Format(L"%%.%df", nShown);
        break;
    case eDoubleFormatExponent:
        strFormat.Format(L"%%.%dE", nShown);
        break;
    }
    return strFormat;
}

CString gfnFormatDouble(const wchar_t* pszFormat, double dValue)
{
    if (!std::isfinite(dValue))
        return NameOfNonNumber(dValue);
    wchar_t szText[c_nDoubleTextSize];
    if (!FormatInto(szText, pszFormat, dValue))
        FormatInto(szText, c_szExactFormat, dValue);
    return szText;
}

// The run-time library takes most of the time that a column of numbers needs. What is not a close case of
// rounding is a whole number and a point.
const wchar_t* gfnFormatFixed(wchar_t (&szText)[c_nDoubleTextSize], int nDecimals, double dValue)
{
    const std::optional<std::uint64_t> count = CountLastDecimals(std::fabs(dValue), nDecimals);
    if (!count)
    {
        const CString strText = gfnFormatDouble(gfnDoublePrintfFormat(eDoubleFormatFixed, nDecimals), dValue);
        wcscpy_s(szText, c_nDoubleTextSize, strText);
        return szText;
    }
    wchar_t* const pszEnd = szText + c_nDoubleTextSize - 1;
    *pszEnd = L'\0';
    wchar_t* pszText = WriteBackwards(pszEnd, *count, nDecimals);
    if (std::signbit(dValue))
        *--pszText = L'-';
    return pszText;
}

CString gfnFormatAllDigits(int nDecimals, double dValue)
{
    if (!std::isfinite(dValue))
        return NameOfNonNumber(dValue);
    constexpr int kMostDecimals = 0xFFFF;
    constexpr int kRoomBeforeDecimals = DBL_MAX_10_EXP + 4; // sign, whole digits, point and null
    const int nShown = std::clamp(nDecimals, 0, kMostDecimals);
    const int nSize = kRoomBeforeDecimals + nShown;
    CString strText;
    _snwprintf_s_l(strText.GetBuffer(nSize), nSize, _TRUNCATE, L"%.*f", PointLocale(), nShown, dValue);
    strText.ReleaseBuffer();
    return strText;
}

CLocalNumber::CLocalNumber(const wchar_t* pszText) : m_pszText(pszText)
{
    const auto chPoint = static_cast<wchar_t>(std::btowc(*std::localeconv()->decimal_point));
    if (chPoint == L'.')
        return;
    m_strLocal = pszText;
    if (const int nEnd = m_strLocal.Find(chPoint); nEnd >= 0)
        m_strLocal.Truncate(nEnd);
    m_strLocal.Replace(L'.', chPoint);
    m_pszText = m_strLocal;
}

bool gfnParseDouble(const wchar_t* pszText, double& dValue)
{
    double dParsed = 0.0;
    if (swscanf(CLocalNumber(pszText), c_szDoubleScanfFormat, &dParsed) != 1 || !std::isfinite(dParsed))
        return false;
    dValue = dParsed;
    return true;
}
