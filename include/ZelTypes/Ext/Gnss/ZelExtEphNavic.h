#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHNAVIC_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHNAVIC_H

// The NavIC ephemeris: the Keplerian block with full reference times, the
// accuracy in metres, health flags and an alert flag.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

class ZELTYPES_API ZELX_SAT_EPHEMERIS_NAVIC : public ZELX_SAT_EPHEMERIS_COMMON, public ZELX_SAT_EPHEMERIS_BASE
{
public:
    static constexpr uint64_t c_ulImageSize = 185;
    static constexpr uint8_t c_ucImageVersion = 3;
    static constexpr uint32_t c_ulPT1_TOW_UNSET = 0xFFFFFF;

    uint32_t ulPrn; // running number; getSvId gives its low byte
    uint32_t ulAux1;
    bool bValid;
    double adClock[3]; // af0, af1, af2
    float fUra;        // metres
    SMjdTime stToc;
    double dAux2;
    uint8_t ucIodec;
    uint8_t ucHealthFlag1; // 0 healthy
    uint8_t ucHealthFlag2; // 0 healthy
    SMjdTime stToe;
    uint8_t ucAlertFlag; // 1: do not use
    uint8_t ucAux3;
    uint16_t unPT1Week;
    uint32_t ulPT1Tow;

    ZELX_SAT_EPHEMERIS_NAVIC();
    ZELX_SAT_EPHEMERIS_NAVIC(const ZELX_SAT_EPHEMERIS_NAVIC&) = default;
    ZELX_SAT_EPHEMERIS_NAVIC& operator=(const ZELX_SAT_EPHEMERIS_NAVIC&) = default;
    ~ZELX_SAT_EPHEMERIS_NAVIC() override;

    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    // Span of +-7200 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    // Curve fit interval in seconds, by ucIodec.
    uint32_t getCurveFitSeconds() const;
    // Full time of the broadcast pair; no rollover.
    SMjdTime getPT1Time() const;
    void setPT1Time(uint16_t unWeek, uint32_t ulTow);

    bool isFlag1Clear() const { return ucHealthFlag1 == 0; }
    bool isFlag2Clear() const { return ucHealthFlag2 == 0; }
    bool isAlert() const { return ucAlertFlag == 1; }

    uint8_t getUraIndex() const;
    void setUraIndex(uint8_t ucIndex);

    void setPrn(uint32_t ulValue) { ulPrn = ulValue; }
    void setAux1(uint32_t ulValue) { ulAux1 = ulValue; }
    void setValid(bool bValue) { bValid = bValue; }
    void setClock(size_t ulIndex, double dValue);
    void setUra(float fValue) { fUra = fValue; }
    void setToc(const SMjdTime& stValue) { stToc = stValue; }
    void setAux2(double dValue) { dAux2 = dValue; }
    void setIodec(uint8_t ucValue) { ucIodec = ucValue; }
    void setHealthFlag1(uint8_t ucValue) { ucHealthFlag1 = ucValue; }
    void setHealthFlag2(uint8_t ucValue) { ucHealthFlag2 = ucValue; }
    void setToe(const SMjdTime& stValue) { stToe = stValue; }
    void setAlertFlag(uint8_t ucValue) { ucAlertFlag = ucValue; }
    void setAux3(uint8_t ucValue) { ucAux3 = ucValue; }

    uint64_t getSize() const { return c_ulImageSize; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_NAVIC& a, const ZELX_SAT_EPHEMERIS_NAVIC& b);
inline bool operator!=(const ZELX_SAT_EPHEMERIS_NAVIC& a, const ZELX_SAT_EPHEMERIS_NAVIC& b)
{
    return !(a == b);
}

ZELTYPES_API bool isNewEphemerisNavic(const ZELX_SAT_EPHEMERIS_NAVIC& rEphCurrent,
                                      const ZELX_SAT_EPHEMERIS_NAVIC& rEphNew);

} // namespace ZELN

#endif
