// Result records of a position fix: header, ext, the fix itself, its meta
// data, and the position observation carrying the meta data.
#include "ZelSamplesPosition.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtPosResultTypes.h>

#include <gtest/gtest.h>

#include <algorithm>
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

// GPS week 2200 starts at day 44244 + 7 * 2200 = 59644.
constexpr int32_t c_lWeek2200 = 44244 + 7 * 2200;

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

// The sample header at the image's current end.
CImage& PutSampleHeader(CImage& rImg)
{
    const size_t ulBase = rImg.Size();
    rImg.At(ulBase + 0).Time16(c_lWeek2200 + 4, 0.0, 3);
    rImg.At(ulBase + 16).U64(90000).At(ulBase + 24).U32(0x1234u).At(ulBase + 28).U32(0x80000001u);
    return rImg.At(ulBase + 32);
}

// The sample ext: 345000 s of the week is day 3 and 85800000 ms.
CImage& PutSampleExt(CImage& rImg)
{
    const size_t ulBase = rImg.Size();
    rImg.At(ulBase + 0).U32(7).At(ulBase + 4).U8(1).At(ulBase + 5).U16(250).At(ulBase + 7).U32(42);
    rImg.At(ulBase + 11).U32(1234).At(ulBase + 15).U8(2).At(ulBase + 16).I32(-500);
    rImg.At(ulBase + 20).Time16(c_lWeek2200 + 3, 85800000.0, 3);
    return rImg.At(ulBase + 36);
}

// The sample usage of one system (see ZelSample::SysSatUsage).
CImage& PutSampleSysUsage(CImage& rImg, int32_t lSys, uint32_t ulNumAvl)
{
    rImg.I32(lSys).U8(ulNumAvl).U8(9);
    for (int iSlot = 0; iSlot < 6; ++iSlot)
    {
        rImg.I32(iSlot + 1).U8(2).U64(Bit(iSlot + 1) | Bit(iSlot + 10));
    }
    return rImg;
}

// The sample meta data, by the offset table of the image.
CImage SampleMetaImage()
{
    CImage stImg;
    PutSampleHeader(stImg);
    stImg.At(32).U32(5);
    stImg.At(36).U16(110).U16(220).U16(330).U16(440).U16(550).U16(12);
    stImg.At(48);
    PutSampleExt(stImg);
    stImg.At(84).U8(3);
    for (int iSys = 0; iSys < 8; ++iSys)
    {
        stImg.At(85 + 84 * static_cast<size_t>(iSys));
        PutSampleSysUsage(stImg, iSys + 1, static_cast<uint32_t>(20 + iSys));
    }
    stImg.At(757).U8(7).At(758).U8(1).At(759).I32(3);
    stImg.At(763).F32(1.5f).At(767).F32(2.25f).At(771).F32(0.75f).At(775).F32(0.875f).At(779);
    return stImg;
}

std::string SampleSysUsageText(char cLetter, int iNumAvl)
{
    return std::string("SatSys, ") + cLetter + ", NumAvl, " + std::to_string(iNumAvl) +
           ", NumUse, 9, UsedPerFreq, 1, NumUse, 2, BitMapUse, 1026, 2, NumUse, 2, BitMapUse, 2052, "
           "3, NumUse, 2, BitMapUse, 4104, 4, NumUse, 2, BitMapUse, 8208, 5, NumUse, 2, BitMapUse, 16416, "
           "6, NumUse, 2, BitMapUse, 32832";
}

std::string SampleAvailabilityText()
{
    const char acLetters[] = {'G', 'R', 'E', 'S', 'C', 'J', 'I', 'L'};
    std::string str = "NumSysObs, 3";
    for (int iSys = 0; iSys < 8; ++iSys)
    {
        str += ", " + SampleSysUsageText(acLetters[iSys], 20 + iSys);
    }
    return str;
}

