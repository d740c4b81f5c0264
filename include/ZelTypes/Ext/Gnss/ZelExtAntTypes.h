#ifndef ZELTYPES_EXT_GNSS_ZELEXTANTTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTANTTYPES_H

/// \file
/// Antennas: the descriptor of an antenna, how it stands above the mark, its
/// calibration model per system and band, the older fixed phase-centre
/// offset and variation tables, and the moves of a coordinate along the
/// chain of reference levels from the mark up to a phase centre.
///
/// Units and order follow the IGS ANTEX format, in which antenna calibrations
/// reach users:
/// - variations (SZelAntPCC::vecPCV, SZelAntPCVTable) and the offsets of
///   SZelAntPCOTable are in millimetres;
/// - a phase-centre offset is north, east, up from the antenna reference
///   point; SZelAntPCC::afPCO is in metres, since the level moves add it to
///   heights and local offsets in metres;
/// - a variation row is one azimuth, from 0 degrees (north) clockwise in the
///   calibration's azimuth step (fAziRad); its values run by zenith angle
///   from 0 degrees (the zenith) in the calibration's zenith step;
/// - a band number is the ANTEX frequency number less one: band 0 of GPS is
///   G01 (L1), band 1 is G02 (L2), band 4 is G05 (L5); band 4 of Galileo is
///   E05, and so on for every system letter.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Ext/Common/ZelExtMiscTypes.h>

#include <boost/unordered_map.hpp>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>
#include <vector>

namespace ZELN
{

// ---------------------------------------------------------------------------
// Constants
// ---------------------------------------------------------------------------

/// Band numbers of a model key: the ANTEX frequency number less one.
constexpr uint32_t c_ulANTBAND_F01 = 0;
constexpr uint32_t c_ulANTBAND_F02 = 1; ///< band of frequency number 02
constexpr uint32_t c_ulANTBAND_F03 = 2; ///< band of frequency number 03
constexpr uint32_t c_ulANTBAND_F04 = 3; ///< band of frequency number 04
constexpr uint32_t c_ulANTBAND_F05 = 4; ///< band of frequency number 05
constexpr uint32_t c_ulANTBAND_F06 = 5; ///< band of frequency number 06
constexpr uint32_t c_ulANTBAND_F07 = 6; ///< band of frequency number 07
constexpr uint32_t c_ulANTBAND_F08 = 7; ///< band of frequency number 08
constexpr uint32_t c_ulANTBAND_F09 = 8; ///< band of frequency number 09

/// Which offsets of SZelARPOffsets are filled (bits of m_eAvailability).
enum EZelARPAvailability : uint32_t
{
    ebVOAVAILABLE = 1, ///< m_dVerticalOffset
    ebHOAVAILABLE = 2, ///< m_afHorzOffset
    ebRDAVAILABLE = 4  ///< the height reading
};

/// How the antenna height was measured; any other value is an invalid mode.
enum EZelAntReadMode : int32_t
{
    ZELANTREADMODE_VERTICAL = 0, ///< m_dHeightRead
    ZELANTREADMODE_SLANT = 1     ///< m_dSlopeRead and m_dHorzOffsetRead
};

/// The chain of reference levels of an antenna, from the ground up. Stored
/// in 32 bits; values outside the chain are representable and refused.
enum EZelAntRefLevel : int32_t
{
    ZELANTREFLEVEL_MARK = 0,        ///< the mark on the ground
    ZELANTREFLEVEL_HEIGHT_READ = 1, ///< the point up to which the height was read
    ZELANTREFLEVEL_ARP = 2,         ///< the antenna reference point
    ZELANTREFLEVEL_PC_GPS_B0 = 3,   ///< the phase centre of GPS band 0 (G01)
    ZELANTREFLEVEL_PC_GPS_B1 = 4    ///< the phase centre of GPS band 1 (G02)
};

// ---------------------------------------------------------------------------
// SZelAntDescriptor
// ---------------------------------------------------------------------------

/// Names and identifiers of an antenna.
struct ZELTYPES_API SZelAntDescriptor
{
    static constexpr size_t c_ulNAME_LEN = 31; ///< size of awcName, in 16-bit characters
    static constexpr size_t c_ulIGS_LEN = 32;  ///< size of acIgsName and acSerialNo, in characters

