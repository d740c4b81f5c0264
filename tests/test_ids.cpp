#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include "ZelSamplesIds.h"
#include "ZelTestHooks.h"
#include "ZelTestKit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace ZELN;

namespace
{

// The shared recording hook, with a count of one text.
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

const EZelSatSystem c_eSys9 = static_cast<EZelSatSystem>(9);

SZelSatID Sat(EZelSatSystem eSys, int iNumber)
{
    return SZelSatID(eSys, static_cast<uint8_t>(iNumber));
}

template <class R> std::string ToText(const R& rRecord)
{
    std::ostringstream oss;
    oss << rRecord;
    return oss.str();
}

} // namespace

// ---------------------------------------------------------------------------
// Enumerations and letters
// ---------------------------------------------------------------------------

TEST(SatSystem, ValuesAndConstants)
{
    EXPECT_EQ(0, ZELSATSYSTEM_NONE);
    EXPECT_EQ(1, ZELSATSYSTEM_GPS);
    EXPECT_EQ(2, ZELSATSYSTEM_GLONASS);
    EXPECT_EQ(3, ZELSATSYSTEM_GALILEO);
    EXPECT_EQ(4, ZELSATSYSTEM_SBAS);
    EXPECT_EQ(5, ZELSATSYSTEM_BEIDOU);
    EXPECT_EQ(6, ZELSATSYSTEM_QZSS);
    EXPECT_EQ(7, ZELSATSYSTEM_NAVIC);
    EXPECT_EQ(8, ZELSATSYSTEM_LOCATA);
    EXPECT_EQ(4u, sizeof(EZelSatSystem));
    EXPECT_EQ(4u, sizeof(EZelTrackMode));
    EXPECT_EQ(4u, sizeof(ETrackComponent));
    EXPECT_EQ(4u, sizeof(EZelOrbitSource));
    EXPECT_EQ(63u, ZEL_DEF_MAXSATID);
    EXPECT_EQ(24u, ZEL_DEF_MAXSATID_GLONASS);
    EXPECT_EQ(40u, ZEL_DEF_MAXSATID_LOCATA);
    EXPECT_EQ(7, ZELFREQUENCY_GROUPS_MAX);
}

TEST(SatSystem, LettersRowByRow)
{
    CRecorder stRec;
    const char acLetters[] = {'N', 'G', 'R', 'E', 'S', 'C', 'J', 'I', 'L'};
    for (int iSys = 0; iSys <= 8; ++iSys)
    {
        EXPECT_EQ(acLetters[iSys], ToSatSystemLetter(static_cast<EZelSatSystem>(iSys))) << iSys;
        EXPECT_EQ(iSys, FromSatSystemLetter(acLetters[iSys])) << iSys;
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(SatSystem, UnknownValuesReport)
{
    CRecorder stRec;
    EXPECT_EQ('?', ToSatSystemLetter(c_eSys9));
    EXPECT_EQ('?', ToSatSystemLetter(static_cast<EZelSatSystem>(-1)));
    EXPECT_EQ(9, FromSatSystemLetter('X'));
    EXPECT_EQ(9, FromSatSystemLetter('g'));
    ASSERT_EQ(4u, stRec.Count());
    EXPECT_EQ(4u, stRec.Count("false"));
}

TEST(SatSystem, TextOfTheEnumeration)
{
    CRecorder stRec;
    EXPECT_EQ("C", ToText(ZELSATSYSTEM_BEIDOU));
    std::istringstream iss(" J");
    EZelSatSystem eSys = ZELSATSYSTEM_NONE;
    iss >> eSys;
    EXPECT_EQ(ZELSATSYSTEM_QZSS, eSys);
    EXPECT_EQ(0u, stRec.Count());
    // A failed extraction leaves the value.
    std::istringstream issEmpty("");
    issEmpty >> eSys;
    EXPECT_TRUE(issEmpty.fail());
    EXPECT_EQ(ZELSATSYSTEM_QZSS, eSys);
}

TEST(TrackMode, LettersRowByRow)
{
    CRecorder stRec;
    const char* szLetters = "UABCDILMNPQSWXYZ";
    for (int iMode = 0; iMode <= 15; ++iMode)
    {
        EXPECT_EQ(szLetters[iMode], ToTrackModeLetter(static_cast<EZelTrackMode>(iMode))) << iMode;
        EXPECT_EQ(iMode, FromTrackModeLetter(szLetters[iMode])) << iMode;
    }
    EXPECT_EQ(0, ZELTRACKMODE_UNKNOWN);
    EXPECT_EQ(1, ZELTRACKMODE_A);
    EXPECT_EQ(2, ZELTRACKMODE_B);
    EXPECT_EQ(3, ZELTRACKMODE_C);
    EXPECT_EQ(4, ZELTRACKMODE_D);
    EXPECT_EQ(5, ZELTRACKMODE_I);
    EXPECT_EQ(6, ZELTRACKMODE_L);
    EXPECT_EQ(7, ZELTRACKMODE_M);
    EXPECT_EQ(8, ZELTRACKMODE_N);
    EXPECT_EQ(9, ZELTRACKMODE_P);
    EXPECT_EQ(10, ZELTRACKMODE_Q);
    EXPECT_EQ(11, ZELTRACKMODE_S);
    EXPECT_EQ(12, ZELTRACKMODE_W);
    EXPECT_EQ(13, ZELTRACKMODE_X);
    EXPECT_EQ(14, ZELTRACKMODE_Y);
    EXPECT_EQ(15, ZELTRACKMODE_Z);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(TrackMode, UnknownValuesReport)
{
    CRecorder stRec;
    EXPECT_EQ('U', ToTrackModeLetter(ZELTRACKMODE_ALL));
    EXPECT_EQ('U', ToTrackModeLetter(static_cast<EZelTrackMode>(-3)));
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, FromTrackModeLetter('E'));
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, FromTrackModeLetter('c'));
    EXPECT_EQ(4u, stRec.Count("false"));
    EXPECT_EQ(4u, stRec.Count());
}

TEST(TrackComponent, LettersAndText)
{
    CRecorder stRec;
    const struct
    {
        int iValue;
        char cLetter;
    } astRows[] = {{-1, 'U'}, {0, 'I'}, {1, 'Q'}, {2, 'X'}, {3, 'D'}, {4, 'P'}, {5, 'Z'}};
    for (const auto& rRow : astRows)
    {
        const ETrackComponent eComp = static_cast<ETrackComponent>(rRow.iValue);
        EXPECT_EQ(rRow.cLetter, ToTrackComponentLetter(eComp));
        EXPECT_EQ(std::string(1, rRow.cLetter), ToText(eComp));
        EXPECT_EQ(eComp, FromTrackComponentLetter(rRow.cLetter));
        std::istringstream iss(std::string(1, rRow.cLetter));
        ETrackComponent eRead = TRACKCOMPONENT_Z;
        iss >> eRead;
        EXPECT_EQ(eComp, eRead);
    }
    EXPECT_EQ(0u, stRec.Count());
    EXPECT_EQ("U", ToText(static_cast<ETrackComponent>(6)));
    EXPECT_EQ("U", ToText(static_cast<ETrackComponent>(-2)));
    ASSERT_EQ(2u, stRec.Count());
    EXPECT_EQ(2u, stRec.Count("false"));
}

TEST(OrbitSource, WordsAndReading)
{
    CRecorder stRec;
    const char* aszWords[] = {"Alm", "Eph", "Prc", "Vrp", "Max"};
    for (int iValue = 0; iValue <= 4; ++iValue)
    {
        EXPECT_EQ(aszWords[iValue], ToText(static_cast<EZelOrbitSource>(iValue)));
        std::istringstream iss(aszWords[iValue]);
        EZelOrbitSource eRead = ZELORBITSOURCE_INVALID;
        iss >> eRead;
        EXPECT_EQ(iValue, eRead);
    }
    EXPECT_EQ("Invalid", ToText(static_cast<EZelOrbitSource>(5)));
    EXPECT_EQ("Invalid", ToText(ZELORBITSOURCE_INVALID));

    // The comma after the word goes with it; an unknown word gives -1.
    std::istringstream iss("Prc, Bogus, Eph");
    EZelOrbitSource e1 = ZELORBITSOURCE_ALM, e2 = ZELORBITSOURCE_ALM, e3 = ZELORBITSOURCE_ALM;
    iss >> e1 >> e2 >> e3;
    EXPECT_EQ(ZELORBITSOURCE_PRC, e1);
    EXPECT_EQ(-1, e2);
    EXPECT_EQ(ZELORBITSOURCE_EPH, e3);
    EXPECT_EQ(0u, stRec.Count());
}

// ---------------------------------------------------------------------------
// Bit sets and numbering
// ---------------------------------------------------------------------------

TEST(SatSystemBits, RowByRow)
{
    const uint32_t aulBits[] = {0, 1, 2, 4, 8, 16, 32, 64, 128};
    for (int iSys = 0; iSys <= 8; ++iSys)
    {
        EXPECT_EQ(aulBits[iSys], ToSatSystemBit(static_cast<EZelSatSystem>(iSys))) << iSys;
        if (iSys != 0)
        {
            EXPECT_EQ(iSys, FromSatSystemBit(aulBits[iSys]));
        }
    }
    EXPECT_EQ(0u, ToSatSystemBit(c_eSys9));
    EXPECT_EQ(0u, ToSatSystemBit(static_cast<EZelSatSystem>(-1)));
    EXPECT_EQ(ZELSATSYSTEM_NONE, FromSatSystemBit(0));
    EXPECT_EQ(ZELSATSYSTEM_NONE, FromSatSystemBit(3));
    EXPECT_EQ(ZELSATSYSTEM_NONE, FromSatSystemBit(256));
}

TEST(TrackModeGroups, Conversions)
{
    for (int iMode = 1; iMode <= 15; ++iMode)
    {
        const uint32_t ulBit = 1u << (iMode - 1);
        EXPECT_EQ(ulBit, ToTMdGroup(static_cast<EZelTrackMode>(iMode)));
        EXPECT_EQ(iMode, FromTMdGroup(ulBit));
    }
    EXPECT_EQ(0u, ToTMdGroup(ZELTRACKMODE_UNKNOWN));
    EXPECT_EQ(32767u, ToTMdGroup(static_cast<EZelTrackMode>(16)));
    EXPECT_EQ(0u, ToTMdGroup(static_cast<EZelTrackMode>(17)));
    EXPECT_EQ(0u, ToTMdGroup(static_cast<EZelTrackMode>(-1)));
    // 32767 is no single bit.
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, FromTMdGroup(32767));
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, FromTMdGroup(0));
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, FromTMdGroup(0x8000));
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, FromTMdGroup(5));
}

