#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include "ZelTestHooks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
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

// ---------------------------------------------------------------------------
// The tables as they are written down, parsed from their written form.
// ---------------------------------------------------------------------------

int ModeOf(char c)
{
    const char* szLetters = "UABCDILMNPQSWXYZ";
    const char* p = std::strchr(szLetters, c);
    return p != nullptr ? static_cast<int>(p - szLetters) : -100;
}

int ComponentOf(char c)
{
    const char* szLetters = "UIQXDPZ";
    const char* p = std::strchr(szLetters, c);
    return p != nullptr ? static_cast<int>(p - szLetters) - 1 : -100;
}

uint32_t BitOfMode(int iMode)
{
    return 1u << (iMode - 1);
}

std::string Spaced(std::string str)
{
    std::replace(str.begin(), str.end(), ';', ' ');
    std::replace(str.begin(), str.end(), ':', ' ');
    return str;
}

struct SExpRow
{
    int iMode;
    int iComponent;
    int iFrq;
};

// "C I 1; N U 2; ..."
std::vector<SExpRow> ParseRows(const std::string& strRows)
{
    std::vector<SExpRow> vecRows;
    std::istringstream iss(Spaced(strRows));
    char cMode = 0, cComp = 0;
    int iFrq = 0;
    while (iss >> cMode >> cComp >> iFrq)
    {
        vecRows.push_back({ModeOf(cMode), ComponentOf(cComp), iFrq});
    }
    return vecRows;
}

// "C; P W; L S X"
std::vector<uint32_t> ParseDcb(const std::string& strDcb)
{
    std::vector<uint32_t> vecGroups;
    std::istringstream iss(strDcb);
    std::string strGroup;
    while (std::getline(iss, strGroup, ';'))
    {
        uint32_t ebf = 0;
        for (const char c : strGroup)
        {
            if (c != ' ')
            {
                ebf |= BitOfMode(ModeOf(c));
            }
        }
        vecGroups.push_back(ebf);
    }
    return vecGroups;
}

struct SExpDef
{
    int iFrq;
    int iGroup;
    int iMode;
};

// "1: 1 C; 2: 1 W"
std::vector<SExpDef> ParseDefaults(const std::string& strDefs)
{
    std::vector<SExpDef> vecDefs;
    std::istringstream iss(Spaced(strDefs));
    int iFrq = 0, iGroup = 0;
    char cMode = 0;
    while (iss >> iFrq >> iGroup >> cMode)
    {
        vecDefs.push_back({iFrq, iGroup, ModeOf(cMode)});
    }
    return vecDefs;
}

struct SExpFrq
{
    const char* szName;
    int iGroup;
    char cDefault;
    const char* szDcb;
    const char* szRows;
};

struct SExpSys
{
    EZelSatSystem eSys;
    int iMaxSys;
    EZelSatSystem eBase;
    int iMaxBase;
    std::vector<SExpFrq> vecFrqs;
    const char* szDefaults;
};

const char* c_szL5Rows = "I I 5; Q Q 5; X X 5";

std::vector<SExpSys> ExpectedSystems()
{
    return {{ZELSATSYSTEM_NONE, 0, ZELSATSYSTEM_NONE, 0, {}, ""},
            {ZELSATSYSTEM_GPS,
             32,
             ZELSATSYSTEM_GPS,
             42,
             {{"L1", 1, 'C', "C; P W; L S X", "C I 1; N U 2; P Q 2; W Q 2; L P 6; S D 6; X Z 6"},
              {"L2", 2, 'W', "D P W; C L S X", "P I 4; W I 4; D I 4; N U 4; C Q 3; L Q 3; S Q 3; X Q 3"},
              {"L5", 3, 'Q', "I; X; Q", c_szL5Rows}},
             "1: 1 C; 2: 1 W; 3: 2 S; 4: 2 W; 5: 3 Q; 6: 1 L"},
            {ZELSATSYSTEM_GLONASS,
             24,
             ZELSATSYSTEM_GLONASS,
             24,
             {{"G1", 1, 'C', "C; P", "C I 1; P Q 2"},
              {"G2", 2, 'P', "C; P", "C I 3; P Q 4"},
              {"G3", 3, 'Q', "I; X; Q", c_szL5Rows}},
             "1: 1 C; 2: 1 P; 3: 2 C; 4: 2 P; 5: 3 Q"},
            {ZELSATSYSTEM_GALILEO,
             36,
             ZELSATSYSTEM_GALILEO,
             36,
             {{"E1", 1, 'C', "A B C X Z", "B D 6; C P 6; X Z 6; A Z 6; Z Z 6"},
              {"E6", 6, 'C', "A B C X Z", "B I 10; C Q 10; X X 10; A X 10; Z X 10"},
              {"E5b", 4, 'Q', "I Q X", "I D 8; Q P 8; X Z 8"},
              {"E5ab", 5, 'Q', "I Q X", "I D 9; Q P 9; X Z 9"},
              {"E5a", 3, 'Q', "I Q X", "I D 7; Q P 7; X Z 7"}},
             "6: 1 C; 10: 6 C; 8: 4 Q; 9: 5 Q; 7: 3 Q"},
            {ZELSATSYSTEM_SBAS,
             20,
             ZELSATSYSTEM_SBAS,
             20,
             {{"L1", 1, 'C', "C", "C I 1"}, {"L5", 3, 'I', "I", "I I 5"}},
             "1: 1 C; 5: 3 I"},
            {ZELSATSYSTEM_BEIDOU,
             63,
             ZELSATSYSTEM_BEIDOU,
             63,
             {{"B1", 1, 'I', "I; X; Q", "I I 1; Q Q 2; X X 1"},
              {"B3", 3, 'I', "I; X; Q", "I I 5; Q Q 5; X X 5"},
              {"B2", 2, 'I', "I; X; Q; D; P; Z", "I I 4; Q Q 4; X X 4; D D 3; P P 3; Z Z 3"},
              {"B1C", 4, 'P', "D; P; X; A", "D D 8; P P 8; X Z 8; A Z 8"},
              {"B2a", 5, 'P', "D; P; X", "D D 9; P P 9; X Z 9"}},
             "1: 1 I; 2: 1 Q; 5: 3 I; 4: 2 I; 3: 2 D; 8: 4 P; 9: 5 P"},
            {ZELSATSYSTEM_QZSS,
             10,
             ZELSATSYSTEM_GPS,
             0,
             {{"L1", 1, 'C', "C Z; L S X", "C I 1; L P 6; S D 6; X Z 6; Z X 1"},
              {"L2", 2, 'S', "L S X", "L Q 3; S Q 3; X Q 3"},
              {"L5", 3, 'Q', "I; X; Q", c_szL5Rows}},
             "1: 1 C; 6: 1 L; 3: 2 S; 5: 3 Q"},
            {ZELSATSYSTEM_NAVIC,
             9,
             ZELSATSYSTEM_NAVIC,
             9,
             {{"L5", 3, 'A', "A C X", "A I 5; C I 5; X I 5"}},
             "5: 3 A"},
            {ZELSATSYSTEM_LOCATA, 0, ZELSATSYSTEM_LOCATA, 0, {}, ""}};
}