    char16_t awcName[c_ulNAME_LEN] = {}; ///< local name, zero-ended; compared, never written
    char acIgsName[c_ulIGS_LEN] = {};    ///< IGS name, zero-ended when shorter than 32
    char acSerialNo[c_ulIGS_LEN] = {};   ///< serial number, zero-ended when shorter than 32
    uint8_t ucSetupId = 0;               ///< setup identifier
    uint8_t ucCreatorId = 0;             ///< identifier of the calibration's creator
    uint8_t ucType = 0;                  ///< antenna type

    /// Image, 67 bytes: IGS name at 0, serial number at 32, then setup,
    /// creator and type at 64, 65, 66. The local name is not in it.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.acIgsName) && io.Raw(r.acSerialNo) && io.Raw(r.ucSetupId) && io.Raw(r.ucCreatorId) &&
               io.Raw(r.ucType);
    }

    /// The line; stated with the text operators in the source.
    template <class IO, class Self> static void VisitText(IO& io, Self& r);

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// The three names up to their ends, then the three bytes.
ZELTYPES_API bool operator==(const SZelAntDescriptor& a, const SZelAntDescriptor& b);

/// "IgsName, " name ", SerNr, " serial ", SetId, " ", CreId, " ", Type, "
/// numbers. A name is read from the blank behind its tag up to a comma (which
/// ends it with a zero in place) or 32 characters, blanks included.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntDescriptor& rDescr);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntDescriptor& rDescr);

// ---------------------------------------------------------------------------
// SZelARPOffsets
// ---------------------------------------------------------------------------

/// How the antenna stands above the mark; lengths in metres.
struct ZELTYPES_API SZelARPOffsets
{
    uint32_t m_eAvailability = 0;        ///< bits of EZelARPAvailability
    SZelHorizontalOffset m_afHorzOffset; ///< of the antenna from the mark, east and north, metres
    double m_dVerticalOffset = 0.0;      ///< from the end of the height reading up to the ARP, metres
    EZelAntReadMode m_eReadMode = ZELANTREADMODE_VERTICAL; ///< how the height was measured
    /// The reading of the mode: vertical height (mode 0) or slant length
    /// (mode 1), one place in metres. The library reads only the name of the
    /// mode at hand; the image copies the place's bytes.
    union
    {
        double m_dHeightRead = 0.0;
        double m_dSlopeRead;
    };
    double m_dHorzOffsetRead = 0.0; ///< horizontal leg of a slant reading (mode 1), metres

    /// Provided, so that every compiler takes a const default object with
    /// the reading in an anonymous union.
    SZelARPOffsets() noexcept {}

    /// True when any offset is filled.
    bool IsAvailable() const { return m_eAvailability != 0; }

    /// Image, 48 bytes, the memory layout: availability at 0, east at 4,
    /// north at 8, 4 reserved, vertical offset at 16, mode at 24, 4 reserved,
    /// the reading at 32, the horizontal leg at 40.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.m_eAvailability) && io.Inline(r.m_afHorzOffset) && io.Reserved(4) &&
               io.Raw(r.m_dVerticalOffset) && io.Raw(r.m_eReadMode) && io.Reserved(4) &&
               io.Bytes(&r.m_dHeightRead, sizeof(double)) && io.Raw(r.m_dHorzOffsetRead);
    }

