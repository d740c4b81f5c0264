#include <ZelTypes/Platform/OmtTime.h>

#include <ZelTypes/Core/Common/ZelLock.h>

#include <boost/make_shared.hpp>

#include <chrono>
#include <cstdlib>

namespace TYR
{
namespace TIM
{

static_assert(sizeof(COmtTime) <= COmtTime::c_ulSTORAGE_SIZE, "a time object fits its caller's storage");
static_assert(alignof(COmtTime) <= alignof(double), "the caller's storage is aligned for a double");

namespace
{

constexpr int32_t c_lGPS_EPOCH_MJD = 44244;
constexpr int32_t c_lMJD_LIMIT = 86000;
constexpr int32_t c_lMAX_COUNT = 65535;
// MJD of 1970-01-01, the origin of the host's clock.
constexpr double c_dUNIX_EPOCH_MJD = 40587.0;

// Every leap second since the GPS epoch: the first UTC day of each new
// count, and GPS time minus UTC from then on.
const LeapSecondEvents& Embedded()
{
    static const LeapSecondEvents s_vecEvents = {
        {44786, 1},  // 1981-07-01
        {45151, 2},  // 1982-07-01
        {45516, 3},  // 1983-07-01
        {46247, 4},  // 1985-07-01
        {47161, 5},  // 1988-01-01
        {47892, 6},  // 1990-01-01
        {48257, 7},  // 1991-01-01
        {48804, 8},  // 1992-07-01
        {49169, 9},  // 1993-07-01
        {49534, 10}, // 1994-07-01
        {50083, 11}, // 1996-01-01
        {50630, 12}, // 1997-07-01
        {51179, 13}, // 1999-01-01
        {53736, 14}, // 2006-01-01
        {54832, 15}, // 2009-01-01
        {56109, 16}, // 2012-07-01
        {57204, 17}, // 2015-07-01
        {57754, 18}, // 2017-01-01
    };
    return s_vecEvents;
}

// The table in force. Readers take the pointer under the lock and read
// their snapshot without it; a replacement is built outside the lock and
// swapped in whole, and an old table goes with its last reader. Made once
// and never destroyed, so that a query during unloading still finds it.
struct STable
{
    ZELN::CZelMutex m_Mutex;
    boost::shared_ptr<const LeapSecondEvents> m_pEvents;

    STable() : m_pEvents(boost::make_shared<LeapSecondEvents>(Embedded())) {}
};

STable& Table()
{
    static STable* s_pTable = new STable();
    return *s_pTable;
}

boost::shared_ptr<const LeapSecondEvents> Snapshot()
{
    STable& rTable = Table();
    ZELN::CZelGuard stGuard(rTable.m_Mutex);
    return rTable.m_pEvents;
}

double NowAsUtcMjd()
{
    const std::chrono::duration<double> dSeconds = std::chrono::system_clock::now().time_since_epoch();
    return c_dUNIX_EPOCH_MJD + dSeconds.count() / 86400.0;
}

bool IsKnownTimeSystem(int32_t lTimeSystem)
{
    return lTimeSystem >= TIMESYSTEM_GPS && lTimeSystem <= TIMESYSTEM_BEIDOU;
}

bool IsValidList(const LeapSecondEvents& rvecEvents)
{
    for (size_t ulIdx = 0; ulIdx < rvecEvents.size(); ++ulIdx)
    {
        const SLeapSecondEvent& rEvent = rvecEvents[ulIdx];
        // The day before the event must have a GPS week of its own.
        if (rEvent.lUtcMjdDay <= c_lGPS_EPOCH_MJD || rEvent.lUtcMjdDay >= c_lMJD_LIMIT)
        {
            return false;
        }
        if (rEvent.lGpsMinusUtc < 0 || rEvent.lGpsMinusUtc > c_lMAX_COUNT)
        {
            return false;
        }
        if (ulIdx != 0)
        {
            const SLeapSecondEvent& rBefore = rvecEvents[ulIdx - 1];
            if (rEvent.lUtcMjdDay <= rBefore.lUtcMjdDay ||
                std::abs(rEvent.lGpsMinusUtc - rBefore.lGpsMinusUtc) != 1)
            {
                return false;
            }
        }
    }
    return true;
}

// The answer at a UTC instant from one table. A NaN instant lies before
// every event.
EResultCode Answer(const LeapSecondEvents& rvecEvents, double dUtcMjd, utcLeapSecond& rstInfo)
{
    if (!IsKnownTimeSystem(rstInfo.m_TimeSystem))
    {
        return RC_UNKNOWN_TIME_SYSTEM;
    }
    if (rvecEvents.empty())
    {
        return RC_NO_LEAP_SECONDS;
    }
    // An event holds from the midnight that starts its day.
    size_t ulNext = 0;
    while (ulNext < rvecEvents.size() && static_cast<double>(rvecEvents[ulNext].lUtcMjdDay) <= dUtcMjd)
    {
        ++ulNext;
    }
    const int32_t lCurrent = ulNext == 0 ? 0 : rvecEvents[ulNext - 1].lGpsMinusUtc;
    const SLeapSecondEvent& rEvent = ulNext < rvecEvents.size() ? rvecEvents[ulNext] : rvecEvents.back();
    // Week and day of the last day of the old count; the list's rules keep
    // both in range.
    const int32_t lDays = rEvent.lUtcMjdDay - 1 - c_lGPS_EPOCH_MJD;
    rstInfo.m_CurrentLeapSecond = static_cast<uint16_t>(lCurrent);
    rstInfo.m_FutureOrPastLeapSecond = static_cast<uint16_t>(rEvent.lGpsMinusUtc);
    rstInfo.m_EventGpsWeek = static_cast<uint16_t>(lDays / 7);
    rstInfo.m_EventGpsDay = static_cast<uint8_t>(lDays % 7 + 1);
    rstInfo.m_EventValid = 1;
    return RC_OK;
}

} // namespace

COmtTime::COmtTime() : m_pEvents(Snapshot()), m_dUtcMjd(NowAsUtcMjd()) {}

COmtTime::COmtTime(double dUtcMjd) : m_pEvents(Snapshot()), m_dUtcMjd(dUtcMjd) {}

COmtTime::~COmtTime() = default;

EResultCode COmtTime::GetLeapSecond(utcLeapSecond& rstInfo) const
{
    return Answer(*m_pEvents, m_dUtcMjd, rstInfo);
}

EResultCode GetLeapSecondInfo(utcLeapSecond& rstInfo)
{
    const boost::shared_ptr<const LeapSecondEvents> pEvents = Snapshot();
    return Answer(*pEvents, NowAsUtcMjd(), rstInfo);
}

EResultCode SetLeapSecondEvents(const LeapSecondEvents& rvecEvents)
{
    if (!IsValidList(rvecEvents))
    {
        return RC_BAD_EVENT_LIST;
    }
    boost::shared_ptr<const LeapSecondEvents> pNew = boost::make_shared<LeapSecondEvents>(rvecEvents);
    STable& rTable = Table();
    {
        ZELN::CZelGuard stGuard(rTable.m_Mutex);
        rTable.m_pEvents.swap(pNew);
    }
    // The old table goes here, outside the lock, unless a reader still holds it.
    return RC_OK;
}

LeapSecondEvents GetLeapSecondEvents()
{
    return *Snapshot();
}

const LeapSecondEvents& GetEmbeddedLeapSecondEvents()
{
    return Embedded();
}

} // namespace TIM
} // namespace TYR
