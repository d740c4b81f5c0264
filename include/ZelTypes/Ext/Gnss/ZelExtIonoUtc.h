#ifndef ZELTYPES_EXT_GNSS_ZELEXTIONOUTC_H
#define ZELTYPES_EXT_GNSS_ZELEXTIONOUTC_H

/// \file
/// System-wide broadcast data beside the ephemerides: the offset of a
/// system's time to UTC with its leap seconds, the offsets to other systems'
/// time, the ionosphere coefficients, and the rules by which a new record
/// replaces a held one. The leap-second table comes from the platform's time
/// library. The Aux fields are the decoders' words, with no unit of the
/// library's: stored, and compared where an equality names them.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelTypesKlob.h>
#include <ZelTypes/Core/Common/mjdTime.h>
#include <ZelTypes/Platform/OmtTime.h>

#include <cstdint>

namespace ZELN
{

/// Leap seconds and the polynomial of a system's time against UTC.
class ZELTYPES_API ZELX_LEAPSEC_UTC
{
public:
    int8_t iDeltaTls = -1;    ///< leap seconds in force, s; -1 when unknown
    int8_t iDeltaTlsf = -1;   ///< leap seconds from EffectivityTime on, s; -1 when none is announced
    SMjdTime EffectivityTime; ///< when iDeltaTlsf takes effect; default when none is announced
    double dA0 = 0.0;         ///< offset of the system's time to UTC at UTCRefTime, s
    double dA1 = 0.0;         ///< its drift, s/s
    SMjdTime UTCRefTime;      ///< reference time of dA0 and dA1; default when they are not known

    /// Constructs the default state (for a record: holding no data).
    ZELX_LEAPSEC_UTC() = default;
    /// Copies another object.
    ZELX_LEAPSEC_UTC(const ZELX_LEAPSEC_UTC&) = default;
    /// Copies another object into this one.
    ZELX_LEAPSEC_UTC& operator=(const ZELX_LEAPSEC_UTC&) = default;
    /// Destroys the object.
    virtual ~ZELX_LEAPSEC_UTC();

    /// Reports a broken invariant; true when iDeltaTls is positive.
    virtual bool isValid() const;
    /// Resets the record to its default state.
    virtual void clear();
    /// Takes the fields of this class from rOther.
    virtual void assign(const ZELX_LEAPSEC_UTC& rOther);

    /// iDeltaTls, iDeltaTlsf and EffectivityTime from the time library; a
    /// failed query leaves 18 s, 18 s and GPS week 1929, day 7.
    void loadFromTimeLibrary();

    /// The time library's record for the time system the caller put in
    /// rstInfo; for BeiDou time (8) the counts and the event are turned into
    /// BeiDou terms. True when the record holds an event; a failed query
    /// zeroes the record and gives false.
    static bool getLeapSecondInfo(TYR::TIM::utcLeapSecond& rstInfo);
};

/// Counts exactly, times by their tolerant equality, dA0 and dA1 at a relative 1e-14.
ZELTYPES_API bool operator==(const ZELX_LEAPSEC_UTC& a, const ZELX_LEAPSEC_UTC& b);

/// The BeiDou time parameters: the UTC part and the offsets to other systems.
class ZELTYPES_API ZELX_CLOCK_BEIDOU : public ZELX_LEAPSEC_UTC
{
public:
    double adGnssOffset[6] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0}; ///< pairs of offset (s) and drift (s/s):
                                                             ///< GPS at 0 and 1, then two further systems
    /// A further broadcast byte, carried and compared.
    uint8_t ucAux1 = 0;
    double dAux2 = 0.0; ///< carried and compared only

    /// Constructs the default state (for a record: holding no data).
    ZELX_CLOCK_BEIDOU() = default;
    /// Copies another object.
    ZELX_CLOCK_BEIDOU(const ZELX_CLOCK_BEIDOU&) = default;
    /// Copies another object into this one.
    ZELX_CLOCK_BEIDOU& operator=(const ZELX_CLOCK_BEIDOU&) = default;
    /// Destroys the object.
    ~ZELX_CLOCK_BEIDOU() override;
    /// Resets the record to its default state.
    void clear() override;