    /// The line; stated with the text operators in the source.
    template <class IO, class Self> static void VisitText(IO& io, Self& r);

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// Availability, horizontal offsets (relative 1e-6), vertical offset, mode,
/// then the fields of the mode, exactly; any other mode is unequal.
ZELTYPES_API bool operator==(const SZelARPOffsets& a, const SZelARPOffsets& b);

/// "Avl, " n ", HrzOffs, " offset ", VerOffs, " v ", ReadMode, " n, then
/// ", HgtRead, " v (mode 0) or ", SlpRead, SlpRead, " v ", HrzOffs, " v
/// (mode 1); any other mode reports "false" both ways.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelARPOffsets& rOffsets);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelARPOffsets& rOffsets);

// ---------------------------------------------------------------------------
// SZelAntPCC
// ---------------------------------------------------------------------------

/// The calibration of one band: offset and variations of the phase centre.
struct ZELTYPES_API SZelAntPCC
{
    /// Variations in millimetres: one row per azimuth, each row one value
    /// per zenith angle from 0 degrees.
    std::vector<std::vector<float>> vecPCV;
    /// Offset from the antenna reference point in metres: north, east, up.
    float afPCO[3] = {0.0f, 0.0f, 0.0f};

    /// Image: the three offsets, the 32-bit row count, then per row a 32-bit
    /// value count and the values. Size 16 + the sum of 4 + 4 x values. A
    /// row count beyond the bytes fails at the end of the buffer, unreported:
    /// the size test of the record at hand is the check.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.afPCO) && io.RawRows(r.vecPCV);
    }

    /// The line; stated with the text operators in the source.
    template <class IO, class Self> static void VisitText(IO& io, Self& r);

    /// Size of the byte image, in bytes.
    uint64_t getSize() const;
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// The offsets as bit patterns (so +0 and -0 differ), then the rows, each
/// value exactly (NaN unequal).
ZELTYPES_API bool operator==(const SZelAntPCC& a, const SZelAntPCC& b);

/// "PCO, " north ", " east ", " up ", PcvNumAzi, " rows, then per row
/// ", PcvNumElev, " values ", PCV" and each value behind ", ".
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntPCC& rPCC);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntPCC& rPCC);

// ---------------------------------------------------------------------------
// SZelAntModelKey
// ---------------------------------------------------------------------------

/// The system and band of one calibration in a model.
struct ZELTYPES_API SZelAntModelKey
{
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE; ///< satellite system of the calibration
    uint32_t ulFrqBand = 0;                       ///< ANTEX frequency number less one (c_ulANTBAND_...)

    /// Constructs the default state (for a record: holding no data).
    SZelAntModelKey() = default;
    /// The key of band ulBand of system eSystem.
    SZelAntModelKey(EZelSatSystem eSystem, uint32_t ulBand) : eSatSystem(eSystem), ulFrqBand(ulBand) {}

    /// Image, 8 bytes: system at 0 (32 bits), band at 4.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eSatSystem) && io.Raw(r.ulFrqBand);
    }
    /// Text: "SatSys, " letter ", FrqBand, " number.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatSys, ").Value(r.eSatSystem).Tag(", FrqBand, ").Value(r.ulFrqBand);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelAntModelKey& a, const SZelAntModelKey& b);
/// The order of the written forms: system, then band, both as signed numbers.
ZELTYPES_API bool operator<(const SZelAntModelKey& a, const SZelAntModelKey& b);
/// Hash of a key, for the model's map.
ZELTYPES_API std::size_t hash_value(const SZelAntModelKey& rKey);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntModelKey& rKey);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntModelKey& rKey);

// ---------------------------------------------------------------------------
// SZelAntModel
// ---------------------------------------------------------------------------

/// The calibration model of an antenna: one SZelAntPCC per system and band.
struct ZELTYPES_API SZelAntModel
{
    /// Calibrations by system and band, in no order of their own.
    typedef boost::unordered_map<SZelAntModelKey, SZelAntPCC> TMapPCCs;

    uint16_t unModelId = 0;   ///< identifier of the model, the producer's
    uint8_t ucModelAvail = 0; ///< availability of the model, the producer's
    TMapPCCs mapPCCs;         ///< maximum load factor 1.0
    float fAziRad = 0.0f;     ///< azimuth step between variation rows, radians (0: one row for all azimuths)

    /// Constructs the default state (for a record: holding no data).
    SZelAntModel();

