#ifndef ZELTYPES_CORE_COMMON_MJDTIME_H
#define ZELTYPES_CORE_COMMON_MJDTIME_H

/// \file
/// SMjdTime: the one time value of the library. A modified Julian day, the
/// milliseconds of that day and the tolerance used when two times compare.
/// It knows no time scale; GPS, BeiDou, GLONASS and UTC times all sit in it.
/// Everything is inline: the record is copied and compared in hot paths.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <iomanip>
#include <istream>
#include <ostream>

namespace ZELN
{

constexpr uint32_t c_ulMAX_MJD_DAY = 86000;     ///< first day number out of range
constexpr uint32_t c_ulMSEC_PER_DAY = 86400000; ///< first millisecond value out of range
/// Milliseconds in a week.
constexpr uint32_t c_ulMSEC_PER_WEEK = 604800000;
/// Seconds in a week.
constexpr uint32_t c_ulSEC_PER_WEEK = 604800;
/// Days in a week.
constexpr uint32_t c_ulDAYS_PER_WEEK = 7;
constexpr uint32_t c_ulMAX_GPS_WEEK = 5965; ///< highest GPS week accepted
constexpr int32_t c_lGPS_EPOCH_MJD = 44244; ///< GPS week 0, day 0
/// GPS week in which BeiDou week 0 begins.
constexpr uint32_t c_ulGPS_WEEKS_AT_BDS_REFTIME = 1356;
constexpr double c_dBDS_OFFSET_MSEC = 14000.0; ///< GPS time minus BeiDou time
/// Weeks in one epoch of the 10-bit broadcast GPS week.
constexpr uint32_t c_ulGPS_WEEK_ROLLOVER = 1024;
/// Julian date minus modified Julian day, in days.
constexpr double c_dJD_MJD_OFFSET = 2400000.5;
/// First year that the date checks accept.
constexpr int c_iMIN_VALID_YEAR = 1980;
/// Last year that the date checks accept.
constexpr int c_iMAX_VALID_YEAR = 2100;

/// Fixed underlying types: an image or a text may carry any 32-bit value.
enum EMjdTimeAccuracy : int32_t
{
    MJDACC_EXACT = 0,
    MJDACC_NANOSECOND = 1,
    MJDACC_MICROSECOND = 2,
    MJDACC_MILLISECOND = 3,
    MJDACC_SECOND = 4,
    MJDACC_MINUTE = 5,
    MJDACC_HOUR = 6
};

/// Index into the table of rounding steps (milliseconds).
enum EMjdTimeRoundStep : int32_t
{
    MJDSTEP_1MS = 0,
    MJDSTEP_10MS = 1,
    MJDSTEP_100MS = 2,
    MJDSTEP_1S = 3,
    MJDSTEP_1MIN = 4,
    MJDSTEP_1H = 5,
    MJDSTEP_1US = 6,
    MJDSTEP_1NS = 7
};

/// Text forms of WriteText and ReadText: month and year, date and time, MJD, GPS week and seconds, GPS week
/// and milliseconds.
enum EMjdTimeTextForm : int32_t
{
    MJDTXT_MONTHYEAR = 0,
    MJDTXT_DATETIME = 1,
    MJDTXT_MJD = 2,
    MJDTXT_GPS_SECONDS = 3,
    MJDTXT_GPS_MILLISECONDS = 4
};

namespace MjdDetail
{

constexpr double c_adRoundStepMs[] = {1.0, 10.0, 100.0, 1000.0, 60000.0, 3600000.0, 0.001, 1e-06};
constexpr uint32_t c_aulDaysPerMonth[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr double c_dDoubleEpsilon = 2.220446049250313e-16;

/// Converting a double outside the 64-bit range to an integer is undefined;
/// such values (and NaN) only arise after a failed check, and then give 0.
inline int64_t TruncToInt64(double d)
{
    if (!(d > -9.2e18 && d < 9.2e18))
    {
        return 0;
    }
    return static_cast<int64_t>(d);
}

inline bool FitsInt32(double d)
{
    return d > -2147483649.0 && d < 2147483648.0;
}

/// Narrowing to 32 bits wraps, as the arithmetic of the day number does.
inline int32_t WrapToInt32(int64_t l)
{
    return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(l)));
}

inline int32_t AddWrap(int32_t lA, int64_t lB)
{
    return WrapToInt32(
        static_cast<int64_t>(static_cast<uint64_t>(static_cast<int64_t>(lA)) + static_cast<uint64_t>(lB)));
}

/// Modified Julian day of a calendar date; C divisions, truncation toward zero.
inline int32_t CalendarToMjd(int iYear, int iMonth, int iDay)
{
    const int64_t y = iMonth < 3 ? static_cast<int64_t>(iYear) - 1 : static_cast<int64_t>(iYear);
    const int64_t m = iMonth > 2 ? static_cast<int64_t>(iMonth) + 1 : static_cast<int64_t>(iMonth) + 13;
    return WrapToInt32(TruncToInt64(365.25 * static_cast<double>(y)) +
                       TruncToInt64(30.6001 * static_cast<double>(m)) + iDay + y / 400 - y / 100 - 679004);
}

/// Modified Julian day of day N of a year; the division by 1000 cancels the
/// century term over the library's range of years.
inline int32_t YearDayToMjd(int iYear, int iDoy)
{
    const int64_t d = static_cast<int64_t>(iYear) - 1901;
    return WrapToInt32(static_cast<int64_t>(iDoy) + 15384 + (static_cast<int64_t>(iYear) - 1001) / 1000 +
                       (d / 4) * 1461 - d / 100 + (d % 4) * 365);
}

/// floor(x / dUnit) for 0 <= x < 1e12 and a whole unit that is not a power of
/// two (60, 3600, 86400, 86400000). For such units the quotient rounded to a
/// double never reaches the next whole number early, so this is also
/// trunc(x / dUnit) as the division gives it; a product by the reciprocal and
/// one correction either way find it without the division.
inline int64_t FloorQuotient(double x, double dUnit, double dInvUnit)
{
    int64_t lQuot = static_cast<int64_t>(x * dInvUnit);
    if (static_cast<double>(lQuot) * dUnit > x)
    {
        --lQuot;
    }
    else if (static_cast<double>(lQuot + 1) * dUnit <= x)
    {
        ++lQuot;
    }
    return lQuot;
}

/// Range of FloorQuotient; NaN is outside.
inline bool IsQuotientRange(double x)
{
    return x >= 0.0 && x < 1e12;
}

/// Whole days and their rest of a span of GPS time: the division and fmod of
/// the GPS setters, exact for 0 <= x < 1e12. The rest x - lDays * dDay is
/// exact there, as fmod is, and keeps the sign of a negative zero.
inline void SplitDays(double x, double dDay, double dInvDay, int64_t& rlDays, double& rdRest)
{
    if (IsQuotientRange(x))
    {
        rlDays = FloorQuotient(x, dDay, dInvDay);
        rdRest = x - static_cast<double>(rlDays) * dDay;
        return;
    }
    rlDays = TruncToInt64(x / dDay);
    rdRest = std::fmod(x, dDay);
}

/// From 1900-03-01 to 2100-02-28 every fourth year is a leap year and the
/// double-precision calendar rule gives the civil date; there the date comes
/// from integers. Day index 0 is 1900-03-01.
constexpr int32_t c_lCIVIL_FIRST_MJD = 15079;
constexpr uint32_t c_ulCIVIL_DAYS = 73049;
/// With at most this many milliseconds the fraction of the day cannot round
/// the Julian date of the calendar rule up into the next day.
constexpr double c_dCIVIL_LAST_MSEC = 86399999.0;

inline void CivilFromDayIndex(uint32_t ulIndex, int& riYear, int& riMonth, int& riDay)
{
    // Years counted from 1 March, 1461 days to four of them.
    const uint32_t ulQuarterDays = 4 * ulIndex + 3;
    const uint32_t ulYears = ulQuarterDays / 1461;
    const uint32_t ulDayOfYear = (ulQuarterDays % 1461) / 4;
    // Months from March (0) to February (11); 153 days to five of them.
    const uint32_t ulMonth = (5 * ulDayOfYear + 2) / 153;
    const uint32_t ulJanFeb = ulMonth >= 10 ? 1u : 0u;
    riDay = static_cast<int>(ulDayOfYear - (153 * ulMonth + 2) / 5 + 1);
    riMonth = static_cast<int>(ulMonth + 3 - 12 * ulJanFeb);
    riYear = static_cast<int>(1900 + ulYears + ulJanFeb);
}

inline bool IsLeapYear(int iYear)
{
    return (iYear % 400 == 0) || (iYear % 4 == 0 && iYear % 100 != 0);
}

inline uint32_t DaysInMonth(int iYear, int iMonth)
{
    if (iMonth == 2 && IsLeapYear(iYear))
    {
        return 29;
    }
    return c_aulDaysPerMonth[iMonth];
}

} // namespace MjdDetail

