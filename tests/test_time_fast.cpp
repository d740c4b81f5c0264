// The integer paths of the time record against the rules they replace: the
// calendar date from the day number, the hour, minute and seconds of the
// day, and the whole days and rest of the GPS constructor and setters. Each
// rule is written out here again, line by line, and the results must agree
// bit for bit.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/mjdTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

using namespace ZELN;

namespace
{

constexpr int32_t c_lMjd19000301 = 15079;
constexpr int32_t c_lMjd21000228 = 88127;
constexpr int32_t c_lMjd22001231 = 124957;
constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double c_dInf = std::numeric_limits<double>::infinity();

SMjdTime At(int32_t lDay, double dMs)
{
    SMjdTime st;
    st.m_lMjdDay = lDay;
    st.m_dMjdFractMilliseconds = dMs;
    return st;
}

bool SameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof(double)) == 0;
}

// A double outside the 64-bit range, or NaN, truncates to 0, as in the record.
int64_t Trunc64(double d)
{
    return (d > -9.2e18 && d < 9.2e18) ? static_cast<int64_t>(d) : 0;
}

struct SDate
{
    int iYear;
    int iMonth;
    int iDay;
};

// The calendar rule: each line in double precision, in this order.
SDate LiteralDate(int32_t lDay, double dMs)
{
    const double jd = dMs / 86400000.0 + lDay + 2400000.5 + 0.5;
    const double a = std::trunc(jd) + 1537.0;
    const double b = std::trunc((a - 122.1) / 365.25);
    const double c = std::trunc(b * 365.25);
    const double e = std::trunc((a - c) / 30.6001);
    const double dDayOfMonth = a - std::trunc(e * 30.6001) - c;
    const int64_t lMonth = Trunc64(e - 1.0 + 12.0 * std::trunc(e / -14.0));
    const int64_t lYear = Trunc64(b) - (lMonth + 7) / 10 - 4715;
    return {static_cast<int>(lYear), static_cast<int>(lMonth), static_cast<int>(Trunc64(dDayOfMonth))};
}

struct SClock
{
    int iHour;
    int iMinute;
    double dSeconds;
};

SClock LiteralClock(double dMs)
{
    double s = dMs / 1000.0;
    const double dHour = std::trunc(s / 3600.0);
    s -= dHour * 3600.0;
    const double dMinute = std::trunc(s / 60.0);
    s -= dMinute * 60.0;
    return {static_cast<int>(Trunc64(dHour)), static_cast<int>(Trunc64(dMinute)), s};
}

int32_t Wrap32(int64_t l)
{
    return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(l)));
}

// Day and milliseconds of the GPS constructor (seconds) and of SetGpsTimeMs.
void LiteralGpsSeconds(unsigned int uiWeek, double dSeconds, int32_t& rlDay, double& rdMs)
{
    rlDay = Wrap32(static_cast<int64_t>(uiWeek) * 7 + 44244 + Trunc64(dSeconds / 86400.0));
    rdMs = std::fmod(dSeconds, 86400.0) * 1000.0;
}

void LiteralGpsMilliseconds(unsigned int uiWeek, double dMs, int32_t& rlDay, double& rdMs)
{
    rlDay = Wrap32(static_cast<int64_t>(uiWeek) * 7 + 44244 + Trunc64(dMs / 86400000.0));
    rdMs = std::fmod(dMs, 86400000.0);
}

// The civil calendar counted day by day from MJD 0, 1858-11-17.
std::vector<SDate> CountedCalendar(int32_t lLastDay)
{
    static const int aiDays[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::vector<SDate> vec;
    SDate st{1858, 11, 17};
    for (int32_t lDay = 0; lDay <= lLastDay; ++lDay)
    {
        vec.push_back(st);
        const bool bLeap = (st.iYear % 4 == 0 && st.iYear % 100 != 0) || st.iYear % 400 == 0;
        const int iLength = (st.iMonth == 2 && bLeap) ? 29 : aiDays[st.iMonth];
        if (++st.iDay > iLength)
        {
            st.iDay = 1;
            if (++st.iMonth > 12)
            {
                st.iMonth = 1;
                ++st.iYear;
            }
        }
    }
    return vec;
}

// Milliseconds of the day that try both paths of the date: the start, the
// middle, the last millisecond that stays on the integer path and values
// after it that round the Julian date into the next day or not, and values
// outside the day.
std::vector<double> DateProbeMilliseconds()
{
    return {0.0,
            -0.0,
            1.0,
            43200000.0,
            86399998.999,
            86399999.0,
            std::nextafter(86399999.0, 1e9),
            86399999.5,
            86399999.9999,
            86399999.99999,
            86399999.999999,
            std::nextafter(86400000.0, 0.0),
            86400000.0,
            86400000.5,
            -1e-9,
            -1.0,
            -86400000.0,
            3.0 * 86400000.0 + 5.0,
            1e12,
            c_dNaN};
}

} // namespace

