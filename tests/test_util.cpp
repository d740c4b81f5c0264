// The utility layer, ZelTypes::Util: checked construction, strict and
// standard text forms of time, week resolution, signals by observation code,
// degree forms of the coordinate conversions.

#include <ZelTypes/Util/ZelUtil.h>

#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>
#include <ZelTypes/Core/Common/ZelFrequencyManager.h>

#include "ZelTestHooks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

const double c_dNaN = std::numeric_limits<double>::quiet_NaN();
const double c_dInf = std::numeric_limits<double>::infinity();

// Two doubles are the same value, NaN included.
bool SameDouble(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || a == b;
}

// Field by field, exactly (the comparison operators have a tolerance).
bool SameTime(const SMjdTime& a, const SMjdTime& b)
{
    return a.m_lMjdDay == b.m_lMjdDay && SameDouble(a.m_dMjdFractMilliseconds, b.m_dMjdFractMilliseconds) &&
           a.m_eAccuracy == b.m_eAccuracy;
}

// A time no Try... function makes: a marker for "left as it was".
SMjdTime Marker()
{
    SMjdTime stTime(MJDACC_HOUR);
    stTime.m_lMjdDay = 12345;
    stTime.m_dMjdFractMilliseconds = 678.0;
    return stTime;
}

SMjdTime Gps(unsigned int uiWeek, double dSeconds)
{
    return SMjdTime(uiWeek, dSeconds);
}

} // namespace

// ===========================================================================
// Checked construction: false exactly when the library would report
// ===========================================================================

TEST(UtilTryFrom, GpsAgreesWithTheConstructorsReports)
{
    const unsigned int auiWeeks[] = {0u, 1u, 2345u, 5965u, 5966u, 65535u, 65536u, 4294967295u};
    const double adSeconds[] = {-1.0,     -0.0,     0.0,    0.5,    86399.999, 604799.999,
                                604800.0, 604800.5, c_dNaN, c_dInf, -c_dInf};
    for (unsigned int uiWeek : auiWeeks)
    {
        for (double dSeconds : adSeconds)
        {
            ZelTest::CRecordingHook stHook;
            const SMjdTime stExpected(uiWeek, dSeconds, MJDACC_MICROSECOND);
            const bool bReported = stHook.Count() != 0;
            stHook.Clear();
            SMjdTime stTime = Marker();
            const bool bOk = TryFromGps(uiWeek, dSeconds, stTime, MJDACC_MICROSECOND);
            EXPECT_EQ(0u, stHook.Count());
            EXPECT_EQ(!bReported, bOk) << uiWeek << " " << dSeconds;
            EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime)) << uiWeek << " " << dSeconds;
        }
    }
}

TEST(UtilTryFrom, GpsValues)
{
    SMjdTime stTime;
    ASSERT_TRUE(TryFromGps(0, 0.0, stTime));
    EXPECT_EQ(44244, stTime.m_lMjdDay);
    EXPECT_EQ(0.0, stTime.m_dMjdFractMilliseconds);
    // Week 2345, Wednesday noon and 0.125 s: MJD 44244 + 2345 * 7 + 3.
    ASSERT_TRUE(TryFromGps(2345, 302400.125, stTime));
    EXPECT_EQ(60662, stTime.m_lMjdDay);
    EXPECT_EQ(43200125.0, stTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, stTime.m_eAccuracy);
    // The end of the week belongs to the next one: the constructor refuses it.
    EXPECT_FALSE(TryFromGps(2345, 604800.0, stTime));
    EXPECT_FALSE(TryFromGps(5966, 0.0, stTime));
    EXPECT_FALSE(TryFromGps(2345, -0.001, stTime));
    EXPECT_FALSE(TryFromGps(2345, c_dNaN, stTime));
    EXPECT_EQ(60662, stTime.m_lMjdDay);
}

TEST(UtilTryFrom, GpsMsAgreesWithTheSettersReports)
{
    const unsigned int auiWeeks[] = {0u, 2345u, 5965u, 5966u, 65535u};
    const double adMs[] = {-1.0, 0.0, 1.5, 604799999.0, 604800000.0, 604800000.5, c_dNaN, 1e12};
    for (unsigned int uiWeek : auiWeeks)
    {
        for (double dMs : adMs)
        {
            ZelTest::CRecordingHook stHook;
            SMjdTime stExpected(MJDACC_SECOND);
            stExpected.SetGpsTimeMs(static_cast<unsigned short>(uiWeek), dMs);
            const bool bReported = stHook.Count() != 0;
            stHook.Clear();
            SMjdTime stTime = Marker();
            const bool bOk = TryFromGpsMs(uiWeek, dMs, stTime, MJDACC_SECOND);
            EXPECT_EQ(0u, stHook.Count());
            EXPECT_EQ(!bReported, bOk) << uiWeek << " " << dMs;
            EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime));
        }
    }
    // A week beyond 16 bits is refused, not cut to 16 bits.
    SMjdTime stTime = Marker();
    EXPECT_FALSE(TryFromGpsMs(65536u + 5u, 0.0, stTime));
    EXPECT_TRUE(SameTime(Marker(), stTime));
    // The setter takes the end of the week: the next week's first instant.
    ASSERT_TRUE(TryFromGpsMs(2345, 604800000.0, stTime));
    EXPECT_EQ(60659 + 7, stTime.m_lMjdDay);
    EXPECT_EQ(0.0, stTime.m_dMjdFractMilliseconds);
}

TEST(UtilTryFrom, BdsAgreesWithTheSettersReports)
{
    // 4609 is GPS week 5965, the last; 64179 + 1356 is 65535.
    const unsigned int auiWeeks[] = {0u, 1u, 989u, 4609u, 4610u, 64179u};
    const double adSeconds[] = {-1.0, 0.0, 13.9, 86385.0, 86390.0, 604786.0, 604800.0, 604800.1, c_dNaN};
    for (unsigned int uiWeek : auiWeeks)
    {
        for (double dSeconds : adSeconds)
        {
            ZelTest::CRecordingHook stHook;
            SMjdTime stExpected(MJDACC_EXACT);
            stExpected.SetBdsTime(uiWeek, dSeconds);
            const bool bReported = stHook.Count() != 0;
            stHook.Clear();
            SMjdTime stTime = Marker();
            const bool bOk = TryFromBds(uiWeek, dSeconds, stTime, MJDACC_EXACT);
            EXPECT_EQ(0u, stHook.Count());
            EXPECT_EQ(!bReported, bOk) << uiWeek << " " << dSeconds;
            EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime)) << uiWeek << " " << dSeconds;
        }
    }
}

TEST(UtilTryFrom, BdsValuesAndTheEndOfTheRange)
{
    SMjdTime stTime;
    // BeiDou week 0 is GPS week 1356, 14 s later.
    ASSERT_TRUE(TryFromBds(0, 0.0, stTime));
    EXPECT_EQ(44244 + 1356 * 7, stTime.m_lMjdDay);
    EXPECT_EQ(14000.0, stTime.m_dMjdFractMilliseconds);
    // GPS week 5965 starts on MJD 85999, the last day of the range: 14 s
    // before its end the shift reaches MJD 86000 and the setter reports.
    ASSERT_TRUE(TryFromBds(4609, 86385.0, stTime));
    EXPECT_EQ(85999, stTime.m_lMjdDay);
    EXPECT_EQ(86399000.0, stTime.m_dMjdFractMilliseconds);
    stTime = Marker();
    EXPECT_FALSE(TryFromBds(4609, 86386.0, stTime));
    EXPECT_TRUE(SameTime(Marker(), stTime));
    // Weeks whose sum with 1356 passes 16 bits would wrap in the setter.
    EXPECT_FALSE(TryFromBds(64180u, 0.0, stTime));
    EXPECT_FALSE(TryFromBds(4294967295u, 0.0, stTime));
    EXPECT_TRUE(SameTime(Marker(), stTime));
}