    /// GPS time against UTC from the BeiDou parameters: s and s/s.
    double getGpsUtcA0() const { return dA0 - adGnssOffset[0]; }
    /// GPS time against UTC from the BeiDou parameters: drift, s/s.
    double getGpsUtcA1() const { return dA1 - adGnssOffset[1]; }
};

/// The base; the offsets and dAux2 at a relative 1e-14; ucAux1 exactly.
ZELTYPES_API bool operator==(const ZELX_CLOCK_BEIDOU& a, const ZELX_CLOCK_BEIDOU& b);

/// The Galileo time parameters: the UTC part and the offset to GPS time.
class ZELTYPES_API ZELX_SAT_CLOCK_GALILEO : public ZELX_LEAPSEC_UTC
{
public:
    /// A further broadcast word, carried only.
    uint32_t ulAux1 = 0;
    /// A further broadcast word, carried only.
    uint32_t ulAux2 = 0;
    /// A further broadcast byte, carried and compared.
    uint8_t ucAux3 = 0;
    double dA0G = 0.0; ///< Galileo time minus GPS time at stT0G, s
    double dA1G = 0.0; ///< its drift, s/s
    SMjdTime stT0G;    ///< reference time of dA0G and dA1G

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_CLOCK_GALILEO() = default;
    /// Copies another object.
    ZELX_SAT_CLOCK_GALILEO(const ZELX_SAT_CLOCK_GALILEO&) = default;
    /// Copies another object into this one.
    ZELX_SAT_CLOCK_GALILEO& operator=(const ZELX_SAT_CLOCK_GALILEO&) = default;
    /// Destroys the object.
    ~ZELX_SAT_CLOCK_GALILEO() override;
    /// Resets the record to its default state.
    void clear() override;
};

/// The base; dA0G and dA1G at a relative 1e-14; ucAux3 exactly; stT0G equal.
ZELTYPES_API bool operator==(const ZELX_SAT_CLOCK_GALILEO& a, const ZELX_SAT_CLOCK_GALILEO& b);

/// The offset of NavIC time to another system's time.
struct ZELTYPES_API SZelNavicTimeOffset
{
    /// Value of ulGnssId in an empty entry.
    static constexpr uint32_t c_ulGNSS_ID_EMPTY = 8;

    uint32_t ulGnssId = c_ulGNSS_ID_EMPTY; ///< the other system: 0, 1, 2 or 7; 8 when empty
    double dA0 = 0.0;                      ///< offset at stRefTime, s
    double dA1 = 0.0;                      ///< drift, s/s
    double dA2 = 0.0;                      ///< drift rate, s/s^2
    SMjdTime stRefTime;                    ///< reference time of the polynomial

    /// True when the entry is not empty.
    bool isValid() const { return ulGnssId != c_ulGNSS_ID_EMPTY; }
};

/// The id exactly, the polynomial at a relative 1e-14, the time equal.
ZELTYPES_API bool operator==(const SZelNavicTimeOffset& a, const SZelNavicTimeOffset& b);

/// The NavIC time parameters: the UTC part and one offset per other system.
class ZELTYPES_API ZELX_SYSCLOCK_NAVIC : public ZELX_LEAPSEC_UTC
{
public:
    SZelNavicTimeOffset astOffsets[4]; ///< by getOffsetIndex of their id
    /// A further broadcast value, carried only.
    uint64_t ullAux1 = 0;
    /// A further broadcast value, carried and compared at 1e-14.
    double dAux2 = 0.0;
    /// A further broadcast value, carried and compared at 1e-14.
    double dAux3 = 0.0;
    /// A further broadcast byte, carried only.
    uint8_t ucAux4 = 0;

    /// Constructs the default state (for a record: holding no data).
    ZELX_SYSCLOCK_NAVIC() = default;
    /// Copies another object.
    ZELX_SYSCLOCK_NAVIC(const ZELX_SYSCLOCK_NAVIC&) = default;
    /// Copies another object into this one.
    ZELX_SYSCLOCK_NAVIC& operator=(const ZELX_SYSCLOCK_NAVIC&) = default;
    /// Destroys the object.
    ~ZELX_SYSCLOCK_NAVIC() override;
    /// Resets the record to its default state.
    void clear() override;

