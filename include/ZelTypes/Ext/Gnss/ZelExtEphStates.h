#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHSTATES_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHSTATES_H

/// \file
/// Tabulated satellite states: per epoch, per satellite, a position and a
/// clock value, each present or not. Epochs and tables are sequences whose
/// images carry 64-bit counts.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace ZELN
{

/// One satellite at one epoch.
struct ZELTYPES_API ZELX_SAT_STATE_ENTRY
{
    static constexpr uint32_t c_ulCONTENT_POSITION = 0x01; ///< stPosition holds
    static constexpr uint32_t c_ulCONTENT_CLOCK = 0x02;    ///< dClock holds

    uint8_t ucSatellite = 0; ///< a number of the satellite, the producer's
    /// c_ulCONTENT_* bits: what the entry holds.
    uint32_t ulContent = 0;
    SZelCoordinateTriplet stPosition; ///< frame and unit as its tag says
    double dClock = 0.0;              ///< clock value, the producer's unit

    /// ucSatellite at 0, ulContent at 1, stPosition at 5, dClock at 33: 41 bytes.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ucSatellite);
        io.Raw(r.ulContent);
        io.Record(r.stPosition);
        return io.Raw(r.dClock);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes), version byte first where the record has
    /// one; false on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); false on a null buffer, on an image of
    /// another version, and on a short buffer where the record tests the length first.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

/// Satellite and content exactly; the position and the clock at a relative
/// 1e-14 where the content says they hold, and not at all otherwise.
ZELTYPES_API bool operator==(const ZELX_SAT_STATE_ENTRY& a, const ZELX_SAT_STATE_ENTRY& b);

/// The satellites of one system at one epoch.
struct ZELTYPES_API ZELX_SAT_STATE_EPOCH
{
    /// The epoch.
    SMjdTime stTime;
    /// The entries of the satellites.
    std::vector<ZELX_SAT_STATE_ENTRY> vecEntries;

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_STATE_EPOCH() = default;
    /// One default entry per satellite number of the system and one more;
    /// none for system 0.
    ZELX_SAT_STATE_EPOCH(EZelSatSystem eSatSystem, const SMjdTime& rstTime);

    /// Storage is held, whether or not entries are.
    bool hasStorage() const { return vecEntries.capacity() != 0; }

    /// stTime at 0, the entry count in 64 bits at 16, the entries at 24.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Record(r.stTime);
        return io.template ExtSequence<uint64_t>(r.vecEntries);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes), version byte first where the record has
    /// one; false on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    /// The buffer must hold the 24 bytes of the head; each entry tests its own.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

/// Times apart by less than 1 ms, the same entries in the same order.
ZELTYPES_API bool operator==(const ZELX_SAT_STATE_EPOCH& a, const ZELX_SAT_STATE_EPOCH& b);

/// The epochs of one system.
struct ZELTYPES_API ZELX_SAT_STATE_TABLE
{
    uint32_t ulSatSystem = ZELSATSYSTEM_NONE; ///< system code
    /// The epochs of the system.
    std::vector<ZELX_SAT_STATE_EPOCH> vecEpochs;

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_STATE_TABLE() = default;
    /// ulNbEpochs default epochs.
    ZELX_SAT_STATE_TABLE(uint32_t ulSatSystemValue, size_t ulNbEpochs);

    /// ulSatSystem at 0, the epoch count in 64 bits at 4, the epochs at 12.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ulSatSystem);
        return io.template ExtSequence<uint64_t>(r.vecEpochs);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes), version byte first where the record has
    /// one; false on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    /// The buffer must hold the 12 bytes of the head; each epoch tests its own.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

/// The same epochs in the same order; the system takes no part.
ZELTYPES_API bool operator==(const ZELX_SAT_STATE_TABLE& a, const ZELX_SAT_STATE_TABLE& b);

} // namespace ZELN

#endif
