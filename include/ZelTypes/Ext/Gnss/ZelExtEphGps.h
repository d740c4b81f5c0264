#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHGPS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHGPS_H

// The GPS ephemeris: the Keplerian block, week and seconds of the reference
// times, the clock polynomial and the broadcast accuracy and health words.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

class ZELTYPES_API ZELX_SAT_EPHEMERIS : public ZELX_SAT_EPHEMERIS_COMMON, public ZELX_SAT_EPHEMERIS_BASE
{
public:
    static constexpr uint64_t c_ulImageSize = 145;
    static constexpr uint32_t c_ulNO_TRANSMISSION_TIME = 0xFFFFFFFF;
    static constexpr uint8_t c_ucFIT_INTERVAL_UNKNOWN = 0xFF;

    uint8_t uiSvId;              // running number; for GPS the PRN
    bool bValid;                 // the record holds a received set
    uint32_t ulTransmissionTime; // second of the week, c_ulNO_TRANSMISSION_TIME when unknown
    uint16_t unGPSWeek;          // full week of the time of ephemeris
    uint16_t unUraIndex;
    uint16_t aunWords[5]; // further broadcast words, stored and compared only
    uint16_t unIodc;
    float fGroupDelay;
    uint32_t ulToe;
    uint32_t ulToc;
    float afClock[3]; // af0, af1, af2
    uint8_t ucFitIntervalFlag;
    uint16_t unHealth; // six health bits

    ZELX_SAT_EPHEMERIS();
    ZELX_SAT_EPHEMERIS(const ZELX_SAT_EPHEMERIS&) = default;
    ZELX_SAT_EPHEMERIS& operator=(const ZELX_SAT_EPHEMERIS&) = default;
    ~ZELX_SAT_EPHEMERIS() override;

    // Declared ahead of the interface overrides: the third slot of the COMMON side.
    virtual uint8_t getFitIntervalHours() const;
    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    // Span of +-10800 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    uint32_t getTransmissionTime() const { return ulTransmissionTime; }
    // Relative to the week of ulToe; estimated on a 30-second grid when unknown.
    int32_t getTransmissionTimeOfWeek() const;

    float getUra() const;
    void setUra(float fMetres);

    // Keeps the six low bits; higher bits are reported and dropped.
    void setHealth(uint16_t unHealth);
    void setHealthBool(bool bUnhealthy);

    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    void setValid(bool bValue) { bValid = bValue; }
    void setTransmissionTime(uint32_t ulValue) { ulTransmissionTime = ulValue; }
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    void setUraIndex(uint16_t unValue) { unUraIndex = unValue; }
    void setWord(size_t ulIndex, uint16_t unValue);
    void setIodc(uint16_t unValue) { unIodc = unValue; }
    void setGroupDelay(float fValue) { fGroupDelay = fValue; }
    void setToe(uint32_t ulValue) { ulToe = ulValue; }
    void setToc(uint32_t ulValue) { ulToc = ulValue; }
    void setClock(size_t ulIndex, float fValue);
    void setFitIntervalFlag(uint8_t ucValue) { ucFitIntervalFlag = ucValue; }

    uint64_t getSize() const { return c_ulImageSize; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

// bValid and ulTransmissionTime take no part.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS& a, const ZELX_SAT_EPHEMERIS& b);
inline bool operator!=(const ZELX_SAT_EPHEMERIS& a, const ZELX_SAT_EPHEMERIS& b)
{
    return !(a == b);
}

// True when rEphNew is to replace rEphCurrent.
ZELTYPES_API bool isNewEphemerisGps(const ZELX_SAT_EPHEMERIS& rEphCurrent, const ZELX_SAT_EPHEMERIS& rEphNew);

} // namespace ZELN

#endif
