#ifndef ZELTYPES_SRC_EXT_GNSS_ZELEXTEPHIO_H
#define ZELTYPES_SRC_EXT_GNSS_ZELEXTEPHIO_H

// Private helpers of the ephemeris family: guarded array setters and the
// rungs that the update decisions share.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <optional>

namespace ZELN
{
namespace ZelIo
{

// An array element set by its index. An index outside the array would write
// past it: "false", and nothing is stored.
template <class T, size_t N, class V> inline void SetElement(T (&aArray)[N], size_t ulIndex, const V& rValue)
{
    if (ulIndex >= N)
    {
        ZEL_ASSERT(false);
        return;
    }
    aArray[ulIndex] = rValue;
}

} // namespace ZelIo

// The update ladder, as far as the classes share it. A rung either decides
// (true: the new set replaces the held one; false: the held one stays) or
// gives an empty result, and the class's own rungs go on. No rung reports.
namespace ZelEphUpdate
{

// The head of every decision: an invalid new set is never taken, an invalid
// held set always gives way, and a change of the health verdict is taken,
// even for an older set.
template <class E>
inline std::optional<bool> Head(const E& rEphCurrent, const E& rEphNew, bool bCurrentValid, bool bNewValid)
{
    if (!bNewValid)
    {
        return false;
    }
    if (!bCurrentValid)
    {
        return true;
    }
    if (rEphCurrent.isHealthy() != rEphNew.isHealthy())
    {
        return true;
    }
    return std::nullopt;
}

// The rungs of the classes that go by one time of ephemeris and an issue of
// data: a new set earlier than stEarliest is not taken, a new issue of data
// is, and so is a later set. Earlier is the time's operator < at the
// accuracy of its left operand.
inline std::optional<bool> TimeAndIssue(const SMjdTime& stToeCurrent, const SMjdTime& stToeNew,
                                        const SMjdTime& stEarliest, bool bNewIssue)
{
    if (stToeNew < stEarliest)
    {
        return false;
    }
    if (bNewIssue)
    {
        return true;
    }
    if (stToeCurrent < stToeNew)
    {
        return true;
    }
    return std::nullopt;
}

} // namespace ZelEphUpdate
} // namespace ZELN

#endif