/// A time: modified Julian day, milliseconds of that day and the tolerance with which it compares. Holds any
/// time scale; GPS and BeiDou setters and getters convert weeks.
struct SMjdTime
{
    /// Modified Julian day, 0 up to c_ulMAX_MJD_DAY (exclusive) when valid.
    int32_t m_lMjdDay;
    /// Milliseconds of the day, 0 up to 86400000 (exclusive) when valid.
    double m_dMjdFractMilliseconds;
    /// Tolerance of comparisons within a day, as the left operand's accuracy.
    EMjdTimeAccuracy m_eAccuracy;

    // ---------------------------------------------------------------- construction

    /// Constructs the default state (for a record: holding no data).
    SMjdTime() : m_lMjdDay(0), m_dMjdFractMilliseconds(0.0), m_eAccuracy(MJDACC_NANOSECOND) {}

    /// Day 0 at midnight, with the given comparison accuracy.
    explicit SMjdTime(const EMjdTimeAccuracy& eAccuracy)
        : m_lMjdDay(0), m_dMjdFractMilliseconds(0.0), m_eAccuracy(eAccuracy)
    {
    }

    /// Calendar date and time of day (seconds may carry a fraction); a bad date is reported and stored
    /// unchecked.
    SMjdTime(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds,
             const EMjdTimeAccuracy& eAccuracy = MJDACC_NANOSECOND)
        : m_lMjdDay(0), m_dMjdFractMilliseconds(0.0), m_eAccuracy(eAccuracy)
    {
        SetDateTime(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
    }

    /// Calendar date with the time as the fraction of dDay; a bad date is reported.
    SMjdTime(int iYear, int iMonth, double dDay, const EMjdTimeAccuracy& eAccuracy = MJDACC_NANOSECOND)
        : m_lMjdDay(0), m_dMjdFractMilliseconds(0.0), m_eAccuracy(eAccuracy)
    {
        ZEL_ASSERT(__IsValidDate(iYear, iMonth, dDay));
        const int64_t lDay = MjdDetail::TruncToInt64(dDay);
        m_lMjdDay = MjdDetail::CalendarToMjd(iYear, iMonth, static_cast<int>(lDay));
        m_dMjdFractMilliseconds = (dDay - std::floor(dDay)) * 86400000.0;
    }

    /// GPS week and seconds of week; a week above c_ulMAX_GPS_WEEK or seconds outside [0, 604800) are
    /// reported.
    SMjdTime(unsigned int uiGpsWeek, double dGpsSeconds,
             const EMjdTimeAccuracy& eAccuracy = MJDACC_NANOSECOND)
        : m_lMjdDay(0), m_dMjdFractMilliseconds(0.0), m_eAccuracy(eAccuracy)
    {
        ZEL_ASSERT(uiGpsWeek <= c_ulMAX_GPS_WEEK && dGpsSeconds >= 0.0 && dGpsSeconds < c_ulSEC_PER_WEEK);
        int64_t lDays = 0;
        double dRest = 0.0;
        MjdDetail::SplitDays(dGpsSeconds, 86400.0, 1.0 / 86400.0, lDays, dRest);
        m_lMjdDay = MjdDetail::WrapToInt32(static_cast<int64_t>(uiGpsWeek) * 7 + c_lGPS_EPOCH_MJD + lDays);
        m_dMjdFractMilliseconds = dRest * 1000.0;
    }

    /// Modified Julian date in days, with the time as its fraction.
    explicit SMjdTime(double dMjd, const EMjdTimeAccuracy& eAccuracy = MJDACC_NANOSECOND)
        : m_lMjdDay(0), m_dMjdFractMilliseconds(0.0), m_eAccuracy(eAccuracy)
    {
        SetMjd(dMjd);
    }

    // ---------------------------------------------------------------- state

    /// True when the day lies in [0, c_ulMAX_MJD_DAY) and the milliseconds in [0, 86400000).
    bool isValid() const
    {
        return m_lMjdDay >= 0 && static_cast<uint32_t>(m_lMjdDay) < c_ulMAX_MJD_DAY &&
               m_dMjdFractMilliseconds >= 0.0 && m_dMjdFractMilliseconds < c_ulMSEC_PER_DAY;
    }

    /// The same test under the name that the checks of the epoch records use.
    bool IsValid() const { return isValid(); }

    /// Day 0, midnight, nanosecond accuracy: the default time.
    void Reset()
    {
        m_lMjdDay = 0;
        m_dMjdFractMilliseconds = 0.0;
        m_eAccuracy = MJDACC_NANOSECOND;
    }

    /// Day 0 at midnight, with the given accuracy.
    void ResetAt(const EMjdTimeAccuracy& eAccuracy)
    {
        m_lMjdDay = 0;
        m_dMjdFractMilliseconds = 0.0;
        m_eAccuracy = eAccuracy;
    }

    /// Differs from a default time: earlier at this record's accuracy, or
    /// later at one nanosecond.
    bool IsSet() const
    {
        const SMjdTime stDefault;
        return IsEarlier(m_eAccuracy, *this, stDefault) || IsEarlier(MJDACC_NANOSECOND, stDefault, *this);
    }

    /// Modified Julian day.
    int32_t GetMjdDay() const { return m_lMjdDay; }
    /// Milliseconds of the day.
    double GetMjdFractMilliseconds() const { return m_dMjdFractMilliseconds; }
    /// Comparison accuracy.
    EMjdTimeAccuracy GetAccuracy() const { return m_eAccuracy; }

    /// The setters store the value also after a failed check: the record never
    /// clamps and never refuses.
    void SetMjdDay(int32_t lMjdDay)
    {
        ZEL_ASSERT_TEXT(lMjdDay >= 0, "lMjdDay>=0");
        ZEL_ASSERT(static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY);
        m_lMjdDay = lMjdDay;
    }

    /// Sets the milliseconds of the day; 86400000 or more is reported and stored.
    void SetMjdFractMilliseconds(double dMjdMilliseconds)
    {
        ZEL_ASSERT(dMjdMilliseconds < c_ulMSEC_PER_DAY);
        m_dMjdFractMilliseconds = dMjdMilliseconds;
    }

    /// Sets the comparison accuracy.
    void SetAccuracy(const EMjdTimeAccuracy& eAccuracy) { m_eAccuracy = eAccuracy; }

    /// Sets day and milliseconds of the day; values out of range are reported and stored.
    void SetMjdDayMilliseconds(int32_t lMjdDay, double dMjdMilliseconds)
    {
        ZEL_ASSERT_TEXT(lMjdDay >= 0, "lMjdDay>=0");
        ZEL_ASSERT((static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) &&
                   (dMjdMilliseconds < c_ulMSEC_PER_DAY));
        m_lMjdDay = lMjdDay;
        m_dMjdFractMilliseconds = dMjdMilliseconds;
    }

    /// Sets the day and the time as a fraction of a day.
    void SetMjdDayFract(int32_t lMjdDay, double dFractDay)
    {
        ZEL_ASSERT_TEXT(lMjdDay >= 0, "lMjdDay>=0");
        ZEL_ASSERT((static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY) && dFractDay < 1.0 &&
                   dFractDay >= 0.0);
        m_lMjdDay = lMjdDay;
        m_dMjdFractMilliseconds = dFractDay * 86400000.0;
    }

    // ---------------------------------------------------------------- arithmetic

    /// Adds whole days (negative moves back); a result out of range is reported.
    void AddDays(int32_t lDays)
    {
        m_lMjdDay = MjdDetail::AddWrap(m_lMjdDay, lDays);
        ZEL_ASSERT_TEXT(m_lMjdDay >= 0, "m_lMjdDay>=0");
        ZEL_ASSERT_TEXT(static_cast<unsigned int>(m_lMjdDay) < c_ulMAX_MJD_DAY,
                        "static_cast<unsigned int>(m_lMjdDay) <c_ulMAX_MJD_DAY");
    }

    /// No check here, unlike AddDays.
    void SubDays(int32_t lDays) { m_lMjdDay = MjdDetail::AddWrap(m_lMjdDay, -static_cast<int64_t>(lDays)); }

    /// The one normalisation of the record: all timed arithmetic goes through it.
    void AddMilliseconds(double dDelta)
    {
        m_dMjdFractMilliseconds += dDelta;
        double dIntPart = 0.0;
        const double dFractPart = std::modf(m_dMjdFractMilliseconds / 86400000.0, &dIntPart);
        // A day count beyond 32 bits (or not a number) cannot be carried
        // without undefined behaviour; the unnormalised sum stays and the
        // checks below report it.
        if (MjdDetail::FitsInt32(dIntPart))
        {
            const int32_t lDays = static_cast<int32_t>(dIntPart);
            m_lMjdDay = MjdDetail::AddWrap(m_lMjdDay, lDays);
            m_dMjdFractMilliseconds -= lDays * 86400000.0;
            if (std::fabs(dFractPart) < MjdDetail::c_dDoubleEpsilon)
            {
                m_dMjdFractMilliseconds = 0.0;
            }
            else if (dFractPart < 0.0)
            {
                m_dMjdFractMilliseconds += 86400000.0;
                m_lMjdDay = MjdDetail::AddWrap(m_lMjdDay, -1);
            }
        }
        ZEL_ASSERT(m_lMjdDay >= 0);
        ZEL_ASSERT(static_cast<unsigned int>(m_lMjdDay) < c_ulMAX_MJD_DAY);
        ZEL_ASSERT(m_dMjdFractMilliseconds < static_cast<double>(c_ulMSEC_PER_DAY) &&
                   m_dMjdFractMilliseconds >= 0.0);
    }

    /// Adds seconds (negative moves back), carrying into the day.
    void AddSeconds(double d) { AddMilliseconds(d * 1000.0); }
    /// Adds minutes (negative moves back), carrying into the day.
    void AddMinutes(double d) { AddMilliseconds(d * 60000.0); }
    /// Adds hours (negative moves back), carrying into the day.
    void AddHours(double d) { AddMilliseconds(d * 3600000.0); }
    /// Subtracts milliseconds, carrying into the day.
    void SubMilliseconds(double d) { AddMilliseconds(-d); }
    /// Subtracts seconds, carrying into the day.
    void SubSeconds(double d) { AddMilliseconds(d * -1000.0); }
    /// Subtracts minutes, carrying into the day.
    void SubMinutes(double d) { AddMilliseconds(d * -60000.0); }
    /// Subtracts hours, carrying into the day.
    void SubHours(double d) { AddMilliseconds(d * -3600000.0); }

    /// a minus b in milliseconds; the day difference is taken in 32 bits.
    static double DiffAsMilliseconds(const SMjdTime& a, const SMjdTime& b)
    {
        const int32_t lDayDiff = MjdDetail::AddWrap(a.m_lMjdDay, -static_cast<int64_t>(b.m_lMjdDay));
        return (a.m_dMjdFractMilliseconds - b.m_dMjdFractMilliseconds) + lDayDiff * 86400000.0;
    }

    /// a minus b in days.
    static double DiffAsDays(const SMjdTime& a, const SMjdTime& b)
    {
        return (a.m_dMjdFractMilliseconds / 86400000.0 + a.m_lMjdDay) -
               (b.m_dMjdFractMilliseconds / 86400000.0 + b.m_lMjdDay);
    }

    // ---------------------------------------------------------------- rounding

    /// Rounds the time of day to the nearest multiple of dMilliSeconds (> 0), carrying whole days.
    void RoundToMilliseconds(double dMilliSeconds)
    {
        ZEL_ASSERT(dMilliSeconds > 0.0);
        m_dMjdFractMilliseconds = std::floor(m_dMjdFractMilliseconds / dMilliSeconds + 0.5) * dMilliSeconds;
        CarryWholeDays();
    }

    /// Rounds the time of day down to a multiple of dMilliSeconds (> 0).
    void FloorToMilliseconds(double dMilliSeconds)
    {
        ZEL_ASSERT(dMilliSeconds > 0.0);
        m_dMjdFractMilliseconds = std::floor(m_dMjdFractMilliseconds / dMilliSeconds) * dMilliSeconds;
    }

    /// Rounds the time of day up to a multiple of dMilliSeconds (> 0), carrying whole days.
    void CeilToMilliseconds(double dMilliSeconds)
    {
        ZEL_ASSERT(dMilliSeconds > 0.0);
        m_dMjdFractMilliseconds = std::ceil(m_dMjdFractMilliseconds / dMilliSeconds) * dMilliSeconds;
        CarryWholeDays();
    }

    /// An index outside the step table would read past it; such a call
    /// leaves the record unchanged.
    void RoundTo(EMjdTimeRoundStep eStep)
    {
        if (!IsRoundStep(eStep))
        {
            return;
        }
        const double dStep = MjdDetail::c_adRoundStepMs[eStep];
        m_dMjdFractMilliseconds = std::floor(m_dMjdFractMilliseconds / dStep + 0.5) * dStep;
        CarryOneDay();
    }

    /// Rounds the time of day down to a multiple of the step; an unknown step leaves the time unchanged.
    void FloorTo(EMjdTimeRoundStep eStep)
    {
        if (!IsRoundStep(eStep))
        {
            return;
        }
        const double dStep = MjdDetail::c_adRoundStepMs[eStep];
        m_dMjdFractMilliseconds = std::floor(m_dMjdFractMilliseconds / dStep) * dStep;
    }

    /// Rounds the time of day up to a multiple of the step, carrying into the next day; an unknown step
    /// leaves the time unchanged.
    void CeilTo(EMjdTimeRoundStep eStep)
    {
        if (!IsRoundStep(eStep))
        {
            return;
        }
        const double dStep = MjdDetail::c_adRoundStepMs[eStep];
        m_dMjdFractMilliseconds = std::ceil(m_dMjdFractMilliseconds / dStep) * dStep;
        CarryOneDay();
    }

    // ---------------------------------------------------------------- comparison

    /// Across days the tolerance takes no part; within a day the accuracy row decides.
    static bool IsEarlier(EMjdTimeAccuracy eAccuracy, const SMjdTime& a, const SMjdTime& b)
    {
        const int32_t lDayDiff = MjdDetail::AddWrap(a.m_lMjdDay, -static_cast<int64_t>(b.m_lMjdDay));
        if (lDayDiff != 0)
        {
            return lDayDiff < 0;
        }
        const double d = b.m_dMjdFractMilliseconds - a.m_dMjdFractMilliseconds;
        switch (eAccuracy)
        {
        case MJDACC_NANOSECOND:
            return d > 1e-6;
        case MJDACC_MICROSECOND:
            return d > 0.001;
        case MJDACC_MILLISECOND:
            // "at least 1 after truncation to 32 bits" is d >= 1.0 for every
            // d, without the undefined conversion of a huge difference.
            return d >= 1.0;
        case MJDACC_SECOND:
            return d > 1000.0;
        case MJDACC_MINUTE:
            return d > 60000.0;
        case MJDACC_HOUR:
            return d > 3600000.0;
        case MJDACC_EXACT:
        default:
            return d > 0.0;
        }
    }

    /// True when this time is earlier than b, at this time's accuracy.
    bool operator<(const SMjdTime& b) const { return IsEarlier(m_eAccuracy, *this, b); }
    /// True when b is earlier than this time, at b's accuracy.
    bool operator>(const SMjdTime& b) const { return IsEarlier(b.m_eAccuracy, b, *this); }
    /// True when b is not earlier than this time, at b's accuracy.
    bool operator<=(const SMjdTime& b) const { return !IsEarlier(b.m_eAccuracy, b, *this); }
    /// True when this time is not earlier than b, at this time's accuracy.
    bool operator>=(const SMjdTime& b) const { return !IsEarlier(m_eAccuracy, *this, b); }
    /// Tolerant equality: neither time is earlier than the other, each at its own accuracy.
    bool operator==(const SMjdTime& b) const
    {
        return !IsEarlier(m_eAccuracy, *this, b) && !IsEarlier(b.m_eAccuracy, b, *this);
    }
    /// Negation of operator==.
    bool operator!=(const SMjdTime& b) const
    {
        return IsEarlier(m_eAccuracy, *this, b) || IsEarlier(b.m_eAccuracy, b, *this);
    }

    // ---------------------------------------------------------------- calendar and GNSS setters

    /// Sets calendar date and time of day; a bad date is reported and stored unchecked.
    void SetDateTime(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds)
    {
        ZEL_ASSERT(__IsValidDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds));
        m_lMjdDay = MjdDetail::CalendarToMjd(iYear, iMonth, iDay);
        m_dMjdFractMilliseconds = (iHour * 3600.0 + iMinute * 60.0 + dSeconds) * 1000.0;
    }

