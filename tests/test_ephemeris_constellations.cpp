// QZSS, Galileo, BeiDou and NavIC ephemerides: health rules, versioned
// images, equality and the update decision of each, branch by branch.

#include <ZelTypes/Ext/Gnss/ZelExtEphTypes.h>

#include "test_ephemeris_support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

using namespace ZELN;
using EphTest::Bytes;
using EphTest::CReportRecorder;
using EphTest::GpsTime;
using EphTest::Put;
using EphTest::PutTime;

namespace
{

const int32_t c_lDay4 = 44244 + 2300 * 7 + 4; // day 4 of GPS week 2300

void FillBlock(ZELX_SAT_EPHEMERIS_COMMON& rBlock)
{
    const double adKepler[9] = {-0.5, 0.002, 5440.6, 1.25, 0.98, -1.5, 3.2e-9, -5.5e-9, -2.0e-10};
    const float afHarmonics[6] = {-2.0e-6f, 8.0e-6f, 150.25f, 12.5f, -6.0e-8f, 1.0e-8f};
    std::memcpy(rBlock.adKepler, adKepler, sizeof(adKepler));
    std::memcpy(rBlock.afHarmonics, afHarmonics, sizeof(afHarmonics));
}

void PutBlock(Bytes& rImage, size_t ulBase)
{
    Put(rImage, ulBase + 0, -0.5);
    Put(rImage, ulBase + 8, 0.002);
    Put(rImage, ulBase + 16, 5440.6);
    Put(rImage, ulBase + 24, 1.25);
    Put(rImage, ulBase + 32, 0.98);
    Put(rImage, ulBase + 40, -1.5);
    Put(rImage, ulBase + 48, 3.2e-9);
    Put(rImage, ulBase + 56, -5.5e-9);
    Put(rImage, ulBase + 64, -2.0e-10);
    Put(rImage, ulBase + 72, -2.0e-6f);
    Put(rImage, ulBase + 76, 8.0e-6f);
    Put(rImage, ulBase + 80, 150.25f);
    Put(rImage, ulBase + 84, 12.5f);
    Put(rImage, ulBase + 88, -6.0e-8f);
    Put(rImage, ulBase + 92, 1.0e-8f);
}

// A refused or failed load leaves the record as it was: its image is unchanged.
template <class R> void ExpectUntouched(const R& rBefore, const R& rAfter)
{
    EXPECT_EQ(EphTest::Save(rBefore, rBefore.getSize()), EphTest::Save(rAfter, rAfter.getSize()));
}

} // namespace

// ================================================================== QZSS

namespace
{

ZELX_SAT_EPHEMERIS_QZSS MakeQzss()
{
    ZELX_SAT_EPHEMERIS_QZSS st;
    FillBlock(st);
    st.uiSvId = 157;
    st.bValid = true;
    st.ulTransmissionTime = 340000;
    st.unGPSWeek = 2300;
    st.unUraIndex = 1;
    for (uint16_t i = 0; i < 5; ++i)
    {
        st.aunWords[i] = static_cast<uint16_t>(100 + i);
    }
    st.unIodc = 300;
    st.fGroupDelay = 2.5e-9f;
    st.ulToe = 345600;
    st.ulToc = 345600;
    st.afClock[0] = -3.0e-5f;
    st.afClock[1] = 1.0e-12f;
    st.afClock[2] = 0.0f;
    st.ucFitIntervalFlag = 0;
    st.unHealth = 1;
    st.setQzss1(1);
    st.setQzss2(2);
    st.setQzss3(0x0303);
    st.setQzss4(-4.5e-3);
    st.setQzss5(0x0505);
    st.setQzss6(0x06060606);
    return st;
}

ZELX_SAT_EPHEMERIS_QZSS QzssAt(uint32_t ulToe, uint16_t unIodc)
{
    ZELX_SAT_EPHEMERIS_QZSS st = MakeQzss();
    st.ulToe = ulToe;
    st.ulToc = ulToe;
    st.unIodc = unIodc;
    return st;
}

} // namespace

TEST(EphemerisQzss, DefaultsClearAndHealth)
{
    ZELX_SAT_EPHEMERIS_QZSS st;
    EXPECT_EQ(0, st.getQzss1());
    EXPECT_EQ(0, st.getQzss2());
    EXPECT_EQ(0, st.getQzss3());
    EXPECT_EQ(0.0, st.getQzss4());
    EXPECT_EQ(0, st.getQzss5());
    EXPECT_EQ(0u, st.getQzss6());
    EXPECT_EQ(0xFF, st.ucFitIntervalFlag);
    EXPECT_EQ(1, st.unHealth);
    EXPECT_EQ(164u, st.getSize());
    // Health 1 is healthy for QZSS and not for GPS.
    EXPECT_TRUE(st.isHealthy());
    ZELX_SAT_EPHEMERIS stGps;
    stGps.unHealth = 1;
    EXPECT_FALSE(stGps.isHealthy());
    st.unHealth = 2;
    EXPECT_FALSE(st.isHealthy());
    st.unHealth = 0;
    EXPECT_TRUE(st.isHealthy());
    const ZELX_SAT_EPHEMERIS_BASE& rBase = st;
    EXPECT_TRUE(rBase.isHealthy());
    st = MakeQzss();
    st.clear();
    EXPECT_TRUE(st == ZELX_SAT_EPHEMERIS_QZSS());
    EXPECT_EQ(0u, st.ulQzss6);
    EXPECT_EQ(0, st.unQzss5);
    EXPECT_FALSE(st.bValid);
}

TEST(EphemerisQzss, Equality)
{
    const ZELX_SAT_EPHEMERIS_QZSS a = MakeQzss();
    ZELX_SAT_EPHEMERIS_QZSS b = a;
    EXPECT_TRUE(a == b);
    b.unQzss5 = 1;
    b.ulQzss6 = 2;
    b.bValid = false;
    EXPECT_TRUE(a == b);
    b = a;
    b.unIodc = 301; // the GPS part
    EXPECT_TRUE(a != b);
    b = a;
    b.ucQzss1 = 9;
    EXPECT_FALSE(a == b);
    b = a;
    b.ucQzss2 = 9;
    EXPECT_FALSE(a == b);
    b = a;
    b.unQzss3 = 9;
    EXPECT_FALSE(a == b);
    b = a;
    b.dQzss4 = a.dQzss4 * (1.0 + 1e-13);
    EXPECT_FALSE(a == b);
    b.dQzss4 = a.dQzss4 * (1.0 + 1e-15);
    EXPECT_TRUE(a == b);
}

