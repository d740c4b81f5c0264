#include <ZelTypes/Core/Common/ZelFrequencyManager.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>
#include <ZelTypes/Core/Common/ZelObsInfo.h>

#include "ZelTestHooks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace ZELN;

namespace
{

const double c_dC = 299792458.0;
const EZelSatSystem c_eSys9 = static_cast<EZelSatSystem>(9);
const char* const c_szGloSlot = "rSatID.uiSatNumber - 1 < ZEL_DEF_MAXSATID_GLONASS";
const char* const c_szIonoSame = "!\"Iono-coefficient not defined if the two frequencies are the same!\"";

class CRecorder : public ZelTest::CRecordingHook
{
public:
    using ZelTest::CRecordingHook::Count;
    size_t Count(const std::string& strText) const
    {
        const std::vector<std::string> vecTexts = Texts();
        return static_cast<size_t>(std::count(vecTexts.begin(), vecTexts.end(), strText));
    }
};

SZelSatID Sat(EZelSatSystem eSys, int iNumber)
{
    return SZelSatID(eSys, static_cast<uint8_t>(iNumber));
}

// A manager of the test's own, with a lock that outlives it.
struct SLocalMgr
{
    CZelMutex stLock;
    CZelFrequencyMgr stMgr{&stLock};
};

ZelGlonassFrequencies AllChannels(int iChannel)
{
    ZelGlonassFrequencies stFrequencies;
    for (int8_t& rcChannel : stFrequencies.acChannels)
    {
        rcChannel = static_cast<int8_t>(iChannel);
    }
    return stFrequencies;
}

// A channel per slot: -7 to 13 and round again.
ZelGlonassFrequencies MixedChannels()
{
    ZelGlonassFrequencies stFrequencies;
    for (int iSlot = 0; iSlot < 24; ++iSlot)
    {
        stFrequencies.acChannels[iSlot] = static_cast<int8_t>(-7 + iSlot % 21);
    }
    return stFrequencies;
}

double G1(int iChannel)
{
    return iChannel * 562500.0 + 1602000000.0;
}

double G2(int iChannel)
{
    return iChannel * 437500.0 + 1246000000.0;
}

// Nominal carriers, typed from the frequency plan.
const double c_adFirstTable[7] = {0.0,          1575420000.0, 1227600000.0, 1176450000.0,
                                  1207140000.0, 1191795000.0, 1278750000.0};
const double c_adBdsTable[7] = {0.0,          1561098000.0, 1207140000.0, 1268520000.0,
                                1575420000.0, 1176450000.0, 0.0};

// Stored wavelengths, c over the carriers to 16 digits.
const double c_adFirstWavelengths[7] = {0.0,
                                        0.1902936727983649,
                                        0.2442102134245683,
                                        0.2548280487908539,
                                        0.2483493695843067,
                                        0.251547000952345,
                                        0.2344418048875855};
const double c_adBdsWavelengths[7] = {
    0.0, 0.1920394863102765, 0.2483493695843067, 0.2363324646044209, 0.1902936727983649, 0.2548280487908539,
    0.0};

// ---------------------------------------------------------------------------
// ZelGlonassFrequencies
// ---------------------------------------------------------------------------

TEST(GlonassFrequencies, DefaultIsAllUnknown)
{
    const ZelGlonassFrequencies stFrequencies;
    for (const int8_t cChannel : stFrequencies.acChannels)
    {
        EXPECT_EQ(-111, cChannel);
        EXPECT_EQ(0x91, static_cast<uint8_t>(cChannel));
    }
    EXPECT_EQ(24u, stFrequencies.getSize());
}

TEST(GlonassFrequencies, ValidChannels)
{
    for (int iChannel = -128; iChannel <= 127; ++iChannel)
    {
        EXPECT_EQ(iChannel >= -7 && iChannel <= 13,
                  ZelGlonassFrequencies::IsValidChannel(static_cast<int8_t>(iChannel)))
            << iChannel;
    }
    EXPECT_FALSE(ZelGlonassFrequencies::IsValidChannel(-111));
}

TEST(GlonassFrequencies, Equality)
{
    ZelGlonassFrequencies a = MixedChannels();
    ZelGlonassFrequencies b = MixedChannels();
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    b.acChannels[23] = 12;
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    b = a;
    b.acChannels[0] = -111;
    EXPECT_TRUE(a != b);
}

TEST(GlonassFrequencies, GoldenImage)
{
    ZelGlonassFrequencies stFrequencies;
    stFrequencies.acChannels[0] = 1;
    stFrequencies.acChannels[1] = -4;
    stFrequencies.acChannels[2] = 13;
    stFrequencies.acChannels[5] = -7;
    stFrequencies.acChannels[23] = 0;

    // Expected bytes by offset: unknown is 0x91 everywhere else.
    unsigned char aucExpected[24];
    std::memset(aucExpected, 0x91, sizeof(aucExpected));
    const unsigned char ucOne = 0x01, ucMinus4 = 0xFC, uc13 = 0x0D, ucMinus7 = 0xF9, ucZero = 0x00;
    std::memcpy(aucExpected + 0, &ucOne, 1);
    std::memcpy(aucExpected + 1, &ucMinus4, 1);
    std::memcpy(aucExpected + 2, &uc13, 1);
    std::memcpy(aucExpected + 5, &ucMinus7, 1);
    std::memcpy(aucExpected + 23, &ucZero, 1);

    unsigned char aucOut[24];
    std::memset(aucOut, 0xCD, sizeof(aucOut));
    uint64_t ulOffset = 99;
    {
        CRecorder stRec;
        EXPECT_TRUE(stFrequencies.saveData(aucOut, 24, &ulOffset));
        EXPECT_EQ(0u, stRec.Count());
    }
    EXPECT_EQ(24u, ulOffset);
    EXPECT_EQ(0, std::memcmp(aucExpected, aucOut, 24));

    ZelGlonassFrequencies stRead = AllChannels(5);
    ulOffset = 99;
    {
        CRecorder stRec;
        EXPECT_TRUE(stRead.loadData(aucExpected, 24, &ulOffset));
        EXPECT_EQ(0u, stRec.Count());
    }
    EXPECT_EQ(24u, ulOffset);
    EXPECT_TRUE(stRead == stFrequencies);
}

TEST(GlonassFrequencies, ShortAndNullBuffers)
{
    const ZelGlonassFrequencies stFrequencies = MixedChannels();
    unsigned char aucOut[24];
    std::memset(aucOut, 0xCD, sizeof(aucOut));
    uint64_t ulOffset = 99;
    {
        CRecorder stRec;
        EXPECT_FALSE(stFrequencies.saveData(aucOut, 23, &ulOffset));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("false", stRec.Texts()[0]);
    }
    EXPECT_EQ(0u, ulOffset); // a leaf record clears the count first
    for (const unsigned char uc : aucOut)
    {
        EXPECT_EQ(0xCD, uc);
    }
    {
        CRecorder stRec;
        ulOffset = 99;
        EXPECT_FALSE(stFrequencies.saveData(nullptr, 24, &ulOffset));
        EXPECT_EQ(1u, stRec.Count("false"));
        EXPECT_EQ(0u, ulOffset);
    }

    const unsigned char aucImage[24] = {};
    ZelGlonassFrequencies stRead = MixedChannels();
    {
        CRecorder stRec;
        ulOffset = 99;
        EXPECT_FALSE(stRead.loadData(aucImage, 23, &ulOffset));
        EXPECT_EQ(1u, stRec.Count("false"));
        EXPECT_EQ(0u, ulOffset);
        EXPECT_FALSE(stRead.loadData(nullptr, 24, &ulOffset));
        EXPECT_EQ(2u, stRec.Count("false"));
    }
    EXPECT_TRUE(stRead == MixedChannels()); // untouched
}

TEST(GlonassFrequencies, TextExact)
{
    ZelGlonassFrequencies stFrequencies;
    stFrequencies.acChannels[0] = 1;
    stFrequencies.acChannels[1] = -4;
    stFrequencies.acChannels[2] = 13;
    stFrequencies.acChannels[3] = 0;
    std::ostringstream oss;
    oss << stFrequencies;
    EXPECT_EQ(
        "Channels, 1, -4, 13, 0, -111, -111, -111, -111, -111, -111, -111, -111, -111, -111, -111, -111, "
        "-111, -111, -111, -111, -111, -111, -111, -111",
        oss.str());
}

TEST(GlonassFrequencies, TextReadBack)
{
    const ZelGlonassFrequencies stSource = MixedChannels();
    std::ostringstream oss;
    oss << stSource;
    std::istringstream iss(oss.str());
    ZelGlonassFrequencies stRead;
    iss >> stRead;
    EXPECT_FALSE(iss.fail());
    EXPECT_TRUE(stRead == stSource);

    // The tag word is not compared.
    std::string strText = oss.str();
    strText.replace(0, 8, "Kanaele");
    std::istringstream issOther(strText);
    ZelGlonassFrequencies stOther;
    issOther >> stOther;
    EXPECT_FALSE(issOther.fail());
    EXPECT_TRUE(stOther == stSource);

    // A value out of 8 bits is narrowed.
    std::istringstream issWide(
        "Channels, 300, -129, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 0, -1, -2, -3, -4, "
        "-5, -6, -7, -111");
    ZelGlonassFrequencies stWide;
    issWide >> stWide;
    EXPECT_FALSE(issWide.fail());
    EXPECT_EQ(44, stWide.acChannels[0]);
    EXPECT_EQ(127, stWide.acChannels[1]);
    EXPECT_EQ(13, stWide.acChannels[14]);
    EXPECT_EQ(-111, stWide.acChannels[23]);
}

TEST(GlonassFrequencies, TextCutAndGarbage)
{
    // Cut after the third channel: the stream fails, the rest get the zero
    // of the wider temporary through which they are read.
    std::istringstream iss("Channels, 1, -4, 13");
    ZelGlonassFrequencies stRead;
    {
        CRecorder stRec;
        iss >> stRead;
        EXPECT_EQ(0u, stRec.Count());
    }
    EXPECT_TRUE(iss.fail());
    EXPECT_EQ(1, stRead.acChannels[0]);
    EXPECT_EQ(-4, stRead.acChannels[1]);
    EXPECT_EQ(13, stRead.acChannels[2]);
    for (int iSlot = 3; iSlot < 24; ++iSlot)
    {
        EXPECT_EQ(0, stRead.acChannels[iSlot]);
    }

    std::istringstream issEmpty("");
    ZelGlonassFrequencies stEmpty;
    issEmpty >> stEmpty;
    EXPECT_TRUE(issEmpty.fail());

    std::mt19937 stRng(7);
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        std::string strText(static_cast<size_t>(stRng() % 120), ' ');
        for (char& rc : strText)
        {
            rc = "0123456789-+, Chanels\n\txe."[stRng() % 26];
        }
        std::istringstream issRandom(strText);
        ZelGlonassFrequencies stRandom;
        issRandom >> stRandom;
        std::ostringstream oss;
        oss << stRandom;
        EXPECT_EQ(0u, oss.str().find("Channels, "));
    }
}

