// Processing configuration: defaults, raw blocks and packed images, texts,
// the tolerant comparison and the upgrade of the older layout.
#include "ZelSamplesConfig.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Gnss/ZelExtCfgTypes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <ios>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

// ------------------------------------------------------------------ golden images, built from the offset
// tables

ZelTest::CImage GenCfgImage()
{
    ZelTest::CImage st;
    st.At(0).U32(2).F32(15.5f).At(8).U32(4).F32(7.25f).At(16).U32(2).U32(12);
    st.At(24).U8(1).Zero(1).At(26).U16(0x15).At(28).U8(0).At(29).U8(0).Zero(2);
    st.At(32).U32(60).U8(1).Zero(3).At(40).F64(0.25).At(48).U32(200).At(52).U8(3).Zero(3);
    st.At(56).U32(7).At(60).U8(1).At(61).U8(0x23).Zero(2).At(64);
    return st;
}

ZelTest::CImage DefaultGenCfgImage()
{
    ZelTest::CImage st;
    st.At(0).U32(1).F32(20.0f).At(8).U32(0).F32(0.0f).At(16).U32(0).U32(0);
    st.At(24).U8(0).Zero(1).At(26).U16(63).At(28).U8(1).At(29).U8(1).Zero(2);
    st.At(32).U32(0).U8(0).Zero(3).At(40).F64(0.17453292519943295).At(48).U32(1000).At(52).U8(0).Zero(3);
    st.At(56).U32(0).At(60).U8(0).At(61).U8(0xF7).Zero(2).At(64);
    return st;
}

ZelTest::CImage DiffCfgImage()
{
    ZelTest::CImage st;
    st.At(0).I32(-2).Zero(4).At(8).F64(50000.5).At(16).I32(9).At(20).U8(0).Zero(3).At(24);
    return st;
}

ZelTest::CImage DefaultDiffCfgImage()
{
    ZelTest::CImage st;
    st.At(0).I32(0).Zero(4).At(8).F64(-1.0).At(16).I32(0).At(20).U8(1).Zero(3).At(24);
    return st;
}

// The nine doubles after the filter lengths, in the sample's values.
ZelTest::CImage& NineSampleDoubles(ZelTest::CImage& st)
{
    return st.F64(0.0625).F64(0.03125).F64(1e15).F64(0.0078125).F64(1e8).F64(0.5).F64(0.25).F64(0.015625).F64(
        4.5);
}

// The kinematic block as it stands inside the main record, 144 bytes.
ZelTest::CImage RtkCfgBlockImage()
{
    ZelTest::CImage st;
    st.At(0).U32(0x10203).At(4).U16(300).Zero(2).At(8).F64(1500.5).At(16).F64(3600.25);
    st.At(24).F64(2.5).At(32).F64(0.75).At(40).F64(0.125).At(48).U8(3).At(49).U8(4).Zero(2);
    st.At(52).U32(85).At(56).I16(2).At(58).I16(20).At(60).I16(-3).At(62).I16(60).At(64);
    NineSampleDoubles(st).At(136).U8(0).Zero(7).At(144);
    return st;
}

ZelTest::CImage DefaultRtkCfgBlockImage()
{
    ZelTest::CImage st;
    st.At(0).U32(0).At(4).U16(0).Zero(2).At(8).F64(15000.01).At(16).F64(600001.01);
    st.At(24).F64(1.0).At(32).F64(1.0).At(40).F64(0.0).At(48).U8(1).At(49).U8(1).Zero(2);
    st.At(52).U32(0).At(56).I16(1).At(58).I16(10).At(60).I16(1).At(62).I16(30);
    st.At(64).F64(0.1).At(72).F64(0.1).At(80).F64(1e20).At(88).F64(0.0).At(96).F64(1e10);
    st.At(104).F64(0.0).At(112).F64(-1.0).At(120).F64(-1.0).At(128).F64(-1.0).At(136).U8(1).Zero(7).At(144);
    return st;
}

// The kinematic block's own packed image, 133 bytes.
ZelTest::CImage RtkCfgPackedImage()
{
    ZelTest::CImage st;
    st.At(0).U32(0x10203).At(4).U16(300).At(6).F64(1500.5).F64(3600.25).F64(2.5).F64(0.75).F64(0.125);
    st.At(46).U8(3).At(47).U8(4).At(48).U32(85).At(52).I16(2).I16(20).I16(-3).I16(60).At(60);
    NineSampleDoubles(st).At(132).U8(0).At(133);
    return st;
}

// The older kinematic block, 120 bytes.
ZelTest::CImage RtkCfgV1Image()
{
    ZelTest::CImage st;
    st.At(0).U32(0x10203).At(4).U16(300).Zero(2).At(8).F64(1500.5).At(16).F64(3600.25);
    st.At(24).U8(3).At(25).U8(4).Zero(2).At(28).U32(85).At(32).I16(2).I16(20).I16(-3).I16(60).At(40);
    NineSampleDoubles(st).At(112).U8(0).Zero(7).At(120);
    return st;
}

ZelTest::CImage MacCfgImage()
{
    ZelTest::CImage st;
    st.At(0).F64(120.5).At(8).U8(0).Zero(7).At(16).F64(35000.5).At(24).F64(250.75).At(32);
    return st;
}

ZelTest::CImage RefCfgImage()
{
    ZelTest::CImage st;
    st.At(0).U8(1).Zero(3).At(4).I32(3).At(8).U8(0).Zero(3).At(12).I32(5).At(16).U8(1).Zero(7).At(24);
    st.Append(MacCfgImage()).At(56);
    return st;
}

ZelTest::CImage RtHandleBiasImage()
{
    ZelTest::CImage st;
    st.At(0).U32(7).At(4).U32(0xF).At(8).U8(1).Zero(7).At(16).F64(0.5).At(24).F64(-1.25);
    st.At(32).F64(2.0).At(40).F64(-3.5).At(48);
    return st;
}

ZelTest::CImage RtHandleCoordsImage()
{
    ZelTest::CImage st;
    st.At(0).U32(11).Zero(4).At(8).F64(4517590.25).At(16).F64(123456.5).At(24).F64(-4487348.75);
    st.At(32).U8(1).At(33).U8(1).Zero(6).At(40);
    return st;
}

// ------------------------------------------------------------------ texts, written out by hand

const std::string c_strGenCfgText =
    "DopLimKin, Typ, 2, Lim, 15.5, DopLim, Typ, 4, Lim, 7.25, SatLim, Rate, 2, MaxSats, 12, L1only, 1, "
    "FrqsToUse, 21, Stat, 0, LevPhase, 0, PrePrcCfg, SmthInt, 60, IfCSDet, 1, MinElev, "
    "2.50000000000000000e-01, PosRate, 200, GnssPveUsage, 3, Mode, 7, EnabSsr, 1, GnssToUse, 35";

const std::string c_strDefaultGenCfgText =
    "DopLimKin, Typ, 1, Lim, 20, DopLim, Typ, 0, Lim, 0, SatLim, Rate, 0, MaxSats, 0, L1only, 0, "
    "FrqsToUse, 63, Stat, 1, LevPhase, 1, PrePrcCfg, SmthInt, 0, IfCSDet, 0, MinElev, "
    "1.74532925199432948e-01, PosRate, 1000, GnssPveUsage, 0, Mode, 0, EnabSsr, 0, GnssToUse, 247";

const std::string c_strRtkCfgText =
    "ProcOpt, 66051, SmoWin, 300, MaxPredHpn, 1500.5, MaxPredSsr, 3600.25, APrioriPosPredVarPosScaling, 2.5, "
    "APrioriPosPredVarVelScaling, 0.75, APrioriPosPredProcNoisePerSec, 0.125, NumRestBefAmbFix, 3, "
    "NumRestBefAmbFixStat, 4, FltLngthBitMask, 85, FltLngthFstSrc, 2, FltLngthSrcIntFix, 20, "
    "FltLngthSrcInt, -3, FltLngthResInt, 60, MaxAlphSrc, 0.0625, MaxAlphRes, 0.03125, PosTskCooPN, 1e+15, "
    "PosTskAmbPN, 0.0078125, AmbTskCooPN, 1e+08, PosTskFltCooPN, 0.5, QuasStatPN, 0.25, IonoPN, 0.015625, "
    "IonoIV, 4.5, UseDoppInPos, 0";

const std::string c_strRtkCfgV1Text =
    "ProcOpt, 66051, SmoWin, 300, MaxPredHpn, 1500.5, MaxPredSsr, 3600.25, NumRestBefAmbFix, 3, "
    "NumRestBefAmbFixStat, 4, FltLngthBitMask, 85, FltLngthFstSrc, 2, FltLngthSrcIntFix, 20, "
    "FltLngthSrcInt, -3, FltLngthResInt, 60, MaxAlphSrc, 0.0625, MaxAlphRes, 0.03125, PosTskCooPN, 1e+15, "
    "PosTskAmbPN, 0.0078125, AmbTskCooPN, 1e+08, PosTskFltCooPN, 0.5, QuasStatPN, 0.25, IonoPN, 0.015625, "
    "IonoIV, 4.5, UseDoppInPos, 0";

// Behind the general block every double is scientific at 17 digits.
const std::string c_strRtkCfgScientificHead =
    "ProcOpt, 66051, SmoWin, 300, MaxPredHpn, 1.50050000000000000e+03, MaxPredSsr, 3.60025000000000000e+03";
const std::string c_strRtkCfgScientificAPriori =
    ", APrioriPosPredVarPosScaling, 2.50000000000000000e+00, APrioriPosPredVarVelScaling, "
    "7.50000000000000000e-01, APrioriPosPredProcNoisePerSec, 1.25000000000000000e-01";
