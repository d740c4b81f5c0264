#include <ZelTypes/Ext/Gnss/ZelExtEphGlonass.h>

#include "ZelExtEphIO.h"

#include <atomic>

namespace ZELN
{

namespace
{

// Once-only report of a content change under an unchanged issue of data of
// an M-type satellite; atomic so that a race is defined.
std::atomic<bool> s_bMTypeChangeReported(false);

} // namespace

ZELX_SAT_EPHEMERIS_GLONASS::ZELX_SAT_EPHEMERIS_GLONASS()
    : uiSvId(0), ucAux1(0), unAux2(0), ulAux3(0), bValid(false), bMType(false), unAux4(0), unGPSWeek(0),
      ulToeMs(0), ulAux5(0), ulIod(0), adState(), aulAux6(), ucHealth(1)
{
}

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

// Image without version and without health: a loaded record keeps its own
// health, so a reader that wants it sets it after loading.
bool ZELX_SAT_EPHEMERIS_GLONASS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, c_ulImageSize))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 0, uiSvId);
    ZelIo::PutAt(pBuffer, 1, ucAux1);
    ZelIo::PutAt(pBuffer, 2, unAux2);
    ZelIo::PutAt(pBuffer, 4, ulAux3);
    ZelIo::PutAt(pBuffer, 8, bValid);
    ZelIo::PutAt(pBuffer, 9, bMType);
    ZelIo::PutAt(pBuffer, 10, unAux4);
    ZelIo::PutAt(pBuffer, 12, unGPSWeek);
    ZelIo::PutAt(pBuffer, 14, ulToeMs);
    ZelIo::PutAt(pBuffer, 18, ulAux5);
    ZelIo::PutAt(pBuffer, 22, ulIod);
    ZelIo::PutArrayAt(pBuffer, 26, adState);
    ZelIo::PutArrayAt(pBuffer, 122, aulAux6);
    return true;
}

bool ZELX_SAT_EPHEMERIS_GLONASS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, c_ulImageSize))
    {
        return false;
    }
    ZelIo::GetAt(pBuffer, 0, uiSvId);
    ZelIo::GetAt(pBuffer, 1, ucAux1);
    ZelIo::GetAt(pBuffer, 2, unAux2);
    ZelIo::GetAt(pBuffer, 4, ulAux3);
    ZelIo::GetAt(pBuffer, 8, bValid);
    ZelIo::GetAt(pBuffer, 9, bMType);
    ZelIo::GetAt(pBuffer, 10, unAux4);
    ZelIo::GetAt(pBuffer, 12, unGPSWeek);
    ZelIo::GetAt(pBuffer, 14, ulToeMs);
    ZelIo::GetAt(pBuffer, 18, ulAux5);
    ZelIo::GetAt(pBuffer, 22, ulIod);
    ZelIo::GetArrayAt(pBuffer, 26, adState);
    ZelIo::GetArrayAt(pBuffer, 122, aulAux6);
    return true;
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
        if (!AreClose(a.adState[ulIdx], b.adState[ulIdx], 1e-14))
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
    const SMjdTime stToeCurrent = rEphCurrent.getToe();
    const SMjdTime stToeNew = rEphNew.getToe();
    if (stToeNew < stToeCurrent)
    {
        return false;
    }
    if (rEphCurrent.ulIod != rEphNew.ulIod)
    {
        return true;
    }
    if (stToeCurrent < stToeNew)
    {
        return true;
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
    if (!s_bMTypeChangeReported.load(std::memory_order_relaxed))
    {
        s_bMTypeChangeReported.store(true, std::memory_order_relaxed);
        ZEL_ASSERT((!"Ephemeris parameter change detected for GLO M-Type satellite"));
    }
    return true;
}

} // namespace ZELN
