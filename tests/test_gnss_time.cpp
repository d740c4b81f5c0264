// Calendar, Julian, GPS and BeiDou forms of the time record, and its text forms.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/mjdTime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <sstream>
#include <string>

using namespace ZELN;

namespace
{

// Independent proleptic Gregorian day count (days since 1970-01-01).
long DaysFromCivil(long y, unsigned m, unsigned d)
{
    y -= m <= 2;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long>(doe) - 719468;
}

const long c_lMjdOfUnixEpoch = 40587;

SMjdTime At(int32_t lDay, double dMs)
{
    SMjdTime st;
    st.m_lMjdDay = lDay;
    st.m_dMjdFractMilliseconds = dMs;
    return st;
}

const char* const c_szValidDate6 = "__IsValidDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds)";
const char* const c_szValidDate3 = "__IsValidDate(iYear, iMonth, dDay)";
const char* const c_szGpsCtor =
    "uiGpsWeek <= c_ulMAX_GPS_WEEK && dGpsSeconds >= 0.0 && dGpsSeconds < c_ulSEC_PER_WEEK";
const char* const c_szGpsSet =
    "unGpsWeek <= c_ulMAX_GPS_WEEK && dGpsSeconds >= 0.0 && dGpsSeconds <= c_ulSEC_PER_WEEK";
const char* const c_szGpsSetMs =
    "unGpsWeek <= c_ulMAX_GPS_WEEK && dGpsMillseconds >= 0.0 && dGpsMillseconds <= c_ulMSEC_PER_WEEK";

} // namespace

TEST(GnssTime, Constants)
{
    EXPECT_EQ(c_ulGPS_WEEKS_AT_BDS_REFTIME, 1356u);
    EXPECT_EQ(static_cast<int>(MJDTXT_MONTHYEAR), 0);
    EXPECT_EQ(static_cast<int>(MJDTXT_DATETIME), 1);
    EXPECT_EQ(static_cast<int>(MJDTXT_MJD), 2);
    EXPECT_EQ(static_cast<int>(MJDTXT_GPS_SECONDS), 3);
    EXPECT_EQ(static_cast<int>(MJDTXT_GPS_MILLISECONDS), 4);
}

TEST(GnssTime, KnownCalendarDays)
{
    ZelTest::CRecordingHook Hook;
    EXPECT_EQ(SMjdTime(1980, 1, 6, 0, 0, 0.0).m_lMjdDay, 44244);
    EXPECT_EQ(SMjdTime(2000, 1, 1, 0, 0, 0.0).m_lMjdDay, 51544);
    EXPECT_EQ(SMjdTime(2024, 2, 29, 0, 0, 0.0).m_lMjdDay, 60369);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTime, CalendarAgainstIndependentCountEveryDay)
{
    ZelTest::CRecordingHook Hook;
    int iDays = 0;
    size_t ulExpectedReports = 0;
    const long lMar2100 = DaysFromCivil(2100, 3, 1) + c_lMjdOfUnixEpoch;
    for (int iYear = 1980; iYear <= 2100; ++iYear)
    {
        int iDoy = 0;
        for (int iMonth = 1; iMonth <= 12; ++iMonth)
        {
            static const int aiLen[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
            const bool bLeap = (iYear % 4 == 0 && iYear % 100 != 0) || iYear % 400 == 0;
            const int iLen = aiLen[iMonth - 1] + (iMonth == 2 && bLeap ? 1 : 0);
            for (int iDay = 1; iDay <= iLen; ++iDay)
            {
                ++iDoy;
                ++iDays;
                const long lExpected = DaysFromCivil(iYear, iMonth, iDay) + c_lMjdOfUnixEpoch;
                const SMjdTime st(iYear, iMonth, iDay, 0, 0, 0.0);
                ASSERT_EQ(st.m_lMjdDay, lExpected) << iYear << "-" << iMonth << "-" << iDay;
                int iY = 0, iM = 0, iD = 0, iH = -1, iMi = -1;
                double dS = -1.0;
                st.GetDate(iY, iM, iD, iH, iMi, dS);
                // The calendar rule drops the century correction of 2100: from
                // 2100-03-01 on it gives the day before.
                if (lExpected < lMar2100)
                {
                    ASSERT_EQ(iY, iYear);
                    ASSERT_EQ(iM, iMonth);
                    ASSERT_EQ(iD, iDay);
                    ASSERT_EQ(st.GetDayOfYear(), iDoy);
                }
                else if (iMonth == 3 && iDay == 1)
                {
                    ASSERT_EQ(iM, 2);
                    ASSERT_EQ(iD, 29);
                }
                else
                {
                    ASSERT_EQ(DaysFromCivil(iY, static_cast<unsigned>(iM), static_cast<unsigned>(iD)) +
                                  c_lMjdOfUnixEpoch,
                              lExpected - 1)
                        << iYear << "-" << iMonth << "-" << iDay;
                }
                ASSERT_EQ(iH, 0);
                ASSERT_EQ(iMi, 0);
                ASSERT_EQ(dS, 0.0);
                SMjdTime stYd;
                stYd.SetYearDayTime(iYear, iDoy, 0, 0, 0.0);
                ASSERT_EQ(stYd.m_lMjdDay, lExpected);
                // Days from 86000 on are outside the record's range.
                ulExpectedReports += lExpected >= 86000 ? 1 : 0;
                // Late in the day the date must not move.
                const SMjdTime stLate(iYear, iMonth, iDay, 23, 59, 59.999);
                ASSERT_EQ(stLate.GetDayOfMonth(), iD);
                ASSERT_EQ(stLate.GetHour(), 23);
            }
        }
    }
    EXPECT_EQ(iDays, 44195);
    EXPECT_EQ(Hook.Count(), ulExpectedReports);
    EXPECT_GT(ulExpectedReports, 2000u);
}

TEST(GnssTime, CalendarRuleAroundTheCenturyOf2100)
{
    const SMjdTime stFeb(2100, 2, 28, 12, 0, 0.0);
    EXPECT_EQ(stFeb.GetMonth(), 2);
    EXPECT_EQ(stFeb.GetDayOfMonth(), 28);
    const SMjdTime stMar(2100, 3, 1, 12, 0, 0.0);
    EXPECT_EQ(stMar.GetMonth(), 2);
    EXPECT_EQ(stMar.GetDayOfMonth(), 29);
}

TEST(GnssTime, HourTwentyFourAndSeventyFiveSecondsAreNotNormalised)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime st24(2020, 1, 1, 24, 0, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(st24.m_lMjdDay, 58849);
    EXPECT_EQ(st24.m_dMjdFractMilliseconds, 86400000.0);
    const SMjdTime st75(2020, 1, 1, 0, 59, 75.0);
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(st75.m_lMjdDay, 58849);
    EXPECT_EQ(st75.m_dMjdFractMilliseconds, 3615000.0);
    // Seconds carrying the hour past 24 fail.
    const SMjdTime stBad(2020, 1, 1, 24, 0, 60.0 * 60.0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], c_szValidDate6);
    EXPECT_EQ(stBad.m_dMjdFractMilliseconds, 90000000.0); // stored all the same
}

