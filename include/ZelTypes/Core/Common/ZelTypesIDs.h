#ifndef ZELTYPES_CORE_COMMON_ZELTYPESIDS_H
#define ZELTYPES_CORE_COMMON_ZELTYPESIDS_H

/// \file
/// Satellite systems, satellites and the signal keys of the core: the
/// enumerations, their letters and bit sets, the one global satellite
/// numbering, and the small identifier records with their binary and text
/// forms. Names and validity of frequency groups come from the signal
/// catalogue (ZelObsInfo.h).

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// The enumerations are stored in 32 bits; a fixed underlying type keeps any
/// value read from an image representable.
enum EZelSatSystem : int32_t
{
    ZELSATSYSTEM_NONE = 0,
    ZELSATSYSTEM_GPS = 1,
    ZELSATSYSTEM_GLONASS = 2,
    ZELSATSYSTEM_GALILEO = 3,
    ZELSATSYSTEM_SBAS = 4,
    ZELSATSYSTEM_BEIDOU = 5,
    ZELSATSYSTEM_QZSS = 6,
    ZELSATSYSTEM_NAVIC = 7,
    ZELSATSYSTEM_LOCATA = 8
};

/// Out-of-range result of the system conversions.
constexpr EZelSatSystem c_eZELSATSYSTEM_INVALID = static_cast<EZelSatSystem>(9);

/// Frequency group of a system: the system's carriers numbered 1 to 6 in its catalogue; 0 none.
enum EZelFrequencyGroup : int32_t
{
    ZELFREQUENCY_GROUP_NONE = 0,
    ZELFREQUENCY_GROUP_1 = 1,
    ZELFREQUENCY_GROUP_2 = 2,
    ZELFREQUENCY_GROUP_3 = 3,
    ZELFREQUENCY_GROUP_4 = 4,
    ZELFREQUENCY_GROUP_5 = 5,
    ZELFREQUENCY_GROUP_6 = 6,
    ZELFREQUENCY_GROUPS_MAX = 7
};

/// A slot for a carrier and its signal family; what it is called in one
/// system is in the signal catalogue.
enum EZelFrequency : int32_t
{
    ZELFREQUENCY_UNKNOWN = 0,
    ZELFREQUENCY_L1CA = 1,
    ZELFREQUENCY_L1P = 2,
    ZELFREQUENCY_L2C = 3,
    ZELFREQUENCY_L2P = 4,
    ZELFREQUENCY_L5 = 5,
    ZELFREQUENCY_L1C = 6,
    ZELFREQUENCY_E5A = 7,
    ZELFREQUENCY_E5B = 8,
    ZELFREQUENCY_E5AB = 9,
    ZELFREQUENCY_E6 = 10,
    ZELFREQUENCY_MAX = 11
};

/// Tracking modes, by the letters of the RINEX observation attributes.
enum EZelTrackMode : int32_t
{
    ZELTRACKMODE_UNKNOWN = 0,
    ZELTRACKMODE_A = 1,
    ZELTRACKMODE_B = 2,
    ZELTRACKMODE_C = 3,
    ZELTRACKMODE_D = 4,
    ZELTRACKMODE_I = 5,
    ZELTRACKMODE_L = 6,
    ZELTRACKMODE_M = 7,
    ZELTRACKMODE_N = 8,
    ZELTRACKMODE_P = 9,
    ZELTRACKMODE_Q = 10,
    ZELTRACKMODE_S = 11,
    ZELTRACKMODE_W = 12,
    ZELTRACKMODE_X = 13,
    ZELTRACKMODE_Y = 14,
    ZELTRACKMODE_Z = 15,
    ZELTRACKMODE_ALL = 16 ///< "all modes": ToTMdGroup gives every bit
};

constexpr unsigned int c_uiNB_TRACKMODES = 16; ///< 0 to 15
constexpr uint32_t c_ulTMDGROUP_ALL = 32767;   ///< ToTMdGroup(ZELTRACKMODE_ALL)

