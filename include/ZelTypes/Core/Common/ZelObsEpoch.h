#ifndef ZELTYPES_CORE_COMMON_ZELOBSEPOCH_H
#define ZELTYPES_CORE_COMMON_ZELOBSEPOCH_H

// The unit in which measurements pass from module to module: an epoch header
// with the time and the receiver's rates, then one SZelSatObservation per
// satellite. On it stand the measurement engine's output per epoch (the epoch
// with the corrections applied and the range rates) and the batch of such
// outputs, and the interface through which a user of the core is told of
// results.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <boost/container/vector.hpp>
#include <boost/unordered_map.hpp>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

constexpr uint64_t c_ulOBSEPOCH_HEADER_SIZE = 96;
constexpr uint64_t c_ulOBSEPOCH_FIXED_SIZE = 100; // header and satellite count
constexpr uint64_t c_ulCORRECTION_ENTRY_SIZE = 28;
constexpr uint64_t c_ulRANGERATE_ENTRY_SIZE = 16;
// Buckets a copied output record is sized for.
constexpr uint64_t c_ulCORRECTIONS_PRESIZE = 400;
constexpr uint64_t c_ulRANGERATES_PRESIZE = 60;

// ---------------------------------------------------------------------------
// Epoch header and epoch
// ---------------------------------------------------------------------------

struct ZELTYPES_API SZelObservationEpochHeader
{
    uint8_t ucTag0; // identifying bytes, only carried
    uint8_t ucTag1;
    SMjdTime stTime;   // accuracy EXACT by default
    uint8_t ucNumSats; // as the producer states it; not tied to the satellite vector
    double dClockOffset;
    double dTimeStampOffset;
    uint32_t ulDopplerRate;
    uint32_t ulPositionRate;
    int32_t lSmoothingLength;
    SMjdTime stFirstStaticMarkEpoch; // accuracy NANOSECOND by default

    SZelObservationEpochHeader() { Reset(); }

    void Reset();

    uint64_t getSize() const { return c_ulOBSEPOCH_HEADER_SIZE; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    // Times compare with the tolerance of each side, in both directions.
    bool operator==(const SZelObservationEpochHeader& rhs) const;
    bool operator!=(const SZelObservationEpochHeader& rhs) const { return !(*this == rhs); }
};

typedef boost::container::vector<SZelSatObservation> ZelSatObsVector;

struct ZELTYPES_API SZelObservationEpoch
{
    SZelObservationEpochHeader stZelObservationEpochHeader;
    ZelSatObsVector vecSatObs; // satellites are trivially copyable: copies are block copies

    SZelObservationEpoch() = default;
    SZelObservationEpoch(const SZelObservationEpoch&) = default;
    SZelObservationEpoch(SZelObservationEpoch&&) = default;
    SZelObservationEpoch& operator=(const SZelObservationEpoch&) = default;
    SZelObservationEpoch& operator=(SZelObservationEpoch&&) = default;
    virtual ~SZelObservationEpoch();

    // Empties the vector, keeping its allocation, and resets the header.
    void Reset();

    uint64_t getSize() const;
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    // The first bounds test looks at the present content of the record.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    // Satellites compare pairwise in vector order.
    bool operator==(const SZelObservationEpoch& rhs) const;
    bool operator!=(const SZelObservationEpoch& rhs) const { return !(*this == rhs); }
};

// ---------------------------------------------------------------------------
// Corrections applied by the measurement engine
// ---------------------------------------------------------------------------

enum EZelCorrType : int32_t
{
    ZELCORRTYPE_INV = 0,
    ZELCORRTYPE_PCV = 1,
    ZELCORRTYPE_PCO = 2,
    ZELCORRTYPE_VAR = 3,
    ZELCORRTYPE_PCB = 4,
    ZELCORRTYPE_POF = 5
};

constexpr int32_t c_lNB_CORRTYPES = 6;

struct ZELTYPES_API SZelCorrectionKey
{
    SZelSatID stSatId;
    EZelFrequency eFrequency;
    bool bTrackModeY;
    EZelCorrType eCorrType;

    SZelCorrectionKey()
        : stSatId(), eFrequency(ZELFREQUENCY_UNKNOWN), bTrackModeY(false), eCorrType(ZELCORRTYPE_INV)
    {
    }
    SZelCorrectionKey(EZelCorrType eType, const SZelSatID& rstSatId, EZelFrequency eFrq, bool bModeY)
        : stSatId(rstSatId), eFrequency(eFrq), bTrackModeY(bModeY), eCorrType(eType)
    {
    }

    // System and number, then frequency, track mode Y and type.
    bool operator==(const SZelCorrectionKey& rhs) const
    {
        return stSatId.eSatSystem == rhs.stSatId.eSatSystem &&
               stSatId.uiSatNumber == rhs.stSatId.uiSatNumber && eFrequency == rhs.eFrequency &&
               bTrackModeY == rhs.bTrackModeY && eCorrType == rhs.eCorrType;
    }
    bool operator!=(const SZelCorrectionKey& rhs) const { return !(*this == rhs); }

