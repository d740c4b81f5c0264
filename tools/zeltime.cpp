// zeltime: one instant, given in any of its forms, in every other form.
//
//   zeltime [OPTIONS] FORM VALUE...     zeltime [OPTIONS] --now
//
// Every form but UTC is on the GPS time scale (the BeiDou form on BeiDou
// time); UTC comes from the library's leap-second table, which
// --leap-seconds replaces with an IERS leap-seconds.list.
#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Platform/OmtTime.h>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

const char* const c_szUsage =
    "Usage: zeltime [OPTIONS] FORM VALUE...\n"
    "       zeltime [OPTIONS] --now\n"
    "Prints one instant in every form: GPS week and seconds, GPS week and\n"
    "milliseconds, BeiDou week and seconds, MJD, Julian date, calendar date and\n"
    "time, year and day of year, and UTC. All forms but UTC are GPS time (the\n"
    "BeiDou form is BeiDou time, 14 s behind GPS time).\n"
    "\n"
    "Forms:\n"
    "  gps WEEK SECONDS           GPS week (0-5965) and seconds of week\n"
    "  gpsms WEEK MILLISECONDS    GPS week and milliseconds of week\n"
    "  bds WEEK SECONDS           BeiDou week (0-4609) and seconds of week\n"
    "  mjd MJD                    modified Julian date, days\n"
    "  jd JD                      Julian date, days\n"
    "  date DATE [TIME]           calendar: YYYY-MM-DD [hh:mm[:ss[.fff]]], or\n"
    "                             YYYY-MM-DDThh:mm:ss[.fff] as one word\n"
    "  doy YEAR DAY [SECONDS]     year, day of year (1-366), seconds of day\n"
    "  utc DATE [TIME]            UTC calendar, as for date; 23:59:60 on a leap second\n"
    "\n"
    "Options:\n"
    "  --now                      the host's clock instead of a FORM\n"
    "  --leap-seconds FILE        take the leap seconds from an IERS leap-seconds.list\n"
    "  --format STRING            print STRING with its % directives instead of the table\n"
    "  -p DIGITS                  decimals of seconds (0-9, default 6)\n"
    "  -h, --help                 this text\n"
    "\n"
    "Directives of --format: %G GPS week, %g GPS seconds of week, %i GPS\n"
    "milliseconds of week (whole), %I the GPS week of %i, %E BeiDou week, %e\n"
    "BeiDou seconds of week, %Q MJD, %J Julian date, %C calendar, %Y year,\n"
    "%m month, %d day, %H hour, %M minute, %S seconds, %j day of year, %s seconds\n"
    "of day, %U UTC calendar, %L GPS - UTC in seconds, %n newline, %t tab,\n"
    "%% a percent sign. Every form shows the instant rounded to -p decimals.\n"
    "\n"
    "Exit status: 0 success, 1 bad input (one ERROR line on stderr), 2 bad usage.\n";

// Exit codes of every tool of the package.
constexpr int c_iEXIT_OK = 0;
constexpr int c_iEXIT_BAD_INPUT = 1;
constexpr int c_iEXIT_USAGE = 2;

constexpr unsigned int c_uiMAX_BDS_WEEK = c_ulMAX_GPS_WEEK - c_ulGPS_WEEKS_AT_BDS_REFTIME;
// MJD of the NTP origin, 1900-01-01, and TAI - GPS time in seconds.
constexpr int64_t c_lNTP_ORIGIN_MJD = 15020;
constexpr int64_t c_lTAI_MINUS_GPS = 19;

struct SBadInput
{
    std::string strMessage;
};

struct SBadUsage
{
    std::string strMessage;
};

// Reports of the library's checks: a conversion of checked input makes
// none, so any report means the input reached a case the tool missed.
int s_iReports = 0;
std::string s_strFirstReport;

bool CountReport(const char* szExpression, const char*, int)
{
    if (s_iReports++ == 0)
    {
        s_strFirstReport = szExpression;
    }
    return true;
}

