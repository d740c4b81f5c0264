#ifndef ZELTYPES_EXT_GNSS_ZELEXTAUXTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTAUXTYPES_H

/// \file
/// Network RTK records: the master-auxiliary station and the ionospheric,
/// geometric and combined correction differences per satellite, the area
/// gradients of a correction grid, and the residual statistics of a
/// reference station.
///
/// Values stay the scaled integers of the network messages: the library
/// never scales them; their units are those of the message that carried
/// them. The fixed records are written as their memory layout, padding bytes
/// included: those go out as zero and are passed over when read.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTimeBlockIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstdint>
#include <istream>
#include <ostream>
#include <vector>

namespace ZELN
{

/// Entries of every per-satellite array of a network message.
constexpr uint32_t c_ulNET_MAX_SATS = 15;
/// Combined messages held by MsgGNSS17T.
constexpr uint32_t c_ulNET_COMB_MSGS = 5;

/// The satellite arrays of a message and its entries, in both directions.
namespace ZelNetIo
{
/// Image of a satellite array: the fields of every entry in order, with no
/// bounds test of their own; false at the first entry that fails.
template <class IO, class TArray> inline bool Entries(IO& io, TArray& rastEntries)
{
    for (auto& rEntry : rastEntries)
    {
        if (!io.Inline(rEntry))
        {
            return false;
        }
    }
    return true;
}

/// Text of a satellite array: ", " szEntryTag and the entry, for every entry.
template <class IO, class TArray> inline void EntriesText(IO& io, TArray& rastEntries, const char* szEntryTag)
{
    for (auto& rEntry : rastEntries)
    {
        io.Tag(", ").Tag(szEntryTag).Value(rEntry);
    }
}

/// Element-wise exact comparison of two fixed arrays.
template <class T, size_t N> inline bool ArraysEqual(const T (&a)[N], const T (&b)[N])
{
    for (size_t ulIdx = 0; ulIdx < N; ++ulIdx)
    {
        if (!(a[ulIdx] == b[ulIdx]))
        {
            return false;
        }
    }
    return true;
}
} // namespace ZelNetIo

// ---------------------------------------------------------------------------
// Master-auxiliary records
// ---------------------------------------------------------------------------

/// An auxiliary station of a network and its position relative to the master,
/// 24 bytes. The deltas are the message's scaled integers (latitude,
/// longitude and height differences, auxiliary minus master).
struct ZELTYPES_API SZelNetAuxStation
{
    uint16_t unMsgNr = 0;    ///< message number, as the message carries it
    uint8_t ucNetId = 0;     ///< network identifier
    uint8_t ucSubNetId = 0;  ///< subnetwork identifier
    uint8_t ucNumAux = 0;    ///< auxiliary stations, as the message counts them
    uint16_t unMasterId = 0; ///< identifier of the master station
    uint16_t unAuxId = 0;    ///< identifier of this auxiliary station
    int32_t lDeltaLat = 0;   ///< scaled as in the message, north positive
    int32_t lDeltaLon = 0;   ///< scaled as in the message, east positive
    int32_t lDeltaHgt = 0;   ///< scaled as in the message, up positive