TEST(Numbering, MaxSatNumberRowByRow)
{
    const unsigned int auiMax[] = {0, 32, 24, 36, 20, 63, 10, 9, 40};
    for (int iSys = 0; iSys <= 8; ++iSys)
    {
        EXPECT_EQ(auiMax[iSys], GetMaxSatNumber(static_cast<EZelSatSystem>(iSys))) << iSys;
    }
    EXPECT_EQ(0u, GetMaxSatNumber(c_eSys9));
    EXPECT_EQ(0u, GetMaxSatNumber(static_cast<EZelSatSystem>(-1)));
}

TEST(Numbering, SysFrqGroupsRowByRow)
{
    CRecorder stRec;
    EXPECT_EQ(7u, GetSysFrqGroups(ZELSATSYSTEM_GPS));
    EXPECT_EQ(7u, GetSysFrqGroups(ZELSATSYSTEM_GLONASS));
    EXPECT_EQ(61u, GetSysFrqGroups(ZELSATSYSTEM_GALILEO));
    EXPECT_EQ(0u, GetSysFrqGroups(ZELSATSYSTEM_SBAS));
    EXPECT_EQ(31u, GetSysFrqGroups(ZELSATSYSTEM_BEIDOU));
    EXPECT_EQ(7u, GetSysFrqGroups(ZELSATSYSTEM_QZSS));
    EXPECT_EQ(4u, GetSysFrqGroups(ZELSATSYSTEM_NAVIC));
    EXPECT_EQ(0u, GetSysFrqGroups(ZELSATSYSTEM_LOCATA));
    EXPECT_EQ(0u, stRec.Count());
    EXPECT_EQ(0u, GetSysFrqGroups(ZELSATSYSTEM_NONE));
    EXPECT_EQ(0u, GetSysFrqGroups(c_eSys9));
    EXPECT_EQ(2u, stRec.Count("false"));
    EXPECT_EQ(2u, stRec.Count());
}

TEST(Numbering, ToGlobalOffsets)
{
    CRecorder stRec;
    EXPECT_EQ(1, ToGlobalSatNumber(Sat(ZELSATSYSTEM_GPS, 1)));
    EXPECT_EQ(32, ToGlobalSatNumber(Sat(ZELSATSYSTEM_GPS, 32)));
    EXPECT_EQ(33, ToGlobalSatNumber(Sat(ZELSATSYSTEM_GLONASS, 1)));
    EXPECT_EQ(57, ToGlobalSatNumber(Sat(ZELSATSYSTEM_GALILEO, 1)));
    EXPECT_EQ(93, ToGlobalSatNumber(Sat(ZELSATSYSTEM_SBAS, 1)));
    EXPECT_EQ(113, ToGlobalSatNumber(Sat(ZELSATSYSTEM_BEIDOU, 1)));
    EXPECT_EQ(176, ToGlobalSatNumber(Sat(ZELSATSYSTEM_QZSS, 1)));
    EXPECT_EQ(226, ToGlobalSatNumber(Sat(ZELSATSYSTEM_NAVIC, 1)));
    EXPECT_EQ(186, ToGlobalSatNumber(Sat(ZELSATSYSTEM_LOCATA, 1)));
    EXPECT_EQ(0u, stRec.Count());
    EXPECT_EQ(0, ToGlobalSatNumber(Sat(ZELSATSYSTEM_NONE, 3)));
    EXPECT_EQ(0, ToGlobalSatNumber(Sat(c_eSys9, 3)));
    EXPECT_EQ(2u, stRec.Count("false"));
    EXPECT_EQ(2u, stRec.Count());
}

