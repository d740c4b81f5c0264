// Building blocks of the position results: DOP, satellite usage per signal
// and system, availability, network information, position quality and the
// typed position.
#include "ZelSamplesPosition.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelTypes.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

const std::string c_strGeoCheck = "ecoordinatesystem == ZELCOORDINATESYSTEM_GEOGRAPHIC";
const std::string c_strFool = "You are trying to add different frequencies, you fool!";

ZelTest::SCoreRules KeptRules()
{
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    return stRules;
}

uint64_t Bit(int iBit)
{
    return uint64_t{1} << iBit;
}

// ------------------------------------------------------------------ hand-built images

CImage& PutFrqSatUsage(CImage& rImg, int32_t lFrq, uint32_t ulNum, uint64_t ullMap)
{
    return rImg.I32(lFrq).U8(ulNum).U64(ullMap);
}

// The sample usage of ZelSample::SysSatUsage for a system and its ucNumAvl.
CImage& PutSampleSysUsage(CImage& rImg, int32_t lSys, uint32_t ulNumAvl)
{
    const size_t ulBase = rImg.Size();
    rImg.At(ulBase + 0).I32(lSys).At(ulBase + 4).U8(ulNumAvl).At(ulBase + 5).U8(9);
    for (int iSlot = 0; iSlot < 6; ++iSlot)
    {
        rImg.At(ulBase + 6 + 13 * static_cast<size_t>(iSlot));
        PutFrqSatUsage(rImg, iSlot + 1, 2, Bit(iSlot + 1) | Bit(iSlot + 10));
    }
    return rImg.At(ulBase + 84);
}

CImage& PutSampleQuality(CImage& rImg, int32_t lSys)
{
    const size_t ulBase = rImg.Size();
    rImg.At(ulBase + 0).I32(lSys).At(ulBase + 4).F32(1.5f).At(ulBase + 8).F32(2.25f);
    rImg.At(ulBase + 12).F32(0.25f).F32(-0.125f).F32(0.5f).F32(0.0625f).F32(-0.03125f).F32(1.75f);
    return rImg.At(ulBase + 36);
}

// The texts of the sample usage of one system, typed out.
std::string SampleSysUsageText(char cLetter, int iNumAvl)
{
    return std::string("SatSys, ") + cLetter + ", NumAvl, " + std::to_string(iNumAvl) +
           ", NumUse, 9, UsedPerFreq, 1, NumUse, 2, BitMapUse, 1026, 2, NumUse, 2, BitMapUse, 2052, "
           "3, NumUse, 2, BitMapUse, 4104, 4, NumUse, 2, BitMapUse, 8208, 5, NumUse, 2, BitMapUse, 16416, "
           "6, NumUse, 2, BitMapUse, 32832";
}

const char* const c_szSampleQualityText =
    "CooSys, Geo, Mo, 1.5, MoUnscaled, 2.25, Q, 0.25, -0.125, 0.5, 0.0625, "
    "-0.03125, 1.75";

SZelFrqSatUsage Slot(EZelFrequency eFrq, uint64_t ullMap)
{
    SZelFrqSatUsage st;
    st.eFrequency = eFrq;
    st.ullBitMapUse = ullMap;
    st.ucNumUse = static_cast<uint8_t>(std::bitset<64>(ullMap).count());
    return st;
}

} // namespace

// ====================================================================== SZelDOP

TEST(Dop, DefaultsAreZero)
{
    const SZelDOP st;
    EXPECT_EQ(0, st.unHDOP);
    EXPECT_EQ(0, st.unVDOP);
    EXPECT_EQ(0, st.unTDOP);
    EXPECT_EQ(0, st.unGDOP);
    EXPECT_EQ(0, st.unPDOP);
    EXPECT_EQ(0, st.unNumSats);
    EXPECT_EQ(12u, st.getSize());
}

TEST(Dop, ImageGolden)
{
    CImage stImg;
    stImg.At(0).U16(110).At(2).U16(220).At(4).U16(330).At(6).U16(440).At(8).U16(550).At(10).U16(12).At(12);
    ZelTest::ExpectCoreImage(ZelSample::Dop(), stImg);
}

TEST(Dop, TextExact)
{
    ZelTest::ExpectTextExact(ZelSample::Dop(),
                             "HDOP, 110, VDOP, 220, TDOP, 330, GDOP, 440, PDOP, 550, NumSats, 12");
}

TEST(Dop, EqualityEveryField)
{
    const SZelDOP stA = ZelSample::Dop();
    EXPECT_TRUE(stA == ZelSample::Dop());
    EXPECT_FALSE(stA != ZelSample::Dop());
    uint16_t SZelDOP::*apFields[] = {&SZelDOP::unHDOP, &SZelDOP::unVDOP, &SZelDOP::unTDOP,
                                     &SZelDOP::unGDOP, &SZelDOP::unPDOP, &SZelDOP::unNumSats};
    for (auto pField : apFields)
    {
        SZelDOP stB = stA;
        stB.*pField = static_cast<uint16_t>(stB.*pField + 1);
        EXPECT_FALSE(stA == stB);
        EXPECT_TRUE(stA != stB);
    }
}

TEST(Dop, ResetGivesDefault)
{
    SZelDOP st = ZelSample::Dop();
    st.Reset();
    EXPECT_TRUE(st == SZelDOP());
}

// ====================================================================== SZelFrqSatUsage

TEST(FrqSatUsage, DefaultsAndSize)
{
    const SZelFrqSatUsage st;
    EXPECT_EQ(ZELFREQUENCY_UNKNOWN, st.eFrequency);
    EXPECT_EQ(0, st.ucNumUse);
    EXPECT_EQ(0u, st.ullBitMapUse);
    EXPECT_EQ(13u, st.getSize());
}

TEST(FrqSatUsage, ImageGoldenUnaligned)
{
    CImage stImg;
    stImg.At(0).I32(3).At(4).U8(3).At(5).U64(Bit(1) | Bit(5) | Bit(33)).At(13);
    ZelTest::ExpectCoreImage(ZelSample::FrqSatUsage(), stImg);
}

TEST(FrqSatUsage, TextExactBitMapDecimal)
{
    // 2 + 32 + 2^33
    ZelTest::ExpectTextExact(ZelSample::FrqSatUsage(), "3, NumUse, 3, BitMapUse, 8589934626");
}

TEST(FrqSatUsage, AddSatSetsAndCountsOnce)
{
    SZelFrqSatUsage st;
    st.AddSat(5);
    EXPECT_EQ(Bit(5), st.ullBitMapUse);
    EXPECT_EQ(1, st.ucNumUse);
    st.AddSat(5);
    EXPECT_EQ(Bit(5), st.ullBitMapUse);
    EXPECT_EQ(1, st.ucNumUse);
    st.AddSat(63);
    EXPECT_EQ(Bit(5) | Bit(63), st.ullBitMapUse);
    EXPECT_EQ(2, st.ucNumUse);
}

TEST(FrqSatUsage, AddSat64SetsBitZero)
{
    SZelFrqSatUsage st;
    st.AddSat(64);
    EXPECT_EQ(Bit(0), st.ullBitMapUse);
    EXPECT_EQ(1, st.ucNumUse);
    EXPECT_TRUE(st.IsSatUsed(0));
    EXPECT_TRUE(st.IsSatUsed(64));
    EXPECT_TRUE(st.IsSatUsed(128));
    EXPECT_FALSE(st.IsSatUsed(1));
}

TEST(FrqSatUsage, NegativeNumberTakesModulo64)
{
    SZelFrqSatUsage st;
    st.AddSat(-1); // -1 modulo 64 is 63
    EXPECT_EQ(Bit(63), st.ullBitMapUse);
    EXPECT_TRUE(st.IsSatUsed(-1));
    EXPECT_TRUE(st.IsSatUsed(63));
}

