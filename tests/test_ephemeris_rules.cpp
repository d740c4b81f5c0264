// Time and accuracy rules of the ephemeris family: validity spans, fit
// intervals, transmission time, BeiDou week and issue of data, Galileo and
// NavIC full times, accuracy tables.

#include "test_ephemeris_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ZELN;
using EphTest::CReportRecorder;
using EphTest::GpsTime;

namespace
{

// stToe plus a number of seconds, through the time record's own arithmetic.
SMjdTime After(const SMjdTime& stToe, double dSeconds)
{
    SMjdTime st = stToe;
    st.AddMilliseconds(dSeconds * 1000.0);
    return st;
}

const SMjdTime c_stToe = GpsTime(2300, 4 * 86400 + 2 * 3600); // 02:00 on day 4

} // namespace

// ------------------------------------------------------------------ validity span

TEST(EphemerisValidity, StaticFormGpsAndGalileo)
{
    CReportRecorder stRec;
    for (EZelSatSystem eSys : {ZELSATSYSTEM_GPS, ZELSATSYSTEM_GALILEO})
    {
        EXPECT_EQ(ZELEPHVALIDITY_VALID, ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, c_stToe, c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_VALID,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, 10860.0), c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, 10860.001), c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_VALID,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, -10860.0), c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, -10860.001), c_stToe));
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisValidity, StaticFormGlonassIsUnsymmetric)
{
    const EZelSatSystem eSys = ZELSATSYSTEM_GLONASS;
    EXPECT_EQ(ZELEPHVALIDITY_VALID,
              ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, 960.0), c_stToe));
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
              ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, 960.5), c_stToe));
    EXPECT_EQ(ZELEPHVALIDITY_VALID,
              ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, -2760.0), c_stToe));
    EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
              ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, -2760.5), c_stToe));
}

TEST(EphemerisValidity, StaticFormTwoHourSystems)
{
    for (EZelSatSystem eSys : {ZELSATSYSTEM_BEIDOU, ZELSATSYSTEM_QZSS, ZELSATSYSTEM_NAVIC})
    {
        EXPECT_EQ(ZELEPHVALIDITY_VALID,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, 7260.0), c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, 7260.5), c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_VALID,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, -7260.0), c_stToe));
        EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
                  ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, After(c_stToe, -7260.5), c_stToe));
    }
}

TEST(EphemerisValidity, StaticFormWithoutSpan)
{
    CReportRecorder stRec;
    for (EZelSatSystem eSys : {ZELSATSYSTEM_SBAS, ZELSATSYSTEM_NONE, ZELSATSYSTEM_LOCATA})
    {
        stRec.Clear();
        EXPECT_EQ(ZELEPHVALIDITY_NO_SPAN, ZELX_SAT_EPHEMERIS_BASE::checkValidity(eSys, c_stToe, c_stToe));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("false", stRec.Text());
    }
    EXPECT_EQ(5, ZELEPHVALIDITY_NO_SPAN);
    EXPECT_EQ(0, ZELEPHVALIDITY_VALID);
    EXPECT_EQ(1, ZELEPHVALIDITY_EXPIRED);
    EXPECT_EQ(2, ZELEPHVALIDITY_NOT_YET_VALID);
}