const std::string c_strRtkCfgScientificTail =
    ", NumRestBefAmbFix, 3, NumRestBefAmbFixStat, 4, FltLngthBitMask, 85, FltLngthFstSrc, 2, "
    "FltLngthSrcIntFix, 20, FltLngthSrcInt, -3, FltLngthResInt, 60, MaxAlphSrc, 6.25000000000000000e-02, "
    "MaxAlphRes, 3.12500000000000000e-02, PosTskCooPN, 1.00000000000000000e+15, PosTskAmbPN, "
    "7.81250000000000000e-03, AmbTskCooPN, 1.00000000000000000e+08, PosTskFltCooPN, 5.00000000000000000e-01, "
    "QuasStatPN, 2.50000000000000000e-01, IonoPN, 1.56250000000000000e-02, IonoIV, 4.50000000000000000e+00, "
    "UseDoppInPos, 0";
const std::string c_strDiffCfgScientific =
    "PredMode, -2, MaxBsl, 5.00005000000000000e+04, Delim, 9, ImpIono, 0";

// A double moved by a relative amount (never the same value).
double Nudged(double d, double dRelative)
{
    const double dOut = d * (1.0 + dRelative);
    EXPECT_NE(d, dOut);
    return dOut;
}
float Nudged(float f, double dRelative)
{
    const float fOut = static_cast<float>(static_cast<double>(f) * (1.0 + dRelative));
    EXPECT_NE(f, fOut);
    return fOut;
}

// Each change makes the record unequal to the base, and != says so.
template <class R>
void ExpectEachChangeUnequal(const R& rBase, const std::vector<std::function<void(R&)>>& rvec)
{
    for (size_t ulIdx = 0; ulIdx < rvec.size(); ++ulIdx)
    {
        SCOPED_TRACE(ulIdx);
        R stOther = rBase;
        rvec[ulIdx](stOther);
        EXPECT_FALSE(stOther == rBase);
        EXPECT_FALSE(rBase == stOther);
        EXPECT_TRUE(stOther != rBase);
    }
    EXPECT_TRUE(rBase == rBase);
    EXPECT_FALSE(rBase != rBase);
}

// A field that compares within the relative tolerance: a nudge well inside
// it keeps the records equal, one well outside makes them unequal; 0.0
// agrees only with 0.0.
template <class R, class T> void ExpectTolerant(const R& rBase, T R::*pField)
{
    const double dInside = sizeof(T) == 8 ? 2e-15 : 2e-7;
    const double dOutside = sizeof(T) == 8 ? 1e-13 : 5e-6;
    R stOther = rBase;
    stOther.*pField = Nudged(rBase.*pField, dInside);
    EXPECT_TRUE(stOther == rBase);
    EXPECT_FALSE(stOther != rBase);
    stOther.*pField = Nudged(rBase.*pField, dOutside);
    EXPECT_FALSE(stOther == rBase);
    EXPECT_TRUE(stOther != rBase);
    R stZero = rBase;
    stZero.*pField = T(0);
    R stTiny = rBase;
    stTiny.*pField = sizeof(T) == 8 ? T(1e-300) : T(1e-30);
    EXPECT_FALSE(stZero == stTiny);
    R stZeroToo = rBase;
    stZeroToo.*pField = T(0);
    EXPECT_TRUE(stZero == stZeroToo);
}

// A field that compares exactly: one step to the next value is unequal.
template <class R> void ExpectExact(const R& rBase, double R::*pField)
{
    R stOther = rBase;
    stOther.*pField = std::nextafter(rBase.*pField, 1e300);
    EXPECT_FALSE(stOther == rBase);
}

// Every byte image of the record's size is read (the raw blocks hold no
// invalid value), and written back it is the same image with the reserved
// bytes zero: the bytes at the listed offsets are cleared in the comparison.
template <class R>
void ExpectRandomImagesRead(const std::vector<size_t>& rvecReserved, uint64_t ulSize, unsigned uSeed)
{
    std::mt19937 stGen(uSeed);
    std::uniform_int_distribution<int> stByte(0, 255);
    ZelTest::CRecordingHook Hook;
    for (int iRound = 0; iRound < 50; ++iRound)
    {
        std::vector<unsigned char> vecIn(ulSize);
        for (unsigned char& uc : vecIn)
        {
            uc = static_cast<unsigned char>(stByte(stGen));
        }
        R st;
        uint64_t ulOffset = 0;
        ASSERT_TRUE(st.loadData(vecIn.data(), vecIn.size(), &ulOffset));
        EXPECT_EQ(ulSize, ulOffset);
        std::vector<unsigned char> vecOut(ulSize, 0xAA);
        ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulOffset));
        std::vector<unsigned char> vecExpected = vecIn;
        for (const size_t ulAt : rvecReserved)
        {
            vecExpected[ulAt] = 0;
        }
        // A bool byte other than 0 comes back as 1.
        for (size_t ulAt = 0; ulAt < ulSize; ++ulAt)
        {
            if (vecExpected[ulAt] != vecOut[ulAt])
            {
                EXPECT_EQ(1, vecOut[ulAt]) << "offset " << ulAt;
                EXPECT_NE(0, vecIn[ulAt]) << "offset " << ulAt;
            }
        }
        // Truncated anywhere: false with "false".
        const size_t ulCut = static_cast<size_t>(stByte(stGen)) % ulSize;
        R stCut;
        EXPECT_FALSE(stCut.loadData(vecIn.data(), ulCut, &ulOffset));
        EXPECT_EQ(0u, ulOffset);
    }
    EXPECT_EQ(ZelTest::Falses(50), Hook.Texts());
}

std::vector<size_t> Range(size_t ulFrom, size_t ulTo)
{
    std::vector<size_t> vec;
    for (size_t ulAt = ulFrom; ulAt <= ulTo; ++ulAt)
    {
        vec.push_back(ulAt);
    }
    return vec;
}

std::vector<size_t> Join(std::initializer_list<std::vector<size_t>> lst)
{
    std::vector<size_t> vec;
    for (const auto& r : lst)
    {
        vec.insert(vec.end(), r.begin(), r.end());
    }
    return vec;
}

// Reserved bytes of the general block.
std::vector<size_t> GenCfgReserved(size_t ulBase)
{
    std::vector<size_t> vec = {25, 30, 31, 37, 38, 39, 53, 54, 55, 62, 63};
    for (size_t& r : vec)
    {
        r += ulBase;
    }
    return vec;
}

} // namespace

// ------------------------------------------------------------------ defaults, row by row

TEST(ConfigDefaults, SmallBlocks)
{
    const SZelDopLimit stDop;
    EXPECT_EQ(0u, stDop.ulType);
    EXPECT_EQ(0.0f, stDop.fLimit);
    const SZelSatLimit stSat;
    EXPECT_EQ(0u, stSat.ulRate);
    EXPECT_EQ(0u, stSat.ulMaxSats);
    const SZelPrePrcCfg stPre;
    EXPECT_EQ(0u, stPre.ulSmoothInterval);
    EXPECT_FALSE(stPre.bIfCycleSlipDetect);
}

TEST(ConfigDefaults, GeneralBlock)
{
    const SZelGenCfg st;
    EXPECT_EQ(1u, st.stDopLimitKin.ulType);
    EXPECT_EQ(20.0f, st.stDopLimitKin.fLimit);
    EXPECT_EQ(0u, st.stDopLimit.ulType);
    EXPECT_EQ(0.0f, st.stDopLimit.fLimit);
    EXPECT_EQ(0u, st.stSatLimit.ulRate);
    EXPECT_EQ(0u, st.stSatLimit.ulMaxSats);
    EXPECT_FALSE(st.bL1Only);
    EXPECT_EQ(63, st.unFrqsToUse);
    EXPECT_TRUE(st.bStatic);
    EXPECT_TRUE(st.bLevelPhase);
    EXPECT_EQ(0u, st.stPrePrcCfg.ulSmoothInterval);
    EXPECT_FALSE(st.stPrePrcCfg.bIfCycleSlipDetect);
    EXPECT_EQ(0.17453292519943295, st.dMinElev);
    EXPECT_EQ(1000u, st.ulPosRate);
    EXPECT_EQ(0, st.ucGnssPveUsage);
    EXPECT_EQ(0u, st.ulMode);
    EXPECT_FALSE(st.bEnableSsr);
    EXPECT_EQ(0xF7, st.ucGnssToUse);
    // Every system bit but the fourth (SBAS, system 4, bit 3).
    for (int iSystem = 1; iSystem <= 8; ++iSystem)
    {
        EXPECT_EQ(iSystem != 4, ((st.ucGnssToUse >> (iSystem - 1)) & 1) != 0) << iSystem;
    }
}

TEST(ConfigDefaults, DifferentialBlock)
{
    const SZelDiffCfg st;
    EXPECT_EQ(0, st.lPredMode);
    EXPECT_EQ(-1.0, st.dMaxBaseline);
    EXPECT_EQ(0, st.lDelimiter);
    EXPECT_TRUE(st.bImproveIono);
}

