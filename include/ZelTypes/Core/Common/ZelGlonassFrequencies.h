#ifndef ZELTYPES_CORE_COMMON_ZELGLONASSFREQUENCIES_H
#define ZELTYPES_CORE_COMMON_ZELGLONASSFREQUENCIES_H

/// \file
/// The GLONASS frequency channel of each orbital slot, as learned at run time
/// from broadcast data. The frequency manager turns it into carrier
/// frequencies and wavelengths.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <algorithm>
#include <cstdint>
#include <istream>
#include <iterator>
#include <ostream>

namespace ZELN
{

constexpr int8_t c_cGLONASS_CHANNEL_UNKNOWN = -111; ///< the byte 0x91
/// Lowest valid frequency channel number.
constexpr int8_t c_cGLONASS_CHANNEL_MIN = -7;
/// Highest valid frequency channel number.
constexpr int8_t c_cGLONASS_CHANNEL_MAX = 13;

/// Frequency channel numbers k, the carrier of group 1 being 1602 MHz +
/// k * 562.5 kHz and that of group 2 1246 MHz + k * 437.5 kHz.
struct ZELTYPES_API ZelGlonassFrequencies
{
    int8_t acChannels[ZEL_DEF_MAXSATID_GLONASS]; ///< slot 1 at index 0

    /// Every channel unknown.
    ZelGlonassFrequencies()
    {
        std::fill(std::begin(acChannels), std::end(acChannels), c_cGLONASS_CHANNEL_UNKNOWN);
    }

    /// True for a channel number from c_cGLONASS_CHANNEL_MIN to c_cGLONASS_CHANNEL_MAX.
    static bool IsValidChannel(int8_t cChannel)
    {
        return cChannel >= c_cGLONASS_CHANNEL_MIN && cChannel <= c_cGLONASS_CHANNEL_MAX;
    }

    /// Image, 24 bytes: the channels, slot 1 first.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r) { return io.Raw(r.acChannels); }
    /// Text: "Channels" and 24 times ", " and the channel as an integer. The
    /// tag "Channels, " carries the comma before the first channel.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Channels, ");
        for (unsigned int uiIdx = 0; uiIdx < ZEL_DEF_MAXSATID_GLONASS; ++uiIdx)
        {
            if (uiIdx != 0)
            {
                io.Tag(", ");
            }
            io.template Wide<int>(r.acChannels[uiIdx]);
        }
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

/// All 24 bytes.
ZELTYPES_API bool operator==(const ZelGlonassFrequencies& a, const ZelGlonassFrequencies& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZelGlonassFrequencies& rstFrequencies);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, ZelGlonassFrequencies& rstFrequencies);

} // namespace ZELN

#endif
