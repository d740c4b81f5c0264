#ifndef ZELTYPES_CORE_COMMON_ZELCOORDINATESET_H
#define ZELTYPES_CORE_COMMON_ZELCOORDINATESET_H

/// \file
/// SZelCoordinateSet: one position in its cartesian and geographic form side
/// by side, with the local north/east/up rotation; and the azimuth and
/// elevation of a target seen from a position.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Bit of SZelCoordinateSet::ucAvl: stCart holds the position.
constexpr uint8_t c_ucCOORDSET_AVL_CART = 1;
/// Bit of ucAvl: stGeo holds the position.
constexpr uint8_t c_ucCOORDSET_AVL_GEO = 2;
/// Bit of ucAvl: adTrafo holds the rotation.
constexpr uint8_t c_ucCOORDSET_AVL_TRAFO = 4;

/// One position in its cartesian and its geographic form, with the earth-centred to north/east/up rotation
/// there; ucAvl says which of the three hold data.
class ZELTYPES_API SZelCoordinateSet
{
public:
    uint8_t ucAvl = 0;            ///< c_ucCOORDSET_AVL_* bits
    SZelCoordinateTriplet stCart; ///< X, Y, Z in metres, earth-centred
    SZelCoordinateTriplet stGeo;  ///< latitude, longitude in radians, ellipsoidal height in metres
    /// Earth-centred to north/east/up at the position, unitless, without the
    /// east row's zero; the layout of ZelConvGeographicCartesian.h.
    double adTrafo[8] = {};

    /// Constructs the default state (for a record: holding no data).
    SZelCoordinateSet() = default;
    /// Copies another object.
    SZelCoordinateSet(const SZelCoordinateSet& rOther) = default;
    /// Copies another object into this one.
    SZelCoordinateSet& operator=(const SZelCoordinateSet& rOther) = default;
    /// Destroys the object.
    virtual ~SZelCoordinateSet();

    /// Holds rCoord in the form of its type (cartesian, or else geographic)
    /// and, unless bNoConversion, adds the other form and the rotation.
    virtual void Set(const SZelCoordinateTriplet& rCoord, bool bNoConversion = false);

    /// ucAvl to 0; with bAll also the triplets and the rotation.
    virtual void Clear(bool bAll = true);

    /// Image, 121 bytes, nothing padded: ucAvl at 0, the cartesian triplet at
    /// 1, the geographic one at 29, the rotation at 57. The triplets are sized
    /// by their own getSize; a failed triplet gives false without a further
    /// report.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ucAvl) && io.Record(r.stCart, false) && io.Record(r.stGeo, false) &&
               io.Raw(r.adTrafo);
    }
    /// Text: "Avl, " n ", Cart, " triplet ", Geo, " triplet ", Trafo" and 8
    /// times ", " value in scientific form with 17 digits; format and
    /// precision stay set. The tag ", Trafo, " carries the comma before the
    /// first value, so the values are read as an array.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Avl, ")
            .template Wide<uint32_t>(r.ucAvl)
            .Tag(", Cart, ")
            .Value(r.stCart)
            .Tag(", Geo, ")
            .Value(r.stGeo)
            .Tag(", Trafo, ")
            .Scientific()
            .Precision(17)
            .Array(r.adTrafo);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// The rotation first (a NaN makes the sets unequal), then ucAvl and the triplets.
ZELTYPES_API bool operator==(const SZelCoordinateSet& a, const SZelCoordinateSet& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelCoordinateSet& rSet);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelCoordinateSet& rSet);

/// A satellite's position and velocity, earth-centred and earth-fixed, with
/// its range and range rate as seen from a receiver: the input of
/// ComputeAzimuthElevationRate.
struct ZELTYPES_API SZelSatPosVel
{
    double adPos[3] = {};    ///< X, Y, Z in metres
    double adVel[3] = {};    ///< X, Y, Z in metres per second
    double dRange = 0.0;     ///< metres
    double dRangeRate = 0.0; ///< metres per second, positive when the range grows

    /// Image, 64 bytes: position at 0, velocity at 24, range at 48, rate at 56.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.adPos) && io.Raw(r.adVel) && io.Raw(r.dRange) && io.Raw(r.dRangeRate);
    }
    /// Text: "Pos, " x, y, z ", Vel, " vx, vy, vz ", Rng, " r ", RngRate, " rr,
    /// at 12 digits; the precision stays set.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Pos, ")
            .Precision(12)
            .Array(r.adPos)
            .Tag(", Vel, ")
            .Array(r.adVel)
            .Tag(", Rng, ")
            .Value(r.dRange)
            .Tag(", RngRate, ")
            .Value(r.dRangeRate);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Exact, a NaN unequal.
ZELTYPES_API bool operator==(const SZelSatPosVel& a, const SZelSatPosVel& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatPosVel& rSatPos);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatPosVel& rSatPos);

/// Azimuth (radians, 0 to 2 pi, from north through east), elevation
/// (radians above the local horizon) and range (metres) of adTarget (X, Y, Z
/// in metres, earth-centred) seen from the cartesian rstPos, with adRotation
/// the 8-value rotation at rstPos. A zero distance gives elevation pi/2,
/// azimuth 0.
ZELTYPES_API void ComputeAzimuthElevation(const SZelCoordinateTriplet& rstPos, const double* adRotation,
                                          const double* adTarget, double& rdElevation, double& rdAzimuth,
                                          double& rdRange);

/// As above with the range taken from rstSatPos, and the rate of the
/// elevation (radians per second) from the satellite's velocity and range
/// rate, for a receiver at rest.
ZELTYPES_API void ComputeAzimuthElevationRate(const SZelCoordinateTriplet& rstPos, const double* adRotation,
                                              const SZelSatPosVel& rstSatPos, double& rdElevation,
                                              double& rdElevationRate, double& rdAzimuth, double& rdRange);

/// A geostationary satellite on the equator at dLongitudeDeg degrees (east
/// positive), 35786035.9 m above the ellipsoid, seen from the site given by
/// latitude, longitude (radians) and height (metres) of rstGeoPos, whatever
/// its type; elevation and azimuth in radians.
ZELTYPES_API void ComputeGeoSatAzimuthElevation(const SZelCoordinateTriplet& rstGeoPos, double dLongitudeDeg,
                                                double& rdElevation, double& rdAzimuth);

} // namespace ZELN

#endif
