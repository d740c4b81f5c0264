#ifndef ZELTYPES_CORE_COMMON_ZELSSRTYPES_H
#define ZELTYPES_CORE_COMMON_ZELSSRTYPES_H

/// \file
/// State-space corrections: the message header with its update-interval
/// arithmetic, the abstract message, the correction records and the
/// collection messages that hold them. A caller owns each message, keeps one
/// per kind and system, and folds the later messages of the same update
/// interval into it with MergeMsg. The dispatch of the binary form on the
/// dynamic type is in ZelSSRTypesSerialization.h.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace ZELN
{

// ---------------------------------------------------------------------------
// Correction types and the update-interval configuration
// ---------------------------------------------------------------------------

/// Kind of an SSR message; a signed 32-bit value in the text and binary forms.
/// Types 7, 11 to 14, 16 and 18 have names but no message class here.
enum EZelSSRCorrectionType : int32_t
{
    eZELSSRCORRECTIONTYPE_NULL = 0,
    eZELSSRCORRECTIONTYPE_ORBIT_XYZ = 1,
    eZELSSRCORRECTIONTYPE_ORBIT_RAC = 2,
    eZELSSRCORRECTIONTYPE_CLOCK_MOD = 3,
    eZELSSRCORRECTIONTYPE_CLOCK_DELTA = 4,
    eZELSSRCORRECTIONTYPE_PHASEBIAS = 5,
    eZELSSRCORRECTIONTYPE_CODEBIAS = 6,
    eZELSSRCORRECTIONTYPE_CODEBIAS_DEPRECATED = 7,
    eZELSSRCORRECTIONTYPE_URA = 8,
    eZELSSRCORRECTIONTYPE_HRCLOCK_MOD = 9,
    eZELSSRCORRECTIONTYPE_HRCLOCK_DELTA = 10,
    eZELSSRCORRECTIONTYPE_VIONO = 11,
    eZELSSRCORRECTIONTYPE_SIONO = 12,
    eZELSSRCORRECTIONTYPE_VTROPO = 13,
    eZELSSRCORRECTIONTYPE_STROPO = 14,
    eZELSSRCORRECTIONTYPE_REORBIT_XYZ = 15,
    eZELSSRCORRECTIONTYPE_BASECRD = 16,
    eZELSSRCORRECTIONTYPE_SATSIG = 17,
    eZELSSRCORRECTIONTYPE_NETGEOM = 18,
    eZELSSRCORRECTIONTYPE_PCV = 19
};

/// Display name of a correction type, "SSR OrbitXYZ" and so on; "SSR Unknown"
/// for every value outside 1 to 19.
ZELTYPES_API std::string GetSSRCorrTypeName(int iCorrType);

/// The interval definition under which a merge compares no intervals.
constexpr uint8_t c_ucSSR_INTERVAL_DEF_NO_TEST = 4;
/// Grid references of the update intervals.
constexpr uint8_t c_ucSSR_UIREF_GPS_WEEK_SECONDS = 0; ///< seconds of the GPS week count
constexpr uint8_t c_ucSSR_UIREF_DAY_SECONDS = 1;      ///< seconds of the current day
/// The one source format value this library sets (a phase-bias message built so).
constexpr int32_t c_lSSR_FORMAT_PHASEBIAS = 4;

/// Update-interval configuration of a message: two bytes.
struct ZELTYPES_API SSRUICfg
{
    /// How update intervals are to be read; 4 switches the interval test of a merge off.
    uint8_t ucSsrIntervalDefinition = c_ucSSR_INTERVAL_DEF_NO_TEST;
    /// Reference of the interval grid: 0 the GPS week count in seconds, 1 the
    /// seconds of the day; any other value has no grid.
    uint8_t ucUIRefTime = 2;

    /// Returns ucSsrIntervalDefinition.
    uint8_t GetSsrIntervalDefinition() const { return ucSsrIntervalDefinition; }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ucSsrIntervalDefinition);
        io.Raw(r.ucUIRefTime);
        return true;
    }
};

// ---------------------------------------------------------------------------
// Text helpers of the SSR records
// ---------------------------------------------------------------------------

/// A time in the text of the SSR records: GPS week, ", ", seconds of the week.
/// The week is read as an unsigned 32-bit number; a week above 5965 or
/// seconds outside 0 to 604800 give the default time, without a report.
template <class TTime> struct SZelSsrTimeText
{
    /// The time written or read.
    TTime& rstTime;
};

/// Wraps a time for writing in the SSR text form: os << SsrTimeText(t).
inline SZelSsrTimeText<const SMjdTime> SsrTimeText(const SMjdTime& rstTime)
{
    return {rstTime};
}
/// Wraps a time for reading in the SSR text form: is >> SsrTimeText(t).
inline SZelSsrTimeText<SMjdTime> SsrTimeText(SMjdTime& rstTime)
{
    return {rstTime};
}

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSsrTimeText<const SMjdTime>& rText);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, const SZelSsrTimeText<SMjdTime>& rText);

namespace SsrDetail
{
/// A bool goes out through the stream's bool insertion (0 or 1) and comes in
/// through a wider integer, any value but 0 being true.
template <class IO, class B> void TextBool(IO& io, B& rbValue)
{
    if constexpr (IO::c_bReading)
    {
        io.template Wide<int32_t>(rbValue);
    }
    else
    {
        io.Value(rbValue);
    }
}
} // namespace SsrDetail

// ---------------------------------------------------------------------------
// Message header
// ---------------------------------------------------------------------------

/// The header of every SSR message. Image: 70 bytes, the reference time in
/// its 24-byte memory form.
struct ZELTYPES_API SSRCorrMsgHeader
{
    EZelSatSystem eSatSys = ZELSATSYSTEM_NONE; ///< constellation of the message
    int32_t iMsgNum = 0;                       ///< message number of the source format
    SMjdTime stRefTime;                        ///< reference time of the message
    double dUpdRate = 0.0;  ///< update interval [s]; the grid truncates it to whole seconds
    uint32_t uiMMID = 0;    ///< multiple-message indicator of the source format
    uint32_t uiRefDat = 0;  ///< reference datum indicator
    uint32_t uiSSRID = 0;   ///< SSR identifier of the service
    uint32_t uiProvID = 0;  ///< provider identifier
    int32_t iSolID = 0;     ///< solution identifier
    uint32_t uiRes = 0;     ///< carried through, never interpreted
    int32_t eSSRFormat = 0; ///< source format of the stream (an enumeration)
    SSRUICfg stSSRUICfg;    ///< update-interval configuration

