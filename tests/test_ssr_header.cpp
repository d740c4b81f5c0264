// SSR message header, correction types, update-interval arithmetic, the
// abstract message and the dispatch of the binary form on the dynamic type.
#include "ZelSamplesSsr.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelSSRTypes.h>
#include <ZelTypes/Core/Common/ZelSSRTypesSerialization.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

constexpr int32_t c_lGPS_EPOCH = 44244;
constexpr double c_dMS_PER_DAY = 86400000.0;

// A message of no class of the library: the base's own operations.
class CTestMsg : public SSRCorrMsgBaseT
{
public:
    EZelSSRCorrectionType GetCorrType() const override { return eZELSSRCORRECTIONTYPE_VTROPO; }
};

// A time from its raw fields.
SMjdTime RawTime(int32_t lDay, double dMs, EMjdTimeAccuracy eAcc = MJDACC_NANOSECOND)
{
    SMjdTime st;
    st.m_lMjdDay = lDay;
    st.m_dMjdFractMilliseconds = dMs;
    st.m_eAccuracy = eAcc;
    return st;
}

// Week, day of week and milliseconds of day to a time.
SMjdTime WeekTime(int32_t lWeek, int32_t lDayOfWeek, double dMs)
{
    return RawTime(c_lGPS_EPOCH + 7 * lWeek + lDayOfWeek, dMs);
}

// A message on the GPS-week grid with a rate and a time in seconds of week 2300.
CTestMsg GridMsg(double dRate, double dSecOfWeek, uint8_t ucRef = 0)
{
    CTestMsg st;
    st.oHeader.dUpdRate = dRate;
    st.oHeader.stSSRUICfg.ucUIRefTime = ucRef;
    const int32_t lDay = static_cast<int32_t>(dSecOfWeek / 86400.0);
    st.oHeader.stRefTime = WeekTime(2300, lDay, (dSecOfWeek - lDay * 86400.0) * 1000.0);
    return st;
}

void ExpectTimeFields(const SMjdTime& st, int32_t lDay, double dMs)
{
    EXPECT_EQ(lDay, st.m_lMjdDay);
    EXPECT_DOUBLE_EQ(dMs, st.m_dMjdFractMilliseconds);
}

} // namespace

// ---------------------------------------------------------------------------
// Correction types
// ---------------------------------------------------------------------------

TEST(SsrCorrType, ValuesRowByRow)
{
    EXPECT_EQ(0, eZELSSRCORRECTIONTYPE_NULL);
    EXPECT_EQ(1, eZELSSRCORRECTIONTYPE_ORBIT_XYZ);
    EXPECT_EQ(2, eZELSSRCORRECTIONTYPE_ORBIT_RAC);
    EXPECT_EQ(3, eZELSSRCORRECTIONTYPE_CLOCK_MOD);
    EXPECT_EQ(4, eZELSSRCORRECTIONTYPE_CLOCK_DELTA);
    EXPECT_EQ(5, eZELSSRCORRECTIONTYPE_PHASEBIAS);
    EXPECT_EQ(6, eZELSSRCORRECTIONTYPE_CODEBIAS);
    EXPECT_EQ(7, eZELSSRCORRECTIONTYPE_CODEBIAS_DEPRECATED);
    EXPECT_EQ(8, eZELSSRCORRECTIONTYPE_URA);
    EXPECT_EQ(9, eZELSSRCORRECTIONTYPE_HRCLOCK_MOD);
    EXPECT_EQ(10, eZELSSRCORRECTIONTYPE_HRCLOCK_DELTA);
    EXPECT_EQ(11, eZELSSRCORRECTIONTYPE_VIONO);
    EXPECT_EQ(12, eZELSSRCORRECTIONTYPE_SIONO);
    EXPECT_EQ(13, eZELSSRCORRECTIONTYPE_VTROPO);
    EXPECT_EQ(14, eZELSSRCORRECTIONTYPE_STROPO);
    EXPECT_EQ(15, eZELSSRCORRECTIONTYPE_REORBIT_XYZ);
    EXPECT_EQ(16, eZELSSRCORRECTIONTYPE_BASECRD);
    EXPECT_EQ(17, eZELSSRCORRECTIONTYPE_SATSIG);
    EXPECT_EQ(18, eZELSSRCORRECTIONTYPE_NETGEOM);
    EXPECT_EQ(19, eZELSSRCORRECTIONTYPE_PCV);
    EXPECT_EQ(4u, sizeof(EZelSSRCorrectionType));
}

