#ifndef ZELTYPES_EXT_GNSS_ZELEXTCFGTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTCFGTYPES_H

/// \file
/// The option set of the positioning engine, as a host fills it in before
/// processing starts: the main record SZelProcCfg (general, differential and
/// kinematic blocks) and the small records for reference data, network
/// handling, the own station and the receiver antenna. The library stores,
/// defaults, compares, writes and reads these options; it never acts on them.
/// What the mode and option numbers select, and the units of the limits and
/// rates, are the engine's: the library never scales or checks them.
///
/// Most images are raw blocks: the fields at the offsets of the record's
/// layout, reserved bytes included (written as zero, skipped when read).
/// Fixed images clear the count before the bounds test.
///
/// Comparison: integers and booleans exactly; the floating-point fields
/// named per record within a relative tolerance (1e-14 for 64-bit, 1e-6 for
/// 32-bit values), so that a field at 0.0 agrees only with 0.0.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Ext/Gnss/ZelExtAntTypes.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

// ------------------------------------------------------------------ small blocks

/// A limit on a dilution of precision. Image, 8 bytes: ulType at 0, fLimit at 4.
struct ZELTYPES_API SZelDopLimit
{
    uint32_t ulType = 0; ///< which dilution is limited; the engine's numbering
    float fLimit = 0.0f; ///< largest accepted value, unitless like the dilution

    /// Constructs the default state (for a record: holding no data).
    SZelDopLimit() = default;
    /// A limit of fLimitIn on the dilution numbered ulTypeIn.
    SZelDopLimit(uint32_t ulTypeIn, float fLimitIn) : ulType(ulTypeIn), fLimit(fLimitIn) {}

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulType) && io.Raw(r.fLimit);
    }
    /// Text: "Typ, " number ", Lim, " value at the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Typ, ").Value(r.ulType).Tag(", Lim, ").Value(r.fLimit);
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

/// ulType exactly, fLimit within 1e-6 relative.
ZELTYPES_API bool operator==(const SZelDopLimit& a, const SZelDopLimit& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelDopLimit& rLimit);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelDopLimit& rLimit);

/// A limit on the satellites processed. Image, 8 bytes: ulRate at 0, ulMaxSats at 4.
struct ZELTYPES_API SZelSatLimit
{
    uint32_t ulRate = 0;    ///< rate at which the limit applies; unit set by the engine
    uint32_t ulMaxSats = 0; ///< most satellites used

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulRate) && io.Raw(r.ulMaxSats);
    }
    /// Text: "Rate, " number ", MaxSats, " number.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Rate, ").Value(r.ulRate).Tag(", MaxSats, ").Value(r.ulMaxSats);
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

/// Both fields exactly.
ZELTYPES_API bool operator==(const SZelSatLimit& a, const SZelSatLimit& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatLimit& rLimit);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatLimit& rLimit);

/// Preprocessing of the observations. Image, 8 bytes: ulSmoothInterval at 0,
/// bIfCycleSlipDetect at 4, three reserved bytes.
struct ZELTYPES_API SZelPrePrcCfg
{
    uint32_t ulSmoothInterval = 0;   ///< smoothing interval; unit set by the engine
    bool bIfCycleSlipDetect = false; ///< cycle-slip detection on the ionosphere-free combination

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulSmoothInterval) && io.Raw(r.bIfCycleSlipDetect) && io.Reserved(3);
    }
    /// Text: "SmthInt, " number ", IfCSDet, " 0 or 1.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SmthInt, ")
            .Value(r.ulSmoothInterval)
            .Tag(", IfCSDet, ")
            .template Wide<int32_t>(r.bIfCycleSlipDetect);
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

/// Both fields exactly.
ZELTYPES_API bool operator==(const SZelPrePrcCfg& a, const SZelPrePrcCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelPrePrcCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelPrePrcCfg& rCfg);

// ------------------------------------------------------------------ general block

/// Satellite systems used by default: bit n stands for system n+1 (GPS is
/// bit 0); every system but SBAS, the fourth.
constexpr uint8_t c_ucZEL_DEF_GNSS_TO_USE = 0xF7;
/// Default elevation mask: 10 degrees, in radians.
constexpr double c_dZEL_DEF_MIN_ELEV = 0.17453292519943295;

