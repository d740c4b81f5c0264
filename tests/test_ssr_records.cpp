// SSR correction records: orbit, clock, high-rate clock, accuracy, code and
// phase bias, and the phase-centre variation grid with its interpolation.
#include "ZelSamplesSsr.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelSSRTypes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

constexpr int32_t c_lWEEK2300_DAY4 = 44244 + 2300 * 7 + 4;
const double c_dNAN = std::numeric_limits<double>::quiet_NaN();

ZelTest::SCoreRules KeptRules()
{
    // Records with nested records set the count after the bounds test.
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    return stRules;
}

// The image of a satellite: system at 0, number at 4, three filling bytes.
ZelTest::CImage& SatImage(ZelTest::CImage& rImage, int32_t lSys, uint32_t ulNumber)
{
    return rImage.I32(lSys).U8(ulNumber).Zero(3);
}

// The sample signal: G05, group 1, modes C (bit 2) and W (bit 11).
ZelTest::CImage& SignalImage(ZelTest::CImage& rImage, uint32_t ulSat = 5)
{
    SatImage(rImage, 1, ulSat);
    return rImage.I32(1).U32((1u << 2) | (1u << 11));
}

// Reads a text into a fresh record.
template <class R> R FromText(const std::string& strText, bool* pbFailed = nullptr)
{
    std::istringstream is(strText);
    R st;
    is >> st;
    if (pbFailed != nullptr)
    {
        *pbFailed = is.fail();
    }
    return st;
}

// Random bytes, truncated images and forged words must never crash a reader.
template <class R> void NastyImages(const ZelTest::Bytes& rvecGood)
{
    ZelTest::CRecordingHook stHook;
    std::mt19937 oRandom(17);
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        ZelTest::Bytes vec(static_cast<size_t>(oRandom() % 64));
        for (auto& ruc : vec)
        {
            ruc = static_cast<unsigned char>(oRandom());
        }
        R st;
        uint64_t ulOffset = 0;
        const bool bOk = st.loadData(vec.data(), vec.size(), &ulOffset);
        EXPECT_LE(ulOffset, vec.size());
        if (bOk)
        {
            EXPECT_EQ(st.getSize(), ulOffset);
        }
    }
    for (size_t ulLength = 0; ulLength < rvecGood.size(); ++ulLength)
    {
        R st;
        uint64_t ulOffset = 0;
        EXPECT_FALSE(st.loadData(rvecGood.data(), ulLength, &ulOffset));
    }
    for (size_t ulAt = 0; ulAt + 4 <= rvecGood.size(); ++ulAt)
    {
        ZelTest::Bytes vec = rvecGood;
        const uint32_t ulForged = 0xFFFFFFFFu;
        std::memcpy(&vec[ulAt], &ulForged, 4);
        R st;
        uint64_t ulOffset = 0;
        st.loadData(vec.data(), vec.size(), &ulOffset);
        EXPECT_LE(ulOffset, vec.size());
    }
}

} // namespace

// ---------------------------------------------------------------------------
// Defaults and constructors
// ---------------------------------------------------------------------------

TEST(SsrRecords, Defaults)
{
    const SSROrbitCorr stOrbit;
    EXPECT_EQ(SZelSatID(), stOrbit.stSatID);
    EXPECT_EQ(0u, stOrbit.uiIODBE);
    EXPECT_EQ(0u, stOrbit.uiIODPE);
    EXPECT_FALSE(stOrbit.bScale);
    EXPECT_EQ(0.0, stOrbit.dDRDX);
    EXPECT_EQ(0.0, stOrbit.dDADY);
    EXPECT_EQ(0.0, stOrbit.dDCDZ);
    EXPECT_EQ(0.0, stOrbit.dDRDXdot);
    EXPECT_EQ(0.0, stOrbit.dDADYdot);
    EXPECT_EQ(0.0, stOrbit.dDCDZdot);
    EXPECT_EQ(0, stOrbit.stRefTime.m_lMjdDay);
    EXPECT_EQ(0.0, stOrbit.stRefTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, stOrbit.stRefTime.m_eAccuracy);
    const SSRClockCorr stClock;
    EXPECT_EQ(SZelSatID(), stClock.stSatID);
    EXPECT_EQ(0.0, stClock.dC0);
    EXPECT_EQ(0.0, stClock.dC1);
    EXPECT_EQ(0.0, stClock.dC2);
    EXPECT_EQ(0, stClock.stRefTime.m_lMjdDay);
    const SSRHighRateClock stHr;
    EXPECT_EQ(SZelSatID(), stHr.stSatID);
    EXPECT_EQ(0.0, stHr.dCorr);
    const SSRURA stUra;
    EXPECT_EQ(SZelSatID(), stUra.stSatID);
    EXPECT_EQ(0, stUra.iSsrUra);
    const SSRBias stBias;
    EXPECT_EQ(SZelSatFrqTMdGroupID(), stBias.stSigID);
    EXPECT_EQ(0.0, stBias.dBias);
    const SSRPhaseBias stPhase;
    EXPECT_EQ(SZelSatFrqTMdGroupID(), stPhase.stSigID);
    EXPECT_EQ(0.0, stPhase.dBias);
    EXPECT_EQ(0u, stPhase.uiLckTimeCnt);
    const SSRPCV stPcv;
    EXPECT_EQ(SZelSatFrqTMdGroupID(), stPcv.stSatSigID);
    EXPECT_EQ(0u, stPcv.uiEndZenith);
    EXPECT_EQ(0u, stPcv.uiZenithStep);
    EXPECT_TRUE(stPcv.vcValues.empty());
}