TEST(SsrCorrType, DisplayNamesRowByRow)
{
    ZelTest::CRecordingHook stHook;
    EXPECT_EQ("SSR Unknown", GetSSRCorrTypeName(0));
    EXPECT_EQ("SSR OrbitXYZ", GetSSRCorrTypeName(1));
    EXPECT_EQ("SSR OrbitRAC", GetSSRCorrTypeName(2));
    EXPECT_EQ("SSR ClkMod", GetSSRCorrTypeName(3));
    EXPECT_EQ("SSR ClkDelta", GetSSRCorrTypeName(4));
    EXPECT_EQ("SSR PhBias", GetSSRCorrTypeName(5));
    EXPECT_EQ("SSR CdBias", GetSSRCorrTypeName(6));
    EXPECT_EQ("SSR CdBias_DEPRECATED", GetSSRCorrTypeName(7));
    EXPECT_EQ("SSR URA", GetSSRCorrTypeName(8));
    EXPECT_EQ("SSR HRClkMod", GetSSRCorrTypeName(9));
    EXPECT_EQ("SSR HRClkDlt", GetSSRCorrTypeName(10));
    EXPECT_EQ("SSR VIono", GetSSRCorrTypeName(11));
    EXPECT_EQ("SSR SIono", GetSSRCorrTypeName(12));
    EXPECT_EQ("SSR VTropo", GetSSRCorrTypeName(13));
    EXPECT_EQ("SSR STropo", GetSSRCorrTypeName(14));
    EXPECT_EQ("SSR OrbitRfn", GetSSRCorrTypeName(15));
    EXPECT_EQ("SSR BaseCrd", GetSSRCorrTypeName(16));
    EXPECT_EQ("SSR SatSig", GetSSRCorrTypeName(17));
    EXPECT_EQ("SSR NetGeom", GetSSRCorrTypeName(18));
    EXPECT_EQ("SSR PCV", GetSSRCorrTypeName(19));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrCorrType, NamesOutsideTheTableAreUnknown)
{
    EXPECT_EQ("SSR Unknown", GetSSRCorrTypeName(20));
    EXPECT_EQ("SSR Unknown", GetSSRCorrTypeName(0));
    EXPECT_EQ("SSR Unknown", GetSSRCorrTypeName(-1));
    EXPECT_EQ("SSR Unknown", GetSSRCorrTypeName(1000));
    EXPECT_EQ("SSR Unknown", GetSSRCorrTypeName(-2147483647 - 1));
}

// ---------------------------------------------------------------------------
// Header record
// ---------------------------------------------------------------------------

TEST(SsrHeader, Defaults)
{
    const SSRUICfg stCfg;
    EXPECT_EQ(4, stCfg.ucSsrIntervalDefinition);
    EXPECT_EQ(4, stCfg.GetSsrIntervalDefinition());
    EXPECT_EQ(2, stCfg.ucUIRefTime);
    const SSRCorrMsgHeader st;
    EXPECT_EQ(ZELSATSYSTEM_NONE, st.eSatSys);
    EXPECT_EQ(0, st.iMsgNum);
    EXPECT_EQ(0, st.stRefTime.m_lMjdDay);
    EXPECT_EQ(0.0, st.stRefTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, st.stRefTime.m_eAccuracy);
    EXPECT_EQ(0.0, st.dUpdRate);
    EXPECT_EQ(0u, st.uiMMID);
    EXPECT_EQ(0u, st.uiRefDat);
    EXPECT_EQ(0u, st.uiSSRID);
    EXPECT_EQ(0u, st.uiProvID);
    EXPECT_EQ(0, st.iSolID);
    EXPECT_EQ(0u, st.uiRes);
    EXPECT_EQ(0, st.eSSRFormat);
    EXPECT_EQ(4, st.stSSRUICfg.ucSsrIntervalDefinition);
    EXPECT_EQ(2, st.stSSRUICfg.ucUIRefTime);
    EXPECT_EQ(70u, st.getSize());
}

namespace
{
// The sample header's image, from the offset table.
ZelTest::CImage SampleHeaderImage()
{
    ZelTest::CImage st;
    st.At(0).I32(1).At(4).I32(1060);
    st.At(8).Time24(c_lGPS_EPOCH + 2300 * 7 + 4, 5000.0, 3);
    st.At(32).F64(5.0).At(40).U32(1).At(44).U32(1).At(48).U32(3).At(52).U32(257);
    st.At(56).I32(7).At(60).U32(9).At(64).I32(2).At(68).U8(1).At(69).U8(0);
    EXPECT_EQ(70u, st.Size());
    return st;
}
} // namespace

TEST(SsrHeader, GoldenImage)
{
    // A fixed leaf: the count is cleared before the bounds test.
    ZelTest::ExpectCoreImage(ZelSample::SsrHeader(), SampleHeaderImage());
}

TEST(SsrHeader, ImageCarriesTheFieldsThatEqualityIgnores)
{
    const SSRCorrMsgHeader stSample = ZelSample::SsrHeader();
    const ZelTest::Bytes vecImage = SampleHeaderImage();
    SSRCorrMsgHeader st;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(st.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(stSample.uiMMID, st.uiMMID);
    EXPECT_EQ(stSample.uiRes, st.uiRes);
    EXPECT_EQ(stSample.eSSRFormat, st.eSSRFormat);
    EXPECT_EQ(1, st.stSSRUICfg.ucSsrIntervalDefinition);
    EXPECT_EQ(0, st.stSSRUICfg.ucUIRefTime);
    EXPECT_EQ(MJDACC_MILLISECOND, st.stRefTime.m_eAccuracy);
}

TEST(SsrHeader, TimeFillerBytesArePassedOver)
{
    ZelTest::Bytes vecImage = SampleHeaderImage();
    for (size_t ul = 12; ul < 16; ++ul)
    {
        vecImage[ul] = 0xEE;
    }
    for (size_t ul = 28; ul < 32; ++ul)
    {
        vecImage[ul] = 0x77;
    }
    SSRCorrMsgHeader st;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(st.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(70u, ulOffset);
    ExpectTimeFields(st.stRefTime, c_lGPS_EPOCH + 2300 * 7 + 4, 5000.0);
    EXPECT_EQ(5.0, st.dUpdRate);
    // Written again, the filler is zero.
    ZelTest::Bytes vecOut(70, 0xAA);
    ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulOffset));
    EXPECT_EQ(SampleHeaderImage().Get(), vecOut);
}