    // Type, frequency, track mode Y, then the satellite.
    bool operator<(const SZelCorrectionKey& rhs) const;
};

// The key packed into one number, satellite number on top, so that keys
// spread over the buckets without a mixing function.
struct SZelCorrectionKeyHash
{
    std::size_t operator()(const SZelCorrectionKey& rstKey) const
    {
        std::size_t h = rstKey.stSatId.uiSatNumber;
        h = (h << 8) | static_cast<std::size_t>(static_cast<uint32_t>(rstKey.eFrequency));
        h = (h << 8) | static_cast<std::size_t>(static_cast<uint32_t>(rstKey.eCorrType));
        h = (h << 7) | static_cast<std::size_t>(static_cast<uint32_t>(rstKey.stSatId.eSatSystem));
        h = (h << 1) | (rstKey.bTrackModeY ? 0u : 1u);
        return h;
    }
};

// The global satellite number.
struct SZelSatIDHash
{
    std::size_t operator()(const SZelSatID& rstSatId) const { return ToGlobalSatNumber(rstSatId); }
};

typedef boost::unordered_map<SZelCorrectionKey, double, SZelCorrectionKeyHash> ZelCorrectionMap;
typedef boost::unordered_map<SZelSatID, double, SZelSatIDHash> ZelRangeRateMap;

// What the measurement engine hands out per epoch.
struct ZELTYPES_API SZelRtmeOutEpochData
{
    static constexpr uint32_t NB_STATION_SYSTEMS = 4;
    static constexpr uint32_t NB_SAT_SYSTEM_COUNTERS = 9; // by EZelSatSystem, 0 to 8

    SZelObservationEpoch stObs;
    int32_t alStationsUsed[NB_STATION_SYSTEMS]; // GPS, GLONASS, BeiDou, Galileo
    double dClock;
    ZelCorrectionMap mapCorrections;
    ZelRangeRateMap mapRangeRates;

    SZelRtmeOutEpochData();
    // A copy is sized for c_ulCORRECTIONS_PRESIZE corrections and
    // c_ulRANGERATES_PRESIZE range rates; assignment and moves are not.
    SZelRtmeOutEpochData(const SZelRtmeOutEpochData& rhs);
    SZelRtmeOutEpochData(SZelRtmeOutEpochData&&) = default;
    SZelRtmeOutEpochData& operator=(const SZelRtmeOutEpochData&) = default;
    SZelRtmeOutEpochData& operator=(SZelRtmeOutEpochData&&) = default;
    virtual ~SZelRtmeOutEpochData();

    // Clock and maps only: the epoch and the station counts stay.
    void Reset();

    double GetClock() const { return dClock; }
    void SetClock(double dValue) { dClock = dValue; }

    // Satellites with phase on at least one signal, by system.
    void CountSatsWithPhase(uint32_t (&aulCounts)[NB_SAT_SYSTEM_COUNTERS]) const;

    // Inserts the key or replaces the value of the key held.
    ZelCorrectionMap::value_type& AddCorrection(EZelCorrType eCorrType, const SZelSatID& stSatId,
                                                EZelFrequency eFrequency, bool bTrackModeY, double dValue);
    // False and 0.0 when the key is not held.
    bool GetCorrection(EZelCorrType eCorrType, const SZelSatID& stSatId, EZelFrequency eFrequency,
                       bool bTrackModeY, double& rdValue) const;
    ZelRangeRateMap::value_type& AddRangeRate(const SZelSatID& stSatId, double dValue);
    bool GetRangeRate(const SZelSatID& stSatId, double& rdValue) const;

    ZelCorrectionMap& GetCorrections() { return mapCorrections; }
    const ZelCorrectionMap& GetCorrections() const { return mapCorrections; }
    ZelRangeRateMap& GetRangeRates() { return mapRangeRates; }
    const ZelRangeRateMap& GetRangeRates() const { return mapRangeRates; }

    uint64_t getSize() const;
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    // Adds to the maps without clearing them: load into a reset record.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    // Maps compare by content, in any order.
    bool operator==(const SZelRtmeOutEpochData& rhs) const;
    bool operator!=(const SZelRtmeOutEpochData& rhs) const { return !(*this == rhs); }
};

typedef boost::container::vector<SZelRtmeOutEpochData> ZelRtmeOutEpochVector;

// A batch of output epochs.
struct ZELTYPES_API SZelOutObservations
{
    uint32_t ulValue0; // only carried
    uint32_t ulValue1;
    ZelRtmeOutEpochVector vecEpochs;

    SZelOutObservations() : ulValue0(0), ulValue1(0) {}
    SZelOutObservations(const SZelOutObservations&) = default;
    SZelOutObservations(SZelOutObservations&&) = default;
    SZelOutObservations& operator=(const SZelOutObservations&) = default;
    SZelOutObservations& operator=(SZelOutObservations&&) = default;
    virtual ~SZelOutObservations();

    uint64_t getSize() const;
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    bool operator==(const SZelOutObservations& rhs) const;
    bool operator!=(const SZelOutObservations& rhs) const { return !(*this == rhs); }
};

// Implemented by the users of the core; the library never calls it.
class ZELTYPES_API IZelNotificationInterface
{
public:
    virtual ~IZelNotificationInterface();
    // A batch of output epochs is ready.
    virtual void OnObservations(const SZelOutObservations& rstObservations) = 0;
    // Anything else the core has to tell, by the caller's own code and text.
    virtual void OnNotification(uint32_t ulCode, const char* szText) = 0;
};

// ---------------------------------------------------------------------------
// Text forms
// ---------------------------------------------------------------------------

ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelObservationEpochHeader& rstHeader);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelObservationEpochHeader& rstHeader);
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelObservationEpoch& rstEpoch);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelObservationEpoch& rstEpoch);
// Three letters: "Inv", "PCV", "PCO", "Var", "PCB", "POF"; "Inv" for other values.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, EZelCorrType eCorrType);
// A field of three characters and a comma right behind it; 0 for a word
// not in the table.
ZELTYPES_API std::istream& operator>>(std::istream& is, EZelCorrType& reCorrType);
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelCorrectionKey& rstKey);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelCorrectionKey& rstKey);
// Map entries go out sorted (keys by their order, satellites by system and
// number), so that equal records give equal lines.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRtmeOutEpochData& rstData);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRtmeOutEpochData& rstData);

} // namespace ZELN

#endif