/// The general options. Raw block of 64 bytes: stDopLimitKin 0, stDopLimit 8,
/// stSatLimit 16, bL1Only 24, unFrqsToUse 26, bStatic 28, bLevelPhase 29,
/// stPrePrcCfg 32, dMinElev 40, ulPosRate 48, ucGnssPveUsage 52, ulMode 56,
/// bEnableSsr 60, ucGnssToUse 61; bytes 25, 30, 31, 37 to 39, 53 to 55, 62
/// and 63 reserved.
struct ZELTYPES_API SZelGenCfg
{
    SZelDopLimit stDopLimitKin{1, 20.0f};          ///< dilution limit in kinematic mode
    SZelDopLimit stDopLimit;                       ///< dilution limit otherwise
    SZelSatLimit stSatLimit;                       ///< satellite limit
    bool bL1Only = false;                          ///< first frequency only
    uint16_t unFrqsToUse = 0x3F;                   ///< bit set of the frequency groups used
    bool bStatic = true;                           ///< the receiver does not move
    bool bLevelPhase = true;                       ///< level the carrier phases
    SZelPrePrcCfg stPrePrcCfg;                     ///< preprocessing
    double dMinElev = c_dZEL_DEF_MIN_ELEV;         ///< elevation mask, radians
    uint32_t ulPosRate = 1000;                     ///< position rate; unit set by the engine
    uint8_t ucGnssPveUsage = 0;                    ///< use of position and velocity; the engine's numbering
    uint32_t ulMode = 0;                           ///< processing mode; the engine's numbering
    bool bEnableSsr = false;                       ///< state-space corrections enabled
    uint8_t ucGnssToUse = c_ucZEL_DEF_GNSS_TO_USE; ///< bit set of the systems used, bit n for system n+1

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Inline(r.stDopLimitKin);
        io.Inline(r.stDopLimit);
        io.Inline(r.stSatLimit);
        io.Raw(r.bL1Only);
        io.Reserved(1);
        io.Raw(r.unFrqsToUse);
        io.Raw(r.bStatic);
        io.Raw(r.bLevelPhase);
        io.Reserved(2);
        io.Inline(r.stPrePrcCfg);
        io.Raw(r.dMinElev);
        io.Raw(r.ulPosRate);
        io.Raw(r.ucGnssPveUsage);
        io.Reserved(3);
        io.Raw(r.ulMode);
        io.Raw(r.bEnableSsr);
        io.Raw(r.ucGnssToUse);
        return io.Reserved(2);
    }
    /// Text: the fields in order behind their tags, the small blocks behind
    /// theirs; dMinElev in scientific notation at 17 digits, which stays set
    /// on the stream for whatever is written next.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("DopLimKin, ").Value(r.stDopLimitKin).Tag(", DopLim, ").Value(r.stDopLimit);
        io.Tag(", SatLim, ").Value(r.stSatLimit).Tag(", L1only, ").template Wide<int32_t>(r.bL1Only);
        io.Tag(", FrqsToUse, ").template Wide<uint32_t>(r.unFrqsToUse);
        io.Tag(", Stat, ").template Wide<int32_t>(r.bStatic);
        io.Tag(", LevPhase, ").template Wide<int32_t>(r.bLevelPhase);
        io.Tag(", PrePrcCfg, ").Value(r.stPrePrcCfg);
        io.Tag(", MinElev, ").Scientific().Precision(17).Value(r.dMinElev);
        io.Tag(", PosRate, ").Value(r.ulPosRate);
        io.Tag(", GnssPveUsage, ").template Wide<uint32_t>(r.ucGnssPveUsage);
        io.Tag(", Mode, ").Value(r.ulMode);
        io.Tag(", EnabSsr, ").template Wide<int32_t>(r.bEnableSsr);
        io.Tag(", GnssToUse, ").template Wide<uint32_t>(r.ucGnssToUse);
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

/// In field order; fLimit and dMinElev within their relative tolerance.
ZELTYPES_API bool operator==(const SZelGenCfg& a, const SZelGenCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelGenCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelGenCfg& rCfg);

// ------------------------------------------------------------------ differential block

/// The differential options. Raw block of 24 bytes: lPredMode 0, dMaxBaseline
/// 8, lDelimiter 16, bImproveIono 20; bytes 4 to 7 and 21 to 23 reserved.
struct ZELTYPES_API SZelDiffCfg
{
    int32_t lPredMode = 0;      ///< prediction of corrections; the engine's numbering
    double dMaxBaseline = -1.0; ///< longest baseline accepted; unit set by the engine, -1.0 no limit
    int32_t lDelimiter = 0;     ///< the engine's numbering
    bool bImproveIono = true;   ///< refine the ionosphere from the corrections

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.lPredMode);
        io.Reserved(4);
        io.Raw(r.dMaxBaseline);
        io.Raw(r.lDelimiter);
        io.Raw(r.bImproveIono);
        return io.Reserved(3);
    }
    /// Text: "PredMode, " ", MaxBsl, " ", Delim, " ", ImpIono, ", each
    /// with its value; the double at the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("PredMode, ").Value(r.lPredMode).Tag(", MaxBsl, ").Value(r.dMaxBaseline);
        io.Tag(", Delim, ").Value(r.lDelimiter).Tag(", ImpIono, ").template Wide<int32_t>(r.bImproveIono);
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

/// In field order; dMaxBaseline within 1e-14 relative.
ZELTYPES_API bool operator==(const SZelDiffCfg& a, const SZelDiffCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelDiffCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelDiffCfg& rCfg);

// ------------------------------------------------------------------ kinematic block

struct SZelRtkCfg;
struct SZelRtkCfgV1;