    /// Image: number at 0, network 2, subnetwork 3, count 4, master 6,
    /// auxiliary 8, deltas at 12, 16 and 20; bytes 5, 10 and 11 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.unMsgNr);
        io.Raw(r.ucNetId);
        io.Raw(r.ucSubNetId);
        io.Raw(r.ucNumAux);
        io.Reserved(1);
        io.Raw(r.unMasterId);
        io.Raw(r.unAuxId);
        io.Reserved(2);
        io.Raw(r.lDeltaLat);
        io.Raw(r.lDeltaLon);
        return io.Raw(r.lDeltaHgt);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("MsgNr, ").template Wide<uint32_t>(r.unMsgNr);
        io.Tag(", NetId, ").template Wide<uint32_t>(r.ucNetId);
        io.Tag(", SubNetId, ").template Wide<uint32_t>(r.ucSubNetId);
        io.Tag(", NumAux, ").template Wide<uint32_t>(r.ucNumAux);
        io.Tag(", MstId, ").template Wide<uint32_t>(r.unMasterId);
        io.Tag(", AuxId, ").template Wide<uint32_t>(r.unAuxId);
        io.Tag(", DLat, ").Value(r.lDeltaLat);
        io.Tag(", DLon, ").Value(r.lDeltaLon);
        io.Tag(", DHgt, ").Value(r.lDeltaHgt);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// The used-bytes output is optional: the record also travels with the
    /// two-argument calls of the exchange records.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// The header of a network correction message, 20 bytes.
struct ZELTYPES_API SZelNetMsgHeader
{
    uint16_t unMsgNr = 0;         ///< message number, as the message carries it
    uint8_t ucNetId = 0;          ///< network identifier
    uint8_t ucSubNetId = 0;       ///< subnetwork identifier
    uint32_t ulTime = 0;          ///< epoch time as the message scales it
    uint8_t ucMMI = 0;            ///< multiple-message indicator
    uint16_t unMasterId = 0;      ///< identifier of the master station
    uint16_t unAuxId = 0;         ///< identifier of the auxiliary station
    uint8_t ucNumSats = 0;        ///< satellites the message counts; the arrays always hold 15 entries
    uint8_t ucClkBiasInd = 0;     ///< clock bias indicator, the producer's value, not interpreted here
    int8_t cGloL1PCDiffOff = 0;   ///< scaled as in the message
    int8_t cGloL1L2PCDiffOff = 0; ///< scaled as in the message

    /// Image: number at 0, network 2, subnetwork 3, time 4, MMI 8, master 10,
    /// auxiliary 12, count 14, clock bias 15, the GLONASS offsets at 16 and
    /// 17; bytes 9, 18 and 19 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.unMsgNr);
        io.Raw(r.ucNetId);
        io.Raw(r.ucSubNetId);
        io.Raw(r.ulTime);
        io.Raw(r.ucMMI);
        io.Reserved(1);
        io.Raw(r.unMasterId);
        io.Raw(r.unAuxId);
        io.Raw(r.ucNumSats);
        io.Raw(r.ucClkBiasInd);
        io.Raw(r.cGloL1PCDiffOff);
        io.Raw(r.cGloL1L2PCDiffOff);
        return io.Reserved(2);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("MsgNr, ").template Wide<uint32_t>(r.unMsgNr);
        io.Tag(", NetId, ").template Wide<uint32_t>(r.ucNetId);
        io.Tag(", SubNetId, ").template Wide<uint32_t>(r.ucSubNetId);
        io.Tag(", Time, ").Value(r.ulTime);
        io.Tag(", MMI, ").template Wide<uint32_t>(r.ucMMI);
        io.Tag(", MstId, ").template Wide<uint32_t>(r.unMasterId);
        io.Tag(", AuxId, ").template Wide<uint32_t>(r.unAuxId);
        io.Tag(", NumSats, ").template Wide<uint32_t>(r.ucNumSats);
        io.Tag(", ClkBiasInd, ").template Wide<uint32_t>(r.ucClkBiasInd);
        io.Tag(", GloL1PCDiffOff, ").template Wide<int32_t>(r.cGloL1PCDiffOff);
        io.Tag(", GloL1L2PCDiffOff, ").template Wide<int32_t>(r.cGloL1L2PCDiffOff);
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

/// The common head of every per-satellite entry, 12 bytes: the satellite
/// number relative to its system, the system, and the ambiguity and
/// non-synchronisation flags of the message.
struct ZELTYPES_API SZelNetSatEntry
{
    uint8_t ucSatNumber = 0;                      ///< satellite number within its system
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE; ///< system of the satellite
    uint8_t ucAmbFlag = 0;                        ///< ambiguity flag, as the message carries it
    uint8_t ucNonSyncCnt = 0;                     ///< non-synchronisation count, as the message carries it

