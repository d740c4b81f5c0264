#include <ZelTypes/Util/ZelCoordUtil.h>

#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>

#include <cmath>
#include <limits>

namespace ZELN
{

bool ConvCartesianToGeographicDeg(double dX, double dY, double dZ, double& rdLatDeg, double& rdLonDeg,
                                  double& rdHeight, double* pdRotation)
{
    if (!std::isfinite(dX) || !std::isfinite(dY) || !std::isfinite(dZ))
    {
        return false;
    }
    // The conversion leaves its outputs as they were where it has no result
    // (and the height alone in its one reported case): outputs that start as
    // NaN tell whether it took place.
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    double dLat = dNaN;
    double dLon = dNaN;
    double dHeight = dNaN;
    double adRotation[c_ulNB_ROTATION_VALUES];
    for (double& rdValue : adRotation)
    {
        rdValue = dNaN;
    }
    ConvCartesianToGeographic(dX, dY, dZ, dLat, dLon, dHeight, adRotation);
    if (std::isnan(dLat) || std::isnan(dLon) || std::isnan(dHeight) || std::isnan(adRotation[0]))
    {
        return false;
    }
    rdLatDeg = RadToDeg(dLat);
    rdLonDeg = RadToDeg(dLon);
    rdHeight = dHeight;
    if (pdRotation != nullptr)
    {
        for (size_t ulIdx = 0; ulIdx < c_ulNB_ROTATION_VALUES; ++ulIdx)
        {
            pdRotation[ulIdx] = adRotation[ulIdx];
        }
    }
    return true;
}

bool ConvGeographicToCartesianDeg(double dLatDeg, double dLonDeg, double dHeight, double& rdX, double& rdY,
                                  double& rdZ, double* pdRotation)
{
    if (!std::isfinite(dLatDeg) || !std::isfinite(dLonDeg) || !std::isfinite(dHeight) || dLatDeg < -90.0 ||
        dLatDeg > 90.0)
    {
        return false;
    }
    ConvGeographicToCartesian(DegToRad(dLatDeg), DegToRad(dLonDeg), dHeight, rdX, rdY, rdZ, pdRotation);
    return true;
}

} // namespace ZELN
