#ifndef ZELTYPES_CORE_COMMON_ZELCOORDINATESET_H
#define ZELTYPES_CORE_COMMON_ZELCOORDINATESET_H

// SZelCoordinateSet: one position in its cartesian and geographic form side
// by side, with the local north/east/up rotation; and the azimuth and
// elevation of a target seen from a position.

#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// Availability bits of SZelCoordinateSet::ucAvl.
constexpr uint8_t c_ucCOORDSET_AVL_CART = 1;
constexpr uint8_t c_ucCOORDSET_AVL_GEO = 2;
constexpr uint8_t c_ucCOORDSET_AVL_TRAFO = 4;

class ZELTYPES_API SZelCoordinateSet
{
public:
    uint8_t ucAvl;
    SZelCoordinateTriplet stCart;
    SZelCoordinateTriplet stGeo;
    double adTrafo[8]; // earth-centred to north/east/up, see ZelConvGeographicCartesian.h

    SZelCoordinateSet();
    SZelCoordinateSet(const SZelCoordinateSet& rOther) = default;
    SZelCoordinateSet& operator=(const SZelCoordinateSet& rOther) = default;
    virtual ~SZelCoordinateSet();

    // Holds rCoord in the form of its type (cartesian, or else geographic)
    // and, unless bNoConversion, adds the other form and the rotation.
    virtual void Set(const SZelCoordinateTriplet& rCoord, bool bNoConversion = false);

    // ucAvl to 0; with bAll also the triplets and the rotation.
    virtual void Clear(bool bAll = true);

    uint64_t getSize() const { return 1 + stCart.getSize() + stGeo.getSize() + 64; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

// The rotation first (a NaN makes the sets unequal), then ucAvl and the triplets.
ZELTYPES_API bool operator==(const SZelCoordinateSet& a, const SZelCoordinateSet& b);
ZELTYPES_API bool operator!=(const SZelCoordinateSet& a, const SZelCoordinateSet& b);

// "Avl, " n ", Cart, " triplet ", Geo, " triplet ", Trafo" and 8 times ", "
// value in scientific form with 17 digits; format and precision stay set.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelCoordinateSet& rSet);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelCoordinateSet& rSet);

// A satellite's earth-centred position and velocity with its range and range
// rate as seen from a receiver, the input of ComputeAzimuthElevationRate.
struct ZELTYPES_API SZelSatPosVel
{
    double adPos[3];
    double adVel[3];
    double dRange;
    double dRangeRate;

    SZelSatPosVel() : adPos{0.0, 0.0, 0.0}, adVel{0.0, 0.0, 0.0}, dRange(0.0), dRangeRate(0.0) {}

    uint64_t getSize() const { return 64; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

// Exact, a NaN unequal.
ZELTYPES_API bool operator==(const SZelSatPosVel& a, const SZelSatPosVel& b);
ZELTYPES_API bool operator!=(const SZelSatPosVel& a, const SZelSatPosVel& b);

// "Pos, " x, y, z ", Vel, " vx, vy, vz ", Rng, " r ", RngRate, " rr, 12 digits.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatPosVel& rSatPos);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatPosVel& rSatPos);

// Azimuth (0 to 2 pi, from north through east), elevation and range of
// adTarget seen from the cartesian rstPos, with adRotation the 8-value
// rotation at rstPos. A zero distance gives elevation pi/2, azimuth 0.
ZELTYPES_API void ComputeAzimuthElevation(const SZelCoordinateTriplet& rstPos, const double* adRotation,
                                          const double* adTarget, double& rdElevation, double& rdAzimuth,
                                          double& rdRange);

// As above with the range taken from rstSatPos, and the rate of the
// elevation from the satellite's velocity and range rate.
ZELTYPES_API void ComputeAzimuthElevationRate(const SZelCoordinateTriplet& rstPos, const double* adRotation,
                                              const SZelSatPosVel& rstSatPos, double& rdElevation,
                                              double& rdElevationRate, double& rdAzimuth, double& rdRange);

// A geostationary satellite on the equator at dLongitudeDeg degrees, seen
// from the site given by latitude, longitude (radians) and height of rstGeoPos.
ZELTYPES_API void ComputeGeoSatAzimuthElevation(const SZelCoordinateTriplet& rstGeoPos, double dLongitudeDeg,
                                                double& rdElevation, double& rdAzimuth);

} // namespace ZELN

#endif