    /// Image: model id at 0, availability at 2, azimuth step at 3, the
    /// 32-bit entry count at 7, then per entry in key order the key (8 bytes)
    /// and the calibration's image. A reader replaces the whole map; a key
    /// read twice keeps the last value. A calibration that fails makes the
    /// model return false with no report of its own.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.unModelId) && io.Raw(r.ucModelAvail) && io.Raw(r.fAziRad) && io.SortedMap(r.mapPCCs);
    }

    /// The line; stated with the text operators in the source.
    template <class IO, class Self> static void VisitText(IO& io, Self& r);

    /// Size of the byte image, in bytes.
    uint64_t getSize() const;
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// Id, availability, azimuth step (exact), then the maps: same size and
/// every key of the left one present in the right one with an equal value.
ZELTYPES_API bool operator==(const SZelAntModel& a, const SZelAntModel& b);

/// Model id, ", AntModelAvail, " n ", AntAziRad, " v ", PCCs, PCCsNum, " n,
/// then per entry in key order ", " key ", " calibration.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntModel& rModel);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntModel& rModel);

// ---------------------------------------------------------------------------
// SZelAntennaInfo
// ---------------------------------------------------------------------------

/// An antenna as the core knows it: descriptor, set-up and calibration.
struct ZELTYPES_API SZelAntennaInfo
{
    SZelAntDescriptor stAntDescr; ///< names and identifiers
    SZelARPOffsets m_ARPOffsets;  ///< how the antenna stands above the mark
    SZelAntModel stAntModel;      ///< calibration per system and band

    /// Image: descriptor at 0 (67 bytes), offsets at 67 (48 bytes), model at 115.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stAntDescr, false) && io.Record(r.m_ARPOffsets, false) &&
               io.Record(r.stAntModel, false);
    }
    /// Text: "AntDescr, " descriptor ", ArpOffs, " offsets ", AntModel, " model.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("AntDescr, ").Value(r.stAntDescr).Tag(", ArpOffs, ").Value(r.m_ARPOffsets);
        io.Tag(", AntModel, ").Value(r.stAntModel);
    }

    /// 115 + the model's size.
    uint64_t getSize() const;
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelAntennaInfo& a, const SZelAntennaInfo& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntennaInfo& rInfo);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntennaInfo& rInfo);

// ---------------------------------------------------------------------------
// SZelAntPCOTable
// ---------------------------------------------------------------------------

/// Phase-centre offsets of two bands (G01 and G02) from the antenna
/// reference point, in millimetres.
struct ZELTYPES_API SZelAntPCOTable
{
    uint32_t ulValidFrqs = 0; ///< which bands are filled, the producer's bits
    float fL1Up = 0.0f;       ///< up offset of G01, mm
    float fL2Up = 0.0f;       ///< up offset of G02, mm
    float fL1East = 0.0f;     ///< east offset of G01, mm
    float fL1North = 0.0f;    ///< north offset of G01, mm
    float fL2East = 0.0f;     ///< east offset of G02, mm
    float fL2North = 0.0f;    ///< north offset of G02, mm

    /// Image, 28 bytes, in field order.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulValidFrqs) && io.Raw(r.fL1Up) && io.Raw(r.fL2Up) && io.Raw(r.fL1East) &&
               io.Raw(r.fL1North) && io.Raw(r.fL2East) && io.Raw(r.fL2North);
    }
    /// Text: "VldFrqs, " n ", L1U, " ", L2U, " ", L1E, " ", L1N, " ", L2E, " ", L2N, " values.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("VldFrqs, ").Value(r.ulValidFrqs).Tag(", L1U, ").Value(r.fL1Up).Tag(", L2U, ").Value(r.fL2Up);
        io.Tag(", L1E, ").Value(r.fL1East).Tag(", L1N, ").Value(r.fL1North);
        io.Tag(", L2E, ").Value(r.fL2East).Tag(", L2N, ").Value(r.fL2North);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// ulValidFrqs exactly, each offset within a relative 1e-6.
ZELTYPES_API bool operator==(const SZelAntPCOTable& a, const SZelAntPCOTable& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntPCOTable& rTable);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntPCOTable& rTable);

// ---------------------------------------------------------------------------
// SZelAntPCVTable
// ---------------------------------------------------------------------------

