#ifndef ZELTYPES_EXT_COMMON_ZELEXTMISCTYPES_H
#define ZELTYPES_EXT_COMMON_ZELEXTMISCTYPES_H

// Small exchange records of the engine interface: the coordinate of a
// master station and the horizontal offset of an antenna from its mark.

#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// 32 bytes: system at 0, station at 4, two reserved bytes at 6 that travel
// as they stand, the coordinate at 8.
struct ZELTYPES_API SZelMasterCoordinate
{
    EZelCoordinateSystem eCooSys;
    uint16_t usStnId;
    uint16_t usReserved;
    SZelVector3d stMstCoo;

    SZelMasterCoordinate() : eCooSys(ZELCOORDINATESYSTEM_CARTESIAN), usStnId(0), usReserved(0), stMstCoo() {}

    uint64_t getSize() const { return 32; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

// The coordinate first, then system and station; the reserved bytes take no part.
ZELTYPES_API bool operator==(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b);
ZELTYPES_API bool operator!=(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b);

// ", CooSys, " word ", StnId, " number ", MstCoo, " vector. The first tag
// starts with a comma: the record is written behind another record's last
// value, and the reader starts with a char read.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelMasterCoordinate& rMaster);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelMasterCoordinate& rMaster);

// East and north, 8 bytes.
struct ZELTYPES_API SZelHorizontalOffset
{
    float fHrzOffsE;
    float fHrzOffsN;

    SZelHorizontalOffset() : fHrzOffsE(0.0f), fHrzOffsN(0.0f) {}
    SZelHorizontalOffset(float fEast, float fNorth) : fHrzOffsE(fEast), fHrzOffsN(fNorth) {}

    uint64_t getSize() const { return 8; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

// Equal within a relative tolerance of 1e-6, in single precision.
ZELTYPES_API bool operator==(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b);
ZELTYPES_API bool operator!=(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b);

// "HrzOffsE, " value ", HrzOffsN, " value.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelHorizontalOffset& rOffset);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelHorizontalOffset& rOffset);

} // namespace ZELN

#endif