void CheckFrequencyRow(const SFrqInfo& rFrq, const SExpFrq& rExp)
{
    SCOPED_TRACE(rExp.szName);
    EXPECT_STREQ(rExp.szName, rFrq.szSysFrq);
    EXPECT_EQ(rExp.iGroup, rFrq.eZelFrqGrpID);

    const std::vector<SExpRow> vecRows = ParseRows(rExp.szRows);
    const std::vector<uint32_t> vecDcb = ParseDcb(rExp.szDcb);
    ASSERT_EQ(vecRows.size(), rFrq.ulNbTrackModes);
    ASSERT_EQ(vecDcb.size(), rFrq.ulNbDCBGrps);
    for (size_t ulIdx = 0; ulIdx < vecDcb.size(); ++ulIdx)
    {
        EXPECT_EQ(vecDcb[ulIdx], rFrq.aebfDCBGrps[ulIdx]) << "DCB group " << ulIdx;
    }

    uint32_t ebfUnion = 0;
    int iFrqMin = 11, iFrqMax = 0;
    std::vector<int> vecIdx(16, -1);
    for (size_t ulIdx = 0; ulIdx < vecRows.size(); ++ulIdx)
    {
        const SExpRow& rRow = vecRows[ulIdx];
        const STrackModeInfo& rInfo = rFrq.astTrackModes[ulIdx];
        EXPECT_EQ(rRow.iMode, rInfo.eTrackMode) << "row " << ulIdx;
        EXPECT_EQ(rRow.iComponent, rInfo.eComponent) << "row " << ulIdx;
        EXPECT_EQ(rRow.iFrq, rInfo.eFrq) << "row " << ulIdx;
        // The DCB group is the one that names the mode; N belongs to none.
        int iDcb = -1;
        for (size_t ulDcb = 0; ulDcb < vecDcb.size(); ++ulDcb)
        {
            if ((vecDcb[ulDcb] & BitOfMode(rRow.iMode)) != 0)
            {
                iDcb = static_cast<int>(ulDcb);
            }
        }
        EXPECT_EQ(iDcb, rInfo.lDCBGrpIdx) << "row " << ulIdx;
        if (rRow.iMode == ModeOf('N'))
        {
            EXPECT_EQ(-1, rInfo.lDCBGrpIdx);
        }
        ebfUnion |= BitOfMode(rRow.iMode);
        iFrqMin = std::min(iFrqMin, rRow.iFrq);
        iFrqMax = std::max(iFrqMax, rRow.iFrq);
        vecIdx[static_cast<size_t>(rRow.iMode)] = static_cast<int>(ulIdx);
    }
    vecIdx[0] = vecIdx[static_cast<size_t>(ModeOf(rExp.cDefault))];
    ASSERT_GE(vecIdx[0], 0);
    for (size_t ulMode = 0; ulMode < 16; ++ulMode)
    {
        EXPECT_EQ(vecIdx[ulMode], rFrq.astTrackModeIdx[ulMode]) << "mode " << ulMode;
    }
    EXPECT_EQ(ebfUnion, rFrq.ebfTMdGrps);
    EXPECT_EQ(iFrqMin, rFrq.eFrqMin);
    EXPECT_EQ(iFrqMax, rFrq.eFrqMax);
    // The default track mode.
    ASSERT_NE(nullptr, rFrq.GetTrackModeInfo(ZELTRACKMODE_UNKNOWN));
    EXPECT_EQ(ModeOf(rExp.cDefault), rFrq.GetTrackModeInfo(ZELTRACKMODE_UNKNOWN)->eTrackMode);
}

} // namespace

// ---------------------------------------------------------------------------
// Tables row by row
// ---------------------------------------------------------------------------

