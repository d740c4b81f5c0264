#include <ZelTypes/Core/Common/ZelFrequencyManager.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <atomic>
#include <chrono>
#include <thread>

namespace
{

using namespace ZELN;

ZelGlonassFrequencies Channels(int iShift)
{
    ZelGlonassFrequencies stFrequencies;
    for (int iSlot = 0; iSlot < 24; ++iSlot)
    {
        stFrequencies.acChannels[iSlot] = static_cast<int8_t>((iSlot + iShift) % 21 - 7);
    }
    return stFrequencies;
}

// The host's side: a thread that swaps the GLONASS table of the global
// manager as fast as it can while the benchmark threads read.
class CSwapper
{
public:
    void Start()
    {
        m_bStop.store(false);
        m_lSwaps = 0;
        m_Thread = std::thread(
            [this]
            {
                int iShift = 0;
                while (!m_bStop.load(std::memory_order_relaxed))
                {
                    GetFrequencyMgr().SetGlonassFrequencies(Channels(++iShift));
                    ++m_lSwaps;
                }
            });
    }
    long Stop()
    {
        m_bStop.store(true);
        m_Thread.join();
        return m_lSwaps;
    }

private:
    std::atomic<bool> m_bStop{false};
    long m_lSwaps = 0;
    std::thread m_Thread;
};

CSwapper g_Swapper;

// Argument 0: no writer; 1: a third thread swaps the table meanwhile.
void StartSwapper(benchmark::State& rState)
{
    GetFrequencyMgr().SetGlonassFrequencies(Channels(0));
    if (rState.thread_index() == 0 && rState.range(0) != 0)
    {
        g_Swapper.Start();
    }
}

void StopSwapper(benchmark::State& rState)
{
    if (rState.thread_index() == 0 && rState.range(0) != 0)
    {
        rState.counters["swaps"] = static_cast<double>(g_Swapper.Stop());
    }
}

const SZelSatID c_stGps(ZELSATSYSTEM_GPS, 5);
const SZelSatID c_stGlonass(ZELSATSYSTEM_GLONASS, 7);

void BM_GetWavelengthGps(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rMgr.GetWavelength(c_stGps, ZELFREQUENCY_GROUP_1));
    }
    StopSwapper(rState);
}
BENCHMARK(BM_GetWavelengthGps)->Arg(0)->Arg(1)->Threads(1)->Threads(2)->UseRealTime();

void BM_GetFrequencyGps(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rMgr.GetFrequency(c_stGps, 2));
    }
    StopSwapper(rState);
}
BENCHMARK(BM_GetFrequencyGps)->Arg(0)->Arg(1)->Threads(1)->Threads(2)->UseRealTime();

// GLONASS reads the thread's copy of the table. With the swapper above the
// table changes as fast as it can be built, and a reader takes it again
// under the lock after every swap that it sees: far more than a host swaps.
void BM_GetWavelengthGlonass(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rMgr.GetWavelength(c_stGlonass, ZELFREQUENCY_GROUP_1));
    }
    StopSwapper(rState);
}
BENCHMARK(BM_GetWavelengthGlonass)->Arg(0)->Arg(1)->ThreadRange(1, 4)->UseRealTime();

void BM_GetFrequencyGlonass(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rMgr.GetFrequency(c_stGlonass, 1));
    }
    StopSwapper(rState);
}
BENCHMARK(BM_GetFrequencyGlonass)->Arg(0)->Arg(1)->Threads(1)->Threads(2)->UseRealTime();

void BM_GetCombinationGps(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    double dIono = 0.0;
    double dCoef1 = 0.0;
    double dCoef2 = 0.0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rMgr.GetCombination(c_stGps, 4, 2, &dIono, &dCoef1, &dCoef2));
        benchmark::DoNotOptimize(dIono);
    }
    StopSwapper(rState);
}
BENCHMARK(BM_GetCombinationGps)->Arg(0)->Arg(1)->Threads(1)->Threads(2)->UseRealTime();

// G1/G3: computed from the satellite's channel.
void BM_GetCombinationGlonass(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    double dIono = 0.0;
    double dCoef1 = 0.0;
    double dCoef2 = 0.0;
    for (auto _ : rState)
    {
        benchmark::DoNotOptimize(rMgr.GetCombination(c_stGlonass, 1, 4, &dIono, &dCoef1, &dCoef2));
        benchmark::DoNotOptimize(dIono);
    }
    StopSwapper(rState);
}
BENCHMARK(BM_GetCombinationGlonass)->Arg(0)->Arg(1)->Threads(1)->Threads(2)->UseRealTime();