TEST(GnssTime, IsValidDateRules)
{
    EXPECT_TRUE(IsValidDate(2000, 2, 29, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(1900, 2, 28, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2100, 2, 29, 0, 0, 0.0));
    EXPECT_TRUE(IsValidDate(2100, 2, 28, 0, 0, 0.0));
    EXPECT_TRUE(IsValidDate(2024, 2, 29, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2023, 2, 29, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(1979, 12, 31, 0, 0, 0.0));
    EXPECT_TRUE(IsValidDate(1980, 1, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2101, 1, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2020, 0, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2020, 13, 1, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2020, 4, 31, 0, 0, 0.0));
    EXPECT_FALSE(IsValidDate(2020, 1, 1, 25, 0, 0.0));
    EXPECT_TRUE(IsValidDate(2020, 1, 1, 24, 0, 0.0));
    EXPECT_TRUE(IsValidDate(2020, 1, 1, 23, 60, 0.0));   // minute 60 adds one hour: 24
    EXPECT_FALSE(IsValidDate(2020, 1, 1, 24, 60, 0.0));  // 25
    EXPECT_FALSE(IsValidDate(2020, 1, 1, 24, 59, 60.0)); // seconds carry into minute 60, hour 25
    // Day 0, negative days, hours, minutes and seconds are not tested.
    EXPECT_TRUE(IsValidDate(2020, 1, 0, 0, 0, 0.0));
    EXPECT_TRUE(IsValidDate(2020, 1, -5, -3, -70, -100.0));
    // Huge or non-finite seconds never hang.
    EXPECT_FALSE(IsValidDate(2020, 1, 1, 0, 0, 1e300));
    EXPECT_FALSE(IsValidDate(2020, 1, 1, 0, 0, HUGE_VAL));
    EXPECT_TRUE(IsValidDate(2020, 1, 1, 0, 0, std::nan("")));

    EXPECT_TRUE(IsValidDate(2020, 1, 31.0));
    EXPECT_FALSE(IsValidDate(2020, 1, 31.5));
    EXPECT_TRUE(IsValidDate(2024, 2, 29.0));
    EXPECT_FALSE(IsValidDate(2023, 2, 28.5));
    EXPECT_FALSE(IsValidDate(1979, 1, 1.0));
    EXPECT_TRUE(IsValidDate(2020, 6, 0.0));
}

TEST(GnssTime, FractionalDayConstructor)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime st(2000, 1, 1.5);
    EXPECT_EQ(st.m_lMjdDay, 51544);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 43200000.0);
    EXPECT_EQ(Hook.Count(), 0u);
    const SMjdTime stBad(2021, 4, 31.5, MJDACC_SECOND);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], c_szValidDate3);
    EXPECT_EQ(stBad.m_eAccuracy, MJDACC_SECOND);
    EXPECT_EQ(stBad.m_lMjdDay, 59335); // 2021-04-01 is 59305
}