namespace ZelCfgIo
{
/// The fields of the kinematic block, stated once for its three images:
/// the packed form of SZelRtkCfg (no reserved bytes, 133 bytes), its raw
/// block inside SZelProcCfg (144 bytes) and the raw block of the older
/// layout SZelRtkCfgV1, which lacks the three a-priori fields (120 bytes).
/// bBlock inserts the reserved bytes of the memory layout.
template <class IO, class Self> bool VisitRtkFields(IO& io, Self& r, bool bBlock)
{
    constexpr bool bHasAPriori = std::is_same<std::remove_const_t<Self>, SZelRtkCfg>::value;
    const auto fnGap = [&io, bBlock](uint64_t ulSize) { return bBlock ? io.Reserved(ulSize) : true; };
    io.Raw(r.ulProcOpt);
    io.Raw(r.unSmoothWindow);
    fnGap(2);
    io.Raw(r.dMaxPredHpn);
    io.Raw(r.dMaxPredSsr);
    if constexpr (bHasAPriori)
    {
        io.Raw(r.dAPrioriPosPredVarPosScaling);
        io.Raw(r.dAPrioriPosPredVarVelScaling);
        io.Raw(r.dAPrioriPosPredProcNoisePerSec);
    }
    io.Raw(r.ucNumRestBefAmbFix);
    io.Raw(r.ucNumRestBefAmbFixStat);
    fnGap(2);
    io.Raw(r.ulFltLngthBitMask);
    io.Raw(r.nFltLngthFstSrc);
    io.Raw(r.nFltLngthSrcIntFix);
    io.Raw(r.nFltLngthSrcInt);
    io.Raw(r.nFltLngthResInt);
    io.Raw(r.dMaxAlphSrc);
    io.Raw(r.dMaxAlphRes);
    io.Raw(r.dPosTskCooPN);
    io.Raw(r.dPosTskAmbPN);
    io.Raw(r.dAmbTskCooPN);
    io.Raw(r.dPosTskFltCooPN);
    io.Raw(r.dQuasStatPN);
    io.Raw(r.dIonoPN);
    io.Raw(r.dIonoIV);
    io.Raw(r.bUseDopplerInPos);
    return fnGap(7);
}

/// The line of the kinematic block; the older layout writes every tag but
/// the three a-priori ones. Numbers at the stream's precision.
template <class IO, class Self> void VisitRtkText(IO& io, Self& r)
{
    constexpr bool bHasAPriori = std::is_same<std::remove_const_t<Self>, SZelRtkCfg>::value;
    io.Tag("ProcOpt, ").Value(r.ulProcOpt).Tag(", SmoWin, ").template Wide<uint32_t>(r.unSmoothWindow);
    io.Tag(", MaxPredHpn, ").Value(r.dMaxPredHpn).Tag(", MaxPredSsr, ").Value(r.dMaxPredSsr);
    if constexpr (bHasAPriori)
    {
        io.Tag(", APrioriPosPredVarPosScaling, ").Value(r.dAPrioriPosPredVarPosScaling);
        io.Tag(", APrioriPosPredVarVelScaling, ").Value(r.dAPrioriPosPredVarVelScaling);
        io.Tag(", APrioriPosPredProcNoisePerSec, ").Value(r.dAPrioriPosPredProcNoisePerSec);
    }
    io.Tag(", NumRestBefAmbFix, ").template Wide<uint32_t>(r.ucNumRestBefAmbFix);
    io.Tag(", NumRestBefAmbFixStat, ").template Wide<uint32_t>(r.ucNumRestBefAmbFixStat);
    io.Tag(", FltLngthBitMask, ").Value(r.ulFltLngthBitMask);
    io.Tag(", FltLngthFstSrc, ").template Wide<int32_t>(r.nFltLngthFstSrc);
    io.Tag(", FltLngthSrcIntFix, ").template Wide<int32_t>(r.nFltLngthSrcIntFix);
    io.Tag(", FltLngthSrcInt, ").template Wide<int32_t>(r.nFltLngthSrcInt);
    io.Tag(", FltLngthResInt, ").template Wide<int32_t>(r.nFltLngthResInt);
    io.Tag(", MaxAlphSrc, ").Value(r.dMaxAlphSrc).Tag(", MaxAlphRes, ").Value(r.dMaxAlphRes);
    io.Tag(", PosTskCooPN, ").Value(r.dPosTskCooPN).Tag(", PosTskAmbPN, ").Value(r.dPosTskAmbPN);
    io.Tag(", AmbTskCooPN, ").Value(r.dAmbTskCooPN).Tag(", PosTskFltCooPN, ").Value(r.dPosTskFltCooPN);
    io.Tag(", QuasStatPN, ").Value(r.dQuasStatPN).Tag(", IonoPN, ").Value(r.dIonoPN);
    io.Tag(", IonoIV, ").Value(r.dIonoIV);
    io.Tag(", UseDoppInPos, ").template Wide<int32_t>(r.bUseDopplerInPos);
}
} // namespace ZelCfgIo

