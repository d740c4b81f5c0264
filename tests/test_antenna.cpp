// Antennas: descriptor, set-up offsets, calibrations and models, the antenna
// record, the fixed offset and variation tables, and the moves of a
// coordinate along the reference levels of an antenna.
#include "ZelSamplesAntenna.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::Bytes;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

const std::vector<std::string> c_vecOneFalse = {"false"};
const std::string c_strLatLonCheck =
    "fabs( rRefPtCoords.dLat ) <= (PI/2) && fabs( rRefPtCoords.dLon ) < TWO_PI";
const std::string c_strVerticalCheck = "(rRefAntInfo.m_ARPOffsets.m_eAvailability & ebVOAVAILABLE) || "
                                       "rRefAntInfo.m_ARPOffsets.m_dVerticalOffset == 0.0";

constexpr double c_dPi = 3.141592653589793;
// WGS 84, typed from the ellipsoid's axes: c = a^2 / b, e'^2 = (a^2 - b^2) / b^2.
constexpr double c_dA = 6378137.0;
constexpr double c_dB = 6356752.314245179;
const double c_dC = c_dA * c_dA / c_dB;
const double c_dE2 = (c_dA * c_dA - c_dB * c_dB) / (c_dB * c_dB);

// A text field of the image: the characters, then zeros up to the width.
void PutChars(CImage& rImage, const char* szText, size_t ulWidth)
{
    const size_t ulLen = std::strlen(szText);
    for (size_t ulIdx = 0; ulIdx < ulWidth; ++ulIdx)
    {
        rImage.U8(ulIdx < ulLen ? static_cast<unsigned char>(szText[ulIdx]) : 0);
    }
}

// A calibration's image from its offset table: three offsets at 0, 4, 8,
// the row count at 12, then per row the value count and the values.
void PutPCC(CImage& rImage, float fNorth, float fEast, float fUp,
            const std::vector<std::vector<float>>& rvecRows)
{
    const size_t ulStart = rImage.Size();
    rImage.At(ulStart).F32(fNorth).At(ulStart + 4).F32(fEast).At(ulStart + 8).F32(fUp);
    rImage.At(ulStart + 12).U32(static_cast<uint32_t>(rvecRows.size()));
    for (const auto& rvecRow : rvecRows)
    {
        rImage.U32(static_cast<uint32_t>(rvecRow.size()));
        for (const float fValue : rvecRow)
        {
            rImage.F32(fValue);
        }
    }
}

// The rows of the three sample calibrations, typed out.
const std::vector<std::vector<float>> c_vecRowsB0 = {{1.5f, 1.25f, 1.0f}, {2.0f, 1.75f, 1.5f}};
const std::vector<std::vector<float>> c_vecRowsB1 = {{-2.0f, -2.25f}, {-1.5f, -1.75f}, {-1.0f, -1.25f}};
const std::vector<std::vector<float>> c_vecRowsE5 = {{0.75f, 0.5f, 0.25f, 0.0f}};

Bytes DescriptorImage()
{
    CImage stImage;
    stImage.At(0);
    PutChars(stImage, "ZEL4000.01      ZELD", 32);
    stImage.At(32);
    PutChars(stImage, "SN 0042", 32);
    stImage.At(64).U8(3).At(65).U8(7).At(66).U8(2);
    return stImage.Get();
}

Bytes ARPVerticalImage()
{
    return CImage()
        .At(0)
        .U32(7)
        .At(4)
        .F32(0.25f)
        .At(8)
        .F32(-0.5f)
        .At(12)
        .Zero(4)
        .At(16)
        .F64(0.0625)
        .At(24)
        .I32(0)
        .At(28)
        .Zero(4)
        .At(32)
        .F64(1.5)
        .At(40)
        .F64(0.75)
        .Get();
}

Bytes ModelImage()
{
    CImage stImage;
    stImage.At(0).U16(12).At(2).U8(3).At(3).F32(0.25f).At(7).U32(3);
    stImage.At(11).I32(1).U32(0);
    PutPCC(stImage, 0.0005f, -0.00125f, 0.0625f, c_vecRowsB0);
    stImage.At(67).I32(1).U32(1);
    PutPCC(stImage, -0.00075f, 0.00025f, 0.05875f, c_vecRowsB1);
    stImage.At(127).I32(3).U32(4);
    PutPCC(stImage, 0.001f, 0.002f, 0.075f, c_vecRowsE5);
    stImage.At(171);
    return stImage.Get();
}

const std::string c_strDescriptorLine =
    "IgsName, ZEL4000.01      ZELD, SerNr, SN 0042, SetId, 3, CreId, 7, Type, 2";
const std::string c_strARPVerticalLine =
    "Avl, 7, HrzOffs, HrzOffsE, 0.25, HrzOffsN, -0.5, VerOffs, 0.0625, ReadMode, 0, HgtRead, 1.5";
const std::string c_strPCCB0Line =
    "PCO, 0.0005, -0.00125, 0.0625, PcvNumAzi, 2, PcvNumElev, 3, PCV, 1.5, 1.25, 1, PcvNumElev, 3, PCV, 2, "
    "1.75, 1.5";
const std::string c_strModelLine =
    "12, AntModelAvail, 3, AntAziRad, 0.25, PCCs, PCCsNum, 3, SatSys, G, FrqBand, 0, " + c_strPCCB0Line +
    ", SatSys, G, FrqBand, 1, PCO, -0.00075, 0.00025, 0.05875, PcvNumAzi, 3, PcvNumElev, 2, PCV, -2, -2.25, "
    "PcvNumElev, 2, PCV, -1.5, -1.75, PcvNumElev, 2, PCV, -1, -1.25, SatSys, E, FrqBand, 4, PCO, 0.001, "
    "0.002, 0.075, PcvNumAzi, 1, PcvNumElev, 4, PCV, 0.75, 0.5, 0.25, 0";
const std::string c_strInfoLine = "AntDescr, " + c_strDescriptorLine + ", ArpOffs, " + c_strARPVerticalLine +
                                  ", AntModel, " + c_strModelLine;

// A model of the sample's shape (same sizes everywhere) with other values:
// the target of a read whose bounds test looks at the present content.
SZelAntModel ModelSameShape()
{
    SZelAntModel st = ZelSample::AntModel();
    st.unModelId = 99;
    for (auto& rEntry : st.mapPCCs)
    {
        rEntry.second.afPCO[2] = 9.0f;
        for (auto& rvecRow : rEntry.second.vecPCV)
        {
            for (float& rfValue : rvecRow)
            {
                rfValue = -7.0f;
            }
        }
    }
    return st;
}

// The radii of the point at its height, evaluated here in the order given
// for the moves: V, then c / V + h and c / V^3 + h.
void TestRadii(double dLat, double dHgt, double& rdN, double& rdM)
{
    const double dCos = std::cos(dLat);
    const double dV = std::sqrt(1.0 + c_dE2 * dCos * dCos);
    rdN = c_dC / dV + dHgt;
    rdM = c_dC / (dV * dV * dV) + dHgt;
}

SZelGeoCoords Start()
{
    return SZelGeoCoords(0.8, 0.2, 100.0);
}

void ExpectSameCoords(const SZelGeoCoords& rExpected, const SZelGeoCoords& rActual)
{
    EXPECT_EQ(rExpected.dLat, rActual.dLat);
    EXPECT_EQ(rExpected.dLon, rActual.dLon);
    EXPECT_EQ(rExpected.dHgt, rActual.dHgt);
}

} // namespace

// ===================================================================== constants

TEST(AntennaConstants, Values)
{
    EXPECT_EQ(1u, static_cast<uint32_t>(ebVOAVAILABLE));
    EXPECT_EQ(2u, static_cast<uint32_t>(ebHOAVAILABLE));
    EXPECT_EQ(4u, static_cast<uint32_t>(ebRDAVAILABLE));
    EXPECT_EQ(0, ZELANTREADMODE_VERTICAL);
    EXPECT_EQ(1, ZELANTREADMODE_SLANT);
    EXPECT_EQ(0, ZELANTREFLEVEL_MARK);
    EXPECT_EQ(1, ZELANTREFLEVEL_HEIGHT_READ);
    EXPECT_EQ(2, ZELANTREFLEVEL_ARP);
    EXPECT_EQ(3, ZELANTREFLEVEL_PC_GPS_B0);
    EXPECT_EQ(4, ZELANTREFLEVEL_PC_GPS_B1);
    // The band is the ANTEX frequency number less one.
    const uint32_t aulBands[] = {c_ulANTBAND_F01, c_ulANTBAND_F02, c_ulANTBAND_F03,
                                 c_ulANTBAND_F04, c_ulANTBAND_F05, c_ulANTBAND_F06,
                                 c_ulANTBAND_F07, c_ulANTBAND_F08, c_ulANTBAND_F09};
    for (uint32_t ulIdx = 0; ulIdx < 9; ++ulIdx)
    {
        EXPECT_EQ(ulIdx, aulBands[ulIdx]);
    }
    EXPECT_EQ(2u, SZelAntPCVTable::c_ulNUM_FRQ);
    EXPECT_EQ(37u, SZelAntPCVTable::c_ulNUM_AZI);
    EXPECT_EQ(19u, SZelAntPCVTable::c_ulNUM_ELEV);
}

// ===================================================================== SZelAntDescriptor