TEST(SsrRecords, Constructors)
{
    const SZelSatID stSat(ZELSATSYSTEM_GALILEO, 12);
    const SSROrbitCorr stOnlySat(stSat);
    SSROrbitCorr stExpected;
    stExpected.stSatID = stSat;
    EXPECT_TRUE(stOnlySat == stExpected);

    const SMjdTime stTime(2300u, 1000.0);
    const SSROrbitCorr stFull(stSat, 1, 2, stTime, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, true);
    EXPECT_EQ(stSat, stFull.stSatID);
    EXPECT_EQ(1u, stFull.uiIODBE);
    EXPECT_EQ(2u, stFull.uiIODPE);
    EXPECT_EQ(stTime, stFull.stRefTime);
    EXPECT_EQ(3.0, stFull.dDRDX);
    EXPECT_EQ(4.0, stFull.dDADY);
    EXPECT_EQ(5.0, stFull.dDCDZ);
    EXPECT_EQ(6.0, stFull.dDRDXdot);
    EXPECT_EQ(7.0, stFull.dDADYdot);
    EXPECT_EQ(8.0, stFull.dDCDZdot);
    EXPECT_TRUE(stFull.bScale);

    const SSRClockCorr stClock(stSat, stTime, 1.5, 2.5, 3.5);
    EXPECT_EQ(stSat, stClock.stSatID);
    EXPECT_EQ(stTime, stClock.stRefTime);
    EXPECT_EQ(1.5, stClock.dC0);
    EXPECT_EQ(2.5, stClock.dC1);
    EXPECT_EQ(3.5, stClock.dC2);

    const SZelSatFrqTMdGroupID stSig(stSat, ZELFREQUENCY_GROUP_2, 6u);
    const SSRBias stBias1(stSig, 0.25);
    const SSRBias stBias2(stSat, ZELFREQUENCY_GROUP_2, 6u, 0.25);
    EXPECT_EQ(stSig, stBias1.stSigID);
    EXPECT_EQ(0.25, stBias1.dBias);
    EXPECT_TRUE(stBias1 == stBias2);
    const SSRPhaseBias stPhase1(stSig, 0.25, 9);
    const SSRPhaseBias stPhase2(stSat, ZELFREQUENCY_GROUP_2, 6u, 0.25, 9);
    EXPECT_EQ(9u, stPhase1.uiLckTimeCnt);
    EXPECT_TRUE(stPhase1 == stPhase2);
    EXPECT_EQ(0.25, stPhase1.dBias);
}

// ---------------------------------------------------------------------------
// Binary forms
// ---------------------------------------------------------------------------

namespace
{
ZelTest::CImage OrbitImage()
{
    ZelTest::CImage st;
    SatImage(st.At(0), 1, 5);
    st.At(8).U32(77).At(12).U32(78).At(16).U8(1);
    st.At(17).F64(0.125).At(25).F64(-1.5).At(33).F64(2.25);
    st.At(41).F64(0.0009765625).At(49).F64(-0.001953125).At(57).F64(0.0029296875);
    st.At(65).Time16(c_lWEEK2300_DAY4, 500.0, 2);
    return st;
}
} // namespace

TEST(SsrRecords, OrbitImage)
{
    const ZelTest::CImage stImage = OrbitImage();
    EXPECT_EQ(81u, stImage.Size());
    ZelTest::ExpectCoreImage(ZelSample::SsrOrbitCorr(), stImage, KeptRules());
}

TEST(SsrRecords, OrbitWrittenAndReadBackKeepsTheScaleFlag)
{
    for (const bool bScale : {true, false})
    {
        SSROrbitCorr st = ZelSample::SsrOrbitCorr();
        st.bScale = bScale;
        ZelTest::Bytes vec(81);
        uint64_t ulOffset = 0;
        ASSERT_TRUE(st.saveData(vec.data(), vec.size(), &ulOffset));
        EXPECT_EQ(bScale ? 1 : 0, vec[16]);
        SSROrbitCorr stBack;
        stBack.bScale = !bScale;
        ASSERT_TRUE(stBack.loadData(vec.data(), vec.size(), &ulOffset));
        EXPECT_TRUE(stBack == st);
        EXPECT_EQ(bScale, stBack.bScale);
    }
    // Any byte but 0 reads as true.
    ZelTest::Bytes vec = OrbitImage();
    vec[16] = 0x80;
    SSROrbitCorr stBack;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stBack.loadData(vec.data(), vec.size(), &ulOffset));
    EXPECT_TRUE(stBack.bScale);
}

