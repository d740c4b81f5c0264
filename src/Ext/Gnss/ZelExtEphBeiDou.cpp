#include <ZelTypes/Ext/Gnss/ZelExtEphBeiDou.h>

#include "ZelExtEphIO.h"

#include <cmath>

namespace ZELN
{

namespace
{

// Two reference times are the same within a nanosecond, whatever their
// accuracy fields say.
bool SameTimeNs(const SMjdTime& a, const SMjdTime& b)
{
    return std::fabs(SMjdTime::DiffAsMilliseconds(a, b) / 1000.0) <= 1e-9;
}

} // namespace

ZELX_SAT_EPHEMERIS_BEIDOU::ZELX_SAT_EPHEMERIS_BEIDOU()
    : uiSvId(0), bValid(false), ulAux1(0), unGPSWeek(0), ulTowMs(0), fUra(0.0f), ucAux2(0), adClock(),
      stToc(), afAux3(), ucAux4(0), stToe(), ucHealth(1)
{
}

ZELX_SAT_EPHEMERIS_BEIDOU::~ZELX_SAT_EPHEMERIS_BEIDOU() = default;

void ZELX_SAT_EPHEMERIS_BEIDOU::clear()
{
    ZELX_SAT_EPHEMERIS_COMMON::clear();
    uiSvId = 0;
    bValid = false;
    ulAux1 = 0;
    unGPSWeek = 0;
    ulTowMs = 0;
    fUra = 0.0f;
    ucAux2 = 0;
    adClock[0] = 0.0;
    adClock[1] = 0.0;
    stToc = SMjdTime();
    afAux3[0] = 0.0f;
    afAux3[1] = 0.0f;
    afAux3[2] = 0.0f;
    ucAux4 = 0;
    stToe = SMjdTime();
    ucHealth = 1;
}

uint8_t ZELX_SAT_EPHEMERIS_BEIDOU::getSvId() const
{
    return uiSvId;
}

SZelSatID ZELX_SAT_EPHEMERIS_BEIDOU::getSatId() const
{
    ZEL_ASSERT(uiSvId >= POS_OFFSET_PRN_BDS);
    return SZelSatID(ZELSATSYSTEM_BEIDOU, static_cast<uint8_t>(uiSvId - POS_OFFSET_PRN_BDS));
}

SMjdTime ZELX_SAT_EPHEMERIS_BEIDOU::getToe() const
{
    return stToe;
}

uint32_t ZELX_SAT_EPHEMERIS_BEIDOU::getIod() const
{
    // No broadcast issue number fits: count 12-minute steps of the time of
    // clock through a 48-hour cycle.
    unsigned int uiBdsWeek = 0;
    unsigned int uiBdsMs = 0;
    stToc.GetBdsTimeMs(uiBdsWeek, uiBdsMs);
    return (uiBdsMs / 720000u) % 240u;
}

bool ZELX_SAT_EPHEMERIS_BEIDOU::isHealthy() const
{
    return ucHealth == 0;
}

uint8_t ZELX_SAT_EPHEMERIS_BEIDOU::getPrnOffset() const
{
    return POS_OFFSET_PRN_BDS;
}

uint8_t ZELX_SAT_EPHEMERIS_BEIDOU::getFirstPrn() const
{
    return 1;
}

EZelEphValidity ZELX_SAT_EPHEMERIS_BEIDOU::checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                                         uint32_t ulMarginSeconds)
{
    return checkSpanMargin(stTime, stToe, 7200, 7200, ulMarginSeconds);
}

uint16_t ZELX_SAT_EPHEMERIS_BEIDOU::getBdsWeek() const
{
    ZEL_ASSERT(unGPSWeek >= c_ulGPS_WEEKS_AT_BDS_REFTIME);
    return static_cast<uint16_t>(unGPSWeek - c_ulGPS_WEEKS_AT_BDS_REFTIME);
}

uint8_t ZELX_SAT_EPHEMERIS_BEIDOU::getUraIndex() const
{
    return ConvUraMetresToIndex(fUra);
}

void ZELX_SAT_EPHEMERIS_BEIDOU::setUraIndex(uint8_t ucIndex)
{
    fUra = ConvUraIndexToMetres(ucIndex);
}

void ZELX_SAT_EPHEMERIS_BEIDOU::setClock(size_t ulIndex, double dValue)
{
    ZelIo::SetElement(adClock, ulIndex, dValue);
}

void ZELX_SAT_EPHEMERIS_BEIDOU::setAux3(size_t ulIndex, float fValue)
{
    ZelIo::SetElement(afAux3, ulIndex, fValue);
}

