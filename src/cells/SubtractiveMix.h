#pragma once
// Two colours laid over each other like inks.

#include <windows.h>

#include <algorithm>

/// Each channel loses what both colours take from white, so the mix is as dark as the darker one, or darker.
/// White leaves the other colour as it is.
inline COLORREF gfnSubtractiveMix(COLORREF crOne, COLORREF crOther)
{
    const auto channel = [](int nOne, int nOther)
    { return 255 - std::min(255, (255 - nOne) + (255 - nOther)); };
    return RGB(channel(GetRValue(crOne), GetRValue(crOther)), channel(GetGValue(crOne), GetGValue(crOther)),
               channel(GetBValue(crOne), GetBValue(crOther)));
}