TEST(ConfigDefaults, KinematicBlocks)
{
    const SZelRtkCfg st;
    EXPECT_EQ(0u, st.ulProcOpt);
    EXPECT_EQ(0, st.unSmoothWindow);
    EXPECT_EQ(15000.01, st.dMaxPredHpn);
    EXPECT_EQ(600001.01, st.dMaxPredSsr);
    EXPECT_EQ(1.0, st.dAPrioriPosPredVarPosScaling);
    EXPECT_EQ(1.0, st.dAPrioriPosPredVarVelScaling);
    EXPECT_EQ(0.0, st.dAPrioriPosPredProcNoisePerSec);
    EXPECT_EQ(1, st.ucNumRestBefAmbFix);
    EXPECT_EQ(1, st.ucNumRestBefAmbFixStat);
    EXPECT_EQ(0u, st.ulFltLngthBitMask);
    EXPECT_EQ(1, st.nFltLngthFstSrc);
    EXPECT_EQ(10, st.nFltLngthSrcIntFix);
    EXPECT_EQ(1, st.nFltLngthSrcInt);
    EXPECT_EQ(30, st.nFltLngthResInt);
    EXPECT_EQ(0.1, st.dMaxAlphSrc);
    EXPECT_EQ(0.1, st.dMaxAlphRes);
    EXPECT_EQ(1e20, st.dPosTskCooPN);
    EXPECT_EQ(0.0, st.dPosTskAmbPN);
    EXPECT_EQ(1e10, st.dAmbTskCooPN);
    EXPECT_EQ(0.0, st.dPosTskFltCooPN);
    EXPECT_EQ(-1.0, st.dQuasStatPN);
    EXPECT_EQ(-1.0, st.dIonoPN);
    EXPECT_EQ(-1.0, st.dIonoIV);
    EXPECT_TRUE(st.bUseDopplerInPos);

    // The older layout has the same defaults.
    const SZelRtkCfgV1 stOld;
    EXPECT_EQ(0u, stOld.ulProcOpt);
    EXPECT_EQ(0, stOld.unSmoothWindow);
    EXPECT_EQ(15000.01, stOld.dMaxPredHpn);
    EXPECT_EQ(600001.01, stOld.dMaxPredSsr);
    EXPECT_EQ(1, stOld.ucNumRestBefAmbFix);
    EXPECT_EQ(1, stOld.ucNumRestBefAmbFixStat);
    EXPECT_EQ(0u, stOld.ulFltLngthBitMask);
    EXPECT_EQ(1, stOld.nFltLngthFstSrc);
    EXPECT_EQ(10, stOld.nFltLngthSrcIntFix);
    EXPECT_EQ(1, stOld.nFltLngthSrcInt);
    EXPECT_EQ(30, stOld.nFltLngthResInt);
    EXPECT_EQ(0.1, stOld.dMaxAlphSrc);
    EXPECT_EQ(0.1, stOld.dMaxAlphRes);
    EXPECT_EQ(1e20, stOld.dPosTskCooPN);
    EXPECT_EQ(0.0, stOld.dPosTskAmbPN);
    EXPECT_EQ(1e10, stOld.dAmbTskCooPN);
    EXPECT_EQ(0.0, stOld.dPosTskFltCooPN);
    EXPECT_EQ(-1.0, stOld.dQuasStatPN);
    EXPECT_EQ(-1.0, stOld.dIonoPN);
    EXPECT_EQ(-1.0, stOld.dIonoIV);
    EXPECT_TRUE(stOld.bUseDopplerInPos);
}

TEST(ConfigDefaults, CellReferenceAndHandles)
{
    const SZelMacCfg stMac;
    EXPECT_EQ(181.0, stMac.dMaxAge);
    EXPECT_TRUE(stMac.bPolygonCheck);
    EXPECT_EQ(0.0, stMac.dMaxDistance);
    EXPECT_EQ(0.0, stMac.dBufferWidth);
    const SZelRefCfg stRef;
    EXPECT_FALSE(stRef.bRefAvailable);
    EXPECT_EQ(0, stRef.lNetType);
    EXPECT_TRUE(stRef.bAmbSource);
    EXPECT_EQ(0, stRef.lSystemFix);
    EXPECT_FALSE(stRef.bNewAR);
    EXPECT_TRUE(stRef.stMacCfg == stMac);
    EXPECT_EQ(0u, SZelRtHandle().ulRtHandle);
    const SZelRtHandleBias stBias;
    EXPECT_EQ(0u, stBias.ulRtHandle);
    EXPECT_EQ(0u, stBias.ulIncluded);
    EXPECT_FALSE(stBias.bApply);
    EXPECT_EQ(0.0, stBias.dL1CA);
    EXPECT_EQ(0.0, stBias.dL1P);
    EXPECT_EQ(0.0, stBias.dL2C);
    EXPECT_EQ(0.0, stBias.dL2P);
    const SZelRtHandleCoords stCoords;
    EXPECT_EQ(0u, stCoords.ulRtHandle);
    EXPECT_EQ(0.0, stCoords.adCoords[0]);
    EXPECT_EQ(0.0, stCoords.adCoords[1]);
    EXPECT_EQ(0.0, stCoords.adCoords[2]);
    EXPECT_FALSE(stCoords.bNonPhysical);
    EXPECT_FALSE(stCoords.bValid);
}

// ------------------------------------------------------------------ binary forms

TEST(ConfigImages, Sizes)
{
    EXPECT_EQ(8u, SZelDopLimit().getSize());
    EXPECT_EQ(8u, SZelSatLimit().getSize());
    EXPECT_EQ(8u, SZelPrePrcCfg().getSize());
    EXPECT_EQ(64u, SZelGenCfg().getSize());
    EXPECT_EQ(24u, SZelDiffCfg().getSize());
    EXPECT_EQ(133u, SZelRtkCfg().getSize());
    EXPECT_EQ(120u, SZelRtkCfgV1().getSize());
    EXPECT_EQ(232u, SZelProcCfg().getSize());
    EXPECT_EQ(208u, SZelProcCfgV1().getSize());
    EXPECT_EQ(32u, SZelMacCfg().getSize());
    EXPECT_EQ(56u, SZelRefCfg().getSize());
    EXPECT_EQ(4u, SZelRtHandle().getSize());
    EXPECT_EQ(48u, SZelRtHandleBias().getSize());
    EXPECT_EQ(40u, SZelRtHandleCoords().getSize());
}

TEST(ConfigImages, SmallBlocks)
{
    ZelTest::ExpectCoreImage(ZelSample::DopLimit(), ZelTest::CImage().At(0).U32(3).At(4).F32(12.5f).At(8));
    ZelTest::ExpectCoreImage(ZelSample::SatLimit(), ZelTest::CImage().At(0).U32(5).At(4).U32(14).At(8));
    ZelTest::ExpectCoreImage(ZelSample::PrePrcCfg(),
                             ZelTest::CImage().At(0).U32(30).At(4).U8(1).Zero(3).At(8));
    ZelTest::ExpectCoreImage(ZelSample::RtHandle(), ZelTest::CImage().At(0).U32(0xA1B2C3D4u).At(4));
}

TEST(ConfigImages, GeneralBlock)
{
    ZelTest::ExpectCoreImage(ZelSample::GenCfg(), GenCfgImage());
    ZelTest::ExpectCoreImage(SZelGenCfg(), DefaultGenCfgImage(), ZelTest::SCoreRules(), ZelSample::GenCfg());
}

TEST(ConfigImages, DifferentialBlock)
{
    ZelTest::ExpectCoreImage(ZelSample::DiffCfg(), DiffCfgImage());
    ZelTest::ExpectCoreImage(SZelDiffCfg(), DefaultDiffCfgImage(), ZelTest::SCoreRules(),
                             ZelSample::DiffCfg());
}

TEST(ConfigImages, KinematicBlockIsPackedOnItsOwn)
{
    ZelTest::ExpectCoreImage(ZelSample::RtkCfg(), RtkCfgPackedImage());
}

TEST(ConfigImages, OlderKinematicBlock)
{
    ZelTest::ExpectCoreImage(ZelSample::RtkCfgV1(), RtkCfgV1Image());
}

TEST(ConfigImages, MainRecordHoldsTheKinematicRawBlock)
{
    ZelTest::CImage stImage;
    stImage.Append(GenCfgImage()).At(64).Append(DiffCfgImage()).At(88).Append(RtkCfgBlockImage()).At(232);
    ZelTest::ExpectCoreImage(ZelSample::ProcCfg(), stImage);

    ZelTest::CImage stDefault;
    stDefault.Append(DefaultGenCfgImage()).At(64).Append(DefaultDiffCfgImage()).At(88);
    stDefault.Append(DefaultRtkCfgBlockImage()).At(232);
    ZelTest::ExpectCoreImage(SZelProcCfg(), stDefault, ZelTest::SCoreRules(), ZelSample::ProcCfg());
}

TEST(ConfigImages, OlderMainRecord)
{
    ZelTest::CImage stImage;
    stImage.Append(GenCfgImage()).At(64).Append(DiffCfgImage()).At(88).Append(RtkCfgV1Image()).At(208);
    ZelTest::ExpectCoreImage(ZelSample::ProcCfgV1(), stImage);
}

TEST(ConfigImages, CellAndReferenceData)
{
    ZelTest::ExpectCoreImage(ZelSample::MacCfg(), MacCfgImage());
    ZelTest::ExpectCoreImage(ZelSample::RefCfg(), RefCfgImage());
}

TEST(ConfigImages, Handles)
{
    ZelTest::ExpectCoreImage(ZelSample::RtHandleBias(), RtHandleBiasImage());
    ZelTest::ExpectCoreImage(ZelSample::RtHandleCoords(), RtHandleCoordsImage());
}