TEST(Numbering, FromGlobalEdges)
{
    CRecorder stRec;
    EXPECT_EQ(SZelSatID(), FromGlobalSatNumber(0));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GPS, 1), FromGlobalSatNumber(1));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GPS, 32), FromGlobalSatNumber(32));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GLONASS, 1), FromGlobalSatNumber(33));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GLONASS, 24), FromGlobalSatNumber(56));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GALILEO, 1), FromGlobalSatNumber(57));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GALILEO, 36), FromGlobalSatNumber(92));
    EXPECT_EQ(Sat(ZELSATSYSTEM_SBAS, 1), FromGlobalSatNumber(93));
    EXPECT_EQ(Sat(ZELSATSYSTEM_SBAS, 20), FromGlobalSatNumber(112));
    EXPECT_EQ(Sat(ZELSATSYSTEM_BEIDOU, 1), FromGlobalSatNumber(113));
    EXPECT_EQ(Sat(ZELSATSYSTEM_BEIDOU, 63), FromGlobalSatNumber(175));
    EXPECT_EQ(Sat(ZELSATSYSTEM_QZSS, 1), FromGlobalSatNumber(176));
    EXPECT_EQ(Sat(ZELSATSYSTEM_QZSS, 10), FromGlobalSatNumber(185));
    EXPECT_EQ(Sat(ZELSATSYSTEM_LOCATA, 1), FromGlobalSatNumber(186));
    EXPECT_EQ(Sat(ZELSATSYSTEM_LOCATA, 40), FromGlobalSatNumber(225));
    EXPECT_EQ(Sat(ZELSATSYSTEM_NAVIC, 1), FromGlobalSatNumber(226));
    EXPECT_EQ(Sat(ZELSATSYSTEM_NAVIC, 9), FromGlobalSatNumber(234));
    EXPECT_EQ(Sat(c_eSys9, 0), FromGlobalSatNumber(235));
    EXPECT_EQ(Sat(c_eSys9, 0), FromGlobalSatNumber(255));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(Numbering, GlobalIsInverseOverAllValidSatellites)
{
    CRecorder stRec;
    std::set<int> setSeen;
    for (int iSys = 1; iSys <= 8; ++iSys)
    {
        const EZelSatSystem eSys = static_cast<EZelSatSystem>(iSys);
        for (int iNb = 1; iNb <= GetMaxSatNumber(eSys); ++iNb)
        {
            const SZelSatID stSat = Sat(eSys, iNb);
            ASSERT_TRUE(stSat.isValid());
            const uint8_t uiGlobal = ToGlobalSatNumber(stSat);
            EXPECT_EQ(stSat, FromGlobalSatNumber(uiGlobal));
            EXPECT_TRUE(setSeen.insert(uiGlobal).second);
        }
    }
    EXPECT_EQ(234u, setSeen.size());
    for (int iGlobal = 1; iGlobal <= 234; ++iGlobal)
    {
        EXPECT_EQ(iGlobal, ToGlobalSatNumber(FromGlobalSatNumber(static_cast<uint8_t>(iGlobal))));
    }
    EXPECT_EQ(0u, stRec.Count());
}

// ---------------------------------------------------------------------------
// SZelSatID
// ---------------------------------------------------------------------------

TEST(SatID, DefaultAndValidity)
{
    const SZelSatID stDefault;
    EXPECT_EQ(ZELSATSYSTEM_NONE, stDefault.eSatSystem);
    EXPECT_EQ(0, stDefault.uiSatNumber);
    EXPECT_FALSE(stDefault.isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_GPS, 33).isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_GLONASS, 25).isValid());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_BEIDOU, 63).isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_BEIDOU, 64).isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_GPS, 0).isValid());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GPS, 1).isValid());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_LOCATA, 40).isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_LOCATA, 41).isValid());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_NAVIC, 9).isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_NAVIC, 10).isValid());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_NONE, 1).isValid());
    EXPECT_FALSE(Sat(c_eSys9, 1).isValid());
}

TEST(SatID, EqualityAndOrder)
{
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GPS, 5) == Sat(ZELSATSYSTEM_GPS, 5));
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GPS, 5) != Sat(ZELSATSYSTEM_GPS, 6));
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GPS, 5) != Sat(ZELSATSYSTEM_QZSS, 5));
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GPS, 32) < Sat(ZELSATSYSTEM_GLONASS, 1));
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GPS, 1) < Sat(ZELSATSYSTEM_GPS, 2));
    EXPECT_FALSE(Sat(ZELSATSYSTEM_GPS, 2) < Sat(ZELSATSYSTEM_GPS, 2));
    // The system compares as a signed number.
    EXPECT_TRUE(Sat(static_cast<EZelSatSystem>(-1), 9) < Sat(ZELSATSYSTEM_NONE, 0));
}

TEST(SatID, SystemPredicates)
{
    const SZelSatID stG = Sat(ZELSATSYSTEM_GPS, 1);
    EXPECT_TRUE(stG.IsGps());
    EXPECT_FALSE(stG.IsGlonass());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_NONE, 0).IsNone());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GLONASS, 1).IsGlonass());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_GALILEO, 1).IsGalileo());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_SBAS, 1).IsSbas());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_BEIDOU, 1).IsBeidou());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_QZSS, 1).IsQzss());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_NAVIC, 1).IsNavic());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_LOCATA, 1).IsLocata());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_LOCATA, 1).IsBeidou());
}

TEST(SatID, Beidou3)
{
    EXPECT_FALSE(Sat(ZELSATSYSTEM_BEIDOU, 18).IsBeidou3());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_BEIDOU, 19).IsBeidou3());
    EXPECT_TRUE(Sat(ZELSATSYSTEM_BEIDOU, 63).IsBeidou3());
    EXPECT_FALSE(Sat(ZELSATSYSTEM_GPS, 19).IsBeidou3());
}

