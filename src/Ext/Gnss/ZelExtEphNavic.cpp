#include <ZelTypes/Ext/Gnss/ZelExtEphNavic.h>

#include "ZelExtEphIO.h"

namespace ZELN
{

ZELX_SAT_EPHEMERIS_NAVIC::ZELX_SAT_EPHEMERIS_NAVIC()
    : ulPrn(0), ulAux1(0), bValid(false), adClock(), fUra(0.0f), stToc(), dAux2(0.0), ucIodec(0),
      ucHealthFlag1(0), ucHealthFlag2(0), stToe(), ucAlertFlag(1), ucAux3(0), unPT1Week(0), ulPT1Tow(0)
{
}

ZELX_SAT_EPHEMERIS_NAVIC::~ZELX_SAT_EPHEMERIS_NAVIC() = default;

void ZELX_SAT_EPHEMERIS_NAVIC::clear()
{
    ZELX_SAT_EPHEMERIS_COMMON::clear();
    ulPrn = 0;
    ulAux1 = 0;
    bValid = false;
    adClock[0] = 0.0;
    adClock[1] = 0.0;
    adClock[2] = 0.0;
    fUra = 0.0f;
    stToc = SMjdTime();
    dAux2 = 0.0;
    ucIodec = 0;
    ucHealthFlag1 = 0;
    ucHealthFlag2 = 0;
    stToe = SMjdTime();
    ucAlertFlag = 1;
    ucAux3 = 0;
    unPT1Week = 0;
    ulPT1Tow = 0;
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

// Image: version at 0, own fields at 1 to 88, the Keplerian block at 89.
bool ZELX_SAT_EPHEMERIS_NAVIC::saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const
{
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, c_ulImageSize))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 0, c_ucImageVersion);
    ZelIo::PutAt(pBuffer, 1, ulPrn);
    ZelIo::PutAt(pBuffer, 5, ulAux1);
    ZelIo::PutAt(pBuffer, 9, bValid);
    ZelIo::PutArrayAt(pBuffer, 10, adClock);
    ZelIo::PutAt(pBuffer, 34, fUra);
    if (!ZelIo::PutTimeAt(pBuffer, uiBufferLength, 38, stToc))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 54, dAux2);
    ZelIo::PutAt(pBuffer, 62, ucIodec);
    ZelIo::PutAt(pBuffer, 63, ucHealthFlag1);
    ZelIo::PutAt(pBuffer, 64, ucHealthFlag2);
    if (!ZelIo::PutTimeAt(pBuffer, uiBufferLength, 65, stToe))
    {
        return false;
    }
    ZelIo::PutAt(pBuffer, 81, ucAlertFlag);
    ZelIo::PutAt(pBuffer, 82, ucAux3);
    ZelIo::PutAt(pBuffer, 83, unPT1Week);
    ZelIo::PutAt(pBuffer, 85, ulPT1Tow);
    if (!ZELX_SAT_EPHEMERIS_COMMON::saveData(pBuffer + 89, uiBufferLength - 89))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
}

bool ZELX_SAT_EPHEMERIS_NAVIC::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    // Buffer and length first, then the version: a short old image fails as short.
    if (!ZelIo::ExtFits(pBuffer, uiBufferLength, c_ulImageSize))
    {
        return false;
    }
    if (pBuffer[0] != c_ucImageVersion)
    {
        ZEL_REPORT("loadData(ZELX_SAT_EPHEMERIS_NAVIC) received old version.");
        return false;
    }
    ZelIo::GetAt(pBuffer, 1, ulPrn);
    ZelIo::GetAt(pBuffer, 5, ulAux1);
    ZelIo::GetAt(pBuffer, 9, bValid);
    ZelIo::GetArrayAt(pBuffer, 10, adClock);
    ZelIo::GetAt(pBuffer, 34, fUra);
    if (!ZelIo::GetTimeAt(pBuffer, uiBufferLength, 38, stToc))
    {
        return false;
    }
    ZelIo::GetAt(pBuffer, 54, dAux2);
    ZelIo::GetAt(pBuffer, 62, ucIodec);
    ZelIo::GetAt(pBuffer, 63, ucHealthFlag1);
    ZelIo::GetAt(pBuffer, 64, ucHealthFlag2);
    if (!ZelIo::GetTimeAt(pBuffer, uiBufferLength, 65, stToe))
    {
        return false;
    }
    ZelIo::GetAt(pBuffer, 81, ucAlertFlag);
    ZelIo::GetAt(pBuffer, 82, ucAux3);
    ZelIo::GetAt(pBuffer, 83, unPT1Week);
    ZelIo::GetAt(pBuffer, 85, ulPT1Tow);
    if (!ZELX_SAT_EPHEMERIS_COMMON::loadData(pBuffer + 89, uiBufferLength - 89))
    {
        ZEL_ASSERT(false);
        return false;
    }
    return true;
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
        if (!AreClose(a.adClock[ulIdx], b.adClock[ulIdx], 1e-14))
        {
            return false;
        }
    }
    if (!AreCloseF(a.fUra, b.fUra, 1e-6f) || a.stToc != b.stToc || !AreClose(a.dAux2, b.dAux2, 1e-14))
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
    return rEphCurrent.stToe < rEphNew.stToe;
}

} // namespace ZELN