TEST(AntDescriptor, DefaultIsEmpty)
{
    const SZelAntDescriptor st;
    for (const char16_t wc : st.awcName)
    {
        EXPECT_EQ(0, wc);
    }
    EXPECT_EQ(0, st.acIgsName[0]);
    EXPECT_EQ(0, st.acSerialNo[0]);
    EXPECT_EQ(0, st.ucSetupId);
    EXPECT_EQ(0, st.ucCreatorId);
    EXPECT_EQ(0, st.ucType);
    EXPECT_EQ(67u, st.getSize());
}

TEST(AntDescriptor, BinaryGolden)
{
    ZelTest::ExpectCoreImage(ZelSample::AntDescriptor(), DescriptorImage());
}

TEST(AntDescriptor, LocalNameIsNotInTheImageButCompared)
{
    const SZelAntDescriptor stSample = ZelSample::AntDescriptorWithLocalName();
    SZelAntDescriptor stRead;
    uint64_t ulCount = 0;
    ASSERT_TRUE(stRead.loadData(DescriptorImage().data(), 67, &ulCount));
    EXPECT_EQ(0, stRead.awcName[0]);
    EXPECT_FALSE(stRead == stSample);
    std::memcpy(stRead.awcName, stSample.awcName, sizeof(stRead.awcName));
    EXPECT_TRUE(stRead == stSample);
    // Nor in the line.
    std::ostringstream os;
    os << stSample;
    EXPECT_EQ(c_strDescriptorLine, os.str());
}

TEST(AntDescriptor, EqualityUpToTheEndOfEachName)
{
    const SZelAntDescriptor stA = ZelSample::AntDescriptorWithLocalName();
    SZelAntDescriptor stB = stA;
    // What lies behind a terminator does not count.
    stB.acIgsName[25] = 'X';
    stB.acSerialNo[20] = 'Y';
    stB.awcName[10] = u'Z';
    EXPECT_TRUE(stA == stB);
    // A longer name is another name.
    SZelAntDescriptor stC = stA;
    std::strcpy(stC.acSerialNo, "SN 00421");
    EXPECT_FALSE(stA == stC);
    SZelAntDescriptor stD = stA;
    stD.awcName[1] = u'x';
    EXPECT_FALSE(stA == stD);
    SZelAntDescriptor stE = stA;
    stE.acIgsName[0] = 'Y';
    EXPECT_FALSE(stA == stE);
    for (int iField = 0; iField < 3; ++iField)
    {
        SZelAntDescriptor stF = stA;
        (iField == 0 ? stF.ucSetupId : iField == 1 ? stF.ucCreatorId : stF.ucType) = 200;
        EXPECT_FALSE(stA == stF) << iField;
        EXPECT_TRUE(stA != stF);
    }
    // Full 32 characters on both sides, no terminator: compared whole.
    SZelAntDescriptor stG = stA;
    SZelAntDescriptor stH = stA;
    std::memset(stG.acIgsName, 'A', 32);
    std::memset(stH.acIgsName, 'A', 32);
    EXPECT_TRUE(stG == stH);
    stH.acIgsName[31] = 'B';
    EXPECT_FALSE(stG == stH);
}

TEST(AntDescriptor, Text)
{
    ZelTest::ExpectText(ZelSample::AntDescriptor(), c_strDescriptorLine);
    std::istringstream is(c_strDescriptorLine);
    SZelAntDescriptor stRead;
    is >> stRead;
    EXPECT_STREQ("ZEL4000.01      ZELD", stRead.acIgsName);
    EXPECT_STREQ("SN 0042", stRead.acSerialNo);
    EXPECT_EQ(3, stRead.ucSetupId);
    EXPECT_EQ(7, stRead.ucCreatorId);
    EXPECT_EQ(2, stRead.ucType);
    // White-space skipping is on again after the reader.
    EXPECT_TRUE(is.flags() & std::ios_base::skipws);
}

TEST(AntDescriptor, TextFullNameHasNoTerminator)
{
    SZelAntDescriptor st;
    std::memset(st.acIgsName, 'N', 32);
    std::strcpy(st.acSerialNo, "S");
    std::ostringstream os;
    os << st;
    EXPECT_EQ("IgsName, " + std::string(32, 'N') + ", SerNr, S, SetId, 0, CreId, 0, Type, 0", os.str());
    // Read back: 32 characters fill the field and leave no terminator; the
    // position stays right for the next tag.
    SZelAntDescriptor stRead;
    std::memset(stRead.acIgsName, 'q', 32);
    std::istringstream is(os.str());
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(std::string(32, 'N'), std::string(stRead.acIgsName, 32));
    EXPECT_STREQ("S", stRead.acSerialNo);
    EXPECT_TRUE(stRead == st);
}

TEST(AntDescriptor, TextCommaStoresZeroInPlace)
{
    SZelAntDescriptor st;
    std::strcpy(st.acIgsName, "OLD NAME THAT IS LONG");
    std::istringstream is("IgsName, AB, SerNr, , SetId, 1, CreId, 2, Type, 3");
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_STREQ("AB", st.acIgsName);
    // The rest of the old name stays behind the terminator.
    EXPECT_EQ(' ', st.acIgsName[3]);
    EXPECT_EQ('N', st.acIgsName[4]);
    EXPECT_EQ(0, st.acSerialNo[0]);
    EXPECT_EQ(1, st.ucSetupId);
    EXPECT_EQ(2, st.ucCreatorId);
    EXPECT_EQ(3, st.ucType);
}

// ===================================================================== SZelARPOffsets

TEST(ARPOffsets, DefaultIsUnavailable)
{
    const SZelARPOffsets st;
    EXPECT_EQ(0u, st.m_eAvailability);
    EXPECT_FALSE(st.IsAvailable());
    EXPECT_EQ(0.0f, st.m_afHorzOffset.fHrzOffsE);
    EXPECT_EQ(0.0f, st.m_afHorzOffset.fHrzOffsN);
    EXPECT_EQ(0.0, st.m_dVerticalOffset);
    EXPECT_EQ(ZELANTREADMODE_VERTICAL, st.m_eReadMode);
    EXPECT_EQ(0.0, st.m_dHeightRead);
    EXPECT_EQ(0.0, st.m_dHorzOffsetRead);
    EXPECT_EQ(48u, st.getSize());
    for (const uint32_t ulBit : {1u, 2u, 4u, 8u})
    {
        SZelARPOffsets stAvl;
        stAvl.m_eAvailability = ulBit;
        EXPECT_TRUE(stAvl.IsAvailable());
    }
}

TEST(ARPOffsets, SlopeSharesThePlaceOfTheHeight)
{
    SZelARPOffsets st;
    st.m_dSlopeRead = 2.5;
    EXPECT_EQ(static_cast<const void*>(&st.m_dHeightRead), static_cast<const void*>(&st.m_dSlopeRead));
}

TEST(ARPOffsets, BinaryGoldenVertical)
{
    ZelTest::ExpectCoreImage(ZelSample::ARPOffsetsVertical(), ARPVerticalImage());
}

TEST(ARPOffsets, BinaryGoldenSlant)
{
    const Bytes vecExpected = CImage()
                                  .At(0)
                                  .U32(7)
                                  .At(4)
                                  .F32(0.125f)
                                  .At(8)
                                  .F32(0.375f)
                                  .At(12)
                                  .Zero(4)
                                  .At(16)
                                  .F64(0.03125)
                                  .At(24)
                                  .I32(1)
                                  .At(28)
                                  .Zero(4)
                                  .At(32)
                                  .F64(2.0)
                                  .At(40)
                                  .F64(1.2)
                                  .Get();
    ZelTest::ExpectCoreImage(ZelSample::ARPOffsetsSlant(), vecExpected);
}