TEST(SatID, GeoAndIgsoOfBeidou)
{
    CRecorder stRec;
    const std::set<int> setGeo = {1, 2, 3, 4, 5, 59, 60, 61};
    const std::set<int> setIgso = {6, 7, 8, 9, 10, 13, 16, 38, 39, 40};
    for (int iNb = 0; iNb <= 70; ++iNb)
    {
        const SZelSatID stSat = Sat(ZELSATSYSTEM_BEIDOU, iNb);
        EXPECT_EQ(setGeo.count(iNb) == 1, stSat.IsGeo()) << iNb;
        EXPECT_EQ(setIgso.count(iNb) == 1, stSat.IsIgso()) << iNb;
        EXPECT_EQ(setGeo.count(iNb) + setIgso.count(iNb) == 1, stSat.IsGeoOrIgso()) << iNb;
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(SatID, GeoAndIgsoOfQzssAndNavic)
{
    CRecorder stRec;
    for (int iNb = 1; iNb <= 10; ++iNb)
    {
        const SZelSatID stSat = Sat(ZELSATSYSTEM_QZSS, iNb);
        EXPECT_EQ(iNb == 7, stSat.IsGeo()) << iNb;
        EXPECT_EQ(iNb != 7, stSat.IsIgso()) << iNb;
        EXPECT_TRUE(stSat.IsGeoOrIgso());
    }
    for (int iNb = 1; iNb <= 9; ++iNb)
    {
        const SZelSatID stSat = Sat(ZELSATSYSTEM_NAVIC, iNb);
        const bool bGeo = iNb == 3 || iNb == 6 || iNb == 7;
        EXPECT_EQ(bGeo, stSat.IsGeo()) << iNb;
        EXPECT_EQ(!bGeo, stSat.IsIgso()) << iNb;
    }
    const EZelSatSystem aeOthers[] = {ZELSATSYSTEM_GPS, ZELSATSYSTEM_GLONASS, ZELSATSYSTEM_GALILEO,
                                      ZELSATSYSTEM_SBAS, ZELSATSYSTEM_LOCATA};
    for (const EZelSatSystem eSys : aeOthers)
    {
        EXPECT_FALSE(Sat(eSys, 7).IsGeo());
        EXPECT_FALSE(Sat(eSys, 7).IsIgso());
        EXPECT_FALSE(Sat(eSys, 3).IsGeoOrIgso());
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(SatID, GeoOfUnknownSystemReports)
{
    CRecorder stRec;
    EXPECT_FALSE(Sat(ZELSATSYSTEM_NONE, 7).IsGeo());
    EXPECT_FALSE(Sat(c_eSys9, 7).IsIgso());
    ASSERT_EQ(2u, stRec.Count());
    EXPECT_EQ("!\"unknown satellite system\"", stRec.Texts()[0]);
    EXPECT_EQ("!\"unknown satellite system\"", stRec.Texts()[1]);
    stRec.Clear();
    EXPECT_FALSE(Sat(c_eSys9, 1).IsGeoOrIgso());
    EXPECT_EQ(2u, stRec.Count("!\"unknown satellite system\""));
}

// ---------------------------------------------------------------------------
// Binary forms
// ---------------------------------------------------------------------------

namespace
{

using ZelTest::CImage;

// The identifier family: a sample of each, its golden image from the offset
// table, its line, its stated size and where a satellite's image stands in
// it (-1: none).
template <class R> struct SIdCase;

template <> struct SIdCase<SZelSatID>
{
    static SZelSatID Sample() { return ZelSample::SatId(); }
    // System at 0, number at 4, three filling bytes written as zero.
    static ZelTest::Bytes Golden() { return CImage().At(0).I32(5).At(4).U8(19).At(5).Zero(3).Get(); }
    static constexpr const char* c_szLine = "C19";
    static constexpr uint64_t c_ulSize = 8;
    static constexpr ZelTest::ECountRule c_eCount = ZelTest::eCOUNT_CLEARED;
    static constexpr int c_iSatAt = 0;
};

template <> struct SIdCase<SZelFrqTMdID>
{
    static SZelFrqTMdID Sample() { return ZelSample::FrqTMdId(); }
    // Group at 0, mode at 4 (Q is 10).
    static ZelTest::Bytes Golden() { return CImage().At(0).I32(3).At(4).I32(10).Get(); }
    static constexpr const char* c_szLine = "3:Q";
    static constexpr uint64_t c_ulSize = 8;
    static constexpr ZelTest::ECountRule c_eCount = ZelTest::eCOUNT_CLEARED;
    static constexpr int c_iSatAt = -1;
};

template <> struct SIdCase<SZelSatFrqID>
{
    static SZelSatFrqID Sample() { return ZelSample::SatFrqId(); }
    // The satellite at 0 (G05), the group at 8.
    static ZelTest::Bytes Golden()
    {
        return CImage().At(0).I32(1).At(4).U8(5).At(5).Zero(3).At(8).I32(2).Get();
    }
    static constexpr const char* c_szLine = "G05:L2";
    static constexpr uint64_t c_ulSize = 12;
    static constexpr ZelTest::ECountRule c_eCount = ZelTest::eCOUNT_KEPT;
    static constexpr int c_iSatAt = 0;
};

template <> struct SIdCase<SZelSysFrqID>
{
    static SZelSysFrqID Sample() { return ZelSample::SysFrqId(); }
    // System at 0, group at 4.
    static ZelTest::Bytes Golden() { return CImage().At(0).I32(3).At(4).I32(6).Get(); }
    static constexpr const char* c_szLine = "E:E6";
    static constexpr uint64_t c_ulSize = 8;
    static constexpr ZelTest::ECountRule c_eCount = ZelTest::eCOUNT_CLEARED;
    static constexpr int c_iSatAt = -1;
};

template <> struct SIdCase<SZelSysFrqTMdGroupID>
{
    static SZelSysFrqTMdGroupID Sample() { return ZelSample::SysFrqTMdGroupId(); }
    // System at 0, group at 4, the mode bits at 8 (C and W).
    static ZelTest::Bytes Golden() { return CImage().At(0).I32(1).At(4).I32(2).At(8).U32(0x804).Get(); }
    static constexpr const char* c_szLine = "G:L2:C|W";
    static constexpr uint64_t c_ulSize = 12;
    static constexpr ZelTest::ECountRule c_eCount = ZelTest::eCOUNT_CLEARED;
    static constexpr int c_iSatAt = -1;
};

template <> struct SIdCase<SZelSatFrqTMdGroupID>
{
    static SZelSatFrqTMdGroupID Sample() { return ZelSample::SatFrqTMdGroupId(); }
    // The satellite at 0 (C61), the group at 8, the mode bits at 12 (P).
    static ZelTest::Bytes Golden()
    {
        return CImage().At(0).I32(5).At(4).U8(61).At(5).Zero(3).At(8).I32(4).At(12).U32(0x100).Get();
    }
    static constexpr const char* c_szLine = "C61:B1C:P";
    static constexpr uint64_t c_ulSize = 16;
    static constexpr ZelTest::ECountRule c_eCount = ZelTest::eCOUNT_KEPT;
    static constexpr int c_iSatAt = 0;
};

template <class R> class IdentifierRecord : public ::testing::Test
{
};
typedef ::testing::Types<SZelSatID, SZelFrqTMdID, SZelSatFrqID, SZelSysFrqID, SZelSysFrqTMdGroupID,
                         SZelSatFrqTMdGroupID>
    IdentifierTypes;
TYPED_TEST_SUITE(IdentifierRecord, IdentifierTypes);

// The records holding a satellite.
template <class R> class SatelliteKey : public ::testing::Test
{
};
typedef ::testing::Types<SZelSatID, SZelSatFrqID, SZelSatFrqTMdGroupID> SatelliteKeyTypes;
TYPED_TEST_SUITE(SatelliteKey, SatelliteKeyTypes);

} // namespace

TYPED_TEST(IdentifierRecord, GoldenImage)
{
    typedef SIdCase<TypeParam> Case;
    ZelTest::SCoreRules stRules;
    stRules.eCountRule = Case::c_eCount;
    ZelTest::ExpectCoreImage(Case::Sample(), Case::Golden(), stRules);
}

TYPED_TEST(IdentifierRecord, SizeIsTheStatedConstant)
{
    typedef SIdCase<TypeParam> Case;
    EXPECT_EQ(Case::c_ulSize, TypeParam().getSize());
    EXPECT_EQ(Case::c_ulSize, Case::Sample().getSize());
}

TYPED_TEST(IdentifierRecord, Line)
{
    ZelTest::ExpectTextExact(SIdCase<TypeParam>::Sample(), SIdCase<TypeParam>::c_szLine);
}

TYPED_TEST(IdentifierRecord, InequalityAndOrderAgainstTheDefault)
{
    const TypeParam stSample = SIdCase<TypeParam>::Sample();
    EXPECT_TRUE(stSample != TypeParam());
    EXPECT_FALSE(stSample != stSample);
    EXPECT_TRUE(TypeParam() < stSample);
    EXPECT_FALSE(stSample < TypeParam());
    EXPECT_FALSE(stSample < stSample);
}

// Whatever a reader takes writes back the same bytes, the filling bytes of
// a satellite as zero; a buffer shorter than the image is refused.
TYPED_TEST(IdentifierRecord, RandomImagesReadBackTheirBytes)
{
    typedef SIdCase<TypeParam> Case;
    std::mt19937 stGen(12345);
    for (int iRound = 0; iRound < 500; ++iRound)
    {
        const size_t ulLength = stGen() % 20;
        std::vector<unsigned char> vec(ulLength);
        for (auto& ruc : vec)
        {
            ruc = static_cast<unsigned char>(stGen());
        }
        TypeParam stRead;
        uint64_t ulOffset = 0;
        const bool bRead = stRead.loadData(vec.data(), vec.size(), &ulOffset);
        EXPECT_EQ(ulLength >= Case::c_ulSize, bRead);
        if (!bRead)
        {
            continue;
        }
        std::vector<unsigned char> vecOut(Case::c_ulSize, 0xEE);
        EXPECT_TRUE(stRead.saveData(vecOut.data(), vecOut.size(), &ulOffset));
        for (size_t ulIdx = 0; ulIdx < vecOut.size(); ++ulIdx)
        {
            const bool bFilling = Case::c_iSatAt >= 0 && ulIdx >= static_cast<size_t>(Case::c_iSatAt) + 5 &&
                                  ulIdx < static_cast<size_t>(Case::c_iSatAt) + 8;
            EXPECT_EQ(bFilling ? 0 : vec[ulIdx], vecOut[ulIdx]) << ulIdx;
        }
        // Whatever was read must be usable.
        (void)stRead.isValid();
        (void)ToText(stRead);
    }
}

// The filling bytes of a satellite are passed over by the reader.
TYPED_TEST(SatelliteKey, ReaderIgnoresFillingBytes)
{
    typedef SIdCase<TypeParam> Case;
    ZelTest::Bytes vecImage = Case::Golden();
    for (size_t ulIdx = 5; ulIdx < 8; ++ulIdx)
    {
        vecImage[ulIdx] = 0xAB;
    }
    TypeParam stRead;
    uint64_t ulOffset = 0;
    EXPECT_TRUE(stRead.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(Case::Sample(), stRead);
    EXPECT_EQ(Case::c_ulSize, ulOffset);
}

TEST(Binary, SatIDReaderIgnoresFillingBytes)
{
    const ZelTest::Bytes vecImage = CImage().At(0).I32(2).At(4).U8(24).At(5).Fill(3, 0xAB).Get();
    SZelSatID stSat;
    uint64_t ulOffset = 0;
    EXPECT_TRUE(stSat.loadData(vecImage.data(), vecImage.size(), &ulOffset));
    EXPECT_EQ(Sat(ZELSATSYSTEM_GLONASS, 24), stSat);
    EXPECT_EQ(8u, ulOffset);
}

// ---------------------------------------------------------------------------
// Text forms
// ---------------------------------------------------------------------------

TEST(Text, SatIDWriting)
{
    EXPECT_EQ("G05", ToText(Sat(ZELSATSYSTEM_GPS, 5)));
    EXPECT_EQ("R24", ToText(Sat(ZELSATSYSTEM_GLONASS, 24)));
    EXPECT_EQ("C63", ToText(Sat(ZELSATSYSTEM_BEIDOU, 63)));
    EXPECT_EQ("L140", ToText(Sat(ZELSATSYSTEM_LOCATA, 140)));
    EXPECT_EQ("N00", ToText(SZelSatID()));
    // The fill character stays at '0'.
    std::ostringstream oss;
    oss << Sat(ZELSATSYSTEM_GPS, 1) << ' ' << std::setw(3) << 7;
    EXPECT_EQ("G01 007", oss.str());
}

TEST(Text, SatIDWritingIgnoresLeftAdjustment)
{
    // A caller's column layout must not move the leading zero behind the digit.
    std::ostringstream oss;
    oss << std::left << std::setw(10) << "sat" << Sat(ZELSATSYSTEM_GPS, 5) << ' '
        << Sat(ZELSATSYSTEM_GALILEO, 11);
    EXPECT_EQ("sat       G05 E11", oss.str());
}

TEST(Text, SatIDReading)
{
    CRecorder stRec;
    SZelSatID stA, stB;
    std::istringstream issA("G7");
    std::istringstream issB("G07");
    issA >> stA;
    issB >> stB;
    EXPECT_EQ(Sat(ZELSATSYSTEM_GPS, 7), stA);
    EXPECT_EQ(stA, stB);
    EXPECT_FALSE(issB.fail());

    std::istringstream issList(" C63, E01");
    SZelSatID stC, stE;
    char cComma = 0;
    issList >> stC >> cComma >> stE;
    EXPECT_EQ(Sat(ZELSATSYSTEM_BEIDOU, 63), stC);
    EXPECT_EQ(Sat(ZELSATSYSTEM_GALILEO, 1), stE);
    EXPECT_EQ(0u, stRec.Count());

    // An unknown letter reports and gives system 9.
    std::istringstream issBad("X12");
    SZelSatID stBad;
    issBad >> stBad;
    EXPECT_EQ(Sat(c_eSys9, 12), stBad);
    EXPECT_EQ(1u, stRec.Count("false"));

    // A cut text fails the stream and keeps the fields that were not reached.
    SZelSatID stCut = Sat(ZELSATSYSTEM_GPS, 9);
    std::istringstream issCut("R");
    issCut >> stCut;
    EXPECT_TRUE(issCut.fail());
    EXPECT_EQ(Sat(ZELSATSYSTEM_GLONASS, 9), stCut);
}

TEST(Text, SatIDRoundTripOverAllValid)
{
    for (int iGlobal = 1; iGlobal <= 234; ++iGlobal)
    {
        const SZelSatID stSat = FromGlobalSatNumber(static_cast<uint8_t>(iGlobal));
        std::istringstream iss(ToText(stSat));
        SZelSatID stRead;
        iss >> stRead;
        EXPECT_EQ(stSat, stRead);
    }
}

TEST(Text, FrqTMdID)
{
    CRecorder stRec;
    EXPECT_EQ("1:C", ToText(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C)));
    EXPECT_EQ("5:X", ToText(SZelFrqTMdID(ZELFREQUENCY_GROUP_5, ZELTRACKMODE_X)));
    std::istringstream iss("3:Q");
    SZelFrqTMdID stRead;
    iss >> stRead;
    EXPECT_EQ(SZelFrqTMdID(ZELFREQUENCY_GROUP_3, ZELTRACKMODE_Q), stRead);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(Text, SatFrqID)
{
    CRecorder stRec;
    EXPECT_EQ("G05:L1", ToText(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_1)));
    EXPECT_EQ("E11:E5ab", ToText(SZelSatFrqID(Sat(ZELSATSYSTEM_GALILEO, 11), ZELFREQUENCY_GROUP_5)));
    EXPECT_EQ("C20:B1C", ToText(SZelSatFrqID(Sat(ZELSATSYSTEM_BEIDOU, 20), ZELFREQUENCY_GROUP_4)));
    // A group that the catalogue lacks is "iv".
    EXPECT_EQ("G05:iv", ToText(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_6)));
    EXPECT_EQ("L01:iv", ToText(SZelSatFrqID(Sat(ZELSATSYSTEM_LOCATA, 1), ZELFREQUENCY_GROUP_1)));
    EXPECT_EQ(0u, stRec.Count());

    std::istringstream iss("E11:E5ab");
    SZelSatFrqID stRead;
    iss >> stRead;
    EXPECT_EQ(SZelSatFrqID(Sat(ZELSATSYSTEM_GALILEO, 11), ZELFREQUENCY_GROUP_5), stRead);
    EXPECT_FALSE(iss.fail());

    // A name that is not found gives group 0.
    std::istringstream issUnknown("G05:E6");
    SZelSatFrqID stUnknown(Sat(ZELSATSYSTEM_SBAS, 1), ZELFREQUENCY_GROUP_3);
    issUnknown >> stUnknown;
    EXPECT_EQ(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_NONE), stUnknown);
    EXPECT_EQ(0u, stRec.Count());

    // A fifth alphanumeric character makes it fail.
    std::istringstream issLong("G05:L1CAX");
    SZelSatFrqID stLong;
    issLong >> stLong;
    EXPECT_TRUE(issLong.fail());
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, stLong.eFrqGrp);
}

TEST(Text, SysFrqID)
{
    CRecorder stRec;
    EXPECT_EQ("G:L2", ToText(SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_2)));
    EXPECT_EQ("R:G3", ToText(SZelSysFrqID(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_GROUP_3)));
    EXPECT_EQ("I:iv", ToText(SZelSysFrqID(ZELSATSYSTEM_NAVIC, ZELFREQUENCY_GROUP_1)));
    std::istringstream iss("C:B2a");
    SZelSysFrqID stRead;
    iss >> stRead;
    EXPECT_EQ(SZelSysFrqID(ZELSATSYSTEM_BEIDOU, ZELFREQUENCY_GROUP_5), stRead);
    EXPECT_EQ(0u, stRec.Count());
    // An unknown system: the letter reports and the catalogue finds no name.
    EXPECT_EQ("?:iv", ToText(SZelSysFrqID(c_eSys9, ZELFREQUENCY_GROUP_1)));
    EXPECT_EQ(1u, stRec.Count("false"));
}

