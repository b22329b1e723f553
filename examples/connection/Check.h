#pragma once
// Whether it holds: the resistances of EN 1993-1-8 against the forces of a load case, and the search for the
// load case that governs.
//
// The forces of the bolts are elastic: the connection turns about the middle of the flange in compression, and
// all bolts share the shear. Not checked: the web of the column, stiffeners, and the beam itself.

#include "Model.h"

#include <functional>

enum class ECheck
{
    BoltTension,
    BoltShear,
    BoltInteraction, ///< of tension and shear
    PunchingShear,
    BearingPlate,
    BearingColumn,
    PlateBending,  ///< T-stub, the least of three modes
    ColumnBending, ///< the same in the flange of the column
    FlangeWeld,
    WebWeld,
};
constexpr int kCheckCount = 10;

/// Effect and resistance in newtons; of the interaction and the welds in pascals or without a unit.
struct CheckResult
{
    ECheck check;
    double effect;
    double resistance;

    double Utilisation() const { return effect / resistance; }
};

// Resistances of one bolt, EN 1993-1-8, table 3.4.
double TensionResistance_N(const BoltSize& bolt, const BoltClass& grade);
double ShearResistance_N(const BoltSize& bolt, const BoltClass& grade);
double PunchingResistance_N(const BoltSize& bolt, const SteelGrade& steel, double thickness_m);

/// `endDistance_m` is 0 where there is no end in the direction of the force, as in a column.
double BearingResistance_N(const Connection& c, double thickness_m, double endDistance_m,
                           double edgeDistance_m);

/// Two bolts of a T-stub, the least of the three modes of table 6.2. `m_m` and `e_m` as in figure 6.8.
double TStubResistance_N(const Connection& c, double thickness_m, double m_m, double e_m);

/// The resultant stress that a fillet weld bears, 4.5.3.2.
double WeldResistance_Pa(const SteelGrade& steel);

/// Tension of one bolt of the row that bears most.
double GreatestBoltTension_N(const Connection& c, const Forces& forces);

/// All checks, in the order of ECheck. The connection is to be fitted.
std::array<CheckResult, kCheckCount> CheckConnection(const Connection& c, const Forces& forces);

/// The one with the greatest utilisation.
const CheckResult& Governing(const std::array<CheckResult, kCheckCount>& results);

/// Every action with ten partial factors from its least to its greatest.
struct LoadCase
{
    std::array<double, eActionCount> factors{};
    Forces forces;
};
constexpr int kLoadCaseCount = 10000;
LoadCase LoadCaseAt(const Connection& c, int index);

struct Survey
{
    int casesChecked = 0;
    int governingCase = -1; ///< its index
    LoadCase loadCase;      ///< that case
    std::array<CheckResult, kCheckCount> results{};
};

/// Checks case after case as long as `goOn`, which is told how many have been checked, answers true.
Survey CheckAllCases(const Connection& c, const std::function<bool(int checked)>& goOn);
