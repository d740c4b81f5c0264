#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelObsInfo.h>

#include <cctype>
#include <cstring>

namespace ZELN
{

namespace
{

// ---------------------------------------------------------------------------
// Constant tables
// ---------------------------------------------------------------------------

// Track-mode bits of the DCB groups.
namespace TMd
{
constexpr uint32_t A = ToTMdGroup(ZELTRACKMODE_A);
constexpr uint32_t B = ToTMdGroup(ZELTRACKMODE_B);
constexpr uint32_t C = ToTMdGroup(ZELTRACKMODE_C);
constexpr uint32_t D = ToTMdGroup(ZELTRACKMODE_D);
constexpr uint32_t I = ToTMdGroup(ZELTRACKMODE_I);
constexpr uint32_t L = ToTMdGroup(ZELTRACKMODE_L);
constexpr uint32_t P = ToTMdGroup(ZELTRACKMODE_P);
constexpr uint32_t Q = ToTMdGroup(ZELTRACKMODE_Q);
constexpr uint32_t S = ToTMdGroup(ZELTRACKMODE_S);
constexpr uint32_t W = ToTMdGroup(ZELTRACKMODE_W);
constexpr uint32_t X = ToTMdGroup(ZELTRACKMODE_X);
constexpr uint32_t Z = ToTMdGroup(ZELTRACKMODE_Z);
} // namespace TMd

constexpr uint32_t c_aebfDcbGpsL1[] = {TMd::C, TMd::P | TMd::W, TMd::L | TMd::S | TMd::X};
constexpr uint32_t c_aebfDcbGpsL2[] = {TMd::D | TMd::P | TMd::W, TMd::C | TMd::L | TMd::S | TMd::X};
constexpr uint32_t c_aebfDcbIXQ[] = {TMd::I, TMd::X, TMd::Q}; // L5, G3, B1, B3
constexpr uint32_t c_aebfDcbCP[] = {TMd::C, TMd::P};          // G1, G2
constexpr uint32_t c_aebfDcbGalE1E6[] = {TMd::A | TMd::B | TMd::C | TMd::X | TMd::Z};
constexpr uint32_t c_aebfDcbGalE5[] = {TMd::I | TMd::Q | TMd::X};
constexpr uint32_t c_aebfDcbC[] = {TMd::C};
constexpr uint32_t c_aebfDcbI[] = {TMd::I};
constexpr uint32_t c_aebfDcbQzsL1[] = {TMd::C | TMd::Z, TMd::L | TMd::S | TMd::X};
constexpr uint32_t c_aebfDcbQzsL2[] = {TMd::L | TMd::S | TMd::X};
constexpr uint32_t c_aebfDcbBdsB2[] = {TMd::I, TMd::X, TMd::Q, TMd::D, TMd::P, TMd::Z};
constexpr uint32_t c_aebfDcbBdsB1C[] = {TMd::D, TMd::P, TMd::X, TMd::A};
constexpr uint32_t c_aebfDcbBdsB2a[] = {TMd::D, TMd::P, TMd::X};
constexpr uint32_t c_aebfDcbNavL5[] = {TMd::A | TMd::C | TMd::X};

// A row as track mode, component and frequency slot; the DCB index is filled
// when the frequency row is built.
constexpr STrackModeInfo Row(EZelTrackMode eTrackMode, ETrackComponent eComponent, EZelFrequency eFrq)
{
    return STrackModeInfo{eTrackMode, eComponent, -1, eFrq};
}

constexpr ETrackComponent cU = TRACKCOMPONENT_U;
constexpr ETrackComponent cI = TRACKCOMPONENT_I;
constexpr ETrackComponent cQ = TRACKCOMPONENT_Q;
constexpr ETrackComponent cX = TRACKCOMPONENT_X;
constexpr ETrackComponent cD = TRACKCOMPONENT_D;
constexpr ETrackComponent cP = TRACKCOMPONENT_P;
constexpr ETrackComponent cZ = TRACKCOMPONENT_Z;

constexpr STrackModeInfo c_astGpsL1[] = {
    Row(ZELTRACKMODE_C, cI, ZELFREQUENCY_L1CA), Row(ZELTRACKMODE_N, cU, ZELFREQUENCY_L1P),
    Row(ZELTRACKMODE_P, cQ, ZELFREQUENCY_L1P),  Row(ZELTRACKMODE_W, cQ, ZELFREQUENCY_L1P),
    Row(ZELTRACKMODE_L, cP, ZELFREQUENCY_L1C),  Row(ZELTRACKMODE_S, cD, ZELFREQUENCY_L1C),
    Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_L1C)};
constexpr STrackModeInfo c_astGpsL2[] = {
    Row(ZELTRACKMODE_P, cI, ZELFREQUENCY_L2P), Row(ZELTRACKMODE_W, cI, ZELFREQUENCY_L2P),
    Row(ZELTRACKMODE_D, cI, ZELFREQUENCY_L2P), Row(ZELTRACKMODE_N, cU, ZELFREQUENCY_L2P),
    Row(ZELTRACKMODE_C, cQ, ZELFREQUENCY_L2C), Row(ZELTRACKMODE_L, cQ, ZELFREQUENCY_L2C),
    Row(ZELTRACKMODE_S, cQ, ZELFREQUENCY_L2C), Row(ZELTRACKMODE_X, cQ, ZELFREQUENCY_L2C)};
// GPS L5, GLONASS G3 and QZSS L5.
constexpr STrackModeInfo c_astL5IQX[] = {Row(ZELTRACKMODE_I, cI, ZELFREQUENCY_L5),
                                         Row(ZELTRACKMODE_Q, cQ, ZELFREQUENCY_L5),
                                         Row(ZELTRACKMODE_X, cX, ZELFREQUENCY_L5)};
constexpr STrackModeInfo c_astGloG1[] = {Row(ZELTRACKMODE_C, cI, ZELFREQUENCY_L1CA),
                                         Row(ZELTRACKMODE_P, cQ, ZELFREQUENCY_L1P)};
constexpr STrackModeInfo c_astGloG2[] = {Row(ZELTRACKMODE_C, cI, ZELFREQUENCY_L2C),
                                         Row(ZELTRACKMODE_P, cQ, ZELFREQUENCY_L2P)};
constexpr STrackModeInfo c_astGalE1[] = {
    Row(ZELTRACKMODE_B, cD, ZELFREQUENCY_L1C), Row(ZELTRACKMODE_C, cP, ZELFREQUENCY_L1C),
    Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_L1C), Row(ZELTRACKMODE_A, cZ, ZELFREQUENCY_L1C),
    Row(ZELTRACKMODE_Z, cZ, ZELFREQUENCY_L1C)};
