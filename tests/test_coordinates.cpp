// Coordinates: the geographic/cartesian conversion, the coordinate triplet
// and set, azimuth and elevation, and the small coordinate exchange records.
#include "ZelSamplesCoordinates.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>
#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using namespace ZELN;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

const std::string c_strFalse = "false";
const std::string c_strCartCheck = "ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN && "
                                   "rOther.ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN";

constexpr double c_dPi = 3.141592653589793;
constexpr double c_dDeg = c_dPi / 180.0;
constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();

// Typed from the WGS 84 table, independent of the library's constants.
constexpr double c_dA = 6378137.0;
constexpr double c_dB = 6356752.3142;
constexpr double c_dE2 = 0.00669437999013;

double Distance(double dX1, double dY1, double dZ1, double dX2, double dY2, double dZ2)
{
    return std::sqrt((dX1 - dX2) * (dX1 - dX2) + (dY1 - dY2) * (dY1 - dY2) + (dZ1 - dZ2) * (dZ1 - dZ2));
}

// Exact reference of the reverse conversion: fixed-point iteration of the
// geodetic latitude in extended precision, height by the form that stays
// stable at the poles.
void IterativeCartToGeo(double dX, double dY, double dZ, double& rdLat, double& rdLon, double& rdHeight)
{
    const long double x = dX, y = dY, z = dZ;
    const long double a = c_dA, e2 = c_dE2;
    const long double p = std::sqrt(x * x + y * y);
    long double lat = std::atan2(z, p * (1.0L - e2));
    for (int i = 0; i < 100; ++i)
    {
        const long double s = std::sin(lat);
        const long double n = a / std::sqrt(1.0L - e2 * s * s);
        const long double latNext = std::atan2(z + e2 * n * s, p);
        const bool bDone = std::fabs(latNext - lat) < 1e-19L;
        lat = latNext;
        if (bDone)
        {
            break;
        }
    }
    const long double s = std::sin(lat);
    const long double c = std::cos(lat);
    rdLat = static_cast<double>(lat);
    rdLon = static_cast<double>(std::atan2(y, x));
    rdHeight = static_cast<double>(p * c + z * s - a * std::sqrt(1.0L - e2 * s * s));
}

// The rotation written out from its table, for a latitude and longitude.
void RotationFromTable(double dLat, double dLon, double* pd)
{
    pd[0] = -std::sin(dLat) * std::cos(dLon);
    pd[1] = -std::sin(dLat) * std::sin(dLon);
    pd[2] = std::cos(dLat);
    pd[3] = -std::sin(dLon);
    pd[4] = std::cos(dLon);
    pd[5] = std::cos(dLat) * std::cos(dLon);
    pd[6] = std::cos(dLat) * std::sin(dLon);
    pd[7] = std::sin(dLat);
}

std::vector<double> GridLatitudesDeg()
{
    std::vector<double> vec;
    for (double d = -89.9; d <= 89.95; d += 4.99)
    {
        vec.push_back(d);
    }
    for (double d : {-89.999, -89.99, -45.0, -1e-9, 0.0, 1e-9, 45.0, 89.99, 89.999})
    {
        vec.push_back(d);
    }
    return vec;
}

std::vector<double> GridLongitudesDeg()
{
    return {-180.0, -179.999, -135.0, -90.0, -33.3, 0.0, 12.5, 90.0, 135.0, 179.999, 180.0};
}

std::vector<double> GridHeights()
{
    return {-1000.0, -100.0, 0.0, 1.0, 500.0, 8848.0, 20000.0, 50000.0, 100000.0};
}

} // namespace

// ===================================================================== conversion

TEST(ConvGeoCart, ConstantsAsStored)
{
    EXPECT_EQ(c_dWGS84_SEMI_MAJOR_AXIS, 6378137.0);
    EXPECT_EQ(c_dWGS84_SEMI_MINOR_AXIS, 6356752.3142);
    EXPECT_EQ(c_dWGS84_ECC_SQUARED, 0.00669437999013);
    EXPECT_EQ(c_dWGS84_ONE_MINUS_ECC_SQUARED, 0.99330562000987);
    EXPECT_EQ(c_dWGS84_BOWRING_DENOMINATOR, 42697.67270710779);
    EXPECT_EQ(c_dWGS84_BOWRING_NUMERATOR, 42841.31151296818);
    EXPECT_EQ(c_ulNB_ROTATION_VALUES, 8u);
}