// ---------------------------------------------------------------------------
// Nominal frequencies and wavelengths
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, NominalFrequenciesEverySystemAndGroup)
{
    CRecorder stRec;
    for (int iIdx = 0; iIdx < 7; ++iIdx)
    {
        for (EZelSatSystem eSys : {ZELSATSYSTEM_GPS, ZELSATSYSTEM_GALILEO, ZELSATSYSTEM_SBAS,
                                   ZELSATSYSTEM_QZSS, ZELSATSYSTEM_NAVIC})
        {
            EXPECT_EQ(c_adFirstTable[iIdx], CZelFrequencyMgr::GetNominalFrequency(eSys, iIdx))
                << eSys << iIdx;
        }
        EXPECT_EQ(c_adBdsTable[iIdx], CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_BEIDOU, iIdx));
        EXPECT_EQ(0.0, CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_NONE, iIdx));
        EXPECT_EQ(0.0, CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_LOCATA, iIdx));
        EXPECT_EQ(0.0, CZelFrequencyMgr::GetNominalFrequency(c_eSys9, iIdx));
    }
    const double adGlonass[7] = {0.0, 1602000000.0, 1246000000.0, 1202025000.0, 0.0, 0.0, 0.0};
    for (int iIdx = 0; iIdx < 7; ++iIdx)
    {
        EXPECT_EQ(adGlonass[iIdx], CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_GLONASS, iIdx));
    }
    EXPECT_EQ(0u, stRec.Count());

    // Out of the table: "false" and 0.0.
    EXPECT_EQ(0.0, CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_GPS, 7));
    EXPECT_EQ(0.0, CZelFrequencyMgr::GetNominalFrequency(ZELSATSYSTEM_GPS, -1));
    EXPECT_EQ(2u, stRec.Count("false"));
}

TEST(FrequencyMgr, CdmaFrequenciesAndWavelengthsEveryGroup)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    for (EZelSatSystem eSys : {ZELSATSYSTEM_GPS, ZELSATSYSTEM_GALILEO, ZELSATSYSTEM_SBAS, ZELSATSYSTEM_QZSS,
                               ZELSATSYSTEM_NAVIC, ZELSATSYSTEM_BEIDOU})
    {
        const bool bBds = eSys == ZELSATSYSTEM_BEIDOU;
        const SZelSatID stSat = Sat(eSys, 1);
        for (int iIdx = 0; iIdx < 7; ++iIdx)
        {
            const double dFrequency = bBds ? c_adBdsTable[iIdx] : c_adFirstTable[iIdx];
            const double dStored = bBds ? c_adBdsWavelengths[iIdx] : c_adFirstWavelengths[iIdx];
            const EZelFrequencyGroup eGrp = static_cast<EZelFrequencyGroup>(iIdx);
            EXPECT_EQ(dFrequency, stLocal.stMgr.GetFrequency(stSat, iIdx));
            // The stored constants, literally, and against c / f.
            const double dWavelength = stLocal.stMgr.GetWavelength(stSat, eGrp);
            EXPECT_EQ(dStored, dWavelength) << eSys << " " << iIdx;
            if (dFrequency != 0.0)
            {
                EXPECT_NEAR(c_dC / dFrequency, dWavelength, 1e-15 * dWavelength);
                EXPECT_EQ(dFrequency, stLocal.stMgr.GetFrequency(stSat, ToFrqGroupBit(eGrp)));
                EXPECT_EQ(dStored, stLocal.stMgr.GetWavelength(stSat, ToFrqGroupBit(eGrp)));
            }
            double dBool = -5.0;
            EXPECT_EQ(dStored != 0.0, stLocal.stMgr.GetWavelengthBool(stSat, eGrp, dBool));
            EXPECT_EQ(dStored, dBool);
        }
        // By frequency slot.
        for (int iFrq = 0; iFrq < ZELFREQUENCY_MAX; ++iFrq)
        {
            const EZelFrequency eFrq = static_cast<EZelFrequency>(iFrq);
            const int iIdx = getFrequencyGroupIndex(eFrq);
            EXPECT_EQ(bBds ? c_adBdsTable[iIdx] : c_adFirstTable[iIdx],
                      stLocal.stMgr.GetFrequency(stSat, eFrq));
            EXPECT_EQ(bBds ? c_adBdsWavelengths[iIdx] : c_adFirstWavelengths[iIdx],
                      stLocal.stMgr.GetWavelength(stSat, eFrq));
            double dBool = -5.0;
            stLocal.stMgr.GetWavelengthBool(stSat, eFrq, dBool);
            EXPECT_EQ(bBds ? c_adBdsWavelengths[iIdx] : c_adFirstWavelengths[iIdx], dBool);
        }
    }
    EXPECT_EQ(0u, stRec.Count());

    // Literal values of the frequency plan.
    EXPECT_EQ(0.1902936727983649,
              stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_1));
    EXPECT_EQ(0.1920394863102765,
              stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_BEIDOU, 5), ZELFREQUENCY_GROUP_1));
}

TEST(FrequencyMgr, WavelengthChecks)
{
    SLocalMgr stLocal;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stGps, ZELFREQUENCY_GROUPS_MAX));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("eFreqIdx < ZELFREQUENCY_GROUPS_MAX", stRec.Texts()[0]);
    }
    {
        CRecorder stRec;
        EXPECT_EQ(-1.0, stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_NONE, 1), ZELFREQUENCY_GROUP_1));
        EXPECT_EQ(-1.0, stLocal.stMgr.GetWavelength(Sat(c_eSys9, 1), ZELFREQUENCY_GROUP_1));
        EXPECT_EQ(2u, stRec.Count("false"));
        EXPECT_EQ(2u, stRec.Count());
        double dWavelength = 0.0;
        EXPECT_TRUE(
            stLocal.stMgr.GetWavelengthBool(Sat(ZELSATSYSTEM_NONE, 1), ZELFREQUENCY_GROUP_1, dWavelength));
        EXPECT_EQ(-1.0, dWavelength);
    }
    {
        // Unknown systems have no frequency, silently.
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(Sat(ZELSATSYSTEM_NONE, 1), 1));
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(Sat(c_eSys9, 1), 1));
        EXPECT_EQ(0u, stRec.Count());
    }
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_GLONASS, 0), ZELFREQUENCY_GROUP_1));
        EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_GLONASS, 25), ZELFREQUENCY_GROUP_1));
        EXPECT_EQ(2u, stRec.Count("rSatID.isValid()"));
        EXPECT_EQ(2u, stRec.Count());
    }
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 0), 1));
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 25), 1));
        EXPECT_EQ(2u, stRec.Count(c_szGloSlot));
        EXPECT_EQ(2u, stRec.Count());
    }
}

// ---------------------------------------------------------------------------
// The three forms of a frequency argument
// ---------------------------------------------------------------------------

// Whether a call with an argument of type A compiles at all.
template <typename A>
using FrequencyCall = decltype(std::declval<const CZelFrequencyMgr&>().GetFrequency(
    std::declval<const SZelSatID&>(), std::declval<A>()));
template <typename A>
using WavelengthCall = decltype(std::declval<const CZelFrequencyMgr&>().GetWavelength(
    std::declval<const SZelSatID&>(), std::declval<A>()));
template <typename A>
using WavelengthBoolCall = decltype(std::declval<const CZelFrequencyMgr&>().GetWavelengthBool(
    std::declval<const SZelSatID&>(), std::declval<A>(), std::declval<double&>()));

template <template <typename> class Call, typename A, typename = void> struct SCallable : std::false_type
{
};
template <template <typename> class Call, typename A>
struct SCallable<Call, A, std::void_t<Call<A>>> : std::true_type
{
};

// Whether a member of exactly this parameter type exists. A non-template
// member whose parameter is the argument's own type is always the one a call
// takes, so this names the overload that a call with an A selects.
template <typename A> using FrequencyForm = double (CZelFrequencyMgr::*)(const SZelSatID&, A) const;
template <typename A> using WavelengthForm = double (CZelFrequencyMgr::*)(const SZelSatID&, A) const;
template <typename A>
using WavelengthBoolForm = bool (CZelFrequencyMgr::*)(const SZelSatID&, A, double&) const;

