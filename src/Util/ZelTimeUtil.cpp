#include <ZelTypes/Util/ZelTimeUtil.h>

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace ZELN
{

namespace
{

// The GPS setters take a 16-bit week; a larger one would be cut to 16 bits
// before their check. The weeks they accept all fit, so a larger week is
// refused here rather than cut.
constexpr unsigned int c_uiMAX_WEEK_16 = 0xFFFFu;

bool IsGpsSecondsInWeek(double dSeconds)
{
    return dSeconds >= 0.0 && dSeconds < c_ulSEC_PER_WEEK;
}

// The condition of SetMjdDayFract, which the day-of-year and Julian-date
// setters end in.
bool IsDayFractAccepted(int32_t lMjdDay, double dFractDay)
{
    return lMjdDay >= 0 && static_cast<unsigned int>(lMjdDay) < c_ulMAX_MJD_DAY && dFractDay < 1.0 &&
           dFractDay >= 0.0;
}

// ---------------------------------------------------------------- text scanning

// A cursor over a text: the readers below take fixed-width digit groups and
// separators, and refuse everything else.
class CScanner
{
public:
    explicit CScanner(const std::string& strText) : m_strText(strText), m_ulPos(0) {}

    bool AtEnd() const { return m_ulPos >= m_strText.size(); }
    char Peek() const { return AtEnd() ? '\0' : m_strText[m_ulPos]; }

    bool Take(char c)
    {
        if (Peek() != c || AtEnd())
        {
            return false;
        }
        ++m_ulPos;
        return true;
    }

    void SkipBlanks()
    {
        while (!AtEnd() && std::isspace(static_cast<unsigned char>(m_strText[m_ulPos])) != 0)
        {
            ++m_ulPos;
        }
    }

    // Number of decimal digits from here on.
    size_t DigitRun() const
    {
        size_t ulLen = 0;
        while (m_ulPos + ulLen < m_strText.size() &&
               std::isdigit(static_cast<unsigned char>(m_strText[m_ulPos + ulLen])) != 0)
        {
            ++ulLen;
        }
        return ulLen;
    }

    // Exactly ulCount digits, not followed by another digit.
    bool Digits(size_t ulCount, int& riValue)
    {
        if (DigitRun() != ulCount)
        {
            return false;
        }
        return DigitsUpTo(ulCount, riValue);
    }

    // One to ulMax digits (at most 9, so the value fits an int).
    bool DigitsUpTo(size_t ulMax, int& riValue)
    {
        const size_t ulLen = DigitRun();
        if (ulLen == 0 || ulLen > ulMax || ulLen > 9)
        {
            return false;
        }
        int iValue = 0;
        for (size_t ulIdx = 0; ulIdx < ulLen; ++ulIdx)
        {
            iValue = iValue * 10 + (m_strText[m_ulPos + ulIdx] - '0');
        }
        m_ulPos += ulLen;
        riValue = iValue;
        return true;
    }

    // Seconds with exactly ulIntDigits integer digits (1 or 2 when
    // ulIntDigits is 0), then optionally a decimal sign and at least one digit.
    bool Seconds(size_t ulIntDigits, bool bCommaToo, double& rdSeconds)
    {
        const size_t ulStart = m_ulPos;
        const size_t ulLen = DigitRun();
        if (ulIntDigits != 0 ? ulLen != ulIntDigits : (ulLen == 0 || ulLen > 2))
        {
            return false;
        }
        m_ulPos += ulLen;
        std::string strNumber = m_strText.substr(ulStart, ulLen);
        if (Peek() == '.' || (bCommaToo && Peek() == ','))
        {
            ++m_ulPos;
            const size_t ulFract = DigitRun();
            if (ulFract == 0)
            {
                return false;
            }
            strNumber += '.';
            strNumber += m_strText.substr(m_ulPos, ulFract);
            m_ulPos += ulFract;
        }
        // Digits and one point only, read in the classic locale, whatever the
        // global one's decimal sign.
        std::istringstream iss(strNumber);
        iss.imbue(std::locale::classic());
        double dValue = 0.0;
        iss >> dValue;
        if (iss.fail())
        {
            return false;
        }
        rdSeconds = dValue;
        return true;
    }

private:
    const std::string& m_strText;
    size_t m_ulPos;
};

// Calendar check, then the time through the library's own constructor; the
// result must lie within the record's range.
bool MakeCalendarTime(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds,
                      EMjdTimeAccuracy eAccuracy, SMjdTime& rTime)
{
    if (!IsCalendarDateTime(iYear, iMonth, iDay, iHour, iMinute, dSeconds))
    {
        return false;
    }
    SMjdTime stTime;
    if (!TryFromDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds, stTime, eAccuracy) || !stTime.isValid())
    {
        return false;
    }
    rTime = stTime;
    return true;
}

bool MakeOrdinalTime(int iYear, int iDoy, int iHour, int iMinute, double dSeconds, EMjdTimeAccuracy eAccuracy,
                     SMjdTime& rTime)
{
    // The calendar check on 1 January covers the year and the time of day.
    if (!IsCalendarDateTime(iYear, 1, 1, iHour, iMinute, dSeconds))
    {
        return false;
    }
    const int iDaysInYear = MjdDetail::IsLeapYear(iYear) ? 366 : 365;
    if (iDoy < 1 || iDoy > iDaysInYear)
    {
        return false;
    }
    SMjdTime stTime;
    const double dSecondOfDay = iHour * 3600.0 + iMinute * 60.0 + dSeconds;
    if (!TryFromYearDay(iYear, iDoy, dSecondOfDay, stTime, eAccuracy) || !stTime.isValid())
    {
        return false;
    }
    rTime = stTime;
    return true;
}

// Calendar fields of a time rounded to 10^-iDecimals s, with the carry into
// the day done by the record itself. Time of day in whole units of that step.
struct SRoundedFields
{
    int iYear = 0;
    int iMonth = 0;
    int iDay = 0;
    int iHour = 0;
    int iMinute = 0;
    int iSecond = 0;
    long long llFraction = 0; // in units of 10^-iDecimals s
};

bool RoundedFields(const SMjdTime& rTime, int iDecimals, SRoundedFields& rFields)
{
    // The library's calendar rule holds for its years of dates, 1980 on.
    if (!rTime.isValid() || rTime.GetMjdDay() < MjdDetail::CalendarToMjd(c_iMIN_VALID_YEAR, 1, 1))
    {
        return false;
    }
    long long llUnitsPerSecond = 1;
    for (int iIdx = 0; iIdx < iDecimals; ++iIdx)
    {
        llUnitsPerSecond *= 10;
    }
    const double dStepMs = 1000.0 / static_cast<double>(llUnitsPerSecond);
    SMjdTime stRounded = rTime;
    stRounded.RoundToMilliseconds(dStepMs);
    // The date of the day's midnight: the calendar rule adds the fraction of
    // the day to a Julian date, whose rounding gives the next day for the
    // last tens of microseconds of a day.
    SMjdTime stMidnight = stRounded;
    stMidnight.m_dMjdFractMilliseconds = 0.0;
    double dDummySeconds = 0.0;
    int iHour = 0;
    int iMinute = 0;
    stMidnight.GetDate(rFields.iYear, rFields.iMonth, rFields.iDay, iHour, iMinute, dDummySeconds);
    // Below one day of steps of at least 1 ns: at most 8.64e13, exact in a double.
    const long long llUnits = std::llround(stRounded.GetMjdFractMilliseconds() / dStepMs);
    const long long llSeconds = llUnits / llUnitsPerSecond;
    rFields.llFraction = llUnits % llUnitsPerSecond;
    rFields.iHour = static_cast<int>(llSeconds / 3600);
    rFields.iMinute = static_cast<int>((llSeconds / 60) % 60);
    rFields.iSecond = static_cast<int>(llSeconds % 60);
    return true;
}

} // namespace

