#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESSSR_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESSSR_H

// Sample SSR headers, correction records and messages with non-default
// values in every field. The records of a sample message stand in key order,
// so that a message read back from its image (which sorts) equals it; the
// floating values are binary fractions, so that their texts are exact.

#include <ZelTypes/Core/Common/ZelSSRTypes.h>

#include <cstdint>

namespace ZelSample
{

// GPS week 2300, 345605 s (day 4, 1 h 5 s), millisecond precision.
inline ZELN::SSRCorrMsgHeader SsrHeader()
{
    ZELN::SSRCorrMsgHeader st;
    st.eSatSys = ZELN::ZELSATSYSTEM_GPS;
    st.iMsgNum = 1060;
    st.stRefTime = ZELN::SMjdTime(2300u, 345605.0, ZELN::MJDACC_MILLISECOND);
    st.dUpdRate = 5.0;
    st.uiMMID = 1;
    st.uiRefDat = 1;
    st.uiSSRID = 3;
    st.uiProvID = 257;
    st.iSolID = 7;
    st.uiRes = 9;
    st.eSSRFormat = 2;
    st.stSSRUICfg.ucSsrIntervalDefinition = 1;
    st.stSSRUICfg.ucUIRefTime = 0;
    return st;
}

// A signal key: satellite, frequency group 1 and the tracking modes C and W.
inline ZELN::SZelSatFrqTMdGroupID SsrSignal(uint8_t ucSat = 5)
{
    return ZELN::SZelSatFrqTMdGroupID(
        ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, ucSat), ZELN::ZELFREQUENCY_GROUP_1,
        ZELN::ToTMdGroup(ZELN::ZELTRACKMODE_C) | ZELN::ToTMdGroup(ZELN::ZELTRACKMODE_W));
}

inline ZELN::SSROrbitCorr SsrOrbitCorr(uint8_t ucSat = 5)
{
    return ZELN::SSROrbitCorr(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, ucSat), 77, 78,
                              ZELN::SMjdTime(2300u, 345600.5, ZELN::MJDACC_MICROSECOND), 0.125, -1.5, 2.25,
                              0.0009765625, -0.001953125, 0.0029296875, true);
}

inline ZELN::SSRClockCorr SsrClockCorr(uint8_t ucSat = 7)
{
    return ZELN::SSRClockCorr(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, ucSat),
                              ZELN::SMjdTime(2300u, 345600.0, ZELN::MJDACC_MILLISECOND), 0.5, -0.25,
                              0.0078125);
}

inline ZELN::SSRHighRateClock SsrHighRateClock(uint8_t ucSat = 11)
{
    return ZELN::SSRHighRateClock(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, ucSat), 0.0625);
}

inline ZELN::SSRURA SsrUra(uint8_t ucSat = 3)
{
    return ZELN::SSRURA(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, ucSat), 42);
}

inline ZELN::SSRBias SsrBias(uint8_t ucSat = 5)
{
    return ZELN::SSRBias(SsrSignal(ucSat), -1.75);
}

inline ZELN::SSRPhaseBias SsrPhaseBias(uint8_t ucSat = 5)
{
    return ZELN::SSRPhaseBias(SsrSignal(ucSat), 0.375, 12345);
}

// End 90, step 5: 19 values, -9 to 9 mm.
inline ZELN::SSRPCV SsrPcv(uint8_t ucSat = 5)
{
    int8_t acValues[19];
    for (int i = 0; i < 19; ++i)
    {
        acValues[i] = static_cast<int8_t>(i - 9);
    }
    return ZELN::SSRPCV(SsrSignal(ucSat), acValues, 90, 5);
}

// Messages: the sample header, the type of the row, two or three records in key order.
inline ZELN::SSROrbitCorrMsgT SsrOrbitMsg()
{
    ZELN::SSROrbitCorrMsgT st(ZELN::eZELSSRCORRECTIONTYPE_ORBIT_RAC);
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrOrbitCorr(2), SsrOrbitCorr(5), SsrOrbitCorr(31)};
    st.vCorrs[1].uiIODBE = 12;
    st.bChangeRatVal = true;
    return st;
}

inline ZELN::SSRClockCorrMsgT SsrClockMsg()
{
    ZELN::SSRClockCorrMsgT st(ZELN::eZELSSRCORRECTIONTYPE_CLOCK_DELTA);
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrClockCorr(1), SsrClockCorr(7)};
    st.vCorrs[0].dC0 = -3.5;
    return st;
}

inline ZELN::SSRHighRateClockMsgT SsrHighRateClockMsg()
{
    ZELN::SSRHighRateClockMsgT st(ZELN::eZELSSRCORRECTIONTYPE_HRCLOCK_MOD);
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrHighRateClock(4), SsrHighRateClock(11)};
    st.vCorrs[0].dCorr = -0.5;
    st.ucTimSinceBaseMsg = 200;
    return st;
}

inline ZELN::SSRCodeBiasMsgT SsrCodeBiasMsg()
{
    ZELN::SSRCodeBiasMsgT st(ZELN::eZELSSRCORRECTIONTYPE_CODEBIAS);
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrBias(5), SsrBias(9)};
    st.vCorrs[1].dBias = 2.5;
    return st;
}

inline ZELN::SSRPhaseBiasMsgT SsrPhaseBiasMsg()
{
    ZELN::SSRPhaseBiasMsgT st(true);
    st.oHeader = SsrHeader();
    st.oHeader.eSSRFormat = ZELN::c_lSSR_FORMAT_PHASEBIAS;
    st.vCorrs = {SsrPhaseBias(5), SsrPhaseBias(6)};
    st.vCorrs[1].uiLckTimeCnt = 3;
    return st;
}

inline ZELN::SSRURAMsgT SsrUraMsg()
{
    ZELN::SSRURAMsgT st;
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrUra(3), SsrUra(8)};
    st.vCorrs[1].iSsrUra = -1;
    return st;
}

inline ZELN::SSRSignalMsgT SsrSignalMsg()
{
    ZELN::SSRSignalMsgT st;
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrSignal(5), SsrSignal(12)};
    return st;
}

inline ZELN::SSRPCVMsgT SsrPcvMsg()
{
    ZELN::SSRPCVMsgT st;
    st.oHeader = SsrHeader();
    st.vCorrs = {SsrPcv(5), SsrPcv(8)};
    st.vCorrs[1].vcValues[0] = 100;
    return st;
}

} // namespace ZelSample

#endif
