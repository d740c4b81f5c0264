// Time record: construction, calendar and GPS forms, arithmetic, comparison
// and the binary form beside a plain copy of the same 16 bytes.
#include <ZelTypes/Core/Common/mjdTime.h>

#include <benchmark/benchmark.h>

#include <cstring>

using namespace ZELN;

static void BM_Time_ConstructFromGpsWeekSeconds(benchmark::State& state)
{
    unsigned int uiWeek = 2300;
    double dSeconds = 345600.125;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(uiWeek);
        benchmark::DoNotOptimize(dSeconds);
        SMjdTime st(uiWeek, dSeconds);
        benchmark::DoNotOptimize(st);
    }
}
BENCHMARK(BM_Time_ConstructFromGpsWeekSeconds);

static void BM_Time_GetDate(benchmark::State& state)
{
    SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    int iY = 0, iM = 0, iD = 0, iH = 0, iMi = 0;
    double dS = 0.0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(st);
        st.GetDate(iY, iM, iD, iH, iMi, dS);
        benchmark::DoNotOptimize(iY);
        benchmark::DoNotOptimize(dS);
    }
}
BENCHMARK(BM_Time_GetDate);

static void BM_Time_AddMilliseconds(benchmark::State& state)
{
    SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    double dDelta = 1000.5;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(dDelta);
        st.AddMilliseconds(dDelta);
        st.AddMilliseconds(-dDelta);
        benchmark::DoNotOptimize(st);
    }
    state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK(BM_Time_AddMilliseconds);

static void BM_Time_Compare(benchmark::State& state)
{
    SMjdTime a(2024, 2, 29, 12, 30, 15.25);
    SMjdTime b(2024, 2, 29, 12, 30, 15.2500001);
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(b);
        const bool bLess = a < b;
        const bool bEqual = a == b;
        benchmark::DoNotOptimize(bLess);
        benchmark::DoNotOptimize(bEqual);
    }
}
BENCHMARK(BM_Time_Compare);

static void BM_Time_GetGpsTimeMs(benchmark::State& state)
{
    SMjdTime st(2300u, 345600.125);
    unsigned short unWeek = 0;
    unsigned int uiMs = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(st);
        st.GetGpsTimeMs(unWeek, uiMs);
        benchmark::DoNotOptimize(unWeek);
        benchmark::DoNotOptimize(uiMs);
    }
}
BENCHMARK(BM_Time_GetGpsTimeMs);

static void BM_Time_SaveData(benchmark::State& state)
{
    const SMjdTime st(2300u, 345600.125);
    unsigned char aucBuffer[16];
    uint64_t ulOffset = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(st.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(16 * state.iterations());
}
BENCHMARK(BM_Time_SaveData);

static void BM_Time_LoadData(benchmark::State& state)
{
    const SMjdTime stSource(2300u, 345600.125);
    unsigned char aucBuffer[16];
    uint64_t ulOffset = 0;
    stSource.saveData(aucBuffer, sizeof(aucBuffer), &ulOffset);
    SMjdTime st;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(st.loadData(aucBuffer, sizeof(aucBuffer), &ulOffset));
        benchmark::DoNotOptimize(st);
    }
    state.SetBytesProcessed(16 * state.iterations());
}
BENCHMARK(BM_Time_LoadData);

static void BM_Time_Memcpy16(benchmark::State& state)
{
    const SMjdTime st(2300u, 345600.125);
    unsigned char aucBuffer[16];
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(&st);
        std::memcpy(aucBuffer, &st, 16);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(16 * state.iterations());
}
BENCHMARK(BM_Time_Memcpy16);