// ---------------------------------------------------------------- checked construction

bool TryFromGps(unsigned int uiGpsWeek, double dGpsSeconds, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    if (uiGpsWeek > c_ulMAX_GPS_WEEK || !IsGpsSecondsInWeek(dGpsSeconds))
    {
        return false;
    }
    rTime = SMjdTime(uiGpsWeek, dGpsSeconds, eAccuracy);
    return true;
}

bool TryFromGpsMs(unsigned int uiGpsWeek, double dGpsMilliseconds, SMjdTime& rTime,
                  EMjdTimeAccuracy eAccuracy)
{
    if (uiGpsWeek > c_ulMAX_GPS_WEEK || !(dGpsMilliseconds >= 0.0 && dGpsMilliseconds <= c_ulMSEC_PER_WEEK))
    {
        return false;
    }
    SMjdTime stTime(eAccuracy);
    stTime.SetGpsTimeMs(static_cast<unsigned short>(uiGpsWeek), dGpsMilliseconds);
    rTime = stTime;
    return true;
}

bool TryFromBds(unsigned int uiBdsWeek, double dBdsSeconds, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    if (uiBdsWeek > c_uiMAX_WEEK_16 - c_ulGPS_WEEKS_AT_BDS_REFTIME ||
        uiBdsWeek + c_ulGPS_WEEKS_AT_BDS_REFTIME > c_ulMAX_GPS_WEEK ||
        !(dBdsSeconds >= 0.0 && dBdsSeconds <= c_ulSEC_PER_WEEK))
    {
        return false;
    }
    // SetBdsTime is SetGpsTime (checked above) and then a shift of 14 s, whose
    // checks are exactly the validity of the result. The shift is tried on a
    // copy moved to a day well inside the range: the carry into the day
    // depends on the milliseconds alone, so the real day follows from it
    // without a report.
    SMjdTime stGps(eAccuracy);
    stGps.SetGpsTime(static_cast<unsigned short>(uiBdsWeek + c_ulGPS_WEEKS_AT_BDS_REFTIME), dBdsSeconds);
    const int32_t lProbeDay = 50000;
    SMjdTime stProbe = stGps;
    stProbe.m_lMjdDay = lProbeDay;
    stProbe.AddMilliseconds(c_dBDS_OFFSET_MSEC);
    SMjdTime stResult = stProbe;
    stResult.m_lMjdDay = stGps.m_lMjdDay + (stProbe.m_lMjdDay - lProbeDay);
    if (!stResult.isValid())
    {
        return false;
    }
    rTime = stResult;
    return true;
}

