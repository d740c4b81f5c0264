#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESBESTPOS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESBESTPOS_H

// A best-position record with a non-default value in every field, shared
// by tests and fuzz seeds. All values are exact in binary, so that texts
// at any precision read back to the same record.

#include <ZelTypes/Core/Common/ZelNovAtelBestPos.h>

#include <cstdint>

namespace ZelSample
{

inline ZELN::SMjdTime BestPosTime(int32_t lDay, double dMs)
{
    ZELN::SMjdTime st;
    st.m_lMjdDay = lDay;
    st.m_dMjdFractMilliseconds = dMs;
    return st;
}

// Cartesian and local geographic triplets from iBase, the rotation from iBase / 8.
inline ZELN::SZelCoordinateSet BestPosCoordSet(int iBase)
{
    ZELN::SZelCoordinateSet st;
    st.ucAvl = static_cast<uint8_t>(iBase % 8);
    st.stCart = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 1.5 * iBase, -2.5 * iBase,
                                            3.5 * iBase);
    st.stGeo =
        ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_LOCGEO, 0.25, 0.125 * iBase, -10.0 * iBase);
    for (int iIdx = 0; iIdx < 8; ++iIdx)
    {
        st.adTrafo[iIdx] = 0.125 * (iIdx + iBase) - 1.0;
    }
    return st;
}

// System n + 1, with signals 1 + n and 3 + n in the first two slots.
inline ZELN::SZelSysSatUsage BestPosUsage(int iN)
{
    ZELN::SZelSysSatUsage st;
    st.eSatSystem = static_cast<ZELN::EZelSatSystem>(iN + 1);
    st.ucNumAvl = static_cast<uint8_t>(10 + iN);
    st.ucNumUse = static_cast<uint8_t>(5 + iN);
    st.astUsedPerFreq[0].eFrequency = static_cast<ZELN::EZelFrequency>(1 + iN);
    st.astUsedPerFreq[0].ucNumUse = 3;
    st.astUsedPerFreq[0].ullBitMapUse = 0x0B0000000000000Eull >> iN;
    st.astUsedPerFreq[1].eFrequency = static_cast<ZELN::EZelFrequency>(3 + iN);
    st.astUsedPerFreq[1].ucNumUse = 1;
    st.astUsedPerFreq[1].ullBitMapUse = 1ull << (iN + 1);
    return st;
}

inline ZELN::SZelNovAtelBestPos BestPos()
{
    ZELN::SZelNovAtelBestPos st;
    st.stTime = BestPosTime(60002, 1000.0);
    st.ulType = 50;
    st.stCoordSet = BestPosCoordSet(5);
    st.stCoordQuality.eCoordSystem = ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC;
    st.stCoordQuality.fMo = 1.5f;
    st.stCoordQuality.fMoUnscaled = 2.25f;
    for (int iIdx = 0; iIdx < 6; ++iIdx)
    {
        st.stCoordQuality.afQ[iIdx] = 0.5f * static_cast<float>(iIdx + 1);
    }
    st.stStaticSince = BestPosTime(60000, 0.0);
    st.bStatic = true;
    st.dAge = 2.5;
    st.stVelTime = BestPosTime(60002, 1500.0);
    st.dLatency = 0.03125;
    st.dVelAge = 4.75;
    st.stVelSet = BestPosCoordSet(2);
    st.stDopTime = BestPosTime(60002, 2000.0);
    st.stDop.unHDOP = 110;
    st.stDop.unVDOP = 150;
    st.stDop.unTDOP = 90;
    st.stDop.unGDOP = 210;
    st.stDop.unPDOP = 180;
    st.stDop.unNumSats = 17;
    for (int iN = 0; iN < 8; ++iN)
    {
        st.astSatAvail[iN] = BestPosUsage(iN);
    }
    return st;
}

} // namespace ZelSample

#endif