TEST(UtilTryFrom, DateAgreesWithTheConstructorsReports)
{
    struct SCase
    {
        int iYear, iMonth, iDay, iHour, iMinute;
        double dSeconds;
    };
    const SCase astCases[] = {
        {2024, 2, 29, 12, 0, 0.0},  {2023, 2, 29, 0, 0, 0.0},  {1979, 12, 31, 0, 0, 0.0},
        {1980, 1, 6, 0, 0, 0.0},    {2100, 2, 29, 0, 0, 0.0},  {2000, 2, 29, 0, 0, 0.0},
        {2024, 13, 1, 0, 0, 0.0},   {2024, 0, 1, 0, 0, 0.0},   {2024, 1, 32, 0, 0, 0.0},
        {2024, 1, 0, 0, 0, 0.0},    {2024, 1, 1, 24, 0, 0.0},  {2024, 1, 1, 25, 0, 0.0},
        {2024, 1, 1, 23, 59, 75.0}, {2024, 1, 1, 24, 0, 60.0}, {2024, 1, 1, -3, -70, -1.0},
        {2024, 1, 1, 0, 0, c_dNaN}, {2024, 1, 1, 0, 0, 1e300}};
    for (const SCase& c : astCases)
    {
        ZelTest::CRecordingHook stHook;
        const SMjdTime stExpected(c.iYear, c.iMonth, c.iDay, c.iHour, c.iMinute, c.dSeconds, MJDACC_MINUTE);
        const bool bReported = stHook.Count() != 0;
        stHook.Clear();
        SMjdTime stTime = Marker();
        const bool bOk =
            TryFromDate(c.iYear, c.iMonth, c.iDay, c.iHour, c.iMinute, c.dSeconds, stTime, MJDACC_MINUTE);
        EXPECT_EQ(0u, stHook.Count());
        EXPECT_EQ(!bReported, bOk) << c.iYear << "-" << c.iMonth << "-" << c.iDay << " " << c.iHour;
        EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime));
    }
}

TEST(UtilTryFrom, FractionalDateAgreesWithTheConstructorsReports)
{
    const double adDays[] = {1.0, 29.5, 29.999, 30.0, 0.0, -3.0, c_dNaN};
    for (double dDay : adDays)
    {
        ZelTest::CRecordingHook stHook;
        const SMjdTime stExpected(2024, 2, dDay);
        const bool bReported = stHook.Count() != 0;
        stHook.Clear();
        SMjdTime stTime = Marker();
        const bool bOk = TryFromDate(2024, 2, dDay, stTime);
        EXPECT_EQ(0u, stHook.Count());
        EXPECT_EQ(!bReported, bOk) << dDay;
        EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime));
    }
    SMjdTime stTime;
    ASSERT_TRUE(TryFromDate(2024, 2, 28.5, stTime));
    EXPECT_EQ(60368, stTime.m_lMjdDay);
    EXPECT_EQ(43200000.0, stTime.m_dMjdFractMilliseconds);
    // The fraction counts: 29.5 is past the end of February 2024.
    EXPECT_FALSE(TryFromDate(2024, 2, 29.5, stTime));
    EXPECT_FALSE(TryFromDate(2023, 2, 29.0, stTime));
    EXPECT_EQ(60368, stTime.m_lMjdDay);
}

TEST(UtilTryFrom, DateValues)
{
    SMjdTime stTime;
    ASSERT_TRUE(TryFromDate(1980, 1, 6, 0, 0, 0.0, stTime));
    EXPECT_EQ(44244, stTime.m_lMjdDay);
    ASSERT_TRUE(TryFromDate(2000, 1, 1, 0, 0, 0.0, stTime));
    EXPECT_EQ(51544, stTime.m_lMjdDay);
    ASSERT_TRUE(TryFromDate(2024, 2, 29, 6, 30, 15.5, stTime));
    EXPECT_EQ(60369, stTime.m_lMjdDay);
    EXPECT_EQ(23415500.0, stTime.m_dMjdFractMilliseconds);
    // The library's date rule lets hour 24 pass; so does the checked form.
    ASSERT_TRUE(TryFromDate(2024, 2, 29, 24, 0, 0.0, stTime));
    EXPECT_EQ(86400000.0, stTime.m_dMjdFractMilliseconds);
    EXPECT_FALSE(stTime.isValid());
}

TEST(UtilTryFrom, MjdAndJulianDateAgreeWithTheLibrarysReports)
{
    const double adMjd[] = {-5.5, 0.0, 51544.5, 85999.99, 86000.0, 1e300, c_dNaN, c_dInf, -c_dInf};
    for (double dMjd : adMjd)
    {
        ZelTest::CRecordingHook stHook;
        const SMjdTime stExpected(dMjd);
        const bool bReported = stHook.Count() != 0;
        stHook.Clear();
        SMjdTime stTime = Marker();
        const bool bOk = TryFromMjd(dMjd, stTime);
        EXPECT_EQ(0u, stHook.Count());
        EXPECT_EQ(!bReported, bOk) << dMjd;
        EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime));
    }
    const double adJd[] = {2451544.5, 2451545.0, 2400000.5, 2400000.4, 2486000.5, 2485999.9, -1e300, c_dNaN};
    for (double dJd : adJd)
    {
        ZelTest::CRecordingHook stHook;
        SMjdTime stExpected(MJDACC_MILLISECOND);
        stExpected.SetJulianDate(dJd);
        const bool bReported = stHook.Count() != 0;
        stHook.Clear();
        SMjdTime stTime = Marker();
        const bool bOk = TryFromJulianDate(dJd, stTime, MJDACC_MILLISECOND);
        EXPECT_EQ(0u, stHook.Count());
        EXPECT_EQ(!bReported, bOk) << std::setprecision(17) << dJd;
        EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime));
    }
    SMjdTime stTime;
    // JD 2451545.0 is noon of 2000-01-01.
    ASSERT_TRUE(TryFromJulianDate(2451545.0, stTime));
    EXPECT_EQ(51544, stTime.m_lMjdDay);
    EXPECT_EQ(43200000.0, stTime.m_dMjdFractMilliseconds);
    ASSERT_TRUE(TryFromMjd(51544.25, stTime));
    EXPECT_EQ(21600000.0, stTime.m_dMjdFractMilliseconds);
}

