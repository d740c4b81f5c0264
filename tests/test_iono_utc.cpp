// Ionosphere coefficients, UTC parameters and time offsets: the Klobuchar
// record with its image and text, the leap-second record and its derived
// clocks, the ionosphere records, and every branch of every update
// decision.

#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Ext/Gnss/ZelExtIonoUtc.h>

#include "ZelSamplesIonoUtc.h"
#include "ZelTestKit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using namespace ZELN;
using ZelTest::Bytes;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

typedef std::vector<std::string> Texts;

const char* const c_szINVARIANT_EFFECTIVITY = "EffectivityTime != SMjdTime() || iDeltaTlsf == -1";
const char* const c_szINVARIANT_REFTIME = "UTCRefTime != SMjdTime() || (dA0 == 0.0 && dA1 == 0.0 )";
const char* const c_szSTEP = "::abs(rLeapSecUTCNew.iDeltaTls - rLeapSecUTCCurrent.iDeltaTls) == 1";
const char* const c_szBACKWARDS = "rLeapSecUTCNew.EffectivityTime >= rLeapSecUTCCurrent.EffectivityTime";

template <class F> long VtableEntry(F pmf)
{
    struct SRep
    {
        uintptr_t ulPtr;
        ptrdiff_t lAdj;
    } stRep;
    static_assert(sizeof(F) == sizeof(SRep), "Itanium member pointer");
    std::memcpy(&stRep, &pmf, sizeof(stRep));
    if ((stRep.ulPtr & 1u) == 0)
    {
        return -1;
    }
    return static_cast<long>((stRep.ulPtr - 1) / sizeof(void*));
}

std::string Write(const SZelKlobucharCoefficients& rCoefficients)
{
    std::ostringstream os;
    os << rCoefficients;
    return os.str();
}

} // namespace

// ------------------------------------------------------------------ Klobuchar

TEST(Klobuchar, Defaults)
{
    const SZelKlobucharCoefficients st;
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(ZELSATSYSTEM_NONE, st.eSatSystem);
    for (size_t ulIdx = 0; ulIdx < 4; ++ulIdx)
    {
        EXPECT_EQ(0.0, st.adAlpha[ulIdx]);
        EXPECT_EQ(0.0, st.adBeta[ulIdx]);
    }
    EXPECT_EQ(ZELIONREGIONCODE_WIDE_AREA, st.eIonRegionCode);
    EXPECT_EQ(0, ZELIONREGIONCODE_WIDE_AREA);
    EXPECT_EQ(1, ZELIONREGIONCODE_JAPAN);
    SZelKlobucharCoefficients stCleared = ZelSample::SampleKlobuchar();
    stCleared.clear();
    EXPECT_FALSE(stCleared.bValid);
    EXPECT_EQ(0.0, stCleared.adBeta[0]);
    EXPECT_EQ(ZELSATSYSTEM_NONE, stCleared.eSatSystem);
    EXPECT_EQ(ZELIONREGIONCODE_WIDE_AREA, stCleared.eIonRegionCode);
}

TEST(Klobuchar, Image)
{
    CImage st;
    st.At(0).U8(1).Zero(3).At(4).I32(6).At(8);
    st.F64(1.1175870895385742e-08).F64(7.4505805969238281e-09).F64(-5.9604644775390625e-08);
    st.F64(-5.9604644775390625e-08).At(40).F64(90112.0).F64(16384.0).F64(-196608.0).F64(-65536.0);
    st.At(72).I32(1).Zero(4).At(80);
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT; // the count is set on success only
    ZelTest::ExpectCoreImage(ZelSample::SampleKlobuchar(), st.Get(), stRules);
}

TEST(Klobuchar, ImageOfTheDefaultAndReservedBytesPassedOver)
{
    CImage st;
    st.Zero(80);
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(SZelKlobucharCoefficients(), st.Get(), stRules);
    // Reserved bytes of an image hold anything; a bool byte other than 0 is true.
    Bytes vecImage = st.Get();
    vecImage[0] = 7;
    vecImage[1] = 0xEE;
    vecImage[77] = 0xEE;
    SZelKlobucharCoefficients stLoaded;
    uint64_t ulCount = 0;
    EXPECT_TRUE(stLoaded.loadData(vecImage.data(), vecImage.size(), &ulCount));
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(80u, ulCount);
}

TEST(Klobuchar, TextIsWrittenOnly)
{
    CRecordingHook stHook;
    EXPECT_EQ("Vld, 1, SatSys, J, Alpha, 1.11759e-08, 7.45058e-09, -5.96046e-08, -5.96046e-08, "
              "Beta, 90112, 16384, -196608, -65536, IonRegionCode, J",
              Write(ZelSample::SampleKlobuchar()));
    EXPECT_EQ("Vld, 0, SatSys, N, Alpha, 0, 0, 0, 0, Beta, 0, 0, 0, 0, IonRegionCode, W",
              Write(SZelKlobucharCoefficients()));
    EXPECT_EQ(0u, stHook.Count());
    SZelKlobucharCoefficients st;
    st.eIonRegionCode = static_cast<EZelIonRegionCode>(2);
    EXPECT_EQ("Vld, 0, SatSys, N, Alpha, 0, 0, 0, 0, Beta, 0, 0, 0, 0, IonRegionCode, ?", Write(st));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
}

