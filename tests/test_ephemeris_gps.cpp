// The ephemeris family as a whole and its GPS member: class tree and slots,
// running numbering, relative comparison, the image contract of every class
// with an image, the Keplerian block, the GPS set and its update decision.

#include "test_ephemeris_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

using namespace ZELN;
using EphTest::Bytes;
using EphTest::CReportRecorder;
using ZelSample::FillKeplerGps;

namespace
{

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

} // namespace

// ------------------------------------------------------------------ class tree

TEST(EphemerisFamily, ClassTree)
{
    EXPECT_TRUE(std::is_abstract<ZELX_SAT_EPHEMERIS_BASE>::value);
    EXPECT_TRUE(std::has_virtual_destructor<ZELX_SAT_EPHEMERIS_BASE>::value);
    EXPECT_FALSE(std::is_abstract<ZELX_SAT_EPHEMERIS_COMMON>::value);
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS_PARAMS>::value));
    EXPECT_FALSE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS_PARAMS>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS, ZELX_SAT_EPHEMERIS_QZSS>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS_GALILEO>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS_GALILEO>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS_BEIDOU>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS_BEIDOU>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS_NAVIC>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS_NAVIC>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS_GLONASS>::value));
    EXPECT_FALSE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS_GLONASS>::value));
    EXPECT_TRUE((std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, ZELX_SAT_EPHEMERIS_SBAS>::value));
    EXPECT_FALSE((std::is_base_of<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS_SBAS>::value));
}

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
TEST(EphemerisFamily, VirtualSlotOrder)
{
    // Entries 0 and 1 are the two destructor entries of slot 0.
    EXPECT_EQ(2, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::getSvId));
    EXPECT_EQ(3, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::getSatId));
    EXPECT_EQ(4, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::getToe));
    EXPECT_EQ(5, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::getIod));
    EXPECT_EQ(6, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::isHealthy));
    EXPECT_EQ(7, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::getPrnOffset));
    EXPECT_EQ(8, VtableEntry(&ZELX_SAT_EPHEMERIS_BASE::getFirstPrn));
    EXPECT_EQ(2, VtableEntry(&ZELX_SAT_EPHEMERIS_COMMON::clear));
    EXPECT_EQ(2, VtableEntry(&ZELX_SAT_EPHEMERIS_PARAMS::clear));
    // The GPS class adds its third slot on the COMMON side.
    EXPECT_EQ(3, VtableEntry(&ZELX_SAT_EPHEMERIS::getFitIntervalHours));
    EXPECT_EQ(3, VtableEntry(&ZELX_SAT_EPHEMERIS_QZSS::getFitIntervalHours));
    EXPECT_EQ(2, VtableEntry(&ZELX_SAT_EPHEMERIS_GALILEO::clear));
}
#endif

TEST(EphemerisFamily, PolymorphicUseThroughTheInterface)
{
    ZELX_SAT_EPHEMERIS_GLONASS stGlo;
    stGlo.uiSvId = 40;
    ZELX_SAT_EPHEMERIS stGps = ZelSample::GpsEphemeris();
    const ZELX_SAT_EPHEMERIS_BASE* apEph[] = {&stGps, &stGlo};
    EXPECT_EQ(5, apEph[0]->getSvId());
    EXPECT_EQ(ZELSATSYSTEM_GPS, apEph[0]->getSatId().eSatSystem);
    EXPECT_EQ(ZELSATSYSTEM_GLONASS, apEph[1]->getSatId().eSatSystem);
    EXPECT_EQ(8, apEph[1]->getSatId().uiSatNumber);
    EXPECT_TRUE(apEph[0]->isHealthy());
    // Clearing through the block's interface reaches the class's own clear.
    ZELX_SAT_EPHEMERIS_COMMON& rBlock = stGps;
    rBlock.clear();
    EXPECT_FALSE(stGps.bValid);
    EXPECT_EQ(1, stGps.unHealth);
}

// Each class's clear resets its own part and what it inherits, and no more:
// a base's clear called on a derived record leaves the derived fields.
TEST(EphemerisFamily, EachClearResetsItsOwnPart)
{
    ZELX_SAT_EPHEMERIS stGps = ZelSample::GpsEphemeris();
    stGps.ZELX_SAT_EPHEMERIS_COMMON::clear();
    EXPECT_EQ(0.0, stGps.adKepler[ZELEPHKEPLER_SQRTA]);
    EXPECT_EQ(0.0f, stGps.afHarmonics[5]);
    EXPECT_EQ(5, stGps.uiSvId);
    EXPECT_TRUE(stGps.bValid);
    EXPECT_EQ(77, stGps.unIodc);
    ZELX_SAT_EPHEMERIS_QZSS stQzs = ZelSample::QzssEphemeris();
    stQzs.ZELX_SAT_EPHEMERIS::clear();
    EXPECT_TRUE(static_cast<const ZELX_SAT_EPHEMERIS&>(stQzs) == ZELX_SAT_EPHEMERIS());
    EXPECT_FALSE(stQzs.bValid);
    EXPECT_EQ(1, stQzs.ucQzss1);
    EXPECT_EQ(0x06060606u, stQzs.ulQzss6);
    // Through the block's virtual clear the whole record is reset.
    ZELX_SAT_EPHEMERIS_COMMON& rBlock = stQzs;
    rBlock.clear();
    EXPECT_EQ(0, stQzs.ucQzss1);
    EXPECT_EQ(0u, stQzs.ulQzss6);
}

