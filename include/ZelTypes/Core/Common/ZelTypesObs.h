#ifndef ZELTYPES_CORE_COMMON_ZELTYPESOBS_H
#define ZELTYPES_CORE_COMMON_ZELTYPESOBS_H

/// \file
/// What a receiver tracked for one satellite in one epoch: the measurements of
/// each signal with the validity bits that say which of them count, and the
/// satellite's record holding up to six signals inline. Both records are plain
/// and trivially copyable, so that an epoch can keep them in one contiguous
/// array and move them with block copies.

#include <ZelTypes/Core/Common/ZelAssert.h>
#include <ZelTypes/Core/Common/ZelCompare.h>
#include <ZelTypes/Core/Common/ZelExport.h>
#include <ZelTypes/Core/Common/ZelRecordIO.h>
#include <ZelTypes/Core/Common/ZelTypesIDs.h>

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>
#include <type_traits>

namespace ZELN
{

/// Bits of SZelFreqObservation::ulObsFlags that the library acts on.
constexpr uint32_t c_ulOBSFLAG_PHASE = 0x1;          ///< dPhase valid
constexpr uint32_t c_ulOBSFLAG_CODE = 0x2;           ///< dCode valid
constexpr uint32_t c_ulOBSFLAG_DOPPLERM = 0x4;       ///< dDopplerM valid
constexpr uint32_t c_ulOBSFLAG_CNO = 0x8;            ///< unCNo valid
constexpr uint32_t c_ulOBSFLAG_STATE4 = 0x10;        ///< state bit, tested per satellite
constexpr uint32_t c_ulOBSFLAG_DOPPLERC = 0x20;      ///< dDopplerC valid
constexpr uint32_t c_ulOBSFLAG_STATE6 = 0x40;        ///< state bit
constexpr uint32_t c_ulOBSFLAG_VELOCITY = 0x80;      ///< fVelocity valid
constexpr uint32_t c_ulOBSFLAG_ACCELERATION = 0x100; ///< fAcceleration valid
constexpr uint32_t c_ulOBSFLAG_STATE9 = 0x200;       ///< state bit, only carried
constexpr uint32_t c_ulOBSFLAG_TRACKMODEW = 0x1000;  ///< default track mode W instead of P
constexpr uint32_t c_ulOBSFLAG_STATE13 = 0x2000;     ///< accompanies the unCNo value
constexpr uint32_t c_ulOBSFLAG_STATE14 = 0x4000;     ///< state bit, only carried
constexpr uint32_t c_ulOBSFLAG_SIGCLASS = 0x20000;   ///< set by SZelSatObservation::MarkSignalClasses
constexpr uint32_t c_ulOBSFLAG_SBAS = 0x40000;       ///< set by SZelSatObservation::MarkSignalClasses

/// Binary sizes: one signal record, the head of a satellite record.
constexpr uint64_t c_ulFREQOBS_SIZE = 72;
/// Size of a satellite observation's image before its signals, in bytes.
constexpr uint64_t c_ulSATOBS_HEAD_SIZE = 15;

/// The observation of one signal. The units of the measurements are set by
/// the producing module; this library carries them and never scales them.
struct ZELTYPES_API SZelFreqObservation
{
    uint32_t ulObsFlags = 0;                         ///< validity and state bits, c_ulOBSFLAG_...
    EZelFrequency eFrequency = ZELFREQUENCY_UNKNOWN; ///< frequency slot, 1 to 10 when filled
    EZelTrackMode eTrackMode = ZELTRACKMODE_UNKNOWN; ///< 0: the default of the system and signal applies
    double dPhase = 0.0;                             ///< carrier phase, unit set by the producer
    double dCode = 0.0;                              ///< code range, unit set by the producer
    double dDopplerM = 0.0;                          ///< Doppler, first form, unit set by the producer
    double dDopplerC = 0.0;                          ///< Doppler, second form, unit set by the producer
    uint16_t unContMeasCount10Msec = 0;              ///< continuous tracking, in units of 10 ms
    uint16_t unCNo = 0;                              ///< carrier-to-noise, unit set by the producer
    uint16_t unPhaseRms100thMm = 0;                  ///< phase RMS, in 0.01 mm
    uint16_t unRangeRmsMm = 0;                       ///< code RMS, in mm
    int16_t nTimeOffsetRTCM9 = 0;                    ///< time offset of RTCM 9 data, unit set by the producer
    float fVelocity = 0.0f;                          ///< velocity term, unit set by the producer
    float fAcceleration = 0.0f;                      ///< acceleration term, unit set by the producer

