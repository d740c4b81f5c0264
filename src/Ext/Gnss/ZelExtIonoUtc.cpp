#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>

#include <cstring>
#include <limits>
#include <new>
#include <stdlib.h>

namespace ZELN
{

namespace
{

// The leap seconds a failed query of the time library leaves in place:
// 18 s from 2017-01-01, the end of GPS week 1929, day 7.
constexpr uint16_t c_unFALLBACK_LEAP_SECONDS = 18;
constexpr uint16_t c_unFALLBACK_EVENT_WEEK = 1929;
constexpr uint8_t c_ucFALLBACK_EVENT_DAY = 7;

// BeiDou time against GPS time: 14 leap seconds fewer, week 0 at GPS week
// 1356, days counted from 0 instead of 1.
constexpr uint16_t c_unBDS_LEAP_SECONDS = 14;
constexpr uint16_t c_unBDS_WEEK_OFFSET = 1356;

// A time object of the time library in its 48 bytes, destroyed on every
// way out of the scope.
class CTimeObjectInPlace
{
public:
    CTimeObjectInPlace() : m_pTime(new (m_aucStorage) TYR::TIM::COmtTime()) {}
    ~CTimeObjectInPlace() { m_pTime->~COmtTime(); }
    CTimeObjectInPlace(const CTimeObjectInPlace&) = delete;
    CTimeObjectInPlace& operator=(const CTimeObjectInPlace&) = delete;