// ------------------------------------------------------------------ rules every class keeps

namespace
{

template <class R> class EphemerisRecord : public ::testing::Test
{
};
typedef ::testing::Types<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS, ZELX_SAT_EPHEMERIS_QZSS,
                         ZELX_SAT_EPHEMERIS_GLONASS, ZELX_SAT_EPHEMERIS_GALILEO, ZELX_SAT_EPHEMERIS_BEIDOU,
                         ZELX_SAT_EPHEMERIS_NAVIC, ZELX_SAT_EPHEMERIS_SBAS>
    EphemerisClasses;
TYPED_TEST_SUITE(EphemerisRecord, EphemerisClasses);

template <class R> class EphemerisImage : public ::testing::Test
{
};
typedef ::testing::Types<ZELX_SAT_EPHEMERIS_COMMON, ZELX_SAT_EPHEMERIS, ZELX_SAT_EPHEMERIS_QZSS,
                         ZELX_SAT_EPHEMERIS_GLONASS, ZELX_SAT_EPHEMERIS_GALILEO, ZELX_SAT_EPHEMERIS_BEIDOU,
                         ZELX_SAT_EPHEMERIS_NAVIC>
    ImagedClasses;
TYPED_TEST_SUITE(EphemerisImage, ImagedClasses);

} // namespace

TYPED_TEST(EphemerisRecord, CopyEqualityAndItsNegation)
{
    const TypeParam stSample = EphTest::SampleOf<TypeParam>();
    const TypeParam stCopy(stSample);
    EXPECT_TRUE(stCopy == stSample);
    EXPECT_FALSE(stCopy != stSample);
    TypeParam stAssigned;
    stAssigned = stSample;
    EXPECT_TRUE(stAssigned == stSample);
    // The sample holds a set; a default record does not.
    EXPECT_FALSE(TypeParam() == stSample);
    EXPECT_TRUE(TypeParam() != stSample);
}

// The sample writes its hand-built image; the whole contract of an image
// holds; the size is the stated constant.
TYPED_TEST(EphemerisImage, GoldenImageAndContract)
{
    typedef EphTest::SImaged<TypeParam> T;
    const Bytes vecGolden = T::Golden();
    EXPECT_EQ(T::c_ulSize, vecGolden.size());
    EXPECT_EQ(T::c_ulSize, TypeParam().getSize());
    ZelTest::ExpectExtImage(EphTest::SampleOf<TypeParam>(), vecGolden, T::Rules());
}

// A record loaded from an image writes the same bytes again: fields outside
// the equality come through as well.
TYPED_TEST(EphemerisImage, LoadedImageWritesItselfBack)
{
    CReportRecorder stRec;
    const Bytes vecGolden = EphTest::SImaged<TypeParam>::Golden();
    TypeParam stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecGolden.data(), vecGolden.size()));
    EXPECT_EQ(vecGolden, EphTest::Save(stLoaded, vecGolden.size()));
    EXPECT_EQ(0u, stRec.Count());
}

// An empty buffer has no version byte to look at: it fails as a short one.
// No refused load touches the record, not even a field outside the equality.
TYPED_TEST(EphemerisImage, RefusedLoadsLeaveTheRecord)
{
    typedef EphTest::SImaged<TypeParam> T;
    const Bytes vecGolden = T::Golden();
    TypeParam stTarget = EphTest::SampleOf<TypeParam>();
    const Bytes vecBefore = EphTest::Save(stTarget, vecGolden.size());
    const TypeParam stDefault;
    Bytes vecDefault = EphTest::Save(stDefault, vecGolden.size());
    CReportRecorder stRec;
    EXPECT_FALSE(stTarget.loadData(vecDefault.data(), 0));
    EXPECT_EQ(ZelTest::Falses(1), stRec.Texts());
    EXPECT_FALSE(stTarget.loadData(vecDefault.data(), vecDefault.size() - 1));
    EXPECT_FALSE(stTarget.loadData(nullptr, vecDefault.size()));
    EXPECT_EQ(ZelTest::Falses(3), stRec.Texts());
    if (T::Rules().iVersion >= 0)
    {
        vecDefault[0] = static_cast<unsigned char>(vecDefault[0] + 1);
        EXPECT_FALSE(stTarget.loadData(vecDefault.data(), vecDefault.size()));
        EXPECT_EQ(4u, stRec.Count());
    }
    EXPECT_EQ(vecBefore, EphTest::Save(stTarget, vecGolden.size()));
}

// Order of the checks: a versioned image is refused for its version before
// its length is looked at, except NavIC, which tests the length first.
TYPED_TEST(EphemerisImage, ShortImageOfAnotherVersion)
{
    typedef EphTest::SImaged<TypeParam> T;
    Bytes vecImage = T::Golden();
    vecImage[0] = static_cast<unsigned char>(vecImage[0] ^ 0x40);
    for (const size_t ulLength : {size_t(100), vecImage.size() - 1})
    {
        if (ulLength >= vecImage.size())
        {
            continue;
        }
        CReportRecorder stRec;
        TypeParam stTarget;
        EXPECT_FALSE(stTarget.loadData(vecImage.data(), ulLength)) << ulLength;
        EXPECT_EQ(std::vector<std::string>{T::ShortOldImageReport()}, stRec.Texts()) << ulLength;
    }
}