TEST(CatalogueTables, FrequencySlots)
{
    EXPECT_EQ(0, ZELFREQUENCY_UNKNOWN);
    EXPECT_EQ(1, ZELFREQUENCY_L1CA);
    EXPECT_EQ(2, ZELFREQUENCY_L1P);
    EXPECT_EQ(3, ZELFREQUENCY_L2C);
    EXPECT_EQ(4, ZELFREQUENCY_L2P);
    EXPECT_EQ(5, ZELFREQUENCY_L5);
    EXPECT_EQ(6, ZELFREQUENCY_L1C);
    EXPECT_EQ(7, ZELFREQUENCY_E5A);
    EXPECT_EQ(8, ZELFREQUENCY_E5B);
    EXPECT_EQ(9, ZELFREQUENCY_E5AB);
    EXPECT_EQ(10, ZELFREQUENCY_E6);
    EXPECT_EQ(11, ZELFREQUENCY_MAX);
    EXPECT_EQ(5u, ulSZFRQ_MAXLGTH);
}

TEST(CatalogueTables, FrequencyGroupOfEachSlot)
{
    CRecorder stRec;
    // Group bits of the first table: 0, 1, 1, 2, 2, 4, 1, 4, 8, 16, 32.
    const uint32_t aulBits[] = {0, 1, 1, 2, 2, 4, 1, 4, 8, 16, 32};
    for (int iFrq = 0; iFrq <= 10; ++iFrq)
    {
        const EZelFrequencyGroup eGrp = getFrequencyGroupIndex(static_cast<EZelFrequency>(iFrq));
        EXPECT_EQ(aulBits[iFrq], ToFrqGroupBit(eGrp)) << iFrq;
    }
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, getFrequencyGroupIndex(ZELFREQUENCY_MAX));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, getFrequencyGroupIndex(static_cast<EZelFrequency>(-1)));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueTables, SystemRows)
{
    CRecorder stRec;
    for (const SExpSys& rExp : ExpectedSystems())
    {
        SCOPED_TRACE(rExp.eSys);
        const SSysInfo& rSys = GetSysInfo(rExp.eSys);
        EXPECT_EQ(rExp.eSys, rSys.eSysID);
        EXPECT_EQ(rExp.iMaxSys, rSys.uiMaxSysSatNb);
        EXPECT_EQ(rExp.eBase, rSys.eBaseSysID);
        EXPECT_EQ(rExp.iMaxBase, rSys.uiMaxBaseSatNb);
        ASSERT_EQ(rExp.vecFrqs.size(), rSys.GetNbFrqs());
        uint32_t ebfGroups = 0;
        std::vector<int64_t> vecGrpIdx(7, -1);
        for (size_t ulIdx = 0; ulIdx < rExp.vecFrqs.size(); ++ulIdx)
        {
            ebfGroups |= 1u << (rExp.vecFrqs[ulIdx].iGroup - 1);
            vecGrpIdx[static_cast<size_t>(rExp.vecFrqs[ulIdx].iGroup)] = static_cast<int64_t>(ulIdx);
            EXPECT_STREQ(rExp.vecFrqs[ulIdx].szName, rSys.astFrqs[ulIdx].szSysFrq);
        }
        EXPECT_EQ(ebfGroups, rSys.ebfFrqGrps);
        for (size_t ulGrp = 0; ulGrp < 7; ++ulGrp)
        {
            EXPECT_EQ(vecGrpIdx[ulGrp], rSys.aulFrqGrpIdx[ulGrp]) << "group " << ulGrp;
        }
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueTables, FrequencyRowsWithDefaultsDcbGroupsAndTrackModes)
{
    CRecorder stRec;
    for (const SExpSys& rExp : ExpectedSystems())
    {
        SCOPED_TRACE(rExp.eSys);
        const SSysInfo& rSys = GetSysInfo(rExp.eSys);
        for (size_t ulIdx = 0; ulIdx < rExp.vecFrqs.size(); ++ulIdx)
        {
            CheckFrequencyRow(rSys.astFrqs[ulIdx], rExp.vecFrqs[ulIdx]);
        }
    }
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueTables, DefaultTable)
{
    CRecorder stRec;
    for (const SExpSys& rExp : ExpectedSystems())
    {
        SCOPED_TRACE(rExp.eSys);
        const SSysInfo& rSys = GetSysInfo(rExp.eSys);
        std::vector<SExpDef> vecAll(11, SExpDef{0, 0, 0});
        for (const SExpDef& rDef : ParseDefaults(rExp.szDefaults))
        {
            vecAll[static_cast<size_t>(rDef.iFrq)] = rDef;
        }
        for (size_t ulFrq = 0; ulFrq < 11; ++ulFrq)
        {
            EXPECT_EQ(vecAll[ulFrq].iGroup, rSys.aeDefFrqIdx[ulFrq].first) << "frequency " << ulFrq;
            EXPECT_EQ(vecAll[ulFrq].iMode, rSys.aeDefFrqIdx[ulFrq].second) << "frequency " << ulFrq;
            const SFrqInfo* pFrq = nullptr;
            const STrackModeInfo* pMode = nullptr;
            const bool bDefault = rSys.GetDefaultSignal(static_cast<EZelFrequency>(ulFrq), pFrq, pMode);
            EXPECT_EQ(vecAll[ulFrq].iGroup != 0, bDefault) << "frequency " << ulFrq;
            if (bDefault)
            {
                ASSERT_NE(nullptr, pFrq);
                ASSERT_NE(nullptr, pMode);
                EXPECT_EQ(vecAll[ulFrq].iGroup, pFrq->eZelFrqGrpID);
                EXPECT_EQ(vecAll[ulFrq].iMode, pMode->eTrackMode);
            }
        }
    }
    EXPECT_EQ(0u, stRec.Count());
}

// ---------------------------------------------------------------------------
// Lookups
// ---------------------------------------------------------------------------

TEST(CatalogueLookup, FrqByName)
{
    CRecorder stRec;
    const SSysInfo& rBds = GetSysInfo(ZELSATSYSTEM_BEIDOU);
    EXPECT_EQ(&rBds.astFrqs[3], rBds.GetFrqByName("B1C"));
    EXPECT_EQ(nullptr, rBds.GetFrqByName("B1c"));
    EXPECT_EQ(nullptr, rBds.GetFrqByName(""));
    EXPECT_EQ(nullptr, rBds.GetFrqByName(nullptr));
    EXPECT_EQ(&GetSysInfo(ZELSATSYSTEM_GALILEO).astFrqs[3],
              GetSysInfo(ZELSATSYSTEM_GALILEO).GetFrqByName("E5ab"));
    EXPECT_EQ(nullptr, GetSysInfo(ZELSATSYSTEM_LOCATA).GetFrqByName("L1"));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueLookup, TrackModeOfGpsL1)
{
    CRecorder stRec;
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    const SFrqInfo* pL1 = rGps.GetFrqByName("L1");
    ASSERT_NE(nullptr, pL1);
    const STrackModeInfo* pDefault = pL1->GetTrackModeInfo(ZELTRACKMODE_UNKNOWN);
    ASSERT_NE(nullptr, pDefault);
    EXPECT_EQ(ZELTRACKMODE_C, pDefault->eTrackMode);
    EXPECT_EQ(pL1->GetTrackModeInfo(ZELTRACKMODE_C), pDefault);
    EXPECT_EQ(nullptr, pL1->GetTrackModeInfo(ZELTRACKMODE_Y));
    EXPECT_EQ(nullptr, pL1->GetTrackModeInfo(ZELTRACKMODE_ALL));
    EXPECT_EQ(nullptr, pL1->GetTrackModeInfo(static_cast<EZelTrackMode>(-1)));

    EXPECT_EQ(pDefault, rGps.GetTrackModeInfo(ZELFREQUENCY_L1CA, ZELTRACKMODE_UNKNOWN));
    EXPECT_EQ(nullptr, rGps.GetTrackModeInfo(ZELFREQUENCY_L1CA, ZELTRACKMODE_Y));
    EXPECT_EQ(pL1->GetTrackModeInfo(ZELTRACKMODE_P), rGps.GetTrackModeInfo(ZELFREQUENCY_L1P, ZELTRACKMODE_P));
    EXPECT_EQ(nullptr, rGps.GetTrackModeInfo(ZELFREQUENCY_UNKNOWN, ZELTRACKMODE_C));
    EXPECT_EQ(nullptr, rGps.GetTrackModeInfo(ZELFREQUENCY_MAX, ZELTRACKMODE_C));
    EXPECT_EQ(nullptr, rGps.GetTrackModeInfo(ZELFREQUENCY_E6, ZELTRACKMODE_C));
    EXPECT_EQ(pDefault, rGps.GetTrackModeInfoByGroup(ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C));
    EXPECT_EQ(nullptr, rGps.GetTrackModeInfoByGroup(ZELFREQUENCY_GROUP_4, ZELTRACKMODE_C));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueLookup, FrqByGroupAndFrqInfo)
{
    CRecorder stRec;
    const SSysInfo& rGal = GetSysInfo(ZELSATSYSTEM_GALILEO);
    EXPECT_EQ(&rGal.astFrqs[4], rGal.GetFrqByGroup(ZELFREQUENCY_GROUP_3));
    EXPECT_EQ(&rGal.astFrqs[1], rGal.GetFrqByGroup(ZELFREQUENCY_GROUP_6));
    EXPECT_EQ(nullptr, rGal.GetFrqByGroup(ZELFREQUENCY_GROUP_2));
    EXPECT_EQ(nullptr, rGal.GetFrqByGroup(ZELFREQUENCY_GROUP_NONE));
    EXPECT_EQ(nullptr, rGal.GetFrqByGroup(ZELFREQUENCY_GROUPS_MAX));
    EXPECT_EQ(nullptr, rGal.GetFrqByGroup(static_cast<EZelFrequencyGroup>(-1)));
    EXPECT_EQ(&rGal.astFrqs[0], rGal.GetFrqInfo(ZELFREQUENCY_L1C));
    EXPECT_EQ(&rGal.astFrqs[2], rGal.GetFrqInfo(ZELFREQUENCY_E5B));
    EXPECT_EQ(nullptr, rGal.GetFrqInfo(ZELFREQUENCY_L1CA));
    EXPECT_EQ(nullptr, rGal.GetFrqInfo(ZELFREQUENCY_UNKNOWN));
    EXPECT_EQ(nullptr, rGal.GetFrqInfo(ZELFREQUENCY_MAX));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueLookup, QzssUnderGpsNumbering)
{
    CRecorder stRec;
    EXPECT_EQ(ZELSATSYSTEM_GPS, GetSysInfo(ZELSATSYSTEM_QZSS).eBaseSysID);
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_QZSS, 1), ToBaseSatID(ZELSATSYSTEM_GPS, 33));
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_QZSS, 10), ToBaseSatID(ZELSATSYSTEM_GPS, 42));
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_GPS, 32), ToBaseSatID(ZELSATSYSTEM_GPS, 32));
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_BEIDOU, 40), ToBaseSatID(ZELSATSYSTEM_BEIDOU, 40));
    EXPECT_EQ(33, ToBaseSatNumber(SZelSatID(ZELSATSYSTEM_QZSS, 1)));
    EXPECT_EQ(42, ToBaseSatNumber(SZelSatID(ZELSATSYSTEM_QZSS, 10)));
    EXPECT_EQ(5, ToBaseSatNumber(SZelSatID(ZELSATSYSTEM_GPS, 5)));
    EXPECT_EQ(7, ToBaseSatNumber(SZelSatID(ZELSATSYSTEM_GLONASS, 7)));
    EXPECT_EQ(0u, stRec.Count());

    // QZSS is no base system.
    EXPECT_EQ(SZelSatID(ZELSATSYSTEM_QZSS, 3), ToBaseSatID(ZELSATSYSTEM_QZSS, 3));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("GetSysInfo(eBaseSys).eBaseSysID == eBaseSys", stRec.Texts()[0]);
    stRec.Clear();
    EXPECT_EQ(SZelSatID(static_cast<EZelSatSystem>(9), 3), ToBaseSatID(static_cast<EZelSatSystem>(9), 3));
    EXPECT_EQ(1u, stRec.Count("GetSysInfo(eBaseSys).eBaseSysID == eBaseSys"));
}

