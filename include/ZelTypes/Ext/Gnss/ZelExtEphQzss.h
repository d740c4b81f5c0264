#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHQZSS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHQZSS_H

// The QZSS ephemeris: the GPS set with six further broadcast values, its own
// health rule, fit intervals and a versioned image.

#include <ZelTypes/Ext/Gnss/ZelExtEphGps.h>

namespace ZELN
{

class ZELTYPES_API ZELX_SAT_EPHEMERIS_QZSS : public ZELX_SAT_EPHEMERIS
{
public:
    static constexpr uint64_t c_ulImageSize = 164;
    static constexpr uint8_t c_ucImageVersion = 3;

    uint8_t ucQzss1;
    uint8_t ucQzss2;
    uint16_t unQzss3;
    double dQzss4;
    uint16_t unQzss5;
    uint32_t ulQzss6;

    ZELX_SAT_EPHEMERIS_QZSS();
    ZELX_SAT_EPHEMERIS_QZSS(const ZELX_SAT_EPHEMERIS_QZSS&) = default;
    ZELX_SAT_EPHEMERIS_QZSS& operator=(const ZELX_SAT_EPHEMERIS_QZSS&) = default;
    ~ZELX_SAT_EPHEMERIS_QZSS() override;

    uint8_t getFitIntervalHours() const override;
    void clear() override;

    SZelSatID getSatId() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    // Span of +-7200 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    uint8_t getQzss1() const { return ucQzss1; }
    uint8_t getQzss2() const { return ucQzss2; }
    uint16_t getQzss3() const { return unQzss3; }
    double getQzss4() const { return dQzss4; }
    uint16_t getQzss5() const { return unQzss5; }
    uint32_t getQzss6() const { return ulQzss6; }
    void setQzss1(uint8_t ucValue) { ucQzss1 = ucValue; }
    void setQzss2(uint8_t ucValue) { ucQzss2 = ucValue; }
    void setQzss3(uint16_t unValue) { unQzss3 = unValue; }
    void setQzss4(double dValue) { dQzss4 = dValue; }
    void setQzss5(uint16_t unValue) { unQzss5 = unValue; }
    void setQzss6(uint32_t ulValue) { ulQzss6 = ulValue; }

    uint64_t getSize() const { return c_ulImageSize; }
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength) const;
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength);
};

// The GPS equality, then ucQzss1, ucQzss2, unQzss3 exactly and dQzss4 at 1e-14.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_QZSS& a, const ZELX_SAT_EPHEMERIS_QZSS& b);
inline bool operator!=(const ZELX_SAT_EPHEMERIS_QZSS& a, const ZELX_SAT_EPHEMERIS_QZSS& b)
{
    return !(a == b);
}

ZELTYPES_API bool isNewEphemerisQzss(const ZELX_SAT_EPHEMERIS_QZSS& rEphCurrent,
                                     const ZELX_SAT_EPHEMERIS_QZSS& rEphNew);

} // namespace ZELN

#endif
