#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESIONOUTC_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESIONOUTC_H

// Ionosphere coefficients, UTC parameters and time offsets with a value
// other than the default in every field. The UTC parameters are valid and
// announce no step that would break an invariant.

#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>

#include <cstdint>

namespace ZelSample
{

inline ZELN::SZelKlobucharCoefficients SampleKlobuchar()
{
    ZELN::SZelKlobucharCoefficients st;
    st.bValid = true;
    st.eSatSystem = ZELN::ZELSATSYSTEM_QZSS;
    st.adAlpha[0] = 1.1175870895385742e-08;
    st.adAlpha[1] = 7.4505805969238281e-09;
    st.adAlpha[2] = -5.9604644775390625e-08;
    st.adAlpha[3] = -5.9604644775390625e-08;
    st.adBeta[0] = 90112.0;
    st.adBeta[1] = 16384.0;
    st.adBeta[2] = -196608.0;
    st.adBeta[3] = -65536.0;
    st.eIonRegionCode = ZELN::ZELIONREGIONCODE_JAPAN;
    return st;
}

inline void FillLeapSecUtc(ZELN::ZELX_LEAPSEC_UTC& rLeap)
{
    rLeap.iDeltaTls = 18;
    rLeap.iDeltaTlsf = 19;
    rLeap.EffectivityTime.SetGpsDay(2350, 7);
    rLeap.dA0 = -9.3132257461547852e-10;
    rLeap.dA1 = 2.6645352591003757e-15;
    rLeap.UTCRefTime = ZELN::SMjdTime(2300u, 405504.0);
}

inline ZELN::ZELX_LEAPSEC_UTC SampleLeapSecUtc()
{
    ZELN::ZELX_LEAPSEC_UTC st;
    FillLeapSecUtc(st);
    return st;
}

inline ZELN::ZELX_CLOCK_BEIDOU SampleClockBeiDou()
{
    ZELN::ZELX_CLOCK_BEIDOU st;
    FillLeapSecUtc(st);
    st.iDeltaTls = 4;
    st.iDeltaTlsf = 5;
    const double adOffsets[6] = {1.5e-8, -2.5e-14, 3.5e-8, -4.5e-14, 5.5e-8, 6.5e-14};
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        st.adGnssOffset[ulIdx] = adOffsets[ulIdx];
    }
    st.ucAux1 = 9;
    st.dAux2 = 0.125;
    return st;
}

inline ZELN::ZELX_SAT_CLOCK_GALILEO SampleSatClockGalileo()
{
    ZELN::ZELX_SAT_CLOCK_GALILEO st;
    FillLeapSecUtc(st);
    st.ulAux1 = 0x01020304;
    st.ulAux2 = 0x05060708;
    st.ucAux3 = 3;
    st.dA0G = 4.6566128730773926e-09;
    st.dA1G = -8.8817841970012523e-16;
    st.stT0G = ZELN::SMjdTime(2300u, 432000.0);
    return st;
}

inline ZELN::SZelNavicTimeOffset SampleNavicTimeOffset(uint32_t ulGnssId)
{
    ZELN::SZelNavicTimeOffset st;
    st.ulGnssId = ulGnssId;
    st.dA0 = 1.0e-8 * (ulGnssId + 1);
    st.dA1 = -2.0e-15 * (ulGnssId + 1);
    st.dA2 = 3.0e-20 * (ulGnssId + 1);
    st.stRefTime = ZELN::SMjdTime(2300u, 3600.0 * (ulGnssId + 1));
    return st;
}

inline ZELN::ZELX_SYSCLOCK_NAVIC SampleSysClockNavic()
{
    ZELN::ZELX_SYSCLOCK_NAVIC st;
    FillLeapSecUtc(st);
    for (uint32_t ulId : {0u, 1u, 2u, 7u})
    {
        st.setOffset(SampleNavicTimeOffset(ulId));
    }
    st.ullAux1 = 0x0102030405060708ull;
    st.dAux2 = 0.5;
    st.dAux3 = -0.25;
    st.ucAux4 = 6;
    return st;
}

inline ZELN::ZELX_IONO_UTC SampleIonoUtc()
{
    ZELN::ZELX_IONO_UTC st;
    st.stKlobuchar = SampleKlobuchar();
    st.stKlobuchar.eSatSystem = ZELN::ZELSATSYSTEM_GPS;
    st.stKlobuchar.eIonRegionCode = ZELN::ZELIONREGIONCODE_WIDE_AREA;
    FillLeapSecUtc(st.stLeapSec);
    return st;
}

inline ZELN::ZELX_IONO_UTC_GPSQZSS SampleIonoUtcGpsQzss()
{
    ZELN::ZELX_IONO_UTC_GPSQZSS st;
    static_cast<ZELN::ZELX_IONO_UTC&>(st) = SampleIonoUtc();
    st.unAux1 = 0x1112;
    st.ulAux2 = 0x13141516;
    st.ucAux3 = 0x17;
    return st;
}

inline ZELN::ZELX_IONO_BEIDOU SampleIonoBeiDou()
{
    ZELN::ZELX_IONO_BEIDOU st;
    st.stKlobuchar = SampleKlobuchar();
    st.stKlobuchar.eSatSystem = ZELN::ZELSATSYSTEM_BEIDOU;
    st.unAux1 = 0x2122;
    st.ulAux2 = 0x23242526;
    st.ucAux3 = 0x27;
    return st;
}

inline ZELN::ZELX_IONO_NAVIC SampleIonoNavic()
{
    ZELN::ZELX_IONO_NAVIC st;
    st.stKlobuchar = SampleKlobuchar();
    st.stKlobuchar.eSatSystem = ZELN::ZELSATSYSTEM_NAVIC;
    st.unAux1 = 0x3132;
    st.ulAux2 = 0x33343536;
    st.ucAux3 = 0x37;
    return st;
}

inline ZELN::ZELX_IONO_GALILEO SampleIonoGalileo()
{
    ZELN::ZELX_IONO_GALILEO st;
    st.stKlobuchar = SampleKlobuchar();
    st.stKlobuchar.eSatSystem = ZELN::ZELSATSYSTEM_GALILEO;
    st.unAux1 = 0x4142;
    st.ulAux2 = 0x43444546;
    st.ucAux3 = 0x47;
    st.ucAux4 = 0x48;
    st.unAux5 = 0x494A;
    st.unAux6 = 0x4B4C;
    st.unAux7 = 0x4D4E;
    st.ucAux8 = 0x4F;
    return st;
}

} // namespace ZelSample

#endif