TEST(ConvGeoCart, EquatorPrimeMeridianIsZero)
{
    CRecordingHook hook;
    double dLat = 9.0, dLon = 9.0, dHeight = 9.0;
    ConvCartesianToGeographic(6378137.0, 0.0, 0.0, dLat, dLon, dHeight, nullptr);
    EXPECT_EQ(dLat, 0.0);
    EXPECT_EQ(dLon, 0.0);
    EXPECT_EQ(dHeight, 0.0);

    double dX = 0.0, dY = 9.0, dZ = 9.0;
    ConvGeographicToCartesian(0.0, 0.0, 0.0, dX, dY, dZ, nullptr);
    EXPECT_EQ(dX, 6378137.0);
    EXPECT_EQ(dY, 0.0);
    EXPECT_EQ(dZ, 0.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(ConvGeoCart, PolarAxisLeavesAllOutputs)
{
    CRecordingHook hook;
    double dLat = 11.0, dLon = 22.0, dHeight = 33.0;
    double adRot[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    ConvCartesianToGeographic(0.0, 0.0, 6356752.3142, dLat, dLon, dHeight, adRot);
    EXPECT_EQ(dLat, 11.0);
    EXPECT_EQ(dLon, 22.0);
    EXPECT_EQ(dHeight, 33.0);
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(adRot[i], i + 1.0);
    }
    // The south pole and the centre are no different.
    ConvCartesianToGeographic(0.0, 0.0, -6356752.3142, dLat, dLon, dHeight, adRot);
    ConvCartesianToGeographic(0.0, 0.0, 0.0, dLat, dLon, dHeight, adRot);
    ConvCartesianToGeographic(-0.0, -0.0, 5.0, dLat, dLon, dHeight, adRot);
    EXPECT_EQ(dLat, 11.0);
    EXPECT_EQ(dLon, 22.0);
    EXPECT_EQ(dHeight, 33.0);
    EXPECT_EQ(adRot[0], 1.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(ConvGeoCart, NearPoleGivesNearHalfPiAndFiniteHeight)
{
    CRecordingHook hook;
    double dLat = 0.0, dLon = 9.0, dHeight = 0.0;
    ConvCartesianToGeographic(1.0, 0.0, 6356752.3142, dLat, dLon, dHeight, nullptr);
    EXPECT_NEAR(dLat, c_dPi / 2.0, 1e-6);
    EXPECT_LT(dLat, c_dPi / 2.0);
    EXPECT_EQ(dLon, 0.0);
    EXPECT_TRUE(std::isfinite(dHeight));
    EXPECT_NEAR(dHeight, 0.0, 1.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(ConvGeoCart, NotANumberInHeightReportsAfterLatLon)
{
    CRecordingHook hook;
    double dLat = 5.0, dLon = 5.0, dHeight = 5.0;
    double adRot[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    ConvCartesianToGeographic(6378137.0, 0.0, c_dNaN, dLat, dLon, dHeight, adRot);
    ASSERT_EQ(hook.Count(), 1u);
    EXPECT_EQ(hook.Texts()[0], c_strFalse);
    EXPECT_TRUE(std::isnan(dLat));
    EXPECT_EQ(dLon, 0.0);
    EXPECT_EQ(dHeight, 5.0);
    EXPECT_EQ(adRot[0], 1.0);
    EXPECT_EQ(adRot[7], 8.0);

    // A NaN in X or Y is a degenerate point: silent, nothing written.
    hook.Clear();
    dLat = 5.0;
    ConvCartesianToGeographic(c_dNaN, 1.0, 1.0, dLat, dLon, dHeight, adRot);
    EXPECT_EQ(dLat, 5.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(ConvGeoCart, KnownPoints)
{
    double dX = 0.0, dY = 0.0, dZ = 0.0;
    // The north pole lies at the semi-minor axis.
    ConvGeographicToCartesian(c_dPi / 2.0, 0.0, 0.0, dX, dY, dZ, nullptr);
    EXPECT_NEAR(dZ, c_dB, 1e-3);
    EXPECT_NEAR(dX, 0.0, 1e-6);
    ConvGeographicToCartesian(0.0, c_dPi / 2.0, 100.0, dX, dY, dZ, nullptr);
    EXPECT_NEAR(dX, 0.0, 1e-6);
    EXPECT_EQ(dY, 6378237.0);
    EXPECT_EQ(dZ, 0.0);
    // A point at 45 degrees: N = a / sqrt(1 - e2 / 2).
    ConvGeographicToCartesian(c_dPi / 4.0, 0.0, 0.0, dX, dY, dZ, nullptr);
    const double dN45 = 6378137.0 / std::sqrt(1.0 - 0.00669437999013 / 2.0);
    EXPECT_NEAR(dX, dN45 * std::sqrt(0.5), 1e-6);
    EXPECT_NEAR(dZ, dN45 * (1.0 - 0.00669437999013) * std::sqrt(0.5), 1e-6);
    EXPECT_NEAR(dX, 4517590.8788, 1e-3);
    EXPECT_NEAR(dZ, 4487348.4087, 1e-3);

    double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
    ConvCartesianToGeographic(4517590.8788, 0.0, 4487348.4087, dLat, dLon, dHeight, nullptr);
    EXPECT_NEAR(dLat, c_dPi / 4.0, 1e-10);
    EXPECT_NEAR(dHeight, 0.0, 1e-3);
    // Longitude by quadrant.
    ConvCartesianToGeographic(-6378137.0, -1.0, 0.0, dLat, dLon, dHeight, nullptr);
    EXPECT_NEAR(dLon, -c_dPi, 1e-6);
    ConvCartesianToGeographic(0.0, -6378137.0, 0.0, dLat, dLon, dHeight, nullptr);
    EXPECT_NEAR(dLon, -c_dPi / 2.0, 1e-15);
    // Southern hemisphere.
    ConvCartesianToGeographic(4517590.8788, 0.0, -4487348.4087, dLat, dLon, dHeight, nullptr);
    EXPECT_NEAR(dLat, -c_dPi / 4.0, 1e-10);
}

// The formulas in their stated order of evaluation, bit for bit, over many
// points so that a change of grouping shows in the last bit somewhere.
TEST(ConvGeoCart, OrderOfEvaluationExact)
{
    size_t ulMismatchReverse = 0, ulMismatchForward = 0, ulPoints = 0;
    for (int iLat = -88; iLat <= 88; iLat += 4)
    {
        for (int iLon = -175; iLon <= 175; iLon += 25)
        {
            for (double dH : {-734.25, 0.0, 1234.5, 98765.4321})
            {
                // Points off the ellipsoid's own grid: cartesian values from
                // rounded decimal numbers.
                const double x =
                    std::round(6400000.0 * std::cos(iLat * c_dDeg) * std::cos(iLon * c_dDeg) + dH);
                const double y =
                    std::round(6400000.0 * std::cos(iLat * c_dDeg) * std::sin(iLon * c_dDeg) - dH);
                const double z = std::round(6350000.0 * std::sin(iLat * c_dDeg) + 0.37 * dH);
                const double p = std::sqrt(x * x + y * y);
                const double u = std::atan2(z * 6378137.0, p * 6356752.3142);
                const double su = std::sin(u), cu = std::cos(u);
                const double lat = std::atan2(z + 42841.31151296818 * (su * su * su),
                                              p - 42697.67270710779 * (cu * cu * cu));
                const double lon = std::atan2(y, x);
                const double sl = std::sin(lat);
                const double w = 1.0 - 0.00669437999013 * (sl * sl);
                const double h = p / std::cos(lat) - 6378137.0 / std::sqrt(w);
                double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
                ConvCartesianToGeographic(x, y, z, dLat, dLon, dHeight, nullptr);
                ulMismatchReverse += (dLat == lat && dLon == lon && dHeight == h) ? 0 : 1;

                const double w2 = 1.0 - std::sin(lat) * 0.00669437999013 * std::sin(lat);
                const double n = 6378137.0 / std::sqrt(w2);
                double dX = 0.0, dY = 0.0, dZ = 0.0;
                ConvGeographicToCartesian(lat, lon, dH, dX, dY, dZ, nullptr);
                ulMismatchForward += (dX == (n + dH) * std::cos(lat) * std::cos(lon) &&
                                      dY == (n + dH) * std::cos(lat) * std::sin(lon) &&
                                      dZ == (n * 0.99330562000987 + dH) * std::sin(lat))
                                         ? 0
                                         : 1;
                ++ulPoints;
            }
        }
    }
    EXPECT_GT(ulPoints, 2000u);
    EXPECT_EQ(ulMismatchReverse, 0u);
    EXPECT_EQ(ulMismatchForward, 0u);
}

TEST(ConvGeoCart, RotationHasEightValuesOnly)
{
    const double dLat = 0.7, dLon = -2.1;
    double adExpected[8];
    RotationFromTable(dLat, dLon, adExpected);

    double adRot[9];
    for (double& d : adRot)
    {
        d = 99.0;
    }
    double dX = 0.0, dY = 0.0, dZ = 0.0;
    ConvGeographicToCartesian(dLat, dLon, 10.0, dX, dY, dZ, adRot);
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(adRot[i], adExpected[i]) << i;
    }
    EXPECT_EQ(adRot[8], 99.0);

    // The reverse conversion fills the rotation of the latitude it found.
    double adRot2[9];
    for (double& d : adRot2)
    {
        d = 99.0;
    }
    double dLat2 = 0.0, dLon2 = 0.0, dHeight2 = 0.0;
    ConvCartesianToGeographic(dX, dY, dZ, dLat2, dLon2, dHeight2, adRot2);
    RotationFromTable(dLat2, dLon2, adExpected);
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(adRot2[i], adExpected[i]) << i;
    }
    EXPECT_EQ(adRot2[8], 99.0);

    // With the omitted zero the rows are orthonormal.
    const double adN[3] = {adRot[0], adRot[1], adRot[2]};
    const double adE[3] = {adRot[3], adRot[4], 0.0};
    const double adU[3] = {adRot[5], adRot[6], adRot[7]};
    auto dot = [](const double* a, const double* b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; };
    EXPECT_NEAR(dot(adN, adN), 1.0, 1e-15);
    EXPECT_NEAR(dot(adE, adE), 1.0, 1e-15);
    EXPECT_NEAR(dot(adU, adU), 1.0, 1e-15);
    EXPECT_NEAR(dot(adN, adE), 0.0, 1e-15);
    EXPECT_NEAR(dot(adN, adU), 0.0, 1e-15);
    EXPECT_NEAR(dot(adE, adU), 0.0, 1e-15);
    // Up is the ellipsoid normal: it points along the geographic direction.
    EXPECT_NEAR(adU[2], std::sin(dLat), 1e-15);
}

TEST(ConvGeoCart, RoundTripGridWithinMillimetre)
{
    CRecordingHook hook;
    double dWorstCart = 0.0, dWorstGeo = 0.0;
    size_t ulPoints = 0;
    for (double dLatDeg : GridLatitudesDeg())
    {
        for (double dLonDeg : GridLongitudesDeg())
        {
            for (double dH : GridHeights())
            {
                const double dLat = dLatDeg * c_dDeg, dLon = dLonDeg * c_dDeg;
                double dX = 0.0, dY = 0.0, dZ = 0.0;
                ConvGeographicToCartesian(dLat, dLon, dH, dX, dY, dZ, nullptr);
                double dLat2 = 0.0, dLon2 = 0.0, dH2 = 0.0;
                ConvCartesianToGeographic(dX, dY, dZ, dLat2, dLon2, dH2, nullptr);
                double dX2 = 0.0, dY2 = 0.0, dZ2 = 0.0;
                ConvGeographicToCartesian(dLat2, dLon2, dH2, dX2, dY2, dZ2, nullptr);

                // Cartesian -> geographic -> cartesian.
                const double dCart = Distance(dX, dY, dZ, dX2, dY2, dZ2);
                // Geographic -> cartesian -> geographic, as a length.
                double dDLon = std::remainder(dLon2 - dLon, 2.0 * c_dPi);
                const double dGeo =
                    std::sqrt(std::pow((dLat2 - dLat) * (c_dA + dH), 2) +
                              std::pow(dDLon * (c_dA + dH) * std::cos(dLat), 2) + std::pow(dH2 - dH, 2));
                EXPECT_LT(dCart, 1e-3) << dLatDeg << " " << dLonDeg << " " << dH;
                EXPECT_LT(dGeo, 1e-3) << dLatDeg << " " << dLonDeg << " " << dH;
                dWorstCart = std::max(dWorstCart, dCart);
                dWorstGeo = std::max(dWorstGeo, dGeo);
                ++ulPoints;
            }
        }
    }
    EXPECT_GT(ulPoints, 2000u);
    EXPECT_EQ(hook.Count(), 0u);
    RecordProperty("WorstCartMetres", std::to_string(dWorstCart));
    RecordProperty("WorstGeoMetres", std::to_string(dWorstGeo));
}

// Bowring's closed form after one step from the parametric latitude: its
// error grows with the square of the height, from well under a micrometre on
// the ellipsoid to about 0.1 mm at 100 km. Near the poles the height also
// carries the rounding of p / cos(lat).
namespace
{

double BowringTolerance(double dHeight, double dLatDeg)
{
    const double dScale = std::max(dHeight, 0.0) / 100000.0;
    return 2e-6 + 1.5e-4 * dScale * dScale + (std::fabs(dLatDeg) > 89.0 ? 1e-4 : 0.0);
}

} // namespace

TEST(ConvGeoCart, AgreesWithIterativeSolution)
{
    double dWorstLat = 0.0, dWorstHeight = 0.0;
    for (double dLatDeg : GridLatitudesDeg())
    {
        for (double dLonDeg : {-150.0, -60.0, 0.0, 75.0, 179.0})
        {
            for (double dH : GridHeights())
            {
                double dX = 0.0, dY = 0.0, dZ = 0.0;
                ConvGeographicToCartesian(dLatDeg * c_dDeg, dLonDeg * c_dDeg, dH, dX, dY, dZ, nullptr);
                double dLatRef = 0.0, dLonRef = 0.0, dHRef = 0.0;
                IterativeCartToGeo(dX, dY, dZ, dLatRef, dLonRef, dHRef);
                double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
                ConvCartesianToGeographic(dX, dY, dZ, dLat, dLon, dHeight, nullptr);
                const double dLatErr = std::fabs(dLat - dLatRef) * c_dA;
                const double dHErr = std::fabs(dHeight - dHRef);
                EXPECT_LT(dLatErr, BowringTolerance(dH, 0.0)) << dLatDeg << " " << dH;
                EXPECT_LT(dHErr, BowringTolerance(dH, dLatDeg)) << dLatDeg << " " << dH;
                EXPECT_NEAR(dLon, dLonRef, 1e-15);
                dWorstLat = std::max(dWorstLat, dLatErr);
                dWorstHeight = std::max(dWorstHeight, dHErr);
            }
        }
    }
    RecordProperty("WorstLatMetres", std::to_string(dWorstLat));
    RecordProperty("WorstHeightMetres", std::to_string(dWorstHeight));
}

// The forward conversion is a formula without approximation: against the
// same formula in extended precision only the rounding of doubles remains.
TEST(ConvGeoCart, ForwardAgreesWithExtendedPrecision)
{
    double dWorst = 0.0;
    for (double dLatDeg : GridLatitudesDeg())
    {
        for (double dLonDeg : GridLongitudesDeg())
        {
            for (double dH : GridHeights())
            {
                const double dLat = dLatDeg * c_dDeg, dLon = dLonDeg * c_dDeg;
                double dX = 0.0, dY = 0.0, dZ = 0.0;
                ConvGeographicToCartesian(dLat, dLon, dH, dX, dY, dZ, nullptr);
                const long double s = std::sin(static_cast<long double>(dLat));
                const long double c = std::cos(static_cast<long double>(dLat));
                const long double n = c_dA / std::sqrt(1.0L - c_dE2 * s * s);
                const long double x = (n + dH) * c * std::cos(static_cast<long double>(dLon));
                const long double y = (n + dH) * c * std::sin(static_cast<long double>(dLon));
                const long double z = (n * (1.0L - c_dE2) + dH) * s;
                const double dErr = static_cast<double>(
                    std::sqrt((x - dX) * (x - dX) + (y - dY) * (y - dY) + (z - dZ) * (z - dZ)));
                EXPECT_LT(dErr, 1e-8) << dLatDeg << " " << dLonDeg << " " << dH;
                dWorst = std::max(dWorst, dErr);
            }
        }
    }
    RecordProperty("WorstForwardMetres", std::to_string(dWorst));
}

TEST(ConvGeoCart, TripletFormsSetTheType)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet stCart(ZELCOORDINATESYSTEM_CARTESIAN, 4517590.8788, 0.0, 4487348.4087);
    SZelCoordinateTriplet stGeo(ZELCOORDINATESYSTEM_LOCGEO, 1.0, 2.0, 3.0);
    double adRot[8] = {};
    ConvCartesianToGeographic(stCart, stGeo, adRot);
    EXPECT_EQ(stGeo.ecoordinatesystem, ZELCOORDINATESYSTEM_GEOGRAPHIC);
    double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
    ConvCartesianToGeographic(4517590.8788, 0.0, 4487348.4087, dLat, dLon, dHeight, nullptr);
    EXPECT_EQ(stGeo.dCoord1, dLat);
    EXPECT_EQ(stGeo.dCoord2, dLon);
    EXPECT_EQ(stGeo.dCoord3, dHeight);
    EXPECT_EQ(adRot[7], std::sin(dLat));

    SZelCoordinateTriplet stBack(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.0, 0.0, 0.0);
    ConvGeographicToCartesian(stGeo, stBack, nullptr);
    EXPECT_EQ(stBack.ecoordinatesystem, ZELCOORDINATESYSTEM_CARTESIAN);
    EXPECT_NEAR(stBack.dCoord1, 4517590.8788, 1e-6);
    EXPECT_NEAR(stBack.dCoord3, 4487348.4087, 1e-6);

    // In place: the same triplet as input and output.
    SZelCoordinateTriplet stSame = stCart;
    ConvCartesianToGeographic(stSame, stSame, nullptr);
    EXPECT_EQ(stSame, stGeo);
    ConvGeographicToCartesian(stSame, stSame, nullptr);
    EXPECT_EQ(stSame, stBack);

    // The polar axis: the type is set, the values stay.
    SZelCoordinateTriplet stPolar(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 0.0, 6356752.3142);
    SZelCoordinateTriplet stOut(ZELCOORDINATESYSTEM_CARTESIAN, 7.0, 8.0, 9.0);
    ConvCartesianToGeographic(stPolar, stOut, nullptr);
    EXPECT_EQ(stOut, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 7.0, 8.0, 9.0));
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(ConvGeoCart, LocGeoToCartesianReportsAndLeavesResult)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet stLoc(ZELCOORDINATESYSTEM_LOCGEO, 0.5, 0.5, 10.0);
    SZelCoordinateTriplet stResult(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 2.0, 3.0);
    double adRot[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    ConvGeographicToCartesian(stLoc, stResult, adRot);
    ASSERT_EQ(hook.Count(), 1u);
    EXPECT_EQ(hook.Texts()[0], c_strFalse);
    EXPECT_EQ(stResult, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 2.0, 3.0));
    EXPECT_EQ(adRot[0], 1.0);

    // Cartesian input, and an unknown type, in the same way.
    hook.Clear();
    ConvGeographicToCartesian(SZelCoordinateTriplet(), stResult, adRot);
    ConvGeographicToCartesian(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_INVALID, 0.5, 0.5, 0.0), stResult,
                              adRot);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse}));
    EXPECT_EQ(stResult, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 2.0, 3.0));
}

