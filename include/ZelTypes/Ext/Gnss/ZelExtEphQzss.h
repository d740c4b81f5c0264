#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHQZSS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHQZSS_H

/// \file
/// The QZSS ephemeris: the GPS set with six further broadcast values, its own
/// health rule, fit intervals and a versioned image.

#include <ZelTypes/Ext/Gnss/ZelExtEphGps.h>

namespace ZELN
{

/// Where a decoder puts a QZSS set: as a GPS set (see ZELX_SAT_EPHEMERIS; the
/// times are a GPS week and seconds of it, IODE goes into aunWords[0]), with
/// POS_OFFSET_PRN_QZSS + 1 for PRN 193 in uiSvId, and six further broadcast
/// values into ucQzss1 to ulQzss6, to which the library attaches no meaning
/// and no unit: it stores and writes them, and compares the first four.
/// Health 1 counts as healthy here.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_QZSS : public ZELX_SAT_EPHEMERIS
{
public:
    /// Version byte of the image; loadData refuses another.
    static constexpr uint8_t c_ucImageVersion = 3;

    uint8_t ucQzss1 = 0;  ///< compared
    uint8_t ucQzss2 = 0;  ///< compared
    uint16_t unQzss3 = 0; ///< compared
    double dQzss4 = 0.0;  ///< compared at 1e-14
    uint16_t unQzss5 = 0; ///< not compared
    uint32_t ulQzss6 = 0; ///< not compared

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_QZSS() override;

    uint8_t getFitIntervalHours() const override;
    /// Resets the record to its default state.
    void clear() override;

    SZelSatID getSatId() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Span of +-7200 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    /// Returns ucQzss1.
    uint8_t getQzss1() const { return ucQzss1; }
    /// Returns ucQzss2.
    uint8_t getQzss2() const { return ucQzss2; }
    /// Returns unQzss3.
    uint16_t getQzss3() const { return unQzss3; }
    /// Returns dQzss4.
    double getQzss4() const { return dQzss4; }
    /// Returns unQzss5.
    uint16_t getQzss5() const { return unQzss5; }
    /// Returns ulQzss6.
    uint32_t getQzss6() const { return ulQzss6; }
    /// Sets ucQzss1.
    void setQzss1(uint8_t ucValue) { ucQzss1 = ucValue; }
    /// Sets ucQzss2.
    void setQzss2(uint8_t ucValue) { ucQzss2 = ucValue; }
    /// Sets unQzss3.
    void setQzss3(uint16_t unValue) { unQzss3 = unValue; }
    /// Sets dQzss4.
    void setQzss4(double dValue) { dQzss4 = dValue; }
    /// Sets unQzss5.
    void setQzss5(uint16_t unValue) { unQzss5 = unValue; }
    /// Sets ulQzss6.
    void setQzss6(uint32_t ulValue) { ulQzss6 = ulValue; }

    /// Image, 164 bytes: the version, the six values, then the GPS image.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Version(c_ucImageVersion) && io.Raw(r.ucQzss1) && io.Raw(r.ucQzss2) && io.Raw(r.unQzss3) &&
               io.Raw(r.dQzss4) && io.Raw(r.unQzss5) && io.Raw(r.ulQzss6) &&
               io.template ExtRecord<ZELX_SAT_EPHEMERIS>(r);
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

/// The GPS equality, then ucQzss1, ucQzss2, unQzss3 exactly and dQzss4 at 1e-14.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_QZSS& a, const ZELX_SAT_EPHEMERIS_QZSS& b);

/// True when rEphNew is to replace rEphCurrent: never when rEphNew is invalid; always when rEphCurrent is
/// invalid or the health verdict changes; never for an earlier time of ephemeris; always for another clock
/// issue of data or a later time of ephemeris. A changed content under the same time and issue is reported
/// and not taken.
ZELTYPES_API bool isNewEphemerisQzss(const ZELX_SAT_EPHEMERIS_QZSS& rEphCurrent,
                                     const ZELX_SAT_EPHEMERIS_QZSS& rEphNew);

} // namespace ZELN

#endif
