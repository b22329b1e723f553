#include "Check.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
constexpr double kGammaM0 = 1.0;
constexpr double kGammaM2 = 1.25;

// By EAction: the least and the greatest partial factor.
constexpr double kFactors[eActionCount][2] = {{1.0, 1.35}, {0.0, 1.5}, {-1.5, 1.5}, {0.0, 1.5}};
constexpr int kFactorSteps = 10;
static_assert(kFactorSteps * kFactorSteps * kFactorSteps * kFactorSteps == kLoadCaseCount);

/// The lever arms of a row, in metres from the middle of the flange that is in compression.
double LeverArm_m(const Connection& c, int row, bool bottomInCompression)
{
    const double fromTop = c.endDistance_m + row * c.pitch_m - (c.plateHeight_m - c.Beam().height_m) / 2;
    const double fromEdge = bottomInCompression ? c.Beam().height_m - fromTop : fromTop;
    return fromEdge - c.Beam().flange_m / 2;
}

double PlateTStub_N(const Connection& c)
{
    const double m = (c.gauge_m - c.Beam().web_m) / 2 - 0.8 * std::numbers::sqrt2 * c.webWeld_m;
    return TStubResistance_N(c, c.plateThickness_m, m, c.EdgeDistance_m());
}

double ColumnTStub_N(const Connection& c)
{
    const double m = (c.gauge_m - c.Column().web_m) / 2 - 0.8 * c.Column().radius_m;
    const double e = std::min((c.Column().width_m - c.gauge_m) / 2, c.EdgeDistance_m());
    return TStubResistance_N(c, c.Column().flange_m, m, e);
}

/// Fillet welds on both sides of a flange, which the force pulls at a right angle.
double FlangeWeldStress_Pa(const Connection& c, const Forces& forces)
{
    const Profile& beam = c.Beam();
    const double force =
        std::abs(forces.moment_Nm) / (beam.height_m - beam.flange_m) + std::max(forces.axial_N, 0.0) / 2;
    const double length = 2 * beam.width_m - beam.web_m - 2 * beam.radius_m;
    const double normal =
        force / (c.flangeWeld_m * length) / std::numbers::sqrt2; // and as much along the throat
    return std::sqrt(normal * normal + 3 * normal * normal);
}

/// Two fillet welds along the straight part of the web, which bear the shear.
double WebWeldStress_Pa(const Connection& c, const Forces& forces)
{
    const Profile& beam = c.Beam();
    const double length = beam.height_m - 2 * beam.flange_m - 2 * beam.radius_m;
    return std::sqrt(3.0) * std::abs(forces.shear_N) / (2 * c.webWeld_m * length);
}
} // namespace

double TensionResistance_N(const BoltSize& bolt, const BoltClass& grade)
{
    return 0.9 * grade.ultimate_Pa * bolt.stressArea_m2 / kGammaM2;
}

double ShearResistance_N(const BoltSize& bolt, const BoltClass& grade)
{
    return grade.shearFactor * grade.ultimate_Pa * bolt.stressArea_m2 / kGammaM2;
}

double PunchingResistance_N(const BoltSize& bolt, const SteelGrade& steel, double thickness_m)
{
    const double meanDiameter = (bolt.headWidth_m + 2 * bolt.HeadRadius_m()) / 2; // of flats and corners
    return 0.6 * std::numbers::pi * meanDiameter * thickness_m * steel.ultimate_Pa / kGammaM2;
}

double BearingResistance_N(const Connection& c, double thickness_m, double endDistance_m,
                           double edgeDistance_m)
{
    const double hole = c.Bolt().hole_m;
    double alpha =
        std::min({1.0, c.Class().ultimate_Pa / c.Steel().ultimate_Pa, c.pitch_m / (3 * hole) - 0.25});
    if (endDistance_m > 0)
        alpha = std::min(alpha, endDistance_m / (3 * hole));
    const double k1 = std::min({2.5, 2.8 * edgeDistance_m / hole - 1.7, 1.4 * c.gauge_m / hole - 1.7});
    return k1 * alpha * c.Steel().ultimate_Pa * c.Bolt().diameter_m * thickness_m / kGammaM2;
}