TEST(GnssTime, GpsConstructorAndSetterLimits)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime stOk(5965u, 604799.0);
    EXPECT_EQ(Hook.Count(), 0u);
    EXPECT_EQ(stOk.m_lMjdDay, 5965 * 7 + 44244 + 6);
    EXPECT_EQ(stOk.m_dMjdFractMilliseconds, 86399000.0);
    const SMjdTime stEnd(5965u, 604800.0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], c_szGpsCtor);
    EXPECT_EQ(stEnd.m_lMjdDay, 5965 * 7 + 44244 + 7);
    EXPECT_EQ(stEnd.m_dMjdFractMilliseconds, 0.0);
    SMjdTime st;
    st.SetGpsTime(5965, 604800.0);
    EXPECT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(st.m_lMjdDay, 5965 * 7 + 44244 + 7);
    st.SetGpsTime(5966, 0.0);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(Hook.Texts()[1], c_szGpsSet);
    EXPECT_EQ(st.m_lMjdDay, 5966 * 7 + 44244);
    st.SetGpsTimeMs(100, -1.0);
    ASSERT_EQ(Hook.Count(), 3u);
    EXPECT_EQ(Hook.Texts()[2], c_szGpsSetMs);
    st.SetGpsTimeMs(100, 604800000.0);
    EXPECT_EQ(Hook.Count(), 3u);
    EXPECT_EQ(st.m_lMjdDay, 100 * 7 + 44244 + 7);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    const SMjdTime stAcc(100u, 1.0, MJDACC_MINUTE);
    EXPECT_EQ(stAcc.m_eAccuracy, MJDACC_MINUTE);
}

TEST(GnssTime, GpsWeekRoundTripGrid)
{
    ZelTest::CRecordingHook Hook;
    const unsigned short aunWeeks[] = {0, 1, 511, 1023, 1024, 1356, 2000, 2345, 4095, 5965};
    const double adSeconds[] = {0.0, 0.5, 1.0, 86399.999, 86400.0, 302400.25, 518400.0, 604799.999};
    for (unsigned short unWeek : aunWeeks)
    {
        for (double dSeconds : adSeconds)
        {
            const SMjdTime st(static_cast<unsigned int>(unWeek), dSeconds);
            unsigned short unBack = 0;
            double dBack = -1.0;
            st.GetGpsTime(unBack, dBack);
            EXPECT_EQ(unBack, unWeek);
            EXPECT_NEAR(dBack, dSeconds, 1e-9);
            EXPECT_EQ(st.GetGpsWeek(), unWeek);
            EXPECT_NEAR(st.GetGpsSeconds(), dSeconds, 1e-9);

            SMjdTime stMs;
            stMs.SetGpsTimeMs(unWeek, dSeconds * 1000.0);
            unsigned int uiMs = 0;
            stMs.GetGpsTimeMs(unBack, uiMs);
            EXPECT_EQ(unBack, unWeek);
            EXPECT_EQ(uiMs, static_cast<unsigned int>(std::floor(dSeconds * 1000.0 + 0.5)));
            EXPECT_EQ(stMs.GetGpsMilliseconds(), uiMs);

            // Week 5965 past its first day lies beyond the last valid day.
            if (unWeek >= 1356 && unWeek < 5965 && dSeconds <= 604785.0)
            {
                SMjdTime stBds;
                stBds.SetBdsTime(unWeek - 1356u, dSeconds);
                unsigned int uiBdsWeek = 0;
                double dBdsSeconds = -1.0;
                stBds.GetBdsTime(uiBdsWeek, dBdsSeconds);
                EXPECT_EQ(uiBdsWeek, unWeek - 1356u);
                EXPECT_NEAR(dBdsSeconds, std::floor(dSeconds * 1000.0 + 0.5) / 1000.0, 1e-12);
                // Stored as GPS time, 14 s later.
                EXPECT_NEAR(SMjdTime::DiffAsMilliseconds(stBds, st), 14000.0, 1e-6);
            }
        }
    }
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTime, GpsMillisecondsCarryIntoNextWeek)
{
    SMjdTime st;
    st.SetGpsTimeMs(1000, 604799999.6);
    unsigned short unWeek = 0;
    unsigned int uiMs = 1;
    st.GetGpsTimeMs(unWeek, uiMs);
    EXPECT_EQ(unWeek, 1001);
    EXPECT_EQ(uiMs, 0u);
    EXPECT_EQ(st.GetGpsMilliseconds(), 0u); // no week with it
    EXPECT_EQ(st.GetGpsWeek(), 1000u);
    char szText[32];
    ASSERT_TRUE(st.GetTextGps(szText, sizeof(szText)));
    EXPECT_STREQ(szText, "1001 000000000");
}

TEST(GnssTime, GpsRolloverSettersAndGetters)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetGpsTimeRollover(100, 5.0, true);
    EXPECT_EQ(st.GetGpsWeek(), 1124u);
    st.SetGpsTimeRollover(100, 5.0, false);
    EXPECT_EQ(st.GetGpsWeek(), 100u);
    st.SetGpsTimeMsRollover(200, 86400000.0 * 2 + 7.0, true);
    EXPECT_EQ(st.GetGpsWeek(), 1224u);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 7.0);
    st.SetGpsTime1024(900, 604800.0); // end of the week: carried by the normalisation
    EXPECT_EQ(st.GetGpsWeek(), 1925u);
    EXPECT_EQ(st.GpsDays(), 0u);
    st.SetGpsTimeMs1024(5, 1000.0);
    EXPECT_EQ(st.GetGpsWeek(), 1029u);
    EXPECT_EQ(Hook.Count(), 0u);
    // The added week is 16 bits wide and wraps.
    st.SetGpsTime1024(65000, 0.0);
    EXPECT_EQ(st.GetGpsWeek(), 488u);
    EXPECT_EQ(Hook.Count(), 0u);

    unsigned short unWeek = 0;
    double dSeconds = 0.0;
    unsigned int uiMs = 0;
    SMjdTime stRecent(2300u, 12.3456);
    stRecent.GetGpsTimeRounded(unWeek, dSeconds, true);
    EXPECT_EQ(unWeek, 1276);
    EXPECT_EQ(dSeconds, 12.346);
    stRecent.GetGpsTimeRounded(unWeek, dSeconds, false);
    EXPECT_EQ(unWeek, 2300);
    stRecent.GetGpsTimeRounded1024(unWeek, dSeconds);
    EXPECT_EQ(unWeek, 1276);
    stRecent.GetGpsTimeMs1024(unWeek, uiMs);
    EXPECT_EQ(unWeek, 1276);
    EXPECT_EQ(uiMs, 12346u);
    stRecent.GetGpsTimeMsRollover(unWeek, uiMs, false);
    EXPECT_EQ(unWeek, 2300);
    EXPECT_EQ(stRecent.GetGpsWeekModulo(), 1276);
    EXPECT_EQ(Hook.Count(), 0u);

    const SMjdTime stOld(1000u, 1.0);
    stOld.GetGpsTimeMs1024(unWeek, uiMs);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
    EXPECT_EQ(unWeek, 1000);
    EXPECT_EQ(stOld.GetGpsWeekModulo(), static_cast<unsigned short>(1000 - 1024));
}