TEST(SsrRecords, ClockImage)
{
    ZelTest::CImage st;
    SatImage(st.At(0), 1, 7);
    st.At(8).F64(0.5).At(16).F64(-0.25).At(24).F64(0.0078125).At(32).Time16(c_lWEEK2300_DAY4, 0.0, 3);
    EXPECT_EQ(48u, st.Size());
    ZelTest::ExpectCoreImage(ZelSample::SsrClockCorr(), st, KeptRules());
}

TEST(SsrRecords, HighRateClockImage)
{
    ZelTest::CImage st;
    SatImage(st.At(0), 1, 11);
    st.At(8).F64(0.0625);
    EXPECT_EQ(16u, st.Size());
    ZelTest::ExpectCoreImage(ZelSample::SsrHighRateClock(), st, KeptRules());
}

TEST(SsrRecords, UraImage)
{
    ZelTest::CImage st;
    SatImage(st.At(0), 1, 3);
    st.At(8).I32(42);
    EXPECT_EQ(12u, st.Size());
    ZelTest::ExpectCoreImage(ZelSample::SsrUra(), st, KeptRules());
}

TEST(SsrRecords, BiasImages)
{
    ZelTest::CImage stBias;
    SignalImage(stBias.At(0));
    stBias.At(16).F64(-1.75);
    EXPECT_EQ(24u, stBias.Size());
    ZelTest::ExpectCoreImage(ZelSample::SsrBias(), stBias, KeptRules());

    ZelTest::CImage stPhase;
    SignalImage(stPhase.At(0));
    stPhase.At(16).F64(0.375).At(24).U32(12345);
    EXPECT_EQ(28u, stPhase.Size());
    ZelTest::ExpectCoreImage(ZelSample::SsrPhaseBias(), stPhase, KeptRules());
}

TEST(SsrRecords, NestedRecordsFailInsideTheSatellite)
{
    ZelTest::CRecordingHook stHook;
    const ZelTest::Bytes vec = OrbitImage();
    SSROrbitCorr st;
    uint64_t ulOffset = 0;
    // Short images are refused by the record's own bounds test first.
    EXPECT_FALSE(st.loadData(vec.data(), 80, &ulOffset));
    EXPECT_EQ(0u, ulOffset);
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
}

TEST(SsrRecords, NastyImages)
{
    NastyImages<SSROrbitCorr>(OrbitImage());
    ZelTest::Bytes vecPcv(43, 0);
    const uint32_t aulGrid[2] = {90, 5};
    std::memcpy(&vecPcv[16], aulGrid, 8);
    NastyImages<SSRPCV>(vecPcv);
    NastyImages<SSRPhaseBias>(ZelTest::Bytes(28, 0x11));
    NastyImages<SSRClockCorr>(ZelTest::Bytes(48, 0x22));
    NastyImages<SSRURA>(ZelTest::Bytes(12, 0x33));
    NastyImages<SSRHighRateClock>(ZelTest::Bytes(16, 0x44));
    NastyImages<SSRBias>(ZelTest::Bytes(24, 0x55));
}

// ---------------------------------------------------------------------------
// Text forms
// ---------------------------------------------------------------------------

TEST(SsrRecords, Texts)
{
    ZelTest::ExpectTextExact(ZelSample::SsrOrbitCorr(),
                             "SatId, G05, IODBE, 77, IODPE, 78, Scale, 1, DRDX, 1.25000000000000000e-01, "
                             "DADY, -1.50000000000000000e+00, DCDZ, 2.25000000000000000e+00, "
                             "DRDXdot, 9.76562500000000000e-04, DADYdot, -1.95312500000000000e-03, "
                             "DCDZdot, 2.92968750000000000e-03, RefTime, 2300, 3.45600500000000000e+05");
    ZelTest::ExpectTextExact(ZelSample::SsrClockCorr(),
                             "SatId, G07, C0, 5.00000000000000000e-01, C1, -2.50000000000000000e-01, "
                             "C2, 7.81250000000000000e-03, RefTime, 2300, 3.45600000000000000e+05");
    ZelTest::ExpectTextExact(ZelSample::SsrHighRateClock(), "SatId, G11, Corr, 6.25000000000000000e-02");
    ZelTest::ExpectTextExact(ZelSample::SsrUra(), "SatId, G03, SsrUra, 42");
    ZelTest::ExpectTextExact(ZelSample::SsrBias(), "SigId, G05:L1:C|W, Bias, -1.75000000000000000e+00");
    ZelTest::ExpectTextExact(ZelSample::SsrPhaseBias(),
                             "SigId, G05:L1:C|W, Bias, 3.75000000000000000e-01, LckTimeCnt, 12345");
    ZelTest::ExpectTextExact(ZelSample::SsrPcv(),
                             "SatSigId, G05:L1:C|W, EndZenith, 90, ZenithStep, 5, -9, -8, -7, "
                             "-6, -5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9");
}