/// The real-time kinematic options. Its own image is packed, 133 bytes:
/// ulProcOpt 0, unSmoothWindow 4, the five doubles from 6, the two counts at
/// 46 and 47, ulFltLngthBitMask 48, the four filter lengths from 52, the
/// nine doubles from 60, bUseDopplerInPos 132. Inside SZelProcCfg it is a raw
/// block of 144 bytes: ulProcOpt 0, unSmoothWindow 4, doubles from 8, counts
/// 48 and 49, ulFltLngthBitMask 52, filter lengths from 56, doubles from 64,
/// bUseDopplerInPos 136; bytes 6, 7, 50, 51 and 137 to 143 reserved.
/// The noise values and limits are in the engine's units.
struct ZELTYPES_API SZelRtkCfg
{
    uint32_t ulProcOpt = 0;                      ///< processing options; the engine's bit set
    uint16_t unSmoothWindow = 0;                 ///< smoothing window, epochs
    double dMaxPredHpn = 15000.01;               ///< longest prediction of high-precision corrections
    double dMaxPredSsr = 600001.01;              ///< longest prediction of state-space corrections
    double dAPrioriPosPredVarPosScaling = 1.0;   ///< scale of the predicted position variance
    double dAPrioriPosPredVarVelScaling = 1.0;   ///< scale of the predicted velocity variance
    double dAPrioriPosPredProcNoisePerSec = 0.0; ///< process noise of the prediction, per second
    uint8_t ucNumRestBefAmbFix = 1;              ///< restarts before an ambiguity fix
    uint8_t ucNumRestBefAmbFixStat = 1;          ///< the same in static mode
    uint32_t ulFltLngthBitMask = 0;              ///< which filter lengths apply; the engine's bit set
    int16_t nFltLngthFstSrc = 1;                 ///< filter length of the first search, epochs
    int16_t nFltLngthSrcIntFix = 10;             ///< search interval after a fix, epochs
    int16_t nFltLngthSrcInt = 1;                 ///< search interval, epochs
    int16_t nFltLngthResInt = 30;                ///< reset interval, epochs
    double dMaxAlphSrc = 0.1;                    ///< significance level of the search
    double dMaxAlphRes = 0.1;                    ///< significance level of a reset
    double dPosTskCooPN = 1e20;                  ///< coordinate process noise of the position task
    double dPosTskAmbPN = 0.0;                   ///< ambiguity process noise of the position task
    double dAmbTskCooPN = 1e10;                  ///< coordinate process noise of the ambiguity task
    double dPosTskFltCooPN = 0.0;                ///< coordinate process noise of the float solution
    double dQuasStatPN = -1.0;                   ///< quasi-static process noise; -1.0 unset
    double dIonoPN = -1.0;                       ///< ionosphere process noise; -1.0 unset
    double dIonoIV = -1.0;                       ///< ionosphere initial variance; -1.0 unset
    bool bUseDopplerInPos = true;                ///< Doppler observations in the position

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return ZelCfgIo::VisitRtkFields(io, r, false);
    }
    /// The raw block that stands inside SZelProcCfg.
    template <class IO, class Self> static bool VisitBlock(IO& io, Self& r)
    {
        return ZelCfgIo::VisitRtkFields(io, r, true);
    }
    /// Text: every field behind its tag, numbers at the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r) { ZelCfgIo::VisitRtkText(io, r); }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// In field order; every double within 1e-14 relative.
ZELTYPES_API bool operator==(const SZelRtkCfg& a, const SZelRtkCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRtkCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRtkCfg& rCfg);

/// The older layout of the kinematic options: SZelRtkCfg without the three
/// a-priori fields, same defaults. Raw block of 120 bytes: ulProcOpt 0,
/// unSmoothWindow 4, doubles at 8 and 16, counts 24 and 25,
/// ulFltLngthBitMask 28, filter lengths from 32, doubles from 40,
/// bUseDopplerInPos 112; bytes 6, 7, 26, 27 and 113 to 119 reserved.
struct ZELTYPES_API SZelRtkCfgV1
{
    uint32_t ulProcOpt = 0;             ///< processing options; the engine's bit set
    uint16_t unSmoothWindow = 0;        ///< smoothing window, epochs
    double dMaxPredHpn = 15000.01;      ///< longest prediction of high-precision corrections
    double dMaxPredSsr = 600001.01;     ///< longest prediction of state-space corrections
    uint8_t ucNumRestBefAmbFix = 1;     ///< restarts before an ambiguity fix
    uint8_t ucNumRestBefAmbFixStat = 1; ///< the same in static mode
    uint32_t ulFltLngthBitMask = 0;     ///< which filter lengths apply; the engine's bit set
    int16_t nFltLngthFstSrc = 1;        ///< filter length of the first search, epochs
    int16_t nFltLngthSrcIntFix = 10;    ///< search interval after a fix, epochs
    int16_t nFltLngthSrcInt = 1;        ///< search interval, epochs
    int16_t nFltLngthResInt = 30;       ///< reset interval, epochs
    double dMaxAlphSrc = 0.1;           ///< significance level of the search
    double dMaxAlphRes = 0.1;           ///< significance level of a reset
    double dPosTskCooPN = 1e20;         ///< coordinate process noise of the position task
    double dPosTskAmbPN = 0.0;          ///< ambiguity process noise of the position task
    double dAmbTskCooPN = 1e10;         ///< coordinate process noise of the ambiguity task
    double dPosTskFltCooPN = 0.0;       ///< coordinate process noise of the float solution
    double dQuasStatPN = -1.0;          ///< quasi-static process noise; -1.0 unset
    double dIonoPN = -1.0;              ///< ionosphere process noise; -1.0 unset
    double dIonoIV = -1.0;              ///< ionosphere initial variance; -1.0 unset
    bool bUseDopplerInPos = true;       ///< Doppler observations in the position

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return ZelCfgIo::VisitRtkFields(io, r, true);
    }
    /// States the text line, tag words and values in order, for the text writer and reader.
    template <class IO, class Self> static void VisitText(IO& io, Self& r) { ZelCfgIo::VisitRtkText(io, r); }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// In field order; every double within 1e-14 relative.