TEST(EphemerisQzss, GoldenImage)
{
    const ZELX_SAT_EPHEMERIS_QZSS st = MakeQzss();
    Bytes vecExpected(164, 0);
    Put<uint8_t>(vecExpected, 0, 3);
    Put<uint8_t>(vecExpected, 1, 1);
    Put<uint8_t>(vecExpected, 2, 2);
    Put<uint16_t>(vecExpected, 3, 0x0303);
    Put(vecExpected, 5, -4.5e-3);
    Put<uint16_t>(vecExpected, 13, 0x0505);
    Put<uint32_t>(vecExpected, 15, 0x06060606);
    // The GPS image from offset 19.
    Put<uint8_t>(vecExpected, 19 + 0, 157);
    Put<uint8_t>(vecExpected, 19 + 1, 1);
    Put<uint32_t>(vecExpected, 19 + 2, 340000);
    Put<uint16_t>(vecExpected, 19 + 6, 2300);
    Put<uint16_t>(vecExpected, 19 + 8, 1);
    Put<uint16_t>(vecExpected, 19 + 10, 100);
    Put<uint16_t>(vecExpected, 19 + 12, 101);
    Put<uint16_t>(vecExpected, 19 + 14, 102);
    Put<uint16_t>(vecExpected, 19 + 16, 103);
    Put<uint16_t>(vecExpected, 19 + 18, 104);
    Put<uint16_t>(vecExpected, 19 + 20, 300);
    Put(vecExpected, 19 + 22, 2.5e-9f);
    Put<uint32_t>(vecExpected, 19 + 26, 345600);
    Put<uint32_t>(vecExpected, 19 + 30, 345600);
    Put(vecExpected, 19 + 34, -3.0e-5f);
    Put(vecExpected, 19 + 38, 1.0e-12f);
    Put(vecExpected, 19 + 42, 0.0f);
    Put<uint8_t>(vecExpected, 19 + 46, 0);
    Put<uint16_t>(vecExpected, 19 + 47, 1);
    PutBlock(vecExpected, 19 + 49);

    CReportRecorder stRec;
    EXPECT_EQ(vecExpected, EphTest::Save(st, 164));
    ZELX_SAT_EPHEMERIS_QZSS stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stLoaded == st);
    EXPECT_EQ(0x0505, stLoaded.unQzss5);
    EXPECT_EQ(0x06060606u, stLoaded.ulQzss6);
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(340000u, stLoaded.ulTransmissionTime);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisQzss, WrongVersionRefused)
{
    Bytes vecImage = EphTest::Save(MakeQzss(), 164);
    ASSERT_EQ(164u, vecImage.size());
    CReportRecorder stRec;
    for (uint8_t ucVersion : {0, 2, 4, 0xFF})
    {
        stRec.Clear();
        vecImage[0] = ucVersion;
        ZELX_SAT_EPHEMERIS_QZSS stTarget;
        const ZELX_SAT_EPHEMERIS_QZSS stBefore = stTarget;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size()));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_QZSS) received old version.", stRec.Text());
        ExpectUntouched(stBefore, stTarget);
    }
    // The version is tested before the length.
    stRec.Clear();
    vecImage[0] = 2;
    ZELX_SAT_EPHEMERIS_QZSS stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 100));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_QZSS) received old version.", stRec.Text());
}

TEST(EphemerisQzss, ShortAndNullBuffers)
{
    const ZELX_SAT_EPHEMERIS_QZSS st = MakeQzss();
    CReportRecorder stRec;
    Bytes vecShort(163, 0x55);
    EXPECT_FALSE(st.saveData(vecShort.data(), 163));
    EXPECT_EQ(Bytes(163, 0x55), vecShort);
    EXPECT_FALSE(st.saveData(nullptr, 164));
    const Bytes vecImage = EphTest::Save(st, 164);
    ZELX_SAT_EPHEMERIS_QZSS stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 163));
    EXPECT_FALSE(stTarget.loadData(nullptr, 164));
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 0));
    ExpectUntouched(ZELX_SAT_EPHEMERIS_QZSS(), stTarget);
    ASSERT_EQ(5u, stRec.Count());
    for (const auto& rText : stRec.Texts())
    {
        EXPECT_EQ("false", rText);
    }
}

TEST(EphemerisQzssUpdate, Branches)
{
    CReportRecorder stRec;
    const uint32_t ulNoon = 4 * 86400 + 12 * 3600;
    ZELX_SAT_EPHEMERIS_QZSS stCur = QzssAt(ulNoon, 10);
    // 1. invalid new
    ZELX_SAT_EPHEMERIS_QZSS stNew = QzssAt(ulNoon + 3600, 11);
    stNew.bValid = false;
    EXPECT_FALSE(isNewEphemerisQzss(stCur, stNew));
    // 2. invalid held
    ZELX_SAT_EPHEMERIS_QZSS stInvalidCur = stCur;
    stInvalidCur.bValid = false;
    EXPECT_TRUE(isNewEphemerisQzss(stInvalidCur, QzssAt(ulNoon - 7200, 10)));
    // 3. health verdict differs, even for an older set
    stNew = QzssAt(ulNoon - 7200, 10);
    stNew.unHealth = 2;
    EXPECT_TRUE(isNewEphemerisQzss(stCur, stNew));
    // Health 0 and 1 share a verdict: no health change, but changed content
    // under the same issue, which is reported and not taken.
    stNew = QzssAt(ulNoon, 10);
    stNew.unHealth = 0;
    EXPECT_FALSE(isNewEphemerisQzss(stCur, stNew));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("rEphNew == rEphCurrent", stRec.Text());
    stRec.Clear();
    // 4. any earlier time is refused: no allowance as for GPS
    EXPECT_FALSE(isNewEphemerisQzss(stCur, QzssAt(ulNoon - 16, 11)));
    // 5. new issue
    EXPECT_TRUE(isNewEphemerisQzss(stCur, QzssAt(ulNoon, 11)));
    // 6. later time, same issue
    EXPECT_TRUE(isNewEphemerisQzss(stCur, QzssAt(ulNoon + 900, 10)));
    EXPECT_EQ(0u, stRec.Count());
    // 7. same time and issue: equal gives false silently...
    stNew = stCur;
    stNew.ulQzss6 = 99; // outside the equality
    EXPECT_FALSE(isNewEphemerisQzss(stCur, stNew));
    EXPECT_EQ(0u, stRec.Count());
    // ...changed content reports and still gives false.
    stNew = stCur;
    stNew.dQzss4 = 1.0;
    EXPECT_FALSE(isNewEphemerisQzss(stCur, stNew));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("rEphNew == rEphCurrent", stRec.Text());
}

TEST(EphemerisQzssUpdate, OrbitStoreScenario)
{
    CReportRecorder stRec;
    const uint32_t ulNoon = 4 * 86400 + 12 * 3600;
    ZELX_SAT_EPHEMERIS_QZSS stHeld;
    ZELX_SAT_EPHEMERIS_QZSS stRepeat = QzssAt(ulNoon, 10);
    stRepeat.ulTransmissionTime += 30;
    ZELX_SAT_EPHEMERIS_QZSS stUnhealthy = QzssAt(ulNoon + 3600, 11);
    stUnhealthy.unHealth = 0x3F;
    ZELX_SAT_EPHEMERIS_QZSS stInvalid = QzssAt(ulNoon + 7200, 12);
    stInvalid.bValid = false;
    const struct
    {
        ZELX_SAT_EPHEMERIS_QZSS stEph;
        bool bExpected;
        const char* szWhat;
    } astSteps[] = {
        {QzssAt(ulNoon, 10), true, "first set"},
        {stRepeat, false, "same set repeated"},
        {QzssAt(ulNoon, 11), true, "new issue of data"},
        {QzssAt(ulNoon + 3600, 11), true, "new time of ephemeris"},
        {stUnhealthy, true, "health change"},
        {stInvalid, false, "invalid new set"},
        {QzssAt(ulNoon + 7200, 12), true, "healthy again"},
        {QzssAt(ulNoon + 3600, 13), false, "older set"},
    };
    for (const auto& rStep : astSteps)
    {
        const bool bTaken = isNewEphemerisQzss(stHeld, rStep.stEph);
        EXPECT_EQ(rStep.bExpected, bTaken) << rStep.szWhat;
        if (bTaken)
        {
            stHeld = rStep.stEph;
        }
    }
    EXPECT_EQ(12, stHeld.unIodc);
    stHeld.bValid = false;
    EXPECT_TRUE(isNewEphemerisQzss(stHeld, QzssAt(ulNoon, 1)));
    EXPECT_EQ(0u, stRec.Count());
}

// ================================================================== Galileo

namespace
{

ZELX_SAT_EPHEMERIS_GALILEO MakeGalileo()
{
    ZELX_SAT_EPHEMERIS_GALILEO st(4);
    FillBlock(st);
    st.setSvId(60);
    st.setEphSource(1);
    st.setAux1(0x11);
    st.setIodNav(93);
    st.setSisaIndex(107);
    st.setHsE1b(0);
    st.setHsE5b(0);
    st.setHsE5a(0);
    st.setDvsE1b(0);
    st.setDvsE5b(0);
    st.setDvsE5a(0);
    st.setToe(345600);
    st.setToc(345600);
    st.setAf0(-5.5e-4);
    st.setAf1(-7.5e-12);
    st.setAf2(0.0);
    st.setBgdE5a(2.3e-9);
    st.setBgdE5b(2.6e-9);
    st.stRefTimeApprox.SetMjdDayMilliseconds(c_lDay4, 1000.0); // accuracy stays 1
    st.setPT1Time(1276, 345000);
    return st;
}

ZELX_SAT_EPHEMERIS_GALILEO GalAt(uint32_t ulToe, uint16_t unIod)
{
    ZELX_SAT_EPHEMERIS_GALILEO st = MakeGalileo();
    st.ulToe = ulToe;
    st.ulToc = ulToe;
    st.unIodNav = unIod;
    return st;
}

} // namespace

