#ifndef ZELTYPES_CORE_COMMON_ZELTYPESORBPOLY_H
#define ZELTYPES_CORE_COMMON_ZELTYPESORBPOLY_H

/// \file
/// Orbit polynomials: a satellite's clock and coordinates over a short span,
/// fitted by a client from a broadcast ephemeris, with a few parameters of
/// that ephemeris; and one value per frequency group of a satellite. The
/// library holds the polynomials; it neither fits nor evaluates them.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

/// What both polynomials share. Units of the span and of the coefficients
/// are those of the fitting client; the library never scales them.
struct ZELTYPES_API SZelOrbPolyHeader
{
    int32_t iIod = -1;            ///< issue of data of the source ephemeris; -1 when none
    SMjdTime stTime;              ///< reference time of the polynomial
    double dVldHalfSpan = 0.0;    ///< half the span of validity around stTime
    uint8_t uiNumCoeffsToUse = 0; ///< how many coefficients of each row count
};

/// iIod, stTime, dVldHalfSpan and the count, each by its own equality.
ZELTYPES_API bool operator==(const SZelOrbPolyHeader& a, const SZelOrbPolyHeader& b);

namespace ZelOrbPolyIo
{

/// The gaps between the fields of the record's layout, cleared in a written
/// image so that it does not depend on what they held. Each length is a
/// constant, so that each clearing is a plain store.
inline void ClearOrbPolyGaps(unsigned char* pImage)
{
    std::memset(pImage + 1, 0, 3);   // after the flags
    std::memset(pImage + 9, 0, 3);   // after the satellite number
    std::memset(pImage + 20, 0, 4);  // stRefTime: after the day
    std::memset(pImage + 36, 0, 4);  // stRefTime: after the accuracy
    std::memset(pImage + 44, 0, 4);  // clock: after the issue of data
    std::memset(pImage + 52, 0, 4);  // clock time: after the day
    std::memset(pImage + 68, 0, 4);  // clock time: after the accuracy
    std::memset(pImage + 81, 0, 7);  // clock: after the count
    std::memset(pImage + 116, 0, 4); // coordinates: after the issue of data
    std::memset(pImage + 124, 0, 4); // coordinate time: after the day
    std::memset(pImage + 140, 0, 4); // coordinate time: after the accuracy
    std::memset(pImage + 153, 0, 7); // coordinates: after the count
    std::memset(pImage + 426, 0, 6); // after uiUra
}

/// The coefficients one after another, rows after each other, joined by ", ".
template <class IO, class T, size_t N, std::enable_if_t<std::is_arithmetic<T>::value, int> = 0>
void CoeffsText(IO& io, T (&adRow)[N], bool& rbFirst)
{
    for (T& rdCoeff : adRow)
    {
        if (!rbFirst)
        {
            io.Tag(", ");
        }
        rbFirst = false;
        io.Value(rdCoeff);
    }
}

template <class IO, class T, size_t R, size_t N> void CoeffsText(IO& io, T (&adRows)[R][N], bool& rbFirst)
{
    for (size_t ulRow = 0; ulRow < R; ++ulRow)
    {
        CoeffsText(io, adRows[ulRow], rbFirst);
    }
}

/// "NumToUse, " count ", IOD, " issue of data as an unsigned number (-1
/// stands as 4294967295) ", Time, " time ", VldHalfSpan, " span ", Coeffs, "
/// and every coefficient, whatever the count, in scientific notation with
/// 17 digits. The reader checks the count as the setter does.
template <class IO, class P> void PolyText(IO& io, P& rPoly)
{
    io.Tag("NumToUse, ");
    if constexpr (IO::c_bReading)
    {
        unsigned int uiCount = rPoly.uiNumCoeffsToUse;
        io.Value(uiCount);
        rPoly.SetNumCoeffsToUse(static_cast<uint8_t>(uiCount > 255u ? 255u : uiCount));
    }
    else
    {
        io.template Wide<unsigned int>(rPoly.uiNumCoeffsToUse);
    }
    io.Tag(", IOD, ").template Wide<uint32_t>(rPoly.iIod).Tag(", Time, ").Value(rPoly.stTime);
    io.Tag(", VldHalfSpan, ").Value(rPoly.dVldHalfSpan);
    io.Tag(", Coeffs, ").Scientific().Precision(17);
    bool bFirst = true;
    CoeffsText(io, rPoly.adCoeffs, bFirst);
}

} // namespace ZelOrbPolyIo

