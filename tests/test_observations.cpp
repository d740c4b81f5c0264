// Signal and satellite observation records: flags, comparison, default track
// modes with their once-only latches, signal-class marking, binary and text forms.

#include "ZelSamplesObservations.h"
#include "ZelTestKit.h"

#include <ZelTypes/Core/Common/ZelTypesObs.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelSample::FreqObs;
using ZelSample::SatObs;
using ZelTest::Bytes;
using ZelTest::CImage;

namespace
{

// ---------------------------------------------------------------------------
// The latches of GetDefaultTrackMode live for the whole process. They are
// probed once, before main and before any test can have touched them, and
// the tests below check what the probe recorded.
// ---------------------------------------------------------------------------

struct SProbeCall
{
    EZelTrackMode eResult;
    std::vector<std::string> vecReports;
};

struct SLatchProbe
{
    std::vector<SProbeCall> vecCalls;

    SLatchProbe()
    {
        ZelTest::CRecordingHook stHook;
        const auto Call = [&](int32_t lSys, int32_t lFrq, uint32_t ulFlags)
        {
            const size_t ulBefore = stHook.Count();
            SProbeCall stCall;
            stCall.eResult = SZelFreqObservation::GetDefaultTrackMode(
                static_cast<EZelSatSystem>(lSys), static_cast<EZelFrequency>(lFrq), ulFlags);
            for (size_t ulIdx = ulBefore; ulIdx < stHook.Count(); ++ulIdx)
            {
                stCall.vecReports.push_back(stHook.Reports()[ulIdx].strExpression);
            }
            vecCalls.push_back(stCall);
        };
        Call(6, 2, 0);      // 0: QZSS reaches the P row first
        Call(6, 4, 0x1000); // 1: latched
        Call(1, 4, 0);      // 2: GPS on the same row, latched
        Call(1, 0, 0);      // 3: GPS pair not in the table
        Call(6, 7, 0);      // 4: QZSS shares the GPS latch
        Call(1, 11, 0);     // 5: latched
        Call(2, 6, 0);      // 6: GLONASS
        Call(2, 10, 0);     // 7: latched
        Call(3, 1, 0);      // 8: Galileo
        Call(3, 2, 0);      // 9: latched
        Call(5, 2, 0);      // 10: BeiDou
        Call(5, 6, 0);      // 11: latched
        Call(4, 2, 0);      // 12: SBAS
        Call(4, 6, 0);      // 13: latched
        Call(7, 1, 0);      // 14: NavIC
        Call(7, 6, 0);      // 15: latched
        Call(8, 0, 0);      // 16: Locata, any frequency: no error
        Call(0, 1, 0);      // 17: no system
        Call(9, 1, 0);      // 18: latched with it
    }
};

SLatchProbe s_LatchProbe;

// ---------------------------------------------------------------------------
// Hand-made images, by the offset tables
// ---------------------------------------------------------------------------

// One signal record, 72 bytes, its reserved bytes zero.
Bytes SignalImage(const SZelFreqObservation& r)
{
    CImage stImage;
    stImage.At(0).U32(r.ulObsFlags).At(4).I32(r.eFrequency).At(8).I32(r.eTrackMode).Zero(4);
    stImage.At(16).F64(r.dPhase).At(24).F64(r.dCode).At(32).F64(r.dDopplerM).At(40).F64(r.dDopplerC);
    stImage.At(48).U16(r.unContMeasCount10Msec).At(50).U16(r.unCNo).At(52).U16(r.unPhaseRms100thMm);
    stImage.At(54).U16(r.unRangeRmsMm).At(56).I16(r.nTimeOffsetRTCM9).Zero(2);
    stImage.At(60).F32(r.fVelocity).At(64).F32(r.fAcceleration).Zero(4).At(72);
    return stImage;
}

// The 15-byte head, then the filled signal records.
Bytes SatImage(const SZelSatObservation& r)
{
    CImage stImage;
    stImage.At(0).I32(r.stSatId.eSatSystem).At(4).U8(r.stSatId.uiSatNumber).Zero(3).At(8).U32(r.ulIOD);
    stImage.At(12).U8(r.ucSatFlags).At(13).U8(r.ucChannel).At(14).U8(r.uiNumFreq).At(15);
    for (size_t ulIdx = 0; ulIdx < r.uiNumFreq; ++ulIdx)
    {
        stImage.Append(SignalImage(r.astFreqObs[ulIdx]));
    }
    return stImage;
}

Bytes Save(const SZelSatObservation& rstSat)
{
    Bytes vecOut(static_cast<size_t>(rstSat.getSize()), 0xAA);
    uint64_t ulUsed = 99;
    EXPECT_TRUE(rstSat.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    return vecOut;
}

std::string ToText(const SZelSatObservation& rstSat, int iPrecision = 17)
{
    std::ostringstream oss;
    oss << std::setprecision(iPrecision) << rstSat;
    return oss.str();
}

const char* const c_szNumFreqCheck = "self.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED";
const char* const c_szTextNumFreqCheck = "rstSatObs.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED";

} // namespace

// ---------------------------------------------------------------------------
// Default track mode: the once-only latches (recorded before main)
// ---------------------------------------------------------------------------

TEST(DefaultTrackModeLatch, QzssReachingThePRowFirstReportsOnce)
{
    const auto& vecCalls = s_LatchProbe.vecCalls;
    ASSERT_EQ(vecCalls.size(), 19u);
    EXPECT_EQ(vecCalls[0].eResult, ZELTRACKMODE_P);
    EXPECT_EQ(vecCalls[0].vecReports, std::vector<std::string>{"(eSys != ZELSATSYSTEM_QZSS)"});
    EXPECT_EQ(vecCalls[1].eResult, ZELTRACKMODE_W);
    EXPECT_TRUE(vecCalls[1].vecReports.empty());
    EXPECT_EQ(vecCalls[2].eResult, ZELTRACKMODE_P);
    EXPECT_TRUE(vecCalls[2].vecReports.empty());
}

TEST(DefaultTrackModeLatch, GpsAndQzssShareOneLatchForUnknownPairs)
{
    const auto& vecCalls = s_LatchProbe.vecCalls;
    ASSERT_EQ(vecCalls.size(), 19u);
    EXPECT_EQ(vecCalls[3].eResult, ZELTRACKMODE_UNKNOWN);
    EXPECT_EQ(vecCalls[3].vecReports, std::vector<std::string>{"(false)"});
    EXPECT_EQ(vecCalls[4].eResult, ZELTRACKMODE_UNKNOWN);
    EXPECT_TRUE(vecCalls[4].vecReports.empty());
    EXPECT_EQ(vecCalls[5].eResult, ZELTRACKMODE_UNKNOWN);
    EXPECT_TRUE(vecCalls[5].vecReports.empty());
}

TEST(DefaultTrackModeLatch, EachOtherSystemReportsOnce)
{
    const auto& vecCalls = s_LatchProbe.vecCalls;
    ASSERT_EQ(vecCalls.size(), 19u);
    // GLONASS, Galileo, BeiDou, SBAS, NavIC: first call reports, second does not.
    for (size_t ulIdx = 6; ulIdx <= 15; ulIdx += 2)
    {
        EXPECT_EQ(vecCalls[ulIdx].eResult, ZELTRACKMODE_UNKNOWN) << ulIdx;
        EXPECT_EQ(vecCalls[ulIdx].vecReports, std::vector<std::string>{"(false)"}) << ulIdx;
        EXPECT_EQ(vecCalls[ulIdx + 1].eResult, ZELTRACKMODE_UNKNOWN) << ulIdx;
        EXPECT_TRUE(vecCalls[ulIdx + 1].vecReports.empty()) << ulIdx;
    }
    EXPECT_EQ(vecCalls[16].eResult, ZELTRACKMODE_I);
    EXPECT_TRUE(vecCalls[16].vecReports.empty());
    EXPECT_EQ(vecCalls[17].eResult, ZELTRACKMODE_UNKNOWN);
    EXPECT_EQ(vecCalls[17].vecReports, std::vector<std::string>{"(false)"});
    EXPECT_EQ(vecCalls[18].eResult, ZELTRACKMODE_UNKNOWN);
    EXPECT_TRUE(vecCalls[18].vecReports.empty());
}

TEST(DefaultTrackModeLatch, LatchesStaySetForTheProcess)
{
    ZelTest::CRecordingHook stHook;
    EXPECT_EQ(SZelFreqObservation::GetDefaultTrackMode(ZELSATSYSTEM_QZSS, ZELFREQUENCY_L2P, 0),
              ZELTRACKMODE_P);
    EXPECT_EQ(SZelFreqObservation::GetDefaultTrackMode(ZELSATSYSTEM_GALILEO, ZELFREQUENCY_L1CA, 0),
              ZELTRACKMODE_UNKNOWN);
    EXPECT_EQ(SZelFreqObservation::GetDefaultTrackMode(static_cast<EZelSatSystem>(-3), ZELFREQUENCY_L1CA, 0),
              ZELTRACKMODE_UNKNOWN);
    EXPECT_EQ(stHook.Count(), 0u);
}

// ---------------------------------------------------------------------------
// Default track mode table, row by row
// ---------------------------------------------------------------------------

TEST(DefaultTrackMode, TableRowByRow)
{
    struct SRow
    {
        int32_t lSys;
        int32_t lFrq;
        uint32_t ulFlags;
        EZelTrackMode eMode;
    };
    const SRow astRows[] = {
        {1, 1, 0, ZELTRACKMODE_C}, {6, 1, 0, ZELTRACKMODE_C},      {1, 2, 0, ZELTRACKMODE_P},
        {1, 4, 0, ZELTRACKMODE_P}, {1, 2, 0x1000, ZELTRACKMODE_W}, {1, 4, 0x1000, ZELTRACKMODE_W},
        {6, 2, 0, ZELTRACKMODE_P}, {6, 4, 0x1000, ZELTRACKMODE_W}, {1, 3, 0, ZELTRACKMODE_S},
        {6, 3, 0, ZELTRACKMODE_S}, {1, 5, 0, ZELTRACKMODE_Q},      {6, 5, 0, ZELTRACKMODE_Q},
        {1, 6, 0, ZELTRACKMODE_L}, {6, 6, 0, ZELTRACKMODE_L},      {2, 1, 0, ZELTRACKMODE_C},
        {2, 3, 0, ZELTRACKMODE_C}, {2, 2, 0, ZELTRACKMODE_P},      {2, 4, 0x1000, ZELTRACKMODE_P},
        {2, 5, 0, ZELTRACKMODE_Q}, {3, 6, 0, ZELTRACKMODE_C},      {3, 10, 0, ZELTRACKMODE_C},
        {3, 7, 0, ZELTRACKMODE_Q}, {3, 8, 0, ZELTRACKMODE_Q},      {3, 9, 0, ZELTRACKMODE_Q},
        {5, 1, 0, ZELTRACKMODE_I}, {5, 4, 0, ZELTRACKMODE_I},      {5, 5, 0, ZELTRACKMODE_I},
        {5, 3, 0, ZELTRACKMODE_D}, {5, 8, 0, ZELTRACKMODE_P},      {5, 9, 0, ZELTRACKMODE_P},
        {4, 1, 0, ZELTRACKMODE_C}, {4, 5, 0, ZELTRACKMODE_I},      {7, 5, 0, ZELTRACKMODE_A},
        {8, 0, 0, ZELTRACKMODE_I}, {8, 10, 0, ZELTRACKMODE_I},     {8, 123, 0, ZELTRACKMODE_I},
    };
    ZelTest::CRecordingHook stHook;
    for (const SRow& rRow : astRows)
    {
        EXPECT_EQ(SZelFreqObservation::GetDefaultTrackMode(static_cast<EZelSatSystem>(rRow.lSys),
                                                           static_cast<EZelFrequency>(rRow.lFrq),
                                                           rRow.ulFlags),
                  rRow.eMode)
            << "system " << rRow.lSys << " frequency " << rRow.lFrq;
    }
    EXPECT_EQ(stHook.Count(), 0u);
    // The letter values the table relies on.
    EXPECT_EQ(ZELTRACKMODE_A, 1);
    EXPECT_EQ(ZELTRACKMODE_C, 3);
    EXPECT_EQ(ZELTRACKMODE_D, 4);
    EXPECT_EQ(ZELTRACKMODE_I, 5);
    EXPECT_EQ(ZELTRACKMODE_L, 6);
    EXPECT_EQ(ZELTRACKMODE_P, 9);
    EXPECT_EQ(ZELTRACKMODE_Q, 10);
    EXPECT_EQ(ZELTRACKMODE_S, 11);
    EXPECT_EQ(ZELTRACKMODE_W, 12);
}

TEST(DefaultTrackMode, PairsOutsideTheTableGiveUnknown)
{
    struct SPair
    {
        int32_t lSys;
        int32_t lFrq;
    };
    // Latched already: no report, result 0.
    const SPair astPairs[] = {{1, 7}, {1, 10}, {6, 0}, {2, 6}, {2, 7}, {3, 1}, {3, 5}, {5, 6},
                              {5, 7}, {5, 10}, {4, 2}, {4, 6}, {7, 1}, {7, 6}, {0, 1}, {9, 5}};
    ZelTest::CRecordingHook stHook;
    for (const SPair& rPair : astPairs)
    {
        EXPECT_EQ(SZelFreqObservation::GetDefaultTrackMode(static_cast<EZelSatSystem>(rPair.lSys),
                                                           static_cast<EZelFrequency>(rPair.lFrq), 0),
                  ZELTRACKMODE_UNKNOWN)
            << "system " << rPair.lSys << " frequency " << rPair.lFrq;
    }
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(DefaultTrackMode, GetTrackModeDefaultsOnlyForModeZero)
{
    SZelFreqObservation stObs;
    stObs.eFrequency = ZELFREQUENCY_L2P;
    bool bDefaulted = false;
    EXPECT_EQ(stObs.GetTrackMode(ZELSATSYSTEM_GPS, &bDefaulted), ZELTRACKMODE_P);
    EXPECT_TRUE(bDefaulted);
    stObs.SetTrackModeW(true);
    bDefaulted = false;
    EXPECT_EQ(stObs.GetTrackMode(ZELSATSYSTEM_GPS, &bDefaulted), ZELTRACKMODE_W);
    EXPECT_TRUE(bDefaulted);
    EXPECT_EQ(stObs.GetTrackMode(ZELSATSYSTEM_GPS), ZELTRACKMODE_W);

    stObs.eTrackMode = ZELTRACKMODE_X;
    bDefaulted = true;
    EXPECT_EQ(stObs.GetTrackMode(ZELSATSYSTEM_GPS, &bDefaulted), ZELTRACKMODE_X);
    EXPECT_FALSE(bDefaulted);
    // A stored mode is returned whatever the system.
    EXPECT_EQ(stObs.GetTrackMode(static_cast<EZelSatSystem>(42), &bDefaulted), ZELTRACKMODE_X);
}

// ---------------------------------------------------------------------------
// Construction, constants and flags
// ---------------------------------------------------------------------------

TEST(FreqObservation, DefaultsAndReset)
{
    SZelFreqObservation stObs = FreqObs(0xFFFFFFFFu, 5, 9, 1.0);
    stObs.Reset();
    EXPECT_EQ(stObs.ulObsFlags, 0u);
    EXPECT_EQ(stObs.eFrequency, 0);
    EXPECT_EQ(stObs.eTrackMode, 0);
    EXPECT_EQ(stObs.dPhase, 0.0);
    EXPECT_EQ(stObs.dCode, 0.0);
    EXPECT_EQ(stObs.dDopplerM, 0.0);
    EXPECT_EQ(stObs.dDopplerC, 0.0);
    EXPECT_EQ(stObs.unContMeasCount10Msec, 0);
    EXPECT_EQ(stObs.unCNo, 0);
    EXPECT_EQ(stObs.unPhaseRms100thMm, 0);
    EXPECT_EQ(stObs.unRangeRmsMm, 0);
    EXPECT_EQ(stObs.nTimeOffsetRTCM9, 0);
    EXPECT_EQ(stObs.fVelocity, 0.0f);
    EXPECT_EQ(stObs.fAcceleration, 0.0f);
    const SZelFreqObservation stFresh;
    EXPECT_EQ(std::memcmp(&stFresh.dPhase, &stObs.dPhase, sizeof(double)), 0);
}

TEST(SatObservation, DefaultsResetAndConstants)
{
    EXPECT_EQ(SZelSatObservation::MAX_FREQUENCIESOBSERVED, 6u);
    EXPECT_EQ(c_ulFREQOBS_SIZE, 72u);
    EXPECT_EQ(c_ulSATOBS_HEAD_SIZE, 15u);
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GALILEO, 11, 6);
    stSat.Reset();
    EXPECT_EQ(stSat.stSatId.eSatSystem, ZELSATSYSTEM_NONE);
    EXPECT_EQ(stSat.stSatId.uiSatNumber, 0);
    EXPECT_EQ(stSat.ulIOD, 0xFFFFFFFFu);
    EXPECT_EQ(stSat.ucSatFlags, 0);
    EXPECT_EQ(stSat.ucChannel, 0);
    EXPECT_EQ(stSat.uiNumFreq, 0);
    for (const SZelFreqObservation& rstObs : stSat.astFreqObs)
    {
        EXPECT_EQ(rstObs.ulObsFlags, 0u);
        EXPECT_EQ(rstObs.eFrequency, 0);
        EXPECT_EQ(rstObs.dPhase, 0.0);
        EXPECT_EQ(rstObs.fAcceleration, 0.0f);
    }
    EXPECT_EQ(SZelSatObservation().getSize(), 15u);
}

TEST(SatObservation, TriviallyCopyableBlockCopy)
{
    EXPECT_TRUE(std::is_trivially_copyable<SZelFreqObservation>::value);
    EXPECT_TRUE(std::is_trivially_copyable<SZelSatObservation>::value);
    EXPECT_FALSE(std::is_polymorphic<SZelSatObservation>::value);
    const SZelSatObservation stSource = SatObs(ZELSATSYSTEM_BEIDOU, 33, 4);
    SZelSatObservation stCopy;
    std::memcpy(static_cast<void*>(&stCopy), &stSource, sizeof(stCopy));
    EXPECT_TRUE(stCopy == stSource);
}

TEST(FreqObservation, EachSetterChangesOnlyItsBit)
{
    struct SSetter
    {
        void (SZelFreqObservation::*pfnSet)(bool);
        bool (SZelFreqObservation::*pfnHas)() const;
        uint32_t ulMask;
    };
    const SSetter astSetters[] = {
        {&SZelFreqObservation::SetPhase, &SZelFreqObservation::HasPhase, 0x1},
        {&SZelFreqObservation::SetCode, &SZelFreqObservation::HasCode, 0x2},
        {&SZelFreqObservation::SetDopplerM, &SZelFreqObservation::HasDopplerM, 0x4},
        {&SZelFreqObservation::SetState4, &SZelFreqObservation::HasState4, 0x10},
        {&SZelFreqObservation::SetVelocity, &SZelFreqObservation::HasVelocity, 0x80},
        {&SZelFreqObservation::SetAcceleration, &SZelFreqObservation::HasAcceleration, 0x100},
        {&SZelFreqObservation::SetState9, &SZelFreqObservation::HasState9, 0x200},
        {&SZelFreqObservation::SetTrackModeW, &SZelFreqObservation::HasTrackModeW, 0x1000},
    };
    for (const SSetter& rSetter : astSetters)
    {
        SZelFreqObservation stObs;
        (stObs.*rSetter.pfnSet)(true);
        EXPECT_EQ(stObs.ulObsFlags, rSetter.ulMask);
        EXPECT_TRUE((stObs.*rSetter.pfnHas)());
        stObs.ulObsFlags = 0xFFFFFFFFu;
        (stObs.*rSetter.pfnSet)(false);
        EXPECT_EQ(stObs.ulObsFlags, ~rSetter.ulMask);
        EXPECT_FALSE((stObs.*rSetter.pfnHas)());
    }
}

TEST(FreqObservation, CNoSetterTakesBitThreeAndBitThirteen)
{
    SZelFreqObservation stObs;
    stObs.SetCNo(true, false);
    EXPECT_EQ(stObs.ulObsFlags, 0x8u);
    stObs.SetCNo(true, true);
    EXPECT_EQ(stObs.ulObsFlags, 0x2008u);
    EXPECT_TRUE(stObs.HasCNo());
    EXPECT_TRUE(stObs.HasState13());
    stObs.SetCNo(false, true);
    EXPECT_EQ(stObs.ulObsFlags, 0x2000u);
    stObs.ulObsFlags = 0xFFFFFFFFu;
    stObs.SetCNo(false, false);
    EXPECT_EQ(stObs.ulObsFlags, ~0x2008u);
}

TEST(FreqObservation, TestOnlyBits)
{
    struct STest
    {
        bool (SZelFreqObservation::*pfnHas)() const;
        uint32_t ulMask;
    };
    const STest astTests[] = {
        {&SZelFreqObservation::HasDopplerC, 0x20},
        {&SZelFreqObservation::HasState6, 0x40},
        {&SZelFreqObservation::HasState13, 0x2000},
        {&SZelFreqObservation::HasState14, 0x4000},
        {&SZelFreqObservation::HasSignalClassMark, 0x20000},
        {&SZelFreqObservation::IsSbasSignal, 0x40000},
        {&SZelFreqObservation::HasCNo, 0x8},
    };
    for (const STest& rTest : astTests)
    {
        SZelFreqObservation stObs;
        EXPECT_FALSE((stObs.*rTest.pfnHas)());
        stObs.ulObsFlags = rTest.ulMask;
        EXPECT_TRUE((stObs.*rTest.pfnHas)()) << std::hex << rTest.ulMask;
        stObs.ulObsFlags = ~rTest.ulMask;
        EXPECT_FALSE((stObs.*rTest.pfnHas)()) << std::hex << rTest.ulMask;
    }
}

TEST(FreqObservation, CombinedTests)
{
    SZelFreqObservation stObs;
    const auto With = [&](uint32_t ulFlags) -> SZelFreqObservation&
    {
        stObs.ulObsFlags = ulFlags;
        return stObs;
    };
    EXPECT_FALSE(With(0).HasAnyObservable());
    EXPECT_TRUE(With(0x1).HasAnyObservable());
    EXPECT_TRUE(With(0x2).HasAnyObservable());
    EXPECT_TRUE(With(0x20).HasAnyObservable());
    EXPECT_FALSE(With(0x4).HasAnyObservable());
    EXPECT_FALSE(With(0xFFFFFFDCu).HasAnyObservable());

    EXPECT_TRUE(With(0x11).HasPhaseAndState4());
    EXPECT_FALSE(With(0x1).HasPhaseAndState4());
    EXPECT_FALSE(With(0x10).HasPhaseAndState4());
    EXPECT_TRUE(With(0xFF).HasPhaseAndState4());

    EXPECT_TRUE(With(0x11).HasPhaseAndState4Or8());
    EXPECT_TRUE(With(0x101).HasPhaseAndState4Or8());
    EXPECT_FALSE(With(0x1).HasPhaseAndState4Or8());
    EXPECT_FALSE(With(0x110).HasPhaseAndState4Or8());
    EXPECT_FALSE(With(0x81).HasPhaseAndState4Or8());

    EXPECT_TRUE(With(0x11).HasPhaseAndState4Or7());
    EXPECT_TRUE(With(0x81).HasPhaseAndState4Or7());
    EXPECT_FALSE(With(0x101).HasPhaseAndState4Or7());
    EXPECT_FALSE(With(0x90).HasPhaseAndState4Or7());

    EXPECT_TRUE(With(0x40).HasState6());
    EXPECT_FALSE(With(0xFFFFFFBFu).HasState6());
    // Bits above the low 16 take no part in these tests.
    EXPECT_FALSE(With(0x10000 | 0x100000).HasPhaseAndState4Or8());
}

TEST(FreqObservation, IsFourAndContMeasCount)
{
    EXPECT_TRUE(SZelFreqObservation::IsFour(4));
    EXPECT_TRUE(SZelFreqObservation::IsFour(ZELFREQUENCY_L2P));
    EXPECT_FALSE(SZelFreqObservation::IsFour(3));
    EXPECT_FALSE(SZelFreqObservation::IsFour(5));
    EXPECT_FALSE(SZelFreqObservation::IsFour(0));
    SZelFreqObservation stObs;
    stObs.unContMeasCount10Msec = 65535;
    EXPECT_EQ(stObs.GetContMeasCount10Msec(), 65535);
}

// ---------------------------------------------------------------------------
// Comparison
// ---------------------------------------------------------------------------

TEST(FreqObservationCompare, EqualRecordsAreSilent)
{
    ZelTest::CRecordingHook stHook;
    const SZelFreqObservation stA = FreqObs(0x1FF, 4, 12, 2.2e7);
    const SZelFreqObservation stB = stA;
    EXPECT_TRUE(stA == stB);
    EXPECT_FALSE(stA != stB);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(FreqObservationCompare, PhaseIgnoredWhenBitZeroClear)
{
    ZelTest::CRecordingHook stHook;
    SZelFreqObservation stA = FreqObs(0x0, 1, 3, 1.0);
    SZelFreqObservation stB = stA;
    stB.dPhase += 1.0;
    EXPECT_TRUE(stA == stB);
    stA.SetPhase(true);
    stB.SetPhase(true);
    EXPECT_FALSE(stA == stB);
    EXPECT_TRUE(stA != stB);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(FreqObservationCompare, EachGatedFieldFollowsItsBit)
{
    struct SGate
    {
        uint32_t ulMask;
        void (*pfnChange)(SZelFreqObservation&);
    };
    const SGate astGates[] = {
        {0x1, [](SZelFreqObservation& r) { r.dPhase += 0.5; }},
        {0x2, [](SZelFreqObservation& r) { r.dCode += 0.5; }},
        {0x4, [](SZelFreqObservation& r) { r.dDopplerM += 0.5; }},
        {0x20, [](SZelFreqObservation& r) { r.dDopplerC += 0.5; }},
        {0x8, [](SZelFreqObservation& r) { r.unCNo = static_cast<uint16_t>(r.unCNo + 1); }},
        {0x80, [](SZelFreqObservation& r) { r.fVelocity += 0.5f; }},
        {0x100, [](SZelFreqObservation& r) { r.fAcceleration += 0.5f; }},
    };
    ZelTest::CRecordingHook stHook;
    for (const SGate& rGate : astGates)
    {
        SZelFreqObservation stA = FreqObs(0x1FFu & ~rGate.ulMask, 1, 3, 1.0);
        SZelFreqObservation stB = stA;
        rGate.pfnChange(stB);
        EXPECT_TRUE(stA == stB) << std::hex << rGate.ulMask;
        stA.ulObsFlags = rGate.ulMask;
        stB.ulObsFlags = rGate.ulMask;
        EXPECT_FALSE(stA == stB) << std::hex << rGate.ulMask;
    }
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(FreqObservationCompare, NaNPhaseWithBitZeroIsUnequalToItself)
{
    SZelFreqObservation stObs = FreqObs(0x1, 1, 3, 1.0);
    stObs.dPhase = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(stObs == stObs);
    EXPECT_TRUE(stObs != stObs);
    stObs.SetPhase(false);
    EXPECT_TRUE(stObs == stObs);
}

TEST(FreqObservationCompare, IdentityFieldsMustMatch)
{
    const SZelFreqObservation stA = FreqObs(0x3, 1, 3, 1.0);
    SZelFreqObservation stB = stA;
    stB.eFrequency = ZELFREQUENCY_L2P;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.eTrackMode = ZELTRACKMODE_P;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulObsFlags |= 0x4000;
    EXPECT_FALSE(stA == stB);
}

TEST(FreqObservationCompare, SecondaryValuesReportAndStayEqual)
{
    struct SSecondary
    {
        void (*pfnChange)(SZelFreqObservation&);
        const char* szText;
    };
    const SSecondary astSecondary[] = {
        {[](SZelFreqObservation& r) { r.unContMeasCount10Msec = 7; },
         "unContMeasCount10Msec == rhs.unContMeasCount10Msec"},
        {[](SZelFreqObservation& r) { r.unPhaseRms100thMm = 7; },
         "unPhaseRms100thMm == rhs.unPhaseRms100thMm"},
        {[](SZelFreqObservation& r) { r.unRangeRmsMm = 7; }, "unRangeRmsMm == rhs.unRangeRmsMm"},
        {[](SZelFreqObservation& r) { r.nTimeOffsetRTCM9 = 7; }, "nTimeOffsetRTCM9 == rhs.nTimeOffsetRTCM9"},
    };
    for (const SSecondary& rSecondary : astSecondary)
    {
        ZelTest::CRecordingHook stHook;
        // Compared whatever the flags say.
        const SZelFreqObservation stA = FreqObs(0x0, 1, 3, 1.0);
        SZelFreqObservation stB = stA;
        rSecondary.pfnChange(stB);
        EXPECT_TRUE(stA == stB);
        EXPECT_EQ(stHook.Texts(), std::vector<std::string>{rSecondary.szText});
    }
    ZelTest::CRecordingHook stHook;
    const SZelFreqObservation stA = FreqObs(0x1FF, 1, 3, 1.0);
    SZelFreqObservation stB = stA;
    for (const SSecondary& rSecondary : astSecondary)
    {
        rSecondary.pfnChange(stB);
    }
    EXPECT_FALSE(stA != stB);
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{astSecondary[0].szText, astSecondary[1].szText,
                                                        astSecondary[2].szText, astSecondary[3].szText}));
}

TEST(FreqObservationCompare, AFirstDifferenceEndsBeforeTheSecondaryValues)
{
    ZelTest::CRecordingHook stHook;
    const SZelFreqObservation stA = FreqObs(0x1, 1, 3, 1.0);
    SZelFreqObservation stB = stA;
    stB.dPhase = 5.0;
    stB.unPhaseRms100thMm = 99;
    EXPECT_FALSE(stA == stB);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(SatObservationCompare, IodOnlyReported)
{
    ZelTest::CRecordingHook stHook;
    const SZelSatObservation stA = SatObs(ZELSATSYSTEM_GPS, 5, 3);
    SZelSatObservation stB = stA;
    EXPECT_TRUE(stA == stB);
    EXPECT_EQ(stHook.Count(), 0u);
    stB.ulIOD = 12;
    EXPECT_TRUE(stA == stB);
    EXPECT_FALSE(stA != stB);
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{"ulIOD == rhs.ulIOD", "ulIOD == rhs.ulIOD"}));
}

TEST(SatObservationCompare, HeadAndFilledSignalsDecide)
{
    const SZelSatObservation stA = SatObs(ZELSATSYSTEM_GPS, 5, 3);
    SZelSatObservation stB = stA;
    stB.stSatId.uiSatNumber = 6;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stSatId.eSatSystem = ZELSATSYSTEM_QZSS;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucSatFlags = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucChannel = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.uiNumFreq = 2;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.astFreqObs[2].dPhase += 1.0;
    EXPECT_FALSE(stA == stB);
    // Records beyond uiNumFreq take no part.
    stB = stA;
    stB.astFreqObs[3].dPhase += 1.0;
    stB.astFreqObs[5].eFrequency = ZELFREQUENCY_E6;
    EXPECT_TRUE(stA == stB);
}

TEST(SatObservationCompare, CountAboveTheArrayComparesSixRecords)
{
    SZelSatObservation stA = SatObs(ZELSATSYSTEM_GPS, 5, 6);
    stA.uiNumFreq = 200;
    SZelSatObservation stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.astFreqObs[5].dCode += 1.0;
    EXPECT_FALSE(stA == stB);
}

// ---------------------------------------------------------------------------
// Satellite operations
// ---------------------------------------------------------------------------

TEST(SatObservation, GetIodSentinelsAndLowBits)
{
    SZelSatObservation stSat;
    uint16_t unIod = 4711;
    EXPECT_FALSE(stSat.GetIOD(unIod));
    EXPECT_EQ(unIod, 4711);
    stSat.ulIOD = 0xFFFFFFFEu;
    EXPECT_FALSE(stSat.GetIOD(unIod));
    EXPECT_EQ(unIod, 4711);
    stSat.ulIOD = 74565;
    EXPECT_TRUE(stSat.GetIOD(unIod));
    EXPECT_EQ(unIod, 9029);
    stSat.ulIOD = 0xFFFFFFFDu;
    EXPECT_TRUE(stSat.GetIOD(unIod));
    EXPECT_EQ(unIod, 0xFFFD);
    stSat.ulIOD = 0;
    EXPECT_TRUE(stSat.GetIOD(unIod));
    EXPECT_EQ(unIod, 0);
}

TEST(SatObservation, StateFourOverFilledSignals)
{
    SZelSatObservation stSat;
    EXPECT_FALSE(stSat.HasState4());
    stSat.astFreqObs[0].SetState4(true);
    EXPECT_FALSE(stSat.HasState4()); // empty record
    stSat = SatObs(ZELSATSYSTEM_GPS, 1, 2);
    EXPECT_FALSE(stSat.HasState4());
    stSat.astFreqObs[1].SetState4(true);
    EXPECT_TRUE(stSat.HasState4());
    stSat.SetState4ForAllFreqs(true);
    EXPECT_TRUE(stSat.astFreqObs[0].HasState4());
    EXPECT_TRUE(stSat.astFreqObs[1].HasState4());
    EXPECT_FALSE(stSat.astFreqObs[2].HasState4());
    stSat.astFreqObs[2].SetState4(true);
    stSat.SetState4ForAllFreqs(false);
    EXPECT_FALSE(stSat.HasState4());
    EXPECT_TRUE(stSat.astFreqObs[2].HasState4());
    EXPECT_EQ(stSat.astFreqObs[0].ulObsFlags, 0x2Fu);
}

TEST(SatObservation, MarkSignalClassesTableRowByRow)
{
    // For each system, the frequencies 1 to 10 that get bit 17, and bit 18.
    struct SRow
    {
        int32_t lSys;
        uint32_t ulClassFrqs; // bit f for frequency f
        bool bSbas;
    };
    const SRow astRows[] = {
        {1, 1u << 6, false}, {2, 1u << 5, false}, {3, 1u << 10, false}, {5, (1u << 3) | (1u << 8), false},
        {6, 1u << 6, false}, {7, 0x7FEu, false},  {4, 0x7FEu, true},    {0, 0u, false},
        {8, 0u, false},      {9, 0u, false},
    };
    for (const SRow& rRow : astRows)
    {
        for (int32_t lFrq = 1; lFrq <= 10; ++lFrq)
        {
            SZelSatObservation stSat;
            stSat.stSatId = SZelSatID(static_cast<EZelSatSystem>(rRow.lSys), 1);
            stSat.uiNumFreq = 1;
            stSat.astFreqObs[0].eFrequency = static_cast<EZelFrequency>(lFrq);
            stSat.astFreqObs[0].ulObsFlags = 0x3;
            stSat.MarkSignalClasses();
            const bool bClass = (rRow.ulClassFrqs & (1u << lFrq)) != 0;
            uint32_t ulExpected = 0x3u;
            if (bClass)
            {
                ulExpected |= 0x20000u;
            }
            if (bClass && rRow.bSbas)
            {
                ulExpected |= 0x40000u;
            }
            EXPECT_EQ(stSat.astFreqObs[0].ulObsFlags, ulExpected)
                << "system " << rRow.lSys << " frequency " << lFrq;
        }
    }
}

TEST(SatObservation, MarkSignalClassesNeverClearsAndStopsAtTheCount)
{
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GALILEO, 3, 2);
    stSat.astFreqObs[0].eFrequency = ZELFREQUENCY_E5A;
    stSat.astFreqObs[0].ulObsFlags = 0x60000u;
    stSat.astFreqObs[1].eFrequency = ZELFREQUENCY_E6;
    stSat.astFreqObs[1].ulObsFlags = 0;
    stSat.astFreqObs[2].eFrequency = ZELFREQUENCY_E6;
    stSat.astFreqObs[2].ulObsFlags = 0;
    stSat.MarkSignalClasses();
    EXPECT_EQ(stSat.astFreqObs[0].ulObsFlags, 0x60000u);
    EXPECT_EQ(stSat.astFreqObs[1].ulObsFlags, 0x20000u);
    EXPECT_EQ(stSat.astFreqObs[2].ulObsFlags, 0u);
}