TEST(ConvGeoCart, NonCartesianToGeographicReportsAndLeavesResult)
{
    CRecordingHook hook;
    SZelCoordinateTriplet stResult(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    ConvCartesianToGeographic(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 6378137.0, 0.0, 0.0),
                              stResult, nullptr);
    ConvCartesianToGeographic(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_LOCGEO, 6378137.0, 0.0, 0.0),
                              stResult, nullptr);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse}));
    EXPECT_EQ(stResult, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0));
}

// ===================================================================== triplet

TEST(CoordinateSystem, ValuesAndWords)
{
    EXPECT_EQ(static_cast<int>(ZELCOORDINATESYSTEM_INVALID), -1);
    EXPECT_EQ(static_cast<int>(ZELCOORDINATESYSTEM_CARTESIAN), 0);
    EXPECT_EQ(static_cast<int>(ZELCOORDINATESYSTEM_GEOGRAPHIC), 1);
    EXPECT_EQ(static_cast<int>(ZELCOORDINATESYSTEM_LOCGEO), 2);
    EXPECT_EQ(sizeof(EZelCoordinateSystem), 4u);
    EXPECT_STREQ(ToCoordinateSystemWord(ZELCOORDINATESYSTEM_CARTESIAN), "Cart");
    EXPECT_STREQ(ToCoordinateSystemWord(ZELCOORDINATESYSTEM_GEOGRAPHIC), "Geo");
    EXPECT_STREQ(ToCoordinateSystemWord(ZELCOORDINATESYSTEM_LOCGEO), "LocGeo");
    EXPECT_STREQ(ToCoordinateSystemWord(ZELCOORDINATESYSTEM_INVALID), "Invalid");
    EXPECT_STREQ(ToCoordinateSystemWord(static_cast<EZelCoordinateSystem>(3)), "Invalid");

    for (const char* szText : {"Cart", "Cart,", "Geo", "Geo,", "LocGeo,", "Invalid,", "cart,", "Bogus"})
    {
        std::istringstream iss(szText);
        const EZelCoordinateSystem e = ReadCoordinateSystemWord(iss);
        const std::string str(szText);
        if (str.rfind("Cart", 0) == 0)
        {
            EXPECT_EQ(e, ZELCOORDINATESYSTEM_CARTESIAN);
        }
        else if (str.rfind("Geo", 0) == 0)
        {
            EXPECT_EQ(e, ZELCOORDINATESYSTEM_GEOGRAPHIC);
        }
        else if (str.rfind("LocGeo", 0) == 0)
        {
            EXPECT_EQ(e, ZELCOORDINATESYSTEM_LOCGEO);
        }
        else
        {
            EXPECT_EQ(e, ZELCOORDINATESYSTEM_INVALID) << szText;
        }
    }
}

TEST(CoordinateTriplet, DefaultIsCartesianZeroAndCannotNormalize)
{
    CRecordingHook hook;
    SZelCoordinateTriplet st;
    EXPECT_EQ(st.ecoordinatesystem, ZELCOORDINATESYSTEM_CARTESIAN);
    EXPECT_EQ(st.dCoord1, 0.0);
    EXPECT_EQ(st.dCoord2, 0.0);
    EXPECT_EQ(st.dCoord3, 0.0);
    EXPECT_EQ(st.Norm(), 0.0);
    EXPECT_EQ(hook.Count(), 0u);
    EXPECT_FALSE(st.Normalize());
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse}));
    EXPECT_EQ(st, SZelCoordinateTriplet());
    EXPECT_EQ(st.getSize(), 28u);
    // In memory: the type, 4 filling bytes, the three doubles.
    EXPECT_EQ(sizeof(SZelCoordinateTriplet), 32u);
}

TEST(CoordinateTriplet, ValueConstructorDoesNotCheck)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet st(static_cast<EZelCoordinateSystem>(7), 1.0, 2.0, 3.0);
    EXPECT_EQ(static_cast<int>(st.ecoordinatesystem), 7);
    EXPECT_EQ(st.dCoord1, 1.0);
    EXPECT_EQ(st.dCoord3, 3.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateTriplet, CopyConstructorChecksType)
{
    CRecordingHook hook;
    for (EZelCoordinateSystem e :
         {ZELCOORDINATESYSTEM_CARTESIAN, ZELCOORDINATESYSTEM_GEOGRAPHIC, ZELCOORDINATESYSTEM_LOCGEO})
    {
        const SZelCoordinateTriplet stSource(e, 1.5, -2.5, 3.5);
        const SZelCoordinateTriplet stCopy(stSource);
        EXPECT_EQ(stCopy, stSource);
    }
    EXPECT_EQ(hook.Count(), 0u);

    for (int iType : {-1, 3, 1000})
    {
        const SZelCoordinateTriplet stBad(static_cast<EZelCoordinateSystem>(iType), 1.5, -2.5, 3.5);
        const SZelCoordinateTriplet stCopy(stBad);
        EXPECT_EQ(static_cast<int>(stCopy.ecoordinatesystem), iType);
        EXPECT_EQ(stCopy.dCoord1, 0.0);
        EXPECT_EQ(stCopy.dCoord2, 0.0);
        EXPECT_EQ(stCopy.dCoord3, 0.0);
    }
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse, c_strFalse}));
}

TEST(CoordinateTriplet, AssignmentCopiesAllUnchecked)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet stBad(ZELCOORDINATESYSTEM_INVALID, 1.5, -2.5, 3.5);
    SZelCoordinateTriplet st;
    st = stBad;
    EXPECT_EQ(st.ecoordinatesystem, ZELCOORDINATESYSTEM_INVALID);
    EXPECT_EQ(st.dCoord1, 1.5);
    EXPECT_EQ(st.dCoord2, -2.5);
    EXPECT_EQ(st.dCoord3, 3.5);
    SZelCoordinateTriplet& rSelf = st;
    st = rSelf;
    EXPECT_EQ(st.dCoord3, 3.5);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateTriplet, EqualityExact)
{
    const SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    EXPECT_TRUE(a == SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0));
    EXPECT_FALSE(a != SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0));
    EXPECT_TRUE(a != SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 2.0, 3.0));
    EXPECT_TRUE(a !=
                SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, std::nextafter(1.0, 2.0), 2.0, 3.0));
    EXPECT_TRUE(a != SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0000000001, 3.0));
    EXPECT_TRUE(a != SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, -3.0));
    const SZelCoordinateTriplet stNaN(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, c_dNaN, 3.0);
    EXPECT_FALSE(stNaN == stNaN);
    EXPECT_TRUE(stNaN != stNaN);
    EXPECT_TRUE(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 0.0, 0.0) ==
                SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, -0.0, 0.0, 0.0));
}

TEST(CoordinateTriplet, AddAndSubtractCartesian)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    const SZelCoordinateTriplet b(ZELCOORDINATESYSTEM_CARTESIAN, 0.5, -4.0, 10.0);
    EXPECT_EQ(a + b, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.5, -2.0, 13.0));
    EXPECT_EQ(a - b, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 0.5, 6.0, -7.0));
    EXPECT_EQ(2.0 * a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 2.0, 4.0, 6.0));
    SZelCoordinateTriplet c = a;
    c += b;
    EXPECT_EQ(c, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.5, -2.0, 13.0));
    c -= b;
    EXPECT_EQ(c, a);
    c += c;
    EXPECT_EQ(c, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 2.0, 4.0, 6.0));
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateTriplet, PlusWithGeographicLeftReportsAndReturnsLeft)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.1, 0.2, 30.0);
    const SZelCoordinateTriplet b(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 1.0, 1.0);
    EXPECT_EQ(a + b, a);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse}));
    hook.Clear();
    EXPECT_EQ(b + a, b);
    EXPECT_EQ(b - a, b);
    EXPECT_EQ(a - b, a);
    EXPECT_EQ(a - a, a);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse, c_strFalse, c_strFalse}));
}