    /// Sets the modified Julian date in days (fraction = time of day); c_ulMAX_MJD_DAY or more is reported.
    void SetMjd(double dMjd)
    {
        ZEL_ASSERT(dMjd < c_ulMAX_MJD_DAY);
        m_lMjdDay = MjdDetail::WrapToInt32(MjdDetail::TruncToInt64(dMjd));
        m_dMjdFractMilliseconds = (dMjd - std::floor(dMjd)) * 86400000.0;
    }

    /// Sets the modified Julian date in days, normalising any value through SetMjdDayFract.
    void SetMjdAny(double dMjd)
    {
        const int64_t lDay = MjdDetail::TruncToInt64(dMjd);
        SetMjdDayFract(MjdDetail::WrapToInt32(lDay), dMjd - std::trunc(dMjd));
    }

    /// Sets the Julian date in days.
    void SetJulianDate(double dJd) { SetMjdAny(dJd - c_dJD_MJD_OFFSET); }

    /// The GPS setters accept the end of the week itself (<=), unlike the constructor.
    void SetGpsTime(unsigned short unGpsWeek, double dGpsSeconds)
    {
        ZEL_ASSERT(unGpsWeek <= c_ulMAX_GPS_WEEK && dGpsSeconds >= 0.0 && dGpsSeconds <= c_ulSEC_PER_WEEK);
        int64_t lDays = 0;
        double dRest = 0.0;
        MjdDetail::SplitDays(dGpsSeconds, 86400.0, 1.0 / 86400.0, lDays, dRest);
        m_lMjdDay = MjdDetail::WrapToInt32(static_cast<int64_t>(unGpsWeek) * 7 + c_lGPS_EPOCH_MJD + lDays);
        m_dMjdFractMilliseconds = dRest * 1000.0;
    }