    const TYR::TIM::COmtTime& Get() const { return *m_pTime; }

private:
    alignas(double) unsigned char m_aucStorage[TYR::TIM::COmtTime::c_ulSTORAGE_SIZE];
    TYR::TIM::COmtTime* m_pTime;
};

// The bytes of a value: the entries of the NavIC offsets compare this way.
template <class T> bool SameBytes(const T& a, const T& b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

bool SameTimeBytes(const SMjdTime& a, const SMjdTime& b)
{
    return SameBytes(a.m_lMjdDay, b.m_lMjdDay) &&
           SameBytes(a.m_dMjdFractMilliseconds, b.m_dMjdFractMilliseconds) &&
           SameBytes(a.m_eAccuracy, b.m_eAccuracy);
}

// An entry's memory form is its fields and the gaps between them, which
// hold nothing in this library: the entries compare field by field, each
// by its bytes (0.0 and -0.0 differ, a NaN equals the same NaN).
bool SameOffsetBytes(const SZelNavicTimeOffset& a, const SZelNavicTimeOffset& b)
{
    return SameBytes(a.ulGnssId, b.ulGnssId) && SameBytes(a.dA0, b.dA0) && SameBytes(a.dA1, b.dA1) &&
           SameBytes(a.dA2, b.dA2) && SameTimeBytes(a.stRefTime, b.stRefTime);
}

} // namespace

// ---------------------------------------------------------------------------
// ZELX_LEAPSEC_UTC
// ---------------------------------------------------------------------------

ZELX_LEAPSEC_UTC::~ZELX_LEAPSEC_UTC() = default;

bool ZELX_LEAPSEC_UTC::isValid() const
{
    // The invariants are reported only; the count in force decides.
    ZEL_ASSERT(EffectivityTime != SMjdTime() || iDeltaTlsf == -1);
    ZEL_ASSERT_TEXT(UTCRefTime != SMjdTime() || (dA0 == 0.0 && dA1 == 0.0),
                    "UTCRefTime != SMjdTime() || (dA0 == 0.0 && dA1 == 0.0 )");
    return iDeltaTls > 0;
}

void ZELX_LEAPSEC_UTC::clear()
{
    ZELX_LEAPSEC_UTC::operator=(ZELX_LEAPSEC_UTC());
}

void ZELX_LEAPSEC_UTC::assign(const ZELX_LEAPSEC_UTC& rOther)
{
    ZELX_LEAPSEC_UTC::operator=(rOther);
}

void ZELX_LEAPSEC_UTC::loadFromTimeLibrary()
{
    TYR::TIM::utcLeapSecond utcLeapSecond;
    utcLeapSecond.m_TimeSystem = TYR::TIM::TIMESYSTEM_GPS;
    utcLeapSecond.m_CurrentLeapSecond = c_unFALLBACK_LEAP_SECONDS;
    utcLeapSecond.m_FutureOrPastLeapSecond = c_unFALLBACK_LEAP_SECONDS;
    utcLeapSecond.m_EventGpsWeek = c_unFALLBACK_EVENT_WEEK;
    utcLeapSecond.m_EventGpsDay = c_ucFALLBACK_EVENT_DAY;
    utcLeapSecond.m_EventValid = 1;
    {
        const CTimeObjectInPlace stTime;
        // A failed query leaves the record as it was: the fallback holds.
        const TYR::TIM::EResultCode rc = stTime.Get().GetLeapSecond(utcLeapSecond);
        ZEL_ASSERT(rc == TYR::TIM::RC_OK);
    }
    if (utcLeapSecond.m_EventValid == 0)
    {
        EffectivityTime = SMjdTime();
    }
    else
    {
        EffectivityTime.SetGpsDay(utcLeapSecond.m_EventGpsWeek, utcLeapSecond.m_EventGpsDay);
    }
    // The low byte is stored also after a failed check.
    ZEL_ASSERT(utcLeapSecond.m_CurrentLeapSecond <= std::numeric_limits<int8_t>::max());
    iDeltaTls = static_cast<int8_t>(static_cast<uint8_t>(utcLeapSecond.m_CurrentLeapSecond & 0xFF));
    ZEL_ASSERT(utcLeapSecond.m_FutureOrPastLeapSecond <= std::numeric_limits<int8_t>::max());
    iDeltaTlsf = static_cast<int8_t>(static_cast<uint8_t>(utcLeapSecond.m_FutureOrPastLeapSecond & 0xFF));
}

bool ZELX_LEAPSEC_UTC::getLeapSecondInfo(TYR::TIM::utcLeapSecond& rstInfo)
{
    const int32_t lTimeSystem = rstInfo.m_TimeSystem;
    if (TYR::TIM::GetLeapSecondInfo(rstInfo) != TYR::TIM::RC_OK)
    {
        // All 12 bytes zero, the time system included.
        rstInfo = TYR::TIM::utcLeapSecond();
        return false;
    }
    if (rstInfo.m_EventValid == 0)
    {
        rstInfo.m_FutureOrPastLeapSecond = 0;
        rstInfo.m_EventGpsWeek = 0;
        rstInfo.m_EventGpsDay = 0;
    }
    if (lTimeSystem == TYR::TIM::TIMESYSTEM_BEIDOU)
    {
        // 16- and 8-bit arithmetic: a count or week below BeiDou's start wraps.
        rstInfo.m_CurrentLeapSecond =
            static_cast<uint16_t>(rstInfo.m_CurrentLeapSecond - c_unBDS_LEAP_SECONDS);
        if (rstInfo.m_EventValid != 0)
        {
            rstInfo.m_FutureOrPastLeapSecond =
                static_cast<uint16_t>(rstInfo.m_FutureOrPastLeapSecond - c_unBDS_LEAP_SECONDS);
            rstInfo.m_EventGpsWeek = static_cast<uint16_t>(rstInfo.m_EventGpsWeek - c_unBDS_WEEK_OFFSET);
            rstInfo.m_EventGpsDay = static_cast<uint8_t>(rstInfo.m_EventGpsDay - 1);
        }
    }
    return rstInfo.m_EventValid != 0;
}

bool operator==(const ZELX_LEAPSEC_UTC& a, const ZELX_LEAPSEC_UTC& b)
{
    return a.iDeltaTls == b.iDeltaTls && a.iDeltaTlsf == b.iDeltaTlsf &&
           a.EffectivityTime == b.EffectivityTime && AreCloseRel(a.dA0, b.dA0) && AreCloseRel(a.dA1, b.dA1) &&
           a.UTCRefTime == b.UTCRefTime;
}

// ---------------------------------------------------------------------------
// Clocks
// ---------------------------------------------------------------------------

ZELX_CLOCK_BEIDOU::~ZELX_CLOCK_BEIDOU() = default;

void ZELX_CLOCK_BEIDOU::clear()
{
    *this = ZELX_CLOCK_BEIDOU();
}

bool operator==(const ZELX_CLOCK_BEIDOU& a, const ZELX_CLOCK_BEIDOU& b)
{
    if (!(static_cast<const ZELX_LEAPSEC_UTC&>(a) == static_cast<const ZELX_LEAPSEC_UTC&>(b)))
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        if (!AreCloseRel(a.adGnssOffset[ulIdx], b.adGnssOffset[ulIdx]))
        {
            return false;
        }
    }
    return AreCloseRel(a.dAux2, b.dAux2) && a.ucAux1 == b.ucAux1;
}

ZELX_SAT_CLOCK_GALILEO::~ZELX_SAT_CLOCK_GALILEO() = default;

void ZELX_SAT_CLOCK_GALILEO::clear()
{
    *this = ZELX_SAT_CLOCK_GALILEO();
}

bool operator==(const ZELX_SAT_CLOCK_GALILEO& a, const ZELX_SAT_CLOCK_GALILEO& b)
{
    // ulAux1 and ulAux2 take no part.
    return static_cast<const ZELX_LEAPSEC_UTC&>(a) == static_cast<const ZELX_LEAPSEC_UTC&>(b) &&
           AreCloseRel(a.dA0G, b.dA0G) && AreCloseRel(a.dA1G, b.dA1G) && a.ucAux3 == b.ucAux3 &&
           a.stT0G == b.stT0G;
}

bool operator==(const SZelNavicTimeOffset& a, const SZelNavicTimeOffset& b)
{
    return a.ulGnssId == b.ulGnssId && AreCloseRel(a.dA0, b.dA0) && AreCloseRel(a.dA1, b.dA1) &&
           AreCloseRel(a.dA2, b.dA2) && a.stRefTime == b.stRefTime;
}

ZELX_SYSCLOCK_NAVIC::~ZELX_SYSCLOCK_NAVIC() = default;

void ZELX_SYSCLOCK_NAVIC::clear()
{
    *this = ZELX_SYSCLOCK_NAVIC();
}

bool ZELX_SYSCLOCK_NAVIC::getOffsetIndex(uint32_t ulGnssId, uint8_t& rucIndex)
{
    switch (ulGnssId)
    {
    case 0:
    case 1:
    case 2:
        rucIndex = static_cast<uint8_t>(ulGnssId);
        return true;
    case 7:
        rucIndex = 3;
        return true;
    default:
        ZEL_ASSERT(false);
        rucIndex = 8;
        return false;
    }
}

void ZELX_SYSCLOCK_NAVIC::setOffset(const SZelNavicTimeOffset& rstOffset)
{
    size_t ulIndex = 3;
    switch (rstOffset.ulGnssId)
    {
    case 0:
    case 1:
    case 2:
        ulIndex = rstOffset.ulGnssId;
        break;
    default:
        ZEL_ASSERT(false);
        // An unknown id goes on into the last entry.
        [[fallthrough]];
    case 7:
        ulIndex = 3;
        break;
    }
    astOffsets[ulIndex] = rstOffset;
}

bool operator==(const ZELX_SYSCLOCK_NAVIC& a, const ZELX_SYSCLOCK_NAVIC& b)
{
    // ullAux1 and ucAux4 take no part.
    if (!(static_cast<const ZELX_LEAPSEC_UTC&>(a) == static_cast<const ZELX_LEAPSEC_UTC&>(b)) ||
        !AreCloseRel(a.dAux2, b.dAux2) || !AreCloseRel(a.dAux3, b.dAux3))
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 4; ++ulIdx)
    {
        if (!SameOffsetBytes(a.astOffsets[ulIdx], b.astOffsets[ulIdx]))
        {
            return false;
        }
    }
    return true;
}

