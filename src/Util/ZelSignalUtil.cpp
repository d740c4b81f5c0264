#include <ZelTypes/Util/ZelSignalUtil.h>

#include <ZelTypes/Core/Common/ZelFrequencyManager.h>

#include <cstring>

namespace ZELN
{

namespace
{

// RINEX band digit by catalogue group 0 to 6, per system 0 to 8; '\0' where
// the system has no code for the group.
constexpr char c_aacBANDS[9][ZELFREQUENCY_GROUPS_MAX] = {{0, 0, 0, 0, 0, 0, 0},           // none
                                                         {0, '1', '2', '5', 0, 0, 0},     // GPS
                                                         {0, '1', '2', '3', 0, 0, 0},     // GLONASS
                                                         {0, '1', 0, '5', '7', '8', '6'}, // Galileo
                                                         {0, '1', 0, '5', 0, 0, 0},       // SBAS
                                                         {0, '2', '7', '6', '1', '5', 0}, // BeiDou
                                                         {0, '1', '2', '5', 0, 0, 0},     // QZSS
                                                         {0, 0, 0, '5', 0, 0, 0},         // NavIC
                                                         {0, 0, 0, 0, 0, 0, 0}};          // Locata

bool IsSystem(EZelSatSystem eSys)
{
    return eSys >= ZELSATSYSTEM_GPS && eSys <= ZELSATSYSTEM_LOCATA;
}

bool IsGroup(EZelFrequencyGroup eFrqGrp)
{
    return eFrqGrp >= ZELFREQUENCY_GROUP_1 && eFrqGrp <= ZELFREQUENCY_GROUP_6;
}

bool IsObsType(char c)
{
    return c == 'C' || c == 'L' || c == 'D' || c == 'S';
}

// The letters of the tracking modes 1 to 15, checked here so that the
// library's conversion is never handed a letter it would report.
EZelTrackMode TrackModeOfLetter(char c)
{
    if (c == '\0' || std::strchr("ABCDILMNPQSWXYZ", c) == nullptr)
    {
        return ZELTRACKMODE_UNKNOWN;
    }
    return FromTrackModeLetter(c);
}

// The catalogue's row of a signal, or null.
const STrackModeInfo* CatalogueRow(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp, EZelTrackMode eTrackMode)
{
    if (!IsSystem(eSys) || !IsGroup(eFrqGrp) || eTrackMode < ZELTRACKMODE_A || eTrackMode > ZELTRACKMODE_Z)
    {
        return nullptr;
    }
    const SFrqInfo* pFrq = GetSysInfo(eSys).GetFrqByGroup(eFrqGrp);
    return pFrq == nullptr ? nullptr : pFrq->GetTrackModeInfo(eTrackMode);
}

} // namespace

bool HasFrequencyGroup(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp)
{
    return IsSystem(eSys) && IsGroup(eFrqGrp) && GetSysInfo(eSys).GetFrqByGroup(eFrqGrp) != nullptr;
}

char ToRinexBand(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp)
{
    if (!HasFrequencyGroup(eSys, eFrqGrp))
    {
        return '\0';
    }
    return c_aacBANDS[eSys][eFrqGrp];
}

EZelFrequencyGroup FromRinexBand(EZelSatSystem eSys, char cBand)
{
    if (!IsSystem(eSys) || cBand == '\0')
    {
        return ZELFREQUENCY_GROUP_NONE;
    }
    for (int32_t lGrp = ZELFREQUENCY_GROUP_1; lGrp <= ZELFREQUENCY_GROUP_6; ++lGrp)
    {
        const EZelFrequencyGroup eGrp = static_cast<EZelFrequencyGroup>(lGrp);
        if (c_aacBANDS[eSys][lGrp] == cBand && HasFrequencyGroup(eSys, eGrp))
        {
            return eGrp;
        }
    }
    return ZELFREQUENCY_GROUP_NONE;
}

bool FindRinexSignal(EZelSatSystem eSys, const std::string& strCode, SZelRinexSignal& rSignal)
{
    if (!IsSystem(eSys) || strCode.size() != 3 || !IsObsType(strCode[0]))
    {
        return false;
    }
    const EZelTrackMode eTrackMode = TrackModeOfLetter(strCode[2]);
    EZelFrequencyGroup eFrqGrp = FromRinexBand(eSys, strCode[1]);
    // BeiDou B1 was band 1 before RINEX 3.03; its I and Q are read as such.
    if (eSys == ZELSATSYSTEM_BEIDOU && strCode[1] == '1' &&
        (eTrackMode == ZELTRACKMODE_I || eTrackMode == ZELTRACKMODE_Q))
    {
        eFrqGrp = ZELFREQUENCY_GROUP_1;
    }
    const STrackModeInfo* pRow = CatalogueRow(eSys, eFrqGrp, eTrackMode);
    if (pRow == nullptr)
    {
        return false;
    }
    rSignal.cObsType = strCode[0];
    rSignal.eSatSystem = eSys;
    rSignal.eFrqGrp = eFrqGrp;
    rSignal.eFrq = pRow->eFrq;
    rSignal.eTrackMode = eTrackMode;
    return true;
}

std::string ToRinexCode(const SZelRinexSignal& rSignal)
{
    const STrackModeInfo* pRow = CatalogueRow(rSignal.eSatSystem, rSignal.eFrqGrp, rSignal.eTrackMode);
    const char cBand = ToRinexBand(rSignal.eSatSystem, rSignal.eFrqGrp);
    if (!IsObsType(rSignal.cObsType) || pRow == nullptr || cBand == '\0' ||
        (rSignal.eFrq != ZELFREQUENCY_UNKNOWN && rSignal.eFrq != pRow->eFrq))
    {
        return std::string();
    }
    std::string strCode(1, rSignal.cObsType);
    strCode += cBand;
    strCode += ToTrackModeLetter(rSignal.eTrackMode);
    return strCode;
}

bool TryGetNominalFrequency(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp, double& rdFrequencyHz)
{
    if (!HasFrequencyGroup(eSys, eFrqGrp))
    {
        return false;
    }
    const double dFrequencyHz = CZelFrequencyMgr::GetNominalFrequency(eSys, static_cast<int>(eFrqGrp));
    if (!(dFrequencyHz > 0.0))
    {
        return false;
    }
    rdFrequencyHz = dFrequencyHz;
    return true;
}

std::vector<SZelSignalRow> ListSignals(EZelSatSystem eSys)
{
    std::vector<SZelSignalRow> vecRows;
    if (!IsSystem(eSys))
    {
        return vecRows;
    }
    const SSysInfo& rSysInfo = GetSysInfo(eSys);
    for (uint64_t ulFrq = 0; ulFrq < rSysInfo.GetNbFrqs(); ++ulFrq)
    {
        const SFrqInfo& rFrq = rSysInfo.astFrqs[ulFrq];
        double dFrequencyHz = 0.0;
        TryGetNominalFrequency(eSys, rFrq.eZelFrqGrpID, dFrequencyHz);
        const char cBand = ToRinexBand(eSys, rFrq.eZelFrqGrpID);
        for (uint64_t ulMode = 0; ulMode < rFrq.ulNbTrackModes; ++ulMode)
        {
            SZelSignalRow stRow;
            stRow.eSatSystem = eSys;
            stRow.eFrqGrp = rFrq.eZelFrqGrpID;
            stRow.strFrqName = rFrq.szSysFrq;
            stRow.eFrq = rFrq.astTrackModes[ulMode].eFrq;
            stRow.eTrackMode = rFrq.astTrackModes[ulMode].eTrackMode;
            if (cBand != '\0')
            {
                stRow.strRinexSignal = std::string(1, cBand) + ToTrackModeLetter(stRow.eTrackMode);
            }
            stRow.dNominalFrequencyHz = dFrequencyHz;
            vecRows.push_back(stRow);
        }
    }
    return vecRows;
}

} // namespace ZELN
