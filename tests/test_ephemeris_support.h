#ifndef ZELTYPES_TESTS_TEST_EPHEMERIS_SUPPORT_H
#define ZELTYPES_TESTS_TEST_EPHEMERIS_SUPPORT_H

// Shared pieces of the ephemeris tests: the recording hook and the
// hand-built image helpers.

#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace EphTest
{

// The shared recording hook, with the text of one report by index.
class CReportRecorder : public ZelTest::CRecordingHook
{
public:
    std::string Text(size_t ulIdx = 0) const
    {
        return ulIdx < Reports().size() ? Reports()[ulIdx].strExpression : std::string();
    }
};

typedef std::vector<unsigned char> Bytes;

// A literal value at a literal offset of a hand-built image.
template <class T> void Put(Bytes& rImage, size_t ulOffset, T tValue)
{
    std::memcpy(&rImage[ulOffset], &tValue, sizeof(T));
}

// The 16-byte packed form of a time: day at 0, milliseconds at 4, accuracy at 12.
inline void PutTime(Bytes& rImage, size_t ulOffset, int32_t lDay, double dMs, int32_t lAccuracy)
{
    Put(rImage, ulOffset, lDay);
    Put(rImage, ulOffset + 4, dMs);
    Put(rImage, ulOffset + 12, lAccuracy);
}

// Saves into a buffer pre-filled with a pattern, so that an unwritten byte shows.
template <class R> Bytes Save(const R& rRecord, size_t ulLength)
{
    Bytes vecImage(ulLength, 0xAA);
    const bool bOk = rRecord.saveData(vecImage.data(), vecImage.size());
    if (!bOk)
    {
        vecImage.clear();
    }
    return vecImage;
}

inline ZELN::SMjdTime GpsTime(unsigned int uiWeek, double dSeconds)
{
    return ZELN::SMjdTime(uiWeek, dSeconds, ZELN::MJDACC_NANOSECOND);
}

} // namespace EphTest

#endif