TEST(EphemerisValidity, ClassFormsWithMargin)
{
    // Margin 0: the bare span.
    EXPECT_EQ(ZELEPHVALIDITY_VALID, ZELX_SAT_EPHEMERIS::checkValidity(After(c_stToe, 10800.0), c_stToe, 0));
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED, ZELX_SAT_EPHEMERIS::checkValidity(After(c_stToe, 10800.5), c_stToe, 0));
    EXPECT_EQ(ZELEPHVALIDITY_VALID,
              ZELX_SAT_EPHEMERIS_GALILEO::checkValidity(After(c_stToe, -10800.0), c_stToe, 0));
    EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
              ZELX_SAT_EPHEMERIS_GALILEO::checkValidity(After(c_stToe, -10800.5), c_stToe, 0));
    // GLONASS, margin 100: 1000 forward, 2800 back.
    EXPECT_EQ(ZELEPHVALIDITY_VALID,
              ZELX_SAT_EPHEMERIS_GLONASS::checkValidity(After(c_stToe, 1000.0), c_stToe, 100));
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
              ZELX_SAT_EPHEMERIS_GLONASS::checkValidity(After(c_stToe, 1000.5), c_stToe, 100));
    EXPECT_EQ(ZELEPHVALIDITY_VALID,
              ZELX_SAT_EPHEMERIS_GLONASS::checkValidity(After(c_stToe, -2800.0), c_stToe, 100));
    EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
              ZELX_SAT_EPHEMERIS_GLONASS::checkValidity(After(c_stToe, -2800.5), c_stToe, 100));
    // Two-hour systems, margin 30.
    EXPECT_EQ(ZELEPHVALIDITY_VALID,
              ZELX_SAT_EPHEMERIS_BEIDOU::checkValidity(After(c_stToe, 7230.0), c_stToe, 30));
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
              ZELX_SAT_EPHEMERIS_QZSS::checkValidity(After(c_stToe, 7230.5), c_stToe, 30));
    EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
              ZELX_SAT_EPHEMERIS_NAVIC::checkValidity(After(c_stToe, -7230.5), c_stToe, 30));
    // A huge margin wraps in 32 bits: the limits become 10799 and -10799.
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
              ZELX_SAT_EPHEMERIS::checkValidity(After(c_stToe, 10799.5), c_stToe, 0xFFFFFFFFu));
    EXPECT_EQ(ZELEPHVALIDITY_NOT_YET_VALID,
              ZELX_SAT_EPHEMERIS::checkValidity(After(c_stToe, -10799.5), c_stToe, 0xFFFFFFFFu));
}

TEST(EphemerisValidity, AccuracyFieldsTakeNoPart)
{
    SMjdTime stTime = After(c_stToe, 10860.001);
    stTime.SetAccuracy(MJDACC_HOUR);
    SMjdTime stToe = c_stToe;
    stToe.SetAccuracy(MJDACC_HOUR);
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED,
              ZELX_SAT_EPHEMERIS_BASE::checkValidity(ZELSATSYSTEM_GPS, stTime, stToe));
    // Across midnight and across a week.
    EXPECT_EQ(ZELEPHVALIDITY_VALID, ZELX_SAT_EPHEMERIS_BASE::checkValidity(
                                        ZELSATSYSTEM_GPS, GpsTime(2301, 60.0), GpsTime(2300, 604000.0)));
    EXPECT_EQ(ZELEPHVALIDITY_EXPIRED, ZELX_SAT_EPHEMERIS_BASE::checkValidity(
                                          ZELSATSYSTEM_GPS, GpsTime(2301, 10800.0), GpsTime(2300, 604000.0)));
}

// ------------------------------------------------------------------ fit intervals