TEST(ARPOffsets, ReservedBytesAreZeroAndSkipped)
{
    Bytes vecImage = ARPVerticalImage();
    vecImage[12] = 0x5A;
    vecImage[29] = 0xA5;
    SZelARPOffsets stRead;
    uint64_t ulCount = 0;
    ASSERT_TRUE(stRead.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_TRUE(stRead == ZelSample::ARPOffsetsVertical());
    Bytes vecOut(48, 0xEE);
    ASSERT_TRUE(stRead.saveData(vecOut.data(), vecOut.size(), &ulCount));
    EXPECT_EQ(ARPVerticalImage(), vecOut);
}

TEST(ARPOffsets, EqualityByMode)
{
    const SZelARPOffsets stV = ZelSample::ARPOffsetsVertical();
    // Mode 0: the horizontal leg does not count.
    SZelARPOffsets stV2 = stV;
    stV2.m_dHorzOffsetRead = 99.0;
    EXPECT_TRUE(stV == stV2);
    stV2.m_dHeightRead = 1.25;
    EXPECT_FALSE(stV == stV2);
    // Mode 1: slope and leg.
    const SZelARPOffsets stS = ZelSample::ARPOffsetsSlant();
    SZelARPOffsets stS2 = stS;
    stS2.m_dHorzOffsetRead = 1.25;
    EXPECT_FALSE(stS == stS2);
    stS2 = stS;
    stS2.m_dSlopeRead = 2.5;
    EXPECT_FALSE(stS == stS2);
    // Any other mode is unequal, even to itself.
    SZelARPOffsets stX = stV;
    stX.m_eReadMode = static_cast<EZelAntReadMode>(2);
    EXPECT_FALSE(stX == stX);
    // Head fields.
    SZelARPOffsets stH = stV;
    stH.m_eAvailability = 3;
    EXPECT_FALSE(stV == stH);
    stH = stV;
    stH.m_dVerticalOffset = 0.0626;
    EXPECT_FALSE(stV == stH);
    stH = stV;
    stH.m_eReadMode = ZELANTREADMODE_SLANT;
    EXPECT_FALSE(stV == stH);
    // The horizontal offsets within their relative 1e-6.
    stH = stV;
    stH.m_afHorzOffset.fHrzOffsE = 0.25f * (1.0f + 5e-7f);
    EXPECT_TRUE(stV == stH);
    stH.m_afHorzOffset.fHrzOffsE = 0.25f * (1.0f + 4e-6f);
    EXPECT_FALSE(stV == stH);
    // Doubles exactly, NaN unequal.
    stH = stV;
    stH.m_dHeightRead = std::nextafter(1.5, 2.0);
    EXPECT_FALSE(stV == stH);
    stH = stV;
    stH.m_dVerticalOffset = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(stH == stH);
}

TEST(ARPOffsets, TextVertical)
{
    ZelTest::ExpectTextExact(ZelSample::ARPOffsetsVertical(), c_strARPVerticalLine);
}

TEST(ARPOffsets, TextSlantDoublesItsTag)
{
    ZelTest::ExpectTextExact(
        ZelSample::ARPOffsetsSlant(),
        "Avl, 7, HrzOffs, HrzOffsE, 0.125, HrzOffsN, 0.375, VerOffs, 0.03125, ReadMode, 1, "
        "SlpRead, SlpRead, 2, HrzOffs, 1.2");
}

TEST(ARPOffsets, TextOtherModeReportsBothWays)
{
    SZelARPOffsets st = ZelSample::ARPOffsetsVertical();
    st.m_eReadMode = static_cast<EZelAntReadMode>(5);
    {
        CRecordingHook stHook;
        std::ostringstream os;
        os << st;
        EXPECT_EQ("Avl, 7, HrzOffs, HrzOffsE, 0.25, HrzOffsN, -0.5, VerOffs, 0.0625, ReadMode, 5", os.str());
        EXPECT_EQ(c_vecOneFalse, stHook.Texts());
    }
    {
        CRecordingHook stHook;
        SZelARPOffsets stRead = ZelSample::ARPOffsetsVertical();
        std::istringstream is("Avl, 1, HrzOffs, HrzOffsE, 1, HrzOffsN, 2, VerOffs, 3, ReadMode, 5, Next, 1");
        is >> stRead;
        EXPECT_EQ(c_vecOneFalse, stHook.Texts());
        EXPECT_EQ(5, stRead.m_eReadMode);
        EXPECT_EQ(1.5, stRead.m_dHeightRead) << "no reading is taken for an unknown mode";
        std::string strNext;
        is >> strNext;
        EXPECT_EQ(",", strNext) << "the reader stops behind the mode";
    }
}

// ===================================================================== SZelAntPCC

TEST(AntPCC, DefaultAndSize)
{
    const SZelAntPCC st;
    EXPECT_TRUE(st.vecPCV.empty());
    EXPECT_EQ(0.0f, st.afPCO[0]);
    EXPECT_EQ(0.0f, st.afPCO[1]);
    EXPECT_EQ(0.0f, st.afPCO[2]);
    EXPECT_EQ(16u, st.getSize());
    // 16 + the sum of 4 + 4 x values.
    EXPECT_EQ(16u + (4u + 12u) * 2u, ZelSample::AntPCCBand0().getSize());
    EXPECT_EQ(16u + (4u + 8u) * 3u, ZelSample::AntPCCBand1().getSize());
}

TEST(AntPCC, BinaryGolden)
{
    CImage stImage;
    PutPCC(stImage, 0.0005f, -0.00125f, 0.0625f, c_vecRowsB0);
    stImage.At(48);
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    SZelAntPCC stTarget = ZelSample::AntPCC(9.0f, 9.0f, 9.0f, 2, 3, -9.0f);
    ZelTest::ExpectCoreImage(ZelSample::AntPCCBand0(), stImage.Get(), stRules, stTarget);
}

TEST(AntPCC, EmptyRowsAndNoRows)
{
    SZelAntPCC st;
    st.afPCO[2] = 0.5f;
    st.vecPCV.resize(2);
    st.vecPCV[1].push_back(3.0f);
    const Bytes vecExpected = CImage()
                                  .At(0)
                                  .F32(0.0f)
                                  .At(4)
                                  .F32(0.0f)
                                  .At(8)
                                  .F32(0.5f)
                                  .At(12)
                                  .U32(2)
                                  .At(16)
                                  .U32(0)
                                  .At(20)
                                  .U32(1)
                                  .At(24)
                                  .F32(3.0f)
                                  .Get();
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    SZelAntPCC stTarget;
    stTarget.vecPCV.resize(3);
    ZelTest::ExpectCoreImage(st, vecExpected, stRules, stTarget);
    ZelTest::ExpectTextExact(st, "PCO, 0, 0, 0.5, PcvNumAzi, 2, PcvNumElev, 0, PCV, PcvNumElev, 1, PCV, 3");
}

TEST(AntPCC, SignOfZeroInOffsetsCountsButNotInVariations)
{
    SZelAntPCC stA = ZelSample::AntPCCBand0();
    SZelAntPCC stB = stA;
    stA.afPCO[1] = 0.0f;
    stB.afPCO[1] = -0.0f;
    EXPECT_FALSE(stA == stB);
    EXPECT_TRUE(stA != stB);
    stB.afPCO[1] = 0.0f;
    stA.vecPCV[0][1] = 0.0f;
    stB.vecPCV[0][1] = -0.0f;
    EXPECT_TRUE(stA == stB);
}

TEST(AntPCC, EqualityOfRows)
{
    const SZelAntPCC stA = ZelSample::AntPCCBand0();
    SZelAntPCC stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.vecPCV.pop_back();
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.vecPCV[1].push_back(0.0f);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.vecPCV[1][2] = std::nextafter(1.5f, 2.0f);
    EXPECT_FALSE(stA == stB);
    // NaN unequal, in the rows and in the offsets (as bits, a NaN equals itself).
    stB = stA;
    stB.vecPCV[0][0] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(stB == stB);
    stB = stA;
    stB.afPCO[0] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(stB == stB);
}

TEST(AntPCC, Text)
{
    ZelTest::ExpectTextExact(ZelSample::AntPCCBand0(), c_strPCCB0Line);
}

// ===================================================================== SZelAntModelKey

TEST(AntModelKey, ImageTextOrderAndHash)
{
    const SZelAntModelKey stKey(ZELSATSYSTEM_GALILEO, 4);
    ZelTest::ExpectCoreImage(stKey, CImage().At(0).I32(3).At(4).U32(4).Get());
    ZelTest::ExpectTextExact(stKey, "SatSys, E, FrqBand, 4");
    EXPECT_TRUE(SZelAntModelKey(ZELSATSYSTEM_GPS, 1) < SZelAntModelKey(ZELSATSYSTEM_GLONASS, 0));
    EXPECT_TRUE(SZelAntModelKey(ZELSATSYSTEM_GPS, 0) < SZelAntModelKey(ZELSATSYSTEM_GPS, 1));
    EXPECT_FALSE(SZelAntModelKey(ZELSATSYSTEM_GPS, 1) < SZelAntModelKey(ZELSATSYSTEM_GPS, 1));
    // Both as signed numbers: a band of 0x80000000 comes first.
    EXPECT_TRUE(SZelAntModelKey(ZELSATSYSTEM_GPS, 0x80000000u) < SZelAntModelKey(ZELSATSYSTEM_GPS, 0));
    EXPECT_TRUE(SZelAntModelKey(static_cast<EZelSatSystem>(-1), 5) < SZelAntModelKey(ZELSATSYSTEM_NONE, 0));
    EXPECT_TRUE(SZelAntModelKey(ZELSATSYSTEM_GPS, 1) == SZelAntModelKey(ZELSATSYSTEM_GPS, 1));
    EXPECT_TRUE(SZelAntModelKey(ZELSATSYSTEM_GPS, 1) != SZelAntModelKey(ZELSATSYSTEM_GPS, 2));
    EXPECT_TRUE(SZelAntModelKey(ZELSATSYSTEM_GPS, 1) != SZelAntModelKey(ZELSATSYSTEM_QZSS, 1));
    EXPECT_EQ(hash_value(SZelAntModelKey(ZELSATSYSTEM_GPS, 1)),
              hash_value(SZelAntModelKey(ZELSATSYSTEM_GPS, 1)));
}

TEST(AntModelKey, UnknownLetterGivesInvalidAndReadingGoesOn)
{
    CRecordingHook stHook;
    SZelAntModelKey stKey;
    std::istringstream is("SatSys, X, FrqBand, 7");
    is >> stKey;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(9, stKey.eSatSystem);
    EXPECT_EQ(7u, stKey.ulFrqBand);
    EXPECT_EQ(c_vecOneFalse, stHook.Texts());
}

// ===================================================================== SZelAntModel

TEST(AntModel, DefaultAndLoadFactor)
{
    const SZelAntModel st;
    EXPECT_EQ(0, st.unModelId);
    EXPECT_EQ(0, st.ucModelAvail);
    EXPECT_EQ(0.0f, st.fAziRad);
    EXPECT_TRUE(st.mapPCCs.empty());
    EXPECT_EQ(1.0f, st.mapPCCs.max_load_factor());
    EXPECT_EQ(11u, st.getSize());
    const SZelAntModel stCopy = ZelSample::AntModel();
    EXPECT_EQ(1.0f, stCopy.mapPCCs.max_load_factor());
}

TEST(AntModel, BinaryGoldenInKeyOrder)
{
    const SZelAntModel stSample = ZelSample::AntModel();
    EXPECT_EQ(7u + 4u + (8u + 48u) + (8u + 52u) + (8u + 36u), stSample.getSize());
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(stSample, ModelImage(), stRules, ModelSameShape());
}

TEST(AntModel, EqualModelsGiveEqualFormsWhateverTheInsertionOrder)
{
    // Many keys, inserted forwards and backwards with different bucket
    // histories, so that the maps' iteration orders differ.
    SZelAntModel stA;
    SZelAntModel stB;
    stB.mapPCCs.rehash(97);
    std::vector<SZelAntModelKey> vecKeys;
    for (int iSys = 8; iSys >= 1; --iSys)
    {
        for (uint32_t ulBand = 0; ulBand < 9; ++ulBand)
        {
            vecKeys.emplace_back(static_cast<EZelSatSystem>(iSys), ulBand);
        }
    }
    for (size_t ulIdx = 0; ulIdx < vecKeys.size(); ++ulIdx)
    {
        const float fValue = static_cast<float>(ulIdx) * 0.5f;
        stA.mapPCCs[vecKeys[ulIdx]] = ZelSample::AntPCC(fValue, 1.0f, 2.0f, 1, 1, fValue);
    }
    for (size_t ulIdx = vecKeys.size(); ulIdx-- > 0;)
    {
        const float fValue = static_cast<float>(ulIdx) * 0.5f;
        stB.mapPCCs[vecKeys[ulIdx]] = ZelSample::AntPCC(fValue, 1.0f, 2.0f, 1, 1, fValue);
    }
    ASSERT_TRUE(stA == stB);
    Bytes vecA(stA.getSize());
    Bytes vecB(stB.getSize());
    uint64_t ulCount = 0;
    ASSERT_TRUE(stA.saveData(vecA.data(), vecA.size(), &ulCount));
    ASSERT_TRUE(stB.saveData(vecB.data(), vecB.size(), &ulCount));
    EXPECT_EQ(vecA, vecB);
    std::ostringstream osA;
    std::ostringstream osB;
    osA << stA;
    osB << stB;
    EXPECT_EQ(osA.str(), osB.str());
    // The first entry written is the smallest key: GPS band 0, at 11.
    int32_t lSys = 0;
    uint32_t ulBand = 99;
    std::memcpy(&lSys, &vecA[11], 4);
    std::memcpy(&ulBand, &vecA[15], 4);
    EXPECT_EQ(1, lSys);
    EXPECT_EQ(0u, ulBand);
}

TEST(AntModel, EqualityFields)
{
    const SZelAntModel stA = ZelSample::AntModel();
    SZelAntModel stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.unModelId = 13;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucModelAvail = 4;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.fAziRad = std::nextafter(0.25f, 1.0f);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.mapPCCs.erase(SZelAntModelKey(ZELSATSYSTEM_GPS, 1));
    EXPECT_FALSE(stA == stB);
    EXPECT_FALSE(stB == stA);
    // Same size, another key.
    stB.mapPCCs[SZelAntModelKey(ZELSATSYSTEM_GPS, 2)] = ZelSample::AntPCCBand1();
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.mapPCCs[SZelAntModelKey(ZELSATSYSTEM_GPS, 1)].afPCO[0] = 1.0f;
    EXPECT_FALSE(stA == stB);
}

TEST(AntModel, Text)
{
    ZelTest::ExpectTextExact(ZelSample::AntModel(), c_strModelLine, ModelSameShape());
}

TEST(AntModel, TextKeyTwiceKeepsTheLastValue)
{
    SZelAntModel st = ZelSample::AntModel();
    std::istringstream is(
        "5, AntModelAvail, 1, AntAziRad, 0.5, PCCs, PCCsNum, 2, SatSys, R, FrqBand, 1, PCO, 1, "
        "2, 3, PcvNumAzi, 0, SatSys, R, FrqBand, 1, PCO, 4, 5, 6, PcvNumAzi, 1, PcvNumElev, 1, "
        "PCV, 7");
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(5, st.unModelId);
    EXPECT_EQ(1, st.ucModelAvail);
    EXPECT_EQ(0.5f, st.fAziRad);
    ASSERT_EQ(1u, st.mapPCCs.size()) << "the map read replaces the old one";
    const SZelAntPCC& rPCC = st.mapPCCs.at(SZelAntModelKey(ZELSATSYSTEM_GLONASS, 1));
    EXPECT_EQ(4.0f, rPCC.afPCO[0]);
    EXPECT_EQ(5.0f, rPCC.afPCO[1]);
    EXPECT_EQ(6.0f, rPCC.afPCO[2]);
    ASSERT_EQ(1u, rPCC.vecPCV.size());
    EXPECT_EQ(std::vector<float>{7.0f}, rPCC.vecPCV[0]);
}

TEST(AntModel, BinaryKeyTwiceKeepsTheLastValueAndFailsTheSizeCheck)
{
    CImage stImage;
    stImage.At(0).U16(1).At(2).U8(0).At(3).F32(0.0f).At(7).U32(2);
    stImage.At(11).I32(1).U32(0);
    PutPCC(stImage, 1.0f, 0.0f, 0.0f, {});
    stImage.At(35).I32(1).U32(0);
    PutPCC(stImage, 2.0f, 0.0f, 0.0f, {});
    CRecordingHook stHook;
    SZelAntModel st;
    uint64_t ulCount = 0;
    // One entry holds fewer bytes than the image had: the count does not
    // match the size of what was read.
    EXPECT_FALSE(st.loadData(stImage.Get().data(), stImage.Size(), &ulCount));
    EXPECT_EQ(stImage.Size(), ulCount);
    ASSERT_EQ(1u, st.mapPCCs.size());
    EXPECT_EQ(2.0f, st.mapPCCs.at(SZelAntModelKey(ZELSATSYSTEM_GPS, 0)).afPCO[0]);
    EXPECT_EQ(0u, stHook.Count());
}

// ===================================================================== SZelAntennaInfo

TEST(AntennaInfo, DefaultAndSize)
{
    const SZelAntennaInfo st;
    EXPECT_TRUE(st.stAntDescr == SZelAntDescriptor());
    EXPECT_TRUE(st.m_ARPOffsets == SZelARPOffsets());
    EXPECT_TRUE(st.stAntModel == SZelAntModel());
    EXPECT_EQ(115u + 11u, st.getSize());
    EXPECT_EQ(115u + ZelSample::AntModel().getSize(), ZelSample::AntennaInfo().getSize());
}

TEST(AntennaInfo, BinaryGolden)
{
    CImage stImage;
    stImage.At(0).Append(DescriptorImage()).At(67).Append(ARPVerticalImage()).At(115).Append(ModelImage());
    SZelAntennaInfo stTarget;
    stTarget.stAntModel = ModelSameShape();
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(ZelSample::AntennaInfo(), stImage.Get(), stRules, stTarget);
}

TEST(AntennaInfo, LowerRecordFailureReturnsFalseWithoutOwnReport)
{
    const SZelAntennaInfo stSample = ZelSample::AntennaInfo();
    Bytes vecImage(stSample.getSize());
    uint64_t ulCount = 0;
    ASSERT_TRUE(stSample.saveData(vecImage.data(), vecImage.size(), &ulCount));
    // A forged row count in the first calibration: the model runs out of
    // bytes, the antenna returns false; the nested calibration reports.
    const size_t ulRowCountAt = 115 + 11 + 8 + 12;
    const uint32_t ulForged = 0xFFFFFFFFu;
    std::memcpy(&vecImage[ulRowCountAt], &ulForged, 4);
    CRecordingHook stHook;
    SZelAntennaInfo stRead;
    EXPECT_FALSE(stRead.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_EQ(0u, stHook.Count()) << "running out inside a calibration's rows is silent";
    EXPECT_EQ(vecImage.size(), ulCount);
    EXPECT_TRUE(stRead.stAntDescr == stSample.stAntDescr);
    EXPECT_TRUE(stRead.m_ARPOffsets == stSample.m_ARPOffsets);
}

TEST(AntennaInfo, BufferEndingInsideTheModelShowsHowFarItGot)
{
    const SZelAntennaInfo stSample = ZelSample::AntennaInfo();
    Bytes vecImage(stSample.getSize());
    uint64_t ulCount = 0;
    ASSERT_TRUE(stSample.saveData(vecImage.data(), vecImage.size(), &ulCount));
    // A fresh target passes the test of its present size (126 bytes); the
    // bytes end 10 bytes into the second calibration, at 200.
    CRecordingHook stHook;
    SZelAntennaInfo stRead;
    EXPECT_FALSE(stRead.loadData(vecImage.data(), 200, &ulCount));
    // Descriptor 67, offsets 48, model head 11, first entry 8 + 48, second key 8.
    EXPECT_EQ(67u + 48u + 11u + 56u + 8u, ulCount);
    EXPECT_EQ(c_vecOneFalse, stHook.Texts()) << "the calibration's own bounds test";
    EXPECT_TRUE(stRead.stAntDescr == stSample.stAntDescr);
    EXPECT_TRUE(stRead.m_ARPOffsets == stSample.m_ARPOffsets);
    EXPECT_EQ(1u, stRead.stAntModel.mapPCCs.size());
}

TEST(AntennaInfo, Text)
{
    ZelTest::ExpectTextExact(ZelSample::AntennaInfo(), c_strInfoLine);
}

TEST(AntennaInfo, TextWithOtherTagWordsReadsTheSame)
{
    // Every tag word replaced by another word of the same shape.
    std::string strLine = c_strInfoLine;
    for (const char* szTag :
         {"AntDescr,", "IgsName,",       "SerNr,",      "SetId,",    "CreId,",   "Type,",     "ArpOffs,",
          "Avl,",      "HrzOffs,",       "HrzOffsE,",   "HrzOffsN,", "VerOffs,", "ReadMode,", "HgtRead,",
          "AntModel,", "AntModelAvail,", "AntAziRad,",  "PCCs,",     "PCCsNum,", "SatSys,",   "FrqBand,",
          "PCO,",      "PcvNumAzi,",     "PcvNumElev,", "PCV,"})
    {
        const std::string strTag = std::string(" ") + szTag + " ";
        size_t ulAt = 0;
        while ((ulAt = strLine.find(strTag, ulAt)) != std::string::npos)
        {
            strLine.replace(ulAt, strTag.size(), " Zz, ");
            ulAt += 5;
        }
    }
    strLine.replace(0, std::strlen("AntDescr,"), "Q,");
    ASSERT_EQ(std::string::npos, strLine.find("PcvNumElev"));
    std::istringstream is(strLine);
    SZelAntennaInfo stRead;
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(stRead.stAntModel == ZelSample::AntModel());
    EXPECT_TRUE(stRead.m_ARPOffsets == ZelSample::ARPOffsetsVertical());
    std::ostringstream os;
    os << stRead;
    EXPECT_EQ(c_strInfoLine, os.str());
}

TEST(AntennaInfo, TextCutKeepsTheFieldsAfterTheCut)
{
    SZelAntennaInfo stRead;
    stRead.stAntModel.fAziRad = 7.5f;
    stRead.m_ARPOffsets.m_dVerticalOffset = 9.5;
    const std::string strCut = c_strInfoLine.substr(0, c_strInfoLine.find("VerOffs") + 9);
    std::istringstream is(strCut);
    is >> stRead;
    EXPECT_TRUE(is.fail());
    EXPECT_STREQ("ZEL4000.01      ZELD", stRead.stAntDescr.acIgsName);
    EXPECT_EQ(0.25f, stRead.m_ARPOffsets.m_afHorzOffset.fHrzOffsE);
    EXPECT_EQ(9.5, stRead.m_ARPOffsets.m_dVerticalOffset);
    EXPECT_EQ(7.5f, stRead.stAntModel.fAziRad);
}

// ===================================================================== SZelAntPCOTable

TEST(AntPCOTable, DefaultGoldenAndText)
{
    const SZelAntPCOTable stDefault;
    EXPECT_EQ(0u, stDefault.ulValidFrqs);
    EXPECT_EQ(0.0f, stDefault.fL1Up);
    EXPECT_EQ(0.0f, stDefault.fL2North);
    EXPECT_EQ(28u, stDefault.getSize());
    const Bytes vecExpected = CImage()
                                  .At(0)
                                  .U32(3)
                                  .At(4)
                                  .F32(61.5f)
                                  .At(8)
                                  .F32(58.25f)
                                  .At(12)
                                  .F32(0.5f)
                                  .At(16)
                                  .F32(-1.25f)
                                  .At(20)
                                  .F32(0.75f)
                                  .At(24)
                                  .F32(1.5f)
                                  .Get();
    ZelTest::ExpectCoreImage(ZelSample::AntPCOTable(), vecExpected);
    ZelTest::ExpectTextExact(ZelSample::AntPCOTable(),
                             "VldFrqs, 3, L1U, 61.5, L2U, 58.25, L1E, 0.5, L1N, -1.25, L2E, 0.75, L2N, 1.5");
}

TEST(AntPCOTable, EqualityRelative)
{
    const SZelAntPCOTable stA = ZelSample::AntPCOTable();
    float SZelAntPCOTable::*apfFields[] = {&SZelAntPCOTable::fL1Up,   &SZelAntPCOTable::fL2Up,
                                           &SZelAntPCOTable::fL1East, &SZelAntPCOTable::fL1North,
                                           &SZelAntPCOTable::fL2East, &SZelAntPCOTable::fL2North};
    for (auto pfField : apfFields)
    {
        SZelAntPCOTable stB = stA;
        stB.*pfField = stA.*pfField * (1.0f + 5e-7f);
        EXPECT_TRUE(stA == stB);
        stB.*pfField = stA.*pfField * (1.0f + 3e-6f);
        EXPECT_FALSE(stA == stB);
        stB.*pfField = std::numeric_limits<float>::quiet_NaN();
        EXPECT_FALSE(stB == stB);
    }
    SZelAntPCOTable stB = stA;
    stB.ulValidFrqs = 1;
    EXPECT_FALSE(stA == stB);
}

TEST(AntPCOTable, SecondWriteKeepsThePrecisionOfTheFirst)
{
    std::ostringstream os;
    os << SZelVector3d(1.0, 2.0, 3.0) << " ";
    SZelAntPCOTable st;
    st.fL1Up = 1.0f / 3.0f;
    os << st;
    std::ostringstream osExpected;
    osExpected << std::setprecision(12) << (1.0f / 3.0f);
    EXPECT_EQ("1, 2, 3 VldFrqs, 0, L1U, " + osExpected.str() + ", L2U, 0, L1E, 0, L1N, 0, L2E, 0, L2N, 0",
              os.str());
}

// ===================================================================== SZelAntPCVTable

TEST(AntPCVTable, DefaultGoldenAndEquality)
{
    const SZelAntPCVTable stDefault;
    EXPECT_EQ(2820u, stDefault.getSize());
    EXPECT_EQ(0, stDefault.anValues[1][36][18]);
    CImage stImage;
    stImage.At(0).U32(3).At(4).U8(37).At(5).U8(19).At(6);
    for (size_t ulFrq = 0; ulFrq < 2; ++ulFrq)
    {
        for (size_t ulAzi = 0; ulAzi < 37; ++ulAzi)
        {
            for (size_t ulElev = 0; ulElev < 19; ++ulElev)
            {
                stImage.I16(ZelSample::AntPCVValue(ulFrq, ulAzi, ulElev));
            }
        }
    }
    stImage.At(2818).Zero(2);
    ZelTest::ExpectCoreImage(ZelSample::AntPCVTable(), stImage.Get());

    const SZelAntPCVTable stA = ZelSample::AntPCVTable();
    SZelAntPCVTable stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.anValues[1][36][18] = static_cast<int16_t>(stB.anValues[1][36][18] + 1);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumAzi = 36;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumElev = 18;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulValidFrqs = 1;
    EXPECT_FALSE(stA == stB);
}

TEST(AntPCVTable, AllValuesWrittenWhateverTheCounts)
{
    SZelAntPCVTable st = ZelSample::AntPCVTable();
    st.ucNumAzi = 1;
    st.ucNumElev = 2;
    std::string strExpected = "VldFrqs, 3, NumAzi, 1, NumElev, 2, Val";
    for (size_t ulFrq = 0; ulFrq < 2; ++ulFrq)
    {
        for (size_t ulAzi = 0; ulAzi < 37; ++ulAzi)
        {
            for (size_t ulElev = 0; ulElev < 19; ++ulElev)
            {
                strExpected += ", " + std::to_string(ZelSample::AntPCVValue(ulFrq, ulAzi, ulElev));
            }
        }
    }
    ZelTest::ExpectTextExact(st, strExpected);
    Bytes vecOut(2820);
    uint64_t ulCount = 0;
    ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulCount));
    int16_t nLast = 0;
    std::memcpy(&nLast, &vecOut[2816], 2);
    EXPECT_EQ(ZelSample::AntPCVValue(1, 36, 18), nLast);
}