// ---------------------------------------------------------------------------
// Ionosphere records
// ---------------------------------------------------------------------------

ZELX_IONO_UTC::~ZELX_IONO_UTC() = default;

void ZELX_IONO_UTC::clear()
{
    ZELX_IONO_UTC::operator=(ZELX_IONO_UTC());
}

bool operator==(const ZELX_IONO_UTC& a, const ZELX_IONO_UTC& b)
{
    return a.stKlobuchar == b.stKlobuchar && a.stLeapSec == b.stLeapSec;
}

ZELX_IONO_UTC_GPSQZSS::~ZELX_IONO_UTC_GPSQZSS() = default;

void ZELX_IONO_UTC_GPSQZSS::clear()
{
    *this = ZELX_IONO_UTC_GPSQZSS();
}

bool operator==(const ZELX_IONO_UTC_GPSQZSS& a, const ZELX_IONO_UTC_GPSQZSS& b)
{
    return static_cast<const ZELX_IONO_UTC&>(a) == static_cast<const ZELX_IONO_UTC&>(b) &&
           a.ucAux3 == b.ucAux3;
}

ZELX_IONO_BEIDOU::ZELX_IONO_BEIDOU()
{
    stKlobuchar.eSatSystem = ZELSATSYSTEM_BEIDOU;
}

ZELX_IONO_BEIDOU::~ZELX_IONO_BEIDOU() = default;

bool operator==(const ZELX_IONO_BEIDOU& a, const ZELX_IONO_BEIDOU& b)
{
    return a.stKlobuchar == b.stKlobuchar;
}

ZELX_IONO_NAVIC::ZELX_IONO_NAVIC()
{
    stKlobuchar.eSatSystem = ZELSATSYSTEM_NAVIC;
}

ZELX_IONO_NAVIC::~ZELX_IONO_NAVIC() = default;