// ---------------------------------------------------------------------------
// Binary form
// ---------------------------------------------------------------------------

TEST(SatObservationBinary, GoldenImageTwoSignals)
{
    SZelSatObservation stSat;
    stSat.stSatId = SZelSatID(ZELSATSYSTEM_GPS, 5);
    stSat.ulIOD = 74565;
    stSat.ucSatFlags = 0x1f;
    stSat.ucChannel = 7;
    stSat.uiNumFreq = 2;
    stSat.astFreqObs[0] = FreqObs(0x2F, 1, 3, 123456789.0);
    stSat.astFreqObs[1] = FreqObs(0x1003, 4, 12, 98765432.0);
    stSat.astFreqObs[2] = FreqObs(0x1, 5, 10, 1.0); // beyond the count: not written

    CImage stExpected;
    stExpected.At(0).I32(1).U8(5).Zero(3).At(8).U32(74565).At(12).U8(0x1f).U8(7).U8(2);
    stExpected.At(15 + 0).U32(0x2F).I32(1).I32(3).Zero(4);
    stExpected.At(15 + 16).F64(123456789.125).F64(123456789.0 / 7.0).F64(-1234.5 - 123456789.0 / 1e6);
    stExpected.At(15 + 40).F64(17.25).U16(1000).U16(451).U16(12).U16(300).I16(-5).Zero(2);
    stExpected.At(15 + 60).F32(1.5f).F32(-0.25f).Zero(4);
    stExpected.At(87 + 0).U32(0x1003).I32(4).I32(12).Zero(4);
    stExpected.At(87 + 16).F64(98765432.125).F64(98765432.0 / 7.0).F64(-1234.5 - 98765432.0 / 1e6);
    stExpected.At(87 + 40).F64(17.25).U16(1000).U16(451).U16(12).U16(300).I16(-5).Zero(2);
    stExpected.At(87 + 60).F32(1.5f).F32(-0.25f).Zero(4).At(159);
    const Bytes& vecExpected = stExpected;
    // A target holding as many signals: one byte short fails the first test.
    ZelTest::ExpectCoreImage(stSat, vecExpected, ZelTest::SCoreRules(), SatObs(ZELSATSYSTEM_QZSS, 2, 2));

    // Records beyond the count are not read either.
    SZelSatObservation stBack;
    uint64_t ulUsed = 0;
    ASSERT_TRUE(stBack.loadData(vecExpected.data(), vecExpected.size(), &ulUsed));
    EXPECT_EQ(stBack.ulIOD, 74565u);
    EXPECT_EQ(stBack.astFreqObs[2].eFrequency, 0);
}

