// Orbit sets: the satellite status table, the frame transformation and the
// table of satellite states by epoch, with their images, texts and
// equality rules.

#include <ZelTypes/Core/Common/ZelTypesOrbPoly.h>
#include <ZelTypes/Ext/Gnss/ZelExtEphStates.h>
#include <ZelTypes/Ext/Gnss/ZelExtOrbTypes.h>

#include "ZelSamplesOrbits.h"
#include "ZelTestKit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;
using ZelTest::Bytes;
using ZelTest::CImage;
using ZelTest::CRecordingHook;

namespace
{

typedef std::vector<std::string> Texts;

char SampleChar(size_t ulSys, size_t ulSat)
{
    return static_cast<char>(ulSat % 2 == 0 ? 'A' + ulSys : 'a' + ulSat % 26);
}

int32_t GpsDay(uint32_t ulWeek, double dSecond)
{
    return static_cast<int32_t>(ulWeek * 7 + 44244 + static_cast<uint32_t>(dSecond / 86400.0));
}

// An entry of the samples, by hand: satellite at 0, content at 1, the
// triplet at 5 (its system in 4 bytes, then three doubles), clock at 33.
void PutEntry(CImage& rImage, uint8_t ucSatellite)
{
    const size_t ulBase = rImage.Size();
    rImage.At(ulBase).U8(ucSatellite).At(ulBase + 1).U32(3).At(ulBase + 5).I32(0);
    rImage.F64(15000000.5 + ucSatellite).F64(-20000000.25).F64(5000000.125);
    rImage.At(ulBase + 33).F64(1.0e-4 * (ucSatellite + 1)).At(ulBase + 41);
}

// An epoch of the samples: time at 0, 64-bit count at 16, entries at 24.
void PutEpoch(CImage& rImage, double dSecond)
{
    const size_t ulBase = rImage.Size();
    rImage.At(ulBase).Time16(GpsDay(2300, dSecond), std::fmod(dSecond, 86400.0) * 1000.0, 1);
    rImage.At(ulBase + 16).U64(2).At(ulBase + 24);
    PutEntry(rImage, 3);
    PutEntry(rImage, 9);
    rImage.At(ulBase + 24 + 82);
}

Bytes EpochImage(double dSecond)
{
    CImage st;
    PutEpoch(st, dSecond);
    return st.Get();
}

Bytes TableImage()
{
    CImage st;
    st.At(0).U32(3).At(4).U64(2).At(12);
    PutEpoch(st, 900.0);
    PutEpoch(st, 1800.0);
    st.At(12 + 2 * 106);
    return st.Get();
}

} // namespace

// ------------------------------------------------------------------ satellite status table

TEST(OrbitSatTable, SizesAndDefault)
{
    EXPECT_EQ(6u, POS_INDEX_SYSTEMARRAY_SIZE);
    EXPECT_EQ(63u, POS_MAX_SATS_SYSTEM);
    const ZELX_ORBIT_SAT_TABLE st;
    EXPECT_EQ(378u, st.getSize());
    EXPECT_EQ(378u, sizeof(st.acTable));
    for (const auto& racRow : st.acTable)
    {
        for (char c : racRow)
        {
            EXPECT_EQ(0, c);
        }
    }
    ZELX_ORBIT_SAT_TABLE stCleared = ZelSample::SampleOrbitSatTable();
    stCleared.clear();
    EXPECT_TRUE(stCleared == st);
}

TEST(OrbitSatTable, Image)
{
    CImage st;
    for (size_t ulSys = 0; ulSys < 6; ++ulSys)
    {
        st.At(ulSys * 63);
        for (size_t ulSat = 0; ulSat < 63; ++ulSat)
        {
            st.U8(static_cast<unsigned char>(SampleChar(ulSys, ulSat)));
        }
    }
    st.At(378);
    ZelTest::ExpectCoreImage(ZelSample::SampleOrbitSatTable(), st.Get());
}

TEST(OrbitSatTable, EqualityByTheBytes)
{
    const ZELX_ORBIT_SAT_TABLE stA = ZelSample::SampleOrbitSatTable();
    ZELX_ORBIT_SAT_TABLE stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.acTable[5][62] = 'z';
    EXPECT_FALSE(stA == stB);
    EXPECT_TRUE(stA != stB);
}

