#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESORBITS_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESORBITS_H

// Orbit polynomials, orbit tables and tabulated states with a value other
// than the default in every field.

#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>

#include <cstdint>

namespace ZelSample
{

// A GPS polynomial; coefficients k of row r hold (r + 1) * 1000 + k + 0.5.
inline ZELN::SZelOrbPoly SampleOrbPoly()
{
    ZELN::SZelOrbPoly st(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GPS, 7), 3);
    st.ucOrbFlgs = 0x29;
    st.stRefTime = ZELN::SMjdTime(2300u, 345600.0);
    st.stClock.iIod = 77;
    st.stClock.stTime = ZELN::SMjdTime(2300u, 345630.0);
    st.stClock.dVldHalfSpan = 150.0;
    st.stClock.uiNumCoeffsToUse = 2;
    st.stClock.adCoeffs[0] = 1.25e-4;
    st.stClock.adCoeffs[1] = -3.5e-12;
    st.stClock.adCoeffs[2] = 7.0e-19;
    st.stCoords.iIod = 78;
    st.stCoords.stTime = ZELN::SMjdTime(2300u, 345660.0);
    st.stCoords.dVldHalfSpan = 300.0;
    st.stCoords.uiNumCoeffsToUse = 9;
    for (size_t ulRow = 0; ulRow < 3; ++ulRow)
    {
        for (size_t ulIdx = 0; ulIdx < 11; ++ulIdx)
        {
            st.stCoords.adCoeffs[ulRow][ulIdx] = static_cast<double>((ulRow + 1) * 1000 + ulIdx) + 0.5;
        }
    }
    st.uiUra = 12;
    st.stAddPars.dOdot = -8.25e-9;
    st.stAddPars.dDN = 4.5e-9;
    st.stAddPars.dMo = 1.125;
    st.stAddPars.dSqrtA = 5153.5;
    st.stAddPars.dEcc = 0.0078125;
    st.stAddPars.dTgd = -1.0e-8;
    st.stAddPars.dSpare = 42.0;
    return st;
}

// The same polynomial for a Galileo satellite.
inline ZELN::SZelOrbPoly SampleOrbPolyGalileo()
{
    ZELN::SZelOrbPoly st = SampleOrbPoly();
    st.stSatId = ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GALILEO, 12);
    ZELN::SZelOrbPolyAddParsGal stGal = st.getAddParsGal();
    stGal.dBgdE5a = 2.5e-9;
    stGal.dBgdE5b = -3.0e-9;
    st.setAddParsGal(stGal);
    return st;
}

inline ZELN::SZelSatGroupValues SampleSatGroupValues()
{
    ZELN::SZelSatGroupValues st(ZELN::SZelSatID(ZELN::ZELSATSYSTEM_GALILEO, 3), 0);
    st.setValue(ZELN::ZELFREQUENCY_GROUP_1, 0.25);
    st.setValue(ZELN::ZELFREQUENCY_GROUP_3, -1.5);
    return st;
}

// Characters 'A' + system and the satellite's index modulo 26, lower case.
inline ZELN::ZELX_ORBIT_SAT_TABLE SampleOrbitSatTable()
{
    ZELN::ZELX_ORBIT_SAT_TABLE st;
    for (size_t ulSys = 0; ulSys < ZELN::POS_INDEX_SYSTEMARRAY_SIZE; ++ulSys)
    {
        for (size_t ulSat = 0; ulSat < ZELN::POS_MAX_SATS_SYSTEM; ++ulSat)
        {
            st.acTable[ulSys][ulSat] = static_cast<char>(ulSat % 2 == 0 ? 'A' + ulSys : 'a' + ulSat % 26);
        }
    }
    return st;
}

inline ZELN::ZELX_ORBIT_FRAME_TRANSFORM SampleFrameTransform()
{
    ZELN::ZELX_ORBIT_FRAME_TRANSFORM st;
    st.adTrans[0] = 0.125;
    st.adTrans[1] = -0.25;
    st.adTrans[2] = 1.5;
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        st.adUpper[ulIdx] = 1.0 + static_cast<double>(ulIdx) / 8.0;
    }
    return st;
}

inline ZELN::ZELX_SAT_STATE_ENTRY SampleStateEntry(uint8_t ucSatellite)
{
    ZELN::ZELX_SAT_STATE_ENTRY st;
    st.ucSatellite = ucSatellite;
    st.ulContent =
        ZELN::ZELX_SAT_STATE_ENTRY::c_ulCONTENT_POSITION | ZELN::ZELX_SAT_STATE_ENTRY::c_ulCONTENT_CLOCK;
    st.stPosition = ZELN::SZelCoordinateTriplet(ZELN::ZELCOORDINATESYSTEM_CARTESIAN, 15000000.5 + ucSatellite,
                                                -20000000.25, 5000000.125);
    st.dClock = 1.0e-4 * (ucSatellite + 1);
    return st;
}

inline ZELN::ZELX_SAT_STATE_EPOCH SampleStateEpoch(double dSecond)
{
    ZELN::ZELX_SAT_STATE_EPOCH st;
    st.stTime = ZELN::SMjdTime(2300u, dSecond);
    st.vecEntries = {SampleStateEntry(3), SampleStateEntry(9)};
    return st;
}

inline ZELN::ZELX_SAT_STATE_TABLE SampleStateTable()
{
    ZELN::ZELX_SAT_STATE_TABLE st;
    st.ulSatSystem = ZELN::ZELSATSYSTEM_GALILEO;
    st.vecEpochs = {SampleStateEpoch(900.0), SampleStateEpoch(1800.0)};
    return st;
}

} // namespace ZelSample

#endif