/// Signal component of a row of the signal catalogue.
enum ETrackComponent : int32_t
{
    TRACKCOMPONENT_U = -1,
    TRACKCOMPONENT_I = 0,
    TRACKCOMPONENT_Q = 1,
    TRACKCOMPONENT_X = 2,
    TRACKCOMPONENT_D = 3,
    TRACKCOMPONENT_P = 4,
    TRACKCOMPONENT_Z = 5
};

/// Where an orbit comes from: almanac, broadcast ephemeris, precise orbit, or VRP; text words "Alm", "Eph",
/// "Prc", "Vrp".
enum EZelOrbitSource : int32_t
{
    ZELORBITSOURCE_INVALID = -1,
    ZELORBITSOURCE_ALM = 0,
    ZELORBITSOURCE_EPH = 1,
    ZELORBITSOURCE_PRC = 2,
    ZELORBITSOURCE_VRP = 3,
    ZELORBITSOURCE_MAX = 4
};

/// Highest satellite number of most systems.
constexpr unsigned int ZEL_DEF_MAXSATID = 63;
/// Highest GLONASS satellite number.
constexpr unsigned int ZEL_DEF_MAXSATID_GLONASS = 24;
/// Highest Locata satellite number.
constexpr unsigned int ZEL_DEF_MAXSATID_LOCATA = 40;

// ---------------------------------------------------------------------------
// Conversions
// ---------------------------------------------------------------------------

/// Letters N G R E S C J I L; an unknown value reports "false" and gives '?'.
ZELTYPES_API char ToSatSystemLetter(EZelSatSystem eSys);
/// An unknown letter reports "false" and gives 9.
ZELTYPES_API EZelSatSystem FromSatSystemLetter(char c);
/// Letters U A B C D I L M N P Q S W X Y Z; unknown: "false" and 'U'.
ZELTYPES_API char ToTrackModeLetter(EZelTrackMode eTrackMode);
/// Unknown letter: "false" and 0.
ZELTYPES_API EZelTrackMode FromTrackModeLetter(char c);
/// Letters of ETrackComponent; a value outside the table reports "false" and gives 'U'.
ZELTYPES_API char ToTrackComponentLetter(ETrackComponent eComponent);
/// Unknown letter: TRACKCOMPONENT_U, silently.
ZELTYPES_API ETrackComponent FromTrackComponentLetter(char c);

/// Bit n-1 of a system set for system n; none for 0 and other values.
constexpr uint32_t ToSatSystemBit(EZelSatSystem eSys)
{
    return (eSys >= ZELSATSYSTEM_GPS && eSys <= ZELSATSYSTEM_LOCATA) ? (1u << (eSys - 1)) : 0u;
}

/// The system of a single bit of the table; anything else gives 0.
constexpr EZelSatSystem FromSatSystemBit(uint32_t ulBit)
{
    for (int32_t lSys = ZELSATSYSTEM_GPS; lSys <= ZELSATSYSTEM_LOCATA; ++lSys)
    {
        if (ulBit == (1u << (lSys - 1)))
        {
            return static_cast<EZelSatSystem>(lSys);
        }
    }
    return ZELSATSYSTEM_NONE;
}

/// Bit n-1 for track mode n (1 to 15); 16 ("all") gives 32767; else 0.
constexpr uint32_t ToTMdGroup(EZelTrackMode eTrackMode)
{
    if (eTrackMode >= ZELTRACKMODE_A && eTrackMode <= ZELTRACKMODE_Z)
    {
        return 1u << (eTrackMode - 1);
    }
    return eTrackMode == ZELTRACKMODE_ALL ? c_ulTMDGROUP_ALL : 0u;
}

/// The single bit back to its mode 1 to 15; anything else (no bit, several
/// bits, a bit above 14) gives 0.
constexpr EZelTrackMode FromTMdGroup(uint32_t ulBit)
{
    for (int32_t lMode = ZELTRACKMODE_A; lMode <= ZELTRACKMODE_Z; ++lMode)
    {
        if (ulBit == (1u << (lMode - 1)))
        {
            return static_cast<EZelTrackMode>(lMode);
        }
    }
    return ZELTRACKMODE_UNKNOWN;
}