    /// Resets the record to its default state.
    void Reset() { *this = SZelFreqObservation(); }

    /// Image, 72 bytes: the memory layout, in three runs of fields; the
    /// reserved bytes between them (12 to 16, 58 to 60, 68 to 72) are written
    /// as zero and passed over on reading.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Bytes(&r.ulObsFlags, 12); // ulObsFlags, eFrequency, eTrackMode
        io.Reserved(4);
        io.Bytes(&r.dPhase, 42); // dPhase to nTimeOffsetRTCM9
        io.Reserved(2);
        io.Bytes(&r.fVelocity, 8); // fVelocity, fAcceleration
        return io.Reserved(4);
    }

    /// Text: each value behind its tag, the track mode as its letter.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("Flgs, ").Value(r.ulObsFlags).Tag(", Frq, ").template Wide<int32_t>(r.eFrequency);
        io.Tag(", TrkMode, ");
        // The two directions differ here: the writer puts the letter, the
        // reader takes one char, where an unknown letter gives 0 without a
        // report and a failed read keeps the mode.
        if constexpr (IO::c_bReading)
        {
            char cLetter = 0;
            if (io.Stream() >> cLetter)
            {
                r.eTrackMode = TrackModeOfLetter(cLetter);
            }
        }
        else
        {
            io.Stream() << ToTrackModeLetter(r.eTrackMode);
        }
        io.Tag(", Phs, ").Value(r.dPhase).Tag(", Cod, ").Value(r.dCode);
        io.Tag(", DoppM, ").Value(r.dDopplerM).Tag(", DoppC, ").Value(r.dDopplerC);
        io.Tag(", ContMeas, ").template Wide<uint32_t>(r.unContMeasCount10Msec);
        io.Tag(", CNo, ").template Wide<uint32_t>(r.unCNo);
        io.Tag(", PhsRms, ").template Wide<uint32_t>(r.unPhaseRms100thMm);
        io.Tag(", CodRms, ").template Wide<uint32_t>(r.unRangeRmsMm);
        io.Tag(", TimOffs, ").template Wide<int32_t>(r.nTimeOffsetRTCM9);
        io.Tag(", Vel, ").Value(r.fVelocity).Tag(", Acc, ").Value(r.fAcceleration);
    }

    // ---------------------------------------------------------------- flag tests and setters

    /// True when the phase is valid.
    bool HasPhase() const { return (ulObsFlags & c_ulOBSFLAG_PHASE) != 0; }
    /// True when the code is valid.
    bool HasCode() const { return (ulObsFlags & c_ulOBSFLAG_CODE) != 0; }
    /// True when the measured Doppler is valid.
    bool HasDopplerM() const { return (ulObsFlags & c_ulOBSFLAG_DOPPLERM) != 0; }
    /// True when the carrier-to-noise value is valid.
    bool HasCNo() const { return (ulObsFlags & c_ulOBSFLAG_CNO) != 0; }
    /// True when state bit 4 is set.
    bool HasState4() const { return (ulObsFlags & c_ulOBSFLAG_STATE4) != 0; }
    /// True when the computed Doppler is valid.
    bool HasDopplerC() const { return (ulObsFlags & c_ulOBSFLAG_DOPPLERC) != 0; }
    /// True when the velocity is valid.
    bool HasVelocity() const { return (ulObsFlags & c_ulOBSFLAG_VELOCITY) != 0; }
    /// True when the acceleration is valid.
    bool HasAcceleration() const { return (ulObsFlags & c_ulOBSFLAG_ACCELERATION) != 0; }
    /// True when state bit 9 is set.
    bool HasState9() const { return (ulObsFlags & c_ulOBSFLAG_STATE9) != 0; }
    /// True when the default track mode is W instead of P.
    bool HasTrackModeW() const { return (ulObsFlags & c_ulOBSFLAG_TRACKMODEW) != 0; }
    /// True when state bit 13 is set.
    bool HasState13() const { return (ulObsFlags & c_ulOBSFLAG_STATE13) != 0; }
    /// True when state bit 14 is set.
    bool HasState14() const { return (ulObsFlags & c_ulOBSFLAG_STATE14) != 0; }
    /// True when MarkSignalClasses marked the signal class.
    bool HasSignalClassMark() const { return (ulObsFlags & c_ulOBSFLAG_SIGCLASS) != 0; }
    /// True when MarkSignalClasses marked an SBAS signal.
    bool IsSbasSignal() const { return (ulObsFlags & c_ulOBSFLAG_SBAS) != 0; }

    /// Combined tests, read from the low 16 bits of the word.
    bool HasAnyObservable() const { return (LowFlags() & 0x23u) != 0; }
    /// True when state bit 6 is set.
    bool HasState6() const { return (LowFlags() & c_ulOBSFLAG_STATE6) != 0; }
    /// True when the phase is valid and state bit 4 is set.
    bool HasPhaseAndState4() const { return (static_cast<uint8_t>(LowFlags()) & 0x11u) >= 17u; }
    /// True when the phase is valid and state bit 4 or 8 is set.
    bool HasPhaseAndState4Or8() const { return HasPhase() && (LowFlags() & 0x110u) != 0; }
    /// True when the phase is valid and state bit 4 or 7 is set.
    bool HasPhaseAndState4Or7() const { return HasPhase() && (LowFlags() & 0x90u) != 0; }

    /// Sets or clears the phase validity bit.
    void SetPhase(bool bSet) { SetFlag(c_ulOBSFLAG_PHASE, bSet); }
    /// Sets or clears the code validity bit.
    void SetCode(bool bSet) { SetFlag(c_ulOBSFLAG_CODE, bSet); }
    /// Sets or clears the measured-Doppler validity bit.
    void SetDopplerM(bool bSet) { SetFlag(c_ulOBSFLAG_DOPPLERM, bSet); }
    /// Bit 3 and the state bit 13 that goes with the value.
    void SetCNo(bool bSet, bool bState13)
    {
        SetFlag(c_ulOBSFLAG_CNO, bSet);
        SetFlag(c_ulOBSFLAG_STATE13, bState13);
    }
    /// Sets or clears state bit 4.
    void SetState4(bool bSet) { SetFlag(c_ulOBSFLAG_STATE4, bSet); }
    /// Sets or clears the velocity validity bit.
    void SetVelocity(bool bSet) { SetFlag(c_ulOBSFLAG_VELOCITY, bSet); }
    /// Sets or clears the acceleration validity bit.
    void SetAcceleration(bool bSet) { SetFlag(c_ulOBSFLAG_ACCELERATION, bSet); }
    /// Sets or clears state bit 9.
    void SetState9(bool bSet) { SetFlag(c_ulOBSFLAG_STATE9, bSet); }
    /// Sets or clears the track-mode-W bit.
    void SetTrackModeW(bool bSet) { SetFlag(c_ulOBSFLAG_TRACKMODEW, bSet); }

    /// True exactly for 4; kept for the modules that test it.
    static bool IsFour(int eValue) { return eValue == 4; }

    // ---------------------------------------------------------------- values

    /// Returns unContMeasCount10Msec.
    uint16_t GetContMeasCount10Msec() const { return unContMeasCount10Msec; }

    /// The stored mode, or the default of the system and signal when it is 0.
    EZelTrackMode GetTrackMode(EZelSatSystem eSys, bool* pbDefaulted = nullptr) const;

    /// The track mode a system uses by default on a frequency slot. A pair
    /// the table lacks reports once per system (GPS and QZSS share one
    /// latch) and gives 0.
    static EZelTrackMode GetDefaultTrackMode(EZelSatSystem eSys, EZelFrequency eFrequency,
                                             uint32_t ulObsFlags);

    /// A field whose validity bit is clear takes no part; the secondary
    /// values are only reported when they differ.
    bool operator==(const SZelFreqObservation& rhs) const;