    /// The satellite in the network's own numbering: the number for GPS, the
    /// number + 32 for GLONASS; any other system reports "0" and gives 0.
    uint32_t GetGlobalSatIndex() const;

    /// Image: number at 0, system at 4 (32 bits), flags at 8 and 9; bytes 1
    /// to 3, 10 and 11 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ucSatNumber);
        io.Reserved(3);
        io.Raw(r.eSatSystem);
        io.Raw(r.ucAmbFlag);
        io.Raw(r.ucNonSyncCnt);
        return io.Reserved(2);
    }
    /// Text: "SatId, " the plain number, ", SatSys, " the system letter.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatId, ").template Wide<uint32_t>(r.ucSatNumber);
        io.Tag(", SatSys, ").Value(r.eSatSystem);
        io.Tag(", AmbFlg, ").template Wide<uint32_t>(r.ucAmbFlag);
        io.Tag(", NonSyncCnt, ").template Wide<uint32_t>(r.ucNonSyncCnt);
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

/// The ionospheric correction difference of a satellite, 16 bytes.
struct ZELTYPES_API SZelNetIonoEntry : SZelNetSatEntry
{
    int32_t lCorrDiff = 0; ///< scaled as in the message

    /// Image: the head, the difference at 12.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitFields(io, r);
        return io.Raw(r.lCorrDiff);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitText(io, r);
        io.Tag(", CorrDiff, ").Value(r.lCorrDiff);
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

/// The geometric correction difference of a satellite and the issue of its
/// ephemeris, 20 bytes.
struct ZELTYPES_API SZelNetGeoEntry : SZelNetSatEntry
{
    int32_t lCorrDiff = 0; ///< scaled as in the message
    uint8_t ucIODE = 0;    ///< issue of data of the ephemeris the difference refers to

    /// Image: the head, the difference at 12, the issue at 16; 17 to 19 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitFields(io, r);
        io.Raw(r.lCorrDiff);
        io.Raw(r.ucIODE);
        return io.Reserved(3);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitText(io, r);
        io.Tag(", CorrDiff, ").Value(r.lCorrDiff);
        io.Tag(", IODE, ").template Wide<uint32_t>(r.ucIODE);
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

/// Both differences of a satellite as the combined message carries them, 24 bytes.
struct ZELTYPES_API SZelNetCombEntry : SZelNetSatEntry
{
    int32_t lGeoCorrDiff = 0;  ///< scaled as in the message
    int32_t lIonoCorrDiff = 0; ///< scaled as in the message
    uint8_t ucIODE = 0;        ///< issue of data of the ephemeris the differences refer to

    /// Image: the head, geometric at 12, ionospheric at 16, issue at 20; 21
    /// to 23 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitFields(io, r);
        io.Raw(r.lGeoCorrDiff);
        io.Raw(r.lIonoCorrDiff);
        io.Raw(r.ucIODE);
        return io.Reserved(3);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitText(io, r);
        io.Tag(", GeoCorrDiff, ").Value(r.lGeoCorrDiff);
        io.Tag(", IonoCorrDiff, ").Value(r.lIonoCorrDiff);
        io.Tag(", IODE, ").template Wide<uint32_t>(r.ucIODE);
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

/// The geometric correction differences of one system, 324 bytes. All 15
/// entries travel and compare, whatever the header's count says.
struct ZELTYPES_API SZelNetGeoMsg
{
    SZelNetMsgHeader stHeader;                    ///< header of the message
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE; ///< system of the message
    SZelNetGeoEntry astEntries[c_ulNET_MAX_SATS]; ///< one entry per satellite, all 15 travel and compare

