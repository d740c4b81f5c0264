#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHGLONASS_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHGLONASS_H

/// \file
/// The GLONASS ephemeris: a state vector at a reference time, stored for the
/// clients that integrate it. No Keplerian block.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

/// Where a decoder puts a GLONASS set:
/// - the satellite: its slot number plus POS_MAX_PRN_GPS into uiSvId;
/// - the reference time tb in GPS time, not in the system's own: the GPS week
///   into unGPSWeek and the millisecond of that week into ulToeMs;
/// - the issue of data into ulIod (getIod, compared by the update decision);
///   the M-type flag into bMType;
/// - the state vector into adState: position [0] to [2], velocity [3] to [5],
///   acceleration [6] to [8], each x, y, z; [9] to [11] three further terms of
///   the decoder's choice. Unit and frame are the producer's: the library
///   stores, compares (relative, so any unit does) and writes them and never
///   scales them, and has no kilometre getters as SBAS has;
/// - Bn and Ln into ucHealth through setBnLn, setHealthFlags or setHealthBool;
/// - further broadcast words into the Aux fields: ucAux1, unAux4, ulAux5 and
///   aulAux6[1] to [3] are compared, the others are stored only.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_GLONASS : public ZELX_SAT_EPHEMERIS_BASE
{
public:
    uint8_t uiSvId = 0;       ///< running number: POS_MAX_PRN_GPS + slot
    uint8_t ucAux1 = 0;       ///< compared
    uint16_t unAux2 = 0;      ///< not compared
    uint32_t ulAux3 = 0;      ///< not compared
    bool bValid = false;      ///< the record holds a received set
    bool bMType = false;      ///< the satellite is of M type
    uint16_t unAux4 = 0;      ///< compared
    uint16_t unGPSWeek = 0;   ///< GPS week of the reference time
    uint32_t ulToeMs = 0;     ///< reference time, millisecond of the GPS week
    uint32_t ulAux5 = 0;      ///< compared
    uint32_t ulIod = 0;       ///< issue of data
    double adState[12] = {};  ///< position, velocity, acceleration, further terms; producer's units
    uint32_t aulAux6[5] = {}; ///< the second to fourth are compared
    uint8_t ucHealth = 1;     ///< bits 0 to 2 Bn, bit 3 Ln; not part of the image

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_GLONASS() override;

    /// Resets the record to its default state.
    void clear();

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    uint32_t getIod() const override;
    /// Only bits 0 and 1 may be set: the default value 1 counts as healthy.
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Unsymmetric span: 900 s forward, 2700 s back, each widened by the margin.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    /// A failed check does not stop the store of the masked values.
    void setBnLn(unsigned int uiBn, unsigned int uiLn);
    /// From the two-bit form of getHealthFlags: bit 0 sets the Bn unhealthy bit (Bn 4), bit 1 sets Ln.
    void setHealthFlags(uint8_t ucFlags);
    /// Unhealthy: Bn 4 and Ln 1; healthy: both 0.
    void setHealthBool(bool bUnhealthy);
    /// Bn, bits 0 to 2 of ucHealth.
    uint8_t getBn() const { return static_cast<uint8_t>(ucHealth & 0x7); }
    /// True when the unhealthy bit of Bn (bit 2 of ucHealth) is set.
    bool getBnUnhealthy() const { return (ucHealth & 0x4) != 0; }
    /// Ln, bit 3 of ucHealth.
    uint8_t getLn() const { return static_cast<uint8_t>((ucHealth >> 3) & 0x1); }
    /// Two-bit form: the Bn unhealthy bit as bit 0, Ln as bit 1.
    uint8_t getHealthFlags() const
    {
        return static_cast<uint8_t>(((ucHealth >> 2) & 0x1) | (((ucHealth >> 3) & 0x1) << 1));
    }

    /// Sets uiSvId.
    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    /// Sets ucAux1.
    void setAux1(uint8_t ucValue) { ucAux1 = ucValue; }
    /// Sets unAux2.
    void setAux2(uint16_t unValue) { unAux2 = unValue; }
    /// Sets ulAux3.
    void setAux3(uint32_t ulValue) { ulAux3 = ulValue; }
    /// Sets bValid.
    void setValid(bool bValue) { bValid = bValue; }
    /// Sets bMType.
    void setMType(bool bValue) { bMType = bValue; }
    /// Sets unAux4.
    void setAux4(uint16_t unValue) { unAux4 = unValue; }
    /// Sets unGPSWeek.
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    /// Sets ulToeMs.
    void setToeMs(uint32_t ulValue) { ulToeMs = ulValue; }
    /// Sets ulAux5.
    void setAux5(uint32_t ulValue) { ulAux5 = ulValue; }
    /// Sets ulIod.
    void setIod(uint32_t ulValue) { ulIod = ulValue; }
    /// An index outside the arrays would write past them: reported, nothing stored.
    void setState(size_t ulIndex, double dValue);
    /// Sets aulAux6[ulIndex]; an index from 5 on is reported and nothing is stored.
    void setAux6(size_t ulIndex, uint32_t ulValue);

    /// Image, 142 bytes: the fields in declaration order without ucHealth, so
    /// that a loaded record keeps its own health; no version byte.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Raw(r.uiSvId) && io.Raw(r.ucAux1) && io.Raw(r.unAux2) && io.Raw(r.ulAux3) &&
               io.Raw(r.bValid) && io.Raw(r.bMType) && io.Raw(r.unAux4) && io.Raw(r.unGPSWeek) &&
               io.Raw(r.ulToeMs) && io.Raw(r.ulAux5) && io.Raw(r.ulIod) && io.Raw(r.adState) &&
               io.Raw(r.aulAux6);
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

/// bValid, unAux2, ulAux3, the first and fifth aulAux6 and the health bits
/// beyond isHealthy take no part.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_GLONASS& a, const ZELX_SAT_EPHEMERIS_GLONASS& b);

/// True when rEphNew is to replace rEphCurrent: never when rEphNew is invalid; always when rEphCurrent is
/// invalid or the health verdict changes; never for an earlier reference time; always for another issue of
/// data or a later reference time; else when the content differs (reported once for an M-type satellite, and
/// taken).
ZELTYPES_API bool isNewEphemerisGlonass(const ZELX_SAT_EPHEMERIS_GLONASS& rEphCurrent,
                                        const ZELX_SAT_EPHEMERIS_GLONASS& rEphNew);

} // namespace ZELN

#endif
