#include <ZelTypes/Ext/Gnss/ZelExtEphQzss.h>

#include "ZelExtEphIO.h"

namespace ZELN
{

ZELX_SAT_EPHEMERIS_QZSS::ZELX_SAT_EPHEMERIS_QZSS()
    : ucQzss1(0), ucQzss2(0), unQzss3(0), dQzss4(0.0), unQzss5(0), ulQzss6(0)
{
}

ZELX_SAT_EPHEMERIS_QZSS::~ZELX_SAT_EPHEMERIS_QZSS() = default;

void ZELX_SAT_EPHEMERIS_QZSS::clear()
{
    ZELX_SAT_EPHEMERIS::clear();
    ucQzss1 = 0;
    ucQzss2 = 0;
    unQzss3 = 0;
    dQzss4 = 0.0;
    unQzss5 = 0;
    ulQzss6 = 0;
}

uint8_t ZELX_SAT_EPHEMERIS_QZSS::getFitIntervalHours() const
{
    switch (ucFitIntervalFlag)
    {
    case 0:
        return 2;
    case 1:
        return 4;
    default:
        break;
    }
    return 0;
}

SZelSatID ZELX_SAT_EPHEMERIS_QZSS::getSatId() const
{
    const uint8_t uiPrn = uiSvId;
    ZEL_ASSERT(uiPrn >= POS_OFFSET_PRN_QZSS);
    return SZelSatID(ZELSATSYSTEM_QZSS, static_cast<uint8_t>(uiPrn - POS_OFFSET_PRN_QZSS));
}

bool ZELX_SAT_EPHEMERIS_QZSS::isHealthy() const
{
    return unHealth < 2;
}

uint8_t ZELX_SAT_EPHEMERIS_QZSS::getPrnOffset() const
{
    return POS_OFFSET_PRN_QZSS;
}

uint8_t ZELX_SAT_EPHEMERIS_QZSS::getFirstPrn() const
{
    return 193;
}

EZelEphValidity ZELX_SAT_EPHEMERIS_QZSS::checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                                       uint32_t ulMarginSeconds)
{
    return checkSpanMargin(stTime, stToe, 7200, 7200, ulMarginSeconds);
}

// Image: version at 0, own fields at 1 to 18, the GPS image at 19.
bool ZELX_SAT_EPHEMERIS_QZSS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, c_ulImageSize))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 0, c_ucImageVersion);
    ZelIo::PutAt(pBuffer, 1, ucQzss1);
    ZelIo::PutAt(pBuffer, 2, ucQzss2);
    ZelIo::PutAt(pBuffer, 3, unQzss3);
    ZelIo::PutAt(pBuffer, 5, dQzss4);
    ZelIo::PutAt(pBuffer, 13, unQzss5);
    ZelIo::PutAt(pBuffer, 15, ulQzss6);
    if (!ZELX_SAT_EPHEMERIS::saveData(pBuffer + 19, uiBufferLength - 19))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool ZELX_SAT_EPHEMERIS_QZSS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    if (!ZelIo::ExtVersionGate(pBuffer, uiBufferLength, c_ucImageVersion,
                               "loadData(ZELX_SAT_EPHEMERIS_QZSS) received old version.", c_ulImageSize))
    {
        return false;
    }
    ZelIo::GetAt(pBuffer, 1, ucQzss1);
    ZelIo::GetAt(pBuffer, 2, ucQzss2);
    ZelIo::GetAt(pBuffer, 3, unQzss3);
    ZelIo::GetAt(pBuffer, 5, dQzss4);
    ZelIo::GetAt(pBuffer, 13, unQzss5);
    ZelIo::GetAt(pBuffer, 15, ulQzss6);
    if (!ZELX_SAT_EPHEMERIS::loadData(pBuffer + 19, uiBufferLength - 19))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool operator==(const ZELX_SAT_EPHEMERIS_QZSS& a, const ZELX_SAT_EPHEMERIS_QZSS& b)
{
    return static_cast<const ZELX_SAT_EPHEMERIS&>(a) == static_cast<const ZELX_SAT_EPHEMERIS&>(b) &&
           a.ucQzss1 == b.ucQzss1 && a.ucQzss2 == b.ucQzss2 && a.unQzss3 == b.unQzss3 &&
           AreClose(a.dQzss4, b.dQzss4, 1e-14);
}

bool isNewEphemerisQzss(const ZELX_SAT_EPHEMERIS_QZSS& rEphCurrent, const ZELX_SAT_EPHEMERIS_QZSS& rEphNew)
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
    if (rEphCurrent.unIodc != rEphNew.unIodc)
    {
        return true;
    }
    if (stToeCurrent < stToeNew)
    {
        return true;
    }
    // Same time and issue: a change of content does not replace the held set.
    ZEL_ASSERT(rEphNew == rEphCurrent);
    return false;
}

} // namespace ZELN