TEST(CatalogueLookup, NumberOfFrequencies)
{
    const unsigned int auiNb[] = {0, 3, 3, 5, 2, 5, 3, 1, 0};
    for (int iSys = 0; iSys <= 8; ++iSys)
    {
        EXPECT_EQ(auiNb[iSys], GetSysInfo(static_cast<EZelSatSystem>(iSys)).GetNbFrqs()) << iSys;
    }
    EXPECT_EQ(0u, GetSysInfo(ZELSATSYSTEM_LOCATA).GetNbFrqs());
}

TEST(CatalogueLookup, SystemOutsideTheTableGetsTheEmptyRow)
{
    const SSysInfo& rOut = GetSysInfo(static_cast<EZelSatSystem>(9));
    EXPECT_EQ(&GetSysInfo(ZELSATSYSTEM_NONE), &rOut);
    EXPECT_EQ(&GetSysInfo(ZELSATSYSTEM_NONE), &GetSysInfo(static_cast<EZelSatSystem>(-5)));
    EXPECT_EQ(0u, rOut.GetNbFrqs());
    EXPECT_EQ(nullptr, rOut.GetFrqByName("L1"));
}

TEST(CatalogueLookup, GpsDefaultsOfL2Slots)
{
    CRecorder stRec;
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    const SFrqInfo* pFrq = nullptr;
    const STrackModeInfo* pMode = nullptr;
    ASSERT_TRUE(rGps.GetDefaultSignal(ZELFREQUENCY_L2C, pFrq, pMode));
    EXPECT_STREQ("L2", pFrq->szSysFrq);
    EXPECT_EQ(ZELTRACKMODE_S, pMode->eTrackMode);
    ASSERT_TRUE(rGps.GetDefaultSignal(ZELFREQUENCY_L2P, pFrq, pMode));
    EXPECT_STREQ("L2", pFrq->szSysFrq);
    EXPECT_EQ(ZELTRACKMODE_W, pMode->eTrackMode);

    // Outside 1 to 10, or not defined: false, nothing filled.
    pFrq = nullptr;
    pMode = nullptr;
    EXPECT_FALSE(rGps.GetDefaultSignal(ZELFREQUENCY_UNKNOWN, pFrq, pMode));
    EXPECT_FALSE(rGps.GetDefaultSignal(ZELFREQUENCY_MAX, pFrq, pMode));
    EXPECT_FALSE(rGps.GetDefaultSignal(ZELFREQUENCY_E5A, pFrq, pMode));
    EXPECT_FALSE(GetSysInfo(ZELSATSYSTEM_LOCATA).GetDefaultSignal(ZELFREQUENCY_L1CA, pFrq, pMode));
    EXPECT_EQ(nullptr, pFrq);
    EXPECT_EQ(nullptr, pMode);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueLookup, DefaultFrequencyOfARow)
{
    CRecorder stRec;
    EZelFrequency eFrq = ZELFREQUENCY_MAX;
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    EXPECT_TRUE(rGps.astFrqs[0].GetDefaultFrequency(eFrq));
    EXPECT_EQ(ZELFREQUENCY_L1CA, eFrq);
    EXPECT_TRUE(rGps.astFrqs[1].GetDefaultFrequency(eFrq));
    EXPECT_EQ(ZELFREQUENCY_L2P, eFrq);
    EXPECT_TRUE(GetSysInfo(ZELSATSYSTEM_BEIDOU).astFrqs[3].GetDefaultFrequency(eFrq));
    EXPECT_EQ(ZELFREQUENCY_E5B, eFrq);
    EXPECT_EQ(0u, stRec.Count());

    // A row without a default.
    const SFrqInfo stEmpty;
    eFrq = ZELFREQUENCY_E6;
    EXPECT_FALSE(stEmpty.GetDefaultFrequency(eFrq));
    EXPECT_EQ(ZELFREQUENCY_UNKNOWN, eFrq);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("false", stRec.Texts()[0]);
}

