// Time record: construction, calendar and GPS forms, arithmetic, comparison
// and the binary form beside a plain copy of the same 16 bytes.
#include <ZelTypes/Core/Common/mjdTime.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#if __has_include(<date/date.h>)
#include <date/date.h>
#define ZELTYPES_HAVE_DATE 1
#endif

using namespace ZELN;

namespace
{

// 1024 times from 1980 to 2100 with random milliseconds of the day, the
// same for our calendar and the peer's; the index wraps with a mask.
const std::vector<SMjdTime>& CalendarTimes()
{
    static const std::vector<SMjdTime> s_vec = []
    {
        std::vector<SMjdTime> vec;
        std::mt19937 gen(1980);
        std::uniform_int_distribution<int32_t> day(44239, 88069);
        std::uniform_real_distribution<double> ms(0.0, 86399999.0);
        for (int i = 0; i < 1024; ++i)
        {
            SMjdTime st;
            st.SetMjdDayMilliseconds(day(gen), ms(gen));
            vec.push_back(st);
        }
        return vec;
    }();
    return s_vec;
}

} // namespace

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

// Date and time of day of varying times.
static void BM_Time_GetDateVarying(benchmark::State& state)
{
    const std::vector<SMjdTime>& vec = CalendarTimes();
    size_t ulIdx = 0;
    int iY = 0, iM = 0, iD = 0, iH = 0, iMi = 0;
    double dS = 0.0;
    for (auto _ : state)
    {
        vec[ulIdx].GetDate(iY, iM, iD, iH, iMi, dS);
        benchmark::DoNotOptimize(iY);
        benchmark::DoNotOptimize(iM);
        benchmark::DoNotOptimize(iD);
        benchmark::DoNotOptimize(iH);
        benchmark::DoNotOptimize(iMi);
        benchmark::DoNotOptimize(dS);
        ulIdx = (ulIdx + 1) & 1023;
    }
}
BENCHMARK(BM_Time_GetDateVarying);

// The date alone, with the fraction of the day in the day of the month.
static void BM_Time_GetDateDayVarying(benchmark::State& state)
{
    const std::vector<SMjdTime>& vec = CalendarTimes();
    size_t ulIdx = 0;
    int iY = 0, iM = 0;
    double dD = 0.0;
    for (auto _ : state)
    {
        vec[ulIdx].GetDate(iY, iM, dD);
        benchmark::DoNotOptimize(iY);
        benchmark::DoNotOptimize(iM);
        benchmark::DoNotOptimize(dD);
        ulIdx = (ulIdx + 1) & 1023;
    }
}
BENCHMARK(BM_Time_GetDateDayVarying);

#if defined(ZELTYPES_HAVE_DATE)

// The peer's civil date from a day count since 1970: year_month_day from
// sys_days, on the same days.
static void BM_TimePeer_YearMonthDay(benchmark::State& state)
{
    std::vector<int32_t> vecDays;
    for (const SMjdTime& st : CalendarTimes())
    {
        vecDays.push_back(st.m_lMjdDay - 40587);
    }
    size_t ulIdx = 0;
    for (auto _ : state)
    {
        const date::year_month_day ymd{date::sys_days{date::days{vecDays[ulIdx]}}};
        int iY = static_cast<int>(ymd.year());
        unsigned uM = static_cast<unsigned>(ymd.month());
        unsigned uD = static_cast<unsigned>(ymd.day());
        benchmark::DoNotOptimize(iY);
        benchmark::DoNotOptimize(uM);
        benchmark::DoNotOptimize(uD);
        ulIdx = (ulIdx + 1) & 1023;
    }
}
BENCHMARK(BM_TimePeer_YearMonthDay);

// The same with the time of day split by hh_mm_ss, from whole milliseconds
// (the peer has no split of a fractional millisecond count).
static void BM_TimePeer_YearMonthDayHms(benchmark::State& state)
{
    std::vector<int32_t> vecDays;
    std::vector<int64_t> vecMs;
    for (const SMjdTime& st : CalendarTimes())
    {
        vecDays.push_back(st.m_lMjdDay - 40587);
        vecMs.push_back(static_cast<int64_t>(st.m_dMjdFractMilliseconds));
    }
    size_t ulIdx = 0;
    for (auto _ : state)
    {
        const date::year_month_day ymd{date::sys_days{date::days{vecDays[ulIdx]}}};
        const date::hh_mm_ss<std::chrono::milliseconds> hms{std::chrono::milliseconds{vecMs[ulIdx]}};
        int iY = static_cast<int>(ymd.year());
        unsigned uM = static_cast<unsigned>(ymd.month());
        unsigned uD = static_cast<unsigned>(ymd.day());
        auto lH = hms.hours().count();
        auto lMi = hms.minutes().count();
        auto lS = hms.seconds().count();
        auto lSub = hms.subseconds().count();
        benchmark::DoNotOptimize(iY);
        benchmark::DoNotOptimize(uM);
        benchmark::DoNotOptimize(uD);
        benchmark::DoNotOptimize(lH);
        benchmark::DoNotOptimize(lMi);
        benchmark::DoNotOptimize(lS);
        benchmark::DoNotOptimize(lSub);
        ulIdx = (ulIdx + 1) & 1023;
    }
}
BENCHMARK(BM_TimePeer_YearMonthDayHms);

#endif

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
