#ifndef ZELTYPES_EXT_GNSS_ZELEXTPOSRESULTTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTPOSRESULTTYPES_H

/// \file
/// The result of a position fix: the whole fix as the core holds it, and the
/// meta data with which it leaves the core beside the position observation.
/// These records carry the reader and writer with the byte count of the
/// plain records (no version byte): a failed block leaves in the count how
/// far the image got.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Ext/Ins/ZelExtInsSenTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// ------------------------------------------------------------------ SZelPosResultHeader

/// Timing and flags of a fix. The bit meanings of the flags are the engine's.
struct ZELTYPES_API SZelPosResultHeader
{
    SMjdTime stTimeLastAmbFix; ///< last ambiguity fix (day 0, accuracy 1 by default)
    uint64_t ullOccTimeMs = 0; ///< occupation time, ms
    uint32_t ulAvlFlags = 0;   ///< availability flags, set by the engine
    uint32_t ulPntFlags = 0;   ///< point flags, set by the engine

    /// Restores the defaults.
    void Reset() { *this = SZelPosResultHeader(); }

    /// Image, 32 bytes: time 16, occupation 8, the two flag words 4 each.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stTimeLastAmbFix, false) && io.Raw(r.ullOccTimeMs) && io.Raw(r.ulAvlFlags) &&
               io.Raw(r.ulPntFlags);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("TimeLastAmbFix, ")
            .Value(r.stTimeLastAmbFix)
            .Tag(", OccTimeMs, ")
            .Value(r.ullOccTimeMs)
            .Tag(", AvlFlgs, ")
            .Value(r.ulAvlFlags)
            .Tag(", PntFlgs, ")
            .Value(r.ulPntFlags);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Every field; the time by its two-way tolerance comparison.
ZELTYPES_API bool operator==(const SZelPosResultHeader& a, const SZelPosResultHeader& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelPosResultHeader& rHeader);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelPosResultHeader& rHeader);

// ------------------------------------------------------------------ SZelPosResultExt

/// Further facts of a fix. The values of ulRecType are the engine's.
struct ZELTYPES_API SZelPosResultExt
{
    uint32_t ulRecType = 0;          ///< kind of receiver, set by the engine
    uint8_t bStatic = 0;             ///< non-zero: the rover stands still
    uint16_t unLatency = 0;          ///< latency, ms
    uint32_t ulStaticEpochs = 0;     ///< epochs since the rover stood still
    uint32_t ulRefHandle = 0;        ///< handle of the reference station
    uint8_t ucLinComb = 0;           ///< linear combination used, set by the engine
    int32_t lPredTime = 0;           ///< prediction time, ms
    SMjdTime stFirstStaticMarkEpoch; ///< first epoch of the static mark (day 0, accuracy 1)

    /// Restores the defaults.
    void Reset() { *this = SZelPosResultExt(); }

    /// Image, 36 bytes: 4, 1, 2, 4, 4, 1, 4, then the time 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulRecType) && io.Raw(r.bStatic) && io.Raw(r.unLatency) && io.Raw(r.ulStaticEpochs) &&
               io.Raw(r.ulRefHandle) && io.Raw(r.ucLinComb) && io.Raw(r.lPredTime) &&
               io.Record(r.stFirstStaticMarkEpoch, false);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("RecTyp, ")
            .Value(r.ulRecType)
            .Tag(", Static, ")
            .template Wide<uint32_t>(r.bStatic)
            .Tag(", Latcy, ")
            .Value(r.unLatency)
            .Tag(", StatEpochs, ")
            .Value(r.ulStaticEpochs)
            .Tag(", RefHdl, ")
            .Value(r.ulRefHandle)
            .Tag(", LinComb, ")
            .template Wide<uint32_t>(r.ucLinComb)
            .Tag(", PrdTim, ")
            .Value(r.lPredTime)
            .Tag(", FirstStaticMrkEp, ")
            .Value(r.stFirstStaticMarkEpoch);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Every field except stFirstStaticMarkEpoch, which is left out on purpose.
ZELTYPES_API bool operator==(const SZelPosResultExt& a, const SZelPosResultExt& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelPosResultExt& rExt);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelPosResultExt& rExt);

// ------------------------------------------------------------------ SZelPosResult

/// The whole fix as held inside the core; no image and no text of its own.
/// Positions and velocities are in the frame of their quality records:
/// cartesian X, Y, Z in m and m/s, or geographic latitude, longitude (rad)
/// and height (m) with their rates.
struct ZELTYPES_API SZelPosResult
{
    SMjdTime stTime = SMjdTime(0u, 0.0, MJDACC_NANOSECOND); ///< time of the fix; GPS week 0, second 0
    SMjdTime stTimeLastAmbFix;         ///< last ambiguity fix (day 0, accuracy 1 by default)
    uint64_t ullOccTimeMs = 0;         ///< occupation time, ms
    uint32_t ulAvlFlags = 0;           ///< availability flags, set by the engine
    uint32_t ulPntFlags = 0;           ///< point flags, set by the engine
    uint32_t ulPosType = 0;            ///< kind of fix, set by the engine
    double adPos[3] = {0.0, 0.0, 0.0}; ///< position, frame of stPosQ
    SZelPosQuality stPosQ;             ///< covariance of the position
    double adVel[3] = {0.0, 0.0, 0.0}; ///< velocity, frame of stVelQ
    SZelPosQuality stVelQ;             ///< covariance of the velocity
    SZelDOP stDop;                     ///< dilution of precision of the fix
    SZelPosResultExt stExt;            ///< further facts of the fix
    SZelGnssAvailability stGnssAvl;    ///< satellites available and used, per system and signal
    SZelNrtkInfo stNrtkInfo;           ///< reference network behind the fix