TEST(SsrRecords, ScientificSeventeenStaysOnTheStream)
{
    std::ostringstream os;
    os << ZelSample::SsrBias() << "|" << 0.5 << "|" << ZelSample::SsrHeader();
    EXPECT_EQ(
        "SigId, G05:L1:C|W, Bias, -1.75000000000000000e+00|5.00000000000000000e-01|"
        "Hdr, SatSys, G, MsgNum, 1060, RefTim, 2300, 3.45605000000000000e+05, "
        "UpdRate, 5.00000000000000000e+00, MMID, 1, RefDat, 1, SSRID, 3, ProvID, 257, SolID, 7, Res, 9, "
        "Fmt, 2, SSRUICfg, UIDef, 1, UIRefTim, 0",
        os.str());
    for (int iRecord = 0; iRecord < 4; ++iRecord)
    {
        std::ostringstream osOne;
        switch (iRecord)
        {
        case 0:
            osOne << ZelSample::SsrOrbitCorr();
            break;
        case 1:
            osOne << ZelSample::SsrClockCorr();
            break;
        case 2:
            osOne << ZelSample::SsrHighRateClock();
            break;
        default:
            osOne << ZelSample::SsrPhaseBias();
            break;
        }
        osOne.str("");
        osOne << 0.5;
        EXPECT_EQ("5.00000000000000000e-01", osOne.str()) << iRecord;
    }
}

TEST(SsrRecords, AccuracyAndGridSetNoFormat)
{
    std::ostringstream os;
    os << ZelSample::SsrUra() << "|" << 0.5 << "|" << ZelSample::SsrPcv() << "|" << 0.25;
    EXPECT_EQ(
        "SatId, G03, SsrUra, 42|0.5|SatSigId, G05:L1:C|W, EndZenith, 90, ZenithStep, 5, -9, -8, -7, -6, "
        "-5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9|0.25",
        os.str());
}

TEST(SsrRecords, TextTagWordsAreNotCompared)
{
    const SSRClockCorr st = FromText<SSRClockCorr>("x G07, y 0.5, z -0.25, w 0.0078125, v 2300, 345600");
    EXPECT_TRUE(st == ZelSample::SsrClockCorr());
}

TEST(SsrRecords, ClockTextWithWeek6000TakesTheDefaultTime)
{
    ZelTest::CRecordingHook stHook;
    bool bFailed = true;
    const SSRClockCorr st =
        FromText<SSRClockCorr>("SatId, G07, C0, 0.5, C1, -0.25, C2, 0.0078125, RefTime, 6000, 100", &bFailed);
    EXPECT_FALSE(bFailed);
    EXPECT_EQ(0, st.stRefTime.m_lMjdDay);
    EXPECT_EQ(0.0, st.stRefTime.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, st.stRefTime.m_eAccuracy);
    EXPECT_EQ(0.5, st.dC0);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrRecords, CutTextKeepsTheFieldsAfterTheCut)
{
    std::istringstream is("SatId, E09, IODBE, 5, IODPE");
    SSROrbitCorr st = ZelSample::SsrOrbitCorr();
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GALILEO, 9), st.stSatID);
    EXPECT_EQ(5u, st.uiIODBE);
    EXPECT_EQ(78u, st.uiIODPE);
    EXPECT_EQ(0.125, st.dDRDX);
    EXPECT_EQ(ZelSample::SsrOrbitCorr().stRefTime, st.stRefTime);
}

TEST(SsrRecords, ScaleFlagComesInThroughAWiderInteger)
{
    SSROrbitCorr st = FromText<SSROrbitCorr>("SatId, G05, IODBE, 77, IODPE, 78, Scale, 7, DRDX, 1");
    EXPECT_TRUE(st.bScale);
    EXPECT_EQ(1.0, st.dDRDX);
    st = FromText<SSROrbitCorr>("SatId, G05, IODBE, 77, IODPE, 78, Scale, 0, DRDX, 1");
    EXPECT_FALSE(st.bScale);
}

// ---------------------------------------------------------------------------
// Equality and order
// ---------------------------------------------------------------------------