TEST(Text, TrackModeSets)
{
    CRecorder stRec;
    std::ostringstream oss;
    WriteTMdGroups(oss, ToTMdGroup(ZELTRACKMODE_W) | ToTMdGroup(ZELTRACKMODE_C));
    EXPECT_EQ("C|W", oss.str());
    oss.str("");
    WriteTMdGroups(oss, 0);
    EXPECT_EQ("U", oss.str());
    oss.str("");
    WriteTMdGroups(oss, 32767);
    EXPECT_EQ("A|B|C|D|I|L|M|N|P|Q|S|W|X|Y|Z", oss.str());
    EXPECT_EQ(0u, stRec.Count());

    uint32_t ebf = 0;
    std::istringstream iss("C|W");
    ReadTMdGroups(iss, ebf);
    EXPECT_EQ(ToTMdGroup(ZELTRACKMODE_C) | ToTMdGroup(ZELTRACKMODE_W), ebf);
    EXPECT_FALSE(iss.fail());

    // Whitespace is skipped; the first non-letter ends the set and stays.
    std::istringstream issNext(" X | Q, Next");
    ReadTMdGroups(issNext, ebf);
    EXPECT_EQ(ToTMdGroup(ZELTRACKMODE_X) | ToTMdGroup(ZELTRACKMODE_Q), ebf);
    EXPECT_EQ(',', issNext.peek());

    // A letter that maps to 0 empties the set and ends the reading.
    std::istringstream issU("C|U|W");
    ReadTMdGroups(issU, ebf);
    EXPECT_EQ(0u, ebf);
    EXPECT_EQ('|', issU.peek());
    EXPECT_EQ(0u, stRec.Count());
    std::istringstream issE("C|E");
    ReadTMdGroups(issE, ebf);
    EXPECT_EQ(0u, ebf);
    EXPECT_EQ(1u, stRec.Count("false"));

    // No letter at all fails the stream and keeps the value.
    ebf = 5;
    std::istringstream issEmpty("  ");
    ReadTMdGroups(issEmpty, ebf);
    EXPECT_TRUE(issEmpty.fail());
    EXPECT_EQ(5u, ebf);
}