TEST(GnssTime, BeforeTheGpsEpochGivesHugeWeeks)
{
    const SMjdTime st = At(44243, 0.0);
    EXPECT_EQ(st.GetGpsWeek(), (0xFFFFFFFFu) / 7u);
    unsigned short unWeek = 0;
    double dSeconds = 0.0;
    st.GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(unWeek, static_cast<unsigned short>(0xFFFFFFFFu / 7u));
    EXPECT_EQ(dSeconds, (0xFFFFFFFFu % 7u) * 86400.0);
}

TEST(GnssTime, GpsDayNumbers)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetGpsTime(1500, 0.0);
    unsigned short unWeek = 0;
    unsigned char ucDn = 0;
    st.GetGpsDay(unWeek, ucDn);
    EXPECT_EQ(unWeek, 1499);
    EXPECT_EQ(ucDn, 7);
    st.SetGpsTime(1500, 3 * 86400.0 + 43200.0); // noon rounds up
    st.GetGpsDay(unWeek, ucDn);
    EXPECT_EQ(unWeek, 1500);
    EXPECT_EQ(ucDn, 4);
    st.SetGpsDay(1500, 1);
    st.GetGpsDay(unWeek, ucDn);
    EXPECT_EQ(unWeek, 1500);
    EXPECT_EQ(ucDn, 1);
    EXPECT_EQ(st.m_lMjdDay, 1500 * 7 + 1 + 44244);
    EXPECT_EQ(Hook.Count(), 0u);
    st.SetGpsDay(1500, 0);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0],
              "unGpsWeek <= c_ulMAX_GPS_WEEK && uiGpsDn >= 1 && uiGpsDn <= c_ulDAYS_PER_WEEK");
    EXPECT_EQ(st.m_lMjdDay, 1500 * 7 + 44244);
    st.SetGpsDay(1500, 8);
    EXPECT_EQ(Hook.Count(), 2u);
    // Week 0, day 0: the check on the week fails and the week wraps.
    const SMjdTime stEpoch = At(44244, 0.0);
    stEpoch.GetGpsDay(unWeek, ucDn);
    ASSERT_EQ(Hook.Count(), 3u);
    EXPECT_EQ(Hook.Texts()[2], "runGpsWeek > 0");
    EXPECT_EQ(unWeek, 65535);
    EXPECT_EQ(ucDn, 7);
}

TEST(GnssTime, BeidouDayZero)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetBdsDay(0, 0);
    unsigned short unWeek = 0;
    unsigned char ucDn = 0;
    st.GetGpsDay(unWeek, ucDn);
    EXPECT_EQ(unWeek, 1356);
    EXPECT_EQ(ucDn, 1);
    EXPECT_EQ(st.m_lMjdDay, 1356 * 7 + 1 + 44244);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 14000.0);
    st.GetBdsDay(unWeek, ucDn);
    EXPECT_EQ(unWeek, 0);
    EXPECT_EQ(ucDn, 0);
    st.SetBdsDay(3, 2);
    st.GetBdsDay(unWeek, ucDn);
    EXPECT_EQ(unWeek, 3);
    EXPECT_EQ(ucDn, 2);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTime, BeidouSettersAndGetters)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetBdsTime(0, 0.0);
    EXPECT_EQ(st.m_lMjdDay, 53736); // 2006-01-01
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 14000.0);
    st.SetBdsTimeMs(10, 1000.0);
    unsigned int uiWeek = 0, uiMs = 0;
    st.GetBdsTimeMs(uiWeek, uiMs);
    EXPECT_EQ(uiWeek, 10u);
    EXPECT_EQ(uiMs, 1000u);
    double dSeconds = 0.0;
    st.GetBdsTime(uiWeek, dSeconds);
    EXPECT_EQ(dSeconds, 1.0);
    // Within the first 14 s of a GPS week, BeiDou time is still in the previous week.
    st.SetGpsTime(1400, 5.0);
    st.GetBdsTimeMs(uiWeek, uiMs);
    EXPECT_EQ(uiWeek, 43u);
    EXPECT_EQ(uiMs, 604791000u);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTime, BeidouBeforeItsEpochReportsAndGoesOn)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetGpsTime(1355, 100.0);
    unsigned int uiWeek = 0, uiMs = 0;
    st.GetBdsTimeMs(uiWeek, uiMs);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
    EXPECT_EQ(uiWeek, 1355u);
    EXPECT_EQ(uiMs, 86000u);
    // BeiDou week 0 within its first 14 s: the week check fails and wraps.
    st.SetGpsTime(1356, 1.0);
    st.GetBdsTimeMs(uiWeek, uiMs);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(Hook.Texts()[1], "uiBdsWeek > 0");
    EXPECT_EQ(uiWeek, 0xFFFFFFFFu);
    EXPECT_EQ(uiMs, 604787000u);
    unsigned short unWeek = 0;
    unsigned char ucDn = 0;
    st.SetBdsDay(0, 0);
    st.SubSeconds(14.0); // GPS week 1356, day 1, midnight
    st.SubDays(1);       // BeiDou week -1 ... day 6 at 23:59:46
    Hook.Clear();
    st.GetBdsDay(unWeek, ucDn);
    EXPECT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(ucDn, 6);
}

