// SSR collection messages: constructors, images and texts of the eight
// classes, sorting after load, equality, and the merge with its cursor walk;
// streams of messages folded into current corrections.
#include "ZelSamplesSsr.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelSSRTypes.h>
#include <ZelTypes/Core/Common/ZelSSRTypesSerialization.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

// A record of test only, whose key counts its comparisons: the merge's walk
// must cost what its cursor travels.
namespace SsrMergeTest
{
inline uint64_t& Compares()
{
    static uint64_t s_ulCompares = 0;
    return s_ulCompares;
}
struct SCountedKey
{
    int iKey = 0;
    bool operator<(const SCountedKey& r) const
    {
        ++Compares();
        return iKey < r.iKey;
    }
    bool operator==(const SCountedKey& r) const
    {
        ++Compares();
        return iKey == r.iKey;
    }
};
struct STestCorr
{
    SCountedKey stKey;
    int iValue = 0;
};
inline const SCountedKey& SSRMergeKey(const STestCorr& r)
{
    return r.stKey;
}
} // namespace SsrMergeTest

namespace
{

const std::string c_strHdrText =
    "Hdr, SatSys, G, MsgNum, 1060, RefTim, 2300, 345605, UpdRate, 5, MMID, 1, RefDat, 1, "
    "SSRID, 3, ProvID, 257, SolID, 7, Res, 9, Fmt, 2, SSRUICfg, UIDef, 1, UIRefTim, 0";

ZelTest::SCoreRules KeptRules()
{
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    return stRules;
}

// ---------------------------------------------------------------- hand-built images

void Sat(ZelTest::CImage& rImage, uint32_t ulSat)
{
    rImage.I32(1).U8(ulSat).Zero(3);
}

void Signal(ZelTest::CImage& rImage, uint32_t ulSat)
{
    Sat(rImage, ulSat);
    rImage.I32(1).U32((1u << 2) | (1u << 11));
}

// The sample header (70 bytes), then the type at 70 and the count at 74.
ZelTest::CImage MsgImage(int32_t lType, uint32_t ulCount, int32_t lFormat = 2)
{
    ZelTest::CImage st;
    st.At(0).I32(1).At(4).I32(1060);
    st.At(8).Time24(44244 + 2300 * 7 + 4, 5000.0, 3);
    st.At(32).F64(5.0).At(40).U32(1).At(44).U32(1).At(48).U32(3).At(52).U32(257);
    st.At(56).I32(7).At(60).U32(9).At(64).I32(lFormat).At(68).U8(1).At(69).U8(0);
    st.At(70).I32(lType).At(74).U32(ulCount).At(78);
    return st;
}

void OrbitRecord(ZelTest::CImage& rImage, uint32_t ulSat, uint32_t ulIODBE)
{
    const size_t ulStart = rImage.Size();
    Sat(rImage, ulSat);
    rImage.At(ulStart + 8).U32(ulIODBE).U32(78).U8(1);
    rImage.At(ulStart + 17)
        .F64(0.125)
        .F64(-1.5)
        .F64(2.25)
        .F64(0.0009765625)
        .F64(-0.001953125)
        .F64(0.0029296875);
    rImage.At(ulStart + 65).Time16(44244 + 2300 * 7 + 4, 500.0, 2);
}

void ClockRecord(ZelTest::CImage& rImage, uint32_t ulSat, double dC0)
{
    const size_t ulStart = rImage.Size();
    Sat(rImage, ulSat);
    rImage.At(ulStart + 8).F64(dC0).F64(-0.25).F64(0.0078125);
    rImage.At(ulStart + 32).Time16(44244 + 2300 * 7 + 4, 0.0, 3);
}

void PcvRecord(ZelTest::CImage& rImage, uint32_t ulSat, int32_t lFirst)
{
    const size_t ulStart = rImage.Size();
    Signal(rImage, ulSat);
    rImage.At(ulStart + 16).U32(90).U32(5).At(ulStart + 24).I8(lFirst);
    for (int i = 1; i < 19; ++i)
    {
        rImage.I8(i - 9);
    }
}

// ---------------------------------------------------------------- texts

std::string OrbitText(const char* szSat, uint32_t ulIODBE)
{
    return std::string("SatId, ") + szSat + ", IODBE, " + std::to_string(ulIODBE) +
           ", IODPE, 78, Scale, 1, DRDX, 1.25000000000000000e-01, DADY, -1.50000000000000000e+00, "
           "DCDZ, 2.25000000000000000e+00, DRDXdot, 9.76562500000000000e-04, DADYdot, "
           "-1.95312500000000000e-03, "
           "DCDZdot, 2.92968750000000000e-03, RefTime, 2300, 3.45600500000000000e+05";
}

std::string PcvText(const char* szSat, int iFirst)
{
    std::string str = std::string("SatSigId, ") + szSat + ":L1:C|W, EndZenith, 90, ZenithStep, 5, " +
                      std::to_string(iFirst);
    for (int i = 1; i < 19; ++i)
    {
        str += ", " + std::to_string(i - 9);
    }
    return str;
}

// ---------------------------------------------------------------- helpers

SZelSatID Gps(int iSat)
{
    return SZelSatID(ZELSATSYSTEM_GPS, static_cast<uint8_t>(iSat));
}

SSRURA Ura(int iSat, int32_t lValue)
{
    return SSRURA(Gps(iSat), lValue);
}

// A URA message of GPS with records (satellite, value) in the given order.
SSRURAMsgT UraMsg(const std::vector<std::pair<int, int32_t>>& rvecRecords)
{
    SSRURAMsgT st;
    st.oHeader.eSatSys = ZELSATSYSTEM_GPS;
    for (const auto& r : rvecRecords)
    {
        st.vCorrs.push_back(Ura(r.first, r.second));
    }
    return st;
}

std::vector<std::pair<int, int32_t>> Contents(const SSRURAMsgT& rstMsg)
{
    std::vector<std::pair<int, int32_t>> vec;
    for (const SSRURA& r : rstMsg.vCorrs)
    {
        vec.emplace_back(r.stSatID.uiSatNumber, r.iSsrUra);
    }
    return vec;
}

// The walk of a merge, step by step on a plain array with inserts, as the
// merge rule states it: the reference of the library's cursor.
template <class T, class FLess, class FEq>
void ReferenceMerge(std::vector<T>& rvec, const std::vector<T>& rvecNew, bool bOverwrite, FLess fnLess,
                    FEq fnEq)
{
    size_t p = 0;
    for (const T& k : rvecNew)
    {
        auto fnFind = [&]() -> bool
        {
            if (p != rvec.size())
            {
                if (fnEq(rvec[p], k))
                {
                    return true;
                }
                if (fnLess(rvec[p], k))
                {
                    while (p != rvec.size() && fnLess(rvec[p], k))
                    {
                        ++p;
                    }
                    return p != rvec.size() && fnEq(rvec[p], k);
                }
            }
            else if (!rvec.empty())
            {
                --p;
            }
            while (p != 0 && !fnLess(rvec[p], k))
            {
                --p;
            }
            if (p == rvec.size())
            {
                return false;
            }
            if (fnLess(rvec[p], k))
            {
                ++p;
                return p != rvec.size() && fnEq(rvec[p], k);
            }
            return fnEq(rvec[p], k);
        };
        if (fnFind())
        {
            if (bOverwrite)
            {
                rvec[p] = k;
            }
        }
        else
        {
            rvec.insert(rvec.begin() + static_cast<std::ptrdiff_t>(p), k);
        }
    }
}

} // namespace

// ---------------------------------------------------------------------------
// Constructors, types and slots
// ---------------------------------------------------------------------------