    /// eSatSys at 0, iMsgNum at 4, the time at 8 (day at 8, filler, milliseconds
    /// at 16, precision code at 24, filler), dUpdRate at 32, then the 32-bit
    /// fields from 40 to 67 and the two configuration bytes at 68 and 69. The
    /// filler bytes go out as zero and are passed over.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.eSatSys);
        io.Raw(r.iMsgNum);
        io.Raw(r.stRefTime.m_lMjdDay);
        io.Reserved(4);
        io.Raw(r.stRefTime.m_dMjdFractMilliseconds);
        io.template RawAs<int32_t>(r.stRefTime.m_eAccuracy);
        io.Reserved(4);
        io.Raw(r.dUpdRate);
        io.Raw(r.uiMMID);
        io.Raw(r.uiRefDat);
        io.Raw(r.uiSSRID);
        io.Raw(r.uiProvID);
        io.Raw(r.iSolID);
        io.Raw(r.uiRes);
        io.Raw(r.eSSRFormat);
        io.Inline(r.stSSRUICfg);
        return true;
    }

    /// No stream format of its own: floating values take the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        auto stTime = SsrTimeText(r.stRefTime);
        io.Tag("Hdr, SatSys, ").Value(r.eSatSys).Tag(", MsgNum, ").Value(r.iMsgNum);
        io.Tag(", RefTim, ").Value(stTime).Tag(", UpdRate, ").Value(r.dUpdRate);
        io.Tag(", MMID, ").Value(r.uiMMID).Tag(", RefDat, ").Value(r.uiRefDat);
        io.Tag(", SSRID, ").Value(r.uiSSRID).Tag(", ProvID, ").Value(r.uiProvID);
        io.Tag(", SolID, ").Value(r.iSolID).Tag(", Res, ").Value(r.uiRes).Tag(", Fmt, ").Value(r.eSSRFormat);
        io.Tag(", SSRUICfg, UIDef, ").template Wide<uint32_t>(r.stSSRUICfg.ucSsrIntervalDefinition);
        io.Tag(", UIRefTim, ").template Wide<uint32_t>(r.stSSRUICfg.ucUIRefTime);
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

/// Equal in system, message number, reference time (each direction at its
/// left operand's precision), update rate (relative 1e-14), datum, SSR,
/// provider and solution identifiers. The multiple-message indicator, the
/// reserved word, the format and the interval configuration take no part.
ZELTYPES_API bool operator==(const SSRCorrMsgHeader& a, const SSRCorrMsgHeader& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRCorrMsgHeader& rstHeader);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRCorrMsgHeader& rstHeader);

// ---------------------------------------------------------------------------
// Abstract message
// ---------------------------------------------------------------------------

/// The root of every SSR message: the header, the kind and the update-interval
/// relations. The order of the virtual operations is part of the exported
/// interface: do not reorder.
class ZELTYPES_API SSRCorrMsgBaseT
{
public:
    /// Relation of this message's interval A to another interval B.
    enum ECompareUpdIntv : int32_t
    {
        eConstEqual = 1,     ///< same start and same end
        eConstContains = 2,  ///< A covers B and ends later or starts earlier
        eConstContained = 3, ///< A lies inside B
        eConstBefore = 4,    ///< A ends no later than B starts
        eConstAfter = 5,     ///< A starts no earlier than B ends
        eConstOverlap = 6    ///< they overlap in part
    };

    /// Header of the message: system, message number, reference time, update interval and identifiers.
    SSRCorrMsgHeader oHeader;

    /// Destroys the object.
    virtual ~SSRCorrMsgBaseT();
    /// Restores the header defaults.
    virtual void Clear();
    /// The kind of the message.
    virtual EZelSSRCorrectionType GetCorrType() const = 0;
    /// False here, true in every collection.
    virtual bool IsCollection() const;
    /// Folds rstNewMsg into this message. Here only the interval test is
    /// reported, and the result is false; the collections do the work.
    virtual bool MergeMsg(const SSRCorrMsgBaseT& rstNewMsg, bool bOverwrite);

    /// Relation of this message's update interval to that of rstNewMsg, both on
    /// this message's grid. A format that differs is reported; the comparison
    /// goes on.
    ECompareUpdIntv CompareUpdIntv(const SSRCorrMsgBaseT& rstNewMsg) const;
    /// Relation of this message's update interval to the one-second interval
    /// that holds rstTime.
    ECompareUpdIntv CompareUpdIntv(const SMjdTime& rstTime) const;
    /// Bounds of this message's update interval.
    void GetUpdIntv(SMjdTime& rstStart, SMjdTime& rstEnd) const;

    /// The header's update rate truncated to whole seconds, in 32 bits.
    static uint32_t GetUpdRateSeconds(double dUpdRate);
    /// Whole seconds of a time on the grid: the GPS week count in seconds
    /// (ucUIRefTime 0) or the seconds of the day (1), the time rounded to a
    /// whole millisecond; any other grid reports "false" and gives 0.
    static uint32_t GetRefSeconds(const SMjdTime& rstTime, uint8_t ucUIRefTime);
    /// The grid interval of uiRate seconds that holds rstTime: rstStart and
    /// rstEnd = rstStart + uiRate seconds. A grid other than 0 or 1 reports
    /// "false" and leaves rstStart as it stands.
    static void GetUpdIntvBounds(const SMjdTime& rstTime, uint32_t uiRate, uint8_t ucUIRefTime,
                                 SMjdTime& rstStart, SMjdTime& rstEnd);

protected:
    /// Constructs the default state (for a record: holding no data).
    SSRCorrMsgBaseT() = default;
    /// Copies another object.
    SSRCorrMsgBaseT(const SSRCorrMsgBaseT&) = default;
    /// Copies another object into this one.
    SSRCorrMsgBaseT& operator=(const SSRCorrMsgBaseT&) = default;