TEST(SatObservationBinary, EmptyRecordWritesFifteenBytes)
{
    SZelSatObservation stSat;
    stSat.stSatId = SZelSatID(ZELSATSYSTEM_SBAS, 20);
    ZelTest::ExpectCoreImage(stSat,
                             CImage().At(0).I32(4).U8(20).Zero(3).At(8).U32(0xFFFFFFFFu).Zero(3).At(15));
}

TEST(SatObservationBinary, SixSignalsRoundTrip)
{
    const SZelSatObservation stSat = SatObs(ZELSATSYSTEM_BEIDOU, 63, 6);
    const Bytes vecImage = SatImage(stSat);
    EXPECT_EQ(vecImage.size(), 15u + 6u * 72u);
    ZelTest::ExpectCoreImage(stSat, vecImage, ZelTest::SCoreRules(), SatObs(ZELSATSYSTEM_GPS, 1, 6));
}

TEST(SatObservationBinary, SizesOfTheImages)
{
    EXPECT_EQ(c_ulFREQOBS_SIZE, 72u);
    EXPECT_EQ(c_ulSATOBS_HEAD_SIZE, 15u);
    EXPECT_EQ(ZelIo::SizeOf(SZelFreqObservation()), c_ulFREQOBS_SIZE);
    EXPECT_EQ(SignalImage(SZelFreqObservation()).size(), c_ulFREQOBS_SIZE);
    EXPECT_EQ(SZelSatObservation().getSize(), c_ulSATOBS_HEAD_SIZE);
    EXPECT_EQ(SatObs(ZELSATSYSTEM_GPS, 1, 4).getSize(), 15u + 4u * 72u);
}