TEST(UtilTryFrom, YearDayAgreesWithTheSettersReports)
{
    struct SCase
    {
        int iYear, iDoy;
        double dSeconds;
    };
    const SCase astCases[] = {{2024, 60, 0.0},   {2024, 60, 86399.5}, {2024, 60, 86400.0}, {2024, 60, -1.0},
                              {2023, 366, 0.0},  {2024, 0, 0.0},      {1858, 1, 0.0},      {2094, 300, 0.0},
                              {2024, 1, c_dNaN}, {1980, 6, 0.0}};
    for (const SCase& c : astCases)
    {
        ZelTest::CRecordingHook stHook;
        SMjdTime stExpected;
        stExpected.SetYearDaySeconds(c.iYear, c.iDoy, c.dSeconds);
        const bool bReported = stHook.Count() != 0;
        stHook.Clear();
        SMjdTime stTime = Marker();
        const bool bOk = TryFromYearDay(c.iYear, c.iDoy, c.dSeconds, stTime);
        EXPECT_EQ(0u, stHook.Count());
        EXPECT_EQ(!bReported, bOk) << c.iYear << " " << c.iDoy << " " << c.dSeconds;
        EXPECT_TRUE(SameTime(bOk ? stExpected : Marker(), stTime));
    }
    SMjdTime stTime;
    // Day 60 of 2024 is 29 February.
    ASSERT_TRUE(TryFromYearDay(2024, 60, 43200.0, stTime));
    EXPECT_EQ(60369, stTime.m_lMjdDay);
    EXPECT_EQ(43200000.0, stTime.m_dMjdFractMilliseconds);
    // As in the library, day 366 of a common year is 1 January of the next.
    ASSERT_TRUE(TryFromYearDay(2023, 366, 0.0, stTime));
    EXPECT_EQ(60310, stTime.m_lMjdDay);
}

TEST(UtilTryFrom, CalendarCheckIsStrict)
{
    EXPECT_TRUE(IsCalendarDateTime(2024, 2, 29, 23, 59, 59.999));
    EXPECT_TRUE(IsCalendarDateTime(1980, 1, 1, 0, 0, 0.0));
    EXPECT_TRUE(IsCalendarDateTime(2100, 12, 31, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2023, 2, 29, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2100, 2, 29, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(1979, 12, 31, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2101, 1, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 0, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 13, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 0, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 4, 31, 0, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 1, 24, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 1, -1, 0, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 1, 0, 60, 0.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 1, 0, 0, 60.0));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 1, 0, 0, -0.001));
    EXPECT_FALSE(IsCalendarDateTime(2024, 1, 1, 0, 0, c_dNaN));
}

// ===========================================================================
// Strict reader of the GPS text forms
// ===========================================================================

TEST(UtilStrictGps, ReadsTheRecordsOwnText)
{
    std::istringstream iss("2345, 302400.125");
    SMjdTime stTime(MJDACC_MICROSECOND);
    ReadGpsTextStrict(iss, stTime);
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(60662, stTime.m_lMjdDay);
    EXPECT_EQ(43200125.0, stTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_MICROSECOND, stTime.m_eAccuracy);

    // What the record writes at full precision reads back exactly.
    const SMjdTime stSource = Gps(2100, 123456.789);
    std::ostringstream oss;
    oss << std::setprecision(17) << stSource;
    std::istringstream issBack(oss.str());
    SMjdTime stBack;
    issBack >> StrictGps(stBack);
    EXPECT_FALSE(issBack.fail()) << oss.str();
    EXPECT_TRUE(SameTime(stSource, stBack));
}

TEST(UtilStrictGps, MillisecondsAndBlanksAndSequences)
{
    std::istringstream iss("  2345 ,302400125 1, 0.5");
    SMjdTime stFirst;
    SMjdTime stSecond;
    iss >> StrictGps(stFirst, MJDTXT_GPS_MILLISECONDS) >> StrictGps(stSecond, MJDTXT_GPS_MILLISECONDS);
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(60662, stFirst.m_lMjdDay);
    EXPECT_EQ(43200125.0, stFirst.m_dMjdFractMilliseconds);
    EXPECT_EQ(44244 + 7, stSecond.m_lMjdDay);
    EXPECT_EQ(0.5, stSecond.m_dMjdFractMilliseconds);
    // The end of the week is taken, as the record's own reader takes it.
    EXPECT_TRUE(ParseGpsText("2345, 604800", stFirst));
    EXPECT_EQ(60666, stFirst.m_lMjdDay);
}

TEST(UtilStrictGps, FailsOnBadText)
{
    const char* const aszBad[] = {"2345; 302400",   // wrong separator
                                  "2345 302400",    // no separator
                                  "2345: 1",        // wrong separator
                                  "5966, 0",        // week out of range
                                  "70000, 0",       // beyond 16 bits
                                  "2345, 604800.5", // past the week
                                  "2345, -1",       // negative
                                  "-1, 5",          // negative week
                                  "+5, 5",          // sign on the week
                                  "2345, abc",      // not a number
                                  "2345,",          // cut
                                  "abc",
                                  "",
                                  "5965, 604799"}; // beyond MJD 85999
    for (const char* szText : aszBad)
    {
        ZelTest::CRecordingHook stHook;
        std::istringstream iss(szText);
        SMjdTime stTime = Marker();
        iss >> StrictGps(stTime);
        EXPECT_TRUE(iss.fail()) << szText;
        EXPECT_TRUE(SameTime(Marker(), stTime)) << szText;
        EXPECT_EQ(0u, stHook.Count()) << szText;
        EXPECT_FALSE(ParseGpsText(szText, stTime)) << szText;
        EXPECT_TRUE(SameTime(Marker(), stTime)) << szText;
    }
}

TEST(UtilStrictGps, WhereTheRecordsReaderGoesOnQuietly)
{
    // The record's reader falls back to the default time and leaves the
    // stream good; the strict one fails and keeps the time.
    std::istringstream issLibrary("1234, 700000.0");
    SMjdTime stLibrary = Marker();
    issLibrary >> stLibrary;
    EXPECT_FALSE(issLibrary.fail());
    EXPECT_EQ(0, stLibrary.m_lMjdDay);

    std::istringstream issStrict("1234, 700000.0");
    SMjdTime stStrict = Marker();
    issStrict >> StrictGps(stStrict);
    EXPECT_TRUE(issStrict.fail());
    EXPECT_TRUE(SameTime(Marker(), stStrict));
}

TEST(UtilStrictGps, OtherFormsFailedStreamsAndTheBase)
{
    std::istringstream iss("2345, 1");
    SMjdTime stTime = Marker();
    ReadGpsTextStrict(iss, stTime, MJDTXT_MJD);
    EXPECT_TRUE(iss.fail());
    EXPECT_TRUE(SameTime(Marker(), stTime));
    // A stream already failed reads nothing.
    std::istringstream issFailed("2345, 1");
    issFailed.setstate(std::ios::failbit);
    ReadGpsTextStrict(issFailed, stTime);
    EXPECT_TRUE(SameTime(Marker(), stTime));
    // The week is decimal whatever the stream's base, and the base stays.
    std::istringstream issHex("2345, 1");
    issHex >> std::hex;
    ReadGpsTextStrict(issHex, stTime);
    EXPECT_FALSE(issHex.fail());
    EXPECT_EQ(60659, stTime.m_lMjdDay);
    EXPECT_EQ(std::ios::hex, issHex.flags() & std::ios::basefield);
    // Only blanks may follow in the string form.
    EXPECT_TRUE(ParseGpsText(" 2345, 1.5  ", stTime));
    EXPECT_FALSE(ParseGpsText("2345, 1.5 x", stTime));
    EXPECT_FALSE(ParseGpsText("2345, 1.5, 3", stTime));
}

// ===========================================================================
// ISO 8601
// ===========================================================================

