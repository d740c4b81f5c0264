// The leap-second table replaced while queries run: every answer comes
// whole from one table, a time object keeps the table it was made with, and
// concurrent replacements leave one of the lists in force. Built and run
// under ThreadSanitizer by the test script.

#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>
#include <ZelTypes/Platform/OmtTime.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

using namespace ZELN;
using TYR::TIM::COmtTime;
using TYR::TIM::LeapSecondEvents;
using TYR::TIM::SLeapSecondEvent;
using TYR::TIM::utcLeapSecond;

namespace
{

const int c_iReaders = 4;
const int c_iSwaps = 2000;
const long c_lMinReads = 4000;

// The answer of today from a table.
struct SAnswer
{
    int iCurrent;
    int iEventCount;
    int iWeek;
    int iDay;
};

bool Is(const utcLeapSecond& rstInfo, const SAnswer& rAnswer)
{
    return rstInfo.m_CurrentLeapSecond == rAnswer.iCurrent &&
           rstInfo.m_FutureOrPastLeapSecond == rAnswer.iEventCount &&
           rstInfo.m_EventGpsWeek == rAnswer.iWeek && rstInfo.m_EventGpsDay == rAnswer.iDay &&
           rstInfo.m_EventValid == 1;
}

// MJD of 2090-01-01, the day of a leap second that a host announces.
int32_t Mjd2090()
{
    return SMjdTime(2090, 1, 1, 0, 0, 0.0).GetMjdDay();
}

// Three lists: the built-in one; the built-in one with the leap second of
// 2090; the first ten leap seconds only.
LeapSecondEvents ListA()
{
    return TYR::TIM::GetEmbeddedLeapSecondEvents();
}

LeapSecondEvents ListB()
{
    LeapSecondEvents vec = ListA();
    vec.push_back(SLeapSecondEvent(Mjd2090(), 19));
    return vec;
}

LeapSecondEvents ListC()
{
    const LeapSecondEvents& rvecAll = TYR::TIM::GetEmbeddedLeapSecondEvents();
    return LeapSecondEvents(rvecAll.begin(), rvecAll.begin() + 10);
}

// Today's answers: the week and day of the last day before the event,
// counted from the GPS epoch, MJD 44244.
const SAnswer c_stANSWER_A = {18, 18, 1929, 7};
const SAnswer c_stANSWER_B = {18, 19, (Mjd2090() - 1 - 44244) / 7, (Mjd2090() - 1 - 44244) % 7 + 1};
const SAnswer c_stANSWER_C = {10, 10, 755, 5};

bool IsOneOfTheAnswers(const utcLeapSecond& rstInfo)
{
    return Is(rstInfo, c_stANSWER_A) || Is(rstInfo, c_stANSWER_B) || Is(rstInfo, c_stANSWER_C);
}

class LeapSecondConcurrency : public ::testing::Test
{
protected:
    void TearDown() override
    {
        ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(TYR::TIM::GetEmbeddedLeapSecondEvents()));
    }
};

} // namespace

