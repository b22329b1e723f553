#include <afxwin.h>

#include "edits/DoubleText.h"

#include "edits/Digits.h"
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
constexpr wchar_t kExactFormat[] = L"%.17G";

/// The locale in which numbers are written: that with a point.
_locale_t PointLocale()
{
    static const _locale_t s_locale = _create_locale(LC_NUMERIC, "C"); // for the life of the process
    return s_locale;
}

/// False if the text does not fit.
bool FormatInto(wchar_t (&szText)[kDoubleTextSize], const wchar_t* pszFormat, double dValue)
{
    // The run-time library's own function, which is also behind CString::Format: the two write the same
    // exponents.
    return _snwprintf_s_l(szText, kDoubleTextSize, _TRUNCATE, pszFormat, PointLocale(), dValue) >= 0;
}

CString NameOfNonNumber(double dValue)
{
    if (std::isnan(dValue))
        return L"nan";
    return std::signbit(dValue) ? L"-inf" : L"inf";
}

/// All that a double holds exactly.
constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Whether the run-time library writes 2.5 as 3, and not as the even 2.
bool RoundsTiesUp()
{
    static const bool s_bUp = []
    {
        wchar_t szText[kDoubleTextSize];
        return FormatInto(szText, L"%.0f", 2.5) && *szText == L'3';
    }();
    return s_bUp;
}

/// What a product with a number of at most 26 bits lacks to the true one, which a double holds exactly: the
/// factor is taken apart into halves whose products are exact.
double ErrorOfProduct(double dFactor, double dShort, double dProduct)
{
    constexpr double kHalves = 134217729.0; // 2^27 + 1
    const double dSpread = dFactor * kHalves;
    const double dHigh = dSpread - (dSpread - dFactor);
    return (dHigh * dShort - dProduct) + (dFactor - dHigh) * dShort;
}

/// How many units of its last decimal a number has, without its sign, rounded as the run-time library does:
/// by the true value, which a double holds in full. Nothing for numbers that are too large for that.
std::optional<std::uint64_t> CountLastDecimals(double dAbsolute, int nDecimals)
{
    constexpr double kExact = 4503599627370496.0; // 2^52: below it a double has room for a half
    constexpr int kMostDecimals = 6;              // their power has few enough bits
    if (nDecimals < 0 || nDecimals > kMostDecimals)
        return std::nullopt;
    const double dScaled = dAbsolute * kPowersOfTen[nDecimals];
    if (!(dScaled < kExact))
        return std::nullopt;
    const auto nNearest = static_cast<std::int64_t>(dScaled + 0.5); // signed: that is one instruction
    const double dOff = std::fabs(dScaled - static_cast<double>(nNearest));
    if (0.5 - dOff > dScaled / kExact) // twice what the product may be off
        return nNearest;
    const auto nWhole = static_cast<std::int64_t>(dScaled);
    const double dBeyondHalf = dScaled - static_cast<double>(nWhole) - 0.5 +
                               ErrorOfProduct(dAbsolute, kPowersOfTen[nDecimals], dScaled);
    if (dBeyondHalf == 0.0)
        return RoundsTiesUp() ? nWhole + 1 : nWhole + (nWhole & 1);
    return dBeyondHalf > 0.0 ? nWhole + 1 : nWhole;
}

/// A number without its sign as so many digits, one of them before the point, and a power of ten.
struct SScientific
{
    std::uint64_t digits;
    int exponent;
};

