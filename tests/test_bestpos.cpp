// The best-position record: layout, text with its repeated tag, comparison
// and readers handed bad input.

#include "ZelSamplesBestPos.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelNovAtelBestPos.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <iomanip>
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

void PutCoordSet(CImage& rImage, size_t ulBase, int iBase)
{
    const double b = iBase;
    rImage.At(ulBase).U8(static_cast<uint32_t>(iBase % 8));
    rImage.At(ulBase + 1).I32(0).F64(1.5 * b).F64(-2.5 * b).F64(3.5 * b);
    rImage.At(ulBase + 29).I32(2).F64(0.25).F64(0.125 * b).F64(-10.0 * b);
    rImage.At(ulBase + 57);
    for (int iIdx = 0; iIdx < 8; ++iIdx)
    {
        rImage.F64(0.125 * (iIdx + iBase) - 1.0);
    }
}

void PutUsage(CImage& rImage, size_t ulBase, int iN)
{
    rImage.At(ulBase).I32(iN + 1).U8(static_cast<uint32_t>(10 + iN)).U8(static_cast<uint32_t>(5 + iN));
    rImage.At(ulBase + 6).I32(1 + iN).U8(3).U64(0x0B0000000000000Eull >> iN);
    rImage.At(ulBase + 19).I32(3 + iN).U8(1).U64(1ull << (iN + 1));
    rImage.At(ulBase + 32).Zero(4 * 13);
}

// The sample's image from the layout: time 0, type 16, position 20,
// quality 141, static since 177, flag 193, age 194, velocity time 202,
// latency 218, velocity age 226, velocity 234, DOP time 355, DOP 371,
// usage from 383.
ZelTest::Bytes SampleImage()
{
    CImage stImage;
    stImage.At(0).Time16(60002, 1000.0, 1).At(16).U32(50);
    PutCoordSet(stImage, 20, 5);
    stImage.At(141).I32(1).F32(1.5f).F32(2.25f);
    for (int iIdx = 0; iIdx < 6; ++iIdx)
    {
        stImage.F32(0.5f * static_cast<float>(iIdx + 1));
    }
    stImage.At(177).Time16(60000, 0.0, 1).At(193).U8(1).At(194).F64(2.5);
    stImage.At(202).Time16(60002, 1500.0, 1).At(218).F64(0.03125).At(226).F64(4.75);
    PutCoordSet(stImage, 234, 2);
    stImage.At(355).Time16(60002, 2000.0, 1);
    stImage.At(371).U16(110).U16(150).U16(90).U16(210).U16(180).U16(17);
    for (int iN = 0; iN < 8; ++iN)
    {
        PutUsage(stImage, 383 + 84 * static_cast<size_t>(iN), iN);
    }
    EXPECT_EQ(stImage.Size(), 1055u);
    return stImage.Get();
}

} // namespace

