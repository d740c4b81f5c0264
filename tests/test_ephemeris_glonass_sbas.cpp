// The state-vector ephemerides: GLONASS with its health bits, image and
// update decision, and SBAS.

#include "test_ephemeris_support.h"

#include <gtest/gtest.h>

using namespace ZELN;
using EphTest::Bytes;
using EphTest::CReportRecorder;
using ZelSample::GlonassEphemeris;
using ZelSample::SbasEphemeris;

// ------------------------------------------------------------------ GLONASS health

TEST(EphemerisGlonass, DefaultsAndClear)
{
    ZELX_SAT_EPHEMERIS_GLONASS st;
    EXPECT_EQ(0, st.uiSvId);
    EXPECT_FALSE(st.bValid);
    EXPECT_FALSE(st.bMType);
    EXPECT_EQ(0u, st.ulIod);
    EXPECT_EQ(0.0, st.adState[11]);
    EXPECT_EQ(0u, st.aulAux6[4]);
    EXPECT_EQ(1, st.ucHealth);
    // A default GLONASS record calls itself healthy.
    EXPECT_TRUE(st.isHealthy());
    EXPECT_EQ(142u, st.getSize());
    st = GlonassEphemeris();
    st.ucHealth = 12;
    st.clear();
    EXPECT_TRUE(st == ZELX_SAT_EPHEMERIS_GLONASS());
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(0u, st.ulAux3);
    EXPECT_EQ(1, st.ucHealth);
}

TEST(EphemerisGlonass, HealthBits)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GLONASS st;
    st.setHealthBool(true);
    EXPECT_EQ(12, st.ucHealth);
    EXPECT_FALSE(st.isHealthy());
    EXPECT_TRUE(st.getBnUnhealthy());
    EXPECT_EQ(1, st.getLn());
    st.setBnLn(3, 0);
    EXPECT_TRUE(st.isHealthy());
    EXPECT_EQ(3, st.getBn());
    EXPECT_FALSE(st.getBnUnhealthy());
    EXPECT_EQ(0, st.getLn());
    st.setHealthBool(false);
    EXPECT_EQ(0, st.ucHealth);
    EXPECT_TRUE(st.isHealthy());
    // Ln alone makes the set unhealthy.
    st.setBnLn(0, 1);
    EXPECT_EQ(8, st.ucHealth);
    EXPECT_FALSE(st.isHealthy());
    for (uint8_t uc = 0; uc < 16; ++uc)
    {
        st.ucHealth = uc;
        EXPECT_EQ(uc < 4, st.isHealthy()) << int(uc);
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGlonass, SetBnLnChecks)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GLONASS st;
    st.setBnLn(8, 0);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("0 == (uiBn & ~0x7)", stRec.Text());
    EXPECT_EQ(0, st.getBn());
    EXPECT_EQ(0, st.ucHealth);
    stRec.Clear();
    st.setBnLn(1, 2);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("0 == (uiLn & ~0x1)", stRec.Text());
    EXPECT_EQ(1, st.ucHealth);
    stRec.Clear();
    st.setBnLn(15, 3);
    ASSERT_EQ(2u, stRec.Count());
    EXPECT_EQ("0 == (uiBn & ~0x7)", stRec.Text(0));
    EXPECT_EQ("0 == (uiLn & ~0x1)", stRec.Text(1));
    EXPECT_EQ(15, st.ucHealth);
}

TEST(EphemerisGlonass, HealthFlags)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GLONASS st;
    st.setHealthFlags(3);
    EXPECT_EQ(4, st.getBn());
    EXPECT_EQ(1, st.getLn());
    EXPECT_EQ(3, st.getHealthFlags());
    st.setHealthFlags(1);
    EXPECT_EQ(4, st.getBn());
    EXPECT_EQ(0, st.getLn());
    EXPECT_EQ(1, st.getHealthFlags());
    st.setHealthFlags(2);
    EXPECT_EQ(0, st.getBn());
    EXPECT_EQ(1, st.getLn());
    EXPECT_EQ(2, st.getHealthFlags());
    st.setHealthFlags(0xFC); // only bits 0 and 1 count
    EXPECT_EQ(0, st.ucHealth);
    EXPECT_EQ(0, st.getHealthFlags());
    // Bits 0 and 1 of Bn do not show in the flags.
    st.ucHealth = 3;
    EXPECT_EQ(0, st.getHealthFlags());
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGlonass, InterfaceSlotsAndSetters)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GLONASS st;
    st.setSvId(56);
    st.setAux1(1);
    st.setAux2(2);
    st.setAux3(3);
    st.setValid(true);
    st.setMType(true);
    st.setAux4(4);
    st.setGPSWeek(2300);
    st.setToeMs(86400500);
    st.setAux5(5);
    st.setIod(77);
    st.setState(11, 9.5);
    st.setAux6(4, 6);
    EXPECT_EQ(56, st.getSvId());
    EXPECT_EQ(24, st.getSatId().uiSatNumber);
    EXPECT_EQ(77u, st.getIod());
    EXPECT_EQ(1, st.ucAux1);
    EXPECT_EQ(2, st.unAux2);
    EXPECT_EQ(3u, st.ulAux3);
    EXPECT_TRUE(st.bValid);
    EXPECT_TRUE(st.bMType);
    EXPECT_EQ(4, st.unAux4);
    EXPECT_EQ(5u, st.ulAux5);
    EXPECT_EQ(9.5, st.adState[11]);
    EXPECT_EQ(6u, st.aulAux6[4]);
    const SMjdTime stToe = st.getToe();
    EXPECT_EQ(44244 + 2300 * 7 + 1, stToe.m_lMjdDay);
    EXPECT_DOUBLE_EQ(500.0, stToe.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, stToe.m_eAccuracy);
    EXPECT_EQ(0u, stRec.Count());
    st.setState(12, 1.0);
    st.setAux6(5, 1);
    EXPECT_EQ(2u, stRec.Count());
    EXPECT_EQ("false", stRec.Text());
}