TEST(SsrRecords, EqualityComparesEveryField)
{
    const SSROrbitCorr stOrbit = ZelSample::SsrOrbitCorr();
    auto fnOrbitDiffers = [&stOrbit](auto fnChange)
    {
        SSROrbitCorr st = stOrbit;
        fnChange(st);
        return !(st == stOrbit) && st != stOrbit;
    };
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.stSatID.uiSatNumber = 6; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.uiIODBE = 1; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.uiIODPE = 1; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.bScale = false; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDRDX = std::nextafter(r.dDRDX, 1.0); }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDADY = 0.0; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDCDZ = 0.0; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDRDXdot = 0.0; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDADYdot = 0.0; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDCDZdot = 0.0; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.stRefTime.AddMilliseconds(1.0); }));
    // The time compares by its own tolerance (microsecond for the sample).
    EXPECT_FALSE(fnOrbitDiffers([](SSROrbitCorr& r) { r.stRefTime.m_dMjdFractMilliseconds += 0.0005; }));
    EXPECT_TRUE(fnOrbitDiffers([](SSROrbitCorr& r) { r.dDRDX = c_dNAN; }));

    SSRClockCorr stClock = ZelSample::SsrClockCorr();
    SSRClockCorr stClock2 = stClock;
    stClock2.dC2 = 0.0;
    EXPECT_FALSE(stClock == stClock2);
    stClock2 = stClock;
    stClock2.stRefTime.AddSeconds(2.0);
    EXPECT_FALSE(stClock == stClock2);
    stClock.dC1 = c_dNAN;
    EXPECT_FALSE(stClock == stClock);

    SSRHighRateClock stHr = ZelSample::SsrHighRateClock();
    SSRHighRateClock stHr2 = stHr;
    stHr2.dCorr = -stHr2.dCorr;
    EXPECT_TRUE(stHr != stHr2);
    stHr2 = stHr;
    stHr2.stSatID.eSatSystem = ZELSATSYSTEM_QZSS;
    EXPECT_TRUE(stHr != stHr2);

    SSRURA stUra = ZelSample::SsrUra();
    SSRURA stUra2 = stUra;
    stUra2.iSsrUra = 41;
    EXPECT_TRUE(stUra != stUra2);

    SSRPhaseBias stPhase = ZelSample::SsrPhaseBias();
    SSRPhaseBias stPhase2 = stPhase;
    stPhase2.uiLckTimeCnt = 0;
    EXPECT_TRUE(stPhase != stPhase2);
    stPhase2 = stPhase;
    stPhase2.stSigID.ebfTMdGrps = 4;
    EXPECT_TRUE(stPhase != stPhase2);
    stPhase2 = stPhase;
    stPhase2.dBias = 0.0;
    EXPECT_TRUE(stPhase != stPhase2);
    SSRBias stBias = ZelSample::SsrBias();
    SSRBias stBias2 = stBias;
    stBias2.stSigID.eFrqGrp = ZELFREQUENCY_GROUP_2;
    EXPECT_TRUE(stBias != stBias2);
}

TEST(SsrRecords, PcvEqualityComparesTheArray)
{
    const SSRPCV stPcv = ZelSample::SsrPcv();
    SSRPCV st = stPcv;
    EXPECT_TRUE(st == stPcv);
    st.vcValues[18] = 10;
    EXPECT_FALSE(st == stPcv);
    st = stPcv;
    st.vcValues.push_back(0);
    EXPECT_FALSE(st == stPcv);
    st = stPcv;
    st.uiEndZenith = 94;
    EXPECT_FALSE(st == stPcv);
    st = stPcv;
    st.uiZenithStep = 6;
    EXPECT_FALSE(st == stPcv);
    st = stPcv;
    st.stSatSigID.stSatID.uiSatNumber = 9;
    EXPECT_FALSE(st == stPcv);
}

TEST(SsrRecords, PcvCopyAssignmentCopiesTheArray)
{
    SSRPCV st;
    {
        const SSRPCV stSource = ZelSample::SsrPcv();
        st = stSource;
    }
    ASSERT_EQ(19u, st.vcValues.size());
    EXPECT_EQ(-9, st.vcValues[0]);
    EXPECT_EQ(9, st.vcValues[18]);
    SSRPCV stOther = st;
    stOther.vcValues[0] = 55;
    EXPECT_EQ(-9, st.vcValues[0]);
}

TEST(SsrRecords, OrderComparesTheKeyAlone)
{
    SSROrbitCorr stA = ZelSample::SsrOrbitCorr(5);
    SSROrbitCorr stB = ZelSample::SsrOrbitCorr(6);
    stA.uiIODBE = 1000;
    EXPECT_TRUE(stA < stB);
    EXPECT_FALSE(stB < stA);
    stB.stSatID = stA.stSatID;
    EXPECT_FALSE(stA < stB);
    EXPECT_FALSE(stB < stA);
    // Satellites: system first, then number.
    EXPECT_TRUE(SSRURA(SZelSatID(ZELSATSYSTEM_GPS, 30), 0) < SSRURA(SZelSatID(ZELSATSYSTEM_GLONASS, 1), 0));
    EXPECT_TRUE(SSRClockCorr(SZelSatID(ZELSATSYSTEM_GPS, 2), SMjdTime(), 9, 9, 9) <
                SSRClockCorr(SZelSatID(ZELSATSYSTEM_GPS, 3), SMjdTime(), 0, 0, 0));
    EXPECT_TRUE(SSRHighRateClock(SZelSatID(ZELSATSYSTEM_GPS, 2), 9) <
                SSRHighRateClock(SZelSatID(ZELSATSYSTEM_GPS, 3), 0));
    // Signals: satellite, then group, then modes.
    const SZelSatID stSat(ZELSATSYSTEM_GPS, 5);
    EXPECT_TRUE(SSRBias(stSat, ZELFREQUENCY_GROUP_1, 8u, 9.0) <
                SSRBias(stSat, ZELFREQUENCY_GROUP_2, 1u, 0.0));
    EXPECT_TRUE(SSRBias(stSat, ZELFREQUENCY_GROUP_1, 4u, 9.0) <
                SSRBias(stSat, ZELFREQUENCY_GROUP_1, 8u, 0.0));
    EXPECT_TRUE(SSRPhaseBias(stSat, ZELFREQUENCY_GROUP_1, 4u, 9.0, 9) <
                SSRPhaseBias(stSat, ZELFREQUENCY_GROUP_1, 8u, 0.0, 0));
    SSRPCV stP1 = ZelSample::SsrPcv(5);
    SSRPCV stP2 = ZelSample::SsrPcv(5);
    stP2.stSatSigID.eFrqGrp = ZELFREQUENCY_GROUP_2;
    EXPECT_TRUE(stP1 < stP2);
    EXPECT_FALSE(stP2 < stP1);
}