TEST(CoordinateTriplet, CompoundOnTwoGeographicReportsAndAdds)
{
    CRecordingHook hook;
    SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.1, 0.2, 30.0);
    const SZelCoordinateTriplet b(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.5, 0.25, 2.0);
    a += b;
    EXPECT_EQ(a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.1 + 0.5, 0.2 + 0.25, 32.0));
    a -= b;
    EXPECT_EQ(a.dCoord3, 30.0);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strCartCheck, c_strCartCheck}));
}

TEST(CoordinateTriplet, CompoundOnMixedTypesReportsAndLeaves)
{
    CRecordingHook hook;
    SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    const SZelCoordinateTriplet b(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.5, 0.25, 2.0);
    a += b;
    EXPECT_EQ(a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0));
    a -= b;
    EXPECT_EQ(a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0));
    SZelCoordinateTriplet g = b;
    g += a;
    EXPECT_EQ(g, b);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strCartCheck, c_strCartCheck, c_strCartCheck}));
    ASSERT_EQ(hook.Count(), 3u);
    EXPECT_NE(hook.Reports()[0].strFile.find("ZelCoordinateTriplet"), std::string::npos);
}

TEST(CoordinateTriplet, ScalarProduct)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, -2.0, 0.5);
    EXPECT_EQ(-1.0 * a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, -1.0, 2.0, -0.5));
    EXPECT_EQ(0.0 * a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, -0.0, 0.0));
    EXPECT_EQ(hook.Count(), 0u);
    const SZelCoordinateTriplet g(ZELCOORDINATESYSTEM_LOCGEO, 1.0, -2.0, 0.5);
    EXPECT_EQ(3.0 * g, g);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse}));
}

TEST(CoordinateTriplet, DotInOrderTwoOneThree)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 1e16, -1e16, 1.0);
    const SZelCoordinateTriplet b(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 1.0, 1.0);
    // (-1e16 + 1e16) + 1 is 1; summed as (1e16 + 1) - 1e16 it would be 0.
    EXPECT_EQ(Dot(a, b), 1.0);
    EXPECT_EQ(Dot(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0),
                  SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4.0, -5.0, 6.0)),
              12.0);
    EXPECT_EQ(hook.Count(), 0u);
    EXPECT_EQ(Dot(a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 1.0, 1.0)), 0.0);
    EXPECT_EQ(Dot(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 1.0, 1.0), a), 0.0);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse}));
}

TEST(CoordinateTriplet, CrossProduct)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet x(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 0.0, 0.0);
    const SZelCoordinateTriplet y(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 1.0, 0.0);
    SZelCoordinateTriplet r(ZELCOORDINATESYSTEM_GEOGRAPHIC, 9.0, 9.0, 9.0);
    Cross(x, y, r);
    EXPECT_EQ(r, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 0.0, 1.0));
    Cross(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0),
          SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4.0, 5.0, 6.0), r);
    EXPECT_EQ(r, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, -3.0, 6.0, -3.0));
    // The result may be an operand.
    SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    Cross(a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4.0, 5.0, 6.0), a);
    EXPECT_EQ(a, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, -3.0, 6.0, -3.0));
    EXPECT_EQ(hook.Count(), 0u);

    const SZelCoordinateTriplet g(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.1, 0.2, 0.3);
    Cross(g, x, r);
    EXPECT_EQ(r, g);
    Cross(x, g, r);
    EXPECT_EQ(r, x);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse}));
}

TEST(CoordinateTriplet, NormAndNormalize)
{
    CRecordingHook hook;
    const SZelCoordinateTriplet a(ZELCOORDINATESYSTEM_CARTESIAN, 3.0, 4.0, 12.0);
    EXPECT_EQ(a.Norm(), 13.0);
    SZelCoordinateTriplet r;
    a.GetNormalized(r);
    EXPECT_NEAR(r.dCoord1, 3.0 / 13.0, 1e-16);
    EXPECT_NEAR(r.dCoord2, 4.0 / 13.0, 1e-16);
    EXPECT_NEAR(r.dCoord3, 12.0 / 13.0, 1e-16);
    EXPECT_NEAR(r.Norm(), 1.0, 1e-15);
    SZelCoordinateTriplet b = a;
    EXPECT_TRUE(b.Normalize());
    EXPECT_EQ(b, r);
    EXPECT_EQ(hook.Count(), 0u);

    // Geographic: no norm, no normalisation.
    const SZelCoordinateTriplet g(ZELCOORDINATESYSTEM_GEOGRAPHIC, 3.0, 4.0, 12.0);
    EXPECT_EQ(g.Norm(), 0.0);
    g.GetNormalized(r);
    EXPECT_EQ(r, g);
    SZelCoordinateTriplet g2 = g;
    EXPECT_FALSE(g2.Normalize());
    EXPECT_EQ(g2, g);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse, c_strFalse}));

    // A length below the smallest normal double.
    hook.Clear();
    const SZelCoordinateTriplet tiny(ZELCOORDINATESYSTEM_CARTESIAN, 1e-200, 0.0, 0.0);
    tiny.GetNormalized(r);
    EXPECT_EQ(r, tiny);
    SZelCoordinateTriplet tiny2 = tiny;
    EXPECT_FALSE(tiny2.Normalize());
    EXPECT_EQ(tiny2, tiny);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse, c_strFalse}));

    // Just above it the scaling still works.
    hook.Clear();
    SZelCoordinateTriplet small(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 1e-150, 0.0);
    EXPECT_TRUE(small.Normalize());
    EXPECT_NEAR(small.dCoord2, 1.0, 1e-15);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateTriplet, Reset)
{
    SZelCoordinateTriplet st(ZELCOORDINATESYSTEM_LOCGEO, 1.0, 2.0, 3.0);
    st.Reset();
    EXPECT_EQ(st, SZelCoordinateTriplet());
}

TEST(CoordinateTriplet, BinaryGolden)
{
    ZelTest::ExpectCoreImage(
        ZelSample::Triplet(), CImage().At(0).I32(1).At(4).F64(0.75).At(12).F64(-1.25).At(20).F64(1234.5),
        ZelTest::SCoreRules(), SZelCoordinateTriplet(ZELCOORDINATESYSTEM_LOCGEO, 1.0, 2.0, 3.0));

    // Any 32-bit type value is read as it stands.
    const ZelTest::Bytes vecOdd = CImage().I32(-7).F64(0.75).F64(-1.25).F64(1234.5);
    SZelCoordinateTriplet stRead;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stRead.loadData(vecOdd.data(), vecOdd.size(), &ulOffset));
    EXPECT_EQ(static_cast<int>(stRead.ecoordinatesystem), -7);
}

TEST(CoordinateTriplet, TextExact)
{
    const SZelCoordinateTriplet st(ZELCOORDINATESYSTEM_CARTESIAN, 1234567.891234567, -0.000123456789012345,
                                   42.0);
    ZelTest::ExpectText(st, "CooTyp, Cart, Coo, 1234567.89123, -0.000123456789012, 42");
    ZelTest::ExpectTextExact(ZelSample::Triplet(), "CooTyp, Geo, Coo, 0.75, -1.25, 1234.5");
    // The precision stays set on the stream.
    std::ostringstream oss;
    oss << st;
    EXPECT_EQ(oss.precision(), 12);

    std::ostringstream oss2;
    oss2 << SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.5, -0.25, 100.0) << "|"
         << SZelCoordinateTriplet(ZELCOORDINATESYSTEM_LOCGEO, 1.0, 2.0, 3.0) << "|"
         << SZelCoordinateTriplet(static_cast<EZelCoordinateSystem>(5), 1.0, 2.0, 3.0);
    EXPECT_EQ(oss2.str(), "CooTyp, Geo, Coo, 0.5, -0.25, 100|CooTyp, LocGeo, Coo, 1, 2, 3|"
                          "CooTyp, Invalid, Coo, 1, 2, 3");
}

TEST(CoordinateTriplet, TextReadBack)
{
    const SZelCoordinateTriplet st(ZELCOORDINATESYSTEM_LOCGEO, 0.123456789012, -3.5, 98765.4321);
    std::stringstream ss;
    ss << st;
    SZelCoordinateTriplet stRead;
    ss >> stRead;
    EXPECT_FALSE(ss.fail());
    EXPECT_EQ(stRead, st);

    // Other tag words read the same.
    std::istringstream iss("Foo, Geo, Bar, 1.5, 2.5, 3.5");
    iss >> stRead;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(stRead, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.5, 2.5, 3.5));

    // An unknown word gives the invalid type, and reading goes on.
    std::istringstream iss2("CooTyp, Polar, Coo, 4, 5, 6");
    iss2 >> stRead;
    EXPECT_FALSE(iss2.fail());
    EXPECT_EQ(stRead.ecoordinatesystem, ZELCOORDINATESYSTEM_INVALID);
    EXPECT_EQ(stRead.dCoord1, 4.0);
    EXPECT_EQ(stRead.dCoord3, 6.0);

    // Twelve digits are what the text keeps.
    const SZelCoordinateTriplet stFine(ZELCOORDINATESYSTEM_CARTESIAN, 4517590.87881234, 1.0 / 3.0,
                                       -2.0 / 3.0);
    std::stringstream ss2;
    ss2 << stFine;
    ss2 >> stRead;
    EXPECT_NE(stRead, stFine);
    EXPECT_EQ(stRead.dCoord1, 4517590.87881);
    EXPECT_EQ(stRead.dCoord2, 0.333333333333);
    EXPECT_EQ(stRead.dCoord3, -0.666666666667);
}