TEST(SsrHeader, Text)
{
    ZelTest::ExpectTextExact(
        ZelSample::SsrHeader(),
        "Hdr, SatSys, G, MsgNum, 1060, RefTim, 2300, 345605, UpdRate, 5, MMID, 1, RefDat, 1, "
        "SSRID, 3, ProvID, 257, SolID, 7, Res, 9, Fmt, 2, SSRUICfg, UIDef, 1, UIRefTim, 0");
}

TEST(SsrHeader, TextTakesTheStreamsPrecision)
{
    SSRCorrMsgHeader st = ZelSample::SsrHeader();
    st.dUpdRate = 2.5;
    std::ostringstream os;
    os << std::scientific << std::setprecision(3) << st;
    EXPECT_EQ(
        "Hdr, SatSys, G, MsgNum, 1060, RefTim, 2300, 3.456e+05, UpdRate, 2.500e+00, MMID, 1, RefDat, 1, "
        "SSRID, 3, ProvID, 257, SolID, 7, Res, 9, Fmt, 2, SSRUICfg, UIDef, 1, UIRefTim, 0",
        os.str());
}

TEST(SsrHeader, TextWithOtherTagWordsReadsTheSame)
{
    std::istringstream is(
        "A, B, G, C, 1060, D, 2300, 345605, E, 5, F, 1, G, 1, H, 3, I, 257, J, 7, K, 9, L, 2, "
        "M, N, 1, O, 0");
    SSRCorrMsgHeader st;
    is >> st;
    EXPECT_FALSE(is.fail());
    const SSRCorrMsgHeader stSample = ZelSample::SsrHeader();
    EXPECT_TRUE(st == stSample);
    EXPECT_EQ(1u, st.uiMMID);
    EXPECT_EQ(9u, st.uiRes);
    EXPECT_EQ(2, st.eSSRFormat);
    EXPECT_EQ(1, st.stSSRUICfg.ucSsrIntervalDefinition);
    EXPECT_EQ(0, st.stSSRUICfg.ucUIRefTime);
}

TEST(SsrHeader, TextTimeOutOfRangeGivesTheDefaultTimeSilently)
{
    const char* const aszTimes[] = {"5966, 100", "6000, 100", "70000, 100", "2300, 604800.5", "2300, -1"};
    for (const char* szTime : aszTimes)
    {
        SCOPED_TRACE(szTime);
        ZelTest::CRecordingHook stHook;
        SSRCorrMsgHeader st;
        st.stRefTime = RawTime(60000, 1234.0, MJDACC_SECOND);
        std::istringstream is(std::string("Hdr, SatSys, G, MsgNum, 1, RefTim, ") + szTime + ", UpdRate, 5");
        is >> st;
        EXPECT_EQ(0, st.stRefTime.m_lMjdDay);
        EXPECT_EQ(0.0, st.stRefTime.m_dMjdFractMilliseconds);
        EXPECT_EQ(MJDACC_NANOSECOND, st.stRefTime.m_eAccuracy);
        // The reading goes on after the time.
        EXPECT_EQ(5.0, st.dUpdRate);
        EXPECT_EQ(0u, stHook.Count());
    }
}

TEST(SsrHeader, TextTimeLimitsAreAccepted)
{
    SSRCorrMsgHeader st;
    std::istringstream is("Hdr, SatSys, E, MsgNum, 1, RefTim, 5965, 604800, UpdRate, 5");
    is >> st;
    // The end of the week itself is accepted: the first instant of the next week.
    ExpectTimeFields(st.stRefTime, c_lGPS_EPOCH + 5965 * 7 + 7, 0.0);
    EXPECT_EQ(ZELSATSYSTEM_GALILEO, st.eSatSys);
    std::istringstream is2("Hdr, SatSys, G, MsgNum, 1, RefTim, 0, 0, UpdRate, 5");
    is2 >> st;
    ExpectTimeFields(st.stRefTime, c_lGPS_EPOCH, 0.0);
}

TEST(SsrHeader, TextConfigurationBytesAreCutToEightBits)
{
    SSRCorrMsgHeader st;
    std::istringstream is(
        "Hdr, SatSys, G, MsgNum, 1, RefTim, 2300, 5, UpdRate, 5, MMID, 1, RefDat, 1, SSRID, 3, "
        "ProvID, 257, SolID, 7, Res, 9, Fmt, 2, SSRUICfg, UIDef, 260, UIRefTim, 513");
    is >> st;
    EXPECT_EQ(4, st.stSSRUICfg.ucSsrIntervalDefinition);
    EXPECT_EQ(1, st.stSSRUICfg.ucUIRefTime);
}

TEST(SsrHeader, CutTextFailsAndLaterFieldsKeepTheirValues)
{
    SSRCorrMsgHeader st = ZelSample::SsrHeader();
    st.uiProvID = 99;
    std::istringstream is("Hdr, SatSys, E, MsgNum, 12, RefTim, 2301");
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(ZELSATSYSTEM_GALILEO, st.eSatSys);
    EXPECT_EQ(12, st.iMsgNum);
    // The cut time keeps its value, as do the fields after it.
    ExpectTimeFields(st.stRefTime, c_lGPS_EPOCH + 2300 * 7 + 4, 5000.0);
    EXPECT_EQ(99u, st.uiProvID);
    EXPECT_EQ(5.0, st.dUpdRate);
}

