#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelConvGeographicCartesian.h>
#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cmath>

namespace ZELN
{

namespace
{

constexpr double c_dTWO_PI = 6.283185307179586;
constexpr double c_dPI = 3.141592653589793;
constexpr double c_dHALF_PI = 1.5707963267948966;
constexpr double c_dDEG_PER_RAD = 57.29577951308232;
constexpr double c_dGEO_SAT_HEIGHT = 35786035.9; // above the ellipsoid, in metres

// Local north, east and up of the difference d.
void ToNorthEastUp(const double* adD, const double* adRotation, double& rdN, double& rdE, double& rdU)
{
    rdN = adD[0] * adRotation[0] + adD[1] * adRotation[1] + adD[2] * adRotation[2];
    rdE = adD[0] * adRotation[3] + adD[1] * adRotation[4];
    rdU = adD[0] * adRotation[5] + adD[1] * adRotation[6] + adD[2] * adRotation[7];
}

double Azimuth(double dE, double dN)
{
    double dAzimuth = std::atan2(dE, dN);
    if (dAzimuth < 0.0)
    {
        dAzimuth += c_dTWO_PI;
    }
    return dAzimuth;
}

double Elevation(double dU, double dRange)
{
    double dZenith = dRange > 0.0 ? std::acos(dU / dRange) : 0.0;
    if (dZenith < 0.0)
    {
        dZenith += c_dPI;
    }
    return c_dHALF_PI - dZenith;
}

} // namespace

// ------------------------------------------------------------------ SZelCoordinateSet

SZelCoordinateSet::~SZelCoordinateSet() = default;

void SZelCoordinateSet::Set(const SZelCoordinateTriplet& rCoord, bool bNoConversion)
{
    // rCoord may be one of this set's own triplets, which Clear resets. Taken
    // by assignment, which copies a triplet of any type unchecked.
    SZelCoordinateTriplet stCoord;
    stCoord = rCoord;
    Clear(true);
    if (stCoord.ecoordinatesystem == ZELCOORDINATESYSTEM_CARTESIAN)
    {
        stCart = stCoord;
        ucAvl = c_ucCOORDSET_AVL_CART;
        if (!bNoConversion)
        {
            ConvCartesianToGeographic(stCart, stGeo, adTrafo);
            ucAvl |= c_ucCOORDSET_AVL_GEO | c_ucCOORDSET_AVL_TRAFO;
        }
    }
    else
    {
        stGeo = stCoord;
        ucAvl = c_ucCOORDSET_AVL_GEO;
        if (!bNoConversion)
        {
            ConvGeographicToCartesian(stGeo, stCart, adTrafo);
            ucAvl |= c_ucCOORDSET_AVL_CART | c_ucCOORDSET_AVL_TRAFO;
        }
    }
}

// With bAll the set is the default one. The assignment is the base's, so a
// derived set keeps its own members.
void SZelCoordinateSet::Clear(bool bAll)
{
    if (bAll)
    {
        *this = SZelCoordinateSet();
        return;
    }
    ucAvl = 0;
}

bool SZelCoordinateSet::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelCoordinateSet::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelCoordinateSet& a, const SZelCoordinateSet& b)
{
    for (size_t ulIdx = 0; ulIdx < 8; ++ulIdx)
    {
        if (!(a.adTrafo[ulIdx] == b.adTrafo[ulIdx]))
        {
            return false;
        }
    }
    return a.ucAvl == b.ucAvl && a.stCart == b.stCart && a.stGeo == b.stGeo;
}

std::ostream& operator<<(std::ostream& os, const SZelCoordinateSet& rSet)
{
    return ZelIo::WriteText(os, rSet);
}

std::istream& operator>>(std::istream& is, SZelCoordinateSet& rSet)
{
    return ZelIo::ReadText(is, rSet);
}

// ------------------------------------------------------------------ SZelSatPosVel

