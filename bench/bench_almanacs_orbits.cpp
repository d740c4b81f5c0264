// Update decisions of the almanacs and of the UTC and clock records on equal
// and on differing records, the leap-second queries, and the binary forms of
// the almanac, ionosphere and orbit records against a plain copy of as many
// bytes.
#include "ZelSamplesAlmanacs.h"
#include "ZelSamplesIonoUtc.h"
#include "ZelSamplesOrbits.h"

#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>
#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>
#include <ZelTypes/Platform/OmtTime.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace
{

using namespace ZELN;

ZELX_SAT_ALMANAC HealthyGps()
{
    ZELX_SAT_ALMANAC st = ZelSample::SampleAlmanacGps();
    st.ucHealth = 0;
    return st;
}

// ------------------------------------------------------------------ update decisions

void BM_AlmanacIsNew_Equal(benchmark::State& rState)
{
    const ZELX_SAT_ALMANAC stHeld = HealthyGps();
    const ZELX_SAT_ALMANAC stNew = stHeld;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewAlmanac(stHeld, stNew));
    }
}

void BM_AlmanacIsNew_Differing(benchmark::State& rState)
{
    const ZELX_SAT_ALMANAC stHeld = HealthyGps();
    ZELX_SAT_ALMANAC stNew = stHeld;
    stNew.adKepler[8] = 1.0e-11;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewAlmanac(stHeld, stNew));
    }
}

void BM_AlmanacIsNewGlonass_Equal(benchmark::State& rState)
{
    const ZELX_SAT_ALMANAC_GLONASS stHeld = ZelSample::SampleAlmanacGlonass();
    const ZELX_SAT_ALMANAC_GLONASS stNew = stHeld;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewAlmanacGlonass(stHeld, stNew));
    }
}

void BM_AlmanacIsNewGlonass_Differing(benchmark::State& rState)
{
    const ZELX_SAT_ALMANAC_GLONASS stHeld = ZelSample::SampleAlmanacGlonass();
    ZELX_SAT_ALMANAC_GLONASS stNew = stHeld;
    stNew.adElements[7] = 1.0e-6;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewAlmanacGlonass(stHeld, stNew));
    }
}

void BM_UtcIsNewLeapSec_Equal(benchmark::State& rState)
{
    const ZELX_LEAPSEC_UTC stHeld = ZelSample::SampleLeapSecUtc();
    const ZELX_LEAPSEC_UTC stNew = stHeld;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewLeapSecUtc(stHeld, stNew));
    }
}

void BM_UtcIsNewLeapSec_Differing(benchmark::State& rState)
{
    const ZELX_LEAPSEC_UTC stHeld = ZelSample::SampleLeapSecUtc();
    ZELX_LEAPSEC_UTC stNew = stHeld;
    stNew.dA1 *= 2.0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewLeapSecUtc(stHeld, stNew));
    }
}

void BM_UtcIsNewClockBeiDou_Equal(benchmark::State& rState)
{
    const ZELX_CLOCK_BEIDOU stHeld = ZelSample::SampleClockBeiDou();
    const ZELX_CLOCK_BEIDOU stNew = stHeld;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewClockBeiDou(stHeld, stNew));
    }
}

void BM_UtcIsNewClockBeiDou_Differing(benchmark::State& rState)
{
    const ZELX_CLOCK_BEIDOU stHeld = ZelSample::SampleClockBeiDou();
    ZELX_CLOCK_BEIDOU stNew = stHeld;
    stNew.ucAux1 = 1;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewClockBeiDou(stHeld, stNew));
    }
}

void BM_UtcIsNewSatClockGalileo_Equal(benchmark::State& rState)
{
    const ZELX_SAT_CLOCK_GALILEO stHeld = ZelSample::SampleSatClockGalileo();
    const ZELX_SAT_CLOCK_GALILEO stNew = stHeld;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewSatClockGalileo(stHeld, stNew));
    }
}

void BM_UtcIsNewSatClockGalileo_Differing(benchmark::State& rState)
{
    const ZELX_SAT_CLOCK_GALILEO stHeld = ZelSample::SampleSatClockGalileo();
    ZELX_SAT_CLOCK_GALILEO stNew = stHeld;
    stNew.ucAux3 = 0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewSatClockGalileo(stHeld, stNew));
    }
}