TEST(SsrHeader, EqualityTakesItsFieldsInOrder)
{
    const SSRCorrMsgHeader stA = ZelSample::SsrHeader();
    EXPECT_TRUE(stA == stA);
    EXPECT_FALSE(stA != stA);
    auto fnDiffers = [&stA](auto fnChange)
    {
        SSRCorrMsgHeader stB = stA;
        fnChange(stB);
        return !(stA == stB) && stA != stB && !(stB == stA);
    };
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.eSatSys = ZELSATSYSTEM_GALILEO; }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.iMsgNum = 1061; }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.stRefTime.AddSeconds(1.0); }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.dUpdRate = 5.0 * (1.0 + 1e-13); }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.uiRefDat = 0; }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.uiSSRID = 4; }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.uiProvID = 258; }));
    EXPECT_TRUE(fnDiffers([](SSRCorrMsgHeader& r) { r.iSolID = -7; }));
    // Four fields take no part.
    EXPECT_FALSE(fnDiffers([](SSRCorrMsgHeader& r) { r.uiMMID = 0; }));
    EXPECT_FALSE(fnDiffers([](SSRCorrMsgHeader& r) { r.uiRes = 123456; }));
    EXPECT_FALSE(fnDiffers([](SSRCorrMsgHeader& r) { r.eSSRFormat = 4; }));
    EXPECT_FALSE(fnDiffers(
        [](SSRCorrMsgHeader& r)
        {
            r.stSSRUICfg.ucSsrIntervalDefinition = 4;
            r.stSSRUICfg.ucUIRefTime = 1;
        }));
    // The rate differs in the fifteenth significant digit: within 1e-14 relative.
    EXPECT_FALSE(fnDiffers([](SSRCorrMsgHeader& r) { r.dUpdRate = 5.00000000000002; }));
    EXPECT_FALSE(fnDiffers([](SSRCorrMsgHeader& r) { r.stRefTime.m_eAccuracy = MJDACC_EXACT; }));
}

TEST(SsrHeader, TimeEqualityTakesEachDirectionsLeftPrecision)
{
    SSRCorrMsgHeader stA = ZelSample::SsrHeader();
    stA.stRefTime.m_eAccuracy = MJDACC_SECOND; // 1000 ms of tolerance
    SSRCorrMsgHeader stLater = stA;
    stLater.stRefTime = RawTime(stA.stRefTime.m_lMjdDay, stA.stRefTime.m_dMjdFractMilliseconds + 500.0);
    SSRCorrMsgHeader stEarlier = stA;
    stEarlier.stRefTime = RawTime(stA.stRefTime.m_lMjdDay, stA.stRefTime.m_dMjdFractMilliseconds - 500.0);
    // A earlier than the later one is judged at A's second; the later one
    // earlier than A is false anyway.
    EXPECT_TRUE(stA == stLater);
    EXPECT_TRUE(stLater == stA);
    // The earlier one earlier than A is judged at its own nanosecond.
    EXPECT_FALSE(stA == stEarlier);
    EXPECT_FALSE(stEarlier == stA);
}

// ---------------------------------------------------------------------------
// Grid seconds
// ---------------------------------------------------------------------------

TEST(SsrInterval, RefSecondsOnBothGrids)
{
    ZelTest::CRecordingHook stHook;
    const SMjdTime st = WeekTime(2300, 4, 5000.0);
    EXPECT_EQ(2300u * 604800u + 4u * 86400u + 5u, SSRCorrMsgBaseT::GetRefSeconds(st, 0));
    EXPECT_EQ(5u, SSRCorrMsgBaseT::GetRefSeconds(st, 1));
    const SMjdTime stLate = WeekTime(2300, 2, 86399000.0);
    EXPECT_EQ(2300u * 604800u + 2u * 86400u + 86399u, SSRCorrMsgBaseT::GetRefSeconds(stLate, 0));
    EXPECT_EQ(86399u, SSRCorrMsgBaseT::GetRefSeconds(stLate, 1));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrInterval, RefSecondsRoundToAWholeMillisecond)
{
    // 5999.5 ms rounds to 6000 ms, 5999.4999 to 5999 ms: then whole seconds.
    EXPECT_EQ(6u, SSRCorrMsgBaseT::GetRefSeconds(WeekTime(2300, 0, 5999.5), 1));
    EXPECT_EQ(5u, SSRCorrMsgBaseT::GetRefSeconds(WeekTime(2300, 0, 5999.4999), 1));
    EXPECT_EQ(2300u * 604800u + 6u, SSRCorrMsgBaseT::GetRefSeconds(WeekTime(2300, 0, 5999.5), 0));
}

TEST(SsrInterval, RefSecondsOfAnOtherGridReportAndGiveZero)
{
    for (const int iRef : {2, 3, 255})
    {
        ZelTest::CRecordingHook stHook;
        EXPECT_EQ(0u, SSRCorrMsgBaseT::GetRefSeconds(WeekTime(2300, 4, 5000.0), static_cast<uint8_t>(iRef)));
        EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    }
}

