// Update decisions of the ephemeris family on equal and on differing sets,
// and the binary forms against a plain copy of as many bytes.
#include "ZelSamplesEphemeris.h"

#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace
{

using namespace ZELN;
using ZelSample::BeiDouEphemeris;
using ZelSample::GalileoEphemeris;
using ZelSample::GlonassEphemeris;
using ZelSample::GpsEphemeris;
using ZelSample::NavicEphemeris;
using ZelSample::QzssEphemeris;

// Equal sets run the whole decision, equality included.
template <class R, bool (*Decide)(const R&, const R&)>
void BM_Decision(benchmark::State& state, R stCur, R stNew)
{
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(stCur);
        benchmark::DoNotOptimize(stNew);
        bool b = Decide(stCur, stNew);
        benchmark::DoNotOptimize(b);
    }
}

bool DecideGalileo(const ZELX_SAT_EPHEMERIS_GALILEO& a, const ZELX_SAT_EPHEMERIS_GALILEO& b)
{
    return isNewEphemerisGalileo(a, b, false);
}

bool DecideGalileoContent(const ZELX_SAT_EPHEMERIS_GALILEO& a, const ZELX_SAT_EPHEMERIS_GALILEO& b)
{
    return isNewEphemerisGalileo(a, b, true);
}

void BM_IsNewGps_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS, isNewEphemerisGps>(s, GpsEphemeris(), GpsEphemeris());
}
void BM_IsNewGps_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS stNew = GpsEphemeris();
    stNew.unIodc = 78;
    stNew.ulToe += 7200;
    BM_Decision<ZELX_SAT_EPHEMERIS, isNewEphemerisGps>(s, GpsEphemeris(), stNew);
}
void BM_IsNewQzss_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_QZSS, isNewEphemerisQzss>(s, QzssEphemeris(), QzssEphemeris());
}
void BM_IsNewQzss_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_QZSS stNew = QzssEphemeris();
    stNew.unIodc = 78;
    stNew.ulToe += 3600;
    BM_Decision<ZELX_SAT_EPHEMERIS_QZSS, isNewEphemerisQzss>(s, QzssEphemeris(), stNew);
}
void BM_IsNewGlonass_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_GLONASS, isNewEphemerisGlonass>(s, GlonassEphemeris(), GlonassEphemeris());
}
void BM_IsNewGlonass_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_GLONASS stNew = GlonassEphemeris();
    stNew.ulIod = 43;
    stNew.ulToeMs += 1800000;
    BM_Decision<ZELX_SAT_EPHEMERIS_GLONASS, isNewEphemerisGlonass>(s, GlonassEphemeris(), stNew);
}
void BM_IsNewGalileo_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileo>(s, GalileoEphemeris(), GalileoEphemeris());
}
void BM_IsNewGalileo_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_GALILEO stNew = GalileoEphemeris();
    stNew.unIodNav = 94;
    stNew.ulToe += 600;
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileo>(s, GalileoEphemeris(), stNew);
}
void BM_IsNewGalileoContent_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileoContent>(s, GalileoEphemeris(), GalileoEphemeris());
}
void BM_IsNewGalileoContent_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_GALILEO stNew = GalileoEphemeris();
    stNew.dBgdE5b = 1.0e-9;
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileoContent>(s, GalileoEphemeris(), stNew);
}
void BM_IsNewBeiDou_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_BEIDOU, isNewEphemerisBeiDou>(s, BeiDouEphemeris(), BeiDouEphemeris());
}
void BM_IsNewBeiDou_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_BEIDOU stNew = BeiDouEphemeris();
    stNew.stToc.AddHours(1.0);
    stNew.stToe.AddHours(1.0);
    BM_Decision<ZELX_SAT_EPHEMERIS_BEIDOU, isNewEphemerisBeiDou>(s, BeiDouEphemeris(), stNew);
}
void BM_IsNewNavic_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_NAVIC, isNewEphemerisNavic>(s, NavicEphemeris(), NavicEphemeris());
}
void BM_IsNewNavic_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_NAVIC stNew = NavicEphemeris();
    stNew.stToe.AddHours(1.0);
    BM_Decision<ZELX_SAT_EPHEMERIS_NAVIC, isNewEphemerisNavic>(s, NavicEphemeris(), stNew);
}

