#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHBASE_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHBASE_H

/// \file
/// Root of the broadcast ephemeris family: the running satellite numbering,
/// the validity span result, the abstract interface of every ephemeris and
/// the Keplerian block shared by the Keplerian classes.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>

namespace ZELN
{

/// One running 8-bit number space for all systems: a number says its system.
/// These are no global satellite numbers.
constexpr uint8_t POS_MAX_PRN_GPS = 32;
/// Running number just below the first Galileo satellite.
constexpr uint8_t POS_OFFSET_PRN_GAL = 56;
/// Running number just below the first BeiDou satellite.
constexpr uint8_t POS_OFFSET_PRN_BDS = 92;
/// Running number just below the first QZSS satellite.
constexpr uint8_t POS_OFFSET_PRN_QZSS = 155;
/// Running number just below the first SBAS satellite.
constexpr uint8_t POS_OFFSET_PRN_SBAS = 165;
/// Running number just below the first NavIC satellite.
constexpr uint8_t POS_OFFSET_PRN_NAVIC = 185;

/// Galileo source value of a record that holds no set.
constexpr uint8_t POS_SAT_EPH_GAL_SRC_INVALID = 0;

/// Where a time lies against the validity span of an ephemeris (checkValidity).
enum EZelEphValidity
{
    ZELEPHVALIDITY_VALID = 0,         ///< inside the span
    ZELEPHVALIDITY_EXPIRED = 1,       ///< the time lies after the span
    ZELEPHVALIDITY_NOT_YET_VALID = 2, ///< the time lies before the span
    ZELEPHVALIDITY_NO_SPAN = 5        ///< the system has no span
};

/// The family's one assignment of broadcast elements to the Keplerian block.
/// Indices 6 to 8 are the rates, compared more coarsely.
enum EZelEphKeplerIndex
{
    ZELEPHKEPLER_M0 = 0,       ///< mean anomaly at reference time
    ZELEPHKEPLER_ECC = 1,      ///< eccentricity
    ZELEPHKEPLER_SQRTA = 2,    ///< square root of the semi-major axis
    ZELEPHKEPLER_OMEGA0 = 3,   ///< longitude of ascending node at weekly epoch
    ZELEPHKEPLER_I0 = 4,       ///< inclination at reference time
    ZELEPHKEPLER_OMEGA = 5,    ///< argument of perigee
    ZELEPHKEPLER_DELTAN = 6,   ///< mean motion difference
    ZELEPHKEPLER_OMEGADOT = 7, ///< rate of right ascension
    ZELEPHKEPLER_IDOT = 8,     ///< rate of inclination
    ZELEPHKEPLER_COUNT = 9
};

/// Index of each harmonic correction term in the Keplerian block (Cuc, Cus, Crc, Crs, Cic, Cis).
enum EZelEphHarmonicIndex
{
    ZELEPHHARMONIC_CUC = 0,
    ZELEPHHARMONIC_CUS = 1,
    ZELEPHHARMONIC_CRC = 2,
    ZELEPHHARMONIC_CRS = 3,
    ZELEPHHARMONIC_CIC = 4,
    ZELEPHHARMONIC_CIS = 5,
    ZELEPHHARMONIC_COUNT = 6
};

/// Order of the clock polynomial terms wherever a class holds them as an array.
enum EZelEphClockIndex
{
    ZELEPHCLOCK_AF0 = 0,
    ZELEPHCLOCK_AF1 = 1,
    ZELEPHCLOCK_AF2 = 2
};

/// Abstract interface of every ephemeris. The slot order is part of the
/// exported interface: do not reorder.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_BASE
{
public:
    /// Destroys the object.
    virtual ~ZELX_SAT_EPHEMERIS_BASE();
    /// Stored satellite number in the family's running 8-bit numbering (not the global number).
    virtual uint8_t getSvId() const = 0;
    /// Satellite of the set, as system and number within the system.
    virtual SZelSatID getSatId() const = 0;
    /// Time of ephemeris.
    virtual SMjdTime getToe() const = 0;
    /// Issue of data of the set.
    virtual uint32_t getIod() const = 0;
    /// True when the broadcast health says the satellite is usable.
    virtual bool isHealthy() const = 0;
    /// Running number just below this system's first satellite.
    virtual uint8_t getPrnOffset() const = 0;
    /// PRN of this system's first satellite.
    virtual uint8_t getFirstPrn() const = 0;

    /// 8-bit arithmetic throughout: a number under the offset wraps.
    uint8_t getSatIndex() const { return static_cast<uint8_t>(getSvId() - getPrnOffset() - 1); }
    /// Number within the system counting from 1: getSvId() - getPrnOffset(), in 8 bits.
    uint8_t getSatNumber() const { return static_cast<uint8_t>(getSvId() - getPrnOffset()); }
    /// PRN of the satellite: getSvId() - getPrnOffset() - 1 + getFirstPrn(), in 8 bits.
    uint8_t getPrn() const { return static_cast<uint8_t>(getSvId() - getPrnOffset() - 1 + getFirstPrn()); }

    /// The span of a system with a margin of 60 seconds.
    static EZelEphValidity checkValidity(EZelSatSystem eSatSystem, const SMjdTime& stTime,
                                         const SMjdTime& stToe);

protected:
    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_EPHEMERIS_BASE() = default;
    /// Copies another object.
    ZELX_SAT_EPHEMERIS_BASE(const ZELX_SAT_EPHEMERIS_BASE&) = default;
    /// Copies another object into this one.
    ZELX_SAT_EPHEMERIS_BASE& operator=(const ZELX_SAT_EPHEMERIS_BASE&) = default;

    /// stTime - stToe in seconds against [lLower, lUpper]; a limit itself lies inside.
    static EZelEphValidity checkSpan(const SMjdTime& stTime, const SMjdTime& stToe, int32_t lUpper,
                                     int32_t lLower);

    /// Limits of a class form, formed in 32 bits: upper = ulSpan + m, lower = -ulSpanBack - m.
    static EZelEphValidity checkSpanMargin(const SMjdTime& stTime, const SMjdTime& stToe, uint32_t ulSpan,
                                           uint32_t ulSpanBack, uint32_t ulMarginSeconds);
};

/// Accuracy index to metres and back for the classes that hold metres
/// (BeiDou, NavIC).
ZELTYPES_API float ConvUraIndexToMetres(uint8_t ucIndex);
/// Accuracy in metres to its accuracy index.
ZELTYPES_API uint8_t ConvUraMetresToIndex(float fMetres);

/// The Keplerian block: carried and compared, never evaluated. A decoder puts
/// each broadcast element at its EZelEphKeplerIndex and each harmonic term at
/// its EZelEphHarmonicIndex, in the unit it chooses: the library stores,
/// compares and writes them and never scales them (getA squares the root of
/// the semi-major axis, so a root of metres gives metres).
class ZELTYPES_API ZELX_SAT_EPHEMERIS_COMMON
{
public:
    double adKepler[ZELEPHKEPLER_COUNT] = {};     ///< by EZelEphKeplerIndex; producer's units
    float afHarmonics[ZELEPHHARMONIC_COUNT] = {}; ///< by EZelEphHarmonicIndex; producer's units

