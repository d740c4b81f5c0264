#include <ZelTypes/Ext/Gnss/ZelExtEphNavic.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

#include "ZelExtEphIO.h"

namespace ZELN
{

ZELX_SAT_EPHEMERIS_NAVIC::~ZELX_SAT_EPHEMERIS_NAVIC() = default;

void ZELX_SAT_EPHEMERIS_NAVIC::clear()
{
    *this = ZELX_SAT_EPHEMERIS_NAVIC();
}

uint8_t ZELX_SAT_EPHEMERIS_NAVIC::getSvId() const
{
    return static_cast<uint8_t>(ulPrn & 0xFF);
}

SZelSatID ZELX_SAT_EPHEMERIS_NAVIC::getSatId() const
{
    ZEL_ASSERT(ulPrn >= POS_OFFSET_PRN_NAVIC);
    return SZelSatID(ZELSATSYSTEM_NAVIC, static_cast<uint8_t>(ulPrn - POS_OFFSET_PRN_NAVIC));
}

SMjdTime ZELX_SAT_EPHEMERIS_NAVIC::getToe() const
{
    return stToe;
}

uint32_t ZELX_SAT_EPHEMERIS_NAVIC::getIod() const
{
    return ucIodec;
}

bool ZELX_SAT_EPHEMERIS_NAVIC::isHealthy() const
{
    return ucHealthFlag1 == 0 && ucAlertFlag != 1;
}

uint8_t ZELX_SAT_EPHEMERIS_NAVIC::getPrnOffset() const
{
    return POS_OFFSET_PRN_NAVIC;
}

uint8_t ZELX_SAT_EPHEMERIS_NAVIC::getFirstPrn() const
{
    return 1;
}

EZelEphValidity ZELX_SAT_EPHEMERIS_NAVIC::checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                                        uint32_t ulMarginSeconds)
{
    return checkSpanMargin(stTime, stToe, 7200, 7200, ulMarginSeconds);
}

uint32_t ZELX_SAT_EPHEMERIS_NAVIC::getCurveFitSeconds() const
{
    if (ucIodec > 159)
    {
        return 1800;
    }
    if (ucIodec >= 76)
    {
        return 7200;
    }
    if (ucIodec >= 24)
    {
        return 14400;
    }
    return 7200;
}

SMjdTime ZELX_SAT_EPHEMERIS_NAVIC::getPT1Time() const
{
    if (ulPT1Tow == c_ulPT1_TOW_UNSET)
    {
        return SMjdTime();
    }
    const uint16_t unWeek = static_cast<uint16_t>(1024 + unPT1Week);
    SMjdTime stPT1Time;
    stPT1Time.SetGpsTime(unWeek, static_cast<double>(ulPT1Tow));
    return stPT1Time;
}

void ZELX_SAT_EPHEMERIS_NAVIC::setPT1Time(uint16_t unWeek, uint32_t ulTow)
{
    unPT1Week = unWeek;
    ulPT1Tow = ulTow;
}

uint8_t ZELX_SAT_EPHEMERIS_NAVIC::getUraIndex() const
{
    return ConvUraMetresToIndex(fUra);
}

void ZELX_SAT_EPHEMERIS_NAVIC::setUraIndex(uint8_t ucIndex)
{
    fUra = ConvUraIndexToMetres(ucIndex);
}

void ZELX_SAT_EPHEMERIS_NAVIC::setClock(size_t ulIndex, double dValue)
{
    ZelIo::SetElement(adClock, ulIndex, dValue);
}

bool ZELX_SAT_EPHEMERIS_NAVIC::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    return ZelIo::SaveExt(*this, pBuffer, uiBufferLength);
}

// The length is tested before the version, so that a short old image fails
// as short; the versioned gate then finds the length in order.
bool ZELX_SAT_EPHEMERIS_NAVIC::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    return ZelIo::ExtFits(pBuffer, uiBufferLength, getSize()) &&
           ZelIo::LoadExtVersioned(*this, pBuffer, uiBufferLength, c_ucImageVersion,
                                   "loadData(ZELX_SAT_EPHEMERIS_NAVIC) received old version.");
}

bool operator==(const ZELX_SAT_EPHEMERIS_NAVIC& a, const ZELX_SAT_EPHEMERIS_NAVIC& b)
{
    if (static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(a) != static_cast<const ZELX_SAT_EPHEMERIS_COMMON&>(b))
    {
        return false;
    }
    if (a.ulPrn != b.ulPrn || a.ulAux1 != b.ulAux1 || a.bValid != b.bValid)
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < 3; ++ulIdx)
    {
        if (!AreCloseRel(a.adClock[ulIdx], b.adClock[ulIdx]))
        {
            return false;
        }
    }
    if (!AreCloseRel(a.fUra, b.fUra) || a.stToc != b.stToc || !AreCloseRel(a.dAux2, b.dAux2))
    {
        return false;
    }
    if (a.ucIodec != b.ucIodec || a.ucHealthFlag1 != b.ucHealthFlag1 || a.ucHealthFlag2 != b.ucHealthFlag2 ||
        a.stToe != b.stToe)
    {
        return false;
    }
    return a.ucAlertFlag == b.ucAlertFlag && a.ucAux3 == b.ucAux3 && a.unPT1Week == b.unPT1Week &&
           a.ulPT1Tow == b.ulPT1Tow;
}

bool isNewEphemerisNavic(const ZELX_SAT_EPHEMERIS_NAVIC& rEphCurrent, const ZELX_SAT_EPHEMERIS_NAVIC& rEphNew)
{
    if (const auto obTaken = ZelEphUpdate::Head(rEphCurrent, rEphNew, rEphCurrent.bValid, rEphNew.bValid))
    {
        return *obTaken;
    }
    if (rEphCurrent.stToc < rEphNew.stToc)
    {
        return true;
    }
    return rEphCurrent.stToe < rEphNew.stToe;
}

} // namespace ZELN
