#include <ZelTypes/Ext/Gnss/ZelExtEphBeiDou.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

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

ZELX_SAT_EPHEMERIS_BEIDOU::~ZELX_SAT_EPHEMERIS_BEIDOU() = default;

void ZELX_SAT_EPHEMERIS_BEIDOU::clear()
{
    *this = ZELX_SAT_EPHEMERIS_BEIDOU();
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

bool ZELX_SAT_EPHEMERIS_BEIDOU::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_EPHEMERIS_BEIDOU::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExtVersioned(*this, pBuffer, uiBufferLength, c_ucImageVersion,
                                   "loadData(ZELX_SAT_EPHEMERIS_BEIDOU) received old version.");
}

bool operator==(const ZELX_SAT_EPHEMERIS_BEIDOU& a, const ZELX_SAT_EPHEMERIS_BEIDOU& b)
{
    if (static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(a) != static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(b))
    {
        return false;
    }
    if (a.uiSvId != b.uiSvId || a.ucHealth != b.ucHealth || !AreCloseRel(a.fUra, b.fUra))
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
        if (!AreCloseRel(a.afAux3[ulIdx], b.afAux3[ulIdx]))
        {
            return false;
        }
    }
    return SameTimeNs(a.stToe, b.stToe);
}

bool isNewEphemerisBeiDou(const ZELX_SAT_EPHEMERIS_BEIDOU& rEphCurrent,
                          const ZELX_SAT_EPHEMERIS_BEIDOU& rEphNew)
{
    if (const auto obTaken = ZelEphUpdate::Head(rEphCurrent, rEphNew, rEphCurrent.bValid, rEphNew.bValid))
    {
        return *obTaken;
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
