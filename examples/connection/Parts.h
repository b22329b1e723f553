#pragma once
// What it takes: the parts of the connection with their lengths and weights, from its values.

#include "Model.h"

struct Part
{
    std::wstring description; ///< as "PL 15x180x330"
    int count;
    double length_m;
    double mass_kg; ///< of one

    double TotalMass_kg() const { return count * mass_kg; }
};

/// By EPart. The connection is to be fitted.
std::array<Part, ePartCount> PartsOf(const Connection& c);

/// Shank of a bolt: what it clamps, a washer on either side, the nut, and two turns of thread; to 5 mm.
double BoltLength_m(const Connection& c);

/// Bolt with its nut, as cylinders and hexagons.
double BoltMass_kg(const Connection& c);