constexpr STrackModeInfo c_astGalE6[] = {
    Row(ZELTRACKMODE_B, cI, ZELFREQUENCY_E6), Row(ZELTRACKMODE_C, cQ, ZELFREQUENCY_E6),
    Row(ZELTRACKMODE_X, cX, ZELFREQUENCY_E6), Row(ZELTRACKMODE_A, cX, ZELFREQUENCY_E6),
    Row(ZELTRACKMODE_Z, cX, ZELFREQUENCY_E6)};
constexpr STrackModeInfo c_astGalE5a[] = {Row(ZELTRACKMODE_I, cD, ZELFREQUENCY_E5A),
                                          Row(ZELTRACKMODE_Q, cP, ZELFREQUENCY_E5A),
                                          Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_E5A)};
constexpr STrackModeInfo c_astGalE5b[] = {Row(ZELTRACKMODE_I, cD, ZELFREQUENCY_E5B),
                                          Row(ZELTRACKMODE_Q, cP, ZELFREQUENCY_E5B),
                                          Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_E5B)};
constexpr STrackModeInfo c_astGalE5ab[] = {Row(ZELTRACKMODE_I, cD, ZELFREQUENCY_E5AB),
                                           Row(ZELTRACKMODE_Q, cP, ZELFREQUENCY_E5AB),
                                           Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_E5AB)};
constexpr STrackModeInfo c_astSbsL1[] = {Row(ZELTRACKMODE_C, cI, ZELFREQUENCY_L1CA)};
constexpr STrackModeInfo c_astSbsL5[] = {Row(ZELTRACKMODE_I, cI, ZELFREQUENCY_L5)};
constexpr STrackModeInfo c_astQzsL1[] = {
    Row(ZELTRACKMODE_C, cI, ZELFREQUENCY_L1CA), Row(ZELTRACKMODE_L, cP, ZELFREQUENCY_L1C),
    Row(ZELTRACKMODE_S, cD, ZELFREQUENCY_L1C), Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_L1C),
    Row(ZELTRACKMODE_Z, cX, ZELFREQUENCY_L1CA)};
constexpr STrackModeInfo c_astQzsL2[] = {Row(ZELTRACKMODE_L, cQ, ZELFREQUENCY_L2C),
                                         Row(ZELTRACKMODE_S, cQ, ZELFREQUENCY_L2C),
                                         Row(ZELTRACKMODE_X, cQ, ZELFREQUENCY_L2C)};
constexpr STrackModeInfo c_astBdsB1[] = {Row(ZELTRACKMODE_I, cI, ZELFREQUENCY_L1CA),
                                         Row(ZELTRACKMODE_Q, cQ, ZELFREQUENCY_L1P),
                                         Row(ZELTRACKMODE_X, cX, ZELFREQUENCY_L1CA)};
constexpr STrackModeInfo c_astBdsB3[] = {Row(ZELTRACKMODE_I, cI, ZELFREQUENCY_L5),
                                         Row(ZELTRACKMODE_Q, cQ, ZELFREQUENCY_L5),
                                         Row(ZELTRACKMODE_X, cX, ZELFREQUENCY_L5)};
constexpr STrackModeInfo c_astBdsB2[] = {
    Row(ZELTRACKMODE_I, cI, ZELFREQUENCY_L2P), Row(ZELTRACKMODE_Q, cQ, ZELFREQUENCY_L2P),
    Row(ZELTRACKMODE_X, cX, ZELFREQUENCY_L2P), Row(ZELTRACKMODE_D, cD, ZELFREQUENCY_L2C),
    Row(ZELTRACKMODE_P, cP, ZELFREQUENCY_L2C), Row(ZELTRACKMODE_Z, cZ, ZELFREQUENCY_L2C)};
constexpr STrackModeInfo c_astBdsB1C[] = {
    Row(ZELTRACKMODE_D, cD, ZELFREQUENCY_E5B), Row(ZELTRACKMODE_P, cP, ZELFREQUENCY_E5B),
    Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_E5B), Row(ZELTRACKMODE_A, cZ, ZELFREQUENCY_E5B)};
constexpr STrackModeInfo c_astBdsB2a[] = {Row(ZELTRACKMODE_D, cD, ZELFREQUENCY_E5AB),
                                          Row(ZELTRACKMODE_P, cP, ZELFREQUENCY_E5AB),
                                          Row(ZELTRACKMODE_X, cZ, ZELFREQUENCY_E5AB)};
constexpr STrackModeInfo c_astNavL5[] = {Row(ZELTRACKMODE_A, cI, ZELFREQUENCY_L5),
                                         Row(ZELTRACKMODE_C, cI, ZELFREQUENCY_L5),
                                         Row(ZELTRACKMODE_X, cI, ZELFREQUENCY_L5)};