TEST(EphemerisGalileo, DefaultsAndConstructor)
{
    const ZELX_SAT_EPHEMERIS_GALILEO st;
    EXPECT_EQ(0u, st.ulNavType);
    EXPECT_EQ(0, st.uiSVID);
    EXPECT_EQ(POS_SAT_EPH_GAL_SRC_INVALID, st.uiEphSource);
    EXPECT_EQ(0, st.ucAux1);
    EXPECT_EQ(0, st.unIodNav);
    EXPECT_EQ(0, st.ucSisaIndex);
    EXPECT_EQ(1, st.ucHsE1b);
    EXPECT_EQ(1, st.ucHsE5b);
    EXPECT_EQ(1, st.ucHsE5a);
    EXPECT_EQ(0, st.ucDvsE1b);
    EXPECT_EQ(0, st.ucDvsE5b);
    EXPECT_EQ(0, st.ucDvsE5a);
    EXPECT_EQ(0u, st.ulToe);
    EXPECT_EQ(0.0, st.dBgdE5b);
    EXPECT_FALSE(st.stRefTimeApprox.IsSet());
    EXPECT_EQ(0, st.unPT1Week);
    EXPECT_EQ(0xFFFFFFu, st.ulPT1Tow);
    EXPECT_EQ(183u, st.getSize());
    EXPECT_FALSE(st.isHealthy());
    const ZELX_SAT_EPHEMERIS_GALILEO stFNav(5);
    EXPECT_EQ(5u, stFNav.ulNavType);
    EXPECT_EQ(1, stFNav.ucHsE5a);
}

TEST(EphemerisGalileo, ClearZeroesHealthAndStream)
{
    ZELX_SAT_EPHEMERIS_GALILEO st(3);
    EXPECT_EQ(1, st.ucHsE1b);
    st = MakeGalileo();
    st.ucHsE5a = 2;
    st.ucDvsE5b = 1;
    st.clear();
    EXPECT_EQ(0, st.ucHsE1b);
    EXPECT_EQ(0, st.ucHsE5b);
    EXPECT_EQ(0, st.ucHsE5a);
    EXPECT_EQ(0, st.ucDvsE5b);
    EXPECT_EQ(0u, st.ulNavType);
    EXPECT_EQ(0xFFFFFFu, st.ulPT1Tow);
    EXPECT_EQ(0, st.unPT1Week);
    EXPECT_EQ(0, st.uiEphSource);
    EXPECT_EQ(0, st.ucSisaIndex);
    EXPECT_FALSE(st.stRefTimeApprox.IsSet());
    EXPECT_EQ(0.0, st.adKepler[2]);
    EXPECT_EQ(0.0, st.dAf0);
    // Cleared and default records differ exactly in the signal health.
    ZELX_SAT_EPHEMERIS_GALILEO stDefault;
    EXPECT_FALSE(st == stDefault);
    stDefault.ucHsE1b = 0;
    stDefault.ucHsE5b = 0;
    stDefault.ucHsE5a = 0;
    EXPECT_TRUE(st == stDefault);
}

TEST(EphemerisGalileo, HealthByStream)
{
    ZELX_SAT_EPHEMERIS_GALILEO st = MakeGalileo();
    for (uint32_t ulType : {0u, 1u, 6u, 100u})
    {
        st.ulNavType = ulType;
        EXPECT_FALSE(st.isHealthy()) << ulType;
    }
    st.ulNavType = 2;
    EXPECT_TRUE(st.isHealthy());
    st.ucHsE5b = 1; // E5b does not count for kind 2
    st.ucHsE5a = 1;
    EXPECT_TRUE(st.isHealthy());
    st.ucDvsE1b = 1;
    EXPECT_FALSE(st.isHealthy());
    st = MakeGalileo();
    st.ulNavType = 3;
    st.ucHsE1b = 3;
    EXPECT_TRUE(st.isHealthy());
    st.ucDvsE5b = 1;
    EXPECT_FALSE(st.isHealthy());
    // Kind 4 needs both E1B and E5b clean.
    st = MakeGalileo();
    EXPECT_TRUE(st.isHealthy());
    st.ucHsE5a = 3; // E5a does not count
    EXPECT_TRUE(st.isHealthy());
    st.ucHsE5b = 1;
    EXPECT_FALSE(st.isHealthy());
    st = MakeGalileo();
    st.ucHsE1b = 1;
    EXPECT_FALSE(st.isHealthy());
    // F/NAV: E5a only.
    st = MakeGalileo();
    st.ulNavType = 5;
    st.ucHsE1b = 1;
    st.ucHsE5b = 1;
    EXPECT_TRUE(st.isHealthy());
    st.ucDvsE5a = 1;
    EXPECT_FALSE(st.isHealthy());
    // A SISA index of 255 makes any of them unhealthy.
    for (uint32_t ulType : {2u, 3u, 4u, 5u})
    {
        st = MakeGalileo();
        st.ulNavType = ulType;
        st.ucSisaIndex = 254;
        EXPECT_TRUE(st.isHealthy()) << ulType;
        st.ucSisaIndex = 255;
        EXPECT_FALSE(st.isHealthy()) << ulType;
    }
}

TEST(EphemerisGalileo, PackedHealth)
{
    ZELX_SAT_EPHEMERIS_GALILEO st;
    st.setHealthINav(0x3F);
    EXPECT_EQ(4u, st.ulNavType);
    EXPECT_EQ(0x3F, st.getHealthINav());
    EXPECT_EQ(1, st.ucDvsE1b);
    EXPECT_EQ(3, st.ucHsE1b);
    EXPECT_EQ(1, st.ucDvsE5b);
    EXPECT_EQ(3, st.ucHsE5b);
    EXPECT_EQ(0, st.ucDvsE5a);
    EXPECT_EQ(0, st.ucHsE5a);
    EXPECT_EQ(0, st.getHealthFNav());
    st.setHealthINav(0x12); // E1B health 1, E5b health 1
    EXPECT_EQ(0, st.ucDvsE1b);
    EXPECT_EQ(1, st.ucHsE1b);
    EXPECT_EQ(0, st.ucDvsE5b);
    EXPECT_EQ(1, st.ucHsE5b);
    EXPECT_EQ(0x12, st.getHealthINav());
    st.setHealthINav(0xC0); // only six bits count
    EXPECT_EQ(0, st.getHealthINav());
    EXPECT_TRUE(st.isHealthy());
    // F/NAV keeps the E5b fields.
    st.setHealthINav(0x18);
    st.setHealthFNav(7);
    EXPECT_EQ(5u, st.ulNavType);
    EXPECT_EQ(7, st.getHealthFNav());
    EXPECT_EQ(1, st.ucDvsE5a);
    EXPECT_EQ(3, st.ucHsE5a);
    EXPECT_EQ(0, st.ucDvsE1b);
    EXPECT_EQ(0, st.ucHsE1b);
    EXPECT_EQ(1, st.ucDvsE5b);
    EXPECT_EQ(1, st.ucHsE5b);
    EXPECT_EQ(0, st.getHealthINav());
    st.setHealthFNav(2);
    EXPECT_EQ(2, st.getHealthFNav());
    // Any I/NAV kind reads the I/NAV bits.
    for (uint32_t ulType : {1u, 2u, 3u})
    {
        st.setHealthINav(0x21);
        st.ulNavType = ulType;
        EXPECT_EQ(0x21, st.getHealthINav()) << ulType;
    }
    st.ulNavType = 0;
    EXPECT_EQ(0, st.getHealthINav());
    EXPECT_EQ(0, st.getHealthFNav());
}

