#include "Parts.h"

#include <cmath>
#include <cwchar>
#include <numbers>

namespace
{
constexpr double mm = kMillimetre_m;

/// Of a hexagon, from its width across flats.
double HexagonArea_m2(double width_m)
{
    return width_m * width_m * std::sqrt(3.0) / 2;
}

std::wstring PlateName(const Connection& c)
{
    wchar_t text[64];
    std::swprintf(text, std::size(text), L"PL %.4gx%.4gx%.4g", c.plateThickness_m / mm, c.plateWidth_m / mm,
                  c.plateHeight_m / mm);
    return text;
}

std::wstring BoltName(const Connection& c)
{
    wchar_t text[64];
    std::swprintf(text, std::size(text), L"%lsx%.0f - %ls", c.Bolt().name, BoltLength_m(c) / mm,
                  c.Class().name);
    return text;
}
} // namespace

double BoltLength_m(const Connection& c)
{
    constexpr double washers = 2 * 4 * mm, thread = 2 * 3 * mm, step = 5 * mm, tiny = 1e-6;
    const double needed = c.plateThickness_m + c.Column().flange_m + washers + c.Bolt().nutHeight_m + thread;
    return std::ceil(needed / step - tiny) * step;
}

double BoltMass_kg(const Connection& c)
{
    const BoltSize& bolt = c.Bolt();
    const double shank = std::numbers::pi / 4 * bolt.diameter_m * bolt.diameter_m;
    const double hexagon = HexagonArea_m2(bolt.headWidth_m);
    const double volume =
        shank * BoltLength_m(c) + hexagon * bolt.headHeight_m + (hexagon - shank) * bolt.nutHeight_m;
    return volume * kSteelDensity_kgPerM3;
}

std::array<Part, ePartCount> PartsOf(const Connection& c)
{
    const PartEntry &beam = c.parts[ePartBeam], &column = c.parts[ePartColumn], &plate = c.parts[ePartPlate];
    const double plateMass = c.plateThickness_m * c.plateWidth_m * c.plateHeight_m * kSteelDensity_kgPerM3;
    return {{
        {c.Beam().name, beam.count, beam.length_m, c.Beam().mass_kgPerM * beam.length_m},
        {c.Column().name, column.count, column.length_m, c.Column().mass_kgPerM * column.length_m},
        {PlateName(c), plate.count, c.plateHeight_m, plateMass},
        {BoltName(c), plate.count * c.boltRows * 2, BoltLength_m(c), BoltMass_kg(c)},
    }};
}