// The meta line with its times and scale factors as given (the format of
// the stream decides how they look).
std::string SampleMetaText(const std::string& strAmbFixSec, const std::string& strStaticSec,
                           const std::string& strMoPos, const std::string& strMoUnscaledPos,
                           const std::string& strMoVel, const std::string& strMoUnscaledVel)
{
    return "Hdr, TimeLastAmbFix, 2200, " + strAmbFixSec +
           ", OccTimeMs, 90000, AvlFlgs, 4660, PntFlgs, 2147483649, PosTyp, 5, "
           "DOP, HDOP, 110, VDOP, 220, TDOP, 330, GDOP, 440, PDOP, 550, NumSats, 12, "
           "Ext, RecTyp, 7, Static, 1, Latcy, 250, StatEpochs, 42, RefHdl, 1234, LinComb, 2, PrdTim, -500, "
           "FirstStaticMrkEp, 2200, " +
           strStaticSec + ", GnssAvl, " + SampleAvailabilityText() +
           ", NrtkInfo, NumRefStns, 7, InsideNet, 1, NetTyp, FKP, MoPos, Mo, " + strMoPos + ", MoUnscaled, " +
           strMoUnscaledPos + ", MoVel, Mo, " + strMoVel + ", MoUnscaled, " + strMoUnscaledVel;
}

} // namespace

// ====================================================================== SZelPosResultHeader

TEST(PosResultHeader, DefaultsAndSize)
{
    const SZelPosResultHeader st;
    EXPECT_EQ(0, st.stTimeLastAmbFix.m_lMjdDay);
    EXPECT_EQ(0.0, st.stTimeLastAmbFix.m_dMjdFractMilliseconds);
    EXPECT_EQ(1, static_cast<int>(st.stTimeLastAmbFix.m_eAccuracy));
    EXPECT_EQ(0u, st.ullOccTimeMs);
    EXPECT_EQ(0u, st.ulAvlFlags);
    EXPECT_EQ(0u, st.ulPntFlags);
    EXPECT_EQ(32u, st.getSize());
}

TEST(PosResultHeader, ImageGolden)
{
    CImage stImg;
    PutSampleHeader(stImg);
    ZelTest::ExpectCoreImage(ZelSample::PosResultHeader(), stImg, KeptRules());
}

TEST(PosResultHeader, TextExact)
{
    ZelTest::ExpectTextExact(
        ZelSample::PosResultHeader(),
        "TimeLastAmbFix, 2200, 345600, OccTimeMs, 90000, AvlFlgs, 4660, PntFlgs, 2147483649");
}

TEST(PosResultHeader, EqualityTimeByTolerance)
{
    const SZelPosResultHeader stA = ZelSample::PosResultHeader(); // millisecond accuracy
    SZelPosResultHeader stB = stA;
    stB.stTimeLastAmbFix.m_dMjdFractMilliseconds += 0.5;
    EXPECT_TRUE(stA == stB) << "within a millisecond";
    stB.stTimeLastAmbFix.m_dMjdFractMilliseconds += 1.0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ullOccTimeMs = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulAvlFlags = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulPntFlags = 0;
    EXPECT_TRUE(stA != stB);
}

// ====================================================================== SZelPosResultExt

TEST(PosResultExt, DefaultsAndSize)
{
    const SZelPosResultExt st;
    EXPECT_EQ(0u, st.ulRecType);
    EXPECT_EQ(0, st.bStatic);
    EXPECT_EQ(0, st.unLatency);
    EXPECT_EQ(0u, st.ulStaticEpochs);
    EXPECT_EQ(0u, st.ulRefHandle);
    EXPECT_EQ(0, st.ucLinComb);
    EXPECT_EQ(0, st.lPredTime);
    EXPECT_EQ(0, st.stFirstStaticMarkEpoch.m_lMjdDay);
    EXPECT_EQ(0.0, st.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds);
    EXPECT_EQ(1, static_cast<int>(st.stFirstStaticMarkEpoch.m_eAccuracy));
    EXPECT_EQ(36u, st.getSize());
}

TEST(PosResultExt, ImageGolden)
{
    CImage stImg;
    PutSampleExt(stImg);
    ZelTest::ExpectCoreImage(ZelSample::PosResultExt(), stImg, KeptRules());
}