constexpr FrequencyForm<int> c_pFrequencyByIndex = &CZelFrequencyMgr::GetFrequency;
constexpr FrequencyForm<EZelFrequencyGroup> c_pFrequencyByGroup = &CZelFrequencyMgr::GetFrequency;
constexpr FrequencyForm<uint32_t> c_pFrequencyByBit = &CZelFrequencyMgr::GetFrequency;
constexpr FrequencyForm<EZelFrequency> c_pFrequencyBySlot = &CZelFrequencyMgr::GetFrequency;
constexpr WavelengthForm<int> c_pWavelengthByIndex = &CZelFrequencyMgr::GetWavelength;
constexpr WavelengthForm<EZelFrequencyGroup> c_pWavelengthByGroup = &CZelFrequencyMgr::GetWavelength;
constexpr WavelengthForm<uint32_t> c_pWavelengthByBit = &CZelFrequencyMgr::GetWavelength;
constexpr WavelengthForm<EZelFrequency> c_pWavelengthBySlot = &CZelFrequencyMgr::GetWavelength;
constexpr WavelengthBoolForm<int> c_pWavelengthBoolByIndex = &CZelFrequencyMgr::GetWavelengthBool;
constexpr WavelengthBoolForm<EZelFrequencyGroup> c_pWavelengthBoolByGroup =
    &CZelFrequencyMgr::GetWavelengthBool;
constexpr WavelengthBoolForm<uint32_t> c_pWavelengthBoolByBit = &CZelFrequencyMgr::GetWavelengthBool;
constexpr WavelengthBoolForm<EZelFrequency> c_pWavelengthBoolBySlot = &CZelFrequencyMgr::GetWavelengthBool;
// Each constant above compiles only where the exact form exists; the tests
// below call through them.

// A group bit is a uint32_t, and so is a plain unsigned literal.
static_assert(std::is_same<decltype(ToFrqGroupBit(ZELFREQUENCY_GROUP_3)), uint32_t>::value,
              "ToFrqGroupBit gives the type of the bit form");
static_assert(std::is_same<unsigned int, uint32_t>::value, "4u is a group bit");
static_assert(std::is_same<int32_t, int>::value, "int32_t is a group index");

template <typename A> constexpr bool IsAccepted()
{
    return SCallable<FrequencyCall, A>::value && SCallable<WavelengthCall, A>::value &&
           SCallable<WavelengthBoolCall, A>::value;
}
template <typename A> constexpr bool IsRefused()
{
    return !SCallable<FrequencyCall, A>::value && !SCallable<WavelengthCall, A>::value &&
           !SCallable<WavelengthBoolCall, A>::value;
}

static_assert(IsAccepted<int>() && IsAccepted<const int&>() && IsAccepted<int&>(), "index");
static_assert(IsAccepted<EZelFrequencyGroup>() && IsAccepted<const EZelFrequencyGroup&>(), "index");
static_assert(IsAccepted<uint32_t>() && IsAccepted<const uint32_t&>(), "bit");
static_assert(IsAccepted<decltype(ToFrqGroupBit(ZELFREQUENCY_GROUP_1))>(), "bit");
static_assert(IsAccepted<EZelFrequency>() && IsAccepted<const EZelFrequency&>(), "slot");
// No silent conversion to one of the forms.
static_assert(IsRefused<long>() && IsRefused<unsigned long>(), "long");
static_assert(IsRefused<int64_t>() && IsRefused<uint64_t>() && IsRefused<size_t>(), "64 bits");
static_assert(IsRefused<int8_t>() && IsRefused<uint8_t>() && IsRefused<char>(), "8 bits");
static_assert(IsRefused<int16_t>() && IsRefused<uint16_t>(), "16 bits");
static_assert(IsRefused<bool>() && IsRefused<double>(), "bool, double");
static_assert(IsRefused<EZelSatSystem>() && IsRefused<EZelTrackMode>(), "other enumerations");

TEST(FrequencyForms, OneValueThreeMeanings)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    const SZelSatID stG05 = Sat(ZELSATSYSTEM_GPS, 5);
    // 4 as a group index is group 4, as a group bit group 3, as a slot (L2P)
    // group 2.
    EXPECT_EQ(1207140000.0, stLocal.stMgr.GetFrequency(stG05, 4));
    EXPECT_EQ(1207140000.0, stLocal.stMgr.GetFrequency(stG05, ZELFREQUENCY_GROUP_4));
    EXPECT_EQ(1176450000.0, stLocal.stMgr.GetFrequency(stG05, 4u));
    EXPECT_EQ(1176450000.0, stLocal.stMgr.GetFrequency(stG05, ToFrqGroupBit(ZELFREQUENCY_GROUP_3)));
    EXPECT_EQ(1227600000.0, stLocal.stMgr.GetFrequency(stG05, ZELFREQUENCY_L2P));

    EXPECT_EQ(0.2483493695843067, stLocal.stMgr.GetWavelength(stG05, 4));
    EXPECT_EQ(0.2483493695843067, stLocal.stMgr.GetWavelength(stG05, ZELFREQUENCY_GROUP_4));
    EXPECT_EQ(0.2548280487908539, stLocal.stMgr.GetWavelength(stG05, 4u));
    EXPECT_EQ(0.2548280487908539, stLocal.stMgr.GetWavelength(stG05, ToFrqGroupBit(ZELFREQUENCY_GROUP_3)));
    EXPECT_EQ(0.2442102134245683, stLocal.stMgr.GetWavelength(stG05, ZELFREQUENCY_L2P));

    double dWavelength = -1.0;
    EXPECT_TRUE(stLocal.stMgr.GetWavelengthBool(stG05, 4, dWavelength));
    EXPECT_EQ(0.2483493695843067, dWavelength);
    EXPECT_TRUE(stLocal.stMgr.GetWavelengthBool(stG05, ZELFREQUENCY_GROUP_4, dWavelength));
    EXPECT_EQ(0.2483493695843067, dWavelength);
    EXPECT_TRUE(stLocal.stMgr.GetWavelengthBool(stG05, 4u, dWavelength));
    EXPECT_EQ(0.2548280487908539, dWavelength);
    EXPECT_TRUE(stLocal.stMgr.GetWavelengthBool(stG05, ToFrqGroupBit(ZELFREQUENCY_GROUP_3), dWavelength));
    EXPECT_EQ(0.2548280487908539, dWavelength);
    EXPECT_TRUE(stLocal.stMgr.GetWavelengthBool(stG05, ZELFREQUENCY_L2P, dWavelength));
    EXPECT_EQ(0.2442102134245683, dWavelength);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyForms, ThroughTheExactMembers)
{
    // The members named above give what the calls give.
    SLocalMgr stLocal;
    const CZelFrequencyMgr& rMgr = stLocal.stMgr;
    const SZelSatID stE11 = Sat(ZELSATSYSTEM_GALILEO, 11);
    EXPECT_EQ(1207140000.0, (rMgr.*c_pFrequencyByIndex)(stE11, 4));
    EXPECT_EQ(1207140000.0, (rMgr.*c_pFrequencyByGroup)(stE11, ZELFREQUENCY_GROUP_4));
    EXPECT_EQ(1176450000.0, (rMgr.*c_pFrequencyByBit)(stE11, 4u));
    EXPECT_EQ(1227600000.0, (rMgr.*c_pFrequencyBySlot)(stE11, ZELFREQUENCY_L2P));
    EXPECT_EQ(0.2483493695843067, (rMgr.*c_pWavelengthByIndex)(stE11, 4));
    EXPECT_EQ(0.2483493695843067, (rMgr.*c_pWavelengthByGroup)(stE11, ZELFREQUENCY_GROUP_4));
    EXPECT_EQ(0.2548280487908539, (rMgr.*c_pWavelengthByBit)(stE11, 4u));
    EXPECT_EQ(0.2442102134245683, (rMgr.*c_pWavelengthBySlot)(stE11, ZELFREQUENCY_L2P));
    double dWavelength = -1.0;
    EXPECT_TRUE((rMgr.*c_pWavelengthBoolByIndex)(stE11, 6, dWavelength));
    EXPECT_EQ(0.2344418048875855, dWavelength);
    EXPECT_TRUE((rMgr.*c_pWavelengthBoolByGroup)(stE11, ZELFREQUENCY_GROUP_6, dWavelength));
    EXPECT_EQ(0.2344418048875855, dWavelength);
    EXPECT_TRUE((rMgr.*c_pWavelengthBoolByBit)(stE11, 32u, dWavelength));
    EXPECT_EQ(0.2344418048875855, dWavelength);
    EXPECT_TRUE((rMgr.*c_pWavelengthBoolBySlot)(stE11, ZELFREQUENCY_E6, dWavelength));
    EXPECT_EQ(0.2344418048875855, dWavelength);
}

TEST(FrequencyForms, BitFormTakesOnlySingleBits)
{
    SLocalMgr stLocal;
    const SZelSatID stG05 = Sat(ZELSATSYSTEM_GPS, 5);
    {
        // 3 as an index is group 3; as a bit it is two groups at once.
        CRecorder stRec;
        EXPECT_EQ(1176450000.0, stLocal.stMgr.GetFrequency(stG05, 3));
        EXPECT_EQ(0u, stRec.Count());
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stG05, 3u));
        EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stG05, 3u));
        double dWavelength = -1.0;
        EXPECT_FALSE(stLocal.stMgr.GetWavelengthBool(stG05, 3u, dWavelength));
        EXPECT_EQ(0.0, dWavelength);
        EXPECT_EQ(3u, stRec.Count("false"));
        EXPECT_EQ(3u, stRec.Count());
    }
    {
        // Bit 0 is no group, silently; a bit past group 6 is no group either.
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stG05, 0u));
        EXPECT_EQ(0u, stRec.Count());
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stG05, 64u));
        EXPECT_EQ(1u, stRec.Count("false"));
    }
    {
        // Every group through its bit, against its index.
        CRecorder stRec;
        for (int iGrp = 1; iGrp <= 6; ++iGrp)
        {
            const EZelFrequencyGroup eGrp = static_cast<EZelFrequencyGroup>(iGrp);
            const uint32_t ebfFrq = ToFrqGroupBit(eGrp);
            EXPECT_EQ(c_adFirstTable[iGrp], stLocal.stMgr.GetFrequency(stG05, ebfFrq)) << iGrp;
            EXPECT_EQ(c_adFirstTable[iGrp], stLocal.stMgr.GetFrequency(stG05, eGrp)) << iGrp;
            EXPECT_EQ(c_adFirstWavelengths[iGrp], stLocal.stMgr.GetWavelength(stG05, ebfFrq)) << iGrp;
            EXPECT_EQ(c_adFirstWavelengths[iGrp], stLocal.stMgr.GetWavelength(stG05, iGrp)) << iGrp;
        }
        EXPECT_EQ(0u, stRec.Count());
    }
}

