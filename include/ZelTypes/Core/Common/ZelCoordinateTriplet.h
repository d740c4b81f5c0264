#ifndef ZELTYPES_CORE_COMMON_ZELCOORDINATETRIPLET_H
#define ZELTYPES_CORE_COMMON_ZELCOORDINATETRIPLET_H

/// \file
/// SZelCoordinateTriplet: three coordinates and the tag that says what they
/// are. The vector arithmetic is meaningful for cartesian triplets only; on
/// anything else it reports and hands back the left operand.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Stored in 32 bits; the fixed width also makes every 32-bit value read from
/// an image a valid value of the type.
enum EZelCoordinateSystem : int32_t
{
    ZELCOORDINATESYSTEM_INVALID = -1,
    ZELCOORDINATESYSTEM_CARTESIAN = 0,
    ZELCOORDINATESYSTEM_GEOGRAPHIC = 1,
    ZELCOORDINATESYSTEM_LOCGEO = 2
};

/// Words of the text form, indexed by value; anything else is "Invalid".
constexpr const char* c_aszCoordinateSystemWords[] = {"Cart", "Geo", "LocGeo"};
/// Number of entries of c_aszCoordinateSystemWords.
constexpr size_t c_ulNbCoordinateSystemWords = 3;

/// Word of the text form of eSystem; "Invalid" for a value outside the known ones.
ZELTYPES_API const char* ToCoordinateSystemWord(EZelCoordinateSystem eSystem);

/// An unknown word gives ZELCOORDINATESYSTEM_INVALID.
ZELTYPES_API EZelCoordinateSystem ReadCoordinateSystemWord(std::istream& is);

/// Three coordinates and their type. Cartesian: X, Y, Z in metres, earth-
/// centred and earth-fixed (WGS 84). Geographic and local geographic:
/// latitude and longitude in radians, ellipsoidal height in metres.
struct ZELTYPES_API SZelCoordinateTriplet
{
    /// What the three coordinates are; cartesian by default.
    EZelCoordinateSystem ecoordinatesystem = ZELCOORDINATESYSTEM_CARTESIAN;
    double dCoord1 = 0.0; ///< X in metres, or latitude in radians (north positive)
    double dCoord2 = 0.0; ///< Y in metres, or longitude in radians (east positive)
    double dCoord3 = 0.0; ///< Z or ellipsoidal height (up), in metres

    /// Constructs the default state (for a record: holding no data).
    SZelCoordinateTriplet() = default;

    /// Triplet of type eSystem with the coordinates d1, d2, d3 (units as the fields say), unchecked.
    SZelCoordinateTriplet(EZelCoordinateSystem eSystem, double d1, double d2, double d3)
        : ecoordinatesystem(eSystem), dCoord1(d1), dCoord2(d2), dCoord3(d3)
    {
    }

    /// Copies the type; a type outside the three known ones is reported and
    /// its values are not taken.
    SZelCoordinateTriplet(const SZelCoordinateTriplet& rOther);

    /// Copies all four fields, unchecked.
    SZelCoordinateTriplet& operator=(const SZelCoordinateTriplet& rOther) = default;

    /// Both must be cartesian (reported otherwise); the coordinates are added
    /// whenever the two types are equal.
    SZelCoordinateTriplet& operator+=(const SZelCoordinateTriplet& rOther);
    /// Subtraction with the same rules as operator+=.
    SZelCoordinateTriplet& operator-=(const SZelCoordinateTriplet& rOther);

    /// Euclidean length of a cartesian triplet, in the unit of its coordinates;
    /// 0.0 for any other type.
    double Norm() const;

    /// rResult gets a copy of this triplet, scaled to unit length when the
    /// triplet is cartesian and not of vanishing length.
    void GetNormalized(SZelCoordinateTriplet& rResult) const;

    /// In place; false (and the triplet unchanged) when it cannot be done.
    bool Normalize();

    /// Cartesian zero.
    void Reset() { *this = SZelCoordinateTriplet(); }

    /// Image, 28 bytes, unaligned: type at 0 (32 bits), the coordinates at
    /// 4, 12 and 20.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.ecoordinatesystem) && io.Raw(r.dCoord1) && io.Raw(r.dCoord2) && io.Raw(r.dCoord3);
    }
    /// Text: "CooTyp, " word ", Coo, " and the three values at 12 digits; the
    /// precision stays set on the stream. The reader's word swallows its
    /// comma, so the char read of ", Coo, " takes the first letter of the tag.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("CooTyp, ")
            .Word(r.ecoordinatesystem, c_aszCoordinateSystemWords, "Invalid", ZELCOORDINATESYSTEM_INVALID)
            .Tag(", Coo, ")
            .Precision(12)
            .Value(r.dCoord1)
            .Tag(", ")
            .Value(r.dCoord2)
            .Tag(", ")
            .Value(r.dCoord3);
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

/// All four fields, exact: a NaN makes the triplet unequal to itself.
ZELTYPES_API bool operator==(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);

/// Sum of two cartesian triplets; otherwise reports and returns a.
ZELTYPES_API SZelCoordinateTriplet operator+(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
/// Difference a - b of two cartesian triplets; otherwise reports and returns a.
ZELTYPES_API SZelCoordinateTriplet operator-(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
/// A cartesian triplet scaled by dScalar; otherwise reports and returns a.
ZELTYPES_API SZelCoordinateTriplet operator*(double dScalar, const SZelCoordinateTriplet& a);

/// Scalar product of two cartesian triplets; otherwise reports and returns 0.0.
ZELTYPES_API double Dot(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
/// rResult = a x b for two cartesian triplets (rResult may be a or b); otherwise reports and rResult gets a
/// copy of a.
ZELTYPES_API void Cross(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b,
                        SZelCoordinateTriplet& rResult);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelCoordinateTriplet& rTriplet);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelCoordinateTriplet& rTriplet);

} // namespace ZELN

#endif