TEST(SatObservationBinary, SeventhSignalCannotBeWritten)
{
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GPS, 1, 6);
    stSat.uiNumFreq = 7;
    EXPECT_EQ(stSat.getSize(), 15u + 7u * 72u);
    Bytes vecOut(static_cast<size_t>(stSat.getSize()), 0xAA);
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 0;
    EXPECT_FALSE(stSat.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{c_szNumFreqCheck});
    EXPECT_EQ(ulUsed, 15u + 6u * 72u);
    // Six records stand; the bytes after them are untouched.
    SZelSatObservation stSix = stSat;
    stSix.uiNumFreq = 6;
    Bytes vecSix = SatImage(stSix);
    vecSix[14] = 7;
    EXPECT_TRUE(std::equal(vecSix.begin(), vecSix.end(), vecOut.begin()));
    EXPECT_EQ(vecOut[vecSix.size()], 0xAA);
}

TEST(SatObservationBinary, InvalidSatelliteAndFrequencyReportAndGoOn)
{
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GPS, 33, 2);
    stSat.astFreqObs[0].eFrequency = ZELFREQUENCY_UNKNOWN;
    stSat.astFreqObs[1].eFrequency = static_cast<EZelFrequency>(11);
    ZelTest::CRecordingHook stHook;
    Bytes vecOut(static_cast<size_t>(stSat.getSize()));
    uint64_t ulUsed = 0;
    EXPECT_TRUE(stSat.saveData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{"false", "false", "false"}));
    EXPECT_EQ(vecOut, SatImage(stSat));

    stHook.Clear();
    SZelSatObservation stBack;
    EXPECT_TRUE(stBack.loadData(vecOut.data(), vecOut.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), (std::vector<std::string>{"false", "false", "false"}));
    EXPECT_TRUE(stBack == stSat);
    EXPECT_EQ(stBack.astFreqObs[1].eFrequency, 11);
}