// A frequency group of a system as the tables give it.
struct SFrqDef
{
    const char* szName;
    EZelTrackMode eDefTrackMode;
    const STrackModeInfo* pRows;
    uint64_t ulNbRows;
    const uint32_t* pDcbGrps;
    uint64_t ulNbDcbGrps;
    EZelFrequencyGroup eFrqGrp;
};

template <size_t N, size_t M>
constexpr SFrqDef Frq(const char* szName, EZelTrackMode eDef, const STrackModeInfo (&astRows)[N],
                      const uint32_t (&aebfDcb)[M], EZelFrequencyGroup eFrqGrp)
{
    return SFrqDef{szName, eDef, astRows, N, aebfDcb, M, eFrqGrp};
}

constexpr SFrqDef c_astGpsFrqs[] = {
    Frq("L1", ZELTRACKMODE_C, c_astGpsL1, c_aebfDcbGpsL1, ZELFREQUENCY_GROUP_1),
    Frq("L2", ZELTRACKMODE_W, c_astGpsL2, c_aebfDcbGpsL2, ZELFREQUENCY_GROUP_2),
    Frq("L5", ZELTRACKMODE_Q, c_astL5IQX, c_aebfDcbIXQ, ZELFREQUENCY_GROUP_3)};
constexpr SFrqDef c_astGloFrqs[] = {
    Frq("G1", ZELTRACKMODE_C, c_astGloG1, c_aebfDcbCP, ZELFREQUENCY_GROUP_1),
    Frq("G2", ZELTRACKMODE_P, c_astGloG2, c_aebfDcbCP, ZELFREQUENCY_GROUP_2),
    Frq("G3", ZELTRACKMODE_Q, c_astL5IQX, c_aebfDcbIXQ, ZELFREQUENCY_GROUP_3)};
constexpr SFrqDef c_astGalFrqs[] = {
    Frq("E1", ZELTRACKMODE_C, c_astGalE1, c_aebfDcbGalE1E6, ZELFREQUENCY_GROUP_1),
    Frq("E6", ZELTRACKMODE_C, c_astGalE6, c_aebfDcbGalE1E6, ZELFREQUENCY_GROUP_6),
    Frq("E5b", ZELTRACKMODE_Q, c_astGalE5b, c_aebfDcbGalE5, ZELFREQUENCY_GROUP_4),
    Frq("E5ab", ZELTRACKMODE_Q, c_astGalE5ab, c_aebfDcbGalE5, ZELFREQUENCY_GROUP_5),
    Frq("E5a", ZELTRACKMODE_Q, c_astGalE5a, c_aebfDcbGalE5, ZELFREQUENCY_GROUP_3)};
constexpr SFrqDef c_astSbsFrqs[] = {Frq("L1", ZELTRACKMODE_C, c_astSbsL1, c_aebfDcbC, ZELFREQUENCY_GROUP_1),
                                    Frq("L5", ZELTRACKMODE_I, c_astSbsL5, c_aebfDcbI, ZELFREQUENCY_GROUP_3)};
constexpr SFrqDef c_astQzsFrqs[] = {
    Frq("L1", ZELTRACKMODE_C, c_astQzsL1, c_aebfDcbQzsL1, ZELFREQUENCY_GROUP_1),
    Frq("L2", ZELTRACKMODE_S, c_astQzsL2, c_aebfDcbQzsL2, ZELFREQUENCY_GROUP_2),
    Frq("L5", ZELTRACKMODE_Q, c_astL5IQX, c_aebfDcbIXQ, ZELFREQUENCY_GROUP_3)};
constexpr SFrqDef c_astBdsFrqs[] = {
    Frq("B1", ZELTRACKMODE_I, c_astBdsB1, c_aebfDcbIXQ, ZELFREQUENCY_GROUP_1),
    Frq("B3", ZELTRACKMODE_I, c_astBdsB3, c_aebfDcbIXQ, ZELFREQUENCY_GROUP_3),
    Frq("B2", ZELTRACKMODE_I, c_astBdsB2, c_aebfDcbBdsB2, ZELFREQUENCY_GROUP_2),
    Frq("B1C", ZELTRACKMODE_P, c_astBdsB1C, c_aebfDcbBdsB1C, ZELFREQUENCY_GROUP_4),
    Frq("B2a", ZELTRACKMODE_P, c_astBdsB2a, c_aebfDcbBdsB2a, ZELFREQUENCY_GROUP_5)};
constexpr SFrqDef c_astNavFrqs[] = {
    Frq("L5", ZELTRACKMODE_A, c_astNavL5, c_aebfDcbNavL5, ZELFREQUENCY_GROUP_3)};

// Default signal of each frequency slot, by system.
constexpr SDefFrqRow c_astGpsDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_L1P, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_W},
                                       {ZELFREQUENCY_L2C, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_S},
                                       {ZELFREQUENCY_L2P, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_W},
                                       {ZELFREQUENCY_L5, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_Q},
                                       {ZELFREQUENCY_L1C, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_L}};
constexpr SDefFrqRow c_astGloDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_L1P, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_P},
                                       {ZELFREQUENCY_L2C, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_L2P, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_P},
                                       {ZELFREQUENCY_L5, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_Q}};
constexpr SDefFrqRow c_astGalDefs[] = {{ZELFREQUENCY_L1C, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_E6, ZELFREQUENCY_GROUP_6, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_E5B, ZELFREQUENCY_GROUP_4, ZELTRACKMODE_Q},
                                       {ZELFREQUENCY_E5AB, ZELFREQUENCY_GROUP_5, ZELTRACKMODE_Q},
                                       {ZELFREQUENCY_E5A, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_Q}};
constexpr SDefFrqRow c_astSbsDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_L5, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_I}};
constexpr SDefFrqRow c_astQzsDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_C},
                                       {ZELFREQUENCY_L1C, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_L},
                                       {ZELFREQUENCY_L2C, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_S},
                                       {ZELFREQUENCY_L5, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_Q}};