TEST(SsrInterval, RoundingAcrossTheWeeksEndRaisesTheWeek)
{
    ZelTest::CRecordingHook stHook;
    const SMjdTime st = WeekTime(2300, 6, c_dMS_PER_DAY - 0.5);
    EXPECT_EQ(2301u * 604800u, SSRCorrMsgBaseT::GetRefSeconds(st, 0));
    EXPECT_EQ(0u, SSRCorrMsgBaseT::GetRefSeconds(st, 1));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrInterval, WeekCountBeyondThirtyTwoBitSecondsIsReportedAndWraps)
{
    ZelTest::CRecordingHook stHook;
    // Week 7100 with the last second of the week still fits.
    EXPECT_EQ(7100u * 604800u + 604799u, SSRCorrMsgBaseT::GetRefSeconds(WeekTime(7100, 6, 86399000.0), 0));
    EXPECT_EQ(0u, stHook.Count());
    // Week 7101: reported; the value wraps in 32 bits.
    const uint64_t ulTrue = 7101ull * 604800ull + 500000ull;
    const uint32_t ulWrapped = static_cast<uint32_t>(ulTrue % 4294967296ull);
    EXPECT_EQ(ulWrapped,
              SSRCorrMsgBaseT::GetRefSeconds(WeekTime(7101, 5, (500000.0 - 5 * 86400.0) * 1000.0), 0));
    EXPECT_EQ(std::vector<std::string>{"~ulResult / (c_ulSEC_PER_WEEK+1) > unGPSWeek"}, stHook.Texts());
    // The seconds of the day know nothing of it.
    stHook.Clear();
    EXPECT_EQ(500000u - 5u * 86400u,
              SSRCorrMsgBaseT::GetRefSeconds(WeekTime(7101, 5, (500000.0 - 5 * 86400.0) * 1000.0), 1));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrInterval, WeekCountIsKeptInSixteenBits)
{
    ZelTest::CRecordingHook stHook;
    // Week 65536 + 3 counts as week 3.
    EXPECT_EQ(3u * 604800u + 10u, SSRCorrMsgBaseT::GetRefSeconds(WeekTime(65539, 0, 10000.0), 0));
    // A time before the epoch: the unsigned day count wraps.
    const uint32_t ulDays = 0xFFFFFFFFu;
    const uint32_t ulWeek16 = (ulDays / 7u) & 0xFFFFu;
    const uint32_t ulMsOfWeek = 1000u + (ulDays % 7u) * 86400000u;
    const uint32_t ulExpected = ulWeek16 * 604800u + ulMsOfWeek / 1000u;
    ASSERT_GE(ulWeek16, 7101u);
    EXPECT_EQ(ulExpected, SSRCorrMsgBaseT::GetRefSeconds(RawTime(c_lGPS_EPOCH - 1, 1000.0), 0));
    EXPECT_EQ(1u, stHook.Count());
}

TEST(SsrInterval, RateTruncatedToWholeSeconds)
{
    EXPECT_EQ(5u, SSRCorrMsgBaseT::GetUpdRateSeconds(5.9));
    EXPECT_EQ(0u, SSRCorrMsgBaseT::GetUpdRateSeconds(0.99));
    EXPECT_EQ(4294967295u, SSRCorrMsgBaseT::GetUpdRateSeconds(4294967295.0));
    // Wrapped through 64 bits; nothing outside that range is converted.
    EXPECT_EQ(0xFFFFFFFFu - 4u, SSRCorrMsgBaseT::GetUpdRateSeconds(-5.0));
    EXPECT_EQ(0u, SSRCorrMsgBaseT::GetUpdRateSeconds(1e300));
    EXPECT_EQ(0u, SSRCorrMsgBaseT::GetUpdRateSeconds(std::nan("")));
}

// ---------------------------------------------------------------------------
// Interval bounds
// ---------------------------------------------------------------------------

TEST(SsrInterval, BoundsOnTheWeekGrid)
{
    ZelTest::CRecordingHook stHook;
    SMjdTime stStart, stEnd;
    // 7 seconds into the week, 5-second rate: 5 to 10 seconds.
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 0, 7000.0), 5, 0, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7, 5000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7, 10000.0);
    // Day 3, 3600.2 s of day: 262800 s of week; a 30-second grid.
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 3, 3600200.0), 30, 0, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7 + 3, 3600000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7 + 3, 3630000.0);
    // An interval that ends in the next day.
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 1, c_dMS_PER_DAY - 2000.0), 60, 0, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7 + 1, c_dMS_PER_DAY - 60000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7 + 2, 0.0);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrInterval, RateZeroGivesAnEmptyInterval)
{
    SMjdTime stStart, stEnd;
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 0, 7400.0), 0, 0, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7, 7000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7, 7000.0);
}

TEST(SsrInterval, BoundsOnTheDayGrid)
{
    ZelTest::CRecordingHook stHook;
    SMjdTime stStart, stEnd;
    // Day 3, 100.2 s of day, 30-second grid: 90 s of day 3.
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 3, 100200.0), 30, 1, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7 + 3, 90000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7 + 3, 120000.0);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrInterval, DayGridKeepsTheWeekOfARoundingAcrossTheWeeksEnd)
{
    SMjdTime stStart, stEnd;
    // Rounded, the time is the first instant of week 2301; the day grid
    // keeps week 2300 with the reduced seconds: its start.
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 6, c_dMS_PER_DAY - 0.5), 0, 1, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7, 0.0);
    // The week grid raises it.
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 6, c_dMS_PER_DAY - 0.5), 0, 0, stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2301 * 7, 0.0);
}

TEST(SsrInterval, BoundsOfAnOtherGridReportAndLeaveTheStart)
{
    ZelTest::CRecordingHook stHook;
    SMjdTime stStart = WeekTime(2000, 1, 1000.0);
    SMjdTime stEnd;
    SSRCorrMsgBaseT::GetUpdIntvBounds(WeekTime(2300, 0, 7000.0), 5, 2, stStart, stEnd);
    EXPECT_EQ(ZelTest::Falses(2), stHook.Texts());
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2000 * 7 + 1, 1000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2000 * 7 + 1, 6000.0);
}

