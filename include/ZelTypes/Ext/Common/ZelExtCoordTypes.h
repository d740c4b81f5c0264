#ifndef ZELTYPES_EXT_COMMON_ZELEXTCOORDTYPES_H
#define ZELTYPES_EXT_COMMON_ZELEXTCOORDTYPES_H

// Small coordinate records that cross module boundaries as plain values.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

// Three doubles, unit and frame as the producer sets them (the library
// never scales them); equal within a relative tolerance of 1e-14 per component.
struct ZELTYPES_API SZelVector3d
{
    double dX = 0.0;
    double dY = 0.0;
    double dZ = 0.0;

    SZelVector3d() = default;
    SZelVector3d(double dValueX, double dValueY, double dValueZ) : dX(dValueX), dY(dValueY), dZ(dValueZ) {}

    // Image: dX at 0, dY at 8, dZ at 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.dX) && io.Raw(r.dY) && io.Raw(r.dZ);
    }
    // Text: the three values at 12 digits joined by ", ", no tags.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Precision(12).Value(r.dX).Tag(", ").Value(r.dY).Tag(", ").Value(r.dZ);
    }

    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

ZELTYPES_API bool operator==(const SZelVector3d& a, const SZelVector3d& b);

ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelVector3d& rVector);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelVector3d& rVector);

} // namespace ZELN

#endif
