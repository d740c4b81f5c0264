#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESNRTK_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESNRTK_H

// Sample network RTK records with a non-default value in every field,
// shared by tests and fuzz seeds. Entry n of a message is built from n, so
// that the entries differ from each other.

#include <ZelTypes/Ext/Gnss/ZelExtAuxTypes.h>

#include <cstdint>

namespace ZelSample
{

inline ZELN::SZelNetAuxStation NetAuxStation()
{
    ZELN::SZelNetAuxStation st;
    st.unMsgNr = 1014;
    st.ucNetId = 7;
    st.ucSubNetId = 3;
    st.ucNumAux = 4;
    st.unMasterId = 1201;
    st.unAuxId = 2302;
    st.lDeltaLat = -123456;
    st.lDeltaLon = 234567;
    st.lDeltaHgt = -3456;
    return st;
}

inline ZELN::SZelNetMsgHeader NetMsgHeader(uint16_t unMsgNr = 1017)
{
    ZELN::SZelNetMsgHeader st;
    st.unMsgNr = unMsgNr;
    st.ucNetId = 9;
    st.ucSubNetId = 2;
    st.ulTime = 345678901u;
    st.ucMMI = 1;
    st.unMasterId = 1201;
    st.unAuxId = 2302;
    st.ucNumSats = 15;
    st.ucClkBiasInd = 2;
    st.cGloL1PCDiffOff = -5;
    st.cGloL1L2PCDiffOff = 6;
    return st;
}

// GPS for even n, GLONASS for odd n; satellite n + 1.
template <class TEntry> inline void FillNetHead(TEntry& rEntry, int iN)
{
    rEntry.ucSatNumber = static_cast<uint8_t>(iN + 1);
    rEntry.eSatSystem = iN % 2 == 0 ? ZELN::ZELSATSYSTEM_GPS : ZELN::ZELSATSYSTEM_GLONASS;
    rEntry.ucAmbFlag = static_cast<uint8_t>(iN % 4);
    rEntry.ucNonSyncCnt = static_cast<uint8_t>(iN % 8 + 1);
}

inline ZELN::SZelNetIonoEntry NetIonoEntry(int iN = 0)
{
    ZELN::SZelNetIonoEntry st;
    FillNetHead(st, iN);
    st.lCorrDiff = -1000 * (iN + 1) - 7;
    return st;
}

inline ZELN::SZelNetGeoEntry NetGeoEntry(int iN = 0)
{
    ZELN::SZelNetGeoEntry st;
    FillNetHead(st, iN);
    st.lCorrDiff = 2000 * (iN + 1) + 3;
    st.ucIODE = static_cast<uint8_t>(100 + iN);
    return st;
}

inline ZELN::SZelNetCombEntry NetCombEntry(int iN = 0)
{
    ZELN::SZelNetCombEntry st;
    FillNetHead(st, iN);
    st.lGeoCorrDiff = 2000 * (iN + 1) + 3;
    st.lIonoCorrDiff = -1000 * (iN + 1) - 7;
    st.ucIODE = static_cast<uint8_t>(100 + iN);
    return st;
}

inline ZELN::SZelNetGeoMsg NetGeoMsg()
{
    ZELN::SZelNetGeoMsg st;
    st.stHeader = NetMsgHeader(1016);
    st.eSatSystem = ZELN::ZELSATSYSTEM_GPS;
    for (int iN = 0; iN < 15; ++iN)
    {
        st.astEntries[iN] = NetGeoEntry(iN);
    }
    return st;
}

inline ZELN::SZelNetIonoMsg NetIonoMsg()
{
    ZELN::SZelNetIonoMsg st;
    st.stHeader = NetMsgHeader(1015);
    st.eSatSystem = ZELN::ZELSATSYSTEM_GLONASS;
    for (int iN = 0; iN < 15; ++iN)
    {
        st.astEntries[iN] = NetIonoEntry(iN);
    }
    return st;
}

inline ZELN::SZelNetCombMsg NetCombMsg()
{
    ZELN::SZelNetCombMsg st;
    st.stHeader = NetMsgHeader(1017);
    for (int iN = 0; iN < 15; ++iN)
    {
        st.astEntries[iN] = NetCombEntry(iN);
    }
    return st;
}

// The sample combined message in slots 0 and 3, filled mask 0x09.
inline ZELN::MsgGNSS17T MsgGnss17()
{
    ZELN::MsgGNSS17T st;
    st.astCombMsgs[0] = NetCombMsg();
    st.astCombMsgs[3] = NetCombMsg();
    st.astCombMsgs[3].stHeader.ucNetId = 11;
    st.SetFilled(0x09);
    return st;
}

inline ZELN::SZelNetCombEntryD NetCombEntryD(int iN = 0)
{
    ZELN::SZelNetCombEntryD st;
    FillNetHead(st, iN);
    st.dGeoCorrDiff = 0.25 * (iN + 1) + 0.0625;
    st.ucIODE = static_cast<uint8_t>(100 + iN);
    st.dIonoCorrDiff = -0.125 * (iN + 1) - 0.5;
    return st;
}

inline ZELN::SZelNetCombMsgD NetCombMsgD()
{
    ZELN::SZelNetCombMsgD st;
    for (int iN = 0; iN < 15; ++iN)
    {
        st.astEntries[iN] = NetCombEntryD(iN);
    }
    return st;
}

inline ZELN::SZelNetCorrPair NetCorrPair()
{
    ZELN::SZelNetCorrPair st(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GLONASS, 5));
    st.stIonoMsg = NetIonoMsg();
    st.stGeoMsg = NetGeoMsg();
    st.ulPairFlags = 0x30005u;
    return st;
}

