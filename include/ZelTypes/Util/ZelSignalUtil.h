#ifndef ZELTYPES_UTIL_ZELSIGNALUTIL_H
#define ZELTYPES_UTIL_ZELSIGNALUTIL_H

/// @file
/// Signals of the catalogue by their RINEX 3 observation codes ("C1C", "L6I",
/// "C5Q", ...), and checked questions on frequency groups. Everything is
/// answered from the library's signal catalogue (GetSysInfo) and frequency
/// tables: a signal the catalogue lacks is not found, whatever RINEX defines.
///
/// RINEX band digits by system and catalogue group (name):
///   GPS, QZSS: 1 L1 (1), 2 L2 (2), 5 L5 (3)
///   GLONASS:   1 G1 (1), 2 G2 (2), 3 G3 (3)
///   Galileo:   1 E1 (1), 5 E5a (3), 7 E5b (4), 8 E5ab (5), 6 E6 (6)
///   SBAS:      1 L1 (1), 5 L5 (3)
///   BeiDou:    2 B1 (1), 7 B2 (2), 6 B3 (3), 1 B1C (4), 5 B2a (5)
///   NavIC:     5 L5 (3)
/// BeiDou follows RINEX 3.03 and later; the band 1 of RINEX 3.02 for B1 is
/// also read for the attributes I and Q, which band 1 has no other use for.
/// Locata has no RINEX codes.

#include <ZelTypes/Core/Common/ZelObsInfo.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Util/ZelUtilExport.h>

#include <string>
#include <vector>

namespace ZELN
{

/// One signal of a system, as a RINEX observation code names it.
struct SZelRinexSignal
{
    char cObsType = 'C'; ///< observation type: 'C' code range, 'L' phase, 'D' Doppler, 'S' signal strength
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;         ///< system
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE; ///< catalogue frequency group
    EZelFrequency eFrq = ZELFREQUENCY_UNKNOWN;            ///< frequency slot of the signal in the catalogue
    EZelTrackMode eTrackMode = ZELTRACKMODE_UNKNOWN;      ///< tracking mode, the code's attribute letter
};

/// Looks up a three-character observation code (type C, L, D or S, band
/// digit, attribute letter; upper case) for a system: fills rSignal with the
/// group, slot and track mode of the catalogue's row and returns true; false
/// (rSignal untouched, no report) for a system outside 1 to 8, a malformed
/// code, or a signal the catalogue does not hold.
ZELTYPES_UTIL_API bool FindRinexSignal(EZelSatSystem eSys, const std::string& strCode,
                                       SZelRinexSignal& rSignal);

/// The observation code of a signal: cObsType, the band digit of eFrqGrp and
/// the letter of eTrackMode, such as "C1C"; eFrq is checked against the
/// catalogue when it is not ZELFREQUENCY_UNKNOWN. An empty string (no report)
/// when the type is not C, L, D or S or the catalogue lacks the signal.
ZELTYPES_UTIL_API std::string ToRinexCode(const SZelRinexSignal& rSignal);

/// The RINEX band digit of a system's frequency group ('1', '2', ...), or '\0'
/// when the system has no such group or no RINEX code for it.
ZELTYPES_UTIL_API char ToRinexBand(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp);

/// The frequency group of a system's RINEX band digit, or
/// ZELFREQUENCY_GROUP_NONE when the system has no such band in the catalogue.
ZELTYPES_UTIL_API EZelFrequencyGroup FromRinexBand(EZelSatSystem eSys, char cBand);

/// Whether the catalogue gives system eSys the frequency group eFrqGrp (for
/// instance false for Galileo group 2, "L2"); false, with no report, for a
/// system outside 1 to 8 or a group outside 1 to 6.
ZELTYPES_UTIL_API bool HasFrequencyGroup(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp);

/// Nominal carrier frequency (Hz) of a system's frequency group, only where
/// the system has that group: GLONASS G1 and G2 give the frequency of
/// channel 0. false, rdFrequencyHz untouched, where the frequency manager's
/// table would answer for a group the system does not transmit.
ZELTYPES_UTIL_API bool TryGetNominalFrequency(EZelSatSystem eSys, EZelFrequencyGroup eFrqGrp,
                                              double& rdFrequencyHz);

/// One row of the signal table: a signal of the catalogue with its code.
struct SZelSignalRow
{
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;         ///< system
    EZelFrequencyGroup eFrqGrp = ZELFREQUENCY_GROUP_NONE; ///< catalogue frequency group
    std::string strFrqName;                               ///< catalogue name of the group, such as "B1C"
    EZelFrequency eFrq = ZELFREQUENCY_UNKNOWN;            ///< frequency slot of the signal
    EZelTrackMode eTrackMode = ZELTRACKMODE_UNKNOWN;      ///< tracking mode
    std::string strRinexSignal;       ///< band digit and attribute, such as "1C"; empty when RINEX has none
    double dNominalFrequencyHz = 0.0; ///< nominal carrier (Hz); GLONASS FDMA: channel 0
};

/// Every signal of a system in the catalogue's order (groups in table order,
/// modes in row order); empty for a system outside 1 to 8 and for Locata.
ZELTYPES_UTIL_API std::vector<SZelSignalRow> ListSignals(EZelSatSystem eSys);

} // namespace ZELN

#endif