/// Highest satellite number of a system; 0 for other values.
constexpr uint8_t GetMaxSatNumber(EZelSatSystem eSys)
{
    switch (eSys)
    {
    case ZELSATSYSTEM_GPS:
        return 32;
    case ZELSATSYSTEM_GLONASS:
        return 24;
    case ZELSATSYSTEM_GALILEO:
        return 36;
    case ZELSATSYSTEM_SBAS:
        return 20;
    case ZELSATSYSTEM_BEIDOU:
        return 63;
    case ZELSATSYSTEM_QZSS:
        return 10;
    case ZELSATSYSTEM_NAVIC:
        return 9;
    case ZELSATSYSTEM_LOCATA:
        return 40;
    default:
        return 0;
    }
}

/// Frequency-group bits by system; an unknown system reports "false" and gives 0.
ZELTYPES_API uint32_t GetSysFrqGroups(EZelSatSystem eSys);

struct SZelSatID;

/// One byte for every satellite of every system; NavIC lies above Locata.
/// An unknown system reports "false" and gives 0.
ZELTYPES_API uint8_t ToGlobalSatNumber(const SZelSatID& rSatID);
/// 0: the empty satellite; above 234: system 9, number 0.
ZELTYPES_API SZelSatID FromGlobalSatNumber(uint8_t uiGlobal);

// ---------------------------------------------------------------------------
// Identifier records
// ---------------------------------------------------------------------------

/// A satellite: its system and its number within that system. Text: letter and two digits, such as G05.
struct ZELTYPES_API SZelSatID
{
    /// Satellite system.
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;
    uint8_t uiSatNumber = 0; ///< relative to the system

    /// Constructs the default state (for a record: holding no data).
    SZelSatID() = default;
    /// Satellite uiNumber of system eSys.
    SZelSatID(EZelSatSystem eSys, uint8_t uiNumber) : eSatSystem(eSys), uiSatNumber(uiNumber) {}

    /// True when the number lies from 1 to the highest number of the system.
    bool isValid() const { return uiSatNumber != 0 && uiSatNumber <= GetMaxSatNumber(eSatSystem); }

    /// True for no system.
    bool IsNone() const { return eSatSystem == ZELSATSYSTEM_NONE; }
    /// True for a GPS satellite.
    bool IsGps() const { return eSatSystem == ZELSATSYSTEM_GPS; }
    /// True for a GLONASS satellite.
    bool IsGlonass() const { return eSatSystem == ZELSATSYSTEM_GLONASS; }
    /// True for a Galileo satellite.
    bool IsGalileo() const { return eSatSystem == ZELSATSYSTEM_GALILEO; }
    /// True for an SBAS satellite.
    bool IsSbas() const { return eSatSystem == ZELSATSYSTEM_SBAS; }
    /// True for a BeiDou satellite.
    bool IsBeidou() const { return eSatSystem == ZELSATSYSTEM_BEIDOU; }
    /// True for a QZSS satellite.
    bool IsQzss() const { return eSatSystem == ZELSATSYSTEM_QZSS; }
    /// True for a NavIC satellite.
    bool IsNavic() const { return eSatSystem == ZELSATSYSTEM_NAVIC; }
    /// True for a Locata transmitter.
    bool IsLocata() const { return eSatSystem == ZELSATSYSTEM_LOCATA; }

    /// True for BeiDou numbers 19 and above.
    bool IsBeidou3() const { return eSatSystem == ZELSATSYSTEM_BEIDOU && uiSatNumber >= 19; }
    /// Geostationary and inclined geosynchronous satellites; a system outside
    /// 1 to 8 reports "unknown satellite system" and gives false.
    bool IsGeo() const;
    /// True for an inclined geosynchronous satellite: BeiDou 6 to 10, 13, 16, 38 to 40; QZSS and NavIC
    /// satellites that are not geostationary.
    bool IsIgso() const;
    /// True when IsGeo() or IsIgso().
    bool IsGeoOrIgso() const { return IsGeo() || IsIgso(); }

