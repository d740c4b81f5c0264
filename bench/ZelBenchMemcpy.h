#ifndef ZELTYPES_BENCH_ZELBENCHMEMCPY_H
#define ZELTYPES_BENCH_ZELBENCHMEMCPY_H

// The image benchmarks' yardstick: a call timed beside a plain memcpy of the
// same number of bytes in the same process. The counter "x_memcpy" is their
// ratio.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace ZelBench
{

// Nanoseconds of one memcpy of ulBytes, the best of several rounds.
inline double MemcpyNanos(size_t ulBytes)
{
    std::vector<unsigned char> vecFrom(ulBytes, 0x5A);
    std::vector<unsigned char> vecTo(ulBytes);
    constexpr int c_iROUNDS = 20;
    constexpr int c_iCOPIES = 2000;
    double dBest = 1e30;
    for (int iRound = 0; iRound < c_iROUNDS; ++iRound)
    {
        const auto tStart = std::chrono::steady_clock::now();
        for (int iCopy = 0; iCopy < c_iCOPIES; ++iCopy)
        {
            std::memcpy(vecTo.data(), vecFrom.data(), ulBytes);
            benchmark::ClobberMemory();
        }
        const auto tEnd = std::chrono::steady_clock::now();
        const double dNanos = std::chrono::duration<double, std::nano>(tEnd - tStart).count() / c_iCOPIES;
        dBest = dNanos < dBest ? dNanos : dBest;
    }
    return dBest;
}

// Runs the loop, sets bytes per second and the ratio to memcpy.
template <class F> void RunBinary(benchmark::State& rState, size_t ulBytes, F fnCall)
{
    const auto tStart = std::chrono::steady_clock::now();
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(fnCall());
        benchmark::ClobberMemory();
    }
    const auto tEnd = std::chrono::steady_clock::now();
    const double dNanos = std::chrono::duration<double, std::nano>(tEnd - tStart).count() /
                          static_cast<double>(rState.iterations());
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations()) * static_cast<int64_t>(ulBytes));
    rState.counters["x_memcpy"] = dNanos / MemcpyNanos(ulBytes);
}

} // namespace ZelBench

#endif
