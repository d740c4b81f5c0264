// The almanac family: class tree and slots, defaults, validity, health and
// inclination rules, equality per class, the versioned images, the update
// decisions and the raw frame holder.

#include <ZelTypes/Ext/Gnss/ZelExtAlmanac.h>

#include "ZelSamplesAlmanacs.h"
#include "ZelTestKit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
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

// Day and milliseconds of GPS week w, second s: the GPS epoch is MJD 44244.
int32_t GpsDay(uint32_t ulWeek, uint32_t ulSecond)
{
    return static_cast<int32_t>(ulWeek * 7 + 44244 + ulSecond / 86400);
}
double GpsMs(uint32_t ulSecond)
{
    return static_cast<double>(ulSecond % 86400) * 1000.0;
}

// The block of the samples, value by value.
const double c_adKepler[9] = {-1.25, 0.0125, 5153.75, 2.5, 0.96875, -0.75, -8.0e-9, 1.5e-4, -3.5e-12};

// The COMMON image of a sample with the given satellite, built by hand:
// version at 0, system at 1, number at 5, time at 6, block at 22.
Bytes CommonImage(int32_t lSystem, uint8_t ucNumber)
{
    CImage st;
    st.At(0).U8(2).At(1).I32(lSystem).At(5).U8(ucNumber);
    st.At(6).Time16(GpsDay(2300, 319488), GpsMs(319488), 1).At(22);
    for (double d : c_adKepler)
    {
        st.F64(d);
    }
    st.At(94);
    return st.Get();
}

// The contract of a versioned almanac image: the reader names its length
// check for a read one byte short, and refuses another version silently.
template <class R> void ExpectAlmanacImage(const R& rRecord, const Bytes& rvecExpected)
{
    ZelTest::SExtRules stRules;
    stRules.iVersion = 2;
    stRules.vecShortLoadReports = {"ulDataSize <= uiBufferLength"};
    stRules.bShortLoadUntouched = false;
    ZelTest::ExpectExtImage(rRecord, rvecExpected, stRules);
}

// Position of a virtual function in the vtable (Itanium C++ ABI on x86-64: a
// pointer to a virtual member holds 1 + the byte offset of its entry).
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

ZELX_SAT_ALMANAC HealthyGps()
{
    ZELX_SAT_ALMANAC st = ZelSample::SampleAlmanacGps();
    st.ucHealth = 0;
    return st;
}

} // namespace

// ------------------------------------------------------------------ class tree

TEST(AlmanacFamily, ClassTree)
{
    EXPECT_TRUE(std::is_abstract<IZELX_SAT_ALMANAC_BASE>::value);
    EXPECT_TRUE(std::has_virtual_destructor<IZELX_SAT_ALMANAC_BASE>::value);
    EXPECT_TRUE(std::is_abstract<ZELX_SAT_ALMANAC_COMMON>::value);
    EXPECT_TRUE((std::is_base_of<IZELX_SAT_ALMANAC_BASE, ZELX_SAT_ALMANAC_COMMON>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_ALMANAC_COMMON, ZELX_SAT_ALMANAC>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_ALMANAC, ZELX_SAT_ALMANAC_QZSS>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_ALMANAC_COMMON, ZELX_SAT_ALMANAC_GALILEO>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_ALMANAC_COMMON, ZELX_SAT_ALMANAC_BEIDOU>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_ALMANAC_COMMON, ZELX_SAT_ALMANAC_NAVIC>::value));
    EXPECT_FALSE((std::is_base_of<ZELX_SAT_ALMANAC, ZELX_SAT_ALMANAC_GALILEO>::value));
    EXPECT_TRUE((std::is_base_of<IZELX_SAT_ALMANAC_BASE, ZELX_SAT_ALMANAC_GLONASS>::value));
    EXPECT_FALSE((std::is_base_of<ZELX_SAT_ALMANAC_COMMON, ZELX_SAT_ALMANAC_GLONASS>::value));
    EXPECT_FALSE(std::is_abstract<ZELX_SAT_ALMANAC>::value);
    EXPECT_FALSE(std::is_abstract<ZELX_SAT_ALMANAC_GLONASS>::value);
}

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
TEST(AlmanacFamily, VirtualSlotOrder)
{
    // Entries 0 and 1 are the two destructor entries of slot 0: slot n is entry n + 1.
    EXPECT_EQ(2, VtableEntry(&IZELX_SAT_ALMANAC_BASE::getSatId));
    EXPECT_EQ(3, VtableEntry(&IZELX_SAT_ALMANAC_BASE::getToa));
    EXPECT_EQ(4, VtableEntry(&IZELX_SAT_ALMANAC_BASE::isHealthy));
    EXPECT_EQ(5, VtableEntry(&ZELX_SAT_ALMANAC_COMMON::isEqual));
    EXPECT_EQ(6, VtableEntry(&ZELX_SAT_ALMANAC_COMMON::isDifferent));
    EXPECT_EQ(7, VtableEntry(&ZELX_SAT_ALMANAC_COMMON::clear));
    EXPECT_EQ(8, VtableEntry(&ZELX_SAT_ALMANAC_COMMON::assign));
    EXPECT_EQ(9, VtableEntry(&ZELX_SAT_ALMANAC_COMMON::isValid));
    EXPECT_EQ(10, VtableEntry(static_cast<void (ZELX_SAT_ALMANAC::*)(const ZELX_SAT_ALMANAC&)>(
                      &ZELX_SAT_ALMANAC::assign)));
    EXPECT_EQ(10,
              VtableEntry(static_cast<void (ZELX_SAT_ALMANAC_GALILEO::*)(const ZELX_SAT_ALMANAC_GALILEO&)>(
                  &ZELX_SAT_ALMANAC_GALILEO::assign)));
    EXPECT_EQ(10, VtableEntry(static_cast<void (ZELX_SAT_ALMANAC_BEIDOU::*)(const ZELX_SAT_ALMANAC_BEIDOU&)>(
                      &ZELX_SAT_ALMANAC_BEIDOU::assign)));
    EXPECT_EQ(10, VtableEntry(static_cast<void (ZELX_SAT_ALMANAC_NAVIC::*)(const ZELX_SAT_ALMANAC_NAVIC&)>(
                      &ZELX_SAT_ALMANAC_NAVIC::assign)));
    EXPECT_EQ(11, VtableEntry(static_cast<void (ZELX_SAT_ALMANAC_QZSS::*)(const ZELX_SAT_ALMANAC_QZSS&)>(
                      &ZELX_SAT_ALMANAC_QZSS::assign)));
    // The GLONASS class has the four slots of the interface only.
    EXPECT_EQ(4, VtableEntry(&ZELX_SAT_ALMANAC_GLONASS::isHealthy));
}
#endif

