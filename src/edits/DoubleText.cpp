#include <afxwin.h>

#include "edits/DoubleText.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace
{
/// As many digits as tell any double from its neighbours.
constexpr wchar_t c_szExactFormat[] = L"%.17G";

/// False if the text does not fit.
bool FormatInto(wchar_t (&szText)[c_nDoubleTextSize], const wchar_t* pszFormat, double dValue)
{
    // The run-time library's own function, which is also behind CString::Format: the two write the same
    // exponents.
    return _snwprintf_s(szText, c_nDoubleTextSize, _TRUNCATE, pszFormat, dValue) >= 0;
}

CString NameOfNonNumber(double dValue)
{
    if (std::isnan(dValue))
        return L"nan";
    return dValue < 0.0 ? L"-inf" : L"inf";
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

bool gfnParseDouble(const wchar_t* pszText, double& dValue)
{
    double dParsed = 0.0;
    if (swscanf(pszText, L"%lf", &dParsed) != 1 || !std::isfinite(dParsed))
        return false;
    dValue = dParsed;
    return true;
}