TEST(UtilIso8601, Formats)
{
    const SMjdTime stTime = Gps(2345, 302400.125);
    EXPECT_EQ("2024-12-18T12:00:00.125", FormatIso8601(stTime));
    EXPECT_EQ("2024-12-18T12:00:00", FormatIso8601(stTime, 0));
    EXPECT_EQ("2024-12-18T12:00:00.1", FormatIso8601(stTime, 1));
    EXPECT_EQ("2024-12-18T12:00:00.125000000", FormatIso8601(stTime, 9));
    EXPECT_EQ("2024-12-18T12:00:00", FormatIso8601(stTime, -4));
    EXPECT_EQ("2024-12-18T12:00:00.125000000", FormatIso8601(stTime, 12));
    EXPECT_EQ("1980-01-01T00:00:00.000", FormatIso8601(SMjdTime(44239.0)));
    EXPECT_EQ("1980-01-06T00:00:00.000", FormatIso8601(Gps(0, 0.0)));
    EXPECT_EQ("2000-02-29T07:08:09.010", FormatIso8601(SMjdTime(2000, 2, 29, 7, 8, 9.01)));
}

TEST(UtilIso8601, RoundingCarriesIntoTheNextDay)
{
    const SMjdTime stTime(2024, 12, 31, 23, 59, 59.9996);
    EXPECT_EQ("2025-01-01T00:00:00.000", FormatIso8601(stTime));
    EXPECT_EQ("2024-12-31T23:59:59.9996", FormatIso8601(stTime, 4));
    EXPECT_EQ("2025-01-01T00:00:00", FormatIso8601(SMjdTime(2024, 12, 31, 23, 59, 59.5), 0));
    EXPECT_EQ("2024-12-31T23:59:59", FormatIso8601(SMjdTime(2024, 12, 31, 23, 59, 59.4999), 0));
    // The last microseconds of a day stay on that day.
    EXPECT_EQ("2024-12-31T23:59:59.999999999",
              FormatIso8601(SMjdTime(2024, 12, 31, 23, 59, 59.999999999), 9));
}

TEST(UtilIso8601, InvalidTimeGivesEmptyText)
{
    // Before 1980 the library's calendar covers no date.
    EXPECT_EQ("", FormatIso8601(SMjdTime()));
    EXPECT_EQ("", FormatRinexEpoch(SMjdTime(44238.99)));
    SMjdTime stTime;
    stTime.m_lMjdDay = -1;
    EXPECT_EQ("", FormatIso8601(stTime));
    EXPECT_EQ("", FormatRinexEpoch(stTime));
    stTime.m_lMjdDay = 50000;
    stTime.m_dMjdFractMilliseconds = 86400000.0;
    EXPECT_EQ("", FormatIso8601(stTime));
    stTime.m_dMjdFractMilliseconds = c_dNaN;
    EXPECT_EQ("", FormatIso8601(stTime));
}

TEST(UtilIso8601, Parses)
{
    SMjdTime stTime;
    ASSERT_TRUE(ParseIso8601("2024-02-29T12:34:56.789", stTime));
    EXPECT_EQ(60369, stTime.m_lMjdDay);
    EXPECT_NEAR(45296789.0, stTime.m_dMjdFractMilliseconds, 1e-6);
    EXPECT_EQ(MJDACC_NANOSECOND, stTime.m_eAccuracy);

    ASSERT_TRUE(ParseIso8601("2024-02-29 12:34:56,5Z", stTime, MJDACC_SECOND));
    EXPECT_NEAR(45296500.0, stTime.m_dMjdFractMilliseconds, 1e-6);
    EXPECT_EQ(MJDACC_SECOND, stTime.m_eAccuracy);

    ASSERT_TRUE(ParseIso8601("2024-02-29", stTime));
    EXPECT_EQ(60369, stTime.m_lMjdDay);
    EXPECT_EQ(0.0, stTime.m_dMjdFractMilliseconds);

    ASSERT_TRUE(ParseIso8601("2024-02-29T06:07", stTime));
    EXPECT_EQ(22020000.0, stTime.m_dMjdFractMilliseconds);

    // Ordinal dates: day 60 of 2024, day 365 of 2023.
    ASSERT_TRUE(ParseIso8601("2024-060T06:00:00Z", stTime));
    EXPECT_EQ(60369, stTime.m_lMjdDay);
    EXPECT_NEAR(21600000.0, stTime.m_dMjdFractMilliseconds, 1e-6);
    ASSERT_TRUE(ParseIso8601("2023-365", stTime));
    EXPECT_EQ(60309, stTime.m_lMjdDay);

    ASSERT_TRUE(ParseIso8601("2094-01-01T00:00:00", stTime));
    EXPECT_EQ(85878, stTime.m_lMjdDay);
}

TEST(UtilIso8601, RefusesBadText)
{
    const char* const aszBad[] = {"2023-02-29",
                                  "2024-13-01",
                                  "2024-00-10",
                                  "2024-02-30",
                                  "2024-02-00",
                                  "2024-02-29T24:00:00",
                                  "2024-02-29T12:60:00",
                                  "2024-02-29T12:00:60",
                                  "2024-2-29",
                                  "24-02-29",
                                  "20240229",
                                  "2024-02-29T12",
                                  "2024-02-29T12:00:00+01:00",
                                  "2024-02-29T12:00:00.",
                                  "2024-02-29T12:00:00Zjunk",
                                  "2024-02-29T1:00:00",
                                  " 2024-02-29",
                                  "2024-367",
                                  "2023-366",
                                  "2024-000",
                                  "1979-12-31",
                                  "2095-01-01", // beyond MJD 85999
                                  "2101-01-01",
                                  "",
                                  "T12:00:00"};
    for (const char* szText : aszBad)
    {
        ZelTest::CRecordingHook stHook;
        SMjdTime stTime = Marker();
        EXPECT_FALSE(ParseIso8601(szText, stTime)) << szText;
        EXPECT_TRUE(SameTime(Marker(), stTime)) << szText;
        EXPECT_EQ(0u, stHook.Count()) << szText;
    }
}

TEST(UtilIso8601, RoundTrip)
{
    for (int32_t lDay = 44239; lDay < 86000; lDay += 97)
    {
        for (double dMs : {0.0, 1.0, 43200125.5, 86399999.999999})
        {
            SMjdTime stSource;
            stSource.m_lMjdDay = lDay;
            stSource.m_dMjdFractMilliseconds = dMs;
            const std::string strText = FormatIso8601(stSource, 9);
            SMjdTime stBack;
            ASSERT_TRUE(ParseIso8601(strText, stBack)) << strText;
            EXPECT_NEAR(0.0, SMjdTime::DiffAsMilliseconds(stBack, stSource), 1e-6) << strText;
        }
    }
}

// ===========================================================================
// RINEX epoch
// ===========================================================================

TEST(UtilRinexEpoch, Formats)
{
    EXPECT_EQ("2024 12 18 12 00  0.1250000", FormatRinexEpoch(Gps(2345, 302400.125)));
    EXPECT_EQ("2006 03 24 13 10 36.0000000", FormatRinexEpoch(SMjdTime(2006, 3, 24, 13, 10, 36.0)));
    EXPECT_EQ("2024 01 01 00 00  0.0000000", FormatRinexEpoch(SMjdTime(2023, 12, 31, 23, 59, 59.99999996)));
    EXPECT_EQ("2023 12 31 23 59 59.9999999", FormatRinexEpoch(SMjdTime(2023, 12, 31, 23, 59, 59.9999999)));
}

