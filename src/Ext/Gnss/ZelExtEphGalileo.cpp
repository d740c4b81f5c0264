#include <ZelTypes/Ext/Gnss/ZelExtEphGalileo.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

#include "ZelExtEphIO.h"

#include <cmath>

namespace ZELN
{

ZELX_SAT_EPHEMERIS_GALILEO::~ZELX_SAT_EPHEMERIS_GALILEO() = default;

void ZELX_SAT_EPHEMERIS_GALILEO::clear()
{
    *this = ZELX_SAT_EPHEMERIS_GALILEO();
    // The one reset that differs from the default: the signal health goes to
    // zero, where the constructor sets it to 1.
    ucHsE1b = 0;
    ucHsE5b = 0;
    ucHsE5a = 0;
}

uint8_t ZELX_SAT_EPHEMERIS_GALILEO::getSvId() const
{
    return uiSVID;
}

SZelSatID ZELX_SAT_EPHEMERIS_GALILEO::getSatId() const
{
    ZEL_ASSERT(uiSVID >= POS_OFFSET_PRN_GAL);
    return SZelSatID(ZELSATSYSTEM_GALILEO, static_cast<uint8_t>(uiSVID - POS_OFFSET_PRN_GAL));
}

SMjdTime ZELX_SAT_EPHEMERIS_GALILEO::nearestInstance(uint32_t ulSecondsOfWeek) const
{
    if (!stRefTimeApprox.IsSet())
    {
        ZEL_ASSERT(uiEphSource == POS_SAT_EPH_GAL_SRC_INVALID);
        return stRefTimeApprox;
    }
    const int64_t lWeek = (static_cast<int64_t>(stRefTimeApprox.m_lMjdDay) - c_lGPS_EPOCH_MJD) / 7;
    SMjdTime t;
    t.SetGpsTime(static_cast<unsigned short>(lWeek), static_cast<double>(ulSecondsOfWeek));
    const int32_t lDayDiff =
        MjdDetail::AddWrap(stRefTimeApprox.m_lMjdDay, -static_cast<int64_t>(t.m_lMjdDay));
    const double dDiff =
        lDayDiff * 86400.0 + (stRefTimeApprox.m_dMjdFractMilliseconds - t.m_dMjdFractMilliseconds) / 1000.0;
    t.AddMilliseconds(std::floor(dDiff / 604800.0 + 0.5) * 604800.0 * 1000.0);
    return t;
}

SMjdTime ZELX_SAT_EPHEMERIS_GALILEO::getToe() const
{
    return nearestInstance(ulToe);
}

SMjdTime ZELX_SAT_EPHEMERIS_GALILEO::getToc() const
{
    return nearestInstance(ulToc);
}

SMjdTime ZELX_SAT_EPHEMERIS_GALILEO::getPT1Time() const
{
    if (ulPT1Tow == c_ulPT1_TOW_UNSET)
    {
        return SMjdTime();
    }
    // The broadcast week counts from the system's start, 1024 GPS weeks on.
    const uint16_t unWeek = static_cast<uint16_t>(1024 + unPT1Week);
    unsigned short unRefWeek = 0;
    double dRefSeconds = 0.0;
    stRefTimeApprox.GetGpsTime(unRefWeek, dRefSeconds);
    // Number of 4096-week rollovers; both weeks are 16-bit, so it stays small.
    const double dRollovers =
        std::trunc((static_cast<int32_t>(unRefWeek) - static_cast<int32_t>(unWeek)) * 0.000244140625 + 0.5);
    const int16_t n = static_cast<int16_t>(dRollovers);
    SMjdTime stPT1Time;
    stPT1Time.SetGpsTime(static_cast<unsigned short>(unWeek + n * 4096), static_cast<double>(ulPT1Tow));
    ZEL_ASSERT_TEXT(std::fabs(SMjdTime::DiffAsDays(stRefTimeApprox, stPT1Time)) < 1.0,
                    "std::fabs( DiffAsDays( stRefTimeApprox, stPT1Time ) ) < 1.0");
    return stPT1Time;
}

void ZELX_SAT_EPHEMERIS_GALILEO::setPT1Time(uint16_t unWeek, uint32_t ulTow)
{
    unPT1Week = unWeek;
    ulPT1Tow = ulTow;
}

void ZELX_SAT_EPHEMERIS_GALILEO::setRefTimeApprox(const SMjdTime& stTime)
{
    stRefTimeApprox = stTime;
    stRefTimeApprox.SetAccuracy(MJDACC_NANOSECOND);
}

uint32_t ZELX_SAT_EPHEMERIS_GALILEO::getIod() const
{
    return unIodNav;
}

bool ZELX_SAT_EPHEMERIS_GALILEO::isHealthy() const
{
    bool bHealthy = false;
    switch (ulNavType)
    {
    case 2:
        bHealthy = ucDvsE1b == 0 && ucHsE1b == 0;
        break;
    case 3:
        bHealthy = ucDvsE5b == 0 && ucHsE5b == 0;
        break;
    case 4:
        bHealthy = ucDvsE1b == 0 && ucHsE1b == 0 && ucDvsE5b == 0 && ucHsE5b == 0;
        break;
    case 5:
        bHealthy = ucDvsE5a == 0 && ucHsE5a == 0;
        break;
    default:
        // Kind 1 of I/NAV counts as unknown.
        return false;
    }
    return bHealthy && ucSisaIndex < 255;
}

uint8_t ZELX_SAT_EPHEMERIS_GALILEO::getPrnOffset() const
{
    return POS_OFFSET_PRN_GAL;
}

uint8_t ZELX_SAT_EPHEMERIS_GALILEO::getFirstPrn() const
{
    return 1;
}

EZelEphValidity ZELX_SAT_EPHEMERIS_GALILEO::checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                                          uint32_t ulMarginSeconds)
{
    return checkSpanMargin(stTime, stToe, 10800, 10800, ulMarginSeconds);
}