TEST(SsrMessages, DefaultTypes)
{
    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_NULL, SSROrbitCorrMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_NULL, SSRClockCorrMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_NULL, SSRHighRateClockMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_NULL, SSRCodeBiasMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_PHASEBIAS, SSRPhaseBiasMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_URA, SSRURAMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_SATSIG, SSRSignalMsgT().eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_PCV, SSRPCVMsgT().eSSRCorrType);
    EXPECT_FALSE(SSROrbitCorrMsgT().bChangeRatVal);
    EXPECT_EQ(0, SSRHighRateClockMsgT().ucTimSinceBaseMsg);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMessages, ConstructorsAcceptTheirRows)
{
    ZelTest::CRecordingHook stHook;
    for (const auto e : {eZELSSRCORRECTIONTYPE_NULL, eZELSSRCORRECTIONTYPE_ORBIT_XYZ,
                         eZELSSRCORRECTIONTYPE_ORBIT_RAC, eZELSSRCORRECTIONTYPE_REORBIT_XYZ})
    {
        EXPECT_EQ(e, SSROrbitCorrMsgT(e).eSSRCorrType);
    }
    for (const auto e :
         {eZELSSRCORRECTIONTYPE_NULL, eZELSSRCORRECTIONTYPE_CLOCK_DELTA, eZELSSRCORRECTIONTYPE_CLOCK_MOD})
    {
        EXPECT_EQ(e, SSRClockCorrMsgT(e).eSSRCorrType);
    }
    for (const auto e :
         {eZELSSRCORRECTIONTYPE_NULL, eZELSSRCORRECTIONTYPE_HRCLOCK_DELTA, eZELSSRCORRECTIONTYPE_HRCLOCK_MOD})
    {
        EXPECT_EQ(e, SSRHighRateClockMsgT(e).eSSRCorrType);
    }
    for (const auto e : {eZELSSRCORRECTIONTYPE_NULL, eZELSSRCORRECTIONTYPE_CODEBIAS})
    {
        EXPECT_EQ(e, SSRCodeBiasMsgT(e).eSSRCorrType);
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMessages, ConstructorsReportATypeOutsideTheirRowAndKeepIt)
{
    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_CLOCK_MOD,
              SSROrbitCorrMsgT(eZELSSRCORRECTIONTYPE_CLOCK_MOD).eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_URA, SSRClockCorrMsgT(eZELSSRCORRECTIONTYPE_URA).eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_CLOCK_MOD,
              SSRHighRateClockMsgT(eZELSSRCORRECTIONTYPE_CLOCK_MOD).eSSRCorrType);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_PHASEBIAS, SSRCodeBiasMsgT(eZELSSRCORRECTIONTYPE_PHASEBIAS).eSSRCorrType);
    EXPECT_EQ((std::vector<std::string>{
                  "_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL || _eSSRCorrType == "
                  "eZELSSRCORRECTIONTYPE_ORBIT_XYZ || "
                  "_eSSRCorrType == eZELSSRCORRECTIONTYPE_ORBIT_RAC || _eSSRCorrType == "
                  "eZELSSRCORRECTIONTYPE_REORBIT_XYZ",
                  "_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL || _eSSRCorrType == "
                  "eZELSSRCORRECTIONTYPE_CLOCK_DELTA || _eSSRCorrType == eZELSSRCORRECTIONTYPE_CLOCK_MOD",
                  "_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL || _eSSRCorrType == "
                  "eZELSSRCORRECTIONTYPE_HRCLOCK_DELTA || _eSSRCorrType == eZELSSRCORRECTIONTYPE_HRCLOCK_MOD",
                  "_eSSRCorrType == eZELSSRCORRECTIONTYPE_NULL || _eSSRCorrType == "
                  "eZELSSRCORRECTIONTYPE_CODEBIAS"}),
              stHook.Texts());
}

TEST(SsrMessages, PhaseBiasConstructorSetsTheFormat)
{
    EXPECT_EQ(4, SSRPhaseBiasMsgT(true).oHeader.eSSRFormat);
    EXPECT_EQ(0, SSRPhaseBiasMsgT(false).oHeader.eSSRFormat);
    EXPECT_EQ(0, SSRPhaseBiasMsgT().oHeader.eSSRFormat);
}

TEST(SsrMessages, ReserveAndCopy)
{
    const SSRClockCorrMsgT st(eZELSSRCORRECTIONTYPE_CLOCK_MOD, 40);
    EXPECT_GE(st.vCorrs.capacity(), 40u);
    EXPECT_TRUE(st.vCorrs.empty());
    EXPECT_GE(SSRURAMsgT(30).vCorrs.capacity(), 30u);
    EXPECT_GE(SSRSignalMsgT(20).vCorrs.capacity(), 20u);
    EXPECT_GE(SSRPhaseBiasMsgT(false, 10).vCorrs.capacity(), 10u);
    const SSRPCVMsgT stPcv = ZelSample::SsrPcvMsg();
    const SSRPCVMsgT stCopy(stPcv);
    EXPECT_TRUE(stCopy == stPcv);
    EXPECT_EQ(stPcv.vCorrs[1].vcValues, stCopy.vCorrs[1].vcValues);
}

TEST(SsrMessages, GetCorrTypeReportsNull)
{
    ZelTest::CRecordingHook stHook;
    const SSRClockCorrMsgT stNull;
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_NULL, stNull.GetCorrType());
    EXPECT_EQ(std::vector<std::string>{"eSSRCorrType != eZELSSRCORRECTIONTYPE_NULL"}, stHook.Texts());
    stHook.Clear();
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_CLOCK_MOD,
              SSRClockCorrMsgT(eZELSSRCORRECTIONTYPE_CLOCK_MOD).GetCorrType());
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_URA, SSRURAMsgT().GetCorrType());
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_PCV, SSRPCVMsgT().GetCorrType());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMessages, EveryClassIsACollection)
{
    EXPECT_TRUE(SSROrbitCorrMsgT().IsCollection());
    EXPECT_TRUE(SSRClockCorrMsgT().IsCollection());
    EXPECT_TRUE(SSRHighRateClockMsgT().IsCollection());
    EXPECT_TRUE(SSRCodeBiasMsgT().IsCollection());
    EXPECT_TRUE(SSRPhaseBiasMsgT().IsCollection());
    EXPECT_TRUE(SSRURAMsgT().IsCollection());
    EXPECT_TRUE(SSRSignalMsgT().IsCollection());
    EXPECT_TRUE(SSRPCVMsgT().IsCollection());
}

TEST(SsrMessages, ClearKeepsTheTypeAndDiffersInTheExtraFields)
{
    SSROrbitCorrMsgT stOrbit = ZelSample::SsrOrbitMsg();
    SSRCorrMsgBaseT& rOrbit = stOrbit;
    rOrbit.Clear();
    EXPECT_TRUE(stOrbit.vCorrs.empty());
    EXPECT_EQ(ZELSATSYSTEM_NONE, stOrbit.oHeader.eSatSys);
    EXPECT_EQ(0u, stOrbit.oHeader.uiMMID);
    EXPECT_EQ(4, stOrbit.oHeader.stSSRUICfg.ucSsrIntervalDefinition);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_ORBIT_RAC, stOrbit.eSSRCorrType);
    EXPECT_FALSE(stOrbit.bChangeRatVal);

    SSRHighRateClockMsgT stHr = ZelSample::SsrHighRateClockMsg();
    SSRCorrMsgBaseT& rHr = stHr;
    rHr.Clear();
    EXPECT_TRUE(stHr.vCorrs.empty());
    EXPECT_EQ(0, stHr.oHeader.iMsgNum);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_HRCLOCK_MOD, stHr.eSSRCorrType);
    EXPECT_EQ(200, stHr.ucTimSinceBaseMsg);

    SSRPhaseBiasMsgT stPhase = ZelSample::SsrPhaseBiasMsg();
    stPhase.Clear();
    EXPECT_EQ(0, stPhase.oHeader.eSSRFormat); // the header defaults, the format among them
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_PHASEBIAS, stPhase.eSSRCorrType);
}

// ---------------------------------------------------------------------------
// Binary forms
// ---------------------------------------------------------------------------

TEST(SsrMessages, EmptySizes)
{
    EXPECT_EQ(79u, SSROrbitCorrMsgT().getSize());
    EXPECT_EQ(78u, SSRClockCorrMsgT().getSize());
    EXPECT_EQ(79u, SSRHighRateClockMsgT().getSize());
    EXPECT_EQ(78u, SSRCodeBiasMsgT().getSize());
    EXPECT_EQ(78u, SSRPhaseBiasMsgT().getSize());
    EXPECT_EQ(78u, SSRURAMsgT().getSize());
    EXPECT_EQ(78u, SSRSignalMsgT().getSize());
    EXPECT_EQ(78u, SSRPCVMsgT().getSize());
}