// Every truncation of a valid image fails; random images with the right
// version byte all load, write back the same bytes apart from bools, and can
// be asked and compared.
TYPED_TEST(EphemerisImage, TruncatedAndRandomImages)
{
    typedef EphTest::SImaged<TypeParam> T;
    CReportRecorder stRec; // swallows the reports of the garbage below
    const Bytes vecImage = T::Golden();
    const size_t ulSize = vecImage.size();
    for (size_t ulLength = 0; ulLength < ulSize; ++ulLength)
    {
        TypeParam stTarget;
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
        if (T::Rules().iVersion >= 0)
        {
            vecRandom[0] = vecImage[0];
        }
        TypeParam stTarget;
        ASSERT_TRUE(stTarget.loadData(vecRandom.data(), vecRandom.size()));
        Bytes vecExpected(vecRandom.begin(), vecRandom.begin() + static_cast<std::ptrdiff_t>(ulSize));
        for (const size_t ulOffset : T::Bools())
        {
            vecExpected[ulOffset] = vecExpected[ulOffset] != 0 ? 1 : 0;
        }
        EXPECT_EQ(vecExpected, EphTest::Save(stTarget, ulSize));
        if constexpr (std::is_base_of<ZELX_SAT_EPHEMERIS_BASE, TypeParam>::value)
        {
            (void)stTarget.getSatId();
            (void)stTarget.getToe();
            (void)stTarget.getIod();
            (void)stTarget.isHealthy();
            (void)stTarget.getPrn();
        }
        (void)(stTarget == stTarget);
        const TypeParam stCopy = stTarget;
        (void)(stCopy != stTarget);
    }
}

// ------------------------------------------------------------------ running numbering

TEST(EphemerisNumbering, ConstantsRowByRow)
{
    EXPECT_EQ(32, POS_MAX_PRN_GPS);
    EXPECT_EQ(56, POS_OFFSET_PRN_GAL);
    EXPECT_EQ(92, POS_OFFSET_PRN_BDS);
    EXPECT_EQ(155, POS_OFFSET_PRN_QZSS);
    EXPECT_EQ(165, POS_OFFSET_PRN_SBAS);
    EXPECT_EQ(185, POS_OFFSET_PRN_NAVIC);
    EXPECT_EQ(0, POS_SAT_EPH_GAL_SRC_INVALID);
}

