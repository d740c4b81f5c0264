// The time library's leap seconds: the built-in table, the queries with and
// without a time object for every leap second since 1980 and for BeiDou
// time, the replacement of the table, the records' use of it
// (loadFromTimeLibrary, getLeapSecondInfo), and the built-in table against
// the system's IERS list where one is installed.

#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>
#include <ZelTypes/Platform/OmtTime.h>

#include "ZelTestKit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <limits>
#include <map>
#include <new>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using TYR::TIM::COmtTime;
using TYR::TIM::LeapSecondEvents;
using TYR::TIM::SLeapSecondEvent;
using TYR::TIM::utcLeapSecond;
using ZelTest::CRecordingHook;

namespace
{

typedef std::vector<std::string> Texts;

// Every leap second since the GPS epoch, from the published dates: the
// first day of the new count, GPS time minus UTC from then on, and the GPS
// week and day (1 Sunday to 7 Saturday) of the last day before it.
struct SLeapRow
{
    int iYear;
    int iMonth;
    int iCount;
    int iWeek;
    int iDay;
};

const SLeapRow c_astLEAPS[] = {
    {1981, 7, 1, 77, 3},    {1982, 7, 2, 129, 4},   {1983, 7, 3, 181, 5},   {1985, 7, 4, 286, 1},
    {1988, 1, 5, 416, 5},   {1990, 1, 6, 521, 1},   {1991, 1, 7, 573, 2},   {1992, 7, 8, 651, 3},
    {1993, 7, 9, 703, 4},   {1994, 7, 10, 755, 5},  {1996, 1, 11, 834, 1},  {1997, 7, 12, 912, 2},
    {1999, 1, 13, 990, 5},  {2006, 1, 14, 1355, 7}, {2009, 1, 15, 1512, 4}, {2012, 7, 16, 1694, 7},
    {2015, 7, 17, 1851, 3}, {2017, 1, 18, 1929, 7},
};
const size_t c_ulNB_LEAPS = sizeof(c_astLEAPS) / sizeof(c_astLEAPS[0]);

int32_t MjdOf(int iYear, int iMonth, int iDay)
{
    return SMjdTime(iYear, iMonth, iDay, 0, 0, 0.0).GetMjdDay();
}

int32_t MjdOf(const SLeapRow& rRow)
{
    return MjdOf(rRow.iYear, rRow.iMonth, 1);
}

LeapSecondEvents FirstEvents(size_t ulCount)
{
    LeapSecondEvents vec;
    for (size_t ulIdx = 0; ulIdx < ulCount; ++ulIdx)
    {
        vec.push_back(SLeapSecondEvent(MjdOf(c_astLEAPS[ulIdx]), c_astLEAPS[ulIdx].iCount));
    }
    return vec;
}

// The record a query gives at a UTC instant from a time object.
TYR::TIM::EResultCode QueryAt(double dUtcMjd, utcLeapSecond& rstInfo)
{
    const COmtTime stTime(dUtcMjd);
    return stTime.GetLeapSecond(rstInfo);
}

void ExpectRecord(const utcLeapSecond& rstInfo, int iCurrent, int iEventCount, int iWeek, int iDay)
{
    EXPECT_EQ(iCurrent, rstInfo.m_CurrentLeapSecond);
    EXPECT_EQ(iEventCount, rstInfo.m_FutureOrPastLeapSecond);
    EXPECT_EQ(iWeek, rstInfo.m_EventGpsWeek);
    EXPECT_EQ(iDay, rstInfo.m_EventGpsDay);
    EXPECT_EQ(1, rstInfo.m_EventValid);
}

// Every test leaves the built-in table in force.
class LeapSeconds : public ::testing::Test
{
protected:
    void TearDown() override
    {
        ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(TYR::TIM::GetEmbeddedLeapSecondEvents()));
    }
};

} // namespace

// ------------------------------------------------------------------ the library's interface

TEST_F(LeapSeconds, InterfaceConstants)
{
    EXPECT_EQ(0, TYR::TIM::RC_OK);
    EXPECT_EQ(0, TYR::TIM::TIMESYSTEM_GPS);
    EXPECT_EQ(8, TYR::TIM::TIMESYSTEM_BEIDOU);
    EXPECT_EQ(12u, sizeof(utcLeapSecond));
    EXPECT_EQ(48u, COmtTime::c_ulSTORAGE_SIZE);
    EXPECT_LE(sizeof(COmtTime), 48u);
    const utcLeapSecond stDefault;
    EXPECT_EQ(0, stDefault.m_TimeSystem);
    EXPECT_EQ(0, stDefault.m_CurrentLeapSecond + stDefault.m_FutureOrPastLeapSecond +
                     stDefault.m_EventGpsWeek + stDefault.m_EventGpsDay + stDefault.m_EventValid);
}