TEST(FrqSatUsage, AddSatMaskCountsNewBitsOnly)
{
    SZelFrqSatUsage st;
    st.AddSat(1);
    st.AddSat(2);
    st.AddSatMask(Bit(2) | Bit(3) | Bit(40));
    EXPECT_EQ(Bit(1) | Bit(2) | Bit(3) | Bit(40), st.ullBitMapUse);
    EXPECT_EQ(4, st.ucNumUse);
    st.AddSatMask(0);
    EXPECT_EQ(4, st.ucNumUse);
}

TEST(FrqSatUsage, AddSameFrequencyMerges)
{
    CRecordingHook stHook;
    SZelFrqSatUsage stA = Slot(ZELFREQUENCY_L1CA, Bit(1) | Bit(2));
    const SZelFrqSatUsage stB = Slot(ZELFREQUENCY_L1CA, Bit(2) | Bit(7));
    stA.Add(stB);
    EXPECT_EQ(Bit(1) | Bit(2) | Bit(7), stA.ullBitMapUse);
    EXPECT_EQ(3, stA.ucNumUse);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(FrqSatUsage, AddDifferentFrequencyReportsAndChangesNothing)
{
    CRecordingHook stHook;
    SZelFrqSatUsage stA = Slot(ZELFREQUENCY_L1CA, Bit(1));
    const SZelFrqSatUsage stBefore = stA;
    stA.Add(Slot(ZELFREQUENCY_L5, Bit(7)));
    EXPECT_TRUE(stA == stBefore);
    EXPECT_EQ(std::vector<std::string>{c_strFool}, stHook.Texts());
}

TEST(FrqSatUsage, EqualityAllFields)
{
    const SZelFrqSatUsage stA = ZelSample::FrqSatUsage();
    SZelFrqSatUsage stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.eFrequency = ZELFREQUENCY_L5;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumUse = 4;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ullBitMapUse ^= Bit(60);
    EXPECT_TRUE(stA != stB);
}

// ====================================================================== SZelSysSatUsage

TEST(SysSatUsage, DefaultsAndSize)
{
    const SZelSysSatUsage st;
    EXPECT_EQ(ZELSATSYSTEM_NONE, st.eSatSystem);
    EXPECT_EQ(0, st.ucNumAvl);
    EXPECT_EQ(0, st.ucNumUse);
    for (const auto& rSlot : st.astUsedPerFreq)
    {
        EXPECT_TRUE(rSlot == SZelFrqSatUsage());
    }
    EXPECT_EQ(84u, st.getSize());
}

TEST(SysSatUsage, ImageGolden)
{
    CImage stImg;
    PutSampleSysUsage(stImg, 1, 14);
    ZelTest::ExpectCoreImage(ZelSample::SysSatUsage(), stImg, KeptRules());
}

TEST(SysSatUsage, TextExact)
{
    ZelTest::ExpectTextExact(ZelSample::SysSatUsage(), SampleSysUsageText('G', 14));
}

TEST(SysSatUsage, TextWithOtherTagWordsReadsTheSame)
{
    const std::string strOther =
        "Sys, G, Avl, 14, Use, 9, PerFrq, 1, N, 2, Map, 1026, 2, N, 2, Map, 2052, 3, N, 2, Map, 4104, "
        "4, N, 2, Map, 8208, 5, N, 2, Map, 16416, 6, N, 2, Map, 32832";
    std::istringstream is(strOther);
    SZelSysSatUsage st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == ZelSample::SysSatUsage());
}

TEST(SysSatUsage, TextCutKeepsLaterFields)
{
    SZelSysSatUsage st = ZelSample::SysSatUsage(ZELSATSYSTEM_GALILEO);
    std::istringstream is("SatSys, G, NumAvl, 3, NumUse, 2, UsedPerFreq, 7, NumUse, 1, Bit");
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(ZELSATSYSTEM_GPS, st.eSatSystem);
    EXPECT_EQ(3, st.ucNumAvl);
    EXPECT_EQ(2, st.ucNumUse);
    EXPECT_EQ(ZELFREQUENCY_E5A, st.astUsedPerFreq[0].eFrequency);
    EXPECT_EQ(1, st.astUsedPerFreq[0].ucNumUse);
    // The bit map is read directly and keeps its value; the signal and
    // count of the later slots go through a wider temporary and get its zero.
    EXPECT_EQ(ZelSample::SysSatUsage(ZELSATSYSTEM_GALILEO).astUsedPerFreq[0].ullBitMapUse,
              st.astUsedPerFreq[0].ullBitMapUse);
    for (int iSlot = 1; iSlot < 6; ++iSlot)
    {
        EXPECT_EQ(ZELFREQUENCY_UNKNOWN, st.astUsedPerFreq[iSlot].eFrequency);
        EXPECT_EQ(0, st.astUsedPerFreq[iSlot].ucNumUse);
        EXPECT_EQ(ZelSample::SysSatUsage().astUsedPerFreq[iSlot].ullBitMapUse,
                  st.astUsedPerFreq[iSlot].ullBitMapUse);
    }
}

TEST(SysSatUsage, EqualitySlotsThenFields)
{
    const SZelSysSatUsage stA = ZelSample::SysSatUsage();
    EXPECT_TRUE(stA == ZelSample::SysSatUsage());
    for (int iSlot = 0; iSlot < 6; ++iSlot)
    {
        SZelSysSatUsage stB = stA;
        stB.astUsedPerFreq[iSlot].ullBitMapUse ^= Bit(50);
        EXPECT_FALSE(stA == stB) << iSlot;
    }
    SZelSysSatUsage stB = stA;
    stB.eSatSystem = ZELSATSYSTEM_QZSS;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumAvl = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumUse = 1;
    EXPECT_TRUE(stA != stB);
}

TEST(SysSatUsage, AddMergesMatchingSignals)
{
    CRecordingHook stHook;
    SZelSysSatUsage stA;
    stA.eSatSystem = ZELSATSYSTEM_GPS;
    stA.ucNumAvl = 11;
    stA.ucNumUse = 2;
    stA.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(1) | Bit(2));
    stA.astUsedPerFreq[1] = Slot(ZELFREQUENCY_L2C, Bit(1));
    SZelSysSatUsage stB;
    stB.eSatSystem = ZELSATSYSTEM_GPS;
    stB.ucNumAvl = 30;
    stB.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L2C, Bit(2) | Bit(3) | Bit(4));
    stB.astUsedPerFreq[1] = Slot(ZELFREQUENCY_L1CA, Bit(3));
    stA.Add(stB);
    EXPECT_EQ(Bit(1) | Bit(2) | Bit(3), stA.astUsedPerFreq[0].ullBitMapUse);
    EXPECT_EQ(3, stA.astUsedPerFreq[0].ucNumUse);
    EXPECT_EQ(Bit(1) | Bit(2) | Bit(3) | Bit(4), stA.astUsedPerFreq[1].ullBitMapUse);
    EXPECT_EQ(4, stA.astUsedPerFreq[1].ucNumUse);
    // Gains 1 on L1CA and 3 on L2C: the largest, 3, is added, not the sum.
    EXPECT_EQ(2 + 3, stA.ucNumUse);
    EXPECT_EQ(11, stA.ucNumAvl) << "available satellites stay";
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SysSatUsage, AddSameNewSatelliteOnTwoSignalsCountsOnce)
{
    SZelSysSatUsage stA;
    stA.ucNumUse = 1;
    stA.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(1));
    stA.astUsedPerFreq[1] = Slot(ZELFREQUENCY_L5, Bit(1));
    SZelSysSatUsage stB;
    stB.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(9));
    stB.astUsedPerFreq[1] = Slot(ZELFREQUENCY_L5, Bit(9));
    stA.Add(stB);
    EXPECT_EQ(2, stA.ucNumUse);
    EXPECT_EQ(2, stA.astUsedPerFreq[0].ucNumUse);
    EXPECT_EQ(2, stA.astUsedPerFreq[1].ucNumUse);
}

