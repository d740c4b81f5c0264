#ifndef ZELTYPES_EXT_COMMON_ZELEXTMISCTYPES_H
#define ZELTYPES_EXT_COMMON_ZELEXTMISCTYPES_H

/// \file
/// Small exchange records of the engine interface: the coordinate of a
/// master station and the horizontal offset of an antenna from its mark.

#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelCoordinateTriplet.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Ext/Common/ZelExtCoordTypes.h>

#include <cstdint>
#include <istream>
#include <ostream>

namespace ZELN
{

/// The coordinate of a master station of a network. stMstCoo holds the three
/// values of a triplet of type eCooSys (X, Y, Z in metres, or latitude and
/// longitude in radians and height in metres), as the producer sets them:
/// the library never converts or scales them.
struct ZELTYPES_API SZelMasterCoordinate
{
    EZelCoordinateSystem eCooSys = ZELCOORDINATESYSTEM_CARTESIAN; ///< type of the values in stMstCoo
    uint16_t usStnId = 0;    ///< identifier of the master station, the producer's
    uint16_t usReserved = 0; ///< travels as it stands, takes no part in ==
    SZelVector3d stMstCoo;   ///< the three coordinates, in the units eCooSys gives them

    /// Image, 32 bytes: system at 0 (32 bits), station at 4, the reserved
    /// bytes at 6, the coordinate at 8 through its own test.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.eCooSys) && io.Raw(r.usStnId) && io.Raw(r.usReserved) && io.Record(r.stMstCoo);
    }
    /// Text: ", CooSys, " word ", StnId, " number ", MstCoo, " vector. The
    /// first tag starts with a comma: the record is written behind another
    /// record's last value, and the reader starts with a char read. The word
    /// swallows its comma; the char read after it takes the first letter of
    /// the next tag.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag(", CooSys, ")
            .Word(r.eCooSys, c_aszCoordinateSystemWords, "Invalid", ZELCOORDINATESYSTEM_INVALID)
            .Tag(", StnId, ")
            .template Wide<uint32_t>(r.usStnId)
            .Tag(", MstCoo, ")
            .Value(r.stMstCoo);
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

/// The coordinate first (relative 1e-14), then system and station.
ZELTYPES_API bool operator==(const SZelMasterCoordinate& a, const SZelMasterCoordinate& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelMasterCoordinate& rMaster);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelMasterCoordinate& rMaster);

/// The horizontal offset of an antenna from its mark, towards local east and
/// north; the unit is the producer's (the library never scales it).
struct ZELTYPES_API SZelHorizontalOffset
{
    float fHrzOffsE = 0.0f; ///< towards east
    float fHrzOffsN = 0.0f; ///< towards north

    /// Constructs the default state (for a record: holding no data).
    SZelHorizontalOffset() = default;
    /// An offset of fEast towards east and fNorth towards north.
    SZelHorizontalOffset(float fEast, float fNorth) : fHrzOffsE(fEast), fHrzOffsN(fNorth) {}

    /// Image, 8 bytes: east at 0, north at 4.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.fHrzOffsE) && io.Raw(r.fHrzOffsN);
    }
    /// Text: "HrzOffsE, " value ", HrzOffsN, " value.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("HrzOffsE, ").Value(r.fHrzOffsE).Tag(", HrzOffsN, ").Value(r.fHrzOffsN);
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

/// Equal within a relative tolerance of 1e-6, in single precision.
ZELTYPES_API bool operator==(const SZelHorizontalOffset& a, const SZelHorizontalOffset& b);

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelHorizontalOffset& rOffset);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelHorizontalOffset& rOffset);

} // namespace ZELN

// ---------------------------------------------------------------------------
// Engine records: GLONASS code biases and the tuning values of the core.
// ---------------------------------------------------------------------------

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

namespace ZELN
{

/// The code biases of a GLONASS satellite per frequency, in the producer's
/// unit (metres where the producer follows the engine). A bias counts only
/// where its bit of ulValidMask is set.
struct ZELTYPES_API SZelGloCodeBias
{
    uint32_t ulValidMask = 0; ///< bit f-1: the bias of frequency f is valid
    double adBias[4] = {};    ///< the biases of the frequency enumerators 1 to 4

    /// The bias of eFrequency into rdBias: true only for a valid GLONASS
    /// satellite whose frequency bit is set; rdBias is left alone otherwise.
    bool GetBias(const SZelSatID& stSatId, EZelFrequency eFrequency, double& rdBias) const;

    /// Stores the bias of eFrequency (1 to 4) of a valid GLONASS satellite;
    /// anything else reports "false" and stores nothing. ulValidMask is left
    /// as it is: the caller sets it separately.
    void SetBias(const SZelSatID& stSatId, EZelFrequency eFrequency, double dBias);

    /// 1 shifted left by eFrequency - 1, the shift taken modulo 32.
    static uint32_t GetFrequencyBit(EZelFrequency eFrequency)
    {
        return 1u << ((static_cast<uint32_t>(eFrequency) - 1u) & 31u);
    }

    /// True exactly when eFirst is 1 and eSecond is 2.
    static bool IsPairOneTwo(EZelFrequency eFirst, EZelFrequency eSecond)
    {
        return eFirst == ZELFREQUENCY_L1CA && eSecond == ZELFREQUENCY_L1P;
    }
};

/// Mask and biases, exact: a NaN makes the record unequal to itself.
ZELTYPES_API bool operator==(const SZelGloCodeBias& a, const SZelGloCodeBias& b);

/// Tuning values of the core, with their defaults and no binary or text
/// form. What each value tunes is known to the module that uses it; the
/// fields are named by their position.
struct ZELTYPES_API SZelEngineTuning
{
    ///@{
    /// Tuning values with their defaults, in declaration order; the library
    /// does not interpret them.
    double adTune0[2] = {15000.0, -1.0};
    float afTune1[4] = {0.1745329f, 20.0f, 200.0f, 0.25f}; ///< the first is 10 degrees in radians
    int32_t alTune2[8] = {63, 2, 7, 0, 5, 2, 2, 2};
    int64_t allTune3[2] = {0, 0};
    uint16_t aunTune4[2] = {1, 0};
    double dTune5 = 1.0;
    uint16_t aunTune6[2] = {0, 1};
    double dTune7 = 3.03951367781155;
    double adTune8[3] = {0.0, 0.0, 0.0};
    int32_t lTune9 = 0x200100;
    double adTune10[2] = {181.0, 500.0};
    int64_t llTune11 = 7;
    uint8_t aucTune12[64] = {};
    double adTune13[8] = {0.6, 0.99, 0.0001, 4.0, 0.9, -2.0, 1.0, 1.0};
    int64_t llTune14 = 0;
    uint8_t ucTune15 = 1;
    ///@}
};

} // namespace ZELN

#endif