    /// The decision between two intervals A = [a0, a1] and B = [b0, b1], by
    /// the earlier-than test of the left operand's precision.
    static ECompareUpdIntv RelateIntervals(const SMjdTime& a0, const SMjdTime& a1, const SMjdTime& b0,
                                           const SMjdTime& b1);
};

// ---------------------------------------------------------------------------
// Correction records. Units of the orbit, clock and bias values follow the
// decoder that fills them; the library never scales them. Floating values
// are written in scientific notation with 17 digits, which stay set on the
// stream.
// ---------------------------------------------------------------------------

/// Orbit correction of one satellite; 81 bytes.
class ZELTYPES_API SSROrbitCorr
{
public:
    SZelSatID stSatID;     ///< key
    uint32_t uiIODBE = 0;  ///< issue of data of the broadcast ephemeris referred to
    uint32_t uiIODPE = 0;  ///< second issue-of-data value
    bool bScale = false;   ///< scale flag of the source format
    double dDRDX = 0.0;    ///< radial (ORBIT_RAC) or X (ORBIT_XYZ), unit as decoded
    double dDADY = 0.0;    ///< along-track or Y, unit as decoded
    double dDCDZ = 0.0;    ///< cross-track or Z, unit as decoded
    double dDRDXdot = 0.0; ///< rate of the first component, unit per second as decoded
    double dDADYdot = 0.0; ///< rate of the second component
    double dDCDZdot = 0.0; ///< rate of the third component
    SMjdTime stRefTime;    ///< reference time of the correction

    /// Constructs the default state (for a record: holding no data).
    SSROrbitCorr() = default;
    /// Correction of satellite rstSatID, all values zero.
    explicit SSROrbitCorr(const SZelSatID& rstSatID);
    /// Correction with every field given, in the order of the fields.
    SSROrbitCorr(const SZelSatID& rstSatID, uint32_t _uiIODBE, uint32_t _uiIODPE, const SMjdTime& rstRefTime,
                 double _dDRDX, double _dDADY, double _dDCDZ, double _dDRDXdot, double _dDADYdot,
                 double _dDCDZdot, bool _bScale);
    /// Copies another object.
    SSROrbitCorr(const SSROrbitCorr&) = default;
    /// Copies another object into this one.
    SSROrbitCorr& operator=(const SSROrbitCorr&) = default;
    /// Destroys the object.
    virtual ~SSROrbitCorr();

    /// stSatID at 0, IODBE 8, IODPE 12, bScale 16 (1 byte), the six values
    /// from 17, the packed time at 65.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Record(r.stSatID))
        {
            return false;
        }
        io.Raw(r.uiIODBE);
        io.Raw(r.uiIODPE);
        io.Raw(r.bScale);
        io.Raw(r.dDRDX);
        io.Raw(r.dDADY);
        io.Raw(r.dDCDZ);
        io.Raw(r.dDRDXdot);
        io.Raw(r.dDADYdot);
        io.Raw(r.dDCDZdot);
        return io.Record(r.stRefTime);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        auto stTime = SsrTimeText(r.stRefTime);
        io.Scientific().Precision(17);
        io.Tag("SatId, ")
            .Value(r.stSatID)
            .Tag(", IODBE, ")
            .Value(r.uiIODBE)
            .Tag(", IODPE, ")
            .Value(r.uiIODPE);
        io.Tag(", Scale, ");
        SsrDetail::TextBool(io, r.bScale);
        io.Tag(", DRDX, ").Value(r.dDRDX).Tag(", DADY, ").Value(r.dDADY).Tag(", DCDZ, ").Value(r.dDCDZ);
        io.Tag(", DRDXdot, ").Value(r.dDRDXdot).Tag(", DADYdot, ").Value(r.dDADYdot);
        io.Tag(", DCDZdot, ").Value(r.dDCDZdot).Tag(", RefTime, ").Value(stTime);
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

/// Clock correction of one satellite; 48 bytes.
class ZELTYPES_API SSRClockCorr
{
public:
    SZelSatID stSatID;  ///< key
    double dC0 = 0.0;   ///< constant term of the clock polynomial, unit as decoded
    double dC1 = 0.0;   ///< linear term, unit per second as decoded
    double dC2 = 0.0;   ///< quadratic term, unit per second squared as decoded
    SMjdTime stRefTime; ///< reference time of the polynomial

    /// Constructs the default state (for a record: holding no data).
    SSRClockCorr() = default;
    /// Clock polynomial of satellite rstSatID at rstRefTime: constant, linear and quadratic terms.
    SSRClockCorr(const SZelSatID& rstSatID, const SMjdTime& rstRefTime, double _dC0, double _dC1,
                 double _dC2);
    /// Copies another object.
    SSRClockCorr(const SSRClockCorr&) = default;
    /// Copies another object into this one.
    SSRClockCorr& operator=(const SSRClockCorr&) = default;
    /// Destroys the object.
    virtual ~SSRClockCorr();

    /// stSatID at 0, C0 8, C1 16, C2 24, the packed time at 32.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Record(r.stSatID))
        {
            return false;
        }
        io.Raw(r.dC0);
        io.Raw(r.dC1);
        io.Raw(r.dC2);
        return io.Record(r.stRefTime);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        auto stTime = SsrTimeText(r.stRefTime);
        io.Scientific().Precision(17);
        io.Tag("SatId, ").Value(r.stSatID).Tag(", C0, ").Value(r.dC0).Tag(", C1, ").Value(r.dC1);
        io.Tag(", C2, ").Value(r.dC2).Tag(", RefTime, ").Value(stTime);
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

/// High-rate clock correction of one satellite; 16 bytes.
class ZELTYPES_API SSRHighRateClock
{
public:
    SZelSatID stSatID;  ///< key
    double dCorr = 0.0; ///< correction, unit as decoded

