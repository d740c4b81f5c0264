#ifndef ZELTYPES_EXT_GNSS_ZELEXTALMANAC_H
#define ZELTYPES_EXT_GNSS_ZELEXTALMANAC_H

/// \file
/// The almanac family: the coarse, long-lived orbit of one satellite, one
/// class per constellation on a common Keplerian block, with the health and
/// validity rules, versioned images and the update decisions. Almanacs are
/// carried and judged here, never evaluated.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>
#include <ZelTypes/Core/Common/mjdTime.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace ZELN
{

/// Version byte of every versioned almanac image.
constexpr uint8_t c_ucALMANAC_VERSION = 2;

/// The family's one assignment of almanac elements to the Keplerian block.
enum EZelAlmKeplerIndex : int32_t
{
    ZELALMKEPLER_M0 = 0,     ///< mean anomaly at the reference time, rad
    ZELALMKEPLER_ECC = 1,    ///< eccentricity
    ZELALMKEPLER_SQRTA = 2,  ///< square root of the semi-major axis, m^0.5
    ZELALMKEPLER_OMEGA0 = 3, ///< longitude of the ascending node at the weekly epoch, rad
    ZELALMKEPLER_INCL = 4,   ///< inclination, rad; BeiDou outside the GEO orbit: offset from 0.3 semicircles
    ZELALMKEPLER_OMEGA = 5,  ///< argument of perigee, rad
    ZELALMKEPLER_OMEGADOT = 6, ///< rate of right ascension, rad/s
    ZELALMKEPLER_AF0 = 7,      ///< clock offset, s
    ZELALMKEPLER_AF1 = 8,      ///< clock drift, s/s
    ZELALMKEPLER_COUNT = 9
};

/// The GLONASS almanac elements.
enum EZelAlmGlonassIndex : int32_t
{
    ZELALMGLONASS_TLAMBDA = 0,   ///< time of the first ascending node of the day, s
    ZELALMGLONASS_LAMBDA = 1,    ///< longitude of that node, rad
    ZELALMGLONASS_DELTAI = 2,    ///< correction to the mean inclination, rad
    ZELALMGLONASS_DELTAT = 3,    ///< correction to the mean draconic period, s
    ZELALMGLONASS_DELTATDOT = 4, ///< rate of that correction, s/orbit
    ZELALMGLONASS_ECC = 5,       ///< eccentricity
    ZELALMGLONASS_OMEGA = 6,     ///< argument of perigee, rad
    ZELALMGLONASS_TAU = 7,       ///< clock offset, s
    ZELALMGLONASS_COUNT = 8
};

/// Abstract interface of every almanac. The slot order is part of the
/// exported interface: do not reorder.
class ZELTYPES_API IZELX_SAT_ALMANAC_BASE
{
public:
    /// Destroys the object.
    virtual ~IZELX_SAT_ALMANAC_BASE();
    /// Satellite of the almanac.
    virtual SZelSatID getSatId() const = 0;
    /// Reference time of the almanac.
    virtual SMjdTime getToa() const = 0;
    /// True when the broadcast health says the satellite is usable, by each system's own rule.
    virtual bool isHealthy() const = 0;

protected:
    /// Constructs the default state (for a record: holding no data).
    IZELX_SAT_ALMANAC_BASE() = default;
    /// Copies another object.
    IZELX_SAT_ALMANAC_BASE(const IZELX_SAT_ALMANAC_BASE&) = default;
    /// Copies another object into this one.
    IZELX_SAT_ALMANAC_BASE& operator=(const IZELX_SAT_ALMANAC_BASE&) = default;
};

/// The satellite, the reference time and the Keplerian block; abstract, as
/// its health rule is each constellation's.
class ZELTYPES_API ZELX_SAT_ALMANAC_COMMON : public IZELX_SAT_ALMANAC_BASE
{
public:
    /// Size of the image of this part, in bytes.
    static constexpr uint64_t c_ulImageSize = 94;
    /// Nominal inclination of the BeiDou orbits outside the GEO orbit: 0.3 semicircles, rad.
    static constexpr double c_dBDS_NOMINAL_INCLINATION = 0.9424777960769379;

    /// Satellite of the almanac.
    SZelSatID stSatId;
    SMjdTime stToa; ///< reference time of the almanac
    /// Almanac elements by EZelAlmKeplerIndex, in the producer's units.
    double adKepler[ZELALMKEPLER_COUNT] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC_COMMON() = default;
    /// Copies another object.
    ZELX_SAT_ALMANAC_COMMON(const ZELX_SAT_ALMANAC_COMMON&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC_COMMON& operator=(const ZELX_SAT_ALMANAC_COMMON&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC_COMMON() override;

    /// Returns stSatId.
    SZelSatID getSatId() const override;
    /// Returns stToa.
    SMjdTime getToa() const override;
    bool isHealthy() const override = 0;
    /// Satellite exactly, reference time equal, the block at a relative 1e-14.
    virtual bool isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const;
    /// Negation of isEqual().
    virtual bool isDifferent(const ZELX_SAT_ALMANAC_COMMON& rOther) const;
    /// Resets the record to its default state.
    virtual void clear();
    /// Takes the satellite, the reference time and the block of rOther.
    virtual void assign(const ZELX_SAT_ALMANAC_COMMON& rOther);
    /// True when the record can be used: here, when the satellite is valid; each class adds its own rules.
    virtual bool isValid() const;

    /// Square root of the semi-major axis, in the producer's unit.
    double getSqrtA() const { return adKepler[ZELALMKEPLER_SQRTA]; }
    /// Semi-major axis, m.
    double getA() const { return adKepler[ZELALMKEPLER_SQRTA] * adKepler[ZELALMKEPLER_SQRTA]; }
    /// True when a reference time is set.
    bool hasToa() const { return stToa.IsSet(); }
    /// Inclination, rad: the nominal one added for BeiDou outside the GEO orbit.
    double getInclination() const;

    /// Version 2 at 0, system code at 1, number at 5, stToa at 6, the block at 22.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Version(c_ucALMANAC_VERSION);
        if (!io.Raw(r.stSatId.eSatSystem) || !io.Raw(r.stSatId.uiSatNumber))
        {
            // The satellite carries no length test of its own; a buffer that
            // ends inside it cannot be read past.
            ZEL_ASSERT(false);
            return false;
        }
        if (!io.Record(r.stToa))
        {
            return false;
        }
        if constexpr (IO::c_bLoading)
        {
            // The image length is looked at only after the block; a buffer
            // that ends inside the block cannot be read past: the length
            // report, and false.
            ZEL_ASSERT_TEXT(io.Remaining() >= sizeof(r.adKepler), "ulDataSize <= uiBufferLength");
            if (io.Remaining() < sizeof(r.adKepler))
            {
                return false;
            }
        }
        return io.Raw(r.adKepler);
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

namespace ZelAlmIo
{

/// The image of a base class at the end of a derived image. The reader hands
/// the rest of the buffer to the base's reader, after the derived fields
/// were read with no length test of their own: a buffer that ends among them
/// cannot be read past, "false".
template <class TBase, class IO, class Self> bool BaseImage(IO& io, Self& r)
{
    using TBaseRef = std::conditional_t<std::is_const<Self>::value, const TBase&, TBase&>;
    TBaseRef rBase = r;
    if constexpr (IO::c_bLoading)
    {
        if (io.Failed())
        {
            ZEL_ASSERT(false);
            return false;
        }
        return rBase.loadData(io.Here(), io.Remaining());
    }
    else
    {
        return io.ExtRecord(rBase);
    }
}

/// The reader of a versioned almanac image: null or empty buffer "false",
/// another version refused silently, then the fields.
template <class R> bool LoadVersioned(R& rRecord, const unsigned char* pBuffer, uint64_t uiBufferLength)
{
    if (pBuffer == nullptr || uiBufferLength == 0)
    {
        ZEL_ASSERT(false);
        return false;
    }
    if (pBuffer[0] != c_ucALMANAC_VERSION)
    {
        return false;
    }
    ZelIo::CBinReader stIn(pBuffer, uiBufferLength, nullptr);
    return R::VisitFields(stIn, rRecord);
}

} // namespace ZelAlmIo

/// The GPS almanac.
class ZELTYPES_API ZELX_SAT_ALMANAC : public ZELX_SAT_ALMANAC_COMMON
{
public:
    /// Size of the image, in bytes.
    static constexpr uint64_t c_ulImageSize = 114;
    static constexpr uint32_t c_ulSOURCE_BROADCAST = 2; ///< decoded from the navigation message
    static constexpr uint8_t c_ucCONFIG_NONE = 63;      ///< no configuration word received

    uint32_t ulSource = 0; ///< where the almanac came from; c_ulSOURCE_BROADCAST when decoded
    uint32_t ulToa = 0;    ///< reference time, second of the GPS week
    uint8_t ucHealth = 0;  ///< broadcast health; 0 healthy
    uint8_t ucConfig = 0;  ///< broadcast configuration; c_ucCONFIG_NONE when none was received
    uint8_t ucAux1 = 0;    ///< carried and compared; its meaning is the decoder's
    double dAux2 = 0.0;    ///< carried and compared; its meaning and unit are the decoder's

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC() = default;
    /// Copies another object.
    ZELX_SAT_ALMANAC(const ZELX_SAT_ALMANAC&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC& operator=(const ZELX_SAT_ALMANAC&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC() override;

    bool isHealthy() const override;
    bool isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const override;
    /// Resets the record to its default state.
    void clear() override;
    bool isValid() const override;
    using ZELX_SAT_ALMANAC_COMMON::assign;
    /// Copies every field of rOther.
    virtual void assign(const ZELX_SAT_ALMANAC& rOther);

    /// Version 2 at 0, ulSource at 1, ulToa at 5, ucHealth at 9, ucConfig at
    /// 10, ucAux1 at 11, dAux2 at 12, the COMMON image at 20.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Version(c_ucALMANAC_VERSION);
        io.Raw(r.ulSource);
        io.Raw(r.ulToa);
        io.Raw(r.ucHealth);
        io.Raw(r.ucConfig);
        io.Raw(r.ucAux1);
        io.Raw(r.dAux2);
        return ZelAlmIo::BaseImage<ZELX_SAT_ALMANAC_COMMON>(io, r);
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

/// The QZSS almanac: the GPS one with two further words.
class ZELTYPES_API ZELX_SAT_ALMANAC_QZSS : public ZELX_SAT_ALMANAC
{
public:
    /// Size of the image, in bytes.
    static constexpr uint64_t c_ulImageSize = 121;

    uint16_t unAux3 = 0; ///< carried only
    uint32_t ulAux4 = 0; ///< carried only

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC_QZSS();
    /// Copies another object.
    ZELX_SAT_ALMANAC_QZSS(const ZELX_SAT_ALMANAC_QZSS&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC_QZSS& operator=(const ZELX_SAT_ALMANAC_QZSS&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC_QZSS() override;

    bool isHealthy() const override;
    bool isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const override;
    /// Resets the record to its default state.
    void clear() override;
    bool isValid() const override;
    using ZELX_SAT_ALMANAC::assign;
    /// Copies every field of rOther.
    virtual void assign(const ZELX_SAT_ALMANAC_QZSS& rOther);

    /// Version 2 at 0, unAux3 at 1, ulAux4 at 3, the GPS image at 7.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Version(c_ucALMANAC_VERSION);
        io.Raw(r.unAux3);
        io.Raw(r.ulAux4);
        return ZelAlmIo::BaseImage<ZELX_SAT_ALMANAC>(io, r);
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

/// The Galileo almanac.
class ZELTYPES_API ZELX_SAT_ALMANAC_GALILEO : public ZELX_SAT_ALMANAC_COMMON
{
public:
    /// Size of the image, in bytes.
    static constexpr uint64_t c_ulImageSize = 100;

    uint8_t ucAux1 = 0;       ///< carried and compared
    uint8_t bPresent = 0;     ///< not 0 when the almanac was received
    uint8_t ucSignalMask = 0; ///< bit 0: ucStatusA describes the satellite, bit 1: ucStatusB
    uint8_t ucStatusA = 0;    ///< health and validity bits of the first signal
    uint8_t ucStatusB = 0;    ///< health and validity bits of the second signal

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC_GALILEO();
    /// Copies another object.
    ZELX_SAT_ALMANAC_GALILEO(const ZELX_SAT_ALMANAC_GALILEO&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC_GALILEO& operator=(const ZELX_SAT_ALMANAC_GALILEO&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC_GALILEO() override;

    bool isHealthy() const override;
    bool isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const override;
    /// Resets the record to its default state.
    void clear() override;
    bool isValid() const override;
    using ZELX_SAT_ALMANAC_COMMON::assign;
    /// Copies every field of rOther.
    virtual void assign(const ZELX_SAT_ALMANAC_GALILEO& rOther);

    /// Version 2 at 0, the five bytes at 1, the COMMON image at 6.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Version(c_ucALMANAC_VERSION);
        io.Raw(r.ucAux1);
        io.Raw(r.bPresent);
        io.Raw(r.ucSignalMask);
        io.Raw(r.ucStatusA);
        io.Raw(r.ucStatusB);
        return ZelAlmIo::BaseImage<ZELX_SAT_ALMANAC_COMMON>(io, r);
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

/// The BeiDou almanac.
class ZELTYPES_API ZELX_SAT_ALMANAC_BEIDOU : public ZELX_SAT_ALMANAC_COMMON
{
public:
    /// Size of the image, in bytes.
    static constexpr uint64_t c_ulImageSize = 104;

    bool bPresent = false; ///< the almanac was received
    uint16_t unAux1 = 0;   ///< carried only
    uint32_t ulAux2 = 0;   ///< carried only
    uint16_t unHealth = 0; ///< broadcast health word; bits 1 and 8 mark an unhealthy satellite

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC_BEIDOU();
    /// Copies another object.
    ZELX_SAT_ALMANAC_BEIDOU(const ZELX_SAT_ALMANAC_BEIDOU&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC_BEIDOU& operator=(const ZELX_SAT_ALMANAC_BEIDOU&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC_BEIDOU() override;

    bool isHealthy() const override;
    bool isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const override;
    /// Resets the record to its default state.
    void clear() override;
    bool isValid() const override;
    using ZELX_SAT_ALMANAC_COMMON::assign;
    /// Copies every field of rOther.
    virtual void assign(const ZELX_SAT_ALMANAC_BEIDOU& rOther);

    /// Version 2 at 0, bPresent at 1, unAux1 at 2, ulAux2 at 4, unHealth at
    /// 8, the COMMON image at 10.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Version(c_ucALMANAC_VERSION);
        io.Raw(r.bPresent);
        io.Raw(r.unAux1);
        io.Raw(r.ulAux2);
        io.Raw(r.unHealth);
        return ZelAlmIo::BaseImage<ZELX_SAT_ALMANAC_COMMON>(io, r);
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

/// The NavIC almanac.
class ZELTYPES_API ZELX_SAT_ALMANAC_NAVIC : public ZELX_SAT_ALMANAC_COMMON
{
public:
    /// Size of the image, in bytes.
    static constexpr uint64_t c_ulImageSize = 110;

    uint16_t unAux1 = 0;   ///< carried only
    uint32_t ulAux2 = 0;   ///< carried only
    bool bPresent = false; ///< the almanac was received
    uint32_t ulAux3 = 0;   ///< carried only
    uint32_t ulAux4 = 0;   ///< carried and compared

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC_NAVIC();
    /// Copies another object.
    ZELX_SAT_ALMANAC_NAVIC(const ZELX_SAT_ALMANAC_NAVIC&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC_NAVIC& operator=(const ZELX_SAT_ALMANAC_NAVIC&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC_NAVIC() override;

    bool isHealthy() const override;
    bool isEqual(const ZELX_SAT_ALMANAC_COMMON& rOther) const override;
    /// Resets the record to its default state.
    void clear() override;
    bool isValid() const override;
    using ZELX_SAT_ALMANAC_COMMON::assign;
    /// Copies every field of rOther.
    virtual void assign(const ZELX_SAT_ALMANAC_NAVIC& rOther);

    /// Version 2 at 0, unAux1 at 1, ulAux2 at 3, bPresent at 7, ulAux3 at 8,
    /// ulAux4 at 12, the COMMON image at 16.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Version(c_ucALMANAC_VERSION);
        io.Raw(r.unAux1);
        io.Raw(r.ulAux2);
        io.Raw(r.bPresent);
        io.Raw(r.ulAux3);
        io.Raw(r.ulAux4);
        return ZelAlmIo::BaseImage<ZELX_SAT_ALMANAC_COMMON>(io, r);
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

/// The GLONASS almanac: its own elements and no Keplerian block.
class ZELTYPES_API ZELX_SAT_ALMANAC_GLONASS : public IZELX_SAT_ALMANAC_BASE
{
public:
    /// Size of the image, in bytes.
    static constexpr uint64_t c_ulImageSize = 97;

    uint8_t ucSlot = 0;  ///< orbital slot, 1 to 24
    uint16_t unAux1 = 0; ///< carried only
    uint32_t ulAux2 = 0; ///< carried only
    uint8_t ucAux3 = 0;  ///< carried and compared
    /// True when the almanac was received.
    bool bPresent = false;
    int8_t cChannel = 0;   ///< frequency channel, -7 to 6
    SMjdTime stToa;        ///< reference time of the almanac
    uint8_t ucAux4 = 0;    ///< carried and compared
    uint16_t unAux5 = 0;   ///< carried and compared
    uint32_t ulHealth = 0; ///< 1 healthy, 0 not
    /// Almanac elements by EZelAlmGlonassIndex, in the producer's units.
    double adElements[ZELALMGLONASS_COUNT] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_ALMANAC_GLONASS() = default;
    /// Copies another object.
    ZELX_SAT_ALMANAC_GLONASS(const ZELX_SAT_ALMANAC_GLONASS&) = default;
    /// Copies another object into this one.
    ZELX_SAT_ALMANAC_GLONASS& operator=(const ZELX_SAT_ALMANAC_GLONASS&) = default;
    /// Destroys the object.
    ~ZELX_SAT_ALMANAC_GLONASS() override;

    /// System 2 and the slot.
    SZelSatID getSatId() const override;
    /// Returns stToa.
    SMjdTime getToa() const override;
    /// True when ulHealth is 1 (the healthy value here); reports an invalid record or a health above 1.
    bool isHealthy() const override;

    /// True when the almanac was received and slot (1 to 24) and channel (-7 to 6) are in range.
    bool isValid() const;
    /// Resets the record to its default state.
    void clear() { *this = ZELX_SAT_ALMANAC_GLONASS(); }

    /// No version byte: ucSlot at 0, unAux1 at 1, ulAux2 at 3, ucAux3 at 7,
    /// bPresent at 8, cChannel at 9, ucAux4 at 10, unAux5 at 11, ulHealth at
    /// 13, adElements at 17, stToa at 81.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Raw(r.ucSlot);
        io.Raw(r.unAux1);
        io.Raw(r.ulAux2);
        io.Raw(r.ucAux3);
        io.Raw(r.bPresent);
        io.Raw(r.cChannel);
        io.Raw(r.ucAux4);
        io.Raw(r.unAux5);
        io.Raw(r.ulHealth);
        io.Raw(r.adElements);
        return io.Record(r.stToa);
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

/// One raw broadcast frame of 29 bytes with the words that came with it.
struct ZELTYPES_API ZELX_NAV_SUBFRAME
{
    /// Size of the frame, in bytes.
    static constexpr size_t c_ulDATA_SIZE = 29;

    uint32_t ulAux1 = 0; ///< the users' words beside the frame
    /// A further word beside the frame, carried.
    uint16_t unAux2 = 0;
    /// A further word beside the frame, carried.
    uint8_t ucAux3 = 0;
    uint8_t aucData[c_ulDATA_SIZE] = {}; ///< the frame as received
    /// A further word beside the frame, carried.
    uint8_t ucAux4 = 0;

    /// Constructs the default state (for a record: holding no data).
    ZELX_NAV_SUBFRAME() = default;
    /// Copies 29 bytes of pData; another length reports "false": a longer one
    /// gives its first 29 bytes, a shorter one what there is, the rest zero.
    /// A null pData counts as no data.
    ZELX_NAV_SUBFRAME(uint32_t ulAux1Value, uint16_t unAux2Value, uint8_t ucAux3Value, const uint8_t* pData,
                      size_t ulLength, uint8_t ucAux4Value);
};

/// Every field exactly.
ZELTYPES_API bool operator==(const ZELX_NAV_SUBFRAME& a, const ZELX_NAV_SUBFRAME& b);

/// Equality of one class through its own isEqual.
inline bool operator==(const ZELX_SAT_ALMANAC& a, const ZELX_SAT_ALMANAC& b)
{
    return a.ZELX_SAT_ALMANAC::isEqual(b);
}
/// True when the two records are equal, field by field.
inline bool operator==(const ZELX_SAT_ALMANAC_QZSS& a, const ZELX_SAT_ALMANAC_QZSS& b)
{
    return a.ZELX_SAT_ALMANAC_QZSS::isEqual(b);
}
/// True when the two records are equal, field by field.
inline bool operator==(const ZELX_SAT_ALMANAC_GALILEO& a, const ZELX_SAT_ALMANAC_GALILEO& b)
{
    return a.ZELX_SAT_ALMANAC_GALILEO::isEqual(b);
}
/// True when the two records are equal, field by field.
inline bool operator==(const ZELX_SAT_ALMANAC_BEIDOU& a, const ZELX_SAT_ALMANAC_BEIDOU& b)
{
    return a.ZELX_SAT_ALMANAC_BEIDOU::isEqual(b);
}
/// True when the two records are equal, field by field.
inline bool operator==(const ZELX_SAT_ALMANAC_NAVIC& a, const ZELX_SAT_ALMANAC_NAVIC& b)
{
    return a.ZELX_SAT_ALMANAC_NAVIC::isEqual(b);
}

/// Slot, ucAux3, bPresent and channel exactly, the reference time equal,
/// ucAux4, unAux5 and ulHealth exactly, the elements at a relative 1e-14.
ZELTYPES_API bool operator==(const ZELX_SAT_ALMANAC_GLONASS& a, const ZELX_SAT_ALMANAC_GLONASS& b);

/// Update decisions: true when rNew is to replace rCurrent. An invalid new
/// almanac is never taken, an invalid held one always gives way; an older
/// one is not taken; else the new one is taken when the two differ.
ZELTYPES_API bool isNewAlmanac(const ZELX_SAT_ALMANAC_COMMON& rCurrent, const ZELX_SAT_ALMANAC_COMMON& rNew);
/// The update decision of the GLONASS almanac, by the same rules as isNewAlmanac().
ZELTYPES_API bool isNewAlmanacGlonass(const ZELX_SAT_ALMANAC_GLONASS& rCurrent,
                                      const ZELX_SAT_ALMANAC_GLONASS& rNew);

} // namespace ZELN

#endif