TEST(OrbitSatTable, Text)
{
    std::string strExpected = "NumSys, 6, NumSats, 63";
    for (size_t ulSys = 0; ulSys < 6; ++ulSys)
    {
        for (size_t ulSat = 0; ulSat < 63; ++ulSat)
        {
            strExpected += ", ";
            strExpected += SampleChar(ulSys, ulSat);
        }
    }
    ZelTest::ExpectTextExact(ZelSample::SampleOrbitSatTable(), strExpected);
}

TEST(OrbitSatTable, TextOfTheDefault)
{
    std::ostringstream os;
    os << ZELX_ORBIT_SAT_TABLE();
    const std::string str = os.str();
    EXPECT_EQ(0u, str.find("NumSys, 6, NumSats, 63, "));
    EXPECT_EQ(22u + 378u * 3u, str.size());
    EXPECT_EQ(std::string("\0, \0", 4), str.substr(str.size() - 4));
    // The zero characters read back.
    std::istringstream is(str);
    ZELX_ORBIT_SAT_TABLE st = ZelSample::SampleOrbitSatTable();
    is >> st;
    EXPECT_FALSE(is.fail());
    EXPECT_TRUE(st == ZELX_ORBIT_SAT_TABLE());
}

TEST(OrbitSatTable, ReaderChecksTheSizesAndReadsOnAnyway)
{
    std::ostringstream os;
    os << ZelSample::SampleOrbitSatTable();
    std::string str = os.str();
    str.replace(0, 22, "NumSys, 5, NumSats, 64");
    CRecordingHook stHook;
    std::istringstream is(str);
    ZELX_ORBIT_SAT_TABLE st;
    is >> st;
    EXPECT_EQ(Texts({"ulNumSys == POS_INDEX_SYSTEMARRAY_SIZE", "ulNumSats == POS_MAX_SATS_SYSTEM"}),
              stHook.Texts());
    EXPECT_TRUE(st == ZelSample::SampleOrbitSatTable()) << "378 characters read all the same";
}

TEST(OrbitSatTable, CutTextKeepsTheRest)
{
    std::ostringstream os;
    os << ZelSample::SampleOrbitSatTable();
    const std::string str = os.str();
    std::istringstream is(str.substr(0, 22 + 3 * 70));
    ZELX_ORBIT_SAT_TABLE st;
    st.acTable[3][0] = 'q';
    is >> st;
    EXPECT_TRUE(is.fail());
    EXPECT_EQ(SampleChar(1, 6), st.acTable[1][6]);
    EXPECT_EQ('q', st.acTable[3][0]);
}

// ------------------------------------------------------------------ frame transformation

TEST(FrameTransform, DefaultImageAndPositions)
{
    const ZELX_ORBIT_FRAME_TRANSFORM st;
    EXPECT_EQ(72u, st.getSize());
    for (double d : st.adTrans)
    {
        EXPECT_EQ(0.0, d);
    }
    for (double d : st.adUpper)
    {
        EXPECT_EQ(0.0, d);
    }
    // Values 3 to 8: the upper triangle, column by column.
    EXPECT_EQ(0u, ZELX_ORBIT_FRAME_TRANSFORM::c_ulSCALE_X);
    EXPECT_EQ(1u, ZELX_ORBIT_FRAME_TRANSFORM::c_ulROT_XY);
    EXPECT_EQ(2u, ZELX_ORBIT_FRAME_TRANSFORM::c_ulSCALE_Y);
    EXPECT_EQ(3u, ZELX_ORBIT_FRAME_TRANSFORM::c_ulROT_XZ);
    EXPECT_EQ(4u, ZELX_ORBIT_FRAME_TRANSFORM::c_ulROT_YZ);
    EXPECT_EQ(5u, ZELX_ORBIT_FRAME_TRANSFORM::c_ulSCALE_Z);

    CImage stImage;
    stImage.At(0).F64(0.125).F64(-0.25).F64(1.5).At(24);
    for (int i = 0; i < 6; ++i)
    {
        stImage.F64(1.0 + i / 8.0);
    }
    stImage.At(72);
    ZelTest::ExpectCoreImage(ZelSample::SampleFrameTransform(), stImage.Get());
    ZELX_ORBIT_FRAME_TRANSFORM stCleared = ZelSample::SampleFrameTransform();
    stCleared.clear();
    EXPECT_TRUE(stCleared == st);
}

