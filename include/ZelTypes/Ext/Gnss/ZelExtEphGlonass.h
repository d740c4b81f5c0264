#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHGLONASS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHGLONASS_H

// The GLONASS ephemeris: a state vector at a reference time, stored for the
// clients that integrate it. No Keplerian block.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

class ZELTYPES_API ZELX_SAT_EPHEMERIS_GLONASS : public ZELX_SAT_EPHEMERIS_BASE
{
public:
    static constexpr uint64_t c_ulImageSize = 142;

    uint8_t uiSvId;
    uint8_t ucAux1;     // compared
    uint16_t unAux2;    // not compared
    uint32_t ulAux3;    // not compared
    bool bValid;        // the record holds a received set
    bool bMType;        // the satellite is of M type
    uint16_t unAux4;    // compared
    uint16_t unGPSWeek; // GPS week of the reference time
    uint32_t ulToeMs;   // reference time, millisecond of the GPS week
    uint32_t ulAux5;    // compared
    uint32_t ulIod;
    double adState[12];  // position, velocity, acceleration (3 each), three further terms
    uint32_t aulAux6[5]; // the second to fourth are compared
    uint8_t ucHealth;    // bits 0 to 2 Bn, bit 3 Ln; not part of the image

    ZELX_SAT_EPHEMERIS_GLONASS();
    ZELX_SAT_EPHEMERIS_GLONASS(const ZELX_SAT_EPHEMERIS_GLONASS&) = default;
    ZELX_SAT_EPHEMERIS_GLONASS& operator=(const ZELX_SAT_EPHEMERIS_GLONASS&) = default;
    ~ZELX_SAT_EPHEMERIS_GLONASS() override;

    void clear();

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    // Only bits 0 and 1 may be set: the default value 1 counts as healthy.
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    // Unsymmetric span: 900 s forward, 2700 s back, each widened by the margin.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    // A failed check does not stop the store of the masked values.
    void setBnLn(unsigned int uiBn, unsigned int uiLn);
    void setHealthFlags(uint8_t ucFlags);
    void setHealthBool(bool bUnhealthy);
    uint8_t getBn() const { return static_cast<uint8_t>(ucHealth & 0x7); }
    bool getBnUnhealthy() const { return (ucHealth & 0x4) != 0; }
    uint8_t getLn() const { return static_cast<uint8_t>((ucHealth >> 3) & 0x1); }
    uint8_t getHealthFlags() const
    {
        return static_cast<uint8_t>(((ucHealth >> 2) & 0x1) | (((ucHealth >> 3) & 0x1) << 1));
    }

    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    void setAux2(uint16_t unValue) { unAux2 = unValue; }
    void setAux3(uint32_t ulValue) { ulAux3 = ulValue; }
    void setValid(bool bValue) { bValid = bValue; }
    void setMType(bool bValue) { bMType = bValue; }
    void setAux4(uint16_t unValue) { unAux4 = unValue; }
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    void setToeMs(uint32_t ulValue) { ulToeMs = ulValue; }
    void setAux5(uint32_t ulValue) { ulAux5 = ulValue; }
    void setIod(uint32_t ulValue) { ulIod = ulValue; }
    // An index outside the arrays would write past them: reported, nothing stored.
    void setState(size_t ulIndex, double dValue);
    void setAux6(size_t ulIndex, uint32_t ulValue);

    uint64_t getSize() const { return c_ulImageSize; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

// bValid, unAux2, ulAux3, the first and fifth aulAux6 and the health bits
// beyond isHealthy take no part.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_GLONASS& a, const ZELX_SAT_EPHEMERIS_GLONASS& b);
inline bool operator!=(const ZELX_SAT_EPHEMERIS_GLONASS& a, const ZELX_SAT_EPHEMERIS_GLONASS& b)
{
    return !(a == b);
}

ZELTYPES_API bool isNewEphemerisGlonass(const ZELX_SAT_EPHEMERIS_GLONASS& rEphCurrent,
                                        const ZELX_SAT_EPHEMERIS_GLONASS& rEphNew);

} // namespace ZELN

#endif
