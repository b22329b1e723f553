#include "Rules.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
constexpr double mm = kMillimetre_m;
constexpr double kToolClearance_m = 2 * mm; ///< between a head or nut and a weld
constexpr double kLeastWeld_m = 3 * mm;     ///< EN 1993-1-8, 4.5.2
constexpr double kMostOverhang_m = 50 * mm; ///< of the plate beyond the beam, above and below
constexpr double kMostSpacing_m = 200 * mm; ///< EN 1993-1-8, table 3.3
constexpr int kMostRows = 12;

double LegOf(double throat_m)
{
    return throat_m * std::numbers::sqrt2;
}

/// Inwards to whole millimetres; what is one up to rounding stays.
Limits Between(double min_m, double max_m)
{
    constexpr double tiny = 1e-6;
    const double least = std::ceil(min_m / mm - tiny) * mm;
    const double most = std::floor(max_m / mm + tiny) * mm;
    return {least, std::max(least, most), least <= most};
}

/// The thinner of the two parts that are bolted together.
double ThinnerPart_m(const Connection& c)
{
    return std::min(c.plateThickness_m, c.Column().flange_m);
}

/// e1 and e2 of EN 1993-1-8, table 3.3, for steel that is exposed to the weather.
double MostEdge_m(const Connection& c)
{
    return 4 * ThinnerPart_m(c) + 40 * mm;
}

/// p1 and p2 of the same table.
double MostSpacing_m(const Connection& c)
{
    return std::min(14 * ThinnerPart_m(c), kMostSpacing_m);
}

/// From the edge of the plate to a row of bolts, past the flange of the beam and its weld.
double LeastEnd_m(const Connection& c)
{
    const double overhang = (c.plateHeight_m - c.Beam().height_m) / 2;
    const double pastFlange = overhang + c.Beam().flange_m + LegOf(c.flangeWeld_m) + c.Bolt().HeadRadius_m();
    return std::max(1.2 * c.Bolt().hole_m, pastFlange + kToolClearance_m);
}

double LeastGauge_m(const Connection& c)
{
    const double head = c.Bolt().HeadRadius_m();
    const double pastBeamWeb = c.Beam().web_m + 2 * (LegOf(c.webWeld_m) + head + kToolClearance_m);
    const double pastColumnRoot = c.Column().web_m + 2 * (c.Column().radius_m + head);
    return std::max({2.4 * c.Bolt().hole_m, pastBeamWeb, pastColumnRoot});
}
} // namespace

double Limits::Nearest(double value_m) const
{
    return std::clamp(value_m, min_m, max_m);
}

FittedConnection Fit(const Connection& wanted)
{
    FittedConnection f;
    Connection& c = f.values;
    c = wanted;
    const double hole = c.Bolt().hole_m;

    f.thickness = Between(std::max(6 * mm, c.Bolt().diameter_m / 2), 60 * mm);
    c.plateThickness_m = f.thickness.Nearest(c.plateThickness_m);
    f.flangeWeld = Between(kLeastWeld_m, std::max(kLeastWeld_m, 0.7 * c.Beam().flange_m));
    c.flangeWeld_m = f.flangeWeld.Nearest(c.flangeWeld_m);
    f.webWeld = Between(kLeastWeld_m, std::max(kLeastWeld_m, 0.7 * c.Beam().web_m));
    c.webWeld_m = f.webWeld.Nearest(c.webWeld_m);
    f.height =
        Between(c.Beam().height_m + 2 * LegOf(c.flangeWeld_m), c.Beam().height_m + 2 * kMostOverhang_m);
    c.plateHeight_m = f.height.Nearest(c.plateHeight_m);

    const double leastEnd = LeastEnd_m(c), leastPitch = Between(2.2 * hole, 1).min_m;
    const double leastWholeEnd = Between(leastEnd, 1).min_m;
    const double room = c.plateHeight_m - leastWholeEnd - leastEnd; // between the outermost rows
    f.maxRows = std::clamp(1 + static_cast<int>(room / leastPitch), 2, kMostRows);
    c.boltRows = std::clamp(c.boltRows, 2, f.maxRows);
    const int gaps = c.boltRows - 1;

    f.endDistance =
        Between(leastEnd, std::min(MostEdge_m(c), c.plateHeight_m - leastEnd - gaps * leastPitch));
    c.endDistance_m = f.endDistance.Nearest(c.endDistance_m);
    const double below = c.plateHeight_m - c.endDistance_m - leastEnd;
    f.pitch = Between(leastPitch, std::min(MostSpacing_m(c), below / gaps));
    c.pitch_m = f.pitch.Nearest(c.pitch_m);

    f.gauge = Between(LeastGauge_m(c), std::min(MostSpacing_m(c), c.Column().width_m - 2.4 * hole));
    c.gauge_m = f.gauge.Nearest(c.gauge_m);
    f.width = Between(std::max(c.Beam().width_m, c.gauge_m + 2.4 * hole),
                      std::min(c.Column().width_m, c.gauge_m + 2 * MostEdge_m(c)));
    c.plateWidth_m = f.width.Nearest(c.plateWidth_m);
    return f;
}

std::vector<ERule> BrokenRules(const FittedConnection& fitted)
{
    std::vector<ERule> broken;
    const auto require = [&](bool kept, ERule rule)
    {
        if (!kept)
            broken.push_back(rule);
    };
    const Connection& c = fitted.values;
    const double leastEnd = LeastEnd_m(c), tiny = 1e-9;
    require(fitted.height.possible, ERule::PlateHeight);
    require(leastEnd <= MostEdge_m(c), ERule::EndDistance);
    require(c.BottomDistance_m() <= MostEdge_m(c) + tiny, ERule::BottomDistance);
    require(c.BottomDistance_m() >= leastEnd - tiny, ERule::RowsDoNotFit);
    require(2.2 * c.Bolt().hole_m <= MostSpacing_m(c), ERule::Pitch);
    require(fitted.gauge.possible, ERule::Gauge);
    require(fitted.width.possible, ERule::PlateWidth);
    return broken;
}