TEST(EphemerisNumbering, TableRowByRow)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS stGps;
    stGps.uiSvId = 7;
    EXPECT_EQ(0, stGps.getPrnOffset());
    EXPECT_EQ(1, stGps.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_GPS, stGps.getSatId().eSatSystem);
    EXPECT_EQ(7, stGps.getSatId().uiSatNumber);

    ZELX_SAT_EPHEMERIS_GLONASS stGlo;
    stGlo.uiSvId = 33;
    EXPECT_EQ(32, stGlo.getPrnOffset());
    EXPECT_EQ(1, stGlo.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_GLONASS, stGlo.getSatId().eSatSystem);
    EXPECT_EQ(1, stGlo.getSatId().uiSatNumber);

    ZELX_SAT_EPHEMERIS_GALILEO stGal;
    stGal.uiSVID = 57;
    EXPECT_EQ(56, stGal.getPrnOffset());
    EXPECT_EQ(1, stGal.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_GALILEO, stGal.getSatId().eSatSystem);
    EXPECT_EQ(1, stGal.getSatId().uiSatNumber);

    ZELX_SAT_EPHEMERIS_SBAS stSbas;
    stSbas.uiSvId = 166;
    EXPECT_EQ(165, stSbas.getPrnOffset());
    EXPECT_EQ(120, stSbas.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_SBAS, stSbas.getSatId().eSatSystem);
    EXPECT_EQ(1, stSbas.getSatId().uiSatNumber);

    ZELX_SAT_EPHEMERIS_BEIDOU stBds;
    stBds.uiSvId = 93;
    EXPECT_EQ(92, stBds.getPrnOffset());
    EXPECT_EQ(1, stBds.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_BEIDOU, stBds.getSatId().eSatSystem);
    EXPECT_EQ(1, stBds.getSatId().uiSatNumber);

    ZELX_SAT_EPHEMERIS_QZSS stQzs;
    stQzs.uiSvId = 156;
    EXPECT_EQ(155, stQzs.getPrnOffset());
    EXPECT_EQ(193, stQzs.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_QZSS, stQzs.getSatId().eSatSystem);
    EXPECT_EQ(1, stQzs.getSatId().uiSatNumber);

    ZELX_SAT_EPHEMERIS_NAVIC stIrn;
    stIrn.ulPrn = 186;
    EXPECT_EQ(185, stIrn.getPrnOffset());
    EXPECT_EQ(1, stIrn.getFirstPrn());
    EXPECT_EQ(ZELSATSYSTEM_NAVIC, stIrn.getSatId().eSatSystem);
    EXPECT_EQ(1, stIrn.getSatId().uiSatNumber);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisNumbering, NumberUnderTheOffsetReportsAndWraps)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_GLONASS stGlo;
    stGlo.uiSvId = 20;
    const SZelSatID stGloId = stGlo.getSatId();
    EXPECT_EQ(ZELSATSYSTEM_GLONASS, stGloId.eSatSystem);
    EXPECT_EQ(244, stGloId.uiSatNumber); // 20 - 32 in 8 bits
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiSvId >= POS_MAX_PRN_GPS", stRec.Text());

    stRec.Clear();
    ZELX_SAT_EPHEMERIS_GALILEO stGal;
    stGal.uiSVID = 10;
    EXPECT_EQ(210, stGal.getSatId().uiSatNumber);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiSVID >= POS_OFFSET_PRN_GAL", stRec.Text());

    stRec.Clear();
    ZELX_SAT_EPHEMERIS_SBAS stSbas;
    stSbas.uiSvId = 120;
    EXPECT_EQ(211, stSbas.getSatId().uiSatNumber);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiSvId >= POS_OFFSET_PRN_SBAS", stRec.Text());

    stRec.Clear();
    ZELX_SAT_EPHEMERIS_BEIDOU stBds;
    stBds.uiSvId = 91;
    EXPECT_EQ(255, stBds.getSatId().uiSatNumber);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiSvId >= POS_OFFSET_PRN_BDS", stRec.Text());

    stRec.Clear();
    ZELX_SAT_EPHEMERIS_QZSS stQzs;
    stQzs.uiSvId = 1;
    EXPECT_EQ(102, stQzs.getSatId().uiSatNumber);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiPrn >= POS_OFFSET_PRN_QZSS", stRec.Text());

    stRec.Clear();
    ZELX_SAT_EPHEMERIS_NAVIC stIrn;
    stIrn.ulPrn = 5;
    EXPECT_EQ(76, stIrn.getSatId().uiSatNumber);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("ulPrn >= POS_OFFSET_PRN_NAVIC", stRec.Text());

    // GPS has no check.
    stRec.Clear();
    ZELX_SAT_EPHEMERIS stGps;
    stGps.uiSvId = 0;
    EXPECT_EQ(0, stGps.getSatId().uiSatNumber);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisNumbering, IndexNumberAndPrn)
{
    ZELX_SAT_EPHEMERIS_QZSS stQzs;
    stQzs.uiSvId = 156;
    EXPECT_EQ(193, stQzs.getPrn());
    EXPECT_EQ(0, stQzs.getSatIndex());
    EXPECT_EQ(1, stQzs.getSatNumber());
    ZELX_SAT_EPHEMERIS_SBAS stSbas;
    stSbas.uiSvId = 166;
    EXPECT_EQ(120, stSbas.getPrn());
    stSbas.uiSvId = 203;
    EXPECT_EQ(157, stSbas.getPrn());
    ZELX_SAT_EPHEMERIS stGps;
    stGps.uiSvId = 32;
    EXPECT_EQ(32, stGps.getPrn());
    EXPECT_EQ(31, stGps.getSatIndex());
    EXPECT_EQ(32, stGps.getSatNumber());
    // 8-bit arithmetic: GPS number 0 has index 255.
    stGps.uiSvId = 0;
    EXPECT_EQ(255, stGps.getSatIndex());
    ZELX_SAT_EPHEMERIS_NAVIC stIrn;
    stIrn.ulPrn = 0x100 + 190; // the low byte counts
    EXPECT_EQ(190, stIrn.getSvId());
    EXPECT_EQ(5, stIrn.getPrn());
}

// ------------------------------------------------------------------ relative comparison

TEST(EphemerisCompare, AreClose)
{
    EXPECT_TRUE(AreClose(0.0, 0.0, 1e-14));
    EXPECT_TRUE(AreClose(1.0, 1.0, 0.0));
    EXPECT_TRUE(AreClose(100.0, 100.0 * (1.0 + 1e-15), 1e-14));
    EXPECT_FALSE(AreClose(100.0, 100.0 * (1.0 + 1e-13), 1e-14));
    // The larger magnitude scales the tolerance, whatever the order.
    EXPECT_TRUE(AreClose(100.0, 101.0, 0.01));
    EXPECT_TRUE(AreClose(101.0, 100.0, 0.01));
    EXPECT_FALSE(AreClose(100.0, 101.1, 0.01));
    EXPECT_TRUE(AreClose(-5.0, -5.0000004, 1e-7));
    EXPECT_FALSE(AreClose(0.0, 1e-300, 1e-14));
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(AreClose(dNaN, dNaN, 1.0));
    const double dInf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(AreClose(dInf, dInf, 1e-14));
}

TEST(EphemerisCompare, AreCloseF)
{
    EXPECT_TRUE(AreCloseF(0.0f, 0.0f, 1e-6f));
    EXPECT_TRUE(AreCloseF(1000.0f, 1000.0f + 0.0005f, 1e-6f));
    EXPECT_FALSE(AreCloseF(1000.0f, 1000.002f, 1e-6f));
    EXPECT_TRUE(AreCloseF(-3.0f, -3.0000019f, 1e-6f));
    EXPECT_FALSE(AreCloseF(std::nanf(""), std::nanf(""), 1.0f));
}