TEST(FrequencyForms, IndexFormsAgreeOnGlonass)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    stLocal.stMgr.SetGlonassChannel(3, -4);
    const SZelSatID stR03 = Sat(ZELSATSYSTEM_GLONASS, 3);
    EXPECT_DOUBLE_EQ(G2(-4), stLocal.stMgr.GetFrequency(stR03, ZELFREQUENCY_GROUP_2));
    EXPECT_EQ(stLocal.stMgr.GetFrequency(stR03, 2), stLocal.stMgr.GetFrequency(stR03, ZELFREQUENCY_GROUP_2));
    EXPECT_EQ(stLocal.stMgr.GetFrequency(stR03, 2), stLocal.stMgr.GetFrequency(stR03, 2u));
    EXPECT_DOUBLE_EQ(c_dC / G1(-4), stLocal.stMgr.GetWavelength(stR03, 1));
    EXPECT_EQ(stLocal.stMgr.GetWavelength(stR03, 1),
              stLocal.stMgr.GetWavelength(stR03, ZELFREQUENCY_GROUP_1));
    // Bit 4 is group 3, the CDMA carrier; index 4 is a group GLONASS lacks.
    EXPECT_EQ(0.24940617541232504, stLocal.stMgr.GetWavelength(stR03, 4u));
    EXPECT_DOUBLE_EQ(c_dC / G2(-4), stLocal.stMgr.GetWavelength(stR03, 2));
    EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stR03, 4));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyForms, IndexOutOfRangeThroughInt)
{
    SLocalMgr stLocal;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stGps, 7));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("eFreqIdx < ZELFREQUENCY_GROUPS_MAX", stRec.Texts()[0]);
    }
    {
        CRecorder stRec;
        double dWavelength = -1.0;
        EXPECT_FALSE(stLocal.stMgr.GetWavelengthBool(stGps, -1, dWavelength));
        EXPECT_EQ(0.0, dWavelength);
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("false", stRec.Texts()[0]);
    }
}

// ---------------------------------------------------------------------------
// GLONASS channels
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, GlonassEveryChannelEverySlot)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    for (int iChannel = -7; iChannel <= 13; ++iChannel)
    {
        stLocal.stMgr.SetGlonassFrequencies(AllChannels(iChannel));
        for (int iSlot = 1; iSlot <= 24; ++iSlot)
        {
            const SZelSatID stSat = Sat(ZELSATSYSTEM_GLONASS, iSlot);
            EXPECT_DOUBLE_EQ(G1(iChannel), stLocal.stMgr.GetFrequency(stSat, 1));
            EXPECT_DOUBLE_EQ(G2(iChannel), stLocal.stMgr.GetFrequency(stSat, 2));
            EXPECT_DOUBLE_EQ(1202025000.0, stLocal.stMgr.GetFrequency(stSat, 3));
            EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stSat, 0));
            EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stSat, 4));
            EXPECT_DOUBLE_EQ(c_dC / G1(iChannel), stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
            EXPECT_DOUBLE_EQ(c_dC / G2(iChannel), stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_2));
            EXPECT_EQ(0.24940617541232504, stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_3));
            EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_5));
            EXPECT_DOUBLE_EQ(c_dC / G1(iChannel), stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_L1P));
            EXPECT_DOUBLE_EQ(c_dC / G2(iChannel), stLocal.stMgr.GetWavelength(stSat, 2u));
            int8_t cChannel = 0;
            EXPECT_TRUE(stLocal.stMgr.GetGlonassChannel(stSat, cChannel));
            EXPECT_EQ(iChannel, cChannel);
        }
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyMgr, GlonassSlot24Channel13)
{
    SLocalMgr stLocal;
    stLocal.stMgr.SetGlonassChannel(24, 13);
    const double dFrequency = stLocal.stMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 24), 1);
    EXPECT_NEAR(1609312500.0, dFrequency, 1609312500.0 * 2e-16);
}

TEST(FrequencyMgr, GlonassUnknownChannel)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    const SZelSatID stSat = Sat(ZELSATSYSTEM_GLONASS, 7);
    EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_1));
    EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_3));
    double dWavelength = -1.0;
    EXPECT_FALSE(stLocal.stMgr.GetWavelengthBool(stSat, ZELFREQUENCY_GROUP_1, dWavelength));
    EXPECT_EQ(0.0, dWavelength);
    EXPECT_FALSE(stLocal.stMgr.GetWavelengthBool(stSat, 2u, dWavelength));
    EXPECT_FALSE(stLocal.stMgr.GetWavelengthBool(stSat, ZELFREQUENCY_L1CA, dWavelength));
    EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stSat, 1));
    int8_t cChannel = 0;
    EXPECT_FALSE(stLocal.stMgr.GetGlonassChannel(stSat, cChannel));
    EXPECT_EQ(-111, cChannel);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyMgr, SetGlonassChannelLeavesOtherSlots)
{
    SLocalMgr stLocal;
    stLocal.stMgr.SetGlonassFrequencies(MixedChannels());
    stLocal.stMgr.SetGlonassChannel(3, -7);
    boost::shared_ptr<const CZelFrequencyTable> pTable;
    ASSERT_TRUE(stLocal.stMgr.GetFrequencyTable(pTable));
    ZelGlonassFrequencies stExpected = MixedChannels();
    stExpected.acChannels[2] = -7;
    EXPECT_TRUE(pTable->stGlonassFrequencies == stExpected);
    for (int iSlot = 1; iSlot <= 24; ++iSlot)
    {
        const int iChannel = stExpected.acChannels[iSlot - 1];
        EXPECT_EQ(c_dC / G1(iChannel), pTable->adWavelengths[1][iSlot - 1]);
        EXPECT_EQ(c_dC / G2(iChannel), pTable->adWavelengths[2][iSlot - 1]);
        EXPECT_EQ(0.24940617541232504, pTable->adWavelengths[3][iSlot - 1]);
    }

    // A slot outside 1 to 24 changes nothing.
    CRecorder stRec;
    stLocal.stMgr.SetGlonassChannel(0, 1);
    stLocal.stMgr.SetGlonassChannel(25, 1);
    EXPECT_EQ(2u, stRec.Count("false"));
    boost::shared_ptr<const CZelFrequencyTable> pAfter;
    stLocal.stMgr.GetFrequencyTable(pAfter);
    EXPECT_EQ(pTable.get(), pAfter.get());
}

TEST(FrequencyMgr, UnknownEntriesKeepOldChannels)
{
    SLocalMgr stLocal;
    stLocal.stMgr.SetGlonassFrequencies(AllChannels(2));
    ZelGlonassFrequencies stUpdate; // all unknown
    stUpdate.acChannels[10] = -3;
    stLocal.stMgr.SetGlonassFrequencies(stUpdate);
    ZelGlonassFrequencies stExpected = AllChannels(2);
    stExpected.acChannels[10] = -3;
    boost::shared_ptr<const CZelFrequencyTable> pTable;
    stLocal.stMgr.GetFrequencyTable(pTable);
    EXPECT_TRUE(pTable->stGlonassFrequencies == stExpected);
    EXPECT_EQ(c_dC / G1(-3),
              stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_GLONASS, 11), ZELFREQUENCY_GROUP_1));
    EXPECT_EQ(c_dC / G1(2), stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_GLONASS, 12), ZELFREQUENCY_GROUP_1));
}

TEST(FrequencyMgr, ReaderKeepsItsSnapshot)
{
    SLocalMgr stLocal;
    stLocal.stMgr.SetGlonassFrequencies(AllChannels(1));
    boost::shared_ptr<const CZelFrequencyTable> pOld;
    ASSERT_TRUE(stLocal.stMgr.GetFrequencyTable(pOld));
    stLocal.stMgr.SetGlonassFrequencies(AllChannels(-5));
    for (int iSlot = 0; iSlot < 24; ++iSlot)
    {
        EXPECT_EQ(1, pOld->stGlonassFrequencies.acChannels[iSlot]);
        EXPECT_EQ(c_dC / G1(1), pOld->adWavelengths[1][iSlot]);
    }
    EXPECT_EQ(c_dC / G1(-5), stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_GLONASS, 1), ZELFREQUENCY_GROUP_1));
    boost::shared_ptr<const CZelFrequencyTable> pNew;
    stLocal.stMgr.GetFrequencyTable(pNew);
    EXPECT_NE(pOld.get(), pNew.get());
}

TEST(FrequencyMgr, ResetTable)
{
    SLocalMgr stLocal;
    stLocal.stMgr.SetGlonassFrequencies(MixedChannels());
    ZelLocataWavelengthMap mapValues;
    mapValues[std::make_pair(uint8_t(1), 1)] = 1.5e9;
    stLocal.stMgr.SetLocataWavelengths(mapValues);
    stLocal.stMgr.ResetTable();
    boost::shared_ptr<const CZelFrequencyTable> pTable;
    ASSERT_TRUE(stLocal.stMgr.GetFrequencyTable(pTable));
    EXPECT_TRUE(pTable->stGlonassFrequencies == ZelGlonassFrequencies());
    EXPECT_TRUE(pTable->mapLocataWavelengths.empty());
    for (int iIdx = 0; iIdx < 7; ++iIdx)
    {
        for (int iSlot = 0; iSlot < 24; ++iSlot)
        {
            EXPECT_EQ(0.0, pTable->adWavelengths[iIdx][iSlot]);
        }
    }
}