bool TryFromDate(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds, SMjdTime& rTime,
                 EMjdTimeAccuracy eAccuracy)
{
    if (!IsValidDate(iYear, iMonth, iDay, iHour, iMinute, dSeconds))
    {
        return false;
    }
    rTime = SMjdTime(iYear, iMonth, iDay, iHour, iMinute, dSeconds, eAccuracy);
    return true;
}

bool TryFromDate(int iYear, int iMonth, double dDay, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    if (!IsValidDate(iYear, iMonth, dDay))
    {
        return false;
    }
    rTime = SMjdTime(iYear, iMonth, dDay, eAccuracy);
    return true;
}

bool TryFromMjd(double dMjd, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    if (!(dMjd < c_ulMAX_MJD_DAY))
    {
        return false;
    }
    rTime = SMjdTime(dMjd, eAccuracy);
    return true;
}

bool TryFromJulianDate(double dJd, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    // SetJulianDate is SetMjdAny of the MJD, which splits it as here.
    const double dMjd = dJd - c_dJD_MJD_OFFSET;
    const int32_t lDay = MjdDetail::WrapToInt32(MjdDetail::TruncToInt64(dMjd));
    if (!IsDayFractAccepted(lDay, dMjd - std::trunc(dMjd)))
    {
        return false;
    }
    SMjdTime stTime(eAccuracy);
    stTime.SetJulianDate(dJd);
    rTime = stTime;
    return true;
}

bool TryFromYearDay(int iYear, int iDoy, double dSecondOfDay, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    if (!IsDayFractAccepted(MjdDetail::YearDayToMjd(iYear, iDoy), dSecondOfDay / 86400.0))
    {
        return false;
    }
    SMjdTime stTime(eAccuracy);
    stTime.SetYearDaySeconds(iYear, iDoy, dSecondOfDay);
    rTime = stTime;
    return true;
}

bool IsCalendarDateTime(int iYear, int iMonth, int iDay, int iHour, int iMinute, double dSeconds)
{
    if (iYear < c_iMIN_VALID_YEAR || iYear > c_iMAX_VALID_YEAR || iMonth < 1 || iMonth > 12)
    {
        return false;
    }
    if (iDay < 1 || static_cast<uint32_t>(iDay) > MjdDetail::DaysInMonth(iYear, iMonth))
    {
        return false;
    }
    return iHour >= 0 && iHour <= 23 && iMinute >= 0 && iMinute <= 59 && dSeconds >= 0.0 && dSeconds < 60.0;
}

// ---------------------------------------------------------------- strict GPS text