ZELTYPES_API bool operator==(const SZelRtkCfgV1& a, const SZelRtkCfgV1& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRtkCfgV1& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRtkCfgV1& rCfg);

// ------------------------------------------------------------------ main record

/// The options of the engine. Raw block of 232 bytes: stGenCfg 0, stDiffCfg
/// 64, stRtkCfg 88 (the kinematic block's raw form).
struct ZELTYPES_API SZelProcCfg
{
    SZelGenCfg stGenCfg;   ///< general options
    SZelDiffCfg stDiffCfg; ///< differential options
    SZelRtkCfg stRtkCfg;   ///< real-time kinematic options

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Inline(r.stGenCfg);
        io.Inline(r.stDiffCfg);
        return SZelRtkCfg::VisitBlock(io, r.stRtkCfg);
    }
    /// Text: "GenCfg, " block ", DiffCfg, " block ", RtkCfg, " block; the
    /// general block leaves the stream scientific at 17 digits.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("GenCfg, ").Value(r.stGenCfg).Tag(", DiffCfg, ").Value(r.stDiffCfg);
        io.Tag(", RtkCfg, ").Value(r.stRtkCfg);
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

/// The three blocks in order, each by its own rule.
ZELTYPES_API bool operator==(const SZelProcCfg& a, const SZelProcCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelProcCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelProcCfg& rCfg);

/// The older layout of the options, with the older kinematic block. Raw
/// block of 208 bytes: stGenCfg 0, stDiffCfg 64, stRtkCfg 88.
struct ZELTYPES_API SZelProcCfgV1
{
    SZelGenCfg stGenCfg;   ///< general options
    SZelDiffCfg stDiffCfg; ///< differential options
    SZelRtkCfgV1 stRtkCfg; ///< real-time kinematic options, older layout

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Inline(r.stGenCfg) && io.Inline(r.stDiffCfg) && io.Inline(r.stRtkCfg);
    }
    /// Text: "GenCfg, " block ", DiffCfg, " block ", RtkCfg, " block.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("GenCfg, ").Value(r.stGenCfg).Tag(", DiffCfg, ").Value(r.stDiffCfg);
        io.Tag(", RtkCfg, ").Value(r.stRtkCfg);
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

/// The three blocks in order, each by its own rule.
ZELTYPES_API bool operator==(const SZelProcCfgV1& a, const SZelProcCfgV1& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelProcCfgV1& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelProcCfgV1& rCfg);

/// Turns the older layout into the present one: every shared field is
/// copied, the scalings of the predicted variances become 1.0 and the process
/// noise of the prediction 0.0.
ZELTYPES_API void UpgradeProcCfg(const SZelProcCfgV1& rstOld, SZelProcCfg& rstNew);

// ------------------------------------------------------------------ network cell, reference data

/// Use of a network cell. Raw block of 32 bytes: dMaxAge 0, bPolygonCheck 8,
/// dMaxDistance 16, dBufferWidth 24; bytes 9 to 15 reserved.
struct ZELTYPES_API SZelMacCfg
{
    double dMaxAge = 181.0;    ///< oldest corrections used; unit set by the engine
    bool bPolygonCheck = true; ///< test that the rover is inside the network's polygon
    double dMaxDistance = 0.0; ///< farthest distance from the network; unit set by the engine
    double dBufferWidth = 0.0; ///< width of the band around the polygon; unit set by the engine

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.dMaxAge);
        io.Raw(r.bPolygonCheck);
        io.Reserved(7);
        io.Raw(r.dMaxDistance);
        return io.Raw(r.dBufferWidth);
    }
    /// Text: "MaxAge, " ", PolygChk, " ", MaxDist, " ", BuffWd, ", each with
    /// its value; doubles at the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("MaxAge, ").Value(r.dMaxAge).Tag(", PolygChk, ").template Wide<int32_t>(r.bPolygonCheck);
        io.Tag(", MaxDist, ").Value(r.dMaxDistance).Tag(", BuffWd, ").Value(r.dBufferWidth);
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

/// In field order; the three doubles within 1e-14 relative.
ZELTYPES_API bool operator==(const SZelMacCfg& a, const SZelMacCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelMacCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelMacCfg& rCfg);