TEST(SsrMessages, OrbitImage)
{
    ZelTest::CImage st = MsgImage(2, 3);
    OrbitRecord(st.At(78), 2, 77);
    OrbitRecord(st.At(159), 5, 12);
    OrbitRecord(st.At(240), 31, 77);
    st.At(321).U8(1);
    EXPECT_EQ(322u, st.Size());
    const SSROrbitCorrMsgT stSample = ZelSample::SsrOrbitMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, ClockImage)
{
    ZelTest::CImage st = MsgImage(4, 2);
    ClockRecord(st.At(78), 1, -3.5);
    ClockRecord(st.At(126), 7, 0.5);
    EXPECT_EQ(174u, st.Size());
    const SSRClockCorrMsgT stSample = ZelSample::SsrClockMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, HighRateClockImage)
{
    ZelTest::CImage st = MsgImage(9, 2);
    Sat(st.At(78), 4);
    st.At(86).F64(-0.5);
    Sat(st.At(94), 11);
    st.At(102).F64(0.0625).At(110).U8(200);
    EXPECT_EQ(111u, st.Size());
    const SSRHighRateClockMsgT stSample = ZelSample::SsrHighRateClockMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, CodeBiasImage)
{
    ZelTest::CImage st = MsgImage(6, 2);
    Signal(st.At(78), 5);
    st.At(94).F64(-1.75);
    Signal(st.At(102), 9);
    st.At(118).F64(2.5);
    EXPECT_EQ(126u, st.Size());
    const SSRCodeBiasMsgT stSample = ZelSample::SsrCodeBiasMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, PhaseBiasImage)
{
    ZelTest::CImage st = MsgImage(5, 2, 4);
    Signal(st.At(78), 5);
    st.At(94).F64(0.375).At(102).U32(12345);
    Signal(st.At(106), 6);
    st.At(122).F64(0.375).At(130).U32(3);
    EXPECT_EQ(134u, st.Size());
    const SSRPhaseBiasMsgT stSample = ZelSample::SsrPhaseBiasMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, UraImage)
{
    ZelTest::CImage st = MsgImage(8, 2);
    Sat(st.At(78), 3);
    st.At(86).I32(42);
    Sat(st.At(90), 8);
    st.At(98).I32(-1);
    EXPECT_EQ(102u, st.Size());
    const SSRURAMsgT stSample = ZelSample::SsrUraMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, SignalImage)
{
    ZelTest::CImage st = MsgImage(17, 2);
    Signal(st.At(78), 5);
    Signal(st.At(94), 12);
    EXPECT_EQ(110u, st.Size());
    const SSRSignalMsgT stSample = ZelSample::SsrSignalMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, PcvImage)
{
    ZelTest::CImage st = MsgImage(19, 2);
    PcvRecord(st.At(78), 5, -9);
    PcvRecord(st.At(121), 8, 100);
    EXPECT_EQ(164u, st.Size());
    const SSRPCVMsgT stSample = ZelSample::SsrPcvMsg();
    ZelTest::ExpectCoreImage(stSample, st, KeptRules(), stSample);
}

TEST(SsrMessages, FreshMessageReadsTheImage)
{
    ZelTest::CImage st = MsgImage(8, 2);
    Sat(st.At(78), 3);
    st.At(86).I32(42);
    Sat(st.At(90), 8);
    st.At(98).I32(-1);
    SSRURAMsgT stBack;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stBack.loadData(st.Get().data(), st.Size(), &ulOffset));
    EXPECT_EQ(102u, ulOffset);
    EXPECT_TRUE(stBack == ZelSample::SsrUraMsg());
}

TEST(SsrMessages, LoadSortsByTheSortKeyAndKeepsDuplicates)
{
    SSRURAMsgT stSource = UraMsg({{9, 1}, {3, 2}, {9, 3}, {1, 4}});
    ZelTest::Bytes vec(static_cast<size_t>(stSource.getSize()));
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stSource.saveData(vec.data(), vec.size(), &ulOffset));
    // Written as it stands.
    EXPECT_EQ(9, vec[78 + 4]);
    EXPECT_EQ(3, vec[90 + 4]);
    SSRURAMsgT stBack;
    ASSERT_TRUE(stBack.loadData(vec.data(), vec.size(), &ulOffset));
    const auto vecBack = Contents(stBack);
    ASSERT_EQ(4u, vecBack.size());
    EXPECT_EQ(1, vecBack[0].first);
    EXPECT_EQ(3, vecBack[1].first);
    EXPECT_EQ(9, vecBack[2].first);
    EXPECT_EQ(9, vecBack[3].first);

    // Grids sort by the whole signal: satellite, group, modes.
    SSRPCVMsgT stPcv;
    stPcv.vCorrs = {ZelSample::SsrPcv(8), ZelSample::SsrPcv(5), ZelSample::SsrPcv(5)};
    stPcv.vCorrs[1].stSatSigID.eFrqGrp = ZELFREQUENCY_GROUP_2;
    ZelTest::Bytes vecPcv(static_cast<size_t>(stPcv.getSize()));
    ASSERT_TRUE(stPcv.saveData(vecPcv.data(), vecPcv.size(), &ulOffset));
    SSRPCVMsgT stPcvBack;
    ASSERT_TRUE(stPcvBack.loadData(vecPcv.data(), vecPcv.size(), &ulOffset));
    ASSERT_EQ(3u, stPcvBack.vCorrs.size());
    EXPECT_EQ(ZELFREQUENCY_GROUP_1, stPcvBack.vCorrs[0].stSatSigID.eFrqGrp);
    EXPECT_EQ(ZELFREQUENCY_GROUP_2, stPcvBack.vCorrs[1].stSatSigID.eFrqGrp);
    EXPECT_EQ(8, stPcvBack.vCorrs[2].stSatSigID.stSatID.uiSatNumber);
}

TEST(SsrMessages, LoadReplacesTheTypeWithoutAPermissionTest)
{
    ZelTest::CRecordingHook stHook;
    SSRClockCorrMsgT stSource = ZelSample::SsrClockMsg();
    stSource.eSSRCorrType = eZELSSRCORRECTIONTYPE_STROPO;
    ZelTest::Bytes vec(static_cast<size_t>(stSource.getSize()));
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stSource.saveData(vec.data(), vec.size(), &ulOffset));
    SSRClockCorrMsgT stBack(eZELSSRCORRECTIONTYPE_CLOCK_MOD);
    ASSERT_TRUE(stBack.loadData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_STROPO, stBack.eSSRCorrType);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMessages, LoadShrinksAndGrowsTheRecords)
{
    const SSRURAMsgT stSource = UraMsg({{1, 10}, {2, 20}});
    ZelTest::Bytes vec(static_cast<size_t>(stSource.getSize()) + 50, 0);
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stSource.saveData(vec.data(), vec.size(), &ulOffset));
    // A target of three records, whose own size fits the buffer.
    SSRURAMsgT stBack = UraMsg({{7, 1}, {8, 2}, {9, 3}});
    ASSERT_TRUE(stBack.loadData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ(Contents(stSource), Contents(stBack));
    EXPECT_EQ(102u, ulOffset);
}

TEST(SsrMessages, LoadFromAShortBufferFailsAtTheFirstCheckOfWhatTheMessageHolds)
{
    const SSRURAMsgT stShort = ZelSample::SsrUraMsg(); // 102 bytes
    ZelTest::Bytes vec(102);
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stShort.saveData(vec.data(), vec.size(), &ulOffset));
    // The target holds ten records (198 bytes): the valid 102-byte image is refused.
    SSRURAMsgT stMany;
    for (int i = 1; i <= 10; ++i)
    {
        stMany.vCorrs.push_back(Ura(i, i));
    }
    const SSRURAMsgT stBefore = stMany;
    ZelTest::CRecordingHook stHook;
    ulOffset = 777;
    EXPECT_FALSE(stMany.loadData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    EXPECT_EQ(777u, ulOffset);
    EXPECT_TRUE(stMany == stBefore);
}

TEST(SsrMessages, ABrokenRecordEndsTheLoad)
{
    // Three records announced, two and a half there.
    ZelTest::CImage st = MsgImage(8, 3);
    Sat(st.At(78), 3);
    st.At(86).I32(42);
    Sat(st.At(90), 8);
    st.At(98).I32(-1);
    st.At(102).I32(1).U8(4);
    ZelTest::CRecordingHook stHook;
    SSRURAMsgT stBack;
    uint64_t ulOffset = 0;
    EXPECT_FALSE(stBack.loadData(st.Get().data(), st.Size(), &ulOffset));
    EXPECT_EQ(102u, ulOffset);
    ASSERT_EQ(3u, stBack.vCorrs.size());
    EXPECT_EQ(3, stBack.vCorrs[0].stSatID.uiSatNumber);
    EXPECT_EQ(8, stBack.vCorrs[1].stSatID.uiSatNumber);
    EXPECT_TRUE(stBack.vCorrs[2] == SSRURA()) << "a default after the records read";
    // The record's own bounds test reports; the collection only returns.
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
}