TEST(EphemerisFitInterval, GpsByFlagAndIssue)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS st;
    st.ucFitIntervalFlag = 0;
    st.unIodc = 504;
    EXPECT_EQ(4, st.getFitIntervalHours());
    st.ucFitIntervalFlag = 1;
    const struct
    {
        uint16_t unIodc;
        uint8_t ucHours;
    } astRows[] = {{0, 6},    {239, 6},   {240, 8},   {247, 8},   {248, 14}, {255, 14}, {256, 6},
                   {495, 6},  {496, 14},  {497, 26},  {503, 26},  {512, 6},  {751, 6},  {758, 6},
                   {1020, 6}, {1021, 26}, {1022, 26}, {1023, 26}, {1024, 6}, {65535, 6}};
    for (const auto& rRow : astRows)
    {
        st.unIodc = rRow.unIodc;
        EXPECT_EQ(rRow.ucHours, st.getFitIntervalHours()) << rRow.unIodc;
    }
    EXPECT_EQ(0u, stRec.Count());
    // Reserved values: reported, still 6.
    for (uint16_t unIodc : {504, 507, 511, 752, 755, 757})
    {
        stRec.Clear();
        st.unIodc = unIodc;
        EXPECT_EQ(6, st.getFitIntervalHours()) << unIodc;
        ASSERT_EQ(1u, stRec.Count()) << unIodc;
        EXPECT_EQ("!((unIodc >= 504 && unIodc <= 511) || (unIodc >= 752 && unIodc <= 757) )", stRec.Text());
    }
    stRec.Clear();
    for (uint8_t ucFlag : {2, 0x7F, 0xFF})
    {
        st.ucFitIntervalFlag = ucFlag;
        st.unIodc = 504;
        EXPECT_EQ(0, st.getFitIntervalHours()) << int(ucFlag);
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisFitInterval, QzssByFlagOnly)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_QZSS stQzs;
    const ZELX_SAT_EPHEMERIS& rAsGps = stQzs; // the virtual slot reaches the QZSS rule
    stQzs.unIodc = 504;
    EXPECT_EQ(0xFF, stQzs.ucFitIntervalFlag);
    EXPECT_EQ(0, rAsGps.getFitIntervalHours());
    stQzs.ucFitIntervalFlag = 0;
    EXPECT_EQ(2, rAsGps.getFitIntervalHours());
    stQzs.ucFitIntervalFlag = 1;
    EXPECT_EQ(4, rAsGps.getFitIntervalHours());
    stQzs.unIodc = 240;
    EXPECT_EQ(4, rAsGps.getFitIntervalHours());
    stQzs.ucFitIntervalFlag = 2;
    EXPECT_EQ(0, rAsGps.getFitIntervalHours());
    EXPECT_EQ(0u, stRec.Count());
    // A default GPS record gives 0 as well.
    EXPECT_EQ(0, ZELX_SAT_EPHEMERIS().getFitIntervalHours());
}

TEST(EphemerisFitInterval, NavicCurveFit)
{
    ZELX_SAT_EPHEMERIS_NAVIC st;
    const struct
    {
        uint8_t ucIodec;
        uint32_t ulSeconds;
    } astRows[] = {{0, 7200},  {23, 7200},  {24, 14400}, {75, 14400},
                   {76, 7200}, {159, 7200}, {160, 1800}, {255, 1800}};
    for (const auto& rRow : astRows)
    {
        st.ucIodec = rRow.ucIodec;
        EXPECT_EQ(rRow.ulSeconds, st.getCurveFitSeconds()) << int(rRow.ucIodec);
    }
}

// ------------------------------------------------------------------ transmission time

TEST(EphemerisTransmissionTime, EstimatedWhenUnknown)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS st;
    ASSERT_EQ(0xFFFFFFFFu, st.ulTransmissionTime);
    const struct
    {
        uint32_t ulToe;
        int32_t lExpected;
    } astRows[] = {{7260, 0},  {7275, 30},       {7274, 0},        {7245, -30},   {7246, 0},
                   {0, -7260}, {345600, 338340}, {345615, 338370}, {14400, 7140}, {0xFFFFFFFFu, -7260}};
    for (const auto& rRow : astRows)
    {
        st.ulToe = rRow.ulToe;
        EXPECT_EQ(rRow.lExpected, st.getTransmissionTimeOfWeek()) << rRow.ulToe;
    }
    EXPECT_EQ(0xFFFFFFFFu, st.getTransmissionTime());
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisTransmissionTime, WeekOfTheTimeOfEphemeris)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS st;
    st.ulTransmissionTime = 604000;
    st.ulToe = 1000;
    EXPECT_EQ(-800, st.getTransmissionTimeOfWeek());
    EXPECT_EQ(604000u, st.getTransmissionTime());
    st.ulTransmissionTime = 345000;
    st.ulToe = 345600;
    EXPECT_EQ(345000, st.getTransmissionTimeOfWeek());
    // d of exactly 302400 stays; one more goes to the week before.
    st.ulToe = 0;
    st.ulTransmissionTime = 302400;
    EXPECT_EQ(302400, st.getTransmissionTimeOfWeek());
    st.ulTransmissionTime = 302401;
    EXPECT_EQ(302401 - 604800, st.getTransmissionTimeOfWeek());
    // d of exactly -302400 stays.
    st.ulToe = 302400;
    st.ulTransmissionTime = 0;
    EXPECT_EQ(0, st.getTransmissionTimeOfWeek());
    EXPECT_EQ(0u, stRec.Count());
}