    /// Destroys the object.
    virtual ~ZELX_SAT_EPHEMERIS_COMMON();
    /// Zeroes the block. Each class that holds the block resets its own
    /// fields as well in its override; PARAMS has none and keeps its two values.
    virtual void clear();

    /// Square root of the semi-major axis, in the producer's unit.
    double getSqrtA() const { return adKepler[ZELEPHKEPLER_SQRTA]; }
    /// Semi-major axis: the square of getSqrtA().
    double getA() const { return adKepler[ZELEPHKEPLER_SQRTA] * adKepler[ZELEPHKEPLER_SQRTA]; }

    /// An index outside the block would write past it: reported, nothing stored.
    void setKepler(size_t ulIndex, double dValue);
    /// Sets one harmonic term by EZelEphHarmonicIndex; an index outside the block is reported and nothing
    /// stored.
    void setHarmonic(size_t ulIndex, float fValue);
    /// Sets the square root of the semi-major axis.
    void setSqrtA(double dSqrtA) { adKepler[ZELEPHKEPLER_SQRTA] = dSqrtA; }

    /// Image, 96 bytes: adKepler, then afHarmonics.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.adKepler) && io.Raw(r.afHarmonics);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes), version byte first where the record has
    /// one; false on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); false on a null buffer, on an image of
    /// another version, and on a short buffer where the record tests the length first.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

/// Indices 0 to 5 at 1e-14, the rates 6 to 8 at 1e-6, the harmonics at 1e-6 (32 bits).
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_COMMON& a, const ZELX_SAT_EPHEMERIS_COMMON& b);

/// The block with two further values, stored and compared only; no binary
/// form. clear() keeps the two.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_PARAMS : public ZELX_SAT_EPHEMERIS_COMMON
{
public:
    // Zero rather than undetermined: a copy of an undetermined value is not
    // defined behaviour.

    /// A further broadcast byte, stored and compared exactly.
    uint8_t ucAux1 = 0;
    /// A further broadcast value, stored and compared at 1e-14.
    double dAux2 = 0.0;

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_PARAMS() override;

    /// The further broadcast byte.
    uint8_t getAux1() const { return ucAux1; }
    /// The further broadcast value.
    double getAux2() const { return dAux2; }
    /// Sets the further broadcast byte.
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    /// Sets the further broadcast value.
    void setAux2(double dValue) { dAux2 = dValue; }
};

/// The block, then ucAux1 exactly and dAux2 at 1e-14.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_PARAMS& a, const ZELX_SAT_EPHEMERIS_PARAMS& b);

} // namespace ZELN

#endif