TEST(AlmanacFamily, InterfaceAnswersThroughEveryClass)
{
    const ZELX_SAT_ALMANAC stGps = ZelSample::SampleAlmanacGps();
    const ZELX_SAT_ALMANAC_GLONASS stGlo = ZelSample::SampleAlmanacGlonass();
    const IZELX_SAT_ALMANAC_BASE* apAlm[] = {&stGps, &stGlo};
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GPS, 5), apAlm[0]->getSatId());
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GLONASS, 17), apAlm[1]->getSatId());
    EXPECT_EQ(ZelSample::AlmanacToa(), apAlm[0]->getToa());
    EXPECT_EQ(SMjdTime(2300u, 302400.5), apAlm[1]->getToa());
    EXPECT_FALSE(apAlm[0]->isHealthy()); // health word 4
    EXPECT_TRUE(apAlm[1]->isHealthy());  // 1 is healthy here
}

// ------------------------------------------------------------------ defaults

TEST(AlmanacDefaults, EveryClass)
{
    const ZELX_SAT_ALMANAC stGps;
    EXPECT_EQ(ZELSATSYSTEM_NONE, stGps.stSatId.eSatSystem); // GPS leaves the system empty
    EXPECT_EQ(0, stGps.stSatId.uiSatNumber);
    EXPECT_FALSE(stGps.stToa.IsSet());
    for (double d : stGps.adKepler)
    {
        EXPECT_EQ(0.0, d);
    }
    EXPECT_EQ(0u, stGps.ulSource);
    EXPECT_EQ(0u, stGps.ulToa);
    EXPECT_EQ(0, stGps.ucHealth);
    EXPECT_EQ(0, stGps.ucConfig);
    EXPECT_EQ(0, stGps.ucAux1);
    EXPECT_EQ(0.0, stGps.dAux2);

    const ZELX_SAT_ALMANAC_QZSS stQzs;
    EXPECT_EQ(ZELSATSYSTEM_QZSS, stQzs.stSatId.eSatSystem);
    EXPECT_EQ(0, stQzs.stSatId.uiSatNumber);
    EXPECT_EQ(0, stQzs.unAux3);
    EXPECT_EQ(0u, stQzs.ulAux4);

    const ZELX_SAT_ALMANAC_GALILEO stGal;
    EXPECT_EQ(ZELSATSYSTEM_GALILEO, stGal.stSatId.eSatSystem);
    EXPECT_EQ(0, stGal.ucAux1 + stGal.bPresent + stGal.ucSignalMask + stGal.ucStatusA + stGal.ucStatusB);

    const ZELX_SAT_ALMANAC_BEIDOU stBds;
    EXPECT_EQ(ZELSATSYSTEM_BEIDOU, stBds.stSatId.eSatSystem);
    EXPECT_FALSE(stBds.bPresent);
    EXPECT_EQ(0, stBds.unAux1);
    EXPECT_EQ(0u, stBds.ulAux2);
    EXPECT_EQ(0, stBds.unHealth);

    const ZELX_SAT_ALMANAC_NAVIC stIrn;
    EXPECT_EQ(ZELSATSYSTEM_NAVIC, stIrn.stSatId.eSatSystem);
    EXPECT_FALSE(stIrn.bPresent);
    EXPECT_EQ(0u, stIrn.ulAux2 + stIrn.ulAux3 + stIrn.ulAux4 + stIrn.unAux1);

    const ZELX_SAT_ALMANAC_GLONASS stGlo;
    EXPECT_EQ(0, stGlo.ucSlot);
    EXPECT_EQ(0, stGlo.unAux1);
    EXPECT_EQ(0u, stGlo.ulAux2);
    EXPECT_EQ(0, stGlo.ucAux3);
    EXPECT_FALSE(stGlo.bPresent);
    EXPECT_EQ(0, stGlo.cChannel);
    EXPECT_FALSE(stGlo.stToa.IsSet());
    EXPECT_EQ(0, stGlo.ucAux4);
    EXPECT_EQ(0, stGlo.unAux5);
    EXPECT_EQ(0u, stGlo.ulHealth);
    for (double d : stGlo.adElements)
    {
        EXPECT_EQ(0.0, d);
    }
}

TEST(AlmanacDefaults, ConstantsRowByRow)
{
    EXPECT_EQ(2, c_ucALMANAC_VERSION);
    EXPECT_EQ(94u, ZELX_SAT_ALMANAC_COMMON::c_ulImageSize);
    EXPECT_EQ(114u, ZELX_SAT_ALMANAC::c_ulImageSize);
    EXPECT_EQ(121u, ZELX_SAT_ALMANAC_QZSS::c_ulImageSize);
    EXPECT_EQ(100u, ZELX_SAT_ALMANAC_GALILEO::c_ulImageSize);
    EXPECT_EQ(104u, ZELX_SAT_ALMANAC_BEIDOU::c_ulImageSize);
    EXPECT_EQ(110u, ZELX_SAT_ALMANAC_NAVIC::c_ulImageSize);
    EXPECT_EQ(97u, ZELX_SAT_ALMANAC_GLONASS::c_ulImageSize);
    EXPECT_EQ(0.9424777960769379, ZELX_SAT_ALMANAC_COMMON::c_dBDS_NOMINAL_INCLINATION);
    EXPECT_NEAR(0.3 * 3.14159265358979323846, ZELX_SAT_ALMANAC_COMMON::c_dBDS_NOMINAL_INCLINATION, 1e-15);
}