void BM_UtcIsNewSysClockNavic_Equal(benchmark::State& rState)
{
    const ZELX_SYSCLOCK_NAVIC stHeld = ZelSample::SampleSysClockNavic();
    const ZELX_SYSCLOCK_NAVIC stNew = stHeld;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewSysClockNavic(stHeld, stNew));
    }
}

void BM_UtcIsNewSysClockNavic_Differing(benchmark::State& rState)
{
    const ZELX_SYSCLOCK_NAVIC stHeld = ZelSample::SampleSysClockNavic();
    ZELX_SYSCLOCK_NAVIC stNew = stHeld;
    stNew.astOffsets[3].dA2 = 0.0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(isNewSysClockNavic(stHeld, stNew));
    }
}

// ------------------------------------------------------------------ leap-second queries

void BM_UtcLeapQueryWithoutObject(benchmark::State& rState)
{
    for (auto _ : rState)
    {
        TYR::TIM::utcLeapSecond stInfo;
        benchmark::DoNotOptimize(TYR::TIM::GetLeapSecondInfo(stInfo));
        benchmark::DoNotOptimize(stInfo);
    }
}

void BM_UtcLoadFromTimeLibrary(benchmark::State& rState)
{
    ZELX_LEAPSEC_UTC st;
    for (auto _ : rState)
    {
        st.loadFromTimeLibrary();
        benchmark::DoNotOptimize(st.iDeltaTls);
    }
}

void BM_UtcGetLeapSecondInfoBeiDou(benchmark::State& rState)
{
    for (auto _ : rState)
    {
        TYR::TIM::utcLeapSecond stInfo;
        stInfo.m_TimeSystem = TYR::TIM::TIMESYSTEM_BEIDOU;
        benchmark::DoNotOptimize(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo));
        benchmark::DoNotOptimize(stInfo);
    }
}

// ------------------------------------------------------------------ images against a plain copy

// An Ext image written and read, and the same number of bytes copied.
template <class R> void ExtSave(benchmark::State& rState, const R& rRecord)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(rRecord.getSize()));
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rRecord.saveData(vecBuffer.data(), vecBuffer.size()));
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations() * vecBuffer.size()));
}

template <class R> void ExtLoad(benchmark::State& rState, const R& rRecord)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(rRecord.getSize()));
    rRecord.saveData(vecBuffer.data(), vecBuffer.size());
    R stTarget = rRecord;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(stTarget.loadData(vecBuffer.data(), vecBuffer.size()));
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations() * vecBuffer.size()));
}

template <class R> void CoreSave(benchmark::State& rState, const R& rRecord)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(rRecord.getSize()));
    uint64_t ulOffset = 0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rRecord.saveData(vecBuffer.data(), vecBuffer.size(), &ulOffset));
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations() * vecBuffer.size()));
}

template <class R> void CoreLoad(benchmark::State& rState, const R& rRecord)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(rRecord.getSize()));
    uint64_t ulOffset = 0;
    rRecord.saveData(vecBuffer.data(), vecBuffer.size(), &ulOffset);
    R stTarget = rRecord;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(stTarget.loadData(vecBuffer.data(), vecBuffer.size(), &ulOffset));
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations() * vecBuffer.size()));
}

void Memcpy(benchmark::State& rState)
{
    const size_t ulSize = static_cast<size_t>(rState.range(0));
    std::vector<unsigned char> vecFrom(ulSize, 0x5A);
    std::vector<unsigned char> vecTo(ulSize);
    for (auto _ : rState)
    {
        std::memcpy(vecTo.data(), vecFrom.data(), ulSize);
        benchmark::DoNotOptimize(vecTo.data());
        benchmark::ClobberMemory();
    }
    rState.SetBytesProcessed(static_cast<int64_t>(rState.iterations() * ulSize));
}