bool operator==(const ZELX_IONO_NAVIC& a, const ZELX_IONO_NAVIC& b)
{
    return a.stKlobuchar == b.stKlobuchar;
}

ZELX_IONO_GALILEO::~ZELX_IONO_GALILEO() = default;

bool operator==(const ZELX_IONO_GALILEO& a, const ZELX_IONO_GALILEO& b)
{
    return a.ucAux3 == b.ucAux3 && a.ucAux4 == b.ucAux4 && a.unAux5 == b.unAux5 && a.unAux6 == b.unAux6 &&
           a.unAux7 == b.unAux7 && a.ucAux8 == b.ucAux8;
}

// ---------------------------------------------------------------------------
// Update decisions
// ---------------------------------------------------------------------------

bool isNewLeapSecUtc(const ZELX_LEAPSEC_UTC& rLeapSecUTCCurrent, const ZELX_LEAPSEC_UTC& rLeapSecUTCNew)
{
    if (!rLeapSecUTCNew.isValid())
    {
        return false;
    }
    if (!rLeapSecUTCCurrent.isValid())
    {
        return true;
    }
    if (rLeapSecUTCNew.iDeltaTls != rLeapSecUTCCurrent.iDeltaTls)
    {
        // A leap second is one second: a larger step is reported and taken.
        ZEL_ASSERT(::abs(rLeapSecUTCNew.iDeltaTls - rLeapSecUTCCurrent.iDeltaTls) == 1);
        return true;
    }
    if (rLeapSecUTCNew.EffectivityTime.IsSet() &&
        !(rLeapSecUTCNew.EffectivityTime == rLeapSecUTCCurrent.EffectivityTime &&
          rLeapSecUTCNew.iDeltaTlsf == rLeapSecUTCCurrent.iDeltaTlsf))
    {
        // Another announcement; one that goes back in time is reported and taken.
        ZEL_ASSERT(rLeapSecUTCNew.EffectivityTime >= rLeapSecUTCCurrent.EffectivityTime);
        return true;
    }
    if (!rLeapSecUTCNew.UTCRefTime.IsSet())
    {
        return false;
    }
    if (rLeapSecUTCNew.UTCRefTime != rLeapSecUTCCurrent.UTCRefTime)
    {
        return true;
    }
    return !AreCloseRel(rLeapSecUTCNew.dA0, rLeapSecUTCCurrent.dA0) ||
           !AreCloseRel(rLeapSecUTCNew.dA1, rLeapSecUTCCurrent.dA1);
}

bool isNewClockBeiDou(const ZELX_CLOCK_BEIDOU& rClockCurrent, const ZELX_CLOCK_BEIDOU& rClockNew)
{
    if (isNewLeapSecUtc(rClockCurrent, rClockNew))
    {
        return true;
    }
    static const size_t c_aulORDER[6] = {0, 1, 4, 5, 2, 3};
    for (const size_t ulIdx : c_aulORDER)
    {
        if (!AreCloseRel(rClockNew.adGnssOffset[ulIdx], rClockCurrent.adGnssOffset[ulIdx]))
        {
            return true;
        }
    }
    return !AreCloseRel(rClockNew.dAux2, rClockCurrent.dAux2) || rClockNew.ucAux1 != rClockCurrent.ucAux1;
}

bool isNewSatClockGalileo(const ZELX_SAT_CLOCK_GALILEO& rClockCurrent,
                          const ZELX_SAT_CLOCK_GALILEO& rClockNew)
{
    if (isNewLeapSecUtc(rClockCurrent, rClockNew))
    {
        return true;
    }
    if (!rClockNew.stT0G.IsSet())
    {
        return false;
    }
    if (rClockNew.stT0G != rClockCurrent.stT0G)
    {
        return true;
    }
    return !AreCloseRel(rClockNew.dA0G, rClockCurrent.dA0G) ||
           !AreCloseRel(rClockNew.dA1G, rClockCurrent.dA1G) || rClockNew.ucAux3 != rClockCurrent.ucAux3;
}

bool isNewSysClockNavic(const ZELX_SYSCLOCK_NAVIC& rClockCurrent, const ZELX_SYSCLOCK_NAVIC& rClockNew)
{
    if (isNewLeapSecUtc(rClockCurrent, rClockNew))
    {
        return true;
    }
    // The tolerant entry test, unlike the class's own equality.
    for (size_t ulIdx = 0; ulIdx < 4; ++ulIdx)
    {
        if (!(rClockNew.astOffsets[ulIdx] == rClockCurrent.astOffsets[ulIdx]))
        {
            return true;
        }
    }
    return false;
}

} // namespace ZELN
