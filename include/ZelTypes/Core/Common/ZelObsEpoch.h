#ifndef ZELTYPES_CORE_COMMON_ZELOBSEPOCH_H
#define ZELTYPES_CORE_COMMON_ZELOBSEPOCH_H

/// \file
/// The unit in which measurements pass from module to module: an epoch header
/// with the time and the receiver's rates, then one SZelSatObservation per
/// satellite. On it stand the measurement engine's output per epoch (the epoch
/// with the corrections applied and the range rates) and the batch of such
/// outputs, and the interface through which a user of the core is told of
/// results.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTimeBlockIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/ZelTypesObs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <boost/container/vector.hpp>
#include <boost/unordered_map.hpp>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>
#include <vector>

namespace ZELN
{

/// Size of the header's image, in bytes.
constexpr uint64_t c_ulOBSEPOCH_HEADER_SIZE = 96;
constexpr uint64_t c_ulOBSEPOCH_FIXED_SIZE = 100; ///< header and satellite count
/// Size of one correction entry's image, in bytes.
constexpr uint64_t c_ulCORRECTION_ENTRY_SIZE = 28;
/// Size of one range-rate entry's image, in bytes.
constexpr uint64_t c_ulRANGERATE_ENTRY_SIZE = 16;
/// Buckets a copied output record is sized for.
constexpr uint64_t c_ulCORRECTIONS_PRESIZE = 400;
/// Buckets a copied output record is sized for, for the range rates.
constexpr uint64_t c_ulRANGERATES_PRESIZE = 60;

// ---------------------------------------------------------------------------
// Epoch header and epoch
// ---------------------------------------------------------------------------

/// The head of an epoch. Clock offsets, rates and the smoothing length are
/// in the units the producer sets; the library never scales them.
struct ZELTYPES_API SZelObservationEpochHeader
{
    uint8_t ucTag0 = 0; ///< identifying bytes, only carried
    /// Second identifying byte, only carried.
    uint8_t ucTag1 = 0;
    SMjdTime stTime{MJDACC_EXACT}; ///< time of the epoch
    uint8_t ucNumSats = 0;         ///< as the producer states it; not tied to the satellite vector
    double dClockOffset = 0.0;     ///< receiver clock offset
    double dTimeStampOffset = 0.0; ///< offset of the time stamp
    uint32_t ulDopplerRate = 1000; ///< rate of the Doppler output
    /// Rate of the position output.
    uint32_t ulPositionRate = 1000;
    /// Smoothing length.
    int32_t lSmoothingLength = 0;
    SMjdTime stFirstStaticMarkEpoch{MJDACC_NANOSECOND}; ///< first epoch of the present static marking

    /// Resets the record to its default state.
    void Reset() { *this = SZelObservationEpochHeader(); }

    /// Image, 96 bytes: the memory layout, reserved bytes written as zero.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ucTag0);
        io.Raw(r.ucTag1);
        io.Reserved(6);
        ZelIo::VisitTimeBlock(io, r.stTime);
        io.Raw(r.ucNumSats);
        io.Reserved(7);
        io.Raw(r.dClockOffset);
        io.Raw(r.dTimeStampOffset);
        io.Raw(r.ulDopplerRate);
        io.Raw(r.ulPositionRate);
        io.Raw(r.lSmoothingLength);
        io.Reserved(4);
        return ZelIo::VisitTimeBlock(io, r.stFirstStaticMarkEpoch);
    }

