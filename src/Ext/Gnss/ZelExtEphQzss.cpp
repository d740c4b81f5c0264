#include <ZelTypes/Ext/Gnss/ZelExtEphQzss.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

#include "ZelExtEphIO.h"

namespace ZELN
{

ZELX_SAT_EPHEMERIS_QZSS::~ZELX_SAT_EPHEMERIS_QZSS() = default;

void ZELX_SAT_EPHEMERIS_QZSS::clear()
{
    *this = ZELX_SAT_EPHEMERIS_QZSS();
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
    ZEL_ASSERT_TEXT(uiSvId >= POS_OFFSET_PRN_QZSS, "uiPrn >= POS_OFFSET_PRN_QZSS");
    return SZelSatID(ZELSATSYSTEM_QZSS, static_cast<uint8_t>(uiSvId - POS_OFFSET_PRN_QZSS));
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

bool ZELX_SAT_EPHEMERIS_QZSS::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

bool ZELX_SAT_EPHEMERIS_QZSS::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::LoadExtVersioned(*this, pBuffer, uiBufferLength, c_ucImageVersion,
                                   "loadData(ZELX_SAT_EPHEMERIS_QZSS) received old version.");
}

bool operator==(const ZELX_SAT_EPHEMERIS_QZSS& a, const ZELX_SAT_EPHEMERIS_QZSS& b)
{
    return static_cast<const ZELX_SAT_EPHEMERIS&>(a) == static_cast<const ZELX_SAT_EPHEMERIS&>(b) &&
           a.ucQzss1 == b.ucQzss1 && a.ucQzss2 == b.ucQzss2 && a.unQzss3 == b.unQzss3 &&
           AreCloseRel(a.dQzss4, b.dQzss4);
}

bool isNewEphemerisQzss(const ZELX_SAT_EPHEMERIS_QZSS& rEphCurrent, const ZELX_SAT_EPHEMERIS_QZSS& rEphNew)
{
    if (const auto obTaken = ZelEphUpdate::Head(rEphCurrent, rEphNew, rEphCurrent.bValid, rEphNew.bValid))
    {
        return *obTaken;
    }
    // Unlike GPS, no earlier set is taken.
    const SMjdTime stToeCurrent = rEphCurrent.getToe();
    if (const auto obTaken = ZelEphUpdate::TimeAndIssue(stToeCurrent, rEphNew.getToe(), stToeCurrent,
                                                        rEphCurrent.unIodc != rEphNew.unIodc))
    {
        return *obTaken;
    }
    // Same time and issue: a change of content does not replace the held set.
    ZEL_ASSERT(rEphNew == rEphCurrent);
    return false;
}

} // namespace ZELN