TEST_F(LeapSeconds, EmbeddedTableRowByRow)
{
    const LeapSecondEvents& rvecEvents = TYR::TIM::GetEmbeddedLeapSecondEvents();
    ASSERT_EQ(c_ulNB_LEAPS, rvecEvents.size());
    for (size_t ulIdx = 0; ulIdx < c_ulNB_LEAPS; ++ulIdx)
    {
        EXPECT_EQ(MjdOf(c_astLEAPS[ulIdx]), rvecEvents[ulIdx].lUtcMjdDay) << c_astLEAPS[ulIdx].iYear;
        EXPECT_EQ(c_astLEAPS[ulIdx].iCount, rvecEvents[ulIdx].lGpsMinusUtc) << c_astLEAPS[ulIdx].iYear;
    }
    EXPECT_EQ(57754, rvecEvents.back().lUtcMjdDay); // 2017-01-01
    EXPECT_EQ(18, rvecEvents.back().lGpsMinusUtc);
    EXPECT_EQ(rvecEvents, TYR::TIM::GetLeapSecondEvents()) << "the built-in table is in force at start";
}

TEST_F(LeapSeconds, WeekAndDayOfTheTestTableAreThoseOfTheDates)
{
    for (const SLeapRow& rRow : c_astLEAPS)
    {
        // The end of the given GPS day is the midnight of the event.
        SMjdTime stEnd;
        stEnd.SetGpsDay(static_cast<unsigned short>(rRow.iWeek), static_cast<unsigned int>(rRow.iDay));
        EXPECT_EQ(MjdOf(rRow), stEnd.GetMjdDay()) << rRow.iYear;
        // GPS week 0 began on Sunday 1980-01-06; a day's weekday follows from that.
        const int32_t lLastDay = MjdOf(rRow) - 1;
        EXPECT_EQ((lLastDay - MjdOf(1980, 1, 6)) % 7 + 1, rRow.iDay) << rRow.iYear;
    }
}

// ------------------------------------------------------------------ queries with an object

TEST_F(LeapSeconds, EveryLeapSecondSince1980WithAnObject)
{
    for (size_t ulIdx = 0; ulIdx < c_ulNB_LEAPS; ++ulIdx)
    {
        const SLeapRow& rRow = c_astLEAPS[ulIdx];
        SCOPED_TRACE(rRow.iYear * 100 + rRow.iMonth);
        const double dMidnight = static_cast<double>(MjdOf(rRow));
        const int iBefore = ulIdx == 0 ? 0 : c_astLEAPS[ulIdx - 1].iCount;
        // One second before the midnight: the old count, this event ahead.
        utcLeapSecond stInfo;
        ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(dMidnight - 1.0 / 86400.0, stInfo));
        ExpectRecord(stInfo, iBefore, rRow.iCount, rRow.iWeek, rRow.iDay);
        // At the midnight: the new count, and the next event ahead, or this
        // one behind when it is the last.
        stInfo = utcLeapSecond();
        ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(dMidnight, stInfo));
        const SLeapRow& rEvent = ulIdx + 1 < c_ulNB_LEAPS ? c_astLEAPS[ulIdx + 1] : rRow;
        ExpectRecord(stInfo, rRow.iCount, rEvent.iCount, rEvent.iWeek, rEvent.iDay);
        EXPECT_EQ(0, stInfo.m_TimeSystem);
    }
}

TEST_F(LeapSeconds, BeforeTheFirstAndLongAfterTheLast)
{
    utcLeapSecond stInfo;
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(44244.0, stInfo)); // the GPS epoch
    ExpectRecord(stInfo, 0, 1, 77, 3);
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(std::numeric_limits<double>::quiet_NaN(), stInfo));
    ExpectRecord(stInfo, 0, 1, 77, 3);
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(80000.0, stInfo)); // 2077
    ExpectRecord(stInfo, 18, 18, 1929, 7);
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(std::numeric_limits<double>::infinity(), stInfo));
    ExpectRecord(stInfo, 18, 18, 1929, 7);
}