    /// Image: header at 0, system at 20, the entries from 24.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Inline(r.stHeader) && io.Raw(r.eSatSystem) && ZelNetIo::Entries(io, r.astEntries);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("GeoMsgHdr, ").Value(r.stHeader).Tag(", SatSys, ").Value(r.eSatSystem).Tag(", GeoCorrs");
        ZelNetIo::EntriesText(io, r.astEntries, "MsgEntry, ");
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

/// The ionospheric correction differences of one system, 264 bytes.
struct ZELTYPES_API SZelNetIonoMsg
{
    SZelNetMsgHeader stHeader;                     ///< header of the message
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;  ///< system of the message
    SZelNetIonoEntry astEntries[c_ulNET_MAX_SATS]; ///< one entry per satellite, all 15 travel and compare

    /// Image: header at 0, system at 20, the entries from 24.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Inline(r.stHeader) && io.Raw(r.eSatSystem) && ZelNetIo::Entries(io, r.astEntries);
    }
    /// The array's tag is ", GeoCorrs" here too, as in the geometric message.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("IonoMsgHdr, ").Value(r.stHeader).Tag(", SatSys, ").Value(r.eSatSystem).Tag(", GeoCorrs");
        ZelNetIo::EntriesText(io, r.astEntries, "MsgEntry, ");
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

/// A combined message, 380 bytes; its entries name their own systems.
struct ZELTYPES_API SZelNetCombMsg
{
    SZelNetMsgHeader stHeader;                     ///< header of the message
    SZelNetCombEntry astEntries[c_ulNET_MAX_SATS]; ///< one entry per satellite, all 15 travel and compare

    /// Image: header at 0, the entries from 20.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Inline(r.stHeader) && ZelNetIo::Entries(io, r.astEntries);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("CombMsgHdr, ").Value(r.stHeader).Tag(", CombCorrs");
        ZelNetIo::EntriesText(io, r.astEntries, "MsgEntry, ");
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

/// Five combined messages and the mask of those that are filled. Which bit
/// belongs to which message is the producer's choice.
class ZELTYPES_API MsgGNSS17T
{
public:
    SZelNetCombMsg astCombMsgs[c_ulNET_COMB_MSGS]; ///< the five combined messages
    uint8_t ucFilled = 0;                          ///< bit mask of the filled messages, the producer's bits

    /// Constructs the default state (for a record: holding no data).
    MsgGNSS17T() = default;
    /// Copies another object.
    MsgGNSS17T(const MsgGNSS17T& rOther) = default;
    /// Copies another object into this one.
    MsgGNSS17T& operator=(const MsgGNSS17T& rOther) = default;
    /// Destroys the object.
    virtual ~MsgGNSS17T();

    /// ORs ucMask into the filled mask.
    void SetFilled(uint8_t ucMask) { ucFilled = static_cast<uint8_t>(ucFilled | ucMask); }
    /// True when every bit of ulMask is set (so always for 0).
    bool IsFilled(uint32_t ulMask) const { return (ucFilled & ulMask) == ulMask; }

    /// Splits a combined message into its ionospheric and geometric parts:
    /// the header, and all 15 entries whatever the count says. The outputs'
    /// own system stays as it was. Always true.
    static bool SplitCombMsg(const SZelNetCombMsg& rstComb, SZelNetIonoMsg& rstIono, SZelNetGeoMsg& rstGeo);

    /// Image size of the geometric part, SZelNetGeoMsg: 324 bytes.
    static uint64_t GetGeoMsgSize() { return 324; }
    /// Image size of the ionospheric part, SZelNetIonoMsg: 264 bytes.
    static uint64_t GetIonoMsgSize() { return 264; }

