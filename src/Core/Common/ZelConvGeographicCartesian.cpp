#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>

#include <cmath>

namespace ZELN
{

namespace
{

void FillRotation(double dSinLat, double dCosLat, double dSinLon, double dCosLon, double* pdRotation)
{
    pdRotation[0] = -dSinLat * dCosLon;
    pdRotation[1] = -dSinLat * dSinLon;
    pdRotation[2] = dCosLat;
    pdRotation[3] = -dSinLon;
    pdRotation[4] = dCosLon;
    pdRotation[5] = dCosLat * dCosLon;
    pdRotation[6] = dCosLat * dSinLon;
    pdRotation[7] = dSinLat;
}

} // namespace

// Bowring's formula started from the parametric latitude, one step, no
// iteration. Height by p / cos(lat) everywhere, the poles included.
void ConvCartesianToGeographic(double dX, double dY, double dZ, double& rdLat, double& rdLon,
                               double& rdHeight, double* pdRotation)
{
    const double dP = std::sqrt(dX * dX + dY * dY);
    if (!(dP > 0.0))
    {
        return;
    }
    const double dU = std::atan2(dZ * c_dWGS84_SEMI_MAJOR_AXIS, dP * c_dWGS84_SEMI_MINOR_AXIS);
    const double dSinU = std::sin(dU);
    const double dCosU = std::cos(dU);
    rdLat = std::atan2(dZ + c_dWGS84_BOWRING_NUMERATOR * (dSinU * dSinU * dSinU),
                       dP - c_dWGS84_BOWRING_DENOMINATOR * (dCosU * dCosU * dCosU));
    rdLon = std::atan2(dY, dX);
    const double dSinLat = std::sin(rdLat);
    const double dW = 1.0 - c_dWGS84_ECC_SQUARED * (dSinLat * dSinLat);
    if (!(dW > 0.0))
    {
        ZEL_ASSERT(false);
        return;
    }
    const double dCosLat = std::cos(rdLat);
    rdHeight = dP / dCosLat - c_dWGS84_SEMI_MAJOR_AXIS / std::sqrt(dW);
    if (pdRotation != nullptr)
    {
        FillRotation(dSinLat, dCosLat, std::sin(rdLon), std::cos(rdLon), pdRotation);
    }
}

void ConvGeographicToCartesian(double dLat, double dLon, double dHeight, double& rdX, double& rdY,
                               double& rdZ, double* pdRotation)
{
    const double dSinLat = std::sin(dLat);
    const double dCosLat = std::cos(dLat);
    // The radius of curvature before the longitude: its square root can run
    // while the sine and cosine of the longitude are computed.
    const double dW = 1.0 - dSinLat * c_dWGS84_ECC_SQUARED * dSinLat;
    const double dN = c_dWGS84_SEMI_MAJOR_AXIS / std::sqrt(dW);
    const double dSinLon = std::sin(dLon);
    const double dCosLon = std::cos(dLon);
    rdX = (dN + dHeight) * dCosLat * dCosLon;
    rdY = (dN + dHeight) * dCosLat * dSinLon;
    rdZ = (dN * c_dWGS84_ONE_MINUS_ECC_SQUARED + dHeight) * dSinLat;
    if (pdRotation != nullptr)
    {
        FillRotation(dSinLat, dCosLat, dSinLon, dCosLon, pdRotation);
    }
}

void ConvCartesianToGeographic(const SZelCoordinateTriplet& rCart, SZelCoordinateTriplet& rGeo,
                               double* pdRotation)
{
    if (rCart.ecoordinatesystem != ZELCOORDINATESYSTEM_CARTESIAN)
    {
        ZEL_ASSERT(false);
        return;
    }
    // Inputs by value, so rCart and rGeo may be the same triplet.
    ConvCartesianToGeographic(rCart.dCoord1, rCart.dCoord2, rCart.dCoord3, rGeo.dCoord1, rGeo.dCoord2,
                              rGeo.dCoord3, pdRotation);
    rGeo.ecoordinatesystem = ZELCOORDINATESYSTEM_GEOGRAPHIC;
}

void ConvGeographicToCartesian(const SZelCoordinateTriplet& rGeo, SZelCoordinateTriplet& rCart,
                               double* pdRotation)
{
    if (rGeo.ecoordinatesystem != ZELCOORDINATESYSTEM_GEOGRAPHIC)
    {
        ZEL_ASSERT(false);
        return;
    }
    ConvGeographicToCartesian(rGeo.dCoord1, rGeo.dCoord2, rGeo.dCoord3, rCart.dCoord1, rCart.dCoord2,
                              rCart.dCoord3, pdRotation);
    rCart.ecoordinatesystem = ZELCOORDINATESYSTEM_CARTESIAN;
}

} // namespace ZELN