TEST(FrequencyMgr, GlonassChannelOfOtherSystems)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    int8_t cChannel = 42;
    EXPECT_FALSE(stLocal.stMgr.GetGlonassChannel(Sat(ZELSATSYSTEM_GPS, 3), cChannel));
    EXPECT_EQ(42, cChannel);
    EXPECT_FALSE(stLocal.stMgr.GetGlonassChannel(Sat(ZELSATSYSTEM_GLONASS, 0), cChannel));
    EXPECT_FALSE(stLocal.stMgr.GetGlonassChannel(Sat(ZELSATSYSTEM_GLONASS, 25), cChannel));
    EXPECT_EQ(42, cChannel);
    EXPECT_EQ(3u, stRec.Count("false"));
}

TEST(FrequencyMgr, SetLocataKeepsMapAcrossGlonassUpdate)
{
    SLocalMgr stLocal;
    ZelLocataWavelengthMap mapValues;
    mapValues[std::make_pair(uint8_t(4), 1)] = 2.4e9;
    stLocal.stMgr.SetLocataWavelengths(mapValues);
    stLocal.stMgr.SetGlonassChannel(1, 0);
    boost::shared_ptr<const CZelFrequencyTable> pTable;
    stLocal.stMgr.GetFrequencyTable(pTable);
    EXPECT_EQ(mapValues, pTable->mapLocataWavelengths);
}

// ---------------------------------------------------------------------------
// Locata
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, LocataFromTheMap)
{
    SLocalMgr stLocal;
    ZelLocataWavelengthMap mapValues;
    mapValues[std::make_pair(uint8_t(4), 1)] = 2.4e9;
    mapValues[std::make_pair(uint8_t(4), 2)] = 2.5e9;
    stLocal.stMgr.SetLocataWavelengths(mapValues);
    const SZelSatID stSat = Sat(ZELSATSYSTEM_LOCATA, 4);
    {
        CRecorder stRec;
        EXPECT_EQ(2.4e9, stLocal.stMgr.GetFrequency(stSat, 1));
        EXPECT_EQ(1u, stRec.Count("false"));
        EXPECT_EQ(1u, stRec.Count());
    }
    {
        CRecorder stRec;
        EXPECT_EQ(c_dC / 2.5e9, stLocal.stMgr.GetWavelength(stSat, ZELFREQUENCY_GROUP_2));
        EXPECT_EQ(1u, stRec.Count("false"));
        EXPECT_EQ(1u, stRec.Count());
    }
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(stSat, 3));
        EXPECT_EQ(0.0, stLocal.stMgr.GetWavelength(Sat(ZELSATSYSTEM_LOCATA, 5), ZELFREQUENCY_GROUP_1));
        EXPECT_EQ(2u, stRec.Count("false"));
    }
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetFrequency(Sat(ZELSATSYSTEM_LOCATA, 41), 1));
        EXPECT_EQ(1u, stRec.Count("rSatID.uiSatNumber <= ZEL_DEF_MAXSATID_LOCATA"));
        EXPECT_EQ(1u, stRec.Count("false"));
    }
    {
        // The products come from the map without a report.
        CRecorder stRec;
        const double dL1 = c_dC / 2.4e9;
        const double dL2 = c_dC / 2.5e9;
        EXPECT_EQ(1.0 / (dL1 * dL2), stLocal.stMgr.GetInverseWavelengthProduct(stSat, 1, 2));
        EXPECT_EQ(1.0 / (dL1 * dL1), stLocal.stMgr.GetInverseWavelengthSquared(stSat, 1));
        EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWavelengthSquared(Sat(ZELSATSYSTEM_LOCATA, 9), 1));
        EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWavelengthProduct(stSat, 1, 4));
        EXPECT_EQ(0u, stRec.Count());
    }
}

// ---------------------------------------------------------------------------
// Ratios and coefficients
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, SatelliteFrequencyRatio)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    EXPECT_EQ(1575420000.0 / 1227600000.0, stLocal.stMgr.GetFrequencyRatio(stGps, 1, 2));
    const double dRatio = 1575420000.0 / 1176450000.0;
    EXPECT_EQ(dRatio * dRatio, stLocal.stMgr.GetFrequencyRatioSquared(stGps, 1, 4));
    const SZelSatID stGlo = Sat(ZELSATSYSTEM_GLONASS, 2);
    EXPECT_EQ(0.0, stLocal.stMgr.GetFrequencyRatio(stGlo, 1, 2)); // channel unknown
    stLocal.stMgr.SetGlonassChannel(2, -3);
    EXPECT_DOUBLE_EQ(G1(-3) / G2(-3), stLocal.stMgr.GetFrequencyRatio(stGlo, 1, 2));
    EXPECT_EQ(0.0, stLocal.stMgr.GetFrequencyRatio(stGps, 1, 0));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyMgr, SystemFrequencyRatio)
{
    CRecorder stRec;
    EXPECT_EQ(1575420000.0 / 1227600000.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GPS, 1, 2));
    EXPECT_EQ(1575420000.0 / 1207140000.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GALILEO, 1, 8));
    EXPECT_EQ(1227600000.0 / 1176450000.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_QZSS, 2, 4));
    EXPECT_EQ(1561098000.0 / 1207140000.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_BEIDOU, 1, 2));
    EXPECT_EQ(1.2857142857142858, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GLONASS, 1, 2));
    EXPECT_EQ(0.7777777777777778, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GLONASS, 2, 1));
    EXPECT_EQ(0u, stRec.Count());

    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GLONASS, 1, 4));
    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_SBAS, 1, 4));
    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_NAVIC, 4, 4));
    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_LOCATA, 1, 2));
    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_BEIDOU, 1, 32)); // no B group 6
    // GLONASS knows the two ratios of groups 1 and 2 only, not a group with itself.
    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GLONASS, 1, 1));
    EXPECT_EQ(-1.0, CZelFrequencyMgr::GetFrequencyRatio(ZELSATSYSTEM_GLONASS, 2, 2));
    EXPECT_EQ(7u, stRec.Count("false"));
    EXPECT_EQ(7u, stRec.Count());
}

TEST(FrequencyMgr, IonoFreeAndNarrowLaneFactors)
{
    CRecorder stRec;
    const double dRatio = 1575420000.0 / 1227600000.0;
    double dFactor1 = 0.0;
    double dFactor2 = 0.0;
    EXPECT_TRUE(CZelFrequencyMgr::GetIonoFreeFactors(ZELSATSYSTEM_GPS, 1, 2, &dFactor1, &dFactor2));
    EXPECT_EQ(1.0 / (1.0 - dRatio), dFactor2);
    EXPECT_EQ(-dRatio * (1.0 / (1.0 - dRatio)), dFactor1);
    EXPECT_TRUE(CZelFrequencyMgr::GetNarrowLaneFactors(ZELSATSYSTEM_GPS, 1, 2, &dFactor1, &dFactor2));
    EXPECT_EQ(1.0 / (dRatio + 1.0), dFactor2);
    EXPECT_EQ(dRatio * (1.0 / (dRatio + 1.0)), dFactor1);
    // Null pointers are allowed.
    EXPECT_TRUE(CZelFrequencyMgr::GetIonoFreeFactors(ZELSATSYSTEM_GLONASS, 1, 2, nullptr, &dFactor2));
    EXPECT_EQ(1.0 / (1.0 - 1.2857142857142858), dFactor2);
    EXPECT_TRUE(CZelFrequencyMgr::GetNarrowLaneFactors(ZELSATSYSTEM_BEIDOU, 1, 4, nullptr, nullptr));
    EXPECT_EQ(0u, stRec.Count());

    // r below 0: the ratio's report and the factors' own.
    dFactor1 = 7.0;
    dFactor2 = 7.0;
    EXPECT_FALSE(CZelFrequencyMgr::GetIonoFreeFactors(ZELSATSYSTEM_SBAS, 1, 2, &dFactor1, &dFactor2));
    EXPECT_EQ(2u, stRec.Count("false"));
    EXPECT_FALSE(CZelFrequencyMgr::GetNarrowLaneFactors(ZELSATSYSTEM_NAVIC, 1, 2, &dFactor1, &dFactor2));
    EXPECT_EQ(4u, stRec.Count("false"));
    EXPECT_EQ(7.0, dFactor1);
    EXPECT_EQ(7.0, dFactor2);
    // One carrier twice: no ionosphere-free combination.
    EXPECT_FALSE(CZelFrequencyMgr::GetIonoFreeFactors(ZELSATSYSTEM_GPS, 2, 2, &dFactor1, &dFactor2));
    EXPECT_EQ(5u, stRec.Count("false"));
    EXPECT_EQ(7.0, dFactor1);
}

TEST(FrequencyMgr, IonoCoefficient)
{
    SLocalMgr stLocal;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    {
        CRecorder stRec;
        const double dRatio = 1227600000.0 / 1575420000.0;
        EXPECT_EQ(1.0 / (1.0 - dRatio * dRatio), stLocal.stMgr.GetIonoCoefficient(stGps, 1, 2));
        EXPECT_EQ(0u, stRec.Count());
    }
    {
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetIonoCoefficient(stGps, 2, 2));
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ(c_szIonoSame, stRec.Texts()[0]);
    }
    {
        // Unknown GLONASS channel: 0.0, silently.
        CRecorder stRec;
        EXPECT_EQ(0.0, stLocal.stMgr.GetIonoCoefficient(Sat(ZELSATSYSTEM_GLONASS, 9), 1, 2));
        EXPECT_EQ(0u, stRec.Count());
    }
}

