// The small engine records: GLONASS code biases and the tuning defaults.

#include "ZelTestHooks.h"

#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

using namespace ZELN;
using ZelTest::CRecordingHook;

namespace
{
const SZelSatID c_stGlo5(ZELSATSYSTEM_GLONASS, 5);
const std::vector<std::string> c_vecFalse = {"false"};
} // namespace

// ===================================================================== SZelGloCodeBias

TEST(GloCodeBias, Defaults)
{
    const SZelGloCodeBias st;
    EXPECT_EQ(st.ulValidMask, 0u);
    for (const double dBias : st.adBias)
    {
        EXPECT_EQ(dBias, 0.0);
    }
    EXPECT_EQ(sizeof(st.adBias) / sizeof(st.adBias[0]), 4u);
}

TEST(GloCodeBias, FrequencyBit)
{
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_L1CA), 1u);
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_L1P), 2u);
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_L2C), 4u);
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_L2P), 8u);
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_E6), 1u << 9);
    // The shift is taken modulo 32: 0 - 1 is 31, 33 - 1 is 0.
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_UNKNOWN), 0x80000000u);
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(static_cast<EZelFrequency>(33)), 1u);
    EXPECT_EQ(SZelGloCodeBias::GetFrequencyBit(static_cast<EZelFrequency>(32)), 0x80000000u);
}

TEST(GloCodeBias, IsPairOneTwo)
{
    EXPECT_TRUE(SZelGloCodeBias::IsPairOneTwo(static_cast<EZelFrequency>(1), static_cast<EZelFrequency>(2)));
    EXPECT_FALSE(SZelGloCodeBias::IsPairOneTwo(static_cast<EZelFrequency>(2), static_cast<EZelFrequency>(1)));
    EXPECT_FALSE(SZelGloCodeBias::IsPairOneTwo(static_cast<EZelFrequency>(1), static_cast<EZelFrequency>(1)));
    EXPECT_FALSE(SZelGloCodeBias::IsPairOneTwo(static_cast<EZelFrequency>(1), static_cast<EZelFrequency>(3)));
    EXPECT_FALSE(SZelGloCodeBias::IsPairOneTwo(static_cast<EZelFrequency>(0), static_cast<EZelFrequency>(2)));
}