std::istream& ReadGpsTextStrict(std::istream& is, SMjdTime& rTime, EMjdTimeTextForm eForm)
{
    const std::istream::sentry stSentry(is); // skips leading whitespace
    if (!stSentry)
    {
        return is;
    }
    if (eForm != MJDTXT_GPS_SECONDS && eForm != MJDTXT_GPS_MILLISECONDS)
    {
        is.setstate(std::ios::failbit);
        return is;
    }
    // Digits only: the stream's own extraction of an unsigned number would
    // take a minus sign and wrap. Decimal whatever the stream's base.
    const std::ios::fmtflags eFlags = is.flags();
    is.flags(std::ios::dec | std::ios::skipws);
    unsigned long ulWeek = 0;
    char cSeparator = 0;
    double dValue = 0.0;
    const bool bWeekStartsRight = std::isdigit(is.peek()) != 0;
    if (bWeekStartsRight)
    {
        is >> ulWeek;
    }
    if (bWeekStartsRight && is)
    {
        is >> cSeparator;
    }
    const bool bSeparatorRight = is && cSeparator == ',';
    if (bSeparatorRight)
    {
        is >> dValue;
    }
    is.flags(eFlags);
    const double dMax = eForm == MJDTXT_GPS_SECONDS ? static_cast<double>(c_ulSEC_PER_WEEK)
                                                    : static_cast<double>(c_ulMSEC_PER_WEEK);
    if (!bWeekStartsRight || !bSeparatorRight || !is || ulWeek > c_ulMAX_GPS_WEEK ||
        !(dValue >= 0.0 && dValue <= dMax))
    {
        is.setstate(std::ios::failbit);
        return is;
    }
    SMjdTime stTime(rTime.GetAccuracy());
    if (eForm == MJDTXT_GPS_SECONDS)
    {
        stTime.SetGpsTime(static_cast<unsigned short>(ulWeek), dValue);
    }
    else
    {
        stTime.SetGpsTimeMs(static_cast<unsigned short>(ulWeek), dValue);
    }
    if (!stTime.isValid())
    {
        is.setstate(std::ios::failbit);
        return is;
    }
    rTime = stTime;
    return is;
}

bool ParseGpsText(const std::string& strText, SMjdTime& rTime, EMjdTimeTextForm eForm)
{
    std::istringstream iss(strText);
    iss.imbue(std::locale::classic());
    SMjdTime stTime = rTime;
    ReadGpsTextStrict(iss, stTime, eForm);
    if (iss.fail())
    {
        return false;
    }
    iss >> std::ws;
    if (!iss.eof())
    {
        return false;
    }
    rTime = stTime;
    return true;
}

// ---------------------------------------------------------------- ISO 8601

std::string FormatIso8601(const SMjdTime& rTime, int iDecimals)
{
    iDecimals = iDecimals < 0 ? 0 : (iDecimals > 9 ? 9 : iDecimals);
    SRoundedFields stFields;
    if (!RoundedFields(rTime, iDecimals, stFields))
    {
        return std::string();
    }
    char szBuffer[64];
    int iLength =
        std::snprintf(szBuffer, sizeof(szBuffer), "%04d-%02d-%02dT%02d:%02d:%02d", stFields.iYear,
                      stFields.iMonth, stFields.iDay, stFields.iHour, stFields.iMinute, stFields.iSecond);
    if (iLength > 0 && iDecimals > 0)
    {
        iLength += std::snprintf(szBuffer + iLength, sizeof(szBuffer) - static_cast<size_t>(iLength),
                                 ".%0*lld", iDecimals, stFields.llFraction);
    }
    return iLength > 0 ? std::string(szBuffer) : std::string();
}

bool ParseIso8601(const std::string& strText, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    CScanner stScan(strText);
    int iYear = 0;
    int iMonth = 0;
    int iDay = 0;
    int iDoy = 0;
    int iHour = 0;
    int iMinute = 0;
    double dSeconds = 0.0;
    if (!stScan.Digits(4, iYear) || !stScan.Take('-'))
    {
        return false;
    }
    const bool bOrdinal = stScan.DigitRun() == 3;
    if (bOrdinal)
    {
        stScan.Digits(3, iDoy);
    }
    else if (!stScan.Digits(2, iMonth) || !stScan.Take('-') || !stScan.Digits(2, iDay))
    {
        return false;
    }
    if (stScan.Take('T') || stScan.Take(' '))
    {
        if (!stScan.Digits(2, iHour) || !stScan.Take(':') || !stScan.Digits(2, iMinute))
        {
            return false;
        }
        if (stScan.Take(':') && !stScan.Seconds(2, true, dSeconds))
        {
            return false;
        }
    }
    stScan.Take('Z');
    if (!stScan.AtEnd())
    {
        return false;
    }
    if (bOrdinal)
    {
        return MakeOrdinalTime(iYear, iDoy, iHour, iMinute, dSeconds, eAccuracy, rTime);
    }
    return MakeCalendarTime(iYear, iMonth, iDay, iHour, iMinute, dSeconds, eAccuracy, rTime);
}

