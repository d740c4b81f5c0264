#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESTIME_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESTIME_H

// Sample records of the family, shared by tests, benchmarks and seeds.

#include <ZelTypes/Core/Common/mjdTime.h>

#include <vector>

namespace ZelSample
{

// The default time, a leap day by calendar, a GPS week and second, and a
// day number with exact comparison.
inline std::vector<ZELN::SMjdTime> Times()
{
    return {ZELN::SMjdTime(), ZELN::SMjdTime(2024, 2, 29, 12, 30, 15.25), ZELN::SMjdTime(2345u, 345600.5),
            ZELN::SMjdTime(59000.75, ZELN::MJDACC_EXACT)};
}

} // namespace ZelSample

#endif