TEST(AlmanacDefaults, ClearRestoresTheClassDefaults)
{
    ZELX_SAT_ALMANAC_GALILEO stGal = ZelSample::SampleAlmanacGalileo();
    ZELX_SAT_ALMANAC_COMMON& rCommon = stGal;
    rCommon.clear(); // through the slot: the class's own clear
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GALILEO, 0), stGal.stSatId);
    EXPECT_EQ(0, stGal.bPresent);
    EXPECT_EQ(0.0, stGal.adKepler[2]);

    ZELX_SAT_ALMANAC_QZSS stQzs = ZelSample::SampleAlmanacQzss();
    static_cast<ZELX_SAT_ALMANAC&>(stQzs).clear();
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_QZSS, 0), stQzs.stSatId);
    EXPECT_EQ(0, stQzs.unAux3);
    EXPECT_EQ(0u, stQzs.ulSource);

    ZELX_SAT_ALMANAC stGps = ZelSample::SampleAlmanacGps();
    stGps.clear();
    EXPECT_TRUE(stGps == ZELX_SAT_ALMANAC());
    EXPECT_EQ(ZELSATSYSTEM_NONE, stGps.stSatId.eSatSystem);

    ZELX_SAT_ALMANAC_BEIDOU stBds = ZelSample::SampleAlmanacBeiDou();
    stBds.clear();
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_BEIDOU, 0), stBds.stSatId);
    EXPECT_EQ(0u, stBds.ulAux2);

    ZELX_SAT_ALMANAC_NAVIC stIrn = ZelSample::SampleAlmanacNavic();
    stIrn.clear();
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_NAVIC, 0), stIrn.stSatId);
    EXPECT_EQ(0u, stIrn.ulAux3);

    ZELX_SAT_ALMANAC_GLONASS stGlo = ZelSample::SampleAlmanacGlonass();
    stGlo.clear();
    EXPECT_EQ(0, stGlo.ucSlot);
    EXPECT_EQ(0u, stGlo.ulHealth);
    EXPECT_EQ(0u, stGlo.ulAux2);
}

TEST(AlmanacDefaults, AssignFromTheCommonTypeTakesTheCommonPartOnly)
{
    ZELX_SAT_ALMANAC_GALILEO stGal;
    const ZELX_SAT_ALMANAC stGps = ZelSample::SampleAlmanacGps();
    stGal.assign(static_cast<const ZELX_SAT_ALMANAC_COMMON&>(stGps));
    EXPECT_EQ(stGps.stSatId, stGal.stSatId);
    EXPECT_EQ(stGps.stToa, stGal.stToa);
    EXPECT_EQ(5153.75, stGal.adKepler[2]);
    EXPECT_EQ(0, stGal.bPresent);

    ZELX_SAT_ALMANAC_GALILEO stGal2;
    stGal2.assign(ZelSample::SampleAlmanacGalileo());
    EXPECT_TRUE(stGal2 == ZelSample::SampleAlmanacGalileo());
    EXPECT_EQ(0x40, stGal2.ucStatusB);

    ZELX_SAT_ALMANAC_QZSS stQzs;
    stQzs.assign(ZelSample::SampleAlmanacQzss());
    EXPECT_EQ(0x89ABCDEFu, stQzs.ulAux4);
    // The GPS assignment into a QZSS record keeps the QZSS words.
    ZELX_SAT_ALMANAC_QZSS stQzs2 = ZelSample::SampleAlmanacQzss();
    stQzs2.assign(static_cast<const ZELX_SAT_ALMANAC&>(HealthyGps()));
    EXPECT_EQ(0, stQzs2.ucHealth);
    EXPECT_EQ(0x1234, stQzs2.unAux3);
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GPS, 5), stQzs2.stSatId);

    ZELX_SAT_ALMANAC_BEIDOU stBds;
    stBds.assign(ZelSample::SampleAlmanacBeiDou());
    EXPECT_EQ(0x04050607u, stBds.ulAux2);
    ZELX_SAT_ALMANAC_NAVIC stIrn;
    stIrn.assign(ZelSample::SampleAlmanacNavic());
    EXPECT_EQ(0x11121314u, stIrn.ulAux3);
    ZELX_SAT_ALMANAC stGps2;
    stGps2.assign(stGps);
    EXPECT_EQ(1.5e-3, stGps2.dAux2);
}

// ------------------------------------------------------------------ derived values

TEST(AlmanacValues, SemiMajorAxisAndReferenceTime)
{
    ZELX_SAT_ALMANAC st = ZelSample::SampleAlmanacGps();
    EXPECT_EQ(5153.75, st.getSqrtA());
    EXPECT_EQ(5153.75 * 5153.75, st.getA());
    EXPECT_TRUE(st.hasToa());
    st.stToa = SMjdTime();
    EXPECT_FALSE(st.hasToa());
}

TEST(AlmanacValues, InclinationOfBeiDouGeoAndOthers)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC_BEIDOU stGeo = ZelSample::SampleAlmanacBeiDou();
    stGeo.stSatId.uiSatNumber = 3;
    EXPECT_EQ(0.96875, stGeo.getInclination());
    ZELX_SAT_ALMANAC_BEIDOU stMeo = ZelSample::SampleAlmanacBeiDou();
    EXPECT_EQ(10, stMeo.stSatId.uiSatNumber);
    EXPECT_EQ(0.96875 + 0.9424777960769379, stMeo.getInclination());
    const ZELX_SAT_ALMANAC_GALILEO stGal = ZelSample::SampleAlmanacGalileo();
    EXPECT_EQ(0.96875, stGal.getInclination());
    EXPECT_EQ(0u, stHook.Count());
    // An almanac that is not valid is reported, and the value comes all the same.
    ZELX_SAT_ALMANAC_BEIDOU stAbsent = stMeo;
    stAbsent.bPresent = false;
    EXPECT_EQ(0.96875 + 0.9424777960769379, stAbsent.getInclination());
    EXPECT_EQ(Texts{"isValid()"}, stHook.Texts());
}

// ------------------------------------------------------------------ validity

TEST(AlmanacValidity, GpsRules)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC st = ZelSample::SampleAlmanacGps();
    EXPECT_TRUE(st.isValid());
    st.ulSource = 1;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(0u, stHook.Count()) << "another source is not valid, with no report";

    st = ZelSample::SampleAlmanacGps();
    st.ulToa = 319489; // a second off the reference time
    EXPECT_FALSE(st.isValid());
    st.ulToa = 319487;
    EXPECT_FALSE(st.isValid());
    st = ZelSample::SampleAlmanacGps();
    st.ucConfig = 63;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(0u, stHook.Count());

    // Its own condition holds, the satellite does not: reported.
    st = ZelSample::SampleAlmanacGps();
    st.stSatId = SZelSatID(ZELSATSYSTEM_GPS, 33);
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();
    st.stSatId = SZelSatID();
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
}

TEST(AlmanacValidity, SecondOfWeekIsTakenFromTheDayWithinTheWeek)
{
    ZELX_SAT_ALMANAC st = ZelSample::SampleAlmanacGps();
    // Another week, the same second of the week: still valid.
    st.stToa = SMjdTime(2301u, 319488.0);
    EXPECT_TRUE(st.isValid());
    // A fraction of a millisecond off: compared exactly, not valid.
    st.stToa.AddMilliseconds(0.5);
    EXPECT_FALSE(st.isValid());
}

