// Update decisions of the ephemeris family on equal and on differing sets,
// and the binary forms against a plain copy of as many bytes.
#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace
{

using namespace ZELN;

void FillBlock(ZELX_SAT_EPHEMERIS_COMMON& rBlock)
{
    const double adKepler[9] = {1.1, 0.01, 5153.6, -2.5, 0.96, 0.7, 4.5e-9, -8.0e-9, 1.0e-10};
    for (size_t i = 0; i < 9; ++i)
    {
        rBlock.adKepler[i] = adKepler[i];
        if (i < 6)
        {
            rBlock.afHarmonics[i] = static_cast<float>(i + 1) * 1.0e-6f;
        }
    }
}

const SMjdTime c_stToe(2300u, 345600.0);

ZELX_SAT_EPHEMERIS MakeGps()
{
    ZELX_SAT_EPHEMERIS st;
    FillBlock(st);
    st.uiSvId = 5;
    st.bValid = true;
    st.unGPSWeek = 2300;
    st.ulToe = 345600;
    st.ulToc = 345600;
    st.unIodc = 77;
    st.unHealth = 0;
    st.ucFitIntervalFlag = 0;
    return st;
}

ZELX_SAT_EPHEMERIS_QZSS MakeQzss()
{
    ZELX_SAT_EPHEMERIS_QZSS st;
    static_cast<ZELX_SAT_EPHEMERIS&>(st) = MakeGps();
    st.uiSvId = 157;
    st.dQzss4 = 1.5;
    return st;
}

ZELX_SAT_EPHEMERIS_GLONASS MakeGlonass()
{
    ZELX_SAT_EPHEMERIS_GLONASS st;
    st.uiSvId = 40;
    st.bValid = true;
    st.unGPSWeek = 2300;
    st.ulToeMs = 345600000;
    st.ulIod = 42;
    for (size_t i = 0; i < 12; ++i)
    {
        st.adState[i] = 1.0e6 / static_cast<double>(i + 1);
    }
    st.ucHealth = 0;
    return st;
}

ZELX_SAT_EPHEMERIS_GALILEO MakeGalileo()
{
    ZELX_SAT_EPHEMERIS_GALILEO st(4);
    FillBlock(st);
    st.uiSVID = 60;
    st.uiEphSource = 1;
    st.unIodNav = 93;
    st.ucSisaIndex = 107;
    st.setHealthINav(0);
    st.ulToe = 345600;
    st.ulToc = 345600;
    st.setRefTimeApprox(c_stToe);
    return st;
}

ZELX_SAT_EPHEMERIS_BEIDOU MakeBeiDou()
{
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    FillBlock(st);
    st.uiSvId = 100;
    st.bValid = true;
    st.stToc = c_stToe;
    st.stToe = c_stToe;
    st.ucHealth = 0;
    return st;
}

ZELX_SAT_EPHEMERIS_NAVIC MakeNavic()
{
    ZELX_SAT_EPHEMERIS_NAVIC st;
    FillBlock(st);
    st.ulPrn = 188;
    st.bValid = true;
    st.stToc = c_stToe;
    st.stToe = c_stToe;
    st.ucAlertFlag = 0;
    return st;
}

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
    BM_Decision<ZELX_SAT_EPHEMERIS, isNewEphemerisGps>(s, MakeGps(), MakeGps());
}
void BM_IsNewGps_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS stNew = MakeGps();
    stNew.unIodc = 78;
    stNew.ulToe += 7200;
    BM_Decision<ZELX_SAT_EPHEMERIS, isNewEphemerisGps>(s, MakeGps(), stNew);
}
void BM_IsNewQzss_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_QZSS, isNewEphemerisQzss>(s, MakeQzss(), MakeQzss());
}
void BM_IsNewQzss_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_QZSS stNew = MakeQzss();
    stNew.unIodc = 78;
    stNew.ulToe += 3600;
    BM_Decision<ZELX_SAT_EPHEMERIS_QZSS, isNewEphemerisQzss>(s, MakeQzss(), stNew);
}
void BM_IsNewGlonass_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_GLONASS, isNewEphemerisGlonass>(s, MakeGlonass(), MakeGlonass());
}
void BM_IsNewGlonass_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_GLONASS stNew = MakeGlonass();
    stNew.ulIod = 43;
    stNew.ulToeMs += 1800000;
    BM_Decision<ZELX_SAT_EPHEMERIS_GLONASS, isNewEphemerisGlonass>(s, MakeGlonass(), stNew);
}
void BM_IsNewGalileo_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileo>(s, MakeGalileo(), MakeGalileo());
}
void BM_IsNewGalileo_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_GALILEO stNew = MakeGalileo();
    stNew.unIodNav = 94;
    stNew.ulToe += 600;
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileo>(s, MakeGalileo(), stNew);
}
void BM_IsNewGalileoContent_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileoContent>(s, MakeGalileo(), MakeGalileo());
}
void BM_IsNewGalileoContent_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_GALILEO stNew = MakeGalileo();
    stNew.dBgdE5b = 1.0e-9;
    BM_Decision<ZELX_SAT_EPHEMERIS_GALILEO, DecideGalileoContent>(s, MakeGalileo(), stNew);
}
void BM_IsNewBeiDou_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_BEIDOU, isNewEphemerisBeiDou>(s, MakeBeiDou(), MakeBeiDou());
}
void BM_IsNewBeiDou_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_BEIDOU stNew = MakeBeiDou();
    stNew.stToc.AddHours(1.0);
    stNew.stToe.AddHours(1.0);
    BM_Decision<ZELX_SAT_EPHEMERIS_BEIDOU, isNewEphemerisBeiDou>(s, MakeBeiDou(), stNew);
}
void BM_IsNewNavic_Equal(benchmark::State& s)
{
    BM_Decision<ZELX_SAT_EPHEMERIS_NAVIC, isNewEphemerisNavic>(s, MakeNavic(), MakeNavic());
}
void BM_IsNewNavic_Differing(benchmark::State& s)
{
    ZELX_SAT_EPHEMERIS_NAVIC stNew = MakeNavic();
    stNew.stToe.AddHours(1.0);
    BM_Decision<ZELX_SAT_EPHEMERIS_NAVIC, isNewEphemerisNavic>(s, MakeNavic(), stNew);
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

BENCHMARK_CAPTURE(BM_Save, Common_96,
                  []()
                  {
                      ZELX_SAT_EPHEMERIS_COMMON st;
                      FillBlock(st);
                      return st;
                  }());
BENCHMARK_CAPTURE(BM_Load, Common_96,
                  []()
                  {
                      ZELX_SAT_EPHEMERIS_COMMON st;
                      FillBlock(st);
                      return st;
                  }());
BENCHMARK_CAPTURE(BM_Save, Gps_145, MakeGps());
BENCHMARK_CAPTURE(BM_Load, Gps_145, MakeGps());
BENCHMARK_CAPTURE(BM_Save, Glonass_142, MakeGlonass());
BENCHMARK_CAPTURE(BM_Load, Glonass_142, MakeGlonass());
BENCHMARK_CAPTURE(BM_Save, Qzss_164, MakeQzss());
BENCHMARK_CAPTURE(BM_Load, Qzss_164, MakeQzss());
BENCHMARK_CAPTURE(BM_Save, BeiDou_176, MakeBeiDou());
BENCHMARK_CAPTURE(BM_Load, BeiDou_176, MakeBeiDou());
BENCHMARK_CAPTURE(BM_Save, Galileo_183, MakeGalileo());
BENCHMARK_CAPTURE(BM_Load, Galileo_183, MakeGalileo());
BENCHMARK_CAPTURE(BM_Save, Navic_185, MakeNavic());
BENCHMARK_CAPTURE(BM_Load, Navic_185, MakeNavic());
BENCHMARK(BM_Memcpy)->Arg(96)->Arg(142)->Arg(145)->Arg(164)->Arg(176)->Arg(183)->Arg(185);

} // namespace