TEST(SsrInterval, BoundsIntoOneObject)
{
    SMjdTime st = WeekTime(2300, 0, 7000.0);
    // The time, the start and the end are one object: the rate is added to the start.
    SSRCorrMsgBaseT::GetUpdIntvBounds(st, 5, 0, st, st);
    ExpectTimeFields(st, c_lGPS_EPOCH + 2300 * 7, 10000.0);
    SMjdTime stEnd;
    SMjdTime stTime = WeekTime(2300, 0, 7000.0);
    SSRCorrMsgBaseT::GetUpdIntvBounds(stTime, 5, 0, stTime, stEnd);
    ExpectTimeFields(stTime, c_lGPS_EPOCH + 2300 * 7, 5000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7, 10000.0);
}

TEST(SsrInterval, GetUpdIntvOfAMessage)
{
    const CTestMsg st = GridMsg(5.0, 7.0);
    SMjdTime stStart, stEnd;
    st.GetUpdIntv(stStart, stEnd);
    ExpectTimeFields(stStart, c_lGPS_EPOCH + 2300 * 7, 5000.0);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7, 10000.0);
    // The rate is truncated: 5.9 is 5.
    const CTestMsg stFrac = GridMsg(5.9, 7.0);
    stFrac.GetUpdIntv(stStart, stEnd);
    ExpectTimeFields(stEnd, c_lGPS_EPOCH + 2300 * 7, 10000.0);
}

// ---------------------------------------------------------------------------
// Interval relations
// ---------------------------------------------------------------------------

TEST(SsrCompare, DefaultMessagesReportTwiceEachAndAreEqual)
{
    ZelTest::CRecordingHook stHook;
    const CTestMsg stA, stB;
    EXPECT_EQ(SSRCorrMsgBaseT::eConstEqual, stA.CompareUpdIntv(stB));
    EXPECT_EQ(ZelTest::Falses(4), stHook.Texts());
}

TEST(SsrCompare, ResultValues)
{
    EXPECT_EQ(1, SSRCorrMsgBaseT::eConstEqual);
    EXPECT_EQ(2, SSRCorrMsgBaseT::eConstContains);
    EXPECT_EQ(3, SSRCorrMsgBaseT::eConstContained);
    EXPECT_EQ(4, SSRCorrMsgBaseT::eConstBefore);
    EXPECT_EQ(5, SSRCorrMsgBaseT::eConstAfter);
    EXPECT_EQ(6, SSRCorrMsgBaseT::eConstOverlap);
}