TEST(AlmanacValidity, QzssPassesWithConfig63)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC_QZSS st = ZelSample::SampleAlmanacQzss();
    EXPECT_EQ(63, st.ucConfig);
    EXPECT_TRUE(st.isValid());
    st.ulSource = 3;
    EXPECT_FALSE(st.isValid());
    st = ZelSample::SampleAlmanacQzss();
    st.ulToa += 1;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(0u, stHook.Count());
    st = ZelSample::SampleAlmanacQzss();
    st.stSatId.uiSatNumber = 11;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
}

TEST(AlmanacValidity, PresentFlagClasses)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC_GALILEO stGal = ZelSample::SampleAlmanacGalileo();
    ZELX_SAT_ALMANAC_BEIDOU stBds = ZelSample::SampleAlmanacBeiDou();
    ZELX_SAT_ALMANAC_NAVIC stIrn = ZelSample::SampleAlmanacNavic();
    EXPECT_TRUE(stGal.isValid());
    EXPECT_TRUE(stBds.isValid());
    EXPECT_TRUE(stIrn.isValid());
    stGal.bPresent = 0;
    stBds.bPresent = false;
    stIrn.bPresent = false;
    EXPECT_FALSE(stGal.isValid());
    EXPECT_FALSE(stBds.isValid());
    EXPECT_FALSE(stIrn.isValid());
    EXPECT_EQ(0u, stHook.Count());
    // Present, with a satellite out of the system's range: reported each.
    stGal = ZelSample::SampleAlmanacGalileo();
    stGal.stSatId.uiSatNumber = 37;
    stBds = ZelSample::SampleAlmanacBeiDou();
    stBds.stSatId.uiSatNumber = 0;
    stIrn = ZelSample::SampleAlmanacNavic();
    stIrn.stSatId.uiSatNumber = 10;
    EXPECT_FALSE(stGal.isValid());
    EXPECT_FALSE(stBds.isValid());
    EXPECT_FALSE(stIrn.isValid());
    EXPECT_EQ(Texts({"false", "false", "false"}), stHook.Texts());
}

TEST(AlmanacValidity, CommonRuleThroughTheBaseClass)
{
    ZELX_SAT_ALMANAC_GALILEO stGal = ZelSample::SampleAlmanacGalileo();
    EXPECT_TRUE(stGal.ZELX_SAT_ALMANAC_COMMON::isValid());
    stGal.bPresent = 0;
    EXPECT_TRUE(stGal.ZELX_SAT_ALMANAC_COMMON::isValid()); // the satellite alone
    stGal.stSatId.uiSatNumber = 0;
    EXPECT_FALSE(stGal.ZELX_SAT_ALMANAC_COMMON::isValid());
}

TEST(AlmanacValidity, GlonassSlotAndChannel)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC_GLONASS st = ZelSample::SampleAlmanacGlonass();
    EXPECT_TRUE(st.isValid());
    for (const int iSlot : {1, 24})
    {
        st.ucSlot = static_cast<uint8_t>(iSlot);
        EXPECT_TRUE(st.isValid());
    }
    for (const int iChannel : {-7, 6})
    {
        st.cChannel = static_cast<int8_t>(iChannel);
        EXPECT_TRUE(st.isValid());
    }
    EXPECT_EQ(0u, stHook.Count());
    st.cChannel = -8;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();
    st.cChannel = 7;
    EXPECT_FALSE(st.isValid());
    st.cChannel = 0;
    st.ucSlot = 0;
    EXPECT_FALSE(st.isValid());
    st.ucSlot = 25;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(Texts({"false", "false", "false"}), stHook.Texts());
    stHook.Clear();
    // Not present: not valid, and nothing to report about slot or channel.
    st.bPresent = false;
    EXPECT_FALSE(st.isValid());
    EXPECT_EQ(0u, stHook.Count());
}

// ------------------------------------------------------------------ health

TEST(AlmanacHealth, GpsAndQzss)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC stGps = ZelSample::SampleAlmanacGps();
    stGps.ucHealth = 0;
    EXPECT_TRUE(stGps.isHealthy());
    stGps.ucHealth = 1;
    EXPECT_FALSE(stGps.isHealthy());
    ZELX_SAT_ALMANAC_QZSS stQzs = ZelSample::SampleAlmanacQzss();
    stQzs.ucHealth = 0;
    EXPECT_TRUE(stQzs.isHealthy());
    stQzs.ucHealth = 1;
    EXPECT_TRUE(stQzs.isHealthy());
    stQzs.ucHealth = 2;
    EXPECT_FALSE(stQzs.isHealthy());
    EXPECT_EQ(0u, stHook.Count());
    // Not valid: reported, and the health rule answers all the same.
    stGps.ucHealth = 0;
    stGps.ulSource = 1;
    EXPECT_TRUE(stGps.isHealthy());
    EXPECT_EQ(Texts{"isValid()"}, stHook.Texts());
}

TEST(AlmanacHealth, GalileoSignalsInTurn)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC_GALILEO st = ZelSample::SampleAlmanacGalileo();
    struct SRow
    {
        uint8_t ucMask;
        uint8_t ucStatusA;
        uint8_t ucStatusB;
        bool bHealthy;
    };
    const SRow astRows[] = {
        {0x02, 0xFF, 0x00, true},                            // second signal good
        {0x02, 0x00, 0x02, false},                           // second signal bad, first not described
        {0x03, 0x00, 0x10, true},                            // second bad: falls to the first, which is good
        {0x03, 0x02, 0x10, false},                           // both bad
        {0x03, 0x04, 0x20, false}, {0x01, 0x00, 0xFF, true}, // first signal good
        {0x01, 0x06, 0x00, false},                           // first signal bad
        {0x01, 0xF9, 0x00, true},                            // only 0x06 counts of the first
        {0x02, 0x00, 0xC9, true},                            // only 0x36 counts of the second
        {0x00, 0x00, 0x00, false},                           // no signal described
        {0x04, 0x00, 0x00, false},
    };
    for (const SRow& rRow : astRows)
    {
        st.ucSignalMask = rRow.ucMask;
        st.ucStatusA = rRow.ucStatusA;
        st.ucStatusB = rRow.ucStatusB;
        EXPECT_EQ(rRow.bHealthy, st.isHealthy())
            << int(rRow.ucMask) << " " << int(rRow.ucStatusA) << " " << int(rRow.ucStatusB);
    }
    EXPECT_EQ(0u, stHook.Count());
}