// Edge case: the main record's raw block is 232 bytes and carries the booleans as single bytes.
TEST(ConfigImages, MainRecordBooleansAreSingleBytes)
{
    SZelProcCfg st;
    st.stGenCfg.bL1Only = true;
    st.stGenCfg.bStatic = false;
    st.stGenCfg.bLevelPhase = true;
    st.stGenCfg.stPrePrcCfg.bIfCycleSlipDetect = true;
    st.stGenCfg.bEnableSsr = true;
    st.stDiffCfg.bImproveIono = false;
    st.stRtkCfg.bUseDopplerInPos = true;
    std::vector<unsigned char> vec(232, 0xAA);
    uint64_t ulOffset = 0;
    ASSERT_TRUE(st.saveData(vec.data(), vec.size(), &ulOffset));
    EXPECT_EQ(232u, ulOffset);
    // Each boolean is the one byte at its offset, its neighbours reserved or other fields.
    const std::vector<std::pair<size_t, unsigned char>> vecBools = {
        {24, 1}, {28, 0}, {29, 1}, {36, 1}, {60, 1}, {64 + 20, 0}, {88 + 136, 1}};
    for (const auto& rBool : vecBools)
    {
        EXPECT_EQ(rBool.second, vec[rBool.first]) << rBool.first;
    }
    for (const size_t ulAt : {25u, 30u, 31u, 37u, 38u, 39u, 85u, 86u, 87u, 225u, 231u})
    {
        EXPECT_EQ(0, vec[ulAt]) << ulAt;
    }
}

TEST(ConfigImages, ReservedBytesAreSkippedWhenRead)
{
    // The sample's image with every reserved byte set: it reads the same.
    std::vector<unsigned char> vec =
        ZelTest::CImage().Append(GenCfgImage()).Append(DiffCfgImage()).Append(RtkCfgBlockImage()).Get();
    const std::vector<size_t> vecReserved =
        Join({GenCfgReserved(0), Range(68, 71), Range(85, 87), {94, 95, 138, 139}, Range(225, 231)});
    for (const size_t ulAt : vecReserved)
    {
        ASSERT_EQ(0, vec[ulAt]) << ulAt;
        vec[ulAt] = 0x5A;
    }
    SZelProcCfg st;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(st.loadData(vec.data(), vec.size(), &ulOffset));
    EXPECT_TRUE(st == ZelSample::ProcCfg());
    std::vector<unsigned char> vecOut(232);
    ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulOffset));
    for (const size_t ulAt : vecReserved)
    {
        EXPECT_EQ(0, vecOut[ulAt]) << ulAt;
    }
}

TEST(ConfigImages, RandomAndTruncatedImages)
{
    ExpectRandomImagesRead<SZelDopLimit>({}, 8, 1);
    ExpectRandomImagesRead<SZelSatLimit>({}, 8, 2);
    ExpectRandomImagesRead<SZelPrePrcCfg>({5, 6, 7}, 8, 3);
    ExpectRandomImagesRead<SZelGenCfg>(GenCfgReserved(0), 64, 4);
    ExpectRandomImagesRead<SZelDiffCfg>(Join({Range(4, 7), Range(21, 23)}), 24, 5);
    ExpectRandomImagesRead<SZelRtkCfg>({}, 133, 6);
    ExpectRandomImagesRead<SZelRtkCfgV1>(Join({{6, 7, 26, 27}, Range(113, 119)}), 120, 7);
    ExpectRandomImagesRead<SZelProcCfg>(
        Join({GenCfgReserved(0), Range(68, 71), Range(85, 87), {94, 95, 138, 139}, Range(225, 231)}), 232, 8);
    ExpectRandomImagesRead<SZelProcCfgV1>(
        Join({GenCfgReserved(0), Range(68, 71), Range(85, 87), {94, 95, 114, 115}, Range(201, 207)}), 208, 9);
    ExpectRandomImagesRead<SZelMacCfg>(Range(9, 15), 32, 10);
    ExpectRandomImagesRead<SZelRefCfg>(Join({Range(1, 3), Range(9, 11), Range(17, 23), Range(33, 39)}), 56,
                                       11);
    ExpectRandomImagesRead<SZelRtHandle>({}, 4, 12);
    ExpectRandomImagesRead<SZelRtHandleBias>(Range(9, 15), 48, 13);
    ExpectRandomImagesRead<SZelRtHandleCoords>(Join({Range(4, 7), Range(34, 39)}), 40, 14);
}

TEST(ConfigImages, RefusedReadLeavesTheRecord)
{
    ZelTest::CRecordingHook Hook;
    SZelProcCfg st = ZelSample::ProcCfg();
    const std::vector<unsigned char> vec(232, 0);
    uint64_t ulOffset = 5;
    EXPECT_FALSE(st.loadData(vec.data(), 0, &ulOffset));
    EXPECT_FALSE(st.loadData(vec.data(), 231, &ulOffset));
    EXPECT_FALSE(st.loadData(nullptr, 232, &ulOffset));
    EXPECT_EQ(0u, ulOffset);
    EXPECT_TRUE(st == ZelSample::ProcCfg());
    EXPECT_EQ(ZelTest::Falses(3), Hook.Texts());
}

// ------------------------------------------------------------------ texts

TEST(ConfigTexts, SmallBlocks)
{
    ZelTest::ExpectTextExact(ZelSample::DopLimit(), "Typ, 3, Lim, 12.5");
    ZelTest::ExpectTextExact(ZelSample::SatLimit(), "Rate, 5, MaxSats, 14");
    ZelTest::ExpectTextExact(ZelSample::PrePrcCfg(), "SmthInt, 30, IfCSDet, 1");
}

TEST(ConfigTexts, GeneralBlock)
{
    ZelTest::ExpectTextExact(ZelSample::GenCfg(), c_strGenCfgText);
    ZelTest::ExpectTextExact(SZelGenCfg(), c_strDefaultGenCfgText, ZelSample::GenCfg());
}

// The general block writes its kinematic dilution limit behind its own tag:
// "DopLimKin, " "Typ, " 1 ", Lim, " 20 for the default.
TEST(ConfigTexts, DilutionLimitBehindItsTag)
{
    std::ostringstream os;
    os << SZelGenCfg();
    EXPECT_EQ(0u, os.str().find("DopLimKin, Typ, 1, Lim, 20, DopLim, "));
}

TEST(ConfigTexts, GeneralBlockLeavesTheStreamScientificAt17Digits)
{
    std::ostringstream os;
    os << SZelGenCfg();
    EXPECT_EQ(17, os.precision());
    EXPECT_EQ(std::ios_base::scientific, os.flags() & std::ios_base::floatfield);
    os.str("");
    os << ZelSample::MacCfg(); // sets nothing of its own
    EXPECT_EQ("MaxAge, 1.20500000000000000e+02, PolygChk, 0, MaxDist, 3.50005000000000000e+04, BuffWd, "
              "2.50750000000000000e+02",
              os.str());
}

TEST(ConfigTexts, DifferentialBlock)
{
    ZelTest::ExpectTextExact(ZelSample::DiffCfg(), "PredMode, -2, MaxBsl, 50000.5, Delim, 9, ImpIono, 0");
    ZelTest::ExpectTextExact(SZelDiffCfg(), "PredMode, 0, MaxBsl, -1, Delim, 0, ImpIono, 1",
                             ZelSample::DiffCfg());
}

TEST(ConfigTexts, KinematicBlocks)
{
    ZelTest::ExpectTextExact(ZelSample::RtkCfg(), c_strRtkCfgText);
    ZelTest::ExpectTextExact(ZelSample::RtkCfgV1(), c_strRtkCfgV1Text);
}

// At the default precision the default kinematic block's text is short of
// its values: the text is an exchange form, not an image.
TEST(ConfigTexts, DefaultKinematicBlockAtDefaultPrecision)
{
    const std::string strText =
        "ProcOpt, 0, SmoWin, 0, MaxPredHpn, 15000, MaxPredSsr, 600001, APrioriPosPredVarPosScaling, 1, "
        "APrioriPosPredVarVelScaling, 1, APrioriPosPredProcNoisePerSec, 0, NumRestBefAmbFix, 1, "
        "NumRestBefAmbFixStat, 1, FltLngthBitMask, 0, FltLngthFstSrc, 1, FltLngthSrcIntFix, 10, "
        "FltLngthSrcInt, 1, FltLngthResInt, 30, MaxAlphSrc, 0.1, MaxAlphRes, 0.1, PosTskCooPN, 1e+20, "
        "PosTskAmbPN, 0, AmbTskCooPN, 1e+10, PosTskFltCooPN, 0, QuasStatPN, -1, IonoPN, -1, IonoIV, -1, "
        "UseDoppInPos, 1";
    ZelTest::ExpectText(SZelRtkCfg(), strText, ZelSample::RtkCfg());
    std::istringstream is(strText);
    SZelRtkCfg st;
    is >> st;
    EXPECT_EQ(15000.0, st.dMaxPredHpn);
    EXPECT_FALSE(st == SZelRtkCfg());
}

TEST(ConfigTexts, MainRecords)
{
    const std::string strHead = "GenCfg, " + c_strGenCfgText + ", DiffCfg, " + c_strDiffCfgScientific +
                                ", RtkCfg, " + c_strRtkCfgScientificHead;
    ZelTest::ExpectTextExact(ZelSample::ProcCfg(),
                             strHead + c_strRtkCfgScientificAPriori + c_strRtkCfgScientificTail);
    ZelTest::ExpectTextExact(ZelSample::ProcCfgV1(), strHead + c_strRtkCfgScientificTail);
    // The default holds values that only 17 digits carry.
    std::ostringstream os;
    os << SZelProcCfg();
    std::istringstream is(os.str());
    SZelProcCfg st = ZelSample::ProcCfg();
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == SZelProcCfg());
    EXPECT_EQ(15000.01, st.stRtkCfg.dMaxPredHpn);
    EXPECT_EQ(600001.01, st.stRtkCfg.dMaxPredSsr);
}

