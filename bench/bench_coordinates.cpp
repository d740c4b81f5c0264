// Cost of one geographic/cartesian conversion, and, where GeographicLib is
// at hand, the same conversions of its exact geocentric class side by side,
// with the largest position difference between the two over a grid.
#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>
#include <ZelTypes/Core/Common/ZelCoordinateSet.h>

#include "ZelSamplesCoordinates.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#if defined(ZELTYPES_HAVE_GEOGRAPHICLIB)
#include <GeographicLib/Geocentric.hpp>
#endif

namespace
{

constexpr double c_dDegToRad = 3.141592653589793 / 180.0;

struct SGeoPoint
{
    double dLat; // radians
    double dLon;
    double dHeight;
};

struct SCartPoint
{
    double dX;
    double dY;
    double dZ;
};

// Latitudes -89.9 to 89.9, longitudes all round, heights -1000 m to 100 km.
const std::vector<SGeoPoint>& GridGeo()
{
    static const std::vector<SGeoPoint> s_vec = []
    {
        std::vector<SGeoPoint> vec;
        const double adHeights[] = {-1000.0, 0.0, 500.0, 8848.0, 20000.0, 50000.0, 100000.0};
        for (double dLatDeg = -89.9; dLatDeg <= 89.9; dLatDeg += 2.9)
        {
            for (double dLonDeg = -180.0; dLonDeg < 180.0; dLonDeg += 7.3)
            {
                for (double dH : adHeights)
                {
                    vec.push_back({dLatDeg * c_dDegToRad, dLonDeg * c_dDegToRad, dH});
                }
            }
        }
        return vec;
    }();
    return s_vec;
}

const std::vector<SCartPoint>& GridCart()
{
    static const std::vector<SCartPoint> s_vec = []
    {
        std::vector<SCartPoint> vec;
        for (const SGeoPoint& rPt : GridGeo())
        {
            SCartPoint stPt{};
            ZELN::ConvGeographicToCartesian(rPt.dLat, rPt.dLon, rPt.dHeight, stPt.dX, stPt.dY, stPt.dZ,
                                            nullptr);
            vec.push_back(stPt);
        }
        return vec;
    }();
    return s_vec;
}

void BM_CoordCartesianToGeographic(benchmark::State& state)
{
    const std::vector<SCartPoint>& vec = GridCart();
    size_t ulIdx = 0;
    for (auto _ : state)
    {
        const SCartPoint& rPt = vec[ulIdx];
        double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
        ZELN::ConvCartesianToGeographic(rPt.dX, rPt.dY, rPt.dZ, dLat, dLon, dHeight, nullptr);
        benchmark::DoNotOptimize(dLat);
        benchmark::DoNotOptimize(dLon);
        benchmark::DoNotOptimize(dHeight);
        ulIdx = ulIdx + 1 == vec.size() ? 0 : ulIdx + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CoordCartesianToGeographic);

void BM_CoordCartesianToGeographicWithRotation(benchmark::State& state)
{
    const std::vector<SCartPoint>& vec = GridCart();
    size_t ulIdx = 0;
    double adRot[8] = {};
    for (auto _ : state)
    {
        const SCartPoint& rPt = vec[ulIdx];
        double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
        ZELN::ConvCartesianToGeographic(rPt.dX, rPt.dY, rPt.dZ, dLat, dLon, dHeight, adRot);
        benchmark::DoNotOptimize(dLat);
        benchmark::DoNotOptimize(dHeight);
        benchmark::DoNotOptimize(adRot);
        ulIdx = ulIdx + 1 == vec.size() ? 0 : ulIdx + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CoordCartesianToGeographicWithRotation);

void BM_CoordGeographicToCartesian(benchmark::State& state)
{
    const std::vector<SGeoPoint>& vec = GridGeo();
    size_t ulIdx = 0;
    for (auto _ : state)
    {
        const SGeoPoint& rPt = vec[ulIdx];
        double dX = 0.0, dY = 0.0, dZ = 0.0;
        ZELN::ConvGeographicToCartesian(rPt.dLat, rPt.dLon, rPt.dHeight, dX, dY, dZ, nullptr);
        benchmark::DoNotOptimize(dX);
        benchmark::DoNotOptimize(dY);
        benchmark::DoNotOptimize(dZ);
        ulIdx = ulIdx + 1 == vec.size() ? 0 : ulIdx + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CoordGeographicToCartesian);

// A coordinate set from a cartesian position: the conversion with its rotation.
void BM_CoordinateSetFromCartesian(benchmark::State& state)
{
    const ZELN::SZelCoordinateTriplet stPos = ZelSample::CartesianTriplet();
    ZELN::SZelCoordinateSet stSet;
    for (auto _ : state)
    {
        stSet.Set(stPos);
        benchmark::DoNotOptimize(stSet.adTrafo);
    }
}
BENCHMARK(BM_CoordinateSetFromCartesian);

// The 121-byte image of a coordinate set, written and read back.
void BM_CoordinateSetImage(benchmark::State& state)
{
    const ZELN::SZelCoordinateSet stSet = ZelSample::CoordinateSet();
    unsigned char aucImage[121] = {};
    ZELN::SZelCoordinateSet stRead;
    for (auto _ : state)
    {
        uint64_t ulOffset = 0;
        stSet.saveData(aucImage, sizeof(aucImage), &ulOffset);
        stRead.loadData(aucImage, sizeof(aucImage), &ulOffset);
        benchmark::DoNotOptimize(stRead.adTrafo);
    }
}
BENCHMARK(BM_CoordinateSetImage);

#if defined(ZELTYPES_HAVE_GEOGRAPHICLIB)

// GeographicLib works in degrees; the inputs are converted once, outside the
// timed loop, so that both sides do the same work per call.
const std::vector<SGeoPoint>& GridGeoDegrees()
{
    static const std::vector<SGeoPoint> s_vec = []
    {
        std::vector<SGeoPoint> vec;
        for (const SGeoPoint& rPt : GridGeo())
        {
            vec.push_back({rPt.dLat / c_dDegToRad, rPt.dLon / c_dDegToRad, rPt.dHeight});
        }
        return vec;
    }();
    return s_vec;
}

void BM_CoordGeographicLibReverse(benchmark::State& state)
{
    const GeographicLib::Geocentric& rEarth = GeographicLib::Geocentric::WGS84();
    const std::vector<SCartPoint>& vec = GridCart();
    size_t ulIdx = 0;
    for (auto _ : state)
    {
        const SCartPoint& rPt = vec[ulIdx];
        double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
        rEarth.Reverse(rPt.dX, rPt.dY, rPt.dZ, dLat, dLon, dHeight);
        benchmark::DoNotOptimize(dLat);
        benchmark::DoNotOptimize(dLon);
        benchmark::DoNotOptimize(dHeight);
        ulIdx = ulIdx + 1 == vec.size() ? 0 : ulIdx + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CoordGeographicLibReverse);

void BM_CoordGeographicLibForward(benchmark::State& state)
{
    const GeographicLib::Geocentric& rEarth = GeographicLib::Geocentric::WGS84();
    const std::vector<SGeoPoint>& vec = GridGeoDegrees();
    size_t ulIdx = 0;
    for (auto _ : state)
    {
        const SGeoPoint& rPt = vec[ulIdx];
        double dX = 0.0, dY = 0.0, dZ = 0.0;
        rEarth.Forward(rPt.dLat, rPt.dLon, rPt.dHeight, dX, dY, dZ);
        benchmark::DoNotOptimize(dX);
        benchmark::DoNotOptimize(dY);
        benchmark::DoNotOptimize(dZ);
        ulIdx = ulIdx + 1 == vec.size() ? 0 : ulIdx + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CoordGeographicLibForward);

// Largest position difference over the grid, in metres. Reverse: both
// geographic results are taken back to cartesian by GeographicLib's exact
// forward conversion and compared as points. Forward: the two cartesian
// results compared directly.
void BM_CoordDifferenceToGeographicLib(benchmark::State& state)
{
    const GeographicLib::Geocentric& rEarth = GeographicLib::Geocentric::WGS84();
    double dMaxReverse = 0.0, dMaxForward = 0.0, dMaxHeight = 0.0;
    for (auto _ : state)
    {
        dMaxReverse = 0.0;
        dMaxForward = 0.0;
        dMaxHeight = 0.0;
        const std::vector<SCartPoint>& vecCart = GridCart();
        const std::vector<SGeoPoint>& vecGeo = GridGeoDegrees();
        for (size_t ulIdx = 0; ulIdx < vecCart.size(); ++ulIdx)
        {
            const SCartPoint& rPt = vecCart[ulIdx];
            double dLat = 0.0, dLon = 0.0, dHeight = 0.0;
            ZELN::ConvCartesianToGeographic(rPt.dX, rPt.dY, rPt.dZ, dLat, dLon, dHeight, nullptr);
            double dLatRef = 0.0, dLonRef = 0.0, dHeightRef = 0.0;
            rEarth.Reverse(rPt.dX, rPt.dY, rPt.dZ, dLatRef, dLonRef, dHeightRef);
            double dX1 = 0.0, dY1 = 0.0, dZ1 = 0.0, dX2 = 0.0, dY2 = 0.0, dZ2 = 0.0;
            rEarth.Forward(dLat / c_dDegToRad, dLon / c_dDegToRad, dHeight, dX1, dY1, dZ1);
            rEarth.Forward(dLatRef, dLonRef, dHeightRef, dX2, dY2, dZ2);
            dMaxReverse = std::max(dMaxReverse, std::hypot(dX1 - dX2, dY1 - dY2, dZ1 - dZ2));
            dMaxHeight = std::max(dMaxHeight, std::fabs(dHeight - dHeightRef));

            const SGeoPoint& rGeo = vecGeo[ulIdx];
            const SGeoPoint& rGeoRad = GridGeo()[ulIdx];
            double dX = 0.0, dY = 0.0, dZ = 0.0;
            ZELN::ConvGeographicToCartesian(rGeoRad.dLat, rGeoRad.dLon, rGeoRad.dHeight, dX, dY, dZ, nullptr);
            rEarth.Forward(rGeo.dLat, rGeo.dLon, rGeo.dHeight, dX2, dY2, dZ2);
            dMaxForward = std::max(dMaxForward, std::hypot(dX - dX2, dY - dY2, dZ - dZ2));
        }
        benchmark::DoNotOptimize(dMaxReverse);
    }
    state.counters["points"] = static_cast<double>(GridCart().size());
    state.counters["max_reverse_diff_m"] = dMaxReverse;
    state.counters["max_reverse_height_diff_m"] = dMaxHeight;
    state.counters["max_forward_diff_m"] = dMaxForward;
}
BENCHMARK(BM_CoordDifferenceToGeographicLib)->Iterations(1)->Unit(benchmark::kMillisecond);

#endif

} // namespace