/// Reference data. Raw block of 56 bytes: bRefAvailable 0, lNetType 4,
/// bAmbSource 8, lSystemFix 12, bNewAR 16, stMacCfg 24; bytes 1 to 3, 9 to
/// 11 and 17 to 23 reserved.
struct ZELTYPES_API SZelRefCfg
{
    bool bRefAvailable = false; ///< reference data are at hand
    int32_t lNetType = 0;       ///< network type, numbered as EZelNetType
    bool bAmbSource = true;     ///< ambiguities come from the reference
    int32_t lSystemFix = 0;     ///< systems whose ambiguities are fixed; the engine's numbering
    bool bNewAR = false;        ///< the newer ambiguity resolution
    SZelMacCfg stMacCfg;        ///< use of a network cell

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.bRefAvailable);
        io.Reserved(3);
        io.Raw(r.lNetType);
        io.Raw(r.bAmbSource);
        io.Reserved(3);
        io.Raw(r.lSystemFix);
        io.Raw(r.bNewAR);
        io.Reserved(7);
        return io.Inline(r.stMacCfg);
    }
    /// Text: "RefAvl, " ", NetTyp, " ", AmbSrc, " ", SysFix, " ", NewAR, "
    /// each with its number, then ", MacCfg, " and the cell's line.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("RefAvl, ").template Wide<int32_t>(r.bRefAvailable).Tag(", NetTyp, ").Value(r.lNetType);
        io.Tag(", AmbSrc, ").template Wide<int32_t>(r.bAmbSource).Tag(", SysFix, ").Value(r.lSystemFix);
        io.Tag(", NewAR, ").template Wide<int32_t>(r.bNewAR).Tag(", MacCfg, ").Value(r.stMacCfg);
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

/// In field order, the cell by its own rule.
ZELTYPES_API bool operator==(const SZelRefCfg& a, const SZelRefCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRefCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRefCfg& rCfg);

// ------------------------------------------------------------------ network handling

/// How a network's corrections are used; 32 bits in images.
enum EZelNetMode : int32_t
{
    ZELNETMODE_INVALID = -1, ///< text "Invalid"; also what the reader gives for an unknown word
    ZELNETMODE_NONE = 0,     ///< no network corrections; text "None"
    ZELNETMODE_MAC = 1,      ///< a network cell's corrections
    ZELNETMODE_SSR = 2       ///< state-space corrections
};

/// Words of the text form, indexed by value; anything else is "Invalid".
constexpr const char* c_aszNetModeWords[] = {"None", "MAC", "SSR"};
/// Number of words in c_aszNetModeWords.
constexpr size_t c_ulNbNetModeWords = 3;

/// The word of a network mode; "Invalid" for a value outside the table.
ZELTYPES_API const char* ToNetModeWord(EZelNetMode eNetMode);
/// One token, one trailing comma cut off; an unknown word gives ZELNETMODE_INVALID.
ZELTYPES_API EZelNetMode ReadNetModeWord(std::istream& is);