TEST(Text, SystemSets)
{
    CRecorder stRec;
    std::ostringstream oss;
    WriteSatSystems(oss, 7);
    EXPECT_EQ("G|R|E", oss.str());
    oss.str("");
    WriteSatSystems(oss, 0);
    EXPECT_EQ("N", oss.str());
    oss.str("");
    WriteSatSystems(oss, 0xFF);
    EXPECT_EQ("G|R|E|S|C|J|I|L", oss.str());

    uint32_t ebf = 0;
    std::istringstream iss("G|R|E");
    ReadSatSystems(iss, ebf);
    EXPECT_EQ(7u, ebf);
    EXPECT_FALSE(iss.fail());
    // An unknown letter sets no bit; N sets none.
    std::istringstream issOdd("C|X|N|J, rest");
    ReadSatSystems(issOdd, ebf);
    EXPECT_EQ(16u | 32u, ebf);
    EXPECT_EQ(',', issOdd.peek());
    std::istringstream issN("N");
    ReadSatSystems(issN, ebf);
    EXPECT_EQ(0u, ebf);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(Text, SysFrqTMdGroupIDBadSystemOrName)
{
    CRecorder stRec;
    // N gives system 0: "false", and the rest stays unread.
    std::istringstream issN("N:L1:C");
    SZelSysFrqTMdGroupID stRead(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_3, 7);
    issN >> stRead;
    EXPECT_EQ(ZELSATSYSTEM_NONE, stRead.eSatSystem);
    EXPECT_EQ(ZELFREQUENCY_GROUP_3, stRead.eFrqGrp);
    EXPECT_EQ(7u, stRead.ebfTMdGrps);
    EXPECT_EQ(1u, stRec.Count("false"));
    EXPECT_EQ(1u, stRec.Count());

    // A name the system lacks: "false".
    stRec.Clear();
    std::istringstream issName("R:L1:C");
    SZelSysFrqTMdGroupID stName;
    issName >> stName;
    EXPECT_EQ(ZELSATSYSTEM_GLONASS, stName.eSatSystem);
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, stName.eFrqGrp);
    EXPECT_EQ(0u, stName.ebfTMdGrps);
    EXPECT_EQ(1u, stRec.Count("false"));
    EXPECT_EQ(1u, stRec.Count());
    EXPECT_TRUE(issName.fail());

    // An unknown letter reports in the conversion and in the reader.
    stRec.Clear();
    std::istringstream issX("X:L1:C");
    SZelSysFrqTMdGroupID stX;
    issX >> stX;
    EXPECT_EQ(2u, stRec.Count("false"));
}

