#ifndef ZELTYPES_CORE_COMMON_ZELOBSINFO_H
#define ZELTYPES_CORE_COMMON_ZELOBSINFO_H

/// \file
/// The signal catalogue: for each satellite system the frequency groups it
/// transmits, their names, the tracking modes on each with their component and
/// frequency slot, the DCB groups, and the default signal of each frequency
/// slot. Built once at first use from constant tables and read-only after.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstdint>
#include <istream>
#include <string>
#include <utility>

namespace ZELN
{

/// A frequency name has fewer characters than this, all alphanumeric.
constexpr uint64_t ulSZFRQ_MAXLGTH = 5;

/// One tracking mode on one frequency group.
struct STrackModeInfo
{
    /// Tracking mode.
    EZelTrackMode eTrackMode;
    /// Signal component tracked in this mode.
    ETrackComponent eComponent;
    int32_t lDCBGrpIdx; ///< -1 until the frequency row that holds it is built
    EZelFrequency eFrq; ///< frequency slot of this signal
};

/// One frequency group of one system.
struct ZELTYPES_API SFrqInfo
{
    /// Name of the frequency group in its system, such as "L1" or "B1C".
    const char* szSysFrq;
    /// Number of rows in astTrackModes.
    uint64_t ulNbTrackModes;
    int32_t astTrackModeIdx[c_uiNB_TRACKMODES]; ///< by EZelTrackMode; entry 0 is the default's
    STrackModeInfo* astTrackModes;              ///< not owned
    /// Number of sets in aebfDCBGrps.
    uint64_t ulNbDCBGrps;
    const uint32_t* aebfDCBGrps; ///< one set of track modes per DCB group; not owned
    /// The frequency group this row describes.
    EZelFrequencyGroup eZelFrqGrpID;
    /// Set of the tracking modes of the group (bit n-1 for mode n).
    uint32_t ebfTMdGrps;
    /// Lowest frequency slot of the group's signals.
    EZelFrequency eFrqMin;
    /// Highest frequency slot of the group's signals.
    EZelFrequency eFrqMax;

    /// Constructs the default state (for a record: holding no data).
    SFrqInfo();
    /// Indexes the rows, fills their DCB group index and checks the tables.
    SFrqInfo(const char* szSysFrq, EZelTrackMode eDefTrackMode, STrackModeInfo* astTrackModes,
             uint64_t ulNbTrackModes, const uint32_t* aebfDCBGrps, uint64_t ulNbDCBGrps,
             EZelFrequencyGroup eZelFrqGrpID);

    /// Row of a tracking mode on this group; null when the group lacks it (ZELTRACKMODE_UNKNOWN gives the
    /// default's).
    const STrackModeInfo* GetTrackModeInfo(EZelTrackMode eTrackMode) const;
    /// The slot of the default track mode; none: "false", false and 0.
    bool GetDefaultFrequency(EZelFrequency& reFrq) const;
};

/// One row of a system's default table: a frequency slot, its group and its
/// default track mode.
struct SDefFrqRow
{
    /// Frequency slot.
    EZelFrequency eZelFrq;
    /// Group of the slot in the system.
    EZelFrequencyGroup eFrqGrp;
    /// Default tracking mode of the slot.
    EZelTrackMode eTrackMode;
};

/// One satellite system.
struct ZELTYPES_API SSysInfo
{
    /// The system.
    EZelSatSystem eSysID;
    /// Highest satellite number of the system.
    uint8_t uiMaxSysSatNb;
    EZelSatSystem eBaseSysID; ///< whose numbering the system is handled under
    uint8_t uiMaxBaseSatNb;   ///< numbers needed in the base system; 0 when another system is the base
    /// Frequency groups of the system; not owned.
    const SFrqInfo* astFrqs;
    /// Set of the system's frequency groups (bit n-1 for group n).
    uint32_t ebfFrqGrps;
    int64_t aulFrqGrpIdx[ZELFREQUENCY_GROUPS_MAX]; ///< index in astFrqs by group; -1 where absent
    /// Default group and tracking mode of each frequency slot; none where the system lacks the slot.
    std::pair<EZelFrequencyGroup, EZelTrackMode> aeDefFrqIdx[ZELFREQUENCY_MAX];