// ===================================================================== ConvertRefLevel

TEST(ConvertRefLevel, SameLevelMovesNothing)
{
    CRecordingHook stHook;
    for (int iLevel = 0; iLevel <= 4; ++iLevel)
    {
        SZelGeoCoords stCoords = Start();
        EXPECT_TRUE(ConvertRefLevel(static_cast<EZelAntRefLevel>(iLevel),
                                    static_cast<EZelAntRefLevel>(iLevel), ZelSample::AntennaInfo(),
                                    stCoords));
        ExpectSameCoords(Start(), stCoords);
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ConvertRefLevel, MarkToArpWithoutReadingFails)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.m_ARPOffsets.m_eAvailability = ebVOAVAILABLE | ebHOAVAILABLE;
    CRecordingHook stHook;
    for (const EZelAntRefLevel eTo : {ZELANTREFLEVEL_HEIGHT_READ, ZELANTREFLEVEL_ARP})
    {
        SZelGeoCoords stCoords = Start();
        EXPECT_FALSE(ConvertRefLevel(ZELANTREFLEVEL_MARK, eTo, stInfo, stCoords));
        ExpectSameCoords(Start(), stCoords);
        stCoords = Start();
        EXPECT_FALSE(ConvertRefLevel(eTo, ZELANTREFLEVEL_MARK, stInfo, stCoords));
        ExpectSameCoords(Start(), stCoords);
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ConvertRefLevel, ReadToArpWithoutVerticalOffsetReportsAndAddsNothing)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.m_ARPOffsets.m_eAvailability = ebHOAVAILABLE | ebRDAVAILABLE;
    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_HEIGHT_READ, ZELANTREFLEVEL_ARP, stInfo, stCoords));
    ExpectSameCoords(Start(), stCoords);
    EXPECT_EQ(c_vecOneFalse, stHook.Texts());
}

