#include <ZelTypes/Ext/Gnss/ZelExtEphGps.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

#include "ZelExtEphIO.h"

namespace ZELN
{

namespace
{

// Broadcast accuracy by index, and the upper limit in metres of each index.
constexpr float c_afURA_METRES[16] = {2.0f,  2.8f,   4.0f,   5.7f,   8.0f,    11.3f,   16.0f,   32.0f,
                                      64.0f, 128.0f, 256.0f, 512.0f, 1024.0f, 2048.0f, 4096.0f, 32767.0f};
constexpr float c_afURA_LIMITS[15] = {2.4f,  3.4f,   4.85f,  6.85f,  9.65f,   13.65f,  24.0f,  48.0f,
                                      96.0f, 192.0f, 384.0f, 768.0f, 1536.0f, 3072.0f, 6144.0f};

// Signed 32-bit arithmetic that wraps instead of overflowing.
int32_t Wrap32(int64_t l)
{
    return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(l)));
}

} // namespace

ZELX_SAT_EPHEMERIS::~ZELX_SAT_EPHEMERIS() = default;

// Assigns the GPS part only: a QZSS record keeps its own fields here.
void ZELX_SAT_EPHEMERIS::clear()
{
    *this = ZELX_SAT_EPHEMERIS();
}

uint8_t ZELX_SAT_EPHEMERIS::getSvId() const
{
    return uiSvId;
}

SZelSatID ZELX_SAT_EPHEMERIS::getSatId() const
{
    return SZelSatID(ZELSATSYSTEM_GPS, uiSvId);
}

SMjdTime ZELX_SAT_EPHEMERIS::getToe() const
{
    return SMjdTime(static_cast<unsigned int>(unGPSWeek), static_cast<double>(ulToe), MJDACC_NANOSECOND);
}

uint32_t ZELX_SAT_EPHEMERIS::getIod() const
{
    return unIodc;
}

bool ZELX_SAT_EPHEMERIS::isHealthy() const
{
    return unHealth == 0;
}

uint8_t ZELX_SAT_EPHEMERIS::getPrnOffset() const
{
    return 0;
}

uint8_t ZELX_SAT_EPHEMERIS::getFirstPrn() const
{
    return 1;
}

EZelEphValidity ZELX_SAT_EPHEMERIS::checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                                  uint32_t ulMarginSeconds)
{
    return checkSpanMargin(stTime, stToe, 10800, 10800, ulMarginSeconds);
}

uint8_t ZELX_SAT_EPHEMERIS::getFitIntervalHours() const
{
    if (ucFitIntervalFlag == 0)
    {
        return 4;
    }
    if (ucFitIntervalFlag != 1)
    {
        return 0;
    }
    if (unIodc >= 240 && unIodc <= 247)
    {
        return 8;
    }
    if ((unIodc >= 248 && unIodc <= 255) || unIodc == 496)
    {
        return 14;
    }
    if ((unIodc >= 497 && unIodc <= 503) || (unIodc >= 1021 && unIodc <= 1023))
    {
        return 26;
    }
    // Values reserved by the signal's definition are reported; the answer stays 6.
    const bool bReserved = (unIodc >= 504 && unIodc <= 511) || (unIodc >= 752 && unIodc <= 757);
    ZEL_ASSERT_TEXT(!bReserved, "!((unIodc >= 504 && unIodc <= 511) || (unIodc >= 752 && unIodc <= 757) )");
    return 6;
}

int32_t ZELX_SAT_EPHEMERIS::getTransmissionTimeOfWeek() const
{
    if (ulTransmissionTime == c_ulNO_TRANSMISSION_TIME)
    {
        // Estimated 2 h 1 min before the time of ephemeris, on a 30-second grid.
        const int32_t x = Wrap32(static_cast<int64_t>(static_cast<int32_t>(ulToe)) - 7260);
        const int32_t q = (x / 30) * 30;
        const int32_t r = x - q;
        if (r >= 15)
        {
            return Wrap32(static_cast<int64_t>(q) + 30);
        }
        if (r < -14)
        {
            return Wrap32(static_cast<int64_t>(q) - 30);
        }
        return q;
    }
    const int32_t d = static_cast<int32_t>(ulTransmissionTime - ulToe);
    if (d > 302400)
    {
        // The message is from the week before that of ulToe.
        return Wrap32(static_cast<int64_t>(ulTransmissionTime) - 604800);
    }
    if (d < -302400)
    {
        // Reported once per process, with the text the check carries.
        ZEL_ASSERT_ONCE_TEXT(false, "(!\"Validity time of ephemeris is too far away in the future w.r.t. "
                                    "ephemeris transmission time. Please check the data\")");
        return Wrap32(static_cast<int64_t>(ulTransmissionTime) + 604800);
    }
    return static_cast<int32_t>(ulTransmissionTime);
}