TEST(UtilRinexEpoch, Parses)
{
    const SMjdTime stExpected(2006, 3, 24, 13, 10, 36.0);
    const char* const aszGood[] = {"2006 03 24 13 10 36.0000000", "> 2006 03 24 13 10 36.0000000",
                                   " 06  3 24 13 10 36.0000000", "2006  3 24 13 10 36",
                                   "2006 03 24 13 10 36  "};
    for (const char* szText : aszGood)
    {
        SMjdTime stTime;
        ASSERT_TRUE(ParseRinexEpoch(szText, stTime)) << szText;
        EXPECT_EQ(stExpected.m_lMjdDay, stTime.m_lMjdDay) << szText;
        EXPECT_NEAR(stExpected.m_dMjdFractMilliseconds, stTime.m_dMjdFractMilliseconds, 1e-6) << szText;
    }
    SMjdTime stTime;
    ASSERT_TRUE(ParseRinexEpoch("99  1  1  0  0  0.0", stTime));
    EXPECT_EQ(51179, stTime.m_lMjdDay); // 1999-01-01
    ASSERT_TRUE(ParseRinexEpoch("24 12 18 12  0  0.125", stTime));
    EXPECT_EQ(60662, stTime.m_lMjdDay);
    EXPECT_NEAR(43200125.0, stTime.m_dMjdFractMilliseconds, 1e-6);
    ASSERT_TRUE(ParseRinexEpoch(FormatRinexEpoch(Gps(2345, 302400.125)), stTime));
    EXPECT_NEAR(0.0, SMjdTime::DiffAsMilliseconds(stTime, Gps(2345, 302400.125)), 1e-6);
}

TEST(UtilRinexEpoch, RefusesBadText)
{
    const char* const aszBad[] = {"2006 03 24 13 10",
                                  "2006 03 24 13 10 36.0000000  0 12",
                                  "2006-03-24 13 10 36",
                                  "2006 13 24 13 10 36",
                                  "2006 02 29 13 10 36",
                                  "206 03 24 13 10 36",
                                  "2006 03 24 13 10 60.0",
                                  "2006 03 24 24 00 00.0",
                                  "2006 03 24 13 1036.0",
                                  "2006 03 24 13 10 36.",
                                  "2006 03 24 13 10 -1.0",
                                  "2006 003 24 13 10 36",
                                  "> > 2006 03 24 13 10 36",
                                  "1979 12 31 00 00 00",
                                  "",
                                  ">"};
    for (const char* szText : aszBad)
    {
        ZelTest::CRecordingHook stHook;
        SMjdTime stTime = Marker();
        EXPECT_FALSE(ParseRinexEpoch(szText, stTime)) << szText;
        EXPECT_TRUE(SameTime(Marker(), stTime)) << szText;
        EXPECT_EQ(0u, stHook.Count()) << szText;
    }
}

// ===========================================================================
// Truncated weeks
// ===========================================================================

TEST(UtilWeeks, ResolvesTenBitWeeks)
{
    const SMjdTime stNear(2024, 12, 18, 0, 0, 0.0);
    unsigned int uiWeek = 0;
    ASSERT_TRUE(ResolveGpsWeek(297, 10, stNear, uiWeek));
    EXPECT_EQ(2345u, uiWeek);
    // The library's rollover helper adds one epoch only: 2005.
    SMjdTime stShifted;
    stShifted.SetGpsTime1024(297, 0.0);
    EXPECT_EQ(1321u, stShifted.GetGpsWeek());
    EXPECT_EQ(2005, stShifted.GetYear());
    // Near a time of 2005 the same truncated week is 1321.
    ASSERT_TRUE(ResolveGpsWeek(297, 10, SMjdTime(2005, 5, 1, 0, 0, 0.0), uiWeek));
    EXPECT_EQ(1321u, uiWeek);
    // Just past a rollover, a week from just before it.
    ASSERT_TRUE(ResolveGpsWeek(1023, 10, Gps(2048, 0.0), uiWeek));
    EXPECT_EQ(2047u, uiWeek);
    ASSERT_TRUE(ResolveGpsWeek(0, 10, Gps(2047, 0.0), uiWeek));
    EXPECT_EQ(2048u, uiWeek);
    // Early in the first epoch no negative week is taken.
    ASSERT_TRUE(ResolveGpsWeek(1000, 10, Gps(260, 0.0), uiWeek));
    EXPECT_EQ(1000u, uiWeek);
    // Half a period either way: the later week.
    ASSERT_TRUE(ResolveGpsWeek(809, 10, Gps(2345, 0.0), uiWeek));
    EXPECT_EQ(2857u, uiWeek);
}

TEST(UtilWeeks, ResolvesThirteenBitWeeks)
{
    unsigned int uiWeek = 0;
    ASSERT_TRUE(ResolveGpsWeek(2345, 13, Gps(2300, 0.0), uiWeek));
    EXPECT_EQ(2345u, uiWeek);
    ASSERT_TRUE(ResolveGpsWeek(5965, 13, Gps(5900, 0.0), uiWeek));
    EXPECT_EQ(5965u, uiWeek);
}

TEST(UtilWeeks, RefusesBadInput)
{
    const SMjdTime stNear = Gps(2345, 0.0);
    SMjdTime stInvalid;
    stInvalid.m_lMjdDay = -1;
    const unsigned int uiMarker = 4242u;
    unsigned int uiWeek = uiMarker;
    EXPECT_FALSE(ResolveGpsWeek(297, 0, stNear, uiWeek));
    EXPECT_FALSE(ResolveGpsWeek(297, 17, stNear, uiWeek));
    EXPECT_FALSE(ResolveGpsWeek(1024, 10, stNear, uiWeek));
    EXPECT_FALSE(ResolveGpsWeek(8192, 13, stNear, uiWeek));
    EXPECT_FALSE(ResolveGpsWeek(297, 10, stInvalid, uiWeek));
    EXPECT_FALSE(ResolveGpsWeek(297, 10, SMjdTime(44000.0), uiWeek)); // before the GPS epoch
    // Nearest to week 5965 is 6065, beyond the library's last week.
    EXPECT_FALSE(ResolveGpsWeek(945, 10, Gps(5965, 0.0), uiWeek));
    EXPECT_EQ(uiMarker, uiWeek);
}

TEST(UtilWeeks, TruncatedGpsTime)
{
    SMjdTime stTime = Marker();
    ASSERT_TRUE(TryFromTruncatedGps(297, 10, 302400.125, SMjdTime(2024, 12, 1, 0, 0, 0.0), stTime));
    EXPECT_EQ(60662, stTime.m_lMjdDay);
    EXPECT_EQ(43200125.0, stTime.m_dMjdFractMilliseconds);
    stTime = Marker();
    EXPECT_FALSE(TryFromTruncatedGps(297, 10, 604800.0, SMjdTime(2024, 12, 1, 0, 0, 0.0), stTime));
    EXPECT_FALSE(TryFromTruncatedGps(1024, 10, 0.0, SMjdTime(2024, 12, 1, 0, 0, 0.0), stTime));
    EXPECT_TRUE(SameTime(Marker(), stTime));
}

// ===========================================================================
// Signals by observation code
// ===========================================================================

namespace
{

void ExpectSignal(EZelSatSystem eSys, const char* szCode, EZelFrequencyGroup eGrp, EZelFrequency eFrq,
                  EZelTrackMode eMode)
{
    SZelRinexSignal stSignal;
    ASSERT_TRUE(FindRinexSignal(eSys, szCode, stSignal)) << eSys << " " << szCode;
    EXPECT_EQ(szCode[0], stSignal.cObsType) << szCode;
    EXPECT_EQ(eSys, stSignal.eSatSystem) << szCode;
    EXPECT_EQ(eGrp, stSignal.eFrqGrp) << szCode;
    EXPECT_EQ(eFrq, stSignal.eFrq) << szCode;
    EXPECT_EQ(eMode, stSignal.eTrackMode) << szCode;
}

} // namespace