// ---------------------------------------------------------------------------
// Phase-centre grid
// ---------------------------------------------------------------------------

TEST(SsrPcv, GridOfEndNinetyStepFive)
{
    const SSRPCV st = ZelSample::SsrPcv();
    EXPECT_EQ(19u, st.vcValues.size());
    EXPECT_EQ(19u, st.GetNbGridValues());
    EXPECT_EQ(43u, st.getSize());
    ZelTest::CImage stImage;
    SignalImage(stImage.At(0));
    stImage.At(16).U32(90).At(20).U32(5).At(24);
    for (int i = 0; i < 19; ++i)
    {
        stImage.I8(i - 9);
    }
    EXPECT_EQ(43u, stImage.Size());
    // A read one byte short stops after the head (see below).
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    stRules.lShortLoadCount = 24;
    stRules.bShortLoadUntouched = false;
    ZelTest::ExpectCoreImage(st, stImage, stRules);
}

TEST(SsrPcv, ReaderNeedsTheHeadThenTheWholeImage)
{
    const ZelTest::Bytes vecImage = []
    {
        ZelTest::Bytes vec(43);
        uint64_t ulOffset = 0;
        ZelSample::SsrPcv().saveData(vec.data(), vec.size(), &ulOffset);
        return vec;
    }();
    ZelTest::CRecordingHook stHook;
    SSRPCV st;
    st.uiEndZenith = 3;
    uint64_t ulOffset = 777;
    // 23 bytes cannot hold the head: nothing read, the count kept.
    EXPECT_FALSE(st.loadData(vecImage.data(), 23, &ulOffset));
    EXPECT_EQ(777u, ulOffset);
    EXPECT_EQ(3u, st.uiEndZenith);
    // 42 bytes hold the head, not the grid: the head is read.
    EXPECT_FALSE(st.loadData(vecImage.data(), 42, &ulOffset));
    EXPECT_EQ(24u, ulOffset);
    EXPECT_EQ(90u, st.uiEndZenith);
    EXPECT_EQ(5u, st.uiZenithStep);
    EXPECT_TRUE(st.vcValues.empty());
    EXPECT_EQ(ZelTest::Falses(2), stHook.Texts());
}

TEST(SsrPcv, ForgedGridIsRefusedByTheLengthTest)
{
    ZelTest::CRecordingHook stHook;
    ZelTest::Bytes vec(64, 0);
    const uint32_t aulGrid[2] = {0xFFFFFFFFu, 1};
    std::memcpy(&vec[16], aulGrid, 8);
    SSRPCV st;
    uint64_t ulOffset = 0;
    EXPECT_FALSE(st.loadData(vec.data(), vec.size(), &ulOffset));
    EXPECT_TRUE(st.vcValues.empty());
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
}