TEST(EphemerisGalileo, StreamKindAndClockByKind)
{
    ZELX_SAT_EPHEMERIS_GALILEO st = MakeGalileo();
    st.dAf2 = 1.0e-18;
    const struct
    {
        uint32_t ulType;
        uint32_t ulKind;
    } astRows[] = {{0, 0}, {1, 2}, {2, 2}, {3, 2}, {4, 2}, {5, 1}, {6, 0}, {0xFFFFFFFF, 0}};
    for (const auto& rRow : astRows)
    {
        st.ulNavType = rRow.ulType;
        EXPECT_EQ(rRow.ulKind, static_cast<uint32_t>(st.getNavKind())) << rRow.ulType;
        const bool bFNav = rRow.ulKind == 1;
        const bool bINav = rRow.ulKind == 2;
        EXPECT_EQ(bFNav ? -5.5e-4 : 0.0, st.getAf0FNav());
        EXPECT_EQ(bFNav ? -7.5e-12 : 0.0, st.getAf1FNav());
        EXPECT_EQ(bFNav ? 1.0e-18 : 0.0, st.getAf2FNav());
        EXPECT_EQ(bINav ? -5.5e-4 : 0.0, st.getAf0INav());
        EXPECT_EQ(bINav ? -7.5e-12 : 0.0, st.getAf1INav());
        EXPECT_EQ(bINav ? 1.0e-18 : 0.0, st.getAf2INav());
        EXPECT_EQ(bFNav ? 345600u : 0u, st.getTocSecondsFNav());
        EXPECT_EQ(bINav ? 345600u : 0u, st.getTocSecondsINav());
    }
}

TEST(EphemerisGalileo, TocSecondsRoundAndWrap)
{
    ZELX_SAT_EPHEMERIS_GALILEO st = MakeGalileo();
    st.ulToc = 604799;
    st.setRefTimeApprox(GpsTime(2300, 604000.0));
    EXPECT_EQ(604799u, st.getTocSecondsINav());
    st.ulNavType = 5;
    EXPECT_EQ(604799u, st.getTocSecondsFNav());
}

TEST(EphemerisGalileo, Equality)
{
    const ZELX_SAT_EPHEMERIS_GALILEO a = MakeGalileo();
    ZELX_SAT_EPHEMERIS_GALILEO b = a;
    EXPECT_TRUE(a == b);
    // No direct part: the source, the reference time within the week, the PT1 pair.
    b.uiEphSource = 7;
    b.stRefTimeApprox.AddMilliseconds(3600000.0);
    b.setPT1Time(1, 2);
    EXPECT_TRUE(a == b);
    // A reference time in another week moves both reference times.
    b = a;
    b.stRefTimeApprox.AddDays(7);
    EXPECT_FALSE(a == b);

    auto differs = [&a](void (*fnChange)(ZELX_SAT_EPHEMERIS_GALILEO&))
    {
        ZELX_SAT_EPHEMERIS_GALILEO c = a;
        fnChange(c);
        return !(a == c) && (a != c);
    };
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.adKepler[0] = 1.0; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ulNavType = 2; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.uiSVID = 61; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucAux1 = 0; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.unIodNav = 94; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucSisaIndex = 108; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucHsE1b = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucHsE5b = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucHsE5a = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucDvsE1b = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucDvsE5b = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ucDvsE5a = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.dAf0 *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.dAf1 *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.dAf2 = 1e-20; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.dBgdE5a *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.dBgdE5b *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ulToc += 60; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GALILEO& c) { c.ulToe += 60; }));
    b = a;
    b.dAf0 *= 1.0 + 1e-15;
    EXPECT_TRUE(a == b);
}

TEST(EphemerisGalileo, GoldenImage)
{
    const ZELX_SAT_EPHEMERIS_GALILEO st = MakeGalileo();
    Bytes vecExpected(183, 0);
    Put<uint8_t>(vecExpected, 0, 5);
    Put<uint32_t>(vecExpected, 1, 4);
    Put<uint8_t>(vecExpected, 5, 60);
    Put<uint8_t>(vecExpected, 6, 1);
    Put<uint8_t>(vecExpected, 7, 0x11);
    Put<uint16_t>(vecExpected, 8, 93);
    Put<uint8_t>(vecExpected, 10, 107);
    Put<uint8_t>(vecExpected, 11, 0);
    Put<uint8_t>(vecExpected, 12, 0);
    Put<uint8_t>(vecExpected, 13, 0);
    Put<uint8_t>(vecExpected, 14, 0);
    Put<uint8_t>(vecExpected, 15, 0);
    Put<uint8_t>(vecExpected, 16, 0);
    Put<uint32_t>(vecExpected, 17, 345600);
    Put<uint32_t>(vecExpected, 21, 345600);
    Put(vecExpected, 25, -5.5e-4);
    Put(vecExpected, 33, -7.5e-12);
    Put(vecExpected, 41, 0.0);
    Put(vecExpected, 49, 2.3e-9);
    Put(vecExpected, 57, 2.6e-9);
    PutTime(vecExpected, 65, c_lDay4, 1000.0, 1);
    Put<uint16_t>(vecExpected, 81, 1276);
    Put<uint32_t>(vecExpected, 83, 345000);
    PutBlock(vecExpected, 87);

    CReportRecorder stRec;
    EXPECT_EQ(vecExpected, EphTest::Save(st, 183));
    ZELX_SAT_EPHEMERIS_GALILEO stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stLoaded == st);
    EXPECT_EQ(1, stLoaded.uiEphSource);
    EXPECT_EQ(c_lDay4, stLoaded.stRefTimeApprox.m_lMjdDay);
    EXPECT_EQ(1000.0, stLoaded.stRefTimeApprox.m_dMjdFractMilliseconds);
    EXPECT_EQ(1276, stLoaded.unPT1Week);
    EXPECT_EQ(345000u, stLoaded.ulPT1Tow);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGalileo, WrongVersionRefused)
{
    Bytes vecImage = EphTest::Save(MakeGalileo(), 183);
    ASSERT_EQ(183u, vecImage.size());
    CReportRecorder stRec;
    for (uint8_t ucVersion : {0, 4, 6, 0xFF})
    {
        stRec.Clear();
        vecImage[0] = ucVersion;
        ZELX_SAT_EPHEMERIS_GALILEO stTarget;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size()));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_GALILEO) received old version.", stRec.Text());
        ExpectUntouched(ZELX_SAT_EPHEMERIS_GALILEO(), stTarget);
    }
    // A Galileo image with version 2 and 100 bytes reports the old version.
    stRec.Clear();
    vecImage[0] = 2;
    ZELX_SAT_EPHEMERIS_GALILEO stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 100));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_GALILEO) received old version.", stRec.Text());
}

TEST(EphemerisGalileo, ShortAndNullBuffers)
{
    const ZELX_SAT_EPHEMERIS_GALILEO st = MakeGalileo();
    CReportRecorder stRec;
    Bytes vecShort(182, 0x55);
    EXPECT_FALSE(st.saveData(vecShort.data(), 182));
    EXPECT_EQ(Bytes(182, 0x55), vecShort);
    EXPECT_FALSE(st.saveData(nullptr, 183));
    const Bytes vecImage = EphTest::Save(st, 183);
    ZELX_SAT_EPHEMERIS_GALILEO stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 182));
    EXPECT_FALSE(stTarget.loadData(nullptr, 183));
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 0));
    ExpectUntouched(ZELX_SAT_EPHEMERIS_GALILEO(), stTarget);
    ASSERT_EQ(5u, stRec.Count());
    for (const auto& rText : stRec.Texts())
    {
        EXPECT_EQ("false", rText);
    }
}