// The rule gives the civil date on every day from 1900-03-01 to 2100-02-28,
// the range of the integer path; just outside it, it does not.
TEST(MjdTimeFast, CalendarRuleIsCivilOnTheIntegerRange)
{
    const std::vector<SDate> vecCivil = CountedCalendar(c_lMjd22001231);
    EXPECT_EQ(vecCivil[c_lMjd19000301].iYear, 1900);
    EXPECT_EQ(vecCivil[c_lMjd19000301].iMonth, 3);
    EXPECT_EQ(vecCivil[c_lMjd19000301].iDay, 1);
    EXPECT_EQ(vecCivil[c_lMjd21000228].iYear, 2100);
    EXPECT_EQ(vecCivil[c_lMjd21000228].iMonth, 2);
    EXPECT_EQ(vecCivil[c_lMjd21000228].iDay, 28);
    EXPECT_EQ(vecCivil[51544].iYear, 2000);
    EXPECT_EQ(vecCivil[51544].iDay, 1);

    size_t ulMismatch = 0;
    for (int32_t lDay = c_lMjd19000301; lDay <= c_lMjd21000228; ++lDay)
    {
        const SDate st = LiteralDate(lDay, 0.0);
        const SDate& rCivil = vecCivil[static_cast<size_t>(lDay)];
        ulMismatch +=
            (st.iYear == rCivil.iYear && st.iMonth == rCivil.iMonth && st.iDay == rCivil.iDay) ? 0 : 1;
    }
    EXPECT_EQ(ulMismatch, 0u);
    // The day after each end is no longer the civil date.
    const SDate stBefore = LiteralDate(c_lMjd19000301 - 1, 0.0);
    const SDate stAfter = LiteralDate(c_lMjd21000228 + 1, 0.0);
    EXPECT_FALSE(stBefore.iMonth == 2 && stBefore.iDay == 28);
    EXPECT_FALSE(stAfter.iMonth == 3 && stAfter.iDay == 1);
}

// Every day from MJD 0 to 2200-12-31, at milliseconds that take either path.
TEST(MjdTimeFast, GetDateEqualsTheRuleOnEveryDay)
{
    ZelTest::CRecordingHook Hook;
    const std::vector<double> vecMs = DateProbeMilliseconds();
    size_t ulChecked = 0, ulMismatch = 0;
    for (int32_t lDay = 0; lDay <= c_lMjd22001231; ++lDay)
    {
        for (double dMs : vecMs)
        {
            const SMjdTime st = At(lDay, dMs);
            const SDate stRule = LiteralDate(lDay, dMs);
            int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
            double dSeconds = 0.0;
            st.GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
            int iYear3 = 0, iMonth3 = 0;
            double dDay3 = 0.0;
            st.GetDate(iYear3, iMonth3, dDay3);
            const bool bSame = iYear == stRule.iYear && iMonth == stRule.iMonth && iDay == stRule.iDay &&
                               iYear3 == stRule.iYear && iMonth3 == stRule.iMonth &&
                               SameBits(dDay3, stRule.iDay + dMs / 86400000.0);
            if (!bSame && ulMismatch < 10)
            {
                ADD_FAILURE() << "day " << lDay << " ms " << dMs << ": " << iYear << "-" << iMonth << "-"
                              << iDay << " against " << stRule.iYear << "-" << stRule.iMonth << "-"
                              << stRule.iDay;
            }
            ulMismatch += bSame ? 0 : 1;
            ++ulChecked;
        }
    }
    EXPECT_EQ(ulChecked, static_cast<size_t>(c_lMjd22001231 + 1) * vecMs.size());
    EXPECT_EQ(ulMismatch, 0u);
    // Reading a date reports nothing.
    EXPECT_EQ(Hook.Count(), 0u);
}