TEST(AlmanacHealth, BeiDouNavicAndGlonass)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC_BEIDOU stBds = ZelSample::SampleAlmanacBeiDou();
    EXPECT_TRUE(stBds.isHealthy()); // 0x80 is not among the bits
    stBds.unHealth = 0x002;
    EXPECT_FALSE(stBds.isHealthy());
    stBds.unHealth = 0x100;
    EXPECT_FALSE(stBds.isHealthy());
    stBds.unHealth = 0xFEFD;
    EXPECT_TRUE(stBds.isHealthy());
    const ZELX_SAT_ALMANAC_NAVIC stIrn = ZelSample::SampleAlmanacNavic();
    EXPECT_TRUE(stIrn.isHealthy());
    ZELX_SAT_ALMANAC_GLONASS stGlo = ZelSample::SampleAlmanacGlonass();
    EXPECT_TRUE(stGlo.isHealthy());
    stGlo.ulHealth = 0;
    EXPECT_FALSE(stGlo.isHealthy());
    EXPECT_EQ(0u, stHook.Count());
    stGlo.ulHealth = 2;
    EXPECT_FALSE(stGlo.isHealthy());
    EXPECT_EQ(Texts{"ulHealth <= 1"}, stHook.Texts());
    stHook.Clear();
    ZELX_SAT_ALMANAC_NAVIC stAbsent = stIrn;
    stAbsent.bPresent = false;
    EXPECT_TRUE(stAbsent.isHealthy());
    stGlo.ulHealth = 1;
    stGlo.bPresent = false;
    EXPECT_TRUE(stGlo.isHealthy());
    EXPECT_EQ(Texts({"isValid()", "isValid()"}), stHook.Texts());
}

// ------------------------------------------------------------------ equality