/// Nothing where powers of ten are not exact, or where the result does not say beyond doubt how it is rounded.
std::optional<SScientific> ToScientific(double dAbsolute, int nDecimals)
{
    constexpr int kMostPower = static_cast<int>(std::size(kPowersOfTen)) - 1;
    constexpr int kMostDecimals = 9;
    constexpr double kLog2 = 0.30102999566398120;
    constexpr double kDoubt = 1.0 / 1125899906842624.0; // 2^-50: more than the one operation may be off
    if (nDecimals < 0 || nDecimals > kMostDecimals)
        return std::nullopt;
    if (dAbsolute == 0.0)
        return SScientific{0, 0};

    int nBinary;
    std::frexp(dAbsolute, &nBinary);
    // Up to one too low, which shows in the digits.
    for (int nExponent = static_cast<int>(std::floor((nBinary - 1) * kLog2));; ++nExponent)
    {
        const int nPower = nDecimals - nExponent;
        if (nPower > kMostPower || nPower < -kMostPower)
            return std::nullopt;
        const double dScaled =
            nPower >= 0 ? dAbsolute * kPowersOfTen[nPower] : dAbsolute / kPowersOfTen[-nPower];
        const auto nWhole = static_cast<std::int64_t>(dScaled);
        const double dBeyondHalf = dScaled - static_cast<double>(nWhole) - 0.5;
        if (std::fabs(dBeyondHalf) <= dScaled * kDoubt)
            return std::nullopt;
        const std::int64_t nDigits = dBeyondHalf > 0.0 ? nWhole + 1 : nWhole;
        if (static_cast<double>(nDigits) < kPowersOfTen[nDecimals + 1])
            return SScientific{static_cast<std::uint64_t>(nDigits), nExponent};
    }
}

/// The run-time library says how many digits an exponent has at least.
int ExponentDigits()
{
    static const int s_nDigits = []
    {
        wchar_t szText[kDoubleTextSize];
        return FormatInto(szText, L"%.0E", 1.0) ? static_cast<int>(wcslen(szText)) - 3 : 2; // behind 1E+
    }();
    return s_nDigits;
}
const wchar_t* CopyText(wchar_t (&szText)[kDoubleTextSize], const CString& strText)
{
    wcscpy_s(szText, kDoubleTextSize, strText);
    return szText;
}

/// `write` writes a number without its sign, its end before the given place, and answers where it begins.
template <class Write>
const wchar_t* SignedText(wchar_t (&szText)[kDoubleTextSize], double dValue, Write write)
{
    wchar_t* const pszEnd = szText + kDoubleTextSize - 1;
    *pszEnd = L'\0';
    wchar_t* pszText = write(pszEnd);
    if (std::signbit(dValue))
        *--pszText = L'-';
    return pszText;
}
} // namespace

CString gfnDoublePrintfFormat(EDoubleFormat eFormat, int nDecimals)
{
    // More decimals than the text has room for make no difference, and the run-time library need not try
    // them.
    const int nShown = std::clamp(nDecimals, 0, kDoubleTextSize);
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
    wchar_t szText[kDoubleTextSize];
    if (!FormatInto(szText, pszFormat, dValue))
        FormatInto(szText, kExactFormat, dValue);
    return szText;
}

// The run-time library takes most of the time that a column of numbers needs. What is not a close case of
// rounding is a whole number and a point.
const wchar_t* gfnFormatFixed(wchar_t (&szText)[kDoubleTextSize], int nDecimals, double dValue)
{
    const std::optional<std::uint64_t> count = CountLastDecimals(std::fabs(dValue), nDecimals);
    if (!count)
        return CopyText(szText,
                        gfnFormatDouble(gfnDoublePrintfFormat(eDoubleFormatFixed, nDecimals), dValue));
    return SignedText(szText, dValue,
                      [&](wchar_t* psz) { return ow::gfnWriteDecimals(psz, *count, nDecimals); });
}

const wchar_t* gfnFormatExponent(wchar_t (&szText)[kDoubleTextSize], int nDecimals, double dValue)
{
    const std::optional<SScientific> parts =
        std::isfinite(dValue) ? ToScientific(std::fabs(dValue), nDecimals) : std::nullopt;
    if (!parts)
        return CopyText(szText,
                        gfnFormatDouble(gfnDoublePrintfFormat(eDoubleFormatExponent, nDecimals), dValue));
    return SignedText(szText, dValue,
                      [&](wchar_t* psz)
                      {
                          wchar_t* const pszEnd = psz;
                          psz = ow::gfnWriteDigits(psz, static_cast<unsigned>(std::abs(parts->exponent)));
                          while (pszEnd - psz < ExponentDigits())
                              *--psz = L'0';
                          *--psz = parts->exponent < 0 ? L'-' : L'+';
                          *--psz = L'E';
                          return ow::gfnWriteDecimals(psz, parts->digits, nDecimals);
                      });
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
    if (swscanf(CLocalNumber(pszText), kDoubleScanfFormat, &dParsed) != 1 || !std::isfinite(dParsed))
        return false;
    dValue = dParsed;
    return true;
}