/// The clock polynomial.
struct ZELTYPES_API SZelOrbPolyClock : public SZelOrbPolyHeader
{
    /// Number of clock coefficients the record holds.
    static constexpr uint8_t MAX_NUM_COEFFS = 3;
    /// Count of a default-constructed clock polynomial.
    static constexpr uint8_t c_ucDEFAULT_NUM_COEFFS = 3;

    /// Coefficients as the fitting client gives them; all three are stored whatever the count.
    double adCoeffs[MAX_NUM_COEFFS] = {0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    SZelOrbPolyClock() : SZelOrbPolyClock(c_ucDEFAULT_NUM_COEFFS) {}
    /// A count above MAX_NUM_COEFFS is reported and stored as MAX_NUM_COEFFS.
    explicit SZelOrbPolyClock(uint8_t uiNumCoeffsToUse);

    /// Returns uiNumCoeffsToUse.
    uint8_t GetNumCoeffsToUse() const { return uiNumCoeffsToUse; }
    /// Sets uiNumCoeffsToUse; a count above MAX_NUM_COEFFS is reported and stored as MAX_NUM_COEFFS.
    void SetNumCoeffsToUse(uint8_t uiNumCoeffsToUse);
    /// Defaults everywhere but in the count, which stays.
    void clear();
};

/// The count exactly, the counted coefficients within 1e-10 (absolute), the
/// issue of data exactly, the time equal, the span apart by less than 1e-10.
ZELTYPES_API bool operator==(const SZelOrbPolyClock& a, const SZelOrbPolyClock& b);

/// The coordinate polynomials, one row per coordinate.
struct ZELTYPES_API SZelOrbPolyCoords : public SZelOrbPolyHeader
{
    /// Number of coefficients per coordinate row the record holds.
    static constexpr uint8_t MAX_NUM_COEFFS = 11;
    /// Count of a default-constructed coordinate polynomial.
    static constexpr uint8_t c_ucDEFAULT_NUM_COEFFS = 8;
    /// Locata positions are fixed: one coefficient per row.
    static constexpr uint8_t c_ucLOCATA_NUM_COEFFS = 1;

    /// Coefficients, one row per coordinate, as the fitting client gives them; all 11 per row are stored
    /// whatever the count.
    double adCoeffs[3][MAX_NUM_COEFFS] = {};

    /// Constructs the default state (for a record: holding no data).
    SZelOrbPolyCoords() : SZelOrbPolyCoords(c_ucDEFAULT_NUM_COEFFS) {}
    /// A count above MAX_NUM_COEFFS is reported and stored as MAX_NUM_COEFFS.
    explicit SZelOrbPolyCoords(uint8_t uiNumCoeffsToUse);