TEST_F(LeapSeconds, TheHostClockGivesToday)
{
    // Today lies after 2017 and, for as long as the built-in table stands,
    // after its last event.
    const COmtTime stNow;
    EXPECT_GT(stNow.GetUtcMjd(), 60000.0); // 2023-02-25
    utcLeapSecond stInfo;
    ASSERT_EQ(TYR::TIM::RC_OK, stNow.GetLeapSecond(stInfo));
    ExpectRecord(stInfo, 18, 18, 1929, 7);
}

TEST_F(LeapSeconds, AnObjectInItsCallersStorage)
{
    alignas(double) unsigned char aucStorage[COmtTime::c_ulSTORAGE_SIZE];
    COmtTime* pTime = new (aucStorage) COmtTime(58000.0);
    utcLeapSecond stInfo;
    stInfo.m_TimeSystem = TYR::TIM::TIMESYSTEM_GALILEO;
    EXPECT_EQ(TYR::TIM::RC_OK, pTime->GetLeapSecond(stInfo));
    ExpectRecord(stInfo, 18, 18, 1929, 7);
    EXPECT_EQ(TYR::TIM::TIMESYSTEM_GALILEO, stInfo.m_TimeSystem) << "the caller's time system is handed back";
    pTime->~COmtTime();
}

TEST_F(LeapSeconds, UnknownTimeSystemLeavesTheRecord)
{
    for (const int32_t lCode : {-1, 9, 1000})
    {
        utcLeapSecond stInfo;
        stInfo.m_TimeSystem = lCode;
        stInfo.m_CurrentLeapSecond = 77;
        EXPECT_EQ(TYR::TIM::RC_UNKNOWN_TIME_SYSTEM, QueryAt(58000.0, stInfo));
        EXPECT_EQ(TYR::TIM::RC_UNKNOWN_TIME_SYSTEM, TYR::TIM::GetLeapSecondInfo(stInfo));
        EXPECT_EQ(lCode, stInfo.m_TimeSystem);
        EXPECT_EQ(77, stInfo.m_CurrentLeapSecond);
        EXPECT_EQ(0, stInfo.m_EventValid);
    }
    for (int32_t lCode = 0; lCode <= 8; ++lCode)
    {
        utcLeapSecond stInfo;
        stInfo.m_TimeSystem = lCode;
        EXPECT_EQ(TYR::TIM::RC_OK, TYR::TIM::GetLeapSecondInfo(stInfo)) << lCode;
    }
}

// ------------------------------------------------------------------ queries without an object

TEST_F(LeapSeconds, EveryLeapSecondSince1980WithoutAnObjectAndForBeiDou)
{
    // The table as it stood after each leap second: the query of today
    // answers that leap second.
    for (size_t ulIdx = 0; ulIdx < c_ulNB_LEAPS; ++ulIdx)
    {
        const SLeapRow& rRow = c_astLEAPS[ulIdx];
        SCOPED_TRACE(rRow.iYear * 100 + rRow.iMonth);
        ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(FirstEvents(ulIdx + 1)));
        utcLeapSecond stGps;
        ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::GetLeapSecondInfo(stGps));
        ExpectRecord(stGps, rRow.iCount, rRow.iCount, rRow.iWeek, rRow.iDay);

        utcLeapSecond stInfo;
        EXPECT_TRUE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo));
        ExpectRecord(stInfo, rRow.iCount, rRow.iCount, rRow.iWeek, rRow.iDay);

        // BeiDou time: 14 s fewer, weeks from GPS week 1356, days from 0.
        // Before BeiDou time began the 16- and 8-bit values wrap.
        utcLeapSecond stBds;
        stBds.m_TimeSystem = TYR::TIM::TIMESYSTEM_BEIDOU;
        EXPECT_TRUE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stBds));
        EXPECT_EQ(static_cast<uint16_t>(rRow.iCount - 14), stBds.m_CurrentLeapSecond);
        EXPECT_EQ(static_cast<uint16_t>(rRow.iCount - 14), stBds.m_FutureOrPastLeapSecond);
        EXPECT_EQ(static_cast<uint16_t>(rRow.iWeek - 1356), stBds.m_EventGpsWeek);
        EXPECT_EQ(rRow.iDay - 1, stBds.m_EventGpsDay);
        EXPECT_EQ(1, stBds.m_EventValid);
        EXPECT_EQ(8, stBds.m_TimeSystem);
        if (rRow.iYear >= 2009)
        {
            // BeiDou week and day of the same last day, from BeiDou's start on
            // Sunday 2006-01-01.
            const int32_t lBdsDays = MjdOf(rRow) - 1 - MjdOf(2006, 1, 1);
            EXPECT_EQ(lBdsDays / 7, stBds.m_EventGpsWeek);
            EXPECT_EQ(lBdsDays % 7, stBds.m_EventGpsDay);
        }
    }
}