// The only test of this process that reaches the once-only latch.
TEST(EphemerisTransmissionTime, FutureTimeOfEphemerisReportedOnce)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS st;
    st.ulTransmissionTime = 1000;
    st.ulToe = 604000;
    EXPECT_EQ(605800, st.getTransmissionTimeOfWeek());
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ(
        "(!\"Validity time of ephemeris is too far away in the future w.r.t. ephemeris transmission time. "
        "Please check the data\")",
        stRec.Text());
    // Later calls are silent, with the same result.
    EXPECT_EQ(605800, st.getTransmissionTimeOfWeek());
    st.ulToe = 302401;
    st.ulTransmissionTime = 0;
    EXPECT_EQ(604800, st.getTransmissionTimeOfWeek());
    ZELX_SAT_EPHEMERIS stOther;
    stOther.ulTransmissionTime = 5;
    stOther.ulToe = 600000;
    EXPECT_EQ(604805, stOther.getTransmissionTimeOfWeek());
    EXPECT_EQ(1u, stRec.Count());
}

// ------------------------------------------------------------------ BeiDou week and issue of data

TEST(EphemerisBeiDouTime, WeekAndSeconds)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    st.unGPSWeek = 2300;
    EXPECT_EQ(944, st.getBdsWeek());
    st.unGPSWeek = 1356;
    EXPECT_EQ(0, st.getBdsWeek());
    EXPECT_EQ(0u, stRec.Count());
    st.unGPSWeek = 1355;
    EXPECT_EQ(65535, st.getBdsWeek());
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("unGPSWeek >= c_ulGPS_WEEKS_AT_BDS_REFTIME", stRec.Text());
    st.ulTowMs = 14000;
    EXPECT_EQ(0.0, st.getBdsSeconds());
    st.ulTowMs = 100000;
    EXPECT_EQ(86.0, st.getBdsSeconds());
    st.ulTowMs = 0;
    EXPECT_EQ(-14.0, st.getBdsSeconds());
}

TEST(EphemerisBeiDouTime, DerivedIssueOfData)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    const struct
    {
        double dBdsSeconds;
        uint32_t ulIod;
    } astRows[] = {{0.0, 0},      {719.0, 0},    {720.0, 1},    {1440.0, 2},    {172080.0, 239},
                   {172800.0, 0}, {173520.0, 1}, {345600.0, 0}, {604799.0, 119}};
    for (const auto& rRow : astRows)
    {
        st.stToc.SetBdsTime(944, rRow.dBdsSeconds);
        EXPECT_EQ(rRow.ulIod, st.getIod()) << rRow.dBdsSeconds;
    }
    EXPECT_EQ(0u, stRec.Count());
    // 240 steps of 12 minutes after second 720 the count is back at 1.
    st.stToc.SetBdsTime(944, 720.0 + 240 * 720.0);
    EXPECT_EQ(1u, st.getIod());
    // Through the interface slot as well.
    const ZELX_SAT_EPHEMERIS_BASE& rBase = st;
    EXPECT_EQ(1u, rBase.getIod());
}

TEST(EphemerisBeiDouTime, IssueOfDataReportsTheTimeCheck)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    // GPS week 1356, second 5: before the start of BeiDou week 0.
    st.stToc = GpsTime(1356, 5.0);
    EXPECT_EQ((604791000u / 720000u) % 240u, st.getIod());
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiBdsWeek > 0", stRec.Text());
}