    /// Sets GPS week and milliseconds of week (the end of the week itself is accepted).
    void SetGpsTimeMs(unsigned short unGpsWeek, double dGpsMillseconds)
    {
        ZEL_ASSERT(unGpsWeek <= c_ulMAX_GPS_WEEK && dGpsMillseconds >= 0.0 &&
                   dGpsMillseconds <= c_ulMSEC_PER_WEEK);
        int64_t lDays = 0;
        double dRest = 0.0;
        MjdDetail::SplitDays(dGpsMillseconds, 86400000.0, 1.0 / 86400000.0, lDays, dRest);
        m_lMjdDay = MjdDetail::WrapToInt32(static_cast<int64_t>(unGpsWeek) * 7 + c_lGPS_EPOCH_MJD + lDays);
        m_dMjdFractMilliseconds = dRest;
    }

    /// Sets midnight of GPS day uiGpsDn (1 to 7) of the week.
    void SetGpsDay(unsigned short unGpsWeek, unsigned int uiGpsDn)
    {
        ZEL_ASSERT(unGpsWeek <= c_ulMAX_GPS_WEEK && uiGpsDn >= 1 && uiGpsDn <= c_ulDAYS_PER_WEEK);
        m_lMjdDay = MjdDetail::WrapToInt32(static_cast<int64_t>(unGpsWeek) * 7 + uiGpsDn + c_lGPS_EPOCH_MJD);
        m_dMjdFractMilliseconds = 0.0;
    }

