// Network RTK records: layouts, texts, comparison, the split of a combined
// message, and readers handed bad input.

#include "ZelSamplesNrtk.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <ZelTypes/Ext/Gnss/ZelExtAuxTypes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using namespace ZELN;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

// ------------------------------------------------------------------ hand-built images

// The sample header at ulBase, message number unMsgNr.
void PutHeader(CImage& rImage, size_t ulBase, uint16_t unMsgNr)
{
    rImage.At(ulBase + 0).U16(unMsgNr).At(ulBase + 2).U8(9).At(ulBase + 3).U8(2);
    rImage.At(ulBase + 4).U32(345678901u).At(ulBase + 8).U8(1).Zero(1);
    rImage.At(ulBase + 10).U16(1201).At(ulBase + 12).U16(2302).At(ulBase + 14).U8(15);
    rImage.At(ulBase + 15).U8(2).At(ulBase + 16).I8(-5).At(ulBase + 17).I8(6).Zero(2);
}

// The head of sample entry n at ulBase.
void PutHead(CImage& rImage, size_t ulBase, int iN)
{
    rImage.At(ulBase + 0).U8(static_cast<uint32_t>(iN + 1)).Zero(3);
    rImage.At(ulBase + 4).I32(iN % 2 == 0 ? 1 : 2);
    rImage.At(ulBase + 8)
        .U8(static_cast<uint32_t>(iN % 4))
        .At(ulBase + 9)
        .U8(static_cast<uint32_t>(iN % 8 + 1));
    rImage.Zero(2);
}

void PutIonoEntry(CImage& rImage, size_t ulBase, int iN)
{
    PutHead(rImage, ulBase, iN);
    rImage.At(ulBase + 12).I32(-1000 * (iN + 1) - 7);
}

void PutGeoEntry(CImage& rImage, size_t ulBase, int iN)
{
    PutHead(rImage, ulBase, iN);
    rImage.At(ulBase + 12)
        .I32(2000 * (iN + 1) + 3)
        .At(ulBase + 16)
        .U8(static_cast<uint32_t>(100 + iN))
        .Zero(3);
}

void PutCombEntry(CImage& rImage, size_t ulBase, int iN)
{
    PutHead(rImage, ulBase, iN);
    rImage.At(ulBase + 12).I32(2000 * (iN + 1) + 3).At(ulBase + 16).I32(-1000 * (iN + 1) - 7);
    rImage.At(ulBase + 20).U8(static_cast<uint32_t>(100 + iN)).Zero(3);
}

void PutCombMsg(CImage& rImage, size_t ulBase)
{
    PutHeader(rImage, ulBase, 1017);
    for (int iN = 0; iN < 15; ++iN)
    {
        PutCombEntry(rImage, ulBase + 20 + 24 * static_cast<size_t>(iN), iN);
    }
}

void PutIonoMsg(CImage& rImage, size_t ulBase)
{
    PutHeader(rImage, ulBase, 1015);
    rImage.At(ulBase + 20).I32(2);
    for (int iN = 0; iN < 15; ++iN)
    {
        PutIonoEntry(rImage, ulBase + 24 + 16 * static_cast<size_t>(iN), iN);
    }
}

void PutGeoMsg(CImage& rImage, size_t ulBase)
{
    PutHeader(rImage, ulBase, 1016);
    rImage.At(ulBase + 20).I32(1);
    for (int iN = 0; iN < 15; ++iN)
    {
        PutGeoEntry(rImage, ulBase + 24 + 20 * static_cast<size_t>(iN), iN);
    }
}

void PutGridEntry(CImage& rImage, size_t ulBase, int iN)
{
    rImage.At(ulBase).I32(iN % 2 == 0 ? 1 : 3).U8(static_cast<uint32_t>(iN + 2)).Zero(3);
    rImage.At(ulBase + 8).U32(static_cast<uint32_t>(40 + iN));
    rImage.At(ulBase + 12).I16(-300 - iN).At(ulBase + 14).I16(400 + iN);
    rImage.At(ulBase + 16).I16(-50 - iN).At(ulBase + 18).I16(-32768 + iN);
}

void PutGridMsg(CImage& rImage, size_t ulBase)
{
    rImage.At(ulBase).U16(0xA5C3).Zero(2).At(ulBase + 4).U32(12);
    rImage.At(ulBase + 8).I32(60000).Zero(4).At(ulBase + 16).F64(43200000.0).At(ulBase + 24).I32(3).Zero(4);
    rImage.At(ulBase + 32).I32(1).Zero(4).At(ulBase + 40).F64(0.75).At(ulBase + 48).F64(0.25);
    rImage.At(ulBase + 56).F64(512.5).At(ulBase + 64).U32(15);
    for (int iN = 0; iN < 15; ++iN)
    {
        PutGridEntry(rImage, ulBase + 68 + 20 * static_cast<size_t>(iN), iN);
    }
}

// ------------------------------------------------------------------ expected texts

std::string Num(double d)
{
    std::ostringstream os;
    os << d;
    return os.str();
}

std::string HeaderText(int iMsgNr)
{
    return "MsgNr, " + std::to_string(iMsgNr) +
           ", NetId, 9, SubNetId, 2, Time, 345678901, MMI, 1, MstId, 1201, AuxId, 2302, NumSats, 15, "
           "ClkBiasInd, 2, GloL1PCDiffOff, -5, GloL1L2PCDiffOff, 6";
}

const std::string c_strDefaultHeaderText =
    "MsgNr, 0, NetId, 0, SubNetId, 0, Time, 0, MMI, 0, MstId, 0, AuxId, 0, "
    "NumSats, 0, ClkBiasInd, 0, GloL1PCDiffOff, 0, GloL1L2PCDiffOff, 0";

std::string HeadText(int iN)
{
    return "SatId, " + std::to_string(iN + 1) + ", SatSys, " + (iN % 2 == 0 ? "G" : "R") + ", AmbFlg, " +
           std::to_string(iN % 4) + ", NonSyncCnt, " + std::to_string(iN % 8 + 1);
}

std::string IonoEntryText(int iN)
{
    return HeadText(iN) + ", CorrDiff, " + std::to_string(-1000 * (iN + 1) - 7);
}

