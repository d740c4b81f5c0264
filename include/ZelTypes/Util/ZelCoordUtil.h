#ifndef ZELTYPES_UTIL_ZELCOORDUTIL_H
#define ZELTYPES_UTIL_ZELCOORDUTIL_H

/// @file
/// Degree forms of the library's WGS 84 conversions between earth-centred
/// cartesian and geographic coordinates (ConvCartesianToGeographic and
/// ConvGeographicToCartesian, which work in radians). The conversions are the
/// library's own; these wrappers add the degrees and a result that says
/// whether the conversion took place.

#include <ZelTypes/Util/ZelUtilExport.h>

namespace ZELN
{

/// Radians in one degree.
constexpr double c_dRAD_PER_DEG = 3.14159265358979323846 / 180.0;

/// Angle in degrees to radians.
constexpr double DegToRad(double dDegrees)
{
    return dDegrees * c_dRAD_PER_DEG;
}

/// Angle in radians to degrees.
constexpr double RadToDeg(double dRadians)
{
    return dRadians / c_dRAD_PER_DEG;
}

/// Earth-centred X, Y, Z (m) to latitude and longitude (degrees, north and
/// east positive, longitude in [-180, 180]) and ellipsoidal height (m). The
/// optional pdRotation receives the 8 values of the earth-centred to
/// north/east/up rotation described with ConvCartesianToGeographic. false, with
/// every output untouched, when an input is not finite or the point has no
/// conversion (on the polar axis, where X and Y are both 0).
ZELTYPES_UTIL_API bool ConvCartesianToGeographicDeg(double dX, double dY, double dZ, double& rdLatDeg,
                                                    double& rdLonDeg, double& rdHeight,
                                                    double* pdRotation = nullptr);

/// Latitude and longitude (degrees, north and east positive) and ellipsoidal
/// height (m) to earth-centred X, Y, Z (m), with the optional 8 values of the
/// rotation as above. false, with every output untouched, when an input is not
/// finite or the latitude lies outside -90 to 90 degrees; any finite longitude
/// is taken as it stands.
ZELTYPES_UTIL_API bool ConvGeographicToCartesianDeg(double dLatDeg, double dLonDeg, double dHeight,
                                                    double& rdX, double& rdY, double& rdZ,
                                                    double* pdRotation = nullptr);

} // namespace ZELN

#endif