TEST(PosResultExt, ImageCarriesTheStaticMarkTime)
{
    // Equality leaves the time out, so its reading is checked by hand.
    const CImage stImg = []
    {
        CImage st;
        PutSampleExt(st);
        return st;
    }();
    SZelPosResultExt st;
    uint64_t ulCount = 0;
    ASSERT_TRUE(st.loadData(stImg.Get().data(), stImg.Size(), &ulCount));
    EXPECT_EQ(c_lWeek2200 + 3, st.stFirstStaticMarkEpoch.m_lMjdDay);
    EXPECT_EQ(85800000.0, st.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_MILLISECOND, st.stFirstStaticMarkEpoch.m_eAccuracy);
}

TEST(PosResultExt, TextExact)
{
    ZelTest::ExpectTextExact(ZelSample::PosResultExt(),
                             "RecTyp, 7, Static, 1, Latcy, 250, StatEpochs, 42, RefHdl, 1234, LinComb, 2, "
                             "PrdTim, -500, FirstStaticMrkEp, 2200, 345000");
    std::istringstream is("RecTyp, 7, Static, 1, Latcy, 250, StatEpochs, 42, RefHdl, 1234, LinComb, 2, "
                          "PrdTim, -500, FirstStaticMrkEp, 2200, 345000");
    SZelPosResultExt st;
    is >> st;
    EXPECT_EQ(c_lWeek2200 + 3, st.stFirstStaticMarkEpoch.m_lMjdDay);
    EXPECT_EQ(85800000.0, st.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds);
}

TEST(PosResultExt, EqualityLeavesTheStaticMarkTimeOut)
{
    const SZelPosResultExt stA = ZelSample::PosResultExt();
    SZelPosResultExt stB = stA;
    stB.stFirstStaticMarkEpoch = SMjdTime(1000u, 5.0);
    EXPECT_TRUE(stA == stB);
    EXPECT_FALSE(stA != stB);
    stB = stA;
    stB.ulRecType = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.bStatic = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.unLatency = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulStaticEpochs = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulRefHandle = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucLinComb = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.lPredTime = 0;
    EXPECT_TRUE(stA != stB);
}

// ====================================================================== SZelPosResult

