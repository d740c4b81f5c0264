// Observation epochs and output records: binary forms beside a plain copy of
// the same number of bytes, and the text line of an epoch.
//
// The counter "x_memcpy" is the time of one call divided by the time of one
// memcpy of the same number of bytes, both measured in the same process.
#include "ZelSamplesObservations.h"

#include <ZelTypes/Core/Common/ZelObsEpoch.h>

#include "ZelBenchMemcpy.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace ZELN;
using ZelBench::RunBinary;

constexpr int c_iNB_SATS = 40;
constexpr int c_iNB_SIGNALS = 4;
constexpr int c_iNB_CORRECTIONS = 400;
constexpr int c_iNB_RANGE_RATES = 32;

SZelObservationEpoch MakeEpoch()
{
    return ZelSample::ObsEpoch(c_iNB_SATS, c_iNB_SIGNALS);
}

SZelRtmeOutEpochData MakeOutput()
{
    return ZelSample::RtmeOut(c_iNB_CORRECTIONS, c_iNB_RANGE_RATES);
}

void BM_Obs_EpochSave(benchmark::State& rState)
{
    const SZelObservationEpoch stEpoch = MakeEpoch();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stEpoch.getSize()));
    RunBinary(rState, vecBuffer.size(),
              [&]
              {
                  uint64_t ulUsed = 0;
                  return stEpoch.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
              });
}
BENCHMARK(BM_Obs_EpochSave);

void BM_Obs_EpochLoad(benchmark::State& rState)
{
    const SZelObservationEpoch stEpoch = MakeEpoch();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stEpoch.getSize()));
    uint64_t ulUsed = 0;
    stEpoch.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
    SZelObservationEpoch stTarget;
    RunBinary(rState, vecBuffer.size(),
              [&]
              {
                  stTarget.Reset(); // keeps the allocation
                  return stTarget.loadData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
              });
}
BENCHMARK(BM_Obs_EpochLoad);

void BM_Obs_EpochMemcpy(benchmark::State& rState)
{
    const size_t ulBytes = static_cast<size_t>(MakeEpoch().getSize());
    std::vector<unsigned char> vecFrom(ulBytes, 0x5A);
    std::vector<unsigned char> vecTo(ulBytes);
    for (auto _ : rState)
    {
        std::memcpy(vecTo.data(), vecFrom.data(), ulBytes);
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations()) * static_cast<int64_t>(ulBytes));
}
BENCHMARK(BM_Obs_EpochMemcpy);

void BM_Obs_OutputSave(benchmark::State& rState)
{
    const SZelRtmeOutEpochData stData = MakeOutput();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stData.getSize()));
    RunBinary(rState, vecBuffer.size(),
              [&]
              {
                  uint64_t ulUsed = 0;
                  return stData.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
              });
}
BENCHMARK(BM_Obs_OutputSave);

void BM_Obs_OutputLoad(benchmark::State& rState)
{
    const SZelRtmeOutEpochData stData = MakeOutput();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stData.getSize()));
    uint64_t ulUsed = 0;
    stData.saveData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
    SZelRtmeOutEpochData stTarget;
    RunBinary(rState, vecBuffer.size(),
              [&]
              {
                  stTarget.Reset(); // the reader adds to the maps
                  return stTarget.loadData(vecBuffer.data(), vecBuffer.size(), &ulUsed);
              });
}
BENCHMARK(BM_Obs_OutputLoad);

void BM_Obs_OutputMemcpy(benchmark::State& rState)
{
    const size_t ulBytes = static_cast<size_t>(MakeOutput().getSize());
    std::vector<unsigned char> vecFrom(ulBytes, 0x5A);
    std::vector<unsigned char> vecTo(ulBytes);
    for (auto _ : rState)
    {
        std::memcpy(vecTo.data(), vecFrom.data(), ulBytes);
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations()) * static_cast<int64_t>(ulBytes));
}
BENCHMARK(BM_Obs_OutputMemcpy);

// One epoch is one line of text.
void BM_Obs_EpochTextWrite(benchmark::State& rState)
{
    const SZelObservationEpoch stEpoch = MakeEpoch();
    std::ostringstream oss;
    oss << std::setprecision(17);
    for (auto _ : rState)
    {
        oss.str(std::string());
        oss << stEpoch << '\n';
        benchmark::DoNotOptimize(oss);
    }
    rState.SetItemsProcessed(static_cast<int64_t>(rState.iterations()));
    rState.SetLabel("lines");
}
BENCHMARK(BM_Obs_EpochTextWrite);

void BM_Obs_EpochTextRead(benchmark::State& rState)
{
    std::ostringstream oss;
    oss << std::setprecision(17) << MakeEpoch();
    const std::string strLine = oss.str();
    SZelObservationEpoch stTarget;
    for (auto _ : rState)
    {
        std::istringstream iss(strLine);
        iss >> stTarget;
        benchmark::DoNotOptimize(stTarget);
    }
    rState.SetItemsProcessed(static_cast<int64_t>(rState.iterations()));
    rState.SetLabel("lines");
}
BENCHMARK(BM_Obs_EpochTextRead);

} // namespace