TEST(CoordinateTriplet, TextCutKeepsLaterFields)
{
    SZelCoordinateTriplet st(ZELCOORDINATESYSTEM_CARTESIAN, 7.0, 8.0, 9.0);
    std::istringstream iss("CooTyp, Geo, Coo, 1.5");
    iss >> st;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(st.ecoordinatesystem, ZELCOORDINATESYSTEM_GEOGRAPHIC);
    EXPECT_EQ(st.dCoord1, 1.5);
    EXPECT_EQ(st.dCoord2, 8.0);
    EXPECT_EQ(st.dCoord3, 9.0);

    // A bad number fails the stream at that place.
    SZelCoordinateTriplet st2(ZELCOORDINATESYSTEM_CARTESIAN, 7.0, 8.0, 9.0);
    std::istringstream iss2("CooTyp, Cart, Coo, 1, x, 3");
    iss2 >> st2;
    EXPECT_TRUE(iss2.fail());
    EXPECT_EQ(st2.dCoord1, 1.0);
    EXPECT_EQ(st2.dCoord3, 9.0);
}

// ===================================================================== coordinate set

TEST(CoordinateSet, DefaultAndLayout)
{
    const SZelCoordinateSet st;
    EXPECT_EQ(st.ucAvl, 0);
    EXPECT_EQ(st.stCart, SZelCoordinateTriplet());
    EXPECT_EQ(st.stGeo, SZelCoordinateTriplet());
    for (double d : st.adTrafo)
    {
        EXPECT_EQ(d, 0.0);
    }
    EXPECT_EQ(st.getSize(), 121u);
    EXPECT_TRUE(std::has_virtual_destructor<SZelCoordinateSet>::value);
    EXPECT_TRUE(std::is_polymorphic<SZelCoordinateSet>::value);
    EXPECT_EQ(c_ucCOORDSET_AVL_CART, 1);
    EXPECT_EQ(c_ucCOORDSET_AVL_GEO, 2);
    EXPECT_EQ(c_ucCOORDSET_AVL_TRAFO, 4);
}

TEST(CoordinateSet, Clear)
{
    SZelCoordinateSet st;
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4000000.0, 3000000.0, 3500000.0));
    const SZelCoordinateSet stFull = st;
    st.Clear(false);
    EXPECT_EQ(st.ucAvl, 0);
    EXPECT_EQ(st.stCart, stFull.stCart);
    EXPECT_EQ(st.stGeo, stFull.stGeo);
    EXPECT_EQ(st.adTrafo[3], stFull.adTrafo[3]);
    st.Clear(true);
    EXPECT_EQ(st, SZelCoordinateSet());
    st = stFull;
    st.Clear();
    EXPECT_EQ(st, SZelCoordinateSet());
}

TEST(CoordinateSet, SetCartesianWithoutConversion)
{
    CRecordingHook hook;
    SZelCoordinateSet st;
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.1, 0.2, 3.0));
    const SZelCoordinateTriplet stPos(ZELCOORDINATESYSTEM_CARTESIAN, 4000000.0, 3000000.0, 3500000.0);
    st.Set(stPos, true);
    EXPECT_EQ(st.ucAvl, 1);
    EXPECT_EQ(st.stCart, stPos);
    EXPECT_EQ(st.stGeo, SZelCoordinateTriplet());
    for (double d : st.adTrafo)
    {
        EXPECT_EQ(d, 0.0);
    }
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateSet, SetCartesianConverts)
{
    CRecordingHook hook;
    SZelCoordinateSet st;
    const SZelCoordinateTriplet stPos(ZELCOORDINATESYSTEM_CARTESIAN, 4000000.0, 3000000.0, 3500000.0);
    st.Set(stPos);
    EXPECT_EQ(st.ucAvl, 7);
    EXPECT_EQ(st.stCart, stPos);
    double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
    double adRot[8];
    ConvCartesianToGeographic(4000000.0, 3000000.0, 3500000.0, dLat, dLon, dHeight, adRot);
    EXPECT_EQ(st.stGeo, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, dLat, dLon, dHeight));
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(st.adTrafo[i], adRot[i]);
    }
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateSet, SetPolarAxisLeavesGeographicAtZero)
{
    CRecordingHook hook;
    SZelCoordinateSet st;
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4000000.0, 3000000.0, 3500000.0));
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 0.0, 6356752.3142));
    EXPECT_EQ(st.ucAvl, 7);
    EXPECT_EQ(st.stGeo.dCoord1, 0.0);
    EXPECT_EQ(st.stGeo.dCoord2, 0.0);
    EXPECT_EQ(st.stGeo.dCoord3, 0.0);
    EXPECT_EQ(st.stGeo.ecoordinatesystem, ZELCOORDINATESYSTEM_GEOGRAPHIC);
    for (double d : st.adTrafo)
    {
        EXPECT_EQ(d, 0.0);
    }
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateSet, SetGeographic)
{
    CRecordingHook hook;
    SZelCoordinateSet st;
    const SZelCoordinateTriplet stGeo(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.8, -1.2, 250.0);
    st.Set(stGeo, true);
    EXPECT_EQ(st.ucAvl, 2);
    EXPECT_EQ(st.stGeo, stGeo);
    EXPECT_EQ(st.stCart, SZelCoordinateTriplet());
    st.Set(stGeo);
    EXPECT_EQ(st.ucAvl, 7);
    EXPECT_EQ(st.stGeo, stGeo);
    double dX = 0.0, dY = 0.0, dZ = 0.0;
    double adRot[8];
    ConvGeographicToCartesian(0.8, -1.2, 250.0, dX, dY, dZ, adRot);
    EXPECT_EQ(st.stCart, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, dX, dY, dZ));
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(st.adTrafo[i], adRot[i]);
    }
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateSet, SetLocGeoReportsAndStillSevenAvailable)
{
    CRecordingHook hook;
    SZelCoordinateSet st;
    const SZelCoordinateTriplet stLoc(ZELCOORDINATESYSTEM_LOCGEO, 0.8, -1.2, 250.0);
    st.Set(stLoc);
    EXPECT_EQ(hook.Texts(), std::vector<std::string>({c_strFalse}));
    EXPECT_EQ(st.ucAvl, 7);
    EXPECT_EQ(st.stGeo, stLoc);
    EXPECT_EQ(st.stCart, SZelCoordinateTriplet());
    EXPECT_EQ(st.adTrafo[2], 0.0);

    hook.Clear();
    st.Set(stLoc, true);
    EXPECT_EQ(st.ucAvl, 2);
    // An unknown type goes the geographic way, unchecked when it is held.
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_INVALID, 1.0, 2.0, 3.0), true);
    EXPECT_EQ(st.ucAvl, 2);
    EXPECT_EQ(st.stGeo.dCoord2, 2.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(CoordinateSet, SetFromOwnTriplet)
{
    SZelCoordinateSet st;
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.8, -1.2, 250.0));
    const SZelCoordinateSet stBefore = st;
    st.Set(st.stCart);
    EXPECT_EQ(st.ucAvl, 7);
    EXPECT_EQ(st.stCart, stBefore.stCart);
    EXPECT_NEAR(st.stGeo.dCoord1, 0.8, 1e-12);
    EXPECT_NEAR(st.stGeo.dCoord3, 250.0, 1e-6);
    st.Set(st.stGeo, true);
    EXPECT_EQ(st.ucAvl, 2);
    EXPECT_NEAR(st.stGeo.dCoord1, 0.8, 1e-12);
}

namespace
{

// Set and Clear are virtual: a derived class sees Set call its Clear.
class CCountingSet : public SZelCoordinateSet
{
public:
    int iClears = 0;
    void Clear(bool bAll = true) override
    {
        ++iClears;
        SZelCoordinateSet::Clear(bAll);
    }
};

} // namespace

TEST(CoordinateSet, VirtualOperations)
{
    CCountingSet stDerived;
    SZelCoordinateSet& rBase = stDerived;
    rBase.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0), true);
    EXPECT_EQ(stDerived.iClears, 1);
    rBase.Clear(true);
    EXPECT_EQ(stDerived.iClears, 2);
}

TEST(CoordinateSet, Equality)
{
    SZelCoordinateSet a;
    a.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4000000.0, 3000000.0, 3500000.0));
    SZelCoordinateSet b = a;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    b.adTrafo[5] = std::nextafter(b.adTrafo[5], 2.0);
    EXPECT_TRUE(a != b);
    b = a;
    b.adTrafo[0] = c_dNaN;
    EXPECT_FALSE(b == b);
    b = a;
    b.ucAvl = 3;
    EXPECT_TRUE(a != b);
    b = a;
    b.stCart.dCoord2 += 1.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stGeo.ecoordinatesystem = ZELCOORDINATESYSTEM_LOCGEO;
    EXPECT_TRUE(a != b);
}

TEST(CoordinateSet, BinaryGolden)
{
    // ucAvl, then the triplets (type and three values), then the rotation.
    CImage stImage;
    stImage.At(0).U8(5);
    stImage.At(1).I32(0).F64(1.5).F64(-2.5).F64(3.5);
    stImage.At(29).I32(2).F64(0.25).F64(0.125).F64(-10.0);
    stImage.At(57).F64(-1.0).F64(-0.5).F64(0.0).F64(0.5).F64(1.0).F64(1.5).F64(2.0).F64(2.5);
    const ZelTest::Bytes vecExpected = stImage.Get();
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(ZelSample::CoordinateSet(), vecExpected, stRules);

    // A larger buffer: the image is the first 121 bytes.
    std::vector<unsigned char> vecLarge(200, 0xEE);
    uint64_t ulOffset = 99;
    ASSERT_TRUE(ZelSample::CoordinateSet().saveData(vecLarge.data(), vecLarge.size(), &ulOffset));
    EXPECT_EQ(ulOffset, 121u);
    EXPECT_EQ(std::vector<unsigned char>(vecLarge.begin(), vecLarge.begin() + 121), vecExpected);
    EXPECT_EQ(vecLarge[121], 0xEE);
}

TEST(CoordinateSet, TextExact)
{
    SZelCoordinateSet st;
    st.ucAvl = 7;
    st.stCart = SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    st.stGeo = SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.5, 0.25, 100.0);
    const double adTrafo[8] = {1.0, -0.5, 0.0, 0.125, 1e-10, -3.0, 0.75, 2.5};
    std::copy(adTrafo, adTrafo + 8, st.adTrafo);
    ZelTest::ExpectTextExact(
        st, "Avl, 7, Cart, CooTyp, Cart, Coo, 1, 2, 3, Geo, CooTyp, Geo, Coo, 0.5, 0.25, 100, Trafo, "
            "1.00000000000000000e+00, -5.00000000000000000e-01, 0.00000000000000000e+00, "
            "1.25000000000000000e-01, 1.00000000000000004e-10, -3.00000000000000000e+00, "
            "7.50000000000000000e-01, 2.50000000000000000e+00");
    // Format and precision stay on the stream.
    std::ostringstream oss;
    oss << st;
    EXPECT_EQ(oss.precision(), 17);
    EXPECT_EQ(oss.flags() & std::ios_base::floatfield, std::ios_base::scientific);
}