double TStubResistance_N(const Connection& c, double thickness_m, double m_m, double e_m)
{
    const double pi = std::numbers::pi;
    // A row alone, or at the end of a group: the shortest of the four patterns serves all rows.
    const double length = std::min(
        {2 * pi * m_m, pi * m_m + c.pitch_m, 4 * m_m + 1.25 * e_m, 2 * m_m + 0.625 * e_m + c.pitch_m / 2});
    const double plasticMoment = 0.25 * length * thickness_m * thickness_m * c.Steel().yield_Pa / kGammaM0;
    const double bolts = 2 * TensionResistance_N(c.Bolt(), c.Class());
    const double n = std::min(e_m, 1.25 * m_m);
    return std::min({4 * plasticMoment / m_m, (2 * plasticMoment + n * bolts) / (m_m + n), bolts});
}

double WeldResistance_Pa(const SteelGrade& steel)
{
    return steel.ultimate_Pa / (steel.weldFactor * kGammaM2);
}

double GreatestBoltTension_N(const Connection& c, const Forces& forces)
{
    const bool bottomInCompression = forces.moment_Nm >= 0;
    double sum = 0, greatest = 0;
    for (int row = 0; row < c.boltRows; ++row)
    {
        const double arm = LeverArm_m(c, row, bottomInCompression);
        sum += arm * arm;
        greatest = std::max(greatest, arm);
    }
    const double byMoment = std::abs(forces.moment_Nm) * greatest / (2 * sum);
    return std::max(0.0, byMoment + forces.axial_N / (2 * c.boltRows));
}

std::array<CheckResult, kCheckCount> CheckConnection(const Connection& c, const Forces& forces)
{
    const double tension = GreatestBoltTension_N(c, forces);
    const double shear = std::abs(forces.shear_N) / (2 * c.boltRows);
    const double tensionLimit = TensionResistance_N(c.Bolt(), c.Class());
    const double shearLimit = ShearResistance_N(c.Bolt(), c.Class());
    const double thinner = std::min(c.plateThickness_m, c.Column().flange_m);
    const double end = std::min(c.endDistance_m, c.BottomDistance_m());
    const double columnEdge = (c.Column().width_m - c.gauge_m) / 2;
    const double weldLimit = WeldResistance_Pa(c.Steel());
    return {{
        {ECheck::BoltTension, tension, tensionLimit},
        {ECheck::BoltShear, shear, shearLimit},
        {ECheck::BoltInteraction, shear / shearLimit + tension / (1.4 * tensionLimit), 1.0},
        {ECheck::PunchingShear, tension, PunchingResistance_N(c.Bolt(), c.Steel(), thinner)},
        {ECheck::BearingPlate, shear, BearingResistance_N(c, c.plateThickness_m, end, c.EdgeDistance_m())},
        {ECheck::BearingColumn, shear, BearingResistance_N(c, c.Column().flange_m, 0, columnEdge)},
        {ECheck::PlateBending, 2 * tension, PlateTStub_N(c)},
        {ECheck::ColumnBending, 2 * tension, ColumnTStub_N(c)},
        {ECheck::FlangeWeld, FlangeWeldStress_Pa(c, forces), weldLimit},
        {ECheck::WebWeld, WebWeldStress_Pa(c, forces), weldLimit},
    }};
}

const CheckResult& Governing(const std::array<CheckResult, kCheckCount>& results)
{
    return *std::max_element(results.begin(), results.end(),
                             [](const CheckResult& a, const CheckResult& b)
                             { return a.Utilisation() < b.Utilisation(); });
}

LoadCase LoadCaseAt(const Connection& c, int index)
{
    LoadCase loadCase;
    for (size_t i = 0; i < c.actions.size(); ++i, index /= kFactorSteps)
    {
        const auto [least, greatest] = kFactors[i];
        const double factor = least + (greatest - least) * (index % kFactorSteps) / (kFactorSteps - 1);
        loadCase.factors[i] = factor;
        loadCase.forces.moment_Nm += factor * c.actions[i].moment_Nm;
        loadCase.forces.shear_N += factor * c.actions[i].shear_N;
        loadCase.forces.axial_N += factor * c.actions[i].axial_N;
    }
    return loadCase;
}

Survey CheckAllCases(const Connection& c, const std::function<bool(int checked)>& goOn)
{
    Survey survey;
    double greatest = -1;
    while (survey.casesChecked < kLoadCaseCount && goOn(survey.casesChecked))
    {
        const LoadCase loadCase = LoadCaseAt(c, survey.casesChecked);
        const auto results = CheckConnection(c, loadCase.forces);
        if (const double utilisation = Governing(results).Utilisation(); utilisation > greatest)
        {
            greatest = utilisation;
            survey.governingCase = survey.casesChecked;
            survey.loadCase = loadCase;
            survey.results = results;
        }
        ++survey.casesChecked;
    }
    return survey;
}