    /// Constructs the default state (for a record: holding no data).
    SSRHighRateClock() = default;
    /// High-rate clock correction _dCorr of satellite rstSatID.
    SSRHighRateClock(const SZelSatID& rstSatID, double _dCorr);
    /// Copies another object.
    SSRHighRateClock(const SSRHighRateClock&) = default;
    /// Copies another object into this one.
    SSRHighRateClock& operator=(const SSRHighRateClock&) = default;
    /// Destroys the object.
    virtual ~SSRHighRateClock();

    /// stSatID at 0, dCorr at 8.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Record(r.stSatID))
        {
            return false;
        }
        io.Raw(r.dCorr);
        return true;
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Scientific().Precision(17);
        io.Tag("SatId, ").Value(r.stSatID).Tag(", Corr, ").Value(r.dCorr);
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

/// User-range-accuracy index of one satellite, as the source format gives it; 12 bytes.
class ZELTYPES_API SSRURA
{
public:
    SZelSatID stSatID;   ///< key
    int32_t iSsrUra = 0; ///< accuracy index of the source format

    /// Constructs the default state (for a record: holding no data).
    SSRURA() = default;
    /// Accuracy index _iSsrUra of satellite rstSatID.
    SSRURA(const SZelSatID& rstSatID, int32_t _iSsrUra);
    /// Copies another object.
    SSRURA(const SSRURA&) = default;
    /// Copies another object into this one.
    SSRURA& operator=(const SSRURA&) = default;
    /// Destroys the object.
    virtual ~SSRURA();

    /// stSatID at 0, iSsrUra at 8.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Record(r.stSatID))
        {
            return false;
        }
        io.Raw(r.iSsrUra);
        return true;
    }
    /// No floating value: the stream's format is left alone.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatId, ").Value(r.stSatID).Tag(", SsrUra, ").Value(r.iSsrUra);
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

/// Code bias of one signal; 24 bytes.
class ZELTYPES_API SSRBias
{
public:
    SZelSatFrqTMdGroupID stSigID; ///< key
    double dBias = 0.0;           ///< bias, unit as decoded

    /// Constructs the default state (for a record: holding no data).
    SSRBias() = default;
    /// Bias _dBias of signal rstSigID.
    SSRBias(const SZelSatFrqTMdGroupID& rstSigID, double _dBias);
    /// Bias _dBias of the signal given by satellite, group and set of tracking modes.
    SSRBias(const SZelSatID& rstSatID, EZelFrequencyGroup eFrqGrp, uint32_t ebfTMdGrps, double _dBias);
    /// Copies another object.
    SSRBias(const SSRBias&) = default;
    /// Copies another object into this one.
    SSRBias& operator=(const SSRBias&) = default;
    /// Destroys the object.
    virtual ~SSRBias();

    /// stSigID at 0, dBias at 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Record(r.stSigID))
        {
            return false;
        }
        io.Raw(r.dBias);
        return true;
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Scientific().Precision(17);
        io.Tag("SigId, ").Value(r.stSigID).Tag(", Bias, ").Value(r.dBias);
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

/// Phase bias of one signal with its lock-time counter; 28 bytes.
class ZELTYPES_API SSRPhaseBias : public SSRBias
{
public:
    uint32_t uiLckTimeCnt = 0; ///< lock-time counter of the source format

    /// Constructs the default state (for a record: holding no data).
    SSRPhaseBias() = default;
    /// Phase bias _dBias of signal rstSigID with its lock-time counter.
    SSRPhaseBias(const SZelSatFrqTMdGroupID& rstSigID, double _dBias, uint32_t _uiLckTimeCnt);
    /// Phase bias of the signal given by satellite, group and set of tracking modes, with its lock-time
    /// counter.
    SSRPhaseBias(const SZelSatID& rstSatID, EZelFrequencyGroup eFrqGrp, uint32_t ebfTMdGrps, double _dBias,
                 uint32_t _uiLckTimeCnt);
    /// Copies another object.
    SSRPhaseBias(const SSRPhaseBias&) = default;
    /// Copies another object into this one.
    SSRPhaseBias& operator=(const SSRPhaseBias&) = default;
    /// Destroys the object.
    ~SSRPhaseBias() override;

    /// The bias image, then uiLckTimeCnt at 24.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!SSRBias::VisitFields(io, r))
        {
            return false;
        }
        io.Raw(r.uiLckTimeCnt);
        return true;
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        SSRBias::VisitText(io, r);
        io.Tag(", LckTimeCnt, ").Value(r.uiLckTimeCnt);
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

/// Phase-centre variation grid of one signal over the zenith distance; 25
/// bytes plus one per grid step. A zero step has no grid: such a record is
/// refused by the writers and readers, and its size is the 24 bytes of the
/// head.
class ZELTYPES_API SSRPCV
{
public:
    /// Size of the image's head in bytes, before the grid values.
    static constexpr uint64_t c_ulHEAD_SIZE = 24;

    SZelSatFrqTMdGroupID stSatSigID; ///< key
    uint32_t uiEndZenith = 0;        ///< zenith distance of the grid's last point [deg]
    uint32_t uiZenithStep = 0;       ///< grid step [deg]
    std::vector<int8_t> vcValues;    ///< grid values [mm], uiEndZenith / uiZenithStep + 1 of them

    /// Constructs the default state (for a record: holding no data).
    SSRPCV() = default;
    /// Copies uiEndZenith / uiZenithStep + 1 values from pcValues; a zero step
    /// or no values report "false" and leave the array empty.
    SSRPCV(const SZelSatFrqTMdGroupID& rstSatSigID, const int8_t* pcValues, uint32_t _uiEndZenith,
           uint32_t _uiZenithStep);
    /// Copies another object.
    SSRPCV(const SSRPCV&) = default;
    /// Moves another object.
    SSRPCV(SSRPCV&&) = default;
    /// Copies another object into this one.
    SSRPCV& operator=(const SSRPCV&) = default;
    /// Moves another object into this one.
    SSRPCV& operator=(SSRPCV&&) = default;
    /// Destroys the object.
    virtual ~SSRPCV();

    /// Number of grid values the two grid numbers imply (integer division; 0
    /// for a zero step).
    uint64_t GetNbGridValues() const;

