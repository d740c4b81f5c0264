#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHNAVIC_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHNAVIC_H

/// \file
/// The NavIC ephemeris: the Keplerian block with full reference times, the
/// accuracy in metres, health flags and an alert flag.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

/// Where a decoder puts a NavIC set:
/// - the satellite: POS_OFFSET_PRN_NAVIC + PRN into ulPrn;
/// - the times of clock and ephemeris as full times into stToc and stToe, in
///   the scale of the times the client compares them with (checkValidity);
/// - IODEC into ucIodec (getIod; getCurveFitSeconds reads the fit from it);
/// - the clock polynomial af0, af1, af2 into adClock, in the producer's units,
///   which the library never scales; a further term into dAux2;
/// - the accuracy in metres into fUra (setUraIndex converts a URA index);
/// - the two health flags into ucHealthFlag1 and ucHealthFlag2 (0 healthy;
///   only the first counts for isHealthy) and the alert flag into
///   ucAlertFlag (1: do not use);
/// - the broadcast week and second into unPT1Week and ulPT1Tow through
///   setPT1Time (getPT1Time gives the full time, the week counting 1024 GPS
///   weeks on, with no rollover);
/// - further broadcast values into ulAux1 and ucAux3.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_NAVIC : public ZELX_SAT_EPHEMERIS_COMMON, public ZELX_SAT_EPHEMERIS_BASE
{
public:
    /// Version byte of the image; loadData refuses another.
    static constexpr uint8_t c_ucImageVersion = 3;
    /// Value of ulPT1Tow that marks the broadcast pair as unset: getPT1Time then gives a default time.
    static constexpr uint32_t c_ulPT1_TOW_UNSET = 0xFFFFFF;

    uint32_t ulPrn = 0;        ///< running number; getSvId gives its low byte
    uint32_t ulAux1 = 0;       ///< compared
    bool bValid = false;       ///< the record holds a received set; compared
    double adClock[3] = {};    ///< af0, af1, af2; producer's units
    float fUra = 0.0f;         ///< accuracy, metres
    SMjdTime stToc;            ///< time of clock
    double dAux2 = 0.0;        ///< producer's unit
    uint8_t ucIodec = 0;       ///< issue of data
    uint8_t ucHealthFlag1 = 0; ///< 0 healthy
    uint8_t ucHealthFlag2 = 0; ///< 0 healthy
    SMjdTime stToe;            ///< time of ephemeris
    uint8_t ucAlertFlag = 1;   ///< 1: do not use
    uint8_t ucAux3 = 0;        ///< compared
    uint16_t unPT1Week = 0;    ///< broadcast week
    uint32_t ulPT1Tow = 0;     ///< broadcast second of the week

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_NAVIC() override;

    /// Resets the record to its default state.
    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Span of +-7200 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    /// Curve fit interval in seconds, by ucIodec.
    uint32_t getCurveFitSeconds() const;
    /// Full time of the broadcast pair; no rollover.
    SMjdTime getPT1Time() const;
    /// Stores the broadcast week and second of the week, unchecked.
    void setPT1Time(uint16_t unWeek, uint32_t ulTow);

    /// True when health flag 1 is 0 (healthy).
    bool isFlag1Clear() const { return ucHealthFlag1 == 0; }
    /// True when health flag 2 is 0 (healthy).
    bool isFlag2Clear() const { return ucHealthFlag2 == 0; }
    /// True when the alert flag is 1: do not use.
    bool isAlert() const { return ucAlertFlag == 1; }

    /// Accuracy index of fUra (ConvUraMetresToIndex).
    uint8_t getUraIndex() const;
    /// Sets fUra, in metres, from an accuracy index (ConvUraIndexToMetres).
    void setUraIndex(uint8_t ucIndex);

    /// Sets ulPrn.
    void setPrn(uint32_t ulValue) { ulPrn = ulValue; }
    /// Sets ulAux1.
    void setAux1(uint32_t ulValue) { ulAux1 = ulValue; }
    /// Sets bValid.
    void setValid(bool bValue) { bValid = bValue; }
    /// Sets adClock[ulIndex]; an index from 3 on is reported and nothing is stored.
    void setClock(size_t ulIndex, double dValue);
    /// Sets fUra.
    void setUra(float fValue) { fUra = fValue; }
    /// Sets stToc.
    void setToc(const SMjdTime& stValue) { stToc = stValue; }
    /// Sets dAux2.
    void setAux2(double dValue) { dAux2 = dValue; }
    /// Sets ucIodec.
    void setIodec(uint8_t ucValue) { ucIodec = ucValue; }
    /// Sets ucHealthFlag1.
    void setHealthFlag1(uint8_t ucValue) { ucHealthFlag1 = ucValue; }
    /// Sets ucHealthFlag2.
    void setHealthFlag2(uint8_t ucValue) { ucHealthFlag2 = ucValue; }
    /// Sets stToe.
    void setToe(const SMjdTime& stValue) { stToe = stValue; }
    /// Sets ucAlertFlag.
    void setAlertFlag(uint8_t ucValue) { ucAlertFlag = ucValue; }
    /// Sets ucAux3.
    void setAux3(uint8_t ucValue) { ucAux3 = ucValue; }

    /// Image, 185 bytes: the version, the fields in declaration order, then
    /// the common block.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Version(c_ucImageVersion) && io.Raw(r.ulPrn) && io.Raw(r.ulAux1) && io.Raw(r.bValid) &&
               io.Raw(r.adClock) && io.Raw(r.fUra) && io.Record(r.stToc, true) && io.Raw(r.dAux2) &&
               io.Raw(r.ucIodec) && io.Raw(r.ucHealthFlag1) && io.Raw(r.ucHealthFlag2) &&
               io.Record(r.stToe, true) && io.Raw(r.ucAlertFlag) && io.Raw(r.ucAux3) && io.Raw(r.unPT1Week) &&
               io.Raw(r.ulPT1Tow) && io.template ExtRecord<ZELX_SAT_EPHEMERIS_COMMON>(r);
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

/// True when the two records are equal, field by field.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_NAVIC& a, const ZELX_SAT_EPHEMERIS_NAVIC& b);

/// True when rEphNew is to replace rEphCurrent: never when rEphNew is invalid; always when rEphCurrent is
/// invalid or the health verdict changes; else when its time of clock or, failing that, its time of ephemeris
/// is later.
ZELTYPES_API bool isNewEphemerisNavic(const ZELX_SAT_EPHEMERIS_NAVIC& rEphCurrent,
                                      const ZELX_SAT_EPHEMERIS_NAVIC& rEphNew);

} // namespace ZELN

#endif