TEST(GnssTime, JulianAndMjdForms)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime stJ2000(2000, 1, 1, 12, 0, 0.0);
    EXPECT_EQ(stJ2000.GetJulianDate(), 2451545.0);
    EXPECT_EQ(stJ2000.GetMjd(), 51544.5);
    int32_t lDay = 0;
    double dFract = 0.0;
    stJ2000.GetMjdDayFract(lDay, dFract);
    EXPECT_EQ(lDay, 51544);
    EXPECT_EQ(dFract, 0.5);

    SMjdTime st;
    st.SetJulianDate(2451545.0);
    EXPECT_EQ(st.m_lMjdDay, 51544);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 43200000.0);
    st.SetMjd(51544.25);
    EXPECT_EQ(st.m_lMjdDay, 51544);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 21600000.0);
    st.SetMjdAny(60000.75);
    EXPECT_EQ(st.m_lMjdDay, 60000);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 64800000.0);
    const SMjdTime stCtor(51544.25, MJDACC_EXACT);
    EXPECT_EQ(stCtor.m_lMjdDay, 51544);
    EXPECT_EQ(stCtor.m_eAccuracy, MJDACC_EXACT);
    EXPECT_EQ(Hook.Count(), 0u);

    st.SetMjd(86000.5);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "dMjd < c_ulMAX_MJD_DAY");
    EXPECT_EQ(st.m_lMjdDay, 86000);
    st.SetMjdAny(-0.5);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(
        Hook.Texts()[1],
        "(static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) && dFractDay < 1.0 && dFractDay >= 0.0");
}

TEST(GnssTime, CalendarGetters)
{
    const SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    int iY = 0, iM = 0, iD = 0, iH = 0, iMi = 0;
    double dS = 0.0;
    st.GetDate(iY, iM, iD, iH, iMi, dS);
    EXPECT_EQ(iY, 2024);
    EXPECT_EQ(iM, 2);
    EXPECT_EQ(iD, 29);
    EXPECT_EQ(iH, 12);
    EXPECT_EQ(iMi, 30);
    EXPECT_EQ(dS, 15.25);
    double dDay = 0.0;
    st.GetDate(iY, iM, dDay);
    EXPECT_DOUBLE_EQ(dDay, 29.0 + 45015250.0 / 86400000.0);
    EXPECT_EQ(st.GetYear(), 2024);
    EXPECT_EQ(st.GetMonth(), 2);
    EXPECT_EQ(st.GetDayOfMonth(), 29);
    EXPECT_EQ(st.GetHour(), 12);
    EXPECT_EQ(st.GetMinute(), 30);
    EXPECT_EQ(st.GetSecond(), 15.25);
    EXPECT_EQ(st.GetDayOfYear(), 60);
    EXPECT_EQ(SMjdTime(2023, 12, 31, 23, 0, 0.0).GetDayOfYear(), 365);
    EXPECT_EQ(SMjdTime(2024, 12, 31, 23, 0, 0.0).GetDayOfYear(), 366);
}

TEST(GnssTime, DayOfYearOutsideTheYearsReports)
{
    ZelTest::CRecordingHook Hook;
    // MJD 0 is 1858-11-17; the calendar rule, exact only from 1900-03 to
    // 2100-02, gives the day after.
    const SMjdTime st = At(0, 0.0);
    EXPECT_EQ(st.GetYear(), 1858);
    EXPECT_EQ(st.GetMonth(), 11);
    EXPECT_EQ(st.GetDayOfMonth(), 18);
    EXPECT_EQ(st.GetDayOfYear(), 321);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], c_szValidDate3);
}

TEST(GnssTime, YearDaySetters)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st;
    st.SetYearDayTime(2024, 60, 12, 30, 15.25);
    EXPECT_EQ(st.m_lMjdDay, 60369);
    EXPECT_NEAR(st.m_dMjdFractMilliseconds, 45015250.0, 1e-6);
    st.SetYearDaySeconds(2000, 1, 43200.0);
    EXPECT_EQ(st.m_lMjdDay, 51544);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 43200000.0);
    EXPECT_EQ(Hook.Count(), 0u);
    st.SetYearDaySeconds(2100, 1, 0.0); // beyond the last valid day: reported, stored
    EXPECT_EQ(st.m_lMjdDay, 88069);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(
        Hook.Texts()[0],
        "(static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) && dFractDay < 1.0 && dFractDay >= 0.0");
    st.SetYearDaySeconds(2000, 1, 86400.0);
    ASSERT_EQ(Hook.Count(), 2u);
    EXPECT_EQ(
        Hook.Texts()[1],
        "(static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) && dFractDay < 1.0 && dFractDay >= 0.0");
}

