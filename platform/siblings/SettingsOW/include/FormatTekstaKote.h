#pragma once
// CFormatTekstaKote: the text of a dimension: which of the standard dimension texts, how its length is
// written, and what stands before and behind it.
//
//     CFormatTekstaKote format;
//     format.nTekstKote = 0;
//     format.strPrefiks = L"L=";
//     format.Format(1.25);                      // "L=1250"
//
// A new record is not set: a receiver that is given one keeps what it has.

#include "FormatJedinice.h"
#include "SettingsDef.h"

class SETTINGS_API CFormatTekstaKote
{
public:
    /// Value of nTekstKote that marks a record as not set.
    static constexpr int kNotSet = -1;

    int nTekstKote = kNotSet; ///< number of the standard dimension text, 0 to 5
    CFormatJedinice jedinica;   ///< how the length is written
    CString strPrefiks;         ///< text before the length
    CString strSufiks;          ///< text behind the length

    bool IsSet() const { return nTekstKote != kNotSet; }

    /// Writes a length given in metres, with prefix and suffix.
    CString Format(double dLength) const;

    bool operator==(const CFormatTekstaKote& other) const;
    bool operator!=(const CFormatTekstaKote& other) const { return !(*this == other); }
};