/// Network handling. Raw block of 104 bytes: eNetType 0, eNetMode 4,
/// lRequestFlags 8, bCreatePredCoeff 12, lMinGps 16, lMinGlo 20, lMinOther
/// 24, bCodeCorr 28, bImmediateDropback 29, bImmediateDistDropback 30,
/// bDropbackSB 31, bDropbackClSB 32, dMinDistMaster 40, dSatAvailTimeout 48,
/// bFallforwardToNet 56, bImmediateFallforward 57, stMacCfg 64; bytes 13 to
/// 15, 33 to 39, 58 to 63 and 96 to 103 reserved.
struct ZELTYPES_API SZelNetCfg
{
    EZelNetType eNetType = ZELNETTYPE_NONE; ///< kind of network
    EZelNetMode eNetMode = ZELNETMODE_NONE; ///< how its corrections are used
    int32_t lRequestFlags = 0;              ///< what is requested from the network; the engine's bit set
    bool bCreatePredCoeff = false;          ///< create prediction coefficients
    int32_t lMinGps = 5;                    ///< fewest GPS satellites
    int32_t lMinGlo = 2;                    ///< fewest GLONASS satellites
    int32_t lMinOther = 2;                  ///< fewest satellites of the other systems
    bool bCodeCorr = false;                 ///< code corrections
    bool bImmediateDropback = false;        ///< drop back at once
    bool bImmediateDistDropback = false;    ///< drop back at once on distance
    bool bDropbackSB = false;               ///< drop back to a single base
    bool bDropbackClSB = false;             ///< drop back to the closest single base
    /// shortest distance to the master station; unit set by the engine
    double dMinDistMaster = 3000.0;
    /// time-out of a satellite's availability; unit set by the engine
    double dSatAvailTimeout = 180.0;
    bool bFallforwardToNet = false;     ///< go forward to the network again
    bool bImmediateFallforward = false; ///< go forward at once
    SZelMacCfg stMacCfg;                ///< use of a network cell

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.eNetType);
        io.Raw(r.eNetMode);
        io.Raw(r.lRequestFlags);
        io.Raw(r.bCreatePredCoeff);
        io.Reserved(3);
        io.Raw(r.lMinGps);
        io.Raw(r.lMinGlo);
        io.Raw(r.lMinOther);
        io.Raw(r.bCodeCorr);
        io.Raw(r.bImmediateDropback);
        io.Raw(r.bImmediateDistDropback);
        io.Raw(r.bDropbackSB);
        io.Raw(r.bDropbackClSB);
        io.Reserved(7);
        io.Raw(r.dMinDistMaster);
        io.Raw(r.dSatAvailTimeout);
        io.Raw(r.bFallforwardToNet);
        io.Raw(r.bImmediateFallforward);
        io.Reserved(6);
        io.Inline(r.stMacCfg);
        return io.Reserved(8);
    }
    /// Text: the two kinds as words (each swallows its comma), then the
    /// fields behind their tags, ", MacCfg, " and the cell's line.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("NetTyp, ").Word(r.eNetType, c_aszNetTypeWords, "Invalid", ZELNETTYPE_INVALID);
        io.Tag(", NetMod, ").Word(r.eNetMode, c_aszNetModeWords, "Invalid", ZELNETMODE_INVALID);
        io.Tag(", ReqFlgs, ").Value(r.lRequestFlags);
        io.Tag(", CrePrdCoeff, ").template Wide<int32_t>(r.bCreatePredCoeff);
        io.Tag(", MinGps, ").Value(r.lMinGps).Tag(", MinGlo, ").Value(r.lMinGlo);
        io.Tag(", MinOth, ").Value(r.lMinOther).Tag(", CodeCorr, ").template Wide<int32_t>(r.bCodeCorr);
        io.Tag(", ImmDrpbk, ").template Wide<int32_t>(r.bImmediateDropback);
        io.Tag(", ImmDistDrpbk, ").template Wide<int32_t>(r.bImmediateDistDropback);
        io.Tag(", DrpbkSB, ").template Wide<int32_t>(r.bDropbackSB);
        io.Tag(", DrpbkClSB, ").template Wide<int32_t>(r.bDropbackClSB);
        io.Tag(", MinDistMst, ").Value(r.dMinDistMaster).Tag(", SatAvlTout, ").Value(r.dSatAvailTimeout);
        io.Tag(", FllfwdToNet, ").template Wide<int32_t>(r.bFallforwardToNet);
        io.Tag(", ImmFllfwd, ").template Wide<int32_t>(r.bImmediateFallforward);
        io.Tag(", MacCfg, ").Value(r.stMacCfg);
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

/// In field order; dMinDistMaster and dSatAvailTimeout within 1e-14 relative,
/// the cell by its own rule.
ZELTYPES_API bool operator==(const SZelNetCfg& a, const SZelNetCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNetCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNetCfg& rCfg);

// ------------------------------------------------------------------ own station

/// The own station. Image, 88 bytes: lMode 0, lTimeOutMs 4, then the
/// position as it stands in memory (80 bytes): kind at 8, availability at
/// 12, the triplet's system at 16 and its values at 24, 32 and 40, the
/// quality at 48 (system, fMo, fMoUnscaled, the six values), bNonPhysical at
/// 84; bytes 13 to 15, 20 to 23 and 85 to 87 reserved.
struct ZELTYPES_API SZelStationCfg
{
    int32_t lMode = 0;            ///< use of the station; the engine's numbering
    int32_t lTimeOutMs = 0;       ///< time-out, milliseconds
    SZelPosition stStationCoords; ///< the station's position (units by the triplet's type)

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        auto& rPos = r.stStationCoords;
        io.Raw(r.lMode);
        io.Raw(r.lTimeOutMs);
        io.Raw(rPos.eCoordType);
        io.Raw(rPos.ucAvail);
        io.Reserved(3);
        io.Raw(rPos.stPos.ecoordinatesystem);
        io.Reserved(4);
        io.Raw(rPos.stPos.dCoord1);
        io.Raw(rPos.stPos.dCoord2);
        io.Raw(rPos.stPos.dCoord3);
        io.Raw(rPos.stPosQ.eCoordSystem);
        io.Raw(rPos.stPosQ.fMo);
        io.Raw(rPos.stPosQ.fMoUnscaled);
        io.Raw(rPos.stPosQ.afQ);
        io.Raw(rPos.bNonPhysical);
        return io.Reserved(3);
    }
    /// Text: "Mode, " ", TimeOutMs, " numbers, ", StnCoo, " and the position's line.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Mode, ").Value(r.lMode).Tag(", TimeOutMs, ").Value(r.lTimeOutMs);
        io.Tag(", StnCoo, ").Value(r.stStationCoords);
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

/// The two numbers, then the position by its own rule.
ZELTYPES_API bool operator==(const SZelStationCfg& a, const SZelStationCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelStationCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelStationCfg& rCfg);

// ------------------------------------------------------------------ receiver and antenna