// ---------------------------------------------------------------- C-string forms

TEST(GnssTimeText, CStringForms)
{
    const SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    char szText[64];
    ASSERT_TRUE(st.GetTextEpoch(szText, sizeof(szText)));
    EXPECT_STREQ(szText, " 24 02 29 12 30 15.2500000");
    ASSERT_TRUE(st.GetTextMjd(szText, sizeof(szText)));
    EXPECT_STREQ(szText, "60369 45015250.000");
    ASSERT_TRUE(st.GetTextGps(szText, sizeof(szText)));
    EXPECT_STREQ(szText, "2303 390615250");

    const SMjdTime stEarly(1999, 8, 22, 0, 0, 0.0);
    ASSERT_TRUE(stEarly.GetTextEpoch(szText, sizeof(szText)));
    EXPECT_STREQ(szText, " 99 08 22 00 00  0.0000000");
    ASSERT_TRUE(stEarly.GetTextMjd(szText, sizeof(szText)));
    EXPECT_STREQ(szText, "51412 00000000.000");
    ASSERT_TRUE(stEarly.GetTextGps(szText, sizeof(szText)));
    EXPECT_STREQ(szText, "1024 000000000");
}

TEST(GnssTimeText, CStringBufferRules)
{
    const SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    char szText[32];
    std::memset(szText, 'x', sizeof(szText));
    EXPECT_FALSE(st.GetTextEpoch(szText, 25));
    EXPECT_EQ(szText[0], 'x');
    EXPECT_EQ(szText[24], 'x');
    EXPECT_FALSE(st.GetTextEpoch(nullptr, 30));
    EXPECT_FALSE(st.GetTextEpoch(szText, 0));
    EXPECT_FALSE(st.GetTextMjd(nullptr, 30));
    EXPECT_FALSE(st.GetTextMjd(szText, 0));
    EXPECT_FALSE(st.GetTextGps(nullptr, 30));
    EXPECT_FALSE(st.GetTextGps(szText, 0));
    // The full epoch text takes 26 characters and its terminator; a shorter
    // buffer gets the text cut at its end, and false.
    EXPECT_TRUE(st.GetTextEpoch(szText, 27));
    EXPECT_EQ(std::strlen(szText), 26u);
    EXPECT_FALSE(st.GetTextEpoch(szText, 26));
    EXPECT_STREQ(szText, " 24 02 29 12 30 15.250000");
    EXPECT_FALSE(st.GetTextGps(szText, 5));
    EXPECT_STREQ(szText, "2303");
}

// Each form at exactly its room, and one byte less: cut and false.
TEST(GnssTimeText, CStringRoomOfEachForm)
{
    const SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    char szText[32];

    std::memset(szText, 'x', sizeof(szText));
    EXPECT_TRUE(st.GetTextEpoch(szText, 27));
    EXPECT_STREQ(szText, " 24 02 29 12 30 15.2500000");
    EXPECT_EQ(szText[27], 'x');
    std::memset(szText, 'x', sizeof(szText));
    EXPECT_FALSE(st.GetTextEpoch(szText, 26));
    EXPECT_STREQ(szText, " 24 02 29 12 30 15.250000");
    EXPECT_EQ(szText[26], 'x');

    std::memset(szText, 'x', sizeof(szText));
    EXPECT_TRUE(st.GetTextMjd(szText, 19));
    EXPECT_STREQ(szText, "60369 45015250.000");
    EXPECT_EQ(szText[19], 'x');
    std::memset(szText, 'x', sizeof(szText));
    EXPECT_FALSE(st.GetTextMjd(szText, 18));
    EXPECT_STREQ(szText, "60369 45015250.00");
    EXPECT_EQ(szText[18], 'x');

    std::memset(szText, 'x', sizeof(szText));
    EXPECT_TRUE(st.GetTextGps(szText, 15));
    EXPECT_STREQ(szText, "2303 390615250");
    EXPECT_EQ(szText[15], 'x');
    std::memset(szText, 'x', sizeof(szText));
    EXPECT_FALSE(st.GetTextGps(szText, 14));
    EXPECT_STREQ(szText, "2303 39061525");
    EXPECT_EQ(szText[14], 'x');

    // The widest values of a time within range take the same room.
    SMjdTime stLast;
    stLast.m_lMjdDay = 85999;
    stLast.m_dMjdFractMilliseconds = 86399999.999;
    EXPECT_TRUE(stLast.GetTextMjd(szText, 19));
    EXPECT_STREQ(szText, "85999 86399999.999");
    EXPECT_FALSE(stLast.GetTextMjd(szText, 18));
    EXPECT_TRUE(stLast.GetTextEpoch(szText, 27));
    EXPECT_EQ(std::strlen(szText), 26u);
    EXPECT_FALSE(stLast.GetTextEpoch(szText, 26));

    // Before the GPS epoch the 16-bit week has five digits: one byte more.
    SMjdTime stEarly;
    stEarly.m_lMjdDay = 44243;
    // (2^32 - 1) / 7 = 613566756 rest 3; 613566756 mod 65536 = 18724.
    EXPECT_TRUE(stEarly.GetTextGps(szText, 16));
    EXPECT_STREQ(szText, "18724 259200000");
    EXPECT_FALSE(stEarly.GetTextGps(szText, 15));
    EXPECT_STREQ(szText, "18724 25920000");
}