TEST(CoordinateSet, SecondWriteKeepsWhatTheFirstLeft)
{
    SZelCoordinateSet st;
    st.stCart = SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 1.0, 2.0, 3.0);
    std::ostringstream oss;
    oss << st << "|";
    const size_t ulFirst = oss.str().size();
    oss << st;
    // The triplets of the second record come out in the scientific form the
    // first one left, at their own 12 digits.
    EXPECT_EQ(oss.str().substr(ulFirst, 71),
              "Avl, 0, Cart, CooTyp, Cart, Coo, 1.000000000000e+00, 2.000000000000e+00");
}

TEST(CoordinateSet, TextReadBack)
{
    CRecordingHook hook;
    SZelCoordinateSet st;
    st.Set(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.8123456789012345, -1.2345678901234567,
                                 250.123456789));
    std::stringstream ss;
    ss << st;
    SZelCoordinateSet stRead;
    ss >> stRead;
    EXPECT_FALSE(ss.fail());
    EXPECT_EQ(stRead.ucAvl, 7);
    // 17 digits after the point in scientific form: the rotation comes back exact.
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(stRead.adTrafo[i], st.adTrafo[i]) << i;
    }
    // The triplets keep 12 significant digits.
    EXPECT_EQ(stRead.stGeo.ecoordinatesystem, ZELCOORDINATESYSTEM_GEOGRAPHIC);
    EXPECT_EQ(stRead.stCart.ecoordinatesystem, ZELCOORDINATESYSTEM_CARTESIAN);
    EXPECT_EQ(stRead.stGeo.dCoord1, 0.812345678901);
    EXPECT_EQ(stRead.stGeo.dCoord2, -1.23456789012);
    EXPECT_EQ(stRead.stGeo.dCoord3, 250.123456789);
    EXPECT_NEAR(stRead.stCart.dCoord1, st.stCart.dCoord1, std::fabs(st.stCart.dCoord1) * 5e-12);
    EXPECT_NEAR(stRead.stCart.dCoord2, st.stCart.dCoord2, std::fabs(st.stCart.dCoord2) * 5e-12);
    EXPECT_NEAR(stRead.stCart.dCoord3, st.stCart.dCoord3, std::fabs(st.stCart.dCoord3) * 5e-12);
    EXPECT_EQ(hook.Count(), 0u);

    // Tags changed: the same values.
    std::istringstream iss(
        "A, 3, B, X, LocGeo, Y, 1, 2, 3, C, X, Cart, Y, 4, 5, 6, D, 1, 2, 3, 4, 5, 6, 7, 8");
    iss >> stRead;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(stRead.ucAvl, 3);
    EXPECT_EQ(stRead.stCart, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_LOCGEO, 1.0, 2.0, 3.0));
    EXPECT_EQ(stRead.stGeo, SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, 4.0, 5.0, 6.0));
    EXPECT_EQ(stRead.adTrafo[0], 1.0);
    EXPECT_EQ(stRead.adTrafo[7], 8.0);

    // ucAvl goes through 32 bits and is narrowed.
    std::istringstream iss2(
        "Avl, 263, Cart, CooTyp, Cart, Coo, 1, 2, 3, Geo, CooTyp, Geo, Coo, 4, 5, 6, Trafo, "
        "1, 2, 3, 4, 5, 6, 7, 8");
    iss2 >> stRead;
    EXPECT_FALSE(iss2.fail());
    EXPECT_EQ(stRead.ucAvl, 7);
}

TEST(CoordinateSet, TextCutKeepsLaterFields)
{
    SZelCoordinateSet st;
    st.adTrafo[6] = 66.0;
    st.adTrafo[7] = 77.0;
    st.stGeo.dCoord3 = 9.0;
    std::istringstream iss("Avl, 3, Cart, CooTyp, Cart, Coo, 1, 2, 3, Geo, CooTyp, Geo, Coo, 4, 5, 6, Trafo, "
                           "1, 2, 3, 4, 5, 6");
    iss >> st;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(st.adTrafo[5], 6.0);
    EXPECT_EQ(st.adTrafo[6], 66.0);
    EXPECT_EQ(st.adTrafo[7], 77.0);
    std::istringstream iss2("Avl, 3, Cart, CooTyp, Cart, Coo, 1, 2");
    SZelCoordinateSet st2;
    st2.stGeo.dCoord1 = 42.0;
    iss2 >> st2;
    EXPECT_TRUE(iss2.fail());
    EXPECT_EQ(st2.ucAvl, 3);
    EXPECT_EQ(st2.stCart.dCoord2, 2.0);
    EXPECT_EQ(st2.stGeo.dCoord1, 42.0);
}

// ===================================================================== azimuth and elevation

namespace
{

struct SSite
{
    SZelCoordinateTriplet stCart;
    double adRot[8];
};

SSite MakeSite(double dLat, double dLon, double dHeight)
{
    SSite st;
    ConvGeographicToCartesian(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, dLat, dLon, dHeight),
                              st.stCart, st.adRot);
    return st;
}

// Independent local frame: unit vectors from the angles.
void EnuOf(double dLat, double dLon, const double* adD, double& rdE, double& rdN, double& rdU)
{
    const double e[3] = {-std::sin(dLon), std::cos(dLon), 0.0};
    const double n[3] = {-std::sin(dLat) * std::cos(dLon), -std::sin(dLat) * std::sin(dLon), std::cos(dLat)};
    const double u[3] = {std::cos(dLat) * std::cos(dLon), std::cos(dLat) * std::sin(dLon), std::sin(dLat)};
    rdE = e[0] * adD[0] + e[1] * adD[1] + e[2] * adD[2];
    rdN = n[0] * adD[0] + n[1] * adD[1] + n[2] * adD[2];
    rdU = u[0] * adD[0] + u[1] * adD[1] + u[2] * adD[2];
}

} // namespace

TEST(AzimuthElevation, ZeroDistance)
{
    CRecordingHook hook;
    const SSite stSite = MakeSite(0.6, 0.3, 120.0);
    const double adTarget[3] = {stSite.stCart.dCoord1, stSite.stCart.dCoord2, stSite.stCart.dCoord3};
    double dEl = 9.0, dAz = 9.0, dRange = 9.0;
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adTarget, dEl, dAz, dRange);
    EXPECT_EQ(dEl, 1.5707963267948966);
    EXPECT_EQ(dRange, 0.0);
    EXPECT_EQ(dAz, 0.0);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(AzimuthElevation, CardinalDirections)
{
    const SSite stSite = MakeSite(0.0, 0.0, 0.0);
    double dEl = 0.0, dAz = 0.0, dRange = 0.0;
    const double a = 6378137.0;
    const double adNorth[3] = {a, 0.0, 1000.0};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adNorth, dEl, dAz, dRange);
    EXPECT_EQ(dAz, 0.0);
    EXPECT_NEAR(dEl, 0.0, 1e-15);
    EXPECT_EQ(dRange, 1000.0);
    const double adEast[3] = {a, 1000.0, 0.0};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adEast, dEl, dAz, dRange);
    EXPECT_NEAR(dAz, c_dPi / 2.0, 1e-15);
    const double adSouth[3] = {a, 0.0, -1000.0};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adSouth, dEl, dAz, dRange);
    EXPECT_NEAR(dAz, c_dPi, 1e-15);
    // West: atan2 gives -pi/2, which is carried into 0 to 2 pi.
    const double adWest[3] = {a, -1000.0, 0.0};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adWest, dEl, dAz, dRange);
    EXPECT_NEAR(dAz, 1.5 * c_dPi, 1e-15);
    const double adUp[3] = {a + 500.0, 0.0, 0.0};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adUp, dEl, dAz, dRange);
    EXPECT_EQ(dEl, 1.5707963267948966);
    EXPECT_EQ(dRange, 500.0);
    const double adDown[3] = {a - 500.0, 0.0, 0.0};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adDown, dEl, dAz, dRange);
    EXPECT_NEAR(dEl, -c_dPi / 2.0, 1e-15);
    // 45 degrees up towards the north-east.
    const double adNE[3] = {a + 1000.0, 1000.0 / std::sqrt(2.0), 1000.0 / std::sqrt(2.0)};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adNE, dEl, dAz, dRange);
    EXPECT_NEAR(dAz, c_dPi / 4.0, 1e-15);
    EXPECT_NEAR(dEl, c_dPi / 4.0, 1e-15);
    EXPECT_NEAR(dRange, 1000.0 * std::sqrt(2.0), 1e-9);
}

TEST(AzimuthElevation, AgainstIndependentFrame)
{
    const double dLat = -0.7, dLon = 2.4;
    const SSite stSite = MakeSite(dLat, dLon, 350.0);
    const double adSat[3] = {-12000000.0, 15000000.0, -18000000.0};
    double dEl = 0.0, dAz = 0.0, dRange = 0.0;
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adSat, dEl, dAz, dRange);
    const double adD[3] = {adSat[0] - stSite.stCart.dCoord1, adSat[1] - stSite.stCart.dCoord2,
                           adSat[2] - stSite.stCart.dCoord3};
    double dE = 0.0, dN = 0.0, dU = 0.0;
    EnuOf(dLat, dLon, adD, dE, dN, dU);
    const double dRangeRef = std::sqrt(adD[0] * adD[0] + adD[1] * adD[1] + adD[2] * adD[2]);
    double dAzRef = std::atan2(dE, dN);
    if (dAzRef < 0.0)
    {
        dAzRef += 2.0 * c_dPi;
    }
    EXPECT_NEAR(dRange, dRangeRef, 1e-6);
    EXPECT_NEAR(dAz, dAzRef, 1e-12);
    EXPECT_NEAR(dEl, std::asin(dU / dRangeRef), 1e-12);
}

