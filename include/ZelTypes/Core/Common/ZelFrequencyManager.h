#ifndef ZELTYPES_CORE_COMMON_ZELFREQUENCYMANAGER_H
#define ZELTYPES_CORE_COMMON_ZELFREQUENCYMANAGER_H

/// \file
/// Carrier frequencies, wavelengths and the coefficients of dual-frequency
/// combinations, by satellite and frequency group. CDMA systems are constant;
/// GLONASS depends on the channel of each slot and Locata on values set by
/// the host, so the manager keeps those in a table that is replaced whole
/// (copy on write): a reader holding the table goes on without a lock.
/// Each thread keeps the table it last used and takes it again, under the
/// lock, only when a swap has been made since: a lookup takes no lock and
/// writes to no memory that another thread reads.
///
/// A frequency is named by its group index (0 to 6), by its group bit
/// (ToFrqGroupBit), or by its frequency slot (EZelFrequency). GetFrequency,
/// GetWavelength and GetWavelengthBool take each of them under one name, and
/// the type of the argument alone picks the form:
///   int, EZelFrequencyGroup  the group index
///   uint32_t                 the group bit, as ToFrqGroupBit gives it
///   EZelFrequency            the frequency slot
/// Any other argument type (long, 8- or 16-bit integers, bool, another
/// enumeration) is refused at compile time, since it would otherwise be
/// converted silently to one of the forms: cast it to the form meant.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelGlonassFrequencies.h>
#include <ZelTypes/Core/Common/ZelLock.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <boost/shared_ptr.hpp>

#include <atomic>
#include <cstdint>
#include <map>
#include <utility>

namespace ZELN
{

constexpr double c_dSPEED_OF_LIGHT = 299792458.0; ///< m/s

/// GLONASS carriers: base frequency and step per channel number, in Hz.
constexpr double c_dGLONASS_G1_BASE = 1602000000.0;
/// GLONASS G1 step per channel number, Hz.
constexpr double c_dGLONASS_G1_STEP = 562500.0;
/// GLONASS G2 carrier of channel 0, Hz.
constexpr double c_dGLONASS_G2_BASE = 1246000000.0;
/// GLONASS G2 step per channel number, Hz.
constexpr double c_dGLONASS_G2_STEP = 437500.0;
constexpr double c_dGLONASS_G3 = 1202025000.0; ///< CDMA, no channel
/// GLONASS G3 wavelength, m.
constexpr double c_dGLONASS_G3_WAVELENGTH = 0.24940617541232504;

/// Locata values by (satellite number, group index).
typedef std::map<std::pair<uint8_t, int32_t>, double> ZelLocataWavelengthMap;

/// The replaceable state of the manager. A live table is never written,
/// except its Locata map in place under the manager's lock: a holder of a
/// table reads the GLONASS part freely, the Locata map through the manager.
class ZELTYPES_API CZelFrequencyTable
{
public:
    /// GLONASS channel of each slot.
    ZelGlonassFrequencies stGlonassFrequencies;
    /// Locata values set by the host.
    ZelLocataWavelengthMap mapLocataWavelengths;
    /// GLONASS wavelength by group index and slot (slot 1 first); 0.0 where
    /// the channel is unknown.
    double adWavelengths[ZELFREQUENCY_GROUPS_MAX][ZEL_DEF_MAXSATID_GLONASS];

    /// Constructs the default state (for a record: holding no data).
    CZelFrequencyTable() : stGlonassFrequencies(), mapLocataWavelengths(), adWavelengths() {}
};

/// A lookup's view of a manager's current table, through its thread's copy; internal.
class CZelThreadTable;

/// Carrier frequencies (Hz), wavelengths (m) and combination coefficients by satellite and frequency group;
/// GetFrequencyMgr() gives the global one.
class ZELTYPES_API CZelFrequencyMgr
{
public:
    /// With a lock of its own, which is never freed: it must outlive every
    /// late caller, the global manager's included.
    CZelFrequencyMgr();
    /// With the caller's lock, which must outlive the manager.
    explicit CZelFrequencyMgr(CZelLock* pMutexFreqTable);
    /// Destroys the object.
    virtual ~CZelFrequencyMgr();
    /// Deleted: objects of this class are not copied or moved.
    CZelFrequencyMgr(const CZelFrequencyMgr&) = delete;
    /// Deleted: objects of this class are not copied or moved.
    CZelFrequencyMgr& operator=(const CZelFrequencyMgr&) = delete;

    /// The current table, copied under the lock; true when not null.
    bool GetFrequencyTable(boost::shared_ptr<const CZelFrequencyTable>& rpTable) const;

