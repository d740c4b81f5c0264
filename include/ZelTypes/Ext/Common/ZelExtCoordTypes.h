#ifndef ZELTYPES_EXT_COMMON_ZELEXTCOORDTYPES_H
#define ZELTYPES_EXT_COMMON_ZELEXTCOORDTYPES_H

// Small coordinate records that cross module boundaries as plain values.

#include <ZelTypes/Core/Common/ZelExport.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// Three doubles; equal within a relative tolerance of 1e-14 per component.
struct ZELTYPES_API SZelVector3d
{
    double dX;
    double dY;
    double dZ;

    SZelVector3d() : dX(0.0), dY(0.0), dZ(0.0) {}
    SZelVector3d(double dValueX, double dValueY, double dValueZ) : dX(dValueX), dY(dValueY), dZ(dValueZ) {}

    uint64_t getSize() const { return 24; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

ZELTYPES_API bool operator==(const SZelVector3d& a, const SZelVector3d& b);
ZELTYPES_API bool operator!=(const SZelVector3d& a, const SZelVector3d& b);

// The three values at 12 digits joined by ", ", no tags.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelVector3d& rVector);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelVector3d& rVector);

} // namespace ZELN

#endif