    /// Image, 1901 bytes: the five messages, then the mask.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return ZelNetIo::Entries(io, r.astCombMsgs) && io.Raw(r.ucFilled);
    }
    /// Text: "Filled, " mask, then ", CombMsg, " and each message.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Filled, ").template Wide<uint32_t>(r.ucFilled);
        for (auto& rMsg : r.astCombMsgs)
        {
            io.Tag(", CombMsg, ").Value(rMsg);
        }
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

/// A combined entry with its differences unscaled, 40 bytes; the unit is the
/// producer's (metres where it unscaled the message's integers).
struct ZELTYPES_API SZelNetCombEntryD : SZelNetSatEntry
{
    double dGeoCorrDiff = 0.0;  ///< geometric correction difference, unscaled
    uint8_t ucIODE = 0;         ///< issue of data of the ephemeris the differences refer to
    double dIonoCorrDiff = 0.0; ///< ionospheric correction difference, unscaled

    /// Image: the head, geometric at 16, issue at 24, ionospheric at 32;
    /// 12 to 15 and 25 to 31 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitFields(io, r);
        io.Reserved(4);
        io.Raw(r.dGeoCorrDiff);
        io.Raw(r.ucIODE);
        io.Reserved(7);
        return io.Raw(r.dIonoCorrDiff);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        SZelNetSatEntry::VisitText(io, r);
        io.Tag(", GeoCorrDiff, ").Value(r.dGeoCorrDiff);
        io.Tag(", IODE, ").template Wide<uint32_t>(r.ucIODE);
        io.Tag(", IonoCorrDiff, ").Value(r.dIonoCorrDiff);
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

/// The 15 unscaled combined entries of a message, 600 bytes.
struct ZELTYPES_API SZelNetCombMsgD
{
    SZelNetCombEntryD astEntries[c_ulNET_MAX_SATS]; ///< one entry per satellite

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return ZelNetIo::Entries(io, r.astEntries);
    }
    /// Text: "CombCorrsD" and each entry behind ", MsgEntry, ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("CombCorrsD");
        ZelNetIo::EntriesText(io, r.astEntries, "MsgEntry, ");
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

/// The ionospheric and geometric messages of one satellite, with flags of
/// the producer's own.
struct ZELTYPES_API SZelNetCorrPair
{
    SZelNetIonoMsg stIonoMsg;                            ///< the ionospheric message
    SZelNetGeoMsg stGeoMsg;                              ///< the geometric message
    SZelSatID stSatId = SZelSatID(ZELSATSYSTEM_NONE, 1); ///< the satellite of the pair
    uint32_t ulPairFlags = 0;                            ///< the producer's flags, not interpreted here

    /// Constructs the default state (for a record: holding no data).
    SZelNetCorrPair() = default;
    /// A pair for the satellite rstSatId, everything else at its default.
    explicit SZelNetCorrPair(const SZelSatID& rstSatId) : stSatId(rstSatId) {}

    /// Image, 600 bytes: ionospheric message at 0, geometric at 264, the
    /// satellite at 588 (8 bytes), the flags at 596.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Inline(r.stIonoMsg) && io.Inline(r.stGeoMsg) && io.Inline(r.stSatId) &&
               io.Raw(r.ulPairFlags);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("IonoMsg, ").Value(r.stIonoMsg).Tag(", GeoMsg, ").Value(r.stGeoMsg);
        io.Tag(", SatId, ").Value(r.stSatId).Tag(", PairFlgs, ").Value(r.ulPairFlags);
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

// ---------------------------------------------------------------------------
// Area-correction grid
// ---------------------------------------------------------------------------

/// The gradients of a satellite's corrections over the network area, 20
/// bytes; the gradients are scaled as in the message (north and east).
struct ZELTYPES_API SZelNetGridEntry
{
    SZelSatID stSatId;            ///< the satellite
    uint32_t ulIOD = 0xFFFFFFFFu; ///< no issue of data
    int16_t nIonoN = 0;           ///< ionospheric gradient towards north
    int16_t nIonoE = 0;           ///< ionospheric gradient towards east
    int16_t nGeoN = 0;            ///< geometric gradient towards north
    int16_t nGeoE = 0;            ///< geometric gradient towards east