// ---------------------------------------------------------------- RINEX epoch

std::string FormatRinexEpoch(const SMjdTime& rTime)
{
    SRoundedFields stFields;
    if (!RoundedFields(rTime, 7, stFields))
    {
        return std::string();
    }
    char szBuffer[64];
    const int iLength = std::snprintf(szBuffer, sizeof(szBuffer), "%4d %02d %02d %02d %02d%3d.%07lld",
                                      stFields.iYear, stFields.iMonth, stFields.iDay, stFields.iHour,
                                      stFields.iMinute, stFields.iSecond, stFields.llFraction);
    return iLength > 0 ? std::string(szBuffer) : std::string();
}

bool ParseRinexEpoch(const std::string& strText, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    CScanner stScan(strText);
    stScan.SkipBlanks();
    if (stScan.Take('>'))
    {
        stScan.SkipBlanks();
    }
    int iYear = 0;
    const size_t ulYearDigits = stScan.DigitRun();
    if ((ulYearDigits != 2 && ulYearDigits != 4) || !stScan.Digits(ulYearDigits, iYear))
    {
        return false;
    }
    if (ulYearDigits == 2)
    {
        iYear += iYear >= 80 ? 1900 : 2000;
    }
    int aiFields[4] = {0, 0, 0, 0}; // month, day, hour, minute
    for (int& riField : aiFields)
    {
        const size_t ulBefore = stScan.DigitRun();
        stScan.SkipBlanks();
        // A blank must separate the fields.
        if (ulBefore != 0 || !stScan.DigitsUpTo(2, riField))
        {
            return false;
        }
    }
    // The fields before were checked to end in a blank by the loop; the
    // seconds also need one before them.
    if (stScan.DigitRun() != 0)
    {
        return false;
    }
    stScan.SkipBlanks();
    double dSeconds = 0.0;
    if (!stScan.Seconds(0, false, dSeconds))
    {
        return false;
    }
    stScan.SkipBlanks();
    if (!stScan.AtEnd())
    {
        return false;
    }
    return MakeCalendarTime(iYear, aiFields[0], aiFields[1], aiFields[2], aiFields[3], dSeconds, eAccuracy,
                            rTime);
}

// ---------------------------------------------------------------- truncated weeks

bool ResolveGpsWeek(unsigned int uiTruncWeek, unsigned int uiBits, const SMjdTime& rNearTime,
                    unsigned int& ruiGpsWeek)
{
    if (uiBits < 1 || uiBits > 16 || !rNearTime.isValid() || rNearTime.GetMjdDay() < c_lGPS_EPOCH_MJD)
    {
        return false;
    }
    const int64_t lPeriod = int64_t{1} << uiBits;
    if (uiTruncWeek >= lPeriod)
    {
        return false;
    }
    const int64_t lNear = static_cast<int64_t>(rNearTime.GetGpsWeek());
    // The candidate at or below the near week, and the one a period later.
    const int64_t lBelow = lNear - ((lNear - uiTruncWeek) % lPeriod + lPeriod) % lPeriod;
    const int64_t lAbove = lBelow + lPeriod;
    const int64_t lWeek = (lBelow < 0 || lAbove - lNear <= lNear - lBelow) ? lAbove : lBelow;
    if (lWeek > c_ulMAX_GPS_WEEK)
    {
        return false;
    }
    ruiGpsWeek = static_cast<unsigned int>(lWeek);
    return true;
}

bool TryFromTruncatedGps(unsigned int uiTruncWeek, unsigned int uiBits, double dGpsSeconds,
                         const SMjdTime& rNearTime, SMjdTime& rTime, EMjdTimeAccuracy eAccuracy)
{
    unsigned int uiGpsWeek = 0;
    return ResolveGpsWeek(uiTruncWeek, uiBits, rNearTime, uiGpsWeek) &&
           TryFromGps(uiGpsWeek, dGpsSeconds, rTime, eAccuracy);
}

} // namespace ZELN