TEST(SsrMessages, ForgedCountsAndNastyImagesNeverCrash)
{
    ZelTest::CRecordingHook stHook;
    ZelTest::CImage st = MsgImage(8, 0xFFFFFFFFu);
    Sat(st.At(78), 3);
    st.At(86).I32(42);
    SSRURAMsgT stBack;
    uint64_t ulOffset = 0;
    EXPECT_FALSE(stBack.loadData(st.Get().data(), st.Size(), &ulOffset));
    EXPECT_EQ(90u, ulOffset);
    EXPECT_LE(stBack.vCorrs.size(), 2u);

    std::mt19937 oRandom(5);
    for (int iRound = 0; iRound < 300; ++iRound)
    {
        ZelTest::Bytes vec(static_cast<size_t>(78 + oRandom() % 200));
        for (auto& ruc : vec)
        {
            ruc = static_cast<unsigned char>(oRandom());
        }
        // A plausible count now and then, so that records get read.
        if (iRound % 2 == 0)
        {
            const uint32_t ulCount = oRandom() % 4;
            std::memcpy(&vec[74], &ulCount, 4);
        }
        SSROrbitCorrMsgT stOrbit;
        SSRHighRateClockMsgT stHr;
        SSRPCVMsgT stPcv;
        SSRSignalMsgT stSig;
        SSRCorrMsgBaseT* apMsgs[] = {&stOrbit, &stHr, &stPcv, &stSig};
        for (SSRCorrMsgBaseT* pMsg : apMsgs)
        {
            ulOffset = 0;
            const bool bOk = loadData(*pMsg, vec.data(), vec.size(), &ulOffset);
            EXPECT_LE(ulOffset, vec.size());
            if (bOk)
            {
                EXPECT_EQ(getSize(*pMsg), ulOffset);
            }
        }
    }
}

TEST(SsrMessages, HighRateClockStopsAtAFailedCollectionLoad)
{
    // Three records announced, two there, then one byte.
    ZelTest::CImage st = MsgImage(9, 3);
    Sat(st.At(78), 4);
    st.At(86).F64(-0.5);
    Sat(st.At(94), 11);
    st.At(102).F64(0.0625).At(110).U8(200);
    ZelTest::CRecordingHook stHook;
    SSRHighRateClockMsgT stBack;
    stBack.ucTimSinceBaseMsg = 9;
    uint64_t ulOffset = 0;
    EXPECT_FALSE(stBack.loadData(st.Get().data(), st.Size(), &ulOffset));
    // The record's bounds test, then this class's own report; the byte is not read.
    EXPECT_EQ(ZelTest::Falses(2), stHook.Texts());
    EXPECT_EQ(9, stBack.ucTimSinceBaseMsg);
    EXPECT_EQ(110u, ulOffset);
}

TEST(SsrMessages, OrbitReadsItsFlagWhereAFailedCollectionLoadStopped)
{
    // Three records announced, two there, then the flag byte.
    ZelTest::CImage st = MsgImage(2, 3);
    OrbitRecord(st.At(78), 2, 77);
    OrbitRecord(st.At(159), 5, 12);
    st.At(240).U8(1);
    ZelTest::CRecordingHook stHook;
    SSROrbitCorrMsgT stBack;
    uint64_t ulOffset = 0;
    const bool bOk = stBack.loadData(st.Get().data(), st.Size(), &ulOffset);
    // The byte after the two records was read as the flag; the count stands
    // short of the size of three records, so the load fails all the same.
    EXPECT_TRUE(stBack.bChangeRatVal);
    EXPECT_EQ(241u, ulOffset);
    EXPECT_EQ(78u + 3 * 81u + 1u, stBack.getSize());
    EXPECT_FALSE(bOk);
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts()) << "the record's own report only";
}

TEST(SsrMessages, ExtraByteBeyondTheBufferIsNotRead)
{
    // The full image of the sample less its extra byte, into fresh messages:
    // the collections fit, the byte is missing.
    const SSRHighRateClockMsgT stHr = ZelSample::SsrHighRateClockMsg();
    ZelTest::Bytes vecHr(static_cast<size_t>(stHr.getSize()));
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stHr.saveData(vecHr.data(), vecHr.size(), &ulOffset));
    ZelTest::CRecordingHook stHook;
    SSRHighRateClockMsgT stHrBack;
    EXPECT_FALSE(stHrBack.loadData(vecHr.data(), vecHr.size() - 1, &ulOffset));
    EXPECT_EQ(0, stHrBack.ucTimSinceBaseMsg);
    EXPECT_EQ(vecHr.size() - 1, ulOffset);
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());

    stHook.Clear();
    const SSROrbitCorrMsgT stOrbit = ZelSample::SsrOrbitMsg();
    ZelTest::Bytes vecOrbit(static_cast<size_t>(stOrbit.getSize()));
    ASSERT_TRUE(stOrbit.saveData(vecOrbit.data(), vecOrbit.size(), &ulOffset));
    SSROrbitCorrMsgT stOrbitBack;
    EXPECT_FALSE(stOrbitBack.loadData(vecOrbit.data(), vecOrbit.size() - 1, &ulOffset));
    EXPECT_FALSE(stOrbitBack.bChangeRatVal);
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
}

