// The main configuration record: its 232-byte raw block written and read
// beside a plain copy of the same number of bytes, and its text line.
//
// The counter "x_memcpy" is the time of one call divided by the time of one
// memcpy of the same number of bytes, both measured in the same process.
#include "ZelSamplesConfig.h"

#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace ZELN;

// Nanoseconds of one memcpy of ulBytes, the best of several rounds.
double CfgMemcpyNanos(size_t ulBytes)
{
    std::vector<unsigned char> vecFrom(ulBytes, 0x5A);
    std::vector<unsigned char> vecTo(ulBytes);
    constexpr int c_iROUNDS = 20;
    constexpr int c_iCOPIES = 20000;
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
template <class F> void RunCfgBinary(benchmark::State& rState, size_t ulBytes, F fnCall)
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
    rState.counters["x_memcpy"] = dNanos / CfgMemcpyNanos(ulBytes);
}

void BM_Config_ProcCfgSave(benchmark::State& rState)
{
    const SZelProcCfg stCfg = ZelSample::ProcCfg();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stCfg.getSize()));
    RunCfgBinary(rState, vecBuffer.size(),
                 [&]
                 {
                     uint64_t ulUsed = 0;
                     return stCfg.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
                 });
}
BENCHMARK(BM_Config_ProcCfgSave);

void BM_Config_ProcCfgLoad(benchmark::State& rState)
{
    const SZelProcCfg stCfg = ZelSample::ProcCfg();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stCfg.getSize()));
    uint64_t ulUsed = 0;
    stCfg.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
    SZelProcCfg stTarget;
    RunCfgBinary(rState, vecBuffer.size(),
                 [&] { return stTarget.loadData(vecBuffer.data(), vecBuffer.size(), &ulUsed); });
}
BENCHMARK(BM_Config_ProcCfgLoad);

void BM_Config_ProcCfgMemcpy(benchmark::State& rState)
{
    const size_t ulBytes = static_cast<size_t>(SZelProcCfg().getSize());
    std::vector<unsigned char> vecFrom(ulBytes, 0x5A);
    std::vector<unsigned char> vecTo(ulBytes);
    for (auto _ : rState)
    {
        std::memcpy(vecTo.data(), vecFrom.data(), ulBytes);
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations()) * static_cast<int64_t>(ulBytes));
}
BENCHMARK(BM_Config_ProcCfgMemcpy);

// The whole record is one line of text.
void BM_Config_ProcCfgTextWrite(benchmark::State& rState)
{
    const SZelProcCfg stCfg = ZelSample::ProcCfg();
    std::ostringstream oss;
    for (auto _ : rState)
    {
        oss.str(std::string());
        oss << stCfg << '\n';
        benchmark::DoNotOptimize(oss);
    }
    rState.SetItemsProcessed(static_cast<int64_t>(rState.iterations()));
    rState.SetLabel("lines");
}
BENCHMARK(BM_Config_ProcCfgTextWrite);

void BM_Config_ProcCfgTextRead(benchmark::State& rState)
{
    std::ostringstream oss;
    oss << ZelSample::ProcCfg();
    const std::string strLine = oss.str();
    SZelProcCfg stTarget;
    for (auto _ : rState)
    {
        std::istringstream iss(strLine);
        iss >> stTarget;
        benchmark::DoNotOptimize(stTarget);
    }
    rState.SetItemsProcessed(static_cast<int64_t>(rState.iterations()));
    rState.SetLabel("lines");
}
BENCHMARK(BM_Config_ProcCfgTextRead);

} // namespace
