// The geographic and cartesian conversions against their closed forms
// written out here in the stated order of evaluation, over a dense grid of
// latitudes, longitudes and heights from -1 km to beyond the geostationary
// orbit, the rotation included. The bound is 0 units in the last place: the
// conversions keep every rounding of the formula, so a faster form that
// changes a last bit anywhere shows here.
#include "ZelTestHooks.h"

#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

constexpr double c_dDeg = 3.141592653589793 / 180.0;
constexpr int64_t c_lMaxUlp = 0;

// Distance of two doubles in units in the last place, on the ordered
// integer line of their bit patterns; NaN against anything is far.
int64_t UlpDistance(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
    {
        return (std::isnan(a) && std::isnan(b)) ? 0 : INT64_MAX;
    }
    int64_t la = 0, lb = 0;
    std::memcpy(&la, &a, sizeof(double));
    std::memcpy(&lb, &b, sizeof(double));
    la = la < 0 ? INT64_MIN - la : la;
    lb = lb < 0 ? INT64_MIN - lb : lb;
    const int64_t lDiff = la > lb ? la - lb : lb - la;
    return lDiff < 0 ? INT64_MAX : lDiff;
}

void LiteralRotation(double sl, double cl, double so, double co, double* pd)
{
    pd[0] = -sl * co;
    pd[1] = -sl * so;
    pd[2] = cl;
    pd[3] = -so;
    pd[4] = co;
    pd[5] = cl * co;
    pd[6] = cl * so;
    pd[7] = sl;
}

// Cartesian to geographic, after Bowring from the parametric latitude.
bool LiteralToGeographic(double x, double y, double z, double& rLat, double& rLon, double& rH, double* pdRot)
{
    const double p = std::sqrt(x * x + y * y);
    if (!(p > 0.0))
    {
        return false;
    }
    const double u = std::atan2(z * 6378137.0, p * 6356752.3142);
    const double su = std::sin(u);
    const double cu = std::cos(u);
    rLat = std::atan2(z + 42841.31151296818 * (su * su * su), p - 42697.67270710779 * (cu * cu * cu));
    rLon = std::atan2(y, x);
    const double sl = std::sin(rLat);
    const double w = 1.0 - 0.00669437999013 * (sl * sl);
    const double cl = std::cos(rLat);
    rH = p / cl - 6378137.0 / std::sqrt(w);
    LiteralRotation(sl, cl, std::sin(rLon), std::cos(rLon), pdRot);
    return true;
}

void LiteralToCartesian(double lat, double lon, double h, double& rX, double& rY, double& rZ, double* pdRot)
{
    const double sl = std::sin(lat);
    const double cl = std::cos(lat);
    const double so = std::sin(lon);
    const double co = std::cos(lon);
    const double w = 1.0 - sl * 0.00669437999013 * sl;
    const double n = 6378137.0 / std::sqrt(w);
    rX = (n + h) * cl * co;
    rY = (n + h) * cl * so;
    rZ = (n * 0.99330562000987 + h) * sl;
    LiteralRotation(sl, cl, so, co, pdRot);
}

std::vector<double> Latitudes()
{
    std::vector<double> vec;
    for (int i = -3600; i <= 3600; i += 7)
    {
        vec.push_back(i * 0.025);
    }
    for (double d : {-90.0, -89.9999, -89.99, 0.0, 1e-9, -1e-9, 89.99, 89.9999, 90.0})
    {
        vec.push_back(d);
    }
    return vec;
}

std::vector<double> Longitudes()
{
    std::vector<double> vec;
    for (int i = -180; i <= 180; i += 11)
    {
        vec.push_back(i + 0.3);
    }
    for (double d : {-180.0, -90.0, 0.0, 90.0, 180.0})
    {
        vec.push_back(d);
    }
    return vec;
}

