#ifndef ZELTYPES_EXT_GNSS_ZELEXTORBTYPES_H
#define ZELTYPES_EXT_GNSS_ZELEXTORBTYPES_H

/// \file
/// Small records around orbits: one status character per satellite of every
/// system, and a transformation between two frames. What the characters say,
/// which system stands in which row, the frames and the units of the
/// transformation are the clients'; the library fixes the sizes.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Number of system rows of ZELX_ORBIT_SAT_TABLE.
constexpr uint32_t POS_INDEX_SYSTEMARRAY_SIZE = 6;
/// Number of satellite characters per row of ZELX_ORBIT_SAT_TABLE.
constexpr uint32_t POS_MAX_SATS_SYSTEM = 63;

/// One character per satellite, a row per system; 378 bytes.
struct ZELTYPES_API ZELX_ORBIT_SAT_TABLE
{
    /// Status characters; their meaning and the system of each row are the clients'.
    char acTable[POS_INDEX_SYSTEMARRAY_SIZE][POS_MAX_SATS_SYSTEM] = {};

    /// Resets the record to its default state.
    void clear() { *this = ZELX_ORBIT_SAT_TABLE(); }

    /// The rows one after another, copied as one block: every byte is a character.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Bytes(r.acTable, sizeof(r.acTable));
    }

    /// "NumSys, " 6 ", NumSats, " 63, then ", " and each character, row
    /// after row. The reader checks the two numbers and reads the 378
    /// characters whatever they said.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        if constexpr (IO::c_bReading)
        {
            uint32_t ulNumSys = 0;
            uint32_t ulNumSats = 0;
            io.Tag("NumSys, ").Value(ulNumSys).Tag(", NumSats, ").Value(ulNumSats);
            ZEL_ASSERT(ulNumSys == POS_INDEX_SYSTEMARRAY_SIZE);
            ZEL_ASSERT(ulNumSats == POS_MAX_SATS_SYSTEM);
        }
        else
        {
            io.Tag("NumSys, ")
                .Value(POS_INDEX_SYSTEMARRAY_SIZE)
                .Tag(", NumSats, ")
                .Value(POS_MAX_SATS_SYSTEM);
        }
        for (auto& racRow : r.acTable)
        {
            for (auto& rc : racRow)
            {
                io.Tag(", ").Value(rc);
            }
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

/// Byte by byte.
ZELTYPES_API bool operator==(const ZELX_ORBIT_SAT_TABLE& a, const ZELX_ORBIT_SAT_TABLE& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZELX_ORBIT_SAT_TABLE& rTable);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, ZELX_ORBIT_SAT_TABLE& rTable);

/// A translation and the upper triangle of a 3 by 3 matrix: scale terms on
/// the diagonal, rotation terms above it. Frames and units are the clients'.
struct ZELTYPES_API ZELX_ORBIT_FRAME_TRANSFORM
{
    /// Positions in adUpper, packed column by column.
    static constexpr size_t c_ulSCALE_X = 0; ///< row 0, column 0
    static constexpr size_t c_ulROT_XY = 1;  ///< row 0, column 1
    static constexpr size_t c_ulSCALE_Y = 2; ///< row 1, column 1
    static constexpr size_t c_ulROT_XZ = 3;  ///< row 0, column 2
    static constexpr size_t c_ulROT_YZ = 4;  ///< row 1, column 2
    static constexpr size_t c_ulSCALE_Z = 5; ///< row 2, column 2

    /// Translation, in the clients' unit.
    double adTrans[3] = {0.0, 0.0, 0.0};
    /// Upper triangle of the matrix, indexed by the c_ul* positions.
    double adUpper[6] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0};

    /// Resets the record to its default state.
    void clear() { *this = ZELX_ORBIT_FRAME_TRANSFORM(); }

    /// The nine values in order, 72 bytes.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.adTrans);
        return io.Raw(r.adUpper);
    }

    /// "Trans, " translations ", Scale, " the diagonal ", Rot, " the terms
    /// above it, at the stream's precision.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Trans, ").Array(r.adTrans);
        io.Tag(", Scale, ").Value(r.adUpper[c_ulSCALE_X]).Tag(", ").Value(r.adUpper[c_ulSCALE_Y]);
        io.Tag(", ").Value(r.adUpper[c_ulSCALE_Z]);
        io.Tag(", Rot, ").Value(r.adUpper[c_ulROT_XY]).Tag(", ").Value(r.adUpper[c_ulROT_XZ]);
        io.Tag(", ").Value(r.adUpper[c_ulROT_YZ]);
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

/// All nine values bit for bit: 0.0 and -0.0 differ.
ZELTYPES_API bool operator==(const ZELX_ORBIT_FRAME_TRANSFORM& a, const ZELX_ORBIT_FRAME_TRANSFORM& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const ZELX_ORBIT_FRAME_TRANSFORM& rTransform);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, ZELX_ORBIT_FRAME_TRANSFORM& rTransform);

} // namespace ZELN

#endif
