#ifndef ZELTYPES_CORE_COMMON_ZELTYPES_H
#define ZELTYPES_CORE_COMMON_ZELTYPES_H

/// \file
/// Building blocks of the position results: dilution of precision, the
/// satellites used per signal and system, the reference network that took
/// part, the scaled covariance of a three-vector and a typed position.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// ------------------------------------------------------------------ SZelDOP

/// Dilution of precision and the satellites behind it; the engine that fills
/// it chooses the scale, the library never scales these values.
struct ZELTYPES_API SZelDOP
{
    uint16_t unHDOP = 0;    ///< horizontal DOP, producer's scale
    uint16_t unVDOP = 0;    ///< vertical DOP, producer's scale
    uint16_t unTDOP = 0;    ///< time DOP, producer's scale
    uint16_t unGDOP = 0;    ///< geometric DOP, producer's scale
    uint16_t unPDOP = 0;    ///< position DOP, producer's scale
    uint16_t unNumSats = 0; ///< satellites in the solution

    /// Restores the defaults.
    void Reset() { *this = SZelDOP(); }

    /// Image, 12 bytes: the six values in field order.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.unHDOP) && io.Raw(r.unVDOP) && io.Raw(r.unTDOP) && io.Raw(r.unGDOP) &&
               io.Raw(r.unPDOP) && io.Raw(r.unNumSats);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("HDOP, ")
            .Value(r.unHDOP)
            .Tag(", VDOP, ")
            .Value(r.unVDOP)
            .Tag(", TDOP, ")
            .Value(r.unTDOP)
            .Tag(", GDOP, ")
            .Value(r.unGDOP)
            .Tag(", PDOP, ")
            .Value(r.unPDOP)
            .Tag(", NumSats, ")
            .Value(r.unNumSats);
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

/// Every field equal.
ZELTYPES_API bool operator==(const SZelDOP& a, const SZelDOP& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelDOP& rDop);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelDOP& rDop);

// ------------------------------------------------------------------ SZelFrqSatUsage

/// The satellites used on one signal, as a bit map over the satellite
/// numbers of the system (bit n for number n modulo 64).
struct ZELTYPES_API SZelFrqSatUsage
{
    EZelFrequency eFrequency = ZELFREQUENCY_UNKNOWN; ///< 0 marks an unused slot
    uint8_t ucNumUse = 0;                            ///< bits set in ullBitMapUse, kept by the add operations
    uint64_t ullBitMapUse = 0;                       ///< bit n: satellite number n of the system

    /// Sets the bit of iSatNumber modulo 64; counts it when it was not set.
    void AddSat(int iSatNumber);
    /// Sets the bits of the mask; counts those that were not set.
    void AddSatMask(uint64_t ullMask);
    /// The other record's bit map, when both are of the same signal; else
    /// reported, and nothing changes.
    void Add(const SZelFrqSatUsage& rstOther);
    /// The bit of iSatNumber modulo 64.
    bool IsSatUsed(int iSatNumber) const;

    /// Restores the defaults.
    void Reset() { *this = SZelFrqSatUsage(); }

    /// Image, 13 bytes, unaligned: signal 4, count 1, bit map 8.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eFrequency) && io.Raw(r.ucNumUse) && io.Raw(r.ullBitMapUse);
    }
    /// Text: the signal as a number, ", NumUse, " and ", BitMapUse, " (decimal).
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.template Wide<int32_t>(r.eFrequency)
            .Tag(", NumUse, ")
            .template Wide<uint32_t>(r.ucNumUse)
            .Tag(", BitMapUse, ")
            .Value(r.ullBitMapUse);
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

/// All fields.
ZELTYPES_API bool operator==(const SZelFrqSatUsage& a, const SZelFrqSatUsage& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelFrqSatUsage& rUsage);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelFrqSatUsage& rUsage);

// ------------------------------------------------------------------ SZelSysSatUsage

/// Signals held per system.
constexpr size_t c_ulNB_USAGE_FREQUENCIES = 6;