TEST(FrequencyMgr, RelativeIonoFactor)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    EXPECT_EQ(1.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_GPS, 1)));
    EXPECT_EQ(1.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_QZSS, 1)));
    EXPECT_EQ(1.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_GALILEO, 1)));
    EXPECT_EQ(1.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_SBAS, 1)));
    const double dBds = 1575420000.0 / 1561098000.0;
    EXPECT_EQ(dBds * dBds, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_BEIDOU, 30)));
    stLocal.stMgr.SetGlonassChannel(5, 6);
    const double dGlo = 1575420000.0 / G1(6);
    EXPECT_DOUBLE_EQ(dGlo * dGlo, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_GLONASS, 5)));
    EXPECT_EQ(0.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_GLONASS, 6)));
    EXPECT_EQ(0u, stRec.Count());
    EXPECT_EQ(1.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_NAVIC, 1)));
    EXPECT_EQ(1.0, stLocal.stMgr.GetRelativeIonoFactor(Sat(ZELSATSYSTEM_LOCATA, 1)));
    EXPECT_EQ(2u, stRec.Count("false"));
}

// ---------------------------------------------------------------------------
// GetCombination
// ---------------------------------------------------------------------------

struct SCombination
{
    double dIono = 0.0;
    double dCoef1 = 0.0;
    double dCoef2 = 0.0;
};

bool Combination(const CZelFrequencyMgr& rMgr, const SZelSatID& rSat, uint32_t ebf1, uint32_t ebf2,
                 SCombination& rst)
{
    return rMgr.GetCombination(rSat, ebf1, ebf2, &rst.dIono, &rst.dCoef1, &rst.dCoef2);
}

TEST(FrequencyMgr, CombinationStoredExceptions)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    SCombination st;
    for (EZelSatSystem eSys : {ZELSATSYSTEM_GPS, ZELSATSYSTEM_SBAS, ZELSATSYSTEM_QZSS})
    {
        const SZelSatID stSat = Sat(eSys, 1);
        ASSERT_TRUE(Combination(stLocal.stMgr, stSat, 1, 2, st));
        EXPECT_EQ(2.54572778016316, st.dCoef1);
        EXPECT_EQ(-1.54572778016316, st.dCoef2);
        EXPECT_EQ(-1.54572778016316, st.dIono);
        ASSERT_TRUE(Combination(stLocal.stMgr, stSat, 1, 4, st));
        EXPECT_EQ(2.26060432751883, st.dCoef1);
        EXPECT_EQ(-1.26060432751883, st.dCoef2);
        EXPECT_EQ(-1.26060432751883, st.dIono);
        ASSERT_TRUE(Combination(stLocal.stMgr, stSat, 2, 4, st));
        EXPECT_EQ(12.2553191489362, st.dCoef1);
        EXPECT_EQ(-11.2553191489362, st.dCoef2);
        const double dQ = 1575420000.0 / 1227600000.0;
        EXPECT_DOUBLE_EQ(-11.2553191489362 / (dQ * dQ), st.dIono);
    }
    ASSERT_TRUE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GLONASS, 3), 1, 2, st));
    EXPECT_EQ(2.53125, st.dCoef1);
    EXPECT_EQ(-1.53125, st.dCoef2);
    EXPECT_EQ(-1.53125, st.dIono);

    const SZelSatID stBds = Sat(ZELSATSYSTEM_BEIDOU, 20);
    ASSERT_TRUE(Combination(stLocal.stMgr, stBds, 1, 2, st));
    EXPECT_EQ(2.487168314, st.dCoef1);
    EXPECT_EQ(-1.487168314, st.dCoef2);
    EXPECT_EQ(-1.487168314, st.dIono);
    ASSERT_TRUE(Combination(stLocal.stMgr, stBds, 1, 4, st));
    EXPECT_EQ(2.94368177, st.dCoef1);
    EXPECT_EQ(-1.94368177, st.dCoef2);
    EXPECT_EQ(-1.94368177, st.dIono);
    ASSERT_TRUE(Combination(stLocal.stMgr, stBds, 2, 4, st));
    EXPECT_EQ(-9.58953168, st.dCoef1);
    EXPECT_EQ(10.58953168, st.dCoef2);
    const double dQ = 1561098000.0 / 1207140000.0;
    EXPECT_DOUBLE_EQ(10.58953168 / (dQ * dQ), st.dIono);
    EXPECT_EQ(0u, stRec.Count());
}

// Every other pair against the rule, evaluated here from the nominal carriers.
TEST(FrequencyMgr, CombinationFromNominalCarriers)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    struct SCase
    {
        EZelSatSystem eSys;
        const double* adTable;
        std::vector<int> vecGroups;
    };
    const SCase astCases[] = {{ZELSATSYSTEM_GALILEO, c_adFirstTable, {1, 3, 4, 5, 6}},
                              {ZELSATSYSTEM_BEIDOU, c_adBdsTable, {1, 2, 3, 4, 5}}};
    int iChecked = 0;
    for (const SCase& rCase : astCases)
    {
        for (size_t ul1 = 0; ul1 < rCase.vecGroups.size(); ++ul1)
        {
            for (size_t ul2 = ul1 + 1; ul2 < rCase.vecGroups.size(); ++ul2)
            {
                const int iLow = rCase.vecGroups[ul1];
                const int iHigh = rCase.vecGroups[ul2];
                if (rCase.eSys == ZELSATSYSTEM_BEIDOU && iLow <= 2 && iHigh <= 3)
                {
                    continue; // the stored exceptions
                }
                const double f1 = rCase.adTable[iLow];
                const double f2 = rCase.adTable[iHigh];
                const double dCoef1 = f1 * f1 / (f1 * f1 - f2 * f2);
                const double dCoef2 = 1.0 - dCoef1;
                const double dQ = rCase.adTable[1] / f1;
                const double dIono = iLow == 1 ? dCoef2 : dCoef2 / (dQ * dQ);
                SCombination st;
                ASSERT_TRUE(
                    Combination(stLocal.stMgr, Sat(rCase.eSys, 1), 1u << (iLow - 1), 1u << (iHigh - 1), st));
                EXPECT_DOUBLE_EQ(dCoef1, st.dCoef1) << rCase.eSys << " " << iLow << iHigh;
                EXPECT_DOUBLE_EQ(dCoef2, st.dCoef2) << rCase.eSys << " " << iLow << iHigh;
                EXPECT_DOUBLE_EQ(dIono, st.dIono) << rCase.eSys << " " << iLow << iHigh;
                ++iChecked;
            }
        }
    }
    EXPECT_EQ(17, iChecked);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyMgr, CombinationSwapped)
{
    SLocalMgr stLocal;
    for (EZelSatSystem eSys : {ZELSATSYSTEM_GPS, ZELSATSYSTEM_GALILEO, ZELSATSYSTEM_BEIDOU})
    {
        SCombination stFwd;
        SCombination stRev;
        ASSERT_TRUE(Combination(stLocal.stMgr, Sat(eSys, 1), 1, 4, stFwd));
        ASSERT_TRUE(Combination(stLocal.stMgr, Sat(eSys, 1), 4, 1, stRev));
        EXPECT_EQ(stFwd.dCoef1, stRev.dCoef2);
        EXPECT_EQ(stFwd.dCoef2, stRev.dCoef1);
        EXPECT_EQ(-stFwd.dIono, stRev.dIono);
    }
    SCombination stRev;
    ASSERT_TRUE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GPS, 1), 4, 1, stRev));
    EXPECT_EQ(-1.26060432751883, stRev.dCoef1);
    EXPECT_EQ(2.26060432751883, stRev.dCoef2);
    EXPECT_EQ(1.26060432751883, stRev.dIono);
    // Null pointers are allowed.
    double dCoef2 = 0.0;
    EXPECT_TRUE(stLocal.stMgr.GetCombination(Sat(ZELSATSYSTEM_GPS, 1), 2, 1, nullptr, nullptr, &dCoef2));
    EXPECT_EQ(2.54572778016316, dCoef2);
}

TEST(FrequencyMgr, CombinationGlonassG3FromChannel)
{
    SLocalMgr stLocal;
    const SZelSatID stSat = Sat(ZELSATSYSTEM_GLONASS, 8);
    SCombination st;
    {
        // Channel not known yet: false, silently.
        CRecorder stRec;
        EXPECT_FALSE(Combination(stLocal.stMgr, stSat, 1, 4, st));
        EXPECT_EQ(0u, stRec.Count());
    }
    stLocal.stMgr.SetGlonassChannel(8, -2);
    CRecorder stRec;
    const double f3 = 1202025000.0;
    {
        ASSERT_TRUE(Combination(stLocal.stMgr, stSat, 1, 4, st));
        const double f1 = c_dC / (c_dC / G1(-2));
        const double dCoef1 = f1 * f1 / (f1 * f1 - f3 * f3);
        EXPECT_DOUBLE_EQ(dCoef1, st.dCoef1);
        EXPECT_DOUBLE_EQ(1.0 - dCoef1, st.dCoef2);
        EXPECT_EQ(st.dCoef2, st.dIono);
    }
    {
        ASSERT_TRUE(Combination(stLocal.stMgr, stSat, 2, 4, st));
        const double f2 = c_dC / (c_dC / G2(-2));
        const double dCoef1 = f2 * f2 / (f2 * f2 - f3 * f3);
        EXPECT_DOUBLE_EQ(dCoef1, st.dCoef1);
        EXPECT_DOUBLE_EQ(1.0 - dCoef1, st.dCoef2);
        EXPECT_EQ(st.dCoef2 / 1.653061224489796, st.dIono);
        SCombination stRev;
        ASSERT_TRUE(Combination(stLocal.stMgr, stSat, 4, 2, stRev));
        EXPECT_EQ(-st.dIono, stRev.dIono);
        EXPECT_EQ(st.dCoef1, stRev.dCoef2);
    }
    EXPECT_EQ(0u, stRec.Count());
    // Number 0: "false".
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GLONASS, 0), 1, 4, st));
    EXPECT_EQ(1u, stRec.Count("false"));
    EXPECT_EQ(1u, stRec.Count());
}