    /// Image: satellite at 0 (8 bytes), issue at 8, gradients at 12 to 18.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Inline(r.stSatId);
        io.Raw(r.ulIOD);
        io.Raw(r.nIonoN);
        io.Raw(r.nIonoE);
        io.Raw(r.nGeoN);
        return io.Raw(r.nGeoE);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatId, ").Value(r.stSatId).Tag(", IOD, ").Value(r.ulIOD);
        io.Tag(", IonN, ").Value(r.nIonoN).Tag(", IonE, ").Value(r.nIonoE);
        io.Tag(", GeoN, ").Value(r.nGeoN).Tag(", GeoE, ").Value(r.nGeoE);
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

/// A grid message of one system, 368 bytes.
struct ZELTYPES_API SZelNetGridMsg
{
    uint16_t unNetFlags = 0;                  ///< network flags, the producer's bits, not interpreted here
    uint32_t ulType = 0;                      ///< type of the message, the producer's value
    SMjdTime stTime = SMjdTime(MJDACC_EXACT); ///< time of the message
    SZelCoordinateTriplet stCoords;           ///< the grid's reference point
    uint32_t ulNumSats = 0;                   ///< satellites the message counts; all 15 entries travel
    SZelNetGridEntry astEntries[c_ulNET_MAX_SATS]; ///< the gradients, one entry per satellite

    /// Image: flags at 0, type at 4, the time at 8 as in memory (24 bytes),
    /// the triplet at 32 as in memory (type, 4 reserved bytes, coordinates at
    /// 40, 48, 56), count at 64, entries from 68; bytes 2 and 3 reserved.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.unNetFlags);
        io.Reserved(2);
        io.Raw(r.ulType);
        ZelIo::VisitTimeBlock(io, r.stTime);
        io.Raw(r.stCoords.ecoordinatesystem);
        io.Reserved(4);
        io.Raw(r.stCoords.dCoord1);
        io.Raw(r.stCoords.dCoord2);
        io.Raw(r.stCoords.dCoord3);
        io.Raw(r.ulNumSats);
        return ZelNetIo::Entries(io, r.astEntries);
    }
    /// Text: the flags in hexadecimal with the base prefix, back to decimal
    /// after them; the prefix flag stays set, as other stream settings do.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("NetFlgs, ").ShowBase().template Hex<uint32_t>(r.unNetFlags);
        io.Tag(", Typ, ").Value(r.ulType).Tag(", Tim, ").Value(r.stTime);
        io.Tag(", Coo, ").Value(r.stCoords).Tag(", NumSats, ").Value(r.ulNumSats).Tag(", GridCorr");
        ZelNetIo::EntriesText(io, r.astEntries, "");
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

/// A grid message with its system, 372 bytes.
struct ZELTYPES_API SZelNetGridSysMsg
{
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE; ///< system of the message
    SZelNetGridMsg stMsg;                         ///< the grid message

    /// Image: system at 0 (32 bits), the message from 4.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eSatSystem) && io.Inline(r.stMsg);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatSys, ").Value(r.eSatSystem).Tag(", Msg, ").Value(r.stMsg);
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

// ---------------------------------------------------------------------------
// Residual statistics
// ---------------------------------------------------------------------------

/// The residual statistics of a satellite at a reference station, 48 bytes;
/// the values are in the producer's unit (the library never scales them).
struct ZELTYPES_API SZelNetResidualEntry
{
    SZelSatID stSatId; ///< the satellite
    double dSoc = 0.0; ///< constant part of the residual
    double dSod = 0.0; ///< distance-dependent part
    double dSoh = 0.0; ///< height-dependent part
    double dSic = 0.0; ///< constant part of the ionospheric residual
    double dSid = 0.0; ///< distance-dependent part of the ionospheric residual