TEST_F(LeapSeconds, BeiDouCodeOfTheBuiltInTable)
{
    utcLeapSecond stInfo;
    stInfo.m_TimeSystem = 8;
    EXPECT_TRUE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo));
    EXPECT_EQ(4, stInfo.m_CurrentLeapSecond);
    EXPECT_EQ(4, stInfo.m_FutureOrPastLeapSecond);
    EXPECT_EQ(573, stInfo.m_EventGpsWeek);
    EXPECT_EQ(6, stInfo.m_EventGpsDay);
    EXPECT_EQ(1, stInfo.m_EventValid);
    EXPECT_EQ(8, stInfo.m_TimeSystem);
    // Any other code keeps the GPS terms.
    for (const int32_t lCode : {0, 1, 2, 7})
    {
        utcLeapSecond stOther;
        stOther.m_TimeSystem = lCode;
        EXPECT_TRUE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stOther));
        ExpectRecord(stOther, 18, 18, 1929, 7);
        EXPECT_EQ(lCode, stOther.m_TimeSystem);
    }
}

TEST_F(LeapSeconds, FailingQueryZeroesTheRecord)
{
    CRecordingHook stHook;
    utcLeapSecond stInfo;
    stInfo.m_TimeSystem = 9;
    stInfo.m_CurrentLeapSecond = 5;
    stInfo.m_EventValid = 1;
    EXPECT_FALSE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo));
    const unsigned char aucZero[12] = {};
    EXPECT_EQ(0, std::memcmp(&stInfo, aucZero, 12));
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(LeapSecondEvents()));
    stInfo.m_TimeSystem = 8;
    stInfo.m_EventGpsWeek = 3;
    EXPECT_FALSE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo));
    EXPECT_EQ(0, std::memcmp(&stInfo, aucZero, 12));
    EXPECT_EQ(0u, stHook.Count());
}

TEST_F(LeapSeconds, AnnouncedLeapSecondAhead)
{
    // A host that knows of a leap second to come adds it to the list.
    LeapSecondEvents vecEvents = FirstEvents(c_ulNB_LEAPS);
    const int32_t lMjd2090 = MjdOf(2090, 1, 1);
    vecEvents.push_back(SLeapSecondEvent(lMjd2090, 19));
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(vecEvents));
    const int32_t lDays = lMjd2090 - 1 - 44244;
    utcLeapSecond stInfo;
    EXPECT_TRUE(ZELX_LEAPSEC_UTC::getLeapSecondInfo(stInfo));
    ExpectRecord(stInfo, 18, 19, lDays / 7, lDays % 7 + 1);
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(static_cast<double>(lMjd2090), stInfo));
    ExpectRecord(stInfo, 19, 19, lDays / 7, lDays % 7 + 1);
}

// ------------------------------------------------------------------ loadFromTimeLibrary

TEST_F(LeapSeconds, LoadFromTheBuiltInTable)
{
    CRecordingHook stHook;
    ZELX_LEAPSEC_UTC st;
    st.EffectivityTime.SetAccuracy(MJDACC_SECOND);
    st.dA0 = 1.5; // not touched
    st.loadFromTimeLibrary();
    EXPECT_EQ(18, st.iDeltaTls);
    EXPECT_EQ(18, st.iDeltaTlsf);
    EXPECT_EQ(MjdOf(2017, 1, 1), st.EffectivityTime.GetMjdDay());
    EXPECT_EQ(0.0, st.EffectivityTime.GetMjdFractMilliseconds());
    EXPECT_EQ(MJDACC_SECOND, st.EffectivityTime.GetAccuracy()) << "its accuracy stays";
    EXPECT_EQ(1.5, st.dA0);
    EXPECT_EQ(0u, stHook.Count());
}

TEST_F(LeapSeconds, LoadAfterAFailingQueryKeepsTheFallback)
{
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(LeapSecondEvents()));
    CRecordingHook stHook;
    ZELX_LEAPSEC_UTC st;
    st.loadFromTimeLibrary();
    EXPECT_EQ(Texts{"rc == TYR::TIM::RC_OK"}, stHook.Texts());
    EXPECT_EQ(18, st.iDeltaTls);
    EXPECT_EQ(18, st.iDeltaTlsf);
    SMjdTime stExpected;
    stExpected.SetGpsDay(1929, 7);
    EXPECT_EQ(stExpected, st.EffectivityTime);
    EXPECT_EQ(57754, st.EffectivityTime.GetMjdDay());
}

