#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESCONFIG_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESCONFIG_H

// Sample records of the processing configuration, shared by tests,
// benchmarks and seeds: every field away from its default. The doubles are
// sums of few powers of two, so that their texts are short and exact in
// the stream's default form and in scientific notation at 17 digits.

#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include <cstring>

namespace ZelSample
{

inline ZELN::SZelDopLimit DopLimit()
{
    return ZELN::SZelDopLimit(3, 12.5f);
}

inline ZELN::SZelSatLimit SatLimit()
{
    ZELN::SZelSatLimit st;
    st.ulRate = 5;
    st.ulMaxSats = 14;
    return st;
}

inline ZELN::SZelPrePrcCfg PrePrcCfg()
{
    ZELN::SZelPrePrcCfg st;
    st.ulSmoothInterval = 30;
    st.bIfCycleSlipDetect = true;
    return st;
}

inline ZELN::SZelGenCfg GenCfg()
{
    ZELN::SZelGenCfg st;
    st.stDopLimitKin = ZELN::SZelDopLimit(2, 15.5f);
    st.stDopLimit = ZELN::SZelDopLimit(4, 7.25f);
    st.stSatLimit.ulRate = 2;
    st.stSatLimit.ulMaxSats = 12;
    st.bL1Only = true;
    st.unFrqsToUse = 0x15;
    st.bStatic = false;
    st.bLevelPhase = false;
    st.stPrePrcCfg.ulSmoothInterval = 60;
    st.stPrePrcCfg.bIfCycleSlipDetect = true;
    st.dMinElev = 0.25;
    st.ulPosRate = 200;
    st.ucGnssPveUsage = 3;
    st.ulMode = 7;
    st.bEnableSsr = true;
    st.ucGnssToUse = 0x23;
    return st;
}

inline ZELN::SZelDiffCfg DiffCfg()
{
    ZELN::SZelDiffCfg st;
    st.lPredMode = -2;
    st.dMaxBaseline = 50000.5;
    st.lDelimiter = 9;
    st.bImproveIono = false;
    return st;
}

inline ZELN::SZelRtkCfg RtkCfg()
{
    ZELN::SZelRtkCfg st;
    st.ulProcOpt = 0x10203;
    st.unSmoothWindow = 300;
    st.dMaxPredHpn = 1500.5;
    st.dMaxPredSsr = 3600.25;
    st.dAPrioriPosPredVarPosScaling = 2.5;
    st.dAPrioriPosPredVarVelScaling = 0.75;
    st.dAPrioriPosPredProcNoisePerSec = 0.125;
    st.ucNumRestBefAmbFix = 3;
    st.ucNumRestBefAmbFixStat = 4;
    st.ulFltLngthBitMask = 85;
    st.nFltLngthFstSrc = 2;
    st.nFltLngthSrcIntFix = 20;
    st.nFltLngthSrcInt = -3;
    st.nFltLngthResInt = 60;
    st.dMaxAlphSrc = 0.0625;
    st.dMaxAlphRes = 0.03125;
    st.dPosTskCooPN = 1e15;
    st.dPosTskAmbPN = 0.0078125;
    st.dAmbTskCooPN = 1e8;
    st.dPosTskFltCooPN = 0.5;
    st.dQuasStatPN = 0.25;
    st.dIonoPN = 0.015625;
    st.dIonoIV = 4.5;
    st.bUseDopplerInPos = false;
    return st;
}

// The older layout with the values of RtkCfg().
inline ZELN::SZelRtkCfgV1 RtkCfgV1()
{
    ZELN::SZelRtkCfgV1 st;
    st.ulProcOpt = 0x10203;
    st.unSmoothWindow = 300;
    st.dMaxPredHpn = 1500.5;
    st.dMaxPredSsr = 3600.25;
    st.ucNumRestBefAmbFix = 3;
    st.ucNumRestBefAmbFixStat = 4;
    st.ulFltLngthBitMask = 85;
    st.nFltLngthFstSrc = 2;
    st.nFltLngthSrcIntFix = 20;
    st.nFltLngthSrcInt = -3;
    st.nFltLngthResInt = 60;
    st.dMaxAlphSrc = 0.0625;
    st.dMaxAlphRes = 0.03125;
    st.dPosTskCooPN = 1e15;
    st.dPosTskAmbPN = 0.0078125;
    st.dAmbTskCooPN = 1e8;
    st.dPosTskFltCooPN = 0.5;
    st.dQuasStatPN = 0.25;
    st.dIonoPN = 0.015625;
    st.dIonoIV = 4.5;
    st.bUseDopplerInPos = false;
    return st;
}

inline ZELN::SZelProcCfg ProcCfg()
{
    ZELN::SZelProcCfg st;
    st.stGenCfg = GenCfg();
    st.stDiffCfg = DiffCfg();
    st.stRtkCfg = RtkCfg();
    return st;
}

inline ZELN::SZelProcCfgV1 ProcCfgV1()
{
    ZELN::SZelProcCfgV1 st;
    st.stGenCfg = GenCfg();
    st.stDiffCfg = DiffCfg();
    st.stRtkCfg = RtkCfgV1();
    return st;
}

inline ZELN::SZelMacCfg MacCfg()
{
    ZELN::SZelMacCfg st;
    st.dMaxAge = 120.5;
    st.bPolygonCheck = false;
    st.dMaxDistance = 35000.5;
    st.dBufferWidth = 250.75;
    return st;
}

inline ZELN::SZelRefCfg RefCfg()
{
    ZELN::SZelRefCfg st;
    st.bRefAvailable = true;
    st.lNetType = 3;
    st.bAmbSource = false;
    st.lSystemFix = 5;
    st.bNewAR = true;
    st.stMacCfg = MacCfg();
    return st;
}

// Every flag set, FKP through a network cell.
inline ZELN::SZelNetCfg NetCfg()
{
    ZELN::SZelNetCfg st;
    st.eNetType = ZELN::ZELNETTYPE_FKP;
    st.eNetMode = ZELN::ZELNETMODE_MAC;
    st.lRequestFlags = 11;
    st.bCreatePredCoeff = true;
    st.lMinGps = 6;
    st.lMinGlo = 3;
    st.lMinOther = 4;
    st.bCodeCorr = true;
    st.bImmediateDropback = true;
    st.bImmediateDistDropback = true;
    st.bDropbackSB = true;
    st.bDropbackClSB = true;
    st.dMinDistMaster = 2500.5;
    st.dSatAvailTimeout = 90.25;
    st.bFallforwardToNet = true;
    st.bImmediateFallforward = true;
    st.stMacCfg = MacCfg();
    return st;
}

// A known mark, geographic (radians, metres), with its covariance.
inline ZELN::SZelStationCfg StationCfg()
{
    ZELN::SZelStationCfg st;
    st.lMode = 2;
    st.lTimeOutMs = 5000;
    ZELN::SZelPosition& rPos = st.stStationCoords;
    rPos.eCoordType = ZELN::ZELCOORDTYPE_KNWMRK;
    rPos.ucAvail = 3;
    rPos.stPos = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.75, -1.25, 350.5);
    rPos.stPosQ.eCoordSystem = ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC;
    rPos.stPosQ.fMo = 1.5f;
    rPos.stPosQ.fMoUnscaled = 2.25f;
    const float afQ[6] = {0.25f, 0.0625f, 0.5f, -0.125f, 0.03125f, 1.0f};
    std::memcpy(rPos.stPosQ.afQ, afQ, sizeof(afQ));
    rPos.bNonPhysical = true;
    return st;
}