    // --- Frequency in Hz; 0.0 when unknown.
    /// By group index.
    double GetFrequency(const SZelSatID& rSatID, int iIdx) const;
    /// Frequency in Hz by group index; 0.0 when unknown.
    double GetFrequency(const SZelSatID& rSatID, EZelFrequencyGroup eFreqIdx) const;
    /// By group bit.
    double GetFrequency(const SZelSatID& rSatID, uint32_t ebfFrq) const;
    /// By frequency slot.
    double GetFrequency(const SZelSatID& rSatID, EZelFrequency eZelFrq) const;
    /// Any other argument type: no form is guessed.
    template <typename T> double GetFrequency(const SZelSatID& rSatID, T tFrq) const = delete;
    /// Nominal tables; GLONASS gives the channel 0 carrier; 0.0 outside 1 to 7.
    static double GetNominalFrequency(EZelSatSystem eSys, int iIdx);

    // --- Wavelength in metres; 0.0 when unknown, -1.0 for an unknown system.
    /// By group index.
    double GetWavelength(const SZelSatID& rSatID, EZelFrequencyGroup eFreqIdx) const;
    /// Wavelength in metres by group index; 0.0 when unknown, -1.0 for an unknown system.
    double GetWavelength(const SZelSatID& rSatID, int iIdx) const;
    /// By group bit.
    double GetWavelength(const SZelSatID& rSatID, uint32_t ebfFrq) const;
    /// By frequency slot.
    double GetWavelength(const SZelSatID& rSatID, EZelFrequency eZelFrq) const;
    /// Any other argument type: no form is guessed.
    template <typename T> double GetWavelength(const SZelSatID& rSatID, T tFrq) const = delete;

    /// Stores the wavelength in metres; true when it is not 0.0. The forms
    /// as for GetWavelength.
    bool GetWavelengthBool(const SZelSatID& rSatID, EZelFrequencyGroup eFreqIdx, double& rdWavelength) const;
    /// As above, by group index.
    bool GetWavelengthBool(const SZelSatID& rSatID, int iIdx, double& rdWavelength) const;
    /// As above, by group bit.
    bool GetWavelengthBool(const SZelSatID& rSatID, uint32_t ebfFrq, double& rdWavelength) const;
    /// As above, by frequency slot.
    bool GetWavelengthBool(const SZelSatID& rSatID, EZelFrequency eZelFrq, double& rdWavelength) const;
    /// Deleted: refuses any other argument type at compile time.
    template <typename T>
    bool GetWavelengthBool(const SZelSatID& rSatID, T tFrq, double& rdWavelength) const = delete;