    /// Returns uiNumCoeffsToUse.
    uint8_t GetNumCoeffsToUse() const { return uiNumCoeffsToUse; }
    /// Sets uiNumCoeffsToUse; a count above MAX_NUM_COEFFS is reported and stored as MAX_NUM_COEFFS.
    void SetNumCoeffsToUse(uint8_t uiNumCoeffsToUse);
    /// Defaults everywhere but in the count, which stays.
    void clear();
};

/// As for the clock, row by row.
ZELTYPES_API bool operator==(const SZelOrbPolyCoords& a, const SZelOrbPolyCoords& b);

/// The additional parameters of a source ephemeris of every system but
/// Galileo; the seventh value takes no part.
struct ZELTYPES_API SZelOrbPolyAddPars
{
    double dOdot = 0.0;  ///< rate of right ascension, rad/s
    double dDN = 0.0;    ///< mean motion difference, rad/s
    double dMo = 0.0;    ///< mean anomaly at the reference time, rad
    double dSqrtA = 0.0; ///< square root of the semi-major axis, m^0.5
    double dEcc = 0.0;   ///< eccentricity
    double dTgd = 0.0;   ///< group delay, s; Galileo: group delay E1-E5a, s
    double dSpare = 0.0; ///< carried only; Galileo: group delay E1-E5b, s
};

/// The six values exactly.
ZELTYPES_API bool operator==(const SZelOrbPolyAddPars& a, const SZelOrbPolyAddPars& b);

static_assert(sizeof(SZelOrbPolyAddPars) == 7 * sizeof(double), "the seven values follow each other");

/// The same seven values as a Galileo source ephemeris gives them.
struct ZELTYPES_API SZelOrbPolyAddParsGal
{
    double dOdot = 0.0;   ///< rate of right ascension, rad/s
    double dDN = 0.0;     ///< mean motion difference, rad/s
    double dMo = 0.0;     ///< mean anomaly at the reference time, rad
    double dSqrtA = 0.0;  ///< square root of the semi-major axis, m^0.5
    double dEcc = 0.0;    ///< eccentricity
    double dBgdE5a = 0.0; ///< group delay E1-E5a, s
    double dBgdE5b = 0.0; ///< group delay E1-E5b, s
};

/// The seven values exactly.
ZELTYPES_API bool operator==(const SZelOrbPolyAddParsGal& a, const SZelOrbPolyAddParsGal& b);

/// One satellite's polynomials.
struct ZELTYPES_API SZelOrbPoly
{
    /// Bits of ucOrbFlgs.
    static constexpr uint8_t c_ucORBFLG_URA = 0x01;   ///< uiUra holds
    static constexpr uint8_t c_ucORBFLG_MODE3 = 0x08; ///< orbit mode bits; cleared by setOrbMode(false)
    /// Orbit mode bit; cleared by setOrbMode(false).
    static constexpr uint8_t c_ucORBFLG_MODE4 = 0x10;
    /// set by setOrbMode(false), cleared by setOrbMode(true)
    static constexpr uint8_t c_ucORBFLG_MODE5 = 0x20;

    uint8_t ucOrbFlgs = 0; ///< c_ucORBFLG_ bits; the others are the fitting client's
    /// The satellite.
    SZelSatID stSatId;
    uint32_t ulEphType = 0; ///< kind of the source ephemeris, the fitting client's
    SMjdTime stRefTime;     ///< reference time of the record
    /// The clock polynomial.
    SZelOrbPolyClock stClock;
    /// The coordinate polynomials.
    SZelOrbPolyCoords stCoords;
    uint16_t uiUra = 0;           ///< accuracy, the fitting client's unit; holds with bit 0 of ucOrbFlgs
    SZelOrbPolyAddPars stAddPars; ///< read as SZelOrbPolyAddParsGal for Galileo

    /// Constructs the default state (for a record: holding no data).
    SZelOrbPoly() : SZelOrbPoly(SZelSatID(), 0) {}
    /// The coordinates count 8 coefficients, 1 for a Locata satellite.
    SZelOrbPoly(const SZelSatID& rstSatId, uint32_t ulEphTypeValue);

    /// false: clears the mode bits 3 and 4 and sets bit 5; true: clears bit 5.
    void setOrbMode(bool bMode);
    /// Defaults everywhere but in the two counts, which stay.
    void clear();
    /// Zeroes the additional parameters.
    void clearAddPars() { stAddPars = SZelOrbPolyAddPars(); }

    /// True when the satellite is a Galileo one, whose additional parameters read as SZelOrbPolyAddParsGal.
    bool isGalileo() const { return stSatId.eSatSystem == ZELSATSYSTEM_GALILEO; }
    /// The additional parameters in their Galileo reading.
    SZelOrbPolyAddParsGal getAddParsGal() const;
    /// Stores the additional parameters from their Galileo reading.
    void setAddParsGal(const SZelOrbPolyAddParsGal& rstAddPars);

    /// Size of the byte image, in bytes.
    static constexpr uint64_t c_ulImageSize = 488;

    /// The image is the record's layout, 488 bytes, copied as one block:
    /// flags at 0, system at 4, number at 8, ulEphType at 12, stRefTime at
    /// 16 (day, milliseconds at 24, accuracy at 32), the clock at 40 (issue
    /// of data, time at 48, span at 72, count at 80, coefficients at 88), the
    /// coordinates at 112 (time at 120, span at 144, count at 152,
    /// coefficients at 160), uiUra at 424, the additional parameters at 432.
    /// The gaps between the fields go out as zero and are read as they come.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if constexpr (IO::c_bLoading || IO::c_bSizing)
        {
            return io.Block(r, c_ulImageSize);
        }
        else
        {
            unsigned char* pImage = io.Here();
            if (!io.Block(r, c_ulImageSize))
            {
                return false;
            }
            ZelOrbPolyIo::ClearOrbPolyGaps(pImage);
            return true;
        }
    }