    /// Text: the two tags and stTime (week, milliseconds of week) carry no
    /// tag; stFirstStaticMarkEpoch is in week and seconds of week. The time
    /// readers give the default time for a week from 5966 on or a time of
    /// week out of range, without a report.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.template Wide<uint32_t>(r.ucTag0).Tag(", ").template Wide<uint32_t>(r.ucTag1).Tag(", ");
        io.Form(r.stTime, MJDTXT_GPS_MILLISECONDS);
        io.Tag(", NumSats, ").template Wide<uint32_t>(r.ucNumSats);
        io.Tag(", ClkOffs, ").Value(r.dClockOffset).Tag(", TimeStampOffs, ").Value(r.dTimeStampOffset);
        io.Tag(", DoppRate, ").Value(r.ulDopplerRate).Tag(", PosRate, ").Value(r.ulPositionRate);
        io.Tag(", SmooLgth, ").Value(r.lSmoothingLength);
        io.Tag(", 1stStatMrkEpoch, ").Form(r.stFirstStaticMarkEpoch, MJDTXT_GPS_SECONDS);
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

    /// Times compare with the tolerance of each side, in both directions.
    bool operator==(const SZelObservationEpochHeader& rhs) const;
};

/// The satellites of an epoch.
typedef boost::container::vector<SZelSatObservation> ZelSatObsVector;

/// One epoch: the header and one record per satellite.
struct ZELTYPES_API SZelObservationEpoch
{
    /// Header of the epoch.
    SZelObservationEpochHeader stZelObservationEpochHeader;
    ZelSatObsVector vecSatObs; ///< satellites are trivially copyable: copies are block copies

    /// Constructs the default state (for a record: holding no data).
    SZelObservationEpoch() = default;
    /// Copies another object.
    SZelObservationEpoch(const SZelObservationEpoch&) = default;
    /// Moves another object.
    SZelObservationEpoch(SZelObservationEpoch&&) = default;
    /// Copies another object into this one.
    SZelObservationEpoch& operator=(const SZelObservationEpoch&) = default;
    /// Moves another object into this one.
    SZelObservationEpoch& operator=(SZelObservationEpoch&&) = default;
    /// Destroys the object.
    virtual ~SZelObservationEpoch();

    /// Empties the vector, keeping its allocation, and resets the header.
    void Reset();

    /// Image: the header at 0, the satellite count at 96, the satellites from
    /// 100. A failing header or satellite is reported here as well.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stZelObservationEpochHeader, true) && io.Sequence(r.vecSatObs, true);
    }

    /// Text: the header, ", NumSats, " and the true count, then the
    /// satellites; so ", NumSats, " stands twice in the line. The reader
    /// sizes the vector from this second count.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        if constexpr (!IO::c_bReading)
        {
            // The writer's check of a count beyond the 32 bits of the images.
            ZEL_ASSERT_TEXT(r.vecSatObs.size() < 0xFFFFFFFFu, "false");
        }
        io.Value(r.stZelObservationEpochHeader).Sequence(r.vecSatObs, ", NumSats, ");
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// The first bounds test looks at the present content of the record.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    /// Satellites compare pairwise in vector order.
    bool operator==(const SZelObservationEpoch& rhs) const;
};

// ---------------------------------------------------------------------------
// Corrections applied by the measurement engine
// ---------------------------------------------------------------------------

/// Kind of a correction applied by the measurement engine; text words "PCV", "PCO", "VAR", "PCB", "POF".
enum EZelCorrType : int32_t
{
    ZELCORRTYPE_INV = 0,
    ZELCORRTYPE_PCV = 1,
    ZELCORRTYPE_PCO = 2,
    ZELCORRTYPE_VAR = 3,
    ZELCORRTYPE_PCB = 4,
    ZELCORRTYPE_POF = 5
};

/// Number of correction kinds, including the invalid one.
constexpr int32_t c_lNB_CORRTYPES = 6;

/// The key of the corrections map.
struct ZELTYPES_API SZelCorrectionKey
{
    /// Satellite.
    SZelSatID stSatId;
    /// Frequency slot of the signal.
    EZelFrequency eFrequency = ZELFREQUENCY_UNKNOWN;
    /// True for the Y track mode of the signal.
    bool bTrackModeY = false;
    /// Kind of correction.
    EZelCorrType eCorrType = ZELCORRTYPE_INV;