    /// Constructs the default state (for a record: holding no data).
    SSysInfo();
    /// Builds a system row: indexes its groups and its table of default signals, and checks them.
    SSysInfo(EZelSatSystem eSysID, uint8_t uiMaxSysSatNb, EZelSatSystem eBaseSysID, uint8_t uiMaxBaseSatNb,
             const SFrqInfo* astFrqs, uint64_t ulNbFrqs, const SDefFrqRow* astDefRows, uint64_t ulNbDefRows);

    /// Number of frequency groups of the system.
    uint64_t GetNbFrqs() const;
    /// Row of a frequency group; null for a group outside 1 to 6 or one the system lacks.
    const SFrqInfo* GetFrqByGroup(EZelFrequencyGroup eFrqGrp) const;
    /// Row of the group with this name; null when none has it.
    const SFrqInfo* GetFrqByName(const char* szName) const;
    /// Row of the group that a frequency slot maps to in this system; null when none.
    const SFrqInfo* GetFrqInfo(EZelFrequency eFrq) const;
    /// Group row and tracking-mode row of the default signal of a frequency slot; false when the system has
    /// none.
    bool GetDefaultSignal(EZelFrequency eFrq, const SFrqInfo*& rpFrq,
                          const STrackModeInfo*& rpTrackMode) const;
    /// Row of a tracking mode on the group of a frequency slot; null when absent.
    const STrackModeInfo* GetTrackModeInfo(EZelFrequency eFrq, EZelTrackMode eTrackMode) const;
    /// Row of a tracking mode on a frequency group; null when absent.
    const STrackModeInfo* GetTrackModeInfoByGroup(EZelFrequencyGroup eFrqGrp, EZelTrackMode eTrackMode) const;
};

/// The catalogue row of a system; the catalogue is built at the first call.
ZELTYPES_API const SSysInfo& GetSysInfo(EZelSatSystem eSys);

/// 1 to 6: bit n-1; else 0, and a group from 7 on reports.
ZELTYPES_API uint32_t ToFrqGroupBit(EZelFrequencyGroup eFrqGrp);
/// The group of a single bit, 0 for 0; else "false" and 0.
ZELTYPES_API EZelFrequencyGroup FromFrqGroupBit(uint32_t ulBit);
/// The group of a frequency slot; 0 outside 1 to 10.
ZELTYPES_API EZelFrequencyGroup getFrequencyGroupIndex(EZelFrequency eZelFrq);

/// A satellite from its number in a base system: GPS 33 and up are QZSS.
ZELTYPES_API SZelSatID ToBaseSatID(EZelSatSystem eBaseSys, uint8_t ucBaseNb);
/// The number in the base system: QZSS plus 32.
ZELTYPES_API uint8_t ToBaseSatNumber(const SZelSatID& rSatID);

/// Names of the set groups joined by '|', "IV" for a group the system lacks;
/// "SysIv" for a system outside 2 to 8.
ZELTYPES_API std::string GetFrqGroupsText(EZelSatSystem eSys, uint32_t ebfFrqGrps);

/// Up to 4 alphanumeric characters by peeking, into a terminated buffer.
/// True when at least one was read; false when a fifth follows.
ZELTYPES_API bool ReadFrqName(std::istream& is, char (&szBuffer)[ulSZFRQ_MAXLGTH]);

namespace ObsInfoDetail
{
/// The checks that tie the rows of all systems together (index by system).
ZELTYPES_API void CheckSysTable(const SSysInfo* astSysInfo);
} // namespace ObsInfoDetail

} // namespace ZELN

#endif