    /// "OrbFlgs, " flags in hexadecimal with their prefix ", Sat, " satellite
    /// ", EphTyp, " kind ", RefTime, " time ", CoeffsClk, " clock
    /// ", CoeffsCoo, " coordinates ", Ura, " accuracy ", AddPars, " and the
    /// additional parameters of the satellite's system, tagged.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("OrbFlgs, ").ShowBase().template Hex<uint32_t>(r.ucOrbFlgs);
        if constexpr (!IO::c_bReading)
        {
            // The prefix goes with the base.
            io.Stream() << std::noshowbase;
        }
        io.Tag(", Sat, ").Value(r.stSatId).Tag(", EphTyp, ").Value(r.ulEphType);
        io.Tag(", RefTime, ").Value(r.stRefTime).Tag(", CoeffsClk, ");
        ZelOrbPolyIo::PolyText(io, r.stClock);
        io.Tag(", CoeffsCoo, ");
        ZelOrbPolyIo::PolyText(io, r.stCoords);
        io.Tag(", Ura, ").Value(r.uiUra).Tag(", AddPars, ");
        io.Tag("Odot, ").Value(r.stAddPars.dOdot).Tag(", DN, ").Value(r.stAddPars.dDN);
        io.Tag(", Mo, ").Value(r.stAddPars.dMo).Tag(", sqrtA, ").Value(r.stAddPars.dSqrtA);
        io.Tag(", Ecc, ").Value(r.stAddPars.dEcc);
        // The sixth and seventh values are the Galileo group delays, or the
        // group delay of the other systems alone. The satellite was read
        // ahead of them in the same line.
        if (r.isGalileo())
        {
            io.Tag(", BgdE5a, ").Value(r.stAddPars.dTgd).Tag(", BgdE5b, ").Value(r.stAddPars.dSpare);
        }
        else
        {
            io.Tag(", Tgd, ").Value(r.stAddPars.dTgd);
        }
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// The count is set only on success; a refused call leaves it as it was.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// Two records without a valid satellite are equal. Different satellites or
/// kinds are a caller's error: reported, unequal. Then the flags exactly,
/// the polynomials by their rule, and uiUra exactly where bit 0 says it
/// holds; stRefTime and the additional parameters take no part.
ZELTYPES_API bool operator==(const SZelOrbPoly& a, const SZelOrbPoly& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelOrbPoly& rOrbPoly);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelOrbPoly& rOrbPoly);

/// One value of a frequency group.
struct SZelGroupValue
{
    /// The value holds.
    bool bSet = false;
    double dValue = 0.0; ///< unit of the record's user
};

/// One value per frequency group of a satellite, with the set of groups
/// given, group g at bit g - 1.
struct ZELTYPES_API SZelSatGroupValues
{
    /// The satellite.
    SZelSatID stSatId;
    SZelGroupValue astValues[ZELFREQUENCY_GROUPS_MAX]; ///< by frequency group
    /// Groups given, group g at bit g - 1.
    uint32_t ulGroupMask = 0;

    /// Constructs the default state (for a record: holding no data).
    SZelSatGroupValues() = default;
    /// The pairs stay unset.
    SZelSatGroupValues(const SZelSatID& rstSatId, uint32_t ulMask) : stSatId(rstSatId), ulGroupMask(ulMask) {}

    /// Stores the pair of the group and adds its bit (groups 1 to 6 have
    /// one); a group from 7 on is reported and has no pair.
    void setValue(EZelFrequencyGroup eFrqGrp, double dValue);
    /// The value for each group of ulMask, lowest first; then ulMask joins
    /// the set.
    void setValues(uint32_t ulMask, double dValue);
    /// True and the value of a set pair; false and 0.0 otherwise.
    bool getValue(EZelFrequencyGroup eFrqGrp, double& rdValue) const;
    /// Returns ulGroupMask.
    uint32_t getGroupMask() const { return ulGroupMask; }
};

/// Every field exactly.
ZELTYPES_API bool operator==(const SZelSatGroupValues& a, const SZelSatGroupValues& b);

} // namespace ZELN

#endif