// ------------------------------------------------------------------ Keplerian block

TEST(EphemerisCommon, DefaultsClearAndA)
{
    ZELX_SAT_EPHEMERIS_COMMON stBlock;
    for (double d : stBlock.adKepler)
    {
        EXPECT_EQ(0.0, d);
    }
    for (float f : stBlock.afHarmonics)
    {
        EXPECT_EQ(0.0f, f);
    }
    FillKeplerGps(stBlock);
    EXPECT_EQ(5153.6, stBlock.getSqrtA());
    EXPECT_EQ(5153.6 * 5153.6, stBlock.getA());
    stBlock.setSqrtA(2.0);
    EXPECT_EQ(4.0, stBlock.getA());
    EXPECT_EQ(96u, stBlock.getSize());
    stBlock.clear();
    EXPECT_EQ(ZELX_SAT_EPHEMERIS_COMMON(), stBlock);
    EXPECT_EQ(0.0, stBlock.adKepler[2]);
    EXPECT_EQ(0.0f, stBlock.afHarmonics[5]);
}

TEST(EphemerisCommon, IndexedSettersGuardTheArrays)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS_COMMON stBlock;
    stBlock.setKepler(8, 3.0);
    stBlock.setHarmonic(5, 4.0f);
    EXPECT_EQ(3.0, stBlock.adKepler[8]);
    EXPECT_EQ(4.0f, stBlock.afHarmonics[5]);
    EXPECT_EQ(0u, stRec.Count());
    const ZELX_SAT_EPHEMERIS_COMMON stBefore = stBlock;
    stBlock.setKepler(9, 1.0);
    stBlock.setHarmonic(6, 1.0f);
    ASSERT_EQ(2u, stRec.Count());
    EXPECT_EQ("false", stRec.Text(0));
    EXPECT_EQ("false", stRec.Text(1));
    EXPECT_EQ(0, std::memcmp(stBefore.adKepler, stBlock.adKepler, sizeof(stBlock.adKepler)));
    EXPECT_EQ(0, std::memcmp(stBefore.afHarmonics, stBlock.afHarmonics, sizeof(stBlock.afHarmonics)));
}

TEST(EphemerisCommon, EqualityTolerances)
{
    ZELX_SAT_EPHEMERIS_COMMON a;
    FillKeplerGps(a);
    ZELX_SAT_EPHEMERIS_COMMON b = a;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    // Indices 0 to 5 at 1e-14.
    b.adKepler[2] = a.adKepler[2] * (1.0 + 1e-15);
    EXPECT_TRUE(a == b);
    b.adKepler[2] = a.adKepler[2] * (1.0 + 1e-13);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    b = a;
    b.adKepler[5] = a.adKepler[5] * (1.0 + 1e-12);
    EXPECT_FALSE(a == b);
    // Indices 6 to 8 at 1e-6.
    b = a;
    b.adKepler[8] = a.adKepler[8] * (1.0 + 1e-7);
    EXPECT_TRUE(a == b);
    b.adKepler[8] = a.adKepler[8] * (1.0 + 1e-5);
    EXPECT_FALSE(a == b);
    b = a;
    b.adKepler[6] = a.adKepler[6] * (1.0 + 1e-7);
    EXPECT_TRUE(a == b);
    // Harmonics at 1e-6 in 32 bits.
    b = a;
    b.afHarmonics[2] = 200.50002f;
    EXPECT_TRUE(a == b);
    b.afHarmonics[2] = 200.51f;
    EXPECT_FALSE(a == b);
    // NaN makes the block unequal to itself.
    b = a;
    b.adKepler[0] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(b == b);
}

// ------------------------------------------------------------------ block with two values

TEST(EphemerisParams, CopyClearAndEquality)
{
    ZELX_SAT_EPHEMERIS_PARAMS a;
    EXPECT_EQ(0, a.getAux1());
    EXPECT_EQ(0.0, a.getAux2());
    FillKeplerGps(a);
    a.setAux1(9);
    a.setAux2(2.5);
    const ZELX_SAT_EPHEMERIS_PARAMS b(a);
    EXPECT_EQ(9, b.ucAux1);
    EXPECT_EQ(2.5, b.dAux2);
    EXPECT_TRUE(a == b);
    ZELX_SAT_EPHEMERIS_PARAMS c;
    c = a;
    EXPECT_TRUE(c == a);
    // clear() zeroes the block and keeps the two values.
    c.clear();
    EXPECT_EQ(0.0, c.adKepler[2]);
    EXPECT_EQ(9, c.ucAux1);
    EXPECT_EQ(2.5, c.dAux2);
    c = a;
    c.ucAux1 = 10;
    EXPECT_TRUE(c != a);
    c = a;
    c.dAux2 = 2.5000001;
    EXPECT_FALSE(c == a);
}

// ------------------------------------------------------------------ GPS set