std::string GeoEntryText(int iN)
{
    return HeadText(iN) + ", CorrDiff, " + std::to_string(2000 * (iN + 1) + 3) + ", IODE, " +
           std::to_string(100 + iN);
}

std::string CombEntryText(int iN)
{
    return HeadText(iN) + ", GeoCorrDiff, " + std::to_string(2000 * (iN + 1) + 3) + ", IonoCorrDiff, " +
           std::to_string(-1000 * (iN + 1) - 7) + ", IODE, " + std::to_string(100 + iN);
}

std::string CombMsgText()
{
    std::string str = "CombMsgHdr, " + HeaderText(1017) + ", CombCorrs";
    for (int iN = 0; iN < 15; ++iN)
    {
        str += ", MsgEntry, " + CombEntryText(iN);
    }
    return str;
}

std::string DefaultCombMsgText()
{
    std::string str = "CombMsgHdr, " + c_strDefaultHeaderText + ", CombCorrs";
    for (int iN = 0; iN < 15; ++iN)
    {
        str += ", MsgEntry, SatId, 0, SatSys, N, AmbFlg, 0, NonSyncCnt, 0, GeoCorrDiff, 0, IonoCorrDiff, 0, "
               "IODE, 0";
    }
    return str;
}

std::string GridEntryText(int iN)
{
    const std::string strSat =
        std::string(iN % 2 == 0 ? "G" : "E") + (iN + 2 < 10 ? "0" : "") + std::to_string(iN + 2);
    return "SatId, " + strSat + ", IOD, " + std::to_string(40 + iN) + ", IonN, " + std::to_string(-300 - iN) +
           ", IonE, " + std::to_string(400 + iN) + ", GeoN, " + std::to_string(-50 - iN) + ", GeoE, " +
           std::to_string(-32768 + iN);
}

// GPS week 2250 starts at MJD 44244 + 7 * 2250 = 59994: day 60000 at noon
// is 6 * 86400 + 43200 = 561600 s of the week.
std::string GridMsgText()
{
    std::string str =
        "NetFlgs, 0xa5c3, Typ, 12, Tim, 2250, 561600, Coo, CooTyp, Geo, Coo, 0.75, 0.25, 512.5, "
        "NumSats, 15, GridCorr";
    for (int iN = 0; iN < 15; ++iN)
    {
        str += ", " + GridEntryText(iN);
    }
    return str;
}

// Reads one image through both readers' calling forms.
template <class R> bool Load(R& rRecord, const std::vector<unsigned char>& rvecBytes)
{
    uint64_t ulCount = 0;
    return rRecord.loadData(rvecBytes.data(), rvecBytes.size(), &ulCount);
}

} // namespace

// ===================================================================== SZelNetAuxStation

TEST(NetAuxStation, DefaultsAndEquality)
{
    const SZelNetAuxStation st;
    EXPECT_EQ(st.unMsgNr, 0);
    EXPECT_EQ(st.ucNetId, 0);
    EXPECT_EQ(st.ucSubNetId, 0);
    EXPECT_EQ(st.ucNumAux, 0);
    EXPECT_EQ(st.unMasterId, 0);
    EXPECT_EQ(st.unAuxId, 0);
    EXPECT_EQ(st.lDeltaLat, 0);
    EXPECT_EQ(st.lDeltaLon, 0);
    EXPECT_EQ(st.lDeltaHgt, 0);
    EXPECT_EQ(st.getSize(), 24u);

    const SZelNetAuxStation a = ZelSample::NetAuxStation();
    SZelNetAuxStation b = a;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    b.lDeltaHgt += 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.ucNumAux = 5;
    EXPECT_TRUE(a != b);
    b = a;
    b.unAuxId = 1;
    EXPECT_TRUE(a != b);
}