TEST(EphemerisGalileoUpdate, Branches)
{
    CReportRecorder stRec;
    const uint32_t ulNoon = 4 * 86400 + 12 * 3600;
    const ZELX_SAT_EPHEMERIS_GALILEO stCur = GalAt(ulNoon, 100);
    // 1. a new record that holds no set
    ZELX_SAT_EPHEMERIS_GALILEO stNew = GalAt(ulNoon + 600, 101);
    stNew.uiEphSource = POS_SAT_EPH_GAL_SRC_INVALID;
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, stNew, false));
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, stNew, true));
    // 2. a held record that holds no set
    ZELX_SAT_EPHEMERIS_GALILEO stEmpty;
    EXPECT_TRUE(isNewEphemerisGalileo(stEmpty, GalAt(ulNoon - 3600, 99), false));
    // 3. health verdict differs, even when older
    stNew = GalAt(ulNoon - 3600, 99);
    stNew.ucSisaIndex = 255;
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, stNew, false));
    // 4. older time of ephemeris
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, GalAt(ulNoon - 600, 101), false));
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, GalAt(ulNoon - 600, 101), true));
    // 5. content only: whether the sets differ
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, stCur, true));
    stNew = stCur;
    stNew.dBgdE5a = 3.0e-9;
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, stNew, true));
    stNew = GalAt(ulNoon, 101);
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, stNew, true));
    // 6. issue of data differs
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, GalAt(ulNoon, 101), false));
    // 7. later time of ephemeris
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, GalAt(ulNoon + 600, 100), false));
    // 8. time of clock differs, either way
    stNew = stCur;
    stNew.ulToc = ulNoon + 600;
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, stNew, false));
    stNew.ulToc = ulNoon - 600;
    EXPECT_TRUE(isNewEphemerisGalileo(stCur, stNew, false));
    // 9. otherwise false, also for changed content, and without a report
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, stCur, false));
    stNew = stCur;
    stNew.dAf0 = 1.0e-3;
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, stNew, false));
    EXPECT_FALSE(isNewEphemerisGalileo(stCur, stNew)); // the default is not content-only
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGalileoUpdate, OrbitStoreScenario)
{
    CReportRecorder stRec;
    const uint32_t ulNoon = 4 * 86400 + 12 * 3600;
    ZELX_SAT_EPHEMERIS_GALILEO stHeld;
    ZELX_SAT_EPHEMERIS_GALILEO stRepeat = GalAt(ulNoon, 100);
    stRepeat.stRefTimeApprox.AddMilliseconds(600000.0); // received later, same set
    ZELX_SAT_EPHEMERIS_GALILEO stUnhealthy = GalAt(ulNoon + 600, 101);
    stUnhealthy.setHealthINav(0x02);
    ZELX_SAT_EPHEMERIS_GALILEO stInvalid = GalAt(ulNoon + 1200, 102);
    stInvalid.uiEphSource = POS_SAT_EPH_GAL_SRC_INVALID;
    const struct
    {
        ZELX_SAT_EPHEMERIS_GALILEO stEph;
        bool bExpected;
        const char* szWhat;
    } astSteps[] = {
        {GalAt(ulNoon, 100), true, "first set"},
        {stRepeat, false, "same set repeated"},
        {GalAt(ulNoon, 101), true, "new issue of data"},
        {GalAt(ulNoon + 600, 101), true, "new time of ephemeris"},
        {stUnhealthy, true, "health change"},
        {stInvalid, false, "invalid new set"},
        {GalAt(ulNoon + 1200, 102), true, "healthy again"},
        {GalAt(ulNoon + 600, 103), false, "older set"},
    };
    for (const auto& rStep : astSteps)
    {
        const bool bTaken = isNewEphemerisGalileo(stHeld, rStep.stEph, false);
        EXPECT_EQ(rStep.bExpected, bTaken) << rStep.szWhat;
        if (bTaken)
        {
            stHeld = rStep.stEph;
        }
    }
    EXPECT_EQ(102, stHeld.unIodNav);
    stHeld.uiEphSource = POS_SAT_EPH_GAL_SRC_INVALID;
    EXPECT_TRUE(isNewEphemerisGalileo(stHeld, GalAt(ulNoon, 1), false));
    EXPECT_EQ(0u, stRec.Count());
}

// ================================================================== BeiDou

namespace
{

ZELX_SAT_EPHEMERIS_BEIDOU MakeBeiDou()
{
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    FillBlock(st);
    st.setSvId(100);
    st.setValid(true);
    st.setAux1(0xA1A2A3A4);
    st.setGPSWeek(2300);
    st.setTowMs(345614000);
    st.setUra(2.8f);
    st.setAux2(0xB2);
    st.setClock(0, 4.25e-4);
    st.setClock(1, -1.5e-11);
    st.stToc.SetMjdDayMilliseconds(c_lDay4, 14000.0);
    st.setAux3(0, 1.0e-9f);
    st.setAux3(1, -2.0e-9f);
    st.setAux3(2, 3.0e-20f);
    st.setAux4(0xC4);
    st.stToe.SetMjdDayMilliseconds(c_lDay4, 14000.0);
    st.setHealth(0);
    return st;
}

// Times as minutes after the start of day 4.
ZELX_SAT_EPHEMERIS_BEIDOU BdsAt(uint32_t ulTocMinutes, uint32_t ulToeMinutes)
{
    ZELX_SAT_EPHEMERIS_BEIDOU st = MakeBeiDou();
    st.stToc.SetMjdDayMilliseconds(c_lDay4, ulTocMinutes * 60000.0);
    st.stToe.SetMjdDayMilliseconds(c_lDay4, ulToeMinutes * 60000.0);
    return st;
}

} // namespace

TEST(EphemerisBeiDou, DefaultsClearAndSlots)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_BEIDOU st;
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(1, st.ucHealth);
    EXPECT_FALSE(st.isHealthy());
    EXPECT_FALSE(st.stToc.IsSet());
    EXPECT_FALSE(st.stToe.IsSet());
    EXPECT_EQ(0.0f, st.fUra);
    EXPECT_EQ(176u, st.getSize());
    st = MakeBeiDou();
    EXPECT_TRUE(st.isHealthy());
    EXPECT_EQ(100, st.getSvId());
    EXPECT_EQ(8, st.getSatId().uiSatNumber);
    EXPECT_TRUE(st.getToe() == st.stToe);
    EXPECT_EQ(1, st.getUraIndex());
    st.clear();
    EXPECT_TRUE(st == ZELX_SAT_EPHEMERIS_BEIDOU());
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(0u, st.ulAux1);
    EXPECT_EQ(0, st.ucAux4);
    EXPECT_EQ(1, st.ucHealth);
    EXPECT_EQ(0u, stRec.Count());
    st.setClock(2, 1.0);
    st.setAux3(3, 1.0f);
    EXPECT_EQ(2u, stRec.Count());
}

TEST(EphemerisBeiDou, Equality)
{
    const ZELX_SAT_EPHEMERIS_BEIDOU a = MakeBeiDou();
    ZELX_SAT_EPHEMERIS_BEIDOU b = a;
    EXPECT_TRUE(a == b);
    // Fields that take no part.
    b.bValid = false;
    b.ulAux1 = 0;
    b.unGPSWeek = 0;
    b.ulTowMs = 0;
    b.ucAux2 = 0;
    b.ucAux4 = 0;
    EXPECT_TRUE(a == b);
    auto differs = [&a](void (*fnChange)(ZELX_SAT_EPHEMERIS_BEIDOU&))
    {
        ZELX_SAT_EPHEMERIS_BEIDOU c = a;
        fnChange(c);
        return !(a == c) && (a != c);
    };
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.adKepler[7] *= 1.0001; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.uiSvId = 101; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.ucHealth = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.fUra = 2.81f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.adClock[0] *= 1.0 + 1e-5; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.adClock[1] *= 1.0 + 1e-5; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.stToc.AddMilliseconds(1e-5); }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.afAux3[0] = 1.1e-9f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.afAux3[1] = 1.1e-9f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.afAux3[2] = 1.1e-9f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_BEIDOU& c) { c.stToe.AddMilliseconds(1e-5); }));
    // The clock terms at 1e-6, relative.
    b = a;
    b.adClock[0] *= 1.0 + 1e-7;
    EXPECT_TRUE(a == b);
    // The times within 1e-9 s, absolute, whatever the accuracy fields say.
    b = a;
    b.stToc.AddMilliseconds(5e-7);
    b.stToe.AddMilliseconds(-5e-7);
    EXPECT_TRUE(a == b);
    b = a;
    b.stToc.SetAccuracy(MJDACC_HOUR);
    b.stToc.AddMilliseconds(2e-6);
    EXPECT_FALSE(a == b);
    b = a;
    b.stToe.SetAccuracy(MJDACC_EXACT);
    EXPECT_TRUE(a == b);
}