TEST(PosResult, Defaults)
{
    const SZelPosResult st;
    EXPECT_EQ(44244, st.stTime.m_lMjdDay) << "GPS week 0, second 0";
    EXPECT_EQ(0.0, st.stTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(1, static_cast<int>(st.stTime.m_eAccuracy));
    EXPECT_EQ(0, st.stTimeLastAmbFix.m_lMjdDay);
    EXPECT_EQ(0.0, st.stTimeLastAmbFix.m_dMjdFractMilliseconds);
    EXPECT_EQ(1, static_cast<int>(st.stTimeLastAmbFix.m_eAccuracy));
    EXPECT_EQ(0u, st.ullOccTimeMs);
    EXPECT_EQ(0u, st.ulAvlFlags);
    EXPECT_EQ(0u, st.ulPntFlags);
    EXPECT_EQ(0u, st.ulPosType);
    for (int iIdx = 0; iIdx < 3; ++iIdx)
    {
        EXPECT_EQ(0.0, st.adPos[iIdx]);
        EXPECT_EQ(0.0, st.adVel[iIdx]);
    }
    EXPECT_TRUE(st.stPosQ == SZelPosQuality());
    EXPECT_TRUE(st.stVelQ == SZelPosQuality());
    EXPECT_TRUE(st.stDop == SZelDOP());
    EXPECT_TRUE(st.stExt == SZelPosResultExt());
    EXPECT_TRUE(st.stGnssAvl == SZelGnssAvailability());
    EXPECT_TRUE(st.stNrtkInfo == SZelNrtkInfo());
}

TEST(PosResult, CopyAssignAndReset)
{
    const SZelPosResult stSample = ZelSample::PosResult();
    SZelPosResult stCopy(stSample);
    EXPECT_EQ(stSample.stTime.m_lMjdDay, stCopy.stTime.m_lMjdDay);
    EXPECT_EQ(4517590.875, stCopy.adPos[0]);
    EXPECT_EQ(0.125, stCopy.adVel[2]);
    EXPECT_TRUE(stCopy.stGnssAvl == stSample.stGnssAvl);
    SZelPosResult stAssigned;
    stAssigned = stSample;
    EXPECT_TRUE(stAssigned.stVelQ == stSample.stVelQ);
    EXPECT_EQ(5u, stAssigned.ulPosType);
    stAssigned.Reset();
    EXPECT_EQ(44244, stAssigned.stTime.m_lMjdDay);
    EXPECT_EQ(MJDACC_NANOSECOND, stAssigned.stTime.m_eAccuracy);
    EXPECT_EQ(0u, stAssigned.ulPosType);
    EXPECT_EQ(0.0, stAssigned.adPos[0]);
    EXPECT_TRUE(stAssigned.stGnssAvl == SZelGnssAvailability());
    EXPECT_TRUE(stAssigned.stExt == SZelPosResultExt());
}

TEST(PosResult, TimeWithOccupationWhenStatic)
{
    const SZelPosResult st = ZelSample::PosResult(); // static, 90000 ms occupied
    SMjdTime stTime(MJDACC_HOUR);
    SMjdTime& rResult = st.GetTimeWithOccupation(stTime);
    EXPECT_EQ(&stTime, &rResult);
    // 345690.5 s of week 2200: day 4 of the week, 90500 ms; plus 90000 ms.
    EXPECT_EQ(c_lWeek2200 + 4, stTime.m_lMjdDay);
    EXPECT_EQ(180500.0, stTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_MILLISECOND, stTime.m_eAccuracy) << "all three fields of stTime";
}

TEST(PosResult, TimeWithOccupationWhenNotStatic)
{
    SZelPosResult st = ZelSample::PosResult();
    st.stExt.bStatic = 0;
    SMjdTime stTime;
    st.GetTimeWithOccupation(stTime);
    EXPECT_EQ(c_lWeek2200 + 4, stTime.m_lMjdDay);
    EXPECT_EQ(90500.0, stTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_MILLISECOND, stTime.m_eAccuracy);
}

TEST(PosResult, TimeWithOccupationCarriesIntoTheNextDay)
{
    SZelPosResult st;
    st.stTime = SMjdTime(2200u, 86400.0 - 1.0);
    st.stExt.bStatic = 2; // any value but 0 counts
    st.ullOccTimeMs = 3000;
    SMjdTime stTime;
    st.GetTimeWithOccupation(stTime);
    EXPECT_EQ(c_lWeek2200 + 1, stTime.m_lMjdDay);
    EXPECT_EQ(2000.0, stTime.m_dMjdFractMilliseconds);
}

// ====================================================================== SZelPosResultMeta

TEST(PosResultMeta, DefaultsAndSize)
{
    const SZelPosResultMeta st;
    EXPECT_TRUE(st.stHeader == SZelPosResultHeader());
    EXPECT_EQ(0u, st.ulPosType);
    EXPECT_TRUE(st.stDop == SZelDOP());
    EXPECT_TRUE(st.stExt == SZelPosResultExt());
    EXPECT_TRUE(st.stGnssAvl == SZelGnssAvailability());
    EXPECT_TRUE(st.stNrtkInfo == SZelNrtkInfo());
    EXPECT_EQ(1.0f, st.fMoPos);
    EXPECT_EQ(1.0f, st.fMoUnscaledPos);
    EXPECT_EQ(1.0f, st.fMoVel);
    EXPECT_EQ(1.0f, st.fMoUnscaledVel);
    EXPECT_EQ(779u, st.getSize());
}

TEST(PosResultMeta, ImageGoldenByOffsetTable)
{
    ZelTest::ExpectCoreImage(ZelSample::PosResultMeta(), SampleMetaImage(), KeptRules());
}

TEST(PosResultMeta, DefaultImage)
{
    CImage stImg;
    stImg.At(0).Time16(0, 0.0, 1).U64(0).U32(0).U32(0);
    stImg.At(32).U32(0).Zero(12);
    stImg.At(48).U32(0).U8(0).U16(0).U32(0).U32(0).U8(0).I32(0).Time16(0, 0.0, 1);
    stImg.At(84).Zero(1 + 672);
    stImg.At(757).Zero(6);
    stImg.At(763).F32(1.0f).F32(1.0f).F32(1.0f).F32(1.0f).At(779);
    ZelTest::ExpectCoreImage(SZelPosResultMeta(), stImg, KeptRules());
}

TEST(PosResultMeta, TextExact)
{
    ZelTest::ExpectTextExact(ZelSample::PosResultMeta(),
                             SampleMetaText("345600", "345000", "1.5", "2.25", "0.75", "0.875"));
}

TEST(PosResultMeta, TextWithOtherTagWordsReadsTheSame)
{
    std::string str = SampleMetaText("345600", "345000", "1.5", "2.25", "0.75", "0.875");
    // Every tag word replaced by another one of other length.
    for (const char* szTag : {"Hdr,", "TimeLastAmbFix,", "OccTimeMs,", "PosTyp,", "GnssAvl,", "MoPos,",
                              "MoUnscaled,", "NrtkInfo,", "FirstStaticMrkEp,", "BitMapUse,"})
    {
        const std::string strTag(szTag);
        for (size_t ulAt = str.find(strTag); ulAt != std::string::npos; ulAt = str.find(strTag, ulAt + 3))
        {
            str.replace(ulAt, strTag.size(), "Tg,");
        }
    }
    std::istringstream is(str);
    SZelPosResultMeta st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == ZelSample::PosResultMeta());
}