// A whole word as a finite double; false on anything else.
bool ParseDouble(const std::string& strWord, double& rdValue)
{
    if (strWord.empty() || std::isspace(static_cast<unsigned char>(strWord[0])))
    {
        return false;
    }
    errno = 0;
    char* pEnd = nullptr;
    rdValue = std::strtod(strWord.c_str(), &pEnd);
    return errno == 0 && pEnd == strWord.c_str() + strWord.size() && std::isfinite(rdValue);
}

// A whole word of decimal digits, at most ulMax.
bool ParseUnsigned(const std::string& strWord, uint64_t ulMax, uint64_t& rulValue)
{
    if (strWord.empty() || strWord.size() > 18)
    {
        return false;
    }
    rulValue = 0;
    for (char c : strWord)
    {
        if (c < '0' || c > '9')
        {
            return false;
        }
        rulValue = rulValue * 10 + static_cast<uint64_t>(c - '0');
    }
    return rulValue <= ulMax;
}

double Number(const std::string& strWord, const char* szWhat)
{
    double dValue = 0.0;
    if (!ParseDouble(strWord, dValue))
    {
        throw SBadInput{std::string(szWhat) + " '" + strWord + "' is not a number"};
    }
    return dValue;
}

unsigned int Whole(const std::string& strWord, const char* szWhat, unsigned int uiMax)
{
    uint64_t ulValue = 0;
    if (!ParseUnsigned(strWord, uiMax, ulValue))
    {
        throw SBadInput{std::string(szWhat) + " '" + strWord + "' is not a whole number from 0 to " +
                        std::to_string(uiMax)};
    }
    return static_cast<unsigned int>(ulValue);
}

struct SCalendar
{
    int iYear = 0;
    int iMonth = 0;
    int iDay = 0;
    int iHour = 0;
    int iMinute = 0;
    double dSeconds = 0.0;
};

// YYYY-MM-DD, and hh:mm or hh:mm:ss[.fff] (seconds below 61: a leap
// second is the caller's to allow).
SCalendar ParseCalendar(const std::vector<std::string>& vecWords)
{
    std::string strDate = vecWords[0];
    std::string strTime = vecWords.size() > 1 ? vecWords[1] : std::string();
    const size_t ulT = strDate.find('T');
    if (ulT != std::string::npos)
    {
        if (vecWords.size() > 1)
        {
            throw SBadUsage{"a date with a T takes its time in the same word"};
        }
        strTime = strDate.substr(ulT + 1);
        strDate = strDate.substr(0, ulT);
        if (!strTime.empty() && strTime.back() == 'Z')
        {
            strTime.pop_back();
        }
    }
    SCalendar stCal;
    uint64_t ulYear = 0, ulMonth = 0, ulDay = 0;
    if (strDate.size() != 10 || strDate[4] != '-' || strDate[7] != '-' ||
        !ParseUnsigned(strDate.substr(0, 4), 9999, ulYear) ||
        !ParseUnsigned(strDate.substr(5, 2), 99, ulMonth) || !ParseUnsigned(strDate.substr(8, 2), 99, ulDay))
    {
        throw SBadInput{"date '" + strDate + "' is not YYYY-MM-DD"};
    }
    stCal.iYear = static_cast<int>(ulYear);
    stCal.iMonth = static_cast<int>(ulMonth);
    stCal.iDay = static_cast<int>(ulDay);
    if (stCal.iYear < 1980 || stCal.iYear > 2100 || stCal.iMonth < 1 || stCal.iMonth > 12 || stCal.iDay < 1 ||
        stCal.iDay > static_cast<int>(MjdDetail::DaysInMonth(stCal.iYear, stCal.iMonth)))
    {
        throw SBadInput{"date '" + strDate + "' is no day from 1980 to 2100"};
    }
    if (strTime.empty())
    {
        return stCal;
    }
    uint64_t ulHour = 0, ulMinute = 0;
    const bool bShape =
        strTime.size() >= 5 && strTime[2] == ':' && (strTime.size() == 5 || strTime[5] == ':');
    if (!bShape || !ParseUnsigned(strTime.substr(0, 2), 23, ulHour) ||
        !ParseUnsigned(strTime.substr(3, 2), 59, ulMinute))
    {
        throw SBadInput{"time '" + strTime + "' is not hh:mm[:ss[.fff]] from 00:00 to 23:59"};
    }
    stCal.iHour = static_cast<int>(ulHour);
    stCal.iMinute = static_cast<int>(ulMinute);
    if (strTime.size() > 5)
    {
        const std::string strSeconds = strTime.substr(6);
        double dSeconds = 0.0;
        if (strSeconds.size() < 2 || strSeconds[0] < '0' || strSeconds[0] > '9' || strSeconds[1] < '0' ||
            strSeconds[1] > '9' || (strSeconds.size() > 2 && strSeconds[2] != '.') ||
            !ParseDouble(strSeconds, dSeconds) || dSeconds >= 61.0)
        {
            throw SBadInput{"seconds '" + strSeconds + "' are not ss[.fff] below 61"};
        }
        stCal.dSeconds = dSeconds;
    }
    return stCal;
}