TEST(CatalogueLookup, FrqGroupBits)
{
    CRecorder stRec;
    for (int iGrp = 1; iGrp <= 6; ++iGrp)
    {
        EXPECT_EQ(1u << (iGrp - 1), ToFrqGroupBit(static_cast<EZelFrequencyGroup>(iGrp)));
        EXPECT_EQ(iGrp, FromFrqGroupBit(1u << (iGrp - 1)));
    }
    EXPECT_EQ(0u, ToFrqGroupBit(ZELFREQUENCY_GROUP_NONE));
    EXPECT_EQ(0u, ToFrqGroupBit(static_cast<EZelFrequencyGroup>(-1)));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromFrqGroupBit(0));
    EXPECT_EQ(0u, stRec.Count());

    EXPECT_EQ(0u, ToFrqGroupBit(ZELFREQUENCY_GROUPS_MAX));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("eFrqGrp < ZELFREQUENCY_GROUPS_MAX", stRec.Texts()[0]);
    stRec.Clear();
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromFrqGroupBit(3));
    EXPECT_EQ(ZELFREQUENCY_GROUP_NONE, FromFrqGroupBit(64));
    EXPECT_EQ(2u, stRec.Count("false"));
    EXPECT_EQ(2u, stRec.Count());
}

TEST(CatalogueLookup, FrqGroupsText)
{
    CRecorder stRec;
    EXPECT_EQ("G1|G2", GetFrqGroupsText(ZELSATSYSTEM_GLONASS, 3));
    EXPECT_EQ("SysIv", GetFrqGroupsText(ZELSATSYSTEM_GPS, 3));
    EXPECT_EQ("", GetFrqGroupsText(ZELSATSYSTEM_GLONASS, 0));
    EXPECT_EQ("E1|E5a|E5b|E5ab|E6", GetFrqGroupsText(ZELSATSYSTEM_GALILEO, 61));
    EXPECT_EQ("B1|B2|B3|B1C|B2a", GetFrqGroupsText(ZELSATSYSTEM_BEIDOU, 31));
    EXPECT_EQ("G1|IV", GetFrqGroupsText(ZELSATSYSTEM_GLONASS, 9));
    EXPECT_EQ("IV|L5", GetFrqGroupsText(ZELSATSYSTEM_NAVIC, 5));
    EXPECT_EQ("IV", GetFrqGroupsText(ZELSATSYSTEM_LOCATA, 1));
    EXPECT_EQ("SysIv", GetFrqGroupsText(ZELSATSYSTEM_NONE, 1));
    EXPECT_EQ("SysIv", GetFrqGroupsText(static_cast<EZelSatSystem>(9), 1));
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueLookup, ReadFrqName)
{
    char szName[ulSZFRQ_MAXLGTH] = {};
    std::istringstream iss1("L1");
    EXPECT_TRUE(ReadFrqName(iss1, szName));
    EXPECT_STREQ("L1", szName);
    EXPECT_FALSE(iss1.fail());

    std::istringstream iss2("B1C:P");
    EXPECT_TRUE(ReadFrqName(iss2, szName));
    EXPECT_STREQ("B1C", szName);
    EXPECT_EQ(':', iss2.peek());

    std::istringstream iss3("E5ab");
    EXPECT_TRUE(ReadFrqName(iss3, szName));
    EXPECT_STREQ("E5ab", szName);

    std::istringstream iss4("L1CAX");
    EXPECT_FALSE(ReadFrqName(iss4, szName));

    std::istringstream iss5("");
    EXPECT_FALSE(ReadFrqName(iss5, szName));
    EXPECT_STREQ("", szName);

    std::istringstream iss6(":L1");
    EXPECT_FALSE(ReadFrqName(iss6, szName));
    EXPECT_EQ(':', iss6.peek());

    // Peeking does not skip blanks.
    std::istringstream iss7(" L1");
    EXPECT_FALSE(ReadFrqName(iss7, szName));
}

