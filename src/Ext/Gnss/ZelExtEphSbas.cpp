#include <ZelTypes/Ext/Gnss/ZelExtEphSbas.h>

#include <ZelTypes/Core/Common/ZelCompare.h>

namespace ZELN
{

ZELX_SAT_EPHEMERIS_SBAS::~ZELX_SAT_EPHEMERIS_SBAS() = default;

void ZELX_SAT_EPHEMERIS_SBAS::clear()
{
    *this = ZELX_SAT_EPHEMERIS_SBAS();
}

uint8_t ZELX_SAT_EPHEMERIS_SBAS::getSvId() const
{
    return uiSvId;
}

SZelSatID ZELX_SAT_EPHEMERIS_SBAS::getSatId() const
{
    ZEL_ASSERT(uiSvId >= POS_OFFSET_PRN_SBAS);
    return SZelSatID(ZELSATSYSTEM_SBAS, static_cast<uint8_t>(uiSvId - POS_OFFSET_PRN_SBAS));
}

SMjdTime ZELX_SAT_EPHEMERIS_SBAS::getToe() const
{
    return SMjdTime(static_cast<unsigned int>(unGPSWeek), static_cast<double>(ulToe), MJDACC_NANOSECOND);
}

uint32_t ZELX_SAT_EPHEMERIS_SBAS::getIod() const
{
    return ucIod;
}

bool ZELX_SAT_EPHEMERIS_SBAS::isHealthy() const
{
    return ucHealth == 0;
}

uint8_t ZELX_SAT_EPHEMERIS_SBAS::getPrnOffset() const
{
    return POS_OFFSET_PRN_SBAS;
}

uint8_t ZELX_SAT_EPHEMERIS_SBAS::getFirstPrn() const
{
    return 120;
}

bool operator==(const ZELX_SAT_EPHEMERIS_SBAS& a, const ZELX_SAT_EPHEMERIS_SBAS& b)
{
    return a.uiSvId == b.uiSvId && a.unGPSWeek == b.unGPSWeek && a.ucAux1 == b.ucAux1 && a.ulToe == b.ulToe &&
           AreCloseRel(a.dClock, b.dClock) && AreCloseRel(a.fUra, b.fUra) && a.ulAux2 == b.ulAux2 &&
           AreCloseRel(a.dPosX, b.dPosX) && AreCloseRel(a.dPosY, b.dPosY) && AreCloseRel(a.dPosZ, b.dPosZ) &&
           AreCloseRel(a.dVelX, b.dVelX) && AreCloseRel(a.dVelY, b.dVelY) && AreCloseRel(a.dVelZ, b.dVelZ) &&
           AreCloseRel(a.dAccX, b.dAccX) && AreCloseRel(a.dAccY, b.dAccY) && AreCloseRel(a.dAccZ, b.dAccZ) &&
           a.ucHealth == b.ucHealth && a.ucAux3 == b.ucAux3 && a.ucIod == b.ucIod;
}

} // namespace ZELN