    /// The added week is a 16-bit value: a sum past 65535 wraps.
    void SetGpsTimeRollover(unsigned short unGpsWeek, double dGpsSeconds, bool bRollover)
    {
        SetGpsTimeMs(bRollover ? AddWeeks16(unGpsWeek, c_ulGPS_WEEK_ROLLOVER) : unGpsWeek,
                     dGpsSeconds * 1000.0);
        AddMilliseconds(0.0);
    }

    /// As SetGpsTimeMs, adding one 1024-week epoch to the week when bRollover is true.
    void SetGpsTimeMsRollover(unsigned short unGpsWeek, double dGpsMillseconds, bool bRollover)
    {
        SetGpsTimeMs(bRollover ? AddWeeks16(unGpsWeek, c_ulGPS_WEEK_ROLLOVER) : unGpsWeek, dGpsMillseconds);
        AddMilliseconds(0.0);
    }

    /// GPS week of a 10-bit broadcast and seconds of week: adds exactly one 1024-week epoch (weeks 1024 to
    /// 2047), whatever the present date. A week broadcast since 2019-04-07 needs two epochs, so
    /// SetGpsTime1024(297, ...) lands in 2005; ResolveGpsWeek of ZelTypes/Util finds the week near a known
    /// time.
    void SetGpsTime1024(unsigned short unGpsWeek, double dGpsSeconds)
    {
        SetGpsTimeMs(AddWeeks16(unGpsWeek, c_ulGPS_WEEK_ROLLOVER), dGpsSeconds * 1000.0);
        AddMilliseconds(0.0);
    }

    /// As SetGpsTime1024, with milliseconds of week: adds exactly one 1024-week epoch.
    void SetGpsTimeMs1024(unsigned short unGpsWeek, double dGpsMillseconds)
    {
        SetGpsTimeMs(AddWeeks16(unGpsWeek, c_ulGPS_WEEK_ROLLOVER), dGpsMillseconds);
        AddMilliseconds(0.0);
    }

    /// BeiDou setters store the equivalent GPS time.
    void SetBdsTime(unsigned int uiBdsWeek, double dBdsSeconds)
    {
        SetGpsTime(AddWeeks16(uiBdsWeek, c_ulGPS_WEEKS_AT_BDS_REFTIME), dBdsSeconds);
        AddMilliseconds(c_dBDS_OFFSET_MSEC);
    }

    /// Sets BeiDou week and milliseconds of week, stored as the equivalent GPS time.
    void SetBdsTimeMs(unsigned int uiBdsWeek, double dBdsMilliseconds)
    {
        SetGpsTimeMs(AddWeeks16(uiBdsWeek, c_ulGPS_WEEKS_AT_BDS_REFTIME), dBdsMilliseconds);
        AddMilliseconds(c_dBDS_OFFSET_MSEC);
    }

    /// uiBdsDn counts from 0, the GPS day number from 1.
    void SetBdsDay(unsigned int uiBdsWeek, unsigned int uiBdsDn)
    {
        SetGpsDay(AddWeeks16(uiBdsWeek, c_ulGPS_WEEKS_AT_BDS_REFTIME), uiBdsDn + 1);
        AddMilliseconds(c_dBDS_OFFSET_MSEC);
    }

    /// Sets year, day of year (1 = 1 January), hour, minute and seconds.
    void SetYearDayTime(int iYear, int iDoy, int iHour, int iMinute, double dSeconds)
    {
        const double dSecOfDay = static_cast<double>(static_cast<int64_t>(iMinute) * 60) + dSeconds +
                                 static_cast<double>(static_cast<int64_t>(iHour) * 3600);
        SetMjdDayFract(MjdDetail::YearDayToMjd(iYear, iDoy), dSecOfDay / 86400.0);
    }

    /// Sets year, day of year (1 = 1 January) and seconds of the day.
    void SetYearDaySeconds(int iYear, int iDoy, double dSecondOfDay)
    {
        SetMjdDayFract(MjdDetail::YearDayToMjd(iYear, iDoy), dSecondOfDay / 86400.0);
    }

    // ---------------------------------------------------------------- GNSS getters

    /// Weeks and days since the GPS epoch from the unsigned 32-bit day count:
    /// a time before the epoch gives a very large week.
    uint32_t GpsWeeks() const
    {
        return (static_cast<uint32_t>(m_lMjdDay) - static_cast<uint32_t>(c_lGPS_EPOCH_MJD)) / 7u;
    }
    /// Day of the GPS week, 0 (Sunday) to 6, from the unsigned 32-bit day count.
    uint32_t GpsDays() const
    {
        return (static_cast<uint32_t>(m_lMjdDay) - static_cast<uint32_t>(c_lGPS_EPOCH_MJD)) % 7u;
    }

    /// Full GPS week (not truncated to 10 bits).
    unsigned int GetGpsWeek() const { return GpsWeeks(); }

    /// GPS week minus 1024, in 16 bits (wraps for a week below 1024).
    unsigned short GetGpsWeekModulo() const
    {
        return static_cast<unsigned short>(static_cast<unsigned short>(GpsWeeks()) - c_ulGPS_WEEK_ROLLOVER);
    }

    /// Integer milliseconds of the week; a carry into the next week gives the
    /// small value and no week.
    unsigned int GetGpsMilliseconds() const
    {
        uint32_t ulWeek = 0;
        uint32_t ulMs = 0;
        RoundGpsMs(ulWeek, ulMs);
        return ulMs;
    }

    /// Seconds of the GPS week, not rounded.
    double GetGpsSeconds() const { return (GpsDays() * 86400000.0 + m_dMjdFractMilliseconds) / 1000.0; }