// The library's range for every form: from the GPS epoch to MJD 86000.
void RequireRange(const SMjdTime& stTime)
{
    if (!stTime.isValid() || stTime.GetMjdDay() < c_lGPS_EPOCH_MJD)
    {
        throw SBadInput{"the instant is outside 1980-01-06 (GPS week 0) to MJD 86000"};
    }
}

// GPS time minus UTC in force at a UTC instant, from the table in force.
bool LeapCount(const SMjdTime& stUtc, int& riCount)
{
    const TYR::TIM::COmtTime oTime(stUtc.GetMjd());
    TYR::TIM::utcLeapSecond stInfo;
    stInfo.m_TimeSystem = TYR::TIM::TIMESYSTEM_GPS;
    if (oTime.GetLeapSecond(stInfo) != TYR::TIM::RC_OK)
    {
        return false;
    }
    riCount = stInfo.m_CurrentLeapSecond;
    return true;
}

SMjdTime PlusSeconds(SMjdTime stTime, double dSeconds)
{
    stTime.AddMilliseconds(dSeconds * 1000.0);
    return stTime;
}

// UTC of a GPS instant. Inside an inserted leap second, rstUtc is the
// second before it and rbInLeap is set: the caller shows 23:59:60.
bool GpsToUtc(const SMjdTime& stGps, SMjdTime& rstUtc, int& riCount, bool& rbInLeap)
{
    rbInLeap = false;
    int iFirst = 0, iSecond = 0, iThird = 0;
    if (!LeapCount(stGps, iFirst))
    {
        return false;
    }
    const SMjdTime stFirst = PlusSeconds(stGps, -iFirst);
    if (!LeapCount(stFirst, iSecond))
    {
        return false;
    }
    riCount = iFirst;
    rstUtc = stFirst;
    if (iSecond == iFirst)
    {
        return true;
    }
    const SMjdTime stSecond = PlusSeconds(stGps, -iSecond);
    if (!LeapCount(stSecond, iThird))
    {
        return false;
    }
    riCount = iSecond;
    if (iThird == iSecond)
    {
        rstUtc = stSecond;
        return true;
    }
    // Past midnight with the old count and before it with the new one:
    // the inserted second itself.
    rbInLeap = true;
    return true;
}

SMjdTime UtcToGps(const SCalendar& stCal)
{
    if (stCal.dSeconds < 60.0)
    {
        const SMjdTime stUtc(stCal.iYear, stCal.iMonth, stCal.iDay, stCal.iHour, stCal.iMinute,
                             stCal.dSeconds);
        int iCount = 0;
        if (!LeapCount(stUtc, iCount))
        {
            throw SBadInput{"the leap-second table holds no leap second"};
        }
        return PlusSeconds(stUtc, iCount);
    }
    // 23:59:60.f exists only before a midnight at which the count grows.
    const SMjdTime stDay(stCal.iYear, stCal.iMonth, stCal.iDay, 0, 0, 0.0);
    SMjdTime stMidnight = stDay;
    stMidnight.AddDays(1);
    int iBefore = 0, iAfter = 0;
    if (stCal.iHour != 23 || stCal.iMinute != 59 || !LeapCount(stDay, iBefore) ||
        !LeapCount(stMidnight, iAfter) || iAfter != iBefore + 1)
    {
        throw SBadInput{"there is no leap second at that time in the leap-second table"};
    }
    return PlusSeconds(stMidnight, iBefore + (stCal.dSeconds - 60.0));
}