void BM_ImageAlmanacGps_Save(benchmark::State& rState)
{
    ExtSave(rState, ZelSample::SampleAlmanacGps());
}
void BM_ImageAlmanacGps_Load(benchmark::State& rState)
{
    ExtLoad(rState, ZelSample::SampleAlmanacGps());
}
void BM_ImageAlmanacQzss_Load(benchmark::State& rState)
{
    ExtLoad(rState, ZelSample::SampleAlmanacQzss());
}
void BM_ImageAlmanacGlonass_Save(benchmark::State& rState)
{
    ExtSave(rState, ZelSample::SampleAlmanacGlonass());
}
void BM_ImageAlmanacGlonass_Load(benchmark::State& rState)
{
    ExtLoad(rState, ZelSample::SampleAlmanacGlonass());
}
void BM_ImageKlobuchar_Save(benchmark::State& rState)
{
    CoreSave(rState, ZelSample::SampleKlobuchar());
}
void BM_ImageKlobuchar_Load(benchmark::State& rState)
{
    CoreLoad(rState, ZelSample::SampleKlobuchar());
}
void BM_ImageOrbPoly_Save(benchmark::State& rState)
{
    CoreSave(rState, ZelSample::SampleOrbPoly());
}
void BM_ImageOrbPoly_Load(benchmark::State& rState)
{
    CoreLoad(rState, ZelSample::SampleOrbPoly());
}
void BM_ImageOrbitSatTable_Save(benchmark::State& rState)
{
    CoreSave(rState, ZelSample::SampleOrbitSatTable());
}
void BM_ImageOrbitSatTable_Load(benchmark::State& rState)
{
    CoreLoad(rState, ZelSample::SampleOrbitSatTable());
}
void BM_ImageFrameTransform_Save(benchmark::State& rState)
{
    CoreSave(rState, ZelSample::SampleFrameTransform());
}
void BM_ImageFrameTransform_Load(benchmark::State& rState)
{
    CoreLoad(rState, ZelSample::SampleFrameTransform());
}
void BM_ImageStateTable_Save(benchmark::State& rState)
{
    ExtSave(rState, ZelSample::SampleStateTable());
}
void BM_ImageStateTable_Load(benchmark::State& rState)
{
    ExtLoad(rState, ZelSample::SampleStateTable());
}
void BM_ImageMemcpy(benchmark::State& rState)
{
    Memcpy(rState);
}

} // namespace

BENCHMARK(BM_AlmanacIsNew_Equal);
BENCHMARK(BM_AlmanacIsNew_Differing);
BENCHMARK(BM_AlmanacIsNewGlonass_Equal);
BENCHMARK(BM_AlmanacIsNewGlonass_Differing);
BENCHMARK(BM_UtcIsNewLeapSec_Equal);
BENCHMARK(BM_UtcIsNewLeapSec_Differing);
BENCHMARK(BM_UtcIsNewClockBeiDou_Equal);
BENCHMARK(BM_UtcIsNewClockBeiDou_Differing);
BENCHMARK(BM_UtcIsNewSatClockGalileo_Equal);
BENCHMARK(BM_UtcIsNewSatClockGalileo_Differing);
BENCHMARK(BM_UtcIsNewSysClockNavic_Equal);
BENCHMARK(BM_UtcIsNewSysClockNavic_Differing);
BENCHMARK(BM_UtcLeapQueryWithoutObject);
BENCHMARK(BM_UtcLoadFromTimeLibrary);
BENCHMARK(BM_UtcGetLeapSecondInfoBeiDou);
BENCHMARK(BM_ImageAlmanacGps_Save);
BENCHMARK(BM_ImageAlmanacGps_Load);
BENCHMARK(BM_ImageAlmanacQzss_Load);
BENCHMARK(BM_ImageAlmanacGlonass_Save);
BENCHMARK(BM_ImageAlmanacGlonass_Load);
BENCHMARK(BM_ImageKlobuchar_Save);
BENCHMARK(BM_ImageKlobuchar_Load);
BENCHMARK(BM_ImageOrbPoly_Save);
BENCHMARK(BM_ImageOrbPoly_Load);
BENCHMARK(BM_ImageOrbitSatTable_Save);
BENCHMARK(BM_ImageOrbitSatTable_Load);
BENCHMARK(BM_ImageFrameTransform_Save);
BENCHMARK(BM_ImageFrameTransform_Load);
BENCHMARK(BM_ImageStateTable_Save);
BENCHMARK(BM_ImageStateTable_Load);
BENCHMARK(BM_ImageMemcpy)->Arg(72)->Arg(80)->Arg(97)->Arg(114)->Arg(224)->Arg(378)->Arg(488);