    // --- Ratios, by group bits.
    /// f1 / f2 of the satellite; 0.0 when either is not positive.
    double GetFrequencyRatio(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const;
    /// (f1 / f2)^2 of the satellite; 0.0 when either frequency is not positive.
    double GetFrequencyRatioSquared(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const;
    /// Nominal f1 / f2 of a system; GLONASS for groups 1 and 2 only; else -1.0.
    static double GetFrequencyRatio(EZelSatSystem eSys, uint32_t ebfFrq1, uint32_t ebfFrq2);
    /// 1 / (1 - r^2) with r = f2 / f1.
    double GetIonoCoefficient(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const;
    /// (f of GPS L1 / f of the satellite's group 1)^2: 1.0 for GPS and QZSS.
    double GetRelativeIonoFactor(const SZelSatID& rSatID) const;

    // --- Combinations, by group bits. Null result pointers are allowed.
    /// The ionosphere-free combination from stored coefficients; GLONASS pairs
    /// with G3 from the satellite's channel.
    bool GetCombination(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2, double* pdIono,
                        double* pdCoef1, double* pdCoef2) const;
    /// Two factors of an ionosphere-free (eCombination 12, 17 to 21) or
    /// wide-lane (15, 22 to 26) combination of aeFrqs[0] and aeFrqs[1] from
    /// the satellite's actual frequencies.
    bool GetCombinationFactors(const SZelSatID& rSatID, int eCombination, unsigned int uiNumFrqs,
                               const EZelFrequency* aeFrqs, double* adFactors) const;
    /// Ionosphere-free factors -r / (1 - r) and 1 / (1 - r), r the nominal f1 / f2 of the system; false, with
    /// a report, for an unknown pair or one carrier twice.
    static bool GetIonoFreeFactors(EZelSatSystem eSys, uint32_t ebfFrq1, uint32_t ebfFrq2, double* pdFactor1,
                                   double* pdFactor2);
    /// Narrow-lane factors r / (r + 1) and 1 / (r + 1), r the nominal f1 / f2 of the system; false, with a
    /// report, for an unknown pair.
    static bool GetNarrowLaneFactors(EZelSatSystem eSys, uint32_t ebfFrq1, uint32_t ebfFrq2,
                                     double* pdFactor1, double* pdFactor2);

    // --- Inverse wavelength products; 0.0 when a wavelength is unknown, -1.0 for an unknown system.
    /// 1 / (wavelength 1 x wavelength 2) of two groups of the satellite, 1/m^2; 0.0 when a wavelength is
    /// unknown, -1.0, with a report, for an unknown system.
    double GetInverseWavelengthProduct(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const;
    /// 1 / (wide-lane wavelength x wavelength 1) of two groups of the satellite, 1/m^2; 0.0 when a wavelength
    /// is unknown or the groups share a carrier, -1.0 for an unknown system.
    double GetInverseWideLaneProduct(const SZelSatID& rSatID, uint32_t ebfFrq1, uint32_t ebfFrq2) const;
    /// 1 / wavelength^2 of a group of the satellite, 1/m^2; 0.0 when unknown, -1.0 for an unknown system.
    double GetInverseWavelengthSquared(const SZelSatID& rSatID, int iIdx) const;

    /// Index of a frequency slot in a system's signal array.
    static uint32_t GetFrequencyIndex(EZelFrequency eZelFrq, EZelSatSystem eSys);

    // --- GLONASS channels and Locata values.
    /// GLONASS only; true when the slot's channel is known.
    bool GetGlonassChannel(const SZelSatID& rSatID, int8_t& rcChannel) const;
    /// Slots whose new channel is unknown keep what they had.
    void SetGlonassFrequencies(const ZelGlonassFrequencies& rstFrequencies);
    /// One slot, 1 based; the others keep what they had.
    void SetGlonassChannel(uint8_t uiSlotId, int8_t cChannel);
    /// Replaces the Locata map of the current table in place.
    void SetLocataWavelengths(const ZelLocataWavelengthMap& rMap);
    /// Back to all channels unknown and an empty Locata map.
    void ResetTable();

protected:
    /// Never null after construction; replaced only through InstallTable.
    boost::shared_ptr<CZelFrequencyTable> m_pFreqTable;
    CZelLock* m_pMutexFreqTable; ///< guards the pointer and the Locata map

    /// Makes rpNew the current table and hands back the old one in it; called
    /// under the lock. Lookups of every thread see the new table from then on.
    void InstallTable(boost::shared_ptr<CZelFrequencyTable>& rpNew);

private:
    friend class CZelThreadTable;

    /// Number of the current table, set with the pointer under the lock and
    /// read without it. Numbers are drawn from one process-wide count, so a
    /// number names one table of one manager for good.
    std::atomic<uint64_t> m_ulTableGeneration;

    double FrequencyIn(const CZelFrequencyTable* pTable, const SZelSatID& rSatID, int iIdx) const;
    /// Both wavelengths of a product from one table; false for an unknown system.
    bool WavelengthPair(const SZelSatID& rSatID, int iIdx1, int iIdx2, double& rdWavelength1,
                        double& rdWavelength2) const;
    /// The host's Locata value, looked up under the lock; false when absent.
    bool GetLocataValue(const SZelSatID& rSatID, int iIdx, double& rdValue) const;
};

/// The library's one global manager, from load to unload.
ZELTYPES_API CZelFrequencyMgr& GetFrequencyMgr();

// ---------------------------------------------------------------------------
// Fixed coefficients of the L1/L2 (G1/G2, B1/B2) ionosphere-free combination
// and related values, by system. A system that lacks the pair reports
// "false" and gives the GPS value. GLONASS values come from the satellite's
// channel through the global manager.
// ---------------------------------------------------------------------------

/// Fixed first coefficient of the system's L1/L2 ionosphere-free combination.
ZELTYPES_API double GetIonoFreeCoef1(const SZelSatID& rSatID);
/// Fixed second coefficient of the system's L1/L2 ionosphere-free combination.
ZELTYPES_API double GetIonoFreeCoef2(const SZelSatID& rSatID);
/// The coefficients times the wavelength of group 1 and group 2.
ZELTYPES_API double GetIonoFreeCoef1InMetres(const SZelSatID& rSatID);
/// The second coefficient times the wavelength of group 2, m.
ZELTYPES_API double GetIonoFreeCoef2InMetres(const SZelSatID& rSatID);
/// f of group 2 divided by f of the group of ebfFrq.
ZELTYPES_API double GetL2FrequencyRatio(const SZelSatID& rSatID, uint32_t ebfFrq);
/// (f of group 1 divided by f of the group of ebfFrq) squared.
ZELTYPES_API double GetL1FrequencyRatioSquared(const SZelSatID& rSatID, uint32_t ebfFrq);
/// The wavelength of group 1, squared.
ZELTYPES_API double GetL1WavelengthSquared(const SZelSatID& rSatID);

} // namespace ZELN

#endif