TEST(SsrMessages, WriterReportsAFailedRecordAtEachLevel)
{
    SSRPCVMsgT st = ZelSample::SsrPcvMsg();
    st.vCorrs[1].vcValues.resize(3);
    ZelTest::CRecordingHook stHook;
    ZelTest::Bytes vec(static_cast<size_t>(st.getSize()));
    uint64_t ulOffset = 0;
    EXPECT_FALSE(st.saveData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ((std::vector<std::string>{"invalid vector subscript", "false"}), stHook.Texts());
    EXPECT_EQ(121u + 24u + 3u, ulOffset);
}

// ---------------------------------------------------------------------------
// Text forms
// ---------------------------------------------------------------------------

TEST(SsrMessages, Texts)
{
    ZelTest::ExpectTextExact(ZelSample::SsrUraMsg(),
                             "CorrBase, " + c_strHdrText +
                                 ", CorrTyp, 8, NumCorrs, 2, Corrs, SatId, G03, SsrUra, 42, "
                                 "SatId, G08, SsrUra, -1");
    ZelTest::ExpectTextExact(ZelSample::SsrOrbitMsg(),
                             "CorrBase, " + c_strHdrText + ", CorrTyp, 2, NumCorrs, 3, Corrs, " +
                                 OrbitText("G02", 77) + ", " + OrbitText("G05", 12) + ", " +
                                 OrbitText("G31", 77) + ", ChangeRatVal, 1");
    ZelTest::ExpectTextExact(
        ZelSample::SsrClockMsg(),
        "CorrBase, " + c_strHdrText +
            ", CorrTyp, 4, NumCorrs, 2, Corrs, SatId, G01, C0, -3.50000000000000000e+00, "
            "C1, -2.50000000000000000e-01, C2, 7.81250000000000000e-03, RefTime, 2300, "
            "3.45600000000000000e+05, SatId, G07, C0, 5.00000000000000000e-01, "
            "C1, -2.50000000000000000e-01, C2, 7.81250000000000000e-03, RefTime, 2300, "
            "3.45600000000000000e+05");
    ZelTest::ExpectTextExact(
        ZelSample::SsrHighRateClockMsg(),
        "CorrBase, " + c_strHdrText +
            ", CorrTyp, 9, NumCorrs, 2, Corrs, SatId, G04, Corr, -5.00000000000000000e-01, "
            "SatId, G11, Corr, 6.25000000000000000e-02, TimSinceBaseMsg, 200");
    ZelTest::ExpectTextExact(
        ZelSample::SsrCodeBiasMsg(),
        "CorrBase, " + c_strHdrText +
            ", CorrTyp, 6, NumCorrs, 2, Corrs, SigId, G05:L1:C|W, Bias, -1.75000000000000000e+00, "
            "SigId, G09:L1:C|W, Bias, 2.50000000000000000e+00");
    std::string strPhaseHdr = c_strHdrText;
    strPhaseHdr.replace(strPhaseHdr.find("Fmt, 2"), 6, "Fmt, 4");
    ZelTest::ExpectTextExact(
        ZelSample::SsrPhaseBiasMsg(),
        "CorrBase, " + strPhaseHdr +
            ", CorrTyp, 5, NumCorrs, 2, Corrs, SigId, G05:L1:C|W, Bias, 3.75000000000000000e-01, "
            "LckTimeCnt, 12345, SigId, G06:L1:C|W, Bias, 3.75000000000000000e-01, LckTimeCnt, 3");
    ZelTest::ExpectTextExact(ZelSample::SsrSignalMsg(), "CorrBase, " + c_strHdrText +
                                                            ", CorrTyp, 17, NumCorrs, 2, Corrs, G05:L1:C|W, "
                                                            "G12:L1:C|W");
    ZelTest::ExpectTextExact(ZelSample::SsrPcvMsg(), "CorrBase, " + c_strHdrText +
                                                         ", CorrTyp, 19, NumCorrs, 2, Corrs, " +
                                                         PcvText("G05", -9) + ", " + PcvText("G08", 100));
}

TEST(SsrMessages, EmptyTexts)
{
    SSROrbitCorrMsgT stOrbit(eZELSSRCORRECTIONTYPE_ORBIT_XYZ);
    stOrbit.oHeader = ZelSample::SsrHeader();
    ZelTest::ExpectTextExact(stOrbit, "CorrBase, " + c_strHdrText +
                                          ", CorrTyp, 1, NumCorrs, 0, Corrs, ChangeRatVal, 0");
    SSRURAMsgT stUra;
    stUra.oHeader = ZelSample::SsrHeader();
    ZelTest::ExpectTextExact(stUra, "CorrBase, " + c_strHdrText + ", CorrTyp, 8, NumCorrs, 0, Corrs");
    SSRHighRateClockMsgT stHr;
    stHr.oHeader = ZelSample::SsrHeader();
    ZelTest::ExpectTextExact(stHr, "CorrBase, " + c_strHdrText +
                                       ", CorrTyp, 0, NumCorrs, 0, Corrs, TimSinceBaseMsg, 0");
}

TEST(SsrMessages, TextReadAppendsAndDoesNotSort)
{
    SSRURAMsgT st = UraMsg({{3, 1}, {8, 2}});
    std::istringstream is("CorrBase, " + c_strHdrText +
                          ", CorrTyp, 8, NumCorrs, 2, Corrs, SatId, G09, SsrUra, 5, SatId, G01, SsrUra, 6");
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ((std::vector<std::pair<int, int32_t>>{{3, 1}, {8, 2}, {9, 5}, {1, 6}}), Contents(st));
    EXPECT_EQ(1060, st.oHeader.iMsgNum);
}

TEST(SsrMessages, TextExtraFieldsAreReadWide)
{
    SSRHighRateClockMsgT st;
    std::istringstream is("CorrBase, " + c_strHdrText +
                          ", CorrTyp, 9, NumCorrs, 0, Corrs, TimSinceBaseMsg, 300");
    is >> st;
    EXPECT_EQ(44, st.ucTimSinceBaseMsg);
    SSROrbitCorrMsgT stOrbit;
    std::istringstream isOrbit("CorrBase, " + c_strHdrText +
                               ", CorrTyp, 1, NumCorrs, 0, Corrs, ChangeRatVal, 5");
    isOrbit >> stOrbit;
    EXPECT_TRUE(stOrbit.bChangeRatVal);
    EXPECT_EQ(eZELSSRCORRECTIONTYPE_ORBIT_XYZ, stOrbit.eSSRCorrType);
}

TEST(SsrMessages, CutTextAppendsTheCompleteRecordsOnly)
{
    SSRURAMsgT st;
    std::istringstream is(
        "CorrBase, " + c_strHdrText +
        ", CorrTyp, 8, NumCorrs, 4294967295, Corrs, SatId, G09, SsrUra, 5, SatId, G01, SsrUra");
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ((std::vector<std::pair<int, int32_t>>{{9, 5}}), Contents(st));
}

TEST(SsrMessages, NastyTextsNeverCrash)
{
    std::mt19937 oRandom(3);
    const std::string strGood = []
    {
        std::ostringstream os;
        os << ZelSample::SsrPcvMsg();
        return os.str();
    }();
    ZelTest::CRecordingHook stHook;
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        std::string str = strGood.substr(0, oRandom() % (strGood.size() + 1));
        if (iRound % 3 == 0 && !str.empty())
        {
            str[oRandom() % str.size()] = static_cast<char>(oRandom());
        }
        std::istringstream is(str);
        SSRPCVMsgT st;
        is >> st;
        EXPECT_LE(st.vCorrs.size(), str.size());
        std::istringstream is2(str);
        SSROrbitCorrMsgT stOrbit;
        is2 >> stOrbit;
        EXPECT_LE(stOrbit.vCorrs.size(), str.size());
    }
}

// ---------------------------------------------------------------------------
// Equality
// ---------------------------------------------------------------------------

TEST(SsrMessages, EqualityCountRecordsTypeHeader)
{
    const SSRURAMsgT stA = ZelSample::SsrUraMsg();
    EXPECT_TRUE(stA == stA);
    EXPECT_FALSE(stA != stA);
    SSRURAMsgT stB = stA;
    stB.vCorrs.pop_back();
    EXPECT_TRUE(stA != stB);
    stB = stA;
    stB.vCorrs[1].iSsrUra = 0;
    EXPECT_TRUE(stA != stB);
    stB = stA;
    stB.eSSRCorrType = eZELSSRCORRECTIONTYPE_PCV;
    EXPECT_TRUE(stA != stB);
    stB = stA;
    stB.oHeader.uiProvID = 1;
    EXPECT_TRUE(stA != stB);
    // The header's rule: the multiple-message indicator takes no part.
    stB = stA;
    stB.oHeader.uiMMID = 0;
    EXPECT_TRUE(stA == stB);
}

TEST(SsrMessages, SameRecordsInAnotherOrderAreUnequal)
{
    const SSRURAMsgT stA = UraMsg({{3, 1}, {8, 2}});
    const SSRURAMsgT stB = UraMsg({{8, 2}, {3, 1}});
    EXPECT_FALSE(stA == stB);
}

TEST(SsrMessages, NanMakesAMessageUnequalToItself)
{
    SSRClockCorrMsgT st = ZelSample::SsrClockMsg();
    st.vCorrs[0].dC1 = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(st == st);
}

TEST(SsrMessages, ExtraFieldsCompareLast)
{
    const SSROrbitCorrMsgT stOrbit = ZelSample::SsrOrbitMsg();
    SSROrbitCorrMsgT stOrbit2 = stOrbit;
    stOrbit2.bChangeRatVal = false;
    EXPECT_FALSE(stOrbit == stOrbit2);
    EXPECT_TRUE(stOrbit != stOrbit2);
    const SSRHighRateClockMsgT stHr = ZelSample::SsrHighRateClockMsg();
    SSRHighRateClockMsgT stHr2 = stHr;
    stHr2.ucTimSinceBaseMsg = 0;
    EXPECT_FALSE(stHr == stHr2);
    stHr2 = stHr;
    EXPECT_TRUE(stHr == stHr2);
}

// ---------------------------------------------------------------------------
// Merge rules
// ---------------------------------------------------------------------------

TEST(SsrMerge, IntoItselfChangesNothing)
{
    ZelTest::CRecordingHook stHook;
    SSROrbitCorrMsgT st = ZelSample::SsrOrbitMsg();
    st.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 0; // the intervals are compared
    const SSROrbitCorrMsgT stBefore = st;
    EXPECT_TRUE(st.MergeMsg(st, true));
    EXPECT_TRUE(st == stBefore);
    EXPECT_TRUE(st.MergeMsg(st, false));
    EXPECT_TRUE(st == stBefore);
    EXPECT_EQ(0u, stHook.Count());
    // Left unsorted by a text, a message merged into itself gets what the
    // walk gives: the 3 is not found from the 9 and goes in front.
    SSRURAMsgT stUra = UraMsg({{9, 1}, {3, 2}, {5, 3}});
    auto vecRef = Contents(stUra);
    ReferenceMerge(
        vecRef, Contents(stUra), true, [](const auto& a, const auto& b) { return a.first < b.first; },
        [](const auto& a, const auto& b) { return a.first == b.first; });
    EXPECT_TRUE(stUra.MergeMsg(stUra, true));
    EXPECT_EQ(vecRef, Contents(stUra));
    EXPECT_EQ(5u, stUra.vCorrs.size());
}