    /// 0, 1, 2 and 7 give the indices 0 to 3 and true; any other id reports
    /// "false", gives 8 and false.
    static bool getOffsetIndex(uint32_t ulGnssId, uint8_t& rucIndex);
    /// Stores the entry at the index of its id; an unknown id reports "false"
    /// and takes the last entry.
    void setOffset(const SZelNavicTimeOffset& rstOffset);
};

/// The base; dAux2 and dAux3 at a relative 1e-14; the four entries by the
/// bytes of their fields (times and values bit for bit).
ZELTYPES_API bool operator==(const ZELX_SYSCLOCK_NAVIC& a, const ZELX_SYSCLOCK_NAVIC& b);

/// Ionosphere coefficients with the UTC parameters of the same broadcast.
class ZELTYPES_API ZELX_IONO_UTC
{
public:
    /// Ionosphere coefficients of the broadcast.
    SZelKlobucharCoefficients stKlobuchar;
    /// UTC parameters of the broadcast.
    ZELX_LEAPSEC_UTC stLeapSec;

    /// Constructs the default state (for a record: holding no data).
    ZELX_IONO_UTC() = default;
    /// Copies another object.
    ZELX_IONO_UTC(const ZELX_IONO_UTC&) = default;
    /// Copies another object into this one.
    ZELX_IONO_UTC& operator=(const ZELX_IONO_UTC&) = default;
    /// Destroys the object.
    virtual ~ZELX_IONO_UTC();
    /// Resets the record to its default state.
    virtual void clear();
};

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const ZELX_IONO_UTC& a, const ZELX_IONO_UTC& b);

/// The GPS and QZSS form, with three broadcast words beside.
class ZELTYPES_API ZELX_IONO_UTC_GPSQZSS : public ZELX_IONO_UTC
{
public:
    /// A further broadcast word, carried.
    uint16_t unAux1 = 0;
    /// A further broadcast word, carried.
    uint32_t ulAux2 = 0;
    /// A further broadcast byte, carried and compared.
    uint8_t ucAux3 = 0;

    /// Constructs the default state (for a record: holding no data).
    ZELX_IONO_UTC_GPSQZSS() = default;
    /// Copies another object.
    ZELX_IONO_UTC_GPSQZSS(const ZELX_IONO_UTC_GPSQZSS&) = default;
    /// Copies another object into this one.
    ZELX_IONO_UTC_GPSQZSS& operator=(const ZELX_IONO_UTC_GPSQZSS&) = default;
    /// Destroys the object.
    ~ZELX_IONO_UTC_GPSQZSS() override;
    /// Resets the record to its default state.
    void clear() override;
};

/// As ZELX_IONO_UTC, and ucAux3 exactly.
ZELTYPES_API bool operator==(const ZELX_IONO_UTC_GPSQZSS& a, const ZELX_IONO_UTC_GPSQZSS& b);

/// The BeiDou coefficients; the system of the coefficients is 5 by default.
class ZELTYPES_API ZELX_IONO_BEIDOU
{
public:
    /// Ionosphere coefficients of the broadcast.
    SZelKlobucharCoefficients stKlobuchar;
    /// A further broadcast word, carried.
    uint16_t unAux1 = 0;
    /// A further broadcast word, carried.
    uint32_t ulAux2 = 0;
    /// A further broadcast byte, carried.
    uint8_t ucAux3 = 0;

    /// Constructs the default state (for a record: holding no data).
    ZELX_IONO_BEIDOU();
    /// Copies another object.
    ZELX_IONO_BEIDOU(const ZELX_IONO_BEIDOU&) = default;
    /// Copies another object into this one.
    ZELX_IONO_BEIDOU& operator=(const ZELX_IONO_BEIDOU&) = default;
    /// Destroys the object.
    virtual ~ZELX_IONO_BEIDOU();
    /// Resets the record to its default state.
    void clear() { *this = ZELX_IONO_BEIDOU(); }
};

/// The coefficients alone.
ZELTYPES_API bool operator==(const ZELX_IONO_BEIDOU& a, const ZELX_IONO_BEIDOU& b);