// A small antenna: IGS name "ANT1", serial "S9", setup 1, creator 2, type
// 3; all offsets filled, 0.5 m east and -0.25 m north, ARP 0.125 m above a
// vertical reading of 1.5 m; model 5 with one calibration, GPS band 0:
// offset 0.5, -0.25, 0.0625 m (north, east, up), one row of two variations
// 1.5 and -2 mm. The local name is left empty: it is in neither form.
inline ZELN::SZelAntennaInfo ConfigAntenna()
{
    ZELN::SZelAntennaInfo st;
    std::strcpy(st.stAntDescr.acIgsName, "ANT1");
    std::strcpy(st.stAntDescr.acSerialNo, "S9");
    st.stAntDescr.ucSetupId = 1;
    st.stAntDescr.ucCreatorId = 2;
    st.stAntDescr.ucType = 3;
    st.m_ARPOffsets.m_eAvailability = ZELN::ebVOAVAILABLE | ZELN::ebHOAVAILABLE | ZELN::ebRDAVAILABLE;
    st.m_ARPOffsets.m_afHorzOffset = ZELN::SZelHorizontalOffset(0.5f, -0.25f);
    st.m_ARPOffsets.m_dVerticalOffset = 0.125;
    st.m_ARPOffsets.m_eReadMode = ZELN::ZELANTREADMODE_VERTICAL;
    st.m_ARPOffsets.m_dHeightRead = 1.5;
    st.stAntModel.unModelId = 5;
    st.stAntModel.ucModelAvail = 1;
    st.stAntModel.fAziRad = 0.5f;
    ZELN::SZelAntPCC stPCC;
    stPCC.afPCO[0] = 0.5f;
    stPCC.afPCO[1] = -0.25f;
    stPCC.afPCO[2] = 0.0625f;
    stPCC.vecPCV = {{1.5f, -2.0f}};
    st.stAntModel.mapPCCs[ZELN::SZelAntModelKey(ZELN::ZELSATSYSTEM_GPS, 0)] = stPCC;
    return st;
}

inline ZELN::SZelRecAntCfg RecAntCfg()
{
    ZELN::SZelRecAntCfg st;
    st.ulRtHandle = 21;
    st.lRecType = -4;
    st.stAntInfo = ConfigAntenna();
    return st;
}

inline ZELN::SZelRtHandle RtHandle()
{
    ZELN::SZelRtHandle st;
    st.ulRtHandle = 0xA1B2C3D4u;
    return st;
}

inline ZELN::SZelRtHandleBias RtHandleBias()
{
    ZELN::SZelRtHandleBias st;
    st.ulRtHandle = 7;
    st.ulIncluded = 0xF;
    st.bApply = true;
    st.dL1CA = 0.5;
    st.dL1P = -1.25;
    st.dL2C = 2.0;
    st.dL2P = -3.5;
    return st;
}

// A cartesian station position, metres.
inline ZELN::SZelRtHandleCoords RtHandleCoords()
{
    ZELN::SZelRtHandleCoords st;
    st.ulRtHandle = 11;
    st.adCoords[0] = 4517590.25;
    st.adCoords[1] = 123456.5;
    st.adCoords[2] = -4487348.75;
    st.bNonPhysical = true;
    st.bValid = true;
    return st;
}

} // namespace ZelSample

#endif
