#include <ZelTypes/Ext/Gnss/ZelExtEphGlonass.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

#include "ZelExtEphIO.h"

namespace ZELN
{

ZELX_SAT_EPHEMERIS_GLONASS::~ZELX_SAT_EPHEMERIS_GLONASS() = default;

void ZELX_SAT_EPHEMERIS_GLONASS::clear()
{
    *this = ZELX_SAT_EPHEMERIS_GLONASS();
}

uint8_t ZELX_SAT_EPHEMERIS_GLONASS::getSvId() const
{
    return uiSvId;
}

SZelSatID ZELX_SAT_EPHEMERIS_GLONASS::getSatId() const
{
    ZEL_ASSERT(uiSvId >= POS_MAX_PRN_GPS);
    return SZelSatID(ZELSATSYSTEM_GLONASS, static_cast<uint8_t>(uiSvId - POS_MAX_PRN_GPS));
}

SMjdTime ZELX_SAT_EPHEMERIS_GLONASS::getToe() const
{
    return SMjdTime(static_cast<unsigned int>(unGPSWeek), ulToeMs / 1000.0, MJDACC_NANOSECOND);
}

uint32_t ZELX_SAT_EPHEMERIS_GLONASS::getIod() const
{
    return ulIod;
}

bool ZELX_SAT_EPHEMERIS_GLONASS::isHealthy() const
{
    return ucHealth < 4;
}

uint8_t ZELX_SAT_EPHEMERIS_GLONASS::getPrnOffset() const
{
    return POS_MAX_PRN_GPS;
}

uint8_t ZELX_SAT_EPHEMERIS_GLONASS::getFirstPrn() const
{
    return 1;
}

EZelEphValidity ZELX_SAT_EPHEMERIS_GLONASS::checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                                          uint32_t ulMarginSeconds)
{
    return checkSpanMargin(stTime, stToe, 900, 2700, ulMarginSeconds);
}

void ZELX_SAT_EPHEMERIS_GLONASS::setBnLn(unsigned int uiBn, unsigned int uiLn)
{
    ZEL_ASSERT(0 == (uiBn & ~0x7));
    ZEL_ASSERT(0 == (uiLn & ~0x1));
    ucHealth = static_cast<uint8_t>((uiBn & 0x7) | ((uiLn & 0x1) != 0 ? 0x8 : 0x0));
}

void ZELX_SAT_EPHEMERIS_GLONASS::setHealthFlags(uint8_t ucFlags)
{
    setBnLn((ucFlags & 1u) * 4u, (ucFlags >> 1) & 1u);
}

void ZELX_SAT_EPHEMERIS_GLONASS::setHealthBool(bool bUnhealthy)
{
    setBnLn(bUnhealthy ? 4u : 0u, bUnhealthy ? 1u : 0u);
}

void ZELX_SAT_EPHEMERIS_GLONASS::setState(size_t ulIndex, double dValue)
{
    ZelIo::SetElement(adState, ulIndex, dValue);
}

void ZELX_SAT_EPHEMERIS_GLONASS::setAux6(size_t ulIndex, uint32_t ulValue)
{
    ZelIo::SetElement(aulAux6, ulIndex, ulValue);
}

bool ZELX_SAT_EPHEMERIS_GLONASS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_EPHEMERIS_GLONASS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExt(*this, pBuffer, uiBufferLength);
}

bool operator==(const ZELX_SAT_EPHEMERIS_GLONASS& a, const ZELX_SAT_EPHEMERIS_GLONASS& b)
{
    if (a.uiSvId != b.uiSvId || a.ucAux1 != b.ucAux1 || a.bMType != b.bMType || a.unAux4 != b.unAux4 ||
        a.unGPSWeek != b.unGPSWeek || a.ulToeMs != b.ulToeMs || a.ulAux5 != b.ulAux5 || a.ulIod != b.ulIod)
    {
        return false;
    }
    if (a.isHealthy() != b.isHealthy())
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 12; ++ulIdx)
    {
        if (!AreCloseRel(a.adState[ulIdx], b.adState[ulIdx]))
        {
            return false;
        }
    }
    for (size_t ulIdx = 1; ulIdx <= 3; ++ulIdx)
    {
        if (a.aulAux6[ulIdx] != b.aulAux6[ulIdx])
        {
            return false;
        }
    }
    return true;
}

bool isNewEphemerisGlonass(const ZELX_SAT_EPHEMERIS_GLONASS& rEphCurrent,
                           const ZELX_SAT_EPHEMERIS_GLONASS& rEphNew)
{
    if (const auto obTaken = ZelEphUpdate::Head(rEphCurrent, rEphNew, rEphCurrent.bValid, rEphNew.bValid))
    {
        return *obTaken;
    }
    const SMjdTime stToeCurrent = rEphCurrent.getToe();
    if (const auto obTaken = ZelEphUpdate::TimeAndIssue(stToeCurrent, rEphNew.getToe(), stToeCurrent,
                                                        rEphCurrent.ulIod != rEphNew.ulIod))
    {
        return *obTaken;
    }
    if (rEphNew == rEphCurrent)
    {
        return false;
    }
    if (!rEphNew.bMType)
    {
        return true;
    }
    // An M-type satellite is not expected to change content under an
    // unchanged issue of data; the new set is taken all the same.
    ZEL_ASSERT_ONCE((!"Ephemeris parameter change detected for GLO M-Type satellite"));
    return true;
}

} // namespace ZELN