const double c_adHeights[] = {-1000.0, -1.0,    0.0,      0.001, 1.0,    500.0,
                              8848.0,  20000.0, 100000.0, 1e6,   2.02e7, 3.6e7};

} // namespace

TEST(GeodeticExact, ForwardKeepsEveryRounding)
{
    int64_t lWorst = 0;
    size_t ulPoints = 0;
    for (double dLatDeg : Latitudes())
    {
        for (double dLonDeg : Longitudes())
        {
            for (double dH : c_adHeights)
            {
                const double dLat = dLatDeg * c_dDeg, dLon = dLonDeg * c_dDeg;
                double x = 0.0, y = 0.0, z = 0.0, adRot[8] = {};
                LiteralToCartesian(dLat, dLon, dH, x, y, z, adRot);
                double dX = 0.0, dY = 0.0, dZ = 0.0, adOurs[8] = {};
                ConvGeographicToCartesian(dLat, dLon, dH, dX, dY, dZ, adOurs);
                int64_t lUlp = std::max({UlpDistance(dX, x), UlpDistance(dY, y), UlpDistance(dZ, z)});
                for (int i = 0; i < 8; ++i)
                {
                    lUlp = std::max(lUlp, UlpDistance(adOurs[i], adRot[i]));
                }
                EXPECT_LE(lUlp, c_lMaxUlp) << dLatDeg << " " << dLonDeg << " " << dH;
                lWorst = std::max(lWorst, lUlp);
                ++ulPoints;
            }
        }
    }
    EXPECT_GT(ulPoints, 100000u);
    RecordProperty("WorstUlp", std::to_string(lWorst));
}

TEST(GeodeticExact, ReverseKeepsEveryRounding)
{
    ZelTest::CRecordingHook Hook;
    int64_t lWorst = 0;
    size_t ulPoints = 0;
    auto check = [&](double x, double y, double z)
    {
        double dLat = 0.0, dLon = 0.0, dH = 0.0, adRot[8] = {};
        if (!LiteralToGeographic(x, y, z, dLat, dLon, dH, adRot))
        {
            return;
        }
        double dLat2 = 0.0, dLon2 = 0.0, dH2 = 0.0, adOurs[8] = {};
        ConvCartesianToGeographic(x, y, z, dLat2, dLon2, dH2, adOurs);
        int64_t lUlp = std::max({UlpDistance(dLat2, dLat), UlpDistance(dLon2, dLon), UlpDistance(dH2, dH)});
        for (int i = 0; i < 8; ++i)
        {
            lUlp = std::max(lUlp, UlpDistance(adOurs[i], adRot[i]));
        }
        EXPECT_LE(lUlp, c_lMaxUlp) << x << " " << y << " " << z;
        lWorst = std::max(lWorst, lUlp);
        ++ulPoints;
    };
    for (double dLatDeg : Latitudes())
    {
        for (double dLonDeg : Longitudes())
        {
            for (double dH : c_adHeights)
            {
                double x = 0.0, y = 0.0, z = 0.0, adRot[8] = {};
                LiteralToCartesian(dLatDeg * c_dDeg, dLonDeg * c_dDeg, dH, x, y, z, adRot);
                check(x, y, z);
                // The same point rounded to a millimetre: off the ellipsoid's own grid.
                check(std::round(x * 1000.0) / 1000.0, std::round(y * 1000.0) / 1000.0,
                      std::round(z * 1000.0) / 1000.0);
            }
        }
    }
    // Close to the polar axis and to the centre.
    for (double p : {1e-6, 1e-3, 1.0, 1000.0})
    {
        for (double z : {-6356752.3142, -1.0, 0.0, 1.0, 6356752.3142, 7e6})
        {
            check(p, 0.0, z);
            check(-p, p, z);
        }
    }
    EXPECT_GT(ulPoints, 200000u);
    EXPECT_EQ(Hook.Count(), 0u);
    RecordProperty("WorstUlp", std::to_string(lWorst));
}