    /// Image: satellite at 0 (8 bytes), the values at 8 to 40.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Inline(r.stSatId);
        io.Raw(r.dSoc);
        io.Raw(r.dSod);
        io.Raw(r.dSoh);
        io.Raw(r.dSic);
        return io.Raw(r.dSid);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatId, ").Value(r.stSatId).Tag(", Soc, ").Value(r.dSoc).Tag(", Sod, ").Value(r.dSod);
        io.Tag(", Soh, ").Value(r.dSoh).Tag(", Sic, ").Value(r.dSic).Tag(", Sid, ").Value(r.dSid);
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

/// Absolute tolerance of the residual values.
constexpr double c_dNET_RESIDUAL_TOLERANCE = 1e-7;

/// The residual statistics of one reference station at one time.
struct ZELTYPES_API SZelNetResidualMsg
{
    uint32_t ulRefStationId = 0;                  ///< identifier of the reference station
    SMjdTime stTime;                              ///< time of the statistics
    std::vector<SZelNetResidualEntry> vecEntries; ///< statistics per satellite

    /// Image: station at 0, the time at 4 (16 bytes), the count at 20, the
    /// entries from 24, 48 bytes each.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulRefStationId) && io.Record(r.stTime) && io.Sequence(r.vecEntries);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("RefStationId, ").Value(r.ulRefStationId).Tag(", MjdTime, ").Value(r.stTime);
        io.Sequence(r.vecEntries, ", VecSize, ");
    }

    /// 24 + 48 bytes per entry.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    /// The bounds test looks at the present entries; the stored count then
    /// sizes the array, and an entry that does not fit reports "false".
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);
};

/// Field by field, exact; all 15 entries of an array whatever the counts say.
ZELTYPES_API bool operator==(const SZelNetAuxStation& a, const SZelNetAuxStation& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetMsgHeader& a, const SZelNetMsgHeader& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetSatEntry& a, const SZelNetSatEntry& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetIonoEntry& a, const SZelNetIonoEntry& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetGeoEntry& a, const SZelNetGeoEntry& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetCombEntry& a, const SZelNetCombEntry& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetGeoMsg& a, const SZelNetGeoMsg& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetIonoMsg& a, const SZelNetIonoMsg& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetCombMsg& a, const SZelNetCombMsg& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const MsgGNSS17T& a, const MsgGNSS17T& b);
/// Exact, a NaN unequal.
ZELTYPES_API bool operator==(const SZelNetCombEntryD& a, const SZelNetCombEntryD& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetCombMsgD& a, const SZelNetCombMsgD& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetCorrPair& a, const SZelNetCorrPair& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetGridEntry& a, const SZelNetGridEntry& b);
/// The entries first, then flags, type, the time (two-way tolerance), the
/// triplet and the count.
ZELTYPES_API bool operator==(const SZelNetGridMsg& a, const SZelNetGridMsg& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelNetGridSysMsg& a, const SZelNetGridSysMsg& b);
/// The satellite exactly; the values when apart by less than 1e-7.
ZELTYPES_API bool operator==(const SZelNetResidualEntry& a, const SZelNetResidualEntry& b);
/// Station, the time (two-way tolerance), then the entries in order.
ZELTYPES_API bool operator==(const SZelNetResidualMsg& a, const SZelNetResidualMsg& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetAuxStation& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetAuxStation& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetMsgHeader& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetMsgHeader& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetSatEntry& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetSatEntry& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetIonoEntry& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetIonoEntry& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetGeoEntry& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetGeoEntry& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetCombEntry& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetCombEntry& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetGeoMsg& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetGeoMsg& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetIonoMsg& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetIonoMsg& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetCombMsg& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetCombMsg& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const MsgGNSS17T& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, MsgGNSS17T& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetCombEntryD& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetCombEntryD& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetCombMsgD& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetCombMsgD& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetCorrPair& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetCorrPair& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetGridEntry& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetGridEntry& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetGridMsg& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetGridMsg& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetGridSysMsg& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetGridSysMsg& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetResidualEntry& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetResidualEntry& r);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetResidualMsg& r);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetResidualMsg& r);

} // namespace ZELN

#endif