TEST(SsrMerge, OverwriteFalseKeepsOldRecordsAndTheReferenceTime)
{
    SSRURAMsgT stCur = UraMsg({{2, 20}, {5, 50}, {9, 90}});
    stCur.oHeader.stRefTime = SMjdTime(2300u, 100.0);
    SSRURAMsgT stNew = UraMsg({{1, 11}, {5, 55}, {7, 77}, {9, 99}, {12, 120}});
    stNew.oHeader.stRefTime = SMjdTime(2300u, 102.0);
    stNew.oHeader.uiProvID = 44;
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(stCur.MergeMsg(stNew, false));
    EXPECT_EQ((std::vector<std::pair<int, int32_t>>{{1, 11}, {2, 20}, {5, 50}, {7, 77}, {9, 90}, {12, 120}}),
              Contents(stCur));
    EXPECT_EQ(SMjdTime(2300u, 100.0), stCur.oHeader.stRefTime);
    EXPECT_EQ(0u, stCur.oHeader.uiProvID);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMerge, OverwriteTrueReplacesRecordsAndTakesTheReferenceTimeOnly)
{
    SSROrbitCorrMsgT stCur = ZelSample::SsrOrbitMsg();
    stCur.bChangeRatVal = true;
    // The sample's grid: interval definition 1, 5-second intervals on the week grid.
    SSROrbitCorrMsgT stNew(eZELSSRCORRECTIONTYPE_ORBIT_RAC);
    stNew.oHeader = stCur.oHeader;
    stNew.oHeader.stRefTime = SMjdTime(2300u, 345607.0);
    stNew.oHeader.uiProvID = 1;
    stNew.oHeader.iMsgNum = 5;
    stNew.bChangeRatVal = false;
    stNew.vCorrs = {ZelSample::SsrOrbitCorr(5), ZelSample::SsrOrbitCorr(6)};
    stNew.vCorrs[0].uiIODBE = 99;
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(stCur.MergeMsg(stNew, true));
    ASSERT_EQ(4u, stCur.vCorrs.size());
    EXPECT_EQ(2, stCur.vCorrs[0].stSatID.uiSatNumber);
    EXPECT_EQ(5, stCur.vCorrs[1].stSatID.uiSatNumber);
    EXPECT_EQ(99u, stCur.vCorrs[1].uiIODBE);
    EXPECT_EQ(6, stCur.vCorrs[2].stSatID.uiSatNumber);
    EXPECT_EQ(31, stCur.vCorrs[3].stSatID.uiSatNumber);
    EXPECT_EQ(SMjdTime(2300u, 345607.0), stCur.oHeader.stRefTime);
    EXPECT_EQ(257u, stCur.oHeader.uiProvID);
    EXPECT_EQ(1060, stCur.oHeader.iMsgNum);
    EXPECT_TRUE(stCur.bChangeRatVal) << "the extra field is not touched";
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMerge, EmptyNewMessageOnlyTakesTheTime)
{
    SSRHighRateClockMsgT stCur = ZelSample::SsrHighRateClockMsg();
    stCur.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 4;
    SSRHighRateClockMsgT stNew(eZELSSRCORRECTIONTYPE_HRCLOCK_MOD);
    stNew.oHeader.eSatSys = ZELSATSYSTEM_GPS;
    stNew.oHeader.stRefTime = SMjdTime(2301u, 10.0);
    stNew.ucTimSinceBaseMsg = 1;
    EXPECT_TRUE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(2u, stCur.vCorrs.size());
    EXPECT_EQ(SMjdTime(2301u, 10.0), stCur.oHeader.stRefTime);
    EXPECT_EQ(200, stCur.ucTimSinceBaseMsg);
    SSRHighRateClockMsgT stCur2 = ZelSample::SsrHighRateClockMsg();
    stCur2.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 4;
    EXPECT_TRUE(stCur2.MergeMsg(stNew, false));
    EXPECT_EQ(ZelSample::SsrHeader().stRefTime, stCur2.oHeader.stRefTime);
}

TEST(SsrMerge, IntervalDefinitionsThatDifferAreReportedAndTheMergeGoesOn)
{
    SSRURAMsgT stCur = UraMsg({{1, 1}});
    SSRURAMsgT stNew = UraMsg({{2, 2}});
    stNew.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 0;
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(std::vector<std::string>{"oHeader.stSSRUICfg.GetSsrIntervalDefinition() == "
                                       "rstNewMsg.oHeader.stSSRUICfg.GetSsrIntervalDefinition()"},
              stHook.Texts());
    EXPECT_EQ(2u, stCur.vCorrs.size());
}

TEST(SsrMerge, DefinitionFourComparesNoIntervals)
{
    // Default grids (2) would report; times an hour apart would differ.
    SSRURAMsgT stCur = UraMsg({{1, 1}});
    stCur.oHeader.stRefTime = SMjdTime(2300u, 0.0);
    SSRURAMsgT stNew = UraMsg({{2, 2}});
    stNew.oHeader.stRefTime = SMjdTime(2300u, 3600.0);
    stNew.oHeader.eSSRFormat = 3;
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SsrMerge, OtherIntervalsAreRefusedUnderAnotherDefinition)
{
    SSRURAMsgT stCur = UraMsg({{1, 1}});
    stCur.oHeader.stSSRUICfg = SSRUICfg{0, 0};
    stCur.oHeader.dUpdRate = 5.0;
    stCur.oHeader.stRefTime = SMjdTime(2300u, 7.0);
    SSRURAMsgT stNew = stCur;
    stNew.vCorrs = {Ura(2, 2)};
    stNew.oHeader.stRefTime = SMjdTime(2300u, 9.5);
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(0u, stHook.Count());
    stNew.oHeader.stRefTime = SMjdTime(2300u, 10.0);
    stNew.vCorrs = {Ura(3, 3)};
    const SSRURAMsgT stBefore = stCur;
    EXPECT_FALSE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    EXPECT_TRUE(stCur == stBefore);
    EXPECT_EQ(Contents(stBefore), Contents(stCur));
}

TEST(SsrMerge, SystemOrTypeThatDifferIsRefused)
{
    SSRClockCorrMsgT stCur = ZelSample::SsrClockMsg();
    stCur.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 4;
    const SSRClockCorrMsgT stBefore = stCur;
    SSRClockCorrMsgT stNew = stCur;
    stNew.vCorrs = {ZelSample::SsrClockCorr(20)};
    stNew.oHeader.eSatSys = ZELSATSYSTEM_GALILEO;
    ZelTest::CRecordingHook stHook;
    EXPECT_FALSE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    stHook.Clear();
    stNew.oHeader.eSatSys = ZELSATSYSTEM_GPS;
    stNew.eSSRCorrType = eZELSSRCORRECTIONTYPE_CLOCK_MOD;
    EXPECT_FALSE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    EXPECT_TRUE(stCur == stBefore);
    EXPECT_EQ(2u, stCur.vCorrs.size());
}

TEST(SsrMerge, NullTypesAreReportedAndMerged)
{
    SSRClockCorrMsgT stCur;
    stCur.vCorrs = {ZelSample::SsrClockCorr(1)};
    SSRClockCorrMsgT stNew;
    stNew.vCorrs = {ZelSample::SsrClockCorr(2)};
    ZelTest::CRecordingHook stHook;
    EXPECT_TRUE(stCur.MergeMsg(stNew, true));
    EXPECT_EQ(std::vector<std::string>(2, "eSSRCorrType != eZELSSRCORRECTIONTYPE_NULL"), stHook.Texts());
    EXPECT_EQ(2u, stCur.vCorrs.size());
}

TEST(SsrMerge, AMessageOfAnotherClassIsRefusedEvenWithTheSameType)
{
    SSRClockCorrMsgT stClock;
    stClock.vCorrs = {ZelSample::SsrClockCorr(1)};
    SSROrbitCorrMsgT stOrbit;
    stOrbit.vCorrs = {ZelSample::SsrOrbitCorr(2)};
    ZelTest::CRecordingHook stHook;
    EXPECT_FALSE(stClock.MergeMsg(stOrbit, true));
    EXPECT_EQ(1u, stClock.vCorrs.size());
    EXPECT_EQ("false", stHook.Texts().back());
}

TEST(SsrMerge, PcvMergesBySatelliteAlone)
{
    SSRPCVMsgT stFirst;
    stFirst.vCorrs = {ZelSample::SsrPcv(5)};
    SSRPCVMsgT stSecond;
    stSecond.vCorrs = {ZelSample::SsrPcv(5)};
    stSecond.vCorrs[0].stSatSigID.eFrqGrp = ZELFREQUENCY_GROUP_2;
    stSecond.vCorrs[0].vcValues[0] = 33;

    SSRPCVMsgT stOverwrite = stFirst;
    EXPECT_TRUE(stOverwrite.MergeMsg(stSecond, true));
    ASSERT_EQ(1u, stOverwrite.vCorrs.size());
    EXPECT_TRUE(stOverwrite.vCorrs[0] == stSecond.vCorrs[0]);

    SSRPCVMsgT stKeep = stFirst;
    EXPECT_TRUE(stKeep.MergeMsg(stSecond, false));
    ASSERT_EQ(1u, stKeep.vCorrs.size());
    EXPECT_TRUE(stKeep.vCorrs[0] == stFirst.vCorrs[0]);

    // Code biases, keyed by the whole signal, keep both.
    SSRCodeBiasMsgT stBiasA(eZELSSRCORRECTIONTYPE_CODEBIAS);
    stBiasA.vCorrs = {ZelSample::SsrBias(5)};
    SSRCodeBiasMsgT stBiasB = stBiasA;
    stBiasB.vCorrs[0].stSigID.eFrqGrp = ZELFREQUENCY_GROUP_2;
    EXPECT_TRUE(stBiasA.MergeMsg(stBiasB, true));
    EXPECT_EQ(2u, stBiasA.vCorrs.size());
}