// ---------------------------------------------------------------- stream forms

TEST(GnssTimeText, StreamFormsExact)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    const char* const aszExpected[] = {"2/2024 29.521", "29.02.2024  12:30:15.25", "60369.5", "2303, 390615",
                                       "2303, 3.90615e+08"};
    for (int iForm = 0; iForm < 5; ++iForm)
    {
        std::ostringstream oss;
        st.WriteText(oss, static_cast<EMjdTimeTextForm>(iForm));
        EXPECT_EQ(oss.str(), aszExpected[iForm]) << iForm;
    }
    std::ostringstream ossPrecise;
    ossPrecise << std::setprecision(17);
    st.WriteText(ossPrecise, MJDTXT_GPS_SECONDS);
    ossPrecise << " | ";
    st.WriteText(ossPrecise, MJDTXT_GPS_MILLISECONDS);
    EXPECT_EQ(ossPrecise.str(), "2303, 390615.25 | 2303, 390615250");
    std::ostringstream ossOp;
    ossOp << st;
    EXPECT_EQ(ossOp.str(), "2303, 390615");
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, DateTimeLeavesTheFillCharacter)
{
    const SMjdTime st(2005, 3, 4, 5, 6, 7.5);
    std::ostringstream oss;
    st.WriteText(oss, MJDTXT_DATETIME);
    oss << "|" << std::setw(4) << 12;
    EXPECT_EQ(oss.str(), "04.03.2005  05:06:7.5|0012");
}

TEST(GnssTimeText, UnknownWriteFormReportsAndWritesMilliseconds)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime st(2303u, 390615.25);
    std::ostringstream oss;
    oss << std::setprecision(12);
    st.WriteText(oss, static_cast<EMjdTimeTextForm>(9));
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
    EXPECT_EQ(oss.str(), "2303, 390615250");
}

TEST(GnssTimeText, ReadBack)
{
    ZelTest::CRecordingHook Hook;
    const SMjdTime st(2024, 2, 29, 12, 30, 15.25);
    for (int iForm = 3; iForm <= 4; ++iForm)
    {
        std::stringstream ss;
        ss << std::setprecision(17);
        st.WriteText(ss, static_cast<EMjdTimeTextForm>(iForm));
        SMjdTime stBack(MJDACC_HOUR);
        stBack.ReadText(ss, static_cast<EMjdTimeTextForm>(iForm));
        EXPECT_FALSE(ss.fail());
        EXPECT_EQ(stBack.m_lMjdDay, 60369);
        EXPECT_EQ(stBack.m_dMjdFractMilliseconds, 45015250.0);
        EXPECT_EQ(stBack.m_eAccuracy, MJDACC_HOUR); // the accuracy is not in the text
    }
    std::istringstream iss("2303, 390615.25");
    SMjdTime stOp;
    iss >> stOp;
    EXPECT_TRUE(stOp == st);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, OutOfRangeTextGivesTheDefault)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st(2024, 2, 29, 12, 30, 15.25, MJDACC_SECOND);
    std::istringstream iss("1234, 700000.0");
    st.ReadText(iss, MJDTXT_GPS_SECONDS);
    EXPECT_EQ(st.m_lMjdDay, 0);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(st.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(Hook.Count(), 0u);

    SMjdTime stWeek(100u, 1.0);
    std::istringstream issWeek("5966, 1.0");
    issWeek >> stWeek;
    EXPECT_EQ(stWeek.m_lMjdDay, 0);
    SMjdTime stMs(100u, 1.0);
    std::istringstream issMs("100, 604800000.5");
    stMs.ReadText(issMs, MJDTXT_GPS_MILLISECONDS);
    EXPECT_EQ(stMs.m_lMjdDay, 0);
    // The end of the week itself is accepted.
    std::istringstream issEnd("100, 604800");
    issEnd >> stMs;
    EXPECT_EQ(stMs.m_lMjdDay, 100 * 7 + 44244 + 7);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, ReaderKnowsOnlyTheGpsForms)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st(100u, 1.0);
    std::istringstream iss("2303, 390615.25");
    st.ReadText(iss, MJDTXT_MJD);
    ASSERT_EQ(Hook.Count(), 1u);
    EXPECT_EQ(Hook.Texts()[0], "false");
    EXPECT_EQ(st.GetGpsWeek(), 100u);
    EXPECT_EQ(iss.tellg(), 0); // nothing read
}