TEST(Text, SatFrqTMdGroupID)
{
    CRecorder stRec;
    const SZelSatFrqTMdGroupID stID(Sat(ZELSATSYSTEM_GALILEO, 3), ZELFREQUENCY_GROUP_6,
                                    ToTMdGroup(ZELTRACKMODE_B) | ToTMdGroup(ZELTRACKMODE_C));
    EXPECT_EQ("E03:E6:B|C", ToText(stID));
    EXPECT_EQ("G05:L1:U", ToText(SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_1, 0u)));
    std::istringstream iss("E03:E6:B|C");
    SZelSatFrqTMdGroupID stRead;
    iss >> stRead;
    EXPECT_EQ(stID, stRead);
    EXPECT_FALSE(iss.fail());
    EXPECT_EQ(0u, stRec.Count());

    // As part of a tagged line: the position stays right.
    std::istringstream issLine("SigId, C19:B1C:P, Bias, 1.5");
    SZelSatFrqTMdGroupID stSig;
    double dBias = 0.0;
    ZelIo::CTextReader(issLine).Tag("SigId, ").Value(stSig).Tag(", Bias, ").Value(dBias);
    EXPECT_EQ(SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_BEIDOU, 19), ZELFREQUENCY_GROUP_4, ZELTRACKMODE_P),
              stSig);
    EXPECT_EQ(1.5, dBias);

    // A system outside 1 to 8: "false", and the rest stays unread.
    std::istringstream issBad("N01:L1:C");
    SZelSatFrqTMdGroupID stBad;
    issBad >> stBad;
    EXPECT_EQ(Sat(ZELSATSYSTEM_NONE, 1), stBad.stSatID);
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, stBad.eFrqGrp);
    EXPECT_EQ(1u, stRec.Count("false"));
}

namespace
{

// A record read without failure writes a text that reads back to it.
template <class R> void ExpectRoundTrip(const std::string& strText)
{
    std::istringstream iss(strText);
    R stRead;
    iss >> stRead;
    const std::string strWritten = ToText(stRead);
    if (iss.fail())
    {
        return;
    }
    std::istringstream issAgain(strWritten);
    R stAgain;
    issAgain >> stAgain;
    EXPECT_FALSE(issAgain.fail()) << strText << " -> " << strWritten;
    EXPECT_TRUE(stAgain == stRead) << strText << " -> " << strWritten;
}

} // namespace

TEST(Text, CutTextsFailTheStream)
{
    const std::string astrFull[] = {"G05:L1:C|W", "E03:E5ab:Q", "C63:B1C:A|X", "R24:G2:P", "S20:L5:I"};
    for (const std::string& rstrFull : astrFull)
    {
        const size_t ulLastColon = rstrFull.rfind(':');
        for (size_t ulCut = 0; ulCut <= rstrFull.size(); ++ulCut)
        {
            std::istringstream iss(rstrFull.substr(0, ulCut));
            SZelSatFrqTMdGroupID stRead;
            iss >> stRead;
            EXPECT_EQ(ulCut <= ulLastColon + 1, iss.fail()) << rstrFull.substr(0, ulCut);
        }
        std::istringstream issFull(rstrFull);
        SZelSatFrqTMdGroupID stFull;
        issFull >> stFull;
        EXPECT_EQ(rstrFull, ToText(stFull));
    }
}

TEST(Text, RandomTextsReadBackWhatTheyWrite)
{
    std::mt19937 stGen(777);
    const std::string strAlphabet = "GRECSJILNUX0123456789:|, ABCDPQWZ15";
    for (int iRound = 0; iRound < 1000; ++iRound)
    {
        std::string strText;
        const size_t ulLength = stGen() % 16;
        for (size_t ulIdx = 0; ulIdx < ulLength; ++ulIdx)
        {
            strText += strAlphabet[stGen() % strAlphabet.size()];
        }
        ExpectRoundTrip<SZelSatID>(strText);
        ExpectRoundTrip<SZelSatFrqID>(strText);
        ExpectRoundTrip<SZelSysFrqID>(strText);
        ExpectRoundTrip<SZelSysFrqTMdGroupID>(strText);
        ExpectRoundTrip<SZelSatFrqTMdGroupID>(strText);
        uint32_t ebf = 0;
        std::istringstream issSys(strText);
        ReadSatSystems(issSys, ebf);
        EXPECT_EQ(0u, ebf & ~0xFFu);
    }
}

// ---------------------------------------------------------------------------
// Other identifiers
// ---------------------------------------------------------------------------

TEST(Identifiers, Defaults)
{
    EXPECT_EQ(SZelFrqTMdID(ZELFREQUENCY_GROUP_NONE, ZELTRACKMODE_UNKNOWN), SZelFrqTMdID());
    EXPECT_EQ(SZelSatFrqID(SZelSatID(), ZELFREQUENCY_GROUP_NONE), SZelSatFrqID());
    EXPECT_EQ(SZelSysFrqID(ZELSATSYSTEM_NONE, ZELFREQUENCY_GROUP_NONE), SZelSysFrqID());
    EXPECT_EQ(SZelSysFrqTMdGroupID(ZELSATSYSTEM_NONE, ZELFREQUENCY_GROUP_NONE, 0u), SZelSysFrqTMdGroupID());
    EXPECT_EQ(SZelSatFrqTMdGroupID(SZelSatID(), ZELFREQUENCY_GROUP_NONE, 0u), SZelSatFrqTMdGroupID());
}

