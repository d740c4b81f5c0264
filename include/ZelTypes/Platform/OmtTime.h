#ifndef ZELTYPES_PLATFORM_OMTTIME_H
#define ZELTYPES_PLATFORM_OMTTIME_H

/// \file
/// The time library of the platform: the leap seconds between GPS time and
/// UTC. It answers from a table of leap-second events that is built in and
/// that a host may replace while the library runs. A time object lives in
/// 48 bytes of its caller's storage and answers from the table that stood
/// when it was made; a query without an object looks at the table of the
/// moment. Reads no file: a host that knows a newer list hands it over.

#include <ZelTypes/Core/Common/ZelExport.h>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace TYR
{
namespace TIM
{

/// Result of every operation; only RC_OK is a success.
enum EResultCode : int32_t
{
    RC_OK = 0,
    RC_NO_LEAP_SECONDS = 1,     ///< the table holds no event
    RC_UNKNOWN_TIME_SYSTEM = 2, ///< the record names a time system outside ETimeSystem
    RC_BAD_EVENT_LIST = 3       ///< a replacement list broke a rule of the table; the table stays
};

/// Time systems a caller may name in a leap-second record. The answer is the
/// same for all of them (GPS time minus UTC): a caller on another scale
/// converts it.
enum ETimeSystem : int32_t
{
    TIMESYSTEM_GPS = 0,
    TIMESYSTEM_UTC = 1,
    TIMESYSTEM_TAI = 2,
    TIMESYSTEM_GLONASS = 3,
    TIMESYSTEM_GALILEO = 4,
    TIMESYSTEM_QZSS = 5,
    TIMESYSTEM_NAVIC = 6,
    TIMESYSTEM_SBAS = 7,
    TIMESYSTEM_BEIDOU = 8
};

/// The leap-second record of a query, 12 bytes. The caller sets the time
/// system; a successful query fills the rest, a failed one leaves the record
/// as it was.
struct utcLeapSecond
{
    /// ETimeSystem code, set by the caller; another value fails the query with RC_UNKNOWN_TIME_SYSTEM.
    int32_t m_TimeSystem = TIMESYSTEM_GPS;
    uint16_t m_CurrentLeapSecond = 0;      ///< GPS time minus UTC at the reference time, seconds
    uint16_t m_FutureOrPastLeapSecond = 0; ///< GPS time minus UTC from the event on, seconds
    uint16_t m_EventGpsWeek = 0;           ///< GPS week of the last day before the event
    uint8_t m_EventGpsDay = 0;             ///< that day in its week, 1 (Sunday) to 7 (Saturday)
    uint8_t m_EventValid = 0;              ///< not 0 when the three event fields hold
};

static_assert(sizeof(utcLeapSecond) == 12, "the record is exchanged as 12 bytes");

/// One leap second: the UTC day from whose midnight a new count holds.
struct SLeapSecondEvent
{
    int32_t lUtcMjdDay = 0;   ///< modified Julian day of the first UTC day of the new count
    int32_t lGpsMinusUtc = 0; ///< GPS time minus UTC from that midnight on, seconds

    /// Constructs the default state (for a record: holding no data).
    SLeapSecondEvent() = default;
    /// From the modified Julian day of the first UTC day of the new count and the count, seconds.
    SLeapSecondEvent(int32_t lMjdDay, int32_t lCount) : lUtcMjdDay(lMjdDay), lGpsMinusUtc(lCount) {}
};

/// True when the two records are equal, field by field.
inline bool operator==(const SLeapSecondEvent& a, const SLeapSecondEvent& b)
{
    return a.lUtcMjdDay == b.lUtcMjdDay && a.lGpsMinusUtc == b.lGpsMinusUtc;
}
/// Negation of operator==.
inline bool operator!=(const SLeapSecondEvent& a, const SLeapSecondEvent& b)
{
    return !(a == b);
}

/// A leap-second table, one event per leap second.
typedef std::vector<SLeapSecondEvent> LeapSecondEvents;

/// A time object: a UTC instant and the table of the moment it was made.
/// Built in place in c_ulSTORAGE_SIZE bytes of the caller's storage, aligned
/// for a double, and destroyed there.
class ZELTYPES_API COmtTime
{
public:
    /// Bytes of caller storage a time object needs.
    static constexpr size_t c_ulSTORAGE_SIZE = 48;

    /// The host's clock, as UTC.
    COmtTime();
    /// A given UTC instant as a modified Julian date (days and fraction of day).
    explicit COmtTime(double dUtcMjd);
    /// Destroys the object.
    ~COmtTime();
    /// Deleted: objects of this class are not copied or moved.
    COmtTime(const COmtTime&) = delete;
    /// Deleted: objects of this class are not copied or moved.
    COmtTime& operator=(const COmtTime&) = delete;

    /// Returns m_dUtcMjd.
    double GetUtcMjd() const { return m_dUtcMjd; }

    /// The leap seconds at the object's instant, from the object's table:
    /// the count in force, and the next event after the instant or, when none
    /// is known, the last one before it.
    EResultCode GetLeapSecond(utcLeapSecond& rstInfo) const;

private:
    boost::shared_ptr<const LeapSecondEvents> m_pEvents;
    double m_dUtcMjd;
};

/// The same query without an object: now, by the host's clock, from the
/// table of the moment.
ZELTYPES_API EResultCode GetLeapSecondInfo(utcLeapSecond& rstInfo);

/// Replaces the table. The events are in order of their day, each after the
/// GPS epoch (MJD 44244) and before MJD 86000, with counts 0 to 65535 that
/// step by one second from event to event; before the first event the count
/// is 0. An empty list leaves the library with no leap seconds: queries then
/// fail. A list that breaks a rule gives RC_BAD_EVENT_LIST and the table
/// stays as it was. Queries running meanwhile keep the table they started on.
ZELTYPES_API EResultCode SetLeapSecondEvents(const LeapSecondEvents& rvecEvents);

/// A copy of the table in force.
ZELTYPES_API LeapSecondEvents GetLeapSecondEvents();

/// The built-in table: every leap second from the GPS epoch to 2017-01-01,
/// when GPS time minus UTC became 18 s.
ZELTYPES_API const LeapSecondEvents& GetEmbeddedLeapSecondEvents();

} // namespace TIM
} // namespace TYR

#endif