/// The satellites of one system: available, used, and used per signal.
struct ZELTYPES_API SZelSysSatUsage
{
    EZelSatSystem eSatSystem = ZELSATSYSTEM_NONE;             ///< the system these satellites belong to
    uint8_t ucNumAvl = 0;                                     ///< satellites available
    uint8_t ucNumUse = 0;                                     ///< satellites used
    SZelFrqSatUsage astUsedPerFreq[c_ulNB_USAGE_FREQUENCIES]; ///< at most six signals, in slot order

    /// Merges another record of the same system without counting a
    /// satellite twice: ucNumUse rises by the largest number of satellites
    /// new on one signal. Signals this record lacks are dropped.
    void Add(const SZelSysSatUsage& rstOther);

    /// Restores the defaults.
    void Reset() { *this = SZelSysSatUsage(); }

    /// Image, 84 bytes: system 4, available 1, used 1, the six slots.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!(io.Raw(r.eSatSystem) && io.Raw(r.ucNumAvl) && io.Raw(r.ucNumUse)))
        {
            return false;
        }
        for (auto& rSlot : r.astUsedPerFreq)
        {
            if (!io.Record(rSlot, false))
            {
                return false;
            }
        }
        return true;
    }
    /// Text: "SatSys, " letter, ", NumAvl, ", ", NumUse, ", then ", UsedPerFreq"
    /// and each slot behind ", ". The reader takes ", UsedPerFreq" and the
    /// comma after it as one tag (its token holds that comma).
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatSys, ")
            .Value(r.eSatSystem)
            .Tag(", NumAvl, ")
            .template Wide<uint32_t>(r.ucNumAvl)
            .Tag(", NumUse, ")
            .template Wide<uint32_t>(r.ucNumUse)
            .Tag(", UsedPerFreq, ")
            .Value(r.astUsedPerFreq[0]);
        for (size_t ulIdx = 1; ulIdx < c_ulNB_USAGE_FREQUENCIES; ++ulIdx)
        {
            io.Tag(", ").Value(r.astUsedPerFreq[ulIdx]);
        }
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

/// The six slots, then system, available and used.
ZELTYPES_API bool operator==(const SZelSysSatUsage& a, const SZelSysSatUsage& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSysSatUsage& rUsage);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSysSatUsage& rUsage);

// ------------------------------------------------------------------ SZelGnssAvailability

/// Systems held in an availability record.
constexpr size_t c_ulNB_USAGE_SYSTEMS = 8;

/// The satellites of up to eight systems. The lookups look at the first
/// min(ucNumSysObs, 8) entries only; comparison and both forms take all eight.
struct ZELTYPES_API SZelGnssAvailability
{
    uint8_t ucNumSysObs = 0;                           ///< entries that count
    SZelSysSatUsage astSysUsage[c_ulNB_USAGE_SYSTEMS]; ///< one entry per system, the first ucNumSysObs count

    /// Bit map of the first entry of the system that holds the signal; 0 when none does.
    uint64_t GetBitMapUse(EZelFrequency eFrequency, EZelSatSystem eSatSystem) const;
    /// Satellites used on the signal, from the same entry; 0 when none holds it.
    uint8_t GetNumUse(EZelSatSystem eSatSystem, EZelFrequency eFrequency) const;
    /// Largest GetNumUse of the system over the signal values 0 to 10.
    uint8_t GetMaxNumUse(EZelSatSystem eSatSystem) const;
    /// Satellites used on any signal of the mask (bit f-1 for signal f,
    /// f = 1..10); a satellite on several of them counts once.
    uint32_t CountUsedSats(EZelSatSystem eSatSystem, uint32_t ulFrqMask) const;
    /// Whether the satellite is used on any signal of its system's first entry.
    bool IsSatUsed(const SZelSatID& stSatId) const;

    /// Restores the defaults.
    void Reset() { *this = SZelGnssAvailability(); }