private:
    /// The mode of a letter of the text form; 0 for an unknown one, silently.
    static EZelTrackMode TrackModeOfLetter(char cLetter);

    uint32_t LowFlags() const { return ulObsFlags & 0xFFFFu; }
    void SetFlag(uint32_t ulMask, bool bSet)
    {
        if (bSet)
        {
            ulObsFlags |= ulMask;
        }
        else
        {
            ulObsFlags &= ~ulMask;
        }
    }
};

/// The observation of one satellite.
struct ZELTYPES_API SZelSatObservation
{
    /// Most signals one satellite record holds.
    static constexpr uint32_t MAX_FREQUENCIESOBSERVED = 6;

    /// Satellite observed.
    SZelSatID stSatId;
    uint32_t ulIOD = 0xFFFFFFFFu; ///< issue of data of the orbit; 0xFFFFFFFF and 0xFFFFFFFE: none
    uint8_t ucSatFlags = 0;       ///< per-satellite flags, only carried
    uint8_t ucChannel = 0;        ///< receiver channel number
    uint8_t uiNumFreq = 0;        ///< filled records of astFreqObs
    /// Signals of the satellite; the used ones come first.
    SZelFreqObservation astFreqObs[MAX_FREQUENCIESOBSERVED];

    /// Resets the record to its default state.
    void Reset() { *this = SZelSatObservation(); }