TEST(AlmanacEquality, CommonRule)
{
    CRecordingHook stHook;
    const ZELX_SAT_ALMANAC_GALILEO stA = ZelSample::SampleAlmanacGalileo();
    ZELX_SAT_ALMANAC_GALILEO stB = stA;
    EXPECT_TRUE(stA.isEqual(stB));
    EXPECT_FALSE(stA.isDifferent(stB));
    // Every Kepler value at a relative 1e-14.
    for (size_t ulIdx = 0; ulIdx < 9; ++ulIdx)
    {
        stB = stA;
        stB.adKepler[ulIdx] = stA.adKepler[ulIdx] * (1.0 + 5e-15);
        EXPECT_TRUE(stA.isEqual(stB)) << ulIdx;
        stB.adKepler[ulIdx] = stA.adKepler[ulIdx] * (1.0 + 5e-14);
        EXPECT_FALSE(stA.isEqual(stB)) << ulIdx;
        EXPECT_TRUE(stA.isDifferent(stB)) << ulIdx;
    }
    stB = stA;
    stB.stSatId.uiSatNumber = 12;
    EXPECT_FALSE(stA.isEqual(stB));
    stB = stA;
    stB.stToa.AddMilliseconds(1.0);
    EXPECT_FALSE(stA.isEqual(stB));
    stB = stA;
    stB.stToa.AddMilliseconds(1e-7); // within the time's tolerance
    EXPECT_TRUE(stA.isEqual(stB));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(AlmanacEquality, GpsAndQzssFields)
{
    const ZELX_SAT_ALMANAC stA = ZelSample::SampleAlmanacGps();
    ZELX_SAT_ALMANAC stB = stA;
    stB.ulSource = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulToa = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucHealth = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucConfig = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucAux1 = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dAux2 = stA.dAux2 * (1.0 + 5e-15);
    EXPECT_TRUE(stA == stB);
    stB.dAux2 = stA.dAux2 * (1.0 + 5e-14);
    EXPECT_TRUE(stA != stB);

    const ZELX_SAT_ALMANAC_QZSS stQa = ZelSample::SampleAlmanacQzss();
    ZELX_SAT_ALMANAC_QZSS stQb = stQa;
    stQb.unAux3 = 1;
    stQb.ulAux4 = 2;
    EXPECT_TRUE(stQa == stQb) << "the QZSS words take no part";
    stQb.ucAux1 = 0;
    EXPECT_FALSE(stQa == stQb);
}

TEST(AlmanacEquality, GalileoBeiDouNavicFields)
{
    const ZELX_SAT_ALMANAC_GALILEO stGa = ZelSample::SampleAlmanacGalileo();
    uint8_t ZELX_SAT_ALMANAC_GALILEO::*apBytes[] = {
        &ZELX_SAT_ALMANAC_GALILEO::ucAux1, &ZELX_SAT_ALMANAC_GALILEO::bPresent,
        &ZELX_SAT_ALMANAC_GALILEO::ucSignalMask, &ZELX_SAT_ALMANAC_GALILEO::ucStatusA,
        &ZELX_SAT_ALMANAC_GALILEO::ucStatusB};
    for (auto pByte : apBytes)
    {
        ZELX_SAT_ALMANAC_GALILEO stGb = stGa;
        stGb.*pByte = static_cast<uint8_t>(stGb.*pByte + 1);
        EXPECT_FALSE(stGa == stGb);
    }

    const ZELX_SAT_ALMANAC_BEIDOU stBa = ZelSample::SampleAlmanacBeiDou();
    ZELX_SAT_ALMANAC_BEIDOU stBb = stBa;
    stBb.unAux1 = 0;
    stBb.ulAux2 = 0;
    EXPECT_TRUE(stBa == stBb) << "unAux1 and ulAux2 take no part";
    stBb.unHealth = 0;
    EXPECT_FALSE(stBa == stBb);
    stBb = stBa;
    stBb.bPresent = false;
    EXPECT_FALSE(stBa == stBb);

    const ZELX_SAT_ALMANAC_NAVIC stNa = ZelSample::SampleAlmanacNavic();
    ZELX_SAT_ALMANAC_NAVIC stNb = stNa;
    stNb.unAux1 = 0;
    stNb.ulAux2 = 0;
    stNb.ulAux3 = 0;
    EXPECT_TRUE(stNa == stNb) << "unAux1, ulAux2 and ulAux3 take no part";
    stNb.ulAux4 = 0;
    EXPECT_FALSE(stNa == stNb);
    stNb = stNa;
    stNb.bPresent = false;
    EXPECT_FALSE(stNa == stNb);
}

TEST(AlmanacEquality, AnotherClassIsReportedAndUnequal)
{
    CRecordingHook stHook;
    ZELX_SAT_ALMANAC stGps = HealthyGps();
    ZELX_SAT_ALMANAC_GALILEO stGal;
    stGal.assign(static_cast<const ZELX_SAT_ALMANAC_COMMON&>(stGps)); // the same block
    EXPECT_FALSE(stGps.isEqual(stGal));
    EXPECT_FALSE(stGal.isEqual(stGps));
    EXPECT_EQ(Texts({"false", "false"}), stHook.Texts());
    stHook.Clear();
    EXPECT_TRUE(stGps.isDifferent(stGal));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();
    // A QZSS record is a GPS one for the GPS rule; the reverse is another class.
    ZELX_SAT_ALMANAC_QZSS stQzs;
    stQzs.assign(stGps);
    EXPECT_TRUE(stGps.isEqual(stQzs));
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_FALSE(stQzs.isEqual(stGps));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();
    ZELX_SAT_ALMANAC_BEIDOU stBds;
    ZELX_SAT_ALMANAC_NAVIC stIrn;
    EXPECT_FALSE(stBds.isEqual(stIrn));
    EXPECT_FALSE(stIrn.isEqual(stBds));
    EXPECT_EQ(Texts({"false", "false"}), stHook.Texts());
}

TEST(AlmanacEquality, Glonass)
{
    CRecordingHook stHook;
    const ZELX_SAT_ALMANAC_GLONASS stA = ZelSample::SampleAlmanacGlonass();
    ZELX_SAT_ALMANAC_GLONASS stB = stA;
    stB.unAux1 = 0;
    stB.ulAux2 = 0;
    EXPECT_TRUE(stA == stB) << "unAux1 and ulAux2 take no part";
    stB = stA;
    stB.ucSlot = 1;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucAux3 = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.bPresent = false;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.cChannel = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.stToa.AddSeconds(1.0);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucAux4 = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.unAux5 = 0;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulHealth = 0;
    EXPECT_FALSE(stA == stB);
    for (size_t ulIdx = 0; ulIdx < 8; ++ulIdx)
    {
        stB = stA;
        stB.adElements[ulIdx] = stA.adElements[ulIdx] * (1.0 + 5e-15);
        EXPECT_TRUE(stA == stB) << ulIdx;
        stB.adElements[ulIdx] = stA.adElements[ulIdx] * (1.0 + 5e-14);
        EXPECT_TRUE(stA != stB) << ulIdx;
    }
    EXPECT_EQ(0u, stHook.Count());
}

// ------------------------------------------------------------------ images

TEST(AlmanacImage, CommonImageOfTheBlock)
{
    // The COMMON image written and read through the base class of a Galileo record.
    const ZELX_SAT_ALMANAC_GALILEO stGal = ZelSample::SampleAlmanacGalileo();
    const ZELX_SAT_ALMANAC_COMMON& rCommon = stGal;
    EXPECT_EQ(94u, rCommon.getSize());
    Bytes vecOut(94, 0xAA);
    CRecordingHook stHook;
    EXPECT_TRUE(rCommon.saveData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(CommonImage(3, 11), vecOut);
    ZELX_SAT_ALMANAC_GALILEO stLoaded;
    EXPECT_TRUE(static_cast<ZELX_SAT_ALMANAC_COMMON&>(stLoaded).loadData(vecOut.data(), vecOut.size()));
    EXPECT_TRUE(stLoaded.ZELX_SAT_ALMANAC_COMMON::isEqual(stGal));
    EXPECT_EQ(0, stLoaded.bPresent) << "the fields of the derived class are not in the COMMON image";
    EXPECT_EQ(0u, stHook.Count());
}

TEST(AlmanacImage, Gps)
{
    CImage st;
    st.At(0).U8(2).At(1).U32(2).At(5).U32(319488).At(9).U8(4).At(10).U8(9).At(11).U8(3).At(12).F64(1.5e-3);
    st.At(20).Append(CommonImage(1, 5)).At(114);
    ExpectAlmanacImage(ZelSample::SampleAlmanacGps(), st.Get());
}

TEST(AlmanacImage, Qzss)
{
    CImage stGps;
    stGps.At(0).U8(2).At(1).U32(2).At(5).U32(319488).At(9).U8(1).At(10).U8(63).At(11).U8(7).At(12).F64(-2.25);
    stGps.At(20).Append(CommonImage(6, 3)).At(114);
    CImage st;
    st.At(0).U8(2).At(1).U16(0x1234).At(3).U32(0x89ABCDEF).At(7).Append(stGps.Get()).At(121);
    ExpectAlmanacImage(ZelSample::SampleAlmanacQzss(), st.Get());
}

TEST(AlmanacImage, Galileo)
{
    CImage st;
    st.At(0).U8(2).At(1).U8(5).U8(1).U8(3).U8(0x08).U8(0x40).At(6).Append(CommonImage(3, 11)).At(100);
    ExpectAlmanacImage(ZelSample::SampleAlmanacGalileo(), st.Get());
}

TEST(AlmanacImage, BeiDou)
{
    CImage st;
    st.At(0).U8(2).At(1).U8(1).At(2).U16(0x0203).At(4).U32(0x04050607).At(8).U16(0x0080);
    st.At(10).Append(CommonImage(5, 10)).At(104);
    ExpectAlmanacImage(ZelSample::SampleAlmanacBeiDou(), st.Get());
}

TEST(AlmanacImage, Navic)
{
    CImage st;
    st.At(0).U8(2).At(1).U16(0x0A0B).At(3).U32(0x0C0D0E0F).At(7).U8(1).At(8).U32(0x11121314);
    st.At(12).U32(0x15161718).At(16).Append(CommonImage(7, 4)).At(110);
    ExpectAlmanacImage(ZelSample::SampleAlmanacNavic(), st.Get());
}

TEST(AlmanacImage, Glonass)
{
    CImage st;
    st.At(0).U8(17).At(1).U16(0x2122).At(3).U32(0x23242526).At(7).U8(0x27).At(8).U8(1).At(9).I8(-5);
    st.At(10).U8(0x28).At(11).U16(0x292A).At(13).U32(1).At(17);
    for (double d : {33000.25, -1.5, 0.0125, -2655.5, 0.25, 0.00125, 1.75, -3.0e-5})
    {
        st.F64(d);
    }
    st.At(81).Time16(GpsDay(2300, 302400), 500.0 + GpsMs(302400), 1).At(97);
    ZelTest::ExpectExtImage(ZelSample::SampleAlmanacGlonass(), st.Get());
}

TEST(AlmanacImage, NestedVersionByteIsAGateToo)
{
    ZELX_SAT_ALMANAC_QZSS stQzs = ZelSample::SampleAlmanacQzss();
    Bytes vecImage(121);
    ASSERT_TRUE(stQzs.saveData(vecImage.data(), vecImage.size()));
    EXPECT_EQ(2, vecImage[7]);
    EXPECT_EQ(2, vecImage[27]);
    for (const size_t ulAt : {7u, 27u})
    {
        Bytes vecWrong = vecImage;
        vecWrong[ulAt] = 3;
        CRecordingHook stHook;
        ZELX_SAT_ALMANAC_QZSS stLoaded;
        EXPECT_FALSE(stLoaded.loadData(vecWrong.data(), vecWrong.size()));
        EXPECT_EQ(0u, stHook.Count()) << "refused silently at " << ulAt;
    }
}

TEST(AlmanacImage, ShortBuffersFailWhereTheyEnd)
{
    const ZELX_SAT_ALMANAC stGps = ZelSample::SampleAlmanacGps();
    Bytes vecImage(114);
    ASSERT_TRUE(stGps.saveData(vecImage.data(), vecImage.size()));
    struct SRow
    {
        size_t ulLength;
        Texts vecTexts;
        bool bOwnRead;  // the first GPS field came in
        bool bTimeRead; // the reference time came in
    };
    const SRow astRows[] = {
        {0, {"false"}, false, false},                        // no version byte to look at
        {1, {"false"}, false, false},                        // the GPS fields do not fit
        {19, {"false"}, true, false},                        // the last GPS field does not fit
        {20, {"false"}, true, false},                        // no COMMON version byte
        {24, {"false"}, true, false},                        // the satellite does not fit
        {26, {"false"}, true, false},                        // no time at all
        {41, {"false"}, true, false},                        // the time does not fit
        {42, {"ulDataSize <= uiBufferLength"}, true, true},  // no block
        {113, {"ulDataSize <= uiBufferLength"}, true, true}, // the block one byte short
    };
    for (const SRow& rRow : astRows)
    {
        CRecordingHook stHook;
        ZELX_SAT_ALMANAC stLoaded;
        EXPECT_FALSE(stLoaded.loadData(vecImage.data(), rRow.ulLength)) << rRow.ulLength;
        EXPECT_EQ(rRow.vecTexts, stHook.Texts()) << rRow.ulLength;
        EXPECT_EQ(rRow.bOwnRead ? 2u : 0u, stLoaded.ulSource) << rRow.ulLength;
        EXPECT_EQ(rRow.bTimeRead, stLoaded.stToa == stGps.stToa) << rRow.ulLength;
        EXPECT_EQ(0.0, stLoaded.adKepler[8]) << "the block is never read in part";
    }
    // Fields read before the failure stay: satellite and time.
    ZELX_SAT_ALMANAC stLoaded;
    CRecordingHook stHook;
    EXPECT_FALSE(stLoaded.loadData(vecImage.data(), 60));
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GPS, 5), stLoaded.stSatId);
}

