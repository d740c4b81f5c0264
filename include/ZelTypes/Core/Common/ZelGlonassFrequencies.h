#ifndef ZELTYPES_CORE_COMMON_ZELGLONASSFREQUENCIES_H
#define ZELTYPES_CORE_COMMON_ZELGLONASSFREQUENCIES_H

// The GLONASS frequency channel of each orbital slot, as learned at run time
// from broadcast data. The frequency manager turns it into carrier
// frequencies and wavelengths.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

constexpr int8_t c_cGLONASS_CHANNEL_UNKNOWN = -111; // the byte 0x91
constexpr int8_t c_cGLONASS_CHANNEL_MIN = -7;
constexpr int8_t c_cGLONASS_CHANNEL_MAX = 13;

struct ZELTYPES_API ZelGlonassFrequencies
{
    int8_t acChannels[ZEL_DEF_MAXSATID_GLONASS]; // slot 1 at index 0

    // Every channel unknown.
    ZelGlonassFrequencies();

    static bool IsValidChannel(int8_t cChannel)
    {
        return cChannel >= c_cGLONASS_CHANNEL_MIN && cChannel <= c_cGLONASS_CHANNEL_MAX;
    }

    // The 24 channel bytes, slot 1 first.
    uint64_t getSize() const { return ZEL_DEF_MAXSATID_GLONASS; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

ZELTYPES_API bool operator==(const ZelGlonassFrequencies& a, const ZelGlonassFrequencies& b);
inline bool operator!=(const ZelGlonassFrequencies& a, const ZelGlonassFrequencies& b)
{
    return !(a == b);
}

// "Channels, 1, -4, ..." with the 24 channels as integers.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZelGlonassFrequencies& rstFrequencies);
ZELTYPES_API std::istream& operator>>(std::istream& is, ZelGlonassFrequencies& rstFrequencies);

} // namespace ZELN

#endif