TEST(Klobuchar, RegionCodeLetters)
{
    CRecordingHook stHook;
    std::ostringstream os;
    os << ZELIONREGIONCODE_WIDE_AREA << ZELIONREGIONCODE_JAPAN;
    EXPECT_EQ("WJ", os.str());
    EXPECT_EQ(0u, stHook.Count());
    os << static_cast<EZelIonRegionCode>(-1);
    EXPECT_EQ("WJ?", os.str());
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();

    std::istringstream is("W J ? X");
    EZelIonRegionCode eCode = ZELIONREGIONCODE_JAPAN;
    is >> eCode;
    EXPECT_EQ(ZELIONREGIONCODE_WIDE_AREA, eCode);
    is >> eCode;
    EXPECT_EQ(ZELIONREGIONCODE_JAPAN, eCode);
    EXPECT_EQ(0u, stHook.Count());
    is >> eCode;
    EXPECT_EQ(ZELIONREGIONCODE_WIDE_AREA, eCode);
    eCode = ZELIONREGIONCODE_JAPAN;
    is >> eCode;
    EXPECT_EQ(ZELIONREGIONCODE_WIDE_AREA, eCode);
    EXPECT_EQ(Texts({"false", "false"}), stHook.Texts());
    EXPECT_FALSE(is.fail());
    // Nothing left to read: nothing changes, nothing is reported.
    eCode = ZELIONREGIONCODE_JAPAN;
    is >> eCode;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(ZELIONREGIONCODE_JAPAN, eCode);
    EXPECT_EQ(2u, stHook.Count());
}

TEST(Klobuchar, Equality)
{
    const SZelKlobucharCoefficients stA = ZelSample::SampleKlobuchar();
    SZelKlobucharCoefficients stB = stA;
    EXPECT_TRUE(stA == stB);
    for (size_t ulIdx = 0; ulIdx < 4; ++ulIdx)
    {
        stB = stA;
        stB.adAlpha[ulIdx] = stA.adAlpha[ulIdx] * (1.0 + 5e-15);
        EXPECT_TRUE(stA == stB);
        stB.adAlpha[ulIdx] = stA.adAlpha[ulIdx] * (1.0 + 5e-14);
        EXPECT_FALSE(stA == stB);
        stB = stA;
        stB.adBeta[ulIdx] = stA.adBeta[ulIdx] * (1.0 + 5e-15);
        EXPECT_TRUE(stA == stB);
        stB.adBeta[ulIdx] = stA.adBeta[ulIdx] * (1.0 + 5e-14);
        EXPECT_TRUE(stA != stB);
    }
    stB = stA;
    stB.eSatSystem = ZELSATSYSTEM_GPS;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.eIonRegionCode = ZELIONREGIONCODE_WIDE_AREA;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.bValid = false;
    EXPECT_FALSE(stA == stB);
    EXPECT_FALSE(stB == stA);
    // Two records without coefficients are equal whatever they hold.
    SZelKlobucharCoefficients stUnsetA;
    SZelKlobucharCoefficients stUnsetB = stA;
    stUnsetB.bValid = false;
    stUnsetA.adAlpha[0] = 5.0;
    EXPECT_TRUE(stUnsetA == stUnsetB);
}

TEST(Klobuchar, NastyImagesNeverCrash)
{
    std::mt19937 stRandom(77u);
    for (int iRound = 0; iRound < 500; ++iRound)
    {
        Bytes vecBytes(stRandom() % 100);
        for (unsigned char& ruc : vecBytes)
        {
            ruc = static_cast<unsigned char>(stRandom());
        }
        CRecordingHook stHook;
        SZelKlobucharCoefficients st;
        uint64_t ulCount = 5;
        const bool bOk = st.loadData(vecBytes.data(), vecBytes.size(), &ulCount);
        EXPECT_EQ(vecBytes.size() >= 80, bOk);
        EXPECT_EQ(bOk ? 80u : 5u, ulCount);
        std::ostringstream os;
        os << st;
        (void)(st == st);
    }
}