// ---------------------------------------------------------------------------
// Checks of the construction, on tables with defects
// ---------------------------------------------------------------------------

namespace
{

STrackModeInfo TM(EZelTrackMode eMode, ETrackComponent eComp, EZelFrequency eFrq)
{
    return STrackModeInfo{eMode, eComp, -1, eFrq};
}

} // namespace

TEST(CatalogueChecks, GoodRowIsSilent)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA),
                                TM(ZELTRACKMODE_N, TRACKCOMPONENT_U, ZELFREQUENCY_L1P),
                                TM(ZELTRACKMODE_P, TRACKCOMPONENT_Q, ZELFREQUENCY_L1P)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_P), ToTMdGroup(ZELTRACKMODE_C)};
    const SFrqInfo stFrq("X1", ZELTRACKMODE_P, astRows, 3, aebfDcb, 2, ZELFREQUENCY_GROUP_1);
    EXPECT_EQ(0u, stRec.Count());
    EXPECT_EQ(1, astRows[0].lDCBGrpIdx);
    EXPECT_EQ(-1, astRows[1].lDCBGrpIdx);
    EXPECT_EQ(0, astRows[2].lDCBGrpIdx);
    EXPECT_EQ(2, stFrq.astTrackModeIdx[0]);
    EXPECT_EQ(0, stFrq.astTrackModeIdx[ZELTRACKMODE_C]);
    EXPECT_EQ(-1, stFrq.astTrackModeIdx[ZELTRACKMODE_W]);
    EXPECT_EQ(ZELFREQUENCY_L1CA, stFrq.eFrqMin);
    EXPECT_EQ(ZELFREQUENCY_L1P, stFrq.eFrqMax);
    EXPECT_EQ(ToTMdGroup(ZELTRACKMODE_C) | ToTMdGroup(ZELTRACKMODE_N) | ToTMdGroup(ZELTRACKMODE_P),
              stFrq.ebfTMdGrps);
}

TEST(CatalogueChecks, NameTooLong)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C)};
    const SFrqInfo stFrq("L1CAX", ZELTRACKMODE_C, astRows, 1, aebfDcb, 1, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("ulSzLgth < ulSZFRQ_MAXLGTH", stRec.Texts()[0]);
}