    /// Constructs the default state (for a record: holding no data).
    SZelCorrectionKey() = default;
    /// Key of correction kind eType for one satellite, frequency slot and track mode.
    SZelCorrectionKey(EZelCorrType eType, const SZelSatID& rstSatId, EZelFrequency eFrq, bool bModeY)
        : stSatId(rstSatId), eFrequency(eFrq), bTrackModeY(bModeY), eCorrType(eType)
    {
    }

    /// Image, 20 bytes before the value of its entry: satellite (8),
    /// frequency at 8, track mode Y at 12 with three reserved bytes, type at 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Inline(r.stSatId);
        io.Raw(r.eFrequency);
        io.Raw(r.bTrackModeY);
        io.Reserved(3);
        return io.Raw(r.eCorrType);
    }

    /// Text; the type's reader takes the comma behind its three letters.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatId, ").Value(r.stSatId).Tag(", Frq, ").template Wide<int32_t>(r.eFrequency);
        io.Tag(", TrckModY, ");
        // The bool goes out through the stream's bool insertion and comes
        // back through a 32-bit number, any value but 0 being true.
        if constexpr (IO::c_bReading)
        {
            io.template Wide<int32_t>(r.bTrackModeY);
        }
        else
        {
            io.Value(r.bTrackModeY);
        }
        io.Tag(", CorrTyp, ").Value(r.eCorrType);
    }

    /// System and number, then frequency, track mode Y and type.
    bool operator==(const SZelCorrectionKey& rhs) const
    {
        return stSatId.eSatSystem == rhs.stSatId.eSatSystem &&
               stSatId.uiSatNumber == rhs.stSatId.uiSatNumber && eFrequency == rhs.eFrequency &&
               bTrackModeY == rhs.bTrackModeY && eCorrType == rhs.eCorrType;
    }

    /// Type, frequency, track mode Y, then the satellite.
    bool operator<(const SZelCorrectionKey& rhs) const;
};

/// The key packed into one number, satellite number on top, so that keys
/// spread over the buckets without a mixing function.
struct SZelCorrectionKeyHash
{
    /// Hash of a correction key.
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

/// The global satellite number.
struct SZelSatIDHash
{
    /// Hash of a satellite: its global number.
    std::size_t operator()(const SZelSatID& rstSatId) const { return ToGlobalSatNumber(rstSatId); }
};

/// Corrections by key, in the producer's units.
typedef boost::unordered_map<SZelCorrectionKey, double, SZelCorrectionKeyHash> ZelCorrectionMap;
/// Range rates by satellite.
typedef boost::unordered_map<SZelSatID, double, SZelSatIDHash> ZelRangeRateMap;

/// What the measurement engine hands out per epoch. The clock, the
/// corrections and the range rates are in the units the engine sets; the
/// library never scales them.
struct ZELTYPES_API SZelRtmeOutEpochData
{
    /// Systems counted in alStationsUsed: GPS, GLONASS, BeiDou, Galileo.
    static constexpr uint32_t NB_STATION_SYSTEMS = 4;
    static constexpr uint32_t NB_SAT_SYSTEM_COUNTERS = 9; ///< by EZelSatSystem, 0 to 8

    /// The observation epoch.
    SZelObservationEpoch stObs;
    /// reference stations used: GPS, GLONASS, BeiDou, Galileo
    int32_t alStationsUsed[NB_STATION_SYSTEMS] = {};
    /// Clock value of the output epoch, in the producer's unit (text tag "Clk").
    double dClock = 0.0;
    ZelCorrectionMap mapCorrections; ///< maximum load factor 1.0
    ZelRangeRateMap mapRangeRates;   ///< maximum load factor 1.0