TEST(ConfigTexts, CellReferenceAndHandles)
{
    ZelTest::ExpectTextExact(ZelSample::MacCfg(),
                             "MaxAge, 120.5, PolygChk, 0, MaxDist, 35000.5, BuffWd, 250.75");
    ZelTest::ExpectTextExact(ZelSample::RefCfg(),
                             "RefAvl, 1, NetTyp, 3, AmbSrc, 0, SysFix, 5, NewAR, 1, MacCfg, "
                             "MaxAge, 120.5, PolygChk, 0, MaxDist, 35000.5, BuffWd, 250.75");
    ZelTest::ExpectTextExact(ZelSample::RtHandleBias(),
                             "RtHnd, 7, Incl, 15, Appl, 1, L1CA, 0.5, L1P, -1.25, L2C, 2, L2P, -3.5");
    ZelTest::ExpectTextExact(ZelSample::RtHandleCoords(),
                             "RtHnd, 11, Coords, 4517590.25, 123456.5, -4487348.75, NonPhys, 1, Vld, 1");
}

TEST(ConfigTexts, CoordinatesAtTwelveDigits)
{
    SZelRtHandleCoords st;
    st.adCoords[0] = 4517590.123456789;
    std::ostringstream os;
    os << st;
    EXPECT_EQ("RtHnd, 0, Coords, 4517590.12346, 0, 0, NonPhys, 0, Vld, 0", os.str());
    EXPECT_EQ(12, os.precision());
}

TEST(ConfigTexts, OtherTagWordsReadTheSame)
{
    // Read by position: the tag words are never compared.
    std::istringstream is("Q, 1, W, 3, E, 0, R, 5, T, 1, Y, U, 120.5, I, 0, O, 35000.5, P, 250.75");
    SZelRefCfg st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == ZelSample::RefCfg());
}

TEST(ConfigTexts, CutTextFailsAndLaterFieldsKeepTheirValues)
{
    SZelRtHandleBias st = ZelSample::RtHandleBias();
    std::istringstream is("RtHnd, 9, Incl, 3, Appl, 0, L1CA, 4.5,");
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(9u, st.ulRtHandle);
    EXPECT_EQ(3u, st.ulIncluded);
    EXPECT_FALSE(st.bApply);
    EXPECT_EQ(4.5, st.dL1CA);
    EXPECT_EQ(-1.25, st.dL1P);
    EXPECT_EQ(2.0, st.dL2C);
    EXPECT_EQ(-3.5, st.dL2P);
}

TEST(ConfigTexts, NastyTextsNeverCrash)
{
    std::mt19937 stGen(99);
    std::uniform_int_distribution<int> stChar(0, 255);
    std::string strProc;
    {
        std::ostringstream os;
        os << ZelSample::ProcCfg();
        strProc = os.str();
    }
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        std::string strText = strProc.substr(0, static_cast<size_t>(stChar(stGen)) * strProc.size() / 256);
        for (int iFlip = 0; iFlip < 5 && !strText.empty(); ++iFlip)
        {
            strText[static_cast<size_t>(stChar(stGen)) % strText.size()] = static_cast<char>(stChar(stGen));
        }
        std::istringstream is(strText);
        SZelProcCfg st;
        is >> st;
        std::ostringstream os;
        os << st;
        EXPECT_FALSE(os.str().empty());
    }
}

// ------------------------------------------------------------------ comparison

// Edge case: a default general block equals itself and one whose elevation
// mask was computed as 10 degrees off by 1 part in 1e15.
TEST(ConfigCompare, ElevationMaskComputedOffByOnePartIn1e15)
{
    const SZelGenCfg stDefault;
    EXPECT_TRUE(stDefault == stDefault);
    SZelGenCfg stComputed;
    stComputed.dMinElev = 10.0 * (3.141592653589793 / 180.0) * (1.0 + 1e-15);
    EXPECT_NE(stDefault.dMinElev, stComputed.dMinElev);
    EXPECT_TRUE(stDefault == stComputed);
    EXPECT_FALSE(stDefault != stComputed);
}

// Edge case: dMaxBaseline -1.0 against 0.0 is unequal.
TEST(ConfigCompare, BaselineMinusOneAgainstZero)
{
    SZelDiffCfg stZero;
    stZero.dMaxBaseline = 0.0;
    EXPECT_FALSE(SZelDiffCfg() == stZero);
    EXPECT_TRUE(SZelDiffCfg() != stZero);
}

TEST(ConfigCompare, TolerantFields)
{
    ExpectTolerant(ZelSample::DopLimit(), &SZelDopLimit::fLimit);
    ExpectTolerant(ZelSample::GenCfg(), &SZelGenCfg::dMinElev);
    ExpectTolerant(ZelSample::DiffCfg(), &SZelDiffCfg::dMaxBaseline);
    ExpectTolerant(ZelSample::MacCfg(), &SZelMacCfg::dMaxAge);
    ExpectTolerant(ZelSample::MacCfg(), &SZelMacCfg::dMaxDistance);
    ExpectTolerant(ZelSample::MacCfg(), &SZelMacCfg::dBufferWidth);
    for (double SZelRtkCfg::*pField :
         {&SZelRtkCfg::dMaxPredHpn, &SZelRtkCfg::dMaxPredSsr, &SZelRtkCfg::dAPrioriPosPredVarPosScaling,
          &SZelRtkCfg::dAPrioriPosPredVarVelScaling, &SZelRtkCfg::dAPrioriPosPredProcNoisePerSec,
          &SZelRtkCfg::dMaxAlphSrc, &SZelRtkCfg::dMaxAlphRes, &SZelRtkCfg::dPosTskCooPN,
          &SZelRtkCfg::dPosTskAmbPN, &SZelRtkCfg::dAmbTskCooPN, &SZelRtkCfg::dPosTskFltCooPN,
          &SZelRtkCfg::dQuasStatPN, &SZelRtkCfg::dIonoPN, &SZelRtkCfg::dIonoIV})
    {
        ExpectTolerant(ZelSample::RtkCfg(), pField);
    }
    for (double SZelRtkCfgV1::*pField :
         {&SZelRtkCfgV1::dMaxPredHpn, &SZelRtkCfgV1::dMaxPredSsr, &SZelRtkCfgV1::dMaxAlphSrc,
          &SZelRtkCfgV1::dMaxAlphRes, &SZelRtkCfgV1::dPosTskCooPN, &SZelRtkCfgV1::dPosTskAmbPN,
          &SZelRtkCfgV1::dAmbTskCooPN, &SZelRtkCfgV1::dPosTskFltCooPN, &SZelRtkCfgV1::dQuasStatPN,
          &SZelRtkCfgV1::dIonoPN, &SZelRtkCfgV1::dIonoIV})
    {
        ExpectTolerant(ZelSample::RtkCfgV1(), pField);
    }
}

TEST(ConfigCompare, ExactFields)
{
    // The four biases and the coordinates compare exactly.
    for (double SZelRtHandleBias::*pField : {&SZelRtHandleBias::dL1CA, &SZelRtHandleBias::dL1P,
                                             &SZelRtHandleBias::dL2C, &SZelRtHandleBias::dL2P})
    {
        ExpectExact(ZelSample::RtHandleBias(), pField);
    }
    SZelRtHandleBias stNaN = ZelSample::RtHandleBias();
    stNaN.dL2P = std::nan("");
    EXPECT_FALSE(stNaN == stNaN);
    for (int iIdx = 0; iIdx < 3; ++iIdx)
    {
        SZelRtHandleCoords st = ZelSample::RtHandleCoords();
        st.adCoords[iIdx] = std::nextafter(st.adCoords[iIdx], 0.0);
        EXPECT_FALSE(st == ZelSample::RtHandleCoords()) << iIdx;
    }
}