TEST(AlmanacImage, ALongerBufferIsFine)
{
    const ZELX_SAT_ALMANAC_BEIDOU stBds = ZelSample::SampleAlmanacBeiDou();
    Bytes vecImage(200, 0x55);
    CRecordingHook stHook;
    ASSERT_TRUE(stBds.saveData(vecImage.data(), vecImage.size()));
    EXPECT_EQ(0x55, vecImage[104]) << "nothing written beyond the image";
    ZELX_SAT_ALMANAC_BEIDOU stLoaded;
    EXPECT_TRUE(stLoaded.loadData(vecImage.data(), vecImage.size()));
    EXPECT_TRUE(stLoaded == stBds);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(AlmanacImage, NastyInputsNeverCrash)
{
    std::mt19937 stRandom(20240611u);
    for (int iRound = 0; iRound < 2000; ++iRound)
    {
        Bytes vecBytes(stRandom() % 130);
        for (unsigned char& ruc : vecBytes)
        {
            ruc = static_cast<unsigned char>(stRandom());
        }
        if (!vecBytes.empty() && iRound % 2 == 0)
        {
            vecBytes[0] = 2; // past the version gate
        }
        if (vecBytes.size() > 20 && iRound % 4 == 0)
        {
            vecBytes[20] = 2;
        }
        CRecordingHook stHook;
        ZELX_SAT_ALMANAC stGps;
        ZELX_SAT_ALMANAC_QZSS stQzs;
        ZELX_SAT_ALMANAC_GALILEO stGal;
        ZELX_SAT_ALMANAC_BEIDOU stBds;
        ZELX_SAT_ALMANAC_NAVIC stIrn;
        ZELX_SAT_ALMANAC_GLONASS stGlo;
        const bool abOk[] = {stGps.loadData(vecBytes.data(), vecBytes.size()),
                             stQzs.loadData(vecBytes.data(), vecBytes.size()),
                             stGal.loadData(vecBytes.data(), vecBytes.size()),
                             stBds.loadData(vecBytes.data(), vecBytes.size()),
                             stIrn.loadData(vecBytes.data(), vecBytes.size()),
                             stGlo.loadData(vecBytes.data(), vecBytes.size())};
        const size_t aulSizes[] = {114, 121, 100, 104, 110, 97};
        for (size_t ulIdx = 0; ulIdx < 6; ++ulIdx)
        {
            if (abOk[ulIdx])
            {
                EXPECT_GE(vecBytes.size(), aulSizes[ulIdx]) << "a reader that succeeds had the whole image";
            }
        }
        (void)stGps.isHealthy();
        (void)stQzs.getInclination();
        (void)stGal.isHealthy();
        (void)stBds.getInclination();
        (void)stIrn.isValid();
        (void)stGlo.isHealthy();
        (void)isNewAlmanac(stGps, stQzs);
        (void)isNewAlmanacGlonass(stGlo, stGlo);
    }
}

// ------------------------------------------------------------------ update decisions

TEST(AlmanacUpdate, EveryBranch)
{
    CRecordingHook stHook;
    const ZELX_SAT_ALMANAC stHeld = HealthyGps();
    ZELX_SAT_ALMANAC stNew = stHeld;
    // 1. A new almanac that is not valid is never taken.
    stNew.ulSource = 1;
    stNew.dAux2 = 9.0;
    EXPECT_FALSE(isNewAlmanac(stHeld, stNew));
    EXPECT_FALSE(isNewAlmanac(ZELX_SAT_ALMANAC(), stNew));
    // 1. A held almanac that is not valid always gives way.
    ZELX_SAT_ALMANAC stBadHeld = stHeld;
    stBadHeld.ucConfig = 63;
    EXPECT_TRUE(isNewAlmanac(stBadHeld, stHeld));
    EXPECT_EQ(0u, stHook.Count());
    // 2. An older one is not taken, even when different.
    stNew = stHeld;
    stNew.stToa = SMjdTime(2300u, 315392.0);
    stNew.ulToa = 315392;
    stNew.adKepler[0] = 3.0;
    EXPECT_FALSE(isNewAlmanac(stHeld, stNew));
    // 3. Equal, or equal within the tolerance: no update.
    EXPECT_FALSE(isNewAlmanac(stHeld, stHeld));
    stNew = stHeld;
    stNew.adKepler[2] *= 1.0 + 5e-15;
    EXPECT_FALSE(isNewAlmanac(stHeld, stNew));
    // 3. Different at the same time, and newer: taken.
    stNew = stHeld;
    stNew.ucAux1 = 99;
    EXPECT_TRUE(isNewAlmanac(stHeld, stNew));
    stNew = stHeld;
    stNew.stToa = SMjdTime(2300u, 323584.0);
    stNew.ulToa = 323584;
    EXPECT_TRUE(isNewAlmanac(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
}

TEST(AlmanacUpdate, ThroughTheCommonTypeAndAcrossClasses)
{
    CRecordingHook stHook;
    const ZELX_SAT_ALMANAC_GALILEO stHeld = ZelSample::SampleAlmanacGalileo();
    ZELX_SAT_ALMANAC_GALILEO stNew = stHeld;
    stNew.ucStatusB = 0;
    const ZELX_SAT_ALMANAC_COMMON& rHeld = stHeld;
    const ZELX_SAT_ALMANAC_COMMON& rNew = stNew;
    EXPECT_TRUE(isNewAlmanac(rHeld, rNew));
    EXPECT_FALSE(isNewAlmanac(rHeld, rHeld));
    // A held Galileo record against a new BeiDou one: the equality reports,
    // and the new one is taken.
    const ZELX_SAT_ALMANAC_BEIDOU stBds = ZelSample::SampleAlmanacBeiDou();
    EXPECT_TRUE(isNewAlmanac(stHeld, stBds));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
}

TEST(AlmanacUpdate, GlonassEveryBranch)
{
    CRecordingHook stHook;
    const ZELX_SAT_ALMANAC_GLONASS stHeld = ZelSample::SampleAlmanacGlonass();
    ZELX_SAT_ALMANAC_GLONASS stNew = stHeld;
    stNew.bPresent = false;
    stNew.adElements[0] = 1.0;
    EXPECT_FALSE(isNewAlmanacGlonass(stHeld, stNew));
    EXPECT_TRUE(isNewAlmanacGlonass(ZELX_SAT_ALMANAC_GLONASS(), stHeld));
    stNew = stHeld;
    stNew.stToa.SubSeconds(1.0);
    stNew.adElements[0] = 1.0;
    EXPECT_FALSE(isNewAlmanacGlonass(stHeld, stNew));
    EXPECT_FALSE(isNewAlmanacGlonass(stHeld, stHeld));
    stNew = stHeld;
    stNew.ulAux2 = 7; // takes no part
    EXPECT_FALSE(isNewAlmanacGlonass(stHeld, stNew));
    stNew.ulHealth = 0;
    EXPECT_TRUE(isNewAlmanacGlonass(stHeld, stNew));
    stNew = stHeld;
    stNew.stToa.AddSeconds(900.0);
    EXPECT_TRUE(isNewAlmanacGlonass(stHeld, stNew));
    EXPECT_EQ(0u, stHook.Count());
    // A held record with a bad channel gives way, with the report of its validity.
    ZELX_SAT_ALMANAC_GLONASS stBadHeld = stHeld;
    stBadHeld.cChannel = -8;
    EXPECT_TRUE(isNewAlmanacGlonass(stBadHeld, stHeld));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
}

// ------------------------------------------------------------------ raw frame

TEST(AlmanacSubframe, DefaultsAndExactLength)
{
    const ZELX_NAV_SUBFRAME stDefault;
    EXPECT_EQ(0u, stDefault.ulAux1);
    EXPECT_EQ(0, stDefault.unAux2);
    EXPECT_EQ(0, stDefault.ucAux3);
    EXPECT_EQ(0, stDefault.ucAux4);
    for (uint8_t uc : stDefault.aucData)
    {
        EXPECT_EQ(0, uc);
    }
    CRecordingHook stHook;
    const ZELX_NAV_SUBFRAME st = ZelSample::SampleNavSubframe();
    EXPECT_EQ(0u, stHook.Count());
    EXPECT_EQ(0x01020304u, st.ulAux1);
    EXPECT_EQ(0x0506, st.unAux2);
    EXPECT_EQ(0x07, st.ucAux3);
    EXPECT_EQ(0x08, st.ucAux4);
    for (size_t ulIdx = 0; ulIdx < 29; ++ulIdx)
    {
        EXPECT_EQ(0xA0 + ulIdx, st.aucData[ulIdx]);
    }
    EXPECT_TRUE(st == ZelSample::SampleNavSubframe());
    EXPECT_FALSE(st == stDefault);
}

TEST(AlmanacSubframe, OtherLengthsAreReported)
{
    uint8_t aucData[40];
    for (size_t ulIdx = 0; ulIdx < 40; ++ulIdx)
    {
        aucData[ulIdx] = static_cast<uint8_t>(ulIdx + 1);
    }
    CRecordingHook stHook;
    const ZELX_NAV_SUBFRAME stLong(1, 2, 3, aucData, 30, 4);
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    for (size_t ulIdx = 0; ulIdx < 29; ++ulIdx)
    {
        EXPECT_EQ(ulIdx + 1, stLong.aucData[ulIdx]);
    }
    EXPECT_EQ(4, stLong.ucAux4);
    stHook.Clear();
    const ZELX_NAV_SUBFRAME stShort(1, 2, 3, aucData, 10, 4);
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    for (size_t ulIdx = 0; ulIdx < 29; ++ulIdx)
    {
        EXPECT_EQ(ulIdx < 10 ? ulIdx + 1 : 0u, stShort.aucData[ulIdx]);
    }
    stHook.Clear();
    const ZELX_NAV_SUBFRAME stNull(1, 2, 3, nullptr, 29, 4);
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    EXPECT_EQ(0, stNull.aucData[0]);
    ZELX_NAV_SUBFRAME stOther = stShort;
    stOther.aucData[28] = 1;
    EXPECT_FALSE(stOther == stShort);
}