    /// Constructs the default state (for a record: holding no data).
    SZelRtmeOutEpochData();
    /// A copy is sized for c_ulCORRECTIONS_PRESIZE corrections and
    /// c_ulRANGERATES_PRESIZE range rates; assignment and moves are not.
    SZelRtmeOutEpochData(const SZelRtmeOutEpochData& rhs);
    /// Moves another object.
    SZelRtmeOutEpochData(SZelRtmeOutEpochData&&) = default;
    /// Copies another object into this one.
    SZelRtmeOutEpochData& operator=(const SZelRtmeOutEpochData&) = default;
    /// Moves another object into this one.
    SZelRtmeOutEpochData& operator=(SZelRtmeOutEpochData&&) = default;
    /// Destroys the object.
    virtual ~SZelRtmeOutEpochData();

    /// Clock and maps only: the epoch and the station counts stay.
    void Reset();

    /// Returns dClock.
    double GetClock() const { return dClock; }
    /// Sets dClock.
    void SetClock(double dValue) { dClock = dValue; }

    /// Satellites with phase on at least one signal, by system.
    void CountSatsWithPhase(uint32_t (&aulCounts)[NB_SAT_SYSTEM_COUNTERS]) const;

    /// Inserts the key or replaces the value of the key held.
    ZelCorrectionMap::value_type& AddCorrection(EZelCorrType eCorrType, const SZelSatID& stSatId,
                                                EZelFrequency eFrequency, bool bTrackModeY, double dValue);
    /// False and 0.0 when the key is not held.
    bool GetCorrection(EZelCorrType eCorrType, const SZelSatID& stSatId, EZelFrequency eFrequency,
                       bool bTrackModeY, double& rdValue) const;
    /// Stores the range rate of a satellite, replacing a held one; returns the entry.
    ZelRangeRateMap::value_type& AddRangeRate(const SZelSatID& stSatId, double dValue);
    /// Range rate of a satellite; false and 0.0 when none is held.
    bool GetRangeRate(const SZelSatID& stSatId, double& rdValue) const;

    /// The corrections map, for changing.
    ZelCorrectionMap& GetCorrections() { return mapCorrections; }
    /// Returns mapCorrections.
    const ZelCorrectionMap& GetCorrections() const { return mapCorrections; }
    /// The range-rate map, for changing.
    ZelRangeRateMap& GetRangeRates() { return mapRangeRates; }
    /// Returns mapRangeRates.
    const ZelRangeRateMap& GetRangeRates() const { return mapRangeRates; }

    /// Image: the epoch, the four station counts, the clock, then each map
    /// as its count and its entries in the map's iteration order: a
    /// correction takes 28 bytes (key, value at 20, unaligned), a range rate
    /// 16 (satellite, value). The reader adds to the maps. A failing epoch is
    /// reported here by the writer only.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stObs) && io.Raw(r.alStationsUsed) && io.Raw(r.dClock) &&
               io.Map(r.mapCorrections) && io.Map(r.mapRangeRates);
    }

    /// Text: the epoch, the station counts, the clock, then each map as its
    /// size and ", " key ", " value per entry.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Obs, ").Value(r.stObs);
        io.Tag(", StnUsdG, ").Value(r.alStationsUsed[0]).Tag(", StnUsdR, ").Value(r.alStationsUsed[1]);
        io.Tag(", StnUsdC, ").Value(r.alStationsUsed[2]).Tag(", StnUsdE, ").Value(r.alStationsUsed[3]);
        io.Tag(", Clk, ").Value(r.dClock);
        MapText(io, r.mapCorrections, ", Corrs, ");
        MapText(io, r.mapRangeRates, ", RngRates, ");
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Adds to the maps without clearing them: load into a reset record.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }

    /// Maps compare by content, in any order.
    bool operator==(const SZelRtmeOutEpochData& rhs) const;