// The leap seconds of an IERS leap-seconds.list: "NTP-seconds TAI-UTC
// [# comment]" lines; lines starting with # are comments.
TYR::TIM::LeapSecondEvents ReadLeapSecondsList(const std::string& strPath)
{
    std::ifstream ifs(strPath);
    if (!ifs)
    {
        throw SBadInput{"cannot open leap-seconds file '" + strPath + "'"};
    }
    TYR::TIM::LeapSecondEvents vecEvents;
    int64_t lCountBefore = 0;
    std::string strLine;
    int iLine = 0;
    while (std::getline(ifs, strLine))
    {
        ++iLine;
        const std::string strWhere = strPath + ":" + std::to_string(iLine) + ": ";
        const size_t ulHash = strLine.find('#');
        std::istringstream iss(strLine.substr(0, ulHash));
        std::string strSeconds, strTai, strRest;
        if (!(iss >> strSeconds))
        {
            continue;
        }
        uint64_t ulSeconds = 0, ulTai = 0;
        if (!(iss >> strTai) || (iss >> strRest) || !ParseUnsigned(strSeconds, 9999999999999ULL, ulSeconds) ||
            !ParseUnsigned(strTai, 100000, ulTai))
        {
            throw SBadInput{strWhere + "not a line 'NTP-seconds TAI-UTC'"};
        }
        if (ulSeconds % 86400 != 0)
        {
            throw SBadInput{strWhere + "the NTP time is not a midnight"};
        }
        const int64_t lMjd = static_cast<int64_t>(ulSeconds / 86400) + c_lNTP_ORIGIN_MJD;
        const int64_t lCount = static_cast<int64_t>(ulTai) - c_lTAI_MINUS_GPS;
        if (lMjd <= c_lGPS_EPOCH_MJD)
        {
            // Before the GPS epoch: only the count at the epoch matters.
            lCountBefore = lCount;
            continue;
        }
        if (lMjd >= static_cast<int32_t>(c_ulMAX_MJD_DAY))
        {
            throw SBadInput{strWhere + "the date is past MJD 86000"};
        }
        vecEvents.emplace_back(static_cast<int32_t>(lMjd), static_cast<int32_t>(lCount));
    }
    if (vecEvents.empty())
    {
        throw SBadInput{"leap-seconds file '" + strPath + "' holds no leap second after 1980-01-06"};
    }
    if (lCountBefore != 0)
    {
        throw SBadInput{"leap-seconds file '" + strPath + "': TAI - UTC is not 19 s at 1980-01-06"};
    }
    if (std::abs(vecEvents.front().lGpsMinusUtc) != 1)
    {
        throw SBadInput{"leap-seconds file '" + strPath +
                        "': the first leap second after 1980 does not make it 20 s"};
    }
    return vecEvents;
}

// An instant ready to print: rounded to the shown decimals, every form
// taken from the library once.
struct SForms
{
    int iDigits = 6;
    int64_t lScale = 1000000; // 10^iDigits
    SMjdTime stGps;
    unsigned short unGpsWeek = 0;
    int64_t lGpsUnits = 0; // seconds of week times lScale
    unsigned int uiGpsMs = 0;
    unsigned short unGpsMsWeek = 0;
    bool bBds = false;
    unsigned int uiBdsWeek = 0;
    int64_t lBdsUnits = 0;
    int iYear = 0, iMonth = 0, iDay = 0, iDoy = 0;
    int64_t lDayUnits = 0; // seconds of day times lScale
    bool bUtc = false;
    bool bUtcLeap = false;
    int iLeapCount = 0;
    int iUtcYear = 0, iUtcMonth = 0, iUtcDay = 0;
    int64_t lUtcDayUnits = 0;
};

int64_t ToUnits(double dSeconds, int64_t lScale)
{
    return static_cast<int64_t>(std::llround(dSeconds * static_cast<double>(lScale)));
}

std::string Seconds(int64_t lUnits, const SForms& rForms)
{
    char szText[64];
    const int64_t lWhole = lUnits / rForms.lScale;
    if (rForms.iDigits == 0)
    {
        std::snprintf(szText, sizeof(szText), "%lld", static_cast<long long>(lWhole));
    }
    else
    {
        std::snprintf(szText, sizeof(szText), "%lld.%0*lld", static_cast<long long>(lWhole), rForms.iDigits,
                      static_cast<long long>(lUnits % rForms.lScale));
    }
    return szText;
}

