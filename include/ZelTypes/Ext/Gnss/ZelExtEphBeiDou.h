#ifndef ZELTYPES_EXT_GNSS_ZELEXTEPHBEIDOU_H
#define ZELTYPES_EXT_GNSS_ZELEXTEPHBEIDOU_H

/// \file
/// The BeiDou ephemeris: the Keplerian block with full reference times, the
/// accuracy in metres and an issue of data derived from the time of clock.

#include <ZelTypes/Ext/Gnss/ZelExtEphBase.h>

namespace ZELN
{

/// Where a decoder puts a BeiDou set:
/// - the satellite: POS_OFFSET_PRN_BDS + PRN into uiSvId;
/// - the times of clock and ephemeris as full times into stToc and stToe, set
///   from the broadcast BeiDou week and seconds with SMjdTime::SetBdsTime,
///   which stores the GPS time (14 s later); getIod counts 12-minute steps of
///   stToc, since no broadcast issue of data fits;
/// - a time of week of the set, as the decoder chooses it (the time of its
///   message, say), into unGPSWeek and ulTowMs in GPS time, not in BeiDou
///   time: a GPS week and the millisecond of that week; getBdsWeek and
///   getBdsSeconds give them back as a BeiDou week and BeiDou seconds. The
///   library stores and writes the pair; neither equality nor the update
///   decision looks at it;
/// - the accuracy in metres into fUra (setUraIndex converts a URA index);
/// - the clock terms a0 and a1 into adClock, further clock and delay terms
///   into afAux3, in the producer's units, which the library never scales;
/// - health 0 for a usable set into ucHealth; further broadcast values into
///   ulAux1, ucAux2 and ucAux4, stored only.
class ZELTYPES_API ZELX_SAT_EPHEMERIS_BEIDOU : public ZELX_SAT_EPHEMERIS_COMMON,
                                               public ZELX_SAT_EPHEMERIS_BASE
{
public:
    /// Version byte of the image; loadData refuses another.
    static constexpr uint8_t c_ucImageVersion = 6;

    uint8_t uiSvId = 0;     ///< running number
    bool bValid = false;    ///< the record holds a received set
    uint32_t ulAux1 = 0;    ///< not compared
    uint16_t unGPSWeek = 0; ///< GPS week of ulTowMs
    uint32_t ulTowMs = 0;   ///< millisecond of the GPS week, in GPS time
    float fUra = 0.0f;      ///< accuracy, metres
    uint8_t ucAux2 = 0;     ///< not compared
    double adClock[2] = {}; ///< a0, a1; producer's units
    SMjdTime stToc;         ///< time of clock
    float afAux3[3] = {};   ///< further clock and delay terms; producer's units
    uint8_t ucAux4 = 0;     ///< not compared
    SMjdTime stToe;         ///< time of ephemeris
    uint8_t ucHealth = 1;   ///< 0 healthy

    /// Destroys the object.
    ~ZELX_SAT_EPHEMERIS_BEIDOU() override;

    /// Resets the record to its default state.
    void clear() override;

    uint8_t getSvId() const override;
    SZelSatID getSatId() const override;
    SMjdTime getToe() const override;
    /// 12-minute steps of stToc through a 48-hour cycle: 0 to 239.
    uint32_t getIod() const override;
    bool isHealthy() const override;
    uint8_t getPrnOffset() const override;
    uint8_t getFirstPrn() const override;

    /// Span of +-7200 s widened by the margin on both sides.
    static EZelEphValidity checkValidity(const SMjdTime& stTime, const SMjdTime& stToe,
                                         uint32_t ulMarginSeconds);

    /// BeiDou week: unGPSWeek less 1356; a GPS week below that is reported.
    uint16_t getBdsWeek() const;
    /// Second of the BeiDou week: ulTowMs in seconds less 14 s, not wrapped (negative in the first 14 s of a
    /// GPS week).
    double getBdsSeconds() const { return ulTowMs / 1000.0 - 14.0; }

    /// Accuracy index of fUra (ConvUraMetresToIndex).
    uint8_t getUraIndex() const;
    /// Sets fUra, in metres, from an accuracy index (ConvUraIndexToMetres).
    void setUraIndex(uint8_t ucIndex);

    /// Sets uiSvId.
    void setSvId(uint8_t uiValue) { uiSvId = uiValue; }
    /// Sets bValid.
    void setValid(bool bValue) { bValid = bValue; }
    /// Sets ulAux1.
    void setAux1(uint32_t ulValue) { ulAux1 = ulValue; }
    /// Sets unGPSWeek.
    void setGPSWeek(uint16_t unValue) { unGPSWeek = unValue; }
    /// Sets ulTowMs.
    void setTowMs(uint32_t ulValue) { ulTowMs = ulValue; }
    /// Sets fUra.
    void setUra(float fValue) { fUra = fValue; }
    /// Sets ucAux2.
    void setAux2(uint8_t ucValue) { ucAux2 = ucValue; }
    /// Sets adClock[ulIndex]; an index from 2 on is reported and nothing is stored.
    void setClock(size_t ulIndex, double dValue);
    /// Sets stToc.
    void setToc(const SMjdTime& stValue) { stToc = stValue; }
    /// Sets afAux3[ulIndex]; an index from 3 on is reported and nothing is stored.
    void setAux3(size_t ulIndex, float fValue);
    /// Sets ucAux4.
    void setAux4(uint8_t ucValue) { ucAux4 = ucValue; }
    /// Sets stToe.
    void setToe(const SMjdTime& stValue) { stToe = stValue; }
    /// Sets ucHealth.
    void setHealth(uint8_t ucValue) { ucHealth = ucValue; }

    /// Image, 176 bytes: the version, the fields in declaration order, then
    /// the common block.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        return io.Version(c_ucImageVersion) && io.Raw(r.uiSvId) && io.Raw(r.bValid) && io.Raw(r.ulAux1) &&
               io.Raw(r.unGPSWeek) && io.Raw(r.ulTowMs) && io.Raw(r.fUra) && io.Raw(r.ucAux2) &&
               io.Raw(r.adClock) && io.Record(r.stToc, true) && io.Raw(r.afAux3) && io.Raw(r.ucAux4) &&
               io.Record(r.stToe, true) && io.Raw(r.ucHealth) &&
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
};

/// The times compare within 1e-9 s whatever their accuracy fields say.
ZELTYPES_API bool operator==(const ZELX_SAT_EPHEMERIS_BEIDOU& a, const ZELX_SAT_EPHEMERIS_BEIDOU& b);

/// True when rEphNew is to replace rEphCurrent: never when rEphNew is invalid; always when rEphCurrent is
/// invalid or the health verdict changes; else only when its time of clock is later. A later time of
/// ephemeris without a later time of clock is reported and not taken.
ZELTYPES_API bool isNewEphemerisBeiDou(const ZELX_SAT_EPHEMERIS_BEIDOU& rEphCurrent,
                                       const ZELX_SAT_EPHEMERIS_BEIDOU& rEphNew);

} // namespace ZELN

#endif