/// Phase variations of two bands (G01, G02) in millimetres on a fixed grid:
/// 37 azimuths from 0 to 360 degrees in steps of 10, 19 zenith angles from
/// 0 to 90 degrees in steps of 5. ucNumAzi and ucNumElev say how much of the
/// grid is filled; all of it is always written and read.
struct ZELTYPES_API SZelAntPCVTable
{
    static constexpr size_t c_ulNUM_FRQ = 2;   ///< bands of the grid, G01 and G02
    static constexpr size_t c_ulNUM_AZI = 37;  ///< azimuths of the grid, 0 to 360 degrees in steps of 10
    static constexpr size_t c_ulNUM_ELEV = 19; ///< zenith angles of the grid, 0 to 90 degrees in steps of 5

    uint32_t ulValidFrqs = 0; ///< which bands are filled, the producer's bits
    uint8_t ucNumAzi = 0;     ///< azimuths filled
    uint8_t ucNumElev = 0;    ///< zenith angles filled
    int16_t anValues[c_ulNUM_FRQ][c_ulNUM_AZI][c_ulNUM_ELEV] = {}; ///< millimetres

    /// Image, 2,820 bytes, the memory layout: ulValidFrqs at 0, ucNumAzi at
    /// 4, ucNumElev at 5, the values at 6, 2 reserved bytes at 2,818.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulValidFrqs) && io.Raw(r.ucNumAzi) && io.Raw(r.ucNumElev) && io.Raw(r.anValues) &&
               io.Reserved(2);
    }

    /// The line; stated with the text operators in the source.
    template <class IO, class Self> static void VisitText(IO& io, Self& r);

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// The head fields, then the values as one block of bytes.
ZELTYPES_API bool operator==(const SZelAntPCVTable& a, const SZelAntPCVTable& b);

/// "VldFrqs, " n ", NumAzi, " n ", NumElev, " n ", Val" and all 1,406 values
/// each behind ", ".
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelAntPCVTable& rTable);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelAntPCVTable& rTable);

// ---------------------------------------------------------------------------
// Moves along the reference levels
// ---------------------------------------------------------------------------

/// A geographic coordinate on WGS 84: latitude and longitude in radians,
/// ellipsoidal height in metres.
struct ZELTYPES_API SZelGeoCoords
{
    double dLat = 0.0; ///< latitude, radians
    double dLon = 0.0; ///< longitude, radians
    double dHgt = 0.0; ///< ellipsoidal height, metres

    /// Constructs the default state (for a record: holding no data).
    SZelGeoCoords() = default;
    /// The coordinate at dLatitude, dLongitude (radians) and dHeight (metres).
    SZelGeoCoords(double dLatitude, double dLongitude, double dHeight)
        : dLat(dLatitude), dLon(dLongitude), dHgt(dHeight)
    {
    }
};

/// Moves rRefPtCoords from level eFrom to level eTo of the antenna. False,
/// with the coordinate unchanged, when a needed reading is missing or a
/// level is outside the chain.
ZELTYPES_API bool ConvertRefLevel(EZelAntRefLevel eFrom, EZelAntRefLevel eTo,
                                  const SZelAntennaInfo& rRefAntInfo, SZelGeoCoords& rRefPtCoords);

/// Adds a local offset, east and north in metres, to rRefPtCoords.
ZELTYPES_API void ApplyLocalOffsets(const float (&afEastNorth)[2], SZelGeoCoords& rRefPtCoords);

/// The local offset from rFrom to rTo: east and north in metres at rFrom,
/// and up in metres.
ZELTYPES_API void GetLocalOffsets(const SZelGeoCoords& rFrom, const SZelGeoCoords& rTo,
                                  float (&rafEastNorth)[2], float& rfUp);

/// Fills the antenna's reading from a height (metres) and a horizontal
/// offset (two floats, east and north, metres) known at level 2 or 3; either
/// pointer may be null. False for any other level.
ZELTYPES_API bool SetHeightAtLevel(SZelAntennaInfo& rRefAntInfo, EZelAntRefLevel eLevel,
                                   const float* pfHeight, const float* pafEastNorth);

} // namespace ZELN

#endif