TEST(GloCodeBias, SetThenGetWithMask)
{
    CRecordingHook stHook;
    SZelGloCodeBias st;
    st.SetBias(c_stGlo5, ZELFREQUENCY_L1CA, 1.25);
    st.SetBias(c_stGlo5, ZELFREQUENCY_L1P, -2.5);
    st.SetBias(c_stGlo5, ZELFREQUENCY_L2C, 3.75);
    st.SetBias(c_stGlo5, ZELFREQUENCY_L2P, -4.0);
    EXPECT_EQ(st.adBias[0], 1.25);
    EXPECT_EQ(st.adBias[1], -2.5);
    EXPECT_EQ(st.adBias[2], 3.75);
    EXPECT_EQ(st.adBias[3], -4.0);
    EXPECT_EQ(st.ulValidMask, 0u) << "SetBias leaves the mask alone";

    // Without a mask change nothing is valid.
    double dBias = 99.0;
    for (const EZelFrequency eFrq : {ZELFREQUENCY_L1CA, ZELFREQUENCY_L1P, ZELFREQUENCY_L2C, ZELFREQUENCY_L2P})
    {
        EXPECT_FALSE(st.GetBias(c_stGlo5, eFrq, dBias));
        EXPECT_EQ(dBias, 99.0);
    }

    st.ulValidMask = SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_L1P) |
                     SZelGloCodeBias::GetFrequencyBit(ZELFREQUENCY_L2P);
    EXPECT_TRUE(st.GetBias(c_stGlo5, ZELFREQUENCY_L1P, dBias));
    EXPECT_EQ(dBias, -2.5);
    EXPECT_TRUE(st.GetBias(c_stGlo5, ZELFREQUENCY_L2P, dBias));
    EXPECT_EQ(dBias, -4.0);
    dBias = 99.0;
    EXPECT_FALSE(st.GetBias(c_stGlo5, ZELFREQUENCY_L1CA, dBias));
    EXPECT_FALSE(st.GetBias(c_stGlo5, ZELFREQUENCY_L2C, dBias));
    EXPECT_EQ(dBias, 99.0);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(GloCodeBias, GetBiasOfOtherSatellitesIsFalse)
{
    CRecordingHook stHook;
    SZelGloCodeBias st;
    st.adBias[0] = 7.0;
    st.ulValidMask = 0xFFFFFFFFu;
    double dBias = 0.0;
    EXPECT_FALSE(st.GetBias(SZelSatID(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_L1CA, dBias));
    EXPECT_FALSE(st.GetBias(SZelSatID(ZELSATSYSTEM_GALILEO, 5), ZELFREQUENCY_L1CA, dBias));
    // Invalid GLONASS numbers: 0 and above 24.
    EXPECT_FALSE(st.GetBias(SZelSatID(ZELSATSYSTEM_GLONASS, 0), ZELFREQUENCY_L1CA, dBias));
    EXPECT_FALSE(st.GetBias(SZelSatID(ZELSATSYSTEM_GLONASS, 25), ZELFREQUENCY_L1CA, dBias));
    EXPECT_EQ(dBias, 0.0);
    EXPECT_TRUE(st.GetBias(SZelSatID(ZELSATSYSTEM_GLONASS, 24), ZELFREQUENCY_L1CA, dBias));
    EXPECT_EQ(dBias, 7.0);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(GloCodeBias, GetBiasBeyondTheFourBiasesIsFalse)
{
    CRecordingHook stHook;
    SZelGloCodeBias st;
    st.ulValidMask = 0xFFFFFFFFu;
    double dBias = 5.0;
    // Bits set for frequencies without a stored bias: no value to give.
    EXPECT_FALSE(st.GetBias(c_stGlo5, ZELFREQUENCY_L5, dBias));
    EXPECT_FALSE(st.GetBias(c_stGlo5, ZELFREQUENCY_UNKNOWN, dBias));
    EXPECT_FALSE(st.GetBias(c_stGlo5, static_cast<EZelFrequency>(33), dBias));
    EXPECT_FALSE(st.GetBias(c_stGlo5, static_cast<EZelFrequency>(-7), dBias));
    EXPECT_EQ(dBias, 5.0);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(GloCodeBias, SetBiasRefusals)
{
    SZelGloCodeBias st;
    const SZelGloCodeBias stBefore = st;
    {
        CRecordingHook stHook;
        st.SetBias(c_stGlo5, ZELFREQUENCY_L5, 1.0);
        EXPECT_EQ(stHook.Texts(), c_vecFalse);
        EXPECT_EQ(st, stBefore);
    }
    for (const EZelFrequency eFrq : {ZELFREQUENCY_UNKNOWN, ZELFREQUENCY_E6, static_cast<EZelFrequency>(-1)})
    {
        CRecordingHook stHook;
        st.SetBias(c_stGlo5, eFrq, 1.0);
        EXPECT_EQ(stHook.Texts(), c_vecFalse);
        EXPECT_EQ(st, stBefore);
    }
    for (const SZelSatID& rstSat : {SZelSatID(ZELSATSYSTEM_GPS, 5), SZelSatID(ZELSATSYSTEM_GLONASS, 0),
                                    SZelSatID(ZELSATSYSTEM_GLONASS, 30), SZelSatID()})
    {
        CRecordingHook stHook;
        st.SetBias(rstSat, ZELFREQUENCY_L1CA, 1.0);
        EXPECT_EQ(stHook.Texts(), c_vecFalse);
        EXPECT_EQ(st, stBefore);
    }
}

TEST(GloCodeBias, Equality)
{
    SZelGloCodeBias a;
    a.ulValidMask = 3;
    a.adBias[2] = 0.5;
    SZelGloCodeBias b = a;
    EXPECT_TRUE(a == b);
    b.ulValidMask = 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.adBias[3] = 1e-300;
    EXPECT_TRUE(a != b);
    a.adBias[0] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(a == a);
}

// ===================================================================== SZelEngineTuning

TEST(EngineTuning, DefaultsRowByRow)
{
    const SZelEngineTuning st;
    EXPECT_EQ(st.adTune0[0], 15000.0);
    EXPECT_EQ(st.adTune0[1], -1.0);
    EXPECT_EQ(st.afTune1[0], 0.1745329f);
    EXPECT_NEAR(st.afTune1[0], 10.0 * 3.14159265358979 / 180.0, 1e-6) << "10 degrees in radians";
    EXPECT_EQ(st.afTune1[1], 20.0f);
    EXPECT_EQ(st.afTune1[2], 200.0f);
    EXPECT_EQ(st.afTune1[3], 0.25f);
    const int32_t alInts[8] = {63, 2, 7, 0, 5, 2, 2, 2};
    for (int iIdx = 0; iIdx < 8; ++iIdx)
    {
        EXPECT_EQ(st.alTune2[iIdx], alInts[iIdx]) << iIdx;
    }
    EXPECT_EQ(st.allTune3[0], 0);
    EXPECT_EQ(st.allTune3[1], 0);
    EXPECT_EQ(st.aunTune4[0], 1);
    EXPECT_EQ(st.aunTune4[1], 0);
    EXPECT_EQ(st.dTune5, 1.0);
    EXPECT_EQ(st.aunTune6[0], 0);
    EXPECT_EQ(st.aunTune6[1], 1);
    EXPECT_EQ(st.dTune7, 3.03951367781155);
    for (const double d : st.adTune8)
    {
        EXPECT_EQ(d, 0.0);
    }
    EXPECT_EQ(st.lTune9, 0x200100);
    EXPECT_EQ(st.adTune10[0], 181.0);
    EXPECT_EQ(st.adTune10[1], 500.0);
    EXPECT_EQ(st.llTune11, 7);
    EXPECT_EQ(sizeof(st.aucTune12), 64u);
    for (const uint8_t uc : st.aucTune12)
    {
        EXPECT_EQ(uc, 0);
    }
    const double adLast[8] = {0.6, 0.99, 0.0001, 4.0, 0.9, -2.0, 1.0, 1.0};
    for (int iIdx = 0; iIdx < 8; ++iIdx)
    {
        EXPECT_EQ(st.adTune13[iIdx], adLast[iIdx]) << iIdx;
    }
    EXPECT_EQ(st.llTune14, 0);
    EXPECT_EQ(st.ucTune15, 1);
}

TEST(EngineTuning, WidthsInDeclarationOrder)
{
    const SZelEngineTuning st;
    static_assert(std::is_same<std::remove_extent_t<decltype(st.adTune0)>, double>::value, "64-bit floats");
    static_assert(std::is_same<std::remove_extent_t<decltype(st.afTune1)>, float>::value, "32-bit floats");
    static_assert(sizeof(st.alTune2[0]) == 4 && sizeof(st.allTune3[0]) == 8, "integer widths");
    static_assert(sizeof(st.aunTune4[0]) == 2 && sizeof(st.aunTune6[0]) == 2, "16-bit values");
    static_assert(sizeof(st.lTune9) == 4 && sizeof(st.llTune11) == 8 && sizeof(st.llTune14) == 8, "widths");
    static_assert(sizeof(st.ucTune15) == 1, "8-bit");
    EXPECT_LT(reinterpret_cast<const char*>(&st.adTune0), reinterpret_cast<const char*>(&st.afTune1));
    EXPECT_LT(reinterpret_cast<const char*>(&st.aucTune12), reinterpret_cast<const char*>(&st.adTune13));
    EXPECT_LT(reinterpret_cast<const char*>(&st.llTune14), reinterpret_cast<const char*>(&st.ucTune15));
}