constexpr SDefFrqRow c_astBdsDefs[] = {{ZELFREQUENCY_L1CA, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_I},
                                       {ZELFREQUENCY_L1P, ZELFREQUENCY_GROUP_1, ZELTRACKMODE_Q},
                                       {ZELFREQUENCY_L5, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_I},
                                       {ZELFREQUENCY_L2P, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_I},
                                       {ZELFREQUENCY_L2C, ZELFREQUENCY_GROUP_2, ZELTRACKMODE_D},
                                       {ZELFREQUENCY_E5B, ZELFREQUENCY_GROUP_4, ZELTRACKMODE_P},
                                       {ZELFREQUENCY_E5AB, ZELFREQUENCY_GROUP_5, ZELTRACKMODE_P}};
constexpr SDefFrqRow c_astNavDefs[] = {{ZELFREQUENCY_L5, ZELFREQUENCY_GROUP_3, ZELTRACKMODE_A}};

// A system as the tables give it.
struct SSysDef
{
    EZelSatSystem eSysID;
    uint8_t uiMaxSysSatNb;
    EZelSatSystem eBaseSysID;
    uint8_t uiMaxBaseSatNb;
    const SFrqDef* pFrqs;
    uint64_t ulNbFrqs;
    const SDefFrqRow* pDefs;
    uint64_t ulNbDefs;
};

template <size_t N, size_t M>
constexpr SSysDef Sys(EZelSatSystem eSys, uint8_t uiMaxSys, EZelSatSystem eBase, uint8_t uiMaxBase,
                      const SFrqDef (&astFrqs)[N], const SDefFrqRow (&astDefs)[M])
{
    return SSysDef{eSys, uiMaxSys, eBase, uiMaxBase, astFrqs, N, astDefs, M};
}

constexpr uint64_t c_ulNB_SYSTEMS = ZELSATSYSTEM_LOCATA + 1;

constexpr SSysDef c_astSysDefs[c_ulNB_SYSTEMS] = {
    SSysDef{ZELSATSYSTEM_NONE, 0, ZELSATSYSTEM_NONE, 0, nullptr, 0, nullptr, 0},
    Sys(ZELSATSYSTEM_GPS, 32, ZELSATSYSTEM_GPS, 42, c_astGpsFrqs, c_astGpsDefs),
    Sys(ZELSATSYSTEM_GLONASS, 24, ZELSATSYSTEM_GLONASS, 24, c_astGloFrqs, c_astGloDefs),
    Sys(ZELSATSYSTEM_GALILEO, 36, ZELSATSYSTEM_GALILEO, 36, c_astGalFrqs, c_astGalDefs),
    Sys(ZELSATSYSTEM_SBAS, 20, ZELSATSYSTEM_SBAS, 20, c_astSbsFrqs, c_astSbsDefs),
    Sys(ZELSATSYSTEM_BEIDOU, 63, ZELSATSYSTEM_BEIDOU, 63, c_astBdsFrqs, c_astBdsDefs),
    Sys(ZELSATSYSTEM_QZSS, 10, ZELSATSYSTEM_GPS, 0, c_astQzsFrqs, c_astQzsDefs),
    Sys(ZELSATSYSTEM_NAVIC, 9, ZELSATSYSTEM_NAVIC, 9, c_astNavFrqs, c_astNavDefs),
    SSysDef{ZELSATSYSTEM_LOCATA, 0, ZELSATSYSTEM_LOCATA, 0, nullptr, 0, nullptr, 0}};

// Order in which the frequency rows are built.
constexpr EZelSatSystem c_aeFrqBuildOrder[] = {ZELSATSYSTEM_GPS,  ZELSATSYSTEM_GLONASS, ZELSATSYSTEM_GALILEO,
                                               ZELSATSYSTEM_SBAS, ZELSATSYSTEM_QZSS,    ZELSATSYSTEM_BEIDOU,
                                               ZELSATSYSTEM_NAVIC};

constexpr uint64_t CountFrqs()
{
    uint64_t ulCount = 0;
    for (const SSysDef& rSys : c_astSysDefs)
    {
        ulCount += rSys.ulNbFrqs;
    }
    return ulCount;
}

constexpr uint64_t CountRows()
{
    uint64_t ulCount = 0;
    for (const SSysDef& rSys : c_astSysDefs)
    {
        for (uint64_t ulFrq = 0; ulFrq < rSys.ulNbFrqs; ++ulFrq)
        {
            ulCount += rSys.pFrqs[ulFrq].ulNbRows;
        }
    }
    return ulCount;
}

constexpr uint64_t c_ulNB_FRQS = CountFrqs();
constexpr uint64_t c_ulNB_ROWS = CountRows();

// The built catalogue: the rows carry their DCB index, so they live here and
// not in the constant tables.
struct SCatalogue
{
    STrackModeInfo astRows[c_ulNB_ROWS];
    SFrqInfo astFrqs[c_ulNB_FRQS];
    SSysInfo astSysInfo[c_ulNB_SYSTEMS];

