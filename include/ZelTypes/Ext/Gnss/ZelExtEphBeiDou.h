#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHBEIDOU_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHBEIDOU_H

// The BeiDou ephemeris: the Keplerian block with full reference times, the
// accuracy in metres and an issue of data derived from the time of clock.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

class ZELTYPES_API ZELX_SAT_EPHEMERIS_BEIDOU : public ZELX_SAT_EPHEMERIS_COMMON,
                                               public ZELX_SAT_EPHEMERIS_BASE
{
public:
    static constexpr uint64_t c_ulImageSize = 176;
    static constexpr uint8_t c_ucImageVersion = 6;

    uint8_t uiSvId;
    bool bValid;
    uint32_t ulAux1;    // not compared
    uint16_t unGPSWeek; // GPS week
    uint32_t ulTowMs;   // millisecond of the GPS week
    float fUra;         // metres
    uint8_t ucAux2;     // not compared
    double adClock[2];  // af0, af1
    SMjdTime stToc;
    float afAux3[3]; // further clock and delay terms
    uint8_t ucAux4;  // not compared
    SMjdTime stToe;
    uint8_t ucHealth; // 0 healthy

    ZELX_SAT_EPHEMERIS_BEIDOU();
    ZELX_SAT_EPHEMERIS_BEIDOU(const ZELX_SAT_EPHEMERIS_BEIDOU&) = default;
    ZELX_SAT_EPHEMERIS_BEIDOU& operator=(const ZELX_SAT_EPHEMERIS_BEIDOU&) = default;
    ~ZELX_SAT_EPHEMERIS_BEIDOU() override;

    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    // 12-minute steps of stToc through a 48-hour cycle: 0 to 239.
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    // Span of +-7200 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    uint16_t getBdsWeek() const;
    double getBdsSeconds() const { return ulTowMs / 1000.0 - 14.0; }

    uint8_t getUraIndex() const;
    void setUraIndex(uint8_t ucIndex);

    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    void setValid(bool bValue) { bValid = bValue; }
    void setAux1(uint32_t ulValue) { ulAux1 = ulValue; }
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    void setTowMs(uint32_t ulValue) { ulTowMs = ulValue; }
    void setUra(float fValue) { fUra = fValue; }
    void setAux2(uint8_t ucValue) { ucAux2 = ucValue; }
    void setClock(size_t ulIndex, double dValue);
    void setToc(const SMjdTime& stValue) { stToc = stValue; }
    void setAux3(size_t ulIndex, float fValue);
    void setAux4(uint8_t ucValue) { ucAux4 = ucValue; }
    void setToe(const SMjdTime& stValue) { stToe = stValue; }
    void setHealth(uint8_t ucValue) { ucHealth = ucValue; }

    uint64_t getSize() const { return c_ulImageSize; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

// The times compare within 1e-9 s whatever their accuracy fields say.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_BEIDOU& a, const ZELX_SAT_EPHEMERIS_BEIDOU& b);
inline bool operator!=(const ZELX_SAT_EPHEMERIS_BEIDOU& a, const ZELX_SAT_EPHEMERIS_BEIDOU& b)
{
    return !(a == b);
}

ZELTYPES_API bool isNewEphemerisBeiDou(const ZELX_SAT_EPHEMERIS_BEIDOU& rEphCurrent,
                                       const ZELX_SAT_EPHEMERIS_BEIDOU& rEphNew);

} // namespace ZELN

#endif