    /// The low 16 bits of ulIOD; false, output untouched, when there is none.
    bool GetIOD(uint16_t& runIod) const;

    /// Sets or clears state bit 4 on every used signal.
    void SetState4ForAllFreqs(bool bSet);
    /// True when any used signal has state bit 4 set.
    bool HasState4() const;

    /// ORs the signal-class bits 17 and 18 into the filled signal records.
    void MarkSignalClasses();

    /// Image: the head as it stands in memory (the satellite's 8 bytes with
    /// 5 to 7 reserved, IOD at 8, flags at 12, channel at 13, count at 14),
    /// then the filled signal records. A count above the array handles the
    /// six records there are: the size then differs from getSize() and the
    /// call fails.
    template <class IO, class Self> static bool VisitFields(IO& io, Self& r)
    {
        io.Inline(r.stSatId);
        io.Bytes(&r.ulIOD, 7); // ulIOD, ucSatFlags, ucChannel, uiNumFreq
        ZEL_ASSERT_TEXT(r.stSatId.isValid(), "false");
        ZEL_ASSERT_TEXT(r.uiNumFreq <= MAX_FREQUENCIESOBSERVED,
                        "self.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED");
        if constexpr (IO::c_bLoading)
        {
            // The reader's true bounds test, on the count just read; the
            // first one looked at the count the record held before. It fails
            // silently, with the head stored.
            if (r.getSize() > io.Offset() + io.Remaining())
            {
                return false;
            }
        }
        for (uint32_t ulIdx = 0; ulIdx < r.UsedFreqs(); ++ulIdx)
        {
            io.Inline(r.astFreqObs[ulIdx]);
            ZEL_ASSERT_TEXT(r.astFreqObs[ulIdx].eFrequency >= ZELFREQUENCY_L1CA &&
                                r.astFreqObs[ulIdx].eFrequency <= ZELFREQUENCY_E6,
                            "false");
        }
        return true;
    }