// A failed extraction leaves its temporary at 0, and the range test decides:
// the time never keeps what it had.
TEST(GnssTimeText, CutTextFailsTheStreamAndTakesTheZeros)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime st(100u, 1.0);
    std::istringstream iss("2303,");
    iss >> st;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(st.m_lMjdDay, 2303 * 7 + 44244);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(st.GetGpsWeek(), 2303u);
    EXPECT_EQ(st.GetGpsSeconds(), 0.0);
    // No week at all: week 0 at 0.0 s, which is in range.
    std::istringstream issGarbage("week, seconds");
    issGarbage >> st;
    EXPECT_TRUE(issGarbage.fail());
    EXPECT_EQ(st.m_lMjdDay, 44244);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, BadValueGivesTheWeekAtZero)
{
    ZelTest::CRecordingHook Hook;
    SMjdTime stSeconds(2303u, 390615.25, MJDACC_SECOND);
    std::istringstream iss("1000, abc");
    stSeconds.ReadText(iss, MJDTXT_GPS_SECONDS);
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(stSeconds.m_lMjdDay, 51244); // 1000 * 7 + 44244
    EXPECT_EQ(stSeconds.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stSeconds.GetGpsWeek(), 1000u);
    EXPECT_EQ(stSeconds.GetGpsSeconds(), 0.0);
    EXPECT_EQ(stSeconds.m_eAccuracy, MJDACC_SECOND); // a setter's work: the accuracy stays

    SMjdTime stMs(2303u, 390615.25, MJDACC_SECOND);
    std::istringstream issMs("1000, abc");
    stMs.ReadText(issMs, MJDTXT_GPS_MILLISECONDS);
    EXPECT_TRUE(issMs.fail());
    EXPECT_EQ(stMs.m_lMjdDay, 51244);
    EXPECT_EQ(stMs.m_dMjdFractMilliseconds, 0.0);
    unsigned short unWeek = 0;
    unsigned int uiMs = 99;
    stMs.GetGpsTimeMs(unWeek, uiMs);
    EXPECT_EQ(unWeek, 1000u);
    EXPECT_EQ(uiMs, 0u);
    EXPECT_EQ(stMs.m_eAccuracy, MJDACC_SECOND);

    // operator>> is the seconds form.
    SMjdTime stOp(2303u, 390615.25);
    std::istringstream issOp("1000, abc");
    issOp >> stOp;
    EXPECT_TRUE(issOp.fail());
    EXPECT_EQ(stOp.m_lMjdDay, 51244);
    EXPECT_EQ(stOp.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, CutAfterTheWeek)
{
    ZelTest::CRecordingHook Hook;
    for (int iForm = 3; iForm <= 4; ++iForm)
    {
        SMjdTime st(2303u, 390615.25);
        std::istringstream iss("1000");
        st.ReadText(iss, static_cast<EMjdTimeTextForm>(iForm));
        EXPECT_TRUE(iss.fail()) << iForm;
        EXPECT_EQ(st.m_lMjdDay, 51244) << iForm;
        EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0) << iForm;
    }
    // A comma and no value.
    SMjdTime st(2303u, 390615.25);
    std::istringstream iss("1000 ,");
    iss >> st;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(st.m_lMjdDay, 51244);
    EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, EmptyOrFailedStreamGivesWeekZero)
{
    ZelTest::CRecordingHook Hook;
    for (int iForm = 3; iForm <= 4; ++iForm)
    {
        SMjdTime st(2303u, 390615.25, MJDACC_HOUR);
        std::istringstream iss("");
        st.ReadText(iss, static_cast<EMjdTimeTextForm>(iForm));
        EXPECT_TRUE(iss.fail()) << iForm;
        EXPECT_EQ(st.m_lMjdDay, 44244) << iForm; // GPS week 0, 0 s
        EXPECT_EQ(st.m_dMjdFractMilliseconds, 0.0) << iForm;
        EXPECT_EQ(st.m_eAccuracy, MJDACC_HOUR) << iForm;

        // A stream that failed before: nothing is read, the same result.
        SMjdTime stAfter(2303u, 390615.25);
        std::istringstream issFailed("1000, 5.0");
        issFailed.setstate(std::ios::failbit);
        stAfter.ReadText(issFailed, static_cast<EMjdTimeTextForm>(iForm));
        EXPECT_TRUE(issFailed.fail()) << iForm;
        EXPECT_EQ(issFailed.rdbuf()->in_avail(), 9) << iForm; // nothing consumed
        EXPECT_EQ(stAfter.m_lMjdDay, 44244) << iForm;
        EXPECT_EQ(stAfter.m_dMjdFractMilliseconds, 0.0) << iForm;
    }
    SMjdTime stOp(2303u, 390615.25);
    std::istringstream issOp("   ");
    issOp >> stOp;
    EXPECT_TRUE(issOp.fail());
    EXPECT_EQ(stOp.m_lMjdDay, 44244);
    EXPECT_EQ(stOp.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
}

TEST(GnssTimeText, OverflowFailsTheStreamAndTheRangeTest)
{
    ZelTest::CRecordingHook Hook;
    // A week past 16 bits comes out at the largest value: out of range.
    SMjdTime stWeek(2303u, 390615.25, MJDACC_HOUR);
    std::istringstream issWeek("70000, 5.0");
    issWeek >> stWeek;
    EXPECT_TRUE(issWeek.fail());
    EXPECT_EQ(stWeek.m_lMjdDay, 0);
    EXPECT_EQ(stWeek.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(stWeek.m_eAccuracy, MJDACC_NANOSECOND);
    // A value past the double range likewise.
    SMjdTime stValue(2303u, 390615.25);
    std::istringstream issValue("1000, 1e999");
    issValue >> stValue;
    EXPECT_TRUE(issValue.fail());
    EXPECT_EQ(stValue.m_lMjdDay, 0);
    EXPECT_EQ(stValue.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(Hook.Count(), 0u);
}