TEST(ConvertRefLevel, ReadToArpAddsTheVerticalOffset)
{
    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_TRUE(
        ConvertRefLevel(ZELANTREFLEVEL_HEIGHT_READ, ZELANTREFLEVEL_ARP, ZelSample::AntennaInfo(), stCoords));
    EXPECT_EQ(100.0 + 0.0625, stCoords.dHgt);
    EXPECT_EQ(0.8, stCoords.dLat);
    EXPECT_EQ(0.2, stCoords.dLon);
    stCoords = Start();
    EXPECT_TRUE(
        ConvertRefLevel(ZELANTREFLEVEL_ARP, ZELANTREFLEVEL_HEIGHT_READ, ZelSample::AntennaInfo(), stCoords));
    EXPECT_EQ(100.0 - 0.0625, stCoords.dHgt);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ConvertRefLevel, ArpToBand0WithoutEntryChangesNothing)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.stAntModel.mapPCCs.erase(SZelAntModelKey(ZELSATSYSTEM_GPS, 0));
    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_ARP, ZELANTREFLEVEL_PC_GPS_B0, stInfo, stCoords));
    ExpectSameCoords(Start(), stCoords);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ConvertRefLevel, Band0ToBand1NeedsBothEntries)
{
    for (const uint32_t ulMissing : {0u, 1u})
    {
        SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
        stInfo.stAntModel.mapPCCs.erase(SZelAntModelKey(ZELSATSYSTEM_GPS, ulMissing));
        CRecordingHook stHook;
        SZelGeoCoords stCoords = Start();
        EXPECT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_PC_GPS_B0, ZELANTREFLEVEL_PC_GPS_B1, stInfo, stCoords));
        ExpectSameCoords(Start(), stCoords);
        EXPECT_EQ(c_vecOneFalse, stHook.Texts());
    }
}

