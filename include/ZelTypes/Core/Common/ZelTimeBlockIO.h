#ifndef ZELTYPES_CORE_COMMON_ZELTIMEBLOCKIO_H
#define ZELTYPES_CORE_COMMON_ZELTIMEBLOCKIO_H

// A time inside a record written as a raw block takes the 24 bytes of its
// memory layout: day at 0, reserved to 8, milliseconds at 8, accuracy at 16,
// reserved to 24. Reserved bytes go out as zero and are passed over.

#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstdint>

namespace ZELN
{
namespace ZelIo
{

constexpr uint64_t c_ulTIME_BLOCK_SIZE = 24;

inline void WriteTimeBlock(CBinWriter& stOut, const SMjdTime& rstTime)
{
    stOut.Raw(rstTime.m_lMjdDay);
    stOut.Fill(4);
    stOut.Raw(rstTime.m_dMjdFractMilliseconds);
    stOut.RawAs<int32_t>(rstTime.m_eAccuracy);
    stOut.Fill(4);
}

inline bool ReadTimeBlock(CBinReader& stIn, SMjdTime& rstTime)
{
    return stIn.Raw(rstTime.m_lMjdDay) && stIn.Skip(4) && stIn.Raw(rstTime.m_dMjdFractMilliseconds) &&
           stIn.Raw(rstTime.m_eAccuracy) && stIn.Skip(4);
}

} // namespace ZelIo
} // namespace ZELN

#endif
