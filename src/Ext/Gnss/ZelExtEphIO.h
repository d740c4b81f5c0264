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

// The gate of a versioned image whose version is looked at before its
// length: buffer, then version (refused with the class's own text), then
// length. An empty buffer has no version byte to look at: it fails as a
// short one.
inline bool ExtVersionGate(const unsigned char* pBuffer, uint64_t uiBufferLength, uint8_t ucVersion,
                           const char* szOldVersion, uint64_t ulImageSize)
{
    if (pBuffer == nullptr || uiBufferLength == 0)
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (pBuffer[0] != ucVersion)
    {
        ZEL_REPORT(szOldVersion);
        return false;
    }
    return ExtFits(pBuffer, uiBufferLength, ulImageSize);
}

// A time in its own 16-byte packed form, through its own writer and reader
// (which make their own bound test); a failure is reported here once more,
// as the outer record's own "false".
inline bool PutTimeAt(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t ulOffset,
                      const SMjdTime& rTime)
{
    uint64_t ulCount = 0;
    if (!rTime.saveData(pBuffer + ulOffset, uiBufferLength - ulOffset, &ulCount))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

inline bool GetTimeAt(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t ulOffset,
                      SMjdTime& rTime)
{
    uint64_t ulCount = 0;
    if (!rTime.loadData(pBuffer + ulOffset, uiBufferLength - ulOffset, &ulCount))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
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
