#ifndef ZELTYPES_EXT_GNSS_ZELEXTOBSTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTOBSTYPES_H

/// \file
/// The external form of an observation epoch: the epoch followed by a short
/// record of the station that observed it.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelObsEpoch.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTimeBlockIO.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Size of the SZelObsInfo image, in bytes.
constexpr uint64_t c_ulOBSINFO_SIZE = 40;
constexpr uint64_t c_ulEXTOBSEPOCH_EXTRA_SIZE = 44; ///< epoch length and station record

/// The station record, 40 bytes as it stands in memory.
struct ZELTYPES_API SZelObsInfo
{
    SMjdTime stStaticSince; ///< start of the present static period, accuracy NANOSECOND by default
    /// Time status, the producer's code; carried, not interpreted.
    uint8_t ucTimeStatus = 0;
    /// Observation flags, the producer's bits; carried, not interpreted.
    uint16_t unObsFlags = 0;
    /// Data flags, the producer's bits; carried, not interpreted.
    uint8_t ucDataFlags = 0;
    /// Station type, the producer's code; carried, not interpreted.
    uint8_t ucStationType = 0;
    /// Station identifier.
    uint32_t ulStationId = 0;

    /// Resets the record to its default state.
    void Reset() { *this = SZelObsInfo(); }

    /// Image: the time block at 0, status at 24, flags at 26, data flags at
    /// 28, station type at 29, station id at 32; reserved bytes as zero.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        ZelIo::VisitTimeBlock(io, r.stStaticSince);
        io.Raw(r.ucTimeStatus);
        io.Reserved(1);
        io.Raw(r.unObsFlags);
        io.Raw(r.ucDataFlags);
        io.Raw(r.ucStationType);
        io.Reserved(2);
        io.Raw(r.ulStationId);
        return io.Reserved(4);
    }

    /// Text: the time as GPS week and seconds of week; its reader gives the
    /// default time for a week from 5966 on or seconds out of range, without
    /// a report.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("StatSince, ").Form(r.stStaticSince, MJDTXT_GPS_SECONDS);
        io.Tag(", TimeStatus, ").template Wide<uint32_t>(r.ucTimeStatus);
        io.Tag(", ObsFlgs, ").template Wide<uint32_t>(r.unObsFlags);
        io.Tag(", DataFlgs, ").template Wide<uint32_t>(r.ucDataFlags);
        io.Tag(", StnTyp, ").template Wide<uint32_t>(r.ucStationType);
        io.Tag(", StnId, ").Value(r.ulStationId);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// The used-bytes output is optional, so that the record also serves as
    /// an exchange record with the two-argument calls.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }

    /// True when the two records are equal, field by field.
    bool operator==(const SZelObsInfo& rhs) const;
};

/// The external form of an epoch: the epoch and its station record.
struct ZELTYPES_API ZelExtObsEpoch
{
    /// The observation epoch.
    SZelObservationEpoch stObsEpoch;
    /// The station record.
    SZelObsInfo stObsInfo;

    /// The station record's time status.
    uint8_t GetTimeStatus() const { return stObsInfo.ucTimeStatus; }

    /// Image: a 32-bit length holding the epoch's size, the epoch, the
    /// station record. The two directions differ in the length: the writer
    /// takes it from the epoch, the reader tests the stored one against the
    /// room and reads the epoch within it.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if constexpr (IO::c_bLoading)
        {
            uint32_t ulEpochSize = 0;
            io.Raw(ulEpochSize);
            if (static_cast<uint64_t>(ulEpochSize) + r.stObsInfo.getSize() > io.Remaining())
            {
                ZEL_ASSERT(false);
                return false;
            }
            // An epoch image shorter or longer than the stored length is a
            // failed nested record.
            uint64_t ulEpochUsed = 0;
            if (!r.stObsEpoch.loadData(io.Here(), ulEpochSize, &ulEpochUsed) || ulEpochUsed != ulEpochSize)
            {
                ZEL_ASSERT(false);
                return false;
            }
            return io.Skip(ulEpochSize) && io.Record(r.stObsInfo, true);
        }
        else
        {
            // The length field has 32 bits.
            const uint64_t ulEpochSize = r.stObsEpoch.getSize();
            if (ulEpochSize >= 0xFFFFFFFFu)
            {
                ZEL_ASSERT(false);
                return false;
            }
            return io.template RawAs<uint32_t>(ulEpochSize) && io.Record(r.stObsEpoch) &&
                   io.Record(r.stObsInfo);
        }
    }

    /// Text: the epoch, ", ObsInfo, " and the station record.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Value(r.stObsEpoch).Tag(", ObsInfo, ").Value(r.stObsInfo);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return stObsEpoch.getSize() + c_ulEXTOBSEPOCH_EXTRA_SIZE; }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr) const
    {
        return ZelIo::SaveLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }
    /// The first bounds test looks at the present content, the second at the
    /// stored length.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset = nullptr)
    {
        return ZelIo::LoadLeaf(*this, pBuffer, uiBufferLength, pulOffset);
    }

    /// True when the two records are equal, field by field.
    bool operator==(const ZelExtObsEpoch& rhs) const
    {
        return stObsEpoch == rhs.stObsEpoch && stObsInfo == rhs.stObsInfo;
    }
};

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelObsInfo& rstObsInfo);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelObsInfo& rstObsInfo);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZelExtObsEpoch& rstExtEpoch);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, ZelExtObsEpoch& rstExtEpoch);

} // namespace ZELN

#endif