    /// Correction [m] at a zenith distance [deg], interpolated linearly
    /// between grid points; the sign is the opposite of the stored values'.
    /// A distance outside (0, uiEndZenith) is reported and used as it is; one
    /// beyond the stored grid, or a zero step, gives 0.0 after a report.
    double GetPCV(double dZenithDistDeg) const;

    /// stSatSigID at 0, uiEndZenith 16, uiZenithStep 20: the head every
    /// image starts with.
    template <class IO, class Self> static bool VisitHead(IO& io, Self& r)
    {
        if (!io.Record(r.stSatSigID))
        {
            return false;
        }
        io.Raw(r.uiEndZenith);
        io.Raw(r.uiZenithStep);
        return true;
    }
    /// The head, then ", " and each value as a signed integer.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatSigId, ").Value(r.stSatSigID).Tag(", EndZenith, ").Value(r.uiEndZenith);
        io.Tag(", ZenithStep, ").Value(r.uiZenithStep);
        if constexpr (IO::c_bReading)
        {
            ReadValues(io.Stream(), r);
        }
        else
        {
            WriteValues(io.Stream(), r);
        }
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const;
    /// The head and the grid's values; a zero step reports "uiZenithStep != 0",
    /// an array shorter than the grid "invalid vector subscript", both false.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Needs the 24 bytes of the head first, then the whole image; a zero
    /// step reports "uiZenithStep != 0" and gives false.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    /// Writes the grid values, one comma before each; a zero step is reported and writes nothing.
    static void WriteValues(std::ostream& os, const SSRPCV& rstData);
    /// Appends the values that the text holds, one comma before each.
    static void ReadValues(std::istream& is, SSRPCV& rstData);
};

/// Equality compares every field, floating values exactly (a NaN is unequal
/// to itself), a time by its own tolerance; < compares the key alone.
ZELTYPES_API bool operator==(const SSROrbitCorr& a, const SSROrbitCorr& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRClockCorr& a, const SSRClockCorr& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRHighRateClock& a, const SSRHighRateClock& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRURA& a, const SSRURA& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRBias& a, const SSRBias& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRPhaseBias& a, const SSRPhaseBias& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRPCV& a, const SSRPCV& b);

/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSROrbitCorr& a, const SSROrbitCorr& b)
{
    return a.stSatID < b.stSatID;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSRClockCorr& a, const SSRClockCorr& b)
{
    return a.stSatID < b.stSatID;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSRHighRateClock& a, const SSRHighRateClock& b)
{
    return a.stSatID < b.stSatID;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSRURA& a, const SSRURA& b)
{
    return a.stSatID < b.stSatID;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSRBias& a, const SSRBias& b)
{
    return a.stSigID < b.stSigID;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSRPhaseBias& a, const SSRPhaseBias& b)
{
    return a.stSigID < b.stSigID;
}
/// Order of the identity fields, most significant first, for sorted containers.
inline bool operator<(const SSRPCV& a, const SSRPCV& b)
{
    return a.stSatSigID < b.stSatSigID;
}

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSROrbitCorr& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSROrbitCorr& rstData);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRClockCorr& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRClockCorr& rstData);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRHighRateClock& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRHighRateClock& rstData);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRURA& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRURA& rstData);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRBias& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRBias& rstData);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRPhaseBias& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRPhaseBias& rstData);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRPCV& rstData);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRPCV& rstData);

// ---------------------------------------------------------------------------
// Keys of the merge: the satellite, or the whole signal; a phase-centre grid
// is found by its satellite alone, so that a second signal of a satellite
// meets the first one's record.
// ---------------------------------------------------------------------------

/// Merge key of an orbit correction: its satellite.
inline const SZelSatID& SSRMergeKey(const SSROrbitCorr& r)
{
    return r.stSatID;
}
/// Merge key of a clock correction: its satellite.
inline const SZelSatID& SSRMergeKey(const SSRClockCorr& r)
{
    return r.stSatID;
}
/// Merge key of a high-rate clock correction: its satellite.
inline const SZelSatID& SSRMergeKey(const SSRHighRateClock& r)
{
    return r.stSatID;
}
/// Merge key of an accuracy index: its satellite.
inline const SZelSatID& SSRMergeKey(const SSRURA& r)
{
    return r.stSatID;
}
/// Merge key of a code bias: its signal.
inline const SZelSatFrqTMdGroupID& SSRMergeKey(const SSRBias& r)
{
    return r.stSigID;
}
/// Merge key of a phase bias: its signal.
inline const SZelSatFrqTMdGroupID& SSRMergeKey(const SSRPhaseBias& r)
{
    return r.stSigID;
}
/// Merge key of a signal entry: the signal itself.
inline const SZelSatFrqTMdGroupID& SSRMergeKey(const SZelSatFrqTMdGroupID& r)
{
    return r;
}
/// Merge key of a phase-centre grid: its satellite alone.
inline const SZelSatID& SSRMergeKey(const SSRPCV& r)
{
    return r.stSatSigID.stSatID;
}