    /// The defaults again.
    void Reset() { *this = SZelPosResult(); }

    /// rstTime gets stTime (all three fields), plus the occupation time when
    /// the rover stands still; returns rstTime.
    SMjdTime& GetTimeWithOccupation(SMjdTime& rstTime) const;
};

// ------------------------------------------------------------------ SZelPosResultMeta

/// How a fix came about: everything of SZelPosResult but the time, the
/// coordinates and their covariances, whose scale factors it keeps.
struct ZELTYPES_API SZelPosResultMeta
{
    SZelPosResultHeader stHeader;   ///< timing and flags of the fix
    uint32_t ulPosType = 0;         ///< kind of fix, set by the engine
    SZelDOP stDop;                  ///< dilution of precision of the fix
    SZelPosResultExt stExt;         ///< further facts of the fix
    SZelGnssAvailability stGnssAvl; ///< satellites available and used, per system and signal
    SZelNrtkInfo stNrtkInfo;        ///< reference network behind the fix
    float fMoPos = 1.0f;            ///< a-posteriori scale factor of the position covariance
    float fMoUnscaledPos = 1.0f;    ///< the same before scaling
    float fMoVel = 1.0f;            ///< a-posteriori scale factor of the velocity covariance
    float fMoUnscaledVel = 1.0f;    ///< the same before scaling

    /// Constructs the default state (for a record: holding no data).
    SZelPosResultMeta() = default;
    /// Everything but stTime; the scale factors from the two quality records.
    explicit SZelPosResultMeta(const SZelPosResult& rstPosResult);

    /// Restores the defaults.
    void Reset() { *this = SZelPosResultMeta(); }

    /// Image, 779 bytes: header at 0, kind at 32, DOP at 36, ext at 48,
    /// availability at 84, network at 757, the four scale factors at 763.
    /// The whole size is tested first; each block then reports only itself.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stHeader, false) && io.Raw(r.ulPosType) && io.Record(r.stDop, false) &&
               io.Record(r.stExt, false) && io.Record(r.stGnssAvl, false) && io.Record(r.stNrtkInfo, false) &&
               io.Raw(r.fMoPos) && io.Raw(r.fMoUnscaledPos) && io.Raw(r.fMoVel) && io.Raw(r.fMoUnscaledVel);
    }
    /// Text in field order; the scale factors as ", MoPos, Mo, " value
    /// ", MoUnscaled, " value, and the same behind ", MoVel, ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Hdr, ")
            .Value(r.stHeader)
            .Tag(", PosTyp, ")
            .Value(r.ulPosType)
            .Tag(", DOP, ")
            .Value(r.stDop)
            .Tag(", Ext, ")
            .Value(r.stExt)
            .Tag(", GnssAvl, ")
            .Value(r.stGnssAvl)
            .Tag(", NrtkInfo, ")
            .Value(r.stNrtkInfo)
            .Tag(", MoPos, ")
            .Tag("Mo, ")
            .Value(r.fMoPos)
            .Tag(", MoUnscaled, ")
            .Value(r.fMoUnscaledPos)
            .Tag(", MoVel, ")
            .Tag("Mo, ")
            .Value(r.fMoVel)
            .Tag(", MoUnscaled, ")
            .Value(r.fMoUnscaledVel);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Header, kind, DOP, ext (without its static-mark time), availability,
/// network and the four scale factors, exactly.
ZELTYPES_API bool operator==(const SZelPosResultMeta& a, const SZelPosResultMeta& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelPosResultMeta& rMeta);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelPosResultMeta& rMeta);

// ------------------------------------------------------------------ ZelExtGnssPveObs

/// A position observation (position m, velocity m/s, frame P) with the meta
/// data of the fix behind it.
struct ZELTYPES_API ZelExtGnssPveObs
{
    CL_ZELX_INS_SENSOR_OBS_PVE stObs; ///< the position observation
    SZelPosResultMeta stMetaData;     ///< meta data of the fix behind it

    /// Image: the observation's, then the meta data's; no test of the whole
    /// size: each part tests and reports itself, and the first failure ends.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Record(r.stObs, false) && io.Record(r.stMetaData, false);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Value(r.stObs).Tag(", MetaData, ").Value(r.stMetaData);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return stObs.getSize() + stMetaData.getSize(); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Both parts equal.
ZELTYPES_API bool operator==(const ZelExtGnssPveObs& a, const ZelExtGnssPveObs& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZelExtGnssPveObs& rObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, ZelExtGnssPveObs& rObs);

} // namespace ZELN

#endif