TEST_F(LeapSeconds, LoadAnAnnouncement)
{
    LeapSecondEvents vecEvents = FirstEvents(c_ulNB_LEAPS);
    vecEvents.push_back(SLeapSecondEvent(MjdOf(2090, 7, 1), 19));
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(vecEvents));
    ZELX_LEAPSEC_UTC st;
    st.loadFromTimeLibrary();
    EXPECT_EQ(18, st.iDeltaTls);
    EXPECT_EQ(19, st.iDeltaTlsf);
    EXPECT_EQ(MjdOf(2090, 7, 1), st.EffectivityTime.GetMjdDay());
    EXPECT_TRUE(st.isValid());
}

TEST_F(LeapSeconds, LoadCountsBeyondEightBitsAreReportedAndCut)
{
    const LeapSecondEvents vecEvents = {SLeapSecondEvent(MjdOf(2000, 1, 1), 200),
                                        SLeapSecondEvent(MjdOf(2090, 1, 1), 201)};
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(vecEvents));
    CRecordingHook stHook;
    ZELX_LEAPSEC_UTC st;
    st.loadFromTimeLibrary();
    EXPECT_EQ(Texts({"utcLeapSecond.m_CurrentLeapSecond <= std::numeric_limits<int8_t>::max()",
                     "utcLeapSecond.m_FutureOrPastLeapSecond <= std::numeric_limits<int8_t>::max()"}),
              stHook.Texts());
    EXPECT_EQ(static_cast<int8_t>(200 - 256), st.iDeltaTls);
    EXPECT_EQ(static_cast<int8_t>(201 - 256), st.iDeltaTlsf);
}

// ------------------------------------------------------------------ replacing the table

TEST_F(LeapSeconds, AnObjectKeepsItsTable)
{
    const COmtTime stOld(59000.0);
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(FirstEvents(3)));
    const COmtTime stNew(59000.0);
    utcLeapSecond stInfo;
    ASSERT_EQ(TYR::TIM::RC_OK, stOld.GetLeapSecond(stInfo));
    ExpectRecord(stInfo, 18, 18, 1929, 7);
    ASSERT_EQ(TYR::TIM::RC_OK, stNew.GetLeapSecond(stInfo));
    ExpectRecord(stInfo, 3, 3, 181, 5);
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(LeapSecondEvents()));
    EXPECT_EQ(TYR::TIM::RC_OK, stOld.GetLeapSecond(stInfo));
    EXPECT_EQ(TYR::TIM::RC_OK, stNew.GetLeapSecond(stInfo));
    EXPECT_EQ(TYR::TIM::RC_NO_LEAP_SECONDS, COmtTime(59000.0).GetLeapSecond(stInfo));
    EXPECT_TRUE(TYR::TIM::GetLeapSecondEvents().empty());
}

TEST_F(LeapSeconds, ListsThatBreakARuleAreRefused)
{
    const LeapSecondEvents vecGood = FirstEvents(5);
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(vecGood));
    std::vector<LeapSecondEvents> vecBad;
    vecBad.push_back({{50000, 1}, {49999, 2}});             // out of order
    vecBad.push_back({{50000, 1}, {50000, 2}});             // the same day twice
    vecBad.push_back({{44244, 1}});                         // on the GPS epoch
    vecBad.push_back({{40000, 1}});                         // before it
    vecBad.push_back({{86000, 1}});                         // past the last day of the time record
    vecBad.push_back({{50000, -1}});                        // a negative count
    vecBad.push_back({{50000, 65536}});                     // beyond 16 bits
    vecBad.push_back({{50000, 5}, {51000, 7}});             // a step of two seconds
    vecBad.push_back({{50000, 5}, {51000, 5}});             // no step
    vecBad.push_back({{50000, 5}, {51000, 6}, {52000, 8}}); // the rule holds for every pair
    for (const LeapSecondEvents& rvecList : vecBad)
    {
        EXPECT_EQ(TYR::TIM::RC_BAD_EVENT_LIST, TYR::TIM::SetLeapSecondEvents(rvecList));
        EXPECT_EQ(vecGood, TYR::TIM::GetLeapSecondEvents()) << "the table stays";
    }
    // Lists that keep the rules: a negative leap second, a single event, the limits.
    const std::vector<LeapSecondEvents> vecFine = {
        {{50000, 5}, {51000, 4}}, {{57754, 18}}, {{44245, 0}, {85999, 1}}, {{50000, 65535}}};
    for (const LeapSecondEvents& rvecList : vecFine)
    {
        EXPECT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(rvecList));
        EXPECT_EQ(rvecList, TYR::TIM::GetLeapSecondEvents());
    }
    // The limits answer in range.
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents({{44245, 1}}));
    utcLeapSecond stInfo;
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(44244.5, stInfo));
    ExpectRecord(stInfo, 0, 1, 0, 1);
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents({{85999, 1}}));
    ASSERT_EQ(TYR::TIM::RC_OK, QueryAt(44244.5, stInfo));
    ExpectRecord(stInfo, 0, 1, (85998 - 44244) / 7, (85998 - 44244) % 7 + 1);
}