TEST(EphemerisGps, Defaults)
{
    const ZELX_SAT_EPHEMERIS st;
    EXPECT_EQ(0, st.uiSvId);
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(0xFFFFFFFFu, st.ulTransmissionTime);
    EXPECT_EQ(0, st.unGPSWeek);
    EXPECT_EQ(0, st.unUraIndex);
    for (uint16_t un : st.aunWords)
    {
        EXPECT_EQ(0, un);
    }
    EXPECT_EQ(0, st.unIodc);
    EXPECT_EQ(0.0f, st.fGroupDelay);
    EXPECT_EQ(0u, st.ulToe);
    EXPECT_EQ(0u, st.ulToc);
    for (float f : st.afClock)
    {
        EXPECT_EQ(0.0f, f);
    }
    EXPECT_EQ(0xFF, st.ucFitIntervalFlag);
    EXPECT_EQ(1, st.unHealth);
    EXPECT_FALSE(st.isHealthy());
    EXPECT_EQ(145u, st.getSize());
    EXPECT_EQ(0.0, st.adKepler[0]);
}

TEST(EphemerisGps, ClearRestoresDefaults)
{
    ZELX_SAT_EPHEMERIS st = ZelSample::GpsEphemeris();
    st.clear();
    const ZELX_SAT_EPHEMERIS stDefault;
    EXPECT_TRUE(st == stDefault);
    EXPECT_FALSE(st.bValid);
    EXPECT_EQ(0xFFFFFFFFu, st.ulTransmissionTime);
    EXPECT_EQ(0xFF, st.ucFitIntervalFlag);
    EXPECT_EQ(1, st.unHealth);
    EXPECT_EQ(0.0, st.adKepler[2]);
    EXPECT_EQ(0, st.aunWords[4]);
}

TEST(EphemerisGps, InterfaceSlots)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS st = ZelSample::GpsEphemeris();
    EXPECT_EQ(5, st.getSvId());
    EXPECT_EQ(77u, st.getIod());
    EXPECT_TRUE(st.isHealthy());
    const SMjdTime stToe = st.getToe();
    EXPECT_EQ(44244 + 2300 * 7 + 4, stToe.m_lMjdDay);
    EXPECT_EQ(0.0, stToe.m_dMjdFractMilliseconds);
    EXPECT_EQ(MJDACC_NANOSECOND, stToe.m_eAccuracy);
    EXPECT_EQ(338400u, st.getTransmissionTime());
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGps, SetHealth)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS st;
    st.setHealth(0x3F);
    EXPECT_EQ(0x3F, st.unHealth);
    EXPECT_EQ(0u, stRec.Count());
    st.setHealth(0x40);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("0 == (unHealth & ~0x3f)", stRec.Text());
    EXPECT_EQ(0, st.unHealth);
    EXPECT_TRUE(st.isHealthy());
    st.setHealth(0x41);
    EXPECT_EQ(1, st.unHealth);
    EXPECT_EQ(2u, stRec.Count());
    stRec.Clear();
    st.setHealthBool(true);
    EXPECT_EQ(32, st.unHealth);
    EXPECT_FALSE(st.isHealthy());
    st.setHealthBool(false);
    EXPECT_EQ(0, st.unHealth);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGps, Setters)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS st;
    st.setSvId(3);
    st.setValid(true);
    st.setTransmissionTime(100);
    st.setGPSWeek(2000);
    st.setUraIndex(4);
    st.setWord(4, 99);
    st.setIodc(12);
    st.setGroupDelay(1.5f);
    st.setToe(7200);
    st.setToc(7201);
    st.setClock(2, 3.5f);
    st.setFitIntervalFlag(1);
    EXPECT_EQ(3, st.uiSvId);
    EXPECT_TRUE(st.bValid);
    EXPECT_EQ(100u, st.ulTransmissionTime);
    EXPECT_EQ(2000, st.unGPSWeek);
    EXPECT_EQ(4, st.unUraIndex);
    EXPECT_EQ(99, st.aunWords[4]);
    EXPECT_EQ(12, st.unIodc);
    EXPECT_EQ(1.5f, st.fGroupDelay);
    EXPECT_EQ(7200u, st.ulToe);
    EXPECT_EQ(7201u, st.ulToc);
    EXPECT_EQ(3.5f, st.afClock[2]);
    EXPECT_EQ(1, st.ucFitIntervalFlag);
    EXPECT_EQ(0u, stRec.Count());
    st.setWord(5, 1);
    st.setClock(3, 1.0f);
    EXPECT_EQ(2u, stRec.Count());
    EXPECT_EQ(99, st.aunWords[4]);
    EXPECT_EQ(3.5f, st.afClock[2]);
}