TEST(ConvertRefLevel, AboveTheLastLevelFails)
{
    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_FALSE(ConvertRefLevel(ZELANTREFLEVEL_ARP, static_cast<EZelAntRefLevel>(5),
                                 ZelSample::AntennaInfo(), stCoords));
    ExpectSameCoords(Start(), stCoords);
    EXPECT_EQ(c_vecOneFalse, stHook.Texts());
    stHook.Clear();
    stCoords = Start();
    EXPECT_FALSE(ConvertRefLevel(static_cast<EZelAntRefLevel>(5), ZELANTREFLEVEL_MARK,
                                 ZelSample::AntennaInfo(), stCoords));
    ExpectSameCoords(Start(), stCoords);
    EXPECT_EQ(c_vecOneFalse, stHook.Texts());
}

TEST(ConvertRefLevel, SlantReadingAddsItsVerticalLeg)
{
    SZelAntennaInfo stInfo;
    stInfo.m_ARPOffsets = ZelSample::ARPOffsetsSlant();
    stInfo.m_ARPOffsets.m_eAvailability = ebRDAVAILABLE;
    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_HEIGHT_READ, stInfo, stCoords));
    EXPECT_NEAR(101.6, stCoords.dHgt, 1e-12);
    EXPECT_EQ(100.0 + std::sqrt(2.0 * 2.0 - 1.2 * 1.2), stCoords.dHgt);
    EXPECT_EQ(0.8, stCoords.dLat);
    EXPECT_EQ(0.2, stCoords.dLon);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ConvertRefLevel, UnknownReadModeReportsAndFails)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.m_ARPOffsets.m_eReadMode = static_cast<EZelAntReadMode>(2);
    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_FALSE(ConvertRefLevel(ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_ARP, stInfo, stCoords));
    ExpectSameCoords(Start(), stCoords);
    EXPECT_EQ(c_vecOneFalse, stHook.Texts());
}

TEST(ConvertRefLevel, MarkToBand1AgainstTheFormulas)
{
    const SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    // The accumulators as the chain adds them: east and north in float, up
    // in double; the offsets of the sample typed out.
    float fEast = 0.0f;
    float fNorth = 0.0f;
    double dUp = 0.0;
    fEast += 0.25f;
    fNorth += -0.5f;
    dUp += 1.5;
    dUp += 0.0625;
    fNorth += 0.0005f;
    fEast += -0.00125f;
    dUp += 0.0625f;
    fNorth += -0.00075f - 0.0005f;
    fEast += 0.00025f - -0.00125f;
    dUp += 0.05875f - 0.0625f;
    const double dHgt = 100.0 + dUp;
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(0.8, dHgt, dN, dM);
    const double dLon = 0.2 + fEast / (std::cos(0.8) * dN);
    const double dLat = 0.8 + fNorth / dM;

    CRecordingHook stHook;
    SZelGeoCoords stCoords = Start();
    EXPECT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_PC_GPS_B1, stInfo, stCoords));
    EXPECT_EQ(dHgt, stCoords.dHgt);
    EXPECT_NEAR(dLat, stCoords.dLat, 1e-15);
    EXPECT_NEAR(dLon, stCoords.dLon, 1e-15);
    EXPECT_EQ(0u, stHook.Count());
    // Downwards the same amounts with the other sign.
    SZelGeoCoords stDown = Start();
    EXPECT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_PC_GPS_B1, ZELANTREFLEVEL_MARK, stInfo, stDown));
    EXPECT_EQ(100.0 - dUp, stDown.dHgt);
    TestRadii(0.8, 100.0 - dUp, dN, dM);
    EXPECT_NEAR(0.8 - fNorth / dM, stDown.dLat, 1e-15);
    EXPECT_NEAR(0.2 - fEast / (std::cos(0.8) * dN), stDown.dLon, 1e-15);
}

TEST(ConvertRefLevel, UpAndDownReturnsToTheStart)
{
    const SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    for (const EZelAntRefLevel eTop : {ZELANTREFLEVEL_PC_GPS_B0, ZELANTREFLEVEL_PC_GPS_B1})
    {
        SZelGeoCoords stCoords = Start();
        ASSERT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_MARK, eTop, stInfo, stCoords));
        EXPECT_GT(stCoords.dHgt, 101.0);
        ASSERT_TRUE(ConvertRefLevel(eTop, ZELANTREFLEVEL_MARK, stInfo, stCoords));
        // Up to rounding: about 1e-13 rad is below a micrometre.
        EXPECT_NEAR(0.8, stCoords.dLat, 1e-12);
        EXPECT_NEAR(0.2, stCoords.dLon, 1e-12);
        EXPECT_NEAR(100.0, stCoords.dHgt, 1e-12);
    }
}

TEST(ConvertRefLevel, CoordinateOutOfRangeReportsAndGoesOn)
{
    CRecordingHook stHook;
    SZelGeoCoords stCoords(2.0, 0.2, 100.0);
    EXPECT_TRUE(
        ConvertRefLevel(ZELANTREFLEVEL_HEIGHT_READ, ZELANTREFLEVEL_ARP, ZelSample::AntennaInfo(), stCoords));
    EXPECT_EQ(100.0625, stCoords.dHgt);
    stCoords = SZelGeoCoords(0.1, 6.5, 0.0);
    EXPECT_TRUE(
        ConvertRefLevel(ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_MARK, ZelSample::AntennaInfo(), stCoords));
    // Edges: |lat| = pi/2 passes, |lon| = 2 pi does not.
    stCoords = SZelGeoCoords(-c_dPi / 2, -2.0 * c_dPi, 0.0);
    EXPECT_TRUE(
        ConvertRefLevel(ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_MARK, ZelSample::AntennaInfo(), stCoords));
    EXPECT_EQ((std::vector<std::string>{c_strLatLonCheck, c_strLatLonCheck, c_strLatLonCheck}),
              stHook.Texts());
}

// ===================================================================== local offsets

TEST(ApplyLocalOffsets, AgainstTheFormulas)
{
    const float afEN[2] = {12.5f, -20.25f};
    SZelGeoCoords stCoords(0.7, 0.3, 50.0);
    ApplyLocalOffsets(afEN, stCoords);
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(0.7, 50.0, dN, dM);
    EXPECT_NEAR(0.3 + 12.5 / (std::cos(0.7) * dN), stCoords.dLon, 1e-16);
    EXPECT_NEAR(0.7 + -20.25 / dM, stCoords.dLat, 1e-16);
    EXPECT_EQ(50.0, stCoords.dHgt);
    // About 1 m is 1 / 6.4e6 rad.
    EXPECT_NEAR(-20.25 / 6.36e6, stCoords.dLat - 0.7, 1e-7);
}

