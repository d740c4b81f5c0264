#ifndef ZELTYPES_CORE_COMMON_ZELCONVGEOGRAPHICCARTESIAN_H
#define ZELTYPES_CORE_COMMON_ZELCONVGEOGRAPHICCARTESIAN_H

/// \file
/// The library's one conversion between earth-centred cartesian coordinates
/// and geographic coordinates on the WGS 84 ellipsoid: closed form, no
/// iteration. Angles in radians; geographic order latitude, longitude,
/// ellipsoidal height; cartesian order X, Y, Z; lengths in metres.
///
/// The optional rotation is the earth-centred to north/east/up matrix without
/// its constant zero (east z), 8 doubles:
///   [0] -sin(lat) cos(lon)  [1] -sin(lat) sin(lon)  [2] cos(lat)     north
///   [3] -sin(lon)           [4] cos(lon)                             east
///   [5] cos(lat) cos(lon)   [6] cos(lat) sin(lon)   [7] sin(lat)     up

#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>

#include <cstddef>

namespace ZELN
{

/// Semi-major axis a of WGS 84, in metres. The WGS 84 constants are used as
/// stored, never recomputed from each other.
constexpr double c_dWGS84_SEMI_MAJOR_AXIS = 6378137.0;
/// Semi-minor axis b of WGS 84, in metres.
constexpr double c_dWGS84_SEMI_MINOR_AXIS = 6356752.3142;
/// First eccentricity squared e^2 of WGS 84.
constexpr double c_dWGS84_ECC_SQUARED = 0.00669437999013;
/// 1 - e^2, as stored.
constexpr double c_dWGS84_ONE_MINUS_ECC_SQUARED = 0.99330562000987;
/// Denominator constant of Bowring's closed form, a e^2, in metres.
constexpr double c_dWGS84_BOWRING_DENOMINATOR = 42697.67270710779;
/// Numerator constant of Bowring's closed form, e'^2 b, in metres.
constexpr double c_dWGS84_BOWRING_NUMERATOR = 42841.31151296818;

/// Number of doubles the optional rotation output holds (the three north/east/up rows without the east z
/// zero).
constexpr size_t c_ulNB_ROTATION_VALUES = 8;

/// Cartesian X, Y, Z (metres) to latitude, longitude (radians) and
/// ellipsoidal height (metres), by Bowring's closed form in one step.
/// Error against the exact (iterated) solution, measured over latitudes
/// -89.999 to 89.999 degrees and all longitudes, growing with the square of
/// the height: from -1000 m to 500 m below 0.1 micrometre in latitude and
/// 0.3 micrometre in height; about 4 micrometres at 20 km; 0.085 mm in
/// latitude and 0.103 mm in height at 100 km. Tested bound: 2 micrometres +
/// 0.15 mm * (h / 100 km)^2, in height 0.1 mm more beyond 89 degrees. A
/// round trip through ConvGeographicToCartesian comes back within 0.13 mm
/// from -1000 m to 100 km (tested: 1 mm). Above 100 km the error keeps
/// growing with the height squared; no bound is tested there.
/// A point on the polar axis (or with a NaN in X or Y) has no conversion: the
/// outputs, rotation included, are left as they were, without a report.
ZELTYPES_API void ConvCartesianToGeographic(double dX, double dY, double dZ, double& rdLat, double& rdLon,
                                            double& rdHeight, double* pdRotation);

/// Latitude, longitude (radians) and ellipsoidal height (metres) to
/// cartesian X, Y, Z (metres). A formula without approximation on the
/// stored constants: the error is the rounding of double arithmetic, below
/// 2 nm against extended precision from -1000 m to 100 km (tested: 10 nm).
ZELTYPES_API void ConvGeographicToCartesian(double dLat, double dLon, double dHeight, double& rdX,
                                            double& rdY, double& rdZ, double* pdRotation);

/// Triplet forms, with the errors of the forms above: rCart must be
/// cartesian (rGeo geographic); another type reports "false" and does
/// nothing. The result's type is set in every other case, also when the
/// point has no conversion.
ZELTYPES_API void ConvCartesianToGeographic(const SZelCoordinateTriplet& rCart, SZelCoordinateTriplet& rGeo,
                                            double* pdRotation);

/// Triplet form of the geographic to cartesian conversion: rGeo must be geographic, rCart gets type
/// cartesian.
ZELTYPES_API void ConvGeographicToCartesian(const SZelCoordinateTriplet& rGeo, SZelCoordinateTriplet& rCart,
                                            double* pdRotation);

} // namespace ZELN

#endif