// hh:mm:ss[.f]; bLeap shows the second after 23:59:59 as 60.
std::string TimeOfDay(int64_t lUnits, bool bLeap, const SForms& rForms)
{
    const int64_t lSeconds = lUnits / rForms.lScale;
    char szText[64];
    std::snprintf(szText, sizeof(szText), "%02lld:%02lld:", static_cast<long long>(lSeconds / 3600),
                  static_cast<long long>(lSeconds / 60 % 60));
    const int64_t lInMinute =
        lUnits - (lSeconds - lSeconds % 60) * rForms.lScale + (bLeap ? rForms.lScale : 0);
    const std::string strSeconds = Seconds(lInMinute, rForms);
    return szText + (strSeconds.size() == 1 || strSeconds[1] == '.' ? "0" + strSeconds : strSeconds);
}

std::string Calendar(int iYear, int iMonth, int iDay, int64_t lDayUnits, bool bLeap, const SForms& rForms)
{
    char szText[32];
    std::snprintf(szText, sizeof(szText), "%04d-%02d-%02d ", iYear, iMonth, iDay);
    return szText + TimeOfDay(lDayUnits, bLeap, rForms);
}

// Seconds of the day of a time, in units; a rounding that reaches the
// next midnight moves the time there.
int64_t DayUnits(SMjdTime& rstTime, const SForms& rForms)
{
    const int64_t lPerDay = 86400 * rForms.lScale;
    int64_t lUnits = ToUnits(rstTime.GetMjdFractMilliseconds() / 1000.0, rForms.lScale);
    if (lUnits >= lPerDay)
    {
        rstTime.AddMilliseconds(86400000.0 - rstTime.GetMjdFractMilliseconds());
        lUnits = 0;
    }
    return lUnits;
}

SForms MakeForms(SMjdTime stGps, int iDigits)
{
    SForms stForms;
    stForms.iDigits = iDigits;
    stForms.lScale = 1;
    for (int i = 0; i < iDigits; ++i)
    {
        stForms.lScale *= 10;
    }
    stGps.RoundToMilliseconds(1000.0 / static_cast<double>(stForms.lScale));
    stForms.lDayUnits = DayUnits(stGps, stForms);
    RequireRange(stGps);
    stForms.stGps = stGps;

    // GPS week and seconds of week from whole days and the day's units, so
    // that the seconds never show the end of a week.
    double dSeconds = 0.0;
    stGps.GetGpsTime(stForms.unGpsWeek, dSeconds);
    const int64_t lDaysOfWeek = (static_cast<int64_t>(stGps.GetMjdDay()) - c_lGPS_EPOCH_MJD) % 7;
    const int64_t lPerWeek = 7 * 86400 * stForms.lScale;
    stForms.lGpsUnits = lDaysOfWeek * 86400 * stForms.lScale + stForms.lDayUnits;
    stGps.GetGpsTimeMs(stForms.unGpsMsWeek, stForms.uiGpsMs);

    // BeiDou time is GPS time less 14 s, in weeks from GPS week 1356: the
    // same instant in whole units, shifted.
    const int64_t lBdsUnits =
        (static_cast<int64_t>(stForms.unGpsWeek) - c_ulGPS_WEEKS_AT_BDS_REFTIME) * lPerWeek +
        stForms.lGpsUnits - static_cast<int64_t>(c_dBDS_OFFSET_MSEC) / 1000 * stForms.lScale;
    if (lBdsUnits >= 0)
    {
        stForms.bBds = true;
        stForms.uiBdsWeek = static_cast<unsigned int>(lBdsUnits / lPerWeek);
        stForms.lBdsUnits = lBdsUnits % lPerWeek;
    }

    double dSecondsOfDay = 0.0;
    int iHour = 0, iMinute = 0;
    stGps.GetDate(stForms.iYear, stForms.iMonth, stForms.iDay, iHour, iMinute, dSecondsOfDay);
    stForms.iDoy = stGps.GetDayOfYear();

    SMjdTime stUtc;
    if (GpsToUtc(stGps, stUtc, stForms.iLeapCount, stForms.bUtcLeap))
    {
        stForms.bUtc = true;
        stForms.lUtcDayUnits = DayUnits(stUtc, stForms);
        stUtc.GetDate(stForms.iUtcYear, stForms.iUtcMonth, stForms.iUtcDay, iHour, iMinute, dSecondsOfDay);
    }
    return stForms;
}