    /// Full GPS week and seconds of week, not rounded.
    void GetGpsTime(unsigned short& runGpsWeek, double& rdSeconds) const
    {
        runGpsWeek = static_cast<unsigned short>(GpsWeeks());
        rdSeconds = (GpsDays() * 86400000.0 + m_dMjdFractMilliseconds) / 1000.0;
    }

    /// GPS week and integer milliseconds of week, rounded; a carry past the week's end moves to the next
    /// week.
    void GetGpsTimeMs(unsigned short& runGpsWeek, unsigned int& ruiMilliseconds) const
    {
        uint32_t ulWeek = 0;
        RoundGpsMs(ulWeek, ruiMilliseconds);
        runGpsWeek = static_cast<unsigned short>(ulWeek);
    }

    /// GPS week and seconds of week rounded to the millisecond; with bRollover the week less one 1024-week
    /// epoch.
    void GetGpsTimeRounded(unsigned short& runGpsWeek, double& rdSeconds, bool bRollover) const
    {
        unsigned int uiMs = 0;
        GetGpsTimeMsRollover(runGpsWeek, uiMs, bRollover);
        rdSeconds = uiMs / 1000.0;
    }

    /// GPS week and rounded milliseconds of week; with bRollover the week less 1024 (a week below 1024 is
    /// reported and kept).
    void GetGpsTimeMsRollover(unsigned short& runGpsWeek, unsigned int& ruiMilliseconds, bool bRollover) const
    {
        GetGpsTimeMs(runGpsWeek, ruiMilliseconds);
        if (bRollover)
        {
            if (runGpsWeek < c_ulGPS_WEEK_ROLLOVER)
            {
                ZEL_ASSERT(false);
            }
            else
            {
                runGpsWeek = static_cast<unsigned short>(runGpsWeek - c_ulGPS_WEEK_ROLLOVER);
            }
        }
    }

    /// GPS week less one 1024-week epoch and seconds of week rounded to the millisecond.
    void GetGpsTimeRounded1024(unsigned short& runGpsWeek, double& rdSeconds) const
    {
        GetGpsTimeRounded(runGpsWeek, rdSeconds, true);
    }

    /// GPS week less one 1024-week epoch and rounded milliseconds of week.
    void GetGpsTimeMs1024(unsigned short& runGpsWeek, unsigned int& ruiMilliseconds) const
    {
        GetGpsTimeMsRollover(runGpsWeek, ruiMilliseconds, true);
    }

    /// Day number 1 to 7; the day's first half rounds down to the previous day.
    void GetGpsDay(unsigned short& runGpsWeek, unsigned char& rucGpsDn) const
    {
        runGpsWeek = static_cast<unsigned short>(GpsWeeks());
        rucGpsDn = static_cast<unsigned char>(MjdDetail::TruncToInt64(
            (GpsDays() * 86400000.0 + m_dMjdFractMilliseconds) / 1000.0 / 86400.0 + 0.5));
        if (rucGpsDn == 0)
        {
            ZEL_ASSERT(runGpsWeek > 0);
            runGpsWeek = static_cast<unsigned short>(runGpsWeek - 1);
            rucGpsDn = static_cast<unsigned char>(rucGpsDn + 7);
        }
    }

    /// BeiDou week and rounded milliseconds of week (BeiDou time = GPS time - 14 s).
    void GetBdsTimeMs(unsigned int& ruiBdsWeek, unsigned int& ruiMilliseconds) const
    {
        uint32_t uiBdsWeek = 0;
        uint32_t ulMs = 0;
        RoundGpsMs(uiBdsWeek, ulMs);
        if (uiBdsWeek < c_ulGPS_WEEKS_AT_BDS_REFTIME)
        {
            ZEL_ASSERT(false);
        }
        else
        {
            uiBdsWeek -= c_ulGPS_WEEKS_AT_BDS_REFTIME;
        }
        if (ulMs < 14000u)
        {
            ZEL_ASSERT(uiBdsWeek > 0);
            uiBdsWeek -= 1;
            ulMs += c_ulMSEC_PER_WEEK;
        }
        ulMs -= 14000u;
        ruiBdsWeek = uiBdsWeek;
        ruiMilliseconds = ulMs;
    }

    /// BeiDou week and seconds of week rounded to the millisecond.
    void GetBdsTime(unsigned int& ruiBdsWeek, double& rdSeconds) const
    {
        unsigned int uiMs = 0;
        GetBdsTimeMs(ruiBdsWeek, uiMs);
        rdSeconds = uiMs / 1000.0;
    }

    /// Day number 0 to 6.
    void GetBdsDay(unsigned short& runBdsWeek, unsigned char& rucBdsDn) const
    {
        unsigned int uiWeek = 0;
        unsigned int uiMs = 0;
        GetBdsTimeMs(uiWeek, uiMs);
        runBdsWeek = static_cast<unsigned short>(uiWeek);
        unsigned char ucDn =
            static_cast<unsigned char>(MjdDetail::TruncToInt64(uiMs / 1000.0 / 86400.0 + 0.5));
        if (ucDn == 0)
        {
            ZEL_ASSERT(runBdsWeek > 0);
            runBdsWeek = static_cast<unsigned short>(runBdsWeek - 1);
            ucDn = static_cast<unsigned char>(ucDn + 7);
        }
        rucBdsDn = static_cast<unsigned char>(ucDn - 1);
    }

    // ---------------------------------------------------------------- Julian and calendar getters

    /// Julian date in days.
    double GetJulianDate() const
    {
        return m_dMjdFractMilliseconds / 86400000.0 + m_lMjdDay + c_dJD_MJD_OFFSET;
    }
    /// Modified Julian date in days, the time of day as its fraction.
    double GetMjd() const { return m_dMjdFractMilliseconds / 86400000.0 + m_lMjdDay; }

    /// Day and time of day as a fraction of a day.
    void GetMjdDayFract(int32_t& rlDay, double& rdFract) const
    {
        rlDay = m_lMjdDay;
        rdFract = m_dMjdFractMilliseconds / 86400000.0;
    }

    /// Calendar date, hour, minute and seconds of the minute.
    void GetDate(int& riYear, int& riMonth, int& riDay, int& riHour, int& riMinute, double& rdSeconds) const
    {
        CalendarDate(riYear, riMonth, riDay);
        double s = m_dMjdFractMilliseconds / 1000.0;
        double dHour = 0.0;
        double dMinute = 0.0;
        // For s > 0 the two subtractions of the division path are exact, so
        // the hour and the minute come from the whole minutes of s, and the
        // seconds are s less those minutes. A negative zero takes the
        // division path, which turns it positive.
        if (s > 0.0 && MjdDetail::IsQuotientRange(s))
        {
            const int64_t lMinutes = MjdDetail::FloorQuotient(s, 60.0, 1.0 / 60.0);
            dHour = static_cast<double>(lMinutes / 60);
            dMinute = static_cast<double>(lMinutes % 60);
            s -= static_cast<double>(lMinutes) * 60.0;
        }
        else
        {
            dHour = std::trunc(s / 3600.0);
            s -= dHour * 3600.0;
            dMinute = std::trunc(s / 60.0);
            s -= dMinute * 60.0;
        }
        riHour = static_cast<int>(MjdDetail::TruncToInt64(dHour));
        riMinute = static_cast<int>(MjdDetail::TruncToInt64(dMinute));
        rdSeconds = s;
    }