/// Receiver and antenna behind a handle. Image: ulRtHandle 0, lRecType 4,
/// the antenna's own image from 8; 8 + the antenna's size. The bounds test
/// looks at the record at hand (the count is cleared after it).
struct ZELTYPES_API SZelRecAntCfg
{
    uint32_t ulRtHandle = 0;   ///< the stream's number
    int32_t lRecType = 0;      ///< receiver type; the engine's numbering
    SZelAntennaInfo stAntInfo; ///< the antenna

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ulRtHandle) && io.Raw(r.lRecType) && io.Record(r.stAntInfo);
    }
    /// Text: "RtHnd, " ", RecTyp, " numbers, ", AntInfo, " and the antenna's line.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("RtHnd, ").Value(r.ulRtHandle).Tag(", RecTyp, ").Value(r.lRecType);
        io.Tag(", AntInfo, ").Value(r.stAntInfo);
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

/// The two numbers exactly, then the antenna by its own rule.
ZELTYPES_API bool operator==(const SZelRecAntCfg& a, const SZelRecAntCfg& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRecAntCfg& rCfg);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRecAntCfg& rCfg);

// ------------------------------------------------------------------ real-time handles

/// The handle of a real-time data stream. Image, 4 bytes; no text form.
struct ZELTYPES_API SZelRtHandle
{
    uint32_t ulRtHandle = 0; ///< the stream's number

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r) { return io.Raw(r.ulRtHandle); }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Exactly.
ZELTYPES_API bool operator==(const SZelRtHandle& a, const SZelRtHandle& b);

/// Code biases of the receiver behind a handle. Raw block of 48 bytes:
/// ulRtHandle 0, ulIncluded 4, bApply 8, dL1CA 16, dL1P 24, dL2C 32, dL2P
/// 40; bytes 9 to 15 reserved. The biases are in the producer's unit (the
/// library never scales them).
struct ZELTYPES_API SZelRtHandleBias
{
    uint32_t ulRtHandle = 0; ///< the stream's number
    uint32_t ulIncluded = 0; ///< which biases are held; the producer's bit set
    bool bApply = false;     ///< apply the biases
    double dL1CA = 0.0;      ///< bias of the L1 C/A code
    double dL1P = 0.0;       ///< bias of the L1 P code
    double dL2C = 0.0;       ///< bias of the L2C code
    double dL2P = 0.0;       ///< bias of the L2 P code

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ulRtHandle);
        io.Raw(r.ulIncluded);
        io.Raw(r.bApply);
        io.Reserved(7);
        io.Raw(r.dL1CA);
        io.Raw(r.dL1P);
        io.Raw(r.dL2C);
        return io.Raw(r.dL2P);
    }
    /// Text: "RtHnd, " ", Incl, " ", Appl, " ", L1CA, " ", L1P, " ", L2C, "
    /// ", L2P, " each with its value; doubles at the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("RtHnd, ").Value(r.ulRtHandle).Tag(", Incl, ").Value(r.ulIncluded);
        io.Tag(", Appl, ").template Wide<int32_t>(r.bApply).Tag(", L1CA, ").Value(r.dL1CA);
        io.Tag(", L1P, ").Value(r.dL1P).Tag(", L2C, ").Value(r.dL2C).Tag(", L2P, ").Value(r.dL2P);
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

/// Every field exactly, the four biases included (a NaN is unequal to itself).
ZELTYPES_API bool operator==(const SZelRtHandleBias& a, const SZelRtHandleBias& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRtHandleBias& rBias);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRtHandleBias& rBias);

/// The coordinates of the station behind a handle. Raw block of 40 bytes:
/// ulRtHandle 0, adCoords 8, bNonPhysical 32, bValid 33; bytes 4 to 7 and
/// 34 to 39 reserved.
struct ZELTYPES_API SZelRtHandleCoords
{
    uint32_t ulRtHandle = 0;              ///< the stream's number
    double adCoords[3] = {0.0, 0.0, 0.0}; ///< X, Y, Z in metres, earth-centred, earth-fixed
    bool bNonPhysical = false;            ///< not a physical point (a computed reference)
    bool bValid = false;                  ///< the coordinates are set

    /// States the byte image field by field, in image order, for the binary writer, reader and sizer.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ulRtHandle);
        io.Reserved(4);
        io.Raw(r.adCoords);
        io.Raw(r.bNonPhysical);
        io.Raw(r.bValid);
        return io.Reserved(6);
    }
    /// Text: "RtHnd, " number ", Coords, " the three values as a triplet
    /// writes its coordinates (12 digits, which stay set on the stream),
    /// ", NonPhys, " and ", Vld, " 0 or 1.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("RtHnd, ").Value(r.ulRtHandle).Tag(", Coords, ").Precision(12).Array(r.adCoords);
        io.Tag(", NonPhys, ").template Wide<int32_t>(r.bNonPhysical);
        io.Tag(", Vld, ").template Wide<int32_t>(r.bValid);
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

/// Every field exactly (a NaN is unequal to itself).
ZELTYPES_API bool operator==(const SZelRtHandleCoords& a, const SZelRtHandleCoords& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelRtHandleCoords& rCoords);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelRtHandleCoords& rCoords);

} // namespace ZELN

#endif