TEST(UtilSignals, FindsSignalsByCode)
{
    ZelTest::CRecordingHook stHook;
    ExpectSignal(ZELSATSYSTEM_GPS, "C1C", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1CA, ZELTRACKMODE_C);
    ExpectSignal(ZELSATSYSTEM_GPS, "L2W", ZELFREQUENCY_GROUP_2, ZELFREQUENCY_L2P, ZELTRACKMODE_W);
    ExpectSignal(ZELSATSYSTEM_GPS, "D2L", ZELFREQUENCY_GROUP_2, ZELFREQUENCY_L2C, ZELTRACKMODE_L);
    ExpectSignal(ZELSATSYSTEM_GPS, "C5Q", ZELFREQUENCY_GROUP_3, ZELFREQUENCY_L5, ZELTRACKMODE_Q);
    ExpectSignal(ZELSATSYSTEM_GPS, "S1L", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1C, ZELTRACKMODE_L);
    ExpectSignal(ZELSATSYSTEM_GLONASS, "C1P", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1P, ZELTRACKMODE_P);
    ExpectSignal(ZELSATSYSTEM_GLONASS, "L3Q", ZELFREQUENCY_GROUP_3, ZELFREQUENCY_L5, ZELTRACKMODE_Q);
    ExpectSignal(ZELSATSYSTEM_GALILEO, "C1C", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1C, ZELTRACKMODE_C);
    ExpectSignal(ZELSATSYSTEM_GALILEO, "C5Q", ZELFREQUENCY_GROUP_3, ZELFREQUENCY_E5A, ZELTRACKMODE_Q);
    ExpectSignal(ZELSATSYSTEM_GALILEO, "C7Q", ZELFREQUENCY_GROUP_4, ZELFREQUENCY_E5B, ZELTRACKMODE_Q);
    ExpectSignal(ZELSATSYSTEM_GALILEO, "L8X", ZELFREQUENCY_GROUP_5, ZELFREQUENCY_E5AB, ZELTRACKMODE_X);
    ExpectSignal(ZELSATSYSTEM_GALILEO, "C6C", ZELFREQUENCY_GROUP_6, ZELFREQUENCY_E6, ZELTRACKMODE_C);
    ExpectSignal(ZELSATSYSTEM_SBAS, "C5I", ZELFREQUENCY_GROUP_3, ZELFREQUENCY_L5, ZELTRACKMODE_I);
    // BeiDou: B1I is slot L1CA and B3I slot L5.
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C2I", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1CA, ZELTRACKMODE_I);
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C6I", ZELFREQUENCY_GROUP_3, ZELFREQUENCY_L5, ZELTRACKMODE_I);
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C7I", ZELFREQUENCY_GROUP_2, ZELFREQUENCY_L2P, ZELTRACKMODE_I);
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C7D", ZELFREQUENCY_GROUP_2, ZELFREQUENCY_L2C, ZELTRACKMODE_D);
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C1P", ZELFREQUENCY_GROUP_4, ZELFREQUENCY_E5B, ZELTRACKMODE_P);
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C5P", ZELFREQUENCY_GROUP_5, ZELFREQUENCY_E5AB, ZELTRACKMODE_P);
    // B1 under its older band digit.
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C1I", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1CA, ZELTRACKMODE_I);
    ExpectSignal(ZELSATSYSTEM_BEIDOU, "C1X", ZELFREQUENCY_GROUP_4, ZELFREQUENCY_E5B, ZELTRACKMODE_X);
    ExpectSignal(ZELSATSYSTEM_QZSS, "C1Z", ZELFREQUENCY_GROUP_1, ZELFREQUENCY_L1CA, ZELTRACKMODE_Z);
    ExpectSignal(ZELSATSYSTEM_QZSS, "C2L", ZELFREQUENCY_GROUP_2, ZELFREQUENCY_L2C, ZELTRACKMODE_L);
    ExpectSignal(ZELSATSYSTEM_NAVIC, "C5A", ZELFREQUENCY_GROUP_3, ZELFREQUENCY_L5, ZELTRACKMODE_A);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(UtilSignals, RefusesUnknownCodes)
{
    struct SCase
    {
        int32_t lSys;
        const char* szCode;
    };
    const SCase astBad[] = {{ZELSATSYSTEM_GPS, "C1Y"},
                            {ZELSATSYSTEM_GPS, "C6C"},
                            {ZELSATSYSTEM_GALILEO, "C2C"},
                            {ZELSATSYSTEM_GPS, "X1C"},
                            {ZELSATSYSTEM_GPS, "c1c"},
                            {ZELSATSYSTEM_GPS, "C1"},
                            {ZELSATSYSTEM_GPS, "C1CX"},
                            {ZELSATSYSTEM_GPS, "C1U"},
                            {ZELSATSYSTEM_GPS, "C1?"},
                            {ZELSATSYSTEM_GPS, ""},
                            {ZELSATSYSTEM_GLONASS, "C4A"},
                            {ZELSATSYSTEM_BEIDOU, "C8X"},
                            {ZELSATSYSTEM_BEIDOU, "C6A"},
                            {ZELSATSYSTEM_QZSS, "C6L"},
                            {ZELSATSYSTEM_LOCATA, "C1C"},
                            {ZELSATSYSTEM_NONE, "C1C"},
                            {9, "C1C"},
                            {-1, "C1C"}};
    ZelTest::CRecordingHook stHook;
    for (const SCase& c : astBad)
    {
        SZelRinexSignal stSignal;
        stSignal.cObsType = 'L';
        stSignal.eFrq = ZELFREQUENCY_E6;
        EXPECT_FALSE(FindRinexSignal(static_cast<EZelSatSystem>(c.lSys), c.szCode, stSignal))
            << c.lSys << " " << c.szCode;
        EXPECT_EQ('L', stSignal.cObsType);
        EXPECT_EQ(ZELFREQUENCY_E6, stSignal.eFrq);
    }
    // A string with a terminator inside is not a code.
    SZelRinexSignal stSignal;
    EXPECT_FALSE(FindRinexSignal(ZELSATSYSTEM_GPS, std::string("C1\0", 3), stSignal));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(UtilSignals, CodesBack)
{
    SZelRinexSignal stSignal;
    stSignal.eSatSystem = ZELSATSYSTEM_BEIDOU;
    stSignal.eFrqGrp = ZELFREQUENCY_GROUP_3;
    stSignal.eTrackMode = ZELTRACKMODE_I;
    EXPECT_EQ("C6I", ToRinexCode(stSignal));
    stSignal.eFrq = ZELFREQUENCY_L5;
    stSignal.cObsType = 'L';
    EXPECT_EQ("L6I", ToRinexCode(stSignal));
    // A slot that is not the catalogue's, a type RINEX lacks, a mode or group the system lacks.
    stSignal.eFrq = ZELFREQUENCY_L1CA;
    EXPECT_EQ("", ToRinexCode(stSignal));
    stSignal.eFrq = ZELFREQUENCY_UNKNOWN;
    stSignal.cObsType = 'X';
    EXPECT_EQ("", ToRinexCode(stSignal));
    stSignal.cObsType = 'C';
    stSignal.eTrackMode = ZELTRACKMODE_W;
    EXPECT_EQ("", ToRinexCode(stSignal));
    stSignal.eTrackMode = ZELTRACKMODE_ALL;
    EXPECT_EQ("", ToRinexCode(stSignal));
    stSignal.eSatSystem = ZELSATSYSTEM_GALILEO;
    stSignal.eFrqGrp = ZELFREQUENCY_GROUP_2;
    stSignal.eTrackMode = ZELTRACKMODE_C;
    EXPECT_EQ("", ToRinexCode(stSignal));
    stSignal.eSatSystem = static_cast<EZelSatSystem>(12);
    EXPECT_EQ("", ToRinexCode(stSignal));
    // B1 under the older band digit is written with the current one.
    ASSERT_TRUE(FindRinexSignal(ZELSATSYSTEM_BEIDOU, "L1Q", stSignal));
    EXPECT_EQ("L2Q", ToRinexCode(stSignal));
}

TEST(UtilSignals, EveryCatalogueSignalHasACodeThatReadsBack)
{
    ZelTest::CRecordingHook stHook;
    size_t ulCount = 0;
    for (int32_t lSys = ZELSATSYSTEM_GPS; lSys <= ZELSATSYSTEM_NAVIC; ++lSys)
    {
        const EZelSatSystem eSys = static_cast<EZelSatSystem>(lSys);
        for (const SZelSignalRow& rRow : ListSignals(eSys))
        {
            ASSERT_EQ(2u, rRow.strRinexSignal.size()) << lSys << " " << rRow.strFrqName;
            for (char cType : {'C', 'L', 'D', 'S'})
            {
                const std::string strCode = std::string(1, cType) + rRow.strRinexSignal;
                SZelRinexSignal stSignal;
                ASSERT_TRUE(FindRinexSignal(eSys, strCode, stSignal)) << lSys << " " << strCode;
                EXPECT_EQ(rRow.eFrqGrp, stSignal.eFrqGrp);
                EXPECT_EQ(rRow.eFrq, stSignal.eFrq);
                EXPECT_EQ(rRow.eTrackMode, stSignal.eTrackMode);
                EXPECT_EQ(strCode, ToRinexCode(stSignal));
            }
            ++ulCount;
        }
    }
    // GPS 18, GLONASS 7, Galileo 19, SBAS 2, BeiDou 19, QZSS 11, NavIC 3.
    EXPECT_EQ(79u, ulCount);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(UtilSignals, ListsTheSignalTable)
{
    const std::vector<SZelSignalRow> vecBds = ListSignals(ZELSATSYSTEM_BEIDOU);
    ASSERT_EQ(19u, vecBds.size());
    // Table order: B1, B3, B2, B1C, B2a; rows in their order.
    EXPECT_EQ("B1", vecBds[0].strFrqName);
    EXPECT_EQ(ZELFREQUENCY_GROUP_1, vecBds[0].eFrqGrp);
    EXPECT_EQ(ZELFREQUENCY_L1CA, vecBds[0].eFrq);
    EXPECT_EQ("2I", vecBds[0].strRinexSignal);
    EXPECT_EQ(1561098000.0, vecBds[0].dNominalFrequencyHz);
    EXPECT_EQ("B3", vecBds[3].strFrqName);
    EXPECT_EQ(ZELFREQUENCY_L5, vecBds[3].eFrq);
    EXPECT_EQ("6I", vecBds[3].strRinexSignal);
    EXPECT_EQ(1268520000.0, vecBds[3].dNominalFrequencyHz);
    EXPECT_EQ("B2a", vecBds.back().strFrqName);
    EXPECT_EQ("5X", vecBds.back().strRinexSignal);
    EXPECT_EQ(1176450000.0, vecBds.back().dNominalFrequencyHz);

    const std::vector<SZelSignalRow> vecGlo = ListSignals(ZELSATSYSTEM_GLONASS);
    ASSERT_EQ(7u, vecGlo.size());
    EXPECT_EQ("G1", vecGlo[0].strFrqName);
    EXPECT_EQ(1602000000.0, vecGlo[0].dNominalFrequencyHz);

    EXPECT_TRUE(ListSignals(ZELSATSYSTEM_LOCATA).empty());
    EXPECT_TRUE(ListSignals(ZELSATSYSTEM_NONE).empty());
    EXPECT_TRUE(ListSignals(static_cast<EZelSatSystem>(9)).empty());
    EXPECT_TRUE(ListSignals(static_cast<EZelSatSystem>(-7)).empty());
}

TEST(UtilSignals, BandsBothWays)
{
    EXPECT_EQ('1', ToRinexBand(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1));
    EXPECT_EQ('5', ToRinexBand(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_3));
    EXPECT_EQ('7', ToRinexBand(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_4));
    EXPECT_EQ('2', ToRinexBand(ZELSATSYSTEM_BEIDOU, ZELFREQUENCY_GROUP_1));
    EXPECT_EQ('\0', ToRinexBand(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_2));
    EXPECT_EQ('\0', ToRinexBand(ZELSATSYSTEM_LOCATA, ZELFREQUENCY_GROUP_1));
    EXPECT_EQ('\0', ToRinexBand(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUPS_MAX));
    EXPECT_EQ(ZELFREQUENCY_GROUP_3, FromRinexBand(ZELSATSYSTEM_BEIDOU, '6'));
    EXPECT_EQ(ZELFREQUENCY_GROUP_4, FromRinexBand(ZELSATSYSTEM_BEIDOU, '1'));
    EXPECT_EQ(ZELFREQUENCY_GROUP_6, FromRinexBand(ZELSATSYSTEM_GALILEO, '6'));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromRinexBand(ZELSATSYSTEM_GALILEO, '2'));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromRinexBand(ZELSATSYSTEM_GPS, '\0'));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromRinexBand(ZELSATSYSTEM_GPS, 'x'));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromRinexBand(static_cast<EZelSatSystem>(9), '1'));
}

