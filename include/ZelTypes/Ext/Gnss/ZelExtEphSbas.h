#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHSBAS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHSBAS_H

/// \file
/// The SBAS ephemeris: a state vector at a reference time. No binary form and
/// no update decision.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

/// Where a decoder puts an SBAS set:
/// - the satellite into uiSvId: POS_OFFSET_PRN_SBAS + 1 for PRN 120, and on;
/// - the reference time as a GPS week and a second of that week into
///   unGPSWeek and ulToe;
/// - position, velocity and acceleration, each x, y, z in the producer's
///   frame, into the nine state values in metres, metres per second and
///   metres per second squared (the Km getters divide by 1000);
/// - the clock term, the accuracy and further broadcast values in the
///   producer's units, which the library never scales; health 0 for a
///   usable set.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_SBAS : public ZELX_SAT_EPHEMERIS_BASE
{
public:
    uint8_t uiSvId = 0;     ///< running number
    uint16_t unGPSWeek = 0; ///< GPS week of the reference time
    uint8_t ucAux1 = 0;     ///< compared
    uint32_t ulToe = 0;     ///< reference time, second of the GPS week
    double dClock = 0.0;    ///< clock term, producer's unit
    float fUra = 0.0f;      ///< accuracy, producer's unit
    uint32_t ulAux2 = 0;    ///< compared
    ///@{
    /// Position x, y, z, metres.
    double dPosX = 0.0, dPosY = 0.0, dPosZ = 0.0;
    ///@}
    ///@{
    /// Velocity x, y, z, metres per second.
    double dVelX = 0.0, dVelY = 0.0, dVelZ = 0.0;
    ///@}
    ///@{
    /// Acceleration x, y, z, metres per second squared.
    double dAccX = 0.0, dAccY = 0.0, dAccZ = 0.0;
    ///@}
    uint8_t ucHealth = 1; ///< 0 healthy
    uint8_t ucAux3 = 0;   ///< compared
    uint8_t ucIod = 0;    ///< issue of data

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_SBAS() override;

    /// Resets the record to its default state.
    void clear();

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Returns unGPSWeek.
    uint16_t getGPSWeek() const { return unGPSWeek; }
    /// Returns ucAux1.
    uint8_t getAux1() const { return ucAux1; }
    /// Returns ulToe.
    uint32_t getToeSeconds() const { return ulToe; }
    /// Returns dClock.
    double getClock() const { return dClock; }
    /// Returns fUra.
    float getUra() const { return fUra; }
    /// Returns ulAux2.
    uint32_t getAux2() const { return ulAux2; }
    /// Returns ucHealth.
    uint8_t getHealth() const { return ucHealth; }
    /// Returns ucAux3.
    uint8_t getAux3() const { return ucAux3; }

    /// State as stored (metres) and in kilometres.
    double getPosX() const { return dPosX; }
    /// Returns dPosY.
    double getPosY() const { return dPosY; }
    /// Returns dPosZ.
    double getPosZ() const { return dPosZ; }
    /// Returns dVelX.
    double getVelX() const { return dVelX; }
    /// Returns dVelY.
    double getVelY() const { return dVelY; }
    /// Returns dVelZ.
    double getVelZ() const { return dVelZ; }
    /// Returns dAccX.
    double getAccX() const { return dAccX; }
    /// Returns dAccY.
    double getAccY() const { return dAccY; }
    /// Returns dAccZ.
    double getAccZ() const { return dAccZ; }
    /// Position x in kilometres.
    double getPosXKm() const { return dPosX / 1000.0; }
    /// Position y in kilometres.
    double getPosYKm() const { return dPosY / 1000.0; }
    /// Position z in kilometres.
    double getPosZKm() const { return dPosZ / 1000.0; }
    /// Velocity x in kilometres per second.
    double getVelXKm() const { return dVelX / 1000.0; }
    /// Velocity y in kilometres per second.
    double getVelYKm() const { return dVelY / 1000.0; }
    /// Velocity z in kilometres per second.
    double getVelZKm() const { return dVelZ / 1000.0; }
    /// Acceleration x in kilometres per second squared.
    double getAccXKm() const { return dAccX / 1000.0; }
    /// Acceleration y in kilometres per second squared.
    double getAccYKm() const { return dAccY / 1000.0; }
    /// Acceleration z in kilometres per second squared.
    double getAccZKm() const { return dAccZ / 1000.0; }

    /// Sets uiSvId.
    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    /// Sets unGPSWeek.
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    /// Sets ucAux1.
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    /// Sets ulToe.
    void setToe(uint32_t ulValue) { ulToe = ulValue; }
    /// Sets dClock.
    void setClock(double dValue) { dClock = dValue; }
    /// Sets fUra.
    void setUra(float fValue) { fUra = fValue; }
    /// Sets ulAux2.
    void setAux2(uint32_t ulValue) { ulAux2 = ulValue; }
    /// Sets dPosX.
    void setPosX(double dValue) { dPosX = dValue; }
    /// Sets dPosY.
    void setPosY(double dValue) { dPosY = dValue; }
    /// Sets dPosZ.
    void setPosZ(double dValue) { dPosZ = dValue; }
    /// Sets dVelX.
    void setVelX(double dValue) { dVelX = dValue; }
    /// Sets dVelY.
    void setVelY(double dValue) { dVelY = dValue; }
    /// Sets dVelZ.
    void setVelZ(double dValue) { dVelZ = dValue; }
    /// Sets dAccX.
    void setAccX(double dValue) { dAccX = dValue; }
    /// Sets dAccY.
    void setAccY(double dValue) { dAccY = dValue; }
    /// Sets dAccZ.
    void setAccZ(double dValue) { dAccZ = dValue; }
    /// Sets ucHealth.
    void setHealth(uint8_t ucValue) { ucHealth = ucValue; }
    /// Sets ucAux3.
    void setAux3(uint8_t ucValue) { ucAux3 = ucValue; }
    /// Sets ucIod.
    void setIod(uint8_t ucValue) { ucIod = ucValue; }
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_SBAS& a, const ZELX_SAT_EPHEMERIS_SBAS& b);

} // namespace ZELN

#endif