// ------------------------------------------------------------------ Galileo times

TEST(EphemerisGalileoTime, NearestInstanceOfTheSecondsOfWeek)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GALILEO st;
    st.uiEphSource = 1;
    st.ulToe = 10;
    st.ulToc = 604790;
    // Reference 10 s before the end of week 2300.
    st.setRefTimeApprox(GpsTime(2300, 604790.0));
    SMjdTime stToe = st.getToe();
    unsigned short unWeek = 0;
    double dSeconds = 0.0;
    stToe.GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2301, unWeek);
    EXPECT_EQ(10.0, dSeconds);
    EXPECT_EQ(MJDACC_NANOSECOND, stToe.m_eAccuracy);
    const SMjdTime stToc = st.getToc();
    stToc.GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2300, unWeek);
    EXPECT_EQ(604790.0, dSeconds);
    // Reference 10 s into week 2301: the seconds near the end go to week 2300.
    st.setRefTimeApprox(GpsTime(2301, 10.0));
    st.getToc().GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2300, unWeek);
    EXPECT_EQ(604790.0, dSeconds);
    st.getToe().GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2301, unWeek);
    EXPECT_EQ(10.0, dSeconds);
    // Mid-week: the same week.
    st.ulToe = 302400 + 3600;
    st.setRefTimeApprox(GpsTime(2301, 302400.0));
    st.getToe().GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2301, unWeek);
    EXPECT_EQ(306000.0, dSeconds);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGalileoTime, UnsetReferenceTime)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GALILEO st;
    st.ulToe = 3600;
    // No set held: the default time, silently.
    EXPECT_FALSE(st.getToe().IsSet());
    EXPECT_FALSE(st.getToc().IsSet());
    EXPECT_EQ(0u, stRec.Count());
    // A set without its reference time: reported, default time all the same.
    st.uiEphSource = 2;
    EXPECT_FALSE(st.getToe().IsSet());
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiEphSource == POS_SAT_EPH_GAL_SRC_INVALID", stRec.Text());
    EXPECT_FALSE(st.getToc().IsSet());
    EXPECT_EQ(2u, stRec.Count());
}

TEST(EphemerisGalileoTime, SetRefTimeApproxSetsNanosecondAccuracy)
{
    ZELX_SAT_EPHEMERIS_GALILEO st;
    SMjdTime stRef = GpsTime(2300, 1000.0);
    stRef.SetAccuracy(MJDACC_MINUTE);
    st.setRefTimeApprox(stRef);
    EXPECT_EQ(MJDACC_NANOSECOND, st.stRefTimeApprox.m_eAccuracy);
    EXPECT_EQ(stRef.m_lMjdDay, st.stRefTimeApprox.m_lMjdDay);
    EXPECT_EQ(stRef.m_dMjdFractMilliseconds, st.stRefTimeApprox.m_dMjdFractMilliseconds);
}

TEST(EphemerisGalileoTime, PT1Time)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GALILEO st;
    EXPECT_EQ(0xFFFFFFu, st.ulPT1Tow);
    EXPECT_FALSE(st.getPT1Time().IsSet());
    st.setRefTimeApprox(GpsTime(2300, 345000.0));
    st.setPT1Time(1276, 345600);
    EXPECT_EQ(1276, st.unPT1Week);
    EXPECT_EQ(345600u, st.ulPT1Tow);
    unsigned short unWeek = 0;
    double dSeconds = 0.0;
    st.getPT1Time().GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2300, unWeek);
    EXPECT_EQ(345600.0, dSeconds);
    EXPECT_EQ(0u, stRec.Count());
    // A 12-bit broadcast week after a rollover: one 4096-week step.
    st.setRefTimeApprox(GpsTime(5200, 1000.0));
    st.setPT1Time(80, 1200);
    st.getPT1Time().GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(5200, unWeek);
    EXPECT_EQ(1200.0, dSeconds);
    EXPECT_EQ(0u, stRec.Count());
    // A time more than a day away from the reference: reported, and it stands.
    st.setRefTimeApprox(GpsTime(2300, 345000.0));
    st.setPT1Time(1276, 345000 + 2 * 86400);
    const SMjdTime stFar = st.getPT1Time();
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("std::fabs( DiffAsDays( stRefTimeApprox, stPT1Time ) ) < 1.0", stRec.Text());
    stFar.GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2300, unWeek);
    EXPECT_EQ(345000.0 + 2 * 86400, dSeconds);
}