TEST(EphemerisGlonass, EqualityFieldByField)
{
    const ZELX_SAT_EPHEMERIS_GLONASS a = GlonassEphemeris();
    ZELX_SAT_EPHEMERIS_GLONASS b = a;
    EXPECT_TRUE(a == b);
    // Fields that take no part.
    b.bValid = false;
    b.unAux2 = 1;
    b.ulAux3 = 2;
    b.aulAux6[0] = 100;
    b.aulAux6[4] = 100;
    b.ucHealth = 3; // still healthy
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);

    auto differs = [&a](void (*fnChange)(ZELX_SAT_EPHEMERIS_GLONASS&))
    {
        ZELX_SAT_EPHEMERIS_GLONASS c = a;
        fnChange(c);
        return !(a == c) && (a != c);
    };
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.uiSvId = 41; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.ucAux1 = 8; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.bMType = false; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.unAux4 = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.unGPSWeek = 2301; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.ulToeMs += 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.ulAux5 = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.ulIod = 43; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_GLONASS& c) { c.ucHealth = 4; }));
    for (size_t i = 0; i < 12; ++i)
    {
        ZELX_SAT_EPHEMERIS_GLONASS c = a;
        c.adState[i] = a.adState[i] * (1.0 + 1e-13);
        EXPECT_FALSE(a == c) << i;
        c.adState[i] = a.adState[i] * (1.0 + 1e-15);
        EXPECT_TRUE(a == c) << i;
    }
    for (size_t i = 1; i <= 3; ++i)
    {
        ZELX_SAT_EPHEMERIS_GLONASS c = a;
        c.aulAux6[i] ^= 0x80000000u;
        EXPECT_FALSE(a == c) << i;
    }
}

// The fields outside the equality are in the image too.
TEST(EphemerisGlonass, ImageCarriesFieldsOutsideTheEquality)
{
    CReportRecorder stRec;
    const Bytes vecGolden = EphTest::GoldenGlonass();
    ZELX_SAT_EPHEMERIS_GLONASS stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecGolden.data(), vecGolden.size()));
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(0x1234, stLoaded.unAux2);
    EXPECT_EQ(0xDEADBEEFu, stLoaded.ulAux3);
    EXPECT_EQ(1u, stLoaded.aulAux6[0]);
    EXPECT_EQ(5u, stLoaded.aulAux6[4]);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGlonass, HealthIsNotInTheImage)
{
    ZELX_SAT_EPHEMERIS_GLONASS st = GlonassEphemeris();
    st.ucHealth = 12;
    const Bytes vecImage = EphTest::Save(st, 142);
    ASSERT_EQ(142u, vecImage.size());
    ZELX_SAT_EPHEMERIS_GLONASS stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecImage.data(), vecImage.size()));
    EXPECT_EQ(1, stLoaded.ucHealth);
    stLoaded.ucHealth = 5;
    ASSERT_TRUE(stLoaded.loadData(vecImage.data(), vecImage.size()));
    EXPECT_EQ(5, stLoaded.ucHealth);
    // Two records that differ only in health write the same bytes.
    st.ucHealth = 0;
    EXPECT_EQ(vecImage, EphTest::Save(st, 142));
}

// ------------------------------------------------------------------ GLONASS update decision