// ------------------------------------------------------------------ leap seconds and UTC

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
TEST(LeapSecUtc, VirtualSlotOrder)
{
    EXPECT_EQ(2, VtableEntry(&ZELX_LEAPSEC_UTC::isValid));
    EXPECT_EQ(3, VtableEntry(&ZELX_LEAPSEC_UTC::clear));
    EXPECT_EQ(4, VtableEntry(&ZELX_LEAPSEC_UTC::assign));
    EXPECT_EQ(3, VtableEntry(&ZELX_CLOCK_BEIDOU::clear));
    EXPECT_EQ(3, VtableEntry(&ZELX_SAT_CLOCK_GALILEO::clear));
    EXPECT_EQ(3, VtableEntry(&ZELX_SYSCLOCK_NAVIC::clear));
    EXPECT_EQ(2, VtableEntry(&ZELX_IONO_UTC::clear));
    EXPECT_EQ(2, VtableEntry(&ZELX_IONO_UTC_GPSQZSS::clear));
    EXPECT_TRUE(std::has_virtual_destructor<ZELX_IONO_BEIDOU>::value);
    EXPECT_TRUE(std::has_virtual_destructor<ZELX_IONO_NAVIC>::value);
    EXPECT_TRUE(std::has_virtual_destructor<ZELX_IONO_GALILEO>::value);
    EXPECT_TRUE((std::is_base_of<ZELX_LEAPSEC_UTC, ZELX_CLOCK_BEIDOU>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_LEAPSEC_UTC, ZELX_SAT_CLOCK_GALILEO>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_LEAPSEC_UTC, ZELX_SYSCLOCK_NAVIC>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_IONO_UTC, ZELX_IONO_UTC_GPSQZSS>::value));
}
#endif