TEST(EphemerisBeiDou, GoldenImage)
{
    const ZELX_SAT_EPHEMERIS_BEIDOU st = MakeBeiDou();
    Bytes vecExpected(176, 0);
    Put<uint8_t>(vecExpected, 0, 6);
    Put<uint8_t>(vecExpected, 1, 100);
    Put<uint8_t>(vecExpected, 2, 1);
    Put<uint32_t>(vecExpected, 3, 0xA1A2A3A4);
    Put<uint16_t>(vecExpected, 7, 2300);
    Put<uint32_t>(vecExpected, 9, 345614000);
    Put(vecExpected, 13, 2.8f);
    Put<uint8_t>(vecExpected, 17, 0xB2);
    Put(vecExpected, 18, 4.25e-4);
    Put(vecExpected, 26, -1.5e-11);
    PutTime(vecExpected, 34, c_lDay4, 14000.0, 1);
    Put(vecExpected, 50, 1.0e-9f);
    Put(vecExpected, 54, -2.0e-9f);
    Put(vecExpected, 58, 3.0e-20f);
    Put<uint8_t>(vecExpected, 62, 0xC4);
    PutTime(vecExpected, 63, c_lDay4, 14000.0, 1);
    Put<uint8_t>(vecExpected, 79, 0);
    PutBlock(vecExpected, 80);

    CReportRecorder stRec;
    EXPECT_EQ(vecExpected, EphTest::Save(st, 176));
    ZELX_SAT_EPHEMERIS_BEIDOU stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stLoaded == st);
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(0xA1A2A3A4u, stLoaded.ulAux1);
    EXPECT_EQ(2300, stLoaded.unGPSWeek);
    EXPECT_EQ(345614000u, stLoaded.ulTowMs);
    EXPECT_EQ(0xB2, stLoaded.ucAux2);
    EXPECT_EQ(0xC4, stLoaded.ucAux4);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisBeiDou, WrongVersionRefused)
{
    Bytes vecImage = EphTest::Save(MakeBeiDou(), 176);
    ASSERT_EQ(176u, vecImage.size());
    CReportRecorder stRec;
    for (uint8_t ucVersion : {0, 5, 7, 0xFF})
    {
        stRec.Clear();
        vecImage[0] = ucVersion;
        ZELX_SAT_EPHEMERIS_BEIDOU stTarget;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size()));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_BEIDOU) received old version.", stRec.Text());
        ExpectUntouched(ZELX_SAT_EPHEMERIS_BEIDOU(), stTarget);
    }
    stRec.Clear();
    vecImage[0] = 5;
    ZELX_SAT_EPHEMERIS_BEIDOU stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 100));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_BEIDOU) received old version.", stRec.Text());
}

TEST(EphemerisBeiDou, ShortAndNullBuffers)
{
    const ZELX_SAT_EPHEMERIS_BEIDOU st = MakeBeiDou();
    CReportRecorder stRec;
    Bytes vecShort(175, 0x55);
    EXPECT_FALSE(st.saveData(vecShort.data(), 175));
    EXPECT_EQ(Bytes(175, 0x55), vecShort);
    EXPECT_FALSE(st.saveData(nullptr, 176));
    const Bytes vecImage = EphTest::Save(st, 176);
    ZELX_SAT_EPHEMERIS_BEIDOU stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 175));
    EXPECT_FALSE(stTarget.loadData(nullptr, 176));
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 0));
    ExpectUntouched(ZELX_SAT_EPHEMERIS_BEIDOU(), stTarget);
    ASSERT_EQ(5u, stRec.Count());
    for (const auto& rText : stRec.Texts())
    {
        EXPECT_EQ("false", rText);
    }
}

TEST(EphemerisBeiDouUpdate, Branches)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS_BEIDOU stCur = BdsAt(600, 600);
    // 1. invalid new
    ZELX_SAT_EPHEMERIS_BEIDOU stNew = BdsAt(660, 660);
    stNew.bValid = false;
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, stNew));
    // 2. invalid held
    ZELX_SAT_EPHEMERIS_BEIDOU stInvalid = stCur;
    stInvalid.bValid = false;
    EXPECT_TRUE(isNewEphemerisBeiDou(stInvalid, BdsAt(540, 540)));
    // 3. health verdict differs, even when older
    stNew = BdsAt(540, 540);
    stNew.ucHealth = 1;
    EXPECT_TRUE(isNewEphemerisBeiDou(stCur, stNew));
    // 4. later time of clock, whatever the time of ephemeris
    EXPECT_TRUE(isNewEphemerisBeiDou(stCur, BdsAt(660, 660)));
    EXPECT_TRUE(isNewEphemerisBeiDou(stCur, BdsAt(660, 540)));
    // 5. time of ephemeris not later: false
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, stCur));
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, BdsAt(600, 540)));
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, BdsAt(540, 660 - 60)));
    stNew = stCur;
    stNew.adClock[0] = 1.0; // changed content alone is not taken
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, stNew));
    EXPECT_EQ(0u, stRec.Count());
    // 6. later time of ephemeris under the same time of clock: reported, false
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, BdsAt(600, 660)));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("rEphNew.stToe <= rEphCurrent.stToe", stRec.Text());
    stRec.Clear();
    EXPECT_FALSE(isNewEphemerisBeiDou(stCur, BdsAt(540, 660)));
    EXPECT_EQ(1u, stRec.Count());
}

TEST(EphemerisBeiDouUpdate, OrbitStoreScenario)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_BEIDOU stHeld;
    ZELX_SAT_EPHEMERIS_BEIDOU stRepeat = BdsAt(0, 0);
    stRepeat.ulTowMs += 6000; // received 6 s later
    ZELX_SAT_EPHEMERIS_BEIDOU stUnhealthy = BdsAt(60, 60);
    stUnhealthy.ucHealth = 1;
    ZELX_SAT_EPHEMERIS_BEIDOU stInvalid = BdsAt(120, 120);
    stInvalid.bValid = false;
    const struct
    {
        ZELX_SAT_EPHEMERIS_BEIDOU stEph;
        bool bExpected;
        const char* szWhat;
    } astSteps[] = {
        {BdsAt(0, 0), true, "first set"},
        {stRepeat, false, "same set repeated"},
        {BdsAt(60, 60), true, "new time of clock (new issue of data)"},
        {stUnhealthy, true, "health change"},
        {stInvalid, false, "invalid new set"},
        {BdsAt(120, 120), true, "healthy again, later"},
        {BdsAt(60, 60), false, "older set"},
    };
    for (const auto& rStep : astSteps)
    {
        const bool bTaken = isNewEphemerisBeiDou(stHeld, rStep.stEph);
        EXPECT_EQ(rStep.bExpected, bTaken) << rStep.szWhat;
        if (bTaken)
        {
            stHeld = rStep.stEph;
        }
    }
    // 02:00 GPS time of day 4 is 14 s earlier in BeiDou time: step 489 of the week, 9 of the cycle.
    EXPECT_EQ(9u, stHeld.getIod());
    EXPECT_EQ(0u, stRec.Count());
    // A new time of ephemeris alone is reported and not taken.
    EXPECT_FALSE(isNewEphemerisBeiDou(stHeld, BdsAt(120, 180)));
    EXPECT_EQ(1u, stRec.Count());
    stHeld.bValid = false;
    EXPECT_TRUE(isNewEphemerisBeiDou(stHeld, BdsAt(0, 0)));
}

// ================================================================== NavIC