TEST(SysSatUsage, AddSignalThisRecordLacksAddsNothing)
{
    CRecordingHook stHook;
    SZelSysSatUsage stA;
    stA.ucNumUse = 1;
    stA.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(1));
    const SZelSysSatUsage stBefore = stA;
    SZelSysSatUsage stB;
    stB.astUsedPerFreq[0] = Slot(ZELFREQUENCY_E6, Bit(20) | Bit(21));
    stA.Add(stB);
    EXPECT_TRUE(stA == stBefore) << "no slot is created and ucNumUse stays";
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SysSatUsage, AddToItselfChangesNothing)
{
    CRecordingHook stHook;
    SZelSysSatUsage st = ZelSample::SysSatUsage();
    const SZelSysSatUsage stBefore = st;
    st.Add(st);
    EXPECT_TRUE(st == stBefore);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SysSatUsage, AddStopsAtFirstEmptySlotOfTheOther)
{
    SZelSysSatUsage stA;
    stA.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, 0);
    stA.astUsedPerFreq[1] = Slot(ZELFREQUENCY_L5, 0);
    SZelSysSatUsage stB;
    stB.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(3));
    // slot 1 empty: slot 2 is not looked at
    stB.astUsedPerFreq[2] = Slot(ZELFREQUENCY_L5, Bit(4) | Bit(5));
    stA.Add(stB);
    EXPECT_EQ(Bit(3), stA.astUsedPerFreq[0].ullBitMapUse);
    EXPECT_EQ(0u, stA.astUsedPerFreq[1].ullBitMapUse);
    EXPECT_EQ(1, stA.ucNumUse);
}

TEST(SysSatUsage, AddEveryMatchingSlotOfThisRecord)
{
    SZelSysSatUsage stA;
    stA.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(1));
    stA.astUsedPerFreq[3] = Slot(ZELFREQUENCY_L1CA, 0);
    SZelSysSatUsage stB;
    stB.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(1) | Bit(2));
    stA.Add(stB);
    EXPECT_EQ(Bit(1) | Bit(2), stA.astUsedPerFreq[0].ullBitMapUse);
    EXPECT_EQ(Bit(1) | Bit(2), stA.astUsedPerFreq[3].ullBitMapUse);
    // Gains 1 and 2: the largest.
    EXPECT_EQ(2, stA.ucNumUse);
}

TEST(SysSatUsage, AddNegativeGainReportsAndIsNotTaken)
{
    // A forged count of 255 wraps when one satellite is added.
    CRecordingHook stHook;
    SZelSysSatUsage stA;
    stA.ucNumUse = 10;
    stA.astUsedPerFreq[0].eFrequency = ZELFREQUENCY_L1CA;
    stA.astUsedPerFreq[0].ucNumUse = 255;
    SZelSysSatUsage stB;
    stB.astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(4));
    stA.Add(stB);
    EXPECT_EQ(std::vector<std::string>{"iNumSatsAddedThisFreq >= 0"}, stHook.Texts());
    EXPECT_EQ(0, stA.astUsedPerFreq[0].ucNumUse);
    EXPECT_EQ(10, stA.ucNumUse);
}

TEST(SysSatUsage, Reset)
{
    SZelSysSatUsage st = ZelSample::SysSatUsage();
    st.Reset();
    EXPECT_TRUE(st == SZelSysSatUsage());
}

// ====================================================================== SZelGnssAvailability

TEST(GnssAvailability, DefaultsAndSize)
{
    const SZelGnssAvailability st;
    EXPECT_EQ(0, st.ucNumSysObs);
    for (const auto& rSys : st.astSysUsage)
    {
        EXPECT_TRUE(rSys == SZelSysSatUsage());
    }
    EXPECT_EQ(673u, st.getSize());
}

TEST(GnssAvailability, ImageGoldenAllEightEntries)
{
    CImage stImg;
    stImg.At(0).U8(3);
    for (int iSys = 0; iSys < 8; ++iSys)
    {
        stImg.At(1 + 84 * static_cast<size_t>(iSys));
        PutSampleSysUsage(stImg, iSys + 1, static_cast<uint32_t>(20 + iSys));
    }
    stImg.At(673);
    ZelTest::ExpectCoreImage(ZelSample::GnssAvailability(), stImg, KeptRules());
}

TEST(GnssAvailability, TextExactAllEightEntries)
{
    const char acLetters[] = {'G', 'R', 'E', 'S', 'C', 'J', 'I', 'L'};
    std::string strExpected = "NumSysObs, 3";
    for (int iSys = 0; iSys < 8; ++iSys)
    {
        strExpected += ", " + SampleSysUsageText(acLetters[iSys], 20 + iSys);
    }
    ZelTest::ExpectTextExact(ZelSample::GnssAvailability(), strExpected);
}

TEST(GnssAvailability, EqualityEntriesThenCount)
{
    const SZelGnssAvailability stA = ZelSample::GnssAvailability();
    SZelGnssAvailability stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.astSysUsage[7].ucNumUse = 0; // beyond the count, still compared
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucNumSysObs = 4;
    EXPECT_TRUE(stA != stB);
}

TEST(GnssAvailability, LoadFailsOnTheFirstFailingSystem)
{
    // The whole size is tested first: nothing of a short buffer is read.
    const SZelGnssAvailability stSample = ZelSample::GnssAvailability();
    std::vector<unsigned char> vecImg(673);
    uint64_t ulCount = 0;
    ASSERT_TRUE(stSample.saveData(vecImg.data(), vecImg.size(), &ulCount));
    CRecordingHook stHook;
    SZelGnssAvailability st;
    ulCount = 5;
    EXPECT_FALSE(st.loadData(vecImg.data(), 672, &ulCount));
    EXPECT_EQ(5u, ulCount);
    EXPECT_TRUE(st == SZelGnssAvailability());
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
}

namespace
{

// GPS twice (the first without L5), Galileo, and a GLONASS entry beyond
// the count of three.
SZelGnssAvailability LookupRecord()
{
    SZelGnssAvailability st;
    st.ucNumSysObs = 3;
    st.astSysUsage[0].eSatSystem = ZELSATSYSTEM_GPS;
    st.astSysUsage[0].astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(5) | Bit(7) | Bit(9));
    st.astSysUsage[0].astUsedPerFreq[1] = Slot(ZELFREQUENCY_L2C, Bit(5) | Bit(12));
    st.astSysUsage[1].eSatSystem = ZELSATSYSTEM_GALILEO;
    st.astSysUsage[1].astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(30));
    st.astSysUsage[2].eSatSystem = ZELSATSYSTEM_GPS;
    st.astSysUsage[2].astUsedPerFreq[0] = Slot(ZELFREQUENCY_L5, Bit(5) | Bit(20) | Bit(21) | Bit(22));
    st.astSysUsage[2].astUsedPerFreq[1] = Slot(ZELFREQUENCY_L1CA, Bit(40));
    st.astSysUsage[3].eSatSystem = ZELSATSYSTEM_GLONASS;
    st.astSysUsage[3].astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(1));
    return st;
}

} // namespace

TEST(GnssAvailability, GetBitMapUseFirstEntryHoldingTheSignal)
{
    const SZelGnssAvailability st = LookupRecord();
    EXPECT_EQ(Bit(5) | Bit(7) | Bit(9), st.GetBitMapUse(ZELFREQUENCY_L1CA, ZELSATSYSTEM_GPS));
    // The first GPS entry lacks L5: the second one answers.
    EXPECT_EQ(Bit(5) | Bit(20) | Bit(21) | Bit(22), st.GetBitMapUse(ZELFREQUENCY_L5, ZELSATSYSTEM_GPS));
    EXPECT_EQ(Bit(30), st.GetBitMapUse(ZELFREQUENCY_L1CA, ZELSATSYSTEM_GALILEO));
    EXPECT_EQ(0u, st.GetBitMapUse(ZELFREQUENCY_E6, ZELSATSYSTEM_GPS));
    // GLONASS lies beyond the count.
    EXPECT_EQ(0u, st.GetBitMapUse(ZELFREQUENCY_L1CA, ZELSATSYSTEM_GLONASS));
    SZelGnssAvailability stMore = st;
    stMore.ucNumSysObs = 4;
    EXPECT_EQ(Bit(1), stMore.GetBitMapUse(ZELFREQUENCY_L1CA, ZELSATSYSTEM_GLONASS));
}