    /// Text: the head, then ", " and each filled signal record (six at most).
    /// The flags go out in hexadecimal with the base prefix, which stays on
    /// the stream; the base goes back to decimal.
    template <class IO, class Self> static void VisitText(IO& io, Self& r)
    {
        io.Tag("SatId, ").Value(r.stSatId).Tag(", IOD, ").Value(r.ulIOD);
        io.Tag(", SatFlgs, ").ShowBase().template Hex<uint32_t>(r.ucSatFlags);
        io.Tag(", ChnNum, ").template Wide<uint32_t>(r.ucChannel);
        io.Tag(", NumFrqs, ").template Wide<uint32_t>(r.uiNumFreq);
        ZEL_ASSERT_TEXT(r.uiNumFreq <= MAX_FREQUENCIESOBSERVED,
                        "rstSatObs.uiNumFreq <= SZelSatObservation::MAX_FREQUENCIESOBSERVED");
        for (uint32_t ulIdx = 0; ulIdx < r.UsedFreqs(); ++ulIdx)
        {
            io.Tag(", ").Value(r.astFreqObs[ulIdx]);
        }
    }

    /// Size of the byte image, in bytes.
    uint64_t getSize() const { return c_ulSATOBS_HEAD_SIZE + c_ulFREQOBS_SIZE * uiNumFreq; }
    /// Writes the byte image into pBuffer (uiBufferLength bytes); *pulOffset receives the bytes written.
    /// False, with the report "false", on a null or short buffer.
    bool saveData(unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset) const;
    /// The first bounds test looks at the record's present uiNumFreq, the
    /// second one at the count read.
    bool loadData(const unsigned char* pBuffer, uint64_t uiBufferLength, uint64_t* pulOffset);

    /// The ulIOD is compared last and only reported.
    bool operator==(const SZelSatObservation& rhs) const;

    /// Number of filled records that exist in the array.
    uint32_t UsedFreqs() const
    {
        return uiNumFreq < MAX_FREQUENCIESOBSERVED ? uiNumFreq : MAX_FREQUENCIESOBSERVED;
    }
};

static_assert(std::is_trivially_copyable<SZelFreqObservation>::value, "block copies of signal records");
static_assert(std::is_trivially_copyable<SZelSatObservation>::value, "block copies of satellite records");

/// The runs of fields of the images are runs of the memory layouts; the
/// enumerations read in them take any value of their fixed type.
static_assert(offsetof(SZelFreqObservation, eTrackMode) == 8 && offsetof(SZelFreqObservation, dPhase) == 16 &&
                  offsetof(SZelFreqObservation, nTimeOffsetRTCM9) == 56 &&
                  offsetof(SZelFreqObservation, fVelocity) == 60 &&
                  offsetof(SZelFreqObservation, fAcceleration) == 64,
              "runs of the signal record");
static_assert(offsetof(SZelSatObservation, ulIOD) == 8 && offsetof(SZelSatObservation, ucSatFlags) == 12 &&
                  offsetof(SZelSatObservation, ucChannel) == 13 &&
                  offsetof(SZelSatObservation, uiNumFreq) == 14,
              "run of the satellite head");
static_assert(ZelIo::IsFixedEnum<EZelFrequency>() && ZelIo::IsFixedEnum<EZelTrackMode>(),
              "enumerations read as bytes");

/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelFreqObservation& rstFreqObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelFreqObservation& rstFreqObs);
/// Writes the record as one line of tag words and values, with no line end.
ZELTYPES_API std::ostream& operator<<(std::ostream& os, const SZelSatObservation& rstSatObs);
/// Reads the record's text line by position, skipping the tag words; the caller checks the stream.
ZELTYPES_API std::istream& operator>>(std::istream& is, SZelSatObservation& rstSatObs);

} // namespace ZELN

#endif