EZelGalNavKind ZELX_SAT_EPHEMERIS_GALILEO::getNavKind() const
{
    if (ulNavType >= 1 && ulNavType <= 4)
    {
        return ZELGALNAVKIND_INAV;
    }
    if (ulNavType == 5)
    {
        return ZELGALNAVKIND_FNAV;
    }
    return ZELGALNAVKIND_NONE;
}

double ZELX_SAT_EPHEMERIS_GALILEO::getAf0FNav() const
{
    return getNavKind() == ZELGALNAVKIND_FNAV ? dAf0 : 0.0;
}

double ZELX_SAT_EPHEMERIS_GALILEO::getAf1FNav() const
{
    return getNavKind() == ZELGALNAVKIND_FNAV ? dAf1 : 0.0;
}

double ZELX_SAT_EPHEMERIS_GALILEO::getAf2FNav() const
{
    return getNavKind() == ZELGALNAVKIND_FNAV ? dAf2 : 0.0;
}

double ZELX_SAT_EPHEMERIS_GALILEO::getAf0INav() const
{
    return getNavKind() == ZELGALNAVKIND_INAV ? dAf0 : 0.0;
}

double ZELX_SAT_EPHEMERIS_GALILEO::getAf1INav() const
{
    return getNavKind() == ZELGALNAVKIND_INAV ? dAf1 : 0.0;
}

double ZELX_SAT_EPHEMERIS_GALILEO::getAf2INav() const
{
    return getNavKind() == ZELGALNAVKIND_INAV ? dAf2 : 0.0;
}

uint32_t ZELX_SAT_EPHEMERIS_GALILEO::getTocSecondsFNav() const
{
    return getNavKind() == ZELGALNAVKIND_FNAV ? getToc().GetGpsMilliseconds() / 1000u : 0u;
}

uint32_t ZELX_SAT_EPHEMERIS_GALILEO::getTocSecondsINav() const
{
    return getNavKind() == ZELGALNAVKIND_INAV ? getToc().GetGpsMilliseconds() / 1000u : 0u;
}

void ZELX_SAT_EPHEMERIS_GALILEO::setHealthFNav(uint8_t ucBits)
{
    ulNavType = 5;
    ucDvsE5a = static_cast<uint8_t>(ucBits & 0x1);
    ucHsE5a = static_cast<uint8_t>((ucBits >> 1) & 0x3);
    ucDvsE1b = 0;
    ucHsE1b = 0;
}

void ZELX_SAT_EPHEMERIS_GALILEO::setHealthINav(uint8_t ucBits)
{
    ulNavType = 4;
    ucDvsE1b = static_cast<uint8_t>(ucBits & 0x1);
    ucHsE1b = static_cast<uint8_t>((ucBits >> 1) & 0x3);
    ucDvsE5b = static_cast<uint8_t>((ucBits >> 3) & 0x1);
    ucHsE5b = static_cast<uint8_t>((ucBits >> 4) & 0x3);
    ucDvsE5a = 0;
    ucHsE5a = 0;
}

uint8_t ZELX_SAT_EPHEMERIS_GALILEO::getHealthFNav() const
{
    if (ulNavType != 5)
    {
        return 0;
    }
    return static_cast<uint8_t>((ucDvsE5a & 0x1) | ((ucHsE5a & 0x3) << 1));
}

uint8_t ZELX_SAT_EPHEMERIS_GALILEO::getHealthINav() const
{
    if (ulNavType < 1 || ulNavType > 4)
    {
        return 0;
    }
    return static_cast<uint8_t>((ucDvsE1b & 0x1) | ((ucHsE1b & 0x3) << 1) | ((ucDvsE5b & 0x1) << 3) |
                                ((ucHsE5b & 0x3) << 4));
}

