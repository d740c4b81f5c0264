#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESALMANACS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESALMANACS_H

// Almanacs with a value other than the default in every field. Each is
// valid; the health words are set so that the GPS, QZSS and GLONASS
// samples are healthy only where a test says so.

#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>

#include <cstdint>

namespace ZelSample
{

// GPS week 2300, second 319488 (78 x 4096).
inline ZELN::SMjdTime AlmanacToa()
{
    return ZELN::SMjdTime(2300u, 319488.0);
}

inline void FillAlmanacBlock(ZELN::ZELX_SAT_ALMANAC_COMMON& rAlm, ZELN::EZelSatSystem eSys, uint8_t ucNumber)
{
    rAlm.stSatId = ZELN::SZelSatID(eSys, ucNumber);
    rAlm.stToa = AlmanacToa();
    const double adKepler[9] = {-1.25, 0.0125, 5153.75, 2.5, 0.96875, -0.75, -8.0e-9, 1.5e-4, -3.5e-12};
    for (size_t ulIdx = 0; ulIdx < 9; ++ulIdx)
    {
        rAlm.adKepler[ulIdx] = adKepler[ulIdx];
    }
}

inline ZELN::ZELX_SAT_ALMANAC SampleAlmanacGps()
{
    ZELN::ZELX_SAT_ALMANAC st;
    FillAlmanacBlock(st, ZELN::ZELSATSYSTEM_GPS, 5);
    st.ulSource = 2;
    st.ulToa = 319488;
    st.ucHealth = 4;
    st.ucConfig = 9;
    st.ucAux1 = 3;
    st.dAux2 = 1.5e-3;
    return st;
}

inline ZELN::ZELX_SAT_ALMANAC_QZSS SampleAlmanacQzss()
{
    ZELN::ZELX_SAT_ALMANAC_QZSS st;
    FillAlmanacBlock(st, ZELN::ZELSATSYSTEM_QZSS, 3);
    st.ulSource = 2;
    st.ulToa = 319488;
    st.ucHealth = 1;
    st.ucConfig = 63;
    st.ucAux1 = 7;
    st.dAux2 = -2.25;
    st.unAux3 = 0x1234;
    st.ulAux4 = 0x89ABCDEF;
    return st;
}

inline ZELN::ZELX_SAT_ALMANAC_GALILEO SampleAlmanacGalileo()
{
    ZELN::ZELX_SAT_ALMANAC_GALILEO st;
    FillAlmanacBlock(st, ZELN::ZELSATSYSTEM_GALILEO, 11);
    st.ucAux1 = 5;
    st.bPresent = 1;
    st.ucSignalMask = 3;
    st.ucStatusA = 0x08;
    st.ucStatusB = 0x40;
    return st;
}

inline ZELN::ZELX_SAT_ALMANAC_BEIDOU SampleAlmanacBeiDou()
{
    ZELN::ZELX_SAT_ALMANAC_BEIDOU st;
    FillAlmanacBlock(st, ZELN::ZELSATSYSTEM_BEIDOU, 10);
    st.bPresent = true;
    st.unAux1 = 0x0203;
    st.ulAux2 = 0x04050607;
    st.unHealth = 0x0080;
    return st;
}

inline ZELN::ZELX_SAT_ALMANAC_NAVIC SampleAlmanacNavic()
{
    ZELN::ZELX_SAT_ALMANAC_NAVIC st;
    FillAlmanacBlock(st, ZELN::ZELSATSYSTEM_NAVIC, 4);
    st.unAux1 = 0x0A0B;
    st.ulAux2 = 0x0C0D0E0F;
    st.bPresent = true;
    st.ulAux3 = 0x11121314;
    st.ulAux4 = 0x15161718;
    return st;
}

inline ZELN::ZELX_SAT_ALMANAC_GLONASS SampleAlmanacGlonass()
{
    ZELN::ZELX_SAT_ALMANAC_GLONASS st;
    st.ucSlot = 17;
    st.unAux1 = 0x2122;
    st.ulAux2 = 0x23242526;
    st.ucAux3 = 0x27;
    st.bPresent = true;
    st.cChannel = -5;
    st.stToa = ZELN::SMjdTime(2300u, 302400.5);
    st.ucAux4 = 0x28;
    st.unAux5 = 0x292A;
    st.ulHealth = 1;
    const double adElements[8] = {33000.25, -1.5, 0.0125, -2655.5, 0.25, 0.00125, 1.75, -3.0e-5};
    for (size_t ulIdx = 0; ulIdx < 8; ++ulIdx)
    {
        st.adElements[ulIdx] = adElements[ulIdx];
    }
    return st;
}

inline ZELN::ZELX_NAV_SUBFRAME SampleNavSubframe()
{
    uint8_t aucData[29];
    for (size_t ulIdx = 0; ulIdx < 29; ++ulIdx)
    {
        aucData[ulIdx] = static_cast<uint8_t>(0xA0 + ulIdx);
    }
    return ZELN::ZELX_NAV_SUBFRAME(0x01020304, 0x0506, 0x07, aucData, sizeof(aucData), 0x08);
}

} // namespace ZelSample

#endif
