#ifndef ZELTYPES_CORE_COMMON_ZELCOORDINATETRIPLET_H
#define ZELTYPES_CORE_COMMON_ZELCOORDINATETRIPLET_H

// SZelCoordinateTriplet: three coordinates and the tag that says what they
// are. The vector arithmetic is meaningful for cartesian triplets only; on
// anything else it reports and hands back the left operand.

#include <ZelTypes/Core/Common/ZelExport.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// Stored in 32 bits; the fixed width also makes every 32-bit value read from
// an image a valid value of the type.
enum EZelCoordinateSystem : int32_t
{
    ZELCOORDINATESYSTEM_INVALID = -1,
    ZELCOORDINATESYSTEM_CARTESIAN = 0,
    ZELCOORDINATESYSTEM_GEOGRAPHIC = 1,
    ZELCOORDINATESYSTEM_LOCGEO = 2
};

// Words of the text form, indexed by value; anything else is "Invalid".
constexpr const char* c_aszCoordinateSystemWords[] = {"Cart", "Geo", "LocGeo"};
constexpr size_t c_ulNbCoordinateSystemWords = 3;

ZELTYPES_API const char* ToCoordinateSystemWord(EZelCoordinateSystem eSystem);

// An unknown word gives ZELCOORDINATESYSTEM_INVALID.
ZELTYPES_API EZelCoordinateSystem ReadCoordinateSystemWord(std::istream& is);

struct ZELTYPES_API SZelCoordinateTriplet
{
    EZelCoordinateSystem ecoordinatesystem;
    double dCoord1; // X in metres, or latitude in radians
    double dCoord2; // Y in metres, or longitude in radians
    double dCoord3; // Z or ellipsoidal height, in metres

    SZelCoordinateTriplet()
        : ecoordinatesystem(ZELCOORDINATESYSTEM_CARTESIAN), dCoord1(0.0), dCoord2(0.0), dCoord3(0.0)
    {
    }

    SZelCoordinateTriplet(EZelCoordinateSystem eSystem, double d1, double d2, double d3)
        : ecoordinatesystem(eSystem), dCoord1(d1), dCoord2(d2), dCoord3(d3)
    {
    }

    // Copies the type; a type outside the three known ones is reported and
    // its values are not taken.
    SZelCoordinateTriplet(const SZelCoordinateTriplet& rOther);

    // Copies all four fields, unchecked.
    SZelCoordinateTriplet& operator=(const SZelCoordinateTriplet& rOther);

    // Both must be cartesian (reported otherwise); the coordinates are added
    // whenever the two types are equal.
    SZelCoordinateTriplet& operator+=(const SZelCoordinateTriplet& rOther);
    SZelCoordinateTriplet& operator-=(const SZelCoordinateTriplet& rOther);

    // Euclidean length of a cartesian triplet; 0.0 for any other type.
    double Norm() const;

    // rResult gets a copy of this triplet, scaled to unit length when the
    // triplet is cartesian and not of vanishing length.
    void GetNormalized(SZelCoordinateTriplet& rResult) const;

    // In place; false (and the triplet unchanged) when it cannot be done.
    bool Normalize();

    void Reset();

    uint64_t getSize() const { return 28; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

ZELTYPES_API bool operator==(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
ZELTYPES_API bool operator!=(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);

ZELTYPES_API SZelCoordinateTriplet operator+(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
ZELTYPES_API SZelCoordinateTriplet operator-(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
ZELTYPES_API SZelCoordinateTriplet operator*(double dScalar, const SZelCoordinateTriplet& a);

ZELTYPES_API double Dot(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b);
ZELTYPES_API void Cross(const SZelCoordinateTriplet& a, const SZelCoordinateTriplet& b,
                        SZelCoordinateTriplet& rResult);

// "CooTyp, " word ", Coo, " and the three values at 12 digits.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelCoordinateTriplet& rTriplet);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelCoordinateTriplet& rTriplet);

} // namespace ZELN

#endif