TEST(LeapSecUtc, DefaultIsNotValidAndSilent)
{
    CRecordingHook stHook;
    const ZELX_LEAPSEC_UTC st;
    EXPECT_EQ(-1, st.iDeltaTls);
    EXPECT_EQ(-1, st.iDeltaTlsf);
    EXPECT_FALSE(st.EffectivityTime.IsSet());
    EXPECT_EQ(0.0, st.dA0);
    EXPECT_EQ(0.0, st.dA1);
    EXPECT_FALSE(st.UTCRefTime.IsSet());
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(LeapSecUtc, ValidityIsTheCountInForce)
{
    CRecordingHook stHook;
    ZELX_LEAPSEC_UTC st;
    st.iDeltaTls = 18;
    EXPECT_TRUE(st.isValid());
    st.iDeltaTls = 1;
    EXPECT_TRUE(st.isValid());
    st.iDeltaTls = 0;
    EXPECT_FALSE(st.isValid());
    st.iDeltaTls = -100; // signed
    EXPECT_FALSE(st.isValid());
    st.iDeltaTls = 127;
    EXPECT_TRUE(st.isValid());
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_TRUE(ZelSample::SampleLeapSecUtc().isValid());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(LeapSecUtc, InvariantsAreReportedOnly)
{
    CRecordingHook stHook;
    ZELX_LEAPSEC_UTC st;
    st.iDeltaTls = 18;
    st.iDeltaTlsf = 18; // announced with no time
    EXPECT_TRUE(st.isValid());
    EXPECT_EQ(Texts{c_szINVARIANT_EFFECTIVITY}, stHook.Texts());
    stHook.Clear();
    st.iDeltaTls = 0;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(Texts{c_szINVARIANT_EFFECTIVITY}, stHook.Texts());
    stHook.Clear();
    st = ZELX_LEAPSEC_UTC();
    st.iDeltaTls = 18;
    st.dA1 = 1e-15; // a polynomial with no reference time
    EXPECT_TRUE(st.isValid());
    EXPECT_EQ(Texts{c_szINVARIANT_REFTIME}, stHook.Texts());
    stHook.Clear();
    st.dA1 = 0.0;
    st.dA0 = -1e-9;
    st.iDeltaTlsf = 19;
    EXPECT_TRUE(st.isValid());
    EXPECT_EQ(Texts({c_szINVARIANT_EFFECTIVITY, c_szINVARIANT_REFTIME}), stHook.Texts());
    stHook.Clear();
    // A time a millisecond into MJD 0 is set: the invariants hold.
    st.EffectivityTime.SetMjdDayMilliseconds(0, 1.0);
    st.UTCRefTime.SetMjdDayMilliseconds(0, 1.0);
    EXPECT_TRUE(st.isValid());
    EXPECT_EQ(0u, stHook.Count());
}

TEST(LeapSecUtc, EqualityClearAndAssign)
{
    const ZELX_LEAPSEC_UTC stA = ZelSample::SampleLeapSecUtc();
    ZELX_LEAPSEC_UTC stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.iDeltaTls = 17;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.iDeltaTlsf = 18;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.EffectivityTime.AddDays(1);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.EffectivityTime.AddMilliseconds(1e-7); // the time's own tolerance
    EXPECT_TRUE(stA == stB);
    stB = stA;
    stB.dA0 = stA.dA0 * (1.0 + 5e-15);
    stB.dA1 = stA.dA1 * (1.0 - 5e-15);
    EXPECT_TRUE(stA == stB);
    stB.dA0 = stA.dA0 * (1.0 + 5e-14);
    EXPECT_TRUE(stA != stB);
    stB = stA;
    stB.dA1 = stA.dA1 * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.UTCRefTime.AddSeconds(1.0);
    EXPECT_FALSE(stA == stB);

    stB = stA;
    stB.clear();
    EXPECT_TRUE(stB == ZELX_LEAPSEC_UTC());
    ZELX_CLOCK_BEIDOU stClock = ZelSample::SampleClockBeiDou();
    stClock.assign(stA);
    EXPECT_EQ(18, stClock.iDeltaTls);
    EXPECT_EQ(1.5e-8, stClock.adGnssOffset[0]) << "assign takes the fields of the base only";
    ZELX_LEAPSEC_UTC& rBase = stClock;
    rBase.clear(); // the class's own clear
    EXPECT_EQ(0.0, stClock.adGnssOffset[0]);
    EXPECT_EQ(-1, stClock.iDeltaTls);
}

// ------------------------------------------------------------------ derived clocks

TEST(ClockBeiDou, DefaultsEqualityAndGpsTerms)
{
    const ZELX_CLOCK_BEIDOU stDefault;
    for (double d : stDefault.adGnssOffset)
    {
        EXPECT_EQ(0.0, d);
    }
    EXPECT_EQ(0, stDefault.ucAux1);
    EXPECT_EQ(0.0, stDefault.dAux2);
    EXPECT_EQ(-1, stDefault.iDeltaTls);

    const ZELX_CLOCK_BEIDOU stA = ZelSample::SampleClockBeiDou();
    EXPECT_EQ(-9.3132257461547852e-10 - 1.5e-8, stA.getGpsUtcA0());
    EXPECT_EQ(2.6645352591003757e-15 - -2.5e-14, stA.getGpsUtcA1());
    ZELX_CLOCK_BEIDOU stB = stA;
    EXPECT_TRUE(stA == stB);
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        stB = stA;
        stB.adGnssOffset[ulIdx] *= 1.0 + 5e-15;
        EXPECT_TRUE(stA == stB);
        stB.adGnssOffset[ulIdx] = stA.adGnssOffset[ulIdx] * (1.0 + 5e-14);
        EXPECT_FALSE(stA == stB);
    }
    stB = stA;
    stB.dAux2 = 0.125 * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucAux1 = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.iDeltaTls = 5;
    EXPECT_FALSE(stA == stB);
    stB.clear();
    EXPECT_TRUE(stB == stDefault);
}

TEST(ClockGalileo, DefaultsAndEquality)
{
    const ZELX_SAT_CLOCK_GALILEO stDefault;
    EXPECT_EQ(0u, stDefault.ulAux1 + stDefault.ulAux2);
    EXPECT_EQ(0, stDefault.ucAux3);
    EXPECT_EQ(0.0, stDefault.dA0G);
    EXPECT_EQ(0.0, stDefault.dA1G);
    EXPECT_FALSE(stDefault.stT0G.IsSet());

    const ZELX_SAT_CLOCK_GALILEO stA = ZelSample::SampleSatClockGalileo();
    ZELX_SAT_CLOCK_GALILEO stB = stA;
    stB.ulAux1 = 0;
    stB.ulAux2 = 0;
    EXPECT_TRUE(stA == stB) << "ulAux1 and ulAux2 take no part";
    stB.dA0G *= 1.0 + 5e-15;
    EXPECT_TRUE(stA == stB);
    stB.dA0G = stA.dA0G * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dA1G = stA.dA1G * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucAux3 = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stT0G.AddSeconds(3600.0);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dA0 = 0.0;
    EXPECT_FALSE(stA == stB);
    stB.clear();
    EXPECT_TRUE(stB == stDefault);
    EXPECT_EQ(0u, stB.ulAux1);
}

TEST(ClockNavic, OffsetIndex)
{
    CRecordingHook stHook;
    const uint32_t aulIds[] = {0, 1, 2, 7};
    const uint8_t aucIndices[] = {0, 1, 2, 3};
    for (size_t ulRow = 0; ulRow < 4; ++ulRow)
    {
        uint8_t ucIndex = 99;
        EXPECT_TRUE(ZELX_SYSCLOCK_NAVIC::getOffsetIndex(aulIds[ulRow], ucIndex));
        EXPECT_EQ(aucIndices[ulRow], ucIndex);
    }
    EXPECT_EQ(0u, stHook.Count());
    for (const uint32_t ulId : {3u, 4u, 6u, 8u, 0xFFFFFFFFu})
    {
        uint8_t ucIndex = 99;
        EXPECT_FALSE(ZELX_SYSCLOCK_NAVIC::getOffsetIndex(ulId, ucIndex));
        EXPECT_EQ(8, ucIndex);
    }
    EXPECT_EQ(Texts(5, "false"), stHook.Texts());
}

TEST(ClockNavic, SetOffsetAndTheUnknownIdInTheLastEntry)
{
    CRecordingHook stHook;
    ZELX_SYSCLOCK_NAVIC st;
    for (const SZelNavicTimeOffset& rEntry : st.astOffsets)
    {
        EXPECT_FALSE(rEntry.isValid());
        EXPECT_EQ(8u, rEntry.ulGnssId);
        EXPECT_EQ(0.0, rEntry.dA0 + rEntry.dA1 + rEntry.dA2);
        EXPECT_FALSE(rEntry.stRefTime.IsSet());
    }
    st.setOffset(ZelSample::SampleNavicTimeOffset(2));
    EXPECT_EQ(2u, st.astOffsets[2].ulGnssId);
    EXPECT_TRUE(st.astOffsets[2].isValid());
    st.setOffset(ZelSample::SampleNavicTimeOffset(7));
    EXPECT_EQ(7u, st.astOffsets[3].ulGnssId);
    EXPECT_EQ(0u, stHook.Count());
    st.setOffset(ZelSample::SampleNavicTimeOffset(5));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    EXPECT_EQ(5u, st.astOffsets[3].ulGnssId);
    EXPECT_EQ(8u, st.astOffsets[0].ulGnssId);
    EXPECT_EQ(8u, st.astOffsets[1].ulGnssId);
}

TEST(ClockNavic, EntryEqualityIsTolerant)
{
    const SZelNavicTimeOffset stA = ZelSample::SampleNavicTimeOffset(1);
    SZelNavicTimeOffset stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.dA0 *= 1.0 + 5e-15;
    stB.dA1 *= 1.0 + 5e-15;
    stB.dA2 *= 1.0 + 5e-15;
    EXPECT_TRUE(stA == stB);
    stB = stA;
    stB.dA2 = stA.dA2 * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulGnssId = 2;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stRefTime.AddSeconds(1.0);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stRefTime.SetAccuracy(MJDACC_SECOND); // a tolerant time equality ignores the accuracy here
    EXPECT_TRUE(stA == stB);
    stB = stA;
    stB.dA0 = std::numeric_limits<double>::quiet_NaN();
    SZelNavicTimeOffset stC = stB;
    EXPECT_FALSE(stB == stC) << "a NaN is never close";
}

TEST(ClockNavic, ClassEqualityComparesTheEntriesByTheirBytes)
{
    const ZELX_SYSCLOCK_NAVIC stA = ZelSample::SampleSysClockNavic();
    ZELX_SYSCLOCK_NAVIC stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.ullAux1 = 0;
    stB.ucAux4 = 0;
    EXPECT_TRUE(stA == stB) << "ullAux1 and ucAux4 take no part";
    stB.dAux2 = 0.5 * (1.0 + 5e-15);
    stB.dAux3 = -0.25 * (1.0 + 5e-15);
    EXPECT_TRUE(stA == stB);
    stB.dAux3 = -0.25 * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dAux2 = 0.5 * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    // Within the tolerance of an entry, but other bytes: unequal.
    stB = stA;
    stB.astOffsets[1].dA0 = stA.astOffsets[1].dA0 * (1.0 + 5e-15);
    EXPECT_TRUE(stA.astOffsets[1] == stB.astOffsets[1]);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.astOffsets[0].stRefTime.SetAccuracy(MJDACC_SECOND);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.astOffsets[3].stRefTime.AddMilliseconds(1e-7);
    EXPECT_FALSE(stA == stB);
    // 0.0 and -0.0 differ in their bytes; the same NaN does not.
    ZELX_SYSCLOCK_NAVIC stZero;
    stZero.iDeltaTls = 18;
    ZELX_SYSCLOCK_NAVIC stNegZero = stZero;
    stNegZero.astOffsets[2].dA1 = -0.0;
    EXPECT_FALSE(stZero == stNegZero);
    ZELX_SYSCLOCK_NAVIC stNan = stZero;
    stNan.astOffsets[2].dA1 = std::numeric_limits<double>::quiet_NaN();
    const ZELX_SYSCLOCK_NAVIC stNanCopy = stNan;
    EXPECT_TRUE(stNan == stNanCopy);
    // The base takes part.
    stB = stA;
    stB.UTCRefTime.AddDays(1);
    EXPECT_FALSE(stA == stB);
    stB.clear();
    EXPECT_TRUE(stB == ZELX_SYSCLOCK_NAVIC());
    EXPECT_EQ(0u, stB.ullAux1);
}

// ------------------------------------------------------------------ ionosphere records

TEST(IonoRecords, DefaultsAndClear)
{
    const ZELX_IONO_UTC stUtc;
    EXPECT_TRUE(stUtc.stKlobuchar == SZelKlobucharCoefficients());
    EXPECT_EQ(-1, stUtc.stLeapSec.iDeltaTls);

    ZELX_IONO_UTC_GPSQZSS stGps = ZelSample::SampleIonoUtcGpsQzss();
    ZELX_IONO_UTC& rBase = stGps;
    rBase.clear(); // the class's own clear
    EXPECT_EQ(0, stGps.unAux1);
    EXPECT_EQ(0u, stGps.ulAux2);
    EXPECT_EQ(0, stGps.ucAux3);
    EXPECT_FALSE(stGps.stKlobuchar.bValid);
    EXPECT_EQ(-1, stGps.stLeapSec.iDeltaTlsf);
    ZELX_IONO_UTC stUtc2 = ZelSample::SampleIonoUtc();
    stUtc2.clear();
    EXPECT_TRUE(stUtc2 == ZELX_IONO_UTC());
    EXPECT_EQ(-1, stUtc2.stLeapSec.iDeltaTls);

    ZELX_IONO_BEIDOU stBds;
    EXPECT_EQ(ZELSATSYSTEM_BEIDOU, stBds.stKlobuchar.eSatSystem);
    EXPECT_EQ(0, stBds.unAux1);
    stBds = ZelSample::SampleIonoBeiDou();
    stBds.stKlobuchar.eSatSystem = ZELSATSYSTEM_GPS;
    stBds.clear();
    EXPECT_EQ(ZELSATSYSTEM_BEIDOU, stBds.stKlobuchar.eSatSystem);
    EXPECT_FALSE(stBds.stKlobuchar.bValid);
    EXPECT_EQ(0u, stBds.ulAux2);

    ZELX_IONO_NAVIC stIrn;
    EXPECT_EQ(ZELSATSYSTEM_NAVIC, stIrn.stKlobuchar.eSatSystem);
    stIrn = ZelSample::SampleIonoNavic();
    stIrn.clear();
    EXPECT_EQ(ZELSATSYSTEM_NAVIC, stIrn.stKlobuchar.eSatSystem);
    EXPECT_EQ(0, stIrn.ucAux3);

    ZELX_IONO_GALILEO stGal = ZelSample::SampleIonoGalileo();
    stGal.clear();
    EXPECT_EQ(ZELSATSYSTEM_NONE, stGal.stKlobuchar.eSatSystem);
    EXPECT_EQ(0, stGal.unAux1 + stGal.ucAux3 + stGal.ucAux4 + stGal.unAux5 + stGal.unAux6 + stGal.unAux7 +
                     stGal.ucAux8);
    EXPECT_EQ(0u, stGal.ulAux2);
}

TEST(IonoRecords, Equality)
{
    const ZELX_IONO_UTC stUa = ZelSample::SampleIonoUtc();
    ZELX_IONO_UTC stUb = stUa;
    EXPECT_TRUE(stUa == stUb);
    stUb.stKlobuchar.adBeta[3] = 0.0;
    EXPECT_FALSE(stUa == stUb);
    stUb = stUa;
    stUb.stLeapSec.iDeltaTlsf = 18;
    EXPECT_FALSE(stUa == stUb);

    const ZELX_IONO_UTC_GPSQZSS stGa = ZelSample::SampleIonoUtcGpsQzss();
    ZELX_IONO_UTC_GPSQZSS stGb = stGa;
    stGb.unAux1 = 0;
    stGb.ulAux2 = 0;
    EXPECT_TRUE(stGa == stGb) << "unAux1 and ulAux2 take no part";
    stGb.ucAux3 = 0;
    EXPECT_FALSE(stGa == stGb);
    stGb = stGa;
    stGb.stLeapSec.dA0 = 0.0;
    EXPECT_FALSE(stGa == stGb);

    const ZELX_IONO_BEIDOU stBa = ZelSample::SampleIonoBeiDou();
    ZELX_IONO_BEIDOU stBb = stBa;
    stBb.unAux1 = 0;
    stBb.ulAux2 = 0;
    stBb.ucAux3 = 0;
    EXPECT_TRUE(stBa == stBb) << "the coefficients alone";
    stBb.stKlobuchar.adAlpha[1] = 0.0;
    EXPECT_FALSE(stBa == stBb);

    const ZELX_IONO_NAVIC stNa = ZelSample::SampleIonoNavic();
    ZELX_IONO_NAVIC stNb = stNa;
    stNb.unAux1 = 0;
    stNb.ulAux2 = 0;
    stNb.ucAux3 = 0;
    EXPECT_TRUE(stNa == stNb);
    stNb.stKlobuchar.eIonRegionCode = ZELIONREGIONCODE_WIDE_AREA;
    EXPECT_FALSE(stNa == stNb);

    const ZELX_IONO_GALILEO stEa = ZelSample::SampleIonoGalileo();
    ZELX_IONO_GALILEO stEb = stEa;
    stEb.stKlobuchar = SZelKlobucharCoefficients();
    stEb.stKlobuchar.bValid = true;
    stEb.unAux1 = 0;
    stEb.ulAux2 = 0;
    EXPECT_TRUE(stEa == stEb) << "not the coefficient block, nor unAux1 and ulAux2";
    uint8_t ZELX_IONO_GALILEO::*apBytes[] = {&ZELX_IONO_GALILEO::ucAux3, &ZELX_IONO_GALILEO::ucAux4,
                                             &ZELX_IONO_GALILEO::ucAux8};
    for (auto pByte : apBytes)
    {
        stEb = stEa;
        stEb.*pByte = 0;
        EXPECT_FALSE(stEa == stEb);
    }
    uint16_t ZELX_IONO_GALILEO::*apWords[] = {&ZELX_IONO_GALILEO::unAux5, &ZELX_IONO_GALILEO::unAux6,
                                              &ZELX_IONO_GALILEO::unAux7};
    for (auto pWord : apWords)
    {
        stEb = stEa;
        stEb.*pWord = 0;
        EXPECT_FALSE(stEa == stEb);
    }
}

// ------------------------------------------------------------------ update decisions

TEST(LeapSecUpdate, ValidityComesFirst)
{
    CRecordingHook stHook;
    const ZELX_LEAPSEC_UTC stHeld = ZelSample::SampleLeapSecUtc();
    ZELX_LEAPSEC_UTC stNew = stHeld;
    stNew.iDeltaTls = 0;
    stNew.iDeltaTlsf = 1;
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stNew)) << "a new record that is not valid is never taken";
    EXPECT_FALSE(isNewLeapSecUtc(ZELX_LEAPSEC_UTC(), ZELX_LEAPSEC_UTC()));
    EXPECT_TRUE(isNewLeapSecUtc(ZELX_LEAPSEC_UTC(), stHeld)) << "a held record that is not valid gives way";
    EXPECT_EQ(0u, stHook.Count());
}