// The single getters go the same way; days around both ends of the integer
// range and around the turns of the centuries.
TEST(MjdTimeFast, SingleGettersFollowTheRule)
{
    for (int32_t lDay :
         {0, 15078, 15079, 15080, 51543, 51544, 51603, 51604, 88126, 88127, 88128, 88129, 124957})
    {
        for (double dMs : {0.0, 45296789.25, 86399999.75})
        {
            const SMjdTime st = At(lDay, dMs);
            const SDate stRule = LiteralDate(lDay, dMs);
            const SClock stClock = LiteralClock(dMs);
            EXPECT_EQ(st.GetYear(), stRule.iYear) << lDay << " " << dMs;
            EXPECT_EQ(st.GetMonth(), stRule.iMonth) << lDay << " " << dMs;
            EXPECT_EQ(st.GetDayOfMonth(), stRule.iDay) << lDay << " " << dMs;
            EXPECT_EQ(st.GetHour(), stClock.iHour);
            EXPECT_EQ(st.GetMinute(), stClock.iMinute);
            EXPECT_TRUE(SameBits(st.GetSecond(), stClock.dSeconds));
        }
    }
    // Known dates on the integer path.
    EXPECT_EQ(At(51544, 0.0).GetYear(), 2000);
    EXPECT_EQ(At(60369, 0.0).GetMonth(), 2);
    EXPECT_EQ(At(60369, 0.0).GetDayOfMonth(), 29);
    EXPECT_EQ(At(44244, 0.0).GetDayOfMonth(), 6);
}

// Hour, minute and seconds against the three divisions, bit for bit: every
// whole millisecond of a day, the neighbours of every minute boundary,
// random values, and values outside the day.
TEST(MjdTimeFast, ClockEqualsTheDivisions)
{
    size_t ulChecked = 0, ulMismatch = 0;
    auto check = [&](double dMs)
    {
        const SMjdTime st = At(51544, dMs);
        int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
        double dSeconds = 0.0;
        st.GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
        const SClock stRule = LiteralClock(dMs);
        const bool bSame =
            iHour == stRule.iHour && iMinute == stRule.iMinute && SameBits(dSeconds, stRule.dSeconds);
        if (!bSame && ulMismatch < 10)
        {
            ADD_FAILURE() << "ms " << dMs << ": " << iHour << ":" << iMinute << ":" << dSeconds;
        }
        ulMismatch += bSame ? 0 : 1;
        ++ulChecked;
    };
    for (uint32_t ulMs = 0; ulMs < 86400000u; ++ulMs)
    {
        check(static_cast<double>(ulMs));
    }
    for (uint32_t ulMinute = 0; ulMinute <= 1440; ++ulMinute)
    {
        double dUp = ulMinute * 60000.0, dDown = dUp;
        for (int i = 0; i < 64; ++i)
        {
            check(dUp);
            check(dDown);
            dUp = std::nextafter(dUp, 1e12);
            dDown = std::nextafter(dDown, -1e12);
        }
        // Values whose seconds fall just short of a boundary.
        check(std::nextafter(ulMinute * 60.0, 0.0) * 1000.0);
        check((ulMinute * 60.0 - 1e-9) * 1000.0);
    }
    std::mt19937_64 gen(15);
    std::uniform_real_distribution<double> dist(0.0, 86400000.0);
    for (int i = 0; i < 2000000; ++i)
    {
        check(dist(gen));
    }
    for (double dMs : {-0.0, 0.0, -1.0, -3600000.5, 86400000.0, 90000000.25, 1e14, 1e15, 1e16, 1e300, -1e300,
                       c_dInf, -c_dInf, c_dNaN, std::numeric_limits<double>::denorm_min()})
    {
        check(dMs);
    }
    EXPECT_GT(ulChecked, 88000000u);
    EXPECT_EQ(ulMismatch, 0u);
}

