#ifndef ZELTYPES_EXT_COMMON_ZELEXTCOORDTYPES_H
#define ZELTYPES_EXT_COMMON_ZELEXTCOORDTYPES_H

/// \file
/// Small coordinate records that cross module boundaries as plain values.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Three doubles, unit and frame as the producer sets them (the library
/// never scales them); equal within a relative tolerance of 1e-14 per component.
struct ZELTYPES_API SZelVector3d
{
    /// First component.
    double dX = 0.0;
    /// Second component.
    double dY = 0.0;
    /// Third component.
    double dZ = 0.0;

    /// Constructs the default state (for a record: holding no data).
    SZelVector3d() = default;
    /// From the three components.
    SZelVector3d(double dValueX, double dValueY, double dValueZ) : dX(dValueX), dY(dValueY), dZ(dValueZ) {}

    /// Image: dX at 0, dY at 8, dZ at 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.dX) && io.Raw(r.dY) && io.Raw(r.dZ);
    }
    /// Text: the three values at 12 digits joined by ", ", no tags.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Precision(12).Value(r.dX).Tag(", ").Value(r.dY).Tag(", ").Value(r.dZ);
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

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const SZelVector3d& a, const SZelVector3d& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelVector3d& rVector);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelVector3d& rVector);

} // namespace ZELN

#endif
