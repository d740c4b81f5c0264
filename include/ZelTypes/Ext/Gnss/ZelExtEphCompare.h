#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHCOMPARE_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHCOMPARE_H

// Relative comparison of broadcast values: equal, or apart by no more than
// the larger magnitude times the tolerance. Header-only, so that every
// family that compares broadcast values can use it without the ephemerides.

#include <algorithm>
#include <cmath>

namespace ZELN
{

inline bool AreClose(double a, double b, double dTolerance)
{
    if (a == b)
    {
        return true;
    }
    return std::max(std::fabs(a), std::fabs(b)) * dTolerance >= std::fabs(a - b);
}

inline bool AreCloseF(float a, float b, float fTolerance)
{
    if (a == b)
    {
        return true;
    }
    return std::max(std::fabs(a), std::fabs(b)) * fTolerance >= std::fabs(a - b);
}

} // namespace ZELN

#endif
