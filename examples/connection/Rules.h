#pragma once
// What can be built: the limits of each length, which follow from the profiles, the bolt and from each other.
// A flush end plate, with all bolts between the flanges of the beam.
//
// What the user wants is kept. A value that the present limits do not allow is brought to the nearest one that
// they do; it comes back when the limits let it.

#include "Model.h"

/// Lengths in whole millimetres: the least and the greatest one.
struct Limits
{
    double min_m = 0;
    double max_m = 0;
    bool possible = true; ///< false: the rules contradict each other, and both are the least

    double Nearest(double value_m) const;
};

struct FittedConnection
{
    Connection values; ///< within the limits
    Limits thickness, flangeWeld, webWeld, height, endDistance, pitch, gauge, width;
    int maxRows = 2;
};

/// The order is that of the dependences: no length depends on one that is fitted after it.
FittedConnection Fit(const Connection& wanted);

enum class ERule
{
    PlateHeight,
    EndDistance,
    BottomDistance, ///< the rows leave too much plate below them
    Pitch,
    Gauge,
    PlateWidth,
    RowsDoNotFit,
};

/// The rules that a fitted connection still breaks, since no value keeps them all.
std::vector<ERule> BrokenRules(const FittedConnection& fitted);