    /// Image, 8 bytes: system at 0 (32 bits), number at 4, then 3 filling
    /// bytes, written as zero and passed over by the reader. Also the image
    /// of a satellite as a map key.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eSatSystem) && io.Raw(r.uiSatNumber) && io.Reserved(3);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
};

/// True when the two records are equal, field by field.
inline bool operator==(const SZelSatID& a, const SZelSatID& b)
{
    return a.eSatSystem == b.eSatSystem && a.uiSatNumber == b.uiSatNumber;
}
/// The system as a signed number, then the number.
inline bool operator<(const SZelSatID& a, const SZelSatID& b)
{
    if (static_cast<int>(a.eSatSystem) != static_cast<int>(b.eSatSystem))
    {
        return static_cast<int>(a.eSatSystem) < static_cast<int>(b.eSatSystem);
    }
    return a.uiSatNumber < b.uiSatNumber;
}

/// A frequency group and a tracking mode.
struct ZELTYPES_API SZelFrqTMdID
{
    /// Frequency group within the system.
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE;
    /// Tracking mode.
    EZelTrackMode eTrackMode = ZELTRACKMODE_UNKNOWN;

    /// Constructs the default state (for a record: holding no data).
    SZelFrqTMdID() = default;
    /// Group eGrp tracked in mode eMode.
    SZelFrqTMdID(EZelFrequencyGroup eGrp, EZelTrackMode eMode) : eFrqGrp(eGrp), eTrackMode(eMode) {}

    /// True when the group is set and the mode is one of A to Z.
    bool isValid() const
    {
        return eFrqGrp != ZELFREQUENCY_GROUP_NONE && eTrackMode >= ZELTRACKMODE_A &&
               eTrackMode <= ZELTRACKMODE_Z;
    }

    /// Image, 8 bytes: group at 0, mode at 4, 32 bits each.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eFrqGrp) && io.Raw(r.eTrackMode);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
};

/// True when the two records are equal, field by field.
inline bool operator==(const SZelFrqTMdID& a, const SZelFrqTMdID& b)
{
    return a.eFrqGrp == b.eFrqGrp && a.eTrackMode == b.eTrackMode;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SZelFrqTMdID& a, const SZelFrqTMdID& b)
{
    if (a.eFrqGrp != b.eFrqGrp)
    {
        return a.eFrqGrp < b.eFrqGrp;
    }
    return a.eTrackMode < b.eTrackMode;
}

/// A satellite and a frequency group.
struct ZELTYPES_API SZelSatFrqID
{
    /// Satellite.
    SZelSatID stSatID;
    /// Frequency group within the satellite's system.
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE;

    /// Constructs the default state (for a record: holding no data).
    SZelSatFrqID() = default;
    /// Group eGrp of satellite rSatID.
    SZelSatFrqID(const SZelSatID& rSatID, EZelFrequencyGroup eGrp) : stSatID(rSatID), eFrqGrp(eGrp) {}

    /// True when the satellite is valid and the group is set.
    bool isValid() const { return stSatID.isValid() && eFrqGrp != ZELFREQUENCY_GROUP_NONE; }

    /// Image, 12 bytes: the satellite's 8 at 0 through its own test, the
    /// group at 8.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stSatID) && io.Raw(r.eFrqGrp);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
};

/// True when the two records are equal, field by field.
inline bool operator==(const SZelSatFrqID& a, const SZelSatFrqID& b)
{
    return a.stSatID == b.stSatID && a.eFrqGrp == b.eFrqGrp;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SZelSatFrqID& a, const SZelSatFrqID& b)
{
    if (a.stSatID != b.stSatID)
    {
        return a.stSatID < b.stSatID;
    }
    return a.eFrqGrp < b.eFrqGrp;
}

/// A system and a frequency group.
struct ZELTYPES_API SZelSysFrqID
{
    /// Satellite system.
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;
    /// Frequency group within the system.
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE;

    /// Constructs the default state (for a record: holding no data).
    SZelSysFrqID() = default;
    /// Group eGrp of system eSys.
    SZelSysFrqID(EZelSatSystem eSys, EZelFrequencyGroup eGrp) : eSatSystem(eSys), eFrqGrp(eGrp) {}