TEST(LeapSecUpdate, CountInForce)
{
    CRecordingHook stHook;
    ZELX_LEAPSEC_UTC stHeld;
    stHeld.iDeltaTls = 18;
    ZELX_LEAPSEC_UTC stNew = stHeld;
    stNew.iDeltaTls = 19;
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    stNew.iDeltaTls = 17;
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
    stNew.iDeltaTls = 20;
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(Texts{c_szSTEP}, stHook.Texts());
    stHook.Clear();
    stNew.iDeltaTls = 1;
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(Texts{c_szSTEP}, stHook.Texts());
}

TEST(LeapSecUpdate, Announcement)
{
    CRecordingHook stHook;
    const ZELX_LEAPSEC_UTC stHeld = ZelSample::SampleLeapSecUtc(); // 19 from the end of week 2350
    ZELX_LEAPSEC_UTC stNew = stHeld;
    // The same announcement: on to the polynomial, which is the same.
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stNew));
    // The same time, another count.
    stNew.iDeltaTlsf = 17;
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    // A later time.
    stNew = stHeld;
    stNew.EffectivityTime.AddDays(7);
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
    // An earlier time: reported, and taken.
    stNew = stHeld;
    stNew.EffectivityTime.SubDays(7);
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(Texts{c_szBACKWARDS}, stHook.Texts());
    stHook.Clear();
    // An earlier time with another count as well: one report.
    stNew.iDeltaTlsf = 18;
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(Texts{c_szBACKWARDS}, stHook.Texts());
    stHook.Clear();
    // The held record announces nothing: any announcement is new.
    ZELX_LEAPSEC_UTC stQuiet = stHeld;
    stQuiet.EffectivityTime = SMjdTime();
    stQuiet.iDeltaTlsf = -1;
    EXPECT_TRUE(isNewLeapSecUtc(stQuiet, stHeld));
    // The new record announces nothing: the announcement is passed over.
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stQuiet));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(LeapSecUpdate, Polynomial)
{
    CRecordingHook stHook;
    const ZELX_LEAPSEC_UTC stHeld = ZelSample::SampleLeapSecUtc();
    // Same leap data, new UTCRefTime default: no update, even with a new dA0
    // (which breaks the invariant of the new record).
    ZELX_LEAPSEC_UTC stNew = stHeld;
    stNew.UTCRefTime = SMjdTime();
    stNew.dA0 = 5e-9;
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(Texts{c_szINVARIANT_REFTIME}, stHook.Texts());
    stHook.Clear();
    // Another reference time.
    stNew = stHeld;
    stNew.UTCRefTime.AddSeconds(4096.0);
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    stNew = stHeld;
    stNew.UTCRefTime.AddMilliseconds(1e-7); // within the time's tolerance
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stNew));
    // The same reference time: dA0 and dA1 at a relative 1e-14.
    stNew = stHeld;
    stNew.dA0 = stHeld.dA0 * (1.0 + 1e-15);
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stNew));
    stNew.dA0 = stHeld.dA0 * (1.0 + 1e-13);
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    stNew = stHeld;
    stNew.dA1 = stHeld.dA1 * (1.0 - 1e-15);
    EXPECT_FALSE(isNewLeapSecUtc(stHeld, stNew));
    stNew.dA1 = stHeld.dA1 * (1.0 - 1e-13);
    EXPECT_TRUE(isNewLeapSecUtc(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ClockUpdate, BeiDou)
{
    CRecordingHook stHook;
    const ZELX_CLOCK_BEIDOU stHeld = ZelSample::SampleClockBeiDou();
    EXPECT_FALSE(isNewClockBeiDou(stHeld, stHeld));
    ZELX_CLOCK_BEIDOU stNew = stHeld;
    stNew.iDeltaTls = 5; // the UTC part decides first
    EXPECT_TRUE(isNewClockBeiDou(stHeld, stNew));
    for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
    {
        stNew = stHeld;
        stNew.adGnssOffset[ulIdx] = stHeld.adGnssOffset[ulIdx] * (1.0 + 1e-15);
        EXPECT_FALSE(isNewClockBeiDou(stHeld, stNew)) << ulIdx;
        stNew.adGnssOffset[ulIdx] = stHeld.adGnssOffset[ulIdx] * (1.0 + 1e-13);
        EXPECT_TRUE(isNewClockBeiDou(stHeld, stNew)) << ulIdx;
    }
    stNew = stHeld;
    stNew.dAux2 = 0.125 * (1.0 + 1e-15);
    EXPECT_FALSE(isNewClockBeiDou(stHeld, stNew));
    stNew.dAux2 = 0.25;
    EXPECT_TRUE(isNewClockBeiDou(stHeld, stNew));
    stNew = stHeld;
    stNew.ucAux1 = 1;
    EXPECT_TRUE(isNewClockBeiDou(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
    // The offsets are looked at whatever the UTC part said, also for a new
    // record that the UTC rule does not take.
    stNew = stHeld;
    stNew.iDeltaTls = -1;
    EXPECT_FALSE(isNewClockBeiDou(stHeld, stNew));
    stNew.adGnssOffset[4] = 0.0;
    EXPECT_TRUE(isNewClockBeiDou(stHeld, stNew));
}

TEST(ClockUpdate, Galileo)
{
    CRecordingHook stHook;
    const ZELX_SAT_CLOCK_GALILEO stHeld = ZelSample::SampleSatClockGalileo();
    EXPECT_FALSE(isNewSatClockGalileo(stHeld, stHeld));
    ZELX_SAT_CLOCK_GALILEO stNew = stHeld;
    stNew.UTCRefTime.AddSeconds(60.0);
    EXPECT_TRUE(isNewSatClockGalileo(stHeld, stNew));
    // No reference time in the new record: no update, whatever the offset says.
    stNew = stHeld;
    stNew.stT0G = SMjdTime();
    stNew.dA0G = 1.0;
    EXPECT_FALSE(isNewSatClockGalileo(stHeld, stNew));
    stNew = stHeld;
    stNew.stT0G.AddSeconds(3600.0);
    EXPECT_TRUE(isNewSatClockGalileo(stHeld, stNew));
    stNew = stHeld;
    stNew.dA0G = stHeld.dA0G * (1.0 + 1e-15);
    stNew.dA1G = stHeld.dA1G * (1.0 + 1e-15);
    EXPECT_FALSE(isNewSatClockGalileo(stHeld, stNew));
    stNew.dA0G = stHeld.dA0G * (1.0 + 1e-13);
    EXPECT_TRUE(isNewSatClockGalileo(stHeld, stNew));
    stNew = stHeld;
    stNew.dA1G = stHeld.dA1G * (1.0 + 1e-13);
    EXPECT_TRUE(isNewSatClockGalileo(stHeld, stNew));
    stNew = stHeld;
    stNew.ucAux3 = 4;
    EXPECT_TRUE(isNewSatClockGalileo(stHeld, stNew));
    stNew = stHeld;
    stNew.ulAux1 = 0;
    stNew.ulAux2 = 0;
    EXPECT_FALSE(isNewSatClockGalileo(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(ClockUpdate, Navic)
{
    CRecordingHook stHook;
    const ZELX_SYSCLOCK_NAVIC stHeld = ZelSample::SampleSysClockNavic();
    EXPECT_FALSE(isNewSysClockNavic(stHeld, stHeld));
    ZELX_SYSCLOCK_NAVIC stNew = stHeld;
    stNew.iDeltaTls = 19;
    EXPECT_TRUE(isNewSysClockNavic(stHeld, stNew));
    for (size_t ulIdx = 0; ulIdx < 4; ++ulIdx)
    {
        stNew = stHeld;
        stNew.astOffsets[ulIdx].dA1 = stHeld.astOffsets[ulIdx].dA1 * (1.0 + 1e-15);
        EXPECT_FALSE(isNewSysClockNavic(stHeld, stNew)) << "tolerant, unlike the class's equality";
        EXPECT_FALSE(stHeld == stNew);
        stNew.astOffsets[ulIdx].dA1 = stHeld.astOffsets[ulIdx].dA1 * (1.0 + 1e-13);
        EXPECT_TRUE(isNewSysClockNavic(stHeld, stNew)) << ulIdx;
    }
    stNew = stHeld;
    stNew.astOffsets[2].stRefTime.AddSeconds(16.0);
    EXPECT_TRUE(isNewSysClockNavic(stHeld, stNew));
    stNew = stHeld;
    stNew.astOffsets[0].ulGnssId = 8;
    EXPECT_TRUE(isNewSysClockNavic(stHeld, stNew));
    stNew = stHeld;
    stNew.dAux2 = 9.0;
    stNew.ullAux1 = 0;
    EXPECT_FALSE(isNewSysClockNavic(stHeld, stNew)) << "the offsets alone beside the UTC part";
    EXPECT_EQ(0u, stHook.Count());
}