TEST(SsrPcv, EndThatIsNoMultipleOfTheStep)
{
    int8_t acValues[19];
    for (int i = 0; i < 19; ++i)
    {
        acValues[i] = static_cast<int8_t>(5 * i);
    }
    const SSRPCV st(ZelSample::SsrSignal(), acValues, 92, 5);
    EXPECT_EQ(19u, st.vcValues.size());
    EXPECT_EQ(43u, st.getSize());
    // The last point lies at 90 degrees: 91 degrees uses it alone.
    ZelTest::CRecordingHook stHook;
    const double p = 91.0 / 5.0;
    const double f = p - 18.0;
    EXPECT_EQ(-(90 * f + 90 * (1.0 - f)) / 1000.0, st.GetPCV(91.0));
    EXPECT_EQ(-90 / 1000.0, st.GetPCV(90.0));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrPcv, InterpolationOnAndBetweenGridPoints)
{
    ZelTest::CRecordingHook stHook;
    const SSRPCV st = ZelSample::SsrPcv(); // value at index i is i - 9 mm
    for (int i = 1; i < 18; ++i)
    {
        EXPECT_EQ(-static_cast<double>(i - 9) / 1000.0, st.GetPCV(5.0 * i)) << i;
    }
    // 12.5 degrees: halfway between index 2 (-7) and 3 (-6).
    {
        const double p = 12.5 / 5.0;
        const double f = p - 2.0;
        EXPECT_EQ(-(-6 * f + -7 * (1.0 - f)) / 1000.0, st.GetPCV(12.5));
    }
    // 33.3 degrees: index 6 (-3) and 7 (-2).
    {
        const double p = 33.3 / 5.0;
        const double f = p - 6.0;
        EXPECT_EQ(-(-2 * f + -3 * (1.0 - f)) / 1000.0, st.GetPCV(33.3));
    }
    // The last cell takes the last value as its upper point.
    {
        const double p = 88.0 / 5.0;
        const double f = p - 17.0;
        EXPECT_EQ(-(9 * f + 8 * (1.0 - f)) / 1000.0, st.GetPCV(88.0));
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrPcv, OutsideTheOpenRangeIsReportedAndComputed)
{
    const SSRPCV st = ZelSample::SsrPcv();
    const std::string strRange = "dZenithDistDeg > 0.0 && dZenithDistDeg < uiEndZenith";
    {
        // At the last point j stays on i.
        ZelTest::CRecordingHook stHook;
        EXPECT_EQ(-9.0 / 1000.0, st.GetPCV(90.0));
        EXPECT_EQ(std::vector<std::string>{strRange}, stHook.Texts());
    }
    {
        ZelTest::CRecordingHook stHook;
        EXPECT_EQ(9.0 / 1000.0, st.GetPCV(0.0));
        EXPECT_EQ(std::vector<std::string>{strRange}, stHook.Texts());
    }
    {
        // A negative distance goes on with its magnitude.
        ZelTest::CRecordingHook stHook;
        const double dPositive = st.GetPCV(12.5);
        EXPECT_EQ(0u, stHook.Count());
        EXPECT_EQ(dPositive, st.GetPCV(-12.5));
        EXPECT_EQ(std::vector<std::string>{strRange}, stHook.Texts());
    }
}

TEST(SsrPcv, BeyondTheGridReadsNothingAndGivesZero)
{
    const SSRPCV st = ZelSample::SsrPcv();
    const std::string strRange = "dZenithDistDeg > 0.0 && dZenithDistDeg < uiEndZenith";
    {
        // Past the end but before the next grid point: the last value alone.
        ZelTest::CRecordingHook stHook;
        const double f = 92.5 / 5.0 - 18.0;
        EXPECT_EQ(-(9 * f + 9 * (1.0 - f)) / 1000.0, st.GetPCV(92.5));
        EXPECT_EQ(std::vector<std::string>{strRange}, stHook.Texts());
    }
    for (const double dDist : {95.0, 97.5, 1e6, std::numeric_limits<double>::infinity()})
    {
        ZelTest::CRecordingHook stHook;
        EXPECT_EQ(0.0, st.GetPCV(dDist)) << dDist;
        EXPECT_EQ((std::vector<std::string>{strRange, "invalid vector subscript"}), stHook.Texts());
    }
    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(0.0, st.GetPCV(c_dNAN));
    EXPECT_EQ((std::vector<std::string>{strRange, "invalid vector subscript"}), stHook.Texts());
    // An array shorter than its grid: in range, but past the values.
    SSRPCV stShort = st;
    stShort.vcValues.resize(10);
    stHook.Clear();
    EXPECT_EQ(0.0, stShort.GetPCV(60.0));
    EXPECT_EQ(std::vector<std::string>{"invalid vector subscript"}, stHook.Texts());
    // The upper point alone missing.
    stHook.Clear();
    EXPECT_EQ(0.0, stShort.GetPCV(47.5));
    EXPECT_EQ(std::vector<std::string>{"invalid vector subscript"}, stHook.Texts());
    // On the last stored point the next one is still looked at.
    stHook.Clear();
    EXPECT_EQ(0.0, stShort.GetPCV(45.0));
    EXPECT_EQ(std::vector<std::string>{"invalid vector subscript"}, stHook.Texts());
    stHook.Clear();
    EXPECT_EQ(1.0 / 1000.0, stShort.GetPCV(40.0)); // index 8: -1 mm
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrPcv, ZeroStepNeverDivides)
{
    SSRPCV st = ZelSample::SsrPcv();
    st.uiZenithStep = 0;
    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(0.0, st.GetPCV(30.0));
    EXPECT_EQ(std::vector<std::string>{"uiZenithStep != 0"}, stHook.Texts());
    stHook.Clear();
    EXPECT_EQ(0.0, st.GetPCV(100.0));
    EXPECT_EQ((std::vector<std::string>{"dZenithDistDeg > 0.0 && dZenithDistDeg < uiEndZenith",
                                        "uiZenithStep != 0"}),
              stHook.Texts());
    stHook.Clear();
    // The image is the head alone, which no writer writes and no reader takes.
    EXPECT_EQ(0u, st.GetNbGridValues());
    EXPECT_EQ(24u, st.getSize());
    EXPECT_EQ(0u, stHook.Count());
    ZelTest::Bytes vec(64, 0xAA);
    uint64_t ulOffset = 777;
    EXPECT_FALSE(st.saveData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ(777u, ulOffset);
    EXPECT_EQ(ZelTest::Bytes(64, 0xAA), vec);
    EXPECT_EQ(std::vector<std::string>{"uiZenithStep != 0"}, stHook.Texts());
    stHook.Clear();
    // An image with a zero step: the head is read, then the load refused.
    ZelTest::CImage stImage;
    SignalImage(stImage.At(0));
    stImage.At(16).U32(90).At(20).U32(0).Zero(20);
    SSRPCV stBack = ZelSample::SsrPcv();
    EXPECT_FALSE(stBack.loadData(stImage.Get().data(), stImage.Size(), &ulOffset));
    EXPECT_EQ(24u, ulOffset);
    EXPECT_EQ(0u, stBack.uiZenithStep);
    EXPECT_EQ(19u, stBack.vcValues.size()) << "the array is not touched";
    EXPECT_EQ(std::vector<std::string>{"uiZenithStep != 0"}, stHook.Texts());
}

TEST(SsrPcv, ConstructorWithoutAGrid)
{
    const int8_t acValues[3] = {1, 2, 3};
    {
        ZelTest::CRecordingHook stHook;
        const SSRPCV st(ZelSample::SsrSignal(), acValues, 10, 0);
        EXPECT_TRUE(st.vcValues.empty());
        EXPECT_EQ(10u, st.uiEndZenith);
        EXPECT_EQ(0u, st.uiZenithStep);
        EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    }
    {
        ZelTest::CRecordingHook stHook;
        const SSRPCV st(ZelSample::SsrSignal(), nullptr, 10, 5);
        EXPECT_TRUE(st.vcValues.empty());
        EXPECT_EQ(ZelSample::SsrSignal(), st.stSatSigID);
        EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    }
    {
        ZelTest::CRecordingHook stHook;
        const SSRPCV st(ZelSample::SsrSignal(), acValues, 10, 5);
        EXPECT_EQ((std::vector<int8_t>{1, 2, 3}), st.vcValues);
        EXPECT_EQ(0u, stHook.Count());
    }
}

TEST(SsrPcv, WriterOfAShortArrayStopsWithTheOutOfRangeError)
{
    SSRPCV st = ZelSample::SsrPcv();
    st.vcValues.resize(5);
    EXPECT_EQ(43u, st.getSize());
    ZelTest::CRecordingHook stHook;
    ZelTest::Bytes vec(43, 0xAA);
    uint64_t ulOffset = 0;
    EXPECT_FALSE(st.saveData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ(std::vector<std::string>{"invalid vector subscript"}, stHook.Texts());
    // It stopped where the array ends.
    EXPECT_EQ(29u, ulOffset);
    EXPECT_EQ(static_cast<unsigned char>(-5), vec[28]);
    EXPECT_EQ(0xAA, vec[29]);
    // The text stops there too.
    stHook.Clear();
    std::ostringstream os;
    os << st;
    EXPECT_EQ("SatSigId, G05:L1:C|W, EndZenith, 90, ZenithStep, 5, -9, -8, -7, -6, -5", os.str());
    EXPECT_EQ(std::vector<std::string>{"invalid vector subscript"}, stHook.Texts());
}

TEST(SsrPcv, TextWithAZeroStep)
{
    ZelTest::CRecordingHook stHook;
    std::istringstream is("SatSigId, G05:L1:C|W, EndZenith, 90, ZenithStep, 0, 1, 2");
    SSRPCV st;
    is >> st;
    EXPECT_EQ(std::vector<std::string>{"rstData.uiZenithStep != 0"}, stHook.Texts());
    EXPECT_EQ(90u, st.uiEndZenith);
    EXPECT_TRUE(st.vcValues.empty());
    stHook.Clear();
    std::ostringstream os;
    os << st;
    EXPECT_EQ("SatSigId, G05:L1:C|W, EndZenith, 90, ZenithStep, 0", os.str());
    EXPECT_EQ(std::vector<std::string>{"rstData.uiZenithStep != 0"}, stHook.Texts());
}

TEST(SsrPcv, TextReaderAppendsAndCutsToEightBits)
{
    ZelTest::CRecordingHook stHook;
    std::istringstream is("SatSigId, G05:L1:C|W, EndZenith, 10, ZenithStep, 5, 300, -129, 7");
    SSRPCV st;
    st.vcValues = {1};
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ((std::vector<int8_t>{1, 44, 127, 7}), st.vcValues);
    EXPECT_EQ(0u, stHook.Count());
    // A cut text appends what it holds.
    std::istringstream isCut("SatSigId, G05:L1:C|W, EndZenith, 10, ZenithStep, 5, 3, 4");
    SSRPCV stCut;
    isCut >> stCut;
    EXPECT_TRUE(isCut.fail());
    EXPECT_EQ((std::vector<int8_t>{3, 4}), stCut.vcValues);
}

TEST(SsrPcv, HugeGridInTextReadsWhatTheTextHolds)
{
    std::istringstream is("SatSigId, G05:L1:C|W, EndZenith, 4294967295, ZenithStep, 1, 1, 2, 3");
    SSRPCV st;
    is >> st;
    EXPECT_EQ((std::vector<int8_t>{1, 2, 3}), st.vcValues);
}