    /// True for a system from GPS to Locata and a group that is set.
    bool isValid() const
    {
        return eSatSystem >= ZELSATSYSTEM_GPS && eSatSystem <= ZELSATSYSTEM_LOCATA &&
               eFrqGrp != ZELFREQUENCY_GROUP_NONE;
    }

    /// Image, 8 bytes: system at 0, group at 4, 32 bits each.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eSatSystem) && io.Raw(r.eFrqGrp);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
};

/// True when the two records are equal, field by field.
inline bool operator==(const SZelSysFrqID& a, const SZelSysFrqID& b)
{
    return a.eSatSystem == b.eSatSystem && a.eFrqGrp == b.eFrqGrp;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SZelSysFrqID& a, const SZelSysFrqID& b)
{
    if (a.eSatSystem != b.eSatSystem)
    {
        return a.eSatSystem < b.eSatSystem;
    }
    return a.eFrqGrp < b.eFrqGrp;
}

/// A system, a frequency group and a set of tracking modes.
struct ZELTYPES_API SZelSysFrqTMdGroupID
{
    /// Satellite system.
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;
    /// Frequency group within the system.
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE;
    uint32_t ebfTMdGrps = 0; ///< bit n-1 for track mode n

    /// Constructs the default state (for a record: holding no data).
    SZelSysFrqTMdGroupID() = default;
    /// Group eGrp of system eSys with the set of tracking modes ebfGroups (bit n-1 for mode n).
    SZelSysFrqTMdGroupID(EZelSatSystem eSys, EZelFrequencyGroup eGrp, uint32_t ebfGroups)
        : eSatSystem(eSys), eFrqGrp(eGrp), ebfTMdGrps(ebfGroups)
    {
    }

    /// Needs the group in the system's catalogue and every mode bit in the
    /// group's set.
    bool isValid() const;

    /// Image, 12 bytes: system at 0, group at 4, mode bits at 8, 32 bits each.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eSatSystem) && io.Raw(r.eFrqGrp) && io.Raw(r.ebfTMdGrps);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
};

/// True when the two records are equal, field by field.
inline bool operator==(const SZelSysFrqTMdGroupID& a, const SZelSysFrqTMdGroupID& b)
{
    return a.eSatSystem == b.eSatSystem && a.eFrqGrp == b.eFrqGrp && a.ebfTMdGrps == b.ebfTMdGrps;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SZelSysFrqTMdGroupID& a, const SZelSysFrqTMdGroupID& b)
{
    if (a.eSatSystem != b.eSatSystem)
    {
        return a.eSatSystem < b.eSatSystem;
    }
    if (a.eFrqGrp != b.eFrqGrp)
    {
        return a.eFrqGrp < b.eFrqGrp;
    }
    return a.ebfTMdGrps < b.ebfTMdGrps;
}

/// A satellite, a frequency group and a set of tracking modes: the signal key
/// of the state-space corrections.
struct ZELTYPES_API SZelSatFrqTMdGroupID
{
    /// Satellite.
    SZelSatID stSatID;
    /// Frequency group within the satellite's system.
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE;
    uint32_t ebfTMdGrps = 0; ///< bit n-1 for track mode n

    /// Constructs the default state (for a record: holding no data).
    SZelSatFrqTMdGroupID() = default;
    /// Group eGrp of satellite rSatID with the set of tracking modes ebfGroups (bit n-1 for mode n).
    SZelSatFrqTMdGroupID(const SZelSatID& rSatID, EZelFrequencyGroup eGrp, uint32_t ebfGroups)
        : stSatID(rSatID), eFrqGrp(eGrp), ebfTMdGrps(ebfGroups)
    {
    }
    /// Group eGrp of satellite rSatID with the one tracking mode eTrackMode.
    SZelSatFrqTMdGroupID(const SZelSatID& rSatID, EZelFrequencyGroup eGrp, EZelTrackMode eTrackMode)
        : stSatID(rSatID), eFrqGrp(eGrp), ebfTMdGrps(ToTMdGroup(eTrackMode))
    {
    }
    /// Satellite rSatID with the group and the one mode of rFrqTMd.
    SZelSatFrqTMdGroupID(const SZelSatID& rSatID, const SZelFrqTMdID& rFrqTMd)
        : stSatID(rSatID), eFrqGrp(rFrqTMd.eFrqGrp), ebfTMdGrps(ToTMdGroup(rFrqTMd.eTrackMode))
    {
    }