TEST(FrameTransform, EqualityBitForBit)
{
    const ZELX_ORBIT_FRAME_TRANSFORM stA;
    ZELX_ORBIT_FRAME_TRANSFORM stB;
    stB.adUpper[4] = -0.0;
    EXPECT_FALSE(stA == stB) << "0.0 and -0.0 differ";
    stB = stA;
    stB.adTrans[1] = std::numeric_limits<double>::quiet_NaN();
    const ZELX_ORBIT_FRAME_TRANSFORM stC = stB;
    EXPECT_TRUE(stB == stC) << "the same NaN is the same bits";
    stB = ZelSample::SampleFrameTransform();
    ZELX_ORBIT_FRAME_TRANSFORM stD = stB;
    stD.adUpper[5] = std::nextafter(stD.adUpper[5], 2.0);
    EXPECT_TRUE(stB != stD);
}

TEST(FrameTransform, Text)
{
    ZelTest::ExpectTextExact(ZelSample::SampleFrameTransform(),
                             "Trans, 0.125, -0.25, 1.5, Scale, 1, 1.25, 1.625, Rot, 1.125, 1.375, 1.5");
}

TEST(FrameTransform, TextAfterAWriterThatSetsItsOwnFormat)
{
    // A polynomial leaves scientific notation with 17 digits on the stream;
    // the transformation sets none of its own.
    std::ostringstream os;
    os << ZelSample::SampleOrbPoly();
    os.str("");
    os << ZelSample::SampleFrameTransform();
    EXPECT_EQ(0u, os.str().find(
                      "Trans, 1.25000000000000000e-01, -2.50000000000000000e-01, 1.50000000000000000e+00, "
                      "Scale, 1.00000000000000000e+00"));
}

TEST(FrameTransform, TextAtThePrintPrecisionOnly)
{
    ZELX_ORBIT_FRAME_TRANSFORM st;
    st.adTrans[0] = 1.0 / 3.0;
    st.adUpper[ZELX_ORBIT_FRAME_TRANSFORM::c_ulROT_YZ] = 2.0 / 3.0;
    std::ostringstream os;
    os << st;
    EXPECT_EQ("Trans, 0.333333, 0, 0, Scale, 0, 0, 0, Rot, 0, 0, 0.666667", os.str());
    std::istringstream is(os.str());
    ZELX_ORBIT_FRAME_TRANSFORM stRead;
    is >> stRead;
    EXPECT_FALSE(is.fail());
    EXPECT_FALSE(stRead == st);
    EXPECT_EQ(0.333333, stRead.adTrans[0]);
    EXPECT_EQ(0.666667, stRead.adUpper[4]);
    // With 17 digits the values come back whole.
    std::ostringstream os17;
    os17 << std::setprecision(17) << st;
    std::istringstream is17(os17.str());
    is17 >> stRead;
    EXPECT_TRUE(stRead == st);
}

// ------------------------------------------------------------------ satellite states

TEST(SatStates, EntryDefaultsAndImage)
{
    const ZELX_SAT_STATE_ENTRY stDefault;
    EXPECT_EQ(0, stDefault.ucSatellite);
    EXPECT_EQ(0u, stDefault.ulContent);
    EXPECT_TRUE(stDefault.stPosition == SZelCoordinateTriplet());
    EXPECT_EQ(0.0, stDefault.dClock);
    EXPECT_EQ(41u, stDefault.getSize());
    CImage st;
    PutEntry(st, 3);
    ZelTest::ExpectExtImage(ZelSample::SampleStateEntry(3), st.Get());
}

TEST(SatStates, EntryEqualityByTheContent)
{
    const ZELX_SAT_STATE_ENTRY stA = ZelSample::SampleStateEntry(3);
    ZELX_SAT_STATE_ENTRY stB = stA;
    EXPECT_TRUE(stA == stB);
    stB.stPosition.dCoord2 *= 1.0 + 5e-15;
    stB.dClock *= 1.0 + 5e-15;
    EXPECT_TRUE(stA == stB);
    stB.stPosition.dCoord2 = stA.stPosition.dCoord2 * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.dClock = stA.dClock * (1.0 + 5e-14);
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ucSatellite = 4;
    EXPECT_FALSE(stA == stB);
    stB = stA;
    stB.ulContent = 1;
    EXPECT_FALSE(stA == stB);
    // What the content bits do not mark takes no part.
    ZELX_SAT_STATE_ENTRY stPosOnlyA = stA;
    stPosOnlyA.ulContent = ZELX_SAT_STATE_ENTRY::c_ulCONTENT_POSITION;
    ZELX_SAT_STATE_ENTRY stPosOnlyB = stPosOnlyA;
    stPosOnlyB.dClock = -7.0;
    EXPECT_TRUE(stPosOnlyA == stPosOnlyB);
    stPosOnlyB.stPosition.dCoord3 = 0.0;
    EXPECT_FALSE(stPosOnlyA == stPosOnlyB);
    ZELX_SAT_STATE_ENTRY stClockOnlyA = stA;
    stClockOnlyA.ulContent = ZELX_SAT_STATE_ENTRY::c_ulCONTENT_CLOCK;
    ZELX_SAT_STATE_ENTRY stClockOnlyB = stClockOnlyA;
    stClockOnlyB.stPosition = SZelCoordinateTriplet(ZELCOORDINATESYSTEM_GEOGRAPHIC, 1.0, 2.0, 3.0);
    EXPECT_TRUE(stClockOnlyA == stClockOnlyB) << "not the coordinates, nor their tag";
    stClockOnlyB.dClock = 0.0;
    EXPECT_FALSE(stClockOnlyA == stClockOnlyB);
}