/// The NavIC coefficients; the system of the coefficients is 7 by default.
class ZELTYPES_API ZELX_IONO_NAVIC
{
public:
    /// Ionosphere coefficients of the broadcast.
    SZelKlobucharCoefficients stKlobuchar;
    /// A further broadcast word, carried.
    uint16_t unAux1 = 0;
    /// A further broadcast word, carried.
    uint32_t ulAux2 = 0;
    /// A further broadcast byte, carried.
    uint8_t ucAux3 = 0;

    /// Constructs the default state (for a record: holding no data).
    ZELX_IONO_NAVIC();
    /// Copies another object.
    ZELX_IONO_NAVIC(const ZELX_IONO_NAVIC&) = default;
    /// Copies another object into this one.
    ZELX_IONO_NAVIC& operator=(const ZELX_IONO_NAVIC&) = default;
    /// Destroys the object.
    virtual ~ZELX_IONO_NAVIC();
    /// Resets the record to its default state.
    void clear() { *this = ZELX_IONO_NAVIC(); }
};

/// The coefficients alone.
ZELTYPES_API bool operator==(const ZELX_IONO_NAVIC& a, const ZELX_IONO_NAVIC& b);

/// The Galileo ionosphere words. The coefficient block is carried but holds
/// no part in the comparison.
class ZELTYPES_API ZELX_IONO_GALILEO
{
public:
    /// Ionosphere coefficients of the broadcast (not compared).
    SZelKlobucharCoefficients stKlobuchar;
    /// A further broadcast word, carried only.
    uint16_t unAux1 = 0;
    /// A further broadcast word, carried only.
    uint32_t ulAux2 = 0;
    /// A further broadcast byte, carried and compared.
    uint8_t ucAux3 = 0;
    /// A further broadcast byte, carried and compared.
    uint8_t ucAux4 = 0;
    /// A further broadcast word, carried and compared.
    uint16_t unAux5 = 0;
    /// A further broadcast word, carried and compared.
    uint16_t unAux6 = 0;
    /// A further broadcast word, carried and compared.
    uint16_t unAux7 = 0;
    /// A further broadcast byte, carried and compared.
    uint8_t ucAux8 = 0;

    /// Constructs the default state (for a record: holding no data).
    ZELX_IONO_GALILEO() = default;
    /// Copies another object.
    ZELX_IONO_GALILEO(const ZELX_IONO_GALILEO&) = default;
    /// Copies another object into this one.
    ZELX_IONO_GALILEO& operator=(const ZELX_IONO_GALILEO&) = default;
    /// Destroys the object.
    virtual ~ZELX_IONO_GALILEO();
    /// Resets the record to its default state.
    void clear() { *this = ZELX_IONO_GALILEO(); }
};

/// ucAux3, ucAux4, unAux5, unAux6, unAux7 and ucAux8, nothing else.
ZELTYPES_API bool operator==(const ZELX_IONO_GALILEO& a, const ZELX_IONO_GALILEO& b);

/// Update decisions: true when the new record is to replace the held one.
/// A report marks a broadcast that should not occur; the new record is taken.
ZELTYPES_API bool isNewLeapSecUtc(const ZELX_LEAPSEC_UTC& rLeapSecUTCCurrent,
                                  const ZELX_LEAPSEC_UTC& rLeapSecUTCNew);
/// BeiDou clock parameters: true when the UTC part is new, or an offset, dAux2 or ucAux1 differs.
ZELTYPES_API bool isNewClockBeiDou(const ZELX_CLOCK_BEIDOU& rClockCurrent,
                                   const ZELX_CLOCK_BEIDOU& rClockNew);
/// Galileo clock parameters: true when the UTC part is new; else false without a set stT0G; else true when
/// stT0G, dA0G, dA1G or ucAux3 differ.
ZELTYPES_API bool isNewSatClockGalileo(const ZELX_SAT_CLOCK_GALILEO& rClockCurrent,
                                       const ZELX_SAT_CLOCK_GALILEO& rClockNew);
/// NavIC system clocks: true when the UTC part is new, or one of the four entries differs (by the tolerant
/// entry test).
ZELTYPES_API bool isNewSysClockNavic(const ZELX_SYSCLOCK_NAVIC& rClockCurrent,
                                     const ZELX_SYSCLOCK_NAVIC& rClockNew);

} // namespace ZELN

#endif