TEST(ConfigCompare, EveryFieldTakesPart)
{
    ExpectEachChangeUnequal<SZelDopLimit>(ZelSample::DopLimit(), {[](SZelDopLimit& r) { r.ulType = 9; },
                                                                  [](SZelDopLimit& r) { r.fLimit = 13.0f; }});
    ExpectEachChangeUnequal<SZelSatLimit>(ZelSample::SatLimit(), {[](SZelSatLimit& r) { r.ulRate = 1; },
                                                                  [](SZelSatLimit& r) { r.ulMaxSats = 1; }});
    ExpectEachChangeUnequal<SZelPrePrcCfg>(ZelSample::PrePrcCfg(),
                                           {[](SZelPrePrcCfg& r) { r.ulSmoothInterval = 1; },
                                            [](SZelPrePrcCfg& r) { r.bIfCycleSlipDetect = false; }});
    ExpectEachChangeUnequal<SZelGenCfg>(
        ZelSample::GenCfg(),
        {[](SZelGenCfg& r) { r.stDopLimitKin.ulType = 1; }, [](SZelGenCfg& r) { r.stDopLimit.fLimit = 1.0f; },
         [](SZelGenCfg& r) { r.stSatLimit.ulMaxSats = 1; }, [](SZelGenCfg& r) { r.bL1Only = false; },
         [](SZelGenCfg& r) { r.unFrqsToUse = 1; }, [](SZelGenCfg& r) { r.bStatic = true; },
         [](SZelGenCfg& r) { r.bLevelPhase = true; },
         [](SZelGenCfg& r) { r.stPrePrcCfg.ulSmoothInterval = 1; }, [](SZelGenCfg& r) { r.dMinElev = 0.5; },
         [](SZelGenCfg& r) { r.ulPosRate = 1; }, [](SZelGenCfg& r) { r.ucGnssPveUsage = 1; },
         [](SZelGenCfg& r) { r.ulMode = 1; }, [](SZelGenCfg& r) { r.bEnableSsr = false; },
         [](SZelGenCfg& r) { r.ucGnssToUse = 1; }});
    ExpectEachChangeUnequal<SZelDiffCfg>(
        ZelSample::DiffCfg(),
        {[](SZelDiffCfg& r) { r.lPredMode = 1; }, [](SZelDiffCfg& r) { r.dMaxBaseline = 1.0; },
         [](SZelDiffCfg& r) { r.lDelimiter = 1; }, [](SZelDiffCfg& r) { r.bImproveIono = true; }});
    ExpectEachChangeUnequal<SZelRtkCfg>(
        ZelSample::RtkCfg(),
        {[](SZelRtkCfg& r) { r.ulProcOpt = 1; }, [](SZelRtkCfg& r) { r.unSmoothWindow = 1; },
         [](SZelRtkCfg& r) { r.ucNumRestBefAmbFix = 9; }, [](SZelRtkCfg& r) { r.ucNumRestBefAmbFixStat = 9; },
         [](SZelRtkCfg& r) { r.ulFltLngthBitMask = 1; }, [](SZelRtkCfg& r) { r.nFltLngthFstSrc = 9; },
         [](SZelRtkCfg& r) { r.nFltLngthSrcIntFix = 9; }, [](SZelRtkCfg& r) { r.nFltLngthSrcInt = 9; },
         [](SZelRtkCfg& r) { r.nFltLngthResInt = 9; }, [](SZelRtkCfg& r) { r.bUseDopplerInPos = true; }});
    ExpectEachChangeUnequal<SZelRtkCfgV1>(
        ZelSample::RtkCfgV1(),
        {[](SZelRtkCfgV1& r) { r.ulProcOpt = 1; }, [](SZelRtkCfgV1& r) { r.unSmoothWindow = 1; },
         [](SZelRtkCfgV1& r) { r.ucNumRestBefAmbFix = 9; },
         [](SZelRtkCfgV1& r) { r.ucNumRestBefAmbFixStat = 9; },
         [](SZelRtkCfgV1& r) { r.ulFltLngthBitMask = 1; }, [](SZelRtkCfgV1& r) { r.nFltLngthFstSrc = 9; },
         [](SZelRtkCfgV1& r) { r.nFltLngthSrcIntFix = 9; }, [](SZelRtkCfgV1& r) { r.nFltLngthSrcInt = 9; },
         [](SZelRtkCfgV1& r) { r.nFltLngthResInt = 9; }, [](SZelRtkCfgV1& r) { r.bUseDopplerInPos = true; }});
    ExpectEachChangeUnequal<SZelProcCfg>(ZelSample::ProcCfg(),
                                         {[](SZelProcCfg& r) { r.stGenCfg.ulMode = 1; },
                                          [](SZelProcCfg& r) { r.stDiffCfg.lDelimiter = 1; },
                                          [](SZelProcCfg& r) { r.stRtkCfg.dIonoIV = 1.0; }});
    ExpectEachChangeUnequal<SZelProcCfgV1>(ZelSample::ProcCfgV1(),
                                           {[](SZelProcCfgV1& r) { r.stGenCfg.ulMode = 1; },
                                            [](SZelProcCfgV1& r) { r.stDiffCfg.lDelimiter = 1; },
                                            [](SZelProcCfgV1& r) { r.stRtkCfg.dIonoIV = 1.0; }});
    ExpectEachChangeUnequal<SZelMacCfg>(ZelSample::MacCfg(), {[](SZelMacCfg& r) { r.dMaxAge = 1.0; },
                                                              [](SZelMacCfg& r) { r.bPolygonCheck = true; },
                                                              [](SZelMacCfg& r) { r.dMaxDistance = 1.0; },
                                                              [](SZelMacCfg& r) { r.dBufferWidth = 1.0; }});
    ExpectEachChangeUnequal<SZelRefCfg>(
        ZelSample::RefCfg(),
        {[](SZelRefCfg& r) { r.bRefAvailable = false; }, [](SZelRefCfg& r) { r.lNetType = 1; },
         [](SZelRefCfg& r) { r.bAmbSource = true; }, [](SZelRefCfg& r) { r.lSystemFix = 1; },
         [](SZelRefCfg& r) { r.bNewAR = false; }, [](SZelRefCfg& r) { r.stMacCfg.dMaxAge = 1.0; }});
    ExpectEachChangeUnequal<SZelRtHandle>(ZelSample::RtHandle(), {[](SZelRtHandle& r) { r.ulRtHandle = 1; }});
    ExpectEachChangeUnequal<SZelRtHandleBias>(
        ZelSample::RtHandleBias(),
        {[](SZelRtHandleBias& r) { r.ulRtHandle = 1; }, [](SZelRtHandleBias& r) { r.ulIncluded = 1; },
         [](SZelRtHandleBias& r) { r.bApply = false; }, [](SZelRtHandleBias& r) { r.dL1CA = 1.0; },
         [](SZelRtHandleBias& r) { r.dL1P = 1.0; }, [](SZelRtHandleBias& r) { r.dL2C = 1.0; },
         [](SZelRtHandleBias& r) { r.dL2P = 1.0; }});
    ExpectEachChangeUnequal<SZelRtHandleCoords>(ZelSample::RtHandleCoords(),
                                                {[](SZelRtHandleCoords& r) { r.ulRtHandle = 1; },
                                                 [](SZelRtHandleCoords& r) { r.adCoords[0] = 1.0; },
                                                 [](SZelRtHandleCoords& r) { r.adCoords[1] = 1.0; },
                                                 [](SZelRtHandleCoords& r) { r.adCoords[2] = 1.0; },
                                                 [](SZelRtHandleCoords& r) { r.bNonPhysical = false; },
                                                 [](SZelRtHandleCoords& r) { r.bValid = false; }});
}

// ------------------------------------------------------------------ upgrade of the older layout

// Edge case: an old record upgraded carries 1.0, 1.0 and 0.0 in the three new fields.
TEST(ConfigUpgrade, NewFieldsTakeTheirDefaults)
{
    SZelProcCfg stNew = ZelSample::ProcCfg(); // 2.5, 0.75 and 0.125 before
    UpgradeProcCfg(ZelSample::ProcCfgV1(), stNew);
    EXPECT_EQ(1.0, stNew.stRtkCfg.dAPrioriPosPredVarPosScaling);
    EXPECT_EQ(1.0, stNew.stRtkCfg.dAPrioriPosPredVarVelScaling);
    EXPECT_EQ(0.0, stNew.stRtkCfg.dAPrioriPosPredProcNoisePerSec);
}

TEST(ConfigUpgrade, EverySharedFieldIsCopied)
{
    SZelProcCfg stNew;
    UpgradeProcCfg(ZelSample::ProcCfgV1(), stNew);
    SZelProcCfg stExpected = ZelSample::ProcCfg();
    stExpected.stRtkCfg.dAPrioriPosPredVarPosScaling = 1.0;
    stExpected.stRtkCfg.dAPrioriPosPredVarVelScaling = 1.0;
    stExpected.stRtkCfg.dAPrioriPosPredProcNoisePerSec = 0.0;
    EXPECT_TRUE(stNew == stExpected);
    // Field by field against the old record's values, exactly.
    const SZelRtkCfgV1 stOld = ZelSample::RtkCfgV1();
    const SZelRtkCfg& rRtk = stNew.stRtkCfg;
    EXPECT_EQ(stOld.ulProcOpt, rRtk.ulProcOpt);
    EXPECT_EQ(stOld.unSmoothWindow, rRtk.unSmoothWindow);
    EXPECT_EQ(stOld.dMaxPredHpn, rRtk.dMaxPredHpn);
    EXPECT_EQ(stOld.dMaxPredSsr, rRtk.dMaxPredSsr);
    EXPECT_EQ(stOld.ucNumRestBefAmbFix, rRtk.ucNumRestBefAmbFix);
    EXPECT_EQ(stOld.ucNumRestBefAmbFixStat, rRtk.ucNumRestBefAmbFixStat);
    EXPECT_EQ(stOld.ulFltLngthBitMask, rRtk.ulFltLngthBitMask);
    EXPECT_EQ(stOld.nFltLngthFstSrc, rRtk.nFltLngthFstSrc);
    EXPECT_EQ(stOld.nFltLngthSrcIntFix, rRtk.nFltLngthSrcIntFix);
    EXPECT_EQ(stOld.nFltLngthSrcInt, rRtk.nFltLngthSrcInt);
    EXPECT_EQ(stOld.nFltLngthResInt, rRtk.nFltLngthResInt);
    EXPECT_EQ(stOld.dMaxAlphSrc, rRtk.dMaxAlphSrc);
    EXPECT_EQ(stOld.dMaxAlphRes, rRtk.dMaxAlphRes);
    EXPECT_EQ(stOld.dPosTskCooPN, rRtk.dPosTskCooPN);
    EXPECT_EQ(stOld.dPosTskAmbPN, rRtk.dPosTskAmbPN);
    EXPECT_EQ(stOld.dAmbTskCooPN, rRtk.dAmbTskCooPN);
    EXPECT_EQ(stOld.dPosTskFltCooPN, rRtk.dPosTskFltCooPN);
    EXPECT_EQ(stOld.dQuasStatPN, rRtk.dQuasStatPN);
    EXPECT_EQ(stOld.dIonoPN, rRtk.dIonoPN);
    EXPECT_EQ(stOld.dIonoIV, rRtk.dIonoIV);
    EXPECT_EQ(stOld.bUseDopplerInPos, rRtk.bUseDopplerInPos);
    // An upgraded default is the present default.
    SZelProcCfg stFromDefault = ZelSample::ProcCfg();
    UpgradeProcCfg(SZelProcCfgV1(), stFromDefault);
    EXPECT_TRUE(stFromDefault == SZelProcCfg());
}