TEST(AzimuthElevation, RateAgainstFiniteDifference)
{
    CRecordingHook hook;
    const SSite stSite = MakeSite(0.83, 0.19, 400.0);
    const double adPos0[3] = {15000000.0, 5000000.0, 20000000.0};
    const double adVel[3] = {-1500.0, 2800.0, 600.0};
    auto makeSat = [&](double dT)
    {
        SZelSatPosVel st;
        double dRange = 0.0, dDotDV = 0.0;
        for (int i = 0; i < 3; ++i)
        {
            st.adPos[i] = adPos0[i] + adVel[i] * dT;
            st.adVel[i] = adVel[i];
            const double d =
                st.adPos[i] -
                (i == 0 ? stSite.stCart.dCoord1 : (i == 1 ? stSite.stCart.dCoord2 : stSite.stCart.dCoord3));
            dRange += d * d;
            dDotDV += d * adVel[i];
        }
        st.dRange = std::sqrt(dRange);
        st.dRangeRate = dDotDV / st.dRange;
        return st;
    };
    const SZelSatPosVel stSat = makeSat(0.0);
    double dEl = 0.0, dElRate = 0.0, dAz = 0.0, dRange = 0.0;
    ComputeAzimuthElevationRate(stSite.stCart, stSite.adRot, stSat, dEl, dElRate, dAz, dRange);
    EXPECT_EQ(dRange, stSat.dRange);

    const double adTarget[3] = {stSat.adPos[0], stSat.adPos[1], stSat.adPos[2]};
    double dEl2 = 0.0, dAz2 = 0.0, dRange2 = 0.0;
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adTarget, dEl2, dAz2, dRange2);
    EXPECT_NEAR(dEl, dEl2, 1e-12);
    EXPECT_EQ(dAz, dAz2);

    const double dStep = 0.5;
    double dElP = 0.0, dElM = 0.0, dDummy = 0.0;
    const SZelSatPosVel stP = makeSat(dStep), stM = makeSat(-dStep);
    const double adP[3] = {stP.adPos[0], stP.adPos[1], stP.adPos[2]};
    const double adM[3] = {stM.adPos[0], stM.adPos[1], stM.adPos[2]};
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adP, dElP, dDummy, dDummy);
    ComputeAzimuthElevation(stSite.stCart, stSite.adRot, adM, dElM, dDummy, dDummy);
    const double dRateRef = (dElP - dElM) / (2.0 * dStep);
    EXPECT_GT(std::fabs(dRateRef), 1e-5);
    EXPECT_NEAR(dElRate, dRateRef, std::fabs(dRateRef) * 1e-6);
    EXPECT_EQ(hook.Count(), 0u);
}

TEST(AzimuthElevation, RateUsesTheRecordsRange)
{
    const SSite stSite = MakeSite(0.0, 0.0, 0.0);
    SZelSatPosVel stSat;
    stSat.adPos[0] = 6378137.0 + 1000.0; // 1000 m up and 1000 m north
    stSat.adPos[2] = 1000.0;
    stSat.dRange = 2000.0; // but the record says 2000 m
    stSat.dRangeRate = 0.0;
    stSat.adVel[0] = 10.0; // 10 m/s upwards
    double dEl = 0.0, dElRate = 0.0, dAz = 0.0, dRange = 0.0;
    ComputeAzimuthElevationRate(stSite.stCart, stSite.adRot, stSat, dEl, dElRate, dAz, dRange);
    EXPECT_EQ(dRange, 2000.0);
    // u = 1000, r = 2000: zenith acos(0.5), elevation 30 degrees.
    EXPECT_NEAR(dEl, c_dPi / 6.0, 1e-15);
    EXPECT_NEAR(dAz, 0.0, 1e-15);
    // (10 - 0) / 2000 / sqrt(1 - 0.25).
    EXPECT_NEAR(dElRate, 10.0 / 2000.0 / std::sqrt(0.75), 1e-15);
}

TEST(AzimuthElevation, GeostationarySatellite)
{
    CRecordingHook hook;
    double dEl = 0.0, dAz = 0.0;
    // Under the satellite: straight up.
    ComputeGeoSatAzimuthElevation(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.0, 0.0, 0.0), 0.0,
                                  dEl, dAz);
    EXPECT_NEAR(dEl, c_dPi / 2.0, 1e-12);

    // 45 degrees north on its meridian: due south.
    const double dLat = 45.0 * c_dDeg, dLonSite = 10.0 * c_dDeg;
    ComputeGeoSatAzimuthElevation(
        SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, dLat, dLonSite, 300.0), 10.0, dEl, dAz);
    EXPECT_NEAR(dAz, c_dPi, 1e-12);

    // Against a frame built independently, with the satellite 35786035.9 m
    // above the equator at 19.2 degrees east.
    const double dSatLon = 19.2 * c_dDeg;
    const double adSat[3] = {(c_dA + 35786035.9) * std::cos(dSatLon), (c_dA + 35786035.9) * std::sin(dSatLon),
                             0.0};
    double dX = 0.0, dY = 0.0, dZ = 0.0;
    ConvGeographicToCartesian(dLat, dLonSite, 300.0, dX, dY, dZ, nullptr);
    const double adD[3] = {adSat[0] - dX, adSat[1] - dY, adSat[2] - dZ};
    double dE = 0.0, dN = 0.0, dU = 0.0;
    EnuOf(dLat, dLonSite, adD, dE, dN, dU);
    ComputeGeoSatAzimuthElevation(
        SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, dLat, dLonSite, 300.0), 19.2, dEl, dAz);
    EXPECT_NEAR(dEl, std::atan2(dU, std::sqrt(dE * dE + dN * dN)), 1e-9);
    EXPECT_NEAR(dAz, std::atan2(dE, dN), 1e-9);
    EXPECT_GT(dAz, c_dPi / 2.0);
    EXPECT_LT(dAz, c_dPi);
    // Roughly 38 degrees of elevation at 45 north.
    EXPECT_NEAR(dEl / c_dDeg, 37.4, 1.0);

    // The site's type takes no part: its values are taken as geographic.
    double dEl2 = 0.0, dAz2 = 0.0;
    ComputeGeoSatAzimuthElevation(SZelCoordinateTriplet(ZELCOORDINATESYSTEM_CARTESIAN, dLat, dLonSite, 300.0),
                                  19.2, dEl2, dAz2);
    EXPECT_EQ(dEl2, dEl);
    EXPECT_EQ(dAz2, dAz);
    EXPECT_EQ(hook.Count(), 0u);
}

// ===================================================================== satellite position record

TEST(SatPosVel, DefaultAndEquality)
{
    SZelSatPosVel st;
    EXPECT_EQ(st.getSize(), 64u);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(st.adPos[i], 0.0);
        EXPECT_EQ(st.adVel[i], 0.0);
    }
    EXPECT_EQ(st.dRange, 0.0);
    EXPECT_EQ(st.dRangeRate, 0.0);

    st = ZelSample::SatPosVel();
    EXPECT_NE(st, SZelSatPosVel());
    SZelSatPosVel stNaN = st;
    stNaN.dRangeRate = c_dNaN;
    EXPECT_NE(stNaN, stNaN);
}

TEST(SatPosVel, BinaryGoldenAndText)
{
    CImage stImage;
    stImage.At(0).F64(1.5).F64(-2.5).F64(3.5);
    stImage.At(24).F64(0.25).F64(-0.125).F64(8.0);
    stImage.At(48).F64(21000000.5).At(56).F64(-512.25);
    ZelTest::ExpectCoreImage(ZelSample::SatPosVel(), stImage);
    ZelTest::ExpectTextExact(ZelSample::SatPosVel(),
                             "Pos, 1.5, -2.5, 3.5, Vel, 0.25, -0.125, 8, Rng, 21000000.5, RngRate, -512.25");
}

// ===================================================================== SZelVector3d

TEST(Vector3d, DefaultAndEquality)
{
    const SZelVector3d st;
    EXPECT_EQ(st.dX, 0.0);
    EXPECT_EQ(st.dY, 0.0);
    EXPECT_EQ(st.dZ, 0.0);
    EXPECT_EQ(st.getSize(), 24u);
    // Relative tolerance 1e-14.
    EXPECT_EQ(SZelVector3d(1.0, 2.0, 3.0), SZelVector3d(1.0 + 5e-15, 2.0, 3.0));
    EXPECT_NE(SZelVector3d(1.0, 2.0, 3.0), SZelVector3d(1.0 + 5e-14, 2.0, 3.0));
    EXPECT_EQ(SZelVector3d(1e6, 2.0, 3.0), SZelVector3d(1e6 + 9e-9, 2.0, 3.0));
    EXPECT_NE(SZelVector3d(1e6, 2.0, 3.0), SZelVector3d(1e6 + 2e-8, 2.0, 3.0));
    EXPECT_NE(SZelVector3d(0.0, 0.0, 0.0), SZelVector3d(0.0, 0.0, 1e-300));
    EXPECT_EQ(SZelVector3d(0.0, 0.0, 0.0), SZelVector3d(-0.0, 0.0, 0.0));
    EXPECT_NE(SZelVector3d(1.0, 2.0, 3.0), SZelVector3d(1.0, 2.0, -3.0));
    const double dInf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(SZelVector3d(dInf, 0.0, 0.0), SZelVector3d(dInf, 0.0, 0.0));
    const SZelVector3d stNaN(c_dNaN, 0.0, 0.0);
    EXPECT_NE(stNaN, stNaN);
    EXPECT_FALSE(stNaN == stNaN);
}

TEST(Vector3d, BinaryGolden)
{
    const ZelTest::Bytes vecExpected = CImage().At(0).F64(-1.5).At(8).F64(2.25).At(16).F64(1e10).Get();
    ZelTest::ExpectCoreImage(ZelSample::Vector3d(), vecExpected, ZelTest::SCoreRules(),
                             SZelVector3d(7.0, 8.0, 9.0));
    // Equality is tolerant: the values read are checked exactly.
    SZelVector3d stRead;
    uint64_t ulOffset = 99;
    ASSERT_TRUE(stRead.loadData(vecExpected.data(), 24, &ulOffset));
    EXPECT_EQ(stRead.dX, -1.5);
    EXPECT_EQ(stRead.dY, 2.25);
    EXPECT_EQ(stRead.dZ, 1e10);
}

TEST(Vector3d, Text)
{
    ZelTest::ExpectText(SZelVector3d(1.5, -2.0, c_dPi), "1.5, -2, 3.14159265359");
    ZelTest::ExpectTextExact(ZelSample::Vector3dLine(), "1.5, -2, 3.25");
    std::ostringstream oss;
    oss << SZelVector3d(1.5, -2.0, c_dPi);
    EXPECT_EQ(oss.precision(), 12);
    std::istringstream iss("4517590.87881, -0.25, 1e-07");
    SZelVector3d st;
    iss >> st;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(st.dX, 4517590.87881);
    EXPECT_EQ(st.dY, -0.25);
    EXPECT_EQ(st.dZ, 1e-07);
    // Cut: the rest stays.
    SZelVector3d st2(7.0, 8.0, 9.0);
    std::istringstream iss2("1, 2");
    iss2 >> st2;
    EXPECT_TRUE(iss2.fail());
    EXPECT_EQ(st2.dY, 2.0);
    EXPECT_EQ(st2.dZ, 9.0);
}

