// The main configuration record: its 232-byte raw block written and read
// beside a plain copy of the same number of bytes, and its text line.
//
// The counter "x_memcpy" is the time of one call divided by the time of one
// memcpy of the same number of bytes, both measured in the same process.
#include "ZelSamplesConfig.h"

#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include "ZelBenchMemcpy.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace ZELN;
using ZelBench::RunBinary;

void BM_Config_ProcCfgSave(benchmark::State& rState)
{
    const SZelProcCfg stCfg = ZelSample::ProcCfg();
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stCfg.getSize()));
    RunBinary(rState, vecBuffer.size(),
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
    RunBinary(rState, vecBuffer.size(),
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