TEST(ConfigUpgrade, OldImageUpgradedGivesTheNewImage)
{
    // Read the older 208-byte image, upgrade, write the 232-byte one: the
    // kinematic block gains 24 bytes at 24 with 1.0, 1.0 and 0.0.
    ZelTest::CImage stOld;
    stOld.Append(GenCfgImage()).Append(DiffCfgImage()).Append(RtkCfgV1Image()).At(208);
    SZelProcCfgV1 stV1;
    uint64_t ulOffset = 0;
    ASSERT_TRUE(stV1.loadData(stOld.Get().data(), stOld.Size(), &ulOffset));
    SZelProcCfg stNew;
    UpgradeProcCfg(stV1, stNew);
    std::vector<unsigned char> vecOut(232);
    ASSERT_TRUE(stNew.saveData(vecOut.data(), vecOut.size(), &ulOffset));
    ZelTest::CImage stExpected;
    stExpected.Append(GenCfgImage()).Append(DiffCfgImage()).At(88);
    stExpected.U32(0x10203).U16(300).Zero(2).F64(1500.5).F64(3600.25).At(88 + 24);
    stExpected.F64(1.0).F64(1.0).F64(0.0).At(88 + 48).U8(3).U8(4).Zero(2).U32(85).I16(2).I16(20).I16(-3).I16(
        60);
    NineSampleDoubles(stExpected).U8(0).Zero(7).At(232);
    EXPECT_EQ(stExpected.Get(), vecOut);
}

// ------------------------------------------------------------------ network handling, station, receiver
// antenna

namespace
{

ZelTest::CImage NetCfgImage()
{
    ZelTest::CImage st;
    st.At(0).I32(3).At(4).I32(1).At(8).I32(11).At(12).U8(1).Zero(3).At(16).I32(6).At(20).I32(3).At(24).I32(4);
    st.At(28).U8(1).At(29).U8(1).At(30).U8(1).At(31).U8(1).At(32).U8(1).Zero(7).At(40).F64(2500.5);
    st.At(48)
        .F64(90.25)
        .At(56)
        .U8(1)
        .At(57)
        .U8(1)
        .Zero(6)
        .At(64)
        .Append(MacCfgImage())
        .At(96)
        .Zero(8)
        .At(104);
    return st;
}

ZelTest::CImage DefaultNetCfgImage()
{
    ZelTest::CImage st;
    st.At(0).I32(0).At(4).I32(0).At(8).I32(0).At(12).U8(0).Zero(3).At(16).I32(5).At(20).I32(2).At(24).I32(2);
    st.At(28).U8(0).U8(0).U8(0).U8(0).At(32).U8(0).Zero(7).At(40).F64(3000.0).At(48).F64(180.0);
    st.At(56).U8(0).U8(0).Zero(6).At(64).F64(181.0).U8(1).Zero(7).F64(0.0).F64(0.0).At(96).Zero(8).At(104);
    return st;
}

const std::string c_strNetCfgText =
    "NetTyp, FKP, NetMod, MAC, ReqFlgs, 11, CrePrdCoeff, 1, MinGps, 6, MinGlo, 3, MinOth, 4, CodeCorr, 1, "
    "ImmDrpbk, 1, ImmDistDrpbk, 1, DrpbkSB, 1, DrpbkClSB, 1, MinDistMst, 2500.5, SatAvlTout, 90.25, "
    "FllfwdToNet, 1, ImmFllfwd, 1, MacCfg, MaxAge, 120.5, PolygChk, 0, MaxDist, 35000.5, BuffWd, 250.75";

// The station: the two numbers, then the position's memory image.
ZelTest::CImage StationCfgImage()
{
    ZelTest::CImage st;
    st.At(0).I32(2).At(4).I32(5000).At(8).I32(4).At(12).U8(3).Zero(3).At(16).I32(1).Zero(4);
    st.At(24).F64(0.75).At(32).F64(-1.25).At(40).F64(350.5).At(48).I32(1).At(52).F32(1.5f).At(56).F32(2.25f);
    st.At(60).F32(0.25f).F32(0.0625f).F32(0.5f).F32(-0.125f).F32(0.03125f).F32(1.0f).At(84).U8(1).Zero(3).At(
        88);
    return st;
}

const std::string c_strStationCfgText =
    "Mode, 2, TimeOutMs, 5000, StnCoo, CooTyp, KnwMrk, Avl, 3, Pos, CooTyp, Geo, Coo, 0.75, -1.25, 350.5, "
    "PosQ, CooSys, Geo, Mo, 1.5, MoUnscaled, 2.25, Q, 0.25, 0.0625, 0.5, -0.125, 0.03125, 1, NonPys, 1";

// A name field of the descriptor: the text, then zeros to 32 bytes.
ZelTest::CImage& Name32(ZelTest::CImage& st, const char* sz)
{
    const size_t ulLen = std::strlen(sz);
    for (size_t ulIdx = 0; ulIdx < ulLen; ++ulIdx)
    {
        st.U8(static_cast<unsigned char>(sz[ulIdx]));
    }
    return st.Zero(32 - ulLen);
}

// Handle and receiver type, then the antenna's image: descriptor at 8 (67
// bytes), offsets at 75 (48 bytes), model at 123 (7 bytes, the count, one
// key of 8 bytes and one calibration of 28 bytes).
ZelTest::CImage RecAntCfgImage()
{
    ZelTest::CImage st;
    st.At(0).U32(21).At(4).I32(-4).At(8);
    Name32(st, "ANT1").At(40);
    Name32(st, "S9").At(72).U8(1).U8(2).U8(3).At(75);
    st.U32(7).F32(0.5f).F32(-0.25f).Zero(4).At(91).F64(0.125).At(99).I32(0).Zero(4).At(107).F64(1.5).F64(0.0);
    st.At(123).U16(5).U8(1).F32(0.5f).At(130).U32(1).At(134).I32(1).U32(0).At(142);
    st.F32(0.5f).F32(-0.25f).F32(0.0625f).U32(1).U32(2).F32(1.5f).F32(-2.0f).At(170);
    return st;
}

const std::string c_strRecAntCfgText =
    "RtHnd, 21, RecTyp, -4, AntInfo, AntDescr, IgsName, ANT1, SerNr, S9, SetId, 1, CreId, 2, Type, 3, "
    "ArpOffs, Avl, 7, HrzOffs, HrzOffsE, 0.5, HrzOffsN, -0.25, VerOffs, 0.125, ReadMode, 0, HgtRead, 1.5, "
    "AntModel, 5, AntModelAvail, 1, AntAziRad, 0.5, PCCs, PCCsNum, 1, SatSys, G, FrqBand, 0, PCO, 0.5, "
    "-0.25, "
    "0.0625, PcvNumAzi, 1, PcvNumElev, 2, PCV, 1.5, -2";

} // namespace

TEST(ConfigDefaults, NetworkStationAndAntenna)
{
    const SZelNetCfg st;
    EXPECT_EQ(ZELNETTYPE_NONE, st.eNetType);
    EXPECT_EQ(ZELNETMODE_NONE, st.eNetMode);
    EXPECT_EQ(0, st.lRequestFlags);
    EXPECT_FALSE(st.bCreatePredCoeff);
    EXPECT_EQ(5, st.lMinGps);
    EXPECT_EQ(2, st.lMinGlo);
    EXPECT_EQ(2, st.lMinOther);
    EXPECT_FALSE(st.bCodeCorr);
    EXPECT_FALSE(st.bImmediateDropback);
    EXPECT_FALSE(st.bImmediateDistDropback);
    EXPECT_FALSE(st.bDropbackSB);
    EXPECT_FALSE(st.bDropbackClSB);
    EXPECT_EQ(3000.0, st.dMinDistMaster);
    EXPECT_EQ(180.0, st.dSatAvailTimeout);
    EXPECT_FALSE(st.bFallforwardToNet);
    EXPECT_FALSE(st.bImmediateFallforward);
    EXPECT_TRUE(st.stMacCfg == SZelMacCfg());
    const SZelStationCfg stStation;
    EXPECT_EQ(0, stStation.lMode);
    EXPECT_EQ(0, stStation.lTimeOutMs);
    EXPECT_TRUE(stStation.stStationCoords == SZelPosition());
    const SZelRecAntCfg stRecAnt{};
    EXPECT_EQ(0u, stRecAnt.ulRtHandle);
    EXPECT_EQ(0, stRecAnt.lRecType);
    EXPECT_TRUE(stRecAnt.stAntInfo == SZelAntennaInfo());
}

TEST(ConfigImages, NetworkHandling)
{
    EXPECT_EQ(104u, SZelNetCfg().getSize());
    ZelTest::ExpectCoreImage(ZelSample::NetCfg(), NetCfgImage());
    ZelTest::ExpectCoreImage(SZelNetCfg(), DefaultNetCfgImage(), ZelTest::SCoreRules(), ZelSample::NetCfg());
    ExpectRandomImagesRead<SZelNetCfg>(
        Join({Range(13, 15), Range(33, 39), Range(58, 63), Range(73, 79), Range(96, 103)}), 104, 15);
}