float ZELX_SAT_EPHEMERIS::getUra() const
{
    return c_afURA_METRES[unUraIndex < 15 ? unUraIndex : 15];
}

void ZELX_SAT_EPHEMERIS::setUra(float fMetres)
{
    for (uint16_t unIdx = 0; unIdx < 15; ++unIdx)
    {
        if (fMetres <= c_afURA_LIMITS[unIdx])
        {
            unUraIndex = unIdx;
            return;
        }
    }
    unUraIndex = 15;
}

// The report names the value as broadcast, unHealth.
void ZELX_SAT_EPHEMERIS::setHealth(uint16_t unValue)
{
    ZEL_ASSERT_TEXT(0 == (unValue & ~0x3f), "0 == (unHealth & ~0x3f)");
    unHealth = static_cast<uint16_t>(unValue & 0x3F);
}

void ZELX_SAT_EPHEMERIS::setHealthBool(bool bUnhealthy)
{
    setHealth(bUnhealthy ? 32 : 0);
}

void ZELX_SAT_EPHEMERIS::setWord(size_t ulIndex, uint16_t unValue)
{
    ZelIo::SetElement(aunWords, ulIndex, unValue);
}

void ZELX_SAT_EPHEMERIS::setClock(size_t ulIndex, float fValue)
{
    ZelIo::SetElement(afClock, ulIndex, fValue);
}

bool ZELX_SAT_EPHEMERIS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_EPHEMERIS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExt(*this, pBuffer, uiBufferLength);
}

bool operator==(const ZELX_SAT_EPHEMERIS& a, const ZELX_SAT_EPHEMERIS& b)
{
    if (static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(a) != static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(b))
    {
        return false;
    }
    if (a.uiSvId != b.uiSvId || a.unHealth != b.unHealth || a.unGPSWeek != b.unGPSWeek ||
        a.unUraIndex != b.unUraIndex)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 5; ++ulIdx)
    {
        if (a.aunWords[ulIdx] != b.aunWords[ulIdx])
        {
            return false;
        }
    }
    if (a.unIodc != b.unIodc || !AreCloseRel(a.fGroupDelay, b.fGroupDelay) || a.ulToe != b.ulToe ||
        a.ulToc != b.ulToc)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 3; ++ulIdx)
    {
        if (!AreCloseRel(a.afClock[ulIdx], b.afClock[ulIdx]))
        {
            return false;
        }
    }
    return a.ucFitIntervalFlag == b.ucFitIntervalFlag;
}

bool isNewEphemerisGps(const ZELX_SAT_EPHEMERIS& rEphCurrent, const ZELX_SAT_EPHEMERIS& rEphNew)
{
    if (const auto obTaken = ZelEphUpdate::Head(rEphCurrent, rEphNew, rEphCurrent.bValid, rEphNew.bValid))
    {
        return *obTaken;
    }
    const SMjdTime stToeCurrent = rEphCurrent.getToe();
    const SMjdTime stToeNew = rEphNew.getToe();
    // A set may step back, but not by more than 64 s before the hour of the held one.
    SMjdTime stEarliest = stToeCurrent;
    stEarliest.RoundTo(MJDSTEP_1H);
    stEarliest.SubMilliseconds(64000.0);
    if (const auto obTaken = ZelEphUpdate::TimeAndIssue(stToeCurrent, stToeNew, stEarliest,
                                                        rEphCurrent.unIodc != rEphNew.unIodc))
    {
        return *obTaken;
    }
    // An earlier set within the allowance is taken like a later one.
    if (stToeNew < stToeCurrent)
    {
        return true;
    }
    // Same time and issue: a change of content does not replace the held set.
    ZEL_ASSERT(rEphNew == rEphCurrent);
    return false;
}

} // namespace ZELN
