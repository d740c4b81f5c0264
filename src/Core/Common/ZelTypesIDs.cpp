#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cctype>
#include <iomanip>
#include <iostream>

namespace ZELN
{

namespace
{

constexpr char c_acSysLetters[] = "NGRESCJIL";
constexpr char c_acTMdLetters[] = "UABCDILMNPQSWXYZ";
constexpr char c_acComponentLetters[] = "UIQXDPZ"; // from -1 on

constexpr const char* c_aszOrbitSourceWords[] = {"Alm", "Eph", "Prc", "Vrp", "Max"};

// Offsets of the global numbering by system; NavIC lies above Locata.
constexpr uint8_t c_aucGlobalOffset[] = {0, 0, 32, 56, 92, 112, 175, 225, 185};
constexpr uint8_t c_ucMAX_GLOBAL = 234;

bool IsSystem(EZelSatSystem eSys)
{
    return eSys >= ZELSATSYSTEM_GPS && eSys <= ZELSATSYSTEM_LOCATA;
}

// Letter to system without report: the systems reader skips unknown letters.
EZelSatSystem SystemOfLetter(char c)
{
    for (int32_t lSys = 0; lSys <= ZELSATSYSTEM_LOCATA; ++lSys)
    {
        if (c_acSysLetters[lSys] == c)
        {
            return static_cast<EZelSatSystem>(lSys);
        }
    }
    return c_eZELSATSYSTEM_INVALID;
}

// The catalogue's name of a group, "iv" where the system has none.
const char* GroupName(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp)
{
    const SFrqInfo* pFrq = GetSysInfo(eSys).GetFrqByGroup(eFrqGrp);
    return (pFrq != nullptr && pFrq->szSysFrq != nullptr) ? pFrq->szSysFrq : "iv";
}

// ":" and a frequency name; false (and the stream failed) when no name of
// up to 4 alphanumeric characters follows.
bool ReadColonName(std::istream& is, char (&szName)[ulSZFRQ_MAXLGTH])
{
    ZelIo::SkipComma(is);
    if (!is)
    {
        return false;
    }
    if (!ReadFrqName(is, szName))
    {
        is.setstate(std::ios::failbit);
        return false;
    }
    return true;
}

EZelFrequencyGroup GroupOfName(EZelSatSystem eSys, const char* szName)
{
    const SFrqInfo* pFrq = GetSysInfo(eSys).GetFrqByName(szName);
    return pFrq != nullptr ? pFrq->eZelFrqGrpID : ZELFREQUENCY_GROUP_NONE;
}

// The letter and the number of a satellite; the fields keep their values
// when the stream fails before them.
std::istream& ReadSatID(std::istream& is, SZelSatID& rSatID)
{
    char cLetter = 0;
    if (!(is >> cLetter))
    {
        return is;
    }
    rSatID.eSatSystem = FromSatSystemLetter(cLetter);
    unsigned int uiNumber = 0;
    if (is >> uiNumber)
    {
        rSatID.uiSatNumber = static_cast<uint8_t>(uiNumber);
    }
    return is;
}

// Frequency name and track modes of the group identifiers: the system must be
// 1 to 8 and the name must exist, else "false" and the rest stays unread.
std::istream& ReadGroupTail(std::istream& is, EZelSatSystem eSys, EZelFrequencyGroup& reFrqGrp,
                            uint32_t& rebfTMdGrps)
{
    if (!IsSystem(eSys))
    {
        ZEL_ASSERT(false);
        is.setstate(std::ios::failbit);
        return is;
    }
    char szName[ulSZFRQ_MAXLGTH] = {};
    if (!ReadColonName(is, szName))
    {
        return is;
    }
    const SFrqInfo* pFrq = GetSysInfo(eSys).GetFrqByName(szName);
    if (pFrq == nullptr)
    {
        ZEL_ASSERT(false);
        is.setstate(std::ios::failbit);
        return is;
    }
    reFrqGrp = pFrq->eZelFrqGrpID;
    ZelIo::SkipComma(is);
    return ReadTMdGroups(is, rebfTMdGrps);
}

} // namespace

// ---------------------------------------------------------------------------
// Conversions
// ---------------------------------------------------------------------------

char ToSatSystemLetter(EZelSatSystem eSys)
{
    if (eSys < ZELSATSYSTEM_NONE || eSys > ZELSATSYSTEM_LOCATA)
    {
        ZEL_ASSERT(false);
        return '?';
    }
    return c_acSysLetters[eSys];
}

EZelSatSystem FromSatSystemLetter(char c)
{
    const EZelSatSystem eSys = SystemOfLetter(c);
    if (eSys == c_eZELSATSYSTEM_INVALID)
    {
        ZEL_ASSERT(false);
    }
    return eSys;
}

char ToTrackModeLetter(EZelTrackMode eTrackMode)
{
    if (eTrackMode < ZELTRACKMODE_UNKNOWN || eTrackMode > ZELTRACKMODE_Z)
    {
        ZEL_ASSERT(false);
        return 'U';
    }
    return c_acTMdLetters[eTrackMode];
}

EZelTrackMode FromTrackModeLetter(char c)
{
    for (int32_t lMode = ZELTRACKMODE_UNKNOWN; lMode <= ZELTRACKMODE_Z; ++lMode)
    {
        if (c_acTMdLetters[lMode] == c)
        {
            return static_cast<EZelTrackMode>(lMode);
        }
    }
    ZEL_ASSERT(false);
    return ZELTRACKMODE_UNKNOWN;
}

char ToTrackComponentLetter(ETrackComponent eComponent)
{
    if (eComponent < TRACKCOMPONENT_U || eComponent > TRACKCOMPONENT_Z)
    {
        ZEL_ASSERT(false);
        return 'U';
    }
    return c_acComponentLetters[eComponent + 1];
}

ETrackComponent FromTrackComponentLetter(char c)
{
    for (int32_t lComp = TRACKCOMPONENT_U; lComp <= TRACKCOMPONENT_Z; ++lComp)
    {
        if (c_acComponentLetters[lComp + 1] == c)
        {
            return static_cast<ETrackComponent>(lComp);
        }
    }
    return TRACKCOMPONENT_U;
}

uint32_t GetSysFrqGroups(EZelSatSystem eSys)
{
    switch (eSys)
    {
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GLONASS:
    case ZELSATSYSTEM_QZSS:
        return 7;
    case ZELSATSYSTEM_GALILEO:
        return 61;
    case ZELSATSYSTEM_BEIDOU:
        return 31;
    case ZELSATSYSTEM_NAVIC:
        return 4;
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_LOCATA:
        return 0;
    default:
        ZEL_ASSERT(false);
        return 0;
    }
}

uint8_t ToGlobalSatNumber(const SZelSatID& rSatID)
{
    if (!IsSystem(rSatID.eSatSystem))
    {
        ZEL_ASSERT(false);
        return 0;
    }
    // One byte: the sum wraps as the stored form does.
    return static_cast<uint8_t>(rSatID.uiSatNumber + c_aucGlobalOffset[rSatID.eSatSystem]);
}

SZelSatID FromGlobalSatNumber(uint8_t uiGlobal)
{
    if (uiGlobal == 0)
    {
        return SZelSatID();
    }
    if (uiGlobal > c_ucMAX_GLOBAL)
    {
        return SZelSatID(c_eZELSATSYSTEM_INVALID, 0);
    }
    for (int32_t lSys = ZELSATSYSTEM_GPS; lSys <= ZELSATSYSTEM_LOCATA; ++lSys)
    {
        const EZelSatSystem eSys = static_cast<EZelSatSystem>(lSys);
        const unsigned int uiFirst = c_aucGlobalOffset[lSys] + 1u;
        if (uiGlobal >= uiFirst && uiGlobal < uiFirst + GetMaxSatNumber(eSys))
        {
            return SZelSatID(eSys, static_cast<uint8_t>(uiGlobal - c_aucGlobalOffset[lSys]));
        }
    }
    return SZelSatID(c_eZELSATSYSTEM_INVALID, 0); // not reached: the ranges cover 1 to 234
}

// ---------------------------------------------------------------------------
// Identifier records
// ---------------------------------------------------------------------------

bool SZelSatID::IsGeo() const
{
    switch (eSatSystem)
    {
    case ZELSATSYSTEM_BEIDOU:
        return (uiSatNumber >= 1 && uiSatNumber <= 5) || (uiSatNumber >= 59 && uiSatNumber <= 61);
    case ZELSATSYSTEM_QZSS:
        return uiSatNumber == 7;
    case ZELSATSYSTEM_NAVIC:
        return uiSatNumber == 3 || uiSatNumber == 6 || uiSatNumber == 7;
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GLONASS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_LOCATA:
        return false;
    default:
        ZEL_ASSERT(!"unknown satellite system");
        return false;
    }
}

bool SZelSatID::IsIgso() const
{
    switch (eSatSystem)
    {
    case ZELSATSYSTEM_BEIDOU:
        return (uiSatNumber >= 6 && uiSatNumber <= 10) || uiSatNumber == 13 || uiSatNumber == 16 ||
               (uiSatNumber >= 38 && uiSatNumber <= 40);
    case ZELSATSYSTEM_QZSS:
    case ZELSATSYSTEM_NAVIC:
        return !IsGeo();
    case ZELSATSYSTEM_GPS:
    case ZELSATSYSTEM_GLONASS:
    case ZELSATSYSTEM_GALILEO:
    case ZELSATSYSTEM_SBAS:
    case ZELSATSYSTEM_LOCATA:
        return false;
    default:
        ZEL_ASSERT(!"unknown satellite system");
        return false;
    }
}

bool SZelSysFrqTMdGroupID::isValid() const
{
    if (!IsSystem(eSatSystem) || eFrqGrp == ZELFREQUENCY_GROUP_NONE)
    {
        return false;
    }
    const SFrqInfo* pFrq = GetSysInfo(eSatSystem).GetFrqByGroup(eFrqGrp);
    return pFrq != nullptr && (ebfTMdGrps & ~pFrq->ebfTMdGrps) == 0;
}

bool SZelSatFrqTMdGroupID::isValid() const
{
    // stSatID.isValid() holds for systems 1 to 8 only, so the lookup stays in the table.
    return stSatID.isValid() &&
           GetSysInfo(stSatID.eSatSystem).GetTrackModeInfoByGroup(eFrqGrp, FromTMdGroup(ebfTMdGrps)) !=
               nullptr;
}

EZelTrackMode SZelSatFrqTMdGroupID::ToTrackMode() const
{
    const EZelTrackMode eTrackMode = FromTMdGroup(ebfTMdGrps);
    if (ebfTMdGrps != 0 && eTrackMode == ZELTRACKMODE_UNKNOWN)
    {
        std::cout << "Narrowing transformation. Here is a need to change the code!";
        ZEL_ASSERT(false);
    }
    return eTrackMode;
}

// ---------------------------------------------------------------------------
// Text forms
// ---------------------------------------------------------------------------

std::ostream& operator<<(std::ostream& os, EZelSatSystem eSys)
{
    return os << ToSatSystemLetter(eSys);
}

std::istream& operator>>(std::istream& is, EZelSatSystem& reSys)
{
    char cLetter = 0;
    if (is >> cLetter)
    {
        reSys = FromSatSystemLetter(cLetter);
    }
    return is;
}

std::ostream& operator<<(std::ostream& os, ETrackComponent eComponent)
{
    return os << ToTrackComponentLetter(eComponent);
}

std::istream& operator>>(std::istream& is, ETrackComponent& reComponent)
{
    char cLetter = 0;
    if (is >> cLetter)
    {
        reComponent = FromTrackComponentLetter(cLetter);
    }
    return is;
}

std::ostream& operator<<(std::ostream& os, EZelOrbitSource eSource)
{
    ZelIo::CTextWriter(os).Word(eSource, c_aszOrbitSourceWords, "Invalid", ZELORBITSOURCE_INVALID);
    return os;
}

std::istream& operator>>(std::istream& is, EZelOrbitSource& reSource)
{
    ZelIo::CTextReader(is).Word(reSource, c_aszOrbitSourceWords, "Invalid", ZELORBITSOURCE_INVALID);
    return is;
}

std::ostream& WriteTMdGroups(std::ostream& os, uint32_t ebfTMdGrps)
{
    bool bFirst = true;
    for (int32_t lMode = ZELTRACKMODE_A; lMode <= ZELTRACKMODE_Z; ++lMode)
    {
        if ((ebfTMdGrps & ToTMdGroup(static_cast<EZelTrackMode>(lMode))) != 0)
        {
            if (!bFirst)
            {
                os << '|';
            }
            os << c_acTMdLetters[lMode];
            bFirst = false;
        }
    }
    if (bFirst)
    {
        os << 'U';
    }
    return os;
}

// Letters with whitespace skipped, '|' passed over; the first character that
// is not an upper-case letter ends the set and stays in the stream. A letter
// that maps to no mode empties the set and ends the reading. No letter at all
// fails the stream.
std::istream& ReadTMdGroups(std::istream& is, uint32_t& rebfTMdGrps)
{
    uint32_t ebfTMdGrps = 0;
    bool bAny = false;
    for (;;)
    {
        // The end of the text ends the set without failing the stream.
        is >> std::ws;
        if (!is || is.eof())
        {
            break;
        }
        const int iNext = is.peek();
        const char c = static_cast<char>(iNext);
        if (c == '|')
        {
            is.get();
            continue;
        }
        if (c < 'A' || c > 'Z')
        {
            break;
        }
        is.get();
        bAny = true;
        const EZelTrackMode eTrackMode = FromTrackModeLetter(c);
        if (eTrackMode == ZELTRACKMODE_UNKNOWN)
        {
            ebfTMdGrps = 0;
            break;
        }
        ebfTMdGrps |= ToTMdGroup(eTrackMode);
    }
    if (!bAny)
    {
        is.setstate(std::ios::failbit);
        return is;
    }
    rebfTMdGrps = ebfTMdGrps;
    return is;
}

std::ostream& WriteSatSystems(std::ostream& os, uint32_t ebfSatSystems)
{
    bool bFirst = true;
    for (int32_t lSys = ZELSATSYSTEM_GPS; lSys <= ZELSATSYSTEM_LOCATA; ++lSys)
    {
        if ((ebfSatSystems & ToSatSystemBit(static_cast<EZelSatSystem>(lSys))) != 0)
        {
            if (!bFirst)
            {
                os << '|';
            }
            os << c_acSysLetters[lSys];
            bFirst = false;
        }
    }
    if (bFirst)
    {
        os << 'N';
    }
    return os;
}

// Letters with whitespace skipped, '|' passed over, no bit for a letter that
// names no system; a character that is neither a letter nor '|' ends the set
// and stays in the stream. No letter at all fails the stream.
std::istream& ReadSatSystems(std::istream& is, uint32_t& rebfSatSystems)
{
    uint32_t ebfSatSystems = 0;
    bool bAny = false;
    for (;;)
    {
        // The end of the text ends the set without failing the stream.
        is >> std::ws;
        if (!is || is.eof())
        {
            break;
        }
        const int iNext = is.peek();
        const char c = static_cast<char>(iNext);
        if (c == '|')
        {
            is.get();
            continue;
        }
        if (std::isalpha(static_cast<unsigned char>(c)) == 0)
        {
            break;
        }
        is.get();
        bAny = true;
        ebfSatSystems |= ToSatSystemBit(SystemOfLetter(c));
    }
    if (!bAny)
    {
        is.setstate(std::ios::failbit);
        return is;
    }
    rebfSatSystems = ebfSatSystems;
    return is;
}

std::ostream& operator<<(std::ostream& os, const SZelSatID& rSatID)
{
    // The leading zero is written by hand: a width of 2 would follow the
    // stream's adjustment, and std::left would turn G05 into G50.
    os << ToSatSystemLetter(rSatID.eSatSystem) << std::setfill('0');
    if (rSatID.uiSatNumber < 10)
    {
        os << '0';
    }
    return os << ZelIo::Num(rSatID.uiSatNumber);
}

std::istream& operator>>(std::istream& is, SZelSatID& rSatID)
{
    return ReadSatID(is, rSatID);
}

std::ostream& operator<<(std::ostream& os, const SZelFrqTMdID& rID)
{
    return os << static_cast<int32_t>(rID.eFrqGrp) << ':' << ToTrackModeLetter(rID.eTrackMode);
}

std::istream& operator>>(std::istream& is, SZelFrqTMdID& rID)
{
    int32_t lGroup = 0;
    if (!(is >> lGroup))
    {
        return is;
    }
    rID.eFrqGrp = static_cast<EZelFrequencyGroup>(lGroup);
    ZelIo::SkipComma(is);
    char cLetter = 0;
    if (is >> cLetter)
    {
        rID.eTrackMode = FromTrackModeLetter(cLetter);
    }
    return is;
}

std::ostream& operator<<(std::ostream& os, const SZelSatFrqID& rID)
{
    return os << rID.stSatID << ':' << GroupName(rID.stSatID.eSatSystem, rID.eFrqGrp);
}

std::istream& operator>>(std::istream& is, SZelSatFrqID& rID)
{
    if (!ReadSatID(is, rID.stSatID))
    {
        return is;
    }
    char szName[ulSZFRQ_MAXLGTH] = {};
    if (ReadColonName(is, szName))
    {
        rID.eFrqGrp = GroupOfName(rID.stSatID.eSatSystem, szName);
    }
    return is;
}

std::ostream& operator<<(std::ostream& os, const SZelSysFrqID& rID)
{
    return os << ToSatSystemLetter(rID.eSatSystem) << ':' << GroupName(rID.eSatSystem, rID.eFrqGrp);
}

std::istream& operator>>(std::istream& is, SZelSysFrqID& rID)
{
    if (!(is >> rID.eSatSystem))
    {
        return is;
    }
    char szName[ulSZFRQ_MAXLGTH] = {};
    if (ReadColonName(is, szName))
    {
        rID.eFrqGrp = GroupOfName(rID.eSatSystem, szName);
    }
    return is;
}

std::ostream& operator<<(std::ostream& os, const SZelSysFrqTMdGroupID& rID)
{
    os << ToSatSystemLetter(rID.eSatSystem) << ':' << GroupName(rID.eSatSystem, rID.eFrqGrp) << ':';
    return WriteTMdGroups(os, rID.ebfTMdGrps);
}

std::istream& operator>>(std::istream& is, SZelSysFrqTMdGroupID& rID)
{
    if (!(is >> rID.eSatSystem))
    {
        return is;
    }
    return ReadGroupTail(is, rID.eSatSystem, rID.eFrqGrp, rID.ebfTMdGrps);
}

std::ostream& operator<<(std::ostream& os, const SZelSatFrqTMdGroupID& rID)
{
    os << rID.stSatID << ':' << GroupName(rID.stSatID.eSatSystem, rID.eFrqGrp) << ':';
    return WriteTMdGroups(os, rID.ebfTMdGrps);
}

std::istream& operator>>(std::istream& is, SZelSatFrqTMdGroupID& rID)
{
    if (!ReadSatID(is, rID.stSatID))
    {
        return is;
    }
    return ReadGroupTail(is, rID.stSatID.eSatSystem, rID.eFrqGrp, rID.ebfTMdGrps);
}

} // namespace ZELN