TEST(SatStates, EpochConstructionAndStorage)
{
    const SMjdTime stTime(2300u, 60.0);
    const ZELX_SAT_STATE_EPOCH stNone(ZELSATSYSTEM_NONE, stTime);
    EXPECT_TRUE(stNone.vecEntries.empty());
    EXPECT_EQ(stTime, stNone.stTime);
    const struct
    {
        EZelSatSystem eSys;
        size_t ulCount;
    } astRows[] = {{ZELSATSYSTEM_GPS, 33},   {ZELSATSYSTEM_GLONASS, 25}, {ZELSATSYSTEM_GALILEO, 37},
                   {ZELSATSYSTEM_SBAS, 21},  {ZELSATSYSTEM_BEIDOU, 64},  {ZELSATSYSTEM_QZSS, 11},
                   {ZELSATSYSTEM_NAVIC, 10}, {ZELSATSYSTEM_LOCATA, 41}};
    for (const auto& rRow : astRows)
    {
        const ZELX_SAT_STATE_EPOCH st(rRow.eSys, stTime);
        EXPECT_EQ(rRow.ulCount, st.vecEntries.size()) << rRow.eSys;
        EXPECT_TRUE(st.vecEntries.front() == ZELX_SAT_STATE_ENTRY());
        EXPECT_TRUE(st.hasStorage());
    }
    ZELX_SAT_STATE_EPOCH st;
    EXPECT_FALSE(st.hasStorage());
    st.vecEntries.reserve(4);
    EXPECT_TRUE(st.hasStorage()) << "storage held, no entry";
    EXPECT_TRUE(st.vecEntries.empty());
    st.vecEntries.resize(2);
    st.vecEntries.clear();
    EXPECT_TRUE(st.hasStorage());
}