// A reader that keeps its snapshot for a whole epoch pays the lock and the
// count once, then reads plain memory.
void BM_SnapshotThenReadGlonass(benchmark::State& rState)
{
    StartSwapper(rState);
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    for (auto _ : rState)
    {
        boost::shared_ptr<const CZelFrequencyTable> pTable;
        rMgr.GetFrequencyTable(pTable);
        double dSum = 0.0;
        for (int iSlot = 0; iSlot < 24; ++iSlot)
        {
            dSum += pTable->adWavelengths[ZELFREQUENCY_GROUP_1][iSlot];
        }
        benchmark::DoNotOptimize(dSum);
    }
    StopSwapper(rState);
}
BENCHMARK(BM_SnapshotThenReadGlonass)->Arg(0)->Arg(1)->ThreadRange(1, 4)->UseRealTime();

// The two parts of taking the table after a swap (and of GetFrequencyTable),
// apart: the lock around the pointer copy, and the shared count that all
// holders of a table bump.
void BM_TableLockOnly(benchmark::State& rState)
{
    static CZelMutex s_stLock;
    for (auto _ : rState)
    {
        CZelGuard stGuard(s_stLock);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_TableLockOnly)->ThreadRange(1, 4)->UseRealTime();

void BM_SharedCountOnly(benchmark::State& rState)
{
    static const boost::shared_ptr<const CZelFrequencyTable> s_pTable =
        boost::make_shared<CZelFrequencyTable>();
    for (auto _ : rState)
    {
        boost::shared_ptr<const CZelFrequencyTable> pCopy(s_pTable);
        benchmark::DoNotOptimize(pCopy.get());
    }
}
BENCHMARK(BM_SharedCountOnly)->ThreadRange(1, 4)->UseRealTime();

// A host's writer: swaps the GLONASS table of the global manager 1,000 times
// a second, on a fixed beat (a late beat is not made up).
class CPacedSwapper
{
public:
    void Start()
    {
        m_bStop.store(false);
        m_lSwaps = 0;
        m_dSeconds = 0.0;
        m_Thread = std::thread(
            [this]
            {
                const std::chrono::steady_clock::duration tBeat = std::chrono::milliseconds(1);
                const std::chrono::steady_clock::time_point tStart = std::chrono::steady_clock::now();
                std::chrono::steady_clock::time_point tNext = tStart;
                int iShift = 0;
                while (!m_bStop.load(std::memory_order_relaxed))
                {
                    GetFrequencyMgr().SetGlonassFrequencies(Channels(++iShift));
                    ++m_lSwaps;
                    tNext += tBeat;
                    const std::chrono::steady_clock::time_point tNow = std::chrono::steady_clock::now();
                    if (tNext < tNow)
                    {
                        tNext = tNow;
                    }
                    std::this_thread::sleep_until(tNext);
                }
                m_dSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - tStart).count();
            });
    }
    // Swaps per second while it ran.
    double Stop()
    {
        m_bStop.store(true);
        m_Thread.join();
        return m_dSeconds > 0.0 ? static_cast<double>(m_lSwaps) / m_dSeconds : 0.0;
    }

private:
    std::atomic<bool> m_bStop{false};
    long m_lSwaps = 0;
    double m_dSeconds = 0.0;
    std::thread m_Thread;
};

CPacedSwapper g_PacedSwapper;

// GLONASS lookups (wavelength of G1, the slots in turn) by 1 reader, by 2
// readers, and by 2 readers while the paced writer swaps the table
// (argument writer:1). CPU time per lookup of each reader: the throughput of
// a reader is its inverse.
void BM_GlonassLookup(benchmark::State& rState)
{
    if (rState.thread_index() == 0)
    {
        GetFrequencyMgr().SetGlonassFrequencies(Channels(0));
        if (rState.range(0) != 0)
        {
            g_PacedSwapper.Start();
        }
    }
    const CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    uint8_t uiSlot = 0;
    for (auto _ : rState)
    {
        uiSlot = static_cast<uint8_t>(uiSlot == 24 ? 1 : uiSlot + 1);
        benchmark::DoNotOptimize(
            rMgr.GetWavelength(SZelSatID(ZELSATSYSTEM_GLONASS, uiSlot), ZELFREQUENCY_GROUP_1));
    }
    if (rState.thread_index() == 0 && rState.range(0) != 0)
    {
        rState.counters["swaps_per_s"] = g_PacedSwapper.Stop();
    }
}
BENCHMARK(BM_GlonassLookup)->ArgName("writer")->Arg(0)->Threads(1);
BENCHMARK(BM_GlonassLookup)->ArgName("writer")->Arg(0)->Threads(2);
BENCHMARK(BM_GlonassLookup)->ArgName("writer")->Arg(1)->Threads(2);

void BM_SetGlonassFrequencies(benchmark::State& rState)
{
    CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    int iShift = 0;
    for (auto _ : rState)
    {
        rMgr.SetGlonassFrequencies(Channels(++iShift));
    }
}
BENCHMARK(BM_SetGlonassFrequencies);

} // namespace