    SCatalogue()
    {
        const SFrqInfo* apSysFrqs[c_ulNB_SYSTEMS] = {};
        uint64_t ulRow = 0;
        uint64_t ulFrq = 0;
        for (const EZelSatSystem eSys : c_aeFrqBuildOrder)
        {
            const SSysDef& rSys = c_astSysDefs[eSys];
            apSysFrqs[eSys] = &astFrqs[ulFrq];
            for (uint64_t ulIdx = 0; ulIdx < rSys.ulNbFrqs; ++ulIdx)
            {
                const SFrqDef& rFrq = rSys.pFrqs[ulIdx];
                STrackModeInfo* pRows = &astRows[ulRow];
                for (uint64_t ulRowIdx = 0; ulRowIdx < rFrq.ulNbRows; ++ulRowIdx)
                {
                    pRows[ulRowIdx] = rFrq.pRows[ulRowIdx];
                }
                ulRow += rFrq.ulNbRows;
                astFrqs[ulFrq++] = SFrqInfo(rFrq.szName, rFrq.eDefTrackMode, pRows, rFrq.ulNbRows,
                                            rFrq.pDcbGrps, rFrq.ulNbDcbGrps, rFrq.eFrqGrp);
            }
        }
        for (uint64_t ulSys = 0; ulSys < c_ulNB_SYSTEMS; ++ulSys)
        {
            const SSysDef& rSys = c_astSysDefs[ulSys];
            astSysInfo[ulSys] =
                SSysInfo(rSys.eSysID, rSys.uiMaxSysSatNb, rSys.eBaseSysID, rSys.uiMaxBaseSatNb,
                         apSysFrqs[ulSys], rSys.ulNbFrqs, rSys.pDefs, rSys.ulNbDefs);
        }
        ObsInfoDetail::CheckSysTable(astSysInfo);
    }
};

bool IsFrequencySlot(EZelFrequency eFrq)
{
    return eFrq >= ZELFREQUENCY_L1CA && eFrq <= ZELFREQUENCY_E6;
}

} // namespace

// ---------------------------------------------------------------------------
// SFrqInfo
// ---------------------------------------------------------------------------

SFrqInfo::SFrqInfo()
    : szSysFrq(nullptr), ulNbTrackModes(0), astTrackModeIdx(), astTrackModes(nullptr), ulNbDCBGrps(0),
      aebfDCBGrps(nullptr), eZelFrqGrpID(ZELFREQUENCY_GROUP_NONE), ebfTMdGrps(0), eFrqMin(ZELFREQUENCY_MAX),
      eFrqMax(ZELFREQUENCY_UNKNOWN)
{
    for (int32_t& rlIdx : astTrackModeIdx)
    {
        rlIdx = -1;
    }
}

SFrqInfo::SFrqInfo(const char* szSysFrq_, EZelTrackMode eDefTrackMode, STrackModeInfo* astTrackModes_,
                   uint64_t ulNbTrackModes_, const uint32_t* aebfDCBGrps_, uint64_t ulNbDCBGrps_,
                   EZelFrequencyGroup eZelFrqGrpID_)
    : szSysFrq(szSysFrq_), ulNbTrackModes(ulNbTrackModes_), astTrackModeIdx(), astTrackModes(astTrackModes_),
      ulNbDCBGrps(ulNbDCBGrps_), aebfDCBGrps(aebfDCBGrps_), eZelFrqGrpID(eZelFrqGrpID_), ebfTMdGrps(0),
      eFrqMin(ZELFREQUENCY_MAX), eFrqMax(ZELFREQUENCY_UNKNOWN)
{
    // A null name or table is a defect of the caller's tables: nothing to index.
    if (szSysFrq == nullptr || (astTrackModes == nullptr && ulNbTrackModes != 0) ||
        (aebfDCBGrps == nullptr && ulNbDCBGrps != 0))
    {
        ZEL_ASSERT(false);
        szSysFrq = szSysFrq != nullptr ? szSysFrq : "";
        ulNbTrackModes = astTrackModes != nullptr ? ulNbTrackModes : 0;
        ulNbDCBGrps = aebfDCBGrps != nullptr ? ulNbDCBGrps : 0;
    }

    const uint64_t ulSzLgth = std::strlen(szSysFrq);
    ZEL_ASSERT(ulSzLgth < ulSZFRQ_MAXLGTH);
    for (uint64_t ulIdx = 0; ulIdx < ulSzLgth; ++ulIdx)
    {
        // A plain char may be negative, which the C function does not accept.
        ZEL_ASSERT_TEXT(std::isalnum(static_cast<unsigned char>(szSysFrq[ulIdx])) != 0,
                        "isalnum(szSysFrq[ulIdx]) != 0");
    }

    for (int32_t& rlIdx : astTrackModeIdx)
    {
        rlIdx = -1;
    }

    for (uint64_t ulTMIdx = 0; ulTMIdx < ulNbTrackModes; ++ulTMIdx)
    {
        const STrackModeInfo& rstIdxTMInfo = astTrackModes[ulTMIdx];
        // A mode outside the index array cannot be indexed.
        if (rstIdxTMInfo.eTrackMode < ZELTRACKMODE_UNKNOWN || rstIdxTMInfo.eTrackMode > ZELTRACKMODE_Z)
        {
            ZEL_ASSERT(false);
            continue;
        }
        astTrackModeIdx[rstIdxTMInfo.eTrackMode] = static_cast<int32_t>(ulTMIdx);
        if (rstIdxTMInfo.eFrq < eFrqMin)
        {
            eFrqMin = rstIdxTMInfo.eFrq;
        }
        if (rstIdxTMInfo.eFrq > eFrqMax)
        {
            eFrqMax = rstIdxTMInfo.eFrq;
        }
        ZEL_ASSERT((ebfTMdGrps & ToTMdGroup(rstIdxTMInfo.eTrackMode)) == 0);
        ebfTMdGrps |= ToTMdGroup(rstIdxTMInfo.eTrackMode);
    }

    if (eDefTrackMode >= ZELTRACKMODE_UNKNOWN && eDefTrackMode <= ZELTRACKMODE_Z)
    {
        astTrackModeIdx[ZELTRACKMODE_UNKNOWN] = astTrackModeIdx[eDefTrackMode];
    }
    else
    {
        ZEL_ASSERT(false); // a default outside the index array
    }

    ZEL_ASSERT(eFrqMin <= eFrqMax);

    for (uint64_t ulDcbIdx = 0; ulDcbIdx < ulNbDCBGrps; ++ulDcbIdx)
    {
        for (int32_t lMode = ZELTRACKMODE_UNKNOWN; lMode <= ZELTRACKMODE_Z; ++lMode)
        {
            if ((aebfDCBGrps[ulDcbIdx] & ToTMdGroup(static_cast<EZelTrackMode>(lMode))) == 0)
            {
                continue;
            }
            const int32_t lTMIdx = astTrackModeIdx[lMode];
            // A mode that the group names and the frequency lacks has no row.
            if (lTMIdx < 0)
            {
                ZEL_ASSERT(false);
                continue;
            }
            STrackModeInfo& rstIdxTMInfo = astTrackModes[lTMIdx];
            ZEL_ASSERT(rstIdxTMInfo.lDCBGrpIdx == -1);
            rstIdxTMInfo.lDCBGrpIdx = static_cast<int32_t>(ulDcbIdx);
        }
    }

    for (uint64_t ulTMIdx = 0; ulTMIdx < ulNbTrackModes; ++ulTMIdx)
    {
        ZEL_ASSERT(astTrackModes[ulTMIdx].lDCBGrpIdx >= 0 ||
                   astTrackModes[ulTMIdx].eTrackMode == ZELTRACKMODE_N);
    }
}