    /// Image, 673 bytes: count 1, the eight systems.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!io.Raw(r.ucNumSysObs))
        {
            return false;
        }
        for (auto& rSys : r.astSysUsage)
        {
            if (!io.Record(rSys, false))
            {
                return false;
            }
        }
        return true;
    }
    /// Text: "NumSysObs, " count, then the eight systems each behind ", ".
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("NumSysObs, ").template Wide<uint32_t>(r.ucNumSysObs);
        for (auto& rSys : r.astSysUsage)
        {
            io.Tag(", ").Value(rSys);
        }
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

/// All eight entries, then the count.
ZELTYPES_API bool operator==(const SZelGnssAvailability& a, const SZelGnssAvailability& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelGnssAvailability& rAvl);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelGnssAvailability& rAvl);

// ------------------------------------------------------------------ EZelNetType, SZelNrtkInfo

/// Kind of reference network correction; 32 bits in images.
enum EZelNetType : int32_t
{
    ZELNETTYPE_INVALID = -1, ///< text "Invalid"; also what the reader gives for an unknown word
    ZELNETTYPE_NONE = 0,     ///< no network correction; text "None"
    ZELNETTYPE_VRS = 1,      ///< text "VRS"
    ZELNETTYPE_ITEV = 2,     ///< text "iTEV"
    ZELNETTYPE_FKP = 3,      ///< text "FKP"
    ZELNETTYPE_MAC = 4,      ///< master-auxiliary corrections; text "MAC"
    ZELNETTYPE_SSR = 5       ///< state-space corrections; text "SSR"
};

/// Words of the text form, indexed by value; anything else is "Invalid".
constexpr const char* c_aszNetTypeWords[] = {"None", "VRS", "iTEV", "FKP", "MAC", "SSR"};
/// Number of words in c_aszNetTypeWords.
constexpr size_t c_ulNbNetTypeWords = 6;

/// Word of the text form for eNetType; "Invalid" for any value outside 0 to 5.
ZELTYPES_API const char* ToNetTypeWord(EZelNetType eNetType);
/// One token; an unknown word gives ZELNETTYPE_INVALID.
ZELTYPES_API EZelNetType ReadNetTypeWord(std::istream& is);

/// The reference network behind a fix.
struct ZELTYPES_API SZelNrtkInfo
{
    uint8_t ucNumRefStations = 0;           ///< reference stations that took part
    bool bInsideNetwork = false;            ///< the rover lies inside the network
    EZelNetType eNetType = ZELNETTYPE_NONE; ///< kind of network correction used

    /// Restores the defaults.
    void Reset() { *this = SZelNrtkInfo(); }

    /// Image, 6 bytes: stations 1, inside 1, kind 4.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ucNumRefStations) && io.Raw(r.bInsideNetwork) && io.Raw(r.eNetType);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("NumRefStns, ")
            .template Wide<uint32_t>(r.ucNumRefStations)
            .Tag(", InsideNet, ")
            .Value(r.bInsideNetwork)
            .Tag(", NetTyp, ")
            .Word(r.eNetType, c_aszNetTypeWords, "Invalid", ZELNETTYPE_INVALID);
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

/// Every field equal.
ZELTYPES_API bool operator==(const SZelNrtkInfo& a, const SZelNrtkInfo& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNrtkInfo& rInfo);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNrtkInfo& rInfo);

// ------------------------------------------------------------------ SZelPosQuality

/// Values of the packed covariance of SZelPosQuality.
constexpr size_t c_ulNB_POSQ_VALUES = 6;

/// The scaled covariance of a three-vector: the covariance is fMo^2 times
/// the cofactor matrix afQ, whose unit is the producer's (m^2 for positions,
/// m^2/s^2 for velocities, divided by the unit of fMo^2).
struct ZELTYPES_API SZelPosQuality
{
    EZelCoordinateSystem eCoordSystem = ZELCOORDINATESYSTEM_CARTESIAN; ///< frame of the covariance
    float fMo = 0.0f;         ///< a-posteriori scale factor (standard deviation of unit weight)
    float fMoUnscaled = 0.0f; ///< the same before scaling
    /// Upper triangle of the symmetric cofactor matrix, column by column:
    /// xx, xy, yy, xz, yz, zz (north, east, up for a geographic record;
    /// X, Y, Z earth-fixed for a cartesian one).
    float afQ[c_ulNB_POSQ_VALUES] = {0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f};