TEST(EphemerisGps, EqualityFieldByField)
{
    const ZELX_SAT_EPHEMERIS a = ZelSample::GpsEphemeris();
    ZELX_SAT_EPHEMERIS b = a;
    EXPECT_TRUE(a == b);
    // bValid and ulTransmissionTime take no part.
    b.bValid = false;
    b.ulTransmissionTime = 1;
    EXPECT_TRUE(a == b);

    auto expectDiffers = [&a](void (*fnChange)(ZELX_SAT_EPHEMERIS&), const char* szWhat)
    {
        ZELX_SAT_EPHEMERIS c = a;
        fnChange(c);
        EXPECT_FALSE(a == c) << szWhat;
        EXPECT_TRUE(a != c) << szWhat;
    };
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.adKepler[1] = 0.02; }, "block");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.uiSvId = 6; }, "uiSvId");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.unHealth = 1; }, "unHealth");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.unGPSWeek = 2301; }, "unGPSWeek");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.unUraIndex = 3; }, "unUraIndex");
    for (size_t i = 0; i < 5; ++i)
    {
        ZELX_SAT_EPHEMERIS c = a;
        c.aunWords[i] = 1000;
        EXPECT_FALSE(a == c) << "aunWords " << i;
    }
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.unIodc = 78; }, "unIodc");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.fGroupDelay = -1.2e-8f; }, "fGroupDelay");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.ulToe = 345616; }, "ulToe");
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.ulToc = 345616; }, "ulToc");
    for (size_t i = 0; i < 3; ++i)
    {
        ZELX_SAT_EPHEMERIS c = a;
        c.afClock[i] = 1.0f;
        EXPECT_FALSE(a == c) << "afClock " << i;
    }
    expectDiffers([](ZELX_SAT_EPHEMERIS& c) { c.ucFitIntervalFlag = 1; }, "ucFitIntervalFlag");
    // 32-bit values at 1e-6.
    b = a;
    b.fGroupDelay = a.fGroupDelay * (1.0f + 2e-7f);
    EXPECT_TRUE(a == b);
    b = a;
    b.afClock[0] = a.afClock[0] * (1.0f + 2e-7f);
    EXPECT_TRUE(a == b);
}

// The fields outside the equality are in the image too.
TEST(EphemerisGps, ImageCarriesValidityAndTransmissionTime)
{
    CReportRecorder stRec;
    const Bytes vecGolden = EphTest::GoldenGps();
    ZELX_SAT_EPHEMERIS stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecGolden.data(), vecGolden.size()));
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(338400u, stLoaded.ulTransmissionTime);
    EXPECT_EQ(0, stLoaded.ucFitIntervalFlag);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGps, RoundTripRestoresValidAndTransmissionTime)
{
    ZELX_SAT_EPHEMERIS st = ZelSample::GpsEphemeris();
    st.ulTransmissionTime = 0xFFFFFFFF;
    Bytes vecImage = EphTest::Save(st, 145);
    ASSERT_EQ(145u, vecImage.size());
    ZELX_SAT_EPHEMERIS stLoaded;
    ASSERT_TRUE(stLoaded.loadData(vecImage.data(), vecImage.size()));
    EXPECT_TRUE(stLoaded.bValid);
    EXPECT_EQ(0xFFFFFFFFu, stLoaded.ulTransmissionTime);
    // A longer buffer is fine; only the image is read.
    Bytes vecLong = vecImage;
    vecLong.resize(300, 0x77);
    ZELX_SAT_EPHEMERIS stLoaded2;
    ASSERT_TRUE(stLoaded2.loadData(vecLong.data(), vecLong.size()));
    EXPECT_TRUE(stLoaded2 == st);
    // Any non-zero valid byte reads as true.
    vecImage[1] = 0x80;
    ASSERT_TRUE(stLoaded2.loadData(vecImage.data(), vecImage.size()));
    EXPECT_TRUE(stLoaded2.bValid);
}

// ------------------------------------------------------------------ GPS update decision

namespace
{

// A valid, healthy set at a time of ephemeris (seconds of week 2300).
ZELX_SAT_EPHEMERIS GpsAt(uint32_t ulToe, uint16_t unIodc)
{
    ZELX_SAT_EPHEMERIS st = ZelSample::GpsEphemeris();
    st.ulToe = ulToe;
    st.ulToc = ulToe;
    st.unIodc = unIodc;
    return st;
}

const uint32_t c_ulNoon = 4 * 86400 + 12 * 3600; // day 4, 12:00:00

} // namespace

TEST(EphemerisGpsUpdate, InvalidNewNeverTaken)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    ZELX_SAT_EPHEMERIS stNew = GpsAt(c_ulNoon + 7200, 11);
    stNew.bValid = false;
    EXPECT_FALSE(isNewEphemerisGps(stCur, stNew));
    stCur.bValid = false; // also when the held one is invalid
    EXPECT_FALSE(isNewEphemerisGps(stCur, stNew));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGpsUpdate, InvalidHeldAlwaysGivesWay)
{
    ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    stCur.bValid = false;
    // Even an older, equal-issue set.
    const ZELX_SAT_EPHEMERIS stNew = GpsAt(c_ulNoon - 7200, 10);
    EXPECT_TRUE(isNewEphemerisGps(stCur, stNew));
}

TEST(EphemerisGpsUpdate, HealthChangeTakenEvenWhenOlder)
{
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    ZELX_SAT_EPHEMERIS stNew = GpsAt(c_ulNoon - 3 * 3600, 10);
    stNew.setHealthBool(true);
    EXPECT_TRUE(isNewEphemerisGps(stCur, stNew));
    // And back to healthy.
    EXPECT_TRUE(isNewEphemerisGps(stNew, stCur));
}