TEST(GnssAvailability, GetNumUseAndMax)
{
    const SZelGnssAvailability st = LookupRecord();
    EXPECT_EQ(3, st.GetNumUse(ZELSATSYSTEM_GPS, ZELFREQUENCY_L1CA));
    EXPECT_EQ(2, st.GetNumUse(ZELSATSYSTEM_GPS, ZELFREQUENCY_L2C));
    EXPECT_EQ(4, st.GetNumUse(ZELSATSYSTEM_GPS, ZELFREQUENCY_L5));
    EXPECT_EQ(0, st.GetNumUse(ZELSATSYSTEM_GPS, ZELFREQUENCY_E5B));
    EXPECT_EQ(0, st.GetNumUse(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_L1CA));
    EXPECT_EQ(4, st.GetMaxNumUse(ZELSATSYSTEM_GPS));
    EXPECT_EQ(1, st.GetMaxNumUse(ZELSATSYSTEM_GALILEO));
    EXPECT_EQ(0, st.GetMaxNumUse(ZELSATSYSTEM_GLONASS));
    EXPECT_EQ(0, st.GetMaxNumUse(ZELSATSYSTEM_BEIDOU));
}

TEST(GnssAvailability, GetMaxNumUseCoversSignalsZeroToTen)
{
    SZelGnssAvailability st;
    st.ucNumSysObs = 1;
    st.astSysUsage[0].eSatSystem = ZELSATSYSTEM_GPS;
    st.astSysUsage[0].astUsedPerFreq[0] = Slot(ZELFREQUENCY_E6, Bit(1) | Bit(2));
    st.astSysUsage[0].astUsedPerFreq[1].eFrequency = static_cast<EZelFrequency>(11);
    st.astSysUsage[0].astUsedPerFreq[1].ucNumUse = 9;
    st.astSysUsage[0].astUsedPerFreq[2].eFrequency = ZELFREQUENCY_UNKNOWN;
    st.astSysUsage[0].astUsedPerFreq[2].ucNumUse = 5;
    // Signal 11 is not looked at; the unused slot (0) is.
    EXPECT_EQ(5, st.GetMaxNumUse(ZELSATSYSTEM_GPS));
}

TEST(GnssAvailability, CountUsedSatsMaskZeroIsZero)
{
    EXPECT_EQ(0u, LookupRecord().CountUsedSats(ZELSATSYSTEM_GPS, 0));
}

TEST(GnssAvailability, CountUsedSatsSatelliteOnTwoSignalsCountsOnce)
{
    const SZelGnssAvailability st = LookupRecord();
    // L1CA {5, 7, 9} and L2C {5, 12}: satellite 5 counts once.
    const uint32_t ulMask = (1u << (ZELFREQUENCY_L1CA - 1)) | (1u << (ZELFREQUENCY_L2C - 1));
    EXPECT_EQ(4u, st.CountUsedSats(ZELSATSYSTEM_GPS, ulMask));
    // With L5 from the second entry: {5, 7, 9, 12, 20, 21, 22}.
    EXPECT_EQ(7u, st.CountUsedSats(ZELSATSYSTEM_GPS, ulMask | (1u << (ZELFREQUENCY_L5 - 1))));
    // L1CA alone: the first GPS entry's, not the union with the second's.
    EXPECT_EQ(3u, st.CountUsedSats(ZELSATSYSTEM_GPS, 1u << (ZELFREQUENCY_L1CA - 1)));
    EXPECT_EQ(1u, st.CountUsedSats(ZELSATSYSTEM_GALILEO, 0xFFFFFFFFu));
    EXPECT_EQ(0u, st.CountUsedSats(ZELSATSYSTEM_GLONASS, 0xFFFFFFFFu));
}

TEST(GnssAvailability, CountUsedSatsIgnoresBitsAboveTen)
{
    SZelGnssAvailability st;
    st.ucNumSysObs = 1;
    st.astSysUsage[0].eSatSystem = ZELSATSYSTEM_GPS;
    st.astSysUsage[0].astUsedPerFreq[0] = Slot(ZELFREQUENCY_E6, Bit(1));
    st.astSysUsage[0].astUsedPerFreq[1] = Slot(static_cast<EZelFrequency>(11), Bit(2));
    EXPECT_EQ(1u, st.CountUsedSats(ZELSATSYSTEM_GPS, 1u << 9));
    EXPECT_EQ(0u, st.CountUsedSats(ZELSATSYSTEM_GPS, 1u << 10));
}

TEST(GnssAvailability, IsSatUsedOrsTheSixMapsOfTheFirstEntry)
{
    const SZelGnssAvailability st = LookupRecord();
    EXPECT_TRUE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_GPS, 12)));
    EXPECT_TRUE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_GPS, 9)));
    // 20 is only in the second GPS entry.
    EXPECT_FALSE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_GPS, 20)));
    EXPECT_TRUE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_GALILEO, 30)));
    EXPECT_FALSE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_GLONASS, 1))) << "beyond the count";
    EXPECT_FALSE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_BEIDOU, 5)));
}

TEST(GnssAvailability, IsSatUsedTakesNumberModulo64)
{
    SZelGnssAvailability st;
    st.ucNumSysObs = 1;
    st.astSysUsage[0].eSatSystem = ZELSATSYSTEM_SBAS;
    st.astSysUsage[0].astUsedPerFreq[5] = Slot(ZELFREQUENCY_L1CA, Bit(0) | Bit(56));
    EXPECT_TRUE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_SBAS, 120)));
    EXPECT_TRUE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_SBAS, 128)));
    EXPECT_FALSE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_SBAS, 121)));
}

TEST(GnssAvailability, CountAboveEightLooksAtEightEntries)
{
    SZelGnssAvailability st;
    st.ucNumSysObs = 200;
    st.astSysUsage[7].eSatSystem = ZELSATSYSTEM_LOCATA;
    st.astSysUsage[7].astUsedPerFreq[0] = Slot(ZELFREQUENCY_L1CA, Bit(3));
    EXPECT_TRUE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_LOCATA, 3)));
    EXPECT_EQ(Bit(3), st.GetBitMapUse(ZELFREQUENCY_L1CA, ZELSATSYSTEM_LOCATA));
    EXPECT_EQ(1u, st.CountUsedSats(ZELSATSYSTEM_LOCATA, 1u));
    EXPECT_FALSE(st.IsSatUsed(SZelSatID(ZELSATSYSTEM_GPS, 3)));
}

// ====================================================================== EZelNetType, SZelNrtkInfo

TEST(NetType, ValuesAndWordsRowByRow)
{
    const struct
    {
        EZelNetType eType;
        int iValue;
        const char* szWord;
    } astRows[] = {{ZELNETTYPE_NONE, 0, "None"}, {ZELNETTYPE_VRS, 1, "VRS"}, {ZELNETTYPE_ITEV, 2, "iTEV"},
                   {ZELNETTYPE_FKP, 3, "FKP"},   {ZELNETTYPE_MAC, 4, "MAC"}, {ZELNETTYPE_SSR, 5, "SSR"}};
    for (const auto& rRow : astRows)
    {
        EXPECT_EQ(rRow.iValue, static_cast<int>(rRow.eType));
        EXPECT_STREQ(rRow.szWord, ToNetTypeWord(rRow.eType));
        std::istringstream is(std::string(rRow.szWord) + ", rest");
        EXPECT_EQ(rRow.eType, ReadNetTypeWord(is)) << rRow.szWord;
        std::string strNext;
        is >> strNext;
        EXPECT_EQ("rest", strNext) << "the comma goes with the word";
    }
    EXPECT_EQ(-1, static_cast<int>(ZELNETTYPE_INVALID));
    EXPECT_STREQ("Invalid", ToNetTypeWord(ZELNETTYPE_INVALID));
    EXPECT_STREQ("Invalid", ToNetTypeWord(static_cast<EZelNetType>(6)));
    EXPECT_STREQ("Invalid", ToNetTypeWord(static_cast<EZelNetType>(-7)));
}