TEST(FrequencyMgr, CombinationMissingPairsAndSystems)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    SCombination st;
    st.dIono = 5.0;
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GALILEO, 1), 1, 2, st));
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GPS, 1), 1, 8, st));
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GPS, 1), 2, 2, st));
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_GLONASS, 1), 1, 8, st));
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_BEIDOU, 1), 3, 1, st)); // 3 is no single bit
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_NAVIC, 1), 1, 4, st));
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_LOCATA, 1), 1, 2, st));
    EXPECT_FALSE(Combination(stLocal.stMgr, Sat(ZELSATSYSTEM_NONE, 1), 1, 2, st));
    EXPECT_EQ(8u, stRec.Count("false"));
    EXPECT_EQ(8u, stRec.Count());
    EXPECT_EQ(5.0, st.dIono);
}

// ---------------------------------------------------------------------------
// GetCombinationFactors
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, CombinationFactorsIonoFreeAndWideLane)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    const EZelFrequency aeFrqs[2] = {ZELFREQUENCY_L1CA, ZELFREQUENCY_L2P};
    const double f1 = 1575420000.0;
    const double f2 = 1227600000.0;
    for (int eCombination : {12, 17, 18, 19, 20, 21})
    {
        double adFactors[2] = {0.0, 0.0};
        ASSERT_TRUE(stLocal.stMgr.GetCombinationFactors(stGps, eCombination, 2, aeFrqs, adFactors));
        const double s = 1.0 / (f1 * f1 - f2 * f2);
        EXPECT_EQ(f1 * f1 * s, adFactors[0]);
        EXPECT_EQ(-(f2 * f2) * s, adFactors[1]);
    }
    for (int eCombination : {15, 22, 23, 24, 25, 26})
    {
        double adFactors[2] = {0.0, 0.0};
        ASSERT_TRUE(stLocal.stMgr.GetCombinationFactors(stGps, eCombination, 2, aeFrqs, adFactors));
        const double s = 1.0 / (f1 - f2);
        EXPECT_EQ(s * f1, adFactors[0]);
        EXPECT_EQ(-f2 * s, adFactors[1]);
    }
    // GLONASS from the satellite's channel.
    stLocal.stMgr.SetGlonassChannel(4, 5);
    double adFactors[2] = {0.0, 0.0};
    const EZelFrequency aeGlo[2] = {ZELFREQUENCY_L1CA, ZELFREQUENCY_L2C};
    ASSERT_TRUE(stLocal.stMgr.GetCombinationFactors(Sat(ZELSATSYSTEM_GLONASS, 4), 15, 2, aeGlo, adFactors));
    EXPECT_DOUBLE_EQ(G1(5) / (G1(5) - G2(5)), adFactors[0]);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyMgr, CombinationFactorsRefusals)
{
    SLocalMgr stLocal;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    const EZelFrequency aeFrqs[3] = {ZELFREQUENCY_L1CA, ZELFREQUENCY_L2P, ZELFREQUENCY_L5};
    double adFactors[2] = {3.0, 3.0};
    {
        CRecorder stRec;
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 12, 2, aeFrqs, nullptr));
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 0, 2, aeFrqs, adFactors));
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 12, 1, aeFrqs, adFactors));
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 12, 0, aeFrqs, adFactors));
        EXPECT_EQ(0u, stRec.Count());
    }
    {
        CRecorder stRec;
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 12, 3, aeFrqs, adFactors));
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 13, 2, aeFrqs, adFactors));
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 27, 2, aeFrqs, adFactors));
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 12, 2, nullptr, adFactors));
        EXPECT_EQ(4u, stRec.Count("false"));
        EXPECT_EQ(4u, stRec.Count());
    }
    {
        // Two slots of one carrier: "false", nothing written.
        CRecorder stRec;
        const EZelFrequency aeSame[2] = {ZELFREQUENCY_L1CA, ZELFREQUENCY_L1C};
        EXPECT_FALSE(stLocal.stMgr.GetCombinationFactors(stGps, 12, 2, aeSame, adFactors));
        // GLONASS with an unknown channel: both carriers 0.0.
        EXPECT_FALSE(
            stLocal.stMgr.GetCombinationFactors(Sat(ZELSATSYSTEM_GLONASS, 1), 15, 2, aeFrqs, adFactors));
        EXPECT_EQ(2u, stRec.Count("false"));
        EXPECT_EQ(2u, stRec.Count());
    }
    EXPECT_EQ(3.0, adFactors[0]);
    EXPECT_EQ(3.0, adFactors[1]);
}

// ---------------------------------------------------------------------------
// Inverse wavelength products
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, InverseWavelengthProducts)
{
    SLocalMgr stLocal;
    CRecorder stRec;
    const SZelSatID stGps = Sat(ZELSATSYSTEM_GPS, 1);
    const double dL1 = 0.1902936727983649;
    const double dL2 = 0.2442102134245683;
    EXPECT_EQ(1.0 / (dL1 * dL2), stLocal.stMgr.GetInverseWavelengthProduct(stGps, 1, 2));
    const double dWide = 1.0 / (1.0 / dL1 - 1.0 / dL2);
    EXPECT_EQ(1.0 / (dWide * dL1), stLocal.stMgr.GetInverseWideLaneProduct(stGps, 1, 2));
    EXPECT_EQ(1.0 / (dL2 * dL2), stLocal.stMgr.GetInverseWavelengthSquared(stGps, 2));
    const double dB1 = 0.1920394863102765;
    EXPECT_EQ(1.0 / (dB1 * dB1), stLocal.stMgr.GetInverseWavelengthSquared(Sat(ZELSATSYSTEM_BEIDOU, 2), 1));
    EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWideLaneProduct(stGps, 2, 2)); // no wide lane of one carrier

    const SZelSatID stGlo = Sat(ZELSATSYSTEM_GLONASS, 12);
    EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWavelengthProduct(stGlo, 1, 2)); // unknown channel
    stLocal.stMgr.SetGlonassChannel(12, 1);
    const double dG1 = c_dC / G1(1);
    const double dG2 = c_dC / G2(1);
    EXPECT_EQ(1.0 / (dG1 * dG2), stLocal.stMgr.GetInverseWavelengthProduct(stGlo, 1, 2));
    EXPECT_EQ(1.0 / (1.0 / (1.0 / dG1 - 1.0 / dG2) * dG1),
              stLocal.stMgr.GetInverseWideLaneProduct(stGlo, 1, 2));
    EXPECT_EQ(1.0 / (dG2 * dG2), stLocal.stMgr.GetInverseWavelengthSquared(stGlo, 2));
    EXPECT_EQ(0u, stRec.Count());

    EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWavelengthProduct(Sat(ZELSATSYSTEM_GLONASS, 0), 1, 2));
    EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWideLaneProduct(Sat(ZELSATSYSTEM_GLONASS, 30), 1, 2));
    EXPECT_EQ(2u, stRec.Count(c_szGloSlot));
    EXPECT_EQ(-1.0, stLocal.stMgr.GetInverseWavelengthProduct(Sat(ZELSATSYSTEM_NONE, 1), 1, 2));
    EXPECT_EQ(-1.0, stLocal.stMgr.GetInverseWideLaneProduct(Sat(c_eSys9, 1), 1, 2));
    EXPECT_EQ(-1.0, stLocal.stMgr.GetInverseWavelengthSquared(Sat(ZELSATSYSTEM_NONE, 1), 1));
    EXPECT_EQ(3u, stRec.Count("false"));
    EXPECT_EQ(5u, stRec.Count());
    EXPECT_EQ(0.0, stLocal.stMgr.GetInverseWavelengthSquared(stGps, 7));
    EXPECT_EQ(1u, stRec.Count("iIdx < ZELFREQUENCY_GROUPS_MAX"));
}

// ---------------------------------------------------------------------------
// GetFrequencyIndex
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, FrequencyIndexTable)
{
    // By system: pairs of slot and index, typed from the signal arrays.
    const std::vector<std::vector<std::pair<int, uint32_t>>> vecRows = {
        {},                                                       // none
        {{1, 0}, {2, 1}, {4, 2}, {3, 3}, {5, 4}, {6, 5}},         // GPS
        {{1, 0}, {2, 1}, {4, 2}, {3, 3}, {5, 4}},                 // GLONASS
        {{6, 0}, {7, 1}, {8, 2}, {9, 3}, {10, 4}},                // Galileo
        {{1, 0}, {2, 0}, {5, 3}},                                 // SBAS
        {{1, 0}, {2, 0}, {3, 1}, {4, 1}, {5, 2}, {8, 3}, {9, 4}}, // BeiDou
        {{1, 0}, {2, 1}, {4, 2}, {3, 3}, {5, 4}, {6, 5}},         // QZSS
        {{5, 0}},                                                 // NavIC
        {{1, 0}, {2, 0}, {3, 1}, {4, 1}}};                        // Locata
    for (int iSys = 1; iSys <= 8; ++iSys)
    {
        for (int iFrq = 0; iFrq <= 11; ++iFrq)
        {
            const auto it =
                std::find_if(vecRows[iSys].begin(), vecRows[iSys].end(),
                             [iFrq](const std::pair<int, uint32_t>& r) { return r.first == iFrq; });
            CRecorder stRec;
            const uint32_t ulIdx = CZelFrequencyMgr::GetFrequencyIndex(static_cast<EZelFrequency>(iFrq),
                                                                       static_cast<EZelSatSystem>(iSys));
            if (it != vecRows[iSys].end())
            {
                EXPECT_EQ(it->second, ulIdx) << iSys << " " << iFrq;
                EXPECT_EQ(0u, stRec.Count());
            }
            else
            {
                EXPECT_EQ(0u, ulIdx);
                EXPECT_EQ(1u, stRec.Count("false")) << iSys << " " << iFrq;
            }
        }
    }
    CRecorder stRec;
    EXPECT_EQ(0u, CZelFrequencyMgr::GetFrequencyIndex(ZELFREQUENCY_L1CA, ZELSATSYSTEM_NONE));
    EXPECT_EQ(0u, CZelFrequencyMgr::GetFrequencyIndex(ZELFREQUENCY_L1CA, c_eSys9));
    EXPECT_EQ(0u, CZelFrequencyMgr::GetFrequencyIndex(static_cast<EZelFrequency>(-3), ZELSATSYSTEM_GPS));
    EXPECT_EQ(3u, stRec.Count("false"));
}