    /// Calendar year, month and day with the time of day as fraction of the day.
    void GetDate(int& riYear, int& riMonth, double& rdDay) const
    {
        int iDay = 0;
        CalendarDate(riYear, riMonth, iDay);
        rdDay = iDay + m_dMjdFractMilliseconds / 86400000.0;
    }

    /// Calendar year.
    int GetYear() const
    {
        int iYear = 0, iMonth = 0, iDay = 0;
        CalendarDate(iYear, iMonth, iDay);
        return iYear;
    }

    /// Calendar month, 1 to 12.
    int GetMonth() const
    {
        int iYear = 0, iMonth = 0, iDay = 0;
        CalendarDate(iYear, iMonth, iDay);
        return iMonth;
    }

    /// Day of the month, from 1.
    int GetDayOfMonth() const
    {
        int iYear = 0, iMonth = 0, iDay = 0;
        CalendarDate(iYear, iMonth, iDay);
        return iDay;
    }

    /// Hour of the day, 0 to 23.
    int GetHour() const
    {
        int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
        double dSeconds = 0.0;
        GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
        return iHour;
    }

    /// Minute of the hour, 0 to 59.
    int GetMinute() const
    {
        int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
        double dSeconds = 0.0;
        GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
        return iMinute;
    }

    /// Seconds of the minute, with fraction.
    double GetSecond() const
    {
        int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
        double dSeconds = 0.0;
        GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
        return dSeconds;
    }

    /// Day of the year, 1 = 1 January.
    int GetDayOfYear() const
    {
        const int iYear = GetYear();
        const int iMonth = 1;
        const double dDay = 0.0;
        ZEL_ASSERT(__IsValidDate(iYear, iMonth, dDay));
        return static_cast<int>(MjdDetail::TruncToInt64(
            GetMjd() - static_cast<double>(MjdDetail::CalendarToMjd(iYear, iMonth, 0))));
    }

    // ---------------------------------------------------------------- validity of dates

    /// Seconds of 60 and more carry into the minute and hour copies; day 0,
    /// negative days, hours, minutes and seconds are not tested.
    static bool __IsValidDate(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds)
    {
        int64_t lHour = iHour;
        int64_t lMinute = iMinute;
        if (dSeconds >= 60.0)
        {
            if (dSeconds < 6000.0)
            {
                while (dSeconds >= 60.0)
                {
                    dSeconds -= 60.0;
                    ++lMinute;
                }
            }
            else if (dSeconds < 1e15)
            {
                lMinute += static_cast<int64_t>(std::floor(dSeconds / 60.0));
            }
            else
            {
                // Beyond this the minute count alone puts the hour past 24.
                return false;
            }
        }
        if (lMinute >= 60)
        {
            lHour += lMinute / 60;
        }
        if (lHour > 24 || !IsValidYearMonth(iYear, iMonth))
        {
            return false;
        }
        return iDay <= static_cast<int64_t>(MjdDetail::DaysInMonth(iYear, iMonth));
    }

    /// True when year and month are in range and dDay does not pass the last day of that month.
    static bool __IsValidDate(int iYear, int iMonth, double dDay)
    {
        if (!IsValidYearMonth(iYear, iMonth))
        {
            return false;
        }
        return dDay <= static_cast<double>(MjdDetail::DaysInMonth(iYear, iMonth));
    }

    // ---------------------------------------------------------------- binary form

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return 16; }

    /// Day at 0, milliseconds at 4 (no padding), accuracy at 12.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.m_lMjdDay);
        io.Raw(r.m_dMjdFractMilliseconds);
        io.template RawAs<int32_t>(r.m_eAccuracy);
        return true;
    }

    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }

    /// Reads the fields as they stand: an out-of-range day comes in unchecked.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }

    // ---------------------------------------------------------------- text forms

    // C-string forms. The text is bounded by the given length, on purpose, as
    // a safety measure: a text that does not fit is cut there (terminated)
    // and the result is false; nothing is ever written past ulLength bytes.
    // Room for a time within range, in bytes with the terminator:
    // GetTextEpoch 27, GetTextMjd 19, GetTextGps 15 (16 for a time before
    // the GPS epoch, whose 16-bit week has five digits).

    /// "YY MM DD hh mm ss.sssssss": year % 100, month, day, hour, minute,
    /// seconds; 26 characters. Below 26 bytes nothing is written.
    bool GetTextEpoch(char* szBuffer, size_t ulLength) const
    {
        if (szBuffer == nullptr || ulLength == 0 || ulLength < 26)
        {
            return false;
        }
        int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
        double dSeconds = 0.0;
        GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
        return Formatted(std::snprintf(szBuffer, ulLength, "%3.2d%3.2d%3.2d%3.2d%3.2d%11.7f", iYear % 100,
                                       iMonth, iDay, iHour, iMinute, dSeconds),
                         ulLength);
    }

    /// "DDDDD MMMMMMMM.mmm": day and milliseconds of the day; 18 characters.
    bool GetTextMjd(char* szBuffer, size_t ulLength) const
    {
        if (szBuffer == nullptr || ulLength == 0)
        {
            return false;
        }
        return Formatted(std::snprintf(szBuffer, ulLength, "%05d %012.3lf", static_cast<int>(m_lMjdDay),
                                       m_dMjdFractMilliseconds),
                         ulLength);
    }

    /// "WWWW MMMMMMMMM": GPS week and rounded integer milliseconds of the
    /// week; 14 characters.
    bool GetTextGps(char* szBuffer, size_t ulLength) const
    {
        if (szBuffer == nullptr || ulLength == 0)
        {
            return false;
        }
        unsigned short unWeek = 0;
        unsigned int uiMs = 0;
        GetGpsTimeMs(unWeek, uiMs);
        return Formatted(std::snprintf(szBuffer, ulLength, "%04d %09u", static_cast<int>(unWeek), uiMs),
                         ulLength);
    }

    /// Stream forms; values go out with the stream's current precision and
    /// flags. The accuracy is not written.
    std::ostream& WriteText(std::ostream& os, EMjdTimeTextForm eForm) const
    {
        switch (eForm)
        {
        case MJDTXT_MONTHYEAR:
        {
            int iYear = 0, iMonth = 0;
            double dDay = 0.0;
            GetDate(iYear, iMonth, dDay);
            return os << iMonth << "/" << iYear << " " << dDay;
        }
        case MJDTXT_DATETIME:
        {
            int iYear = 0, iMonth = 0, iDay = 0, iHour = 0, iMinute = 0;
            double dSeconds = 0.0;
            GetDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds);
            // The fill character stays on the stream.
            return os << std::setfill('0') << std::setw(2) << iDay << "." << std::setw(2) << iMonth << "."
                      << iYear << "  " << std::setw(2) << iHour << ":" << std::setw(2) << iMinute << ":"
                      << dSeconds;
        }
        case MJDTXT_MJD:
            return os << GetMjd();
        case MJDTXT_GPS_SECONDS:
        {
            unsigned short unWeek = 0;
            double dSeconds = 0.0;
            GetGpsTime(unWeek, dSeconds);
            return os << unWeek << ", " << dSeconds;
        }
        case MJDTXT_GPS_MILLISECONDS:
            break;
        default:
            ZEL_ASSERT(false);
            break;
        }
        return os << static_cast<unsigned short>(GpsWeeks()) << ", "
                  << (GpsDays() * 86400000.0 + m_dMjdFractMilliseconds);
    }

    /// Knows the two GPS forms only. The stream is not tested: a failed or
    /// skipped extraction leaves its temporary at 0 (or at the limit of an
    /// overflow), and the range test alone decides. So "1000, abc" gives week
    /// 1000 at 0.0 and an empty or already failed stream gives week 0 at 0.0.
    /// A week or value out of range gives the default time, without a report.
    std::istream& ReadText(std::istream& is, EMjdTimeTextForm eForm)
    {
        if (eForm != MJDTXT_GPS_SECONDS && eForm != MJDTXT_GPS_MILLISECONDS)
        {
            ZEL_ASSERT(false);
            return is;
        }
        unsigned short unWeek = 0;
        char cComma = 0;
        double dValue = 0.0;
        is >> unWeek >> cComma >> dValue;
        const double dMax = eForm == MJDTXT_GPS_SECONDS ? 604800.0 : 604800000.0;
        if (unWeek < c_ulMAX_GPS_WEEK + 1 && dValue >= 0.0 && dValue <= dMax)
        {
            if (eForm == MJDTXT_GPS_SECONDS)
            {
                SetGpsTime(unWeek, dValue);
            }
            else
            {
                SetGpsTimeMs(unWeek, dValue);
            }
        }
        else
        {
            Reset();
        }
        return is;
    }