const STrackModeInfo* SFrqInfo::GetTrackModeInfo(EZelTrackMode eTrackMode) const
{
    if (eTrackMode < ZELTRACKMODE_UNKNOWN || eTrackMode > ZELTRACKMODE_Z)
    {
        return nullptr;
    }
    const int32_t lIdx = astTrackModeIdx[eTrackMode];
    if (lIdx < 0 || static_cast<uint64_t>(lIdx) >= ulNbTrackModes)
    {
        return nullptr;
    }
    ZEL_ASSERT(astTrackModes[astTrackModeIdx[eTrackMode]].eTrackMode == eTrackMode ||
               eTrackMode == ZELTRACKMODE_UNKNOWN);
    return &astTrackModes[lIdx];
}

bool SFrqInfo::GetDefaultFrequency(EZelFrequency& reFrq) const
{
    const STrackModeInfo* pDefault = GetTrackModeInfo(ZELTRACKMODE_UNKNOWN);
    if (pDefault == nullptr)
    {
        ZEL_ASSERT(false);
        reFrq = ZELFREQUENCY_UNKNOWN;
        return false;
    }
    reFrq = pDefault->eFrq;
    return true;
}

// ---------------------------------------------------------------------------
// SSysInfo
// ---------------------------------------------------------------------------

SSysInfo::SSysInfo()
    : eSysID(ZELSATSYSTEM_NONE), uiMaxSysSatNb(0), eBaseSysID(ZELSATSYSTEM_NONE), uiMaxBaseSatNb(0),
      astFrqs(nullptr), ebfFrqGrps(0), aulFrqGrpIdx(), aeDefFrqIdx()
{
    for (int64_t& rlIdx : aulFrqGrpIdx)
    {
        rlIdx = -1;
    }
    for (auto& rPair : aeDefFrqIdx)
    {
        rPair = std::make_pair(ZELFREQUENCY_GROUP_NONE, ZELTRACKMODE_UNKNOWN);
    }
}

SSysInfo::SSysInfo(EZelSatSystem eSysID_, uint8_t uiMaxSysSatNb_, EZelSatSystem eBaseSysID_,
                   uint8_t uiMaxBaseSatNb_, const SFrqInfo* astFrqs_, uint64_t ulNbFrqs,
                   const SDefFrqRow* astDefRows, uint64_t ulNbDefRows)
    : eSysID(eSysID_), uiMaxSysSatNb(uiMaxSysSatNb_), eBaseSysID(eBaseSysID_),
      uiMaxBaseSatNb(uiMaxBaseSatNb_), astFrqs(astFrqs_), ebfFrqGrps(0), aulFrqGrpIdx(), aeDefFrqIdx()
{
    ZEL_ASSERT((eBaseSysID != eSysID && uiMaxBaseSatNb == 0) ||
               (eBaseSysID == eSysID && uiMaxBaseSatNb >= uiMaxSysSatNb));
    ZEL_ASSERT(uiMaxBaseSatNb <= ZEL_DEF_MAXSATID);

    for (int64_t& rlIdx : aulFrqGrpIdx)
    {
        rlIdx = -1;
    }
    for (auto& rPair : aeDefFrqIdx)
    {
        rPair = std::make_pair(ZELFREQUENCY_GROUP_NONE, ZELTRACKMODE_UNKNOWN);
    }

    // Null tables are a defect of the caller's tables: nothing to index.
    if ((astFrqs == nullptr && ulNbFrqs != 0) || (astDefRows == nullptr && ulNbDefRows != 0))
    {
        ZEL_ASSERT(false);
        ulNbFrqs = astFrqs != nullptr ? ulNbFrqs : 0;
        ulNbDefRows = astDefRows != nullptr ? ulNbDefRows : 0;
    }

    for (uint64_t ulFrqIdx = 0; ulFrqIdx < ulNbFrqs; ++ulFrqIdx)
    {
        const EZelFrequencyGroup eFrqGrp = astFrqs[ulFrqIdx].eZelFrqGrpID;
        // A group outside the index array cannot be indexed.
        if (eFrqGrp < ZELFREQUENCY_GROUP_NONE || eFrqGrp >= ZELFREQUENCY_GROUPS_MAX)
        {
            ZEL_ASSERT(false);
            continue;
        }
        ebfFrqGrps |= ToFrqGroupBit(eFrqGrp);
        aulFrqGrpIdx[eFrqGrp] = static_cast<int64_t>(ulFrqIdx);
    }
    ZEL_ASSERT_TEXT(GetNbFrqs() == ulNbFrqs, "GetNbFrqs() == _ulFrqIdxMax");

    for (uint64_t ulDefIdx = 0; ulDefIdx < ulNbDefRows; ++ulDefIdx)
    {
        const EZelFrequency eZelFrq = astDefRows[ulDefIdx].eZelFrq;
        // A slot outside the default array cannot be stored.
        if (eZelFrq < ZELFREQUENCY_UNKNOWN || eZelFrq >= ZELFREQUENCY_MAX)
        {
            ZEL_ASSERT(false);
            continue;
        }
        aeDefFrqIdx[eZelFrq] = std::make_pair(astDefRows[ulDefIdx].eFrqGrp, astDefRows[ulDefIdx].eTrackMode);
        ZEL_ASSERT_TEXT(aeDefFrqIdx[eZelFrq].first == getFrequencyGroupIndex(eZelFrq),
                        "aeDefFrqIdx[eZelFrq].first == getFrequencyGroupIndex( eZelFrq )");
    }
}