TEST(SatObservationBinary, LoadTestsThePresentCountFirst)
{
    SZelSatObservation stEmpty;
    stEmpty.stSatId = SZelSatID(ZELSATSYSTEM_GPS, 2);
    const Bytes vecImage = Save(stEmpty);
    ASSERT_EQ(vecImage.size(), 15u);

    // A target holding three signals needs 15 + 3 x 72 bytes before it reads.
    SZelSatObservation stTarget = SatObs(ZELSATSYSTEM_GALILEO, 4, 3);
    const SZelSatObservation stBefore = stTarget;
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 5;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{"false"});
    EXPECT_EQ(ulUsed, 0u);
    EXPECT_EQ(std::memcmp(&stTarget, &stBefore, sizeof(stTarget)), 0);

    // The same image in a larger buffer passes, and the reset target needs 15.
    stHook.Clear();
    Bytes vecLarge = vecImage;
    vecLarge.resize(15 + 3 * 72, 0xEE);
    EXPECT_TRUE(stTarget.loadData(vecLarge.data(), vecLarge.size(), &ulUsed));
    EXPECT_EQ(ulUsed, 15u);
    EXPECT_TRUE(stTarget == stEmpty);
    stTarget.Reset();
    EXPECT_TRUE(stTarget.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(SatObservationBinary, CountReadBeyondTheRoomFailsSilently)
{
    const SZelSatObservation stSat = SatObs(ZELSATSYSTEM_QZSS, 3, 4);
    const Bytes vecImage = Save(stSat);
    SZelSatObservation stTarget;
    stTarget.astFreqObs[0] = FreqObs(0x7, 5, 10, 3.0);
    const SZelFreqObservation stOldSignal = stTarget.astFreqObs[0];
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 9;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size() - 1, &ulUsed));
    EXPECT_EQ(stHook.Count(), 0u);
    EXPECT_EQ(ulUsed, 0u);
    // The head is stored, the signals are not.
    EXPECT_TRUE(stTarget.stSatId == stSat.stSatId);
    EXPECT_EQ(stTarget.ulIOD, stSat.ulIOD);
    EXPECT_EQ(stTarget.uiNumFreq, 4);
    EXPECT_TRUE(stTarget.astFreqObs[0] == stOldSignal);
}