namespace
{

// A valid, healthy set at a reference time in minutes of day 4 of week 2300.
ZELX_SAT_EPHEMERIS_GLONASS GloAt(uint32_t ulMinutes, uint32_t ulIod, bool bMType = false)
{
    ZELX_SAT_EPHEMERIS_GLONASS st = GlonassEphemeris();
    st.ulToeMs = (4 * 86400 + ulMinutes * 60) * 1000u;
    st.ulIod = ulIod;
    st.bMType = bMType;
    return st;
}

} // namespace

TEST(EphemerisGlonassUpdate, ValidityHead)
{
    ZELX_SAT_EPHEMERIS_GLONASS stCur = GloAt(600, 40);
    ZELX_SAT_EPHEMERIS_GLONASS stNew = GloAt(630, 42);
    stNew.bValid = false;
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, stNew));
    stCur.bValid = false;
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, stNew));
    // Invalid held set gives way, even to an older one.
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, GloAt(570, 38)));
}

TEST(EphemerisGlonassUpdate, HealthChangeWins)
{
    const ZELX_SAT_EPHEMERIS_GLONASS stCur = GloAt(600, 40);
    ZELX_SAT_EPHEMERIS_GLONASS stNew = GloAt(570, 38);
    stNew.setHealthBool(true);
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, stNew));
    // A change of health bits that keeps the verdict is no health change.
    ZELX_SAT_EPHEMERIS_GLONASS stSame = GloAt(570, 38);
    stSame.ucHealth = 2;
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, stSame));
}

TEST(EphemerisGlonassUpdate, EarlierReferenceTimeNeverTaken)
{
    const ZELX_SAT_EPHEMERIS_GLONASS stCur = GloAt(600, 40);
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, GloAt(570, 40)));
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, GloAt(570, 41)));
    // One millisecond earlier already counts.
    ZELX_SAT_EPHEMERIS_GLONASS stNew = GloAt(600, 41);
    stNew.ulToeMs -= 1;
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, stNew));
}

TEST(EphemerisGlonassUpdate, NewIssueOrLaterTime)
{
    const ZELX_SAT_EPHEMERIS_GLONASS stCur = GloAt(600, 40);
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, GloAt(600, 41)));
    // A later reference time under the same issue of data is an update.
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, GloAt(630, 40)));
}

TEST(EphemerisGlonassUpdate, SameTimeAndIssue)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS_GLONASS stCur = GloAt(600, 40);
    ZELX_SAT_EPHEMERIS_GLONASS stNew = stCur;
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, stNew));
    // Differences in fields outside the equality change nothing.
    stNew.ulAux3 = 1;
    EXPECT_FALSE(isNewEphemerisGlonass(stCur, stNew));
    // Changed content of a satellite not of M type: taken without a report.
    stNew.adState[0] += 10.0;
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, stNew));
    EXPECT_EQ(0u, stRec.Count());
}

// The only test of this process that reaches the once-only latch.
TEST(EphemerisGlonassUpdate, MTypeContentChangeReportedOnce)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS_GLONASS stCur = GloAt(600, 40, true);
    ZELX_SAT_EPHEMERIS_GLONASS stNew = stCur;
    stNew.adState[3] += 0.5;
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, stNew));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("(!\"Ephemeris parameter change detected for GLO M-Type satellite\")", stRec.Text());
    // The second change in the process reports nothing and is still taken.
    ZELX_SAT_EPHEMERIS_GLONASS stNew2 = stCur;
    stNew2.aulAux6[2] = 99;
    EXPECT_TRUE(isNewEphemerisGlonass(stCur, stNew2));
    EXPECT_EQ(1u, stRec.Count());
}

TEST(EphemerisGlonassUpdate, OrbitStoreScenario)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GLONASS stHeld;
    ZELX_SAT_EPHEMERIS_GLONASS stRepeat = GloAt(615, 10);
    stRepeat.unAux2 = 7; // a field outside the equality
    ZELX_SAT_EPHEMERIS_GLONASS stUnhealthy = GloAt(645, 12);
    stUnhealthy.setHealthBool(true);
    ZELX_SAT_EPHEMERIS_GLONASS stInvalid = GloAt(675, 13);
    stInvalid.bValid = false;
    const struct
    {
        ZELX_SAT_EPHEMERIS_GLONASS stEph;
        bool bExpected;
        const char* szWhat;
    } astSteps[] = {
        {GloAt(615, 10), true, "first set into an empty store"},
        {stRepeat, false, "same set repeated"},
        {GloAt(615, 11), true, "new issue of data"},
        {GloAt(645, 11), true, "new reference time"},
        {stUnhealthy, true, "health change"},
        {stInvalid, false, "invalid new set"},
        {GloAt(675, 13), true, "healthy again"},
        {GloAt(645, 14), false, "older set"},
        {GloAt(675, 13), false, "repeated"},
    };
    for (const auto& rStep : astSteps)
    {
        const bool bTaken = isNewEphemerisGlonass(stHeld, rStep.stEph);
        EXPECT_EQ(rStep.bExpected, bTaken) << rStep.szWhat;
        if (bTaken)
        {
            stHeld = rStep.stEph;
        }
    }
    EXPECT_EQ(13u, stHeld.ulIod);
    stHeld.bValid = false;
    EXPECT_TRUE(isNewEphemerisGlonass(stHeld, GloAt(600, 1)));
    EXPECT_EQ(0u, stRec.Count());
}

