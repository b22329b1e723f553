#pragma once
// CMeasurementUnit: one unit of measurement, named by two numbers.
//
//     CMeasurementUnit mm(2, 0);          // unit 2 of kind 0, a millimetre
//     mm.Symbol();                        // "mm"
//
// Kind        Global unit   Units by number
// 0 length    metre         0 m, 1 cm, 2 mm, 3 dm, 4 in, 5 ft
// 1 force     newton        0 N, 1 kN, 2 MN
// 2 angle     radian        0 rad, 1 degree

#include "BaseSvcDef.h"

class BASESVC_API CMeasurementUnit
{
public:
    enum EKind
    {
        eLength = 0,
        eForce = 1,
        eAngle = 2,
    };

    /// Numbers of the kind eLength.
    enum EUnit
    {
        eMetre = 0,
        eCentimetre = 1,
        eMillimetre = 2,
        eDecimetre = 3,
        eInch = 4,
        eFoot = 5,
    };

    /// Numbers of the kind eForce.
    enum EForceUnit
    {
        eNewton = 0,
        eKilonewton = 1,
        eMeganewton = 2,
    };

    /// Numbers of the kind eAngle.
    enum EAngleUnit
    {
        eRadian = 0,
        eDegree = 1,
    };

    /// The metre.
    CMeasurementUnit() = default;

    /// Any pair of numbers is taken. One that names no unit is not valid: its symbol is "?", and it converts
    /// as the global unit.
    CMeasurementUnit(int nUnit, int nKind) : m_nUnit(nUnit), m_nKind(nKind) {}

    int GetUnit() const { return m_nUnit; }
    int GetKind() const { return m_nKind; }

    /// Whether the two numbers name a unit of the table above.
    bool IsValid() const;

    /// What is written behind a number, for example "mm".
    CString Symbol() const;

    /// Number of units of the kind; 0 for an unknown kind.
    static int Count(int nKind);

    friend bool operator==(const CMeasurementUnit& a, const CMeasurementUnit& b)
    {
        return a.m_nUnit == b.m_nUnit && a.m_nKind == b.m_nKind;
    }
    friend bool operator!=(const CMeasurementUnit& a, const CMeasurementUnit& b) { return !(a == b); }

private:
    int m_nUnit = eMetre;
    int m_nKind = eLength;
};
