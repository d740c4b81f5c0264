#ifndef ZELTYPES_EXT_COMMON_ZELEXTMISCTYPES_H
#define ZELTYPES_EXT_COMMON_ZELEXTMISCTYPES_H

// Small exchange records of the engine interface: the coordinate of a
// master station and the horizontal offset of an antenna from its mark.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// The coordinate of a master station of a network. stMstCoo holds the three
// values of a triplet of type eCooSys (X, Y, Z in metres, or latitude and
// longitude in radians and height in metres), as the producer sets them:
// the library never converts or scales them.
struct ZELTYPES_API SZelMasterCoordinate
{
    EZelCoordinateSystem eCooSys = ZELCOORDINATESYSTEM_CARTESIAN;
    uint16_t usStnId = 0;
    uint16_t usReserved = 0; // travels as it stands, takes no part in ==
    SZelVector3d stMstCoo;

    // Image, 32 bytes: system at 0 (32 bits), station at 4, the reserved
    // bytes at 6, the coordinate at 8 through its own test.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eCooSys) && io.Raw(r.usStnId) && io.Raw(r.usReserved) && io.Record(r.stMstCoo);
    }
    // Text: ", CooSys, " word ", StnId, " number ", MstCoo, " vector. The
    // first tag starts with a comma: the record is written behind another
    // record's last value, and the reader starts with a char read. The word
    // swallows its comma; the char read after it takes the first letter of
    // the next tag.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag(", CooSys, ")
            .Word(r.eCooSys, c_aszCoordinateSystemWords, "Invalid", ZELCOORDINATESYSTEM_INVALID)
            .Tag(", StnId, ")
            .template Wide<uint32_t>(r.usStnId)
            .Tag(", MstCoo, ")
            .Value(r.stMstCoo);
    }

    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

// The coordinate first (relative 1e-14), then system and station.
ZELTYPES_API bool operator==(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b);

ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelMasterCoordinate& rMaster);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelMasterCoordinate& rMaster);

// The horizontal offset of an antenna from its mark, towards local east and
// north; the unit is the producer's (the library never scales it).
struct ZELTYPES_API SZelHorizontalOffset
{
    float fHrzOffsE = 0.0f; // towards east
    float fHrzOffsN = 0.0f; // towards north

    SZelHorizontalOffset() = default;
    SZelHorizontalOffset(float fEast, float fNorth) : fHrzOffsE(fEast), fHrzOffsN(fNorth) {}

    // Image, 8 bytes: east at 0, north at 4.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.fHrzOffsE) && io.Raw(r.fHrzOffsN);
    }
    // Text: "HrzOffsE, " value ", HrzOffsN, " value.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("HrzOffsE, ").Value(r.fHrzOffsE).Tag(", HrzOffsN, ").Value(r.fHrzOffsN);
    }

    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

// Equal within a relative tolerance of 1e-6, in single precision.
ZELTYPES_API bool operator==(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b);

ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelHorizontalOffset& rOffset);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelHorizontalOffset& rOffset);

} // namespace ZELN

#endif
