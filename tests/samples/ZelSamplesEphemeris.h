#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESEPHEMERIS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESEPHEMERIS_H

// Sample records of the family, shared by tests, benchmarks and seeds: a
// valid, healthy set per class with a value of its own in every field, so
// that a field out of place shows in an image. The golden images of the
// tests are built by hand from these values.

#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include <cstddef>
#include <cstdint>

namespace ZelSample
{

// Day 4 of GPS week 2300, as a modified Julian day.
constexpr int32_t c_lEphDay4 = 44244 + 2300 * 7 + 4;

// The Keplerian block of the GPS sample (root of the semi-major axis 5153.6).
inline void FillKeplerGps(ZELN::ZELX_SAT_EPHEMERIS_COMMON& rBlock)
{
    const double adKepler[9] = {1.1, 0.01, 5153.6, -2.5, 0.96, 0.7, 4.5e-9, -8.0e-9, 1.0e-10};
    const float afHarmonics[6] = {1.0e-6f, 2.0e-6f, 200.5f, -30.25f, 3.0e-8f, -4.0e-8f};
    for (size_t ulIdx = 0; ulIdx < 9; ++ulIdx)
    {
        rBlock.adKepler[ulIdx] = adKepler[ulIdx];
    }
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        rBlock.afHarmonics[ulIdx] = afHarmonics[ulIdx];
    }
}

// The Keplerian block of the other samples (root of the semi-major axis 5440.6).
inline void FillKeplerOther(ZELN::ZELX_SAT_EPHEMERIS_COMMON& rBlock)
{
    const double adKepler[9] = {-0.5, 0.002, 5440.6, 1.25, 0.98, -1.5, 3.2e-9, -5.5e-9, -2.0e-10};
    const float afHarmonics[6] = {-2.0e-6f, 8.0e-6f, 150.25f, 12.5f, -6.0e-8f, 1.0e-8f};
    for (size_t ulIdx = 0; ulIdx < 9; ++ulIdx)
    {
        rBlock.adKepler[ulIdx] = adKepler[ulIdx];
    }
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        rBlock.afHarmonics[ulIdx] = afHarmonics[ulIdx];
    }
}

inline ZELN::ZELX_SAT_EPHEMERIS_COMMON KeplerBlock()
{
    ZELN::ZELX_SAT_EPHEMERIS_COMMON st;
    FillKeplerGps(st);
    return st;
}

// G05, time of ephemeris and clock at 00:00 of day 4 of week 2300.
inline ZELN::ZELX_SAT_EPHEMERIS GpsEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS st;
    FillKeplerGps(st);
    st.uiSvId = 5;
    st.bValid = true;
    st.ulTransmissionTime = 338400;
    st.unGPSWeek = 2300;
    st.unUraIndex = 2;
    const uint16_t aunWords[5] = {11, 22, 33, 44, 55};
    for (size_t ulIdx = 0; ulIdx < 5; ++ulIdx)
    {
        st.aunWords[ulIdx] = aunWords[ulIdx];
    }
    st.unIodc = 77;
    st.fGroupDelay = -1.1e-8f;
    st.ulToe = 345600;
    st.ulToc = 345600;
    st.afClock[0] = 1.5e-4f;
    st.afClock[1] = -2.5e-12f;
    st.afClock[2] = 0.0f;
    st.ucFitIntervalFlag = 0;
    st.unHealth = 0;
    return st;
}

// J02 (health 1, which QZSS counts as healthy), at 00:00 of day 4 of week 2300.
inline ZELN::ZELX_SAT_EPHEMERIS_QZSS QzssEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS_QZSS st;
    FillKeplerOther(st);
    st.uiSvId = 157;
    st.bValid = true;
    st.ulTransmissionTime = 340000;
    st.unGPSWeek = 2300;
    st.unUraIndex = 1;
    for (uint16_t unIdx = 0; unIdx < 5; ++unIdx)
    {
        st.aunWords[unIdx] = static_cast<uint16_t>(100 + unIdx);
    }
    st.unIodc = 300;
    st.fGroupDelay = 2.5e-9f;
    st.ulToe = 345600;
    st.ulToc = 345600;
    st.afClock[0] = -3.0e-5f;
    st.afClock[1] = 1.0e-12f;
    st.afClock[2] = 0.0f;
    st.ucFitIntervalFlag = 0;
    st.unHealth = 1;
    st.setQzss1(1);
    st.setQzss2(2);
    st.setQzss3(0x0303);
    st.setQzss4(-4.5e-3);
    st.setQzss5(0x0505);
    st.setQzss6(0x06060606);
    return st;
}