    /// 3d trace (afQ[2] + afQ[0]) + afQ[5], summed in 32 bits; a negative
    /// trace is reported and gives 0.0.
    double GetTraceQ3d() const
    {
        const double dTraceQ3d = static_cast<double>((afQ[2] + afQ[0]) + afQ[5]);
        ZEL_ASSERT(dTraceQ3d >= 0.0);
        // The root of the sigma would not be a number.
        return dTraceQ3d >= 0.0 ? dTraceQ3d : 0.0;
    }
    /// Horizontal trace afQ[2] + afQ[0], summed in 32 bits; a negative trace is reported and gives 0.0.
    double GetTraceQ2d() const
    {
        const double dTraceQ2d = static_cast<double>(afQ[2] + afQ[0]);
        ZEL_ASSERT(dTraceQ2d >= 0.0);
        return dTraceQ2d >= 0.0 ? dTraceQ2d : 0.0;
    }
    /// Vertical trace afQ[5]; a negative value is reported and gives 0.0.
    double GetTraceQ1d() const
    {
        const double dTraceQ1d = static_cast<double>(afQ[5]);
        ZEL_ASSERT(dTraceQ1d >= 0.0);
        return dTraceQ1d >= 0.0 ? dTraceQ1d : 0.0;
    }
    /// 3d sigma: fMo times the root of GetTraceQ3d(), in the unit of the
    /// covariance's root (m for positions).
    double GetSigma3d() const { return static_cast<double>(fMo) * std::sqrt(GetTraceQ3d()); }
    /// Horizontal sigma: fMo times the root of GetTraceQ2d(), in the same unit.
    double GetSigma2d() const { return static_cast<double>(fMo) * std::sqrt(GetTraceQ2d()); }
    /// Vertical sigma: fMo times the root of GetTraceQ1d(), in the same unit.
    double GetSigma1d() const { return static_cast<double>(fMo) * std::sqrt(GetTraceQ1d()); }

    /// North sigma of a geographic record (m): sqrt(fMo^2 afQ[0]), the product
    /// in 32 bits. Any other system is reported and the value still returned.
    double GetSigmaNorth() const;
    /// East sigma of a geographic record (m), as GetSigmaNorth() with afQ[2].
    double GetSigmaEast() const;
    /// Height sigma of a geographic record (m), as GetSigmaNorth() with afQ[5].
    double GetSigmaHeight() const;

    /// Turns the covariance between cartesian (0) and geographic (1) by the
    /// rotation a b c d e f g h, rows (a, b, c), (d, e, 0), (f, g, h), from
    /// earth-fixed to north, east, up: R Q R^T forward, R^T Q R back. A null
    /// rotation, the same system or any other pair does nothing.
    void Transform(EZelCoordinateSystem eTarget, const double* adRotation);

    /// Restores the defaults.
    void Reset() { *this = SZelPosQuality(); }

    /// Image, 36 bytes: system 4, fMo 4, fMoUnscaled 4, the six values.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eCoordSystem) && io.Raw(r.fMo) && io.Raw(r.fMoUnscaled) && io.Raw(r.afQ);
    }
    /// Text: "CooSys, " word, ", Mo, ", ", MoUnscaled, ", then ", Q" and the
    /// six values each behind ", ". The reader takes ", Q" with the comma
    /// after it as one tag; the word swallows its own comma.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("CooSys, ")
            .Word(r.eCoordSystem, c_aszCoordinateSystemWords, "Invalid", ZELCOORDINATESYSTEM_INVALID)
            .Tag(", Mo, ")
            .Value(r.fMo)
            .Tag(", MoUnscaled, ")
            .Value(r.fMoUnscaled)
            .Tag(", Q, ")
            .Array(r.afQ);
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

/// System, then the floats exactly: a NaN makes the record unequal to itself.
ZELTYPES_API bool operator==(const SZelPosQuality& a, const SZelPosQuality& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelPosQuality& rQuality);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelPosQuality& rQuality);