TEST(PosResultMeta, TextCutKeepsLaterFields)
{
    const std::string strFull = SampleMetaText("345600", "345000", "1.5", "2.25", "0.75", "0.875");
    const std::string strCut = strFull.substr(0, strFull.find(", NrtkInfo"));
    SZelPosResultMeta st;
    st.stNrtkInfo.ucNumRefStations = 99;
    st.fMoPos = 8.0f;
    st.fMoUnscaledVel = 9.0f;
    std::istringstream is(strCut);
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_TRUE(st.stGnssAvl == ZelSample::GnssAvailability()) << "before the cut";
    EXPECT_TRUE(st.stExt == ZelSample::PosResultExt());
    EXPECT_EQ(8.0f, st.fMoPos) << "after the cut";
    EXPECT_EQ(9.0f, st.fMoUnscaledVel);
    EXPECT_EQ(1.0f, st.fMoVel);
    // The network count goes through a wider temporary and gets its zero.
    EXPECT_EQ(0, st.stNrtkInfo.ucNumRefStations);
}

TEST(PosResultMeta, SecondWriteKeepsTheFormatOfTheFirst)
{
    // A record that leaves fixed notation with 9 digits on the stream
    // changes how the times and scale factors of the meta data look.
    std::ostringstream os;
    os << std::fixed << std::setprecision(9) << ZelSample::PosResultMeta();
    EXPECT_EQ(SampleMetaText("345600.000000000", "345000.000000000", "1.500000000", "2.250000000",
                             "0.750000000", "0.875000000"),
              os.str());
}

TEST(PosResultMeta, BuiltFromAResult)
{
    const SZelPosResult stResult = ZelSample::PosResult();
    const SZelPosResultMeta st(stResult);
    EXPECT_TRUE(st == ZelSample::PosResultMeta());
    EXPECT_EQ(c_lWeek2200 + 4, st.stHeader.stTimeLastAmbFix.m_lMjdDay);
    EXPECT_EQ(0.0, st.stHeader.stTimeLastAmbFix.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_MILLISECOND, st.stHeader.stTimeLastAmbFix.m_eAccuracy);
    EXPECT_EQ(90000u, st.stHeader.ullOccTimeMs);
    EXPECT_EQ(0x1234u, st.stHeader.ulAvlFlags);
    EXPECT_EQ(0x80000001u, st.stHeader.ulPntFlags);
    EXPECT_EQ(1.5f, st.fMoPos) << "from stPosQ";
    EXPECT_EQ(2.25f, st.fMoUnscaledPos);
    EXPECT_EQ(0.75f, st.fMoVel) << "from stVelQ";
    EXPECT_EQ(0.875f, st.fMoUnscaledVel);
    EXPECT_EQ(stResult.stExt.stFirstStaticMarkEpoch.m_lMjdDay, st.stExt.stFirstStaticMarkEpoch.m_lMjdDay);
    EXPECT_EQ(stResult.stExt.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds,
              st.stExt.stFirstStaticMarkEpoch.m_dMjdFractMilliseconds);
}