TEST(NetAuxStation, BinaryGolden)
{
    CImage stImage;
    stImage.At(0).U16(1014).At(2).U8(7).At(3).U8(3).At(4).U8(4).Zero(1);
    stImage.At(6).U16(1201).At(8).U16(2302).Zero(2);
    stImage.At(12).I32(-123456).At(16).I32(234567).At(20).I32(-3456);
    ZelTest::ExpectCoreImage(ZelSample::NetAuxStation(), stImage.Get());

    // The two-argument form of the exchange records works the same way.
    std::vector<unsigned char> vecOut(24, 0xAA);
    EXPECT_TRUE(ZelSample::NetAuxStation().saveData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(vecOut, stImage.Get());
    SZelNetAuxStation stRead;
    EXPECT_TRUE(stRead.loadData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(stRead, ZelSample::NetAuxStation());
}

TEST(NetAuxStation, ReservedBytesAreSkipped)
{
    CImage stImage;
    stImage.U16(1).U8(2).U8(3).U8(4).U8(0xEE).U16(5).U16(6).U16(0xBEEF).I32(7).I32(8).I32(9);
    SZelNetAuxStation st;
    ASSERT_TRUE(Load(st, stImage.Get()));
    EXPECT_EQ(st.ucNumAux, 4);
    EXPECT_EQ(st.unMasterId, 5);
    EXPECT_EQ(st.unAuxId, 6);
    EXPECT_EQ(st.lDeltaLat, 7);
    std::vector<unsigned char> vecOut(24);
    uint64_t ulCount = 0;
    ASSERT_TRUE(st.saveData(vecOut.data(), vecOut.size(), &ulCount));
    EXPECT_EQ(vecOut[5], 0);
    EXPECT_EQ(vecOut[10], 0);
    EXPECT_EQ(vecOut[11], 0);
}

TEST(NetAuxStation, Text)
{
    ZelTest::ExpectTextExact(ZelSample::NetAuxStation(),
                             "MsgNr, 1014, NetId, 7, SubNetId, 3, NumAux, 4, MstId, 1201, AuxId, 2302, "
                             "DLat, -123456, DLon, 234567, DHgt, -3456");
    // Tags are not compared.
    std::istringstream is("a, 1, b, 2, c, 3, d, 4, e, 5, f, 6, g, -7, h, 8, i, -9");
    SZelNetAuxStation st;
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(st.unMsgNr, 1);
    EXPECT_EQ(st.ucNumAux, 4);
    EXPECT_EQ(st.lDeltaLat, -7);
    EXPECT_EQ(st.lDeltaHgt, -9);
}

// ===================================================================== SZelNetMsgHeader

TEST(NetMsgHeader, DefaultsBinaryAndText)
{
    const SZelNetMsgHeader stDefault;
    EXPECT_EQ(stDefault.getSize(), 20u);
    EXPECT_EQ(stDefault.ulTime, 0u);
    EXPECT_EQ(stDefault.cGloL1PCDiffOff, 0);

    CImage stImage;
    PutHeader(stImage, 0, 1017);
    ZelTest::ExpectCoreImage(ZelSample::NetMsgHeader(), stImage.Get());
    ZelTest::ExpectTextExact(ZelSample::NetMsgHeader(), HeaderText(1017));
    ZelTest::ExpectTextExact(stDefault, c_strDefaultHeaderText);

    SZelNetMsgHeader a = ZelSample::NetMsgHeader();
    SZelNetMsgHeader b = a;
    b.cGloL1L2PCDiffOff = -6;
    EXPECT_TRUE(a != b);
    b = a;
    b.ulTime = 0;
    EXPECT_TRUE(a != b);
}

// ===================================================================== entries

TEST(NetSatEntry, GlobalSatIndex)
{
    SZelNetSatEntry st;
    st.eSatSystem = ZELSATSYSTEM_GLONASS;
    st.ucSatNumber = 1;
    {
        CRecordingHook stHook;
        EXPECT_EQ(st.GetGlobalSatIndex(), 33u);
        st.ucSatNumber = 24;
        EXPECT_EQ(st.GetGlobalSatIndex(), 56u);
        st.eSatSystem = ZELSATSYSTEM_GPS;
        st.ucSatNumber = 7;
        EXPECT_EQ(st.GetGlobalSatIndex(), 7u);
        EXPECT_EQ(stHook.Count(), 0u);
    }
    for (const EZelSatSystem eSys :
         {ZELSATSYSTEM_NONE, ZELSATSYSTEM_GALILEO, ZELSATSYSTEM_BEIDOU, static_cast<EZelSatSystem>(-3)})
    {
        CRecordingHook stHook;
        st.eSatSystem = eSys;
        EXPECT_EQ(st.GetGlobalSatIndex(), 0u);
        EXPECT_EQ(stHook.Texts(), std::vector<std::string>{"0"});
    }
    // On a derived entry as well.
    CRecordingHook stHook;
    EXPECT_EQ(ZelSample::NetIonoEntry(1).GetGlobalSatIndex(), 2u + 32u);
    EXPECT_EQ(stHook.Count(), 0u);
}

TEST(NetSatEntry, HeadOnItsOwn)
{
    SZelNetSatEntry st;
    ZelSample::FillNetHead(st, 3);
    CImage stImage;
    PutHead(stImage, 0, 3);
    ZelTest::ExpectCoreImage(st, stImage.Get());
    ZelTest::ExpectTextExact(st, HeadText(3));
    SZelNetSatEntry stOther = st;
    stOther.ucNonSyncCnt = 0;
    EXPECT_TRUE(st != stOther);
}

TEST(NetEntries, BinaryGolden)
{
    {
        CImage stImage;
        PutIonoEntry(stImage, 0, 4);
        EXPECT_EQ(stImage.Size(), 16u);
        ZelTest::ExpectCoreImage(ZelSample::NetIonoEntry(4), stImage.Get());
    }
    {
        CImage stImage;
        PutGeoEntry(stImage, 0, 5);
        EXPECT_EQ(stImage.Size(), 20u);
        ZelTest::ExpectCoreImage(ZelSample::NetGeoEntry(5), stImage.Get());
    }
    {
        CImage stImage;
        PutCombEntry(stImage, 0, 6);
        EXPECT_EQ(stImage.Size(), 24u);
        ZelTest::ExpectCoreImage(ZelSample::NetCombEntry(6), stImage.Get());
    }
}

TEST(NetEntries, Text)
{
    ZelTest::ExpectTextExact(ZelSample::NetIonoEntry(0),
                             "SatId, 1, SatSys, G, AmbFlg, 0, NonSyncCnt, 1, CorrDiff, -1007");
    ZelTest::ExpectTextExact(ZelSample::NetGeoEntry(1),
                             "SatId, 2, SatSys, R, AmbFlg, 1, NonSyncCnt, 2, CorrDiff, 4003, IODE, 101");
    ZelTest::ExpectTextExact(ZelSample::NetCombEntry(2), "SatId, 3, SatSys, G, AmbFlg, 2, NonSyncCnt, 3, "
                                                         "GeoCorrDiff, 6003, IonoCorrDiff, -3007, IODE, 102");
}

TEST(NetEntries, EqualityFieldByField)
{
    const SZelNetCombEntry a = ZelSample::NetCombEntry(3);
    SZelNetCombEntry b = a;
    EXPECT_TRUE(a == b);
    b.ucSatNumber = 99;
    EXPECT_TRUE(a != b);
    b = a;
    b.eSatSystem = ZELSATSYSTEM_GALILEO;
    EXPECT_TRUE(a != b);
    b = a;
    b.ucAmbFlag = 9;
    EXPECT_TRUE(a != b);
    b = a;
    b.lGeoCorrDiff = 0;
    EXPECT_TRUE(a != b);
    b = a;
    b.lIonoCorrDiff = 0;
    EXPECT_TRUE(a != b);
    b = a;
    b.ucIODE = 0;
    EXPECT_TRUE(a != b);

    SZelNetGeoEntry c = ZelSample::NetGeoEntry(1);
    SZelNetGeoEntry d = c;
    d.ucIODE = 7;
    EXPECT_TRUE(c != d);
    SZelNetIonoEntry e = ZelSample::NetIonoEntry(1);
    SZelNetIonoEntry f = e;
    f.lCorrDiff = 1;
    EXPECT_TRUE(e != f);
}

// ===================================================================== messages

TEST(NetMessages, SizesAndDefaults)
{
    EXPECT_EQ(SZelNetGeoMsg().getSize(), 324u);
    EXPECT_EQ(SZelNetIonoMsg().getSize(), 264u);
    EXPECT_EQ(SZelNetCombMsg().getSize(), 380u);
    EXPECT_EQ(MsgGNSS17T::GetGeoMsgSize(), 324u);
    EXPECT_EQ(MsgGNSS17T::GetIonoMsgSize(), 264u);
    EXPECT_EQ(MsgGNSS17T().getSize(), 5u * 380u + 1u);
    EXPECT_EQ(SZelNetCombEntryD().getSize(), 40u);
    EXPECT_EQ(SZelNetCombMsgD().getSize(), 600u);
    EXPECT_EQ(SZelNetCorrPair().getSize(), 600u);
    const SZelNetGeoMsg stGeo;
    EXPECT_EQ(stGeo.eSatSystem, ZELSATSYSTEM_NONE);
    EXPECT_EQ(stGeo.astEntries[14].lCorrDiff, 0);
    EXPECT_EQ(stGeo.astEntries[14].ucIODE, 0);
}

TEST(NetMessages, GeoBinaryAndText)
{
    CImage stImage;
    PutGeoMsg(stImage, 0);
    ZelTest::ExpectCoreImage(ZelSample::NetGeoMsg(), stImage.Get());

    std::string strLine = "GeoMsgHdr, " + HeaderText(1016) + ", SatSys, G, GeoCorrs";
    for (int iN = 0; iN < 15; ++iN)
    {
        strLine += ", MsgEntry, " + GeoEntryText(iN);
    }
    ZelTest::ExpectTextExact(ZelSample::NetGeoMsg(), strLine);
}

TEST(NetMessages, IonoBinaryAndText)
{
    CImage stImage;
    PutIonoMsg(stImage, 0);
    ZelTest::ExpectCoreImage(ZelSample::NetIonoMsg(), stImage.Get());

    // The array's tag is the geometric message's one.
    std::string strLine = "IonoMsgHdr, " + HeaderText(1015) + ", SatSys, R, GeoCorrs";
    for (int iN = 0; iN < 15; ++iN)
    {
        strLine += ", MsgEntry, " + IonoEntryText(iN);
    }
    ZelTest::ExpectTextExact(ZelSample::NetIonoMsg(), strLine);
}

TEST(NetMessages, CombBinaryAndText)
{
    CImage stImage;
    PutCombMsg(stImage, 0);
    ZelTest::ExpectCoreImage(ZelSample::NetCombMsg(), stImage.Get());
    ZelTest::ExpectTextExact(ZelSample::NetCombMsg(), CombMsgText());
}

TEST(NetMessages, AllEntriesCompareWhateverTheCount)
{
    SZelNetGeoMsg a = ZelSample::NetGeoMsg();
    a.stHeader.ucNumSats = 2;
    SZelNetGeoMsg b = a;
    EXPECT_TRUE(a == b);
    b.astEntries[14].ucIODE = 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.eSatSystem = ZELSATSYSTEM_GLONASS;
    EXPECT_TRUE(a != b);
    b = a;
    b.stHeader.ucMMI = 0;
    EXPECT_TRUE(a != b);

    SZelNetIonoMsg c = ZelSample::NetIonoMsg();
    c.stHeader.ucNumSats = 0;
    SZelNetIonoMsg d = c;
    d.astEntries[10].lCorrDiff = 0;
    EXPECT_TRUE(c != d);

    SZelNetCombMsg e = ZelSample::NetCombMsg();
    SZelNetCombMsg f = e;
    f.astEntries[13].lIonoCorrDiff = 0;
    EXPECT_TRUE(e != f);
}

// ===================================================================== MsgGNSS17T

TEST(MsgGnss17, SplitWithNoSatellitesCopiesAllEntries)
{
    SZelNetCombMsg stComb = ZelSample::NetCombMsg();
    stComb.stHeader.ucNumSats = 0;
    SZelNetIonoMsg stIono;
    stIono.eSatSystem = ZELSATSYSTEM_QZSS;
    SZelNetGeoMsg stGeo;
    stGeo.eSatSystem = ZELSATSYSTEM_BEIDOU;
    CRecordingHook stHook;
    EXPECT_TRUE(MsgGNSS17T::SplitCombMsg(stComb, stIono, stGeo));
    EXPECT_EQ(stHook.Count(), 0u);

    EXPECT_EQ(stIono.stHeader, stComb.stHeader);
    EXPECT_EQ(stGeo.stHeader, stComb.stHeader);
    EXPECT_EQ(stIono.stHeader.ucNumSats, 0);
    // The outputs keep their own system.
    EXPECT_EQ(stIono.eSatSystem, ZELSATSYSTEM_QZSS);
    EXPECT_EQ(stGeo.eSatSystem, ZELSATSYSTEM_BEIDOU);
    for (int iN = 0; iN < 15; ++iN)
    {
        SCOPED_TRACE(iN);
        const SZelNetIonoEntry& rIono = stIono.astEntries[iN];
        const SZelNetGeoEntry& rGeo = stGeo.astEntries[iN];
        EXPECT_EQ(rIono.ucSatNumber, iN + 1);
        EXPECT_EQ(rIono.eSatSystem, iN % 2 == 0 ? ZELSATSYSTEM_GPS : ZELSATSYSTEM_GLONASS);
        EXPECT_EQ(rIono.ucAmbFlag, iN % 4);
        EXPECT_EQ(rIono.ucNonSyncCnt, iN % 8 + 1);
        EXPECT_EQ(rIono.lCorrDiff, -1000 * (iN + 1) - 7);
        EXPECT_EQ(rGeo.ucSatNumber, iN + 1);
        EXPECT_EQ(rGeo.eSatSystem, rIono.eSatSystem);
        EXPECT_EQ(rGeo.ucAmbFlag, iN % 4);
        EXPECT_EQ(rGeo.ucNonSyncCnt, iN % 8 + 1);
        EXPECT_EQ(rGeo.lCorrDiff, 2000 * (iN + 1) + 3);
        EXPECT_EQ(rGeo.ucIODE, 100 + iN);
    }
}

TEST(MsgGnss17, FilledMask)
{
    MsgGNSS17T st;
    EXPECT_EQ(st.ucFilled, 0);
    EXPECT_TRUE(st.IsFilled(0));
    EXPECT_FALSE(st.IsFilled(1));
    st.SetFilled(0x05);
    st.SetFilled(0x02);
    EXPECT_EQ(st.ucFilled, 0x07);
    EXPECT_TRUE(st.IsFilled(0));
    EXPECT_TRUE(st.IsFilled(0x05));
    EXPECT_TRUE(st.IsFilled(0x07));
    EXPECT_FALSE(st.IsFilled(0x0F));
    EXPECT_FALSE(st.IsFilled(0x100));
    st.SetFilled(0);
    EXPECT_EQ(st.ucFilled, 0x07);
}

TEST(MsgGnss17, ConstructionCopyAndEquality)
{
    static_assert(std::has_virtual_destructor<MsgGNSS17T>::value, "the class has a virtual table");
    const MsgGNSS17T stDefault;
    for (const auto& rMsg : stDefault.astCombMsgs)
    {
        EXPECT_EQ(rMsg, SZelNetCombMsg());
    }
    const MsgGNSS17T a = ZelSample::MsgGnss17();
    MsgGNSS17T b(a);
    EXPECT_TRUE(a == b);
    EXPECT_EQ(b.ucFilled, 0x09);
    b.ucFilled = 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.astCombMsgs[4].astEntries[0].ucIODE = 1;
    EXPECT_TRUE(a != b);
}

TEST(MsgGnss17, BinaryAndText)
{
    CImage stImage;
    for (size_t ulMsg = 0; ulMsg < 5; ++ulMsg)
    {
        const size_t ulBase = 380 * ulMsg;
        if (ulMsg == 0 || ulMsg == 3)
        {
            PutCombMsg(stImage, ulBase);
        }
        else
        {
            stImage.At(ulBase).Zero(380);
        }
    }
    stImage.PutAt<uint8_t>(3 * 380 + 2, 11); // network of the fourth message
    stImage.At(1900).U8(0x09);
    ZelTest::ExpectCoreImage(ZelSample::MsgGnss17(), stImage.Get());

    std::string strFourth = CombMsgText();
    const std::string strNet = "NetId, 9,";
    strFourth.replace(strFourth.find(strNet), strNet.size(), "NetId, 11,");
    const std::string strLine = "Filled, 9, CombMsg, " + CombMsgText() + ", CombMsg, " +
                                DefaultCombMsgText() + ", CombMsg, " + DefaultCombMsgText() + ", CombMsg, " +
                                strFourth + ", CombMsg, " + DefaultCombMsgText();
    ZelTest::ExpectTextExact(ZelSample::MsgGnss17(), strLine);
}

// ===================================================================== unscaled combined entries

TEST(NetCombEntryD, BinaryTextAndEquality)
{
    CImage stImage;
    PutHead(stImage, 0, 2);
    stImage.Zero(4).At(16).F64(0.25 * 3 + 0.0625).At(24).U8(102).Zero(7).At(32).F64(-0.125 * 3 - 0.5);
    ZelTest::ExpectCoreImage(ZelSample::NetCombEntryD(2), stImage.Get());
    ZelTest::ExpectTextExact(ZelSample::NetCombEntryD(2), HeadText(2) + ", GeoCorrDiff, 0.8125, IODE, 102, "
                                                                        "IonoCorrDiff, -0.875");

    SZelNetCombEntryD a = ZelSample::NetCombEntryD(1);
    SZelNetCombEntryD b = a;
    EXPECT_TRUE(a == b);
    b.dIonoCorrDiff += 1e-12;
    EXPECT_TRUE(a != b);
    a.dGeoCorrDiff = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(a == a);
}

TEST(NetCombMsgD, BinaryAndText)
{
    CImage stImage;
    std::string strLine = "CombCorrsD";
    for (int iN = 0; iN < 15; ++iN)
    {
        const size_t ulBase = 40 * static_cast<size_t>(iN);
        PutHead(stImage, ulBase, iN);
        stImage.Zero(4).At(ulBase + 16).F64(0.25 * (iN + 1) + 0.0625);
        stImage.At(ulBase + 24).U8(static_cast<uint32_t>(100 + iN)).Zero(7);
        stImage.At(ulBase + 32).F64(-0.125 * (iN + 1) - 0.5);
        strLine += ", MsgEntry, " + HeadText(iN) + ", GeoCorrDiff, " + Num(0.25 * (iN + 1) + 0.0625) +
                   ", IODE, " + std::to_string(100 + iN) + ", IonoCorrDiff, " + Num(-0.125 * (iN + 1) - 0.5);
    }
    ZelTest::ExpectCoreImage(ZelSample::NetCombMsgD(), stImage.Get());
    ZelTest::ExpectTextExact(ZelSample::NetCombMsgD(), strLine);
}

// ===================================================================== SZelNetCorrPair

TEST(NetCorrPair, DefaultsAndConstruction)
{
    const SZelNetCorrPair st;
    EXPECT_EQ(st.stSatId.eSatSystem, ZELSATSYSTEM_NONE);
    EXPECT_EQ(st.stSatId.uiSatNumber, 1);
    EXPECT_EQ(st.ulPairFlags, 0u);
    EXPECT_EQ(st.stIonoMsg, SZelNetIonoMsg());
    EXPECT_EQ(st.stGeoMsg, SZelNetGeoMsg());

    const SZelNetCorrPair stSat(SZelSatID(ZELSATSYSTEM_GLONASS, 7));
    EXPECT_EQ(stSat.stSatId, SZelSatID(ZELSATSYSTEM_GLONASS, 7));
    EXPECT_EQ(stSat.ulPairFlags, 0u);
    EXPECT_EQ(stSat.stIonoMsg, SZelNetIonoMsg());
    EXPECT_TRUE(stSat != st);
}

TEST(NetCorrPair, BinaryTextAndEquality)
{
    CImage stImage;
    PutIonoMsg(stImage, 0);
    PutGeoMsg(stImage, 264);
    stImage.At(588).I32(2).U8(5).Zero(3).At(596).U32(0x30005u);
    ZelTest::ExpectCoreImage(ZelSample::NetCorrPair(), stImage.Get());

    std::string strIono = "IonoMsgHdr, " + HeaderText(1015) + ", SatSys, R, GeoCorrs";
    std::string strGeo = "GeoMsgHdr, " + HeaderText(1016) + ", SatSys, G, GeoCorrs";
    for (int iN = 0; iN < 15; ++iN)
    {
        strIono += ", MsgEntry, " + IonoEntryText(iN);
        strGeo += ", MsgEntry, " + GeoEntryText(iN);
    }
    ZelTest::ExpectTextExact(ZelSample::NetCorrPair(), "IonoMsg, " + strIono + ", GeoMsg, " + strGeo +
                                                           ", SatId, R05, PairFlgs, 196613");

    const SZelNetCorrPair a = ZelSample::NetCorrPair();
    SZelNetCorrPair b = a;
    b.ulPairFlags = 0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stSatId.uiSatNumber = 6;
    EXPECT_TRUE(a != b);
    b = a;
    b.stGeoMsg.astEntries[3].lCorrDiff = 0;
    EXPECT_TRUE(a != b);
}

// ===================================================================== grid

TEST(NetGridEntry, DefaultsAndNegativeGradients)
{
    const SZelNetGridEntry stDefault;
    EXPECT_EQ(stDefault.ulIOD, 0xFFFFFFFFu);
    EXPECT_EQ(stDefault.stSatId, SZelSatID());
    EXPECT_EQ(stDefault.nIonoN, 0);
    EXPECT_EQ(stDefault.getSize(), 20u);

    const SZelNetGridEntry st = ZelSample::NetGridEntry(3);
    ASSERT_LT(st.nIonoN, 0);
    ASSERT_LT(st.nGeoN, 0);
    ASSERT_LT(st.nGeoE, 0);
    CImage stImage;
    PutGridEntry(stImage, 0, 3);
    ZelTest::ExpectCoreImage(st, stImage.Get());
    ZelTest::ExpectTextExact(st, "SatId, E05, IOD, 43, IonN, -303, IonE, 403, GeoN, -53, GeoE, -32765");

    // The extremes of the gradients through both forms.
    SZelNetGridEntry stEdge = st;
    stEdge.nIonoN = -32768;
    stEdge.nIonoE = 32767;
    stEdge.nGeoN = -1;
    stEdge.nGeoE = -32768;
    std::vector<unsigned char> vecImage(20);
    uint64_t ulCount = 0;
    ASSERT_TRUE(stEdge.saveData(vecImage.data(), vecImage.size(), &ulCount));
    SZelNetGridEntry stRead;
    ASSERT_TRUE(Load(stRead, vecImage));
    EXPECT_EQ(stRead, stEdge);
    std::stringstream ss;
    ss << stEdge;
    SZelNetGridEntry stText;
    ss >> stText;
    EXPECT_EQ(stText.nIonoN, -32768);
    EXPECT_EQ(stText.nIonoE, 32767);
    EXPECT_EQ(stText.nGeoN, -1);
    EXPECT_EQ(stText.nGeoE, -32768);

    SZelNetGridEntry stOther = st;
    stOther.ulIOD = 0;
    EXPECT_TRUE(st != stOther);
    stOther = st;
    stOther.nGeoE = 0;
    EXPECT_TRUE(st != stOther);
}

TEST(NetGridMsg, Defaults)
{
    const SZelNetGridMsg st;
    EXPECT_EQ(st.getSize(), 368u);
    EXPECT_EQ(st.unNetFlags, 0);
    EXPECT_EQ(st.ulType, 0u);
    EXPECT_EQ(st.stTime.m_eAccuracy, 0);
    EXPECT_EQ(st.stTime.m_lMjdDay, 0);
    EXPECT_EQ(st.stTime.m_dMjdFractMilliseconds, 0.0);
    EXPECT_EQ(st.stCoords, SZelCoordinateTriplet());
    EXPECT_EQ(st.ulNumSats, 0u);
    for (const auto& rEntry : st.astEntries)
    {
        EXPECT_EQ(rEntry.ulIOD, 0xFFFFFFFFu);
    }
}

TEST(NetGridMsg, BinaryGolden)
{
    CImage stImage;
    PutGridMsg(stImage, 0);
    EXPECT_EQ(stImage.Size(), 368u);
    ZelTest::ExpectCoreImage(ZelSample::NetGridMsg(), stImage.Get());
}

TEST(NetGridMsg, TextWithHexFlags)
{
    // The time's accuracy is not in the text: read into a target of the same accuracy.
    SZelNetGridMsg stTarget;
    stTarget.stTime.m_eAccuracy = MJDACC_MILLISECOND;
    ZelTest::ExpectTextExact(ZelSample::NetGridMsg(), GridMsgText(), stTarget);

    // The base goes back to decimal after the flags.
    std::ostringstream os;
    os << ZelSample::NetGridMsg() << " " << 255;
    EXPECT_EQ(os.str().substr(os.str().size() - 4), " 255");

    // A flag value without the prefix reads as hexadecimal all the same.
    std::string strLine = GridMsgText();
    strLine.replace(strLine.find("0xa5c3"), 6, "a5c3");
    std::istringstream is(strLine);
    SZelNetGridMsg stRead;
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_EQ(stRead.unNetFlags, 0xA5C3);
    EXPECT_EQ(stRead.astEntries[14], ZelSample::NetGridEntry(14));
}

TEST(NetGridMsg, Equality)
{
    const SZelNetGridMsg a = ZelSample::NetGridMsg();
    SZelNetGridMsg b = a;
    EXPECT_TRUE(a == b);
    b.astEntries[14].nGeoE = 0;
    EXPECT_TRUE(a != b);
    b = a;
    b.unNetFlags = 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.ulType = 1;
    EXPECT_TRUE(a != b);
    b = a;
    b.stTime.m_dMjdFractMilliseconds += 0.1; // a tenth of the millisecond accuracy
    EXPECT_TRUE(a == b) << "the time compares within its accuracy";
    b.stTime.m_dMjdFractMilliseconds += 5.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.stCoords.dCoord3 = 0.0;
    EXPECT_TRUE(a != b);
    b = a;
    b.ulNumSats = 3;
    EXPECT_TRUE(a != b);
}

TEST(NetGridSysMsg, BinaryAndText)
{
    CImage stImage;
    stImage.At(0).I32(3);
    PutGridMsg(stImage, 4);
    EXPECT_EQ(stImage.Size(), 372u);
    ZelTest::ExpectCoreImage(ZelSample::NetGridSysMsg(), stImage.Get());

    SZelNetGridSysMsg stTarget;
    stTarget.stMsg.stTime.m_eAccuracy = MJDACC_MILLISECOND;
    ZelTest::ExpectTextExact(ZelSample::NetGridSysMsg(), "SatSys, E, Msg, " + GridMsgText(), stTarget);

    const SZelNetGridSysMsg a = ZelSample::NetGridSysMsg();
    SZelNetGridSysMsg b = a;
    b.eSatSystem = ZELSATSYSTEM_GPS;
    EXPECT_TRUE(a != b);
    b = a;
    b.stMsg.ulType = 0;
    EXPECT_TRUE(a != b);
}

// ===================================================================== residuals

TEST(NetResidualEntry, AbsoluteTolerance)
{
    const SZelNetResidualEntry a = ZelSample::NetResidualEntry(1);
    double SZelNetResidualEntry::*apdFields[] = {&SZelNetResidualEntry::dSoc, &SZelNetResidualEntry::dSod,
                                                 &SZelNetResidualEntry::dSoh, &SZelNetResidualEntry::dSic,
                                                 &SZelNetResidualEntry::dSid};
    for (auto pdField : apdFields)
    {
        SZelNetResidualEntry b = a;
        b.*pdField += 5e-8;
        EXPECT_TRUE(a == b);
        b.*pdField = a.*pdField - 5e-8;
        EXPECT_TRUE(a == b);
        b.*pdField = a.*pdField + 2e-7;
        EXPECT_TRUE(a != b);
        b.*pdField = std::numeric_limits<double>::quiet_NaN();
        EXPECT_TRUE(a != b);
    }
    SZelNetResidualEntry b = a;
    b.stSatId.uiSatNumber = 30;
    EXPECT_TRUE(a != b);
}

TEST(NetResidualEntry, BinaryAndText)
{
    CImage stImage;
    stImage.At(0).I32(1).U8(5).Zero(3).At(8).F64(2.5).At(16).F64(2.25).At(24).F64(2.125);
    stImage.At(32).F64(3.5).At(40).F64(4.75);
    ZelTest::ExpectCoreImage(ZelSample::NetResidualEntry(2), stImage.Get());
    ZelTest::ExpectTextExact(ZelSample::NetResidualEntry(2),
                             "SatId, G05, Soc, 2.5, Sod, 2.25, Soh, 2.125, Sic, 3.5, Sid, 4.75");
}

TEST(NetResidualMsg, BinaryGolden)
{
    const SZelNetResidualMsg st = ZelSample::NetResidualMsg();
    EXPECT_EQ(st.getSize(), 24u + 48u * 3u);
    EXPECT_EQ(SZelNetResidualMsg().getSize(), 24u);
    CImage stImage;
    stImage.At(0).U32(4095).At(4).Time16(60001, 3600000.0, 2).At(20).U32(3);
    for (int iN = 0; iN < 3; ++iN)
    {
        stImage.At(24 + 48 * static_cast<size_t>(iN)).I32(1).U8(static_cast<uint32_t>(iN + 3)).Zero(3);
        stImage.F64(0.5 + iN).F64(0.25 + iN).F64(0.125 + iN).F64(1.5 + iN).F64(2.75 + iN);
    }
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = ZelTest::eCOUNT_KEPT;
    ZelTest::ExpectCoreImage(st, stImage.Get(), stRules, st);

    // An empty message.
    CImage stEmpty;
    stEmpty.At(0).U32(0).At(4).Time16(0, 0.0, 1).At(20).U32(0);
    ZelTest::ExpectCoreImage(SZelNetResidualMsg(), stEmpty.Get(), stRules);
}

TEST(NetResidualMsg, ReadSizesTheArrayFromTheStoredCount)
{
    const SZelNetResidualMsg stSample = ZelSample::NetResidualMsg();
    std::vector<unsigned char> vecImage(static_cast<size_t>(stSample.getSize()));
    uint64_t ulCount = 0;
    ASSERT_TRUE(stSample.saveData(vecImage.data(), vecImage.size(), &ulCount));

    // Shrinks a longer array.
    SZelNetResidualMsg stRead;
    stRead.vecEntries.resize(1);
    {
        CRecordingHook stHook;
        ASSERT_TRUE(Load(stRead, vecImage));
        EXPECT_EQ(stHook.Count(), 0u);
    }
    EXPECT_EQ(stRead, stSample);

    // The room ends inside the third entry: "false" once, the count shows how far.
    std::vector<unsigned char> vecForged = vecImage;
    vecForged[20] = 4; // four entries claimed, three present
    vecForged.resize(vecForged.size() + 20);
    SZelNetResidualMsg stShort;
    {
        CRecordingHook stHook;
        ulCount = 0;
        EXPECT_FALSE(stShort.loadData(vecForged.data(), vecForged.size(), &ulCount));
        EXPECT_EQ(stHook.Texts(), std::vector<std::string>{"false"});
        EXPECT_EQ(ulCount, 24u + 48u * 3u);
    }
    EXPECT_EQ(stShort.vecEntries.size(), 4u);
    EXPECT_EQ(stShort.vecEntries[2], stSample.vecEntries[2]);
}

TEST(NetResidualMsg, ForgedCountAllocatesNoMoreThanTheBytes)
{
    CImage stImage;
    stImage.U32(1).Time16(60000, 0.0, 1).U32(0xFFFFFFFFu).Zero(48);
    SZelNetResidualMsg st;
    CRecordingHook stHook;
    EXPECT_FALSE(Load(st, stImage.Get()));
    EXPECT_EQ(stHook.Texts(), std::vector<std::string>{"false"});
    EXPECT_LE(st.vecEntries.size(), 2u);
}

TEST(NetResidualMsg, TextAndEquality)
{
    const SZelNetResidualMsg st = ZelSample::NetResidualMsg();
    // GPS week 2251 starts at MJD 44244 + 7 * 2251 = 60001: one hour is 3600 s.
    SZelNetResidualMsg stTarget;
    stTarget.stTime.m_eAccuracy = MJDACC_MICROSECOND;
    ZelTest::ExpectTextExact(st,
                             "RefStationId, 4095, MjdTime, 2251, 3600, VecSize, 3, "
                             "SatId, G03, Soc, 0.5, Sod, 0.25, Soh, 0.125, Sic, 1.5, Sid, 2.75, "
                             "SatId, G04, Soc, 1.5, Sod, 1.25, Soh, 1.125, Sic, 2.5, Sid, 3.75, "
                             "SatId, G05, Soc, 2.5, Sod, 2.25, Soh, 2.125, Sic, 3.5, Sid, 4.75",
                             stTarget);

    SZelNetResidualMsg b = st;
    b.ulRefStationId = 1;
    EXPECT_TRUE(st != b);
    b = st;
    b.stTime.m_lMjdDay += 1;
    EXPECT_TRUE(st != b);
    b = st;
    b.vecEntries.pop_back();
    EXPECT_TRUE(st != b);
    b = st;
    b.vecEntries[1].dSid += 5e-8;
    EXPECT_TRUE(st == b);
    b.vecEntries[1].dSid += 2e-7;
    EXPECT_TRUE(st != b);
}

// ===================================================================== bad input

namespace
{
template <class R> void NastyImages()
{
    SCOPED_TRACE(typeid(R).name());
    CRecordingHook stHook;
    std::mt19937 stRandom(12345);
    std::vector<unsigned char> vecRandom(2048);
    for (int iRun = 0; iRun < 50; ++iRun)
    {
        for (auto& rByte : vecRandom)
        {
            rByte = static_cast<unsigned char>(stRandom());
        }
        for (const size_t ulLength : {size_t(0), size_t(1), size_t(23), size_t(371), vecRandom.size()})
        {
            R st;
            uint64_t ulCount = 0;
            const bool bOk = st.loadData(vecRandom.data(), ulLength, &ulCount);
            EXPECT_LE(ulCount, ulLength);
            if (bOk)
            {
                EXPECT_EQ(ulCount, st.getSize());
            }
        }
    }
    // Every length below the record's size fails.
    const uint64_t ulSize = R().getSize();
    std::vector<unsigned char> vecZero(static_cast<size_t>(ulSize), 0);
    for (uint64_t ulLength = 0; ulLength < ulSize; ulLength += 1 + ulSize / 50)
    {
        R st;
        EXPECT_FALSE(st.loadData(vecZero.data(), ulLength));
    }
}

template <class R> void NastyTexts()
{
    SCOPED_TRACE(typeid(R).name());
    std::mt19937 stRandom(54321);
    const std::vector<std::string> vecTexts = {"",
                                               ",,,,",
                                               "MsgNr, 99999999999999999999",
                                               "x",
                                               "SatId, -5, SatSys, ?, A, 1",
                                               "NetFlgs, 0xZZ, 1",
                                               "RefStationId, 1, MjdTime, 1, 2, VecSize, 4294967295, a"};
    for (const auto& rstrText : vecTexts)
    {
        std::istringstream is(rstrText);
        R st;
        is >> st;
        std::ostringstream os;
        os << st;
    }
    for (int iRun = 0; iRun < 30; ++iRun)
    {
        std::string str(300, ' ');
        for (auto& rc : str)
        {
            rc = static_cast<char>(" ,0123456789-xGRE\n"[stRandom() % 18]);
        }
        std::istringstream is(str);
        R st;
        is >> st;
        std::ostringstream os;
        os << st;
    }
}
} // namespace

TEST(NetBadInput, ImagesNeverCrash)
{
    NastyImages<SZelNetAuxStation>();
    NastyImages<SZelNetMsgHeader>();
    NastyImages<SZelNetSatEntry>();
    NastyImages<SZelNetIonoEntry>();
    NastyImages<SZelNetGeoEntry>();
    NastyImages<SZelNetCombEntry>();
    NastyImages<SZelNetGeoMsg>();
    NastyImages<SZelNetIonoMsg>();
    NastyImages<SZelNetCombMsg>();
    NastyImages<MsgGNSS17T>();
    NastyImages<SZelNetCombEntryD>();
    NastyImages<SZelNetCombMsgD>();
    NastyImages<SZelNetCorrPair>();
    NastyImages<SZelNetGridEntry>();
    NastyImages<SZelNetGridMsg>();
    NastyImages<SZelNetGridSysMsg>();
    NastyImages<SZelNetResidualEntry>();
    NastyImages<SZelNetResidualMsg>();
}

TEST(NetBadInput, TextsNeverCrash)
{
    CRecordingHook stHook;
    NastyTexts<SZelNetAuxStation>();
    NastyTexts<SZelNetMsgHeader>();
    NastyTexts<SZelNetIonoEntry>();
    NastyTexts<SZelNetGeoMsg>();
    NastyTexts<SZelNetIonoMsg>();
    NastyTexts<SZelNetCombMsg>();
    NastyTexts<MsgGNSS17T>();
    NastyTexts<SZelNetCombMsgD>();
    NastyTexts<SZelNetCorrPair>();
    NastyTexts<SZelNetGridMsg>();
    NastyTexts<SZelNetGridSysMsg>();
    NastyTexts<SZelNetResidualMsg>();
    SUCCEED();
}

TEST(NetBadInput, CutTextKeepsTheRest)
{
    std::string strLine;
    {
        std::ostringstream os;
        os << ZelSample::NetAuxStation();
        strLine = os.str();
    }
    const std::string strCut = strLine.substr(0, strLine.find(", DLon"));
    SZelNetAuxStation st;
    st.lDeltaLon = 77;
    st.lDeltaHgt = 88;
    std::istringstream is(strCut);
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(st.lDeltaLat, -123456);
    EXPECT_EQ(st.lDeltaLon, 77);
    EXPECT_EQ(st.lDeltaHgt, 88);
}