// ------------------------------------------------------------------ EZelCoordType, SZelPosition

/// The kind of a position; 32 bits in images.
enum EZelCoordType : int32_t
{
    ZELCOORDTYPE_INVALID = -1, ///< text "Invalid"; also what the reader gives for an unknown word
    ZELCOORDTYPE_UNKNOWN = 0,  ///< kind not known; text "Unknown"
    ZELCOORDTYPE_APRIORI = 1,  ///< a-priori position; text "Apriori"
    ZELCOORDTYPE_REF = 2,      ///< reference position; text "Ref"
    ZELCOORDTYPE_ROVCALC = 3,  ///< computed rover position; text "RovCalc"
    ZELCOORDTYPE_KNWMRK = 4,   ///< known mark; text "KnwMrk"
    ZELCOORDTYPE_VRSREF = 5,   ///< text "VrsRef"
    ZELCOORDTYPE_IPRODROV = 6  ///< text "IProdRov"
};

/// Words of the text form, indexed by value; anything else is "Invalid".
constexpr const char* c_aszCoordTypeWords[] = {"Unknown", "Apriori", "Ref",     "RovCalc",
                                               "KnwMrk",  "VrsRef",  "IProdRov"};
/// Number of words in c_aszCoordTypeWords.
constexpr size_t c_ulNbCoordTypeWords = 7;

/// Word of the text form for eCoordType; "Invalid" for any value outside 0 to 6.
ZELTYPES_API const char* ToCoordTypeWord(EZelCoordType eCoordType);
/// One token; an unknown word gives ZELCOORDTYPE_INVALID.
ZELTYPES_API EZelCoordType ReadCoordTypeWord(std::istream& is);

/// A position with its kind and quality. Its memory layout (80 bytes, kind
/// at 0, availability at 4, triplet at 8, quality at 40, flag at 76) is
/// also a raw block of the station configuration: keep the field order.
struct ZELTYPES_API SZelPosition
{
    EZelCoordType eCoordType = ZELCOORDTYPE_UNKNOWN; ///< kind of the position
    uint8_t ucAvail = 0;                             ///< availability, set by the producer
    SZelCoordinateTriplet stPos;                     ///< the coordinates (units by the triplet's type)
    SZelPosQuality stPosQ;                           ///< their covariance
    bool bNonPhysical = false;                       ///< the point is no physical mark

    /// Restores the defaults.
    void Reset() { *this = SZelPosition(); }

    /// Image: kind 4, availability 1, triplet (28), quality (36), flag 1.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eCoordType) && io.Raw(r.ucAvail) && io.Record(r.stPos, false) &&
               io.Record(r.stPosQ, false) && io.Raw(r.bNonPhysical);
    }
    /// Text: "CooTyp, " word, ", Avl, ", ", Pos, " triplet, ", PosQ, "
    /// quality, ", NonPys, " flag.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("CooTyp, ")
            .Word(r.eCoordType, c_aszCoordTypeWords, "Invalid", ZELCOORDTYPE_INVALID)
            .Tag(", Avl, ")
            .template Wide<uint32_t>(r.ucAvail)
            .Tag(", Pos, ")
            .Value(r.stPos)
            .Tag(", PosQ, ")
            .Value(r.stPosQ)
            .Tag(", NonPys, ")
            .Value(r.bNonPhysical);
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

static_assert(sizeof(SZelPosition) == 80, "the station configuration holds SZelPosition as 80 bytes");
static_assert(offsetof(SZelPosition, ucAvail) == 4 && offsetof(SZelPosition, stPos) == 8 &&
                  offsetof(SZelPosition, stPosQ) == 40 && offsetof(SZelPosition, bNonPhysical) == 76,
              "the station configuration's block has these offsets");

/// Kind, availability, triplet, quality, flag.
ZELTYPES_API bool operator==(const SZelPosition& a, const SZelPosition& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelPosition& rPosition);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelPosition& rPosition);

} // namespace ZELN

#endif
