#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESCOORDINATES_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESCOORDINATES_H

// Sample records of the family, shared by tests, benchmarks and seeds:
// coordinate triplets and sets, satellite positions and the small
// coordinate exchange records.

#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <vector>

namespace ZelSample
{

// Geographic: latitude 0.75 rad, longitude -1.25 rad, height 1234.5 m.
inline ZELN::SZelCoordinateTriplet Triplet()
{
    return ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.75, -1.25, 1234.5);
}

// A cartesian point near the surface at 45 degrees north, in metres.
inline ZELN::SZelCoordinateTriplet CartesianTriplet()
{
    return ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 4517590.8788, 123456.789,
                                       4487348.4087);
}

// The default, a cartesian point, one of each other type, and a point on
// the polar axis (no geographic form).
inline std::vector<ZELN::SZelCoordinateTriplet> Triplets()
{
    using ZELN::SZelCoordinateTriplet;
    return {SZelCoordinateTriplet(), CartesianTriplet(),
            SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.8, -1.2, 250.0),
            SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_LOCGEO, 0.1, 0.2, -30.0),
            SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 0.0, 0.0, 6356752.3142)};
}

// Every field set by hand, none converted: ucAvl 5, a cartesian and a local
// geographic triplet, the rotation -1.0, -0.5, ... 2.5.
inline ZELN::SZelCoordinateSet CoordinateSet()
{
    ZELN::SZelCoordinateSet stSet;
    stSet.ucAvl = 5;
    stSet.stCart = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 1.5, -2.5, 3.5);
    stSet.stGeo = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_LOCGEO, 0.25, 0.125, -10.0);
    for (int iIdx = 0; iIdx < 8; ++iIdx)
    {
        stSet.adTrafo[iIdx] = 0.5 * iIdx - 1.0;
    }
    return stSet;
}

// The default set, then the set of each of Triplets(), converted.
inline std::vector<ZELN::SZelCoordinateSet> CoordinateSets()
{
    std::vector<ZELN::SZelCoordinateSet> vecSets(1);
    for (const ZELN::SZelCoordinateTriplet& rTriplet : Triplets())
    {
        ZELN::SZelCoordinateSet stSet;
        stSet.Set(rTriplet);
        vecSets.push_back(stSet);
    }
    return vecSets;
}

// Values whose text is short and exact.
inline ZELN::SZelSatPosVel SatPosVel()
{
    ZELN::SZelSatPosVel stSat;
    stSat.adPos[0] = 1.5;
    stSat.adPos[1] = -2.5;
    stSat.adPos[2] = 3.5;
    stSat.adVel[0] = 0.25;
    stSat.adVel[1] = -0.125;
    stSat.adVel[2] = 8.0;
    stSat.dRange = 21000000.5;
    stSat.dRangeRate = -512.25;
    return stSat;
}

// A satellite at orbit distances, moving at orbit speed.
inline ZELN::SZelSatPosVel SatPosVelInOrbit()
{
    ZELN::SZelSatPosVel stSat;
    stSat.adPos[0] = 15000000.0;
    stSat.adPos[1] = 5000000.0;
    stSat.adPos[2] = 20000000.0;
    stSat.adVel[0] = -1500.0;
    stSat.adVel[1] = 2800.0;
    stSat.adVel[2] = 600.0;
    stSat.dRange = 21000000.0;
    stSat.dRangeRate = -300.0;
    return stSat;
}

inline ZELN::SZelVector3d Vector3d()
{
    return ZELN::SZelVector3d(-1.5, 2.25, 1e10);
}
// Values whose text is short and exact.
inline ZELN::SZelVector3d Vector3dLine()
{
    return ZELN::SZelVector3d(1.5, -2.0, 3.25);
}

// Local geographic, the reserved bytes not zero.
inline ZELN::SZelMasterCoordinate MasterCoordinate()
{
    ZELN::SZelMasterCoordinate stMaster;
    stMaster.eCooSys = ZELN::ZELCOORDINATESYSTEM_LOCGEO;
    stMaster.usStnId = 0x1234;
    stMaster.usReserved = 0xBEEF;
    stMaster.stMstCoo = ZELN::SZelVector3d(-0.5, 1.75, 321.0);
    return stMaster;
}
// Geographic, values whose text is short and exact.
inline ZELN::SZelMasterCoordinate MasterCoordinateLine()
{
    ZELN::SZelMasterCoordinate stMaster;
    stMaster.eCooSys = ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC;
    stMaster.usStnId = 4095;
    stMaster.stMstCoo = ZELN::SZelVector3d(0.5, 0.25, 100.0);
    return stMaster;
}

inline ZELN::SZelHorizontalOffset HorizontalOffset()
{
    return ZELN::SZelHorizontalOffset(0.125f, -2.5f);
}
// Values whose text is short and exact.
inline ZELN::SZelHorizontalOffset HorizontalOffsetLine()
{
    return ZELN::SZelHorizontalOffset(0.25f, -1.5f);
}

} // namespace ZelSample

#endif