// The GPS constructor and the GPS setters against the division and fmod,
// bit for bit: every second of a week and beyond, every 1/8 s of one day,
// the neighbours of each day boundary, random values and bad values.
TEST(MjdTimeFast, GpsTimeEqualsDivisionAndRemainder)
{
    ZelTest::CRecordingHook Hook;
    size_t ulChecked = 0, ulMismatch = 0;
    auto check = [&](unsigned int uiWeek, double dSeconds)
    {
        int32_t lDay = 0;
        double dMs = 0.0;
        LiteralGpsSeconds(uiWeek, dSeconds, lDay, dMs);
        const SMjdTime stCtor(uiWeek, dSeconds);
        // The setters take a 16-bit week.
        const unsigned int uiWeek16 = static_cast<unsigned short>(uiWeek);
        int32_t lDaySet = 0;
        double dMsSet = 0.0;
        LiteralGpsSeconds(uiWeek16, dSeconds, lDaySet, dMsSet);
        SMjdTime stSet;
        stSet.SetGpsTime(static_cast<unsigned short>(uiWeek), dSeconds);
        int32_t lDayMs = 0;
        double dMsMs = 0.0;
        LiteralGpsMilliseconds(uiWeek16, dSeconds * 1000.0, lDayMs, dMsMs);
        SMjdTime stSetMs;
        stSetMs.SetGpsTimeMs(static_cast<unsigned short>(uiWeek), dSeconds * 1000.0);
        const bool bSame = stCtor.m_lMjdDay == lDay && SameBits(stCtor.m_dMjdFractMilliseconds, dMs) &&
                           stSet.m_lMjdDay == lDaySet && SameBits(stSet.m_dMjdFractMilliseconds, dMsSet) &&
                           stSetMs.m_lMjdDay == lDayMs && SameBits(stSetMs.m_dMjdFractMilliseconds, dMsMs);
        if (!bSame && ulMismatch < 10)
        {
            ADD_FAILURE() << "week " << uiWeek << " seconds " << dSeconds << ": " << stCtor.m_lMjdDay << " "
                          << stCtor.m_dMjdFractMilliseconds << " against " << lDay << " " << dMs;
        }
        ulMismatch += bSame ? 0 : 1;
        ++ulChecked;
    };
    for (uint32_t ulSecond = 0; ulSecond <= 2 * 604800u; ++ulSecond)
    {
        check(2300, ulSecond);
    }
    for (uint32_t ulEighth = 0; ulEighth < 8 * 86400u; ++ulEighth)
    {
        check(1024, ulEighth * 0.125 + 86400.0);
    }
    for (uint32_t ulDayIdx = 0; ulDayIdx <= 8; ++ulDayIdx)
    {
        double dUp = ulDayIdx * 86400.0, dDown = dUp;
        for (int i = 0; i < 256; ++i)
        {
            check(2300, dUp);
            check(2300, dDown);
            dUp = std::nextafter(dUp, 1e12);
            dDown = std::nextafter(dDown, -1e12);
        }
        check(2300, ulDayIdx * 86400.0 - 1e-9);
        check(2300, ulDayIdx * 86400.0 - 1e-6);
    }
    std::mt19937_64 gen(2);
    std::uniform_real_distribution<double> dist(0.0, 604800.0);
    std::uniform_int_distribution<unsigned int> week(0, 5965);
    for (int i = 0; i < 1000000; ++i)
    {
        check(week(gen), dist(gen));
    }
    std::uniform_real_distribution<double> wide(0.0, 1e12);
    for (int i = 0; i < 200000; ++i)
    {
        check(2300, wide(gen));
    }
    for (unsigned int uiWeek : {0u, 1u, 5965u, 5966u, 65535u, 65536u, 4000000000u})
    {
        for (double dSeconds : {-0.0, 0.0, 604799.0, 604800.0, 604800.5, -1.0, -86400.0, -1e-300, 1e12,
                                std::nextafter(1e12, 0.0), 1e13, 1e15, 1e300, -1e300, c_dInf, -c_dInf, c_dNaN,
                                std::numeric_limits<double>::denorm_min()})
        {
            check(uiWeek, dSeconds);
        }
    }
    EXPECT_GT(ulChecked, 2900000u);
    EXPECT_EQ(ulMismatch, 0u);
    EXPECT_GT(Hook.Count(), 0u);
}

// The reports of the constructor and the setters are those of their checks,
// once per call, also on the integer path.
TEST(MjdTimeFast, GpsChecksStillReport)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime stGood(2300u, 345600.125);
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(stGood.m_lMjdDay, 2300 * 7 + 44244 + 4);
    EXPECT_EQ(stGood.m_dMjdFractMilliseconds, 125.0);
    const SMjdTime stEnd(5965u, 604800.0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0],
              "uiGpsWeek <= c_ulMAX_GPS_WEEK && dGpsSeconds >= 0.0 && dGpsSeconds < c_ulSEC_PER_WEEK");
    EXPECT_EQ(stEnd.m_lMjdDay, 5965 * 7 + 44244 + 7);
    EXPECT_EQ(stEnd.m_dMjdFractMilliseconds, 0.0);
    SMjdTime st;
    st.SetGpsTime(5965, 604800.0);
    EXPECT_EQ(Hook.Count(), 1u);
    st.SetGpsTimeMs(2300, -1.0);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(st.m_lMjdDay, 2300 * 7 + 44244);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, -1.0);
}