BENCHMARK(BM_IsNewGps_Equal);
BENCHMARK(BM_IsNewGps_Differing);
BENCHMARK(BM_IsNewQzss_Equal);
BENCHMARK(BM_IsNewQzss_Differing);
BENCHMARK(BM_IsNewGlonass_Equal);
BENCHMARK(BM_IsNewGlonass_Differing);
BENCHMARK(BM_IsNewGalileo_Equal);
BENCHMARK(BM_IsNewGalileo_Differing);
BENCHMARK(BM_IsNewGalileoContent_Equal);
BENCHMARK(BM_IsNewGalileoContent_Differing);
BENCHMARK(BM_IsNewBeiDou_Equal);
BENCHMARK(BM_IsNewBeiDou_Differing);
BENCHMARK(BM_IsNewNavic_Equal);
BENCHMARK(BM_IsNewNavic_Differing);

// ------------------------------------------------------------------ binary forms

template <class R> void BM_Save(benchmark::State& state, R stRecord)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stRecord.getSize()));
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(stRecord);
        bool b = stRecord.saveData(vecBuffer.data(), vecBuffer.size());
        benchmark::DoNotOptimize(b);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(vecBuffer.size()));
}

template <class R> void BM_Load(benchmark::State& state, R stRecord)
{
    std::vector<unsigned char> vecBuffer(static_cast<size_t>(stRecord.getSize()));
    stRecord.saveData(vecBuffer.data(), vecBuffer.size());
    R stTarget;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(vecBuffer.data());
        bool b = stTarget.loadData(vecBuffer.data(), vecBuffer.size());
        benchmark::DoNotOptimize(b);
        benchmark::DoNotOptimize(stTarget);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(vecBuffer.size()));
}

// The floor: a plain copy of as many bytes as the image has.
void BM_Memcpy(benchmark::State& state)
{
    const size_t ulSize = static_cast<size_t>(state.range(0));
    std::vector<unsigned char> vecSource(ulSize, 0x5A);
    std::vector<unsigned char> vecTarget(ulSize);
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(vecSource.data());
        std::memcpy(vecTarget.data(), vecSource.data(), ulSize);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(ulSize));
}

BENCHMARK_CAPTURE(BM_Save, Common_96, ZelSample::KeplerBlock());
BENCHMARK_CAPTURE(BM_Load, Common_96, ZelSample::KeplerBlock());
BENCHMARK_CAPTURE(BM_Save, Gps_145, GpsEphemeris());
BENCHMARK_CAPTURE(BM_Load, Gps_145, GpsEphemeris());
BENCHMARK_CAPTURE(BM_Save, Glonass_142, GlonassEphemeris());
BENCHMARK_CAPTURE(BM_Load, Glonass_142, GlonassEphemeris());
BENCHMARK_CAPTURE(BM_Save, Qzss_164, QzssEphemeris());
BENCHMARK_CAPTURE(BM_Load, Qzss_164, QzssEphemeris());
BENCHMARK_CAPTURE(BM_Save, BeiDou_176, BeiDouEphemeris());
BENCHMARK_CAPTURE(BM_Load, BeiDou_176, BeiDouEphemeris());
BENCHMARK_CAPTURE(BM_Save, Galileo_183, GalileoEphemeris());
BENCHMARK_CAPTURE(BM_Load, Galileo_183, GalileoEphemeris());
BENCHMARK_CAPTURE(BM_Save, Navic_185, NavicEphemeris());
BENCHMARK_CAPTURE(BM_Load, Navic_185, NavicEphemeris());
BENCHMARK(BM_Memcpy)->Arg(96)->Arg(142)->Arg(145)->Arg(164)->Arg(176)->Arg(183)->Arg(185);

} // namespace