TEST(PosResultMeta, BuiltFromAResultDoesNotCarryItsTime)
{
    SZelPosResult stA = ZelSample::PosResult();
    SZelPosResult stB = stA;
    stB.stTime = SMjdTime(100u, 7.0);
    stB.adPos[0] = -1.0;
    stB.stPosQ.afQ[0] = 42.0f;
    EXPECT_TRUE(SZelPosResultMeta(stA) == SZelPosResultMeta(stB));
}

TEST(PosResultMeta, DifferingOnlyInTheStaticMarkTimeCompareEqual)
{
    const SZelPosResultMeta stA = ZelSample::PosResultMeta();
    SZelPosResultMeta stB = stA;
    stB.stExt.stFirstStaticMarkEpoch = SMjdTime(1500u, 12.0);
    EXPECT_TRUE(stA == stB);
    EXPECT_FALSE(stA != stB);
}

TEST(PosResultMeta, EqualityEveryOtherPart)
{
    const SZelPosResultMeta stA = ZelSample::PosResultMeta();
    std::vector<SZelPosResultMeta> vecOthers(10, stA);
    vecOthers[0].stHeader.ulPntFlags = 0;
    vecOthers[1].ulPosType = 0;
    vecOthers[2].stDop.unNumSats = 0;
    vecOthers[3].stExt.lPredTime = 0;
    vecOthers[4].stGnssAvl.astSysUsage[7].ucNumAvl = 0;
    vecOthers[5].stNrtkInfo.eNetType = ZELNETTYPE_VRS;
    vecOthers[6].fMoPos = 1.0f;
    vecOthers[7].fMoUnscaledPos = 1.0f;
    vecOthers[8].fMoVel = 1.0f;
    vecOthers[9].fMoUnscaledVel = 1.0f;
    for (size_t ulIdx = 0; ulIdx < vecOthers.size(); ++ulIdx)
    {
        EXPECT_FALSE(stA == vecOthers[ulIdx]) << ulIdx;
        EXPECT_TRUE(stA != vecOthers[ulIdx]) << ulIdx;
    }
    SZelPosResultMeta stNaN = stA;
    stNaN.fMoVel = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(stNaN == stNaN);
}

TEST(PosResultMeta, WholeSizeTestedFirstNothingReadOrWritten)
{
    const CImage stImg = SampleMetaImage();
    for (const size_t ulLen : {size_t{0}, size_t{31}, size_t{84}, size_t{700}, size_t{778}})
    {
        CRecordingHook stHook;
        SZelPosResultMeta st;
        uint64_t ulCount = 555;
        EXPECT_FALSE(st.loadData(stImg.Get().data(), ulLen, &ulCount));
        EXPECT_EQ(555u, ulCount);
        EXPECT_TRUE(st == SZelPosResultMeta());
        std::vector<unsigned char> vecOut(ulLen + 1, 0xAA);
        EXPECT_FALSE(ZelSample::PosResultMeta().saveData(vecOut.data(), ulLen, &ulCount));
        EXPECT_EQ(std::vector<unsigned char>(ulLen + 1, 0xAA), vecOut);
        EXPECT_EQ(std::vector<std::string>(2, "false"), stHook.Texts()) << "one report per call";
    }
}

// ====================================================================== ZelExtGnssPveObs

namespace
{

// The sample position observation: position obs, velocity obs (scaled by
// 0.25), then the common part with its time as a 24-byte block.
CImage SamplePveImage()
{
    CImage stImg;
    stImg.At(0).F64(1.5).F64(-2.25).F64(3.0).At(24);
    stImg.F64(4.0).F64(0.5).F64(9.0).F64(-0.25).F64(1.5).F64(16.0).At(72);
    stImg.F64(0.375).F64(-0.5625).F64(0.75).At(96);
    stImg.F64(1.0).F64(0.125).F64(2.25).F64(-0.0625).F64(0.375).F64(4.0).At(144);
    // Week 2100, 345600.125 s: day 4 of the week, 125 ms.
    stImg.I16(3).Time24(44244 + 7 * 2100 + 4, 125.0, 1).U16(17).U16(65535).At(174);
    return stImg;
}

const char* const c_szSamplePveText =
    "3, 17, 2100, 345600125.000, 65535, x_pbP, 1.500000000, -2.250000000, 3.000000000, v_pbP, "
    "0.375000000000, "
    "-0.562500000000, 0.750000000000, Qx_pbP, 4.000000000000000000, 0.500000000000000000, "
    "9.000000000000000000, "
    "-0.250000000000000000, 1.500000000000000000, 16.000000000000000000, Qv_pbP, 1.000000000000000000000000, "
    "0.125000000000000000000000, 2.250000000000000000000000, -0.062500000000000000000000, "
    "0.375000000000000000000000, 4.000000000000000000000000";

} // namespace

