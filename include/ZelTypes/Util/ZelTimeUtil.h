#ifndef ZELTYPES_UTIL_ZELTIMEUTIL_H
#define ZELTYPES_UTIL_ZELTIMEUTIL_H

/// @file
/// Conveniences around SMjdTime: checked construction, a strict reader of the
/// GPS text forms, ISO 8601 and RINEX epoch text, and resolution of truncated
/// broadcast GPS weeks.
///
/// A note on the rollover helpers of SMjdTime: SetGpsTime1024,
/// SetGpsTimeMs1024 and the bRollover forms of SetGpsTimeRollover and
/// SetGpsTimeMsRollover add exactly one 1024-week epoch (1024 weeks) to the
/// week they are given, and GetGpsTimeRounded1024 / GetGpsTimeMs1024 take
/// exactly one away. They know nothing of the date: a 10-bit week broadcast
/// since the second rollover (GPS week 2048, 2019-04-07) needs 2048 added,
/// so SetGpsTime1024(297, ...) lands in 2005 and not in 2024. To turn a
/// truncated week into a full one, use ResolveGpsWeek with a time known to
/// lie within half a rollover period (512 weeks for 10 bits) of the truth.

#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Util/ZelUtilExport.h>

#include <istream>
#include <string>

namespace ZELN
{

// ---------------------------------------------------------------------------
// Checked construction
//
// Each TryFrom... builds the time exactly as the constructor or setter of
// SMjdTime that it names, and returns false, leaving rTime as it was, exactly
// when that constructor or setter would call the assertion hook; it calls the
// hook itself never. So the library's own rules decide, including what they
// let pass: day 0 of a month, a day of year 366 in a common year, GPS week
// 5965 after its first day (whose time lies beyond MJD 85999) or a negative
// MJD are accepted as the constructor accepts them. Ask rTime.isValid() for
// the record's range, or IsCalendarDateTime for a plain calendar check.
// ---------------------------------------------------------------------------

/// Checked SMjdTime(uiGpsWeek, dGpsSeconds): GPS week 0 to 5965 and seconds of
/// week (s) from 0 up to, not including, 604800; false (rTime untouched) otherwise.
ZELTYPES_UTIL_API bool TryFromGps(unsigned int uiGpsWeek, double dGpsSeconds, SMjdTime& rTime,
                                  EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SetGpsTimeMs: GPS week 0 to 5965 and milliseconds of week (ms) from
/// 0 to 604800000 inclusive, as the setter accepts; false (rTime untouched)
/// otherwise, also for a week beyond 16 bits, which the setter would cut.
ZELTYPES_UTIL_API bool TryFromGpsMs(unsigned int uiGpsWeek, double dGpsMilliseconds, SMjdTime& rTime,
                                    EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SetBdsTime: BeiDou week and seconds of BeiDou week (s), stored as the
/// equivalent GPS time; false (rTime untouched) when SetGpsTime of week + 1356
/// or the 14 s shift that follows would report. A week whose sum with 1356
/// passes 16 bits is refused, where the setter would wrap it.
ZELTYPES_UTIL_API bool TryFromBds(unsigned int uiBdsWeek, double dBdsSeconds, SMjdTime& rTime,
                                  EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SMjdTime(iYear, iMonth, iDay, iHour, iMinute, dSeconds): false
/// (rTime untouched) exactly when IsValidDate of the same arguments is false.
ZELTYPES_UTIL_API bool TryFromDate(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds,
                                   SMjdTime& rTime, EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SMjdTime(iYear, iMonth, dDay), dDay the day of the month with its
/// fraction (days): false (rTime untouched) exactly when IsValidDate(iYear, iMonth, dDay) is false.
ZELTYPES_UTIL_API bool TryFromDate(int iYear, int iMonth, double dDay, SMjdTime& rTime,
                                   EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SMjdTime(dMjd), dMjd a modified Julian date (days): false (rTime
/// untouched) when dMjd is not below 86000 or is not a number.
ZELTYPES_UTIL_API bool TryFromMjd(double dMjd, SMjdTime& rTime,
                                  EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SetJulianDate, dJd a Julian date (days): false (rTime untouched)
/// when the MJD it gives lies outside 0 to 86000 (exclusive) or is not a number.
ZELTYPES_UTIL_API bool TryFromJulianDate(double dJd, SMjdTime& rTime,
                                         EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Checked SetYearDaySeconds: year, day of year (1 = 1 January) and seconds of
/// that day (s); false (rTime untouched) when the setter would report, that is
/// when the day falls outside MJD 0 to 85999 or the seconds outside [0, 86400).
ZELTYPES_UTIL_API bool TryFromYearDay(int iYear, int iDoy, double dSecondOfDay, SMjdTime& rTime,
                                      EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// Plain calendar check, stricter than IsValidDate: year 1980 to 2100, month
/// 1 to 12, day 1 to the month's length, hour 0 to 23, minute 0 to 59 and
/// seconds (s) in [0, 60), all finite.
ZELTYPES_UTIL_API bool IsCalendarDateTime(int iYear, int iMonth, int iDay, int iHour, int iMinute,
                                          double dSeconds);

// ---------------------------------------------------------------------------
// Strict reader of the GPS text forms
// ---------------------------------------------------------------------------

/// Reads "week, seconds" (MJDTXT_GPS_SECONDS, s) or "week, milliseconds"
/// (MJDTXT_GPS_MILLISECONDS, ms), the text of the record's operator<<, and sets
/// failbit, leaving rTime as it was, where the record's own reader would go on
/// quietly: a week that is not an unsigned number, a separator other than ',',
/// a value that is not a number, a week above 5965, a value outside 0 to one
/// week (inclusive), a time past MJD 85999, or another text form. Whitespace
/// before each item is skipped; what follows the value stays in the stream.
/// The accuracy of rTime is kept.
ZELTYPES_UTIL_API std::istream& ReadGpsTextStrict(std::istream& is, SMjdTime& rTime,
                                                  EMjdTimeTextForm eForm = MJDTXT_GPS_SECONDS);

/// The whole of strText as one strict GPS text (see ReadGpsTextStrict), with
/// nothing but whitespace after it; false leaves rTime as it was.
ZELTYPES_UTIL_API bool ParseGpsText(const std::string& strText, SMjdTime& rTime,
                                    EMjdTimeTextForm eForm = MJDTXT_GPS_SECONDS);

/// Target of the strict reader for `is >> StrictGps(stTime)`.
struct SZelStrictGpsText
{
    SMjdTime& rTime;        ///< time to fill; untouched when the reading fails
    EMjdTimeTextForm eForm; ///< MJDTXT_GPS_SECONDS or MJDTXT_GPS_MILLISECONDS
};

/// Wraps a time for the strict reader: `is >> StrictGps(stTime)`.
inline SZelStrictGpsText StrictGps(SMjdTime& rTime, EMjdTimeTextForm eForm = MJDTXT_GPS_SECONDS)
{
    return SZelStrictGpsText{rTime, eForm};
}

/// Strict reading of a GPS text into the wrapped time (see ReadGpsTextStrict).
inline std::istream& operator>>(std::istream& is, const SZelStrictGpsText& rTarget)
{
    return ReadGpsTextStrict(is, rTarget.rTime, rTarget.eForm);
}

// ---------------------------------------------------------------------------
// ISO 8601 and RINEX epoch text
//
// The record holds no time scale: these forms write and read the calendar
// date and time of whatever scale the record holds, with no zone offset.
// ---------------------------------------------------------------------------

/// ISO 8601 extended form "YYYY-MM-DDThh:mm:ss.sss" with iDecimals digits of
/// the second (0 to 9; 0 leaves out the point; values outside are taken as the
/// nearest), rounded half up with the carry into minute, hour and day. An
/// invalid time (isValid() false) or one before 1980-01-01, where the
/// library's calendar holds no dates, gives an empty string.
ZELTYPES_UTIL_API std::string FormatIso8601(const SMjdTime& rTime, int iDecimals = 3);

/// Reads an ISO 8601 extended date and time: "YYYY-MM-DD" or the ordinal
/// "YYYY-DDD", optionally followed by 'T' (or one blank) and "hh:mm",
/// "hh:mm:ss" or "hh:mm:ss.f..." (',' also marks the fraction), optionally
/// ending with 'Z'. Every field must lie in its calendar range (hour 0 to 23,
/// no leap second 60) and the time within the record's range (year 1980 on,
/// before MJD 86000); other zone designators are refused. false leaves rTime
/// as it was; on success rTime has the accuracy eAccuracy.
ZELTYPES_UTIL_API bool ParseIso8601(const std::string& strText, SMjdTime& rTime,
                                    EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

/// RINEX 3 epoch "YYYY MM DD hh mm ss.sssssss": year, then month, day, hour and
/// minute with two digits, and the seconds in 11 characters with 7 decimals,
/// rounded with the carry into the day (the epoch line's fields after "> ").
/// An invalid time or one before 1980-01-01 gives an empty string.
ZELTYPES_UTIL_API std::string FormatRinexEpoch(const SMjdTime& rTime);

/// Reads a RINEX epoch: an optional ">", then year, month, day, hour, minute
/// and seconds separated by blanks. A two-digit year is that of RINEX 2 (80 to
/// 99: 1980 to 1999; 00 to 79: 2000 to 2079). Nothing may follow but blanks.
/// Ranges as for ParseIso8601; false leaves rTime as it was.
ZELTYPES_UTIL_API bool ParseRinexEpoch(const std::string& strText, SMjdTime& rTime,
                                       EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

// ---------------------------------------------------------------------------
// Truncated broadcast weeks
// ---------------------------------------------------------------------------

/// Full GPS week of a week broadcast modulo 2^uiBits (10 bits in the legacy
/// navigation message, 13 bits in the modernised ones): the week congruent to
/// uiTruncWeek that lies nearest to the GPS week of rNearTime (a tie goes to
/// the later week; a week below 0 is never taken). false, ruiGpsWeek
/// untouched, when uiBits is outside 1 to 16, uiTruncWeek does not fit in
/// uiBits, rNearTime is invalid or before the GPS epoch, or the result is
/// above 5965.
ZELTYPES_UTIL_API bool ResolveGpsWeek(unsigned int uiTruncWeek, unsigned int uiBits,
                                      const SMjdTime& rNearTime, unsigned int& ruiGpsWeek);

/// ResolveGpsWeek, then TryFromGps with the seconds of week (s): the time of a
/// broadcast truncated week and seconds; false leaves rTime as it was.
ZELTYPES_UTIL_API bool TryFromTruncatedGps(unsigned int uiTruncWeek, unsigned int uiBits, double dGpsSeconds,
                                           const SMjdTime& rNearTime, SMjdTime& rTime,
                                           EMjdTimeAccuracy eAccuracy = MJDACC_NANOSECOND);

} // namespace ZELN

#endif