bool SZelSatPosVel::saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
{
    return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool SZelSatPosVel::loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
{
    return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
}

bool operator==(const SZelSatPosVel& a, const SZelSatPosVel& b)
{
    for (size_t ulIdx = 0; ulIdx < 3; ++ulIdx)
    {
        if (!(a.adPos[ulIdx] == b.adPos[ulIdx]) || !(a.adVel[ulIdx] == b.adVel[ulIdx]))
        {
            return false;
        }
    }
    return a.dRange == b.dRange && a.dRangeRate == b.dRangeRate;
}

std::ostream& operator<<(std::ostream& os, const SZelSatPosVel& rSatPos)
{
    return ZelIo::WriteText(os, rSatPos);
}

std::istream& operator>>(std::istream& is, SZelSatPosVel& rSatPos)
{
    return ZelIo::ReadText(is, rSatPos);
}

// ------------------------------------------------------------------ azimuth and elevation

void ComputeAzimuthElevation(const SZelCoordinateTriplet& rstPos, const double* adRotation,
                             const double* adTarget, double& rdElevation, double& rdAzimuth, double& rdRange)
{
    const double adD[3] = {adTarget[0] - rstPos.dCoord1, adTarget[1] - rstPos.dCoord2,
                           adTarget[2] - rstPos.dCoord3};
    double dN = 0.0, dE = 0.0, dU = 0.0;
    ToNorthEastUp(adD, adRotation, dN, dE, dU);
    rdAzimuth = Azimuth(dE, dN);
    rdRange = std::sqrt(dN * dN + dE * dE + dU * dU);
    rdElevation = Elevation(dU, rdRange);
}

// The range is the record's own; the rate follows from the up component of
// the satellite's velocity and the range rate.
void ComputeAzimuthElevationRate(const SZelCoordinateTriplet& rstPos, const double* adRotation,
                                 const SZelSatPosVel& rstSatPos, double& rdElevation, double& rdElevationRate,
                                 double& rdAzimuth, double& rdRange)
{
    const double adD[3] = {rstSatPos.adPos[0] - rstPos.dCoord1, rstSatPos.adPos[1] - rstPos.dCoord2,
                           rstSatPos.adPos[2] - rstPos.dCoord3};
    double dN = 0.0, dE = 0.0, dU = 0.0;
    ToNorthEastUp(adD, adRotation, dN, dE, dU);
    const double dR = rstSatPos.dRange;
    const double dRR = rstSatPos.dRangeRate;
    rdAzimuth = Azimuth(dE, dN);
    rdRange = dR;
    rdElevation = Elevation(dU, dR);
    const double dVelUp = rstSatPos.adVel[0] * adRotation[5] + rstSatPos.adVel[1] * adRotation[6] +
                          rstSatPos.adVel[2] * adRotation[7];
    rdElevationRate = (dVelUp - dU * dRR / dR) / dR / std::sqrt(1.0 - dU * dU / (dR * dR));
}

void ComputeGeoSatAzimuthElevation(const SZelCoordinateTriplet& rstGeoPos, double dLongitudeDeg,
                                   double& rdElevation, double& rdAzimuth)
{
    const SZelCoordinateTriplet stSatGeo(ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.0, dLongitudeDeg / c_dDEG_PER_RAD,
                                         c_dGEO_SAT_HEIGHT);
    const SZelCoordinateTriplet stSiteGeo(ZELCOORDINATESYSTEM_GEOGRAPHIC, rstGeoPos.dCoord1,
                                          rstGeoPos.dCoord2, rstGeoPos.dCoord3);
    SZelCoordinateTriplet stSatCart;
    SZelCoordinateTriplet stSiteCart;
    double adRotation[8] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
    ConvGeographicToCartesian(stSatGeo, stSatCart, nullptr);
    ConvGeographicToCartesian(stSiteGeo, stSiteCart, adRotation);
    const double adSat[3] = {stSatCart.dCoord1, stSatCart.dCoord2, stSatCart.dCoord3};
    double dRange = 0.0;
    ComputeAzimuthElevation(stSiteCart, adRotation, adSat, rdElevation, rdAzimuth, dRange);
}

} // namespace ZELN