TEST(ConfigImages, StationIsThePositionsMemoryImage)
{
    EXPECT_EQ(88u, SZelStationCfg().getSize());
    ZelTest::ExpectCoreImage(ZelSample::StationCfg(), StationCfgImage());
    ExpectRandomImagesRead<SZelStationCfg>(Join({Range(13, 15), Range(20, 23), Range(85, 87)}), 88, 16);

    // The 80 bytes behind the two numbers are the position as it stands in
    // memory, but for its padding.
    const SZelStationCfg st = ZelSample::StationCfg();
    std::vector<unsigned char> vecImage(88);
    uint64_t ulOffset = 0;
    ASSERT_TRUE(st.saveData(vecImage.data(), vecImage.size(), &ulOffset));
    unsigned char aucMemory[sizeof(SZelPosition)];
    ASSERT_EQ(80u, sizeof(aucMemory));
    std::memcpy(aucMemory, &st.stStationCoords, sizeof(aucMemory));
    for (const auto& rRange : std::vector<std::pair<size_t, size_t>>{{0, 5}, {8, 12}, {16, 77}})
    {
        EXPECT_EQ(0, std::memcmp(&vecImage[8 + rRange.first], &aucMemory[rRange.first],
                                 rRange.second - rRange.first))
            << rRange.first;
    }
}

TEST(ConfigImages, ReceiverAntennaTestsThePresentSize)
{
    const SZelRecAntCfg st = ZelSample::RecAntCfg();
    EXPECT_EQ(8u + st.stAntInfo.getSize(), st.getSize());
    EXPECT_EQ(8u + 115u + 11u, SZelRecAntCfg().getSize());
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    // A target of the full size, so that one byte short fails at the bounds test.
    ZelTest::ExpectCoreImage(st, RecAntCfgImage(), stRules, ZelSample::RecAntCfg());

    // A default target is smaller: the image reads into it whole.
    SZelRecAntCfg stSmall;
    uint64_t ulOffset = 0;
    const ZelTest::Bytes vecImage = RecAntCfgImage();
    ASSERT_TRUE(stSmall.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(170u, ulOffset);
    EXPECT_TRUE(stSmall == st);
}

TEST(ConfigImages, ReceiverAntennaNastyImages)
{
    ZelTest::CRecordingHook Hook;
    const ZelTest::Bytes vecGood = RecAntCfgImage();
    // Forged counts: the model's entries (at 130) and the calibration's rows (at 154).
    for (const size_t ulAt : {130u, 154u, 158u})
    {
        ZelTest::Bytes vec = vecGood;
        const uint32_t ulForged = 0xFFFFFFFFu;
        std::memcpy(&vec[ulAt], &ulForged, 4);
        SZelRecAntCfg stTarget;
        uint64_t ulOffset = 0;
        EXPECT_FALSE(stTarget.loadData(vec.data(), vec.size(), &ulOffset)) << ulAt;
        EXPECT_LE(ulOffset, vec.size());
    }
    // Cut anywhere after the bounds test of a default target: false.
    for (size_t ulCut = 134; ulCut < vecGood.size(); ++ulCut)
    {
        SZelRecAntCfg stTarget;
        uint64_t ulOffset = 0;
        EXPECT_FALSE(stTarget.loadData(vecGood.data(), ulCut, &ulOffset)) << ulCut;
    }
    // Random bytes behind the head: never a crash, whatever the result.
    std::mt19937 stGen(17);
    std::uniform_int_distribution<int> stByte(0, 255);
    for (int iRound = 0; iRound < 200; ++iRound)
    {
        ZelTest::Bytes vec(static_cast<size_t>(stByte(stGen)) + 134);
        for (unsigned char& uc : vec)
        {
            uc = static_cast<unsigned char>(stByte(stGen));
        }
        SZelRecAntCfg stTarget;
        uint64_t ulOffset = 0;
        if (stTarget.loadData(vec.data(), vec.size(), &ulOffset))
        {
            EXPECT_EQ(stTarget.getSize(), ulOffset);
        }
    }
    for (const std::string& rText : Hook.Texts())
    {
        EXPECT_EQ("false", rText);
    }
}

TEST(ConfigTexts, NetworkHandling)
{
    ZelTest::ExpectTextExact(ZelSample::NetCfg(), c_strNetCfgText);
    ZelTest::ExpectTextExact(
        SZelNetCfg(),
        "NetTyp, None, NetMod, None, ReqFlgs, 0, CrePrdCoeff, 0, MinGps, 5, MinGlo, 2, "
        "MinOth, 2, CodeCorr, 0, ImmDrpbk, 0, ImmDistDrpbk, 0, DrpbkSB, 0, DrpbkClSB, 0, "
        "MinDistMst, 3000, SatAvlTout, 180, FllfwdToNet, 0, ImmFllfwd, 0, MacCfg, MaxAge, "
        "181, PolygChk, 1, MaxDist, 0, BuffWd, 0",
        ZelSample::NetCfg());
}

TEST(ConfigTexts, NetworkModeWords)
{
    const std::vector<std::pair<EZelNetMode, std::string>> vecRows = {
        {ZELNETMODE_NONE, "None"}, {ZELNETMODE_MAC, "MAC"}, {ZELNETMODE_SSR, "SSR"}};
    for (const auto& rRow : vecRows)
    {
        EXPECT_EQ(rRow.second, ToNetModeWord(rRow.first));
        std::istringstream is(rRow.second + ", Next");
        EXPECT_EQ(rRow.first, ReadNetModeWord(is));
    }
    EXPECT_STREQ("Invalid", ToNetModeWord(ZELNETMODE_INVALID));
    EXPECT_STREQ("Invalid", ToNetModeWord(static_cast<EZelNetMode>(3)));
    std::istringstream is("Mac,");
    EXPECT_EQ(ZELNETMODE_INVALID, ReadNetModeWord(is));
}

TEST(ConfigTexts, UnknownWordsGiveInvalidAndTheReadingGoesOn)
{
    std::string strText = c_strNetCfgText;
    strText.replace(strText.find("FKP"), 3, "Fkp");
    strText.replace(strText.find("MAC"), 3, "Cell");
    std::istringstream is(strText);
    SZelNetCfg st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(ZELNETTYPE_INVALID, st.eNetType);
    EXPECT_EQ(ZELNETMODE_INVALID, st.eNetMode);
    SZelNetCfg stExpected = ZelSample::NetCfg();
    stExpected.eNetType = ZELNETTYPE_INVALID;
    stExpected.eNetMode = ZELNETMODE_INVALID;
    EXPECT_TRUE(st == stExpected);
    std::ostringstream os;
    SZelNetCfg stOut;
    stOut.eNetMode = static_cast<EZelNetMode>(7);
    os << stOut;
    EXPECT_EQ(0u, os.str().find("NetTyp, None, NetMod, Invalid, ReqFlgs, 0"));
}

TEST(ConfigTexts, StationAndReceiverAntenna)
{
    ZelTest::ExpectTextExact(ZelSample::StationCfg(), c_strStationCfgText);
    ZelTest::ExpectTextExact(ZelSample::RecAntCfg(), c_strRecAntCfgText);
}

TEST(ConfigCompare, NetworkStationAndAntenna)
{
    ExpectTolerant(ZelSample::NetCfg(), &SZelNetCfg::dMinDistMaster);
    ExpectTolerant(ZelSample::NetCfg(), &SZelNetCfg::dSatAvailTimeout);
    ExpectEachChangeUnequal<SZelNetCfg>(
        ZelSample::NetCfg(),
        {[](SZelNetCfg& r) { r.eNetType = ZELNETTYPE_VRS; },
         [](SZelNetCfg& r) { r.eNetMode = ZELNETMODE_SSR; }, [](SZelNetCfg& r) { r.lRequestFlags = 1; },
         [](SZelNetCfg& r) { r.bCreatePredCoeff = false; }, [](SZelNetCfg& r) { r.lMinGps = 1; },
         [](SZelNetCfg& r) { r.lMinGlo = 1; }, [](SZelNetCfg& r) { r.lMinOther = 1; },
         [](SZelNetCfg& r) { r.bCodeCorr = false; }, [](SZelNetCfg& r) { r.bImmediateDropback = false; },
         [](SZelNetCfg& r) { r.bImmediateDistDropback = false; },
         [](SZelNetCfg& r) { r.bDropbackSB = false; }, [](SZelNetCfg& r) { r.bDropbackClSB = false; },
         [](SZelNetCfg& r) { r.dMinDistMaster = 1.0; }, [](SZelNetCfg& r) { r.dSatAvailTimeout = 1.0; },
         [](SZelNetCfg& r) { r.bFallforwardToNet = false; },
         [](SZelNetCfg& r) { r.bImmediateFallforward = false; },
         [](SZelNetCfg& r) { r.stMacCfg.dBufferWidth = 1.0; }});
    ExpectEachChangeUnequal<SZelStationCfg>(
        ZelSample::StationCfg(),
        {[](SZelStationCfg& r) { r.lMode = 1; }, [](SZelStationCfg& r) { r.lTimeOutMs = 1; },
         [](SZelStationCfg& r) { r.stStationCoords.ucAvail = 1; },
         [](SZelStationCfg& r) { r.stStationCoords.stPosQ.afQ[5] = 2.0f; }});
    ExpectEachChangeUnequal<SZelRecAntCfg>(ZelSample::RecAntCfg(),
                                           {[](SZelRecAntCfg& r) { r.ulRtHandle = 1; },
                                            [](SZelRecAntCfg& r) { r.lRecType = 1; },
                                            [](SZelRecAntCfg& r) { r.stAntInfo.stAntDescr.ucType = 9; }});
}