TEST(UtilSignals, FrequencyGroupPredicate)
{
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(HasFrequencyGroup(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_1));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_2));
    EXPECT_TRUE(HasFrequencyGroup(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_6));
    EXPECT_TRUE(HasFrequencyGroup(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_3));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_4));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_SBAS, ZELFREQUENCY_GROUP_2));
    EXPECT_TRUE(HasFrequencyGroup(ZELSATSYSTEM_BEIDOU, ZELFREQUENCY_GROUP_5));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_NAVIC, ZELFREQUENCY_GROUP_1));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_LOCATA, ZELFREQUENCY_GROUP_1));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_NONE, ZELFREQUENCY_GROUP_1));
    EXPECT_FALSE(HasFrequencyGroup(static_cast<EZelSatSystem>(42), ZELFREQUENCY_GROUP_1));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_NONE));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUPS_MAX));
    EXPECT_FALSE(HasFrequencyGroup(ZELSATSYSTEM_GPS, static_cast<EZelFrequencyGroup>(-1)));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(UtilSignals, NominalFrequencyOnlyWhereTheSystemHasTheGroup)
{
    // The frequency manager's table answers for Galileo "L2"; the checked form does not.
    EXPECT_EQ(1227600000.0, CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_GALILEO, 2));
    double dHz = -1.0;
    EXPECT_FALSE(TryGetNominalFrequency(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_2, dHz));
    EXPECT_FALSE(TryGetNominalFrequency(ZELSATSYSTEM_LOCATA, ZELFREQUENCY_GROUP_1, dHz));
    EXPECT_FALSE(TryGetNominalFrequency(static_cast<EZelSatSystem>(9), ZELFREQUENCY_GROUP_1, dHz));
    EXPECT_FALSE(TryGetNominalFrequency(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUPS_MAX, dHz));
    EXPECT_EQ(-1.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, dHz));
    EXPECT_EQ(1575420000.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_GROUP_6, dHz));
    EXPECT_EQ(1278750000.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_BEIDOU, ZELFREQUENCY_GROUP_1, dHz));
    EXPECT_EQ(1561098000.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_BEIDOU, ZELFREQUENCY_GROUP_3, dHz));
    EXPECT_EQ(1268520000.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_GROUP_2, dHz));
    EXPECT_EQ(1246000000.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_GROUP_3, dHz));
    EXPECT_EQ(1202025000.0, dHz);
    ASSERT_TRUE(TryGetNominalFrequency(ZELSATSYSTEM_NAVIC, ZELFREQUENCY_GROUP_3, dHz));
    EXPECT_EQ(1176450000.0, dHz);
}