private:
    static bool IsValidYearMonth(int iYear, int iMonth)
    {
        return iYear >= c_iMIN_VALID_YEAR && iYear <= c_iMAX_VALID_YEAR && iMonth >= 1 && iMonth <= 12;
    }

    static bool IsRoundStep(EMjdTimeRoundStep eStep)
    {
        return static_cast<unsigned int>(eStep) < sizeof(MjdDetail::c_adRoundStepMs) / sizeof(double);
    }

    static unsigned short AddWeeks16(unsigned int uiWeek, uint32_t ulAdd)
    {
        return static_cast<unsigned short>(uiWeek + ulAdd);
    }

    static bool Formatted(int iResult, size_t ulLength)
    {
        return iResult >= 0 && static_cast<size_t>(iResult) < ulLength;
    }

    /// Carry of whole days after rounding, with no check of the day range. A
    /// non-finite or absurdly large value flows on without a carry, which
    /// would otherwise never end.
    void CarryWholeDays()
    {
        if (!(m_dMjdFractMilliseconds < 1e15))
        {
            return;
        }
        while (m_dMjdFractMilliseconds >= 86400000.0)
        {
            m_dMjdFractMilliseconds -= 86400000.0;
            m_lMjdDay = MjdDetail::AddWrap(m_lMjdDay, 1);
        }
    }

    void CarryOneDay()
    {
        if (m_dMjdFractMilliseconds >= 86400000.0)
        {
            m_dMjdFractMilliseconds -= 86400000.0;
            m_lMjdDay = MjdDetail::AddWrap(m_lMjdDay, 1);
        }
    }

    /// Integer milliseconds of the GPS week, rounded; a carry past the end of
    /// the week moves to the next week.
    void RoundGpsMs(uint32_t& rulWeek, uint32_t& rulMs) const
    {
        rulWeek = GpsWeeks();
        const int64_t lMs = MjdDetail::TruncToInt64(m_dMjdFractMilliseconds + 0.5);
        rulMs =
            static_cast<uint32_t>(GpsDays() * 86400000u + static_cast<uint32_t>(static_cast<uint64_t>(lMs)));
        if (rulMs >= c_ulMSEC_PER_WEEK)
        {
            rulMs -= c_ulMSEC_PER_WEEK;
            rulWeek += 1;
        }
    }

    /// Calendar rule, line by line in double precision; on the days where it
    /// gives the civil date, from the day number in integers.
    void CalendarDate(int& riYear, int& riMonth, int& riDay) const
    {
        // Within a day of at most c_dCIVIL_LAST_MSEC ms the Julian date below
        // (under 2^22, three roundings of at most 2^-31 each) truncates to
        // the day + 2400001, and a is that + 1537.
        const uint32_t ulIndex =
            static_cast<uint32_t>(m_lMjdDay) - static_cast<uint32_t>(MjdDetail::c_lCIVIL_FIRST_MJD);
        if (ulIndex < MjdDetail::c_ulCIVIL_DAYS && m_dMjdFractMilliseconds >= 0.0 &&
            m_dMjdFractMilliseconds <= MjdDetail::c_dCIVIL_LAST_MSEC)
        {
            MjdDetail::CivilFromDayIndex(ulIndex, riYear, riMonth, riDay);
            return;
        }
        const double jd = m_dMjdFractMilliseconds / 86400000.0 + m_lMjdDay + c_dJD_MJD_OFFSET + 0.5;
        const double a = std::trunc(jd) + 1537.0;
        const double b = std::trunc((a - 122.1) / 365.25);
        const double c = std::trunc(b * 365.25);
        const double e = std::trunc((a - c) / 30.6001);
        const double dDay = a - std::trunc(e * 30.6001) - c;
        const int64_t lMonth = MjdDetail::TruncToInt64(e - 1.0 + 12.0 * std::trunc(e / -14.0));
        const int64_t lYear = MjdDetail::TruncToInt64(b) - (lMonth + 7) / 10 - 4715;
        riDay = static_cast<int>(MjdDetail::TruncToInt64(dDay));
        riMonth = static_cast<int>(lMonth);
        riYear = static_cast<int>(lYear);
    }
};

/// Every record that holds a time writes and reads it as GPS week and seconds.
inline std::ostream& operator<<(std::ostream& os, const SMjdTime& rTime)
{
    return rTime.WriteText(os, MJDTXT_GPS_SECONDS);
}

/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
inline std::istream& operator>>(std::istream& is, SMjdTime& rTime)
{
    return rTime.ReadText(is, MJDTXT_GPS_SECONDS);
}

/// Exported forms of the date checks.
ZELTYPES_API bool IsValidDate(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds);
/// True when year and month are in range and dDay does not pass the last day of that month.
ZELTYPES_API bool IsValidDate(int iYear, int iMonth, double dDay);

} // namespace ZELN

#endif