namespace
{

ZELX_SAT_EPHEMERIS_NAVIC MakeNavic()
{
    ZELX_SAT_EPHEMERIS_NAVIC st;
    FillBlock(st);
    st.setPrn(188);
    st.setAux1(0x01020304);
    st.setValid(true);
    st.setClock(0, 1.25e-4);
    st.setClock(1, 2.5e-12);
    st.setClock(2, -1.0e-18);
    st.setUra(4.0f);
    st.stToc.SetMjdDayMilliseconds(c_lDay4, 7200000.0);
    st.setAux2(-9.5e-9);
    st.setIodec(77);
    st.setHealthFlag1(0);
    st.setHealthFlag2(1);
    st.stToe.SetMjdDayMilliseconds(c_lDay4, 7200000.0);
    st.setAlertFlag(0);
    st.setAux3(0x33);
    st.setPT1Time(1276, 352800);
    return st;
}

ZELX_SAT_EPHEMERIS_NAVIC NavicAt(uint32_t ulTocMinutes, uint32_t ulToeMinutes)
{
    ZELX_SAT_EPHEMERIS_NAVIC st = MakeNavic();
    st.stToc.SetMjdDayMilliseconds(c_lDay4, ulTocMinutes * 60000.0);
    st.stToe.SetMjdDayMilliseconds(c_lDay4, ulToeMinutes * 60000.0);
    return st;
}

} // namespace

TEST(EphemerisNavic, DefaultsClearAndHealth)
{
    ZELX_SAT_EPHEMERIS_NAVIC st;
    EXPECT_EQ(0u, st.ulPrn);
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(1, st.ucAlertFlag);
    EXPECT_TRUE(st.isAlert());
    EXPECT_TRUE(st.isFlag1Clear());
    EXPECT_TRUE(st.isFlag2Clear());
    EXPECT_FALSE(st.isHealthy());
    EXPECT_EQ(0u, st.ulPT1Tow);
    EXPECT_EQ(185u, st.getSize());
    st.ucAlertFlag = 0;
    EXPECT_TRUE(st.isHealthy());
    st.ucAlertFlag = 2; // only 1 means do not use
    EXPECT_TRUE(st.isHealthy());
    EXPECT_FALSE(st.isAlert());
    st.ucHealthFlag2 = 1; // flag 2 takes no part
    EXPECT_FALSE(st.isFlag2Clear());
    EXPECT_TRUE(st.isHealthy());
    st.ucHealthFlag1 = 1;
    EXPECT_FALSE(st.isFlag1Clear());
    EXPECT_FALSE(st.isHealthy());
    st = MakeNavic();
    EXPECT_EQ(77u, st.getIod());
    EXPECT_EQ(188, st.getSvId());
    EXPECT_EQ(3, st.getSatId().uiSatNumber);
    EXPECT_TRUE(st.getToe() == st.stToe);
    EXPECT_EQ(2, st.getUraIndex());
    st.clear();
    EXPECT_TRUE(st == ZELX_SAT_EPHEMERIS_NAVIC());
    EXPECT_EQ(1, st.ucAlertFlag);
    EXPECT_EQ(0u, st.ulPT1Tow);
}

TEST(EphemerisNavic, Equality)
{
    const ZELX_SAT_EPHEMERIS_NAVIC a = MakeNavic();
    EXPECT_TRUE(a == ZELX_SAT_EPHEMERIS_NAVIC(a));
    auto differs = [&a](void (*fnChange)(ZELX_SAT_EPHEMERIS_NAVIC&))
    {
        ZELX_SAT_EPHEMERIS_NAVIC c = a;
        fnChange(c);
        return !(a == c) && (a != c);
    };
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.afHarmonics[0] = 1.0f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ulPrn = 189; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ulAux1 = 0; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.bValid = false; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.adClock[0] *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.adClock[1] *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.adClock[2] *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.fUra = 4.001f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.stToc.AddMilliseconds(1.0); }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.dAux2 *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ucIodec = 78; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ucHealthFlag1 = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ucHealthFlag2 = 0; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.stToe.AddMilliseconds(1.0); }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ucAlertFlag = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ucAux3 = 0; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.unPT1Week = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_NAVIC& c) { c.ulPT1Tow = 1; }));
    // Times compare with their own tolerance: a microsecond apart is equal.
    ZELX_SAT_EPHEMERIS_NAVIC b = a;
    b.stToc.AddMilliseconds(1e-7);
    EXPECT_TRUE(a == b);
}

TEST(EphemerisNavic, GoldenImage)
{
    const ZELX_SAT_EPHEMERIS_NAVIC st = MakeNavic();
    Bytes vecExpected(185, 0);
    Put<uint8_t>(vecExpected, 0, 3);
    Put<uint32_t>(vecExpected, 1, 188);
    Put<uint32_t>(vecExpected, 5, 0x01020304);
    Put<uint8_t>(vecExpected, 9, 1);
    Put(vecExpected, 10, 1.25e-4);
    Put(vecExpected, 18, 2.5e-12);
    Put(vecExpected, 26, -1.0e-18);
    Put(vecExpected, 34, 4.0f);
    PutTime(vecExpected, 38, c_lDay4, 7200000.0, 1);
    Put(vecExpected, 54, -9.5e-9);
    Put<uint8_t>(vecExpected, 62, 77);
    Put<uint8_t>(vecExpected, 63, 0);
    Put<uint8_t>(vecExpected, 64, 1);
    PutTime(vecExpected, 65, c_lDay4, 7200000.0, 1);
    Put<uint8_t>(vecExpected, 81, 0);
    Put<uint8_t>(vecExpected, 82, 0x33);
    Put<uint16_t>(vecExpected, 83, 1276);
    Put<uint32_t>(vecExpected, 85, 352800);
    PutBlock(vecExpected, 89);

    CReportRecorder stRec;
    EXPECT_EQ(vecExpected, EphTest::Save(st, 185));
    ZELX_SAT_EPHEMERIS_NAVIC stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stLoaded == st);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisNavic, LengthBeforeVersion)
{
    Bytes vecImage = EphTest::Save(MakeNavic(), 185);
    ASSERT_EQ(185u, vecImage.size());
    CReportRecorder stRec;
    vecImage[0] = 2;
    ZELX_SAT_EPHEMERIS_NAVIC stTarget;
    // A NavIC image with version 2 and 100 bytes reports "false".
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 100));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("false", stRec.Text());
    // At full length the version is refused.
    for (uint8_t ucVersion : {0, 2, 4, 0xFF})
    {
        stRec.Clear();
        vecImage[0] = ucVersion;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), vecImage.size()));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("loadData(ZELX_SAT_EPHEMERIS_NAVIC) received old version.", stRec.Text());
    }
    ExpectUntouched(ZELX_SAT_EPHEMERIS_NAVIC(), stTarget);
}

TEST(EphemerisNavic, ShortAndNullBuffers)
{
    const ZELX_SAT_EPHEMERIS_NAVIC st = MakeNavic();
    CReportRecorder stRec;
    Bytes vecShort(184, 0x55);
    EXPECT_FALSE(st.saveData(vecShort.data(), 184));
    EXPECT_EQ(Bytes(184, 0x55), vecShort);
    EXPECT_FALSE(st.saveData(nullptr, 185));
    const Bytes vecImage = EphTest::Save(st, 185);
    ZELX_SAT_EPHEMERIS_NAVIC stTarget;
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 184));
    EXPECT_FALSE(stTarget.loadData(nullptr, 185));
    EXPECT_FALSE(stTarget.loadData(vecImage.data(), 0));
    ExpectUntouched(ZELX_SAT_EPHEMERIS_NAVIC(), stTarget);
    ASSERT_EQ(5u, stRec.Count());
    for (const auto& rText : stRec.Texts())
    {
        EXPECT_EQ("false", rText);
    }
}