private:
    /// The two directions differ for a map: the writer puts the entries in
    /// the order of their keys, so that equal records give equal lines; the
    /// reader adds them as they come, while the stream is good. The reader
    /// of a correction key takes the comma behind it, a satellite's does not.
    template <class IO, class TMap> static void MapText(IO& io, TMap& rMap, const char* szCountTag)
    {
        using TKey = typename std::remove_const<TMap>::type::key_type;
        if constexpr (IO::c_bReading)
        {
            uint32_t ulCount = 0;
            io.Tag(szCountTag).Value(ulCount);
            for (uint32_t ulIdx = 0; ulIdx < ulCount && io.Stream(); ++ulIdx)
            {
                TKey tKey;
                double dValue = 0.0;
                io.Tag(", ").Value(tKey);
                if constexpr (std::is_same<TKey, SZelSatID>::value)
                {
                    io.Tag(", ");
                }
                io.Value(dValue);
                if (io.Stream())
                {
                    rMap[tKey] = dValue;
                }
            }
        }
        else
        {
            io.Tag(szCountTag).Value(rMap.size());
            for (const auto* pEntry : ZelIo::SortedEntries(rMap))
            {
                io.Tag(", ").Value(pEntry->first).Tag(", ").Value(pEntry->second);
            }
        }
    }
};

/// A batch of output epochs.
typedef boost::container::vector<SZelRtmeOutEpochData> ZelRtmeOutEpochVector;

/// A batch of output epochs.
struct ZELTYPES_API SZelOutObservations
{
    uint32_t ulValue0 = 0; ///< only carried
    uint32_t ulValue1 = 0; ///< only carried
    /// The epochs of the batch.
    ZelRtmeOutEpochVector vecEpochs;

    /// Constructs the default state (for a record: holding no data).
    SZelOutObservations() = default;
    /// Copies another object.
    SZelOutObservations(const SZelOutObservations&) = default;
    /// Moves another object.
    SZelOutObservations(SZelOutObservations&&) = default;
    /// Copies another object into this one.
    SZelOutObservations& operator=(const SZelOutObservations&) = default;
    /// Moves another object into this one.
    SZelOutObservations& operator=(SZelOutObservations&&) = default;
    /// Destroys the object.
    virtual ~SZelOutObservations();

    /// Image: ulValue0 at 0, ulValue1 at 4, the count at 8, the records from
    /// 12. A failing record is not reported at this level.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulValue0) && io.Raw(r.ulValue1) && io.Sequence(r.vecEpochs, false);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// The bytes used are reported for a whole batch only: 0 when a record fails.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    /// True when the two records are equal, field by field.
    bool operator==(const SZelOutObservations& rhs) const;
};

/// Implemented by the users of the core; the library never calls it.
class ZELTYPES_API IZelNotificationInterface
{
public:
    /// Destroys the object.
    virtual ~IZelNotificationInterface();
    /// A batch of output epochs is ready.
    virtual void OnObservations(const SZelOutObservations& rstObservations) = 0;
    /// Anything else the core has to tell, by the caller's own code and text.
    virtual void OnNotification(uint32_t ulCode, const char* szText) = 0;
};

// ---------------------------------------------------------------------------
// Text forms
// ---------------------------------------------------------------------------

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelObservationEpochHeader& rstHeader);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelObservationEpochHeader& rstHeader);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelObservationEpoch& rstEpoch);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelObservationEpoch& rstEpoch);
/// Three letters: "Inv", "PCV", "PCO", "Var", "PCB", "POF"; "Inv" for other values.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, EZelCorrType eCorrType);
/// A field of three characters and a comma right behind it; 0 for a word
/// not in the table.
ZELTYPES_API std::istream& operator>>(std::istream& is, EZelCorrType& reCorrType);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelCorrectionKey& rstKey);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelCorrectionKey& rstKey);
/// Map entries go out sorted (keys by their order, satellites by system and
/// number), so that equal records give equal lines.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRtmeOutEpochData& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRtmeOutEpochData& rstData);

} // namespace ZELN

#endif