TEST_F(LeapSeconds, AnEmptyTableFailsEveryQuery)
{
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(LeapSecondEvents()));
    utcLeapSecond stInfo;
    stInfo.m_CurrentLeapSecond = 3;
    EXPECT_EQ(TYR::TIM::RC_NO_LEAP_SECONDS, TYR::TIM::GetLeapSecondInfo(stInfo));
    EXPECT_EQ(TYR::TIM::RC_NO_LEAP_SECONDS, QueryAt(58000.0, stInfo));
    EXPECT_EQ(3, stInfo.m_CurrentLeapSecond) << "a failed query leaves the record";
    // The time system is looked at first.
    stInfo.m_TimeSystem = 9;
    EXPECT_EQ(TYR::TIM::RC_UNKNOWN_TIME_SYSTEM, TYR::TIM::GetLeapSecondInfo(stInfo));
}

// ------------------------------------------------------------------ the system's IERS list

TEST_F(LeapSeconds, BuiltInTableAgreesWithTheSystemList)
{
    const char* const szPath = "/usr/share/zoneinfo/leap-seconds.list";
    std::ifstream ifs(szPath);
    if (!ifs)
    {
        GTEST_SKIP() << szPath << " is not installed";
    }
    // Lines "<seconds since 1900-01-01> <TAI-UTC> # date"; '#' starts a comment.
    // GPS time is TAI minus 19 s; only the leap seconds after the GPS epoch count.
    std::map<int32_t, int32_t> mapFile;
    std::string strLine;
    while (std::getline(ifs, strLine))
    {
        if (strLine.empty() || strLine[0] == '#')
        {
            continue;
        }
        std::istringstream iss(strLine);
        long long llNtpSeconds = 0;
        int32_t lTaiMinusUtc = 0;
        if (!(iss >> llNtpSeconds >> lTaiMinusUtc))
        {
            continue;
        }
        const int32_t lMjd = static_cast<int32_t>(llNtpSeconds / 86400 + 15020);
        if (lMjd > 44244)
        {
            mapFile[lMjd] = lTaiMinusUtc - 19;
        }
    }
    ASSERT_FALSE(mapFile.empty()) << "no leap second after 1980 in " << szPath;
    std::map<int32_t, int32_t> mapTable;
    for (const SLeapSecondEvent& rEvent : TYR::TIM::GetEmbeddedLeapSecondEvents())
    {
        mapTable[rEvent.lUtcMjdDay] = rEvent.lGpsMinusUtc;
    }
    std::ostringstream ossDiffer;
    for (const auto& rEntry : mapFile)
    {
        const auto it = mapTable.find(rEntry.first);
        const SMjdTime stDate(static_cast<double>(rEntry.first));
        if (it == mapTable.end())
        {
            ossDiffer << "\n  MJD " << rEntry.first << " (" << stDate.GetYear() << "-" << stDate.GetMonth()
                      << "-" << stDate.GetDayOfMonth() << "): GPS-UTC " << rEntry.second
                      << " s in the list, missing in the built-in table";
        }
        else if (it->second != rEntry.second)
        {
            ossDiffer << "\n  MJD " << rEntry.first << ": GPS-UTC " << rEntry.second << " s in the list, "
                      << it->second << " s in the built-in table";
        }
    }
    for (const auto& rEntry : mapTable)
    {
        if (mapFile.find(rEntry.first) == mapFile.end())
        {
            ossDiffer << "\n  MJD " << rEntry.first << ": GPS-UTC " << rEntry.second
                      << " s in the built-in table, missing in the list";
        }
    }
    EXPECT_TRUE(ossDiffer.str().empty()) << "entries that differ from " << szPath << ":" << ossDiffer.str();
    EXPECT_EQ(mapFile.size(), mapTable.size());
}
