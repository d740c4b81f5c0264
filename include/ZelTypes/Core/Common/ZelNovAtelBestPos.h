#ifndef ZELTYPES_CORE_COMMON_ZELNOVATELBESTPOS_H
#define ZELTYPES_CORE_COMMON_ZELNOVATELBESTPOS_H

/// \file
/// A receiver's best position gathered in one record with its velocity,
/// dilution of precision and satellite usage. The producer fills the
/// fields; the library holds, compares, writes and reads them.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateSet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypes.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// Systems held in the usage array of SZelNovAtelBestPos.
constexpr size_t c_ulBESTPOS_NB_SYSTEMS = 8;

/// A best position with its velocity, DOP and satellite usage. ulType,
/// bStatic and the three floats start at zero here, so that a record is
/// never compared or written with indeterminate values; a producer sets them.
struct ZELTYPES_API SZelNovAtelBestPos
{
    SMjdTime stTime;                                     ///< time of the position
    uint32_t ulType = 0;                                 ///< position type, as the producer numbers it
    SZelCoordinateSet stCoordSet;                        ///< the position
    SZelPosQuality stCoordQuality;                       ///< its covariance
    SMjdTime stStaticSince;                              ///< start of the present static period
    bool bStatic = false;                                ///< the receiver is at rest
    double dAge = 0.0;                                   ///< age of the position's corrections, seconds
    SMjdTime stVelTime;                                  ///< time of the velocity
    double dLatency = 0.0;                               ///< latency of the velocity, seconds
    double dVelAge = 0.0;                                ///< age of the velocity's corrections, seconds
    SZelCoordinateSet stVelSet;                          ///< the velocity, metres per second
    SMjdTime stDopTime;                                  ///< time of the DOP
    SZelDOP stDop;                                       ///< dilution of precision
    SZelSysSatUsage astSatAvail[c_ulBESTPOS_NB_SYSTEMS]; ///< satellites per system

    /// Image, nothing padded: the times in their 16-byte form, the nested
    /// records through their own readers and writers; 93 + 12 + 36 + 672
    /// bytes and the two coordinate sets.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        if (!(io.Record(r.stTime) && io.Raw(r.ulType) && io.Record(r.stCoordSet) &&
              io.Record(r.stCoordQuality) && io.Record(r.stStaticSince) && io.Raw(r.bStatic) &&
              io.Raw(r.dAge) && io.Record(r.stVelTime) && io.Raw(r.dLatency) && io.Raw(r.dVelAge) &&
              io.Record(r.stVelSet) && io.Record(r.stDopTime) && io.Record(r.stDop)))
        {
            return false;
        }
        for (auto& rUsage : r.astSatAvail)
        {
            if (!io.Record(rUsage))
            {
                return false;
            }
        }
        return true;
    }

    /// Text: the time first with no tag, then each tag with its value; ", Age, "
    /// stands twice, for the position's age and for the velocity's. The usage
    /// records follow ", SatAvl", each behind ", "; the reader takes that tag
    /// with the comma after it as one token.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Value(r.stTime)
            .Tag(", Typ, ")
            .Value(r.ulType)
            .Tag(", CooSet, ")
            .Value(r.stCoordSet)
            .Tag(", CooQual, ")
            .Value(r.stCoordQuality)
            .Tag(", StatSince, ")
            .Value(r.stStaticSince)
            .Tag(", Stat, ")
            .Value(r.bStatic)
            .Tag(", Age, ")
            .Value(r.dAge)
            .Tag(", VelTime, ")
            .Value(r.stVelTime)
            .Tag(", Late, ")
            .Value(r.dLatency)
            .Tag(", Age, ")
            .Value(r.dVelAge)
            .Tag(", Vel, ")
            .Value(r.stVelSet)
            .Tag(", DopTime, ")
            .Value(r.stDopTime)
            .Tag(", Dop, ")
            .Value(r.stDop)
            .Tag(", SatAvl, ")
            .Value(r.astSatAvail[0]);
        for (size_t ulIdx = 1; ulIdx < c_ulBESTPOS_NB_SYSTEMS; ++ulIdx)
        {
            io.Tag(", ").Value(r.astSatAvail[ulIdx]);
        }
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Both test the room against getSize() of this object first; the count
    /// is cleared after that test.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); *pulOffset receives the bytes read. False on
    /// a null or short buffer; fields read before a failure keep their new values.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);
};

/// The eight usage records first, then the time (two-way tolerance) and the
/// other fields in order; the floats exactly, a NaN unequal.
ZELTYPES_API bool operator==(const SZelNovAtelBestPos& a, const SZelNovAtelBestPos& b);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelNovAtelBestPos& rBestPos);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelNovAtelBestPos& rBestPos);

} // namespace ZELN

#endif