double ZELX_SAT_EPHEMERIS_GALILEO::getSisa() const
{
    const int i = ucSisaIndex;
    if (i <= 49)
    {
        return i / 100.0;
    }
    if (i <= 74)
    {
        return (2 * i - 50) / 100.0;
    }
    if (i <= 99)
    {
        return (4 * i - 200) / 100.0;
    }
    if (i <= 125)
    {
        return (16 * i - 1400) / 100.0;
    }
    return -1.0;
}

bool ZELX_SAT_EPHEMERIS_GALILEO::setSisa(double dMetres)
{
    const double v = dMetres * 100.0;
    if (dMetres < 0.0)
    {
        ucSisaIndex = c_ucSISA_NAPA;
        return true;
    }
    if (dMetres < 0.5)
    {
        ucSisaIndex = static_cast<uint8_t>(v + 0.5);
        return true;
    }
    if (dMetres < 1.0)
    {
        ucSisaIndex = static_cast<uint8_t>((v - 50.0) * 0.5 + 50.5);
        return true;
    }
    if (dMetres < 2.0)
    {
        ucSisaIndex = static_cast<uint8_t>((v - 100.0) * 0.25 + 75.5);
        return true;
    }
    if (dMetres <= 6.0)
    {
        ucSisaIndex = static_cast<uint8_t>((v - 200.0) * 0.0625 + 100.5);
        return true;
    }
    // Above 6 m (or not a number): no index.
    ZEL_ASSERT(false);
    ucSisaIndex = c_ucSISA_NAPA;
    return false;
}

bool ZELX_SAT_EPHEMERIS_GALILEO::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_EPHEMERIS_GALILEO::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExtVersioned(*this, pBuffer, uiBufferLength, c_ucImageVersion,
                                   "loadData(ZELX_SAT_EPHEMERIS_GALILEO) received old version.");
}

bool operator==(const ZELX_SAT_EPHEMERIS_GALILEO& a, const ZELX_SAT_EPHEMERIS_GALILEO& b)
{
    if (static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(a) != static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(b))
    {
        return false;
    }
    if (a.ulNavType != b.ulNavType || a.uiSVID != b.uiSVID || a.ucAux1 != b.ucAux1 ||
        a.unIodNav != b.unIodNav)
    {
        return false;
    }
    if (a.ucSisaIndex != b.ucSisaIndex || a.ucHsE1b != b.ucHsE1b || a.ucHsE5b != b.ucHsE5b ||
        a.ucHsE5a != b.ucHsE5a || a.ucDvsE1b != b.ucDvsE1b || a.ucDvsE5b != b.ucDvsE5b ||
        a.ucDvsE5a != b.ucDvsE5a)
    {
        return false;
    }
    if (!AreCloseRel(a.dAf0, b.dAf0) || !AreCloseRel(a.dAf1, b.dAf1) || !AreCloseRel(a.dAf2, b.dAf2) ||
        !AreCloseRel(a.dBgdE5a, b.dBgdE5a) || !AreCloseRel(a.dBgdE5b, b.dBgdE5b))
    {
        return false;
    }
    return a.getToc() == b.getToc() && a.getToe() == b.getToe();
}

bool isNewEphemerisGalileo(const ZELX_SAT_EPHEMERIS_GALILEO& rEphCurrent,
                           const ZELX_SAT_EPHEMERIS_GALILEO& rEphNew, bool bContentOnly)
{
    if (const auto obTaken =
            ZelEphUpdate::Head(rEphCurrent, rEphNew, rEphCurrent.uiEphSource != POS_SAT_EPH_GAL_SRC_INVALID,
                               rEphNew.uiEphSource != POS_SAT_EPH_GAL_SRC_INVALID))
    {
        return *obTaken;
    }
    const SMjdTime stToeCurrent = rEphCurrent.getToe();
    const SMjdTime stToeNew = rEphNew.getToe();
    if (bContentOnly)
    {
        // A set not older than the held one replaces it whenever it differs.
        return !(stToeNew < stToeCurrent) && rEphNew != rEphCurrent;
    }
    if (const auto obTaken = ZelEphUpdate::TimeAndIssue(stToeCurrent, stToeNew, stToeCurrent,
                                                        rEphCurrent.unIodNav != rEphNew.unIodNav))
    {
        return *obTaken;
    }
    const SMjdTime stTocCurrent = rEphCurrent.getToc();
    const SMjdTime stTocNew = rEphNew.getToc();
    // No report for changed content under the same issue and times.
    return stTocNew < stTocCurrent || stTocCurrent < stTocNew;
}

} // namespace ZELN