uint64_t SSysInfo::GetNbFrqs() const
{
    uint64_t ulCount = 0;
    for (uint32_t ebfRest = ebfFrqGrps; ebfRest != 0; ebfRest &= ebfRest - 1)
    {
        ++ulCount;
    }
    return ulCount;
}

const SFrqInfo* SSysInfo::GetFrqByGroup(EZelFrequencyGroup eFrqGrpIdx) const
{
    if (eFrqGrpIdx < ZELFREQUENCY_GROUP_1 || eFrqGrpIdx > ZELFREQUENCY_GROUP_6 || astFrqs == nullptr)
    {
        return nullptr;
    }
    if (aulFrqGrpIdx[eFrqGrpIdx] < 0)
    {
        return nullptr;
    }
    ZEL_ASSERT(astFrqs[aulFrqGrpIdx[eFrqGrpIdx]].eZelFrqGrpID == eFrqGrpIdx);
    return &astFrqs[aulFrqGrpIdx[eFrqGrpIdx]];
}

const SFrqInfo* SSysInfo::GetFrqByName(const char* szName) const
{
    if (szName == nullptr || astFrqs == nullptr)
    {
        return nullptr;
    }
    const uint64_t ulNbFrqs = GetNbFrqs();
    for (uint64_t ulIdx = 0; ulIdx < ulNbFrqs; ++ulIdx)
    {
        if (astFrqs[ulIdx].szSysFrq != nullptr && std::strcmp(astFrqs[ulIdx].szSysFrq, szName) == 0)
        {
            return &astFrqs[ulIdx];
        }
    }
    return nullptr;
}

const SFrqInfo* SSysInfo::GetFrqInfo(EZelFrequency eFrq) const
{
    if (!IsFrequencySlot(eFrq))
    {
        return nullptr;
    }
    return GetFrqByGroup(aeDefFrqIdx[eFrq].first);
}

bool SSysInfo::GetDefaultSignal(EZelFrequency eFrq, const SFrqInfo*& rpFrq,
                                const STrackModeInfo*& rpTrackMode) const
{
    if (!IsFrequencySlot(eFrq) || aeDefFrqIdx[eFrq].first == ZELFREQUENCY_GROUP_NONE ||
        aeDefFrqIdx[eFrq].second == ZELTRACKMODE_UNKNOWN)
    {
        return false;
    }
    const SFrqInfo* pFrq = GetFrqByGroup(aeDefFrqIdx[eFrq].first);
    if (pFrq == nullptr)
    {
        return false;
    }
    const STrackModeInfo* pTrackMode = pFrq->GetTrackModeInfo(aeDefFrqIdx[eFrq].second);
    if (pTrackMode == nullptr)
    {
        return false;
    }
    rpFrq = pFrq;
    rpTrackMode = pTrackMode;
    return true;
}

const STrackModeInfo* SSysInfo::GetTrackModeInfo(EZelFrequency eFrq, EZelTrackMode eTrackMode) const
{
    const SFrqInfo* pFrq = GetFrqInfo(eFrq);
    return pFrq != nullptr ? pFrq->GetTrackModeInfo(eTrackMode) : nullptr;
}

const STrackModeInfo* SSysInfo::GetTrackModeInfoByGroup(EZelFrequencyGroup eFrqGrp,
                                                        EZelTrackMode eTrackMode) const
{
    const SFrqInfo* pFrq = GetFrqByGroup(eFrqGrp);
    return pFrq != nullptr ? pFrq->GetTrackModeInfo(eTrackMode) : nullptr;
}

// ---------------------------------------------------------------------------
// Catalogue and free functions
// ---------------------------------------------------------------------------

void ObsInfoDetail::CheckSysTable(const SSysInfo* astSysInfo)
{
    if (astSysInfo == nullptr)
    {
        ZEL_ASSERT(false);
        return;
    }
    ZEL_ASSERT_TEXT(astSysInfo[ZELSATSYSTEM_QZSS].eBaseSysID == ZELSATSYSTEM_GPS,
                    "ast_Sys_Info[ZELSATSYSTEM_QZSS].eBaseSysID == ZELSATSYSTEM_GPS");

    unsigned int auiBaseSysIDSums[c_ulNB_SYSTEMS] = {};
    for (int32_t lSys = ZELSATSYSTEM_GPS; lSys <= ZELSATSYSTEM_LOCATA; ++lSys)
    {
        const EZelSatSystem eSys = static_cast<EZelSatSystem>(lSys);
        ZEL_ASSERT_TEXT(
            astSysInfo[eSys].eBaseSysID == astSysInfo[eSys].eSysID || eSys == ZELSATSYSTEM_QZSS,
            "ast_Sys_Info[eSys].eBaseSysID == ast_Sys_Info[eSys].eSysID || eSys == ZELSATSYSTEM_QZSS");
        const EZelSatSystem eBase = astSysInfo[eSys].eBaseSysID;
        // A base outside the table has no sum to add to.
        if (eBase < ZELSATSYSTEM_NONE || eBase > ZELSATSYSTEM_LOCATA)
        {
            ZEL_ASSERT(false);
            continue;
        }
        auiBaseSysIDSums[eBase] += astSysInfo[eSys].uiMaxSysSatNb;
    }
    for (int32_t lSys = ZELSATSYSTEM_GPS; lSys <= ZELSATSYSTEM_LOCATA; ++lSys)
    {
        const EZelSatSystem eSys = static_cast<EZelSatSystem>(lSys);
        ZEL_ASSERT_TEXT(astSysInfo[eSys].uiMaxBaseSatNb >= auiBaseSysIDSums[eSys],
                        "ast_Sys_Info[eSys].uiMaxBaseSatNb >= auiBaseSysIDSums[eSys]");
    }
}

