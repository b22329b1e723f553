#pragma once
// Numbers as text: how a box or a cell writes a double, and how it reads one back.
//
// ```cpp
//     gfnFormatDouble(gfnDoublePrintfFormat(eDoubleFormatFixed, 2), 12.5);   // "12.50"
//     double dForce = 0.0;
//     gfnParseDouble(L"12.5 kN", dForce);                                    // true, 12.5
// ```
//
// The decimal sign is a point, whatever the locale of the process. Texts are bounded, but for those of
// gfnFormatAllDigits: however large the number and however many the decimals, no text is longer than
// kDoubleTextSize - 1 characters.

#include <afxwin.h>

#include "module/Export.h"

/// How a number is written.
enum EDoubleFormat : int
{
    eDoubleFormatGeneral = 0,  ///< 1250, 0.1 or 1.25E+009, whichever is shorter; at most six digits
    eDoubleFormatFixed = 1,    ///< 1250.00
    eDoubleFormatExponent = 2, ///< 1.25E+003; the run-time library says how many digits the exponent has
};

/// Characters of the longest text, its terminating null included.
constexpr int kDoubleTextSize = 100;

/// The printf format of a number: "%G", "%.2f", "%.2E". The general format pays no heed to the decimals.
/// Fewer than no decimals count as none. A format that is none of the three gives an empty string, and with
/// that every number an empty text.
OW_DIALOGCONTROLS_API CString gfnDoublePrintfFormat(EDoubleFormat eFormat, int nDecimals);

/// The scanf format that every number is read with.
constexpr const wchar_t* kDoubleScanfFormat = L"%lf";

/// Writes a number by a printf format with at most one conversion, of a double.
///
/// A text that would be too long is written in the shortest form that still names the same number, such as
/// 1E+308. What is no number is written as "inf", "-inf" or "nan", none of which gfnParseDouble takes.
OW_DIALOGCONTROLS_API CString gfnFormatDouble(const wchar_t* pszFormat, double dValue);

/// Writes a number with the fixed format and so many decimals: the text that gfnFormatDouble makes of it,
/// without its cost, for those who write thousands. Answers where in `szText` it begins.
OW_DIALOGCONTROLS_API const wchar_t* gfnFormatFixed(wchar_t (&szText)[kDoubleTextSize], int nDecimals,
                                                    double dValue);

/// The same with the exponent format.
OW_DIALOGCONTROLS_API const wchar_t* gfnFormatExponent(wchar_t (&szText)[kDoubleTextSize], int nDecimals,
                                                       double dValue);

/// Writes a number with the fixed format and so many decimals, at most 65535, however long the text becomes.
OW_DIALOGCONTROLS_API CString gfnFormatAllDigits(int nDecimals, double dValue);

/// Reads the number at the beginning of a text; white space before it and anything behind it are passed over.
/// False, with the value as it was, if there is none, or if it lies beyond what a double holds.
OW_DIALOGCONTROLS_API bool gfnParseDouble(const wchar_t* pszText, double& dValue);