TEST(CatalogueChecks, NameNotAlphanumeric)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C)};
    const SFrqInfo stFrq("L-\xE9", ZELTRACKMODE_C, astRows, 1, aebfDcb, 1, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(2u, stRec.Count());
    EXPECT_EQ(2u, stRec.Count("isalnum(szSysFrq[ulIdx]) != 0"));
}

TEST(CatalogueChecks, TrackModeTwiceAndRowWithoutDcbGroup)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA),
                                TM(ZELTRACKMODE_C, TRACKCOMPONENT_Q, ZELFREQUENCY_L1P)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C)};
    const SFrqInfo stFrq("L1", ZELTRACKMODE_C, astRows, 2, aebfDcb, 1, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(2u, stRec.Count());
    EXPECT_EQ("(ebfTMdGrps & ToTMdGroup(rstIdxTMInfo.eTrackMode)) == 0", stRec.Texts()[0]);
    EXPECT_EQ("astTrackModes[ulTMIdx].lDCBGrpIdx >= 0 || astTrackModes[ulTMIdx].eTrackMode == ZELTRACKMODE_N",
              stRec.Texts()[1]);
    // The later row wins the index.
    EXPECT_EQ(1, stFrq.astTrackModeIdx[ZELTRACKMODE_C]);
}

TEST(CatalogueChecks, NoRows)
{
    CRecorder stRec;
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C)};
    STrackModeInfo astNone[1] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA)};
    const SFrqInfo stFrq("L1", ZELTRACKMODE_C, astNone, 0, aebfDcb, 0, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("eFrqMin <= eFrqMax", stRec.Texts()[0]);
    EXPECT_EQ(ZELFREQUENCY_MAX, stFrq.eFrqMin);
    EXPECT_EQ(ZELFREQUENCY_UNKNOWN, stFrq.eFrqMax);
    EXPECT_EQ(nullptr, stFrq.GetTrackModeInfo(ZELTRACKMODE_UNKNOWN));
}

TEST(CatalogueChecks, ModeInTwoDcbGroups)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA),
                                TM(ZELTRACKMODE_P, TRACKCOMPONENT_Q, ZELFREQUENCY_L1P)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C),
                                ToTMdGroup(ZELTRACKMODE_C) | ToTMdGroup(ZELTRACKMODE_P)};
    const SFrqInfo stFrq("L1", ZELTRACKMODE_C, astRows, 2, aebfDcb, 2, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("rstIdxTMInfo.lDCBGrpIdx == -1", stRec.Texts()[0]);
    EXPECT_EQ(1, astRows[0].lDCBGrpIdx);
    EXPECT_EQ(1, astRows[1].lDCBGrpIdx);
}

TEST(CatalogueChecks, RowWithoutDcbGroupButNIsAllowed)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA),
                                TM(ZELTRACKMODE_P, TRACKCOMPONENT_Q, ZELFREQUENCY_L1P)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C)};
    const SFrqInfo stFrq("L1", ZELTRACKMODE_C, astRows, 2, aebfDcb, 1, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("astTrackModes[ulTMIdx].lDCBGrpIdx >= 0 || astTrackModes[ulTMIdx].eTrackMode == ZELTRACKMODE_N",
              stRec.Texts()[0]);

    stRec.Clear();
    STrackModeInfo astWithN[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA),
                                 TM(ZELTRACKMODE_N, TRACKCOMPONENT_U, ZELFREQUENCY_L1P)};
    const SFrqInfo stWithN("L1", ZELTRACKMODE_C, astWithN, 2, aebfDcb, 1, ZELFREQUENCY_GROUP_1);
    EXPECT_EQ(0u, stRec.Count());
}