TEST(NetType, ReaderIsCaseSensitiveAndGivesInvalid)
{
    for (const char* szWord : {"vrs", "ITEV", "Invalid", "None,,", ""})
    {
        std::istringstream is(szWord);
        EXPECT_EQ(ZELNETTYPE_INVALID, ReadNetTypeWord(is)) << szWord;
    }
}

TEST(NrtkInfo, DefaultsAndSize)
{
    const SZelNrtkInfo st;
    EXPECT_EQ(0, st.ucNumRefStations);
    EXPECT_FALSE(st.bInsideNetwork);
    EXPECT_EQ(ZELNETTYPE_NONE, st.eNetType);
    EXPECT_EQ(6u, st.getSize());
}

TEST(NrtkInfo, ImageGolden)
{
    CImage stImg;
    stImg.At(0).U8(7).At(1).U8(1).At(2).I32(3).At(6);
    ZelTest::ExpectCoreImage(ZelSample::NrtkInfo(), stImg);
}

TEST(NrtkInfo, TextExact)
{
    ZelTest::ExpectTextExact(ZelSample::NrtkInfo(), "NumRefStns, 7, InsideNet, 1, NetTyp, FKP");
}

TEST(NrtkInfo, UnknownWordGivesInvalidAndReadingGoesOn)
{
    std::istringstream is(
        "NumRefStns, 2, InsideNet, 0, NetTyp, Bogus, NumRefStns, 4, InsideNet, 1, NetTyp, MAC");
    SZelNrtkInfo stA = ZelSample::NrtkInfo();
    SZelNrtkInfo stB;
    is >> stA;
    EXPECT_EQ(ZELNETTYPE_INVALID, stA.eNetType);
    EXPECT_EQ(2, stA.ucNumRefStations);
    EXPECT_FALSE(stA.bInsideNetwork);
    // The word took its comma; the next record's tag starts a new reading.
    is >> stB;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(4, stB.ucNumRefStations);
    EXPECT_EQ(ZELNETTYPE_MAC, stB.eNetType);
}

TEST(NrtkInfo, InvalidValueWritesInvalid)
{
    SZelNrtkInfo st;
    st.eNetType = static_cast<EZelNetType>(9);
    std::ostringstream os;
    os << st;
    EXPECT_EQ("NumRefStns, 0, InsideNet, 0, NetTyp, Invalid", os.str());
}

TEST(NrtkInfo, Equality)
{
    const SZelNrtkInfo stA = ZelSample::NrtkInfo();
    SZelNrtkInfo stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.ucNumRefStations = 8;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.bInsideNetwork = false;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.eNetType = ZELNETTYPE_VRS;
    EXPECT_TRUE(stA != stB);
}

TEST(NrtkInfo, ImageBoolFromAnyNonZeroByte)
{
    const unsigned char aucImg[6] = {1, 0x7F, 5, 0, 0, 0};
    SZelNrtkInfo st;
    uint64_t ulCount = 0;
    EXPECT_TRUE(st.loadData(aucImg, 6, &ulCount));
    EXPECT_TRUE(st.bInsideNetwork);
    EXPECT_EQ(ZELNETTYPE_SSR, st.eNetType);
}

// ====================================================================== SZelPosQuality

TEST(PosQuality, DefaultsAndSize)
{
    const SZelPosQuality st;
    EXPECT_EQ(ZELCOORDINATESYSTEM_CARTESIAN, st.eCoordSystem);
    EXPECT_EQ(0.0f, st.fMo);
    EXPECT_EQ(0.0f, st.fMoUnscaled);
    for (float f : st.afQ)
    {
        EXPECT_EQ(0.0f, f);
    }
    EXPECT_EQ(36u, st.getSize());
}

TEST(PosQuality, ImageGolden)
{
    CImage stImg;
    PutSampleQuality(stImg, 1);
    ZelTest::ExpectCoreImage(ZelSample::PosQuality(), stImg);
}

TEST(PosQuality, TextExact)
{
    ZelTest::ExpectTextExact(ZelSample::PosQuality(), c_szSampleQualityText);
}

TEST(PosQuality, TextOfCartesianAndUnknownSystem)
{
    SZelPosQuality st;
    st.afQ[5] = 3.0f;
    std::ostringstream os;
    os << st;
    EXPECT_EQ("CooSys, Cart, Mo, 0, MoUnscaled, 0, Q, 0, 0, 0, 0, 0, 3", os.str());
    std::istringstream is("CooSys, Polar, Mo, 1, MoUnscaled, 2, Q, 1, 2, 3, 4, 5, 6");
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(ZELCOORDINATESYSTEM_INVALID, st.eCoordSystem);
    EXPECT_EQ(1.0f, st.fMo);
    EXPECT_EQ(6.0f, st.afQ[5]);
}

TEST(PosQuality, EqualityExactNaNUnequal)
{
    const SZelPosQuality stA = ZelSample::PosQuality();
    EXPECT_TRUE(stA == ZelSample::PosQuality());
    SZelPosQuality stB = stA;
    stB.eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.fMo = std::nextafter(stB.fMo, 2.0f);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.fMoUnscaled = 0.0f;
    EXPECT_FALSE(stA == stB);
    for (int iIdx = 0; iIdx < 6; ++iIdx)
    {
        stB = stA;
        stB.afQ[iIdx] = std::nextafter(stB.afQ[iIdx], 10.0f);
        EXPECT_TRUE(stA != stB) << iIdx;
    }
    SZelPosQuality stNaN = stA;
    stNaN.afQ[3] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(stNaN == stNaN);
}