TEST(SsrCompare, EveryBranchOfTheDecision)
{
    ZelTest::CRecordingHook stHook;
    struct SCase
    {
        double dRateA, dSecA, dRateB, dSecB;
        SSRCorrMsgBaseT::ECompareUpdIntv eExpected;
    };
    const SCase astCases[] = {
        // Same start: same end, A ends earlier, A ends later.
        {5, 7, 5, 8, SSRCorrMsgBaseT::eConstEqual},      // [5,10] [5,10]
        {5, 2, 10, 7, SSRCorrMsgBaseT::eConstContained}, // [0,5] [0,10]
        {10, 7, 5, 2, SSRCorrMsgBaseT::eConstContains},  // [0,10] [0,5]
        // A starts earlier.
        {10, 5, 6, 7, SSRCorrMsgBaseT::eConstOverlap},  // [0,10] [6,12]
        {5, 7, 5, 12, SSRCorrMsgBaseT::eConstBefore},   // [5,10] [10,15]: touching
        {5, 7, 5, 17, SSRCorrMsgBaseT::eConstBefore},   // [5,10] [15,20]
        {10, 7, 5, 7, SSRCorrMsgBaseT::eConstContains}, // [0,10] [5,10]: same end
        {20, 7, 5, 7, SSRCorrMsgBaseT::eConstContains}, // [0,20] [5,10]
        // B starts earlier.
        {5, 7, 10, 7, SSRCorrMsgBaseT::eConstContained}, // [5,10] [0,10]
        {5, 7, 20, 7, SSRCorrMsgBaseT::eConstContained}, // [5,10] [0,20]
        {6, 7, 10, 5, SSRCorrMsgBaseT::eConstOverlap},   // [6,12] [0,10]
        {5, 12, 5, 7, SSRCorrMsgBaseT::eConstAfter},     // [10,15] [5,10]: touching
        {5, 17, 5, 7, SSRCorrMsgBaseT::eConstAfter},     // [15,20] [5,10]
    };
    for (const SCase& rCase : astCases)
    {
        SCOPED_TRACE(rCase.dSecA);
        const CTestMsg stA = GridMsg(rCase.dRateA, rCase.dSecA);
        const CTestMsg stB = GridMsg(rCase.dRateB, rCase.dSecB);
        EXPECT_EQ(rCase.eExpected, stA.CompareUpdIntv(stB));
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrCompare, FormatsThatDifferAreReportedAndTheComparisonGoesOn)
{
    ZelTest::CRecordingHook stHook;
    CTestMsg stA = GridMsg(5, 7);
    CTestMsg stB = GridMsg(5, 12);
    stB.oHeader.eSSRFormat = 4;
    EXPECT_EQ(SSRCorrMsgBaseT::eConstBefore, stA.CompareUpdIntv(stB));
    EXPECT_EQ(std::vector<std::string>{"oHeader.eSSRFormat == rhs.oHeader.eSSRFormat"}, stHook.Texts());
}

TEST(SsrCompare, TheOtherIntervalIsOnThisMessagesGrid)
{
    ZelTest::CRecordingHook stHook;
    const CTestMsg stA = GridMsg(5, 7, 0);
    CTestMsg stB = GridMsg(5, 8, 2); // its own grid would report
    EXPECT_EQ(SSRCorrMsgBaseT::eConstEqual, stA.CompareUpdIntv(stB));
    EXPECT_EQ(0u, stHook.Count());
    // The other way round both intervals are on grid 2: two reports each.
    EXPECT_EQ(SSRCorrMsgBaseT::eConstEqual, stB.CompareUpdIntv(stA));
    EXPECT_EQ(ZelTest::Falses(4), stHook.Texts());
}

TEST(SsrCompare, DayGridMessages)
{
    // 30-second intervals on the day grid of day 2: 90 s and 100 s of day are
    // one interval, 125 s the next.
    CTestMsg stA, stB, stC;
    stA.oHeader.stSSRUICfg.ucUIRefTime = 1;
    stA.oHeader.dUpdRate = 30.0;
    stA.oHeader.stRefTime = WeekTime(2300, 2, 90000.0);
    stB = stA;
    stB.oHeader.stRefTime = WeekTime(2300, 2, 100000.0);
    stC = stA;
    stC.oHeader.stRefTime = WeekTime(2300, 2, 125000.0);
    EXPECT_EQ(SSRCorrMsgBaseT::eConstEqual, stA.CompareUpdIntv(stB));
    EXPECT_EQ(SSRCorrMsgBaseT::eConstBefore, stA.CompareUpdIntv(stC));
    EXPECT_EQ(SSRCorrMsgBaseT::eConstAfter, stC.CompareUpdIntv(stA));
}

TEST(SsrCompare, AgainstTheSecondThatHoldsATime)
{
    ZelTest::CRecordingHook stHook;
    CTestMsg stA = GridMsg(5, 7); // [5,10]
    stA.oHeader.eSSRFormat = 4;   // no format is compared here
    EXPECT_EQ(SSRCorrMsgBaseT::eConstContains, stA.CompareUpdIntv(WeekTime(2300, 0, 7300.0))); // [7,8]
    EXPECT_EQ(SSRCorrMsgBaseT::eConstContains, stA.CompareUpdIntv(WeekTime(2300, 0, 5000.0))); // [5,6]
    EXPECT_EQ(SSRCorrMsgBaseT::eConstContains, stA.CompareUpdIntv(WeekTime(2300, 0, 9999.0))); // [9,10]
    EXPECT_EQ(SSRCorrMsgBaseT::eConstBefore, stA.CompareUpdIntv(WeekTime(2300, 0, 10000.0)));  // [10,11]
    EXPECT_EQ(SSRCorrMsgBaseT::eConstAfter, stA.CompareUpdIntv(WeekTime(2300, 0, 4000.0)));    // [4,5]
    EXPECT_EQ(0u, stHook.Count());
    const CTestMsg stEmpty = GridMsg(0, 7); // [7,7]
    EXPECT_EQ(SSRCorrMsgBaseT::eConstContained, stEmpty.CompareUpdIntv(WeekTime(2300, 0, 7300.0)));
}

// ---------------------------------------------------------------------------
// The abstract message
// ---------------------------------------------------------------------------

TEST(SsrBase, SlotsOfTheBase)
{
    CTestMsg st;
    st.oHeader = ZelSample::SsrHeader();
    EXPECT_FALSE(st.IsCollection());
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_VTROPO, st.GetCorrType());
    st.Clear();
    EXPECT_EQ(ZELSATSYSTEM_NONE, st.oHeader.eSatSys);
    EXPECT_EQ(0u, st.oHeader.uiMMID);
    EXPECT_EQ(0.0, st.oHeader.dUpdRate);
    EXPECT_EQ(4, st.oHeader.stSSRUICfg.ucSsrIntervalDefinition);
    EXPECT_EQ(2, st.oHeader.stSSRUICfg.ucUIRefTime);
    EXPECT_EQ(0, st.oHeader.stRefTime.m_lMjdDay);
}

TEST(SsrBase, BaseMergeReportsUnequalIntervalsAndNeverMerges)
{
    ZelTest::CRecordingHook stHook;
    CTestMsg stA = GridMsg(5, 7);
    const CTestMsg stSame = GridMsg(5, 8);
    const CTestMsg stLater = GridMsg(5, 12);
    EXPECT_FALSE(stA.MergeMsg(stSame, true));
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_FALSE(stA.MergeMsg(stLater, false));
    EXPECT_EQ(std::vector<std::string>{"CompareUpdIntv( rstNewMsg ) == ZELN::SSRCorrMsgBaseT::eConstEqual"},
              stHook.Texts());
    stHook.Clear();
    CTestMsg stOtherFormat = GridMsg(5, 12);
    stOtherFormat.oHeader.eSSRFormat = 1;
    EXPECT_FALSE(stA.MergeMsg(stOtherFormat, true));
    EXPECT_EQ((std::vector<std::string>{"oHeader.eSSRFormat == rhs.oHeader.eSSRFormat",
                                        "CompareUpdIntv( rstNewMsg ) == ZELN::SSRCorrMsgBaseT::eConstEqual"}),
              stHook.Texts());
    // Nothing was changed.
    EXPECT_EQ(GridMsg(5, 7).oHeader.stRefTime, stA.oHeader.stRefTime);
}

