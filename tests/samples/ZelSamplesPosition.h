#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESPOSITION_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESPOSITION_H

// Sample records of the position family, shared by tests, benchmarks and
// seeds: the building blocks of a fix and the result records, every field
// away from its default. Floats are chosen to print exactly at six digits.

#include "ZelSamplesIns.h"

#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>

#include <cstdint>

namespace ZelSample
{

// 110, 220, 330, 440, 550 and 12 satellites.
inline ZELN::SZelDOP Dop()
{
    ZELN::SZelDOP st;
    st.unHDOP = 110;
    st.unVDOP = 220;
    st.unTDOP = 330;
    st.unGDOP = 440;
    st.unPDOP = 550;
    st.unNumSats = 12;
    return st;
}

// Signal L2C with satellites 1, 5 and 33.
inline ZELN::SZelFrqSatUsage FrqSatUsage()
{
    ZELN::SZelFrqSatUsage st;
    st.eFrequency = ZELN::ZELFREQUENCY_L2C;
    st.ucNumUse = 3;
    st.ullBitMapUse = (uint64_t{1} << 1) | (uint64_t{1} << 5) | (uint64_t{1} << 33);
    return st;
}

// One slot per signal 1 to 6; slot k holds satellites k+1 and k+10.
inline ZELN::SZelSysSatUsage SysSatUsage(ZELN::EZelSatSystem eSys = ZELN::ZELSATSYSTEM_GPS)
{
    ZELN::SZelSysSatUsage st;
    st.eSatSystem = eSys;
    st.ucNumAvl = 14;
    st.ucNumUse = 9;
    for (int iSlot = 0; iSlot < 6; ++iSlot)
    {
        ZELN::SZelFrqSatUsage& rSlot = st.astUsedPerFreq[iSlot];
        rSlot.eFrequency = static_cast<ZELN::EZelFrequency>(iSlot + 1);
        rSlot.ucNumUse = 2;
        rSlot.ullBitMapUse = (uint64_t{1} << (iSlot + 1)) | (uint64_t{1} << (iSlot + 10));
    }
    return st;
}

// Three systems that count (GPS, GLONASS, Galileo) and five further filled
// entries behind them (systems 4 to 8).
inline ZELN::SZelGnssAvailability GnssAvailability()
{
    ZELN::SZelGnssAvailability st;
    st.ucNumSysObs = 3;
    for (int iSys = 0; iSys < 8; ++iSys)
    {
        st.astSysUsage[iSys] = SysSatUsage(static_cast<ZELN::EZelSatSystem>(iSys + 1));
        st.astSysUsage[iSys].ucNumAvl = static_cast<uint8_t>(20 + iSys);
    }
    return st;
}

// Seven stations, inside, FKP.
inline ZELN::SZelNrtkInfo NrtkInfo()
{
    ZELN::SZelNrtkInfo st;
    st.ucNumRefStations = 7;
    st.bInsideNetwork = true;
    st.eNetType = ZELN::ZELNETTYPE_FKP;
    return st;
}

// Geographic, fMo 1.5, unscaled 2.25, a positive definite cofactor matrix.
inline ZELN::SZelPosQuality PosQuality()
{
    ZELN::SZelPosQuality st;
    st.eCoordSystem = ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC;
    st.fMo = 1.5f;
    st.fMoUnscaled = 2.25f;
    const float afQ[6] = {0.25f, -0.125f, 0.5f, 0.0625f, -0.03125f, 1.75f};
    for (int iIdx = 0; iIdx < 6; ++iIdx)
    {
        st.afQ[iIdx] = afQ[iIdx];
    }
    return st;
}

// A computed rover position, geographic, no physical mark.
inline ZELN::SZelPosition Position()
{
    ZELN::SZelPosition st;
    st.eCoordType = ZELN::ZELCOORDTYPE_ROVCALC;
    st.ucAvail = 3;
    st.stPos = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.75, -1.25, 1234.5);
    st.stPosQ = PosQuality();
    st.bNonPhysical = true;
    return st;
}

// GPS week 2200, 345600 s (day 59648, 0 ms), millisecond accuracy.
inline ZELN::SMjdTime PosTime()
{
    return ZELN::SMjdTime(2200u, 345600.0, ZELN::MJDACC_MILLISECOND);
}

inline ZELN::SZelPosResultHeader PosResultHeader()
{
    ZELN::SZelPosResultHeader st;
    st.stTimeLastAmbFix = PosTime();
    st.ullOccTimeMs = 90000;
    st.ulAvlFlags = 0x1234u;
    st.ulPntFlags = 0x80000001u;
    return st;
}

inline ZELN::SZelPosResultExt PosResultExt()
{
    ZELN::SZelPosResultExt st;
    st.ulRecType = 7;
    st.bStatic = 1;
    st.unLatency = 250;
    st.ulStaticEpochs = 42;
    st.ulRefHandle = 1234;
    st.ucLinComb = 2;
    st.lPredTime = -500;
    st.stFirstStaticMarkEpoch = ZELN::SMjdTime(2200u, 345000.0, ZELN::MJDACC_MILLISECOND);
    return st;
}

// A whole fix: cartesian position and velocity with their qualities.
inline ZELN::SZelPosResult PosResult()
{
    ZELN::SZelPosResult st;
    st.stTime = ZELN::SMjdTime(2200u, 345690.5, ZELN::MJDACC_MILLISECOND);
    st.stTimeLastAmbFix = PosTime();
    st.ullOccTimeMs = 90000;
    st.ulAvlFlags = 0x1234u;
    st.ulPntFlags = 0x80000001u;
    st.ulPosType = 5;
    st.adPos[0] = 4517590.875;
    st.adPos[1] = 123456.75;
    st.adPos[2] = 4487348.5;
    st.stPosQ = PosQuality();
    st.stPosQ.eCoordSystem = ZELN::ZELCOORDINATESYSTEM_CARTESIAN;
    st.adVel[0] = 0.25;
    st.adVel[1] = -0.5;
    st.adVel[2] = 0.125;
    st.stVelQ = PosQuality();
    st.stVelQ.eCoordSystem = ZELN::ZELCOORDINATESYSTEM_CARTESIAN;
    st.stVelQ.fMo = 0.75f;
    st.stVelQ.fMoUnscaled = 0.875f;
    st.stDop = Dop();
    st.stExt = PosResultExt();
    st.stGnssAvl = GnssAvailability();
    st.stNrtkInfo = NrtkInfo();
    return st;
}

// The meta data of PosResult(): scale factors 1.5, 2.25, 0.75, 0.875.
inline ZELN::SZelPosResultMeta PosResultMeta()
{
    ZELN::SZelPosResultMeta st;
    st.stHeader = PosResultHeader();
    st.ulPosType = 5;
    st.stDop = Dop();
    st.stExt = PosResultExt();
    st.stGnssAvl = GnssAvailability();
    st.stNrtkInfo = NrtkInfo();
    st.fMoPos = 1.5f;
    st.fMoUnscaledPos = 2.25f;
    st.fMoVel = 0.75f;
    st.fMoUnscaledVel = 0.875f;
    return st;
}

inline ZELN::ZelExtGnssPveObs GnssPveObs()
{
    ZELN::ZelExtGnssPveObs st;
    st.stObs = InsObsPve();
    st.stMetaData = PosResultMeta();
    return st;
}

} // namespace ZelSample

#endif
