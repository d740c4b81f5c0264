#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHSBAS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHSBAS_H

// The SBAS ephemeris: a state vector at a reference time. No binary form and
// no update decision.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

// Where a decoder puts an SBAS set:
// - the satellite into uiSvId: POS_OFFSET_PRN_SBAS + 1 for PRN 120, and on;
// - the reference time as a GPS week and a second of that week into
//   unGPSWeek and ulToe;
// - position, velocity and acceleration, each x, y, z in the producer's
//   frame, into the nine state values in metres, metres per second and
//   metres per second squared (the Km getters divide by 1000);
// - the clock term, the accuracy and further broadcast values in the
//   producer's units, which the library never scales; health 0 for a
//   usable set.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_SBAS : public ZELX_SAT_EPHEMERIS_BASE
{
public:
    uint8_t uiSvId = 0;                           // running number
    uint16_t unGPSWeek = 0;                       // GPS week of the reference time
    uint8_t ucAux1 = 0;                           // compared
    uint32_t ulToe = 0;                           // reference time, second of the GPS week
    double dClock = 0.0;                          // clock term, producer's unit
    float fUra = 0.0f;                            // accuracy, producer's unit
    uint32_t ulAux2 = 0;                          // compared
    double dPosX = 0.0, dPosY = 0.0, dPosZ = 0.0; // position, metres
    double dVelX = 0.0, dVelY = 0.0, dVelZ = 0.0; // velocity, metres per second
    double dAccX = 0.0, dAccY = 0.0, dAccZ = 0.0; // acceleration, metres per second squared
    uint8_t ucHealth = 1;                         // 0 healthy
    uint8_t ucAux3 = 0;                           // compared
    uint8_t ucIod = 0;                            // issue of data

    ~ZELX_SAT_EPHEMERIS_SBAS() override;

    void clear();

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    uint16_t getGPSWeek() const { return unGPSWeek; }
    uint8_t getAux1() const { return ucAux1; }
    uint32_t getToeSeconds() const { return ulToe; }
    double getClock() const { return dClock; }
    float getUra() const { return fUra; }
    uint32_t getAux2() const { return ulAux2; }
    uint8_t getHealth() const { return ucHealth; }
    uint8_t getAux3() const { return ucAux3; }

    // State as stored (metres) and in kilometres.
    double getPosX() const { return dPosX; }
    double getPosY() const { return dPosY; }
    double getPosZ() const { return dPosZ; }
    double getVelX() const { return dVelX; }
    double getVelY() const { return dVelY; }
    double getVelZ() const { return dVelZ; }
    double getAccX() const { return dAccX; }
    double getAccY() const { return dAccY; }
    double getAccZ() const { return dAccZ; }
    double getPosXKm() const { return dPosX / 1000.0; }
    double getPosYKm() const { return dPosY / 1000.0; }
    double getPosZKm() const { return dPosZ / 1000.0; }
    double getVelXKm() const { return dVelX / 1000.0; }
    double getVelYKm() const { return dVelY / 1000.0; }
    double getVelZKm() const { return dVelZ / 1000.0; }
    double getAccXKm() const { return dAccX / 1000.0; }
    double getAccYKm() const { return dAccY / 1000.0; }
    double getAccZKm() const { return dAccZ / 1000.0; }

    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    void setToe(uint32_t ulValue) { ulToe = ulValue; }
    void setClock(double dValue) { dClock = dValue; }
    void setUra(float fValue) { fUra = fValue; }
    void setAux2(uint32_t ulValue) { ulAux2 = ulValue; }
    void setPosX(double dValue) { dPosX = dValue; }
    void setPosY(double dValue) { dPosY = dValue; }
    void setPosZ(double dValue) { dPosZ = dValue; }
    void setVelX(double dValue) { dVelX = dValue; }
    void setVelY(double dValue) { dVelY = dValue; }
    void setVelZ(double dValue) { dVelZ = dValue; }
    void setAccX(double dValue) { dAccX = dValue; }
    void setAccY(double dValue) { dAccY = dValue; }
    void setAccZ(double dValue) { dAccZ = dValue; }
    void setHealth(uint8_t ucValue) { ucHealth = ucValue; }
    void setAux3(uint8_t ucValue) { ucAux3 = ucValue; }
    void setIod(uint8_t ucValue) { ucIod = ucValue; }
};

ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_SBAS& a, const ZELX_SAT_EPHEMERIS_SBAS& b);

} // namespace ZELN

#endif