// Image: version at 0, own fields at 1 to 79, the Keplerian block at 80.
bool ZELX_SAT_EPHEMERIS_BEIDOU::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, c_ulImageSize))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 0, c_ucImageVersion);
    ZelIo::PutAt(pBuffer, 1, uiSvId);
    ZelIo::PutAt(pBuffer, 2, bValid);
    ZelIo::PutAt(pBuffer, 3, ulAux1);
    ZelIo::PutAt(pBuffer, 7, unGPSWeek);
    ZelIo::PutAt(pBuffer, 9, ulTowMs);
    ZelIo::PutAt(pBuffer, 13, fUra);
    ZelIo::PutAt(pBuffer, 17, ucAux2);
    ZelIo::PutArrayAt(pBuffer, 18, adClock);
    if (!ZelIo::PutTimeAt(pBuffer, uiBufferLength, 34, stToc))
    {
        return false;
    }
    ZelIo::PutArrayAt(pBuffer, 50, afAux3);
    ZelIo::PutAt(pBuffer, 62, ucAux4);
    if (!ZelIo::PutTimeAt(pBuffer, uiBufferLength, 63, stToe))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 79, ucHealth);
    if (!ZELX_SAT_EPHEMERIS_COMMON::saveData(pBuffer + 80, uiBufferLength - 80))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool ZELX_SAT_EPHEMERIS_BEIDOU::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    if (!ZelIo::ExtVersionGate(pBuffer, uiBufferLength, c_ucImageVersion,
                               "loadData(ZELX_SAT_EPHEMERIS_BEIDOU) received old version.", c_ulImageSize))
    {
        return false;
    }
    ZelIo::GetAt(pBuffer, 1, uiSvId);
    ZelIo::GetAt(pBuffer, 2, bValid);
    ZelIo::GetAt(pBuffer, 3, ulAux1);
    ZelIo::GetAt(pBuffer, 7, unGPSWeek);
    ZelIo::GetAt(pBuffer, 9, ulTowMs);
    ZelIo::GetAt(pBuffer, 13, fUra);
    ZelIo::GetAt(pBuffer, 17, ucAux2);
    ZelIo::GetArrayAt(pBuffer, 18, adClock);
    if (!ZelIo::GetTimeAt(pBuffer, uiBufferLength, 34, stToc))
    {
        return false;
    }
    ZelIo::GetArrayAt(pBuffer, 50, afAux3);
    ZelIo::GetAt(pBuffer, 62, ucAux4);
    if (!ZelIo::GetTimeAt(pBuffer, uiBufferLength, 63, stToe))
    {
        return false;
    }
    ZelIo::GetAt(pBuffer, 79, ucHealth);
    if (!ZELX_SAT_EPHEMERIS_COMMON::loadData(pBuffer + 80, uiBufferLength - 80))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool operator==(const ZELX_SAT_EPHEMERIS_BEIDOU& a, const ZELX_SAT_EPHEMERIS_BEIDOU& b)
{
    if (static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(a) != static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(b))
    {
        return false;
    }
    if (a.uiSvId != b.uiSvId || a.ucHealth != b.ucHealth || !AreCloseF(a.fUra, b.fUra, 1e-6f))
    {
        return false;
    }
    if (!AreClose(a.adClock[0], b.adClock[0], 1e-6) || !AreClose(a.adClock[1], b.adClock[1], 1e-6))
    {
        return false;
    }
    if (!SameTimeNs(a.stToc, b.stToc))
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 3; ++ulIdx)
    {
        if (!AreCloseF(a.afAux3[ulIdx], b.afAux3[ulIdx], 1e-6f))
        {
            return false;
        }
    }
    return SameTimeNs(a.stToe, b.stToe);
}

bool isNewEphemerisBeiDou(const ZELX_SAT_EPHEMERIS_BEIDOU& rEphCurrent,
                          const ZELX_SAT_EPHEMERIS_BEIDOU& rEphNew)
{
    if (!rEphNew.bValid)
    {
        return false;
    }
    if (!rEphCurrent.bValid)
    {
        return true;
    }
    if (rEphCurrent.isHealthy() != rEphNew.isHealthy())
    {
        return true;
    }
    if (rEphCurrent.stToc < rEphNew.stToc)
    {
        return true;
    }
    if (!(rEphCurrent.stToe < rEphNew.stToe))
    {
        return false;
    }
    // A later time of ephemeris under an unchanged time of clock is not taken.
    ZEL_ASSERT(rEphNew.stToe <= rEphCurrent.stToe);
    return false;
}

} // namespace ZELN
