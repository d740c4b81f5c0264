// QZSS, Galileo, BeiDou and NavIC ephemerides: health rules, versioned
// images, equality and the update decision of each, branch by branch.

#include "test_ephemeris_support.h"

#include <gtest/gtest.h>

using namespace ZELN;
using EphTest::Bytes;
using EphTest::CReportRecorder;
using EphTest::GpsTime;
using ZelSample::BeiDouEphemeris;
using ZelSample::c_lEphDay4;
using ZelSample::GalileoEphemeris;
using ZelSample::NavicEphemeris;
using ZelSample::QzssEphemeris;

// ================================================================== QZSS

namespace
{

ZELX_SAT_EPHEMERIS_QZSS QzssAt(uint32_t ulToe, uint16_t unIodc)
{
    ZELX_SAT_EPHEMERIS_QZSS st = QzssEphemeris();
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
    st = QzssEphemeris();
    st.clear();
    EXPECT_TRUE(st == ZELX_SAT_EPHEMERIS_QZSS());
    EXPECT_EQ(0u, st.ulQzss6);
    EXPECT_EQ(0, st.unQzss5);
    EXPECT_FALSE(st.bValid);
}

TEST(EphemerisQzss, Equality)
{
    const ZELX_SAT_EPHEMERIS_QZSS a = QzssEphemeris();
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

// The fields outside the equality are in the image too.
TEST(EphemerisQzss, ImageCarriesFieldsOutsideTheEquality)
{
    CReportRecorder stRec;
    const Bytes vecGolden = EphTest::GoldenQzss();
    ZELX_SAT_EPHEMERIS_QZSS stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecGolden.data(), vecGolden.size()));
    EXPECT_EQ(0x0505, stLoaded.unQzss5);
    EXPECT_EQ(0x06060606u, stLoaded.ulQzss6);
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(340000u, stLoaded.ulTransmissionTime);
    EXPECT_EQ(0u, stRec.Count());
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

ZELX_SAT_EPHEMERIS_GALILEO GalAt(uint32_t ulToe, uint16_t unIod)
{
    ZELX_SAT_EPHEMERIS_GALILEO st = GalileoEphemeris();
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
    st = GalileoEphemeris();
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
    ZELX_SAT_EPHEMERIS_GALILEO st = GalileoEphemeris();
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
    st = GalileoEphemeris();
    st.ulNavType = 3;
    st.ucHsE1b = 3;
    EXPECT_TRUE(st.isHealthy());
    st.ucDvsE5b = 1;
    EXPECT_FALSE(st.isHealthy());
    // Kind 4 needs both E1B and E5b clean.
    st = GalileoEphemeris();
    EXPECT_TRUE(st.isHealthy());
    st.ucHsE5a = 3; // E5a does not count
    EXPECT_TRUE(st.isHealthy());
    st.ucHsE5b = 1;
    EXPECT_FALSE(st.isHealthy());
    st = GalileoEphemeris();
    st.ucHsE1b = 1;
    EXPECT_FALSE(st.isHealthy());
    // F/NAV: E5a only.
    st = GalileoEphemeris();
    st.ulNavType = 5;
    st.ucHsE1b = 1;
    st.ucHsE5b = 1;
    EXPECT_TRUE(st.isHealthy());
    st.ucDvsE5a = 1;
    EXPECT_FALSE(st.isHealthy());
    // A SISA index of 255 makes any of them unhealthy.
    for (uint32_t ulType : {2u, 3u, 4u, 5u})
    {
        st = GalileoEphemeris();
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
    ZELX_SAT_EPHEMERIS_GALILEO st = GalileoEphemeris();
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
    ZELX_SAT_EPHEMERIS_GALILEO st = GalileoEphemeris();
    st.ulToc = 604799;
    st.setRefTimeApprox(GpsTime(2300, 604000.0));
    EXPECT_EQ(604799u, st.getTocSecondsINav());
    st.ulNavType = 5;
    EXPECT_EQ(604799u, st.getTocSecondsFNav());
}

TEST(EphemerisGalileo, Equality)
{
    const ZELX_SAT_EPHEMERIS_GALILEO a = GalileoEphemeris();
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

// The fields outside the equality are in the image too.
TEST(EphemerisGalileo, ImageCarriesFieldsOutsideTheEquality)
{
    CReportRecorder stRec;
    const Bytes vecGolden = EphTest::GoldenGalileo();
    ZELX_SAT_EPHEMERIS_GALILEO stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecGolden.data(), vecGolden.size()));
    EXPECT_EQ(1, stLoaded.uiEphSource);
    EXPECT_EQ(c_lEphDay4, stLoaded.stRefTimeApprox.m_lMjdDay);
    EXPECT_EQ(1000.0, stLoaded.stRefTimeApprox.m_dMjdFractMilliseconds);
    EXPECT_EQ(1276, stLoaded.unPT1Week);
    EXPECT_EQ(345000u, stLoaded.ulPT1Tow);
    EXPECT_EQ(0u, stRec.Count());
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

// Times as minutes after the start of day 4.
ZELX_SAT_EPHEMERIS_BEIDOU BdsAt(uint32_t ulTocMinutes, uint32_t ulToeMinutes)
{
    ZELX_SAT_EPHEMERIS_BEIDOU st = BeiDouEphemeris();
    st.stToc.SetMjdDayMilliseconds(c_lEphDay4, ulTocMinutes * 60000.0);
    st.stToe.SetMjdDayMilliseconds(c_lEphDay4, ulToeMinutes * 60000.0);
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
    st = BeiDouEphemeris();
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
    const ZELX_SAT_EPHEMERIS_BEIDOU a = BeiDouEphemeris();
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

// The fields outside the equality are in the image too.
TEST(EphemerisBeiDou, ImageCarriesFieldsOutsideTheEquality)
{
    CReportRecorder stRec;
    const Bytes vecGolden = EphTest::GoldenBeiDou();
    ZELX_SAT_EPHEMERIS_BEIDOU stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecGolden.data(), vecGolden.size()));
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(0xA1A2A3A4u, stLoaded.ulAux1);
    EXPECT_EQ(2300, stLoaded.unGPSWeek);
    EXPECT_EQ(345614000u, stLoaded.ulTowMs);
    EXPECT_EQ(0xB2, stLoaded.ucAux2);
    EXPECT_EQ(0xC4, stLoaded.ucAux4);
    EXPECT_EQ(0u, stRec.Count());
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

ZELX_SAT_EPHEMERIS_NAVIC NavicAt(uint32_t ulTocMinutes, uint32_t ulToeMinutes)
{
    ZELX_SAT_EPHEMERIS_NAVIC st = NavicEphemeris();
    st.stToc.SetMjdDayMilliseconds(c_lEphDay4, ulTocMinutes * 60000.0);
    st.stToe.SetMjdDayMilliseconds(c_lEphDay4, ulToeMinutes * 60000.0);
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
    st = NavicEphemeris();
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
    const ZELX_SAT_EPHEMERIS_NAVIC a = NavicEphemeris();
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

// ================================================================== garbage sets

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
        (void)isNewEphemerisGalileo(GalileoEphemeris(), stGal, iRun % 2 == 0);
        vecRandom[0] = 6;
        ZELX_SAT_EPHEMERIS_BEIDOU stBds;
        ASSERT_TRUE(stBds.loadData(vecRandom.data(), vecRandom.size()));
        (void)stBds.getBdsWeek();
        (void)stBds.getUraIndex();
        (void)isNewEphemerisBeiDou(BeiDouEphemeris(), stBds);
        (void)isNewEphemerisBeiDou(stBds, BeiDouEphemeris());
        vecRandom[0] = 3;
        ZELX_SAT_EPHEMERIS_NAVIC stIrn;
        ASSERT_TRUE(stIrn.loadData(vecRandom.data(), vecRandom.size()));
        (void)stIrn.getPT1Time();
        (void)stIrn.getCurveFitSeconds();
        (void)isNewEphemerisNavic(NavicEphemeris(), stIrn);
        ZELX_SAT_EPHEMERIS_QZSS stQzs;
        ASSERT_TRUE(stQzs.loadData(vecRandom.data(), vecRandom.size()));
        (void)stQzs.getFitIntervalHours();
        (void)stQzs.getUra();
        (void)isNewEphemerisQzss(QzssEphemeris(), stQzs);
        (void)isNewEphemerisQzss(stQzs, QzssEphemeris());
        ZELX_SAT_EPHEMERIS stGps;
        ASSERT_TRUE(stGps.loadData(vecRandom.data(), vecRandom.size()));
        (void)isNewEphemerisGps(stGps, QzssEphemeris());
        (void)isNewEphemerisGps(QzssEphemeris(), stGps);
        (void)ZELX_SAT_EPHEMERIS_BASE::checkValidity(static_cast<EZelSatSystem>(next() % 9), stGps.getToe(),
                                                     stBds.stToe);
        (void)ZELX_SAT_EPHEMERIS::checkValidity(stIrn.stToc, stBds.stToc, next());
    }
    EXPECT_GT(stRec.Count(), 0u);
}