std::string Fixed(double dValue, int iDecimals)
{
    char szText[64];
    std::snprintf(szText, sizeof(szText), "%.*f", iDecimals, dValue);
    return szText;
}

std::string Directive(char cDirective, const SForms& rForms)
{
    const int64_t lDaySeconds = rForms.lDayUnits / rForms.lScale;
    char szText[32];
    switch (cDirective)
    {
    case 'G':
        return std::to_string(rForms.unGpsWeek);
    case 'g':
        return Seconds(rForms.lGpsUnits, rForms);
    case 'i':
        return std::to_string(rForms.uiGpsMs);
    case 'I':
        return std::to_string(rForms.unGpsMsWeek);
    case 'E':
        return rForms.bBds ? std::to_string(rForms.uiBdsWeek) : "-";
    case 'e':
        return rForms.bBds ? Seconds(rForms.lBdsUnits, rForms) : "-";
    case 'Q':
        return Fixed(rForms.stGps.GetMjd(), 9);
    case 'J':
        return Fixed(rForms.stGps.GetJulianDate(), 9);
    case 'C':
        return Calendar(rForms.iYear, rForms.iMonth, rForms.iDay, rForms.lDayUnits, false, rForms);
    case 'Y':
        return std::to_string(rForms.iYear);
    case 'm':
        std::snprintf(szText, sizeof(szText), "%02d", rForms.iMonth);
        return szText;
    case 'd':
        std::snprintf(szText, sizeof(szText), "%02d", rForms.iDay);
        return szText;
    case 'H':
        std::snprintf(szText, sizeof(szText), "%02lld", static_cast<long long>(lDaySeconds / 3600));
        return szText;
    case 'M':
        std::snprintf(szText, sizeof(szText), "%02lld", static_cast<long long>(lDaySeconds / 60 % 60));
        return szText;
    case 'S':
        return TimeOfDay(rForms.lDayUnits, false, rForms).substr(6);
    case 'j':
        std::snprintf(szText, sizeof(szText), "%03d", rForms.iDoy);
        return szText;
    case 's':
        return Seconds(rForms.lDayUnits, rForms);
    case 'U':
        return rForms.bUtc ? Calendar(rForms.iUtcYear, rForms.iUtcMonth, rForms.iUtcDay, rForms.lUtcDayUnits,
                                      rForms.bUtcLeap, rForms)
                           : "-";
    case 'L':
        return rForms.bUtc ? std::to_string(rForms.iLeapCount) : "-";
    case 'n':
        return "\n";
    case 't':
        return "\t";
    case '%':
        return "%";
    default:
        throw SBadUsage{std::string("unknown directive %") + cDirective + " in --format"};
    }
}

std::string Expand(const std::string& strFormat, const SForms& rForms)
{
    std::string strOut;
    for (size_t ul = 0; ul < strFormat.size(); ++ul)
    {
        if (strFormat[ul] != '%')
        {
            strOut += strFormat[ul];
        }
        else if (ul + 1 == strFormat.size())
        {
            throw SBadUsage{"--format ends with a lone %"};
        }
        else
        {
            strOut += Directive(strFormat[++ul], rForms);
        }
    }
    return strOut;
}

const char* const c_szTable = "GPS week, seconds:        %G %g\n"
                              "GPS week, milliseconds:   %I %i\n"
                              "BeiDou week, seconds:     %E %e\n"
                              "MJD:                      %Q\n"
                              "Julian date:              %J\n"
                              "Calendar:                 %C\n"
                              "Year, day, seconds:       %Y %j %s\n"
                              "UTC:                      %U\n"
                              "GPS - UTC:                %L s\n";

