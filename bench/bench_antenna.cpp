// Cost of one move of a coordinate along the reference levels of an
// antenna, for the whole chain and for single steps, and of the antenna's
// image in both directions.
#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

#include "ZelSamplesAntenna.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace
{

using namespace ZELN;

// One call per iteration, from a fresh coordinate, so that the result does
// not drift over the run.
void RunConvert(benchmark::State& state, EZelAntRefLevel eFrom, EZelAntRefLevel eTo)
{
    const SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    const SZelGeoCoords stStart(0.8, 0.2, 100.0);
    for (auto _ : state)
    {
        SZelGeoCoords stCoords = stStart;
        benchmark::DoNotOptimize(ConvertRefLevel(eFrom, eTo, stInfo, stCoords));
        benchmark::DoNotOptimize(stCoords);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_AntConvertRefLevel_MarkToPcB1(benchmark::State& state)
{
    RunConvert(state, ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_PC_GPS_B1);
}
BENCHMARK(BM_AntConvertRefLevel_MarkToPcB1);

void BM_AntConvertRefLevel_PcB1ToMark(benchmark::State& state)
{
    RunConvert(state, ZELANTREFLEVEL_PC_GPS_B1, ZELANTREFLEVEL_MARK);
}
BENCHMARK(BM_AntConvertRefLevel_PcB1ToMark);

void BM_AntConvertRefLevel_MarkToArp(benchmark::State& state)
{
    RunConvert(state, ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_ARP);
}
BENCHMARK(BM_AntConvertRefLevel_MarkToArp);

void BM_AntConvertRefLevel_ArpToPcB0(benchmark::State& state)
{
    RunConvert(state, ZELANTREFLEVEL_ARP, ZELANTREFLEVEL_PC_GPS_B0);
}
BENCHMARK(BM_AntConvertRefLevel_ArpToPcB0);

void BM_AntConvertRefLevel_SameLevel(benchmark::State& state)
{
    RunConvert(state, ZELANTREFLEVEL_ARP, ZELANTREFLEVEL_ARP);
}
BENCHMARK(BM_AntConvertRefLevel_SameLevel);

void BM_AntennaInfo_Save(benchmark::State& state)
{
    const SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    std::vector<unsigned char> vecBuffer(stInfo.getSize());
    for (auto _ : state)
    {
        uint64_t ulCount = 0;
        benchmark::DoNotOptimize(stInfo.saveData(vecBuffer.data(), vecBuffer.size(), &ulCount));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(vecBuffer.size()));
}
BENCHMARK(BM_AntennaInfo_Save);

void BM_AntennaInfo_Load(benchmark::State& state)
{
    const SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    std::vector<unsigned char> vecBuffer(stInfo.getSize());
    uint64_t ulCount = 0;
    stInfo.saveData(vecBuffer.data(), vecBuffer.size(), &ulCount);
    SZelAntennaInfo stRead = stInfo;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(stRead.loadData(vecBuffer.data(), vecBuffer.size(), &ulCount));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(vecBuffer.size()));
}
BENCHMARK(BM_AntennaInfo_Load);

} // namespace