// ------------------------------------------------------------------ SBAS

TEST(EphemerisSbas, DefaultsAndClear)
{
    ZELX_SAT_EPHEMERIS_SBAS st;
    EXPECT_EQ(0, st.uiSvId);
    EXPECT_EQ(0.0, st.dPosX);
    EXPECT_EQ(0.0f, st.fUra);
    EXPECT_EQ(1, st.ucHealth);
    EXPECT_FALSE(st.isHealthy());
    st = SbasEphemeris();
    st.clear();
    EXPECT_TRUE(st == ZELX_SAT_EPHEMERIS_SBAS());
}

TEST(EphemerisSbas, GettersAndSlots)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS_SBAS st = SbasEphemeris();
    EXPECT_EQ(168, st.getSvId());
    EXPECT_EQ(ZELSATSYSTEM_SBAS, st.getSatId().eSatSystem);
    EXPECT_EQ(3, st.getSatId().uiSatNumber);
    EXPECT_EQ(122, st.getPrn());
    EXPECT_EQ(201u, st.getIod());
    EXPECT_TRUE(st.isHealthy());
    EXPECT_EQ(2300, st.getGPSWeek());
    EXPECT_EQ(3, st.getAux1());
    EXPECT_EQ(345600u, st.getToeSeconds());
    EXPECT_EQ(1.5e-7, st.getClock());
    EXPECT_EQ(4.0f, st.getUra());
    EXPECT_EQ(77u, st.getAux2());
    EXPECT_EQ(0, st.getHealth());
    EXPECT_EQ(9, st.getAux3());
    const SMjdTime stToe = st.getToe();
    EXPECT_EQ(44244 + 2300 * 7 + 4, stToe.m_lMjdDay);
    EXPECT_EQ(0.0, stToe.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, stToe.m_eAccuracy);
    // As stored and in kilometres.
    EXPECT_EQ(42164000.0, st.getPosX());
    EXPECT_EQ(42164.0, st.getPosXKm());
    EXPECT_EQ(-1200.5, st.getPosY());
    EXPECT_EQ(-1.2005, st.getPosYKm());
    EXPECT_EQ(3000.25, st.getPosZ());
    EXPECT_EQ(3.00025, st.getPosZKm());
    EXPECT_EQ(1.5, st.getVelX());
    EXPECT_EQ(0.0015, st.getVelXKm());
    EXPECT_EQ(-2.5, st.getVelY());
    EXPECT_EQ(-0.0025, st.getVelYKm());
    EXPECT_EQ(3.5, st.getVelZ());
    EXPECT_EQ(0.0035, st.getVelZKm());
    EXPECT_EQ(1e-3, st.getAccX());
    EXPECT_EQ(1e-6, st.getAccXKm());
    EXPECT_EQ(-2e-3, st.getAccY());
    EXPECT_EQ(-2e-6, st.getAccYKm());
    EXPECT_EQ(3e-3, st.getAccZ());
    EXPECT_EQ(3e-6, st.getAccZKm());
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisSbas, EqualityFieldByField)
{
    const ZELX_SAT_EPHEMERIS_SBAS a = SbasEphemeris();
    ZELX_SAT_EPHEMERIS_SBAS b = a;
    EXPECT_TRUE(a == b);
    auto differs = [&a](void (*fnChange)(ZELX_SAT_EPHEMERIS_SBAS&))
    {
        ZELX_SAT_EPHEMERIS_SBAS c = a;
        fnChange(c);
        return !(a == c) && (a != c);
    };
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.uiSvId = 169; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.unGPSWeek = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.ucAux1 = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.ulToe = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dClock *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.fUra = 4.001f; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.ulAux2 = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dPosX *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dPosY *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dPosZ *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dVelX *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dVelY *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dVelZ *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dAccX *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dAccY *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.dAccZ *= 1.0 + 1e-13; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.ucHealth = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.ucAux3 = 1; }));
    EXPECT_TRUE(differs([](ZELX_SAT_EPHEMERIS_SBAS& c) { c.ucIod = 1; }));
    // Within tolerance.
    b.dPosX *= 1.0 + 1e-15;
    b.fUra = 4.0f * (1.0f + 2e-7f);
    EXPECT_TRUE(a == b);
}