TEST(EphemerisNavicTime, PT1TimeWithoutRollover)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_NAVIC st;
    EXPECT_EQ(0u, st.ulPT1Tow);
    st.setPT1Time(1276, 1000);
    unsigned short unWeek = 0;
    double dSeconds = 0.0;
    st.getPT1Time().GetGpsTime(unWeek, dSeconds);
    EXPECT_EQ(2300, unWeek);
    EXPECT_EQ(1000.0, dSeconds);
    st.setPT1Time(10, 0xFFFFFF);
    EXPECT_FALSE(st.getPT1Time().IsSet());
    EXPECT_EQ(0u, stRec.Count());
}

// ------------------------------------------------------------------ accuracy

TEST(EphemerisAccuracy, GpsUraTable)
{
    const float afMetres[16] = {2.0f,  2.8f,   4.0f,   5.7f,   8.0f,    11.3f,   16.0f,   32.0f,
                                64.0f, 128.0f, 256.0f, 512.0f, 1024.0f, 2048.0f, 4096.0f, 32767.0f};
    ZELX_SAT_EPHEMERIS st;
    for (uint16_t i = 0; i < 16; ++i)
    {
        st.unUraIndex = i;
        EXPECT_EQ(afMetres[i], st.getUra()) << i;
        // Round trip on the table.
        st.setUra(afMetres[i]);
        EXPECT_EQ(i, st.unUraIndex) << i;
    }
    for (uint16_t i : {16, 100, 65535})
    {
        st.unUraIndex = i;
        EXPECT_EQ(32767.0f, st.getUra()) << i;
    }
}

TEST(EphemerisAccuracy, GpsSetUraLimits)
{
    const struct
    {
        float fMetres;
        uint16_t unIndex;
    } astRows[] = {{-1.0f, 0},    {0.0f, 0},     {2.4f, 0},     {2.41f, 1},   {3.4f, 1},    {3.41f, 2},
                   {4.85f, 2},    {6.85f, 3},    {9.65f, 4},    {13.65f, 5},  {13.66f, 6},  {24.0f, 6},
                   {48.0f, 7},    {96.0f, 8},    {192.0f, 9},   {384.0f, 10}, {768.0f, 11}, {1536.0f, 12},
                   {3072.0f, 13}, {6144.0f, 14}, {6144.5f, 15}, {1e30f, 15}};
    ZELX_SAT_EPHEMERIS st;
    for (const auto& rRow : astRows)
    {
        st.setUra(rRow.fMetres);
        EXPECT_EQ(rRow.unIndex, st.unUraIndex) << rRow.fMetres;
    }
    st.setUra(std::nanf(""));
    EXPECT_EQ(15, st.unUraIndex);
}

TEST(EphemerisAccuracy, BeiDouAndNavicIndexToMetres)
{
    const float afMetres[16] = {2.0f,  2.8f,   4.0f,   5.7f,   8.0f,    11.3f,   16.0f,   32.0f,
                                64.0f, 128.0f, 256.0f, 512.0f, 1024.0f, 2048.0f, 4096.0f, 9999.9f};
    ZELX_SAT_EPHEMERIS_BEIDOU stBds;
    ZELX_SAT_EPHEMERIS_NAVIC stIrn;
    for (uint8_t i = 0; i < 16; ++i)
    {
        stBds.setUraIndex(i);
        stIrn.setUraIndex(i);
        EXPECT_EQ(afMetres[i], stBds.fUra) << int(i);
        EXPECT_EQ(afMetres[i], stIrn.fUra) << int(i);
        EXPECT_EQ(i, stBds.getUraIndex()) << int(i);
        EXPECT_EQ(i, stIrn.getUraIndex()) << int(i);
    }
    stBds.setUraIndex(200);
    EXPECT_EQ(9999.9f, stBds.fUra);
    EXPECT_EQ(15, stBds.getUraIndex());
}