TEST(CatalogueChecks, DcbGroupNamesAModeTheFrequencyLacks)
{
    CRecorder stRec;
    STrackModeInfo astRows[] = {TM(ZELTRACKMODE_C, TRACKCOMPONENT_I, ZELFREQUENCY_L1CA)};
    const uint32_t aebfDcb[] = {ToTMdGroup(ZELTRACKMODE_C) | ToTMdGroup(ZELTRACKMODE_P)};
    const SFrqInfo stFrq("L1", ZELTRACKMODE_C, astRows, 1, aebfDcb, 1, ZELFREQUENCY_GROUP_1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("false", stRec.Texts()[0]);
    EXPECT_EQ(0, astRows[0].lDCBGrpIdx);
}

TEST(CatalogueChecks, LookupOfAMisindexedMode)
{
    SFrqInfo stFrq = GetSysInfo(ZELSATSYSTEM_GPS).astFrqs[0];
    stFrq.astTrackModeIdx[ZELTRACKMODE_P] = 0; // the C row
    CRecorder stRec;
    EXPECT_EQ(&stFrq.astTrackModes[0], stFrq.GetTrackModeInfo(ZELTRACKMODE_P));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("astTrackModes[astTrackModeIdx[eTrackMode]].eTrackMode == eTrackMode || eTrackMode == "
              "ZELTRACKMODE_UNKNOWN",
              stRec.Texts()[0]);
}

TEST(CatalogueChecks, SystemRowBaseChecks)
{
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    const SDefFrqRow astDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C}};
    CRecorder stRec;
    const SSysInfo stLow(ZELSATSYSTEM_GPS, 32, ZELSATSYSTEM_GPS, 20, rGps.astFrqs, 3, astDefs, 1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("(eBaseSysID != eSysID && uiMaxBaseSatNb == 0) || (eBaseSysID == eSysID && uiMaxBaseSatNb >= "
              "uiMaxSysSatNb)",
              stRec.Texts()[0]);

    stRec.Clear();
    const SSysInfo stOther(ZELSATSYSTEM_QZSS, 10, ZELSATSYSTEM_GPS, 5, rGps.astFrqs, 3, astDefs, 1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("(eBaseSysID != eSysID && uiMaxBaseSatNb == 0) || (eBaseSysID == eSysID && uiMaxBaseSatNb >= "
              "uiMaxSysSatNb)",
              stRec.Texts()[0]);

    stRec.Clear();
    const SSysInfo stBig(ZELSATSYSTEM_GPS, 32, ZELSATSYSTEM_GPS, 64, rGps.astFrqs, 3, astDefs, 1);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("uiMaxBaseSatNb <= ZEL_DEF_MAXSATID", stRec.Texts()[0]);
}

TEST(CatalogueChecks, SystemRowFrequencyCount)
{
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    // The L1 row twice: one group for two rows.
    const SFrqInfo astTwice[] = {rGps.astFrqs[0], rGps.astFrqs[0]};
    CRecorder stRec;
    const SSysInfo stSys(ZELSATSYSTEM_GPS, 32, ZELSATSYSTEM_GPS, 42, astTwice, 2, nullptr, 0);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("GetNbFrqs() == _ulFrqIdxMax", stRec.Texts()[0]);
    EXPECT_EQ(1, stSys.aulFrqGrpIdx[1]);
}

TEST(CatalogueChecks, SystemRowDefaultOfAnotherGroup)
{
    const SSysInfo& rGps = GetSysInfo(ZELSATSYSTEM_GPS);
    const SDefFrqRow astDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C},
                                  {ZELFREQUENCY_L2C, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C}};
    CRecorder stRec;
    const SSysInfo stSys(ZELSATSYSTEM_GPS, 32, ZELSATSYSTEM_GPS, 42, rGps.astFrqs, 3, astDefs, 2);
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("aeDefFrqIdx[eZelFrq].first == getFrequencyGroupIndex( eZelFrq )", stRec.Texts()[0]);
    EXPECT_EQ(ZELFREQUENCY_GROUP_1, stSys.aeDefFrqIdx[ZELFREQUENCY_L2C].first);
}

TEST(CatalogueChecks, LookupOfAMisindexedGroup)
{
    SSysInfo stSys = GetSysInfo(ZELSATSYSTEM_GPS);
    stSys.aulFrqGrpIdx[2] = 0; // the L1 row
    CRecorder stRec;
    EXPECT_EQ(&stSys.astFrqs[0], stSys.GetFrqByGroup(ZELFREQUENCY_GROUP_2));
    ASSERT_EQ(1u, stRec.Count());
    EXPECT_EQ("astFrqs[aulFrqGrpIdx[eFrqGrpIdx]].eZelFrqGrpID == eFrqGrpIdx", stRec.Texts()[0]);
}

TEST(CatalogueChecks, FinalChecksOfTheSystemTable)
{
    SSysInfo astTable[9];
    for (int iSys = 0; iSys <= 8; ++iSys)
    {
        astTable[iSys] = GetSysInfo(static_cast<EZelSatSystem>(iSys));
    }
    {
        CRecorder stRec;
        ObsInfoDetail::CheckSysTable(astTable);
        EXPECT_EQ(0u, stRec.Count());
    }
    {
        // GPS without room for QZSS.
        SSysInfo astCopy[9];
        std::copy(astTable, astTable + 9, astCopy);
        astCopy[ZELSATSYSTEM_GPS].uiMaxBaseSatNb = 32;
        CRecorder stRec;
        ObsInfoDetail::CheckSysTable(astCopy);
        ASSERT_EQ(1u, stRec.Count());
        EXPECT_EQ("ast_Sys_Info[eSys].uiMaxBaseSatNb >= auiBaseSysIDSums[eSys]", stRec.Texts()[0]);
    }
    {
        // QZSS under its own numbering.
        SSysInfo astCopy[9];
        std::copy(astTable, astTable + 9, astCopy);
        astCopy[ZELSATSYSTEM_QZSS].eBaseSysID = ZELSATSYSTEM_QZSS;
        CRecorder stRec;
        ObsInfoDetail::CheckSysTable(astCopy);
        ASSERT_EQ(2u, stRec.Count());
        EXPECT_EQ("ast_Sys_Info[ZELSATSYSTEM_QZSS].eBaseSysID == ZELSATSYSTEM_GPS", stRec.Texts()[0]);
        EXPECT_EQ("ast_Sys_Info[eSys].uiMaxBaseSatNb >= auiBaseSysIDSums[eSys]", stRec.Texts()[1]);
    }
    {
        // Galileo under GPS numbering.
        SSysInfo astCopy[9];
        std::copy(astTable, astTable + 9, astCopy);
        astCopy[ZELSATSYSTEM_GALILEO].eBaseSysID = ZELSATSYSTEM_GPS;
        CRecorder stRec;
        ObsInfoDetail::CheckSysTable(astCopy);
        ASSERT_EQ(2u, stRec.Count());
        EXPECT_EQ("ast_Sys_Info[eSys].eBaseSysID == ast_Sys_Info[eSys].eSysID || eSys == ZELSATSYSTEM_QZSS",
                  stRec.Texts()[0]);
        EXPECT_EQ("ast_Sys_Info[eSys].uiMaxBaseSatNb >= auiBaseSysIDSums[eSys]", stRec.Texts()[1]);
    }
}