TEST(EphemerisNavicUpdate, Branches)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS_NAVIC stCur = NavicAt(600, 600);
    // 1. invalid new
    ZELX_SAT_EPHEMERIS_NAVIC stNew = NavicAt(660, 660);
    stNew.bValid = false;
    EXPECT_FALSE(isNewEphemerisNavic(stCur, stNew));
    // 2. invalid held
    ZELX_SAT_EPHEMERIS_NAVIC stInvalid = stCur;
    stInvalid.bValid = false;
    EXPECT_TRUE(isNewEphemerisNavic(stInvalid, NavicAt(540, 540)));
    // 3. health verdict differs (the alert flag), even when older
    stNew = NavicAt(540, 540);
    stNew.ucAlertFlag = 1;
    EXPECT_TRUE(isNewEphemerisNavic(stCur, stNew));
    // 4. later time of clock
    EXPECT_TRUE(isNewEphemerisNavic(stCur, NavicAt(660, 540)));
    // 5. otherwise: whether the time of ephemeris is later
    EXPECT_TRUE(isNewEphemerisNavic(stCur, NavicAt(600, 660)));
    EXPECT_TRUE(isNewEphemerisNavic(stCur, NavicAt(540, 660)));
    EXPECT_FALSE(isNewEphemerisNavic(stCur, NavicAt(600, 600)));
    EXPECT_FALSE(isNewEphemerisNavic(stCur, NavicAt(600, 540)));
    stNew = stCur;
    stNew.ucIodec = 78; // a new issue alone is not taken
    EXPECT_FALSE(isNewEphemerisNavic(stCur, stNew));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisNavicUpdate, OrbitStoreScenario)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_NAVIC stHeld;
    ZELX_SAT_EPHEMERIS_NAVIC stUnhealthy = NavicAt(120, 120);
    stUnhealthy.ucHealthFlag1 = 1;
    ZELX_SAT_EPHEMERIS_NAVIC stInvalid = NavicAt(240, 240);
    stInvalid.bValid = false;
    ZELX_SAT_EPHEMERIS_NAVIC stNewIod = NavicAt(0, 0);
    stNewIod.ucIodec = 78;
    const struct
    {
        ZELX_SAT_EPHEMERIS_NAVIC stEph;
        bool bExpected;
        const char* szWhat;
    } astSteps[] = {
        {NavicAt(0, 0), true, "first set"},
        {NavicAt(0, 0), false, "same set repeated"},
        {stNewIod, false, "new issue of data under the same times"},
        {NavicAt(0, 120), true, "new time of ephemeris"},
        {NavicAt(120, 120), true, "new time of clock"},
        {stUnhealthy, true, "health change"},
        {stInvalid, false, "invalid new set"},
        {NavicAt(240, 240), true, "healthy again"},
        {NavicAt(120, 120), false, "older set"},
    };
    for (const auto& rStep : astSteps)
    {
        const bool bTaken = isNewEphemerisNavic(stHeld, rStep.stEph);
        EXPECT_EQ(rStep.bExpected, bTaken) << rStep.szWhat;
        if (bTaken)
        {
            stHeld = rStep.stEph;
        }
    }
    EXPECT_TRUE(stHeld.stToe == NavicAt(240, 240).stToe);
    stHeld.bValid = false;
    EXPECT_TRUE(isNewEphemerisNavic(stHeld, NavicAt(0, 0)));
    EXPECT_EQ(0u, stRec.Count());
}

// ================================================================== nasty images

namespace
{

// Loads every truncation of a valid image (all must fail) and a run of random
// images with the right version byte (all must load, write back the same
// bytes apart from bools, and stay usable).
template <class R>
void ExerciseImages(const R& rSample, std::initializer_list<size_t> lstBoolOffsets, bool bVersioned)
{
    CReportRecorder stRec; // swallows the reports of the garbage below
    const size_t ulSize = static_cast<size_t>(rSample.getSize());
    const Bytes vecImage = EphTest::Save(rSample, ulSize);
    ASSERT_EQ(ulSize, vecImage.size());
    for (size_t ulLength = 0; ulLength < ulSize; ++ulLength)
    {
        R stTarget;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), ulLength)) << ulLength;
    }
    uint32_t ulSeed = 12345u;
    for (int iRun = 0; iRun < 300; ++iRun)
    {
        Bytes vecRandom(ulSize + 7);
        for (unsigned char& ruc : vecRandom)
        {
            ulSeed = ulSeed * 1664525u + 1013904223u;
            ruc = static_cast<unsigned char>(ulSeed >> 24);
        }
        if (bVersioned)
        {
            vecRandom[0] = vecImage[0];
        }
        R stTarget;
        ASSERT_TRUE(stTarget.loadData(vecRandom.data(), vecRandom.size()));
        Bytes vecExpected(vecRandom.begin(), vecRandom.begin() + static_cast<std::ptrdiff_t>(ulSize));
        for (size_t ulOffset : lstBoolOffsets)
        {
            vecExpected[ulOffset] = vecExpected[ulOffset] != 0 ? 1 : 0;
        }
        EXPECT_EQ(vecExpected, EphTest::Save(stTarget, ulSize));
        // Whatever was read can be asked and compared.
        if constexpr (std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, R>::value)
        {
            (void)stTarget.getSatId();
            (void)stTarget.getToe();
            (void)stTarget.getIod();
            (void)stTarget.isHealthy();
            (void)stTarget.getPrn();
        }
        (void)(stTarget == stTarget);
        R stCopy = stTarget;
        (void)(stCopy != stTarget);
    }
}

} // namespace

TEST(EphemerisImages, TruncatedAndRandomImages)
{
    ExerciseImages(MakeQzss(), {19 + 1}, true);
    ExerciseImages(MakeGalileo(), {}, true);
    ExerciseImages(MakeBeiDou(), {2}, true);
    ExerciseImages(MakeNavic(), {9}, true);
    ZELX_SAT_EPHEMERIS stGps = MakeQzss();
    ExerciseImages(stGps, {1}, false);
    ZELX_SAT_EPHEMERIS_GLONASS stGlo;
    stGlo.bValid = true;
    ExerciseImages(stGlo, {8, 9}, false);
    ExerciseImages(ZELX_SAT_EPHEMERIS_COMMON(), {}, false);
}

TEST(EphemerisImages, GarbageSetsThroughTheRules)
{
    CReportRecorder stRec;
    uint32_t ulSeed = 777u;
    auto next = [&ulSeed]()
    {
        ulSeed = ulSeed * 1664525u + 1013904223u;
        return ulSeed;
    };
    for (int iRun = 0; iRun < 300; ++iRun)
    {
        Bytes vecRandom(200);
        for (unsigned char& ruc : vecRandom)
        {
            ruc = static_cast<unsigned char>(next() >> 24);
        }
        vecRandom[0] = 5;
        ZELX_SAT_EPHEMERIS_GALILEO stGal;
        ASSERT_TRUE(stGal.loadData(vecRandom.data(), vecRandom.size()));
        (void)stGal.getToc();
        (void)stGal.getPT1Time();
        (void)stGal.getSisa();
        (void)stGal.getTocSecondsINav();
        (void)isNewEphemerisGalileo(MakeGalileo(), stGal, iRun % 2 == 0);
        vecRandom[0] = 6;
        ZELX_SAT_EPHEMERIS_BEIDOU stBds;
        ASSERT_TRUE(stBds.loadData(vecRandom.data(), vecRandom.size()));
        (void)stBds.getBdsWeek();
        (void)stBds.getUraIndex();
        (void)isNewEphemerisBeiDou(MakeBeiDou(), stBds);
        (void)isNewEphemerisBeiDou(stBds, MakeBeiDou());
        vecRandom[0] = 3;
        ZELX_SAT_EPHEMERIS_NAVIC stIrn;
        ASSERT_TRUE(stIrn.loadData(vecRandom.data(), vecRandom.size()));
        (void)stIrn.getPT1Time();
        (void)stIrn.getCurveFitSeconds();
        (void)isNewEphemerisNavic(MakeNavic(), stIrn);
        ZELX_SAT_EPHEMERIS_QZSS stQzs;
        ASSERT_TRUE(stQzs.loadData(vecRandom.data(), vecRandom.size()));
        (void)stQzs.getFitIntervalHours();
        (void)stQzs.getUra();
        (void)isNewEphemerisQzss(MakeQzss(), stQzs);
        (void)isNewEphemerisQzss(stQzs, MakeQzss());
        ZELX_SAT_EPHEMERIS stGps;
        ASSERT_TRUE(stGps.loadData(vecRandom.data(), vecRandom.size()));
        (void)isNewEphemerisGps(stGps, MakeQzss());
        (void)isNewEphemerisGps(MakeQzss(), stGps);
        (void)ZELX_SAT_EPHEMERIS_BASE::checkValidity(static_cast<EZelSatSystem>(next() % 9), stGps.getToe(),
                                                     stBds.stToe);
        (void)ZELX_SAT_EPHEMERIS::checkValidity(stIrn.stToc, stBds.stToc, next());
    }
    EXPECT_GT(stRec.Count(), 0u);
}