SMjdTime ParseForm(const std::string& strForm, const std::vector<std::string>& vecArgs)
{
    auto fnCount = [&](size_t ulMin, size_t ulMax)
    {
        if (vecArgs.size() < ulMin || vecArgs.size() > ulMax)
        {
            throw SBadUsage{"form '" + strForm + "' takes " + std::to_string(ulMin) +
                            (ulMin == ulMax ? "" : " or " + std::to_string(ulMax)) + " values"};
        }
    };
    SMjdTime stTime;
    if (strForm == "gps" || strForm == "gpsms" || strForm == "bds")
    {
        fnCount(2, 2);
        const bool bBds = strForm == "bds";
        const unsigned int uiWeek =
            Whole(vecArgs[0], "week", bBds ? c_uiMAX_BDS_WEEK : static_cast<unsigned int>(c_ulMAX_GPS_WEEK));
        const bool bMs = strForm == "gpsms";
        const double dValue = Number(vecArgs[1], bMs ? "milliseconds" : "seconds");
        const double dLimit =
            bMs ? static_cast<double>(c_ulMSEC_PER_WEEK) : static_cast<double>(c_ulSEC_PER_WEEK);
        if (!(dValue >= 0.0 && dValue < dLimit))
        {
            throw SBadInput{std::string(bMs ? "milliseconds" : "seconds") + " of week '" + vecArgs[1] +
                            "' are outside 0 to below " + Fixed(dLimit, 0)};
        }
        const unsigned short unWeek = static_cast<unsigned short>(uiWeek);
        if (bBds)
        {
            stTime.SetBdsTime(unWeek, dValue);
        }
        else if (bMs)
        {
            stTime.SetGpsTimeMs(unWeek, dValue);
        }
        else
        {
            stTime.SetGpsTime(unWeek, dValue);
        }
    }
    else if (strForm == "mjd" || strForm == "jd")
    {
        fnCount(1, 1);
        const double dValue = Number(vecArgs[0], strForm == "mjd" ? "MJD" : "Julian date");
        const double dMjd = strForm == "mjd" ? dValue : dValue - c_dJD_MJD_OFFSET;
        if (!(dMjd >= c_lGPS_EPOCH_MJD && dMjd < static_cast<int32_t>(c_ulMAX_MJD_DAY)))
        {
            throw SBadInput{"the instant is outside 1980-01-06 (GPS week 0) to MJD 86000"};
        }
        stTime.SetMjdAny(dMjd);
    }
    else if (strForm == "date" || strForm == "utc")
    {
        fnCount(1, 2);
        const SCalendar stCal = ParseCalendar(vecArgs);
        if (strForm == "utc")
        {
            return UtcToGps(stCal);
        }
        if (stCal.dSeconds >= 60.0)
        {
            throw SBadInput{"seconds of 60 exist in UTC only"};
        }
        stTime.SetDateTime(stCal.iYear, stCal.iMonth, stCal.iDay, stCal.iHour, stCal.iMinute, stCal.dSeconds);
    }
    else if (strForm == "doy")
    {
        fnCount(2, 3);
        const unsigned int uiYear = Whole(vecArgs[0], "year", 2100);
        const unsigned int uiDoy = Whole(vecArgs[1], "day of year", 366);
        if (uiYear < 1980 || uiDoy < 1 ||
            uiDoy > (MjdDetail::IsLeapYear(static_cast<int>(uiYear)) ? 366u : 365u))
        {
            throw SBadInput{"year and day '" + vecArgs[0] + " " + vecArgs[1] +
                            "' are no day from 1980 to 2100"};
        }
        const double dSecondOfDay = vecArgs.size() > 2 ? Number(vecArgs[2], "seconds of day") : 0.0;
        if (!(dSecondOfDay >= 0.0 && dSecondOfDay < 86400.0))
        {
            throw SBadInput{"seconds of day '" + vecArgs[2] + "' are outside 0 to below 86400"};
        }
        // The year-day setter takes the day as a fraction; whole days first
        // keep the milliseconds exact.
        stTime.SetYearDaySeconds(static_cast<int>(uiYear), static_cast<int>(uiDoy), 0.0);
        stTime.AddMilliseconds(dSecondOfDay * 1000.0);
    }
    else
    {
        throw SBadUsage{"unknown form '" + strForm + "'"};
    }
    RequireRange(stTime);
    return stTime;
}

