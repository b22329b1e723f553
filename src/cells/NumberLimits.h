#pragma once
// The bounds of what a user may enter. Each may be missing, and each says whether it may be reached itself.
// Bounds that leave no number between them refuse all.

#include <afxwin.h>

/// Whether the value keeps to the lower bound.
template <class Number>
bool gfnKeepsMin(Number value, BOOL bHasMin, Number min, BOOL bInclusive)
{
    return !bHasMin || !(bInclusive ? min > value : min >= value);
}

/// Whether the value keeps to the upper bound.
template <class Number>
bool gfnKeepsMax(Number value, BOOL bHasMax, Number max, BOOL bInclusive)
{
    return !bHasMax || !(bInclusive ? value > max : value >= max);
}