namespace SsrDetail
{

/// The records of a message split at the merge's cursor, in one array with a
/// gap: the records before the cursor at its start, the records from the
/// cursor on at its end. Moving the cursor by one record and inserting at it
/// cost one move each, so the walk of a merge costs what its cursor travels
/// and a sorted merge is linear. The gap starts as wide as the new records
/// are many, and each of them inserts at most once.
template <class T> class CMergeCursor
{
public:
    CMergeCursor(const std::vector<T>& rvecRecords, size_t ulNbNew)
        : m_vecBuffer(rvecRecords.size() + ulNbNew), m_ulBefore(0), m_ulFrom(ulNbNew)
    {
        std::copy(rvecRecords.begin(), rvecRecords.end(),
                  m_vecBuffer.begin() + static_cast<std::ptrdiff_t>(ulNbNew));
    }

    bool AtEnd() const { return m_ulFrom == m_vecBuffer.size(); }
    bool AtFirst() const { return m_ulBefore == 0; }
    bool IsEmpty() const { return AtFirst() && AtEnd(); }
    T& Here() { return m_vecBuffer[m_ulFrom]; }

    /// With no gap left a record is already in its place.
    void Forward()
    {
        if (m_ulBefore != m_ulFrom)
        {
            m_vecBuffer[m_ulBefore] = std::move(m_vecBuffer[m_ulFrom]);
        }
        ++m_ulBefore;
        ++m_ulFrom;
    }
    void Back()
    {
        --m_ulBefore;
        --m_ulFrom;
        if (m_ulBefore != m_ulFrom)
        {
            m_vecBuffer[m_ulFrom] = std::move(m_vecBuffer[m_ulBefore]);
        }
    }
    /// The new record stands at the cursor, which stays on it. The gap cannot
    /// be used up (one insertion per new record); were it, the array grows.
    void Insert(const T& rRecord)
    {
        if (m_ulFrom == m_ulBefore)
        {
            m_vecBuffer.insert(m_vecBuffer.begin() + static_cast<std::ptrdiff_t>(m_ulFrom), rRecord);
            return;
        }
        m_vecBuffer[--m_ulFrom] = rRecord;
    }

    /// Finds the key of rRecord from the cursor: true with the cursor on the
    /// record found, false with the cursor where the key belongs.
    bool Find(const T& rRecord)
    {
        const auto& rKey = SSRMergeKey(rRecord);
        if (!AtEnd())
        {
            if (SSRMergeKey(Here()) == rKey)
            {
                return true;
            }
            if (SSRMergeKey(Here()) < rKey)
            {
                while (!AtEnd() && SSRMergeKey(Here()) < rKey)
                {
                    Forward();
                }
                return !AtEnd() && SSRMergeKey(Here()) == rKey;
            }
        }
        else if (!IsEmpty())
        {
            Back();
        }
        while (!AtFirst() && !(SSRMergeKey(Here()) < rKey))
        {
            Back();
        }
        if (AtEnd())
        {
            return false;
        }
        if (SSRMergeKey(Here()) < rKey)
        {
            Forward();
            return !AtEnd() && SSRMergeKey(Here()) == rKey;
        }
        return SSRMergeKey(Here()) == rKey;
    }

    /// The records in their order: the gap is closed.
    std::vector<T> Take()
    {
        const size_t ulNbFrom = m_vecBuffer.size() - m_ulFrom;
        if (m_ulBefore != m_ulFrom)
        {
            std::move(m_vecBuffer.begin() + static_cast<std::ptrdiff_t>(m_ulFrom), m_vecBuffer.end(),
                      m_vecBuffer.begin() + static_cast<std::ptrdiff_t>(m_ulBefore));
        }
        m_vecBuffer.resize(m_ulBefore + ulNbFrom);
        return std::move(m_vecBuffer);
    }

private:
    std::vector<T> m_vecBuffer;
    size_t m_ulBefore; ///< records before the cursor: [0, m_ulBefore)
    size_t m_ulFrom;   ///< the record at the cursor and after: [m_ulFrom, size)
};

} // namespace SsrDetail

// ---------------------------------------------------------------------------
// Collection messages
// ---------------------------------------------------------------------------

/// A header and a list of like records, sorted by key after a binary load and
/// kept sorted by the merge. Image: the header (70 bytes), the type at 70, the
/// record count at 74, the records from 78.
template <class T> class ZELTYPES_API SSRCorrCollctnMsgT : public SSRCorrMsgBaseT
{
public:
    std::vector<T> vCorrs;              ///< the records
    EZelSSRCorrectionType eSSRCorrType; ///< the kind of this message

    /// Empty message of the given kind, with room for ulReserve records.
    explicit SSRCorrCollctnMsgT(EZelSSRCorrectionType _eSSRCorrType, uint64_t ulReserve = 0)
        : eSSRCorrType(_eSSRCorrType)
    {
        if (ulReserve != 0)
        {
            vCorrs.reserve(static_cast<size_t>(ulReserve));
        }
    }
    /// Copies another object.
    SSRCorrCollctnMsgT(const SSRCorrCollctnMsgT&) = default;
    /// Copies another object into this one.
    SSRCorrCollctnMsgT& operator=(const SSRCorrCollctnMsgT&) = default;
    /// Destroys the object.
    ~SSRCorrCollctnMsgT() override = default;

    /// Empties the records and restores the header; the type stays.
    void Clear() override
    {
        vCorrs.clear();
        SSRCorrMsgBaseT::Clear();
    }

    /// The type; a NULL type is reported and returned.
    EZelSSRCorrectionType GetCorrType() const override
    {
        ZEL_ASSERT(eSSRCorrType != eZELSSRCORRECTIONTYPE_NULL);
        return eSSRCorrType;
    }

    /// True: a collection message.
    bool IsCollection() const override { return true; }

    /// Folds a later message of the same interval, system and type into this
    /// one: each new record replaces the stored one of its key (bOverwrite)
    /// or is kept out (not bOverwrite); a new key is inserted in order.
    bool MergeMsg(const SSRCorrMsgBaseT& rstNewMsg, bool bOverwrite) override;

    /// 78 bytes and the records' images, summed in 32 bits.
    uint64_t getSize() const
    {
        uint32_t ulSize = 78;
        for (const T& rRecord : vCorrs)
        {
            ulSize += static_cast<uint32_t>(rRecord.getSize());
        }
        return ulSize;
    }

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Record(r.oHeader))
        {
            return false;
        }
        io.template RawAs<int32_t>(r.eSSRCorrType);
        return io.SortedSequence(r.vCorrs);
    }

    /// The writer puts ", " before each record; the reader's token after the
    /// count ("Corrs,") takes the first of these commas, so that it reads one
    /// comma between records and none after the last. The reader appends to
    /// what the message holds and does not sort.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("CorrBase, ").Value(r.oHeader).Tag(", CorrTyp, ").template Wide<int32_t>(r.eSSRCorrType);
        if constexpr (IO::c_bReading)
        {
            uint32_t ulCount = 0;
            io.Tag(", NumCorrs, ").Value(ulCount).Tag(", Corrs");
            ReadRecords(io.Stream(), r.vCorrs, ulCount);
        }
        else
        {
            io.Tag(", NumCorrs, ").Value(static_cast<uint32_t>(r.vCorrs.size())).Tag(", Corrs");
            for (const T& rRecord : r.vCorrs)
            {
                io.Tag(", ").Value(rRecord);
            }
        }
    }

    /// Needs the room of what the message holds before the load.
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

