#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>
#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <vector>

namespace
{

// Whatever was read must write back to the same bytes, and its text must
// be writable.
template <class R> bool LoadAndRewrite(R& rRecord, const uint8_t* pData, size_t ulSize)
{
    uint64_t ulOffset = 0;
    if (!rRecord.loadData(pData, ulSize, &ulOffset))
    {
        return false;
    }
    if (ulOffset != rRecord.getSize())
    {
        __builtin_trap();
    }
    std::vector<unsigned char> vecOut(static_cast<size_t>(rRecord.getSize()));
    if (!rRecord.saveData(vecOut.data(), vecOut.size(), &ulOffset) ||
        std::memcmp(vecOut.data(), pData, vecOut.size()) != 0)
    {
        __builtin_trap();
    }
    std::ostringstream oss;
    oss << rRecord;
    return true;
}

// The arithmetic and conversions on arbitrary values: reports and NaNs are
// fine, undefined behaviour is not.
void Exercise(const ZELN::SZelCoordinateTriplet& rTriplet)
{
    using namespace ZELN;
    const SZelCoordinateTriplet stCopy(rTriplet);
    SZelCoordinateTriplet stWork;
    stWork = rTriplet;
    stWork += stCopy;
    stWork -= rTriplet;
    SZelCoordinateTriplet stResult = rTriplet + stCopy;
    stResult = rTriplet - stWork;
    stResult = 2.5 * rTriplet;
    (void)Dot(rTriplet, stWork);
    Cross(rTriplet, stWork, stResult);
    (void)rTriplet.Norm();
    rTriplet.GetNormalized(stResult);
    (void)stWork.Normalize();
    double adRot[8] = {};
    SZelCoordinateTriplet stOther;
    ConvCartesianToGeographic(rTriplet, stOther, adRot);
    ConvGeographicToCartesian(rTriplet, stOther, adRot);
    SZelCoordinateSet stSet;
    stSet.Set(rTriplet);
    stSet.Set(rTriplet, true);
    const double adTarget[3] = {rTriplet.dCoord3, rTriplet.dCoord1, rTriplet.dCoord2};
    double dEl = 0.0, dAz = 0.0, dRange = 0.0, dRate = 0.0;
    ComputeAzimuthElevation(stSet.stCart, stSet.adTrafo, adTarget, dEl, dAz, dRange);
    ComputeGeoSatAzimuthElevation(rTriplet, rTriplet.dCoord2, dEl, dAz);
    SZelSatPosVel stSat;
    stSat.adPos[0] = rTriplet.dCoord1;
    stSat.adVel[1] = rTriplet.dCoord2;
    stSat.dRange = rTriplet.dCoord3;
    stSat.dRangeRate = rTriplet.dCoord1;
    ComputeAzimuthElevationRate(stSet.stCart, stSet.adTrafo, stSat, dEl, dRate, dAz, dRange);
}

} // namespace

// First byte, modulo 6, picks the record: 0 triplet, 1 coordinate set, 2 vector,
// 3 master coordinate, 4 horizontal offset, 5 satellite position.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t ulSize)
{
    if (ulSize == 0)
    {
        return 0;
    }
    const uint8_t* pImage = pData + 1;
    const size_t ulImage = ulSize - 1;
    switch (pData[0] % 6)
    {
    case 0:
    {
        ZELN::SZelCoordinateTriplet st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            Exercise(st);
        }
        break;
    }
    case 1:
    {
        ZELN::SZelCoordinateSet st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            ZELN::SZelCoordinateSet stCopy(st);
            (void)(stCopy == st);
            stCopy.Set(st.stGeo);
            Exercise(st.stCart);
        }
        break;
    }
    case 2:
    {
        ZELN::SZelVector3d st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == ZELN::SZelVector3d(st.dZ, st.dY, st.dX));
        }
        break;
    }
    case 3:
    {
        ZELN::SZelMasterCoordinate st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == ZELN::SZelMasterCoordinate());
        }
        break;
    }
    case 4:
    {
        ZELN::SZelHorizontalOffset st;
        if (LoadAndRewrite(st, pImage, ulImage))
        {
            (void)(st == ZELN::SZelHorizontalOffset(st.fHrzOffsN, st.fHrzOffsE));
        }
        break;
    }
    default:
    {
        ZELN::SZelSatPosVel st;
        LoadAndRewrite(st, pImage, ulImage);
        break;
    }
    }
    return 0;
}