// ===========================================================================
// Degrees
// ===========================================================================

TEST(UtilDegrees, GeographicToCartesian)
{
    double dX = 0.0, dY = 0.0, dZ = 0.0;
    ASSERT_TRUE(ConvGeographicToCartesianDeg(0.0, 0.0, 0.0, dX, dY, dZ));
    EXPECT_EQ(6378137.0, dX);
    EXPECT_EQ(0.0, dY);
    EXPECT_EQ(0.0, dZ);
    ASSERT_TRUE(ConvGeographicToCartesianDeg(0.0, 90.0, 100.0, dX, dY, dZ));
    EXPECT_NEAR(0.0, dX, 1e-9);
    EXPECT_EQ(6378237.0, dY);
    ASSERT_TRUE(ConvGeographicToCartesianDeg(90.0, 0.0, 0.0, dX, dY, dZ));
    EXPECT_NEAR(0.0, dX, 1e-9);
    EXPECT_NEAR(6356752.3142, dZ, 1e-4);
    ASSERT_TRUE(ConvGeographicToCartesianDeg(-90.0, 0.0, 0.0, dX, dY, dZ));
    EXPECT_NEAR(-6356752.3142, dZ, 1e-4);

    // The library's radian form gives the same numbers.
    double adRotation[8] = {};
    double dRx = 0.0, dRy = 0.0, dRz = 0.0;
    double adRadRotation[8] = {};
    ASSERT_TRUE(ConvGeographicToCartesianDeg(47.5, 8.25, 512.0, dX, dY, dZ, adRotation));
    ConvGeographicToCartesian(47.5 * (M_PI / 180.0), 8.25 * (M_PI / 180.0), 512.0, dRx, dRy, dRz,
                              adRadRotation);
    EXPECT_EQ(dRx, dX);
    EXPECT_EQ(dRy, dY);
    EXPECT_EQ(dRz, dZ);
    for (int iIdx = 0; iIdx < 8; ++iIdx)
    {
        EXPECT_EQ(adRadRotation[iIdx], adRotation[iIdx]) << iIdx;
    }
}

TEST(UtilDegrees, CartesianToGeographic)
{
    double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
    double adRotation[8] = {};
    ASSERT_TRUE(ConvCartesianToGeographicDeg(6378137.0, 0.0, 0.0, dLat, dLon, dHeight, adRotation));
    EXPECT_EQ(0.0, dLat);
    EXPECT_EQ(0.0, dLon);
    EXPECT_EQ(0.0, dHeight);
    EXPECT_EQ(1.0, adRotation[2]); // north z
    EXPECT_EQ(1.0, adRotation[4]); // east y
    EXPECT_EQ(1.0, adRotation[5]); // up x
    ASSERT_TRUE(ConvCartesianToGeographicDeg(0.0, 6378137.0, 0.0, dLat, dLon, dHeight, adRotation));
    EXPECT_DOUBLE_EQ(90.0, dLon);
    EXPECT_EQ(-1.0, adRotation[3]); // east x
    ASSERT_TRUE(ConvCartesianToGeographicDeg(-6378137.0, 0.0, 0.0, dLat, dLon, dHeight));
    EXPECT_DOUBLE_EQ(180.0, dLon);
    ASSERT_TRUE(ConvCartesianToGeographicDeg(0.0, -6378237.0, 0.0, dLat, dLon, dHeight));
    EXPECT_DOUBLE_EQ(-90.0, dLon);
    EXPECT_NEAR(100.0, dHeight, 1e-9);
}

TEST(UtilDegrees, RoundTrip)
{
    for (double dLat : {-89.5, -45.0, 0.0, 12.345678, 47.5, 89.999})
    {
        for (double dLon : {-179.9, -10.0, 0.0, 8.25, 135.0, 180.0})
        {
            for (double dHeight : {-1000.0, 0.0, 512.0, 100000.0})
            {
                double dX = 0.0, dY = 0.0, dZ = 0.0;
                ASSERT_TRUE(ConvGeographicToCartesianDeg(dLat, dLon, dHeight, dX, dY, dZ));
                double dLatBack = 0.0, dLonBack = 0.0, dHeightBack = 0.0;
                ASSERT_TRUE(ConvCartesianToGeographicDeg(dX, dY, dZ, dLatBack, dLonBack, dHeightBack));
                EXPECT_NEAR(dLat, dLatBack, 1e-8);
                // 180 and -180 are the same meridian.
                EXPECT_NEAR(0.0, std::remainder(dLon - dLonBack, 360.0), 1e-8);
                EXPECT_NEAR(dHeight, dHeightBack, 1e-3);
            }
        }
    }
}

TEST(UtilDegrees, RefusesBadInput)
{
    ZelTest::CRecordingHook stHook;
    const double dMark = 4242.0;
    double dA = dMark, dB = dMark, dC = dMark;
    double adRotation[8];
    for (double& rd : adRotation)
    {
        rd = dMark;
    }
    // On the polar axis there is no conversion.
    EXPECT_FALSE(ConvCartesianToGeographicDeg(0.0, 0.0, 6356752.3142, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvCartesianToGeographicDeg(0.0, 0.0, 0.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvCartesianToGeographicDeg(c_dNaN, 1.0, 1.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvCartesianToGeographicDeg(1.0, c_dInf, 1.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvCartesianToGeographicDeg(1.0, 1.0, -c_dInf, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvGeographicToCartesianDeg(90.0001, 0.0, 0.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvGeographicToCartesianDeg(-91.0, 0.0, 0.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvGeographicToCartesianDeg(c_dNaN, 0.0, 0.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvGeographicToCartesianDeg(0.0, c_dInf, 0.0, dA, dB, dC, adRotation));
    EXPECT_FALSE(ConvGeographicToCartesianDeg(0.0, 0.0, c_dNaN, dA, dB, dC, adRotation));
    EXPECT_EQ(dMark, dA);
    EXPECT_EQ(dMark, dB);
    EXPECT_EQ(dMark, dC);
    for (double d : adRotation)
    {
        EXPECT_EQ(dMark, d);
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(UtilDegrees, AngleConversions)
{
    EXPECT_DOUBLE_EQ(M_PI, DegToRad(180.0));
    EXPECT_DOUBLE_EQ(180.0, RadToDeg(M_PI));
    EXPECT_DOUBLE_EQ(-90.0, RadToDeg(DegToRad(-90.0)));
    EXPECT_EQ(0.0, DegToRad(0.0));
}