// ===================================================================== SZelMasterCoordinate

TEST(MasterCoordinate, DefaultAndEquality)
{
    const SZelMasterCoordinate st;
    EXPECT_EQ(st.eCooSys, ZELCOORDINATESYSTEM_CARTESIAN);
    EXPECT_EQ(st.usStnId, 0);
    EXPECT_EQ(st.usReserved, 0);
    EXPECT_EQ(st.stMstCoo, SZelVector3d());
    EXPECT_EQ(st.getSize(), 32u);

    SZelMasterCoordinate a;
    a.eCooSys = ZELCOORDINATESYSTEM_GEOGRAPHIC;
    a.usStnId = 17;
    a.stMstCoo = SZelVector3d(0.5, 0.25, 100.0);
    SZelMasterCoordinate b = a;
    b.usReserved = 0xABCD; // no part in the comparison
    EXPECT_TRUE(a == b);
    b.stMstCoo.dZ = 100.0 * (1.0 + 1e-15); // within the vector's tolerance
    EXPECT_TRUE(a == b);
    b.stMstCoo.dZ = 100.001;
    EXPECT_TRUE(a != b);
    b = a;
    b.eCooSys = ZELCOORDINATESYSTEM_LOCGEO;
    EXPECT_TRUE(a != b);
    b = a;
    b.usStnId = 18;
    EXPECT_TRUE(a != b);
}

TEST(MasterCoordinate, BinaryGolden)
{
    CImage stImage;
    stImage.At(0).I32(2).At(4).U16(0x1234).At(6).U16(0xBEEF);
    stImage.At(8).F64(-0.5).F64(1.75).F64(321.0);
    const ZelTest::Bytes vecExpected = stImage.Get();
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(ZelSample::MasterCoordinate(), vecExpected, stRules);
    // The reserved bytes take no part in equality: they are read as they stand.
    SZelMasterCoordinate stRead;
    uint64_t ulOffset = 99;
    ASSERT_TRUE(stRead.loadData(vecExpected.data(), 32, &ulOffset));
    EXPECT_EQ(stRead.usReserved, 0xBEEF);
}

TEST(MasterCoordinate, Text)
{
    const SZelMasterCoordinate st = ZelSample::MasterCoordinateLine();
    ZelTest::ExpectTextExact(st, ", CooSys, Geo, StnId, 4095, MstCoo, 0.5, 0.25, 100");
    std::ostringstream oss;
    oss << "Prev, 1" << st;
    EXPECT_EQ(oss.str(), "Prev, 1, CooSys, Geo, StnId, 4095, MstCoo, 0.5, 0.25, 100");

    // Read behind another record's last value.
    std::istringstream iss(oss.str());
    std::string strTag;
    int iPrev = 0;
    iss >> strTag >> iPrev;
    SZelMasterCoordinate stRead;
    iss >> stRead;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(iPrev, 1);
    EXPECT_EQ(stRead, st);

    // Other tags, an unknown word, and the station through 32 bits.
    std::istringstream iss2(", A, Sphere, B, 70000, C, 1, 2, 3");
    iss2 >> stRead;
    EXPECT_FALSE(iss2.fail());
    EXPECT_EQ(stRead.eCooSys, ZELCOORDINATESYSTEM_INVALID);
    EXPECT_EQ(stRead.usStnId, 70000 - 65536);
    EXPECT_EQ(stRead.stMstCoo, SZelVector3d(1.0, 2.0, 3.0));

    std::ostringstream oss2;
    oss2 << stRead;
    EXPECT_EQ(oss2.str(), ", CooSys, Invalid, StnId, 4464, MstCoo, 1, 2, 3");

    // Cut after the station: the coordinate keeps its values.
    SZelMasterCoordinate stCut;
    stCut.stMstCoo = SZelVector3d(7.0, 8.0, 9.0);
    std::istringstream iss3(", CooSys, Cart, StnId, 12");
    iss3 >> stCut;
    EXPECT_TRUE(iss3.fail());
    EXPECT_EQ(stCut.usStnId, 12);
    EXPECT_EQ(stCut.stMstCoo, SZelVector3d(7.0, 8.0, 9.0));
}

// ===================================================================== SZelHorizontalOffset

TEST(HorizontalOffset, DefaultAndEquality)
{
    const SZelHorizontalOffset st;
    EXPECT_EQ(st.fHrzOffsE, 0.0f);
    EXPECT_EQ(st.fHrzOffsN, 0.0f);
    EXPECT_EQ(st.getSize(), 8u);
    EXPECT_EQ(SZelHorizontalOffset(1.0f, 2.0f), SZelHorizontalOffset(std::nextafter(1.0f, 2.0f), 2.0f));
    EXPECT_EQ(SZelHorizontalOffset(1.0f, 2.0f), SZelHorizontalOffset(1.0000009f, 2.0f));
    EXPECT_NE(SZelHorizontalOffset(1.0f, 2.0f), SZelHorizontalOffset(1.000002f, 2.0f));
    EXPECT_NE(SZelHorizontalOffset(1.0f, 2.0f), SZelHorizontalOffset(1.0f, 2.00001f));
    EXPECT_NE(SZelHorizontalOffset(0.0f, 0.0f), SZelHorizontalOffset(0.0f, 1e-30f));
    const float fNaN = std::numeric_limits<float>::quiet_NaN();
    EXPECT_NE(SZelHorizontalOffset(fNaN, 0.0f), SZelHorizontalOffset(fNaN, 0.0f));
}

TEST(HorizontalOffset, BinaryGolden)
{
    const ZelTest::Bytes vecExpected = CImage().At(0).F32(0.125f).At(4).F32(-2.5f).Get();
    ZelTest::ExpectCoreImage(ZelSample::HorizontalOffset(), vecExpected, ZelTest::SCoreRules(),
                             SZelHorizontalOffset(1.0f, 1.0f));
    // Equality is tolerant: the values read are checked exactly.
    SZelHorizontalOffset stRead;
    uint64_t ulOffset = 99;
    ASSERT_TRUE(stRead.loadData(vecExpected.data(), 8, &ulOffset));
    EXPECT_EQ(stRead.fHrzOffsE, 0.125f);
    EXPECT_EQ(stRead.fHrzOffsN, -2.5f);
}

TEST(HorizontalOffset, Text)
{
    ZelTest::ExpectTextExact(ZelSample::HorizontalOffsetLine(), "HrzOffsE, 0.25, HrzOffsN, -1.5");
    std::istringstream iss("E, 0.0125, N, 3");
    SZelHorizontalOffset st;
    iss >> st;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(st.fHrzOffsE, 0.0125f);
    EXPECT_EQ(st.fHrzOffsN, 3.0f);
    SZelHorizontalOffset st2(7.0f, 8.0f);
    std::istringstream iss2("HrzOffsE, 1.5, HrzOffsN,");
    iss2 >> st2;
    EXPECT_TRUE(iss2.fail());
    EXPECT_EQ(st2.fHrzOffsE, 1.5f);
    EXPECT_EQ(st2.fHrzOffsN, 8.0f);
}

// ===================================================================== bad input

TEST(CoordinateRecords, BinaryReadersSurviveTruncatedInput)
{
    CRecordingHook hook;
    std::vector<unsigned char> vecNoise(200);
    for (size_t i = 0; i < vecNoise.size(); ++i)
    {
        vecNoise[i] = static_cast<unsigned char>(i * 37 + 11);
    }
    size_t ulFailures = 0;
    for (uint64_t ulLength = 0; ulLength <= vecNoise.size(); ++ulLength)
    {
        uint64_t ulOffset = 0;
        SZelCoordinateTriplet stTriplet;
        SZelCoordinateSet stSet;
        SZelVector3d stVector;
        SZelMasterCoordinate stMaster;
        SZelHorizontalOffset stOffset;
        SZelSatPosVel stSat;
        ulFailures += stTriplet.loadData(vecNoise.data(), ulLength, &ulOffset) ? 0 : 1;
        EXPECT_LE(ulOffset, ulLength);
        ulFailures += stSet.loadData(vecNoise.data(), ulLength, &ulOffset) ? 0 : 1;
        ulFailures += stVector.loadData(vecNoise.data(), ulLength, &ulOffset) ? 0 : 1;
        ulFailures += stMaster.loadData(vecNoise.data(), ulLength, &ulOffset) ? 0 : 1;
        ulFailures += stOffset.loadData(vecNoise.data(), ulLength, &ulOffset) ? 0 : 1;
        ulFailures += stSat.loadData(vecNoise.data(), ulLength, &ulOffset) ? 0 : 1;
    }
    // Lengths 0..27, 0..120, 0..23, 0..31, 0..7, 0..63 fail.
    EXPECT_EQ(ulFailures, 28u + 121u + 24u + 32u + 8u + 64u);
    EXPECT_EQ(hook.Count(), ulFailures);
}

TEST(CoordinateRecords, TextReadersSurviveGarbage)
{
    const char* aszInputs[] = {"",
                               ",",
                               "CooTyp,",
                               "Avl, 999999999999999999999",
                               "x y z w v u t s r q p o n m",
                               ", , , , , , , , , , , , , , , , , , , , , , , , , , , , , , , , ,",
                               "Avl, 1, Cart, CooTyp, Cart, Coo, nan, inf, -inf"};
    for (const char* sz : aszInputs)
    {
        SZelCoordinateTriplet stTriplet;
        SZelCoordinateSet stSet;
        SZelVector3d stVector;
        SZelMasterCoordinate stMaster;
        SZelHorizontalOffset stOffset;
        SZelSatPosVel stSat;
        std::istringstream iss1(sz), iss2(sz), iss3(sz), iss4(sz), iss5(sz), iss6(sz);
        iss1 >> stTriplet;
        iss2 >> stSet;
        iss3 >> stVector;
        iss4 >> stMaster;
        iss5 >> stOffset;
        iss6 >> stSat;
        EXPECT_TRUE(iss2.fail()) << sz;
        std::ostringstream oss;
        oss << stTriplet << stSet << stVector << stMaster << stOffset << stSat;
        EXPECT_FALSE(oss.str().empty());
    }
}