TEST(PosQuality, TracesAndSigmas)
{
    CRecordingHook stHook;
    const SZelPosQuality st = ZelSample::PosQuality();
    // xx 0.25, yy 0.5, zz 1.75: exact in float.
    EXPECT_EQ(2.5, st.GetTraceQ3d());
    EXPECT_EQ(0.75, st.GetTraceQ2d());
    EXPECT_EQ(1.75, st.GetTraceQ1d());
    EXPECT_EQ(1.5 * std::sqrt(2.5), st.GetSigma3d());
    EXPECT_EQ(1.5 * std::sqrt(0.75), st.GetSigma2d());
    EXPECT_EQ(1.5 * std::sqrt(1.75), st.GetSigma1d());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(PosQuality, TraceSummedInFloat)
{
    SZelPosQuality st;
    st.fMo = 1.0f;
    st.afQ[0] = 1.0f;
    st.afQ[2] = 1e-8f; // lost in a float sum, kept in a double one
    st.afQ[5] = 0.0f;
    const float fSum = (st.afQ[2] + st.afQ[0]) + st.afQ[5];
    EXPECT_EQ(static_cast<double>(fSum), st.GetTraceQ3d());
    EXPECT_EQ(1.0, st.GetTraceQ3d());
    EXPECT_EQ(1.0, st.GetTraceQ2d());
}

TEST(PosQuality, NegativeTraceReportsAndGivesZero)
{
    SZelPosQuality st;
    st.fMo = 2.0f;
    st.afQ[0] = -1.0f;
    st.afQ[2] = 0.5f;
    st.afQ[5] = -0.25f;
    {
        CRecordingHook stHook;
        EXPECT_EQ(0.0, st.GetTraceQ3d());
        EXPECT_EQ(0.0, st.GetTraceQ2d());
        EXPECT_EQ(0.0, st.GetTraceQ1d());
        EXPECT_EQ((std::vector<std::string>{"dTraceQ3d >= 0.0", "dTraceQ2d >= 0.0", "dTraceQ1d >= 0.0"}),
                  stHook.Texts());
    }
    {
        CRecordingHook stHook;
        EXPECT_EQ(0.0, st.GetSigma3d());
        EXPECT_EQ(0.0, st.GetSigma2d());
        EXPECT_EQ(0.0, st.GetSigma1d());
        EXPECT_EQ((std::vector<std::string>{"dTraceQ3d >= 0.0", "dTraceQ2d >= 0.0", "dTraceQ1d >= 0.0"}),
                  stHook.Texts());
    }
}

TEST(PosQuality, SigmaNorthEastHeightGeographic)
{
    CRecordingHook stHook;
    const SZelPosQuality st = ZelSample::PosQuality();
    const float fMo = 1.5f;
    EXPECT_EQ(std::sqrt(static_cast<double>(fMo * fMo * 0.25f)), st.GetSigmaNorth());
    EXPECT_EQ(std::sqrt(static_cast<double>(fMo * fMo * 0.5f)), st.GetSigmaEast());
    EXPECT_EQ(std::sqrt(static_cast<double>(fMo * fMo * 1.75f)), st.GetSigmaHeight());
    EXPECT_EQ(0.75, st.GetSigmaNorth());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(PosQuality, SigmaProductInFloat)
{
    SZelPosQuality st;
    st.eCoordSystem = ZELCOORDINATESYSTEM_GEOGRAPHIC;
    st.fMo = 1.1f;
    st.afQ[0] = 0.3f;
    const float fProduct = st.fMo * st.fMo * st.afQ[0];
    EXPECT_EQ(std::sqrt(static_cast<double>(fProduct)), st.GetSigmaNorth());
}

TEST(PosQuality, SigmaOnCartesianReportsAndReturnsTheValue)
{
    SZelPosQuality st = ZelSample::PosQuality();
    st.eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN;
    CRecordingHook stHook;
    EXPECT_EQ(0.75, st.GetSigmaNorth());
    EXPECT_EQ(std::sqrt(static_cast<double>(1.5f * 1.5f * 0.5f)), st.GetSigmaEast());
    EXPECT_EQ(std::sqrt(static_cast<double>(1.5f * 1.5f * 1.75f)), st.GetSigmaHeight());
    EXPECT_EQ((std::vector<std::string>{c_strGeoCheck, c_strGeoCheck, c_strGeoCheck}), stHook.Texts());
}

namespace
{

// Rotation from earth-fixed to north, east, up at a latitude and longitude
// (rad), as eight numbers a..h of the rows (a, b, c), (d, e, 0), (f, g, h).
void NeuRotation(double dLat, double dLon, double* pd)
{
    pd[0] = -std::sin(dLat) * std::cos(dLon);
    pd[1] = -std::sin(dLat) * std::sin(dLon);
    pd[2] = std::cos(dLat);
    pd[3] = -std::sin(dLon);
    pd[4] = std::cos(dLon);
    pd[5] = std::cos(dLat) * std::cos(dLon);
    pd[6] = std::cos(dLat) * std::sin(dLon);
    pd[7] = std::sin(dLat);
}

typedef double Mat3[3][3];

void FullR(const double* pd, Mat3& R)
{
    R[0][0] = pd[0], R[0][1] = pd[1], R[0][2] = pd[2];
    R[1][0] = pd[3], R[1][1] = pd[4], R[1][2] = 0.0;
    R[2][0] = pd[5], R[2][1] = pd[6], R[2][2] = pd[7];
}

void FullQ(const float* afQ, Mat3& Q)
{
    Q[0][0] = afQ[0], Q[0][1] = afQ[1], Q[1][1] = afQ[2];
    Q[0][2] = afQ[3], Q[1][2] = afQ[4], Q[2][2] = afQ[5];
    Q[1][0] = Q[0][1], Q[2][0] = Q[0][2], Q[2][1] = Q[1][2];
}

// A B C with B's transposition when asked, by the matrix product.
void Triple(const Mat3& A, const Mat3& B, const Mat3& C, Mat3& rOut)
{
    Mat3 AB = {};
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            for (int k = 0; k < 3; ++k)
                AB[i][j] += A[i][k] * B[k][j];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
        {
            rOut[i][j] = 0.0;
            for (int k = 0; k < 3; ++k)
                rOut[i][j] += AB[i][k] * C[k][j];
        }
}

void Transpose(const Mat3& A, Mat3& rOut)
{
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            rOut[i][j] = A[j][i];
}

// The packed upper triangle, column by column, of a full matrix.
void ExpectPacked(const Mat3& M, const float* afQ)
{
    const double adExpected[6] = {M[0][0], M[0][1], M[1][1], M[0][2], M[1][2], M[2][2]};
    for (int iIdx = 0; iIdx < 6; ++iIdx)
    {
        EXPECT_NEAR(adExpected[iIdx], static_cast<double>(afQ[iIdx]),
                    1e-6 * std::max(1.0, std::fabs(adExpected[iIdx])))
            << iIdx;
    }
}

} // namespace

TEST(PosQuality, TransformCartesianToGeographicIsRQRt)
{
    double adRot[8];
    NeuRotation(0.8, -1.2, adRot);
    SZelPosQuality st = ZelSample::PosQuality();
    st.eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN;
    Mat3 R, Rt, Q, Expected;
    FullR(adRot, R);
    Transpose(R, Rt);
    FullQ(st.afQ, Q);
    Triple(R, Q, Rt, Expected);
    CRecordingHook stHook;
    st.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
    EXPECT_EQ(ZELCOORDINATESYSTEM_GEOGRAPHIC, st.eCoordSystem);
    ExpectPacked(Expected, st.afQ);
    EXPECT_EQ(1.5f, st.fMo) << "scale factors stay";
    EXPECT_EQ(2.25f, st.fMoUnscaled);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(PosQuality, TransformGeographicToCartesianIsRtQR)
{
    double adRot[8];
    NeuRotation(-0.4, 2.9, adRot);
    SZelPosQuality st = ZelSample::PosQuality();
    Mat3 R, Rt, Q, Expected;
    FullR(adRot, R);
    Transpose(R, Rt);
    FullQ(st.afQ, Q);
    Triple(Rt, Q, R, Expected);
    st.Transform(ZELCOORDINATESYSTEM_CARTESIAN, adRot);
    EXPECT_EQ(ZELCOORDINATESYSTEM_CARTESIAN, st.eCoordSystem);
    ExpectPacked(Expected, st.afQ);
}

TEST(PosQuality, TransformForwardTermsAsWrittenRoundedOnce)
{
    // A general (not orthogonal) matrix shows each term; the first new
    // value is evaluated here in the order of its formula.
    const double adRot[8] = {0.5, -0.25, 2.0, 1.5, 0.75, -1.0, 0.125, 3.0};
    SZelPosQuality st = ZelSample::PosQuality();
    st.eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN;
    const double a = 0.5, b = -0.25, c = 2.0, d = 1.5, e = 0.75;
    const double xx = 0.25, xy = -0.125, yy = 0.5, xz = 0.0625, yz = -0.03125, zz = 1.75;
    const float fXX = static_cast<float>(a * a * xx + b * b * yy + c * c * zz + 2 * a * b * xy +
                                         2 * a * c * xz + 2 * b * c * yz);
    const float fYY = static_cast<float>(d * d * xx + e * e * yy + 2 * d * e * xy);
    Mat3 R, Rt, Q, Expected;
    FullR(adRot, R);
    Transpose(R, Rt);
    FullQ(st.afQ, Q);
    Triple(R, Q, Rt, Expected);
    st.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
    EXPECT_EQ(fXX, st.afQ[0]);
    EXPECT_EQ(fYY, st.afQ[2]);
    ExpectPacked(Expected, st.afQ);
}

TEST(PosQuality, TransformBackwardGeneralMatrix)
{
    const double adRot[8] = {0.5, -0.25, 2.0, 1.5, 0.75, -1.0, 0.125, 3.0};
    SZelPosQuality st = ZelSample::PosQuality();
    Mat3 R, Rt, Q, Expected;
    FullR(adRot, R);
    Transpose(R, Rt);
    FullQ(st.afQ, Q);
    Triple(Rt, Q, R, Expected);
    st.Transform(ZELCOORDINATESYSTEM_CARTESIAN, adRot);
    ExpectPacked(Expected, st.afQ);
}

TEST(PosQuality, TransformThereAndBackRestores)
{
    double adRot[8];
    NeuRotation(0.3, 0.7, adRot);
    SZelPosQuality st = ZelSample::PosQuality();
    st.eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN;
    const SZelPosQuality stBefore = st;
    st.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
    st.Transform(ZELCOORDINATESYSTEM_CARTESIAN, adRot);
    EXPECT_EQ(ZELCOORDINATESYSTEM_CARTESIAN, st.eCoordSystem);
    for (int iIdx = 0; iIdx < 6; ++iIdx)
    {
        EXPECT_NEAR(stBefore.afQ[iIdx], st.afQ[iIdx], 1e-6) << iIdx;
    }
}

TEST(PosQuality, TransformBeyondTheFloatRangeGivesInfinity)
{
    const double adRot[8] = {1e30, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, -1e30};
    SZelPosQuality st;
    st.afQ[0] = 1.0f;
    st.afQ[2] = 2.0f;
    st.afQ[5] = 3.0f;
    st.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
    EXPECT_EQ(std::numeric_limits<float>::infinity(), st.afQ[0]); // 1e60 xx
    EXPECT_EQ(2.0f, st.afQ[2]);
    EXPECT_EQ(std::numeric_limits<float>::infinity(), st.afQ[5]); // 3e60 zz
    EXPECT_EQ(0.0f, st.afQ[1]);
    // -1e60 xz of a matrix with a negative off-diagonal element.
    SZelPosQuality stNeg;
    stNeg.afQ[3] = -1.0f;
    const double adRotNeg[8] = {1e30, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 1e30};
    stNeg.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRotNeg);
    EXPECT_EQ(-std::numeric_limits<float>::infinity(), stNeg.afQ[3]);
}

TEST(PosQuality, TransformDoesNothingOnSameNullOrOtherPairs)
{
    double adRot[8];
    NeuRotation(0.3, 0.7, adRot);
    CRecordingHook stHook;
    {
        SZelPosQuality st = ZelSample::PosQuality(); // geographic
        st.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
        EXPECT_TRUE(st == ZelSample::PosQuality()) << "1 to 1";
        st.Transform(ZELCOORDINATESYSTEM_CARTESIAN, nullptr);
        EXPECT_TRUE(st == ZelSample::PosQuality()) << "null rotation";
        st.Transform(ZELCOORDINATESYSTEM_LOCGEO, adRot);
        EXPECT_TRUE(st == ZelSample::PosQuality()) << "1 to 2";
    }
    {
        SZelPosQuality st = ZelSample::PosQuality();
        st.eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN;
        const SZelPosQuality stBefore = st;
        st.Transform(ZELCOORDINATESYSTEM_CARTESIAN, adRot);
        EXPECT_TRUE(st == stBefore) << "0 to 0";
        st.Transform(ZELCOORDINATESYSTEM_LOCGEO, adRot);
        EXPECT_TRUE(st == stBefore) << "0 to 2";
        EXPECT_EQ(ZELCOORDINATESYSTEM_CARTESIAN, st.eCoordSystem);
    }
    {
        SZelPosQuality st = ZelSample::PosQuality();
        st.eCoordSystem = ZELCOORDINATESYSTEM_LOCGEO;
        const SZelPosQuality stBefore = st;
        st.Transform(ZELCOORDINATESYSTEM_GEOGRAPHIC, adRot);
        EXPECT_TRUE(st == stBefore) << "2 to 1";
    }
    EXPECT_EQ(0u, stHook.Count());
}

// ====================================================================== EZelCoordType, SZelPosition

TEST(CoordType, ValuesAndWordsRowByRow)
{
    const struct
    {
        EZelCoordType eType;
        int iValue;
        const char* szWord;
    } astRows[] = {{ZELCOORDTYPE_UNKNOWN, 0, "Unknown"},  {ZELCOORDTYPE_APRIORI, 1, "Apriori"},
                   {ZELCOORDTYPE_REF, 2, "Ref"},          {ZELCOORDTYPE_ROVCALC, 3, "RovCalc"},
                   {ZELCOORDTYPE_KNWMRK, 4, "KnwMrk"},    {ZELCOORDTYPE_VRSREF, 5, "VrsRef"},
                   {ZELCOORDTYPE_IPRODROV, 6, "IProdRov"}};
    for (const auto& rRow : astRows)
    {
        EXPECT_EQ(rRow.iValue, static_cast<int>(rRow.eType));
        EXPECT_STREQ(rRow.szWord, ToCoordTypeWord(rRow.eType));
        std::istringstream is(std::string(" ") + rRow.szWord + ",");
        EXPECT_EQ(rRow.eType, ReadCoordTypeWord(is)) << rRow.szWord;
    }
    EXPECT_EQ(-1, static_cast<int>(ZELCOORDTYPE_INVALID));
    EXPECT_STREQ("Invalid", ToCoordTypeWord(ZELCOORDTYPE_INVALID));
    EXPECT_STREQ("Invalid", ToCoordTypeWord(static_cast<EZelCoordType>(7)));
    std::istringstream is("ref,");
    EXPECT_EQ(ZELCOORDTYPE_INVALID, ReadCoordTypeWord(is));
}

TEST(Position, DefaultsAndSize)
{
    const SZelPosition st;
    EXPECT_EQ(ZELCOORDTYPE_UNKNOWN, st.eCoordType);
    EXPECT_EQ(0, st.ucAvail);
    EXPECT_TRUE(st.stPos == SZelCoordinateTriplet());
    EXPECT_TRUE(st.stPosQ == SZelPosQuality());
    EXPECT_FALSE(st.bNonPhysical);
    EXPECT_EQ(SZelCoordinateTriplet().getSize() + 42, st.getSize());
    EXPECT_EQ(70u, st.getSize());
}

TEST(Position, MemoryLayoutOfTheStationBlock)
{
    EXPECT_EQ(80u, sizeof(SZelPosition));
    EXPECT_EQ(4u, offsetof(SZelPosition, ucAvail));
    EXPECT_EQ(8u, offsetof(SZelPosition, stPos));
    EXPECT_EQ(40u, offsetof(SZelPosition, stPosQ));
    EXPECT_EQ(76u, offsetof(SZelPosition, bNonPhysical));
}

TEST(Position, ImageGolden)
{
    CImage stImg;
    stImg.At(0).I32(3).At(4).U8(3);
    stImg.At(5).I32(1).F64(0.75).F64(-1.25).F64(1234.5);
    stImg.At(33);
    PutSampleQuality(stImg, 1);
    stImg.At(69).U8(1).At(70);
    ZelTest::ExpectCoreImage(ZelSample::Position(), stImg, KeptRules());
}

TEST(Position, TextExact)
{
    ZelTest::ExpectTextExact(
        ZelSample::Position(),
        std::string("CooTyp, RovCalc, Avl, 3, Pos, CooTyp, Geo, Coo, 0.75, -1.25, 1234.5, PosQ, ") +
            c_szSampleQualityText + ", NonPys, 1");
}

TEST(Position, UnknownKindGivesInvalidAndReadingGoesOn)
{
    std::istringstream is(
        std::string("CooTyp, Rover, Avl, 3, Pos, CooTyp, Geo, Coo, 0.75, -1.25, 1234.5, PosQ, ") +
        c_szSampleQualityText + ", NonPys, 1");
    SZelPosition st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(ZELCOORDTYPE_INVALID, st.eCoordType);
    SZelPosition stExpected = ZelSample::Position();
    stExpected.eCoordType = ZELCOORDTYPE_INVALID;
    EXPECT_TRUE(st == stExpected);
}

TEST(Position, TextCutKeepsLaterFields)
{
    SZelPosition st = ZelSample::Position();
    std::istringstream is("CooTyp, Ref, Avl, 9, Pos, CooTyp, Cart, Coo, 1, 2");
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(ZELCOORDTYPE_REF, st.eCoordType);
    EXPECT_EQ(9, st.ucAvail);
    EXPECT_EQ(ZELCOORDINATESYSTEM_CARTESIAN, st.stPos.ecoordinatesystem);
    EXPECT_EQ(1.0, st.stPos.dCoord1);
    EXPECT_EQ(2.0, st.stPos.dCoord2);
    // After the cut: the floats keep their values, the system word of the
    // quality reads as unknown.
    EXPECT_EQ(ZELCOORDINATESYSTEM_INVALID, st.stPosQ.eCoordSystem);
    EXPECT_EQ(1234.5, st.stPos.dCoord3);
    SZelPosQuality stQ = ZelSample::PosQuality();
    stQ.eCoordSystem = ZELCOORDINATESYSTEM_INVALID;
    EXPECT_TRUE(st.stPosQ == stQ);
    EXPECT_TRUE(st.bNonPhysical);
}

TEST(Position, SecondWriteKeepsThePrecisionOfTheFirst)
{
    // The triplet leaves 12 digits set; the quality of the next record,
    // which sets none, prints with them.
    SZelPosQuality stQ;
    stQ.fMo = 1.0f / 3.0f;
    std::ostringstream os;
    os << ZelSample::Position() << "; " << stQ;
    const std::string strOut = os.str();
    EXPECT_NE(std::string::npos, strOut.find("; CooSys, Cart, Mo, 0.333333343267, MoUnscaled"));
    std::ostringstream osFresh;
    osFresh << stQ;
    EXPECT_EQ("CooSys, Cart, Mo, 0.333333, MoUnscaled, 0, Q, 0, 0, 0, 0, 0, 0", osFresh.str());
}

TEST(Position, EqualityEveryField)
{
    const SZelPosition stA = ZelSample::Position();
    SZelPosition stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.eCoordType = ZELCOORDTYPE_REF;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucAvail = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stPos.dCoord3 += 0.001;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stPosQ.fMo = 0.0f;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.bNonPhysical = false;
    EXPECT_TRUE(stA != stB);
}

TEST(Position, NestedFailureIsReportedOnceByTheNestedRecord)
{
    // The whole size is tested first; a buffer ending inside the triplet
    // fails there with one report and nothing read.
    std::vector<unsigned char> vecImg(70);
    uint64_t ulCount = 0;
    ASSERT_TRUE(ZelSample::Position().saveData(vecImg.data(), vecImg.size(), &ulCount));
    CRecordingHook stHook;
    SZelPosition st;
    ulCount = 3;
    EXPECT_FALSE(st.loadData(vecImg.data(), 20, &ulCount));
    EXPECT_EQ(3u, ulCount);
    EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    EXPECT_TRUE(st == SZelPosition());
}

// ====================================================================== bad input

namespace
{

template <class R> void NastyImages(size_t ulSize)
{
    std::mt19937 stRng(1234);
    std::vector<unsigned char> vecBuf(ulSize + 16);
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        for (auto& uc : vecBuf)
        {
            uc = static_cast<unsigned char>(stRng());
        }
        if (iRound == 0)
        {
            std::fill(vecBuf.begin(), vecBuf.end(), 0xFF);
        }
        const size_t ulLen = static_cast<size_t>(stRng() % (vecBuf.size() + 1));
        CRecordingHook stHook;
        R st;
        uint64_t ulCount = 0;
        const bool bOk = st.loadData(vecBuf.data(), ulLen, &ulCount);
        EXPECT_EQ(ulLen >= ulSize, bOk);
        if (bOk)
        {
            EXPECT_EQ(ulSize, ulCount);
            std::vector<unsigned char> vecOut(ulSize);
            EXPECT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulCount));
            // A bool comes back as 0 or 1, so only records without one
            // write the same bytes again.
            std::ostringstream os;
            os << st;
            EXPECT_FALSE(os.str().empty());
        }
        else
        {
            EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
        }
    }
}

