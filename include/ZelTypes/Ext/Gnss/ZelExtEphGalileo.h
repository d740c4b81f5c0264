#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHGALILEO_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHGALILEO_H

/// \file
/// The Galileo ephemeris: the Keplerian block, seconds of a week that the
/// record does not store (the week comes from a nearby reference time), the
/// signal health of the I/NAV and F/NAV streams and the SISA index.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

/// Kinds of a message stream, by getNavKind.
enum EZelGalNavKind
{
    ZELGALNAVKIND_NONE = 0,
    ZELGALNAVKIND_FNAV = 1,
    ZELGALNAVKIND_INAV = 2
};

/// Where a decoder puts a Galileo set:
/// - the satellite: POS_OFFSET_PRN_GAL + PRN into uiSVID; a source other than
///   POS_SAT_EPH_GAL_SRC_INVALID into uiEphSource (its values are the
///   decoder's; 0 means that the record holds no set);
/// - the stream into ulNavType: 5 for F/NAV; for I/NAV 2 when the health of
///   E1-B counts, 3 when that of E5b counts, 4 when both count; 1 is an I/NAV
///   set of unknown signal and never healthy; 0 none;
/// - the health bits, as broadcast, through setHealthINav: bit 0 DVS E1-B,
///   bits 1 and 2 HS E1-B, bit 3 DVS E5b, bits 4 and 5 HS E5b; or through
///   setHealthFNav: bit 0 DVS E5a, bits 1 and 2 HS E5a. A source that orders
///   the bits otherwise is mapped to this order first;
/// - IODnav into unIodNav; the SISA index into ucSisaIndex (getSisa and setSisa
///   convert from and to metres);
/// - the times of ephemeris and clock as seconds of the week into ulToe and
///   ulToc, and a time near them into stRefTimeApprox through
///   setRefTimeApprox: getToe and getToc give the instance of each second of
///   a GPS week nearest to that time, so it gives the week;
/// - the clock polynomial of the stream into dAf0, dAf1, dAf2 and the group
///   delays E1-E5a and E1-E5b into dBgdE5a and dBgdE5b, in the producer's
///   units, which the library never scales;
/// - the broadcast week and second into unPT1Week and ulPT1Tow through
///   setPT1Time (getPT1Time gives the full time).
class ZELTYPES_API ZELX_SAT_EPHEMERIS_GALILEO : public ZELX_SAT_EPHEMERIS_COMMON,
                                                public ZELX_SAT_EPHEMERIS_BASE
{
public:
    /// Version byte of the image.
    static constexpr uint8_t c_ucImageVersion = 5;
    /// Value of ulPT1Tow when no broadcast second was set.
    static constexpr uint32_t c_ulPT1_TOW_UNSET = 0xFFFFFF;
    static constexpr uint8_t c_ucSISA_NAPA = 0xFF; ///< no accuracy prediction

    uint32_t ulNavType = 0;                            ///< 0 none, 1 to 4 the I/NAV kinds, 5 F/NAV
    uint8_t uiSVID = 0;                                ///< running number
    uint8_t uiEphSource = POS_SAT_EPH_GAL_SRC_INVALID; ///< POS_SAT_EPH_GAL_SRC_INVALID: no set held
    uint8_t ucAux1 = 0;                                ///< compared
    uint16_t unIodNav = 0;                             ///< issue of data
    uint8_t ucSisaIndex = 0;                           ///< SISA index; c_ucSISA_NAPA: none
    ///@{
    /// signal health, two bits
    uint8_t ucHsE1b = 1, ucHsE5b = 1, ucHsE5a = 1;
    ///@}
    ///@{
    /// data validity, one bit
    uint8_t ucDvsE1b = 0, ucDvsE5b = 0, ucDvsE5a = 0;
    ///@}
    uint32_t ulToe = 0; ///< time of ephemeris, second of the week
    uint32_t ulToc = 0; ///< time of clock, second of the week
    ///@{
    /// clock polynomial, producer's units
    double dAf0 = 0.0, dAf1 = 0.0, dAf2 = 0.0;
    ///@}
    ///@{
    /// group delays, producer's unit
    double dBgdE5a = 0.0, dBgdE5b = 0.0;
    ///@}
    SMjdTime stRefTimeApprox;              ///< a time near the set, gives the week
    uint16_t unPT1Week = 0;                ///< broadcast week
    uint32_t ulPT1Tow = c_ulPT1_TOW_UNSET; ///< broadcast second of the week

    /// Constructs the default state (for a record: holding no data).
    ZELX_SAT_EPHEMERIS_GALILEO() = default;
    /// Empty record of the given stream kind (ulNavType).
    explicit ZELX_SAT_EPHEMERIS_GALILEO(uint32_t ulNavTypeInit) : ulNavType(ulNavTypeInit) {}
    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_GALILEO() override;

    /// Unlike the constructor, also zeroes the signal health.
    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    /// The instance of ulToe nearest to stRefTimeApprox.
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Span of +-10800 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    /// The instance of ulToc nearest to stRefTimeApprox.
    SMjdTime getToc() const;
    /// Full time of the broadcast pair, across 4096-week rollovers.
    SMjdTime getPT1Time() const;
    /// Sets the broadcast week and second of the week.
    void setPT1Time(uint16_t unWeek, uint32_t ulTow);
    /// Copies the time and sets its accuracy to 1 (nanosecond).
    void setRefTimeApprox(const SMjdTime& stTime);

    /// I/NAV for ulNavType 1 to 4, F/NAV for 5, else none.
    EZelGalNavKind getNavKind() const;
    /// dAf0 of an F/NAV set, else 0.0.
    double getAf0FNav() const;
    /// dAf1 of an F/NAV set, else 0.0.
    double getAf1FNav() const;
    /// dAf2 of an F/NAV set, else 0.0.
    double getAf2FNav() const;
    /// dAf0 of an I/NAV set, else 0.0.
    double getAf0INav() const;
    /// dAf1 of an I/NAV set, else 0.0.
    double getAf1INav() const;
    /// dAf2 of an I/NAV set, else 0.0.
    double getAf2INav() const;
    /// Clock reference time of an F/NAV set as seconds of the GPS week, else 0.
    uint32_t getTocSecondsFNav() const;
    /// Clock reference time of an I/NAV set as seconds of the GPS week, else 0.
    uint32_t getTocSecondsINav() const;

    /// Makes the set F/NAV (ulNavType 5) and takes the E5a health bits (bit 0 DVS, bits 1-2 HS); clears those
    /// of E1-B.
    void setHealthFNav(uint8_t ucBits);
    /// Makes the set I/NAV (ulNavType 4) and takes the E1-B and E5b health bits; clears those of E5a.
    void setHealthINav(uint8_t ucBits);
    /// The E5a health bits in the order of setHealthFNav; 0 for a set that is not F/NAV.
    uint8_t getHealthFNav() const;
    /// The E1-B and E5b health bits in the order of setHealthINav; 0 for a set that is not I/NAV.
    uint8_t getHealthINav() const;

    /// Signal-in-space accuracy of ucSisaIndex, in metres; -1.0 for an index above 125.
    double getSisa() const;
    /// False, with a report, above 6 m; the index is then c_ucSISA_NAPA.
    bool setSisa(double dMetres);

    /// Sets ulNavType.
    void setNavType(uint32_t ulValue) { ulNavType = ulValue; }
    /// Sets uiSVID.
    void setSvId(uint8_t uiValue) { uiSVID = uiValue; }
    /// Sets uiEphSource.
    void setEphSource(uint8_t uiValue) { uiEphSource = uiValue; }
    /// Sets ucAux1.
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    /// Sets unIodNav.
    void setIodNav(uint16_t unValue) { unIodNav = unValue; }
    /// Sets ucSisaIndex.
    void setSisaIndex(uint8_t ucValue) { ucSisaIndex = ucValue; }
    /// Sets ucHsE1b.
    void setHsE1b(uint8_t ucValue) { ucHsE1b = ucValue; }
    /// Sets ucHsE5b.
    void setHsE5b(uint8_t ucValue) { ucHsE5b = ucValue; }
    /// Sets ucHsE5a.
    void setHsE5a(uint8_t ucValue) { ucHsE5a = ucValue; }
    /// Sets ucDvsE1b.
    void setDvsE1b(uint8_t ucValue) { ucDvsE1b = ucValue; }
    /// Sets ucDvsE5b.
    void setDvsE5b(uint8_t ucValue) { ucDvsE5b = ucValue; }
    /// Sets ucDvsE5a.
    void setDvsE5a(uint8_t ucValue) { ucDvsE5a = ucValue; }
    /// Sets ulToe.
    void setToe(uint32_t ulValue) { ulToe = ulValue; }
    /// Sets ulToc.
    void setToc(uint32_t ulValue) { ulToc = ulValue; }
    /// Sets dAf0.
    void setAf0(double dValue) { dAf0 = dValue; }
    /// Sets dAf1.
    void setAf1(double dValue) { dAf1 = dValue; }
    /// Sets dAf2.
    void setAf2(double dValue) { dAf2 = dValue; }
    /// Sets dBgdE5a.
    void setBgdE5a(double dValue) { dBgdE5a = dValue; }
    /// Sets dBgdE5b.
    void setBgdE5b(double dValue) { dBgdE5b = dValue; }

    /// Image, 183 bytes: the version, the fields in declaration order, then
    /// the common block.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Version(c_ucImageVersion) && io.Raw(r.ulNavType) && io.Raw(r.uiSVID) &&
               io.Raw(r.uiEphSource) && io.Raw(r.ucAux1) && io.Raw(r.unIodNav) && io.Raw(r.ucSisaIndex) &&
               io.Raw(r.ucHsE1b) && io.Raw(r.ucHsE5b) && io.Raw(r.ucHsE5a) && io.Raw(r.ucDvsE1b) &&
               io.Raw(r.ucDvsE5b) && io.Raw(r.ucDvsE5a) && io.Raw(r.ulToe) && io.Raw(r.ulToc) &&
               io.Raw(r.dAf0) && io.Raw(r.dAf1) && io.Raw(r.dAf2) && io.Raw(r.dBgdE5a) && io.Raw(r.dBgdE5b) &&
               io.Record(r.stRefTimeApprox, true) && io.Raw(r.unPT1Week) && io.Raw(r.ulPT1Tow) &&
               io.template ExtRecord<ZELX_SAT_EPHEMERIS_COMMON>(r);
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return ZelIo::SizeOf(*this); }
    /// Writes the byte image into pBuffer (uiBufferLength bytes), version byte first where the record has
    /// one; false on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    /// Reads the byte image from pBuffer (uiBufferLength bytes); false on a null buffer, on an image of
    /// another version, and on a short buffer where the record tests the length first.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);

private:
    SMjdTime nearestInstance(uint32_t ulSecondsOfWeek) const;
};

/// uiEphSource, stRefTimeApprox and the PT1 pair take no direct part; the
/// reference times compare through getToc and getToe.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_GALILEO& a, const ZELX_SAT_EPHEMERIS_GALILEO& b);

/// With bContentOnly, a set not older than the held one replaces it whenever it differs.
ZELTYPES_API bool isNewEphemerisGalileo(const ZELX_SAT_EPHEMERIS_GALILEO& rEphCurrent,
                                        const ZELX_SAT_EPHEMERIS_GALILEO& rEphNew, bool bContentOnly = false);

} // namespace ZELN

#endif
