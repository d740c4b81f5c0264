#ifndef ZELTYPES_SRC_EXT_GNSS_ZELEXTEPHIO_H
#define ZELTYPES_SRC_EXT_GNSS_ZELEXTEPHIO_H

// Image steps of the ephemeris family beyond the shared Ext helpers. The
// callers have tested the image length before any of these.

#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstdint>

namespace ZELN
{
namespace ZelIo
{

// A bool travels as one byte. Any byte other than 0 reads as true, so that a
// forged image never leaves an invalid value in a bool.
inline void PutBoolAt(unsigned char* pBuffer, uint64_t ulOffset, bool bValue)
{
    pBuffer[ulOffset] = bValue ? 1 : 0;
}

inline bool GetBoolAt(const unsigned char* pBuffer, uint64_t ulOffset)
{
    return pBuffer[ulOffset] != 0;
}

// A time in its own 16-byte packed form, through its own writer and reader
// (which make their own bound test); the caller reports a failure.
inline bool PutTimeAt(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t ulOffset,
                      const SMjdTime& rTime)
{
    uint64_t ulCount = 0;
    return rTime.saveData(pBuffer + ulOffset, uiBufferLength - ulOffset, &ulCount);
}

inline bool GetTimeAt(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t ulOffset,
                      SMjdTime& rTime)
{
    uint64_t ulCount = 0;
    return rTime.loadData(pBuffer + ulOffset, uiBufferLength - ulOffset, &ulCount);
}

// Arrays of raw values, one after another.
template <class T, size_t N>
inline void PutArrayAt(unsigned char* pBuffer, uint64_t ulOffset, const T (&aValues)[N])
{
    for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
    {
        PutAt(pBuffer, ulOffset + ulIdx * sizeof(T), aValues[ulIdx]);
    }
}

template <class T, size_t N>
inline void GetArrayAt(const unsigned char* pBuffer, uint64_t ulOffset, T (&aValues)[N])
{
    for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
    {
        GetAt(pBuffer, ulOffset + ulIdx * sizeof(T), aValues[ulIdx]);
    }
}

} // namespace ZelIo
} // namespace ZELN

#endif
