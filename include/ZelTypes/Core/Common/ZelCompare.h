#ifndef ZELTYPES_CORE_COMMON_ZELCOMPARE_H
#define ZELTYPES_CORE_COMMON_ZELCOMPARE_H

/// \file
/// The library's comparison styles, chosen per record and different on
/// purpose:
/// - exact: plain == on every field, so that a NaN makes a record unequal to
///   itself (observations, results);
/// - relative: equal, or apart by no more than the larger magnitude times the
///   tolerance; 1e-14 for 64-bit and 1e-6 for 32-bit values (broadcast
///   records, configuration, offset tables);
/// - absolute: apart by no more than the tolerance (network residuals).
/// And operator!= once for every record: the negation of its operator==.

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

namespace ZELN
{

/// Relative comparison of two doubles: true when equal or when
/// max(|a|, |b|) * dTolerance >= |a - b|.
inline bool AreClose(double a, double b, double dTolerance)
{
    if (a == b)
    {
        return true;
    }
    return std::max(std::fabs(a), std::fabs(b)) * dTolerance >= std::fabs(a - b);
}

/// The same in single precision, evaluated in float.
inline bool AreCloseF(float a, float b, float fTolerance)
{
    if (a == b)
    {
        return true;
    }
    return std::max(std::fabs(a), std::fabs(b)) * fTolerance >= std::fabs(a - b);
}

/// Relative tolerance of 64-bit broadcast and configuration values.
constexpr double c_dREL_TOLERANCE_64 = 1e-14;
/// Relative tolerance of 32-bit broadcast and configuration values.
constexpr float c_fREL_TOLERANCE_32 = 1e-6f;

/// Relative comparison at the library's tolerance for the value's width.
inline bool AreCloseRel(double a, double b)
{
    return AreClose(a, b, c_dREL_TOLERANCE_64);
}
/// Single-precision form, at c_fREL_TOLERANCE_32.
inline bool AreCloseRel(float a, float b)
{
    return AreCloseF(a, b, c_fREL_TOLERANCE_32);
}

/// Absolute comparison: |a - b| <= dTolerance (a NaN is never close).
inline bool AreCloseAbs(double a, double b, double dTolerance)
{
    return std::fabs(a - b) <= dTolerance;
}

namespace ZelCmp
{
template <class T, class = void> struct SHasEquality : std::false_type
{
};
template <class T>
struct SHasEquality<T, std::void_t<decltype(std::declval<const T&>() == std::declval<const T&>())>>
    : std::true_type
{
};
} // namespace ZelCmp

/// operator!= of every record of the library, found by argument-dependent
/// lookup: the negation of its operator==. A record whose != means something
/// else declares its own, which is preferred to this template.
template <class T, std::enable_if_t<std::is_class<T>::value && ZelCmp::SHasEquality<T>::value, int> = 0>
inline bool operator!=(const T& a, const T& b)
{
    return !(a == b);
}

} // namespace ZELN

#endif