// R08 of M type, reference time 00:15 of day 4 of week 2300.
inline ZELN::ZELX_SAT_EPHEMERIS_GLONASS GlonassEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS_GLONASS st;
    st.uiSvId = 40;
    st.ucAux1 = 7;
    st.unAux2 = 0x1234;
    st.ulAux3 = 0xDEADBEEF;
    st.bValid = true;
    st.bMType = true;
    st.unAux4 = 0x55AA;
    st.unGPSWeek = 2300;
    st.ulToeMs = 346500000;
    st.ulAux5 = 123456;
    st.ulIod = 42;
    const double adState[12] = {1.1e7, -2.2e7, 3.3e6, 1234.5, -2345.25, 3456.125,
                                1e-6,  -2e-6,  3e-6,  4.5e-9, -1.25e-5, 7.0};
    for (size_t ulIdx = 0; ulIdx < 12; ++ulIdx)
    {
        st.adState[ulIdx] = adState[ulIdx];
    }
    for (uint32_t ulIdx = 0; ulIdx < 5; ++ulIdx)
    {
        st.aulAux6[ulIdx] = ulIdx + 1;
    }
    st.ucHealth = 0;
    return st;
}

// E04 from I/NAV on both signals, at 00:00 of day 4 of week 2300; the
// reference time one second into that day.
inline ZELN::ZELX_SAT_EPHEMERIS_GALILEO GalileoEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS_GALILEO st(4);
    FillKeplerOther(st);
    st.setSvId(60);
    st.setEphSource(1);
    st.setAux1(0x11);
    st.setIodNav(93);
    st.setSisaIndex(107);
    st.setHsE1b(0);
    st.setHsE5b(0);
    st.setHsE5a(0);
    st.setDvsE1b(0);
    st.setDvsE5b(0);
    st.setDvsE5a(0);
    st.setToe(345600);
    st.setToc(345600);
    st.setAf0(-5.5e-4);
    st.setAf1(-7.5e-12);
    st.setAf2(0.0);
    st.setBgdE5a(2.3e-9);
    st.setBgdE5b(2.6e-9);
    st.stRefTimeApprox.SetMjdDayMilliseconds(c_lEphDay4, 1000.0); // accuracy stays 1
    st.setPT1Time(1276, 345000);
    return st;
}

// C08, both reference times 14 s into day 4 of week 2300 (00:00 BeiDou time).
inline ZELN::ZELX_SAT_EPHEMERIS_BEIDOU BeiDouEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS_BEIDOU st;
    FillKeplerOther(st);
    st.setSvId(100);
    st.setValid(true);
    st.setAux1(0xA1A2A3A4);
    st.setGPSWeek(2300);
    st.setTowMs(345614000);
    st.setUra(2.8f);
    st.setAux2(0xB2);
    st.setClock(0, 4.25e-4);
    st.setClock(1, -1.5e-11);
    st.stToc.SetMjdDayMilliseconds(c_lEphDay4, 14000.0);
    st.setAux3(0, 1.0e-9f);
    st.setAux3(1, -2.0e-9f);
    st.setAux3(2, 3.0e-20f);
    st.setAux4(0xC4);
    st.stToe.SetMjdDayMilliseconds(c_lEphDay4, 14000.0);
    st.setHealth(0);
    return st;
}

// I03, both reference times at 02:00 of day 4 of week 2300.
inline ZELN::ZELX_SAT_EPHEMERIS_NAVIC NavicEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS_NAVIC st;
    FillKeplerOther(st);
    st.setPrn(188);
    st.setAux1(0x01020304);
    st.setValid(true);
    st.setClock(0, 1.25e-4);
    st.setClock(1, 2.5e-12);
    st.setClock(2, -1.0e-18);
    st.setUra(4.0f);
    st.stToc.SetMjdDayMilliseconds(c_lEphDay4, 7200000.0);
    st.setAux2(-9.5e-9);
    st.setIodec(77);
    st.setHealthFlag1(0);
    st.setHealthFlag2(1);
    st.stToe.SetMjdDayMilliseconds(c_lEphDay4, 7200000.0);
    st.setAlertFlag(0);
    st.setAux3(0x33);
    st.setPT1Time(1276, 352800);
    return st;
}

// PRN 122 in geostationary orbit, reference time 00:00 of day 4 of week 2300.
inline ZELN::ZELX_SAT_EPHEMERIS_SBAS SbasEphemeris()
{
    ZELN::ZELX_SAT_EPHEMERIS_SBAS st;
    st.setSvId(168);
    st.setGPSWeek(2300);
    st.setAux1(3);
    st.setToe(345600);
    st.setClock(1.5e-7);
    st.setUra(4.0f);
    st.setAux2(77);
    st.setPosX(42164000.0);
    st.setPosY(-1200.5);
    st.setPosZ(3000.25);
    st.setVelX(1.5);
    st.setVelY(-2.5);
    st.setVelZ(3.5);
    st.setAccX(1e-3);
    st.setAccY(-2e-3);
    st.setAccZ(3e-3);
    st.setHealth(0);
    st.setAux3(9);
    st.setIod(201);
    return st;
}

} // namespace ZelSample

#endif
