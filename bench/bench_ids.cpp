#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include "ZelSamplesIds.h"

#include <benchmark/benchmark.h>

#include <sstream>

namespace
{

using namespace ZELN;

// The signal lookup of a measurement: system, frequency slot, track mode.
void BM_TrackModeLookup(benchmark::State& rState)
{
    const EZelSatSystem aeSys[] = {ZELSATSYSTEM_GPS, ZELSATSYSTEM_GALILEO, ZELSATSYSTEM_BEIDOU,
                                   ZELSATSYSTEM_QZSS};
    const EZelFrequency aeFrq[] = {ZELFREQUENCY_L1CA, ZELFREQUENCY_L2P, ZELFREQUENCY_L5, ZELFREQUENCY_E5B};
    const EZelTrackMode aeMode[] = {ZELTRACKMODE_UNKNOWN, ZELTRACKMODE_C, ZELTRACKMODE_Q, ZELTRACKMODE_X};
    unsigned int uiIdx = 0;
    for (auto _ : rState)
    {
        const STrackModeInfo* pInfo =
            GetSysInfo(aeSys[uiIdx & 3]).GetTrackModeInfo(aeFrq[(uiIdx >> 2) & 3], aeMode[(uiIdx >> 4) & 3]);
        benchmark::DoNotOptimize(pInfo);
        ++uiIdx;
    }
}
BENCHMARK(BM_TrackModeLookup);

void BM_ToGlobalSatNumber(benchmark::State& rState)
{
    SZelSatID astSats[64];
    for (unsigned int uiIdx = 0; uiIdx < 64; ++uiIdx)
    {
        astSats[uiIdx] = FromGlobalSatNumber(static_cast<uint8_t>(1 + uiIdx * 3));
    }
    unsigned int uiIdx = 0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(ToGlobalSatNumber(astSats[uiIdx & 63]));
        ++uiIdx;
    }
}
BENCHMARK(BM_ToGlobalSatNumber);

void BM_FromGlobalSatNumber(benchmark::State& rState)
{
    unsigned int uiIdx = 0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(FromGlobalSatNumber(static_cast<uint8_t>(1 + uiIdx % 234)));
        ++uiIdx;
    }
}
BENCHMARK(BM_FromGlobalSatNumber);

// The 16-byte image of the signal key of the corrections, written and read back.
void BM_SignalKeyImage(benchmark::State& rState)
{
    const SZelSatFrqTMdGroupID stKey = ZelSample::SatFrqTMdGroupId();
    unsigned char aucImage[16] = {};
    SZelSatFrqTMdGroupID stRead;
    for (auto _ : rState)
    {
        uint64_t ulOffset = 0;
        stKey.saveData(aucImage, sizeof(aucImage), &ulOffset);
        stRead.loadData(aucImage, sizeof(aucImage), &ulOffset);
        benchmark::DoNotOptimize(stRead);
    }
}
BENCHMARK(BM_SignalKeyImage);

// The text of the same key, written and read back: two catalogue lookups of
// the frequency name.
void BM_SignalKeyText(benchmark::State& rState)
{
    const SZelSatFrqTMdGroupID stKey = ZelSample::SatFrqTMdGroupId();
    SZelSatFrqTMdGroupID stRead;
    for (auto _ : rState)
    {
        std::stringstream ss;
        ss << stKey;
        ss >> stRead;
        benchmark::DoNotOptimize(stRead);
    }
}
BENCHMARK(BM_SignalKeyText);

} // namespace