TEST(BestPos, DefaultsAndSize)
{
    const SZelNovAtelBestPos st;
    EXPECT_EQ(st.stTime.m_lMjdDay, 0);
    EXPECT_EQ(st.stTime.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(st.stTime.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(st.stStaticSince.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(st.stVelTime.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(st.stDopTime.m_eAccuracy, MJDACC_NANOSECOND);
    EXPECT_EQ(st.stCoordSet, SZelCoordinateSet());
    EXPECT_EQ(st.stVelSet, SZelCoordinateSet());
    EXPECT_EQ(st.stCoordQuality, SZelPosQuality());
    EXPECT_EQ(st.stDop, SZelDOP());
    for (const auto& rUsage : st.astSatAvail)
    {
        EXPECT_EQ(rUsage, SZelSysSatUsage());
    }
    // 93 + 12 + 36 + 672 and two coordinate sets.
    EXPECT_EQ(st.getSize(), 93u + 12u + 36u + 672u + 2u * SZelCoordinateSet().getSize());
    EXPECT_EQ(st.getSize(), 1055u);
}

TEST(BestPos, DefaultRecordWithItsOpenFieldsSet)
{
    // The fields a producer must set before saving or comparing.
    SZelNovAtelBestPos a;
    a.ulType = 16;
    a.bStatic = false;
    a.dAge = 0.0;
    a.dLatency = 0.0;
    a.dVelAge = 0.0;
    SZelNovAtelBestPos b;
    b.ulType = 16;
    b.bStatic = false;
    b.dAge = 0.0;
    b.dLatency = 0.0;
    b.dVelAge = 0.0;
    EXPECT_TRUE(a == b);
    std::vector<unsigned char> vecImage(static_cast<size_t>(a.getSize()));
    uint64_t ulCount = 0;
    CRecordingHook stHook;
    ASSERT_TRUE(a.saveData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_EQ(ulCount, 1055u);
    SZelNovAtelBestPos stRead = ZelSample::BestPos();
    ASSERT_TRUE(stRead.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_TRUE(stRead == a);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(BestPos, BinaryGolden)
{
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(ZelSample::BestPos(), SampleImage(), stRules);
}

TEST(BestPos, EqualityFieldByField)
{
    const SZelNovAtelBestPos a = ZelSample::BestPos();
    SZelNovAtelBestPos b = a;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);

    b.dVelAge = 4.5; // equal in all but the velocity's age
    EXPECT_TRUE(a != b);
    b = a;
    b.dAge = 2.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.dLatency = 0.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.ulType = 51;
    EXPECT_TRUE(a != b);
    b = a;
    b.bStatic = false;
    EXPECT_TRUE(a != b);
    b = a;
    b.stCoordSet.adTrafo[7] = 0.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stVelSet.stCart.dCoord1 = 0.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stCoordQuality.fMo = 1.0f;
    EXPECT_TRUE(a != b);
    b = a;
    b.stDop.unNumSats = 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.astSatAvail[7].ucNumUse = 0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stStaticSince.m_lMjdDay += 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.stVelTime.m_dMjdFractMilliseconds += 1.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stDopTime.m_lMjdDay -= 1;
    EXPECT_TRUE(a != b);
    // Times compare within their tolerance: a nanosecond-accuracy time
    // against one a tenth of a nanosecond later.
    b = a;
    b.stTime.m_dMjdFractMilliseconds += 1e-7;
    EXPECT_TRUE(a == b);
    b.stTime.m_dMjdFractMilliseconds += 1.0;
    EXPECT_TRUE(a != b);
    // Floats exactly: a NaN makes the record unequal to itself.
    b = a;
    b.dLatency = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(b == b);
}

namespace
{
// The line by the record's tag order; the nested records and the values
// each go on one stream, so that the stream settings they leave carry over
// as they do in the record's own writer.
std::string ExpectedLine(const SZelNovAtelBestPos& r)
{
    std::ostringstream os;
    os << r.stTime << ", Typ, " << r.ulType << ", CooSet, " << r.stCoordSet << ", CooQual, "
       << r.stCoordQuality << ", StatSince, " << r.stStaticSince << ", Stat, " << r.bStatic << ", Age, "
       << r.dAge << ", VelTime, " << r.stVelTime << ", Late, " << r.dLatency << ", Age, " << r.dVelAge
       << ", Vel, " << r.stVelSet << ", DopTime, " << r.stDopTime << ", Dop, " << r.stDop << ", SatAvl";
    for (const auto& rUsage : r.astSatAvail)
    {
        os << ", " << rUsage;
    }
    return os.str();
}
} // namespace

TEST(BestPos, Text)
{
    const SZelNovAtelBestPos st = ZelSample::BestPos();
    const std::string strLine = ExpectedLine(st);
    ZelTest::ExpectTextExact(st, strLine);

    // The time first with no tag: day 60002 is day 1 of GPS week 2251
    // (MJD 44244 + 7 * 2251 = 60001), one second into it.
    EXPECT_EQ(strLine.rfind("2251, 86401, Typ, 50, CooSet, Avl, 5, Cart, ", 0), 0u) << strLine;
    // After the position set the stream is scientific at 17 digits.
    EXPECT_NE(strLine.find(", Stat, 1, Age, 2.50000000000000000e+00, VelTime, 2251, "
                           "8.64015000000000000e+04, Late, 3.12500000000000000e-02, "
                           "Age, 4.75000000000000000e+00, Vel, "),
              std::string::npos)
        << strLine;

    // ", Age, " twice, read back into the two fields.
    size_t ulAges = 0;
    for (size_t ulAt = strLine.find(", Age, "); ulAt != std::string::npos;
         ulAt = strLine.find(", Age, ", ulAt + 1))
    {
        ++ulAges;
    }
    EXPECT_EQ(ulAges, 2u);
    std::istringstream is(strLine);
    SZelNovAtelBestPos stRead;
    is >> stRead;
    EXPECT_EQ(stRead.dAge, 2.5);
    EXPECT_EQ(stRead.dVelAge, 4.75);
    EXPECT_EQ(stRead.dLatency, 0.03125);
    EXPECT_EQ(stRead.astSatAvail[7], st.astSatAvail[7]);
}

TEST(BestPos, TextWithOtherTagsAndCut)
{
    const SZelNovAtelBestPos st = ZelSample::BestPos();
    std::string strLine = ExpectedLine(st);
    // Other tag words read the same.
    for (const std::string strTag : {"Typ,", "CooSet,", "Late,", "DopTime,", "SatAvl,"})
    {
        const size_t ulAt = strLine.find(strTag);
        ASSERT_NE(ulAt, std::string::npos);
        strLine.replace(ulAt, strTag.size(), "X,");
    }
    std::istringstream is(strLine);
    SZelNovAtelBestPos stRead;
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(stRead == st);

    // Cut before the DOP: the fields after the cut keep their values.
    const std::string strFull = ExpectedLine(st);
    std::istringstream isCut(strFull.substr(0, strFull.find(", Dop, ")));
    SZelNovAtelBestPos stCut;
    stCut.stDop.unHDOP = 7;
    stCut.astSatAvail[0].ucNumAvl = 9;
    stCut.astSatAvail[0].astUsedPerFreq[0].ullBitMapUse = 9;
    isCut >> stCut;
    EXPECT_TRUE(isCut.fail());
    EXPECT_EQ(stCut.dVelAge, 4.75);
    EXPECT_EQ(stCut.stDop.unHDOP, 7);
    EXPECT_EQ(stCut.astSatAvail[0].astUsedPerFreq[0].ullBitMapUse, 9u);
    // An 8-bit count passes through a wider temporary and gets its zero.
    EXPECT_EQ(stCut.astSatAvail[0].ucNumAvl, 0);
}

TEST(BestPos, BadInputNeverCrashes)
{
    CRecordingHook stHook;
    const ZelTest::Bytes vecImage = SampleImage();
    // Every length below the size fails with one "false" and the count kept.
    for (size_t ulLength = 0; ulLength < vecImage.size(); ulLength += 37)
    {
        stHook.Clear();
        SZelNovAtelBestPos st;
        uint64_t ulCount = 5;
        EXPECT_FALSE(st.loadData(vecImage.data(), ulLength, &ulCount));
        EXPECT_EQ(ulCount, 5u);
        EXPECT_EQ(stHook.Texts(), std::vector<std::string>{"false"});
    }
    std::mt19937 stRandom(777);
    std::vector<unsigned char> vecRandom(1200);
    for (int iRun = 0; iRun < 100; ++iRun)
    {
        for (auto& rByte : vecRandom)
        {
            rByte = static_cast<unsigned char>(stRandom());
        }
        SZelNovAtelBestPos st;
        uint64_t ulCount = 0;
        if (st.loadData(vecRandom.data(), vecRandom.size(), &ulCount))
        {
            EXPECT_EQ(ulCount, 1055u);
            std::ostringstream os;
            os << st;
        }
        std::string strText(400, ' ');
        for (auto& rc : strText)
        {
            rc = static_cast<char>(" ,0123456789-.eGRCart\n"[stRandom() % 22]);
        }
        std::istringstream is(strText);
        is >> st;
        std::ostringstream os;
        os << st;
    }
    SUCCEED();
}