TEST(SsrMerge, CursorWalkCases)
{
    struct SCase
    {
        const char* szName;
        std::vector<std::pair<int, int32_t>> vecCur, vecNew, vecExpected;
    };
    const SCase astCases[] = {
        {"into an empty message", {}, {{3, 1}, {5, 2}}, {{3, 1}, {5, 2}}},
        {"before the first", {{5, 1}, {7, 2}}, {{2, 9}}, {{2, 9}, {5, 1}, {7, 2}}},
        {"after the last", {{5, 1}, {7, 2}}, {{9, 9}}, {{5, 1}, {7, 2}, {9, 9}}},
        {"in the middle", {{5, 1}, {7, 2}}, {{6, 9}}, {{5, 1}, {6, 9}, {7, 2}}},
        {"found at the cursor", {{5, 1}, {7, 2}}, {{5, 9}}, {{5, 9}, {7, 2}}},
        {"found after advancing", {{5, 1}, {7, 2}, {8, 3}}, {{8, 9}}, {{5, 1}, {7, 2}, {8, 9}}},
        {"interleaved",
         {{2, 1}, {4, 2}, {6, 3}},
         {{1, 9}, {3, 8}, {4, 7}, {7, 6}},
         {{1, 9}, {2, 1}, {3, 8}, {4, 7}, {6, 3}, {7, 6}}},
        // New records out of order: the cursor steps back.
        {"stepping back",
         {{2, 1}, {4, 2}, {6, 3}},
         {{6, 9}, {3, 8}, {1, 7}},
         {{1, 7}, {2, 1}, {3, 8}, {4, 2}, {6, 9}}},
        {"back from the end", {{2, 1}, {4, 2}}, {{9, 9}, {4, 8}}, {{2, 1}, {4, 8}, {9, 9}}},
        {"duplicates in the new message", {{4, 1}}, {{5, 2}, {5, 3}}, {{4, 1}, {5, 3}}},
    };
    for (const SCase& rCase : astCases)
    {
        SCOPED_TRACE(rCase.szName);
        SSRURAMsgT stCur = UraMsg(rCase.vecCur);
        EXPECT_TRUE(stCur.MergeMsg(UraMsg(rCase.vecNew), true));
        EXPECT_EQ(rCase.vecExpected, Contents(stCur));
    }
}

TEST(SsrMerge, WalkOnAnUnsortedArrayGivesWhatTheWalkGives)
{
    // Left unsorted by a text read: 9 stands before 3. The cursor on the
    // first record cannot step back, so the new 3 is not found and goes in
    // front; the new 5 is then found a place before the 9.
    SSRURAMsgT stCur = UraMsg({{9, 1}, {3, 2}});
    EXPECT_TRUE(stCur.MergeMsg(UraMsg({{3, 7}, {5, 8}}), true));
    EXPECT_EQ((std::vector<std::pair<int, int32_t>>{{3, 7}, {5, 8}, {9, 1}, {3, 2}}), Contents(stCur));
    std::vector<std::pair<int, int32_t>> vecRef = {{9, 1}, {3, 2}};
    ReferenceMerge(
        vecRef, std::vector<std::pair<int, int32_t>>{{3, 7}, {5, 8}}, true,
        [](const auto& a, const auto& b) { return a.first < b.first; },
        [](const auto& a, const auto& b) { return a.first == b.first; });
    EXPECT_EQ(vecRef, Contents(stCur));
}

TEST(SsrMerge, CursorMatchesTheStepwiseWalkOnRandomArrays)
{
    std::mt19937 oRandom(11);
    for (int iRound = 0; iRound < 2000; ++iRound)
    {
        const bool bSorted = iRound % 2 == 0;
        const bool bOverwrite = iRound % 3 != 0;
        auto fnMake = [&](size_t ulMax)
        {
            std::vector<std::pair<int, int32_t>> vec(oRandom() % (ulMax + 1));
            for (auto& r : vec)
            {
                r = {static_cast<int>(1 + oRandom() % 20), static_cast<int32_t>(oRandom() % 1000)};
            }
            if (bSorted)
            {
                std::stable_sort(vec.begin(), vec.end(),
                                 [](const auto& a, const auto& b) { return a.first < b.first; });
            }
            return vec;
        };
        const auto vecCur = fnMake(12);
        const auto vecNew = fnMake(12);
        SSRURAMsgT stCur = UraMsg(vecCur);
        ASSERT_TRUE(stCur.MergeMsg(UraMsg(vecNew), bOverwrite));
        auto vecRef = vecCur;
        ReferenceMerge(
            vecRef, vecNew, bOverwrite, [](const auto& a, const auto& b) { return a.first < b.first; },
            [](const auto& a, const auto& b) { return a.first == b.first; });
        ASSERT_EQ(vecRef, Contents(stCur)) << "round " << iRound;
    }
}

TEST(SsrMerge, SortedMergeIsLinearInTheTwoLengths)
{
    using SsrMergeTest::STestCorr;
    for (const int iNb : {100, 1000, 10000})
    {
        SSRCorrCollctnMsgT<STestCorr> stCur(eZELSSRCORRECTIONTYPE_URA);
        SSRCorrCollctnMsgT<STestCorr> stNew(eZELSSRCORRECTIONTYPE_URA);
        for (int i = 0; i < iNb; ++i)
        {
            stCur.vCorrs.push_back({{2 * i}, i});
            stNew.vCorrs.push_back({{2 * i + (i % 2)}, -i}); // half found, half new
        }
        SsrMergeTest::Compares() = 0;
        ASSERT_TRUE(stCur.MergeMsg(stNew, true));
        const uint64_t ulCompares = SsrMergeTest::Compares();
        EXPECT_EQ(static_cast<size_t>(iNb + iNb / 2), stCur.vCorrs.size());
        // A few comparisons per record of either message; a search per record
        // would cost a logarithm more, a scan from the start a length more.
        EXPECT_LE(ulCompares, 4u * static_cast<uint64_t>(2 * iNb)) << iNb;
        for (size_t ul = 1; ul < stCur.vCorrs.size(); ++ul)
        {
            ASSERT_LT(stCur.vCorrs[ul - 1].stKey.iKey, stCur.vCorrs[ul].stKey.iKey);
        }
    }
}

// ---------------------------------------------------------------------------
// Streams of messages
// ---------------------------------------------------------------------------

namespace
{

// A clock message of one system from a provider, at a time (seconds of GPS
// week 2300), on the week grid with a 10-second interval.
SSRClockCorrMsgT StreamMsg(EZelSatSystem eSys, uint32_t ulProvider, double dSecOfWeek,
                           const std::vector<std::pair<int, double>>& rvecSats)
{
    SSRClockCorrMsgT st(eZELSSRCORRECTIONTYPE_CLOCK_DELTA);
    st.oHeader.eSatSys = eSys;
    st.oHeader.uiProvID = ulProvider;
    st.oHeader.uiSSRID = ulProvider + 100;
    st.oHeader.uiMMID = 1;
    st.oHeader.dUpdRate = 10.0;
    st.oHeader.stSSRUICfg = SSRUICfg{0, 0};
    st.oHeader.stRefTime = SMjdTime(2300u, dSecOfWeek);
    for (const auto& r : rvecSats)
    {
        st.vCorrs.emplace_back(SZelSatID(eSys, static_cast<uint8_t>(r.first)), st.oHeader.stRefTime, r.second,
                               0.0, 0.0);
    }
    return st;
}

std::vector<SSRClockCorrMsgT> OneIntervalStream(std::mt19937& rRandom)
{
    std::vector<SSRClockCorrMsgT> vec;
    for (int iMsg = 0; iMsg < 50; ++iMsg)
    {
        const EZelSatSystem eSys = iMsg % 5 == 4 ? ZELSATSYSTEM_GLONASS : ZELSATSYSTEM_GPS;
        std::vector<std::pair<int, double>> vecSats;
        for (int iSat = 1; iSat <= 32; ++iSat)
        {
            if (rRandom() % 4 == 0)
            {
                vecSats.emplace_back(iSat, iMsg * 100.0 + iSat);
            }
        }
        // Within [345600, 345610): the interval of every message.
        vec.push_back(StreamMsg(eSys, 1 + iMsg % 3, 345600.0 + iMsg * 0.19, vecSats));
    }
    return vec;
}

} // namespace

