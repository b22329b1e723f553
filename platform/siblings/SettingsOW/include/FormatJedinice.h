#pragma once
// CFormatJedinice: how a length is written: in which unit, with how many decimals, with or without the
// symbol.
//
//     CFormatJedinice format;
//     format.nUnitIndex = CMeasurementUnit::eCentimetre;
//     format.nEditValue = 1;
//     format.nCheckFlag = 1;
//     format.Format(0.125);                     // "12.5 cm"

#include "ComplexUnit.h"
#include "SettingsDef.h"

class SETTINGS_API CFormatJedinice
{
public:
    /// Most decimals that are written: a double holds no more.
    static constexpr int kMaxDecimals = 15;

    int nUnitIndex = CMeasurementUnit::eMillimetre; ///< number of the length unit, 0 to 5
    int nCheckFlag = 0;                             ///< 1: the unit's symbol is written behind the number
    int nEditValue = 0;                             ///< decimals, 0 to kMaxDecimals

    /// The unit of nUnitIndex. An index that names none gives the millimetre, the default of the record.
    CComplexUnit Unit() const;

    /// Writes a length given in metres. Decimals out of range count as the nearest bound.
    CString Format(double dLength) const;

    friend bool operator==(const CFormatJedinice& a, const CFormatJedinice& b)
    {
        return a.nUnitIndex == b.nUnitIndex && a.nCheckFlag == b.nCheckFlag && a.nEditValue == b.nEditValue;
    }
    friend bool operator!=(const CFormatJedinice& a, const CFormatJedinice& b) { return !(a == b); }
};