TEST(SatStates, EpochImage)
{
    const ZELX_SAT_STATE_EPOCH stSample = ZelSample::SampleStateEpoch(900.0);
    const Bytes vecExpected = EpochImage(900.0);
    ASSERT_EQ(106u, stSample.getSize());
    CRecordingHook stHook;
    Bytes vecOut(106, 0xAA);
    EXPECT_TRUE(stSample.saveData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(vecExpected, vecOut);
    ZELX_SAT_STATE_EPOCH stLoaded;
    EXPECT_TRUE(stLoaded.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stLoaded == stSample);
    EXPECT_EQ(stSample.stTime, stLoaded.stTime);
    EXPECT_EQ(0u, stHook.Count());
    // An empty epoch is its head.
    ZELX_SAT_STATE_EPOCH stEmpty;
    stEmpty.stTime = SMjdTime(2300u, 0.0);
    CImage stHead;
    stHead.At(0).Time16(GpsDay(2300, 0.0), 0.0, 1).At(16).U64(0).At(24);
    ZelTest::ExpectExtImage(stEmpty, stHead.Get());
}

TEST(SatStates, EpochShortAndNullBuffers)
{
    const ZELX_SAT_STATE_EPOCH stSample = ZelSample::SampleStateEpoch(900.0);
    const Bytes vecImage = EpochImage(900.0);
    CRecordingHook stHook;
    Bytes vecOut(105, 0xAA);
    EXPECT_FALSE(stSample.saveData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    EXPECT_EQ(Bytes(105, 0xAA), vecOut);
    stHook.Clear();
    // The last entry fails: it reports, and the epoch reports the failed element.
    ZELX_SAT_STATE_EPOCH stLoaded;
    EXPECT_FALSE(stLoaded.loadData(vecImage.data(), 105));
    EXPECT_EQ(Texts({"false", "false"}), stHook.Texts());
    ASSERT_EQ(2u, stLoaded.vecEntries.size());
    EXPECT_TRUE(stLoaded.vecEntries[0] == stSample.vecEntries[0]) << "the entries read so far stay";
    stHook.Clear();
    // Not even the head.
    ZELX_SAT_STATE_EPOCH stHeadless = stSample;
    EXPECT_FALSE(stHeadless.loadData(vecImage.data(), 23));
    EXPECT_FALSE(stHeadless.loadData(nullptr, 106));
    EXPECT_FALSE(stSample.saveData(nullptr, 106));
    EXPECT_EQ(Texts(3, "false"), stHook.Texts());
    EXPECT_TRUE(stHeadless == stSample);
}

TEST(SatStates, TableImageAndEquality)
{
    const ZELX_SAT_STATE_TABLE stSample = ZelSample::SampleStateTable();
    const Bytes vecExpected = TableImage();
    ASSERT_EQ(vecExpected.size(), stSample.getSize());
    EXPECT_EQ(224u, stSample.getSize());
    CRecordingHook stHook;
    Bytes vecOut(vecExpected.size(), 0xAA);
    EXPECT_TRUE(stSample.saveData(vecOut.data(), vecOut.size()));
    EXPECT_EQ(vecExpected, vecOut);
    ZELX_SAT_STATE_TABLE stLoaded;
    EXPECT_TRUE(stLoaded.loadData(vecExpected.data(), vecExpected.size()));
    EXPECT_TRUE(stLoaded == stSample);
    EXPECT_EQ(3u, stLoaded.ulSatSystem);
    EXPECT_EQ(0u, stHook.Count());
    // One byte short: the last entry, its epoch and the table each report.
    EXPECT_FALSE(stSample.saveData(vecOut.data(), vecOut.size() - 1));
    EXPECT_EQ(Texts{"false"}, stHook.Texts());
    stHook.Clear();
    ZELX_SAT_STATE_TABLE stShort;
    EXPECT_FALSE(stShort.loadData(vecExpected.data(), vecExpected.size() - 1));
    EXPECT_EQ(Texts(3, "false"), stHook.Texts());
    EXPECT_EQ(2u, stShort.vecEpochs.size());
    EXPECT_TRUE(stShort.vecEpochs[0] == stSample.vecEpochs[0]);
}

TEST(SatStates, LoadingOverALargerTableShrinksIt)
{
    ZELX_SAT_STATE_TABLE stLarge(ZELSATSYSTEM_GPS, 5);
    for (ZELX_SAT_STATE_EPOCH& rEpoch : stLarge.vecEpochs)
    {
        rEpoch = ZELX_SAT_STATE_EPOCH(ZELSATSYSTEM_GPS, SMjdTime(2300u, 10.0));
    }
    const Bytes vecImage = TableImage();
    CRecordingHook stHook;
    EXPECT_TRUE(stLarge.loadData(vecImage.data(), vecImage.size()));
    EXPECT_EQ(2u, stLarge.vecEpochs.size());
    EXPECT_EQ(2u, stLarge.vecEpochs[0].vecEntries.size());
    EXPECT_TRUE(stLarge == ZelSample::SampleStateTable());
    EXPECT_EQ(ZELSATSYSTEM_GALILEO, stLarge.ulSatSystem);
    EXPECT_EQ(0u, stHook.Count());
}

TEST(SatStates, ForgedCountsFailWhereTheBufferEnds)
{
    Bytes vecImage = TableImage();
    const uint64_t ullForged = 0xFFFFFFFFFFFFFFFFull;
    std::memcpy(&vecImage[4], &ullForged, 8);
    CRecordingHook stHook;
    ZELX_SAT_STATE_TABLE st;
    EXPECT_FALSE(st.loadData(vecImage.data(), vecImage.size()));
    // Sized to what the 212 bytes after the head could hold at 24 bytes an
    // epoch; the third epoch finds no bytes left.
    EXPECT_EQ(212u / 24u, st.vecEpochs.size());
    EXPECT_TRUE(st.vecEpochs[1] == ZelSample::SampleStateEpoch(1800.0));
    EXPECT_EQ(Texts(2, "false"), stHook.Texts());
    stHook.Clear();
    Bytes vecEpoch = EpochImage(900.0);
    std::memcpy(&vecEpoch[16], &ullForged, 8);
    ZELX_SAT_STATE_EPOCH stEpoch;
    EXPECT_FALSE(stEpoch.loadData(vecEpoch.data(), vecEpoch.size()));
    EXPECT_EQ(3u, stEpoch.vecEntries.size())
        << "the two entries there are, and the one that ran out of bytes";
    EXPECT_EQ(Texts(2, "false"), stHook.Texts());
}

TEST(SatStates, NastyImagesNeverCrash)
{
    std::mt19937 stRandom(99u);
    const Bytes vecTable = TableImage();
    for (int iRound = 0; iRound < 1000; ++iRound)
    {
        Bytes vecBytes = vecTable;
        vecBytes.resize(stRandom() % (vecTable.size() + 20));
        for (int iFlip = 0; iFlip < 4 && !vecBytes.empty(); ++iFlip)
        {
            vecBytes[stRandom() % vecBytes.size()] = static_cast<unsigned char>(stRandom());
        }
        CRecordingHook stHook;
        ZELX_SAT_STATE_TABLE st;
        if (st.loadData(vecBytes.data(), vecBytes.size()))
        {
            EXPECT_LE(st.getSize(), vecBytes.size());
            Bytes vecOut(static_cast<size_t>(st.getSize()));
            EXPECT_TRUE(st.saveData(vecOut.data(), vecOut.size()));
        }
        ZELX_SAT_STATE_EPOCH stEpoch;
        (void)stEpoch.loadData(vecBytes.data(), vecBytes.size());
        ZELX_SAT_STATE_ENTRY stEntry;
        (void)stEntry.loadData(vecBytes.data(), vecBytes.size());
    }
}

TEST(SatStates, EpochAndTableEquality)
{
    const ZELX_SAT_STATE_EPOCH stA = ZelSample::SampleStateEpoch(900.0);
    ZELX_SAT_STATE_EPOCH stB = stA;
    stB.stTime.AddMilliseconds(0.9);
    EXPECT_TRUE(stA == stB) << "apart by 0.9 ms";
    stB.stTime.AddMilliseconds(0.1);
    EXPECT_FALSE(stA == stB) << "apart by 1 ms";
    stB = stA;
    stB.stTime.SubMilliseconds(0.999);
    EXPECT_TRUE(stA == stB);
    stB = stA;
    stB.vecEntries.pop_back();
    EXPECT_FALSE(stA == stB);
    stB = stA;
    std::swap(stB.vecEntries[0], stB.vecEntries[1]);
    EXPECT_FALSE(stA == stB) << "in order";
    // Entries whose content is 0 are equal whatever they hold.
    ZELX_SAT_STATE_EPOCH stC(ZELSATSYSTEM_GALILEO, SMjdTime(2300u, 900.0));
    ZELX_SAT_STATE_EPOCH stD = stC;
    for (ZELX_SAT_STATE_ENTRY& rEntry : stD.vecEntries)
    {
        rEntry.stPosition.dCoord1 = 1.0e7;
        rEntry.dClock = 2.0;
    }
    EXPECT_TRUE(stC == stD);
    ZELX_SAT_STATE_TABLE stTc;
    stTc.vecEpochs = {stC, stC};
    ZELX_SAT_STATE_TABLE stTd;
    stTd.vecEpochs = {stD, stC};
    EXPECT_TRUE(stTc == stTd) << "a table whose entries hold no content";

    const ZELX_SAT_STATE_TABLE stTa = ZelSample::SampleStateTable();
    ZELX_SAT_STATE_TABLE stTb = stTa;
    stTb.ulSatSystem = ZELSATSYSTEM_GPS;
    EXPECT_TRUE(stTa == stTb) << "the system takes no part";
    stTb.vecEpochs[1].stTime.AddSeconds(1.0);
    EXPECT_FALSE(stTa == stTb);
    stTb = stTa;
    stTb.vecEpochs.push_back(ZELX_SAT_STATE_EPOCH());
    EXPECT_FALSE(stTa == stTb);
    const ZELX_SAT_STATE_TABLE stCounted(ZELSATSYSTEM_GPS, 3);
    EXPECT_EQ(3u, stCounted.vecEpochs.size());
    EXPECT_EQ(ZELSATSYSTEM_GPS, static_cast<int32_t>(stCounted.ulSatSystem));
    EXPECT_TRUE(stCounted.vecEpochs[2].vecEntries.empty());
}