TEST_F(LeapSecondConcurrency, ReadersSeeWholeTablesWhileTheHostSwaps)
{
    const LeapSecondEvents vecA = ListA();
    const LeapSecondEvents vecB = ListB();
    const LeapSecondEvents vecC = ListC();
    std::atomic<bool> bDone(false);
    std::atomic<int> iTorn(0);
    std::atomic<long> lReads(0);

    std::vector<std::thread> vecReaders;
    for (int iReader = 0; iReader < c_iReaders; ++iReader)
    {
        vecReaders.emplace_back(
            [&, iReader]
            {
                while (!bDone.load())
                {
                    switch (iReader % 4)
                    {
                    case 0:
                    {
                        utcLeapSecond stInfo;
                        if (TYR::TIM::GetLeapSecondInfo(stInfo) != TYR::TIM::RC_OK ||
                            !IsOneOfTheAnswers(stInfo))
                        {
                            ++iTorn;
                        }
                        break;
                    }
                    case 1:
                    {
                        // The object's answer stays the same while the table is swapped.
                        const COmtTime stTime;
                        utcLeapSecond stFirst;
                        utcLeapSecond stAgain;
                        if (stTime.GetLeapSecond(stFirst) != TYR::TIM::RC_OK || !IsOneOfTheAnswers(stFirst))
                        {
                            ++iTorn;
                        }
                        std::this_thread::yield();
                        stTime.GetLeapSecond(stAgain);
                        if (!Is(stAgain, {stFirst.m_CurrentLeapSecond, stFirst.m_FutureOrPastLeapSecond,
                                          stFirst.m_EventGpsWeek, stFirst.m_EventGpsDay}))
                        {
                            ++iTorn;
                        }
                        break;
                    }
                    case 2:
                    {
                        ZELX_LEAPSEC_UTC stLeap;
                        stLeap.loadFromTimeLibrary();
                        utcLeapSecond stBds;
                        stBds.m_TimeSystem = TYR::TIM::TIMESYSTEM_BEIDOU;
                        const bool bEvent = ZELX_LEAPSEC_UTC::getLeapSecondInfo(stBds);
                        const bool bLeapOk =
                            (stLeap.iDeltaTls == 18 || stLeap.iDeltaTls == 10) &&
                            (stLeap.iDeltaTlsf == 18 || stLeap.iDeltaTlsf == 19 || stLeap.iDeltaTlsf == 10);
                        const bool bBdsOk =
                            bEvent && (stBds.m_CurrentLeapSecond == 4 ||
                                       stBds.m_CurrentLeapSecond == static_cast<uint16_t>(10 - 14));
                        if (!bLeapOk || !bBdsOk)
                        {
                            ++iTorn;
                        }
                        break;
                    }
                    default:
                    {
                        const LeapSecondEvents vecNow = TYR::TIM::GetLeapSecondEvents();
                        if (vecNow != vecA && vecNow != vecB && vecNow != vecC)
                        {
                            ++iTorn;
                        }
                        break;
                    }
                    }
                    ++lReads;
                }
            });
    }

    const auto tEnd = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    int iSwap = 0;
    while (iSwap < c_iSwaps || (lReads.load() < c_lMinReads && std::chrono::steady_clock::now() < tEnd))
    {
        const LeapSecondEvents& rvecNext = iSwap % 3 == 0 ? vecB : (iSwap % 3 == 1 ? vecC : vecA);
        if (TYR::TIM::SetLeapSecondEvents(rvecNext) != TYR::TIM::RC_OK)
        {
            ++iTorn;
        }
        ++iSwap;
    }
    bDone.store(true);
    for (std::thread& rThread : vecReaders)
    {
        rThread.join();
    }
    EXPECT_EQ(0, iTorn.load());
    EXPECT_GT(lReads.load(), 0);
}

TEST_F(LeapSecondConcurrency, AnObjectKeepsItsSnapshotThroughEverySwap)
{
    ASSERT_EQ(TYR::TIM::RC_OK, TYR::TIM::SetLeapSecondEvents(ListC()));
    const COmtTime stTime(60000.0);
    std::atomic<bool> bDone(false);
    std::thread stWriter(
        [&]
        {
            const LeapSecondEvents vecA = ListA();
            const LeapSecondEvents vecB = ListB();
            for (int iSwap = 0; iSwap < c_iSwaps; ++iSwap)
            {
                TYR::TIM::SetLeapSecondEvents(iSwap % 2 == 0 ? vecA : vecB);
            }
            bDone.store(true);
        });
    int iOther = 0;
    long lQueries = 0;
    do
    {
        utcLeapSecond stInfo;
        if (stTime.GetLeapSecond(stInfo) != TYR::TIM::RC_OK || !Is(stInfo, c_stANSWER_C))
        {
            ++iOther;
        }
        ++lQueries;
    } while (!bDone.load());
    stWriter.join();
    EXPECT_EQ(0, iOther);
    EXPECT_GT(lQueries, 0);
    // The table in force is the writer's last.
    EXPECT_EQ(ListB(), TYR::TIM::GetLeapSecondEvents());
}

TEST_F(LeapSecondConcurrency, ConcurrentHostsLeaveOneWholeList)
{
    const LeapSecondEvents vecB = ListB();
    const LeapSecondEvents vecC = ListC();
    std::vector<std::thread> vecWriters;
    for (int iWriter = 0; iWriter < 2; ++iWriter)
    {
        vecWriters.emplace_back(
            [&, iWriter]
            {
                for (int iRound = 0; iRound < 500; ++iRound)
                {
                    TYR::TIM::SetLeapSecondEvents(iWriter == 0 ? vecB : vecC);
                    // A refused list changes nothing, also between the others.
                    TYR::TIM::SetLeapSecondEvents({{50000, 1}, {49000, 2}});
                }
            });
    }
    for (std::thread& rThread : vecWriters)
    {
        rThread.join();
    }
    const LeapSecondEvents vecLast = TYR::TIM::GetLeapSecondEvents();
    EXPECT_TRUE(vecLast == vecB || vecLast == vecC);
}