const SSysInfo& GetSysInfo(EZelSatSystem eSys)
{
    // Thread-safe construction at first use; read-only afterwards.
    static const SCatalogue s_stCatalogue;
    // The system is not checked, but a value outside the table must not be
    // read: it gets the row of no system.
    if (eSys < ZELSATSYSTEM_NONE || eSys > ZELSATSYSTEM_LOCATA)
    {
        return s_stCatalogue.astSysInfo[ZELSATSYSTEM_NONE];
    }
    return s_stCatalogue.astSysInfo[eSys];
}

uint32_t ToFrqGroupBit(EZelFrequencyGroup eFrqGrp)
{
    ZEL_ASSERT(eFrqGrp < ZELFREQUENCY_GROUPS_MAX);
    if (eFrqGrp >= ZELFREQUENCY_GROUP_1 && eFrqGrp <= ZELFREQUENCY_GROUP_6)
    {
        return 1u << (eFrqGrp - 1);
    }
    return 0;
}

EZelFrequencyGroup FromFrqGroupBit(uint32_t ulBit)
{
    if (ulBit == 0)
    {
        return ZELFREQUENCY_GROUP_NONE;
    }
    for (int32_t lGrp = ZELFREQUENCY_GROUP_1; lGrp <= ZELFREQUENCY_GROUP_6; ++lGrp)
    {
        if (ulBit == (1u << (lGrp - 1)))
        {
            return static_cast<EZelFrequencyGroup>(lGrp);
        }
    }
    ZEL_ASSERT(false);
    return ZELFREQUENCY_GROUP_NONE;
}

EZelFrequencyGroup getFrequencyGroupIndex(EZelFrequency eZelFrq)
{
    switch (eZelFrq)
    {
    case ZELFREQUENCY_L1CA:
    case ZELFREQUENCY_L1P:
    case ZELFREQUENCY_L1C:
        return ZELFREQUENCY_GROUP_1;
    case ZELFREQUENCY_L2C:
    case ZELFREQUENCY_L2P:
        return ZELFREQUENCY_GROUP_2;
    case ZELFREQUENCY_L5:
    case ZELFREQUENCY_E5A:
        return ZELFREQUENCY_GROUP_3;
    case ZELFREQUENCY_E5B:
        return ZELFREQUENCY_GROUP_4;
    case ZELFREQUENCY_E5AB:
        return ZELFREQUENCY_GROUP_5;
    case ZELFREQUENCY_E6:
        return ZELFREQUENCY_GROUP_6;
    default:
        return ZELFREQUENCY_GROUP_NONE;
    }
}

SZelSatID ToBaseSatID(EZelSatSystem eBaseSys, uint8_t ucBaseNb)
{
    ZEL_ASSERT(GetSysInfo(eBaseSys).eBaseSysID == eBaseSys);
    if (eBaseSys == ZELSATSYSTEM_GPS && ucBaseNb >= 33)
    {
        return SZelSatID(ZELSATSYSTEM_QZSS, static_cast<uint8_t>(ucBaseNb - 32));
    }
    return SZelSatID(eBaseSys, ucBaseNb);
}

uint8_t ToBaseSatNumber(const SZelSatID& rSatID)
{
    if (rSatID.eSatSystem == ZELSATSYSTEM_QZSS)
    {
        return static_cast<uint8_t>(rSatID.uiSatNumber + 32); // one byte, as stored
    }
    return rSatID.uiSatNumber;
}

std::string GetFrqGroupsText(EZelSatSystem eSys, uint32_t ebfFrqGrps)
{
    std::string strText = "SysIv";
    if (eSys >= ZELSATSYSTEM_GLONASS && eSys <= ZELSATSYSTEM_LOCATA)
    {
        strText.clear();
        const SSysInfo& rSys = GetSysInfo(eSys);
        for (int32_t lBit = 0; lBit < 32; ++lBit)
        {
            if ((ebfFrqGrps & (1u << lBit)) == 0)
            {
                continue;
            }
            if (!strText.empty())
            {
                strText += '|';
            }
            const SFrqInfo* pFrq = rSys.GetFrqByGroup(static_cast<EZelFrequencyGroup>(lBit + 1));
            strText += (pFrq != nullptr && pFrq->szSysFrq != nullptr) ? pFrq->szSysFrq : "IV";
        }
    }
    return strText;
}

bool ReadFrqName(std::istream& is, char (&szBuffer)[ulSZFRQ_MAXLGTH])
{
    uint64_t ulLength = 0;
    szBuffer[0] = '\0';
    while (is)
    {
        const int iNext = is.peek();
        if (iNext == std::char_traits<char>::eof() ||
            std::isalnum(static_cast<unsigned char>(static_cast<char>(iNext))) == 0)
        {
            break;
        }
        if (ulLength + 1 >= ulSZFRQ_MAXLGTH)
        {
            return false; // a fifth alphanumeric character
        }
        szBuffer[ulLength++] = static_cast<char>(is.get());
        szBuffer[ulLength] = '\0';
    }
    return ulLength != 0;
}

} // namespace ZELN