// ---------------------------------------------------------------------------
// Stand-alone L1/L2 accessors (through the global manager)
// ---------------------------------------------------------------------------

TEST(FrequencyAccessors, GpsValues)
{
    CRecorder stRec;
    for (EZelSatSystem eSys : {ZELSATSYSTEM_GPS, ZELSATSYSTEM_QZSS})
    {
        const SZelSatID stSat = Sat(eSys, 2);
        EXPECT_EQ(2.54572778016316, GetIonoFreeCoef1(stSat));
        EXPECT_EQ(-1.54572778016316, GetIonoFreeCoef2(stSat));
        EXPECT_EQ(0.4844358892320762, GetIonoFreeCoef1InMetres(stSat));
        EXPECT_EQ(-0.3774825110899295, GetIonoFreeCoef2InMetres(stSat));
        EXPECT_EQ(0.7792207792207791, GetL2FrequencyRatio(stSat, 1));
        EXPECT_EQ(1.0, GetL2FrequencyRatio(stSat, 2));
        EXPECT_EQ(1.0434782608695652, GetL2FrequencyRatio(stSat, 4));
        EXPECT_EQ(1.6469444444444448, GetL1FrequencyRatioSquared(stSat, 2));
        EXPECT_EQ(1.0, GetL1FrequencyRatioSquared(stSat, 1));
        EXPECT_EQ(0.0362116819070908, GetL1WavelengthSquared(stSat));
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyAccessors, BeidouValues)
{
    CRecorder stRec;
    const SZelSatID stSat = Sat(ZELSATSYSTEM_BEIDOU, 25);
    EXPECT_EQ(2.487168314, GetIonoFreeCoef1(stSat));
    EXPECT_EQ(-1.487168314, GetIonoFreeCoef2(stSat));
    EXPECT_DOUBLE_EQ(2.487168314 * 0.1920394863102765, GetIonoFreeCoef1InMetres(stSat));
    EXPECT_DOUBLE_EQ(-1.487168314 * 0.2483493695843067, GetIonoFreeCoef2InMetres(stSat));
    EXPECT_DOUBLE_EQ(1207140000.0 / 1561098000.0, GetL2FrequencyRatio(stSat, 1));
    EXPECT_DOUBLE_EQ(1207140000.0 / 1268520000.0, GetL2FrequencyRatio(stSat, 4));
    const double dRatio = 1561098000.0 / 1207140000.0;
    EXPECT_DOUBLE_EQ(dRatio * dRatio, GetL1FrequencyRatioSquared(stSat, 2));
    EXPECT_DOUBLE_EQ(0.1920394863102765 * 0.1920394863102765, GetL1WavelengthSquared(stSat));
    const SZelSatID stGal = Sat(ZELSATSYSTEM_GALILEO, 25);
    const double dGal = 1575420000.0 / 1278750000.0;
    EXPECT_DOUBLE_EQ(dGal * dGal, GetL1FrequencyRatioSquared(stGal, 32));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(FrequencyAccessors, LackingPairGivesGpsValue)
{
    CRecorder stRec;
    const SZelSatID stGal = Sat(ZELSATSYSTEM_GALILEO, 1);
    EXPECT_EQ(2.54572778016316, GetIonoFreeCoef1(stGal));
    EXPECT_EQ(-1.54572778016316, GetIonoFreeCoef2(Sat(ZELSATSYSTEM_NAVIC, 1)));
    EXPECT_EQ(0.4844358892320762, GetIonoFreeCoef1InMetres(Sat(ZELSATSYSTEM_LOCATA, 1)));
    EXPECT_EQ(-0.3774825110899295, GetIonoFreeCoef2InMetres(stGal));
    EXPECT_EQ(0.7792207792207791, GetL2FrequencyRatio(stGal, 1));
    EXPECT_EQ(1.6469444444444448, GetL1FrequencyRatioSquared(Sat(ZELSATSYSTEM_NAVIC, 1), 2));
    EXPECT_EQ(0.0362116819070908, GetL1WavelengthSquared(Sat(ZELSATSYSTEM_NONE, 1)));
    EXPECT_EQ(7u, stRec.Count("false"));
    EXPECT_EQ(7u, stRec.Count());
}

TEST(FrequencyAccessors, GlonassFromChannel)
{
    CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    const SZelSatID stSat = Sat(ZELSATSYSTEM_GLONASS, 17);
    {
        // Unknown channel: the wavelength checks report.
        CRecorder stRec;
        EXPECT_EQ(0.0, GetIonoFreeCoef1InMetres(stSat));
        EXPECT_EQ(0.0, GetIonoFreeCoef2InMetres(stSat));
        EXPECT_EQ(2u, stRec.Count("dWL > 0.0"));
        EXPECT_EQ(0.0, GetL2FrequencyRatio(stSat, 1));
        EXPECT_EQ(3u, stRec.Count("dWL > 0.0"));
        EXPECT_EQ(0.0, GetL1WavelengthSquared(stSat));
        EXPECT_EQ(1u, stRec.Count("false"));
        EXPECT_EQ(4u, stRec.Count());
    }
    rMgr.SetGlonassChannel(17, -6);
    {
        CRecorder stRec;
        EXPECT_EQ(2.53125, GetIonoFreeCoef1(stSat));
        EXPECT_EQ(-1.53125, GetIonoFreeCoef2(stSat));
        EXPECT_EQ(2.53125 * (c_dC / G1(-6)), GetIonoFreeCoef1InMetres(stSat));
        EXPECT_EQ(-1.53125 * (c_dC / G2(-6)), GetIonoFreeCoef2InMetres(stSat));
        EXPECT_DOUBLE_EQ(G2(-6) / G1(-6), GetL2FrequencyRatio(stSat, 1));
        EXPECT_DOUBLE_EQ(G2(-6) / 1202025000.0, GetL2FrequencyRatio(stSat, 4));
        const double dRatio = G1(-6) / 1202025000.0;
        EXPECT_DOUBLE_EQ(dRatio * dRatio, GetL1FrequencyRatioSquared(stSat, 4));
        const double dWL = c_dC / G1(-6);
        EXPECT_EQ(dWL * dWL, GetL1WavelengthSquared(stSat));
        EXPECT_EQ(0u, stRec.Count());
    }
    rMgr.ResetTable();
}

// ---------------------------------------------------------------------------
// Construction and the global manager
// ---------------------------------------------------------------------------

TEST(FrequencyMgr, GlobalManager)
{
    CZelFrequencyMgr& rMgr = GetFrequencyMgr();
    EXPECT_EQ(&rMgr, &GetFrequencyMgr());
    boost::shared_ptr<const CZelFrequencyTable> pTable;
    ASSERT_TRUE(rMgr.GetFrequencyTable(pTable));
    ASSERT_TRUE(pTable != nullptr);
    EXPECT_TRUE(pTable->stGlonassFrequencies == ZelGlonassFrequencies());
    rMgr.SetGlonassChannel(1, 4);
    EXPECT_DOUBLE_EQ(G1(4), rMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 1), 1));
    rMgr.ResetTable();
    EXPECT_EQ(0.0, rMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 1), 1));
}

TEST(FrequencyMgr, ConstructorWithNullLock)
{
    CRecorder stRec;
    static CZelFrequencyMgr s_stMgr(nullptr); // its own lock stays reachable
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("m_pMutexFreqTable != NULL", stRec.Texts()[0]);
    s_stMgr.SetGlonassChannel(2, 3);
    EXPECT_DOUBLE_EQ(G2(3), s_stMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 2), 2));
}

TEST(FrequencyMgr, DefaultConstructedInstance)
{
    static CZelFrequencyMgr s_stMgr; // its own lock stays reachable
    boost::shared_ptr<const CZelFrequencyTable> pTable;
    EXPECT_TRUE(s_stMgr.GetFrequencyTable(pTable));
    s_stMgr.SetGlonassChannel(9, 0);
    EXPECT_DOUBLE_EQ(1602000000.0, s_stMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 9), 1));
    // Independent of the global one.
    EXPECT_EQ(0.0, GetFrequencyMgr().GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 9), 1));
}

TEST(FrequencyMgr, CallerLockIsUsed)
{
    // A lock that counts: every table access takes it once.
    class CCountingLock : public CZelLock
    {
    public:
        void Lock() override
        {
            m_Mutex.Lock();
            ++m_iLocks;
        }
        void Unlock() override { m_Mutex.Unlock(); }
        int m_iLocks = 0;

    private:
        CZelMutex m_Mutex;
    };
    CCountingLock stLock;
    {
        CZelFrequencyMgr stMgr(&stLock);
        const int iStart = stLock.m_iLocks;
        stMgr.GetFrequency(Sat(ZELSATSYSTEM_GPS, 1), 1);
        EXPECT_EQ(iStart, stLock.m_iLocks); // CDMA needs no table
        stMgr.GetFrequency(Sat(ZELSATSYSTEM_GLONASS, 1), 1);
        EXPECT_EQ(iStart + 1, stLock.m_iLocks);
        stMgr.SetGlonassChannel(1, 1);
        EXPECT_EQ(iStart + 3, stLock.m_iLocks); // copy, then swap
        stMgr.ResetTable();
        EXPECT_EQ(iStart + 4, stLock.m_iLocks);
    }
}

} // namespace
