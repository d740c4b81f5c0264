#ifndef ZELTYPES_EXT_GNSS_ZELEXTOBSTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTOBSTYPES_H

// The external form of an observation epoch: the epoch followed by a short
// record of the station that observed it.

#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

constexpr uint64_t c_ulOBSINFO_SIZE = 40;
constexpr uint64_t c_ulEXTOBSEPOCH_EXTRA_SIZE = 44; // epoch length and station record

// The station record, 40 bytes as it stands in memory.
struct ZELTYPES_API SZelObsInfo
{
    SMjdTime stStaticSince; // accuracy NANOSECOND by default
    uint8_t ucTimeStatus;
    uint16_t unObsFlags;
    uint8_t ucDataFlags;
    uint8_t ucStationType;
    uint32_t ulStationId;

    SZelObsInfo() { Reset(); }

    void Reset();

    uint64_t getSize() const { return c_ulOBSINFO_SIZE; }
    // The used-bytes output is optional, so that the record also serves as
    // an exchange record with the two-argument calls.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);

    bool operator==(const SZelObsInfo& rhs) const;
    bool operator!=(const SZelObsInfo& rhs) const { return !(*this == rhs); }
};

struct ZELTYPES_API ZelExtObsEpoch
{
    SZelObservationEpoch stObsEpoch;
    SZelObsInfo stObsInfo;

    uint8_t GetTimeStatus() const { return stObsInfo.ucTimeStatus; }

    // A 32-bit length holding the epoch's size, the epoch, the station record.
    uint64_t getSize() const { return stObsEpoch.getSize() + c_ulEXTOBSEPOCH_EXTRA_SIZE; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const;
    // The first bounds test looks at the present content, the second at the
    // stored length.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr);

    bool operator==(const ZelExtObsEpoch& rhs) const
    {
        return stObsEpoch == rhs.stObsEpoch && stObsInfo == rhs.stObsInfo;
    }
    bool operator!=(const ZelExtObsEpoch& rhs) const { return !(*this == rhs); }
};

ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelObsInfo& rstObsInfo);
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelObsInfo& rstObsInfo);
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZelExtObsEpoch& rstExtEpoch);
ZELTYPES_API std::istream& operator>>(std::istream& is, ZelExtObsEpoch& rstExtEpoch);

} // namespace ZELN

#endif