TEST(SatObservationBinary, CountReadAboveSixReadsSixAndFails)
{
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GPS, 9, 6);
    Bytes vecImage = SatImage(stSat);
    vecImage[14] = 7;
    vecImage.resize(15 + 7 * 72, 0);
    SZelSatObservation stTarget;
    ZelTest::CRecordingHook stHook;
    uint64_t ulUsed = 0;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{c_szNumFreqCheck});
    EXPECT_EQ(ulUsed, 15u + 6u * 72u);
    EXPECT_EQ(stTarget.uiNumFreq, 7);
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        EXPECT_TRUE(stTarget.astFreqObs[ulIdx] == stSat.astFreqObs[ulIdx]) << ulIdx;
    }
    // 255 signals in a short buffer: report, then the silent room test.
    stHook.Clear();
    vecImage[14] = 255;
    SZelSatObservation stOther;
    EXPECT_FALSE(stOther.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{c_szNumFreqCheck});
    EXPECT_EQ(ulUsed, 0u);
}

TEST(SatObservationBinary, ReservedBytesAreWrittenZeroAndIgnoredOnLoad)
{
    const SZelSatObservation stSat = SatObs(ZELSATSYSTEM_NAVIC, 9, 1);
    Bytes vecImage = Save(stSat);
    for (size_t ulOffset :
         {5u, 6u, 7u, 15u + 12u, 15u + 13u, 15u + 14u, 15u + 15u, 15u + 58u, 15u + 59u, 15u + 68u, 15u + 71u})
    {
        EXPECT_EQ(vecImage[ulOffset], 0) << ulOffset;
        vecImage[ulOffset] = 0xC3;
    }
    SZelSatObservation stBack;
    uint64_t ulUsed = 0;
    EXPECT_TRUE(stBack.loadData(vecImage.data(), vecImage.size(), &ulUsed));
    EXPECT_TRUE(stBack == stSat);
}