TEST(SsrStream, FiftyMessagesOfOneIntervalFoldIntoOne)
{
    std::mt19937 oRandom(2024);
    const std::vector<SSRClockCorrMsgT> vecStream = OneIntervalStream(oRandom);
    for (const bool bOverwrite : {true, false})
    {
        SCOPED_TRACE(bOverwrite);
        ZelTest::CRecordingHook stHook;
        // One current message per system, as a consumer keeps them.
        std::map<EZelSatSystem, SSRClockCorrMsgT> mapCurrent;
        // The expectation: per system and satellite the last (or first) record.
        std::map<EZelSatSystem, std::map<int, double>> mapExpected;
        std::map<EZelSatSystem, SMjdTime> mapTime;
        std::map<EZelSatSystem, uint32_t> mapProvider;
        for (const SSRClockCorrMsgT& rMsg : vecStream)
        {
            const EZelSatSystem eSys = rMsg.oHeader.eSatSys;
            auto it = mapCurrent.find(eSys);
            if (it == mapCurrent.end())
            {
                mapCurrent.emplace(eSys, rMsg);
                mapTime[eSys] = rMsg.oHeader.stRefTime;
                mapProvider[eSys] = rMsg.oHeader.uiProvID;
            }
            else
            {
                ASSERT_EQ(SSRCorrMsgBaseT::eConstEqual, it->second.CompareUpdIntv(rMsg));
                ASSERT_TRUE(it->second.MergeMsg(rMsg, bOverwrite));
                if (bOverwrite)
                {
                    mapTime[eSys] = rMsg.oHeader.stRefTime;
                }
            }
            for (const SSRClockCorr& rCorr : rMsg.vCorrs)
            {
                auto& rmapSats = mapExpected[eSys];
                if (bOverwrite || rmapSats.count(rCorr.stSatID.uiSatNumber) == 0)
                {
                    rmapSats[rCorr.stSatID.uiSatNumber] = rCorr.dC0;
                }
            }
        }
        EXPECT_EQ(0u, stHook.Count());
        ASSERT_EQ(2u, mapCurrent.size());
        for (const auto& rEntry : mapCurrent)
        {
            const SSRClockCorrMsgT& rMsg = rEntry.second;
            const auto& rmapSats = mapExpected[rEntry.first];
            ASSERT_EQ(rmapSats.size(), rMsg.vCorrs.size());
            size_t ulIdx = 0;
            for (const auto& rSat : rmapSats)
            {
                EXPECT_EQ(rEntry.first, rMsg.vCorrs[ulIdx].stSatID.eSatSystem);
                EXPECT_EQ(rSat.first, rMsg.vCorrs[ulIdx].stSatID.uiSatNumber);
                EXPECT_EQ(rSat.second, rMsg.vCorrs[ulIdx].dC0);
                ++ulIdx;
            }
            EXPECT_EQ(mapTime[rEntry.first], rMsg.oHeader.stRefTime);
            // Every other header field stays as the first message gave it.
            EXPECT_EQ(mapProvider[rEntry.first], rMsg.oHeader.uiProvID);
            EXPECT_EQ(mapProvider[rEntry.first] + 100, rMsg.oHeader.uiSSRID);
        }
        // A message of the other system is refused and changes nothing.
        SSRClockCorrMsgT stGps = mapCurrent.at(ZELSATSYSTEM_GPS);
        const SSRClockCorrMsgT stBefore = stGps;
        EXPECT_FALSE(stGps.MergeMsg(mapCurrent.at(ZELSATSYSTEM_GLONASS), true));
        EXPECT_TRUE(stGps == stBefore);
        EXPECT_EQ(ZelTest::Falses(1), stHook.Texts());
    }
}

TEST(SsrStream, AStreamAcrossIntervalBoundaries)
{
    // Messages every 1.5 s from 345601 s on, 10-second intervals: 345600,
    // 345610 and 345620 start three of them; one late message of the first
    // interval arrives after the second has begun.
    std::vector<SSRClockCorrMsgT> vecStream;
    std::vector<double> vecTimes;
    for (int i = 0; i < 19; ++i)
    {
        vecTimes.push_back(345601.0 + 1.5 * i);
    }
    vecTimes.insert(vecTimes.begin() + 8, 345609.5); // late: after 345613
    for (size_t ul = 0; ul < vecTimes.size(); ++ul)
    {
        const int iSat = 1 + static_cast<int>(ul % 6);
        vecStream.push_back(StreamMsg(ZELSATSYSTEM_GPS, 1 + ul % 2, vecTimes[ul], {{iSat, vecTimes[ul]}}));
    }

    ZelTest::CRecordingHook stHook;
    std::vector<SSRClockCorrMsgT> vecComplete;
    std::vector<SSRCorrMsgBaseT::ECompareUpdIntv> vecRelations;
    SSRClockCorrMsgT stCurrent = vecStream[0];
    for (size_t ul = 1; ul < vecStream.size(); ++ul)
    {
        if (!stCurrent.MergeMsg(vecStream[ul], true))
        {
            const SSRCorrMsgBaseT::ECompareUpdIntv eRel = stCurrent.CompareUpdIntv(vecStream[ul]);
            vecRelations.push_back(eRel);
            if (eRel == SSRCorrMsgBaseT::eConstBefore)
            {
                // The next interval begins: the current one is complete.
                vecComplete.push_back(stCurrent);
                stCurrent = vecStream[ul];
            }
        }
    }
    vecComplete.push_back(stCurrent);
    // Two boundaries and one late message: three refusals.
    EXPECT_EQ(ZelTest::Falses(3), stHook.Texts());
    EXPECT_EQ((std::vector<SSRCorrMsgBaseT::ECompareUpdIntv>{SSRCorrMsgBaseT::eConstBefore,
                                                             SSRCorrMsgBaseT::eConstAfter,
                                                             SSRCorrMsgBaseT::eConstBefore}),
              vecRelations);
    ASSERT_EQ(3u, vecComplete.size());
    // Each set holds the last value per satellite of its own interval only.
    for (size_t ulSet = 0; ulSet < 3; ++ulSet)
    {
        const double dStart = 345600.0 + 10.0 * static_cast<double>(ulSet);
        std::map<int, double> mapExpected;
        double dLast = 0.0;
        bool bLate = false;
        for (size_t ul = 0; ul < vecTimes.size(); ++ul)
        {
            const bool bInSet = vecTimes[ul] >= dStart && vecTimes[ul] < dStart + 10.0;
            // The late message reached the current set no more.
            const bool bIsLate = vecTimes[ul] == 345609.5;
            if (bInSet && !bIsLate)
            {
                mapExpected[1 + static_cast<int>(ul % 6)] = vecTimes[ul];
                dLast = vecTimes[ul];
            }
            bLate = bLate || (bInSet && bIsLate);
        }
        const SSRClockCorrMsgT& rSet = vecComplete[ulSet];
        ASSERT_EQ(mapExpected.size(), rSet.vCorrs.size()) << ulSet;
        size_t ulIdx = 0;
        for (const auto& r : mapExpected)
        {
            EXPECT_EQ(r.first, rSet.vCorrs[ulIdx].stSatID.uiSatNumber);
            EXPECT_EQ(r.second, rSet.vCorrs[ulIdx].dC0);
            ++ulIdx;
        }
        EXPECT_EQ(SMjdTime(2300u, dLast), rSet.oHeader.stRefTime);
        EXPECT_EQ(ulSet == 0, bLate);
    }
}

TEST(SsrStream, UnderDefinitionFourTheWholeStreamMerges)
{
    ZelTest::CRecordingHook stHook;
    SSRClockCorrMsgT stCurrent = StreamMsg(ZELSATSYSTEM_GPS, 1, 345601.0, {{1, 1.0}});
    stCurrent.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 4;
    for (int i = 1; i < 10; ++i)
    {
        SSRClockCorrMsgT stMsg = StreamMsg(ZELSATSYSTEM_GPS, 1, 345601.0 + 7.0 * i, {{1 + i, 1.0 * i}});
        stMsg.oHeader.stSSRUICfg.ucSsrIntervalDefinition = 4;
        EXPECT_TRUE(stCurrent.MergeMsg(stMsg, true));
    }
    EXPECT_EQ(10u, stCurrent.vCorrs.size());
    EXPECT_EQ(0u, stHook.Count());
}
