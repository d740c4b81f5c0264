#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHGALILEO_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHGALILEO_H

// The Galileo ephemeris: the Keplerian block, seconds of a week that the
// record does not store (the week comes from a nearby reference time), the
// signal health of the I/NAV and F/NAV streams and the SISA index.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

// Kinds of a message stream, by getNavKind.
enum EZelGalNavKind
{
    ZELGALNAVKIND_NONE = 0,
    ZELGALNAVKIND_FNAV = 1,
    ZELGALNAVKIND_INAV = 2
};

class ZELTYPES_API ZELX_SAT_EPHEMERIS_GALILEO : public ZELX_SAT_EPHEMERIS_COMMON,
                                                public ZELX_SAT_EPHEMERIS_BASE
{
public:
    static constexpr uint64_t c_ulImageSize = 183;
    static constexpr uint8_t c_ucImageVersion = 5;
    static constexpr uint32_t c_ulPT1_TOW_UNSET = 0xFFFFFF;
    static constexpr uint8_t c_ucSISA_NAPA = 0xFF; // no accuracy prediction

    uint32_t ulNavType;  // 0 none, 1 to 4 the I/NAV kinds, 5 F/NAV
    uint8_t uiSVID;      // running number
    uint8_t uiEphSource; // POS_SAT_EPH_GAL_SRC_INVALID: no set held
    uint8_t ucAux1;      // compared
    uint16_t unIodNav;
    uint8_t ucSisaIndex;
    uint8_t ucHsE1b, ucHsE5b, ucHsE5a;    // signal health, two bits
    uint8_t ucDvsE1b, ucDvsE5b, ucDvsE5a; // data validity, one bit
    uint32_t ulToe;                       // second of the week
    uint32_t ulToc;                       // second of the week
    double dAf0, dAf1, dAf2;
    double dBgdE5a, dBgdE5b;
    SMjdTime stRefTimeApprox; // a time near the set, gives the week
    uint16_t unPT1Week;
    uint32_t ulPT1Tow;

    ZELX_SAT_EPHEMERIS_GALILEO();
    explicit ZELX_SAT_EPHEMERIS_GALILEO(uint32_t ulNavTypeInit);
    ZELX_SAT_EPHEMERIS_GALILEO(const ZELX_SAT_EPHEMERIS_GALILEO&) = default;
    ZELX_SAT_EPHEMERIS_GALILEO& operator=(const ZELX_SAT_EPHEMERIS_GALILEO&) = default;
    ~ZELX_SAT_EPHEMERIS_GALILEO() override;

    // Unlike the constructor, also zeroes ulNavType and all health fields.
    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    // The instance of ulToe nearest to stRefTimeApprox.
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    // Span of +-10800 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    // The instance of ulToc nearest to stRefTimeApprox.
    SMjdTime getToc() const;
    // Full time of the broadcast pair, across 4096-week rollovers.
    SMjdTime getPT1Time() const;
    void setPT1Time(uint16_t unWeek, uint32_t ulTow);
    // Copies the time and sets its accuracy to 1 (nanosecond).
    void setRefTimeApprox(const SMjdTime& stTime);

    EZelGalNavKind getNavKind() const;
    double getAf0FNav() const;
    double getAf1FNav() const;
    double getAf2FNav() const;
    double getAf0INav() const;
    double getAf1INav() const;
    double getAf2INav() const;
    uint32_t getTocSecondsFNav() const;
    uint32_t getTocSecondsINav() const;

    void setHealthFNav(uint8_t ucBits);
    void setHealthINav(uint8_t ucBits);
    uint8_t getHealthFNav() const;
    uint8_t getHealthINav() const;

    double getSisa() const;
    // False, with a report, above 6 m; the index is then c_ucSISA_NAPA.
    bool setSisa(double dMetres);

    void setNavType(uint32_t ulValue) { ulNavType = ulValue; }
    void setSvId(uint8_t uiValue) { uiSVID = uiValue; }
    void setEphSource(uint8_t uiValue) { uiEphSource = uiValue; }
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    void setIodNav(uint16_t unValue) { unIodNav = unValue; }
    void setSisaIndex(uint8_t ucValue) { ucSisaIndex = ucValue; }
    void setHsE1b(uint8_t ucValue) { ucHsE1b = ucValue; }
    void setHsE5b(uint8_t ucValue) { ucHsE5b = ucValue; }
    void setHsE5a(uint8_t ucValue) { ucHsE5a = ucValue; }
    void setDvsE1b(uint8_t ucValue) { ucDvsE1b = ucValue; }
    void setDvsE5b(uint8_t ucValue) { ucDvsE5b = ucValue; }
    void setDvsE5a(uint8_t ucValue) { ucDvsE5a = ucValue; }
    void setToe(uint32_t ulValue) { ulToe = ulValue; }
    void setToc(uint32_t ulValue) { ulToc = ulValue; }
    void setAf0(double dValue) { dAf0 = dValue; }
    void setAf1(double dValue) { dAf1 = dValue; }
    void setAf2(double dValue) { dAf2 = dValue; }
    void setBgdE5a(double dValue) { dBgdE5a = dValue; }
    void setBgdE5b(double dValue) { dBgdE5b = dValue; }

    uint64_t getSize() const { return c_ulImageSize; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);

private:
    SMjdTime nearestInstance(uint32_t ulSecondsOfWeek) const;
};

// uiEphSource, stRefTimeApprox and the PT1 pair take no direct part; the
// reference times compare through getToc and getToe.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_GALILEO& a, const ZELX_SAT_EPHEMERIS_GALILEO& b);
inline bool operator!=(const ZELX_SAT_EPHEMERIS_GALILEO& a, const ZELX_SAT_EPHEMERIS_GALILEO& b)
{
    return !(a == b);
}

// With bContentOnly, a set not older than the held one replaces it whenever it differs.
ZELTYPES_API bool isNewEphemerisGalileo(const ZELX_SAT_EPHEMERIS_GALILEO& rEphCurrent,
                                        const ZELX_SAT_EPHEMERIS_GALILEO& rEphNew, bool bContentOnly = false);

} // namespace ZELN

#endif
