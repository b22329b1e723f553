#pragma once
// What is bought: rolled sections, grades of steel, bolts. Tables without windows, in SI units: each quantity
// has its unit in its name (_m, _m2, _N, _Nm, _Pa, _kg).

#include <span>
#include <string_view>

constexpr double kSteelDensity_kgPerM3 = 7850.0;
constexpr double kMillimetre_m = 0.001;

/// A rolled I section, with parallel flanges.
struct Profile
{
    const wchar_t* name;
    double height_m;
    double width_m;
    double web_m;    ///< thickness
    double flange_m; ///< thickness
    double radius_m; ///< between web and flange
    double mass_kgPerM;
};

/// EN 10025-2, thicknesses to 40 mm, with the factor of welds of EN 1993-1-8, table 4.1.
struct SteelGrade
{
    const wchar_t* name;
    double yield_Pa;
    double ultimate_Pa;
    double weldFactor; ///< beta w
};

/// EN ISO 4014 and 4032; holes are normal round ones.
struct BoltSize
{
    const wchar_t* name;
    double diameter_m;
    double hole_m;
    double stressArea_m2;
    double headWidth_m; ///< across flats, of the nut too
    double headHeight_m;
    double nutHeight_m;

    double HeadRadius_m() const { return headWidth_m * 0.5773502691896258; } ///< to the corners
};

/// EN 1993-1-8, tables 3.1 and 3.4.
struct BoltClass
{
    const wchar_t* name;
    double yield_Pa;
    double ultimate_Pa;
    double shearFactor; ///< alpha v, the thread in the shear plane
};

std::span<const Profile> Profiles();
std::span<const SteelGrade> SteelGrades();
std::span<const BoltSize> BoltSizes();
std::span<const BoltClass> BoltClasses();

/// The place of a name in one of the tables; -1 if it is not there.
template <class Row>
int IndexOf(std::span<const Row> table, std::wstring_view name)
{
    for (size_t i = 0; i < table.size(); ++i)
        if (name == table[i].name)
            return static_cast<int>(i);
    return -1;
}
