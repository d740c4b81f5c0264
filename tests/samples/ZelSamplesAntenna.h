#ifndef ZELTYPES_TESTS_SAMPLES_ZELSAMPLESANTENNA_H
#define ZELTYPES_TESTS_SAMPLES_ZELSAMPLESANTENNA_H

// Sample records of the antenna family, shared by tests, benchmarks and
// seeds: descriptor, set-up offsets, calibrations and models, the antenna
// itself and the fixed offset and variation tables. Every field holds a
// value other than its default; values are exact in binary and in six
// significant digits, so that the text lines hold them whole.

#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

#include <cstring>
#include <vector>

namespace ZelSample
{

// IGS name "ZEL4000.01      ZELD" (blanks inside), serial "SN 0042",
// setup 3, creator 7, type 2. The local name stays empty: it is compared
// but travels in neither form, so that a sample read back from either
// form equals the sample.
inline ZELN::SZelAntDescriptor AntDescriptor()
{
    ZELN::SZelAntDescriptor st;
    std::strcpy(st.acIgsName, "ZEL4000.01      ZELD");
    std::strcpy(st.acSerialNo, "SN 0042");
    st.ucSetupId = 3;
    st.ucCreatorId = 7;
    st.ucType = 2;
    return st;
}

// The descriptor above with the local name "Roof".
inline ZELN::SZelAntDescriptor AntDescriptorWithLocalName()
{
    ZELN::SZelAntDescriptor st = AntDescriptor();
    const char16_t awcName[] = u"Roof";
    std::memcpy(st.awcName, awcName, sizeof(awcName));
    return st;
}

// A vertical reading: all three offsets filled, 0.25 m east and -0.5 m
// north of the mark, ARP 0.0625 m above the end of the 1.5 m reading; the
// horizontal leg (0.75 m) is not used in this mode but travels in the image.
inline ZELN::SZelARPOffsets ARPOffsetsVertical()
{
    ZELN::SZelARPOffsets st;
    st.m_eAvailability = ZELN::ebVOAVAILABLE | ZELN::ebHOAVAILABLE | ZELN::ebRDAVAILABLE;
    st.m_afHorzOffset = ZELN::SZelHorizontalOffset(0.25f, -0.5f);
    st.m_dVerticalOffset = 0.0625;
    st.m_eReadMode = ZELN::ZELANTREADMODE_VERTICAL;
    st.m_dHeightRead = 1.5;
    st.m_dHorzOffsetRead = 0.75;
    return st;
}

// A slant reading of 2 m with a horizontal leg of 1.2 m (1.6 m vertical);
// 0.125 m east, 0.375 m north, ARP 0.03125 m above the reading.
inline ZELN::SZelARPOffsets ARPOffsetsSlant()
{
    ZELN::SZelARPOffsets st;
    st.m_eAvailability = ZELN::ebVOAVAILABLE | ZELN::ebHOAVAILABLE | ZELN::ebRDAVAILABLE;
    st.m_afHorzOffset = ZELN::SZelHorizontalOffset(0.125f, 0.375f);
    st.m_dVerticalOffset = 0.03125;
    st.m_eReadMode = ZELN::ZELANTREADMODE_SLANT;
    st.m_dSlopeRead = 2.0;
    st.m_dHorzOffsetRead = 1.2;
    return st;
}

// A calibration: offset north, east, up in metres, then iRows rows of
// iValues variations in millimetres, value (row, k) = fBase - 0.25 k + 0.5 row.
inline ZELN::SZelAntPCC AntPCC(float fNorth, float fEast, float fUp, int iRows, int iValues, float fBase)
{
    ZELN::SZelAntPCC st;
    st.afPCO[0] = fNorth;
    st.afPCO[1] = fEast;
    st.afPCO[2] = fUp;
    for (int iRow = 0; iRow < iRows; ++iRow)
    {
        std::vector<float> vecRow;
        for (int iVal = 0; iVal < iValues; ++iVal)
        {
            vecRow.push_back(fBase - 0.25f * static_cast<float>(iVal) + 0.5f * static_cast<float>(iRow));
        }
        st.vecPCV.push_back(vecRow);
    }
    return st;
}

// G01: 0.5 mm north, -1.25 mm east, 62.5 mm up; 2 rows of 3 values.
inline ZELN::SZelAntPCC AntPCCBand0()
{
    return AntPCC(0.0005f, -0.00125f, 0.0625f, 2, 3, 1.5f);
}

// G02: -0.75 mm north, 0.25 mm east, 58.75 mm up; 3 rows of 2 values.
inline ZELN::SZelAntPCC AntPCCBand1()
{
    return AntPCC(-0.00075f, 0.00025f, 0.05875f, 3, 2, -2.0f);
}

// E05: 1 mm north, 2 mm east, 75 mm up; one row of 4 values.
inline ZELN::SZelAntPCC AntPCCGalileo()
{
    return AntPCC(0.001f, 0.002f, 0.075f, 1, 4, 0.75f);
}

// Model 12, availability 3, azimuth step 0.25 rad, with G01, G02 and E05.
// The entries are inserted in reverse of the written order.
inline ZELN::SZelAntModel AntModel()
{
    ZELN::SZelAntModel st;
    st.unModelId = 12;
    st.ucModelAvail = 3;
    st.fAziRad = 0.25f;
    st.mapPCCs[ZELN::SZelAntModelKey(ZELN::ZELSATSYSTEM_GALILEO, ZELN::c_ulANTBAND_F05)] = AntPCCGalileo();
    st.mapPCCs[ZELN::SZelAntModelKey(ZELN::ZELSATSYSTEM_GPS, ZELN::c_ulANTBAND_F02)] = AntPCCBand1();
    st.mapPCCs[ZELN::SZelAntModelKey(ZELN::ZELSATSYSTEM_GPS, ZELN::c_ulANTBAND_F01)] = AntPCCBand0();
    return st;
}

// The descriptor, the vertical set-up and the model above.
inline ZELN::SZelAntennaInfo AntennaInfo()
{
    ZELN::SZelAntennaInfo st;
    st.stAntDescr = AntDescriptor();
    st.m_ARPOffsets = ARPOffsetsVertical();
    st.stAntModel = AntModel();
    return st;
}

// Both bands valid; offsets in millimetres.
inline ZELN::SZelAntPCOTable AntPCOTable()
{
    ZELN::SZelAntPCOTable st;
    st.ulValidFrqs = 3;
    st.fL1Up = 61.5f;
    st.fL2Up = 58.25f;
    st.fL1East = 0.5f;
    st.fL1North = -1.25f;
    st.fL2East = 0.75f;
    st.fL2North = 1.5f;
    return st;
}

// The value the sample table holds at (frequency, azimuth, zenith).
inline int16_t AntPCVValue(size_t ulFrq, size_t ulAzi, size_t ulElev)
{
    return static_cast<int16_t>(static_cast<int>((ulFrq * 700 + ulAzi * 19 + ulElev) % 41) - 20);
}

// Both bands, 37 azimuths and 19 zenith angles filled.
inline ZELN::SZelAntPCVTable AntPCVTable()
{
    ZELN::SZelAntPCVTable st;
    st.ulValidFrqs = 3;
    st.ucNumAzi = 37;
    st.ucNumElev = 19;
    for (size_t ulFrq = 0; ulFrq < ZELN::SZelAntPCVTable::c_ulNUM_FRQ; ++ulFrq)
    {
        for (size_t ulAzi = 0; ulAzi < ZELN::SZelAntPCVTable::c_ulNUM_AZI; ++ulAzi)
        {
            for (size_t ulElev = 0; ulElev < ZELN::SZelAntPCVTable::c_ulNUM_ELEV; ++ulElev)
            {
                st.anValues[ulFrq][ulAzi][ulElev] = AntPCVValue(ulFrq, ulAzi, ulElev);
            }
        }
    }
    return st;
}

} // namespace ZelSample

#endif
