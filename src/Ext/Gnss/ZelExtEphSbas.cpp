#include <ZelTypes/Ext/Gnss/ZelExtEphSbas.h>

namespace ZELN
{

ZELX_SAT_EPHEMERIS_SBAS::ZELX_SAT_EPHEMERIS_SBAS()
    : uiSvId(0), unGPSWeek(0), ucAux1(0), ulToe(0), dClock(0.0), fUra(0.0f), ulAux2(0), dPosX(0.0),
      dPosY(0.0), dPosZ(0.0), dVelX(0.0), dVelY(0.0), dVelZ(0.0), dAccX(0.0), dAccY(0.0), dAccZ(0.0),
      ucHealth(1), ucAux3(0), ucIod(0)
{
}

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
           AreClose(a.dClock, b.dClock, 1e-14) && AreCloseF(a.fUra, b.fUra, 1e-6f) && a.ulAux2 == b.ulAux2 &&
           AreClose(a.dPosX, b.dPosX, 1e-14) && AreClose(a.dPosY, b.dPosY, 1e-14) &&
           AreClose(a.dPosZ, b.dPosZ, 1e-14) && AreClose(a.dVelX, b.dVelX, 1e-14) &&
           AreClose(a.dVelY, b.dVelY, 1e-14) && AreClose(a.dVelZ, b.dVelZ, 1e-14) &&
           AreClose(a.dAccX, b.dAccX, 1e-14) && AreClose(a.dAccY, b.dAccY, 1e-14) &&
           AreClose(a.dAccZ, b.dAccZ, 1e-14) && a.ucHealth == b.ucHealth && a.ucAux3 == b.ucAux3 &&
           a.ucIod == b.ucIod;
}

} // namespace ZELN