    /// Needs a valid satellite and the catalogue's row for the group and the
    /// mode that the bit field converts to.
    bool isValid() const;

    /// The single mode of the bit field; a set of several modes cannot be
    /// narrowed to one: a line on the standard output, "false", and 0.
    EZelTrackMode ToTrackMode() const;

    /// Image, 16 bytes: the satellite's 8 at 0 through its own test, the
    /// group at 8, the mode bits at 12.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stSatID) && io.Raw(r.eFrqGrp) && io.Raw(r.ebfTMdGrps);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
};

/// True when the two records are equal, field by field.
inline bool operator==(const SZelSatFrqTMdGroupID& a, const SZelSatFrqTMdGroupID& b)
{
    return a.stSatID == b.stSatID && a.eFrqGrp == b.eFrqGrp && a.ebfTMdGrps == b.ebfTMdGrps;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SZelSatFrqTMdGroupID& a, const SZelSatFrqTMdGroupID& b)
{
    if (a.stSatID != b.stSatID)
    {
        return a.stSatID < b.stSatID;
    }
    if (a.eFrqGrp != b.eFrqGrp)
    {
        return a.eFrqGrp < b.eFrqGrp;
    }
    return a.ebfTMdGrps < b.ebfTMdGrps;
}

// ---------------------------------------------------------------------------
// Text forms
//
// Written by hand, not as tag lines: the two directions of an identifier
// differ. The writer pads the number to two digits and names a group from
// the catalogue ("iv" where it has none); the reader takes a letter and any
// integer, peeks a name of up to 4 characters and looks it up, checks the
// system, and ends a set of letters at the first character that is none.
// ---------------------------------------------------------------------------

/// A system is its letter; read as one char (unknown letter: "false", 9).
ZELTYPES_API std::ostream& operator<<(std::ostream& os, EZelSatSystem eSys);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, EZelSatSystem& reSys);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, ETrackComponent eComponent);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, ETrackComponent& reComponent);

/// Words "Alm", "Eph", "Prc", "Vrp", "Max"; "Invalid" outside, -1 for an unknown word.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, EZelOrbitSource eSource);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, EZelOrbitSource& reSource);

/// Track-mode sets: letters joined by '|', lowest bit first, "U" when empty.
ZELTYPES_API std::ostream& WriteTMdGroups(std::ostream& os, uint32_t ebfTMdGrps);
/// Reads a track-mode set written by WriteTMdGroups.
ZELTYPES_API std::istream& ReadTMdGroups(std::istream& is, uint32_t& rebfTMdGrps);
/// System sets: letters joined by '|', lowest bit first, "N" when empty.
ZELTYPES_API std::ostream& WriteSatSystems(std::ostream& os, uint32_t ebfSatSystems);
/// Reads a system set written by WriteSatSystems.
ZELTYPES_API std::istream& ReadSatSystems(std::istream& is, uint32_t& rebfSatSystems);

/// G05: letter and the number in two digits filled with '0' (the fill stays).
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatID& rSatID);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatID& rSatID);
/// 1:C: the group's number and the mode's letter.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelFrqTMdID& rID);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelFrqTMdID& rID);
/// G05:L1
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatFrqID& rID);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatFrqID& rID);
/// G:L1
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSysFrqID& rID);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSysFrqID& rID);
/// G:L1:C|W
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSysFrqTMdGroupID& rID);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSysFrqTMdGroupID& rID);
/// G05:L1:C|W
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatFrqTMdGroupID& rID);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatFrqTMdGroupID& rID);

} // namespace ZELN

#endif