TEST(GnssPveObs, DefaultsBothParts)
{
    const ZelExtGnssPveObs st;
    EXPECT_TRUE(st.stObs == CL_ZELX_INS_SENSOR_OBS_PVE());
    EXPECT_TRUE(st.stMetaData == SZelPosResultMeta());
    EXPECT_EQ(1.0f, st.stMetaData.fMoPos);
    EXPECT_EQ(174u + 779u, st.getSize());
}

TEST(GnssPveObs, ImageIsObservationThenMetaData)
{
    CImage stImg = SamplePveImage();
    stImg.At(174).Append(SampleMetaImage()).At(174 + 779);
    // No whole-size test, so the kit's short-buffer rules do not apply;
    // they are checked in ShortBufferStopsAtTheFailingPart.
    const ZelExtGnssPveObs stSample = ZelSample::GnssPveObs();
    {
        CRecordingHook stHook;
        std::vector<unsigned char> vecOut(stImg.Size(), 0xAA);
        uint64_t ulCount = 777;
        EXPECT_TRUE(stSample.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(stImg.Get(), vecOut);
        EXPECT_EQ(stImg.Size(), ulCount);
        EXPECT_EQ(0u, stHook.Count());
    }
    {
        CRecordingHook stHook;
        ZelExtGnssPveObs st;
        uint64_t ulCount = 777;
        EXPECT_TRUE(st.loadData(stImg.Get().data(), stImg.Size(), &ulCount));
        EXPECT_TRUE(st == stSample);
        EXPECT_EQ(stImg.Size(), ulCount);
        EXPECT_EQ(0u, stHook.Count());
    }
}

TEST(GnssPveObs, ShortBufferStopsAtTheFailingPart)
{
    CImage stImg = SamplePveImage();
    stImg.Append(SampleMetaImage());
    const ZelExtGnssPveObs stSample = ZelSample::GnssPveObs();
    {
        // Ends inside the meta data: the observation is read, the meta data not.
        CRecordingHook stHook;
        ZelExtGnssPveObs st;
        uint64_t ulCount = 777;
        EXPECT_FALSE(st.loadData(stImg.Get().data(), stImg.Size() - 1, &ulCount));
        EXPECT_EQ(174u, ulCount);
        EXPECT_TRUE(st.stObs == stSample.stObs);
        EXPECT_TRUE(st.stMetaData == SZelPosResultMeta());
        EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    }
    {
        CRecordingHook stHook;
        std::vector<unsigned char> vecOut(stImg.Size() - 1, 0xAA);
        uint64_t ulCount = 777;
        EXPECT_FALSE(stSample.saveData(vecOut.data(), vecOut.size(), &ulCount));
        EXPECT_EQ(174u, ulCount);
        EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
        EXPECT_TRUE(std::equal(vecOut.begin(), vecOut.begin() + 174, stImg.Get().begin()));
    }
    {
        // Ends inside the observation: nothing after it is tried.
        CRecordingHook stHook;
        ZelExtGnssPveObs st;
        uint64_t ulCount = 777;
        EXPECT_FALSE(st.loadData(stImg.Get().data(), 100, &ulCount));
        EXPECT_EQ(0u, ulCount);
        EXPECT_TRUE(st == ZelExtGnssPveObs());
        EXPECT_EQ(std::vector<std::string>{"false"}, stHook.Texts());
    }
    {
        CRecordingHook stHook;
        ZelExtGnssPveObs st;
        uint64_t ulCount = 777;
        EXPECT_FALSE(st.loadData(nullptr, stImg.Size(), &ulCount));
        EXPECT_FALSE(stSample.saveData(nullptr, stImg.Size(), &ulCount));
        EXPECT_EQ(std::vector<std::string>(2, "false"), stHook.Texts());
    }
}

TEST(GnssPveObs, TextIsObservationMetaDataTagAndMeta)
{
    // The observation leaves fixed notation with 9 digits on the stream.
    ZelTest::ExpectTextExact(ZelSample::GnssPveObs(),
                             std::string(c_szSamplePveText) + ", MetaData, " +
                                 SampleMetaText("345600.000000000", "345000.000000000", "1.500000000",
                                                "2.250000000", "0.750000000", "0.875000000"));
}

TEST(GnssPveObs, EqualityBothParts)
{
    const ZelExtGnssPveObs stA = ZelSample::GnssPveObs();
    ZelExtGnssPveObs stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.stObs.usField1 = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stMetaData.ulPosType = 0;
    EXPECT_TRUE(stA != stB);
}

// ====================================================================== bad input

TEST(PosResultBadInput, ImagesNeverCrash)
{
    std::mt19937 stRng(4321);
    std::vector<unsigned char> vecBuf(1000);
    for (int iRound = 0; iRound < 300; ++iRound)
    {
        for (auto& uc : vecBuf)
        {
            uc = iRound == 0 ? 0xFF : static_cast<unsigned char>(stRng());
        }
        const size_t ulLen = static_cast<size_t>(stRng() % (vecBuf.size() + 1));
        CRecordingHook stHook;
        uint64_t ulCount = 0;
        SZelPosResultHeader stHeader;
        EXPECT_EQ(ulLen >= 32, stHeader.loadData(vecBuf.data(), ulLen, &ulCount));
        SZelPosResultExt stExt;
        EXPECT_EQ(ulLen >= 36, stExt.loadData(vecBuf.data(), ulLen, &ulCount));
        SZelPosResultMeta stMeta;
        const bool bMeta = stMeta.loadData(vecBuf.data(), ulLen, &ulCount);
        EXPECT_EQ(ulLen >= 779, bMeta);
        if (bMeta)
        {
            std::ostringstream os;
            os << stMeta;
            EXPECT_FALSE(os.str().empty());
        }
        ZelExtGnssPveObs stPve;
        EXPECT_EQ(ulLen >= 953, stPve.loadData(vecBuf.data(), ulLen, &ulCount));
    }
}

TEST(PosResultBadInput, TextsNeverCrash)
{
    std::mt19937 stRng(77);
    const std::string strGood = SampleMetaText("345600", "345000", "1.5", "2.25", "0.75", "0.875");
    std::vector<std::string> vecTexts = {"", "4294967295, 4294967295", std::string(500, ','),
                                         "Hdr, -1, -1e999"};
    for (size_t ulCut = 0; ulCut < strGood.size(); ulCut += 37)
    {
        vecTexts.push_back(strGood.substr(0, ulCut));
    }
    for (int iRound = 0; iRound < 60; ++iRound)
    {
        std::string str = strGood;
        for (int iFlip = 0; iFlip < 6; ++iFlip)
        {
            str[stRng() % str.size()] = static_cast<char>(stRng());
        }
        vecTexts.push_back(str);
    }
    for (const auto& rText : vecTexts)
    {
        CRecordingHook stHook;
        {
            std::istringstream is(rText);
            SZelPosResultMeta st;
            is >> st;
            std::ostringstream os;
            os << st;
        }
        {
            std::istringstream is(rText);
            ZelExtGnssPveObs st;
            is >> st;
            std::ostringstream os;
            os << st;
        }
        {
            std::istringstream is(rText);
            SZelPosResultHeader stH;
            SZelPosResultExt stE;
            is >> stH >> stE;
            std::ostringstream os;
            os << stH << stE;
        }
        // Only a letter of an unknown system reports, through the letter
        // conversion; a time that cannot be read gives its default.
        for (const auto& rReport : stHook.Texts())
        {
            EXPECT_EQ("false", rReport) << rText;
        }
    }
}