TEST(ApplyLocalOffsets, LongitudeWrapsAround)
{
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(0.0, 0.0, dN, dM);
    const float afEast[2] = {200000.0f, 0.0f};
    SZelGeoCoords stCoords(0.0, 3.13, 0.0);
    ApplyLocalOffsets(afEast, stCoords);
    const double dRaw = 3.13 + 200000.0 / (1.0 * dN);
    ASSERT_GT(dRaw, c_dPi);
    EXPECT_NEAR(std::fmod(dRaw + c_dPi, 2.0 * c_dPi) - c_dPi, stCoords.dLon, 1e-15);
    EXPECT_LT(stCoords.dLon, -3.0);
    const float afWest[2] = {-200000.0f, 0.0f};
    stCoords = SZelGeoCoords(0.0, -3.13, 0.0);
    ApplyLocalOffsets(afWest, stCoords);
    const double dRawW = -3.13 - 200000.0 / dN;
    ASSERT_LT(dRawW, -c_dPi);
    EXPECT_NEAR(std::fmod(dRawW - c_dPi, 2.0 * c_dPi) + c_dPi, stCoords.dLon, 1e-15);
    EXPECT_GT(stCoords.dLon, 3.0);
}

TEST(ApplyLocalOffsets, PassingThePoleReflectsAndTurns)
{
    const double dLat0 = c_dPi / 2 - 1e-6;
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(dLat0, 0.0, dN, dM);
    const float afNorth[2] = {0.0f, 100.0f};
    SZelGeoCoords stCoords(dLat0, 0.5, 0.0);
    ApplyLocalOffsets(afNorth, stCoords);
    const double dRawLat = dLat0 + 100.0 / dM;
    ASSERT_GT(dRawLat, c_dPi / 2);
    EXPECT_NEAR(c_dPi - dRawLat, stCoords.dLat, 1e-15);
    EXPECT_NEAR(0.5 - c_dPi, stCoords.dLon, 1e-15);
    // The south pole, a negative longitude: it turns by +pi.
    const float afSouth[2] = {0.0f, -100.0f};
    stCoords = SZelGeoCoords(-dLat0, -0.5, 0.0);
    ApplyLocalOffsets(afSouth, stCoords);
    EXPECT_NEAR(-c_dPi - (-dLat0 - 100.0 / dM), stCoords.dLat, 1e-15);
    EXPECT_NEAR(-0.5 + c_dPi, stCoords.dLon, 1e-15);
}

TEST(ApplyLocalOffsets, RadiusNotPositiveChangesNothing)
{
    const float afEN[2] = {10.0f, 10.0f};
    SZelGeoCoords stCoords(0.5, 0.5, -7.0e6);
    ApplyLocalOffsets(afEN, stCoords);
    ExpectSameCoords(SZelGeoCoords(0.5, 0.5, -7.0e6), stCoords);
    // Only the meridian radius below zero: the pole's rM is larger than rN's
    // minimum, so a height between the two at the equator hits rM alone.
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(0.0, 0.0, dN, dM);
    const double dHgt = -(dM + dN) / 2;
    ASSERT_LT(dM + dHgt, 0.0);
    ASSERT_GT(dN + dHgt, 0.0);
    stCoords = SZelGeoCoords(0.0, 0.5, dHgt);
    ApplyLocalOffsets(afEN, stCoords);
    ExpectSameCoords(SZelGeoCoords(0.0, 0.5, dHgt), stCoords);
}

TEST(GetLocalOffsets, AgainstTheFormulas)
{
    const SZelGeoCoords stFrom(0.6, 0.1, 20.0);
    const SZelGeoCoords stTo(0.6001, 0.1002, 25.5);
    float afEN[2] = {0.0f, 0.0f};
    float fUp = 0.0f;
    GetLocalOffsets(stFrom, stTo, afEN, fUp);
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(0.6, 20.0, dN, dM);
    EXPECT_EQ(static_cast<float>(std::cos(0.6) * (0.1002 - 0.1) * dN), afEN[0]);
    EXPECT_EQ(static_cast<float>((0.6001 - 0.6) * dM), afEN[1]);
    EXPECT_EQ(5.5f, fUp);
}

TEST(GetLocalOffsets, LongitudeDifferenceWithinHalfACircle)
{
    double dN = 0.0;
    double dM = 0.0;
    TestRadii(0.0, 0.0, dN, dM);
    float afEN[2] = {0.0f, 0.0f};
    float fUp = 0.0f;
    GetLocalOffsets(SZelGeoCoords(0.0, 3.1, 0.0), SZelGeoCoords(0.0, -3.1, 0.0), afEN, fUp);
    EXPECT_EQ(static_cast<float>(1.0 * (-3.1 - 3.1 + 2.0 * c_dPi) * dN), afEN[0]);
    EXPECT_GT(afEN[0], 0.0f);
    GetLocalOffsets(SZelGeoCoords(0.0, -3.1, 0.0), SZelGeoCoords(0.0, 3.1, 0.0), afEN, fUp);
    EXPECT_EQ(static_cast<float>(1.0 * (3.1 + 3.1 - 2.0 * c_dPi) * dN), afEN[0]);
    EXPECT_EQ(0.0f, afEN[1]);
    EXPECT_EQ(0.0f, fUp);
}

TEST(GetLocalOffsets, UndoesApplyLocalOffsets)
{
    const SZelGeoCoords stFrom(-0.4, 2.0, 300.0);
    SZelGeoCoords stTo = stFrom;
    const float afEN[2] = {35.0f, -12.0f};
    ApplyLocalOffsets(afEN, stTo);
    float afBack[2] = {0.0f, 0.0f};
    float fUp = 1.0f;
    GetLocalOffsets(stFrom, stTo, afBack, fUp);
    EXPECT_NEAR(35.0f, afBack[0], 1e-5f);
    EXPECT_NEAR(-12.0f, afBack[1], 1e-5f);
    EXPECT_EQ(0.0f, fUp);
}

// ===================================================================== SetHeightAtLevel

TEST(SetHeightAtLevel, AtTheReferencePoint)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.m_ARPOffsets.m_eAvailability = ebVOAVAILABLE;
    stInfo.m_ARPOffsets.m_eReadMode = ZELANTREADMODE_SLANT;
    const float fHeight = 2.5f;
    const float afEN[2] = {0.5f, -0.25f};
    CRecordingHook stHook;
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_ARP, &fHeight, afEN));
    EXPECT_EQ(2.5 - 0.0625, stInfo.m_ARPOffsets.m_dHeightRead);
    EXPECT_EQ(ZELANTREADMODE_VERTICAL, stInfo.m_ARPOffsets.m_eReadMode);
    EXPECT_EQ(static_cast<uint32_t>(ebVOAVAILABLE | ebRDAVAILABLE | ebHOAVAILABLE),
              stInfo.m_ARPOffsets.m_eAvailability);
    EXPECT_EQ(0.5f, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsE);
    EXPECT_EQ(-0.25f, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsN);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SetHeightAtLevel, AtThePhaseCentreOfBand0)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    const float fHeight = 2.5f;
    const float afEN[2] = {0.5f, -0.25f};
    CRecordingHook stHook;
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_PC_GPS_B0, &fHeight, afEN));
    double dExpected = 2.5 - 0.0625;
    dExpected -= 0.0625f;
    EXPECT_EQ(dExpected, stInfo.m_ARPOffsets.m_dHeightRead);
    float fEast = 0.5f;
    fEast -= -0.00125f;
    float fNorth = -0.25f;
    fNorth -= 0.0005f;
    EXPECT_EQ(fEast, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsE);
    EXPECT_EQ(fNorth, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsN);
    EXPECT_EQ(0u, stHook.Count());
    // The mark then lies at the point that the height and offset came from.
    SZelGeoCoords stCoords = Start();
    ASSERT_TRUE(ConvertRefLevel(ZELANTREFLEVEL_MARK, ZELANTREFLEVEL_PC_GPS_B0, stInfo, stCoords));
    EXPECT_NEAR(102.5, stCoords.dHgt, 1e-9);
    float afEN2[2] = {0.0f, 0.0f};
    float fUp = 0.0f;
    GetLocalOffsets(Start(), stCoords, afEN2, fUp);
    EXPECT_NEAR(0.5f, afEN2[0], 1e-5f);
    EXPECT_NEAR(-0.25f, afEN2[1], 1e-5f);
}

TEST(SetHeightAtLevel, Band0WithoutEntryIsLikeTheReferencePoint)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.stAntModel.mapPCCs.clear();
    const float fHeight = 2.5f;
    const float afEN[2] = {0.5f, -0.25f};
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_PC_GPS_B0, &fHeight, afEN));
    EXPECT_EQ(2.5 - 0.0625, stInfo.m_ARPOffsets.m_dHeightRead);
    EXPECT_EQ(0.5f, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsE);
    EXPECT_EQ(-0.25f, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsN);
}

TEST(SetHeightAtLevel, NullPointersChangeNothing)
{
    SZelAntennaInfo stInfo;
    CRecordingHook stHook;
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_ARP, nullptr, nullptr));
    EXPECT_TRUE(stInfo == SZelAntennaInfo());
    const float fHeight = 1.0f;
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_ARP, &fHeight, nullptr));
    EXPECT_EQ(static_cast<uint32_t>(ebRDAVAILABLE), stInfo.m_ARPOffsets.m_eAvailability);
    EXPECT_EQ(1.0, stInfo.m_ARPOffsets.m_dHeightRead);
    EXPECT_EQ(0.0f, stInfo.m_ARPOffsets.m_afHorzOffset.fHrzOffsE);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SetHeightAtLevel, OtherLevelsReportAndFail)
{
    const float fHeight = 1.0f;
    for (const int iLevel : {-1, 0, 1, 4, 5})
    {
        SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
        CRecordingHook stHook;
        EXPECT_FALSE(SetHeightAtLevel(stInfo, static_cast<EZelAntRefLevel>(iLevel), &fHeight, nullptr));
        EXPECT_EQ(c_vecOneFalse, stHook.Texts());
        EXPECT_TRUE(stInfo == ZelSample::AntennaInfo());
    }
}