int Run(int argc, char** argv)
{
    std::string strFormat = c_szTable;
    std::string strLeapFile;
    bool bNow = false;
    int iDigits = 6;
    std::vector<std::string> vecPositional;
    for (int i = 1; i < argc; ++i)
    {
        const std::string strArg = argv[i];
        auto fnValue = [&]() -> std::string
        {
            if (i + 1 >= argc)
            {
                throw SBadUsage{"option " + strArg + " needs a value"};
            }
            return argv[++i];
        };
        if (strArg == "-h" || strArg == "--help")
        {
            std::cout << c_szUsage;
            return c_iEXIT_OK;
        }
        else if (strArg == "--now")
        {
            bNow = true;
        }
        else if (strArg == "--leap-seconds")
        {
            strLeapFile = fnValue();
        }
        else if (strArg == "--format")
        {
            strFormat = fnValue();
        }
        else if (strArg == "-p")
        {
            uint64_t ulDigits = 0;
            const std::string strValue = fnValue();
            if (!ParseUnsigned(strValue, 9, ulDigits))
            {
                throw SBadUsage{"-p takes 0 to 9 digits, not '" + strValue + "'"};
            }
            iDigits = static_cast<int>(ulDigits);
        }
        else if (strArg.size() > 1 && strArg[0] == '-' && !(strArg[1] >= '0' && strArg[1] <= '9'))
        {
            throw SBadUsage{"unknown option '" + strArg + "'"};
        }
        else
        {
            vecPositional.push_back(strArg);
        }
    }
    if (bNow == !vecPositional.empty())
    {
        throw SBadUsage{bNow ? "--now takes no FORM" : "give a FORM and its values, or --now"};
    }
    // A bad directive is bad usage whatever the input: try it on any instant.
    Expand(strFormat, MakeForms(SMjdTime(2000u, 0.0), iDigits));

    if (!strLeapFile.empty())
    {
        const TYR::TIM::LeapSecondEvents vecEvents = ReadLeapSecondsList(strLeapFile);
        if (TYR::TIM::SetLeapSecondEvents(vecEvents) != TYR::TIM::RC_OK)
        {
            throw SBadInput{"leap-seconds file '" + strLeapFile +
                            "': the leap seconds are not in order or do not step by one second"};
        }
    }
    SMjdTime stGps;
    if (bNow)
    {
        const TYR::TIM::COmtTime oNow;
        SMjdTime stUtc;
        stUtc.SetMjdAny(oNow.GetUtcMjd());
        int iCount = 0;
        if (!LeapCount(stUtc, iCount))
        {
            throw SBadInput{"the leap-second table holds no leap second"};
        }
        stGps = PlusSeconds(stUtc, iCount);
    }
    else
    {
        stGps = ParseForm(vecPositional[0],
                          std::vector<std::string>(vecPositional.begin() + 1, vecPositional.end()));
    }
    const SForms stForms = MakeForms(stGps, iDigits);
    if (s_iReports != 0)
    {
        throw SBadInput{"the library reported \"" + s_strFirstReport + "\" for this instant"};
    }
    std::cout << Expand(strFormat, stForms);
    if (strFormat != c_szTable && (strFormat.empty() || strFormat.back() != '\n'))
    {
        std::cout << "\n";
    }
    std::cout.flush();
    if (!std::cout)
    {
        throw SBadInput{"cannot write the output"};
    }
    return c_iEXIT_OK;
}

} // namespace

int main(int argc, char** argv)
{
    SetAssertHandler(&CountReport);
    try
    {
        return Run(argc, argv);
    }
    catch (const SBadUsage& rError)
    {
        std::cerr << "zeltime: " << rError.strMessage << "\nTry 'zeltime --help'.\n";
        return c_iEXIT_USAGE;
    }
    catch (const SBadInput& rError)
    {
        std::cerr << "ERROR: " << rError.strMessage << "\n";
        return c_iEXIT_BAD_INPUT;
    }
    catch (const std::exception& rError)
    {
        std::cerr << "ERROR: " << rError.what() << "\n";
        return c_iEXIT_BAD_INPUT;
    }
}