private:
    /// Appends the records of a text as they come; a record cut by the end of
    /// the text (or a failed extraction) is not appended and ends the reading.
    static void ReadRecords(std::istream& is, std::vector<T>& rvecRecords, uint32_t ulCount)
    {
        for (uint32_t ulIdx = 0; ulIdx < ulCount && is; ++ulIdx)
        {
            if (ulIdx != 0)
            {
                ZelIo::SkipComma(is);
            }
            T tRecord;
            is >> tRecord;
            if (is.fail())
            {
                break;
            }
            rvecRecords.push_back(tRecord);
        }
    }

    void MergeRecords(const std::vector<T>& rvecNew, bool bOverwrite)
    {
        SsrDetail::CMergeCursor<T> oCursor(vCorrs, rvecNew.size());
        for (const T& rNew : rvecNew)
        {
            if (oCursor.Find(rNew))
            {
                if (bOverwrite)
                {
                    oCursor.Here() = rNew;
                }
            }
            else
            {
                oCursor.Insert(rNew);
            }
        }
        vCorrs = oCursor.Take();
    }
};

template <class T> bool SSRCorrCollctnMsgT<T>::MergeMsg(const SSRCorrMsgBaseT& rstNewMsg, bool bOverwrite)
{
    // The check text is spelt as it stands.
    ZEL_ASSERT_TEXT(oHeader.stSSRUICfg.GetSsrIntervalDefinition() ==
                        rstNewMsg.oHeader.stSSRUICfg.GetSsrIntervalDefinition(),
                    "oHeader.stSSRUICfg.GetSsrIntervalDefinition() == "
                    "rstNewMsg.oHeader.stSSRUICfg.GetSsrIntervalDefinition()");
    if (oHeader.stSSRUICfg.GetSsrIntervalDefinition() != c_ucSSR_INTERVAL_DEF_NO_TEST &&
        CompareUpdIntv(rstNewMsg) != eConstEqual)
    {
        ZEL_ASSERT(false);
        return false;
    }
    // Two classes may share a type (NULL): a message of another class holds
    // other records and is refused as one of another type would be.
    const auto* pNew = dynamic_cast<const SSRCorrCollctnMsgT<T>*>(&rstNewMsg);
    if (oHeader.eSatSys != rstNewMsg.oHeader.eSatSys || GetCorrType() != rstNewMsg.GetCorrType() ||
        pNew == nullptr)
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (bOverwrite && pNew != this)
    {
        oHeader.stRefTime = rstNewMsg.oHeader.stRefTime;
    }
    if (pNew->vCorrs.empty())
    {
        return true;
    }
    if (pNew == this)
    {
        // A merge into itself walks a copy: the records it walks change under it otherwise.
        const std::vector<T> vecNew = pNew->vCorrs;
        MergeRecords(vecNew, bOverwrite);
    }
    else
    {
        MergeRecords(pNew->vCorrs, bOverwrite);
    }
    return true;
}

/// Equal when the counts, the records pair by pair in their stored order, the
/// types and the headers are equal, tested in that order.
template <class T> bool operator==(const SSRCorrCollctnMsgT<T>& a, const SSRCorrCollctnMsgT<T>& b)
{
    if (a.vCorrs.size() != b.vCorrs.size())
    {
        return false;
    }
    for (size_t ulIdx = 0; ulIdx < a.vCorrs.size(); ++ulIdx)
    {
        if (!(a.vCorrs[ulIdx] == b.vCorrs[ulIdx]))
        {
            return false;
        }
    }
    return a.eSSRCorrType == b.eSSRCorrType && a.oHeader == b.oHeader;
}

/// Writes the record as one line of tag words and values, with no line end.
template <class T> std::ostream& operator<<(std::ostream& os, const SSRCorrCollctnMsgT<T>& rstMsg)
{
    return ZelIo::WriteText(os, rstMsg);
}

/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
template <class T> std::istream& operator>>(std::istream& is, SSRCorrCollctnMsgT<T>& rstMsg)
{
    return ZelIo::ReadText(is, rstMsg);
}

/// Orbit corrections (ORBIT_XYZ, ORBIT_RAC, REORBIT_XYZ or NULL), with the
/// change-of-rate flag after the records.
class ZELTYPES_API SSROrbitCorrMsgT : public SSRCorrCollctnMsgT<SSROrbitCorr>
{
public:
    /// The collection this message extends.
    typedef SSRCorrCollctnMsgT<SSROrbitCorr> Collection;

    bool bChangeRatVal = false; ///< change-of-rate flag of the source format

    /// A type outside the four of this class is reported and kept.
    explicit SSROrbitCorrMsgT(EZelSSRCorrectionType _eSSRCorrType = eZELSSRCORRECTIONTYPE_NULL,
                              uint64_t ulReserve = 0);
    /// Copies another object.
    SSROrbitCorrMsgT(const SSROrbitCorrMsgT&) = default;
    /// Copies another object into this one.
    SSROrbitCorrMsgT& operator=(const SSROrbitCorrMsgT&) = default;
    /// Destroys the object.
    ~SSROrbitCorrMsgT() override;

    /// The collection's Clear, and the flag back to false.
    void Clear() override;

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return static_cast<uint32_t>(Collection::getSize() + 1); }
    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!Collection::VisitFields(io, r))
        {
            return false;
        }
        io.Raw(r.bChangeRatVal);
        return true;
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        Collection::VisitText(io, r);
        io.Tag(", ChangeRatVal, ");
        SsrDetail::TextBool(io, r.bChangeRatVal);
    }

    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Needs the room of the old content and the flag. The collection's
    /// outcome is not looked at: the flag is read where its load stopped, and
    /// the result is whether the count arrives at the size.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Clock corrections (CLOCK_DELTA, CLOCK_MOD or NULL).