template <class R> void NastyTexts(const std::string& strGood)
{
    std::mt19937 stRng(99);
    std::vector<std::string> vecTexts = {"", ",,,,", "4294967295 4294967295", std::string(300, 'x'),
                                         "NaN, inf, -inf"};
    for (size_t ulCut = 0; ulCut < strGood.size(); ulCut += 7)
    {
        vecTexts.push_back(strGood.substr(0, ulCut));
    }
    for (int iRound = 0; iRound < 50; ++iRound)
    {
        std::string str = strGood;
        for (int iFlip = 0; iFlip < 5; ++iFlip)
        {
            str[stRng() % str.size()] = static_cast<char>(stRng());
        }
        vecTexts.push_back(str);
    }
    for (const auto& rText : vecTexts)
    {
        CRecordingHook stHook;
        std::istringstream is(rText);
        R st;
        is >> st;
        std::ostringstream os;
        os << st;
        EXPECT_FALSE(os.str().empty());
        // The only report is that of an unknown system letter (read or
        // written again), which the letter conversion itself gives.
        for (const auto& rReport : stHook.Texts())
        {
            EXPECT_EQ("false", rReport) << rText;
        }
    }
}

template <class R> std::string TextOf(const R& rRecord)
{
    std::ostringstream os;
    os << rRecord;
    return os.str();
}

} // namespace