TEST(EphemerisAccuracy, BeiDouMetresToIndexLimits)
{
    const struct
    {
        float fMetres;
        uint8_t ucIndex;
    } astRows[] = {{0.0f, 0},     {2.4f, 0},     {2.41f, 1},    {3.4f, 1},    {3.41f, 2},   {4.86f, 3},
                   {6.86f, 4},    {9.66f, 5},    {13.65f, 5},   {13.66f, 6},  {24.0f, 6},   {24.01f, 7},
                   {48.5f, 8},    {96.5f, 9},    {192.5f, 10},  {384.5f, 11}, {768.5f, 12}, {1536.5f, 13},
                   {3072.5f, 14}, {6144.0f, 14}, {6144.5f, 15}, {-5.0f, 0}};
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    for (const auto& rRow : astRows)
    {
        st.fUra = rRow.fMetres;
        EXPECT_EQ(rRow.ucIndex, st.getUraIndex()) << rRow.fMetres;
    }
}

TEST(EphemerisAccuracy, GalileoSisaTable)
{
    ZELX_SAT_EPHEMERIS_GALILEO st;
    const struct
    {
        uint8_t ucIndex;
        double dMetres;
    } astRows[] = {{0, 0.0},    {1, 0.01},  {49, 0.49},  {50, 0.5},   {51, 0.52},
                   {74, 0.98},  {75, 1.0},  {76, 1.04},  {99, 1.96},  {100, 2.0},
                   {101, 2.16}, {125, 6.0}, {126, -1.0}, {200, -1.0}, {255, -1.0}};
    for (const auto& rRow : astRows)
    {
        st.ucSisaIndex = rRow.ucIndex;
        EXPECT_DOUBLE_EQ(rRow.dMetres, st.getSisa()) << int(rRow.ucIndex);
    }
}

TEST(EphemerisAccuracy, GalileoSetSisa)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GALILEO st;
    const struct
    {
        double dMetres;
        uint8_t ucIndex;
    } astRows[] = {{-0.1, 0xFF}, {0.0, 0},   {0.004, 0}, {0.005, 1},  {0.49, 49},
                   {0.5, 50},    {0.97, 74}, {0.99, 75}, {1.0, 75},   {1.95, 99},
                   {1.99, 100},  {2.0, 100}, {5.9, 124}, {5.99, 125}, {6.0, 125}};
    for (const auto& rRow : astRows)
    {
        EXPECT_TRUE(st.setSisa(rRow.dMetres)) << rRow.dMetres;
        EXPECT_EQ(rRow.ucIndex, st.ucSisaIndex) << rRow.dMetres;
    }
    EXPECT_EQ(0u, stRec.Count());
    // Round trips on the grid of each range.
    for (int i = 0; i <= 125; ++i)
    {
        st.ucSisaIndex = static_cast<uint8_t>(i);
        const double dMetres = st.getSisa();
        st.ucSisaIndex = 0xEE;
        EXPECT_TRUE(st.setSisa(dMetres));
        EXPECT_EQ(i, st.ucSisaIndex) << dMetres;
    }
    EXPECT_EQ(0u, stRec.Count());
    // Above 6 m: reported, no index, false.
    st.ucSisaIndex = 3;
    EXPECT_FALSE(st.setSisa(6.01));
    EXPECT_EQ(0xFF, st.ucSisaIndex);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("false", stRec.Text());
    EXPECT_FALSE(st.setSisa(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(2u, stRec.Count());
}
