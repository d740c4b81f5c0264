#ifndef ZELTYPES_CORE_COMMON_ZELTIMEBLOCKIO_H
#define ZELTYPES_CORE_COMMON_ZELTIMEBLOCKIO_H

/// \file
/// A time inside a record written as a raw block takes the 24 bytes of its
/// memory layout: day at 0, reserved to 8, milliseconds at 8, accuracy at 16,
/// reserved to 24. Reserved bytes go out as zero and are passed over.

#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstdint>

namespace ZELN
{
namespace ZelIo
{

constexpr uint64_t c_ulTIME_BLOCK_SIZE = 24;

/// The time block as one step of a record's VisitFields, for every direction.
template <class IO, class T> inline bool VisitTimeBlock(IO& io, T& rstTime)
{
    io.Raw(rstTime.m_lMjdDay);
    io.Reserved(4);
    io.Raw(rstTime.m_dMjdFractMilliseconds);
    io.template RawAs<int32_t>(rstTime.m_eAccuracy);
    return io.Reserved(4);
}

} // namespace ZelIo
} // namespace ZELN

#endif