class ZELTYPES_API SSRClockCorrMsgT : public SSRCorrCollctnMsgT<SSRClockCorr>
{
public:
    /// A type outside the three of this class is reported and kept.
    explicit SSRClockCorrMsgT(EZelSSRCorrectionType _eSSRCorrType = eZELSSRCORRECTIONTYPE_NULL,
                              uint64_t ulReserve = 0);
    /// Copies another object.
    SSRClockCorrMsgT(const SSRClockCorrMsgT&) = default;
    /// Copies another object into this one.
    SSRClockCorrMsgT& operator=(const SSRClockCorrMsgT&) = default;
    /// Destroys the object.
    ~SSRClockCorrMsgT() override;
};

/// High-rate clock corrections (HRCLOCK_DELTA, HRCLOCK_MOD or NULL), with the
/// time since the base message after the records. Clear leaves that byte.
class ZELTYPES_API SSRHighRateClockMsgT : public SSRCorrCollctnMsgT<SSRHighRateClock>
{
public:
    /// The collection this message extends.
    typedef SSRCorrCollctnMsgT<SSRHighRateClock> Collection;

    uint8_t ucTimSinceBaseMsg = 0; ///< time since the base message, unit of the source format

    /// A type outside the three of this class is reported and kept.
    explicit SSRHighRateClockMsgT(EZelSSRCorrectionType _eSSRCorrType = eZELSSRCORRECTIONTYPE_NULL,
                                  uint64_t ulReserve = 0);
    /// Copies another object.
    SSRHighRateClockMsgT(const SSRHighRateClockMsgT&) = default;
    /// Copies another object into this one.
    SSRHighRateClockMsgT& operator=(const SSRHighRateClockMsgT&) = default;
    /// Destroys the object.
    ~SSRHighRateClockMsgT() override;

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return static_cast<uint32_t>(Collection::getSize() + 1); }
    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!Collection::VisitFields(io, r))
        {
            return false;
        }
        io.Raw(r.ucTimSinceBaseMsg);
        return true;
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        Collection::VisitText(io, r);
        io.Tag(", TimSinceBaseMsg, ").template Wide<uint32_t>(r.ucTimSinceBaseMsg);
    }

    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const
    {
        return ZelIo::SaveFixed(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Needs the room of the old content and the byte; a collection load that
    /// fails or stops short of its size reports "false" and gives false
    /// before the byte is read.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Code biases (CODEBIAS or NULL).
class ZELTYPES_API SSRCodeBiasMsgT : public SSRCorrCollctnMsgT<SSRBias>
{
public:
    /// A type other than CODEBIAS or NULL is reported and kept.
    explicit SSRCodeBiasMsgT(EZelSSRCorrectionType _eSSRCorrType = eZELSSRCORRECTIONTYPE_NULL,
                             uint64_t ulReserve = 0);
    /// Copies another object.
    SSRCodeBiasMsgT(const SSRCodeBiasMsgT&) = default;
    /// Copies another object into this one.
    SSRCodeBiasMsgT& operator=(const SSRCodeBiasMsgT&) = default;
    /// Destroys the object.
    ~SSRCodeBiasMsgT() override;
};

/// Phase biases, always PHASEBIAS.
class ZELTYPES_API SSRPhaseBiasMsgT : public SSRCorrCollctnMsgT<SSRPhaseBias>
{
public:
    /// bSetFormat sets the header's source format to 4.
    explicit SSRPhaseBiasMsgT(bool bSetFormat = false, uint64_t ulReserve = 0);
    /// Copies another object.
    SSRPhaseBiasMsgT(const SSRPhaseBiasMsgT&) = default;
    /// Copies another object into this one.
    SSRPhaseBiasMsgT& operator=(const SSRPhaseBiasMsgT&) = default;
    /// Destroys the object.
    ~SSRPhaseBiasMsgT() override;
};

/// User-range-accuracy indices, always URA.
class ZELTYPES_API SSRURAMsgT : public SSRCorrCollctnMsgT<SSRURA>
{
public:
    /// Empty URA message, with room for ulReserve records.
    explicit SSRURAMsgT(uint64_t ulReserve = 0);
    /// Copies another object.
    SSRURAMsgT(const SSRURAMsgT&) = default;
    /// Copies another object into this one.
    SSRURAMsgT& operator=(const SSRURAMsgT&) = default;
    /// Destroys the object.
    ~SSRURAMsgT() override;
};

/// The signals a service corrects, always SATSIG.
class ZELTYPES_API SSRSignalMsgT : public SSRCorrCollctnMsgT<SZelSatFrqTMdGroupID>
{
public:
    /// Empty SATSIG message, with room for ulReserve records.
    explicit SSRSignalMsgT(uint64_t ulReserve = 0);
    /// Copies another object.
    SSRSignalMsgT(const SSRSignalMsgT&) = default;
    /// Copies another object into this one.
    SSRSignalMsgT& operator=(const SSRSignalMsgT&) = default;
    /// Destroys the object.
    ~SSRSignalMsgT() override;
};

/// Phase-centre variation grids, always PCV. Sorted by the whole signal after
/// a load, merged by the satellite alone.
class ZELTYPES_API SSRPCVMsgT : public SSRCorrCollctnMsgT<SSRPCV>
{
public:
    /// Constructs the default state (for a record: holding no data).
    SSRPCVMsgT();
    /// Copies another object.
    SSRPCVMsgT(const SSRPCVMsgT&) = default;
    /// Copies another object into this one.
    SSRPCVMsgT& operator=(const SSRPCVMsgT&) = default;
    /// Destroys the object.
    ~SSRPCVMsgT() override;
};

/// The two classes with an extra field also compare it, after all the rest.
ZELTYPES_API bool operator==(const SSROrbitCorrMsgT& a, const SSROrbitCorrMsgT& b);
/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SSRHighRateClockMsgT& a, const SSRHighRateClockMsgT& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSROrbitCorrMsgT& rstMsg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSROrbitCorrMsgT& rstMsg);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SSRHighRateClockMsgT& rstMsg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SSRHighRateClockMsgT& rstMsg);

} // namespace ZELN

#endif