// ---------------------------------------------------------------------------
// Dispatch on the dynamic type
// ---------------------------------------------------------------------------

TEST(SsrDispatch, UnsupportedType)
{
    ZelTest::CRecordingHook stHook;
    CTestMsg st;
    const SSRCorrMsgBaseT& rBase = st;
    EXPECT_EQ(0u, getSize(rBase));
    unsigned char aucBuffer[200] = {};
    uint64_t ulOffset = 777;
    EXPECT_FALSE(saveData(rBase, aucBuffer, sizeof(aucBuffer), &ulOffset));
    EXPECT_FALSE(loadData(st, aucBuffer, sizeof(aucBuffer), &ulOffset));
    EXPECT_EQ(777u, ulOffset);
    EXPECT_EQ(std::vector<std::string>(3, "Unsupported Type!"), stHook.Texts());
}

namespace
{
// The image of a message through the dispatch equals its own.
template <class M> void ExpectDispatched(const M& rstMsg)
{
    SCOPED_TRACE(GetSSRCorrTypeName(rstMsg.eSSRCorrType));
    ZelTest::CRecordingHook stHook;
    const SSRCorrMsgBaseT& rBase = rstMsg;
    ASSERT_EQ(rstMsg.getSize(), getSize(rBase));
    ZelTest::Bytes vecOwn(static_cast<size_t>(rstMsg.getSize()));
    ZelTest::Bytes vecDispatched(vecOwn.size());
    uint64_t ulOffset = 0;
    ASSERT_TRUE(rstMsg.saveData(vecOwn.data(), vecOwn.size(), &ulOffset));
    ASSERT_TRUE(saveData(rBase, vecDispatched.data(), vecDispatched.size(), &ulOffset));
    EXPECT_EQ(vecOwn, vecDispatched);
    EXPECT_EQ(vecOwn.size(), ulOffset);
    M stBack;
    SSRCorrMsgBaseT& rBack = stBack;
    ASSERT_TRUE(loadData(rBack, vecOwn.data(), vecOwn.size(), &ulOffset));
    EXPECT_TRUE(stBack == rstMsg);
    EXPECT_EQ(0u, stHook.Count());
}

// A class that is two messages at once: the dispatch serves the one it
// tries first, whichever base it is handed.
template <class A, class B> struct SBoth : A, B
{
};

template <class A, class B> void ExpectTriedFirst()
{
    SBoth<A, B> stBoth;
    // The second base holds a record, so that the two sizes differ.
    static_cast<B&>(stBoth).vCorrs.resize(1);
    const uint64_t ulFirst = static_cast<const A&>(stBoth).getSize();
    ASSERT_NE(ulFirst, static_cast<const B&>(stBoth).getSize());
    const SSRCorrMsgBaseT& rViaB = static_cast<const B&>(stBoth);
    const SSRCorrMsgBaseT& rViaA = static_cast<const A&>(stBoth);
    EXPECT_EQ(ulFirst, getSize(rViaB));
    EXPECT_EQ(ulFirst, getSize(rViaA));
}
} // namespace

TEST(SsrDispatch, EveryClassIsServedByItsOwnForm)
{
    ExpectDispatched(ZelSample::SsrPcvMsg());
    ExpectDispatched(ZelSample::SsrHighRateClockMsg());
    ExpectDispatched(ZelSample::SsrUraMsg());
    ExpectDispatched(ZelSample::SsrPhaseBiasMsg());
    ExpectDispatched(ZelSample::SsrCodeBiasMsg());
    ExpectDispatched(ZelSample::SsrSignalMsg());
    ExpectDispatched(ZelSample::SsrClockMsg());
    ExpectDispatched(ZelSample::SsrOrbitMsg());
}

TEST(SsrDispatch, ClassesAreTriedInTheirFixedOrder)
{
    ZelTest::CRecordingHook stHook;
    ExpectTriedFirst<SSRPCVMsgT, SSRHighRateClockMsgT>();
    ExpectTriedFirst<SSRHighRateClockMsgT, SSRURAMsgT>();
    ExpectTriedFirst<SSRURAMsgT, SSRPhaseBiasMsgT>();
    ExpectTriedFirst<SSRPhaseBiasMsgT, SSRCodeBiasMsgT>();
    ExpectTriedFirst<SSRCodeBiasMsgT, SSRSignalMsgT>();
    ExpectTriedFirst<SSRSignalMsgT, SSRClockCorrMsgT>();
    ExpectTriedFirst<SSRClockCorrMsgT, SSROrbitCorrMsgT>();
    // The NULL types of the default constructors are not looked at.
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrDispatch, ReaderAndWriterFailuresPassThrough)
{
    ZelTest::CRecordingHook stHook;
    const SSRURAMsgT stMsg = ZelSample::SsrUraMsg();
    const SSRCorrMsgBaseT& rBase = stMsg;
    ZelTest::Bytes vec(static_cast<size_t>(stMsg.getSize()) - 1);
    uint64_t ulOffset = 0;
    EXPECT_FALSE(saveData(rBase, vec.data(), vec.size(), &ulOffset));
    SSRURAMsgT stBack = ZelSample::SsrUraMsg();
    SSRCorrMsgBaseT& rBack = stBack;
    EXPECT_FALSE(loadData(rBack, nullptr, 100, &ulOffset));
    EXPECT_EQ(ZelTest::Falses(2), stHook.Texts());
}
