#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHGPS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHGPS_H

/// \file
/// The GPS ephemeris: the Keplerian block, week and seconds of the reference
/// times, the clock polynomial and the broadcast accuracy and health words.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

/// Where a decoder puts a GPS set:
/// - the orbit: the Keplerian elements and harmonic terms into the common block;
/// - the time of ephemeris: the full GPS week (not modulo 1024) into
///   unGPSWeek, the second of the week into ulToe; the time of clock into ulToc;
/// - the clock polynomial af0, af1, af2 into afClock, in EZelEphClockIndex order;
/// - IODC into unIodc, the issue that getIod gives and the update decision
///   compares; IODE has no field of its own and goes into aunWords[0], stored
///   and compared only; aunWords[1] to [4] are free for further words;
/// - the URA index into unUraIndex (getUra and setUra convert from and to metres),
///   the group delay into fGroupDelay, the six health bits into unHealth, the
///   fit interval flag into ucFitIntervalFlag;
/// - the second of the week at which the message was sent into ulTransmissionTime.
/// Values with no unit below keep the producer's unit: the library stores,
/// compares and writes them and never scales them.
class ZELTYPES_API ZELX_SAT_EPHEMERIS : public ZELX_SAT_EPHEMERIS_COMMON, public ZELX_SAT_EPHEMERIS_BASE
{
public:
    /// Value of ulTransmissionTime when the transmission time is unknown.
    static constexpr uint32_t c_ulNO_TRANSMISSION_TIME = 0xFFFFFFFF;
    /// Value of ucFitIntervalFlag when the fit interval flag is unknown.
    static constexpr uint8_t c_ucFIT_INTERVAL_UNKNOWN = 0xFF;

    uint8_t uiSvId = 0;                                     ///< running number; for GPS the PRN
    bool bValid = false;                                    ///< the record holds a received set
    uint32_t ulTransmissionTime = c_ulNO_TRANSMISSION_TIME; ///< s of the GPS week, or unknown
    uint16_t unGPSWeek = 0;                                 ///< full GPS week of ulToe
    uint16_t unUraIndex = 0;                                ///< URA index, 0 to 15
    uint16_t aunWords[5] = {}; ///< [0] IODE, [1] to [4] free; stored and compared only
    uint16_t unIodc = 0;       ///< issue of data, clock
    float fGroupDelay = 0.0f;  ///< group delay, producer's unit
    uint32_t ulToe = 0;        ///< time of ephemeris, s of the week unGPSWeek
    uint32_t ulToc = 0;        ///< time of clock, s of the GPS week
    float afClock[3] = {};     ///< af0, af1, af2; producer's units
    uint8_t ucFitIntervalFlag = c_ucFIT_INTERVAL_UNKNOWN; ///< 0, 1, or c_ucFIT_INTERVAL_UNKNOWN
    uint16_t unHealth = 1;                                ///< six health bits, low-order; 0 healthy

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS() override;

    /// Declared ahead of the interface overrides: the third slot of the COMMON side.
    virtual uint8_t getFitIntervalHours() const;
    /// Resets the record to its default state.
    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Span of +-10800 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    /// Returns ulTransmissionTime.
    uint32_t getTransmissionTime() const { return ulTransmissionTime; }
    /// Second relative to the week of ulToe; estimated on a 30-second grid when unknown.
    int32_t getTransmissionTimeOfWeek() const;

    /// Metres.
    float getUra() const;
    /// Sets unUraIndex to the first index whose limit is at or above fMetres (metres); 15 above the last
    /// limit.
    void setUra(float fMetres);

    /// Keeps the six low bits; higher bits are reported and dropped.
    void setHealth(uint16_t unValue);
    /// Unhealthy: health 32; healthy: 0.
    void setHealthBool(bool bUnhealthy);

    /// Sets uiSvId.
    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    /// Sets bValid.
    void setValid(bool bValue) { bValid = bValue; }
    /// Sets ulTransmissionTime.
    void setTransmissionTime(uint32_t ulValue) { ulTransmissionTime = ulValue; }
    /// Sets unGPSWeek.
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    /// Sets unUraIndex.
    void setUraIndex(uint16_t unValue) { unUraIndex = unValue; }
    /// Sets aunWords[ulIndex]; an index from 5 on is reported and nothing is stored.
    void setWord(size_t ulIndex, uint16_t unValue);
    /// Sets unIodc.
    void setIodc(uint16_t unValue) { unIodc = unValue; }
    /// Sets fGroupDelay.
    void setGroupDelay(float fValue) { fGroupDelay = fValue; }
    /// Sets ulToe.
    void setToe(uint32_t ulValue) { ulToe = ulValue; }
    /// Sets ulToc.
    void setToc(uint32_t ulValue) { ulToc = ulValue; }
    /// Sets afClock[ulIndex]; an index from 3 on is reported and nothing is stored.
    void setClock(size_t ulIndex, float fValue);
    /// Sets ucFitIntervalFlag.
    void setFitIntervalFlag(uint8_t ucValue) { ucFitIntervalFlag = ucValue; }

    /// Image, 145 bytes: the fields in declaration order, then the common block.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.uiSvId) && io.Raw(r.bValid) && io.Raw(r.ulTransmissionTime) && io.Raw(r.unGPSWeek) &&
               io.Raw(r.unUraIndex) && io.Raw(r.aunWords) && io.Raw(r.unIodc) && io.Raw(r.fGroupDelay) &&
               io.Raw(r.ulToe) && io.Raw(r.ulToc) && io.Raw(r.afClock) && io.Raw(r.ucFitIntervalFlag) &&
               io.Raw(r.unHealth) && io.template ExtRecord<ZELX_SAT_EPHEMERIS_COMMON>(r);
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

/// bValid and ulTransmissionTime take no part.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS& a, const ZELX_SAT_EPHEMERIS& b);

/// True when rEphNew is to replace rEphCurrent.
ZELTYPES_API bool isNewEphemerisGps(const ZELX_SAT_EPHEMERIS& rEphCurrent, const ZELX_SAT_EPHEMERIS& rEphNew);

} // namespace ZELN

#endif