TEST(Identifiers, Validity)
{
    CRecorder stRec;
    EXPECT_TRUE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_A).isValid());
    EXPECT_TRUE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_Z).isValid());
    EXPECT_FALSE(SZelFrqTMdID(ZELFREQUENCY_GROUP_NONE, ZELTRACKMODE_C).isValid());
    EXPECT_FALSE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_UNKNOWN).isValid());
    EXPECT_FALSE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_ALL).isValid());

    EXPECT_TRUE(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_1).isValid());
    EXPECT_FALSE(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 33), ZELFREQUENCY_GROUP_1).isValid());
    EXPECT_FALSE(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 5), ZELFREQUENCY_GROUP_NONE).isValid());

    EXPECT_TRUE(SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1).isValid());
    EXPECT_TRUE(SZelSysFrqID(ZELSATSYSTEM_LOCATA, ZELFREQUENCY_GROUP_2).isValid());
    EXPECT_FALSE(SZelSysFrqID(ZELSATSYSTEM_NONE, ZELFREQUENCY_GROUP_1).isValid());
    EXPECT_FALSE(SZelSysFrqID(c_eSys9, ZELFREQUENCY_GROUP_1).isValid());
    EXPECT_FALSE(SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_NONE).isValid());

    const uint32_t ebfCW = ToTMdGroup(ZELTRACKMODE_C) | ToTMdGroup(ZELTRACKMODE_W);
    EXPECT_TRUE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_2, ebfCW).isValid());
    EXPECT_TRUE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, ebfCW).isValid());
    // Y is on no GPS frequency; group 6 is not a GPS group; GLONASS G1 has no W.
    EXPECT_FALSE(
        SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, ToTMdGroup(ZELTRACKMODE_Y)).isValid());
    EXPECT_FALSE(
        SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_6, ToTMdGroup(ZELTRACKMODE_C)).isValid());
    EXPECT_FALSE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_GROUP_1, ebfCW).isValid());
    EXPECT_FALSE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_LOCATA, ZELFREQUENCY_GROUP_1, 0u).isValid());
    EXPECT_FALSE(SZelSysFrqTMdGroupID(c_eSys9, ZELFREQUENCY_GROUP_1, 0u).isValid());
    EXPECT_FALSE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_NONE, 0u).isValid());

    EXPECT_TRUE(
        SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_2, ZELTRACKMODE_L).isValid());
    EXPECT_TRUE(
        SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_QZSS, 7), ZELFREQUENCY_GROUP_1, ZELTRACKMODE_Z).isValid());
    EXPECT_FALSE(
        SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_1, ZELTRACKMODE_Z).isValid());
    EXPECT_FALSE(
        SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 40), ZELFREQUENCY_GROUP_2, ZELTRACKMODE_L).isValid());
    EXPECT_FALSE(
        SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_6, ZELTRACKMODE_C).isValid());
    // No mode at all is the default track mode of the group.
    EXPECT_TRUE(SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_2, 0u).isValid());
    EXPECT_EQ(0u, stRec.Count());
}

TEST(Identifiers, EqualityAndOrder)
{
    const SZelSatFrqTMdGroupID stA(Sat(ZELSATSYSTEM_GPS, 2), ZELFREQUENCY_GROUP_2, 1u);
    const SZelSatFrqTMdGroupID stB(Sat(ZELSATSYSTEM_GPS, 2), ZELFREQUENCY_GROUP_2, 2u);
    const SZelSatFrqTMdGroupID stC(Sat(ZELSATSYSTEM_GPS, 2), ZELFREQUENCY_GROUP_3, 1u);
    const SZelSatFrqTMdGroupID stD(Sat(ZELSATSYSTEM_GPS, 3), ZELFREQUENCY_GROUP_1, 1u);
    EXPECT_TRUE(stA < stB && stB < stC && stC < stD);
    EXPECT_FALSE(stB < stA);
    EXPECT_TRUE(stA != stB);
    EXPECT_TRUE(stA == SZelSatFrqTMdGroupID(Sat(ZELSATSYSTEM_GPS, 2), ZELFREQUENCY_GROUP_2, 1u));

    EXPECT_TRUE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_3, 1u) <
                SZelSysFrqTMdGroupID(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_GROUP_1, 1u));
    EXPECT_TRUE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, 4u) <
                SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_2, 1u));
    EXPECT_TRUE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, 1u) <
                SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, 4u));
    EXPECT_TRUE(SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, 1u) !=
                SZelSysFrqTMdGroupID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1, 4u));

    EXPECT_TRUE(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_5) <
                SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 2), ZELFREQUENCY_GROUP_1));
    EXPECT_TRUE(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_1) <
                SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_2));
    EXPECT_TRUE(SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_1) !=
                SZelSatFrqID(Sat(ZELSATSYSTEM_GPS, 1), ZELFREQUENCY_GROUP_2));

    EXPECT_TRUE(SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_6) <
                SZelSysFrqID(ZELSATSYSTEM_GLONASS, ZELFREQUENCY_GROUP_1));
    EXPECT_TRUE(SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1) <
                SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_2));
    EXPECT_TRUE(SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_1) !=
                SZelSysFrqID(ZELSATSYSTEM_GPS, ZELFREQUENCY_GROUP_2));

    EXPECT_TRUE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_Z) <
                SZelFrqTMdID(ZELFREQUENCY_GROUP_2, ZELTRACKMODE_A));
    EXPECT_TRUE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_A) <
                SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_B));
    EXPECT_TRUE(SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_A) !=
                SZelFrqTMdID(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_B));
}

TEST(Identifiers, SatFrqTMdGroupIDConstructors)
{
    const SZelSatID stSat = Sat(ZELSATSYSTEM_GPS, 4);
    const SZelSatFrqTMdGroupID stByBits(stSat, ZELFREQUENCY_GROUP_2, 0x800u);
    const SZelSatFrqTMdGroupID stByMode(stSat, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_W);
    const SZelSatFrqTMdGroupID stByKey(stSat, SZelFrqTMdID(ZELFREQUENCY_GROUP_2, ZELTRACKMODE_W));
    EXPECT_EQ(0x800u, stByMode.ebfTMdGrps);
    EXPECT_EQ(stByBits, stByMode);
    EXPECT_EQ(stByBits, stByKey);
    EXPECT_EQ(32767u, SZelSatFrqTMdGroupID(stSat, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_ALL).ebfTMdGrps);
}

TEST(Identifiers, ToTrackMode)
{
    CRecorder stRec;
    std::ostringstream ossOut;
    std::streambuf* pOld = std::cout.rdbuf(ossOut.rdbuf());
    const SZelSatID stSat = Sat(ZELSATSYSTEM_GPS, 4);
    const EZelTrackMode eSingle =
        SZelSatFrqTMdGroupID(stSat, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_P).ToTrackMode();
    const EZelTrackMode eNone = SZelSatFrqTMdGroupID(stSat, ZELFREQUENCY_GROUP_1, 0u).ToTrackMode();
    const std::string strQuiet = ossOut.str();
    const size_t ulQuietReports = stRec.Count();
    const EZelTrackMode eTwo = SZelSatFrqTMdGroupID(stSat, ZELFREQUENCY_GROUP_1,
                                                    ToTMdGroup(ZELTRACKMODE_P) | ToTMdGroup(ZELTRACKMODE_W))
                                   .ToTrackMode();
    std::cout.rdbuf(pOld);

    EXPECT_EQ(ZELTRACKMODE_P, eSingle);
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, eNone);
    EXPECT_EQ("", strQuiet);
    EXPECT_EQ(0u, ulQuietReports);
    EXPECT_EQ(ZELTRACKMODE_UNKNOWN, eTwo);
    EXPECT_EQ("Narrowing transformation. Here is a need to change the code!", ossOut.str());
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("false", stRec.Texts()[0]);
}