TEST(PositionBlocksBadInput, ImagesNeverCrash)
{
    NastyImages<SZelDOP>(12);
    NastyImages<SZelFrqSatUsage>(13);
    NastyImages<SZelSysSatUsage>(84);
    NastyImages<SZelGnssAvailability>(673);
    NastyImages<SZelNrtkInfo>(6);
    NastyImages<SZelPosQuality>(36);
    NastyImages<SZelPosition>(70);
}

TEST(PositionBlocksBadInput, TextsNeverCrash)
{
    NastyTexts<SZelDOP>(TextOf(ZelSample::Dop()));
    NastyTexts<SZelFrqSatUsage>(TextOf(ZelSample::FrqSatUsage()));
    NastyTexts<SZelSysSatUsage>(TextOf(ZelSample::SysSatUsage()));
    NastyTexts<SZelGnssAvailability>(TextOf(ZelSample::GnssAvailability()));
    NastyTexts<SZelNrtkInfo>(TextOf(ZelSample::NrtkInfo()));
    NastyTexts<SZelPosQuality>(TextOf(ZelSample::PosQuality()));
    NastyTexts<SZelPosition>(TextOf(ZelSample::Position()));
}

TEST(PositionBlocksBadInput, ForgedValuesInLookups)
{
    // Usage read from random bytes: every lookup stays in range.
    std::mt19937 stRng(7);
    std::vector<unsigned char> vecBuf(673);
    for (int iRound = 0; iRound < 100; ++iRound)
    {
        for (auto& uc : vecBuf)
        {
            uc = static_cast<unsigned char>(stRng());
        }
        SZelGnssAvailability st;
        uint64_t ulCount = 0;
        ASSERT_TRUE(st.loadData(vecBuf.data(), vecBuf.size(), &ulCount));
        const EZelSatSystem eSys = st.astSysUsage[0].eSatSystem;
        EXPECT_LE(st.CountUsedSats(eSys, 0xFFFFFFFFu), 64u);
        (void)st.GetMaxNumUse(eSys);
        (void)st.IsSatUsed(SZelSatID(eSys, 200));
        SZelSysSatUsage stSys = st.astSysUsage[1];
        CRecordingHook stHook;
        stSys.Add(st.astSysUsage[2]);
        stSys.astUsedPerFreq[0].AddSat(-2147483647 - 1);
    }
}