// Negative gradients on purpose.
inline ZELN::SZelNetGridEntry NetGridEntry(int iN = 0)
{
    ZELN::SZelNetGridEntry st;
    st.stSatId = ZELN::SZelSatID(iN % 2 == 0 ? ZELN::ZELSATSYSTEM_GPS : ZELN::ZELSATSYSTEM_GALILEO,
                                 static_cast<uint8_t>(iN + 2));
    st.ulIOD = static_cast<uint32_t>(40 + iN);
    st.nIonoN = static_cast<int16_t>(-300 - iN);
    st.nIonoE = static_cast<int16_t>(400 + iN);
    st.nGeoN = static_cast<int16_t>(-50 - iN);
    st.nGeoE = static_cast<int16_t>(-32768 + iN);
    return st;
}

inline ZELN::SZelNetGridMsg NetGridMsg()
{
    ZELN::SZelNetGridMsg st;
    st.unNetFlags = 0xA5C3;
    st.ulType = 12;
    st.stTime.m_lMjdDay = 60000;
    st.stTime.m_dMjdFractMilliseconds = 43200000.0;
    st.stTime.m_eAccuracy = ZELN::MJDACC_MILLISECOND;
    st.stCoords = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_GEOGRAPHIC, 0.75, 0.25, 512.5);
    st.ulNumSats = 15;
    for (int iN = 0; iN < 15; ++iN)
    {
        st.astEntries[iN] = NetGridEntry(iN);
    }
    return st;
}

inline ZELN::SZelNetGridSysMsg NetGridSysMsg()
{
    ZELN::SZelNetGridSysMsg st;
    st.eSatSystem = ZELN::ZELSATSYSTEM_GALILEO;
    st.stMsg = NetGridMsg();
    return st;
}

inline ZELN::SZelNetResidualEntry NetResidualEntry(int iN = 0)
{
    ZELN::SZelNetResidualEntry st;
    st.stSatId = ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, static_cast<uint8_t>(iN + 3));
    st.dSoc = 0.5 + iN;
    st.dSod = 0.25 + iN;
    st.dSoh = 0.125 + iN;
    st.dSic = 1.5 + iN;
    st.dSid = 2.75 + iN;
    return st;
}

inline ZELN::SZelNetResidualMsg NetResidualMsg()
{
    ZELN::SZelNetResidualMsg st;
    st.ulRefStationId = 4095;
    st.stTime.m_lMjdDay = 60001;
    st.stTime.m_dMjdFractMilliseconds = 3600000.0;
    st.stTime.m_eAccuracy = ZELN::MJDACC_MICROSECOND;
    st.vecEntries = {NetResidualEntry(0), NetResidualEntry(1), NetResidualEntry(2)};
    return st;
}

} // namespace ZelSample

#endif