TEST(SatObservationBinary, EveryTruncationFailsAndRandomInputSurvives)
{
    const SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GALILEO, 30, 5);
    const Bytes vecImage = Save(stSat);
    ZelTest::CRecordingHook stHook;
    for (size_t ulLength = 0; ulLength < vecImage.size(); ++ulLength)
    {
        SZelSatObservation stTarget;
        uint64_t ulUsed = 0;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), ulLength, &ulUsed)) << ulLength;
        EXPECT_EQ(ulUsed, 0u);
    }
    uint32_t ulSeed = 12345;
    Bytes vecRandom(600);
    for (int iRound = 0; iRound < 500; ++iRound)
    {
        for (unsigned char& rucByte : vecRandom)
        {
            ulSeed = ulSeed * 1103515245u + 12345u;
            rucByte = static_cast<unsigned char>(ulSeed >> 16);
        }
        SZelSatObservation stTarget;
        uint64_t ulUsed = 0;
        const bool bOk = stTarget.loadData(vecRandom.data(), vecRandom.size(), &ulUsed);
        EXPECT_EQ(bOk, ulUsed == stTarget.getSize() && stTarget.uiNumFreq <= 6);
        std::ostringstream oss;
        oss << stTarget;
    }
}

// ---------------------------------------------------------------------------
// Text form
// ---------------------------------------------------------------------------

TEST(SatObservationText, EmptyRecordEndsWithTheCount)
{
    ZelTest::ExpectTextExact(SZelSatObservation(),
                             "SatId, N00, IOD, 4294967295, SatFlgs, 0, ChnNum, 0, NumFrqs, 0");
}

TEST(SatObservationText, ExactString)
{
    SZelSatObservation stSat;
    stSat.stSatId = SZelSatID(ZELSATSYSTEM_GPS, 5);
    stSat.ulIOD = 74565;
    stSat.ucSatFlags = 0x1f;
    stSat.ucChannel = 12;
    stSat.uiNumFreq = 1;
    SZelFreqObservation& rstObs = stSat.astFreqObs[0];
    rstObs.ulObsFlags = 4111;
    rstObs.eFrequency = ZELFREQUENCY_L2P;
    rstObs.eTrackMode = ZELTRACKMODE_W;
    rstObs.dPhase = 1.5;
    rstObs.dCode = -2.25;
    rstObs.dDopplerM = 3.0;
    rstObs.dDopplerC = 0.5;
    rstObs.unContMeasCount10Msec = 1000;
    rstObs.unCNo = 45;
    rstObs.unPhaseRms100thMm = 12;
    rstObs.unRangeRmsMm = 300;
    rstObs.nTimeOffsetRTCM9 = -5;
    rstObs.fVelocity = 0.75f;
    rstObs.fAcceleration = -0.125f;
    const std::string strSignal =
        "Flgs, 4111, Frq, 4, TrkMode, W, Phs, 1.5, Cod, -2.25, DoppM, 3, DoppC, 0.5, "
        "ContMeas, 1000, CNo, 45, PhsRms, 12, CodRms, 300, TimOffs, -5, Vel, 0.75, "
        "Acc, -0.125";
    ZelTest::ExpectTextExact(rstObs, strSignal);
    ZelTest::ExpectTextExact(stSat,
                             "SatId, G05, IOD, 74565, SatFlgs, 0x1f, ChnNum, 12, NumFrqs, 1, " + strSignal);

    // Decimal again after the flags; the base prefix setting stays on.
    std::ostringstream oss;
    oss << stSat << ", " << 255;
    EXPECT_EQ(oss.str().substr(oss.str().size() - 5), ", 255");
    EXPECT_TRUE((oss.flags() & std::ios::showbase) != 0);
    EXPECT_EQ(oss.flags() & std::ios::basefield, std::ios::dec);
}