TEST(SetHeightAtLevel, VerticalOffsetWithoutItsBitReportsAndGoesOn)
{
    SZelAntennaInfo stInfo = ZelSample::AntennaInfo();
    stInfo.m_ARPOffsets.m_eAvailability = 0;
    const float fHeight = 1.0f;
    CRecordingHook stHook;
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_ARP, &fHeight, nullptr));
    EXPECT_EQ(std::vector<std::string>{c_strVerticalCheck}, stHook.Texts());
    EXPECT_EQ(1.0 - 0.0625, stInfo.m_ARPOffsets.m_dHeightRead);
    // A zero offset needs no bit.
    stInfo.m_ARPOffsets.m_eAvailability = 0;
    stInfo.m_ARPOffsets.m_dVerticalOffset = 0.0;
    stHook.Clear();
    EXPECT_TRUE(SetHeightAtLevel(stInfo, ZELANTREFLEVEL_ARP, &fHeight, nullptr));
    EXPECT_EQ(0u, stHook.Count());
}

// ===================================================================== bad input

namespace
{

template <class R> Bytes ImageOf(const R& rRecord)
{
    Bytes vecImage(rRecord.getSize());
    uint64_t ulCount = 0;
    EXPECT_TRUE(rRecord.saveData(vecImage.data(), vecImage.size(), &ulCount));
    return vecImage;
}

// Every prefix of an image fails, and reading never runs past the bytes.
template <class R> void ExpectPrefixesFail(const Bytes& rvecImage)
{
    for (size_t ulLen = 0; ulLen < rvecImage.size(); ++ulLen)
    {
        Bytes vecPrefix(rvecImage.begin(), rvecImage.begin() + static_cast<std::ptrdiff_t>(ulLen));
        R stRead;
        uint64_t ulCount = 0;
        EXPECT_FALSE(
            stRead.loadData(vecPrefix.empty() ? rvecImage.data() : vecPrefix.data(), ulLen, &ulCount))
            << ulLen;
        EXPECT_LE(ulCount, ulLen);
    }
}

} // namespace

TEST(AntennaBadInput, TruncatedImagesFail)
{
    CRecordingHook stHook;
    ExpectPrefixesFail<SZelAntDescriptor>(ImageOf(ZelSample::AntDescriptor()));
    ExpectPrefixesFail<SZelARPOffsets>(ImageOf(ZelSample::ARPOffsetsSlant()));
    ExpectPrefixesFail<SZelAntPCC>(ImageOf(ZelSample::AntPCCBand1()));
    ExpectPrefixesFail<SZelAntModelKey>(ImageOf(SZelAntModelKey(ZELSATSYSTEM_GPS, 1)));
    ExpectPrefixesFail<SZelAntModel>(ImageOf(ZelSample::AntModel()));
    ExpectPrefixesFail<SZelAntennaInfo>(ImageOf(ZelSample::AntennaInfo()));
    ExpectPrefixesFail<SZelAntPCOTable>(ImageOf(ZelSample::AntPCOTable()));
    ExpectPrefixesFail<SZelAntPCVTable>(ImageOf(ZelSample::AntPCVTable()));
    EXPECT_GT(stHook.Count(), 0u);
}

TEST(AntennaBadInput, ForgedCountsFailWhereTheBufferEnds)
{
    const uint32_t ulForged = 0xFFFFFFFFu;
    // Row count of a calibration.
    {
        Bytes vecImage = ImageOf(ZelSample::AntPCCBand0());
        std::memcpy(&vecImage[12], &ulForged, 4);
        CRecordingHook stHook;
        SZelAntPCC st;
        uint64_t ulCount = 0;
        EXPECT_FALSE(st.loadData(vecImage.data(), vecImage.size(), &ulCount));
        EXPECT_EQ(vecImage.size(), ulCount);
        EXPECT_LE(st.vecPCV.size(), vecImage.size() / 4 + 1);
        EXPECT_EQ(0u, stHook.Count());
    }
    // Value count of a row.
    {
        Bytes vecImage = ImageOf(ZelSample::AntPCCBand0());
        std::memcpy(&vecImage[16], &ulForged, 4);
        SZelAntPCC st;
        uint64_t ulCount = 0;
        EXPECT_FALSE(st.loadData(vecImage.data(), vecImage.size(), &ulCount));
        ASSERT_FALSE(st.vecPCV.empty());
        EXPECT_LE(st.vecPCV[0].size(), vecImage.size() / 4 + 1);
    }
    // Entry count of a model: the next calibration's own test reports.
    {
        Bytes vecImage = ImageOf(ZelSample::AntModel());
        std::memcpy(&vecImage[7], &ulForged, 4);
        CRecordingHook stHook;
        SZelAntModel st;
        uint64_t ulCount = 0;
        EXPECT_FALSE(st.loadData(vecImage.data(), vecImage.size(), &ulCount));
        EXPECT_EQ(3u, st.mapPCCs.size());
        EXPECT_LE(stHook.Count(), 1u);
    }
}

TEST(AntennaBadInput, RandomBytesNeverCrash)
{
    CRecordingHook stHook;
    Bytes vecNoise(4096);
    uint32_t ulState = 12345;
    for (int iRound = 0; iRound < 64; ++iRound)
    {
        for (auto& rucByte : vecNoise)
        {
            ulState = ulState * 1664525u + 1013904223u;
            rucByte = static_cast<unsigned char>(ulState >> 24);
        }
        const size_t ulLen = static_cast<size_t>(ulState % vecNoise.size());
        uint64_t ulCount = 0;
        SZelAntennaInfo stInfo;
        stInfo.loadData(vecNoise.data(), ulLen, &ulCount);
        EXPECT_LE(ulCount, ulLen);
        SZelAntModel stModel;
        stModel.loadData(vecNoise.data(), ulLen, &ulCount);
        SZelAntPCC stPCC;
        stPCC.loadData(vecNoise.data(), ulLen, &ulCount);
        SZelARPOffsets stArp;
        stArp.loadData(vecNoise.data(), ulLen, &ulCount);
        SZelAntPCVTable stPcv;
        stPcv.loadData(vecNoise.data(), ulLen, &ulCount);
        std::istringstream is(
            std::string(vecNoise.begin(), vecNoise.begin() + static_cast<std::ptrdiff_t>(ulLen)));
        is >> stInfo;
    }
    SUCCEED();
}

TEST(AntennaBadInput, TextForgedCountsAndCuts)
{
    {
        SZelAntPCC st;
        std::istringstream is("PCO, 1, 2, 3, PcvNumAzi, 4294967295, PcvNumElev, 4294967295, PCV, 1, 2");
        is >> st;
        EXPECT_TRUE(is.fail());
        ASSERT_FALSE(st.vecPCV.empty());
        EXPECT_LE(st.vecPCV.size(), 4096u);
        EXPECT_EQ(1.0f, st.vecPCV[0][0]);
        EXPECT_EQ(2.0f, st.vecPCV[0][1]);
    }
    {
        SZelAntModel st;
        std::istringstream is("1, AntModelAvail, 2, AntAziRad, 3, PCCs, PCCsNum, 4294967295, SatSys, G");
        is >> st;
        EXPECT_TRUE(is.fail());
        EXPECT_TRUE(st.mapPCCs.empty()) << "an entry cut short is not taken";
    }
    for (size_t ulCut = 0; ulCut < c_strInfoLine.size(); ulCut += 7)
    {
        CRecordingHook stHook;
        SZelAntennaInfo st;
        std::istringstream is(c_strInfoLine.substr(0, ulCut));
        is >> st;
        EXPECT_TRUE(is.fail() || is.eof());
    }
}

// ===================================================================== samples

namespace
{

// A sample through its image and its line into a default record.
template <class R> void ExpectRoundTripIntoDefault(const R& rSample)
{
    ASSERT_FALSE(rSample == R()) << "the sample differs from the default";
    CRecordingHook stHook;
    const Bytes vecImage = ImageOf(rSample);
    R stBack;
    uint64_t ulCount = 0;
    EXPECT_TRUE(stBack.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_EQ(vecImage.size(), ulCount);
    EXPECT_TRUE(stBack == rSample);
    std::ostringstream os;
    os << rSample;
    std::istringstream is(os.str());
    R stText;
    is >> stText;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(stText == rSample);
    EXPECT_EQ(0u, stHook.Count());
}

} // namespace

TEST(AntennaSamples, EveryRecordRoundTripsIntoADefault)
{
    ExpectRoundTripIntoDefault(ZelSample::AntDescriptor());
    ExpectRoundTripIntoDefault(ZelSample::ARPOffsetsVertical());
    ExpectRoundTripIntoDefault(ZelSample::ARPOffsetsSlant());
    ExpectRoundTripIntoDefault(ZelSample::AntPCCBand0());
    ExpectRoundTripIntoDefault(SZelAntModelKey(ZELSATSYSTEM_BEIDOU, 6));
    ExpectRoundTripIntoDefault(ZelSample::AntModel());
    ExpectRoundTripIntoDefault(ZelSample::AntennaInfo());
    ExpectRoundTripIntoDefault(ZelSample::AntPCOTable());
    ExpectRoundTripIntoDefault(ZelSample::AntPCVTable());
}