TEST(EphemerisGpsUpdate, StepBackAllowance)
{
    // 60 s before the held set's hour, new issue: taken; 65 s before: not.
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    EXPECT_TRUE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon - 60, 11)));
    EXPECT_FALSE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon - 65, 11)));
    EXPECT_TRUE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon - 64, 11)));
}

TEST(EphemerisGpsUpdate, StepBackFromTheRoundedHour)
{
    // Held at 11:59:44, which rounds to 12:00:00: the limit is 11:58:56.
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon - 16, 10);
    EXPECT_TRUE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon - 64, 11)));
    EXPECT_FALSE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon - 65, 11)));
    // Held at 12:29:00 rounds to 12:00:00 as well.
    const ZELX_SAT_EPHEMERIS stCur2 = GpsAt(c_ulNoon + 29 * 60, 10);
    EXPECT_TRUE(isNewEphemerisGps(stCur2, GpsAt(c_ulNoon - 60, 11)));
    // Held at 12:31:00 rounds to 13:00:00.
    const ZELX_SAT_EPHEMERIS stCur3 = GpsAt(c_ulNoon + 31 * 60, 10);
    EXPECT_FALSE(isNewEphemerisGps(stCur3, GpsAt(c_ulNoon + 3600 - 65, 11)));
    EXPECT_TRUE(isNewEphemerisGps(stCur3, GpsAt(c_ulNoon + 3600 - 60, 11)));
}

TEST(EphemerisGpsUpdate, NewIssueOfData)
{
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    EXPECT_TRUE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon, 11)));
}

TEST(EphemerisGpsUpdate, TimeChangeUnderSameIssue)
{
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    EXPECT_TRUE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon + 16, 10)));
    // Earlier, within the allowance, same issue: also taken.
    EXPECT_TRUE(isNewEphemerisGps(stCur, GpsAt(c_ulNoon - 32, 10)));
}

TEST(EphemerisGpsUpdate, SameSetNotTakenWithoutReport)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    ZELX_SAT_EPHEMERIS stNew = stCur;
    EXPECT_FALSE(isNewEphemerisGps(stCur, stNew));
    // Equal in all but the transmission time.
    stNew.ulTransmissionTime = 345000;
    EXPECT_FALSE(isNewEphemerisGps(stCur, stNew));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(EphemerisGpsUpdate, ChangedContentUnderSameIssueReportsAndKeeps)
{
    CReportRecorder stRec;
    const ZELX_SAT_EPHEMERIS stCur = GpsAt(c_ulNoon, 10);
    ZELX_SAT_EPHEMERIS stNew = stCur;
    stNew.afClock[0] = 2.0e-4f;
    EXPECT_FALSE(isNewEphemerisGps(stCur, stNew));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("rEphNew == rEphCurrent", stRec.Text());
}

TEST(EphemerisGpsUpdate, OrbitStoreScenario)
{
    CReportRecorder stRec;
    ZELX_SAT_EPHEMERIS stHeld; // the store starts empty
    struct SStep
    {
        ZELX_SAT_EPHEMERIS stEph;
        bool bExpected;
        const char* szWhat;
    };
    ZELX_SAT_EPHEMERIS stFirst = GpsAt(c_ulNoon, 10);
    ZELX_SAT_EPHEMERIS stRepeat = stFirst;
    stRepeat.ulTransmissionTime = stFirst.ulTransmissionTime + 30;
    ZELX_SAT_EPHEMERIS stNewIod = GpsAt(c_ulNoon, 11);
    ZELX_SAT_EPHEMERIS stNewToe = GpsAt(c_ulNoon + 7200, 11);
    ZELX_SAT_EPHEMERIS stUnhealthy = stNewToe;
    stUnhealthy.setHealthBool(true);
    ZELX_SAT_EPHEMERIS stInvalid = GpsAt(c_ulNoon + 14400, 12);
    stInvalid.bValid = false;
    ZELX_SAT_EPHEMERIS stHealthyAgain = GpsAt(c_ulNoon + 14400, 13);
    ZELX_SAT_EPHEMERIS stOlder = GpsAt(c_ulNoon + 7200, 14);
    const SStep astSteps[] = {
        {stFirst, true, "first set into an empty store"},
        {stRepeat, false, "same set repeated"},
        {stNewIod, true, "new issue of data"},
        {stNewToe, true, "new time of ephemeris"},
        {stNewToe, false, "repeated again"},
        {stUnhealthy, true, "health change"},
        {stInvalid, false, "invalid new set"},
        {stHealthyAgain, true, "healthy again, later"},
        {stOlder, false, "older set"},
    };
    for (const SStep& rStep : astSteps)
    {
        const bool bTaken = isNewEphemerisGps(stHeld, rStep.stEph);
        EXPECT_EQ(rStep.bExpected, bTaken) << rStep.szWhat;
        if (bTaken)
        {
            stHeld = rStep.stEph;
        }
    }
    EXPECT_EQ(13, stHeld.unIodc);
    // An invalid held set gives way to anything valid.
    stHeld.bValid = false;
    EXPECT_TRUE(isNewEphemerisGps(stHeld, stOlder));
    EXPECT_EQ(0u, stRec.Count());
}