TEST(SatObservationText, SixSignalsRoundTrip)
{
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_BEIDOU, 38, 6);
    stSat.astFreqObs[3].eTrackMode = ZELTRACKMODE_UNKNOWN;
    stSat.ucSatFlags = 0;
    const std::string strText = ToText(stSat);
    std::istringstream iss(strText);
    SZelSatObservation stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stSat);
    EXPECT_EQ(stBack.ulIOD, stSat.ulIOD);
    EXPECT_EQ(ToText(stBack), strText);
}

TEST(SatObservationText, TagWordsAreNotCompared)
{
    const SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GLONASS, 7, 2);
    const std::set<std::string> setTags = {"SatId,",  "IOD,",     "SatFlgs,",  "ChnNum,", "NumFrqs,",
                                           "Flgs,",   "Frq,",     "TrkMode,",  "Phs,",    "Cod,",
                                           "DoppM,",  "DoppC,",   "ContMeas,", "CNo,",    "PhsRms,",
                                           "CodRms,", "TimOffs,", "Vel,",      "Acc,"};
    std::istringstream issWords(ToText(stSat));
    std::string strChanged;
    std::string strWord;
    size_t ulReplaced = 0;
    while (issWords >> strWord)
    {
        if (setTags.count(strWord) != 0)
        {
            strWord = "Other,";
            ++ulReplaced;
        }
        strChanged += strWord + " ";
    }
    EXPECT_EQ(ulReplaced, 5u + 2u * 14u);
    std::istringstream iss(strChanged);
    SZelSatObservation stBack;
    iss >> stBack;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stBack == stSat);
}

TEST(SatObservationText, CountAboveSixWritesAndReadsSix)
{
    SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GPS, 1, 6);
    stSat.uiNumFreq = 9;
    ZelTest::CRecordingHook stHook;
    const std::string strText = ToText(stSat);
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{c_szTextNumFreqCheck});
    size_t ulRecords = 0;
    for (size_t ulPos = strText.find("Flgs, "); ulPos != std::string::npos;
         ulPos = strText.find("Flgs, ", ulPos + 1))
    {
        ulRecords += strText.compare(ulPos - 3, 3, "Sat") == 0 ? 0 : 1;
    }
    EXPECT_EQ(ulRecords, 6u);

    stHook.Clear();
    std::istringstream iss(strText + ", Flgs, 1");
    SZelSatObservation stBack;
    iss >> stBack;
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{c_szTextNumFreqCheck});
    EXPECT_EQ(stBack.uiNumFreq, 9);
    EXPECT_TRUE(stBack == stSat);
    std::string strRest;
    iss >> strRest;
    EXPECT_EQ(strRest, ",");
}

TEST(SatObservationText, FlagsReadInHexadecimalAndRestInDecimal)
{
    std::istringstream iss("SatId, E11, IOD, 10, SatFlgs, 0x2A, ChnNum, 10, NumFrqs, 0");
    SZelSatObservation stSat;
    iss >> stSat;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(stSat.stSatId, SZelSatID(ZELSATSYSTEM_GALILEO, 11));
    EXPECT_EQ(stSat.ulIOD, 10u);
    EXPECT_EQ(stSat.ucSatFlags, 0x2A);
    EXPECT_EQ(stSat.ucChannel, 10);
    EXPECT_EQ(stSat.uiNumFreq, 0);
    // Without the prefix the flags are still hexadecimal; wide values narrow.
    std::istringstream iss2("SatId, G1, IOD, 7, SatFlgs, 1f, ChnNum, 300, NumFrqs, 0");
    iss2 >> stSat;
    EXPECT_EQ(stSat.ucSatFlags, 0x1f);
    EXPECT_EQ(stSat.ucChannel, 300 & 0xFF);
}

TEST(SatObservationText, CutTextFailsAndKeepsLaterFields)
{
    const SZelSatObservation stSat = SatObs(ZELSATSYSTEM_GPS, 12, 2);
    const std::string strText = ToText(stSat);
    const size_t ulCut = strText.find(", DoppM, ");
    ASSERT_NE(ulCut, std::string::npos);
    SZelSatObservation stTarget;
    stTarget.astFreqObs[0].dDopplerM = 42.0;
    stTarget.astFreqObs[0].dDopplerC = 43.0;
    stTarget.astFreqObs[1].dPhase = 44.0;
    std::istringstream iss(strText.substr(0, ulCut));
    iss >> stTarget;
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(stTarget.stSatId, stSat.stSatId);
    EXPECT_EQ(stTarget.astFreqObs[0].dCode, stSat.astFreqObs[0].dCode);
    EXPECT_EQ(stTarget.astFreqObs[0].dDopplerM, 42.0);
    EXPECT_EQ(stTarget.astFreqObs[0].dDopplerC, 43.0);
    EXPECT_EQ(stTarget.astFreqObs[1].dPhase, 44.0);
}

TEST(SatObservationText, UnknownTrackModeLetterGivesZeroSilently)
{
    ZelTest::CRecordingHook stHook;
    std::istringstream iss(
        "Flgs, 3, Frq, 1, TrkMode, ?, Phs, 1, Cod, 2, DoppM, 3, DoppC, 4, ContMeas, 5, CNo, 6, "
        "PhsRms, 7, CodRms, 8, TimOffs, -9, Vel, 10, Acc, 11");
    SZelFreqObservation stObs;
    stObs.eTrackMode = ZELTRACKMODE_Z;
    iss >> stObs;
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(stObs.eTrackMode, ZELTRACKMODE_UNKNOWN);
    EXPECT_EQ(stObs.ulObsFlags, 3u);
    EXPECT_EQ(stObs.eFrequency, ZELFREQUENCY_L1CA);
    EXPECT_EQ(stObs.nTimeOffsetRTCM9, -9);
    EXPECT_EQ(stObs.fAcceleration, 11.0f);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(SatObservationText, PrecisionIsTheStreams)
{
    SZelFreqObservation stObs;
    stObs.dPhase = 123456789.125;
    std::ostringstream oss;
    oss << stObs;
    EXPECT_NE(oss.str().find("Phs, 1.23457e+08"), std::string::npos);
    std::ostringstream oss17;
    oss17 << std::setprecision(17) << stObs;
    EXPECT_NE(oss17.str().find("Phs, 123456789.125"), std::string::npos);
}

TEST(SatObservationText, RandomTextNeverCrashes)
{
    const std::string strAlphabet = "0123456789,. -xXabcdefGRECSJIL\n";
    uint32_t ulSeed = 99;
    for (int iRound = 0; iRound < 300; ++iRound)
    {
        std::string strText;
        for (int iChar = 0; iChar < 200; ++iChar)
        {
            ulSeed = ulSeed * 1103515245u + 12345u;
            strText.push_back(strAlphabet[(ulSeed >> 16) % strAlphabet.size()]);
        }
        std::istringstream iss(strText);
        SZelSatObservation stSat;
        iss >> stSat;
        EXPECT_LE(stSat.UsedFreqs(), 6u);
    }
}
